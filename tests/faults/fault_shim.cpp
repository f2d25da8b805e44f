// Loaded before the C library, this makes the n-th file operation below a folder fail, or cuts the
// power at it. Everything else passes through. Wanted by environment variables:
//   KAVELA_FAULT_FOLDER  only files below this folder count
//   KAVELA_FAULT_AT      number of the operation, counted from 1
//   KAVELA_FAULT_KIND    an error number; "short", which writes half and then reports a full disk;
//                        or "power", which kills the process and loses what was not flushed
//   KAVELA_FAULT_LARGE   set where files opened as large ones count too, as Qt opens them
//   KAVELA_FAULT_REPORT  file made when the fault struck

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <map>
#include <set>
#include <string>

namespace {

template <class Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

std::string setting(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

struct Shim {
    std::string folder = setting("KAVELA_FAULT_FOLDER");
    std::string kind = setting("KAVELA_FAULT_KIND");
    long at = std::strtol(setting("KAVELA_FAULT_AT").c_str(), nullptr, 10);
    long count = 0;
    bool diskIsFull = false;
    std::set<int> files;          ///< open descriptors that count
    std::map<int, int> unflushed; ///< written descriptors, each with a duplicate of our own

    [[nodiscard]] bool counts(const char* path) const {
        return !folder.empty() && std::string(path).starts_with(folder);
    }
};

Shim& shim() {
    static Shim instance;
    return instance;
}

void report() {
    const int file = next<int(const char*, int, ...)>("open")(
        setting("KAVELA_FAULT_REPORT").c_str(), O_WRONLY | O_CREAT, 0600);
    next<int(int)>("close")(file);
}

/// What reached only the memory is gone after a power cut.
[[noreturn]] void cutPower() {
    for (const auto& [file, duplicate] : shim().unflushed)
        if (::ftruncate(duplicate, 0) != 0)
            std::abort();
    ::raise(SIGKILL);
    std::abort();
}

/// Whether the operation that is about to happen is the one to fail.
bool strikes() {
    if (++shim().count != shim().at)
        return false;
    report();
    if (shim().kind == "power")
        cutPower();
    errno = shim().kind == "short" ? ENOSPC : std::atoi(shim().kind.c_str());
    return true;
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const unsigned mode = flags & O_CREAT ? va_arg(arguments, unsigned) : 0;
    va_end(arguments);
    const bool counts = shim().counts(path);
    if (counts && strikes())
        return -1;
    const int file = next<int(const char*, int, ...)>("open")(path, flags, mode);
    if (counts && file >= 0)
        shim().files.insert(file);
    return file;
}

int open64(const char* path, int flags, ...) {
    std::va_list arguments;
    va_start(arguments, flags);
    const unsigned mode = flags & O_CREAT ? va_arg(arguments, unsigned) : 0;
    va_end(arguments);
    const bool counts = !setting("KAVELA_FAULT_LARGE").empty() && shim().counts(path);
    if (counts && strikes())
        return -1;
    const int file = next<int(const char*, int, ...)>("open64")(path, flags, mode);
    if (counts && file >= 0)
        shim().files.insert(file);
    return file;
}

ssize_t write(int file, const void* bytes, size_t size) {
    const auto real = next<ssize_t(int, const void*, size_t)>("write");
    if (!shim().files.contains(file))
        return real(file, bytes, size);
    if (shim().diskIsFull) {
        errno = ENOSPC;
        return -1;
    }
    if (!shim().unflushed.contains(file))
        shim().unflushed[file] = ::dup(file);
    if (!strikes())
        return real(file, bytes, size);
    if (shim().kind != "short")
        return -1;
    shim().diskIsFull = true;
    return real(file, bytes, size / 2);
}

int fsync(int file) {
    if (!shim().files.contains(file))
        return next<int(int)>("fsync")(file);
    if (strikes())
        return -1;
    const int result = next<int(int)>("fsync")(file);
    if (const auto entry = shim().unflushed.find(file); entry != shim().unflushed.end()) {
        next<int(int)>("close")(entry->second);
        shim().unflushed.erase(entry);
    }
    return result;
}

int close(int file) {
    const bool fails = shim().files.erase(file) > 0 && strikes();
    const int error = errno;
    const int result = next<int(int)>("close")(file);
    if (auto node = shim().unflushed.extract(file)) {
        node.key() = -node.key() - 1; // the number may be given to another file now
        shim().unflushed.insert(std::move(node));
    }
    if (fails)
        errno = error;
    return fails ? -1 : result;
}

int rename(const char* from, const char* to) {
    if (shim().counts(to) && strikes())
        return -1;
    return next<int(const char*, const char*)>("rename")(from, to);
}

int link(const char* from, const char* to) {
    if (shim().counts(to) && strikes())
        return -1;
    return next<int(const char*, const char*)>("link")(from, to);
}

int fchmod(int file, mode_t mode) {
    if (shim().files.contains(file) && strikes())
        return -1;
    return next<int(int, mode_t)>("fchmod")(file, mode);
}

} // extern "C"
