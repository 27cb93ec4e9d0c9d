#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "graph/control/PolarGraph.h"
#include "tests/support/RecordingCanvas.h"

/// A part of a page of which only the size matters.
class CopiedPage : public zg::Picture {
 public:
    explicit CopiedPage(const zg::Rect& part) : part_(part) {}
    int width() const override { return static_cast<int>(part_.right - part_.left); }
    int height() const override { return static_cast<int>(part_.bottom - part_.top); }

 private:
    zg::Rect part_;
};

/// A window without a toolkit: it records the control's requests in order, and its page records what is
/// drawn.
class FakeWindow : public zg::ControlWindow {
 public:
    RecordingCanvas canvas{1, 1};
    std::vector<std::string> calls;
    std::vector<std::pair<int, int>> pageSizes;
    std::string aboutTitle;

    /// Number of calls since the last forget.
    std::ptrdiff_t count(const std::string& call) const {
        return std::count(calls.begin(), calls.end(), call);
    }

    /// Number of whole frames painted since the last forget.
    std::size_t frames() const { return canvas.all<drawn::KeepPicture>().size(); }

    void forget() {
        calls.clear();
        pageSizes.clear();
        canvas.commands.clear();
    }

    zg::Canvas& pageCanvas() override { return canvas; }
    void pageResized(int width, int height) override {
        calls.emplace_back("pageResized");
        pageSizes.emplace_back(width, height);
        canvas.resize(width, height);
    }
    void layoutChanged() override { calls.emplace_back("layoutChanged"); }
    void shapesChanged() override { calls.emplace_back("shapesChanged"); }
    void rulersChanged() override { calls.emplace_back("rulersChanged"); }
    void keepPicture() override { hasPicture = true; }
    bool restorePicture() override {
        calls.emplace_back("restorePicture");
        return hasPicture;
    }
    bool hasPicture = false;
    void pagePainted() override { calls.emplace_back("pagePainted"); }
    void propertyChanged() override { calls.emplace_back("propertyChanged"); }
    void pointerChanged() override { calls.emplace_back("pointerChanged"); }
    zg::PicturePointer copyPage(const zg::Rect& part) override {
        copied.push_back(part);
        return std::make_shared<CopiedPage>(part);
    }
    zg::PicturePointer paintPage(double side, const zg::Rect& part,
                                 const std::function<void(zg::Canvas&)>& paint) override {
        painted.commands.clear();
        painted.resize(side, side);
        paint(painted);
        return std::make_shared<CopiedPage>(part);
    }
    void pictureToClipboard(const zg::Picture& picture) override {
        clipboard.emplace_back(picture.width(), picture.height());
    }
    void saveBitmap(const zg::Picture& picture, const std::string& path) override {
        saved.emplace_back(path, picture.width());
    }
    void print(double side, const std::function<void(zg::Canvas&)>& paint) override {
        printed.resize(side, side);
        paint(printed);
    }
    void showAbout(const std::string& title) override { aboutTitle = title; }
    void trackAngleChanged(const std::string& text) override { trackAngles.push_back(text); }
    zg::PicturePointer loadPicture(const std::string& path) override {
        const auto found = pictures.find(path);
        return found == pictures.end() ? nullptr : found->second;
    }

    std::vector<zg::Rect> copied;
    std::vector<std::pair<int, int>> clipboard;
    std::vector<std::pair<std::string, int>> saved;
    RecordingCanvas painted{1, 1};  ///< the last page that was not shown
    RecordingCanvas printed{1, 1};
    std::vector<std::string> trackAngles;
    std::map<std::string, zg::PicturePointer> pictures;
};
