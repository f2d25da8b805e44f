#include "desktop/planning/planned_athlete_dialog.h"

#include "desktop/shell/fault_label.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>

namespace kavela::desktop {

namespace {

constexpr int PictureSide = 96;
constexpr qint64 LargestPicture = 8'000'000; ///< bytes: it travels inside the planning file

QString categoriesText(const std::vector<std::string>& categories) {
    QStringList texts;
    for (const std::string& category : categories)
        texts.append(QString::fromStdString(category));
    return texts.join(", ");
}

} // namespace

PlannedAthleteDialog::PlannedAthleteDialog(const athletesplanning_v6& athlete, QWidget* parent)
    : QDialog(parent),
      m_athlete(athlete),
      m_name(new QLineEdit(QString::fromStdString(athlete.name))),
      m_email(new QLineEdit(QString::fromStdString(athlete.email))),
      m_phone(new QLineEdit(QString::fromStdString(athlete.phone))),
      m_categories(new QLineEdit(categoriesText(athlete.categories))),
      m_picture(new QLabel),
      m_fault(new FaultLabel) {
    setWindowTitle(tr("Athlete"));
    m_name->setObjectName("name");
    m_categories->setPlaceholderText("K1W, C1W");
    auto* choose = new QPushButton(tr("&Picture…"));
    auto* remove = new QPushButton(tr("&No picture"));
    connect(choose, &QPushButton::clicked, this, [this] {
        const QString path = QFileDialog::getOpenFileName(
            this, tr("Picture of the athlete"), QString(), tr("Pictures (*.png *.jpg *.jpeg)"));
        if (!path.isEmpty())
            takePicture(path);
    });
    connect(remove, &QPushButton::clicked, this, [this] {
        m_athlete.photo = {};
        showPicture();
    });
    auto* picture = new QHBoxLayout;
    picture->addWidget(m_picture);
    picture->addWidget(choose);
    picture->addWidget(remove);
    picture->addStretch(1);
    auto* form = new QFormLayout(this);
    form->setContentsMargins(theme::LargeSpacing, theme::LargeSpacing, theme::LargeSpacing,
                             theme::LargeSpacing);
    form->setSpacing(theme::Spacing);
    form->addRow(tr("&Name"), m_name);
    form->addRow(tr("&Categories"), m_categories);
    form->addRow(tr("&E-mail"), m_email);
    form->addRow(tr("P&hone"), m_phone);
    form->addRow(picture);
    form->addRow(m_fault);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &PlannedAthleteDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    setMinimumWidth(grown(*this, 420));
    showPicture();
}

void PlannedAthleteDialog::showPicture() {
    QPixmap picture;
    picture.loadFromData(reinterpret_cast<const uchar*>(m_athlete.photo.bytes.data()),
                         static_cast<uint>(m_athlete.photo.bytes.size()));
    m_picture->setPixmap(picture.isNull()
                             ? picture
                             : picture.scaled(PictureSide, PictureSide, Qt::KeepAspectRatio,
                                              Qt::SmoothTransformation));
}

bool PlannedAthleteDialog::takePicture(const QString& path) {
    QFile file(path);
    const bool isOpen = file.open(QIODevice::ReadOnly) && file.size() <= LargestPicture;
    const QByteArray bytes = isOpen ? file.readAll() : QByteArray();
    QPixmap picture;
    if (!picture.loadFromData(bytes)) {
        m_fault->tell(tr("The file is no picture, cannot be read, or is larger than 8 MB."));
        return false;
    }
    m_fault->tell({});
    m_athlete.photo.bytes = std::vector<unsigned char>(bytes.begin(), bytes.end());
    showPicture();
    return true;
}

athletesplanning_v6 PlannedAthleteDialog::athlete() const {
    athletesplanning_v6 athlete = m_athlete;
    athlete.name = m_name->text().simplified().toStdString();
    athlete.email = m_email->text().trimmed().toStdString();
    athlete.phone = m_phone->text().trimmed().toStdString();
    if (m_categories->text() != categoriesText(m_athlete.categories)) {
        athlete.categories.clear();
        for (const QString& category : m_categories->text().split(',', Qt::SkipEmptyParts))
            if (const QString name = category.trimmed(); !name.isEmpty())
                athlete.categories.push_back(name.toStdString());
    }
    return athlete;
}

void PlannedAthleteDialog::accept() {
    if (!m_name->text().simplified().isEmpty()) {
        QDialog::accept();
        return;
    }
    m_fault->tell(tr("The athlete needs a name."));
    m_name->setFocus();
}

} // namespace kavela::desktop
