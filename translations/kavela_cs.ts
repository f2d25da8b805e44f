<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ">
<context>
    <name></name>
    <message>
        <source>Selection results</source>
        <translation>Výsledky nominace</translation>
    </message>
    <message>
        <source>Selection results xTimes</source>
        <translation>Výsledky nominace xTimes</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Výsledek</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Závodník</translation>
    </message>
    <message>
        <source>not in the selection</source>
        <translation>není v nominaci</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Vynechat</translation>
    </message>
    <message>
        <source>Add %1 to the selection</source>
        <translation>Přidat do nominace: %1</translation>
    </message>
</context>
<context>
    <name>AthletePanel</name>
    <message>
        <source>An athlete needs a name.</source>
        <translation>Závodník potřebuje jméno.</translation>
    </message>
    <message>
        <source>“%1” is in the team already.</source>
        <translation>„%1“ už v týmu je.</translation>
    </message>
</context>
<context>
    <name>ChartExport</name>
    <message>
        <source>Picture (*.png)</source>
        <translation>Obrázek (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>Kresba (*.svg)</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabulka (*.csv)</translation>
    </message>
    <message>
        <source>Save chart</source>
        <translation>Uložit graf</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>A race</source>
        <translation>Závod</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filmy</translation>
    </message>
    <message>
        <source>The season</source>
        <translation>Sezóna</translation>
    </message>
    <message>
        <source>Training</source>
        <translation>Trénink</translation>
    </message>
</context>
<context>
    <name>EightTest</name>
    <message>
        <source>Total – · %1 of %2 splits are timed</source>
        <translation>Celkem – · změřené mezičasy: %1 z %2</translation>
    </message>
    <message>
        <source>Total %1 s · standard deviation %2 s</source>
        <translation>Celkem %1 s · směrodatná odchylka %2 s</translation>
    </message>
</context>
<context>
    <name>FindWindow</name>
    <message>
        <source>The table cannot be written over a file that is searched.</source>
        <translation>Tabulku nelze zapsat přes soubor, který se prohledává.</translation>
    </message>
</context>
<context>
    <name>IntervalTexts</name>
    <message>
        <source>A duration is written as seconds or as 1:30, up to a day</source>
        <translation>Doba se píše v sekundách nebo jako 1:30, nejvýš den</translation>
    </message>
    <message>
        <source>Sets and repetitions are whole numbers from 0 to 9999</source>
        <translation>Série a opakování jsou celá čísla od 0 do 9999</translation>
    </message>
    <message>
        <source>Volume and intensity are numbers such as 4.5</source>
        <translation>Objem a intenzita jsou čísla, třeba 4.5</translation>
    </message>
    <message>
        <source>, rest %1</source>
        <translation>, odpočinek %1</translation>
    </message>
    <message>
        <source>%1 in all, %2 of it work; repetitions: %3</source>
        <translation>celkem %1, z toho práce %2; opakování: %3</translation>
    </message>
</context>
<context>
    <name>KeyOverlay</name>
    <message>
        <source>In the part with the focus</source>
        <translation>V aktivní části</translation>
    </message>
</context>
<context>
    <name>ListedTest</name>
    <message>
        <source>No name</source>
        <translation>Beze jména</translation>
    </message>
    <message>
        <source>Lap test</source>
        <translation>Test na kola</translation>
    </message>
    <message>
        <source>Sprint</source>
        <translation>Sprint</translation>
    </message>
    <message>
        <source>Eight test</source>
        <translation>Test osmičky</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Kolo</translation>
    </message>
    <message>
        <source>Eight</source>
        <translation>Osmička</translation>
    </message>
</context>
<context>
    <name>MeasureCharts</name>
    <message>
        <source>below what is usual</source>
        <translation>pod obvyklým</translation>
    </message>
    <message>
        <source>within what is usual</source>
        <translation>v obvyklém rozmezí</translation>
    </message>
    <message>
        <source>above what is usual</source>
        <translation>nad obvyklým</translation>
    </message>
    <message>
        <source>Weight and body fat</source>
        <translation>Hmotnost a tělesný tuk</translation>
    </message>
    <message>
        <source>Body fat (%)</source>
        <translation>Tělesný tuk (%)</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Hmotnost</translation>
    </message>
    <message>
        <source>Body fat</source>
        <translation>Tělesný tuk</translation>
    </message>
    <message>
        <source>Weight (kg)</source>
        <translation>Hmotnost (kg)</translation>
    </message>
    <message>
        <source>Add a weight or body fat to see how it goes through the season.</source>
        <translation>Přidejte hmotnost nebo tělesný tuk a uvidíte, jak se v sezóně vyvíjejí.</translation>
    </message>
    <message>
        <source>Usual: mean ± one standard deviation of the four weeks before</source>
        <translation>Obvyklé: průměr ± jedna směrodatná odchylka ze čtyř předchozích týdnů</translation>
    </message>
    <message>
        <source>Each day</source>
        <translation>Každý den</translation>
    </message>
    <message>
        <source>Seven-day mean</source>
        <translation>Sedmidenní průměr</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>Obvyklé</translation>
    </message>
    <message>
        <source>Week to %1: mean %2</source>
        <translation>Týden do %1: průměr %2</translation>
    </message>
    <message>
        <source>%1. What is usual is known after seven measured days of the 28 before.</source>
        <translation>%1. Co je obvyklé, je známo po sedmi změřených dnech z 28 předchozích.</translation>
    </message>
    <message>
        <source>%1, %2 (%3 to %4).</source>
        <translation>%1, %2 (%3 až %4).</translation>
    </message>
</context>
<context>
    <name>MeasureColumns</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
</context>
<context>
    <name>OlderRecordings</name>
    <message>
        <source>“%1” is a recording of version 4. It can be converted to the current version: “%2” is written beside it, the recording itself stays as it is.</source>
        <translation>„%1“ je záznam verze 4. Lze ho převést do současné verze: „%2“ se zapíše vedle, samotný záznam zůstane, jak je.</translation>
    </message>
    <message>
        <source>Convert and open</source>
        <translation>Převést a otevřít</translation>
    </message>
</context>
<context>
    <name>OnlineStore</name>
    <message>
        <source>The server does not accept the user name or the password.</source>
        <translation>Server nepřijímá uživatelské jméno nebo heslo.</translation>
    </message>
</context>
<context>
    <name>PlanningHandouts</name>
    <message>
        <source>Choose an athlete with a season first.</source>
        <translation>Nejdřív vyberte závodníka se sezónou.</translation>
    </message>
    <message>
        <source>Week %1</source>
        <translation>Týden %1</translation>
    </message>
    <message>
        <source>Week %1 %2.pdf</source>
        <translation>Týden %1 %2.pdf</translation>
    </message>
    <message>
        <source>Season %1</source>
        <translation>Sezóna %1</translation>
    </message>
    <message>
        <source>Season %1 %2.pdf</source>
        <translation>Sezóna %1 %2.pdf</translation>
    </message>
    <message>
        <source>There is no week to write.</source>
        <translation>Není týden k zapsání.</translation>
    </message>
    <message>
        <source>Week %1 %2.ics</source>
        <translation>Týden %1 %2.ics</translation>
    </message>
    <message>
        <source>Week as a calendar file</source>
        <translation>Týden jako soubor kalendáře</translation>
    </message>
    <message>
        <source>Calendar files (*.ics)</source>
        <translation>Soubory kalendáře (*.ics)</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>%1 je zapsáno.</translation>
    </message>
</context>
<context>
    <name>ProgressionChart</name>
    <message>
        <source>Position after each phase; the chosen race is drawn heavier</source>
        <translation>Pořadí po každé fázi; zvolený závod je silněji</translation>
    </message>
    <message>
        <source>position</source>
        <translation>pořadí</translation>
    </message>
    <message>
        <source>Positions of the phases stand here once they are entered.</source>
        <translation>Pořadí ve fázích se zde ukáže, jakmile budou zadána.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>start of the roll</source>
        <translation>začátek eskymáku</translation>
    </message>
    <message>
        <source>boat upside down</source>
        <translation>loď dnem vzhůru</translation>
    </message>
    <message>
        <source>boat up again</source>
        <translation>loď zase nahoře</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Recent files, in %1</source>
        <translation>Poslední soubory, v %1</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Nápověda</translation>
    </message>
    <message>
        <source>&amp;Search everything…</source>
        <translation>&amp;Hledat všude…</translation>
    </message>
    <message>
        <source>&amp;All keys</source>
        <translation>Všechny &amp;klávesy</translation>
    </message>
    <message>
        <source>&amp;Why this number?</source>
        <translation>&amp;Proč toto číslo?</translation>
    </message>
    <message>
        <source>&amp;Change keys…</source>
        <translation>&amp;Změnit klávesy…</translation>
    </message>
    <message>
        <source>&amp;Full screen</source>
        <translation>&amp;Celá obrazovka</translation>
    </message>
    <message>
        <source>Where are the films now?</source>
        <translation>Kde jsou filmy nyní?</translation>
    </message>
    <message>
        <source>Videos (*.mov *.mp4 *.m4v *.avi *.mkv *.mts *.m2ts *.ts *.3gp *.webm *.mpg);;All files (*)</source>
        <translation>Videa (*.mov *.mp4 *.m4v *.avi *.mkv *.mts *.m2ts *.ts *.3gp *.webm *.mpg);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>The folder has another film named %1 already. Give one of them another name first.</source>
        <translation>Složka už obsahuje jiný film jménem %1. Nejdřív jeden z nich přejmenujte.</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>Kopíruje se %1</translation>
    </message>
    <message>
        <source>%1 could not be copied into the folder.</source>
        <translation>%1 nelze zkopírovat do složky.</translation>
    </message>
    <message>
        <source>entrance</source>
        <translation>nájezd</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>střed</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>výjezd</translation>
    </message>
    <message>
        <source>All splits of this run are marked.</source>
        <translation>Všechny mezičasy této jízdy jsou označeny.</translation>
    </message>
    <message>
        <source>Mark the start first: the splits are expected from there on.</source>
        <translation>Nejdřív označte start: mezičasy se čekají od něj.</translation>
    </message>
    <message>
        <source>No other run has split %1 yet: nothing tells where it is to be expected.</source>
        <translation>Mezičas %1 zatím nemá žádná jiná jízda: není podle čeho ho čekat.</translation>
    </message>
    <message>
        <source>&amp;Look for a newer version</source>
        <translation>Zjistit &amp;novější verzi</translation>
    </message>
    <message>
        <source>User &amp;guide</source>
        <translation>&amp;Příručka</translation>
    </message>
</context>
<context>
    <name>QueryForm</name>
    <message>
        <source>&amp;Athlete</source>
        <translation>Záv&amp;odník</translation>
    </message>
    <message>
        <source>anyone</source>
        <translation>kdokoli</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>Ka&amp;tegorie</translation>
    </message>
    <message>
        <source>&amp;Phase</source>
        <translation>&amp;Fáze</translation>
    </message>
    <message>
        <source>any</source>
        <translation>jakákoli</translation>
    </message>
    <message>
        <source>P&amp;lace</source>
        <translation>&amp;Místo</translation>
    </message>
    <message>
        <source>anywhere</source>
        <translation>kdekoli</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Rok</translation>
    </message>
    <message>
        <source>&amp;Gate</source>
        <translation>&amp;Branka</translation>
    </message>
    <message>
        <source>&amp;Up or down</source>
        <translation>&amp;Po, či proti</translation>
    </message>
    <message>
        <source>both</source>
        <translation>obojí</translation>
    </message>
    <message>
        <source>&amp;Direction</source>
        <translation>&amp;Směr</translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation>St&amp;yl</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Druh</translation>
    </message>
</context>
<context>
    <name>RaceExchange</name>
    <message>
        <source>course</source>
        <translation>trať</translation>
    </message>
    <message>
        <source>Names of the films</source>
        <translation>Názvy filmů</translation>
    </message>
    <message>
        <source>How the films are named, such as &quot;{any} {name} {category} {phase}&quot;.
{name}, {category}, {phase}, {bib}, {number} and {any} stand for what differs.</source>
        <translation>Jak jsou filmy pojmenovány, třeba &quot;{any} {name} {category} {phase}&quot;.
{name}, {category}, {phase}, {bib}, {number} a {any} zastupují to, co se liší.</translation>
    </message>
    <message>
        <source>Import split file</source>
        <translation>Import souboru mezičasů</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Soubory mezičasů (*.kvx);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Import official results</source>
        <translation>Import oficiálních výsledků</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt);;All files (*)</source>
        <translation>Seznamy (*.csv *.txt);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>There are no results in %1.</source>
        <translation>V %1 nejsou žádné výsledky.</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Vytvořit</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Přepsat</translation>
    </message>
    <message>
        <source>drawing of the course</source>
        <translation>nákres tratě</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Čte se %1…</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Řádek %1: %2</translation>
    </message>
</context>
<context>
    <name>RankingCharts</name>
    <message>
        <source>Release</source>
        <translation>Vydání</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Pořadí</translation>
    </message>
    <message>
        <source>The chart begins with the first position.</source>
        <translation>Graf začíná prvním pořadím.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Body</translation>
    </message>
    <message>
        <source>The chart begins with the first points.</source>
        <translation>Graf začíná prvními body.</translation>
    </message>
    <message>
        <source>Touches and missed gates per run</source>
        <translation>Ťuky a neprojeté branky na jízdu</translation>
    </message>
    <message>
        <source>per run</source>
        <translation>na jízdu</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Ťuky</translation>
    </message>
    <message>
        <source>Missed gates</source>
        <translation>Neprojeté branky</translation>
    </message>
    <message>
        <source>Take the season&apos;s statistics from split files to see penalties here.</source>
        <translation>Převezměte statistiku sezóny ze souborů mezičasů a uvidíte zde penalizace.</translation>
    </message>
    <message>
        <source>Behind the best of the category</source>
        <translation>Za nejlepším v kategorii</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Jízda</translation>
    </message>
    <message>
        <source>Races with a time and a best time stand here.</source>
        <translation>Zde jsou závody s časem a nejlepším časem.</translation>
    </message>
</context>
<context>
    <name>RankingSection</name>
    <message>
        <source>The release of a ranking list is a whole number such as 4</source>
        <translation>Vydání žebříčku je celé číslo, třeba 4</translation>
    </message>
</context>
<context>
    <name>RunForm</name>
    <message>
        <source>A penalty is a whole number of seconds, 0 to 999</source>
        <translation>Penalizace je celý počet sekund, 0 až 999</translation>
    </message>
</context>
<context>
    <name>SeasonChart</name>
    <message>
        <source>%1: penalty (s)</source>
        <translation>%1: penalizace (s)</translation>
    </message>
    <message>
        <source>% behind</source>
        <translation>% ztráty</translation>
    </message>
    <message>
        <source>penalty (s)</source>
        <translation>penalizace (s)</translation>
    </message>
    <message>
        <source>Percent behind the fastest as lines, penalty seconds as bars</source>
        <translation>Procenta za nejrychlejším jako čáry, trestné sekundy jako sloupce</translation>
    </message>
    <message>
        <source>Penalties only; percent behind comes with split files</source>
        <translation>Jen penalizace; procenta ztráty přijdou se soubory mezičasů</translation>
    </message>
    <message>
        <source>Percent behind the fastest stands here once runs are taken over from split files.</source>
        <translation>Procenta za nejrychlejším se zde ukážou, jakmile se převezmou jízdy ze souborů mezičasů.</translation>
    </message>
</context>
<context>
    <name>SelectionTakeOver</name>
    <message>
        <source>Lists (*.csv *.txt);;All files (*)</source>
        <translation>Seznamy (*.csv *.txt);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Import athletes</source>
        <translation>Import závodníků</translation>
    </message>
    <message>
        <source>athletes imported</source>
        <translation>závodníci importováni</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importovat</translation>
    </message>
    <message>
        <source>“%1” cannot be read</source>
        <translation>„%1“ nelze přečíst</translation>
    </message>
    <message>
        <source>One athlete was added.</source>
        <translation>Přidán jeden závodník.</translation>
    </message>
    <message>
        <source>The list is no UTF-8 text and was read as Latin-1: look at the names.</source>
        <translation>Seznam není text UTF-8 a byl přečten jako Latin-1: zkontrolujte jména.</translation>
    </message>
    <message>
        <source>Line %1: the category %2 is new in the selection.</source>
        <translation>Řádek %1: kategorie %2 je v nominaci nová.</translation>
    </message>
    <message>
        <source>Line %1: the category %2 is new in the selection, and none that boats are raced in.</source>
        <translation>Řádek %1: kategorie %2 je v nominaci nová a na lodích se v ní nezávodí.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Řádek %1: %2</translation>
    </message>
    <message>
        <source>Results of which race?</source>
        <translation>Výsledky kterého závodu?</translation>
    </message>
    <message>
        <source>Add a category first.</source>
        <translation>Nejdřív přidejte kategorii.</translation>
    </message>
    <message>
        <source>Split files of the race</source>
        <translation>Soubory mezičasů závodu</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Soubory mezičasů (*.kvx);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>There are no results in it.</source>
        <translation>Nejsou v něm žádné výsledky.</translation>
    </message>
    <message>
        <source>results taken over</source>
        <translation>výsledky převzaty</translation>
    </message>
    <message numerus="yes">
        <source>%n athletes were added.</source>
        <translation>
            <numerusform>Přidán %n závodník.</numerusform>
            <numerusform>Přidáni %n závodníci.</numerusform>
            <numerusform>Přidáno %n závodníků.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SessionConversion</name>
    <message>
        <source>Reading…</source>
        <translation>Čte se…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>„%1“ nelze otevřít</translation>
    </message>
</context>
<context>
    <name>SessionEdits</name>
    <message>
        <source>session information</source>
        <translation>informace o jednotce</translation>
    </message>
    <message>
        <source>Nothing was cut</source>
        <translation>Nic nebylo vystřiženo</translation>
    </message>
    <message>
        <source>Too little would be left of the session.</source>
        <translation>Z jednotky by zbylo příliš málo.</translation>
    </message>
    <message>
        <source>cut to a stretch</source>
        <translation>ořez na část</translation>
    </message>
    <message>
        <source>removal of a stretch</source>
        <translation>odstranění části</translation>
    </message>
    <message>
        <source>removal of strokes</source>
        <translation>odstranění záběrů</translation>
    </message>
    <message>
        <source>new analysis</source>
        <translation>nová analýza</translation>
    </message>
    <message>
        <source>mount of the phone</source>
        <translation>upevnění telefonu</translation>
    </message>
</context>
<context>
    <name>SessionExports</name>
    <message>
        <source>Save the edited .kvb file</source>
        <translation>Uložit upravený soubor .kvb</translation>
    </message>
    <message>
        <source>Recordings (*.kvb)</source>
        <translation>Záznamy (*.kvb)</translation>
    </message>
    <message>
        <source>Export the table</source>
        <translation>Export tabulky</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Text oddělený středníky (*.csv)</translation>
    </message>
</context>
<context>
    <name>SessionImports</name>
    <message>
        <source>%1 positions and %2 heart rates were taken over.</source>
        <translation>Převzato poloh: %1, tepových frekvencí: %2.</translation>
    </message>
    <message>
        <source>Import the recording of the boat first: a track gives it positions and heart rates.</source>
        <translation>Nejdřív importujte záznam lodi: stopa mu dodá polohy a tepovou frekvenci.</translation>
    </message>
    <message>
        <source>track of a watch</source>
        <translation>stopa hodinek</translation>
    </message>
    <message>
        <source>move of a watch&apos;s track</source>
        <translation>posun stopy hodinek</translation>
    </message>
    <message>
        <source>Import power-meter data</source>
        <translation>Import dat wattmetru</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt)</source>
        <translation>Seznamy (*.csv *.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Všechny soubory (*)</translation>
    </message>
    <message>
        <source>“%1” cannot be read</source>
        <translation>„%1“ nelze přečíst</translation>
    </message>
    <message>
        <source>Import a recording or a session first: power-meter data belongs to its strokes.</source>
        <translation>Nejdřív importujte záznam nebo jednotku: data wattmetru patří k jejím záběrům.</translation>
    </message>
    <message>
        <source>import of power-meter data</source>
        <translation>import dat wattmetru</translation>
    </message>
</context>
<context>
    <name>SessionSeries</name>
    <message>
        <source>Power</source>
        <translation>Výkon</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>Power meter</source>
        <translation>Wattmetr</translation>
    </message>
    <message>
        <source>Water phase</source>
        <translation>Vodní fáze</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Aerial phase</source>
        <translation>Vzdušná fáze</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Rychlost</translation>
    </message>
    <message>
        <source>m/s</source>
        <translation>m/s</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Tepová frekvence</translation>
    </message>
    <message>
        <source>1/min</source>
        <translation>1/min</translation>
    </message>
    <message>
        <source>Pitch in turns</source>
        <translation>Kolébání v obratech</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Frekvence záběrů</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Síla</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>Impulse</source>
        <translation>Impulz</translation>
    </message>
    <message>
        <source>N·s</source>
        <translation>N·s</translation>
    </message>
    <message>
        <source>Roll of the stroke</source>
        <translation>Klonění při záběru</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>left</source>
        <translation>levá</translation>
    </message>
    <message>
        <source>right</source>
        <translation>pravá</translation>
    </message>
    <message>
        <source>side unknown</source>
        <translation>strana neznámá</translation>
    </message>
    <message>
        <source>Side unknown: when the session was made, it was not known which side of the phone points to the bow.</source>
        <translation>Strana neznámá: když jednotka vznikla, nebylo známo, která strana telefonu míří ke špičce.</translation>
    </message>
    <message>
        <source>The file does not tell how the clocks of strokes and fixes go together: they were fitted by the turns and may be some seconds apart.</source>
        <translation>Soubor neříká, jak k sobě patří hodiny záběrů a poloh: byly sladěny podle obratů a mohou se o pár sekund lišit.</translation>
    </message>
    <message>
        <source>Power-meter data is not in the strokes yet; you are asked on saving.</source>
        <translation>Data wattmetru v záběrech ještě nejsou; na to budete dotázáni při ukládání.</translation>
    </message>
</context>
<context>
    <name>SharePlace</name>
    <message>
        <source>Choose the folder…</source>
        <translation>Vybrat složku…</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Složka</translation>
    </message>
    <message>
        <source>On this computer, with everything below it but hidden files</source>
        <translation>V tomto počítači, se vším pod ní kromě skrytých souborů</translation>
    </message>
    <message>
        <source>the folder that is shared</source>
        <translation>sdílená složka</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adresa</translation>
    </message>
    <message>
        <source>Of a folder on a WebDAV server: Nextcloud, ownCloud, a NAS, Apache…</source>
        <translation>Složky na serveru WebDAV: Nextcloud, ownCloud, NAS, Apache…</translation>
    </message>
    <message>
        <source>There is no folder to share yet.</source>
        <translation>Zatím není složka ke sdílení.</translation>
    </message>
    <message>
        <source>“%1” is no folder.</source>
        <translation>„%1“ není složka.</translation>
    </message>
</context>
<context>
    <name>SlitMarking</name>
    <message>
        <source>The film is not read so far.</source>
        <translation>Film není přečten až sem.</translation>
    </message>
    <message>
        <source>There is no proposal at the hair line.</source>
        <translation>Na záměrné čáře není žádný návrh.</translation>
    </message>
    <message>
        <source>Nothing can be accepted without a line, its proposals and the race.</source>
        <translation>Bez čáry, jejích návrhů a závodu nelze nic přijmout.</translation>
    </message>
    <message>
        <source>proposals accepted</source>
        <translation>návrhy přijaty</translation>
    </message>
    <message>
        <source>On this frame stands the mark of %1.</source>
        <translation>Na tomto snímku stojí značka: %1.</translation>
    </message>
    <message>
        <source>No other film of this folder has lines.</source>
        <translation>Žádný jiný film v této složce nemá čáry.</translation>
    </message>
    <message>
        <source>The lines of “%1” were drawn over a picture of %2 × %3 pixels; this film has %4 × %5.</source>
        <translation>Čáry filmu „%1“ byly nakresleny přes obraz %2 × %3 pixelů; tento film má %4 × %5.</translation>
    </message>
    <message>
        <source>Press N and draw a line across the water in the film above: what stands on it is shown here over time.</source>
        <translation>Stiskněte N a nakreslete ve filmu nahoře čáru přes vodu: co je na ní vidět, se zde ukáže v čase.</translation>
    </message>
    <message>
        <source>Or press L for the lines of “%1”.</source>
        <translation>Nebo stiskněte L pro čáry filmu „%1“.</translation>
    </message>
    <message>
        <source>“%1” is timed at the bow: one race needs one point.</source>
        <translation>„%1“ se měří na špičce: závod potřebuje jeden bod.</translation>
    </message>
    <message>
        <source>“%1” is timed at the body: one race needs one point.</source>
        <translation>„%1“ se měří na těle: závod potřebuje jeden bod.</translation>
    </message>
    <message>
        <source>A mark of this line was made before: look at it again.</source>
        <translation>Jedna značka této čáry vznikla dříve: podívej se na ni znovu.</translation>
    </message>
    <message numerus="yes">
        <source>%n marks of this line were made before: look at them again.</source>
        <translation>
            <numerusform>%n značka této čáry vznikla dříve: podívej se na ni znovu.</numerusform>
            <numerusform>%n značky této čáry vznikly dříve: podívej se na ně znovu.</numerusform>
            <numerusform>%n značek této čáry vzniklo dříve: podívej se na ně znovu.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SplitStatistics</name>
    <message>
        <source>is no split file that can be read</source>
        <translation>není čitelný soubor mezičasů</translation>
    </message>
    <message>
        <source>has no date</source>
        <translation>nemá datum</translation>
    </message>
    <message>
        <source>is of %1</source>
        <translation>patří k %1</translation>
    </message>
    <message>
        <source>has no run of %1</source>
        <translation>nemá žádnou jízdu: %1</translation>
    </message>
</context>
<context>
    <name>SpokenNames</name>
    <message>
        <source>Splits</source>
        <translation>Mezičasy</translation>
    </message>
    <message>
        <source>Splits of the time trial</source>
        <translation>Mezičasy časovky</translation>
    </message>
    <message>
        <source>Time trials</source>
        <translation>Časovky</translation>
    </message>
    <message>
        <source>Heats</source>
        <translation>Rozjížďky</translation>
    </message>
    <message>
        <source>Attacks</source>
        <translation>Útoky</translation>
    </message>
    <message>
        <source>Who attacks</source>
        <translation>Kdo útočí</translation>
    </message>
    <message>
        <source>Side of the attack</source>
        <translation>Strana útoku</translation>
    </message>
    <message>
        <source>Place of the attack</source>
        <translation>Místo útoku</translation>
    </message>
    <message>
        <source>Attacks by athlete</source>
        <translation>Útoky podle závodníků</translation>
    </message>
    <message>
        <source>Attacks by place</source>
        <translation>Útoky podle místa</translation>
    </message>
    <message>
        <source>Notes of the run</source>
        <translation>Poznámky k jízdě</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Jízdy</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Závodníci</translation>
    </message>
    <message>
        <source>Results by season</source>
        <translation>Výsledky podle sezony</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>Průměry</translation>
    </message>
    <message>
        <source>Ranking</source>
        <translation>Pořadí</translation>
    </message>
    <message>
        <source>Touches by gate</source>
        <translation>Dotyky podle branek</translation>
    </message>
    <message>
        <source>What was noted of penalties</source>
        <translation>Co bylo poznamenáno k trestům</translation>
    </message>
    <message>
        <source>What penalties cost</source>
        <translation>Co tresty stojí</translation>
    </message>
    <message>
        <source>Risk and speed by thirds</source>
        <translation>Riziko a rychlost po třetinách</translation>
    </message>
    <message>
        <source>Losses by section</source>
        <translation>Ztráty podle úseků</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Testy</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Cíle</translation>
    </message>
    <message>
        <source>Measures of the body</source>
        <translation>Tělesné míry</translation>
    </message>
    <message>
        <source>Exercises</source>
        <translation>Cviky</translation>
    </message>
    <message>
        <source>Intervals</source>
        <translation>Intervaly</translation>
    </message>
    <message>
        <source>Films compared</source>
        <translation>Porovnávaná videa</translation>
    </message>
    <message>
        <source>Films to choose from</source>
        <translation>Videa na výběr</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Videa</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Soubory</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Naposledy otevřené</translation>
    </message>
    <message>
        <source>Work kept</source>
        <translation>Uchovaná práce</translation>
    </message>
    <message>
        <source>Pattern of the names</source>
        <translation>Vzor jmen</translation>
    </message>
    <message>
        <source>Names now and then</source>
        <translation>Jména nyní a potom</translation>
    </message>
    <message>
        <source>Films being composed</source>
        <translation>Skládané filmy</translation>
    </message>
</context>
<context>
    <name>TestCharts</name>
    <message>
        <source>Not recorded, and not entered</source>
        <translation>Nezaznamenáno a nezadáno</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Kolo</translation>
    </message>
    <message>
        <source>Stretch of the sprint</source>
        <translation>Část sprintu</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Obrat</translation>
    </message>
    <message>
        <source>Time from the start (s)</source>
        <translation>Čas od startu (s)</translation>
    </message>
    <message>
        <source>Only a recording tells this</source>
        <translation>To ukáže jen záznam</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Mezičas</translation>
    </message>
</context>
<context>
    <name>ToolWindow</name>
    <message>
        <source>Reading %1…</source>
        <translation>Čte se %1…</translation>
    </message>
</context>
<context>
    <name>TrialMarking</name>
    <message>
        <source>Add the first athlete above</source>
        <translation>Přidejte nahoře prvního závodníka</translation>
    </message>
    <message>
        <source>M marks split %1</source>
        <translation>M označí mezičas %1</translation>
    </message>
    <message>
        <source>M marks the start</source>
        <translation>M označí start</translation>
    </message>
    <message>
        <source>M marks the %1</source>
        <translation>M označí: %1</translation>
    </message>
    <message>
        <source>The roll is marked</source>
        <translation>Eskymák je označen</translation>
    </message>
    <message>
        <source>The cross course has no gates yet</source>
        <translation>Trať crossu zatím nemá branky</translation>
    </message>
    <message>
        <source>Gate %1: M marks the %2</source>
        <translation>Branka %1: M označí %2</translation>
    </message>
    <message>
        <source>Gate %1 is marked</source>
        <translation>Branka %1 je označena</translation>
    </message>
    <message>
        <source>The time of this trial was taken without marks on the film. Marking it anew replaces it.</source>
        <translation>Čas této časovky byl změřen bez značek ve filmu. Nové označení ho nahradí.</translation>
    </message>
    <message>
        <source>Mark anew</source>
        <translation>Označit znovu</translation>
    </message>
    <message>
        <source>start mark</source>
        <translation>značka startu</translation>
    </message>
    <message>
        <source>split %1</source>
        <translation>mezičas %1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>%1:  %2</source>
        <translation>%1:  %2</translation>
    </message>
    <message>
        <source>Split %1 was put in between two marks. Ctrl+Z takes it out again.</source>
        <translation>Mezičas %1 byl vložen mezi dvě značky. Ctrl+Z ho zase odebere.</translation>
    </message>
    <message>
        <source>Gate %1 is marked. N goes to the next gate, Shift+M moves the selected mark.</source>
        <translation>Branka %1 je označena. N jde na další branku, Shift+M posune vybranou značku.</translation>
    </message>
    <message>
        <source>The cross course has no gates yet: they are set above.</source>
        <translation>Trať crossu zatím nemá branky: nastavují se nahoře.</translation>
    </message>
    <message>
        <source>%1 of gate %2</source>
        <translation>%1 branky %2</translation>
    </message>
    <message>
        <source>Gate %1 %2</source>
        <translation>Branka %1 %2</translation>
    </message>
    <message>
        <source>The roll is marked. Shift+M moves the selected mark, Delete removes it.</source>
        <translation>Eskymák je označen. Shift+M posune vybranou značku, Delete ji odstraní.</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>Není vybrána žádná značka. Ctrl a šipky vedou od značky ke značce.</translation>
    </message>
    <message>
        <source>mark moved</source>
        <translation>značka posunuta</translation>
    </message>
    <message>
        <source>mark removed</source>
        <translation>značka odstraněna</translation>
    </message>
    <message>
        <source>Without a start mark the time counts from the beginning of the film.</source>
        <translation>Bez značky startu se čas počítá od začátku filmu.</translation>
    </message>
    <message>
        <source>gate %1 removed</source>
        <translation>branka %1 odstraněna</translation>
    </message>
</context>
<context>
    <name>TypedMeasures</name>
    <message>
        <source>This moment is in no calendar: %1 seconds from 2001-01-01. It stays as it is until another date is typed.</source>
        <translation>Tento okamžik není v žádném kalendáři: %1 sekund od 2001-01-01. Zůstane, dokud se nenapíše jiné datum.</translation>
    </message>
    <message>
        <source>A value below 0 cannot be measured.</source>
        <translation>Hodnotu pod 0 nelze naměřit.</translation>
    </message>
    <message>
        <source>More than %1 was hardly measured.</source>
        <translation>Víc než %1 se sotva naměřilo.</translation>
    </message>
    <message>
        <source>It stays as it is until another one is typed.</source>
        <translation>Zůstane, dokud se nenapíše jiná.</translation>
    </message>
    <message>
        <source>A measurement needs a day of the calendar such as 2026-03-09.</source>
        <translation>Měření potřebuje den kalendáře, třeba 2026-03-09.</translation>
    </message>
    <message>
        <source>Expected is a number from 0 to %1, such as %2</source>
        <translation>Očekává se číslo od 0 do %1, třeba %2</translation>
    </message>
</context>
<context>
    <name>TypedNumber</name>
    <message>
        <source>Expected is a number from %1 to %2</source>
        <translation>Očekává se číslo od %1 do %2</translation>
    </message>
    <message>
        <source>Expected is a whole number from %1 to %2</source>
        <translation>Očekává se celé číslo od %1 do %2</translation>
    </message>
    <message>
        <source>Expected is a time from %1 to %2 seconds</source>
        <translation>Očekává se čas od %1 do %2 sekund</translation>
    </message>
</context>
<context>
    <name>TypedValues</name>
    <message>
        <source>A time is a number of seconds such as 92.34, or 1:32.34</source>
        <translation>Čas je počet sekund, třeba 92.34, nebo 1:32.34</translation>
    </message>
    <message>
        <source>A penalty is a whole number of seconds, 0 to 999</source>
        <translation>Penalizace je celý počet sekund, 0 až 999</translation>
    </message>
    <message>
        <source>A position is a whole number, 1 to 9999</source>
        <translation>Pořadí je celé číslo, 1 až 9999</translation>
    </message>
    <message>
        <source>Ranking points are a number such as 612.5</source>
        <translation>Body žebříčku jsou číslo, třeba 612.5</translation>
    </message>
    <message>
        <source>A year is a number from 1900 to 2100</source>
        <translation>Rok je číslo od 1900 do 2100</translation>
    </message>
    <message>
        <source>A date is a day of the calendar such as 2025-06-14</source>
        <translation>Datum je den kalendáře, třeba 2025-06-14</translation>
    </message>
</context>
<context>
    <name>WeekTexts</name>
    <message>
        <source>Week %1, from %2</source>
        <translation>Týden %1, od %2</translation>
    </message>
    <message>
        <source>Load %1 %</source>
        <translation>Zatížení %1&#xa0;%</translation>
    </message>
    <message>
        <source>Macrocycle</source>
        <translation>Makrocyklus</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mezocyklus</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>On-water test</source>
        <translation>Test na vodě</translation>
    </message>
    <message>
        <source>Endurance test</source>
        <translation>Vytrvalostní test</translation>
    </message>
    <message>
        <source>Blood test</source>
        <translation>Krevní test</translation>
    </message>
    <message>
        <source>Injured</source>
        <translation>Zranění</translation>
    </message>
    <message>
        <source>%n session(s)</source>
        <translation>jednotky: %n</translation>
    </message>
    <message>
        <source>The week&apos;s date is in no calendar.</source>
        <translation>Datum týdne není v žádném kalendáři.</translation>
    </message>
    <message>
        <source>The week does not start on a Monday.</source>
        <translation>Týden nezačíná v pondělí.</translation>
    </message>
    <message>
        <source>The load is negative.</source>
        <translation>Zatížení je záporné.</translation>
    </message>
    <message>
        <source>The two lists of planned totals are of different lengths.</source>
        <translation>Oba seznamy plánovaných součtů mají různou délku.</translation>
    </message>
    <message>
        <source>%1 of its sessions are on no day of the week.</source>
        <translation>Počet jednotek, které nejsou v žádném dni týdne: %1.</translation>
    </message>
    <message>
        <source>The session&apos;s date is in no calendar.</source>
        <translation>Datum jednotky není v žádném kalendáři.</translation>
    </message>
    <message>
        <source>The time of day is none.</source>
        <translation>Denní čas není platný.</translation>
    </message>
    <message>
        <source>The time zone “%1” is unknown.</source>
        <translation>Časové pásmo „%1“ není známo.</translation>
    </message>
    <message>
        <source>A value is negative.</source>
        <translation>Hodnota je záporná.</translation>
    </message>
</context>
<context>
    <name>kavela</name>
    <message>
        <source>The time from the mark before to the mark of this section.</source>
        <translation>Čas od předchozí značky ke značce tohoto úseku.</translation>
    </message>
    <message>
        <source>mark − mark before</source>
        <translation>značka − předchozí značka</translation>
    </message>
    <message>
        <source>The time of the section with the penalties of its gates.</source>
        <translation>Čas úseku s penalizací jeho branek.</translation>
    </message>
    <message>
        <source>time + penalties</source>
        <translation>čas + penalizace</translation>
    </message>
    <message>
        <source>The time from the start to the mark of this section.</source>
        <translation>Čas od startu ke značce tohoto úseku.</translation>
    </message>
    <message>
        <source>Σ sections up to here</source>
        <translation>Σ úseky až sem</translation>
    </message>
    <message>
        <source>All sections together, as timed from the video, without penalties.</source>
        <translation>Všechny úseky dohromady, jak byly změřeny z videa, bez penalizace.</translation>
    </message>
    <message>
        <source>Σ sections</source>
        <translation>Σ úseky</translation>
    </message>
    <message>
        <source>All sections together, as timed from the video, and the penalties.</source>
        <translation>Všechny úseky dohromady, jak byly změřeny z videa, a penalizace.</translation>
    </message>
    <message>
        <source>Σ sections + penalties</source>
        <translation>Σ úseky + penalizace</translation>
    </message>
    <message>
        <source>The sprint as it was timed for this run.</source>
        <translation>Sprint, jak byl u této jízdy změřen.</translation>
    </message>
    <message>
        <source>sprint</source>
        <translation>sprint</translation>
    </message>
    <message>
        <source>The official time as it was entered for this run.</source>
        <translation>Oficiální čas, jak byl u této jízdy zadán.</translation>
    </message>
    <message>
        <source>real</source>
        <translation>čistý</translation>
    </message>
    <message>
        <source>A run of another race, held against the runs of this one.</source>
        <translation>Jízda z jiného závodu, porovnaná s jízdami tohoto.</translation>
    </message>
    <message>
        <source>time</source>
        <translation>čas</translation>
    </message>
    <message>
        <source>The colour tells between which tenths of its column a time lies.</source>
        <translation>Barva říká, mezi kterými desetinami svého sloupce čas leží.</translation>
    </message>
    <message>
        <source>tenth below &lt; time ≤ tenth above</source>
        <translation>desetina pod &lt; čas ≤ desetina nad</translation>
    </message>
    <message>
        <source>The least time of its column has a colour of its own.</source>
        <translation>Nejmenší čas sloupce má vlastní barvu.</translation>
    </message>
    <message>
        <source>time = least</source>
        <translation>čas = nejmenší</translation>
    </message>
    <message>
        <source>A total column with a run that has no total stays white.</source>
        <translation>Sloupec celkových časů s jízdou bez celkového času zůstává bílý.</translation>
    </message>
    <message>
        <source>white</source>
        <translation>bílá</translation>
    </message>
    <message>
        <source>What was not timed, or lies beside the scale, has no colour.</source>
        <translation>Co nebylo změřeno, nebo leží mimo stupnici, nemá barvu.</translation>
    </message>
    <message>
        <source>no colour</source>
        <translation>bez barvy</translation>
    </message>
    <message>
        <source>The least of the column that counts.</source>
        <translation>Nejmenší hodnota sloupce, která se počítá.</translation>
    </message>
    <message>
        <source>min values</source>
        <translation>min hodnot</translation>
    </message>
    <message>
        <source>The middle of the column, of what counts.</source>
        <translation>Střed sloupce z toho, co se počítá.</translation>
    </message>
    <message>
        <source>median values</source>
        <translation>medián hodnot</translation>
    </message>
    <message>
        <source>The time less that of the reference.</source>
        <translation>Čas minus čas reference.</translation>
    </message>
    <message>
        <source>own − reference</source>
        <translation>vlastní − reference</translation>
    </message>
    <message>
        <source>The place in the column: one more than are faster to the hundredth.</source>
        <translation>Místo ve sloupci: o jedno víc, než kolik je rychlejších na setinu.</translation>
    </message>
    <message>
        <source>1 + faster</source>
        <translation>1 + rychlejší</translation>
    </message>
    <message>
        <source>How far behind the best of the column.</source>
        <translation>Jak daleko za nejlepším ve sloupci.</translation>
    </message>
    <message>
        <source>100 · (own / best − 1)</source>
        <translation>100 · (vlastní / nejlepší − 1)</translation>
    </message>
    <message>
        <source>The share of the column that is as slow or slower.</source>
        <translation>Podíl sloupce, který je stejně pomalý nebo pomalejší.</translation>
    </message>
    <message>
        <source>100 · slower or equal / timed</source>
        <translation>100 · pomalejší nebo stejné / změřené</translation>
    </message>
    <message>
        <source>The best time of the section that stands alone, whoever paddled it.</source>
        <translation>Nejlepší samostatný čas úseku, ať ho zajel kdokoli.</translation>
    </message>
    <message>
        <source>min times</source>
        <translation>min časů</translation>
    </message>
    <message>
        <source>The best of every section up to here, put together.</source>
        <translation>Nejlepší z každého úseku až sem, dohromady.</translation>
    </message>
    <message>
        <source>Σ bests up to here</source>
        <translation>Σ nejlepší až sem</translation>
    </message>
    <message>
        <source>The best of every section, put together.</source>
        <translation>Nejlepší z každého úseku, dohromady.</translation>
    </message>
    <message>
        <source>Σ bests</source>
        <translation>Σ nejlepší</translation>
    </message>
    <message>
        <source>The seconds of all its touches and missed gates.</source>
        <translation>Sekundy za všechny ťuky a neprojeté branky.</translation>
    </message>
    <message>
        <source>Σ gates</source>
        <translation>Σ branky</translation>
    </message>
    <message>
        <source>The seconds of touches and missed gates of the section.</source>
        <translation>Sekundy za ťuky a neprojeté branky úseku.</translation>
    </message>
    <message>
        <source>Σ gates of the section</source>
        <translation>Σ branky úseku</translation>
    </message>
    <message>
        <source>The official penalty seconds as they were entered for this run.</source>
        <translation>Oficiální trestné sekundy, jak byly u této jízdy zadány.</translation>
    </message>
    <message>
        <source>real penalty</source>
        <translation>skutečná penalizace</translation>
    </message>
    <message>
        <source>The expected time as split taking stored it with this run.</source>
        <translation>Očekávaný čas, jak ho u této jízdy uložilo měření mezičasů.</translation>
    </message>
    <message>
        <source>expected</source>
        <translation>očekávaný</translation>
    </message>
    <message>
        <source>values of the column</source>
        <translation>hodnoty sloupce</translation>
    </message>
    <message>
        <source>least</source>
        <translation>nejméně</translation>
    </message>
    <message>
        <source>most</source>
        <translation>nejvíce</translation>
    </message>
    <message>
        <source>times that stand alone</source>
        <translation>samostatné časy</translation>
    </message>
    <message>
        <source>No gate was touched or missed.</source>
        <translation>Žádný ťuk ani neprojetá branka.</translation>
    </message>
    <message>
        <source>penalties</source>
        <translation>penalizace</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>rychlejší</translation>
    </message>
    <message>
        <source>timed</source>
        <translation>změřené</translation>
    </message>
    <message>
        <source>slower or equal</source>
        <translation>pomalejší nebo stejné</translation>
    </message>
    <message>
        <source>median</source>
        <translation>medián</translation>
    </message>
    <message>
        <source>List of online planning entries.</source>
        <translation>Seznam položek plánování online.</translation>
    </message>
    <message>
        <source>Files that have already been watched.</source>
        <translation>Soubory, které už byly zhlédnuty.</translation>
    </message>
    <message>
        <source>Play the next video of a list when one ends.</source>
        <translation>Po skončení videa přehrát další ze seznamu.</translation>
    </message>
    <message>
        <source>Start a run at its stored video time rather than at the video&apos;s start.</source>
        <translation>Jízdu začít v jejím uloženém čase videa, ne na začátku videa.</translation>
    </message>
    <message>
        <source>Start playback as soon as a row is clicked.</source>
        <translation>Přehrát hned po kliknutí na řádek.</translation>
    </message>
    <message>
        <source>Show penalties in the tables.</source>
        <translation>Ukazovat v tabulkách penalizace.</translation>
    </message>
    <message>
        <source>Include penalty seconds in the times that are compared.</source>
        <translation>Započítat trestné sekundy do porovnávaných časů.</translation>
    </message>
    <message>
        <source>Colours of the split table.</source>
        <translation>Barvy tabulky mezičasů.</translation>
    </message>
    <message>
        <source>Comment tag chosen last.</source>
        <translation>Naposled zvolený štítek komentáře.</translation>
    </message>
    <message>
        <source>Show the coach&apos;s comments.</source>
        <translation>Ukazovat komentáře trenéra.</translation>
    </message>
    <message>
        <source>In tag mode, play only the tagged part of a video.</source>
        <translation>V režimu štítků přehrát jen část videa se štítkem.</translation>
    </message>
    <message>
        <source>Kind of data opened last.</source>
        <translation>Naposled otevřený druh dat.</translation>
    </message>
    <message>
        <source>Full screen shows the roll chart.</source>
        <translation>Celá obrazovka ukazuje graf klonění do stran.</translation>
    </message>
    <message>
        <source>Full screen shows the pitch chart.</source>
        <translation>Celá obrazovka ukazuje graf kolébání.</translation>
    </message>
    <message>
        <source>Full screen shows the heart-rate chart.</source>
        <translation>Celá obrazovka ukazuje graf tepové frekvence.</translation>
    </message>
    <message>
        <source>Full screen shows the scatter chart.</source>
        <translation>Celá obrazovka ukazuje bodový graf.</translation>
    </message>
    <message>
        <source>Show boat-motion values normalised.</source>
        <translation>Ukazovat normalizované hodnoty pohybu lodi.</translation>
    </message>
    <message>
        <source>Show the impulse gauge.</source>
        <translation>Ukazovat ukazatel impulzu.</translation>
    </message>
    <message>
        <source>Show the stroke-rate gauge.</source>
        <translation>Ukazovat ukazatel frekvence záběrů.</translation>
    </message>
    <message>
        <source>Number of splits of a new split file.</source>
        <translation>Počet mezičasů nového souboru mezičasů.</translation>
    </message>
    <message>
        <source>Tag names saved for reuse.</source>
        <translation>Jména štítků uložená k opětovnému použití.</translation>
    </message>
    <message>
        <source>Time-loss reasons saved for reuse.</source>
        <translation>Důvody časových ztrát uložené k opětovnému použití.</translation>
    </message>
    <message>
        <source>Load a planning file at start.</source>
        <translation>Při spuštění načíst soubor plánování.</translation>
    </message>
    <message>
        <source>The planning file to load at start is an online one.</source>
        <translation>Soubor plánování načítaný při spuštění je online.</translation>
    </message>
    <message>
        <source>Planning file to load at start.</source>
        <translation>Soubor plánování načítaný při spuštění.</translation>
    </message>
    <message>
        <source>Also export the table as CSV on saving.</source>
        <translation>Při ukládání také exportovat tabulku jako CSV.</translation>
    </message>
    <message>
        <source>Also export a PDF on saving.</source>
        <translation>Při ukládání také exportovat PDF.</translation>
    </message>
    <message>
        <source>Main folder to open at start.</source>
        <translation>Hlavní složka otevíraná při spuštění.</translation>
    </message>
    <message>
        <source>Open the test tool at start.</source>
        <translation>Při spuštění otevřít nástroj testů.</translation>
    </message>
    <message>
        <source>The file is not an activity, but something else of the device.</source>
        <translation>Soubor není aktivita, ale něco jiného z přístroje.</translation>
    </message>
    <message>
        <source>There are no points in the file.</source>
        <translation>V souboru nejsou žádné body.</translation>
    </message>
    <message numerus="yes">
        <source>{} videos</source>
        <translation>
            <numerusform>{} video</numerusform>
            <numerusform>{} videa</numerusform>
            <numerusform>{} videí</numerusform>
        </translation>
    </message>
    <message>
        <source>Makes a training file of the videos that carry an athlete&apos;s name</source>
        <translation>Vytvoří tréninkový soubor z videí, která nesou jméno závodníka</translation>
    </message>
    <message>
        <source>Folder of the videos</source>
        <translation>Složka s videi</translation>
    </message>
    <message>
        <source>The athlete&apos;s name; a crew as &quot;A / B&quot;</source>
        <translation>Jméno závodníka; posádka jako &quot;A / B&quot;</translation>
    </message>
    <message>
        <source>Replace a training file that is there already</source>
        <translation>Nahradit tréninkový soubor, který už existuje</translation>
    </message>
    <message>
        <source>Kavela: splits, results and recordings of canoe slalom.</source>
        <translation>Kavela: mezičasy, výsledky a záznamy vodního slalomu.</translation>
    </message>
    <message>
        <source>Files to open in the desktop program</source>
        <translation>Soubory k otevření v desktopovém programu</translation>
    </message>
    <message>
        <source>Start another desktop program, also where one runs</source>
        <translation>Spustit další desktopový program, i když už jeden běží</translation>
    </message>
    <message>
        <source>Language of what is said: en or one that is built in</source>
        <translation>Jazyk výstupu: en nebo některý z vestavěných</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>Pro tento soubor není dost paměti.</translation>
    </message>
    <message>
        <source>Composes a film of several runs</source>
        <translation>Složí film z více jízd</translation>
    </message>
    <message>
        <source>What is to be composed (.json)</source>
        <translation>Co se má složit (.json)</translation>
    </message>
    <message>
        <source>File to write, in place of the job&apos;s own</source>
        <translation>Soubor k zápisu místo toho z úlohy</translation>
    </message>
    <message numerus="yes">
        <source>{} strokes</source>
        <translation>
            <numerusform>{} záběr</numerusform>
            <numerusform>{} záběry</numerusform>
            <numerusform>{} záběrů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} turns</source>
        <translation>
            <numerusform>{} obrat</numerusform>
            <numerusform>{} obraty</numerusform>
            <numerusform>{} obratů</numerusform>
        </translation>
    </message>
    <message>
        <source>Give another name with --name.</source>
        <translation>Zadejte jiné jméno pomocí --name.</translation>
    </message>
    <message>
        <source>A name goes with one recording only.</source>
        <translation>Jméno patří jen k jedinému záznamu.</translation>
    </message>
    <message>
        <source>Writes the processed session of raw recordings</source>
        <translation>Zapíše zpracovanou jednotku ze surových záznamů</translation>
    </message>
    <message>
        <source>Raw recordings (.kvb)</source>
        <translation>Surové záznamy (.kvb)</translation>
    </message>
    <message>
        <source>Name of the new file, for a further one</source>
        <translation>Jméno nového souboru, u dalšího</translation>
    </message>
    <message numerus="yes">
        <source>{} files</source>
        <translation>
            <numerusform>{} soubor</numerusform>
            <numerusform>{} soubory</numerusform>
            <numerusform>{} souborů</numerusform>
        </translation>
    </message>
    <message>
        <source>Failed to create file</source>
        <translation>Soubor se nepodařilo vytvořit</translation>
    </message>
    <message>
        <source>Writes a sample season to try Kavela with</source>
        <translation>Zapíše ukázkovou sezónu k vyzkoušení Kavely</translation>
    </message>
    <message>
        <source>Folder to write to; made where it is missing</source>
        <translation>Složka k zápisu; chybí-li, vytvoří se</translation>
    </message>
    <message>
        <source>Makes short films of runs as well</source>
        <translation>Vytvoří také krátké filmy jízd</translation>
    </message>
    <message>
        <source>Writes the split table for a spreadsheet, or a report</source>
        <translation>Zapíše tabulku mezičasů pro tabulkový procesor, nebo zprávu</translation>
    </message>
    <message>
        <source>Split file (.kvx) of any release</source>
        <translation>Soubor mezičasů (.kvx) kterékoli verze</translation>
    </message>
    <message>
        <source>File to write: semicolon-separated text</source>
        <translation>Soubor k zápisu: text oddělený středníky</translation>
    </message>
    <message>
        <source>File to write: the race report, on A4 pages</source>
        <translation>Soubor k zápisu: zpráva o závodě, na stranách A4</translation>
    </message>
    <message>
        <source>There is no split file.</source>
        <translation>Není zde soubor mezičasů.</translation>
    </message>
    <message numerus="yes">
        <source>{} tables</source>
        <translation>
            <numerusform>{} tabulka</numerusform>
            <numerusform>{} tabulky</numerusform>
            <numerusform>{} tabulek</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} runs</source>
        <translation>
            <numerusform>{} jízda</numerusform>
            <numerusform>{} jízdy</numerusform>
            <numerusform>{} jízd</numerusform>
        </translation>
    </message>
    <message>
        <source>Writes what split files say as tables for other programs</source>
        <translation>Zapíše obsah souborů mezičasů jako tabulky pro jiné programy</translation>
    </message>
    <message>
        <source>Split files, or folders with them</source>
        <translation>Soubory mezičasů, nebo složky s nimi</translation>
    </message>
    <message>
        <source>Folder to write to</source>
        <translation>Složka k zápisu</translation>
    </message>
    <message>
        <source>Fetches the films of a race by their bibs</source>
        <translation>Stáhne filmy závodu podle startovních čísel</translation>
    </message>
    <message>
        <source>Where the films come from (.json)</source>
        <translation>Odkud filmy přicházejí (.json)</translation>
    </message>
    <message>
        <source>Only print what would be fetched</source>
        <translation>Jen vypsat, co by se stáhlo</translation>
    </message>
    <message>
        <source>Do not ask before anything is fetched</source>
        <translation>Neptat se, než se něco stáhne</translation>
    </message>
    <message>
        <source>User name for the server of the address</source>
        <translation>Uživatelské jméno pro server adresy</translation>
    </message>
    <message>
        <source>A search needs a file or folder and, last, the query in quotes.</source>
        <translation>Hledání potřebuje soubor nebo složku a nakonec dotaz v uvozovkách.</translation>
    </message>
    <message>
        <source>The table cannot be written over a file that is searched.</source>
        <translation>Tabulku nelze zapsat přes soubor, který se prohledává.</translation>
    </message>
    <message>
        <source>Searches split files: a season in one question</source>
        <translation>Prohledá soubory mezičasů: sezóna v jediném dotazu</translation>
    </message>
    <message>
        <source>Split files, or folders with them; last the query, in quotes</source>
        <translation>Soubory mezičasů, nebo složky s nimi; nakonec dotaz v uvozovkách</translation>
    </message>
    <message>
        <source>Print one JSON document</source>
        <translation>Vypsat jeden dokument JSON</translation>
    </message>
    <message numerus="yes">
        <source>{} groups</source>
        <translation>
            <numerusform>{} skupina</numerusform>
            <numerusform>{} skupiny</numerusform>
            <numerusform>{} skupin</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} rows</source>
        <translation>
            <numerusform>{} řádek</numerusform>
            <numerusform>{} řádky</numerusform>
            <numerusform>{} řádků</numerusform>
        </translation>
    </message>
    <message>
        <source>What an athlete can lift once, by five formulas</source>
        <translation>Co závodník zvedne jednou, podle pěti vzorců</translation>
    </message>
    <message>
        <source>How often the weight was lifted</source>
        <translation>Kolikrát byla hmotnost zvednuta</translation>
    </message>
    <message>
        <source>The weight in kilograms</source>
        <translation>Hmotnost v kilogramech</translation>
    </message>
    <message numerus="yes">
        <source>{} results</source>
        <translation>
            <numerusform>{} výsledek</numerusform>
            <numerusform>{} výsledky</numerusform>
            <numerusform>{} výsledků</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} lines</source>
        <translation>
            <numerusform>{} řádek</numerusform>
            <numerusform>{} řádky</numerusform>
            <numerusform>{} řádků</numerusform>
        </translation>
    </message>
    <message>
        <source>Adds an official results list to a split file</source>
        <translation>Přidá do souboru mezičasů oficiální výsledkovou listinu</translation>
    </message>
    <message>
        <source>Split file (.kvx) of the current version</source>
        <translation>Soubor mezičasů (.kvx) současné verze</translation>
    </message>
    <message>
        <source>Semicolon-separated text with a header line: position, bib, name, nationality, time, penalty</source>
        <translation>Text oddělený středníky s řádkem nadpisů: pořadí, startovní číslo, jméno, národnost, čas, penalizace</translation>
    </message>
    <message>
        <source>Says what files are, or what is wrong in them</source>
        <translation>Řekne, co jsou soubory zač, nebo co je v nich špatně</translation>
    </message>
    <message>
        <source>Files of any kind</source>
        <translation>Soubory jakéhokoli druhu</translation>
    </message>
    <message>
        <source>The table cannot be written over a file that it is made from.</source>
        <translation>Tabulku nelze zapsat přes soubor, ze kterého vzniká.</translation>
    </message>
    <message>
        <source>Tells where runs lose time against one another</source>
        <translation>Řekne, kde jízdy proti sobě ztrácejí čas</translation>
    </message>
    <message>
        <source>Split file (.kvx) of any release; with --athlete also folders of them</source>
        <translation>Soubor mezičasů (.kvx) kterékoli verze; s --athlete také jejich složky</translation>
    </message>
    <message>
        <source>winner, fastest, ideal, median, own or run:I; winner without other word</source>
        <translation>winner, fastest, ideal, median, own nebo run:I; bez uvedení winner</translation>
    </message>
    <message>
        <source>The season of an athlete over all the paths; a crew as &quot;A / B&quot;</source>
        <translation>Sezóna závodníka přes všechny cesty; posádka jako &quot;A / B&quot;</translation>
    </message>
    <message>
        <source>Only the athlete&apos;s runs of this category</source>
        <translation>Jen jízdy závodníka v této kategorii</translation>
    </message>
    <message>
        <source>Folder to write the athlete&apos;s page into, named after the athlete</source>
        <translation>Složka, do níž se zapíše stránka závodníka, pojmenovaná po něm</translation>
    </message>
    <message>
        <source>run {}</source>
        <translation>jízda {}</translation>
    </message>
    <message>
        <source>no total</source>
        <translation>bez celkového času</translation>
    </message>
    <message>
        <source>, no totals to compare</source>
        <translation>, bez celkových časů k porovnání</translation>
    </message>
    <message>
        <source>strokes {} on {}</source>
        <translation>záběry {} proti {}</translation>
    </message>
    <message>
        <source>gate {} {}</source>
        <translation>branka {} {}</translation>
    </message>
    <message>
        <source>     Explained by notes: {} of {} ({:.0f} %)</source>
        <translation>     Vysvětleno poznámkami: {} z {} ({:.0f}&#xa0;%)</translation>
    </message>
    <message>
        <source>Tells how often gates are touched, what it cost, and whether speed pays</source>
        <translation>Řekne, jak často se na brankách ťuká, co to stálo a zda se rychlost vyplácí</translation>
    </message>
    <message>
        <source>Split files (.kvx) of any release, or folders of them</source>
        <translation>Soubory mezičasů (.kvx) kterékoli verze, nebo jejich složky</translation>
    </message>
    <message>
        <source>What the rates are by; by gate without other word</source>
        <translation>Podle čeho jsou podíly; bez uvedení podle branky</translation>
    </message>
    <message>
        <source>Only runs of this category</source>
        <translation>Jen jízdy této kategorie</translation>
    </message>
    <message>
        <source>File to write the rates to: semicolon-separated text</source>
        <translation>Soubor, do něhož se zapíší podíly: text oddělený středníky</translation>
    </message>
    <message>
        <source>Explain one number instead: rate/gate/7, touches/crew/NAME, cost/RUN/GATE, …</source>
        <translation>Vysvětlit místo toho jedno číslo: rate/gate/7, touches/crew/NAME, cost/RUN/GATE, …</translation>
    </message>
    <message>
        <source>… {} more; all of them with --json, --csv or in a pipe</source>
        <translation>… dalších {}; všechny pomocí --json, --csv nebo v rouře</translation>
    </message>
    <message>
        <source>Penalties by {} · {}, {}</source>
        <translation>Penalizace podle: {} · {}, {}</translation>
    </message>
    <message>
        <source>{} of {} whole runs without a penalty: {:.1f} % ({})</source>
        <translation>{} z {} úplných jízd bez penalizace: {:.1f}&#xa0;% ({})</translation>
    </message>
    <message>
        <source>Ranked: drawn towards {:.1f} %, the more the fewer the passages;</source>
        <translation>Vyhlazené: přitaženo k {:.1f}&#xa0;%, tím víc, čím méně je průjezdů;</translation>
    </message>
    <message>
        <source>{} of {}</source>
        <translation>{} z {}</translation>
    </message>
    <message>
        <source>What penalties cost</source>
        <translation>Co penalizace stály</translation>
    </message>
    <message numerus="yes">
        <source>{} penalties</source>
        <translation>
            <numerusform>{} penalizace</numerusform>
            <numerusform>{} penalizace</numerusform>
            <numerusform>{} penalizací</numerusform>
        </translation>
    </message>
    <message>
        <source>gate {}</source>
        <translation>branka {}</translation>
    </message>
    <message>
        <source>  {} of {}, without {}</source>
        <translation>  {} z {}, bez {}</translation>
    </message>
    <message>
        <source>{} {} of {} ({:.0f} %, {:.0f}–{:.0f})</source>
        <translation>{} {} z {} ({:.0f}&#xa0;%, {:.0f}–{:.0f})</translation>
    </message>
    <message>
        <source>Noted of {}</source>
        <translation>Poznamenáno z {}</translation>
    </message>
    <message>
        <source>1 % of speed pays for {:.2f} touches a run; times in percent of the group&apos;s median</source>
        <translation>1&#xa0;% rychlosti vyváží {:.2f} ťuku na jízdu; časy v procentech mediánu skupiny</translation>
    </message>
    <message>
        <source>The sum of the best splits, and what each run could be</source>
        <translation>Součet nejlepších mezičasů a co by mohla být každá jízda</translation>
    </message>
    <message>
        <source>Store the values in the file</source>
        <translation>Uložit hodnoty do souboru</translation>
    </message>
    <message>
        <source>Tell how a number came about: perfect, or xtime/5 (runs from 0)</source>
        <translation>Řekne, jak číslo vzniklo: perfect, nebo xtime/5 (jízdy od 0)</translation>
    </message>
    <message>
        <source>The weeks of each athlete&apos;s seasons</source>
        <translation>Týdny sezón každého závodníka</translation>
    </message>
    <message>
        <source>Planning (.planning) of any version</source>
        <translation>Plánování (.planning) kterékoli verze</translation>
    </message>
    <message>
        <source>Brings plannings to the current version</source>
        <translation>Převede plánování do současné verze</translation>
    </message>
    <message>
        <source>Plannings (.planning) of any version</source>
        <translation>Plánování (.planning) kterékoli verze</translation>
    </message>
    <message>
        <source>Shows and upgrades training plannings</source>
        <translation>Ukazuje a převádí tréninkové plánování</translation>
    </message>
    <message numerus="yes">
        <source>{} weeks</source>
        <translation>
            <numerusform>{} týden</numerusform>
            <numerusform>{} týdny</numerusform>
            <numerusform>{} týdnů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} sessions</source>
        <translation>
            <numerusform>{} jednotka</numerusform>
            <numerusform>{} jednotky</numerusform>
            <numerusform>{} jednotek</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} athletes</source>
        <translation>
            <numerusform>{} závodník</numerusform>
            <numerusform>{} závodníci</numerusform>
            <numerusform>{} závodníků</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} favourite interval sessions</source>
        <translation>
            <numerusform>{} oblíbená intervalová jednotka</numerusform>
            <numerusform>{} oblíbené intervalové jednotky</numerusform>
            <numerusform>{} oblíbených intervalových jednotek</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} variability measurements</source>
        <translation>
            <numerusform>{} měření variability</numerusform>
            <numerusform>{} měření variability</numerusform>
            <numerusform>{} měření variability</numerusform>
        </translation>
    </message>
    <message>
        <source>Tells how the athletes of a team stand over seasons</source>
        <translation>Řekne, jak jsou na tom závodníci týmu v průběhu sezón</translation>
    </message>
    <message>
        <source>Team file (.kvteam)</source>
        <translation>Soubor týmu (.kvteam)</translation>
    </message>
    <message>
        <source>Split files (.kvx) of any release, or folders of them: they tell the winners and the rivals</source>
        <translation>Soubory mezičasů (.kvx) kterékoli verze, nebo jejich složky: udávají vítěze a soupeře</translation>
    </message>
    <message>
        <source>Category: MK1, WK1, MC1, WC1, MX1, WX1</source>
        <translation>Kategorie: MK1, WK1, MC1, WC1, MX1, WX1</translation>
    </message>
    <message>
        <source>Only these: 2025, or 2023-2025</source>
        <translation>Jen tyto: 2025, nebo 2023-2025</translation>
    </message>
    <message>
        <source>Whose places to expect of one another; the team and those who raced most often without it</source>
        <translation>Čí vzájemná místa odhadnout; bez uvedení tým a ti, kdo závodili nejčastěji</translation>
    </message>
    <message>
        <source>File to write: the runs of the athletes as semicolon-separated text</source>
        <translation>Soubor k zápisu: jízdy závodníků jako text oddělený středníky</translation>
    </message>
    <message>
        <source>Folder to write a report of the team and a page for each athlete into</source>
        <translation>Složka, do níž se zapíše zpráva o týmu a stránka pro každého závodníka</translation>
    </message>
    <message>
        <source>Explain one number instead: spread, trend/NAME, percent/NAME/2025/WC1/Final, …</source>
        <translation>Vysvětlit místo toho jedno číslo: spread, trend/NAME, percent/NAME/2025/WC1/Final, …</translation>
    </message>
    <message>
        <source>{:+.1f} to {:+.1f}</source>
        <translation>{:+.1f} až {:+.1f}</translation>
    </message>
    <message>
        <source>{:+.2f} to {:+.2f}</source>
        <translation>{:+.2f} až {:+.2f}</translation>
    </message>
    <message>
        <source>      {} run {} {} {}
</source>
        <translation>      {} jízda {} {} {}
</translation>
    </message>
    <message>
        <source>  {}. {}: {}, {} s a run
</source>
        <translation>  {}. {}: {}, {} s na jízdu
</translation>
    </message>
    <message numerus="yes">
        <source>{} whole runs</source>
        <translation>
            <numerusform>{} úplná jízda</numerusform>
            <numerusform>{} úplné jízdy</numerusform>
            <numerusform>{} úplných jízd</numerusform>
        </translation>
    </message>
    <message>
        <source> · on {} · {}
</source>
        <translation> · reference: {} · {}
</translation>
    </message>
    <message>
        <source> ({:+.1f} to {:+.1f})</source>
        <translation> ({:+.1f} až {:+.1f})</translation>
    </message>
    <message numerus="yes">
        <source>{} split files</source>
        <translation>
            <numerusform>{} soubor mezičasů</numerusform>
            <numerusform>{} soubory mezičasů</numerusform>
            <numerusform>{} souborů mezičasů</numerusform>
        </translation>
    </message>
    <message>
        <source> · {} · {} of races</source>
        <translation> · {} · {} závodů</translation>
    </message>
    <message>
        <source>Too few runs to tell how much they vary by chance.</source>
        <translation>Příliš málo jízd na to, aby se poznalo, jak náhodně kolísají.</translation>
    </message>
    <message>
        <source>Runs vary by {:.1f} %{}, from {}; {:.2f} % is worth gaining.</source>
        <translation>Jízdy kolísají o {:.1f}&#xa0;%{}, z {}; vyplatí se získat {:.2f}&#xa0;%.</translation>
    </message>
    <message>
        <source>Neither winners nor fastest splits of these races are known.</source>
        <translation>Vítězové ani nejrychlejší mezičasy těchto závodů nejsou známi.</translation>
    </message>
    <message>
        <source>      ┄ third of the final, median</source>
        <translation>      ┄ třetí z finále, medián</translation>
    </message>
    <message>
        <source>within</source>
        <translation>kolísání</translation>
    </message>
    <message>
        <source>trend</source>
        <translation>trend</translation>
    </message>
    <message>
        <source>on splits</source>
        <translation>mezičasy</translation>
    </message>
    <message>
        <source>{:.1f} % (all {:.1f}{})</source>
        <translation>{:.1f}&#xa0;% (vše {:.1f}{})</translation>
    </message>
    <message>
        <source>, {} missed</source>
        <translation>, neprojeto {}</translation>
    </message>
    <message>
        <source>{:+.1f} %/yr{} </source>
        <translation>{:+.1f}&#xa0;%/rok{} </translation>
    </message>
    <message>
        <source>{} of {} ({:.0f}–{:.0f} %)</source>
        <translation>{} z {} ({:.0f}–{:.0f}&#xa0;%)</translation>
    </message>
    <message numerus="yes">
        <source>{} races</source>
        <translation>
            <numerusform>{} závod</numerusform>
            <numerusform>{} závody</numerusform>
            <numerusform>{} závodů</numerusform>
        </translation>
    </message>
    <message>
        <source> {} of {} ({:.0f}–{:.0f} %), {:+.1f} %</source>
        <translation> {} z {} ({:.0f}–{:.0f}&#xa0;%), {:+.1f}&#xa0;%</translation>
    </message>
    <message>
        <source>rank {}</source>
        <translation>pořadí {}</translation>
    </message>
    <message>
        <source>… {} more; all of them with --json or in a pipe</source>
        <translation>… dalších {}; všechny pomocí --json nebo v rouře</translation>
    </message>
    <message>
        <source>{} more boats come into question: name a field with --field</source>
        <translation>V úvahu přichází dalších lodí: {}; pole určí --field</translation>
    </message>
    <message>
        <source>{} is left out: fewer than {} runs, or never met the others</source>
        <translation>{} je vynechán(a): méně než {} jízd, nebo bez setkání s ostatními</translation>
    </message>
    <message>
        <source>The ranking of each category</source>
        <translation>Pořadí každé kategorie</translation>
    </message>
    <message>
        <source>Selection file (.kvsr) of any layout</source>
        <translation>Soubor nominace (.kvsr) jakéhokoli uspořádání</translation>
    </message>
    <message>
        <source>Kind of bonus that counts, from 0</source>
        <translation>Druh bonusu, který se počítá, od 0</translation>
    </message>
    <message>
        <source>Folder to write both reports into</source>
        <translation>Složka, do níž se zapíší obě zprávy</translation>
    </message>
    <message>
        <source>Store percentages and scores in the file</source>
        <translation>Uložit procenta a body do souboru</translation>
    </message>
    <message>
        <source>Adds athletes from a list to a selection</source>
        <translation>Přidá do nominace závodníky ze seznamu</translation>
    </message>
    <message>
        <source>Selection file (.kvsr)</source>
        <translation>Soubor nominace (.kvsr)</translation>
    </message>
    <message>
        <source>Text with lines Cat;Name;Surname;year;club</source>
        <translation>Text s řádky Cat;Name;Surname;year;club</translation>
    </message>
    <message>
        <source>Takes the results of a race from its split files</source>
        <translation>Převezme výsledky závodu z jeho souborů mezičasů</translation>
    </message>
    <message>
        <source>Race of the selection: its name, or its number counted from 0</source>
        <translation>Závod nominace: jeho jméno, nebo pořadové číslo počítané od 0</translation>
    </message>
    <message>
        <source>Kind of bonus that counts in the scores, from 0</source>
        <translation>Druh bonusu, který se počítá do bodů, od 0</translation>
    </message>
    <message>
        <source>Split files (.kvx) of the race</source>
        <translation>Soubory mezičasů (.kvx) závodu</translation>
    </message>
    <message>
        <source>Selection races and their ranking</source>
        <translation>Nominační závody a jejich pořadí</translation>
    </message>
    <message>
        <source>Prints the coloured split table of a race</source>
        <translation>Vypíše barevnou tabulku mezičasů závodu</translation>
    </message>
    <message>
        <source>Colours: race or training</source>
        <translation>Barvy: race nebo training</translation>
    </message>
    <message>
        <source>Times from the start to each split</source>
        <translation>Časy od startu ke každému mezičasu</translation>
    </message>
    <message>
        <source>Add penalty seconds to the times</source>
        <translation>Přičíst trestné sekundy k časům</translation>
    </message>
    <message>
        <source>Show penalty seconds behind the times</source>
        <translation>Ukázat trestné sekundy za časy</translation>
    </message>
    <message>
        <source>Only runs of this phase</source>
        <translation>Jen jízdy této fáze</translation>
    </message>
    <message>
        <source>Tell how a number came about: cell/5/3, band/5/3, ideal/3, ideal/total (runs from 0, columns and sections from 1)</source>
        <translation>Řekne, jak číslo vzniklo: cell/5/3, band/5/3, ideal/3, ideal/total (jízdy od 0, sloupce a úseky od 1)</translation>
    </message>
    <message>
        <source>{} gates, {} upstream</source>
        <translation>branek: {}, protivodných: {}</translation>
    </message>
    <message>
        <source>The table cannot be written over the recording itself.</source>
        <translation>Tabulku nelze zapsat přes samotný záznam.</translation>
    </message>
    <message>
        <source>Finds the strokes and turns of a boat-motion recording</source>
        <translation>Najde záběry a obraty v záznamu pohybu lodi</translation>
    </message>
    <message>
        <source>Raw recording (.kvb)</source>
        <translation>Surový záznam (.kvb)</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number from {:g} to {:g} {}.</source>
        <translation>„{}“ není číslo od {:g} do {:g} {}.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is none of: {}.</source>
        <translation>„{}“ není žádné z: {}.</translation>
    </message>
    <message>
        <source>Side of the phone that points to the bow, where fixes do not tell: top, bottom, right, left, back or screen</source>
        <translation>Strana telefonu, která míří ke špičce, kde to neříkají polohy: top, bottom, right, left, back nebo screen</translation>
    </message>
    <message>
        <source>Athlete, boat and kit in kg</source>
        <translation>Závodník, loď a výstroj v kg</translation>
    </message>
    <message>
        <source>Resistance of the hull over the square of its speed in N·s²/m²</source>
        <translation>Odpor trupu na druhou mocninu jeho rychlosti v N·s²/m²</translation>
    </message>
    <message>
        <source>Class of boat: k1, c1, c2, kayak or canoe</source>
        <translation>Třída lodi: k1, c1, c2, kayak nebo canoe</translation>
    </message>
    <message numerus="yes">
        <source>{} bouts</source>
        <translation>
            <numerusform>{} série</numerusform>
            <numerusform>{} série</numerusform>
            <numerusform>{} sérií</numerusform>
        </translation>
    </message>
    <message>
        <source>{:.1f} 1/min</source>
        <translation>{:.1f} 1/min</translation>
    </message>
    <message>
        <source>{:g} kg, drag {:g} N·s²/m², {}; force and power hold on flat water only</source>
        <translation>{:g} kg, odpor {:g} N·s²/m², {}; síla a výkon platí jen na rovné vodě</translation>
    </message>
    <message>
        <source>Shows any list of results as a table, with columns reckoned</source>
        <translation>Ukáže jakýkoli seznam výsledků jako tabulku s vypočtenými sloupci</translation>
    </message>
    <message>
        <source>A column to add: total:Time,Pen, rank:Total, gap, percent, percentile, difference:Run 2,Run 1; with &quot;by Category&quot; within each category, with &quot;down&quot; the highest first</source>
        <translation>Sloupec k přidání: total:Time,Pen, rank:Total, gap, percent, percentile, difference:Run 2,Run 1; s &quot;by Category&quot; v rámci každé kategorie, s &quot;down&quot; nejvyšší první</translation>
    </message>
    <message>
        <source>ROW,COL,VALUE,FN as in Nation,Category,Time,mean; FN is count, sum, mean, median, least or most</source>
        <translation>ROW,COL,VALUE,FN jako Nation,Category,Time,mean; FN je count, sum, mean, median, least nebo most</translation>
    </message>
    <message>
        <source>Team (.kvteam) whose athletes are looked for</source>
        <translation>Tým (.kvteam), jehož závodníci se hledají</translation>
    </message>
    <message>
        <source>The sheet, where there are several; of a split file which of its lists</source>
        <translation>List, je-li jich více; u souboru mezičasů která z jeho listin</translation>
    </message>
    <message>
        <source>File to write the table to: semicolon-separated text</source>
        <translation>Soubor, do něhož se zapíše tabulka: text oddělený středníky</translation>
    </message>
    <message>
        <source>Category, letter for letter as in the file: MK1, WK1, MC1, WC1, MX1, WX1</source>
        <translation>Kategorie, písmeno po písmenu jako v souboru: MK1, WK1, MC1, WC1, MX1, WX1</translation>
    </message>
    <message>
        <source>What the athletes of a team reached</source>
        <translation>Čeho závodníci týmu dosáhli</translation>
    </message>
    <message>
        <source>Name of the athlete</source>
        <translation>Jméno závodníka</translation>
    </message>
    <message>
        <source>Folder to write &quot;2025 Categorization.pdf&quot; into</source>
        <translation>Složka, do níž se zapíše &quot;2025 Categorization.pdf&quot;</translation>
    </message>
    <message>
        <source>Brings files of older releases to the current version</source>
        <translation>Převede soubory starších verzí do současné verze</translation>
    </message>
    <message>
        <source>Split files, selection races, plannings and recordings, or folders</source>
        <translation>Soubory mezičasů, nominační závody, plánování a záznamy, nebo složky</translation>
    </message>
    <message>
        <source>rule</source>
        <translation>pravidlo</translation>
    </message>
    <message>
        <source>source</source>
        <translation>zdroj</translation>
    </message>
    <message>
        <source>note</source>
        <translation>poznámka</translation>
    </message>
    <message>
        <source>split {}</source>
        <translation>mezičas {}</translation>
    </message>
    <message>
        <source>entry {}</source>
        <translation>položka {}</translation>
    </message>
    <message>
        <source>shown {} of {}</source>
        <translation>ukázáno {} z {}</translation>
    </message>
    <message>
        <source>{} to {}  ({})</source>
        <translation>{} až {}  ({})</translation>
    </message>
    <message>
        <source>Imported “%1”</source>
        <translation>Importováno „%1“</translation>
    </message>
    <message>
        <source>“%1” cannot be imported</source>
        <translation>„%1“ nelze importovat</translation>
    </message>
    <message>
        <source>Watches and phones (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;All files (*)</source>
        <translation>Hodinky a telefony (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Import from a watch or a phone</source>
        <translation>Import z hodinek nebo telefonu</translation>
    </message>
    <message>
        <source>The rows of the group.</source>
        <translation>Řádky skupiny.</translation>
    </message>
    <message>
        <source>number of rows</source>
        <translation>počet řádků</translation>
    </message>
    <message>
        <source>The least value of the group&apos;s rows.</source>
        <translation>Nejmenší hodnota v řádcích skupiny.</translation>
    </message>
    <message>
        <source>The mean of the group&apos;s rows.</source>
        <translation>Průměr řádků skupiny.</translation>
    </message>
    <message>
        <source>Σ values / rows with a value</source>
        <translation>Σ hodnot / řádky s hodnotou</translation>
    </message>
    <message>
        <source>The middle of the group&apos;s rows.</source>
        <translation>Střed řádků skupiny.</translation>
    </message>
    <message>
        <source>Stopped; nothing was written.</source>
        <translation>Zastaveno; nic nebylo zapsáno.</translation>
    </message>
    <message numerus="yes">
        <source>{} frames</source>
        <translation>
            <numerusform>{} snímek</numerusform>
            <numerusform>{} snímky</numerusform>
            <numerusform>{} snímků</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} films</source>
        <translation>
            <numerusform>{} film</numerusform>
            <numerusform>{} filmy</numerusform>
            <numerusform>{} filmů</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to fetch.</source>
        <translation>Není co stáhnout.</translation>
    </message>
    <message>
        <source>90 %, Student&apos;s t</source>
        <translation>90&#xa0;%, Studentovo t</translation>
    </message>
    <message>
        <source>90 %, Wilson</source>
        <translation>90&#xa0;%, Wilson</translation>
    </message>
    <message>
        <source>own</source>
        <translation>vlastní</translation>
    </message>
    <message>
        <source>Time lost between two neighbouring marks that both runs have.</source>
        <translation>Čas ztracený mezi dvěma sousedními značkami, které mají obě jízdy.</translation>
    </message>
    <message>
        <source>Time lost in percent of the reference&apos;s time there.</source>
        <translation>Čas ztracený v procentech času reference v tom místě.</translation>
    </message>
    <message>
        <source>100 · (own − reference) / reference</source>
        <translation>100 · (vlastní − reference) / reference</translation>
    </message>
    <message>
        <source>After a mark that was not taken the next time covers both sections.</source>
        <translation>Po značce, která nebyla změřena, pokrývá další čas oba úseky.</translation>
    </message>
    <message>
        <source>Σ times between the marks</source>
        <translation>Σ časů mezi značkami</translation>
    </message>
    <message>
        <source>The least time that stands alone, whoever paddled it.</source>
        <translation>Nejmenší samostatný čas, ať ho zajel kdokoli.</translation>
    </message>
    <message>
        <source>The median of the finalists&apos; times that stand alone.</source>
        <translation>Medián samostatných časů finalistů.</translation>
    </message>
    <message>
        <source>median times</source>
        <translation>medián časů</translation>
    </message>
    <message>
        <source>The difference of the totals, official where both have an official one.</source>
        <translation>Rozdíl celkových časů, oficiálních, kde ho mají obě jízdy.</translation>
    </message>
    <message>
        <source>own total − reference total</source>
        <translation>vlastní celkový čas − celkový čas reference</translation>
    </message>
    <message>
        <source>All sections and the penalties, as timed from the video.</source>
        <translation>Všechny úseky a penalizace, jak byly změřeny z videa.</translation>
    </message>
    <message>
        <source>What was lost on the water: all stretches together.</source>
        <translation>Co se ztratilo na vodě: všechny části dohromady.</translation>
    </message>
    <message>
        <source>Σ losses</source>
        <translation>Σ ztrát</translation>
    </message>
    <message>
        <source>The difference of the penalties.</source>
        <translation>Rozdíl penalizací.</translation>
    </message>
    <message>
        <source>own penalties − reference&apos;s penalties</source>
        <translation>vlastní penalizace − penalizace reference</translation>
    </message>
    <message>
        <source>What neither water nor penalties tell: official against video time.</source>
        <translation>Co neříká voda ani penalizace: oficiální čas proti času z videa.</translation>
    </message>
    <message>
        <source>gap − paddling − penalties</source>
        <translation>odstup − na vodě − penalizace</translation>
    </message>
    <message>
        <source>Time lost in an upstream gate, by its first entry in both runs.</source>
        <translation>Čas ztracený v protivodné brance, podle jejího prvního záznamu v obou jízdách.</translation>
    </message>
    <message>
        <source>Time lost from the entrance of an upstream gate to its pole line.</source>
        <translation>Čas ztracený od nájezdu do protivodné branky k rovině branky.</translation>
    </message>
    <message>
        <source>Time lost from the pole line of an upstream gate to its exit.</source>
        <translation>Čas ztracený od roviny protivodné branky k výjezdu.</translation>
    </message>
    <message>
        <source>What a stretch lost outside its upstream gates.</source>
        <translation>Co část ztratila mimo své protivodné branky.</translation>
    </message>
    <message>
        <source>loss − Σ gates</source>
        <translation>ztráta − Σ branek</translation>
    </message>
    <message>
        <source>The part of the loss that notes against the same crew explain.</source>
        <translation>Část ztráty, kterou vysvětlují poznámky proti téže posádce.</translation>
    </message>
    <message>
        <source>Σ notes / paddling</source>
        <translation>Σ poznámek / na vodě</translation>
    </message>
    <message>
        <source>The time without penalties against the expected time.</source>
        <translation>Čas bez penalizací proti očekávanému času.</translation>
    </message>
    <message>
        <source>paddling time − expected time</source>
        <translation>čistý čas − očekávaný čas</translation>
    </message>
    <message>
        <source>The total against a result of interest.</source>
        <translation>Celkový čas proti výsledku, o který jde.</translation>
    </message>
    <message>
        <source>own total − result</source>
        <translation>vlastní celkový čas − výsledek</translation>
    </message>
    <message>
        <source>Time lost as noted; several reasons of one note share it equally.</source>
        <translation>Ztracený čas podle poznámek; více důvodů jedné poznámky ho sdílí rovným dílem.</translation>
    </message>
    <message>
        <source>Σ notes above 0</source>
        <translation>Σ poznámek nad 0</translation>
    </message>
    <message>
        <source>Time gained as noted; several reasons of one note share it equally.</source>
        <translation>Získaný čas podle poznámek; více důvodů jedné poznámky ho sdílí rovným dílem.</translation>
    </message>
    <message>
        <source>Σ notes below 0</source>
        <translation>Σ poznámek pod 0</translation>
    </message>
    <message>
        <source>What the chosen way cost against the fastest one timed.</source>
        <translation>Co zvolená varianta stála proti nejrychlejší změřené.</translation>
    </message>
    <message>
        <source>chosen − least timed</source>
        <translation>zvolená − nejmenší změřená</translation>
    </message>
    <message>
        <source>What was lost in percent of the reference&apos;s time, over whole runs.</source>
        <translation>Co se ztratilo v procentech času reference, za úplné jízdy.</translation>
    </message>
    <message>
        <source>100 · ΣL / ΣB,  SE² = n/(n−1) · Σ(L − qB)² / (ΣB)²</source>
        <translation>100 · ΣL / ΣB,  SE² = n/(n−1) · Σ(L − qB)² / (ΣB)²</translation>
    </message>
    <message>
        <source>ratio estimator: Cochran, Sampling Techniques, 1977</source>
        <translation>poměrový odhad: Cochran, Sampling Techniques, 1977</translation>
    </message>
    <message>
        <source>What was lost here in a run on the average.</source>
        <translation>Co se zde ztratilo v jízdě v průměru.</translation>
    </message>
    <message>
        <source>ΣL / n</source>
        <translation>ΣL / n</translation>
    </message>
    <message>
        <source>The part of the whole gap that was lost here.</source>
        <translation>Část celého odstupu, která se ztratila zde.</translation>
    </message>
    <message>
        <source>ΣL / Σgap</source>
        <translation>ΣL / Σodstupu</translation>
    </message>
    <message>
        <source>The mean gap of the whole runs.</source>
        <translation>Průměrný odstup úplných jízd.</translation>
    </message>
    <message>
        <source>Σgap / n</source>
        <translation>Σodstupu / n</translation>
    </message>
    <message>
        <source>interval: Student&apos;s t</source>
        <translation>interval: Studentovo t</translation>
    </message>
    <message>
        <source>The mean difference of penalties of the whole runs.</source>
        <translation>Průměrný rozdíl penalizací úplných jízd.</translation>
    </message>
    <message>
        <source>Σ(own − reference) / n</source>
        <translation>Σ(vlastní − reference) / n</translation>
    </message>
    <message>
        <source>What was lost on the water up to a mark: all stretches before it.</source>
        <translation>Co se na vodě ztratilo až ke značce: všechny části před ní.</translation>
    </message>
    <message>
        <source>Σ losses to here</source>
        <translation>Σ ztrát až sem</translation>
    </message>
    <message>
        <source>The total of the run: the official one where it has one.</source>
        <translation>Celkový čas jízdy: oficiální, kde ho má.</translation>
    </message>
    <message>
        <source>One more than have a smaller total in the group, to the hundredth.</source>
        <translation>O jednu víc, než kolik jízd skupiny má menší celkový čas, na setinu.</translation>
    </message>
    <message>
        <source>1 + totals below the own</source>
        <translation>1 + celkové časy pod vlastním</translation>
    </message>
    <message>
        <source>The strokes that were marked in the stretch.</source>
        <translation>Záběry označené v této části.</translation>
    </message>
    <message>
        <source>Σ strokes</source>
        <translation>Σ záběrů</translation>
    </message>
    <message>
        <source>The seconds of penalty at the gates of the stretch.</source>
        <translation>Trestné sekundy na brankách této části.</translation>
    </message>
    <message>
        <source>Σ penalties</source>
        <translation>Σ penalizací</translation>
    </message>
    <message>
        <source>The whole runs that have something of it.</source>
        <translation>Úplné jízdy, které z toho něco mají.</translation>
    </message>
    <message>
        <source>number of runs</source>
        <translation>počet jízd</translation>
    </message>
    <message>
        <source>What was lost here in all runs together.</source>
        <translation>Co se zde ztratilo ve všech jízdách dohromady.</translation>
    </message>
    <message>
        <source>Too few runs for an interval.</source>
        <translation>Na interval je jízd příliš málo.</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>ztraceno</translation>
    </message>
    <message>
        <source>reference</source>
        <translation>reference</translation>
    </message>
    <message>
        <source>gap of all runs</source>
        <translation>odstup všech jízd</translation>
    </message>
    <message>
        <source>run</source>
        <translation>jízda</translation>
    </message>
    <message>
        <source>half a frame, four marks</source>
        <translation>půl snímku, čtyři značky</translation>
    </message>
    <message>
        <source>loss</source>
        <translation>ztráta</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>odstup</translation>
    </message>
    <message>
        <source>paddling</source>
        <translation>na vodě</translation>
    </message>
    <message>
        <source>Shown a hundredth apart, so that the parts add up to the shown gap.</source>
        <translation>Ukázáno o setinu jinak, aby části daly ukázaný odstup.</translation>
    </message>
    <message>
        <source>time without penalties</source>
        <translation>čas bez penalizací</translation>
    </message>
    <message>
        <source>expected time</source>
        <translation>očekávaný čas</translation>
    </message>
    <message>
        <source>result</source>
        <translation>výsledek</translation>
    </message>
    <message>
        <source>A missed gate also saved paddling, which the rank without it does not take back.</source>
        <translation>Neprojetá branka také ušetřila čas jízdy; pořadí bez ní ho nevrací.</translation>
    </message>
    <message>
        <source>The total holds {} s of penalty, the gates {:.0f} s.</source>
        <translation>Celkový čas obsahuje penalizaci {} s, branky {:.0f} s.</translation>
    </message>
    <message>
        <source>total</source>
        <translation>celkový čas</translation>
    </message>
    <message>
        <source>smaller totals</source>
        <translation>menší celkové časy</translation>
    </message>
    <message>
        <source>ranked runs</source>
        <translation>jízdy v pořadí</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>sekundy</translation>
    </message>
    <message>
        <source>rank</source>
        <translation>pořadí</translation>
    </message>
    <message>
        <source>rank without</source>
        <translation>pořadí bez ní</translation>
    </message>
    <message>
        <source>clean run</source>
        <translation>čistá jízda</translation>
    </message>
    <message>
        <source>Unfinished runs are not counted: nobody knows whether they would have stayed clean.</source>
        <translation>Nedokončené jízdy se nepočítají: nikdo neví, zda by zůstaly čisté.</translation>
    </message>
    <message>
        <source>{} more are not listed.</source>
        <translation>Dalších nevypsaných: {}.</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>{} more rows are not listed.</source>
        <translation>Dalších nevypsaných řádků: {}.</translation>
    </message>
    <message>
        <source>5 % and 95 % of the beta distribution</source>
        <translation>5&#xa0;% a 95&#xa0;% beta rozdělení</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>n</source>
        <translation>n</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Wilson&apos;s interval, 90 %</source>
        <translation>Wilsonův interval, 90&#xa0;%</translation>
    </message>
    <message numerus="yes">
        <source>{} touches</source>
        <translation>
            <numerusform>{} ťuk</numerusform>
            <numerusform>{} ťuky</numerusform>
            <numerusform>{} ťuků</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} passages</source>
        <translation>
            <numerusform>{} průjezd</numerusform>
            <numerusform>{} průjezdy</numerusform>
            <numerusform>{} průjezdů</numerusform>
        </translation>
    </message>
    <message>
        <source>Too few to tell: {} in {}.</source>
        <translation>Na závěr příliš málo: {}, {}.</translation>
    </message>
    <message>
        <source>Only one {}: there is nothing to compare it with.</source>
        <translation>Jen jedno ({}): není s čím porovnat.</translation>
    </message>
    <message>
        <source>No {} stands out: the highest, {} ({}), may be chance.</source>
        <translation>Nic nevyčnívá ({}): nejvyšší, {} ({}), může být náhoda.</translation>
    </message>
    <message>
        <source>None of {} cost a place.</source>
        <translation>{}: žádná nestála místo.</translation>
    </message>
    <message>
        <source>None of {} was noted in detail.</source>
        <translation>{}: žádná nebyla podrobně poznamenána.</translation>
    </message>
    <message>
        <source>Too few to tell: no group has {} whole runs.</source>
        <translation>Na závěr příliš málo: žádná skupina nemá {} úplných jízd.</translation>
    </message>
    <message>
        <source>1 % of speed pays for {:.2f} touches a run.</source>
        <translation>1&#xa0;% rychlosti vyváží {:.2f} ťuku na jízdu.</translation>
    </message>
    <message>
        <source>{} of {} without a penalty: {:.1f} % ({:.1f}–{:.1f}).</source>
        <translation>{} z {} bez penalizace: {:.1f}&#xa0;% ({:.1f}–{:.1f}).</translation>
    </message>
    <message>
        <source>{} {} {}, place</source>
        <translation>{} {} {}, místo</translation>
    </message>
    <message>
        <source>counted</source>
        <translation>počítá se</translation>
    </message>
    <message>
        <source>{} left out: {}</source>
        <translation>vynecháno {}: {}</translation>
    </message>
    <message>
        <source>{} {} of {} ({:.0f}–{:.0f} %)</source>
        <translation>{} {} z {} ({:.0f}–{:.0f}&#xa0;%)</translation>
    </message>
    <message>
        <source>{:.1f} % behind the winner, {} (median of {})</source>
        <translation>{:.1f}&#xa0;% za vítězem, {} (medián z {})</translation>
    </message>
    <message>
        <source>within {:.1f} % from run to run</source>
        <translation>kolísání od jízdy k jízdě {:.1f}&#xa0;%</translation>
    </message>
    <message>
        <source>trend {:+.1f} % a year: {}</source>
        <translation>trend {:+.1f}&#xa0;% za rok: {}</translation>
    </message>
    <message>
        <source>Too few runs to tell how much they vary.</source>
        <translation>Příliš málo jízd na to, aby se poznalo, jak kolísají.</translation>
    </message>
    <message>
        <source>From run to run {:.1f} % is chance.</source>
        <translation>Od jízdy k jízdě je {:.1f}&#xa0;% náhoda.</translation>
    </message>
    <message>
        <source>From run to run {:.1f} % ({:.1f} to {:.1f}) is chance; {:.2f} % is worth gaining.</source>
        <translation>Od jízdy k jízdě je {:.1f}&#xa0;% ({:.1f} až {:.1f}) náhoda; vyplatí se získat {:.2f}&#xa0;%.</translation>
    </message>
    <message>
        <source>{} of {} grew faster beyond doubt, {} slower.</source>
        <translation>{1}: nepochybně zrychlilo {0}, zpomalilo {2}.</translation>
    </message>
    <message>
        <source>{} met nobody in these races.</source>
        <translation>{}: v těchto závodech žádné setkání.</translation>
    </message>
    <message numerus="yes">
        <source>{} rivals</source>
        <translation>
            <numerusform>{} soupeř</numerusform>
            <numerusform>{} soupeři</numerusform>
            <numerusform>{} soupeřů</numerusform>
        </translation>
    </message>
    <message>
        <source>{} is ahead beyond doubt of {} of {}.</source>
        <translation>{}: nepochybně vpředu před {}, celkem {}.</translation>
    </message>
    <message>
        <source>No split file of this class has three whole runs of a {}.</source>
        <translation>Žádný soubor mezičasů této třídy nemá tři úplné jízdy: {}.</translation>
    </message>
    <message>
        <source>{:.1f} % would have been among the first three in {} of {}.</source>
        <translation>{:.1f}&#xa0;% by stačilo na první tři v {} z {}.</translation>
    </message>
    <message>
        <source>The third was {:.1f} % behind in the median of {}.</source>
        <translation>Třetí byl {:.1f}&#xa0;% za vítězem, medián z {}.</translation>
    </message>
    <message>
        <source>Nobody of the team has runs enough to expect a place of.</source>
        <translation>Nikdo z týmu nemá na odhad místa dost jízd.</translation>
    </message>
    <message>
        <source>{} may expect place {:.1f} of {}, a medal by {:.0f} %.</source>
        <translation>{} může čekat místo {:.1f} z {}, medaili s {:.0f}&#xa0;%.</translation>
    </message>
    <message numerus="yes">
        <source>{} finals</source>
        <translation>
            <numerusform>{} finále</numerusform>
            <numerusform>{} finále</numerusform>
            <numerusform>{} finále</numerusform>
        </translation>
    </message>
    <message>
        <source>{:.1f} % would have been a medal in {} of {}</source>
        <translation>{2}: {0:.1f}&#xa0;% by stačilo na medaili v {1}</translation>
    </message>
    <message>
        <source>Nearest to the winners ({}): {}, {:.1f} % (median of {}).</source>
        <translation>Nejblíž vítězům ({}): {}, {:.1f}&#xa0;% (medián z {}).</translation>
    </message>
    <message>
        <source>No winner of a phase &quot;{}&quot; of these races is known.</source>
        <translation>Není znám vítěz fáze „{}“ těchto závodů.</translation>
    </message>
    <message>
        <source>split {}, fastest of it {:.2f}</source>
        <translation>mezičas {}, nejrychlejší v něm {:.2f}</translation>
    </message>
    <message>
        <source>missed</source>
        <translation>neprojeto</translation>
    </message>
    <message>
        <source>runs</source>
        <translation>jízdy</translation>
    </message>
    <message>
        <source>all missed</source>
        <translation>všechny neprojeté</translation>
    </message>
    <message>
        <source>all runs</source>
        <translation>všechny jízdy</translation>
    </message>
    <message>
        <source>{}, spread {:.2f}, missed {:.1f} %</source>
        <translation>{}, rozptyl {:.2f}, neprojeté {:.1f}&#xa0;%</translation>
    </message>
    <message>
        <source>How far behind the winner of the phase and class, penalties included.</source>
        <translation>Jak daleko za vítězem fáze a třídy, včetně penalizace.</translation>
    </message>
    <message>
        <source>100 · (T / W − 1)</source>
        <translation>100 · (T / W − 1)</translation>
    </message>
    <message>
        <source>of the class winner, not of the men&apos;s kayaks: Wells, thesis, 2018</source>
        <translation>za vítězem třídy, ne za mužským kajakem: Wells, disertace, 2018</translation>
    </message>
    <message>
        <source>How far behind the fastest times of all splits together, without penalties.</source>
        <translation>Jak daleko za nejrychlejšími časy všech mezičasů dohromady, bez penalizace.</translation>
    </message>
    <message>
        <source>100 · (Σ splits / Σ fastest − 1)</source>
        <translation>100 · (Σ mezičasů / Σ nejrychlejších − 1)</translation>
    </message>
    <message>
        <source>How much a run varies by chance, once the athlete and the course are taken out.</source>
        <translation>Jak moc jízda kolísá náhodou, když se odečte závodník a trať.</translation>
    </message>
    <message>
        <source>100 · (e^(s/100) − 1),  s² = Σe² / df,  df = runs − athletes − phases + connected parts</source>
        <translation>100 · (e^(s/100) − 1),  s² = Σe² / df,  df = jízdy − závodníci − fáze + souvislé části</translation>
    </message>
    <message>
        <source>mixed model of elite canoeists: Bonetti, Hopkins, 2010; interval: χ²</source>
        <translation>smíšený model elitních kanoistů: Bonetti, Hopkins, 2010; interval: χ²</translation>
    </message>
    <message>
        <source>How much this athlete&apos;s runs varied by chance.</source>
        <translation>Jak moc jízdy tohoto závodníka kolísaly náhodou.</translation>
    </message>
    <message>
        <source>s² = Σe² / (runs · df / all runs)</source>
        <translation>s² = Σe² / (jízdy · df / všechny jízdy)</translation>
    </message>
    <message>
        <source>The athlete&apos;s spread drawn towards the common one, the more the fewer the runs.</source>
        <translation>Rozptyl závodníka přitažený ke společnému, tím víc, čím méně je jízd.</translation>
    </message>
    <message>
        <source>s² = (Σe² + 10 · common s²) / (runs · df / all runs + 10)</source>
        <translation>s² = (Σe² + 10 · společné s²) / (jízdy · df / všechny jízdy + 10)</translation>
    </message>
    <message>
        <source>What is worth gaining: one more medal in ten races among equals at the top.</source>
        <translation>Co se vyplatí získat: o medaili víc v deseti závodech mezi rovnými na špici.</translation>
    </message>
    <message>
        <source>0.3 · spread</source>
        <translation>0.3 · rozptyl</translation>
    </message>
    <message>
        <source>Hopkins, 2004</source>
        <translation>Hopkins, 2004</translation>
    </message>
    <message>
        <source>The change of the percentage behind from year to year.</source>
        <translation>Změna procent ztráty z roku na rok.</translation>
    </message>
    <message>
        <source>slope of 100 · ln(1 + percent/100) per 365.25 days</source>
        <translation>směrnice 100 · ln(1 + procenta/100) za 365.25 dne</translation>
    </message>
    <message>
        <source>Races among whose first three the athlete was.</source>
        <translation>Závody, v nichž byl závodník mezi prvními třemi.</translation>
    </message>
    <message>
        <source>places 1 to 3 / races with a final position</source>
        <translation>místa 1 až 3 / závody s konečným pořadím</translation>
    </message>
    <message>
        <source>interval: Wilson</source>
        <translation>interval: Wilson</translation>
    </message>
    <message>
        <source>Races in whose final the athlete was.</source>
        <translation>Závody, v jejichž finále závodník byl.</translation>
    </message>
    <message>
        <source>with a final / with phases</source>
        <translation>s finále / s fázemi</translation>
    </message>
    <message>
        <source>Races in whose semifinal the athlete was.</source>
        <translation>Závody, v jejichž semifinále závodník byl.</translation>
    </message>
    <message>
        <source>with a semifinal / with phases</source>
        <translation>se semifinále / s fázemi</translation>
    </message>
    <message>
        <source>The mean change from one phase of a race to a later one.</source>
        <translation>Průměrná změna od jedné fáze závodu k pozdější.</translation>
    </message>
    <message>
        <source>mean of 100 · (ln later − ln earlier)</source>
        <translation>průměr 100 · (ln pozdější − ln dřívější)</translation>
    </message>
    <message>
        <source>How much a single run varies by chance, from pairs of them.</source>
        <translation>Jak moc jednotlivá jízda kolísá náhodou, z dvojic jízd.</translation>
    </message>
    <message>
        <source>SD of the changes / √2</source>
        <translation>SD změn / √2</translation>
    </message>
    <message>
        <source>typical error: Hopkins, 2000</source>
        <translation>typická chyba: Hopkins, 2000</translation>
    </message>
    <message>
        <source>Phases that both have in which the athlete was faster; ties count half.</source>
        <translation>Fáze, které mají oba a v nichž byl závodník rychlejší; shody se počítají napůl.</translation>
    </message>
    <message>
        <source>(won + ties/2) / met</source>
        <translation>(výhry + shody/2) / setkání</translation>
    </message>
    <message>
        <source>The mean gap in the phases that both have, penalties included.</source>
        <translation>Průměrný odstup ve fázích, které mají oba, včetně penalizace.</translation>
    </message>
    <message>
        <source>mean of 100 · ln(own / rival&apos;s)</source>
        <translation>průměr 100 · ln(vlastní / soupeřův)</translation>
    </message>
    <message>
        <source>What percentage behind the winner a rank took, over the races.</source>
        <translation>Kolik procent za vítězem stačilo na umístění, přes závody.</translation>
    </message>
    <message>
        <source>median of 100 · (T of the rank / W − 1)</source>
        <translation>medián 100 · (T umístění / W − 1)</translation>
    </message>
    <message>
        <source>The chance of a missed gate, drawn towards everybody&apos;s as if by 20 runs more.</source>
        <translation>Pravděpodobnost neprojeté branky, přitažená ke společné jako 20 jízdami navíc.</translation>
    </message>
    <message>
        <source>(missed + 20q) / (runs + 20),  q = (all missed + ½) / (all runs + 1)</source>
        <translation>(neprojeté + 20q) / (jízdy + 20),  q = (všechny neprojeté + ½) / (všechny jízdy + 1)</translation>
    </message>
    <message>
        <source>The mean place among this field; with a missed gate behind all that have none.</source>
        <translation>Průměrné místo v tomto poli; s neprojetou brankou za všemi, kdo žádnou nemají.</translation>
    </message>
    <message>
        <source>Σ place · chance,  result normal: effect, spread · √(1 + 1/n)</source>
        <translation>Σ místo · pravděpodobnost,  výsledek normální: efekt, rozptyl · √(1 + 1/n)</translation>
    </message>
    <message>
        <source>The chance of one of the first three places among this field.</source>
        <translation>Pravděpodobnost jednoho z prvních tří míst v tomto poli.</translation>
    </message>
    <message>
        <source>chances of the places 1 to 3</source>
        <translation>pravděpodobnosti míst 1 až 3</translation>
    </message>
    <message>
        <source>How far behind the winners of a phase, the same number of races before and behind it.</source>
        <translation>Jak daleko za vítězi fáze, stejný počet závodů předtím a potom.</translation>
    </message>
    <message>
        <source>median of 100 · (T / W − 1), without missed gates</source>
        <translation>medián 100 · (T / W − 1), bez neprojetých branek</translation>
    </message>
    <message>
        <source>{} {} {}, percent</source>
        <translation>{} {} {}, procenta</translation>
    </message>
    <message>
        <source>90 %, Student&apos;s t with {} degrees</source>
        <translation>90&#xa0;%, Studentovo t, stupně volnosti: {}</translation>
    </message>
    <message>
        <source>{:+.1f} % a year</source>
        <translation>{:+.1f}&#xa0;% za rok</translation>
    </message>
    <message>
        <source>spread, percent</source>
        <translation>rozptyl, procenta</translation>
    </message>
    <message>
        <source>athletes</source>
        <translation>závodníci</translation>
    </message>
    <message>
        <source>race phases</source>
        <translation>fáze závodů</translation>
    </message>
    <message>
        <source>connected parts</source>
        <translation>souvislé části</translation>
    </message>
    <message>
        <source>degrees of freedom</source>
        <translation>stupně volnosti</translation>
    </message>
    <message>
        <source>90 %, χ²</source>
        <translation>90&#xa0;%, χ²</translation>
    </message>
    <message>
        <source>common spread, percent</source>
        <translation>společný rozptyl, procenta</translation>
    </message>
    <message>
        <source>{} with a missed gate left out</source>
        <translation>s neprojetou brankou, vynecháno: {}</translation>
    </message>
    <message>
        <source>exact Poisson interval, 90 %</source>
        <translation>přesný Poissonův interval, 90&#xa0;%</translation>
    </message>
    <message>
        <source>median paddling</source>
        <translation>medián čistého času</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Úseky</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Trať</translation>
    </message>
    <message>
        <source>Upstream gates</source>
        <translation>Protivodné branky</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Směr</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Styl</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>neznámo</translation>
    </message>
    <message>
        <source> (%1 to %2)</source>
        <translation> (%1 až %2)</translation>
    </message>
    <message>
        <source> (too few)</source>
        <translation> (příliš málo)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Losses and penalties · %1on the reference &quot;%2&quot; · %3</source>
        <translation>Ztráty a penalizace · %1proti referenci „%2“ · %3</translation>
    </message>
    <message>
        <source>Where time is lost</source>
        <translation>Kde se ztrácí čas</translation>
    </message>
    <message>
        <source>Seconds a run: gap %1, penalties %2</source>
        <translation>Sekundy na jízdu: odstup %1, penalizace %2</translation>
    </message>
    <message>
        <source>No whole run can be held against this reference.</source>
        <translation>S touto referencí nelze porovnat žádnou úplnou jízdu.</translation>
    </message>
    <message>
        <source>%1 more rows are left out.</source>
        <translation>Dalších vynechaných řádků: %1.</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Podle</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Jízdy</translation>
    </message>
    <message>
        <source>Lost, s</source>
        <translation>Ztráta, s</translation>
    </message>
    <message>
        <source>A run, s</source>
        <translation>Jízda, s</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>%</translation>
    </message>
    <message>
        <source>90 % interval</source>
        <translation>90% interval</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Verdikt</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>příliš málo</translation>
    </message>
    <message>
        <source>%1, run %2, %3 %4</source>
        <translation>%1, jízda %2, %3 %4</translation>
    </message>
    <message>
        <source>What to train</source>
        <translation>Co trénovat</translation>
    </message>
    <message>
        <source>whose whole interval is above 0, by what it costs in a run</source>
        <translation>s celým intervalem nad 0, podle ceny na jízdu</translation>
    </message>
    <message>
        <source>Nothing stands out from these runs.</source>
        <translation>Z těchto jízd nic nevyčnívá.</translation>
    </message>
    <message>
        <source>%1. %2, %3: %4 s a run</source>
        <translation>%1. %2, %3: %4 s na jízdu</translation>
    </message>
    <message>
        <source>See </source>
        <translation>Viz </translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Branky</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Ťuky</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Neprojeté</translation>
    </message>
    <message>
        <source>Percent, 90 %</source>
        <translation>Proc., 90&#xa0;%</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Vše</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Tenth of course</source>
        <translation>Desetina tratě</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Penalizace</translation>
    </message>
    <message>
        <source>No run tells its penalties by gate.</source>
        <translation>Žádná jízda neuvádí penalizace po brankách.</translation>
    </message>
    <message>
        <source>Noted of %1 %2, shares of those noted:</source>
        <translation>Poznamenáno (%2: %1), podíly z poznamenaných:</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>penalizace</translation>
    </message>
    <message>
        <source>Penalties by gate</source>
        <translation>Penalizace po brankách</translation>
    </message>
    <message>
        <source>and %1 more gates</source>
        <translation>a dalších %1 branek</translation>
    </message>
    <message numerus="yes">
        <source>{} missed gates</source>
        <translation>
            <numerusform>{} neprojetá branka</numerusform>
            <numerusform>{} neprojeté branky</numerusform>
            <numerusform>{} neprojetých branek</numerusform>
        </translation>
    </message>
    <message>
        <source> in </source>
        <translation> v </translation>
    </message>
    <message>
        <source>upstream gate</source>
        <translation>protivodná branka</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>modře</translation>
    </message>
    <message>
        <source>green</source>
        <translation>zeleně</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>oranžově</translation>
    </message>
    <message>
        <source>red</source>
        <translation>červeně</translation>
    </message>
    <message>
        <source>fastest*, %1</source>
        <translation>nejrychlejší*, %1</translation>
    </message>
    <message>
        <source>%1, slowest, by tenths of the column</source>
        <translation>%1, nejpomalejší, po desetinách sloupce</translation>
    </message>
    <message>
        <source>* best of its column, in %1; all others in %2</source>
        <translation>* nejlepší ve sloupci, %1; všechny ostatní %2</translation>
    </message>
    <message>
        <source>Page %1 / %2</source>
        <translation>Strana %1 / %2</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Jednotky</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Veličina</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>plan</source>
        <translation>plán</translation>
    </message>
    <message>
        <source>listed</source>
        <translation>skut.</translation>
    </message>
    <message>
        <source>Nothing is planned and nothing entered.</source>
        <translation>Nic není naplánováno a nic zadáno.</translation>
    </message>
    <message>
        <source>Season %1</source>
        <translation>Sezóna %1</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Týdny</translation>
    </message>
    <message>
        <source>Macrocycles</source>
        <translation>Makrocykly</translation>
    </message>
    <message>
        <source>Weeks with an event</source>
        <translation>Týdny s akcí</translation>
    </message>
    <message>
        <source>Races run</source>
        <translation>Odjeté závody</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Skupina %1</translation>
    </message>
    <message>
        <source>  ·  %1 of %2 reached</source>
        <translation>  ·  dosaženo %1 z %2</translation>
    </message>
    <message>
        <source>Goals of the season</source>
        <translation>Cíle sezóny</translation>
    </message>
    <message>
        <source>No week of this season is planned yet.</source>
        <translation>Žádný týden této sezóny zatím není naplánován.</translation>
    </message>
    <message>
        <source>Training by category</source>
        <translation>Trénink podle kategorie</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Týden</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Dny</translation>
    </message>
    <message>
        <source>Macrocycle</source>
        <translation>Makrocyklus</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mezocyklus</translation>
    </message>
    <message>
        <source>Load, %</source>
        <translation>Zatížení, %</translation>
    </message>
    <message>
        <source>Event, place</source>
        <translation>Akce, místo</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Testy</translation>
    </message>
    <message>
        <source>Morning</source>
        <translation>Ráno</translation>
    </message>
    <message>
        <source>Afternoon</source>
        <translation>Odpoledne</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Večer</translation>
    </message>
    <message>
        <source>Any time</source>
        <translation>Kdykoli</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Jednotka</translation>
    </message>
    <message>
        <source>continued</source>
        <translation>pokračování</translation>
    </message>
    <message>
        <source>Other days</source>
        <translation>Ostatní dny</translation>
    </message>
    <message>
        <source>Training week</source>
        <translation>Tréninkový týden</translation>
    </message>
    <message>
        <source>Week %1</source>
        <translation>Týden %1</translation>
    </message>
    <message>
        <source>Goals of the week</source>
        <translation>Cíle týdne</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Poznámky</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Jméno</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Pen.</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Celkem</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Odstup</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Úsek</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Nejlepší</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Kdo</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Výsledky</translation>
    </message>
    <message>
        <source>Ideal run without penalties</source>
        <translation>Ideální jízda bez penalizací</translation>
    </message>
    <message>
        <source>Ideal run</source>
        <translation>Ideální jízda</translation>
    </message>
    <message>
        <source>Fastest run</source>
        <translation>Nejrychlejší jízda</translation>
    </message>
    <message>
        <source>Split times</source>
        <translation>Mezičasy</translation>
    </message>
    <message>
        <source>There are no runs to show.</source>
        <translation>Nejsou žádné jízdy k ukázání.</translation>
    </message>
    <message>
        <source>%1 gates</source>
        <translation>branek: %1</translation>
    </message>
    <message>
        <source>, %1 upstream</source>
        <translation>, protivodných: %1</translation>
    </message>
    <message>
        <source>Race</source>
        <translation>Závod</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Voda</translation>
    </message>
    <message>
        <source>For comparison</source>
        <translation>Pro porovnání</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Kat.</translation>
    </message>
    <message>
        <source> Grey: not timed as a whole, never a best.</source>
        <translation> Šedě: nezměřeno vcelku, nikdy nejlepší.</translation>
    </message>
    <message>
        <source>Split %1</source>
        <translation>Mezičas %1</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Jízda</translation>
    </message>
    <message>
        <source>%1 s of %2 s; strokes are counted of whole sections.</source>
        <translation>%1 s z %2 s; záběry se počítají z celých úseků.</translation>
    </message>
    <message>
        <source>The penalties of this run are not known by gate.</source>
        <translation>Penalizace této jízdy nejsou známy po brankách.</translation>
    </message>
    <message>
        <source>Time so far</source>
        <translation>Průběžný čas</translation>
    </message>
    <message>
        <source>Among all runs</source>
        <translation>Mezi všemi jízdami</translation>
    </message>
    <message>
        <source>Among all runs of </source>
        <translation>Mezi všemi jízdami kategorie </translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Branka</translation>
    </message>
    <message>
        <source>Entrance</source>
        <translation>Nájezd</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Výjezd</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Obrat</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Časové ztráty</translation>
    </message>
    <message>
        <source>Against</source>
        <translation>Proti</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekundy</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Štítky</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Štítek</translation>
    </message>
    <message>
        <source>In the run at</source>
        <translation>V čase jízdy</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Komentáře</translation>
    </message>
    <message>
        <source>Split {}</source>
        <translation>Mezičas {}</translation>
    </message>
    <message>
        <source>best</source>
        <translation>nejlepší</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Záběry</translation>
    </message>
    <message>
        <source>per min</source>
        <translation>za min</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Mezičas</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Pořadí</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Penal.</translation>
    </message>
    <message>
        <source>on the film</source>
        <translation>na filmu</translation>
    </message>
    <message>
        <source>recording</source>
        <translation>záznam</translation>
    </message>
    <message>
        <source>gap and rank among all runs of the category; the run&apos;s with penalties</source>
        <translation>odstup a pořadí mezi všemi jízdami kategorie; u jízdy s penalizací</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Mezičasy</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>a dalších %1</translation>
    </message>
    <message>
        <source>Recording: </source>
        <translation>Záznam: </translation>
    </message>
    <message>
        <source>third of the final, median</source>
        <translation>třetí z finále, medián</translation>
    </message>
    <message>
        <source>rank %1: %2 %</source>
        <translation>pořadí %1: %2&#xa0;%</translation>
    </message>
    <message>
        <source>own median</source>
        <translation>vlastní medián</translation>
    </message>
    <message>
        <source>Medal</source>
        <translation>Medaile</translation>
    </message>
    <message>
        <source>Season </source>
        <translation>Sezóna </translation>
    </message>
    <message>
        <source>%1 · %2 races · intervals are 90 %</source>
        <translation>%1 · závodů: %2 · intervaly jsou 90&#xa0;%</translation>
    </message>
    <message>
        <source>Percent behind the winner</source>
        <translation>Procenta za vítězem</translation>
    </message>
    <message>
        <source>Percent behind the fastest splits</source>
        <translation>Procenta za nejrychlejšími mezičasy</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Závody</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Dosaženo</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Medaile</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finále</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Semifinále</translation>
    </message>
    <message>
        <source>Medals and finals</source>
        <translation>Medaile a finále</translation>
    </message>
    <message>
        <source>Change, below 0 is faster</source>
        <translation>Změna, pod 0 je rychlejší</translation>
    </message>
    <message>
        <source>A year on the winner</source>
        <translation>Za rok na vítěze</translation>
    </message>
    <message>
        <source>A year on the splits</source>
        <translation>Za rok na mezičasy</translation>
    </message>
    <message>
        <source>Run 1 to run 2</source>
        <translation>1. až 2. jízda</translation>
    </message>
    <message>
        <source>Semifinal to final</source>
        <translation>Semifinále až finále</translation>
    </message>
    <message>
        <source>Heats to final, behind</source>
        <translation>Kvalifikace až finále, ztráta</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Změny</translation>
    </message>
    <message>
        <source>Ahead of</source>
        <translation>Vpředu před</translation>
    </message>
    <message>
        <source>Met</source>
        <translation>Setkání</translation>
    </message>
    <message>
        <source>Head to head</source>
        <translation>Vzájemné souboje</translation>
    </message>
    <message>
        <source>What a rank of the final took</source>
        <translation>Co stačilo na umístění ve finále</translation>
    </message>
    <message>
        <source>%1 athletes · intervals are 90 %</source>
        <translation>závodníků: %1 · intervaly jsou 90&#xa0;%</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Závodník</translation>
    </message>
    <message>
        <source>Chance, %</source>
        <translation>Šance, %</translation>
    </message>
    <message>
        <source>% a year</source>
        <translation>% za rok</translation>
    </message>
    <message>
        <source>On the splits</source>
        <translation>Na mezičasy</translation>
    </message>
    <message>
        <source>On the winner</source>
        <translation>Na vítěze</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Závodníci</translation>
    </message>
    <message>
        <source>What a rank took: </source>
        <translation>Co stačilo na umístění: </translation>
    </message>
    <message>
        <source>Expected places</source>
        <translation>Očekávaná místa</translation>
    </message>
    <message>
        <source>best %1</source>
        <translation>nejlepší %1</translation>
    </message>
    <message>
        <source> · races %1 to %2</source>
        <translation> · závody %1 až %2</translation>
    </message>
    <message>
        <source>, continued</source>
        <translation>, pokračování</translation>
    </message>
    <message>
        <source>Pos</source>
        <translation>Poř.</translation>
    </message>
    <message>
        <source>SURNAME Name</source>
        <translation>PŘÍJMENÍ Jméno</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Klub</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Rok</translation>
    </message>
    <message>
        <source>xTime</source>
        <translation>xTime</translation>
    </message>
    <message>
        <source>Bonus</source>
        <translation>Bonus</translation>
    </message>
    <message>
        <source>x Score</source>
        <translation>x Score</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Body</translation>
    </message>
    <message>
        <source>Percent behind the best of the race and category. </source>
        <translation>Procenta za nejlepším v závodě a kategorii. </translation>
    </message>
    <message>
        <source>Percent behind the best expected time of the race and category. </source>
        <translation>Procenta za nejlepším očekávaným časem v závodě a kategorii. </translation>
    </message>
    <message>
        <source>The worst result is struck through and does not count</source>
        <translation>Nejhorší výsledek je škrtnutý a nepočítá se</translation>
    </message>
    <message>
        <source>; with a bonus the two worst. </source>
        <translation>; s bonusem dva nejhorší. </translation>
    </message>
    <message>
        <source>Score: the sum of the others divided by three. %1: no result, P: preselected.</source>
        <translation>Body: součet ostatních dělený třemi. %1: bez výsledku, P: předvybrán(a).</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Kind %1</source>
        <translation>Druh %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádný</translation>
    </message>
    <message>
        <source>Place and date</source>
        <translation>Místo a datum</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Podpis</translation>
    </message>
    <message>
        <source>the median of each column</source>
        <translation>mediánu každého sloupce</translation>
    </message>
    <message>
        <source>the ideal run</source>
        <translation>ideální jízdy</translation>
    </message>
    <message>
        <source>the best of each column</source>
        <translation>nejlepšího v každém sloupci</translation>
    </message>
    <message>
        <source>Gaps in seconds to %1.</source>
        <translation>Odstupy v sekundách od %1.</translation>
    </message>
    <message>
        <source>Places within each column.</source>
        <translation>Místa v každém sloupci.</translation>
    </message>
    <message>
        <source>Percent behind the best of each column.</source>
        <translation>Procenta za nejlepším v každém sloupci.</translation>
    </message>
    <message>
        <source>Percentiles of each column; the best has 100.</source>
        <translation>Percentily každého sloupce; nejlepší má 100.</translation>
    </message>
    <message>
        <source>Times from the start, without penalties.</source>
        <translation>Časy od startu, bez penalizace.</translation>
    </message>
    <message>
        <source>Penalties are included in sections and total.</source>
        <translation>Penalizace jsou započteny v úsecích i celkem.</translation>
    </message>
    <message>
        <source>Penalties are not included.</source>
        <translation>Penalizace nejsou započteny.</translation>
    </message>
    <message>
        <source>Penalty seconds in brackets.</source>
        <translation>Trestné sekundy v závorkách.</translation>
    </message>
    <message>
        <source>Compared among all %1 runs.</source>
        <translation>Porovnáno mezi všemi jízdami (%1).</translation>
    </message>
    <message>
        <source>Final position</source>
        <translation>Konečné pořadí</translation>
    </message>
    <message>
        <source>No athlete of this category comes into question.</source>
        <translation>V této kategorii nepřichází v úvahu žádný závodník.</translation>
    </message>
    <message>
        <source>medals</source>
        <translation>medaile</translation>
    </message>
    <message>
        <source>championship medals</source>
        <translation>medaile z mistrovství</translation>
    </message>
    <message>
        <source>top 6</source>
        <translation>do 6. místa</translation>
    </message>
    <message>
        <source>top 15</source>
        <translation>do 15. místa</translation>
    </message>
    <message>
        <source>What counts is summed and divided by three, however many races there were.</source>
        <translation>Co se počítá, se sečte a dělí třemi, ať je závodů kolik chce.</translation>
    </message>
    <message>
        <source>Σ counted / 3</source>
        <translation>Σ počítaných / 3</translation>
    </message>
    <message>
        <source>the rules of the selection</source>
        <translation>pravidla nominace</translation>
    </message>
    <message>
        <source>The results and the bonus that count.</source>
        <translation>Výsledky a bonus, které se počítají.</translation>
    </message>
    <message>
        <source>Σ counted</source>
        <translation>Σ počítaných</translation>
    </message>
    <message>
        <source>Counts in the score.</source>
        <translation>Počítá se do bodů.</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>procenta</translation>
    </message>
    <message>
        <source>Dropped: the worst result of all.</source>
        <translation>Škrtnuto: nejhorší výsledek ze všech.</translation>
    </message>
    <message>
        <source>not in the score</source>
        <translation>ne do bodů</translation>
    </message>
    <message>
        <source>Dropped too: a bonus stands among the results.</source>
        <translation>Také škrtnuto: mezi výsledky je bonus.</translation>
    </message>
    <message>
        <source>How far behind the best of the category in this race, with penalties.</source>
        <translation>Jak daleko za nejlepším z kategorie v tomto závodě, včetně penalizace.</translation>
    </message>
    <message>
        <source>100 · ((time + penalties) / best − 1)</source>
        <translation>100 · ((čas + penalizace) / nejlepší − 1)</translation>
    </message>
    <message>
        <source>A race without a result stands for this much.</source>
        <translation>Závod bez výsledku znamená tolik.</translation>
    </message>
    <message>
        <source>999.99</source>
        <translation>999.99</translation>
    </message>
    <message>
        <source>More than two medals, or one at a championship, in the first two seasons.</source>
        <translation>Více než dvě medaile, nebo jedna z mistrovství, v prvních dvou sezónách.</translation>
    </message>
    <message>
        <source>medals &gt; 2 or championship medals ≥ 1</source>
        <translation>medaile &gt; 2 nebo medaile z mistrovství ≥ 1</translation>
    </message>
    <message>
        <source>the rules of the categorization</source>
        <translation>pravidla kategorizace</translation>
    </message>
    <message>
        <source>Three times among the first six in the first two seasons.</source>
        <translation>Třikrát mezi prvními šesti v prvních dvou sezónách.</translation>
    </message>
    <message>
        <source>top 6 ≥ 3</source>
        <translation>do 6. místa ≥ 3</translation>
    </message>
    <message>
        <source>Four times among the first fifteen in the first two seasons.</source>
        <translation>Čtyřikrát mezi prvními patnácti v prvních dvou sezónách.</translation>
    </message>
    <message>
        <source>top 15 ≥ 4</source>
        <translation>do 15. místa ≥ 4</translation>
    </message>
    <message>
        <source>None of the other levels is reached in the first two seasons.</source>
        <translation>V prvních dvou sezónách není dosaženo žádné z ostatních úrovní.</translation>
    </message>
    <message>
        <source>otherwise</source>
        <translation>jinak</translation>
    </message>
    <message>
        <source>Races with a final position of 1 to 3.</source>
        <translation>Závody s konečným pořadím 1 až 3.</translation>
    </message>
    <message>
        <source>count</source>
        <translation>počet</translation>
    </message>
    <message>
        <source>Races with a final position of 1 to 6.</source>
        <translation>Závody s konečným pořadím 1 až 6.</translation>
    </message>
    <message>
        <source>Races with a final position of 1 to 15.</source>
        <translation>Závody s konečným pořadím 1 až 15.</translation>
    </message>
    <message>
        <source>Races with a final position.</source>
        <translation>Závody s konečným pořadím.</translation>
    </message>
    <message>
        <source>What the run would have taken at its usual distance from the best times.</source>
        <translation>Kolik by jízda trvala při svém obvyklém odstupu od nejlepších časů.</translation>
    </message>
    <message>
        <source>factor · perfect time</source>
        <translation>činitel · perfektní čas</translation>
    </message>
    <message>
        <source>How far its times stand above the best ones, without the outermost.</source>
        <translation>Jak vysoko jsou její časy nad nejlepšími, bez krajních.</translation>
    </message>
    <message>
        <source>mean of the ratios that are left</source>
        <translation>průměr zbylých poměrů</translation>
    </message>
    <message>
        <source>A time of the run against the best of all runs there.</source>
        <translation>Čas jízdy proti nejlepšímu ze všech jízd v tom místě.</translation>
    </message>
    <message>
        <source>own / best</source>
        <translation>vlastní / nejlepší</translation>
    </message>
    <message>
        <source>The best times of all runs, put together.</source>
        <translation>Nejlepší časy všech jízd dohromady.</translation>
    </message>
    <message>
        <source>factor</source>
        <translation>činitel</translation>
    </message>
    <message>
        <source>perfect time</source>
        <translation>perfektní čas</translation>
    </message>
    <message>
        <source>ratios that are left</source>
        <translation>zbylé poměry</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Vedle sebe</translation>
    </message>
    <message>
        <source>Above each other</source>
        <translation>Nad sebou</translation>
    </message>
    <message>
        <source>Two by two</source>
        <translation>Dva krát dva</translation>
    </message>
    <message>
        <source>One within the other</source>
        <translation>Jeden v druhém</translation>
    </message>
    <message>
        <source>Ghost: seen through</source>
        <translation>Duch: průhledně</translation>
    </message>
    <message>
        <source>Left and right of a line</source>
        <translation>Vlevo a vpravo od čáry</translation>
    </message>
    <message>
        <source>at the start</source>
        <translation>na startu</translation>
    </message>
    <message>
        <source>at one split</source>
        <translation>v jednom mezičase</translation>
    </message>
    <message>
        <source>at every split, waiting</source>
        <translation>v každém mezičase, s čekáním</translation>
    </message>
    <message>
        <source>at every split, stretched</source>
        <translation>v každém mezičase, s roztažením</translation>
    </message>
    <message>
        <source>the whole run</source>
        <translation>celá jízda</translation>
    </message>
    <message>
        <source>from split to split</source>
        <translation>od mezičasu k mezičasu</translation>
    </message>
    <message>
        <source>Combination</source>
        <translation>Kombinace</translation>
    </message>
    <message>
        <source>Enter plays both films</source>
        <translation>Enter přehraje oba filmy</translation>
    </message>
    <message>
        <source>No film is known here</source>
        <translation>Film zde není znám</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Druh</translation>
    </message>
    <message>
        <source>Own time less the reference&apos;s; all of them add up to what is shown on top</source>
        <translation>Vlastní čas minus čas reference; jejich součet je číslo nahoře</translation>
    </message>
    <message>
        <source>Between</source>
        <translation>Mezi</translation>
    </message>
    <message>
        <source>Lost outside the upstream gates</source>
        <translation>Ztráta mimo protivodné branky</translation>
    </message>
    <message>
        <source>Reference&apos;s strokes</source>
        <translation>Záběry reference</translation>
    </message>
    <message>
        <source>Own seconds of penalty in the section</source>
        <translation>Vlastní trestné sekundy v úseku</translation>
    </message>
    <message>
        <source>A tick makes the run what all are held against</source>
        <translation>Zaškrtnutá jízda je ta, s níž se všechny porovnávají</translation>
    </message>
    <message>
        <source>Paddling</source>
        <translation>Na vodě</translation>
    </message>
    <message>
        <source>Timing</source>
        <translation>Měření</translation>
    </message>
    <message>
        <source>On expected time</source>
        <translation>Na očekávaný čas</translation>
    </message>
    <message>
        <source>Time without penalties less the expected time</source>
        <translation>Čas bez penalizací minus očekávaný čas</translation>
    </message>
    <message>
        <source>Lost up to the pole line</source>
        <translation>Ztráta k rovině branky</translation>
    </message>
    <message>
        <source>Lost from the pole line on</source>
        <translation>Ztráta od roviny branky</translation>
    </message>
    <message>
        <source>Noted</source>
        <translation>Poznám.</translation>
    </message>
    <message>
        <source>not noted</source>
        <translation>nepoznamenáno</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Cena</translation>
    </message>
    <message>
        <source>Seconds of the chosen way over the fastest one timed</source>
        <translation>O kolik sekund je zvolená varianta pomalejší než nejrychlejší změřená</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vpřed</translation>
    </message>
    <message>
        <source>Turning rate (left above 0)</source>
        <translation>Rychlost otáčení (vlevo nad 0)</translation>
    </message>
    <message>
        <source>Turning</source>
        <translation>Otáčení</translation>
    </message>
    <message>
        <source>Roll (starboard down above 0)</source>
        <translation>Klonění (pravobok dolů nad 0)</translation>
    </message>
    <message>
        <source>Pitch (bow up above 0)</source>
        <translation>Kolébání (špička nahoru nad 0)</translation>
    </message>
    <message>
        <source>Speed by position</source>
        <translation>Rychlost podle polohy</translation>
    </message>
    <message>
        <source>Hull speed, estimated</source>
        <translation>Rychlost trupu, odhad</translation>
    </message>
    <message>
        <source>Hull speed</source>
        <translation>Rychlost trupu</translation>
    </message>
    <message>
        <source>Watch acceleration</source>
        <translation>Zrychlení hodinek</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Hodinky</translation>
    </message>
    <message>
        <source>Acceleration of the phone, x</source>
        <translation>Zrychlení telefonu, x</translation>
    </message>
    <message>
        <source>Acceleration x</source>
        <translation>Zrychlení x</translation>
    </message>
    <message>
        <source>Acceleration of the phone, y</source>
        <translation>Zrychlení telefonu, y</translation>
    </message>
    <message>
        <source>Acceleration y</source>
        <translation>Zrychlení y</translation>
    </message>
    <message>
        <source>Acceleration of the phone, z</source>
        <translation>Zrychlení telefonu, z</translation>
    </message>
    <message>
        <source>Acceleration z</source>
        <translation>Zrychlení z</translation>
    </message>
    <message>
        <source>Rotation of the phone, x</source>
        <translation>Otáčení telefonu, x</translation>
    </message>
    <message>
        <source>Rotation x</source>
        <translation>Otáčení x</translation>
    </message>
    <message>
        <source>Rotation of the phone, y</source>
        <translation>Otáčení telefonu, y</translation>
    </message>
    <message>
        <source>Rotation y</source>
        <translation>Otáčení y</translation>
    </message>
    <message>
        <source>Rotation of the phone, z</source>
        <translation>Otáčení telefonu, z</translation>
    </message>
    <message>
        <source>Rotation z</source>
        <translation>Otáčení z</translation>
    </message>
    <message>
        <source>by gate</source>
        <translation>podle branky</translation>
    </message>
    <message>
        <source>by type of gate</source>
        <translation>podle typu branky</translation>
    </message>
    <message>
        <source>by tenth of the course</source>
        <translation>podle desetiny tratě</translation>
    </message>
    <message>
        <source>by section</source>
        <translation>podle úseku</translation>
    </message>
    <message>
        <source>by crew</source>
        <translation>podle posádky</translation>
    </message>
    <message>
        <source>by category</source>
        <translation>podle kategorie</translation>
    </message>
    <message>
        <source>by phase</source>
        <translation>podle fáze</translation>
    </message>
    <message>
        <source>by race</source>
        <translation>podle závodu</translation>
    </message>
    <message>
        <source>by month</source>
        <translation>podle měsíce</translation>
    </message>
    <message>
        <source>by hand</source>
        <translation>podle ruky</translation>
    </message>
    <message>
        <source>Tenth</source>
        <translation>Desetina</translation>
    </message>
    <message>
        <source>Se&amp;gments</source>
        <translation>Se&amp;gmenty</translation>
    </message>
    <message>
        <source>&amp;Left and right</source>
        <translation>&amp;Levá a pravá</translation>
    </message>
    <message>
        <source>Whole numbers</source>
        <translation>Celá čísla</translation>
    </message>
    <message>
        <source>Decimal numbers</source>
        <translation>Desetinná čísla</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Časy</translation>
    </message>
    <message>
        <source>DNF and the like</source>
        <translation>DNF a podobné</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Penalty missing</source>
        <translation>Chybí penalizace</translation>
    </message>
    <message>
        <source>Penalty too many</source>
        <translation>Penalizace navíc</translation>
    </message>
    <message>
        <source>Bibs swapped</source>
        <translation>Zaměněná čísla</translation>
    </message>
    <message>
        <source>No result</source>
        <translation>Bez výsledku</translation>
    </message>
    <message>
        <source>Not finished</source>
        <translation>Nedokončeno</translation>
    </message>
    <message>
        <source>Not in list</source>
        <translation>Není v listině</translation>
    </message>
    <message>
        <source>Not filmed</source>
        <translation>Nenatočeno</translation>
    </message>
    <message>
        <source>Average:</source>
        <translation>Průměr:</translation>
    </message>
    <message>
        <source>Average variation:</source>
        <translation>Průměrné kolísání:</translation>
    </message>
    <message>
        <source>Total variation:</source>
        <translation>Celkové kolísání:</translation>
    </message>
    <message>
        <source>Average increase:</source>
        <translation>Průměrný nárůst:</translation>
    </message>
    <message>
        <source>Total increase:</source>
        <translation>Celkový nárůst:</translation>
    </message>
    <message>
        <source>Lap time</source>
        <translation>Čas kola</translation>
    </message>
    <message>
        <source>Time in straight line</source>
        <translation>Čas rovné jízdy</translation>
    </message>
    <message>
        <source>Time in rotation</source>
        <translation>Čas v otáčení</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Průměrná rychlost</translation>
    </message>
    <message>
        <source>Maximum acceleration</source>
        <translation>Maximální zrychlení</translation>
    </message>
    <message>
        <source>Average acceleration</source>
        <translation>Průměrné zrychlení</translation>
    </message>
    <message>
        <source>Average deacceleration</source>
        <translation>Průměrné zpomalení</translation>
    </message>
    <message>
        <source>Roll movement</source>
        <translation>Klonění do stran</translation>
    </message>
    <message>
        <source>Roll (°)</source>
        <translation>Klonění (°)</translation>
    </message>
    <message>
        <source>Maximum force</source>
        <translation>Maximální síla</translation>
    </message>
    <message>
        <source>Impulse (N s)</source>
        <translation>Impulz (N s)</translation>
    </message>
    <message>
        <source>Largest negative acceleration</source>
        <translation>Největší záporné zrychlení</translation>
    </message>
    <message>
        <source>Negative acceleration (m/s2)</source>
        <translation>Záporné zrychlení (m/s2)</translation>
    </message>
    <message>
        <source>Effective water phase</source>
        <translation>Účinná vodní fáze</translation>
    </message>
    <message>
        <source>Rotation about the vertical axis</source>
        <translation>Otáčení kolem svislé osy</translation>
    </message>
    <message>
        <source>Turns to the left are above 0, turns to the right below.</source>
        <translation>Obraty vlevo jsou nad 0, vpravo pod 0.</translation>
    </message>
    <message>
        <source>The film {} is left out: its name is no UTF-8 text.</source>
        <translation>Film {} je vynechán: jeho název není text UTF-8.</translation>
    </message>
    <message>
        <source>The folder {} cannot be read: {}</source>
        <translation>Složku {} nelze přečíst: {}</translation>
    </message>
    <message>
        <source>No video in {} carries the name {}. Nothing was written.</source>
        <translation>Žádné video v {} nenese jméno {}. Nic nebylo zapsáno.</translation>
    </message>
    <message>
        <source>The file {} exists already. Say --replace to write a new one in its place.</source>
        <translation>Soubor {} už existuje. Nový na jeho místo zapíše --replace.</translation>
    </message>
    <message>
        <source>This call needs the program that paints and makes films, which could not be started: {}</source>
        <translation>Toto volání potřebuje program, který kreslí a tvoří filmy; ten nelze spustit: {}</translation>
    </message>
    <message>
        <source>The file {} exists and is not the sample&apos;s. Choose another folder.</source>
        <translation>Soubor {} existuje a nepatří k ukázce. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>The file {} could not be written: {}</source>
        <translation>Soubor {} nelze zapsat: {}</translation>
    </message>
    <message>
        <source>The file {} is none of these tables and stays as it is. Nothing was written.</source>
        <translation>Soubor {} není žádná z těchto tabulek a zůstává, jak je. Nic nebylo zapsáno.</translation>
    </message>
    <message>
        <source>The folder {} could not be made: {}</source>
        <translation>Složku {} nelze vytvořit: {}</translation>
    </message>
    <message>
        <source>Line {}: {}, and was imported as it stands.</source>
        <translation>Řádek {}: {}, importováno tak, jak stojí.</translation>
    </message>
    <message>
        <source>There is no run {}: the file has {}, counted from 0.</source>
        <translation>Jízda {} není: soubor jich má {}, počítáno od 0.</translation>
    </message>
    <message>
        <source>No run has the category &quot;{}&quot;.{}</source>
        <translation>Žádná jízda nemá kategorii „{}“.{}</translation>
    </message>
    <message>
        <source>Nobody of the team races in &quot;{}&quot;. Categories: {}.</source>
        <translation>Nikdo z týmu nezávodí v „{}“. Kategorie: {}.</translation>
    </message>
    <message>
        <source>Several athletes of the team are called {}: their runs cannot be told apart.</source>
        <translation>Více závodníků týmu se jmenuje {}: jejich jízdy nelze rozlišit.</translation>
    </message>
    <message>
        <source>The file {} is of an older version, {}, and was not changed. Bring it to the current one first: kavela upgrade {}</source>
        <translation>Soubor {} je starší verze, {}, a nebyl změněn. Nejdřív ho převeďte do současné: kavela upgrade {}</translation>
    </message>
    <message>
        <source>The time of {} ({}) in {} is 0; a missing result should be 999.9.</source>
        <translation>Čas pro {} ({}) v {} je 0; chybějící výsledek má být 999.9.</translation>
    </message>
    <message>
        <source>No athlete has a bonus of kind {}.</source>
        <translation>Žádný závodník nemá bonus druhu {}.</translation>
    </message>
    <message>
        <source>The list {} is no UTF-8 text and was read as Latin-1: look at the names.</source>
        <translation>Seznam {} není text UTF-8 a byl přečten jako Latin-1: zkontrolujte jména.</translation>
    </message>
    <message>
        <source>The list {} could not be read: {}</source>
        <translation>Seznam {} nelze přečíst: {}</translation>
    </message>
    <message>
        <source>{} of {} skipped.</source>
        <translation>Přeskočeno: {} z {}.</translation>
    </message>
    <message>
        <source>Line {} brought the category {} into the selection{}</source>
        <translation>Řádek {} přinesl do nominace kategorii {}{}</translation>
    </message>
    <message>
        <source>No run has the {} &quot;{}&quot;. There is {}.</source>
        <translation>Žádná jízda nemá ({}) „{}“. Je zde {}.</translation>
    </message>
    <message>
        <source>There is no file and no command {}. Run with --help for the commands.</source>
        <translation>Není soubor ani příkaz {}. Příkazy vypíše --help.</translation>
    </message>
    <message>
        <source>The desktop program could not be started: {}</source>
        <translation>Desktopový program nelze spustit: {}</translation>
    </message>
    <message>
        <source>{}: this is its {}; it carries {} too (--sheet).</source>
        <translation>{}: toto je {}; obsahuje i {} (--sheet).</translation>
    </message>
    <message>
        <source>Line {}, {}: perhaps {}; not joined.</source>
        <translation>Řádek {}, {}: snad {}; nepřipojeno.</translation>
    </message>
    <message>
        <source>{}: this is no team: {}</source>
        <translation>{}: toto není tým: {}</translation>
    </message>
    <message>
        <source>The team has no athlete {}.</source>
        <translation>V týmu není závodník {}.</translation>
    </message>
    <message>
        <source>{} does not race in {}. Categories: {}.</source>
        <translation>{} v {} nezávodí. Kategorie: {}.</translation>
    </message>
    <message>
        <source>The file could not be read: {}</source>
        <translation>Soubor nelze přečíst: {}</translation>
    </message>
    <message>
        <source>There is no number with the id &quot;{}&quot; here.</source>
        <translation>Není zde číslo s označením „{}“.</translation>
    </message>
    <message>
        <source>losing</source>
        <translation>ztráta</translation>
    </message>
    <message>
        <source>gaining</source>
        <translation>zisk</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>nejasné</translation>
    </message>
    <message>
        <source>slower</source>
        <translation>pomalejší</translation>
    </message>
    <message>
        <source>circle: heats, triangle: semifinal, square: final</source>
        <translation>kruh: kvalifikace, trojúhelník: semifinále, čtverec: finále</translation>
    </message>
    <message>
        <source>{:.0f} to {:.0f}</source>
        <translation>{:.0f} až {:.0f}</translation>
    </message>
    <message>
        <source>of the races whose result is known</source>
        <translation>ze závodů se známým výsledkem</translation>
    </message>
    <message>
        <source>too few runs to tell what is chance</source>
        <translation>příliš málo jízd na to, co je náhoda</translation>
    </message>
    <message>
        <source>chance from run to run {:.1f} %, all {:.1f} %; {:.2f} % matters</source>
        <translation>náhoda od jízdy k jízdě {:.1f}&#xa0;%, všichni {:.1f}&#xa0;%; význam má {:.2f}&#xa0;%</translation>
    </message>
    <message>
        <source>none</source>
        <translation>žádné</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabulka</translation>
    </message>
    <message>
        <source>One-repetition maximum</source>
        <translation>Maximum na jedno opakování</translation>
    </message>
    <message>
        <source>Prints what a shell completes calls by</source>
        <translation>Vypíše, podle čeho shell doplňuje volání</translation>
    </message>
    <message>
        <source>Prints the page of the manual</source>
        <translation>Vypíše stránku manuálu</translation>
    </message>
    <message>
        <source>The page cannot be written over a file that it is made from.</source>
        <translation>Stránku nelze zapsat přes soubor, ze kterého vzniká.</translation>
    </message>
    <message>
        <source>Writes the page of an athlete for a telephone, one HTML file</source>
        <translation>Zapíše stránku závodníka do telefonu, jeden soubor HTML</translation>
    </message>
    <message>
        <source>Split files (.kvx) of any release, and folders of them; several make a season</source>
        <translation>Soubory mezičasů (.kvx) kterékoli verze a jejich složky; více jich tvoří sezónu</translation>
    </message>
    <message>
        <source>Whose page; a crew as &quot;A / B&quot;</source>
        <translation>Čí stránka; posádka jako &quot;A / B&quot;</translation>
    </message>
    <message>
        <source>File to write, ending in .html</source>
        <translation>Soubor k zápisu s příponou .html</translation>
    </message>
    <message>
        <source>Cut the athlete&apos;s runs out of their films into the folder of the page</source>
        <translation>Vystřihnout jízdy závodníka z jejich filmů do složky stránky</translation>
    </message>
    <message>
        <source>Shares a folder with a server, both ways</source>
        <translation>Sdílí složku se serverem, oběma směry</translation>
    </message>
    <message>
        <source>The folder on this computer</source>
        <translation>Složka na tomto počítači</translation>
    </message>
    <message>
        <source>Address of the folder on the server</source>
        <translation>Adresa složky na serveru</translation>
    </message>
    <message>
        <source>User name for the server</source>
        <translation>Uživatelské jméno pro server</translation>
    </message>
    <message>
        <source>Only print what would be done</source>
        <translation>Jen vypsat, co by se udělalo</translation>
    </message>
    <message>
        <source>Do not ask before anything is done</source>
        <translation>Neptat se, než se něco udělá</translation>
    </message>
    <message>
        <source>Delete on each side what was deleted on the other and not changed since</source>
        <translation>Na každé straně smazat, co bylo na druhé smazáno a od té doby nezměněno</translation>
    </message>
    <message>
        <source>Print JSON; nothing is asked</source>
        <translation>Vypsat JSON; na nic se neptá</translation>
    </message>
    <message>
        <source>Shows what stood on a line of a film over time, as a picture</source>
        <translation>Ukáže, co bylo v průběhu filmu na čáře, jako obrázek</translation>
    </message>
    <message>
        <source>Film of a camera that stands still</source>
        <translation>Film z kamery, která stojí na místě</translation>
    </message>
    <message>
        <source>X1,Y1,X2,Y2: the ends of the line in pixels</source>
        <translation>X1,Y1,X2,Y2: konce čáry v pixelech</translation>
    </message>
    <message>
        <source>Picture to write (.png)</source>
        <translation>Obrázek k zápisu (.png)</translation>
    </message>
    <message>
        <source>Print the frame and stamp of every column as JSON</source>
        <translation>Vypsat snímek a časové razítko každého sloupce jako JSON</translation>
    </message>
    <message>
        <source>Look for boats that cross the line</source>
        <translation>Hledat lodě, které čáru protnou</translation>
    </message>
    <message>
        <source>X,Y,WIDTH,HEIGHT: a box round one boat, for --proposals</source>
        <translation>X,Y,WIDTH,HEIGHT: rámeček kolem jedné lodi, pro --proposals</translation>
    </message>
    <message>
        <source>Where boats come from: left or right of the line</source>
        <translation>Odkud lodě přijíždějí: left nebo right od čáry</translation>
    </message>
    <message>
        <source>Nothing to do: name a picture with -o, or ask for --json or --proposals.</source>
        <translation>Není co dělat: určete obrázek pomocí -o, nebo žádejte --json či --proposals.</translation>
    </message>
    <message>
        <source>--proposals needs a box round one boat: --boat X,Y,WIDTH,HEIGHT.</source>
        <translation>--proposals potřebuje rámeček kolem jedné lodi: --boat X,Y,WIDTH,HEIGHT.</translation>
    </message>
    <message>
        <source>Follows a boat, gate or head through a film, as a table</source>
        <translation>Sleduje loď, branku nebo hlavu filmem, jako tabulka</translation>
    </message>
    <message>
        <source>Film to look at</source>
        <translation>Film k prohlédnutí</translation>
    </message>
    <message>
        <source>What is followed: X,Y,WIDTH,HEIGHT in pixels of the picture, from its upper left corner</source>
        <translation>Co se sleduje: X,Y,WIDTH,HEIGHT v pixelech obrazu, od jeho levého horního rohu</translation>
    </message>
    <message>
        <source>Second of the film at which the box was drawn</source>
        <translation>Sekunda filmu, v níž byl rámeček nakreslen</translation>
    </message>
    <message>
        <source>Second at which following ends; otherwise where it is lost, or the film ends</source>
        <translation>Sekunda, v níž sledování končí; jinak kde se ztratí, nebo kde film skončí</translation>
    </message>
    <message>
        <source>Known points on the water (.json), for metres and speeds</source>
        <translation>Známé body na vodě (.json), pro metry a rychlosti</translation>
    </message>
    <message>
        <source>File to write (.csv)</source>
        <translation>Soubor k zápisu (.csv)</translation>
    </message>
    <message>
        <source>In some frames the camera&apos;s motion is not known: too little of the picture stands still. They have no steadied place.</source>
        <translation>V některých snímcích není znám pohyb kamery: příliš málo obrazu stojí. Nemají ustálené místo.</translation>
    </message>
    <message>
        <source>Metres hold for what is on the water; a head is above it.</source>
        <translation>Metry platí pro to, co je na vodě; hlava je nad ní.</translation>
    </message>
    <message>
        <source>Two known points give a scale only: lengths and speeds hold near them and along the line between them.</source>
        <translation>Dva známé body dají jen měřítko: délky a rychlosti platí poblíž nich a podél čáry mezi nimi.</translation>
    </message>
    <message>
        <source>What was deleted on one side stays on the other: --delete deletes it there.</source>
        <translation>Co bylo smazáno na jedné straně, zůstává na druhé: --delete to smaže i tam.</translation>
    </message>
    <message>
        <source>The server wants a user name: --user tells it.</source>
        <translation>Server chce uživatelské jméno: udá ho --user.</translation>
    </message>
    <message numerus="yes">
        <source>{} columns</source>
        <translation>
            <numerusform>{} sloupec</numerusform>
            <numerusform>{} sloupce</numerusform>
            <numerusform>{} sloupců</numerusform>
        </translation>
    </message>
    <message>
        <source>Explain one number instead: loss/RUN/winner/5, gap/RUN/ideal, total/RUN, place/RUN, strokes/RUN/5, …</source>
        <translation>Místo toho vysvětlit jedno číslo: loss/RUN/winner/5, gap/RUN/ideal, total/RUN, place/RUN, strokes/RUN/5, …</translation>
    </message>
    <message>
        <source>The finished notes that name it.</source>
        <translation>Dokončené poznámky, které to uvádějí.</translation>
    </message>
    <message>
        <source>number of notes</source>
        <translation>počet poznámek</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>celé číslo</translation>
    </message>
    <message>
        <source>decimal</source>
        <translation>desetinné číslo</translation>
    </message>
    <message>
        <source>status</source>
        <translation>stav</translation>
    </message>
    <message>
        <source>date</source>
        <translation>datum</translation>
    </message>
    <message>
        <source>text</source>
        <translation>text</translation>
    </message>
    <message>
        <source>Add {}</source>
        <translation>přidání: {}</translation>
    </message>
    <message>
        <source>Colour {}</source>
        <translation>barvy: {}</translation>
    </message>
    <message>
        <source>First line is a row</source>
        <translation>první řádek jsou data</translation>
    </message>
    <message>
        <source>First line is titles</source>
        <translation>první řádek jsou nadpisy</translation>
    </message>
    <message>
        <source>Group by {}</source>
        <translation>seskupení podle: {}</translation>
    </message>
    <message>
        <source>Keep {} in {}</source>
        <translation>ponechání: {} ({})</translation>
    </message>
    <message>
        <source>Leave out {}</source>
        <translation>vynechání: {}</translation>
    </message>
    <message>
        <source>No colours in {}</source>
        <translation>bez barev: {}</translation>
    </message>
    <message>
        <source>No groups</source>
        <translation>bez skupin</translation>
    </message>
    <message>
        <source>Pivot of {} by {}</source>
        <translation>kontingenční tabulka: {} podle {}</translation>
    </message>
    <message>
        <source>Read {} as {}</source>
        <translation>čtení: {} jako {}</translation>
    </message>
    <message>
        <source>Sort by {}</source>
        <translation>řazení podle: {}</translation>
    </message>
    <message>
        <source>Sort by {}, downwards</source>
        <translation>řazení podle: {}, sestupně</translation>
    </message>
    <message>
        <source>Medals most often: {}, {} of {} ({:.0f}–{:.0f} %).</source>
        <translation>Nejčastěji medaile: {}, {} z {} ({:.0f}–{:.0f}&#xa0;%).</translation>
    </message>
    <message>
        <source>In finals most often: {}, {} of {} ({:.0f}–{:.0f} %).</source>
        <translation>Nejčastěji ve finále: {}, {} z {} ({:.0f}–{:.0f}&#xa0;%).</translation>
    </message>
    <message>
        <source>In semifinals most often: {}, {} of {} ({:.0f}–{:.0f} %).</source>
        <translation>Nejčastěji v semifinále: {}, {} z {} ({:.0f}–{:.0f}&#xa0;%).</translation>
    </message>
    <message>
        <source>No fastest split of {}&apos;s races is known.</source>
        <translation>{}: z těchto závodů není znám žádný nejlepší mezičas.</translation>
    </message>
    <message>
        <source>No winner of {}&apos;s races is known.</source>
        <translation>{}: z těchto závodů není znám žádný vítěz.</translation>
    </message>
    <message>
        <source>No penalty of a whole run is known by gate.</source>
        <translation>U žádné úplné jízdy není penalizace známa podle branek.</translation>
    </message>
    <message>
        <source>No race of the team has a result that says so.</source>
        <translation>Žádný závod týmu nemá výsledek, který by to řekl.</translation>
    </message>
    <message>
        <source>No whole run is known by gate.</source>
        <translation>Žádná úplná jízda není známa podle branek.</translation>
    </message>
    <message>
        <source>Nobody&apos;s penalties are known by gate.</source>
        <translation>U nikoho nejsou penalizace známy podle branek.</translation>
    </message>
    <message>
        <source>Noted in detail: {} of {}. Shares of what was noted, no rates: nobody notes how gates are passed clean.</source>
        <translation>Podrobně poznamenáno: {} z {}. Jsou to podíly z poznamenaného, ne četnosti: čisté průjezdy nikdo nezapisuje.</translation>
    </message>
    <message>
        <source>Noted in detail: {} of {}. Too few to tell.</source>
        <translation>Podrobně poznamenáno: {} z {}. Na závěr příliš málo.</translation>
    </message>
    <message>
        <source>Of {} who have both often enough, beyond doubt faster in the final: {}, slower: {}.</source>
        <translation>Obojí má dost často {}; nepochybně rychlejší ve finále: {}, pomalejší: {}.</translation>
    </message>
    <message>
        <source>Of {} who have both often enough, beyond doubt faster in the second run: {}, slower: {}.</source>
        <translation>Obojí má dost často {}; nepochybně rychlejší ve druhé jízdě: {}, pomalejší: {}.</translation>
    </message>
    <message>
        <source>Of {} {} cost places, none of them a medal.</source>
        <translation>{}: {} z nich stálo místa, žádná medaili.</translation>
    </message>
    <message>
        <source>Of {} {} cost places, {} of them a medal.</source>
        <translation>{}: {} z nich stálo místa, {} z nich medaili.</translation>
    </message>
    <message>
        <source>The fast touch less: {:.2f} touches a run in the faster third, {:.2f} in the slower.</source>
        <translation>Rychlí ťukají méně: {:.2f} ťuku na jízdu v rychlejší třetině, {:.2f} v pomalejší.</translation>
    </message>
    <message>
        <source>The fast touch more: {:.2f} touches a run in the faster third, {:.2f} in the slower.</source>
        <translation>Rychlí ťukají více: {:.2f} ťuku na jízdu v rychlejší třetině, {:.2f} v pomalejší.</translation>
    </message>
    <message>
        <source>Too few to tell fast from slow: {:.2f} touches a run in the faster third, {:.2f} in the slower.</source>
        <translation>Příliš málo na rozlišení rychlých a pomalých: {:.2f} ťuku na jízdu v rychlejší třetině, {:.2f} v pomalejší.</translation>
    </message>
    <message>
        <source>There is no penalty.</source>
        <translation>Není žádná penalizace.</translation>
    </message>
    <message>
        <source>Too few races with both to tell a change.</source>
        <translation>Příliš málo závodů s obojím na určení změny.</translation>
    </message>
    <message>
        <source>Without this missed gate: {}.</source>
        <translation>Bez této neprojeté branky: {} místo.</translation>
    </message>
    <message>
        <source>Without this touch: {}.</source>
        <translation>Bez tohoto ťuku: {} místo.</translation>
    </message>
    <message>
        <source>category</source>
        <translation>kategorie</translation>
    </message>
    <message>
        <source>crew</source>
        <translation>posádka</translation>
    </message>
    <message>
        <source>gate</source>
        <translation>branka</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>ruka</translation>
    </message>
    <message>
        <source>month</source>
        <translation>měsíc</translation>
    </message>
    <message>
        <source>phase</source>
        <translation>fáze</translation>
    </message>
    <message>
        <source>race</source>
        <translation>závod</translation>
    </message>
    <message>
        <source>section</source>
        <translation>úsek</translation>
    </message>
    <message>
        <source>tenth of the course</source>
        <translation>desetina trati</translation>
    </message>
    <message>
        <source>type of gate</source>
        <translation>druh branky</translation>
    </message>
    <message>
        <source>nobody came</source>
        <translation>nikdo nepřijel</translation>
    </message>
    <message>
        <source>those without one</source>
        <translation>ti bez udání</translation>
    </message>
    <message>
        <source>{:.2f} touches a run in {}, all in one third of the field.</source>
        <translation>Ťuků na jízdu {:.2f} ({}), vše v jedné třetině pole.</translation>
    </message>
    <message>
        <source>{} and {} more</source>
        <translation>{} a dalších {}</translation>
    </message>
    <message>
        <source>{} stand out: touched more than the {} that all have in common.</source>
        <translation>{} vyčnívají: ťuky častější než {}, které mají všechny společné.</translation>
    </message>
    <message>
        <source>{} stands out: touched more than the {} that all have in common.</source>
        <translation>{} vyčnívá: ťuky častější než {}, které mají všechny společné.</translation>
    </message>
    <message>
        <source>{}: too few runs to tell a trend behind the fastest splits.</source>
        <translation>{}: příliš málo jízd na trend za nejlepšími mezičasy.</translation>
    </message>
    <message>
        <source>{}: too few runs to tell a trend behind the winners.</source>
        <translation>{}: příliš málo jízd na trend za vítězi.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the fastest splits ({:+.1f} to {:+.1f}), {}.</source>
        <translation>{}: {:+.1f}&#xa0;% za rok za nejlepšími mezičasy ({:+.1f} až {:+.1f}), {}.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the fastest splits, {}.</source>
        <translation>{}: {:+.1f}&#xa0;% za rok za nejlepšími mezičasy, {}.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the winners ({:+.1f} to {:+.1f}), {}.</source>
        <translation>{}: {:+.1f}&#xa0;% za rok za vítězi ({:+.1f} až {:+.1f}), {}.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the winners, {}.</source>
        <translation>{}: {:+.1f}&#xa0;% za rok za vítězi, {}.</translation>
    </message>
    <message>
        <source>{}st</source>
        <translation>{}.</translation>
    </message>
    <message>
        <source>{}nd</source>
        <translation>{}.</translation>
    </message>
    <message>
        <source>{}rd</source>
        <translation>{}.</translation>
    </message>
    <message>
        <source>{}th</source>
        <translation>{}.</translation>
    </message>
    <message>
        <source>* the best of its column.</source>
        <translation>* nejlepší ve sloupci.</translation>
    </message>
    <message>
        <source>Against the winners</source>
        <translation>Proti vítězům</translation>
    </message>
    <message>
        <source>Against the winners, over {}. Losing: the whole interval is above 0.</source>
        <translation>Proti vítězům, {}. Ztráta: celý interval leží nad 0.</translation>
    </message>
    <message>
        <source>All runs</source>
        <translation>Všechny jízdy</translation>
    </message>
    <message>
        <source>Among the others</source>
        <translation>Mezi ostatními</translation>
    </message>
    <message>
        <source>Behind the winner</source>
        <translation>Za vítězem</translation>
    </message>
    <message>
        <source>Beside the winner</source>
        <translation>Vedle vítěze</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Posádka</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Den</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Videa</translation>
    </message>
    <message>
        <source>Gap to the ideal run from section to section: {}</source>
        <translation>Odstup od ideální jízdy úsek po úseku: {}</translation>
    </message>
    <message>
        <source>Gap to {} from section to section: {}</source>
        <translation>Odstup za {} úsek po úseku: {}</translation>
    </message>
    <message>
        <source>Gap to {}, in seconds: above the line is behind.</source>
        <translation>Odstup za {} v sekundách: nad čárou je ztráta.</translation>
    </message>
    <message>
        <source>This run won. Gap to the ideal run, the best of every section, in seconds.</source>
        <translation>Tato jízda vyhrála. Odstup od ideální jízdy, nejlepšího z každého úseku, v sekundách.</translation>
    </message>
    <message>
        <source>Gate not noted</source>
        <translation>Branka nepoznamenána</translation>
    </message>
    <message>
        <source>Gate {}</source>
        <translation>Branka {}</translation>
    </message>
    <message>
        <source>Most lost: {}.</source>
        <translation>Největší ztráty: {}.</translation>
    </message>
    <message>
        <source>Not ranked, time</source>
        <translation>Neklasifikováno, čas</translation>
    </message>
    <message>
        <source>Nothing stands out from these runs: no interval lies above 0 as a whole.</source>
        <translation>Z těchto jízd nic nevyčnívá: žádný interval neleží celý nad 0.</translation>
    </message>
    <message>
        <source>Of what</source>
        <translation>Čeho</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Ostatní</translation>
    </message>
    <message>
        <source>Penalties on the course</source>
        <translation>Penalizace na trati</translation>
    </message>
    <message>
        <source>Penalty seconds are in the times.</source>
        <translation>Trestné sekundy jsou v časech započteny.</translation>
    </message>
    <message>
        <source>Percent behind the winner by day, penalties included; the filled dot is the last run of each race.</source>
        <translation>Procenta za vítězem podle dnů, včetně penalizací; plný bod je poslední jízda každého závodu.</translation>
    </message>
    <message>
        <source>Percent behind the winner, run by run, {} to {}</source>
        <translation>Procenta za vítězem, jízda po jízdě, {} až {}</translation>
    </message>
    <message>
        <source>Run {}</source>
        <translation>Jízda {}</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Sezóna</translation>
    </message>
    <message>
        <source>Split table: {}</source>
        <translation>Tabulka mezičasů: {}</translation>
    </message>
    <message>
        <source>The name of a page ends in .html, and its films lie in the folder named the same without that.</source>
        <translation>Jméno stránky končí na .html a její videa leží ve složce stejného jména bez této přípony.</translation>
    </message>
    <message>
        <source>Time lost, as noted</source>
        <translation>Ztracený čas podle poznámek</translation>
    </message>
    <message>
        <source>Times from the start to each split.</source>
        <translation>Časy od startu ke každému mezičasu.</translation>
    </message>
    <message>
        <source>Times in seconds. Made with Kavela.</source>
        <translation>Časy v sekundách. Vytvořeno programem Kavela.</translation>
    </message>
    <message>
        <source>To winner</source>
        <translation>Na vítěze</translation>
    </message>
    <message>
        <source>at {} s of the run</source>
        <translation>v čase {} s jízdy</translation>
    </message>
    <message>
        <source>eyes: {}</source>
        <translation>pohled: {}</translation>
    </message>
    <message>
        <source>fastest</source>
        <translation>nejrychlejší</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>střední</translation>
    </message>
    <message>
        <source>slowest</source>
        <translation>nejpomalejší</translation>
    </message>
    <message>
        <source>upstream</source>
        <translation>protivodná</translation>
    </message>
    <message>
        <source>{} &lt;small&gt;of {}&lt;/small&gt;</source>
        <translation>{} &lt;small&gt;z {}&lt;/small&gt;</translation>
    </message>
    <message>
        <source>{} = paddling {}, penalties {}, official against video time {}.</source>
        <translation>{} = jízda {}, penalizace {}, oficiální čas proti času z videa {}.</translation>
    </message>
    <message>
        <source>{} = paddling {}, penalties {}.</source>
        <translation>{} = jízda {}, penalizace {}.</translation>
    </message>
    <message>
        <source>{} against {}</source>
        <translation>{} proti: {}</translation>
    </message>
    <message numerus="yes">
        <source>{} gates</source>
        <translation>
            <numerusform>{} branka</numerusform>
            <numerusform>{} branky</numerusform>
            <numerusform>{} branek</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} more runs are left out.</source>
        <translation>
            <numerusform>Vynechána je {} další jízda.</numerusform>
            <numerusform>Vynechány jsou {} další jízdy.</numerusform>
            <numerusform>Vynecháno je {} dalších jízd.</numerusform>
        </translation>
    </message>
    <message>
        <source>{} of the runs compared, column by column.</source>
        <translation>{} ze srovnávaných jízd, sloupec po sloupci.</translation>
    </message>
    <message>
        <source>{} to {}</source>
        <translation>{} až {}</translation>
    </message>
    <message>
        <source>{}, run {}</source>
        <translation>{}, jízda {}</translation>
    </message>
    <message>
        <source>{}, {} upstream</source>
        <translation>{}, z toho protivodných: {}</translation>
    </message>
    <message>
        <source>{}. The film lies beside this page: {}</source>
        <translation>{}. Video leží vedle této stránky: {}</translation>
    </message>
    <message>
        <source>{}: {} s a run</source>
        <translation>{}: {} s na jízdu</translation>
    </message>
    <message>
        <source>The film is not there.</source>
        <translation>Video zde není.</translation>
    </message>
    <message>
        <source>The marks of the run lie behind the end of the film.</source>
        <translation>Značky jízdy leží za koncem videa.</translation>
    </message>
    <message>
        <source>No run of &quot;{}&quot; is of the phase &quot;{}&quot;.</source>
        <translation>Žádná jízda, jejíž posádka je „{}“, nepatří do fáze „{}“.</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Nájezd</translation>
    </message>
    <message>
        <source>Downstream gate</source>
        <translation>Povodná branka</translation>
    </message>
    <message>
        <source>Upstream gate</source>
        <translation>Protivodná branka</translation>
    </message>
    <message>
        <source>Offset gate</source>
        <translation>Odskočená branka</translation>
    </message>
    <message>
        <source>Spin gate</source>
        <translation>Branka s otočkou</translation>
    </message>
    <message>
        <source>Single pole</source>
        <translation>Jedna tyč</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation>Ťuk</translation>
    </message>
    <message>
        <source>Missed gate</source>
        <translation>Neprojetá branka</translation>
    </message>
    <message>
        <source>Head outside the gate</source>
        <translation>Hlava mimo branku</translation>
    </message>
    <message>
        <source>Wrong direction</source>
        <translation>Špatný směr</translation>
    </message>
    <message>
        <source>Wrong order</source>
        <translation>Špatné pořadí</translation>
    </message>
    <message>
        <source>Pole pushed on purpose</source>
        <translation>Úmyslně odstrčená tyč</translation>
    </message>
    <message>
        <source>Upside down in the gate</source>
        <translation>Převrácený v brance</translation>
    </message>
    <message>
        <source>Inner pole</source>
        <translation>Vnitřní tyč</translation>
    </message>
    <message>
        <source>Outer pole</source>
        <translation>Vnější tyč</translation>
    </message>
    <message>
        <source>Both poles</source>
        <translation>Obě tyče</translation>
    </message>
    <message>
        <source>Left pole</source>
        <translation>Levá tyč</translation>
    </message>
    <message>
        <source>Right pole</source>
        <translation>Pravá tyč</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Loď</translation>
    </message>
    <message>
        <source>Blade</source>
        <translation>List pádla</translation>
    </message>
    <message>
        <source>Body</source>
        <translation>Tělo</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>Hlava</translation>
    </message>
    <message>
        <source>Bow</source>
        <translation>Špička</translation>
    </message>
    <message>
        <source>Stern</source>
        <translation>Záď</translation>
    </message>
    <message>
        <source>Shaft</source>
        <translation>Žerď pádla</translation>
    </message>
    <message>
        <source>Arm</source>
        <translation>Paže</translation>
    </message>
    <message>
        <source>Washed past the gate</source>
        <translation>Odnesen kolem branky</translation>
    </message>
    <message>
        <source>Left out on purpose</source>
        <translation>Úmyslně vynecháno</translation>
    </message>
    <message>
        <source>Entering</source>
        <translation>Při nájezdu</translation>
    </message>
    <message>
        <source>In the gate</source>
        <translation>V brance</translation>
    </message>
    <message>
        <source>Leaving</source>
        <translation>Při výjezdu</translation>
    </message>
    <message>
        <source>Before the gate</source>
        <translation>Před brankou</translation>
    </message>
    <message>
        <source>After the gate</source>
        <translation>Za brankou</translation>
    </message>
    <message>
        <source>Forwards</source>
        <translation>Dopředu</translation>
    </message>
    <message>
        <source>Backwards</source>
        <translation>Dozadu</translation>
    </message>
    <message>
        <source>Sideways</source>
        <translation>Bokem</translation>
    </message>
    <message>
        <source>Turning left</source>
        <translation>Zatáčí vlevo</translation>
    </message>
    <message>
        <source>Turning right</source>
        <translation>Zatáčí vpravo</translation>
    </message>
    <message>
        <source>Drifting left</source>
        <translation>Sjíždí vlevo</translation>
    </message>
    <message>
        <source>Drifting right</source>
        <translation>Sjíždí vpravo</translation>
    </message>
    <message>
        <source>Direct line</source>
        <translation>Přímá stopa</translation>
    </message>
    <message>
        <source>Spin</source>
        <translation>Otočka</translation>
    </message>
    <message>
        <source>Duffek (bow draw)</source>
        <translation>Duffek (závěs)</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Oblouk</translation>
    </message>
    <message>
        <source>Stern pivot</source>
        <translation>Otočka po zádi</translation>
    </message>
    <message>
        <source>Punt</source>
        <translation>Odpich</translation>
    </message>
    <message>
        <source>Flat turn</source>
        <translation>Plochý obrat</translation>
    </message>
    <message>
        <source>Ferry</source>
        <translation>Traverz</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Zpětný záběr</translation>
    </message>
    <message>
        <source>Surf</source>
        <translation>Surf</translation>
    </message>
    <message>
        <source>At the gate</source>
        <translation>Na branku</translation>
    </message>
    <message>
        <source>At the next gate</source>
        <translation>Na další branku</translation>
    </message>
    <message>
        <source>At the pole</source>
        <translation>Na tyč</translation>
    </message>
    <message>
        <source>At the water</source>
        <translation>Na vodu</translation>
    </message>
    <message>
        <source>At the blade</source>
        <translation>Na list pádla</translation>
    </message>
    <message>
        <source>At the bow</source>
        <translation>Na špičku</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>Jinam</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vlevo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Vpravo</translation>
    </message>
    <message>
        <source>Cross-bow draw</source>
        <translation>Přehmat</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Přitažení</translation>
    </message>
    <message>
        <source>Stern rudder</source>
        <translation>Kormidlo vzadu</translation>
    </message>
    <message>
        <source>Brace</source>
        <translation>Opora</translation>
    </message>
    <message>
        <source>Cross-bow</source>
        <translation>Přehmat</translation>
    </message>
    <message>
        <source>Single gate</source>
        <translation>Jednotlivá branka</translation>
    </message>
    <message>
        <source>Offset (stagger)</source>
        <translation>Odskočené branky</translation>
    </message>
    <message>
        <source>S-turn</source>
        <translation>Esíčko</translation>
    </message>
    <message>
        <source>Cross (ferry)</source>
        <translation>Přejezd (traverz)</translation>
    </message>
    <message>
        <source>Upstream</source>
        <translation>Protivodná</translation>
    </message>
    <message>
        <source>Upstream sprint</source>
        <translation>Sprint proti vodě</translation>
    </message>
    <message>
        <source>Merano</source>
        <translation>Merano</translation>
    </message>
    <message>
        <source>Downstream to upstream</source>
        <translation>Z povodné do protivodné</translation>
    </message>
    <message>
        <source>Upstream to downstream</source>
        <translation>Z protivodné do povodné</translation>
    </message>
    <message>
        <source>Upstream to upstream</source>
        <translation>Z protivodné do protivodné</translation>
    </message>
    <message>
        <source>Straight gates</source>
        <translation>Přímé branky</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Finish sprint</source>
        <translation>Sprint do cíle</translation>
    </message>
    <message>
        <source>Approach</source>
        <translation>Příjezd</translation>
    </message>
    <message>
        <source>Between the gates</source>
        <translation>Mezi brankami</translation>
    </message>
    <message>
        <source>Whole</source>
        <translation>Celé</translation>
    </message>
    <message>
        <source>Flat water</source>
        <translation>Klidná voda</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Vlna</translation>
    </message>
    <message>
        <source>Stopper (hole)</source>
        <translation>Válec</translation>
    </message>
    <message>
        <source>Eddy</source>
        <translation>Vracák</translation>
    </message>
    <message>
        <source>Eddy line</source>
        <translation>Rozhraní vracáku</translation>
    </message>
    <message>
        <source>Pourover</source>
        <translation>Přelitý kámen</translation>
    </message>
    <message>
        <source>Curtain</source>
        <translation>Clona</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Stupeň</translation>
    </message>
    <message>
        <source>Boil</source>
        <translation>Výron</translation>
    </message>
    <message>
        <source>Cushion</source>
        <translation>Polštář</translation>
    </message>
    <message>
        <source>Wave train</source>
        <translation>Vlnobití</translation>
    </message>
    <message>
        <source>Fast water</source>
        <translation>Rychlá voda</translation>
    </message>
    <message>
        <source>Sweep roll</source>
        <translation>Eskymák obloukem</translation>
    </message>
    <message>
        <source>C-to-C roll</source>
        <translation>Eskymák C-C</translation>
    </message>
    <message>
        <source>Hand roll</source>
        <translation>Ruční eskymák</translation>
    </message>
    <message numerus="yes">
        <source>{} runs left out: penalties not known by gate</source>
        <translation>
            <numerusform>{} jízda vynechána: penalizace neznámé podle branek</numerusform>
            <numerusform>{} jízdy vynechány: penalizace neznámé podle branek</numerusform>
            <numerusform>{} jízd vynecháno: penalizace neznámé podle branek</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} runs are left out: their penalties are not known by gate.</source>
        <translation>
            <numerusform>Vynechána je {} jízda: její penalizace nejsou známy podle branek.</numerusform>
            <numerusform>Vynechány jsou {} jízdy: jejich penalizace nejsou známy podle branek.</numerusform>
            <numerusform>Vynecháno je {} jízd: jejich penalizace nejsou známy podle branek.</numerusform>
        </translation>
    </message>
    <message>
        <source>(not given)</source>
        <translation>(neuvedeno)</translation>
    </message>
    <message>
        <source>* touched more than that with 95 % certainty and more</source>
        <translation>* častější ťuky s jistotou 95&#xa0;% a více</translation>
    </message>
    <message>
        <source>A missed gate also saved paddling, which is not taken back here.</source>
        <translation>Neprojetá branka také ušetřila čas jízdy, který se zde nevrací.</translation>
    </message>
    <message>
        <source>Gained</source>
        <translation>Získáno</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Ztraceno</translation>
    </message>
    <message>
        <source>Missed/run</source>
        <translation>Neproj./j.</translation>
    </message>
    <message>
        <source>Ranked</source>
        <translation>Řazeno</translation>
    </message>
    <message>
        <source>Rate %</source>
        <translation>Podíl %</translation>
    </message>
    <message>
        <source>Risk and speed</source>
        <translation>Riziko/rychlost</translation>
    </message>
    <message>
        <source>Touches/run</source>
        <translation>Ťuky/jízda</translation>
    </message>
    <message>
        <source>Ways: chosen against the fastest timed</source>
        <translation>Varianty: zvolená proti nejrychlejší změřené</translation>
    </message>
    <message>
        <source>between {}</source>
        <translation>mezi tím {}</translation>
    </message>
    <message>
        <source>fastest third</source>
        <translation>rychlá třetina</translation>
    </message>
    <message>
        <source>middle third</source>
        <translation>střední třetina</translation>
    </message>
    <message>
        <source>slowest third</source>
        <translation>pomalá třetina</translation>
    </message>
    <message>
        <source>in no stretch</source>
        <translation>v žádném úseku</translation>
    </message>
    <message>
        <source>not finished: {}</source>
        <translation>nedokončeno: {}</translation>
    </message>
    <message>
        <source>on run {}</source>
        <translation>proti jízdě {}</translation>
    </message>
    <message>
        <source>on the fastest</source>
        <translation>proti nejrychlejšímu</translation>
    </message>
    <message>
        <source>on the finalists&apos; median</source>
        <translation>proti mediánu finalistů</translation>
    </message>
    <message>
        <source>on the ideal run</source>
        <translation>proti ideální jízdě</translation>
    </message>
    <message>
        <source>on the own fastest other run</source>
        <translation>proti nejrychlejší jiné vlastní jízdě</translation>
    </message>
    <message>
        <source>on the winner</source>
        <translation>proti vítězi</translation>
    </message>
    <message>
        <source>penalties {}</source>
        <translation>penalizace {}</translation>
    </message>
    <message>
        <source>timing {}</source>
        <translation>měření {}</translation>
    </message>
    <message>
        <source>touch</source>
        <translation>ťuk</translation>
    </message>
    <message numerus="yes">
        <source>{} penalties cost no place</source>
        <translation>
            <numerusform>{} penalizace nestála místo</numerusform>
            <numerusform>{} penalizace nestály místo</numerusform>
            <numerusform>{} penalizací nestálo místo</numerusform>
        </translation>
    </message>
    <message>
        <source>{}: there is none</source>
        <translation>{}: není</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no gate number.</source>
        <translation>„{}“ není číslo branky.</translation>
    </message>
    <message>
        <source>A section up to here was not timed, so this is not the time from the start.</source>
        <translation>Některý úsek až sem nebyl změřen, proto to není čas od startu.</translation>
    </message>
    <message>
        <source>A time must be above 0. Check the marks of this run.</source>
        <translation>Čas musí být větší než 0. Zkontrolujte značky této jízdy.</translation>
    </message>
    <message>
        <source>A time of the session is negative or no number.</source>
        <translation>Některý čas jednotky je záporný nebo není číslo.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>From {:.1f} s to {:.1f} s of the run nothing is recorded.</source>
        <translation>Od {:.1f} s do {:.1f} s jízdy není nic zaznamenáno.</translation>
    </message>
    <message>
        <source>Gate {} has this penalty already.</source>
        <translation>Branka {} už tuto penalizaci má.</translation>
    </message>
    <message>
        <source>Gate {} is missing before gate {} in section {}.</source>
        <translation>Branka {} chybí před brankou {} v úseku {}.</translation>
    </message>
    <message>
        <source>Gate {} is not on a course of {}.</source>
        <translation>Branka {} není na trati ({}).</translation>
    </message>
    <message>
        <source>Gate {} stands a second time or out of order in section {}.</source>
        <translation>Branka {} je podruhé nebo mimo pořadí v úseku {}.</translation>
    </message>
    <message>
        <source>Gate {} stands in no section.</source>
        <translation>Branka {} není v žádném úseku.</translation>
    </message>
    <message>
        <source>Gate {} stands there twice.</source>
        <translation>Branka {} je tam dvakrát.</translation>
    </message>
    <message>
        <source>Get ready</source>
        <translation>Připravte se</translation>
    </message>
    <message>
        <source>It was deleted here and changed there: it is brought again.</source>
        <translation>Zde smazáno a tam změněno: stáhne se znovu.</translation>
    </message>
    <message>
        <source>It was deleted there and changed here: it is put there again.</source>
        <translation>Tam smazáno a zde změněno: odešle se tam znovu.</translation>
    </message>
    <message>
        <source>Line {}, {}: there is no run of this crew.</source>
        <translation>Řádek {}, {}: tato posádka nemá žádnou jízdu.</translation>
    </message>
    <message>
        <source>No motion of the boat is attached to this run.</source>
        <translation>K této jízdě není připojen žádný pohyb lodi.</translation>
    </message>
    <message>
        <source>No run waiting</source>
        <translation>Žádná jízda nečeká</translation>
    </message>
    <message>
        <source>No time was taken here.</source>
        <translation>Zde nebyl změřen žádný čas.</translation>
    </message>
    <message>
        <source>Of the first {:.1f} s of the run nothing is recorded.</source>
        <translation>Z prvních {:.1f} s jízdy není nic zaznamenáno.</translation>
    </message>
    <message>
        <source>Of the last {:.1f} s of the run nothing is recorded.</source>
        <translation>Z posledních {:.1f} s jízdy není nic zaznamenáno.</translation>
    </message>
    <message>
        <source>Rest</source>
        <translation>Odpočinek</translation>
    </message>
    <message>
        <source>Rest between sets</source>
        <translation>Odpočinek mezi sériemi</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Práce</translation>
    </message>
    <message>
        <source>Somebody changed it on the server meanwhile.</source>
        <translation>Mezitím to na serveru někdo změnil.</translation>
    </message>
    <message>
        <source>Somebody has locked it on the server.</source>
        <translation>Někdo to na serveru zamkl.</translation>
    </message>
    <message>
        <source>Start and end of the stretch are not both marked in the run of {}.</source>
        <translation>Začátek a konec části nejsou oba označeny v jízdě ({}).</translation>
    </message>
    <message>
        <source>Start and end of the stretch are not both marked in this run.</source>
        <translation>Začátek a konec části nejsou v této jízdě oba označeny.</translation>
    </message>
    <message>
        <source>The end of the stretch is not marked after its start in the run of {}.</source>
        <translation>Konec části není označen za jejím začátkem v jízdě ({}).</translation>
    </message>
    <message>
        <source>The end of the stretch is not marked after its start in this run.</source>
        <translation>Konec části není v této jízdě označen za jejím začátkem.</translation>
    </message>
    <message>
        <source>The answer of the server is longer than it can be.</source>
        <translation>Odpověď serveru je delší, než může být.</translation>
    </message>
    <message>
        <source>The attached motion is not as long as the run, so that its moments cannot be told.</source>
        <translation>Připojený pohyb není stejně dlouhý jako jízda, takže jeho okamžiky nelze určit.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted, so that nothing was sent. It was issued by “{}”: {}.</source>
        <translation>Certifikátu serveru se nedá věřit, proto nebylo nic odesláno. Vydal ho „{}“: {}.</translation>
    </message>
    <message>
        <source>The connection broke off.</source>
        <translation>Spojení se přerušilo.</translation>
    </message>
    <message>
        <source>The exit is marked before the entrance.</source>
        <translation>Výjezd je označen před nájezdem.</translation>
    </message>
    <message>
        <source>The exit is marked before the middle.</source>
        <translation>Výjezd je označen před středem.</translation>
    </message>
    <message>
        <source>The middle is marked before the entrance.</source>
        <translation>Střed je označen před nájezdem.</translation>
    </message>
    <message>
        <source>The film lies on {}, which is not ticked.</source>
        <translation>Video leží na {}, což není zaškrtnuto.</translation>
    </message>
    <message>
        <source>The folder above is not there on the server.</source>
        <translation>Nadřazená složka na serveru není.</translation>
    </message>
    <message>
        <source>The number of sections is {}, but that of splits is {}.</source>
        <translation>Počet úseků je {}, ale mezičasů je {}.</translation>
    </message>
    <message>
        <source>The recording does not reach into this run.</source>
        <translation>Záznam do této jízdy nezasahuje.</translation>
    </message>
    <message>
        <source>The recording has {} further holes in this run.</source>
        <translation>Záznam má v této jízdě další mezery: {}.</translation>
    </message>
    <message>
        <source>The run has no times that the recording could be laid on.</source>
        <translation>Jízda nemá časy, ke kterým by se záznam dal přiložit.</translation>
    </message>
    <message>
        <source>The section before was not timed, so this time covers both.</source>
        <translation>Předchozí úsek nebyl změřen, proto tento čas zahrnuje oba.</translation>
    </message>
    <message>
        <source>The server answered with status {}.</source>
        <translation>Server odpověděl stavem {}.</translation>
    </message>
    <message>
        <source>The server cannot be reached safely.</source>
        <translation>Server není bezpečně dostupný.</translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation>Server není dostupný.</translation>
    </message>
    <message>
        <source>The server does not accept the user name or the password.</source>
        <translation>Server nepřijímá uživatelské jméno nebo heslo.</translation>
    </message>
    <message>
        <source>The server does not allow this, or not to this user.</source>
        <translation>Server to nedovoluje, nebo ne tomuto uživateli.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Server neodpovídá.</translation>
    </message>
    <message>
        <source>The server fell silent.</source>
        <translation>Server se odmlčel.</translation>
    </message>
    <message>
        <source>The server has no such file or folder.</source>
        <translation>Server takový soubor ani složku nemá.</translation>
    </message>
    <message>
        <source>The server is full, or your share of it.</source>
        <translation>Server je plný, nebo je plný váš podíl.</translation>
    </message>
    <message>
        <source>The server leads to another one, {}, which is not followed.</source>
        <translation>Server odkazuje na jiný, {}, na který se nepřechází.</translation>
    </message>
    <message>
        <source>The server takes no file of this size.</source>
        <translation>Server soubor této velikosti nepřijme.</translation>
    </message>
    <message>
        <source>The server was not found. Is the computer online?</source>
        <translation>Server nebyl nalezen. Je počítač připojen?</translation>
    </message>
    <message>
        <source>The session has more sets or repetitions than can be timed.</source>
        <translation>Jednotka má víc sérií nebo opakování, než lze měřit.</translation>
    </message>
    <message>
        <source>The session needs a work time.</source>
        <translation>Jednotka potřebuje čas práce.</translation>
    </message>
    <message>
        <source>The session needs at least one set and one repetition.</source>
        <translation>Jednotka potřebuje aspoň jednu sérii a jedno opakování.</translation>
    </message>
    <message>
        <source>The session takes longer than a day.</source>
        <translation>Jednotka trvá déle než den.</translation>
    </message>
    <message>
        <source>This frame lies after {} at {}.</source>
        <translation>Tento snímek leží za: {} v čase {}.</translation>
    </message>
    <message>
        <source>This frame lies before {} at {}.</source>
        <translation>Tento snímek leží před: {} v čase {}.</translation>
    </message>
    <message>
        <source>This run was not timed to the end, so this is not the time of the whole course.</source>
        <translation>Tato jízda nebyla změřena do konce, proto to není čas celé trati.</translation>
    </message>
    <message>
        <source>Where they differ, both stay.</source>
        <translation>Kde se liší, zůstanou oba.</translation>
    </message>
    <message>
        <source>a byte is no UTF-8 text</source>
        <translation>bajt není text UTF-8</translation>
    </message>
    <message>
        <source>a colon is due</source>
        <translation>chybí dvojtečka</translation>
    </message>
    <message>
        <source>a comma or ] is due</source>
        <translation>chybí čárka nebo ]</translation>
    </message>
    <message>
        <source>a comma or } is due</source>
        <translation>chybí čárka nebo }</translation>
    </message>
    <message>
        <source>a digit is due</source>
        <translation>chybí číslice</translation>
    </message>
    <message>
        <source>a key is due</source>
        <translation>chybí klíč</translation>
    </message>
    <message>
        <source>a micro split</source>
        <translation>mikromezičas</translation>
    </message>
    <message>
        <source>a number is out of range</source>
        <translation>číslo je mimo rozsah</translation>
    </message>
    <message>
        <source>a stroke of this hand</source>
        <translation>záběr této ruky</translation>
    </message>
    <message>
        <source>a text holds a control character</source>
        <translation>text obsahuje řídicí znak</translation>
    </message>
    <message>
        <source>a text holds a malformed escape</source>
        <translation>text obsahuje chybnou escape sekvenci</translation>
    </message>
    <message>
        <source>a value is due</source>
        <translation>chybí hodnota</translation>
    </message>
    <message>
        <source>an unknown issuer</source>
        <translation>neznámý vydavatel</translation>
    </message>
    <message>
        <source>bib</source>
        <translation>startovní číslo</translation>
    </message>
    <message>
        <source>five</source>
        <translation>pět</translation>
    </message>
    <message>
        <source>six</source>
        <translation>šest</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>chybí oprávnění</translation>
    </message>
    <message>
        <source>not JSON, byte {}: {}</source>
        <translation>není JSON, bajt {}: {}</translation>
    </message>
    <message>
        <source>not JSON, or cut off</source>
        <translation>není JSON, nebo je useknutý</translation>
    </message>
    <message>
        <source>not JSON: a number is malformed or out of range</source>
        <translation>není JSON: číslo je chybné nebo mimo rozsah</translation>
    </message>
    <message>
        <source>not JSON: a text holds a control character</source>
        <translation>není JSON: text obsahuje řídicí znak</translation>
    </message>
    <message>
        <source>not JSON: a text holds a malformed escape</source>
        <translation>není JSON: text obsahuje chybnou escape sekvenci</translation>
    </message>
    <message>
        <source>not JSON: a text is not closed (the file may be cut off)</source>
        <translation>není JSON: text není uzavřen (soubor je možná useknutý)</translation>
    </message>
    <message>
        <source>position</source>
        <translation>pozice</translation>
    </message>
    <message>
        <source>something stands behind the document</source>
        <translation>za dokumentem ještě něco je</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>disk je jen pro čtení</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>disk je plný</translation>
    </message>
    <message>
        <source>the document is nested too deeply</source>
        <translation>dokument je příliš vnořený</translation>
    </message>
    <message>
        <source>the document is too large for the memory</source>
        <translation>dokument je pro paměť příliš velký</translation>
    </message>
    <message>
        <source>the end of the stretch</source>
        <translation>konec části</translation>
    </message>
    <message>
        <source>the file became shorter while it was read</source>
        <translation>soubor se během čtení zkrátil</translation>
    </message>
    <message>
        <source>the file holds nothing but blanks</source>
        <translation>soubor obsahuje jen mezery</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>soubor je prázdný</translation>
    </message>
    <message>
        <source>the file is no text; save the list as text (CSV) first</source>
        <translation>soubor není text; uložte seznam nejdřív jako text (CSV)</translation>
    </message>
    <message>
        <source>the file is not UTF-8 text</source>
        <translation>soubor není text UTF-8</translation>
    </message>
    <message>
        <source>the file is too large for a document (over 4 GB)</source>
        <translation>soubor je pro dokument příliš velký (přes 4 GB)</translation>
    </message>
    <message>
        <source>the file is too large for a list (over 64 MB)</source>
        <translation>soubor je pro seznam příliš velký (přes 64 MB)</translation>
    </message>
    <message>
        <source>the penalty {} is below 0</source>
        <translation>penalizace {} je menší než 0</translation>
    </message>
    <message>
        <source>the penalty {} is over {}</source>
        <translation>penalizace {} je větší než {}</translation>
    </message>
    <message>
        <source>the position {} is below 0</source>
        <translation>pozice {} je menší než 0</translation>
    </message>
    <message>
        <source>the start</source>
        <translation>start</translation>
    </message>
    <message>
        <source>the start of the stretch</source>
        <translation>začátek části</translation>
    </message>
    <message>
        <source>the tag {}</source>
        <translation>štítek {}</translation>
    </message>
    <message>
        <source>the text ends too early (the file may be cut off)</source>
        <translation>text končí příliš brzy (soubor je možná useknutý)</translation>
    </message>
    <message>
        <source>the text is not valid UTF-8</source>
        <translation>text není platné UTF-8</translation>
    </message>
    <message>
        <source>the time {} is an hour or more</source>
        <translation>čas {} je hodina nebo víc</translation>
    </message>
    <message>
        <source>the time {} is below 0</source>
        <translation>čas {} je menší než 0</translation>
    </message>
    <message>
        <source>the {} &quot;{}&quot; is no number of seconds</source>
        <translation>{} „{}“: není počet sekund</translation>
    </message>
    <message>
        <source>the {} &quot;{}&quot; is no whole number</source>
        <translation>{} „{}“: není celé číslo</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>takový soubor není</translation>
    </message>
    <message>
        <source>this is a folder, not a file</source>
        <translation>to je složka, ne soubor</translation>
    </message>
    <message>
        <source>this is no JSON object: it does not begin with {</source>
        <translation>to není objekt JSON: nezačíná znakem {</translation>
    </message>
    <message>
        <source>this is not an ordinary file</source>
        <translation>to není obyčejný soubor</translation>
    </message>
    <message>
        <source>this moment</source>
        <translation>tento okamžik</translation>
    </message>
    <message>
        <source>too many symbolic links</source>
        <translation>příliš mnoho symbolických odkazů</translation>
    </message>
    <message>
        <source>{0}: has the time of {1} (bibs {2} and {3}), and {1} has this one&apos;s. Exchange the two crews?</source>
        <translation>{0}: má čas, který patří: {1} (startovní čísla {2} a {3}), a naopak ({1}). Vyměnit obě posádky?</translation>
    </message>
    <message>
        <source>{0}: has the time of {1}, and {1} has this one&apos;s. Exchange the two crews?</source>
        <translation>{0}: má čas, který patří: {1}, a naopak ({1}). Vyměnit obě posádky?</translation>
    </message>
    <message>
        <source>{0}: the list says {1}, ours is {2}. Take {1} over?</source>
        <translation>{0}: seznam říká {1}, náš čas je {2}. Převzít {1}?</translation>
    </message>
    <message numerus="yes">
        <source>{} fields</source>
        <translation>
            <numerusform>{} pole</numerusform>
            <numerusform>{} pole</numerusform>
            <numerusform>{} polí</numerusform>
        </translation>
    </message>
    <message>
        <source>{} is marked on this frame already.</source>
        <translation>{}: na tomto snímku už je označeno.</translation>
    </message>
    <message numerus="yes">
        <source>{} runs waiting</source>
        <translation>
            <numerusform>{} jízda čeká</numerusform>
            <numerusform>{} jízdy čekají</numerusform>
            <numerusform>{} jízd čeká</numerusform>
        </translation>
    </message>
    <message>
        <source>{} where {} are needed</source>
        <translation>{}, kde je potřeba {}</translation>
    </message>
    <message>
        <source>{}, the next starts in {}</source>
        <translation>{}, další startuje za {}</translation>
    </message>
    <message>
        <source>{}: is not in the list.</source>
        <translation>{}: není v seznamu.</translation>
    </message>
    <message>
        <source>{}: the list has {} s of penalties, ours has {} s. Take the official result over?</source>
        <translation>{}: seznam má {} s penalizace, náš {} s. Převzít oficiální výsledek?</translation>
    </message>
    <message>
        <source>{}: the list has {}, the film no time to the end. Take the official time over?</source>
        <translation>{}: seznam má {}, video žádný čas do konce. Převzít oficiální čas?</translation>
    </message>
    <message>
        <source>{}: the list has {}, the film {}, {} s apart. Take the official time over?</source>
        <translation>{}: seznam má {}, video {}, rozdíl {} s. Převzít oficiální čas?</translation>
    </message>
    <message>
        <source>{}: the list says {}, ours is {}.</source>
        <translation>{}: seznam říká {}, náš čas je {}.</translation>
    </message>
    <message>
        <source>A difference needs two columns, as in difference:Run 2,Run 1.</source>
        <translation>Rozdíl potřebuje dva sloupce, jako v difference:Run 2,Run 1.</translation>
    </message>
    <message>
        <source>A text has no sheet &quot;{}&quot;.</source>
        <translation>Text nemá list „{}“.</translation>
    </message>
    <message>
        <source>A {} is of one column, not of {}.</source>
        <translation>{}: z jednoho sloupce, ne z {}.</translation>
    </message>
    <message>
        <source>A {} is of two columns, not of {}.</source>
        <translation>{}: ze dvou sloupců, ne z {}.</translation>
    </message>
    <message>
        <source>No column holds times; name the one to reckon with.</source>
        <translation>Žádný sloupec neobsahuje časy; uveďte, se kterým počítat.</translation>
    </message>
    <message>
        <source>No column holds times; name those to add, as in total:Time,Pen.</source>
        <translation>Žádný sloupec neobsahuje časy; uveďte, které sečíst, jako v total:Time,Pen.</translation>
    </message>
    <message>
        <source>No list is open.</source>
        <translation>Není otevřen žádný seznam.</translation>
    </message>
    <message>
        <source>Not drawn: %1</source>
        <translation>Nenakresleno: %1</translation>
    </message>
    <message>
        <source>Sections recorded in part: {}.</source>
        <translation>Částečně zaznamenané úseky: {}.</translation>
    </message>
    <message>
        <source>Sections without strokes: {}.</source>
        <translation>Úseky bez záběrů: {}.</translation>
    </message>
    <message>
        <source>The column &quot;{}&quot; has no numbers to reckon with: it is {}.</source>
        <translation>Sloupec „{}“ nemá čísla k počítání: {}.</translation>
    </message>
    <message>
        <source>The column &quot;{}&quot; has {} values: too many for columns of a pivot.</source>
        <translation>Sloupec „{}“ má hodnot {}: na sloupce kontingenční tabulky je to příliš.</translation>
    </message>
    <message>
        <source>The file is packed, but holds no spreadsheet (.xlsx or .ods).</source>
        <translation>Soubor je zabalený, ale neobsahuje tabulku (.xlsx ani .ods).</translation>
    </message>
    <message>
        <source>The list needs a column with the title Name, Athlete or Crew.</source>
        <translation>Seznam potřebuje sloupec s nadpisem Name, Athlete nebo Crew.</translation>
    </message>
    <message>
        <source>The list needs a column with the title Time, or Total and Penalty.</source>
        <translation>Seznam potřebuje sloupec s nadpisem Time, nebo Total a Penalty.</translation>
    </message>
    <message>
        <source>The picture has {} MB. Up to 40 MB can be read; save it smaller first.</source>
        <translation>Obrázek má {} MB. Přečíst lze nejvýše 40 MB; uložte ho nejdřív menší.</translation>
    </message>
    <message>
        <source>The picture is far too long for a course.</source>
        <translation>Obrázek je na trať příliš protáhlý.</translation>
    </message>
    <message>
        <source>The race carries no results list. Open the list itself; &quot;Keep with the race&quot; puts it there.</source>
        <translation>Závod nenese žádnou výsledkovou listinu. Otevřete přímo listinu; „Uchovat u závodu“ ji tam uloží.</translation>
    </message>
    <message>
        <source>The report could not be painted.</source>
        <translation>Zprávu se nepodařilo vykreslit.</translation>
    </message>
    <message>
        <source>The sheet &quot;{}&quot; has merged cells: their value stands in each of their lines.</source>
        <translation>List „{}“ má sloučené buňky: jejich hodnota je v každém jejich řádku.</translation>
    </message>
    <message>
        <source>The spreadsheet is damaged: its part {} cannot be read.</source>
        <translation>Tabulka je poškozená: její část {} nelze přečíst.</translation>
    </message>
    <message>
        <source>The spreadsheet is damaged: its part {} cannot be unpacked.</source>
        <translation>Tabulka je poškozená: její část {} nelze rozbalit.</translation>
    </message>
    <message>
        <source>The spreadsheet is damaged: {}.</source>
        <translation>Tabulka je poškozená: {}.</translation>
    </message>
    <message>
        <source>The spreadsheet is protected by a password. Save it without one and open it again.</source>
        <translation>Tabulka je chráněna heslem. Uložte ji bez něj a otevřete znovu.</translation>
    </message>
    <message>
        <source>The spreadsheet is too large: unpacked it is over 128 MB.</source>
        <translation>Tabulka je příliš velká: rozbalená má přes 128 MB.</translation>
    </message>
    <message>
        <source>The text is no UTF-8 and was read as Latin-1; look at the letters with accents.</source>
        <translation>Text není UTF-8 a byl přečten jako Latin-1; zkontrolujte písmena s diakritikou.</translation>
    </message>
    <message>
        <source>There are several sheets; choose one of {}.</source>
        <translation>Listů je několik; vyberte jeden z {}.</translation>
    </message>
    <message>
        <source>There is no column &quot;{}&quot;; there is none.</source>
        <translation>Sloupec „{}“ není; není žádný.</translation>
    </message>
    <message>
        <source>There is no column &quot;{}&quot;; there is {}.</source>
        <translation>Sloupec „{}“ není; je tu {}.</translation>
    </message>
    <message>
        <source>There is no sheet &quot;{}&quot;; there is {}.</source>
        <translation>List „{}“ není; je tu {}.</translation>
    </message>
    <message>
        <source>There is nothing in it.</source>
        <translation>Nic v něm není.</translation>
    </message>
    <message>
        <source>This is a PDF, which has no columns to read; open it in a viewer.</source>
        <translation>To je PDF, které nemá sloupce ke čtení; otevřete ho v prohlížeči.</translation>
    </message>
    <message>
        <source>This is a spreadsheet with a password or of the old kind (.xls). Save it without a password as .xlsx, .ods or text (CSV).</source>
        <translation>To je tabulka s heslem nebo starého druhu (.xls). Uložte ji bez hesla jako .xlsx, .ods nebo text (CSV).</translation>
    </message>
    <message>
        <source>This is neither text nor a spreadsheet (.xlsx, .ods).</source>
        <translation>To není text ani tabulka (.xlsx, .ods).</translation>
    </message>
    <message>
        <source>This is no picture that can be read. Take a PNG or JPEG file.</source>
        <translation>To není čitelný obrázek. Použijte soubor PNG nebo JPEG.</translation>
    </message>
    <message>
        <source>a time or a penalty is below 0</source>
        <translation>čas nebo penalizace je menší než 0</translation>
    </message>
    <message>
        <source>gate %1: %2</source>
        <translation>branka %1: %2</translation>
    </message>
    <message>
        <source>is not in the team</source>
        <translation>není v týmu</translation>
    </message>
    <message>
        <source>it could not be read</source>
        <translation>nelze přečíst</translation>
    </message>
    <message>
        <source>missed gate</source>
        <translation>neprojetá branka</translation>
    </message>
    <message>
        <source>no category of the team is called &quot;{}&quot;</source>
        <translation>žádná kategorie týmu se nejmenuje „{}“</translation>
    </message>
    <message>
        <source>no phase of the team is called &quot;{}&quot;</source>
        <translation>žádná fáze týmu se nejmenuje „{}“</translation>
    </message>
    <message>
        <source>no day such as 2026-05-03 or 3.5.2026</source>
        <translation>není den jako 2026-05-03 nebo 3.5.2026</translation>
    </message>
    <message>
        <source>no font is installed</source>
        <translation>není nainstalováno žádné písmo</translation>
    </message>
    <message>
        <source>no number</source>
        <translation>není číslo</translation>
    </message>
    <message>
        <source>no time such as 92.45, 1:32.45 or 92.45 (2)</source>
        <translation>není čas jako 92.45, 1:32.45 nebo 92.45 (2)</translation>
    </message>
    <message>
        <source>no whole number</source>
        <translation>není celé číslo</translation>
    </message>
    <message>
        <source>none of DNS, DNF, DSQ and the like</source>
        <translation>žádné z DNS, DNF, DSQ a podobně</translation>
    </message>
    <message>
        <source>stands above the titles</source>
        <translation>je nad nadpisy</translation>
    </message>
    <message>
        <source>the line ends here: it has {} of {} fields</source>
        <translation>řádek zde končí: má {} z {} polí</translation>
    </message>
    <message>
        <source>the line has more fields than there are columns</source>
        <translation>řádek má víc polí, než je sloupců</translation>
    </message>
    <message>
        <source>the run was not finished</source>
        <translation>jízda nebyla dokončena</translation>
    </message>
    <message>
        <source>the titles once more</source>
        <translation>nadpisy ještě jednou</translation>
    </message>
    <message>
        <source>touches and missed gates of %1 runs</source>
        <translation>ťuky a neprojeté branky, jízd: %1</translation>
    </message>
    <message>
        <source>{}: no run has a film</source>
        <translation>{}: žádná jízda nemá video</translation>
    </message>
    <message>
        <source>{}: the column is {}</source>
        <translation>{}: druh sloupce: {}</translation>
    </message>
    <message>
        <source>1 field where a bib and a name are needed</source>
        <translation>1 pole tam, kde je potřeba startovní číslo a jméno</translation>
    </message>
    <message>
        <source>A bracket { is not closed.</source>
        <translation>Závorka { není uzavřena.</translation>
    </message>
    <message>
        <source>A computer with Windows cannot take this name.</source>
        <translation>Počítač s Windows toto jméno nepřijme.</translation>
    </message>
    <message>
        <source>A heat has one to four boats.</source>
        <translation>Rozjížďka má jednu až čtyři lodě.</translation>
    </message>
    <message>
        <source>An unnamed boat is not in this heat.</source>
        <translation>Nepojmenovaná loď v této rozjížďce není.</translation>
    </message>
    <message>
        <source>Both are kept: the one of this computer is “{}” now.</source>
        <translation>Zůstanou oba: ten z tohoto počítače je teď „{}“.</translation>
    </message>
    <message>
        <source>Both sides have the same.</source>
        <translation>Obě strany mají totéž.</translation>
    </message>
    <message>
        <source>Gate {}: it is not on the cross course.</source>
        <translation>Branka {}: není na trati crossu.</translation>
    </message>
    <message>
        <source>Gate {}: {}</source>
        <translation>Branka {}: {}</translation>
    </message>
    <message>
        <source>It could not be given another name. Compare again.</source>
        <translation>Nepodařilo se to přejmenovat. Porovnejte znovu.</translation>
    </message>
    <message>
        <source>It is here again. Compare again.</source>
        <translation>Zase je zde. Porovnejte znovu.</translation>
    </message>
    <message>
        <source>It is not here any more.</source>
        <translation>Už zde není.</translation>
    </message>
    <message>
        <source>It is not on the server any more. Compare again.</source>
        <translation>Na serveru už není. Porovnejte znovu.</translation>
    </message>
    <message>
        <source>It is not on the server yet: {}</source>
        <translation>Na serveru ještě není: {}</translation>
    </message>
    <message>
        <source>It is on the server again. Compare again.</source>
        <translation>Na serveru zase je. Porovnejte znovu.</translation>
    </message>
    <message>
        <source>It was changed here meanwhile. Compare again.</source>
        <translation>Mezitím se to zde změnilo. Porovnejte znovu.</translation>
    </message>
    <message>
        <source>It was changed on the server meanwhile. Compare again.</source>
        <translation>Mezitím se to na serveru změnilo. Porovnejte znovu.</translation>
    </message>
    <message>
        <source>It was changed while it was sent. Compare again.</source>
        <translation>Během odesílání se to změnilo. Porovnejte znovu.</translation>
    </message>
    <message>
        <source>Its name has control characters.</source>
        <translation>Jeho jméno má řídicí znaky.</translation>
    </message>
    <message>
        <source>Its name is no text.</source>
        <translation>Jeho jméno není text.</translation>
    </message>
    <message>
        <source>Its name is too long.</source>
        <translation>Jeho jméno je příliš dlouhé.</translation>
    </message>
    <message>
        <source>Its name leads out of the folder.</source>
        <translation>Jeho jméno vede mimo složku.</translation>
    </message>
    <message>
        <source>No mark tells yet how this camera&apos;s film lies beside the run&apos;s first one: mark one moment on both in split taking.</source>
        <translation>Žádná značka zatím neříká, jak leží video této kamery vedle prvního videa jízdy: označte jeden okamžik na obou v měření mezičasů.</translation>
    </message>
    <message>
        <source>This is a fixed camera beside the run&apos;s own film: synchronise the two in split taking first.</source>
        <translation>To je pevná kamera vedle vlastního videa jízdy: nejdřív obě sladěte v měření mezičasů.</translation>
    </message>
    <message>
        <source>The course has {}, and this line is for split {}.</source>
        <translation>Trať má {} a tato čára je pro mezičas {}.</translation>
    </message>
    <message numerus="yes">
        <source>{} splits</source>
        <translation>
            <numerusform>{} mezičas</numerusform>
            <numerusform>{} mezičasy</numerusform>
            <numerusform>{} mezičasů</numerusform>
        </translation>
    </message>
    <message>
        <source>The file that came has gone.</source>
        <translation>Soubor, který přišel, zmizel.</translation>
    </message>
    <message>
        <source>The file that came is not what its checksum says.</source>
        <translation>Soubor, který přišel, neodpovídá kontrolnímu součtu.</translation>
    </message>
    <message>
        <source>The pattern holds no bracket such as {name}.</source>
        <translation>Vzor neobsahuje žádnou závorku jako {name}.</translation>
    </message>
    <message>
        <source>The same bracket stands twice.</source>
        <translation>Stejná závorka je tam dvakrát.</translation>
    </message>
    <message>
        <source>Two brackets stand side by side: nothing tells where one ends.</source>
        <translation>Dvě závorky stojí vedle sebe: nic neříká, kde jedna končí.</translation>
    </message>
    <message>
        <source>{{{}}} is not known. There are {{name}}, {{category}}, {{phase}}, {{bib}}, {{number}} and {{any}}.</source>
        <translation>{{{}}} není známo. Jsou {{name}}, {{category}}, {{phase}}, {{bib}}, {{number}} a {{any}}.</translation>
    </message>
    <message>
        <source>{any} does not say what is to stand there.</source>
        <translation>{any} neříká, co tam má stát.</translation>
    </message>
    <message>
        <source>The server has kept another length than was sent.</source>
        <translation>Server uložil jinou délku, než byla odeslána.</translation>
    </message>
    <message>
        <source>The server told another length than it sent.</source>
        <translation>Server udal jinou délku, než poslal.</translation>
    </message>
    <message>
        <source>The server took the file and does not have it.</source>
        <translation>Server soubor přijal, a přesto ho nemá.</translation>
    </message>
    <message>
        <source>There are more than four boats in this heat.</source>
        <translation>V této rozjížďce jsou víc než čtyři lodě.</translation>
    </message>
    <message>
        <source>all gates</source>
        <translation>všechny</translation>
    </message>
    <message>
        <source>by its name</source>
        <translation>podle jména</translation>
    </message>
    <message>
        <source>by the order</source>
        <translation>podle pořadí</translation>
    </message>
    <message>
        <source>the second boat of a long film</source>
        <translation>druhá loď dlouhého videa</translation>
    </message>
    <message>
        <source>{} s from its start</source>
        <translation>{} s od startu</translation>
    </message>
    <message>
        <source>{} s from its start, if the camera&apos;s clock is wrong</source>
        <translation>{} s od startu, pokud jdou hodiny kamery špatně</translation>
    </message>
    <message>
        <source>downstream</source>
        <translation>povodná</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>smíšené</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>neznámé</translation>
    </message>
    <message>
        <source>first third</source>
        <translation>první třetina</translation>
    </message>
    <message>
        <source>second third</source>
        <translation>druhá třetina</translation>
    </message>
    <message>
        <source>last third</source>
        <translation>poslední třetina</translation>
    </message>
    <message>
        <source>no name is known</source>
        <translation>jméno není známo</translation>
    </message>
    <message>
        <source>no {} is known</source>
        <translation>není známo: {}</translation>
    </message>
    <message>
        <source>nothing would be left of the name</source>
        <translation>ze jména by nic nezbylo</translation>
    </message>
    <message>
        <source>the name would be too long</source>
        <translation>jméno by bylo příliš dlouhé</translation>
    </message>
    <message>
        <source>the bib &quot;{}&quot; is no number above 0</source>
        <translation>startovní číslo „{}“ není číslo větší než 0</translation>
    </message>
    <message>
        <source>the bib {} is on line {} already</source>
        <translation>startovní číslo {} už je na řádku {}</translation>
    </message>
    <message>
        <source>the lines before have no start</source>
        <translation>předchozí řádky nemají start</translation>
    </message>
    <message>
        <source>the start &quot;{}&quot; is neither a time of day such as 10:01:30 nor a number in an order</source>
        <translation>start „{}“ není čas jako 10:01:30 ani číslo v pořadí</translation>
    </message>
    <message>
        <source>there is no name</source>
        <translation>chybí jméno</translation>
    </message>
    <message>
        <source>there is no number in the order</source>
        <translation>chybí číslo v pořadí</translation>
    </message>
    <message>
        <source>there is no start time, which the others have</source>
        <translation>chybí čas startu, který ostatní mají</translation>
    </message>
    <message>
        <source>{} cannot attack and defend at once.</source>
        <translation>{} nemůže zároveň útočit a bránit.</translation>
    </message>
    <message>
        <source>{} is already in this heat.</source>
        <translation>{} už v této rozjížďce je.</translation>
    </message>
    <message>
        <source>{} is not in this heat.</source>
        <translation>{} v této rozjížďce není.</translation>
    </message>
    <message>
        <source>{} stands twice among the defenders.</source>
        <translation>{} je mezi obránci dvakrát.</translation>
    </message>
    <message>
        <source>{} stands twice in the heat.</source>
        <translation>{} je v rozjížďce dvakrát.</translation>
    </message>
    <message>
        <source>{} stands twice in the order.</source>
        <translation>{} je v pořadí dvakrát.</translation>
    </message>
    <message>
        <source>{} without any detail.</source>
        <translation>{} bez jakéhokoli detailu.</translation>
    </message>
    <message>
        <source>A brace is opened and not closed: {}</source>
        <translation>Závorka je otevřena a neuzavřena: {}</translation>
    </message>
    <message>
        <source>Aerial phase</source>
        <translation>Vzdušná fáze</translation>
    </message>
    <message>
        <source>Water phase</source>
        <translation>Vodní fáze</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Úhel</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Vzdálenost</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Odpor</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trvání</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Síla</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Ruka</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Tepová frekvence</translation>
    </message>
    <message>
        <source>Impulse</source>
        <translation>Impulz</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Výkon</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Rychlost</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Frekvence záběrů</translation>
    </message>
    <message>
        <source>Single rate</source>
        <translation>Frekvence záběru</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Segment</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Klonění</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Kolébání</translation>
    </message>
    <message>
        <source>Max acceleration</source>
        <translation>Max. zrychlení</translation>
    </message>
    <message>
        <source>Mean acceleration</source>
        <translation>Prům. zrychlení</translation>
    </message>
    <message>
        <source>Mean deceleration</source>
        <translation>Prům. zpomalení</translation>
    </message>
    <message>
        <source>Mean rotation</source>
        <translation>Prům. otáčení</translation>
    </message>
    <message>
        <source>Peak rotation</source>
        <translation>Max. otáčení</translation>
    </message>
    <message>
        <source>Mean push out</source>
        <translation>Prům. vynášení</translation>
    </message>
    <message>
        <source>Peak push out</source>
        <translation>Max. vynášení</translation>
    </message>
    <message>
        <source>Metres per stroke</source>
        <translation>Metry na záběr</translation>
    </message>
    <message>
        <source>Is in the folder.</source>
        <translation>Je ve složce.</translation>
    </message>
    <message>
        <source>It is a file. A folder is shared.</source>
        <translation>To je soubor. Sdílí se složka.</translation>
    </message>
    <message>
        <source>It is a link.</source>
        <translation>To je odkaz.</translation>
    </message>
    <message>
        <source>It lies too deep.</source>
        <translation>Leží příliš hluboko.</translation>
    </message>
    <message>
        <source>Lies on {}, which is not ticked.</source>
        <translation>Leží na {}, což není zaškrtnuto.</translation>
    </message>
    <message>
        <source>May also be bib {}.</source>
        <translation>Může to být i startovní číslo {}.</translation>
    </message>
    <message>
        <source>Only https:// keeps the password and the files from other readers.</source>
        <translation>Jen https:// ochrání heslo a soubory před jinými čtenáři.</translation>
    </message>
    <message>
        <source>The address asks for no {bib}, so that every run would have the same film.</source>
        <translation>Adresa neobsahuje {bib}, takže by každá jízda měla stejné video.</translation>
    </message>
    <message>
        <source>The address is that of a file. A folder is shared.</source>
        <translation>Adresa patří souboru. Sdílí se složka.</translation>
    </message>
    <message>
        <source>The address makes none for this run.</source>
        <translation>Adresa pro tuto jízdu žádné nedává.</translation>
    </message>
    <message>
        <source>The address must begin with https:// and a server, whose name has no braces, user or password.</source>
        <translation>Adresa musí začínat https:// a serverem, jehož jméno nemá závorky, uživatele ani heslo.</translation>
    </message>
    <message>
        <source>The address must begin with https:// and hold no user name and password.</source>
        <translation>Adresa musí začínat https:// a neobsahovat uživatelské jméno ani heslo.</translation>
    </message>
    <message>
        <source>The address must begin with https:// or http:// and hold no user name and password.</source>
        <translation>Adresa musí začínat https:// nebo http:// a neobsahovat uživatelské jméno ani heslo.</translation>
    </message>
    <message>
        <source>The list has no film with this bib.</source>
        <translation>V seznamu není video s tímto startovním číslem.</translation>
    </message>
    <message>
        <source>The list tells no {} of this run.</source>
        <translation>Seznam u této jízdy neuvádí: {}.</translation>
    </message>
    <message>
        <source>number of the run</source>
        <translation>číslo jízdy</translation>
    </message>
    <message>
        <source>The pattern of names: {}</source>
        <translation>Vzor jmen: {}</translation>
    </message>
    <message>
        <source>The server does not speak WebDAV at this address.</source>
        <translation>Server na této adrese nemluví WebDAV.</translation>
    </message>
    <message>
        <source>The server has too many files to share.</source>
        <translation>Server má na sdílení příliš mnoho souborů.</translation>
    </message>
    <message>
        <source>The server says that it lies in another folder.</source>
        <translation>Server říká, že leží v jiné složce.</translation>
    </message>
    <message>
        <source>There are too many files to share.</source>
        <translation>Souborů ke sdílení je příliš mnoho.</translation>
    </message>
    <message>
        <source>There is no address yet.</source>
        <translation>Adresa zatím chybí.</translation>
    </message>
    <message>
        <source>There is no folder for the films yet.</source>
        <translation>Složka pro videa zatím chybí.</translation>
    </message>
    <message>
        <source>There is no start list, results list or split file for the bibs yet.</source>
        <translation>Zatím chybí startovní listina, výsledková listina nebo soubor mezičasů pro startovní čísla.</translation>
    </message>
    <message>
        <source>Would be more than 20 GB in one go.</source>
        <translation>Bylo by to víc než 20 GB najednou.</translation>
    </message>
    <message>
        <source>{{{}}} means nothing here: there are {{bib}}, {{category}}, {{phase}} and {{run}}.</source>
        <translation>{{{}}} zde nic neznamená: jsou {{bib}}, {{category}}, {{phase}} a {{run}}.</translation>
    </message>
    <message>
        <source>Explain one number instead: cell/ROW/COLUMN, the row counted from 0 as in --json, as in cell/0/time</source>
        <translation>Místo toho vysvětlí jedno číslo: cell/ŘÁDEK/SLOUPEC, řádek počítaný od 0 jako v --json, například cell/0/time</translation>
    </message>
    <message>
        <source>No start of {} is known in these races.</source>
        <translation>V těchto závodech není znám žádný start: {}.</translation>
    </message>
    <message>
        <source>Only races in which this athlete starts, in whichever phase</source>
        <translation>Jen závody, ve kterých tento závodník startuje, v kterékoli fázi</translation>
    </message>
    <message>
        <source>Only races in which {} starts.</source>
        <translation>Jen závody, ve kterých startuje {}.</translation>
    </message>
    <message>
        <source>Explain one number instead: cell/ROW/COLUMN, the row counted from 0 as in --json, as in cell/0/rank</source>
        <translation>Místo toho vysvětlí jedno číslo: cell/ŘÁDEK/SLOUPEC, řádek počítaný od 0 jako v --json, například cell/0/rank</translation>
    </message>
    <message>
        <source>line {}</source>
        <translation>řádek {}</translation>
    </message>
    <message>
        <source>column {}</source>
        <translation>sloupec {}</translation>
    </message>
    <message>
        <source>An empty penalty adds nothing.</source>
        <translation>Prázdná penalizace nic nepřidává.</translation>
    </message>
    <message>
        <source>better</source>
        <translation>lepší</translation>
    </message>
    <message>
        <source>others</source>
        <translation>ostatní</translation>
    </message>
    <message>
        <source>Only rows with {} in {} are compared.</source>
        <translation>Porovnávají se jen řádky s hodnotou {} ve sloupci {}.</translation>
    </message>
    <message>
        <source>The highest is the best.</source>
        <translation>Nejvyšší je nejlepší.</translation>
    </message>
    <message>
        <source>As it stands in the list, read as a number.</source>
        <translation>Jak je v seznamu, přečteno jako číslo.</translation>
    </message>
    <message>
        <source>list</source>
        <translation>seznam</translation>
    </message>
    <message>
        <source>The columns of the row added up.</source>
        <translation>Součet sloupců řádku.</translation>
    </message>
    <message>
        <source>Σ columns</source>
        <translation>Σ sloupců</translation>
    </message>
    <message>
        <source>The place in the column: one more than are better; times to the hundredth.</source>
        <translation>Pořadí ve sloupci: o jedno více, než kolik je lepších; časy na setiny.</translation>
    </message>
    <message>
        <source>1 + better</source>
        <translation>1 + lepší</translation>
    </message>
    <message>
        <source>How far the number is behind the best of the column.</source>
        <translation>O kolik je číslo za nejlepším ve sloupci.</translation>
    </message>
    <message>
        <source>own − best</source>
        <translation>vlastní − nejlepší</translation>
    </message>
    <message>
        <source>How many percent the number is behind the best of the column.</source>
        <translation>O kolik procent je číslo za nejlepším ve sloupci.</translation>
    </message>
    <message>
        <source>How many percent of the others in the column are better.</source>
        <translation>Kolik procent ostatních ve sloupci je lepších.</translation>
    </message>
    <message>
        <source>100 · better / others</source>
        <translation>100 · lepší / ostatní</translation>
    </message>
    <message>
        <source>The first column less the second.</source>
        <translation>První sloupec minus druhý.</translation>
    </message>
    <message>
        <source>first − second</source>
        <translation>první − druhý</translation>
    </message>
    <message>
        <source>How many rows say something in the column.</source>
        <translation>Kolik řádků má ve sloupci nějaký údaj.</translation>
    </message>
    <message>
        <source>The numbers of all these rows added up.</source>
        <translation>Součet čísel všech těchto řádků.</translation>
    </message>
    <message>
        <source>Σ rows</source>
        <translation>Σ řádků</translation>
    </message>
    <message>
        <source>The mean of the numbers of these rows.</source>
        <translation>Průměr čísel těchto řádků.</translation>
    </message>
    <message>
        <source>Σ rows / number of rows</source>
        <translation>Σ řádků / počet řádků</translation>
    </message>
    <message>
        <source>As many of these rows have less as have more.</source>
        <translation>Stejně mnoho těchto řádků má méně jako více.</translation>
    </message>
    <message>
        <source>median of rows</source>
        <translation>medián řádků</translation>
    </message>
    <message>
        <source>The least number of these rows.</source>
        <translation>Nejmenší číslo těchto řádků.</translation>
    </message>
    <message>
        <source>least of rows</source>
        <translation>nejmenší z řádků</translation>
    </message>
    <message>
        <source>The largest number of these rows.</source>
        <translation>Největší číslo těchto řádků.</translation>
    </message>
    <message>
        <source>largest of rows</source>
        <translation>největší z řádků</translation>
    </message>
    <message>
        <source>Of {} rows the first {} are told.</source>
        <translation>Z {} řádků je uvedeno prvních {}.</translation>
    </message>
    <message>
        <source>this table is damaged: {}</source>
        <translation>tato tabulka je poškozená: {}</translation>
    </message>
    <message>
        <source>A list: text (CSV, tabs, columns of blanks), a spreadsheet (.xlsx, .ods), a split file (.kvx) that carries one, or a saved table (.kvtable)</source>
        <translation>Seznam: text (CSV, tabulátory, sloupce z mezer), tabulkový sešit (.xlsx, .ods), soubor mezičasů (.kvx) s listinou, nebo uložená tabulka (.kvtable)</translation>
    </message>
    <message numerus="yes">
        <source>{} more rows are not told.</source>
        <translation>
            <numerusform>{} další řádek není uveden.</numerusform>
            <numerusform>{} další řádky nejsou uvedeny.</numerusform>
            <numerusform>{} dalších řádků není uvedeno.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} rows have no such value.</source>
        <translation>
            <numerusform>{} řádek takovou hodnotu nemá.</numerusform>
            <numerusform>{} řádky takovou hodnotu nemají.</numerusform>
            <numerusform>{} řádků takovou hodnotu nemá.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>90 % interval, {} runs</source>
        <translation>
            <numerusform>90% interval, {} jízda</numerusform>
            <numerusform>90% interval, {} jízdy</numerusform>
            <numerusform>90% interval, {} jízd</numerusform>
        </translation>
    </message>
    <message>
        <source>column {}: “{}” is no date</source>
        <translation>sloupec {}: „{}“ není datum</translation>
    </message>
    <message>
        <source>column {}: “{}” is no number</source>
        <translation>sloupec {}: „{}“ není číslo</translation>
    </message>
    <message>
        <source>the line ends before its time</source>
        <translation>řádek končí před svým časem</translation>
    </message>
    <message>
        <source>an axis of the acceleration is missing</source>
        <translation>chybí jedna osa zrychlení</translation>
    </message>
    <message>
        <source>Some lines were not in order of time and were put in order.</source>
        <translation>Některé řádky nebyly seřazeny podle času a byly seřazeny.</translation>
    </message>
    <message>
        <source>Gravity was split off the acceleration by a low-pass of 0.3 Hz.</source>
        <translation>Tíže byla od zrychlení oddělena dolní propustí 0,3 Hz.</translation>
    </message>
    <message>
        <source>There is no gravity in the list.</source>
        <translation>V seznamu není tíže.</translation>
    </message>
    <message>
        <source>There is no rotation in the list: hands and turns cannot be found.</source>
        <translation>V seznamu není otáčení: strany záběrů a obraty nelze najít.</translation>
    </message>
    <message>
        <source>the messages end within a definition</source>
        <translation>zprávy končí uprostřed definice</translation>
    </message>
    <message>
        <source>the messages end within a message</source>
        <translation>zprávy končí uprostřed zprávy</translation>
    </message>
    <message>
        <source>byte {}</source>
        <translation>bajt {}</translation>
    </message>
    <message>
        <source>the header&apos;s check sum does not agree</source>
        <translation>kontrolní součet hlavičky nesouhlasí</translation>
    </message>
    <message>
        <source>the file&apos;s check sum does not agree: bytes of it are damaged</source>
        <translation>kontrolní součet souboru nesouhlasí: některé bajty jsou poškozené</translation>
    </message>
    <message>
        <source>the file ends within a header</source>
        <translation>soubor končí uprostřed hlavičky</translation>
    </message>
    <message>
        <source>a header of {} bytes: it has to have 12 or 14</source>
        <translation>hlavička o délce {} B: musí mít 12 nebo 14 bajtů</translation>
    </message>
    <message>
        <source>the header does not say that this is a FIT file</source>
        <translation>hlavička neříká, že jde o soubor FIT</translation>
    </message>
    <message>
        <source>the recording was not finished by its device: it is empty</source>
        <translation>přístroj záznam nedokončil: je prázdný</translation>
    </message>
    <message>
        <source>the file ends here, but its header announces {} bytes</source>
        <translation>soubor zde končí, ale jeho hlavička udává {} B</translation>
    </message>
    <message>
        <source>a byte order of {}: it is 0 or 1</source>
        <translation>pořadí bajtů {}: musí být 0 nebo 1</translation>
    </message>
    <message>
        <source>a message of type {}, which is not defined</source>
        <translation>zpráva typu {}, který není definován</translation>
    </message>
    <message numerus="yes">
        <source>The file holds {} sessions; all were taken.</source>
        <translation>
            <numerusform>Soubor obsahuje {} jednotku; byla převzata celá.</numerusform>
            <numerusform>Soubor obsahuje {} jednotky; všechny byly převzaty.</numerusform>
            <numerusform>Soubor obsahuje {} jednotek; všechny byly převzaty.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The watch was stopped {} times.</source>
        <translation>
            <numerusform>Hodinky byly {}krát zastaveny.</numerusform>
            <numerusform>Hodinky byly {}krát zastaveny.</numerusform>
            <numerusform>Hodinky byly {}krát zastaveny.</numerusform>
        </translation>
    </message>
    <message>
        <source>{} d {} h</source>
        <translation>{} d {} h</translation>
    </message>
    <message>
        <source>{} h {} min</source>
        <translation>{} h {} min</translation>
    </message>
    <message>
        <source>{} min {} s</source>
        <translation>{} min {} s</translation>
    </message>
    <message>
        <source>The recording has positions of its own, which stay.</source>
        <translation>Záznam má vlastní polohy, které zůstávají.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} after the recording.</source>
        <translation>Polohy ze stopy začínají {} po záznamu.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} before the recording.</source>
        <translation>Polohy ze stopy začínají {} před záznamem.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} after the recording; perhaps an offset of {} h is missing.</source>
        <translation>Polohy ze stopy začínají {} po záznamu; možná chybí posun {} h.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} before the recording; perhaps an offset of {} h is missing.</source>
        <translation>Polohy ze stopy začínají {} před záznamem; možná chybí posun {} h.</translation>
    </message>
    <message>
        <source>The recording has heart rates of its own, which stay.</source>
        <translation>Záznam má vlastní tepové frekvence, které zůstávají.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} after the recording.</source>
        <translation>Tepové frekvence ze stopy začínají {} po záznamu.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} before the recording.</source>
        <translation>Tepové frekvence ze stopy začínají {} před záznamem.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} after the recording; perhaps an offset of {} h is missing.</source>
        <translation>Tepové frekvence ze stopy začínají {} po záznamu; možná chybí posun {} h.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} before the recording; perhaps an offset of {} h is missing.</source>
        <translation>Tepové frekvence ze stopy začínají {} před záznamem; možná chybí posun {} h.</translation>
    </message>
    <message>
        <source>The recording has no motion samples to join the track to.</source>
        <translation>Záznam nemá vzorky pohybu, ke kterým by se stopa připojila.</translation>
    </message>
    <message>
        <source>“{}” stands over two columns.</source>
        <translation>„{}“ je nad dvěma sloupci.</translation>
    </message>
    <message>
        <source>Of the acceleration with gravity all of x, y and z are needed.</source>
        <translation>Ze zrychlení s tíží jsou potřeba x, y i z.</translation>
    </message>
    <message>
        <source>Of the acceleration without gravity all of x, y and z are needed.</source>
        <translation>Ze zrychlení bez tíže jsou potřeba x, y i z.</translation>
    </message>
    <message>
        <source>Of the rotation all of x, y and z are needed.</source>
        <translation>Z otáčení jsou potřeba x, y i z.</translation>
    </message>
    <message>
        <source>Of the gravity all of x, y and z are needed.</source>
        <translation>Z tíže jsou potřeba x, y i z.</translation>
    </message>
    <message>
        <source>Latitude and longitude go together.</source>
        <translation>Zeměpisná šířka a délka patří k sobě.</translation>
    </message>
    <message>
        <source>Acc. x with gravity</source>
        <translation>Zrychl. x s tíží</translation>
    </message>
    <message>
        <source>Acc. y with gravity</source>
        <translation>Zrychl. y s tíží</translation>
    </message>
    <message>
        <source>Acc. z with gravity</source>
        <translation>Zrychl. z s tíží</translation>
    </message>
    <message>
        <source>Acc. x without gravity</source>
        <translation>Zrychl. x bez tíže</translation>
    </message>
    <message>
        <source>Acc. y without gravity</source>
        <translation>Zrychl. y bez tíže</translation>
    </message>
    <message>
        <source>Acc. z without gravity</source>
        <translation>Zrychl. z bez tíže</translation>
    </message>
    <message>
        <source>Gravity x</source>
        <translation>Tíže x</translation>
    </message>
    <message>
        <source>Gravity y</source>
        <translation>Tíže y</translation>
    </message>
    <message>
        <source>Gravity z</source>
        <translation>Tíže z</translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation>Vybočení</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Zeměpisná šířka</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Zeměpisná délka</translation>
    </message>
    <message>
        <source>No column is the time.</source>
        <translation>Žádný sloupec není čas.</translation>
    </message>
    <message>
        <source>Commas cannot be in numbers and between columns.</source>
        <translation>Čárky nemohou být zároveň v číslech i mezi sloupci.</translation>
    </message>
    <message>
        <source>No column is acceleration, position or heart rate.</source>
        <translation>Žádný sloupec není zrychlení, poloha ani tepová frekvence.</translation>
    </message>
    <message>
        <source>this is no plain text; a list has to be saved as UTF-8</source>
        <translation>to není prostý text; seznam musí být uložen jako UTF-8</translation>
    </message>
    <message>
        <source>this is no list of samples: in its first {} lines there is none with numbers in columns</source>
        <translation>to není seznam vzorků: mezi prvními řádky ({}) není žádný s čísly ve sloupcích</translation>
    </message>
    <message>
        <source>the list has more than {} lines</source>
        <translation>seznam má více než {} řádků</translation>
    </message>
    <message>
        <source>the file is too large to be imported (over {} MB)</source>
        <translation>soubor je pro import příliš velký (přes {} MB)</translation>
    </message>
    <message>
        <source>the file grew while it was read</source>
        <translation>soubor se během čtení zvětšil</translation>
    </message>
    <message>
        <source>this is no track: neither GPX nor TCX nor FIT</source>
        <translation>to není stopa: ani GPX, ani TCX, ani FIT</translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} positions outside the globe.</source>
        <translation>
            <numerusform>Vynechána {} poloha mimo zeměkouli.</numerusform>
            <numerusform>Vynechány {} polohy mimo zeměkouli.</numerusform>
            <numerusform>Vynecháno {} poloh mimo zeměkouli.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} speeds that no boat has.</source>
        <translation>
            <numerusform>Vynechána {} rychlost, jakou žádná loď nemá.</numerusform>
            <numerusform>Vynechány {} rychlosti, jaké žádná loď nemá.</numerusform>
            <numerusform>Vynecháno {} rychlostí, jaké žádná loď nemá.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} points without a date.</source>
        <translation>
            <numerusform>Vynechán {} bod bez data.</numerusform>
            <numerusform>Vynechány {} body bez data.</numerusform>
            <numerusform>Vynecháno {} bodů bez data.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} heart rates that are none.</source>
        <translation>
            <numerusform>Vynechána {} nemožná tepová frekvence.</numerusform>
            <numerusform>Vynechány {} nemožné tepové frekvence.</numerusform>
            <numerusform>Vynecháno {} nemožných tepových frekvencí.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} positions at the moment of another.</source>
        <translation>
            <numerusform>Vynechána {} poloha ve stejném okamžiku jako jiná.</numerusform>
            <numerusform>Vynechány {} polohy ve stejném okamžiku jako jiná.</numerusform>
            <numerusform>Vynecháno {} poloh ve stejném okamžiku jako jiná.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} heart rates at the moment of another.</source>
        <translation>
            <numerusform>Vynechána {} tepová frekvence ve stejném okamžiku jako jiná.</numerusform>
            <numerusform>Vynechány {} tepové frekvence ve stejném okamžiku jako jiná.</numerusform>
            <numerusform>Vynecháno {} tepových frekvencí ve stejném okamžiku jako jiná.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} way points and points of routes.</source>
        <translation>
            <numerusform>Vynechán {} bod trasy nebo navigační bod.</numerusform>
            <numerusform>Vynechány {} body tras a navigační body.</numerusform>
            <numerusform>Vynecháno {} bodů tras a navigačních bodů.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The speed of {} positions was computed from the positions around them.</source>
        <translation>
            <numerusform>Rychlost {} polohy byla vypočtena z okolních poloh.</numerusform>
            <numerusform>Rychlost {} poloh byla vypočtena z okolních poloh.</numerusform>
            <numerusform>Rychlost {} poloh byla vypočtena z okolních poloh.</numerusform>
        </translation>
    </message>
    <message>
        <source>the track has more than {} points</source>
        <translation>stopa má více než {} bodů</translation>
    </message>
    <message>
        <source>the XML is damaged: {}</source>
        <translation>XML je poškozené: {}</translation>
    </message>
    <message>
        <source>this XML is no track: neither GPX nor TCX</source>
        <translation>toto XML není stopa: ani GPX, ani TCX</translation>
    </message>
    <message>
        <source>a number was expected, found {}</source>
        <translation>očekávalo se číslo, nalezeno: {}</translation>
    </message>
    <message>
        <source>an integer was expected, found {}</source>
        <translation>očekávalo se celé číslo, nalezeno: {}</translation>
    </message>
    <message>
        <source>a boolean was expected, found {}</source>
        <translation>očekávala se logická hodnota, nalezeno: {}</translation>
    </message>
    <message>
        <source>a string was expected, found {}</source>
        <translation>očekával se řetězec, nalezeno: {}</translation>
    </message>
    <message>
        <source>a base64 string was expected, found {}</source>
        <translation>očekával se řetězec v base64, nalezeno: {}</translation>
    </message>
    <message>
        <source>an array was expected, found {}</source>
        <translation>očekávalo se pole, nalezeno: {}</translation>
    </message>
    <message>
        <source>an object was expected, found {}</source>
        <translation>očekával se objekt, nalezeno: {}</translation>
    </message>
    <message>
        <source>the integer {} is out of range</source>
        <translation>celé číslo {} je mimo rozsah</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>pole</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>objekt</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>celé číslo</translation>
    </message>
    <message>
        <source>a number that is no 64-bit integer</source>
        <translation>číslo, které není celé 64bitové</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>řetězec</translation>
    </message>
    <message>
        <source>a boolean</source>
        <translation>logická hodnota</translation>
    </message>
    <message>
        <source>something else</source>
        <translation>něco jiného</translation>
    </message>
    <message>
        <source>the key is missing</source>
        <translation>klíč chybí</translation>
    </message>
    <message>
        <source>a base64 string was expected, found other text</source>
        <translation>očekával se řetězec v base64, nalezen jiný text</translation>
    </message>
    <message>
        <source>a number that is not finite cannot be written</source>
        <translation>číslo, které není konečné, nelze zapsat</translation>
    </message>
    <message>
        <source>a text that is not valid UTF-8 cannot be written</source>
        <translation>text, který není platné UTF-8, nelze zapsat</translation>
    </message>
    <message>
        <source>waits {} s</source>
        <translation>čeká {} s</translation>
    </message>
    <message>
        <source>Section {}</source>
        <translation>Úsek {}</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is none of {}</source>
        <translation>„{}“ není žádné z {}</translation>
    </message>
    <message>
        <source>{} is not a number from {} on</source>
        <translation>{} není číslo od {} výš</translation>
    </message>
    <message>
        <source>either two points or none are needed</source>
        <translation>jsou potřeba buď dva body, nebo žádný</translation>
    </message>
    <message>
        <source>a number from 1 to 2 was expected</source>
        <translation>očekávalo se číslo od 1 do 2</translation>
    </message>
    <message>
        <source>no path is named that could be drawn or followed</source>
        <translation>není uvedena dráha, kterou by šlo nakreslit nebo sledovat</translation>
    </message>
    <message>
        <source>{}: the size of its picture is missing</source>
        <translation>{}: chybí velikost obrazu</translation>
    </message>
    <message numerus="yes">
        <source>the split file has {} runs</source>
        <translation>
            <numerusform>soubor mezičasů má {} jízdu</numerusform>
            <numerusform>soubor mezičasů má {} jízdy</numerusform>
            <numerusform>soubor mezičasů má {} jízd</numerusform>
        </translation>
    </message>
    <message>
        <source>the run has no film of this camera</source>
        <translation>jízda nemá film z této kamery</translation>
    </message>
    <message>
        <source>neither a film nor a split file is named</source>
        <translation>není uveden ani film, ani soubor mezičasů</translation>
    </message>
    <message>
        <source>a share from 0 to 1 was expected</source>
        <translation>očekával se podíl od 0 do 1</translation>
    </message>
    <message>
        <source>{} films; this layout takes 2 to 4</source>
        <translation>filmů: {}; toto rozvržení bere 2 až 4</translation>
    </message>
    <message>
        <source>{} films; this layout takes 2</source>
        <translation>filmů: {}; toto rozvržení bere 2</translation>
    </message>
    <message>
        <source>an even number from 160 to 4096 was expected</source>
        <translation>očekávalo se sudé číslo od 160 do 4096</translation>
    </message>
    <message>
        <source>the picture is larger than 1920 × 1080 and would not play everywhere</source>
        <translation>obraz je větší než 1920 × 1080 a nepřehrál by se všude</translation>
    </message>
    <message>
        <source>it does not lie behind {}</source>
        <translation>neleží za {}</translation>
    </message>
    <message>
        <source>a number from 0.125 to 1 was expected</source>
        <translation>očekávalo se číslo od 0,125 do 1</translation>
    </message>
    <message>
        <source>there is no film of this number; 0 is no sound</source>
        <translation>film s tímto číslem není; 0 je bez zvuku</translation>
    </message>
    <message>
        <source>films that lie over each other cannot follow a path</source>
        <translation>filmy ležící přes sebe nemohou sledovat dráhu</translation>
    </message>
    <message>
        <source>{}: the start lies outside the film, at {} s.</source>
        <translation>{}: start leží mimo film, v čase {} s.</translation>
    </message>
    <message>
        <source>{}: split {} lies outside the film, at {} s.</source>
        <translation>{}: mezičas {} leží mimo film, v čase {} s.</translation>
    </message>
    <message>
        <source>so large a picture would not play everywhere at {} frames a second</source>
        <translation>tak velký obraz by se při {} snímcích za sekundu nepřehrál všude</translation>
    </message>
    <message>
        <source>{} is not shown: {}.</source>
        <translation>{} se nezobrazuje: {}.</translation>
    </message>
    <message>
        <source>{} is cut off or damaged; it is shown as far as it goes.</source>
        <translation>{}: useknuto nebo poškozeno; ukazuje se, kam až to jde.</translation>
    </message>
    <message>
        <source>{}: at {} s a frame cannot be shown ({}); the last good one stays.</source>
        <translation>{}: v čase {} s nelze snímek ukázat ({}); zůstává poslední dobrý.</translation>
    </message>
    <message>
        <source>no film has a mark at this split</source>
        <translation>žádný film nemá u tohoto mezičasu značku</translation>
    </message>
    <message>
        <source>no run is marked at its start, so the range has to be given in seconds</source>
        <translation>žádná jízda nemá označený start, rozsah je proto nutné zadat v sekundách</translation>
    </message>
    <message>
        <source>its end does not lie behind its beginning</source>
        <translation>jeho konec neleží za začátkem</translation>
    </message>
    <message>
        <source>it cannot be decoded</source>
        <translation>nelze ho dekódovat</translation>
    </message>
    <message>
        <source>its pictures are in a format of no use</source>
        <translation>obrazy jsou v nepoužitelném formátu</translation>
    </message>
    <message>
        <source>the start is not marked on this film, so it cannot be held there</source>
        <translation>start není v tomto filmu označen, nelze ho tam tedy pozdržet</translation>
    </message>
    <message>
        <source>split {} is not marked on this film, so it cannot be held there</source>
        <translation>mezičas {} není v tomto filmu označen, nelze ho tam tedy pozdržet</translation>
    </message>
    <message>
        <source>{}: {}.</source>
        <translation>{}: {}.</translation>
    </message>
    <message>
        <source>the crew, in whatever order it is written</source>
        <translation>posádka, ať je psána v jakémkoli pořadí</translation>
    </message>
    <message>
        <source>category, however it is written (K1M, MK1)</source>
        <translation>kategorie, ať je psána jakkoli (K1M, MK1)</translation>
    </message>
    <message>
        <source>phase of the race</source>
        <translation>fáze závodu</translation>
    </message>
    <message>
        <source>side on which the athlete paddles</source>
        <translation>strana, na které závodník pádluje</translation>
    </message>
    <message>
        <source>place of the course</source>
        <translation>místo trati</translation>
    </message>
    <message>
        <source>title of the race</source>
        <translation>název závodu</translation>
    </message>
    <message>
        <source>event</source>
        <translation>soutěž</translation>
    </message>
    <message>
        <source>Race, Training or Test</source>
        <translation>Race, Training nebo Test</translation>
    </message>
    <message>
        <source>kind of water</source>
        <translation>druh vody</translation>
    </message>
    <message>
        <source>the file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>2026-05-11; also 2026-05 or 2026</source>
        <translation>2026-05-11; také 2026-05 nebo 2026</translation>
    </message>
    <message>
        <source>year of the date</source>
        <translation>rok data</translation>
    </message>
    <message>
        <source>month of the date, 1 to 12</source>
        <translation>měsíc data, 1 až 12</translation>
    </message>
    <message>
        <source>of the run, with penalties</source>
        <translation>jízdy, s penalizacemi</translation>
    </message>
    <message>
        <source>of the run, without penalties</source>
        <translation>jízdy, bez penalizací</translation>
    </message>
    <message>
        <source>penalty seconds of the run</source>
        <translation>trestné sekundy jízdy</translation>
    </message>
    <message>
        <source>place among the runs that compete</source>
        <translation>místo mezi soutěžícími jízdami</translation>
    </message>
    <message>
        <source>position in the official list</source>
        <translation>pozice v oficiálním seznamu</translation>
    </message>
    <message>
        <source>number of the run in its file, from 0</source>
        <translation>číslo jízdy v jejím souboru, od 0</translation>
    </message>
    <message>
        <source>sprint time</source>
        <translation>čas sprintu</translation>
    </message>
    <message>
        <source>of the section, where both its marks were taken</source>
        <translation>úseku, kde byly pořízeny obě značky</translation>
    </message>
    <message>
        <source>from entrance to exit</source>
        <translation>od nájezdu k výjezdu</translation>
    </message>
    <message>
        <source>from entrance to the pole line</source>
        <translation>od nájezdu k rovině branky</translation>
    </message>
    <message>
        <source>from the pole line to the exit</source>
        <translation>od roviny branky k výjezdu</translation>
    </message>
    <message>
        <source>number of the gate</source>
        <translation>číslo branky</translation>
    </message>
    <message>
        <source>number of the section, from 1</source>
        <translation>číslo úseku, od 1</translation>
    </message>
    <message>
        <source>up for a section with an upstream gate, or down</source>
        <translation>up pro úsek s protivodnou brankou, jinak down</translation>
    </message>
    <message>
        <source>up: only upstream gates are timed by themselves</source>
        <translation>up: samostatně se měří jen protivodné branky</translation>
    </message>
    <message>
        <source>up for an upstream gate, or down</source>
        <translation>up pro protivodnou branku, jinak down</translation>
    </message>
    <message>
        <source>penalty seconds in the section</source>
        <translation>trestné sekundy v úseku</translation>
    </message>
    <message>
        <source>strokes on the left</source>
        <translation>záběry vlevo</translation>
    </message>
    <message>
        <source>strokes on the right</source>
        <translation>záběry vpravo</translation>
    </message>
    <message>
        <source>strokes marked in the section</source>
        <translation>záběry označené v úseku</translation>
    </message>
    <message>
        <source>side to which the boat turns</source>
        <translation>strana, na kterou se loď otáčí</translation>
    </message>
    <message>
        <source>how the gate is paddled</source>
        <translation>jak se branka projíždí</translation>
    </message>
    <message>
        <source>of the penalty</source>
        <translation>penalizace</translation>
    </message>
    <message>
        <source>touch, or how the gate was missed</source>
        <translation>ťuk, nebo jak branka nebyla projeta</translation>
    </message>
    <message>
        <source>kind of gate</source>
        <translation>druh branky</translation>
    </message>
    <message>
        <source>which pole</source>
        <translation>která tyč</translation>
    </message>
    <message>
        <source>what touched, or how the gate was missed</source>
        <translation>čím byl ťuk, nebo jak branka nebyla projeta</translation>
    </message>
    <message>
        <source>where in the gate</source>
        <translation>kde v brance</translation>
    </message>
    <message>
        <source>how the boat was moving</source>
        <translation>jak se loď pohybovala</translation>
    </message>
    <message>
        <source>how the gate was paddled</source>
        <translation>jak se branka projela</translation>
    </message>
    <message>
        <source>where the athlete looked</source>
        <translation>kam se závodník díval</translation>
    </message>
    <message>
        <source>below 0 for time gained</source>
        <translation>pod 0 u získaného času</translation>
    </message>
    <message>
        <source>of the other run&apos;s time</source>
        <translation>z času druhé jízdy</translation>
    </message>
    <message>
        <source>against whom</source>
        <translation>proti komu</translation>
    </message>
    <message>
        <source>reasons noted</source>
        <translation>zapsané důvody</translation>
    </message>
    <message>
        <source>combination of gates</source>
        <translation>kombinace branek</translation>
    </message>
    <message>
        <source>part of the gate</source>
        <translation>část branky</translation>
    </message>
    <message>
        <source>how the stretch was paddled</source>
        <translation>jak se část projela</translation>
    </message>
    <message>
        <source>the water there</source>
        <translation>voda v tom místě</translation>
    </message>
    <message>
        <source>the word of a mark</source>
        <translation>slovo štítku</translation>
    </message>
    <message>
        <source>Behind &quot;{}&quot; stands &quot;{}&quot;, which is a condition.</source>
        <translation>Za „{}“ stojí „{}“, což je podmínka.</translation>
    </message>
    <message>
        <source>Only values can stand here.</source>
        <translation>Zde mohou být jen hodnoty.</translation>
    </message>
    <message>
        <source>One limit stands here, such as 4 or {}4.</source>
        <translation>Zde je jedna mez, například 4 nebo {}4.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; needs the name of a column.</source>
        <translation>„{}“ potřebuje název sloupce.</translation>
    </message>
    <message>
        <source>Before a value stands the name of its column, such as athlete or text.</source>
        <translation>Před hodnotou je název jejího sloupce, například athlete nebo text.</translation>
    </message>
    <message>
        <source>Before &quot;{}&quot; stands the name of a column.</source>
        <translation>Před „{}“ je název sloupce.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; needs a value.</source>
        <translation>„{}“ potřebuje hodnotu.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; needs a value; one of our own words stands in quotes.</source>
        <translation>„{}“ potřebuje hodnotu; naše vlastní slovo se dává do uvozovek.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is a text: it is compared by = and != alone.</source>
        <translation>„{}“ je text: porovnává se jen pomocí = a !=.</translation>
    </message>
    <message>
        <source>There is nothing in the quotes.</source>
        <translation>V uvozovkách nic není.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; has words for values: it is compared by = and != alone.</source>
        <translation>„{}“ má za hodnoty slova: porovnává se jen pomocí = a !=.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no day: write 2026-05-11, or 2026-05, or 2026.</source>
        <translation>„{}“ není den: napište 2026-05-11, nebo 2026-05, nebo 2026.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no {}.</source>
        <translation>„{}“ není hodnota {}.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number.</source>
        <translation>„{}“ není číslo.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is not told of {}, but of {}.</source>
        <translation>„{}“ se neuvádí u {}, ale u {}.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; means nothing in a query about {}.</source>
        <translation>„{}“ v dotazu na {} nic neznamená.</translation>
    </message>
    <message>
        <source>A value of several words stands in quotes.</source>
        <translation>Hodnota z více slov se dává do uvozovek.</translation>
    </message>
    <message>
        <source>Nearly every row has a {} of its own.</source>
        <translation>Téměř každý řádek má vlastní hodnotu {}.</translation>
    </message>
    <message>
        <source>Groups are made by three columns at most.</source>
        <translation>Skupiny se tvoří nejvýše podle tří sloupců.</translation>
    </message>
    <message>
        <source>There is one &quot;best&quot; already.</source>
        <translation>Jedno „best“ už zde je.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number, of which one could be the best.</source>
        <translation>„{}“ není číslo, z něhož by jedno mohlo být nejlepší.</translation>
    </message>
    <message>
        <source>There is one &quot;sort&quot; already.</source>
        <translation>Jedno „sort“ už zde je.</translation>
    </message>
    <message>
        <source>Groups are sorted by what makes them, or by count, best, mean or median.</source>
        <translation>Skupiny se řadí podle toho, co je tvoří, nebo podle count, best, mean či median.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number of rows.</source>
        <translation>„{}“ není počet řádků.</translation>
    </message>
    <message>
        <source>The quote is not closed.</source>
        <translation>Uvozovky nejsou uzavřeny.</translation>
    </message>
    <message>
        <source>&quot;!&quot; stands only in &quot;!=&quot;.</source>
        <translation>„!“ je jen v „!=“.</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>není na to dost paměti</translation>
    </message>
    <message>
        <source>There is no bib.</source>
        <translation>Chybí startovní číslo.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no bib.</source>
        <translation>„{}“ není startovní číslo.</translation>
    </message>
    <message>
        <source>The official results of the file have no bib for this crew.</source>
        <translation>Oficiální výsledky v souboru nemají pro tuto posádku startovní číslo.</translation>
    </message>
    <message>
        <source>No bib was found in {}. A list needs a column called &quot;bib&quot;; a split file needs its official results.</source>
        <translation>V {} nebylo nalezeno žádné startovní číslo. Seznam potřebuje sloupec „bib“; soubor mezičasů potřebuje oficiální výsledky.</translation>
    </message>
    <message>
        <source>The answer is no WebDAV folder.</source>
        <translation>Odpověď není složka WebDAV.</translation>
    </message>
    <message>
        <source>The answer is no WebDAV folder: {}</source>
        <translation>Odpověď není složka WebDAV: {}</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Zrušeno.</translation>
    </message>
    <message>
        <source>The folder takes no file: {}</source>
        <translation>Složka nepřijímá soubory: {}</translation>
    </message>
    <message>
        <source>The server sends more than it announced.</source>
        <translation>Server posílá víc, než ohlásil.</translation>
    </message>
    <message>
        <source>The job has brought 20 GB, which is the most in one go.</source>
        <translation>Úloha přinesla 20 GB, což je najednou nejvíc.</translation>
    </message>
    <message>
        <source>The disk does not take the file: {}</source>
        <translation>Disk soubor nepřijímá: {}</translation>
    </message>
    <message>
        <source>The file broke off before its end.</source>
        <translation>Soubor se před koncem přerušil.</translation>
    </message>
    <message>
        <source>The server sent nothing.</source>
        <translation>Server nic neposlal.</translation>
    </message>
    <message>
        <source>The disk does not take the file.</source>
        <translation>Disk soubor nepřijímá.</translation>
    </message>
    <message numerus="yes">
        <source>After {} tries it was given up for now.</source>
        <translation>
            <numerusform>Po {} pokusu bylo od toho prozatím upuštěno.</numerusform>
            <numerusform>Po {} pokusech bylo od toho prozatím upuštěno.</numerusform>
            <numerusform>Po {} pokusech bylo od toho prozatím upuštěno.</numerusform>
        </translation>
    </message>
    <message>
        <source>it has no pictures</source>
        <translation>nemá obraz</translation>
    </message>
    <message>
        <source>What the server sent is no film: {}.</source>
        <translation>To, co server poslal, není film: {}.</translation>
    </message>
    <message>
        <source>The pieces of the film do not fit together: {}.</source>
        <translation>Kousky filmu k sobě nepasují: {}.</translation>
    </message>
    <message>
        <source>The pieces of the film could not be put together: {}.</source>
        <translation>Kousky filmu nebylo možné spojit: {}.</translation>
    </message>
    <message>
        <source>The playlists lead from one to the other without an end.</source>
        <translation>Seznamy přehrávání odkazují jeden na druhý bez konce.</translation>
    </message>
    <message>
        <source>Pieces of the film lie on {}, which is not ticked.</source>
        <translation>Kousky filmu leží na {}, což není zaškrtnuto.</translation>
    </message>
    <message>
        <source>A piece of the film is missing: {}</source>
        <translation>Chybí kousek filmu: {}</translation>
    </message>
    <message>
        <source>The list is no JSON: {}</source>
        <translation>Seznam není JSON: {}</translation>
    </message>
    <message>
        <source>This playlist is one film in pieces and no list of films. Give its address with {bib} in it.</source>
        <translation>Tento seznam přehrávání je jeden film v kouscích, ne seznam filmů. Zadejte jeho adresu s {bib} uvnitř.</translation>
    </message>
    <message>
        <source>Another program has changed it.</source>
        <translation>Změnil ho jiný program.</translation>
    </message>
    <message>
        <source>The server has no such list.</source>
        <translation>Server takový seznam nemá.</translation>
    </message>
    <message>
        <source>The address is there and names no film.</source>
        <translation>Adresa existuje, ale neuvádí žádný film.</translation>
    </message>
    <message>
        <source>The playlist has no piece of a film.</source>
        <translation>Seznam přehrávání nemá žádný kousek filmu.</translation>
    </message>
    <message>
        <source>The film is still growing: its playlist has no end yet.</source>
        <translation>Film ještě přibývá: jeho seznam přehrávání zatím nemá konec.</translation>
    </message>
    <message>
        <source>The playlist leads to something else than a server: {}</source>
        <translation>Seznam přehrávání odkazuje na něco jiného než server: {}</translation>
    </message>
    <message>
        <source>The playlist does not end: it has more than {} pieces.</source>
        <translation>Seznam přehrávání nekončí: má více než {} kousků.</translation>
    </message>
    <message>
        <source>The film is protected by &quot;{}&quot;, which only its maker&apos;s programs open.</source>
        <translation>Film je chráněn pomocí „{}“, což otevřou jen programy jeho tvůrce.</translation>
    </message>
    <message>
        <source>The server sent a part that nobody asked for.</source>
        <translation>Server poslal část, o kterou nikdo nežádal.</translation>
    </message>
    <message>
        <source>The file was changed meanwhile.</source>
        <translation>Soubor se mezitím změnil.</translation>
    </message>
    <message>
        <source>The server went on from another place than it was asked to.</source>
        <translation>Server pokračoval od jiného místa, než se žádalo.</translation>
    </message>
    <message>
        <source>The server packs the file in a way that was not asked for.</source>
        <translation>Server soubor balí způsobem, o který se nežádalo.</translation>
    </message>
    <message>
        <source>The server has no more of the file.</source>
        <translation>Server už ze souboru víc nemá.</translation>
    </message>
    <message>
        <source>Not there yet.</source>
        <translation>Zatím zde není.</translation>
    </message>
    <message>
        <source>The server asks for fewer questions.</source>
        <translation>Server žádá o méně dotazů.</translation>
    </message>
    <message>
        <source>The server leads in a circle.</source>
        <translation>Server odkazuje v kruhu.</translation>
    </message>
    <message>
        <source>The server leads to an address that is none.</source>
        <translation>Server odkazuje na neplatnou adresu.</translation>
    </message>
    <message>
        <source>The server leads from https to http, which anybody can read and change.</source>
        <translation>Server odkazuje z https na http, které může kdokoli číst a měnit.</translation>
    </message>
    <message>
        <source>The server leads to another one, {}, which is not ticked.</source>
        <translation>Server odkazuje na jiný, {}, který není zaškrtnut.</translation>
    </message>
    <message>
        <source>The film could not be given its name: {}</source>
        <translation>Filmu nebylo možné dát jeho jméno: {}</translation>
    </message>
    <message>
        <source>The film is not what its checksum says.</source>
        <translation>Film neodpovídá svému kontrolnímu součtu.</translation>
    </message>
    <message>
        <source>The answer is longer than any list is.</source>
        <translation>Odpověď je delší než jakýkoli seznam.</translation>
    </message>
    <message>
        <source>A link in the folder leads out of it, and is not followed.</source>
        <translation>Odkaz ve složce vede mimo ni a nepřechází se na něj.</translation>
    </message>
    <message>
        <source>The folder could not be made on the server: {}</source>
        <translation>Složku nebylo možné na serveru vytvořit: {}</translation>
    </message>
    <message>
        <source>The server does not know its own mark of this file again.</source>
        <translation>Server nepoznává vlastní značku tohoto souboru.</translation>
    </message>
    <message>
        <source>a name of small letters, digits and dashes was expected</source>
        <translation>očekávalo se jméno z malých písmen, číslic a pomlček</translation>
    </message>
    <message>
        <source>an https address was expected</source>
        <translation>očekávala se adresa https</translation>
    </message>
    <message>
        <source>it does not end in the plain name of a file</source>
        <translation>nekončí prostým jménem souboru</translation>
    </message>
    <message>
        <source>1 to {} bytes were expected</source>
        <translation>očekávalo se 1 až {} bajtů</translation>
    </message>
    <message>
        <source>64 small hexadecimal digits were expected</source>
        <translation>očekávalo se 64 malých šestnáctkových číslic</translation>
    </message>
    <message>
        <source>it is longer than any manifest is</source>
        <translation>je delší než jakýkoli seznam verzí</translation>
    </message>
    <message>
        <source>three numbers such as 0.32.0 were expected</source>
        <translation>očekávala se tři čísla, například 0.32.0</translation>
    </message>
    <message>
        <source>a date such as 2026-11-22 was expected</source>
        <translation>očekávalo se datum, například 2026-11-22</translation>
    </message>
    <message>
        <source>a plain text of at most 100,000 bytes was expected</source>
        <translation>očekával se prostý text o nejvýše 100&#xa0;000 bajtech</translation>
    </message>
    <message>
        <source>there is a file for it already</source>
        <translation>soubor pro ni už existuje</translation>
    </message>
    <message>
        <source>The address of the file is none that is asked.</source>
        <translation>Adresa souboru není z těch, na které se ptá.</translation>
    </message>
    <message>
        <source>The folder takes no file: {}.</source>
        <translation>Složka nepřijímá soubory: {}.</translation>
    </message>
    <message>
        <source>The server sent another part of the file than it was asked for.</source>
        <translation>Server poslal jinou část souboru, než se žádalo.</translation>
    </message>
    <message>
        <source>The file on the server is not as long as the list of versions says.</source>
        <translation>Soubor na serveru není tak dlouhý, jak uvádí seznam verzí.</translation>
    </message>
    <message>
        <source>The disk does not take the file: {}.</source>
        <translation>Disk soubor nepřijímá: {}.</translation>
    </message>
    <message>
        <source>The file on the server is longer than the list of versions says. It was deleted.</source>
        <translation>Soubor na serveru je delší, než uvádí seznam verzí. Byl smazán.</translation>
    </message>
    <message>
        <source>The file is not the one of the list of versions: it is damaged, or was changed. It was deleted.</source>
        <translation>Soubor není ten ze seznamu verzí: je poškozený nebo byl změněn. Byl smazán.</translation>
    </message>
    <message numerus="yes">
        <source>It was given up after {} tries.</source>
        <translation>
            <numerusform>Po {} pokusu bylo od toho upuštěno.</numerusform>
            <numerusform>Po {} pokusech bylo od toho upuštěno.</numerusform>
            <numerusform>Po {} pokusech bylo od toho upuštěno.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list of versions is longer than it may be.</source>
        <translation>Seznam verzí je delší, než smí být.</translation>
    </message>
    <message>
        <source>The list of versions is not on the server.</source>
        <translation>Seznam verzí na serveru není.</translation>
    </message>
    <message>
        <source>The list of versions lies on another server, {}, which is not asked.</source>
        <translation>Seznam verzí leží na jiném serveru, {}, kterého se program neptá.</translation>
    </message>
    <message>
        <source>The list of versions is not given out by the server.</source>
        <translation>Seznam verzí server nevydává.</translation>
    </message>
    <message>
        <source>The signature of the list of versions is longer than it may be.</source>
        <translation>Podpis seznamu verzí je delší, než smí být.</translation>
    </message>
    <message>
        <source>The signature of the list of versions is not on the server.</source>
        <translation>Podpis seznamu verzí na serveru není.</translation>
    </message>
    <message>
        <source>The signature of the list of versions lies on another server, {}, which is not asked.</source>
        <translation>Podpis seznamu verzí leží na jiném serveru, {}, kterého se program neptá.</translation>
    </message>
    <message>
        <source>The signature of the list of versions is not given out by the server.</source>
        <translation>Podpis seznamu verzí server nevydává.</translation>
    </message>
    <message>
        <source>The file is longer than it may be.</source>
        <translation>Soubor je delší, než smí být.</translation>
    </message>
    <message>
        <source>The file is not on the server.</source>
        <translation>Soubor na serveru není.</translation>
    </message>
    <message>
        <source>The file lies on another server, {}, which is not asked.</source>
        <translation>Soubor leží na jiném serveru, {}, kterého se program neptá.</translation>
    </message>
    <message>
        <source>The file is not given out by the server.</source>
        <translation>Soubor server nevydává.</translation>
    </message>
    <message>
        <source>The list of versions is not signed. It is not used.</source>
        <translation>Seznam verzí není podepsán. Nepoužije se.</translation>
    </message>
    <message>
        <source>The list of versions is not signed by who makes Kavela: it is damaged, or somebody else&apos;s. It is not used.</source>
        <translation>Seznam verzí nepodepsali tvůrci programu Kavela: je poškozený nebo cizí. Nepoužije se.</translation>
    </message>
    <message>
        <source>The list of versions is damaged and not used: {}.</source>
        <translation>Seznam verzí je poškozený a nepoužije se: {}.</translation>
    </message>
    <message>
        <source>The server offers version {}, which is older than {}, the one you have. It is not used.</source>
        <translation>Server nabízí verzi {}, která je starší než {}, kterou máte. Nepoužije se.</translation>
    </message>
    <message>
        <source>The server offers version {}, which is older than {}, which it had before. It is not used.</source>
        <translation>Server nabízí verzi {}, která je starší než {}, kterou měl dříve. Nepoužije se.</translation>
    </message>
    <message>
        <source>Version {} is the newest one.</source>
        <translation>Verze {} je nejnovější.</translation>
    </message>
    <message>
        <source>There is a version {}, but no file of it for this computer ({}).</source>
        <translation>Existuje verze {}, ale není k ní soubor pro tento počítač ({}).</translation>
    </message>
    <message>
        <source>no decoder for {}</source>
        <translation>chybí dekodér pro {}</translation>
    </message>
    <message>
        <source>the film is cut off or damaged: the list of its frames is missing</source>
        <translation>film je useknutý nebo poškozený: chybí seznam jeho snímků</translation>
    </message>
    <message>
        <source>this is no video that can be read, or it is damaged</source>
        <translation>to není čitelné video, nebo je poškozené</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Takový soubor ani složka neexistuje</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>To je složka</translation>
    </message>
    <message>
        <source>there is no video in this file</source>
        <translation>v tomto souboru není video</translation>
    </message>
    <message>
        <source>there is no sound in this film</source>
        <translation>v tomto filmu není zvuk</translation>
    </message>
    <message>
        <source>there is no video in this file, only a picture</source>
        <translation>v tomto souboru není video, jen obrázek</translation>
    </message>
    <message>
        <source>the film has no clock</source>
        <translation>film nemá hodiny</translation>
    </message>
    <message>
        <source>the film could not be read any further</source>
        <translation>film nebylo možné číst dál</translation>
    </message>
    <message>
        <source>{:.3f} s</source>
        <translation>{:.3f} s</translation>
    </message>
    <message numerus="yes">
        <source>The file is cut off: {} frames missing at its end.</source>
        <translation>
            <numerusform>Soubor je useknutý: na konci chybí {} snímek.</numerusform>
            <numerusform>Soubor je useknutý: na konci chybí {} snímky.</numerusform>
            <numerusform>Soubor je useknutý: na konci chybí {} snímků.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file is cut off or damaged: its end is missing.</source>
        <translation>Soubor je useknutý nebo poškozený: chybí jeho konec.</translation>
    </message>
    <message>
        <source>The file does not say when each frame was shown: times are estimated from its frame rate.</source>
        <translation>Soubor neříká, kdy byl který snímek zobrazen: časy jsou odhadnuty ze snímkové frekvence.</translation>
    </message>
    <message numerus="yes">
        <source>{} frames left out that had the time of another frame.</source>
        <translation>
            <numerusform>Vynechán {} snímek, který měl čas jiného snímku.</numerusform>
            <numerusform>Vynechány {} snímky, které měly čas jiného snímku.</numerusform>
            <numerusform>Vynecháno {} snímků, které měly čas jiného snímku.</numerusform>
        </translation>
    </message>
    <message>
        <source>The frame rate varies, from {} to {} frames a second.</source>
        <translation>Snímková frekvence kolísá od {} do {} snímků za sekundu.</translation>
    </message>
    <message numerus="yes">
        <source>{} gaps</source>
        <translation>
            <numerusform>{} mezera</numerusform>
            <numerusform>{} mezery</numerusform>
            <numerusform>{} mezer</numerusform>
        </translation>
    </message>
    <message>
        <source>{} where frames are missing, the longest of {} at {}.</source>
        <translation>{}, kde chybějí snímky; nejdelší trvá {}, v čase {}.</translation>
    </message>
    <message>
        <source>About {} of {} frames repeat the picture before them.</source>
        <translation>Asi {} z {} snímků opakuje předchozí obraz.</translation>
    </message>
    <message>
        <source>Slow motion: recorded at {} frames a second, plays at {}. Times taken from it are {} times too long.</source>
        <translation>Zpomalený záběr: pořízen rychlostí {} snímků za sekundu, přehrává se rychlostí {}. Časy z něj jsou {}krát delší.</translation>
    </message>
    <message>
        <source>The film starts at {}, not at 0.</source>
        <translation>Film začíná v čase {}, ne v 0.</translation>
    </message>
    <message>
        <source>The file has no list of its frames: it had to be read from end to end.</source>
        <translation>Soubor nemá seznam svých snímků: bylo nutné ho přečíst celý.</translation>
    </message>
    <message>
        <source>Recorded turned by {}°, and shown upright.</source>
        <translation>Pořízeno otočené o {}°, zobrazuje se vzpřímeně.</translation>
    </message>
    <message>
        <source>Interlaced: each frame holds two moments half a frame apart.</source>
        <translation>Prokládané: každý snímek obsahuje dva okamžiky půl snímku od sebe.</translation>
    </message>
    <message>
        <source>{} bits a colour, shown with 8.</source>
        <translation>{} bitů na barvu, zobrazuje se s 8.</translation>
    </message>
    <message>
        <source>no frame of the video can be read</source>
        <translation>žádný snímek videa nelze přečíst</translation>
    </message>
    <message>
        <source>no frame of the video can be decoded</source>
        <translation>žádný snímek videa nelze dekódovat</translation>
    </message>
    <message>
        <source>The film could not be encoded: {}</source>
        <translation>Film nebylo možné zakódovat: {}</translation>
    </message>
    <message>
        <source>A picture could not be made: {}</source>
        <translation>Obraz nebylo možné vytvořit: {}</translation>
    </message>
    <message>
        <source>Films cannot be made on this computer: the installed libavcodec has no encoder for H.264 (libx264).</source>
        <translation>Na tomto počítači nelze tvořit filmy: nainstalovaná libavcodec nemá kodér pro H.264 (libx264).</translation>
    </message>
    <message>
        <source>Films with sound cannot be made on this computer: the installed libavcodec has no encoder for AAC.</source>
        <translation>Na tomto počítači nelze tvořit filmy se zvukem: nainstalovaná libavcodec nemá kodér pro AAC.</translation>
    </message>
    <message>
        <source>The encoder for H.264 could not be started: {}</source>
        <translation>Kodér pro H.264 nebylo možné spustit: {}</translation>
    </message>
    <message>
        <source>The encoder for sound could not be started: {}</source>
        <translation>Kodér zvuku nebylo možné spustit: {}</translation>
    </message>
    <message>
        <source>Sound could not be encoded: {}</source>
        <translation>Zvuk nebylo možné zakódovat: {}</translation>
    </message>
    <message>
        <source>The film could not be ended: {}</source>
        <translation>Film nebylo možné dokončit: {}</translation>
    </message>
    <message>
        <source>Films cannot be written on this computer: {}</source>
        <translation>Na tomto počítači nelze zapisovat filmy: {}</translation>
    </message>
    <message>
        <source>The film could not be put together: {}</source>
        <translation>Film nebylo možné sestavit: {}</translation>
    </message>
    <message>
        <source>The film could not be begun: {}</source>
        <translation>Film nebylo možné začít: {}</translation>
    </message>
    <message>
        <source>the piece could not be found in the film</source>
        <translation>kousek nebyl ve filmu nalezen</translation>
    </message>
    <message>
        <source>it was written by a newer release</source>
        <translation>zapsala to novější verze</translation>
    </message>
    <message>
        <source>rows and columns from 1 to 2000 were expected</source>
        <translation>očekávalo se 1 až 2000 řádků a sloupců</translation>
    </message>
    <message>
        <source>&quot;accepted&quot;, &quot;moved&quot;, &quot;refused&quot; or &quot;missed&quot; expected</source>
        <translation>očekávalo se „accepted“, „moved“, „refused“ nebo „missed“</translation>
    </message>
    <message>
        <source>there are more bands than a recording holds</source>
        <translation>pásů je víc, než záznam pojme</translation>
    </message>
    <message>
        <source>it is no recording of bands, or damaged: {}</source>
        <translation>to není záznam pásů, nebo je poškozený: {}</translation>
    </message>
    <message>
        <source>the recording could not be put together</source>
        <translation>záznam nebylo možné sestavit</translation>
    </message>
    <message>
        <source>it is no recording of bands: {} is missing</source>
        <translation>to není záznam pásů: chybí {}</translation>
    </message>
    <message>
        <source>the recording is damaged: {} cannot be read</source>
        <translation>záznam je poškozený: {} nelze přečíst</translation>
    </message>
    <message>
        <source>the recording could not be put together: {}</source>
        <translation>záznam nebylo možné sestavit: {}</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>nelze ho otevřít</translation>
    </message>
    <message>
        <source>each needs its bands</source>
        <translation>každý potřebuje své pásy</translation>
    </message>
    <message>
        <source>their number is not that of the bands</source>
        <translation>jejich počet není počtem pásů</translation>
    </message>
    <message>
        <source>the recording is larger than any that is written</source>
        <translation>záznam je větší než jakýkoli, který se zapisuje</translation>
    </message>
    <message>
        <source>there is no proposal or correction to be saved</source>
        <translation>není žádný návrh ani oprava k uložení</translation>
    </message>
    <message>
        <source>The search for boats was not measured.</source>
        <translation>Hledání lodí nebylo měřeno.</translation>
    </message>
    <message>
        <source>Measured on {} scenes of real water ({} runs, {:.0f} minutes): {:.1f} % of the runs found (asked: {:.0f} %), {:.1f} false proposals an hour (asked: at most {:g}), an error of at most {:.1f} frames for 95 of 100 (asked: {:g}).</source>
        <translation>Měřeno na scénách na skutečné vodě (scén: {}, jízd: {}, minut: {:.0f}): nalezeno {:.1f}&#xa0;% jízd (požadováno: {:.0f}&#xa0;%), falešných návrhů za hodinu: {:.1f} (požadováno: nejvýše {:g}), chyba nejvýše {:.1f} snímku u 95 ze 100 (požadováno: {:g}).</translation>
    </message>
    <message>
        <source>Measured on {} scenes of rendered water ({} runs, {:.0f} minutes): {:.1f} % of the runs found (asked: {:.0f} %), {:.1f} false proposals an hour (asked: at most {:g}), an error of at most {:.1f} frames for 95 of 100 (asked: {:g}).</source>
        <translation>Měřeno na scénách na vykreslené vodě (scén: {}, jízd: {}, minut: {:.0f}): nalezeno {:.1f}&#xa0;% jízd (požadováno: {:.0f}&#xa0;%), falešných návrhů za hodinu: {:.1f} (požadováno: nejvýše {:g}), chyba nejvýše {:.1f} snímku u 95 ze 100 (požadováno: {:g}).</translation>
    </message>
    <message>
        <source>The frame of the box cannot be shown.</source>
        <translation>Snímek s rámečkem nelze zobrazit.</translation>
    </message>
    <message>
        <source>the box round a boat has no size</source>
        <translation>rámeček kolem lodi nemá velikost</translation>
    </message>
    <message>
        <source>the box round a boat is larger than the picture</source>
        <translation>rámeček kolem lodi je větší než obraz</translation>
    </message>
    <message>
        <source>the film has no frames from {:.2f} s to {:.2f} s</source>
        <translation>film nemá od {:.2f} s do {:.2f} s žádné snímky</translation>
    </message>
    <message>
        <source>The film ends early: the file is cut off.</source>
        <translation>Film končí předčasně: soubor je useknutý.</translation>
    </message>
    <message>
        <source>The box is too small: it needs 8 pixels each way at least.</source>
        <translation>Rámeček je příliš malý: potřebuje na každou stranu aspoň 8 pixelů.</translation>
    </message>
    <message>
        <source>The box does not lie within the picture, which has {} × {} pixels.</source>
        <translation>Rámeček neleží v obraze, který má {} × {} pixelů.</translation>
    </message>
    <message>
        <source>There is nothing in the box that could be known again: it has one colour all over.</source>
        <translation>V rámečku není nic, co by šlo znovu poznat: celý má jednu barvu.</translation>
    </message>
    <message>
        <source>It is not known how the camera moved between the path and the frame of the known points. Click them in a frame of the path.</source>
        <translation>Není známo, jak se kamera pohnula mezi dráhou a snímkem známých bodů. Klikněte na ně ve snímku dráhy.</translation>
    </message>
    <message>
        <source>version {} is of a later release</source>
        <translation>verze {} je z pozdějšího vydání programu</translation>
    </message>
    <message>
        <source>the line&apos;s end at {}, {} lies outside the picture of {} × {} pixels</source>
        <translation>konec čáry v bodě {}, {} leží mimo obraz {} × {} pixelů</translation>
    </message>
    <message>
        <source>the line is shorter than {} pixels</source>
        <translation>čára je kratší než {} pixelů</translation>
    </message>
    <message>
        <source>The camera was held in the hand, or nothing in the picture stands still: the search for boats needs a camera on a tripod.</source>
        <translation>Kamera byla držena v ruce, nebo v obraze nic nestojí: hledání lodí potřebuje kameru na stativu.</translation>
    </message>
    <message numerus="yes">
        <source>{} frames could not be read and were passed over.</source>
        <translation>
            <numerusform>{} snímek nebylo možné přečíst a byl přeskočen.</numerusform>
            <numerusform>{} snímky nebylo možné přečíst a byly přeskočeny.</numerusform>
            <numerusform>{} snímků nebylo možné přečíst a bylo přeskočeno.</numerusform>
        </translation>
    </message>
    <message>
        <source>a frame from 0 on was expected</source>
        <translation>očekával se snímek od 0 výš</translation>
    </message>
    <message>
        <source>it does not lie behind the frame before</source>
        <translation>neleží za předchozím snímkem</translation>
    </message>
    <message>
        <source>no film has so many frames</source>
        <translation>žádný film nemá tolik snímků</translation>
    </message>
    <message>
        <source>it lies beyond all pictures</source>
        <translation>leží mimo všechny obrazy</translation>
    </message>
    <message>
        <source>four known points were expected, or two for a scale only</source>
        <translation>očekávaly se čtyři známé body, nebo dva jen pro měřítko</translation>
    </message>
    <message>
        <source>the box has no size</source>
        <translation>rámeček nemá velikost</translation>
    </message>
    <message>
        <source>a size above 0 was expected</source>
        <translation>očekávala se velikost nad 0</translation>
    </message>
    <message>
        <source>it makes the picture vanish</source>
        <translation>obraz by tím zmizel</translation>
    </message>
    <message>
        <source>Three of the four known points lie on a line: they have to be the corners of a field, such as the poles of two gates.</source>
        <translation>Tři ze čtyř známých bodů leží v přímce: musí být rohy plochy, například tyče dvou branek.</translation>
    </message>
    <message>
        <source>Metres need four known points on the water, or two for a scale only; there are {}.</source>
        <translation>Metry potřebují čtyři známé body na vodě, nebo dva jen pro měřítko; bodů je {}.</translation>
    </message>
    <message>
        <source>The two known points lie on one spot.</source>
        <translation>Oba známé body leží na jednom místě.</translation>
    </message>
    <message>
        <source>The four known points do not fit together: no view of flat water shows them so.</source>
        <translation>Čtyři známé body k sobě nepasují: žádný pohled na rovnou vodu je tak neukáže.</translation>
    </message>
    <message>
        <source>The four known points do not fit together: no view of flat water shows them so. Were two of them exchanged?</source>
        <translation>Čtyři známé body k sobě nepasují: žádný pohled na rovnou vodu je tak neukáže. Nebyly dva z nich zaměněny?</translation>
    </message>
    <message>
        <source>“bow” or “body” was expected</source>
        <translation>očekávalo se “bow” nebo “body”</translation>
    </message>
    <message>
        <source>The column &quot;{}&quot; is reckoned here: how the columns of the list are read decides what it holds.</source>
        <translation>Sloupec „{}“ se počítá zde: co obsahuje, záleží na tom, jak se čtou sloupce seznamu.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>To know</source>
        <translation>Poznámka</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>čeká</translation>
    </message>
    <message>
        <source>there</source>
        <translation>hotovo</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>selhalo</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>zastaveno</translation>
    </message>
    <message>
        <source>%1, %2:%3 left</source>
        <translation>%1, zbývá %2:%3</translation>
    </message>
    <message>
        <source>A film is still being composed.</source>
        <translation>Ještě se skládá jeden film.</translation>
    </message>
    <message>
        <source>%1 films are still being composed.</source>
        <translation>Počet filmů, které se ještě skládají: %1.</translation>
    </message>
    <message>
        <source>It can go on in the background: the list of jobs (Ctrl+J in Compare films) tells how far it is.</source>
        <translation>Může to pokračovat na pozadí: seznam úloh (Ctrl+J v Porovnání filmů) ukazuje, jak je to daleko.</translation>
    </message>
    <message>
        <source>Go on in the background</source>
        <translation>Pokračovat na pozadí</translation>
    </message>
    <message>
        <source>Stop it</source>
        <translation>Zastavit</translation>
    </message>
    <message>
        <source>Stay here</source>
        <translation>Zůstat zde</translation>
    </message>
    <message>
        <source>Put together…</source>
        <translation>Skládá se…</translation>
    </message>
    <message>
        <source>Piece %1 of %2</source>
        <translation>Část %1 z %2</translation>
    </message>
    <message>
        <source>Checked…</source>
        <translation>Kontroluje se…</translation>
    </message>
    <message>
        <source>%1 %, %2 of %3</source>
        <translation>%1&#xa0;%, %2 z %3</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>Čeká</translation>
    </message>
    <message>
        <source>✓ Fetched</source>
        <translation>✓ Staženo</translation>
    </message>
    <message>
        <source>Fetch</source>
        <translation>Stáhnout</translation>
    </message>
    <message>
        <source>Bib</source>
        <translation>St. č.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Jméno</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>1 film is ticked</source>
        <translation>Zaškrtnut 1 film</translation>
    </message>
    <message>
        <source>%1 films are ticked</source>
        <translation>Zaškrtnuto filmů: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 fetched</source>
        <translation>staženo: %1</translation>
    </message>
    <message>
        <source>%1 not there yet</source>
        <translation>dosud chybí: %1</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>selhalo: %1</translation>
    </message>
    <message>
        <source>%1 cancelled</source>
        <translation>zrušeno: %1</translation>
    </message>
    <message>
        <source>Move the selected mark &amp;here</source>
        <translation>Přesunout vybranou značku &amp;sem</translation>
    </message>
    <message>
        <source>Mark one frame &amp;earlier</source>
        <translation>Značku o snímek &amp;dříve</translation>
    </message>
    <message>
        <source>Mark one frame &amp;later</source>
        <translation>Značku o snímek &amp;později</translation>
    </message>
    <message>
        <source>&amp;Remove the selected mark</source>
        <translation>&amp;Odstranit vybranou značku</translation>
    </message>
    <message>
        <source>&amp;Previous mark</source>
        <translation>Předchozí &amp;značka</translation>
    </message>
    <message>
        <source>&amp;Next mark</source>
        <translation>Dalš&amp;í značka</translation>
    </message>
    <message>
        <source>Nobody is called “%1” in these files.</source>
        <translation>Nikdo se v těchto souborech nejmenuje „%1“.</translation>
    </message>
    <message>
        <source>Like it: %1.</source>
        <translation>Podobná jména: %1.</translation>
    </message>
    <message>
        <source>Watched: 80 % of it was shown</source>
        <translation>Zhlédnuto: přehráno 80&#xa0;% filmu</translation>
    </message>
    <message>
        <source>Of the split file: split taking edits it</source>
        <translation>Ze souboru mezičasů: upravuje se v měření mezičasů</translation>
    </message>
    <message>
        <source>Watched</source>
        <translation>Zhlédnuto</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Délka</translation>
    </message>
    <message>
        <source>Minutes and seconds</source>
        <translation>Minuty a sekundy</translation>
    </message>
    <message>
        <source>At</source>
        <translation>V čase</translation>
    </message>
    <message>
        <source>Moment of the film, minutes and seconds</source>
        <translation>Okamžik filmu, minuty a sekundy</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Štítek</translation>
    </message>
    <message>
        <source>Imported “%1”</source>
        <translation>Importováno „%1“</translation>
    </message>
    <message>
        <source>“%1” cannot be imported</source>
        <translation>„%1“ nelze importovat</translation>
    </message>
    <message>
        <source>Watches and phones (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;All files (*)</source>
        <translation>Hodinky a telefony (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Import from a watch or a phone</source>
        <translation>Import z hodinek nebo telefonu</translation>
    </message>
    <message>
        <source>%1 s a run</source>
        <translation>%1 s na jízdu</translation>
    </message>
    <message>
        <source>one run</source>
        <translation>jedna jízda</translation>
    </message>
    <message>
        <source>%1 runs</source>
        <translation>jízdy: %1</translation>
    </message>
    <message>
        <source>Where most was lost</source>
        <translation>Kde se ztratilo nejvíc</translation>
    </message>
    <message>
        <source>Seconds lost</source>
        <translation>Ztracené sekundy</translation>
    </message>
    <message>
        <source>Of all that was lost, %</source>
        <translation>Ze všech ztrát, %</translation>
    </message>
    <message>
        <source>No section was slower than the reference&apos;s.</source>
        <translation>Žádný úsek nebyl pomalejší než u reference.</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Ztráta</translation>
    </message>
    <message>
        <source>Together, %</source>
        <translation>Celkem, %</translation>
    </message>
    <message>
        <source>The gap along the course</source>
        <translation>Odstup po trati</translation>
    </message>
    <message>
        <source>After section</source>
        <translation>Za úsekem</translation>
    </message>
    <message>
        <source>Seconds behind, without penalties</source>
        <translation>Ztráta v sekundách, bez penalizace</translation>
    </message>
    <message>
        <source>result %1</source>
        <translation>výsledek %1</translation>
    </message>
    <message>
        <source>Lost by what it is lost in</source>
        <translation>Ztráta podle příčiny</translation>
    </message>
    <message>
        <source>Of the reference&apos;s time, %</source>
        <translation>Z času reference, %</translation>
    </message>
    <message>
        <source>Lost, 90 %</source>
        <translation>Ztráta, 90&#xa0;%</translation>
    </message>
    <message>
        <source>No loss</source>
        <translation>Beze ztráty</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Podle</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Jízdy</translation>
    </message>
    <message>
        <source>Lost, %</source>
        <translation>Ztráta, %</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>A run, s</source>
        <translation>Na jízdu, s</translation>
    </message>
    <message>
        <source>No row loses time for sure.</source>
        <translation>V žádném řádku není ztráta jistá.</translation>
    </message>
    <message>
        <source>Most for sure: %1 %2, %3 s a run.</source>
        <translation>Nejjistější ztráta: %1 %2, %3 s na jízdu.</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Branka</translation>
    </message>
    <message>
        <source>Gate %1 of the section</source>
        <translation>Branka %1 úseku</translation>
    </message>
    <message>
        <source>Lost in an upstream gate of the section</source>
        <translation>Ztráta v protivodné brance úseku</translation>
    </message>
    <message>
        <source>%1:  %2</source>
        <translation>%1:  %2</translation>
    </message>
    <message>
        <source>upstream</source>
        <translation>protivodná</translation>
    </message>
    <message>
        <source>downstream</source>
        <translation>povodná</translation>
    </message>
    <message>
        <source>several sections</source>
        <translation>více úseků</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>neznámo</translation>
    </message>
    <message>
        <source>a race without a name</source>
        <translation>závod beze jména</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Jízda %1</translation>
    </message>
    <message>
        <source>winner</source>
        <translation>vítěz</translation>
    </message>
    <message>
        <source>fastest paddling</source>
        <translation>nejrychlejší čistý čas</translation>
    </message>
    <message>
        <source>ideal run</source>
        <translation>ideální jízda</translation>
    </message>
    <message>
        <source>median of the finalists</source>
        <translation>medián finalistů</translation>
    </message>
    <message>
        <source>own best other run</source>
        <translation>vlastní nejlepší jiná jízda</translation>
    </message>
    <message>
        <source>a rival</source>
        <translation>soupeř</translation>
    </message>
    <message>
        <source>Open a race to see where time is lost.</source>
        <translation>Otevřete závod a uvidíte, kde se ztrácí čas.</translation>
    </message>
    <message>
        <source>The crew has no other whole run here to be held against. Choose another reference.</source>
        <translation>Posádka zde nemá jinou úplnou jízdu k porovnání. Zvolte jinou referenci.</translation>
    </message>
    <message>
        <source>There is no %1 here to hold the run against. Choose another reference.</source>
        <translation>Reference „%1“ tu není. Zvolte jinou.</translation>
    </message>
    <message>
        <source>The two have no section in common that is timed.</source>
        <translation>Obě jízdy nemají společný žádný změřený úsek.</translation>
    </message>
    <message>
        <source>%1: nothing to be held against</source>
        <translation>%1: není s čím porovnat</translation>
    </message>
    <message>
        <source>%1  %2 on %3</source>
        <translation>%1  %2, reference: %3</translation>
    </message>
    <message>
        <source>%1: no section in common with %2</source>
        <translation>%1: žádný společný úsek s %2</translation>
    </message>
    <message>
        <source>%1  %2 on %3 in %4 (no total)</source>
        <translation>%1  %2, reference: %3, %4 (bez celkového času)</translation>
    </message>
    <message>
        <source>Explained by notes: %1 of %2 (%3 %)</source>
        <translation>Vysvětleno poznámkami: %1 z %2 (%3&#xa0;%)</translation>
    </message>
    <message>
        <source>Most was lost in %1: %2 s of %3.</source>
        <translation>Nejvíc se ztratilo v úseku %1: %2 s z %3.</translation>
    </message>
    <message>
        <source>Penalties make %1 of it.</source>
        <translation>Penalizace z toho tvoří %1.</translation>
    </message>
    <message>
        <source>All %1 of the slower sections are needed to explain most of the loss.</source>
        <translation>Většinu ztráty vysvětlí až všechny pomalejší úseky (%1).</translation>
    </message>
    <message>
        <source>%1 alone makes %2 % of what was lost in slower sections.</source>
        <translation>Samotný úsek %1 tvoří %2&#xa0;% toho, co se v pomalejších úsecích ztratilo.</translation>
    </message>
    <message>
        <source>%1 of %2 slower sections make %3 % of what was lost in them.</source>
        <translation>%1 z %2 pomalejších úseků tvoří %3&#xa0;% toho, co se v nich ztratilo.</translation>
    </message>
    <message>
        <source>Nobody was slower than the reference in a section.</source>
        <translation>Nikdo nebyl v žádném úseku pomalejší než reference.</translation>
    </message>
    <message>
        <source>The greatest loss is that of %1 in S%2: %3 on %4.</source>
        <translation>Největší ztráta: %1 v S%2, %3 proti %4.</translation>
    </message>
    <message>
        <source>Never behind the %1; %2 at the end of S%3.</source>
        <translation>Nikdy ve ztrátě (reference: %1); %2 na konci S%3.</translation>
    </message>
    <message>
        <source>Farthest behind at the end: %1 after S%2.</source>
        <translation>Největší odstup je až na konci: %1 za S%2.</translation>
    </message>
    <message>
        <source>Farthest behind after S%1: %2; %3 after S%4.</source>
        <translation>Největší odstup za S%1: %2; za S%4 %3.</translation>
    </message>
    <message>
        <source>no motion of the boat</source>
        <translation>žádný pohyb lodi</translation>
    </message>
    <message>
        <source>a hole of %1 s</source>
        <translation>mezera %1 s</translation>
    </message>
    <message>
        <source>%1 holes, the longest of %2 s</source>
        <translation>mezer: %1, nejdelší %2 s</translation>
    </message>
    <message>
        <source>the clock ran backwards once</source>
        <translation>hodiny jednou běžely pozpátku</translation>
    </message>
    <message>
        <source>the clock ran backwards %1 times</source>
        <translation>hodiny běžely pozpátku, počet: %1</translation>
    </message>
    <message>
        <source>a moment stands twice</source>
        <translation>jeden okamžik je zapsán dvakrát</translation>
    </message>
    <message>
        <source>%1 moments stand twice</source>
        <translation>okamžiků zapsaných dvakrát: %1</translation>
    </message>
    <message>
        <source>Top to the bow</source>
        <translation>Horem ke špičce</translation>
    </message>
    <message>
        <source>Bottom to the bow</source>
        <translation>Spodkem ke špičce</translation>
    </message>
    <message>
        <source>Right to the bow</source>
        <translation>Pravou stranou ke špičce</translation>
    </message>
    <message>
        <source>Left to the bow</source>
        <translation>Levou stranou ke špičce</translation>
    </message>
    <message>
        <source>Back to the bow</source>
        <translation>Zadní stranou ke špičce</translation>
    </message>
    <message>
        <source>Screen to the bow</source>
        <translation>Displejem ke špičce</translation>
    </message>
    <message>
        <source>%1 of %2 touched</source>
        <translation>%1 z %2 s ťukem</translation>
    </message>
    <message>
        <source>Touched, %</source>
        <translation>Ťuky, %</translation>
    </message>
    <message>
        <source>Ranked rate, 90 %</source>
        <translation>Vyhlazený podíl, 90&#xa0;%</translation>
    </message>
    <message>
        <source>Touched</source>
        <translation>S ťukem</translation>
    </message>
    <message>
        <source>All in common</source>
        <translation>Všude stejně</translation>
    </message>
    <message>
        <source>No run that is asked for has its penalties by gate. Enter them for each gate to see where they happen.</source>
        <translation>Žádná z hledaných jízd nemá penalizace po brankách. Zadejte je u každé branky a uvidíte, kde vznikají.</translation>
    </message>
    <message>
        <source>Passages</source>
        <translation>Průjezdy</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Ťuky</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Neprojeté</translation>
    </message>
    <message>
        <source>Touch rate</source>
        <translation>Podíl ťuků</translation>
    </message>
    <message>
        <source>Ranked rate</source>
        <translation>Vyhlazený podíl</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Nad</translation>
    </message>
    <message>
        <source>Gate %1, upstream</source>
        <translation>Branka %1, protivodná</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Branka %1</translation>
    </message>
    <message>
        <source>%1 missed</source>
        <translation>neprojeto: %1</translation>
    </message>
    <message>
        <source>stands out</source>
        <translation>vyčnívá</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>(not given)</source>
        <translation>(neuvedeno)</translation>
    </message>
    <message>
        <source>%1: touches at the gates</source>
        <translation>%1: ťuky na brankách</translation>
    </message>
    <message>
        <source>Gates in order; ◀ upstream</source>
        <translation>Branky v pořadí; ◀ protivodné</translation>
    </message>
    <message>
        <source>Upstream</source>
        <translation>Protivodná</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Úsek</translation>
    </message>
    <message>
        <source>Touches %1</source>
        <translation>Ťuky %1</translation>
    </message>
    <message>
        <source> (the highest %1, %2 more in the table)</source>
        <translation> (nejvyšších %1, dalších %2 v tabulce)</translation>
    </message>
    <message>
        <source>What was noted of penalties</source>
        <translation>Co bylo u penalizací poznamenáno</translation>
    </message>
    <message>
        <source>Of those noted, %</source>
        <translation>Z poznamenaných, %</translation>
    </message>
    <message>
        <source>Share, 90 %</source>
        <translation>Podíl, 90&#xa0;%</translation>
    </message>
    <message>
        <source>Noted as</source>
        <translation>Poznamenáno jako</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Penalizace</translation>
    </message>
    <message>
        <source>Of</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Podíl</translation>
    </message>
    <message>
        <source>Most of one kind: %1 %2, %3 of %4 noted.</source>
        <translation>Nejčastější: %1 %2, %3 z %4 poznamenaných.</translation>
    </message>
    <message>
        <source>fastest third</source>
        <translation>nejrychlejší třetina</translation>
    </message>
    <message>
        <source>middle third</source>
        <translation>střední třetina</translation>
    </message>
    <message>
        <source>slowest third</source>
        <translation>nejpomalejší třetina</translation>
    </message>
    <message>
        <source>Risk and speed</source>
        <translation>Riziko a rychlost</translation>
    </message>
    <message>
        <source>Paddling time, % of the group&apos;s median</source>
        <translation>Čistý čas, % mediánu skupiny</translation>
    </message>
    <message>
        <source>Touches a run</source>
        <translation>Ťuky na jízdu</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#xa0;%</translation>
    </message>
    <message>
        <source>Equally fast in all</source>
        <translation>Všude stejně rychle</translation>
    </message>
    <message>
        <source>not planned</source>
        <translation>neplánováno</translation>
    </message>
    <message>
        <source>planned</source>
        <translation>naplánováno</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Jednotky</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Veličina</translation>
    </message>
    <message>
        <source>What the sessions add up to, in the unit that they are written in</source>
        <translation>Součet za jednotky, v měrné jednotce, v níž jsou zapsány</translation>
    </message>
    <message>
        <source>In the sessions</source>
        <translation>V jednotkách</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Pořadí</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Penalizace</translation>
    </message>
    <message>
        <source>Behind best</source>
        <translation>Za nejlepším</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Branky</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Jednotka</translation>
    </message>
    <message>
        <source>Missed gates</source>
        <translation>Neprojeté branky</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Závodník</translation>
    </message>
    <message>
        <source>From the first run of the heats to the second</source>
        <translation>Z první do druhé kvalifikační jízdy</translation>
    </message>
    <message>
        <source>From the semifinal to the final</source>
        <translation>Ze semifinále do finále</translation>
    </message>
    <message>
        <source>From the heats to the final</source>
        <translation>Z kvalifikace do finále</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Medaile</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finále</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Semifinále</translation>
    </message>
    <message>
        <source>too few for a range</source>
        <translation>na rozmezí příliš málo</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 až %2</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>příliš málo</translation>
    </message>
    <message>
        <source>Change behind, %</source>
        <translation>Změna ztráty, %</translation>
    </message>
    <message>
        <source>Change, %</source>
        <translation>Změna, %</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Závody</translation>
    </message>
    <message>
        <source>Typical error, %</source>
        <translation>Typická chyba, %</translation>
    </message>
    <message>
        <source>No change</source>
        <translation>Beze změny</translation>
    </message>
    <message>
        <source>No race of the team has both.</source>
        <translation>Žádný závod týmu nemá obojí.</translation>
    </message>
    <message>
        <source>How much runs vary by chance</source>
        <translation>Jak moc jízdy kolísají náhodou</translation>
    </message>
    <message>
        <source>Within, %</source>
        <translation>Kolísání, %</translation>
    </message>
    <message>
        <source>Own alone, %</source>
        <translation>Jen vlastní, %</translation>
    </message>
    <message>
        <source>With a missed gate</source>
        <translation>S neprojetou brankou</translation>
    </message>
    <message>
        <source>Too few runs to tell how much they vary.</source>
        <translation>Příliš málo jízd na to, aby se poznalo, jak kolísají.</translation>
    </message>
    <message>
        <source>Trend behind the winners</source>
        <translation>Trend ztráty za vítězi</translation>
    </message>
    <message>
        <source>Trend behind the fastest splits</source>
        <translation>Trend ztráty za nejrychlejšími mezičasy</translation>
    </message>
    <message>
        <source>A year, %</source>
        <translation>Za rok, %</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Verdikt</translation>
    </message>
    <message>
        <source>Too few runs of everybody to tell a trend: four over two months are needed.</source>
        <translation>Na trend je jízd každého příliš málo: je třeba čtyř během více než dvou měsíců.</translation>
    </message>
    <message>
        <source>%1 against</source>
        <translation>%1 proti</translation>
    </message>
    <message>
        <source>Against</source>
        <translation>Proti</translation>
    </message>
    <message>
        <source>Ahead, %</source>
        <translation>Vpředu, %</translation>
    </message>
    <message>
        <source>Met</source>
        <translation>Setkání</translation>
    </message>
    <message>
        <source>Won</source>
        <translation>Výhry</translation>
    </message>
    <message>
        <source>Gap, %</source>
        <translation>Odstup, %</translation>
    </message>
    <message>
        <source>Gap 90 %</source>
        <translation>Odstup 90&#xa0;%</translation>
    </message>
    <message>
        <source>Half</source>
        <translation>Polovina</translation>
    </message>
    <message>
        <source>The athlete met nobody in these races.</source>
        <translation>Závodník se v těchto závodech s nikým nesetkal.</translation>
    </message>
    <message>
        <source>Of races, %</source>
        <translation>Ze závodů, %</translation>
    </message>
    <message>
        <source>No race of the team has a result that says so.</source>
        <translation>Žádný závod týmu nemá výsledek, který by to ukázal.</translation>
    </message>
    <message>
        <source>Expected places among %1 boats</source>
        <translation>Očekávaná místa mezi loděmi: %1</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Loď</translation>
    </message>
    <message>
        <source>Medal, %</source>
        <translation>Medaile, %</translation>
    </message>
    <message>
        <source>First, %</source>
        <translation>První, %</translation>
    </message>
    <message>
        <source>Missed gate, %</source>
        <translation>Neprojetá, %</translation>
    </message>
    <message>
        <source>Too few runs to expect places of anybody: each boat needs three, and the boats must have met.</source>
        <translation>Na odhad umístění je jízd příliš málo: každá loď potřebuje tři a lodě se musí potkat.</translation>
    </message>
    <message>
        <source>What ranks took: %1</source>
        <translation>Co stačilo na umístění: %1</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Pořadí</translation>
    </message>
    <message>
        <source>Behind the winner, %</source>
        <translation>Za vítězem, %</translation>
    </message>
    <message>
        <source>Quartiles</source>
        <translation>Kvartily</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Nejméně</translation>
    </message>
    <message>
        <source>Most</source>
        <translation>Nejvíce</translation>
    </message>
    <message>
        <source>%1 would have</source>
        <translation>%1 by měl(a)</translation>
    </message>
    <message>
        <source>Median of %1</source>
        <translation>Medián: %1</translation>
    </message>
    <message>
        <source>The first %1, %2 more in the table</source>
        <translation>Prvních %1, dalších %2 v tabulce</translation>
    </message>
    <message>
        <source>&amp;Import .kvb file</source>
        <translation>&amp;Importovat soubor .kvb</translation>
    </message>
    <message>
        <source>Import .s&amp;bm file</source>
        <translation>I&amp;mportovat soubor .sbm</translation>
    </message>
    <message>
        <source>Import from a &amp;watch or logger…</source>
        <translation>Importovat z &amp;hodinek nebo záznamníku…</translation>
    </message>
    <message>
        <source>Move the trac&amp;k of the watch in time…</source>
        <translation>Posunout stopu hodinek v č&amp;ase…</translation>
    </message>
    <message>
        <source>Import &amp;power-meter data…</source>
        <translation>Importovat data &amp;wattmetru…</translation>
    </message>
    <message>
        <source>Save the edited .&amp;kvb file</source>
        <translation>Uložit upravený soubor .&amp;kvb</translation>
    </message>
    <message>
        <source>&amp;Export the strokes…</source>
        <translation>&amp;Exportovat záběry…</translation>
    </message>
    <message>
        <source>Export the &amp;turns…</source>
        <translation>Exportovat o&amp;braty…</translation>
    </message>
    <message>
        <source>Export the se&amp;gments…</source>
        <translation>Exportovat &amp;segmenty…</translation>
    </message>
    <message>
        <source>Export the values per &amp;distance…</source>
        <translation>Exportovat hodnoty po &amp;vzdálenosti…</translation>
    </message>
    <message>
        <source>Mount of the p&amp;hone</source>
        <translation>Upevnění &amp;telefonu</translation>
    </message>
    <message>
        <source>Found from the position</source>
        <translation>Zjištěno z polohy</translation>
    </message>
    <message>
        <source>Session &amp;information…</source>
        <translation>In&amp;formace o jednotce…</translation>
    </message>
    <message>
        <source>&amp;Analyse the recording again</source>
        <translation>&amp;Analyzovat záznam znovu</translation>
    </message>
    <message>
        <source>&amp;Keep the selected stretch</source>
        <translation>&amp;Ponechat vybranou část</translation>
    </message>
    <message>
        <source>Remove the selected &amp;stretch</source>
        <translation>Odstranit &amp;vybranou část</translation>
    </message>
    <message>
        <source>Re&amp;move the selected strokes, turns or mark</source>
        <translation>Odstranit vybrané &amp;záběry, obraty nebo značku</translation>
    </message>
    <message>
        <source>Select &amp;nothing</source>
        <translation>&amp;Nic nevybírat</translation>
    </message>
    <message>
        <source>&amp;Segments</source>
        <translation>S&amp;egmenty</translation>
    </message>
    <message>
        <source>&amp;Mark here</source>
        <translation>Z&amp;načka sem</translation>
    </message>
    <message>
        <source>Mo&amp;ve the nearest mark here</source>
        <translation>Přesunout nejbližší značku s&amp;em</translation>
    </message>
    <message>
        <source>Nearest mark &amp;earlier</source>
        <translation>Nejbližší značku &amp;dříve</translation>
    </message>
    <message>
        <source>Nearest mark &amp;later</source>
        <translation>Nejbližší značku &amp;později</translation>
    </message>
    <message>
        <source>&amp;Remove the nearest mark</source>
        <translation>&amp;Odstranit nejbližší značku</translation>
    </message>
    <message>
        <source>Remove &amp;all marks</source>
        <translation>Odstranit &amp;všechny značky</translation>
    </message>
    <message>
        <source>&amp;Save the segments</source>
        <translation>&amp;Uložit segmenty</translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation>&amp;Přehrávání</translation>
    </message>
    <message>
        <source>&amp;Play, pause</source>
        <translation>Přehrát, &amp;pozastavit</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>Po&amp;maleji</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>&amp;Rychleji</translation>
    </message>
    <message>
        <source>&amp;Real time</source>
        <translation>Skutečným &amp;tempem</translation>
    </message>
    <message>
        <source>P&amp;revious stroke</source>
        <translation>Př&amp;edchozí záběr</translation>
    </message>
    <message>
        <source>&amp;Next stroke</source>
        <translation>&amp;Další záběr</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Začátek</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Konec</translation>
    </message>
    <message>
        <source>&amp;Charts</source>
        <translation>&amp;Grafy</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Zo&amp;brazení</translation>
    </message>
    <message>
        <source>&amp;Zoom to the selected stretch</source>
        <translation>Přiblížit &amp;vybranou část</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>Při&amp;způsobit</translation>
    </message>
    <message>
        <source>%1; “%2” is none.</source>
        <translation>%1; „%2“ mezi ně nepatří.</translation>
    </message>
    <message>
        <source>%1 is of release %2.</source>
        <translation>%1 je verze %2.</translation>
    </message>
    <message>
        <source>Its folder %1 cannot be written, so that the analyzer shows it and leaves it as it is.</source>
        <translation>Do jeho složky %1 nelze zapisovat, proto jej analýza jen ukáže a ponechá, jak je.</translation>
    </message>
    <message>
        <source>Who of the team it is; a question mark: only you can tell</source>
        <translation>Kdo z týmu to je; otazník: to víte jen vy</translation>
    </message>
    <message>
        <source> or </source>
        <translation> nebo </translation>
    </message>
    <message>
        <source>Reckoned from the list</source>
        <translation>Vypočteno ze seznamu</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Řádek</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Sloupec</translation>
    </message>
    <message>
        <source>What stands there</source>
        <translation>Co tam stojí</translation>
    </message>
    <message>
        <source>Why it is not taken</source>
        <translation>Proč se to nepřevezme</translation>
    </message>
    <message>
        <source>Results list</source>
        <translation>Výsledková listina</translation>
    </message>
    <message>
        <source>Attached document</source>
        <translation>Přiložený dokument</translation>
    </message>
    <message>
        <source>Table kept with the race</source>
        <translation>Tabulka uchovaná u závodu</translation>
    </message>
    <message>
        <source>The least is %1 (%2), the most %3 (%4), of %5 rows</source>
        <translation>Nejmenší je %1 (%2), největší %3 (%4), řádků: %5</translation>
    </message>
    <message>
        <source>; %1 without a number are left out</source>
        <translation>; bez čísla vynecháno: %1</translation>
    </message>
    <message>
        <source>Choose a column of numbers or times: a click on one of its cells, then C.</source>
        <translation>Vyberte sloupec čísel nebo časů: klikněte na některou jeho buňku, pak C.</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Řádek</translation>
    </message>
    <message>
        <source>No row has a number in this column.</source>
        <translation>V tomto sloupci nemá žádný řádek číslo.</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Den</translation>
    </message>
    <message>
        <source>Start &amp;list…</source>
        <translation>Startovní &amp;listina…</translation>
    </message>
    <message>
        <source>Films &amp;from…</source>
        <translation>&amp;Filmy z…</translation>
    </message>
    <message>
        <source>Reckon with the camera&apos;s &amp;clock</source>
        <translation>Počítat s &amp;hodinami kamery</translation>
    </message>
    <message>
        <source>&amp;Remove the boat from the list</source>
        <translation>Odstra&amp;nit loď z listiny</translation>
    </message>
    <message>
        <source>To the next film that is not &amp;timed yet</source>
        <translation>Na další film, který ještě není &amp;změřen</translation>
    </message>
    <message>
        <source>&amp;Open the film of the start in front</source>
        <translation>&amp;Otevřít vpředu film startu</translation>
    </message>
    <message>
        <source>&amp;Previous start</source>
        <translation>&amp;Předchozí start</translation>
    </message>
    <message>
        <source>&amp;Next start</source>
        <translation>&amp;Další start</translation>
    </message>
    <message>
        <source>&amp;Agree: the film is named after its boat</source>
        <translation>&amp;Souhlas: film se pojmenuje podle své lodi</translation>
    </message>
    <message>
        <source>Agree to all that are &amp;sure</source>
        <translation>Souhlas se všemi &amp;jistými</translation>
    </message>
    <message>
        <source>Films from here on: one start &amp;earlier</source>
        <translation>Filmy odtud dál: o start dří&amp;ve</translation>
    </message>
    <message>
        <source>Films from here on: one start late&amp;r</source>
        <translation>Filmy od&amp;tud dál: o start později</translation>
    </message>
    <message>
        <source>Did not start, or did after all</source>
        <translation>Nestartoval, nebo přece jen ano</translation>
    </message>
    <message>
        <source>Did not finish, or did after all</source>
        <translation>Nedojel, nebo přece jen ano</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Poznámky</translation>
    </message>
    <message>
        <source>Stroke on the left</source>
        <translation>Záběr vlevo</translation>
    </message>
    <message>
        <source>Stroke on the right</source>
        <translation>Záběr vpravo</translation>
    </message>
    <message>
        <source>Other hand for the selected stroke</source>
        <translation>Druhá ruka u vybraného záběru</translation>
    </message>
    <message>
        <source>Play from the selected tag</source>
        <translation>Přehrát od vybraného štítku</translation>
    </message>
    <message>
        <source>To the other run of the time loss</source>
        <translation>Na druhou jízdu časové ztráty</translation>
    </message>
    <message>
        <source>Record the team radio, or end it</source>
        <translation>Nahrávat týmovou vysílačku, nebo ukončit</translation>
    </message>
    <message>
        <source>Clips of the chosen marks, one after another</source>
        <translation>Výřezy zvolených značek, jeden po druhém</translation>
    </message>
    <message>
        <source>Add a &amp;category</source>
        <translation>Přidat &amp;kategorii</translation>
    </message>
    <message>
        <source>&amp;Team</source>
        <translation>&amp;Tým</translation>
    </message>
    <message>
        <source>&amp;New athlete…</source>
        <translation>&amp;Nový závodník…</translation>
    </message>
    <message>
        <source>Remo&amp;ve the athlete</source>
        <translation>&amp;Odstranit závodníka</translation>
    </message>
    <message>
        <source>Re&amp;move the category</source>
        <translation>Odstranit &amp;kategorii</translation>
    </message>
    <message>
        <source>New &amp;season</source>
        <translation>Nová &amp;sezóna</translation>
    </message>
    <message>
        <source>New &amp;race</source>
        <translation>No&amp;vý závod</translation>
    </message>
    <message>
        <source>Move season or race &amp;up</source>
        <translation>Posunout sezónu nebo závod nahor&amp;u</translation>
    </message>
    <message>
        <source>Move season or race &amp;down</source>
        <translation>Posunout sezónu nebo závod &amp;dolů</translation>
    </message>
    <message>
        <source>Where the athlete &amp;loses time…</source>
        <translation>Kde závodník &amp;ztrácí čas…</translation>
    </message>
    <message>
        <source>S&amp;eason of the athlete</source>
        <translation>S&amp;ezóna závodníka</translation>
    </message>
    <message>
        <source>Compute all a&amp;verages again</source>
        <translation>Přepočítat všechny &amp;průměry</translation>
    </message>
    <message>
        <source>&amp;Find an athlete</source>
        <translation>Najít záv&amp;odníka</translation>
    </message>
    <message>
        <source>Take &amp;results over…</source>
        <translation>Převzít výs&amp;ledky…</translation>
    </message>
    <message>
        <source>Cate&amp;gorization report…</source>
        <translation>Zpráva o kate&amp;gorizaci…</translation>
    </message>
    <message>
        <source>Save the c&amp;hart…</source>
        <translation>Uložit gr&amp;af…</translation>
    </message>
    <message>
        <source>&amp;Edit the cell</source>
        <translation>Upravit &amp;buňku</translation>
    </message>
    <message>
        <source>&amp;Remove what is chosen</source>
        <translation>Odstranit &amp;vybrané</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Závodníci</translation>
    </message>
    <message>
        <source>Selection %1</source>
        <translation>Nominace %1</translation>
    </message>
    <message>
        <source>Race analyzer</source>
        <translation>Analýza závodu</translation>
    </message>
    <message>
        <source>Every split of a race side by side, coloured by rank.</source>
        <translation>Všechny mezičasy závodu vedle sebe, obarvené podle pořadí.</translation>
    </message>
    <message>
        <source>Open races</source>
        <translation>Otevřít závody</translation>
    </message>
    <message>
        <source>Split files</source>
        <translation>Soubory mezičasů</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Časové ztráty</translation>
    </message>
    <message>
        <source>Where each run lost its time, and what comes back.</source>
        <translation>Kde která jízda ztratila čas a co se opakuje.</translation>
    </message>
    <message>
        <source>Open split files</source>
        <translation>Otevřít soubory mezičasů</translation>
    </message>
    <message>
        <source>Split taking</source>
        <translation>Měření mezičasů</translation>
    </message>
    <message>
        <source>Time every run from its video, exact to the frame.</source>
        <translation>Změřte každou jízdu z videa, s přesností na snímek.</translation>
    </message>
    <message>
        <source>Open a folder of videos</source>
        <translation>Otevřít složku videí</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filmy</translation>
    </message>
    <message>
        <source>A folder of films played, compared, tagged and cut.</source>
        <translation>Složka filmů: přehrát, porovnat, označit, stříhat.</translation>
    </message>
    <message>
        <source>Open a folder of films</source>
        <translation>Otevřít složku filmů</translation>
    </message>
    <message>
        <source>Kayak cross</source>
        <translation>Kayak cross</translation>
    </message>
    <message>
        <source>Time trials, heats and attacks of a cross race, from video.</source>
        <translation>Časovky, rozjížďky a útoky závodu v crossu, z videa.</translation>
    </message>
    <message>
        <source>Open a kayak cross</source>
        <translation>Otevřít kayak cross</translation>
    </message>
    <message>
        <source>Compare films</source>
        <translation>Porovnání filmů</translation>
    </message>
    <message>
        <source>Two to four runs in one picture, as a film.</source>
        <translation>Dvě až čtyři jízdy v jednom obraze, jako film.</translation>
    </message>
    <message>
        <source>Comparisons of films</source>
        <translation>Porovnání filmů</translation>
    </message>
    <message>
        <source>Comparisons</source>
        <translation>Porovnání</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Porovnání</translation>
    </message>
    <message>
        <source>Team</source>
        <translation>Tým</translation>
    </message>
    <message>
        <source>Results of every athlete, season by season, and their category.</source>
        <translation>Výsledky každého závodníka, sezónu po sezóně, a jejich kategorie.</translation>
    </message>
    <message>
        <source>Team results</source>
        <translation>Výsledky týmu</translation>
    </message>
    <message>
        <source>Teams</source>
        <translation>Týmy</translation>
    </message>
    <message>
        <source>Selection races</source>
        <translation>Nominační závody</translation>
    </message>
    <message>
        <source>Who is selected, by which results, and why.</source>
        <translation>Kdo je nominován, na základě kterých výsledků a proč.</translation>
    </message>
    <message>
        <source>Planning</source>
        <translation>Plánování</translation>
    </message>
    <message>
        <source>Seasons, weeks and sessions, heart, gym and goals of a group.</source>
        <translation>Sezóny, týdny a jednotky, srdce, posilovna a cíle skupiny.</translation>
    </message>
    <message>
        <source>Plannings</source>
        <translation>Plánování</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Testy</translation>
    </message>
    <message>
        <source>Lap, sprint and eight tests on the water, compared.</source>
        <translation>Testy na kola, sprint a osmičky na vodě, porovnané.</translation>
    </message>
    <message>
        <source>Boat motion</source>
        <translation>Pohyb lodi</translation>
    </message>
    <message>
        <source>Recordings of phone and watch over each other, and converted.</source>
        <translation>Záznamy telefonu a hodinek přes sebe, i převedené.</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>Otevřít záznamy</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Záznamy</translation>
    </message>
    <message>
        <source>Strokes, turns and segments of a recording, on a map.</source>
        <translation>Záběry, obraty a segmenty záznamu na mapě.</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Hledání</translation>
    </message>
    <message>
        <source>Every gate, penalty and run of all seasons, by one question.</source>
        <translation>Každá branka, penalizace a jízda všech sezón, jedním dotazem.</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>Prohledat soubory</translation>
    </message>
    <message>
        <source>Which gates are touched, by whom, and what it cost.</source>
        <translation>Na kterých brankách se ťuká, kdo a co to stálo.</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tabulky</translation>
    </message>
    <message>
        <source>Any list of results, sorted, tinted, reckoned with, and whose it is.</source>
        <translation>Jakýkoli seznam výsledků: třídit, obarvit, počítat s ním a vidět, čí je.</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>Otevřít seznamy</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Seznamy</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Sezóna</translation>
    </message>
    <message>
        <source>How a team&apos;s athletes stand: trend, rivals, medals.</source>
        <translation>Jak jsou na tom závodníci: trend, soupeři, medaile.</translation>
    </message>
    <message>
        <source>Open a team</source>
        <translation>Otevřít tým</translation>
    </message>
    <message>
        <source>Fetch films</source>
        <translation>Stažení filmů</translation>
    </message>
    <message>
        <source>The films of a race from a server, by the bibs of a start list.</source>
        <translation>Filmy závodu ze serveru, podle startovních čísel listiny.</translation>
    </message>
    <message>
        <source>Open a source of films</source>
        <translation>Otevřít zdroj filmů</translation>
    </message>
    <message>
        <source>Sources of films</source>
        <translation>Zdroje filmů</translation>
    </message>
    <message>
        <source>Test session</source>
        <translation>Testovací jednotka</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>New &amp;lap test</source>
        <translation>Nový test na &amp;kola</translation>
    </message>
    <message>
        <source>New &amp;sprint</source>
        <translation>No&amp;vý sprint</translation>
    </message>
    <message>
        <source>New &amp;eight test</source>
        <translation>Nový test &amp;osmičky</translation>
    </message>
    <message>
        <source>&amp;Duplicate the test</source>
        <translation>&amp;Duplikovat test</translation>
    </message>
    <message>
        <source>&amp;Previous test</source>
        <translation>&amp;Předchozí test</translation>
    </message>
    <message>
        <source>Ne&amp;xt test</source>
        <translation>Da&amp;lší test</translation>
    </message>
    <message>
        <source>&amp;Compare with the athlete&apos;s other tests</source>
        <translation>Porovnat s jinými testy &amp;závodníka</translation>
    </message>
    <message>
        <source>&amp;Tick every listed test</source>
        <translation>Zaškrtnout všechny testy v &amp;seznamu</translation>
    </message>
    <message>
        <source>&amp;Untick all</source>
        <translation>Zrušit zaškr&amp;tnutí</translation>
    </message>
    <message>
        <source>&amp;Values</source>
        <translation>&amp;Hodnoty</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabulka</translation>
    </message>
    <message>
        <source>Charts by &amp;lap or stretch</source>
        <translation>Grafy po &amp;kole či části</translation>
    </message>
    <message>
        <source>Charts by t&amp;urn</source>
        <translation>Grafy po ob&amp;ratu</translation>
    </message>
    <message>
        <source>Charts by &amp;stroke</source>
        <translation>Grafy po zá&amp;běru</translation>
    </message>
    <message>
        <source>&amp;List of tests</source>
        <translation>&amp;Seznam testů</translation>
    </message>
    <message>
        <source>Choose an &amp;athlete</source>
        <translation>Vybrat z&amp;ávodníka</translation>
    </message>
    <message>
        <source>Take in from a split &amp;file…</source>
        <translation>Převzít ze souboru &amp;mezičasů…</translation>
    </message>
    <message>
        <source>Take in from a &amp;recording…</source>
        <translation>Převzít ze zá&amp;znamu…</translation>
    </message>
    <message>
        <source>&amp;Export the table…</source>
        <translation>&amp;Exportovat tabulku…</translation>
    </message>
    <message>
        <source>&amp;Copy the table</source>
        <translation>Kopírovat ta&amp;bulku</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Trať</translation>
    </message>
    <message>
        <source>The course drawn: banks, gates, split lines and the lines of runs.</source>
        <translation>Nakreslená trať: břehy, branky, měřicí čáry a stopy jízd.</translation>
    </message>
    <message>
        <source>Draw the course of a race</source>
        <translation>Nakreslit trať závodu</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>Sledování</translation>
    </message>
    <message>
        <source>A boat followed through a film: its path and speed.</source>
        <translation>Loď sledovaná filmem: její dráha a rychlost.</translation>
    </message>
    <message>
        <source>Open films</source>
        <translation>Otevřít filmy</translation>
    </message>
    <message>
        <source>Slit picture</source>
        <translation>Štěrbinový obraz</translation>
    </message>
    <message>
        <source>Every crossing of a line, as a finish camera shows it.</source>
        <translation>Každé protnutí čáry jako z cílové kamery.</translation>
    </message>
    <message>
        <source>Open films of a fixed camera</source>
        <translation>Otevřít filmy pevné kamery</translation>
    </message>
    <message>
        <source>Share folders</source>
        <translation>Sdílené složky</translation>
    </message>
    <message>
        <source>A folder the same here and on the team&apos;s own server.</source>
        <translation>Složka stejná zde i na serveru týmu.</translation>
    </message>
    <message>
        <source>Share a folder</source>
        <translation>Sdílet složku</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Složky</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>Označeno</translation>
    </message>
    <message>
        <source>Proposal</source>
        <translation>Návrh</translation>
    </message>
    <message>
        <source>Confidence</source>
        <translation>Jistota</translation>
    </message>
    <message>
        <source>%1 s, %2</source>
        <translation>%1 s, %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>none</source>
        <translation>žádný</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Jízda</translation>
    </message>
    <message>
        <source>No boat was found that could be this run: look for it in the slit picture.</source>
        <translation>Nenašla se žádná loď, která by mohla být touto jízdou: vyhledejte ji ve štěrbinovém obrazu.</translation>
    </message>
    <message>
        <source>This run is marked here.</source>
        <translation>Tato jízda je zde označena.</translation>
    </message>
    <message>
        <source>Where the run is marked at this line, in seconds of the film</source>
        <translation>Kde je jízda na této čáře označena, v sekundách filmu</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>vynecháno</translation>
    </message>
    <message>
        <source>→ new here</source>
        <translation>→ nový zde</translation>
    </message>
    <message>
        <source>← new there</source>
        <translation>← nový tam</translation>
    </message>
    <message>
        <source>→ changed here</source>
        <translation>→ změněn zde</translation>
    </message>
    <message>
        <source>← changed there</source>
        <translation>← změněn tam</translation>
    </message>
    <message>
        <source>↔ on both sides</source>
        <translation>↔ na obou stranách</translation>
    </message>
    <message>
        <source>✕ deleted here</source>
        <translation>✕ smazán zde</translation>
    </message>
    <message>
        <source>✕ deleted there</source>
        <translation>✕ smazán tam</translation>
    </message>
    <message>
        <source>Goes to the server</source>
        <translation>Odešle se na server</translation>
    </message>
    <message>
        <source>Comes from the server</source>
        <translation>Stáhne se ze serveru</translation>
    </message>
    <message>
        <source>Goes to the server, in place of what it has</source>
        <translation>Odešle se na server místo toho, co tam je</translation>
    </message>
    <message>
        <source>Comes from the server, in place of what is here</source>
        <translation>Stáhne se ze serveru místo toho, co je zde</translation>
    </message>
    <message>
        <source>Is compared; where both differ, both are kept</source>
        <translation>Porovná se; kde se liší, zůstanou oba</translation>
    </message>
    <message>
        <source>Is deleted on the server where you tick it</source>
        <translation>Smaže se na serveru, pokud ho zaškrtnete</translation>
    </message>
    <message>
        <source>Is deleted here where you tick it</source>
        <translation>Smaže se zde, pokud ho zaškrtnete</translation>
    </message>
    <message>
        <source>%1 new here</source>
        <translation>%1 nových zde</translation>
    </message>
    <message>
        <source>%1 new there</source>
        <translation>%1 nových tam</translation>
    </message>
    <message>
        <source>%1 changed here</source>
        <translation>%1 změněných zde</translation>
    </message>
    <message>
        <source>%1 changed there</source>
        <translation>%1 změněných tam</translation>
    </message>
    <message>
        <source>%1 on both sides</source>
        <translation>%1 na obou stranách</translation>
    </message>
    <message>
        <source>%1 deleted here</source>
        <translation>%1 smazaných zde</translation>
    </message>
    <message>
        <source>%1 deleted there</source>
        <translation>%1 smazaných tam</translation>
    </message>
    <message>
        <source>Both sides are the same</source>
        <translation>Obě strany jsou stejné</translation>
    </message>
    <message>
        <source>%1 shared</source>
        <translation>%1 sdílených</translation>
    </message>
    <message>
        <source>%1 kept twice</source>
        <translation>%1 ponechaných dvakrát</translation>
    </message>
    <message>
        <source>Fastest at %1 s of the film: %2 m/s.</source>
        <translation>Nejrychleji v čase %1 s filmu: %2 m/s.</translation>
    </message>
    <message>
        <source>Fastest at %1 s of the film: %2 m/s (a scale only: it holds near the two points and along their line).</source>
        <translation>Nejrychleji v čase %1 s filmu: %2 m/s (jen měřítko: platí poblíž obou bodů a podél jejich spojnice).</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Snímek</translation>
    </message>
    <message>
        <source>Steadied x</source>
        <translation>Ustálené x</translation>
    </message>
    <message>
        <source>Steadied y</source>
        <translation>Ustálené y</translation>
    </message>
    <message>
        <source>Across</source>
        <translation>Napříč</translation>
    </message>
    <message>
        <source>Along</source>
        <translation>Podél</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Rychlost</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Shoda</translation>
    </message>
    <message>
        <source>Film [s]</source>
        <translation>Film [s]</translation>
    </message>
    <message>
        <source>m/s</source>
        <translation>m/s</translation>
    </message>
    <message>
        <source>Draw a box round what is to be followed.</source>
        <translation>Nakreslete rámeček kolem toho, co se má sledovat.</translation>
    </message>
    <message>
        <source>Click known points on the water for metres and speeds: the poles of two gates, or of one for a scale only.</source>
        <translation>Pro metry a rychlosti klepněte na známé body na vodě: tyče dvou branek, nebo jedné jen pro měřítko.</translation>
    </message>
    <message>
        <source>There is no speed: the path is too short, or the camera&apos;s motion is not known.</source>
        <translation>Rychlost není: dráha je příliš krátká, nebo není znám pohyb kamery.</translation>
    </message>
    <message>
        <source>Uncertainty of the clicks</source>
        <translation>Nejistota klepnutí</translation>
    </message>
    <message>
        <source>✓ Done</source>
        <translation>✓ Hotovo</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>Probíhá…</translation>
    </message>
    <message>
        <source>Lists (*.csv *.tsv *.txt *.xlsx *.ods *.kvx *.kvtable);;All files (*)</source>
        <translation>Seznamy (*.csv *.tsv *.txt *.xlsx *.ods *.kvx *.kvtable);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>“%1” holds no runs. Nothing was imported.</source>
        <translation>„%1“ neobsahuje žádnou jízdu. Nic se neimportovalo.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthleteDialog</name>
    <message>
        <source>Athlete</source>
        <translation>Závodník</translation>
    </message>
    <message>
        <source>SURNAME Name</source>
        <translation>PŘÍJMENÍ Jméno</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>neznámo</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Jméno</translation>
    </message>
    <message>
        <source>&amp;Club</source>
        <translation>&amp;Klub</translation>
    </message>
    <message>
        <source>&amp;Birth year</source>
        <translation>&amp;Rok narození</translation>
    </message>
    <message>
        <source>&amp;Age group</source>
        <translation>&amp;Věková skupina</translation>
    </message>
    <message>
        <source>Preselected, group %1</source>
        <translation>Předvybrán(a), skupina %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>žádné</translation>
    </message>
    <message>
        <source>Bonus %1 (percent)</source>
        <translation>Bonus %1 (procenta)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthleteList</name>
    <message>
        <source>Search athletes</source>
        <translation>Hledat závodníky</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Sezóna</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>zatím žádné</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthletePageDialog</name>
    <message>
        <source>Page of an athlete</source>
        <translation>Stránka závodníka</translation>
    </message>
    <message>
        <source>All races that are open</source>
        <translation>Všechny otevřené závody</translation>
    </message>
    <message>
        <source>Only the race of the run that is shown</source>
        <translation>Jen závod ukázané jízdy</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>Záv&amp;odník</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;Z čeho</translation>
    </message>
    <message>
        <source>&amp;Preview and print…</source>
        <translation>&amp;Náhled a tisk…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>&amp;Uložit jako PDF…</translation>
    </message>
    <message>
        <source>One A4 page: where time is lost on the %1, what to train, penalties.</source>
        <translation>Jedna strana A4: kde se ztrácí čas (proti: %1), co trénovat, penalizace.</translation>
    </message>
    <message>
        <source>Choose one of the athletes of the list.</source>
        <translation>Vyberte některého ze závodníků seznamu.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthletePages</name>
    <message>
        <source>Save the page of the athlete</source>
        <translation>Uložit stránku závodníka</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Dokumenty PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The page cannot be written over a race that it is made from.</source>
        <translation>Stránku nelze zapsat přes závod, ze kterého vzniká.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthletePanel</name>
    <message>
        <source>Retired: left out of the categorization report</source>
        <translation>Ukončil(a) kariéru: vynechá se ze zprávy o kategorizaci</translation>
    </message>
    <message>
        <source>Search athletes</source>
        <translation>Hledat závodníky</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Všechny kategorie</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Závodník</translation>
    </message>
    <message>
        <source>name</source>
        <translation>jméno</translation>
    </message>
    <message>
        <source>Born</source>
        <translation>Nar.</translation>
    </message>
    <message>
        <source>birth year</source>
        <translation>rok narození</translation>
    </message>
    <message>
        <source>Boats</source>
        <translation>Lodě</translation>
    </message>
    <message>
        <source>Ret.</source>
        <translation>Kon.</translation>
    </message>
    <message>
        <source>Retired</source>
        <translation>Po kariéře</translation>
    </message>
    <message>
        <source>retirement</source>
        <translation>ukončení kariéry</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AttackForm</name>
    <message>
        <source>Passed</source>
        <translation>Předjel(a)</translation>
    </message>
    <message>
        <source>No end</source>
        <translation>Bez konce</translation>
    </message>
    <message>
        <source>Takes the end of the attack out</source>
        <translation>Odebere konec útoku</translation>
    </message>
    <message>
        <source>The attacker went past</source>
        <translation>Útočník projel před soupeře</translation>
    </message>
    <message>
        <source>Attacker</source>
        <translation>Útočník</translation>
    </message>
    <message>
        <source>on</source>
        <translation>na</translation>
    </message>
    <message>
        <source>attacker</source>
        <translation>útočník</translation>
    </message>
    <message>
        <source>outcome of an attack</source>
        <translation>výsledek útoku</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Komentář</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Strana</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>side of an attack</source>
        <translation>strana útoku</translation>
    </message>
    <message>
        <source>place of an attack</source>
        <translation>místo útoku</translation>
    </message>
    <message>
        <source>comment on an attack</source>
        <translation>komentář k útoku</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>Začíná zde</translation>
    </message>
    <message>
        <source>The attack starts at this frame</source>
        <translation>Útok začíná na tomto snímku</translation>
    </message>
    <message>
        <source>End here</source>
        <translation>Končí zde</translation>
    </message>
    <message>
        <source>The attack ends at this frame</source>
        <translation>Útok končí na tomto snímku</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Removes the attack</source>
        <translation>Odstraní útok</translation>
    </message>
    <message>
        <source>?  %1</source>
        <translation>?  %1</translation>
    </message>
    <message>
        <source>unnamed</source>
        <translation>beze jména</translation>
    </message>
    <message>
        <source>Start %1</source>
        <translation>Začátek %1</translation>
    </message>
    <message>
        <source>End %1</source>
        <translation>Konec %1</translation>
    </message>
    <message>
        <source>defenders</source>
        <translation>obránci</translation>
    </message>
    <message>
        <source>%1 defends</source>
        <translation>brání se: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AveragesModel</name>
    <message>
        <source>Share of the runs with so many penalty seconds</source>
        <translation>Podíl jízd s tolika trestnými sekundami</translation>
    </message>
    <message>
        <source>S%1</source>
        <translation>S%1</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Sezóna</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Behind</source>
        <translation>Ztráta</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Čisté</translation>
    </message>
    <message>
        <source>2 s</source>
        <translation>2 s</translation>
    </message>
    <message>
        <source>4 s</source>
        <translation>4 s</translation>
    </message>
    <message>
        <source>6 to 48 s</source>
        <translation>6 až 48 s</translation>
    </message>
    <message>
        <source>50 s and more</source>
        <translation>50 s a víc</translation>
    </message>
    <message>
        <source>All seasons</source>
        <translation>Všechny sezóny</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::BalanceView</name>
    <message>
        <source>Side unknown: nothing tells which side of the phone points to the bow. Name its mount in the menu Edit, and left and right are found.</source>
        <translation>Strana neznámá: nic neříká, která strana telefonu míří ke špičce. Určete jeho upevnění v nabídce Úpravy a levá a pravá se zjistí.</translation>
    </message>
    <message>
        <source>even</source>
        <translation>vyrovnané</translation>
    </message>
    <message>
        <source>left +%1 %</source>
        <translation>levá +%1&#xa0;%</translation>
    </message>
    <message>
        <source>right +%1 %</source>
        <translation>pravá +%1&#xa0;%</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Záběry</translation>
    </message>
    <message>
        <source>Force (N)</source>
        <translation>Síla (N)</translation>
    </message>
    <message>
        <source>Impulse (N·s)</source>
        <translation>Impulz (N·s)</translation>
    </message>
    <message>
        <source>Power (W)</source>
        <translation>Výkon (W)</translation>
    </message>
    <message>
        <source>Water phase (s)</source>
        <translation>Vodní fáze (s)</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Levá</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Pravá</translation>
    </message>
    <message>
        <source>Differences under %1 % are no finding</source>
        <translation>Rozdíly pod %1&#xa0;% nic neznamenají</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::BodyPanel</name>
    <message>
        <source>Body</source>
        <translation>Tělo</translation>
    </message>
    <message>
        <source>body data</source>
        <translation>údaje o těle</translation>
    </message>
    <message>
        <source>Add weight</source>
        <translation>Přidat hmotnost</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Hmotnost</translation>
    </message>
    <message>
        <source>Body fat</source>
        <translation>Tělesný tuk</translation>
    </message>
    <message>
        <source>Resting heart rate</source>
        <translation>Klidová tepová frekvence</translation>
    </message>
    <message>
        <source>heart rate</source>
        <translation>tepová frekvence</translation>
    </message>
    <message>
        <source>Add heart rate</source>
        <translation>Přidat tepovou frekvenci</translation>
    </message>
    <message>
        <source>Heart-rate variability</source>
        <translation>Variabilita tepové frekvence</translation>
    </message>
    <message>
        <source>variability</source>
        <translation>variabilita</translation>
    </message>
    <message>
        <source>Add measurement</source>
        <translation>Přidat měření</translation>
    </message>
    <message>
        <source>Import list…</source>
        <translation>Importovat seznam…</translation>
    </message>
    <message>
        <source>A list with a header: Date and one or more of AVNN, SDNN, rMSSD, pNN50, LF, HF. It can also be dropped here.</source>
        <translation>Seznam se záhlavím: Date a jedno či více z AVNN, SDNN, rMSSD, pNN50, LF, HF. Lze ho sem i přetáhnout.</translation>
    </message>
    <message>
        <source>Index of the chart</source>
        <translation>Index grafu</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>&amp;Index</translation>
    </message>
    <message>
        <source>Choose an athlete.</source>
        <translation>Vyberte závodníka.</translation>
    </message>
    <message>
        <source>Add a season for this athlete first.</source>
        <translation>Nejdřív přidejte tomuto závodníkovi sezónu.</translation>
    </message>
    <message>
        <source>No weight of this season yet.
Press Insert to add today&apos;s.</source>
        <translation>V této sezóně zatím žádná hmotnost.
Stiskněte Insert a přidejte dnešní.</translation>
    </message>
    <message>
        <source>No heart rate of this season yet.
Press Insert to add this morning&apos;s.</source>
        <translation>V této sezóně zatím žádná tepová frekvence.
Stiskněte Insert a přidejte dnešní ranní.</translation>
    </message>
    <message>
        <source>No measurement of this season yet.
Press Insert to add one, or import a list.</source>
        <translation>V této sezóně zatím žádné měření.
Stiskněte Insert a přidejte ho, nebo importujte seznam.</translation>
    </message>
    <message>
        <source>bpm</source>
        <translation>tepů/min</translation>
    </message>
    <message>
        <source>Add a few mornings&apos; heart rates to see the mean of the week against what is usual.</source>
        <translation>Přidejte tepovou frekvenci z několika rán a uvidíte průměr týdne proti obvyklému.</translation>
    </message>
    <message>
        <source>No %1 of this season. Add measurements, import a list or choose another index.</source>
        <translation>V této sezóně chybí %1. Přidejte měření, importujte seznam nebo zvolte jiný index.</translation>
    </message>
    <message>
        <source>Import variability</source>
        <translation>Import variability</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt *.tsv);;All files (*)</source>
        <translation>Seznamy (*.csv *.txt *.tsv);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>import of variability</source>
        <translation>import variability</translation>
    </message>
    <message>
        <source>The list cannot be read: %1</source>
        <translation>Seznam nelze přečíst: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CameraPage</name>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Štítek</translation>
    </message>
    <message>
        <source>Lag</source>
        <translation>Zpoždění</translation>
    </message>
    <message>
        <source>Off by</source>
        <translation>Odchylka</translation>
    </message>
    <message>
        <source>Attach a film…</source>
        <translation>Připojit film…</translation>
    </message>
    <message>
        <source>Beside the film</source>
        <translation>Vedle filmu</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>Odpojit</translation>
    </message>
    <message>
        <source>Takes the film shown beside off this run</source>
        <translation>Odpojí vedlejší film od této jízdy</translation>
    </message>
    <message>
        <source>Attach it to every run</source>
        <translation>Připojit ke každé jízdě</translation>
    </message>
    <message>
        <source>A fixed camera often films the whole race in one go</source>
        <translation>Pevná kamera často natočí celý závod najednou</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádná</translation>
    </message>
    <message>
        <source>Attach the film of a camera that stood at the course.</source>
        <translation>Připojte film z kamery, která stála u trati.</translation>
    </message>
    <message>
        <source>Choose a camera to see its film beside this one.</source>
        <translation>Vyberte kameru a uvidíte její film vedle tohoto.</translation>
    </message>
    <message>
        <source>Find one moment on both films, the fixed camera&apos;s alone with Alt+PgUp and Alt+PgDown. M marks it.</source>
        <translation>Najděte na obou filmech týž okamžik, na samotné pevné kameře pomocí Alt+PgUp a Alt+PgDown. M ho označí.</translation>
    </message>
    <message>
        <source>In step: the fixed camera&apos;s film is %1 s ahead.</source>
        <translation>Sladěno: film pevné kamery je o %1 s napřed.</translation>
    </message>
    <message>
        <source>Placed by the dates in the two films, to a second or two.</source>
        <translation>Umístěno podle dat v obou filmech, s přesností na sekundu až dvě.</translation>
    </message>
    <message>
        <source>Not in step yet.</source>
        <translation>Zatím nesladěno.</translation>
    </message>
    <message>
        <source>Its film has no date: moments are kept without the time of its clock.</source>
        <translation>Její film nemá datum: okamžiky se uchovají bez času jejích hodin.</translation>
    </message>
    <message>
        <source>fixed camera detached</source>
        <translation>pevná kamera odpojena</translation>
    </message>
    <message>
        <source>fixed camera for every run</source>
        <translation>pevná kamera pro každou jízdu</translation>
    </message>
    <message>
        <source>The film of the fixed camera shows no frame.</source>
        <translation>Film pevné kamery neukazuje žádný snímek.</translation>
    </message>
    <message>
        <source>moment on both films</source>
        <translation>okamžik na obou filmech</translation>
    </message>
    <message>
        <source>Same moment</source>
        <translation>Týž okamžik</translation>
    </message>
    <message>
        <source>moment removed</source>
        <translation>okamžik odstraněn</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Chart</name>
    <message>
        <source>1 run</source>
        <translation>1 jízda</translation>
    </message>
    <message>
        <source> · %1 of %2 selected runs</source>
        <translation> · %1 z %2 vybraných jízd</translation>
    </message>
    <message>
        <source>The filter matches nobody. Change it to see runs again.</source>
        <translation>Filtru nikdo neodpovídá. Změňte ho a jízdy se zase ukážou.</translation>
    </message>
    <message>
        <source>Open a race to see its charts.</source>
        <translation>Otevřete závod a uvidíte jeho grafy.</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n jízda</numerusform>
            <numerusform>%n jízdy</numerusform>
            <numerusform>%n jízd</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ChartPanel</name>
    <message>
        <source>Charts</source>
        <translation>Grafy</translation>
    </message>
    <message>
        <source>&amp;Reference</source>
        <translation>&amp;Reference</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Reference</translation>
    </message>
    <message>
        <source>What the runs are held against</source>
        <translation>S čím se jízdy porovnávají</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Přizpůsobit</translation>
    </message>
    <message>
        <source>Show everything again (or double click)</source>
        <translation>Ukázat opět vše (nebo dvojklik)</translation>
    </message>
    <message>
        <source>Save chart…</source>
        <translation>Uložit graf…</translation>
    </message>
    <message>
        <source>Save as PNG, SVG or CSV</source>
        <translation>Uložit jako PNG, SVG nebo CSV</translation>
    </message>
    <message>
        <source>Best run</source>
        <translation>Nejlepší jízda</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Medián</translation>
    </message>
    <message>
        <source>Ideal run</source>
        <translation>Ideální jízda</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ChartTabs</name>
    <message>
        <source>Season</source>
        <translation>Sezóna</translation>
    </message>
    <message>
        <source>Race progression</source>
        <translation>Průběh závodu</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>Průměry</translation>
    </message>
    <message>
        <source>&amp;All seasons</source>
        <translation>&amp;Všechny sezóny</translation>
    </message>
    <message>
        <source>The season chart shows every season, not the chosen one alone</source>
        <translation>Graf sezóny ukazuje každou sezónu, nejen zvolenou</translation>
    </message>
    <message>
        <source>Save chart…</source>
        <translation>Uložit graf…</translation>
    </message>
    <message>
        <source>As a picture (PNG, SVG) or as CSV (Ctrl+E)</source>
        <translation>Jako obrázek (PNG, SVG) nebo jako CSV (Ctrl+E)</translation>
    </message>
    <message>
        <source>The results of an athlete stand here as charts.</source>
        <translation>Výsledky závodníka se zde ukážou jako grafy.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>all seasons</source>
        <translation>všechny sezóny</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ChartView</name>
    <message>
        <source>No test yet</source>
        <translation>Zatím žádný test</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Split %1 (s)</source>
        <translation>Mezičas %1 (s)</translation>
    </message>
    <message>
        <source>Total (s)</source>
        <translation>Celkem (s)</translation>
    </message>
    <message>
        <source>Standard deviation (s)</source>
        <translation>Směrodatná odchylka (s)</translation>
    </message>
    <message>
        <source>Laps</source>
        <translation>Kola</translation>
    </message>
    <message>
        <source>Turns</source>
        <translation>Obraty</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Záběry</translation>
    </message>
    <message>
        <source>Stretches</source>
        <translation>Části</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ClipPair</name>
    <message>
        <source>This run has no film.</source>
        <translation>Tato jízda nemá film.</translation>
    </message>
    <message>
        <source>The film is not there:
%1</source>
        <translation>Film tam není:
%1</translation>
    </message>
    <message>
        <source>Play or pause the clips</source>
        <translation>Přehrát nebo pozastavit klipy</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Přehrát</translation>
    </message>
    <message>
        <source>Play the clips from their beginnings</source>
        <translation>Přehrát klipy od začátku</translation>
    </message>
    <message>
        <source>From the start</source>
        <translation>Od začátku</translation>
    </message>
    <message>
        <source>One frame back in the clips</source>
        <translation>O snímek zpět v klipech</translation>
    </message>
    <message>
        <source>Frame back</source>
        <translation>Snímek zpět</translation>
    </message>
    <message>
        <source>One frame forward in the clips</source>
        <translation>O snímek vpřed v klipech</translation>
    </message>
    <message>
        <source>Frame on</source>
        <translation>Snímek vpřed</translation>
    </message>
    <message>
        <source>Clips in slow motion</source>
        <translation>Klipy zpomaleně</translation>
    </message>
    <message>
        <source>Slow motion</source>
        <translation>Zpomaleně</translation>
    </message>
    <message>
        <source>Clips slower</source>
        <translation>Klipy pomaleji</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Pomaleji</translation>
    </message>
    <message>
        <source>Clips faster</source>
        <translation>Klipy rychleji</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Rychleji</translation>
    </message>
    <message>
        <source>Clips at normal speed</source>
        <translation>Klipy normální rychlostí</translation>
    </message>
    <message>
        <source>Normal speed</source>
        <translation>Normálně</translation>
    </message>
    <message>
        <source>Repeat the clips</source>
        <translation>Opakovat klipy</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Opakovat</translation>
    </message>
    <message>
        <source>%1 · %2 s, at its end</source>
        <translation>%1 · %2 s, na konci</translation>
    </message>
    <message>
        <source>%1 · %2 of %3 s</source>
        <translation>%1 · %2 z %3 s</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ColumnTable</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopírovat</translation>
    </message>
    <message>
        <source>&amp;Copy what is selected</source>
        <translation>&amp;Kopírovat vybrané</translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation>&amp;Uložit jako CSV…</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>&amp;Sloupce</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Uložit tabulku</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Text oddělený středníky (*.csv)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CommandPalette</name>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>An action, a file, an athlete</source>
        <translation>Akce, soubor, závodník</translation>
    </message>
    <message>
        <source>Nothing here is called “%1”.</source>
        <translation>Nic se zde nejmenuje „%1“.</translation>
    </message>
    <message>
        <source>Searched: actions, recent files and the names in this window.</source>
        <translation>Prohledáno: akce, poslední soubory a jména v tomto okně.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CommentPage</name>
    <message>
        <source>score</source>
        <translation>body</translation>
    </message>
    <message>
        <source>Show the coach&apos;s comments</source>
        <translation>Ukázat komentáře trenéra</translation>
    </message>
    <message>
        <source>comment on split %1</source>
        <translation>komentář k mezičasu %1</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Mezičas</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Komentář</translation>
    </message>
    <message>
        <source>athlete</source>
        <translation>závodník</translation>
    </message>
    <message>
        <source>coach</source>
        <translation>trenér</translation>
    </message>
    <message>
        <source>Scores</source>
        <translation>Hodnocení</translation>
    </message>
    <message>
        <source>Give-ups</source>
        <translation>Vzdané branky</translation>
    </message>
    <message>
        <source>team radio</source>
        <translation>týmová vysílačka</translation>
    </message>
    <message>
        <source>team radio removed</source>
        <translation>záznam vysílačky odstraněn</translation>
    </message>
    <message>
        <source>team radio moved</source>
        <translation>záznam vysílačky posunut</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareDocument</name>
    <message>
        <source>It is no comparison of films, or a damaged one: %1</source>
        <translation>Není to porovnání filmů, nebo je poškozené: %1</translation>
    </message>
    <message>
        <source>1 film</source>
        <translation>1 film</translation>
    </message>
    <message numerus="yes">
        <source>%n films</source>
        <translation>
            <numerusform>%n film</numerusform>
            <numerusform>%n filmy</numerusform>
            <numerusform>%n filmů</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareFilmsPanel</name>
    <message>
        <source>In it</source>
        <translation>Ve filmu</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>It is not marked from the start to a split.</source>
        <translation>Není označeno od startu do mezičasu.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Jméno</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Name in the film</source>
        <translation>Jméno ve filmu</translation>
    </message>
    <message>
        <source>name in the film</source>
        <translation>jméno ve filmu</translation>
    </message>
    <message>
        <source>In place of that of the split file.</source>
        <translation>Místo toho ze souboru mezičasů.</translation>
    </message>
    <message>
        <source>category in the film</source>
        <translation>kategorie ve filmu</translation>
    </message>
    <message>
        <source>Starts at [s]</source>
        <translation>Začíná v [s]</translation>
    </message>
    <message>
        <source>The second of the film at which a run without marks starts.</source>
        <translation>Sekunda filmu, v níž začíná jízda bez značek.</translation>
    </message>
    <message>
        <source>marked</source>
        <translation>označeno</translation>
    </message>
    <message>
        <source>The start is a second of the film, 0 to 86400</source>
        <translation>Začátek je sekunda filmu, 0 až 86400</translation>
    </message>
    <message>
        <source>start of a film</source>
        <translation>začátek filmu</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Č.</translation>
    </message>
    <message>
        <source>Find a name, a category, a film…</source>
        <translation>Najít jméno, kategorii, film…</translation>
    </message>
    <message>
        <source>Add split files or films, then tick the two to four that are compared.</source>
        <translation>Přidejte soubory mezičasů nebo filmy a pak zaškrtněte dva až čtyři k porovnání.</translation>
    </message>
    <message>
        <source>Add s&amp;plit files…</source>
        <translation>&amp;Přidat soubory mezičasů…</translation>
    </message>
    <message>
        <source>Add &amp;films…</source>
        <translation>Přidat &amp;filmy…</translation>
    </message>
    <message>
        <source>In the composed film</source>
        <translation>Ve složeném filmu</translation>
    </message>
    <message>
        <source>No film is chosen yet.</source>
        <translation>Zatím není vybrán žádný film.</translation>
    </message>
    <message>
        <source>&amp;Take it out</source>
        <translation>&amp;Vyřadit</translation>
    </message>
    <message>
        <source>Move it &amp;up</source>
        <translation>Posunout &amp;nahoru</translation>
    </message>
    <message>
        <source>Move it &amp;down</source>
        <translation>Posunout &amp;dolů</translation>
    </message>
    <message>
        <source>Four films are the most. Take one out first.</source>
        <translation>Čtyři filmy jsou nejvíc. Nejdřív jeden vyřaďte.</translation>
    </message>
    <message>
        <source>choice of a film</source>
        <translation>výběr filmu</translation>
    </message>
    <message>
        <source>removal of a film</source>
        <translation>odebrání filmu</translation>
    </message>
    <message>
        <source>order of the films</source>
        <translation>pořadí filmů</translation>
    </message>
    <message>
        <source>path of a film</source>
        <translation>dráha filmu</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Dráha</translation>
    </message>
    <message>
        <source>Draws the path that was followed on it in the window Tracking.</source>
        <translation>Nakreslí na něj dráhu sledovanou v okně Sledování.</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Sledovat</translation>
    </message>
    <message>
        <source>Shows it twice as large, round that path.</source>
        <translation>Ukáže ho dvakrát větší, kolem této dráhy.</translation>
    </message>
    <message>
        <source>Its place in the composed film. Enter chooses it or takes it out.</source>
        <translation>Místo ve složeném filmu. Enter ho vybere nebo vyřadí.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareForm</name>
    <message>
        <source>the start</source>
        <translation>start</translation>
    </message>
    <message>
        <source>&amp;Layout</source>
        <translation>&amp;Rozvržení</translation>
    </message>
    <message>
        <source>Line at</source>
        <translation>Čára v</translation>
    </message>
    <message>
        <source>0 left, 1 right</source>
        <translation>0 vlevo, 1 vpravo</translation>
    </message>
    <message>
        <source>&amp;Together</source>
        <translation>&amp;Společně</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Mezičas</translation>
    </message>
    <message>
        <source>Sho&amp;wn</source>
        <translation>&amp;Ukázáno</translation>
    </message>
    <message>
        <source>From split</source>
        <translation>Od mezičasu</translation>
    </message>
    <message>
        <source>To split</source>
        <translation>Do mezičasu</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Spee&amp;d</source>
        <translation>R&amp;ychlost</translation>
    </message>
    <message>
        <source>Slow motion has no sound.</source>
        <translation>Zpomalený film nemá zvuk.</translation>
    </message>
    <message>
        <source>To be read in it</source>
        <translation>K přečtení ve filmu</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>&amp;Jména</translation>
    </message>
    <message>
        <source>&amp;Clock</source>
        <translation>&amp;Hodiny</translation>
    </message>
    <message>
        <source>Split times and gaps</source>
        <translation>Mezičasy a odstupy</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Úsek</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Penalizace</translation>
    </message>
    <message>
        <source>Chart of the gap</source>
        <translation>Graf odstupu</translation>
    </message>
    <message>
        <source>The file</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Si&amp;ze</source>
        <translation>&amp;Velikost</translation>
    </message>
    <message>
        <source>1080 × 1920, upright</source>
        <translation>1080 × 1920, na výšku</translation>
    </message>
    <message>
        <source>720 × 1280, upright</source>
        <translation>720 × 1280, na výšku</translation>
    </message>
    <message>
        <source>1080 × 1080, square</source>
        <translation>1080 × 1080, čtverec</translation>
    </message>
    <message>
        <source>For sending</source>
        <translation>K odeslání</translation>
    </message>
    <message>
        <source>At most 1280 × 720 and coarser: a small file.</source>
        <translation>Nejvýš 1280 × 720 a hrubší: malý soubor.</translation>
    </message>
    <message>
        <source>S&amp;ound of film</source>
        <translation>&amp;Zvuk filmu</translation>
    </message>
    <message>
        <source>None in slow motion, nor while that film waits or is stretched.</source>
        <translation>Žádný při zpomalení, ani když film čeká nebo je roztažen.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>žádný</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareView</name>
    <message>
        <source>Preview of the composed film</source>
        <translation>Náhled složeného filmu</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareWindow</name>
    <message>
        <source>Compare films</source>
        <translation>Porovnání filmů</translation>
    </message>
    <message>
        <source>Compose the &amp;film…</source>
        <translation>Složit &amp;film…</translation>
    </message>
    <message>
        <source>Add s&amp;plit files…</source>
        <translation>&amp;Přidat soubory mezičasů…</translation>
    </message>
    <message>
        <source>Add &amp;films…</source>
        <translation>Přidat &amp;filmy…</translation>
    </message>
    <message>
        <source>&amp;Compose the film…</source>
        <translation>Složit fil&amp;m…</translation>
    </message>
    <message>
        <source>Films being composed: &amp;jobs</source>
        <translation>Skládané filmy: ú&amp;lohy</translation>
    </message>
    <message>
        <source>&amp;Find a run or a film</source>
        <translation>Najít &amp;jízdu nebo film</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>Přehrá&amp;vání</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>Pře&amp;hrát nebo pozastavit</translation>
    </message>
    <message>
        <source>From the &amp;beginning</source>
        <translation>Od z&amp;ačátku</translation>
    </message>
    <message>
        <source>One frame ba&amp;ck</source>
        <translation>O sním&amp;ek zpět</translation>
    </message>
    <message>
        <source>One frame &amp;on</source>
        <translation>&amp;O snímek vpřed</translation>
    </message>
    <message>
        <source>P&amp;art</source>
        <translation>Č&amp;ást</translation>
    </message>
    <message>
        <source>&amp;Begin here</source>
        <translation>Z&amp;ačít zde</translation>
    </message>
    <message>
        <source>&amp;End here</source>
        <translation>&amp;Skončit zde</translation>
    </message>
    <message>
        <source>The &amp;whole run</source>
        <translation>&amp;Celá jízda</translation>
    </message>
    <message>
        <source>part that is shown</source>
        <translation>ukázaná část</translation>
    </message>
    <message>
        <source>&amp;Align the second film by two points</source>
        <translation>Srovnat druhý film podle dvou &amp;bodů</translation>
    </message>
    <message>
        <source>&amp;Forget the points</source>
        <translation>Zapomenout bod&amp;y</translation>
    </message>
    <message>
        <source>The film could not be composed: %1</source>
        <translation>Film nelze složit: %1</translation>
    </message>
    <message>
        <source>%1 is there. %2</source>
        <translation>%1 je hotovo. %2</translation>
    </message>
    <message>
        <source>Add the runs of split files</source>
        <translation>Přidat jízdy ze souborů mezičasů</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Soubory mezičasů (*.kvx);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Add films</source>
        <translation>Přidat filmy</translation>
    </message>
    <message>
        <source>Films (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;All files (*)</source>
        <translation>Filmy (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Tick two to four films to compare them.</source>
        <translation>Zaškrtněte dva až čtyři filmy k porovnání.</translation>
    </message>
    <message>
        <source>Tick one more film to compare it with.</source>
        <translation>Zaškrtněte ještě jeden film k porovnání.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Four films are the most: these are the first four</source>
        <translation>Čtyři filmy jsou nejvíc: toto jsou první čtyři</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Přehrát</translation>
    </message>
    <message>
        <source>%1 of %2 s</source>
        <translation>%1 z %2 s</translation>
    </message>
    <message>
        <source>Two films are aligned: choose two.</source>
        <translation>Srovnávají se dva filmy: vyberte dva.</translation>
    </message>
    <message>
        <source>points that were forgotten</source>
        <translation>zapomenuté body</translation>
    </message>
    <message>
        <source>alignment by two points</source>
        <translation>srovnání podle dvou bodů</translation>
    </message>
    <message>
        <source>Compose the film</source>
        <translation>Složit film</translation>
    </message>
    <message>
        <source>Films (*.mp4)</source>
        <translation>Filmy (*.mp4)</translation>
    </message>
    <message>
        <source>file of the film</source>
        <translation>soubor filmu</translation>
    </message>
    <message>
        <source>Composing: %1, %2 more</source>
        <translation>Skládá se: %1, dalších %2</translation>
    </message>
    <message>
        <source>Composing: %1</source>
        <translation>Skládá se: %1</translation>
    </message>
    <message>
        <source>Film %1</source>
        <translation>Film %1</translation>
    </message>
    <message>
        <source>Click the same two things in both films, such as the poles of a gate. Escape gives it up.</source>
        <translation>Klikněte v obou filmech na tytéž dvě věci, třeba na tyče branky. Escape to zruší.</translation>
    </message>
    <message>
        <source>Two runs or films make a comparison: drop them here, or add them with Ctrl+Shift+O and Ctrl+I.</source>
        <translation>K porovnání jsou třeba dvě jízdy nebo filmy: přetáhněte je sem, nebo je přidejte pomocí Ctrl+Shift+O a Ctrl+I.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ComparisonPanel</name>
    <message>
        <source>%1 of %2 (%3–%4 %)</source>
        <translation>%1 z %2 (%3–%4&#xa0;%)</translation>
    </message>
    <message>
        <source>Behind the winners in the &amp;phase</source>
        <translation>Za vítězi ve &amp;fázi</translation>
    </message>
    <message>
        <source>Nobody of the team races in this category.</source>
        <translation>V této kategorii nikdo z týmu nezávodí.</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Závodník</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Závody</translation>
    </message>
    <message>
        <source>Behind, %</source>
        <translation>Ztráta, %</translation>
    </message>
    <message>
        <source>Median behind the winners of the phase, without missed gates</source>
        <translation>Medián ztráty za vítězi fáze, bez neprojetých branek</translation>
    </message>
    <message>
        <source>of runs</source>
        <translation>z jízd</translation>
    </message>
    <message>
        <source>Within, %</source>
        <translation>Kolísání, %</translation>
    </message>
    <message>
        <source>How much the runs vary by chance</source>
        <translation>Jak moc jízdy kolísají náhodou</translation>
    </message>
    <message>
        <source>A year, %</source>
        <translation>Za rok, %</translation>
    </message>
    <message>
        <source>Trend behind the winners, over all phases</source>
        <translation>Trend ztráty za vítězi, přes všechny fáze</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>příliš málo</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Medaile</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finále</translation>
    </message>
    <message>
        <source>The athletes year by year: %1</source>
        <translation>Závodníci rok po roku: %1</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Rok</translation>
    </message>
    <message>
        <source>Median behind the winner, %</source>
        <translation>Medián za vítězem, %</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CostPanel</name>
    <message>
        <source>%1 A medal.</source>
        <translation>%1 Medaile.</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Posádka</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Race</source>
        <translation>Závod</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Branka</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Úsek</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekundy</translation>
    </message>
    <message>
        <source>2 for a touch, 50 for a missed gate</source>
        <translation>2 za ťuk, 50 za neprojetou branku</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Pořadí</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>Jak to bylo</translation>
    </message>
    <message>
        <source>of</source>
        <translation>z</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Místa</translation>
    </message>
    <message>
        <source>That it cost</source>
        <translation>Co to stálo</translation>
    </message>
    <message>
        <source>Without it</source>
        <translation>Bez ní</translation>
    </message>
    <message>
        <source>A missed gate also saved paddling, which is not taken back here.</source>
        <translation>Neprojetá branka také ušetřila čas jízdy; ten se zde nevrací.</translation>
    </message>
    <message>
        <source>Show &amp;all</source>
        <translation>Ukázat &amp;vše</translation>
    </message>
    <message>
        <source>No penalty of a whole run is known by gate.</source>
        <translation>U žádné úplné jízdy není penalizace známa po brankách.</translation>
    </message>
    <message>
        <source>Open the run at this section</source>
        <translation>Otevřít jízdu v tomto úseku</translation>
    </message>
    <message>
        <source>In split taking, where the section of the gate begins</source>
        <translation>V měření mezičasů, kde začíná úsek branky</translation>
    </message>
    <message>
        <source>Only gate %1</source>
        <translation>Jen branka %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseCanvas</name>
    <message>
        <source>Drawing of the course</source>
        <translation>Nákres tratě</translation>
    </message>
    <message>
        <source>Hold the button down and draw along the water.</source>
        <translation>Držte tlačítko a kreslete podél vody.</translation>
    </message>
    <message>
        <source>course</source>
        <translation>trať</translation>
    </message>
    <message>
        <source>All %1 gates of the race are drawn. Race and course says how many there are.</source>
        <translation>Všechny branky závodu jsou nakresleny: %1. Kolik jich je, říká Závod a trať.</translation>
    </message>
    <message>
        <source>All %1 splits of the race are drawn. Race and course says how many there are.</source>
        <translation>Všechny mezičasy závodu jsou nakresleny: %1. Kolik jich je, říká Závod a trať.</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>odstraněno: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseDialog</name>
    <message>
        <source>Title</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Branky</translation>
    </message>
    <message>
        <source>Race and course</source>
        <translation>Závod a trať</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Jednotka</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Voda</translation>
    </message>
    <message>
        <source>Technique</source>
        <translation>Technika</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Komentáře</translation>
    </message>
    <message>
        <source>Such as 4 8 12</source>
        <translation>Třeba 4 8 12</translation>
    </message>
    <message>
        <source>Share the gates &amp;evenly</source>
        <translation>Rozdělit branky &amp;rovnoměrně</translation>
    </message>
    <message>
        <source>&amp;Gates</source>
        <translation>&amp;Branky</translation>
    </message>
    <message>
        <source>&amp;Upstream gates</source>
        <translation>&amp;Protivodné branky</translation>
    </message>
    <message>
        <source>&amp;Splits</source>
        <translation>&amp;Mezičasy</translation>
    </message>
    <message>
        <source>Section %1: </source>
        <translation>Úsek %1: </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseEditor</name>
    <message>
        <source>Photo or plan of the course</source>
        <translation>Fotografie nebo plán tratě</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg);;All files (*)</source>
        <translation>Obrázky (*.png *.jpg *.jpeg);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Words there</source>
        <translation>Slova sem</translation>
    </message>
    <message>
        <source>Draw the course</source>
        <translation>Nakreslit trať</translation>
    </message>
    <message>
        <source>The picture of the race cannot be drawn upon: %1 It stays as long as nothing is drawn.</source>
        <translation>Na obrázek závodu nelze kreslit: %1 Zůstane, dokud se nic nenakreslí.</translation>
    </message>
    <message>
        <source>Tab next part · arrows move it, Shift+arrows far · Alt+←/→ turn · PgDn its points · Delete · Insert puts one in the middle · Ctrl+Z undo, Ctrl+Shift+Z redo</source>
        <translation>Tab další část · šipky ji posunou, Shift+šipky daleko · Alt+←/→ otočí · PgDn její body · Delete · Insert vloží bod doprostřed · Ctrl+Z zpět, Ctrl+Shift+Z znovu</translation>
    </message>
    <message>
        <source>Wheel, + and − zoom · 0 shows all · drag with Space or the middle button moves the view</source>
        <translation>Kolečko, + a − přibližují · 0 ukáže vše · tažení s mezerníkem nebo prostředním tlačítkem posouvá výřez</translation>
    </message>
    <message>
        <source>&amp;Hold and move</source>
        <translation>&amp;Chytit a posunout</translation>
    </message>
    <message>
        <source>&amp;Gate</source>
        <translation>&amp;Branka</translation>
    </message>
    <message>
        <source>&amp;Split line</source>
        <translation>&amp;Měřicí čára</translation>
    </message>
    <message>
        <source>&amp;Bank</source>
        <translation>Bř&amp;eh</translation>
    </message>
    <message>
        <source>&amp;Line of a run</source>
        <translation>&amp;Stopa jízdy</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>&amp;Photo below…</source>
        <translation>&amp;Fotografie vespod…</translation>
    </message>
    <message>
        <source>Only whit&amp;e below</source>
        <translation>Vespod jen &amp;bílá</translation>
    </message>
    <message>
        <source>text</source>
        <translation>text</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>fotografie</translation>
    </message>
    <message>
        <source>white</source>
        <translation>bílá</translation>
    </message>
    <message>
        <source>Leave the course as it was? What was drawn is lost.</source>
        <translation>Nechat trať, jak byla? Co bylo nakresleno, se ztratí.</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>Nechat</translation>
    </message>
    <message>
        <source>Drag a part, or one of its points. The poles of a gate turn about each other.</source>
        <translation>Táhněte část nebo jeden z jejích bodů. Tyče branky se otáčejí kolem sebe.</translation>
    </message>
    <message>
        <source>Click where a gate hangs; hold the button and drag its right pole round.</source>
        <translation>Klepněte, kde visí branka; podržte tlačítko a otočte její pravou tyč.</translation>
    </message>
    <message>
        <source>Drag from bank to bank where the split is taken.</source>
        <translation>Táhněte od břehu ke břehu tam, kde se měří mezičas.</translation>
    </message>
    <message>
        <source>Draw along the bank with the button held down.</source>
        <translation>Kreslete podél břehu s podrženým tlačítkem.</translation>
    </message>
    <message>
        <source>Draw the way of a boat with the button held down, and name it at the right.</source>
        <translation>S podrženým tlačítkem nakreslete stopu lodi a vpravo ji pojmenujte.</translation>
    </message>
    <message>
        <source>Click where words are to stand.</source>
        <translation>Klepněte, kde má stát text.</translation>
    </message>
    <message>
        <source>It has %1 MB. Up to 40 MB can be read; save it smaller first.</source>
        <translation>Má %1 MB. Přečíst lze nejvýše 40 MB; uložte jej nejdřív menší.</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Všechny klávesy</translation>
    </message>
    <message>
        <source>Parts of the course</source>
        <translation>Části trati</translation>
    </message>
    <message>
        <source>Next part</source>
        <translation>Další část</translation>
    </message>
    <message>
        <source>Move the part</source>
        <translation>Posunout část</translation>
    </message>
    <message>
        <source>Move it far</source>
        <translation>Posunout ji daleko</translation>
    </message>
    <message>
        <source>Turn it</source>
        <translation>Otočit ji</translation>
    </message>
    <message>
        <source>Its next point</source>
        <translation>Její další bod</translation>
    </message>
    <message>
        <source>Its previous point</source>
        <translation>Její předchozí bod</translation>
    </message>
    <message>
        <source>A new part in the middle</source>
        <translation>Nová část doprostřed</translation>
    </message>
    <message>
        <source>Remove the part</source>
        <translation>Odebrat část</translation>
    </message>
    <message>
        <source>Leave the part alone</source>
        <translation>Nechat část být</translation>
    </message>
    <message>
        <source>View and steps</source>
        <translation>Pohled a kroky</translation>
    </message>
    <message>
        <source>Closer</source>
        <translation>Blíž</translation>
    </message>
    <message>
        <source>Further away</source>
        <translation>Dál</translation>
    </message>
    <message>
        <source>The whole course</source>
        <translation>Celá trať</translation>
    </message>
    <message>
        <source>Held, dragging moves the view</source>
        <translation>Při držení se tažením posouvá pohled</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Znovu</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseMap</name>
    <message>
        <source>Map of the course</source>
        <translation>Mapa tratě</translation>
    </message>
    <message>
        <source>Turn %1
Duration %2 s, angle %3°
Rotation: peak %4 °/s, mean %5 °/s
Push out: peak %6 m/s², mean %7 m/s²
Roll %8° (+ inside), pitch %9° (+ bow up)</source>
        <translation>Obrat %1
Trvání %2 s, úhel %3°
Rotace: maximum %4 °/s, průměr %5 °/s
Výjezd: maximum %6 m/s², průměr %7 m/s²
Klonění %8° (+ dovnitř), kolébání %9° (+ špička nahoru)</translation>
    </message>
    <message>
        <source>There are no position fixes in this session: no map.</source>
        <translation>V této jednotce nejsou žádné polohy: není mapa.</translation>
    </message>
    <message>
        <source>%1 km</source>
        <translation>%1 km</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>Speed (m/s)</source>
        <translation>Rychlost (m/s)</translation>
    </message>
    <message>
        <source>Stroke rate (1/min)</source>
        <translation>Frekvence záběrů (1/min)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CoursePanel</name>
    <message>
        <source>C&amp;ourse of</source>
        <translation>&amp;Trať:</translation>
    </message>
    <message>
        <source>The drawing of the course in this file cannot be shown.</source>
        <translation>Nákres tratě v tomto souboru nelze ukázat.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CoursePartForm</name>
    <message>
        <source>&amp;Number</source>
        <translation>&amp;Číslo</translation>
    </message>
    <message>
        <source>&amp;Upstream gate</source>
        <translation>&amp;Protivodná branka</translation>
    </message>
    <message>
        <source>Na&amp;me or text</source>
        <translation>&amp;Jméno nebo text</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>not measured</source>
        <translation>nezměřeno</translation>
    </message>
    <message>
        <source>&amp;Width of the picture</source>
        <translation>Šíř&amp;ka obrázku</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Nic není vybráno</translation>
    </message>
    <message>
        <source>The race has %1 gates only. Race and course says how many there are.</source>
        <translation>Závod má branek jen %1. Kolik jich je, říká Závod a trať.</translation>
    </message>
    <message>
        <source>direction of gate %1</source>
        <translation>směr branky %1</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>číslo %1</translation>
    </message>
    <message>
        <source>name</source>
        <translation>jméno</translation>
    </message>
    <message>
        <source>width of the picture</source>
        <translation>šířka obrázku</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseStrip</name>
    <message>
        <source>Course</source>
        <translation>Trať</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Branky</translation>
    </message>
    <message>
        <source>Such as 1, 2, 3, 4</source>
        <translation>Třeba 1, 2, 3, 4</translation>
    </message>
    <message>
        <source>Roll after gate</source>
        <translation>Eskymák po brance</translation>
    </message>
    <message>
        <source>Empty without a roll</source>
        <translation>Prázdné bez eskymáku</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Which gates does the cross course have?</source>
        <translation>Které branky má trať crossu?</translation>
    </message>
    <message>
        <source>1 gate</source>
        <translation>1 branka</translation>
    </message>
    <message>
        <source>roll after %1</source>
        <translation>eskymák po %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no gate number.</source>
        <translation>„%1“ není číslo branky.</translation>
    </message>
    <message>
        <source>The roll is after gate %1, which is not on the course.</source>
        <translation>Eskymák je po brance %1, která na trati není.</translation>
    </message>
    <message>
        <source>course</source>
        <translation>trať</translation>
    </message>
    <message numerus="yes">
        <source>%n gates</source>
        <translation>
            <numerusform>%n branka</numerusform>
            <numerusform>%n branky</numerusform>
            <numerusform>%n branek</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CrossActions</name>
    <message>
        <source>&amp;Open a split file…</source>
        <translation>Otevřít sou&amp;bor mezičasů…</translation>
    </message>
    <message>
        <source>&amp;Save data</source>
        <translation>&amp;Uložit data</translation>
    </message>
    <message>
        <source>Open a &amp;folder of films…</source>
        <translation>Otevřít &amp;složku filmů…</translation>
    </message>
    <message>
        <source>Open a folder of films</source>
        <translation>Otevřít složku filmů</translation>
    </message>
    <message>
        <source>&amp;Import films of time trials…</source>
        <translation>Im&amp;portovat filmy časovek…</translation>
    </message>
    <message>
        <source>Film of the selected trial or &amp;heat…</source>
        <translation>&amp;Film vybrané časovky nebo rozjížďky…</translation>
    </message>
    <message>
        <source>&amp;Where are the films now?…</source>
        <translation>Kde jsou film&amp;y nyní?…</translation>
    </message>
    <message>
        <source>Split &amp;taking of this race</source>
        <translation>&amp;Měření mezičasů tohoto závodu</translation>
    </message>
    <message>
        <source>Show in the race &amp;analyzer</source>
        <translation>Ukázat v a&amp;nalýze závodu</translation>
    </message>
    <message>
        <source>Open a split file</source>
        <translation>Otevřít soubor mezičasů</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Soubory mezičasů (*.kvx);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>&amp;Course of the cross race</source>
        <translation>&amp;Trať závodu v crossu</translation>
    </message>
    <message>
        <source>&amp;Previous trial or heat</source>
        <translation>&amp;Předchozí časovka nebo rozjížďka</translation>
    </message>
    <message>
        <source>&amp;Next trial or heat</source>
        <translation>&amp;Další časovka nebo rozjížďka</translation>
    </message>
    <message>
        <source>Copy the &amp;results</source>
        <translation>Kopírovat &amp;výsledky</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>&amp;Značky</translation>
    </message>
    <message>
        <source>&amp;Mark the frame shown</source>
        <translation>&amp;Označit ukázaný snímek</translation>
    </message>
    <message>
        <source>To the first mark</source>
        <translation>Na první značku</translation>
    </message>
    <message>
        <source>Next &amp;gate</source>
        <translation>Další &amp;branka</translation>
    </message>
    <message>
        <source>Previous g&amp;ate</source>
        <translation>Př&amp;edchozí branka</translation>
    </message>
    <message>
        <source>Split, gate or boat &amp;%1</source>
        <translation>Mezičas, branka nebo loď &amp;%1</translation>
    </message>
    <message>
        <source>&amp;Time trials</source>
        <translation>Čas&amp;ovky</translation>
    </message>
    <message>
        <source>&amp;Add an athlete</source>
        <translation>Přidat &amp;závodníka</translation>
    </message>
    <message>
        <source>M marks the &amp;splits</source>
        <translation>M označuje &amp;mezičasy</translation>
    </message>
    <message>
        <source>M marks the &amp;upstream gates</source>
        <translation>M označuje &amp;protivodné branky</translation>
    </message>
    <message>
        <source>M marks the &amp;roll</source>
        <translation>M označuje &amp;eskymák</translation>
    </message>
    <message>
        <source>Re&amp;name the athlete</source>
        <translation>Pře&amp;jmenovat závodníka</translation>
    </message>
    <message>
        <source>R&amp;emove the trial</source>
        <translation>&amp;Odstranit časovku</translation>
    </message>
    <message>
        <source>Make &amp;heats from the trials</source>
        <translation>Vytvořit z časovek &amp;rozjížďky</translation>
    </message>
    <message>
        <source>&amp;Heats</source>
        <translation>&amp;Rozjížďky</translation>
    </message>
    <message>
        <source>&amp;Add a heat…</source>
        <translation>&amp;Přidat rozjížďku…</translation>
    </message>
    <message>
        <source>A&amp;ttack, beginning here</source>
        <translation>Ú&amp;tok, začíná zde</translation>
    </message>
    <message>
        <source>&amp;End of the attack</source>
        <translation>&amp;Konec útoku</translation>
    </message>
    <message>
        <source>Compare &amp;films of the heat…</source>
        <translation>Porovnat &amp;filmy rozjížďky…</translation>
    </message>
    <message>
        <source>&amp;Names of the boats…</source>
        <translation>&amp;Jména lodí…</translation>
    </message>
    <message>
        <source>&amp;Remove the heat</source>
        <translation>&amp;Odstranit rozjížďku</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Zo&amp;brazení</translation>
    </message>
    <message>
        <source>&amp;Results</source>
        <translation>&amp;Výsledky</translation>
    </message>
    <message>
        <source>Time trial</source>
        <translation>Časovka</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CrossPage</name>
    <message>
        <source>There is no film to mark on.</source>
        <translation>Není film, na kterém označovat.</translation>
    </message>
    <message>
        <source>Nothing can be marked: %1 is not in the folder of the split file. File &gt; Where are the films now?</source>
        <translation>Nelze nic označit: %1 není ve složce souboru mezičasů. Soubor &gt; Kde jsou filmy nyní?</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>Není vybrána žádná značka. Ctrl a šipky vedou od značky ke značce.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CrossWindow</name>
    <message>
        <source>kayak cross</source>
        <translation>kayak cross</translation>
    </message>
    <message>
        <source>Time trials</source>
        <translation>Časovky</translation>
    </message>
    <message>
        <source>Heats</source>
        <translation>Rozjížďky</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Výsledky</translation>
    </message>
    <message>
        <source>films of the folder</source>
        <translation>filmy složky</translation>
    </message>
    <message>
        <source>Import films with Ctrl+I, or drop them here: each becomes a time trial.</source>
        <translation>Filmy importujte pomocí Ctrl+I, nebo je sem přetáhněte: z každého bude časovka.</translation>
    </message>
    <message>
        <source>No film yet. Ctrl+Shift+I chooses the film of what is selected; films can be dropped here too.</source>
        <translation>Zatím žádný film. Ctrl+Shift+I vybere film k tomu, co je vybráno; filmy lze i přetáhnout sem.</translation>
    </message>
    <message>
        <source>%1 is not in the folder of the split file. Ctrl+Shift+I chooses another film.</source>
        <translation>%1 není ve složce souboru mezičasů. Ctrl+Shift+I vybere jiný film.</translation>
    </message>
    <message>
        <source>Not found: %1.</source>
        <translation>Nenalezeno: %1.</translation>
    </message>
    <message>
        <source>Import films of time trials</source>
        <translation>Import filmů časovek</translation>
    </message>
    <message>
        <source>Choose the film of the trial or heat</source>
        <translation>Vybrat film časovky nebo rozjížďky</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CrossingSearch</name>
    <message>
        <source>The slit picture shows what stood on the line all the same.</source>
        <translation>Štěrbinový obraz přesto ukazuje, co bylo na čáře.</translation>
    </message>
    <message>
        <source>No boat was found that crosses this line in the direction of the arrow.</source>
        <translation>Nenašla se loď, která by tuto čáru protnula ve směru šipky.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CsvMappingDialog</name>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 lines cannot be read. Line %2: %3.</source>
        <translation>Nečitelných řádků: %1. Řádek %2: %3.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Řádek %1: %2</translation>
    </message>
    <message>
        <source>What each column holds was guessed from its title. Choose over a column what it is; a column without a choice is left out.</source>
        <translation>Obsah sloupců byl odhadnut z jejich nadpisů. Nad sloupcem zvolte, co je v něm; sloupec bez volby se vynechá.</translation>
    </message>
    <message>
        <source>%1 samples, %2 per second, %3</source>
        <translation>vzorků %1, za sekundu %2, %3</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>polohy: %1</translation>
    </message>
    <message>
        <source>%1 heart rates</source>
        <translation>tepové frekvence: %1</translation>
    </message>
    <message>
        <source>Import “%1”</source>
        <translation>Import „%1“</translation>
    </message>
    <message>
        <source>Columns and units are read as they were for the last list with these titles. Choose over a column what it is; one without a choice is left out.</source>
        <translation>Sloupce a jednotky se čtou jako u posledního seznamu s těmito nadpisy. Nad sloupcem zvolte, co je v něm; sloupec bez volby se vynechá.</translation>
    </message>
    <message>
        <source>Guess from the titles</source>
        <translation>Odhadnout z nadpisů</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importovat</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Čte se…</translation>
    </message>
    <message>
        <source>This gives no samples.</source>
        <translation>Z toho nejsou žádné vzorky.</translation>
    </message>
    <message>
        <source>This gives %1.</source>
        <translation>Výsledek: %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CsvUnitsForm</name>
    <message>
        <source>&amp;Between columns</source>
        <translation>&amp;Mezi sloupci</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Čárka</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Středník</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulátor</translation>
    </message>
    <message>
        <source>&amp;Decimal comma</source>
        <translation>&amp;Desetinná čárka</translation>
    </message>
    <message>
        <source>&amp;Times</source>
        <translation>&amp;Časy</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekundy</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Milisekundy</translation>
    </message>
    <message>
        <source>Microseconds</source>
        <translation>Mikrosekundy</translation>
    </message>
    <message>
        <source>Nanoseconds</source>
        <translation>Nanosekundy</translation>
    </message>
    <message>
        <source>&amp;Acceleration</source>
        <translation>&amp;Zrychlení</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>m/s²</source>
        <translation>m/s²</translation>
    </message>
    <message>
        <source>&amp;Rotation</source>
        <translation>&amp;Rotace</translation>
    </message>
    <message>
        <source>rad/s</source>
        <translation>rad/s</translation>
    </message>
    <message>
        <source>°/s</source>
        <translation>°/s</translation>
    </message>
    <message>
        <source>An&amp;gles</source>
        <translation>Ú&amp;hly</translation>
    </message>
    <message>
        <source>Radians</source>
        <translation>Radiány</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Stupně</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>&amp;Rychlost</translation>
    </message>
    <message>
        <source>m/s</source>
        <translation>m/s</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>Lying on its back, &amp;z reads</source>
        <translation>Vleže na zádech ukazuje &amp;z</translation>
    </message>
    <message>
        <source>+1 g, upward</source>
        <translation>+1 g, nahoru</translation>
    </message>
    <message>
        <source>−1 g, downward</source>
        <translation>−1 g, dolů</translation>
    </message>
    <message>
        <source>&amp;First sample at</source>
        <translation>&amp;První vzorek v</translation>
    </message>
    <message>
        <source>The comma stands between columns.</source>
        <translation>Čárka je mezi sloupci.</translation>
    </message>
    <message>
        <source>The times of the list are no dates. This is when the file was written, less its length.</source>
        <translation>Časy seznamu nemají datum. Toto je čas zápisu souboru minus jeho délka.</translation>
    </message>
    <message>
        <source>The times of the list are dates.</source>
        <translation>Časy seznamu mají datum.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CursorTable</name>
    <message>
        <source>left</source>
        <translation>levá</translation>
    </message>
    <message>
        <source>right</source>
        <translation>pravá</translation>
    </message>
    <message>
        <source>side unknown</source>
        <translation>strana neznámá</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 %2°, %3 s</source>
        <translation>%1 %2°, %3 s</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Stroke, rate</source>
        <translation>Záběr, frekvence</translation>
    </message>
    <message>
        <source>Force (N)</source>
        <translation>Síla (N)</translation>
    </message>
    <message>
        <source>Power (W)</source>
        <translation>Výkon (W)</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Obrat</translation>
    </message>
    <message>
        <source>Values at the cursor</source>
        <translation>Hodnoty na kurzoru</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayDesk</name>
    <message>
        <source>The race day could not be kept: %1</source>
        <translation>Závodní den se nepodařilo uchovat: %1</translation>
    </message>
    <message>
        <source> · U: %1</source>
        <translation> · U: %1</translation>
    </message>
    <message>
        <source>start list</source>
        <translation>startovní listina</translation>
    </message>
    <message>
        <source>folder of the films</source>
        <translation>složka filmů</translation>
    </message>
    <message>
        <source>start removed</source>
        <translation>start odstraněn</translation>
    </message>
    <message>
        <source>There is no start list yet: Day &gt; Start list.</source>
        <translation>Zatím není startovní listina: Den &gt; Startovní listina.</translation>
    </message>
    <message>
        <source>No film waits to be timed.</source>
        <translation>Žádný film nečeká na změření.</translation>
    </message>
    <message>
        <source>There is no film of %1 yet.</source>
        <translation>Film zatím chybí: %1.</translation>
    </message>
    <message>
        <source>The film of %1 is still being copied.</source>
        <translation>Film se ještě kopíruje: %1.</translation>
    </message>
    <message>
        <source>Is this %1?</source>
        <translation>Je to %1?</translation>
    </message>
    <message>
        <source>film of %1</source>
        <translation>film: %1</translation>
    </message>
    <message>
        <source>There is no film that is surely matched and not agreed to yet.</source>
        <translation>Není film, který by byl jistě přiřazen a ještě neodsouhlasen.</translation>
    </message>
    <message>
        <source>film agreed to</source>
        <translation>film odsouhlasen</translation>
    </message>
    <message>
        <source>films agreed to</source>
        <translation>filmy odsouhlaseny</translation>
    </message>
    <message>
        <source>Not named, as it is not in the folder of the race or cannot be named there: %1</source>
        <translation>Nepřejmenováno, protože to není ve složce závodu nebo to tam přejmenovat nelze: %1</translation>
    </message>
    <message>
        <source>Agreed</source>
        <translation>Odsouhlaseno</translation>
    </message>
    <message>
        <source>films one start later</source>
        <translation>filmy o start později</translation>
    </message>
    <message>
        <source>films one start earlier</source>
        <translation>filmy o start dříve</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: no film</source>
        <translation>%1: bez filmu</translation>
    </message>
    <message>
        <source>film of another boat</source>
        <translation>film jiné lodi</translation>
    </message>
    <message>
        <source>film given to a boat</source>
        <translation>film přidělen lodi</translation>
    </message>
    <message>
        <source>There is no film %1</source>
        <translation>Film %1 není</translation>
    </message>
    <message>
        <source>%1 is timed: remove the last mark first.</source>
        <translation>%1 je změřen: nejdřív odstraňte poslední značku.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>%1 counts again</source>
        <translation>%1 se zase počítá</translation>
    </message>
    <message>
        <source>The clocks of camera and start list go together.</source>
        <translation>Hodiny kamery a startovní listiny souhlasí.</translation>
    </message>
    <message>
        <source>clock of the camera</source>
        <translation>hodiny kamery</translation>
    </message>
    <message numerus="yes">
        <source>%n films agreed to</source>
        <translation>
            <numerusform>%n film odsouhlasen</numerusform>
            <numerusform>%n filmy odsouhlaseny</numerusform>
            <numerusform>%n filmů odsouhlaseno</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayFilms</name>
    <message>
        <source>%1 could not be called %2 again: is that name taken?</source>
        <translation>%1 se nepodařilo přejmenovat zpět na %2: není to jméno obsazené?</translation>
    </message>
    <message>
        <source>%1 could not be copied from the card. Is the card out, or the disk full?</source>
        <translation>%1 se nepodařilo zkopírovat z karty. Není karta vyjmutá, nebo disk plný?</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayKeeping</name>
    <message>
        <source>The race day %1 cannot be read: %2. It stays as it is; a new one takes its name only after it was put aside.</source>
        <translation>Závodní den %1 nelze přečíst: %2. Zůstane, jak je; nový dostane jeho jméno, až když se tento odloží stranou.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayPanel</name>
    <message>
        <source>agreed</source>
        <translation>odsouhlaseno</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>uchováno</translation>
    </message>
    <message>
        <source>sure</source>
        <translation>jisté</translation>
    </message>
    <message>
        <source>likely</source>
        <translation>asi</translation>
    </message>
    <message>
        <source>unsure</source>
        <translation>nejisté</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>ahead of</source>
        <translation>napřed před</translation>
    </message>
    <message>
        <source>behind</source>
        <translation>pozadu za</translation>
    </message>
    <message>
        <source>Reckon with that</source>
        <translation>Počítat s tím</translation>
    </message>
    <message>
        <source>No start list yet. Paste one, or take it from a file.</source>
        <translation>Zatím bez startovní listiny. Vložte ji, nebo převezměte ze souboru.</translation>
    </message>
    <message>
        <source>Start list…</source>
        <translation>Startovní listina…</translation>
    </message>
    <message>
        <source>Films from…</source>
        <translation>Filmy z…</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Bib</source>
        <translation>St. č.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Jméno</translation>
    </message>
    <message>
        <source>A boat on the list has a name.</source>
        <translation>Loď na listině má jméno.</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Kat.</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Type the name of another film to correct a single one</source>
        <translation>Pro opravu jediného napište název jiného filmu</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Shoda</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Natočeno</translation>
    </message>
    <message>
        <source>When the recording began, and whether the camera or the file says so</source>
        <translation>Kdy natáčení začalo, a zda to říká kamera, nebo soubor</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>kamera</translation>
    </message>
    <message>
        <source>file</source>
        <translation>soubor</translation>
    </message>
    <message>
        <source>The camera&apos;s clock seems to be %1 the start list.</source>
        <translation>Hodiny kamery jsou zřejmě %1 startovní listinou.</translation>
    </message>
    <message>
        <source>%1 is not there.</source>
        <translation>%1 tam není.</translation>
    </message>
    <message>
        <source>Copying %1.</source>
        <translation>Kopíruje se %1.</translation>
    </message>
    <message>
        <source>%1 still growing.</source>
        <translation>Ještě roste: %1.</translation>
    </message>
    <message>
        <source>Of no boat: %1.</source>
        <translation>Bez lodi: %1.</translation>
    </message>
    <message>
        <source>Of no boat: %1 films, the first is %2.</source>
        <translation>Filmů bez lodi: %1, první je %2.</translation>
    </message>
    <message>
        <source>Of other days: %1.</source>
        <translation>Z jiných dnů: %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DerivedDialog</name>
    <message>
        <source>The &amp;highest number is the best</source>
        <translation>&amp;Nejvyšší číslo je nejlepší</translation>
    </message>
    <message>
        <source>Another column</source>
        <translation>Jiný sloupec</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Celkem</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Pořadí</translation>
    </message>
    <message>
        <source>Gap to the best</source>
        <translation>Odstup od nejlepšího</translation>
    </message>
    <message>
        <source>Percent behind the best</source>
        <translation>Procenta za nejlepším</translation>
    </message>
    <message>
        <source>Percentile</source>
        <translation>Percentil</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Rozdíl</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>&amp;What</source>
        <translation>&amp;Co</translation>
    </message>
    <message>
        <source>Sum &amp;of (none: times and penalties)</source>
        <translation>&amp;Součet (žádný: časy a penalizace)</translation>
    </message>
    <message>
        <source>O&amp;f</source>
        <translation>&amp;Z</translation>
    </message>
    <message>
        <source>&amp;Less</source>
        <translation>&amp;Minus</translation>
    </message>
    <message>
        <source>Each &amp;compared within</source>
        <translation>Porovnat &amp;v rámci</translation>
    </message>
    <message>
        <source>the total, else the times</source>
        <translation>celkový čas, jinak časy</translation>
    </message>
    <message>
        <source>all rows</source>
        <translation>všechny řádky</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Desktop</name>
    <message>
        <source>The folder with the races of %1</source>
        <translation>Složka se závody: %1</translation>
    </message>
    <message>
        <source>As it is in split taking now. The file does not hold all of it yet.</source>
        <translation>Tak, jak je to nyní v měření mezičasů. Soubor ještě neobsahuje všechno.</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Nástroje</translation>
    </message>
    <message>
        <source>Nothing to open in “%1”</source>
        <translation>V „%1“ není co otevřít</translation>
    </message>
    <message>
        <source>There is no split file (.kvx) and no film in this folder.</source>
        <translation>V této složce není žádný soubor mezičasů (.kvx) ani film.</translation>
    </message>
    <message>
        <source>“%1” is not where it was</source>
        <translation>„%1“ už není na svém místě</translation>
    </message>
    <message>
        <source>It was in %1. Open it from where it is now, then ask again.</source>
        <translation>Bylo to v %1. Otevřete to z nynějšího místa a pak se zeptejte znovu.</translation>
    </message>
    <message>
        <source>%1 (on the server)</source>
        <translation>%1 (na serveru)</translation>
    </message>
    <message>
        <source>What the server has is no planning.</source>
        <translation>Na serveru není žádné plánování.</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Jízda %1</translation>
    </message>
    <message>
        <source>The run of %1</source>
        <translation>Jízda: %1</translation>
    </message>
    <message>
        <source>%1 is not in split taking any more: it was removed there, or has another crew and film.</source>
        <translation>%1 už v měření mezičasů není: jízda tam byla odstraněna, nebo má jinou posádku a film.</translation>
    </message>
    <message>
        <source>Of single split files, or of all in a folder and below it?</source>
        <translation>Z jednotlivých souborů mezičasů, nebo ze všech ve složce a pod ní?</translation>
    </message>
    <message>
        <source>Split files…</source>
        <translation>Soubory mezičasů…</translation>
    </message>
    <message>
        <source>A folder…</source>
        <translation>Složka…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DetailsPanel</name>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Noted as</source>
        <translation>Poznamenáno jako</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Penalizace</translation>
    </message>
    <message>
        <source>of</source>
        <translation>z</translation>
    </message>
    <message>
        <source>Those of which this was noted; for those of which it was not noted, all penalties</source>
        <translation>Ty, u nichž to bylo poznamenáno; kde to poznamenáno nebylo, všechny penalizace</translation>
    </message>
    <message>
        <source>Share %</source>
        <translation>Podíl %</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#xa0;%</translation>
    </message>
    <message>
        <source>Where the share lies with 90 %</source>
        <translation>Kde podíl leží s 90&#xa0;%</translation>
    </message>
    <message>
        <source>No penalty was noted in detail. Split taking notes them.</source>
        <translation>Žádná penalizace nebyla podrobně poznamenána. Poznamenává je měření mezičasů.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DocumentChoiceDialog</name>
    <message>
        <source>%1   in %2</source>
        <translation>%1   v %2</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Nový…</translation>
    </message>
    <message>
        <source>Open an&amp;other…</source>
        <translation>Otevřít &amp;jiný…</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Otevřít</translation>
    </message>
    <message>
        <source>None was opened yet.</source>
        <translation>Zatím nebyl otevřen žádný.</translation>
    </message>
    <message>
        <source>Opened before:</source>
        <translation>Dříve otevřené:</translation>
    </message>
    <message>
        <source>Name the new file</source>
        <translation>Pojmenujte nový soubor</translation>
    </message>
    <message>
        <source>%1 (*.%2)</source>
        <translation>%1 (*.%2)</translation>
    </message>
    <message>
        <source>%1 (*.%2);;All files (*)</source>
        <translation>%1 (*.%2);;Všechny soubory (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DrawnRates</name>
    <message>
        <source>Touches on the course</source>
        <translation>Ťuky na trati</translation>
    </message>
    <message>
        <source>Gate %1: %2 %</source>
        <translation>Branka %1: %2&#xa0;%</translation>
    </message>
    <message>
        <source>, %1 of %2 touched</source>
        <translation>, s ťukem %1 z %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DropAreas</name>
    <message>
        <source>Import .kvb file</source>
        <translation>Importovat soubor .kvb</translation>
    </message>
    <message>
        <source>Import .sbm file</source>
        <translation>Importovat soubor .sbm</translation>
    </message>
    <message>
        <source>Drag .kvb file to top left of the window</source>
        <translation>Soubor .kvb přetáhněte vlevo nahoru do okna</translation>
    </message>
    <message>
        <source>A raw recording of the boat: strokes and turns are found in it.</source>
        <translation>Surový záznam lodi: záběry a obraty se v něm najdou.</translation>
    </message>
    <message>
        <source>Drag .sbm file to top right of the window</source>
        <translation>Soubor .sbm přetáhněte vpravo nahoru do okna</translation>
    </message>
    <message>
        <source>A processed session, .sbm or .bms: strokes and turns are in it already.</source>
        <translation>Zpracovaná jednotka, .sbm nebo .bms: záběry a obraty už obsahuje.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::EarlierWorkDialog</name>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Uchováno</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Potom</translation>
    </message>
    <message>
        <source>given up</source>
        <translation>zahozeno</translation>
    </message>
    <message>
        <source>put off</source>
        <translation>odloženo</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>Bring back earlier work</source>
        <translation>Obnovit dřívější práci</translation>
    </message>
    <message>
        <source>Nothing was kept that is not in a document again.</source>
        <translation>Není uchováno nic, co by zase nebylo v dokumentu.</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Obnovit</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::EditedFile</name>
    <message>
        <source>today %1</source>
        <translation>dnes %1</translation>
    </message>
    <message>
        <source>yesterday %1</source>
        <translation>včera %1</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Načíst</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Později</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Zahodit</translation>
    </message>
    <message>
        <source>1 change</source>
        <translation>1 změna</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>„%1“ nelze otevřít</translation>
    </message>
    <message>
        <source>The file was changed by another program since it was opened. Saving replaces what that program wrote.</source>
        <translation>Soubor od otevření změnil jiný program. Uložením se nahradí, co ten program zapsal.</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Nahradit</translation>
    </message>
    <message>
        <source>Look at the other</source>
        <translation>Podívat se na druhý</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Uložit jako…</translation>
    </message>
    <message>
        <source>“%1” is open in another window. Close it there first, or take another name.</source>
        <translation>„%1“ je otevřeno v jiném okně. Nejdřív to tam zavřete, nebo zvolte jiné jméno.</translation>
    </message>
    <message>
        <source>%1 (the other).%2</source>
        <translation>%1 (druhý).%2</translation>
    </message>
    <message>
        <source>Your work is kept apart, and offered when the file is opened again.</source>
        <translation>Vaše práce je uchována stranou a nabídne se, až se soubor znovu otevře.</translation>
    </message>
    <message>
        <source>Your work is in this window alone: it could not be kept apart either.</source>
        <translation>Vaše práce je jen v tomto okně: nepodařilo se ji uchovat ani stranou.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Zkusit znovu</translation>
    </message>
    <message>
        <source>The file of the older version could not be kept beside the new one, so that nothing was written.</source>
        <translation>Soubor starší verze se nepodařilo uchovat vedle nového, proto se nic nezapsalo.</translation>
    </message>
    <message numerus="yes">
        <source>%n changes</source>
        <translation>
            <numerusform>%n změna</numerusform>
            <numerusform>%n změny</numerusform>
            <numerusform>%n změn</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::EightForm</name>
    <message>
        <source>Split %1</source>
        <translation>Mezičas %1</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>Ka&amp;tegorie</translation>
    </message>
    <message>
        <source>Pha&amp;se</source>
        <translation>Fá&amp;ze</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Mezičasy</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Body</translation>
    </message>
    <message>
        <source>Taken from</source>
        <translation>Převzato z</translation>
    </message>
    <message>
        <source>Time
(s)</source>
        <translation>Čas
(s)</translation>
    </message>
    <message>
        <source>Time of one eight</source>
        <translation>Čas jedné osmičky</translation>
    </message>
    <message>
        <source>In the video
(s)</source>
        <translation>Ve videu
(s)</translation>
    </message>
    <message>
        <source>Where in the video the split was taken</source>
        <translation>Kde ve videu byl mezičas změřen</translation>
    </message>
    <message>
        <source>split %1</source>
        <translation>mezičas %1</translation>
    </message>
    <message>
        <source>no video</source>
        <translation>bez videa</translation>
    </message>
    <message>
        <source>%1, no motion samples</source>
        <translation>%1, bez vzorků pohybu</translation>
    </message>
    <message>
        <source>%1, %2 motion samples</source>
        <translation>%1, vzorků pohybu: %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::EntryTable</name>
    <message>
        <source>“%1” is a number from 0 to %2</source>
        <translation>„%1“ je číslo od 0 do %2</translation>
    </message>
    <message>
        <source>“%1” is more than 0. An emptied cell stands for none.</source>
        <translation>„%1“ je více než 0. Prázdná buňka znamená žádné.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ExerciseTable</name>
    <message>
        <source>The file has no entry here. Typing makes one.</source>
        <translation>Soubor zde nemá údaj. Psaním vznikne.</translation>
    </message>
    <message>
        <source>The estimate from repetitions and weight. A click or Ctrl+Enter takes it as the maximum.</source>
        <translation>Odhad z opakování a hmotnosti. Kliknutí nebo Ctrl+Enter ho převezme jako maximum.</translation>
    </message>
    <message>
        <source>Exercise</source>
        <translation>Cvik</translation>
    </message>
    <message>
        <source>exercise</source>
        <translation>cvik</translation>
    </message>
    <message>
        <source>Sets</source>
        <translation>Série</translation>
    </message>
    <message>
        <source>sets</source>
        <translation>série</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>Opakování</translation>
    </message>
    <message>
        <source>repetitions</source>
        <translation>opakování</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Hmotnost</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>weight</source>
        <translation>hmotnost</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>maximum</translation>
    </message>
    <message>
        <source>Estimate</source>
        <translation>Odhad</translation>
    </message>
    <message>
        <source>Add exercise</source>
        <translation>Přidat cvik</translation>
    </message>
    <message>
        <source>Remove exercise</source>
        <translation>Odstranit cvik</translation>
    </message>
    <message>
        <source>Take estimate</source>
        <translation>Převzít odhad</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>1 exercise</source>
        <translation>1 cvik</translation>
    </message>
    <message>
        <source>%1 · %2 sets · tonnage %3 kg</source>
        <translation>%1 · sérií: %2 · tonáž %3 kg</translation>
    </message>
    <message>
        <source>Estimated maximum: table %1 · Epley %2 · Brzycki %3 · McGlothin %4 · Lombardi %5 · result &lt;b&gt;%6&lt;/b&gt;</source>
        <translation>Odhadnuté maximum: tabulka %1 · Epley %2 · Brzycki %3 · McGlothin %4 · Lombardi %5 · výsledek &lt;b&gt;%6&lt;/b&gt;</translation>
    </message>
    <message>
        <source>new exercise</source>
        <translation>nový cvik</translation>
    </message>
    <message>
        <source>removal of an exercise</source>
        <translation>odstranění cviku</translation>
    </message>
    <message>
        <source>estimated maximum</source>
        <translation>odhadnuté maximum</translation>
    </message>
    <message numerus="yes">
        <source>%n exercises</source>
        <translation>
            <numerusform>%n cvik</numerusform>
            <numerusform>%n cviky</numerusform>
            <numerusform>%n cviků</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ExportDialog</name>
    <message>
        <source>Export data</source>
        <translation>Export dat</translation>
    </message>
    <message>
        <source>Split files (*.kvx)</source>
        <translation>Soubory mezičasů (*.kvx)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FactsForm</name>
    <message>
        <source>&amp;Athlete</source>
        <translation>Záv&amp;odník</translation>
    </message>
    <message>
        <source>Name of the athlete</source>
        <translation>Jméno závodníka</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Datum</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Místo</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FactsStatus</name>
    <message>
        <source>Which ones?</source>
        <translation>Které?</translation>
    </message>
    <message>
        <source>reading was cancelled: not all files are here</source>
        <translation>čtení bylo zrušeno: nejsou zde všechny soubory</translation>
    </message>
    <message>
        <source>1 file could not be read</source>
        <translation>1 soubor nelze přečíst</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be read</source>
        <translation>
            <numerusform>%n soubor nelze přečíst</numerusform>
            <numerusform>%n soubory nelze přečíst</numerusform>
            <numerusform>%n souborů nelze přečíst</numerusform>
        </translation>
    </message>
    <message>
        <source>1 copy of a file does not count</source>
        <translation>1 kopie souboru se nepočítá</translation>
    </message>
    <message numerus="yes">
        <source>%n copies of files do not count</source>
        <translation>
            <numerusform>%n kopie souboru se nepočítá</numerusform>
            <numerusform>%n kopie souborů se nepočítají</numerusform>
            <numerusform>%n kopií souborů se nepočítá</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FailedFiles</name>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Co je špatně</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>Files that could not be read</source>
        <translation>Soubory, které nelze přečíst</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FetchActions</name>
    <message>
        <source>&amp;Open a source…</source>
        <translation>&amp;Otevřít zdroj…</translation>
    </message>
    <message>
        <source>&amp;Save the source…</source>
        <translation>&amp;Uložit zdroj…</translation>
    </message>
    <message>
        <source>Choose the &amp;list of bibs…</source>
        <translation>Vybrat &amp;listinu s čísly…</translation>
    </message>
    <message>
        <source>Choose the &amp;folder for the films…</source>
        <translation>Vybrat &amp;složku pro filmy…</translation>
    </message>
    <message>
        <source>&amp;Time the films of the folder</source>
        <translation>Změřit &amp;filmy složky</translation>
    </message>
    <message>
        <source>Fet&amp;ch</source>
        <translation>S&amp;tažení</translation>
    </message>
    <message>
        <source>&amp;Show what would be fetched</source>
        <translation>&amp;Ukázat, co by se stáhlo</translation>
    </message>
    <message>
        <source>&amp;Fetch the ticked films</source>
        <translation>&amp;Stáhnout zaškrtnuté filmy</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Zrušit</translation>
    </message>
    <message>
        <source>Tick &amp;all</source>
        <translation>Zaškrtnout &amp;vše</translation>
    </message>
    <message>
        <source>Tick &amp;none</source>
        <translation>Zaškrtnout &amp;nic</translation>
    </message>
    <message>
        <source>Ser&amp;ver</source>
        <translation>Ser&amp;ver</translation>
    </message>
    <message>
        <source>&amp;Sign in…</source>
        <translation>&amp;Přihlásit…</translation>
    </message>
    <message>
        <source>&amp;Forget the password</source>
        <translation>Zapo&amp;menout heslo</translation>
    </message>
    <message>
        <source>&amp;Other servers</source>
        <translation>&amp;Jiné servery</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FetchWindow</name>
    <message>
        <source>Fetch films</source>
        <translation>Stažení filmů</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adresa</translation>
    </message>
    <message>
        <source>Of one film, with {bib}, {category}, {phase} or {run} where they stand ({bib:3} is 014); or of a list: a page, JSON, M3U8 or WebDAV folder</source>
        <translation>Jednoho filmu, s {bib}, {category}, {phase} nebo {run} na jejich místě ({bib:3} je 014); nebo seznamu: stránka, JSON, M3U8 nebo složka WebDAV</translation>
    </message>
    <message>
        <source>&amp;Bibs from</source>
        <translation>&amp;Čísla z</translation>
    </message>
    <message>
        <source>Start list or results (a column is called bib), or a split file</source>
        <translation>Startovní listina nebo výsledky (některý sloupec se jmenuje bib), nebo soubor mezičasů</translation>
    </message>
    <message>
        <source>start list, results or split file</source>
        <translation>startovní listina, výsledky nebo soubor mezičasů</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Složka</translation>
    </message>
    <message>
        <source>Where the films are put; no file there is ever overwritten</source>
        <translation>Kam se filmy uloží; žádný soubor se tam nikdy nepřepíše</translation>
    </message>
    <message>
        <source>for the films</source>
        <translation>pro filmy</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>&amp;Jména</translation>
    </message>
    <message>
        <source>Of the files: {name}, {category}, {phase}, {bib} and {number}</source>
        <translation>Názvy souborů: {name}, {category}, {phase}, {bib} a {number}</translation>
    </message>
    <message>
        <source>Choose a list…</source>
        <translation>Vybrat listinu…</translation>
    </message>
    <message>
        <source>Start list, results, split file</source>
        <translation>Startovní listina, výsledky, soubor mezičasů</translation>
    </message>
    <message>
        <source>Choose a folder…</source>
        <translation>Vybrat složku…</translation>
    </message>
    <message>
        <source>For the films</source>
        <translation>Pro filmy</translation>
    </message>
    <message>
        <source>Other se&amp;rvers that films may come from</source>
        <translation>Jiné ser&amp;very, z nichž filmy smějí přijít</translation>
    </message>
    <message>
        <source>Show what would be fetched</source>
        <translation>Ukázat, co by se stáhlo</translation>
    </message>
    <message>
        <source>Fetch the ticked films</source>
        <translation>Stáhnout zaškrtnuté filmy</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Nothing is fetched before it is shown here</source>
        <translation>Nic se nestáhne, dokud to není ukázáno zde</translation>
    </message>
    <message>
        <source>Films are being fetched. Another source or list is opened after that.</source>
        <translation>Stahují se filmy. Jiný zdroj nebo listina se otevře potom.</translation>
    </message>
    <message>
        <source>“%1” is no source of films</source>
        <translation>„%1“ není zdroj filmů</translation>
    </message>
    <message>
        <source>Start list, results or split file</source>
        <translation>Startovní listina, výsledky nebo soubor mezičasů</translation>
    </message>
    <message>
        <source>Lists and split files (*.csv *.txt *.tsv *.kvx);;All files (*)</source>
        <translation>Seznamy a soubory mezičasů (*.csv *.txt *.tsv *.kvx);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Folder for the films</source>
        <translation>Složka pro filmy</translation>
    </message>
    <message>
        <source>Open a source of films</source>
        <translation>Otevřít zdroj filmů</translation>
    </message>
    <message>
        <source>Sources of films (*.json)</source>
        <translation>Zdroje filmů (*.json)</translation>
    </message>
    <message>
        <source>Save the source of films</source>
        <translation>Uložit zdroj filmů</translation>
    </message>
    <message>
        <source>The source was saved. “kavela fetch” takes the file, too.</source>
        <translation>Zdroj byl uložen. Tento soubor přijme i „kavela fetch“.</translation>
    </message>
    <message>
        <source>The source could not be saved</source>
        <translation>Zdroj nelze uložit</translation>
    </message>
    <message>
        <source>What there is to fetch is being found out…</source>
        <translation>Zjišťuje se, co lze stáhnout…</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made.</source>
        <translation>Složku „%1“ nelze vytvořit.</translation>
    </message>
    <message>
        <source>Films are being fetched…</source>
        <translation>Stahují se filmy…</translation>
    </message>
    <message>
        <source>There is no address to sign in to yet.</source>
        <translation>Zatím není adresa, ke které by se dalo přihlásit.</translation>
    </message>
    <message>
        <source>This computer has no password store that is open. The password holds until this window is closed.</source>
        <translation>Tento počítač nemá otevřené úložiště hesel. Heslo platí, dokud se toto okno nezavře.</translation>
    </message>
    <message>
        <source>The password of %1 was forgotten.</source>
        <translation>Heslo pro %1 bylo zapomenuto.</translation>
    </message>
    <message>
        <source>%v of %m films</source>
        <translation>filmy: %v z %m</translation>
    </message>
    <message>
        <source>Films are being fetched</source>
        <translation>Stahují se filmy</translation>
    </message>
    <message>
        <source>What is there of them stays; fetching them again goes on with it.</source>
        <translation>Co z nich už je, zůstane; nové stažení na to naváže.</translation>
    </message>
    <message>
        <source>Stop and close</source>
        <translation>Zastavit a zavřít</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmBrowser</name>
    <message>
        <source>Filter: k1w 12 semi</source>
        <translation>Filtr: k1w 12 semi</translation>
    </message>
    <message>
        <source>No film here. Open a folder of films with Ctrl+O, or drop one.</source>
        <translation>Žádný film. Otevřete složku filmů pomocí Ctrl+O, nebo ji sem přetáhněte.</translation>
    </message>
    <message>
        <source>No tag yet: M sets one where a film stands.</source>
        <translation>Zatím žádný štítek: M ho nastaví tam, kde film stojí.</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Seznam</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Dlaždice</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Štítky</translation>
    </message>
    <message>
        <source>%1 films</source>
        <translation>filmů: %1</translation>
    </message>
    <message>
        <source>%1 of %2 films</source>
        <translation>filmy: %1 z %2</translation>
    </message>
    <message>
        <source>No film fits the filter. Empty it to see all again.</source>
        <translation>Filtru neodpovídá žádný film. Vyprázdněte ho a uvidíte zase všechny.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmCutting</name>
    <message>
        <source>%1 cut</source>
        <translation>%1 výřez</translation>
    </message>
    <message>
        <source>Cut into a new film</source>
        <translation>Vystřihnout do nového filmu</translation>
    </message>
    <message>
        <source>Films (*.mp4 *.mov *.m4v)</source>
        <translation>Filmy (*.mp4 *.mov *.m4v)</translation>
    </message>
    <message>
        <source>Cutting %1…</source>
        <translation>Stříhá se %1…</translation>
    </message>
    <message>
        <source>The film could not be cut</source>
        <translation>Film nelze vystřihnout</translation>
    </message>
    <message>
        <source>The cut has no end yet: O sets it at this frame.</source>
        <translation>Výřez ještě nemá konec: O ho nastaví na tento snímek.</translation>
    </message>
    <message>
        <source>The cut has no beginning yet: I sets it at this frame.</source>
        <translation>Výřez ještě nemá začátek: I ho nastaví na tento snímek.</translation>
    </message>
    <message>
        <source>Set the ends of the cut first: I where it begins, O where it ends.</source>
        <translation>Nejdřív nastavte konce výřezu: I, kde začíná, O, kde končí.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmDeck</name>
    <message>
        <source>The film was closed before it had been read so far.</source>
        <translation>Film byl zavřen dřív, než se sem dočetl.</translation>
    </message>
    <message>
        <source>The film has not been read so far yet: nothing was marked.</source>
        <translation>Film ještě není přečten až sem: nic nebylo označeno.</translation>
    </message>
    <message>
        <source>The film has not been read so far yet: no frame to step from.</source>
        <translation>Film ještě není přečten až sem: není snímek, od kterého krokovat.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmPlaying</name>
    <message>
        <source>Choose a film on the left.</source>
        <translation>Vyberte film vlevo.</translation>
    </message>
    <message>
        <source>The film is no longer there:
%1</source>
        <translation>Film už tam není:
%1</translation>
    </message>
    <message>
        <source>That was the last one</source>
        <translation>To byl poslední</translation>
    </message>
    <message>
        <source>This is the first one</source>
        <translation>Toto je první</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmShelf</name>
    <message>
        <source>Renaming films…</source>
        <translation>Přejmenovávají se filmy…</translation>
    </message>
    <message>
        <source>“%1” has films that are to be renamed, and is open in another window. Close it there first.</source>
        <translation>„%1“ obsahuje filmy k přejmenování a je otevřeno v jiném okně. Nejdřív ho tam zavřete.</translation>
    </message>
    <message>
        <source>A renaming was cut off here, and its note cannot be read: %1</source>
        <translation>Přejmenování zde bylo přerušeno a jeho záznam nelze přečíst: %1</translation>
    </message>
    <message>
        <source>Renaming was cut off</source>
        <translation>Přejmenování bylo přerušeno</translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) of this folder were being renamed when the program ended. No film is lost: the renaming can be completed, or undone.</source>
        <translation>
            <numerusform>%n film této složky se právě přejmenovával, když program skončil. Žádný film není ztracen: přejmenování lze dokončit, nebo vrátit.</numerusform>
            <numerusform>%n filmy této složky se právě přejmenovávaly, když program skončil. Žádný film není ztracen: přejmenování lze dokončit, nebo vrátit.</numerusform>
            <numerusform>%n filmů této složky se právě přejmenovávalo, když program skončil. Žádný film není ztracen: přejmenování lze dokončit, nebo vrátit.</numerusform>
        </translation>
    </message>
    <message>
        <source>Complete it</source>
        <translation>Dokončit</translation>
    </message>
    <message>
        <source>Undo it</source>
        <translation>Vrátit</translation>
    </message>
    <message>
        <source>This tag is of the split file: split taking edits it.</source>
        <translation>Tento štítek je ze souboru mezičasů: upravuje se v měření mezičasů.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmStage</name>
    <message>
        <source>Typing: Esc gives the keys back to the film</source>
        <translation>Psaní: Esc vrátí klávesy filmu</translation>
    </message>
    <message>
        <source>Fixed: %1</source>
        <translation>Pevná: %1</translation>
    </message>
    <message>
        <source>Where are the films now?…</source>
        <translation>Kde jsou filmy nyní?…</translation>
    </message>
    <message>
        <source>Playing %1</source>
        <translation>Přehrává se %1</translation>
    </message>
    <message>
        <source>Paused, %1</source>
        <translation>Pozastaveno, %1</translation>
    </message>
    <message>
        <source>Camera %1: </source>
        <translation>Kamera %1: </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmTiles</name>
    <message>
        <source>No picture</source>
        <translation>Bez obrazu</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmView</name>
    <message>
        <source>frame %1   %2 s</source>
        <translation>snímek %1   %2 s</translation>
    </message>
    <message>
        <source>  ±%1</source>
        <translation>  ±%1</translation>
    </message>
    <message>
        <source>…</source>
        <translation>…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmsActions</name>
    <message>
        <source>&amp;Open a folder…</source>
        <translation>Otevřít &amp;složku…</translation>
    </message>
    <message>
        <source>Folders opened &amp;before</source>
        <translation>Dříve otevřené složk&amp;y</translation>
    </message>
    <message>
        <source>&amp;Read again</source>
        <translation>Načíst &amp;znovu</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Úprav&amp;y</translation>
    </message>
    <message>
        <source>&amp;Filter the films</source>
        <translation>&amp;Filtrovat filmy</translation>
    </message>
    <message>
        <source>Re&amp;name films…</source>
        <translation>Přej&amp;menovat filmy…</translation>
    </message>
    <message>
        <source>F&amp;ilms</source>
        <translation>F&amp;ilmy</translation>
    </message>
    <message>
        <source>&amp;Play from the beginning</source>
        <translation>&amp;Přehrát od začátku</translation>
    </message>
    <message>
        <source>&amp;Next film</source>
        <translation>Další &amp;film</translation>
    </message>
    <message>
        <source>Pre&amp;vious film</source>
        <translation>Přede&amp;šlý film</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Seznam</translation>
    </message>
    <message>
        <source>&amp;Tiles</source>
        <translation>Dlaž&amp;dice</translation>
    </message>
    <message>
        <source>T&amp;ags</source>
        <translation>Š&amp;títky</translation>
    </message>
    <message>
        <source>Mark as &amp;watched</source>
        <translation>Označit jako &amp;zhlédnuté</translation>
    </message>
    <message>
        <source>Mark as n&amp;ot watched</source>
        <translation>Označit jako &amp;nezhlédnuté</translation>
    </message>
    <message>
        <source>A &amp;click plays</source>
        <translation>&amp;Kliknutí přehraje</translation>
    </message>
    <message>
        <source>The next one &amp;follows</source>
        <translation>Další násled&amp;uje</translation>
    </message>
    <message>
        <source>Begin at the first &amp;mark</source>
        <translation>Z&amp;ačít na první značce</translation>
    </message>
    <message>
        <source>&amp;Tags</source>
        <translation>Ští&amp;tky</translation>
    </message>
    <message>
        <source>&amp;Tag this frame</source>
        <translation>Š&amp;títek na tento snímek</translation>
    </message>
    <message>
        <source>Tag with a &amp;saved name</source>
        <translation>Štítek s &amp;uloženým jménem</translation>
    </message>
    <message>
        <source>Saved tag %1</source>
        <translation>Uložený štítek %1</translation>
    </message>
    <message>
        <source>Move the selected tag &amp;here</source>
        <translation>Přesunout vybraný štítek &amp;sem</translation>
    </message>
    <message>
        <source>Tag one frame &amp;earlier</source>
        <translation>Štítek o snímek &amp;dříve</translation>
    </message>
    <message>
        <source>Tag one frame &amp;later</source>
        <translation>Štítek o snímek &amp;později</translation>
    </message>
    <message>
        <source>&amp;Remove the selected tag</source>
        <translation>&amp;Odstranit vybraný štítek</translation>
    </message>
    <message>
        <source>&amp;Previous tag</source>
        <translation>Př&amp;edchozí štítek</translation>
    </message>
    <message>
        <source>&amp;Next tag</source>
        <translation>Da&amp;lší štítek</translation>
    </message>
    <message>
        <source>Play &amp;just the part around a tag</source>
        <translation>Přehrát &amp;jen část kolem štítku</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>Stři&amp;h</translation>
    </message>
    <message>
        <source>The cut &amp;begins here</source>
        <translation>Výřez &amp;začíná zde</translation>
    </message>
    <message>
        <source>The cut &amp;ends here</source>
        <translation>Výřez zde &amp;končí</translation>
    </message>
    <message>
        <source>&amp;Give the ends up</source>
        <translation>Z&amp;rušit konce</translation>
    </message>
    <message>
        <source>Cut by &amp;copying…</source>
        <translation>&amp;Vystřihnout kopií…</translation>
    </message>
    <message>
        <source>Cut e&amp;xactly…</source>
        <translation>Vystřihnout &amp;přesně…</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filmy</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmsWindow</name>
    <message>
        <source>Films</source>
        <translation>Filmy</translation>
    </message>
    <message>
        <source>&amp;Tag that M sets:</source>
        <translation>Štítek, který &amp;M nastaví:</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Vystřihnout</translation>
    </message>
    <message>
        <source>Cut into %1</source>
        <translation>Vystřiženo do %1</translation>
    </message>
    <message>
        <source>“%1” is not there.</source>
        <translation>„%1“ tam není.</translation>
    </message>
    <message>
        <source>Open a folder of films</source>
        <translation>Otevřít složku filmů</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Čte se…</translation>
    </message>
    <message>
        <source>⚠ Not read: %1</source>
        <translation>⚠ Nepřečteno: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FindActions</name>
    <message>
        <source>Queries</source>
        <translation>Dotazy</translation>
    </message>
    <message>
        <source>Search a &amp;folder…</source>
        <translation>Prohledat &amp;složku…</translation>
    </message>
    <message>
        <source>Search f&amp;iles…</source>
        <translation>Prohl&amp;edat soubory…</translation>
    </message>
    <message>
        <source>&amp;Read again</source>
        <translation>Načíst &amp;znovu</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>Zastavit čte&amp;ní</translation>
    </message>
    <message>
        <source>Files that could not be rea&amp;d…</source>
        <translation>Soubory, které nelze &amp;přečíst…</translation>
    </message>
    <message>
        <source>Save the result as &amp;CSV…</source>
        <translation>Uložit výsledek jako &amp;CSV…</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>&amp;Dotaz</translation>
    </message>
    <message>
        <source>&amp;Type a query</source>
        <translation>&amp;Napsat dotaz</translation>
    </message>
    <message>
        <source>&amp;Fields</source>
        <translation>&amp;Pole</translation>
    </message>
    <message>
        <source>&amp;Queries</source>
        <translation>&amp;Dotazy</translation>
    </message>
    <message>
        <source>&amp;Keep this query</source>
        <translation>&amp;Uchovat tento dotaz</translation>
    </message>
    <message>
        <source>&amp;Give up the kept query</source>
        <translation>&amp;Zrušit uchovaný dotaz</translation>
    </message>
    <message>
        <source>Resul&amp;t</source>
        <translation>&amp;Výsledek</translation>
    </message>
    <message>
        <source>&amp;Show the run at its frame</source>
        <translation>&amp;Ukázat jízdu na jejím snímku</translation>
    </message>
    <message>
        <source>Open its &amp;race</source>
        <translation>Otevřít její &amp;závod</translation>
    </message>
    <message>
        <source>Its &amp;time losses</source>
        <translation>Její &amp;časové ztráty</translation>
    </message>
    <message>
        <source>The rows of the &amp;group</source>
        <translation>Řádky &amp;skupiny</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FindWindow</name>
    <message>
        <source>Find</source>
        <translation>Hledání</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Queries</source>
        <translation>Dotazy</translation>
    </message>
    <message>
        <source>gates up left cat K1W time&lt;4 – what, then what is asked of it</source>
        <translation>gates up left cat K1W time&lt;4 – co, a pak co se od toho žádá</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Uchovat</translation>
    </message>
    <message>
        <source>Keeps this query among those at hand</source>
        <translation>Uchová tento dotaz mezi těmi po ruce</translation>
    </message>
    <message>
        <source>The files are being read…</source>
        <translation>Soubory se čtou…</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 soubor</translation>
    </message>
    <message>
        <source>1 run</source>
        <translation>1 jízda</translation>
    </message>
    <message>
        <source>. Reading was stopped: the others are not searched.</source>
        <translation>. Čtení bylo zastaveno: ostatní se neprohledávají.</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nic se nenašlo.</translation>
    </message>
    <message>
        <source>In the group: %1</source>
        <translation>Ve skupině: %1</translation>
    </message>
    <message>
        <source> · run %1</source>
        <translation> · jízda %1</translation>
    </message>
    <message>
        <source> · split %1</source>
        <translation> · mezičas %1</translation>
    </message>
    <message>
        <source> · %1 s</source>
        <translation> · %1 s</translation>
    </message>
    <message>
        <source>Save the result</source>
        <translation>Uložit výsledek</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Text oddělený středníky (*.csv)</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n soubor</numerusform>
            <numerusform>%n soubory</numerusform>
            <numerusform>%n souborů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n jízda</numerusform>
            <numerusform>%n jízdy</numerusform>
            <numerusform>%n jízd</numerusform>
        </translation>
    </message>
    <message>
        <source>Drop a folder of split files (.kvx) here</source>
        <translation>Přetáhněte sem složku souborů mezičasů (.kvx)</translation>
    </message>
    <message>
        <source>All races below it are searched. They are only read.</source>
        <translation>Prohledají se všechny závody v ní a pod ní. Jen se čtou.</translation>
    </message>
    <message>
        <source>Search a folder…</source>
        <translation>Prohledat složku…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FoundLines</name>
    <message>
        <source>In the file</source>
        <translation>V souboru</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Bylo</translation>
    </message>
    <message>
        <source>Will be</source>
        <translation>Bude</translation>
    </message>
    <message>
        <source>new: %1</source>
        <translation>nové: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FoundTable</name>
    <message>
        <source>rows of the group</source>
        <translation>řádky skupiny</translation>
    </message>
    <message>
        <source>run</source>
        <translation>jízda</translation>
    </message>
    <message>
        <source>runs</source>
        <translation>jízdy</translation>
    </message>
    <message>
        <source>section</source>
        <translation>úsek</translation>
    </message>
    <message>
        <source>sections</source>
        <translation>úseky</translation>
    </message>
    <message>
        <source>gate</source>
        <translation>branka</translation>
    </message>
    <message>
        <source>gates</source>
        <translation>branky</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>penalizace</translation>
    </message>
    <message>
        <source>penalties</source>
        <translation>penalizace</translation>
    </message>
    <message>
        <source>loss</source>
        <translation>ztráta</translation>
    </message>
    <message>
        <source>losses</source>
        <translation>ztráty</translation>
    </message>
    <message>
        <source>section with strokes</source>
        <translation>úsek se záběry</translation>
    </message>
    <message>
        <source>sections with strokes</source>
        <translation>úseky se záběry</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>štítek</translation>
    </message>
    <message>
        <source>tags</source>
        <translation>štítky</translation>
    </message>
    <message>
        <source>group</source>
        <translation>skupina</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>skupiny</translation>
    </message>
    <message>
        <source>less than 1 ms</source>
        <translation>méně než 1 ms</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 %2 in %3</source>
        <translation>%2: %1 (%3)</translation>
    </message>
    <message>
        <source>, the first %1 shown</source>
        <translation>, ukázáno prvních %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GapChart</name>
    <message>
        <source>Select runs in the table to see where time is won and lost.</source>
        <translation>Vyberte v tabulce jízdy a uvidíte, kde se čas získal a ztratil.</translation>
    </message>
    <message>
        <source>No run covers the whole course. Choose the median or a run as the reference.</source>
        <translation>Žádná jízda nepokrývá celou trať. Zvolte za referenci medián nebo jízdu.</translation>
    </message>
    <message>
        <source>The reference has no time in the first section. Choose another one.</source>
        <translation>Reference nemá čas v prvním úseku. Zvolte jinou.</translation>
    </message>
    <message>
        <source>Gap to the best run: %1</source>
        <translation>Odstup od nejlepší jízdy: %1</translation>
    </message>
    <message>
        <source>Gap to the median of each section</source>
        <translation>Odstup od mediánu každého úseku</translation>
    </message>
    <message>
        <source>Gap to the ideal run: the best of each section</source>
        <translation>Odstup od ideální jízdy: nejlepšího v každém úseku</translation>
    </message>
    <message>
        <source>Gap to %1</source>
        <translation>Odstup: reference %1</translation>
    </message>
    <message>
        <source>Accumulated seconds, penalties included</source>
        <translation>Průběžné sekundy, včetně penalizace</translation>
    </message>
    <message>
        <source>Accumulated seconds, without penalties</source>
        <translation>Průběžné sekundy, bez penalizace</translation>
    </message>
    <message>
        <source>← slower      faster →</source>
        <translation>← pomaleji      rychleji →</translation>
    </message>
    <message>
        <source>not timed</source>
        <translation>nezměřeno</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Odstup</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>v %1</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>Za %1</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Úsek</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>%1: gap</source>
        <translation>%1: odstup</translation>
    </message>
    <message>
        <source>%1: in the section</source>
        <translation>%1: v úseku</translation>
    </message>
    <message>
        <source>Gap along the course for the selected runs</source>
        <translation>Odstup po trati u vybraných jízd</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GateChart</name>
    <message>
        <source>No run has its penalties by gate. Enter them for each gate to see where they happen.</source>
        <translation>Žádná jízda nemá penalizace po brankách. Zadejte je u každé branky a uvidíte, kde vznikají.</translation>
    </message>
    <message>
        <source>Penalties by gate</source>
        <translation>Penalizace po brankách</translation>
    </message>
    <message>
        <source>Runs with a penalty at the gate, of %1</source>
        <translation>Jízdy s penalizací na brance, z %1</translation>
    </message>
    <message>
        <source> · ↑ upstream gate</source>
        <translation> · ↑ protivodná branka</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Branka</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Jízdy</translation>
    </message>
    <message>
        <source>Missed gate, 50 s</source>
        <translation>Neprojetá branka, 50 s</translation>
    </message>
    <message>
        <source>Touch, 2 s</source>
        <translation>Ťuk, 2 s</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Gate %1, upstream</source>
        <translation>Branka %1, protivodná</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Branka %1</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Ťuky</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Neprojeté</translation>
    </message>
    <message>
        <source>missed</source>
        <translation>neprojeto</translation>
    </message>
    <message>
        <source>touch</source>
        <translation>ťuk</translation>
    </message>
    <message>
        <source>Upstream</source>
        <translation>Protivodná</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Branky</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GateForm</name>
    <message>
        <source>Gate</source>
        <translation>Branka</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Nájezd</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Výjezd</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Celkem</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Obrat</translation>
    </message>
    <message>
        <source>Mark the pole line too</source>
        <translation>Označit i rovinu branky</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Styl</translation>
    </message>
    <message>
        <source>A click brings a gate in front</source>
        <translation>Kliknutí přenese branku dopředu</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GateStrip</name>
    <message>
        <source>Penalties at the gates</source>
        <translation>Penalizace na brankách</translation>
    </message>
    <message>
        <source>No gates yet: set up the course with Ctrl+G to note penalties.</source>
        <translation>Zatím žádné branky: pro zápis penalizací nastavte trať pomocí Ctrl+G.</translation>
    </message>
    <message>
        <source>Gate %1, upstream</source>
        <translation>Branka %1, protivodná</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Branka %1</translation>
    </message>
    <message>
        <source>
T touch, F missed, 0 clean; N and P next and previous gate</source>
        <translation>
T ťuk, F neprojetá, 0 čistá; N a P další a předchozí branka</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Gauge</name>
    <message>
        <source>not known</source>
        <translation>neznámo</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GaugeRow</name>
    <message>
        <source>1/min</source>
        <translation>1/min</translation>
    </message>
    <message>
        <source>m/s</source>
        <translation>m/s</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>N·s</source>
        <translation>N·s</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GoalsPanel</name>
    <message>
        <source>New group</source>
        <translation>Nová skupina</translation>
    </message>
    <message>
        <source>New goal</source>
        <translation>Nový cíl</translation>
    </message>
    <message>
        <source>New sub-goal</source>
        <translation>Nový dílčí cíl</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>Cíl</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Add group</source>
        <translation>Přidat skupinu</translation>
    </message>
    <message>
        <source>A group of goals, such as “Technique”</source>
        <translation>Skupina cílů, třeba „Technika“</translation>
    </message>
    <message>
        <source>Add goal</source>
        <translation>Přidat cíl</translation>
    </message>
    <message>
        <source>To the group that is chosen</source>
        <translation>Do zvolené skupiny</translation>
    </message>
    <message>
        <source>Add sub-goal</source>
        <translation>Přidat dílčí cíl</translation>
    </message>
    <message>
        <source>To the group that is chosen, with a status (Insert)</source>
        <translation>Do zvolené skupiny, se stavem (Insert)</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nahoru</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Nahoru</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Dolů</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+Dolů</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Smazat</translation>
    </message>
    <message>
        <source>No goals are set for this season yet.
“Add group” begins.</source>
        <translation>V této sezóně zatím nejsou žádné cíle.
Začíná se pomocí „Přidat skupinu“.</translation>
    </message>
    <message>
        <source>Choose a season to see its goals.</source>
        <translation>Vyberte sezónu a uvidíte její cíle.</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Skupina %1</translation>
    </message>
    <message>
        <source>%1 of %2 reached</source>
        <translation>dosaženo %1 z %2</translation>
    </message>
    <message>
        <source>, %1 given up</source>
        <translation>, vzdáno %1</translation>
    </message>
    <message>
        <source>text of a goal</source>
        <translation>text cíle</translation>
    </message>
    <message>
        <source>status of a goal</source>
        <translation>stav cíle</translation>
    </message>
    <message>
        <source>new goal</source>
        <translation>nový cíl</translation>
    </message>
    <message>
        <source>order of the goals</source>
        <translation>pořadí cílů</translation>
    </message>
    <message>
        <source>removal of a goal</source>
        <translation>odstranění cíle</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GuideWindow</name>
    <message>
        <source>User guide – Kavela</source>
        <translation>Příručka – Kavela</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Příručka</translation>
    </message>
    <message>
        <source>Ways through the guide</source>
        <translation>Cesty příručkou</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vpřed</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Next place</source>
        <translation>Další místo</translation>
    </message>
    <message>
        <source>Search the guide</source>
        <translation>Hledat v příručce</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Obsah</translation>
    </message>
    <message>
        <source>“%1” does not come with the program.</source>
        <translation>„%1“ není součástí programu.</translation>
    </message>
    <message>
        <source>No chapter has these words.</source>
        <translation>Žádná kapitola tato slova neobsahuje.</translation>
    </message>
    <message numerus="yes">
        <source>In %n chapters. Enter goes to the next place.</source>
        <translation>
            <numerusform>V %n kapitole. Enter jde na další místo.</numerusform>
            <numerusform>Ve %n kapitolách. Enter jde na další místo.</numerusform>
            <numerusform>V %n kapitolách. Enter jde na další místo.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GymPanel</name>
    <message>
        <source>All seasons, in kilograms</source>
        <translation>Všechny sezóny, v kilogramech</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Hmotnost</translation>
    </message>
    <message>
        <source>Exercises</source>
        <translation>Cviky</translation>
    </message>
    <message>
        <source>Tonnage</source>
        <translation>Tonáž</translation>
    </message>
    <message>
        <source>Exercise of the chart</source>
        <translation>Cvik v grafu</translation>
    </message>
    <message>
        <source>&amp;History of</source>
        <translation>&amp;Vývoj cviku</translation>
    </message>
    <message>
        <source>Add session</source>
        <translation>Přidat jednotku</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>removal of gym sessions</source>
        <translation>odstranění posilování</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplikovat</translation>
    </message>
    <message>
        <source>The same exercises once more, today</source>
        <translation>Tytéž cviky ještě jednou, dnes</translation>
    </message>
    <message>
        <source>date</source>
        <translation>datum</translation>
    </message>
    <message>
        <source>new gym session</source>
        <translation>nové posilování</translation>
    </message>
    <message>
        <source>copy of a gym session</source>
        <translation>kopie posilování</translation>
    </message>
    <message>
        <source>Choose an athlete.</source>
        <translation>Vyberte závodníka.</translation>
    </message>
    <message>
        <source>Add a season for this athlete first.</source>
        <translation>Nejdřív přidejte tomuto závodníkovi sezónu.</translation>
    </message>
    <message>
        <source>No gym session of this season yet.
Press Insert to add today&apos;s.</source>
        <translation>V této sezóně zatím žádné posilování.
Stiskněte Insert a přidejte dnešní.</translation>
    </message>
    <message>
        <source>No exercise yet.
Press Insert to add one.</source>
        <translation>Zatím žádný cvik.
Stiskněte Insert a přidejte ho.</translation>
    </message>
    <message>
        <source>Choose or add a session to see its exercises.</source>
        <translation>Vyberte nebo přidejte jednotku a uvidíte její cviky.</translation>
    </message>
    <message>
        <source>Add an exercise with its weight to see how it develops.</source>
        <translation>Přidejte cvik s hmotností a uvidíte, jak se vyvíjí.</translation>
    </message>
    <message>
        <source>No weight of %1 yet.</source>
        <translation>%1: zatím žádná hmotnost.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatAttacks</name>
    <message>
        <source>✓ passed</source>
        <translation>✓ předjel(a)</translation>
    </message>
    <message>
        <source>✗ held</source>
        <translation>✗ ubráněno</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Začátek</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Konec</translation>
    </message>
    <message>
        <source>Attacker</source>
        <translation>Útočník</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Na</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Výsledek</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Strana</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Komentář</translation>
    </message>
    <message>
        <source>Attacks</source>
        <translation>Útoky</translation>
    </message>
    <message>
        <source>Attack at this frame</source>
        <translation>Útok na tomto snímku</translation>
    </message>
    <message>
        <source>An attack starts here: then press the number of the attacker and those of the defenders</source>
        <translation>Zde začíná útok: pak stiskněte číslo útočníka a čísla obránců</translation>
    </message>
    <message>
        <source>A click shows the frame of an attack</source>
        <translation>Kliknutí ukáže snímek útoku</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Branka %1</translation>
    </message>
    <message>
        <source>attack</source>
        <translation>útok</translation>
    </message>
    <message>
        <source>Attack: number of the attacker, then of the defenders</source>
        <translation>Útok: číslo útočníka, pak obránců</translation>
    </message>
    <message>
        <source>An attack without a moment, since there is no film: press the number of the attacker, then those of the defenders.</source>
        <translation>Útok bez okamžiku, protože film chybí: stiskněte číslo útočníka, pak čísla obránců.</translation>
    </message>
    <message>
        <source>attacker</source>
        <translation>útočník</translation>
    </message>
    <message>
        <source>defenders</source>
        <translation>obránci</translation>
    </message>
    <message>
        <source>moment of an attack</source>
        <translation>okamžik útoku</translation>
    </message>
    <message>
        <source>end of an attack removed</source>
        <translation>konec útoku odstraněn</translation>
    </message>
    <message>
        <source>attack removed</source>
        <translation>útok odstraněn</translation>
    </message>
    <message>
        <source>Start ramp</source>
        <translation>Startovní rampa</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Eskymák</translation>
    </message>
    <message>
        <source>Eddy</source>
        <translation>Vracák</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Skok</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Vlna</translation>
    </message>
    <message>
        <source>Flat water</source>
        <translation>Rovná voda</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Cíl</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Levá</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Pravá</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Uvnitř</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Vně</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatDialog</name>
    <message>
        <source>Add a heat</source>
        <translation>Přidat rozjížďku</translation>
    </message>
    <message>
        <source>Names of the boats</source>
        <translation>Jména lodí</translation>
    </message>
    <message>
        <source>Boat %1</source>
        <translation>Loď %1</translation>
    </message>
    <message>
        <source>Each boat needs a name.</source>
        <translation>Každá loď potřebuje jméno.</translation>
    </message>
    <message>
        <source>%1 stands twice in the heat.</source>
        <translation>%1 je v rozjížďce dvakrát.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatList</name>
    <message>
        <source>none</source>
        <translation>žádný</translation>
    </message>
    <message>
        <source>⚠ missing: %1</source>
        <translation>⚠ chybí: %1</translation>
    </message>
    <message>
        <source>%1 of %2 gates</source>
        <translation>branky: %1 z %2</translation>
    </message>
    <message>
        <source>Heat</source>
        <translation>Rozjížďka</translation>
    </message>
    <message>
        <source>Boats</source>
        <translation>Lodě</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Pořadí</translation>
    </message>
    <message>
        <source>Add a heat…</source>
        <translation>Přidat rozjížďku…</translation>
    </message>
    <message>
        <source>Adds a heat of up to four boats</source>
        <translation>Přidá rozjížďku až čtyř lodí</translation>
    </message>
    <message>
        <source>Names…</source>
        <translation>Jména…</translation>
    </message>
    <message>
        <source>Other names for the boats of the heat</source>
        <translation>Jiná jména lodí rozjížďky</translation>
    </message>
    <message>
        <source>Film…</source>
        <translation>Film…</translation>
    </message>
    <message>
        <source>Chooses the film of the heat</source>
        <translation>Vybere film rozjížďky</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Removes the heat with all its marks</source>
        <translation>Odstraní rozjížďku se všemi jejími značkami</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatMapChart</name>
    <message>
        <source>Percent lost on %1, by section</source>
        <translation>Procenta ztráty (reference: %1), po úsecích</translation>
    </message>
    <message>
        <source>Percent lost by run and section</source>
        <translation>Procenta ztráty podle jízdy a úseku</translation>
    </message>
    <message>
        <source>S%1</source>
        <translation>S%1</translation>
    </message>
    <message>
        <source>is the reference</source>
        <translation>je reference</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Jízda</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatOrders</name>
    <message>
        <source>Take at this frame</source>
        <translation>Zaznamenat na tomto snímku</translation>
    </message>
    <message>
        <source>Takes the order shown at the frame shown</source>
        <translation>Zaznamená ukázané pořadí na ukázaném snímku</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Začít znovu</translation>
    </message>
    <message>
        <source>Back to the order as it was</source>
        <translation>Zpět k původnímu pořadí</translation>
    </message>
    <message>
        <source>Comment on this order</source>
        <translation>Komentář k tomuto pořadí</translation>
    </message>
    <message>
        <source>Add a heat first.</source>
        <translation>Nejdřív přidejte rozjížďku.</translation>
    </message>
    <message>
        <source>The cross course has no gates yet.</source>
        <translation>Trať crossu zatím nemá branky.</translation>
    </message>
    <message>
        <source>This order does not count for the course. Choose a gate of the course first.</source>
        <translation>Toto pořadí se na trati nepočítá. Nejdřív vyberte branku tratě.</translation>
    </message>
    <message>
        <source>No boat is named yet.</source>
        <translation>Žádná loď zatím nemá jméno.</translation>
    </message>
    <message>
        <source>order at gate %1</source>
        <translation>pořadí na brance %1</translation>
    </message>
    <message>
        <source>Gate %1:  %2</source>
        <translation>Branka %1:  %2</translation>
    </message>
    <message>
        <source>comment on an order</source>
        <translation>komentář k pořadí</translation>
    </message>
    <message>
        <source>not taken yet</source>
        <translation>zatím nezaznamenáno</translation>
    </message>
    <message>
        <source>taken at %1</source>
        <translation>zaznamenáno v %1</translation>
    </message>
    <message>
        <source>offered</source>
        <translation>nabídnuto</translation>
    </message>
    <message>
        <source>Gate %1 · %2</source>
        <translation>Branka %1 · %2</translation>
    </message>
    <message>
        <source>The cross course has no gates yet</source>
        <translation>Trať crossu zatím nemá branky</translation>
    </message>
    <message>
        <source>Keep its moment</source>
        <translation>Ponechat okamžik</translation>
    </message>
    <message>
        <source>Take without a moment</source>
        <translation>Zaznamenat bez okamžiku</translation>
    </message>
    <message>
        <source>Corrects the order and leaves its moment as it is</source>
        <translation>Opraví pořadí a okamžik ponechá</translation>
    </message>
    <message>
        <source>Takes the order shown where there is no film</source>
        <translation>Zaznamená ukázané pořadí tam, kde není film</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatPage</name>
    <message>
        <source>No heats yet. Add a heat with its boats and choose its film; then go to each gate and press the numbers of the boats as they pass.</source>
        <translation>Zatím žádné rozjížďky. Přidejte rozjížďku s loděmi a vyberte její film; pak jděte na každou branku a tiskněte čísla lodí, jak projíždějí.</translation>
    </message>
    <message>
        <source>A%1</source>
        <translation>A%1</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>Není vybrána žádná značka. Ctrl a šipky vedou od značky ke značce.</translation>
    </message>
    <message>
        <source>order moved</source>
        <translation>pořadí posunuto</translation>
    </message>
    <message>
        <source>order removed</source>
        <translation>pořadí odstraněno</translation>
    </message>
    <message>
        <source>This heat has %1 boats.</source>
        <translation>Lodí v této rozjížďce: %1.</translation>
    </message>
    <message>
        <source>heat</source>
        <translation>rozjížďka</translation>
    </message>
    <message>
        <source>heat removed</source>
        <translation>rozjížďka odstraněna</translation>
    </message>
    <message>
        <source>names of boats</source>
        <translation>jména lodí</translation>
    </message>
    <message>
        <source>film of a heat</source>
        <translation>film rozjížďky</translation>
    </message>
    <message>
        <source>Add a heat first.</source>
        <translation>Nejdřív přidejte rozjížďku.</translation>
    </message>
    <message>
        <source>This heat has no boats yet.</source>
        <translation>Tato rozjížďka zatím nemá lodě.</translation>
    </message>
    <message>
        <source>Select the attack that ends here.</source>
        <translation>Vyberte útok, který zde končí.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HomeWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Soubor</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Otevřít…</translation>
    </message>
    <message>
        <source>Try the &amp;sample season</source>
        <translation>Vyzkoušet &amp;ukázkovou sezónu</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>Nas&amp;tavení…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>U&amp;končit</translation>
    </message>
    <message>
        <source>Where was the time won and lost, and why?</source>
        <translation>Kde se čas získal a ztratil, a proč?</translation>
    </message>
    <message>
        <source>Try the sample season</source>
        <translation>Vyzkoušet ukázkovou sezónu</translation>
    </message>
    <message>
        <source>Open a file…</source>
        <translation>Otevřít soubor…</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Poslední soubory</translation>
    </message>
    <message>
        <source>Nothing opened yet. Drop a split file (.kvx) or a folder here, open one with Ctrl+O, or try the sample season.</source>
        <translation>Zatím nic otevřeno. Přetáhněte sem soubor mezičasů (*.kvx) nebo složku, otevřete jej pomocí Ctrl+O, nebo vyzkoušejte ukázkovou sezónu.</translation>
    </message>
    <message>
        <source>Work kept</source>
        <translation>Uchovaná práce</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>v %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Soubory mezičasů (*.kvx);;Všechny soubory (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IdealPanel</name>
    <message>
        <source>Section</source>
        <translation>Úsek</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Nejlepší</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Kdo</translation>
    </message>
    <message>
        <source>Ideal run %1 s</source>
        <translation>Ideální jízda %1 s</translation>
    </message>
    <message>
        <source>No ideal run: a section has no time.</source>
        <translation>Žádná ideální jízda: některý úsek nemá čas.</translation>
    </message>
    <message>
        <source>
Fastest run %1 s, %2
%3 s behind the ideal run</source>
        <translation>
Nejrychlejší jízda %1 s, %2
%3 s za ideální jízdou</translation>
    </message>
    <message>
        <source>
Penalties are left out.</source>
        <translation>
Bez penalizací.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::InformationDialog</name>
    <message>
        <source>Session information</source>
        <translation>Informace o jednotce</translation>
    </message>
    <message>
        <source>The weight tells force and power when a recording is converted: analyse it again after changing it.</source>
        <translation>Hmotnost určuje sílu a výkon při převodu záznamu: po její změně záznam znovu analyzujte.</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>Záv&amp;odník</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Místo</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Druh</translation>
    </message>
    <message>
        <source>&amp;Weight</source>
        <translation>&amp;Hmotnost</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>&amp;Paddle length</source>
        <translation>Délk&amp;a pádla</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>&amp;Blade area</source>
        <translation>&amp;Plocha listu</translation>
    </message>
    <message>
        <source>cm²</source>
        <translation>cm²</translation>
    </message>
    <message>
        <source>Blade &amp;height</source>
        <translation>&amp;Výška listu</translation>
    </message>
    <message>
        <source>Hand po&amp;sition</source>
        <translation>Po&amp;loha rukou</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalChart</name>
    <message>
        <source>too few</source>
        <translation>příliš málo</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 až %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalForm</name>
    <message>
        <source>Minutes and seconds such as 1:30, or seconds</source>
        <translation>Minuty a sekundy, třeba 1:30, nebo sekundy</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Název</translation>
    </message>
    <message>
        <source>T&amp;arget</source>
        <translation>&amp;Cíl</translation>
    </message>
    <message>
        <source>Rh&amp;ythm</source>
        <translation>R&amp;ytmus</translation>
    </message>
    <message>
        <source>S&amp;ets</source>
        <translation>&amp;Série</translation>
    </message>
    <message>
        <source>Re&amp;petitions</source>
        <translation>&amp;Opakování</translation>
    </message>
    <message>
        <source>&amp;Work</source>
        <translation>Prác&amp;e</translation>
    </message>
    <message>
        <source>&amp;Rest between repetitions</source>
        <translation>O&amp;dpočinek mezi opakováními</translation>
    </message>
    <message>
        <source>Rest &amp;between sets</source>
        <translation>Odpočinek &amp;mezi sériemi</translation>
    </message>
    <message>
        <source>&amp;Kind of rest</source>
        <translation>Dr&amp;uh odpočinku</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>Ob&amp;jem</translation>
    </message>
    <message>
        <source>&amp;Intensity</source>
        <translation>&amp;Intenzita</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>Po&amp;pis</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalTimerDialog</name>
    <message>
        <source>%1 – timer</source>
        <translation>%1 – časovač</translation>
    </message>
    <message>
        <source>◀ Back</source>
        <translation>◀ Zpět</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Šipka vlevo</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Mezerník</translation>
    </message>
    <message>
        <source>Skip ▶</source>
        <translation>Přeskočit ▶</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Šipka vpravo</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Celá obrazovka</translation>
    </message>
    <message>
        <source>F11</source>
        <translation>F11</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Escape</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Začít znovu</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Spustit</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalsPanel</name>
    <message>
        <source>Session</source>
        <translation>Jednotka</translation>
    </message>
    <message>
        <source>Make-up</source>
        <translation>Složení</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Celkem</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Práce</translation>
    </message>
    <message>
        <source>New session</source>
        <translation>Nová jednotka</translation>
    </message>
    <message>
        <source>interval session</source>
        <translation>intervalová jednotka</translation>
    </message>
    <message>
        <source>No favourite sessions yet. “Add” begins the first.</source>
        <translation>Zatím žádné oblíbené jednotky. První začíná pomocí „Přidat“.</translation>
    </message>
    <message>
        <source>Add a session</source>
        <translation>Přidat jednotku</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplikovat</translation>
    </message>
    <message>
        <source>Another one like it</source>
        <translation>Další takovou</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nahoru</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Dolů</translation>
    </message>
    <message>
        <source>Remove the session</source>
        <translation>Odstranit jednotku</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Start the timer…</source>
        <translation>Spustit časovač…</translation>
    </message>
    <message>
        <source>A clock for the bank, readable from afar. Double click on a session opens it too.</source>
        <translation>Hodiny na břeh, čitelné zdálky. Otevře je i dvojklik na jednotku.</translation>
    </message>
    <message>
        <source>new interval session</source>
        <translation>nová intervalová jednotka</translation>
    </message>
    <message>
        <source>%1, copy</source>
        <translation>%1, kopie</translation>
    </message>
    <message>
        <source>copy of an interval session</source>
        <translation>kopie intervalové jednotky</translation>
    </message>
    <message>
        <source>order of the interval sessions</source>
        <translation>pořadí intervalových jednotek</translation>
    </message>
    <message>
        <source>removal of an interval session</source>
        <translation>odstranění intervalové jednotky</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::JobsWindow</name>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Zastavit</translation>
    </message>
    <message>
        <source>Show the &amp;folder</source>
        <translation>Ukázat &amp;složku</translation>
    </message>
    <message>
        <source>&amp;Clear what is over</source>
        <translation>&amp;Vymazat dokončené</translation>
    </message>
    <message>
        <source>Films being composed</source>
        <translation>Skládané filmy</translation>
    </message>
    <message>
        <source>No film is being composed.</source>
        <translation>Žádný film se neskládá.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeptColumns</name>
    <message>
        <source>&amp;All columns in their order</source>
        <translation>&amp;Všechny sloupce v jejich pořadí</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeptQueries</name>
    <message>
        <source>Queries</source>
        <translation>Dotazy</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Uchované</translation>
    </message>
    <message>
        <source>Asked last</source>
        <translation>Poslední dotazy</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Příklady</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeyEditor</name>
    <message>
        <source>Keys</source>
        <translation>Klávesy</translation>
    </message>
    <message>
        <source>Find an action</source>
        <translation>Najít akci</translation>
    </message>
    <message>
        <source>Standard keys</source>
        <translation>Výchozí klávesy</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>%1 is the key of “%2” already. “%3” can take it over; “%2” has it no longer then.</source>
        <translation>%1 už je klávesa pro „%2“. „%3“ ji může převzít; „%2“ ji pak už nemá.</translation>
    </message>
    <message>
        <source>Take it over</source>
        <translation>Převzít</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeyOverlay</name>
    <message>
        <source>All keys</source>
        <translation>Všechny klávesy</translation>
    </message>
    <message>
        <source>Up, Down, Page up and Page down show the rest; any other key closes.</source>
        <translation>Nahoru, Dolů, Page Up a Page Down ukážou zbytek; jiná klávesa zavře.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KnownPointsPage</name>
    <message>
        <source>No known point yet. Tick Path &gt; Click known points, then click the foot of a gate&apos;s poles in the picture.</source>
        <translation>Zatím žádný známý bod. Zaškrtněte Dráha &gt; Klikat známé body a pak v obraze klikněte na patu tyčí branky.</translation>
    </message>
    <message>
        <source>&amp;Take it away</source>
        <translation>&amp;Odebrat</translation>
    </message>
    <message>
        <source>removal of a known point</source>
        <translation>odstranění známého bodu</translation>
    </message>
    <message>
        <source>A place on the water is a number of metres, -10000 to 10000</source>
        <translation>Místo na vodě je počet metrů, -10000 až 10000</translation>
    </message>
    <message>
        <source>metres of a known point</source>
        <translation>metry známého bodu</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Bod</translation>
    </message>
    <message>
        <source>Across</source>
        <translation>Napříč</translation>
    </message>
    <message>
        <source>Along</source>
        <translation>Podél</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LaneStrip</name>
    <message>
        <source>Notes of the run</source>
        <translation>Poznámky k jízdě</translation>
    </message>
    <message>
        <source>A click shows the frame of a mark, dragging moves the mark</source>
        <translation>Kliknutí ukáže snímek značky, tažení značku posune</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Ostatní</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LineOverlay</name>
    <message>
        <source>Lines over the film</source>
        <translation>Čáry přes film</translation>
    </message>
    <message>
        <source>Drag an end of a line, or the line. With the focus here the arrows move it, with Shift by ten pixels; Tab goes from end to end, Esc leaves.</source>
        <translation>Táhněte konec čáry, nebo čáru. Je-li zde zaměření, posouvají ji šipky, se Shift o deset pixelů; Tab jde od konce ke konci, Esc odejde.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::List</name>
    <message>
        <source>date</source>
        <translation>datum</translation>
    </message>
    <message>
        <source>new %1</source>
        <translation>nové: %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>removal of %1</source>
        <translation>odstranění: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ListPanel</name>
    <message>
        <source>List</source>
        <translation>Seznam</translation>
    </message>
    <message>
        <source>No row is left. Ctrl+Z takes the last step back.</source>
        <translation>Nezbyl žádný řádek. Ctrl+Z vrátí poslední krok.</translation>
    </message>
    <message>
        <source>Every cell was taken.</source>
        <translation>Převzaly se všechny buňky.</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Graf</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Odmítnuto</translation>
    </message>
    <message>
        <source>Refused (%1)</source>
        <translation>Odmítnuto (%1)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LoginDialog</name>
    <message>
        <source>&amp;Keep it in the password store of this computer</source>
        <translation>&amp;Uchovat v úložišti hesel tohoto počítače</translation>
    </message>
    <message>
        <source>Sign in to %1</source>
        <translation>Přihlásit k %1</translation>
    </message>
    <message>
        <source>Only this server is shown the password. It is never written into a file.</source>
        <translation>Heslo uvidí jen tento server. Nikdy se nezapíše do souboru.</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>&amp;Jméno uživatele</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Heslo</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossChartsPanel</name>
    <message>
        <source>Charts</source>
        <translation>Grafy</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Součet</translation>
    </message>
    <message>
        <source>From the reference&apos;s total to the run&apos;s own</source>
        <translation>Od celkového času reference k času jízdy</translation>
    </message>
    <message>
        <source>Heat map</source>
        <translation>Teplotní mapa</translation>
    </message>
    <message>
        <source>Percent lost by run and section</source>
        <translation>Procenta ztráty podle jízdy a úseku</translation>
    </message>
    <message>
        <source>Most lost</source>
        <translation>Největší ztráty</translation>
    </message>
    <message>
        <source>The sections that lost most, in their order</source>
        <translation>Úseky s největší ztrátou, v jejich pořadí</translation>
    </message>
    <message>
        <source>Along the course</source>
        <translation>Po trati</translation>
    </message>
    <message>
        <source>The gap after each section</source>
        <translation>Odstup za každým úsekem</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Přizpůsobit</translation>
    </message>
    <message>
        <source>Save chart…</source>
        <translation>Uložit graf…</translation>
    </message>
    <message>
        <source>Show everything again (or double click)</source>
        <translation>Ukázat opět vše (nebo dvojklik)</translation>
    </message>
    <message>
        <source>Save as PNG, SVG or CSV</source>
        <translation>Uložit jako PNG, SVG nebo CSV</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossHeader</name>
    <message>
        <source>Reference</source>
        <translation>Reference</translation>
    </message>
    <message>
        <source>What the run is held against</source>
        <translation>S čím se jízda porovnává</translation>
    </message>
    <message>
        <source>Alt+click or Shift+F1: why</source>
        <translation>Alt+klik nebo Shift+F1: proč</translation>
    </message>
    <message>
        <source>Ru&amp;n</source>
        <translation>&amp;Jízda</translation>
    </message>
    <message>
        <source>hel&amp;d against</source>
        <translation>proti &amp;referenci</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossPage</name>
    <message>
        <source>Start</source>
        <translation>Začátek</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Konec</translation>
    </message>
    <message>
        <source>Against</source>
        <translation>Proti</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekundy</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Procenta</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nová</translation>
    </message>
    <message>
        <source>The next M begins another time loss</source>
        <translation>Příští M začne další časovou ztrátu</translation>
    </message>
    <message>
        <source>Add over the section</source>
        <translation>Přičíst za úsek</translation>
    </message>
    <message>
        <source>Another reason</source>
        <translation>Další důvod</translation>
    </message>
    <message>
        <source>To the other run</source>
        <translation>Na druhou jízdu</translation>
    </message>
    <message>
        <source>reason of a time loss</source>
        <translation>důvod časové ztráty</translation>
    </message>
    <message>
        <source>This run</source>
        <translation>Tato jízda</translation>
    </message>
    <message>
        <source>Other run</source>
        <translation>Druhá jízda</translation>
    </message>
    <message>
        <source>Sets this mark at the frame shown</source>
        <translation>Nastaví tuto značku na ukázaný snímek</translation>
    </message>
    <message>
        <source>kind of a time loss</source>
        <translation>druh časové ztráty</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Branky</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Část</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Styl</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Voda</translation>
    </message>
    <message>
        <source>comment on a time loss</source>
        <translation>komentář k časové ztrátě</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Komentář</translation>
    </message>
    <message>
        <source>Back to the run</source>
        <translation>Zpět na jízdu</translation>
    </message>
    <message>
        <source>M marks where the stretch starts and makes another time loss.</source>
        <translation>M označí, kde část začíná, a vytvoří další časovou ztrátu.</translation>
    </message>
    <message>
        <source>M marks where the stretch starts and makes a time loss.</source>
        <translation>M označí, kde část začíná, a vytvoří časovou ztrátu.</translation>
    </message>
    <message>
        <source>%1 s (%2 %) against %3</source>
        <translation>%1 s (%2&#xa0;%) proti %3</translation>
    </message>
    <message>
        <source>Go back to the run that lost the time first.</source>
        <translation>Vraťte se nejdřív k jízdě, která čas ztratila.</translation>
    </message>
    <message>
        <source>A time loss needs another run to compare with.</source>
        <translation>Časová ztráta potřebuje druhou jízdu k porovnání.</translation>
    </message>
    <message>
        <source>time loss</source>
        <translation>časová ztráta</translation>
    </message>
    <message>
        <source>Start and end are marked here too. Ctrl+T goes back to the run that lost the time, where M begins its next loss.</source>
        <translation>Začátek a konec se označují i zde. Ctrl+T se vrátí k jízdě, která čas ztratila; tam M začne její další ztrátu.</translation>
    </message>
    <message>
        <source>mark of a time loss</source>
        <translation>značka časové ztráty</translation>
    </message>
    <message>
        <source>time loss removed</source>
        <translation>časová ztráta odstraněna</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossTables</name>
    <message>
        <source>Both runs have no upstream gate timed in common.</source>
        <translation>Obě jízdy nemají společně změřenou žádnou protivodnou branku.</translation>
    </message>
    <message>
        <source>No time lost is noted of this run.</source>
        <translation>U této jízdy není poznamenána žádná ztráta.</translation>
    </message>
    <message>
        <source>No ways are compared in this run.</source>
        <translation>V této jízdě se neporovnávají žádné varianty.</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Úseky</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Jízdy</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Branky</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Poznámky</translation>
    </message>
    <message>
        <source>Ways</source>
        <translation>Varianty</translation>
    </message>
    <message>
        <source>&amp;Play both films</source>
        <translation>Přehrát &amp;oba filmy</translation>
    </message>
    <message>
        <source>Hold all against this &amp;run</source>
        <translation>Porovnat vše s touto &amp;jízdou</translation>
    </message>
    <message>
        <source>Notes (%1 unfinished)</source>
        <translation>Poznámky (nedokončené: %1)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossesActions</name>
    <message>
        <source>&amp;Open races…</source>
        <translation>&amp;Otevřít závody…</translation>
    </message>
    <message>
        <source>Open a &amp;folder of races…</source>
        <translation>Otevřít s&amp;ložku závodů…</translation>
    </message>
    <message>
        <source>&amp;Read all again</source>
        <translation>Načíst vš&amp;e znovu</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>Zastavit čte&amp;ní</translation>
    </message>
    <message>
        <source>&amp;Page of an athlete: PDF, preview, print…</source>
        <translation>&amp;Stránka závodníka: PDF, náhled, tisk…</translation>
    </message>
    <message>
        <source>Save the table as &amp;CSV…</source>
        <translation>Uložit tabulku jako &amp;CSV…</translation>
    </message>
    <message>
        <source>&amp;Save the chart…</source>
        <translation>Uložit &amp;graf…</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Jízda</translation>
    </message>
    <message>
        <source>&amp;Find a run</source>
        <translation>&amp;Najít jízdu</translation>
    </message>
    <message>
        <source>The &amp;next in rank</source>
        <translation>&amp;Další v pořadí</translation>
    </message>
    <message>
        <source>The &amp;one in front</source>
        <translation>O místo &amp;výš</translation>
    </message>
    <message>
        <source>&amp;Season of the athlete, or the run</source>
        <translation>&amp;Sezóna závodníka, nebo jízda</translation>
    </message>
    <message>
        <source>Re&amp;ference</source>
        <translation>Re&amp;ference</translation>
    </message>
    <message>
        <source>The &amp;winner</source>
        <translation>&amp;Vítěz</translation>
    </message>
    <message>
        <source>The &amp;fastest paddling</source>
        <translation>Nejrychlejší čistý č&amp;as</translation>
    </message>
    <message>
        <source>The &amp;ideal run</source>
        <translation>&amp;Ideální jízda</translation>
    </message>
    <message>
        <source>The &amp;median of the finalists</source>
        <translation>&amp;Medián finalistů</translation>
    </message>
    <message>
        <source>The crew&apos;s &amp;own best other run</source>
        <translation>&amp;Nejlepší jiná jízda posádky</translation>
    </message>
    <message>
        <source>The run that is &amp;shown</source>
        <translation>&amp;Ukázaná jízda</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Zo&amp;brazení</translation>
    </message>
    <message>
        <source>&amp;Sum from total to total</source>
        <translation>&amp;Součet od času k času</translation>
    </message>
    <message>
        <source>&amp;Heat map</source>
        <translation>&amp;Teplotní mapa</translation>
    </message>
    <message>
        <source>Sections that lost &amp;most</source>
        <translation>Úseky s &amp;největší ztrátou</translation>
    </message>
    <message>
        <source>Gap &amp;along the course</source>
        <translation>&amp;Odstup po trati</translation>
    </message>
    <message>
        <source>Table of s&amp;ections</source>
        <translation>Tab&amp;ulka úseků</translation>
    </message>
    <message>
        <source>Table of &amp;runs</source>
        <translation>Tabulka &amp;jízd</translation>
    </message>
    <message>
        <source>Table of &amp;gates</source>
        <translation>Tabulka &amp;branek</translation>
    </message>
    <message>
        <source>Table of &amp;notes</source>
        <translation>Tabulka &amp;poznámek</translation>
    </message>
    <message>
        <source>Table of &amp;ways</source>
        <translation>Tabulka &amp;variant</translation>
    </message>
    <message>
        <source>Show the whole &amp;chart</source>
        <translation>Ukázat &amp;celý graf</translation>
    </message>
    <message>
        <source>&amp;Blue to orange instead of green to red</source>
        <translation>&amp;Modrá až oranžová místo zelené až červené</translation>
    </message>
    <message>
        <source>Fil&amp;ms</source>
        <translation>Fil&amp;my</translation>
    </message>
    <message>
        <source>&amp;Play the section of both runs</source>
        <translation>&amp;Přehrát úsek obou jízd</translation>
    </message>
    <message>
        <source>&amp;Film this loss…</source>
        <translation>Složit &amp;film této ztráty…</translation>
    </message>
    <message>
        <source>&amp;Hide the films</source>
        <translation>S&amp;krýt filmy</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Jízdy</translation>
    </message>
    <message>
        <source>Pa&amp;ge for an athlete…</source>
        <translation>Stránka pro &amp;závodníka…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossesWindow</name>
    <message>
        <source>Split files</source>
        <translation>Soubory mezičasů</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Jízda</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Sezóna</translation>
    </message>
    <message>
        <source>Hide the films</source>
        <translation>Skrýt filmy</translation>
    </message>
    <message>
        <source>Stop reading</source>
        <translation>Zastavit čtení</translation>
    </message>
    <message>
        <source>&amp;Open it</source>
        <translation>&amp;Otevřít</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translation>Zapisuje se %1…</translation>
    </message>
    <message>
        <source>The page was not written.</source>
        <translation>Stránka nebyla zapsána.</translation>
    </message>
    <message>
        <source>%1 is not in the files any more; another run is shown.</source>
        <translation>%1 už v souborech není; je vidět jiná jízda.</translation>
    </message>
    <message>
        <source>%1 is not in the files any more; the winner is the reference now.</source>
        <translation>%1 už v souborech není; referencí je nyní vítěz.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Čte se…</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 nelze přečíst: %2</translation>
    </message>
    <message>
        <source>%1 files cannot be read, the first of them %2: %3</source>
        <translation>Nečitelných souborů: %1, první z nich %2: %3</translation>
    </message>
    <message>
        <source>Stopped: not all files were read.</source>
        <translation>Zastaveno: nepřečetly se všechny soubory.</translation>
    </message>
    <message>
        <source>There is no run in what was opened.</source>
        <translation>V otevřeném není žádná jízda.</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Časové ztráty</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 a další (%2)</translation>
    </message>
    <message>
        <source>Open races</source>
        <translation>Otevřít závody</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Soubory mezičasů (*.kvx);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Open a folder of races</source>
        <translation>Otevřít složku závodů</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>%1 je zapsáno.</translation>
    </message>
    <message>
        <source>Choose a section first.</source>
        <translation>Nejdřív vyberte úsek.</translation>
    </message>
    <message>
        <source>No film shows this of either run: a film and both marks are needed.</source>
        <translation>Toto není na filmu žádné z obou jízd: je třeba film a obě značky.</translation>
    </message>
    <message>
        <source>No film shows the run here; that of the reference plays alone.</source>
        <translation>Žádný film zde jízdu neukazuje; film reference běží sám.</translation>
    </message>
    <message>
        <source>There is no run to watch beside it.</source>
        <translation>Není jízda, na kterou by se vedle dalo dívat.</translation>
    </message>
    <message>
        <source>No film shows %1 here.</source>
        <translation>Žádný film zde %1 neukazuje.</translation>
    </message>
    <message>
        <source>There is no run to film beside it.</source>
        <translation>Není jízda, která by se dala dát vedle do filmu.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MarkList</name>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Mezičasy</translation>
    </message>
    <message>
        <source>Micro splits</source>
        <translation>Mikromezičasy</translation>
    </message>
    <message>
        <source>Upstream gates</source>
        <translation>Protivodné branky</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Záběry</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Časové ztráty</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Štítky</translation>
    </message>
    <message>
        <source> · camera %1</source>
        <translation> · kamera %1</translation>
    </message>
    <message>
        <source> · fixed camera %1</source>
        <translation> · pevná kamera %1</translation>
    </message>
    <message>
        <source> · other run</source>
        <translation> · druhá jízda</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 v %2</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Značka</translation>
    </message>
    <message>
        <source>Times are of this run, whatever film a mark lies on. A click shows the frame of a mark; Ctrl and Shift choose several for their clips</source>
        <translation>Časy jsou z této jízdy, ať značka leží na kterémkoli filmu. Kliknutí ukáže snímek značky; Ctrl a Shift jich vyberou více pro klipy</translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation>Druhy</translation>
    </message>
    <message>
        <source>The kinds of marks that are listed</source>
        <translation>Druhy značek, které se vypisují</translation>
    </message>
    <message>
        <source>Marks of the run</source>
        <translation>Značky jízdy</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Všechny druhy</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Klipy</translation>
    </message>
    <message>
        <source>Plays the clips of the chosen marks one after another; of all that are listed when not several are chosen</source>
        <translation>Přehraje klipy vybraných značek jeden po druhém; všech vypsaných, není-li jich vybráno více</translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) before and after a mark</source>
        <translation>
            <numerusform>%n sekunda před značkou a po ní</numerusform>
            <numerusform>%n sekundy před značkou a po ní</numerusform>
            <numerusform>%n sekund před značkou a po ní</numerusform>
        </translation>
    </message>
    <message>
        <source> · outside the film</source>
        <translation> · mimo film</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MicroPage</name>
    <message>
        <source>Mark</source>
        <translation>Značka</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>From the one before</source>
        <translation>Od předchozího</translation>
    </message>
    <message>
        <source>M marks a micro split at the frame shown.</source>
        <translation>M označí mikromezičas na ukázaném snímku.</translation>
    </message>
    <message>
        <source>micro split</source>
        <translation>mikromezičas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionActions</name>
    <message>
        <source>Charts</source>
        <translation>Grafy</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Záznamy</translation>
    </message>
    <message>
        <source>&amp;Open recordings…</source>
        <translation>&amp;Otevřít záznamy…</translation>
    </message>
    <message>
        <source>Save the &amp;chart…</source>
        <translation>Uložit &amp;graf…</translation>
    </message>
    <message>
        <source>&amp;Recording</source>
        <translation>&amp;Záznam</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Převést</translation>
    </message>
    <message>
        <source>Convert &amp;all ticked</source>
        <translation>Převést &amp;všechny zaškrtnuté</translation>
    </message>
    <message>
        <source>&amp;Open the converted session</source>
        <translation>&amp;Otevřít převedenou jednotku</translation>
    </message>
    <message>
        <source>&amp;Previous recording</source>
        <translation>Předchozí &amp;záznam</translation>
    </message>
    <message>
        <source>&amp;Next recording</source>
        <translation>&amp;Další záznam</translation>
    </message>
    <message>
        <source>&amp;Show or hide</source>
        <translation>&amp;Ukázat nebo skrýt</translation>
    </message>
    <message>
        <source>Show this one a&amp;lone</source>
        <translation>Ukázat s&amp;amotný tento</translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation>Odst&amp;ranit ze seznamu</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>Č&amp;as</translation>
    </message>
    <message>
        <source>&amp;Undo the move</source>
        <translation>&amp;Zpět posun</translation>
    </message>
    <message>
        <source>&amp;Redo the move</source>
        <translation>Zn&amp;ovu posun</translation>
    </message>
    <message>
        <source>Align the &amp;starts</source>
        <translation>Srovnat &amp;starty</translation>
    </message>
    <message>
        <source>Align by the &amp;clock</source>
        <translation>Srovnat podle &amp;hodin</translation>
    </message>
    <message>
        <source>&amp;Align here: the cursor to the clicked moment</source>
        <translation>Srovn&amp;at zde: kurzor na označený okamžik</translation>
    </message>
    <message>
        <source>&amp;Forget the clicked moment</source>
        <translation>Zapo&amp;menout označený okamžik</translation>
    </message>
    <message>
        <source>&amp;Earlier</source>
        <translation>Dřív&amp;e</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>Pozdě&amp;ji</translation>
    </message>
    <message>
        <source>&amp;Previous stroke</source>
        <translation>&amp;Předchozí záběr</translation>
    </message>
    <message>
        <source>&amp;Next stroke</source>
        <translation>&amp;Další záběr</translation>
    </message>
    <message>
        <source>&amp;Charts</source>
        <translation>&amp;Grafy</translation>
    </message>
    <message>
        <source>Axes of the &amp;phone</source>
        <translation>Osy &amp;telefonu</translation>
    </message>
    <message>
        <source>Axes of the phone</source>
        <translation>Osy telefonu</translation>
    </message>
    <message>
        <source>&amp;Mark strokes and turns</source>
        <translation>Označit zá&amp;běry a obraty</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Přiblíž&amp;it</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>&amp;Oddálit</translation>
    </message>
    <message>
        <source>Show &amp;everything</source>
        <translation>Ukázat vš&amp;e</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionAlignment</name>
    <message>
        <source>Every recording begins at 0. Ctrl+Z brings the alignment before back.</source>
        <translation>Každý záznam začíná v 0. Ctrl+Z vrátí předchozí srovnání.</translation>
    </message>
    <message>
        <source>Every recording stands at its date. Ctrl+Z brings the alignment before back.</source>
        <translation>Každý záznam stojí na svém datu. Ctrl+Z vrátí předchozí srovnání.</translation>
    </message>
    <message>
        <source>The date is not known of %1</source>
        <translation>Datum není známo: %1</translation>
    </message>
    <message>
        <source>Click the moment where it should be, choose a recording, point at its moment and press A</source>
        <translation>Klikněte na okamžik, kde má být, vyberte záznam, ukažte na jeho okamžik a stiskněte A</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionCharts</name>
    <message>
        <source>here</source>
        <translation>zde</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>R</source>
        <translation>P</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionConversions</name>
    <message>
        <source>Convert</source>
        <translation>Převést</translation>
    </message>
    <message>
        <source>%1  %2: %3 strokes, %4 turns</source>
        <translation>%1  %2: záběrů %3, obratů %4</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionPanel</name>
    <message>
        <source>%1 s of %2 s are recorded.</source>
        <translation>Zaznamenáno %1 s z %2 s.</translation>
    </message>
    <message>
        <source>Nothing of it is recorded.</source>
        <translation>Nic z toho není zaznamenáno.</translation>
    </message>
    <message>
        <source>greatest %1 m/s, %2 m</source>
        <translation>nejvíc %1 m/s, %2 m</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Úsek</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Záběry</translation>
    </message>
    <message>
        <source>1/min</source>
        <translation>1/min</translation>
    </message>
    <message>
        <source>m/s</source>
        <translation>m/s</translation>
    </message>
    <message>
        <source>Heart</source>
        <translation>Srdce</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Rychlost</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Frekvence záběrů</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Tepová frekvence</translation>
    </message>
    <message>
        <source>Select a run to see its strokes, speed and heart rate.</source>
        <translation>Vyberte jízdu a uvidíte její záběry, rychlost a tepovou frekvenci.</translation>
    </message>
    <message>
        <source>No recording is attached to this run. Split taking attaches one (Ctrl+B).</source>
        <translation>K této jízdě není připojen záznam. Připojuje ho měření mezičasů (Ctrl+B).</translation>
    </message>
    <message>
        <source>%1 of the part that is recorded; strokes of the whole run are not known.</source>
        <translation>%1 zaznamenané části; záběry celé jízdy nejsou známy.</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Jízda</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionRecordings</name>
    <message>
        <source>%1: there is not enough memory for it</source>
        <translation>%1: není na to dost paměti</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionWindow</name>
    <message>
        <source>Recordings</source>
        <translation>Záznamy</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Převést</translation>
    </message>
    <message>
        <source>Writes strokes and turns as a processed session (.bms) beside the recording</source>
        <translation>Zapíše záběry a obraty jako zpracovanou jednotku (.bms) vedle záznamu</translation>
    </message>
    <message>
        <source>Convert all ticked</source>
        <translation>Převést všechny zaškrtnuté</translation>
    </message>
    <message>
        <source>At the cursor</source>
        <translation>Na kurzoru</translation>
    </message>
    <message>
        <source>Drop raw recordings (.kvb) here</source>
        <translation>Přetáhněte sem surové záznamy (.kvb)</translation>
    </message>
    <message>
        <source>Several are laid over each other. They are only read: converting writes a new file.</source>
        <translation>Více záznamů se položí přes sebe. Jen se čtou: převod zapíše nový soubor.</translation>
    </message>
    <message>
        <source>Open recordings…</source>
        <translation>Otevřít záznamy…</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Uloženo %1</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>Otevřít záznamy</translation>
    </message>
    <message>
        <source>Raw recordings (*.kvb);;All files (*)</source>
        <translation>Surové záznamy (*.kvb);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Čte se %1…</translation>
    </message>
    <message>
        <source>Raw recordings</source>
        <translation>Surové záznamy</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 a další (%2)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::NoteMarks</name>
    <message>
        <source>This mark lies on the film of a fixed camera that is not in step.</source>
        <translation>Tato značka leží na filmu pevné kamery, která není sladěna.</translation>
    </message>
    <message>
        <source>The other run of this time loss is not in this file.</source>
        <translation>Druhá jízda této časové ztráty není v tomto souboru.</translation>
    </message>
    <message>
        <source>Another run came to the front: nothing was marked.</source>
        <translation>Dopředu přišla jiná jízda: nic nebylo označeno.</translation>
    </message>
    <message>
        <source>Nothing can be marked: %1 is not in the folder of the split file. Cameras &gt; Where are the films now?</source>
        <translation>Nelze nic označit: %1 není ve složce souboru mezičasů. Kamery &gt; Kde jsou filmy nyní?</translation>
    </message>
    <message>
        <source>mark moved</source>
        <translation>značka posunuta</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>Není vybrána žádná značka. Ctrl a šipky vedou od značky ke značce.</translation>
    </message>
    <message>
        <source>This mark lies on another film than the one shown.</source>
        <translation>Tato značka leží na jiném filmu, než je ukázaný.</translation>
    </message>
    <message>
        <source>None of these marks lies on the film that is shown.</source>
        <translation>Žádná z těchto značek neleží na ukázaném filmu.</translation>
    </message>
    <message>
        <source>Nothing is selected that could be removed. Ctrl and the arrows go from mark to mark.</source>
        <translation>Není vybráno nic, co by šlo odstranit. Ctrl a šipky vedou od značky ke značce.</translation>
    </message>
    <message>
        <source>mark removed</source>
        <translation>značka odstraněna</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::NotePage</name>
    <message>
        <source>Splits</source>
        <translation>Mezičasy</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Penalizace</translation>
    </message>
    <message>
        <source>Upstreams</source>
        <translation>Protivodné</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Záběry</translation>
    </message>
    <message>
        <source>Micro</source>
        <translation>Mikro</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Štítky</translation>
    </message>
    <message>
        <source>Losses</source>
        <translation>Ztráty</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Komentáře</translation>
    </message>
    <message>
        <source>Ways</source>
        <translation>Varianty</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kamery</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::NotesPanel</name>
    <message>
        <source>Clip %1 of %2</source>
        <translation>Klip %1 z %2</translation>
    </message>
    <message>
        <source>This key works in the mode %1.</source>
        <translation>Tato klávesa funguje v režimu %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OfferDialog</name>
    <message>
        <source>A newer version</source>
        <translation>Novější verze</translation>
    </message>
    <message>
        <source>Kavela %1 is here</source>
        <translation>Je zde Kavela %1</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Co je nového</translation>
    </message>
    <message>
        <source>Nothing is told of what is new.</source>
        <translation>O novinkách se nic neuvádí.</translation>
    </message>
    <message>
        <source>The file has %1 and is put into %2. You install it yourself, when it suits you.</source>
        <translation>Soubor má %1 a uloží se do %2. Nainstalujete ho sami, až se vám to bude hodit.</translation>
    </message>
    <message>
        <source>It is of %1. You have %2.</source>
        <translation>Je z %1. Vy máte %2.</translation>
    </message>
    <message>
        <source>&amp;Skip this version</source>
        <translation>&amp;Přeskočit tuto verzi</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>Pozdě&amp;ji</translation>
    </message>
    <message>
        <source>&amp;Download</source>
        <translation>&amp;Stáhnout</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Zrušit</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zavřít</translation>
    </message>
    <message>
        <source>&amp;Show the folder</source>
        <translation>&amp;Ukázat složku</translation>
    </message>
    <message>
        <source>The file is the one that was signed, and stands as “%1” in %2. Leave Kavela before you install it.</source>
        <translation>Soubor je tentýž, který byl podepsán, a je jako „%1“ v %2. Před instalací Kavelu ukončete.</translation>
    </message>
    <message>
        <source>Nothing was kept of the file.</source>
        <translation>Ze souboru se nic neuchovalo.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OfficialDialog</name>
    <message>
        <source>Crew</source>
        <translation>Posádka</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Co se liší</translation>
    </message>
    <message>
        <source>How</source>
        <translation>Jak</translation>
    </message>
    <message>
        <source>Official results and the films</source>
        <translation>Oficiální výsledky a filmy</translation>
    </message>
    <message>
        <source>&amp;Take over</source>
        <translation>&amp;Převzít</translation>
    </message>
    <message>
        <source>&amp;Show the run</source>
        <translation>&amp;Ukázat jízdu</translation>
    </message>
    <message>
        <source>A &amp;file…</source>
        <translation>&amp;Soubor…</translation>
    </message>
    <message>
        <source>Results list</source>
        <translation>Výsledková listina</translation>
    </message>
    <message>
        <source>Attached document</source>
        <translation>Přiložený dokument</translation>
    </message>
    <message>
        <source>Table kept with the race</source>
        <translation>Tabulka uchovaná u závodu</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Všechny kategorie</translation>
    </message>
    <message>
        <source>All phases</source>
        <translation>Všechny fáze</translation>
    </message>
    <message>
        <source>Official results</source>
        <translation>Oficiální výsledky</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Čte se %1…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>„%1“ nelze otevřít</translation>
    </message>
    <message>
        <source>The race carries no results list. Open one with “A file…”.</source>
        <translation>Závod nemá výsledkovou listinu. Otevřete ji pomocí „Soubor…“.</translation>
    </message>
    <message>
        <source>The films and this list say the same.</source>
        <translation>Filmy a tato listina říkají totéž.</translation>
    </message>
    <message>
        <source>%1 differences, %2 of them to take over. The films&apos; own times stay; Ctrl+Z in split taking takes a step back.</source>
        <translation>Rozdílů %1, k převzetí %2. Časy z filmů zůstanou; Ctrl+Z v měření mezičasů vrátí krok zpět.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlineDialog</name>
    <message>
        <source>Any server that stores files by WebDAV will do. The password is asked for each time and stored nowhere.</source>
        <translation>Vyhoví každý server, který ukládá soubory přes WebDAV. Na heslo se ptá pokaždé a nikam se neukládá.</translation>
    </message>
    <message>
        <source>&amp;Planning</source>
        <translation>&amp;Plánování</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adresa</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>&amp;Jméno uživatele</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Heslo</translation>
    </message>
    <message>
        <source>The settings name no shared planning.</source>
        <translation>V nastavení není žádné sdílené plánování.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlinePlanning</name>
    <message>
        <source>Saving the planning online…</source>
        <translation>Plánování se ukládá online…</translation>
    </message>
    <message>
        <source>“%1” is saved online.</source>
        <translation>„%1“ je uloženo online.</translation>
    </message>
    <message>
        <source>“%1” was changed on the server since this planning was read from there or saved there. Saving would lose that change.</source>
        <translation>„%1“ se na serveru změnilo od chvíle, kdy bylo toto plánování odtud načteno nebo tam uloženo. Uložením by se ta změna ztratila.</translation>
    </message>
    <message>
        <source>There is a planning “%1” on the server that this one does not come from. Saving would replace it.</source>
        <translation>Na serveru je plánování „%1“, ze kterého toto nepochází. Uložení by ho nahradilo.</translation>
    </message>
    <message>
        <source>Somebody else&apos;s work lies on the server</source>
        <translation>Na serveru leží práce někoho jiného</translation>
    </message>
    <message>
        <source>Look at it</source>
        <translation>Podívat se na ni</translation>
    </message>
    <message>
        <source>Save under another name…</source>
        <translation>Uložit pod jiným jménem…</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Nahradit</translation>
    </message>
    <message>
        <source>Save the planning online</source>
        <translation>Uložit plánování online</translation>
    </message>
    <message>
        <source>Name on the server</source>
        <translation>Jméno na serveru</translation>
    </message>
    <message>
        <source>%1 (mine)</source>
        <translation>%1 (moje)</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a file.</source>
        <translation>„%1“ nemůže být jméno souboru.</translation>
    </message>
    <message>
        <source>The server has no such file.</source>
        <translation>Server takový soubor nemá.</translation>
    </message>
    <message>
        <source>What the server has is no planning.</source>
        <translation>Na serveru není žádné plánování.</translation>
    </message>
    <message>
        <source>The online planning could not be opened.</source>
        <translation>Plánování online nelze otevřít.</translation>
    </message>
    <message>
        <source>Open an online planning</source>
        <translation>Otevřít plánování online</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlineSaving</name>
    <message>
        <source>The server changes the planning all the time.</source>
        <translation>Server plánování stále mění.</translation>
    </message>
    <message>
        <source>The server has no such folder.</source>
        <translation>Server takovou složku nemá.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlineStore</name>
    <message>
        <source>The address is none. It begins with https://.</source>
        <translation>Adresa není platná. Začíná https://.</translation>
    </message>
    <message>
        <source>Only https:// keeps the password and the plan from other readers.</source>
        <translation>Jen https:// chrání heslo a plán před cizíma očima.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OrderBoard</name>
    <message>
        <source>Order at the gate in front</source>
        <translation>Pořadí na brance vpředu</translation>
    </message>
    <message>
        <source>A place up</source>
        <translation>O místo výš</translation>
    </message>
    <message>
        <source>A place down</source>
        <translation>O místo níž</translation>
    </message>
    <message>
        <source>Not seen at this gate</source>
        <translation>Na této brance neviděn(a)</translation>
    </message>
    <message>
        <source>Seen, as the last</source>
        <translation>Viděn(a), poslední</translation>
    </message>
    <message>
        <source>not of this heat</source>
        <translation>není v této rozjížďce</translation>
    </message>
    <message>
        <source>not seen</source>
        <translation>neviděn(a)</translation>
    </message>
    <message>
        <source>%1 won</source>
        <translation>získáno %1</translation>
    </message>
    <message>
        <source>%1 lost</source>
        <translation>ztraceno %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PageView</name>
    <message>
        <source>Pages of the report</source>
        <translation>Strany zprávy</translation>
    </message>
    <message>
        <source>There is nothing to show.</source>
        <translation>Není co ukázat.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PathPages</name>
    <message>
        <source>Draw a box round what is to be followed.</source>
        <translation>Nakreslete rámeček kolem toho, co se má sledovat.</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Rychlost</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Čísla</translation>
    </message>
    <message>
        <source>Known points</source>
        <translation>Známé body</translation>
    </message>
    <message>
        <source>Two points give a scale only: lengths and speeds hold near them and along the line between them. Four give the perspective too.</source>
        <translation>Dva body dají jen měřítko: délky a rychlosti platí poblíž nich a podél čáry mezi nimi. Čtyři dají i perspektivu.</translation>
    </message>
    <message>
        <source>What is followed is not on the water, such as a head: its metres are off.</source>
        <translation>Sledované není na vodě, třeba hlava: jeho metry nejsou přesné.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltiesActions</name>
    <message>
        <source>Crews</source>
        <translation>Posádky</translation>
    </message>
    <message>
        <source>&amp;Open split files…</source>
        <translation>Otevřít soubory &amp;mezičasů…</translation>
    </message>
    <message>
        <source>Open a &amp;folder…</source>
        <translation>Otevřít &amp;složku…</translation>
    </message>
    <message>
        <source>Read &amp;again</source>
        <translation>N&amp;ačíst znovu</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>Zastavit čte&amp;ní</translation>
    </message>
    <message>
        <source>Files that could not be rea&amp;d…</source>
        <translation>Soubory, které nelze &amp;přečíst…</translation>
    </message>
    <message>
        <source>Save the &amp;table as CSV…</source>
        <translation>Uložit ta&amp;bulku jako CSV…</translation>
    </message>
    <message>
        <source>Save the &amp;chart…</source>
        <translation>Uložit &amp;graf…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Ukázat</translation>
    </message>
    <message>
        <source>&amp;Course</source>
        <translation>&amp;Trať</translation>
    </message>
    <message>
        <source>&amp;Rates</source>
        <translation>&amp;Podíly</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>Po&amp;drobnosti</translation>
    </message>
    <message>
        <source>Cost in &amp;places</source>
        <translation>Cena v &amp;místech</translation>
    </message>
    <message>
        <source>Risk and &amp;speed</source>
        <translation>&amp;Riziko a rychlost</translation>
    </message>
    <message>
        <source>&amp;Next course</source>
        <translation>Další tr&amp;ať</translation>
    </message>
    <message>
        <source>Pre&amp;vious course</source>
        <translation>Předcho&amp;zí trať</translation>
    </message>
    <message>
        <source>&amp;All runs</source>
        <translation>&amp;Všechny jízdy</translation>
    </message>
    <message>
        <source>The &amp;whole chart</source>
        <translation>&amp;Celý graf</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltiesWindow</name>
    <message>
        <source>Penalties</source>
        <translation>Penalizace</translation>
    </message>
    <message>
        <source>Drop split files (.kvx) or a folder of them here</source>
        <translation>Přetáhněte sem soubory mezičasů (.kvx) nebo jejich složku</translation>
    </message>
    <message>
        <source>Open split files…</source>
        <translation>Otevřít soubory mezičasů…</translation>
    </message>
    <message>
        <source>Open a folder…</source>
        <translation>Otevřít složku…</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Trať</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Podíly</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Podrobnosti</translation>
    </message>
    <message>
        <source>Cost in places</source>
        <translation>Cena v místech</translation>
    </message>
    <message>
        <source>Risk and speed</source>
        <translation>Riziko a rychlost</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Uloženo %1</translation>
    </message>
    <message>
        <source>Open split files</source>
        <translation>Otevřít soubory mezičasů</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Soubory mezičasů (*.kvx);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Open a folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message>
        <source>Which gates are touched and missed, by whom, and what it cost: of one race, of several, or of a whole season. Files are only read.</source>
        <translation>Na kterých brankách se ťuká a které se nejedou, kdo a co to stálo: z jednoho závodu, z několika nebo z celé sezóny. Soubory se jen čtou.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Čte se…</translation>
    </message>
    <message>
        <source>There is no split file (.kvx) here.</source>
        <translation>Není zde soubor mezičasů (.kvx).</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 soubor</translation>
    </message>
    <message>
        <source>1 run</source>
        <translation>1 jízda</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 a další (%2)</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n soubor</numerusform>
            <numerusform>%n soubory</numerusform>
            <numerusform>%n souborů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n jízda</numerusform>
            <numerusform>%n jízdy</numerusform>
            <numerusform>%n jízd</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltyFilter</name>
    <message>
        <source>&amp;Category</source>
        <translation>Ka&amp;tegorie</translation>
    </message>
    <message>
        <source>&amp;Phase</source>
        <translation>&amp;Fáze</translation>
    </message>
    <message>
        <source>Cre&amp;w</source>
        <translation>Po&amp;sádka</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Vše</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltyPage</name>
    <message>
        <source>Gate</source>
        <translation>Branka</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Penalizace</translation>
    </message>
    <message>
        <source>Pole</source>
        <translation>Tyč</translation>
    </message>
    <message>
        <source>With</source>
        <translation>Čím</translation>
    </message>
    <message>
        <source>Another at this gate</source>
        <translation>Další na této brance</translation>
    </message>
    <message>
        <source>Choose what else happened at the gate in front; M adds it</source>
        <translation>Zvolte, co se na brance vpředu ještě stalo; M to přidá</translation>
    </message>
    <message>
        <source>Moment</source>
        <translation>Okamžik</translation>
    </message>
    <message>
        <source>Gate is</source>
        <translation>Branka je</translation>
    </message>
    <message>
        <source>Boat moves</source>
        <translation>Loď se pohybuje</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Styl</translation>
    </message>
    <message>
        <source>Eyes</source>
        <translation>Oči</translation>
    </message>
    <message>
        <source>Gate %1: %2 s. The lists change its penalty.</source>
        <translation>Branka %1: %2 s. Seznamy mění její penalizaci.</translation>
    </message>
    <message>
        <source>Gate %1: %2 s. M adds a penalty.</source>
        <translation>Branka %1: %2 s. M přidá penalizaci.</translation>
    </message>
    <message>
        <source>The seconds differ from the penalties listed at gate %1.</source>
        <translation>Sekundy se liší od penalizací vypsaných u branky %1.</translation>
    </message>
    <message>
        <source>The course has no gates yet: Ctrl+G sets it up.</source>
        <translation>Trať zatím nemá branky: nastaví je Ctrl+G.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; begins a second one.</source>
        <translation>„%1“ začne druhou.</translation>
    </message>
    <message>
        <source>penalty at gate %1</source>
        <translation>penalizace na brance %1</translation>
    </message>
    <message>
        <source>penalty removed</source>
        <translation>penalizace odstraněna</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PhaseModel</name>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>time</source>
        <translation>čas</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Penalizace</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>penalizace</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Celkem</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Pořadí</translation>
    </message>
    <message>
        <source>position</source>
        <translation>pořadí</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Enter a time or a position first.</source>
        <translation>Nejdřív zadejte čas nebo pořadí.</translation>
    </message>
    <message>
        <source>date</source>
        <translation>datum</translation>
    </message>
    <message>
        <source>Behind</source>
        <translation>Ztráta</translation>
    </message>
    <message>
        <source>Known where the run was taken over from a split file</source>
        <translation>Známo tam, kde byla jízda převzata ze souboru mezičasů</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Mezičasy</translation>
    </message>
    <message>
        <source>removal of a run</source>
        <translation>odstranění jízdy</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PhonePageDialog</name>
    <message>
        <source>&amp;Cut the runs out of their films</source>
        <translation>&amp;Vystřihnout jízdy z filmů</translation>
    </message>
    <message>
        <source>Page for an athlete</source>
        <translation>Stránka pro závodníka</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Uložit…</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>Záv&amp;odník</translation>
    </message>
    <message>
        <source>Choose one of the athletes of the list.</source>
        <translation>Vyberte některého ze závodníků seznamu.</translation>
    </message>
    <message>
        <source>One file for the telephone, of one race as it was last saved. Films lie in the folder beside it.</source>
        <translation>Jeden soubor do telefonu, z jednoho závodu, jak byl naposled uložen. Filmy leží ve složce vedle něj.</translation>
    </message>
    <message>
        <source>One file for the telephone, the season of %1 files as they were last saved. Films lie in the folder beside it.</source>
        <translation>Jeden soubor do telefonu, sezóna ze souborů (%1), jak byly naposled uloženy. Filmy leží ve složce vedle něj.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PhonePages</name>
    <message>
        <source>No clip of %1: %2</source>
        <translation>Bez klipu: %1: %2</translation>
    </message>
    <message>
        <source>Save the page of %1</source>
        <translation>Uložit stránku: %1</translation>
    </message>
    <message>
        <source>Pages (*.html *.htm)</source>
        <translation>Stránky (*.html *.htm)</translation>
    </message>
    <message>
        <source>The page cannot be written over a race that it is made from.</source>
        <translation>Stránku nelze zapsat přes závod, ze kterého vzniká.</translation>
    </message>
    <message>
        <source>Making the page…</source>
        <translation>Vytváří se stránka…</translation>
    </message>
    <message>
        <source>Page for an athlete</source>
        <translation>Stránka pro závodníka</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>%1 je zapsáno.</translation>
    </message>
    <message>
        <source>&amp;Open it</source>
        <translation>&amp;Otevřít</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>Ukázat ve &amp;složce</translation>
    </message>
    <message>
        <source>The saved files have no run of this athlete.</source>
        <translation>Uložené soubory nemají žádnou jízdu tohoto závodníka.</translation>
    </message>
    <message>
        <source>There is no run of a named athlete in the split files that are open.</source>
        <translation>V otevřených souborech mezičasů není žádná jízda pojmenovaného závodníka.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PivotDialog</name>
    <message>
        <source>Pivot</source>
        <translation>Kontingenční tabulka</translation>
    </message>
    <message>
        <source>one column for all</source>
        <translation>jeden sloupec pro vše</translation>
    </message>
    <message>
        <source>How many</source>
        <translation>Kolik</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Součet</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Průměr</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Medián</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Nejméně</translation>
    </message>
    <message>
        <source>Most</source>
        <translation>Nejvíce</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Vytvořit</translation>
    </message>
    <message>
        <source>A &amp;row for each</source>
        <translation>&amp;Řádek pro každé</translation>
    </message>
    <message>
        <source>A &amp;column for each</source>
        <translation>&amp;Sloupec pro každé</translation>
    </message>
    <message>
        <source>&amp;Of</source>
        <translation>&amp;Z</translation>
    </message>
    <message>
        <source>&amp;Tell</source>
        <translation>&amp;Uvést</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlaceGrid</name>
    <message>
        <source>Places at the gates</source>
        <translation>Místa na brankách</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Branka %1</translation>
    </message>
    <message>
        <source>, which is not on the cross course</source>
        <translation>, která na trati crossu není</translation>
    </message>
    <message>
        <source>, replaced by a later order</source>
        <translation>, nahrazeno pozdějším pořadím</translation>
    </message>
    <message>
        <source>No order yet.</source>
        <translation>Zatím žádné pořadí.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlanView</name>
    <message>
        <source>The week&apos;s date is in no calendar, so that it has no days.</source>
        <translation>Datum týdne není v žádném kalendáři, proto týden nemá dny.</translation>
    </message>
    <message>
        <source>new session</source>
        <translation>nová jednotka</translation>
    </message>
    <message>
        <source>session</source>
        <translation>jednotka</translation>
    </message>
    <message>
        <source>removal of a session</source>
        <translation>odstranění jednotky</translation>
    </message>
    <message>
        <source>copied session</source>
        <translation>zkopírovaná jednotka</translation>
    </message>
    <message>
        <source>move of a session</source>
        <translation>přesun jednotky</translation>
    </message>
    <message>
        <source>There is no week there in this season.</source>
        <translation>V této sezóně tam žádný týden není.</translation>
    </message>
    <message>
        <source>Week %1 is copied.</source>
        <translation>Týden %1 je zkopírován.</translation>
    </message>
    <message>
        <source>One of the two weeks has a date that is in no calendar.</source>
        <translation>Jeden z obou týdnů má datum, které není v žádném kalendáři.</translation>
    </message>
    <message>
        <source>copy of a week</source>
        <translation>kopie týdne</translation>
    </message>
    <message>
        <source>Week %1 now holds the copied week; %2 sessions that stood there went. Ctrl+Z brings them back.</source>
        <translation>V týdnu %1 je teď zkopírovaný týden; jednotek, které tam byly a zmizely: %2. Ctrl+Z je vrátí.</translation>
    </message>
    <message>
        <source>repeated weeks</source>
        <translation>opakované týdny</translation>
    </message>
    <message>
        <source>%1 weeks were written.</source>
        <translation>Zapsáno týdnů: %1.</translation>
    </message>
    <message>
        <source>There is no week behind the chosen ones.</source>
        <translation>Za zvolenými týdny už žádný není.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Opakovat</translation>
    </message>
    <message>
        <source>How often do the %1 chosen weeks follow themselves?
Sessions, totals, load, cycles, place, tests and goals of the weeks behind are replaced; their events and health stay.</source>
        <translation>Kolikrát se mají zvolené týdny (%1) opakovat za sebou?
Jednotky, součty, zatížení, cykly, místo, testy a cíle dalších týdnů se nahradí; jejich akce a zdraví zůstanou.</translation>
    </message>
    <message>
        <source>emptied weeks</source>
        <translation>vyprázdněné týdny</translation>
    </message>
    <message>
        <source>planned totals</source>
        <translation>plánované součty</translation>
    </message>
    <message>
        <source>new week</source>
        <translation>nový týden</translation>
    </message>
    <message>
        <source>removal of the last week</source>
        <translation>odstranění posledního týdne</translation>
    </message>
    <message>
        <source>Totals of the week</source>
        <translation>Součty týdne</translation>
    </message>
    <message>
        <source>Totals of the chosen weeks</source>
        <translation>Součty zvolených týdnů</translation>
    </message>
    <message>
        <source>Totals of the mesocycle</source>
        <translation>Součty mezocyklu</translation>
    </message>
    <message>
        <source>Totals of the season</source>
        <translation>Součty sezóny</translation>
    </message>
    <message>
        <source>planned sessions</source>
        <translation>plánované jednotky</translation>
    </message>
    <message>
        <source>planned quantity</source>
        <translation>plánované množství</translation>
    </message>
    <message>
        <source>Add an athlete with Ctrl+N to begin a plan.</source>
        <translation>Plán začněte přidáním závodníka pomocí Ctrl+N.</translation>
    </message>
    <message>
        <source>Add a season with Ctrl+Shift+N: 52 empty weeks to fill.</source>
        <translation>Přidejte sezónu pomocí Ctrl+Shift+N: 52 prázdných týdnů k naplnění.</translation>
    </message>
    <message>
        <source>This season has no weeks. Add one with the menu Week.</source>
        <translation>Tato sezóna nemá týdny. Přidejte týden nabídkou Týden.</translation>
    </message>
    <message>
        <source>This season has no week of today.</source>
        <translation>V této sezóně není dnešní týden.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlannedAthleteDialog</name>
    <message>
        <source>Athlete</source>
        <translation>Závodník</translation>
    </message>
    <message>
        <source>&amp;Picture…</source>
        <translation>&amp;Obrázek…</translation>
    </message>
    <message>
        <source>&amp;No picture</source>
        <translation>&amp;Bez obrázku</translation>
    </message>
    <message>
        <source>Picture of the athlete</source>
        <translation>Obrázek závodníka</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg)</source>
        <translation>Obrázky (*.png *.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Jméno</translation>
    </message>
    <message>
        <source>&amp;Categories</source>
        <translation>&amp;Kategorie</translation>
    </message>
    <message>
        <source>&amp;E-mail</source>
        <translation>&amp;E-mail</translation>
    </message>
    <message>
        <source>P&amp;hone</source>
        <translation>&amp;Telefon</translation>
    </message>
    <message>
        <source>The file is no picture, cannot be read, or is larger than 8 MB.</source>
        <translation>Soubor není obrázek, nelze ho přečíst, nebo je větší než 8 MB.</translation>
    </message>
    <message>
        <source>The athlete needs a name.</source>
        <translation>Závodník potřebuje jméno.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlanningDocument</name>
    <message>
        <source>online planning</source>
        <translation>plánování online</translation>
    </message>
    <message>
        <source>The planning “%1” will be replaced.</source>
        <translation>Plánování „%1“ bude nahrazeno.</translation>
    </message>
    <message>
        <source>1 athlete</source>
        <translation>1 závodník</translation>
    </message>
    <message numerus="yes">
        <source>%n athletes</source>
        <translation>
            <numerusform>%n závodník</numerusform>
            <numerusform>%n závodníci</numerusform>
            <numerusform>%n závodníků</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlanningWindow</name>
    <message>
        <source>&amp;Athlete</source>
        <translation>Záv&amp;odník</translation>
    </message>
    <message>
        <source>&amp;New athlete…</source>
        <translation>&amp;Nový závodník…</translation>
    </message>
    <message>
        <source>&amp;Edit the athlete…</source>
        <translation>&amp;Upravit závodníka…</translation>
    </message>
    <message>
        <source>&amp;Remove the athlete</source>
        <translation>&amp;Odstranit závodníka</translation>
    </message>
    <message>
        <source>New &amp;season</source>
        <translation>Nová &amp;sezóna</translation>
    </message>
    <message>
        <source>Remove the s&amp;eason</source>
        <translation>Odstranit s&amp;ezónu</translation>
    </message>
    <message>
        <source>&amp;Session</source>
        <translation>&amp;Jednotka</translation>
    </message>
    <message>
        <source>Sessions are in the plan: show &amp;it</source>
        <translation>Jednotky jsou v plánu: &amp;ukázat</translation>
    </message>
    <message>
        <source>&amp;New session…</source>
        <translation>&amp;Nová jednotka…</translation>
    </message>
    <message>
        <source>&amp;Edit the session…</source>
        <translation>Upr&amp;avit jednotku…</translation>
    </message>
    <message>
        <source>&amp;Remove the session</source>
        <translation>&amp;Odstranit jednotku</translation>
    </message>
    <message>
        <source>&amp;Copy the session</source>
        <translation>&amp;Kopírovat jednotku</translation>
    </message>
    <message>
        <source>&amp;Paste the session</source>
        <translation>&amp;Vložit jednotku</translation>
    </message>
    <message>
        <source>Move to the week &amp;before</source>
        <translation>Přesunout do &amp;předchozího týdne</translation>
    </message>
    <message>
        <source>Move to the week be&amp;hind</source>
        <translation>Přesunout do &amp;dalšího týdne</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Týden</translation>
    </message>
    <message>
        <source>&amp;Previous week</source>
        <translation>&amp;Předchozí týden</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>&amp;Další týden</translation>
    </message>
    <message>
        <source>&amp;This week</source>
        <translation>&amp;Tento týden</translation>
    </message>
    <message>
        <source>&amp;Copy the week</source>
        <translation>&amp;Kopírovat týden</translation>
    </message>
    <message>
        <source>Paste the &amp;week</source>
        <translation>&amp;Vložit týden</translation>
    </message>
    <message>
        <source>&amp;Repeat the chosen weeks…</source>
        <translation>&amp;Opakovat zvolené týdny…</translation>
    </message>
    <message>
        <source>&amp;Empty the chosen weeks</source>
        <translation>Vyp&amp;rázdnit zvolené týdny</translation>
    </message>
    <message>
        <source>P&amp;lan what is in the sessions</source>
        <translation>N&amp;aplánovat, co je v jednotkách</translation>
    </message>
    <message>
        <source>&amp;Add a week at the end</source>
        <translation>Přidat týden na ko&amp;nec</translation>
    </message>
    <message>
        <source>Re&amp;move the last week</source>
        <translation>Odstranit posl&amp;ední týden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Zo&amp;brazení</translation>
    </message>
    <message>
        <source>&amp;Find an athlete</source>
        <translation>Najít záv&amp;odníka</translation>
    </message>
    <message>
        <source>&amp;Reports: preview, PDF, print…</source>
        <translation>Zprávy: náhled, &amp;PDF, tisk…</translation>
    </message>
    <message>
        <source>Week as a &amp;calendar file…</source>
        <translation>Týden jako soubor kale&amp;ndáře…</translation>
    </message>
    <message>
        <source>Import heart-rate &amp;variability…</source>
        <translation>Importovat variabilitu &amp;tepu…</translation>
    </message>
    <message>
        <source>Open an o&amp;nline planning…</source>
        <translation>Otevřít plánování on&amp;line…</translation>
    </message>
    <message>
        <source>Sa&amp;ve online…</source>
        <translation>&amp;Uložit online…</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Závodníci</translation>
    </message>
    <message>
        <source>Planning</source>
        <translation>Plánování</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plán</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Cíle</translation>
    </message>
    <message>
        <source>Body and heart</source>
        <translation>Tělo a srdce</translation>
    </message>
    <message>
        <source>Gym</source>
        <translation>Posilovna</translation>
    </message>
    <message>
        <source>Ranking and races</source>
        <translation>Žebříček a závody</translation>
    </message>
    <message>
        <source>Interval sessions</source>
        <translation>Intervalové jednotky</translation>
    </message>
    <message>
        <source>%1 measurements of heart-rate variability of this older file hold only a highest and a lowest value, for which the present version has no place: their dates are taken over, their values are not. Saving keeps the file as it was beside the new one.</source>
        <translation>Některá měření variability tepové frekvence tohoto staršího souboru (počet: %1) mají jen nejvyšší a nejnižší hodnotu, pro které současná verze nemá místo: jejich data se převezmou, hodnoty ne. Ukládání uchová soubor, jak byl, vedle nového.</translation>
    </message>
    <message>
        <source>new athlete</source>
        <translation>nový závodník</translation>
    </message>
    <message>
        <source>athlete</source>
        <translation>závodník</translation>
    </message>
    <message>
        <source>removal of an athlete</source>
        <translation>odstranění závodníka</translation>
    </message>
    <message>
        <source>Add an athlete first.</source>
        <translation>Nejdřív přidejte závodníka.</translation>
    </message>
    <message>
        <source>new season</source>
        <translation>nová sezóna</translation>
    </message>
    <message>
        <source>removal of a season</source>
        <translation>odstranění sezóny</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlayMenu</name>
    <message>
        <source>&amp;Play</source>
        <translation>Přehrá&amp;vání</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>Pře&amp;hrát nebo pozastavit</translation>
    </message>
    <message>
        <source>Backwards, again: faster</source>
        <translation>Pozpátku, znovu: rychleji</translation>
    </message>
    <message>
        <source>Stop; held, J and L step a frame</source>
        <translation>Zastavit; při držení J a L krokují po snímku</translation>
    </message>
    <message>
        <source>Forwards, again: faster</source>
        <translation>Vpřed, znovu: rychleji</translation>
    </message>
    <message>
        <source>Slow motion backwards</source>
        <translation>Zpomaleně pozpátku</translation>
    </message>
    <message>
        <source>Slow motion forward</source>
        <translation>Zpomaleně vpřed</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>Po&amp;maleji</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>&amp;Rychleji</translation>
    </message>
    <message>
        <source>&amp;Normal speed</source>
        <translation>&amp;Normální rychlost</translation>
    </message>
    <message>
        <source>S&amp;ound, at normal speed</source>
        <translation>Z&amp;vuk, při normální rychlosti</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>O snímek zpět</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>O snímek vpřed</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>O sekundu zpět</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>O sekundu vpřed</translation>
    </message>
    <message>
        <source>Ten seconds back</source>
        <translation>O deset sekund zpět</translation>
    </message>
    <message>
        <source>Ten seconds forward</source>
        <translation>O deset sekund vpřed</translation>
    </message>
    <message>
        <source>To the beginning</source>
        <translation>Na začátek</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>Na konec</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlotInteraction</name>
    <message>
        <source>Show everything</source>
        <translation>Ukázat vše</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Přiblížit</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Oddálit</translation>
    </message>
    <message>
        <source>Show all series</source>
        <translation>Ukázat všechny řady</translation>
    </message>
    <message>
        <source>Copy the picture</source>
        <translation>Kopírovat obrázek</translation>
    </message>
    <message>
        <source>Copy the values</source>
        <translation>Kopírovat hodnoty</translation>
    </message>
    <message>
        <source>Save as picture (PNG)…</source>
        <translation>Uložit jako obrázek (PNG)…</translation>
    </message>
    <message>
        <source>Save as drawing (SVG)…</source>
        <translation>Uložit jako kresbu (SVG)…</translation>
    </message>
    <message>
        <source>Save as table (CSV)…</source>
        <translation>Uložit jako tabulku (CSV)…</translation>
    </message>
    <message>
        <source>The chart was not saved</source>
        <translation>Graf nebyl uložen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PotentialPanel</name>
    <message>
        <source>The best of every own section put together, without penalties. What is left is how far the best run is from it.</source>
        <translation>Nejlepší z každého vlastního úseku dohromady, bez penalizací. Zbývá to, oč je nejlepší jízda horší.</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Závodník</translation>
    </message>
    <message>
        <source>Potential</source>
        <translation>Potenciál</translation>
    </message>
    <message>
        <source>Best run</source>
        <translation>Nejlepší jízda</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Zbývá</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PowerMeterDialog</name>
    <message>
        <source>Line</source>
        <translation>Řádek</translation>
    </message>
    <message>
        <source>Why it is refused</source>
        <translation>Proč je odmítnut</translation>
    </message>
    <message>
        <source>Import power-meter data</source>
        <translation>Import dat wattmetru</translation>
    </message>
    <message>
        <source>Samples: %1. Lines refused: %2.</source>
        <translation>Vzorky: %1. Odmítnuté řádky: %2.</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>It &amp;begins after the session&apos;s start by</source>
        <translation>&amp;Začíná po startu jednotky o</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importovat</translation>
    </message>
    <message>
        <source>%1 of them lie in the session, which lasts %2.</source>
        <translation>V jednotce, která trvá %2, jich leží %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ProgressionPanel</name>
    <message>
        <source>Behind the winners</source>
        <translation>Za vítězi</translation>
    </message>
    <message>
        <source>Behind the fastest splits</source>
        <translation>Za nejrychlejšími mezičasy</translation>
    </message>
    <message>
        <source>Behind whom</source>
        <translation>Za kým</translation>
    </message>
    <message>
        <source>The winners&apos; totals have penalties in them, the fastest splits have not</source>
        <translation>V časech vítězů penalizace jsou, v nejrychlejších mezičasech ne</translation>
    </message>
    <message>
        <source>The team has no race of this athlete in these years.</source>
        <translation>Tým nemá v těchto letech žádný závod tohoto závodníka.</translation>
    </message>
    <message>
        <source>Open the &amp;winner&apos;s run</source>
        <translation>Otevřít jízdu &amp;vítěze</translation>
    </message>
    <message>
        <source>In split taking, where a split file has the run</source>
        <translation>V měření mezičasů, kde jízdu má soubor mezičasů</translation>
    </message>
    <message>
        <source>With a missed gate: left out of spread, trend and changes</source>
        <translation>S neprojetou brankou: nepočítá se do rozptylu, trendu a změn</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Rok</translation>
    </message>
    <message>
        <source>Race</source>
        <translation>Závod</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Den</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Pořadí</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Celkem</translation>
    </message>
    <message>
        <source>Winner&apos;s</source>
        <translation>Vítězův</translation>
    </message>
    <message>
        <source>Winner</source>
        <translation>Vítěz</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>neznámo</translation>
    </message>
    <message>
        <source>Behind, %</source>
        <translation>Ztráta, %</translation>
    </message>
    <message>
        <source>On splits, %</source>
        <translation>Na mezičasech, %</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Výsledek</translation>
    </message>
    <message>
        <source>The way of %1</source>
        <translation>Cesta: %1</translation>
    </message>
    <message>
        <source>Behind the winner, %</source>
        <translation>Za vítězem, %</translation>
    </message>
    <message>
        <source>Behind the fastest splits, %</source>
        <translation>Za nejrychlejšími mezičasy, %</translation>
    </message>
    <message>
        <source>Heats</source>
        <translation>Kvalifikace</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Finále</translation>
    </message>
    <message>
        <source>Semifinal</source>
        <translation>Semifinále</translation>
    </message>
    <message>
        <source>Other runs</source>
        <translation>Ostatní jízdy</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Procenta</translation>
    </message>
    <message>
        <source>Missed gate</source>
        <translation>Neprojetá branka</translation>
    </message>
    <message>
        <source>3rd of finals, median</source>
        <translation>3. z finále, medián</translation>
    </message>
    <message>
        <source>A run with a missed gate stands in the table alone.</source>
        <translation>Jízda s neprojetou brankou je jen v tabulce.</translation>
    </message>
    <message numerus="yes">
        <source>%n runs with a missed gate stand in the table alone.</source>
        <translation>
            <numerusform>%n jízda s neprojetou brankou je jen v tabulce.</numerusform>
            <numerusform>%n jízdy s neprojetou brankou jsou jen v tabulce.</numerusform>
            <numerusform>%n jízd s neprojetou brankou je jen v tabulce.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::QueryEdit</name>
    <message>
        <source>Query</source>
        <translation>Dotaz</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::QueryFault</name>
    <message>
        <source>%1 (at letter %2)</source>
        <translation>%1 (u písmene %2)</translation>
    </message>
    <message>
        <source>Writes “%1” there</source>
        <translation>Zapíše tam „%1“</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::QueryForm</name>
    <message>
        <source>Fi&amp;nd</source>
        <translation>&amp;Najít</translation>
    </message>
    <message>
        <source>Words that its words begin with; a whole name in quotes</source>
        <translation>Slova, jimiž začínají jeho slova; celé jméno v uvozovkách</translation>
    </message>
    <message>
        <source>Seconds, or 1:32.45; %1 in front leaves out the limit itself</source>
        <translation>Sekundy, nebo 1:32.45; %1 před nimi vynechá samotnou mez</translation>
    </message>
    <message>
        <source>At l&amp;east</source>
        <translation>N&amp;ejméně</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>bez meze</translation>
    </message>
    <message>
        <source>At &amp;most</source>
        <translation>Nej&amp;výše</translation>
    </message>
    <message>
        <source>G&amp;roups by</source>
        <translation>Sk&amp;upiny podle</translation>
    </message>
    <message>
        <source>Up to three columns with commas between them</source>
        <translation>Až tři sloupce oddělené čárkami</translation>
    </message>
    <message>
        <source>no groups</source>
        <translation>žádné skupiny</translation>
    </message>
    <message>
        <source>&amp;Best</source>
        <translation>Nej&amp;lepší</translation>
    </message>
    <message>
        <source>all</source>
        <translation>vše</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation>Ř&amp;adit podle</translation>
    </message>
    <message>
        <source>as found</source>
        <translation>jak nalezeno</translation>
    </message>
    <message>
        <source>From the largest do&amp;wn</source>
        <translation>Od ne&amp;jvětšího dolů</translation>
    </message>
    <message>
        <source>Only the f&amp;irst</source>
        <translation>Jen &amp;prvních</translation>
    </message>
    <message>
        <source>Near it: %1</source>
        <translation>Podobné: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceActions</name>
    <message>
        <source>Open it &amp;again</source>
        <translation>Ot&amp;evřít znovu</translation>
    </message>
    <message>
        <source>Ti&amp;me it on video</source>
        <translation>Změřit z vide&amp;a</translation>
    </message>
    <message>
        <source>&amp;Report: preview, PDF, print…</source>
        <translation>Z&amp;práva: náhled, PDF, tisk…</translation>
    </message>
    <message>
        <source>Save the table as &amp;CSV…</source>
        <translation>Uložit tabulku jako &amp;CSV…</translation>
    </message>
    <message>
        <source>Cop&amp;y the selected runs</source>
        <translation>Kopírovat vybrané &amp;jízdy</translation>
    </message>
    <message>
        <source>&amp;Times</source>
        <translation>&amp;Časy</translation>
    </message>
    <message>
        <source>&amp;Gap to the reference</source>
        <translation>&amp;Odstup od reference</translation>
    </message>
    <message>
        <source>&amp;Place</source>
        <translation>&amp;Místo</translation>
    </message>
    <message>
        <source>Per&amp;cent behind the best</source>
        <translation>&amp;Procenta za nejlepším</translation>
    </message>
    <message>
        <source>Percenti&amp;le</source>
        <translation>Percenti&amp;l</translation>
    </message>
    <message>
        <source>&amp;Reference: the best</source>
        <translation>&amp;Reference: nejlepší</translation>
    </message>
    <message>
        <source>Reference: the &amp;median</source>
        <translation>Reference: &amp;medián</translation>
    </message>
    <message>
        <source>Reference: the &amp;selected row</source>
        <translation>Reference: &amp;vybraný řádek</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabulka</translation>
    </message>
    <message>
        <source>&amp;Accumulated times</source>
        <translation>&amp;Průběžné časy</translation>
    </message>
    <message>
        <source>Penalties &amp;included</source>
        <translation>Penalizace &amp;započtené</translation>
    </message>
    <message>
        <source>Penalties &amp;visible</source>
        <translation>Penalizace &amp;viditelné</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>&amp;Sloupce</translation>
    </message>
    <message>
        <source>&amp;Find a name</source>
        <translation>&amp;Najít jméno</translation>
    </message>
    <message>
        <source>Show all r&amp;uns</source>
        <translation>Ukázat všechny &amp;jízdy</translation>
    </message>
    <message>
        <source>&amp;Tint cells by rank</source>
        <translation>&amp;Tónovat buňky podle pořadí</translation>
    </message>
    <message>
        <source>&amp;Blue to orange instead of green to red</source>
        <translation>&amp;Modrá až oranžová místo zelené až červené</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Porovnat</translation>
    </message>
    <message>
        <source>&amp;Ideal run on top</source>
        <translation>&amp;Ideální jízda nahoře</translation>
    </message>
    <message>
        <source>A &amp;run of another race…</source>
        <translation>&amp;Jízda z jiného závodu…</translation>
    </message>
    <message>
        <source>&amp;Films of the selected runs…</source>
        <translation>&amp;Filmy vybraných jízd…</translation>
    </message>
    <message>
        <source>With &amp;official results…</source>
        <translation>S &amp;oficiálními výsledky…</translation>
    </message>
    <message>
        <source>The results list as a &amp;table</source>
        <translation>Výsledková listina jako &amp;tabulka</translation>
    </message>
    <message>
        <source>&amp;Clear the comparison</source>
        <translation>&amp;Zrušit porovnání</translation>
    </message>
    <message>
        <source>Ch&amp;arts</source>
        <translation>&amp;Grafy</translation>
    </message>
    <message>
        <source>&amp;Gaps along the course</source>
        <translation>&amp;Odstupy po trati</translation>
    </message>
    <message>
        <source>T&amp;imes of the sections</source>
        <translation>Časy ú&amp;seků</translation>
    </message>
    <message>
        <source>P&amp;enalties at the gates</source>
        <translation>P&amp;enalizace na brankách</translation>
    </message>
    <message>
        <source>&amp;Totals</source>
        <translation>Cel&amp;kové časy</translation>
    </message>
    <message>
        <source>&amp;Penalties</source>
        <translation>&amp;Penalizace</translation>
    </message>
    <message>
        <source>Time &amp;losses</source>
        <translation>Časové &amp;ztráty</translation>
    </message>
    <message>
        <source>Show the &amp;whole chart</source>
        <translation>Ukázat &amp;celý graf</translation>
    </message>
    <message>
        <source>&amp;Save the chart…</source>
        <translation>Uložit &amp;graf…</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Okno</translation>
    </message>
    <message>
        <source>Races &amp;side by side</source>
        <translation>&amp;Závody vedle sebe</translation>
    </message>
    <message>
        <source>&amp;Larger: the table or the chart alone</source>
        <translation>&amp;Větší: jen tabulka, nebo jen graf</translation>
    </message>
    <message>
        <source>&amp;Next race</source>
        <translation>&amp;Další závod</translation>
    </message>
    <message>
        <source>&amp;Previous race</source>
        <translation>&amp;Předchozí závod</translation>
    </message>
    <message>
        <source>Pa&amp;ge for an athlete…</source>
        <translation>Stránka pro &amp;závodníka…</translation>
    </message>
    <message>
        <source>&amp;Draw the course…</source>
        <translation>N&amp;akreslit trať…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceDocument</name>
    <message>
        <source>A file of version %1. It could not be rewritten in the current version and stays as it is.</source>
        <translation>Soubor verze %1. Nepodařilo se ho přepsat do současné verze, zůstává, jak je.</translation>
    </message>
    <message>
        <source>A file of version %1, rewritten in the current one. The previous file is kept as %2.</source>
        <translation>Soubor verze %1, přepsaný do současné. Předchozí soubor je uchován jako %2.</translation>
    </message>
    <message>
        <source>%1 gates, %2 upstream</source>
        <translation>branek: %1, protivodných: %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceHeader</name>
    <message>
        <source>1 run</source>
        <translation>1 jízda</translation>
    </message>
    <message>
        <source>%1 of %2 runs</source>
        <translation>jízdy: %1 z %2</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Jméno</translation>
    </message>
    <message>
        <source>All phases</source>
        <translation>Všechny fáze</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Všechny kategorie</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n jízda</numerusform>
            <numerusform>%n jízdy</numerusform>
            <numerusform>%n jízd</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceKeeping</name>
    <message>
        <source>“%1” is open in another window</source>
        <translation>„%1“ je otevřeno v jiném okně</translation>
    </message>
    <message>
        <source>Save and close it there, then keep the table. Nothing was written.</source>
        <translation>Uložte a zavřete ho tam, pak tabulku uchovejte. Nic nebylo zapsáno.</translation>
    </message>
    <message>
        <source>Keeping the table with the race…</source>
        <translation>Uchovává se tabulka u závodu…</translation>
    </message>
    <message>
        <source>“%1” keeps a table already</source>
        <translation>„%1“ už jednu tabulku obsahuje</translation>
    </message>
    <message>
        <source>This one takes its place. The official results themselves stay.</source>
        <translation>Tato ji nahradí. Samotné oficiální výsledky zůstanou.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Nahradit</translation>
    </message>
    <message>
        <source>The table was not kept with “%1”</source>
        <translation>Tabulka nebyla u „%1“ uchována</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceView</name>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Jízda</translation>
    </message>
    <message>
        <source>I&amp;deal run</source>
        <translation>I&amp;deální jízda</translation>
    </message>
    <message>
        <source>Pote&amp;ntial</source>
        <translation>Pote&amp;nciál</translation>
    </message>
    <message>
        <source>&amp;Motion</source>
        <translation>Po&amp;hyb</translation>
    </message>
    <message>
        <source>Open it again</source>
        <translation>Otevřít znovu</translation>
    </message>
    <message>
        <source>gaps to the best</source>
        <translation>odstupy od nejlepšího</translation>
    </message>
    <message>
        <source>gaps to the median</source>
        <translation>odstupy od mediánu</translation>
    </message>
    <message>
        <source>gaps to %1</source>
        <translation>odstupy od %1</translation>
    </message>
    <message>
        <source>the ideal run</source>
        <translation>ideální jízdy</translation>
    </message>
    <message>
        <source>This course has %1 sections. The colours and the penalties in brackets are those of the first ten; place, gap and percent are there for all of them.</source>
        <translation>Tato trať má úseků: %1. Barvy a penalizace v závorkách jsou jen z prvních deseti; místo, odstup a procenta jsou u všech.</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Uložit tabulku</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Text oddělený středníky (*.csv)</translation>
    </message>
    <message>
        <source>The file on the disk is newer than what you see.</source>
        <translation>Soubor na disku je novější než to, co vidíte.</translation>
    </message>
    <message>
        <source>The file is not on the disk any more. What you see is what it held.</source>
        <translation>Soubor už na disku není. Vidíte to, co obsahoval.</translation>
    </message>
    <message>
        <source>All columns in the order of the course</source>
        <translation>Všechny sloupce v pořadí tratě</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceWindow</name>
    <message>
        <source>Split files</source>
        <translation>Soubory mezičasů</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Závody</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RacesSection</name>
    <message>
        <source>No runs yet: take them from the season&apos;s split files.</source>
        <translation>Zatím žádné jízdy: převezměte je ze souborů mezičasů sezóny.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; runs, &lt;b&gt;%2&lt;/b&gt; of them clean (%3 %)  ·  touches per run &lt;b&gt;%4&lt;/b&gt;  ·  missed gates per run &lt;b&gt;%5&lt;/b&gt;</source>
        <translation>jízd &lt;b&gt;%1&lt;/b&gt;, z toho čistých &lt;b&gt;%2&lt;/b&gt; (%3&#xa0;%)  ·  ťuků na jízdu &lt;b&gt;%4&lt;/b&gt;  ·  neprojetých branek na jízdu &lt;b&gt;%5&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Take from split files…</source>
        <translation>Převzít ze souborů mezičasů…</translation>
    </message>
    <message>
        <source>Races and penalties</source>
        <translation>Závody a penalizace</translation>
    </message>
    <message>
        <source>Choose &amp;files…</source>
        <translation>Vybrat so&amp;ubory…</translation>
    </message>
    <message>
        <source>Choose a f&amp;older…</source>
        <translation>Vybrat s&amp;ložku…</translation>
    </message>
    <message>
        <source>Files and folders can be dropped here too</source>
        <translation>Soubory a složky lze přetáhnout i sem</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RadioBox</name>
    <message>
        <source>Team radio</source>
        <translation>Týmová vysílačka</translation>
    </message>
    <message>
        <source>Records what you say about the run</source>
        <translation>Nahraje, co říkáte o jízdě</translation>
    </message>
    <message>
        <source>Plays the recording</source>
        <translation>Přehraje nahrávku</translation>
    </message>
    <message>
        <source>Attach…</source>
        <translation>Připojit…</translation>
    </message>
    <message>
        <source>Takes a sound file into the split file</source>
        <translation>Vezme zvukový soubor do souboru mezičasů</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Uložit jako…</translation>
    </message>
    <message>
        <source>Writes the recording into a file of its own</source>
        <translation>Zapíše nahrávku do vlastního souboru</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Dříve</translation>
    </message>
    <message>
        <source>Moves the recording up</source>
        <translation>Posune nahrávku výš</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Takes the recording out of the split file</source>
        <translation>Vyjme nahrávku ze souboru mezičasů</translation>
    </message>
    <message>
        <source>%1 · %2, %3</source>
        <translation>%1 · %2, %3</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zastavit</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Nahrát</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Přehrát</translation>
    </message>
    <message>
        <source>Recording, %1 s</source>
        <translation>Nahrává se, %1 s</translation>
    </message>
    <message>
        <source>Record what you say to the athlete, or attach a voice message.</source>
        <translation>Nahrajte, co závodníkovi říkáte, nebo připojte hlasovou zprávu.</translation>
    </message>
    <message>
        <source>This computer has no microphone that can be used.</source>
        <translation>Tento počítač nemá použitelný mikrofon.</translation>
    </message>
    <message>
        <source>The microphone gave no sound.</source>
        <translation>Mikrofon nedal žádný zvuk.</translation>
    </message>
    <message>
        <source>Attach a recording</source>
        <translation>Připojit nahrávku</translation>
    </message>
    <message>
        <source>Sounds (*.m4a *.mp3 *.wav *.aiff *.aif *.caf *.ogg *.opus *.flac *.aac *.amr);;All files (*)</source>
        <translation>Zvuky (*.m4a *.mp3 *.wav *.aiff *.aif *.caf *.ogg *.opus *.flac *.aac *.amr);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>%1 has %2: recordings up to %3 can be kept in a split file.</source>
        <translation>%1 má %2: v souboru mezičasů lze uchovat nahrávky do %3.</translation>
    </message>
    <message>
        <source>%1 cannot be played: %2</source>
        <translation>%1 nelze přehrát: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 nelze přečíst: %2</translation>
    </message>
    <message>
        <source>Recording %1 cannot be played: %2</source>
        <translation>Nahrávku %1 nelze přehrát: %2</translation>
    </message>
    <message>
        <source>recording %1</source>
        <translation>nahrávka %1</translation>
    </message>
    <message>
        <source>Save the recording</source>
        <translation>Uložit nahrávku</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RangeLine</name>
    <message>
        <source>Click to go there. Drag the ends of the coloured part to choose what the film shows; near a split they take it.</source>
        <translation>Kliknutím se tam přejde. Tažením konců barevné části zvolíte, co film ukáže; poblíž mezičasu se na něj přichytí.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RankingModel</name>
    <message>
        <source>%1 (was %2)</source>
        <translation>%1 (bylo %2)</translation>
    </message>
    <message>
        <source>was %1, now %2</source>
        <translation>bylo %1, nyní %2</translation>
    </message>
    <message>
        <source>A time of 0 counts as the formula says and puts the athlete far in front. Edit &gt; Make times of 0 missing results.</source>
        <translation>Čas 0 se počítá, jak říká vzorec, a posune závodníka daleko dopředu. Úpravy &gt; Z časů 0 udělat chybějící výsledky.</translation>
    </message>
    <message>
        <source>Dropped: the worst result</source>
        <translation>Škrtnuto: nejhorší výsledek</translation>
    </message>
    <message>
        <source>Dropped too: a bonus stands among the results</source>
        <translation>Také škrtnuto: mezi výsledky je bonus</translation>
    </message>
    <message>
        <source>Counted</source>
        <translation>Počítá se</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
    <message>
        <source>SURNAME Name</source>
        <translation>PŘÍJMENÍ Jméno</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Body</translation>
    </message>
    <message>
        <source>Bonus</source>
        <translation>Bonus</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Rok</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Klub</translation>
    </message>
    <message>
        <source>Pre</source>
        <translation>Předv.</translation>
    </message>
    <message>
        <source>correction</source>
        <translation>oprava</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Pen.</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Tried only. Really: %1</source>
        <translation>Jen zkouška. Ve skutečnosti: %1</translation>
    </message>
    <message>
        <source>no result</source>
        <translation>bez výsledku</translation>
    </message>
    <message>
        <source>Enter the time first: the penalty belongs to it.</source>
        <translation>Nejdřív zadejte čas: penalizace k němu patří.</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>penalizace</translation>
    </message>
    <message>
        <source>result removed</source>
        <translation>výsledek odstraněn</translation>
    </message>
    <message>
        <source>result</source>
        <translation>výsledek</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RankingPanel</name>
    <message>
        <source>entry of the ranking list</source>
        <translation>údaj žebříčku</translation>
    </message>
    <message>
        <source>removal from the ranking list</source>
        <translation>odstranění ze žebříčku</translation>
    </message>
    <message>
        <source>Take the season&apos;s statistics</source>
        <translation>Převzít statistiku sezóny</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Soubory mezičasů (*.kvx);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>There is no split file in it.</source>
        <translation>Není v tom žádný soubor mezičasů.</translation>
    </message>
    <message>
        <source>Reading split files…</source>
        <translation>Čtou se soubory mezičasů…</translation>
    </message>
    <message>
        <source>season statistics from split files</source>
        <translation>statistika sezóny ze souborů mezičasů</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RankingSection</name>
    <message>
        <source>Add a release</source>
        <translation>Přidat vydání</translation>
    </message>
    <message>
        <source>Remove the release</source>
        <translation>Odstranit vydání</translation>
    </message>
    <message>
        <source>Ranking list</source>
        <translation>Žebříček</translation>
    </message>
    <message>
        <source>Add release</source>
        <translation>Přidat vydání</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Vydání</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Body</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Pořadí</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RatesPanel</name>
    <message>
        <source>Passages</source>
        <translation>Průjezdy</translation>
    </message>
    <message>
        <source>Runs that came past</source>
        <translation>Jízdy, které tudy projely</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Ťuky</translation>
    </message>
    <message>
        <source>Rate %</source>
        <translation>Podíl %</translation>
    </message>
    <message>
        <source>Touches of 100 passages</source>
        <translation>Ťuky na 100 průjezdů</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#xa0;%</translation>
    </message>
    <message>
        <source>Where the rate lies with 90 %</source>
        <translation>Kde podíl leží s 90&#xa0;%</translation>
    </message>
    <message>
        <source>Ranked %</source>
        <translation>Vyhlaz. %</translation>
    </message>
    <message>
        <source>Drawn towards what all have in common, the more the fewer the passages</source>
        <translation>Přitažen k tomu, co mají všechny společné, tím víc, čím méně je průjezdů</translation>
    </message>
    <message>
        <source>Ranked 90 %</source>
        <translation>Vyhlaz. 90&#xa0;%</translation>
    </message>
    <message>
        <source>Where the ranked rate lies</source>
        <translation>Kde leží vyhlazený podíl</translation>
    </message>
    <message>
        <source>Above %</source>
        <translation>Nad %</translation>
    </message>
    <message>
        <source>The chance to be above what all have in common; from 95 the row is bold</source>
        <translation>Pravděpodobnost, že je nad společnou hodnotou; od 95 je řádek tučně</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Neprojeté</translation>
    </message>
    <message>
        <source>Missed gates</source>
        <translation>Neprojeté branky</translation>
    </message>
    <message>
        <source>Missed %</source>
        <translation>Neprojeté %</translation>
    </message>
    <message>
        <source>Missed 90 %</source>
        <translation>Neprojeté 90&#xa0;%</translation>
    </message>
    <message>
        <source>&amp;Rates</source>
        <translation>&amp;Podíly</translation>
    </message>
    <message>
        <source>No run that is asked for has its penalties by gate.</source>
        <translation>Žádná z hledaných jízd nemá penalizace po brankách.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ReadingProgress</name>
    <message>
        <source>Stop reading</source>
        <translation>Zastavit čtení</translation>
    </message>
    <message>
        <source>%1 of %2 files</source>
        <translation>soubory: %1 z %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordedSoundPlayer</name>
    <message>
        <source>This computer has no loudspeaker.</source>
        <translation>Tento počítač nemá reproduktor.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingDialog</name>
    <message>
        <source>The film begins %1 after the recording.</source>
        <translation>Film začíná %1 po záznamu.</translation>
    </message>
    <message>
        <source>The film begins %1 before the recording.</source>
        <translation>Film začíná %1 před záznamem.</translation>
    </message>
    <message>
        <source>Its clock gains %1 s in 100 s, which is taken out.</source>
        <translation>Jeho hodiny se předbíhají o %1 s za 100 s; to se opraví.</translation>
    </message>
    <message>
        <source>The recording is of another athlete and another day.</source>
        <translation>Záznam je jiného závodníka a z jiného dne.</translation>
    </message>
    <message>
        <source>The recording is of another athlete.</source>
        <translation>Záznam je jiného závodníka.</translation>
    </message>
    <message>
        <source>The recording is of another day.</source>
        <translation>Záznam je z jiného dne.</translation>
    </message>
    <message>
        <source>Recording of a run</source>
        <translation>Záznam jízdy</translation>
    </message>
    <message>
        <source>Choose a &amp;recording…</source>
        <translation>Vybrat &amp;záznam…</translation>
    </message>
    <message>
        <source>&amp;Attach the part of this run</source>
        <translation>&amp;Připojit část této jízdy</translation>
    </message>
    <message>
        <source>Take o&amp;ff what is attached</source>
        <translation>&amp;Odpojit, co je připojeno</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Common moment</source>
        <translation>Společný okamžik</translation>
    </message>
    <message>
        <source>A later one, against drift</source>
        <translation>Pozdější, proti rozcházení</translation>
    </message>
    <message>
        <source>From the film</source>
        <translation>Z filmu</translation>
    </message>
    <message>
        <source>From the chart</source>
        <translation>Z grafu</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vymazat</translation>
    </message>
    <message>
        <source>film %1</source>
        <translation>film %1</translation>
    </message>
    <message>
        <source>recording %1</source>
        <translation>nahrávka %1</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Čte se %1…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>„%1“ nelze otevřít</translation>
    </message>
    <message>
        <source>No recording yet</source>
        <translation>Zatím bez záznamu</translation>
    </message>
    <message>
        <source>Choose the recording (.kvb) of the run, or drop it here.</source>
        <translation>Vyberte záznam (.kvb) jízdy, nebo ho sem přetáhněte.</translation>
    </message>
    <message>
        <source>The boat&apos;s acceleration stands here.</source>
        <translation>Zde bude zrychlení lodi.</translation>
    </message>
    <message>
        <source>Find a moment that film and recording both show, such as the first stroke or a hit on the boat: go there in the film, click it in the chart, and set both.</source>
        <translation>Najděte okamžik, který ukazuje film i záznam, třeba první záběr nebo náraz do lodi: přejděte tam ve filmu, klikněte na něj v grafu a nastavte obojí.</translation>
    </message>
    <message>
        <source>Forward acceleration</source>
        <translation>Zrychlení vpřed</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Zrychlení</translation>
    </message>
    <message>
        <source>Yaw rate</source>
        <translation>Rychlost otáčení</translation>
    </message>
    <message>
        <source>film –</source>
        <translation>film –</translation>
    </message>
    <message>
        <source>recording –</source>
        <translation>záznam –</translation>
    </message>
    <message>
        <source>The run has to be marked first: its start and its splits.</source>
        <translation>Jízda musí být nejdřív označena: její start a mezičasy.</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Záznam: %1</translation>
    </message>
    <message>
        <source>Run: %1</source>
        <translation>Jízda: %1</translation>
    </message>
    <message>
        <source>Nothing of the recording lies within the run.</source>
        <translation>Nic ze záznamu neleží v jízdě.</translation>
    </message>
    <message>
        <source>The part of %1 is attached.</source>
        <translation>Připojena část: %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingList</name>
    <message>
        <source>%1 a second</source>
        <translation>%1 za sekundu</translation>
    </message>
    <message>
        <source>position</source>
        <translation>poloha</translation>
    </message>
    <message>
        <source>no position</source>
        <translation>bez polohy</translation>
    </message>
    <message>
        <source>heart</source>
        <translation>srdce</translation>
    </message>
    <message>
        <source>no heart</source>
        <translation>bez srdce</translation>
    </message>
    <message>
        <source>watch</source>
        <translation>hodinky</translation>
    </message>
    <message>
        <source>no watch</source>
        <translation>bez hodinek</translation>
    </message>
    <message>
        <source>looking for strokes…</source>
        <translation>hledají se záběry…</translation>
    </message>
    <message>
        <source>%1 strokes, %2 turns</source>
        <translation>záběrů %1, obratů %2</translation>
    </message>
    <message>
        <source>side unknown</source>
        <translation>strana neznámá</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Záznamy</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingOfRun</name>
    <message>
        <source>recording</source>
        <translation>záznam</translation>
    </message>
    <message>
        <source>recording taken off</source>
        <translation>záznam odpojen</translation>
    </message>
    <message>
        <source>Attach it all the same</source>
        <translation>Přesto připojit</translation>
    </message>
    <message>
        <source>Recording of the run</source>
        <translation>Záznam jízdy</translation>
    </message>
    <message>
        <source>Recordings (*.kvb);;All files (*)</source>
        <translation>Záznamy (*.kvb);;Všechny soubory (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingPanel</name>
    <message>
        <source>Found from the position</source>
        <translation>Zjištěno z polohy</translation>
    </message>
    <message>
        <source>Later b&amp;y</source>
        <translation>Později &amp;o</translation>
    </message>
    <message>
        <source>Drag a curve with Shift, or press A, to move it in time</source>
        <translation>Křivku posunete v čase tažením se Shift, nebo stiskem A</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>&amp;Mass in motion</source>
        <translation>&amp;Hmotnost v pohybu</translation>
    </message>
    <message>
        <source>Athlete, boat and kit</source>
        <translation>Závodník, loď a výstroj</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>&amp;Drag</source>
        <translation>O&amp;dpor</translation>
    </message>
    <message>
        <source>Resistance of the hull over the square of its speed</source>
        <translation>Odpor trupu na druhou mocninu jeho rychlosti</translation>
    </message>
    <message>
        <source>N·s²/m²</source>
        <translation>N·s²/m²</translation>
    </message>
    <message>
        <source>&amp;Boat</source>
        <translation>&amp;Loď</translation>
    </message>
    <message>
        <source>Kayak</source>
        <translation>Kajak</translation>
    </message>
    <message>
        <source>Canoe</source>
        <translation>Kánoe</translation>
    </message>
    <message>
        <source>P&amp;hone</source>
        <translation>&amp;Telefon</translation>
    </message>
    <message>
        <source>Which side of the phone points to the bow; used where the position does not tell</source>
        <translation>Která strana telefonu míří ke špičce; použije se, kde to neříká poloha</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RenameFilmsDialog</name>
    <message>
        <source>Now</source>
        <translation>Nyní</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Potom</translation>
    </message>
    <message>
        <source>stays</source>
        <translation>zůstává</translation>
    </message>
    <message>
        <source>stays: %1</source>
        <translation>zůstává: %1</translation>
    </message>
    <message>
        <source>Rename films</source>
        <translation>Přejmenovat filmy</translation>
    </message>
    <message>
        <source>How the films are to be called: {name}, {category}, {phase}, {bib} and {number} stand for what is known of each. Split files of the folder follow.</source>
        <translation>Jak se mají filmy jmenovat: {name}, {category}, {phase}, {bib} a {number} zastupují to, co se o každém ví. Soubory mezičasů složky se upraví také.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Přejmenovat</translation>
    </message>
    <message>
        <source>%1 of %2 films get another name.</source>
        <translation>Jiné jméno dostanou filmy: %1 z %2.</translation>
    </message>
    <message>
        <source>%1 lack what the pattern asks for.</source>
        <translation>Filmům chybí, co vzor žádá: %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RenderQueue</name>
    <message>
        <source>A film is still being composed.</source>
        <translation>Ještě se skládá jeden film.</translation>
    </message>
    <message>
        <source>Leaving the program stops that, and nothing of an unfinished film is kept.</source>
        <translation>Ukončením programu se to zastaví a z nedokončeného filmu nezůstane nic.</translation>
    </message>
    <message>
        <source>Stop and leave</source>
        <translation>Zastavit a ukončit</translation>
    </message>
    <message numerus="yes">
        <source>%n films are still being composed.</source>
        <translation>
            <numerusform>Ještě se skládá %n film.</numerusform>
            <numerusform>Ještě se skládají %n filmy.</numerusform>
            <numerusform>Ještě se skládá %n filmů.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ReplayBar</name>
    <message>
        <source>Place in the session</source>
        <translation>Místo v jednotce</translation>
    </message>
    <message>
        <source>Speed of the replay ([ slower, ] faster)</source>
        <translation>Rychlost přehrávání ([ pomaleji, ] rychleji)</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Pozastavit (mezerník)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Přehrát (mezerník)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ReportPreview</name>
    <message>
        <source>Save as PDF</source>
        <translation>Uložit jako PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Dokumenty PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Zpráva</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Menší</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Větší</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Na šířku</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Tisk…</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Uložit jako PDF…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>Žádné strany</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Strana %1 z %2</translation>
    </message>
    <message>
        <source>Preview – Kavela</source>
        <translation>Náhled – Kavela</translation>
    </message>
    <message>
        <source>%1, preview – Kavela</source>
        <translation>%1, náhled – Kavela</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Uloženo jako %1</translation>
    </message>
    <message>
        <source>Table as shown</source>
        <translation>Tabulka, jak je ukázána</translation>
    </message>
    <message>
        <source>Race report</source>
        <translation>Zpráva o závodě</translation>
    </message>
    <message>
        <source>Run sheet</source>
        <translation>List jízdy</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ResultsDialog</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Řádek %1: %2</translation>
    </message>
    <message>
        <source>Official results from %1</source>
        <translation>Oficiální výsledky z %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importovat</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Jízda</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Řádek</translation>
    </message>
    <message>
        <source>Type a part of the name for another line; an emptied cell stands for none</source>
        <translation>Pro jiný řádek napište část jména; prázdná buňka znamená žádný</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Real time now</source>
        <translation>Čistý čas nyní</translation>
    </message>
    <message>
        <source>No line</source>
        <translation>Žádný řádek</translation>
    </message>
    <message>
        <source>“%1” stands in %2 lines of the list: it must be in one.</source>
        <translation>„%1“ stojí v řádcích listiny: %2, musí být v jediném.</translation>
    </message>
    <message>
        <source>%1 lines come into the file. Real time and penalty are taken for %2 of %3 runs: those that are ticked.</source>
        <translation>Řádků, které přijdou do souboru: %1. Čistý čas a penalizace se převezmou pro %2 z %3 jízd: ty zaškrtnuté.</translation>
    </message>
    <message>
        <source>No line was found for %1. A part of the name, typed in the last column, chooses one.</source>
        <translation>Nenašel se řádek pro: %1. Vybere ho část jména napsaná v posledním sloupci.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ResultsPage</name>
    <message>
        <source>→ goes on</source>
        <translation>→ postupuje</translation>
    </message>
    <message>
        <source>out</source>
        <translation>vypadl(a)</translation>
    </message>
    <message>
        <source>★ wins</source>
        <translation>★ vítězí</translation>
    </message>
    <message>
        <source>⚠ Not finished: no order was taken.</source>
        <translation>⚠ Nedokončeno: nebylo zaznamenáno žádné pořadí.</translation>
    </message>
    <message>
        <source>⚠ Not finished. Gates without an order: %1.</source>
        <translation>⚠ Nedokončeno. Branky bez pořadí: %1.</translation>
    </message>
    <message>
        <source>⚠ Not all boats were seen at the last gate.</source>
        <translation>⚠ Na poslední brance nebyly vidět všechny lodě.</translation>
    </message>
    <message>
        <source>Gates without an order: %1.</source>
        <translation>Branky bez pořadí: %1.</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Finále</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finále</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Semifinále</translation>
    </message>
    <message>
        <source>Quarterfinals</source>
        <translation>Čtvrtfinále</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Kolo %1</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Loď</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Gained</source>
        <translation>Zisk</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Ztráta</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Výsledek</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Závodník</translation>
    </message>
    <message>
        <source>Attacks</source>
        <translation>Útoky</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>Úspěšné</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Úspěšnost</translation>
    </message>
    <message>
        <source>Attacked</source>
        <translation>Napaden(a)</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>Ubráněno</translation>
    </message>
    <message>
        <source>Defence</source>
        <translation>Obrana</translation>
    </message>
    <message>
        <source>not told</source>
        <translation>neuvedeno</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Kde</translation>
    </message>
    <message>
        <source>No results yet: they follow from the orders at the gates that are taken on the page of heats.</source>
        <translation>Zatím žádné výsledky: plynou z pořadí na brankách, která se zaznamenávají na stránce rozjížděk.</translation>
    </message>
    <message>
        <source>Attacks and defences</source>
        <translation>Útoky a obrany</translation>
    </message>
    <message>
        <source>Where attacks succeed</source>
        <translation>Kde se útoky daří</translation>
    </message>
    <message>
        <source>Heat %1</source>
        <translation>Rozjížďka %1</translation>
    </message>
    <message>
        <source>Shows the heat on its film</source>
        <translation>Ukáže rozjížďku na jejím filmu</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ResultsView</name>
    <message>
        <source>Nobody is in the team yet. Add the first athlete with Ctrl+N.</source>
        <translation>V týmu zatím nikdo není. Přidejte prvního závodníka pomocí Ctrl+N.</translation>
    </message>
    <message>
        <source>No athlete fits the search.</source>
        <translation>Hledání neodpovídá žádný závodník.</translation>
    </message>
    <message>
        <source>Choose the boat %1 races in: menu Team, “Add a category”.</source>
        <translation>Zvolte loď, na které závodí %1: nabídka Tým, „Přidat kategorii“.</translation>
    </message>
    <message>
        <source>Add the first season with Ctrl+Shift+N, or drop a split file or a list of results here to take results over.</source>
        <translation>První sezónu přidejte pomocí Ctrl+Shift+N, nebo sem přetáhněte soubor mezičasů či výsledkovou listinu.</translation>
    </message>
    <message>
        <source>The first two seasons (✓) count for the categorization. Alt+Up, Alt+Down or dragging changes the order.</source>
        <translation>Do kategorizace se počítají první dvě sezóny (✓). Pořadí změní Alt+Nahoru, Alt+Dolů nebo tažení.</translation>
    </message>
    <message>
        <source>Choose a race to see and edit its runs.</source>
        <translation>Vyberte závod a uvidíte a upravíte jeho jízdy.</translation>
    </message>
    <message>
        <source>new season</source>
        <translation>nová sezóna</translation>
    </message>
    <message>
        <source>new race</source>
        <translation>nový závod</translation>
    </message>
    <message>
        <source>order of the seasons</source>
        <translation>pořadí sezón</translation>
    </message>
    <message>
        <source>order of the races</source>
        <translation>pořadí závodů</translation>
    </message>
    <message>
        <source>removal of a race</source>
        <translation>odstranění závodu</translation>
    </message>
    <message>
        <source>removal of a season</source>
        <translation>odstranění sezóny</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RollForm</name>
    <message>
        <source>Part of the roll</source>
        <translation>Část eskymáku</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Eskymák</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Styl</translation>
    </message>
    <message>
        <source>Going over</source>
        <translation>Převracení</translation>
    </message>
    <message>
        <source>Coming up</source>
        <translation>Zvedání</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Celkem</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RowModel</name>
    <message>
        <source>yes</source>
        <translation>ano</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunChooser</name>
    <message>
        <source>1 run</source>
        <translation>1 jízda</translation>
    </message>
    <message>
        <source>Compare with a run of another race</source>
        <translation>Porovnat s jízdou jiného závodu</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Porovnat</translation>
    </message>
    <message>
        <source>&amp;Race</source>
        <translation>&amp;Závod</translation>
    </message>
    <message>
        <source>&amp;Other file…</source>
        <translation>Jiný &amp;soubor…</translation>
    </message>
    <message>
        <source>R&amp;un</source>
        <translation>&amp;Jízda</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Jméno</translation>
    </message>
    <message>
        <source>No other race lies in this folder.
Choose a file.</source>
        <translation>V této složce není jiný závod.
Vyberte soubor.</translation>
    </message>
    <message>
        <source>not a race</source>
        <translation>není závod</translation>
    </message>
    <message>
        <source>Open a race</source>
        <translation>Otevřít závod</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Soubory mezičasů (*.kvx);;Všechny soubory (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n jízda</numerusform>
            <numerusform>%n jízdy</numerusform>
            <numerusform>%n jízd</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunFilms</name>
    <message>
        <source>Import videos with Ctrl+I, or drop a folder of videos here.</source>
        <translation>Videa importujte pomocí Ctrl+I, nebo sem přetáhněte složku videí.</translation>
    </message>
    <message>
        <source>%1 is not in the folder of the split file.</source>
        <translation>%1 není ve složce souboru mezičasů.</translation>
    </message>
    <message>
        <source>All films are found</source>
        <translation>Všechny filmy nalezeny</translation>
    </message>
    <message>
        <source>%1 of %2 films are there. Not found: %3.</source>
        <translation>Na místě jsou filmy: %1 z %2. Nenalezeno: %3.</translation>
    </message>
    <message>
        <source>Import video</source>
        <translation>Import videa</translation>
    </message>
    <message>
        <source>Add another camera of this run</source>
        <translation>Přidat další kameru této jízdy</translation>
    </message>
    <message>
        <source>camera added</source>
        <translation>kamera přidána</translation>
    </message>
    <message>
        <source>Attach the film of a fixed camera</source>
        <translation>Připojit film pevné kamery</translation>
    </message>
    <message>
        <source>fixed camera attached</source>
        <translation>pevná kamera připojena</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunForm</name>
    <message>
        <source>A comma and minutes, such as 1:32,34, are taken too</source>
        <translation>Přijme se i čárka a minuty, třeba 1:32,34</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Posádka</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Ruka</translation>
    </message>
    <message>
        <source>Real time</source>
        <translation>Čistý čas</translation>
    </message>
    <message>
        <source>Real penalty</source>
        <translation>Skutečná penalizace</translation>
    </message>
    <message>
        <source>Sprint</source>
        <translation>Sprint</translation>
    </message>
    <message>
        <source>sprint time</source>
        <translation>čas sprintu</translation>
    </message>
    <message>
        <source>Total %1 s,</source>
        <translation>Celkem %1 s,</translation>
    </message>
    <message>
        <source>penalties %1 s</source>
        <translation>penalizace %1 s</translation>
    </message>
    <message>
        <source>Expected %1 s</source>
        <translation>Očekáváno %1 s</translation>
    </message>
    <message>
        <source>Perfect time %1 s</source>
        <translation>Perfektní čas %1 s</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunPanel</name>
    <message>
        <source>A clean run.</source>
        <translation>Čistá jízda.</translation>
    </message>
    <message>
        <source>Touched: gate %1.</source>
        <translation>Ťuk: branka %1.</translation>
    </message>
    <message>
        <source>Missed: gate %1.</source>
        <translation>Neprojeto: branka %1.</translation>
    </message>
    <message>
        <source>To best</source>
        <translation>Na nejl.</translation>
    </message>
    <message>
        <source>Select a run to see its sections. Select two to compare them.</source>
        <translation>Vyberte jízdu a uvidíte její úseky. Vyberte dvě a porovnáte je.</translation>
    </message>
    <message>
        <source> against %1</source>
        <translation> proti: %1</translation>
    </message>
    <message>
        <source>penalties %1 s</source>
        <translation>penalizace %1 s</translation>
    </message>
    <message>
        <source>Total %1 s,</source>
        <translation>Celkem %1 s,</translation>
    </message>
    <message>
        <source>Total –,</source>
        <translation>Celkem –,</translation>
    </message>
    <message>
        <source>Real %1 s,</source>
        <translation>Čistý %1 s,</translation>
    </message>
    <message>
        <source>Expected %1 s</source>
        <translation>Očekáváno %1 s</translation>
    </message>
    <message>
        <source>Best own sections %1 s</source>
        <translation>Nejlepší vlastní úseky %1 s</translation>
    </message>
    <message>
        <source>A time must be above 0. Check the marks of this run.</source>
        <translation>Čas musí být větší než 0. Zkontrolujte značky této jízdy.</translation>
    </message>
    <message>
        <source>Not the whole course</source>
        <translation>Ne celá trať</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Odstup</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Úsek</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Pen.</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Místo</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunPicker</name>
    <message>
        <source>Run</source>
        <translation>Jízda</translation>
    </message>
    <message>
        <source>Type any part of a name, phase, category or race</source>
        <translation>Napište libovolnou část jména, fáze, kategorie nebo závodu</translation>
    </message>
    <message>
        <source>Find a run</source>
        <translation>Najít jízdu</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunsToEnter</name>
    <message>
        <source>perhaps %1?</source>
        <translation>snad %1?</translation>
    </message>
    <message>
        <source>another run is better</source>
        <translation>lepší je jiná jízda</translation>
    </message>
    <message>
        <source>; xTime %1 stays</source>
        <translation>; xTime %1 zůstává</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>řádek %1</translation>
    </message>
    <message>
        <source>(no run)</source>
        <translation>(žádná jízda)</translation>
    </message>
    <message>
        <source>has no result in this race</source>
        <translation>nemá v tomto závodě výsledek</translation>
    </message>
    <message>
        <source>no result</source>
        <translation>bez výsledku</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(řádek %1)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunsToEnter::Outcome</name>
    <message>
        <source>place %1</source>
        <translation>místo %1</translation>
    </message>
    <message>
        <source>place %1, was %2</source>
        <translation>místo %1, bylo %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SearchPlaces</name>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Folders and files that are searched</source>
        <translation>Složky a soubory, které se prohledávají</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Přidat složku…</translation>
    </message>
    <message>
        <source>The chosen folder or file is not searched any more</source>
        <translation>Zvolená složka nebo soubor se už neprohledává</translation>
    </message>
    <message>
        <source>⚠ One could not be read…</source>
        <translation>⚠ Jeden nelze přečíst…</translation>
    </message>
    <message>
        <source>Search a folder</source>
        <translation>Prohledat složku</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>Prohledat soubory</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Soubory mezičasů (*.kvx);;Všechny soubory (*)</translation>
    </message>
    <message numerus="yes">
        <source>⚠ %n could not be read…</source>
        <translation>
            <numerusform>⚠ %n nelze přečíst…</numerusform>
            <numerusform>⚠ %n nelze přečíst…</numerusform>
            <numerusform>⚠ %n nelze přečíst…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonActions</name>
    <message>
        <source>Athletes</source>
        <translation>Závodníci</translation>
    </message>
    <message>
        <source>&amp;Open a team…</source>
        <translation>Ot&amp;evřít tým…</translation>
    </message>
    <message>
        <source>Add &amp;split files…</source>
        <translation>Přidat soubory &amp;mezičasů…</translation>
    </message>
    <message>
        <source>Add a &amp;folder of races…</source>
        <translation>Přidat &amp;složku závodů…</translation>
    </message>
    <message>
        <source>Read &amp;again</source>
        <translation>N&amp;ačíst znovu</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>Zastavit čte&amp;ní</translation>
    </message>
    <message>
        <source>Files that could not be rea&amp;d…</source>
        <translation>Soubory, které nelze &amp;přečíst…</translation>
    </message>
    <message>
        <source>&amp;Reports to look at and print…</source>
        <translation>Zprávy k pro&amp;hlédnutí a tisku…</translation>
    </message>
    <message>
        <source>Report of the &amp;athlete as PDF…</source>
        <translation>Zpráva o závodníkovi &amp;jako PDF…</translation>
    </message>
    <message>
        <source>Report of the tea&amp;m as PDF…</source>
        <translation>Zpráva o týmu jako PD&amp;F…</translation>
    </message>
    <message>
        <source>Save the tab&amp;le as CSV…</source>
        <translation>Uložit tabulku jako &amp;CSV…</translation>
    </message>
    <message>
        <source>Save the &amp;chart…</source>
        <translation>Uložit &amp;graf…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Ukázat</translation>
    </message>
    <message>
        <source>&amp;Progression</source>
        <translation>&amp;Vývoj</translation>
    </message>
    <message>
        <source>P&amp;hases</source>
        <translation>&amp;Fáze</translation>
    </message>
    <message>
        <source>&amp;Spread</source>
        <translation>&amp;Rozptyl</translation>
    </message>
    <message>
        <source>&amp;Trend</source>
        <translation>&amp;Trend</translation>
    </message>
    <message>
        <source>Head to h&amp;ead</source>
        <translation>Vzájemné so&amp;uboje</translation>
    </message>
    <message>
        <source>&amp;Medals and finals</source>
        <translation>&amp;Medaile a finále</translation>
    </message>
    <message>
        <source>E&amp;xpected places</source>
        <translation>&amp;Očekávaná místa</translation>
    </message>
    <message>
        <source>&amp;What it takes</source>
        <translation>Co &amp;je třeba</translation>
    </message>
    <message>
        <source>&amp;Athletes</source>
        <translation>Závodní&amp;ci</translation>
    </message>
    <message>
        <source>The who&amp;le chart</source>
        <translation>Celý &amp;graf</translation>
    </message>
    <message>
        <source>Athl&amp;ete</source>
        <translation>&amp;Závodník</translation>
    </message>
    <message>
        <source>The &amp;next athlete</source>
        <translation>&amp;Další závodník</translation>
    </message>
    <message>
        <source>The athlete &amp;before</source>
        <translation>&amp;Předchozí závodník</translation>
    </message>
    <message>
        <source>&amp;Show the athlete of the row</source>
        <translation>&amp;Ukázat závodníka z řádku</translation>
    </message>
    <message>
        <source>Expect the places of a &amp;field…</source>
        <translation>Odhadnout místa &amp;startovního pole…</translation>
    </message>
    <message>
        <source>Pa&amp;ge for an athlete…</source>
        <translation>Stránka pro &amp;závodníka…</translation>
    </message>
    <message>
        <source>Only the athlete&apos;s &amp;own races</source>
        <translation>Jen &amp;vlastní závody závodníka</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonHeader</name>
    <message>
        <source>Add the races…</source>
        <translation>Přidat závody…</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>Ka&amp;tegorie</translation>
    </message>
    <message>
        <source>&amp;Years</source>
        <translation>&amp;Roky</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>Záv&amp;odník</translation>
    </message>
    <message>
        <source>Only &amp;own races</source>
        <translation>Jen &amp;vlastní závody</translation>
    </message>
    <message>
        <source>Only races in which this athlete starts, in whichever phase; on every page</source>
        <translation>Jen závody, ve kterých tento závodník startuje, v kterékoli fázi; na každé stránce</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonModel</name>
    <message>
        <source>✓ counts</source>
        <translation>✓ počítá se</translation>
    </message>
    <message>
        <source>The first two seasons count for the categorization. Move a season by dragging it, or with Alt+Up and Alt+Down.</source>
        <translation>Do kategorizace se počítají první dvě sezóny. Sezónu posunete tažením, nebo pomocí Alt+Nahoru a Alt+Dolů.</translation>
    </message>
    <message>
        <source>Final classification of the race</source>
        <translation>Konečné pořadí závodu</translation>
    </message>
    <message>
        <source>Position in the ICF world ranking at the end of the season</source>
        <translation>Pořadí ve světovém žebříčku ICF na konci sezóny</translation>
    </message>
    <message>
        <source>Points in the ICF world ranking</source>
        <translation>Body ve světovém žebříčku ICF</translation>
    </message>
    <message>
        <source>Season, race</source>
        <translation>Sezóna, závod</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Místo konání</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Pořadí</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Body</translation>
    </message>
    <message>
        <source>ICF ranking position</source>
        <translation>Pořadí v žebříčku ICF</translation>
    </message>
    <message>
        <source>ICF ranking points</source>
        <translation>Body v žebříčku ICF</translation>
    </message>
    <message>
        <source>There is a season %1 already.</source>
        <translation>Sezóna %1 už existuje.</translation>
    </message>
    <message>
        <source>year</source>
        <translation>rok</translation>
    </message>
    <message>
        <source>final position</source>
        <translation>konečné pořadí</translation>
    </message>
    <message>
        <source>“%1” is none of the events.</source>
        <translation>„%1“ není žádná z akcí.</translation>
    </message>
    <message>
        <source>event</source>
        <translation>akce</translation>
    </message>
    <message>
        <source>location</source>
        <translation>místo konání</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonPage</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 až %2</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>příliš málo</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>neznámo</translation>
    </message>
    <message>
        <source>No whole run of this athlete can be held against the reference.</source>
        <translation>Žádnou úplnou jízdu tohoto závodníka nelze porovnat s referencí.</translation>
    </message>
    <message>
        <source>Nothing stands out: there is no clip to choose.</source>
        <translation>Nic nevyčnívá: není klip k výběru.</translation>
    </message>
    <message>
        <source>&amp;Show this run</source>
        <translation>&amp;Ukázat tuto jízdu</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Podle</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Jízdy</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Ztráta</translation>
    </message>
    <message>
        <source>Seconds, of all runs together</source>
        <translation>Sekundy, ze všech jízd dohromady</translation>
    </message>
    <message>
        <source>Lost, %</source>
        <translation>Ztráta, %</translation>
    </message>
    <message>
        <source>Of the reference&apos;s time there</source>
        <translation>Z času reference v tom místě</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#xa0;%</translation>
    </message>
    <message>
        <source>A run</source>
        <translation>Na jízdu</translation>
    </message>
    <message>
        <source>Seconds lost in a run on the average</source>
        <translation>Sekundy ztracené v jízdě, v průměru</translation>
    </message>
    <message>
        <source>Of the gap, %</source>
        <translation>Z odstupu, %</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Verdikt</translation>
    </message>
    <message>
        <source>What the interval says: losing where all of it is above 0</source>
        <translation>Co říká interval: ztráta je tam, kde je celý nad 0</translation>
    </message>
    <message>
        <source>See</source>
        <translation>Viz</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Jízda</translation>
    </message>
    <message>
        <source>Open a folder of races to see an athlete&apos;s season.</source>
        <translation>Otevřete složku závodů a uvidíte sezónu závodníka.</translation>
    </message>
    <message>
        <source>%1: no whole run in %2 files can be held against the %3.</source>
        <translation>%1: žádnou úplnou jízdu v souborech (%2) nelze porovnat; reference: %3.</translation>
    </message>
    <message>
        <source>%1 on %2: %3 in %4; gap a run %5, penalties %6</source>
        <translation>%1, reference: %2: %3 (%4); odstup na jízdu %5, penalizace %6</translation>
    </message>
    <message>
        <source>one whole run</source>
        <translation>jedna úplná jízda</translation>
    </message>
    <message>
        <source>one file</source>
        <translation>jeden soubor</translation>
    </message>
    <message>
        <source>Train: nothing stands out from these runs.</source>
        <translation>Trénovat: z těchto jízd nic nevyčnívá.</translation>
    </message>
    <message>
        <source>%1. %2: %3, %4 s a run</source>
        <translation>%1. %2: %3, %4 s na jízdu</translation>
    </message>
    <message>
        <source>Train:</source>
        <translation>Trénovat:</translation>
    </message>
    <message>
        <source>gate %1</source>
        <translation>branka %1</translation>
    </message>
    <message numerus="yes">
        <source>%n whole runs</source>
        <translation>
            <numerusform>%n úplná jízda</numerusform>
            <numerusform>%n úplné jízdy</numerusform>
            <numerusform>%n úplných jízd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n soubor</numerusform>
            <numerusform>%n soubory</numerusform>
            <numerusform>%n souborů</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonPages</name>
    <message>
        <source>Progression</source>
        <translation>Vývoj</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>From which phase to which</source>
        <translation>Ze které fáze do které</translation>
    </message>
    <message>
        <source>Run 1 to run 2 of the heats</source>
        <translation>1. až 2. kvalifikační jízda</translation>
    </message>
    <message>
        <source>Semifinal to final</source>
        <translation>Semifinále až finále</translation>
    </message>
    <message>
        <source>Heats to final, percent behind</source>
        <translation>Kvalifikace až finále, procenta ztráty</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Rozptyl</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>Behind whom</source>
        <translation>Za kým</translation>
    </message>
    <message>
        <source>Behind the winners</source>
        <translation>Za vítězi</translation>
    </message>
    <message>
        <source>Behind the fastest splits</source>
        <translation>Za nejrychlejšími mezičasy</translation>
    </message>
    <message>
        <source>Head to head</source>
        <translation>Vzájemné souboje</translation>
    </message>
    <message>
        <source>Medals and finals</source>
        <translation>Medaile a finále</translation>
    </message>
    <message>
        <source>How far</source>
        <translation>Jak daleko</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Medaile</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finále</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Semifinále</translation>
    </message>
    <message>
        <source>Expected places</source>
        <translation>Očekávaná místa</translation>
    </message>
    <message>
        <source>What it takes</source>
        <translation>Co je třeba</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Závodníci</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonReports</name>
    <message>
        <source>The team</source>
        <translation>Tým</translation>
    </message>
    <message>
        <source>Save the report of %1</source>
        <translation>Uložit zprávu: %1</translation>
    </message>
    <message>
        <source>Save the report of the team</source>
        <translation>Uložit zprávu o týmu</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Dokumenty PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The report cannot be written over a file that it is made from.</source>
        <translation>Zprávu nelze zapsat přes soubor, ze kterého vzniká.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonWindow</name>
    <message>
        <source>Season</source>
        <translation>Sezóna</translation>
    </message>
    <message>
        <source>Drop a team (.kvteam) and the folder of its races here</source>
        <translation>Přetáhněte sem tým (.kvteam) a složku jeho závodů</translation>
    </message>
    <message>
        <source>Open a team…</source>
        <translation>Otevřít tým…</translation>
    </message>
    <message>
        <source>Add a folder of races…</source>
        <translation>Přidat složku závodů…</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Uloženo %1</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translation>Zapisuje se %1…</translation>
    </message>
    <message>
        <source>Open a team</source>
        <translation>Otevřít tým</translation>
    </message>
    <message>
        <source>Teams (*.kvteam);;All files (*)</source>
        <translation>Týmy (*.kvteam);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Add split files</source>
        <translation>Přidat soubory mezičasů</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Soubory mezičasů (*.kvx);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Add a folder of races</source>
        <translation>Přidat složku závodů</translation>
    </message>
    <message>
        <source>Whose places to expect</source>
        <translation>Čí místa odhadnout</translation>
    </message>
    <message>
        <source>A name a line, as a start list has them. Nothing for the team and those who raced most often.</source>
        <translation>Jméno na řádek, jako ve startovní listině. Nic znamená tým a ty, kdo závodili nejčastěji.</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>%1 nelze přečíst: %2</translation>
    </message>
    <message>
        <source>How every athlete of a team stands over the seasons: behind the winners, against rivals, and against chance. Files are only read.</source>
        <translation>Jak je na tom každý závodník týmu v průběhu sezón: proti vítězům, soupeřům i náhodě. Soubory se jen čtou.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Čte se…</translation>
    </message>
    <message>
        <source>Nobody of this team races in any category yet.</source>
        <translation>Nikdo z tohoto týmu zatím nezávodí v žádné kategorii.</translation>
    </message>
    <message>
        <source>No split files: winners and rivals are the team&apos;s own</source>
        <translation>Bez souborů mezičasů: vítězové a soupeři jsou jen z týmu</translation>
    </message>
    <message>
        <source>Races from 1 split file</source>
        <translation>Závody z 1 souboru mezičasů</translation>
    </message>
    <message>
        <source>1 run compared</source>
        <translation>porovnána 1 jízda</translation>
    </message>
    <message>
        <source>several athletes are called %1: their runs cannot be told apart</source>
        <translation>jméno %1 má více závodníků: jejich jízdy nelze rozlišit</translation>
    </message>
    <message>
        <source>nobody in these races is called %1</source>
        <translation>v těchto závodech se nikdo nejmenuje %1</translation>
    </message>
    <message>
        <source>too few runs to expect a place of %1 of the field</source>
        <translation>na odhad místa je příliš málo jízd: %1 z pole</translation>
    </message>
    <message>
        <source>the team could not be read again: %1</source>
        <translation>tým nelze znovu přečíst: %1</translation>
    </message>
    <message numerus="yes">
        <source>Races from %n split files</source>
        <translation>
            <numerusform>Závody z %n souboru mezičasů</numerusform>
            <numerusform>Závody ze %n souborů mezičasů</numerusform>
            <numerusform>Závody z %n souborů mezičasů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n runs compared</source>
        <translation>
            <numerusform>porovnána %n jízda</numerusform>
            <numerusform>porovnány %n jízdy</numerusform>
            <numerusform>porovnáno %n jízd</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SectionChart</name>
    <message>
        <source>Box</source>
        <translation>Krabice</translation>
    </message>
    <message>
        <source>Quartiles, and the runs far from them</source>
        <translation>Kvartily a jízdy daleko od nich</translation>
    </message>
    <message>
        <source>Strip</source>
        <translation>Pruh</translation>
    </message>
    <message>
        <source>A dot for every run</source>
        <translation>Bod za každou jízdu</translation>
    </message>
    <message>
        <source>Behind best</source>
        <translation>Za nejlepším</translation>
    </message>
    <message>
        <source>Seconds behind the best of the section</source>
        <translation>Sekundy za nejlepším v úseku</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Seconds in the section</source>
        <translation>Sekundy v úseku</translation>
    </message>
    <message>
        <source>No section has been timed yet.</source>
        <translation>Žádný úsek zatím není změřen.</translation>
    </message>
    <message>
        <source>Seconds in each section</source>
        <translation>Sekundy v každém úseku</translation>
    </message>
    <message>
        <source>Seconds behind the best of each section</source>
        <translation>Sekundy za nejlepším v každém úseku</translation>
    </message>
    <message>
        <source>Times of %1 by section</source>
        <translation>Časy po úsecích: %1</translation>
    </message>
    <message>
        <source>, penalties included</source>
        <translation>, včetně penalizace</translation>
    </message>
    <message>
        <source>← slower      faster →</source>
        <translation>← pomaleji      rychleji →</translation>
    </message>
    <message>
        <source>Not timed</source>
        <translation>Nezměřeno</translation>
    </message>
    <message>
        <source>Quarter of the runs under</source>
        <translation>Čtvrtina jízd pod</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Medián</translation>
    </message>
    <message>
        <source>Quarter of the runs over</source>
        <translation>Čtvrtina jízd nad</translation>
    </message>
    <message>
        <source>Slowest</source>
        <translation>Nejpomalejší</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Jízdy</translation>
    </message>
    <message>
        <source>Behind the best</source>
        <translation>Za nejlepším</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Úsek</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Fastest</source>
        <translation>Nejrychlejší</translation>
    </message>
    <message>
        <source>Lower quartile</source>
        <translation>Dolní kvartil</translation>
    </message>
    <message>
        <source>Upper quartile</source>
        <translation>Horní kvartil</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Úseky</translation>
    </message>
    <message>
        <source>Distribution of the times of each section</source>
        <translation>Rozložení časů v každém úseku</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SectionForm</name>
    <message>
        <source>Turns</source>
        <translation>Obraty</translation>
    </message>
    <message>
        <source>Turn %1</source>
        <translation>Obrat %1</translation>
    </message>
    <message>
        <source>Stretch %1</source>
        <translation>Část %1</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Kolo %1</translation>
    </message>
    <message>
        <source>La&amp;ps</source>
        <translation>&amp;Kola</translation>
    </message>
    <message>
        <source>number of laps</source>
        <translation>počet kol</translation>
    </message>
    <message>
        <source>Distance between the &amp;gates</source>
        <translation>Vzdálenost mezi &amp;brankami</translation>
    </message>
    <message>
        <source>distance</source>
        <translation>vzdálenost</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Turn li&amp;mit</source>
        <translation>&amp;Mez obratu</translation>
    </message>
    <message>
        <source>A faster rotation of the boat is a turn, a slower one straight paddling</source>
        <translation>Rychlejší otáčení lodi je obrat, pomalejší rovná jízda</translation>
    </message>
    <message>
        <source>rad/s</source>
        <translation>rad/s</translation>
    </message>
    <message>
        <source>Told by the strokes that were recorded</source>
        <translation>Plyne ze zaznamenaných záběrů</translation>
    </message>
    <message>
        <source>Time
(s)</source>
        <translation>Čas
(s)</translation>
    </message>
    <message>
        <source>Straight
(s)</source>
        <translation>Rovně
(s)</translation>
    </message>
    <message>
        <source>Rotation
(s)</source>
        <translation>Otáčení
(s)</translation>
    </message>
    <message>
        <source>Speed
(m/s)</source>
        <translation>Rychlost
(m/s)</translation>
    </message>
    <message>
        <source>Follows from distance and time until it is typed</source>
        <translation>Plyne ze vzdálenosti a času, dokud se nenapíše</translation>
    </message>
    <message>
        <source>Stroke rate
(1/min)</source>
        <translation>Frekvence
(1/min)</translation>
    </message>
    <message>
        <source>Efficiency
(m/stroke)</source>
        <translation>Účinnost
(m/záběr)</translation>
    </message>
    <message>
        <source>Follows from speed and stroke rate until typed</source>
        <translation>Plyne z rychlosti a frekvence záběrů, dokud se nenapíše</translation>
    </message>
    <message>
        <source>Left
(rad/s)</source>
        <translation>Vlevo
(rad/s)</translation>
    </message>
    <message>
        <source>Left
(s)</source>
        <translation>Vlevo
(s)</translation>
    </message>
    <message>
        <source>Right
(rad/s)</source>
        <translation>Vpravo
(rad/s)</translation>
    </message>
    <message>
        <source>Right
(s)</source>
        <translation>Vpravo
(s)</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Úseky</translation>
    </message>
    <message>
        <source>The time in straight line is part of the time of its section: it cannot be longer.</source>
        <translation>Čas rovné jízdy je částí času svého úseku: nemůže být delší.</translation>
    </message>
    <message>
        <source>section %1</source>
        <translation>úsek %1</translation>
    </message>
    <message>
        <source>turn %1</source>
        <translation>obrat %1</translation>
    </message>
    <message>
        <source>Total: %1 s</source>
        <translation>Celkem: %1 s</translation>
    </message>
    <message>
        <source>Total: – · %1 of %2 sections are timed</source>
        <translation>Celkem: – · změřené úseky: %1 z %2</translation>
    </message>
    <message>
        <source> · %1 strokes recorded</source>
        <translation> · zaznamenané záběry: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionDocument</name>
    <message>
        <source>1 race</source>
        <translation>1 závod</translation>
    </message>
    <message numerus="yes">
        <source>%n races</source>
        <translation>
            <numerusform>%n závod</numerusform>
            <numerusform>%n závody</numerusform>
            <numerusform>%n závodů</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionEdits</name>
    <message>
        <source>Race</source>
        <translation>Závod</translation>
    </message>
    <message>
        <source>Race location</source>
        <translation>Místo závodu</translation>
    </message>
    <message>
        <source>race added</source>
        <translation>závod přidán</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Rename which race?</source>
        <translation>Který závod přejmenovat?</translation>
    </message>
    <message>
        <source>race renamed</source>
        <translation>závod přejmenován</translation>
    </message>
    <message>
        <source>Remove which race?</source>
        <translation>Který závod odstranit?</translation>
    </message>
    <message>
        <source>race removed</source>
        <translation>závod odstraněn</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Category of the athletes</source>
        <translation>Kategorie závodníků</translation>
    </message>
    <message>
        <source>category added</source>
        <translation>kategorie přidána</translation>
    </message>
    <message>
        <source>Add a category first.</source>
        <translation>Nejdřív přidejte kategorii.</translation>
    </message>
    <message>
        <source>%1 is in this category already.</source>
        <translation>%1 už v této kategorii je.</translation>
    </message>
    <message>
        <source>athlete added</source>
        <translation>závodník přidán</translation>
    </message>
    <message>
        <source>athlete</source>
        <translation>závodník</translation>
    </message>
    <message>
        <source>athlete removed</source>
        <translation>závodník odstraněn</translation>
    </message>
    <message>
        <source>times of 0</source>
        <translation>časy 0</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionTakeOverDialog</name>
    <message>
        <source>Results of %1</source>
        <translation>Výsledky: %1</translation>
    </message>
    <message>
        <source>&amp;Take over</source>
        <translation>&amp;Převzít</translation>
    </message>
    <message>
        <source>Athletes who get a result: %1, of them new in the selection: %2. Without a result then: %3. Runs and lines that stay out: %4. A click on an athlete chooses another one, or adds the name to the selection.</source>
        <translation>Závodníci, kteří dostanou výsledek: %1, z toho v nominaci nových: %2. Bez výsledku pak: %3. Jízdy a řádky, které zůstanou mimo: %4. Kliknutí na závodníka vybere jiného, nebo přidá jméno do nominace.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionWindow</name>
    <message>
        <source>Selection races</source>
        <translation>Nominační závody</translation>
    </message>
    <message>
        <source>Copy the table</source>
        <translation>Kopírovat tabulku</translation>
    </message>
    <message>
        <source>&amp;Reports: preview, PDF, print…</source>
        <translation>Zprávy: náhled, &amp;PDF, tisk…</translation>
    </message>
    <message>
        <source>Make times of 0 &amp;missing results</source>
        <translation>Z časů 0 udělat &amp;chybějící výsledky</translation>
    </message>
    <message>
        <source>&amp;Copy the table</source>
        <translation>Kopírovat ta&amp;bulku</translation>
    </message>
    <message>
        <source>&amp;What if</source>
        <translation>Co kd&amp;yby</translation>
    </message>
    <message>
        <source>&amp;Races</source>
        <translation>&amp;Závody</translation>
    </message>
    <message>
        <source>&amp;Add a race…</source>
        <translation>&amp;Přidat závod…</translation>
    </message>
    <message>
        <source>&amp;Rename a race…</source>
        <translation>Přej&amp;menovat závod…</translation>
    </message>
    <message>
        <source>Remo&amp;ve a race…</source>
        <translation>&amp;Odstranit závod…</translation>
    </message>
    <message>
        <source>Results from &amp;split files…</source>
        <translation>Výsledky ze &amp;souborů mezičasů…</translation>
    </message>
    <message>
        <source>Results from a &amp;list (position, total, penalty)…</source>
        <translation>Výsledky ze s&amp;eznamu (pořadí, celkem, penalizace)…</translation>
    </message>
    <message>
        <source>Results from a list with &amp;categories and clubs…</source>
        <translation>Výsledky ze seznamu s &amp;kategoriemi a kluby…</translation>
    </message>
    <message>
        <source>&amp;Athletes</source>
        <translation>Závodní&amp;ci</translation>
    </message>
    <message>
        <source>Add a &amp;category…</source>
        <translation>Přidat &amp;kategorii…</translation>
    </message>
    <message>
        <source>&amp;Add an athlete…</source>
        <translation>&amp;Přidat závodníka…</translation>
    </message>
    <message>
        <source>&amp;Edit the athlete…</source>
        <translation>&amp;Upravit závodníka…</translation>
    </message>
    <message>
        <source>&amp;Remove the athlete</source>
        <translation>&amp;Odstranit závodníka</translation>
    </message>
    <message>
        <source>&amp;Import athletes…</source>
        <translation>&amp;Importovat závodníky…</translation>
    </message>
    <message>
        <source>&amp;How a list has to look</source>
        <translation>&amp;Jak má seznam vypadat</translation>
    </message>
    <message>
        <source>Category %1</source>
        <translation>Kategorie %1</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Bonus</source>
        <translation>Bonus</translation>
    </message>
    <message>
        <source>Official times</source>
        <translation>Oficiální časy</translation>
    </message>
    <message>
        <source>xTimes</source>
        <translation>xTimes</translation>
    </message>
    <message>
        <source>What if…</source>
        <translation>Co kdyby…</translation>
    </message>
    <message>
        <source>Try other times and penalties; nothing of it is kept (W)</source>
        <translation>Zkuste jiné časy a penalizace; nic se neuchová (W)</translation>
    </message>
    <message>
        <source>Selection %1</source>
        <translation>Nominace %1</translation>
    </message>
    <message>
        <source>What if: times and penalties typed now are tried only. End it (W) to go back to the real results.</source>
        <translation>Co kdyby: časy a penalizace psané nyní se jen zkoušejí. Ukončením (W) se vrátíte ke skutečným výsledkům.</translation>
    </message>
    <message>
        <source>Add the races of the selection first (Ctrl+R), then athletes (Ctrl+N, or drop a .csv file).</source>
        <translation>Nejdřív přidejte závody nominace (Ctrl+R), pak závodníky (Ctrl+N, nebo přetáhněte soubor .csv).</translation>
    </message>
    <message>
        <source>Now add a category (Ctrl+G), such as MK1; then its athletes (Ctrl+N, or drop a .csv file).</source>
        <translation>Nyní přidejte kategorii (Ctrl+G), třeba MK1; pak její závodníky (Ctrl+N, nebo přetáhněte soubor .csv).</translation>
    </message>
    <message>
        <source>Add the athletes of the category (Ctrl+N, or drop a .csv file), then their results: type them, or take them over from split files (Ctrl+I).</source>
        <translation>Přidejte závodníky kategorie (Ctrl+N, nebo přetáhněte soubor .csv), pak jejich výsledky: napište je, nebo převezměte ze souborů mezičasů (Ctrl+I).</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) have a time of 0, which puts their athletes far in front. Edit &gt; Make times of 0 missing results.</source>
        <translation>
            <numerusform>%n výsledek má čas 0, což posouvá jeho závodníka daleko dopředu. Úpravy &gt; Z časů 0 udělat chybějící výsledky.</numerusform>
            <numerusform>%n výsledky mají čas 0, což posouvá jejich závodníky daleko dopředu. Úpravy &gt; Z časů 0 udělat chybějící výsledky.</numerusform>
            <numerusform>%n výsledků má čas 0, což posouvá jejich závodníky daleko dopředu. Úpravy &gt; Z časů 0 udělat chybějící výsledky.</numerusform>
        </translation>
    </message>
    <message>
        <source>End what if</source>
        <translation>Ukončit Co kdyby</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No bonus</source>
        <translation>Bez bonusu</translation>
    </message>
    <message>
        <source>Bonus %1</source>
        <translation>Bonus %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SensorChart</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Time (s)</source>
        <translation>Čas (s)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeriesDrawing</name>
    <message>
        <source>%1: low</source>
        <translation>%1: nízké</translation>
    </message>
    <message>
        <source>%1: high</source>
        <translation>%1: vysoké</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionCharts</name>
    <message>
        <source>none was recorded</source>
        <translation>nic nebylo zaznamenáno</translation>
    </message>
    <message>
        <source>there are no turns</source>
        <translation>nejsou žádné obraty</translation>
    </message>
    <message>
        <source>there are no strokes</source>
        <translation>nejsou žádné záběry</translation>
    </message>
    <message>
        <source>not known, since nothing tells which side of the phone points to the bow</source>
        <translation>neznámo, protože nic neříká, která strana telefonu míří ke špičce</translation>
    </message>
    <message>
        <source>not known, since there are no positions that tell the speed</source>
        <translation>neznámo, protože chybějí polohy, které by určily rychlost</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Frekvence záběrů</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Síla</translation>
    </message>
    <message>
        <source>Impulse</source>
        <translation>Impulz</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Výkon</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Rychlost</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Tepová frekvence</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Klonění</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Kolébání</translation>
    </message>
    <message>
        <source>end</source>
        <translation>konec</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionDialog</name>
    <message>
        <source>at</source>
        <translation>v</translation>
    </message>
    <message>
        <source>Training session</source>
        <translation>Tréninková jednotka</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Název</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Kdy</translation>
    </message>
    <message>
        <source>&amp;Place</source>
        <translation>&amp;Místo</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>Po&amp;pis</translation>
    </message>
    <message>
        <source>On the water</source>
        <translation>Na vodě</translation>
    </message>
    <message>
        <source>In the gym</source>
        <translation>V posilovně</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Ostatní</translation>
    </message>
    <message>
        <source>not in this week</source>
        <translation>není v tomto týdnu</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionMarks</name>
    <message>
        <source>%1 marks: two make a segment</source>
        <translation>značky: %1, dvě tvoří segment</translation>
    </message>
    <message>
        <source>%1 segments</source>
        <translation>segmenty: %1</translation>
    </message>
    <message>
        <source>mark</source>
        <translation>značka</translation>
    </message>
    <message>
        <source>removal of a mark</source>
        <translation>odstranění značky</translation>
    </message>
    <message>
        <source>removal of all marks</source>
        <translation>odstranění všech značek</translation>
    </message>
    <message>
        <source>There is a mark already</source>
        <translation>Tam už značka je</translation>
    </message>
    <message>
        <source>move of a mark</source>
        <translation>posun značky</translation>
    </message>
    <message>
        <source>Mark at %1</source>
        <translation>Značka v %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionTables</name>
    <message>
        <source>Strokes</source>
        <translation>Záběry</translation>
    </message>
    <message>
        <source>Turns</source>
        <translation>Obraty</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>Segmenty</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Vzdálenost</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Levá a pravá</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>Values every</source>
        <translation>Hodnoty po</translation>
    </message>
    <message>
        <source>Strokes (%1)</source>
        <translation>Záběry (%1)</translation>
    </message>
    <message>
        <source>Turns (%1)</source>
        <translation>Obraty (%1)</translation>
    </message>
    <message>
        <source>from the first mark</source>
        <translation>od první značky</translation>
    </message>
    <message>
        <source>from the start</source>
        <translation>od začátku</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionView</name>
    <message>
        <source>Speed against stroke rate</source>
        <translation>Rychlost proti frekvenci záběrů</translation>
    </message>
    <message>
        <source>Stroke rate (1/min)</source>
        <translation>Frekvence záběrů (1/min)</translation>
    </message>
    <message>
        <source>Speed (m/s)</source>
        <translation>Rychlost (m/s)</translation>
    </message>
    <message>
        <source>The speed of the strokes is not known.</source>
        <translation>Rychlost záběrů není známa.</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Levá</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Pravá</translation>
    </message>
    <message>
        <source>Side unknown</source>
        <translation>Strana neznámá</translation>
    </message>
    <message>
        <source>Information…</source>
        <translation>Informace…</translation>
    </message>
    <message>
        <source>Athlete, place, kind and equipment</source>
        <translation>Závodník, místo, druh a vybavení</translation>
    </message>
    <message>
        <source>Name the phone&apos;s mount</source>
        <translation>Určit upevnění telefonu</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Přiblížit</translation>
    </message>
    <message>
        <source>Show the selected stretch alone</source>
        <translation>Ukázat jen vybranou část</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Uchovat</translation>
    </message>
    <message>
        <source>Cut the session to the selected stretch</source>
        <translation>Oříznout jednotku na vybranou část</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Take the selected stretch out</source>
        <translation>Vyjmout vybranou část</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Rychlost</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Frekvence záběrů</translation>
    </message>
    <message>
        <source>Colour of the course</source>
        <translation>Barva tratě</translation>
    </message>
    <message>
        <source>%1 – %2: %3 s, %4 strokes, %5/min, %6 m, %7 m/s</source>
        <translation>%1 – %2: %3 s, záběrů %4, %5/min, %6 m, %7 m/s</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionWindow</name>
    <message>
        <source>Session</source>
        <translation>Jednotka</translation>
    </message>
    <message>
        <source>Sessions (*.bms);;Sessions (*.sbm)</source>
        <translation>Jednotky (*.bms);;Jednotky (*.sbm)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Import .kvb file</source>
        <translation>Importovat soubor .kvb</translation>
    </message>
    <message>
        <source>Recordings (*.kvb)</source>
        <translation>Záznamy (*.kvb)</translation>
    </message>
    <message>
        <source>Import .sbm file</source>
        <translation>Importovat soubor .sbm</translation>
    </message>
    <message>
        <source>Sessions (*.sbm *.bms)</source>
        <translation>Jednotky (*.sbm *.bms)</translation>
    </message>
    <message>
        <source>power of the power meter</source>
        <translation>výkon wattmetru</translation>
    </message>
    <message>
        <source>Save the session</source>
        <translation>Uložit jednotku</translation>
    </message>
    <message>
        <source>Save with it</source>
        <translation>Uložit s nimi</translation>
    </message>
    <message>
        <source>Save without it</source>
        <translation>Uložit bez nich</translation>
    </message>
    <message>
        <source>Saved without the power meter&apos;s data, which are still here.</source>
        <translation>Uloženo bez dat wattmetru; ta jsou stále zde.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SettingsWindow</name>
    <message>
        <source>Look and tables</source>
        <translation>Vzhled a tabulky</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Split taking</source>
        <translation>Měření mezičasů</translation>
    </message>
    <message>
        <source>Boat motion</source>
        <translation>Pohyb lodi</translation>
    </message>
    <message>
        <source>At start</source>
        <translation>Při spuštění</translation>
    </message>
    <message>
        <source>The decoded frames of all open films together take at most %1, and never more than a quarter of this computer&apos;s memory of %2.</source>
        <translation>Dekódované snímky všech otevřených filmů zaberou dohromady nejvýš %1 a nikdy víc než čtvrtinu paměti tohoto počítače (%2).</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Every change takes effect at once, another language when Kavela starts again.</source>
        <translation>Každá změna platí ihned, jiný jazyk po novém spuštění Kavely.</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Podle systému</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Světlý</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Tmavý</translation>
    </message>
    <message>
        <source>The environment variable KAVELA_SCHEME decides for this session.</source>
        <translation>Pro toto spuštění rozhoduje proměnná prostředí KAVELA_SCHEME.</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Okna</translation>
    </message>
    <message>
        <source>The environment variable KAVELA_LANGUAGE decides for this session.</source>
        <translation>Pro toto spuštění rozhoduje proměnná prostředí KAVELA_LANGUAGE.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Race: best green, others red</source>
        <translation>Závod: nejlepší zeleně, ostatní červeně</translation>
    </message>
    <message>
        <source>Training: cells tinted by rank</source>
        <translation>Trénink: buňky tónované podle pořadí</translation>
    </message>
    <message>
        <source>Colours of the split table</source>
        <translation>Barvy tabulky mezičasů</translation>
    </message>
    <message>
        <source>One a line.</source>
        <translation>Jeden na řádek.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>žádné</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Vybrat…</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Vybrat složku</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Vybrat soubor</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Žádné</translation>
    </message>
    <message>
        <source>Look for a newer version once a day</source>
        <translation>Jednou denně zjišťovat novější verzi</translation>
    </message>
    <message>
        <source>Where it is looked for</source>
        <translation>Kde se zjišťuje</translation>
    </message>
    <message>
        <source>This is no https address. It is looked for where it was.</source>
        <translation>Toto není adresa https. Zjišťuje se tam, kde předtím.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ShareActions</name>
    <message>
        <source>&amp;Open a folder to share…</source>
        <translation>Otevřít &amp;složku ke sdílení…</translation>
    </message>
    <message>
        <source>Sha&amp;re</source>
        <translation>S&amp;dílení</translation>
    </message>
    <message>
        <source>&amp;Compare both sides</source>
        <translation>&amp;Porovnat obě strany</translation>
    </message>
    <message>
        <source>&amp;Start with the ticked files</source>
        <translation>&amp;Spustit se zaškrtnutými soubory</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>&amp;Zrušit</translation>
    </message>
    <message>
        <source>&amp;Tick all but deletions</source>
        <translation>Zaškrtnout &amp;vše kromě mazání</translation>
    </message>
    <message>
        <source>Tick &amp;none</source>
        <translation>Zaškrtnout &amp;nic</translation>
    </message>
    <message>
        <source>Ser&amp;ver</source>
        <translation>Ser&amp;ver</translation>
    </message>
    <message>
        <source>&amp;Sign in…</source>
        <translation>&amp;Přihlásit…</translation>
    </message>
    <message>
        <source>&amp;Forget the password</source>
        <translation>Zapo&amp;menout heslo</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ShareWindow</name>
    <message>
        <source>Share folders</source>
        <translation>Sdílené složky</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Porovnat</translation>
    </message>
    <message>
        <source>Shows what differs; nothing is changed by it</source>
        <translation>Ukáže, co se liší; nic se tím nezmění</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Spustit</translation>
    </message>
    <message>
        <source>Shares the ticked files</source>
        <translation>Sdílí zaškrtnuté soubory</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Nothing is shared before it is shown here</source>
        <translation>Nic se nesdílí, dokud to není ukázáno zde</translation>
    </message>
    <message>
        <source>Another folder is shared once this one is done.</source>
        <translation>Jiná složka se bude sdílet, až bude tato hotova.</translation>
    </message>
    <message>
        <source>The folder to share</source>
        <translation>Složka ke sdílení</translation>
    </message>
    <message>
        <source>Both sides are looked at…</source>
        <translation>Procházejí se obě strany…</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 z %3</translation>
    </message>
    <message>
        <source>%1: %2 files</source>
        <translation>%1: soubory %2</translation>
    </message>
    <message>
        <source>%1 (on the server)</source>
        <translation>%1 (na serveru)</translation>
    </message>
    <message>
        <source>%1 (here)</source>
        <translation>%1 (zde)</translation>
    </message>
    <message>
        <source>Delete 1 file?</source>
        <translation>Smazat 1 soubor?</translation>
    </message>
    <message>
        <source>Delete %1 files?</source>
        <translation>Smazat soubory (%1)?</translation>
    </message>
    <message>
        <source>
and %1 more</source>
        <translation>
a dalších %1</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Smazat</translation>
    </message>
    <message>
        <source>Files are being shared…</source>
        <translation>Soubory se sdílejí…</translation>
    </message>
    <message>
        <source>This computer has no password store that is open. The password holds until this window is closed.</source>
        <translation>Tento počítač nemá otevřené úložiště hesel. Heslo platí, dokud se toto okno nezavře.</translation>
    </message>
    <message>
        <source>The password of %1 was forgotten.</source>
        <translation>Heslo pro %1 bylo zapomenuto.</translation>
    </message>
    <message>
        <source>%v of %m files</source>
        <translation>soubory: %v z %m</translation>
    </message>
    <message>
        <source>Files are being shared</source>
        <translation>Soubory se sdílejí</translation>
    </message>
    <message>
        <source>What is done stays done; sharing again goes on with the rest.</source>
        <translation>Co je hotovo, zůstane; nové sdílení naváže se zbytkem.</translation>
    </message>
    <message>
        <source>Stop and close</source>
        <translation>Zastavit a zavřít</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SharedRows</name>
    <message>
        <source>Share</source>
        <translation>Sdílet</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SiteList</name>
    <message>
        <source>Other servers that films may come from</source>
        <translation>Jiné servery, z nichž filmy smějí přijít</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitActions</name>
    <message>
        <source>&amp;Open a film…</source>
        <translation>Otevřít &amp;film…</translation>
    </message>
    <message>
        <source>Open the &amp;race of the film in split taking</source>
        <translation>Otevřít &amp;závod filmu v měření mezičasů</translation>
    </message>
    <message>
        <source>&amp;Save the race</source>
        <translation>&amp;Uložit závod</translation>
    </message>
    <message>
        <source>Save what is seen as a &amp;picture…</source>
        <translation>Uložit viditelné jako o&amp;brázek…</translation>
    </message>
    <message>
        <source>Save the &amp;water round the marks…</source>
        <translation>Uložit vodu kole&amp;m značek…</translation>
    </message>
    <message>
        <source>Save what is seen of the slit picture</source>
        <translation>Uložit viditelnou část štěrbinového obrazu</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Obrázky (*.png)</translation>
    </message>
    <message>
        <source>Save the water round the marks</source>
        <translation>Uložit vodu kolem značek</translation>
    </message>
    <message>
        <source>Bands (*.kvband)</source>
        <translation>Pásy (*.kvband)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Úprav&amp;y</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>Čá&amp;ry</translation>
    </message>
    <message>
        <source>Draw a &amp;new line</source>
        <translation>Nakreslit &amp;novou čáru</translation>
    </message>
    <message>
        <source>Ne&amp;xt line</source>
        <translation>&amp;Další čára</translation>
    </message>
    <message>
        <source>&amp;Previous line</source>
        <translation>&amp;Předchozí čára</translation>
    </message>
    <message>
        <source>&amp;Turn the arrow: boats come from the other side</source>
        <translation>O&amp;točit šipku: lodě přijíždějí z druhé strany</translation>
    </message>
    <message>
        <source>&amp;Remove the line</source>
        <translation>&amp;Odstranit čáru</translation>
    </message>
    <message>
        <source>Draw a box round one &amp;boat</source>
        <translation>Nakreslit rámeček kolem jedné &amp;lodi</translation>
    </message>
    <message>
        <source>&amp;Look for boats that cross it</source>
        <translation>&amp;Hledat lodě, které ji protnou</translation>
    </message>
    <message>
        <source>&amp;Hair line</source>
        <translation>Zá&amp;měrná čára</translation>
    </message>
    <message>
        <source>One frame &amp;earlier</source>
        <translation>O snímek &amp;dříve</translation>
    </message>
    <message>
        <source>One frame &amp;later</source>
        <translation>O snímek po&amp;zději</translation>
    </message>
    <message>
        <source>Ten frames earlier</source>
        <translation>O deset snímků dříve</translation>
    </message>
    <message>
        <source>Ten frames later</source>
        <translation>O deset snímků později</translation>
    </message>
    <message>
        <source>A tenth of a frame earlier</source>
        <translation>O desetinu snímku dříve</translation>
    </message>
    <message>
        <source>A tenth of a frame later</source>
        <translation>O desetinu snímku později</translation>
    </message>
    <message>
        <source>&amp;Next proposal</source>
        <translation>Další ná&amp;vrh</translation>
    </message>
    <message>
        <source>&amp;Previous proposal</source>
        <translation>&amp;Předchozí návrh</translation>
    </message>
    <message>
        <source>To the &amp;beginning</source>
        <translation>&amp;Na začátek</translation>
    </message>
    <message>
        <source>&amp;Closer</source>
        <translation>&amp;Blíž</translation>
    </message>
    <message>
        <source>&amp;Farther</source>
        <translation>Dá&amp;l</translation>
    </message>
    <message>
        <source>The &amp;whole film</source>
        <translation>&amp;Celý film</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>&amp;Značky</translation>
    </message>
    <message>
        <source>&amp;Mark the run at the hair line</source>
        <translation>&amp;Označit jízdu na záměrné čáře</translation>
    </message>
    <message>
        <source>Take the mark &amp;away</source>
        <translation>Odebrat &amp;značku</translation>
    </message>
    <message>
        <source>&amp;Previous run</source>
        <translation>&amp;Předchozí jízda</translation>
    </message>
    <message>
        <source>&amp;Next run</source>
        <translation>&amp;Další jízda</translation>
    </message>
    <message>
        <source>&amp;Refuse the proposal at the hair line</source>
        <translation>Odmítnout &amp;návrh na záměrné čáře</translation>
    </message>
    <message>
        <source>&amp;Forget what was refused on this line</source>
        <translation>Zapomenout odmítnuté na této čáře (&amp;F)</translation>
    </message>
    <message>
        <source>Accept a&amp;ll proposals</source>
        <translation>Přijmout &amp;všechny návrhy</translation>
    </message>
    <message>
        <source>Accept a&amp;ll proposals: why not yet?</source>
        <translation>Přijmout &amp;všechny návrhy: proč ještě ne?</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>Přehrá&amp;vání</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>Pře&amp;hrát nebo pozastavit</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>Po&amp;maleji</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>&amp;Rychleji</translation>
    </message>
    <message>
        <source>&amp;Normal speed</source>
        <translation>&amp;Normální rychlost</translation>
    </message>
    <message>
        <source>Take &amp;over the lines of another film</source>
        <translation>Pře&amp;vzít čáry jiného filmu</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitKeeping</name>
    <message>
        <source>The lines in %1 cannot be read: %2. The file is put aside before new lines take its name.</source>
        <translation>Čáry v %1 nelze přečíst: %2. Soubor se odloží stranou, než jeho jméno dostanou nové čáry.</translation>
    </message>
    <message>
        <source>The lines could not be kept in %1: %2</source>
        <translation>Čáry nelze uchovat v %1: %2</translation>
    </message>
    <message>
        <source>The lines of this film are still being read. Try again in a moment.</source>
        <translation>Čáry tohoto videa se ještě načítají. Zkuste to za chvíli znovu.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitLoader</name>
    <message>
        <source>The film ends early, after %1 frames.</source>
        <translation>Film končí předčasně, po snímku %1.</translation>
    </message>
    <message>
        <source>%1 frames cannot be decoded: their columns are black.</source>
        <translation>Snímků, které nelze dekódovat: %1; jejich sloupce jsou černé.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitPanel</name>
    <message>
        <source>Open the &amp;race…</source>
        <translation>Otevřít &amp;závod…</translation>
    </message>
    <message>
        <source>Times &amp;finer than the frame</source>
        <translation>Časy &amp;jemnější než snímek</translation>
    </message>
    <message>
        <source>Draw a box round one boat (B), then look for boats (Ctrl+B): where they may have crossed is listed here.</source>
        <translation>Nakreslete rámeček kolem jedné lodi (B), pak hledejte lodě (Ctrl+B): kde asi projely, se vypíše zde.</translation>
    </message>
    <message>
        <source>The time of the split follows the hair line between two frames; the mark itself stays on the frame.</source>
        <translation>Čas mezičasu se řídí záměrnou čárou mezi dvěma snímky; samotná značka zůstává na snímku.</translation>
    </message>
    <message>
        <source>marks</source>
        <translation>značky</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Čára %1</translation>
    </message>
    <message>
        <source>Marks go into %1</source>
        <translation>Značky se zapisují do %1</translation>
    </message>
    <message>
        <source>Marks need the race of this film in split taking.</source>
        <translation>Značky potřebují závod tohoto filmu v měření mezičasů.</translation>
    </message>
    <message>
        <source>No run of %1 has the film %2. Add it there as a film of the runs or as a fixed camera.</source>
        <translation>Žádná jízda v %1 nemá film %2. Přidejte ho tam jako film jízd nebo jako pevnou kameru.</translation>
    </message>
    <message>
        <source>The runs that are seen on this film are listed here.</source>
        <translation>Zde se vypíší jízdy, které jsou na tomto filmu vidět.</translation>
    </message>
    <message>
        <source>the bow</source>
        <translation>špička</translation>
    </message>
    <message>
        <source>the body</source>
        <translation>tělo</translation>
    </message>
    <message>
        <source>What is timed at the lines of this film: one point for a whole race. Proposals tell when it crosses.</source>
        <translation>Co se na čarách tohoto filmu měří: jeden bod pro celý závod. Návrhy říkají, kdy čáru protne.</translation>
    </message>
    <message>
        <source>Ti&amp;med is</source>
        <translation>&amp;Měří se</translation>
    </message>
    <message>
        <source>Look for boats (Ctrl+B): where they may have crossed is listed here.</source>
        <translation>Vyhledejte lodě (Ctrl+B): kde mohly čáru protnout, se vypíše zde.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitRace</name>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Split %1</source>
        <translation>Mezičas %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>There is no run to be marked.</source>
        <translation>Není zde jízda k označení.</translation>
    </message>
    <message>
        <source>This run has no film %1.</source>
        <translation>Tato jízda nemá film %1.</translation>
    </message>
    <message>
        <source>%1 in the slit picture</source>
        <translation>%1 ve štěrbinovém obraze</translation>
    </message>
    <message>
        <source>This run is not marked here.</source>
        <translation>Tato jízda zde není označena.</translation>
    </message>
    <message>
        <source>mark removed in the slit picture</source>
        <translation>značka ve štěrbinovém obraze odstraněna</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitSaving</name>
    <message>
        <source>The water round the marks is in %1.</source>
        <translation>Voda kolem značek je v %1.</translation>
    </message>
    <message>
        <source>The water round the marks could not be saved: %1</source>
        <translation>Vodu kolem značek nelze uložit: %1</translation>
    </message>
    <message>
        <source>The picture could not be saved: %1</source>
        <translation>Obrázek nelze uložit: %1</translation>
    </message>
    <message>
        <source>There is no slit picture yet.</source>
        <translation>Zatím zde není štěrbinový obraz.</translation>
    </message>
    <message>
        <source>That part is not read yet.</source>
        <translation>Tato část ještě není přečtena.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitStrip</name>
    <message>
        <source>Slit picture</source>
        <translation>Štěrbinový obraz</translation>
    </message>
    <message>
        <source>What stood on the line over the film, over time. A click goes there.</source>
        <translation>Co bylo na čáře v průběhu filmu. Kliknutí tam skočí.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitView</name>
    <message>
        <source>Slit picture</source>
        <translation>Štěrbinový obraz</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>frame %1   %2 s</source>
        <translation>snímek %1   %2 s</translation>
    </message>
    <message>
        <source>  (%1%2 of a frame)</source>
        <translation>  (%1%2 snímku)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitWindow</name>
    <message>
        <source>Films (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;All files (*)</source>
        <translation>Filmy (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Slit picture</source>
        <translation>Štěrbinový obraz</translation>
    </message>
    <message>
        <source>“%1” is not there.</source>
        <translation>„%1“ tam není.</translation>
    </message>
    <message>
        <source>Open the film of a fixed camera</source>
        <translation>Otevřít film pevné kamery</translation>
    </message>
    <message>
        <source>Open the film of a camera on a tripod (Ctrl+O).</source>
        <translation>Otevřete film z kamery na stativu (Ctrl+O).</translation>
    </message>
    <message>
        <source>Reading the film…</source>
        <translation>Čte se film…</translation>
    </message>
    <message>
        <source>Reading the film:</source>
        <translation>Čte se film:</translation>
    </message>
    <message>
        <source>Looking for boats:</source>
        <translation>Hledají se lodě:</translation>
    </message>
    <message>
        <source>Draw a line first: N.</source>
        <translation>Nejdřív nakreslete čáru: N.</translation>
    </message>
    <message>
        <source>There is no proposal before this.</source>
        <translation>Předtím už žádný návrh není.</translation>
    </message>
    <message>
        <source>There is no proposal behind this.</source>
        <translation>Potom už žádný návrh není.</translation>
    </message>
    <message>
        <source>Marks need the race of this film: open it in split taking.</source>
        <translation>Značky potřebují závod tohoto filmu: otevřete ho v měření mezičasů.</translation>
    </message>
    <message>
        <source>Draw a box round one boat first: B.</source>
        <translation>Nejdřív nakreslete rámeček kolem jedné lodi: B.</translation>
    </message>
    <message>
        <source>Proposals are accepted one by one</source>
        <translation>Návrhy se přijímají jednotlivě</translation>
    </message>
    <message>
        <source>There is nothing to learn from yet: look for boats, then mark and refuse what was found.</source>
        <translation>Zatím není z čeho se učit: hledejte lodě, pak nalezené označte a odmítněte.</translation>
    </message>
    <message>
        <source>The film is not read so far.</source>
        <translation>Film ještě není načten.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SplitBar</name>
    <message>
        <source>Split times</source>
        <translation>Mezičasy</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SplitMode</name>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Nothing can be marked: %1 is not in the folder of the split file. Cameras &gt; Where are the films now?</source>
        <translation>Nelze nic označit: %1 není ve složce souboru mezičasů. Kamery &gt; Kde jsou filmy nyní?</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>Není vybrána žádná značka. Ctrl a šipky vedou od značky ke značce.</translation>
    </message>
    <message>
        <source>Another run came to the front: nothing was marked.</source>
        <translation>Dopředu přišla jiná jízda: nic nebylo označeno.</translation>
    </message>
    <message>
        <source>The times of this run were taken without marks on the video. Marking it anew replaces them.</source>
        <translation>Časy této jízdy byly změřeny bez značek ve videu. Nové označení je nahradí.</translation>
    </message>
    <message>
        <source>Mark anew</source>
        <translation>Označit znovu</translation>
    </message>
    <message>
        <source>start mark</source>
        <translation>značka startu</translation>
    </message>
    <message>
        <source>split %1</source>
        <translation>mezičas %1</translation>
    </message>
    <message>
        <source>%1:  %2</source>
        <translation>%1:  %2</translation>
    </message>
    <message>
        <source>Split %1 was put in between two marks. Ctrl+Z takes it out again.</source>
        <translation>Mezičas %1 byl vložen mezi dvě značky. Ctrl+Z ho zase odebere.</translation>
    </message>
    <message>
        <source>mark moved</source>
        <translation>značka posunuta</translation>
    </message>
    <message>
        <source>There is no mark yet that could be moved.</source>
        <translation>Není zde zatím žádná značka, kterou by šlo posunout.</translation>
    </message>
    <message>
        <source>mark removed</source>
        <translation>značka odstraněna</translation>
    </message>
    <message>
        <source>Split %1 is expected behind the end of the film.</source>
        <translation>Mezičas %1 se čeká až za koncem filmu.</translation>
    </message>
    <message>
        <source>Split %1 is expected here</source>
        <translation>Zde se čeká mezičas %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SplitTableModel</name>
    <message>
        <source>Not timed</source>
        <translation>Nezměřeno</translation>
    </message>
    <message>
        <source>%1, %2: %3 s
place %4 of %5
%6 s behind the best, %7 %</source>
        <translation>%1, %2: %3 s
místo %4 z %5
%6 s za nejlepším, %7&#xa0;%</translation>
    </message>
    <message>
        <source>%1, %2: %3 s
%4
It counts for nothing: no place, no gap, never a best.</source>
        <translation>%1, %2: %3 s
%4
Nezapočítává se: žádné místo, žádný odstup, nikdy nejlepší.</translation>
    </message>
    <message>
        <source>The best of every section, put together</source>
        <translation>Nejlepší z každého úseku, poskládáno dohromady</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1, závod %2</translation>
    </message>
    <message>
        <source>Ideal run</source>
        <translation>Ideální jízda</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Gates %1</source>
        <translation>Branky %1</translation>
    </message>
    <message>
        <source>Section %1: the colours and the penalties in brackets are those of the first ten sections only.
Place, gap and percent are there as in any other.</source>
        <translation>Úsek %1: barvy a penalizace v závorkách jsou jen z prvních deseti úseků.
Místo, odstup a procenta jsou i zde jako jinde.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Jméno</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Kat.</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>%1 penalty</source>
        <translation>penalizace: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SplitsShown</name>
    <message>
        <source>%1?</source>
        <translation>%1?</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StartListDialog</name>
    <message>
        <source>Start list</source>
        <translation>Startovní listina</translation>
    </message>
    <message>
        <source>12,Ann Lee,K1W,10:01:30</source>
        <translation>12,Jana Malá,K1W,10:01:30</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Den</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Převzít</translation>
    </message>
    <message>
        <source>From a file…</source>
        <translation>Ze souboru…</translation>
    </message>
    <message>
        <source>Paste the list: bib, name, category and start time or order, or with titles in its first line. Boats that are in this phase already are corrected.</source>
        <translation>Vložte listinu: číslo, jméno, kategorie a čas startu nebo pořadí, nebo s nadpisy v prvním řádku. Lodě, které v této fázi už jsou, se opraví.</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt);;All files (*)</source>
        <translation>Seznamy (*.csv *.txt);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Starts: %1. Lines that cannot be taken: %2.</source>
        <translation>Starty: %1. Řádky, které nelze převzít: %2.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Řádek %1: %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StatisticsDialog</name>
    <message>
        <source>%1 in races, %2 in all</source>
        <translation>%1 v závodech, %2 celkem</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Vynecháno</translation>
    </message>
    <message>
        <source>Because it</source>
        <translation>Protože</translation>
    </message>
    <message>
        <source>Season statistics from split files</source>
        <translation>Statistika sezóny ze souborů mezičasů</translation>
    </message>
    <message>
        <source>Runs found: %1, in %2 files. They replace what stands there now: %3.</source>
        <translation>Nalezené jízdy: %1, v souborech: %2. Nahradí to, co je tu nyní: %3.</translation>
    </message>
    <message>
        <source>None of the files has a run of this athlete and season. Nothing is replaced.</source>
        <translation>Žádný ze souborů nemá jízdu tohoto závodníka a sezóny. Nic se nenahradí.</translation>
    </message>
    <message>
        <source>&amp;Replace the statistics</source>
        <translation>&amp;Nahradit statistiku</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StepsBox</name>
    <message>
        <source>Hide these steps</source>
        <translation>Skrýt tyto kroky</translation>
    </message>
    <message>
        <source>Open a race: “Try the sample season”.</source>
        <translation>Otevřete závod: „Vyzkoušet ukázkovou sezonu“.</translation>
    </message>
    <message>
        <source>Ask a number of its table why it is what it is: Alt+click, or Shift+F1.</source>
        <translation>Zeptejte se čísla v tabulce, proč je takové: Alt+klik nebo Shift+F1.</translation>
    </message>
    <message>
        <source>See where the time was lost: Ctrl+Shift+L.</source>
        <translation>Podívejte se, kde se ztratil čas: Ctrl+Shift+L.</translation>
    </message>
    <message>
        <source>Play the film of a run, or take a split: Ctrl+T.</source>
        <translation>Přehrajte video jízdy nebo změřte mezičas: Ctrl+T.</translation>
    </message>
    <message>
        <source>Make an athlete&apos;s report or page: Ctrl+P.</source>
        <translation>Vytvořte zprávu nebo stránku závodníka: Ctrl+P.</translation>
    </message>
    <message>
        <source>All first steps are done. F1 tells the rest.</source>
        <translation>Všechny první kroky jsou hotové. Zbytek řekne F1.</translation>
    </message>
    <message>
        <source>First steps, three minutes</source>
        <translation>První kroky, tři minuty</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Hotovo: %1</translation>
    </message>
    <message>
        <source>To do: %1</source>
        <translation>Zbývá: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StrategyPage</name>
    <message>
        <source>best</source>
        <translation>nejlepší</translation>
    </message>
    <message>
        <source>way of the run</source>
        <translation>varianta jízdy</translation>
    </message>
    <message>
        <source>way renamed</source>
        <translation>varianta přejmenována</translation>
    </message>
    <message>
        <source>A time is a number of seconds such as 4.35, or 1:04.35</source>
        <translation>Čas je počet sekund, třeba 4.35, nebo 1:04.35</translation>
    </message>
    <message>
        <source>time of a way</source>
        <translation>čas varianty</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Zvolená</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Varianta</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Odstup</translation>
    </message>
    <message>
        <source>The tick is at the way that the run took. Names and times are edited by a double click.</source>
        <translation>Zaškrtnuta je varianta, kterou jízda zvolila. Jména a časy se upravují dvojklikem.</translation>
    </message>
    <message>
        <source>Add a way</source>
        <translation>Přidat variantu</translation>
    </message>
    <message>
        <source>A section, or a name for the place</source>
        <translation>Úsek, nebo jméno místa</translation>
    </message>
    <message>
        <source>Another way, such as spin or direct</source>
        <translation>Další varianta, třeba otočka nebo přímo</translation>
    </message>
    <message>
        <source>Take its time</source>
        <translation>Změřit její čas</translation>
    </message>
    <message>
        <source>comment on ways</source>
        <translation>komentář k variantám</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Komentář</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nová</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>Porovnáno</translation>
    </message>
    <message>
        <source>Time from</source>
        <translation>Čas od</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Úsek</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>Beze jména</translation>
    </message>
    <message>
        <source>The run took the fastest way.</source>
        <translation>Jízda zvolila nejrychlejší variantu.</translation>
    </message>
    <message>
        <source>The way of the run cost %1 s.</source>
        <translation>Varianta jízdy stála %1 s.</translation>
    </message>
    <message>
        <source>Choose a section or name a place, and add it.</source>
        <translation>Vyberte úsek nebo pojmenujte místo a přidejte ho.</translation>
    </message>
    <message>
        <source>Add the ways of paddling this place.</source>
        <translation>Přidejte varianty průjezdu tímto místem.</translation>
    </message>
    <message>
        <source>M marks where %1 ends</source>
        <translation>M označí, kde končí %1</translation>
    </message>
    <message>
        <source>M marks where %1 begins</source>
        <translation>M označí, kde začíná %1</translation>
    </message>
    <message>
        <source>Choose a section, or write a name for the place.</source>
        <translation>Vyberte úsek, nebo napište jméno místa.</translation>
    </message>
    <message>
        <source>ways at %1</source>
        <translation>varianty: %1</translation>
    </message>
    <message>
        <source>way added</source>
        <translation>varianta přidána</translation>
    </message>
    <message>
        <source>Add a way and select it first.</source>
        <translation>Nejdřív přidejte a vyberte variantu.</translation>
    </message>
    <message>
        <source>%1 was not timed there.</source>
        <translation>%1 tam nemá změřený čas.</translation>
    </message>
    <message>
        <source>%1 is timed: %2 s. Empty its time to mark it anew.</source>
        <translation>%1 už má čas: %2 s. Pro nové označení ho vymažte.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Začátek</translation>
    </message>
    <message>
        <source>The end of a way comes after its beginning at %1.</source>
        <translation>Konec varianty následuje po jejím začátku v %1.</translation>
    </message>
    <message>
        <source>way timed</source>
        <translation>varianta změřena</translation>
    </message>
    <message>
        <source>way removed</source>
        <translation>varianta odstraněna</translation>
    </message>
    <message>
        <source>ways removed</source>
        <translation>varianty odstraněny</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StrokePage</name>
    <message>
        <source>Section</source>
        <translation>Úsek</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Levá</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Pravá</translation>
    </message>
    <message>
        <source>Strokes/min</source>
        <translation>Záběry/min</translation>
    </message>
    <message>
        <source>A marks a stroke on the left, D on the right, M with the other hand than before.</source>
        <translation>A označí záběr vlevo, D vpravo, M druhou rukou než předtím.</translation>
    </message>
    <message>
        <source>Rate now</source>
        <translation>Nyní</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Styl</translation>
    </message>
    <message>
        <source>%1 per minute, %2 strokes</source>
        <translation>%1 za minutu, záběrů %2</translation>
    </message>
    <message>
        <source>left stroke</source>
        <translation>záběr vlevo</translation>
    </message>
    <message>
        <source>right stroke</source>
        <translation>záběr vpravo</translation>
    </message>
    <message>
        <source>other hand</source>
        <translation>druhá ruka</translation>
    </message>
    <message>
        <source>style of the stroke</source>
        <translation>styl záběru</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SummaryPanel</name>
    <message>
        <source>Retired athletes are left out.</source>
        <translation>Závodníci s ukončenou kariérou jsou vynecháni.</translation>
    </message>
    <message>
        <source>Two seasons are needed.</source>
        <translation>Jsou třeba dvě sezóny.</translation>
    </message>
    <message>
        <source>The first two seasons have no race with a final position.</source>
        <translation>První dvě sezóny nemají závod s konečným pořadím.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> a </translation>
    </message>
    <message>
        <source>Over the seasons</source>
        <translation>Za všechny sezóny</translation>
    </message>
    <message>
        <source>All seasons</source>
        <translation>Všechny sezóny</translation>
    </message>
    <message>
        <source>Categorization</source>
        <translation>Kategorizace</translation>
    </message>
    <message>
        <source>, born %1</source>
        <translation>, nar. %1</translation>
    </message>
    <message>
        <source>One race has no final position. It counts as a medal here, not in the categorization.</source>
        <translation>Jeden závod nemá konečné pořadí. Počítá se zde jako medaile, v kategorizaci ne.</translation>
    </message>
    <message>
        <source>%1 races have no final position. They count as medals here, not in the categorization.</source>
        <translation>Závody bez konečného pořadí: %1. Počítají se zde jako medaile, v kategorizaci ne.</translation>
    </message>
    <message>
        <source>Counted: %1</source>
        <translation>Počítá se: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TableDocument</name>
    <message>
        <source>Join the athletes</source>
        <translation>Připojit závodníky</translation>
    </message>
    <message>
        <source>Say who line %1 is</source>
        <translation>Určit, kdo je řádek %1</translation>
    </message>
    <message>
        <source>Line %1 of the list is no row of this table any more.</source>
        <translation>Řádek %1 listiny už není řádkem této tabulky.</translation>
    </message>
    <message>
        <source>Line %1, column %2 of the list says “%3”.</source>
        <translation>Řádek %1, sloupec %2 listiny uvádí „%3“.</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 řádek</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n řádek</numerusform>
            <numerusform>%n řádky</numerusform>
            <numerusform>%n řádků</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TablesActions</name>
    <message>
        <source>&amp;Open a list…</source>
        <translation>Otevřít &amp;seznam…</translation>
    </message>
    <message>
        <source>Open what was &amp;copied</source>
        <translation>Otevřít &amp;zkopírované</translation>
    </message>
    <message>
        <source>A&amp;nother list of this file…</source>
        <translation>Jiný s&amp;eznam z tohoto souboru…</translation>
    </message>
    <message>
        <source>&amp;Keep with the race…</source>
        <translation>U&amp;chovat u závodu…</translation>
    </message>
    <message>
        <source>Save the &amp;table as CSV…</source>
        <translation>Uložit ta&amp;bulku jako CSV…</translation>
    </message>
    <message>
        <source>Save the c&amp;hart…</source>
        <translation>Uložit gr&amp;af…</translation>
    </message>
    <message>
        <source>The first line holds the &amp;titles</source>
        <translation>&amp;První řádek obsahuje nadpisy</translation>
    </message>
    <message>
        <source>The first line is a ro&amp;w</source>
        <translation>První řádek je řá&amp;dek</translation>
    </message>
    <message>
        <source>No &amp;groups</source>
        <translation>Žádné &amp;skupiny</translation>
    </message>
    <message>
        <source>&amp;Column</source>
        <translation>Sloupe&amp;c</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>&amp;Řadit</translation>
    </message>
    <message>
        <source>Sort &amp;downwards</source>
        <translation>Řadit &amp;sestupně</translation>
    </message>
    <message>
        <source>&amp;Group by it</source>
        <translation>S&amp;kupiny podle něj</translation>
    </message>
    <message>
        <source>&amp;Tint it</source>
        <translation>&amp;Tónovat</translation>
    </message>
    <message>
        <source>&amp;Chart of it</source>
        <translation>&amp;Graf sloupce</translation>
    </message>
    <message>
        <source>&amp;Keep rows with…</source>
        <translation>Ponec&amp;hat řádky s…</translation>
    </message>
    <message>
        <source>&amp;Leave it out</source>
        <translation>&amp;Vynechat</translation>
    </message>
    <message>
        <source>&amp;Read it as</source>
        <translation>Číst &amp;jako</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Přidat</translation>
    </message>
    <message>
        <source>&amp;Total</source>
        <translation>&amp;Celkem</translation>
    </message>
    <message>
        <source>&amp;Rank</source>
        <translation>&amp;Pořadí</translation>
    </message>
    <message>
        <source>&amp;Gap to the best</source>
        <translation>&amp;Odstup od nejlepšího</translation>
    </message>
    <message>
        <source>&amp;Percent behind the best</source>
        <translation>P&amp;rocenta za nejlepším</translation>
    </message>
    <message>
        <source>Percenti&amp;le</source>
        <translation>Percenti&amp;l</translation>
    </message>
    <message>
        <source>&amp;Another column…</source>
        <translation>&amp;Jiný sloupec…</translation>
    </message>
    <message>
        <source>P&amp;ivot…</source>
        <translation>Kontin&amp;genční tabulka…</translation>
    </message>
    <message>
        <source>A&amp;thletes</source>
        <translation>&amp;Závodníci</translation>
    </message>
    <message>
        <source>&amp;Join a team…</source>
        <translation>&amp;Připojit tým…</translation>
    </message>
    <message>
        <source>&amp;Who is meant?…</source>
        <translation>&amp;Kdo to je?…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Ukázat</translation>
    </message>
    <message>
        <source>What was &amp;refused</source>
        <translation>Co bylo &amp;odmítnuto</translation>
    </message>
    <message>
        <source>&amp;Blue to orange instead of green to red</source>
        <translation>&amp;Modrá až oranžová místo zelené až červené</translation>
    </message>
    <message>
        <source>The &amp;whole chart</source>
        <translation>&amp;Celý graf</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TablesWindow</name>
    <message>
        <source>Tables</source>
        <translation>Tabulky</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Uloženo %1</translation>
    </message>
    <message>
        <source>Kept with %1</source>
        <translation>Uchováno u %1</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopírovat</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Čte se %1…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened as a table</source>
        <translation>„%1“ nelze otevřít jako tabulku</translation>
    </message>
    <message>
        <source>What was copied is no list</source>
        <translation>Zkopírované není seznam</translation>
    </message>
    <message>
        <source>Which of its lists?</source>
        <translation>Který z jeho seznamů?</translation>
    </message>
    <message>
        <source>What was copied</source>
        <translation>Zkopírované</translation>
    </message>
    <message>
        <source>This step cannot be taken</source>
        <translation>Tento krok nelze provést</translation>
    </message>
    <message>
        <source>Keep rows</source>
        <translation>Ponechat řádky</translation>
    </message>
    <message>
        <source>Rows whose “%1” contains this are kept; the cell as it stands keeps just its like.</source>
        <translation>Zůstanou řádky, jejichž „%1“ toto obsahuje; buňka tak, jak stojí, ponechá jen stejné.</translation>
    </message>
    <message>
        <source> table</source>
        <translation> tabulka</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Text oddělený středníky (*.csv)</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>Otevřít seznamy</translation>
    </message>
    <message>
        <source>Join a team</source>
        <translation>Připojit tým</translation>
    </message>
    <message>
        <source>Teams (*.kvteam);;All files (*)</source>
        <translation>Týmy (*.kvteam);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>The rows cannot be joined</source>
        <translation>Řádky nelze připojit</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>„%1“ nelze otevřít</translation>
    </message>
    <message>
        <source>Nobody of the team</source>
        <translation>Nikdo z týmu</translation>
    </message>
    <message>
        <source>Who is %1 in line %2?</source>
        <translation>Kdo je %1 v řádku %2?</translation>
    </message>
    <message>
        <source>Keep with the race</source>
        <translation>Uchovat u závodu</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Soubory mezičasů (*.kvx);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Uložit tabulku</translation>
    </message>
    <message>
        <source>The table was not saved</source>
        <translation>Tabulka nebyla uložena</translation>
    </message>
    <message>
        <source>The list that it is made from stays as it is. Choose another name.</source>
        <translation>Seznam, ze kterého vzniká, zůstane, jak je. Zvolte jiné jméno.</translation>
    </message>
    <message>
        <source>Saving the table…</source>
        <translation>Ukládá se tabulka…</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 řádek</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 sloupec</translation>
    </message>
    <message>
        <source>%1 refused (F7)</source>
        <translation>odmítnuto %1 (F7)</translation>
    </message>
    <message>
        <source>%1 that only you can tell (F6)</source>
        <translation>jen vy víte: %1 (F6)</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n řádek</numerusform>
            <numerusform>%n řádky</numerusform>
            <numerusform>%n řádků</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n columns</source>
        <translation>
            <numerusform>%n sloupec</numerusform>
            <numerusform>%n sloupce</numerusform>
            <numerusform>%n sloupců</numerusform>
        </translation>
    </message>
    <message>
        <source>Drop a list of results here</source>
        <translation>Přetáhněte sem seznam výsledků</translation>
    </message>
    <message>
        <source>Text (CSV, tabs, columns of blanks), a spreadsheet (.xlsx, .ods), what was copied from a page, or a race that carries a list. Lists are only read.</source>
        <translation>Text (CSV, tabulátory, sloupce z mezer), tabulkový sešit (.xlsx, .ods), zkopírované ze stránky, nebo závod s listinou. Seznamy se jen čtou.</translation>
    </message>
    <message>
        <source>Open a list…</source>
        <translation>Otevřít seznam…</translation>
    </message>
    <message>
        <source>Open what was copied</source>
        <translation>Otevřít zkopírované</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TagMode</name>
    <message>
        <source>Tag</source>
        <translation>Štítek</translation>
    </message>
    <message>
        <source>There is no film to tag.</source>
        <translation>Není film, na který dát štítek.</translation>
    </message>
    <message>
        <source>This tag is of the split file: split taking moves it.</source>
        <translation>Tento štítek je ze souboru mezičasů: posouvá se v měření mezičasů.</translation>
    </message>
    <message>
        <source>No tag is selected.</source>
        <translation>Není vybrán žádný štítek.</translation>
    </message>
    <message>
        <source>There is no film to cut.</source>
        <translation>Není film ke střihu.</translation>
    </message>
    <message>
        <source>This frame has the tag “%1” already.</source>
        <translation>Tento snímek už štítek „%1“ má.</translation>
    </message>
    <message>
        <source>There is no tag %1 yet: type its name below the film.</source>
        <translation>Štítek %1 zatím není: napište jeho jméno pod filmem.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TagPage</name>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Štítek</translation>
    </message>
    <message>
        <source>Play just the tagged part</source>
        <translation>Přehrát jen část se štítkem</translation>
    </message>
    <message>
        <source>Rename the tag</source>
        <translation>Přejmenovat štítek</translation>
    </message>
    <message>
        <source>Gives the selected tag the name above</source>
        <translation>Dá vybranému štítku jméno nahoře</translation>
    </message>
    <message>
        <source>M sets the tag at the frame shown.</source>
        <translation>M nastaví štítek na ukázaný snímek.</translation>
    </message>
    <message>
        <source>Enter sets the tag %1 at the frame shown. Esc gives the keys back to the film.</source>
        <translation>Enter nastaví štítek %1 na ukázaný snímek. Esc vrátí klávesy filmu.</translation>
    </message>
    <message>
        <source>Choose or type the name of the tag first.</source>
        <translation>Nejdřív vyberte nebo napište jméno štítku.</translation>
    </message>
    <message>
        <source>tag %1</source>
        <translation>štítek %1</translation>
    </message>
    <message>
        <source>Select a tag and write its new name.</source>
        <translation>Vyberte štítek a napište jeho nové jméno.</translation>
    </message>
    <message>
        <source>tag renamed</source>
        <translation>štítek přejmenován</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakeOverDialog</name>
    <message>
        <source>Boat</source>
        <translation>Loď</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Výsledek</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Závodník</translation>
    </message>
    <message>
        <source>not in the team</source>
        <translation>není v týmu</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Vynechat</translation>
    </message>
    <message>
        <source>Add %1 to the team</source>
        <translation>Přidat do týmu: %1</translation>
    </message>
    <message>
        <source>perhaps %1?</source>
        <translation>snad %1?</translation>
    </message>
    <message>
        <source>%1 is added to the athlete&apos;s boats</source>
        <translation>%1 se přidá k lodím závodníka</translation>
    </message>
    <message>
        <source>the same stands there</source>
        <translation>tam je totéž</translation>
    </message>
    <message>
        <source>Take results over</source>
        <translation>Převzít výsledky</translation>
    </message>
    <message>
        <source>Choose the event</source>
        <translation>Zvolte akci</translation>
    </message>
    <message>
        <source>&amp;Event</source>
        <translation>&amp;Akce</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Místo</translation>
    </message>
    <message>
        <source>&amp;Season</source>
        <translation>&amp;Sezóna</translation>
    </message>
    <message>
        <source>The positions are the &amp;final ones of the race</source>
        <translation>Pořadí jsou &amp;konečná pořadí závodu</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>Ka&amp;tegorie</translation>
    </message>
    <message>
        <source>&amp;Phase</source>
        <translation>&amp;Fáze</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Den</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Převzít</translation>
    </message>
    <message>
        <source>Tick &amp;all</source>
        <translation>Zaškrtnout &amp;vše</translation>
    </message>
    <message>
        <source>Tick &amp;none</source>
        <translation>Zaškrtnout &amp;nic</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(řádek %1)</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 a další (%2)</translation>
    </message>
    <message>
        <source>Final position</source>
        <translation>Konečné pořadí</translation>
    </message>
    <message>
        <source>&amp;Take over 1 line</source>
        <translation>&amp;Převzít 1 řádek</translation>
    </message>
    <message>
        <source>Choose the event of the race.</source>
        <translation>Zvolte akci závodu.</translation>
    </message>
    <message>
        <source>Nothing in the file belongs to an athlete of the team. A click on “not in the team” chooses one, or adds the name to the team.</source>
        <translation>Nic v souboru nepatří závodníkovi týmu. Kliknutí na „není v týmu“ někoho vybere, nebo přidá jméno do týmu.</translation>
    </message>
    <message>
        <source>%1 of %2 lines are ticked; %3 stay out. A click on an athlete chooses another one, or adds the name to the team.</source>
        <translation>Zaškrtnuté řádky: %1 z %2; mimo zůstane %3. Kliknutí na závodníka vybere jiného, nebo přidá jméno do týmu.</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Take over %n lines</source>
        <translation>
            <numerusform>&amp;Převzít %n řádek</numerusform>
            <numerusform>&amp;Převzít %n řádky</numerusform>
            <numerusform>&amp;Převzít %n řádků</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakeRecordingDialog</name>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source> rad/s</source>
        <translation> rad/s</translation>
    </message>
    <message>
        <source>Take a test in from a recording</source>
        <translation>Převzít test ze záznamu</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>Záv&amp;odník</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Místo</translation>
    </message>
    <message>
        <source>La&amp;ps</source>
        <translation>&amp;Kola</translation>
    </message>
    <message>
        <source>&amp;Distance between the gates</source>
        <translation>&amp;Vzdálenost mezi brankami</translation>
    </message>
    <message>
        <source>T&amp;urn limit</source>
        <translation>M&amp;ez obratu</translation>
    </message>
    <message>
        <source>&amp;Suggest the marks again</source>
        <translation>&amp;Navrhnout značky znovu</translation>
    </message>
    <message>
        <source>Take in</source>
        <translation>Převzít</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Kolo %1</translation>
    </message>
    <message>
        <source>Stretch %1</source>
        <translation>Část %1</translation>
    </message>
    <message>
        <source>Eight %1</source>
        <translation>Osmička %1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>%1 strokes and %2 turns were found.</source>
        <translation>Nalezeno záběrů %1, obratů %2.</translation>
    </message>
    <message>
        <source>Ends at
(s)</source>
        <translation>Končí v
(s)</translation>
    </message>
    <message>
        <source>Seconds from the beginning of the recording</source>
        <translation>Sekundy od začátku záznamu</translation>
    </message>
    <message>
        <source>Time
(s)</source>
        <translation>Čas
(s)</translation>
    </message>
    <message>
        <source>Length of the section</source>
        <translation>Délka úseku</translation>
    </message>
    <message>
        <source>No such test was found in the recording.</source>
        <translation>Takový test se v záznamu nenašel.</translation>
    </message>
    <message>
        <source>Each mark has to be later than the one before.</source>
        <translation>Každá značka musí být pozdější než předchozí.</translation>
    </message>
    <message>
        <source>Laps found in the recording: %1 of %2. What is taken in has no more of them.</source>
        <translation>Kola nalezená v záznamu: %1 z %2. Víc se jich nepřevezme.</translation>
    </message>
    <message>
        <source>Eights found in the recording: %1 of %2. What is taken in has no more of them.</source>
        <translation>Osmičky nalezené v záznamu: %1 z %2. Víc se jich nepřevezme.</translation>
    </message>
    <message>
        <source>Rotation and marks</source>
        <translation>Otáčení a značky</translation>
    </message>
    <message>
        <source>Time from the beginning of the recording (s)</source>
        <translation>Čas od začátku záznamu (s)</translation>
    </message>
    <message>
        <source>Rotation (rad/s)</source>
        <translation>Otáčení (rad/s)</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Otáčení</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation>Značky</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakeRunDialog</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Závodník</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Úseky</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Celkem</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Pohyb</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ano</translation>
    </message>
    <message>
        <source>Take in tests from “%1”</source>
        <translation>Převzít testy z „%1“</translation>
    </message>
    <message>
        <source>Take in</source>
        <translation>Převzít</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>Take %1 runs in</source>
        <translation>Převzít jízdy: %1</translation>
    </message>
    <message>
        <source>Each section of the run becomes a lap.</source>
        <translation>Z každého úseku jízdy bude kolo.</translation>
    </message>
    <message>
        <source>Each section of the run becomes a stretch of the sprint.</source>
        <translation>Z každého úseku jízdy bude část sprintu.</translation>
    </message>
    <message>
        <source>The first five sections become the splits, with their marks in the video; the motion samples of the run tell its rotation.</source>
        <translation>Z prvních pěti úseků budou mezičasy se značkami ve videu; vzorky pohybu jízdy určí její otáčení.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakingActions</name>
    <message>
        <source>&amp;Open a folder of videos…</source>
        <translation>&amp;Otevřít složku videí…</translation>
    </message>
    <message>
        <source>&amp;Save data</source>
        <translation>&amp;Uložit data</translation>
    </message>
    <message>
        <source>Import &amp;video…</source>
        <translation>Importov&amp;at video…</translation>
    </message>
    <message>
        <source>Import split &amp;file…</source>
        <translation>Importovat soubor &amp;mezičasů…</translation>
    </message>
    <message>
        <source>Import official &amp;results…</source>
        <translation>Importovat oficiální vý&amp;sledky…</translation>
    </message>
    <message>
        <source>Compare &amp;with official results…</source>
        <translation>&amp;Porovnat s oficiálními výsledky…</translation>
    </message>
    <message>
        <source>&amp;Recording of the run…</source>
        <translation>Zá&amp;znam jízdy…</translation>
    </message>
    <message>
        <source>Run s&amp;heet: preview, PDF, print…</source>
        <translation>&amp;List jízdy: náhled, PDF, tisk…</translation>
    </message>
    <message>
        <source>&amp;Export data…</source>
        <translation>&amp;Exportovat data…</translation>
    </message>
    <message>
        <source>Show in the race &amp;analyzer</source>
        <translation>Ukázat v a&amp;nalýze závodu</translation>
    </message>
    <message>
        <source>Compare fil&amp;ms of the run…</source>
        <translation>Porovnat &amp;filmy jízdy…</translation>
    </message>
    <message>
        <source>Kayak &amp;cross of this race</source>
        <translation>Kayak &amp;cross tohoto závodu</translation>
    </message>
    <message>
        <source>Open a folder of videos</source>
        <translation>Otevřít složku videí</translation>
    </message>
    <message>
        <source>Race and &amp;course…</source>
        <translation>Závod a &amp;trať…</translation>
    </message>
    <message>
        <source>Names of the &amp;films…</source>
        <translation>Náz&amp;vy filmů…</translation>
    </message>
    <message>
        <source>&amp;Previous run</source>
        <translation>&amp;Předchozí jízda</translation>
    </message>
    <message>
        <source>&amp;Next run</source>
        <translation>&amp;Další jízda</translation>
    </message>
    <message>
        <source>&amp;Find an athlete</source>
        <translation>Najít záv&amp;odníka</translation>
    </message>
    <message>
        <source>Move the run up</source>
        <translation>Posunout jízdu nahoru</translation>
    </message>
    <message>
        <source>Move the run down</source>
        <translation>Posunout jízdu dolů</translation>
    </message>
    <message>
        <source>Remove the run from the list</source>
        <translation>Odstranit jízdu ze seznamu</translation>
    </message>
    <message>
        <source>Delete &amp;all data…</source>
        <translation>&amp;Smazat všechna data…</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>&amp;Značky</translation>
    </message>
    <message>
        <source>&amp;Mark the split</source>
        <translation>Označit &amp;mezičas</translation>
    </message>
    <message>
        <source>To where the next split is e&amp;xpected</source>
        <translation>Tam, kde se čeká další m&amp;ezičas</translation>
    </message>
    <message>
        <source>To the start mark</source>
        <translation>Na značku startu</translation>
    </message>
    <message>
        <source>To split &amp;%1</source>
        <translation>Na mezičas &amp;%1</translation>
    </message>
    <message>
        <source>&amp;Gates</source>
        <translation>&amp;Branky</translation>
    </message>
    <message>
        <source>&amp;Touch: 2 s</source>
        <translation>Ť&amp;uk: 2 s</translation>
    </message>
    <message>
        <source>Missed gate: &amp;50 s</source>
        <translation>Neprojetá branka: &amp;50 s</translation>
    </message>
    <message>
        <source>&amp;Clean</source>
        <translation>Č&amp;istá</translation>
    </message>
    <message>
        <source>&amp;Next gate</source>
        <translation>&amp;Další branka</translation>
    </message>
    <message>
        <source>&amp;Previous gate</source>
        <translation>&amp;Předchozí branka</translation>
    </message>
    <message>
        <source>&amp;Cameras</source>
        <translation>&amp;Kamery</translation>
    </message>
    <message>
        <source>&amp;Add another camera of this run…</source>
        <translation>&amp;Přidat další kameru této jízdy…</translation>
    </message>
    <message>
        <source>&amp;Where are the films now?…</source>
        <translation>Kde jsou film&amp;y nyní?…</translation>
    </message>
    <message>
        <source>Last camera one frame back</source>
        <translation>Poslední kamera o snímek zpět</translation>
    </message>
    <message>
        <source>Last camera one frame forward</source>
        <translation>Poslední kamera o snímek vpřed</translation>
    </message>
    <message>
        <source>&amp;Larger: without the table, the film alone, all again</source>
        <translation>Větší: &amp;bez tabulky, jen film, opět vše</translation>
    </message>
    <message>
        <source>The frames shown are &amp;one moment</source>
        <translation>Ukázané snímky jsou &amp;jeden okamžik</translation>
    </message>
    <message>
        <source>&amp;Draw the course…</source>
        <translation>N&amp;akreslit trať…</translation>
    </message>
    <message>
        <source>Sl&amp;it picture of the last camera</source>
        <translation>Š&amp;těrbinový obraz poslední kamery</translation>
    </message>
    <message>
        <source>There is no film here that has a slit picture.</source>
        <translation>Není zde film, který by měl štěrbinový obraz.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakingDocument</name>
    <message>
        <source>Save a copy as</source>
        <translation>Uložit kopii jako</translation>
    </message>
    <message>
        <source>Split files (*.kvx)</source>
        <translation>Soubory mezičasů (*.kvx)</translation>
    </message>
    <message>
        <source> &quot;Save as…&quot; writes a copy in the present release and opens it here; its films stay where they are.</source>
        <translation> „Uložit jako…“ zapíše kopii v současné verzi a otevře ji zde; filmy zůstanou na svém místě.</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Uložit jako…</translation>
    </message>
    <message>
        <source>names of the films</source>
        <translation>názvy filmů</translation>
    </message>
    <message>
        <source>run removed</source>
        <translation>jízda odstraněna</translation>
    </message>
    <message>
        <source>run moved</source>
        <translation>jízda posunuta</translation>
    </message>
    <message>
        <source>videos imported</source>
        <translation>videa importována</translation>
    </message>
    <message>
        <source>split file imported</source>
        <translation>soubor mezičasů importován</translation>
    </message>
    <message>
        <source>official results imported</source>
        <translation>oficiální výsledky importovány</translation>
    </message>
    <message>
        <source>official result of %1</source>
        <translation>oficiální výsledek: %1</translation>
    </message>
    <message>
        <source>1 run</source>
        <translation>1 jízda</translation>
    </message>
    <message>
        <source>%1 with %2 is emptied. Ctrl+Z brings it back.</source>
        <translation>Vyprázdní se %1 s obsahem: %2. Ctrl+Z to vrátí.</translation>
    </message>
    <message>
        <source>reset</source>
        <translation>vymazání</translation>
    </message>
    <message>
        <source>1 start without a split is not stored in the file. This computer keeps it, and offers it when the file is opened here again.</source>
        <translation>1 start bez mezičasu se do souboru neukládá. Uchová ho tento počítač a nabídne ho, až se zde soubor znovu otevře.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Přepsat</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n jízda</numerusform>
            <numerusform>%n jízdy</numerusform>
            <numerusform>%n jízd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n starts without a split are not stored in the file. This computer keeps them, and offers them when the file is opened here again.</source>
        <translation>
            <numerusform>%n start bez mezičasu se do souboru neukládá. Uchová ho tento počítač a nabídne ho, až se zde soubor znovu otevře.</numerusform>
            <numerusform>%n starty bez mezičasu se do souboru neukládají. Uchová je tento počítač a nabídne je, až se zde soubor znovu otevře.</numerusform>
            <numerusform>%n startů bez mezičasu se do souboru neukládá. Uchová je tento počítač a nabídne je, až se zde soubor znovu otevře.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakingWindow</name>
    <message>
        <source>correction</source>
        <translation>oprava</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Jméno</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Kat.</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fáze</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Celkem</translation>
    </message>
    <message>
        <source>%1/%2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>split taking</source>
        <translation>měření mezičasů</translation>
    </message>
    <message>
        <source>Athlete&apos;s name</source>
        <translation>Jméno závodníka</translation>
    </message>
    <message>
        <source>Enter finds the athlete&apos;s next run, or collects a training file of all videos with that name</source>
        <translation>Enter najde další jízdu závodníka, nebo sestaví tréninkový soubor ze všech videí s tímto jménem</translation>
    </message>
    <message>
        <source>Race &amp;day, or the table of the race</source>
        <translation>Závodní &amp;den, nebo tabulka závodu</translation>
    </message>
    <message>
        <source>In which folder do the films appear?</source>
        <translation>Ve které složce se objevují filmy?</translation>
    </message>
    <message>
        <source>A click on a time shows its frame</source>
        <translation>Kliknutí na čas ukáže jeho snímek</translation>
    </message>
    <message>
        <source>penalty at gate %1</source>
        <translation>penalizace na brance %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TeamAthleteDialog</name>
    <message>
        <source>New athlete</source>
        <translation>Nový závodník</translation>
    </message>
    <message>
        <source>Written in capitals in the team</source>
        <translation>V týmu psáno velkými písmeny</translation>
    </message>
    <message>
        <source>Such as 1998</source>
        <translation>Třeba 1998</translation>
    </message>
    <message>
        <source>&amp;Surname</source>
        <translation>&amp;Příjmení</translation>
    </message>
    <message>
        <source>&amp;Given name</source>
        <translation>&amp;Jméno</translation>
    </message>
    <message>
        <source>&amp;Born in</source>
        <translation>&amp;Narozen(a)</translation>
    </message>
    <message>
        <source>Boats</source>
        <translation>Lodě</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TeamDocument</name>
    <message>
        <source>It is no team file, or a damaged one: %1</source>
        <translation>Není to soubor týmu, nebo je poškozený: %1</translation>
    </message>
    <message>
        <source>averages</source>
        <translation>průměry</translation>
    </message>
    <message>
        <source>1 athlete</source>
        <translation>1 závodník</translation>
    </message>
    <message numerus="yes">
        <source>%n athletes</source>
        <translation>
            <numerusform>%n závodník</numerusform>
            <numerusform>%n závodníci</numerusform>
            <numerusform>%n závodníků</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TeamWindow</name>
    <message>
        <source>Take results over</source>
        <translation>Převzít výsledky</translation>
    </message>
    <message>
        <source>Split files and result lists (*.kvx *.csv *.txt);;All files (*)</source>
        <translation>Soubory mezičasů a výsledkové listiny (*.kvx *.csv *.txt);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>“%1” cannot be taken over</source>
        <translation>„%1“ nelze převzít</translation>
    </message>
    <message>
        <source>There are no results in it.</source>
        <translation>Nejsou v něm žádné výsledky.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Řádek %1: %2</translation>
    </message>
    <message>
        <source>There are no runs in it.</source>
        <translation>Nejsou v něm žádné jízdy.</translation>
    </message>
    <message>
        <source>results taken over</source>
        <translation>výsledky převzaty</translation>
    </message>
    <message>
        <source>Team</source>
        <translation>Tým</translation>
    </message>
    <message>
        <source>new athlete</source>
        <translation>nový závodník</translation>
    </message>
    <message>
        <source>removal of an athlete</source>
        <translation>odstranění závodníka</translation>
    </message>
    <message>
        <source>new category</source>
        <translation>nová kategorie</translation>
    </message>
    <message>
        <source>removal of a category</source>
        <translation>odstranění kategorie</translation>
    </message>
    <message>
        <source>Choose an athlete and a category first.</source>
        <translation>Nejdřív vyberte závodníka a kategorii.</translation>
    </message>
    <message>
        <source>Add a season first.</source>
        <translation>Nejdřív přidejte sezónu.</translation>
    </message>
    <message>
        <source>Choose a category first.</source>
        <translation>Nejdřív vyberte kategorii.</translation>
    </message>
    <message>
        <source>No athlete comes into question in %1: two seasons are needed, with a final position in one of the first two.</source>
        <translation>V %1 nepřichází v úvahu žádný závodník: jsou třeba dvě sezóny s konečným pořadím v jedné z prvních dvou.</translation>
    </message>
    <message>
        <source>Categorization %1</source>
        <translation>Kategorizace %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestListPanel</name>
    <message>
        <source>All tests</source>
        <translation>Všechny testy</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Závodník</translation>
    </message>
    <message>
        <source>Ticked tests are laid over the chosen one (Space)</source>
        <translation>Zaškrtnuté testy se položí přes zvolený (mezerník)</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Místo konání</translation>
    </message>
    <message>
        <source>All athletes</source>
        <translation>Všichni závodníci</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestSessionWindow</name>
    <message>
        <source>Time (s)</source>
        <translation>Čas (s)</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>There are no values in this attempt.</source>
        <translation>V tomto pokusu nejsou žádné hodnoty.</translation>
    </message>
    <message>
        <source>Heart rate (1/min)</source>
        <translation>Tepová frekvence (1/min)</translation>
    </message>
    <message>
        <source>Test session</source>
        <translation>Testovací jednotka</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Hodnoty</translation>
    </message>
    <message>
        <source>&amp;Export the table…</source>
        <translation>&amp;Exportovat tabulku…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>„%1“ nelze otevřít</translation>
    </message>
    <message>
        <source>Attempt %1
%2 stroke values, %3 of the sprint</source>
        <translation>Pokus %1
hodnot záběrů %2, sprintu %3</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Všechny druhy</translation>
    </message>
    <message>
        <source>Sprint data</source>
        <translation>Data sprintu</translation>
    </message>
    <message>
        <source>Export the table</source>
        <translation>Export tabulky</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Text oddělený středníky (*.csv)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestsDocument</name>
    <message>
        <source>It is no file of tests, or a damaged one: %1</source>
        <translation>Není to soubor testů, nebo je poškozený: %1</translation>
    </message>
    <message>
        <source>removal of tests</source>
        <translation>odstranění testů</translation>
    </message>
    <message>
        <source>1 test</source>
        <translation>1 test</translation>
    </message>
    <message numerus="yes">
        <source>%n tests</source>
        <translation>
            <numerusform>%n test</numerusform>
            <numerusform>%n testy</numerusform>
            <numerusform>%n testů</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestsWindow</name>
    <message>
        <source>Take tests in from a split file</source>
        <translation>Převzít testy ze souboru mezičasů</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Soubory mezičasů (*.kvx);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Take a test in from a recording</source>
        <translation>Převzít test ze záznamu</translation>
    </message>
    <message>
        <source>Recordings (*.kvb);;All files (*)</source>
        <translation>Záznamy (*.kvb);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>“%1” cannot be taken in</source>
        <translation>„%1“ nelze převzít</translation>
    </message>
    <message>
        <source>There are no runs in it.</source>
        <translation>Nejsou v něm žádné jízdy.</translation>
    </message>
    <message>
        <source>tests taken in</source>
        <translation>testy převzaty</translation>
    </message>
    <message>
        <source>test taken in</source>
        <translation>test převzat</translation>
    </message>
    <message>
        <source>It is no raw recording, or a damaged one: %1</source>
        <translation>Není to surový záznam, nebo je poškozený: %1</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Testy</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Grafy</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Hodnoty</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabulka</translation>
    </message>
    <message>
        <source>One ticked test is of another kind and left out here.</source>
        <translation>Jeden zaškrtnutý test je jiného druhu a zde je vynechán.</translation>
    </message>
    <message>
        <source>%1 ticked tests are of another kind and left out here.</source>
        <translation>Zaškrtnuté testy jiného druhu, zde vynechané: %1.</translation>
    </message>
    <message>
        <source>new eight test</source>
        <translation>nový test osmičky</translation>
    </message>
    <message>
        <source>new sprint</source>
        <translation>nový sprint</translation>
    </message>
    <message>
        <source>new lap test</source>
        <translation>nový test na kola</translation>
    </message>
    <message>
        <source>copy of a test</source>
        <translation>kopie testu</translation>
    </message>
    <message>
        <source>Export the table of tests</source>
        <translation>Export tabulky testů</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv);;All files (*)</source>
        <translation>Text oddělený středníky (*.csv);;Všechny soubory (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TickStrip</name>
    <message>
        <source>Other marks</source>
        <translation>Další značky</translation>
    </message>
    <message>
        <source>A click shows the frame of a mark</source>
        <translation>Kliknutí ukáže snímek značky</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TimeLine</name>
    <message>
        <source>Time line</source>
        <translation>Časová osa</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TimerFace</name>
    <message>
        <source>%1 – paused</source>
        <translation>%1 – pozastaveno</translation>
    </message>
    <message>
        <source>Set %1 of %2   ·   Repetition %3 of %4</source>
        <translation>Série %1 z %2   ·   Opakování %3 z %4</translation>
    </message>
    <message>
        <source>Well done.</source>
        <translation>Výborně.</translation>
    </message>
    <message>
        <source>Next: the end</source>
        <translation>Další: konec</translation>
    </message>
    <message>
        <source>Next: %1 %2</source>
        <translation>Další: %1 %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ToolWindow</name>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>Soubory %1 (*.%2)</translation>
    </message>
    <message>
        <source>%1, saving…</source>
        <translation>%1, ukládá se…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Soubor</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Otevřít…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Uložit</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Ulož&amp;it jako…</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Všechny soubory (*)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Úprav&amp;y</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Zpět</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Z&amp;novu</translation>
    </message>
    <message>
        <source>Open it again</source>
        <translation>Otevřít znovu</translation>
    </message>
    <message>
        <source>Keep what is here</source>
        <translation>Ponechat, co je zde</translation>
    </message>
    <message>
        <source>⚠ Another program changed “%1”. What is shown here is from before.</source>
        <translation>⚠ „%1“ změnil jiný program. Zde je vidět stav předtím.</translation>
    </message>
    <message>
        <source>⚠ “%1” is no longer in its folder. Saving puts it there again.</source>
        <translation>⚠ „%1“ už není ve své složce. Uložením se tam vrátí.</translation>
    </message>
    <message>
        <source>Opening “%1” again gives up what was not saved here.</source>
        <translation>Novým otevřením „%1“ se zahodí, co zde nebylo uloženo.</translation>
    </message>
    <message>
        <source>Bring &amp;back earlier work…</source>
        <translation>Obnovit dřívější p&amp;ráci…</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Domů</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>Nas&amp;tavení…</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Za&amp;vřít</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>U&amp;končit</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Uložit</translation>
    </message>
    <message>
        <source>Saving… The window closes when the file is written.</source>
        <translation>Ukládá se… Okno se zavře, až bude soubor zapsán.</translation>
    </message>
    <message>
        <source>Saving… What is to be opened follows when the file is written.</source>
        <translation>Ukládá se… Další se otevře, až bude soubor zapsán.</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Čte se %1…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TotalsChart</name>
    <message>
        <source>No run has a time for the whole course yet.</source>
        <translation>Žádná jízda zatím nemá čas za celou trať.</translation>
    </message>
    <message>
        <source>Time and penalties of %1</source>
        <translation>Čas a penalizace: %1</translation>
    </message>
    <message>
        <source>Seconds on the course, without penalties</source>
        <translation>Sekundy na trati, bez penalizace</translation>
    </message>
    <message>
        <source> · %1 without a total</source>
        <translation> · bez celkového času: %1</translation>
    </message>
    <message>
        <source>Penalty seconds</source>
        <translation>Trestné sekundy</translation>
    </message>
    <message>
        <source>← slower      faster →</source>
        <translation>← pomaleji      rychleji →</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Penalizace</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Výsledek</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Jízda</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Vybrané</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Celkové časy</translation>
    </message>
    <message>
        <source>Total time against penalties</source>
        <translation>Celkový čas proti penalizacím</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackDocument</name>
    <message>
        <source>It is no path on a film, or a damaged one: %1</source>
        <translation>Není to dráha na filmu, nebo je poškozená: %1</translation>
    </message>
    <message>
        <source>a path of 1 frame</source>
        <translation>dráha s 1 snímkem</translation>
    </message>
    <message>
        <source>a path of %1 frames</source>
        <translation>dráha, snímků: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackLine</name>
    <message>
        <source>Coloured where the path is known; diamonds are the boxes that were drawn. Click to go there.</source>
        <translation>Barevně tam, kde je dráha známa; kosočtverce jsou nakreslené rámečky. Kliknutím se tam přejde.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackOffsetDialog</name>
    <message>
        <source>Track of a watch</source>
        <translation>Stopa hodinek</translation>
    </message>
    <message>
        <source>The clock of the watch is perhaps wrong. Say when the track began in truth.</source>
        <translation>Hodiny hodinek jdou možná špatně. Uveďte, kdy stopa skutečně začala.</translation>
    </message>
    <message>
        <source>With the &amp;recording</source>
        <translation>Spolu se &amp;záznamem</translation>
    </message>
    <message>
        <source>Both were started at the same moment</source>
        <translation>Obojí bylo spuštěno ve stejný okamžik</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Záznam</translation>
    </message>
    <message>
        <source>Track, by its clock</source>
        <translation>Stopa, podle jejích hodin</translation>
    </message>
    <message>
        <source>The track &amp;began</source>
        <translation>Stopa z&amp;ačala</translation>
    </message>
    <message>
        <source>Join it</source>
        <translation>Připojit</translation>
    </message>
    <message>
        <source>%1 of %2 positions and %3 of %4 heart rates lie in the recording, or a minute around it.</source>
        <translation>V záznamu nebo do minuty kolem něj leží %1 z %2 poloh a %3 z %4 tepových frekvencí.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackOverlay</name>
    <message>
        <source>Box round what is followed</source>
        <translation>Rámeček kolem sledovaného</translation>
    </message>
    <message>
        <source>Draw a box round boat, head or gate. By keys: B proposes a box, arrows move it, with Shift they size it, Enter takes it.</source>
        <translation>Nakreslete rámeček kolem lodi, hlavy nebo branky. Klávesami: B rámeček navrhne, šipky ho posouvají, se Shift mění velikost, Enter ho přijme.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackingWindow</name>
    <message>
        <source>Tracking</source>
        <translation>Sledování</translation>
    </message>
    <message>
        <source>Paths on films (*.track.json)</source>
        <translation>Dráhy na filmech (*.track.json)</translation>
    </message>
    <message>
        <source>Open a film, then draw a box round what is to be followed.</source>
        <translation>Otevřete film a pak nakreslete rámeček kolem toho, co se má sledovat.</translation>
    </message>
    <message>
        <source>Following: %p %</source>
        <translation>Sleduje se: %p %</translation>
    </message>
    <message>
        <source>&amp;Open a film or a path…</source>
        <translation>Otevřít &amp;film nebo dráhu…</translation>
    </message>
    <message>
        <source>&amp;Export the path as CSV…</source>
        <translation>Exportovat dráhu jako &amp;CSV…</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>Přehrá&amp;vání</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>Pře&amp;hrát nebo pozastavit</translation>
    </message>
    <message>
        <source>One frame ba&amp;ck</source>
        <translation>O sním&amp;ek zpět</translation>
    </message>
    <message>
        <source>One frame &amp;on</source>
        <translation>&amp;O snímek vpřed</translation>
    </message>
    <message>
        <source>P&amp;ath</source>
        <translation>&amp;Dráha</translation>
    </message>
    <message>
        <source>Propose a &amp;box</source>
        <translation>Navrhnout &amp;rámeček</translation>
    </message>
    <message>
        <source>&amp;Take the box of this frame away</source>
        <translation>Odebr&amp;at rámeček tohoto snímku</translation>
    </message>
    <message>
        <source>To the next &amp;gap</source>
        <translation>Na další &amp;mezeru</translation>
    </message>
    <message>
        <source>&amp;Stop following</source>
        <translation>Zastavit &amp;sledování</translation>
    </message>
    <message>
        <source>Click &amp;known points</source>
        <translation>Klikat známé bod&amp;y</translation>
    </message>
    <message>
        <source>&amp;Forget the known points</source>
        <translation>Zapomenout známé &amp;body</translation>
    </message>
    <message>
        <source>It lies on the &amp;water</source>
        <translation>&amp;Leží na vodě</translation>
    </message>
    <message>
        <source>whether it lies on the water</source>
        <translation>zda leží na vodě</translation>
    </message>
    <message>
        <source>Open a film or a path on one</source>
        <translation>Otevřít film nebo jeho dráhu</translation>
    </message>
    <message>
        <source>Films and paths (*.mp4 *.mov *.m4v *.mkv *.avi *.mts *.track.json);;All files (*)</source>
        <translation>Filmy a dráhy (*.mp4 *.mov *.m4v *.mkv *.avi *.mts *.track.json);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>The film %1 is not there.</source>
        <translation>Film %1 tam není.</translation>
    </message>
    <message>
        <source>%1 s · frame %2</source>
        <translation>%1 s · snímek %2</translation>
    </message>
    <message>
        <source>The film is still being read. Draw the box again in a moment.</source>
        <translation>Film se ještě čte. Za chvíli nakreslete rámeček znovu.</translation>
    </message>
    <message>
        <source>Stop following first, with Escape.</source>
        <translation>Nejdřív zastavte sledování, klávesou Escape.</translation>
    </message>
    <message>
        <source>box</source>
        <translation>rámeček</translation>
    </message>
    <message>
        <source>Following. Escape stops it.</source>
        <translation>Sleduje se. Escape to zastaví.</translation>
    </message>
    <message>
        <source>The boxes were changed meanwhile, so that the path was not taken over. Draw the box again.</source>
        <translation>Rámečky se mezitím změnily, proto se dráha nepřevzala. Nakreslete rámeček znovu.</translation>
    </message>
    <message>
        <source>path</source>
        <translation>dráha</translation>
    </message>
    <message>
        <source>Lost at %1 s. Draw a new box here, or where it is seen again; what lies between stays a gap until both sides meet.</source>
        <translation>Ztraceno v %1 s. Nakreslete nový rámeček zde, nebo kde je zase vidět; mezi tím zůstane mezera, dokud se obě strany nesetkají.</translation>
    </message>
    <message>
        <source>Followed without a gap.</source>
        <translation>Sledováno bez mezery.</translation>
    </message>
    <message>
        <source>Followed, with one gap. G goes there.</source>
        <translation>Sledováno, s jednou mezerou. G na ni přejde.</translation>
    </message>
    <message>
        <source>Followed, with %1 gaps. G goes to the next one.</source>
        <translation>Sledováno, mezer: %1. G přejde na další.</translation>
    </message>
    <message>
        <source>No box was drawn in this frame.</source>
        <translation>Na tomto snímku nebyl nakreslen rámeček.</translation>
    </message>
    <message>
        <source>removal of a box</source>
        <translation>odstranění rámečku</translation>
    </message>
    <message>
        <source>The path has no gap.</source>
        <translation>Dráha nemá žádnou mezeru.</translation>
    </message>
    <message>
        <source>Click the foot of a gate&apos;s poles where they meet the water, four for metres or two for a scale only, then type where they stand. P ends it.</source>
        <translation>Klikněte na patu tyčí branky, kde se dotýkají vody, čtyři pro metry nebo dvě jen pro měřítko, a napište, kde stojí. P to ukončí.</translation>
    </message>
    <message>
        <source>Four known points are the most. Take one away first.</source>
        <translation>Čtyři známé body jsou nejvíc. Nejdřív jeden odeberte.</translation>
    </message>
    <message>
        <source>The known points belong into one frame; this is where the first one was clicked.</source>
        <translation>Známé body patří do jednoho snímku; v tomto byl označen první.</translation>
    </message>
    <message>
        <source>known point</source>
        <translation>známý bod</translation>
    </message>
    <message>
        <source>removal of the known points</source>
        <translation>odstranění známých bodů</translation>
    </message>
    <message>
        <source>Export the path</source>
        <translation>Export dráhy</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tabulky (*.csv)</translation>
    </message>
    <message>
        <source>%1 is there.</source>
        <translation>%1 je hotovo.</translation>
    </message>
    <message>
        <source>The path could not be exported</source>
        <translation>Dráhu nelze exportovat</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TradeOffPanel</name>
    <message>
        <source>In percent of the median of its group</source>
        <translation>V procentech mediánu své skupiny</translation>
    </message>
    <message>
        <source>By paddling time</source>
        <translation>Podle čistého času</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Jízdy</translation>
    </message>
    <message>
        <source>Touches a run</source>
        <translation>Ťuky na jízdu</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#xa0;%</translation>
    </message>
    <message>
        <source>Exact interval of the touches</source>
        <translation>Přesný interval ťuků</translation>
    </message>
    <message>
        <source>Missed a run</source>
        <translation>Neprojeté na jízdu</translation>
    </message>
    <message>
        <source>Paddling %</source>
        <translation>Čistý čas %</translation>
    </message>
    <message>
        <source>Total %</source>
        <translation>Celkem %</translation>
    </message>
    <message>
        <source>No group has enough whole runs to be divided.</source>
        <translation>Žádná skupina nemá dost úplných jízd k rozdělení.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrialList</name>
    <message>
        <source>New athlete</source>
        <translation>Nový závodník</translation>
    </message>
    <message>
        <source>Enter adds a time trial of that athlete; Esc gives the keys back to the film</source>
        <translation>Enter přidá časovku tohoto závodníka; Esc vrátí klávesy filmu</translation>
    </message>
    <message>
        <source>A time trial needs the name of its athlete.</source>
        <translation>Časovka potřebuje jméno svého závodníka.</translation>
    </message>
    <message>
        <source>Pos</source>
        <translation>Poř.</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Závodník</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>⚠ missing</source>
        <translation>⚠ chybí</translation>
    </message>
    <message>
        <source>%1 is not in the folder</source>
        <translation>%1 není ve složce</translation>
    </message>
    <message>
        <source>Add an athlete</source>
        <translation>Přidat závodníka</translation>
    </message>
    <message>
        <source>Re&amp;name the athlete</source>
        <translation>Pře&amp;jmenovat závodníka</translation>
    </message>
    <message>
        <source>&amp;Film…</source>
        <translation>&amp;Film…</translation>
    </message>
    <message>
        <source>R&amp;emove the trial</source>
        <translation>&amp;Odstranit časovku</translation>
    </message>
    <message>
        <source>Film…</source>
        <translation>Film…</translation>
    </message>
    <message>
        <source>Chooses the film of the selected trial</source>
        <translation>Vybere film zvolené časovky</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Removes the selected trial</source>
        <translation>Odstraní zvolenou časovku</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrialPage</name>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Gate %1 %2</source>
        <translation>Branka %1 %2</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Eskymák</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Branka %1</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Mezičas</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>From the start</source>
        <translation>Od startu</translation>
    </message>
    <message>
        <source>%1 boats</source>
        <translation>lodí: %1</translation>
    </message>
    <message>
        <source>How many boats go on to the heats</source>
        <translation>Kolik lodí postupuje do rozjížděk</translation>
    </message>
    <message>
        <source>Make heats from the trials</source>
        <translation>Vytvořit z časovek rozjížďky</translation>
    </message>
    <message>
        <source>Heats of four, the fastest against the slowest. Heats that exist stay.</source>
        <translation>Rozjížďky po čtyřech, nejrychlejší proti nejpomalejším. Stávající zůstanou.</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Mezičasy</translation>
    </message>
    <message>
        <source>Upstream gates</source>
        <translation>Protivodné branky</translation>
    </message>
    <message>
        <source>A click shows the frame of a split</source>
        <translation>Kliknutí ukáže snímek mezičasu</translation>
    </message>
    <message>
        <source>gate %1</source>
        <translation>branka %1</translation>
    </message>
    <message>
        <source>roll</source>
        <translation>eskymák</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>time trial of %1</source>
        <translation>časovka: %1</translation>
    </message>
    <message>
        <source>films imported</source>
        <translation>filmy importovány</translation>
    </message>
    <message>
        <source>film of the trial</source>
        <translation>film časovky</translation>
    </message>
    <message>
        <source>athlete renamed</source>
        <translation>závodník přejmenován</translation>
    </message>
    <message>
        <source>time trial removed</source>
        <translation>časovka odstraněna</translation>
    </message>
    <message>
        <source>No trial has a time yet: heats are made from the fastest ones.</source>
        <translation>Žádná časovka zatím nemá čas: rozjížďky se tvoří z nejrychlejších.</translation>
    </message>
    <message>
        <source>There are heats already. They stay as they are, and those from the trials come behind them.</source>
        <translation>Rozjížďky už existují. Zůstanou, jak jsou, a ty z časovek přijdou za ně.</translation>
    </message>
    <message>
        <source>Make heats</source>
        <translation>Vytvořit rozjížďky</translation>
    </message>
    <message>
        <source>heats from the trials</source>
        <translation>rozjížďky z časovek</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Updates</name>
    <message>
        <source>Newer versions</source>
        <translation>Novější verze</translation>
    </message>
    <message>
        <source>May Kavela look once a day whether there is a newer version? It tells the server the version that you have, and nothing else. Without a yes it never looks by itself. You can change this in the settings.</source>
        <translation>Smí Kavela jednou denně zjistit, zda existuje novější verze? Serveru sdělí verzi, kterou máte, a nic jiného. Bez vašeho souhlasu to sama nikdy nezjišťuje. Změnit to lze v nastavení.</translation>
    </message>
    <message>
        <source>Yes, look once a day</source>
        <translation>Ano, zjišťovat jednou denně</translation>
    </message>
    <message>
        <source>Looking for a newer version…</source>
        <translation>Zjišťuje se novější verze…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::UpstreamPage</name>
    <message>
        <source>Gate</source>
        <translation>Branka</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Nájezd</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Výjezd</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Celkem</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Obrat</translation>
    </message>
    <message>
        <source>Mark the pole line too</source>
        <translation>Označit i rovinu branky</translation>
    </message>
    <message>
        <source>Turn to the</source>
        <translation>Obrat</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Styl</translation>
    </message>
    <message>
        <source>Gate %1 is marked. N goes to the next gate, Shift+M moves the selected mark.</source>
        <translation>Branka %1 je označena. N jde na další branku, Shift+M posune vybranou značku.</translation>
    </message>
    <message>
        <source>Gate %1 is no upstream gate. N goes to the next one.</source>
        <translation>Branka %1 není protivodná. N jde na další.</translation>
    </message>
    <message>
        <source>%1 of gate %2</source>
        <translation>%1 branky %2</translation>
    </message>
    <message>
        <source>Gate %1 %2</source>
        <translation>Branka %1 %2</translation>
    </message>
    <message>
        <source>gate %1 removed</source>
        <translation>branka %1 odstraněna</translation>
    </message>
    <message>
        <source>The marks of gate %1 are removed. Ctrl+Z brings them back.</source>
        <translation>Značky branky %1 jsou odstraněny. Ctrl+Z je vrátí.</translation>
    </message>
    <message>
        <source>Gate %1 is no upstream gate</source>
        <translation>Branka %1 není protivodná</translation>
    </message>
    <message>
        <source>Gate %1: M marks the %2</source>
        <translation>Branka %1: M označí %2</translation>
    </message>
    <message>
        <source>Gate %1 is marked</source>
        <translation>Branka %1 je označena</translation>
    </message>
    <message>
        <source>%1 s in the gate</source>
        <translation>%1 s v brance</translation>
    </message>
    <message>
        <source>gate %1</source>
        <translation>branka %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ValuesPanel</name>
    <message>
        <source>No test yet.

Add one by hand with Ctrl+N, or drop split files and recordings here.</source>
        <translation>Zatím žádný test.

Přidejte ho ručně pomocí Ctrl+N, nebo sem přetáhněte soubory mezičasů a záznamy.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::VariabilityDialog</name>
    <message>
        <source>There is no measurement in this list.</source>
        <translation>V tomto seznamu není žádné měření.</translation>
    </message>
    <message>
        <source>All %1 measurements of this list are there already.</source>
        <translation>Všechna měření tohoto seznamu (%1) už zde jsou.</translation>
    </message>
    <message>
        <source>1 measurement is new.</source>
        <translation>1 měření je nové.</translation>
    </message>
    <message>
        <source>1 other is there already.</source>
        <translation>1 další zde už je.</translation>
    </message>
    <message>
        <source>Import variability</source>
        <translation>Import variability</translation>
    </message>
    <message>
        <source>1 line is left out:</source>
        <translation>1 řádek je vynechán:</translation>
    </message>
    <message>
        <source>Add 1 measurement</source>
        <translation>Přidat 1 měření</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Řádek</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Důvod</translation>
    </message>
    <message numerus="yes">
        <source>%n measurements are new.</source>
        <translation>
            <numerusform>%n měření je nové.</numerusform>
            <numerusform>%n měření jsou nová.</numerusform>
            <numerusform>%n měření je nových.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n others are there already.</source>
        <translation>
            <numerusform>%n další zde už je.</numerusform>
            <numerusform>%n další zde už jsou.</numerusform>
            <numerusform>%n dalších zde už je.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines are left out:</source>
        <translation>
            <numerusform>%n řádek je vynechán:</numerusform>
            <numerusform>%n řádky jsou vynechány:</numerusform>
            <numerusform>%n řádků je vynecháno:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n measurements</source>
        <translation>
            <numerusform>Přidat %n měření</numerusform>
            <numerusform>Přidat %n měření</numerusform>
            <numerusform>Přidat %n měření</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WaterfallChart</name>
    <message>
        <source>One of the two has no total, so there is no sum. The sections that both have stand in the table and in the other charts.</source>
        <translation>Jedna z jízd nemá celkový čas, proto není součet. Úseky, které mají obě, jsou v tabulce a v ostatních grafech.</translation>
    </message>
    <message>
        <source>Sections, penalties and timing from total to total</source>
        <translation>Úseky, penalizace a měření od času k času</translation>
    </message>
    <message>
        <source>penalties</source>
        <translation>penalizace</translation>
    </message>
    <message>
        <source>timing</source>
        <translation>měření</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekundy</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Ukázáno</translation>
    </message>
    <message>
        <source>Up to here</source>
        <translation>Až sem</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Část</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WeekForm</name>
    <message>
        <source>Macrocycle</source>
        <translation>Makrocyklus</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mezocyklus</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Místo</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>On-water test</source>
        <translation>Test na vodě</translation>
    </message>
    <message>
        <source>done on</source>
        <translation>provedeno</translation>
    </message>
    <message>
        <source>Endurance test</source>
        <translation>Vytrvalostní test</translation>
    </message>
    <message>
        <source>Blood test</source>
        <translation>Krevní test</translation>
    </message>
    <message>
        <source>Injured part</source>
        <translation>Zraněná část</translation>
    </message>
    <message>
        <source>Health notes</source>
        <translation>Zdravotní poznámky</translation>
    </message>
    <message>
        <source>“%1” are no dates. Write them as 2026-03-10, with commas between.</source>
        <translation>„%1“ nejsou data. Pište je jako 2026-03-10, s čárkami mezi nimi.</translation>
    </message>
    <message>
        <source>dates of tests</source>
        <translation>data testů</translation>
    </message>
    <message>
        <source>load</source>
        <translation>zatížení</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Zatížení</translation>
    </message>
    <message>
        <source>health</source>
        <translation>zdraví</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Zdraví</translation>
    </message>
    <message>
        <source>One per line</source>
        <translation>Jeden na řádek</translation>
    </message>
    <message>
        <source>goals of the week</source>
        <translation>cíle týdne</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Cíle</translation>
    </message>
    <message>
        <source>Week %1 · from %2</source>
        <translation>Týden %1 · od %2</translation>
    </message>
    <message>
        <source>Week %1</source>
        <translation>Týden %1</translation>
    </message>
    <message>
        <source>%1 weeks are chosen: load, cycles and place go into all of them.</source>
        <translation>Zvolené týdny: %1; zatížení, cykly a místo se zapíší do všech.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WeekGrid</name>
    <message>
        <source>Morning</source>
        <translation>Ráno</translation>
    </message>
    <message>
        <source>Afternoon</source>
        <translation>Odpoledne</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Večer</translation>
    </message>
    <message>
        <source>Any time</source>
        <translation>Kdykoli</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Týden</translation>
    </message>
    <message>
        <source>On no day of this week</source>
        <translation>V žádném dni tohoto týdne</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Jednotka</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyKeys</name>
    <message>
        <source>Go to a number first, or hold Alt and click on it.</source>
        <translation>Nejdřív přejděte na číslo, nebo držte Alt a klikněte na něj.</translation>
    </message>
    <message>
        <source>Nothing was computed here.</source>
        <translation>Zde se nic nepočítalo.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyLabel</name>
    <message>
        <source>Alt+click or Shift+F1: why</source>
        <translation>Alt+klik nebo Shift+F1: proč</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyPanel</name>
    <message>
        <source>counted</source>
        <translation>počítá se</translation>
    </message>
    <message>
        <source>dropped: worst</source>
        <translation>škrtnuto: nejhorší</translation>
    </message>
    <message>
        <source>dropped: bonus</source>
        <translation>škrtnuto: bonus</translation>
    </message>
    <message>
        <source>no result</source>
        <translation>bez výsledku</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Výsledek</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Procenta</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Body</translation>
    </message>
    <message>
        <source>Select an athlete to see where the score comes from.</source>
        <translation>Vyberte závodníka a uvidíte, odkud se body berou.</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Bonus</source>
        <translation>Bonus</translation>
    </message>
    <message>
        <source>Score: %1 / 3 = %2</source>
        <translation>Body: %1 / 3 = %2</translation>
    </message>
    <message>
        <source>Place: was %1, now %2. Score: was %3, now %4.</source>
        <translation>Místo: bylo %1, nyní %2. Body: bylo %3, nyní %4.</translation>
    </message>
    <message>
        <source>%1 s in %2</source>
        <translation>%1 s, závod %2</translation>
    </message>
    <message>
        <source>A place better with a total of
%1</source>
        <translation>O místo lépe s celkovým časem
%1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyWindow</name>
    <message>
        <source>Rule: %1</source>
        <translation>Pravidlo: %1</translation>
    </message>
    <message>
        <source>Within %1</source>
        <translation>V rámci %1</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Zdroj: %1</translation>
    </message>
    <message>
        <source>Why this number?</source>
        <translation>Proč toto číslo?</translation>
    </message>
    <message>
        <source>Why %1</source>
        <translation>Proč %1</translation>
    </message>
    <message>
        <source>What went into it</source>
        <translation>Z čeho to vzniklo</translation>
    </message>
    <message>
        <source>Enter opens a number made on the way, and shows the place of a value</source>
        <translation>Enter otevře číslo spočtené cestou a ukáže místo hodnoty</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Z čeho</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Kde</translation>
    </message>
    <message>
        <source>Show this place (Enter)</source>
        <translation>Ukázat toto místo (Enter)</translation>
    </message>
    <message>
        <source>%1, link</source>
        <translation>%1, odkaz</translation>
    </message>
    <message>
        <source>&amp;Copy as text</source>
        <translation>&amp;Kopírovat jako text</translation>
    </message>
    <message>
        <source>The whole explanation (%1)</source>
        <translation>Celé vysvětlení (%1)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Workspace</name>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Uložit změny v %1?</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::YearStrip</name>
    <message>
        <source>Year</source>
        <translation>Rok</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Měsíc</translation>
    </message>
    <message>
        <source>Macrocycle</source>
        <translation>Makrocyklus</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mezocyklus</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Zatížení</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Týden</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Testy</translation>
    </message>
</context>
</TS>
