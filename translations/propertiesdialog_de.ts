<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>Die Optionen von %1 können nicht gespeichert werden: Sie sind zu lang oder enthalten einen Zeilenumbruch.</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>Passwort für %1 auf %2? </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>Der Drucker „%1“ ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>Der Druckserver hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>Der Druckserver hat mitten in einer Antwort abgebrochen.</translation>
    </message>
</context>
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>Erweiterten Druckversatz wählen</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Versatz:</translation>
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
        <translation>%1 bis %2 Zoll</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>%1 Zoll = %2 mm</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>Nur Zahlen von %1 bis %2, mit höchstens zwei Nachkommastellen.</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>%1 bis %2 Dots</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>%1 Dots = %2 mm</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>Nur ganze Zahlen von %1 bis %2.</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>Der Druckserver verlangt einen Benutzernamen und ein Passwort.</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>Sie wurden nicht akzeptiert. Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation>%1 kann nicht geändert werden.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation>%1 kann nicht gelöscht werden.</translation>
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
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>Standarddrucker</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Vantry</source>
        <translation>Vantry</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>In Datei drucken</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>Kopien:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>Jetzt drucken?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>Drucker wechseln zu 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>Druckerwechsel</translation>
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
        <translation>Seite einrichten</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>Benutzerdefiniertes Seitenformat</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>Hochformat 180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>Querformat 180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Gespiegelt</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negativ</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>Verwalten...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>Druckdichte</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>Mit Vorgaben speichern Sie Ihre Druckeinstellungen unter einem
Namen und wechseln schnell zwischen ihnen.</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>Liste der Vorgaben:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>Aktualisieren...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>Medieneinstellungen</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>Medientyp:</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>Breite der Schwarzmarke:</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>Versatz der Schwarzmarke:</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>Druckverfahren:</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>Medienhandhabung</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Schneiden:</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>Vorschub:</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>Rückzug:</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>Dots</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>Überlappung:</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>Positionskorrekturen</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>Stopp-Position:</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>Startposition:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Benutzerbefehle</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>Auftragsanfang</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>Etikettanfang</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>Etikettende</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>Auftragsende</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>Positionskorrektur</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>Horizontaler Versatz:</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>Vertikaler Versatz:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Endlos</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Etiketten mit Lücken</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Etiketten mit Marken</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Kein Schnitt</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Schnitt nach Auftrag</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Schnitt nach Seite</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>Vertikaler Versatz</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>Stopp-Position</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation>Lückengröße</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>Lückenversatz</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>Größe der Schwarzmarke</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>Versatz der Schwarzmarke</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>Neue Vorgabe</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>Neue Vorgabe %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>Ausrichtung: %1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>Ausrichtung: %1, gespiegelt</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>Ausrichtung: %1, negativ</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>Ausrichtung: %1, gespiegelt und negativ</translation>
    </message>
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>Der Treiber dieses Druckers hat diese Einstellung nicht.</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>Von %1 x %2 bis %3 x %4 Zoll.</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>Der Treiber dieses Druckers nimmt nur die Seitenformate an, die er auflistet.</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>Dem Drucker überlassen (%1).</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>Leer: dem Drucker überlassen (%1).</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>Der Treiber dieses Druckers hat keine Etiketteneinstellungen. Nur Seitenformat und Ausrichtung sind wirksam.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>%1 und %2 können nicht zusammen verwendet werden.</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>Diese Vorgabe kann die aktuellen Einstellungen des Druckers nicht aufnehmen: %1. Ihre Auswahl würde diese ändern.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>Einstellungen für Etikettendrucker</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>&amp;Drucker wählen:</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Warteschlange</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Leerlauf</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Druckt</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>&amp;Testetikett drucken</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Zeigt und ändert die Einstellungen eines Etikettendruckers.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>Listet die Warteschlangen auf; ein Stern markiert die Standard-Warteschlange.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>unerwartetes Argument „%1“</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>es gibt keinen Drucker „%1“; --list nennt die vorhandenen</translation>
    </message>
    <message>
        <source>Label Printer Properties</source>
        <translation>Einstellungen für Etikettendrucker</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>Die Warteschlange, statt einer aus einer Liste gewählten.</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>Druckt ein Etikett zum Einstellen von Versatz und Druckdichte, auf der angegebenen oder der Standard-Warteschlange.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Zeigt diese Hilfe.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Zeigt die Version.</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>Der Druckdienst ist nicht erreichbar: %1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>Es sind keine Drucker eingerichtet.</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>Das Testetikett konnte nicht gedruckt werden: %1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>es gibt keinen Standarddrucker; nennen Sie einen mit -p</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>Das Testetikett wurde an %1 gesendet.</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>es kann kein Fenster angezeigt werden: Weder DISPLAY noch WAYLAND_DISPLAY ist gesetzt</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>mit %1 kann kein Fenster angezeigt werden</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>Der Standarddrucker „%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>Die Vorgaben konnten nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Diese Einstellungen können nicht zusammen verwendet werden:</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>Möchten Sie sie wie folgt ändern?</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[Optionen]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Unbekannte Option „%1“.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Nach „%1“ fehlt der Wert.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Unerwarteter Wert nach „%1“.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>Diese Vorgabe enthält die aktuellen Einstellungen dieses Treibers.</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>Diese Vorgabe enthält die ursprünglichen Standardeinstellungen dieses Treibers.</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>Druckeinstellungen für %1</translation>
    </message>
</context>
<context>
    <name>TestLabel</name>
    <message>
        <source>Continuous</source>
        <translation>Endlos</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Etiketten mit Lücken</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Etiketten mit Marken</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Kein Schnitt</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Schnitt nach Auftrag</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Schnitt nach Seite</translation>
    </message>
    <message>
        <source>Darkness %1</source>
        <translation>Druckdichte %1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Geschwindigkeit %1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>Versatz %1, %2 Dots</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Standardeinstellungen</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>Test label</source>
        <translation>Testetikett</translation>
    </message>
</context>
</TS>
