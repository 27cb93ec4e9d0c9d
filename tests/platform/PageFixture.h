#pragma once

// The page in its widget, with the sample's first rose.

#include <gtest/gtest.h>

#include <memory>

#include "base/Paths.h"
#include "graph/frq/ModPolarGraph.h"
#include "platform/PolarGraphWidget.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {

class PageOutput : public ::testing::Test {
 protected:
    void SetUp() override {
        modPolarGraph = ModPolarGraph();
        applicationDirectory = directory_.path();
        widget_ = std::make_unique<PolarGraphWidget>(host_, modPolarGraph, PropertyBag());
        widget_->resize(400, 400);
        widget_->show();
        plot().Zoom(100);
        plot().OpenFreqFile(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq");
    }

    PolarGraph& plot() { return widget_->graph(); }

    TempDirectory directory_;
    TestHost host_;
    std::unique_ptr<PolarGraphWidget> widget_;
};

}  // namespace zg
