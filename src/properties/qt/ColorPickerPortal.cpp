#include "properties/qt/ColorPickerPortal.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

namespace tintora {

namespace {

QString RequestInterface() { return QStringLiteral("org.freedesktop.portal.Request"); }

/// Three components from 0 to 1; nothing for any other value.
std::optional<QColor> ColorFrom(const QVariant& value) {
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QStringLiteral("(ddd)"))
        return std::nullopt;
    double red = 0;
    double green = 0;
    double blue = 0;
    argument.beginStructure();
    argument >> red >> green >> blue;
    argument.endStructure();
    const auto component = [](double share) { return static_cast<float>(qBound(0.0, share, 1.0)); };
    return QColor::fromRgbF(component(red), component(green), component(blue));
}

}  // namespace

ColorPickerPortal::ColorPickerPortal(const QDBusConnection& connection, const QString& service)
    : connection_(connection), service_(service) {}

bool ColorPickerPortal::IsThere() const {
    const QDBusConnectionInterface* const bus = connection_.interface();
    if (hasFailed_ || !connection_.isConnected() || bus == nullptr)
        return false;
    return bus->isServiceRegistered(service_) || bus->activatableServiceNames().value().contains(service_);
}

void ColorPickerPortal::PickColor(QObject* context, const ScreenColor::Answer& answer) {
    context_ = context;
    answer_ = answer;
    // The answer may come before the call has returned, so its place is known beforehand.
    const QString token = QStringLiteral("tintora%1").arg(++requestCount_);
    const QString sender = connection_.baseService().mid(1).replace(u'.', u'_');
    Listen(QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token));

    QDBusMessage call = QDBusMessage::createMethodCall(service_, QStringLiteral("/org/freedesktop/portal/desktop"),
                                                       QStringLiteral("org.freedesktop.portal.Screenshot"),
                                                       QStringLiteral("PickColor"));
    call << QString() << QVariantMap{{QStringLiteral("handle_token"), token}};
    auto* const watcher = new QDBusPendingCallWatcher(connection_.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, token] {
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        watcher->deleteLater();
        if (!request_.endsWith(token))
            return;
        if (reply.isError()) {
            hasFailed_ = true;
            Give(std::nullopt);
        } else if (reply.value().path() != request_) {
            // Old portals choose the place themselves.
            Listen(reply.value().path());
        }
    });
}

void ColorPickerPortal::Listen(const QString& request) {
    const QString response = QStringLiteral("Response");
    const char* const slot = SLOT(Respond(uint, QVariantMap, QDBusMessage));
    if (!request_.isEmpty())
        connection_.disconnect(service_, request_, RequestInterface(), response, this, slot);
    request_ = request;
    if (!request_.isEmpty())
        connection_.connect(service_, request_, RequestInterface(), response, this, slot);
}

void ColorPickerPortal::Respond(uint response, const QVariantMap& results, const QDBusMessage& message) {
    if (message.path() == request_)
        Give(response == 0 ? ColorFrom(results.value(QStringLiteral("color"))) : std::nullopt);
}

void ColorPickerPortal::Give(const std::optional<QColor>& color) {
    Listen({});
    const ScreenColor::Answer answer = std::exchange(answer_, {});
    if (context_ != nullptr && answer)
        answer(color);
}

}  // namespace tintora
