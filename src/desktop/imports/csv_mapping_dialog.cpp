#include "desktop/imports/csv_mapping_dialog.h"

#include "boatmotion/imports/csv_memory.h"
#include "desktop/imports/csv_reading.h"
#include "desktop/imports/csv_units_form.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QStyle>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

QString qtText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

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
      m_units(new CsvUnitsForm),
      m_table(new QTableWidget),
      m_result(new QLabel),
      m_details(new QLabel),
      m_remembered(std::move(remembered)) {
    const QFileInfo file(QString::fromStdString(m_reading->csv().path().string()));
    setWindowTitle(tr("Import “%1”").arg(file.fileName()));
    layOut();
    m_units->proposeStart(file.lastModified());
    connect(m_units, &CsvUnitsForm::changed, this, &CsvMappingDialog::readAgain);
    connect(m_units, &CsvUnitsForm::separatorChosen, this,
            [this](char separator) { showMapping(m_reading->csv().guess(separator)); });
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
    const CsvMapping mapping = this->mapping();
    return withMapping(m_remembered, mapping, m_reading->csv().preview(mapping).titles);
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
    m_table->setObjectName("preview");
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionMode(QAbstractItemView::NoSelection);
    m_table->setFocusPolicy(Qt::NoFocus);
    m_table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->verticalHeader()->hide();
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

CsvMapping CsvMappingDialog::mapping() const {
    CsvMapping mapping = m_shown;
    m_units->apply(mapping);
    for (std::size_t c = 0; c < m_choices.size(); ++c)
        mapping.columns[c] = static_cast<CsvQuantity>(m_choices[c]->currentIndex());
    return mapping;
}

void CsvMappingDialog::showMapping(const CsvMapping& mapping) {
    m_shown = mapping;
    m_units->showMapping(mapping);
    fillTable();
    readAgain();
}

QComboBox* CsvMappingDialog::columnChoice(CsvQuantity quantity) {
    auto* choice = new QComboBox;
    for (std::size_t q = 0; q < CsvQuantities; ++q)
        choice->addItem(qtText(textOf(static_cast<CsvQuantity>(q))));
    choice->setCurrentIndex(static_cast<int>(quantity));
    choice->setMaxVisibleItems(static_cast<int>(CsvQuantities));
    choice->setFocusPolicy(Qt::StrongFocus);
    // The column is as wide as what is chosen, the list as wide as what could be.
    choice->view()->setMinimumWidth(choice->sizeHint().width());
    choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    choice->setMinimumContentsLength(1);
    connect(choice, &QComboBox::currentIndexChanged, this, [this] {
        fitColumns();
        readAgain();
    });
    return choice;
}

void CsvMappingDialog::fillTable() {
    const CsvPreview preview = m_reading->csv().preview(m_shown);
    m_choices.clear();
    m_table->clear();
    m_table->setColumnCount(static_cast<int>(preview.titles.size()));
    m_table->setRowCount(static_cast<int>(preview.rows.size()) + 1);
    const QFont digits = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    for (int column = 0; column < m_table->columnCount(); ++column) {
        const auto c = static_cast<std::size_t>(column);
        m_table->setHorizontalHeaderItem(column, new QTableWidgetItem(qtText(preview.titles[c])));
        m_choices.push_back(columnChoice(m_shown.columns[c]));
        m_table->setCellWidget(0, column, m_choices.back());
        for (int row = 1; row < m_table->rowCount(); ++row) {
            auto* cell =
                new QTableWidgetItem(qtText(preview.rows[static_cast<std::size_t>(row) - 1][c]));
            cell->setFont(digits);
            m_table->setItem(row, column, cell);
        }
    }
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + theme::Spacing);
    if (!m_choices.empty())
        m_table->setRowHeight(0, m_choices.front()->sizeHint().height());
    fitColumns();
}

void CsvMappingDialog::fitColumns() {
    m_table->resizeColumnsToContents();
    const int arrow = style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 3 * theme::Spacing;
    for (int column = 0; column < m_table->columnCount(); ++column) {
        const QString chosen = m_choices[static_cast<std::size_t>(column)]->currentText();
        const int wanted = fontMetrics().horizontalAdvance(chosen) + arrow;
        m_table->setColumnWidth(column, std::max(m_table->columnWidth(column), wanted));
    }
}

void CsvMappingDialog::readAgain() {
    m_import->setEnabled(false);
    const CsvMapping wanted = mapping();
    if (const auto fault = faultOf(wanted)) {
        m_reading->stop();
        return tellFault(qtText(*fault));
    }
    m_result->setText(tr("Reading…"));
    m_reading->start(wanted);
}

void CsvMappingDialog::tellFault(const QString& fault) {
    m_result->setText(fault);
    m_details->clear();
    m_details->setToolTip({});
}

void CsvMappingDialog::proposeStart() {
    const CsvImport& import = *m_reading->result();
    m_units->askForStart(!import.hasDates);
    if (import.hasDates)
        return;
    const QFileInfo file(QString::fromStdString(m_reading->csv().path().string()));
    m_units->proposeStart(
        file.lastModified().addMSecs(-static_cast<qint64>(import.seconds() * 1000)));
}

void CsvMappingDialog::tellResult() {
    const CsvMapping read = mapping();
    proposeStart();
    const CsvImport& import = *m_reading->result();
    // A list without dates is read once more, when its length has told when it began.
    if (!import.hasDates && mapping().start != read.start)
        return readAgain();
    const QString text = importText(import);
    m_result->setText(text.isEmpty() ? tr("This gives no samples.")
                                     : tr("This gives %1.").arg(text));
    m_details->setText(detailsText(import));
    m_details->setToolTip(unreadText(import));
    m_import->setEnabled(!text.isEmpty());
    m_import->setDefault(true);
}

CsvImport CsvMappingDialog::takeImport() {
    CsvImport import = std::move(m_reading->result()).value();
    m_reading->result().reset();
    return import;
}

} // namespace kavela::desktop
