#include "support/BenchWindow.h"

#include "TambleClientControlModule.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QTimer>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItem>

#include <algorithm>
#include <cstdio>
#include <ctime>

double processSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

double median(std::vector<double> &values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void drawNothing()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Without a display, Qt Quick would paint in software instead.
    qputenv("QT_QUICK_BACKEND", "rhi");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Null);
    // Loading sheets is logged; where the log goes is no matter of what is measured.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg)
            fprintf(stderr, "%s\n", qPrintable(text));
    });
}

void useModule(QQmlEngine &engine)
{
    constexpr const char *uri = "TambleClient.Control";
    static tamble::client::TambleClientControlModule module;
    module.registerTypes(uri);
    module.initializeEngine(&engine, uri);
}

BenchWindow::BenchWindow()
{
    connect(
        this, &QQuickWindow::frameSwapped, this, [this] { m_swapped = true; }, Qt::DirectConnection);
}

void BenchWindow::showPage(QQuickItem &page)
{
    page.setParentItem(contentItem());
    resize(page.size().toSize());
    show();
    awaitFrame();
}

void BenchWindow::awaitFrame()
{
    constexpr int limitMs = 5000;
    QDeadlineTimer deadline(limitMs);
    QTimer wakeUp;
    wakeUp.start(limitMs);
    while (!m_swapped && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (!m_swapped)
        qFatal("no frame");
}
