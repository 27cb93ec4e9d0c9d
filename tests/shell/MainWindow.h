#pragma once

// The main window of a freshly started program, operated through its controls.

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <memory>

#include "settings/Settings.h"
#include "shell/FrmMain.h"
#include "shell/StartSequence.h"
#include "tests/support/FormDriver.h"
#include "tests/support/FreshProgram.h"
#include "tests/support/TestHost.h"

namespace zg {

class MainWindow : public ::testing::Test, protected FormDriver {
 protected:
    void SetUp() override {
        startSettings();
        start();
    }

    /// Opens the window as the start of the program does.
    void start() {
        window_ = std::make_unique<frmMain>(host_);
        window_->Form_Load();
        window_->show();
    }

    QWidget& driven() override { return *window_; }
    QAction& entry(const char* name) { return *window_->menuAction(name); }
    PolarGraph& plot() { return window_->pgPolarGraph(); }

    FreshProgram program_;
    const TempDirectory& directory_ = program_.directory;
    TestHost host_;
    std::unique_ptr<frmMain> window_;
};

/// The same with the focus in the window.
class ActiveMainWindow : public MainWindow {
 protected:
    void SetUp() override {
        MainWindow::SetUp();
        showActive(*window_);
    }
};

}  // namespace zg
