#pragma once
#include "CommandLine.h"
class QApplication;
namespace printdialog { int runScreenshot(const CommandLine &, QApplication &); }
