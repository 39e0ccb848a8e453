<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
    SPDX-FileCopyrightText: Corvel print dialog authors
    SPDX-License-Identifier: Apache-2.0
-->
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>corvelColorAdjustments</source>
        <translatorcomment>Panel names.</translatorcomment>
        <translation>Ajustes de color</translation>
    </message>
    <message>
        <source>corvelSharpness</source>
        <translation>Nitidez</translation>
    </message>
    <message>
        <source>corvelOptions</source>
        <translation>Calidad y acabado</translation>
    </message>
    <message>
        <source>PageSize</source>
        <translatorcomment>PPD option keywords.</translatorcomment>
        <translation>Tamaño de papel</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>AdjustmentsEnabled</source>
        <translation>Ajustar los colores</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>SharpnessEnabled</source>
        <translation>Mejorar la nitidez</translation>
    </message>
    <message>
        <source>SharpnessRadius</source>
        <translation>Radio de nitidez</translation>
    </message>
    <message>
        <source>SharpnessIntensity</source>
        <translation>Intensidad de nitidez</translation>
    </message>
    <message>
        <source>UsePrinterPanel</source>
        <translation>Usar los ajustes de la impresora</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad de impresión</translation>
    </message>
    <message>
        <source>Overcoat</source>
        <translation>Acabado</translation>
    </message>
    <message>
        <source>MatteValue</source>
        <translation>Intensidad del mate</translation>
    </message>
    <message>
        <source>True</source>
        <translatorcomment>Choice keywords, and the PPD's English texts for them.</translatorcomment>
        <translation>Activado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>Fina</translation>
    </message>
    <message>
        <source>Glossy</source>
        <translation>Brillante</translation>
    </message>
    <message>
        <source>Matte</source>
        <translation>Mate</translation>
    </message>
    <message>
        <source>corvelColorBalance</source>
        <translatorcomment>Forms.</translatorcomment>
        <translation>Balance de color</translation>
    </message>
    <message>
        <source>corvelTone</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>corvelDefaults</source>
        <translation>Restaurar los valores predeterminados</translation>
    </message>
    <message>
        <source>corvelRedValue</source>
        <translation>Valor de rojo</translation>
    </message>
    <message>
        <source>corvelGreenValue</source>
        <translation>Valor de verde</translation>
    </message>
    <message>
        <source>corvelBlueValue</source>
        <translation>Valor de azul</translation>
    </message>
    <message>
        <source>corvelBrightnessValue</source>
        <translation>Valor de brillo</translation>
    </message>
    <message>
        <source>corvelContrastValue</source>
        <translation>Valor de contraste</translation>
    </message>
    <message>
        <source>corvelSaturationValue</source>
        <translation>Valor de saturación</translation>
    </message>
    <message>
        <source>corvelGammaValue</source>
        <translation>Valor de gamma</translation>
    </message>
    <message>
        <source>corvelRadiusValue</source>
        <translation>Valor del radio de nitidez</translation>
    </message>
    <message>
        <source>corvelIntensityValue</source>
        <translation>Valor de la intensidad de nitidez</translation>
    </message>
    <message>
        <source>corvelFinishOfPrinterPanel</source>
        <translatorcomment>Below the preview of the print.</translatorcomment>
        <translation>El acabado se muestra brillante: se aplican los ajustes del panel de la impresora.</translation>
    </message>
    <message>
        <source>pdekitRange</source>
        <translatorcomment>The range of a number, from its least (%1) to its greatest (%2).</translatorcomment>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>pdekitOutOfRange</source>
        <translation>Escriba un número de %1 a %2.</translation>
    </message>
</context>
</TS>
