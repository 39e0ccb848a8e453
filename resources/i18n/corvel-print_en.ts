<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ArrangementText</name>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>%n photo</numerusform>
            <numerusform>%n photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Console</name>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>And %n more.</numerusform>
            <numerusform>And %n more.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RemainingTime</name>
    <message numerus="yes">
        <source>about %n minute(s)</source>
        <translation>
            <numerusform>about %n minute</numerusform>
            <numerusform>about %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s)</source>
        <translation>
            <numerusform>about %n hour</numerusform>
            <numerusform>about %n hours</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>printdialog::LayoutBar</name>
    <message numerus="yes">
        <source>%n page(s) per sheet</source>
        <translation>
            <numerusform>%n page per sheet</numerusform>
            <numerusform>%n pages per sheet</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoPane</name>
    <message numerus="yes">
        <source>%n more file(s) cannot be printed.</source>
        <translation>
            <numerusform>%n more file cannot be printed.</numerusform>
            <numerusform>%n more files cannot be printed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoTableModel</name>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n copy</numerusform>
            <numerusform>%n copies</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>printdialog::PresetController</name>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>And %n more.</numerusform>
            <numerusform>And %n more.</numerusform>
        </translation>
    </message>
</context>
</TS>
