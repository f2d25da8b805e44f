#include "desktop/losses/run_picker.h"

#include "common/folded_text.h"
#include "desktop/losses/loss_texts.h"

#include <QAbstractListModel>
#include <QCompleter>
#include <QLineEdit>
#include <QListView>
#include <QSignalBlocker>

namespace kavela::desktop {

namespace {

constexpr int FoldedRole = Qt::UserRole + 1;
constexpr int MostFound = 20; ///< lines of the list of what was found

/// As it is searched: without case, accents and what stands between the parts.
QString searched(const QString& text) {
    QString plain = QString::fromStdString(folded(text.toStdString()));
    for (const char* const mark : {",", "·", "/"})
        plain.replace(QString::fromUtf8(mark), QStringLiteral(" "));
    return plain.simplified();
}

/// Finds by the plain letters, and shows what was found as it is written.
class RunCompleter : public QCompleter {
public:
    using QCompleter::QCompleter;

    [[nodiscard]] QStringList splitPath(const QString& path) const override {
        return {searched(path)};
    }
    [[nodiscard]] QString pathFromIndex(const QModelIndex& index) const override {
        return index.data(Qt::DisplayRole).toString();
    }
};

} // namespace

/// The runs of a store. Their texts are made when they are asked for: there may be very many.
class RunList : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void setFacts(std::shared_ptr<const FactStore> facts) {
        beginResetModel();
        m_facts = std::move(facts);
        endResetModel();
    }
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
        return m_facts && !parent.isValid() ? static_cast<int>(m_facts->runs().size()) : 0;
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid())
            return {};
        const auto run = static_cast<std::size_t>(index.row());
        if (role == Qt::DisplayRole || role == Qt::EditRole)
            return runChoice(*m_facts, run);
        return role == FoldedRole ? QVariant(searched(runChoice(*m_facts, run))) : QVariant();
    }

private:
    std::shared_ptr<const FactStore> m_facts;
};

RunPicker::RunPicker(QWidget* parent) : QComboBox(parent), m_list(new RunList(this)) {
    setEditable(true);
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(34);
    setAccessibleName(tr("Run"));
    setToolTip(tr("Type any part of a name, phase, category or race"));
    auto* const view = new QListView;
    view->setUniformItemSizes(true);
    setView(view);
    setModel(m_list);
    auto* const completer = new RunCompleter(m_list, this);
    completer->setCompletionRole(FoldedRole);
    completer->setFilterMode(Qt::MatchContains);
    completer->setCaseSensitivity(Qt::CaseSensitive); // both are folded
    completer->setMaxVisibleItems(MostFound);
    setCompleter(completer);
    lineEdit()->setPlaceholderText(tr("Find a run"));
    connect(this, &QComboBox::activated, this, [this](int row) {
        if (row >= 0)
            emit runChosen(static_cast<std::size_t>(row));
    });
    connect(lineEdit(), &QLineEdit::editingFinished, this, &RunPicker::takeTyped);
}

void RunPicker::setFacts(std::shared_ptr<const FactStore> facts) {
    const QSignalBlocker blocker(this);
    m_list->setFacts(std::move(facts));
}

void RunPicker::showRun(std::size_t run) {
    const QSignalBlocker blocker(this);
    setCurrentIndex(static_cast<int>(run));
    setEditText(itemText(currentIndex()));
    lineEdit()->setCursorPosition(0);
}

std::optional<std::size_t> RunPicker::found(const QString& typed) const {
    const QString wanted = searched(typed);
    if (wanted.isEmpty())
        return std::nullopt;
    for (int row = 0; row < m_list->rowCount(); ++row)
        if (m_list->index(row).data(FoldedRole).toString().contains(wanted))
            return static_cast<std::size_t>(row);
    return std::nullopt;
}

/// What names no run gives way to the one that is shown.
void RunPicker::takeTyped() {
    const QString shown = itemText(currentIndex());
    if (currentText() == shown)
        return;
    const auto run = found(currentText());
    if (currentIndex() >= 0)
        showRun(run.value_or(static_cast<std::size_t>(currentIndex())));
    if (run)
        emit runChosen(*run);
}

} // namespace kavela::desktop
