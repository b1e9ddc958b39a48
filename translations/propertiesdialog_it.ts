<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>Le opzioni di %1 non possono essere salvate: sono troppo lunghe o contengono un’interruzione di riga.</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>Password per %1 su %2? </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>La stampante «%1» non è raggiungibile.</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>Il server di stampa non ha risposto in tempo.</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>Il server di stampa si è interrotto nel mezzo di una risposta.</translation>
    </message>
</context>
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
    <name>NumberField</name>
    <message>
        <source>%1 to %2 inches</source>
        <translation>Da %1 a %2 pollici</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>%1 pollici = %2 mm</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>Solo numeri da %1 a %2, con al massimo due decimali.</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>Da %1 a %2 punti</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>%1 punti = %2 mm</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>Solo numeri interi da %1 a %2.</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>Il server di stampa richiede un nome utente e una password.</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>Non sono stati accettati. Riprovare.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome utente:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
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
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>Il driver di questa stampante non ha questa impostazione.</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>Da %1 x %2 a %3 x %4 pollici.</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>Il driver di questa stampante accetta solo le dimensioni di pagina del suo elenco.</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>Lasciato alla stampante (%1).</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>Vuoto: lasciato alla stampante (%1).</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>Il driver di questa stampante non ha impostazioni per le etichette. Hanno effetto solo la dimensione di pagina e l’orientamento.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>%1 e %2 non possono essere usati insieme.</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>Questo profilo non può contenere le impostazioni attuali della stampante: %1. Sceglierlo le cambierebbe.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>Proprietà della stampante di etichette</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>Scegli una &amp;stampante:</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Coda</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Non accetta lavori</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Inattiva</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Stampa in corso</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>Stampa etichetta di &amp;prova</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Mostra e modifica le impostazioni di una stampante di etichette.</translation>
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
    <message>
        <source>Label Printer Properties</source>
        <translation>Proprietà della stampante di etichette</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>La coda, invece di una scelta da un elenco.</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>Stampa un’etichetta per regolare gli offset e la densità, sulla coda indicata o su quella predefinita.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Mostra questo aiuto.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Mostra la versione.</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>Il servizio di stampa non è raggiungibile: %1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>Nessuna stampante è configurata.</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>Impossibile stampare l’etichetta di prova: %1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>non c’è una stampante predefinita; indicarne una con -p</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>L’etichetta di prova è stata inviata a %1.</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>impossibile mostrare una finestra: né DISPLAY né WAYLAND_DISPLAY sono impostate</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>impossibile mostrare una finestra con %1</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>La stampante predefinita «%1» non esiste.</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>Impossibile salvare i profili.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>Impossibile salvare le impostazioni: %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Queste impostazioni non possono essere usate insieme:</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>Cambiarle nelle seguenti?</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Utilizzo: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[opzioni]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opzioni:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opzione sconosciuta «%1».</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Valore mancante dopo «%1».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valore inatteso dopo «%1».</translation>
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
<context>
    <name>TestLabel</name>
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
        <source>Darkness %1</source>
        <translation>Densità di stampa %1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Velocità %1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>Offset %1, %2 punti</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Impostazioni predefinite</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>Test label</source>
        <translation>Etichetta di prova</translation>
    </message>
</context>
</TS>
