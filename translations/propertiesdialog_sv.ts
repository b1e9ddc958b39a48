<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>Alternativen för %1 kan inte sparas: de är för långa eller innehåller en radbrytning.</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>Lösenord för %1 på %2? </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>Skrivaren ”%1” kan inte nås.</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>Utskriftsservern svarade inte i tid.</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>Utskriftsservern avbröt mitt i ett svar.</translation>
    </message>
</context>
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>Välj utökad utskriftsförskjutning</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Förskjutning:</translation>
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
        <translation>%1 till %2 tum</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>%1 tum = %2 mm</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>Endast tal från %1 till %2, med högst två decimaler.</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>%1 till %2 punkter</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>%1 punkter = %2 mm</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>Endast heltal från %1 till %2.</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>Utskriftsservern begär ett användarnamn och ett lösenord.</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>De godtogs inte. Försök igen.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Användarnamn:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Lösenord:</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Warning</source>
        <translation>Varning</translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation>%1 kan inte ändras.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation>Varning</translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation>%1 kan inte tas bort.</translation>
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
        <translation>Skriv ut</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Namn:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Egenskaper</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>Standardskrivare</translation>
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
        <translation>Plats:</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Här</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Skriv till fil</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>Antal kopior:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>Skriva ut nu?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>Vill du byta aktuell skrivare till 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>Byte av skrivare</translation>
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
        <translation>Sidformat</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>Egen sidstorlek</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Bredd:</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>tum</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höjd:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Förhandsvisning</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientering</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Stående</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Liggande</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>Stående 180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>Liggande 180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekter</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Spegla</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negativ</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Förinställning</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Namn:</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>Hantera...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>Hastighet</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>Svärta</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Förinställningar</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>Förinställningar sparar dina utskriftsinställningar under ett namn
så att du snabbt kan växla mellan dem.</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>Lista över förinställningar:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beskrivning:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Ny</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>Uppdatera...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>Materialinställningar</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>Materialtyp:</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>Bredd på svart märke:</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>Förskjutning av svart märke:</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>Utskriftsmetod:</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>Materialhantering</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Klippning:</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>Matning:</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>Backmatning:</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>punkter</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>Överlappning:</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>Positionsjusteringar</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>Stopposition:</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>Startposition:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancerat</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Användarkommandon</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>Jobbets början</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>Etikettens början</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>Etikettens slut</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>Jobbets slut</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>Positionsjustering</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>Vågrät förskjutning:</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>Lodrät förskjutning:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
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
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Löpande</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Etiketter med mellanrum</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Etiketter med märken</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Ingen klippning</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Klipp efter jobb</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Klipp efter sida</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>Lodrät förskjutning</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>Stopposition</translation>
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
        <translation>Mellanrummets storlek</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>Mellanrummets förskjutning</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>Storlek på svart märke</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>Förskjutning av svart märke</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>Ny förinställning</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>Ny förinställning %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>Orientering: %1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>Orientering: %1, spegelvänd</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>Orientering: %1, negativ</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>Orientering: %1, spegelvänd och negativ</translation>
    </message>
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>Skrivarens drivrutin har inte den här inställningen.</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>Från %1 x %2 till %3 x %4 tum.</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>Skrivarens drivrutin godtar endast de sidstorlekar som den listar.</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>Överlåts åt skrivaren (%1).</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>Tomt: överlåts åt skrivaren (%1).</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>Skrivarens drivrutin har inga etikettinställningar. Endast sidstorleken och orienteringen har effekt.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>%1 och %2 kan inte användas tillsammans.</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>Den här förinställningen kan inte innehålla skrivarens nuvarande inställningar: %1. De skulle ändras om du väljer den.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>Egenskaper för etikettskrivare</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>Välj en &amp;skrivare:</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Kö</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beskrivning</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Plats</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Tar inte emot jobb</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Overksam</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Skriver ut</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Stoppad</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>Skriv ut &amp;testetikett</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Visar och ändrar inställningarna för en etikettskrivare.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAMN</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>Listar köerna, standardkön markerad med en asterisk.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>oväntat argument ”%1”</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>det finns ingen skrivare ”%1”; --list visar de som finns</translation>
    </message>
    <message>
        <source>Label Printer Properties</source>
        <translation>Egenskaper för etikettskrivare</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>Kön, i stället för en som väljs i en lista.</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>Skriver ut en etikett för att justera förskjutningar och svärta, på den angivna kön eller standardkön.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Visar den här hjälpen.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Visar versionen.</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>Utskriftstjänsten kan inte nås: %1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>Inga skrivare har konfigurerats.</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>Testetiketten kunde inte skrivas ut: %1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>det finns ingen standardskrivare; ange en med -p</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>Testetiketten har skickats till %1.</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>inget fönster kan visas: varken DISPLAY eller WAYLAND_DISPLAY är satt</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>inget fönster kan visas med %1</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>Standardskrivaren ”%1” finns inte.</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>Förinställningarna kunde inte sparas.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>Inställningarna kunde inte sparas: %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 och %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>De här inställningarna kan inte användas tillsammans:</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>Vill du ändra dem till följande?</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Användning: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[flaggor]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Flaggor:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Okänd flagga ”%1”.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Värde saknas efter ”%1”.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Oväntat värde efter ”%1”.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>Den här förinställningen innehåller drivrutinens aktuella inställningar.</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>Den här förinställningen innehåller drivrutinens ursprungliga standardinställningar.</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>Utskriftsinställningar för %1</translation>
    </message>
</context>
<context>
    <name>TestLabel</name>
    <message>
        <source>Continuous</source>
        <translation>Löpande</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Etiketter med mellanrum</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Etiketter med märken</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Ingen klippning</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Klipp efter jobb</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Klipp efter sida</translation>
    </message>
    <message>
        <source>Darkness %1</source>
        <translation>Svärta %1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Hastighet %1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>Förskjutning %1, %2 punkter</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Standardinställningar</translation>
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
