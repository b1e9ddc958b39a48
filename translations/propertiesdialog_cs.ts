<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
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
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Zobrazuje a mění nastavení tiskárny štítků.</translation>
    </message>
    <message>
        <source>The queue, instead of the default one.</source>
        <translation>Fronta, místo výchozí.</translation>
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
</TS>
