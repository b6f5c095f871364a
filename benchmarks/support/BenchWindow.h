#pragma once

#include <QtQuick/QQuickWindow>

#include <atomic>
#include <vector>

class QQmlEngine;

/// CPU time of this process so far, all threads.
double processSeconds();

/// The middle one; reorders them.
double median(std::vector<double> &values);

/// Has windows drawn by the Null graphics backend, which does all but the drawing itself, and keeps the log quiet. To
/// be called before the application is made; no display is needed.
void drawNothing();

/// Registers the module and prepares the engine for it.
void useModule(QQmlEngine &engine);

/// A window that waits for its frames.
class BenchWindow : public QQuickWindow
{
public:
    BenchWindow();

    /// Shows a page, which has its own size.
    void showPage(QQuickItem &page);
    /// To be called before what the next frame is to show.
    void beginFrame() { m_swapped = false; }
    /// Waits for the end of that frame.
    void awaitFrame();

private:
    std::atomic_bool m_swapped = false; ///< The frame may be of another thread.
};
