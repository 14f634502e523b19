// clip_owner: copies texts in the ways that a desktop test or a measurement needs.
//
//   clip_owner lines                      each line of standard input is copied as it comes; "copied NS" is
//                                         printed for each (nanoseconds of the monotonic clock)
//   clip_owner burst COUNT MICROSECONDS PREFIX   COUNT copies "PREFIX0", "PREFIX1", … that far apart
//   clip_owner large BYTES                one text of that many bytes
//   clip_owner concealed|late|silent|short|stalled|dying|vanishing TEXT
//
// It serves what it owns until its standard input ends; "done READ" tells how many copies of a burst were
// read.

#include "SelectionOwner.h"

#include <poll.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <map>
#include <string>

using namespace std::chrono_literals;
using velm::Manners;
using velm::SelectionOwner;
using Clock = std::chrono::steady_clock;

namespace
{

constexpr auto lateness = 400ms;

void say(const char *word, std::uint64_t number)
{
    std::printf("%s %llu\n", word, static_cast<unsigned long long>(number));
    std::fflush(stdout);
}

std::uint64_t nowNanoseconds()
{
    return static_cast<std::uint64_t>(std::chrono::nanoseconds(Clock::now().time_since_epoch()).count());
}

// Serves until the instant, or until standard input says something (then true).
bool serveUntil(SelectionOwner &owner, Clock::time_point end)
{
    for (;;) {
        owner.serve();
        const auto left = end - Clock::now();
        if (left <= 0ns || !owner.isConnected())
            return false;
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(left);
        const timespec limit{seconds.count(), std::chrono::nanoseconds(left - seconds).count()};
        pollfd watched[]{{owner.descriptor(), POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
        ppoll(watched, 2, &limit, nullptr);
        if (watched[1].revents != 0)
            return true;
    }
}

void copyLines(SelectionOwner &owner)
{
    std::string waiting;
    char buffer[4096];
    while (serveUntil(owner, Clock::now() + 24h)) {
        const ssize_t count = read(STDIN_FILENO, buffer, sizeof buffer);
        if (count <= 0)
            return;
        waiting.append(buffer, static_cast<std::size_t>(count));
        for (auto end = waiting.find('\n'); end != std::string::npos; end = waiting.find('\n')) {
            const auto instant = nowNanoseconds();
            owner.copy(waiting.substr(0, end));
            say("copied", instant);
            waiting.erase(0, end + 1);
        }
    }
}

void copyBurst(SelectionOwner &owner, int count, std::chrono::microseconds interval,
               const std::string &prefix)
{
    const auto begin = Clock::now();
    say("began", nowNanoseconds());
    for (int i = 0; i < count; ++i) {
        owner.copy(prefix + std::to_string(i));
        if (serveUntil(owner, begin + (i + 1) * interval))
            return;
    }
    serveUntil(owner, Clock::now() + 1s); // the last one is still being read
    say("done", owner.readCopies());
}

void serveText(Manners manners, std::string text)
{
    SelectionOwner owner(manners, lateness);
    owner.copy(std::move(text));
    say("copied", nowNanoseconds());
    serveUntil(owner, Clock::now() + 24h);
}

int usage()
{
    std::fputs("usage: clip_owner lines | burst COUNT MICROSECONDS PREFIX | large BYTES |"
               " concealed|late|silent|short|stalled|dying|vanishing TEXT\n",
               stderr);
    return 2;
}

}

int main(int argc, char **argv)
{
    const std::map<std::string, Manners> ways{{"concealed", Manners::Concealed}, {"late", Manners::Late},
                                              {"silent", Manners::Silent},       {"short", Manners::Short},
                                              {"stalled", Manners::Stalled},     {"dying", Manners::Dying},
                                              {"vanishing", Manners::Vanishing}};
    const std::string way = argc > 1 ? argv[1] : "";
    if (way == "lines" && argc == 2) {
        SelectionOwner owner(Manners::Proper);
        copyLines(owner);
    } else if (way == "burst" && argc == 5) {
        SelectionOwner owner(Manners::Proper);
        copyBurst(owner, std::stoi(argv[2]), std::chrono::microseconds(std::stol(argv[3])), argv[4]);
        serveUntil(owner, Clock::now() + 24h);
    } else if (way == "large" && argc == 3) {
        std::string text(std::stoul(argv[2]), 'a');
        for (std::size_t i = 79; i < text.size(); i += 80)
            text[i] = '\n';
        serveText(Manners::Proper, std::move(text));
    } else if (const auto found = ways.find(way); found != ways.end() && argc == 3) {
        serveText(found->second, argv[2]);
    } else {
        return usage();
    }
    return 0;
}
