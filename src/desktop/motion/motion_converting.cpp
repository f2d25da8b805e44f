#include "common/error.h"
#include "desktop/motion/motion_charts.h"
#include "desktop/motion/motion_window.h"
#include "desktop/motion/recording_list.h"
#include "desktop/shell/workspace.h"

#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>

/// What the analyser window writes: processed sessions.
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

void MotionWindow::convertCurrent() {
    if (const auto index = m_list->current())
        m_toConvert.push_back(m_recordings.all()[*index]);
    convertNext();
}

void MotionWindow::convertTicked() {
    std::ranges::copy_if(m_recordings.all(), std::back_inserter(m_toConvert),
                         [](const auto& recording) { return recording->data.shows; });
    convertNext();
}

void MotionWindow::convertNext() {
    while (!m_isConverting && !m_toConvert.empty()) {
        const auto recording = m_toConvert.front();
        m_toConvert.pop_front();
        const auto place = std::ranges::find(m_recordings.all(), recording);
        if (place == m_recordings.all().end())
            continue;
        const auto target = askTarget(*recording);
        if (!target)
            continue;
        m_isConverting = true;
        tell(conversion_messages::Converting);
        m_progress->setRange(0, 0);
        m_progress->show();
        m_recordings.convert(static_cast<std::size_t>(place - m_recordings.all().begin()), *target);
    }
}

QString MotionWindow::askName(const QString& prompt, const QString& proposed) {
    if (m_askName)
        return m_askName(prompt, proposed);
    bool isGiven = false;
    const QString name =
        QInputDialog::getText(this, tr("Convert"), prompt, QLineEdit::Normal, proposed, &isGiven);
    return isGiven ? name.trimmed() : QString();
}

std::optional<std::filesystem::path> MotionWindow::askTarget(const MotionRecording& recording) {
    const std::filesystem::path& source = recording.data.url;
    std::filesystem::path target = conversionTarget(source);
    while (isTaken(target)) {
        const QString name = askName(conversion_messages::AskForName, freeName(source));
        if (name.isEmpty())
            return std::nullopt;
        try {
            target = conversionTarget(source, name.toStdString());
        } catch (const std::invalid_argument& error) {
            workspace().showAlert({conversion_messages::AskForName, error.what()}, this);
        }
    }
    return target;
}

void MotionWindow::showConverted(const Conversion& conversion) {
    m_isConverting = false;
    m_progress->hide();
    const QString name = QString::fromStdString(conversion.target.filename().string());
    tell(QString::fromStdString(conversion.message()));
    if (conversion.outcome == ConversionOutcome::Saved) {
        m_lastConverted = QString::fromStdString(conversion.target.string());
        m_status->setText(tr("%1  %2: %3 strokes, %4 turns")
                              .arg(conversion_messages::Saved, name)
                              .arg(conversion.strokes)
                              .arg(conversion.turns));
        m_openConverted->show();
        emit convertedTo(m_lastConverted);
    } else {
        workspace().showAlert({conversion.message(), conversion.detail}, this);
    }
    convertNext();
}

void MotionWindow::openConverted() {
    if (hasConverted())
        emit openRequested({m_lastConverted});
}

} // namespace kavela::desktop
