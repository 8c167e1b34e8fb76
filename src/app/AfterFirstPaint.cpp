#include "app/AfterFirstPaint.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

using namespace std::chrono_literals;

namespace velmora {

AfterFirstPaint::AfterFirstPaint(QObject* parent, std::function<void()> task)
    : QObject(parent), task_(std::move(task)) {
    QCoreApplication::instance()->installEventFilter(this);
    QTimer::singleShot(1s, this, &AfterFirstPaint::run);
}

bool AfterFirstPaint::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        QCoreApplication::instance()->removeEventFilter(this);
        QTimer::singleShot(0, this, &AfterFirstPaint::run);
    }
    return false;
}

void AfterFirstPaint::run() {
    deleteLater();
    if (const auto task = std::exchange(task_, nullptr))
        task();
}

} // namespace velmora
