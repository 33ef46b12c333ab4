#include "qt/system/qt_web.h"

#include "posix/errors.h"
#include "qt/core/convert.h"

#include <QCoreApplication>
#include <QTimer>
#include <QUrl>

#include <cerrno>
#include <dlfcn.h>

namespace quill {
namespace {

// Beside the program, or where it is installed as seen from there, so that any prefix will do.
constexpr const char* libraryPlaces[] = {"/", "/" QUILLMERE_LIBRARIES "/"};
constexpr const char* libraryName = QUILLMERE_NETWORK_LIBRARY;

// Never unloaded: the toolkit keeps pointers into its parts until the end of the process.
void* LoadLibrary() {
    const std::string program = QCoreApplication::applicationDirPath().toStdString();
    for (const char* place : libraryPlaces) {
        void* library = dlopen((program + place + libraryName).c_str(), RTLD_LAZY | RTLD_LOCAL);
        if (library != nullptr) return library;
    }
    return nullptr;
}

std::unique_ptr<NetworkAccess> LoadNetwork(Failure& failure) {
    void* library = LoadLibrary();
    void* make = library != nullptr ? dlsym(library, MakeNetworkAccessName) : nullptr;
    if (make != nullptr) return std::unique_ptr<NetworkAccess>(reinterpret_cast<MakeNetworkAccess>(make)());
    const char* words = dlerror();
    failure = {Reason::Other, words != nullptr ? words : libraryName};
    return nullptr;
}

bool IsWebUrl(const QUrl& url) {
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https"));
}

} // namespace

void QtWeb::Fetch(const std::string& address, std::uint64_t limit, Handler handler) {
    if (!IsWebUrl(QUrl(Text(address)))) return FailLater(std::move(handler), FailureOfErrno(EPROTONOSUPPORT));
    Failure failure;
    if (!network_) network_ = LoadNetwork(failure);
    if (!network_) return FailLater(std::move(handler), std::move(failure));
    network_->Fetch(address, limit, [this, handler = std::move(handler)](Result<std::string> body) {
        if (attached_.Alive()) handler(std::move(body));
    });
}

// Whoever fetches need not reckon with an answer before the call returns.
void QtWeb::FailLater(Handler handler, Failure failure) {
    QTimer::singleShot(0,
                       [&attached = attached_, handler = std::move(handler), failure = std::move(failure)] {
                           if (attached.Alive()) handler(failure);
                       });
}

} // namespace quill
