#include "app/session/hung_folders.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QProcessEnvironment>

#include <algorithm>
#include <csignal>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace vantor {

namespace {

using namespace std::chrono_literals;

constexpr auto homeName = "HOME";
constexpr auto noHome = "/dev/null";

/// Whole paths without a slash at the end, each once.
QByteArrayList namedFolders() {
    QByteArrayList folders;
    for (const char* const name :
         {homeName, "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"}) {
        QByteArray folder = qgetenv(name);
        while (folder.endsWith('/'))
            folder.chop(1);
        if (folder.startsWith('/') && !folders.contains(folder)) folders += folder;
    }
    return folders;
}

/// Not valid when the system has no thread to give.
HungFolders::Answer askApart(const QByteArray& folder, const HungFolders::Question& question) {
    std::promise<void> promise;
    HungFolders::Answer answer = promise.get_future();
    // No signal is meant for it.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, &before);
    try {
        std::thread([folder, question, promise = std::move(promise)]() mutable {
            question(folder);
            promise.set_value();
        }).detach();
    } catch (const std::system_error&) {
        answer = {};
    }
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return answer;
}

}  // namespace

HungFolders::HungFolders(std::chrono::milliseconds limit, const Question& question,
                         const Wait& wait) {
    const Time end = std::chrono::steady_clock::now() + limit;
    std::vector<std::pair<QByteArray, Answer>> answers;
    for (const QByteArray& folder : namedFolders())
        answers.emplace_back(folder, askApart(folder, question));
    for (const auto& [folder, answer] : answers) {
        if (!answer.valid()) continue;
        wait(folder, answer, end);
        if (answer.wait_for(0s) != std::future_status::ready) folders_ += folder;
    }
}

void HungFolders::waitUntil(const QByteArray&, const Answer& answer, Time end) {
    static_cast<void>(answer.wait_until(end));
}

void HungFolders::askDisk(const QByteArray& folder) {
    // A name that nobody has asked for: no cache knows that it is not there.
    const QByteArray name = folder + "/.vantor-" + QByteArray::number(::getpid());
    struct stat unused {};
    static_cast<void>(::lstat(name.constData(), &unused));
}

bool HungFolders::leadsInto(const QByteArray& path) const {
    return std::ranges::any_of(folders_, [&](const QByteArray& folder) {
        return path == folder || path.startsWith(folder + '/');
    });
}

void HungFolders::leaveOutOfEnvironment() const {
    if (folders_.isEmpty()) return;
    for (const QString& variable : QProcessEnvironment::systemEnvironment().keys()) {
        const QByteArray name = variable.toLocal8Bit();
        const QByteArrayList paths = qgetenv(name.constData()).split(':');
        QByteArrayList kept;
        for (const QByteArray& path : paths) {
            if (!leadsInto(path)) kept += path;
        }
        if (kept.size() == paths.size()) continue;
        if (name == homeName) {
            qputenv(homeName, noHome);
        } else if (kept.isEmpty()) {
            qunsetenv(name.constData());
        } else {
            qputenv(name.constData(), kept.join(':'));
        }
    }
}

}  // namespace vantor
