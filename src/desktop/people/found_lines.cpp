#include "desktop/people/found_lines.h"

#include "results/name_likeness.h"

#include <map>
#include <utility>

namespace kavela::desktop {

namespace {

/// A text may be longer than its column. What stays out is quiet.
Cell cellOf(const FoundLine& line, const QString& text) {
    return {
        .text = text, .tip = text, .look = line.isTaken() ? Cell::Look::Plain : Cell::Look::Quiet};
}

Cell nameCell(const FoundLine& line) {
    Cell cell = cellOf(line, line.name);
    cell.isTicked = line.tick;
    return cell;
}

Cell nowCell(const FoundLine& line) {
    Cell cell = cellOf(line, line.now);
    if (line.isTaken())
        cell.look = Cell::Look::Bold;
    return cell;
}

} // namespace

FoundLines::FoundLines(FoundTitles titles, std::vector<KnownPerson> people, QObject* parent)
    : ColumnModel({}, &FoundLine::key, parent),
      m_titles(std::move(titles)),
      m_people(std::move(people)) {
    for (const KnownPerson& person : m_people)
        m_names.push_back(person.name);
    setColumns(columns());
}

FoundLines::Columns FoundLines::columns() {
    Columns columns;
    columns.push_back({.title = tr("In the file"),
                       .show = nameCell,
                       .tick = [this](const QString& key, const FoundLine&, bool isTaken) {
                           emit ticked(placeOfKey(key), isTaken);
                       }});
    for (qsizetype fact = 0; fact < m_titles.facts.size(); ++fact)
        columns.push_back({.title = m_titles.facts[fact], .show = [fact](const FoundLine& line) {
                               return cellOf(line, line.facts.value(fact));
                           }});
    columns.push_back({.title = m_titles.whose,
                       .show =
                           [this](const FoundLine& line) {
                               Cell cell = cellOf(line, whoseText(line));
                               cell.isLocked = !line.isChosenByHand;
                               return cell;
                           },
                       .take = [this](const QString& key, const FoundLine&,
                                      const QString& typed) { choose(placeOfKey(key), typed); }});
    columns.push_back(
        {.title = tr("Was"), .show = [](const FoundLine& line) { return cellOf(line, line.was); }});
    columns.push_back({.title = tr("Will be"), .show = nowCell});
    columns.push_back({.title = QString(),
                       .show = [](const FoundLine& line) { return cellOf(line, line.remark); }});
    return columns;
}

/// Whose a line is tells lines apart only where that stays. Those that say the same are counted.
void FoundLines::setLines(std::vector<FoundLine> lines) {
    std::map<QString, int> met;
    for (FoundLine& line : lines) {
        line.key = line.name + '\n' + line.facts.join('\n') + '\n';
        if (!line.isChosenByHand)
            line.key += whoseText(line);
        line.key += '\n' + QString::number(met[line.key]++);
    }
    show(std::move(lines));
}

std::vector<Belonging> FoundLines::choicesFor(int line) const {
    std::vector<Belonging> choices{{}};
    if (!m_titles.add.isEmpty())
        choices.push_back(Belonging::toNewPerson());
    for (const std::size_t person : byLikeness(row(line).name.toStdString(), m_names))
        if (!m_mayBe || m_mayBe(line, person))
            choices.push_back(Belonging::toPerson(person));
    return choices;
}

QString FoundLines::personText(std::size_t person) const {
    const KnownPerson& known = m_people.at(person);
    const QString name = QString::fromStdString(known.name);
    return known.detail.isEmpty() ? name : name + " (" + known.detail + ')';
}

QString FoundLines::choiceText(int line, const Belonging& whose) const {
    switch (whose.to) {
    case Belonging::To::Person:
        return personText(whose.person);
    case Belonging::To::NewPerson:
        return m_titles.add.arg(row(line).name);
    case Belonging::To::Nobody:
        break;
    }
    return m_titles.leaveOut;
}

QString FoundLines::whoseText(const FoundLine& line) const {
    switch (line.whose.to) {
    case Belonging::To::Person:
        return personText(line.whose.person);
    case Belonging::To::NewPerson:
        return tr("new: %1").arg(line.name);
    case Belonging::To::Nobody:
        break;
    }
    return m_titles.nobody;
}

void FoundLines::choose(int line, const QString& typed) {
    const std::vector<Belonging> choices = choicesFor(line);
    bool isNumber = false;
    const std::size_t choice = typed.toUInt(&isNumber);
    if (isNumber && choice < choices.size() && choices[choice] != row(line).whose)
        emit chosen(line, choices[choice]);
}

} // namespace kavela::desktop
