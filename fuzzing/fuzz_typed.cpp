// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// Texts typed into the panels' fields, in both modes: the panel must do what a plain statement of its rules
// does. The first byte selects the panel and the mode; each line after it is a field and a text.

#include "Fuzzing.h"
#include "model/PanelDriver.h"

#include <cstdio>

namespace {

constexpr int mostTexts = 6;
constexpr int longestText = 40; // UTF-16 units

/// As far as a field of one line takes it unchanged.
QString typeable(const QByteArray &bytes)
{
    QString text;
    for (const QChar c : QString::fromUtf8(bytes).left(longestText)) {
        if (c.isPrint() && !c.isSurrogate() && !c.isNonCharacter() && !c.isMark())
            text += c;
    }
    return text;
}

QList<Step> stepsFor(const PanelTable &table, const QByteArray &bytes)
{
    QList<int> fields;
    for (const FormControl &control : table.controls) {
        if (control.kind == FormControl::Field)
            fields << control.tag;
    }
    QList<Step> steps = {{.act = Step::Restore}, {.act = Step::Show}};
    for (const QByteArray &line : bytes.split('\n').mid(0, mostTexts)) {
        const QString text = typeable(line.mid(1));
        if (text.isEmpty())
            continue;
        const auto selector = static_cast<unsigned char>(line.front());
        const int tag = fields.at(selector % fields.size());
        steps << Step{.act = Step::PasteText, .tag = tag, .choice = text};
        steps << (selector & 0x20 ? Step{.act = Step::ReturnKey, .tag = tag, .detail = Qt::Key_Return}
                                  : Step{.act = Step::LeaveField});
    }
    steps << Step{.act = Step::Save};
    return steps;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    static const QList<PanelTable> tables = {PanelTable::color(), PanelTable::sharpness(),
                                             PanelTable::mixed()};
    const PanelTable &table = tables.at(data[0] % tables.size());
    const Mode mode = data[0] & 8 ? Mode::Constraint : Mode::Settings;
    PanelDriver driver(table, mode);
    driver.open();
    PanelModel model(table, mode == Mode::Constraint,
                     [&driver](const QString &key) { return driver.localized(key); });
    for (const Step &step : stepsFor(table, fuzzing::input(data + 1, size - 1))) {
        model.take(step);
        driver.take(step);
        if (const QString difference = firstDifference(model.sight(), driver.sight());
            !difference.isEmpty()) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(step.toText()), qPrintable(difference));
            fuzzing::require(false, "the panel does what its rules say");
        }
    }
    return 0;
}
