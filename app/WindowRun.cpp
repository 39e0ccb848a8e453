#include "WindowRun.h"
namespace printdialog { int runWindow(const CommandLine &, QApplication &) { return 0; } }
