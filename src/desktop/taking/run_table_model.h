#pragma once

#include <QAbstractTableModel>

namespace kavela::desktop {

class TakingDocument;

/// The runs in the order of the list, with what is known of each. Names, category and phase can be
/// corrected in place.
class RunTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// TakenColumn: the total of a whole run, of any other how many splits it has. One column for
    /// both leaves room for the names.
    enum RunColumn { NameColumn, CategoryColumn, PhaseColumn, TakenColumn, Columns };

    explicit RunTableModel(TakingDocument& document, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    void follow();
    [[nodiscard]] QString text(int run, int column) const;

    TakingDocument& m_document;
    int m_rows = 0; ///< as the views know it
};

} // namespace kavela::desktop
