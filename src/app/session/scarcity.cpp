#include "app/session/scarcity.h"

#include <sys/mman.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QtGlobal>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <string_view>

namespace vantor {

namespace {

// Neither allocates nor runs the handlers of an ordinary end: either may fail, too.
[[noreturn]] void endSaying(std::string_view line) {
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), line.size());
    ::_exit(EXIT_FAILURE);
}

[[noreturn]] void endWithoutMemory() {
    endSaying("vantor: there is no memory left to go on with.\n");
}

[[noreturn]] void endUncaught() {
    // The toolkit throws by itself, past the handler that asks for memory.
    try {
        if (const auto thrown = std::current_exception()) std::rethrow_exception(thrown);
    } catch (const std::bad_alloc&) {
        endWithoutMemory();
    } catch (...) {
    }
    endSaying("vantor: the system refuses what is needed to go on.\n");
}

bool lacksAddresses() {
    constexpr std::size_t little = std::size_t{16} << 20;
    void* const probe = ::mmap(nullptr, little, PROT_NONE, MAP_PRIVATE | MAP_ANON, -1, 0);
    if (probe == MAP_FAILED) return true;
    ::munmap(probe, little);
    return false;
}

bool lacksFiles() {
    // Other threads close theirs meanwhile: some may be free again after the failure.
    std::array<int, 8> probes{};
    std::size_t had = 0;
    while (had < probes.size() && (probes[had] = ::dup(STDERR_FILENO)) >= 0)
        ++had;
    const bool isRefused = had < probes.size() && (errno == EMFILE || errno == ENFILE);
    for (std::size_t i = 0; i < had; ++i)
        ::close(probes[i]);
    return isRefused;
}

// Libraries fault over what they were refused. Async-signal-safe; a fault of another kind stays
// one: the signal comes again, unhandled.
void endAfterFault(int number) {
    if (lacksAddresses()) endWithoutMemory();
    if (lacksFiles()) endSaying("vantor: there is no file left to be opened.\n");
    std::signal(number, SIG_DFL);
    ::raise(number);
}

bool lacksMemoryForAWindow() {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    if (!screen) return false;
    const QSize pixels = screen->size() * screen->devicePixelRatio();
    return QImage(pixels, QImage::Format_ARGB32_Premultiplied).isNull();
}

}  // namespace

void endInASentenceWhenItCannotGoOn() {
    std::set_new_handler(endWithoutMemory);
    std::set_terminate(endUncaught);
    for (const int number : {SIGSEGV, SIGBUS, SIGABRT, SIGTRAP})
        std::signal(number, endAfterFault);
}

void endWhereToolkitGivesUp(QtMsgType type, const QMessageLogContext& context,
                            const QString& message) {
    if (message.startsWith(QStringLiteral("QThread::start: ")))
        endSaying("vantor: the system has no thread to give.\n");
    // A window without memory to draw in: the toolkit would access missing pixels.
    if (message.startsWith(QStringLiteral("QPainter::begin: ")) && lacksMemoryForAWindow())
        endWithoutMemory();
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "vantor: %s\n", message.simplified().toLocal8Bit().constData());
        ::_exit(EXIT_FAILURE);
    }
    const QByteArray line = qFormatLogMessage(type, context, message).toLocal8Bit();
    std::fprintf(stderr, "%s\n", line.constData());
}

}  // namespace vantor
