// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "IppOptions.h"
#include "ChoiceMarker.h"
#include "PrinterMessage.h"
#include "ReadyMedia.h"
#include "Rows.h"
#include "TestMain.h"

#include <QtTest/QTest>

#include <algorithm>
#include <array>
#include <functional>

using namespace printdialog;
using namespace Qt::StringLiterals;
using testing_support::PrinterMessage;

namespace {

QString keywords(const OptionSource &source, const QString &key)
{
    QStringList all;
    for (const Choice &choice : source.choices(key))
        all += choice.keyword;
    return all.join(u' ');
}

QString labels(const OptionSource &source, const QString &key)
{
    QStringList all;
    for (const Choice &choice : source.choices(key))
        all += choice.text;
    return all.join(u'|');
}

/// The job attribute as libcups shows it: its type and its values.
QString inJob(const IppAttributes &attributes, const char *name)
{
    const std::unique_ptr<ipp_t, decltype(&ippDelete)> request(ippNew(), ippDelete);
    attributes.addToJob(request.get());
    ipp_attribute_t *attribute = ippFindAttribute(request.get(), name, IPP_TAG_ZERO);
    if (!attribute || ippGetGroupTag(attribute) != IPP_TAG_JOB)
        return {};
    std::array<char, 1024> value = {};
    ippAttributeString(attribute, value.data(), value.size());
    return QString::fromLatin1(ippTagString(ippGetValueTag(attribute))) + u' ' +
           QString::fromUtf8(value.data());
}

using Change = std::function<void(PrinterMessage &)>;

} // namespace

class IppOptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offersWhatThePrinterHas_data();
    void offersWhatThePrinterHas();
    void knowsThePaper();
    void knowsWhatIsLoaded_data();
    void knowsWhatIsLoaded();
    void readsPaperNamesWithoutADatabase();
    void weighsThePrintersRules_data();
    void weighsThePrintersRules();
    void encodesChoices_data();
    void encodesChoices();
    void survivesOddAttributes_data();
    void survivesOddAttributes();
    void leavesRawQueuesAlone();
};

void IppOptionsTest::offersWhatThePrinterHas_data()
{
    // The option, its choices, their labels, and the marked one.
    addRows<QString, QString, QString, QString>({
        {"size", u"media"_s, u"na_index-4x6_4x6in na_index-4x6_4x6in.borderless iso_a4_210x297mm"_s,
         u"4 × 6 in (10 × 15 cm)|4 × 6 in (10 × 15 cm), borderless|A4"_s, u"na_index-4x6_4x6in.borderless"_s},
        {"source", u"media-source"_s, u"auto main photo tray-2"_s, u"Automatic|Main tray|Photo tray|Tray 2"_s,
         u"photo"_s},
        {"type", u"media-type"_s, u"stationery photographic-glossy com.example-luster"_s,
         u"Plain paper|Glossy photo paper|com.example-luster"_s, u"photographic-glossy"_s},
        {"enumeration", u"print-quality"_s, u"3 4 5"_s, u"Draft|Normal|High"_s, u"4"_s},
        {"resolution", u"printer-resolution"_s, u"300dpi 600dpi"_s, u"300 dpi|600 dpi"_s, u"600dpi"_s},
        {"finishings", u"finishings"_s, u"3 11 15"_s, u"None|Trim|Coat"_s, u"3"_s},
        {"a maker's keyword", u"com.example-overcoat"_s, u"glossy matte"_s, u"glossy|matte"_s, u"glossy"_s},
        {"a maker's number", u"com.example-sharpness"_s, u"0"_s, u"0"_s, u"0"_s},
        {"copies are not an option", u"copies"_s, {}, {}, {}},
    });
}

void IppOptionsTest::offersWhatThePrinterHas()
{
    const auto [key, choices, texts, marked] = row<QString, QString, QString, QString>();
    const auto options = IppOptions::of(PrinterMessage::photoPrinter().attributes());
    QVERIFY(options);
    QCOMPARE(keywords(*options, key), choices);
    QCOMPARE(labels(*options, key), texts);
    QCOMPARE(options->markedChoice(key).value_or(QString()), marked);
    QCOMPARE(options->defaultChoice(key), options->markedChoice(key));
    QCOMPARE(options->notes(), QStringList());
}

void IppOptionsTest::knowsThePaper()
{
    const auto options = IppOptions::of(PrinterMessage::photoPrinter().attributes());
    const auto borderless = options->pageSize(u"na_index-4x6_4x6in.borderless"_s);
    QCOMPARE(borderless->points, QSizeF(288, 432));
    QCOMPARE(borderless->imageable, QRectF(0, 0, 288, 432));
    // The widest of its margins, so that it is right for every tray.
    const auto sheet = options->pageSize(u"iso_a4_210x297mm"_s);
    QCOMPARE(qRound(sheet->imageable.left() * 100), 1417);
    QCOMPARE(qRound((sheet->points.width() - sheet->imageable.right()) * 100), 1417);
    // Within the range of the printer, whatever the unit.
    QCOMPARE(options->pageSize(u"Custom.10x15cm"_s)->keyword, u"Custom.100x150mm"_s);
    QVERIFY(!options->pageSize(u"Custom.80x150mm"_s));
    QCOMPARE(
        ChoiceMarker(const_cast<IppOptions &>(*options)).canonicalChoice(u"media"_s, u"Custom.10x15cm"_s),
        u"Custom.100x150mm"_s);
}

void IppOptionsTest::knowsWhatIsLoaded_data()
{
    // What the printer says; a size in points; whether that is loaded: nothing when it says nothing.
    const auto add = rows<Change, QSizeF, std::optional<bool>>();
    const QSizeF a4(595, 842); // as PPDs round it
    const auto names = [](const QByteArrayList &values) {
        return [values](PrinterMessage &printer) {
            printer.keywords("media-ready", values);
        };
    };
    const auto media = [](const QList<PrinterMessage::Members> &all) {
        return [all](PrinterMessage &printer) {
            printer.keywords("media-ready", {"na_letter_8.5x11in"}).collections("media-col-ready", all);
        };
    };
    const auto roll = [](PrinterMessage &entry) {
        entry.collections(
            "media-size", {[](PrinterMessage &size) {
                size.numbers("x-dimension", IPP_TAG_INTEGER, {21000}).range("y-dimension", 10000, 100000);
            }});
    };
    add(
        "nothing said", [](PrinterMessage &) {}, a4, std::nullopt);
    add("nothing known", names({"unknown", "choice"}), a4, std::nullopt);
    add("by name", names({"na_index-4x6_4x6in", "iso_a4_210x297mm"}), a4, true);
    add("turned", names({"iso_a4_210x297mm"}), a4.transposed(), true);
    add("another", names({"na_index-4x6_4x6in"}), a4, false);
    add("a millimeter more", names({"custom_a_211x297mm"}), a4, false);
    add("by dimensions", media({PrinterMessage::medium(21000, 29700, 300)}), a4, true);
    add("dimensions before names", media({PrinterMessage::medium(21000, 29700, 300)}), {612, 792}, false);
    add("from a roll", media({roll}), a4, true);
    add("too wide for the roll", media({roll}), {842, 1191}, false);
}

void IppOptionsTest::knowsWhatIsLoaded()
{
    const auto [change, size, isLoaded] = row<Change, QSizeF, std::optional<bool>>();
    PrinterMessage printer;
    change(printer);
    const ReadyMedia ready(printer.attributes());
    QCOMPARE(ready.isKnown(), isLoaded.has_value());
    QCOMPARE(ready.has(size), isLoaded.value_or(false));
}

void IppOptionsTest::readsPaperNamesWithoutADatabase()
{
    PrinterMessage printer;
    printer
        .keywords("media-supported",
                  {"na_index-4x6_4x6in", "choice_of_the_house", "custom_min_89x127mm", "custom_max_8.5x14in"})
        .keywords("media-default", {"na_index-4x6_4x6in"});
    for (const char *side : {"media-left-margin-supported", "media-top-margin-supported",
                             "media-right-margin-supported", "media-bottom-margin-supported"})
        printer.numbers(side, IPP_TAG_INTEGER, {0, 318});
    const auto options = IppOptions::of(printer.attributes());
    QCOMPARE(keywords(*options, u"media"_s), u"na_index-4x6_4x6in na_index-4x6_4x6in.borderless"_s);
    QCOMPARE(options->markedChoice(u"media"_s), u"na_index-4x6_4x6in"_s);
    QVERIFY(options->pageSize(u"Custom.100x150mm"_s));
    QCOMPARE(options->notes().size(), 1);
}

void IppOptionsTest::weighsThePrintersRules_data()
{
    using Choices = QList<OptionChoice>;
    // What is marked, the refused choice, and the changes that allow it.
    addRows<Choices, OptionChoice, Choices>({
        {"a member of media-col",
         {{u"sides"_s, u"two-sided-short-edge"_s}},
         {u"media-type"_s, u"photographic-glossy"_s},
         {{u"sides"_s, u"one-sided"_s}}},
        {"any of several values",
         {{u"sides"_s, u"two-sided-long-edge"_s}},
         {u"media-type"_s, u"photographic-glossy"_s},
         {{u"sides"_s, u"one-sided"_s}}},
        {"an enumeration",
         {{u"print-quality"_s, u"3"_s}},
         {u"com.example-overcoat"_s, u"matte"_s},
         {{u"print-quality"_s, u"4"_s}}},
        {"a size, without a resolver",
         {{u"media"_s, u"iso_a4_210x297mm"_s}},
         {u"finishings"_s, u"11,15"_s},
         {}},
        {"no conflict", {{u"media"_s, u"iso_a4_210x297mm"_s}}, {u"finishings"_s, u"11"_s}, {}},
    });
}

void IppOptionsTest::weighsThePrintersRules()
{
    const auto [marked, asked, changes] = row<QList<OptionChoice>, OptionChoice, QList<OptionChoice>>();
    auto options = IppOptions::of(PrinterMessage::photoPrinter().attributes());
    ChoiceMarker marker(*options);
    options->mark(u"media-type"_s, u"stationery"_s);
    for (const auto &[key, choice] : marked)
        QCOMPARE(marker.mark(key, choice).verdict, Verdict::Accepted);
    const Ruling ruling = marker.check(asked.option, asked.choice);
    QCOMPARE(ruling.verdict, asked.choice == u"11" ? Verdict::Accepted : Verdict::Conflict);
    QVERIFY(ruling.verdict == Verdict::Accepted || ruling.others == marked);
    QCOMPARE(marker.changesThatAllow(ruling), changes);
}

void IppOptionsTest::encodesChoices_data()
{
    // A choice, the attribute, its type and value.
    addRows<OptionChoice, const char *, QString>({
        {"keyword", {u"com.example-overcoat"_s, u"matte"_s}, "com.example-overcoat", u"keyword matte"_s},
        {"enumeration", {u"print-quality"_s, u"5"_s}, "print-quality", u"enum high"_s},
        {"several", {u"finishings"_s, u"11,15"_s}, "finishings", u"enum trim,coat"_s},
        {"several with none", {u"finishings"_s, u"3,11"_s}, "finishings", u"enum trim"_s},
        {"resolution", {u"printer-resolution"_s, u"300dpi"_s}, "printer-resolution", u"resolution 300dpi"_s},
        {"boolean", {u"com.example-mirror"_s, u"True"_s}, "com.example-mirror", u"boolean true"_s},
        {"integer", {u"com.example-sharpness"_s, u"Custom.-3"_s}, "com.example-sharpness", u"integer -3"_s},
        {"text",
         {u"com.example-note"_s, u"Custom.For Ä, with love"_s},
         "com.example-note",
         u"textWithoutLanguage For Ä, with love"_s},
        {"template",
         {u"finishing-template"_s, u"com.example-cut"_s},
         "finishings-col",
         u"collection {finishing-template=com.example-cut}"_s},
        {"size with the default source and type",
         {u"media"_s, u"na_index-4x6_4x6in"_s},
         "media-col",
         u"collection {media-bottom-margin=318 media-left-margin=318 media-right-margin=318 "
         "media-size={x-dimension=10160 y-dimension=15240} media-source=photo media-top-margin=318 "
         "media-type=photographic-glossy}"_s},
        {"source",
         {u"media-source"_s, u"tray-2"_s},
         "media-col",
         u"collection {media-bottom-margin=0 media-left-margin=0 media-right-margin=0 "
         "media-size={x-dimension=10160 y-dimension=15240} media-source=tray-2 media-top-margin=0 "
         "media-type=photographic-glossy}"_s},
        {"custom size",
         {u"media"_s, u"Custom.100x150mm"_s},
         "media-col",
         u"collection {media-bottom-margin=0 media-left-margin=318 media-right-margin=0 "
         "media-size={x-dimension=10000 y-dimension=15000} media-source=photo media-top-margin=0 "
         "media-type=photographic-glossy}"_s},
        {"none", {u"sides"_s, u"one-sided"_s}, "media-col", {}},
    });
}

void IppOptionsTest::encodesChoices()
{
    const auto [choice, name, expected] = row<OptionChoice, const char *, QString>();
    auto options = IppOptions::of(PrinterMessage::photoPrinter().attributes());
    ChoiceMarker marker(*options);
    QCOMPARE(marker.mark(choice.option, choice.choice).verdict, Verdict::Accepted);
    const QString marked = *options->markedChoice(choice.option);
    QCOMPARE(inJob(options->jobAttributes({{choice.option, marked}}), name), expected);
}

void IppOptionsTest::survivesOddAttributes_data()
{
    // A change to the printer, an option, what remains of its choices, the marked one, and the number of
    // notes.
    addRows<Change, QString, QString, QString, int>({
        {"default that is no choice",
         [](PrinterMessage &p) { p.remove("sides-default").keywords("sides-default", {"tumbled"}); },
         u"sides"_s,
         u"one-sided two-sided-long-edge two-sided-short-edge"_s,
         {},
         1},
        {"no default",
         [](PrinterMessage &p) { p.remove("sides-default"); },
         u"sides"_s,
         u"one-sided two-sided-long-edge two-sided-short-edge"_s,
         {},
         0},
        {"default outside of the range",
         [](PrinterMessage &p) {
             p.remove("com.example-sharpness-default")
                 .numbers("com.example-sharpness-default", IPP_TAG_INTEGER, {9});
         },
         u"com.example-sharpness"_s,
         {},
         {},
         1},
        {"range upside down",
         [](PrinterMessage &p) {
             p.remove("com.example-sharpness-supported").range("com.example-sharpness-supported", 5, -5);
         },
         u"com.example-sharpness"_s,
         {},
         {},
         1},
        {"repeated values",
         [](PrinterMessage &p) {
             p.remove("sides-supported").keywords("sides-supported", {"one-sided", "one-sided", "one-sided"});
         },
         u"sides"_s, u"one-sided"_s, u"one-sided"_s, 1},
        {"values with controls and turned writing",
         [](PrinterMessage &p) {
             p.remove("com.example-overcoat-supported")
                 .keywords("com.example-overcoat-supported",
                           {"glossy", "ma\ntte", "\xe2\x80\xaegood", "Custom.7", "{a=b}", ""});
         },
         u"com.example-overcoat"_s, u"glossy"_s, u"glossy"_s, 1},
        {"values of several types",
         [](PrinterMessage &p) {
             p.remove("print-quality-supported").keywords("print-quality-supported", {"4", "best"});
         },
         u"print-quality"_s, u"4 best"_s, u"4"_s, 0},
        {"sizes without dimensions, upside down or beyond measure",
         [](PrinterMessage &p) {
             p.remove("media-col-database")
                 .collections("media-col-database",
                              {[](PrinterMessage &) {}, PrinterMessage::medium(0, 15240, 0),
                               PrinterMessage::medium(-5, 2000000000, 0),
                               PrinterMessage::medium(21000, 29700, 318),
                               PrinterMessage::medium(21000, 29700, 318)});
         },
         u"media"_s, u"iso_a4_210x297mm"_s, u"iso_a4_210x297mm"_s, 1},
        {"margins that leave nothing",
         [](PrinterMessage &p) {
             p.remove("media-col-database")
                 .collections("media-col-database", {PrinterMessage::medium(21000, 29700, 2000000)});
         },
         u"media"_s, u"iso_a4_210x297mm"_s, u"iso_a4_210x297mm"_s, 0},
        {"a rule with too many combinations",
         [](PrinterMessage &p) {
             QByteArrayList many;
             for (int i = 0; i < 300; ++i)
                 many += "v" + QByteArray::number(i);
             p.keywords("com.example-a-supported", many).keywords("com.example-a-default", {"v0"});
             p.keywords("com.example-b-supported", many).keywords("com.example-b-default", {"v0"});
             p.remove("job-constraints-supported")
                 .collections("job-constraints-supported", {[&many](PrinterMessage &rule) {
                                  rule.keywords("com.example-a", many).keywords("com.example-b", many);
                              }});
         },
         u"com.example-overcoat"_s, u"glossy matte"_s, u"glossy"_s, 1},
        {"ten thousand values",
         [](PrinterMessage &p) {
             QByteArrayList many;
             for (int i = 0; i < 20'000; ++i)
                 many += "v" + QByteArray::number(i);
             p.keywords("com.example-many-supported", many).keywords("com.example-many-default", {"v7"});
         },
         u"com.example-overcoat"_s, u"glossy matte"_s, u"glossy"_s, 0},
        {"attributes that the printer does not take in a job",
         [](PrinterMessage &p) {
             p.keywords("job-creation-attributes-supported", {"media-col", "sides"});
         },
         u"com.example-overcoat"_s,
         {},
         {},
         0},
    });
}

void IppOptionsTest::survivesOddAttributes()
{
    const auto [change, key, choices, marked, notes] = row<Change, QString, QString, QString, int>();
    PrinterMessage printer = PrinterMessage::photoPrinter();
    change(printer);
    auto options = IppOptions::of(printer.attributes());
    QVERIFY(options);
    QCOMPARE(keywords(*options, key), choices);
    QCOMPARE(options->markedChoice(key).value_or(QString()), marked);
    QCOMPARE(options->notes().size(), notes);
    const QList<CustomParameter> typed = options->customParameters(key);
    QVERIFY(std::ranges::all_of(typed, [](const auto &each) { return each.minimum <= each.maximum; }));
    // The rest works: every size has an area to print on, and what is marked can be chosen and sent.
    QCOMPARE(options->pageSize(*options->markedChoice(u"media"_s))->imageable.isEmpty(), false);
    ChoiceMarker marker(*options);
    const QMap<QString, QString> all = marker.markedChoices();
    for (auto each = all.cbegin(); each != all.cend(); ++each)
        QCOMPARE(marker.canonicalChoice(each.key(), *each), *each);
    QVERIFY(!inJob(options->jobAttributes(all), "media-col").isEmpty());
}

void IppOptionsTest::leavesRawQueuesAlone()
{
    PrinterMessage raw;
    raw.keywords("media-col-supported", {"media-size", "media-type"})
        .numbers("finishings-supported", IPP_TAG_ENUM, {3})
        .numbers("print-quality-default", IPP_TAG_ENUM, {4});
    QVERIFY(!IppOptions::of(raw.attributes()));
    QVERIFY(!IppOptions::of({}));
}

CORVEL_TEST(IppOptionsTest)
#include "IppOptionsTest.moc"
