// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "KeyValueObject.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QUrl>

/// The kit that dialog and plug-in share.
class KitTest : public pdekit::KeyValueObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void act(QObject *sender) { actedOn << sender; }
    QObjectList actedOn;

    Q_INVOKABLE void openPage(const QUrl &page) { openedPages_.append(page.fileName()); }

private Q_SLOTS:
    void leadingNumbers_data();
    void leadingNumbers();
    void bundleFaults_data();
    void bundleFaults();
    void bundleFiles();
    void languages();
    void signalLog();
    void systemLogOnStandardError();
    void forms();
    void sliderValues_data();
    void sliderValues();
    void otherValues();
    void actionsOfUsersOnly();
    void textFieldEvents();
    void decimalSeparators_data();
    void decimalSeparators();
    void rangeOfANumber();
    void viewsByTag();
    void desktopFeedback();
    void boundValueFollowsTheControl_data();
    void boundValueFollowsTheControl();
    void boundControlFollowsTheValue();

private:
    QStringList openedPages_; ///< by the desktop, as far as it knows
};
