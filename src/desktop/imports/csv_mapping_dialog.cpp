#include "desktop/imports/csv_mapping_dialog.h"

#include "boatmotion/imports/csv_memory.h"
#include "desktop/imports/csv_preview_table.h"
#include "desktop/imports/csv_reading.h"
#include "desktop/imports/csv_units_form.h"
#include "desktop/shell/forms/field_texts.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>
#include <utility>

namespace kavela::desktop {

namespace {

QString countText(std::size_t count) {
    return QLocale(QLocale::English).toString(static_cast<qulonglong>(count));
}

QString durationText(double seconds) {
    const auto whole = static_cast<qint64>(std::llround(seconds));
    if (whole >= 3600)
        return CsvMappingDialog::tr("%1 h %2 min").arg(whole / 3600).arg(whole / 60 % 60);
    if (whole >= 60)
        return CsvMappingDialog::tr("%1 min %2 s").arg(whole / 60).arg(whole % 60);
    return CsvMappingDialog::tr("%1 s").arg(shownNumber(seconds, 1));
}

QString rateText(double rate) {
    return QLocale(QLocale::English).toString(rate, 'f', rate < 9.95 ? 1 : 0);
}

/// What is to be known about an import, a line for each.
QString detailsText(const CsvImport& import) {
    QStringList lines;
    for (const std::string& note : import.notes)
        lines.append(qtText(note));
    if (import.unreadCount > 0) {
        const UnreadLine& first = import.unread.front();
        lines.append(
            CsvMappingDialog::tr("%1 lines cannot be read. Line %2: %3.")
                .arg(countText(import.unreadCount), countText(first.line), qtText(first.reason)));
    }
    return lines.join('\n');
}

QString unreadText(const CsvImport& import) {
    QStringList lines;
    for (const UnreadLine& line : import.unread)
        lines.append(CsvMappingDialog::tr("Line %1: %2")
                         .arg(countText(line.line), qtText(line.reason).toHtmlEscaped()));
    return lines.join("<br>");
}

QString guessedHint() {
    return CsvMappingDialog::tr("What each column holds was guessed from its title. Choose over a "
                                "column what it is; a column without a choice is left out.");
}

/// When a list began that was this long when its file was written last, to the second.
ReferenceDate beginOf(const SensorCsv& csv, double seconds) {
    const QFileInfo file(QString::fromStdString(csv.path().string()));
    return {std::floor(typedMoment(file.lastModified()).seconds - seconds)};
}

} // namespace

QString importText(const CsvImport& import) {
    const bmrawdata_v5& session = import.session;
    QStringList parts;
    if (!session.boatmotion.empty())
        parts.append(CsvMappingDialog::tr("%1 samples, %2 per second, %3")
                         .arg(countText(session.boatmotion.size()), rateText(import.sampleRate()),
                              durationText(import.seconds())));
    if (!session.gps.empty())
        parts.append(CsvMappingDialog::tr("%1 positions").arg(countText(session.gps.size())));
    if (!session.heart.empty())
        parts.append(CsvMappingDialog::tr("%1 heart rates").arg(countText(session.heart.size())));
    return parts.join(", ");
}

CsvMappingDialog::CsvMappingDialog(SensorCsv csv, QWidget* parent,
                                   std::vector<std::string> remembered)
    : QDialog(parent),
      m_reading(new CsvReading(std::move(csv), this)),
      m_units(new CsvUnitsForm([this](const CsvUnitsForm::Change& change) { edit(change); })),
      m_table(new CsvPreviewTable),
      m_result(new QLabel),
      m_details(new QLabel),
      m_remembered(std::move(remembered)) {
    const QFileInfo file(QString::fromStdString(m_reading->csv().path().string()));
    setWindowTitle(tr("Import “%1”").arg(file.fileName()));
    layOut();
    m_mapping.start = beginOf(m_reading->csv(), 0);
    connect(m_table, &CsvPreviewTable::columnsChosen, this, [this] {
        edit([this](CsvMapping& mapping) { mapping.columns = m_table->columns(); });
    });
    connect(m_reading, &CsvReading::finished, this, &CsvMappingDialog::tellResult);
    connect(m_reading, &CsvReading::failed, this, &CsvMappingDialog::tellFault);
    showBeginning();
    resize(1080, 660);
}

/// A list with titles that are known is read as it was read before.
void CsvMappingDialog::showBeginning() {
    const CsvMapping guess = m_reading->csv().guess();
    const auto known =
        rememberedMapping(m_remembered, m_reading->csv().preview(guess).titles, guess);
    m_guessAgain->setVisible(known && known->columns != guess.columns);
    if (!known)
        return showMapping(guess);
    m_hint->setText(tr("Columns and units are read as they were for the last list with these "
                       "titles. Choose over a column what it is; one without a choice is left "
                       "out."));
    showMapping(*known);
}

void CsvMappingDialog::guessAgain() {
    m_guessAgain->hide();
    m_hint->setText(guessedHint());
    showMapping(m_reading->csv().guess());
}

std::vector<std::string> CsvMappingDialog::remembered() const {
    return withMapping(m_remembered, m_mapping, m_reading->csv().preview(m_mapping).titles);
}

CsvMappingDialog::~CsvMappingDialog() = default;

void CsvMappingDialog::layOut() {
    m_hint = new QLabel(guessedHint());
    m_hint->setObjectName("hint");
    m_hint->setWordWrap(true);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    m_guessAgain = new QPushButton(tr("Guess from the titles"));
    m_guessAgain->setObjectName("guessAgain");
    m_guessAgain->setAutoDefault(false);
    connect(m_guessAgain, &QPushButton::clicked, this, &CsvMappingDialog::guessAgain);
    auto* head = new QHBoxLayout;
    head->addWidget(m_hint, 1);
    head->addWidget(m_guessAgain);
    m_result->setObjectName("result");
    m_result->setFont(theme::titleFont(*this));
    m_result->setWordWrap(true);
    m_details->setObjectName("details");
    m_details->setWordWrap(true);
    m_details->setTextFormat(Qt::PlainText);
    m_details->setMinimumHeight(2 * fontMetrics().lineSpacing());
    m_details->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_import = buttons->addButton(tr("Import"), QDialogButtonBox::AcceptRole);
    m_import->setObjectName("import");
    m_import->setEnabled(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* whole = new QVBoxLayout(this);
    whole->setSpacing(theme::Spacing);
    whole->addLayout(head);
    whole->addWidget(m_table, 1);
    whole->addWidget(m_units);
    whole->addWidget(m_result);
    whole->addWidget(m_details);
    whole->addWidget(buttons);
}

/// The date of the first sample is the list's, however it is read.
void CsvMappingDialog::showMapping(const CsvMapping& mapping) {
    const auto start = m_mapping.start;
    m_mapping = mapping;
    m_mapping.start = start;
    m_units->showMapping(m_mapping);
    m_table->showPreview(m_reading->csv().preview(m_mapping), m_mapping.columns);
    readAgain();
}

/// Columns that are cut otherwise have other titles, from which all is guessed anew.
void CsvMappingDialog::edit(const std::function<void(CsvMapping&)>& change) {
    const CsvMapping before = m_mapping;
    change(m_mapping);
    m_isStartSet = m_isStartSet || m_mapping.start != before.start;
    m_isAccepted = false;
    if (m_mapping.separator != before.separator)
        return showMapping(m_reading->csv().guess(m_mapping.separator));
    m_units->showMapping(m_mapping);
    readAgain();
}

/// What was read before can be imported no more, but what is just being read can.
void CsvMappingDialog::readAgain() {
    if (const auto fault = faultOf(m_mapping)) {
        m_reading->stop();
        return tellFault(qtText(*fault));
    }
    m_result->setText(tr("Reading…"));
    m_reading->start(m_mapping);
}

void CsvMappingDialog::tellFault(const QString& fault) {
    m_import->setEnabled(false);
    m_result->setText(fault);
    m_details->clear();
    m_details->setToolTip({});
}

void CsvMappingDialog::proposeStart() {
    const CsvImport& import = *m_reading->result();
    m_units->askForStart(!import.hasDates);
    if (import.hasDates || m_isStartSet)
        return;
    m_mapping.start = beginOf(m_reading->csv(), import.seconds());
    m_units->showMapping(m_mapping);
}

void CsvMappingDialog::tellResult() {
    const auto start = m_mapping.start;
    proposeStart();
    const CsvImport& import = *m_reading->result();
    // A list without dates is read once more, when its length has told when it began.
    if (!import.hasDates && m_mapping.start != start)
        return readAgain();
    const QString text = importText(import);
    m_result->setText(text.isEmpty() ? tr("This gives no samples.")
                                     : tr("This gives %1.").arg(text));
    m_details->setText(detailsText(import));
    m_details->setToolTip(unreadText(import));
    m_import->setEnabled(!text.isEmpty());
    m_import->setDefault(true);
    if (std::exchange(m_isAccepted, false) && !text.isEmpty())
        QDialog::accept();
}

void CsvMappingDialog::accept() {
    if (!m_units->commit())
        return;
    m_isAccepted = !m_reading->result();
    if (!m_isAccepted)
        QDialog::accept();
}

CsvImport CsvMappingDialog::takeImport() {
    CsvImport import = std::move(m_reading->result()).value();
    m_reading->result().reset();
    return import;
}

} // namespace kavela::desktop
