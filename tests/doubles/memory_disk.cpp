#include "tests/doubles/memory_disk.h"

#include <algorithm>

#include "common/file_path.h"
#include "common/text.h"

namespace veldrana {
namespace {

// Upper case, backslashes single, none at the end.
std::string key_of(std::string_view path) {
    std::string key;
    for (const char byte : upper(path)) {
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
    explicit Source(std::shared_ptr<File> file) : file_(std::move(file)) {}
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
    explicit Sink(std::shared_ptr<File> file) : file_(std::move(file)) {}
    void write(std::string_view bytes) override { file_->bytes += bytes; }
    void close() override {}

  private:
    std::shared_ptr<File> file_;
};

void MemoryDisk::put(std::string_view path, std::string bytes) {
    put_folder(split_path(path).folder);
    files_[key_of(path)] = std::make_shared<File>(File{std::string(path), std::move(bytes), {}});
}

void MemoryDisk::put_folder(std::string_view path) {
    for (std::string key = key_of(path); !key.empty(); key = folder_key(key)) {
        folders_.insert(key);
    }
}

const MemoryDisk::File& MemoryDisk::require(std::string_view path) const {
    const auto found = files_.find(key_of(path));
    if (found == files_.end()) {
        throw RunTimeError(folders_.contains(folder_key(path)) ? Failure::file_not_found
                                                               : Failure::path_not_found);
    }
    return *found->second;
}

std::string MemoryDisk::bytes(std::string_view path) const {
    return require(path).bytes;
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
    if (!folders_.contains(folder_key(path))) {
        throw RunTimeError(Failure::path_not_found);
    }
    if (!folders_.insert(key_of(path)).second) {
        throw RunTimeError(Failure::path_or_file_access);
    }
}

std::unique_ptr<ByteSource> MemoryDisk::open_for_reading(std::string_view path) {
    require(path);
    return std::make_unique<Source>(files_[key_of(path)]);
}

std::unique_ptr<ByteSink> MemoryDisk::open_for_writing(std::string_view path, WriteMode mode) {
    if (!folders_.contains(folder_key(path))) {
        throw RunTimeError(Failure::path_not_found);
    }
    std::shared_ptr<File>& file = files_[key_of(path)];
    if (file == nullptr) {
        file = std::make_shared<File>(File{std::string(path), {}, {}});
    } else if (mode == WriteMode::replace) {
        file->bytes.clear();
    }
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
    files_.erase(key_of(path));
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

std::vector<std::string> FailingDisk::names(std::string_view pattern) {
    count_operation();
    return disk_.names(pattern);
}

}  // namespace veldrana
