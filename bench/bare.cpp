// SPDX-FileCopyrightText: 2026 The Quillets developers
// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QLabel>

#include <memory>
#include <vector>

namespace
{
constexpr int WindowsInARow = 10;
constexpr int ChildrenInARow = 5;
constexpr QSize WindowSize(220, 168);
constexpr QSize ChildSize(40, 30);
} // namespace

/// The least that a Qt program with so many windows costs: frameless windows of 25 child widgets each. The number of
/// windows is the argument.
int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const int count = argc > 1 ? app.arguments().at(1).toInt() : 1;
    std::vector<std::unique_ptr<QWidget>> windows;
    for (int i = 0; i < count; ++i) {
        auto window = std::make_unique<QWidget>(nullptr, Qt::Window | Qt::FramelessWindowHint);
        window->setAttribute(Qt::WA_ShowWithoutActivating);
        window->setWindowTitle(QString::number(i + 1));
        for (int child = 0; child < ChildrenInARow * ChildrenInARow; ++child) {
            auto *label = new QLabel(QString::number(child), window.get());
            label->setGeometry(
                {{child % ChildrenInARow * ChildSize.width(), child / ChildrenInARow * ChildSize.height()}, ChildSize});
        }
        window->setGeometry({{1 + i % WindowsInARow * 100, 1 + i / WindowsInARow * 80}, WindowSize});
        window->show();
        windows.push_back(std::move(window));
    }
    return app.exec();
}
