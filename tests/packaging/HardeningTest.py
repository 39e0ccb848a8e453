# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0
"""HardeningTest.py PROGRAM PORTAL PPD_CHECK PDF_PAGES PDF_VIEW PRINTER_LIST SCREEN_PROFILE KIT MODULE IS_FORTIFIED: what
was built, as binutils see it."""

import re
import sys
import unittest

from commands import CommandTest

PROGRAM, PORTAL, PPD_CHECK, PDF_PAGES, PDF_VIEW, PRINTER_LIST, SCREEN_PROFILE, KIT, MODULE, IS_FORTIFIED = sys.argv[1:]


class HardeningTest(CommandTest):
    def exports(self, file):
        """The names that a shared object offers to others: of NAME TYPE ADDRESS SIZE; a C++ name may hold spaces."""
        symbols = self.output_of("nm", "-DC", "--defined-only", "--format=posix", file)
        return sorted(re.sub(r" [A-Za-z]( [0-9a-f]+){1,2} ?$", "", line) for line in symbols.splitlines())

    def test_is_hardened(self):
        programs = PROGRAM, PORTAL, PPD_CHECK, PDF_PAGES, PDF_VIEW, PRINTER_LIST, SCREEN_PROFILE
        for file in *programs, KIT, MODULE:
            with self.subTest(file):
                headers = self.output_of("readelf", "-hdlW", file)
                self.assert_all_in(("BIND_NOW", "GNU_RELRO", " DYN ("), headers)
                self.assertNotIn("TEXTREL", headers)
                self.assertEqual(" PIE" in headers, file in programs)
                self.assertNotRegex(headers, "GNU_STACK.*RWE")
                imports = self.output_of("nm", "-D", "--undefined-only", file)
                self.assertIn("__stack_chk_fail", imports)
                if int(IS_FORTIFIED) and file == PROGRAM:
                    self.assertIn("_chk@GLIBC", imports)

    # A hung bus blocks whoever is connected to it.
    def test_the_dialog_does_not_know_d_bus(self):
        for file in PROGRAM, PPD_CHECK, PDF_PAGES, PDF_VIEW, KIT, MODULE:
            self.assertNotRegex(self.output_of("readelf", "-dW", file), "NEEDED.*DBus")

    # A PDF from elsewhere is read by processes without rights only.
    def test_the_dialog_reads_no_pdf(self):
        for file, readers in (PROGRAM, "Pdf|qpdf|seccomp"), (PORTAL, "Pdf|qpdf"):
            self.assertNotRegex(self.output_of("readelf", "-dW", file), f"NEEDED.*({readers})")

    def test_the_module_exports_its_entry_and_the_record_functions(self):
        self.assertEqual(self.exports(MODULE), [
            "clearVeltaContextData", "destroyVeltaJobContext", "initializeVeltaContext", "qt_plugin_instance",
            "qt_plugin_query_metadata_v2"])

    # What a plug-in links to is there; what the kit keeps to itself is not. Templates of Qt and of the C++ library
    # do not count.
    def test_the_kit_exports_its_interface_only(self):
        names = "\n".join(self.exports(KIT))
        self.assert_all_in((
            "pdekit::Bundle::open", "pdekit::loadForm", "pdekit::systemLog", "vtable for pdekit::KeyValueObject",
            "typeinfo for pdekit::PlatformException", "pdekit::RadioMatrix::staticMetaObject"), names)
        for kept in "DesktopFeedback", "anonymous namespace":
            self.assertNotIn(kept, names)


unittest.main(argv=sys.argv[:1])
