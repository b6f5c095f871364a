// CPU time from the start of the process to the first frame: of the gallery, of a client with the controls of Qt's
// Basic style that shows the same page, and of a bare window of buttons and labels with numbers on them, as many as the
// gallery has. They take turns, and the median of the turns' ratios counts, since a machine that others use too changes
// its pace from second to second.
//
// All of them count what they show and take the time in gallery/FirstFrame.cpp. A row of a list is a control, which it
// may be by its type or not. A client that does not show as much as the gallery is no comparison, and so an error.

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr int turns = 25;
constexpr double tolerance = 0.1; // of the numbers of controls and of texts

using Command = std::vector<std::string>;

[[noreturn]] void fail(const std::string &message)
{
    std::fprintf(stderr, "bench_start: %s\n", message.c_str());
    std::exit(EXIT_FAILURE);
}

[[noreturn]] void become(Command command)
{
    std::vector<char *> arguments;
    for (std::string &argument : command)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    _exit(EXIT_FAILURE);
}

/// Runs a program to its end and returns what it prints.
std::string outputOf(const Command &command)
{
    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0)
        fail("no pipe");
    const pid_t child = fork();
    if (child == 0) {
        dup2(pipe[1], STDOUT_FILENO);
        close(pipe[0]);
        close(pipe[1]);
        become(command);
    }
    close(pipe[1]);
    std::string output;
    std::array<char, 256> buffer{};
    for (ssize_t size = 0; (size = read(pipe[0], buffer.data(), buffer.size())) > 0;)
        output.append(buffer.data(), std::size_t(size));
    close(pipe[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (status != 0)
        fail(command.front() + " failed");
    return output;
}

struct Start
{
    int controls = 0;
    int texts = 0;
    int ms = 0;
};

Start startOf(const Command &command)
{
    const std::string output = outputOf(command);
    Start start;
    if (std::sscanf(output.c_str(), "controls %d texts %d ms %d", &start.controls, &start.texts, &start.ms) != 3)
        fail(command.front() + " printed: " + output);
    return start;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void expectAsMuch(const std::string &name, const Start &shown, const Start &gallery)
{
    const auto isFar = [](int count, int wanted) { return std::abs(count - wanted) > tolerance * wanted; };
    if (isFar(shown.controls, gallery.controls) || isFar(shown.texts, gallery.texts)) {
        fail(name + " shows " + std::to_string(shown.controls) + " controls and " + std::to_string(shown.texts) +
             " texts, the gallery " + std::to_string(gallery.controls) + " and " + std::to_string(gallery.texts));
    }
}

} // namespace

int main()
{
    // Frames are made and not drawn: a graphics driver in software would cost more than all the rest.
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("QT_QUICK_BACKEND", "rhi", 1);
    setenv("QSG_RHI_BACKEND", "null", 1);
    // As the gallery has it: a texture for all icons as large as Qt's own would be 8 MB to clear for the client.
    setenv("QSG_ATLAS_WIDTH", "1024", 1);
    setenv("QSG_ATLAS_HEIGHT", "512", 1);

    // The first run of each reads its files from the disk, and fills Qt's caches of compiled files.
    const Command galleryCommand{TAMBLE_GALLERY, "--first-frame"};
    Start gallery = startOf(galleryCommand);
    const Command clientCommand{BASIC_CLIENT, "--first-frame"};
    Start client = startOf(clientCommand);
    expectAsMuch("the client with the Basic style", client, gallery);
    const Command bareCommand{BASIC_CLIENT, "--first-frame", "--bare", std::to_string(gallery.controls),
                              std::to_string(gallery.texts)};
    Start bare = startOf(bareCommand);
    expectAsMuch("the bare window", bare, gallery);

    std::vector<double> toClient;
    std::vector<double> toBare;
    for (int i = 0; i < turns; ++i) {
        const int galleryMs = startOf(galleryCommand).ms;
        const int clientMs = startOf(clientCommand).ms;
        const int bareMs = startOf(bareCommand).ms;
        toClient.push_back(double(galleryMs) / clientMs);
        toBare.push_back(double(galleryMs) / bareMs);
        gallery.ms = std::min(gallery.ms, galleryMs);
        client.ms = std::min(client.ms, clientMs);
        bare.ms = std::min(bare.ms, bareMs);
    }
    std::printf(
        "gallery %d controls %d texts, the same with Basic %d controls %d texts, bare window %d controls %d texts; "
        "least %d, %d and %d ms, median ratios %.2f and %.2f\n",
        gallery.controls, gallery.texts, client.controls, client.texts, bare.controls, bare.texts, gallery.ms,
        client.ms, bare.ms, median(toClient), median(toBare));
    return EXIT_SUCCESS;
}
