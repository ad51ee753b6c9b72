<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About Vantor</source>
        <extracomment>the title of a window</extracomment>
        <translation>Informazioni su Vantor</translation>
    </message>
    <message>
        <source>Version %1 (%2)

Built by the Vantor founders. Everything it shows, it reads on this machine, and it stays here.

Confined by the kernel: %3</source>
        <extracomment>%1 is the version, %2 the build, %3 is &quot;yes&quot;, &quot;no&quot; or what is missing</extracomment>
        <translation>Versione %1 (%2)

Creato dai fondatori di Vantor. Tutto ciò che mostra viene letto su questo computer e qui rimane.

Confinato dal kernel: %3</translation>
    </message>
</context>
<context>
    <name>AppCommands</name>
    <message>
        <source>About Vantor</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Informazioni su Vantor</translation>
    </message>
    <message>
        <source>Refresh Now</source>
        <extracomment>a command of the menu: read everything now</extracomment>
        <translation>Aggiorna ora</translation>
    </message>
    <message>
        <source>Export Snapshot…</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Esporta istantanea…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Vantor Help</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Aiuto di Vantor</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Close Window</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Chiudi finestra</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>a menu; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>a menu; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Aiuto</translation>
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
            <numerusform>%Ln byte</numerusform>
            <numerusform>%Ln byte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CPUCard</name>
    <message>
        <source>%1 physical • %2 logical cores</source>
        <extracomment>the numbers of cores; %1 stays in front where both are read as one phrase</extracomment>
        <translation>%1 core fisici • %2 logici</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>the title of the card</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>CPU Load</source>
        <extracomment>under the share of the processor that is busy</extracomment>
        <translation>Carico CPU</translation>
    </message>
    <message>
        <source>%1 GHz</source>
        <extracomment>a frequency</extracomment>
        <translation>%1 GHz</translation>
    </message>
    <message>
        <source>User</source>
        <extracomment>the share of time spent in programs</extracomment>
        <translation>Utente</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the share of time spent in the operating system</extracomment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Nominal</source>
        <extracomment>the frequency that the processor is sold with</extracomment>
        <translation>Nominale</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Load avg %1</source>
        <extracomment>%1 are the averages of the last minutes, such as 0.52 0.58 0.59</extracomment>
        <translation>Carico medio %1</translation>
    </message>
    <message>
        <source>CPU history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>Cronologia CPU</translation>
    </message>
    <message>
        <source>Core Activity</source>
        <extracomment>how busy each logical processor is</extracomment>
        <translation>Attività dei core</translation>
    </message>
    <message>
        <source>Top CPU Processes</source>
        <extracomment>the processes that keep the processor busiest</extracomment>
        <translation>Processi con più CPU</translation>
    </message>
</context>
<context>
    <name>CardTexts</name>
    <message>
        <source>Not published</source>
        <extracomment>a figure that the machine does not tell</extracomment>
        <translation>Nessun dato</translation>
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
        <translation>adesso</translation>
    </message>
    <message>
        <source>%1 ago</source>
        <extracomment>%1 is a time: when a sample of a chart was taken</extracomment>
        <translation>%1 fa</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>from the smallest to the largest value</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>The width is the last %1.</source>
        <extracomment>of a chart; %1 is a time</extracomment>
        <translation>La larghezza copre un periodo di %1 fino a ora.</translation>
    </message>
    <message>
        <source>The height is %1 to %2.</source>
        <extracomment>of a chart; both are values: 0 % and 100 %</extracomment>
        <translation>L’altezza va da %1 a %2.</translation>
    </message>
    <message>
        <source>The height is the smallest to the largest value shown.</source>
        <extracomment>of a chart</extracomment>
        <translation>L’altezza va dal più piccolo al più grande dei valori mostrati.</translation>
    </message>
    <message>
        <source>The height is the smallest to the largest value shown: %1.</source>
        <extracomment>of a chart; %1 are these two values</extracomment>
        <translation>L’altezza va dal più piccolo al più grande dei valori mostrati: %1.</translation>
    </message>
</context>
<context>
    <name>CoreActivity</name>
    <message>
        <source>Core %1: %2</source>
        <extracomment>%1 is the number of a logical processor, %2 how busy it is</extracomment>
        <translation>Core %1: %2</translation>
    </message>
    <message>
        <source>Core Activity</source>
        <extracomment>how busy each logical processor is</extracomment>
        <translation>Attività dei core</translation>
    </message>
</context>
<context>
    <name>CoreWords</name>
    <message>
        <source>Detecting processor…</source>
        <translation>Rilevamento del processore…</translation>
    </message>
    <message>
        <source>Detecting host…</source>
        <translation>Rilevamento dell’host…</translation>
    </message>
    <message>
        <source>Detecting hardware…</source>
        <translation>Rilevamento dell’hardware…</translation>
    </message>
    <message>
        <source>Detecting macOS…</source>
        <translation>Rilevamento di macOS…</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>what the machine does not tell</extracomment>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <source>Nominal</source>
        <extracomment>how hot the machine is: as usual</extracomment>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Fair</source>
        <extracomment>how hot the machine is: a little</extracomment>
        <translation>Moderato</translation>
    </message>
    <message>
        <source>Serious</source>
        <extracomment>how hot the machine is: it slows down</extracomment>
        <translation>Elevato</translation>
    </message>
    <message>
        <source>Critical</source>
        <extracomment>how hot the machine is: it may turn itself off</extracomment>
        <translation>Critico</translation>
    </message>
    <message>
        <source>Battery</source>
        <extracomment>of a battery that has no name</extracomment>
        <translation>Batteria</translation>
    </message>
    <message>
        <source>Live Linux performance intelligence</source>
        <translation>Le prestazioni di Linux in tempo reale</translation>
    </message>
    <message>
        <source>Live macOS performance intelligence</source>
        <translation>Le prestazioni di macOS in tempo reale</translation>
    </message>
    <message>
        <source>Unknown Computer</source>
        <translation>Computer sconosciuto</translation>
    </message>
    <message>
        <source>Unknown Mac</source>
        <translation>Mac sconosciuto</translation>
    </message>
    <message>
        <source>No Graphics Device</source>
        <translation>Nessun dispositivo grafico</translation>
    </message>
    <message>
        <source>No Metal Device</source>
        <translation>Nessun dispositivo Metal</translation>
    </message>
    <message>
        <source>The active graphics driver did not expose a graphics device.</source>
        <translation>Il driver grafico attivo non ha segnalato alcun dispositivo grafico.</translation>
    </message>
    <message>
        <source>The active graphics driver did not expose a Metal device.</source>
        <translation>Il driver grafico attivo non ha segnalato alcun dispositivo Metal.</translation>
    </message>
    <message>
        <source>No browsable mounted volume was returned by Linux.</source>
        <translation>Linux non ha restituito alcun volume montato esplorabile.</translation>
    </message>
    <message>
        <source>No browsable mounted volume was returned by macOS.</source>
        <translation>macOS non ha restituito alcun volume montato esplorabile.</translation>
    </message>
    <message>
        <source>Load of your own processes</source>
        <extracomment>the load of the graphics device is known for the user&apos;s processes only</extracomment>
        <translation>Carico dei propri processi</translation>
    </message>
    <message>
        <source>Export System Snapshot</source>
        <extracomment>the title of the dialog that asks where to save</extracomment>
        <translation>Esporta istantanea del sistema</translation>
    </message>
    <message>
        <source>Snapshot Export Failed</source>
        <extracomment>the title of an alert</extracomment>
        <translation>Esportazione dell’istantanea non riuscita</translation>
    </message>
    <message>
        <source>yes</source>
        <extracomment>whether the kernel confines the program, behind a colon</extracomment>
        <translation>sì</translation>
    </message>
    <message>
        <source>no</source>
        <extracomment>whether the kernel confines the program, behind a colon</extracomment>
        <translation>no</translation>
    </message>
    <message>
        <source>Something that is not an ordinary file has that name.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Esiste già un elemento con questo nome che non è un file ordinario.</translation>
    </message>
    <message>
        <source>You do not have the permission to write there.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Non si dispone dei permessi per scrivere in questa posizione.</translation>
    </message>
    <message>
        <source>You have used up the space that you may use on the disk.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>È stato esaurito lo spazio a propria disposizione sul disco.</translation>
    </message>
    <message>
        <source>The file would be larger than it may be there.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Il file supererebbe la dimensione consentita in questa posizione.</translation>
    </message>
    <message>
        <source>The disk could not be written to.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Impossibile scrivere sul disco.</translation>
    </message>
    <message>
        <source>A folder has that name.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Esiste già una cartella con questo nome.</translation>
    </message>
    <message>
        <source>The symbolic links there lead in a circle.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>I collegamenti simbolici in questa posizione formano un ciclo.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Troppi file aperti.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Il nome è troppo lungo.</translation>
    </message>
    <message>
        <source>The disk is not there any more.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Il disco non è più presente.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>La cartella non esiste.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Memoria insufficiente.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Spazio su disco insufficiente.</translation>
    </message>
    <message>
        <source>The place for it is not a folder.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>La posizione indicata non è una cartella.</translation>
    </message>
    <message>
        <source>The disk can only be read.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Il disco è in sola lettura.</translation>
    </message>
    <message>
        <source>Too many damaged files are kept there.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>In questa posizione sono già conservati troppi file danneggiati.</translation>
    </message>
    <message>
        <source>The program&apos;s own file has no name that can be kept.</source>
        <extracomment>why the program cannot be opened at login</extracomment>
        <translation>Il file del programma ha un nome che non può essere salvato.</translation>
    </message>
    <message>
        <source>The file would be too large.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>Il file sarebbe troppo grande.</translation>
    </message>
    <message>
        <source>The disk does not answer.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>Il disco non risponde.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved. %2</source>
        <extracomment>%1 is a file&apos;s name, %2 the sentence that says why</extracomment>
        <translation>Impossibile salvare «%1». %2</translation>
    </message>
    <message>
        <source>The system gave the reason &quot;%1&quot; (%2).</source>
        <extracomment>%1 is the system&apos;s own text, %2 its number</extracomment>
        <translation>Il sistema ha indicato il motivo «%1» (%2).</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>Stato sconosciuto: %1</translation>
    </message>
    <message>
        <source>Not changed: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>Non modificato: %1</translation>
    </message>
    <message>
        <source>Not changed yet: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>Non ancora modificato: %1</translation>
    </message>
    <message>
        <source>in part (without %1)</source>
        <extracomment>whether the kernel confines the program, behind a colon; %1 is a list of names</extracomment>
        <translation>in parte (senza %1)</translation>
    </message>
    <message>
        <source>Nominal is the frequency that the processor is made for, as its driver or its name tells it, not the present one.</source>
        <extracomment>what the figure &quot;Nominal&quot; of the processor means</extracomment>
        <translation>«Nominale» è la frequenza per cui è progettato il processore, secondo il suo driver o il suo nome, non quella attuale.</translation>
    </message>
    <message>
        <source>Wired is memory that cannot be moved out: the kernel&apos;s own and what programs have locked.</source>
        <extracomment>what the figure &quot;Wired&quot; of the memory means</extracomment>
        <translation>«Riservata» è la memoria che non può essere spostata fuori dalla RAM: quella del kernel e quella bloccata dai programmi.</translation>
    </message>
    <message>
        <source>Compressed is the memory that zram and zswap keep compressed pages in.</source>
        <extracomment>what the figure &quot;Compressed&quot; of the memory means</extracomment>
        <translation>«Compressa» è la memoria in cui zram e zswap tengono le pagine compresse.</translation>
    </message>
    <message>
        <source>Thermal State compares the thermal zones with their own limits: Fair where the kernel begins to slow down, Serious where it is nearly too hot, Critical where it switches off.</source>
        <extracomment>what the figure &quot;Thermal State&quot; means</extracomment>
        <translation>«Stato termico» confronta le zone termiche con i rispettivi limiti: «Moderato» quando il kernel comincia a rallentare il computer, «Elevato» quando è quasi troppo caldo, «Critico» quando il kernel lo spegne.</translation>
    </message>
    <message>
        <source>Low Power Mode is on while the firmware&apos;s profile or the processors&apos; own preference is to save power.</source>
        <extracomment>what the figure &quot;Low Power Mode&quot; means</extracomment>
        <translation>«Risparmio energetico» è attivato finché il profilo del firmware o la preferenza dei processori stessi è di risparmiare energia.</translation>
    </message>
</context>
<context>
    <name>DashboardHeader</name>
    <message>
        <source>Paused</source>
        <extracomment>the state: the figures stand still</extracomment>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Live</source>
        <extracomment>the state: the figures follow the machine</extracomment>
        <translation>Live</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>a button: go on reading</extracomment>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>a button: stop reading</extracomment>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>a number of seconds, short</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>a button: read everything now</extracomment>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>a button: save a snapshot to a file</extracomment>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a button: end the program</extracomment>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>for screen readers: whether the figures are live</extracomment>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Refresh interval</source>
        <extracomment>how often the figures are read</extracomment>
        <translation>Intervallo di aggiornamento</translation>
    </message>
</context>
<context>
    <name>DesktopFile</name>
    <message>
        <source>Performance Dashboard</source>
        <extracomment>the kind of program</extracomment>
        <translation>Dashboard delle prestazioni</translation>
    </message>
    <message>
        <source>See what this computer is doing, live and at a glance</source>
        <translation>Mostra in tempo reale e a colpo d’occhio che cosa sta facendo questo computer</translation>
    </message>
    <message>
        <source>performance;system;monitor;processor;CPU;memory;RAM;network;graphics;GPU;disk;storage;battery;temperature;process;task;load;</source>
        <translation>prestazioni;sistema;monitor;monitoraggio;risorse;processore;CPU;memoria;RAM;rete;grafica;GPU;disco;archiviazione;batteria;temperatura;processo;processi;attività;carico;</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Export Current Snapshot…</source>
        <translation>Esporta istantanea attuale…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Run in the Background</source>
        <translation>Esegui in background</translation>
    </message>
</context>
<context>
    <name>Formatters</name>
    <message>
        <source>Unknown</source>
        <extracomment>a time that the machine does not tell</extracomment>
        <translation>Sconosciuto</translation>
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
        <translation>%1g %2h %3m</translation>
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
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>GPUCard</name>
    <message>
        <source>Waiting for graphics data</source>
        <translation>In attesa dei dati grafici</translation>
    </message>
    <message>
        <source>Graphics</source>
        <extracomment>the title of the card</extracomment>
        <translation>Grafica</translation>
    </message>
    <message>
        <source>GPU Load</source>
        <extracomment>under the share of the graphics device that is busy</extracomment>
        <translation>Carico GPU</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>VRAM Used</source>
        <extracomment>memory of the graphics device</extracomment>
        <translation>VRAM usata</translation>
    </message>
    <message>
        <source>VRAM Total</source>
        <extracomment>memory of the graphics device</extracomment>
        <translation>VRAM totale</translation>
    </message>
    <message>
        <source>GPU history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>Cronologia GPU</translation>
    </message>
    <message>
        <source>Graphics Devices</source>
        <extracomment>the heading of a list</extracomment>
        <translation>Dispositivi grafici</translation>
    </message>
</context>
<context>
    <name>GraphicsDeviceView</name>
    <message>
        <source>Recommended Working Set</source>
        <extracomment>how much graphics memory the driver recommends to use</extracomment>
        <translation>Uso consigliato</translation>
    </message>
    <message>
        <source>Unified memory architecture</source>
        <extracomment>graphics that share the memory of the processor</extracomment>
        <translation>Memoria unificata</translation>
    </message>
    <message>
        <source>Discrete graphics</source>
        <extracomment>a graphics device with memory of its own</extracomment>
        <translation>Grafica dedicata</translation>
    </message>
</context>
<context>
    <name>HelpTexts</name>
    <message>
        <source>%1 or %2 seconds</source>
        <extracomment>%1 are all numbers but the last: &quot;0.5, 1, 2, 5 or 10 seconds&quot;</extracomment>
        <translation>%1 o %2 secondi</translation>
    </message>
    <message>
        <source>Live Monitoring</source>
        <translation>Monitoraggio in tempo reale</translation>
    </message>
    <message>
        <source>Choose a refresh interval from %1. Pause stops periodic sampling, Refresh Now requests a fresh snapshot, and the charts keep only the configured bounded history.</source>
        <extracomment>%1 is &quot;0.5, 1, 2, 5 or 10 seconds&quot;</extracomment>
        <translation>Scegliere un intervallo di aggiornamento di %1. «Pausa» sospende le rilevazioni periodiche, «Aggiorna ora» richiede subito nuovi dati e i grafici conservano solo la cronologia limitata impostata.</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Dashboard</translation>
    </message>
    <message>
        <source>CPU shows total and per-logical-processor activity. Memory shows current pressure-related usage values. Network reports local interface traffic. GPU values are shown only when %1 or the active graphics driver publishes them. Storage and power data update at lower cadences because they do not require sub-second polling.</source>
        <extracomment>%1 is what publishes graphics figures, such as NVML</extracomment>
        <translation>«CPU» mostra l’attività totale e quella di ciascun processore logico. «Memoria» mostra i valori di utilizzo attuali legati alla pressione sulla memoria. «Rete» riporta il traffico delle interfacce locali. I valori della GPU sono mostrati solo quando %1 o il driver grafico attivo li fornisce. I dati di archiviazione e alimentazione si aggiornano meno spesso, poiché non è necessario rilevarli più volte al secondo.</translation>
    </message>
    <message>
        <source>Process Explorer</source>
        <translation>Esplora processi</translation>
    </message>
    <message>
        <source>The process list uses native %1 %2 data. Sort by CPU or memory and use the filter field to locate a running process. Vantor does not launch external command-line tools to collect process telemetry.</source>
        <extracomment>%1 is the name of the system, %2 of what tells of processes: &quot;Linux procfs&quot;</extracomment>
        <translation>L’elenco dei processi usa i dati nativi di %1 forniti da %2. Ordinare per CPU o memoria e usare il campo di filtro per trovare un processo in esecuzione. Vantor non avvia strumenti esterni a riga di comando per raccogliere i dati dei processi.</translation>
    </message>
    <message>
        <source>Menu Bar and Windows</source>
        <translation>Area di notifica e finestre</translation>
    </message>
    <message>
        <source>When the menu bar dashboard is enabled, closing the main window keeps Vantor available from the menu bar. When it is disabled, closing the last window exits the app. Use Quit or %1 to terminate Vantor completely.</source>
        <extracomment>%1 is what is pressed to quit, such as Ctrl+Q</extracomment>
        <translation>Quando la dashboard nell’area di notifica è attiva, chiudendo la finestra principale Vantor resta disponibile nell’area di notifica. Quando è disattivata, chiudendo l’ultima finestra si esce dall’applicazione. Usare «Esci» o %1 per terminare completamente Vantor.</translation>
    </message>
    <message>
        <source>Vantor is a local %1 performance dashboard for live CPU, memory, network, GPU, storage, process and system telemetry.</source>
        <extracomment>%1 is the name of the system</extracomment>
        <translation>Vantor è una dashboard locale delle prestazioni di %1, con dati in tempo reale su CPU, memoria, rete, GPU, archiviazione, processi e sistema.</translation>
    </message>
    <message>
        <source>Export and Privacy</source>
        <translation>Esportazione e riservatezza</translation>
    </message>
    <message>
        <source>All monitoring is performed locally. Vantor does not perform analytics, public-IP lookups or automatic data transmission. A JSON snapshot is written only when you explicitly choose Export and select a destination.</source>
        <translation>Tutto il monitoraggio avviene localmente. Vantor non esegue analisi sull’utilizzo, ricerche dell’IP pubblico o trasmissioni automatiche di dati. Un’istantanea JSON viene scritta solo quando si sceglie espressamente «Esporta» e si seleziona una destinazione.</translation>
    </message>
    <message>
        <source>Amounts of memory and storage count in steps of 1024, so that 1 GB is 1,073,741,824 bytes, as the kernel hands memory out; rates count in steps of 1000, as networks do. A process&apos;s CPU share is of one processor: 100% is one kept busy, and a process on several has more.</source>
        <translation>Le quantità di memoria e di archiviazione si contano a passi di 1024, quindi 1&#xa0;GB equivale a 1.073.741.824&#xa0;byte, così come il kernel assegna la memoria; le velocità si contano a passi di 1000, come nelle reti. La quota di CPU di un processo si riferisce a un solo processore: 100% indica un processore del tutto occupato, e un processo che ne usa più di uno può superare questo valore.</translation>
    </message>
    <message>
        <source>What the Numbers Mean</source>
        <translation>Che cosa significano i numeri</translation>
    </message>
</context>
<context>
    <name>LastUpdateText</name>
    <message>
        <source>Collecting live data…</source>
        <translation>Raccolta dei dati in tempo reale…</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time of day</extracomment>
        <translation>Aggiornato: %1</translation>
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
        <translation>NOME</translation>
    </message>
    <message>
        <source>.Nm vantor</source>
        <translation>.Nm vantor</translation>
    </message>
    <message>
        <source>local performance dashboard for the desktop</source>
        <translation>dashboard locale delle prestazioni per il desktop</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>SINTASSI</translation>
    </message>
    <message>
        <source>.Nm
.Op Ar option</source>
        <translation>.Nm
.Op Ar option</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>DESCRIZIONE</translation>
    </message>
    <message>
        <source>.Nm
opens a window that shows what this computer is doing, live: processor, memory, network, graphics, storage, the
system with its battery, and the processes.
Closing the window keeps it in the tray, unless that is switched off in the settings or there is no tray.</source>
        <translation>.Nm
apre una finestra che mostra in tempo reale che cosa sta facendo questo computer: processore, memoria, rete, grafica, archiviazione, il
sistema con la sua batteria e i processi.
Chiusa la finestra, il programma resta nell’area di notifica, salvo che ciò sia disattivato nelle impostazioni o che l’area di notifica manchi.</translation>
    </message>
    <message>
        <source>One program runs on each display: started again,
.Nm
brings the running one&apos;s window forward and ends.</source>
        <translation>Su ogni schermo il programma viene eseguito una sola volta: avviato di nuovo,
.Nm
porta in primo piano la finestra di quello già in esecuzione e termina.</translation>
    </message>
    <message>
        <source>It is local: it opens no internet connection, starts no other program and collects nothing.
Where the kernel can, it enforces that; Help, About Vantor says whether it does.</source>
        <translation>Il programma è locale: non apre connessioni a Internet, non avvia altri programmi e non raccoglie nulla.
Dove il kernel può, lo impone; «Informazioni su Vantor», nel menu «Aiuto», indica se lo fa.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPZIONI</translation>
    </message>
    <message>
        <source>Each has the running program do something, or starts it for that:</source>
        <translation>Ognuna fa fare qualcosa al programma in esecuzione, o lo avvia a tale scopo:</translation>
    </message>
    <message>
        <source>stops the readings,</source>
        <translation>sospende le rilevazioni,</translation>
    </message>
    <message>
        <source>goes on with them,</source>
        <translation>le riprende,</translation>
    </message>
    <message>
        <source>reads everything now,</source>
        <translation>rileva subito tutti i valori,</translation>
    </message>
    <message>
        <source>asks where to save a snapshot,</source>
        <translation>chiede dove salvare un’istantanea,</translation>
    </message>
    <message>
        <source>opens the settings,</source>
        <translation>apre le impostazioni,</translation>
    </message>
    <message>
        <source>has no window, only the icon in the tray; without a tray, the window.</source>
        <translation>non apre la finestra, mostra solo l’icona nell’area di notifica; se quest’area manca, apre la finestra.</translation>
    </message>
    <message>
        <source>The same actions are in the menu of the icon that starts the program, and on the session&apos;s bus, where
.Dq com.kestrone.Vantor
answers as
.Dq org.freedesktop.Application .</source>
        <translation>Le stesse azioni sono nel menu dell’icona che avvia il programma e sul bus di sessione, dove
.Dq com.kestrone.Vantor
risponde come
.Dq org.freedesktop.Application .</translation>
    </message>
    <message>
        <source>These print a text and end:</source>
        <translation>Con queste il programma mostra un testo e termina:</translation>
    </message>
    <message>
        <source>prints the options,</source>
        <translation>mostra le opzioni,</translation>
    </message>
    <message>
        <source>prints the version.</source>
        <translation>mostra la versione.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <translation>AMBIENTE</translation>
    </message>
    <message>
        <source>The display, the first before the second.</source>
        <translation>Lo schermo; la prima variabile ha la precedenza sulla seconda.</translation>
    </message>
    <message>
        <source>The folder of the settings&apos; folder,
.Pa ~/.config
where it is not set or relative.</source>
        <translation>La cartella che contiene quella delle impostazioni,
.Pa ~/.config
se la variabile non è impostata o contiene un percorso relativo.</translation>
    </message>
    <message>
        <source>The folder of the lock and the socket by which a second start finds the first.</source>
        <translation>La cartella del file di blocco e del socket con cui un secondo avvio trova il primo.</translation>
    </message>
    <message>
        <source>The session&apos;s bus.
Only sockets of this machine are used.</source>
        <translation>Il bus di sessione.
Si usano solo socket di questo computer.</translation>
    </message>
    <message>
        <source>The language in whose order names are listed, the first that is set.</source>
        <translation>La lingua nel cui ordine sono elencati i nomi; vale la prima variabile impostata.</translation>
    </message>
    <message>
        <source>How the time of the day is written.</source>
        <translation>Come si scrive l’ora.</translation>
    </message>
    <message>
        <source>The desktop&apos;s permission to come forward.</source>
        <translation>Il permesso del desktop di portare la finestra in primo piano.</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>The settings.
A damaged file is kept beside it, as
.Pa settings.ini.damaged-1 ,
and the defaults are used.</source>
        <translation>Le impostazioni.
Un file danneggiato viene conservato accanto, come
.Pa settings.ini.damaged-1 ,
e si usano i valori predefiniti.</translation>
    </message>
    <message>
        <source>Where the window was.</source>
        <translation>Dov’era la finestra.</translation>
    </message>
    <message>
        <source>Opens the program at login, without a window; written and removed by its settings.</source>
        <translation>Apre il programma all’accesso, senza finestra; viene scritto e rimosso dalle impostazioni del programma.</translation>
    </message>
    <message>
        <source>Lock and socket of the running program.</source>
        <translation>File di blocco e socket del programma in esecuzione.</translation>
    </message>
    <message>
        <source>The names of graphics cards; without it they are shown by their numbers.</source>
        <translation>I nomi delle schede grafiche; senza questo file ne vengono mostrati i numeri.</translation>
    </message>
    <message>
        <source>Every key of an exported snapshot and its unit.</source>
        <translation>Ogni chiave di un’istantanea esportata e la sua unità.</translation>
    </message>
    <message>
        <source>Besides these, it writes only what is exported.</source>
        <translation>Oltre a ciò, il programma scrive solo quanto viene esportato.</translation>
    </message>
    <message>
        <source>SIGNALS</source>
        <translation>SEGNALI</translation>
    </message>
    <message>
        <source>End the program orderly, within five seconds.
A second one, more than 0.3 seconds after the first, ends it at once.
What is ignored when the program is started (see
.Xr nohup 1 )
stays ignored.</source>
        <translation>Terminano il programma in modo ordinato, entro cinque secondi.
Un secondo segnale, più di 0,3&#xa0;secondi dopo il primo, lo termina subito.
Un segnale ignorato all’avvio del programma (vedere
.Xr nohup 1 )
resta ignorato.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>STATO DI USCITA</translation>
    </message>
    <message>
        <source>The program was quit, ended by the first signal, or has brought another one forward.</source>
        <translation>Il programma è stato chiuso, è stato terminato dal primo segnale o ne ha portato in primo piano un altro già in esecuzione.</translation>
    </message>
    <message>
        <source>There is no display that it can open, or too little memory, too few threads or file descriptors to go on.
One line on standard error says which.</source>
        <translation>Non c’è uno schermo che il programma possa aprire, oppure la memoria, i thread o i descrittori di file non bastano per proseguire.
Una riga sullo standard error indica il motivo.</translation>
    </message>
    <message>
        <source>An argument is none of the options.</source>
        <translation>Un argomento non corrisponde ad alcuna opzione.</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>VEDERE ANCHE</translation>
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
        <translation>In attesa dei dati della memoria</translation>
    </message>
    <message>
        <source>%1 installed</source>
        <extracomment>%1 is an amount of memory</extracomment>
        <translation>%1 installati</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>the title of the card</extracomment>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>In Use</source>
        <extracomment>under the share of memory that is used</extracomment>
        <translation>In uso</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>memory used lately; the short label of a figure</extracomment>
        <translation>Attiva</translation>
    </message>
    <message>
        <source>Wired</source>
        <extracomment>memory that the system keeps and cannot swap out; the short label of a figure</extracomment>
        <translation>Riservata</translation>
    </message>
    <message>
        <source>Compressed</source>
        <extracomment>memory that is kept compressed; the short label of a figure</extracomment>
        <translation>Compressa</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>memory that programs can have; the short label of a figure</extracomment>
        <translation>Disponibile</translation>
    </message>
    <message>
        <source>Memory history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>Cronologia memoria</translation>
    </message>
    <message>
        <source>Top Memory Processes</source>
        <extracomment>the processes that use most memory</extracomment>
        <translation>Processi con più memoria</translation>
    </message>
</context>
<context>
    <name>MenuBarDashboard</name>
    <message>
        <source>Open Dashboard</source>
        <extracomment>a button</extracomment>
        <translation>Apri dashboard</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>a button: read everything now</extracomment>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>opens the settings</extracomment>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a button: end the program</extracomment>
        <translation>Esci</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>the short title of a figure</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>the short title of a figure</extracomment>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Collecting live data…</source>
        <translation>Raccolta dei dati in tempo reale…</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>a button: stop reading</extracomment>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>a button: go on reading</extracomment>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>for screen readers: whether the figures are live</extracomment>
        <translation>Stato</translation>
    </message>
</context>
<context>
    <name>NetworkCard</name>
    <message>
        <source>Not assigned</source>
        <extracomment>no address</extracomment>
        <translation>Non assegnato</translation>
    </message>
    <message>
        <source>Waiting for network data</source>
        <translation>In attesa dei dati di rete</translation>
    </message>
    <message>
        <source>Active interface: %1</source>
        <extracomment>%1 is the name of a network interface</extracomment>
        <translation>Interfaccia attiva: %1</translation>
    </message>
    <message>
        <source>No active interface</source>
        <translation>Nessuna interfaccia attiva</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>the title of the card</extracomment>
        <translation>Rete</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>the speed at which data comes in</extracomment>
        <translation>Ricezione</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>the speed at which data goes out</extracomment>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Hostname</source>
        <translation>Nome host</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>a host without a name</extracomment>
        <translation>Sconosciuto</translation>
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
        <translation>Interfacce</translation>
    </message>
</context>
<context>
    <name>PowerView</name>
    <message>
        <source>AC connected</source>
        <extracomment>the computer is plugged in</extracomment>
        <translation>Alimentatore collegato</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>A batteria</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a time, such as 1h 20m</extracomment>
        <translation>Carica completa tra %1</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <translation>Tempo rimasto: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln charge cycle(s)</source>
        <comment>of the battery</comment>
        <translation>
            <numerusform>%Ln ciclo di carica</numerusform>
            <numerusform>%Ln cicli di carica</numerusform>
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
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Waiting for Processes</source>
        <translation>In attesa dei processi</translation>
    </message>
    <message>
        <source>No process data is available yet.</source>
        <translation>Non sono ancora disponibili dati sui processi.</translation>
    </message>
    <message>
        <source>No Matching Processes</source>
        <translation>Nessun processo corrispondente</translation>
    </message>
    <message>
        <source>No process matches “%1”.</source>
        <extracomment>%1 is what the user has typed</extracomment>
        <translation>Nessun processo corrisponde a «%1».</translation>
    </message>
    <message>
        <source>Process Explorer</source>
        <extracomment>the title of the card</extracomment>
        <translation>Esplora processi</translation>
    </message>
    <message>
        <source>Live process activity</source>
        <translation>Attività dei processi in tempo reale</translation>
    </message>
    <message>
        <source>Filter processes</source>
        <extracomment>shown in an empty field that is typed into</extracomment>
        <translation>Filtra processi</translation>
    </message>
    <message>
        <source>Sort</source>
        <extracomment>for screen readers: by what the list is sorted</extracomment>
        <translation>Ordinamento</translation>
    </message>
</context>
<context>
    <name>ProcessHeader</name>
    <message>
        <source>Process</source>
        <extracomment>the heading of a column</extracomment>
        <translation>Processo</translation>
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
        <translation>Memoria</translation>
    </message>
</context>
<context>
    <name>ProcessMiniList</name>
    <message>
        <source>Waiting for process data…</source>
        <translation>In attesa dei dati dei processi…</translation>
    </message>
</context>
<context>
    <name>ProcessTableView</name>
    <message numerus="yes">
        <source>%Ln process(es)</source>
        <comment>for screen readers: in the list</comment>
        <translation>
            <numerusform>%Ln processo</numerusform>
            <numerusform>%Ln processi</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, PID %2, CPU %3, memory %4</source>
        <extracomment>for screen readers: the name of a process, its number, its share of the processor, its memory</extracomment>
        <translation>%1, PID %2, CPU %3, memoria %4</translation>
    </message>
    <message>
        <source>Processes</source>
        <extracomment>the list, for screen readers</extracomment>
        <translation>Processi</translation>
    </message>
    <message>
        <source>100% is one processor: a process that keeps two busy has 200%. A click sorts by it.</source>
        <extracomment>what a process&apos;s percentage is of; the title of a column is pointed at</extracomment>
        <translation>100% è un processore: un processo che ne occupa due arriva al 200%. Un clic ordina in base a questa colonna.</translation>
    </message>
    <message>
        <source>The memory that a process has in use now. A click sorts by it.</source>
        <extracomment>the title of a column is pointed at</extracomment>
        <translation>La memoria che un processo sta usando. Un clic ordina in base a questa colonna.</translation>
    </message>
    <message>
        <source>A full bar is the largest of the processes shown.</source>
        <translation>Una barra piena corrisponde al valore più alto tra i processi mostrati.</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>a command: the whole row of a process</extracomment>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <extracomment>a command</extracomment>
        <translation>Copia nome</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <extracomment>a command: where the program of a process lies</extracomment>
        <translation>Copia percorso</translation>
    </message>
    <message>
        <source>Filter by This Name</source>
        <extracomment>a command: show the processes of that name only</extracomment>
        <translation>Filtra per questo nome</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>a button</extracomment>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>JSON document</source>
        <extracomment>a kind of file</extracomment>
        <translation>Documento JSON</translation>
    </message>
    <message>
        <source>All files</source>
        <extracomment>a kind of file: any</extracomment>
        <translation>Tutti i file</translation>
    </message>
    <message>
        <source>%1, folder</source>
        <extracomment>for screen readers; %1 is the name of a folder</extracomment>
        <translation>%1, cartella</translation>
    </message>
    <message>
        <source>Folders and files</source>
        <extracomment>for screen readers: the contents of a folder</extracomment>
        <translation>Cartelle e file</translation>
    </message>
    <message>
        <source>Warning</source>
        <extracomment>for screen readers: the sign beside a warning</extracomment>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>The disk does not answer. Please choose another folder, or try again.</source>
        <translation>Il disco non risponde. Scegliere un’altra cartella o riprovare.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>La cartella non esiste.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>Questa non è una cartella.</translation>
    </message>
    <message>
        <source>You do not have the permission to look into this folder.</source>
        <translation>Non si dispone dei permessi per consultare questa cartella.</translation>
    </message>
    <message>
        <source>The folder cannot be read.</source>
        <translation>Impossibile leggere la cartella.</translation>
    </message>
    <message>
        <source>You do not have the permission to make a folder here.</source>
        <translation>Non si dispone dei permessi per creare una cartella qui.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Il nome è troppo lungo.</translation>
    </message>
    <message>
        <source>The folder could not be made.</source>
        <translation>Impossibile creare la cartella.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Scrivania</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Scaricati</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Looking for your folders…</source>
        <translation>Ricerca delle proprie cartelle…</translation>
    </message>
    <message>
        <source>Last used</source>
        <extracomment>the folder that was saved to before</extracomment>
        <translation>Ultima usata</translation>
    </message>
    <message>
        <source>Looking into the folder…</source>
        <translation>Lettura della cartella…</translation>
    </message>
    <message>
        <source>You do not have the permission to save in this folder.</source>
        <translation>Non si dispone dei permessi per salvare in questa cartella.</translation>
    </message>
    <message numerus="yes">
        <source>Only the first %Ln of this folder are shown.</source>
        <comment>files and folders</comment>
        <translation>
            <numerusform>È mostrato solo %Ln elemento di questa cartella.</numerusform>
            <numerusform>Sono mostrati solo i primi %Ln elementi di questa cartella.</numerusform>
        </translation>
    </message>
    <message>
        <source>New Folder</source>
        <extracomment>the title of a box</extracomment>
        <translation>Nuova cartella</translation>
    </message>
    <message>
        <source>Name of the new folder:</source>
        <translation>Nome della nuova cartella:</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>C&amp;rea</translation>
    </message>
    <message>
        <source>Making the folder…</source>
        <translation>Creazione della cartella…</translation>
    </message>
    <message>
        <source>Please type a name for the file.</source>
        <translation>Digitare un nome per il file.</translation>
    </message>
    <message>
        <source>Please choose a folder first.</source>
        <translation>Scegliere prima una cartella.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <extracomment>whether a file can be saved there</extracomment>
        <translation>Controllo in corso…</translation>
    </message>
    <message>
        <source>Places</source>
        <extracomment>for screen readers: the list of well-known folders</extracomment>
        <translation>Risorse</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <extracomment>of the file; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <extracomment>the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Cartella:</translation>
    </message>
    <message>
        <source>Parent folder (Alt+Up)</source>
        <extracomment>a button; Alt+Up is what can be pressed instead</extracomment>
        <translation>Cartella superiore (Alt+Su)</translation>
    </message>
    <message>
        <source>New folder</source>
        <extracomment>a button</extracomment>
        <translation>Nuova cartella</translation>
    </message>
    <message>
        <source>Replace File</source>
        <extracomment>the title of a box</extracomment>
        <translation>Sostituisci file</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists. Do you want to replace it?</source>
        <extracomment>%1 is the name of a file</extracomment>
        <translation>«%1» esiste già. Sostituirlo?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>S&amp;ostituisci</translation>
    </message>
</context>
<context>
    <name>SettingsForm</name>
    <message numerus="yes">
        <source>Chart history: %Ln sample(s)</source>
        <comment>how many readings the charts keep</comment>
        <translation>
            <numerusform>Cronologia dei grafici: %Ln campione</numerusform>
            <numerusform>Cronologia dei grafici: %Ln campioni</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 second</source>
        <extracomment>half a second, as a number</extracomment>
        <translation>%1 secondi</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <extracomment>a number of seconds that is not whole</extracomment>
        <translation>%1 secondi</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the theme: as the desktop has it</extracomment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>the theme</extracomment>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>the theme</extracomment>
        <translation>Scuro</translation>
    </message>
    <message numerus="yes">
        <source>%Ln second(s)</source>
        <comment>how often the figures are read</comment>
        <translation>
            <numerusform>%Ln secondo</numerusform>
            <numerusform>%Ln secondi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Open at Login</source>
        <extracomment>a switch: start the program when the user logs in</extracomment>
        <translation>Apri all’accesso</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <extracomment>settings that could not be stored; %1 is a sentence that says why</extracomment>
        <translation>Non salvato: %1</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>whether colours are dark or light</extracomment>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Monitoring</source>
        <translation>Monitoraggio</translation>
    </message>
    <message>
        <source>Refresh interval</source>
        <extracomment>how often the figures are read</extracomment>
        <translation>Intervallo di aggiornamento</translation>
    </message>
    <message>
        <source>Chart history</source>
        <extracomment>how many readings the charts keep</extracomment>
        <translation>Cronologia dei grafici</translation>
    </message>
    <message numerus="yes">
        <source>%Ln sample(s)</source>
        <comment>for screen readers: how many readings the charts keep</comment>
        <translation>
            <numerusform>%Ln campione</numerusform>
            <numerusform>%Ln campioni</numerusform>
        </translation>
    </message>
    <message>
        <source>Include point-to-point and tunnel interfaces</source>
        <extracomment>a switch: network interfaces, such as those of a VPN</extracomment>
        <translation>Includi interfacce punto-punto e tunnel</translation>
    </message>
    <message>
        <source>Show menu bar dashboard</source>
        <extracomment>a switch: the icon in the tray and its panel</extracomment>
        <translation>Mostra la dashboard nell’area di notifica</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Dati</translation>
    </message>
    <message>
        <source>Network privacy</source>
        <extracomment>a label</extracomment>
        <translation>Riservatezza di rete</translation>
    </message>
    <message>
        <source>No public IP lookup</source>
        <extracomment>the program does not ask the internet for the address</extracomment>
        <translation>Nessuna ricerca dell’IP pubblico</translation>
    </message>
    <message>
        <source>Process source</source>
        <extracomment>a label: where figures of processes come from</extracomment>
        <translation>Fonte dei processi</translation>
    </message>
    <message>
        <source>Native %1 %2</source>
        <extracomment>the name of the system, and of what tells of processes: &quot;Native Linux procfs&quot;</extracomment>
        <translation>%2 nativo di %1</translation>
    </message>
    <message>
        <source>GPU telemetry</source>
        <extracomment>a label: where figures of graphics come from</extracomment>
        <translation>Dati GPU</translation>
    </message>
    <message>
        <source>Export Current Snapshot…</source>
        <extracomment>a button</extracomment>
        <translation>Esporta istantanea attuale…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>a heading: about the program</extracomment>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Application</source>
        <extracomment>a label</extracomment>
        <translation>Applicazione</translation>
    </message>
    <message>
        <source>This desktop has no tray to show it in.</source>
        <translation>Questo desktop non ha un’area di notifica in cui mostrarla.</translation>
    </message>
</context>
<context>
    <name>SoftwareCentre</name>
    <message>
        <source>See what this computer is doing, live and at a glance</source>
        <translation>Mostra in tempo reale e a colpo d’occhio che cosa sta facendo questo computer</translation>
    </message>
    <message>
        <source>Vantor shows what the computer is doing on one page, in a window that costs next to nothing to keep open: processor, memory, network, graphics, storage and the system with its battery, each with short histories where there is something to follow.</source>
        <translation>Vantor mostra in una sola pagina che cosa sta facendo il computer, in una finestra che si può tenere aperta a costo quasi nullo: processore, memoria, rete, grafica, archiviazione e il sistema con la sua batteria, ciascuno con brevi cronologie dove c’è qualcosa da seguire.</translation>
    </message>
    <message>
        <source>What there is beside the cards:</source>
        <translation>Oltre ai riquadri ci sono:</translation>
    </message>
    <message>
        <source>a process explorer with the heaviest processes, and a filter over all of them</source>
        <translation>un elenco «Esplora processi» con i processi più pesanti e un filtro su tutti</translation>
    </message>
    <message>
        <source>a tray icon with a panel of the most important figures</source>
        <translation>un’icona nell’area di notifica con un pannello dei valori più importanti</translation>
    </message>
    <message>
        <source>export of all figures as one JSON document</source>
        <translation>l’esportazione di tutti i valori in un solo documento JSON</translation>
    </message>
    <message>
        <source>It is local: it opens no internet connection, starts no other program and collects nothing, and the kernel enforces that. A figure that the system does not publish is shown as words, never as zero. Everything is reached by keyboard, and told to screen readers.</source>
        <translation>Il programma è locale: non apre connessioni a Internet, non avvia altri programmi e non raccoglie nulla, e il kernel lo impone. Un valore che il sistema non fornisce è indicato a parole, mai come zero. Tutto è raggiungibile da tastiera e viene comunicato ai lettori di schermo.</translation>
    </message>
    <message>
        <source>The dashboard of a laptop, dark</source>
        <translation>La dashboard di un portatile, tema scuro</translation>
    </message>
    <message>
        <source>The dashboard of a laptop, light</source>
        <translation>La dashboard di un portatile, tema chiaro</translation>
    </message>
    <message>
        <source>The first release.</source>
        <translation>La prima versione.</translation>
    </message>
</context>
<context>
    <name>StorageCard</name>
    <message>
        <source>Waiting for storage data</source>
        <translation>In attesa dei dati di archiviazione</translation>
    </message>
    <message numerus="yes">
        <source>%Ln mounted volume(s)</source>
        <translation>
            <numerusform>%Ln volume montato</numerusform>
            <numerusform>%Ln volumi montati</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <extracomment>the title of the card</extracomment>
        <translation>Archiviazione</translation>
    </message>
    <message>
        <source>No Volumes</source>
        <extracomment>there is no disk to be shown</extracomment>
        <translation>Nessun volume</translation>
    </message>
</context>
<context>
    <name>SystemCard</name>
    <message>
        <source>Waiting for system data</source>
        <translation>In attesa dei dati di sistema</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the title of the card: the whole machine</extracomment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>a text that the machine does not tell</extracomment>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <source>Operating System</source>
        <translation>Sistema operativo</translation>
    </message>
    <message>
        <source>Kernel Build</source>
        <translation>Versione del kernel</translation>
    </message>
    <message>
        <source>Architecture</source>
        <extracomment>of the processor</extracomment>
        <translation>Architettura</translation>
    </message>
    <message>
        <source>Uptime</source>
        <extracomment>the time since the machine was started</extracomment>
        <translation>Tempo di attività</translation>
    </message>
    <message>
        <source>Thermal State</source>
        <extracomment>how hot the machine is, in words</extracomment>
        <translation>Stato termico</translation>
    </message>
    <message>
        <source>Low Power Mode</source>
        <translation>Risparmio energetico</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>the low power mode</extracomment>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>the low power mode</extracomment>
        <translation>Disattivato</translation>
    </message>
</context>
<context>
    <name>VantorApp</name>
    <message>
        <source>Vantor (collecting live data)</source>
        <extracomment>the name of the window until figures have been read</extracomment>
        <translation>Vantor (raccolta dei dati in tempo reale)</translation>
    </message>
    <message>
        <source>Vantor Settings</source>
        <extracomment>the title of a window</extracomment>
        <translation>Impostazioni di Vantor</translation>
    </message>
    <message>
        <source>Vantor Help</source>
        <extracomment>the title of a window</extracomment>
        <translation>Aiuto di Vantor</translation>
    </message>
</context>
<context>
    <name>VolumeView</name>
    <message>
        <source>%1 used</source>
        <extracomment>%1 is an amount, of a disk</extracomment>
        <translation>%1 usati</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount, of a disk</extracomment>
        <translation>%1 liberi</translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <extracomment>%1 is where a disk is found, such as /home</extracomment>
        <translation>%1 (sola lettura)</translation>
    </message>
    <message>
        <source>%1 full, %2, %3</source>
        <extracomment>for screen readers: %1 is a share such as 45%, %2 &quot;120 GB used&quot;, %3 &quot;90 GB free&quot;</extracomment>
        <translation>Pieno al %1, %2, %3</translation>
    </message>
</context>
</TS>
