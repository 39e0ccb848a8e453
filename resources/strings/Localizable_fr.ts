<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
    SPDX-FileCopyrightText: Corvel print dialog authors
    SPDX-License-Identifier: Apache-2.0
-->
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>corvelColorAdjustments</source>
        <translatorcomment>Panel names.</translatorcomment>
        <translation>Réglage des couleurs</translation>
    </message>
    <message>
        <source>corvelSharpness</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>corvelOptions</source>
        <translation>Qualité et finition</translation>
    </message>
    <message>
        <source>PageSize</source>
        <translatorcomment>PPD option keywords.</translatorcomment>
        <translation>Format du papier</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>AdjustmentsEnabled</source>
        <translation>Régler les couleurs</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
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
        <translation>Accentuer la netteté</translation>
    </message>
    <message>
        <source>SharpnessRadius</source>
        <translation>Rayon de netteté</translation>
    </message>
    <message>
        <source>SharpnessIntensity</source>
        <translation>Intensité de netteté</translation>
    </message>
    <message>
        <source>UsePrinterPanel</source>
        <translation>Utiliser les réglages de l’imprimante</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité d’impression</translation>
    </message>
    <message>
        <source>Overcoat</source>
        <translation>Finition</translation>
    </message>
    <message>
        <source>MatteValue</source>
        <translation>Intensité du mat</translation>
    </message>
    <message>
        <source>True</source>
        <translatorcomment>Choice keywords, and the PPD's English texts for them.</translatorcomment>
        <translation>Activé</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
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
        <translation>Brillante</translation>
    </message>
    <message>
        <source>Matte</source>
        <translation>Mate</translation>
    </message>
    <message>
        <source>corvelColorBalance</source>
        <translatorcomment>Forms.</translatorcomment>
        <translation>Balance des couleurs</translation>
    </message>
    <message>
        <source>corvelTone</source>
        <translation>Tonalité</translation>
    </message>
    <message>
        <source>corvelDefaults</source>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
    <message>
        <source>corvelRedValue</source>
        <translation>Valeur du rouge</translation>
    </message>
    <message>
        <source>corvelGreenValue</source>
        <translation>Valeur du vert</translation>
    </message>
    <message>
        <source>corvelBlueValue</source>
        <translation>Valeur du bleu</translation>
    </message>
    <message>
        <source>corvelBrightnessValue</source>
        <translation>Valeur de la luminosité</translation>
    </message>
    <message>
        <source>corvelContrastValue</source>
        <translation>Valeur du contraste</translation>
    </message>
    <message>
        <source>corvelSaturationValue</source>
        <translation>Valeur de la saturation</translation>
    </message>
    <message>
        <source>corvelGammaValue</source>
        <translation>Valeur du gamma</translation>
    </message>
    <message>
        <source>corvelRadiusValue</source>
        <translation>Valeur du rayon de netteté</translation>
    </message>
    <message>
        <source>corvelIntensityValue</source>
        <translation>Valeur de l’intensité de netteté</translation>
    </message>
    <message>
        <source>corvelFinishOfPrinterPanel</source>
        <translatorcomment>Below the preview of the print.</translatorcomment>
        <translation>La finition est affichée brillante : les réglages du panneau de l’imprimante s’appliquent.</translation>
    </message>
    <message>
        <source>pdekitRange</source>
        <translatorcomment>The range of a number, from its least (%1) to its greatest (%2).</translatorcomment>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>pdekitOutOfRange</source>
        <translation>Saisissez un nombre de %1 à %2.</translation>
    </message>
</context>
</TS>
