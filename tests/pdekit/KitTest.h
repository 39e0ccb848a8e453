// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Bundle.h"
#include "ControlAction.h"
#include "ControlValues.h"
#include "FormLoader.h"
#include "KeyValueObject.h"
#include "RadioMatrix.h"
#include "Rows.h"
#include "SystemLog.h"
#include "TextFieldEvents.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLocale>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSlider>

/// The kit that dialog and plug-in share.
class KitTest : public pdekit::KeyValueObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void act(QObject *sender) { actedOn << sender; }
    QObjectList actedOn;

    Q_INVOKABLE void openPage(const QUrl &page) { openedPages_.append(page.fileName()); }

private Q_SLOTS:
    void init();
    void cleanup();
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
    /// A folder with an Info.json: this one, or that of a bundle of no use.
    static void
    makeBundle(const QTemporaryDir &folder,
               const QByteArray &info = R"({"CFBundleIdentifier": "a", "CFBundleExecutable": "x"})");
    static void write(const QString &path, const QByteArray &bytes);
    /// The form of controls of every kind.
    std::unique_ptr<QWidget> loadControls();

    QStringList log_;         ///< the system log of a test
    QStringList openedPages_; ///< by the desktop, as far as it knows
};
