<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>As opções de %1 não podem ser salvas: são longas demais ou contêm uma quebra de linha.</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>Senha para %1 em %2? </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>Não é possível acessar a impressora “%1”.</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>O servidor de impressão não respondeu a tempo.</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>O servidor de impressão interrompeu uma resposta no meio.</translation>
    </message>
</context>
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
    <name>NumberField</name>
    <message>
        <source>%1 to %2 inches</source>
        <translation>De %1 a %2 polegadas</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>%1 polegadas = %2 mm</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>Somente números de %1 a %2, com no máximo duas casas decimais.</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>De %1 a %2 pontos</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>%1 pontos = %2 mm</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>Somente números inteiros de %1 a %2.</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>O servidor de impressão pede um nome de usuário e uma senha.</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>Eles não foram aceitos. Tente novamente.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome de usuário:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
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
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>O driver desta impressora não tem esta configuração.</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>De %1 x %2 a %3 x %4 polegadas.</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>O driver desta impressora aceita somente os tamanhos de página da sua lista.</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>Definido pela impressora (%1).</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>Vazio: definido pela impressora (%1).</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>O driver desta impressora não tem configurações de etiqueta. Somente o tamanho de página e a orientação têm efeito.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>%1 e %2 não podem ser usados juntos.</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>Esta predefinição não pode conter as configurações atuais da impressora: %1. Escolhê-la as alteraria.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>Propriedades da impressora de etiquetas</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>Escolha uma &amp;impressora:</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Localização</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Não aceita trabalhos</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Ociosa</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimindo</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Parada</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>Imprimir etiqueta de &amp;teste</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Mostra e altera as configurações de uma impressora de etiquetas.</translation>
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
    <message>
        <source>Label Printer Properties</source>
        <translation>Propriedades da impressora de etiquetas</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>A fila, em vez de uma escolhida em uma lista.</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>Imprime uma etiqueta para ajustar os deslocamentos e a densidade, na fila indicada ou na padrão.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Mostra esta ajuda.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Mostra a versão.</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>Não é possível acessar o serviço de impressão: %1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>Nenhuma impressora foi configurada.</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>Não foi possível imprimir a etiqueta de teste: %1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>não há impressora padrão; indique uma com -p</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>A etiqueta de teste foi enviada para %1.</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>não é possível mostrar uma janela: nem DISPLAY nem WAYLAND_DISPLAY estão definidas</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>não é possível mostrar uma janela com %1</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>A impressora padrão “%1” não existe.</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>Não foi possível salvar as predefinições.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>Não foi possível salvar as configurações: %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Estas configurações não podem ser usadas juntas:</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>Deseja alterá-las para as seguintes?</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Uso: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[opções]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opções:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opção desconhecida “%1”.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Falta um valor após “%1”.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valor inesperado após “%1”.</translation>
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
<context>
    <name>TestLabel</name>
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
        <source>Darkness %1</source>
        <translation>Densidade de impressão %1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Velocidade %1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>Deslocamento %1, %2 pontos</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Configurações padrão</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>Test label</source>
        <translation>Etiqueta de teste</translation>
    </message>
</context>
</TS>
