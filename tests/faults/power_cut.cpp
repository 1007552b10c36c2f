#include "faults/power_cut.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <memory>
#include <sstream>
#include <utility>
#include <vector>

namespace test_faults {
namespace {

namespace fs = std::filesystem;

/// How much of what wasn't synced has reached the disk.
enum class Luck { Nothing, Empty, Half, All };

struct Node {
    std::string content;
    std::string onDisk;
    bool isSynced = false;

    [[nodiscard]] std::string after(Luck luck) const {
        if (isSynced || luck == Luck::All) return content;
        if (luck == Luck::Nothing) return onDisk;
        return luck == Luck::Half ? content.substr(0, content.size() / 2) : std::string();
    }
};

using NodePointer = std::shared_ptr<Node>;
using Names = std::map<std::string, NodePointer>;

/// One change of names, which happens as a whole or not at all: each name gets a file, or none.
using NameChange = std::vector<std::pair<std::string, NodePointer>>;

void renameIn(Names& names, const NameChange& change) {
    for (const auto& [name, node] : change) {
        if (node)
            names[name] = node;
        else
            names.erase(name);
    }
}

class Disk {
  public:
    explicit Disk(const Files& before) {
        for (const auto& [name, content] : before)
            onDisk_[name] = std::make_shared<Node>(Node{content, content, true});
        names_ = onDisk_;
    }

    void run(const Operation& operation) {
        switch (operation.call) {
        case Call::OpenToWrite:
            open(operation);
            break;
        case Call::Write:
            write(operation);
            break;
        case Call::Truncate:
            changed(operation.path).content.resize(operation.at);
            break;
        case Call::Sync:
            sync(operation.path);
            break;
        case Call::SyncFolder:
            syncFolder(operation.path);
            break;
        case Call::Rename:
            change({{operation.target, names_.at(operation.path)}, {operation.path, nullptr}});
            break;
        case Call::Remove:
            change({{operation.path, nullptr}});
            break;
        default:
            break;
        }
    }

    void forEachState(const std::function<void(const Files&)>& check) const {
        // Of at most this many pending changes every subset is tried; of more, every beginning.
        constexpr std::size_t mostForSets = 6;
        const std::size_t count = pending_.size();
        if (count <= mostForSets) {
            for (std::size_t set = 0; set < std::size_t{1} << count; ++set)
                checkWith(check, [set](std::size_t i) { return (set >> i & 1) != 0; });
        } else {
            for (std::size_t end = 0; end <= count; ++end)
                checkWith(check, [end](std::size_t i) { return i < end; });
        }
    }

  private:
    Node& changed(const std::string& path) {
        Node& node = *names_.at(path);
        node.isSynced = false;
        return node;
    }
    void open(const Operation& operation) {
        if (!names_.contains(operation.path)) change({{operation.path, std::make_shared<Node>()}});
        if (operation.truncates) changed(operation.path).content.clear();
    }
    void write(const Operation& operation) {
        std::string& content = changed(operation.path).content;
        const std::size_t end = operation.at + operation.content.size();
        content.resize(std::max(content.size(), end));
        content.replace(operation.at, operation.content.size(), operation.content);
    }
    void sync(const std::string& path) {
        Node& node = *names_.at(path);
        node.onDisk = node.content;
        node.isSynced = true;
    }
    void change(NameChange names) {
        renameIn(names_, names);
        pending_.push_back(std::move(names));
    }
    void syncFolder(const std::string& folder) {
        std::erase_if(pending_, [&](const NameChange& names) {
            const bool isThere = std::ranges::any_of(names, [&](const auto& name) {
                return fs::path(name.first).parent_path() == folder;
            });
            if (isThere) renameIn(onDisk_, names);
            return isThere;
        });
    }
    template <typename Happened>
    void checkWith(const std::function<void(const Files&)>& check, Happened happened) const {
        Names names = onDisk_;
        for (std::size_t i = 0; i < pending_.size(); ++i)
            if (happened(i)) renameIn(names, pending_[i]);
        for (const Luck luck : {Luck::Nothing, Luck::Empty, Luck::Half, Luck::All}) {
            Files files;
            for (const auto& [name, node] : names) files[name] = node->after(luck);
            check(files);
        }
    }

    Names names_;
    Names onDisk_;
    std::vector<NameChange> pending_;
};

} // namespace

Files filesIn(const fs::path& folder) {
    Files files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file()) continue;
        std::ifstream stream(entry.path(), std::ios::binary);
        std::ostringstream content;
        content << stream.rdbuf();
        files[entry.path().string()] = std::move(content).str();
    }
    return files;
}

void forEachDisk(const Files& before, std::span<const Operation> done,
                 const std::function<void(const Files&)>& check) {
    Disk disk(before);
    for (const Operation& operation : done) disk.run(operation);
    disk.forEachState(check);
}

} // namespace test_faults
