// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// PPDs: inspected, opened, shown by the panels, and chosen from, in both modes.

#include "ChoiceMarker.h"
#include "DialogSession.h"
#include "Fuzzing.h"
#include "PpdDocument.h"

using namespace printdialog;

namespace {

constexpr qsizetype mostOptions = 12; // that are chosen from

void requireAllowed(DialogSession &session)
{
    const auto job = session.jobOptions();
    if (!job) {
        fuzzing::require(!session.jobRefusal().text.isEmpty(), "a refusal says why");
        return;
    }
    for (auto option = job->options.cbegin(); option != job->options.cend(); ++option)
        fuzzing::require(session.options().choice(option.key(), option.value()) != nullptr,
                         "only choices of the PPD are sent");
}

void choose(DialogSession &session)
{
    const QMap<QString, QString> before = session.choices();
    const QStringList options = session.options().options().mid(0, mostOptions);
    for (const QString &key : options) {
        const QList<Choice> choices = session.options().choices(key);
        fuzzing::require(!choices.isEmpty(), "an option has choices");
        for (const Choice &choice : {choices.constLast(), choices.constFirst()}) {
            const Ruling ruling = session.choose(key, choice.keyword);
            fuzzing::require(ruling.verdict != Verdict::UnknownOption, "an option that is there is known");
            if (!ruling.letsThrough())
                session.changesThatAllow(ruling);
        }
        session.choose(key, QStringLiteral("no such choice"));
        session.choose(key, QStringLiteral("1.5"));
    }
    requireAllowed(session);
    session.summary();
    session.restoreChoices(before, DialogSession::Unnamed::Default);
    session.refreshPanels();
    requireAllowed(session);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray ppd = fuzzing::input(data, size);
    for (const PanelMode mode : {PanelMode::Constraint, PanelMode::Settings}) {
        const auto trusted = trustPpd(QByteArray(ppd.constData(), ppd.size()), QStringLiteral("fuzz"));
        auto document = trusted ? PpdDocument::open(*trusted) : trusted.failure();
        if (!document) {
            fuzzing::require(!document.failure().text.isEmpty(), "a refusal says why");
            return 0;
        }
        fuzzing::require(!document->pageSizes().isEmpty(), "a PPD that is used has page sizes");
        DialogSession session({QStringLiteral("fuzz"), QStringLiteral("Fuzz"), {}}, *std::move(document),
                              mode);
        session.loadPanels();
        choose(session);
    }
    return 0;
}
