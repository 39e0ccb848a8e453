// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "Mnemonics.h"

#include <QtCore/QHash>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>

#include <algorithm>
#include <functional>
#include <optional>

namespace printdialog {

namespace {

bool isKey(QChar c)
{
    return (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9'); // what every keyboard has
}

/// The index of the marked letter; -1: there is none.
qsizetype markedAt(const QString &text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) != u'&')
            continue;
        if (text.at(++i) != u'&')
            return i;
    }
    return -1;
}

/// The marked letter; null: there is none.
QChar marked(const QString &text)
{
    const qsizetype place = markedAt(text);
    return place < 0 ? QChar() : text.at(place).toUpper();
}

QString unmarked(QString text)
{
    if (const qsizetype place = markedAt(text); place > 0)
        text.remove(place - 1, 1);
    return text;
}

/// The letters that can be marked: first letters of words come first.
QString lettersOf(const QString &text)
{
    QString starts;
    QString others;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i).toUpper();
        if (!isKey(c) || starts.contains(c) || others.contains(c))
            continue;
        (i == 0 || text.at(i - 1).isSpace() ? starts : others).append(c);
    }
    return starts + others;
}

bool hasLetters(const QString &text)
{
    return std::ranges::any_of(text,
                               [](QChar c) { return c.isLetter() && c.script() == QChar::Script_Latin; });
}

QString withMark(const QString &text, QChar letter)
{
    if (!hasLetters(text))
        return QStringLiteral("%1(&%2)").arg(text, letter);
    qsizetype place = -1;
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
        const bool isStart = i == 0 || text.at(i - 1).isSpace();
        if (text.at(i).toUpper() == letter &&
            (isStart || place < 0 || !(place == 0 || text.at(place - 1).isSpace())))
            place = i;
    }
    return QString(text).insert(place, u'&');
}

/// The text of a button, or of a label with a buddy; null for other widgets.
std::optional<QString> textOf(const QWidget *widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text();
    const auto *label = qobject_cast<const QLabel *>(widget);
    return label && label->buddy() ? std::optional(label->text()) : std::nullopt;
}

/// Whether its Alt letter would do anything.
bool isUseful(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    const QWidget *meant = label ? label->buddy() : widget;
    return !widget->isHidden() && (meant->focusPolicy() != Qt::NoFocus || meant->focusProxy());
}

void setTextOf(QWidget *widget, const QString &text)
{
    if (auto *button = qobject_cast<QAbstractButton *>(widget))
        button->setText(text);
    else
        static_cast<QLabel *>(widget)->setText(text);
}

} // namespace

void Mnemonics::reserve(const QStringList &texts)
{
    for (const QString &text : texts) {
        if (const QChar letter = marked(text); !letter.isNull())
            taken_.insert(letter);
    }
}

void Mnemonics::reserveAllIn(const QWidget &window, const QWidget *except)
{
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (const auto text = textOf(widget); text && widget != except && !except->isAncestorOf(widget))
            reserve({*text});
    }
}

// Each text in turn gets a letter; earlier texts may switch to another of their letters for that.
QStringList Mnemonics::mark(const QStringList &texts)
{
    QStringList plain;
    QHash<QChar, qsizetype> owners;
    QList<QString> wanted;
    for (const QString &text : texts) {
        const QChar own = marked(text);
        const bool keeps = !own.isNull() && !taken_.contains(own) && !owners.contains(own);
        if (keeps)
            owners.insert(own, plain.size());
        plain.append(keeps ? text : unmarked(text));
        wanted.append(keeps              ? QString(own)
                      : hasLetters(text) ? lettersOf(plain.constLast())
                                         : QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"));
    }
    QSet<QChar> tried;
    const std::function<bool(qsizetype)> find = [&](qsizetype text) {
        for (const bool mayDisplace : {false, true}) {
            for (const QChar letter : wanted.at(text)) {
                if (taken_.contains(letter) || tried.contains(letter) ||
                    (owners.contains(letter) && !mayDisplace))
                    continue;
                tried.insert(letter);
                if (!owners.contains(letter) || find(owners.value(letter))) {
                    owners.insert(letter, text);
                    return true;
                }
            }
        }
        return false;
    };
    for (qsizetype i = 0; i < plain.size(); ++i) {
        tried.clear();
        if (marked(plain.at(i)).isNull() && !plain.at(i).isEmpty())
            find(i);
    }
    for (auto owner = owners.cbegin(); owner != owners.cend(); ++owner) {
        QString &text = plain[owner.value()];
        if (marked(text).isNull())
            text = withMark(text, owner.key());
        taken_.insert(owner.key());
    }
    return plain;
}

void Mnemonics::markAllIn(QWidget &view)
{
    QList<QWidget *> widgets;
    QStringList texts;
    for (QWidget *widget : view.findChildren<QWidget *>()) {
        const auto text = textOf(widget);
        const bool isSymbol =
            text && std::ranges::none_of(*text, [](QChar c) { return c.isLetterOrNumber(); });
        if (!text || isSymbol || !isUseful(widget))
            continue;
        widgets.append(widget);
        texts.append(*text);
    }
    const QStringList now = mark(texts);
    for (qsizetype i = 0; i < widgets.size(); ++i) {
        if (now.at(i) != texts.at(i))
            setTextOf(widgets.at(i), now.at(i));
    }
}

} // namespace printdialog
