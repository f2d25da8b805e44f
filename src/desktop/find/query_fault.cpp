#include "desktop/find/query_fault.h"

#include "desktop/shell/fault_label.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

constexpr std::size_t MostWords = 6;

} // namespace

QueryFault::QueryFault(QWidget* parent)
    : QWidget(parent), m_text(new FaultLabel), m_words(new QHBoxLayout) {
    setObjectName("queryFault");
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(m_text);
    column->addLayout(m_words);
    hide();
}

QString QueryFault::text() const {
    return isHidden() ? QString() : m_text->text();
}

void QueryFault::clear() {
    while (const QLayoutItem* const item = m_words->takeAt(0)) {
        if (item->widget())
            item->widget()->deleteLater();
        delete item;
    }
    m_text->tell(QString());
    hide();
}

void QueryFault::tell(const QueryError& error, const QString& query) {
    clear();
    const QByteArray bytes = query.toUtf8();
    const QByteArray before = bytes.left(static_cast<qsizetype>(error.place()));
    const QByteArray behind = bytes.mid(static_cast<qsizetype>(error.place() + error.length()));
    m_text->tell(tr("%1 (at letter %2)")
                     .arg(qtText(error.what()))
                     .arg(QString::fromUtf8(before).size() + 1));
    for (const std::string& word : error.nearest()) {
        if (static_cast<std::size_t>(m_words->count()) == MostWords)
            break;
        auto* const button = new QPushButton(qtText(word));
        button->setToolTip(tr("Writes “%1” there").arg(qtText(word)));
        const QString mended = QString::fromUtf8(before) + qtText(word) + QString::fromUtf8(behind);
        connect(button, &QPushButton::clicked, this, [this, mended] { emit this->mended(mended); });
        m_words->addWidget(button);
    }
    if (m_words->count() > 0)
        m_words->addStretch();
    show();
}

} // namespace kavela::desktop
