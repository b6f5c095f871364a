#include "Supervision.h"

#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <stdexcept>

#include <malloc.h>

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

} // namespace

struct Trace::Page
{
    std::size_t used;
    std::array<char, 1 << 16> text;
};

Trace::Trace()
{
    void *memory = mmap(nullptr, sizeof(Page), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::runtime_error("no shared memory");
    m_page = new (memory) Page{};
}

Trace::~Trace()
{
    munmap(m_page, sizeof(Page));
}

void Trace::clear()
{
    m_page->used = 0;
}

void Trace::add(std::string_view line)
{
    if (m_page->used + line.size() + 1 > m_page->text.size())
        return;
    std::memcpy(m_page->text.data() + m_page->used, line.data(), line.size());
    m_page->used += line.size();
    m_page->text.at(m_page->used++) = '\n';
}

std::string_view Trace::text() const
{
    return {m_page->text.data(), m_page->used};
}

int supervised(const std::function<int()> &work)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0)
        std::exit(work());
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child) {
        std::fprintf(stderr, "no process of its own\n");
        return 1;
    }
    if (WIFEXITED(status))
        return WEXITSTATUS(status);
    const int number = WTERMSIG(status);
    const bool tookTooLong = number == SIGPROF || number == SIGALRM;
    std::fprintf(stderr, "%s (%s)\n", tookTooLong ? "took too long" : "crashed", strsignal(number));
    return 1;
}

void limitFurtherMemory(std::size_t bytes)
{
    if (isSanitized)
        return;
    mallopt(M_ARENA_MAX, 1); // an arena for each thread would reserve much more than it uses
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    rlimit limits{};
    getrlimit(RLIMIT_AS, &limits);
    limits.rlim_cur = pages * std::size_t(sysconf(_SC_PAGESIZE)) + bytes;
    setrlimit(RLIMIT_AS, &limits);
}

void limitTime(std::chrono::seconds time)
{
    const auto seconds = time.count() * (isSanitized ? 10 : 1);
    const itimerval processorTime{{0, 0}, {seconds, 0}};
    setitimer(ITIMER_PROF, &processorTime, nullptr);
    alarm(unsigned(seconds * 20)); // a machine may have other things to do
}
