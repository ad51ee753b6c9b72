<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About Vantor</source>
        <extracomment>the title of a window</extracomment>
        <translation>À propos de Vantor</translation>
    </message>
    <message>
        <source>Version %1 (%2)

Built by the Vantor founders. Everything it shows, it reads on this machine, and it stays here.

Confined by the kernel: %3</source>
        <extracomment>%1 is the version, %2 the build, %3 is &quot;yes&quot;, &quot;no&quot; or what is missing</extracomment>
        <translation>Version %1 (%2)

Conçu par les fondateurs de Vantor. Tout ce que Vantor affiche est lu sur cette machine et y reste.

Confiné par le noyau&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>AppCommands</name>
    <message>
        <source>About Vantor</source>
        <extracomment>a command of the menu</extracomment>
        <translation>À propos de Vantor</translation>
    </message>
    <message>
        <source>Refresh Now</source>
        <extracomment>a command of the menu: read everything now</extracomment>
        <translation>Actualiser maintenant</translation>
    </message>
    <message>
        <source>Export Snapshot…</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Exporter un instantané…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Vantor Help</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Aide de Vantor</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Close Window</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>a menu; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>a menu; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Aide</translation>
    </message>
</context>
<context>
    <name>ByteCountFormatter</name>
    <message>
        <source>%1 KB</source>
        <extracomment>an amount of 1000 or 1024 bytes each</extracomment>
        <translation>%1&#xa0;ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <extracomment>an amount of about a million bytes each</extracomment>
        <translation>%1&#xa0;Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <extracomment>an amount of 1000 or 1024 MB each</extracomment>
        <translation>%1&#xa0;Go</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <extracomment>an amount of 1000 or 1024 GB each</extracomment>
        <translation>%1&#xa0;To</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <extracomment>an amount of 1000 or 1024 TB each</extracomment>
        <translation>%1&#xa0;Po</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <extracomment>an amount of 1000 or 1024 PB each</extracomment>
        <translation>%1&#xa0;Eo</translation>
    </message>
    <message numerus="yes">
        <source>%Ln byte(s)</source>
        <translation>
            <numerusform>%Ln&#xa0;octet</numerusform>
            <numerusform>%Ln&#xa0;octets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CPUCard</name>
    <message>
        <source>%1 physical • %2 logical cores</source>
        <extracomment>the numbers of cores; %1 stays in front where both are read as one phrase</extracomment>
        <translation>%1 cœurs physiques • %2 logiques</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>the title of the card</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>CPU Load</source>
        <extracomment>under the share of the processor that is busy</extracomment>
        <translation>Charge CPU</translation>
    </message>
    <message>
        <source>%1 GHz</source>
        <extracomment>a frequency</extracomment>
        <translation>%1&#xa0;GHz</translation>
    </message>
    <message>
        <source>User</source>
        <extracomment>the share of time spent in programs</extracomment>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the share of time spent in the operating system</extracomment>
        <translation>Système</translation>
    </message>
    <message>
        <source>Nominal</source>
        <extracomment>the frequency that the processor is sold with</extracomment>
        <translation>Nominale</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Load avg %1</source>
        <extracomment>%1 are the averages of the last minutes, such as 0.52 0.58 0.59</extracomment>
        <translation>Charge moy. %1</translation>
    </message>
    <message>
        <source>CPU history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>Historique du CPU</translation>
    </message>
    <message>
        <source>Core Activity</source>
        <extracomment>how busy each logical processor is</extracomment>
        <translation>Activité des cœurs</translation>
    </message>
    <message>
        <source>Top CPU Processes</source>
        <extracomment>the processes that keep the processor busiest</extracomment>
        <translation>Principaux processus (CPU)</translation>
    </message>
</context>
<context>
    <name>CardTexts</name>
    <message>
        <source>Not published</source>
        <extracomment>a figure that the machine does not tell</extracomment>
        <translation>Aucune donnée</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <extracomment>a temperature</extracomment>
        <translation>%1&#xa0;°C</translation>
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
        <translation>maintenant</translation>
    </message>
    <message>
        <source>%1 ago</source>
        <extracomment>%1 is a time: when a sample of a chart was taken</extracomment>
        <translation>il y a %1</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>from the smallest to the largest value</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>The width is the last %1.</source>
        <extracomment>of a chart; %1 is a time</extracomment>
        <translation>La largeur couvre une durée de %1 jusqu’à maintenant.</translation>
    </message>
    <message>
        <source>The height is %1 to %2.</source>
        <extracomment>of a chart; both are values: 0 % and 100 %</extracomment>
        <translation>La hauteur va de %1 à %2.</translation>
    </message>
    <message>
        <source>The height is the smallest to the largest value shown.</source>
        <extracomment>of a chart</extracomment>
        <translation>La hauteur va de la plus petite à la plus grande valeur affichée.</translation>
    </message>
    <message>
        <source>The height is the smallest to the largest value shown: %1.</source>
        <extracomment>of a chart; %1 are these two values</extracomment>
        <translation>La hauteur va de la plus petite à la plus grande valeur affichée&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>CoreActivity</name>
    <message>
        <source>Core %1: %2</source>
        <extracomment>%1 is the number of a logical processor, %2 how busy it is</extracomment>
        <translation>Cœur %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Core Activity</source>
        <extracomment>how busy each logical processor is</extracomment>
        <translation>Activité des cœurs</translation>
    </message>
</context>
<context>
    <name>CoreWords</name>
    <message>
        <source>Detecting processor…</source>
        <translation>Détection du processeur…</translation>
    </message>
    <message>
        <source>Detecting host…</source>
        <translation>Détection de l’hôte…</translation>
    </message>
    <message>
        <source>Detecting hardware…</source>
        <translation>Détection du matériel…</translation>
    </message>
    <message>
        <source>Detecting macOS…</source>
        <translation>Détection de macOS…</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>what the machine does not tell</extracomment>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Nominal</source>
        <extracomment>how hot the machine is: as usual</extracomment>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Fair</source>
        <extracomment>how hot the machine is: a little</extracomment>
        <translation>Modéré</translation>
    </message>
    <message>
        <source>Serious</source>
        <extracomment>how hot the machine is: it slows down</extracomment>
        <translation>Élevé</translation>
    </message>
    <message>
        <source>Critical</source>
        <extracomment>how hot the machine is: it may turn itself off</extracomment>
        <translation>Critique</translation>
    </message>
    <message>
        <source>Battery</source>
        <extracomment>of a battery that has no name</extracomment>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Live Linux performance intelligence</source>
        <translation>Les performances de Linux en temps réel</translation>
    </message>
    <message>
        <source>Live macOS performance intelligence</source>
        <translation>Les performances de macOS en temps réel</translation>
    </message>
    <message>
        <source>Unknown Computer</source>
        <translation>Ordinateur inconnu</translation>
    </message>
    <message>
        <source>Unknown Mac</source>
        <translation>Mac inconnu</translation>
    </message>
    <message>
        <source>No Graphics Device</source>
        <translation>Aucun périphérique graphique</translation>
    </message>
    <message>
        <source>No Metal Device</source>
        <translation>Aucun périphérique Metal</translation>
    </message>
    <message>
        <source>The active graphics driver did not expose a graphics device.</source>
        <translation>Le pilote graphique actif n’a signalé aucun périphérique graphique.</translation>
    </message>
    <message>
        <source>The active graphics driver did not expose a Metal device.</source>
        <translation>Le pilote graphique actif n’a signalé aucun périphérique Metal.</translation>
    </message>
    <message>
        <source>No browsable mounted volume was returned by Linux.</source>
        <translation>Linux n’a renvoyé aucun volume monté consultable.</translation>
    </message>
    <message>
        <source>No browsable mounted volume was returned by macOS.</source>
        <translation>macOS n’a renvoyé aucun volume monté consultable.</translation>
    </message>
    <message>
        <source>Load of your own processes</source>
        <extracomment>the load of the graphics device is known for the user&apos;s processes only</extracomment>
        <translation>Charge de vos processus</translation>
    </message>
    <message>
        <source>Export System Snapshot</source>
        <extracomment>the title of the dialog that asks where to save</extracomment>
        <translation>Exporter un instantané du système</translation>
    </message>
    <message>
        <source>Snapshot Export Failed</source>
        <extracomment>the title of an alert</extracomment>
        <translation>Échec de l’exportation de l’instantané</translation>
    </message>
    <message>
        <source>yes</source>
        <extracomment>whether the kernel confines the program, behind a colon</extracomment>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <extracomment>whether the kernel confines the program, behind a colon</extracomment>
        <translation>non</translation>
    </message>
    <message>
        <source>Something that is not an ordinary file has that name.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Un élément qui n’est pas un fichier ordinaire porte ce nom.</translation>
    </message>
    <message>
        <source>You do not have the permission to write there.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Vous n’avez pas la permission d’écrire à cet endroit.</translation>
    </message>
    <message>
        <source>You have used up the space that you may use on the disk.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Vous avez épuisé l’espace dont vous disposez sur le disque.</translation>
    </message>
    <message>
        <source>The file would be larger than it may be there.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Le fichier dépasserait la taille autorisée à cet endroit.</translation>
    </message>
    <message>
        <source>The disk could not be written to.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Impossible d’écrire sur le disque.</translation>
    </message>
    <message>
        <source>A folder has that name.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Un dossier porte ce nom.</translation>
    </message>
    <message>
        <source>The symbolic links there lead in a circle.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Les liens symboliques à cet endroit forment une boucle.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Trop de fichiers sont ouverts.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Le nom est trop long.</translation>
    </message>
    <message>
        <source>The disk is not there any more.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Le disque n’est plus présent.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Le dossier n’existe pas.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Il n’y a pas assez de mémoire.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Il n’y a pas assez d’espace sur le disque.</translation>
    </message>
    <message>
        <source>The place for it is not a folder.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>L’emplacement indiqué n’est pas un dossier.</translation>
    </message>
    <message>
        <source>The disk can only be read.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>Le disque est en lecture seule.</translation>
    </message>
    <message>
        <source>Too many damaged files are kept there.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>Trop de fichiers endommagés y sont déjà conservés.</translation>
    </message>
    <message>
        <source>The program&apos;s own file has no name that can be kept.</source>
        <extracomment>why the program cannot be opened at login</extracomment>
        <translation>Le fichier du programme porte un nom qui ne peut pas être enregistré.</translation>
    </message>
    <message>
        <source>The file would be too large.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>Le fichier serait trop volumineux.</translation>
    </message>
    <message>
        <source>The disk does not answer.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>Le disque ne répond pas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved. %2</source>
        <extracomment>%1 is a file&apos;s name, %2 the sentence that says why</extracomment>
        <translation>Impossible d’enregistrer «&#xa0;%1&#xa0;». %2</translation>
    </message>
    <message>
        <source>The system gave the reason &quot;%1&quot; (%2).</source>
        <extracomment>%1 is the system&apos;s own text, %2 its number</extracomment>
        <translation>Le système a indiqué la raison suivante&#xa0;: «&#xa0;%1&#xa0;» (%2).</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>État inconnu&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not changed: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>Non modifié&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not changed yet: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>Pas encore modifié&#xa0;: %1</translation>
    </message>
    <message>
        <source>in part (without %1)</source>
        <extracomment>whether the kernel confines the program, behind a colon; %1 is a list of names</extracomment>
        <translation>en partie (sans %1)</translation>
    </message>
    <message>
        <source>Nominal is the frequency that the processor is made for, as its driver or its name tells it, not the present one.</source>
        <extracomment>what the figure &quot;Nominal&quot; of the processor means</extracomment>
        <translation>«&#xa0;Nominale&#xa0;» est la fréquence pour laquelle le processeur est conçu, d’après son pilote ou son nom, et non la fréquence actuelle.</translation>
    </message>
    <message>
        <source>Wired is memory that cannot be moved out: the kernel&apos;s own and what programs have locked.</source>
        <extracomment>what the figure &quot;Wired&quot; of the memory means</extracomment>
        <translation>«&#xa0;Réservée&#xa0;» est la mémoire qui ne peut pas être déplacée hors de la RAM&#xa0;: celle du noyau et celle que des programmes ont verrouillée.</translation>
    </message>
    <message>
        <source>Compressed is the memory that zram and zswap keep compressed pages in.</source>
        <extracomment>what the figure &quot;Compressed&quot; of the memory means</extracomment>
        <translation>«&#xa0;Compressée&#xa0;» est la mémoire où zram et zswap gardent des pages compressées.</translation>
    </message>
    <message>
        <source>Thermal State compares the thermal zones with their own limits: Fair where the kernel begins to slow down, Serious where it is nearly too hot, Critical where it switches off.</source>
        <extracomment>what the figure &quot;Thermal State&quot; means</extracomment>
        <translation>«&#xa0;État thermique&#xa0;» compare les zones thermiques à leurs propres limites&#xa0;: «&#xa0;Modéré&#xa0;» quand le noyau commence à ralentir la machine, «&#xa0;Élevé&#xa0;» quand elle est presque trop chaude, «&#xa0;Critique&#xa0;» quand il l’éteint.</translation>
    </message>
    <message>
        <source>Low Power Mode is on while the firmware&apos;s profile or the processors&apos; own preference is to save power.</source>
        <extracomment>what the figure &quot;Low Power Mode&quot; means</extracomment>
        <translation>«&#xa0;Économie d’énergie&#xa0;» est activée tant que le profil du micrologiciel ou la préférence des processeurs eux-mêmes est d’économiser l’énergie.</translation>
    </message>
</context>
<context>
    <name>DashboardHeader</name>
    <message>
        <source>Paused</source>
        <extracomment>the state: the figures stand still</extracomment>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Live</source>
        <extracomment>the state: the figures follow the machine</extracomment>
        <translation>En direct</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>a button: go on reading</extracomment>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>a button: stop reading</extracomment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>a number of seconds, short</extracomment>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>a button: read everything now</extracomment>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>a button: save a snapshot to a file</extracomment>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a button: end the program</extracomment>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>for screen readers: whether the figures are live</extracomment>
        <translation>État</translation>
    </message>
    <message>
        <source>Refresh interval</source>
        <extracomment>how often the figures are read</extracomment>
        <translation>Intervalle d’actualisation</translation>
    </message>
</context>
<context>
    <name>DesktopFile</name>
    <message>
        <source>Performance Dashboard</source>
        <extracomment>the kind of program</extracomment>
        <translation>Tableau de bord des performances</translation>
    </message>
    <message>
        <source>See what this computer is doing, live and at a glance</source>
        <translation>Voir en direct et d’un coup d’œil ce que fait cet ordinateur</translation>
    </message>
    <message>
        <source>performance;system;monitor;processor;CPU;memory;RAM;network;graphics;GPU;disk;storage;battery;temperature;process;task;load;</source>
        <translation>performance;système;moniteur;surveillance;processeur;CPU;mémoire;RAM;réseau;graphismes;GPU;disque;stockage;batterie;température;processus;tâche;charge;</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Export Current Snapshot…</source>
        <translation>Exporter l’instantané actuel…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Run in the Background</source>
        <translation>Exécuter en arrière-plan</translation>
    </message>
</context>
<context>
    <name>Formatters</name>
    <message>
        <source>Unknown</source>
        <extracomment>a time that the machine does not tell</extracomment>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>%1 B/s</source>
        <extracomment>a speed of zero: %1 is 0, B stands for bytes and s for a second</extracomment>
        <translation>%1&#xa0;o/s</translation>
    </message>
    <message>
        <source>%1/s</source>
        <extracomment>a speed: %1 is an amount such as 1.5 MB, s stands for a second</extracomment>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1d %2h %3m</source>
        <extracomment>a time of days, hours and minutes, as short as possible</extracomment>
        <translation>%1j %2h %3m</translation>
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
        <translation>En attente des données graphiques</translation>
    </message>
    <message>
        <source>Graphics</source>
        <extracomment>the title of the card</extracomment>
        <translation>Graphismes</translation>
    </message>
    <message>
        <source>GPU Load</source>
        <extracomment>under the share of the graphics device that is busy</extracomment>
        <translation>Charge GPU</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>VRAM Used</source>
        <extracomment>memory of the graphics device</extracomment>
        <translation>VRAM utilisée</translation>
    </message>
    <message>
        <source>VRAM Total</source>
        <extracomment>memory of the graphics device</extracomment>
        <translation>VRAM totale</translation>
    </message>
    <message>
        <source>GPU history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>Historique du GPU</translation>
    </message>
    <message>
        <source>Graphics Devices</source>
        <extracomment>the heading of a list</extracomment>
        <translation>Périphériques graphiques</translation>
    </message>
</context>
<context>
    <name>GraphicsDeviceView</name>
    <message>
        <source>Recommended Working Set</source>
        <extracomment>how much graphics memory the driver recommends to use</extracomment>
        <translation>Utilisation recommandée</translation>
    </message>
    <message>
        <source>Unified memory architecture</source>
        <extracomment>graphics that share the memory of the processor</extracomment>
        <translation>Mémoire unifiée</translation>
    </message>
    <message>
        <source>Discrete graphics</source>
        <extracomment>a graphics device with memory of its own</extracomment>
        <translation>Carte graphique dédiée</translation>
    </message>
</context>
<context>
    <name>HelpTexts</name>
    <message>
        <source>%1 or %2 seconds</source>
        <extracomment>%1 are all numbers but the last: &quot;0.5, 1, 2, 5 or 10 seconds&quot;</extracomment>
        <translation>%1 ou %2 secondes</translation>
    </message>
    <message>
        <source>Live Monitoring</source>
        <translation>Surveillance en temps réel</translation>
    </message>
    <message>
        <source>Choose a refresh interval from %1. Pause stops periodic sampling, Refresh Now requests a fresh snapshot, and the charts keep only the configured bounded history.</source>
        <extracomment>%1 is &quot;0.5, 1, 2, 5 or 10 seconds&quot;</extracomment>
        <translation>Choisissez un intervalle d’actualisation de %1. «&#xa0;Pause&#xa0;» suspend les mesures périodiques, «&#xa0;Actualiser maintenant&#xa0;» demande aussitôt de nouvelles mesures, et les graphiques ne conservent que l’historique limité qui a été configuré.</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Tableau de bord</translation>
    </message>
    <message>
        <source>CPU shows total and per-logical-processor activity. Memory shows current pressure-related usage values. Network reports local interface traffic. GPU values are shown only when %1 or the active graphics driver publishes them. Storage and power data update at lower cadences because they do not require sub-second polling.</source>
        <extracomment>%1 is what publishes graphics figures, such as NVML</extracomment>
        <translation>«&#xa0;CPU&#xa0;» montre l’activité totale et celle de chaque processeur logique. «&#xa0;Mémoire&#xa0;» montre les valeurs d’utilisation actuelles qui révèlent la pression sur la mémoire. «&#xa0;Réseau&#xa0;» indique le trafic des interfaces locales. Les valeurs du GPU ne sont affichées que si %1 ou le pilote graphique actif les fournit. Les données de stockage et d’énergie sont actualisées moins souvent, car elles n’exigent pas d’être relevées plusieurs fois par seconde.</translation>
    </message>
    <message>
        <source>Process Explorer</source>
        <translation>Explorateur de processus</translation>
    </message>
    <message>
        <source>The process list uses native %1 %2 data. Sort by CPU or memory and use the filter field to locate a running process. Vantor does not launch external command-line tools to collect process telemetry.</source>
        <extracomment>%1 is the name of the system, %2 of what tells of processes: &quot;Linux procfs&quot;</extracomment>
        <translation>La liste des processus utilise les données natives %2 de %1. Triez par CPU ou par mémoire et servez-vous du champ de filtre pour trouver un processus en cours d’exécution. Vantor ne lance aucun outil externe en ligne de commande pour recueillir les données des processus.</translation>
    </message>
    <message>
        <source>Menu Bar and Windows</source>
        <translation>Zone de notification et fenêtres</translation>
    </message>
    <message>
        <source>When the menu bar dashboard is enabled, closing the main window keeps Vantor available from the menu bar. When it is disabled, closing the last window exits the app. Use Quit or %1 to terminate Vantor completely.</source>
        <extracomment>%1 is what is pressed to quit, such as Ctrl+Q</extracomment>
        <translation>Lorsque le tableau de bord de la zone de notification est activé, Vantor y reste accessible après la fermeture de la fenêtre principale. Lorsqu’il est désactivé, la fermeture de la dernière fenêtre met fin à l’application. Utilisez «&#xa0;Quitter&#xa0;» ou %1 pour arrêter complètement Vantor.</translation>
    </message>
    <message>
        <source>Vantor is a local %1 performance dashboard for live CPU, memory, network, GPU, storage, process and system telemetry.</source>
        <extracomment>%1 is the name of the system</extracomment>
        <translation>Vantor est un tableau de bord local des performances de %1, qui présente en temps réel les données du CPU, de la mémoire, du réseau, du GPU, du stockage, des processus et du système.</translation>
    </message>
    <message>
        <source>Export and Privacy</source>
        <translation>Exportation et confidentialité</translation>
    </message>
    <message>
        <source>All monitoring is performed locally. Vantor does not perform analytics, public-IP lookups or automatic data transmission. A JSON snapshot is written only when you explicitly choose Export and select a destination.</source>
        <translation>Toute la surveillance est effectuée localement. Vantor n’effectue ni analyse d’audience, ni recherche d’IP publique, ni transmission automatique de données. Un instantané JSON n’est écrit que si vous choisissez explicitement «&#xa0;Exporter&#xa0;» et sélectionnez une destination.</translation>
    </message>
    <message>
        <source>Amounts of memory and storage count in steps of 1024, so that 1 GB is 1,073,741,824 bytes, as the kernel hands memory out; rates count in steps of 1000, as networks do. A process&apos;s CPU share is of one processor: 100% is one kept busy, and a process on several has more.</source>
        <translation>Les quantités de mémoire et de stockage se comptent par pas de 1024, si bien que 1&#xa0;Go vaut 1&#xa0;073&#xa0;741&#xa0;824&#xa0;octets, puisque c’est ainsi que le noyau attribue la mémoire&#xa0;; les débits se comptent par pas de 1000, comme dans les réseaux. La part de CPU d’un processus se rapporte à un seul processeur&#xa0;: 100&#xa0;% en représente un entièrement occupé, et un processus réparti sur plusieurs dépasse cette valeur.</translation>
    </message>
    <message>
        <source>What the Numbers Mean</source>
        <translation>Ce que signifient les chiffres</translation>
    </message>
</context>
<context>
    <name>LastUpdateText</name>
    <message>
        <source>Collecting live data…</source>
        <translation>Collecte des données en temps réel…</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time of day</extracomment>
        <translation>Actualisé à %1</translation>
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
        <translation>NOM</translation>
    </message>
    <message>
        <source>.Nm vantor</source>
        <translation>.Nm vantor</translation>
    </message>
    <message>
        <source>local performance dashboard for the desktop</source>
        <translation>tableau de bord local des performances pour le bureau</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>SYNOPSIS</translation>
    </message>
    <message>
        <source>.Nm
.Op Ar option</source>
        <translation>.Nm
.Op Ar option</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>DESCRIPTION</translation>
    </message>
    <message>
        <source>.Nm
opens a window that shows what this computer is doing, live: processor, memory, network, graphics, storage, the
system with its battery, and the processes.
Closing the window keeps it in the tray, unless that is switched off in the settings or there is no tray.</source>
        <translation>.Nm
ouvre une fenêtre qui montre en direct ce que fait cet ordinateur&#xa0;: processeur, mémoire, réseau, graphismes, stockage, le
système avec sa batterie, et les processus.
Quand on ferme la fenêtre, le programme reste dans la zone de notification, sauf si cela est désactivé dans les paramètres ou si cette zone n’existe pas.</translation>
    </message>
    <message>
        <source>One program runs on each display: started again,
.Nm
brings the running one&apos;s window forward and ends.</source>
        <translation>Le programme ne tourne qu’une fois par affichage&#xa0;: lancé de nouveau,
.Nm
amène au premier plan la fenêtre de celui qui tourne déjà et se termine.</translation>
    </message>
    <message>
        <source>It is local: it opens no internet connection, starts no other program and collects nothing.
Where the kernel can, it enforces that; Help, About Vantor says whether it does.</source>
        <translation>Le programme est local&#xa0;: il n’ouvre aucune connexion à Internet, ne lance aucun autre programme et ne collecte rien.
Là où le noyau le peut, il l’impose&#xa0;; «&#xa0;À propos de Vantor&#xa0;», dans le menu «&#xa0;Aide&#xa0;», dit si c’est le cas.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPTIONS</translation>
    </message>
    <message>
        <source>Each has the running program do something, or starts it for that:</source>
        <translation>Chacune fait faire quelque chose au programme en cours, ou le lance pour cela&#xa0;:</translation>
    </message>
    <message>
        <source>stops the readings,</source>
        <translation>suspend les mesures,</translation>
    </message>
    <message>
        <source>goes on with them,</source>
        <translation>les reprend,</translation>
    </message>
    <message>
        <source>reads everything now,</source>
        <translation>relit tout maintenant,</translation>
    </message>
    <message>
        <source>asks where to save a snapshot,</source>
        <translation>demande où enregistrer un instantané,</translation>
    </message>
    <message>
        <source>opens the settings,</source>
        <translation>ouvre les paramètres,</translation>
    </message>
    <message>
        <source>has no window, only the icon in the tray; without a tray, the window.</source>
        <translation>n’ouvre pas de fenêtre, n’affiche que l’icône dans la zone de notification&#xa0;; sans cette zone, ouvre la fenêtre.</translation>
    </message>
    <message>
        <source>The same actions are in the menu of the icon that starts the program, and on the session&apos;s bus, where
.Dq com.kestrone.Vantor
answers as
.Dq org.freedesktop.Application .</source>
        <translation>Les mêmes actions se trouvent dans le menu de l’icône qui lance le programme, et sur le bus de la session, où
.Dq com.kestrone.Vantor
répond en tant que
.Dq org.freedesktop.Application .</translation>
    </message>
    <message>
        <source>These print a text and end:</source>
        <translation>Avec celles-ci, le programme affiche un texte et se termine&#xa0;:</translation>
    </message>
    <message>
        <source>prints the options,</source>
        <translation>affiche les options,</translation>
    </message>
    <message>
        <source>prints the version.</source>
        <translation>affiche la version.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <translation>ENVIRONNEMENT</translation>
    </message>
    <message>
        <source>The display, the first before the second.</source>
        <translation>L’affichage&#xa0;; la première variable l’emporte sur la seconde.</translation>
    </message>
    <message>
        <source>The folder of the settings&apos; folder,
.Pa ~/.config
where it is not set or relative.</source>
        <translation>Le dossier qui contient celui des paramètres,
.Pa ~/.config
si la variable n’est pas définie ou contient un chemin relatif.</translation>
    </message>
    <message>
        <source>The folder of the lock and the socket by which a second start finds the first.</source>
        <translation>Le dossier du verrou et de la socket par lesquels un second lancement trouve le premier.</translation>
    </message>
    <message>
        <source>The session&apos;s bus.
Only sockets of this machine are used.</source>
        <translation>Le bus de la session.
Seules les sockets de cette machine sont utilisées.</translation>
    </message>
    <message>
        <source>The language in whose order names are listed, the first that is set.</source>
        <translation>La langue dont l’ordre sert à classer les noms&#xa0;; la première variable définie compte.</translation>
    </message>
    <message>
        <source>How the time of the day is written.</source>
        <translation>La façon d’écrire l’heure.</translation>
    </message>
    <message>
        <source>The desktop&apos;s permission to come forward.</source>
        <translation>La permission du bureau de passer au premier plan.</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>FICHIERS</translation>
    </message>
    <message>
        <source>The settings.
A damaged file is kept beside it, as
.Pa settings.ini.damaged-1 ,
and the defaults are used.</source>
        <translation>Les paramètres.
Un fichier endommagé est gardé à côté, sous le nom
.Pa settings.ini.damaged-1 ,
et les valeurs par défaut sont utilisées.</translation>
    </message>
    <message>
        <source>Where the window was.</source>
        <translation>Où se trouvait la fenêtre.</translation>
    </message>
    <message>
        <source>Opens the program at login, without a window; written and removed by its settings.</source>
        <translation>Ouvre le programme à la connexion, sans fenêtre&#xa0;; créé et supprimé par les paramètres du programme.</translation>
    </message>
    <message>
        <source>Lock and socket of the running program.</source>
        <translation>Verrou et socket du programme en cours.</translation>
    </message>
    <message>
        <source>The names of graphics cards; without it they are shown by their numbers.</source>
        <translation>Les noms des cartes graphiques&#xa0;; sans ce fichier, elles sont désignées par leurs numéros.</translation>
    </message>
    <message>
        <source>Every key of an exported snapshot and its unit.</source>
        <translation>Chaque clé d’un instantané exporté et son unité.</translation>
    </message>
    <message>
        <source>Besides these, it writes only what is exported.</source>
        <translation>En dehors de ceux-ci, il n’écrit que ce qui est exporté.</translation>
    </message>
    <message>
        <source>SIGNALS</source>
        <translation>SIGNAUX</translation>
    </message>
    <message>
        <source>End the program orderly, within five seconds.
A second one, more than 0.3 seconds after the first, ends it at once.
What is ignored when the program is started (see
.Xr nohup 1 )
stays ignored.</source>
        <translation>Terminent le programme proprement, en cinq secondes au plus.
Un second signal, plus de 0,3&#xa0;seconde après le premier, le termine aussitôt.
Un signal ignoré au lancement du programme (voir
.Xr nohup 1 )
le reste.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>CODE DE RETOUR</translation>
    </message>
    <message>
        <source>The program was quit, ended by the first signal, or has brought another one forward.</source>
        <translation>Le programme a été quitté, le premier signal l’a terminé, ou il en a amené un autre au premier plan.</translation>
    </message>
    <message>
        <source>There is no display that it can open, or too little memory, too few threads or file descriptors to go on.
One line on standard error says which.</source>
        <translation>Il n’y a pas d’affichage qu’il puisse ouvrir, ou trop peu de mémoire, de fils d’exécution ou de descripteurs de fichier pour continuer.
Une ligne sur la sortie d’erreur standard indique lequel de ces cas se présente.</translation>
    </message>
    <message>
        <source>An argument is none of the options.</source>
        <translation>Un argument ne correspond à aucune des options.</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>VOIR AUSSI</translation>
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
        <translation>En attente des données de mémoire</translation>
    </message>
    <message>
        <source>%1 installed</source>
        <extracomment>%1 is an amount of memory</extracomment>
        <translation>%1 installés</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>the title of the card</extracomment>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>In Use</source>
        <extracomment>under the share of memory that is used</extracomment>
        <translation>Utilisée</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>memory used lately; the short label of a figure</extracomment>
        <translation>Active</translation>
    </message>
    <message>
        <source>Wired</source>
        <extracomment>memory that the system keeps and cannot swap out; the short label of a figure</extracomment>
        <translation>Réservée</translation>
    </message>
    <message>
        <source>Compressed</source>
        <extracomment>memory that is kept compressed; the short label of a figure</extracomment>
        <translation>Compressée</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>memory that programs can have; the short label of a figure</extracomment>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>Memory history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>Historique de la mémoire</translation>
    </message>
    <message>
        <source>Top Memory Processes</source>
        <extracomment>the processes that use most memory</extracomment>
        <translation>Principaux processus (mémoire)</translation>
    </message>
</context>
<context>
    <name>MenuBarDashboard</name>
    <message>
        <source>Open Dashboard</source>
        <extracomment>a button</extracomment>
        <translation>Ouvrir le tableau de bord</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>a button: read everything now</extracomment>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>opens the settings</extracomment>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a button: end the program</extracomment>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>the short title of a figure</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>the short title of a figure</extracomment>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Collecting live data…</source>
        <translation>Collecte des données en temps réel…</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>a button: stop reading</extracomment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>a button: go on reading</extracomment>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>for screen readers: whether the figures are live</extracomment>
        <translation>État</translation>
    </message>
</context>
<context>
    <name>NetworkCard</name>
    <message>
        <source>Not assigned</source>
        <extracomment>no address</extracomment>
        <translation>Non attribuée</translation>
    </message>
    <message>
        <source>Waiting for network data</source>
        <translation>En attente des données réseau</translation>
    </message>
    <message>
        <source>Active interface: %1</source>
        <extracomment>%1 is the name of a network interface</extracomment>
        <translation>Interface active&#xa0;: %1</translation>
    </message>
    <message>
        <source>No active interface</source>
        <translation>Aucune interface active</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>the title of the card</extracomment>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>the speed at which data comes in</extracomment>
        <translation>Réception</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>the speed at which data goes out</extracomment>
        <translation>Envoi</translation>
    </message>
    <message>
        <source>Hostname</source>
        <translation>Nom d’hôte</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>a host without a name</extracomment>
        <translation>Inconnu</translation>
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
        <translation>Sur secteur</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>Sur batterie</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a time, such as 1h 20m</extracomment>
        <translation>Chargée dans %1</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <translation>Reste %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln charge cycle(s)</source>
        <comment>of the battery</comment>
        <translation>
            <numerusform>%Ln&#xa0;cycle de charge</numerusform>
            <numerusform>%Ln&#xa0;cycles de charge</numerusform>
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
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>Waiting for Processes</source>
        <translation>En attente des processus</translation>
    </message>
    <message>
        <source>No process data is available yet.</source>
        <translation>Aucune donnée de processus n’est encore disponible.</translation>
    </message>
    <message>
        <source>No Matching Processes</source>
        <translation>Aucun processus correspondant</translation>
    </message>
    <message>
        <source>No process matches “%1”.</source>
        <extracomment>%1 is what the user has typed</extracomment>
        <translation>Aucun processus ne correspond à «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Process Explorer</source>
        <extracomment>the title of the card</extracomment>
        <translation>Explorateur de processus</translation>
    </message>
    <message>
        <source>Live process activity</source>
        <translation>Activité des processus en temps réel</translation>
    </message>
    <message>
        <source>Filter processes</source>
        <extracomment>shown in an empty field that is typed into</extracomment>
        <translation>Filtrer les processus</translation>
    </message>
    <message>
        <source>Sort</source>
        <extracomment>for screen readers: by what the list is sorted</extracomment>
        <translation>Tri</translation>
    </message>
</context>
<context>
    <name>ProcessHeader</name>
    <message>
        <source>Process</source>
        <extracomment>the heading of a column</extracomment>
        <translation>Processus</translation>
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
        <translation>Mémoire</translation>
    </message>
</context>
<context>
    <name>ProcessMiniList</name>
    <message>
        <source>Waiting for process data…</source>
        <translation>En attente des données des processus…</translation>
    </message>
</context>
<context>
    <name>ProcessTableView</name>
    <message numerus="yes">
        <source>%Ln process(es)</source>
        <comment>for screen readers: in the list</comment>
        <translation>
            <numerusform>%Ln&#xa0;processus</numerusform>
            <numerusform>%Ln&#xa0;processus</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, PID %2, CPU %3, memory %4</source>
        <extracomment>for screen readers: the name of a process, its number, its share of the processor, its memory</extracomment>
        <translation>%1, PID %2, CPU %3, mémoire %4</translation>
    </message>
    <message>
        <source>Processes</source>
        <extracomment>the list, for screen readers</extracomment>
        <translation>Processus</translation>
    </message>
    <message>
        <source>100% is one processor: a process that keeps two busy has 200%. A click sorts by it.</source>
        <extracomment>what a process&apos;s percentage is of; the title of a column is pointed at</extracomment>
        <translation>100&#xa0;% correspond à un processeur&#xa0;: un processus qui en occupe deux a 200&#xa0;%. Un clic trie selon cette colonne.</translation>
    </message>
    <message>
        <source>The memory that a process has in use now. A click sorts by it.</source>
        <extracomment>the title of a column is pointed at</extracomment>
        <translation>La mémoire qu’un processus utilise en ce moment. Un clic trie selon cette colonne.</translation>
    </message>
    <message>
        <source>A full bar is the largest of the processes shown.</source>
        <translation>Une barre pleine correspond à la plus grande valeur parmi les processus affichés.</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>a command: the whole row of a process</extracomment>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <extracomment>a command</extracomment>
        <translation>Copier le nom</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <extracomment>a command: where the program of a process lies</extracomment>
        <translation>Copier le chemin</translation>
    </message>
    <message>
        <source>Filter by This Name</source>
        <extracomment>a command: show the processes of that name only</extracomment>
        <translation>Filtrer par ce nom</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>a button</extracomment>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>JSON document</source>
        <extracomment>a kind of file</extracomment>
        <translation>Document JSON</translation>
    </message>
    <message>
        <source>All files</source>
        <extracomment>a kind of file: any</extracomment>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>%1, folder</source>
        <extracomment>for screen readers; %1 is the name of a folder</extracomment>
        <translation>%1, dossier</translation>
    </message>
    <message>
        <source>Folders and files</source>
        <extracomment>for screen readers: the contents of a folder</extracomment>
        <translation>Dossiers et fichiers</translation>
    </message>
    <message>
        <source>Warning</source>
        <extracomment>for screen readers: the sign beside a warning</extracomment>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>The disk does not answer. Please choose another folder, or try again.</source>
        <translation>Le disque ne répond pas. Veuillez choisir un autre dossier ou réessayer.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Le dossier n’existe pas.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>Ce n’est pas un dossier.</translation>
    </message>
    <message>
        <source>You do not have the permission to look into this folder.</source>
        <translation>Vous n’avez pas la permission de consulter ce dossier.</translation>
    </message>
    <message>
        <source>The folder cannot be read.</source>
        <translation>Impossible de lire le dossier.</translation>
    </message>
    <message>
        <source>You do not have the permission to make a folder here.</source>
        <translation>Vous n’avez pas la permission de créer un dossier ici.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Le nom est trop long.</translation>
    </message>
    <message>
        <source>The folder could not be made.</source>
        <translation>Impossible de créer le dossier.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Dossier personnel</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Téléchargements</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Looking for your folders…</source>
        <translation>Recherche de vos dossiers…</translation>
    </message>
    <message>
        <source>Last used</source>
        <extracomment>the folder that was saved to before</extracomment>
        <translation>Dernier utilisé</translation>
    </message>
    <message>
        <source>Looking into the folder…</source>
        <translation>Lecture du dossier…</translation>
    </message>
    <message>
        <source>You do not have the permission to save in this folder.</source>
        <translation>Vous n’avez pas la permission d’enregistrer dans ce dossier.</translation>
    </message>
    <message numerus="yes">
        <source>Only the first %Ln of this folder are shown.</source>
        <comment>files and folders</comment>
        <translation>
            <numerusform>Seul %Ln&#xa0;élément de ce dossier est affiché.</numerusform>
            <numerusform>Seuls les %Ln&#xa0;premiers éléments de ce dossier sont affichés.</numerusform>
        </translation>
    </message>
    <message>
        <source>New Folder</source>
        <extracomment>the title of a box</extracomment>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>Name of the new folder:</source>
        <translation>Nom du nouveau dossier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Créer</translation>
    </message>
    <message>
        <source>Making the folder…</source>
        <translation>Création du dossier…</translation>
    </message>
    <message>
        <source>Please type a name for the file.</source>
        <translation>Veuillez saisir un nom de fichier.</translation>
    </message>
    <message>
        <source>Please choose a folder first.</source>
        <translation>Veuillez d’abord choisir un dossier.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <extracomment>whether a file can be saved there</extracomment>
        <translation>Vérification…</translation>
    </message>
    <message>
        <source>Places</source>
        <extracomment>for screen readers: the list of well-known folders</extracomment>
        <translation>Emplacements</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <extracomment>of the file; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <extracomment>the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Dossier&#xa0;:</translation>
    </message>
    <message>
        <source>Parent folder (Alt+Up)</source>
        <extracomment>a button; Alt+Up is what can be pressed instead</extracomment>
        <translation>Dossier parent (Alt+Haut)</translation>
    </message>
    <message>
        <source>New folder</source>
        <extracomment>a button</extracomment>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>Replace File</source>
        <extracomment>the title of a box</extracomment>
        <translation>Remplacer le fichier</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists. Do you want to replace it?</source>
        <extracomment>%1 is the name of a file</extracomment>
        <translation>«&#xa0;%1&#xa0;» existe déjà. Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;Remplacer</translation>
    </message>
</context>
<context>
    <name>SettingsForm</name>
    <message numerus="yes">
        <source>Chart history: %Ln sample(s)</source>
        <comment>how many readings the charts keep</comment>
        <translation>
            <numerusform>Historique des graphiques&#xa0;: %Ln&#xa0;mesure</numerusform>
            <numerusform>Historique des graphiques&#xa0;: %Ln&#xa0;mesures</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 second</source>
        <extracomment>half a second, as a number</extracomment>
        <translation>%1&#xa0;seconde</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <extracomment>a number of seconds that is not whole</extracomment>
        <translation>%1&#xa0;secondes</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the theme: as the desktop has it</extracomment>
        <translation>Système</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>the theme</extracomment>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>the theme</extracomment>
        <translation>Sombre</translation>
    </message>
    <message numerus="yes">
        <source>%Ln second(s)</source>
        <comment>how often the figures are read</comment>
        <translation>
            <numerusform>%Ln&#xa0;seconde</numerusform>
            <numerusform>%Ln&#xa0;secondes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Open at Login</source>
        <extracomment>a switch: start the program when the user logs in</extracomment>
        <translation>Ouvrir à la connexion</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <extracomment>settings that could not be stored; %1 is a sentence that says why</extracomment>
        <translation>Non enregistré&#xa0;: %1</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>whether colours are dark or light</extracomment>
        <translation>Thème</translation>
    </message>
    <message>
        <source>Monitoring</source>
        <translation>Surveillance</translation>
    </message>
    <message>
        <source>Refresh interval</source>
        <extracomment>how often the figures are read</extracomment>
        <translation>Intervalle d’actualisation</translation>
    </message>
    <message>
        <source>Chart history</source>
        <extracomment>how many readings the charts keep</extracomment>
        <translation>Historique des graphiques</translation>
    </message>
    <message numerus="yes">
        <source>%Ln sample(s)</source>
        <comment>for screen readers: how many readings the charts keep</comment>
        <translation>
            <numerusform>%Ln&#xa0;mesure</numerusform>
            <numerusform>%Ln&#xa0;mesures</numerusform>
        </translation>
    </message>
    <message>
        <source>Include point-to-point and tunnel interfaces</source>
        <extracomment>a switch: network interfaces, such as those of a VPN</extracomment>
        <translation>Inclure les interfaces point à point et les tunnels</translation>
    </message>
    <message>
        <source>Show menu bar dashboard</source>
        <extracomment>a switch: the icon in the tray and its panel</extracomment>
        <translation>Afficher le tableau de bord dans la zone de notification</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Network privacy</source>
        <extracomment>a label</extracomment>
        <translation>Confidentialité réseau</translation>
    </message>
    <message>
        <source>No public IP lookup</source>
        <extracomment>the program does not ask the internet for the address</extracomment>
        <translation>Aucune recherche d’IP publique</translation>
    </message>
    <message>
        <source>Process source</source>
        <extracomment>a label: where figures of processes come from</extracomment>
        <translation>Source des processus</translation>
    </message>
    <message>
        <source>Native %1 %2</source>
        <extracomment>the name of the system, and of what tells of processes: &quot;Native Linux procfs&quot;</extracomment>
        <translation>%2 natif de %1</translation>
    </message>
    <message>
        <source>GPU telemetry</source>
        <extracomment>a label: where figures of graphics come from</extracomment>
        <translation>Données GPU</translation>
    </message>
    <message>
        <source>Export Current Snapshot…</source>
        <extracomment>a button</extracomment>
        <translation>Exporter l’instantané actuel…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>a heading: about the program</extracomment>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Application</source>
        <extracomment>a label</extracomment>
        <translation>Application</translation>
    </message>
    <message>
        <source>This desktop has no tray to show it in.</source>
        <translation>Ce bureau n’a pas de zone de notification où l’afficher.</translation>
    </message>
</context>
<context>
    <name>SoftwareCentre</name>
    <message>
        <source>See what this computer is doing, live and at a glance</source>
        <translation>Voir en direct et d’un coup d’œil ce que fait cet ordinateur</translation>
    </message>
    <message>
        <source>Vantor shows what the computer is doing on one page, in a window that costs next to nothing to keep open: processor, memory, network, graphics, storage and the system with its battery, each with short histories where there is something to follow.</source>
        <translation>Vantor montre sur une seule page ce que fait l’ordinateur, dans une fenêtre qui ne coûte presque rien à garder ouverte&#xa0;: processeur, mémoire, réseau, graphismes, stockage et le système avec sa batterie, chacun avec un court historique quand il y a quelque chose à suivre.</translation>
    </message>
    <message>
        <source>What there is beside the cards:</source>
        <translation>En plus des cartes, il y a&#xa0;:</translation>
    </message>
    <message>
        <source>a process explorer with the heaviest processes, and a filter over all of them</source>
        <translation>un explorateur de processus avec les plus gourmands, et un filtre sur l’ensemble</translation>
    </message>
    <message>
        <source>a tray icon with a panel of the most important figures</source>
        <translation>une icône dans la zone de notification, avec un panneau des chiffres les plus importants</translation>
    </message>
    <message>
        <source>export of all figures as one JSON document</source>
        <translation>l’exportation de tous les chiffres dans un document JSON</translation>
    </message>
    <message>
        <source>It is local: it opens no internet connection, starts no other program and collects nothing, and the kernel enforces that. A figure that the system does not publish is shown as words, never as zero. Everything is reached by keyboard, and told to screen readers.</source>
        <translation>Le programme est local&#xa0;: il n’ouvre aucune connexion à Internet, ne lance aucun autre programme et ne collecte rien, et le noyau l’impose. Un chiffre que le système ne fournit pas est remplacé par des mots, jamais par un zéro. Tout est accessible au clavier et transmis aux lecteurs d’écran.</translation>
    </message>
    <message>
        <source>The dashboard of a laptop, dark</source>
        <translation>Le tableau de bord d’un ordinateur portable, thème sombre</translation>
    </message>
    <message>
        <source>The dashboard of a laptop, light</source>
        <translation>Le tableau de bord d’un ordinateur portable, thème clair</translation>
    </message>
    <message>
        <source>The first release.</source>
        <translation>La première version.</translation>
    </message>
</context>
<context>
    <name>StorageCard</name>
    <message>
        <source>Waiting for storage data</source>
        <translation>En attente des données de stockage</translation>
    </message>
    <message numerus="yes">
        <source>%Ln mounted volume(s)</source>
        <translation>
            <numerusform>%Ln&#xa0;volume monté</numerusform>
            <numerusform>%Ln&#xa0;volumes montés</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <extracomment>the title of the card</extracomment>
        <translation>Stockage</translation>
    </message>
    <message>
        <source>No Volumes</source>
        <extracomment>there is no disk to be shown</extracomment>
        <translation>Aucun volume</translation>
    </message>
</context>
<context>
    <name>SystemCard</name>
    <message>
        <source>Waiting for system data</source>
        <translation>En attente des données système</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the title of the card: the whole machine</extracomment>
        <translation>Système</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>a text that the machine does not tell</extracomment>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Operating System</source>
        <translation>Système d’exploitation</translation>
    </message>
    <message>
        <source>Kernel Build</source>
        <translation>Version du noyau</translation>
    </message>
    <message>
        <source>Architecture</source>
        <extracomment>of the processor</extracomment>
        <translation>Architecture</translation>
    </message>
    <message>
        <source>Uptime</source>
        <extracomment>the time since the machine was started</extracomment>
        <translation>Durée d’activité</translation>
    </message>
    <message>
        <source>Thermal State</source>
        <extracomment>how hot the machine is, in words</extracomment>
        <translation>État thermique</translation>
    </message>
    <message>
        <source>Low Power Mode</source>
        <translation>Économie d’énergie</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>the low power mode</extracomment>
        <translation>Activée</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>the low power mode</extracomment>
        <translation>Désactivée</translation>
    </message>
</context>
<context>
    <name>VantorApp</name>
    <message>
        <source>Vantor (collecting live data)</source>
        <extracomment>the name of the window until figures have been read</extracomment>
        <translation>Vantor (collecte des données en temps réel)</translation>
    </message>
    <message>
        <source>Vantor Settings</source>
        <extracomment>the title of a window</extracomment>
        <translation>Paramètres de Vantor</translation>
    </message>
    <message>
        <source>Vantor Help</source>
        <extracomment>the title of a window</extracomment>
        <translation>Aide de Vantor</translation>
    </message>
</context>
<context>
    <name>VolumeView</name>
    <message>
        <source>%1 used</source>
        <extracomment>%1 is an amount, of a disk</extracomment>
        <translation>%1 utilisés</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount, of a disk</extracomment>
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <extracomment>%1 is where a disk is found, such as /home</extracomment>
        <translation>%1 (lecture seule)</translation>
    </message>
    <message>
        <source>%1 full, %2, %3</source>
        <extracomment>for screen readers: %1 is a share such as 45%, %2 &quot;120 GB used&quot;, %3 &quot;90 GB free&quot;</extracomment>
        <translation>Plein à %1, %2, %3</translation>
    </message>
</context>
</TS>
