// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QHash>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

class QLabel;
class QLineEdit;
class QScrollArea;
class QVBoxLayout;

namespace printdialog {

class OptionPage;
class OptionRow;

/// The view of the dialog's own page: the options under the headings of their groups, and a field that
/// searches them when there are many. The rows that can be seen are made at once, the others when the
/// application is idle, so that a page of a thousand options is shown as fast as one of ten.
class OptionPageView : public QWidget
{
    Q_OBJECT

public:
    explicit OptionPageView(OptionPage &page);

    /// Makes the rows anew.
    void setKeys(const QStringList &keys);
    /// Makes the option's controls show the page's choice.
    void showChoice(const QString &key);
    /// Whether every row is made.
    bool isComplete() const { return next_ >= keys_.size(); }

    QSize sizeHint() const override;

Q_SIGNALS:
    /// Rows were added: their controls are in this widget.
    void rowMade(QWidget *row);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeRows(int milliseconds);
    void makeRow(const QString &key);
    void addSection(const QString &group);
    void linkTabOrder(QWidget *row);
    int widestLabel() const;
    void search();
    void updateHeadings();

    OptionPage &page_;
    QStringList keys_;
    QHash<QString, QString> headingOf_; // the text of the option's group
    qsizetype next_ = 0;                // the first key without a row
    int nextTag_ = 1;
    int labelWidth_ = 0;
    QLineEdit *search_;
    QScrollArea *area_;
    QWidget *list_ = nullptr;
    QVBoxLayout *column_ = nullptr;
    QLabel *nothing_;
    QHash<QString, OptionRow *> rows_;
    /// Some rows that follow each other, laid out on their own: adding one costs the same on every page.
    struct Section
    {
        QWidget *box;
        QString group;
        QLabel *heading; // null where the group began earlier
        QList<OptionRow *> rows;
    };
    QList<Section> sections_;
    QWidget *lastFocus_ = nullptr; // of the rows so far
    QTimer idle_;
};

} // namespace printdialog
