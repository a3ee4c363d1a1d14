// Where the zone rule comes from, and GetTimeZoneInformation itself.
//
// The rule is the TZ variable in its POSIX form; a TZ of the form ":name"
// or a bare zone name ("Europe/Paris") names a zone file under
// /usr/share/zoneinfo, as an absolute path names one directly. Without TZ
// the zone file /etc/localtime is used. Of a zone file only the rule at its
// end (versions 2 and later) is read. Anything that cannot be read or
// parsed counts as UTC. The environment is the one the process started
// with (/proc/self/environ).
#include "civil.h"
#include "last_error.h"
#include "start_environment.h"
#include "syscall.h"
#include "time_control.h"
#include "time_zone.h"

namespace orv::k32 {

namespace {

constexpr unsigned text_max = 128;

constinit bool override_set = false;
constinit char override_text[text_max] = {};
constinit bool default_known = false;
constinit TzRule default_rule = {};
constinit TzRule active = {};
constinit unsigned calls_before_failing = 0, failing_calls = 0;

class File {
public:
    explicit File(const char *path)
        : fd_(sys::call3(sys::nr_open, sys::arg(path), sys::o_rdonly | sys::o_largefile, 0)) {}
    ~File() {
        if (ok()) sys::call1(sys::nr_close, fd_);
    }
    bool ok() const { return !sys::failed(fd_); }
    long read(char *buf, unsigned n) { return sys::call3(sys::nr_read, fd_, sys::arg(buf), n); }
    // Positions at most `back` bytes before the end, at the start of a
    // shorter file.
    bool seek_tail(long back) {
        long size = sys::call3(sys::nr_lseek, fd_, 0, 2);
        if (sys::failed(size)) return false;
        return !sys::failed(sys::call3(sys::nr_lseek, fd_, size > back ? size - back : 0, 0));
    }

private:
    long fd_;
};

// The rule at the end of a zone file of version 2 or later: the text
// between its last two line feeds.
bool zone_file_rule(const char *path, TzRule &rule) {
    File f(path);
    if (!f.ok()) return false;
    char head[5];
    if (f.read(head, 5) != 5 || head[0] != 'T' || head[1] != 'Z' || head[2] != 'i' ||
        head[3] != 'f' || head[4] < '2')
        return false;
    char tail[256];
    if (!f.seek_tail(sizeof tail - 1)) return false;
    long got = f.read(tail, sizeof tail - 1);
    if (got < 2 || tail[got - 1] != '\n') return false;
    long begin = got - 2;
    while (begin >= 0 && tail[begin] != '\n') --begin;
    if (begin < 0) return false;
    tail[got - 1] = 0;
    return parse_tz_rule(tail + begin + 1, rule);
}

bool zone_name_rule(const char *name, TzRule &rule) {
    if (*name == '/') return zone_file_rule(name, rule);
    static constexpr char dir[] = "/usr/share/zoneinfo/";
    char path[sizeof dir + text_max];
    unsigned n = 0;
    for (const char *p = dir; *p; ++p) path[n++] = *p;
    for (const char *p = name; *p; ++p) {
        if (p[0] == '.' && p[1] == '.') return false;  // stay inside the zone directory
        path[n++] = *p;
    }
    path[n] = 0;
    return zone_file_rule(path, rule);
}

TzRule utc() {
    TzRule r{};
    r.std_name[0] = 'U', r.std_name[1] = 'T', r.std_name[2] = 'C';
    return r;
}

TzRule rule_from_text(const char *text) {
    TzRule r;
    if (*text == ':') {
        if (zone_name_rule(text + 1, r)) return r;
    } else if (parse_tz_rule(text, r) || (*text && zone_name_rule(text, r))) {
        return r;
    }
    return utc();
}

} // namespace

const TzRule &current_rule() {
    if (override_set) {
        active = rule_from_text(override_text);
        return active;
    }
    if (!default_known) {
        char tz[text_max];
        if (startup_variable("TZ", tz, text_max)) {
            default_rule = rule_from_text(tz);
        } else if (!zone_file_rule("/etc/localtime", default_rule)) {
            default_rule = utc();
        }
        default_known = true;
    }
    return default_rule;
}

// A zone without daylight saving needs no clock: the call is then free of
// system calls, which matters as mktime asks for the zone several times.
DWORD zone_now(TIME_ZONE_INFORMATION *info) {
    const TzRule &rule = current_rule();
    if (!rule.has_dst) return zone_info_at(rule, 0, info);
    std::int64_t now = static_cast<std::int64_t>(clock_now_ticks()) - epoch_1970_ticks;
    std::int64_t seconds = now / ticks_per_second - (now % ticks_per_second < 0);
    return zone_info_at(rule, seconds, info);
}

LONG zone_bias_now() {
    TIME_ZONE_INFORMATION info;
    switch (zone_now(&info)) {
    case TIME_ZONE_ID_STANDARD: return info.Bias + info.StandardBias;
    case TIME_ZONE_ID_DAYLIGHT: return info.Bias + info.DaylightBias;
    default: return info.Bias;
    }
}

} // namespace orv::k32

using namespace orv::k32;

extern "C" K32_API DWORD WINAPI GetTimeZoneInformation(TIME_ZONE_INFORMATION *info) {
    if (calls_before_failing != 0) {
        --calls_before_failing;
    } else if (failing_calls != 0) {
        --failing_calls;
        return fail(ERROR_INVALID_PARAMETER, TIME_ZONE_ID_INVALID);
    }
    return zone_now(info);
}

extern "C" K32_API void k32_set_time_zone(const char *rule) {
    override_set = rule != nullptr;
    if (!rule) return;
    unsigned n = 0;
    for (; rule[n] && n < text_max - 1; ++n) override_text[n] = rule[n];
    override_text[n] = 0;
}

extern "C" K32_API void k32_fail_time_zone(unsigned first, unsigned count) {
    calls_before_failing = first != 0 ? first - 1 : 0;
    failing_calls = count;
}
