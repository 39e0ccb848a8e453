// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QObject>

/// The dialog's protocol: a panel's life, the transfer of its choices, its summary, and the plug-in's entry.
class PanelProtocolTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fixedTables();
    void formIsLoadedWhen();
    void noPanelWithoutPpd();
    void formsThatFail();
    void endOfAPanel();
    void restoreFromThePpd();
    void restoreFromTheSettings_data();
    void restoreFromTheSettings();
    void saving();
    void defaultsOfThePpd();
    void summary();
    void dialogChangesAChoice();
    void deviceUri();
    void ppdData();
    void help();
    void brokenPipe();
    void pluginEntry();
};
