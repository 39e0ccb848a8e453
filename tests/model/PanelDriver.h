// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PanelHarness.h"
#include "PanelModel.h"

class QAbstractButton;

/// Does the steps to a real panel in a real window, with key and mouse events.
class PanelDriver
{
public:
    PanelDriver(const PanelTable &table, Mode mode);

    void take(const Step &step);
    Sight sight() const;
    QString localized(const QString &key) const { return bundle_->localizedString(key); }

    /// Makes the panel; a test puts its own class in the place of the plug-in's.
    template <class Panel>
    void open()
    {
        auto panel = harness_.make<Opened<Panel>>();
        choices_ = [opened = panel.get()] {
            return opened->choiceDict_.value_or(QHash<QString, QString>());
        };
        bundle_ = panel->pdeBundle_;
        panel_ = std::move(panel);
        mount();
    }
    /// Makes the panel that the table describes.
    void open();

private:
    void mount();
    void act(QWidget *control, const Step &step);
    void click(QAbstractButton *button, bool withMouse);
    void tell(const Step &step);
    ControlSight look(const FormControl &form) const;

    const PanelTable &table_;
    PanelHarness harness_;
    std::unique_ptr<RKTPPRBasePDEcorvel> panel_;
    std::function<QHash<QString, QString>()> choices_;
    std::optional<pdekit::Bundle> bundle_;
    QMap<int, QWidget *> widgets_; ///< by the tags of the form
    QList<QRect> places_;          ///< of the panel, the "Defaults" button and the first control at the start
};
