// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PanelHarness.h"

#include "CupsPpd.h"
#include "SystemLog.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QTest>
#include <QtWidgets/QVBoxLayout>

#include <sys/mman.h>
#include <unistd.h>

bool ConstraintCallback::willChangePPDOptionKeyValuePpdChoice(const QString &key, const QString &choice)
{
    offers << key + QLatin1Char('=') + choice;
    if (refused.contains(key))
        return false;
    if (ppdFindChoice(ppdFindOption(ppd, key.toUtf8().constData()), choice.toUtf8().constData()))
        ppdMarkOption(ppd, key.toUtf8().constData(), choice.toUtf8().constData());
    return true;
}

void ModesTest::initTestCase_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::newRow("constraint handling") << Mode::Constraint;
    QTest::newRow("print settings") << Mode::Settings;
}

void ModesTest::init()
{
    QFETCH_GLOBAL(Mode, mode);
    mode_ = mode;
}

std::optional<pdekit::Bundle> emptyBundle(const QString &folder, const QByteArray &identifier)
{
    QFile info(folder + text("/Contents/Info.json"));
    if (!QDir(folder).mkpath(text("Contents")) || !info.open(QIODevice::WriteOnly))
        return std::nullopt;
    info.write(R"({"CFBundleIdentifier": ")" + identifier + R"(", "CFBundleExecutable": "none"})");
    info.close();
    return pdekit::Bundle::open(folder);
}

void PanelHarness::PpdCloser::operator()(ppd_file_s *ppd) const
{
    ppdClose(ppd);
}

PanelHarness::PanelHarness(Mode mode, const QByteArray &ppd)
    : printButton(new QPushButton(QStringLiteral("Print"), &window))
    , feedbackBefore_(pdekit::Feedback::install(feedback))
    , sinkBefore_(pdekit::setSystemLogSink([this](const QString &line) { log << line; }))
{
    const int file = memfd_create("test.ppd", MFD_CLOEXEC);
    if (file < 0 || write(file, ppd.constData(), size_t(ppd.size())) != ppd.size() ||
        lseek(file, 0, SEEK_SET) != 0)
        qFatal("cannot write the test's PPD");
    ppd_.reset(ppdOpenFd(file));
    close(file);
    if (!ppd_)
        qFatal("the test's PPD is broken");
    ppdMarkDefaults(ppd_.get());
    ppdLocalize(ppd_.get());

    if (mode == Mode::Constraint) {
        auto constraintCallback = std::make_shared<ConstraintCallback>();
        constraints = constraintCallback.get();
        callback = constraintCallback;
        callback->ppd = ppd_.get();
    } else {
        callback = std::make_shared<SettingsCallback>();
    }
    session.ppd = ppd_.get();
    callback->session = &session;
    callback->printer = &printer;

    new QVBoxLayout(&window);
    printButton->setDefault(true);
    QObject::connect(printButton, &QPushButton::clicked, &window, [this] { ++printed; });
}

PanelHarness::~PanelHarness()
{
    pdekit::setSystemLogSink(sinkBefore_);
    pdekit::Feedback::install(feedbackBefore_);
}

QByteArray PanelHarness::ppdHead()
{
    return "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n"
           "*LanguageEncoding: UTF-8\n*NickName: \"Test\"\n";
}

QByteArray PanelHarness::ppdOption(const QByteArray &key, const QByteArray &defaultChoice,
                                   const QList<QByteArray> &choices)
{
    QByteArray text = "*OpenUI *" + key + ": PickOne\n*Default" + key + ": " + defaultChoice + "\n";
    for (const QByteArray &choice : choices)
        text += "*" + key + " " + choice + ": \"\"\n";
    return text + "*CloseUI: *" + key + "\n";
}

QByteArray PanelHarness::colorPpd(const QByteArray &more)
{
    QList<QByteArray> levels;
    for (int i = -25; i <= 25; ++i)
        levels << QByteArray::number(i) + "/Level " + QByteArray::number(i);
    QByteArray text = ppdHead();
    for (const char *key : {"Red", "Green", "Blue", "Brightness", "Contrast", "Saturation", "Gamma"})
        text += ppdOption(key, "0", levels);
    return text + ppdOption("AdjustmentsEnabled", "True", {"True/On", "False/Off"}) + more;
}

void PanelHarness::show(RKTPPRBasePDEcorvel &panel)
{
    view = panel.panelView();
    window.layout()->addWidget(view);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    panel.restoreValuesAndReturnError(nullptr);
    panel.willShow();
}

void PanelHarness::type(int tag, const QString &keys) const
{
    field(tag)->setFocus();
    field(tag)->selectAll();
    QTest::keyClicks(field(tag), keys);
}

QString PanelHarness::marked(const QString &key) const
{
    const ppd_choice_t *choice = ppdFindMarkedChoice(ppd_.get(), key.toUtf8().constData());
    return choice ? QString::fromUtf8(choice->choice) : QString();
}

void PanelHarness::mark(const QString &key, const QString &choice)
{
    ppdMarkOption(ppd_.get(), key.toUtf8().constData(), choice.toUtf8().constData());
}
