<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>Volby pro %1 nelze uložit: jsou příliš dlouhé nebo obsahují zalomení řádku.</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>Heslo pro %1 na %2? </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>Tiskárna „%1“ není dostupná.</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>Tiskový server neodpověděl včas.</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>Tiskový server přerušil odpověď uprostřed.</translation>
    </message>
</context>
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>Výběr rozšířeného posunu tisku</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Posun:</translation>
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
        <translation>%1 až %2 palců</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>%1 palců = %2 mm</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>Pouze čísla od %1 do %2, nejvýše se dvěma desetinnými místy.</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>%1 až %2 bodů</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>%1 bodů = %2 mm</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>Pouze celá čísla od %1 do %2.</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>Tiskový server požaduje uživatelské jméno a heslo.</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>Nebyly přijaty. Zkuste to prosím znovu.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Uživatelské jméno:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Heslo:</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Warning</source>
        <translation>Varování</translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation>%1 nelze změnit.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation>Varování</translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation>%1 nelze smazat.</translation>
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
        <translation>Tisk</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Název:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Vlastnosti</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stav:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Připravena</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>Výchozí</translation>
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
        <translation>Umístění:</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Zde</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Tisk do souboru</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>Počet kopií:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>Vytisknout nyní?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>Chcete změnit současnou tiskárnu na 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>Změna tiskárny</translation>
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
        <translation>Stránka</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>Vlastní velikost stránky</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Šířka:</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>palců</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Výška:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Náhled</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientace</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Na výšku</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Na šířku</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>Na výšku 180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>Na šířku 180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efekty</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Zrcadlově</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negativ</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Předvolba</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Název:</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>Spravovat...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>Nastavení rychlosti</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>Sytost tisku</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Předvolby</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>Předvolby ukládají nastavení tisku pod názvem,
abyste mohli rychle přepínat mezi konfiguracemi.</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>Seznam předvoleb:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Popis:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nová</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>Aktualizovat...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Smazat</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Médium</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>Nastavení média</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>Typ média:</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>Šířka černé značky:</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>Posun černé značky:</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>Způsob tisku:</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>Zpracování média</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Řezání:</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>Posuv:</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>Zpětný posuv:</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>bodů</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>Překryv:</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>Úpravy polohy</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>Poloha zastavení:</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>Počáteční poloha:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Pokročilé</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Uživatelské příkazy</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>Začátek úlohy</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>Začátek štítku</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>Konec štítku</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>Konec úlohy</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>Úprava polohy</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>Vodorovný posun:</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>Svislý posun:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O aplikaci</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verze</translation>
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
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Nekonečné</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Štítky s mezerami</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Štítky se značkami</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Bez řezání</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Říznout po úloze</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Říznout po stránce</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>Svislý posun</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>Poloha zastavení</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Verze %1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation>Velikost mezery</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>Posun mezery</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>Velikost černé značky</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>Posun černé značky</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>Nová předvolba</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>Nová předvolba %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>Orientace: %1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>Orientace: %1, zrcadlově</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>Orientace: %1, negativ</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>Orientace: %1, zrcadlově a negativ</translation>
    </message>
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>Ovladač této tiskárny toto nastavení nemá.</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>Od %1 x %2 do %3 x %4 palců.</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>Ovladač této tiskárny přijímá pouze velikosti stránky ze svého seznamu.</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>Ponecháno na tiskárně (%1).</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>Prázdné: ponecháno na tiskárně (%1).</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>Ovladač této tiskárny nemá nastavení štítků. Účinek má pouze velikost stránky a orientace.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>%1 a %2 nelze použít společně.</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>Tato předvolba nemůže obsahovat současná nastavení tiskárny: %1. Jejím výběrem by se změnila.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>Vlastnosti tiskárny štítků</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>Vyberte &amp;tiskárnu:</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Fronta</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Popis</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Umístění</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Nepřijímá úlohy</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Nečinná</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Tiskne</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Zastavena</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>&amp;Vytisknout zkušební štítek</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Zobrazuje a mění nastavení tiskárny štítků.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NÁZEV</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>Vypíše fronty; výchozí je označena hvězdičkou.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>neočekávaný argument „%1“</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>tiskárna „%1“ neexistuje; --list vypíše dostupné</translation>
    </message>
    <message>
        <source>Label Printer Properties</source>
        <translation>Vlastnosti tiskárny štítků</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>Fronta, místo vybrané ze seznamu.</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>Vytiskne štítek pro úpravu posunů a sytosti tisku, na zadané nebo výchozí frontě.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Zobrazí tuto nápovědu.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Zobrazí verzi.</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>Tisková služba není dostupná: %1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>Nejsou nastaveny žádné tiskárny.</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>Zkušební štítek se nepodařilo vytisknout: %1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>není nastavena výchozí tiskárna; zadejte ji pomocí -p</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>Zkušební štítek byl odeslán na %1.</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>nelze zobrazit žádné okno: není nastavena proměnná DISPLAY ani WAYLAND_DISPLAY</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>s %1 nelze zobrazit žádné okno</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>Výchozí tiskárna „%1“ neexistuje.</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>Předvolby se nepodařilo uložit.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>Nastavení se nepodařilo uložit: %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Tato nastavení nelze použít společně:</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>Chcete je změnit na následující?</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Použití: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[volby]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Volby:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Neznámá volba „%1“.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Chybějící hodnota po „%1“.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Neočekávaná hodnota po „%1“.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>Tato předvolba obsahuje současná nastavení tohoto ovladače.</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>Tato předvolba obsahuje původní výchozí nastavení tohoto ovladače.</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>Předvolby tisku: %1</translation>
    </message>
</context>
<context>
    <name>TestLabel</name>
    <message>
        <source>Continuous</source>
        <translation>Nekonečné</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Štítky s mezerami</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Štítky se značkami</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Bez řezání</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Říznout po úloze</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Říznout po stránce</translation>
    </message>
    <message>
        <source>Darkness %1</source>
        <translation>Sytost tisku %1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Rychlost %1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>Posun %1, %2 bodů</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Výchozí nastavení</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>Test label</source>
        <translation>Zkušební štítek</translation>
    </message>
</context>
</TS>
