<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About Vantor</source>
        <extracomment>the title of a window</extracomment>
        <translation>Acerca de Vantor</translation>
    </message>
    <message>
        <source>Version %1 (%2)

Built by the Vantor founders. Everything it shows, it reads on this machine, and it stays here.

Confined by the kernel: %3</source>
        <extracomment>%1 is the version, %2 the build, %3 is &quot;yes&quot;, &quot;no&quot; or what is missing</extracomment>
        <translation>Versión %1 (%2)

Creado por los fundadores de Vantor. Todo lo que muestra se lee en este equipo y no sale de él.

Confinado por el núcleo: %3</translation>
    </message>
</context>
<context>
    <name>AppCommands</name>
    <message>
        <source>About Vantor</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Acerca de Vantor</translation>
    </message>
    <message>
        <source>Refresh Now</source>
        <extracomment>a command of the menu: read everything now</extracomment>
        <translation>Actualizar ahora</translation>
    </message>
    <message>
        <source>Export Snapshot…</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Exportar instantánea…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Configuración…</translation>
    </message>
    <message>
        <source>Vantor Help</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Ayuda de Vantor</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Close Window</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Cerrar la ventana</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>a menu; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>a menu; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>A&amp;yuda</translation>
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
            <numerusform>%Ln bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CPUCard</name>
    <message>
        <source>%1 physical • %2 logical cores</source>
        <extracomment>the numbers of cores; %1 stays in front where both are read as one phrase</extracomment>
        <translation>%1 núcleos físicos • %2 lógicos</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>the title of the card</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>CPU Load</source>
        <extracomment>under the share of the processor that is busy</extracomment>
        <translation>Carga de CPU</translation>
    </message>
    <message>
        <source>%1 GHz</source>
        <extracomment>a frequency</extracomment>
        <translation>%1 GHz</translation>
    </message>
    <message>
        <source>User</source>
        <extracomment>the share of time spent in programs</extracomment>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the share of time spent in the operating system</extracomment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Nominal</source>
        <extracomment>the frequency that the processor is sold with</extracomment>
        <translation>Nominal</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Load avg %1</source>
        <extracomment>%1 are the averages of the last minutes, such as 0.52 0.58 0.59</extracomment>
        <translation>Carga media %1</translation>
    </message>
    <message>
        <source>CPU history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>Historial de la CPU</translation>
    </message>
    <message>
        <source>Core Activity</source>
        <extracomment>how busy each logical processor is</extracomment>
        <translation>Actividad de los núcleos</translation>
    </message>
    <message>
        <source>Top CPU Processes</source>
        <extracomment>the processes that keep the processor busiest</extracomment>
        <translation>Procesos con más CPU</translation>
    </message>
</context>
<context>
    <name>CardTexts</name>
    <message>
        <source>Not published</source>
        <extracomment>a figure that the machine does not tell</extracomment>
        <translation>Sin datos</translation>
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
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <extracomment>minutes, as short as possible</extracomment>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <extracomment>minutes and seconds, as short as possible</extracomment>
        <translation>%1&#xa0;min %2&#xa0;s</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>hours and minutes, as short as possible</extracomment>
        <translation>%1&#xa0;h %2&#xa0;min</translation>
    </message>
    <message>
        <source>now</source>
        <extracomment>a sample of a chart, that was taken just now</extracomment>
        <translation>ahora</translation>
    </message>
    <message>
        <source>%1 ago</source>
        <extracomment>%1 is a time: when a sample of a chart was taken</extracomment>
        <translation>hace %1</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>from the smallest to the largest value</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>The width is the last %1.</source>
        <extracomment>of a chart; %1 is a time</extracomment>
        <translation>El ancho abarca un período de %1 hasta ahora.</translation>
    </message>
    <message>
        <source>The height is %1 to %2.</source>
        <extracomment>of a chart; both are values: 0 % and 100 %</extracomment>
        <translation>La altura va de %1 a %2.</translation>
    </message>
    <message>
        <source>The height is the smallest to the largest value shown.</source>
        <extracomment>of a chart</extracomment>
        <translation>La altura va del menor al mayor valor mostrado.</translation>
    </message>
    <message>
        <source>The height is the smallest to the largest value shown: %1.</source>
        <extracomment>of a chart; %1 are these two values</extracomment>
        <translation>La altura va del menor al mayor valor mostrado: %1.</translation>
    </message>
</context>
<context>
    <name>CoreActivity</name>
    <message>
        <source>Core %1: %2</source>
        <extracomment>%1 is the number of a logical processor, %2 how busy it is</extracomment>
        <translation>Núcleo %1: %2</translation>
    </message>
    <message>
        <source>Core Activity</source>
        <extracomment>how busy each logical processor is</extracomment>
        <translation>Actividad de los núcleos</translation>
    </message>
</context>
<context>
    <name>CoreWords</name>
    <message>
        <source>Detecting processor…</source>
        <translation>Detectando el procesador…</translation>
    </message>
    <message>
        <source>Detecting host…</source>
        <translation>Detectando el equipo…</translation>
    </message>
    <message>
        <source>Detecting hardware…</source>
        <translation>Detectando el hardware…</translation>
    </message>
    <message>
        <source>Detecting macOS…</source>
        <translation>Detectando macOS…</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>what the machine does not tell</extracomment>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Nominal</source>
        <extracomment>how hot the machine is: as usual</extracomment>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Fair</source>
        <extracomment>how hot the machine is: a little</extracomment>
        <translation>Moderado</translation>
    </message>
    <message>
        <source>Serious</source>
        <extracomment>how hot the machine is: it slows down</extracomment>
        <translation>Elevado</translation>
    </message>
    <message>
        <source>Critical</source>
        <extracomment>how hot the machine is: it may turn itself off</extracomment>
        <translation>Crítico</translation>
    </message>
    <message>
        <source>Battery</source>
        <extracomment>of a battery that has no name</extracomment>
        <translation>Batería</translation>
    </message>
    <message>
        <source>Live Linux performance intelligence</source>
        <translation>El rendimiento de Linux en tiempo real</translation>
    </message>
    <message>
        <source>Live macOS performance intelligence</source>
        <translation>El rendimiento de macOS en tiempo real</translation>
    </message>
    <message>
        <source>Unknown Computer</source>
        <translation>Equipo desconocido</translation>
    </message>
    <message>
        <source>Unknown Mac</source>
        <translation>Mac desconocido</translation>
    </message>
    <message>
        <source>No Graphics Device</source>
        <translation>Ningún dispositivo gráfico</translation>
    </message>
    <message>
        <source>No Metal Device</source>
        <translation>Ningún dispositivo Metal</translation>
    </message>
    <message>
        <source>The active graphics driver did not expose a graphics device.</source>
        <translation>El controlador gráfico activo no ha comunicado ningún dispositivo gráfico.</translation>
    </message>
    <message>
        <source>The active graphics driver did not expose a Metal device.</source>
        <translation>El controlador gráfico activo no ha comunicado ningún dispositivo Metal.</translation>
    </message>
    <message>
        <source>No browsable mounted volume was returned by Linux.</source>
        <translation>Linux no ha devuelto ningún volumen montado que se pueda explorar.</translation>
    </message>
    <message>
        <source>No browsable mounted volume was returned by macOS.</source>
        <translation>macOS no ha devuelto ningún volumen montado que se pueda explorar.</translation>
    </message>
    <message>
        <source>Load of your own processes</source>
        <extracomment>the load of the graphics device is known for the user&apos;s processes only</extracomment>
        <translation>Carga de sus procesos</translation>
    </message>
    <message>
        <source>Export System Snapshot</source>
        <extracomment>the title of the dialog that asks where to save</extracomment>
        <translation>Exportar instantánea del sistema</translation>
    </message>
    <message>
        <source>Snapshot Export Failed</source>
        <extracomment>the title of an alert</extracomment>
        <translation>Error al exportar la instantánea</translation>
    </message>
    <message>
        <source>yes</source>
        <extracomment>whether the kernel confines the program, behind a colon</extracomment>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <extracomment>whether the kernel confines the program, behind a colon</extracomment>
        <translation>no</translation>
    </message>
    <message>
        <source>Something that is not an ordinary file has that name.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Ya existe con ese nombre algo que no es un archivo normal.</translation>
    </message>
    <message>
        <source>You do not have the permission to write there.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>No tiene permiso para escribir ahí.</translation>
    </message>
    <message>
        <source>You have used up the space that you may use on the disk.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Ha agotado el espacio que puede usar en el disco.</translation>
    </message>
    <message>
        <source>The file would be larger than it may be there.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>El archivo superaría el tamaño permitido ahí.</translation>
    </message>
    <message>
        <source>The disk could not be written to.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>No se ha podido escribir en el disco.</translation>
    </message>
    <message>
        <source>A folder has that name.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Existe una carpeta con ese nombre.</translation>
    </message>
    <message>
        <source>The symbolic links there lead in a circle.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Los enlaces simbólicos que hay ahí forman un bucle.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Hay demasiados archivos abiertos.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>El nombre es demasiado largo.</translation>
    </message>
    <message>
        <source>The disk is not there any more.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>El disco ya no está disponible.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>La carpeta no existe.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>No hay suficiente memoria.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>No hay suficiente espacio en el disco.</translation>
    </message>
    <message>
        <source>The place for it is not a folder.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>La ubicación indicada no es una carpeta.</translation>
    </message>
    <message>
        <source>The disk can only be read.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>El disco es de solo lectura.</translation>
    </message>
    <message>
        <source>Too many damaged files are kept there.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>Ya se conservan ahí demasiados archivos dañados.</translation>
    </message>
    <message>
        <source>The program&apos;s own file has no name that can be kept.</source>
        <extracomment>why the program cannot be opened at login</extracomment>
        <translation>El archivo del programa tiene un nombre que no se puede guardar.</translation>
    </message>
    <message>
        <source>The file would be too large.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>El archivo sería demasiado grande.</translation>
    </message>
    <message>
        <source>The disk does not answer.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>El disco no responde.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved. %2</source>
        <extracomment>%1 is a file&apos;s name, %2 the sentence that says why</extracomment>
        <translation>No se ha podido guardar «%1». %2</translation>
    </message>
    <message>
        <source>The system gave the reason &quot;%1&quot; (%2).</source>
        <extracomment>%1 is the system&apos;s own text, %2 its number</extracomment>
        <translation>El sistema indicó el motivo «%1» (%2).</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>Estado desconocido: %1</translation>
    </message>
    <message>
        <source>Not changed: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>Sin cambios: %1</translation>
    </message>
    <message>
        <source>Not changed yet: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>Todavía sin cambios: %1</translation>
    </message>
    <message>
        <source>in part (without %1)</source>
        <extracomment>whether the kernel confines the program, behind a colon; %1 is a list of names</extracomment>
        <translation>en parte (sin %1)</translation>
    </message>
    <message>
        <source>Nominal is the frequency that the processor is made for, as its driver or its name tells it, not the present one.</source>
        <extracomment>what the figure &quot;Nominal&quot; of the processor means</extracomment>
        <translation>«Nominal» es la frecuencia para la que está hecho el procesador, según su controlador o su nombre, no la actual.</translation>
    </message>
    <message>
        <source>Wired is memory that cannot be moved out: the kernel&apos;s own and what programs have locked.</source>
        <extracomment>what the figure &quot;Wired&quot; of the memory means</extracomment>
        <translation>«Reservada» es la memoria que no se puede sacar de la RAM: la del propio núcleo y la que han bloqueado los programas.</translation>
    </message>
    <message>
        <source>Compressed is the memory that zram and zswap keep compressed pages in.</source>
        <extracomment>what the figure &quot;Compressed&quot; of the memory means</extracomment>
        <translation>«Comprimida» es la memoria en la que zram y zswap guardan páginas comprimidas.</translation>
    </message>
    <message>
        <source>Thermal State compares the thermal zones with their own limits: Fair where the kernel begins to slow down, Serious where it is nearly too hot, Critical where it switches off.</source>
        <extracomment>what the figure &quot;Thermal State&quot; means</extracomment>
        <translation>«Estado térmico» compara las zonas térmicas con sus propios límites: «Moderado» cuando el núcleo empieza a ralentizar el equipo, «Elevado» cuando está casi demasiado caliente, «Crítico» cuando el núcleo lo apaga.</translation>
    </message>
    <message>
        <source>Low Power Mode is on while the firmware&apos;s profile or the processors&apos; own preference is to save power.</source>
        <extracomment>what the figure &quot;Low Power Mode&quot; means</extracomment>
        <translation>«Modo de bajo consumo» está activado mientras el perfil del firmware o la preferencia de los propios procesadores sea ahorrar energía.</translation>
    </message>
</context>
<context>
    <name>DashboardHeader</name>
    <message>
        <source>Paused</source>
        <extracomment>the state: the figures stand still</extracomment>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Live</source>
        <extracomment>the state: the figures follow the machine</extracomment>
        <translation>En vivo</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>a button: go on reading</extracomment>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>a button: stop reading</extracomment>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>a number of seconds, short</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>a button: read everything now</extracomment>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>a button: save a snapshot to a file</extracomment>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a button: end the program</extracomment>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>for screen readers: whether the figures are live</extracomment>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Refresh interval</source>
        <extracomment>how often the figures are read</extracomment>
        <translation>Intervalo de actualización</translation>
    </message>
</context>
<context>
    <name>DesktopFile</name>
    <message>
        <source>Performance Dashboard</source>
        <extracomment>the kind of program</extracomment>
        <translation>Panel de rendimiento</translation>
    </message>
    <message>
        <source>See what this computer is doing, live and at a glance</source>
        <translation>Vea en tiempo real y de un vistazo lo que hace este equipo</translation>
    </message>
    <message>
        <source>performance;system;monitor;processor;CPU;memory;RAM;network;graphics;GPU;disk;storage;battery;temperature;process;task;load;</source>
        <translation>rendimiento;sistema;monitor;procesador;CPU;memoria;RAM;red;gráficos;GPU;disco;almacenamiento;batería;temperatura;proceso;tareas;carga;</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Export Current Snapshot…</source>
        <translation>Exportar la instantánea actual…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configuración…</translation>
    </message>
    <message>
        <source>Run in the Background</source>
        <translation>Ejecutar en segundo plano</translation>
    </message>
</context>
<context>
    <name>Formatters</name>
    <message>
        <source>Unknown</source>
        <extracomment>a time that the machine does not tell</extracomment>
        <translation>Desconocido</translation>
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
        <translation>Esperando datos gráficos</translation>
    </message>
    <message>
        <source>Graphics</source>
        <extracomment>the title of the card</extracomment>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>GPU Load</source>
        <extracomment>under the share of the graphics device that is busy</extracomment>
        <translation>Carga de GPU</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>VRAM Used</source>
        <extracomment>memory of the graphics device</extracomment>
        <translation>VRAM usada</translation>
    </message>
    <message>
        <source>VRAM Total</source>
        <extracomment>memory of the graphics device</extracomment>
        <translation>VRAM total</translation>
    </message>
    <message>
        <source>GPU history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>Historial de la GPU</translation>
    </message>
    <message>
        <source>Graphics Devices</source>
        <extracomment>the heading of a list</extracomment>
        <translation>Dispositivos gráficos</translation>
    </message>
</context>
<context>
    <name>GraphicsDeviceView</name>
    <message>
        <source>Recommended Working Set</source>
        <extracomment>how much graphics memory the driver recommends to use</extracomment>
        <translation>Uso recomendado</translation>
    </message>
    <message>
        <source>Unified memory architecture</source>
        <extracomment>graphics that share the memory of the processor</extracomment>
        <translation>Memoria unificada</translation>
    </message>
    <message>
        <source>Discrete graphics</source>
        <extracomment>a graphics device with memory of its own</extracomment>
        <translation>Gráficos dedicados</translation>
    </message>
</context>
<context>
    <name>HelpTexts</name>
    <message>
        <source>%1 or %2 seconds</source>
        <extracomment>%1 are all numbers but the last: &quot;0.5, 1, 2, 5 or 10 seconds&quot;</extracomment>
        <translation>%1 o %2 segundos</translation>
    </message>
    <message>
        <source>Live Monitoring</source>
        <translation>Supervisión en tiempo real</translation>
    </message>
    <message>
        <source>Choose a refresh interval from %1. Pause stops periodic sampling, Refresh Now requests a fresh snapshot, and the charts keep only the configured bounded history.</source>
        <extracomment>%1 is &quot;0.5, 1, 2, 5 or 10 seconds&quot;</extracomment>
        <translation>Elija un intervalo de actualización de %1. «Pausar» detiene las mediciones periódicas, «Actualizar ahora» solicita datos nuevos de inmediato y los gráficos conservan únicamente el historial limitado que se haya configurado.</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>CPU shows total and per-logical-processor activity. Memory shows current pressure-related usage values. Network reports local interface traffic. GPU values are shown only when %1 or the active graphics driver publishes them. Storage and power data update at lower cadences because they do not require sub-second polling.</source>
        <extracomment>%1 is what publishes graphics figures, such as NVML</extracomment>
        <translation>«CPU» muestra la actividad total y la de cada procesador lógico. «Memoria» muestra los valores de uso actuales relacionados con la presión de memoria. «Red» informa del tráfico de las interfaces locales. Los valores de la GPU solo se muestran cuando %1 o el controlador gráfico activo los proporciona. Los datos de almacenamiento y de energía se actualizan con menor frecuencia, ya que no es necesario consultarlos varias veces por segundo.</translation>
    </message>
    <message>
        <source>Process Explorer</source>
        <translation>Explorador de procesos</translation>
    </message>
    <message>
        <source>The process list uses native %1 %2 data. Sort by CPU or memory and use the filter field to locate a running process. Vantor does not launch external command-line tools to collect process telemetry.</source>
        <extracomment>%1 is the name of the system, %2 of what tells of processes: &quot;Linux procfs&quot;</extracomment>
        <translation>La lista de procesos usa datos nativos de %1 obtenidos de %2. Ordene por CPU o por memoria y use el campo de filtro para encontrar un proceso en ejecución. Vantor no ejecuta herramientas externas de línea de órdenes para recopilar datos de los procesos.</translation>
    </message>
    <message>
        <source>Menu Bar and Windows</source>
        <translation>Bandeja del sistema y ventanas</translation>
    </message>
    <message>
        <source>When the menu bar dashboard is enabled, closing the main window keeps Vantor available from the menu bar. When it is disabled, closing the last window exits the app. Use Quit or %1 to terminate Vantor completely.</source>
        <extracomment>%1 is what is pressed to quit, such as Ctrl+Q</extracomment>
        <translation>Si el panel de la bandeja del sistema está activado, Vantor sigue disponible en la bandeja al cerrar la ventana principal. Si está desactivado, la aplicación se cierra al cerrar la última ventana. Use «Salir» o %1 para cerrar Vantor por completo.</translation>
    </message>
    <message>
        <source>Vantor is a local %1 performance dashboard for live CPU, memory, network, GPU, storage, process and system telemetry.</source>
        <extracomment>%1 is the name of the system</extracomment>
        <translation>Vantor es un panel local de rendimiento para %1 que muestra en tiempo real datos de la CPU, la memoria, la red, la GPU, el almacenamiento, los procesos y el sistema.</translation>
    </message>
    <message>
        <source>Export and Privacy</source>
        <translation>Exportación y privacidad</translation>
    </message>
    <message>
        <source>All monitoring is performed locally. Vantor does not perform analytics, public-IP lookups or automatic data transmission. A JSON snapshot is written only when you explicitly choose Export and select a destination.</source>
        <translation>Toda la supervisión se realiza de forma local. Vantor no realiza análisis de uso, consultas de la IP pública ni transmisiones automáticas de datos. Solo se escribe una instantánea JSON cuando elige «Exportar» de forma explícita y selecciona un destino.</translation>
    </message>
    <message>
        <source>Amounts of memory and storage count in steps of 1024, so that 1 GB is 1,073,741,824 bytes, as the kernel hands memory out; rates count in steps of 1000, as networks do. A process&apos;s CPU share is of one processor: 100% is one kept busy, and a process on several has more.</source>
        <translation>Las cantidades de memoria y de almacenamiento se cuentan en pasos de 1024, de modo que 1&#xa0;GB son 1.073.741.824&#xa0;bytes, tal como el núcleo reparte la memoria; las velocidades se cuentan en pasos de 1000, como en las redes. El porcentaje de CPU de un proceso se refiere a un solo procesador: el 100&#xa0;% equivale a uno totalmente ocupado, y un proceso repartido entre varios supera ese valor.</translation>
    </message>
    <message>
        <source>What the Numbers Mean</source>
        <translation>Qué significan los números</translation>
    </message>
</context>
<context>
    <name>LastUpdateText</name>
    <message>
        <source>Collecting live data…</source>
        <translation>Recopilando datos en tiempo real…</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time of day</extracomment>
        <translation>Actualizado: %1</translation>
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
        <translation>NOMBRE</translation>
    </message>
    <message>
        <source>.Nm vantor</source>
        <translation>.Nm vantor</translation>
    </message>
    <message>
        <source>local performance dashboard for the desktop</source>
        <translation>panel local de rendimiento para el escritorio</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>SINOPSIS</translation>
    </message>
    <message>
        <source>.Nm
.Op Ar option</source>
        <translation>.Nm
.Op Ar option</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>DESCRIPCIÓN</translation>
    </message>
    <message>
        <source>.Nm
opens a window that shows what this computer is doing, live: processor, memory, network, graphics, storage, the
system with its battery, and the processes.
Closing the window keeps it in the tray, unless that is switched off in the settings or there is no tray.</source>
        <translation>.Nm
abre una ventana que muestra en tiempo real lo que hace este equipo: procesador, memoria, red, gráficos, almacenamiento, el
sistema con su batería y los procesos.
Al cerrar la ventana, el programa sigue en la bandeja del sistema, salvo que eso esté desactivado en la configuración o no haya bandeja.</translation>
    </message>
    <message>
        <source>One program runs on each display: started again,
.Nm
brings the running one&apos;s window forward and ends.</source>
        <translation>El programa se ejecuta una sola vez por pantalla: si se inicia de nuevo,
.Nm
trae al frente la ventana del que ya está en ejecución y termina.</translation>
    </message>
    <message>
        <source>It is local: it opens no internet connection, starts no other program and collects nothing.
Where the kernel can, it enforces that; Help, About Vantor says whether it does.</source>
        <translation>El programa es local: no abre ninguna conexión a Internet, no inicia ningún otro programa y no recopila nada.
Donde el núcleo puede, lo impone; «Acerca de Vantor», en el menú «Ayuda», dice si lo hace.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPCIONES</translation>
    </message>
    <message>
        <source>Each has the running program do something, or starts it for that:</source>
        <translation>Cada una hace que el programa en ejecución haga algo, o lo inicia para ello:</translation>
    </message>
    <message>
        <source>stops the readings,</source>
        <translation>detiene las lecturas,</translation>
    </message>
    <message>
        <source>goes on with them,</source>
        <translation>las reanuda,</translation>
    </message>
    <message>
        <source>reads everything now,</source>
        <translation>lo lee todo ahora,</translation>
    </message>
    <message>
        <source>asks where to save a snapshot,</source>
        <translation>pregunta dónde guardar una instantánea,</translation>
    </message>
    <message>
        <source>opens the settings,</source>
        <translation>abre la configuración,</translation>
    </message>
    <message>
        <source>has no window, only the icon in the tray; without a tray, the window.</source>
        <translation>no abre ninguna ventana, solo muestra el icono en la bandeja; si no hay bandeja, abre la ventana.</translation>
    </message>
    <message>
        <source>The same actions are in the menu of the icon that starts the program, and on the session&apos;s bus, where
.Dq com.kestrone.Vantor
answers as
.Dq org.freedesktop.Application .</source>
        <translation>Las mismas acciones están en el menú del icono que inicia el programa y en el bus de la sesión, donde
.Dq com.kestrone.Vantor
responde como
.Dq org.freedesktop.Application .</translation>
    </message>
    <message>
        <source>These print a text and end:</source>
        <translation>Estas muestran un texto y terminan:</translation>
    </message>
    <message>
        <source>prints the options,</source>
        <translation>muestra las opciones,</translation>
    </message>
    <message>
        <source>prints the version.</source>
        <translation>muestra la versión.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <translation>ENTORNO</translation>
    </message>
    <message>
        <source>The display, the first before the second.</source>
        <translation>La pantalla; la primera variable tiene prioridad sobre la segunda.</translation>
    </message>
    <message>
        <source>The folder of the settings&apos; folder,
.Pa ~/.config
where it is not set or relative.</source>
        <translation>La carpeta que contiene la de la configuración,
.Pa ~/.config
si la variable no está definida o contiene una ruta relativa.</translation>
    </message>
    <message>
        <source>The folder of the lock and the socket by which a second start finds the first.</source>
        <translation>La carpeta del bloqueo y del socket con los que un segundo inicio encuentra al primero.</translation>
    </message>
    <message>
        <source>The session&apos;s bus.
Only sockets of this machine are used.</source>
        <translation>El bus de la sesión.
Solo se usan sockets de este equipo.</translation>
    </message>
    <message>
        <source>The language in whose order names are listed, the first that is set.</source>
        <translation>El idioma cuyo orden siguen los nombres de las listas; cuenta la primera variable definida.</translation>
    </message>
    <message>
        <source>How the time of the day is written.</source>
        <translation>Cómo se escribe la hora.</translation>
    </message>
    <message>
        <source>The desktop&apos;s permission to come forward.</source>
        <translation>El permiso del escritorio para pasar al frente.</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>ARCHIVOS</translation>
    </message>
    <message>
        <source>The settings.
A damaged file is kept beside it, as
.Pa settings.ini.damaged-1 ,
and the defaults are used.</source>
        <translation>La configuración.
Un archivo dañado se conserva a su lado, como
.Pa settings.ini.damaged-1 ,
y se usan los valores predeterminados.</translation>
    </message>
    <message>
        <source>Where the window was.</source>
        <translation>Dónde estaba la ventana.</translation>
    </message>
    <message>
        <source>Opens the program at login, without a window; written and removed by its settings.</source>
        <translation>Abre el programa al iniciar sesión, sin ventana; lo escribe y lo elimina la configuración del programa.</translation>
    </message>
    <message>
        <source>Lock and socket of the running program.</source>
        <translation>Bloqueo y socket del programa en ejecución.</translation>
    </message>
    <message>
        <source>The names of graphics cards; without it they are shown by their numbers.</source>
        <translation>Los nombres de las tarjetas gráficas; sin este archivo se muestran sus números.</translation>
    </message>
    <message>
        <source>Every key of an exported snapshot and its unit.</source>
        <translation>Cada clave de una instantánea exportada y su unidad.</translation>
    </message>
    <message>
        <source>Besides these, it writes only what is exported.</source>
        <translation>Aparte de estos, solo escribe lo que se exporta.</translation>
    </message>
    <message>
        <source>SIGNALS</source>
        <translation>SEÑALES</translation>
    </message>
    <message>
        <source>End the program orderly, within five seconds.
A second one, more than 0.3 seconds after the first, ends it at once.
What is ignored when the program is started (see
.Xr nohup 1 )
stays ignored.</source>
        <translation>Terminan el programa de forma ordenada, en cinco segundos como máximo.
Una segunda señal, más de 0,3&#xa0;segundos después de la primera, lo termina de inmediato.
Una señal ignorada al iniciar el programa (véase
.Xr nohup 1 )
sigue ignorada.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>ESTADO DE SALIDA</translation>
    </message>
    <message>
        <source>The program was quit, ended by the first signal, or has brought another one forward.</source>
        <translation>Se cerró el programa, lo terminó la primera señal o trajo otro al frente.</translation>
    </message>
    <message>
        <source>There is no display that it can open, or too little memory, too few threads or file descriptors to go on.
One line on standard error says which.</source>
        <translation>No hay ninguna pantalla que pueda abrir, o no hay suficiente memoria, hilos o descriptores de archivo para continuar.
Una línea en la salida de error estándar dice cuál es el caso.</translation>
    </message>
    <message>
        <source>An argument is none of the options.</source>
        <translation>Un argumento no corresponde a ninguna de las opciones.</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>VÉASE TAMBIÉN</translation>
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
        <translation>Esperando datos de memoria</translation>
    </message>
    <message>
        <source>%1 installed</source>
        <extracomment>%1 is an amount of memory</extracomment>
        <translation>%1 instalados</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>the title of the card</extracomment>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>In Use</source>
        <extracomment>under the share of memory that is used</extracomment>
        <translation>En uso</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>memory used lately; the short label of a figure</extracomment>
        <translation>Activa</translation>
    </message>
    <message>
        <source>Wired</source>
        <extracomment>memory that the system keeps and cannot swap out; the short label of a figure</extracomment>
        <translation>Reservada</translation>
    </message>
    <message>
        <source>Compressed</source>
        <extracomment>memory that is kept compressed; the short label of a figure</extracomment>
        <translation>Comprimida</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>memory that programs can have; the short label of a figure</extracomment>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>Memory history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>Historial de la memoria</translation>
    </message>
    <message>
        <source>Top Memory Processes</source>
        <extracomment>the processes that use most memory</extracomment>
        <translation>Procesos con más memoria</translation>
    </message>
</context>
<context>
    <name>MenuBarDashboard</name>
    <message>
        <source>Open Dashboard</source>
        <extracomment>a button</extracomment>
        <translation>Abrir el panel</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>a button: read everything now</extracomment>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>opens the settings</extracomment>
        <translation>Configuración…</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a button: end the program</extracomment>
        <translation>Salir</translation>
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
        <translation>Recopilando datos en tiempo real…</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>a button: stop reading</extracomment>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>a button: go on reading</extracomment>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>for screen readers: whether the figures are live</extracomment>
        <translation>Estado</translation>
    </message>
</context>
<context>
    <name>NetworkCard</name>
    <message>
        <source>Not assigned</source>
        <extracomment>no address</extracomment>
        <translation>Sin asignar</translation>
    </message>
    <message>
        <source>Waiting for network data</source>
        <translation>Esperando datos de red</translation>
    </message>
    <message>
        <source>Active interface: %1</source>
        <extracomment>%1 is the name of a network interface</extracomment>
        <translation>Interfaz activa: %1</translation>
    </message>
    <message>
        <source>No active interface</source>
        <translation>Ninguna interfaz activa</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>the title of the card</extracomment>
        <translation>Red</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>the speed at which data comes in</extracomment>
        <translation>Descarga</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>the speed at which data goes out</extracomment>
        <translation>Subida</translation>
    </message>
    <message>
        <source>Hostname</source>
        <translation>Nombre del equipo</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>a host without a name</extracomment>
        <translation>Desconocido</translation>
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
        <translation>Interfaces</translation>
    </message>
</context>
<context>
    <name>PowerView</name>
    <message>
        <source>AC connected</source>
        <extracomment>the computer is plugged in</extracomment>
        <translation>Conectado a la corriente</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Con batería</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a time, such as 1h 20m</extracomment>
        <translation>Cargada en %1</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <translation>Queda: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln charge cycle(s)</source>
        <comment>of the battery</comment>
        <translation>
            <numerusform>%Ln ciclo de carga</numerusform>
            <numerusform>%Ln ciclos de carga</numerusform>
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
        <translation>Esperando procesos</translation>
    </message>
    <message>
        <source>No process data is available yet.</source>
        <translation>Todavía no hay datos de procesos disponibles.</translation>
    </message>
    <message>
        <source>No Matching Processes</source>
        <translation>Ningún proceso coincidente</translation>
    </message>
    <message>
        <source>No process matches “%1”.</source>
        <extracomment>%1 is what the user has typed</extracomment>
        <translation>Ningún proceso coincide con «%1».</translation>
    </message>
    <message>
        <source>Process Explorer</source>
        <extracomment>the title of the card</extracomment>
        <translation>Explorador de procesos</translation>
    </message>
    <message>
        <source>Live process activity</source>
        <translation>Actividad de los procesos en tiempo real</translation>
    </message>
    <message>
        <source>Filter processes</source>
        <extracomment>shown in an empty field that is typed into</extracomment>
        <translation>Filtrar procesos</translation>
    </message>
    <message>
        <source>Sort</source>
        <extracomment>for screen readers: by what the list is sorted</extracomment>
        <translation>Orden</translation>
    </message>
</context>
<context>
    <name>ProcessHeader</name>
    <message>
        <source>Process</source>
        <extracomment>the heading of a column</extracomment>
        <translation>Proceso</translation>
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
        <translation>Esperando datos de procesos…</translation>
    </message>
</context>
<context>
    <name>ProcessTableView</name>
    <message numerus="yes">
        <source>%Ln process(es)</source>
        <comment>for screen readers: in the list</comment>
        <translation>
            <numerusform>%Ln proceso</numerusform>
            <numerusform>%Ln procesos</numerusform>
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
        <translation>Procesos</translation>
    </message>
    <message>
        <source>100% is one processor: a process that keeps two busy has 200%. A click sorts by it.</source>
        <extracomment>what a process&apos;s percentage is of; the title of a column is pointed at</extracomment>
        <translation>El 100&#xa0;% es un procesador: un proceso que ocupa dos tiene el 200&#xa0;%. Un clic ordena por esta columna.</translation>
    </message>
    <message>
        <source>The memory that a process has in use now. A click sorts by it.</source>
        <extracomment>the title of a column is pointed at</extracomment>
        <translation>La memoria que un proceso usa ahora. Un clic ordena por esta columna.</translation>
    </message>
    <message>
        <source>A full bar is the largest of the processes shown.</source>
        <translation>Una barra llena corresponde al valor más alto entre los procesos mostrados.</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>a command: the whole row of a process</extracomment>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <extracomment>a command</extracomment>
        <translation>Copiar nombre</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <extracomment>a command: where the program of a process lies</extracomment>
        <translation>Copiar ruta</translation>
    </message>
    <message>
        <source>Filter by This Name</source>
        <extracomment>a command: show the processes of that name only</extracomment>
        <translation>Filtrar por este nombre</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <extracomment>a button</extracomment>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>a button</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>a button</extracomment>
        <translation>Cerrar</translation>
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
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>%1, folder</source>
        <extracomment>for screen readers; %1 is the name of a folder</extracomment>
        <translation>%1, carpeta</translation>
    </message>
    <message>
        <source>Folders and files</source>
        <extracomment>for screen readers: the contents of a folder</extracomment>
        <translation>Carpetas y archivos</translation>
    </message>
    <message>
        <source>Warning</source>
        <extracomment>for screen readers: the sign beside a warning</extracomment>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>The disk does not answer. Please choose another folder, or try again.</source>
        <translation>El disco no responde. Elija otra carpeta o vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>La carpeta no existe.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>Esto no es una carpeta.</translation>
    </message>
    <message>
        <source>You do not have the permission to look into this folder.</source>
        <translation>No tiene permiso para ver el contenido de esta carpeta.</translation>
    </message>
    <message>
        <source>The folder cannot be read.</source>
        <translation>No se puede leer la carpeta.</translation>
    </message>
    <message>
        <source>You do not have the permission to make a folder here.</source>
        <translation>No tiene permiso para crear una carpeta aquí.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>El nombre es demasiado largo.</translation>
    </message>
    <message>
        <source>The folder could not be made.</source>
        <translation>No se ha podido crear la carpeta.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Carpeta personal</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Descargas</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Looking for your folders…</source>
        <translation>Buscando sus carpetas…</translation>
    </message>
    <message>
        <source>Last used</source>
        <extracomment>the folder that was saved to before</extracomment>
        <translation>Última usada</translation>
    </message>
    <message>
        <source>Looking into the folder…</source>
        <translation>Leyendo la carpeta…</translation>
    </message>
    <message>
        <source>You do not have the permission to save in this folder.</source>
        <translation>No tiene permiso para guardar en esta carpeta.</translation>
    </message>
    <message numerus="yes">
        <source>Only the first %Ln of this folder are shown.</source>
        <comment>files and folders</comment>
        <translation>
            <numerusform>Solo se muestra %Ln elemento de esta carpeta.</numerusform>
            <numerusform>Solo se muestran los primeros %Ln elementos de esta carpeta.</numerusform>
        </translation>
    </message>
    <message>
        <source>New Folder</source>
        <extracomment>the title of a box</extracomment>
        <translation>Carpeta nueva</translation>
    </message>
    <message>
        <source>Name of the new folder:</source>
        <translation>Nombre de la carpeta nueva:</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>C&amp;rear</translation>
    </message>
    <message>
        <source>Making the folder…</source>
        <translation>Creando la carpeta…</translation>
    </message>
    <message>
        <source>Please type a name for the file.</source>
        <translation>Escriba un nombre para el archivo.</translation>
    </message>
    <message>
        <source>Please choose a folder first.</source>
        <translation>Elija primero una carpeta.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <extracomment>whether a file can be saved there</extracomment>
        <translation>Comprobando…</translation>
    </message>
    <message>
        <source>Places</source>
        <extracomment>for screen readers: the list of well-known folders</extracomment>
        <translation>Lugares</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <extracomment>of the file; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <extracomment>the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Carpeta:</translation>
    </message>
    <message>
        <source>Parent folder (Alt+Up)</source>
        <extracomment>a button; Alt+Up is what can be pressed instead</extracomment>
        <translation>Carpeta superior (Alt+Arriba)</translation>
    </message>
    <message>
        <source>New folder</source>
        <extracomment>a button</extracomment>
        <translation>Carpeta nueva</translation>
    </message>
    <message>
        <source>Replace File</source>
        <extracomment>the title of a box</extracomment>
        <translation>Reemplazar archivo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists. Do you want to replace it?</source>
        <extracomment>%1 is the name of a file</extracomment>
        <translation>«%1» ya existe. ¿Quiere reemplazarlo?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Reemplazar</translation>
    </message>
</context>
<context>
    <name>SettingsForm</name>
    <message numerus="yes">
        <source>Chart history: %Ln sample(s)</source>
        <comment>how many readings the charts keep</comment>
        <translation>
            <numerusform>Historial de los gráficos: %Ln muestra</numerusform>
            <numerusform>Historial de los gráficos: %Ln muestras</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 second</source>
        <extracomment>half a second, as a number</extracomment>
        <translation>%1 segundos</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <extracomment>a number of seconds that is not whole</extracomment>
        <translation>%1 segundos</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the theme: as the desktop has it</extracomment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>the theme</extracomment>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>the theme</extracomment>
        <translation>Oscuro</translation>
    </message>
    <message numerus="yes">
        <source>%Ln second(s)</source>
        <comment>how often the figures are read</comment>
        <translation>
            <numerusform>%Ln segundo</numerusform>
            <numerusform>%Ln segundos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Open at Login</source>
        <extracomment>a switch: start the program when the user logs in</extracomment>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <extracomment>settings that could not be stored; %1 is a sentence that says why</extracomment>
        <translation>No guardado: %1</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>whether colours are dark or light</extracomment>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Monitoring</source>
        <translation>Supervisión</translation>
    </message>
    <message>
        <source>Refresh interval</source>
        <extracomment>how often the figures are read</extracomment>
        <translation>Intervalo de actualización</translation>
    </message>
    <message>
        <source>Chart history</source>
        <extracomment>how many readings the charts keep</extracomment>
        <translation>Historial de los gráficos</translation>
    </message>
    <message numerus="yes">
        <source>%Ln sample(s)</source>
        <comment>for screen readers: how many readings the charts keep</comment>
        <translation>
            <numerusform>%Ln muestra</numerusform>
            <numerusform>%Ln muestras</numerusform>
        </translation>
    </message>
    <message>
        <source>Include point-to-point and tunnel interfaces</source>
        <extracomment>a switch: network interfaces, such as those of a VPN</extracomment>
        <translation>Incluir interfaces punto a punto y de túnel</translation>
    </message>
    <message>
        <source>Show menu bar dashboard</source>
        <extracomment>a switch: the icon in the tray and its panel</extracomment>
        <translation>Mostrar el panel en la bandeja del sistema</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>Network privacy</source>
        <extracomment>a label</extracomment>
        <translation>Privacidad de red</translation>
    </message>
    <message>
        <source>No public IP lookup</source>
        <extracomment>the program does not ask the internet for the address</extracomment>
        <translation>Sin consulta de IP pública</translation>
    </message>
    <message>
        <source>Process source</source>
        <extracomment>a label: where figures of processes come from</extracomment>
        <translation>Fuente de procesos</translation>
    </message>
    <message>
        <source>Native %1 %2</source>
        <extracomment>the name of the system, and of what tells of processes: &quot;Native Linux procfs&quot;</extracomment>
        <translation>%2 nativo de %1</translation>
    </message>
    <message>
        <source>GPU telemetry</source>
        <extracomment>a label: where figures of graphics come from</extracomment>
        <translation>Datos de GPU</translation>
    </message>
    <message>
        <source>Export Current Snapshot…</source>
        <extracomment>a button</extracomment>
        <translation>Exportar la instantánea actual…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>a heading: about the program</extracomment>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Application</source>
        <extracomment>a label</extracomment>
        <translation>Aplicación</translation>
    </message>
    <message>
        <source>This desktop has no tray to show it in.</source>
        <translation>Este escritorio no tiene bandeja en la que mostrarlo.</translation>
    </message>
</context>
<context>
    <name>SoftwareCentre</name>
    <message>
        <source>See what this computer is doing, live and at a glance</source>
        <translation>Vea en tiempo real y de un vistazo lo que hace este equipo</translation>
    </message>
    <message>
        <source>Vantor shows what the computer is doing on one page, in a window that costs next to nothing to keep open: processor, memory, network, graphics, storage and the system with its battery, each with short histories where there is something to follow.</source>
        <translation>Vantor muestra en una sola página lo que hace el equipo, en una ventana que casi no cuesta nada mantener abierta: procesador, memoria, red, gráficos, almacenamiento y el sistema con su batería, cada uno con un breve historial cuando hay algo que seguir.</translation>
    </message>
    <message>
        <source>What there is beside the cards:</source>
        <translation>Además de las tarjetas, hay:</translation>
    </message>
    <message>
        <source>a process explorer with the heaviest processes, and a filter over all of them</source>
        <translation>un explorador de procesos con los más pesados y un filtro sobre todos ellos</translation>
    </message>
    <message>
        <source>a tray icon with a panel of the most important figures</source>
        <translation>un icono en la bandeja con un panel de las cifras más importantes</translation>
    </message>
    <message>
        <source>export of all figures as one JSON document</source>
        <translation>la exportación de todas las cifras en un documento JSON</translation>
    </message>
    <message>
        <source>It is local: it opens no internet connection, starts no other program and collects nothing, and the kernel enforces that. A figure that the system does not publish is shown as words, never as zero. Everything is reached by keyboard, and told to screen readers.</source>
        <translation>El programa es local: no abre ninguna conexión a Internet, no inicia ningún otro programa y no recopila nada, y el núcleo lo impone. Una cifra que el sistema no publica se muestra con palabras, nunca como cero. Todo es accesible con el teclado y se comunica a los lectores de pantalla.</translation>
    </message>
    <message>
        <source>The dashboard of a laptop, dark</source>
        <translation>El panel de un portátil, tema oscuro</translation>
    </message>
    <message>
        <source>The dashboard of a laptop, light</source>
        <translation>El panel de un portátil, tema claro</translation>
    </message>
    <message>
        <source>The first release.</source>
        <translation>La primera versión.</translation>
    </message>
</context>
<context>
    <name>StorageCard</name>
    <message>
        <source>Waiting for storage data</source>
        <translation>Esperando datos de almacenamiento</translation>
    </message>
    <message numerus="yes">
        <source>%Ln mounted volume(s)</source>
        <translation>
            <numerusform>%Ln volumen montado</numerusform>
            <numerusform>%Ln volúmenes montados</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <extracomment>the title of the card</extracomment>
        <translation>Almacenamiento</translation>
    </message>
    <message>
        <source>No Volumes</source>
        <extracomment>there is no disk to be shown</extracomment>
        <translation>Ningún volumen</translation>
    </message>
</context>
<context>
    <name>SystemCard</name>
    <message>
        <source>Waiting for system data</source>
        <translation>Esperando datos del sistema</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the title of the card: the whole machine</extracomment>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>a text that the machine does not tell</extracomment>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Operating System</source>
        <translation>Sistema operativo</translation>
    </message>
    <message>
        <source>Kernel Build</source>
        <translation>Versión del núcleo</translation>
    </message>
    <message>
        <source>Architecture</source>
        <extracomment>of the processor</extracomment>
        <translation>Arquitectura</translation>
    </message>
    <message>
        <source>Uptime</source>
        <extracomment>the time since the machine was started</extracomment>
        <translation>Tiempo activo</translation>
    </message>
    <message>
        <source>Thermal State</source>
        <extracomment>how hot the machine is, in words</extracomment>
        <translation>Estado térmico</translation>
    </message>
    <message>
        <source>Low Power Mode</source>
        <translation>Modo de bajo consumo</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>the low power mode</extracomment>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>the low power mode</extracomment>
        <translation>Desactivado</translation>
    </message>
</context>
<context>
    <name>VantorApp</name>
    <message>
        <source>Vantor (collecting live data)</source>
        <extracomment>the name of the window until figures have been read</extracomment>
        <translation>Vantor (recopilando datos en tiempo real)</translation>
    </message>
    <message>
        <source>Vantor Settings</source>
        <extracomment>the title of a window</extracomment>
        <translation>Configuración de Vantor</translation>
    </message>
    <message>
        <source>Vantor Help</source>
        <extracomment>the title of a window</extracomment>
        <translation>Ayuda de Vantor</translation>
    </message>
</context>
<context>
    <name>VolumeView</name>
    <message>
        <source>%1 used</source>
        <extracomment>%1 is an amount, of a disk</extracomment>
        <translation>%1 usados</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount, of a disk</extracomment>
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <extracomment>%1 is where a disk is found, such as /home</extracomment>
        <translation>%1 (solo lectura)</translation>
    </message>
    <message>
        <source>%1 full, %2, %3</source>
        <extracomment>for screen readers: %1 is a share such as 45%, %2 &quot;120 GB used&quot;, %3 &quot;90 GB free&quot;</extracomment>
        <translation>Lleno al %1, %2, %3</translation>
    </message>
</context>
</TS>
