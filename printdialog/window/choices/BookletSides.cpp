// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "BookletSides.h"

#include "DialogSession.h"

#include <QtCore/QCoreApplication>

namespace printdialog {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(BookletSides)
};

/// What printers call it.
constexpr QLatin1String shortEdgeWords[] = {QLatin1String("two-sided-short-edge"),
                                            QLatin1String("DuplexTumble"), QLatin1String("DuplexTumbled"),
                                            QLatin1String("ShortEdge")};

std::optional<OptionChoice> shortEdge(const OptionSource &options)
{
    for (const QString &key : options.options()) {
        for (const QLatin1String word : shortEdgeWords) {
            if (options.choice(key, word))
                return OptionChoice{key, word};
        }
    }
    return std::nullopt;
}

} // namespace

QString chooseBookletSides(DialogSession &session)
{
    const auto wanted = shortEdge(session.options());
    if (!wanted)
        return Text::tr(
            "A booklet is printed on both sides, turned on the short edge. This printer does not do that "
            "itself: make one PDF of it with the built-in printer, then print the odd pages of that PDF, and "
            "the even ones on their backs.");
    const QString option = session.options().optionText(wanted->option);
    if (session.chosen(wanted->option) == wanted->choice)
        return {};
    if (session.choose(wanted->option, wanted->choice).verdict != Verdict::Accepted)
        return Text::
            tr("A booklet is printed on both sides, turned on the short edge. Another choice does not allow "
               "that: look at \"%1\".")
                .arg(option);
    return Text::tr("A booklet is printed on both sides, turned on the short edge: \"%1\" is set to that.")
        .arg(option);
}

} // namespace printdialog
