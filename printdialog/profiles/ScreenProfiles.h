// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

#include <memory>

class QScreen;

namespace printdialog {

class ScreenProfileQuery;

/// Where the program stands that asks the color manager for a screen's profile: the color manager is reached
/// by a system bus, and a bus that hangs blocks its caller forever. Needs a QCoreApplication.
QString screenProfileProgram();

/// The ICC profiles of the screens: the X server's, or else the color manager's. Main thread only.
class ScreenProfiles : public QObject
{
    Q_OBJECT

public:
    explicit ScreenProfiles(const QString &program = screenProfileProgram(), QObject *parent = nullptr);
    ~ScreenProfiles() override;

    /// What is known at once; empty stands for sRGB. Waits for an answer of the X server: call it when the
    /// window is shown and when it comes to another screen, not when it is painted. The color manager is
    /// asked half a second later, so that it does not compete with the window's opening.
    QByteArray profileOf(const QScreen *screen);

Q_SIGNALS:
    /// profileOf() may have another answer now.
    void changed();

private:
    void askNext();
    void note(const QString &screen, const QString &path);
    void forget();

    QString program_;
    QTimer delay_;
    QHash<QString, QByteArray> known_; ///< what the color manager has answered, by screen
    QStringList wanted_;               ///< screens that it is to be asked about
    std::unique_ptr<ScreenProfileQuery> query_;
};

} // namespace printdialog
