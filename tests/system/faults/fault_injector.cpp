// Stands between a program and the system's library (LD_PRELOAD), counts the calls that deal with
// files, memory and threads, and has one of them fail, or a signal come with it. The calls of the
// library among its own functions, and all that concerns standard error, pass it by. See
// fault_sweep_test.cpp.
//
// By the environment:
//   FAULT_LOG    a file that gets a line for each call, its name; with FAULT_AT "!" for each that
//                failed, and nothing else
//   FAULT_ONLY   count the calls of that name only
//   FAULT_AT     the number of the call that fails, from 1 on
//   FAULT_ERROR  the errno that it fails with; 0 for a transfer of one byte
//   FAULT_AFTER  names, with a blank before and behind each, whose calls fail from there on, too
//   FAULT_SIGNAL the signal that comes in front of that call, which does not fail then
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

extern "C" void* __libc_malloc(std::size_t bytes);  // NOLINT(bugprone-reserved-identifier)

namespace {

/// What a program asks for less of comes from memory that it has.
constexpr std::size_t kWorthFailing = 64 * 1024;
/// A program that hangs is ended.
constexpr unsigned kLongestRunSeconds = 60;

struct Plan {
  Plan() {
    const char* const logPath = std::getenv("FAULT_LOG");
    if (logPath == nullptr) return;
    log = static_cast<int>(
        syscall(SYS_openat, AT_FDCWD, logPath, O_WRONLY | O_CREAT | O_TRUNC, 0600));
    if (const char* const name = std::getenv("FAULT_ONLY")) only = name;
    if (const char* const number = std::getenv("FAULT_AT")) at = std::atoi(number);
    if (const char* const number = std::getenv("FAULT_ERROR")) error = std::atoi(number);
    if (const char* const names = std::getenv("FAULT_AFTER")) after = names;
    if (const char* const number = std::getenv("FAULT_SIGNAL")) signal = std::atoi(number);
    alarm(kLongestRunSeconds);
  }

  int log = -1;
  std::string_view only;
  int at = 0;
  int error = 0;
  /// Names with a blank before and behind each.
  std::string_view after;
  int signal = 0;
  std::atomic<int> calls = 0;
};

Plan& ThePlan() {
  static Plan plan;
  return plan;
}

/// The program's first call may come late: the plan is there before it starts.
[[gnu::constructor]] void ReadPlan() {
  ThePlan();
}

void Note(const Plan& plan, std::string_view text) {
  syscall(SYS_write, plan.log, text.data(), text.size());
}

bool StaysBroken(const Plan& plan, std::string_view name) {
  for (std::size_t place = plan.after.find(name); place != std::string_view::npos;
       place = plan.after.find(name, place + 1)) {
    const std::size_t end = place + name.size();
    if (plan.after[place - 1] == ' ' && plan.after[end] == ' ') return true;
  }
  return false;
}

/// Counts the call. Whether it is to fail; errno is set then.
bool Fails(std::string_view name) {
  Plan& plan = ThePlan();
  if (plan.log < 0 || (!plan.only.empty() && plan.only != name)) return false;
  const int number = ++plan.calls;
  if (plan.at == 0) {
    Note(plan, name);
    Note(plan, "\n");
    return false;
  }
  if (number < plan.at || (number > plan.at && !StaysBroken(plan, name))) return false;
  Note(plan, "!");
  if (plan.signal != 0) {
    raise(plan.signal);
    return false;
  }
  errno = plan.error;
  return true;
}

template <typename Function>
Function Real(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  static const auto kReal = Real<int (*)(const char*, int, ...)>("open");
  // A full disk lets a file be emptied, and only then has no room for what shall be written.
  const bool empties = (flags & (O_TRUNC | O_EXCL)) == O_TRUNC;
  const bool creates = (flags & O_CREAT) != 0;
  const char* const name = empties ? "empty" : creates ? "create" : "open";
  return Fails(name) ? -1 : kReal(path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  static const auto kReal = Real<int (*)(int, const char*, int, ...)>("openat");
  return Fails("open") ? -1 : kReal(folder, path, flags, mode);
}

ssize_t read(int descriptor, void* buffer, std::size_t bytes) {
  static const auto kReal = Real<ssize_t (*)(int, void*, std::size_t)>("read");
  if (!Fails("read")) return kReal(descriptor, buffer, bytes);
  return errno == 0 ? kReal(descriptor, buffer, std::min<std::size_t>(bytes, 1)) : -1;
}

ssize_t write(int descriptor, const void* buffer, std::size_t bytes) {
  static const auto kReal = Real<ssize_t (*)(int, const void*, std::size_t)>("write");
  if (descriptor == STDERR_FILENO || !Fails("write")) return kReal(descriptor, buffer, bytes);
  return errno == 0 ? kReal(descriptor, buffer, std::min<std::size_t>(bytes, 1)) : -1;
}

/// Closed in any case.
int close(int descriptor) {
  static const auto kReal = Real<int (*)(int)>("close");
  const bool fails = Fails("close");
  const int error = errno;
  const int result = kReal(descriptor);
  if (!fails) return result;
  errno = error;
  return -1;
}

/// Nobody cuts the power here, and to wait for the disk would take longer than all else.
int fsync(int /*descriptor*/) {
  return Fails("fsync") ? -1 : 0;
}

int stat(const char* path, struct stat* status) noexcept {
  static const auto kReal = Real<int (*)(const char*, struct stat*)>("stat");
  return Fails("stat") ? -1 : kReal(path, status);
}

int lstat(const char* path, struct stat* status) noexcept {
  static const auto kReal = Real<int (*)(const char*, struct stat*)>("lstat");
  return Fails("lstat") ? -1 : kReal(path, status);
}

int fstat(int descriptor, struct stat* status) noexcept {
  static const auto kReal = Real<int (*)(int, struct stat*)>("fstat");
  return Fails("fstat") ? -1 : kReal(descriptor, status);
}

int rename(const char* from, const char* to) noexcept {
  static const auto kReal = Real<int (*)(const char*, const char*)>("rename");
  if (Fails("rename")) return -1;
  const int result = kReal(from, to);
  if (result == 0) static_cast<void>(Fails("renamed"));  // a place for a signal: it is done
  return result;
}

int remove(const char* path) noexcept {
  static const auto kReal = Real<int (*)(const char*)>("remove");
  return Fails("remove") ? -1 : kReal(path);
}

int unlink(const char* path) noexcept {
  static const auto kReal = Real<int (*)(const char*)>("unlink");
  return Fails("unlink") ? -1 : kReal(path);
}

int ftruncate(int descriptor, off_t bytes) noexcept {
  static const auto kReal = Real<int (*)(int, off_t)>("ftruncate");
  return Fails("ftruncate") ? -1 : kReal(descriptor, bytes);
}

int fchmod(int descriptor, mode_t mode) noexcept {
  static const auto kReal = Real<int (*)(int, mode_t)>("fchmod");
  return Fails("fchmod") ? -1 : kReal(descriptor, mode);
}

int fchown(int descriptor, uid_t user, gid_t group) noexcept {
  static const auto kReal = Real<int (*)(int, uid_t, gid_t)>("fchown");
  return Fails("fchown") ? -1 : kReal(descriptor, user, group);
}

ssize_t flistxattr(int descriptor, char* names, std::size_t bytes) noexcept {
  static const auto kReal = Real<ssize_t (*)(int, char*, std::size_t)>("flistxattr");
  return Fails("flistxattr") ? -1 : kReal(descriptor, names, bytes);
}

int fcntl(int descriptor, int command, ...) {
  va_list arguments;
  va_start(arguments, command);
  void* const argument = va_arg(arguments, void*);
  va_end(arguments);
  static const auto kReal = Real<int (*)(int, int, ...)>("fcntl");
  return Fails("fcntl") ? -1 : kReal(descriptor, command, argument);
}

int poll(pollfd* files, nfds_t number, int milliseconds) {
  static const auto kReal = Real<int (*)(pollfd*, nfds_t, int)>("poll");
  return Fails("poll") ? -1 : kReal(files, number, milliseconds);
}

DIR* opendir(const char* path) {
  static const auto kReal = Real<DIR* (*)(const char*)>("opendir");
  return Fails("opendir") ? nullptr : kReal(path);
}

DIR* fdopendir(int descriptor) {
  static const auto kReal = Real<DIR* (*)(int)>("fdopendir");
  return Fails("opendir") ? nullptr : kReal(descriptor);
}

dirent* readdir(DIR* folder) {
  static const auto kReal = Real<dirent* (*)(DIR*)>("readdir");
  return Fails("readdir") ? nullptr : kReal(folder);
}

char* realpath(const char* path, char* resolved) noexcept {
  static const auto kReal = Real<char* (*)(const char*, char*)>("realpath");
  return Fails("realpath") ? nullptr : kReal(path, resolved);
}

ssize_t readlink(const char* path, char* target, std::size_t bytes) noexcept {
  static const auto kReal = Real<ssize_t (*)(const char*, char*, std::size_t)>("readlink");
  return Fails("readlink") ? -1 : kReal(path, target, bytes);
}

char* getcwd(char* path, std::size_t bytes) noexcept {
  static const auto kReal = Real<char* (*)(char*, std::size_t)>("getcwd");
  return Fails("getcwd") ? nullptr : kReal(path, bytes);
}

FILE* fopen(const char* path, const char* mode) {
  static const auto kReal = Real<FILE* (*)(const char*, const char*)>("fopen");
  return Fails("fopen") ? nullptr : kReal(path, mode);
}

FILE* fopen64(const char* path, const char* mode) {
  static const auto kReal = Real<FILE* (*)(const char*, const char*)>("fopen64");
  return Fails("fopen") ? nullptr : kReal(path, mode);
}

std::size_t fwrite(const void* data, std::size_t bytes, std::size_t number, FILE* file) {
  static const auto kReal =
      Real<std::size_t (*)(const void*, std::size_t, std::size_t, FILE*)>("fwrite");
  return file != stderr && Fails("fwrite") ? 0 : kReal(data, bytes, number, file);
}

int fflush(FILE* file) {
  static const auto kReal = Real<int (*)(FILE*)>("fflush");
  return file != stderr && Fails("fflush") ? EOF : kReal(file);
}

/// Closed in any case.
int fclose(FILE* file) {
  static const auto kReal = Real<int (*)(FILE*)>("fclose");
  const bool fails = Fails("fclose");
  const int error = errno;
  const int result = kReal(file);
  if (!fails) return result;
  errno = error;
  return EOF;
}

int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*start)(void*),
                   void* argument) noexcept {
  static const auto kReal =
      Real<int (*)(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*)>("pthread_create");
  return Fails("pthread_create") ? errno : kReal(thread, attributes, start, argument);
}

void* malloc(std::size_t bytes) noexcept {
  return bytes >= kWorthFailing && Fails("malloc") ? nullptr : __libc_malloc(bytes);
}

/// Workbooks note the time at which they were made; two runs shall write the same.
std::time_t time(std::time_t* result) noexcept {
  constexpr std::time_t kAlways = 1'000'000'000;
  if (result != nullptr) *result = kAlways;
  return kAlways;
}

}  // extern "C"
