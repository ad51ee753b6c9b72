<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ByteCountFormatter</name>
    <message numerus="yes">
        <source>%Ln byte(s)</source>
        <translation>
            <numerusform>%Ln byte</numerusform>
            <numerusform>%Ln bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PowerView</name>
    <message numerus="yes">
        <source>%Ln charge cycle(s)</source>
        <comment>of the battery</comment>
        <translation>
            <numerusform>%Ln charge cycle</numerusform>
            <numerusform>%Ln charge cycles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProcessTableView</name>
    <message numerus="yes">
        <source>%Ln process(es)</source>
        <comment>for screen readers: in the list</comment>
        <translation>
            <numerusform>%Ln process</numerusform>
            <numerusform>%Ln processes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message numerus="yes">
        <source>Only the first %Ln of this folder are shown.</source>
        <comment>files and folders</comment>
        <translation>
            <numerusform>Only the first %Ln of this folder are shown.</numerusform>
            <numerusform>Only the first %Ln of this folder are shown.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsForm</name>
    <message numerus="yes">
        <source>Chart history: %Ln sample(s)</source>
        <comment>how many readings the charts keep</comment>
        <translation>
            <numerusform>Chart history: %Ln sample</numerusform>
            <numerusform>Chart history: %Ln samples</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln second(s)</source>
        <comment>how often the figures are read</comment>
        <translation>
            <numerusform>%Ln second</numerusform>
            <numerusform>%Ln seconds</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message numerus="yes">
        <source>%Ln sample(s)</source>
        <comment>for screen readers: how many readings the charts keep</comment>
        <translation>
            <numerusform>%Ln sample</numerusform>
            <numerusform>%Ln samples</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StorageCard</name>
    <message numerus="yes">
        <source>%Ln mounted volume(s)</source>
        <translation>
            <numerusform>%Ln mounted volume</numerusform>
            <numerusform>%Ln mounted volumes</numerusform>
        </translation>
    </message>
</context>
</TS>
