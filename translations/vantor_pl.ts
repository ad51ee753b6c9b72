<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About Vantor</source>
        <extracomment>the title of a window</extracomment>
        <translation>O programie Vantor</translation>
    </message>
    <message>
        <source>Version %1 (%2)

Built by the Vantor founders. Everything it shows, it reads on this machine, and it stays here.

Confined by the kernel: %3</source>
        <extracomment>%1 is the version, %2 the build, %3 is &quot;yes&quot;, &quot;no&quot; or what is missing</extracomment>
        <translation>Wersja %1 (%2)

Stworzony przez założycieli Vantora. Wszystko, co pokazuje, odczytuje na tym komputerze i tu to pozostaje.

Odizolowany przez jądro: %3</translation>
    </message>
</context>
<context>
    <name>AppCommands</name>
    <message>
        <source>About Vantor</source>
        <extracomment>a command of the menu</extracomment>
        <translation>O programie Vantor</translation>
    </message>
    <message>
        <source>Refresh Now</source>
        <extracomment>a command of the menu: read everything now</extracomment>
        <translation>Odśwież teraz</translation>
    </message>
    <message>
        <source>Export Snapshot…</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Eksportuj migawkę…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Vantor Help</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Pomoc programu Vantor</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Close Window</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Zamknij okno</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>a menu; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>a menu; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>Pomo&amp;c</translation>
    </message>
</context>
<context>
    <name>ByteCountFormatter</name>
    <message>
        <source>%1 KB</source>
        <extracomment>an amount of 1000 or 1024 bytes each</extracomment>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <extracomment>an amount of about a million bytes each</extracomment>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <extracomment>an amount of 1000 or 1024 MB each</extracomment>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <extracomment>an amount of 1000 or 1024 GB each</extracomment>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <extracomment>an amount of 1000 or 1024 TB each</extracomment>
        <translation>%1 PB</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <extracomment>an amount of 1000 or 1024 PB each</extracomment>
        <translation>%1 EB</translation>
    </message>
    <message numerus="yes">
        <source>%Ln byte(s)</source>
        <translation>
            <numerusform>%Ln bajt</numerusform>
            <numerusform>%Ln bajty</numerusform>
            <numerusform>%Ln bajtów</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CPUCard</name>
    <message>
        <source>%1 physical • %2 logical cores</source>
        <extracomment>the numbers of cores; %1 stays in front where both are read as one phrase</extracomment>
        <translation>Rdzenie fizyczne: %1 • logiczne: %2</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>the title of the card</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>CPU Load</source>
        <extracomment>under the share of the processor that is busy</extracomment>
        <translation>Obciążenie CPU</translation>
    </message>
    <message>
        <source>%1 GHz</source>
        <extracomment>a frequency</extracomment>
        <translation>%1 GHz</translation>
    </message>
    <message>
        <source>User</source>
        <extracomment>the share of time spent in programs</extracomment>
        <translation>Użytkownik</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the share of time spent in the operating system</extracomment>
        <translation>System</translation>
    </message>
    <message>
        <source>Nominal</source>
        <extracomment>the frequency that the processor is sold with</extracomment>
        <translation>Nominalna</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Load avg %1</source>
        <extracomment>%1 are the averages of the last minutes, such as 0.52 0.58 0.59</extracomment>
        <translation>Śr. obciążenie %1</translation>
    </message>
    <message>
        <source>CPU history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>Historia CPU</translation>
    </message>
    <message>
        <source>Core Activity</source>
        <extracomment>how busy each logical processor is</extracomment>
        <translation>Aktywność rdzeni</translation>
    </message>
    <message>
        <source>Top CPU Processes</source>
        <extracomment>the processes that keep the processor busiest</extracomment>
        <translation>Procesy: najwięcej CPU</translation>
    </message>
</context>
<context>
    <name>CardTexts</name>
    <message>
        <source>Not published</source>
        <extracomment>a figure that the machine does not tell</extracomment>
        <translation>Brak danych</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <extracomment>a temperature</extracomment>
        <translation>%1 °C</translation>
    </message>
</context>
<context>
    <name>ChartView</name>
    <message>
        <source>%1 s</source>
        <extracomment>seconds, as short as possible</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <extracomment>minutes, as short as possible</extracomment>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <extracomment>minutes and seconds, as short as possible</extracomment>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>hours and minutes, as short as possible</extracomment>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>now</source>
        <extracomment>a sample of a chart, that was taken just now</extracomment>
        <translation>teraz</translation>
    </message>
    <message>
        <source>%1 ago</source>
        <extracomment>%1 is a time: when a sample of a chart was taken</extracomment>
        <translation>%1 temu</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>from the smallest to the largest value</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>The width is the last %1.</source>
        <extracomment>of a chart; %1 is a time</extracomment>
        <translation>Szerokość obejmuje ostatnie %1.</translation>
    </message>
    <message>
        <source>The height is %1 to %2.</source>
        <extracomment>of a chart; both are values: 0 % and 100 %</extracomment>
        <translation>Wysokość obejmuje zakres od %1 do %2.</translation>
    </message>
    <message>
        <source>The height is the smallest to the largest value shown.</source>
        <extracomment>of a chart</extracomment>
        <translation>Wysokość obejmuje zakres od najmniejszej do największej pokazanej wartości.</translation>
    </message>
    <message>
        <source>The height is the smallest to the largest value shown: %1.</source>
        <extracomment>of a chart; %1 are these two values</extracomment>
        <translation>Wysokość obejmuje zakres od najmniejszej do największej pokazanej wartości: %1.</translation>
    </message>
</context>
<context>
    <name>CoreActivity</name>
    <message>
        <source>Core %1: %2</source>
        <extracomment>%1 is the number of a logical processor, %2 how busy it is</extracomment>
        <translation>Rdzeń %1: %2</translation>
    </message>
    <message>
        <source>Core Activity</source>
        <extracomment>how busy each logical processor is</extracomment>
        <translation>Aktywność rdzeni</translation>
    </message>
</context>
<context>
    <name>CoreWords</name>
    <message>
        <source>Detecting processor…</source>
        <translation>Wykrywanie procesora…</translation>
    </message>
    <message>
        <source>Detecting host…</source>
        <translation>Wykrywanie komputera…</translation>
    </message>
    <message>
        <source>Detecting hardware…</source>
        <translation>Wykrywanie sprzętu…</translation>
    </message>
    <message>
        <source>Detecting macOS…</source>
        <translation>Wykrywanie systemu macOS…</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>what the machine does not tell</extracomment>
        <translation>Nieznane</translation>
    </message>
    <message>
        <source>Nominal</source>
        <extracomment>how hot the machine is: as usual</extracomment>
        <translation>Normalny</translation>
    </message>
    <message>
        <source>Fair</source>
        <extracomment>how hot the machine is: a little</extracomment>
        <translation>Podwyższony</translation>
    </message>
    <message>
        <source>Serious</source>
        <extracomment>how hot the machine is: it slows down</extracomment>
        <translation>Wysoki</translation>
    </message>
    <message>
        <source>Critical</source>
        <extracomment>how hot the machine is: it may turn itself off</extracomment>
        <translation>Krytyczny</translation>
    </message>
    <message>
        <source>Battery</source>
        <extracomment>of a battery that has no name</extracomment>
        <translation>Bateria</translation>
    </message>
    <message>
        <source>Live Linux performance intelligence</source>
        <translation>Wydajność Linuksa na żywo</translation>
    </message>
    <message>
        <source>Live macOS performance intelligence</source>
        <translation>Wydajność systemu macOS na żywo</translation>
    </message>
    <message>
        <source>Unknown Computer</source>
        <translation>Nieznany komputer</translation>
    </message>
    <message>
        <source>Unknown Mac</source>
        <translation>Nieznany Mac</translation>
    </message>
    <message>
        <source>No Graphics Device</source>
        <translation>Brak urządzenia graficznego</translation>
    </message>
    <message>
        <source>No Metal Device</source>
        <translation>Brak urządzenia Metal</translation>
    </message>
    <message>
        <source>The active graphics driver did not expose a graphics device.</source>
        <translation>Aktywny sterownik graficzny nie zgłosił żadnego urządzenia graficznego.</translation>
    </message>
    <message>
        <source>The active graphics driver did not expose a Metal device.</source>
        <translation>Aktywny sterownik graficzny nie zgłosił żadnego urządzenia Metal.</translation>
    </message>
    <message>
        <source>No browsable mounted volume was returned by Linux.</source>
        <translation>Linux nie zgłosił żadnego zamontowanego wolumenu, który można przeglądać.</translation>
    </message>
    <message>
        <source>No browsable mounted volume was returned by macOS.</source>
        <translation>System macOS nie zgłosił żadnego zamontowanego wolumenu, który można przeglądać.</translation>
    </message>
    <message>
        <source>Load of your own processes</source>
        <extracomment>the load of the graphics device is known for the user&apos;s processes only</extracomment>
        <translation>Obciążenie własnymi procesami</translation>
    </message>
    <message>
        <source>Export System Snapshot</source>
        <extracomment>the title of the dialog that asks where to save</extracomment>
        <translation>Eksport migawki systemu</translation>
    </message>
    <message>
        <source>Snapshot Export Failed</source>
        <extracomment>the title of an alert</extracomment>
        <translation>Eksport migawki się nie powiódł</translation>
    </message>
    <message>
        <source>yes</source>
        <extracomment>whether the kernel confines the program, behind a colon</extracomment>
        <translation>tak</translation>
    </message>
    <message>
        <source>no</source>
        <extracomment>whether the kernel confines the program, behind a colon</extracomment>
        <translation>nie</translation>
    </message>
    <message>
        <source>Something that is not an ordinary file has that name.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Tę nazwę ma coś, co nie jest zwykłym plikiem.</translation>
    </message>
    <message>
        <source>You do not have the permission to write there.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Nie masz uprawnień do zapisu w tym miejscu.</translation>
    </message>
    <message>
        <source>You have used up the space that you may use on the disk.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Wykorzystano całe miejsce przysługujące Ci na dysku.</translation>
    </message>
    <message>
        <source>The file would be larger than it may be there.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Plik byłby większy, niż jest tam dozwolone.</translation>
    </message>
    <message>
        <source>The disk could not be written to.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Nie można było zapisać na dysku.</translation>
    </message>
    <message>
        <source>A folder has that name.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Tę nazwę ma folder.</translation>
    </message>
    <message>
        <source>The symbolic links there lead in a circle.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Dowiązania symboliczne tworzą tam pętlę.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Otwarto zbyt wiele plików.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Nazwa jest za długa.</translation>
    </message>
    <message>
        <source>The disk is not there any more.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Dysk nie jest już dostępny.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Folder nie istnieje.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Za mało pamięci.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Za mało miejsca na dysku.</translation>
    </message>
    <message>
        <source>The place for it is not a folder.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Wskazane miejsce nie jest folderem.</translation>
    </message>
    <message>
        <source>The disk can only be read.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Dysk jest tylko do odczytu.</translation>
    </message>
    <message>
        <source>Too many damaged files are kept there.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>Jest tam już zbyt wiele uszkodzonych plików.</translation>
    </message>
    <message>
        <source>The program&apos;s own file has no name that can be kept.</source>
        <extracomment>why the program cannot be opened at login</extracomment>
        <translation>Plik programu nie ma nazwy, którą można zapisać.</translation>
    </message>
    <message>
        <source>The file would be too large.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>Plik byłby za duży.</translation>
    </message>
    <message>
        <source>The disk does not answer.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>Dysk nie odpowiada.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved. %2</source>
        <extracomment>%1 is a file&apos;s name, %2 the sentence that says why</extracomment>
        <translation>Nie udało się zapisać „%1”. %2</translation>
    </message>
    <message>
        <source>The system gave the reason &quot;%1&quot; (%2).</source>
        <extracomment>%1 is the system&apos;s own text, %2 its number</extracomment>
        <translation>System podał przyczynę „%1” (%2).</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>Nie wiadomo: %1</translation>
    </message>
    <message>
        <source>Not changed: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>Nie zmieniono: %1</translation>
    </message>
    <message>
        <source>Not changed yet: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>Jeszcze nie zmieniono: %1</translation>
    </message>
    <message>
        <source>in part (without %1)</source>
        <extracomment>whether the kernel confines the program, behind a colon; %1 is a list of names</extracomment>
        <translation>częściowo (bez: %1)</translation>
    </message>
    <message>
        <source>Nominal is the frequency that the processor is made for, as its driver or its name tells it, not the present one.</source>
        <extracomment>what the figure &quot;Nominal&quot; of the processor means</extracomment>
        <translation>„Nominalna” to częstotliwość, dla której zaprojektowano procesor, podana przez jego sterownik lub zawarta w jego nazwie, a nie bieżąca.</translation>
    </message>
    <message>
        <source>Wired is memory that cannot be moved out: the kernel&apos;s own and what programs have locked.</source>
        <extracomment>what the figure &quot;Wired&quot; of the memory means</extracomment>
        <translation>„Zarezerwowana” to pamięć, której nie można przenieść poza RAM: pamięć samego jądra i ta, którą zablokowały programy.</translation>
    </message>
    <message>
        <source>Compressed is the memory that zram and zswap keep compressed pages in.</source>
        <extracomment>what the figure &quot;Compressed&quot; of the memory means</extracomment>
        <translation>„Skompresowana” to pamięć, w której zram i zswap przechowują skompresowane strony.</translation>
    </message>
    <message>
        <source>Thermal State compares the thermal zones with their own limits: Fair where the kernel begins to slow down, Serious where it is nearly too hot, Critical where it switches off.</source>
        <extracomment>what the figure &quot;Thermal State&quot; means</extracomment>
        <translation>„Stan termiczny” porównuje strefy termiczne z ich własnymi progami: „Podwyższony”, gdy jądro zaczyna spowalniać komputer, „Wysoki”, gdy jest on prawie za gorący, „Krytyczny”, gdy jądro go wyłącza.</translation>
    </message>
    <message>
        <source>Low Power Mode is on while the firmware&apos;s profile or the processors&apos; own preference is to save power.</source>
        <extracomment>what the figure &quot;Low Power Mode&quot; means</extracomment>
        <translation>„Oszczędzanie energii” jest włączone, gdy oszczędzać energię każe profil oprogramowania układowego lub preferencja samych procesorów.</translation>
    </message>
</context>
<context>
    <name>DashboardHeader</name>
    <message>
        <source>Paused</source>
        <extracomment>the state: the figures stand still</extracomment>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>Live</source>
        <extracomment>the state: the figures follow the machine</extracomment>
        <translation>Na żywo</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>a button: go on reading</extracomment>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>a button: stop reading</extracomment>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>a number of seconds, short</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>a button: read everything now</extracomment>
        <translation>Odśwież</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>a button: save a snapshot to a file</extracomment>
        <translation>Eksportuj</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a button: end the program</extracomment>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>for screen readers: whether the figures are live</extracomment>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Refresh interval</source>
        <extracomment>how often the figures are read</extracomment>
        <translation>Okres odświeżania</translation>
    </message>
</context>
<context>
    <name>DesktopFile</name>
    <message>
        <source>Performance Dashboard</source>
        <extracomment>the kind of program</extracomment>
        <translation>Panel wydajności</translation>
    </message>
    <message>
        <source>See what this computer is doing, live and at a glance</source>
        <translation>Zobacz na żywo i jednym spojrzeniem, co robi ten komputer</translation>
    </message>
    <message>
        <source>performance;system;monitor;processor;CPU;memory;RAM;network;graphics;GPU;disk;storage;battery;temperature;process;task;load;</source>
        <translation>wydajność;system;monitor;monitorowanie;procesor;CPU;pamięć;RAM;sieć;grafika;karta graficzna;GPU;dysk;dyski;bateria;temperatura;proces;procesy;zadania;obciążenie;</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Odśwież</translation>
    </message>
    <message>
        <source>Export Current Snapshot…</source>
        <translation>Eksportuj bieżącą migawkę…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Run in the Background</source>
        <translation>Uruchom w tle</translation>
    </message>
</context>
<context>
    <name>Formatters</name>
    <message>
        <source>Unknown</source>
        <extracomment>a time that the machine does not tell</extracomment>
        <translation>Nieznany</translation>
    </message>
    <message>
        <source>%1 B/s</source>
        <extracomment>a speed of zero: %1 is 0, B stands for bytes and s for a second</extracomment>
        <translation>%1 B/s</translation>
    </message>
    <message>
        <source>%1/s</source>
        <extracomment>a speed: %1 is an amount such as 1.5 MB, s stands for a second</extracomment>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1d %2h %3m</source>
        <extracomment>a time of days, hours and minutes, as short as possible</extracomment>
        <translation>%1&#xa0;d %2&#xa0;h %3&#xa0;min</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <extracomment>a time of hours and minutes, as short as possible</extracomment>
        <translation>%1&#xa0;h %2&#xa0;min</translation>
    </message>
    <message>
        <source>%1m</source>
        <extracomment>a time of minutes, as short as possible</extracomment>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>a percentage: %1 is the number, the sign behind it stays</extracomment>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>GPUCard</name>
    <message>
        <source>Waiting for graphics data</source>
        <translation>Oczekiwanie na dane grafiki</translation>
    </message>
    <message>
        <source>Graphics</source>
        <extracomment>the title of the card</extracomment>
        <translation>Grafika</translation>
    </message>
    <message>
        <source>GPU Load</source>
        <extracomment>under the share of the graphics device that is busy</extracomment>
        <translation>Obciążenie GPU</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>VRAM Used</source>
        <extracomment>memory of the graphics device</extracomment>
        <translation>Użycie VRAM</translation>
    </message>
    <message>
        <source>VRAM Total</source>
        <extracomment>memory of the graphics device</extracomment>
        <translation>Łącznie VRAM</translation>
    </message>
    <message>
        <source>GPU history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>Historia GPU</translation>
    </message>
    <message>
        <source>Graphics Devices</source>
        <extracomment>the heading of a list</extracomment>
        <translation>Urządzenia graficzne</translation>
    </message>
</context>
<context>
    <name>GraphicsDeviceView</name>
    <message>
        <source>Recommended Working Set</source>
        <extracomment>how much graphics memory the driver recommends to use</extracomment>
        <translation>Zalecane użycie pamięci</translation>
    </message>
    <message>
        <source>Unified memory architecture</source>
        <extracomment>graphics that share the memory of the processor</extracomment>
        <translation>Pamięć współdzielona</translation>
    </message>
    <message>
        <source>Discrete graphics</source>
        <extracomment>a graphics device with memory of its own</extracomment>
        <translation>Dedykowana karta graficzna</translation>
    </message>
</context>
<context>
    <name>HelpTexts</name>
    <message>
        <source>%1 or %2 seconds</source>
        <extracomment>%1 are all numbers but the last: &quot;0.5, 1, 2, 5 or 10 seconds&quot;</extracomment>
        <translation>%1 lub %2 sekund</translation>
    </message>
    <message>
        <source>Live Monitoring</source>
        <translation>Monitorowanie na żywo</translation>
    </message>
    <message>
        <source>Choose a refresh interval from %1. Pause stops periodic sampling, Refresh Now requests a fresh snapshot, and the charts keep only the configured bounded history.</source>
        <extracomment>%1 is &quot;0.5, 1, 2, 5 or 10 seconds&quot;</extracomment>
        <translation>Wybierz okres odświeżania: %1. „Wstrzymaj” zatrzymuje okresowe odczyty, „Odśwież teraz” natychmiast odczytuje nowe wartości, a wykresy przechowują tylko historię o ustawionej długości.</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>CPU shows total and per-logical-processor activity. Memory shows current pressure-related usage values. Network reports local interface traffic. GPU values are shown only when %1 or the active graphics driver publishes them. Storage and power data update at lower cadences because they do not require sub-second polling.</source>
        <extracomment>%1 is what publishes graphics figures, such as NVML</extracomment>
        <translation>„CPU” pokazuje aktywność łączną i każdego procesora logicznego. „Pamięć” pokazuje bieżące wartości użycia, po których widać jej obciążenie. „Sieć” podaje ruch lokalnych interfejsów. Wartości GPU są widoczne tylko wtedy, gdy udostępnia je %1 lub aktywny sterownik graficzny. Dane o dyskach i zasilaniu są odświeżane rzadziej, ponieważ nie trzeba ich odczytywać kilka razy na sekundę.</translation>
    </message>
    <message>
        <source>Process Explorer</source>
        <translation>Eksplorator procesów</translation>
    </message>
    <message>
        <source>The process list uses native %1 %2 data. Sort by CPU or memory and use the filter field to locate a running process. Vantor does not launch external command-line tools to collect process telemetry.</source>
        <extracomment>%1 is the name of the system, %2 of what tells of processes: &quot;Linux procfs&quot;</extracomment>
        <translation>Lista procesów korzysta z natywnych danych systemu %1 (%2). Sortuj według CPU lub pamięci, a działający proces znajdź za pomocą pola filtra. Vantor nie uruchamia zewnętrznych narzędzi wiersza poleceń, aby zbierać dane o procesach.</translation>
    </message>
    <message>
        <source>Menu Bar and Windows</source>
        <translation>Zasobnik i okna</translation>
    </message>
    <message>
        <source>When the menu bar dashboard is enabled, closing the main window keeps Vantor available from the menu bar. When it is disabled, closing the last window exits the app. Use Quit or %1 to terminate Vantor completely.</source>
        <extracomment>%1 is what is pressed to quit, such as Ctrl+Q</extracomment>
        <translation>Gdy panel w zasobniku jest włączony, po zamknięciu głównego okna Vantor pozostaje dostępny w zasobniku. Gdy jest wyłączony, zamknięcie ostatniego okna kończy działanie programu. Aby całkowicie zakończyć działanie Vantora, użyj „Zakończ” lub %1.</translation>
    </message>
    <message>
        <source>Vantor is a local %1 performance dashboard for live CPU, memory, network, GPU, storage, process and system telemetry.</source>
        <extracomment>%1 is the name of the system</extracomment>
        <translation>Vantor to lokalny panel wydajności dla systemu %1. Na żywo pokazuje dane o CPU, pamięci, sieci, GPU, dyskach, procesach i systemie.</translation>
    </message>
    <message>
        <source>Export and Privacy</source>
        <translation>Eksport i prywatność</translation>
    </message>
    <message>
        <source>All monitoring is performed locally. Vantor does not perform analytics, public-IP lookups or automatic data transmission. A JSON snapshot is written only when you explicitly choose Export and select a destination.</source>
        <translation>Całe monitorowanie odbywa się lokalnie. Vantor nie analizuje sposobu korzystania, nie sprawdza publicznego adresu IP i nie przesyła automatycznie żadnych danych. Migawka JSON jest zapisywana tylko na wyraźne polecenie: po wybraniu „Eksportuj” i wskazaniu miejsca zapisu.</translation>
    </message>
    <message>
        <source>Amounts of memory and storage count in steps of 1024, so that 1 GB is 1,073,741,824 bytes, as the kernel hands memory out; rates count in steps of 1000, as networks do. A process&apos;s CPU share is of one processor: 100% is one kept busy, and a process on several has more.</source>
        <translation>Ilości pamięci i miejsca na dyskach są podawane z mnożnikiem 1024, więc 1&#xa0;GB to 1&#xa0;073&#xa0;741&#xa0;824&#xa0;bajty, tak jak jądro przydziela pamięć; szybkości są podawane z mnożnikiem 1000, jak w sieciach. Udział procesu w CPU odnosi się do jednego procesora: 100% to jeden w pełni zajęty, a proces działający na kilku ma więcej.</translation>
    </message>
    <message>
        <source>What the Numbers Mean</source>
        <translation>Co oznaczają liczby</translation>
    </message>
</context>
<context>
    <name>LastUpdateText</name>
    <message>
        <source>Collecting live data…</source>
        <translation>Zbieranie danych…</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time of day</extracomment>
        <translation>Odświeżono o %1</translation>
    </message>
</context>
<context>
    <name>Lists</name>
    <message>
        <source>, </source>
        <extracomment>stands between the parts of a list, with the blank that follows it</extracomment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>Manual</name>
    <message>
        <source>NAME</source>
        <translation>NAZWA</translation>
    </message>
    <message>
        <source>.Nm vantor</source>
        <translation>.Nm vantor</translation>
    </message>
    <message>
        <source>local performance dashboard for the desktop</source>
        <translation>lokalny panel wydajności dla pulpitu</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>SKŁADNIA</translation>
    </message>
    <message>
        <source>.Nm
.Op Ar option</source>
        <translation>.Nm
.Op Ar option</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>OPIS</translation>
    </message>
    <message>
        <source>.Nm
opens a window that shows what this computer is doing, live: processor, memory, network, graphics, storage, the
system with its battery, and the processes.
Closing the window keeps it in the tray, unless that is switched off in the settings or there is no tray.</source>
        <translation>.Nm
otwiera okno, które na żywo pokazuje, co robi ten komputer: procesor, pamięć, sieć, grafikę, dyski,
system z baterią oraz procesy.
Po zamknięciu okna program zostaje w zasobniku, chyba że wyłączono to w ustawieniach lub zasobnika nie ma.</translation>
    </message>
    <message>
        <source>One program runs on each display: started again,
.Nm
brings the running one&apos;s window forward and ends.</source>
        <translation>Na każdym ekranie działa jeden program: uruchomiony ponownie
.Nm
przenosi na wierzch okno już działającego i kończy działanie.</translation>
    </message>
    <message>
        <source>It is local: it opens no internet connection, starts no other program and collects nothing.
Where the kernel can, it enforces that; Help, About Vantor says whether it does.</source>
        <translation>Działa lokalnie: nie otwiera połączeń z internetem, nie uruchamia innych programów i niczego nie gromadzi.
Pilnuje tego jądro, o ile to potrafi; czy tak jest, podaje okno „O programie Vantor” w menu „Pomoc”.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPCJE</translation>
    </message>
    <message>
        <source>Each has the running program do something, or starts it for that:</source>
        <translation>Każda z tych opcji zleca coś działającemu programowi albo w tym celu go uruchamia:</translation>
    </message>
    <message>
        <source>stops the readings,</source>
        <translation>wstrzymuje odczyty,</translation>
    </message>
    <message>
        <source>goes on with them,</source>
        <translation>wznawia je,</translation>
    </message>
    <message>
        <source>reads everything now,</source>
        <translation>odczytuje wszystko teraz,</translation>
    </message>
    <message>
        <source>asks where to save a snapshot,</source>
        <translation>pyta, gdzie zapisać migawkę,</translation>
    </message>
    <message>
        <source>opens the settings,</source>
        <translation>otwiera ustawienia,</translation>
    </message>
    <message>
        <source>has no window, only the icon in the tray; without a tray, the window.</source>
        <translation>pokazuje tylko ikonę w zasobniku, bez okna; gdy zasobnika nie ma, otwiera okno.</translation>
    </message>
    <message>
        <source>The same actions are in the menu of the icon that starts the program, and on the session&apos;s bus, where
.Dq com.kestrone.Vantor
answers as
.Dq org.freedesktop.Application .</source>
        <translation>Te same działania są w menu ikony uruchamiającej program oraz na magistrali sesji, gdzie
.Dq com.kestrone.Vantor
odpowiada jako
.Dq org.freedesktop.Application .</translation>
    </message>
    <message>
        <source>These print a text and end:</source>
        <translation>Te opcje wypisują tekst i kończą działanie programu:</translation>
    </message>
    <message>
        <source>prints the options,</source>
        <translation>wypisuje opcje,</translation>
    </message>
    <message>
        <source>prints the version.</source>
        <translation>wypisuje wersję.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <translation>ŚRODOWISKO</translation>
    </message>
    <message>
        <source>The display, the first before the second.</source>
        <translation>Ekran; pierwsza zmienna ma pierwszeństwo przed drugą.</translation>
    </message>
    <message>
        <source>The folder of the settings&apos; folder,
.Pa ~/.config
where it is not set or relative.</source>
        <translation>Folder, w którym leży folder ustawień;
.Pa ~/.config
w przypadku zmiennej nieustawionej lub zawierającej ścieżkę względną.</translation>
    </message>
    <message>
        <source>The folder of the lock and the socket by which a second start finds the first.</source>
        <translation>Folder blokady i gniazda, dzięki którym drugie uruchomienie znajduje pierwsze.</translation>
    </message>
    <message>
        <source>The session&apos;s bus.
Only sockets of this machine are used.</source>
        <translation>Magistrala sesji.
Używane są tylko gniazda tego komputera.</translation>
    </message>
    <message>
        <source>The language in whose order names are listed, the first that is set.</source>
        <translation>Język, według którego są porządkowane nazwy; liczy się pierwsza ustawiona zmienna.</translation>
    </message>
    <message>
        <source>How the time of the day is written.</source>
        <translation>Sposób zapisu godziny.</translation>
    </message>
    <message>
        <source>The desktop&apos;s permission to come forward.</source>
        <translation>Zgoda środowiska pulpitu na przejście okna na wierzch.</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>PLIKI</translation>
    </message>
    <message>
        <source>The settings.
A damaged file is kept beside it, as
.Pa settings.ini.damaged-1 ,
and the defaults are used.</source>
        <translation>Ustawienia.
Uszkodzony plik jest przechowywany obok jako
.Pa settings.ini.damaged-1 ,
a używane są wartości domyślne.</translation>
    </message>
    <message>
        <source>Where the window was.</source>
        <translation>Ostatnie położenie okna.</translation>
    </message>
    <message>
        <source>Opens the program at login, without a window; written and removed by its settings.</source>
        <translation>Otwiera program po zalogowaniu, bez okna; plik jest zapisywany i usuwany z poziomu ustawień programu.</translation>
    </message>
    <message>
        <source>Lock and socket of the running program.</source>
        <translation>Blokada i gniazdo działającego programu.</translation>
    </message>
    <message>
        <source>The names of graphics cards; without it they are shown by their numbers.</source>
        <translation>Nazwy kart graficznych; bez niego są pokazywane ich numery.</translation>
    </message>
    <message>
        <source>Every key of an exported snapshot and its unit.</source>
        <translation>Wszystkie klucze eksportowanej migawki i ich jednostki.</translation>
    </message>
    <message>
        <source>Besides these, it writes only what is exported.</source>
        <translation>Oprócz tych plików program zapisuje tylko to, co jest eksportowane.</translation>
    </message>
    <message>
        <source>SIGNALS</source>
        <translation>SYGNAŁY</translation>
    </message>
    <message>
        <source>End the program orderly, within five seconds.
A second one, more than 0.3 seconds after the first, ends it at once.
What is ignored when the program is started (see
.Xr nohup 1 )
stays ignored.</source>
        <translation>Kończą działanie programu w uporządkowany sposób, w ciągu pięciu sekund.
Drugi sygnał, wysłany ponad 0,3 sekundy po pierwszym, kończy je natychmiast.
Sygnały ignorowane przy uruchomieniu programu (patrz
.Xr nohup 1 )
pozostają ignorowane.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>KOD ZAKOŃCZENIA</translation>
    </message>
    <message>
        <source>The program was quit, ended by the first signal, or has brought another one forward.</source>
        <translation>Program został zakończony przez użytkownika lub przez pierwszy sygnał albo przeniósł na wierzch okno innego, już działającego.</translation>
    </message>
    <message>
        <source>There is no display that it can open, or too little memory, too few threads or file descriptors to go on.
One line on standard error says which.</source>
        <translation>Nie ma ekranu, który program mógłby otworzyć, albo jest za mało pamięci, wątków lub deskryptorów plików, by mógł działać dalej.
Jeden wiersz na standardowym wyjściu błędów podaje, czego zabrakło.</translation>
    </message>
    <message>
        <source>An argument is none of the options.</source>
        <translation>Argument nie jest żadną z opcji.</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>ZOBACZ TAKŻE</translation>
    </message>
    <message>
        <source>.Xr free 1 ,
.Xr top 1 ,
.Xr proc 5</source>
        <translation>.Xr free 1 ,
.Xr top 1 ,
.Xr proc 5</translation>
    </message>
</context>
<context>
    <name>MemoryCard</name>
    <message>
        <source>Waiting for memory data</source>
        <translation>Oczekiwanie na dane pamięci</translation>
    </message>
    <message>
        <source>%1 installed</source>
        <extracomment>%1 is an amount of memory</extracomment>
        <translation>%1 zainstalowanej pamięci</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>the title of the card</extracomment>
        <translation>Pamięć</translation>
    </message>
    <message>
        <source>In Use</source>
        <extracomment>under the share of memory that is used</extracomment>
        <translation>W użyciu</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>memory used lately; the short label of a figure</extracomment>
        <translation>Aktywna</translation>
    </message>
    <message>
        <source>Wired</source>
        <extracomment>memory that the system keeps and cannot swap out; the short label of a figure</extracomment>
        <translation>Zarezerwowana</translation>
    </message>
    <message>
        <source>Compressed</source>
        <extracomment>memory that is kept compressed; the short label of a figure</extracomment>
        <translation>Skompresowana</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>memory that programs can have; the short label of a figure</extracomment>
        <translation>Dostępna</translation>
    </message>
    <message>
        <source>Memory history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>Historia pamięci</translation>
    </message>
    <message>
        <source>Top Memory Processes</source>
        <extracomment>the processes that use most memory</extracomment>
        <translation>Procesy: najwięcej pamięci</translation>
    </message>
</context>
<context>
    <name>MenuBarDashboard</name>
    <message>
        <source>Open Dashboard</source>
        <extracomment>a button</extracomment>
        <translation>Otwórz panel</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>a button: read everything now</extracomment>
        <translation>Odśwież</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>opens the settings</extracomment>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a button: end the program</extracomment>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>the short title of a figure</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>the short title of a figure</extracomment>
        <translation>Pamięć</translation>
    </message>
    <message>
        <source>Collecting live data…</source>
        <translation>Zbieranie danych…</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>a button: stop reading</extracomment>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>a button: go on reading</extracomment>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>for screen readers: whether the figures are live</extracomment>
        <translation>Stan</translation>
    </message>
</context>
<context>
    <name>NetworkCard</name>
    <message>
        <source>Not assigned</source>
        <extracomment>no address</extracomment>
        <translation>Nie przydzielono</translation>
    </message>
    <message>
        <source>Waiting for network data</source>
        <translation>Oczekiwanie na dane sieci</translation>
    </message>
    <message>
        <source>Active interface: %1</source>
        <extracomment>%1 is the name of a network interface</extracomment>
        <translation>Aktywny interfejs: %1</translation>
    </message>
    <message>
        <source>No active interface</source>
        <translation>Brak aktywnego interfejsu</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>the title of the card</extracomment>
        <translation>Sieć</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>the speed at which data comes in</extracomment>
        <translation>Pobieranie</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>the speed at which data goes out</extracomment>
        <translation>Wysyłanie</translation>
    </message>
    <message>
        <source>Hostname</source>
        <translation>Nazwa hosta</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>a host without a name</extracomment>
        <translation>Nieznana</translation>
    </message>
    <message>
        <source>IPv4</source>
        <translation>IPv4</translation>
    </message>
    <message>
        <source>IPv6</source>
        <translation>IPv6</translation>
    </message>
    <message>
        <source>Interfaces</source>
        <extracomment>the number of network interfaces; the short label of a figure</extracomment>
        <translation>Interfejsy</translation>
    </message>
</context>
<context>
    <name>PowerView</name>
    <message>
        <source>AC connected</source>
        <extracomment>the computer is plugged in</extracomment>
        <translation>Zasilanie sieciowe</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Zasilanie z baterii</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a time, such as 1h 20m</extracomment>
        <translation>Do naładowania: %1</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <translation>Pozostało: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln charge cycle(s)</source>
        <comment>of the battery</comment>
        <translation>
            <numerusform>%Ln cykl ładowania</numerusform>
            <numerusform>%Ln cykle ładowania</numerusform>
            <numerusform>%Ln cykli ładowania</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProcessExplorer</name>
    <message>
        <source>CPU</source>
        <extracomment>sort by the share of the processor</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>sort by the memory used</extracomment>
        <translation>Pamięć</translation>
    </message>
    <message>
        <source>Waiting for Processes</source>
        <translation>Oczekiwanie na procesy</translation>
    </message>
    <message>
        <source>No process data is available yet.</source>
        <translation>Nie ma jeszcze danych o procesach.</translation>
    </message>
    <message>
        <source>No Matching Processes</source>
        <translation>Brak pasujących procesów</translation>
    </message>
    <message>
        <source>No process matches “%1”.</source>
        <extracomment>%1 is what the user has typed</extracomment>
        <translation>Żaden proces nie pasuje do „%1”.</translation>
    </message>
    <message>
        <source>Process Explorer</source>
        <extracomment>the title of the card</extracomment>
        <translation>Eksplorator procesów</translation>
    </message>
    <message>
        <source>Live process activity</source>
        <translation>Aktywność procesów na żywo</translation>
    </message>
    <message>
        <source>Filter processes</source>
        <extracomment>shown in an empty field that is typed into</extracomment>
        <translation>Filtruj procesy</translation>
    </message>
    <message>
        <source>Sort</source>
        <extracomment>for screen readers: by what the list is sorted</extracomment>
        <translation>Sortowanie</translation>
    </message>
</context>
<context>
    <name>ProcessHeader</name>
    <message>
        <source>Process</source>
        <extracomment>the heading of a column</extracomment>
        <translation>Proces</translation>
    </message>
    <message>
        <source>PID</source>
        <extracomment>the heading of a column: the number of a process</extracomment>
        <translation>PID</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>the heading of a column: the share of the processor</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>the heading of a column: the memory used</extracomment>
        <translation>Pamięć</translation>
    </message>
</context>
<context>
    <name>ProcessMiniList</name>
    <message>
        <source>Waiting for process data…</source>
        <translation>Oczekiwanie na dane procesów…</translation>
    </message>
</context>
<context>
    <name>ProcessTableView</name>
    <message numerus="yes">
        <source>%Ln process(es)</source>
        <comment>for screen readers: in the list</comment>
        <translation>
            <numerusform>%Ln proces</numerusform>
            <numerusform>%Ln procesy</numerusform>
            <numerusform>%Ln procesów</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, PID %2, CPU %3, memory %4</source>
        <extracomment>for screen readers: the name of a process, its number, its share of the processor, its memory</extracomment>
        <translation>%1, PID %2, CPU %3, pamięć %4</translation>
    </message>
    <message>
        <source>Processes</source>
        <extracomment>the list, for screen readers</extracomment>
        <translation>Procesy</translation>
    </message>
    <message>
        <source>100% is one processor: a process that keeps two busy has 200%. A click sorts by it.</source>
        <extracomment>what a process&apos;s percentage is of; the title of a column is pointed at</extracomment>
        <translation>100% to jeden procesor: proces zajmujący dwa ma 200%. Kliknięcie sortuje według tej kolumny.</translation>
    </message>
    <message>
        <source>The memory that a process has in use now. A click sorts by it.</source>
        <extracomment>the title of a column is pointed at</extracomment>
        <translation>Pamięć, której proces teraz używa. Kliknięcie sortuje według tej kolumny.</translation>
    </message>
    <message>
        <source>A full bar is the largest of the processes shown.</source>
        <translation>Pełny pasek oznacza największy z pokazanych procesów.</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>a command: the whole row of a process</extracomment>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <extracomment>a command</extracomment>
        <translation>Kopiuj nazwę</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <extracomment>a command: where the program of a process lies</extracomment>
        <translation>Kopiuj ścieżkę</translation>
    </message>
    <message>
        <source>Filter by This Name</source>
        <extracomment>a command: show the processes of that name only</extracomment>
        <translation>Filtruj według tej nazwy</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <extracomment>a button</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>a button</extracomment>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>a button</extracomment>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>JSON document</source>
        <extracomment>a kind of file</extracomment>
        <translation>Dokument JSON</translation>
    </message>
    <message>
        <source>All files</source>
        <extracomment>a kind of file: any</extracomment>
        <translation>Wszystkie pliki</translation>
    </message>
    <message>
        <source>%1, folder</source>
        <extracomment>for screen readers; %1 is the name of a folder</extracomment>
        <translation>%1, folder</translation>
    </message>
    <message>
        <source>Folders and files</source>
        <extracomment>for screen readers: the contents of a folder</extracomment>
        <translation>Foldery i pliki</translation>
    </message>
    <message>
        <source>Warning</source>
        <extracomment>for screen readers: the sign beside a warning</extracomment>
        <translation>Ostrzeżenie</translation>
    </message>
    <message>
        <source>The disk does not answer. Please choose another folder, or try again.</source>
        <translation>Dysk nie odpowiada. Wybierz inny folder lub spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Folder nie istnieje.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>To nie jest folder.</translation>
    </message>
    <message>
        <source>You do not have the permission to look into this folder.</source>
        <translation>Nie masz uprawnień do przeglądania tego folderu.</translation>
    </message>
    <message>
        <source>The folder cannot be read.</source>
        <translation>Nie można odczytać folderu.</translation>
    </message>
    <message>
        <source>You do not have the permission to make a folder here.</source>
        <translation>Nie masz uprawnień do tworzenia tu folderów.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Nazwa jest za długa.</translation>
    </message>
    <message>
        <source>The folder could not be made.</source>
        <translation>Nie udało się utworzyć folderu.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Katalog domowy</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumenty</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Pulpit</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Pobrane</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
    <message>
        <source>Looking for your folders…</source>
        <translation>Szukanie folderów…</translation>
    </message>
    <message>
        <source>Last used</source>
        <extracomment>the folder that was saved to before</extracomment>
        <translation>Ostatnio używany</translation>
    </message>
    <message>
        <source>Looking into the folder…</source>
        <translation>Odczytywanie folderu…</translation>
    </message>
    <message>
        <source>You do not have the permission to save in this folder.</source>
        <translation>Nie masz uprawnień do zapisu w tym folderze.</translation>
    </message>
    <message numerus="yes">
        <source>Only the first %Ln of this folder are shown.</source>
        <comment>files and folders</comment>
        <translation>
            <numerusform>Pokazano tylko %Ln pierwszy element tego folderu.</numerusform>
            <numerusform>Pokazano tylko %Ln pierwsze elementy tego folderu.</numerusform>
            <numerusform>Pokazano tylko %Ln pierwszych elementów tego folderu.</numerusform>
        </translation>
    </message>
    <message>
        <source>New Folder</source>
        <extracomment>the title of a box</extracomment>
        <translation>Nowy folder</translation>
    </message>
    <message>
        <source>Name of the new folder:</source>
        <translation>Nazwa nowego folderu:</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Utwórz</translation>
    </message>
    <message>
        <source>Making the folder…</source>
        <translation>Tworzenie folderu…</translation>
    </message>
    <message>
        <source>Please type a name for the file.</source>
        <translation>Podaj nazwę pliku.</translation>
    </message>
    <message>
        <source>Please choose a folder first.</source>
        <translation>Najpierw wybierz folder.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <extracomment>whether a file can be saved there</extracomment>
        <translation>Sprawdzanie…</translation>
    </message>
    <message>
        <source>Places</source>
        <extracomment>for screen readers: the list of well-known folders</extracomment>
        <translation>Miejsca</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Zapisz</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <extracomment>of the file; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Nazwa:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <extracomment>the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Folder:</translation>
    </message>
    <message>
        <source>Parent folder (Alt+Up)</source>
        <extracomment>a button; Alt+Up is what can be pressed instead</extracomment>
        <translation>Folder nadrzędny (Alt+strzałka w górę)</translation>
    </message>
    <message>
        <source>New folder</source>
        <extracomment>a button</extracomment>
        <translation>Nowy folder</translation>
    </message>
    <message>
        <source>Replace File</source>
        <extracomment>the title of a box</extracomment>
        <translation>Zastępowanie pliku</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists. Do you want to replace it?</source>
        <extracomment>%1 is the name of a file</extracomment>
        <translation>„%1” już istnieje. Czy zastąpić ten plik?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>Za&amp;stąp</translation>
    </message>
</context>
<context>
    <name>SettingsForm</name>
    <message numerus="yes">
        <source>Chart history: %Ln sample(s)</source>
        <comment>how many readings the charts keep</comment>
        <translation>
            <numerusform>Historia wykresów: %Ln próbka</numerusform>
            <numerusform>Historia wykresów: %Ln próbki</numerusform>
            <numerusform>Historia wykresów: %Ln próbek</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 second</source>
        <extracomment>half a second, as a number</extracomment>
        <translation>%1 sekundy</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <extracomment>a number of seconds that is not whole</extracomment>
        <translation>%1 sekundy</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the theme: as the desktop has it</extracomment>
        <translation>Systemowy</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>the theme</extracomment>
        <translation>Jasny</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>the theme</extracomment>
        <translation>Ciemny</translation>
    </message>
    <message numerus="yes">
        <source>%Ln second(s)</source>
        <comment>how often the figures are read</comment>
        <translation>
            <numerusform>%Ln sekunda</numerusform>
            <numerusform>%Ln sekundy</numerusform>
            <numerusform>%Ln sekund</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Open at Login</source>
        <extracomment>a switch: start the program when the user logs in</extracomment>
        <translation>Otwieraj po zalogowaniu</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <extracomment>settings that could not be stored; %1 is a sentence that says why</extracomment>
        <translation>Nie zapisano: %1</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Wygląd</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>whether colours are dark or light</extracomment>
        <translation>Motyw</translation>
    </message>
    <message>
        <source>Monitoring</source>
        <translation>Monitorowanie</translation>
    </message>
    <message>
        <source>Refresh interval</source>
        <extracomment>how often the figures are read</extracomment>
        <translation>Okres odświeżania</translation>
    </message>
    <message>
        <source>Chart history</source>
        <extracomment>how many readings the charts keep</extracomment>
        <translation>Historia wykresów</translation>
    </message>
    <message numerus="yes">
        <source>%Ln sample(s)</source>
        <comment>for screen readers: how many readings the charts keep</comment>
        <translation>
            <numerusform>%Ln próbka</numerusform>
            <numerusform>%Ln próbki</numerusform>
            <numerusform>%Ln próbek</numerusform>
        </translation>
    </message>
    <message>
        <source>Include point-to-point and tunnel interfaces</source>
        <extracomment>a switch: network interfaces, such as those of a VPN</extracomment>
        <translation>Uwzględniaj interfejsy punkt-punkt i tunele</translation>
    </message>
    <message>
        <source>Show menu bar dashboard</source>
        <extracomment>a switch: the icon in the tray and its panel</extracomment>
        <translation>Pokazuj panel w zasobniku</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Dane</translation>
    </message>
    <message>
        <source>Network privacy</source>
        <extracomment>a label</extracomment>
        <translation>Prywatność w sieci</translation>
    </message>
    <message>
        <source>No public IP lookup</source>
        <extracomment>the program does not ask the internet for the address</extracomment>
        <translation>Bez sprawdzania publicznego IP</translation>
    </message>
    <message>
        <source>Process source</source>
        <extracomment>a label: where figures of processes come from</extracomment>
        <translation>Źródło procesów</translation>
    </message>
    <message>
        <source>Native %1 %2</source>
        <extracomment>the name of the system, and of what tells of processes: &quot;Native Linux procfs&quot;</extracomment>
        <translation>%1 %2 (natywnie)</translation>
    </message>
    <message>
        <source>GPU telemetry</source>
        <extracomment>a label: where figures of graphics come from</extracomment>
        <translation>Dane GPU</translation>
    </message>
    <message>
        <source>Export Current Snapshot…</source>
        <extracomment>a button</extracomment>
        <translation>Eksportuj bieżącą migawkę…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>a heading: about the program</extracomment>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Application</source>
        <extracomment>a label</extracomment>
        <translation>Program</translation>
    </message>
    <message>
        <source>This desktop has no tray to show it in.</source>
        <translation>To środowisko pulpitu nie ma zasobnika, w którym można go pokazać.</translation>
    </message>
</context>
<context>
    <name>SoftwareCentre</name>
    <message>
        <source>See what this computer is doing, live and at a glance</source>
        <translation>Zobacz na żywo i jednym spojrzeniem, co robi ten komputer</translation>
    </message>
    <message>
        <source>Vantor shows what the computer is doing on one page, in a window that costs next to nothing to keep open: processor, memory, network, graphics, storage and the system with its battery, each with short histories where there is something to follow.</source>
        <translation>Vantor pokazuje na jednej stronie, co robi komputer, w oknie, które może stale pozostawać otwarte niemal bez kosztów: procesor, pamięć, sieć, grafikę, dyski i system z baterią, wszędzie z krótką historią tam, gdzie jest co śledzić.</translation>
    </message>
    <message>
        <source>What there is beside the cards:</source>
        <translation>Oprócz kart są też:</translation>
    </message>
    <message>
        <source>a process explorer with the heaviest processes, and a filter over all of them</source>
        <translation>eksplorator procesów: najbardziej obciążające oraz filtr obejmujący wszystkie</translation>
    </message>
    <message>
        <source>a tray icon with a panel of the most important figures</source>
        <translation>ikona w zasobniku z panelem najważniejszych wartości</translation>
    </message>
    <message>
        <source>export of all figures as one JSON document</source>
        <translation>eksport wszystkich wartości w jednym dokumencie JSON</translation>
    </message>
    <message>
        <source>It is local: it opens no internet connection, starts no other program and collects nothing, and the kernel enforces that. A figure that the system does not publish is shown as words, never as zero. Everything is reached by keyboard, and told to screen readers.</source>
        <translation>Działa lokalnie: nie otwiera połączeń z internetem, nie uruchamia innych programów i niczego nie gromadzi, a pilnuje tego jądro systemu. Wartość, której system nie podaje, jest opisana słowami i nigdy nie jest pokazywana jako zero. Wszystko jest dostępne z klawiatury i odczytywane przez czytniki ekranu.</translation>
    </message>
    <message>
        <source>The dashboard of a laptop, dark</source>
        <translation>Panel na laptopie, motyw ciemny</translation>
    </message>
    <message>
        <source>The dashboard of a laptop, light</source>
        <translation>Panel na laptopie, motyw jasny</translation>
    </message>
    <message>
        <source>The first release.</source>
        <translation>Pierwsze wydanie.</translation>
    </message>
</context>
<context>
    <name>StorageCard</name>
    <message>
        <source>Waiting for storage data</source>
        <translation>Oczekiwanie na dane dysków</translation>
    </message>
    <message numerus="yes">
        <source>%Ln mounted volume(s)</source>
        <translation>
            <numerusform>%Ln zamontowany wolumen</numerusform>
            <numerusform>%Ln zamontowane wolumeny</numerusform>
            <numerusform>%Ln zamontowanych wolumenów</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <extracomment>the title of the card</extracomment>
        <translation>Dyski</translation>
    </message>
    <message>
        <source>No Volumes</source>
        <extracomment>there is no disk to be shown</extracomment>
        <translation>Brak wolumenów</translation>
    </message>
</context>
<context>
    <name>SystemCard</name>
    <message>
        <source>Waiting for system data</source>
        <translation>Oczekiwanie na dane systemu</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the title of the card: the whole machine</extracomment>
        <translation>System</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>a text that the machine does not tell</extracomment>
        <translation>Nieznane</translation>
    </message>
    <message>
        <source>Operating System</source>
        <translation>System operacyjny</translation>
    </message>
    <message>
        <source>Kernel Build</source>
        <translation>Wersja jądra</translation>
    </message>
    <message>
        <source>Architecture</source>
        <extracomment>of the processor</extracomment>
        <translation>Architektura</translation>
    </message>
    <message>
        <source>Uptime</source>
        <extracomment>the time since the machine was started</extracomment>
        <translation>Czas działania</translation>
    </message>
    <message>
        <source>Thermal State</source>
        <extracomment>how hot the machine is, in words</extracomment>
        <translation>Stan termiczny</translation>
    </message>
    <message>
        <source>Low Power Mode</source>
        <translation>Oszczędzanie energii</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>the low power mode</extracomment>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>the low power mode</extracomment>
        <translation>Wyłączone</translation>
    </message>
</context>
<context>
    <name>VantorApp</name>
    <message>
        <source>Vantor (collecting live data)</source>
        <extracomment>the name of the window until figures have been read</extracomment>
        <translation>Vantor (zbieranie danych)</translation>
    </message>
    <message>
        <source>Vantor Settings</source>
        <extracomment>the title of a window</extracomment>
        <translation>Ustawienia programu Vantor</translation>
    </message>
    <message>
        <source>Vantor Help</source>
        <extracomment>the title of a window</extracomment>
        <translation>Pomoc programu Vantor</translation>
    </message>
</context>
<context>
    <name>VolumeView</name>
    <message>
        <source>%1 used</source>
        <extracomment>%1 is an amount, of a disk</extracomment>
        <translation>%1 zajęte</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount, of a disk</extracomment>
        <translation>%1 wolne</translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <extracomment>%1 is where a disk is found, such as /home</extracomment>
        <translation>%1 (tylko do odczytu)</translation>
    </message>
    <message>
        <source>%1 full, %2, %3</source>
        <extracomment>for screen readers: %1 is a share such as 45%, %2 &quot;120 GB used&quot;, %3 &quot;90 GB free&quot;</extracomment>
        <translation>zapełniony w %1, %2, %3</translation>
    </message>
</context>
</TS>
