#include "desktop/find/query_form.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/typed_number.h"
#include "facts/query_edit.h"

#include <array>

namespace kavela::desktop {

namespace {

/// A field for what is asked of a column.
struct AskedField {
    const char* column; ///< also the name of its object
    const char* label;
    const char* placeholder;
};

constexpr std::array AskedFields{
    AskedField{"athlete", QT_TRANSLATE_NOOP("QueryForm", "&Athlete"),
               QT_TRANSLATE_NOOP("QueryForm", "anyone")},
    AskedField{"cat", QT_TRANSLATE_NOOP("QueryForm", "&Category"), "K1W"},
    AskedField{"phase", QT_TRANSLATE_NOOP("QueryForm", "&Phase"),
               QT_TRANSLATE_NOOP("QueryForm", "any")},
    AskedField{"place", QT_TRANSLATE_NOOP("QueryForm", "P&lace"),
               QT_TRANSLATE_NOOP("QueryForm", "anywhere")},
    AskedField{"year", QT_TRANSLATE_NOOP("QueryForm", "&Year"),
               QT_TRANSLATE_NOOP("QueryForm", "any")},
    AskedField{"gate", QT_TRANSLATE_NOOP("QueryForm", "&Gate"),
               QT_TRANSLATE_NOOP("QueryForm", "any")},
    AskedField{"type", QT_TRANSLATE_NOOP("QueryForm", "&Up or down"),
               QT_TRANSLATE_NOOP("QueryForm", "both")},
    AskedField{"direction", QT_TRANSLATE_NOOP("QueryForm", "&Direction"),
               QT_TRANSLATE_NOOP("QueryForm", "any")},
    AskedField{"style", QT_TRANSLATE_NOOP("QueryForm", "&Style"),
               QT_TRANSLATE_NOOP("QueryForm", "any")},
    AskedField{"kind", QT_TRANSLATE_NOOP("QueryForm", "&Kind"),
               QT_TRANSLATE_NOOP("QueryForm", "any")},
};

/// Places of the fields, in the order of the form.
enum Field : std::size_t {
    FieldWhat,
    FieldAsked, ///< the first of them
    FieldLeast = FieldAsked + AskedFields.size(),
    FieldMost,
    FieldBy,
    FieldBest,
    FieldSort,
    FieldDown,
    FieldFirst
};

QStringList withNone(const std::vector<std::string>& texts) {
    QStringList all{QString()};
    for (const std::string& text : texts)
        all.append(qtText(text));
    return all;
}

QString sortText(const Query& query) {
    if (!query.sort)
        return {};
    return qtText(query.sort->column ? query.sort->column->name : query.sort->figure);
}

/// The columns that can make groups, be the best, or be sorted by.
QStringList columnsOf(What what, const std::function<bool(const QueryColumn&)>& fits) {
    QStringList names{QString()};
    for (const QueryColumn& column : queryColumns())
        if (column.isOf(what) && fits(column))
            names.append(qtText(column.name));
    return names;
}

bool isMeasured(const QueryColumn& column) {
    return column.kind == kavela::ColumnKind::Measure || column.kind == kavela::ColumnKind::Number;
}

bool isGrouping(const QueryColumn& column) {
    return column.kind != kavela::ColumnKind::Measure;
}

QStringList sortableBy(const Query& query) {
    if (query.by.empty())
        return columnsOf(query.what, [](const QueryColumn&) { return true; });
    QStringList names{QString()};
    for (const std::string_view figure : GroupFigures)
        names.append(qtText(figure));
    for (const QueryColumn* const column : query.by)
        names.append(qtText(column->name));
    return names;
}

} // namespace

QueryForm::QueryForm(QWidget* parent) : FieldForm(Arrangement::Below, parent) {
    QStringList whats;
    for (std::size_t i = 0; i < WhatCount; ++i)
        whats.append(qtText(wordOf(static_cast<What>(i))));
    addChoice({.name = "what", .label = tr("Fi&nd")}, whats);
    for (const AskedField& field : AskedFields)
        addEditableChoice({.name = field.column,
                           .label = tr(field.label),
                           .tip = tr("Words that its words begin with; a whole name in quotes"),
                           .placeholder = tr(field.placeholder)});
    const QString limits = tr("Seconds, or 1:32.45; %1 in front leaves out the limit itself");
    addLine({.name = "least",
             .label = tr("At l&east"),
             .tip = limits.arg('>'),
             .placeholder = tr("no limit")});
    addLine({.name = "most",
             .label = tr("At &most"),
             .tip = limits.arg('<'),
             .placeholder = tr("no limit")});
    addEditableChoice({.name = "by",
                       .label = tr("G&roups by"),
                       .tip = tr("Up to three columns with commas between them"),
                       .placeholder = tr("no groups")});
    addEditableChoice({.name = "best", .label = tr("&Best"), .placeholder = tr("all")});
    addEditableChoice({.name = "sort", .label = tr("S&ort by"), .placeholder = tr("as found")});
    addCheck({.name = "down", .label = tr("From the largest do&wn")});
    addLine({.name = "first", .label = tr("Only the f&irst"), .placeholder = tr("all")});
    show(Query());
    propose();
}

void QueryForm::show(const Query& query) {
    const bool isOther = query.what != m_query.what || groupText(query) != groupText(m_query);
    m_query = query;
    const QueryColumn* const measured = measuredColumn(query.what);
    for (const AskedField& field : AskedFields)
        setFieldVisible(field.column, columnNamed(query.what, field.column) != nullptr);
    setFieldVisible("least", measured != nullptr);
    setFieldVisible("most", measured != nullptr);
    if (isOther)
        propose();
    std::vector<QVariant> values{static_cast<int>(query.what)};
    for (const AskedField& field : AskedFields)
        values.emplace_back(qtText(askedText(query, field.column)));
    for (const Limit limit : {Limit::Least, Limit::Most})
        values.emplace_back(measured ? qtText(limitText(query, measured->name, limit)) : QString());
    values.emplace_back(qtText(groupText(query)));
    values.emplace_back(query.best ? qtText(query.best->name) : QString());
    values.emplace_back(sortText(query));
    values.emplace_back(query.sort && query.sort->isDown);
    values.emplace_back(query.first ? QString::number(*query.first) : QString());
    showValues(std::move(values), false);
}

void QueryForm::setValues(ValuesOf valuesOf) {
    m_values = std::move(valuesOf);
    propose();
}

void QueryForm::propose() {
    for (const AskedField& field : AskedFields) {
        const QueryColumn* const column = columnNamed(m_query.what, field.column);
        std::vector<std::string> values;
        if (column && m_values)
            for (const std::string& value : m_values(m_query.what, *column))
                values.push_back(quotedValue(value));
        FieldForm::propose(field.column, withNone(values));
    }
    FieldForm::propose("by", columnsOf(m_query.what, isGrouping));
    FieldForm::propose("best", columnsOf(m_query.what, isMeasured));
    FieldForm::propose("sort", sortableBy(m_query));
}

Query QueryForm::changed(std::size_t field, const QVariant& typed) const {
    const std::string text = typed.toString().trimmed().toStdString();
    const QueryColumn* const measured = measuredColumn(m_query.what);
    switch (field) {
    case FieldWhat:
        return aboutRows(m_query, static_cast<What>(typed.toInt()));
    case FieldLeast:
        return withLimit(m_query, measured->name, Limit::Least, text);
    case FieldMost:
        return withLimit(m_query, measured->name, Limit::Most, text);
    case FieldBy:
        return withGroups(m_query, text);
    case FieldBest:
        return withBest(m_query, text);
    case FieldSort:
        return withSort(m_query, text, m_query.sort && m_query.sort->isDown);
    case FieldDown:
        return withSort(m_query, sortText(m_query).toStdString(), typed.toBool());
    case FieldFirst:
        return withFirst(m_query, text);
    default:
        return withAsked(m_query, AskedFields.at(field - FieldAsked).column, text);
    }
}

bool QueryForm::take(std::size_t field, const QVariant& typed, const QString& /*what*/) {
    try {
        const Query query = changed(field, typed);
        const bool isOther = textOf(query) != textOf(m_query);
        if (isOther)
            emit edited(query);
        return isOther;
    } catch (const QueryError& error) {
        QString reason = qtText(error.what());
        if (!error.nearest().empty())
            reason += ' ' + tr("Near it: %1").arg(joined(error.nearest()));
        throw RefusedEntry(reason);
    }
}

} // namespace kavela::desktop
