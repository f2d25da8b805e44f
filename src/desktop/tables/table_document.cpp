#include "desktop/tables/table_document.h"

#include "common/error.h"
#include "common/text.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "tables/table_error.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

/// The same for the same text at every start, so that what was made of it is found again.
QString markOf(const ListGrid& list) {
    constexpr qsizetype Length = 6;
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const GridLine& line : list.lines)
        for (const std::string& field : line.fields)
            hash.addData(QByteArrayView(field.data(), static_cast<qsizetype>(field.size())));
    return QString::fromLatin1(hash.result().toHex().first(Length));
}

/// Where saving will propose to put what is made of a list: nothing that is there is replaced, and
/// the name is the same each time until it is saved.
template <class IsTaken>
QString freeWorkPath(const ListGrid& list, const ListOrigin& origin, IsTaken isTaken) {
    const bool isCopied = origin.path.isEmpty();
    const QFileInfo source(origin.path);
    const QDir folder =
        isCopied ? QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
                 : source.absoluteDir();
    QStringList words{isCopied ? QStringLiteral("Table %1").arg(markOf(list))
                               : source.completeBaseName(),
                      qtText(origin.list)};
    words.removeAll(QString());
    const QString name = words.join(' ').replace('/', '-').replace('\\', '-');
    const QString extension = '.' + QString::fromLatin1(TableWorkExtension);
    QString path = folder.filePath(name + extension);
    for (int number = 2; isTaken(path); ++number)
        path = folder.filePath(QStringLiteral("%1 %2%3").arg(name).arg(number).arg(extension));
    return path;
}

} // namespace

PackedValue<TableWork>::PackedValue(const std::shared_ptr<const TableWork>& value,
                                    const PackedValue* /*before*/)
    : m_rest(*value) {
    if (!m_rest.steps)
        return;
    m_source = m_rest.steps->sharedSource();
    m_steps = m_rest.steps->steps();
    m_rest.steps.reset();
}

std::shared_ptr<const TableWork> PackedValue<TableWork>::value() const {
    auto value = std::make_shared<TableWork>(m_rest);
    if (m_source)
        value->steps.emplace(m_source, m_steps);
    return value;
}

void TableDocument::start(ListGrid list, const ListOrigin& origin, QWidget* over) {
    const QString path = freeWorkPath(list, origin, [this](const QString& wanted) {
        const EditedFile* const holder = workspace().openFiles().holderOf(wanted);
        return QFileInfo::exists(wanted) || (holder && holder != this);
    });
    TableWork work;
    work.source = origin.path.toStdString();
    work.list = origin.list;
    work.title = origin.title.toStdString();
    work.steps.emplace(std::move(list));
    goOn(std::move(work), path, over);
}

void TableDocument::goOn(TableWork work, const QString& path, QWidget* over) {
    Document::start(std::move(work), path, over);
}

QString TableDocument::shownPath() const {
    return isDirty() || isNamed() ? path() : qtText(value().source);
}

bool TableDocument::isOf(const QString& path) const {
    const QString list = qtText(value().source);
    return (!list.isEmpty() && isSameFile(list, path)) ||
           (!this->path().isEmpty() && isSameFile(this->path(), path));
}

ListOrigin TableDocument::origin() const {
    return {qtText(value().source), value().list, qtText(value().title)};
}

std::vector<TableStep> TableDocument::steps() const {
    return hasList() ? value().steps->steps() : std::vector<TableStep>();
}

std::optional<Reason> TableDocument::whyOf(std::size_t row, std::size_t column) const {
    return hasList() ? explainTable(*value().steps, row, column, value().source) : std::nullopt;
}

QString TableDocument::textOfPlace(const Place& place) const {
    if (!hasList() || !place.line)
        return {};
    const std::vector<GridLine>& lines = value().steps->source().lines;
    const auto found = std::ranges::find(lines, *place.line, &GridLine::number);
    const auto column = static_cast<std::size_t>(place.column.value_or(0));
    if (found == lines.end() || column < 1 || column > found->fields.size())
        return tr("Line %1 of the list is no row of this table any more.").arg(*place.line);
    return tr("Line %1, column %2 of the list says “%3”.")
        .arg(QString::number(*place.line), QString::number(column),
             qtText(found->fields[column - 1]));
}

void TableDocument::take(const TableStep& step) {
    if (!hasList())
        throw TableError(say("No list is open."));
    TableSteps steps = value().steps->with(step);
    edit(qtText(stepText(step)), [&](TableWork& work) { work.steps = std::move(steps); });
}

/// Joined once here, so that a table without names is refused before it is a step.
void TableDocument::join(std::vector<KnownAthlete> athletes) {
    (void)joinedRows(*m_table, athletes);
    edit(tr("Join the athletes"), [&](TableWork& work) {
        work.athletes = std::make_shared<const std::vector<KnownAthlete>>(std::move(athletes));
        work.answers.clear();
    });
}

void TableDocument::answer(std::size_t row, std::optional<std::size_t> athlete) {
    const std::int64_t line = m_table->lines.at(row);
    edit(tr("Say who line %1 is").arg(line),
         [=](TableWork& work) { work.answers[line] = athlete; });
}

std::vector<std::size_t> TableDocument::unsureRows() const {
    std::vector<std::size_t> rows;
    for (const JoinedRow& joined : m_joined)
        if (joined.certainty == JoinCertainty::Unsure && m_table->lines[joined.row] > 0)
            rows.push_back(joined.row);
    return rows;
}

QString TableDocument::summary() const {
    const std::size_t rows = m_table->rows();
    return rows == 1 ? tr("1 row") : tr("%n rows", nullptr, static_cast<int>(rows));
}

TableDocument::Content TableDocument::contentNow() const {
    return [work = shared()] { return tableWorkText(*work); };
}

bool TableDocument::recover(const std::string& content) {
    try {
        startFrom(readTableWork(content));
        return true;
    } catch (const DecodeError& error) {
        workspace().log()(error.what());
        return false;
    }
}

/// A pivot, or a table whose names were left out, is about nobody any more: it can be joined again
/// when that step is taken back.
void TableDocument::follow() {
    m_table = hasList() ? value().steps->sharedTable() : std::make_shared<const ListTable>();
    m_joined.clear();
    if (!value().athletes)
        return;
    try {
        m_joined = joinedRows(*m_table, *value().athletes);
    } catch (const TableError&) {
        return;
    }
    for (JoinedRow& joined : m_joined) {
        const auto answer = value().answers.find(m_table->lines[joined.row]);
        if (answer == value().answers.end())
            continue;
        joined.certainty = answer->second ? JoinCertainty::Certain : JoinCertainty::None;
        joined.athletes.clear();
        if (answer->second)
            joined.athletes.push_back(*answer->second);
    }
}

} // namespace kavela::desktop
