#pragma once

#include "desktop/watertests/listed_test.h"

#include <QAbstractTableModel>

namespace kavela::desktop {

/// The tests as they stand in the exported table, one line each.
class ResultTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit ResultTableModel(QObject* parent = nullptr);

    void show(const TestList& tests);
    /// The table as it is exported.
    [[nodiscard]] std::string csv() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    QStringList m_titles;
    TestList m_tests;
    std::vector<QStringList> m_cells;
};

} // namespace kavela::desktop
