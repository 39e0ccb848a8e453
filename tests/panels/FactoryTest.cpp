// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Bundle.h"
#include "PanelHarness.h"
#include "PrintDialogPlugin.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtCore/QFile>
#include <QtCore/QPluginLoader>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <filesystem>

namespace {

const QString panelsType = QStringLiteral("BDB091F4-E57F-11D3-B5CC-0050E4603277");
const QString sharpnessLine = QStringLiteral("corvelPDE wants to know nibName for corvelSharpness...");
const QString colorLine = QStringLiteral("corvelPDE Wants to nibName for corvelColorAdjust???\n\n");
const QString laminationLine = QStringLiteral("Failed to load nib named corvelMatte");

/// Requests for a PPD, of which one fails.
int requests = 0;
int failingRequest = 0;

class CountingSession : public FakeSession
{
public:
    pdekit::Status GetPPDRefFromSession(ppd_file_s **place) override
    {
        const pdekit::Status status = FakeSession::GetPPDRefFromSession(place);
        return ++requests != failingRequest ? status : -1;
    }
};

class CountingCallback : public ConstraintCallback
{
public:
    ppd_file_s *ppdFile() override { return ++requests != failingRequest ? ppd : nullptr; }
};

QString builtBundle()
{
    return qEnvironmentVariable("CORVEL_PDE_PATH") + QStringLiteral("/Corvel9031.bundle");
}

pdekit::PrintDialogPlugin *pluginOf(const QString &path)
{
    const auto bundle = pdekit::Bundle::open(path);
    QPluginLoader loader(bundle ? bundle->executablePath() : QString());
    auto *plugin = qobject_cast<pdekit::PrintDialogPlugin *>(loader.instance());
    if (!plugin)
        qFatal("%s: %s", qPrintable(path), qPrintable(loader.errorString()));
    return plugin;
}

pdekit::PanelList panelsOf(const QString &path, const pdekit::HostInfo &hostInfo)
{
    auto panels = pluginOf(path)->PDEPanelsForTypeWithHostInfo(panelsType, hostInfo);
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
class FactoryTest : public ModesTest
{
    Q_OBJECT

private Q_SLOTS:
    void order()
    {
        PanelHarness dialog(mode_);
        const auto panels = panelsOf(builtBundle(), dialog.callback);
        QCOMPARE(kindsOf(panels), text("coloradjust sharpness matte"));
        // Each has loaded its form when it was made, or does so only now. The lamination panel says nothing.
        QCOMPARE(dialog.log, dialog.constraints ? QStringList() : QStringList({sharpnessLine, colorLine}));
        for (const pdekit::PanelPointer &panel : panels) {
            const QWidget *view = panel->panelView();
            QVERIFY(view);
            QCOMPARE(panel->panelView(), view);
        }
        if (dialog.constraints)
            QCOMPARE(dialog.log, QStringList({colorLine, sharpnessLine}));
    }

    void missingPanelEndsTheList_data()
    {
        addRows<int, QString>({
            {"the first made is the last offered", 1, text("coloradjust sharpness")},
            {"the second", 2, text("coloradjust")},
            {"the last made is the first offered", 3, {}},
        });
    }

    void missingPanelEndsTheList()
    {
        const auto [failing, kinds] = row<int, QString>();
        PanelHarness dialog(mode_);
        CountingSession session;
        session.ppd = dialog.session.ppd;
        dialog.callback->session = &session;
        auto counting = std::make_shared<CountingCallback>();
        counting->ppd = dialog.callback->ppd;
        requests = 0;
        failingRequest = failing;
        const pdekit::HostInfo hostInfo = dialog.constraints ? counting : dialog.callback;
        QCOMPARE(kindsOf(panelsOf(builtBundle(), hostInfo)), kinds);
        QCOMPARE(requests, 3);             // all were tried
        QCOMPARE(hostInfo.use_count(), 2); // none was kept
    }

    void missingForm()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(text("Corvel9031.bundle"));
        std::filesystem::copy(builtBundle().toStdString(), path.toStdString(),
                              std::filesystem::copy_options::recursive);
        QVERIFY(QFile::remove(path + text("/Contents/Resources/corvelMatte.ui")));
        PanelHarness dialog(mode_);
        dialog.printer.description = QUrl(text("ppd:x"));
        dialog.printer.data = "K9031"; // whose controls would be retired
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

    void entry()
    {
        PanelHarness dialog(Mode::Constraint);
        pdekit::PrintDialogPlugin *plugin = pluginOf(builtBundle());
        QVERIFY(plugin->initWithBundle(*pdekit::Bundle::open(builtBundle())));
        const QTemporaryDir folder;
        QVERIFY(
            !plugin->initWithBundle(emptyBundle(folder.path(), "org.corvel.printing.corvel9031").value()));
        QCOMPARE(dialog.log,
                 QStringList({text("INIT: loading bundle with id \"org.corvel.printing.Corvel9031\""),
                              text("ERROR: bad bundle id \"org.corvel.printing.corvel9031\" not equal to "
                                   "\"org.corvel.printing.Corvel9031\"")}));
        for (const QString &type : {panelsType.toLower(), QString()})
            QVERIFY(!plugin->PDEPanelsForTypeWithHostInfo(type, dialog.callback));
        QCOMPARE(dialog.log.size(), 2);
    }
};

CORVEL_WIDGETS_TEST(FactoryTest)
#include "FactoryTest.moc"
