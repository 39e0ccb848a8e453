// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PhotosRun.h"

#include "PhotoPane.h"
#include "PhotoTable.h"
#include "PreviewWidget.h"
#include "PrintDialog.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <unistd.h>

using namespace printdialog;

namespace {

double now()
{
    timespec time = {};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double peakMebibytes()
{
    QFile file(QStringLiteral("/proc/self/status"));
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const QByteArray rest = text.mid(text.indexOf("VmHWM:") + 6);
    return rest.left(rest.indexOf("kB")).trimmed().toDouble() / 1024;
}

/// Goes on from one state of the window to the next, in each turn of the event loop.
class PhotosWatch : public QObject
{
public:
    explicit PhotosWatch(PrintDialog *dialog)
        : QObject(dialog)
        , pane_(dialog->findChild<PhotoPane *>())
        , preview_(dialog->findChild<PreviewWidget *>())
        , table_(dialog->findChild<PhotoTable *>())
    {
        dialog->installEventFilter(this);
        timer_.setTimerType(Qt::PreciseTimer);
        connect(&timer_, &QTimer::timeout, this, &PhotosWatch::look);
        timer_.start(1);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool result = QObject::eventFilter(watched, event);
        if (event->type() == QEvent::Paint && painted_ == 0.0)
            QTimer::singleShot(0, this, [this] { painted_ = painted_ > 0 ? painted_ : now(); });
        return result;
    }

private:
    void look()
    {
        if (usable_ > 0)
            held_ = std::max(held_, static_cast<double>(turn_.nsecsElapsed()) / 1e6);
        turn_.start();
        QScrollBar *bar = table_->verticalScrollBar();
        if (painted_ > 0 && usable_ == 0.0 && preview_->isReady() && bar->maximum() > 0)
            usable_ = now();
        if (usable_ > 0 && opened_ == 0.0 && !pane_->isOpening())
            opened_ = now();
        if (opened_ == 0.0 || !pane_->isReady())
            return;
        if (bar->value() < bar->maximum())
            return bar->setValue(bar->value() + 10 * bar->pageStep()); // far, but not to the end at once
        std::printf("%.3f %.3f %.3f %.3f %.1f\n", painted_, usable_, opened_, held_, peakMebibytes());
        std::fflush(stdout);
        _exit(0);
    }

    PhotoPane *pane_;
    PreviewWidget *preview_;
    PhotoTable *table_;
    QTimer timer_;
    QElapsedTimer turn_;
    double painted_ = 0.0;
    double usable_ = 0.0;
    double opened_ = 0.0;
    double held_ = 0.0;
};

} // namespace

int runPhotos(const QString &folder)
{
    const QDir files(folder);
    PrintDialogSetup setup;
    for (const QString &name : files.entryList(QDir::Files))
        setup.furtherPaths += files.filePath(name);
    if (setup.furtherPaths.isEmpty())
        return 1;
    const auto photo = Photo::open(setup.furtherPaths.takeFirst());
    if (!photo)
        return 1;
    setup.photos = {*photo};
    setup.remembers = false;
    PrintDialog dialog(setup);
    new PhotosWatch(&dialog);
    return dialog.exec();
}
