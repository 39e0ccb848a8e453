// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Bundle.h"
#include "PanelHarness.h"
#include "PrintDialogPlugin.h"

#include <QtCore/QFile>
#include <QtCore/QPluginLoader>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <filesystem>

namespace {

const QString sharpnessLine = QStringLiteral("corvelPDE wants to know nibName for corvelSharpness...");
const QString colorLine = QStringLiteral("corvelPDE Wants to nibName for corvelColorAdjust???\n\n");
const QString laminationLine = QStringLiteral("Failed to load nib named corvelMatte");

/// Both ways to a PPD, of which one request fails.
struct Requests
{
    bool succeeds() { return ++count != failing; }
    int count = 0;
    int failing = 0;
};

class CountingSession : public FakeSession
{
public:
    pdekit::Status GetPPDRefFromSession(ppd_file_s **place) override
    {
        const pdekit::Status status = FakeSession::GetPPDRefFromSession(place);
        return requests.succeeds() ? status : -1;
    }
    Requests requests;
};

class CountingCallback : public ConstraintCallback
{
public:
    ppd_file_s *ppdFile() override { return requests.succeeds() ? ppd : nullptr; }
    Requests requests;
};

QString builtBundle()
{
    return qEnvironmentVariable("CORVEL_PDE_PATH") + QStringLiteral("/Corvel9031.bundle");
}

/// The panels of the bundle at `path`.
pdekit::PanelList panelsOf(const QString &path, const pdekit::HostInfo &hostInfo)
{
    const auto bundle = pdekit::Bundle::open(path);
    QPluginLoader loader(bundle ? bundle->executablePath() : QString());
    auto *plugin = qobject_cast<pdekit::PrintDialogPlugin *>(loader.instance());
    if (!plugin)
        qFatal("%s: %s", qPrintable(path), qPrintable(loader.errorString()));
    auto panels =
        plugin->PDEPanelsForTypeWithHostInfo(QString::fromLatin1(pdekit::PrinterPanelsType), hostInfo);
    return panels ? std::move(*panels) : pdekit::PanelList();
}

QString kindsOf(const pdekit::PanelList &panels)
{
    QStringList kinds;
    for (const pdekit::PanelPointer &panel : panels)
        kinds << panel->panelKind().value_or(QString()).section(u'.', -1);
    return kinds.join(u' ');
}

} // namespace

/// The panels that the plug-in makes for a dialog.
class FactoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void order();
    void missingPanelEndsTheList_data();
    void missingPanelEndsTheList();
    void missingForm();
};

void FactoryTest::initTestCase_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::newRow("constraint handling") << Mode::Constraint;
    QTest::newRow("print settings") << Mode::Settings;
}

void FactoryTest::order()
{
    QFETCH_GLOBAL(Mode, mode);
    PanelHarness dialog(mode);
    const auto panels = panelsOf(builtBundle(), dialog.callback);
    QCOMPARE(kindsOf(panels), text("coloradjust sharpness matte"));
    // Each has loaded its form when it was made, or does so only now. The lamination panel says nothing.
    QCOMPARE(dialog.log, dialog.constraints ? QStringList() : QStringList({sharpnessLine, colorLine}));
    for (const pdekit::PanelPointer &panel : panels)
        QVERIFY(panel->panelView());
    if (dialog.constraints)
        QCOMPARE(dialog.log, QStringList({colorLine, sharpnessLine}));
}

void FactoryTest::missingPanelEndsTheList_data()
{
    QTest::addColumn<int>("failing");
    QTest::addColumn<QString>("kinds");
    QTest::newRow("the first made is the last offered") << 1 << text("coloradjust sharpness");
    QTest::newRow("the second") << 2 << text("coloradjust");
    QTest::newRow("the last made is the first offered") << 3 << QString();
}

void FactoryTest::missingPanelEndsTheList()
{
    QFETCH_GLOBAL(Mode, mode);
    QFETCH(int, failing);
    QFETCH(QString, kinds);
    PanelHarness dialog(mode);
    CountingSession session;
    session.ppd = dialog.session.ppd;
    session.requests.failing = failing;
    dialog.callback->session = &session;
    auto counting = std::make_shared<CountingCallback>();
    counting->ppd = dialog.callback->ppd;
    counting->requests.failing = failing;
    const pdekit::HostInfo hostInfo = dialog.constraints ? counting : dialog.callback;
    QCOMPARE(kindsOf(panelsOf(builtBundle(), hostInfo)), kinds);
    QCOMPARE(dialog.constraints ? counting->requests.count : session.requests.count, 3); // all were tried
    QCOMPARE(hostInfo.use_count(), 2);                                                   // none was kept
}

void FactoryTest::missingForm()
{
    QFETCH_GLOBAL(Mode, mode);
    QTemporaryDir folder;
    const QString path = folder.filePath(text("Corvel9031.bundle"));
    std::filesystem::copy(builtBundle().toStdString(), path.toStdString(),
                          std::filesystem::copy_options::recursive);
    QVERIFY(QFile::remove(path + text("/Contents/Resources/corvelMatte.ui")));
    PanelHarness dialog(mode);
    const auto panels = panelsOf(path, dialog.callback);
    QCOMPARE(kindsOf(panels), text("coloradjust sharpness matte"));
    if (!dialog.constraints) {
        QCOMPARE(dialog.log, QStringList({laminationLine, sharpnessLine, colorLine}));
        dialog.log.clear();
    }
    QVERIFY(!panels.at(2)->panelView()); // tries again each time
    QCOMPARE(dialog.log, QStringList(laminationLine));
    QVERIFY(panels.at(2)->restoreValuesAndReturnError(nullptr));
    panels.at(2)->willShow();
    QVERIFY(panels.at(0)->panelView() && panels.at(1)->panelView());
}

QTEST_MAIN(FactoryTest)
#include "FactoryTest.moc"
