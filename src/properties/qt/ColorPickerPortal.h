#pragma once

#include "properties/qt/ScreenColor.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QPointer>

namespace tintora {

/// The colour picker that desktops offer to programs that may not see the screen, by D-Bus:
/// `org.freedesktop.portal.Screenshot.PickColor`.
class ColorPickerPortal final : public QObject {
    Q_OBJECT

  public:
    /// `service` is the name under which the portal is known on the bus.
    ColorPickerPortal(const QDBusConnection& connection, const QString& service);

    /// Whether the bus knows the service, or could start it, and it hasn't failed yet.
    [[nodiscard]] bool IsThere() const;

    /// Asks for a colour and returns at once. A second question takes the place of the first, which gets no answer.
    void PickColor(QObject* context, const ScreenColor::Answer& answer);

  private Q_SLOTS:
    /// What the portal answers: 0 and the colour, or another number.
    void Respond(uint response, const QVariantMap& results, const QDBusMessage& message);

  private:
    void Listen(const QString& request);
    void Give(const std::optional<QColor>& color);

    QDBusConnection connection_;
    QString service_;
    QString request_;
    int requestCount_ = 0;
    bool hasFailed_ = false;
    QPointer<QObject> context_;
    ScreenColor::Answer answer_;
};

}  // namespace tintora
