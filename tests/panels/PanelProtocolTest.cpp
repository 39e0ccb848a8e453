// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PanelProtocolTest.h"

#include "LVCorvelMainPDE.h"
#include "PanelHarness.h"
#include "PlatformException.h"
#include "PrintDialogPlugin.h"

#include <QtCore/QFile>
#include <QtCore/QPluginLoader>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cerrno>
#include <csignal>
#include <stdexcept>

namespace {

const QString nibNameLine = QStringLiteral("corvelPDE Wants to nibName for corvelColorAdjust???\n\n");

/// The colour panel with more keys, and with a form that the test picks, or that cannot even be named.
class OddPanel : public LVCorvelMainPDE
{
public:
    Text nibName() override
    {
        if (throws)
            throw std::runtime_error("not the platform's");
        return form;
    }
    QStringList supportedPPDOptionKeys() override { return LVCorvelMainPDE::supportedPPDOptionKeys() + more; }

    static inline Text form;
    static inline bool throws = false;
    static inline QStringList more;
};

} // namespace

void PanelProtocolTest::fixedTables()
{
    PanelHarness dialog(Mode::Constraint);
    auto panel = dialog.make<LVCorvelMainPDE>();
    QCOMPARE(panel->supportedPPDOptionKeys().join(u','),
             text("Brightness,Contrast,Saturation,Gamma,Red,Green,Blue,AdjustmentsEnabled"));
    QStringList keys;
    for (const int tag : {1, 82, 3, 84, 5, 6, 87, 32, 112, 8, 16, 64, 88, -1, 0})
        keys << panel->ppdOptionKeyForTag(tag).value_or(text("-"));
    QCOMPARE(keys.join(u','), text("Red,Green,Blue,Brightness,Contrast,Saturation,Gamma,AdjustmentsEnabled,"
                                   "AdjustmentsEnabled,-,-,-,-,-,-"));
    QCOMPARE(panel->panelKind(), text("org.corvel.printing.Corvel9031.coloradjust"));
    QVERIFY(panel->shouldHide());

    // A panel without tables of its own has none; one with keys by tag has them up to the first gap.
    RKTPPRBasePDEcorvel base;
    QVERIFY(!base.nibName() && !base.panelName() && !base.panelKind() && !base.ppdChoiceForTag(2));
    QVERIFY(base.supportedPPDOptionKeys().isEmpty());
    QCOMPARE(base.tagForStringValue(text("1")), 0);
    class TaggedPanel : public RKTPPRBasePDEcorvel
    {
        Text ppdOptionKeyForTag(int tag) const override
        {
            return tag == 3 ? std::nullopt : Text(text("Key%1").arg(tag));
        }
    } tagged;
    QCOMPARE(tagged.supportedPPDOptionKeys().join(u','), text("Key1,Key2"));
}

void PanelProtocolTest::formIsLoadedWhen()
{
    PanelHarness constraint(Mode::Constraint);
    auto panel = constraint.make<LVCorvelMainPDE>();
    QVERIFY(!panel->PDEView_ && constraint.log.isEmpty());
    const QWidget *view = panel->panelView();
    QVERIFY(view);
    QCOMPARE(panel->panelView(), view);
    QCOMPARE(constraint.log, QStringList(nibNameLine));
    PanelHarness settings(Mode::Settings);
    QVERIFY(settings.make<LVCorvelMainPDE>()->PDEView_);
    QCOMPARE(settings.log, QStringList(nibNameLine));
}

void PanelProtocolTest::noPanelWithoutPpd()
{
    PanelHarness dialog(Mode::Constraint);
    dialog.callback->ppd = nullptr; // the session's PPD does not stand in for the dialog's
    QVERIFY(!dialog.make<LVCorvelMainPDE>());
    QVERIFY(dialog.log.isEmpty());
    PanelHarness settings(Mode::Settings);
    settings.session.ppdStatus = -1; // though a record was written
    QVERIFY(!settings.make<LVCorvelMainPDE>());
    settings.callback->session = nullptr;
    QVERIFY(!settings.make<LVCorvelMainPDE>());
    QVERIFY(!RKTPPRBasePDEcorvel::make<LVCorvelMainPDE>(nullptr));
    QVERIFY(!RKTPPRBasePDEcorvel::make<LVCorvelMainPDE>(std::make_shared<QObject>()));
}

void PanelProtocolTest::formsThatFail()
{
    const auto restore = qScopeGuard([] { OddPanel::throws = false; });
    PanelHarness dialog(Mode::Settings);
    OddPanel::form = std::nullopt;
    QVERIFY(!dialog.make<OddPanel>()->panelView());
    QVERIFY(dialog.log.isEmpty());

    OddPanel::form = text("missing");
    auto panel = dialog.make<OddPanel>();
    QVERIFY(panel);
    QCOMPARE(dialog.log, QStringList(text("Failed to load nib named missing")));
    QVERIFY(panel->restoreValuesAndReturnError(nullptr)); // a panel without a view works
    OddPanel::form = text("corvelPDE");
    QVERIFY(panel->panelView());

    dialog.log.clear();
    OddPanel::form = text("unknownAction");
    panel = dialog.make<OddPanel>();
    QVERIFY(panel);
    QCOMPARE(dialog.log.size(), 1);
    QVERIFY2(dialog.log[0].startsWith(text("caught an exception ")), qPrintable(dialog.log[0]));
    QVERIFY(dialog.log[0].contains(text("fireTheLaser")));
    QVERIFY_THROWS_EXCEPTION(pdekit::PlatformException, panel->panelView());

    OddPanel::throws = true;
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, dialog.make<OddPanel>());
}

void PanelProtocolTest::endOfAPanel()
{
    PanelHarness dialog(Mode::Settings);
    auto panel = dialog.make<LVCorvelMainPDE>();
    dialog.show(*panel);
    dialog.field(81)->setFocus();
    dialog.field(81)->selectAll();
    QTest::keyClick(dialog.field(81), Qt::Key_Minus);
    const QPointer<QWidget> view = dialog.view;
    QCOMPARE(dialog.callback.use_count(), 2);
    panel.reset(); // with a field that is still being edited
    QCOMPARE(dialog.callback.use_count(), 1);
    QVERIFY(!view);

    panel = dialog.make<LVCorvelMainPDE>();
    {
        QWidget parent;
        panel->panelView()->setParent(&parent);
    }
    QVERIFY(!panel->PDEView_);
    QVERIFY(panel->panelView()); // made anew
}

void PanelProtocolTest::summary()
{
    const auto restore = qScopeGuard([] { OddPanel::more.clear(); });
    OddPanel::form = std::nullopt;
    OddPanel::more << text("AllowCUPS11");
    const QByteArray ppd =
        PanelHarness::colorPpd(PanelHarness::ppdOption("AllowCUPS11", "Yes", {"Yes/Why not"}))
            .replace("*DefaultGamma: 0\n", "");
    PanelHarness constraint(Mode::Constraint, ppd);
    auto panel = constraint.make<OddPanel>();
    panel->setChoiceForKey(text("5"), text("Red")); // the mark counts
    auto summary = panel->summaryInfo();
    QCOMPARE(summary->size(), 7); // without Gamma, which has no mark, and AllowCUPS11
    QCOMPARE(summary->value(text("Red")), text("Level 0"));
    QCOMPARE(summary->value(text("Adjust colors")), text("On"));

    PanelHarness settings(Mode::Settings, ppd);
    panel = settings.make<OddPanel>();
    panel->setChoiceForKey(text("False"), text("AdjustmentsEnabled"));
    panel->setChoiceForKey(text("Yes"), text("AllowCUPS11"));
    summary = panel->summaryInfo();
    QCOMPARE(summary->size(), 9);
    QCOMPARE(summary->value(text("AllowCUPS11")), text("Yes"));
    QCOMPARE(summary->value(text("Red"), text("none")), QString()); // listed, though without a choice
    QCOMPARE(summary->value(text("Adjust colors")), text("Off"));
}

void PanelProtocolTest::help()
{
    PanelHarness dialog(Mode::Constraint);
    auto panel = dialog.make<LVCorvelMainPDE>();
    QVERIFY(!panel->shouldShowHelp());
    QCOMPARE(dialog.feedback->helpBooks, QStringList(text("Corvel9031Help")));
    dialog.feedback->opensHelp = false;
    QVERIFY(panel->shouldShowHelp());

    QTemporaryDir folder; // a bundle that names no help book
    QVERIFY(QDir(folder.path()).mkdir(text("Contents")));
    QFile info(folder.filePath(text("Contents/Info.json")));
    QVERIFY(info.open(QIODevice::WriteOnly));
    info.write(R"({"CFBundleIdentifier": "x", "CFBundleExecutable": "x"})");
    info.close();
    panel->pdeBundle_ = pdekit::Bundle::open(folder.path());
    QVERIFY(panel->pdeBundle_);
    QVERIFY(panel->shouldShowHelp());
    QCOMPARE(dialog.feedback->helpBooks.size(), 2);
}

void PanelProtocolTest::brokenPipe()
{
    PanelHarness dialog(Mode::Constraint);
    const auto panel = dialog.make<LVCorvelMainPDE>();
    errno = EDOM;
    raise(SIGPIPE);
    const int errnoAfter = errno;
    QCOMPARE(errnoAfter, EDOM);
    raise(SIGPIPE);
    QVERIFY(dialog.log.isEmpty());
    QTRY_COMPARE(dialog.log, QStringList({text("caught a signal 13\n"), text("caught a signal 13\n")}));
}

void PanelProtocolTest::pluginEntry()
{
    const QString path = qEnvironmentVariable("CORVEL_PDE_PATH") + text("/Corvel9031.bundle");
    const auto bundle = pdekit::Bundle::open(path);
    QVERIFY2(bundle, qPrintable(path));
    QPluginLoader loader(bundle->executablePath());
    auto *plugin = qobject_cast<pdekit::PrintDialogPlugin *>(loader.instance());
    QVERIFY2(plugin, qPrintable(loader.errorString()));
    PanelHarness dialog(Mode::Constraint);
    QVERIFY(plugin->initWithBundle(*bundle));
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(text("Contents")));
    QFile info(folder.filePath(text("Contents/Info.json")));
    QVERIFY(info.open(QIODevice::WriteOnly));
    info.write(R"({"CFBundleIdentifier": "org.corvel.printing.corvel9031", "CFBundleExecutable": "x"})");
    info.close();
    QVERIFY(!plugin->initWithBundle(pdekit::Bundle::open(folder.path()).value()));
    QCOMPARE(dialog.log,
             QStringList({text("INIT: loading bundle with id \"org.corvel.printing.Corvel9031\""),
                          text("ERROR: bad bundle id \"org.corvel.printing.corvel9031\" not equal to "
                               "\"org.corvel.printing.Corvel9031\"")}));

    const QString type = text("BDB091F4-E57F-11D3-B5CC-0050E4603277");
    dialog.log.clear();
    QVERIFY(!plugin->PDEPanelsForTypeWithHostInfo(type.toLower(), dialog.callback));
    QVERIFY(!plugin->PDEPanelsForTypeWithHostInfo(QString(), dialog.callback));
    QVERIFY(dialog.log.isEmpty());
    {
        const auto panels = plugin->PDEPanelsForTypeWithHostInfo(type, dialog.callback);
        QVERIFY(panels && !panels->empty());
        QCOMPARE(panels->front()->panelKind(), bundle->identifier() + text(".coloradjust"));
        QVERIFY(panels->front()->panelView()); // from the plug-in's bundle, not from the test's
    }
    dialog.callback->ppd = nullptr;
    const auto none = plugin->PDEPanelsForTypeWithHostInfo(type, dialog.callback);
    QVERIFY(none && none->empty());
}

QTEST_MAIN(PanelProtocolTest)
