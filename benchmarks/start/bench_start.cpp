// CPU time of the gallery from the start of its process to the first frame, against that of a window of Qt's Basic
// style with as many buttons and labels. The two take turns; the least of all runs counts, since anything else on the
// machine only adds to it.

#include <QtGui/QGuiApplication>
#include <QtQml/QQmlApplicationEngine>
#include <QtQuick/QQuickWindow>
#include <QtQuickControls2/QQuickStyle>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int runs = 7;
constexpr auto plainWindow = R"(
    import QtQuick
    import QtQuick.Controls.Basic

    ApplicationWindow {
        id: root

        property int controls
        property int texts

        visible: true
        width: 1280
        height: 800

        Flow {
            anchors.fill: parent

            Repeater {
                model: root.controls

                Button {
                    required property int index

                    text: index
                }
            }
            Repeater {
                model: root.texts

                Label {
                    required property int index

                    text: index
                }
            }
        }
    })";

/// Shows the plain window until its first frame. Its buttons have a text each, which counts among the texts.
int showPlain(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    const int controls = atoi(argv[2]);
    QQmlApplicationEngine engine;
    engine.setInitialProperties(
        {{QStringLiteral("controls"), controls}, {QStringLiteral("texts"), std::max(0, atoi(argv[3]) - controls)}});
    engine.loadData(plainWindow);
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (!window)
        return EXIT_FAILURE;
    QObject::connect(window, &QQuickWindow::frameSwapped, &application, [] {
        std::printf("ms %ld\n", long(std::clock() * 1000 / CLOCKS_PER_SEC));
        QCoreApplication::quit();
    });
    return QGuiApplication::exec();
}

/// Runs a program to its end and returns what it prints.
std::string outputOf(std::vector<std::string> command)
{
    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0)
        std::exit(EXIT_FAILURE);
    const pid_t child = fork();
    if (child == 0) {
        dup2(pipe[1], STDOUT_FILENO);
        close(pipe[0]);
        close(pipe[1]);
        std::vector<char *> arguments;
        for (std::string &argument : command)
            arguments.push_back(argument.data());
        arguments.push_back(nullptr);
        execv(arguments[0], arguments.data());
        _exit(EXIT_FAILURE);
    }
    close(pipe[1]);
    std::string output;
    std::array<char, 256> buffer{};
    for (ssize_t size = 0; (size = read(pipe[0], buffer.data(), buffer.size())) > 0;)
        output.append(buffer.data(), std::size_t(size));
    close(pipe[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (status != 0) {
        std::fprintf(stderr, "%s failed\n", command.front().c_str());
        std::exit(EXIT_FAILURE);
    }
    return output;
}

/// The number behind `name` in `output`.
int numberIn(const std::string &output, const std::string &name)
{
    const std::size_t place = output.find(name + ' ');
    return place == std::string::npos ? 0 : atoi(output.c_str() + place + name.size() + 1);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 4 && std::string_view(argv[1]) == "--plain")
        return showPlain(argc, argv);

    // Frames are made and not drawn: a graphics driver in software would cost more than all the rest.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "rhi");
    qputenv("QSG_RHI_BACKEND", "null");

    // The first run of each fills Qt's caches of compiled files.
    const std::vector<std::string> gallery{TAMBLE_GALLERY, "--first-frame"};
    const std::string shown = outputOf(gallery);
    const int controls = numberIn(shown, "controls");
    const int texts = numberIn(shown, "texts");
    const std::vector<std::string> plain{argv[0], "--plain", std::to_string(controls), std::to_string(texts)};
    outputOf(plain);
    int least = std::numeric_limits<int>::max();
    int leastPlain = least;
    for (int i = 0; i < runs; ++i) {
        least = std::min(least, numberIn(outputOf(gallery), "ms"));
        leastPlain = std::min(leastPlain, numberIn(outputOf(plain), "ms"));
    }
    std::printf("%d controls, %d texts: gallery %d ms, plain window %d ms, ratio %.2f\n", controls, texts, least,
                leastPlain, double(least) / double(leastPlain));
    return EXIT_SUCCESS;
}
