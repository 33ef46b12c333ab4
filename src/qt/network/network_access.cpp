#include "qt/network/network_access.h"

#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

#include <memory>
#include <utility>

namespace quill {
namespace {

constexpr int silence = 20'000;  // milliseconds without a byte until it has failed
constexpr int longest = 120'000; // for all of it
constexpr int mostRedirects = 10;

using Handler = std::function<void(Result<std::string>)>;

class SystemProxies : public QNetworkProxyFactory {
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override {
        return systemProxyForQuery(query);
    }
};

Failure FailureOf(const QNetworkReply& reply) {
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool gone = status == 404 || status == 410;
    return {gone ? Reason::NotFound : Reason::Other, reply.errorString().toStdString()};
}

// One answer as it comes in; it ends with its reply.
class Download : public QObject {
public:
    Download(QNetworkReply& reply, std::uint64_t limit, Handler handler)
        : QObject(&reply), reply_(reply), limit_(limit), handler_(std::move(handler)) {
        connect(&reply, &QNetworkReply::readyRead, this, [this] { Take(); });
        connect(&reply, &QNetworkReply::finished, this, [this] { Finish(); });
        QTimer::singleShot(longest, this, [this] { reply_.abort(); });
    }

private:
    void Take() {
        if (reply_.isOpen()) body_ += reply_.readAll().toStdString();
        if (body_.size() <= limit_ || tooLarge_) return;
        tooLarge_ = true;
        reply_.abort(); // which finishes it
    }
    void Finish() {
        Take();
        reply_.deleteLater();
        if (!handler_) return;
        const Handler handler = std::exchange(handler_, {});
        if (tooLarge_) return handler(Failure{Reason::TooLarge, reply_.errorString().toStdString()});
        if (reply_.error() != QNetworkReply::NoError) return handler(FailureOf(reply_));
        handler(std::move(body_));
    }

    QNetworkReply& reply_;
    std::uint64_t limit_;
    Handler handler_;
    std::string body_;
    bool tooLarge_ = false;
};

// Nothing is told about this person that the address itself does not tell.
QNetworkRequest RequestFor(const QUrl& url) {
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(mostRedirects);
    request.setTransferTimeout(silence);
    for (const auto attribute :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
          QNetworkRequest::AuthenticationReuseAttribute})
        request.setAttribute(attribute, QNetworkRequest::Manual);
    return request;
}

class QtNetworkAccess : public NetworkAccess {
public:
    QtNetworkAccess() { manager_.setProxyFactory(new SystemProxies); } // which the manager deletes

    void Fetch(const std::string& address, std::uint64_t limit, Handler handler) override {
        QNetworkReply* reply = manager_.get(RequestFor(QUrl(QString::fromStdString(address))));
        reply->setReadBufferSize(static_cast<qint64>(limit) + 1);
        new Download(*reply, limit, std::move(handler)); // which its reply deletes
    }

private:
    QNetworkAccessManager manager_;
};

} // namespace
} // namespace quill

extern "C" __attribute__((visibility("default"))) quill::NetworkAccess* quillmere_network_access() {
    return std::make_unique<quill::QtNetworkAccess>().release();
}
