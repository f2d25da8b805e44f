#include "desktop/shell/edged_style.h"
#include "desktop/shell/theme.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QStyleOption>

#include <algorithm>
#include <cmath>

/// What is written can be read: in the sun beside the water, and by tired eyes.
namespace kavela::test {
namespace {

namespace theme = desktop::theme;

constexpr double LeastOfText = 4.5;
constexpr double LeastOfEdges = 3.0;

double luminance(const QColor& colour) {
    const auto linear = [](double share) {
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

TEST(Contrast, IsMeasuredAsTheEyeHasIt) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21.0, 0.01);
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

class ContrastTest : public ::testing::TestWithParam<bool> {
protected:
    const QPalette m_palette = GetParam() ? theme::darkPalette() : theme::lightPalette();

    void expectRead(const QColor& text, QPalette::ColorRole ground, const char* what) const {
        EXPECT_GE(contrast(text, m_palette.color(ground)), LeastOfText)
            << what << ' ' << text.name().toStdString() << " on "
            << m_palette.color(ground).name().toStdString();
    }
};

TEST_P(ContrastTest, OfEveryTextIsEnoughOnWhateverItStandsOn) {

    for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::AlternateBase}) {
        expectRead(m_palette.color(QPalette::WindowText), ground, "text of a window");
        expectRead(m_palette.color(QPalette::Text), ground, "text");
        expectRead(m_palette.color(QPalette::PlaceholderText), ground, "placeholder");
        expectRead(m_palette.color(QPalette::Link), ground, "link");
        expectRead(theme::quietText(m_palette), ground, "quiet text");
    }
    expectRead(m_palette.color(QPalette::ButtonText), QPalette::Button, "button");
    expectRead(m_palette.color(QPalette::ToolTipText), QPalette::ToolTipBase, "tool tip");
    expectRead(m_palette.color(QPalette::HighlightedText), QPalette::Highlight, "what is chosen");
}

TEST_P(ContrastTest, OfWhatMarksTheFocusIsEnoughToSeeIt) {
    for (const auto ground : {QPalette::Window, QPalette::Base})
        EXPECT_GE(contrast(m_palette.color(QPalette::Highlight), m_palette.color(ground)),
                  LeastOfEdges);
}

TEST_P(ContrastTest, OfABoxToTickIsEnoughToSeeIt) {
    const desktop::EdgedStyle style;
    QImage picture(20, 20, QImage::Format_RGB32);
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorItemViewItemCheck,
                               QStyle::PE_IndicatorRadioButton})
        for (const auto ground : {QPalette::Window, QPalette::Base}) {
            picture.fill(m_palette.color(ground));
            QStyleOptionButton option;
            option.palette = m_palette;
            option.rect = picture.rect().adjusted(3, 3, -3, -3);
            option.state = QStyle::State_Enabled | QStyle::State_Off;
            QPainter painter(&picture);
            style.drawPrimitive(element, &option, &painter, nullptr);
            painter.end();
            double seen = 0; // across the left edge
            for (int x = 0; x < picture.width() / 2; ++x)
                seen = std::max(seen, contrast(picture.pixelColor(x, 10), m_palette.color(ground)));
            EXPECT_GE(seen, LeastOfEdges) << element;
        }
}

INSTANTIATE_TEST_SUITE_P(Schemes, ContrastTest, ::testing::Bool(),
                         [](const auto& scheme) { return scheme.param ? "Dark" : "Light"; });

} // namespace
} // namespace kavela::test
