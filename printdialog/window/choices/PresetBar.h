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

/// The names of a printer's presets: chooses, saves, renames and deletes them without a box over the dialog.
/// It knows names only; others decide what they stand for and whether a name is allowed.
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

    /// Stands for the printer's defaults, the first of the choices, in place of a preset's name. No preset
    /// can have this name.
    static QString defaultsName() { return QStringLiteral("\n"); }

    /// Sets the names to choose from; afterwards, none of them is in use.
    void setNames(const QList<Name> &names);
    /// Sets the preset in use (none for an unknown name), and whether its choices were changed since.
    void setCurrent(const QString &name, bool isChanged);
    QString current() const { return current_; }

    /// Shows why something is not possible; a name that is being typed stays.
    void showError(const QString &text);
    /// Call when the requested change is done.
    void endEditing();
    /// The error shown; empty when there is none.
    QString error() const;

    /// The menu of the preset actions, to which others may add.
    QMenu *menu() const { return menu_; }

Q_SIGNALS:
    /// The list of names is about to open.
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
    bool isNew_ = false; ///< the name being typed is for a new preset
};

} // namespace printdialog
