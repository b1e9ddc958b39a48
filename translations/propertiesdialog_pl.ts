<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>Nie można zapisać opcji %1: są za długie albo zawierają znak końca wiersza.</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>Hasło dla %1 na %2? </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>Nie można połączyć się z drukarką „%1”.</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>Serwer druku nie odpowiedział na czas.</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>Serwer druku przerwał połączenie w trakcie odpowiedzi.</translation>
    </message>
</context>
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
    <name>NumberField</name>
    <message>
        <source>%1 to %2 inches</source>
        <translation>Od %1 do %2 cali</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>%1 cali = %2 mm</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>Tylko liczby od %1 do %2, najwyżej z dwoma miejscami po przecinku.</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>Od %1 do %2 punktów</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>%1 punktów = %2 mm</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>Tylko liczby całkowite od %1 do %2.</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>Serwer druku wymaga podania nazwy użytkownika i hasła.</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>Podane dane nie zostały przyjęte. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nazwa użytkownika:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Hasło:</translation>
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
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>Sterownik tej drukarki nie ma tego ustawienia.</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>Od %1 x %2 do %3 x %4 cali.</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>Sterownik tej drukarki przyjmuje tylko rozmiary stron ze swojej listy.</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>Decyduje drukarka (%1).</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>Puste: decyduje drukarka (%1).</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>Sterownik tej drukarki nie ma ustawień etykiet. Działają tylko rozmiar strony i orientacja.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>%1 i %2 nie mogą być używane razem.</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>Ten profil nie może przechować bieżących ustawień drukarki: %1. Wybranie go zmieniłoby je.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>Właściwości drukarki etykiet</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>Wybierz &amp;drukarkę:</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Kolejka</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Położenie</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>Nie przyjmuje zadań</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Bezczynna</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drukuje</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Zatrzymana</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>Drukuj etykietę &amp;testową</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Pokazuje i zmienia ustawienia drukarki etykiet.</translation>
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
    <message>
        <source>Label Printer Properties</source>
        <translation>Właściwości drukarki etykiet</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>Kolejka, zamiast wybieranej z listy.</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>Drukuje etykietę do regulacji przesunięć i gęstości druku, w podanej lub domyślnej kolejce.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Pokazuje tę pomoc.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Pokazuje wersję.</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>Nie można połączyć się z usługą drukowania: %1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>Nie skonfigurowano żadnych drukarek.</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>Nie udało się wydrukować etykiety testowej: %1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>brak drukarki domyślnej; podaj drukarkę opcją -p</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>Etykieta testowa została wysłana do %1.</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>nie można wyświetlić okna: nie ustawiono DISPLAY ani WAYLAND_DISPLAY</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>nie można wyświetlić okna przy %1</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>Drukarka domyślna „%1” nie istnieje.</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>Nie udało się zapisać profili.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>Nie udało się zapisać ustawień: %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 i %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Tych ustawień nie można używać razem:</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>Czy zmienić je na następujące?</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Użycie: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[opcje]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opcje:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Nieznana opcja „%1”.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Brak wartości po „%1”.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Nieoczekiwana wartość po „%1”.</translation>
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
<context>
    <name>TestLabel</name>
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
        <source>Darkness %1</source>
        <translation>Gęstość druku %1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Prędkość %1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>Przesunięcie %1, %2 punktów</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Ustawienia domyślne</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>Test label</source>
        <translation>Etykieta testowa</translation>
    </message>
</context>
</TS>
