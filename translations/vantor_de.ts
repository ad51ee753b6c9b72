<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About Vantor</source>
        <extracomment>the title of a window</extracomment>
        <translation>Info zu Vantor</translation>
    </message>
    <message>
        <source>Version %1 (%2)

Built by the Vantor founders. Everything it shows, it reads on this machine, and it stays here.

Confined by the kernel: %3</source>
        <extracomment>%1 is the version, %2 the build, %3 is &quot;yes&quot;, &quot;no&quot; or what is missing</extracomment>
        <translation>Version %1 (%2)

Entwickelt von den Gründern von Vantor. Alles, was Vantor anzeigt, liest es auf diesem Rechner, und dort bleibt es auch.

Vom Kernel abgeschottet: %3</translation>
    </message>
</context>
<context>
    <name>AppCommands</name>
    <message>
        <source>About Vantor</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Info zu Vantor</translation>
    </message>
    <message>
        <source>Refresh Now</source>
        <extracomment>a command of the menu: read everything now</extracomment>
        <translation>Jetzt aktualisieren</translation>
    </message>
    <message>
        <source>Export Snapshot…</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Momentaufnahme exportieren&#xa0;…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Vantor Help</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Hilfe zu Vantor</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Close Window</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>a menu; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>a menu; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Hilfe</translation>
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
            <numerusform>%Ln Byte</numerusform>
            <numerusform>%Ln Byte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CPUCard</name>
    <message>
        <source>%1 physical • %2 logical cores</source>
        <extracomment>the numbers of cores; %1 stays in front where both are read as one phrase</extracomment>
        <translation>%1 physische • %2 logische Kerne</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>the title of the card</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>CPU Load</source>
        <extracomment>under the share of the processor that is busy</extracomment>
        <translation>CPU-Last</translation>
    </message>
    <message>
        <source>%1 GHz</source>
        <extracomment>a frequency</extracomment>
        <translation>%1 GHz</translation>
    </message>
    <message>
        <source>User</source>
        <extracomment>the share of time spent in programs</extracomment>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the share of time spent in the operating system</extracomment>
        <translation>System</translation>
    </message>
    <message>
        <source>Nominal</source>
        <extracomment>the frequency that the processor is sold with</extracomment>
        <translation>Nenntakt</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Load avg %1</source>
        <extracomment>%1 are the averages of the last minutes, such as 0.52 0.58 0.59</extracomment>
        <translation>Systemlast %1</translation>
    </message>
    <message>
        <source>CPU history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>CPU-Verlauf</translation>
    </message>
    <message>
        <source>Core Activity</source>
        <extracomment>how busy each logical processor is</extracomment>
        <translation>Kernaktivität</translation>
    </message>
    <message>
        <source>Top CPU Processes</source>
        <extracomment>the processes that keep the processor busiest</extracomment>
        <translation>Top-Prozesse (CPU)</translation>
    </message>
</context>
<context>
    <name>CardTexts</name>
    <message>
        <source>Not published</source>
        <extracomment>a figure that the machine does not tell</extracomment>
        <translation>Keine Angabe</translation>
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
        <translation>jetzt</translation>
    </message>
    <message>
        <source>%1 ago</source>
        <extracomment>%1 is a time: when a sample of a chart was taken</extracomment>
        <translation>vor %1</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>from the smallest to the largest value</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>The width is the last %1.</source>
        <extracomment>of a chart; %1 is a time</extracomment>
        <translation>Die Breite entspricht den letzten %1.</translation>
    </message>
    <message>
        <source>The height is %1 to %2.</source>
        <extracomment>of a chart; both are values: 0 % and 100 %</extracomment>
        <translation>Die Höhe reicht von %1 bis %2.</translation>
    </message>
    <message>
        <source>The height is the smallest to the largest value shown.</source>
        <extracomment>of a chart</extracomment>
        <translation>Die Höhe reicht vom kleinsten bis zum größten gezeigten Wert.</translation>
    </message>
    <message>
        <source>The height is the smallest to the largest value shown: %1.</source>
        <extracomment>of a chart; %1 are these two values</extracomment>
        <translation>Die Höhe reicht vom kleinsten bis zum größten gezeigten Wert: %1.</translation>
    </message>
</context>
<context>
    <name>CoreActivity</name>
    <message>
        <source>Core %1: %2</source>
        <extracomment>%1 is the number of a logical processor, %2 how busy it is</extracomment>
        <translation>Kern %1: %2</translation>
    </message>
    <message>
        <source>Core Activity</source>
        <extracomment>how busy each logical processor is</extracomment>
        <translation>Kernaktivität</translation>
    </message>
</context>
<context>
    <name>CoreWords</name>
    <message>
        <source>Detecting processor…</source>
        <translation>Prozessor wird erkannt&#xa0;…</translation>
    </message>
    <message>
        <source>Detecting host…</source>
        <translation>Rechner wird erkannt&#xa0;…</translation>
    </message>
    <message>
        <source>Detecting hardware…</source>
        <translation>Hardware wird erkannt&#xa0;…</translation>
    </message>
    <message>
        <source>Detecting macOS…</source>
        <translation>macOS wird erkannt&#xa0;…</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>what the machine does not tell</extracomment>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Nominal</source>
        <extracomment>how hot the machine is: as usual</extracomment>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Fair</source>
        <extracomment>how hot the machine is: a little</extracomment>
        <translation>Erhöht</translation>
    </message>
    <message>
        <source>Serious</source>
        <extracomment>how hot the machine is: it slows down</extracomment>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Critical</source>
        <extracomment>how hot the machine is: it may turn itself off</extracomment>
        <translation>Kritisch</translation>
    </message>
    <message>
        <source>Battery</source>
        <extracomment>of a battery that has no name</extracomment>
        <translation>Akku</translation>
    </message>
    <message>
        <source>Live Linux performance intelligence</source>
        <translation>Linux-Leistungsdaten in Echtzeit</translation>
    </message>
    <message>
        <source>Live macOS performance intelligence</source>
        <translation>macOS-Leistungsdaten in Echtzeit</translation>
    </message>
    <message>
        <source>Unknown Computer</source>
        <translation>Unbekannter Rechner</translation>
    </message>
    <message>
        <source>Unknown Mac</source>
        <translation>Unbekannter Mac</translation>
    </message>
    <message>
        <source>No Graphics Device</source>
        <translation>Kein Grafikgerät</translation>
    </message>
    <message>
        <source>No Metal Device</source>
        <translation>Kein Metal-Gerät</translation>
    </message>
    <message>
        <source>The active graphics driver did not expose a graphics device.</source>
        <translation>Der aktive Grafiktreiber hat kein Grafikgerät gemeldet.</translation>
    </message>
    <message>
        <source>The active graphics driver did not expose a Metal device.</source>
        <translation>Der aktive Grafiktreiber hat kein Metal-Gerät gemeldet.</translation>
    </message>
    <message>
        <source>No browsable mounted volume was returned by Linux.</source>
        <translation>Linux hat keinen durchsuchbaren eingehängten Datenträger gemeldet.</translation>
    </message>
    <message>
        <source>No browsable mounted volume was returned by macOS.</source>
        <translation>macOS hat keinen durchsuchbaren eingehängten Datenträger gemeldet.</translation>
    </message>
    <message>
        <source>Load of your own processes</source>
        <extracomment>the load of the graphics device is known for the user&apos;s processes only</extracomment>
        <translation>Last eigener Prozesse</translation>
    </message>
    <message>
        <source>Export System Snapshot</source>
        <extracomment>the title of the dialog that asks where to save</extracomment>
        <translation>System-Momentaufnahme exportieren</translation>
    </message>
    <message>
        <source>Snapshot Export Failed</source>
        <extracomment>the title of an alert</extracomment>
        <translation>Export der Momentaufnahme fehlgeschlagen</translation>
    </message>
    <message>
        <source>yes</source>
        <extracomment>whether the kernel confines the program, behind a colon</extracomment>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <extracomment>whether the kernel confines the program, behind a colon</extracomment>
        <translation>nein</translation>
    </message>
    <message>
        <source>Something that is not an ordinary file has that name.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Etwas, das keine gewöhnliche Datei ist, trägt diesen Namen.</translation>
    </message>
    <message>
        <source>You do not have the permission to write there.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Sie haben keine Berechtigung, dort zu schreiben.</translation>
    </message>
    <message>
        <source>You have used up the space that you may use on the disk.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Sie haben den Platz aufgebraucht, den Sie auf dem Datenträger belegen dürfen.</translation>
    </message>
    <message>
        <source>The file would be larger than it may be there.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Die Datei wäre größer, als dort erlaubt ist.</translation>
    </message>
    <message>
        <source>The disk could not be written to.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Auf den Datenträger konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>A folder has that name.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Ein Ordner trägt diesen Namen.</translation>
    </message>
    <message>
        <source>The symbolic links there lead in a circle.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Die symbolischen Verknüpfungen dort führen im Kreis.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Es sind zu viele Dateien geöffnet.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message>
        <source>The disk is not there any more.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Der Datenträger ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Der Ordner existiert nicht.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Es ist nicht genügend Speicher frei.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Es ist nicht genügend Platz auf dem Datenträger.</translation>
    </message>
    <message>
        <source>The place for it is not a folder.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Der Speicherort ist kein Ordner.</translation>
    </message>
    <message>
        <source>The disk can only be read.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Der Datenträger ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Too many damaged files are kept there.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>Dort werden bereits zu viele beschädigte Dateien aufbewahrt.</translation>
    </message>
    <message>
        <source>The program&apos;s own file has no name that can be kept.</source>
        <extracomment>why the program cannot be opened at login</extracomment>
        <translation>Die Programmdatei hat keinen Namen, der gespeichert werden kann.</translation>
    </message>
    <message>
        <source>The file would be too large.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>Die Datei wäre zu groß.</translation>
    </message>
    <message>
        <source>The disk does not answer.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>Der Datenträger antwortet nicht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved. %2</source>
        <extracomment>%1 is a file&apos;s name, %2 the sentence that says why</extracomment>
        <translation>„%1“ konnte nicht gespeichert werden. %2</translation>
    </message>
    <message>
        <source>The system gave the reason &quot;%1&quot; (%2).</source>
        <extracomment>%1 is the system&apos;s own text, %2 its number</extracomment>
        <translation>Das System nannte den Grund „%1“ (%2).</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>Nicht bekannt: %1</translation>
    </message>
    <message>
        <source>Not changed: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>Nicht geändert: %1</translation>
    </message>
    <message>
        <source>Not changed yet: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>Noch nicht geändert: %1</translation>
    </message>
    <message>
        <source>in part (without %1)</source>
        <extracomment>whether the kernel confines the program, behind a colon; %1 is a list of names</extracomment>
        <translation>teilweise (ohne %1)</translation>
    </message>
    <message>
        <source>Nominal is the frequency that the processor is made for, as its driver or its name tells it, not the present one.</source>
        <extracomment>what the figure &quot;Nominal&quot; of the processor means</extracomment>
        <translation>Der Nenntakt ist die Frequenz, für die der Prozessor gebaut ist, laut seinem Treiber oder seinem Namen, nicht die momentane.</translation>
    </message>
    <message>
        <source>Wired is memory that cannot be moved out: the kernel&apos;s own and what programs have locked.</source>
        <extracomment>what the figure &quot;Wired&quot; of the memory means</extracomment>
        <translation>„Reserviert“ ist Speicher, der nicht ausgelagert werden kann: der des Kernels und der, den Programme gesperrt haben.</translation>
    </message>
    <message>
        <source>Compressed is the memory that zram and zswap keep compressed pages in.</source>
        <extracomment>what the figure &quot;Compressed&quot; of the memory means</extracomment>
        <translation>„Komprimiert“ ist der Speicher, in dem zram und zswap komprimierte Seiten ablegen.</translation>
    </message>
    <message>
        <source>Thermal State compares the thermal zones with their own limits: Fair where the kernel begins to slow down, Serious where it is nearly too hot, Critical where it switches off.</source>
        <extracomment>what the figure &quot;Thermal State&quot; means</extracomment>
        <translation>Der Wärmezustand vergleicht die Wärmezonen mit ihren eigenen Grenzen: „Erhöht“, wenn der Kernel zu drosseln beginnt, „Hoch“, wenn es fast zu heiß ist, „Kritisch“, wenn er den Rechner ausschaltet.</translation>
    </message>
    <message>
        <source>Low Power Mode is on while the firmware&apos;s profile or the processors&apos; own preference is to save power.</source>
        <extracomment>what the figure &quot;Low Power Mode&quot; means</extracomment>
        <translation>Der Energiesparmodus ist aktiviert, solange das Profil der Firmware oder die Vorgabe der Prozessoren selbst auf Energiesparen steht.</translation>
    </message>
</context>
<context>
    <name>DashboardHeader</name>
    <message>
        <source>Paused</source>
        <extracomment>the state: the figures stand still</extracomment>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Live</source>
        <extracomment>the state: the figures follow the machine</extracomment>
        <translation>Live</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>a button: go on reading</extracomment>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>a button: stop reading</extracomment>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>a number of seconds, short</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>a button: read everything now</extracomment>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>a button: save a snapshot to a file</extracomment>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a button: end the program</extracomment>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>for screen readers: whether the figures are live</extracomment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Refresh interval</source>
        <extracomment>how often the figures are read</extracomment>
        <translation>Aktualisierungsintervall</translation>
    </message>
</context>
<context>
    <name>DesktopFile</name>
    <message>
        <source>Performance Dashboard</source>
        <extracomment>the kind of program</extracomment>
        <translation>Leistungs-Dashboard</translation>
    </message>
    <message>
        <source>See what this computer is doing, live and at a glance</source>
        <translation>Zeigt live und auf einen Blick, was dieser Rechner gerade tut</translation>
    </message>
    <message>
        <source>performance;system;monitor;processor;CPU;memory;RAM;network;graphics;GPU;disk;storage;battery;temperature;process;task;load;</source>
        <translation>Leistung;System;Monitor;Überwachung;Systemüberwachung;Auslastung;Prozessor;CPU;Speicher;Arbeitsspeicher;RAM;Netzwerk;Grafik;GPU;Festplatte;Datenträger;Akku;Batterie;Temperatur;Prozess;Task;Last;</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Export Current Snapshot…</source>
        <translation>Aktuelle Momentaufnahme exportieren&#xa0;…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Run in the Background</source>
        <translation>Im Hintergrund ausführen</translation>
    </message>
</context>
<context>
    <name>Formatters</name>
    <message>
        <source>Unknown</source>
        <extracomment>a time that the machine does not tell</extracomment>
        <translation>Unbekannt</translation>
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
        <translation>%1d %2h %3m</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <extracomment>a time of hours and minutes, as short as possible</extracomment>
        <translation>%1h %2m</translation>
    </message>
    <message>
        <source>%1m</source>
        <extracomment>a time of minutes, as short as possible</extracomment>
        <translation>%1m</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>a percentage: %1 is the number, the sign behind it stays</extracomment>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>GPUCard</name>
    <message>
        <source>Waiting for graphics data</source>
        <translation>Warten auf Grafikdaten</translation>
    </message>
    <message>
        <source>Graphics</source>
        <extracomment>the title of the card</extracomment>
        <translation>Grafik</translation>
    </message>
    <message>
        <source>GPU Load</source>
        <extracomment>under the share of the graphics device that is busy</extracomment>
        <translation>GPU-Last</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>VRAM Used</source>
        <extracomment>memory of the graphics device</extracomment>
        <translation>VRAM belegt</translation>
    </message>
    <message>
        <source>VRAM Total</source>
        <extracomment>memory of the graphics device</extracomment>
        <translation>VRAM gesamt</translation>
    </message>
    <message>
        <source>GPU history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>GPU-Verlauf</translation>
    </message>
    <message>
        <source>Graphics Devices</source>
        <extracomment>the heading of a list</extracomment>
        <translation>Grafikgeräte</translation>
    </message>
</context>
<context>
    <name>GraphicsDeviceView</name>
    <message>
        <source>Recommended Working Set</source>
        <extracomment>how much graphics memory the driver recommends to use</extracomment>
        <translation>Empfohlene Belegung</translation>
    </message>
    <message>
        <source>Unified memory architecture</source>
        <extracomment>graphics that share the memory of the processor</extracomment>
        <translation>Gemeinsamer Speicher</translation>
    </message>
    <message>
        <source>Discrete graphics</source>
        <extracomment>a graphics device with memory of its own</extracomment>
        <translation>Dedizierte Grafik</translation>
    </message>
</context>
<context>
    <name>HelpTexts</name>
    <message>
        <source>%1 or %2 seconds</source>
        <extracomment>%1 are all numbers but the last: &quot;0.5, 1, 2, 5 or 10 seconds&quot;</extracomment>
        <translation>%1 oder %2 Sekunden</translation>
    </message>
    <message>
        <source>Live Monitoring</source>
        <translation>Überwachung in Echtzeit</translation>
    </message>
    <message>
        <source>Choose a refresh interval from %1. Pause stops periodic sampling, Refresh Now requests a fresh snapshot, and the charts keep only the configured bounded history.</source>
        <extracomment>%1 is &quot;0.5, 1, 2, 5 or 10 seconds&quot;</extracomment>
        <translation>Als Aktualisierungsintervall stehen %1 zur Wahl. „Anhalten“ beendet die regelmäßige Messung vorübergehend, „Jetzt aktualisieren“ fordert sofort neue Messwerte an, und die Diagramme behalten nur den eingestellten, begrenzten Verlauf.</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Dashboard</translation>
    </message>
    <message>
        <source>CPU shows total and per-logical-processor activity. Memory shows current pressure-related usage values. Network reports local interface traffic. GPU values are shown only when %1 or the active graphics driver publishes them. Storage and power data update at lower cadences because they do not require sub-second polling.</source>
        <extracomment>%1 is what publishes graphics figures, such as NVML</extracomment>
        <translation>„CPU“ zeigt die Aktivität insgesamt und je logischem Prozessor. „Speicher“ zeigt die aktuellen Werte, an denen sich die Speicherauslastung ablesen lässt. „Netzwerk“ zeigt den Datenverkehr der lokalen Schnittstellen. GPU-Werte werden nur angezeigt, wenn %1 oder der aktive Grafiktreiber sie bereitstellt. Datenträger- und Energiedaten werden seltener aktualisiert, da sie keine Abfrage in Sekundenbruchteilen erfordern.</translation>
    </message>
    <message>
        <source>Process Explorer</source>
        <translation>Prozess-Explorer</translation>
    </message>
    <message>
        <source>The process list uses native %1 %2 data. Sort by CPU or memory and use the filter field to locate a running process. Vantor does not launch external command-line tools to collect process telemetry.</source>
        <extracomment>%1 is the name of the system, %2 of what tells of processes: &quot;Linux procfs&quot;</extracomment>
        <translation>Die Prozessliste verwendet native %1-Daten aus %2. Sortieren Sie nach CPU oder Speicher und verwenden Sie das Filterfeld, um einen laufenden Prozess zu finden. Vantor startet keine externen Befehlszeilenprogramme, um Prozessdaten zu erfassen.</translation>
    </message>
    <message>
        <source>Menu Bar and Windows</source>
        <translation>Infobereich und Fenster</translation>
    </message>
    <message>
        <source>When the menu bar dashboard is enabled, closing the main window keeps Vantor available from the menu bar. When it is disabled, closing the last window exits the app. Use Quit or %1 to terminate Vantor completely.</source>
        <extracomment>%1 is what is pressed to quit, such as Ctrl+Q</extracomment>
        <translation>Wenn das Dashboard im Infobereich aktiviert ist, bleibt Vantor nach dem Schließen des Hauptfensters im Infobereich verfügbar. Ist es deaktiviert, wird die Anwendung mit dem Schließen des letzten Fensters beendet. Mit „Beenden“ oder %1 beenden Sie Vantor vollständig.</translation>
    </message>
    <message>
        <source>Vantor is a local %1 performance dashboard for live CPU, memory, network, GPU, storage, process and system telemetry.</source>
        <extracomment>%1 is the name of the system</extracomment>
        <translation>Vantor ist ein lokales Leistungs-Dashboard für %1 mit Echtzeitdaten zu CPU, Speicher, Netzwerk, GPU, Datenträgern, Prozessen und System.</translation>
    </message>
    <message>
        <source>Export and Privacy</source>
        <translation>Export und Datenschutz</translation>
    </message>
    <message>
        <source>All monitoring is performed locally. Vantor does not perform analytics, public-IP lookups or automatic data transmission. A JSON snapshot is written only when you explicitly choose Export and select a destination.</source>
        <translation>Die gesamte Überwachung erfolgt lokal. Vantor erstellt keine Nutzungsanalysen, fragt keine öffentliche IP-Adresse ab und überträgt nicht automatisch Daten. Eine JSON-Momentaufnahme wird nur geschrieben, wenn Sie ausdrücklich „Exportieren“ wählen und einen Speicherort angeben.</translation>
    </message>
    <message>
        <source>Amounts of memory and storage count in steps of 1024, so that 1 GB is 1,073,741,824 bytes, as the kernel hands memory out; rates count in steps of 1000, as networks do. A process&apos;s CPU share is of one processor: 100% is one kept busy, and a process on several has more.</source>
        <translation>Größen von Speicher und Datenträgern zählen in Schritten von 1024, sodass 1&#xa0;GB 1.073.741.824&#xa0;Byte sind, so wie der Kernel Speicher vergibt; Übertragungsraten zählen in Schritten von 1000, wie in Netzwerken üblich. Der CPU-Anteil eines Prozesses bezieht sich auf einen einzelnen Prozessor: 100&#xa0;% steht für einen voll ausgelasteten, und ein Prozess auf mehreren kommt auf mehr.</translation>
    </message>
    <message>
        <source>What the Numbers Mean</source>
        <translation>Was die Zahlen bedeuten</translation>
    </message>
</context>
<context>
    <name>LastUpdateText</name>
    <message>
        <source>Collecting live data…</source>
        <translation>Echtzeitdaten werden erfasst&#xa0;…</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time of day</extracomment>
        <translation>Aktualisiert um %1</translation>
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
        <translation>BEZEICHNUNG</translation>
    </message>
    <message>
        <source>.Nm vantor</source>
        <translation>.Nm vantor</translation>
    </message>
    <message>
        <source>local performance dashboard for the desktop</source>
        <translation>lokales Leistungs-Dashboard für den Desktop</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>ÜBERSICHT</translation>
    </message>
    <message>
        <source>.Nm
.Op Ar option</source>
        <translation>.Nm
.Op Ar option</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>BESCHREIBUNG</translation>
    </message>
    <message>
        <source>.Nm
opens a window that shows what this computer is doing, live: processor, memory, network, graphics, storage, the
system with its battery, and the processes.
Closing the window keeps it in the tray, unless that is switched off in the settings or there is no tray.</source>
        <translation>.Nm
öffnet ein Fenster, das live zeigt, was dieser Rechner tut: Prozessor, Speicher, Netzwerk, Grafik, Datenträger, das
System mit seinem Akku und die Prozesse.
Wird das Fenster geschlossen, bleibt das Programm im Infobereich, es sei denn, das ist in den Einstellungen abgeschaltet oder es gibt keinen Infobereich.</translation>
    </message>
    <message>
        <source>One program runs on each display: started again,
.Nm
brings the running one&apos;s window forward and ends.</source>
        <translation>Auf jeder Anzeige läuft das Programm nur einmal: Erneut gestartet, holt
.Nm
das Fenster des laufenden nach vorn und beendet sich.</translation>
    </message>
    <message>
        <source>It is local: it opens no internet connection, starts no other program and collects nothing.
Where the kernel can, it enforces that; Help, About Vantor says whether it does.</source>
        <translation>Das Programm arbeitet lokal: Es öffnet keine Internetverbindung, startet kein anderes Programm und sammelt nichts.
Wo der Kernel es kann, erzwingt er das; „Info zu Vantor“ im Menü „Hilfe“ sagt, ob er es tut.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPTIONEN</translation>
    </message>
    <message>
        <source>Each has the running program do something, or starts it for that:</source>
        <translation>Jede lässt das laufende Programm etwas tun oder startet es dafür:</translation>
    </message>
    <message>
        <source>stops the readings,</source>
        <translation>hält die Messungen an,</translation>
    </message>
    <message>
        <source>goes on with them,</source>
        <translation>setzt sie fort,</translation>
    </message>
    <message>
        <source>reads everything now,</source>
        <translation>liest sofort alle Werte,</translation>
    </message>
    <message>
        <source>asks where to save a snapshot,</source>
        <translation>fragt, wo eine Momentaufnahme gespeichert werden soll,</translation>
    </message>
    <message>
        <source>opens the settings,</source>
        <translation>öffnet die Einstellungen,</translation>
    </message>
    <message>
        <source>has no window, only the icon in the tray; without a tray, the window.</source>
        <translation>zeigt kein Fenster, nur das Symbol im Infobereich; ohne Infobereich das Fenster.</translation>
    </message>
    <message>
        <source>The same actions are in the menu of the icon that starts the program, and on the session&apos;s bus, where
.Dq com.kestrone.Vantor
answers as
.Dq org.freedesktop.Application .</source>
        <translation>Dieselben Aktionen stehen im Menü des Symbols, mit dem das Programm gestartet wird, und auf dem Sitzungsbus; dort antwortet
.Dq com.kestrone.Vantor
als
.Dq org.freedesktop.Application .</translation>
    </message>
    <message>
        <source>These print a text and end:</source>
        <translation>Mit diesen gibt das Programm einen Text aus und beendet sich:</translation>
    </message>
    <message>
        <source>prints the options,</source>
        <translation>gibt die Optionen aus,</translation>
    </message>
    <message>
        <source>prints the version.</source>
        <translation>gibt die Version aus.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <translation>UMGEBUNG</translation>
    </message>
    <message>
        <source>The display, the first before the second.</source>
        <translation>Die Anzeige; die erste Variable hat Vorrang vor der zweiten.</translation>
    </message>
    <message>
        <source>The folder of the settings&apos; folder,
.Pa ~/.config
where it is not set or relative.</source>
        <translation>Der Ordner, in dem der Ordner der Einstellungen liegt,
.Pa ~/.config
bei nicht gesetzter Variable oder relativem Pfad.</translation>
    </message>
    <message>
        <source>The folder of the lock and the socket by which a second start finds the first.</source>
        <translation>Der Ordner der Sperre und des Sockets, über die ein zweiter Start den ersten findet.</translation>
    </message>
    <message>
        <source>The session&apos;s bus.
Only sockets of this machine are used.</source>
        <translation>Der Sitzungsbus.
Es werden nur Sockets dieses Rechners benutzt.</translation>
    </message>
    <message>
        <source>The language in whose order names are listed, the first that is set.</source>
        <translation>Die Sprache, nach deren Ordnung Namen sortiert werden; es gilt die erste gesetzte Variable.</translation>
    </message>
    <message>
        <source>How the time of the day is written.</source>
        <translation>Wie die Uhrzeit geschrieben wird.</translation>
    </message>
    <message>
        <source>The desktop&apos;s permission to come forward.</source>
        <translation>Die Erlaubnis des Desktops, das Fenster nach vorn zu holen.</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>DATEIEN</translation>
    </message>
    <message>
        <source>The settings.
A damaged file is kept beside it, as
.Pa settings.ini.damaged-1 ,
and the defaults are used.</source>
        <translation>Die Einstellungen.
Eine beschädigte Datei wird daneben aufbewahrt, als
.Pa settings.ini.damaged-1 ,
und es gelten die Voreinstellungen.</translation>
    </message>
    <message>
        <source>Where the window was.</source>
        <translation>Wo das Fenster war.</translation>
    </message>
    <message>
        <source>Opens the program at login, without a window; written and removed by its settings.</source>
        <translation>Öffnet das Programm beim Anmelden, ohne Fenster; wird von den Einstellungen des Programms angelegt und entfernt.</translation>
    </message>
    <message>
        <source>Lock and socket of the running program.</source>
        <translation>Sperre und Socket des laufenden Programms.</translation>
    </message>
    <message>
        <source>The names of graphics cards; without it they are shown by their numbers.</source>
        <translation>Die Namen der Grafikkarten; ohne diese Datei werden ihre Nummern gezeigt.</translation>
    </message>
    <message>
        <source>Every key of an exported snapshot and its unit.</source>
        <translation>Jeder Schlüssel einer exportierten Momentaufnahme und seine Einheit.</translation>
    </message>
    <message>
        <source>Besides these, it writes only what is exported.</source>
        <translation>Darüber hinaus schreibt das Programm nur, was exportiert wird.</translation>
    </message>
    <message>
        <source>SIGNALS</source>
        <translation>SIGNALE</translation>
    </message>
    <message>
        <source>End the program orderly, within five seconds.
A second one, more than 0.3 seconds after the first, ends it at once.
What is ignored when the program is started (see
.Xr nohup 1 )
stays ignored.</source>
        <translation>Beenden das Programm geordnet, innerhalb von fünf Sekunden.
Ein zweites Signal, mehr als 0,3&#xa0;Sekunden nach dem ersten, beendet es sofort.
Ein beim Start des Programms ignoriertes Signal (siehe
.Xr nohup 1 )
bleibt ignoriert.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>EXIT-STATUS</translation>
    </message>
    <message>
        <source>The program was quit, ended by the first signal, or has brought another one forward.</source>
        <translation>Das Programm wurde beendet, auch durch das erste Signal, oder hat ein bereits laufendes nach vorn geholt.</translation>
    </message>
    <message>
        <source>There is no display that it can open, or too little memory, too few threads or file descriptors to go on.
One line on standard error says which.</source>
        <translation>Es gibt keine Anzeige, die das Programm öffnen kann, oder es hat zu wenig Speicher, Threads oder Dateideskriptoren, um weiterzulaufen.
Eine Zeile auf der Standardfehlerausgabe nennt den Grund.</translation>
    </message>
    <message>
        <source>An argument is none of the options.</source>
        <translation>Ein Argument ist keine gültige Option.</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>SIEHE AUCH</translation>
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
        <translation>Warten auf Speicherdaten</translation>
    </message>
    <message>
        <source>%1 installed</source>
        <extracomment>%1 is an amount of memory</extracomment>
        <translation>%1 installiert</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>the title of the card</extracomment>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>In Use</source>
        <extracomment>under the share of memory that is used</extracomment>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>memory used lately; the short label of a figure</extracomment>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Wired</source>
        <extracomment>memory that the system keeps and cannot swap out; the short label of a figure</extracomment>
        <translation>Reserviert</translation>
    </message>
    <message>
        <source>Compressed</source>
        <extracomment>memory that is kept compressed; the short label of a figure</extracomment>
        <translation>Komprimiert</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>memory that programs can have; the short label of a figure</extracomment>
        <translation>Verfügbar</translation>
    </message>
    <message>
        <source>Memory history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>Speicherverlauf</translation>
    </message>
    <message>
        <source>Top Memory Processes</source>
        <extracomment>the processes that use most memory</extracomment>
        <translation>Top-Prozesse (Speicher)</translation>
    </message>
</context>
<context>
    <name>MenuBarDashboard</name>
    <message>
        <source>Open Dashboard</source>
        <extracomment>a button</extracomment>
        <translation>Dashboard öffnen</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>a button: read everything now</extracomment>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>opens the settings</extracomment>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a button: end the program</extracomment>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>the short title of a figure</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>the short title of a figure</extracomment>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Collecting live data…</source>
        <translation>Echtzeitdaten werden erfasst&#xa0;…</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>a button: stop reading</extracomment>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>a button: go on reading</extracomment>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>for screen readers: whether the figures are live</extracomment>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>NetworkCard</name>
    <message>
        <source>Not assigned</source>
        <extracomment>no address</extracomment>
        <translation>Nicht zugewiesen</translation>
    </message>
    <message>
        <source>Waiting for network data</source>
        <translation>Warten auf Netzwerkdaten</translation>
    </message>
    <message>
        <source>Active interface: %1</source>
        <extracomment>%1 is the name of a network interface</extracomment>
        <translation>Aktive Schnittstelle: %1</translation>
    </message>
    <message>
        <source>No active interface</source>
        <translation>Keine aktive Schnittstelle</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>the title of the card</extracomment>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>the speed at which data comes in</extracomment>
        <translation>Download</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>the speed at which data goes out</extracomment>
        <translation>Upload</translation>
    </message>
    <message>
        <source>Hostname</source>
        <translation>Rechnername</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>a host without a name</extracomment>
        <translation>Unbekannt</translation>
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
        <translation>Schnittstellen</translation>
    </message>
</context>
<context>
    <name>PowerView</name>
    <message>
        <source>AC connected</source>
        <extracomment>the computer is plugged in</extracomment>
        <translation>Netzbetrieb</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Akkubetrieb</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a time, such as 1h 20m</extracomment>
        <translation>Voll in %1</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <translation>Noch %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln charge cycle(s)</source>
        <comment>of the battery</comment>
        <translation>
            <numerusform>%Ln Ladezyklus</numerusform>
            <numerusform>%Ln Ladezyklen</numerusform>
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
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Waiting for Processes</source>
        <translation>Warten auf Prozesse</translation>
    </message>
    <message>
        <source>No process data is available yet.</source>
        <translation>Es sind noch keine Prozessdaten verfügbar.</translation>
    </message>
    <message>
        <source>No Matching Processes</source>
        <translation>Keine passenden Prozesse</translation>
    </message>
    <message>
        <source>No process matches “%1”.</source>
        <extracomment>%1 is what the user has typed</extracomment>
        <translation>Kein Prozess entspricht „%1“.</translation>
    </message>
    <message>
        <source>Process Explorer</source>
        <extracomment>the title of the card</extracomment>
        <translation>Prozess-Explorer</translation>
    </message>
    <message>
        <source>Live process activity</source>
        <translation>Prozessaktivität in Echtzeit</translation>
    </message>
    <message>
        <source>Filter processes</source>
        <extracomment>shown in an empty field that is typed into</extracomment>
        <translation>Prozesse filtern</translation>
    </message>
    <message>
        <source>Sort</source>
        <extracomment>for screen readers: by what the list is sorted</extracomment>
        <translation>Sortierung</translation>
    </message>
</context>
<context>
    <name>ProcessHeader</name>
    <message>
        <source>Process</source>
        <extracomment>the heading of a column</extracomment>
        <translation>Prozess</translation>
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
        <translation>Speicher</translation>
    </message>
</context>
<context>
    <name>ProcessMiniList</name>
    <message>
        <source>Waiting for process data…</source>
        <translation>Warten auf Prozessdaten&#xa0;…</translation>
    </message>
</context>
<context>
    <name>ProcessTableView</name>
    <message numerus="yes">
        <source>%Ln process(es)</source>
        <comment>for screen readers: in the list</comment>
        <translation>
            <numerusform>%Ln Prozess</numerusform>
            <numerusform>%Ln Prozesse</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, PID %2, CPU %3, memory %4</source>
        <extracomment>for screen readers: the name of a process, its number, its share of the processor, its memory</extracomment>
        <translation>%1, PID %2, CPU %3, Speicher %4</translation>
    </message>
    <message>
        <source>Processes</source>
        <extracomment>the list, for screen readers</extracomment>
        <translation>Prozesse</translation>
    </message>
    <message>
        <source>100% is one processor: a process that keeps two busy has 200%. A click sorts by it.</source>
        <extracomment>what a process&apos;s percentage is of; the title of a column is pointed at</extracomment>
        <translation>100&#xa0;% ist ein Prozessor: Ein Prozess, der zwei auslastet, kommt auf 200&#xa0;%. Ein Klick sortiert danach.</translation>
    </message>
    <message>
        <source>The memory that a process has in use now. A click sorts by it.</source>
        <extracomment>the title of a column is pointed at</extracomment>
        <translation>Der Speicher, den ein Prozess gerade belegt. Ein Klick sortiert danach.</translation>
    </message>
    <message>
        <source>A full bar is the largest of the processes shown.</source>
        <translation>Ein voller Balken steht für den höchsten Wert der gezeigten Prozesse.</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>a command: the whole row of a process</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <extracomment>a command</extracomment>
        <translation>Namen kopieren</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <extracomment>a command: where the program of a process lies</extracomment>
        <translation>Pfad kopieren</translation>
    </message>
    <message>
        <source>Filter by This Name</source>
        <extracomment>a command: show the processes of that name only</extracomment>
        <translation>Nach diesem Namen filtern</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>a button</extracomment>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>JSON document</source>
        <extracomment>a kind of file</extracomment>
        <translation>JSON-Dokument</translation>
    </message>
    <message>
        <source>All files</source>
        <extracomment>a kind of file: any</extracomment>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>%1, folder</source>
        <extracomment>for screen readers; %1 is the name of a folder</extracomment>
        <translation>%1, Ordner</translation>
    </message>
    <message>
        <source>Folders and files</source>
        <extracomment>for screen readers: the contents of a folder</extracomment>
        <translation>Ordner und Dateien</translation>
    </message>
    <message>
        <source>Warning</source>
        <extracomment>for screen readers: the sign beside a warning</extracomment>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>The disk does not answer. Please choose another folder, or try again.</source>
        <translation>Der Datenträger antwortet nicht. Bitte wählen Sie einen anderen Ordner oder versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Der Ordner existiert nicht.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>Dies ist kein Ordner.</translation>
    </message>
    <message>
        <source>You do not have the permission to look into this folder.</source>
        <translation>Sie haben keine Berechtigung, diesen Ordner einzusehen.</translation>
    </message>
    <message>
        <source>The folder cannot be read.</source>
        <translation>Der Ordner kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>You do not have the permission to make a folder here.</source>
        <translation>Sie haben keine Berechtigung, hier einen Ordner anzulegen.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message>
        <source>The folder could not be made.</source>
        <translation>Der Ordner konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Schreibtisch</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>Looking for your folders…</source>
        <translation>Ihre Ordner werden gesucht&#xa0;…</translation>
    </message>
    <message>
        <source>Last used</source>
        <extracomment>the folder that was saved to before</extracomment>
        <translation>Zuletzt benutzt</translation>
    </message>
    <message>
        <source>Looking into the folder…</source>
        <translation>Ordner wird gelesen&#xa0;…</translation>
    </message>
    <message>
        <source>You do not have the permission to save in this folder.</source>
        <translation>Sie haben keine Berechtigung, in diesem Ordner zu speichern.</translation>
    </message>
    <message numerus="yes">
        <source>Only the first %Ln of this folder are shown.</source>
        <comment>files and folders</comment>
        <translation>
            <numerusform>Nur %Ln Eintrag dieses Ordners wird angezeigt.</numerusform>
            <numerusform>Nur die ersten %Ln Einträge dieses Ordners werden angezeigt.</numerusform>
        </translation>
    </message>
    <message>
        <source>New Folder</source>
        <extracomment>the title of a box</extracomment>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Name of the new folder:</source>
        <translation>Name des neuen Ordners:</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Anlegen</translation>
    </message>
    <message>
        <source>Making the folder…</source>
        <translation>Ordner wird angelegt&#xa0;…</translation>
    </message>
    <message>
        <source>Please type a name for the file.</source>
        <translation>Bitte geben Sie einen Namen für die Datei ein.</translation>
    </message>
    <message>
        <source>Please choose a folder first.</source>
        <translation>Bitte wählen Sie zuerst einen Ordner.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <extracomment>whether a file can be saved there</extracomment>
        <translation>Wird geprüft&#xa0;…</translation>
    </message>
    <message>
        <source>Places</source>
        <extracomment>for screen readers: the list of well-known folders</extracomment>
        <translation>Orte</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <extracomment>of the file; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <extracomment>the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>Parent folder (Alt+Up)</source>
        <extracomment>a button; Alt+Up is what can be pressed instead</extracomment>
        <translation>Übergeordneter Ordner (Alt+Pfeil hoch)</translation>
    </message>
    <message>
        <source>New folder</source>
        <extracomment>a button</extracomment>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Replace File</source>
        <extracomment>the title of a box</extracomment>
        <translation>Datei ersetzen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists. Do you want to replace it?</source>
        <extracomment>%1 is the name of a file</extracomment>
        <translation>„%1“ existiert bereits. Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Ersetzen</translation>
    </message>
</context>
<context>
    <name>SettingsForm</name>
    <message numerus="yes">
        <source>Chart history: %Ln sample(s)</source>
        <comment>how many readings the charts keep</comment>
        <translation>
            <numerusform>Diagrammverlauf: %Ln Messwert</numerusform>
            <numerusform>Diagrammverlauf: %Ln Messwerte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 second</source>
        <extracomment>half a second, as a number</extracomment>
        <translation>%1 Sekunden</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <extracomment>a number of seconds that is not whole</extracomment>
        <translation>%1 Sekunden</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the theme: as the desktop has it</extracomment>
        <translation>System</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>the theme</extracomment>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>the theme</extracomment>
        <translation>Dunkel</translation>
    </message>
    <message numerus="yes">
        <source>%Ln second(s)</source>
        <comment>how often the figures are read</comment>
        <translation>
            <numerusform>%Ln Sekunde</numerusform>
            <numerusform>%Ln Sekunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Open at Login</source>
        <extracomment>a switch: start the program when the user logs in</extracomment>
        <translation>Beim Anmelden öffnen</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <extracomment>settings that could not be stored; %1 is a sentence that says why</extracomment>
        <translation>Nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>whether colours are dark or light</extracomment>
        <translation>Design</translation>
    </message>
    <message>
        <source>Monitoring</source>
        <translation>Überwachung</translation>
    </message>
    <message>
        <source>Refresh interval</source>
        <extracomment>how often the figures are read</extracomment>
        <translation>Aktualisierungsintervall</translation>
    </message>
    <message>
        <source>Chart history</source>
        <extracomment>how many readings the charts keep</extracomment>
        <translation>Diagrammverlauf</translation>
    </message>
    <message numerus="yes">
        <source>%Ln sample(s)</source>
        <comment>for screen readers: how many readings the charts keep</comment>
        <translation>
            <numerusform>%Ln Messwert</numerusform>
            <numerusform>%Ln Messwerte</numerusform>
        </translation>
    </message>
    <message>
        <source>Include point-to-point and tunnel interfaces</source>
        <extracomment>a switch: network interfaces, such as those of a VPN</extracomment>
        <translation>Punkt-zu-Punkt- und Tunnelschnittstellen einbeziehen</translation>
    </message>
    <message>
        <source>Show menu bar dashboard</source>
        <extracomment>a switch: the icon in the tray and its panel</extracomment>
        <translation>Dashboard im Infobereich anzeigen</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Network privacy</source>
        <extracomment>a label</extracomment>
        <translation>Netzwerk-Datenschutz</translation>
    </message>
    <message>
        <source>No public IP lookup</source>
        <extracomment>the program does not ask the internet for the address</extracomment>
        <translation>Keine Abfrage der öffentlichen IP</translation>
    </message>
    <message>
        <source>Process source</source>
        <extracomment>a label: where figures of processes come from</extracomment>
        <translation>Prozessquelle</translation>
    </message>
    <message>
        <source>Native %1 %2</source>
        <extracomment>the name of the system, and of what tells of processes: &quot;Native Linux procfs&quot;</extracomment>
        <translation>%1 %2 (nativ)</translation>
    </message>
    <message>
        <source>GPU telemetry</source>
        <extracomment>a label: where figures of graphics come from</extracomment>
        <translation>GPU-Daten</translation>
    </message>
    <message>
        <source>Export Current Snapshot…</source>
        <extracomment>a button</extracomment>
        <translation>Aktuelle Momentaufnahme exportieren&#xa0;…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>a heading: about the program</extracomment>
        <translation>Info</translation>
    </message>
    <message>
        <source>Application</source>
        <extracomment>a label</extracomment>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>This desktop has no tray to show it in.</source>
        <translation>Dieser Desktop hat keinen Infobereich dafür.</translation>
    </message>
</context>
<context>
    <name>SoftwareCentre</name>
    <message>
        <source>See what this computer is doing, live and at a glance</source>
        <translation>Zeigt live und auf einen Blick, was dieser Rechner gerade tut</translation>
    </message>
    <message>
        <source>Vantor shows what the computer is doing on one page, in a window that costs next to nothing to keep open: processor, memory, network, graphics, storage and the system with its battery, each with short histories where there is something to follow.</source>
        <translation>Vantor zeigt auf einer Seite, was der Rechner tut, in einem Fenster, das offen bleiben kann, weil es fast nichts kostet: Prozessor, Speicher, Netzwerk, Grafik, Datenträger und das System mit seinem Akku, jeweils mit kurzen Verläufen, wo es etwas zu verfolgen gibt.</translation>
    </message>
    <message>
        <source>What there is beside the cards:</source>
        <translation>Neben den Karten gibt es:</translation>
    </message>
    <message>
        <source>a process explorer with the heaviest processes, and a filter over all of them</source>
        <translation>einen Prozess-Explorer mit den aufwendigsten Prozessen und einem Filter über alle</translation>
    </message>
    <message>
        <source>a tray icon with a panel of the most important figures</source>
        <translation>ein Symbol im Infobereich mit einem kleinen Dashboard der wichtigsten Werte</translation>
    </message>
    <message>
        <source>export of all figures as one JSON document</source>
        <translation>den Export aller Werte in einem JSON-Dokument</translation>
    </message>
    <message>
        <source>It is local: it opens no internet connection, starts no other program and collects nothing, and the kernel enforces that. A figure that the system does not publish is shown as words, never as zero. Everything is reached by keyboard, and told to screen readers.</source>
        <translation>Vantor arbeitet lokal: Es öffnet keine Internetverbindung, startet kein anderes Programm und sammelt nichts, und der Kernel erzwingt das. Ein Wert, den das System nicht bereitstellt, wird in Worten angezeigt, nie als Null. Alles ist mit der Tastatur erreichbar und wird Bildschirmlesern mitgeteilt.</translation>
    </message>
    <message>
        <source>The dashboard of a laptop, dark</source>
        <translation>Das Dashboard eines Notebooks, dunkles Design</translation>
    </message>
    <message>
        <source>The dashboard of a laptop, light</source>
        <translation>Das Dashboard eines Notebooks, helles Design</translation>
    </message>
    <message>
        <source>The first release.</source>
        <translation>Die erste Veröffentlichung.</translation>
    </message>
</context>
<context>
    <name>StorageCard</name>
    <message>
        <source>Waiting for storage data</source>
        <translation>Warten auf Datenträgerdaten</translation>
    </message>
    <message numerus="yes">
        <source>%Ln mounted volume(s)</source>
        <translation>
            <numerusform>%Ln eingehängter Datenträger</numerusform>
            <numerusform>%Ln eingehängte Datenträger</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <extracomment>the title of the card</extracomment>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>No Volumes</source>
        <extracomment>there is no disk to be shown</extracomment>
        <translation>Keine Datenträger</translation>
    </message>
</context>
<context>
    <name>SystemCard</name>
    <message>
        <source>Waiting for system data</source>
        <translation>Warten auf Systemdaten</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the title of the card: the whole machine</extracomment>
        <translation>System</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>a text that the machine does not tell</extracomment>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Operating System</source>
        <translation>Betriebssystem</translation>
    </message>
    <message>
        <source>Kernel Build</source>
        <translation>Kernel-Version</translation>
    </message>
    <message>
        <source>Architecture</source>
        <extracomment>of the processor</extracomment>
        <translation>Architektur</translation>
    </message>
    <message>
        <source>Uptime</source>
        <extracomment>the time since the machine was started</extracomment>
        <translation>Betriebszeit</translation>
    </message>
    <message>
        <source>Thermal State</source>
        <extracomment>how hot the machine is, in words</extracomment>
        <translation>Wärmezustand</translation>
    </message>
    <message>
        <source>Low Power Mode</source>
        <translation>Energiesparmodus</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>the low power mode</extracomment>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>the low power mode</extracomment>
        <translation>Deaktiviert</translation>
    </message>
</context>
<context>
    <name>VantorApp</name>
    <message>
        <source>Vantor (collecting live data)</source>
        <extracomment>the name of the window until figures have been read</extracomment>
        <translation>Vantor (Echtzeitdaten werden erfasst)</translation>
    </message>
    <message>
        <source>Vantor Settings</source>
        <extracomment>the title of a window</extracomment>
        <translation>Vantor-Einstellungen</translation>
    </message>
    <message>
        <source>Vantor Help</source>
        <extracomment>the title of a window</extracomment>
        <translation>Hilfe zu Vantor</translation>
    </message>
</context>
<context>
    <name>VolumeView</name>
    <message>
        <source>%1 used</source>
        <extracomment>%1 is an amount, of a disk</extracomment>
        <translation>%1 belegt</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount, of a disk</extracomment>
        <translation>%1 frei</translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <extracomment>%1 is where a disk is found, such as /home</extracomment>
        <translation>%1 (schreibgeschützt)</translation>
    </message>
    <message>
        <source>%1 full, %2, %3</source>
        <extracomment>for screen readers: %1 is a share such as 45%, %2 &quot;120 GB used&quot;, %3 &quot;90 GB free&quot;</extracomment>
        <translation>%1 voll, %2, %3</translation>
    </message>
</context>
</TS>
