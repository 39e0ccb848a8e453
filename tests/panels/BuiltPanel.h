// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "RKTPPRBasePDEcorvel.h"
#include "ViewTags.h"

#include <QtWidgets/QWidget>

/// A panel whose view a test builds control by control, or loads from the test's own form. Its option keys
/// are "Key1" to "Key15" at the tags 1 to 15, with their partners, and "Enabler" at 32; radio cells stand for
/// "Standard" (10) and "Fine" (11).
class BuiltPanel : public RKTPPRBasePDEcorvel
{
    Q_OBJECT

public:
    Text nibName() override { return form; }
    QStringList supportedPPDOptionKeys() override { return keys; }
    Text ppdOptionKeyForTag(int tag) const override;
    Text ppdChoiceForTag(int cellTag) const override;
    int tagForStringValue(const Text &value) const override;
    int enablerState(QWidget *enabler) const override;

    QWidget *root();
    template <class Widget>
    Widget *add(int tag, QWidget *parent = nullptr)
    {
        auto *widget = new Widget(parent ? parent : root());
        pdekit::setTag(widget, tag);
        return widget;
    }

    Text form;
    QStringList keys;
    std::optional<int> fixedEnablerState;
};
