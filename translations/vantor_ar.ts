<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About Vantor</source>
        <extracomment>the title of a window</extracomment>
        <translation>عن Vantor</translation>
    </message>
    <message>
        <source>Version %1 (%2)

Built by the Vantor founders. Everything it shows, it reads on this machine, and it stays here.

Confined by the kernel: %3</source>
        <extracomment>%1 is the version, %2 the build, %3 is &quot;yes&quot;, &quot;no&quot; or what is missing</extracomment>
        <translation>الإصدار %1 (%2)

من تطوير مؤسسي Vantor. كل ما يعرضه يقرؤه على هذا الجهاز، ويبقى فيه.

مقيَّد من نواة النظام: %3</translation>
    </message>
</context>
<context>
    <name>AppCommands</name>
    <message>
        <source>About Vantor</source>
        <extracomment>a command of the menu</extracomment>
        <translation>عن Vantor</translation>
    </message>
    <message>
        <source>Refresh Now</source>
        <extracomment>a command of the menu: read everything now</extracomment>
        <translation>حدّث الآن</translation>
    </message>
    <message>
        <source>Export Snapshot…</source>
        <extracomment>a command of the menu</extracomment>
        <translation>صدّر لقطة…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>a command of the menu</extracomment>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Vantor Help</source>
        <extracomment>a command of the menu</extracomment>
        <translation>مساعدة Vantor</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a command of the menu</extracomment>
        <translation>اخرج</translation>
    </message>
    <message>
        <source>Close Window</source>
        <extracomment>a command of the menu</extracomment>
        <translation>أغلق النافذة</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>a menu; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>a menu; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>م&amp;ساعدة</translation>
    </message>
</context>
<context>
    <name>ByteCountFormatter</name>
    <message>
        <source>%1 KB</source>
        <extracomment>an amount of 1000 or 1024 bytes each</extracomment>
        <translation>%1 ك.ب</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <extracomment>an amount of about a million bytes each</extracomment>
        <translation>%1 م.ب</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <extracomment>an amount of 1000 or 1024 MB each</extracomment>
        <translation>%1 غ.ب</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <extracomment>an amount of 1000 or 1024 GB each</extracomment>
        <translation>%1 ت.ب</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <extracomment>an amount of 1000 or 1024 TB each</extracomment>
        <translation>%1 بيتابايت</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <extracomment>an amount of 1000 or 1024 PB each</extracomment>
        <translation>%1 إكسابايت</translation>
    </message>
    <message numerus="yes">
        <source>%Ln byte(s)</source>
        <translation>
            <numerusform>%Ln بايت</numerusform>
            <numerusform>بايت واحد</numerusform>
            <numerusform>بايتان</numerusform>
            <numerusform>%Ln بايتات</numerusform>
            <numerusform>%Ln بايتًا</numerusform>
            <numerusform>%Ln بايت</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CPUCard</name>
    <message>
        <source>%1 physical • %2 logical cores</source>
        <extracomment>the numbers of cores; %1 stays in front where both are read as one phrase</extracomment>
        <translation>الأنوية: %1 فعلية • %2 منطقية</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>the title of the card</extracomment>
        <translation>المعالج</translation>
    </message>
    <message>
        <source>CPU Load</source>
        <extracomment>under the share of the processor that is busy</extracomment>
        <translation>استخدام المعالج</translation>
    </message>
    <message>
        <source>%1 GHz</source>
        <extracomment>a frequency</extracomment>
        <translation>%1 غ.هرتز</translation>
    </message>
    <message>
        <source>User</source>
        <extracomment>the share of time spent in programs</extracomment>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the share of time spent in the operating system</extracomment>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Nominal</source>
        <extracomment>the frequency that the processor is sold with</extracomment>
        <translation>الاسمي</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>الحرارة</translation>
    </message>
    <message>
        <source>Load avg %1</source>
        <extracomment>%1 are the averages of the last minutes, such as 0.52 0.58 0.59</extracomment>
        <translation>متوسط الحمل %1</translation>
    </message>
    <message>
        <source>CPU history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>سجل المعالج</translation>
    </message>
    <message>
        <source>Core Activity</source>
        <extracomment>how busy each logical processor is</extracomment>
        <translation>نشاط الأنوية</translation>
    </message>
    <message>
        <source>Top CPU Processes</source>
        <extracomment>the processes that keep the processor busiest</extracomment>
        <translation>أكثر العمليات استخدامًا للمعالج</translation>
    </message>
</context>
<context>
    <name>CardTexts</name>
    <message>
        <source>Not published</source>
        <extracomment>a figure that the machine does not tell</extracomment>
        <translation>غير متوفر</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <extracomment>a temperature</extracomment>
        <translation>%1 °م</translation>
    </message>
</context>
<context>
    <name>ChartView</name>
    <message>
        <source>%1 s</source>
        <extracomment>seconds, as short as possible</extracomment>
        <translation>%1 ث</translation>
    </message>
    <message>
        <source>%1 min</source>
        <extracomment>minutes, as short as possible</extracomment>
        <translation>%1 د</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <extracomment>minutes and seconds, as short as possible</extracomment>
        <translation>%1 د %2 ث</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>hours and minutes, as short as possible</extracomment>
        <translation>%1 س %2 د</translation>
    </message>
    <message>
        <source>now</source>
        <extracomment>a sample of a chart, that was taken just now</extracomment>
        <translation>الآن</translation>
    </message>
    <message>
        <source>%1 ago</source>
        <extracomment>%1 is a time: when a sample of a chart was taken</extracomment>
        <translation>قبل %1</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>from the smallest to the largest value</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>The width is the last %1.</source>
        <extracomment>of a chart; %1 is a time</extracomment>
        <translation>يمثّل عرض المخطط آخر %1.</translation>
    </message>
    <message>
        <source>The height is %1 to %2.</source>
        <extracomment>of a chart; both are values: 0 % and 100 %</extracomment>
        <translation>يمتد ارتفاع المخطط من %1 إلى %2.</translation>
    </message>
    <message>
        <source>The height is the smallest to the largest value shown.</source>
        <extracomment>of a chart</extracomment>
        <translation>يمتد ارتفاع المخطط من أصغر قيمة معروضة إلى أكبرها.</translation>
    </message>
    <message>
        <source>The height is the smallest to the largest value shown: %1.</source>
        <extracomment>of a chart; %1 are these two values</extracomment>
        <translation>يمتد ارتفاع المخطط من أصغر قيمة معروضة إلى أكبرها: %1.</translation>
    </message>
</context>
<context>
    <name>CoreActivity</name>
    <message>
        <source>Core %1: %2</source>
        <extracomment>%1 is the number of a logical processor, %2 how busy it is</extracomment>
        <translation>النواة %1: %2</translation>
    </message>
    <message>
        <source>Core Activity</source>
        <extracomment>how busy each logical processor is</extracomment>
        <translation>نشاط الأنوية</translation>
    </message>
</context>
<context>
    <name>CoreWords</name>
    <message>
        <source>Detecting processor…</source>
        <translation>جارٍ اكتشاف المعالج…</translation>
    </message>
    <message>
        <source>Detecting host…</source>
        <translation>جارٍ اكتشاف المضيف…</translation>
    </message>
    <message>
        <source>Detecting hardware…</source>
        <translation>جارٍ اكتشاف العتاد…</translation>
    </message>
    <message>
        <source>Detecting macOS…</source>
        <translation>جارٍ اكتشاف macOS…</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>what the machine does not tell</extracomment>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Nominal</source>
        <extracomment>how hot the machine is: as usual</extracomment>
        <translation>عادية</translation>
    </message>
    <message>
        <source>Fair</source>
        <extracomment>how hot the machine is: a little</extracomment>
        <translation>مرتفعة قليلًا</translation>
    </message>
    <message>
        <source>Serious</source>
        <extracomment>how hot the machine is: it slows down</extracomment>
        <translation>مرتفعة</translation>
    </message>
    <message>
        <source>Critical</source>
        <extracomment>how hot the machine is: it may turn itself off</extracomment>
        <translation>حرجة</translation>
    </message>
    <message>
        <source>Battery</source>
        <extracomment>of a battery that has no name</extracomment>
        <translation>البطارية</translation>
    </message>
    <message>
        <source>Live Linux performance intelligence</source>
        <translation>رؤية مباشرة لأداء Linux</translation>
    </message>
    <message>
        <source>Live macOS performance intelligence</source>
        <translation>رؤية مباشرة لأداء macOS</translation>
    </message>
    <message>
        <source>Unknown Computer</source>
        <translation>حاسوب غير معروف</translation>
    </message>
    <message>
        <source>Unknown Mac</source>
        <translation>جهاز Mac غير معروف</translation>
    </message>
    <message>
        <source>No Graphics Device</source>
        <translation>لا جهاز رسوميات</translation>
    </message>
    <message>
        <source>No Metal Device</source>
        <translation>لا جهاز Metal</translation>
    </message>
    <message>
        <source>The active graphics driver did not expose a graphics device.</source>
        <translation>لم يُتِح مشغّل الرسوميات النشط أي جهاز رسوميات.</translation>
    </message>
    <message>
        <source>The active graphics driver did not expose a Metal device.</source>
        <translation>لم يُتِح مشغّل الرسوميات النشط أي جهاز Metal.</translation>
    </message>
    <message>
        <source>No browsable mounted volume was returned by Linux.</source>
        <translation>لم يُرجع Linux أي وحدة تخزين موصولة قابلة للتصفح.</translation>
    </message>
    <message>
        <source>No browsable mounted volume was returned by macOS.</source>
        <translation>لم يُرجع macOS أي وحدة تخزين موصولة قابلة للتصفح.</translation>
    </message>
    <message>
        <source>Load of your own processes</source>
        <extracomment>the load of the graphics device is known for the user&apos;s processes only</extracomment>
        <translation>استخدام عملياتك أنت فقط</translation>
    </message>
    <message>
        <source>Export System Snapshot</source>
        <extracomment>the title of the dialog that asks where to save</extracomment>
        <translation>تصدير لقطة للنظام</translation>
    </message>
    <message>
        <source>Snapshot Export Failed</source>
        <extracomment>the title of an alert</extracomment>
        <translation>فشل تصدير اللقطة</translation>
    </message>
    <message>
        <source>yes</source>
        <extracomment>whether the kernel confines the program, behind a colon</extracomment>
        <translation>نعم</translation>
    </message>
    <message>
        <source>no</source>
        <extracomment>whether the kernel confines the program, behind a colon</extracomment>
        <translation>لا</translation>
    </message>
    <message>
        <source>Something that is not an ordinary file has that name.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>يوجد بهذا الاسم شيء ليس ملفًا عاديًا.</translation>
    </message>
    <message>
        <source>You do not have the permission to write there.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>ليس لديك إذن بالكتابة هناك.</translation>
    </message>
    <message>
        <source>You have used up the space that you may use on the disk.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>استُنفدت المساحة المسموح لك بها على القرص.</translation>
    </message>
    <message>
        <source>The file would be larger than it may be there.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>سيتجاوز الملف الحجم المسموح به هناك.</translation>
    </message>
    <message>
        <source>The disk could not be written to.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>تعذّرت الكتابة على القرص.</translation>
    </message>
    <message>
        <source>A folder has that name.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>يوجد مجلد بهذا الاسم.</translation>
    </message>
    <message>
        <source>The symbolic links there lead in a circle.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>الوصلات الرمزية هناك تدور في حلقة.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>عدد الملفات المفتوحة كبير جدًا.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>الاسم طويل جدًا.</translation>
    </message>
    <message>
        <source>The disk is not there any more.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>لم يعد القرص موجودًا.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>المجلد غير موجود.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>لا توجد ذاكرة كافية.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>لا توجد مساحة كافية على القرص.</translation>
    </message>
    <message>
        <source>The place for it is not a folder.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>المكان المحدد له ليس مجلدًا.</translation>
    </message>
    <message>
        <source>The disk can only be read.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>القرص للقراءة فقط.</translation>
    </message>
    <message>
        <source>Too many damaged files are kept there.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>عدد الملفات التالفة المحفوظة هناك كبير جدًا.</translation>
    </message>
    <message>
        <source>The program&apos;s own file has no name that can be kept.</source>
        <extracomment>why the program cannot be opened at login</extracomment>
        <translation>لا يمكن تسجيل اسم ملف البرنامج نفسه.</translation>
    </message>
    <message>
        <source>The file would be too large.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>سيكون الملف كبيرًا جدًا.</translation>
    </message>
    <message>
        <source>The disk does not answer.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>القرص لا يستجيب.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved. %2</source>
        <extracomment>%1 is a file&apos;s name, %2 the sentence that says why</extracomment>
        <translation>تعذّر حفظ «%1». %2</translation>
    </message>
    <message>
        <source>The system gave the reason &quot;%1&quot; (%2).</source>
        <extracomment>%1 is the system&apos;s own text, %2 its number</extracomment>
        <translation>السبب الذي أعطاه النظام: «%1» (%2).</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>غير معروف: %1</translation>
    </message>
    <message>
        <source>Not changed: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>لم يُغيَّر: %1</translation>
    </message>
    <message>
        <source>Not changed yet: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>لم يُغيَّر بعد: %1</translation>
    </message>
    <message>
        <source>in part (without %1)</source>
        <extracomment>whether the kernel confines the program, behind a colon; %1 is a list of names</extracomment>
        <translation>جزئيًا (دون %1)</translation>
    </message>
    <message>
        <source>Nominal is the frequency that the processor is made for, as its driver or its name tells it, not the present one.</source>
        <extracomment>what the figure &quot;Nominal&quot; of the processor means</extracomment>
        <translation>«الاسمي» هو التردد الذي صُمّم له المعالج، كما يحدده مشغّله أو اسمه، وليس التردد الحالي.</translation>
    </message>
    <message>
        <source>Wired is memory that cannot be moved out: the kernel&apos;s own and what programs have locked.</source>
        <extracomment>what the figure &quot;Wired&quot; of the memory means</extracomment>
        <translation>«محجوزة» هي الذاكرة التي لا يمكن نقلها خارج RAM: ذاكرة النواة نفسها وما أقفلته البرامج.</translation>
    </message>
    <message>
        <source>Compressed is the memory that zram and zswap keep compressed pages in.</source>
        <extracomment>what the figure &quot;Compressed&quot; of the memory means</extracomment>
        <translation>«مضغوطة» هي الذاكرة التي يحفظ فيها zram وzswap الصفحات المضغوطة.</translation>
    </message>
    <message>
        <source>Thermal State compares the thermal zones with their own limits: Fair where the kernel begins to slow down, Serious where it is nearly too hot, Critical where it switches off.</source>
        <extracomment>what the figure &quot;Thermal State&quot; means</extracomment>
        <translation>تقارن «الحالة الحرارية» المناطق الحرارية بحدودها: «مرتفعة قليلًا» حين تبدأ النواة بإبطاء الجهاز، و«مرتفعة» حين توشك حرارته أن تتجاوز الحد، و«حرجة» حين توقف النواة تشغيله.</translation>
    </message>
    <message>
        <source>Low Power Mode is on while the firmware&apos;s profile or the processors&apos; own preference is to save power.</source>
        <extracomment>what the figure &quot;Low Power Mode&quot; means</extracomment>
        <translation>يكون «وضع توفير الطاقة» مفعّلًا ما دام ملف تعريف الطاقة في البرنامج الثابت، أو تفضيل المعالجات نفسها، هو توفير الطاقة.</translation>
    </message>
</context>
<context>
    <name>DashboardHeader</name>
    <message>
        <source>Paused</source>
        <extracomment>the state: the figures stand still</extracomment>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>Live</source>
        <extracomment>the state: the figures follow the machine</extracomment>
        <translation>مباشر</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>a button: go on reading</extracomment>
        <translation>استأنف</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>a button: stop reading</extracomment>
        <translation>أوقف مؤقتًا</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>a number of seconds, short</extracomment>
        <translation>%1 ث</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>a button: read everything now</extracomment>
        <translation>حدّث</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>a button: save a snapshot to a file</extracomment>
        <translation>صدّر</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a button: end the program</extracomment>
        <translation>اخرج</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>for screen readers: whether the figures are live</extracomment>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Refresh interval</source>
        <extracomment>how often the figures are read</extracomment>
        <translation>فترة التحديث</translation>
    </message>
</context>
<context>
    <name>DesktopFile</name>
    <message>
        <source>Performance Dashboard</source>
        <extracomment>the kind of program</extracomment>
        <translation>لوحة معلومات الأداء</translation>
    </message>
    <message>
        <source>See what this computer is doing, live and at a glance</source>
        <translation>شاهد ما يفعله هذا الحاسوب مباشرةً وبنظرة واحدة</translation>
    </message>
    <message>
        <source>performance;system;monitor;processor;CPU;memory;RAM;network;graphics;GPU;disk;storage;battery;temperature;process;task;load;</source>
        <translation>أداء;نظام;مراقبة;معالج;CPU;ذاكرة;RAM;شبكة;رسوميات;GPU;قرص;تخزين;بطارية;حرارة;عملية;مهام;حمل;</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>أوقف مؤقتًا</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>استأنف</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>حدّث</translation>
    </message>
    <message>
        <source>Export Current Snapshot…</source>
        <translation>صدّر اللقطة الحالية…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Run in the Background</source>
        <translation>شغّل في الخلفية</translation>
    </message>
</context>
<context>
    <name>Formatters</name>
    <message>
        <source>Unknown</source>
        <extracomment>a time that the machine does not tell</extracomment>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>%1 B/s</source>
        <extracomment>a speed of zero: %1 is 0, B stands for bytes and s for a second</extracomment>
        <translation>%1 بايت/ث</translation>
    </message>
    <message>
        <source>%1/s</source>
        <extracomment>a speed: %1 is an amount such as 1.5 MB, s stands for a second</extracomment>
        <translation>%1/ث</translation>
    </message>
    <message>
        <source>%1d %2h %3m</source>
        <extracomment>a time of days, hours and minutes, as short as possible</extracomment>
        <translation>%1 ي %2 س %3 د</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <extracomment>a time of hours and minutes, as short as possible</extracomment>
        <translation>%1 س %2 د</translation>
    </message>
    <message>
        <source>%1m</source>
        <extracomment>a time of minutes, as short as possible</extracomment>
        <translation>%1 د</translation>
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
        <translation>في انتظار بيانات الرسوميات</translation>
    </message>
    <message>
        <source>Graphics</source>
        <extracomment>the title of the card</extracomment>
        <translation>الرسوميات</translation>
    </message>
    <message>
        <source>GPU Load</source>
        <extracomment>under the share of the graphics device that is busy</extracomment>
        <translation>استخدام الرسوميات</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>الحرارة</translation>
    </message>
    <message>
        <source>VRAM Used</source>
        <extracomment>memory of the graphics device</extracomment>
        <translation>VRAM المستخدمة</translation>
    </message>
    <message>
        <source>VRAM Total</source>
        <extracomment>memory of the graphics device</extracomment>
        <translation>إجمالي VRAM</translation>
    </message>
    <message>
        <source>GPU history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>سجل الرسوميات</translation>
    </message>
    <message>
        <source>Graphics Devices</source>
        <extracomment>the heading of a list</extracomment>
        <translation>أجهزة الرسوميات</translation>
    </message>
</context>
<context>
    <name>GraphicsDeviceView</name>
    <message>
        <source>Recommended Working Set</source>
        <extracomment>how much graphics memory the driver recommends to use</extracomment>
        <translation>الذاكرة الموصى بها</translation>
    </message>
    <message>
        <source>Unified memory architecture</source>
        <extracomment>graphics that share the memory of the processor</extracomment>
        <translation>معمارية ذاكرة موحّدة</translation>
    </message>
    <message>
        <source>Discrete graphics</source>
        <extracomment>a graphics device with memory of its own</extracomment>
        <translation>بطاقة رسوميات منفصلة</translation>
    </message>
</context>
<context>
    <name>HelpTexts</name>
    <message>
        <source>%1 or %2 seconds</source>
        <extracomment>%1 are all numbers but the last: &quot;0.5, 1, 2, 5 or 10 seconds&quot;</extracomment>
        <translation>%1 أو %2 ثوانٍ</translation>
    </message>
    <message>
        <source>Live Monitoring</source>
        <translation>المراقبة المباشرة</translation>
    </message>
    <message>
        <source>Choose a refresh interval from %1. Pause stops periodic sampling, Refresh Now requests a fresh snapshot, and the charts keep only the configured bounded history.</source>
        <extracomment>%1 is &quot;0.5, 1, 2, 5 or 10 seconds&quot;</extracomment>
        <translation>اختر فترة التحديث من %1. يوقف «أوقف مؤقتًا» القراءة الدورية، ويطلب «حدّث الآن» لقطة جديدة، ولا تحتفظ المخططات إلا بالسجل المحدود المضبوط في الإعدادات.</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>لوحة المعلومات</translation>
    </message>
    <message>
        <source>CPU shows total and per-logical-processor activity. Memory shows current pressure-related usage values. Network reports local interface traffic. GPU values are shown only when %1 or the active graphics driver publishes them. Storage and power data update at lower cadences because they do not require sub-second polling.</source>
        <extracomment>%1 is what publishes graphics figures, such as NVML</extracomment>
        <translation>تعرض بطاقة المعالج النشاط الإجمالي ونشاط كل معالج منطقي. وتعرض بطاقة الذاكرة قيم الاستخدام الحالية المتعلقة بالضغط على الذاكرة. وتعرض بطاقة الشبكة حركة البيانات في الواجهات المحلية. ولا تظهر قيم الرسوميات إلا إذا أتاحها %1 أو مشغّل الرسوميات النشط. وتُحدَّث بيانات التخزين والطاقة بوتيرة أبطأ لأنها لا تتطلب قراءة أكثر من مرة في الثانية.</translation>
    </message>
    <message>
        <source>Process Explorer</source>
        <translation>مستكشف العمليات</translation>
    </message>
    <message>
        <source>The process list uses native %1 %2 data. Sort by CPU or memory and use the filter field to locate a running process. Vantor does not launch external command-line tools to collect process telemetry.</source>
        <extracomment>%1 is the name of the system, %2 of what tells of processes: &quot;Linux procfs&quot;</extracomment>
        <translation>تستخدم قائمة العمليات بيانات %2 الأصيلة في %1. رتّب بحسب المعالج أو الذاكرة، واستخدم حقل الترشيح للعثور على عملية جارية. لا يشغّل Vantor أدوات خارجية من سطر الأوامر لجمع بيانات العمليات.</translation>
    </message>
    <message>
        <source>Menu Bar and Windows</source>
        <translation>صينية النظام والنوافذ</translation>
    </message>
    <message>
        <source>When the menu bar dashboard is enabled, closing the main window keeps Vantor available from the menu bar. When it is disabled, closing the last window exits the app. Use Quit or %1 to terminate Vantor completely.</source>
        <extracomment>%1 is what is pressed to quit, such as Ctrl+Q</extracomment>
        <translation>عند تفعيل لوحة صينية النظام، يبقى Vantor متاحًا من صينية النظام بعد إغلاق النافذة الرئيسية. وعند تعطيلها، يؤدي إغلاق آخر نافذة إلى الخروج من التطبيق. استخدم «اخرج» أو %1 لإنهاء Vantor تمامًا.</translation>
    </message>
    <message>
        <source>Vantor is a local %1 performance dashboard for live CPU, memory, network, GPU, storage, process and system telemetry.</source>
        <extracomment>%1 is the name of the system</extracomment>
        <translation>إن Vantor لوحة معلومات محلية لأداء %1، تعرض بيانات مباشرة عن المعالج والذاكرة والشبكة والرسوميات والتخزين والعمليات والنظام.</translation>
    </message>
    <message>
        <source>Export and Privacy</source>
        <translation>التصدير والخصوصية</translation>
    </message>
    <message>
        <source>All monitoring is performed locally. Vantor does not perform analytics, public-IP lookups or automatic data transmission. A JSON snapshot is written only when you explicitly choose Export and select a destination.</source>
        <translation>تجري المراقبة كلها محليًا. لا يجري Vantor أي تحليل للاستخدام، ولا يستعلم عن عنوان IP العام، ولا يرسل أي بيانات تلقائيًا. ولا تُكتب لقطة JSON إلا إذا اخترت «صدّر» صراحةً وحددت الوجهة.</translation>
    </message>
    <message>
        <source>Amounts of memory and storage count in steps of 1024, so that 1 GB is 1,073,741,824 bytes, as the kernel hands memory out; rates count in steps of 1000, as networks do. A process&apos;s CPU share is of one processor: 100% is one kept busy, and a process on several has more.</source>
        <translation>تُحسب مقادير الذاكرة والتخزين بمضاعفات 1024، فيكون 1 غ.ب مساويًا 1,073,741,824 بايتًا، كما توزّع النواة الذاكرة؛ وتُحسب السرعات بمضاعفات 1000، كما في الشبكات. وحصة العملية من المعالج منسوبة إلى معالج واحد: 100% تعني معالجًا واحدًا مشغولًا بالكامل، والعملية الموزعة على عدة معالجات تتجاوز ذلك.</translation>
    </message>
    <message>
        <source>What the Numbers Mean</source>
        <translation>معنى الأرقام</translation>
    </message>
</context>
<context>
    <name>LastUpdateText</name>
    <message>
        <source>Collecting live data…</source>
        <translation>جارٍ جمع البيانات المباشرة…</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time of day</extracomment>
        <translation>حُدّث في %1</translation>
    </message>
</context>
<context>
    <name>Lists</name>
    <message>
        <source>, </source>
        <extracomment>stands between the parts of a list, with the blank that follows it</extracomment>
        <translation>، </translation>
    </message>
</context>
<context>
    <name>Manual</name>
    <message>
        <source>NAME</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>.Nm vantor</source>
        <translation>.Nm vantor</translation>
    </message>
    <message>
        <source>local performance dashboard for the desktop</source>
        <translation>لوحة معلومات محلية للأداء على سطح المكتب</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>الخلاصة</translation>
    </message>
    <message>
        <source>.Nm
.Op Ar option</source>
        <translation>.Nm
.Op Ar option</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>.Nm
opens a window that shows what this computer is doing, live: processor, memory, network, graphics, storage, the
system with its battery, and the processes.
Closing the window keeps it in the tray, unless that is switched off in the settings or there is no tray.</source>
        <translation>.Nm
يفتح نافذة تعرض مباشرةً ما يفعله هذا الحاسوب: المعالج والذاكرة والشبكة والرسوميات والتخزين
والنظام وبطاريته والعمليات.
عند إغلاق النافذة يبقى البرنامج في صينية النظام، إلا إذا عُطّل ذلك في الإعدادات أو لم تكن هناك صينية.</translation>
    </message>
    <message>
        <source>One program runs on each display: started again,
.Nm
brings the running one&apos;s window forward and ends.</source>
        <translation>لا تعمل إلا نسخة واحدة من البرنامج على كل شاشة عرض: إذا شُغّل مرة أخرى فإن
.Nm
يُحضر نافذة النسخة العاملة إلى المقدمة ثم ينتهي.</translation>
    </message>
    <message>
        <source>It is local: it opens no internet connection, starts no other program and collects nothing.
Where the kernel can, it enforces that; Help, About Vantor says whether it does.</source>
        <translation>البرنامج محلي: لا يفتح أي اتصال بالإنترنت، ولا يشغّل أي برنامج آخر، ولا يجمع شيئًا.
وتفرض النواة ذلك حيثما أمكنها؛ ويبيّن «عن Vantor» في قائمة «مساعدة» هل تفرضه.</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>Each has the running program do something, or starts it for that:</source>
        <translation>كل خيار منها يجعل البرنامج العامل يفعل شيئًا، أو يشغّله لأجل ذلك:</translation>
    </message>
    <message>
        <source>stops the readings,</source>
        <translation>يوقف القراءات،</translation>
    </message>
    <message>
        <source>goes on with them,</source>
        <translation>يستأنفها،</translation>
    </message>
    <message>
        <source>reads everything now,</source>
        <translation>يقرأ كل شيء الآن،</translation>
    </message>
    <message>
        <source>asks where to save a snapshot,</source>
        <translation>يسأل عن مكان حفظ لقطة،</translation>
    </message>
    <message>
        <source>opens the settings,</source>
        <translation>يفتح الإعدادات،</translation>
    </message>
    <message>
        <source>has no window, only the icon in the tray; without a tray, the window.</source>
        <translation>يعمل بلا نافذة، بأيقونته في صينية النظام فقط؛ فإن لم تكن هناك صينية، فتح النافذة.</translation>
    </message>
    <message>
        <source>The same actions are in the menu of the icon that starts the program, and on the session&apos;s bus, where
.Dq com.kestrone.Vantor
answers as
.Dq org.freedesktop.Application .</source>
        <translation>الإجراءات نفسها موجودة في قائمة الأيقونة التي تشغّل البرنامج، وعلى ناقل الجلسة حيث
.Dq com.kestrone.Vantor
يجيب بوصفه
.Dq org.freedesktop.Application .</translation>
    </message>
    <message>
        <source>These print a text and end:</source>
        <translation>ومع هذه الخيارات يطبع البرنامج نصًا ثم ينتهي:</translation>
    </message>
    <message>
        <source>prints the options,</source>
        <translation>يطبع الخيارات،</translation>
    </message>
    <message>
        <source>prints the version.</source>
        <translation>يطبع رقم الإصدار.</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <translation>البيئة</translation>
    </message>
    <message>
        <source>The display, the first before the second.</source>
        <translation>شاشة العرض؛ للمتغير الأول أولوية على الثاني.</translation>
    </message>
    <message>
        <source>The folder of the settings&apos; folder,
.Pa ~/.config
where it is not set or relative.</source>
        <translation>المجلد الذي فيه مجلد الإعدادات؛ وهو
.Pa ~/.config
إذا لم يُضبط المتغير أو كان مساره نسبيًا.</translation>
    </message>
    <message>
        <source>The folder of the lock and the socket by which a second start finds the first.</source>
        <translation>المجلد الذي فيه القفل والمقبس اللذان يعثر بهما التشغيل الثاني على الأول.</translation>
    </message>
    <message>
        <source>The session&apos;s bus.
Only sockets of this machine are used.</source>
        <translation>ناقل الجلسة.
لا تُستخدم إلا مقابس هذا الجهاز.</translation>
    </message>
    <message>
        <source>The language in whose order names are listed, the first that is set.</source>
        <translation>اللغة التي تُرتَّب الأسماء وفق ترتيبها؛ ويُؤخذ بأول متغير مضبوط.</translation>
    </message>
    <message>
        <source>How the time of the day is written.</source>
        <translation>كيفية كتابة الوقت.</translation>
    </message>
    <message>
        <source>The desktop&apos;s permission to come forward.</source>
        <translation>إذن سطح المكتب بالظهور في المقدمة.</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>The settings.
A damaged file is kept beside it, as
.Pa settings.ini.damaged-1 ,
and the defaults are used.</source>
        <translation>الإعدادات.
إذا تلف الملف احتُفظ به في المجلد نفسه باسم
.Pa settings.ini.damaged-1 ,
واستُخدمت القيم المبدئية.</translation>
    </message>
    <message>
        <source>Where the window was.</source>
        <translation>موضع النافذة.</translation>
    </message>
    <message>
        <source>Opens the program at login, without a window; written and removed by its settings.</source>
        <translation>يفتح البرنامج عند الولوج بلا نافذة؛ تنشئه إعدادات البرنامج وتزيله.</translation>
    </message>
    <message>
        <source>Lock and socket of the running program.</source>
        <translation>قفل البرنامج العامل ومقبسه.</translation>
    </message>
    <message>
        <source>The names of graphics cards; without it they are shown by their numbers.</source>
        <translation>أسماء بطاقات الرسوميات؛ ومن دون هذا الملف تُعرض البطاقات بأرقامها.</translation>
    </message>
    <message>
        <source>Every key of an exported snapshot and its unit.</source>
        <translation>كل مفتاح في اللقطة المصدّرة ووحدته.</translation>
    </message>
    <message>
        <source>Besides these, it writes only what is exported.</source>
        <translation>وما عدا ذلك لا يكتب إلا ما يُصدَّر.</translation>
    </message>
    <message>
        <source>SIGNALS</source>
        <translation>الإشارات</translation>
    </message>
    <message>
        <source>End the program orderly, within five seconds.
A second one, more than 0.3 seconds after the first, ends it at once.
What is ignored when the program is started (see
.Xr nohup 1 )
stays ignored.</source>
        <translation>تنهي البرنامج بانتظام خلال خمس ثوانٍ.
والإشارة الثانية تنهيه فورًا إذا جاءت بعد الأولى بأكثر من 0.3 ثانية.
والإشارة المتجاهَلة عند تشغيل البرنامج (انظر
.Xr nohup 1 )
تبقى متجاهَلة.</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>حالة الخروج</translation>
    </message>
    <message>
        <source>The program was quit, ended by the first signal, or has brought another one forward.</source>
        <translation>خرج المستخدم من البرنامج، أو أنهته الإشارة الأولى، أو أحضر البرنامج نسخة أخرى عاملة إلى المقدمة.</translation>
    </message>
    <message>
        <source>There is no display that it can open, or too little memory, too few threads or file descriptors to go on.
One line on standard error says which.</source>
        <translation>لا توجد شاشة عرض يستطيع البرنامج فتحها، أو لا يكفي ما يتوفر من ذاكرة أو خيوط أو واصفات ملفات للاستمرار.
ويبيّن السببَ سطر واحد في مخرج الأخطاء المعياري.</translation>
    </message>
    <message>
        <source>An argument is none of the options.</source>
        <translation>أحد المعاملات ليس من الخيارات.</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>انظر أيضًا</translation>
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
        <translation>في انتظار بيانات الذاكرة</translation>
    </message>
    <message>
        <source>%1 installed</source>
        <extracomment>%1 is an amount of memory</extracomment>
        <translation>المثبَّت: %1</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>the title of the card</extracomment>
        <translation>الذاكرة</translation>
    </message>
    <message>
        <source>In Use</source>
        <extracomment>under the share of memory that is used</extracomment>
        <translation>مستخدمة</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>memory used lately; the short label of a figure</extracomment>
        <translation>نشطة</translation>
    </message>
    <message>
        <source>Wired</source>
        <extracomment>memory that the system keeps and cannot swap out; the short label of a figure</extracomment>
        <translation>محجوزة</translation>
    </message>
    <message>
        <source>Compressed</source>
        <extracomment>memory that is kept compressed; the short label of a figure</extracomment>
        <translation>مضغوطة</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>memory that programs can have; the short label of a figure</extracomment>
        <translation>متاحة</translation>
    </message>
    <message>
        <source>Memory history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>سجل الذاكرة</translation>
    </message>
    <message>
        <source>Top Memory Processes</source>
        <extracomment>the processes that use most memory</extracomment>
        <translation>أكثر العمليات استخدامًا للذاكرة</translation>
    </message>
</context>
<context>
    <name>MenuBarDashboard</name>
    <message>
        <source>Open Dashboard</source>
        <extracomment>a button</extracomment>
        <translation>افتح لوحة المعلومات</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>a button: read everything now</extracomment>
        <translation>حدّث</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>opens the settings</extracomment>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a button: end the program</extracomment>
        <translation>اخرج</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>the short title of a figure</extracomment>
        <translation>المعالج</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>the short title of a figure</extracomment>
        <translation>الذاكرة</translation>
    </message>
    <message>
        <source>Collecting live data…</source>
        <translation>جارٍ جمع البيانات المباشرة…</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>a button: stop reading</extracomment>
        <translation>أوقف مؤقتًا</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>a button: go on reading</extracomment>
        <translation>استأنف</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>for screen readers: whether the figures are live</extracomment>
        <translation>الحالة</translation>
    </message>
</context>
<context>
    <name>NetworkCard</name>
    <message>
        <source>Not assigned</source>
        <extracomment>no address</extracomment>
        <translation>غير معيَّن</translation>
    </message>
    <message>
        <source>Waiting for network data</source>
        <translation>في انتظار بيانات الشبكة</translation>
    </message>
    <message>
        <source>Active interface: %1</source>
        <extracomment>%1 is the name of a network interface</extracomment>
        <translation>الواجهة النشطة: %1</translation>
    </message>
    <message>
        <source>No active interface</source>
        <translation>لا واجهة نشطة</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>the title of the card</extracomment>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>the speed at which data comes in</extracomment>
        <translation>التنزيل</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>the speed at which data goes out</extracomment>
        <translation>الرفع</translation>
    </message>
    <message>
        <source>Hostname</source>
        <translation>اسم المضيف</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>a host without a name</extracomment>
        <translation>غير معروف</translation>
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
        <translation>الواجهات</translation>
    </message>
</context>
<context>
    <name>PowerView</name>
    <message>
        <source>AC connected</source>
        <extracomment>the computer is plugged in</extracomment>
        <translation>موصول بالكهرباء</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>على البطارية</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a time, such as 1h 20m</extracomment>
        <translation>%1 حتى الامتلاء</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <translation>المتبقي: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln charge cycle(s)</source>
        <comment>of the battery</comment>
        <translation>
            <numerusform>%Ln دورة شحن</numerusform>
            <numerusform>دورة شحن واحدة</numerusform>
            <numerusform>دورتا شحن</numerusform>
            <numerusform>%Ln دورات شحن</numerusform>
            <numerusform>%Ln دورة شحن</numerusform>
            <numerusform>%Ln دورة شحن</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProcessExplorer</name>
    <message>
        <source>CPU</source>
        <extracomment>sort by the share of the processor</extracomment>
        <translation>المعالج</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>sort by the memory used</extracomment>
        <translation>الذاكرة</translation>
    </message>
    <message>
        <source>Waiting for Processes</source>
        <translation>في انتظار العمليات</translation>
    </message>
    <message>
        <source>No process data is available yet.</source>
        <translation>لا تتوفر بيانات عن العمليات بعد.</translation>
    </message>
    <message>
        <source>No Matching Processes</source>
        <translation>لا عمليات مطابقة</translation>
    </message>
    <message>
        <source>No process matches “%1”.</source>
        <extracomment>%1 is what the user has typed</extracomment>
        <translation>لا توجد عملية تطابق «%1».</translation>
    </message>
    <message>
        <source>Process Explorer</source>
        <extracomment>the title of the card</extracomment>
        <translation>مستكشف العمليات</translation>
    </message>
    <message>
        <source>Live process activity</source>
        <translation>نشاط العمليات المباشر</translation>
    </message>
    <message>
        <source>Filter processes</source>
        <extracomment>shown in an empty field that is typed into</extracomment>
        <translation>رشّح العمليات</translation>
    </message>
    <message>
        <source>Sort</source>
        <extracomment>for screen readers: by what the list is sorted</extracomment>
        <translation>الترتيب</translation>
    </message>
</context>
<context>
    <name>ProcessHeader</name>
    <message>
        <source>Process</source>
        <extracomment>the heading of a column</extracomment>
        <translation>العملية</translation>
    </message>
    <message>
        <source>PID</source>
        <extracomment>the heading of a column: the number of a process</extracomment>
        <translation>PID</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>the heading of a column: the share of the processor</extracomment>
        <translation>المعالج</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>the heading of a column: the memory used</extracomment>
        <translation>الذاكرة</translation>
    </message>
</context>
<context>
    <name>ProcessMiniList</name>
    <message>
        <source>Waiting for process data…</source>
        <translation>في انتظار بيانات العمليات…</translation>
    </message>
</context>
<context>
    <name>ProcessTableView</name>
    <message numerus="yes">
        <source>%Ln process(es)</source>
        <comment>for screen readers: in the list</comment>
        <translation>
            <numerusform>%Ln عملية</numerusform>
            <numerusform>عملية واحدة</numerusform>
            <numerusform>عمليتان</numerusform>
            <numerusform>%Ln عمليات</numerusform>
            <numerusform>%Ln عملية</numerusform>
            <numerusform>%Ln عملية</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, PID %2, CPU %3, memory %4</source>
        <extracomment>for screen readers: the name of a process, its number, its share of the processor, its memory</extracomment>
        <translation>%1، PID %2، المعالج %3، الذاكرة %4</translation>
    </message>
    <message>
        <source>Processes</source>
        <extracomment>the list, for screen readers</extracomment>
        <translation>العمليات</translation>
    </message>
    <message>
        <source>100% is one processor: a process that keeps two busy has 200%. A click sorts by it.</source>
        <extracomment>what a process&apos;s percentage is of; the title of a column is pointed at</extracomment>
        <translation>100% تعني معالجًا واحدًا: العملية التي تشغل معالجين بالكامل تبلغ 200%. انقر للترتيب بحسبها.</translation>
    </message>
    <message>
        <source>The memory that a process has in use now. A click sorts by it.</source>
        <extracomment>the title of a column is pointed at</extracomment>
        <translation>الذاكرة التي تستخدمها العملية الآن. انقر للترتيب بحسبها.</translation>
    </message>
    <message>
        <source>A full bar is the largest of the processes shown.</source>
        <translation>الشريط الممتلئ يمثّل أعلى قيمة بين العمليات المعروضة.</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>a command: the whole row of a process</extracomment>
        <translation>انسخ</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <extracomment>a command</extracomment>
        <translation>انسخ الاسم</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <extracomment>a command: where the program of a process lies</extracomment>
        <translation>انسخ المسار</translation>
    </message>
    <message>
        <source>Filter by This Name</source>
        <extracomment>a command: show the processes of that name only</extracomment>
        <translation>رشّح بهذا الاسم</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <extracomment>a button</extracomment>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>a button</extracomment>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>a button</extracomment>
        <translation>أغلق</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>JSON document</source>
        <extracomment>a kind of file</extracomment>
        <translation>مستند JSON</translation>
    </message>
    <message>
        <source>All files</source>
        <extracomment>a kind of file: any</extracomment>
        <translation>كل الملفات</translation>
    </message>
    <message>
        <source>%1, folder</source>
        <extracomment>for screen readers; %1 is the name of a folder</extracomment>
        <translation>%1، مجلد</translation>
    </message>
    <message>
        <source>Folders and files</source>
        <extracomment>for screen readers: the contents of a folder</extracomment>
        <translation>المجلدات والملفات</translation>
    </message>
    <message>
        <source>Warning</source>
        <extracomment>for screen readers: the sign beside a warning</extracomment>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>The disk does not answer. Please choose another folder, or try again.</source>
        <translation>القرص لا يستجيب. اختر مجلدًا آخر، أو أعد المحاولة.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>المجلد غير موجود.</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>هذا ليس مجلدًا.</translation>
    </message>
    <message>
        <source>You do not have the permission to look into this folder.</source>
        <translation>ليس لديك إذن بعرض محتوى هذا المجلد.</translation>
    </message>
    <message>
        <source>The folder cannot be read.</source>
        <translation>لا يمكن قراءة المجلد.</translation>
    </message>
    <message>
        <source>You do not have the permission to make a folder here.</source>
        <translation>ليس لديك إذن بإنشاء مجلد هنا.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>الاسم طويل جدًا.</translation>
    </message>
    <message>
        <source>The folder could not be made.</source>
        <translation>تعذّر إنشاء المجلد.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>المنزل</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>المستندات</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>سطح المكتب</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>التنزيلات</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>الحاسوب</translation>
    </message>
    <message>
        <source>Looking for your folders…</source>
        <translation>جارٍ البحث عن مجلداتك…</translation>
    </message>
    <message>
        <source>Last used</source>
        <extracomment>the folder that was saved to before</extracomment>
        <translation>آخر مجلد مستخدم</translation>
    </message>
    <message>
        <source>Looking into the folder…</source>
        <translation>جارٍ قراءة المجلد…</translation>
    </message>
    <message>
        <source>You do not have the permission to save in this folder.</source>
        <translation>ليس لديك إذن بالحفظ في هذا المجلد.</translation>
    </message>
    <message numerus="yes">
        <source>Only the first %Ln of this folder are shown.</source>
        <comment>files and folders</comment>
        <translation>
            <numerusform>لا يُعرض سوى أول %Ln عنصر من هذا المجلد.</numerusform>
            <numerusform>لا يُعرض سوى أول عنصر من هذا المجلد.</numerusform>
            <numerusform>لا يُعرض سوى أول عنصرين من هذا المجلد.</numerusform>
            <numerusform>لا يُعرض سوى أول %Ln عناصر من هذا المجلد.</numerusform>
            <numerusform>لا يُعرض سوى أول %Ln عنصرًا من هذا المجلد.</numerusform>
            <numerusform>لا يُعرض سوى أول %Ln عنصر من هذا المجلد.</numerusform>
        </translation>
    </message>
    <message>
        <source>New Folder</source>
        <extracomment>the title of a box</extracomment>
        <translation>مجلد جديد</translation>
    </message>
    <message>
        <source>Name of the new folder:</source>
        <translation>اسم المجلد الجديد:</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>أ&amp;نشئ</translation>
    </message>
    <message>
        <source>Making the folder…</source>
        <translation>جارٍ إنشاء المجلد…</translation>
    </message>
    <message>
        <source>Please type a name for the file.</source>
        <translation>اكتب اسمًا للملف.</translation>
    </message>
    <message>
        <source>Please choose a folder first.</source>
        <translation>اختر مجلدًا أولًا.</translation>
    </message>
    <message>
        <source>Checking…</source>
        <extracomment>whether a file can be saved there</extracomment>
        <translation>جارٍ التحقق…</translation>
    </message>
    <message>
        <source>Places</source>
        <extracomment>for screen readers: the list of well-known folders</extracomment>
        <translation>الأماكن</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>ا&amp;حفظ</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <extracomment>of the file; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>الا&amp;سم:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <extracomment>the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>الم&amp;جلد:</translation>
    </message>
    <message>
        <source>Parent folder (Alt+Up)</source>
        <extracomment>a button; Alt+Up is what can be pressed instead</extracomment>
        <translation>المجلد الأب (Alt+Up)</translation>
    </message>
    <message>
        <source>New folder</source>
        <extracomment>a button</extracomment>
        <translation>مجلد جديد</translation>
    </message>
    <message>
        <source>Replace File</source>
        <extracomment>the title of a box</extracomment>
        <translation>استبدال الملف</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists. Do you want to replace it?</source>
        <extracomment>%1 is the name of a file</extracomment>
        <translation>«%1» موجود بالفعل. أتريد استبداله؟</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>است&amp;بدل</translation>
    </message>
</context>
<context>
    <name>SettingsForm</name>
    <message numerus="yes">
        <source>Chart history: %Ln sample(s)</source>
        <comment>how many readings the charts keep</comment>
        <translation>
            <numerusform>سجل المخططات: %Ln عيّنة</numerusform>
            <numerusform>سجل المخططات: عيّنة واحدة</numerusform>
            <numerusform>سجل المخططات: عيّنتان</numerusform>
            <numerusform>سجل المخططات: %Ln عيّنات</numerusform>
            <numerusform>سجل المخططات: %Ln عيّنة</numerusform>
            <numerusform>سجل المخططات: %Ln عيّنة</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 second</source>
        <extracomment>half a second, as a number</extracomment>
        <translation>%1 ثانية</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <extracomment>a number of seconds that is not whole</extracomment>
        <translation>%1 ثانية</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the theme: as the desktop has it</extracomment>
        <translation>حسب النظام</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>the theme</extracomment>
        <translation>فاتحة</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>the theme</extracomment>
        <translation>داكنة</translation>
    </message>
    <message numerus="yes">
        <source>%Ln second(s)</source>
        <comment>how often the figures are read</comment>
        <translation>
            <numerusform>%Ln ثانية</numerusform>
            <numerusform>ثانية واحدة</numerusform>
            <numerusform>ثانيتان</numerusform>
            <numerusform>%Ln ثوانٍ</numerusform>
            <numerusform>%Ln ثانية</numerusform>
            <numerusform>%Ln ثانية</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Open at Login</source>
        <extracomment>a switch: start the program when the user logs in</extracomment>
        <translation>الفتح عند الولوج</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <extracomment>settings that could not be stored; %1 is a sentence that says why</extracomment>
        <translation>لم تُحفظ: %1</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>whether colours are dark or light</extracomment>
        <translation>السمة</translation>
    </message>
    <message>
        <source>Monitoring</source>
        <translation>المراقبة</translation>
    </message>
    <message>
        <source>Refresh interval</source>
        <extracomment>how often the figures are read</extracomment>
        <translation>فترة التحديث</translation>
    </message>
    <message>
        <source>Chart history</source>
        <extracomment>how many readings the charts keep</extracomment>
        <translation>سجل المخططات</translation>
    </message>
    <message numerus="yes">
        <source>%Ln sample(s)</source>
        <comment>for screen readers: how many readings the charts keep</comment>
        <translation>
            <numerusform>%Ln عيّنة</numerusform>
            <numerusform>عيّنة واحدة</numerusform>
            <numerusform>عيّنتان</numerusform>
            <numerusform>%Ln عيّنات</numerusform>
            <numerusform>%Ln عيّنة</numerusform>
            <numerusform>%Ln عيّنة</numerusform>
        </translation>
    </message>
    <message>
        <source>Include point-to-point and tunnel interfaces</source>
        <extracomment>a switch: network interfaces, such as those of a VPN</extracomment>
        <translation>تضمين واجهات نقطة إلى نقطة والأنفاق</translation>
    </message>
    <message>
        <source>Show menu bar dashboard</source>
        <extracomment>a switch: the icon in the tray and its panel</extracomment>
        <translation>إظهار لوحة صينية النظام</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>البيانات</translation>
    </message>
    <message>
        <source>Network privacy</source>
        <extracomment>a label</extracomment>
        <translation>خصوصية الشبكة</translation>
    </message>
    <message>
        <source>No public IP lookup</source>
        <extracomment>the program does not ask the internet for the address</extracomment>
        <translation>لا استعلام عن IP العام</translation>
    </message>
    <message>
        <source>Process source</source>
        <extracomment>a label: where figures of processes come from</extracomment>
        <translation>مصدر العمليات</translation>
    </message>
    <message>
        <source>Native %1 %2</source>
        <extracomment>the name of the system, and of what tells of processes: &quot;Native Linux procfs&quot;</extracomment>
        <translation>%2 الأصيل في %1</translation>
    </message>
    <message>
        <source>GPU telemetry</source>
        <extracomment>a label: where figures of graphics come from</extracomment>
        <translation>مصدر بيانات الرسوميات</translation>
    </message>
    <message>
        <source>Export Current Snapshot…</source>
        <extracomment>a button</extracomment>
        <translation>صدّر اللقطة الحالية…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>a heading: about the program</extracomment>
        <translation>عن البرنامج</translation>
    </message>
    <message>
        <source>Application</source>
        <extracomment>a label</extracomment>
        <translation>التطبيق</translation>
    </message>
    <message>
        <source>This desktop has no tray to show it in.</source>
        <translation>ليس في سطح المكتب هذا صينية نظام لإظهارها.</translation>
    </message>
</context>
<context>
    <name>SoftwareCentre</name>
    <message>
        <source>See what this computer is doing, live and at a glance</source>
        <translation>شاهد ما يفعله هذا الحاسوب مباشرةً وبنظرة واحدة</translation>
    </message>
    <message>
        <source>Vantor shows what the computer is doing on one page, in a window that costs next to nothing to keep open: processor, memory, network, graphics, storage and the system with its battery, each with short histories where there is something to follow.</source>
        <translation>يعرض Vantor في صفحة واحدة ما يفعله الحاسوب، في نافذة لا يكاد إبقاؤها مفتوحة يكلّف شيئًا: المعالج والذاكرة والشبكة والرسوميات والتخزين والنظام وبطاريته، ولكل منها سجل قصير حيثما كان هناك ما يُتابَع.</translation>
    </message>
    <message>
        <source>What there is beside the cards:</source>
        <translation>وإلى جانب البطاقات هناك:</translation>
    </message>
    <message>
        <source>a process explorer with the heaviest processes, and a filter over all of them</source>
        <translation>مستكشف عمليات يعرض أثقل العمليات، مع مرشّح يشملها كلها</translation>
    </message>
    <message>
        <source>a tray icon with a panel of the most important figures</source>
        <translation>أيقونة في صينية النظام مع لوحة لأهم القيم</translation>
    </message>
    <message>
        <source>export of all figures as one JSON document</source>
        <translation>تصدير جميع القيم في مستند JSON واحد</translation>
    </message>
    <message>
        <source>It is local: it opens no internet connection, starts no other program and collects nothing, and the kernel enforces that. A figure that the system does not publish is shown as words, never as zero. Everything is reached by keyboard, and told to screen readers.</source>
        <translation>البرنامج محلي: لا يفتح أي اتصال بالإنترنت، ولا يشغّل أي برنامج آخر، ولا يجمع شيئًا، والنواة تفرض ذلك. والقيمة التي لا يوفرها النظام تُعرض بالكلمات، ولا تُعرض صفرًا أبدًا. ويمكن الوصول إلى كل شيء بلوحة المفاتيح، وتُبلَّغ به قارئات الشاشة.</translation>
    </message>
    <message>
        <source>The dashboard of a laptop, dark</source>
        <translation>لوحة معلومات حاسوب محمول، بالسمة الداكنة</translation>
    </message>
    <message>
        <source>The dashboard of a laptop, light</source>
        <translation>لوحة معلومات حاسوب محمول، بالسمة الفاتحة</translation>
    </message>
    <message>
        <source>The first release.</source>
        <translation>الإصدار الأول.</translation>
    </message>
</context>
<context>
    <name>StorageCard</name>
    <message>
        <source>Waiting for storage data</source>
        <translation>في انتظار بيانات التخزين</translation>
    </message>
    <message numerus="yes">
        <source>%Ln mounted volume(s)</source>
        <translation>
            <numerusform>%Ln وحدة تخزين موصولة</numerusform>
            <numerusform>وحدة تخزين موصولة واحدة</numerusform>
            <numerusform>وحدتا تخزين موصولتان</numerusform>
            <numerusform>%Ln وحدات تخزين موصولة</numerusform>
            <numerusform>%Ln وحدة تخزين موصولة</numerusform>
            <numerusform>%Ln وحدة تخزين موصولة</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <extracomment>the title of the card</extracomment>
        <translation>التخزين</translation>
    </message>
    <message>
        <source>No Volumes</source>
        <extracomment>there is no disk to be shown</extracomment>
        <translation>لا وحدات تخزين</translation>
    </message>
</context>
<context>
    <name>SystemCard</name>
    <message>
        <source>Waiting for system data</source>
        <translation>في انتظار بيانات النظام</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the title of the card: the whole machine</extracomment>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>a text that the machine does not tell</extracomment>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Operating System</source>
        <translation>نظام التشغيل</translation>
    </message>
    <message>
        <source>Kernel Build</source>
        <translation>إصدار نواة النظام</translation>
    </message>
    <message>
        <source>Architecture</source>
        <extracomment>of the processor</extracomment>
        <translation>المعمارية</translation>
    </message>
    <message>
        <source>Uptime</source>
        <extracomment>the time since the machine was started</extracomment>
        <translation>مدة التشغيل</translation>
    </message>
    <message>
        <source>Thermal State</source>
        <extracomment>how hot the machine is, in words</extracomment>
        <translation>الحالة الحرارية</translation>
    </message>
    <message>
        <source>Low Power Mode</source>
        <translation>وضع توفير الطاقة</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>the low power mode</extracomment>
        <translation>مفعّل</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>the low power mode</extracomment>
        <translation>معطّل</translation>
    </message>
</context>
<context>
    <name>VantorApp</name>
    <message>
        <source>Vantor (collecting live data)</source>
        <extracomment>the name of the window until figures have been read</extracomment>
        <translation>Vantor (جارٍ جمع البيانات المباشرة)</translation>
    </message>
    <message>
        <source>Vantor Settings</source>
        <extracomment>the title of a window</extracomment>
        <translation>إعدادات Vantor</translation>
    </message>
    <message>
        <source>Vantor Help</source>
        <extracomment>the title of a window</extracomment>
        <translation>مساعدة Vantor</translation>
    </message>
</context>
<context>
    <name>VolumeView</name>
    <message>
        <source>%1 used</source>
        <extracomment>%1 is an amount, of a disk</extracomment>
        <translation>%1 مستخدم</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount, of a disk</extracomment>
        <translation>%1 متاح</translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <extracomment>%1 is where a disk is found, such as /home</extracomment>
        <translation>⁨%1⁩ (للقراءة فقط)</translation>
    </message>
    <message>
        <source>%1 full, %2, %3</source>
        <extracomment>for screen readers: %1 is a share such as 45%, %2 &quot;120 GB used&quot;, %3 &quot;90 GB free&quot;</extracomment>
        <translation>ممتلئ بنسبة %1، %2، %3</translation>
    </message>
</context>
</TS>
