// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QSet>
#include <QtCore/QStringList>

class QWidget;

namespace printdialog {

/// The letters pressed together with Alt, none of which may stand for two things in one window. It finds free
/// letters for texts that come from elsewhere, such as a plug-in's.
class Mnemonics
{
public:
    /// Reserves the letters marked in the texts.
    void reserve(const QStringList &texts);
    /// Reserves those of the window's labels and buttons, hidden ones included, except inside `except`.
    void reserveAllIn(const QWidget &window, const QWidget *except);

    /// Marks a free letter in as many of the texts as possible, earlier texts first, and reserves it. Returns
    /// the texts. A letter that is already marked and free stays. In a script without Latin letters, the
    /// letter is appended to the text.
    QStringList mark(const QStringList &texts);

    /// Marks letters in the view's labels and buttons, as mark() does.
    void markAllIn(QWidget &view);

private:
    QSet<QChar> taken_;
};

} // namespace printdialog
