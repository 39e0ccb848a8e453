// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PrinterSelection.h"
#include "Rows.h"
#include "TestMain.h"

#include <functional>

using namespace printdialog;
using State = PrinterSelection::State;

using Events = std::function<void(PrinterSelection &)>;

/// What may take the place of a printer of an earlier time, as far as the tests of the window do not come to
/// it.
class PrinterSelectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void becomes_data()
    {
        const Events isDefault = [this](PrinterSelection &selection) {
            QVERIFY(!selection.found(mine_, true)); // it is shown already
        };
        const Events isChosenAndGone = [this](PrinterSelection &selection) {
            selection.chosen(mine_);
            selection.gone();
        };
        addRows<State, Events, State>({
            {"open, and the default", State::Open, isDefault, State::Kept},
            {"used, and the default", State::Used, isDefault, State::Used},
            {"kept, and printed on", State::Kept, &PrinterSelection::used, State::Used},
            {"used, and gone", State::Used, &PrinterSelection::gone, State::Kept},
            {"chosen, and gone", State::Kept, isChosenAndGone, State::Chosen},
        });
    }

    void becomes()
    {
        const auto [before, events, after] = row<State, Events, State>();
        PrinterSelection selection;
        selection.recall(mine_, before);
        events(selection);
        QCOMPARE(selection.state(), after);
    }

private:
    const Destination mine_{QStringLiteral("mine")};
};

CORVEL_TEST(PrinterSelectionTest)
#include "PrinterSelectionTest.moc"
