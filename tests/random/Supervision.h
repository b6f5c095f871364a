#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string_view>

/// What a process is about to do, kept where it outlives the process.
class Trace
{
public:
    Trace();
    ~Trace();
    Trace(const Trace &) = delete;
    Trace &operator=(const Trace &) = delete;

    void clear();
    void add(std::string_view line);
    std::string_view text() const;

private:
    struct Page;
    Page *m_page;
};

/// Runs `work` in a process of its own and returns what it returned, or prints how it ended and returns 1.
///
/// To be called before there are threads.
int supervised(const std::function<int()> &work);

/// From here on, until the next call, the process may take so much more memory. Without effect under the address
/// sanitizer, which reserves all that there is.
void limitFurtherMemory(std::size_t bytes);

/// Ends the process when it uses so much processor time, or stands still for twenty times as long, before the next
/// call. Sanitizers have ten times the time.
void limitTime(std::chrono::seconds time);
