// The smallest Qt Widgets program that shows a window with text: what every Qt program pays for.

#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QLabel label(QStringLiteral("A minimal window"));
    QPalette palette = label.palette();
    palette.setColor(QPalette::Window, Qt::white);
    label.setPalette(palette);
    label.setWindowFlag(Qt::FramelessWindowHint);
    label.setGeometry(0, 0, 1512, 32);
    label.show();
    return QApplication::exec();
}
