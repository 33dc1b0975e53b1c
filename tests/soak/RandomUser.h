// Somebody who plays with the gallery: pointer, wheel, keys, sizes, pages. The same seed plays the same game, as far as
// the window system takes part in it.
#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>

#include <random>

class QWidget;
class QWindow;

namespace gallery {
class MainWindow;
}

class RandomUser : public QObject
{
    Q_OBJECT

public:
    RandomUser(gallery::MainWindow *window, unsigned seed);

    void start();
    /** No further operation until start(); closes all that is open. Tells it by rested(). */
    void rest();
    qint64 operations() const { return m_operations; }

Q_SIGNALS:
    void rested();

private:
    void next();
    void operate();
    void closeSomething();
    void tidyUp();
    void closeOtherWindows();

    void movePointer();
    void click();
    void doubleClick();
    void drag();
    void letGo();
    void wheel();
    void typeKey();
    void resizeWindow();
    void changePage();
    void closeWindow();

    int number(int below);
    QWindow *chooseWindow();
    QWidget *keyReceiver() const;
    QPoint chooseSpot(const QWidget *widget);
    void note(const char *what, const QPoint &at = QPoint());

    QPointer<gallery::MainWindow> m_main;
    std::mt19937 m_random;
    QPointer<QWidget> m_top; // that the pointer is in
    QPoint m_spot;
    qint64 m_operations = 0;
    int m_running = 0; // operations on the stack: some open what has an event loop of its own
    int m_patience = 0;
    int m_quietTicks = 0;
    bool m_isResting = true;
};
