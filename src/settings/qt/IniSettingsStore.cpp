#include "settings/qt/IniSettingsStore.h"

#include "text/qt/QtText.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>

namespace tintora {

namespace {

QString KeyPath(TextView section, TextView key) { return ToQString(section) + QLatin1Char('/') + ToQString(key); }

/// A name for the damaged file that no file has yet.
QString NameToKeepAside(const QString& file) {
    QString name = file + QStringLiteral(".damaged");
    for (int number = 2; QFile::exists(name); ++number)
        name = file + QStringLiteral(".damaged.%1").arg(number);
    return name;
}

/// Puts a damaged file aside; does nothing for one that can be read.
void KeepDamagedFileAside(const QString& file) {
    const QSettings probe(file, QSettings::IniFormat);
    if (probe.status() == QSettings::FormatError)
        QFile::rename(file, NameToKeepAside(file));
}

}  // namespace

IniSettingsStore::IniSettingsStore(QString folder) : folder_(std::move(folder)) {}

QString IniSettingsStore::UserFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/Tintora");
}

QString IniSettingsStore::FilePath(TextView application) const {
    return folder_ + QLatin1Char('/') + ToQString(application) + QStringLiteral(".ini");
}

Text IniSettingsStore::GetSetting(TextView application, TextView section, TextView key, TextView defaultValue) const {
    const QString file = FilePath(application);
    KeepDamagedFileAside(file);
    const QSettings settings(file, QSettings::IniFormat);
    return ToText(settings.value(KeyPath(section, key), ToQString(defaultValue)).toString());
}

void IniSettingsStore::SaveSetting(TextView application, TextView section, TextView key, TextView value) {
    const QString file = FilePath(application);
    KeepDamagedFileAside(file);
    QSettings settings(file, QSettings::IniFormat);
    settings.setValue(KeyPath(section, key), ToQString(value));
    settings.sync();
}

}  // namespace tintora
