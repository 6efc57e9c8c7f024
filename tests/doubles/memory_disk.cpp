#include "tests/doubles/memory_disk.h"

#include <algorithm>

#include "common/file_path.h"
#include "common/text.h"

namespace veldrana {
namespace {

// Upper case, separators single backslashes, none at the end.
std::string key_of(std::string_view path) {
    std::string key;
    for (const char byte : replace_all(upper(path), "/", "\\")) {
        if (byte != '\\' || !key.ends_with('\\')) {
            key += byte;
        }
    }
    if (key.ends_with('\\')) {
        key.pop_back();
    }
    return key;
}

std::string folder_key(std::string_view path) {
    return key_of(split_path(key_of(path)).folder);
}

}  // namespace

class MemoryDisk::Source : public ByteSource {
  public:
    explicit Source(std::shared_ptr<File> file) : file_(std::move(file)) { ++file_->readers; }
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;
    ~Source() override { --file_->readers; }

    std::size_t read(char* into, std::size_t room) override {
        const std::size_t count = file_->bytes.copy(into, room, at_);
        at_ += count;
        return count;
    }

  private:
    std::shared_ptr<File> file_;
    std::size_t at_ = 0;
};

class MemoryDisk::Sink : public ByteSink {
  public:
    explicit Sink(std::shared_ptr<File> file) : file_(std::move(file)) { ++file_->writers; }
    Sink(const Sink&) = delete;
    Sink& operator=(const Sink&) = delete;
    ~Sink() override { Sink::close(); }

    void write(std::string_view bytes) override { file_->bytes += bytes; }
    void close() override {
        if (open_) {
            open_ = false;
            --file_->writers;
        }
    }

  private:
    std::shared_ptr<File> file_;
    bool open_ = true;
};

void MemoryDisk::put(std::string_view path, std::string bytes) {
    put_folder(split_path(path).folder);
    files_[key_of(path)] = std::make_shared<File>(File{std::string(path), std::move(bytes), {}});
}

void MemoryDisk::put_folder(std::string_view path) {
    // Up to the drive, whose folder is itself.
    for (std::string key = key_of(path); !key.empty() && folders_.insert(key).second;) {
        key = folder_key(key);
    }
}

const MemoryDisk::File& MemoryDisk::require(std::string_view path) const {
    const auto found = files_.find(key_of(path));
    if (found == files_.end()) {
        require_place(path);
        throw RunTimeError(Failure::file_not_found);
    }
    return *found->second;
}

void MemoryDisk::require_place(std::string_view path) const {
    if (!is_possible_name(split_path(path).name)) {
        throw RunTimeError(Failure::bad_file);
    }
    if (folders_.contains(key_of(path))) {
        throw RunTimeError(Failure::path_or_file_access);
    }
    if (!folders_.contains(folder_key(path))) {
        throw RunTimeError(Failure::path_not_found);
    }
}

std::string MemoryDisk::bytes(std::string_view path) const {
    return require(path).bytes;
}

bool MemoryDisk::is_for_owner(std::string_view path) const {
    return require(path).for_owner;
}

std::vector<std::string> MemoryDisk::files() const {
    std::vector<std::string> paths;
    for (const auto& [key, file] : files_) {
        paths.push_back(file->path);
    }
    return paths;
}

void MemoryDisk::set_modified(std::string_view path, const LocalTime& time) {
    require(path);
    files_[key_of(path)]->modified = time;
}

bool MemoryDisk::file_exists(std::string_view path) {
    return files_.contains(key_of(path));
}

bool MemoryDisk::folder_exists(std::string_view path) {
    return folders_.contains(key_of(path));
}

void MemoryDisk::make_folder(std::string_view path) {
    require_place(path);
    if (file_exists(path)) {
        throw RunTimeError(Failure::path_or_file_access);
    }
    folders_.insert(key_of(path));
}

std::unique_ptr<ByteSource> MemoryDisk::open_for_reading(std::string_view path) {
    if (require(path).writers > 0) {
        throw RunTimeError(Failure::already_open);
    }
    return std::make_unique<Source>(files_[key_of(path)]);
}

std::unique_ptr<ByteSink> MemoryDisk::open_for_writing(std::string_view path, WriteMode mode) {
    require_place(path);
    require_unprotected(path);
    std::shared_ptr<File>& file = files_[key_of(path)];
    if (file == nullptr) {
        file = std::make_shared<File>(File{std::string(path), {}, {}});
    } else if (file->readers > 0 || file->writers > 0) {
        throw RunTimeError(Failure::already_open);
    } else if (mode != WriteMode::append) {
        file->bytes.clear();
    }
    file->for_owner = file->for_owner || mode == WriteMode::replace_for_owner;
    return std::make_unique<Sink>(file);
}

std::uint64_t MemoryDisk::size(std::string_view path) {
    return require(path).bytes.size();
}

LocalTime MemoryDisk::modified(std::string_view path) {
    return require(path).modified;
}

void MemoryDisk::remove(std::string_view path) {
    require(path);
    require_unprotected(path);
    files_.erase(key_of(path));
}

void MemoryDisk::replace(std::string_view from, std::string_view to) {
    require(from);
    require_place(to);
    require_unprotected(from);
    require_unprotected(to);
    std::shared_ptr<File> file = files_[key_of(from)];
    files_.erase(key_of(from));
    file->path = to;
    if (const auto place = files_.find(key_of(to)); place != files_.end()) {
        file->for_owner = file->for_owner || place->second->for_owner;
    }
    files_[key_of(to)] = std::move(file);
}

void MemoryDisk::protect(std::string_view path) {
    protected_ = key_of(path);
}

void MemoryDisk::protect_log_book(std::string_view path) {
    protected_log_book_ = key_of(path);
}

bool MemoryDisk::is_protected(std::string_view path) {
    const std::string key = key_of(path);
    return !key.empty() && (key == protected_ || key == protected_log_book_);
}

void MemoryDisk::require_unprotected(std::string_view path) const {
    const std::string key = key_of(path);
    if (!key.empty() && (key == protected_ || key == protected_log_book_)) {
        throw RunTimeError(Failure::already_open);
    }
}

bool MemoryDisk::same_file(std::string_view one, std::string_view other) {
    return file_exists(one) && key_of(one) == key_of(other);
}

std::vector<std::string> MemoryDisk::names(std::string_view pattern) {
    const std::string folder = folder_key(pattern);
    std::vector<std::string> names;
    for (const auto& [key, file] : files_) {
        const std::string_view name = split_path(file->path).name;
        if (folder_key(key) == folder && matches(name, split_path(pattern).name)) {
            names.emplace_back(name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<DiskEntry> MemoryDisk::entries(std::string_view pattern) {
    std::vector<DiskEntry> found;
    for (const std::string& name : names(pattern)) {
        const File& file = require(std::string(split_path(pattern).folder) + name);
        const std::int64_t time = seconds_of(file.modified);
        found.push_back({.name = name,
                         .size = file.bytes.size(),
                         .attributes = DiskEntry::archive,
                         .created = time,
                         .accessed = time,
                         .written = time});
    }
    for (const std::string& folder : folders_) {
        const std::string_view name = split_path(folder).name;
        if (folder_key(folder) == folder_key(pattern) && !name.empty() &&
            matches(name, split_path(pattern).name)) {
            found.push_back({.name = std::string(name), .attributes = DiskEntry::directory});
        }
    }
    return found;
}

class FailingDisk::Source : public ByteSource {
  public:
    Source(FailingDisk& disk, std::unique_ptr<ByteSource> source)
        : disk_(disk), source_(std::move(source)) {}
    std::size_t read(char* into, std::size_t room) override {
        disk_.count_operation();
        return source_->read(into, room);
    }

  private:
    FailingDisk& disk_;
    std::unique_ptr<ByteSource> source_;
};

class FailingDisk::Sink : public ByteSink {
  public:
    Sink(FailingDisk& disk, std::unique_ptr<ByteSink> sink) : disk_(disk), sink_(std::move(sink)) {}
    void write(std::string_view bytes) override {
        disk_.count_operation();
        sink_->write(bytes);
    }
    void close() override {
        disk_.count_operation();
        sink_->close();
    }

  private:
    FailingDisk& disk_;
    std::unique_ptr<ByteSink> sink_;
};

void FailingDisk::fail_at(std::size_t operation, Failure failure) {
    failing_operation_ = operations_ + operation;
    failure_ = failure;
}

void FailingDisk::fail_writing(std::string name, Failure failure) {
    failing_names_[upper(name)] = failure;
}

void FailingDisk::count_operation() {
    if (++operations_ == failing_operation_) {
        throw RunTimeError(failure_);
    }
}

bool FailingDisk::file_exists(std::string_view path) {
    return disk_.file_exists(path);
}

bool FailingDisk::folder_exists(std::string_view path) {
    return disk_.folder_exists(path);
}

void FailingDisk::make_folder(std::string_view path) {
    count_operation();
    disk_.make_folder(path);
}

std::unique_ptr<ByteSource> FailingDisk::open_for_reading(std::string_view path) {
    count_operation();
    return std::make_unique<Source>(*this, disk_.open_for_reading(path));
}

std::unique_ptr<ByteSink> FailingDisk::open_for_writing(std::string_view path, WriteMode mode) {
    count_operation();
    const auto failing = failing_names_.find(upper(split_path(path).name));
    if (failing != failing_names_.end()) {
        throw RunTimeError(failing->second);
    }
    return std::make_unique<Sink>(*this, disk_.open_for_writing(path, mode));
}

std::uint64_t FailingDisk::size(std::string_view path) {
    count_operation();
    return disk_.size(path);
}

LocalTime FailingDisk::modified(std::string_view path) {
    count_operation();
    return disk_.modified(path);
}

void FailingDisk::remove(std::string_view path) {
    count_operation();
    disk_.remove(path);
}

void FailingDisk::replace(std::string_view from, std::string_view to) {
    count_operation();
    disk_.replace(from, to);
}

void FailingDisk::protect_log_book(std::string_view path) {
    disk_.protect_log_book(path);
}

bool FailingDisk::is_protected(std::string_view path) {
    return disk_.is_protected(path);
}

void FailingDisk::protect(std::string_view path) {
    disk_.protect(path);
}

bool FailingDisk::same_file(std::string_view one, std::string_view other) {
    return disk_.same_file(one, other);
}

std::vector<DiskEntry> FailingDisk::entries(std::string_view pattern) {
    count_operation();
    return disk_.entries(pattern);
}

std::vector<std::string> FailingDisk::names(std::string_view pattern) {
    count_operation();
    return disk_.names(pattern);
}

}  // namespace veldrana
