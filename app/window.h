// The program with its main window.
#pragma once

#include <string>

#include "app/program.h"
#include "platform/desktop.h"

namespace mardel {

// As it opens, with the design of `app` on its canvas, which must outlive it.
main_window MainWindow(const program& app);

// Keeps the unsaved work of `app`, which must outlive it.
work_keeper Keeper(program& app);

// Runs until the user quits; returns the process's exit code. `design_path` may be "", as may what
// the status bar says at first. The arguments are those of main.
int RunWindow(const std::string& design_path, const std::string& first_status, int& argument_count,
              char** arguments);

}  // namespace mardel
