#include "viewkit/AccessibleViews.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QMenu>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

/// A plain view. A popup menu is no child widget, so that without this nobody would find one that
/// is open in a window.
class ViewAccessible : public QAccessibleWidget {
public:
    explicit ViewAccessible(QWidget* view) : QAccessibleWidget(view, QAccessible::Client) {}

    QAccessible::Role role() const override {
        if (widget()->isWindow())
            return QAccessible::Window;
        return widget()->accessibleName().isEmpty() ? QAccessible::Client : QAccessible::Grouping;
    }

    int childCount() const override {
        return QAccessibleWidget::childCount() + (openMenu() ? 1 : 0);
    }

    QAccessibleInterface* child(int index) const override {
        if (index >= 0 && index == QAccessibleWidget::childCount())
            return QAccessible::queryAccessibleInterface(openMenu());
        return QAccessibleWidget::child(index);
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        if (child && openMenu() && child->object() == openMenu())
            return QAccessibleWidget::childCount();
        return QAccessibleWidget::indexOfChild(child);
    }

private:
    QMenu* openMenu() const {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QWidget* opener = menu ? menu->parentWidget() : nullptr;
        if (qobject_cast<QPushButton*>(opener))
            opener = opener->window();
        return opener == widget() ? menu : nullptr;
    }
};

QAccessibleInterface* make(const QString& className, QObject* object) {
    // The end of every view's chain of classes: one that is more than a view is known by then.
    if (className != u"QWidget"_s)
        return nullptr;
    return new ViewAccessible(static_cast<QWidget*>(object));
}

} // namespace

void installAccessibleViews() {
    QAccessible::installFactory(make);
}

} // namespace velmora
