<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Zeigt und ändert die Einstellungen eines Etikettendruckers.</translation>
    </message>
    <message>
        <source>The queue, instead of the default one.</source>
        <translation>Die Warteschlange, anstelle der Standard-Warteschlange.</translation>
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
</TS>
