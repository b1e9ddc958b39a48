<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>De opties van %1 kunnen niet worden opgeslagen: ze zijn te lang of bevatten een regeleinde.</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>Wachtwoord voor %1 op %2? </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>De printer ‘%1’ is niet bereikbaar.</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>De afdrukserver heeft niet op tijd geantwoord.</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>De afdrukserver heeft een antwoord halverwege afgebroken.</translation>
    </message>
</context>
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>Uitgebreide afdrukverschuiving kiezen</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Verschuiving:</translation>
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
        <translation>%1 tot %2 inch</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>%1 inch = %2 mm</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>Alleen getallen van %1 tot %2, met hoogstens twee decimalen.</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>%1 tot %2 punten</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>%1 punten = %2 mm</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>Alleen gehele getallen van %1 tot %2.</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>De afdrukserver vraagt om een gebruikersnaam en een wachtwoord.</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>Ze zijn niet geaccepteerd. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Gebruikersnaam:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Wachtwoord:</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation>%1 kan niet worden gewijzigd.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation>%1 kan niet worden verwijderd.</translation>
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
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Naam:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschappen</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>Standaardprinter</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Type:</translation>
    </message>
    <message>
        <source>Vantry</source>
        <translation>Vantry</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>Locatie:</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Afdrukken naar bestand</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>Aantal exemplaren:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>Nu afdrukken?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>Wilt u de huidige printer wijzigen in 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>Printer wijzigen</translation>
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
        <translation>Paginaopmaak</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>Aangepast paginaformaat</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breedte:</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>inch</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Hoogte:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Oriëntatie</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Staand</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Liggend</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>Staand 180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>Liggend 180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effecten</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Spiegelen</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negatief</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Profiel</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Naam:</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>Beheren...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>Snelheid</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>Afdrukdichtheid</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Profielen</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>Met profielen bewaart u afdrukinstellingen onder een naam
om snel tussen configuraties te wisselen.</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>Lijst van profielen:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschrijving:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nieuw</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>Bijwerken...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Materiaal</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>Materiaalinstellingen</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>Materiaaltype:</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>Breedte zwarte markering:</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>Verschuiving zwarte markering:</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>Afdrukmethode:</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>Materiaalverwerking</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Snijden:</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>Doorvoer:</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>Terugvoer:</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>punten</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>Overlapping:</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>Positieaanpassingen</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>Stoppositie:</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>Startpositie:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Geavanceerd</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Gebruikersopdrachten</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>Begin van taak</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>Begin van etiket</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>Einde van etiket</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>Einde van taak</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>Positieaanpassing</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>Horizontale verschuiving:</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>Verticale verschuiving:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versie</translation>
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
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hulp</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Doorlopend</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Etiketten met tussenruimte</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Etiketten met markeringen</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Niet snijden</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Snijden na taak</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Snijden na pagina</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>Verticale verschuiving</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>Stoppositie</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation>Grootte tussenruimte</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>Verschuiving tussenruimte</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>Grootte zwarte markering</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>Verschuiving zwarte markering</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>Nieuw profiel</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>Nieuw profiel %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>Oriëntatie: %1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>Oriëntatie: %1, gespiegeld</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>Oriëntatie: %1, negatief</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>Oriëntatie: %1, gespiegeld en negatief</translation>
    </message>
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>Het stuurprogramma van deze printer heeft deze instelling niet.</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>Van %1 x %2 tot %3 x %4 inch.</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>Het stuurprogramma van deze printer accepteert alleen de paginaformaten uit zijn lijst.</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>Aan de printer overgelaten (%1).</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>Leeg: aan de printer overgelaten (%1).</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>Het stuurprogramma van deze printer heeft geen etiketinstellingen. Alleen het paginaformaat en de oriëntatie hebben effect.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>%1 en %2 kunnen niet samen worden gebruikt.</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>Dit profiel kan de huidige instellingen van de printer niet bevatten: %1. Als u het kiest, worden ze gewijzigd.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>Eigenschappen van labelprinter</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>Kies een &amp;printer:</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Wachtrij</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschrijving</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Accepteert geen taken</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Inactief</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Bezig met afdrukken</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Gestopt</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>&amp;Testetiket afdrukken</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Toont en wijzigt de instellingen van een labelprinter.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAAM</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>Toont de wachtrijen, de standaardwachtrij met een sterretje.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>onverwacht argument ‘%1’</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>er is geen printer ‘%1’; --list noemt de aanwezige</translation>
    </message>
    <message>
        <source>Label Printer Properties</source>
        <translation>Eigenschappen van labelprinter</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>De wachtrij, in plaats van een uit een lijst gekozen wachtrij.</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>Drukt een etiket af om verschuivingen en dichtheid mee in te stellen, op de opgegeven wachtrij of de standaardwachtrij.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Toont deze hulp.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Toont de versie.</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>De afdrukdienst is niet bereikbaar: %1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>Er zijn geen printers ingesteld.</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>Het testetiket kon niet worden afgedrukt: %1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>er is geen standaardprinter; geef er een op met -p</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>Het testetiket is naar %1 verzonden.</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>er kan geen venster worden getoond: DISPLAY noch WAYLAND_DISPLAY is ingesteld</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>met %1 kan geen venster worden getoond</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>De standaardprinter ‘%1’ bestaat niet.</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>De profielen konden niet worden opgeslagen.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>De instellingen konden niet worden opgeslagen: %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Deze instellingen kunnen niet samen worden gebruikt:</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>Wilt u ze wijzigen in de volgende?</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Gebruik: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[opties]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opties:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Onbekende optie ‘%1’.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Ontbrekende waarde na ‘%1’.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Onverwachte waarde na ‘%1’.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>Dit profiel bevat de huidige instellingen van dit stuurprogramma.</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>Dit profiel bevat de oorspronkelijke standaardinstellingen van dit stuurprogramma.</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>Afdrukvoorkeuren voor %1</translation>
    </message>
</context>
<context>
    <name>TestLabel</name>
    <message>
        <source>Continuous</source>
        <translation>Doorlopend</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Etiketten met tussenruimte</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Etiketten met markeringen</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Niet snijden</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Snijden na taak</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Snijden na pagina</translation>
    </message>
    <message>
        <source>Darkness %1</source>
        <translation>Afdrukdichtheid %1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Snelheid %1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>Verschuiving %1, %2 punten</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Standaardinstellingen</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>Test label</source>
        <translation>Testetiket</translation>
    </message>
</context>
</TS>
