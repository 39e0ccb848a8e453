// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "PrintDialog.h"
#include "RecordingFeedback.h"

#include <QtCore/QFile>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>

class QTranslator;

Q_DECLARE_METATYPE(printdialog::PanelMode)

namespace testing_support {

using namespace printdialog;
using namespace Qt::StringLiterals;

/// A test of the window: each case has its own settings and caches, which are empty.
class WindowTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();

protected:
    /// For tests that run in each mode, which is mode_ then; for initTestCase_data().
    void addModes();

    PanelMode mode_ = PanelMode::Constraint;
    std::shared_ptr<RecordingFeedback> feedback_;
    std::unique_ptr<QTemporaryDir> config_;

private:
    bool hasModes_ = false;
};

/// The setup of a dialog with the sample photo, for the built-in printer with the PPD of the model that has
/// all options.
PrintDialogSetup setupFor(PanelMode mode);
/// The same for the printer, or for the user's default.
PrintDialogSetup setupForPrinter(PanelMode mode = PanelMode::Constraint,
                                 const std::optional<QString> &printer = {});

/// Sets the program's language as long as the translator lives.
bool speak(QTranslator &translator, const QString &language);
QRect inWindow(const QWidget *widget);
bool isWhollySeen(const QWidget *widget);

/// A dialog as the program opens it, with a separate folder for what it prints.
class OpenedDialog
{
public:
    explicit OpenedDialog(PrintDialogSetup setup);
    explicit OpenedDialog(PanelMode mode = PanelMode::Constraint)
        : OpenedDialog(setupFor(mode))
    {
    }

    template <class Widget>
    Widget *find(const QString &name) const
    {
        return dialog->findChild<Widget *>(name);
    }
    bool isSeen(const QString &name) const { return find<QWidget>(name)->isVisible(); }
    QString message() const { return dialog->message(); }
    /// The control of the page that is shown.
    QWidget *control(int tag) const;
    QSlider *slider(int tag) const { return qobject_cast<QSlider *>(control(tag)); }
    /// What stands in the text fields of the page that is shown, separated by spaces.
    QString fieldText(int tag) const;
    QString fieldTexts(const QList<int> &tags) const;
    /// Replaces it by keys.
    void type(int tag, const QString &text) const;
    void click(const QString &name) const;
    QComboBox *chooseLast(const QString &name) const;
    /// The key in what has the focus.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;
    void undo() const { press(Qt::Key_Z, Qt::ControlModifier); }
    void redo() const { press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

    /// Clicks on Print and waits for the photo.
    bool prints() const;
    bool hasPrinted() const;
    /// The options of the ticket.
    QJsonObject options() const;
    /// The choices for these options, all separated by spaces.
    QString printed(const QString &options) const;

    QTemporaryDir folder;
    std::unique_ptr<PrintDialog> dialog;
};

} // namespace testing_support
