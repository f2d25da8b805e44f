#pragma once

#include "desktop/watertests/listed_test.h"

#include <QAbstractTableModel>

#include <set>

namespace kavela::desktop {

class TestsDocument;

/// The tests of a file, with a tick at those that are laid over each other.
class TestListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { AthleteColumn, DateColumn, KindColumn, LocationColumn, Columns };
    enum Role { IdRole = Qt::UserRole, KindRole, SortRole };

    explicit TestListModel(TestsDocument& document, QObject* parent = nullptr);

    [[nodiscard]] bool isTicked(TestId id) const { return m_ticked.contains(id); }
    void setTicked(const std::vector<TestId>& tests, bool isTicked);
    /// The place of a test; an invalid index when there is none.
    [[nodiscard]] QModelIndex indexOf(TestId id) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

signals:
    void ticksChanged();

private:
    void reload();

    TestsDocument& m_document;
    TestList m_tests; ///< as the views know them
    std::set<TestId> m_ticked;
};

} // namespace kavela::desktop
