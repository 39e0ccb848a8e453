// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

// A bundle's form, in a panel whose controls are then used.

#include "Fuzzing.h"
#include "PlatformException.h"
#include "panels/BuiltPanel.h"
#include "panels/PanelHarness.h"

namespace {

void use(RKTPPRBasePDEcorvel &panel, QWidget &view)
{
    panel.restoreValuesAndReturnError(nullptr);
    panel.willShow();
    panel.setDefaults();
    const QList<QWidget *> views = view.findChildren<QWidget *>();
    for (QWidget *each : views) {
        if (pdekit::tag(each) >= 0)
            panel.changePrinterSetting(each);
    }
    panel.summaryInfo();
    panel.saveValuesAndReturnError(nullptr);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static PanelHarness harness(Mode::Constraint);
    const QString path = fuzzing::writeBundle(QStringLiteral("Form.bundle"));
    fuzzing::write(path + QLatin1String("/Contents/Resources/Form.ui"), fuzzing::input(data, size));
    const auto panel = harness.make<BuiltPanel>();
    panel->pdeBundle_ = pdekit::Bundle::open(path);
    panel->form = QStringLiteral("Form");
    panel->keys = QStringList{QStringLiteral("Key1"), QStringLiteral("Key2"), QStringLiteral("Enabler")};
    try {
        if (QWidget *view = panel->panelView())
            use(*panel, *view);
    } catch (const pdekit::PlatformException &) {
        // The form names an action that the panel does not have.
    }
    harness.log.clear();
    return 0;
}
