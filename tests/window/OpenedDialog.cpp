// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OpenedDialog.h"

#include "ViewTags.h"

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTabWidget>

using namespace printdialog;
using namespace Qt::StringLiterals;

namespace testing_support {

bool RecordingFeedback::openHelpBook(const pdekit::Bundle & /*bundle*/, const QString &name)
{
    helpBooks << name;
    return opensHelp;
}

PrintDialogSetup setupFor(PanelMode mode)
{
    const auto photo = Photo::open(QStringLiteral(CORVEL_SAMPLE_PHOTO));
    if (!photo)
        qFatal("%s", qPrintable(photo.failure().text));
    PrintDialogSetup setup;
    setup.photos = {*photo};
    setup.mode = mode;
    setup.ppdFile = QStringLiteral(CORVEL_SIBLING_PPD);
    return setup;
}

OpenedDialog::OpenedDialog(PrintDialogSetup setup)
{
    setup.outputFolder = folder.filePath(u"out"_s);
    dialog = std::make_unique<PrintDialog>(setup);
    dialog->show();
    dialog->activateWindow();
    if (!QTest::qWaitForWindowActive(dialog.get()))
        qFatal("the dialog did not come up");
}

QWidget *OpenedDialog::control(int tag) const
{
    return pdekit::viewWithTag(find<QTabWidget>(u"panels"_s)->currentWidget(), tag);
}

QString OpenedDialog::fieldText(int tag) const
{
    const auto *field = qobject_cast<QLineEdit *>(control(tag));
    return field ? field->text() : QString();
}

void OpenedDialog::type(int tag, const QString &text) const
{
    auto *field = qobject_cast<QLineEdit *>(control(tag));
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text);
}

void OpenedDialog::click(const QString &name) const
{
    QTest::mouseClick(find<QAbstractButton>(name), Qt::LeftButton, {}, {8, 10});
}

bool OpenedDialog::hasPrinted() const
{
    return QFile::exists(folder.filePath(u"out/sample.ticket.json"_s));
}

QJsonObject OpenedDialog::options() const
{
    QFile ticket(folder.filePath(u"out/sample.ticket.json"_s));
    return ticket.open(QIODevice::ReadOnly)
               ? QJsonDocument::fromJson(ticket.readAll()).object()[u"options"_s].toObject()
               : QJsonObject();
}

} // namespace testing_support
