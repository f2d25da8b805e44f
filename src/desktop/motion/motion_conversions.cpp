#include "desktop/motion/motion_conversions.h"

#include "boatmotion/session_files.h"
#include "desktop/shell/workspace.h"

#include <QInputDialog>
#include <QLineEdit>

#include <algorithm>

namespace kavela::desktop {

namespace {

bool isTaken(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::exists(std::filesystem::symlink_status(path, ignored));
}

/// A name beside the recording that no file has yet.
QString freeName(const std::filesystem::path& source) {
    const QString stem = QString::fromStdString(conversionTarget(source).stem().string());
    for (int number = 2;; ++number) {
        const QString name = QStringLiteral("%1_%2").arg(stem).arg(number);
        if (!isTaken(conversionTarget(source, name.toStdString())))
            return name;
    }
}

} // namespace

MotionConversions::MotionConversions(MotionRecordings& recordings, Workspace& workspace,
                                     QWidget& window)
    : QObject(&window), m_recordings(recordings), m_workspace(workspace), m_window(window) {
    connect(&m_recordings, &MotionRecordings::converted, this, &MotionConversions::finish);
}

void MotionConversions::add(const std::vector<MotionRecordings::Recording>& recordings) {
    m_waiting.insert(m_waiting.end(), recordings.begin(), recordings.end());
    next();
}

void MotionConversions::next() {
    while (!m_isConverting && !m_waiting.empty()) {
        const auto recording = m_waiting.front();
        m_waiting.pop_front();
        const auto place = std::ranges::find(m_recordings.all(), recording);
        if (place == m_recordings.all().end())
            continue;
        const auto target = askTarget(*recording);
        if (!target)
            continue;
        m_isConverting = true;
        emit began();
        m_recordings.convert(static_cast<std::size_t>(place - m_recordings.all().begin()), *target);
    }
}

QString MotionConversions::askName(const QString& prompt, const QString& proposed) {
    if (m_askName)
        return m_askName(prompt, proposed);
    bool isGiven = false;
    const QString name = QInputDialog::getText(&m_window, tr("Convert"), prompt, QLineEdit::Normal,
                                               proposed, &isGiven);
    return isGiven ? name.trimmed() : QString();
}

std::optional<std::filesystem::path>
MotionConversions::askTarget(const MotionRecording& recording) {
    const std::filesystem::path& source = recording.data.url;
    std::filesystem::path target = conversionTarget(source);
    while (isTaken(target)) {
        const QString name = askName(conversion_messages::AskForName, freeName(source));
        if (name.isEmpty())
            return std::nullopt;
        try {
            target = conversionTarget(source, name.toStdString());
        } catch (const std::invalid_argument& error) {
            m_workspace.showAlert({conversion_messages::AskForName, error.what()}, &m_window);
        }
    }
    return target;
}

void MotionConversions::finish(const Conversion& conversion) {
    m_isConverting = false;
    QString text = QString::fromStdString(conversion.message());
    QString path;
    if (conversion.outcome == ConversionOutcome::Saved) {
        path = m_last = QString::fromStdString(conversion.target.string());
        text = tr("%1  %2: %3 strokes, %4 turns")
                   .arg(conversion_messages::Saved,
                        QString::fromStdString(conversion.target.filename().string()))
                   .arg(conversion.strokes)
                   .arg(conversion.turns);
    }
    emit ended(text, path);
    if (path.isEmpty())
        m_workspace.showAlert({conversion.message(), conversion.detail}, &m_window);
    next();
}

} // namespace kavela::desktop
