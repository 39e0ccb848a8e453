// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "OpenedDialog.h"
#include "PdfSamples.h"
#include "PhotoPane.h"
#include "SamplePhotos.h"

namespace testing_support {

/// A dialog with a document of six pages, and what else the setup has.
class DocumentDialog : public OpenedDialog
{
public:
    explicit DocumentDialog(const PrintDialogSetup &setup = setupWith(6))
        : OpenedDialog(setup)
        , pane(dialog->findChild<PhotoPane *>())
    {
        dialog->resize(1100, 900);
        QCoreApplication::processEvents();
    }

    static PrintDialogSetup setupWith(int pages) { return setupWith(pages, u"report.pdf"_s); }
    static PrintDialogSetup setupWith(int pages, const QString &name)
    {
        PrintDialogSetup setup = setupFor(PanelMode::Constraint);
        static QTemporaryDir folder;
        const QString path = folder.filePath(name);
        samples::store(path, pdf_samples::text(pages));
        const auto opened = Photo::openAll(path);
        if (!opened)
            qFatal("%s", qPrintable(opened.failure().text));
        setup.photos = *opened;
        return setup;
    }

    /// The pages on each sheet, from 1 on, "0" a photo; as "1+2 3".
    QString sheets() const
    {
        QStringList sheets;
        for (const LaidSheet &sheet : pane->plan().sheets()) {
            QStringList pages;
            for (const LaidPhoto &laid : sheet.photos)
                pages += QString::number(pane->photos().at(laid.item).photo.page() + 1);
            sheets += pages.join(u'+');
        }
        return sheets.join(u' ');
    }
    void choose(const QString &box, const QString &text) const
    {
        QTest::keyClicks(find<QComboBox>(box), text);
    }
    void typeRanges(const QString &text) const
    {
        choose(u"pages"_s, u"Ranges"_s);
        QTest::keyClicks(find<QLineEdit>(u"pageRanges"_s), text);
    }
    QString note() const { return find<QLabel>(u"planNote"_s)->text(); }
    QString caption() const { return find<QLabel>(u"photoLabel"_s)->text(); }

    PhotoPane *pane;
};

} // namespace testing_support
