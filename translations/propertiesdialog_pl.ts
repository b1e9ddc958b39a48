<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>Wybór rozszerzonego przesunięcia wydruku</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Przesunięcie:</translation>
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
        <translation>Ostrzeżenie</translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation>Nie można zmienić %1.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation>Ostrzeżenie</translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation>Nie można usunąć %1.</translation>
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
        <translation>Drukowanie</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nazwa:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Właściwości</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stan:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gotowa</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>Domyślna</translation>
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
        <translation>Miejsce:</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Tutaj</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Drukuj do pliku</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>Liczba kopii:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>Wydrukować teraz?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>Czy zmienić bieżącą drukarkę na 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>Zmiana drukarki</translation>
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
        <translation>Strona</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>Niestandardowy rozmiar strony</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Szerokość:</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>cali</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Wysokość:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientacja</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Pionowa</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Pozioma</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>Pionowa 180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>Pozioma 180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efekty</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Odbicie lustrzane</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negatyw</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nazwa:</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>Zarządzaj...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>Ustawienia prędkości</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>Gęstość druku</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>Profile zapisują ustawienia drukowania pod nazwą,
aby szybko przełączać się między konfiguracjami.</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>Lista profili:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Opis:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nowy</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>Aktualizuj...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Nośnik</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>Ustawienia nośnika</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>Rodzaj nośnika:</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>Szerokość czarnego znacznika:</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>Przesunięcie czarnego znacznika:</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>Metoda druku:</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>Obsługa nośnika</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Cięcie:</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>Wysuw:</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>Cofanie:</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>punktów</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>Zakładka:</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>Korekty położenia</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>Pozycja zatrzymania:</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>Pozycja początkowa:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Zaawansowane</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Polecenia użytkownika</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>Początek zadania</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>Początek etykiety</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>Koniec etykiety</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>Koniec zadania</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>Korekta położenia</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>Przesunięcie w poziomie:</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>Przesunięcie w pionie:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
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
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Ciągły</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Etykiety z przerwami</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>Etykiety ze znacznikami</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Bez cięcia</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>Cięcie po zadaniu</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Cięcie po stronie</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>Przesunięcie w pionie</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>Pozycja zatrzymania</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation>Rozmiar przerwy</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>Przesunięcie przerwy</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>Rozmiar czarnego znacznika</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>Przesunięcie czarnego znacznika</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>Nowy profil</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>Nowy profil %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>Orientacja: %1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>Orientacja: %1, odbicie lustrzane</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>Orientacja: %1, negatyw</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>Orientacja: %1, odbicie lustrzane i negatyw</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Pokazuje i zmienia ustawienia drukarki etykiet.</translation>
    </message>
    <message>
        <source>The queue, instead of the default one.</source>
        <translation>Kolejka, zamiast domyślnej.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAZWA</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>Wypisuje kolejki; domyślna jest oznaczona gwiazdką.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>nieoczekiwany argument „%1”</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>nie ma drukarki „%1”; --list wypisuje istniejące</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>Ten profil zawiera bieżące ustawienia tego sterownika.</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>Ten profil zawiera pierwotne ustawienia domyślne tego sterownika.</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>Preferencje drukowania: %1</translation>
    </message>
</context>
</TS>
