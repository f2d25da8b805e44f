#include "page/page_style.h"

namespace kavela::page {

std::string_view pageStyle() {
    return R"(:root{color-scheme:light dark;--paper:#f4f6f8;--card:#fff;--ink:#16202a;--soft:#566270;--line:#dbe1e7;--lead:#0b6284;--me:#e6f3f9;--warn:#a33b00;--up:#b3261e;--down:#1c7a3c;--touch:#ffd166;--miss:#c62828}
@media(prefers-color-scheme:dark){:root{--paper:#0f1418;--card:#182026;--ink:#e8edf2;--soft:#a3b0bc;--line:#313c46;--lead:#6cc3e6;--me:#1d3542;--warn:#ffb077;--up:#ff8a80;--down:#71d492;--touch:#ffd166;--miss:#ff6b63}}
*{box-sizing:border-box}
html{-webkit-text-size-adjust:100%;text-size-adjust:100%}
body{margin:0 auto;max-width:1120px;padding:0 12px 48px;background:var(--paper);color:var(--ink);font:16px/1.45 system-ui,-apple-system,"Segoe UI",Roboto,sans-serif;overflow-wrap:anywhere}
header{padding:22px 4px 6px}
h1{margin:0;font-size:1.7rem;line-height:1.15;letter-spacing:-.01em}
h2{margin:30px 4px 2px;font-size:1.3rem;line-height:1.2}
h3{margin:20px 4px 8px;font-size:1.05rem}
h4,caption{margin:18px 0 6px;font-size:.82rem;font-weight:600;color:var(--soft);text-align:left}
p{margin:4px}header p{margin:4px 0}
a{color:var(--lead)}
small{font-size:.78em;color:var(--soft);font-weight:400}
.h,figcaption{color:var(--soft);font-size:.85rem}
figcaption b{color:var(--ink)}
nav ul{display:flex;flex-wrap:wrap;gap:6px;margin:8px 0 0;padding:0 4px;list-style:none}
nav a{display:block;padding:9px 14px;border:1px solid var(--line);border-radius:22px;background:var(--card);text-decoration:none;font-size:.9rem}
.a{display:grid;gap:12px;margin-top:10px;grid-template-columns:repeat(auto-fill,minmax(min(100%,400px),1fr));align-items:start}
article,section>figure,div.o,ol.n{background:var(--card);border:1px solid var(--line);border-radius:12px}
article{min-width:0;padding:4px 14px 16px}
article h3{margin:10px 0 8px;font-size:1.15rem}
article:target{outline:2px solid var(--lead)}
.k{display:flex;flex-wrap:wrap;gap:10px 20px;margin:0 0 12px}
.k dt{font-size:.76rem;color:var(--soft)}
.k dd{margin:0;font-size:1.15rem;font-weight:600;font-variant-numeric:tabular-nums;line-height:1.25}
figure{margin:10px 0}
section>figure{max-width:620px;padding:12px 14px}
svg{display:block;width:100%;max-width:460px;height:auto;font:10px system-ui,sans-serif;fill:var(--soft)}
.l,.z{fill:none;stroke:var(--line)}.z{stroke:var(--soft)}
.s{fill:none;stroke:var(--lead);stroke-width:2;stroke-linejoin:round}
.q{fill:none;stroke:var(--soft);stroke-width:1.5;stroke-dasharray:4 3}
path.a{fill:var(--lead);opacity:.14;stroke:none}
.i{fill:none;stroke:var(--lead);stroke-width:5;stroke-linecap:round}
.d{fill:var(--lead)}
circle.o{fill:var(--card);stroke:var(--lead);stroke-width:1.5}
text{paint-order:stroke;stroke:var(--card);stroke-width:3px;stroke-linejoin:round}.e,.v{text-anchor:end}.m,.p{text-anchor:middle}
.p{fill:var(--warn);font-weight:700}.v{fill:var(--ink);font-weight:700;font-size:12px}
table{border-collapse:collapse;font-variant-numeric:tabular-nums;font-size:.88rem}
caption{margin:0;padding:6px 0}
th,td{padding:5px 7px;text-align:right;border-bottom:1px solid var(--line);font-weight:400}
thead th{overflow-wrap:normal;color:var(--soft);font-size:.76rem;vertical-align:bottom;line-height:1.2}
th:first-child{text-align:left}
tbody th i{display:inline-block;min-width:1.25em;font-style:normal;font-size:.78em;color:var(--soft)}
.r{width:100%;margin-top:14px}
.r th:first-child{padding-left:0}
.r th,.r td{padding-left:4px;padding-right:6px}
.r .t th{font-weight:600}
.r td{white-space:nowrap}.r .j,.b .j{text-align:left;white-space:normal;overflow-wrap:break-word}
div.o{overflow-x:auto;width:fit-content;min-width:min(100%,34rem);max-width:100%;margin-top:8px}
.b{border-collapse:separate;border-spacing:0;min-width:100%}
.b caption{padding:8px 10px;position:sticky;left:0}
.b td{white-space:nowrap}
.b th:first-child{position:sticky;left:0;z-index:1;width:8.6em;min-width:8.6em;max-width:8.6em;padding-left:10px;background:var(--card);border-right:1px solid var(--line)}
.b.s th:first-child{width:11em;min-width:9em;max-width:11em}
.b tr:last-child>*{border-bottom:0}
.b .me th:first-child,.me td:not([class]){background:var(--me)}
.me th{font-weight:700;box-shadow:inset 4px 0 var(--lead)}
.c{display:flex;flex-wrap:wrap;gap:8px 14px}
.c b{display:block;font-size:.72rem;font-weight:400;color:var(--soft)}
.c ol{display:flex;flex-wrap:wrap;gap:3px;margin:0;padding:0;list-style:none}
.c li{min-width:25px;padding:2px 4px;border:1px solid var(--down);border-bottom-width:3px;border-radius:4px;text-align:center;font-size:.8rem;line-height:1.3}
.c .u{border-color:var(--up)}
.c .t{background:var(--touch);color:#241a00;font-weight:700}
.c .n{background:var(--miss);color:#000;font-weight:700;border-radius:4px}
@media(prefers-color-scheme:light){.c .n{color:#fff}}
.c small{color:inherit;font-weight:700;margin-left:2px}
ul,ol.n{margin:4px 0;padding-left:20px}
ol.n{padding:12px 14px 12px 34px}
li{margin:3px 0}.c li{margin:0}
.f video{display:block;width:100%;aspect-ratio:16/9;background:#000;border-radius:8px}
.g span{display:inline-block;padding:0 7px;margin-right:1px}
.v:not(text){position:absolute;width:1px;height:1px;overflow:hidden;clip-path:inset(50%);white-space:nowrap}
:focus-visible{outline:3px solid var(--lead);outline-offset:2px}
footer{margin:36px 4px 0;color:var(--soft);font-size:.8rem}
@media print{:root{color-scheme:light;--paper:#fff;--card:#fff;--ink:#000;--soft:#444;--line:#bbb;--lead:#0b6284;--me:#e6f3f9;--warn:#a33b00;--up:#b3261e;--down:#1c7a3c;--miss:#c62828}
*{-webkit-print-color-adjust:exact;print-color-adjust:exact}
body{max-width:none;padding:0;font-size:10pt}nav,.f video{display:none}
.a{display:block}article{break-inside:avoid-page;margin-bottom:10px}
.o{overflow:visible}.b{font-size:7pt}.b th,.b td{padding:2px 3px}.b th:first-child{position:static;width:auto;min-width:0}
h2,h3,h4,caption,thead{break-after:avoid}tr,figure{break-inside:avoid}figure svg{max-width:420px}}
)";
}

} // namespace kavela::page
