#pragma once

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/cross/heats/attack_form.h"
#include "desktop/cross/heats/heat_page.h"
#include "desktop/cross/heats/order_board.h"
#include "desktop/cross/heats/place_grid.h"
#include "desktop/cross/results/results_page.h"
#include "desktop/film/film_deck.h"
#include "desktop/saving.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/taking_document.h"
#include "sample/races.h"
#include "splitdata/loader.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>

/// The pages of heats and results over a cross race that a test writes.
namespace kavela::test {

using desktop::ColumnTable;
using desktop::CrossDesk;
using desktop::FilmDeck;
using desktop::HeatPage;
using desktop::OrderBoard;
using desktop::PlaceGrid;
using desktop::ResultsPage;
using desktop::TakingDocument;
using desktop::Workspace;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Names = std::vector<std::string>;

inline const std::string Ada = "Ada Stone";
inline const std::string Bea = "Bea Rill";
inline const std::string Cleo = "Cleo Weir";
inline const std::string Dora = "Dora Moss";
inline const std::string Stranger = "Una Known";

inline CMTime at(std::int64_t seconds) {
    return {seconds * 50, 50, 1, 0};
}

/// A heat of four on a course of four gates, its film not there and nothing taken.
inline crossdata030 freshCross() {
    crossdata030 cross;
    cross.crossinfo.gates = {2, 4, 5, 7};
    cross.eliphase = {{"heat.MOV", {Ada, Bea, Cleo, Dora}, {}, {}}};
    return cross;
}

inline generaldata030 order(std::int64_t gate, Names names, std::int64_t seconds = 30) {
    return {at(seconds), gate, 1, std::move(names), ""};
}

class CrossPagesTest : public ::testing::Test {
protected:
    CrossPagesTest() { m_workspace.setAlerts(&m_recorder); }

    /// The pages follow the document as their window makes them.
    void open(const crossdata030& cross) {
        splittakerdata031 race = sample::holdRace(sample::harbourNight());
        race.athletes.resize(1);
        race.crossracedata = cross;
        ASSERT_TRUE(saveSplitFile(race, file(), m_recorder.log()));
        ASSERT_TRUE(m_document.reading(QString::fromStdString(file().string()), nullptr)()());
        for (desktop::CrossPage* const page : {static_cast<desktop::CrossPage*>(&m_heats),
                                               static_cast<desktop::CrossPage*>(&m_results)}) {
            QObject::connect(&m_document, &TakingDocument::changed, page,
                             [page] { page->refresh(); });
            page->resize(700, 740);
            page->refresh();
            page->show();
        }
        QObject::connect(&m_heats, &desktop::CrossPage::told,
                         [this](const QString& text) { m_told = text.toStdString(); });
        QApplication::processEvents();
    }

    std::filesystem::path file() const { return m_folder.path() / "cross.kvx"; }

    const rounddata030& heat(std::size_t place = 0) const {
        return m_document.cross().eliphase.at(place);
    }

    void press(std::initializer_list<int> numbers) {
        for (const int number : numbers)
            m_heats.pressNumber(number);
    }

    template <class T>
    T& part(const QString& name, desktop::CrossPage* page = nullptr) {
        T* const found = (page ? page : &m_heats)->findChild<T*>(name);
        if (!found)
            throw std::runtime_error("no part " + name.toStdString());
        return *found;
    }

    void click(const QString& name) {
        QTest::mouseClick(&part<QAbstractButton>(name), Qt::LeftButton);
    }

    static void begin(QLineEdit& edit, const QString& text) {
        QApplication::setActiveWindow(edit.window());
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }

    void type(QLineEdit& edit, const QString& text) {
        begin(edit, text);
        QTest::keyClick(&edit, Qt::Key_Return);
    }

    /// Answers the dialog that comes next with these names, the fault it shows kept.
    void answerDialog(const QStringList& names) {
        QTimer::singleShot(0, [this, names] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            for (qsizetype boat = 0; boat < names.size(); ++boat)
                dialog->findChild<QComboBox*>(QStringLiteral("boat%1").arg(boat + 1))
                    ->setEditText(names[boat]);
            auto* const ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
            m_isRefused = !ok->isEnabled();
            m_isRefused ? dialog->reject() : ok->click();
        });
    }

    /// The row of a table as text.
    static std::string row(const ColumnTable& table, int row) {
        QStringList texts;
        for (int column = 0; column < table.model()->columnCount(); ++column)
            texts.append(table.model()->index(row, column).data().toString());
        return texts.join('|').toStdString();
    }

    void undoAll() {
        while (m_document.undoStack().canUndo())
            m_document.undoStack().undo();
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    TakingDocument m_document{m_workspace, desktop::Autosave(QString::fromStdString(
                                               (m_folder.path() / "autosave").string()))};
    FilmDeck m_deck{std::make_shared<FrameCache>(1U << 20U)};
    HeatPage m_heats{CrossDesk{m_document, m_deck, m_workspace}};
    ResultsPage m_results{CrossDesk{m_document, m_deck, m_workspace}};
    std::string m_told;
    bool m_isRefused = false;
};

} // namespace kavela::test
