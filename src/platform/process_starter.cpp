#include "platform/process_starter.h"

#include <string>
#include <thread>

#include "common/run_time_error.h"

#ifdef _WIN32
#include <shellapi.h>
#include <windows.h>
#else
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace veldrana {

#ifdef _WIN32

void HostProcessStarter::start(std::string_view program) {
    const std::filesystem::path path = disk_.host_path(program);
    SHELLEXECUTEINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = SEE_MASK_FLAG_NO_UI;
    info.lpFile = path.c_str();
    const std::filesystem::path folder = path.parent_path();
    info.lpDirectory = folder.c_str();
    info.nShow = SW_SHOWNORMAL;
    if (ShellExecuteExW(&info) == FALSE) {
        throw RunTimeError(GetLastError() == ERROR_ACCESS_DENIED ? Failure::permission_denied
                                                                 : Failure::invalid_call);
    }
}

void HostProcessStarter::reap() {}

#else

namespace {

// What a program is started with: nothing of this one's input and results, whose messages it
// shares, and its own folder.
class FileActions {
  public:
    explicit FileActions(const std::filesystem::path& folder) {
        if (posix_spawn_file_actions_init(&actions_) != 0) {
            throw RunTimeError(Failure::out_of_memory);
        }
        const bool added =
            posix_spawn_file_actions_addopen(&actions_, 0, "/dev/null", O_RDONLY, 0) == 0 &&
            posix_spawn_file_actions_adddup2(&actions_, 2, 1) == 0 &&
            posix_spawn_file_actions_addchdir_np(&actions_, folder.c_str()) == 0;
        if (!added) {
            posix_spawn_file_actions_destroy(&actions_);
            throw RunTimeError(Failure::out_of_memory);
        }
    }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;
    ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }

    const posix_spawn_file_actions_t* get() const { return &actions_; }

  private:
    posix_spawn_file_actions_t actions_{};
};

}  // namespace

void HostProcessStarter::start(std::string_view program) {
    reap();
    const std::filesystem::path path = disk_.host_path(program);
    const FileActions actions(path.parent_path());
    std::string name = path.string();
    const std::array<char*, 2> words{name.data(), nullptr};
    pid_t process = 0;
    const int error =
        posix_spawn(&process, path.c_str(), actions.get(), nullptr, words.data(), environ);
    switch (error) {
        case 0:
            started_.push_back(process);
            return;
        case ENOENT:
            throw RunTimeError(Failure::file_not_found);
        case EACCES:
        case EPERM:
            throw RunTimeError(Failure::permission_denied);
        default:
            throw RunTimeError(Failure::invalid_call);
    }
}

void HostProcessStarter::reap() {
    std::erase_if(started_,
                  [](int process) { return waitpid(process, nullptr, WNOHANG) == process; });
}

#endif

HostProcessStarter::~HostProcessStarter() {
    reap();
}

void HostProcessStarter::sleep(std::chrono::milliseconds time) {
    std::this_thread::sleep_for(time);
}

}  // namespace veldrana
