#include <stdlib.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QCoreApplication>

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>

#include "app/session/activation_server.h"
#include "app/session/local_socket.h"

#include "require.h"

/// What a client writes to the socket, piece by piece: each piece has its length in a byte before
/// it.
namespace {

using vantor::Activation;
using vantor::ActivationServer;
using vantor::AppAction;
using vantor::fuzz::require;

class Server {
  public:
    Server() {
        require(::mkdtemp(folder_.data()) != nullptr);
        server_.emplace(path(), [this](const Activation& asked) {
            ++activations_;
            asked_ = asked;
        });
        require(server_->isListening());
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    ~Server() {
        server_.reset();
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    /// Whether the program was asked for something; every connection is closed in the end.
    bool hear(std::string_view input) {
        activations_ = 0;
        const vantor::FileDescriptor talker = vantor::connectedTo(path());
        require(static_cast<bool>(talker));
        QCoreApplication::processEvents();
        while (!input.empty()) {
            const auto length = static_cast<std::size_t>(static_cast<unsigned char>(input.front()));
            input.remove_prefix(1);
            const std::string_view piece = input.substr(0, length);
            input.remove_prefix(piece.size());
            if (::send(talker.get(), piece.data(), piece.size(), MSG_NOSIGNAL) < 0) break;
            QCoreApplication::processEvents();
        }
        ::shutdown(talker.get(), SHUT_WR);
        char answer = 0;
        ssize_t count = 0;
        for (int i = 0; i < 100; ++i) {
            QCoreApplication::processEvents();
            count = ::recv(talker.get(), &answer, 1, 0);
            if (count >= 0 || errno != EAGAIN) break;
        }
        require(count >= 0 || errno != EAGAIN);
        require(activations_ <= 1 && (count <= 0 || answer == ActivationServer::promise));
        if (count > 0) require(activations_ == 1);
        return activations_ == 1;
    }

    const Activation& asked() const { return asked_; }

  private:
    QByteArray path() const { return QByteArray::fromStdString(folder_ + "/socket"); }

    std::string folder_ = (std::filesystem::temp_directory_path() / "vantor-fuzz-XXXXXX").string();
    std::optional<ActivationServer> server_;
    int activations_ = 0;
    Activation asked_;
};

/// The application object is the toolkit's, which wants one for events.
struct Program {
    int count = 1;
    char name[5] = "fuzz";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{count, arguments};
    Server server;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Program program;
    Server& server = program.server;
    const auto text = vantor::fuzz::textOf(data, size);
    if (server.hear(text)) {
        const Activation& asked = server.asked();
        require(vantor::checkedToken(asked.token) == asked.token);
        require(vantor::actionNamed(vantor::nameOf(asked.action)) == asked.action);
    }

    // The same as a token, by the program's own request, for each action in turn.
    const QString token = vantor::checkedToken(QString::fromLatin1(text.substr(0, 200)));
    const auto action = static_cast<AppAction>(size % 7);
    const QByteArray request = ActivationServer::request({action, token});
    const std::string piece = static_cast<char>(request.size()) + request.toStdString();
    require(server.hear(piece));
    require(server.asked().action == action && server.asked().token == token);
    return 0;
}
