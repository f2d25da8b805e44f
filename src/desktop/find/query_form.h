#pragma once

#include "desktop/shell/forms/field_form.h"
#include "facts/query_completion.h"

namespace kavela::desktop {

/// The fields beside the text of a query. They show what the text asks, and what is set in them
/// leaves as another query; what no field shows stays as it was.
class QueryForm : public FieldForm {
    Q_OBJECT

public:
    explicit QueryForm(QWidget* parent = nullptr);

    using QWidget::show;
    void show(const Query& query);
    /// Offers the values that the files have.
    void setValues(ValuesOf valuesOf);

signals:
    void edited(const kavela::Query& query);

protected:
    [[nodiscard]] bool take(std::size_t field, const QVariant& typed, const QString& what) override;

private:
    [[nodiscard]] Query changed(std::size_t field, const QVariant& typed) const;
    void propose();

    Query m_query;
    ValuesOf m_values;
};

} // namespace kavela::desktop
