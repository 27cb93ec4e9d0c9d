#pragma once

#include <QLabel>
#include <QScrollBar>
#include <QWidget>
#include <functional>
#include <memory>

#include "graph/control/PolarGraph.h"
#include "platform/QtCanvas.h"

class QPrinter;

namespace zg {

class PageWidget;
class RulerWidget;

/// The window of a PolarGraph: its child surfaces are widgets with their own names; its page is an image that
/// holds the drawing and is repainted sharply on every screen.
class PolarGraphWidget : public QWidget, private ControlWindow {
    Q_OBJECT

 public:
    /// The tables are those of its PolarGraph and must outlive the widget.
    PolarGraphWidget(Host& host, ModPolarGraph& tables, const PropertyBag& designed,
                     QWidget* parent = nullptr);
    ~PolarGraphWidget() override;

    PolarGraph& graph() { return *graph_; }

    /// What has been painted on the page, at the screen's resolution.
    const QImage& pageImage();

    /// Asks for a printer; false if cancelled. May be replaced to bypass the desktop's dialog.
    std::function<bool(QPrinter& printer)> askPrinter;

    /// A line in grey over the empty page, in the window only; an empty one shows nothing.
    void setInvitation(const QString& text);
    const QString& invitation() const { return invitation_; }

    /// Small enough for any window; the page scrolls.
    QSize minimumSizeHint() const override { return {200, 160}; }

 signals:
    void aboutRequested(const QString& title);

    /// The wheel was turned with Ctrl held: 1 for away from the user, -1 for towards the user.
    void zoomTurned(int direction);

 protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

 private:
    friend class PageWidget;
    friend class RulerWidget;

    Canvas& pageCanvas() override;
    void pageResized(int width, int height) override;
    void layoutChanged() override;
    void shapesChanged() override;
    void rulersChanged() override;
    void keepPicture() override;
    bool restorePicture() override;
    void pagePainted() override;
    void propertyChanged() override {}
    void pointerChanged() override;
    PicturePointer copyPage(const Rect& part) override;
    PicturePointer paintPage(double side, const Rect& part,
                             const std::function<void(Canvas&)>& paint) override;
    void pictureToClipboard(const Picture& picture) override;
    void saveBitmap(const Picture& picture, const std::string& path) override;
    void print(double side, const std::function<void(Canvas&)>& paint) override;
    void showAbout(const std::string& title) override;
    void trackAngleChanged(const std::string& text) override;
    PicturePointer loadPicture(const std::string& path) override;

    void endPainting() { canvas_.reset(); }
    void followScreen();
    void placeScrollBar(QScrollBar& bar, const ChildSurface& place, const ScrollRange& range);
    void scrolled();

    Host& host_;
    QImage page_;
    QImage kept_;  ///< the persistent picture; shares its pixels with the page until the page is painted on
    std::unique_ptr<QtCanvas> canvas_;  ///< only while the page is being painted
    QString invitation_;
    QWidget* picShadow_;
    PageWidget* picGraph_;
    QScrollBar* hsScroll_;
    QScrollBar* vsScroll_;
    QWidget* picScroll_;
    QLabel* lblTrackAngle_;
    QWidget* picHolderRH_;
    QWidget* picHolderRV_;
    RulerWidget* picRulerH_;
    RulerWidget* picRulerV_;
    RulerWidget* picRulerJ_;
    std::unique_ptr<PolarGraph> graph_;
};

}  // namespace zg
