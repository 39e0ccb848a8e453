<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
    SPDX-FileCopyrightText: Corvel print dialog authors
    SPDX-License-Identifier: Apache-2.0
-->
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>corvelColorAdjustments</source>
        <translatorcomment>Panel names.</translatorcomment>
        <translation>Color Adjustments</translation>
    </message>
    <message>
        <source>corvelSharpness</source>
        <translation>Sharpness</translation>
    </message>
    <message>
        <source>corvelOptions</source>
        <translation>Print Quality and Finish</translation>
    </message>
    <message>
        <source>PageSize</source>
        <translatorcomment>PPD option keywords.</translatorcomment>
        <translation>Paper Size</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>AdjustmentsEnabled</source>
        <translation>Adjust colors</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>SharpnessEnabled</source>
        <translation>Sharpen photo</translation>
    </message>
    <message>
        <source>SharpnessRadius</source>
        <translation>Sharpness Radius</translation>
    </message>
    <message>
        <source>SharpnessIntensity</source>
        <translation>Sharpness Intensity</translation>
    </message>
    <message>
        <source>UsePrinterPanel</source>
        <translation>Use settings from printer panel</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Print Quality</translation>
    </message>
    <message>
        <source>Overcoat</source>
        <translation>Surface Finish</translation>
    </message>
    <message>
        <source>MatteValue</source>
        <translation>Matte Level</translation>
    </message>
    <message>
        <source>True</source>
        <translatorcomment>Choice keywords, and the PPD's English texts for them.</translatorcomment>
        <translation>On</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Glossy</source>
        <translation>Glossy</translation>
    </message>
    <message>
        <source>Matte</source>
        <translation>Matte</translation>
    </message>
    <message>
        <source>corvelColorBalance</source>
        <translatorcomment>Forms.</translatorcomment>
        <translation>Color Balance</translation>
    </message>
    <message>
        <source>corvelTone</source>
        <translation>Tone</translation>
    </message>
    <message>
        <source>corvelDefaults</source>
        <translation>Restore Defaults</translation>
    </message>
    <message>
        <source>corvelRedValue</source>
        <translation>Red value</translation>
    </message>
    <message>
        <source>corvelGreenValue</source>
        <translation>Green value</translation>
    </message>
    <message>
        <source>corvelBlueValue</source>
        <translation>Blue value</translation>
    </message>
    <message>
        <source>corvelBrightnessValue</source>
        <translation>Brightness value</translation>
    </message>
    <message>
        <source>corvelContrastValue</source>
        <translation>Contrast value</translation>
    </message>
    <message>
        <source>corvelSaturationValue</source>
        <translation>Saturation value</translation>
    </message>
    <message>
        <source>corvelGammaValue</source>
        <translation>Gamma value</translation>
    </message>
    <message>
        <source>corvelRadiusValue</source>
        <translation>Sharpness radius value</translation>
    </message>
    <message>
        <source>corvelIntensityValue</source>
        <translation>Sharpness intensity value</translation>
    </message>
    <message>
        <source>corvelFinishOfPrinterPanel</source>
        <translatorcomment>Below the preview of the print.</translatorcomment>
        <translation>The finish is shown glossy: the settings on the printer’s own panel apply.</translation>
    </message>
    <message>
        <source>pdekitRange</source>
        <translatorcomment>The range of a number, from its least (%1) to its greatest (%2).</translatorcomment>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>pdekitOutOfRange</source>
        <translation>Enter a number from %1 to %2.</translation>
    </message>
</context>
</TS>
