// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PanelHarness.h"

class QRadioButton;

/// The panel of the print quality and the finish: its controls with real events, and its values.
class LaminationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void tables();
    void cellsReachTheRecord();
    void refusedCellIsNeverSeen();
    void enablerIsInverted();
    void matteLevelNeedsMatteAndTheEnabler();
    void modelRetiresControls();
    void modelWithoutAForm();
    void otherModelsKeepControls_data();
    void otherModelsKeepControls();
    void matrixVariant();

    void qualIsClamped();
    void isMatte();
    void boundValueIsStored();
    void boundValueNamesAMember();
    void boundValueIsRefused_data();
    void boundValueIsRefused();

private:
    static QByteArray ppd();
    static QRadioButton *cell(const PanelHarness &dialog, const char *name);
    static void click(QRadioButton *cell);
    /// The notices of a panel, as they come: "<" before a change of a key, ">" after it.
    static void record(pdekit::KeyValueObject &panel, QStringList &notices);
};
