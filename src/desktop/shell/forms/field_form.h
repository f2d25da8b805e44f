#pragma once

#include <QString>
#include <QVariant>
#include <QWidget>

#include <functional>
#include <vector>

class QBoxLayout;
class QDateTimeEdit;
class QFormLayout;
class QLabel;

namespace kavela::desktop {

/// What is told of a field, whatever it holds.
struct FieldFacts {
    const char* name;  ///< of its object
    QString label;     ///< with its key; empty for none
    QString what = {}; ///< names the step of undo; else the label does
    QString tip = {};
    QString placeholder = {}; ///< stands in an empty field
    int widest = 0;           ///< pixels of the usual font; 0 for as wide as there is room
    int stretch = 0;          ///< its share of the room, where fields stand beside each other
};

/// What a field of numbers takes.
struct NumberFacts {
    double least = 0;
    double most = 0;
    int decimals = 0;
    double step = 1;
    QString unit = {};        ///< stands behind the number
    QString none = {};        ///< what is shown in place of the least number
    bool isTime = false;      ///< 1:22.75 may be typed for 82.75
    QString before = {};      ///< stands in front of the number
    bool showsBeyond = false; ///< a number of a record beyond least and most is shown as it is
};

/// The fields of a form and the one rule of what is typed in them: it is taken with Enter, when the
/// focus leaves its field and when the window takes it before it saves, prints or closes; nothing
/// is taken where nothing changed. What cannot be taken stays in its field with the reason and
/// holds up what was asked for. What is being typed is not overwritten. RecordForm tells what the
/// fields are of.
class FieldForm : public QWidget {
    Q_OBJECT

public:
    enum class Arrangement { Below, Beside };

    /// Takes what is being typed; false where something cannot be taken.
    bool commit();
    /// Begins to type in a field.
    void editField(const char* name);
    /// Hides or shows a field with its label.
    void setFieldVisible(const char* name, bool isVisible);
    /// Whether a field can be changed; the tip says why not, or what it is for.
    void setFieldEnabled(const char* name, bool isEnabled, const QString& tip);
    /// Other proposals for an editable choice.
    void propose(const char* name, const QStringList& texts);

    /// A title over the fields that follow.
    void addSection(const QString& title);
    /// Something else between the fields, with a label or none.
    void addRow(const QString& label, QWidget* part);

protected:
    FieldForm(Arrangement arrangement, QWidget* parent);

    // Each gives the place of the new field.
    std::size_t addLine(const FieldFacts& facts, const QStringList& proposals = {});
    std::size_t addLongText(const FieldFacts& facts, int lines);
    std::size_t addWhole(const FieldFacts& facts, const NumberFacts& number);
    std::size_t addNumber(const FieldFacts& facts, const NumberFacts& number);
    std::size_t addDate(const FieldFacts& facts);
    std::size_t addMoment(const FieldFacts& facts);
    std::size_t addCheck(const FieldFacts& facts);
    std::size_t addChoice(const FieldFacts& facts, const QStringList& texts);
    std::size_t addEditableChoice(const FieldFacts& facts);
    /// A widget of another kind. `show` gets nothing where there is no record; what is chosen in
    /// it is taken by takeField().
    std::size_t addPart(const FieldFacts& facts, QWidget* part,
                        std::function<void(const QVariant&)> show, std::function<QVariant()> read);
    /// What stands in a field is to become part of the record.
    void takeField(std::size_t place);

    /// What was typed becomes part of the record, as a step of undo of this name; false where it is
    /// what the record has. Throws RefusedEntry.
    [[nodiscard]] virtual bool take(std::size_t field, const QVariant& typed,
                                    const QString& what) = 0;

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Shows the values of a record; of none without any. `isOther` gives up what was typed.
    void showValues(std::vector<QVariant> values, bool isOther);

private:
    /// What a kind of widget does for its field.
    struct Field {
        QWidget* widget = nullptr;
        QString what = {};
        std::function<void(const QVariant&)> show = {};
        std::function<QVariant()> read = {};
        std::function<bool()> isTyped = {};
        std::function<void(bool isTyped)> mark = [](bool) {}; ///< is or is not being typed
        /// Reads what is being typed; false where it cannot be taken.
        std::function<bool()> finish = [] { return true; };
        QVariant value = {}; ///< of the record
        QVariant shown = {}; ///< the same as the widget rounded it
    };

    std::size_t add(const FieldFacts& facts, Field field);
    template <class Box>
    std::size_t addBox(const FieldFacts& facts, const NumberFacts& number, Box* box);
    [[nodiscard]] static Field fieldOfDates(QDateTimeEdit* edit, const QString& format);
    void place(const FieldFacts& facts, QWidget& widget);
    void showField(Field& field);
    [[nodiscard]] QWidget* widgetOf(const char* name) const;

    QFormLayout* m_below = nullptr;
    QBoxLayout* m_beside = nullptr;
    std::vector<Field> m_fields;
    bool m_hasRecord = false;
    bool m_isShowing = false;
    int m_shows = 0; ///< how often a record was shown
};

} // namespace kavela::desktop
