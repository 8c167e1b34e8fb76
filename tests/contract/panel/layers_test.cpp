// What panels and screens promise, of the real session layer and of the fakes.

#include "contract/panel/PanelProbe.h"
#include "contract/panel/SessionTest.h"
#include "platform/x11/panel/X11PanelWindow.h"
#include "platform/x11/screens/X11Screens.h"
#include "support/FakePanels.h"
#include "support/FakeScreens.h"

#include <QPointer>

namespace velmora::test {
namespace {

constexpr double height = 24;
constexpr double width = displaySize.width();
constexpr double top = displaySize.height();

class World {
public:
    virtual ~World() = default;
    virtual PanelWindows& panels() = 0;
    virtual Screens& screens() = 0;
    /// Points here and below have their origin at the bottom left.
    virtual void click(const QPointF& point) = 0;
    virtual bool shows(const QPointF& point) = 0;
    virtual void setCutout(unsigned points) = 0;
};

class FakeWorld final : public World {
public:
    FakeWorld() { setCutout(0); }
    PanelWindows& panels() override { return panels_; }
    Screens& screens() override { return screens_; }
    void click(const QPointF& point) override { panels_.click(point); }
    bool shows(const QPointF& point) override { return panels_.shows(point); }
    void setCutout(unsigned points) override { screens_.screen = screenOf(width, top, points); }

private:
    FakePanels panels_;
    FakeScreens screens_;
};

class X11World final : public World {
public:
    X11World() { connection_->startDelivery(); }
    ~X11World() override { setCutout(0); }
    PanelWindows& panels() override { return panels_; }
    Screens& screens() override { return screens_; }
    void click(const QPointF& point) override {
        driver_.move(pixelAt(point).x(), pixelAt(point).y());
        driver_.click();
    }
    bool shows(const QPointF& point) override { return isGradient(pixel(client_, pixelAt(point))); }
    void setCutout(unsigned points) override {
        const uint32_t insets[] = {points, 0, 0, 0};
        xcb_change_property(
            client_, XCB_PROP_MODE_REPLACE, client_.root(), client_.atom("_SAFE_AREA_INSETS"),
            XCB_ATOM_CARDINAL, 32, 4, insets);
        client_.sync();
    }

private:
    static QPoint pixelAt(const QPointF& point) { return {int(point.x()), int(top - point.y())}; }

    XClient client_;
    Driver driver_;
    std::unique_ptr<X11Connection> connection_ = X11Connection::open();
    X11PanelWindows panels_{*connection_};
    X11Screens screens_{*connection_};
};

struct Layer {
    const char* name;
    std::unique_ptr<World> (*make)();
};

class Layers : public testing::TestWithParam<Layer> {
protected:
    const std::unique_ptr<World> world = GetParam().make();
};

TEST_P(Layers, APanelIsSeenAndFeelsClicksWhileItIsPresented) {
    auto panel = world->panels().create({0, top - height, width, height});
    const QPointF inside(700, top - 12), below(700, top - height - 12);
    const QPointer<GradientView> view(new GradientView);
    panel->setContentView(view);
    EXPECT_EQ(view->width(), width);
    for (const bool presented : {true, false, true}) {
        SCOPED_TRACE(presented);
        panel->setPresented(presented);
        EXPECT_TRUE(waitFor([&] { return world->shows(inside) == presented; }));
        const int presses = view->presses + presented;
        world->click(below);
        world->click(inside);
        EXPECT_TRUE(waitFor([&] { return view->presses == presses; }));
        EXPECT_FALSE(world->shows(below));
    }
    EXPECT_EQ(view->presses, 2) << "the first and the last";
    panel.reset();
    EXPECT_FALSE(view);
    EXPECT_TRUE(waitFor([&] { return !world->shows(inside); }));
}

TEST_P(Layers, TheScreenIsAskedAnewEachTime) {
    for (const unsigned cutout : {0U, 32U, 48U, 0U}) {
        world->setCutout(cutout);
        const auto screen = world->screens().mainScreen();
        ASSERT_TRUE(screen);
        EXPECT_EQ(screen->frame, QRectF(0, 0, width, top));
        EXPECT_EQ(screen->safeAreaInsets, QMarginsF(0, cutout, 0, 0));
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, Layers,
    testing::Values(
        Layer{"fake", []() -> std::unique_ptr<World> { return std::make_unique<FakeWorld>(); }},
        Layer{"x11", []() -> std::unique_ptr<World> { return std::make_unique<X11World>(); }}),
    [](const auto& layer) { return std::string(layer.param.name); });

} // namespace
} // namespace velmora::test
