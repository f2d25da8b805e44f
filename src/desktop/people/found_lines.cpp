#include "desktop/people/found_lines.h"

#include "desktop/shell/theme.h"
#include "results/name_likeness.h"

#include <QApplication>
#include <QFont>

namespace kavela::desktop {

FoundLines::FoundLines(FoundTitles titles, std::vector<KnownPerson> people, QObject* parent)
    : QAbstractTableModel(parent), m_titles(std::move(titles)), m_people(std::move(people)) {
    for (const KnownPerson& person : m_people)
        m_names.push_back(person.name);
}

/// A model that is reset closes the editor in a cell, so it is only where lines came or went.
void FoundLines::setLines(std::vector<FoundLine> lines) {
    if (lines.size() == m_lines.size()) {
        m_lines = std::move(lines);
        if (!m_lines.empty())
            emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        return;
    }
    beginResetModel();
    m_lines = std::move(lines);
    endResetModel();
}

const FoundLine& FoundLines::line(int row) const {
    return m_lines.at(static_cast<std::size_t>(row));
}

std::vector<Belonging> FoundLines::choicesFor(int row) const {
    std::vector<Belonging> choices{{}};
    if (!m_titles.add.isEmpty())
        choices.push_back(Belonging::toNewPerson());
    for (const std::size_t person : byLikeness(line(row).name.toStdString(), m_names))
        if (!m_mayBe || m_mayBe(row, person))
            choices.push_back(Belonging::toPerson(person));
    return choices;
}

QString FoundLines::personText(std::size_t person) const {
    const KnownPerson& known = m_people.at(person);
    const QString name = QString::fromStdString(known.name);
    return known.detail.isEmpty() ? name : name + " (" + known.detail + ')';
}

QString FoundLines::choiceText(int row, const Belonging& whose) const {
    switch (whose.to) {
    case Belonging::To::Person:
        return personText(whose.person);
    case Belonging::To::NewPerson:
        return m_titles.add.arg(line(row).name);
    case Belonging::To::Nobody:
        break;
    }
    return m_titles.leaveOut;
}

int FoundLines::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_lines.size());
}

int FoundLines::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : remarkColumn() + 1;
}

QString FoundLines::text(int row, int column) const {
    const FoundLine& shown = line(row);
    if (column == nameColumn())
        return shown.name;
    if (column < whoseColumn())
        return shown.facts.value(column - 1);
    if (column == wasColumn())
        return shown.was;
    if (column == nowColumn())
        return shown.now;
    if (column == remarkColumn())
        return shown.remark;
    if (shown.whose.to == Belonging::To::Nobody)
        return m_titles.nobody;
    return shown.whose.to == Belonging::To::NewPerson ? tr("new: %1").arg(shown.name)
                                                      : personText(shown.whose.person);
}

QVariant FoundLines::data(const QModelIndex& index, int role) const {
    const int row = index.row();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return text(row, index.column());
    case Qt::CheckStateRole:
        if (index.column() != nameColumn() || !line(row).tick)
            return {};
        return isTaken(row) ? Qt::Checked : Qt::Unchecked;
    case Qt::ForegroundRole:
        return isTaken(row) ? QVariant() : QVariant(theme::quietText(QApplication::palette()));
    case Qt::FontRole: {
        QFont font;
        font.setBold(true);
        const bool isNews = index.column() == nowColumn() && isTaken(row);
        return isNews ? QVariant(font) : QVariant();
    }
    default:
        return {};
    }
}

QVariant FoundLines::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    if (section == nameColumn())
        return tr("In the file");
    if (section < whoseColumn())
        return m_titles.facts.value(section - 1);
    return QStringList{m_titles.whose, tr("Was"), tr("Will be"), QString()}.value(section -
                                                                                  whoseColumn());
}

Qt::ItemFlags FoundLines::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() == nameColumn() && line(index.row()).tick)
        flags |= Qt::ItemIsUserCheckable;
    if (index.column() == whoseColumn() && line(index.row()).isChosenByHand)
        flags |= Qt::ItemIsEditable;
    return flags;
}

bool FoundLines::setData(const QModelIndex& index, const QVariant& value, int role) {
    const int row = index.row();
    if (role == Qt::CheckStateRole && line(row).tick) {
        emit ticked(row, value.toInt() == Qt::Checked);
        return true;
    }
    if (role != Qt::EditRole || index.column() != whoseColumn())
        return false;
    const std::vector<Belonging> choices = choicesFor(row);
    const auto choice = static_cast<std::size_t>(value.toInt());
    if (choice >= choices.size() || choices[choice] == line(row).whose)
        return false;
    emit chosen(row, choices[choice]);
    return true;
}

} // namespace kavela::desktop
