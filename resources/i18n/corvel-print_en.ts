<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>printdialog::ChoiceController</name>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>And %n more.</numerusform>
            <numerusform>And %n more.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>printdialog::PrintDialog</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
</context>
</TS>
