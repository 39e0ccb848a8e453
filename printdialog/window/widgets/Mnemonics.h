// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QSet>
#include <QtCore/QStringList>

class QWidget;

namespace printdialog {

/// The letters that Alt is pressed with, none of which may stand for two things in one window. It finds free
/// ones for texts that come from elsewhere, such as a plug-in's.
class Mnemonics
{
public:
    /// Takes the letters that the texts have.
    void take(const QStringList &texts);
    /// Takes those of the window's labels and buttons, hidden ones as well, but of none in `except`.
    void takeAllIn(const QWidget &window, const QWidget *except);

    /// The texts with a free letter marked in as many as possible; the first texts come first. A letter that
    /// is marked and free stays; in a writing without Latin letters it is put behind the text. Takes the
    /// letters.
    QStringList mark(const QStringList &texts);

    /// Marks letters in the view's labels and buttons, as mark() does.
    void markAllIn(QWidget &view);

private:
    QSet<QChar> taken_;
};

} // namespace printdialog
