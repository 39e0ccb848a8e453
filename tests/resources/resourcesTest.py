# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""resourcesTest.py CLASS: the texts, PPDs and help pages in resources. The environment has CORVEL_SOURCE_DIR,
CORVEL_PRINT_PROGRAM, CORVEL_LUPDATE and CORVEL_PPDS."""

import itertools
import os
import re
import shutil
import struct
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from collections import namedtuple
from pathlib import Path

SOURCE = Path(os.environ["CORVEL_SOURCE_DIR"])
PPDS = [Path(path) for path in os.environ["CORVEL_PPDS"].split(":")]
BOOKS = ["Corvel9031Help", "program"]
LANGUAGES = ["en", "de", "fr", "es", "ja"]
Entry = namedtuple("Entry", "context source translations finished")


def read_ts(path):
    entries = []
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            forms = message.findall("*/numerusform") if "numerus" in message.attrib else [translation]
            entries.append(Entry(context.findtext("name"), message.findtext("source"),
                                 [form.text or "" for form in forms], "type" not in translation.attrib))
    return entries


def keys_of(entries):
    return sorted({(entry.context, entry.source) for entry in entries})


def program_file(language):
    return SOURCE / f"resources/i18n/corvel-print_{language}.ts"


def panel_entries(language):
    return read_ts(SOURCE / f"resources/strings/Localizable_{language}.ts")


def is_number(text):
    return re.fullmatch(r"[+-]?[0-9.]+", text) is not None


def options_of(ppd):
    """The choices, as pairs of keyword and text, and the default of each option."""
    text = ppd.read_text(encoding="utf-8")
    return {key: (re.findall(rf"^\*{key} ([^/:]+)/?([^:]*):", text, re.M),
                  re.search(rf"^\*Default{key}: *(\S+)", text, re.M)[1])
            for key in re.findall(r"^\*OpenUI \*([^/: ]+)", text, re.M)}


def rows(*columns):
    """Runs a test with each combination of a value of each column, each in a subtest."""
    def with_rows(test):
        def run(self):
            for row in itertools.product(*columns):
                with self.subTest(row):
                    test(self, *row)
        return run
    return with_rows


class TranslationsTest(unittest.TestCase):
    """The program's own texts."""

    @rows(LANGUAGES)
    def test_entries_are_complete(self, language):
        def same(pattern, text, source):
            return [sorted(re.findall(pattern, each)) for each in (text, source)]

        entries = read_ts(program_file(language))
        self.assertTrue(entries)
        for entry in entries:
            self.assertTrue(entry.finished and entry.translations, entry)
            for text in entry.translations:
                self.assertTrue(text, entry)
                self.assertEqual(*same("%[0-9n]", text, entry.source))
                self.assertEqual(*map(len, same(r"&\w", text, entry.source)), entry)
                self.assertEqual(text.endswith("\n"), entry.source.endswith("\n"), entry)
                self.assertFalse(language == "fr" and re.search(" [:;!?»]|« ", text), entry)

    @rows(LANGUAGES)
    def test_holds_every_text_of_the_sources(self, language):
        with tempfile.TemporaryDirectory() as folder:
            copy = shutil.copy(program_file(language), folder)
            plural = ["-pluralonly"] if language == "en" else []
            lupdate = subprocess.run(
                [os.environ["CORVEL_LUPDATE"], *plural, "-silent", "-no-obsolete", "-locations", "none",
                 "printdialog", "app", "portal", "pdekit", "-ts", copy], cwd=SOURCE, stderr=subprocess.PIPE, check=True)
            # It complains about a text whose context it cannot determine: the program would not find the translation.
            self.assertEqual(lupdate.stderr, b"")
            self.assertEqual(keys_of(read_ts(copy)), keys_of(read_ts(program_file(language))))

    @rows(LANGUAGES)
    def test_mnemonics_do_not_clash(self, language):
        letters = []
        for entry in read_ts(program_file(language)):
            if entry.context == "PrintDialog":
                letters += [letter.upper() for letter in re.findall(r"&(\w)", entry.translations[0])]
        self.assertEqual(len(set(letters)), len(letters), letters)
        self.assertEqual(not letters, language == "en")  # its texts are in the form itself

    def test_is_in_the_program(self):
        starts = {"de_AT": "Aufruf: ", "fr_FR": "Utilisation\u202f: ", "es_MX": "Uso: ", "ja_JP": "使い方: ",
                  "is_IS": "Usage: "}  # a language that it lacks
        environment = {key: value for key, value in os.environ.items() if key not in ("LC_ALL", "LANGUAGE")}
        for locale, start in starts.items():
            text = subprocess.run([os.environ["CORVEL_PRINT_PROGRAM"], "--help"], stdout=subprocess.PIPE, check=True,
                                  env=environment | {"LANG": locale + ".UTF-8"}).stdout.decode()
            self.assertEqual(text[:len(start) + 12], start + "corvel-print")


class StringsTableTest(unittest.TestCase):
    """The panels' texts, and the PPDs whose keywords they put into words."""

    keys = {entry.source for entry in panel_entries("en")}

    @rows(LANGUAGES)
    def test_languages_have_the_same_keys(self, language):
        entries = panel_entries(language)
        self.assertEqual(keys_of(entries), keys_of(panel_entries("en")))
        self.assertEqual(len(keys_of(entries)), len(entries))  # none twice
        for entry in entries:
            self.assertTrue(entry.finished and entry.translations[0].strip(), entry)

    def test_forms_have_entries(self):
        for form in (SOURCE / "resources/forms").glob("*.ui"):
            texts = {string.text for string in ElementTree.parse(form).getroot().iter("string")
                     if string.get("notr") != "true" and string.text and not is_number(string.text)}
            self.assertTrue(texts, form)
            self.assertEqual(texts - self.keys, set(), form)

    def test_ppds_have_entries(self):
        for path in PPDS:
            # PageRegion is PageSize under another name; nobody is shown it.
            options = {key: choices for key, (choices, _) in options_of(path).items() if key != "PageRegion"}
            self.assertIn("Overcoat", options)
            words = set(options)
            for key, choices in options.items():
                if key not in ("PageSize", "Resolution"):  # which the PPD names
                    words.update(word for choice in choices if not is_number(choice[0]) for word in choice)
            self.assertEqual(words - self.keys, set(), path)

    def test_ppds_pass_the_checker(self):
        checker = shutil.which("cupstestppd")
        if not checker:
            self.skipTest("There is no cupstestppd; it comes with the package cups-client.")
        for path in PPDS:
            run = subprocess.run([checker, "-v", path], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
            self.assertEqual((run.returncode, re.findall(r"\b(?:FAIL|WARN)\b", run.stdout)), (0, []), run.stdout)

    def test_sibling_is_not_named_like_the_first(self):
        text = PPDS[-1].read_text(encoding="utf-8")
        self.assertIn("K9045", text)
        self.assertNotIn("k9031", text.lower())


class Topic:
    def __init__(self):
        self.anchor = self.heading = ""
        self.facts = []  # the (value, text) pairs of each row of its table


class Page:
    """A page of help as a browser reads it."""

    def __init__(self, path):
        self.anchors, self.links, self.terms, self.pictures, self.topics = [], [], [], [], []
        for element in ElementTree.parse(path).getroot().iter():
            name = element.tag if isinstance(element.tag, str) else ""
            text = " ".join("".join(element.itertext()).split()) if name else ""
            anchor = element.get("name" if name == "a" else "id")
            if name == "html":
                self.language = element.get("lang")
            if element.get("href"):
                self.links.append(element.get("href"))
            if name in ("h2", "h3"):
                self.topics.append(Topic())
                self.topics[-1].heading = text
            if anchor:
                self.anchors.append(anchor)
                if self.topics:
                    self.topics[-1].anchor = anchor
            if name == "img":
                self.pictures.append(element)
            elif name == "b":
                self.terms.append(text)
            elif name == "dd" and self.topics:
                self.topics[-1].facts.append([])
            elif name == "data" and self.topics and self.topics[-1].facts:
                self.topics[-1].facts[-1].append((element.get("value"), text))

    def heading(self, anchor):
        return next((topic.heading for topic in self.topics if topic.anchor == anchor), None)


class HelpTest(unittest.TestCase):
    """The help book of the plug-in, and the program's own help."""

    @staticmethod
    def path(book, language):
        return SOURCE / f"resources/help/{book}/index{'' if language == 'en' else '_' + language}.html"

    @rows(LANGUAGES, BOOKS)
    def test_is_whole(self, language, book):
        path = self.path(book, language)
        page = Page(path)
        self.assertEqual(page.language, language)
        self.assertGreater(len(page.links), 5)
        self.assertEqual(len(set(page.anchors)), len(page.anchors))
        for link in page.links:
            file, _, anchor = link.partition("#")
            self.assertTrue((path.parent / file).exists(), link)
            if anchor:
                self.assertIn(anchor, Page(path.parent / file if file else path).anchors)
        for picture in page.pictures:
            content = (path.parent / picture.get("src")).read_bytes()
            self.assertEqual(struct.unpack(">II", content[16:24]),
                             (int(picture.get("width")), int(picture.get("height"))), picture.get("src"))
            self.assertTrue(content.startswith(b"\x89PNG") and content.endswith(b"IEND\xaeB`\x82"))
            self.assertLess(len(content), 40 * 1024)
            self.assertTrue(picture.get("alt"))
            self.assertIn(f"_{language}.", picture.get("src"))
        self.assertEqual([topic.heading for topic in page.topics if "#" + topic.anchor not in page.links], [])

    @rows(LANGUAGES, BOOKS)
    def test_is_the_same_in_every_language(self, language, book):
        english, translated = (Page(self.path(book, each)) for each in ("en", language))
        self.assertGreater(len(english.anchors), 8)
        self.assertEqual(translated.anchors, english.anchors)
        for part in ("pictures", "links", "terms"):
            self.assertEqual(len(getattr(translated, part)), len(getattr(english, part)), part)

    # Its range or choices, its default and what it excludes are those of the printer.
    @rows(LANGUAGES)
    def test_explains_every_option(self, language):
        options = options_of(PPDS[1])
        constraints = re.findall(r"^\*UIConstraints: \*(\S+) (\S+ )\*(\S+ \S+)$",
                                 PPDS[1].read_text(encoding="utf-8"), re.M)
        for of_no_panel in ("PageSize", "PageRegion", "Resolution"):
            del options[of_no_panel]
        self.assertEqual(len(options), 15)
        page = Page(self.path("Corvel9031Help", language))
        texts = {entry.source: entry.translations[0] for entry in panel_entries(language)}
        for anchor, key in (("coloradjust", "corvelColorAdjustments"), ("sharpness", "corvelSharpness"),
                            ("matte", "corvelOptions"), ("defaults", "corvelDefaults")):
            self.assertEqual(page.heading(anchor), texts[key])
        for option, (choices, default) in options.items():
            self.assertEqual(page.heading(option), texts[option])
            facts = next(topic.facts for topic in page.topics if topic.anchor == option)
            keywords = [keyword for keyword, _ in choices]
            if is_number(keywords[0]):
                keywords = [keywords[0], keywords[-1]]
            excluded = [choice + other for key, choice, other in constraints if key == option]
            self.assertEqual([[value for value, _ in row] for row in facts], [keywords, [default], excluded])
            for value, text in facts[0] + facts[1]:
                self.assertEqual(text, texts.get(value, value).replace("-", "\u2212"))

    # Whatever the English help sets in bold and the program shows is in the other languages' help as the program
    # shows it there.
    @rows(LANGUAGES)
    def test_calls_things_as_the_program_does(self, language):
        def plain(text):  # without what underlines a letter of it or says that more follows
            return re.sub(r"\(&\w\)|&|…", "", text, flags=re.A)

        terms = Page(self.path("program", language)).terms
        known = 0
        for term in Page(self.path("program", "en")).terms:
            translations = [term] if language == "en" else [
                plain(entry.translations[0]) for entry in read_ts(program_file(language))
                if plain(entry.source) == term]
            self.assertTrue(not translations or set(translations) & set(terms), term)
            known += bool(translations)
        self.assertGreater(known, 12)


if __name__ == "__main__":
    unittest.main()
