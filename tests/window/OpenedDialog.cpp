// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "OpenedDialog.h"

#include "SystemLog.h"
#include "ViewTags.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QTranslator>
#include <QtWidgets/QTabWidget>

namespace testing_support {

void WindowTest::init()
{
    feedback_ = std::make_shared<RecordingFeedback>();
    pdekit::Feedback::install(feedback_);
    pdekit::setSystemLogSink([](const QString &) {});
    config_ = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(config_->path()));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(config_->filePath(u"cache"_s)));
    for (const char *name : {"LPDEST", "PRINTER", "CUPS_SERVERROOT"})
        qunsetenv(name);
    if (hasModes_) {
        QFETCH_GLOBAL(PanelMode, mode);
        mode_ = mode;
    }
}

void WindowTest::addModes()
{
    hasModes_ = true;
    QTest::addColumn<PanelMode>("mode");
    QTest::newRow("constraint") << PanelMode::Constraint;
    QTest::newRow("settings") << PanelMode::Settings;
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

PrintDialogSetup setupForPrinter(PanelMode mode, const std::optional<QString> &printer)
{
    PrintDialogSetup setup = setupFor(mode);
    setup.ppdFile = std::nullopt;
    setup.printer = printer;
    return setup;
}

bool speak(QTranslator &translator, const QString &language)
{
    QLocale::setDefault(QLocale(language));
    return translator.load(
               u"%1/corvel-print_%2.qm"_s.arg(QStringLiteral(CORVEL_TRANSLATIONS_DIR), language)) &&
           QCoreApplication::installTranslator(&translator);
}

QRect inWindow(const QWidget *widget)
{
    return {widget->mapTo(widget->window(), QPoint()), widget->size()};
}

bool isWhollySeen(const QWidget *widget)
{
    return widget->isVisible() && widget->visibleRegion().boundingRect() == widget->rect();
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

QString OpenedDialog::fieldTexts(const QList<int> &tags) const
{
    QStringList texts;
    for (const int tag : tags)
        texts += fieldText(tag);
    return texts.join(u' ');
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

QComboBox *OpenedDialog::chooseLast(const QString &name) const
{
    auto *box = find<QComboBox>(name);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_End);
    return box;
}

void OpenedDialog::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : dialog.get(), key, modifiers);
}

bool OpenedDialog::prints() const
{
    click(u"print"_s);
    return QTest::qWaitFor([this] { return hasPrinted(); });
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

QString OpenedDialog::printed(const QString &keys) const
{
    QStringList choices;
    for (const QString &key : keys.split(u' '))
        choices += options()[key].toString();
    return choices.join(u' ');
}

} // namespace testing_support
