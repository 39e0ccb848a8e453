#pragma once
#include "CommandLine.h"
class QApplication;
namespace printdialog { int runWindow(const CommandLine &, QApplication &); }
