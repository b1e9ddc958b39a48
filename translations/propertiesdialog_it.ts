<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>Seleziona l’offset di stampa esteso</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Offset:</translation>
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
        <translation>Avviso</translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation>%1 non può essere modificato.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation>%1 non può essere eliminato.</translation>
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
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronta</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>Usa predefinita</translation>
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
        <translation>Luogo:</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Qui</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Stampa su file</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>Numero di copie:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>Stampare ora?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>Passare alla stampante 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>Cambio di stampante</translation>
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
        <translation>Imposta pagina</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>Dimensione di pagina personalizzata</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Larghezza:</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>pollici</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Altezza:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientamento</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>Verticale 180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>Orizzontale 180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effetti</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Speculare</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negativo</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Profilo</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>Gestisci...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>Impostazioni di velocità</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>Densità di stampa</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>I profili salvano le impostazioni di stampa con un nome
per passare rapidamente da una configurazione all’altra.</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>Elenco dei profili:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descrizione:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>Aggiorna...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Supporto</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>Impostazioni del supporto</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>Tipo di supporto:</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>Larghezza della tacca nera:</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>Offset della tacca nera:</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>Metodo di stampa:</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>Gestione del supporto</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Taglio:</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>Avanzamento:</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>Arretramento:</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>punti</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>Sovrapposizione:</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>Regolazioni della posizione</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>Posizione di arresto:</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>Posizione di partenza:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzate</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Comandi utente</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>Inizio lavoro</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>Inizio etichetta</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>Fine etichetta</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>Fine lavoro</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>Regolazione della posizione</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>Offset orizzontale:</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>Offset verticale:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Continuo</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Etichette con spazi</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Etichette con tacche</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Nessun taglio</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Taglia dopo il lavoro</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Taglia dopo ogni pagina</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>Offset verticale</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>Posizione di arresto</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation>Dimensione dello spazio</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>Offset dello spazio</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>Dimensione della tacca nera</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>Offset della tacca nera</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>Nuovo profilo</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>Nuovo profilo %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>Orientamento: %1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>Orientamento: %1, speculare</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>Orientamento: %1, negativo</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>Orientamento: %1, speculare e negativo</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Mostra e modifica le impostazioni di una stampante di etichette.</translation>
    </message>
    <message>
        <source>The queue, instead of the default one.</source>
        <translation>La coda, al posto di quella predefinita.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOME</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>Elenca le code; quella predefinita è contrassegnata da un asterisco.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argomento inatteso «%1»</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>la stampante «%1» non esiste; --list elenca quelle presenti</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>Questo profilo contiene le impostazioni attuali di questo driver.</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>Questo profilo contiene le impostazioni predefinite originali di questo driver.</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>Preferenze di stampa di %1</translation>
    </message>
</context>
</TS>
