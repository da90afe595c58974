#include "shell/qt/FirstPaint.h"

#include <unistd.h>
#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QWidget>
#include <cstdio>
#include <ctime>

namespace tintora {

namespace {

QByteArray Read(const char* path) {
    QFile file(QString::fromUtf8(path));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

std::optional<long> MillisecondsSinceStart() {
    // The name of the program comes second and may hold anything; the fields are counted from its closing parenthesis.
    constexpr qsizetype FieldsFromNameToStart = 20;
    const QByteArray status = Read("/proc/self/stat");
    const QList<QByteArray> fields = status.mid(status.lastIndexOf(')')).split(' ');
    timespec now{};
    if (fields.size() <= FieldsFromNameToStart || ::clock_gettime(CLOCK_BOOTTIME, &now) != 0)
        return std::nullopt;
    const long start = fields[FieldsFromNameToStart].toLong() * 1000 / ::sysconf(_SC_CLK_TCK);
    return now.tv_sec * 1000 + now.tv_nsec / 1'000'000 - start;
}

std::optional<long> ResidentKilobytes() {
    for (const QByteArray& line : Read("/proc/self/status").split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.simplified().split(' ').value(1).toLong();
    }
    return std::nullopt;
}

FirstPaint::FirstPaint(QWidget& window) {
    if (qEnvironmentVariableIntValue("TINTORA_REPORT_FIRST_PAINT") == 1)
        window.installEventFilter(this);
}

bool FirstPaint::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        // The window is painted before its children; all of them are when the events go on.
        QMetaObject::invokeMethod(this, &FirstPaint::Report, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void FirstPaint::Report() {
    std::printf("first paint %ld ms, resident %ld kB\n", MillisecondsSinceStart().value_or(-1),
                ResidentKilobytes().value_or(-1));
    std::fflush(stdout);
    QCoreApplication::exit();
}

}  // namespace tintora
