#!/usr/bin/env python3
# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""Writes the PPDs of the Corvel photo printers, or one large PPD for measurements.

    makePpd.py FOLDER                    FOLDER/Corvel9031.ppd and FOLDER/Corvel9045.ppd
    makePpd.py FOLDER --choices 10000    FOLDER/Bench10000.ppd, with about that many choices
    makePpd.py FOLDER --options 1000     FOLDER/BenchOptions1000.ppd, with that many options more

What the printers can do stands in the tables below. A tuple of five texts is in the order of LANGUAGES.
"""

import argparse
import pathlib
import typing

LANGUAGES = ("en", "de", "fr", "es", "ja")
BUNDLE = "Corvel9031.bundle"
MOST_OPTIONS = 2000
LONG_RANGE = 10  # choices
BENCH_CHOICES_PER_OPTION = 40


def same(text):
    """A text that reads alike in every language."""
    return (text,) * len(LANGUAGES)


class Model(typing.NamedTuple):
    file: str
    name: str
    pcFile: str


class PageSize(typing.NamedTuple):
    keyword: str
    width: int  # points
    height: int
    texts: tuple


class Choice(typing.NamedTuple):
    keyword: str
    texts: tuple
    code: str = ""


class Option(typing.NamedTuple):
    keyword: str
    default: str
    texts: tuple
    choices: list
    ui: str = "PickOne"


class Group(typing.NamedTuple):
    keyword: str
    texts: tuple
    options: list


def numbers(first, last, step=1, decimals=0):
    """The choices first, first + step, ... last, counted in units of the last decimal."""
    return [Choice(text, same(text))
            for text in (f"{n / 10 ** decimals:.{decimals}f}" for n in range(first, last + 1, step))]


def setPage(entries):
    return f"<<{entries}>>setpagedevice"


MODELS = (
    Model("Corvel9031.ppd", "Corvel K9031", "CRVL9031.PPD"),
    Model("Corvel9045.ppd", "Corvel K9045", "CRVL9045.PPD"),
)

DEFAULT_SIZE = "4x6.Fullbleed"
BORDER = 9  # points left white on each edge of a print with a border
SIZES = (
    PageSize("4x6", 288, 432, ("4 x 6 in", "10 × 15 cm", "10 × 15 cm", "10 × 15 cm", "KG判 (102 × 152 mm)")),
    PageSize("5x7", 360, 504, ("5 x 7 in", "13 × 18 cm", "13 × 18 cm", "13 × 18 cm", "2L判 (127 × 178 mm)")),
    PageSize("6x8", 432, 576, ("6 x 8 in", "15 × 20 cm", "15 × 20 cm", "15 × 20 cm", "6×8判 (152 × 203 mm)")),
    PageSize("8x10", 576, 720, ("8 x 10 in", "20 × 25 cm", "20 × 25 cm", "20 × 25 cm", "六切 (203 × 254 mm)")),
)
BORDERLESS_TEXTS = ("borderless", "randlos", "sans bordure", "sin bordes", "ふちなし")
BORDERED_TEXTS = ("with border", "mit Rand", "avec bordure", "con bordes", "ふちあり")
SIZE_TEXTS = ("Paper Size", "Papierformat", "Format du papier", "Tamaño de papel", "用紙サイズ")

ON_OFF = [
    Choice("True", ("On", "Ein", "Activé", "Activado", "オン")),
    Choice("False", ("Off", "Aus", "Désactivé", "Desactivado", "オフ")),
]
LEVELS = numbers(-25, 25)

GROUPS = (
    Group("General", ("General", "Allgemein", "Général", "General", "一般"), [
        Option("Resolution", "300x300dpi", ("Resolution", "Auflösung", "Résolution", "Resolución", "解像度"), [
            Choice("300x300dpi", ("300 x 300 dpi", "300 × 300 dpi", "300 × 300 ppp", "300 × 300 ppp",
                                  "300 × 300 dpi"), setPage("/HWResolution[300 300]")),
            Choice("300x600dpi", ("300 x 600 dpi", "300 × 600 dpi", "300 × 600 ppp", "300 × 600 ppp",
                                  "300 × 600 dpi"), setPage("/HWResolution[300 600]")),
        ]),
    ]),
    Group("ColorAdjustments", ("Color Adjustments", "Farbanpassung", "Réglage des couleurs", "Ajustes de color",
                               "色調整"), [
        Option("AdjustmentsEnabled", "True", ("Adjust colors", "Farben anpassen", "Régler les couleurs",
                                              "Ajustar los colores", "色を調整する"), ON_OFF, "Boolean"),
        Option("Red", "0", ("Red", "Rot", "Rouge", "Rojo", "赤"), LEVELS),
        Option("Green", "0", ("Green", "Grün", "Vert", "Verde", "緑"), LEVELS),
        Option("Blue", "0", ("Blue", "Blau", "Bleu", "Azul", "青"), LEVELS),
        Option("Brightness", "0", ("Brightness", "Helligkeit", "Luminosité", "Brillo", "明るさ"), LEVELS),
        Option("Contrast", "0", ("Contrast", "Kontrast", "Contraste", "Contraste", "コントラスト"), LEVELS),
        Option("Saturation", "0", ("Saturation", "Sättigung", "Saturation", "Saturación", "彩度"), LEVELS),
        Option("Gamma", "0", ("Gamma", "Gamma", "Gamma", "Gamma", "ガンマ"), LEVELS),
    ]),
    Group("Sharpness", ("Sharpness", "Schärfe", "Netteté", "Nitidez", "シャープネス"), [
        Option("SharpnessEnabled", "True", ("Sharpen photo", "Foto schärfen", "Accentuer la netteté",
                                            "Mejorar la nitidez", "シャープネスをかける"), ON_OFF, "Boolean"),
        Option("SharpnessRadius", "1", ("Sharpness Radius", "Schärferadius", "Rayon de netteté",
                                        "Radio de nitidez", "シャープネスの半径"), numbers(0, 3)),
        Option("SharpnessIntensity", "1.00", ("Sharpness Intensity", "Schärfeintensität", "Intensité de netteté",
                                              "Intensidad de nitidez", "シャープネスの強さ"),
               numbers(0, 300, decimals=2)),
    ]),
    Group("PrintFinish", ("Print Quality and Finish", "Druckqualität und Oberfläche", "Qualité et finition",
                          "Calidad y acabado", "印刷品質と仕上げ"), [
        Option("UsePrinterPanel", "False", ("Use settings from printer panel",
                                            "Einstellungen am Drucker verwenden",
                                            "Utiliser les réglages de l’imprimante",
                                            "Usar los ajustes de la impresora",
                                            "プリンター本体の設定を使う"), ON_OFF, "Boolean"),
        Option("Quality", "Standard", ("Print Quality", "Druckqualität", "Qualité d’impression",
                                       "Calidad de impresión", "印刷品質"), [
            Choice("Standard", ("Standard", "Standard", "Standard", "Estándar", "標準")),
            Choice("Fine", ("Fine", "Fein", "Fine", "Fina", "高画質")),
        ]),
        Option("Overcoat", "Glossy", ("Surface Finish", "Oberfläche", "Finition", "Acabado", "表面仕上げ"), [
            Choice("Glossy", ("Glossy", "Glänzend", "Brillante", "Brillante", "光沢")),
            Choice("Matte", ("Matte", "Matt", "Mate", "Mate", "マット")),
        ]),
        Option("MatteValue", "0", ("Matte Level", "Mattierungsgrad", "Intensité du mat", "Intensidad del mate",
                                   "マットの強さ"), LEVELS),
    ]),
)

# (option, choice, option, choice) that cannot be printed together.
CONSTRAINTS = (
    ("Overcoat", "Matte", "Quality", "Standard"),
)


def header(model):
    """The lines before the options, in the order in which PPD readers expect them.

    The bundle is named without its folder, which differs from system to system.

    The encoding is that of the English texts, which are plain ASCII; with *cupsLanguages it has to be ISOLatin1, and
    the translations are UTF-8 all the same.
    """
    return f'''*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "{model.pcFile}"
*Product: "({model.name})"
*Manufacturer: "Corvel"
*ModelName: "{model.name}"
*ShortNickName: "{model.name}"
*NickName: "{model.name} Photo Printer"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*Throughput: "4"
*LandscapeOrientation: Plus90
*TTRasterizer: Type42
*1284DeviceID: "MFG:Corvel;MDL:{model.name.split()[-1]};CLS:PRINTER;"
*cupsVersion: 2.4
*cupsLanguages: "{' '.join(LANGUAGES[1:])}"
*cupsFilter: "image/jpeg 0 -"
*cupsFilter: "application/pdf 0 -"
*APDialogExtension: "{BUNDLE}"
'''.splitlines()


def translations(keyword, texts, choices):
    """The lines *de.Translation and *de.Option of every language but the first; numbers need no translation."""
    for index, language in enumerate(LANGUAGES[1:], start=1):
        yield f'*{language}.Translation {keyword}/{texts[index]}: ""'
        for choice in choices:
            if choice.texts != same(choice.keyword):
                yield f'*{language}.{keyword} {choice.keyword}/{choice.texts[index]}: ""'


def optionLines(option, order):
    yield f"*OpenUI *{option.keyword}/{option.texts[0]}: {option.ui}"
    yield f"*OrderDependency: {order} AnySetup *{option.keyword}"
    yield f"*Default{option.keyword}: {option.default}"
    for choice in option.choices:
        yield f'*{option.keyword} {choice.keyword}/{choice.texts[0]}: "{choice.code}"'
    yield f"*CloseUI: *{option.keyword}"
    yield from translations(option.keyword, option.texts, option.choices)


def pageVariants():
    """Every page size twice, (choice keyword, size, border in points, texts), the one without a border first."""
    for size in SIZES:
        for suffix, border, ending in ((".Fullbleed", 0, BORDERLESS_TEXTS), ("", BORDER, BORDERED_TEXTS)):
            yield size.keyword + suffix, size, border, tuple(map(", ".join, zip(size.texts, ending)))


def pageLines():
    choices = [Choice(keyword, texts, setPage(f"/PageSize[{size.width} {size.height}]/ImagingBBox null"))
               for keyword, size, _, texts in pageVariants()]
    for keyword in ("PageSize", "PageRegion"):
        yield from optionLines(Option(keyword, DEFAULT_SIZE, SIZE_TEXTS, choices), 10)
    yield f"*DefaultImageableArea: {DEFAULT_SIZE}"
    for keyword, size, border, texts in pageVariants():
        area = f"{border} {border} {size.width - border} {size.height - border}"
        yield f'*ImageableArea {keyword}/{texts[0]}: "{area}"'
    yield f"*DefaultPaperDimension: {DEFAULT_SIZE}"
    for keyword, size, _, texts in pageVariants():
        yield f'*PaperDimension {keyword}/{texts[0]}: "{size.width} {size.height}"'
    yield "*VariablePaperSize: False"


def groupLines(group, extraLines=()):
    yield f"*OpenGroup: {group.keyword}/{group.texts[0]}"
    yield from extraLines
    for option in group.options:
        yield from optionLines(option, 20)
    yield f"*CloseGroup: {group.keyword}"
    yield from translations(group.keyword, group.texts, ())


def ppdLines(model, groups):
    yield from header(model)
    for option, choice, otherOption, otherChoice in CONSTRAINTS:
        yield f"*UIConstraints: *{option} {choice} *{otherOption} {otherChoice}"
        yield f"*UIConstraints: *{otherOption} {otherChoice} *{option} {choice}"
    for group in groups:
        yield from groupLines(group, pageLines() if group.keyword == "General" else ())
    yield "*DefaultFont: Courier"
    yield '*Font Courier: Standard "(002.004S)" Standard ROM'
    yield f"*% End of {model.pcFile}"


def choiceCount(groups):
    return sum(len(option.choices) for group in groups for option in group.options) + 4 * len(SIZES)


def thinnedGroups(wanted):
    """The printer's options with fewer steps in their long ranges, about `wanted` choices in all."""
    long = [option for group in GROUPS for option in group.options if len(option.choices) > LONG_RANGE]
    excess = choiceCount(GROUPS) - wanted
    share = max(1 - excess / sum(len(option.choices) for option in long), 0)

    def thinned(option):
        if option not in long:
            return option
        every = -(-len(option.choices) // max(2, int(len(option.choices) * share)))
        return option._replace(choices=[choice for n, choice in enumerate(option.choices)
                                        if n % every == 0 or choice.keyword == option.default])

    return [group._replace(options=[thinned(option) for option in group.options]) for group in GROUPS]


def madeUpGroup(count, choices):
    return Group("Bench", same("Bench"), [
        Option(f"Bench{n:04}", "Choice0", same(f"Bench option {n}"),
               [Choice(f"Choice{c}", same(f"Choice{c}")) for c in range(choices)])
        for n in range(1, count + 1)])


def benchGroup(wanted):
    """A group of made-up options that brings the number of all choices to what is wanted, or just above."""
    missing = wanted - choiceCount(GROUPS)
    room = MOST_OPTIONS - sum(len(group.options) for group in GROUPS) - 2  # PageSize and PageRegion
    count = min(-(-missing // BENCH_CHOICES_PER_OPTION), room)
    perOption = -(-missing // count) if count else 0
    return madeUpGroup(count, perOption)


def benchGroups(wanted):
    return thinnedGroups(wanted) if wanted < choiceCount(GROUPS) else (*GROUPS, benchGroup(wanted))


def write(path, lines):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text("\n".join(lines) + "\n", encoding="utf-8", newline="\n")


def main():
    parser = argparse.ArgumentParser(description="Writes the PPDs of the Corvel photo printers.")
    parser.add_argument("folder", type=pathlib.Path, help="where the PPDs are written")
    parser.add_argument("--choices", type=int, metavar="N",
                        help="write one PPD with about N choices instead")
    parser.add_argument("--options", type=int, metavar="N",
                        help="write one PPD with N options more than the printer's instead")
    arguments = parser.parse_args()
    if arguments.options is not None:
        group = madeUpGroup(arguments.options, BENCH_CHOICES_PER_OPTION)
        write(arguments.folder / f"BenchOptions{arguments.options}.ppd", ppdLines(MODELS[0], (*GROUPS, group)))
        return
    if arguments.choices is not None:
        lines = ppdLines(MODELS[0], benchGroups(arguments.choices))
        write(arguments.folder / f"Bench{arguments.choices}.ppd", lines)
        return
    for model in MODELS:
        write(arguments.folder / model.file, ppdLines(model, GROUPS))


if __name__ == "__main__":
    try:
        main()
    except OSError as error:
        raise SystemExit(f"The PPD could not be written: {error}.") from error
