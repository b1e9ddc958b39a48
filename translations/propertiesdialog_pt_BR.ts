<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>Selecionar deslocamento de impressão estendido</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Deslocam.:</translation>
    </message>
    <message>
        <source>-0.75mm</source>
        <translation>-0.75mm</translation>
    </message>
    <message>
        <source>-0.50mm</source>
        <translation>-0.50mm</translation>
    </message>
    <message>
        <source>-0.25mm</source>
        <translation>-0.25mm</translation>
    </message>
    <message>
        <source> 0.00mm</source>
        <translation> 0.00mm</translation>
    </message>
    <message>
        <source> 0.25mm</source>
        <translation> 0.25mm</translation>
    </message>
    <message>
        <source> 0.50mm</source>
        <translation> 0.50mm</translation>
    </message>
    <message>
        <source> 0.75mm</source>
        <translation> 0.75mm</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation>%1 não pode ser modificado.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation>%1 não pode ser excluído.</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>DL</source>
        <translation>DL</translation>
    </message>
</context>
<context>
    <name>PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriedades</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronta</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>Usar padrão</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Vantry</source>
        <translation>Vantry</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>Local:</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Aqui</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Imprimir em arquivo</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>Número de cópias:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>Imprimir agora?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>Deseja trocar a impressora atual por 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>Troca de impressora</translation>
    </message>
</context>
<context>
    <name>PrintPropertiesDialog</name>
    <message>
        <source>PrintPropertiesDialog</source>
        <translation>PrintPropertiesDialog</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>Tamanho de página personalizado</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Largura:</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>polegadas</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Altura:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Visualização</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientação</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Retrato</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paisagem</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>Retrato 180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>Paisagem 180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efeitos</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Espelhar</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negativo</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Predefinição</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>Gerenciar...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>Configurações de velocidade</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>Densidade de impressão</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Predefinições</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>As predefinições salvam suas configurações de impressão com um nome
para alternar rapidamente entre configurações diferentes.</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>Lista de predefinições:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descrição:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nova</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>Atualizar...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Mídia</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>Configurações da mídia</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>Tipo de mídia:</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>Largura da marca preta:</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>Deslocamento da marca preta:</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>Método de impressão:</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>Manuseio da mídia</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Corte:</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>Avanço:</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>Retrocesso:</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>pontos</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>Sobreposição:</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>Ajustes de posição</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>Posição de parada:</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>Posição inicial:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avançado</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Comandos do usuário</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>Início do trabalho</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>Início da etiqueta</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>Fim da etiqueta</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>Fim do trabalho</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>Ajuste de posição</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>Deslocamento horizontal:</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>Deslocamento vertical:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Contínua</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Etiquetas com espaços</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Etiquetas com marcas</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Sem corte</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Cortar após o trabalho</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Cortar após cada página</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>Deslocamento vertical</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>Posição de parada</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation>Tamanho do espaço</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>Deslocamento do espaço</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>Tamanho da marca preta</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>Deslocamento da marca preta</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>Nova predefinição</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>Nova predefinição %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>Orientação: %1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>Orientação: %1, espelhado</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>Orientação: %1, em negativo</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>Orientação: %1, espelhado e em negativo</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Mostra e altera as configurações de uma impressora de etiquetas.</translation>
    </message>
    <message>
        <source>The queue, instead of the default one.</source>
        <translation>A fila, em vez da padrão.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>Lista as filas; a padrão é marcada com um asterisco.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argumento inesperado “%1”</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>não existe a impressora “%1”; --list mostra as existentes</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>Esta predefinição contém as configurações atuais deste driver.</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>Esta predefinição contém as configurações padrão originais deste driver.</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>Preferências de impressão de %1</translation>
    </message>
</context>
</TS>
