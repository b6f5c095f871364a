// Writes values that no page should write to the properties of all types of the module, in random order, and draws.
//
// Nothing may crash, hang, take much memory or leave objects behind. TAMBLE_RANDOM_SECONDS sets how long this goes on
// (4), TAMBLE_RANDOM_SEED with which round it begins (1). A round depends on its number alone; the one that failed is
// printed.

#include "LiveObjects.h"
#include "RandomPage.h"
#include "Supervision.h"
#include "TambleClientControlModule.h"

#include <QtCore/QElapsedTimer>
#include <QtGui/QGuiApplication>
#include <QtQml/QQmlContext>

#include <cstdio>

namespace {

constexpr std::size_t memoryPerRound = std::size_t(512) << 20;
constexpr std::chrono::seconds timePerStep(5);
// What is made once, and pictures and values of styles that are kept for a while: 60 to 140 with Qt 6.4, up to 190 with
// Qt 6.8, after 200 rounds as after 1,600.
constexpr int keptObjects = 300;

int environmentNumber(const char *name, int otherwise)
{
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber ? number : otherwise;
}

// Mistakes of pages are reported, and there are millions here.
void keepSilent(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

class Rounds
{
public:
    explicit Rounds(Trace &trace)
        : m_trace(trace)
    {
        tamble::client::TambleClientControlModule module;
        module.registerTypes("TambleClient.Control");
        module.initializeEngine(&m_engine, "TambleClient.Control");
        m_surroundings.setData("import QtQuick\n"
                               "import TambleClient.Control 1.0\n"
                               "Item {"
                               "  RThemeSelector { themeComponent: Component { RTheme {} } }"
                               "  RStyleEngineSetup { engine.defaultStyleSheetSource: 'qrc:/style/tamble.dark.style' }"
                               "}",
                               QUrl());
        m_shelf = std::make_unique<TypeShelf>(m_engine);
        m_window.resize(200, 200);
        m_window.show();
        m_window.grabWindow();
    }

    void run(int seed)
    {
        // Each round's own: Qt keeps pools of what earlier ones took, a hundred megabytes after twenty thousand items.
        limitFurtherMemory(memoryPerRound);
        m_trace.clear();
        m_trace.add("TAMBLE_RANDOM_SEED=" + std::to_string(seed));
        // Anew, since types of the module can change it.
        const std::unique_ptr<QObject> surroundings(m_surroundings.create());
        Random random{std::uint32_t(seed)};
        RandomPage page(m_engine, m_window, random, [this](const QString &step) {
            m_trace.add(step.toStdString());
            limitTime(timePerStep);
        });
        page.add(*m_shelf, std::size_t(seed) % m_shelf->count());
        page.add(*m_shelf, random.below(m_shelf->count()));
        page.add(*m_shelf, random.below(m_shelf->count()));
        for (int step = 0; step < 24; ++step) {
            page.write();
            if (random.oneIn(8))
                page.draw();
            if (random.oneIn(32))
                page.remove();
        }
        page.draw();
        m_trace.add("end of the round");
    }

    /// To be called between rounds.
    void collect()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_engine.collectGarbage();
    }

private:
    Trace &m_trace;
    QQmlEngine m_engine;
    QQmlComponent m_surroundings{&m_engine};
    std::unique_ptr<TypeShelf> m_shelf;
    QQuickWindow m_window;
};

bool hasLeftObjects(const ClassCounts &before)
{
    std::string text;
    if (moreThan(before, text) <= keptObjects)
        return false;
    std::fprintf(stderr, "objects are left:\n%s", text.c_str());
    return true;
}

int runRounds(Trace &trace, int firstSeed, int seconds, int argc, char **argv)
{
    qputenv("QT_QUICK_BACKEND", "rhi"); // instead of the software renderer, which leaves out what it does not know
    qputenv("QSG_RHI_BACKEND", "null");
    qputenv("QSG_RENDER_LOOP", "basic");
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler(keepSilent);
    watchObjects();
    Rounds rounds(trace);

    QElapsedTimer timer;
    timer.start();
    int seed = firstSeed;
    rounds.run(seed++);
    rounds.collect();
    const ClassCounts afterTheFirst = liveObjects();
    while (timer.elapsed() < seconds * 1000)
        rounds.run(seed++);
    rounds.collect();
    std::printf("rounds %d to %d\n", firstSeed, seed - 1);
    return hasLeftObjects(afterTheFirst) ? 1 : 0;
}

} // namespace

int main(int argc, char **argv)
{
    const int seed = environmentNumber("TAMBLE_RANDOM_SEED", 1);
    const int seconds = environmentNumber("TAMBLE_RANDOM_SECONDS", 4);
    Trace trace;
    const int result = supervised([&] { return runRounds(trace, seed, seconds, argc, argv); });
    if (result != 0)
        std::fwrite(trace.text().data(), 1, trace.text().size(), stderr);
    return result;
}
