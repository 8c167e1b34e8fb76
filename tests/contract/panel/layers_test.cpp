// What panels and screens promise, of the real session layer and of the fakes.

#include "contract/panel/PanelProbe.h"
#include "contract/panel/SessionTest.h"
#include "platform/x11/panel/X11Panel.h"
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
    virtual Panels& panels() = 0;
    virtual Screens& screens() = 0;
    /// Points here and below have their origin at the bottom left.
    virtual void click(const QPointF& point) = 0;
    virtual bool shows(const QPointF& point) = 0;
    virtual void setCutout(unsigned points) = 0;
    /// Gives the screen that size; an empty one turns it off.
    virtual void resize(QSize size) = 0;
};

class FakeWorld final : public World {
public:
    FakeWorld() { setCutout(0); }
    Panels& panels() override { return panels_; }
    Screens& screens() override { return screens_; }
    void click(const QPointF& point) override { panels_.click(point); }
    bool shows(const QPointF& point) override { return panels_.shows(point); }
    void setCutout(unsigned points) override { screens_.screen = screenOf(width, top, points); }
    void resize(QSize size) override {
        screens_.change(
            size.isEmpty() ? std::nullopt : std::optional(screenOf(size.width(), size.height())));
    }

private:
    FakeScreens screens_;
    FakePanels panels_{screens_};
};

class X11World final : public World {
public:
    X11World() { connection_->startDelivery(); }
    ~X11World() override { setCutout(0); }
    Panels& panels() override { return panels_; }
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
    void resize(QSize size) override {
        if (!size.isEmpty())
            height_ = size.height();
        display->setResolution(size);
    }

private:
    QPoint pixelAt(const QPointF& point) const {
        return {int(point.x()), int(height_ - point.y())};
    }

    double height_ = top; // of the screen

    XClient client_;
    Driver driver_;
    std::unique_ptr<X11Connection> connection_ = X11Connection::open();
    X11Screens screens_{*connection_};
    X11Panels panels_{*connection_, screens_};
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
    auto owned = std::make_unique<GradientView>();
    const QPointer<GradientView> view(owned.get());
    auto panel = world->panels().create(std::move(owned));
    const QPointF inside(700, top - 12), below(700, top - height - 12);
    for (const bool presented : {true, false, true}) {
        SCOPED_TRACE(presented);
        panel->request({.height = height, .presented = presented});
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

TEST_P(Layers, APanelFollowsItsScreen) {
    auto owned = std::make_unique<GradientView>();
    const GradientView& view = *owned;
    const auto panel = world->panels().create(std::move(owned));
    panel->request({.height = height});
    int told = 0;
    QObject::connect(&world->screens(), &Screens::changed, &view, [&] { ++told; });
    for (const QSize size : {QSize(1024, 600), QSize(), QSize(800, 600), displaySize}) {
        SCOPED_TRACE(testing::Message() << size.width());
        const int before = told;
        world->resize(size);
        if (size.isEmpty()) {
            // A server may leave what is seen nowhere as it was.
            const bool isThere = world->screens().mainScreen().has_value();
            EXPECT_TRUE(waitFor([&] { return world->shows({500, 600 - height / 2}) == isThere; }));
            continue;
        }
        EXPECT_TRUE(waitFor([&] { return told > before; }));
        EXPECT_EQ(world->screens().mainScreen()->frame, QRectF({}, size));
        EXPECT_TRUE(waitFor([&] {
            return world->shows({size.width() - 3.0, size.height() - height / 2});
        }));
        EXPECT_EQ(view.width(), size.width());
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
