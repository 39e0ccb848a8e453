#include "ScreenshotRun.h"
namespace printdialog {
int runScreenshot(const CommandLine &, QApplication &)
{
    return 0;
}
} // namespace printdialog
