#include "desktop/update/offer_dialog.h"

#include "desktop/shell/fault_label.h"
#include "desktop/shell/theme.h"
#include "update/update_download.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace kavela::desktop {

namespace {

constexpr int ProgressSteps = 1'000;

QString sizeText(qint64 bytes) {
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

/// Never as markup: names and notes come from elsewhere.
QLabel* plainLabel(const QString& text) {
    auto* const label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

OfferDialog::OfferDialog(Offer offer, QWidget* parent)
    : QDialog(parent), m_offer(std::move(offer)) {
    setWindowTitle(tr("A newer version"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* const title =
        plainLabel(tr("Kavela %1 is here").arg(QString::fromStdString(m_offer.version.text())));
    title->setFont(theme::titleFont(*this));
    auto* const notes = new QPlainTextEdit;
    notes->setObjectName("notes");
    notes->setAccessibleName(tr("What is new"));
    notes->setReadOnly(true);
    notes->setTabChangesFocus(true);
    notes->setPlainText(m_offer.notes.trimmed().isEmpty() ? tr("Nothing is told of what is new.")
                                                          : m_offer.notes);
    m_state =
        plainLabel(tr("The file has %1 and is put into %2. You install it yourself, when it "
                      "suits you.")
                       .arg(sizeText(m_offer.file.size),
                            QDir::toNativeSeparators(QFile::decodeName(m_offer.folder.c_str()))));
    m_state->setObjectName("state");
    m_progress = new QProgressBar;
    m_progress->setRange(0, ProgressSteps);
    m_progress->hide();
    m_fault = new FaultLabel;
    m_fault->setObjectName("fault");

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(theme::LargeSpacing, theme::LargeSpacing, theme::LargeSpacing,
                               theme::LargeSpacing);
    column->setSpacing(theme::Spacing);
    column->addWidget(title);
    column->addWidget(
        plainLabel(tr("It is of %1. You have %2.")
                       .arg(m_offer.date, QString::fromStdString(m_offer.own.text()))));
    column->addWidget(notes, 1);
    column->addWidget(m_state);
    column->addWidget(m_progress);
    column->addWidget(m_fault);
    column->addWidget(buttons());
    resize(560, 420);
}

QWidget* OfferDialog::buttons() {
    auto* const box = new QWidget;
    auto* const row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    m_skip = new QPushButton(tr("&Skip this version"));
    m_skip->setObjectName("skip");
    m_skip->setAutoDefault(false);
    connect(m_skip, &QPushButton::clicked, this, [this] {
        emit skipped();
        close();
    });
    m_later = new QPushButton(tr("&Later"));
    m_later->setObjectName("later");
    m_later->setDefault(true); // what comes up unasked is done nothing about by a stray Enter
    connect(m_later, &QPushButton::clicked, this, &OfferDialog::close);
    m_get = new QPushButton(tr("&Download"));
    m_get->setObjectName("get");
    m_get->setAutoDefault(false);
    connect(m_get, &QPushButton::clicked, this, [this] {
        if (m_path.isEmpty())
            download();
        else
            emit fileReady(m_path);
    });
    row->addWidget(m_skip);
    row->addStretch(1);
    row->addWidget(m_later);
    row->addWidget(m_get);
    return box;
}

void OfferDialog::download() {
    m_fault->tell({});
    m_get->setEnabled(false);
    m_skip->setEnabled(false);
    m_later->setText(tr("&Cancel"));
    m_progress->setValue(0);
    m_progress->show();
    m_download = new update::UpdateDownload(m_offer.own, m_offer.pace, this);
    connect(m_download, &update::UpdateDownload::progressed, this, &OfferDialog::showProgress);
    connect(m_download, &update::UpdateDownload::finished, this, &OfferDialog::showFile);
    connect(m_download, &update::UpdateDownload::failed, this, &OfferDialog::showFault);
    m_download->start(m_offer.file, m_offer.folder);
}

void OfferDialog::showProgress(qint64 held, qint64 size) {
    m_progress->setValue(size > 0 ? static_cast<int>(held * ProgressSteps / size) : 0);
    m_state->setText(tr("%1 of %2").arg(sizeText(held), sizeText(size)));
}

void OfferDialog::showFile(const QString& path) {
    m_path = path;
    m_progress->hide();
    m_later->setText(tr("&Close"));
    m_skip->hide();
    m_get->setText(tr("&Show the folder"));
    m_get->setEnabled(true);
    m_state->setText(tr("The file is the one that was signed, and stands as “%1” in %2. Leave "
                        "Kavela before you install it.")
                         .arg(QFileInfo(path).fileName(),
                              QDir::toNativeSeparators(QFileInfo(path).absolutePath())));
    emit fileReady(path);
}

void OfferDialog::showFault(const QString& reason) {
    m_download->deleteLater();
    m_download = nullptr;
    m_progress->hide();
    m_state->setText(tr("Nothing was kept of the file."));
    m_fault->tell(reason);
    m_later->setText(tr("&Later"));
    m_skip->setEnabled(true);
    m_get->setEnabled(true);
}

} // namespace kavela::desktop
