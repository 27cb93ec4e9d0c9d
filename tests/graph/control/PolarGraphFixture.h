#pragma once

#include <gtest/gtest.h>

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "graph/control/PolarGraph.h"
#include "graph/frq/ModPolarGraph.h"
#include "tests/graph/control/FakeWindow.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

/// Fresh tables and a program directory of its own, and a control in a fake window.
class PolarGraphFixture : public ::testing::Test {
 protected:
    PolarGraphFixture() {
        zg::modPolarGraph = zg::ModPolarGraph();
        zg::applicationDirectory = directory.path();
    }
    ~PolarGraphFixture() override {
        zg::modPolarGraph = zg::ModPolarGraph();
        zg::applicationDirectory.clear();
    }

    /// The number of the run-time error that the action ends in, 0 for none.
    template <typename Action>
    static int errorNumberOf(Action action) {
        try {
            action();
        } catch (const zg::RunTimeError& error) {
            return error.number;
        }
        return 0;
    }

    TempDirectory directory;
    TestHost host;
    FakeWindow window;
};
