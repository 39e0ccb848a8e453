// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QList>
#include <QtWidgets/QWidget>

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QStackedWidget;
class QToolButton;

namespace printdialog {

/// The names of a printer's presets, to choose one of them, and to save, rename and delete them without any
/// box over the dialog. It knows names only: what they stand for, and whether a name may be used, is for
/// others to say.
class PresetBar : public QWidget
{
    Q_OBJECT

public:
    struct Name
    {
        QString name;
        bool isWritable = true;
    };

    explicit PresetBar(QWidget *parent = nullptr);

    /// What there is to choose from; none of them is in use then.
    void setNames(const QList<Name> &names);
    /// The preset in use, none for a name that there is not, and whether anything was changed since.
    void setCurrent(const QString &name, bool isChanged);
    QString current() const { return current_; }

    /// Says why something is not possible; a name that is being typed stays.
    void showError(const QString &text);
    /// What was asked for is done.
    void endEditing();
    /// What it says is not possible; empty when nothing is.
    QString error() const;

    /// The menu of what can be done with presets, to which others may add.
    QMenu *menu() const { return menu_; }

Q_SIGNALS:
    /// The user is about to see the names.
    void aboutToChoose();
    void chosen(const QString &name);
    void addRequested(const QString &name);
    void updateRequested(const QString &name);
    void renameRequested(const QString &name, const QString &newName);
    void removeRequested(const QString &name);

protected:
    void changeEvent(QEvent *event) override;

private:
    QWidget *makeChoosingRow();
    QWidget *makeNamingRow();
    QWidget *makeRemovingRow();
    void makeMenu();
    void editName(bool isNew);
    void askToRemove();
    void acceptName();
    void showRow(int row);
    void updateActions();
    void clearError();

    QStackedWidget *rows_;
    QComboBox *names_;
    QToolButton *manage_;
    QMenu *menu_;
    QAction *update_;
    QAction *rename_;
    QAction *remove_;
    QLineEdit *name_;
    QPushButton *accept_;
    QLabel *question_;
    QLabel *error_;
    QList<Name> known_;
    QString current_;
    bool isChanged_ = false;
    bool isNew_ = false; ///< the name being typed is a new preset's
};

} // namespace printdialog
