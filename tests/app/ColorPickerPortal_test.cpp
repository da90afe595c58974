#include "properties/qt/ColorPickerPortal.h"

#include <gtest/gtest.h>
#include <QDBusArgument>
#include <QDBusContext>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QProcess>
#include <QTest>
#include <QThread>

// The portal of the desktop over a bus of its own.

namespace tintora::test {

/// The triple in which the portal gives a color.
struct PortalColor {
    double red = 0;
    double green = 0;
    double blue = 0;
};

QDBusArgument& operator<<(QDBusArgument& argument, const PortalColor& color) {
    argument.beginStructure();
    argument << color.red << color.green << color.blue;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PortalColor& color) {
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    return argument;
}

/// What the desktop does when it is asked.
class FakePortal final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Screenshot")

  public:
    uint response = 0;
    QVariant color = QVariant::fromValue(PortalColor{1, 0.5, 0});
    bool fails = false;
    bool hasOwnPlaces = false;

  public Q_SLOTS:
    QDBusObjectPath PickColor(const QString& /*parent*/, const QVariantMap& options) {
        if (fails) {
            sendErrorReply(QDBusError::AccessDenied, QStringLiteral("no"));
            return {};
        }
        const QString sender = message().service().mid(1).replace(u'.', u'_');
        const QString token = hasOwnPlaces ? QStringLiteral("own") : options.value("handle_token").toString();
        const QString path = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
        QDBusMessage answer = QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.portal.Request"),
                                                         QStringLiteral("Response"));
        answer << response << QVariantMap{{QStringLiteral("color"), color}};
        connection().send(answer);
        return QDBusObjectPath(path);
    }
};

namespace {

class ColorPickerPortalTest : public testing::Test {
  protected:
    void SetUp() override {
        bus.start(QStringLiteral("dbus-daemon"), {"--session", "--nofork", "--print-address"});
        if (!bus.waitForStarted() || !bus.waitForReadyRead())
            GTEST_SKIP() << "there is no dbus-daemon";
        const QString address = QString::fromUtf8(bus.readLine()).trimmed();
        qDBusRegisterMetaType<PortalColor>();
        program.emplace(QDBusConnection::connectToBus(address, QStringLiteral("tintora-program")));
        desktop.emplace(QDBusConnection::connectToBus(address, QStringLiteral("tintora-desktop")));
        ASSERT_TRUE(program->isConnected() && desktop->isConnected());
    }
    void TearDown() override {
        program.reset();
        desktop.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("tintora-program"));
        QDBusConnection::disconnectFromBus(QStringLiteral("tintora-desktop"));
        bus.terminate();
        bus.waitForFinished();
    }

    void StartPortal() {
        ASSERT_TRUE(desktop->registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &portal,
                                            QDBusConnection::ExportAllSlots));
        ASSERT_TRUE(desktop->registerService(QStringLiteral("org.test.Portal")));
    }

    /// The answer of the portal as a name; "nothing", or "none" if there is no answer at all.
    std::string AnswerOf(ColorPickerPortal& picker) {
        std::optional<std::string> answer;
        picker.PickColor(&context, [&](const std::optional<QColor>& color) {
            answer = color ? color->name().toStdString() : "nothing";
        });
        const bool isThere = QTest::qWaitFor([&] { return answer.has_value(); }, 5000);
        return isThere ? *answer : "none";
    }

    QProcess bus;
    std::optional<QDBusConnection> program;
    std::optional<QDBusConnection> desktop;
    FakePortal portal;
    QObject context;
};

TEST_F(ColorPickerPortalTest, GivesTheColorThatTheDesktopGives) {
    ColorPickerPortal picker(*program, QStringLiteral("org.test.Portal"));
    EXPECT_FALSE(picker.IsThere());
    StartPortal();
    EXPECT_TRUE(picker.IsThere());
    EXPECT_EQ(AnswerOf(picker), "#ff8000");
    portal.color = QVariant::fromValue(PortalColor{0, 1.5, -1});
    EXPECT_EQ(AnswerOf(picker), "#00ff00");
}

TEST_F(ColorPickerPortalTest, GivesNothingWhereTheUserCancelsOrTheAnswerIsNoColor) {
    StartPortal();
    ColorPickerPortal picker(*program, QStringLiteral("org.test.Portal"));
    portal.response = 1;
    EXPECT_EQ(AnswerOf(picker), "nothing");
    portal.response = 0;
    portal.color = QStringLiteral("red");
    EXPECT_EQ(AnswerOf(picker), "nothing");
    EXPECT_TRUE(picker.IsThere());
}

TEST_F(ColorPickerPortalTest, IsThereNoMoreOnceItHasFailed) {
    StartPortal();
    ColorPickerPortal picker(*program, QStringLiteral("org.test.Portal"));
    portal.fails = true;
    EXPECT_EQ(AnswerOf(picker), "nothing");
    EXPECT_FALSE(picker.IsThere());
}

TEST_F(ColorPickerPortalTest, AnswersNobodyWhoHasGone) {
    StartPortal();
    ColorPickerPortal picker(*program, QStringLiteral("org.test.Portal"));
    bool isAnswered = false;
    {
        QObject gone;
        picker.PickColor(&gone, [&](const std::optional<QColor>&) { isAnswered = true; });
    }
    EXPECT_EQ(AnswerOf(picker), "#ff8000");
    EXPECT_FALSE(isAnswered);
}

}  // namespace
}  // namespace tintora::test

#include "ColorPickerPortal_test.moc"
