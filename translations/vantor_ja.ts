<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AboutPanel</name>
    <message>
        <source>About Vantor</source>
        <extracomment>the title of a window</extracomment>
        <translation>Vantor について</translation>
    </message>
    <message>
        <source>Version %1 (%2)

Built by the Vantor founders. Everything it shows, it reads on this machine, and it stays here.

Confined by the kernel: %3</source>
        <extracomment>%1 is the version, %2 the build, %3 is &quot;yes&quot;, &quot;no&quot; or what is missing</extracomment>
        <translation>バージョン %1 (%2)

Vantor の創業者たちが開発しました。表示する情報はすべてこのコンピューター上で読み取られ、外部に送られることはありません。

カーネルによるアクセス制限: %3</translation>
    </message>
</context>
<context>
    <name>AppCommands</name>
    <message>
        <source>About Vantor</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Vantor について</translation>
    </message>
    <message>
        <source>Refresh Now</source>
        <extracomment>a command of the menu: read everything now</extracomment>
        <translation>今すぐ更新</translation>
    </message>
    <message>
        <source>Export Snapshot…</source>
        <extracomment>a command of the menu</extracomment>
        <translation>スナップショットをエクスポート…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>a command of the menu</extracomment>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Vantor Help</source>
        <extracomment>a command of the menu</extracomment>
        <translation>Vantor のヘルプ</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a command of the menu</extracomment>
        <translation>終了</translation>
    </message>
    <message>
        <source>Close Window</source>
        <extracomment>a command of the menu</extracomment>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>a menu; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>a menu; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>ヘルプ(&amp;H)</translation>
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
            <numerusform>%Ln バイト</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CPUCard</name>
    <message>
        <source>%1 physical • %2 logical cores</source>
        <extracomment>the numbers of cores; %1 stays in front where both are read as one phrase</extracomment>
        <translation>物理コア %1 • 論理コア %2</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>the title of the card</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>CPU Load</source>
        <extracomment>under the share of the processor that is busy</extracomment>
        <translation>CPU 使用率</translation>
    </message>
    <message>
        <source>%1 GHz</source>
        <extracomment>a frequency</extracomment>
        <translation>%1 GHz</translation>
    </message>
    <message>
        <source>User</source>
        <extracomment>the share of time spent in programs</extracomment>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the share of time spent in the operating system</extracomment>
        <translation>システム</translation>
    </message>
    <message>
        <source>Nominal</source>
        <extracomment>the frequency that the processor is sold with</extracomment>
        <translation>定格</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Load avg %1</source>
        <extracomment>%1 are the averages of the last minutes, such as 0.52 0.58 0.59</extracomment>
        <translation>平均負荷 %1</translation>
    </message>
    <message>
        <source>CPU history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>CPU の履歴</translation>
    </message>
    <message>
        <source>Core Activity</source>
        <extracomment>how busy each logical processor is</extracomment>
        <translation>コアの稼働状況</translation>
    </message>
    <message>
        <source>Top CPU Processes</source>
        <extracomment>the processes that keep the processor busiest</extracomment>
        <translation>CPU 使用率上位のプロセス</translation>
    </message>
</context>
<context>
    <name>CardTexts</name>
    <message>
        <source>Not published</source>
        <extracomment>a figure that the machine does not tell</extracomment>
        <translation>情報なし</translation>
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
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <extracomment>minutes, as short as possible</extracomment>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <extracomment>minutes and seconds, as short as possible</extracomment>
        <translation>%1 分 %2 秒</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>hours and minutes, as short as possible</extracomment>
        <translation>%1 時間 %2 分</translation>
    </message>
    <message>
        <source>now</source>
        <extracomment>a sample of a chart, that was taken just now</extracomment>
        <translation>現在</translation>
    </message>
    <message>
        <source>%1 ago</source>
        <extracomment>%1 is a time: when a sample of a chart was taken</extracomment>
        <translation>%1前</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <extracomment>from the smallest to the largest value</extracomment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>The width is the last %1.</source>
        <extracomment>of a chart; %1 is a time</extracomment>
        <translation>幅は直近の %1 です。</translation>
    </message>
    <message>
        <source>The height is %1 to %2.</source>
        <extracomment>of a chart; both are values: 0 % and 100 %</extracomment>
        <translation>高さは %1 から %2 までです。</translation>
    </message>
    <message>
        <source>The height is the smallest to the largest value shown.</source>
        <extracomment>of a chart</extracomment>
        <translation>高さは表示中の最小値から最大値までです。</translation>
    </message>
    <message>
        <source>The height is the smallest to the largest value shown: %1.</source>
        <extracomment>of a chart; %1 are these two values</extracomment>
        <translation>高さは表示中の最小値から最大値まで (%1) です。</translation>
    </message>
</context>
<context>
    <name>CoreActivity</name>
    <message>
        <source>Core %1: %2</source>
        <extracomment>%1 is the number of a logical processor, %2 how busy it is</extracomment>
        <translation>コア %1: %2</translation>
    </message>
    <message>
        <source>Core Activity</source>
        <extracomment>how busy each logical processor is</extracomment>
        <translation>コアの稼働状況</translation>
    </message>
</context>
<context>
    <name>CoreWords</name>
    <message>
        <source>Detecting processor…</source>
        <translation>プロセッサーを検出中…</translation>
    </message>
    <message>
        <source>Detecting host…</source>
        <translation>ホストを検出中…</translation>
    </message>
    <message>
        <source>Detecting hardware…</source>
        <translation>ハードウェアを検出中…</translation>
    </message>
    <message>
        <source>Detecting macOS…</source>
        <translation>macOS を検出中…</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>what the machine does not tell</extracomment>
        <translation>不明</translation>
    </message>
    <message>
        <source>Nominal</source>
        <extracomment>how hot the machine is: as usual</extracomment>
        <translation>通常</translation>
    </message>
    <message>
        <source>Fair</source>
        <extracomment>how hot the machine is: a little</extracomment>
        <translation>やや高温</translation>
    </message>
    <message>
        <source>Serious</source>
        <extracomment>how hot the machine is: it slows down</extracomment>
        <translation>高温</translation>
    </message>
    <message>
        <source>Critical</source>
        <extracomment>how hot the machine is: it may turn itself off</extracomment>
        <translation>危険</translation>
    </message>
    <message>
        <source>Battery</source>
        <extracomment>of a battery that has no name</extracomment>
        <translation>バッテリー</translation>
    </message>
    <message>
        <source>Live Linux performance intelligence</source>
        <translation>Linux のパフォーマンスをリアルタイムに把握</translation>
    </message>
    <message>
        <source>Live macOS performance intelligence</source>
        <translation>macOS のパフォーマンスをリアルタイムに把握</translation>
    </message>
    <message>
        <source>Unknown Computer</source>
        <translation>不明なコンピューター</translation>
    </message>
    <message>
        <source>Unknown Mac</source>
        <translation>不明な Mac</translation>
    </message>
    <message>
        <source>No Graphics Device</source>
        <translation>グラフィックスデバイスなし</translation>
    </message>
    <message>
        <source>No Metal Device</source>
        <translation>Metal デバイスなし</translation>
    </message>
    <message>
        <source>The active graphics driver did not expose a graphics device.</source>
        <translation>使用中のグラフィックスドライバーは、グラフィックスデバイスを提供していません。</translation>
    </message>
    <message>
        <source>The active graphics driver did not expose a Metal device.</source>
        <translation>使用中のグラフィックスドライバーは、Metal デバイスを提供していません。</translation>
    </message>
    <message>
        <source>No browsable mounted volume was returned by Linux.</source>
        <translation>参照できるマウント済みボリュームが Linux から返されませんでした。</translation>
    </message>
    <message>
        <source>No browsable mounted volume was returned by macOS.</source>
        <translation>参照できるマウント済みボリュームが macOS から返されませんでした。</translation>
    </message>
    <message>
        <source>Load of your own processes</source>
        <extracomment>the load of the graphics device is known for the user&apos;s processes only</extracomment>
        <translation>自分のプロセスのみの使用率</translation>
    </message>
    <message>
        <source>Export System Snapshot</source>
        <extracomment>the title of the dialog that asks where to save</extracomment>
        <translation>システムスナップショットのエクスポート</translation>
    </message>
    <message>
        <source>Snapshot Export Failed</source>
        <extracomment>the title of an alert</extracomment>
        <translation>スナップショットのエクスポートに失敗</translation>
    </message>
    <message>
        <source>yes</source>
        <extracomment>whether the kernel confines the program, behind a colon</extracomment>
        <translation>あり</translation>
    </message>
    <message>
        <source>no</source>
        <extracomment>whether the kernel confines the program, behind a colon</extracomment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Something that is not an ordinary file has that name.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>通常のファイルではないものが同じ名前で存在します。</translation>
    </message>
    <message>
        <source>You do not have the permission to write there.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>その場所に書き込む権限がありません。</translation>
    </message>
    <message>
        <source>You have used up the space that you may use on the disk.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>ディスクの割り当て容量を使い切りました。</translation>
    </message>
    <message>
        <source>The file would be larger than it may be there.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>ファイルのサイズが、その場所で許可されている上限を超えます。</translation>
    </message>
    <message>
        <source>The disk could not be written to.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>ディスクに書き込めませんでした。</translation>
    </message>
    <message>
        <source>A folder has that name.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>同じ名前のフォルダーがあります。</translation>
    </message>
    <message>
        <source>The symbolic links there lead in a circle.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>その場所のシンボリックリンクが循環しています。</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>開いているファイルが多すぎます。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>名前が長すぎます。</translation>
    </message>
    <message>
        <source>The disk is not there any more.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>ディスクが見つからなくなりました。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>フォルダーが存在しません。</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>メモリが足りません。</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>ディスクの空き容量が足りません。</translation>
    </message>
    <message>
        <source>The place for it is not a folder.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>保存先がフォルダーではありません。</translation>
    </message>
    <message>
        <source>The disk can only be read.</source>
        <extracomment>why a file could not be saved</extracomment>
        <translation>ディスクは読み取り専用です。</translation>
    </message>
    <message>
        <source>Too many damaged files are kept there.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>その場所に残されている破損ファイルが多すぎます。</translation>
    </message>
    <message>
        <source>The program&apos;s own file has no name that can be kept.</source>
        <extracomment>why the program cannot be opened at login</extracomment>
        <translation>プログラム自体のファイル名を登録できません。</translation>
    </message>
    <message>
        <source>The file would be too large.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>ファイルが大きくなりすぎます。</translation>
    </message>
    <message>
        <source>The disk does not answer.</source>
        <extracomment>why settings could not be saved</extracomment>
        <translation>ディスクが応答しません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved. %2</source>
        <extracomment>%1 is a file&apos;s name, %2 the sentence that says why</extracomment>
        <translation>「%1」を保存できませんでした。%2</translation>
    </message>
    <message>
        <source>The system gave the reason &quot;%1&quot; (%2).</source>
        <extracomment>%1 is the system&apos;s own text, %2 its number</extracomment>
        <translation>システムが返した理由は「%1」(%2) です。</translation>
    </message>
    <message>
        <source>Not known: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>不明: %1</translation>
    </message>
    <message>
        <source>Not changed: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>変更されませんでした: %1</translation>
    </message>
    <message>
        <source>Not changed yet: %1</source>
        <extracomment>whether the program is opened at login; %1 is a sentence that says why</extracomment>
        <translation>まだ変更されていません: %1</translation>
    </message>
    <message>
        <source>in part (without %1)</source>
        <extracomment>whether the kernel confines the program, behind a colon; %1 is a list of names</extracomment>
        <translation>一部 (%1 を除く)</translation>
    </message>
    <message>
        <source>Nominal is the frequency that the processor is made for, as its driver or its name tells it, not the present one.</source>
        <extracomment>what the figure &quot;Nominal&quot; of the processor means</extracomment>
        <translation>「定格」は、プロセッサーの設計上の周波数で、ドライバーまたはプロセッサー名が示す値です。現在の周波数ではありません。</translation>
    </message>
    <message>
        <source>Wired is memory that cannot be moved out: the kernel&apos;s own and what programs have locked.</source>
        <extracomment>what the figure &quot;Wired&quot; of the memory means</extracomment>
        <translation>「固定」は、メモリの外に退避できないメモリです。カーネル自身のものと、プログラムがロックしたものがあります。</translation>
    </message>
    <message>
        <source>Compressed is the memory that zram and zswap keep compressed pages in.</source>
        <extracomment>what the figure &quot;Compressed&quot; of the memory means</extracomment>
        <translation>「圧縮」は、zram と zswap が圧縮したページを保持しているメモリです。</translation>
    </message>
    <message>
        <source>Thermal State compares the thermal zones with their own limits: Fair where the kernel begins to slow down, Serious where it is nearly too hot, Critical where it switches off.</source>
        <extracomment>what the figure &quot;Thermal State&quot; means</extracomment>
        <translation>「温度状態」は、各サーマルゾーンをそれぞれの上限と比べたものです。カーネルが速度を落とし始める温度では「やや高温」、熱くなりすぎる寸前では「高温」、電源が切られる温度では「危険」になります。</translation>
    </message>
    <message>
        <source>Low Power Mode is on while the firmware&apos;s profile or the processors&apos; own preference is to save power.</source>
        <extracomment>what the figure &quot;Low Power Mode&quot; means</extracomment>
        <translation>「省電力モード」は、ファームウェアのプロファイルまたはプロセッサー自身の設定が省電力になっている間、有効です。</translation>
    </message>
</context>
<context>
    <name>DashboardHeader</name>
    <message>
        <source>Paused</source>
        <extracomment>the state: the figures stand still</extracomment>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Live</source>
        <extracomment>the state: the figures follow the machine</extracomment>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>a button: go on reading</extracomment>
        <translation>再開</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>a button: stop reading</extracomment>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>a number of seconds, short</extracomment>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>a button: read everything now</extracomment>
        <translation>更新</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>a button: save a snapshot to a file</extracomment>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a button: end the program</extracomment>
        <translation>終了</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>for screen readers: whether the figures are live</extracomment>
        <translation>状態</translation>
    </message>
    <message>
        <source>Refresh interval</source>
        <extracomment>how often the figures are read</extracomment>
        <translation>更新間隔</translation>
    </message>
</context>
<context>
    <name>DesktopFile</name>
    <message>
        <source>Performance Dashboard</source>
        <extracomment>the kind of program</extracomment>
        <translation>パフォーマンスダッシュボード</translation>
    </message>
    <message>
        <source>See what this computer is doing, live and at a glance</source>
        <translation>このコンピューターの動作をリアルタイムにひと目で確認</translation>
    </message>
    <message>
        <source>performance;system;monitor;processor;CPU;memory;RAM;network;graphics;GPU;disk;storage;battery;temperature;process;task;load;</source>
        <translation>パフォーマンス;性能;システム;モニター;監視;プロセッサー;プロセッサ;CPU;メモリ;RAM;ネットワーク;グラフィックス;GPU;ディスク;ストレージ;バッテリー;温度;プロセス;タスク;負荷;</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Export Current Snapshot…</source>
        <translation>現在のスナップショットをエクスポート…</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Run in the Background</source>
        <translation>バックグラウンドで実行</translation>
    </message>
</context>
<context>
    <name>Formatters</name>
    <message>
        <source>Unknown</source>
        <extracomment>a time that the machine does not tell</extracomment>
        <translation>不明</translation>
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
        <translation>%1日%2時間%3分</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <extracomment>a time of hours and minutes, as short as possible</extracomment>
        <translation>%1時間%2分</translation>
    </message>
    <message>
        <source>%1m</source>
        <extracomment>a time of minutes, as short as possible</extracomment>
        <translation>%1分</translation>
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
        <translation>グラフィックスのデータを待機中</translation>
    </message>
    <message>
        <source>Graphics</source>
        <extracomment>the title of the card</extracomment>
        <translation>グラフィックス</translation>
    </message>
    <message>
        <source>GPU Load</source>
        <extracomment>under the share of the graphics device that is busy</extracomment>
        <translation>GPU 使用率</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>VRAM Used</source>
        <extracomment>memory of the graphics device</extracomment>
        <translation>VRAM 使用量</translation>
    </message>
    <message>
        <source>VRAM Total</source>
        <extracomment>memory of the graphics device</extracomment>
        <translation>VRAM 合計</translation>
    </message>
    <message>
        <source>GPU history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>GPU の履歴</translation>
    </message>
    <message>
        <source>Graphics Devices</source>
        <extracomment>the heading of a list</extracomment>
        <translation>グラフィックスデバイス</translation>
    </message>
</context>
<context>
    <name>GraphicsDeviceView</name>
    <message>
        <source>Recommended Working Set</source>
        <extracomment>how much graphics memory the driver recommends to use</extracomment>
        <translation>推奨ワーキングセット</translation>
    </message>
    <message>
        <source>Unified memory architecture</source>
        <extracomment>graphics that share the memory of the processor</extracomment>
        <translation>ユニファイドメモリアーキテクチャ</translation>
    </message>
    <message>
        <source>Discrete graphics</source>
        <extracomment>a graphics device with memory of its own</extracomment>
        <translation>専用グラフィックス</translation>
    </message>
</context>
<context>
    <name>HelpTexts</name>
    <message>
        <source>%1 or %2 seconds</source>
        <extracomment>%1 are all numbers but the last: &quot;0.5, 1, 2, 5 or 10 seconds&quot;</extracomment>
        <translation>%1 または %2 秒</translation>
    </message>
    <message>
        <source>Live Monitoring</source>
        <translation>ライブモニタリング</translation>
    </message>
    <message>
        <source>Choose a refresh interval from %1. Pause stops periodic sampling, Refresh Now requests a fresh snapshot, and the charts keep only the configured bounded history.</source>
        <extracomment>%1 is &quot;0.5, 1, 2, 5 or 10 seconds&quot;</extracomment>
        <translation>更新間隔は %1から選択できます。「一時停止」は定期的な読み取りを停止し、「今すぐ更新」は最新のスナップショットを取得します。グラフには、設定した範囲の履歴だけが保持されます。</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>ダッシュボード</translation>
    </message>
    <message>
        <source>CPU shows total and per-logical-processor activity. Memory shows current pressure-related usage values. Network reports local interface traffic. GPU values are shown only when %1 or the active graphics driver publishes them. Storage and power data update at lower cadences because they do not require sub-second polling.</source>
        <extracomment>%1 is what publishes graphics figures, such as NVML</extracomment>
        <translation>CPU には、全体および論理プロセッサーごとの稼働状況が表示されます。メモリには、メモリの逼迫度に関わる現在の使用量が表示されます。ネットワークには、ローカルのインターフェースの通信量が表示されます。GPU の値は、%1 または使用中のグラフィックスドライバーが提供している場合にのみ表示されます。ストレージと電源のデータは、1 秒未満の間隔で読み取る必要がないため、より低い頻度で更新されます。</translation>
    </message>
    <message>
        <source>Process Explorer</source>
        <translation>プロセスエクスプローラー</translation>
    </message>
    <message>
        <source>The process list uses native %1 %2 data. Sort by CPU or memory and use the filter field to locate a running process. Vantor does not launch external command-line tools to collect process telemetry.</source>
        <extracomment>%1 is the name of the system, %2 of what tells of processes: &quot;Linux procfs&quot;</extracomment>
        <translation>プロセスの一覧には、%1 ネイティブの %2 のデータが使用されます。CPU またはメモリで並べ替えたり、フィルター欄で実行中のプロセスを探したりできます。Vantor がプロセスの情報を収集するために外部のコマンドラインツールを起動することはありません。</translation>
    </message>
    <message>
        <source>Menu Bar and Windows</source>
        <translation>システムトレイとウィンドウ</translation>
    </message>
    <message>
        <source>When the menu bar dashboard is enabled, closing the main window keeps Vantor available from the menu bar. When it is disabled, closing the last window exits the app. Use Quit or %1 to terminate Vantor completely.</source>
        <extracomment>%1 is what is pressed to quit, such as Ctrl+Q</extracomment>
        <translation>システムトレイのダッシュボードが有効な場合は、メインウィンドウを閉じても、システムトレイから Vantor を引き続き利用できます。無効な場合は、最後のウィンドウを閉じるとアプリが終了します。Vantor を完全に終了するには、「終了」または %1 を使用してください。</translation>
    </message>
    <message>
        <source>Vantor is a local %1 performance dashboard for live CPU, memory, network, GPU, storage, process and system telemetry.</source>
        <extracomment>%1 is the name of the system</extracomment>
        <translation>Vantor は、CPU、メモリ、ネットワーク、GPU、ストレージ、プロセス、システムの情報をリアルタイムに表示する、ローカルで動作する %1 用パフォーマンスダッシュボードです。</translation>
    </message>
    <message>
        <source>Export and Privacy</source>
        <translation>エクスポートとプライバシー</translation>
    </message>
    <message>
        <source>All monitoring is performed locally. Vantor does not perform analytics, public-IP lookups or automatic data transmission. A JSON snapshot is written only when you explicitly choose Export and select a destination.</source>
        <translation>モニタリングはすべてローカルで行われます。Vantor は、利用状況の分析、パブリック IP の照会、データの自動送信を行いません。JSON 形式のスナップショットは、「エクスポート」を明示的に選択し、保存先を指定した場合にのみ書き込まれます。</translation>
    </message>
    <message>
        <source>Amounts of memory and storage count in steps of 1024, so that 1 GB is 1,073,741,824 bytes, as the kernel hands memory out; rates count in steps of 1000, as networks do. A process&apos;s CPU share is of one processor: 100% is one kept busy, and a process on several has more.</source>
        <translation>メモリとストレージの容量は 1024 ごとに単位が上がります。カーネルがメモリを割り当てるときと同じく、1 GB は 1,073,741,824 バイトです。転送速度は、ネットワークの慣例どおり 1000 ごとに単位が上がります。プロセスの CPU 使用率は 1 つのプロセッサーに対する割合です。100% は 1 つが完全に使われている状態で、複数を使うプロセスはそれを超えます。</translation>
    </message>
    <message>
        <source>What the Numbers Mean</source>
        <translation>数値の意味</translation>
    </message>
</context>
<context>
    <name>LastUpdateText</name>
    <message>
        <source>Collecting live data…</source>
        <translation>ライブデータを収集中…</translation>
    </message>
    <message>
        <source>Updated %1</source>
        <extracomment>%1 is a time of day</extracomment>
        <translation>更新: %1</translation>
    </message>
</context>
<context>
    <name>Lists</name>
    <message>
        <source>, </source>
        <extracomment>stands between the parts of a list, with the blank that follows it</extracomment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>Manual</name>
    <message>
        <source>NAME</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>.Nm vantor</source>
        <translation>.Nm vantor</translation>
    </message>
    <message>
        <source>local performance dashboard for the desktop</source>
        <translation>デスクトップ向けのローカルなパフォーマンスダッシュボード</translation>
    </message>
    <message>
        <source>SYNOPSIS</source>
        <translation>書式</translation>
    </message>
    <message>
        <source>.Nm
.Op Ar option</source>
        <translation>.Nm
.Op Ar option</translation>
    </message>
    <message>
        <source>DESCRIPTION</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>.Nm
opens a window that shows what this computer is doing, live: processor, memory, network, graphics, storage, the
system with its battery, and the processes.
Closing the window keeps it in the tray, unless that is switched off in the settings or there is no tray.</source>
        <translation>.Nm
は、このコンピューターの動作をリアルタイムに表示するウィンドウを開きます。
表示するのは、プロセッサー、メモリ、ネットワーク、グラフィックス、ストレージ、バッテリーを含むシステム、そしてプロセスです。
設定で無効にしている場合とシステムトレイがない場合を除き、ウィンドウを閉じてもシステムトレイに残ります。</translation>
    </message>
    <message>
        <source>One program runs on each display: started again,
.Nm
brings the running one&apos;s window forward and ends.</source>
        <translation>ディスプレイごとに 1 つのプログラムだけが動作します。
もう一度起動すると、
.Nm
は動作中のプログラムのウィンドウを前面に出して終了します。</translation>
    </message>
    <message>
        <source>It is local: it opens no internet connection, starts no other program and collects nothing.
Where the kernel can, it enforces that; Help, About Vantor says whether it does.</source>
        <translation>すべてローカルで行われます。
インターネット接続を開かず、ほかのプログラムを起動せず、何も収集しません。
可能な場合は、カーネルがこれを強制します。
強制しているかどうかは、「ヘルプ」の「Vantor について」に表示されます。</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Each has the running program do something, or starts it for that:</source>
        <translation>どのオプションも、動作中のプログラムに次の操作をさせます。
動作していなければ、そのために起動します。</translation>
    </message>
    <message>
        <source>stops the readings,</source>
        <translation>読み取りを一時停止します。</translation>
    </message>
    <message>
        <source>goes on with them,</source>
        <translation>読み取りを再開します。</translation>
    </message>
    <message>
        <source>reads everything now,</source>
        <translation>今すぐすべてを読み取ります。</translation>
    </message>
    <message>
        <source>asks where to save a snapshot,</source>
        <translation>スナップショットの保存先を尋ねます。</translation>
    </message>
    <message>
        <source>opens the settings,</source>
        <translation>設定を開きます。</translation>
    </message>
    <message>
        <source>has no window, only the icon in the tray; without a tray, the window.</source>
        <translation>ウィンドウを出さず、システムトレイのアイコンだけにします。
システムトレイがなければウィンドウを出します。</translation>
    </message>
    <message>
        <source>The same actions are in the menu of the icon that starts the program, and on the session&apos;s bus, where
.Dq com.kestrone.Vantor
answers as
.Dq org.freedesktop.Application .</source>
        <translation>同じ操作は、プログラムを起動するアイコンのメニューからも、セッションバスからも行えます。
セッションバスでは
.Dq com.kestrone.Vantor
が次のインターフェースで応答します:
.Dq org.freedesktop.Application .</translation>
    </message>
    <message>
        <source>These print a text and end:</source>
        <translation>次のオプションはテキストを表示して終了します。</translation>
    </message>
    <message>
        <source>prints the options,</source>
        <translation>オプションを表示します。</translation>
    </message>
    <message>
        <source>prints the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>ENVIRONMENT</source>
        <translation>環境変数</translation>
    </message>
    <message>
        <source>The display, the first before the second.</source>
        <translation>ディスプレイ。
前者が後者より優先されます。</translation>
    </message>
    <message>
        <source>The folder of the settings&apos; folder,
.Pa ~/.config
where it is not set or relative.</source>
        <translation>設定のフォルダーを含むフォルダー。
未設定または相対パスの場合は
.Pa ~/.config
です。</translation>
    </message>
    <message>
        <source>The folder of the lock and the socket by which a second start finds the first.</source>
        <translation>2 度目の起動が、動作中のプログラムを見つけるためのロックとソケットのフォルダー。</translation>
    </message>
    <message>
        <source>The session&apos;s bus.
Only sockets of this machine are used.</source>
        <translation>セッションバス。
このマシンのソケットだけを使います。</translation>
    </message>
    <message>
        <source>The language in whose order names are listed, the first that is set.</source>
        <translation>名前を並べる順序を決める言語。
最初に設定されているものを使います。</translation>
    </message>
    <message>
        <source>How the time of the day is written.</source>
        <translation>時刻の表記。</translation>
    </message>
    <message>
        <source>The desktop&apos;s permission to come forward.</source>
        <translation>ウィンドウを前面に出すための、デスクトップからの許可。</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>The settings.
A damaged file is kept beside it, as
.Pa settings.ini.damaged-1 ,
and the defaults are used.</source>
        <translation>設定。
壊れたファイルは名前を変えて同じ場所に残されます:
.Pa settings.ini.damaged-1 ,
その場合は既定値が使われます。</translation>
    </message>
    <message>
        <source>Where the window was.</source>
        <translation>ウィンドウの位置。</translation>
    </message>
    <message>
        <source>Opens the program at login, without a window; written and removed by its settings.</source>
        <translation>ログイン時にウィンドウなしでプログラムを開きます。
プログラムの設定によって書き込まれ、削除されます。</translation>
    </message>
    <message>
        <source>Lock and socket of the running program.</source>
        <translation>動作中のプログラムのロックとソケット。</translation>
    </message>
    <message>
        <source>The names of graphics cards; without it they are shown by their numbers.</source>
        <translation>グラフィックスカードの名前。
なければ番号で表示されます。</translation>
    </message>
    <message>
        <source>Every key of an exported snapshot and its unit.</source>
        <translation>エクスポートしたスナップショットのすべてのキーとその単位。</translation>
    </message>
    <message>
        <source>Besides these, it writes only what is exported.</source>
        <translation>これら以外に書き込むのは、エクスポートしたものだけです。</translation>
    </message>
    <message>
        <source>SIGNALS</source>
        <translation>シグナル</translation>
    </message>
    <message>
        <source>End the program orderly, within five seconds.
A second one, more than 0.3 seconds after the first, ends it at once.
What is ignored when the program is started (see
.Xr nohup 1 )
stays ignored.</source>
        <translation>5 秒以内に、正しい手順でプログラムを終了します。
最初のシグナルから 0.3 秒を過ぎて 2 度目のシグナルが届くと、直ちに終了します。
起動時に無視されているシグナル (参照:
.Xr nohup 1 )
は、無視されたままになります。</translation>
    </message>
    <message>
        <source>EXIT STATUS</source>
        <translation>終了ステータス</translation>
    </message>
    <message>
        <source>The program was quit, ended by the first signal, or has brought another one forward.</source>
        <translation>終了の操作か最初のシグナルで終了した、またはすでに動作中のプログラムを前面に出した。</translation>
    </message>
    <message>
        <source>There is no display that it can open, or too little memory, too few threads or file descriptors to go on.
One line on standard error says which.</source>
        <translation>開けるディスプレイがないか、続行するにはメモリ、スレッド、ファイル記述子のいずれかが足りない。
どれであるかは、標準エラー出力の 1 行で示される。</translation>
    </message>
    <message>
        <source>An argument is none of the options.</source>
        <translation>オプションではない引数がある。</translation>
    </message>
    <message>
        <source>SEE ALSO</source>
        <translation>関連項目</translation>
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
        <translation>メモリのデータを待機中</translation>
    </message>
    <message>
        <source>%1 installed</source>
        <extracomment>%1 is an amount of memory</extracomment>
        <translation>%1 搭載</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>the title of the card</extracomment>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>In Use</source>
        <extracomment>under the share of memory that is used</extracomment>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Active</source>
        <extracomment>memory used lately; the short label of a figure</extracomment>
        <translation>アクティブ</translation>
    </message>
    <message>
        <source>Wired</source>
        <extracomment>memory that the system keeps and cannot swap out; the short label of a figure</extracomment>
        <translation>固定</translation>
    </message>
    <message>
        <source>Compressed</source>
        <extracomment>memory that is kept compressed; the short label of a figure</extracomment>
        <translation>圧縮</translation>
    </message>
    <message>
        <source>Available</source>
        <extracomment>memory that programs can have; the short label of a figure</extracomment>
        <translation>利用可能</translation>
    </message>
    <message>
        <source>Memory history</source>
        <extracomment>of the chart, for screen readers</extracomment>
        <translation>メモリの履歴</translation>
    </message>
    <message>
        <source>Top Memory Processes</source>
        <extracomment>the processes that use most memory</extracomment>
        <translation>メモリ使用量上位のプロセス</translation>
    </message>
</context>
<context>
    <name>MenuBarDashboard</name>
    <message>
        <source>Open Dashboard</source>
        <extracomment>a button</extracomment>
        <translation>ダッシュボードを開く</translation>
    </message>
    <message>
        <source>Refresh</source>
        <extracomment>a button: read everything now</extracomment>
        <translation>更新</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>opens the settings</extracomment>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>a button: end the program</extracomment>
        <translation>終了</translation>
    </message>
    <message>
        <source>CPU</source>
        <extracomment>the short title of a figure</extracomment>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <extracomment>the short title of a figure</extracomment>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Collecting live data…</source>
        <translation>ライブデータを収集中…</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>a button: stop reading</extracomment>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Resume</source>
        <extracomment>a button: go on reading</extracomment>
        <translation>再開</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>for screen readers: whether the figures are live</extracomment>
        <translation>状態</translation>
    </message>
</context>
<context>
    <name>NetworkCard</name>
    <message>
        <source>Not assigned</source>
        <extracomment>no address</extracomment>
        <translation>未割り当て</translation>
    </message>
    <message>
        <source>Waiting for network data</source>
        <translation>ネットワークのデータを待機中</translation>
    </message>
    <message>
        <source>Active interface: %1</source>
        <extracomment>%1 is the name of a network interface</extracomment>
        <translation>アクティブなインターフェース: %1</translation>
    </message>
    <message>
        <source>No active interface</source>
        <translation>アクティブなインターフェースなし</translation>
    </message>
    <message>
        <source>Network</source>
        <extracomment>the title of the card</extracomment>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Download</source>
        <extracomment>the speed at which data comes in</extracomment>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Upload</source>
        <extracomment>the speed at which data goes out</extracomment>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>Hostname</source>
        <translation>ホスト名</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>a host without a name</extracomment>
        <translation>不明</translation>
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
        <translation>インターフェース</translation>
    </message>
</context>
<context>
    <name>PowerView</name>
    <message>
        <source>AC connected</source>
        <extracomment>the computer is plugged in</extracomment>
        <translation>AC 電源接続中</translation>
    </message>
    <message>
        <source>On battery</source>
        <translation>バッテリー駆動中</translation>
    </message>
    <message>
        <source>%1 until full</source>
        <extracomment>%1 is a time, such as 1h 20m</extracomment>
        <translation>満充電まで %1</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <translation>残り %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln charge cycle(s)</source>
        <comment>of the battery</comment>
        <translation>
            <numerusform>充電サイクル %Ln 回</numerusform>
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
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Waiting for Processes</source>
        <translation>プロセスを待機中</translation>
    </message>
    <message>
        <source>No process data is available yet.</source>
        <translation>プロセスのデータはまだありません。</translation>
    </message>
    <message>
        <source>No Matching Processes</source>
        <translation>一致するプロセスなし</translation>
    </message>
    <message>
        <source>No process matches “%1”.</source>
        <extracomment>%1 is what the user has typed</extracomment>
        <translation>「%1」に一致するプロセスはありません。</translation>
    </message>
    <message>
        <source>Process Explorer</source>
        <extracomment>the title of the card</extracomment>
        <translation>プロセスエクスプローラー</translation>
    </message>
    <message>
        <source>Live process activity</source>
        <translation>プロセスのリアルタイムの稼働状況</translation>
    </message>
    <message>
        <source>Filter processes</source>
        <extracomment>shown in an empty field that is typed into</extracomment>
        <translation>プロセスを絞り込む</translation>
    </message>
    <message>
        <source>Sort</source>
        <extracomment>for screen readers: by what the list is sorted</extracomment>
        <translation>並べ替え</translation>
    </message>
</context>
<context>
    <name>ProcessHeader</name>
    <message>
        <source>Process</source>
        <extracomment>the heading of a column</extracomment>
        <translation>プロセス</translation>
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
        <translation>メモリ</translation>
    </message>
</context>
<context>
    <name>ProcessMiniList</name>
    <message>
        <source>Waiting for process data…</source>
        <translation>プロセスのデータを待機中…</translation>
    </message>
</context>
<context>
    <name>ProcessTableView</name>
    <message numerus="yes">
        <source>%Ln process(es)</source>
        <comment>for screen readers: in the list</comment>
        <translation>
            <numerusform>%Ln 個のプロセス</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, PID %2, CPU %3, memory %4</source>
        <extracomment>for screen readers: the name of a process, its number, its share of the processor, its memory</extracomment>
        <translation>%1、PID %2、CPU %3、メモリ %4</translation>
    </message>
    <message>
        <source>Processes</source>
        <extracomment>the list, for screen readers</extracomment>
        <translation>プロセス</translation>
    </message>
    <message>
        <source>100% is one processor: a process that keeps two busy has 200%. A click sorts by it.</source>
        <extracomment>what a process&apos;s percentage is of; the title of a column is pointed at</extracomment>
        <translation>100% は 1 つのプロセッサーです。2 つを使い切るプロセスは 200% になります。クリックするとこの列で並べ替えます。</translation>
    </message>
    <message>
        <source>The memory that a process has in use now. A click sorts by it.</source>
        <extracomment>the title of a column is pointed at</extracomment>
        <translation>プロセスが今使っているメモリです。クリックするとこの列で並べ替えます。</translation>
    </message>
    <message>
        <source>A full bar is the largest of the processes shown.</source>
        <translation>バーがいっぱいのものが、表示中のプロセスの最大値です。</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>a command: the whole row of a process</extracomment>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy Name</source>
        <extracomment>a command</extracomment>
        <translation>名前をコピー</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <extracomment>a command: where the program of a process lies</extracomment>
        <translation>パスをコピー</translation>
    </message>
    <message>
        <source>Filter by This Name</source>
        <extracomment>a command: show the processes of that name only</extracomment>
        <translation>この名前で絞り込む</translation>
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
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>a button</extracomment>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>JSON document</source>
        <extracomment>a kind of file</extracomment>
        <translation>JSON ドキュメント</translation>
    </message>
    <message>
        <source>All files</source>
        <extracomment>a kind of file: any</extracomment>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>%1, folder</source>
        <extracomment>for screen readers; %1 is the name of a folder</extracomment>
        <translation>%1、フォルダー</translation>
    </message>
    <message>
        <source>Folders and files</source>
        <extracomment>for screen readers: the contents of a folder</extracomment>
        <translation>フォルダーとファイル</translation>
    </message>
    <message>
        <source>Warning</source>
        <extracomment>for screen readers: the sign beside a warning</extracomment>
        <translation>警告</translation>
    </message>
    <message>
        <source>The disk does not answer. Please choose another folder, or try again.</source>
        <translation>ディスクが応答しません。別のフォルダーを選択するか、もう一度試してください。</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>フォルダーが存在しません。</translation>
    </message>
    <message>
        <source>This is not a folder.</source>
        <translation>これはフォルダーではありません。</translation>
    </message>
    <message>
        <source>You do not have the permission to look into this folder.</source>
        <translation>このフォルダーの内容を表示する権限がありません。</translation>
    </message>
    <message>
        <source>The folder cannot be read.</source>
        <translation>フォルダーを読み取れません。</translation>
    </message>
    <message>
        <source>You do not have the permission to make a folder here.</source>
        <translation>ここにフォルダーを作成する権限がありません。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名前が長すぎます。</translation>
    </message>
    <message>
        <source>The folder could not be made.</source>
        <translation>フォルダーを作成できませんでした。</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>ドキュメント</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>デスクトップ</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Looking for your folders…</source>
        <translation>フォルダーを検索中…</translation>
    </message>
    <message>
        <source>Last used</source>
        <extracomment>the folder that was saved to before</extracomment>
        <translation>前回の保存先</translation>
    </message>
    <message>
        <source>Looking into the folder…</source>
        <translation>フォルダーを読み込み中…</translation>
    </message>
    <message>
        <source>You do not have the permission to save in this folder.</source>
        <translation>このフォルダーに保存する権限がありません。</translation>
    </message>
    <message numerus="yes">
        <source>Only the first %Ln of this folder are shown.</source>
        <comment>files and folders</comment>
        <translation>
            <numerusform>このフォルダーの最初の %Ln 項目のみが表示されています。</numerusform>
        </translation>
    </message>
    <message>
        <source>New Folder</source>
        <extracomment>the title of a box</extracomment>
        <translation>新しいフォルダー</translation>
    </message>
    <message>
        <source>Name of the new folder:</source>
        <translation>新しいフォルダーの名前:</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>作成(&amp;C)</translation>
    </message>
    <message>
        <source>Making the folder…</source>
        <translation>フォルダーを作成中…</translation>
    </message>
    <message>
        <source>Please type a name for the file.</source>
        <translation>ファイルの名前を入力してください。</translation>
    </message>
    <message>
        <source>Please choose a folder first.</source>
        <translation>先にフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Checking…</source>
        <extracomment>whether a file can be saved there</extracomment>
        <translation>確認中…</translation>
    </message>
    <message>
        <source>Places</source>
        <extracomment>for screen readers: the list of well-known folders</extracomment>
        <translation>場所</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <extracomment>of the file; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <extracomment>the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>フォルダー(&amp;F):</translation>
    </message>
    <message>
        <source>Parent folder (Alt+Up)</source>
        <extracomment>a button; Alt+Up is what can be pressed instead</extracomment>
        <translation>親フォルダー (Alt+Up)</translation>
    </message>
    <message>
        <source>New folder</source>
        <extracomment>a button</extracomment>
        <translation>新しいフォルダー</translation>
    </message>
    <message>
        <source>Replace File</source>
        <extracomment>the title of a box</extracomment>
        <translation>ファイルの置き換え</translation>
    </message>
    <message>
        <source>&quot;%1&quot; already exists. Do you want to replace it?</source>
        <extracomment>%1 is the name of a file</extracomment>
        <translation>「%1」はすでに存在します。置き換えますか？</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <extracomment>a button; the letter behind &amp; is pressed together with Alt</extracomment>
        <translation>置き換え(&amp;R)</translation>
    </message>
</context>
<context>
    <name>SettingsForm</name>
    <message numerus="yes">
        <source>Chart history: %Ln sample(s)</source>
        <comment>how many readings the charts keep</comment>
        <translation>
            <numerusform>グラフの履歴: %Ln サンプル</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 second</source>
        <extracomment>half a second, as a number</extracomment>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <extracomment>a number of seconds that is not whole</extracomment>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the theme: as the desktop has it</extracomment>
        <translation>システムに従う</translation>
    </message>
    <message>
        <source>Light</source>
        <extracomment>the theme</extracomment>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <extracomment>the theme</extracomment>
        <translation>ダーク</translation>
    </message>
    <message numerus="yes">
        <source>%Ln second(s)</source>
        <comment>how often the figures are read</comment>
        <translation>
            <numerusform>%Ln 秒</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Open at Login</source>
        <extracomment>a switch: start the program when the user logs in</extracomment>
        <translation>ログイン時に開く</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <extracomment>settings that could not be stored; %1 is a sentence that says why</extracomment>
        <translation>保存されませんでした: %1</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Theme</source>
        <extracomment>whether colours are dark or light</extracomment>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>Monitoring</source>
        <translation>モニタリング</translation>
    </message>
    <message>
        <source>Refresh interval</source>
        <extracomment>how often the figures are read</extracomment>
        <translation>更新間隔</translation>
    </message>
    <message>
        <source>Chart history</source>
        <extracomment>how many readings the charts keep</extracomment>
        <translation>グラフの履歴</translation>
    </message>
    <message numerus="yes">
        <source>%Ln sample(s)</source>
        <comment>for screen readers: how many readings the charts keep</comment>
        <translation>
            <numerusform>%Ln サンプル</numerusform>
        </translation>
    </message>
    <message>
        <source>Include point-to-point and tunnel interfaces</source>
        <extracomment>a switch: network interfaces, such as those of a VPN</extracomment>
        <translation>ポイントツーポイントとトンネルのインターフェースを含める</translation>
    </message>
    <message>
        <source>Show menu bar dashboard</source>
        <extracomment>a switch: the icon in the tray and its panel</extracomment>
        <translation>システムトレイのダッシュボードを表示</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>データ</translation>
    </message>
    <message>
        <source>Network privacy</source>
        <extracomment>a label</extracomment>
        <translation>ネットワークのプライバシー</translation>
    </message>
    <message>
        <source>No public IP lookup</source>
        <extracomment>the program does not ask the internet for the address</extracomment>
        <translation>パブリック IP の照会なし</translation>
    </message>
    <message>
        <source>Process source</source>
        <extracomment>a label: where figures of processes come from</extracomment>
        <translation>プロセスの情報源</translation>
    </message>
    <message>
        <source>Native %1 %2</source>
        <extracomment>the name of the system, and of what tells of processes: &quot;Native Linux procfs&quot;</extracomment>
        <translation>%1 ネイティブの %2</translation>
    </message>
    <message>
        <source>GPU telemetry</source>
        <extracomment>a label: where figures of graphics come from</extracomment>
        <translation>GPU の情報源</translation>
    </message>
    <message>
        <source>Export Current Snapshot…</source>
        <extracomment>a button</extracomment>
        <translation>現在のスナップショットをエクスポート…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>a heading: about the program</extracomment>
        <translation>このアプリについて</translation>
    </message>
    <message>
        <source>Application</source>
        <extracomment>a label</extracomment>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>This desktop has no tray to show it in.</source>
        <translation>このデスクトップには表示先のシステムトレイがありません。</translation>
    </message>
</context>
<context>
    <name>SoftwareCentre</name>
    <message>
        <source>See what this computer is doing, live and at a glance</source>
        <translation>このコンピューターの動作をリアルタイムにひと目で確認</translation>
    </message>
    <message>
        <source>Vantor shows what the computer is doing on one page, in a window that costs next to nothing to keep open: processor, memory, network, graphics, storage and the system with its battery, each with short histories where there is something to follow.</source>
        <translation>Vantor は、コンピューターの動作を 1 ページにまとめて表示します。ウィンドウを開いたままでも負荷はほとんどかかりません。プロセッサー、メモリ、ネットワーク、グラフィックス、ストレージ、バッテリーを含むシステムを、推移を追えるものには短い履歴を添えて示します。</translation>
    </message>
    <message>
        <source>What there is beside the cards:</source>
        <translation>カードのほかに:</translation>
    </message>
    <message>
        <source>a process explorer with the heaviest processes, and a filter over all of them</source>
        <translation>負荷の大きいプロセスを並べ、すべてのプロセスを絞り込めるプロセスエクスプローラー</translation>
    </message>
    <message>
        <source>a tray icon with a panel of the most important figures</source>
        <translation>最も重要な数値をパネルに表示するシステムトレイのアイコン</translation>
    </message>
    <message>
        <source>export of all figures as one JSON document</source>
        <translation>すべての数値を 1 つの JSON ドキュメントにエクスポートする機能</translation>
    </message>
    <message>
        <source>It is local: it opens no internet connection, starts no other program and collects nothing, and the kernel enforces that. A figure that the system does not publish is shown as words, never as zero. Everything is reached by keyboard, and told to screen readers.</source>
        <translation>すべてローカルで行われます。インターネット接続を開かず、ほかのプログラムを起動せず、何も収集しません。これはカーネルが強制します。システムが提供しない数値は、ゼロではなく言葉で示されます。すべてキーボードで操作でき、スクリーンリーダーにも伝えられます。</translation>
    </message>
    <message>
        <source>The dashboard of a laptop, dark</source>
        <translation>ノートパソコンのダッシュボード (ダーク)</translation>
    </message>
    <message>
        <source>The dashboard of a laptop, light</source>
        <translation>ノートパソコンのダッシュボード (ライト)</translation>
    </message>
    <message>
        <source>The first release.</source>
        <translation>最初のリリースです。</translation>
    </message>
</context>
<context>
    <name>StorageCard</name>
    <message>
        <source>Waiting for storage data</source>
        <translation>ストレージのデータを待機中</translation>
    </message>
    <message numerus="yes">
        <source>%Ln mounted volume(s)</source>
        <translation>
            <numerusform>%Ln 個のマウント済みボリューム</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <extracomment>the title of the card</extracomment>
        <translation>ストレージ</translation>
    </message>
    <message>
        <source>No Volumes</source>
        <extracomment>there is no disk to be shown</extracomment>
        <translation>ボリュームなし</translation>
    </message>
</context>
<context>
    <name>SystemCard</name>
    <message>
        <source>Waiting for system data</source>
        <translation>システムのデータを待機中</translation>
    </message>
    <message>
        <source>System</source>
        <extracomment>the title of the card: the whole machine</extracomment>
        <translation>システム</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>a text that the machine does not tell</extracomment>
        <translation>不明</translation>
    </message>
    <message>
        <source>Operating System</source>
        <translation>OS</translation>
    </message>
    <message>
        <source>Kernel Build</source>
        <translation>カーネルビルド</translation>
    </message>
    <message>
        <source>Architecture</source>
        <extracomment>of the processor</extracomment>
        <translation>アーキテクチャ</translation>
    </message>
    <message>
        <source>Uptime</source>
        <extracomment>the time since the machine was started</extracomment>
        <translation>稼働時間</translation>
    </message>
    <message>
        <source>Thermal State</source>
        <extracomment>how hot the machine is, in words</extracomment>
        <translation>温度状態</translation>
    </message>
    <message>
        <source>Low Power Mode</source>
        <translation>省電力モード</translation>
    </message>
    <message>
        <source>Enabled</source>
        <extracomment>the low power mode</extracomment>
        <translation>有効</translation>
    </message>
    <message>
        <source>Disabled</source>
        <extracomment>the low power mode</extracomment>
        <translation>無効</translation>
    </message>
</context>
<context>
    <name>VantorApp</name>
    <message>
        <source>Vantor (collecting live data)</source>
        <extracomment>the name of the window until figures have been read</extracomment>
        <translation>Vantor (ライブデータを収集中)</translation>
    </message>
    <message>
        <source>Vantor Settings</source>
        <extracomment>the title of a window</extracomment>
        <translation>Vantor の設定</translation>
    </message>
    <message>
        <source>Vantor Help</source>
        <extracomment>the title of a window</extracomment>
        <translation>Vantor のヘルプ</translation>
    </message>
</context>
<context>
    <name>VolumeView</name>
    <message>
        <source>%1 used</source>
        <extracomment>%1 is an amount, of a disk</extracomment>
        <translation>使用 %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>%1 is an amount, of a disk</extracomment>
        <translation>空き %1</translation>
    </message>
    <message>
        <source>%1 (read only)</source>
        <extracomment>%1 is where a disk is found, such as /home</extracomment>
        <translation>%1 (読み取り専用)</translation>
    </message>
    <message>
        <source>%1 full, %2, %3</source>
        <extracomment>for screen readers: %1 is a share such as 45%, %2 &quot;120 GB used&quot;, %3 &quot;90 GB free&quot;</extracomment>
        <translation>使用率 %1、%2、%3</translation>
    </message>
</context>
</TS>
