// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "LVCorvelLaminationPDE.h"
#include "LVCorvelMainPDE.h"
#include "LVSharpnessCorvelPDE.h"
#include "PanelHarness.h"
#include "PlatformException.h"
#include "TestMain.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cerrno>
#include <csignal>
#include <stdexcept>

// The panels' own handler of this name is seen in its file alone: two that are seen do not link.
extern "C" void catchPIPE(int signal);
extern "C" void catchPIPE(int /*signal*/)
{
}

namespace {

/// The color panel with more keys, and with a form that the test picks, or that cannot even be named.
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

/// The supported keys, then the keys and choices of all tags.
QString tablesOf(RKTPPRBasePDEcorvel &panel)
{
    QString tables = panel.supportedPPDOptionKeys().join(QLatin1Char(' ')) + QLatin1Char(';');
    for (int tag = -1; tag < 300; ++tag) {
        if (const auto key = panel.ppdOptionKeyForTag(tag))
            tables += text(" %1=%2").arg(QString::number(tag), *key);
    }
    tables += QLatin1Char(';');
    for (int tag = -1; tag < 300; ++tag) {
        if (const auto choice = panel.ppdChoiceForTag(tag))
            tables += text(" %1=%2").arg(QString::number(panel.tagForStringValue(choice)), *choice);
    }
    return tables;
}

} // namespace

/// The dialog's protocol: a panel's life, the transfer of its choices, its summary, and the plug-in's entry.
class PanelProtocolTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fixedTables()
    {
        PanelHarness dialog(Mode::Constraint);
        auto color = dialog.make<LVCorvelMainPDE>();
        auto sharpness = dialog.make<LVSharpnessCorvelPDE>();
        auto finish = dialog.make<LVCorvelLaminationPDE>();
        QCOMPARE(
            tablesOf(*color),
            text("Brightness Contrast Saturation Gamma Red Green Blue AdjustmentsEnabled;"
                 " 1=Red 2=Green 3=Blue 4=Brightness 5=Contrast 6=Saturation 7=Gamma 32=AdjustmentsEnabled"
                 " 81=Red 82=Green 83=Blue 84=Brightness 85=Contrast 86=Saturation 87=Gamma"
                 " 112=AdjustmentsEnabled;"));
        QCOMPARE(tablesOf(*sharpness),
                 text("SharpnessEnabled SharpnessIntensity SharpnessRadius;"
                      " 1=SharpnessRadius 2=SharpnessIntensity 32=SharpnessEnabled"
                      " 81=SharpnessRadius 82=SharpnessIntensity 112=SharpnessEnabled; 2=0 3=1 4=2 5=3"));
        QCOMPARE(tablesOf(*finish), text("Overcoat Quality UsePrinterPanel MatteValue;"
                                         " 1=Quality 2=Overcoat 3=MatteValue 32=UsePrinterPanel;"
                                         " 10=Standard 11=Fine 12=Glossy 13=Matte"));
        for (const std::optional<QString> &none :
             {std::optional(text("01")), std::optional(text("fine")), {}})
            QCOMPARE(sharpness->tagForStringValue(none) + finish->tagForStringValue(none), 0);
        const QStringList names = {*color->panelName(), *sharpness->panelName(), *finish->panelName()};
        QCOMPARE(names.join(u','), text("Color Adjustments,Sharpness,Print Quality and Finish"));
        const QStringList kinds = {*color->panelKind(), *sharpness->panelKind(), *finish->panelKind()};
        QCOMPARE(kinds.join(u','),
                 text("org.corvel.printing.Corvel9031.coloradjust,org.corvel.printing.Corvel9031.sharpness,"
                      "org.corvel.printing.Corvel9031.matte"));

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

    void noPanelWithoutPpd()
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

    void formsThatFail()
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

    void endOfAPanel()
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

    void halfOfAChoice()
    {
        PanelHarness dialog(Mode::Settings);
        auto panel = dialog.make<LVCorvelMainPDE>();
        panel->PPDOptionKeyValueDidChangePpdChoice(text("Red"), std::nullopt);
        panel->PPDOptionKeyValueDidChangePpdChoice(std::nullopt, text("1"));
        QVERIFY(!panel->choiceDict_);
        panel->setChoiceForKey(std::nullopt, text("Red"));
        panel->setChoiceForKey(text("1"), std::nullopt);
        QVERIFY(panel->choiceDict_ && panel->choiceDict_->isEmpty());
    }

    void withoutASession()
    {
        PanelHarness dialog(Mode::Settings);
        auto panel = dialog.make<LVCorvelMainPDE>();
        QVERIFY(panel->saveValuesAndReturnError(nullptr)); // there is nothing to write yet
        QVERIFY(dialog.session.ticket.options.isEmpty());
        panel->setChoiceForKey(text("8"), text("Red"));
        dialog.callback->session = nullptr;
        QVERIFY(panel->saveValuesAndReturnError(nullptr));
        panel->getPPDSettingsFromPrintSettingsOnTiger();
        QCOMPARE(panel->recorded(text("Red")), text("8"));
    }

    void summary()
    {
        const auto restore = qScopeGuard([] { OddPanel::more.clear(); });
        OddPanel::form = std::nullopt;
        OddPanel::more << text("AllowCUPS11");
        for (const auto &[mode, size] : {std::pair(Mode::Constraint, 8), std::pair(Mode::Settings, 9)}) {
            PanelHarness dialog(
                mode, PanelHarness::colorPpd(PanelHarness::ppdOption("AllowCUPS11", "Yes", {"Yes/Why not"})));
            auto panel = dialog.make<OddPanel>();
            panel->setChoiceForKey(text("Yes"), text("AllowCUPS11"));
            const auto summary = panel->summaryInfo();
            QCOMPARE(summary->size(), size); // where the dialog marks, that one is left out
            QCOMPARE(summary->contains(text("AllowCUPS11")), size == 9);
        }
    }

    void deviceUri()
    {
        PanelHarness dialog(Mode::Settings);
        auto panel = dialog.make<LVCorvelMainPDE>();
        dialog.callback->printer = nullptr;
        QCOMPARE(panel->printerDeviceURI(), text("usb://"));
        dialog.callback->printer = &dialog.printer;
        QCOMPARE(panel->printerDeviceURI(), text("usb://"));
        dialog.printer.deviceUri = pdekit::URLReference(QString());
        QCOMPARE(panel->printerDeviceURI(), text("usb://"));
        const QString uri = text("usb://Corvel%20Inc/K9031?serial=A%2FB");
        dialog.printer.deviceUri = pdekit::URLReference(uri);
        QCOMPARE(panel->printerDeviceURI(), uri);
        dialog.printer.deviceUri = pdekit::URLReference(text("ipp://elsewhere/"));
        QCOMPARE(panel->printerDeviceURI(), uri); // asked for once it is known: never again

        // To the letter: neither the case nor the escapes of a host change.
        const QByteArray base = "ipp://Host%20A:631/Printers/x/y?z#f";
        for (const auto &[from, reference, absolute] :
             {std::tuple(base, "../K9031?serial=A%2fB", "ipp://Host%20A:631/Printers/K9031?serial=A%2fB"),
              {base, "./K9031/.", "ipp://Host%20A:631/Printers/x/K9031/"},
              {base, "../../../..", "ipp://Host%20A:631/"},
              {base, "/K9031", "ipp://Host%20A:631/K9031"},
              {base, "//Corvel%20Inc/a/../b", "ipp://Corvel%20Inc/b"},
              {base, "?serial=1", "ipp://Host%20A:631/Printers/x/y?serial=1"},
              {base, "", "ipp://Host%20A:631/Printers/x/y?z"},
              {"ipp://Host", "K9031", "ipp://Host/K9031"},
              {"ipp://host:631/printers/x/", "usb://Corvel%20Inc/K",
               "usb://Corvel%20Inc/K"}}) { // which needs no base
            panel = dialog.make<LVCorvelMainPDE>();
            dialog.printer.deviceUri = pdekit::URLReference(text(reference), text(from.constData()));
            QCOMPARE(panel->printerDeviceURI(), text(absolute));
        }
    }

    void ppdData()
    {
        PanelHarness dialog(Mode::Settings);
        auto panel = dialog.make<LVCorvelMainPDE>();
        QVERIFY(!panel->ppdDataCopy());
        dialog.printer.description = QUrl(text("file:///ppd"));
        QVERIFY(!panel->ppdDataCopy());
        dialog.printer.data = QByteArray("a\0b", 3);
        QCOMPARE(panel->ppdDataCopy(), QByteArray("a\0b", 3));
        dialog.callback->printer = nullptr;
        QVERIFY(!panel->ppdDataCopy());
    }

    void help()
    {
        PanelHarness dialog(Mode::Constraint);
        auto panel = dialog.make<LVCorvelMainPDE>();
        QVERIFY(!panel->shouldShowHelp());
        QCOMPARE(dialog.feedback->helpBooks, QStringList(text("Corvel9031Help")));
        dialog.feedback->opensHelp = false;
        QVERIFY(panel->shouldShowHelp());

        const QTemporaryDir folder;
        panel->pdeBundle_ = emptyBundle(folder.path(), "x"); // which names no help book
        QVERIFY(panel->pdeBundle_);
        QVERIFY(panel->shouldShowHelp());
        QCOMPARE(dialog.feedback->helpBooks.size(), 2);
    }

    void brokenPipe()
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
};

CORVEL_WIDGETS_TEST(PanelProtocolTest)
#include "PanelProtocolTest.moc"
