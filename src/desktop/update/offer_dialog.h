#pragma once

#include "fetch/web_rules.h"
#include "update/manifest.h"
#include "update/version.h"

#include <QDialog>

#include <filesystem>

class QLabel;
class QProgressBar;
class QPushButton;

namespace kavela::update {
class UpdateDownload;
}

namespace kavela::desktop {

class FaultLabel;

/// Offers a newer version: what is new in it, how large it is, and what to do about it. It brings
/// the file and shows the folder it is in; it runs and installs nothing. Closed while the file is
/// brought, it leaves nothing of it.
class OfferDialog : public QDialog {
    Q_OBJECT

public:
    struct Offer {
        update::Version own;
        update::Version version;
        QString date;
        QString notes; ///< shown as they are, whatever they look like
        update::updatefile001 file;
        std::filesystem::path folder; ///< where the file goes
        fetch::WebPace pace = {};
    };
    OfferDialog(Offer offer, QWidget* parent);

signals:
    void skipped();
    /// The file stands there as it should be, and its folder is to be shown.
    void fileReady(const QString& path);

private:
    [[nodiscard]] QWidget* buttons();
    void download();
    void showProgress(qint64 held, qint64 size);
    void showFile(const QString& path);
    void showFault(const QString& reason);

    Offer m_offer;
    update::UpdateDownload* m_download = nullptr;
    QLabel* m_state = nullptr;
    FaultLabel* m_fault = nullptr;
    QProgressBar* m_progress = nullptr;
    QPushButton* m_skip = nullptr;
    QPushButton* m_later = nullptr;
    QPushButton* m_get = nullptr;
    QString m_path; ///< of the file, once it is there
};

} // namespace kavela::desktop
