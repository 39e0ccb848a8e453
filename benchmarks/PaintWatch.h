// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QtCore/QEvent>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <ctime>
#include <unistd.h>

/// Prints the monotonic time in milliseconds, on a line.
inline void printTime()
{
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    std::printf("%.3f\n", static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6);
    std::fflush(stdout);
}

/// Prints the monotonic time of the first paint of the widget that is waited for, and ends the process.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QString objectName)
        : QObject(qApp)
        , objectName_(std::move(objectName))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // The paint event itself has not been dealt with yet; the next turn of the loop comes after it.
        if (event->type() == QEvent::Paint && watched->objectName() == objectName_) {
            QTimer::singleShot(0, this, [] {
                printTime();
                _exit(0);
            });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QString objectName_;
};
