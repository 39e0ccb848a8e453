// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PortalSettings.h"
#include "OpenedDialog.h"
#include "PortalAnswer.h"
#include "PortalChoices.h"
#include "Rows.h"
#include "SessionJob.h"
#include "SessionOpening.h"
#include "TestMain.h"

using namespace testing_support;

namespace {

/// "key=value" separated by spaces.
QVariantMap settingsOf(const QString &text)
{
    QVariantMap settings;
    for (const QString &entry : text.split(u' ', Qt::SkipEmptyParts))
        settings.insert(entry.section(u'=', 0, 0), entry.section(u'=', 1));
    return settings;
}

QString joined(const QList<QPair<QString, QString>> &options)
{
    QStringList texts;
    for (const auto &[key, choice] : options)
        texts += key + u'=' + choice;
    return texts.join(u' ');
}

QVariantMap page(double width, double height, double margin = -1)
{
    QVariantMap setup = {{u"Width"_s, width}, {u"Height"_s, height}};
    for (const char *edge : {"MarginLeft", "MarginTop", "MarginRight", "MarginBottom"}) {
        if (margin >= 0)
            setup.insert(QLatin1String(edge), margin);
    }
    return setup;
}

} // namespace

/// What programs ask for and are answered, with an office printer's PPD.
class PortalSettingsTest : public WindowTest
{
    Q_OBJECT

private:
    std::unique_ptr<DialogSession> laser_;

private Q_SLOTS:
    void init()
    {
        WindowTest::init();
        auto opened = openBuiltInPrinter(QStringLiteral(CORVEL_LASER_PPD), PanelMode::Constraint);
        QVERIFY(opened);
        laser_ = *std::move(opened);
    }
    void cleanup() { laser_.reset(); }

    void aProgramsWishesBecomeChoices_data()
    {
        using Row = std::tuple<const char *, QString, QVariantMap, QString, QString>;
        addRows<QString, QVariantMap, QString, QString>({
            Row{"nothing", u""_s, {}, u""_s, u""_s},
            Row{"a size by its name", u""_s, {{u"PPDName"_s, u"A5"_s}}, u"PageSize=A5"_s, u""_s},
            Row{"a name comes before the dimensions",
                u""_s,
                {{u"PPDName"_s, u"A5"_s}, {u"Width"_s, 210.0}, {u"Height"_s, 297.0}},
                u"PageSize=A5"_s,
                u""_s},
            Row{"by its dimensions", u""_s, page(215.9, 279.4), u"PageSize=Letter"_s, u""_s},
            Row{"by a self-describing name",
                u"paper-format=na_index-4x6_4x6in"_s,
                {},
                u"PageSize=4x6"_s,
                u""_s},
            Row{"by dimensions in the settings",
                u"paper-width=148 paper-height=210"_s,
                {},
                u"PageSize=A5"_s,
                u""_s},
            Row{"a custom size", u""_s, page(100, 200), u"PageSize=Custom.100x200mm"_s, u""_s},
            Row{"beyond the printer's", u""_s, page(420, 594), u""_s, u"420"_s},
            Row{"lengths that are none", u""_s, page(-1, std::nan("")), u""_s, u""_s},
            Row{"both sides, paper and tray",
                u"duplex=horizontal media-type=thick default-source=Tray1"_s,
                {},
                u"Duplex=DuplexNoTumble MediaType=Thick InputSlot=Tray1"_s,
                u""_s},
            Row{"the short edge", u"duplex=vertical"_s, {}, u"Duplex=DuplexTumble"_s, u""_s},
            Row{"a standard's words",
                u"media-type=labels default-source=tray-1"_s,
                {},
                u"MediaType=Labels InputSlot=Tray1"_s,
                u""_s},
            Row{"gray", u"use-color=false"_s, {}, u"ColorMode=Gray"_s, u""_s},
            Row{"color", u"use-color=true"_s, {}, u"ColorMode=Color"_s, u""_s},
            Row{"a resolution", u"resolution=1200"_s, {}, u"Resolution=1200dpi"_s, u""_s},
            Row{"one of two numbers",
                u"resolution-x=300 resolution-y=300 resolution=600"_s,
                {},
                u"Resolution=300dpi"_s,
                u""_s},
            Row{"a resolution that it lacks", u"resolution=720"_s, {}, u""_s, u"\"720\""_s},
            Row{"the printer's own options come last",
                u"cups-Duplex=None cups-Density=2 duplex=vertical"_s,
                {},
                u"Duplex=DuplexTumble Density=2 Duplex=None"_s,
                u""_s},
            Row{"options of the job", u"cups-job-priority=80"_s, {}, u"job-priority=80"_s, u""_s},
            Row{"the page setup comes before the printer's own", u"cups-PageSize=Legal"_s, page(210, 297),
                u"PageSize=A4"_s, u""_s},
            Row{"which counts without one", u"cups-PageSize=Legal"_s, {}, u"PageSize=Legal"_s, u""_s},
            Row{"what it lacks",
                u"cups-Edge=True output-bin=face-up finishings=staple"_s,
                {},
                u""_s,
                u"Edge \"True\""_s},
            Row{"what every printer does",
                u"finishings=none quality=normal output-bin=auto collate=true"_s,
                {},
                u""_s,
                u""_s},
        });
    }
    void aProgramsWishesBecomeChoices()
    {
        const auto [settings, setup, choices, remark] = row<QString, QVariantMap, QString, QString>();
        const auto asked = PortalSettings::read(settingsOf(settings), setup);
        QCOMPARE(asked.remarks(), QStringList());
        const ProgramChoices made = portalChoices(asked, laser_->options());
        QCOMPARE(joined(made.options), choices);
        QCOMPARE(made.remarks.size(), remark.isEmpty() ? 0 : 1);
        QVERIFY2(remark.isEmpty() || made.remarks.at(0).contains(remark), qPrintable(made.remarks.value(0)));
        for (const auto &[key, choice] : made.options)
            QVERIFY2(laser_->choose(key, choice).letsThrough() || key == u"job-priority"_s, qPrintable(key));
    }

    void whatCannotBeUsedIsLeftOut_data()
    {
        using Row = std::tuple<const char *, QVariantMap, QString>;
        addRows<QVariantMap, QString>({
            Row{"no text", {{u"n-copies"_s, 3}}, u"n-copies"_s},
            Row{"a line break", {{u"cups-Duplex"_s, u"None\nDuplex"_s}}, u"cups-Duplex"_s},
            Row{"a key that is none", {{u"cups-a b"_s, u"x"_s}}, u"cups-a b"_s},
            Row{"a long text", {{u"x"_s, QString(5000, u'x')}}, u"\"x\""_s},
            Row{"no copies", {{u"n-copies"_s, u"0"_s}}, u"n-copies"_s},
            Row{"too many", {{u"n-copies"_s, u"1000000000000"_s}}, u"n-copies"_s},
            Row{"ranges backwards", {{u"page-ranges"_s, u"3-1"_s}}, u"page-ranges"_s},
            Row{"a page below the first", {{u"page-ranges"_s, u"-1"_s}}, u"page-ranges"_s},
            Row{"a scale without an end", {{u"scale"_s, u"inf"_s}}, u"scale"_s},
            Row{"a network address", {{u"printer"_s, u"ipp://host.example/ipp/print"_s}}, u"printer"_s},
        });
    }
    void whatCannotBeUsedIsLeftOut()
    {
        const auto [settings, word] = row<QVariantMap, QString>();
        const auto asked = PortalSettings::read(settings, {});
        QVERIFY(asked.entries().isEmpty());
        QCOMPARE(asked.remarks().size(), 1);
        QVERIFY2(asked.remarks().at(0).contains(word), qPrintable(asked.remarks().at(0)));
    }

    void aFloodOfSettingsIsLimited()
    {
        QVariantMap settings;
        for (int i = 0; i < 5000; ++i)
            settings.insert(u"cups-K%1"_s.arg(i), u"x"_s);
        const auto asked = PortalSettings::read(settings, {});
        QCOMPARE(asked.entries().size(), PortalSettings::mostEntries);
        QCOMPARE(asked.remarks().size(), 1);
        QVERIFY(portalChoices(asked, laser_->options()).remarks.at(0).size() < 2000);
    }

    void pagesAreCountedFromOne()
    {
        const auto asked =
            PortalSettings::read(settingsOf(u"print-pages=ranges page-ranges=0,2-3,7- page-set=odd"_s), {});
        QCOMPARE(asked.pages().ranges.toText(), u"1,3-4,8-"_s);
        QCOMPARE(asked.pages().set, PageChoice::Set::Odd);
        QCOMPARE(portalRangesText(*portalRanges(u"0,2-3"_s)), u"0,2-3"_s);
    }

    void theAnswerSaysWhatWasChosen_data()
    {
        using Row = std::tuple<const char *, QString, QVariantMap, QString, QString>;
        const auto landscape = [](QVariantMap setup) {
            setup.insert(u"Orientation"_s, u"landscape"_s);
            return setup;
        };
        addRows<QString, QVariantMap, QString, QString>({
            Row{"copies are the queue's",
                u"n-copies=3 collate=true reverse=true"_s,
                {},
                u""_s,
                u"n-copies=1 collate=true reverse=true print-pages=all"_s},
            Row{"pages stay with the program",
                u"print-pages=ranges page-ranges=0,2-3 page-set=even"_s,
                {},
                u""_s,
                u"print-pages=ranges page-ranges=0,2-3 page-set=even"_s},
            Row{"unknown keys come back",
                u"x-key=a dither=fine output-uri=file:///x cups-Foreign=1"_s,
                {},
                u""_s,
                u"x-key=a dither=fine output-uri=file:///x cups-Foreign=1"_s},
            Row{"what was chosen instead",
                u"duplex=horizontal cups-Duplex=DuplexNoTumble"_s,
                {},
                u"Duplex=DuplexTumble"_s,
                u"duplex=vertical cups-Duplex=DuplexTumble"_s},
            Row{"color, paper and tray",
                u""_s,
                {},
                u"ColorMode=Gray MediaType=Thick InputSlot=Tray1"_s,
                u"use-color=false media-type=Thick default-source=Tray1 cups-ColorMode=Gray"_s},
            Row{"the resolution",
                u"resolution-x=300"_s,
                {},
                u"Resolution=1200dpi"_s,
                u"resolution=1200 resolution-x=1200 resolution-y=1200"_s},
            Row{"the paper", u"paper-width=10"_s, landscape(page(210, 297, 0)), u"PageSize=A5"_s,
                u"paper-format=iso_a5_148x210mm orientation=landscape"_s},
        });
    }
    void theAnswerSaysWhatWasChosen()
    {
        const auto [settings, setup, chosen, expected] = row<QString, QVariantMap, QString, QString>();
        const auto asked = PortalSettings::read(settingsOf(settings), setup);
        const ProgramChoices wishes = portalChoices(asked, laser_->options());
        for (const auto &[key, choice] : wishes.options)
            QVERIFY(laser_->choose(key, choice).letsThrough());
        const QVariantMap byHand = settingsOf(chosen);
        for (auto choice = byHand.cbegin(); choice != byHand.cend(); ++choice)
            QVERIFY(laser_->choose(choice.key(), choice->toString()).letsThrough());
        const auto job = jobOf(*laser_, 2);
        QVERIFY(job);
        const PortalAnswer answer =
            portalAnswer(asked, job->job, laser_->options(), asked.pages(), PagesBy::Program);
        const QVariantMap wanted = settingsOf(expected);
        for (auto entry = wanted.cbegin(); entry != wanted.cend(); ++entry)
            QCOMPARE(answer.settings.value(entry.key()).toString(), entry->toString());
        for (const QVariant &value : answer.settings)
            QCOMPARE(value.typeId(), int(QMetaType::QString));
        // A program that sends back what it got is answered the same.
        const auto again = PortalSettings::read(answer.settings, answer.pageSetup);
        QCOMPARE(again.remarks(), QStringList());
        QCOMPARE(portalAnswer(again, job->job, laser_->options(), again.pages(), PagesBy::Program).settings,
                 answer.settings);
    }

    void aSheetIsChosenByTheProgramsMargins_data()
    {
        using Row = std::tuple<const char *, QVariantMap, QString>;
        const auto named = [](QVariantMap setup, const char *key, const QString &name) {
            setup.insert(QLatin1String(key), name);
            return setup;
        };
        addRows<QVariantMap, QString>({
            Row{"none", page(101.6, 152.4, 0), u"4x6.Fullbleed"_s},
            Row{"none, and the paper's name", named(page(101.6, 152.4, 0), "PPDName", u"4x6"_s),
                u"4x6.Fullbleed"_s},
            Row{"some", named(page(101.6, 152.4, 6), "Name", u"na_index-4x6_4x6in"_s), u"4x6"_s},
            Row{"not given, but a name", {{u"PPDName"_s, u"5x7"_s}}, u"5x7"_s},
            Row{"not given", page(101.6, 152.4), u"4x6.Fullbleed"_s},
        });
    }

    void aSheetIsChosenByTheProgramsMargins()
    {
        const auto [setup, size] = row<QVariantMap, QString>();
        const auto photo = openBuiltInPrinter(std::nullopt, PanelMode::Constraint);
        QVERIFY(photo);
        const auto made = portalChoices(PortalSettings::read({}, setup), (*photo)->options());
        QCOMPARE(made.options.value(0).second, size);
    }

    void theRealMarginsAreAnswered()
    {
        QVERIFY(laser_->choose(u"PageSize"_s, u"A4"_s).letsThrough());
        QVariantMap setup = page(210, 297, 0);
        setup.insert(u"Orientation"_s, u"reverse_landscape"_s);
        const auto asked = PortalSettings::read({}, setup);
        const auto job = jobOf(*laser_, 1);
        QVERIFY(job);
        const QVariantMap answered =
            portalAnswer(asked, job->job, laser_->options(), {}, PagesBy::Dialog).pageSetup;
        QCOMPARE(answered[u"PPDName"_s].toString(), u"A4"_s);
        QCOMPARE(answered[u"Name"_s].toString(), u"iso_a4_210x297mm"_s);
        QCOMPARE(answered[u"Orientation"_s].toString(), u"reverse_landscape"_s);
        for (const char *edge : {"MarginLeft", "MarginTop", "MarginRight", "MarginBottom"})
            QCOMPARE(qRound(answered[QLatin1String(edge)].toDouble() * 100), 423); // 12 points
        QCOMPARE(qRound(answered[u"Height"_s].toDouble()), 297);
    }

    /// In landscape, the page's top is the sheet's left edge.
    void marginsAreThoseOfTheTurnedPage_data()
    {
        using Row = std::tuple<const char *, QString, QString>;
        addRows<QString, QString>({
            Row{"upright", u"portrait"_s, u"1 2 3 4"_s},
            Row{"to the left", u"landscape"_s, u"4 1 2 3"_s},
            Row{"upside down", u"reverse_portrait"_s, u"3 4 1 2"_s},
            Row{"to the right", u"reverse_landscape"_s, u"2 3 4 1"_s},
        });
    }
    void marginsAreThoseOfTheTurnedPage()
    {
        const auto [orientation, expected] = row<QString, QString>();
        PageSetup setup = PageSetup::fromDictionary({{u"Orientation"_s, orientation}});
        const auto points = [](double millimeters) {
            return millimeters * pointsPerMillimeter;
        };
        setup.setPage({QSizeF(points(100), points(150)),
                       QRectF(QPointF(points(1), points(2)), QPointF(points(97), points(146)))});
        QStringList margins;
        for (const double margin :
             {setup.margins->left(), setup.margins->top(), setup.margins->right(), setup.margins->bottom()})
            margins += QString::number(margin, 'f', 0);
        QCOMPARE(margins.join(u' '), expected);
    }

    void theFormatIsOneThatCanBePrinted()
    {
        QCOMPARE(portalFormat(std::nullopt, false), u"pdf"_s);
        QCOMPARE(portalFormat(QStringList{u"ps"_s, u"PDF"_s}, true), u"pdf"_s);
        QCOMPARE(portalFormat(QStringList{u"svg"_s, u"ps"_s}, true), u"ps"_s);
        QVERIFY(!portalFormat(QStringList{u"svg"_s, u"ps"_s}, false));
    }
};

CORVEL_WIDGETS_TEST(PortalSettingsTest)
#include "PortalSettingsTest.moc"
