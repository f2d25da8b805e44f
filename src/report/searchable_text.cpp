#include "report/searchable_text.h"

#include <QString>

#include <charconv>
#include <string_view>

namespace kavela::report {

namespace {

// Radicals that look like a character of their own, and these. All other look-alikes are known to
// the compatibility decomposition of Unicode.
constexpr std::u16string_view Radicals =
    u"⺁⺂⺃⺄⺅⺆⺈⺉⺊⺋⺌⺍⺎⺏⺐⺒⺓⺔⺕⺖⺗⺘⺙⺛⺜⺝⺞⺠⺡⺢⺣⺤⺥⺦⺧⺨⺩⺫"
    u"⺬⺭⺯⺰⺱⺲⺳⺴⺶⺹⺺⺻⺼⺾⺿⻀⻁⻂⻃⻄⻅⻆⻈⻉⻋⻌⻍⻎⻏⻐⻑⻒⻓⻔⻖⻗⻘⻙"
    u"⻚⻛⻜⻝⻟⻠⻢⻣⻤⻥⻦⻧⻨⻩⻪⻫⻬⻭⻮⻯⻰⻱⻲";
constexpr std::u16string_view Characters =
    u"厂乛乚乙亻冂刀刂卜㔾小小兀尣尢巳幺彑彐忄心扌攵旡日月歺民氵氺灬爫爫丬牛犭王目"
    u"示礻糹纟罓罒㓁冗羊耂肀聿肉艹艹艹虎衤覀西见角讠贝车辶辶辶邑钅長镸长门阝雨青韦"
    u"页风飞食飠饣马骨鬼鱼鸟卤麦黄黾斉齐歯齿竜龙龜亀";
static_assert(Radicals.size() == Characters.size());

constexpr std::string_view MapBegin = "begincmap";
constexpr std::string_view MapEnd = "endcmap";
constexpr std::size_t CodeLength = 4; ///< hexadecimal digits

/// Whether a character is one that nobody types: radicals, forms kept for compatibility.
bool isLookAlike(char16_t code) {
    const auto within = [&](char16_t first, char16_t last) {
        return code >= first && code <= last;
    };
    return within(0x2E80, 0x2FDF) || within(0xF900, 0xFAFF) || within(0xFB1D, 0xFDFF) ||
           within(0xFE70, 0xFEFF);
}

char16_t typedCharacter(char16_t code) {
    if (code > 0 && code < ' ')
        return ' ';
    if (!isLookAlike(code))
        return code;
    if (const std::size_t place = Radicals.find(code); place != Radicals.npos)
        return Characters[place];
    const QString plain = QString(QChar(code)).normalized(QString::NormalizationForm_KC);
    return plain.size() == 1 ? plain.front().unicode() : code;
}

/// Rewrites a code of four digits, "2F54" for instance, where it stands.
void mendCode(char* digits) {
    unsigned value = 0;
    const auto [end, error] = std::from_chars(digits, digits + CodeLength, value, 16);
    if (error != std::errc() || end != digits + CodeLength)
        return;
    const char16_t code = typedCharacter(static_cast<char16_t>(value));
    constexpr std::string_view Hex = "0123456789ABCDEF";
    for (std::size_t i = 0; i < CodeLength; ++i)
        digits[CodeLength - 1 - i] = Hex[(code >> (4 * i)) & 0xF];
}

/// Mends the lists of characters of one font: "[<0052> <0069> ]". The codes of its glyphs, outside
/// of the brackets, stay.
void mendMap(std::string& pdf, std::size_t begin, std::size_t end) {
    bool isList = false;
    for (std::size_t i = begin; i + CodeLength + 1 < end; ++i) {
        if (pdf[i] == '[' || pdf[i] == ']')
            isList = pdf[i] == '[';
        else if (isList && pdf[i] == '<' && pdf[i + CodeLength + 1] == '>')
            mendCode(pdf.data() + i + 1);
    }
}

} // namespace

void makeTextSearchable(std::string& pdf) {
    std::size_t begin = pdf.find(MapBegin);
    while (begin != std::string::npos) {
        const std::size_t end = pdf.find(MapEnd, begin);
        if (end == std::string::npos)
            return;
        mendMap(pdf, begin, end);
        begin = pdf.find(MapBegin, end);
    }
}

} // namespace kavela::report
