// A platform path turned into a Linux one: the backslash is a separator,
// as on the platform.
#pragma once

namespace orv::k32 {

class NativePath {
public:
    explicit NativePath(const char *path);
    // False when the path was null, empty or too long (last error set).
    bool ok() const { return ok_; }
    const char *c_str() const { return buf_; }

private:
    static constexpr unsigned capacity = 4096;
    char buf_[capacity];
    bool ok_;
};

} // namespace orv::k32
