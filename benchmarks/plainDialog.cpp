// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0
//
// What no Qt dialog opens faster than: one with as many sliders and labels as a print dialog's page and
// nothing behind them. Prints the monotonic time of its first paint, and ends.

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QSlider>

#include <cstdio>
#include <ctime>
#include <unistd.h>

namespace {

constexpr int sliders = 20;

class PlainDialog : public QDialog
{
public:
    PlainDialog()
    {
        auto *layout = new QFormLayout(this);
        for (int i = 1; i <= sliders; ++i)
            layout->addRow(QStringLiteral("Slider %1").arg(i), new QSlider(Qt::Horizontal));
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QDialog::paintEvent(event);
        // Its children are painted before the next turn of the loop.
        QTimer::singleShot(0, this, [] {
            timespec now = {};
            clock_gettime(CLOCK_MONOTONIC, &now);
            std::printf("%.3f\n",
                        static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6);
            std::fflush(stdout);
            _exit(0);
        });
    }
};

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    PlainDialog dialog;
    QTimer::singleShot(15000, &dialog, [] { _exit(1); });
    return dialog.exec();
}
