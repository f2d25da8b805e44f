#include "preferences/preferences.h"

#include <QSettings>
#include <QStringList>
#include <QUrl>

namespace kavela {

namespace {

QString qtText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

bool isText(const QVariant& stored) {
    return stored.metaType().id() == QMetaType::QString;
}

// The text file behind the store on some platforms keeps every value as text, so a kind is told by
// what the text can be read as.

std::optional<PreferenceValue> readBool(const QVariant& stored) {
    if (stored.metaType().id() == QMetaType::Bool)
        return stored.toBool();
    const QString text = isText(stored) ? stored.toString() : QString();
    if (text == "true" || text == "false")
        return text == "true";
    return std::nullopt;
}

std::optional<PreferenceValue> readInteger(const QVariant& stored) {
    if (stored.metaType().id() == QMetaType::Bool)
        return std::nullopt;
    bool isWhole = false;
    const std::int64_t number = stored.toLongLong(&isWhole);
    const bool isInteger = isWhole && stored.metaType().id() != QMetaType::Double;
    return isInteger ? std::optional<PreferenceValue>(number) : std::nullopt;
}

std::optional<PreferenceValue> readString(const QVariant& stored) {
    if (!isText(stored))
        return std::nullopt;
    return stored.toString().toStdString();
}

std::optional<PreferenceValue> readArray(const QVariant& stored) {
    // A list of one entry reads back as that entry, an empty list as a value of no kind.
    const bool isList = stored.metaType().id() == QMetaType::QStringList;
    if (stored.isValid() && !isList && !isText(stored))
        return std::nullopt;
    std::vector<std::string> list;
    for (const QString& entry : stored.toStringList())
        list.push_back(entry.toStdString());
    return list;
}

std::optional<PreferenceValue> readUrl(const QVariant& stored) {
    const QUrl url = isText(stored) ? QUrl(stored.toString(), QUrl::StrictMode) : QUrl();
    if (!url.isValid() || url.isRelative())
        return PreferenceUrl{};
    return PreferenceUrl{url.toString(QUrl::FullyEncoded).toStdString()};
}

std::optional<PreferenceValue> readAs(PreferenceKind kind, const QVariant& stored) {
    switch (kind) {
    case PreferenceKind::Bool:
        return readBool(stored);
    case PreferenceKind::Integer:
        return readInteger(stored);
    case PreferenceKind::String:
        return readString(stored);
    case PreferenceKind::Array:
        return readArray(stored);
    case PreferenceKind::Url:
        return readUrl(stored);
    }
    return std::nullopt;
}

struct ToVariant {
    QVariant operator()(bool value) const { return value; }
    QVariant operator()(std::int64_t value) const { return static_cast<qlonglong>(value); }
    QVariant operator()(const std::string& value) const { return qtText(value); }
    QVariant operator()(const PreferenceUrl& value) const {
        return value.text ? QVariant(qtText(*value.text)) : QVariant();
    }
    QVariant operator()(const std::vector<std::string>& value) const {
        QStringList list;
        for (const std::string& entry : value)
            list.append(qtText(entry));
        return list;
    }
};

} // namespace

struct Preferences::Store {
    QSettings settings;
};

Preferences::Preferences() : m_store(new Store{QSettings("Kavela", "Kavela")}) {}

Preferences::Preferences(const std::filesystem::path& file)
    : m_store(new Store{QSettings(qtText(file.string()), QSettings::IniFormat)}) {}

Preferences::Preferences(Preferences&&) noexcept = default;
Preferences& Preferences::operator=(Preferences&&) noexcept = default;
Preferences::~Preferences() = default;

bool Preferences::contains(std::string_view key) const {
    return m_store->settings.contains(qtText(key));
}

PreferenceValue Preferences::value(std::string_view key) const {
    const PreferenceEntry& entry = preferenceEntry(key);
    if (!contains(key))
        return entry.defaultValue;
    return readAs(entry.kind(), m_store->settings.value(qtText(key))).value_or(entry.defaultValue);
}

bool Preferences::boolean(std::string_view key) const {
    return std::get<bool>(value(key));
}

std::int64_t Preferences::integer(std::string_view key) const {
    return std::get<std::int64_t>(value(key));
}

std::string Preferences::string(std::string_view key) const {
    return std::get<std::string>(value(key));
}

std::vector<std::string> Preferences::array(std::string_view key) const {
    return std::get<std::vector<std::string>>(value(key));
}

std::optional<std::string> Preferences::url(std::string_view key) const {
    return std::get<PreferenceUrl>(value(key)).text;
}

std::optional<std::string> Preferences::rawText(std::string_view key) const {
    const QVariant stored = m_store->settings.value(qtText(key));
    return isText(stored) ? std::optional(stored.toString().toStdString()) : std::nullopt;
}

std::vector<std::string> Preferences::rawList(std::string_view key) const {
    const auto list = readArray(m_store->settings.value(qtText(key)));
    return list ? std::get<std::vector<std::string>>(*list) : std::vector<std::string>();
}

void Preferences::set(std::string_view key, const PreferenceValue& value) {
    m_store->settings.setValue(qtText(key), std::visit(ToVariant(), value));
}

} // namespace kavela
