<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
    SPDX-FileCopyrightText: Corvel print dialog authors
    SPDX-License-Identifier: Apache-2.0
-->
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>corvelColorAdjustments</source>
        <translatorcomment>Panel names.</translatorcomment>
        <translation>Farbanpassung</translation>
    </message>
    <message>
        <source>corvelSharpness</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>corvelOptions</source>
        <translation>Druckqualität und Oberfläche</translation>
    </message>
    <message>
        <source>PageSize</source>
        <translatorcomment>PPD option keywords.</translatorcomment>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>AdjustmentsEnabled</source>
        <translation>Farben anpassen</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>SharpnessEnabled</source>
        <translation>Foto schärfen</translation>
    </message>
    <message>
        <source>SharpnessRadius</source>
        <translation>Schärferadius</translation>
    </message>
    <message>
        <source>SharpnessIntensity</source>
        <translation>Schärfeintensität</translation>
    </message>
    <message>
        <source>UsePrinterPanel</source>
        <translation>Einstellungen am Drucker verwenden</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Druckqualität</translation>
    </message>
    <message>
        <source>Overcoat</source>
        <translation>Oberfläche</translation>
    </message>
    <message>
        <source>MatteValue</source>
        <translation>Mattierungsgrad</translation>
    </message>
    <message>
        <source>True</source>
        <translatorcomment>Choice keywords, and the PPD's English texts for them.</translatorcomment>
        <translation>Ein</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>Fein</translation>
    </message>
    <message>
        <source>Glossy</source>
        <translation>Glänzend</translation>
    </message>
    <message>
        <source>Matte</source>
        <translation>Matt</translation>
    </message>
    <message>
        <source>corvelColorBalance</source>
        <translatorcomment>Forms.</translatorcomment>
        <translation>Farbbalance</translation>
    </message>
    <message>
        <source>corvelTone</source>
        <translation>Tonwerte</translation>
    </message>
    <message>
        <source>corvelDefaults</source>
        <translation>Standardwerte wiederherstellen</translation>
    </message>
    <message>
        <source>corvelRedValue</source>
        <translation>Wert für Rot</translation>
    </message>
    <message>
        <source>corvelGreenValue</source>
        <translation>Wert für Grün</translation>
    </message>
    <message>
        <source>corvelBlueValue</source>
        <translation>Wert für Blau</translation>
    </message>
    <message>
        <source>corvelBrightnessValue</source>
        <translation>Wert für Helligkeit</translation>
    </message>
    <message>
        <source>corvelContrastValue</source>
        <translation>Wert für Kontrast</translation>
    </message>
    <message>
        <source>corvelSaturationValue</source>
        <translation>Wert für Sättigung</translation>
    </message>
    <message>
        <source>corvelGammaValue</source>
        <translation>Wert für Gamma</translation>
    </message>
    <message>
        <source>corvelRadiusValue</source>
        <translation>Wert für den Schärferadius</translation>
    </message>
    <message>
        <source>corvelIntensityValue</source>
        <translation>Wert für die Schärfeintensität</translation>
    </message>
    <message>
        <source>corvelFinishOfPrinterPanel</source>
        <translatorcomment>Below the preview of the print.</translatorcomment>
        <translation>Die Oberfläche wird glänzend gezeigt: Es gelten die Einstellungen am Drucker.</translation>
    </message>
    <message>
        <source>pdekitRange</source>
        <translatorcomment>The range of a number, from its least (%1) to its greatest (%2).</translatorcomment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>pdekitOutOfRange</source>
        <translation>Geben Sie eine Zahl von %1 bis %2 ein.</translation>
    </message>
</context>
</TS>
