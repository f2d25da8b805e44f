<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name></name>
    <message>
        <source>Selection results</source>
        <translation>Ergebnisse der Nominierung</translation>
    </message>
    <message>
        <source>Selection results xTimes</source>
        <translation>Ergebnisse der Nominierung, xTimes</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>not in the selection</source>
        <translation>nicht in der Nominierung</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Auslassen</translation>
    </message>
    <message>
        <source>Add %1 to the selection</source>
        <translation>%1 zur Nominierung hinzufügen</translation>
    </message>
</context>
<context>
    <name>AthletePanel</name>
    <message>
        <source>An athlete needs a name.</source>
        <translation>Ein Athlet braucht einen Namen.</translation>
    </message>
    <message>
        <source>“%1” is in the team already.</source>
        <translation>„%1“ ist schon im Team.</translation>
    </message>
</context>
<context>
    <name>ChartExport</name>
    <message>
        <source>Picture (*.png)</source>
        <translation>Bild (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>Zeichnung (*.svg)</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabelle (*.csv)</translation>
    </message>
    <message>
        <source>Save chart</source>
        <translation>Diagramm speichern</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>A race</source>
        <translation>Ein Rennen</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>The season</source>
        <translation>Die Saison</translation>
    </message>
    <message>
        <source>Training</source>
        <translation>Training</translation>
    </message>
</context>
<context>
    <name>EightTest</name>
    <message>
        <source>Total – · %1 of %2 splits are timed</source>
        <translation>Gesamt – · %1 von %2 Zwischenzeiten sind gestoppt</translation>
    </message>
    <message>
        <source>Total %1 s · standard deviation %2 s</source>
        <translation>Gesamt %1 s · Standardabweichung %2 s</translation>
    </message>
</context>
<context>
    <name>FindWindow</name>
    <message>
        <source>The table cannot be written over a file that is searched.</source>
        <translation>Die Tabelle kann nicht über eine Datei geschrieben werden, die durchsucht wird.</translation>
    </message>
</context>
<context>
    <name>IntervalTexts</name>
    <message>
        <source>A duration is written as seconds or as 1:30, up to a day</source>
        <translation>Eine Dauer sind Sekunden oder wie 1:30, bis zu einem Tag</translation>
    </message>
    <message>
        <source>Sets and repetitions are whole numbers from 0 to 9999</source>
        <translation>Sätze und Wiederholungen sind ganze Zahlen von 0 bis 9999</translation>
    </message>
    <message>
        <source>Volume and intensity are numbers such as 4.5</source>
        <translation>Umfang und Intensität sind Zahlen wie 4.5</translation>
    </message>
    <message>
        <source>, rest %1</source>
        <translation>, Pause %1</translation>
    </message>
    <message>
        <source>%1 in all, %2 of it work; repetitions: %3</source>
        <translation>%1 im Ganzen, davon %2 Arbeit; Wiederholungen: %3</translation>
    </message>
</context>
<context>
    <name>KeyOverlay</name>
    <message>
        <source>In the part with the focus</source>
        <translation>Im Teil mit dem Fokus</translation>
    </message>
</context>
<context>
    <name>ListedTest</name>
    <message>
        <source>No name</source>
        <translation>Ohne Namen</translation>
    </message>
    <message>
        <source>Lap test</source>
        <translation>Rundentest</translation>
    </message>
    <message>
        <source>Sprint</source>
        <translation>Sprint</translation>
    </message>
    <message>
        <source>Eight test</source>
        <translation>Achtertest</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Runde</translation>
    </message>
    <message>
        <source>Eight</source>
        <translation>Acht</translation>
    </message>
</context>
<context>
    <name>MeasureCharts</name>
    <message>
        <source>below what is usual</source>
        <translation>unter dem Üblichen</translation>
    </message>
    <message>
        <source>within what is usual</source>
        <translation>im Rahmen des Üblichen</translation>
    </message>
    <message>
        <source>above what is usual</source>
        <translation>über dem Üblichen</translation>
    </message>
    <message>
        <source>Weight and body fat</source>
        <translation>Gewicht und Körperfett</translation>
    </message>
    <message>
        <source>Body fat (%)</source>
        <translation>Körperfett (%)</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Body fat</source>
        <translation>Körperfett</translation>
    </message>
    <message>
        <source>Weight (kg)</source>
        <translation>Gewicht (kg)</translation>
    </message>
    <message>
        <source>Add a weight or body fat to see how it goes through the season.</source>
        <translation>Gewicht oder Körperfett hinzufügen, um den Verlauf über die Saison zu sehen.</translation>
    </message>
    <message>
        <source>Usual: mean ± one standard deviation of the four weeks before</source>
        <translation>Üblich: Mittel ± eine Standardabweichung der vier Wochen davor</translation>
    </message>
    <message>
        <source>Each day</source>
        <translation>Jeder Tag</translation>
    </message>
    <message>
        <source>Seven-day mean</source>
        <translation>Sieben-Tage-Mittel</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>Üblich</translation>
    </message>
    <message>
        <source>Week to %1: mean %2</source>
        <translation>Woche bis %1: Mittel %2</translation>
    </message>
    <message>
        <source>%1. What is usual is known after seven measured days of the 28 before.</source>
        <translation>%1. Was üblich ist, steht fest nach sieben gemessenen Tagen von den 28 davor.</translation>
    </message>
    <message>
        <source>%1, %2 (%3 to %4).</source>
        <translation>%1, %2 (%3 bis %4).</translation>
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
        <translation>„%1“ ist eine Aufzeichnung der Version 4. Sie lässt sich in die heutige Version umwandeln: „%2“ wird daneben geschrieben, die Aufzeichnung selbst bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>Convert and open</source>
        <translation>Umwandeln und öffnen</translation>
    </message>
</context>
<context>
    <name>OnlineStore</name>
    <message>
        <source>The server does not accept the user name or the password.</source>
        <translation>Der Server nimmt Benutzernamen oder Passwort nicht an.</translation>
    </message>
</context>
<context>
    <name>PlanningHandouts</name>
    <message>
        <source>Choose an athlete with a season first.</source>
        <translation>Erst einen Athleten mit einer Saison wählen.</translation>
    </message>
    <message>
        <source>Week %1</source>
        <translation>Woche %1</translation>
    </message>
    <message>
        <source>Week %1 %2.pdf</source>
        <translation>Woche %1 %2.pdf</translation>
    </message>
    <message>
        <source>Season %1</source>
        <translation>Saison %1</translation>
    </message>
    <message>
        <source>Season %1 %2.pdf</source>
        <translation>Saison %1 %2.pdf</translation>
    </message>
    <message>
        <source>There is no week to write.</source>
        <translation>Keine Woche zu schreiben.</translation>
    </message>
    <message>
        <source>Week %1 %2.ics</source>
        <translation>Woche %1 %2.ics</translation>
    </message>
    <message>
        <source>Week as a calendar file</source>
        <translation>Woche als Kalenderdatei</translation>
    </message>
    <message>
        <source>Calendar files (*.ics)</source>
        <translation>Kalenderdateien (*.ics)</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>%1 ist geschrieben.</translation>
    </message>
</context>
<context>
    <name>ProgressionChart</name>
    <message>
        <source>Position after each phase; the chosen race is drawn heavier</source>
        <translation>Position nach jeder Phase; das gewählte Rennen ist stärker gezeichnet</translation>
    </message>
    <message>
        <source>position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Positions of the phases stand here once they are entered.</source>
        <translation>Hier stehen die Positionen der Phasen, sobald sie eingetragen sind.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>start of the roll</source>
        <translation>Beginn der Rolle</translation>
    </message>
    <message>
        <source>boat upside down</source>
        <translation>Boot kieloben</translation>
    </message>
    <message>
        <source>boat up again</source>
        <translation>Boot wieder oben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Recent files, in %1</source>
        <translation>Zuletzt geöffnet, in %1</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Search everything…</source>
        <translation>&amp;Alles durchsuchen…</translation>
    </message>
    <message>
        <source>&amp;All keys</source>
        <translation>Alle &amp;Tasten</translation>
    </message>
    <message>
        <source>&amp;Why this number?</source>
        <translation>&amp;Warum diese Zahl?</translation>
    </message>
    <message>
        <source>&amp;Change keys…</source>
        <translation>Tasten ä&amp;ndern…</translation>
    </message>
    <message>
        <source>&amp;Full screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>Where are the films now?</source>
        <translation>Wo sind die Filme jetzt?</translation>
    </message>
    <message>
        <source>Videos (*.mov *.mp4 *.m4v *.avi *.mkv *.mts *.m2ts *.ts *.3gp *.webm *.mpg);;All files (*)</source>
        <translation>Videos (*.mov *.mp4 *.m4v *.avi *.mkv *.mts *.m2ts *.ts *.3gp *.webm *.mpg);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The folder has another film named %1 already. Give one of them another name first.</source>
        <translation>Der Ordner hat schon einen anderen Film namens %1. Erst einem der beiden einen anderen Namen geben.</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>%1 wird kopiert</translation>
    </message>
    <message>
        <source>%1 could not be copied into the folder.</source>
        <translation>%1 konnte nicht in den Ordner kopiert werden.</translation>
    </message>
    <message>
        <source>entrance</source>
        <translation>Einfahrt</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>Ausfahrt</translation>
    </message>
    <message>
        <source>All splits of this run are marked.</source>
        <translation>Alle Zwischenzeiten dieses Laufs sind markiert.</translation>
    </message>
    <message>
        <source>Mark the start first: the splits are expected from there on.</source>
        <translation>Erst den Start markieren: von dort an werden die Zwischenzeiten erwartet.</translation>
    </message>
    <message>
        <source>No other run has split %1 yet: nothing tells where it is to be expected.</source>
        <translation>Noch kein anderer Lauf hat Zwischenzeit %1: nichts sagt, wo sie zu erwarten ist.</translation>
    </message>
    <message>
        <source>&amp;Look for a newer version</source>
        <translation>Nach neuerer Version &amp;suchen</translation>
    </message>
    <message>
        <source>User &amp;guide</source>
        <translation>&amp;Handbuch</translation>
    </message>
</context>
<context>
    <name>QueryForm</name>
    <message>
        <source>&amp;Athlete</source>
        <translation>&amp;Athlet</translation>
    </message>
    <message>
        <source>anyone</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Kategorie</translation>
    </message>
    <message>
        <source>&amp;Phase</source>
        <translation>&amp;Phase</translation>
    </message>
    <message>
        <source>any</source>
        <translation>beliebig</translation>
    </message>
    <message>
        <source>P&amp;lace</source>
        <translation>P&amp;latz</translation>
    </message>
    <message>
        <source>anywhere</source>
        <translation>überall</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Jahr</translation>
    </message>
    <message>
        <source>&amp;Gate</source>
        <translation>&amp;Tor</translation>
    </message>
    <message>
        <source>&amp;Up or down</source>
        <translation>Auf o&amp;der ab</translation>
    </message>
    <message>
        <source>both</source>
        <translation>beides</translation>
    </message>
    <message>
        <source>&amp;Direction</source>
        <translation>Richtun&amp;g</translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation>&amp;Stil</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>A&amp;rt</translation>
    </message>
</context>
<context>
    <name>RaceExchange</name>
    <message>
        <source>course</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Names of the films</source>
        <translation>Namen der Filme</translation>
    </message>
    <message>
        <source>How the films are named, such as &quot;{any} {name} {category} {phase}&quot;.
{name}, {category}, {phase}, {bib}, {number} and {any} stand for what differs.</source>
        <translation>Wie die Filme heißen, etwa „{any} {name} {category} {phase}“.
{name}, {category}, {phase}, {bib}, {number} und {any} stehen für das, was wechselt.</translation>
    </message>
    <message>
        <source>Import split file</source>
        <translation>Zwischenzeitdatei importieren</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Zwischenzeitdateien (*.kvx);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Import official results</source>
        <translation>Offizielle Ergebnisse importieren</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt);;All files (*)</source>
        <translation>Listen (*.csv *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>There are no results in %1.</source>
        <translation>In %1 sind keine Ergebnisse.</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>drawing of the course</source>
        <translation>Zeichnung der Strecke</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen…</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>RankingCharts</name>
    <message>
        <source>Release</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>The chart begins with the first position.</source>
        <translation>Das Diagramm beginnt mit der ersten Position.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>The chart begins with the first points.</source>
        <translation>Das Diagramm beginnt mit den ersten Punkten.</translation>
    </message>
    <message>
        <source>Touches and missed gates per run</source>
        <translation>Berührungen und Torfehler je Lauf</translation>
    </message>
    <message>
        <source>per run</source>
        <translation>je Lauf</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Berührungen</translation>
    </message>
    <message>
        <source>Missed gates</source>
        <translation>Torfehler</translation>
    </message>
    <message>
        <source>Take the season&apos;s statistics from split files to see penalties here.</source>
        <translation>Die Statistik der Saison aus Zwischenzeitdateien übernehmen, um hier Strafen zu sehen.</translation>
    </message>
    <message>
        <source>Behind the best of the category</source>
        <translation>Hinter dem Besten der Kategorie</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>Races with a time and a best time stand here.</source>
        <translation>Hier stehen Rennen mit einer Zeit und einer Bestzeit.</translation>
    </message>
</context>
<context>
    <name>RankingSection</name>
    <message>
        <source>The release of a ranking list is a whole number such as 4</source>
        <translation>Die Ausgabe einer Rangliste ist eine ganze Zahl wie 4</translation>
    </message>
</context>
<context>
    <name>RunForm</name>
    <message>
        <source>A penalty is a whole number of seconds, 0 to 999</source>
        <translation>Eine Strafe ist eine ganze Zahl von Sekunden, 0 bis 999</translation>
    </message>
</context>
<context>
    <name>SeasonChart</name>
    <message>
        <source>%1: penalty (s)</source>
        <translation>%1: Strafe (s)</translation>
    </message>
    <message>
        <source>% behind</source>
        <translation>% Rückstand</translation>
    </message>
    <message>
        <source>penalty (s)</source>
        <translation>Strafe (s)</translation>
    </message>
    <message>
        <source>Percent behind the fastest as lines, penalty seconds as bars</source>
        <translation>Prozent hinter dem Schnellsten als Linien, Strafsekunden als Balken</translation>
    </message>
    <message>
        <source>Penalties only; percent behind comes with split files</source>
        <translation>Nur Strafen; Prozent Rückstand kommen mit Zwischenzeitdateien</translation>
    </message>
    <message>
        <source>Percent behind the fastest stands here once runs are taken over from split files.</source>
        <translation>Prozent hinter dem Schnellsten stehen hier, sobald Läufe aus Zwischenzeitdateien übernommen sind.</translation>
    </message>
</context>
<context>
    <name>SelectionTakeOver</name>
    <message>
        <source>Lists (*.csv *.txt);;All files (*)</source>
        <translation>Listen (*.csv *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Import athletes</source>
        <translation>Athleten importieren</translation>
    </message>
    <message>
        <source>athletes imported</source>
        <translation>Athleten importiert</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>“%1” cannot be read</source>
        <translation>„%1“ ist nicht lesbar</translation>
    </message>
    <message>
        <source>One athlete was added.</source>
        <translation>Ein Athlet wurde hinzugefügt.</translation>
    </message>
    <message>
        <source>The list is no UTF-8 text and was read as Latin-1: look at the names.</source>
        <translation>Die Liste ist kein UTF-8-Text und wurde als Latin-1 gelesen: die Namen prüfen.</translation>
    </message>
    <message>
        <source>Line %1: the category %2 is new in the selection.</source>
        <translation>Zeile %1: die Kategorie %2 ist neu in der Nominierung.</translation>
    </message>
    <message>
        <source>Line %1: the category %2 is new in the selection, and none that boats are raced in.</source>
        <translation>Zeile %1: die Kategorie %2 ist neu in der Nominierung und keine, in der Boote fahren.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Results of which race?</source>
        <translation>Ergebnisse welches Rennens?</translation>
    </message>
    <message>
        <source>Add a category first.</source>
        <translation>Erst eine Kategorie hinzufügen.</translation>
    </message>
    <message>
        <source>Split files of the race</source>
        <translation>Zwischenzeitdateien des Rennens</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Zwischenzeitdateien (*.kvx);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>There are no results in it.</source>
        <translation>Darin sind keine Ergebnisse.</translation>
    </message>
    <message>
        <source>results taken over</source>
        <translation>Ergebnisse übernommen</translation>
    </message>
    <message numerus="yes">
        <source>%n athletes were added.</source>
        <translation>
            <numerusform>%n Athlet wurde hinzugefügt.</numerusform>
            <numerusform>%n Athleten wurden hinzugefügt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SessionConversion</name>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>„%1“ lässt sich nicht öffnen</translation>
    </message>
</context>
<context>
    <name>SessionEdits</name>
    <message>
        <source>session information</source>
        <translation>Angaben zur Einheit</translation>
    </message>
    <message>
        <source>Nothing was cut</source>
        <translation>Nichts wurde geschnitten</translation>
    </message>
    <message>
        <source>Too little would be left of the session.</source>
        <translation>Von der Einheit bliebe zu wenig übrig.</translation>
    </message>
    <message>
        <source>cut to a stretch</source>
        <translation>auf ein Stück gekürzt</translation>
    </message>
    <message>
        <source>removal of a stretch</source>
        <translation>Entfernen eines Stücks</translation>
    </message>
    <message>
        <source>removal of strokes</source>
        <translation>Entfernen von Schlägen</translation>
    </message>
    <message>
        <source>new analysis</source>
        <translation>neue Auswertung</translation>
    </message>
    <message>
        <source>mount of the phone</source>
        <translation>Lage des Telefons</translation>
    </message>
</context>
<context>
    <name>SessionExports</name>
    <message>
        <source>Save the edited .kvb file</source>
        <translation>Bearbeitete .kvb-Datei speichern</translation>
    </message>
    <message>
        <source>Recordings (*.kvb)</source>
        <translation>Aufzeichnungen (*.kvb)</translation>
    </message>
    <message>
        <source>Export the table</source>
        <translation>Tabelle exportieren</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Text mit Semikolons (*.csv)</translation>
    </message>
</context>
<context>
    <name>SessionImports</name>
    <message>
        <source>%1 positions and %2 heart rates were taken over.</source>
        <translation>%1 Positionen und %2 Herzfrequenzen wurden übernommen.</translation>
    </message>
    <message>
        <source>Import the recording of the boat first: a track gives it positions and heart rates.</source>
        <translation>Erst die Aufzeichnung des Boots importieren: ein Track gibt ihr Positionen und Herzfrequenzen.</translation>
    </message>
    <message>
        <source>track of a watch</source>
        <translation>Track einer Uhr</translation>
    </message>
    <message>
        <source>move of a watch&apos;s track</source>
        <translation>Verschieben des Tracks einer Uhr</translation>
    </message>
    <message>
        <source>Import power-meter data</source>
        <translation>Daten eines Leistungsmessers importieren</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt)</source>
        <translation>Listen (*.csv *.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>“%1” cannot be read</source>
        <translation>„%1“ ist nicht lesbar</translation>
    </message>
    <message>
        <source>Import a recording or a session first: power-meter data belongs to its strokes.</source>
        <translation>Erst eine Aufzeichnung oder Einheit importieren: Daten eines Leistungsmessers gehören zu ihren Schlägen.</translation>
    </message>
    <message>
        <source>import of power-meter data</source>
        <translation>Import von Daten eines Leistungsmessers</translation>
    </message>
</context>
<context>
    <name>SessionSeries</name>
    <message>
        <source>Power</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>Power meter</source>
        <translation>Leistungsmesser</translation>
    </message>
    <message>
        <source>Water phase</source>
        <translation>Wasserphase</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Aerial phase</source>
        <translation>Luftphase</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>m/s</source>
        <translation>m/s</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Herzfrequenz</translation>
    </message>
    <message>
        <source>1/min</source>
        <translation>1/min</translation>
    </message>
    <message>
        <source>Pitch in turns</source>
        <translation>Stampfen in Drehungen</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Schlagfrequenz</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Kraft</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>Impulse</source>
        <translation>Impuls</translation>
    </message>
    <message>
        <source>N·s</source>
        <translation>N·s</translation>
    </message>
    <message>
        <source>Roll of the stroke</source>
        <translation>Rollen des Schlags</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>side unknown</source>
        <translation>Seite unbekannt</translation>
    </message>
    <message>
        <source>Side unknown: when the session was made, it was not known which side of the phone points to the bow.</source>
        <translation>Seite unbekannt: als die Einheit entstand, war nicht bekannt, welche Seite des Telefons zum Bug zeigt.</translation>
    </message>
    <message>
        <source>The file does not tell how the clocks of strokes and fixes go together: they were fitted by the turns and may be some seconds apart.</source>
        <translation>Die Datei sagt nicht, wie die Uhren von Schlägen und Ortungen zusammengehen: sie wurden nach den Drehungen angepasst und können um Sekunden abweichen.</translation>
    </message>
    <message>
        <source>Power-meter data is not in the strokes yet; you are asked on saving.</source>
        <translation>Die Daten des Leistungsmessers sind noch nicht in den Schlägen; beim Speichern wird gefragt.</translation>
    </message>
</context>
<context>
    <name>SharePlace</name>
    <message>
        <source>Choose the folder…</source>
        <translation>Ordner wählen…</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>On this computer, with everything below it but hidden files</source>
        <translation>Auf diesem Rechner, mit allem darunter außer verborgenen Dateien</translation>
    </message>
    <message>
        <source>the folder that is shared</source>
        <translation>der geteilte Ordner</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adresse</translation>
    </message>
    <message>
        <source>Of a folder on a WebDAV server: Nextcloud, ownCloud, a NAS, Apache…</source>
        <translation>Eines Ordners auf einem WebDAV-Server: Nextcloud, ownCloud, ein NAS, Apache…</translation>
    </message>
    <message>
        <source>There is no folder to share yet.</source>
        <translation>Noch kein Ordner zum Teilen.</translation>
    </message>
    <message>
        <source>“%1” is no folder.</source>
        <translation>„%1“ ist kein Ordner.</translation>
    </message>
</context>
<context>
    <name>SlitMarking</name>
    <message>
        <source>The film is not read so far.</source>
        <translation>Der Film ist noch nicht so weit gelesen.</translation>
    </message>
    <message>
        <source>There is no proposal at the hair line.</source>
        <translation>An der Haarlinie ist kein Vorschlag.</translation>
    </message>
    <message>
        <source>Nothing can be accepted without a line, its proposals and the race.</source>
        <translation>Nichts lässt sich annehmen ohne eine Linie, ihre Vorschläge und das Rennen.</translation>
    </message>
    <message>
        <source>proposals accepted</source>
        <translation>Vorschläge angenommen</translation>
    </message>
    <message>
        <source>On this frame stands the mark of %1.</source>
        <translation>Auf diesem Bild steht die Marke von %1.</translation>
    </message>
    <message>
        <source>No other film of this folder has lines.</source>
        <translation>Kein anderer Film dieses Ordners hat Linien.</translation>
    </message>
    <message>
        <source>The lines of “%1” were drawn over a picture of %2 × %3 pixels; this film has %4 × %5.</source>
        <translation>Die Linien von „%1“ wurden über ein Bild von %2 × %3 Pixeln gezogen; dieser Film hat %4 × %5.</translation>
    </message>
    <message>
        <source>Press N and draw a line across the water in the film above: what stands on it is shown here over time.</source>
        <translation>N drücken und im Film oben eine Linie übers Wasser ziehen: hier erscheint, was über die Zeit auf ihr steht.</translation>
    </message>
    <message>
        <source>Or press L for the lines of “%1”.</source>
        <translation>Oder L für die Linien von „%1“.</translation>
    </message>
    <message>
        <source>“%1” is timed at the bow: one race needs one point.</source>
        <translation>„%1“ ist am Bug gemessen: Ein Rennen braucht einen Punkt.</translation>
    </message>
    <message>
        <source>“%1” is timed at the body: one race needs one point.</source>
        <translation>„%1“ ist am Körper gemessen: Ein Rennen braucht einen Punkt.</translation>
    </message>
    <message>
        <source>A mark of this line was made before: look at it again.</source>
        <translation>Eine Marke dieser Linie ist älter: Sehen Sie sie noch einmal an.</translation>
    </message>
    <message numerus="yes">
        <source>%n marks of this line were made before: look at them again.</source>
        <translation>
            <numerusform>Eine Marke dieser Linie ist älter: Sehen Sie sie noch einmal an.</numerusform>
            <numerusform>%n Marken dieser Linie sind älter: Sehen Sie sie noch einmal an.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SplitStatistics</name>
    <message>
        <source>is no split file that can be read</source>
        <translation>ist keine lesbare Zwischenzeitdatei</translation>
    </message>
    <message>
        <source>has no date</source>
        <translation>hat kein Datum</translation>
    </message>
    <message>
        <source>is of %1</source>
        <translation>ist von %1</translation>
    </message>
    <message>
        <source>has no run of %1</source>
        <translation>hat keinen Lauf von %1</translation>
    </message>
</context>
<context>
    <name>SpokenNames</name>
    <message>
        <source>Splits</source>
        <translation>Zwischenzeiten</translation>
    </message>
    <message>
        <source>Splits of the time trial</source>
        <translation>Zwischenzeiten des Zeitfahrens</translation>
    </message>
    <message>
        <source>Time trials</source>
        <translation>Zeitfahren</translation>
    </message>
    <message>
        <source>Heats</source>
        <translation>Heats</translation>
    </message>
    <message>
        <source>Attacks</source>
        <translation>Angriffe</translation>
    </message>
    <message>
        <source>Who attacks</source>
        <translation>Wer angreift</translation>
    </message>
    <message>
        <source>Side of the attack</source>
        <translation>Seite des Angriffs</translation>
    </message>
    <message>
        <source>Place of the attack</source>
        <translation>Ort des Angriffs</translation>
    </message>
    <message>
        <source>Attacks by athlete</source>
        <translation>Angriffe nach Athleten</translation>
    </message>
    <message>
        <source>Attacks by place</source>
        <translation>Angriffe nach Ort</translation>
    </message>
    <message>
        <source>Notes of the run</source>
        <translation>Notizen des Laufs</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Athleten</translation>
    </message>
    <message>
        <source>Results by season</source>
        <translation>Ergebnisse nach Saison</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>Mittelwerte</translation>
    </message>
    <message>
        <source>Ranking</source>
        <translation>Rangliste</translation>
    </message>
    <message>
        <source>Touches by gate</source>
        <translation>Berührungen nach Tor</translation>
    </message>
    <message>
        <source>What was noted of penalties</source>
        <translation>Was zu Strafen notiert wurde</translation>
    </message>
    <message>
        <source>What penalties cost</source>
        <translation>Was Strafen kosten</translation>
    </message>
    <message>
        <source>Risk and speed by thirds</source>
        <translation>Risiko und Tempo nach Dritteln</translation>
    </message>
    <message>
        <source>Losses by section</source>
        <translation>Verluste nach Abschnitt</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Ziele</translation>
    </message>
    <message>
        <source>Measures of the body</source>
        <translation>Körpermaße</translation>
    </message>
    <message>
        <source>Exercises</source>
        <translation>Übungen</translation>
    </message>
    <message>
        <source>Intervals</source>
        <translation>Intervalle</translation>
    </message>
    <message>
        <source>Films compared</source>
        <translation>Verglichene Filme</translation>
    </message>
    <message>
        <source>Films to choose from</source>
        <translation>Filme zur Auswahl</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Work kept</source>
        <translation>Bewahrte Arbeit</translation>
    </message>
    <message>
        <source>Pattern of the names</source>
        <translation>Muster der Namen</translation>
    </message>
    <message>
        <source>Names now and then</source>
        <translation>Namen jetzt und danach</translation>
    </message>
    <message>
        <source>Films being composed</source>
        <translation>Filme in Arbeit</translation>
    </message>
</context>
<context>
    <name>TestCharts</name>
    <message>
        <source>Not recorded, and not entered</source>
        <translation>Nicht aufgezeichnet und nicht eingetragen</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Runde</translation>
    </message>
    <message>
        <source>Stretch of the sprint</source>
        <translation>Stück des Sprints</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Time from the start (s)</source>
        <translation>Zeit ab Start (s)</translation>
    </message>
    <message>
        <source>Only a recording tells this</source>
        <translation>Das sagt nur eine Aufzeichnung</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Zwischenzeit</translation>
    </message>
</context>
<context>
    <name>ToolWindow</name>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen…</translation>
    </message>
</context>
<context>
    <name>TrialMarking</name>
    <message>
        <source>Add the first athlete above</source>
        <translation>Oben den ersten Athleten hinzufügen</translation>
    </message>
    <message>
        <source>M marks split %1</source>
        <translation>M markiert Zwischenzeit %1</translation>
    </message>
    <message>
        <source>M marks the start</source>
        <translation>M markiert den Start</translation>
    </message>
    <message>
        <source>M marks the %1</source>
        <translation>M markiert: %1</translation>
    </message>
    <message>
        <source>The roll is marked</source>
        <translation>Die Rolle ist markiert</translation>
    </message>
    <message>
        <source>The cross course has no gates yet</source>
        <translation>Die Cross-Strecke hat noch keine Tore</translation>
    </message>
    <message>
        <source>Gate %1: M marks the %2</source>
        <translation>Tor %1: M markiert: %2</translation>
    </message>
    <message>
        <source>Gate %1 is marked</source>
        <translation>Tor %1 ist markiert</translation>
    </message>
    <message>
        <source>The time of this trial was taken without marks on the film. Marking it anew replaces it.</source>
        <translation>Die Zeit dieses Zeitfahrens wurde ohne Marken im Film genommen. Neues Markieren ersetzt sie.</translation>
    </message>
    <message>
        <source>Mark anew</source>
        <translation>Neu markieren</translation>
    </message>
    <message>
        <source>start mark</source>
        <translation>Startmarke</translation>
    </message>
    <message>
        <source>split %1</source>
        <translation>Zwischenzeit %1</translation>
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
        <translation>Zwischenzeit %1 wurde zwischen zwei Marken eingefügt. Strg+Z nimmt sie wieder heraus.</translation>
    </message>
    <message>
        <source>Gate %1 is marked. N goes to the next gate, Shift+M moves the selected mark.</source>
        <translation>Tor %1 ist markiert. N geht zum nächsten Tor, Umschalt+M verschiebt die gewählte Marke.</translation>
    </message>
    <message>
        <source>The cross course has no gates yet: they are set above.</source>
        <translation>Die Cross-Strecke hat noch keine Tore: sie werden oben gesetzt.</translation>
    </message>
    <message>
        <source>%1 of gate %2</source>
        <translation>%1 von Tor %2</translation>
    </message>
    <message>
        <source>Gate %1 %2</source>
        <translation>Tor %1 %2</translation>
    </message>
    <message>
        <source>The roll is marked. Shift+M moves the selected mark, Delete removes it.</source>
        <translation>Die Rolle ist markiert. Umschalt+M verschiebt die gewählte Marke, Entf entfernt sie.</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>Keine Marke ist gewählt. Strg und die Pfeile gehen von Marke zu Marke.</translation>
    </message>
    <message>
        <source>mark moved</source>
        <translation>Marke verschoben</translation>
    </message>
    <message>
        <source>mark removed</source>
        <translation>Marke entfernt</translation>
    </message>
    <message>
        <source>Without a start mark the time counts from the beginning of the film.</source>
        <translation>Ohne Startmarke zählt die Zeit vom Anfang des Films.</translation>
    </message>
    <message>
        <source>gate %1 removed</source>
        <translation>Tor %1 entfernt</translation>
    </message>
</context>
<context>
    <name>TypedMeasures</name>
    <message>
        <source>This moment is in no calendar: %1 seconds from 2001-01-01. It stays as it is until another date is typed.</source>
        <translation>Dieser Moment steht in keinem Kalender: %1 Sekunden ab 2001-01-01. Er bleibt, bis ein anderes Datum getippt wird.</translation>
    </message>
    <message>
        <source>A value below 0 cannot be measured.</source>
        <translation>Ein Wert unter 0 lässt sich nicht messen.</translation>
    </message>
    <message>
        <source>More than %1 was hardly measured.</source>
        <translation>Mehr als %1 wurde kaum gemessen.</translation>
    </message>
    <message>
        <source>It stays as it is until another one is typed.</source>
        <translation>Es bleibt, bis etwas anderes getippt wird.</translation>
    </message>
    <message>
        <source>A measurement needs a day of the calendar such as 2026-03-09.</source>
        <translation>Eine Messung braucht einen Kalendertag wie 2026-03-09.</translation>
    </message>
    <message>
        <source>Expected is a number from 0 to %1, such as %2</source>
        <translation>Erwartet wird eine Zahl von 0 bis %1, etwa %2</translation>
    </message>
</context>
<context>
    <name>TypedNumber</name>
    <message>
        <source>Expected is a number from %1 to %2</source>
        <translation>Erwartet wird eine Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>Expected is a whole number from %1 to %2</source>
        <translation>Erwartet wird eine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>Expected is a time from %1 to %2 seconds</source>
        <translation>Erwartet wird eine Zeit von %1 bis %2 Sekunden</translation>
    </message>
</context>
<context>
    <name>TypedValues</name>
    <message>
        <source>A time is a number of seconds such as 92.34, or 1:32.34</source>
        <translation>Eine Zeit ist eine Zahl von Sekunden wie 92.34 oder 1:32.34</translation>
    </message>
    <message>
        <source>A penalty is a whole number of seconds, 0 to 999</source>
        <translation>Eine Strafe ist eine ganze Zahl von Sekunden, 0 bis 999</translation>
    </message>
    <message>
        <source>A position is a whole number, 1 to 9999</source>
        <translation>Eine Position ist eine ganze Zahl, 1 bis 9999</translation>
    </message>
    <message>
        <source>Ranking points are a number such as 612.5</source>
        <translation>Ranglistenpunkte sind eine Zahl wie 612.5</translation>
    </message>
    <message>
        <source>A year is a number from 1900 to 2100</source>
        <translation>Ein Jahr ist eine Zahl von 1900 bis 2100</translation>
    </message>
    <message>
        <source>A date is a day of the calendar such as 2025-06-14</source>
        <translation>Ein Datum ist ein Kalendertag wie 2025-06-14</translation>
    </message>
</context>
<context>
    <name>WeekTexts</name>
    <message>
        <source>Week %1, from %2</source>
        <translation>Woche %1, ab %2</translation>
    </message>
    <message>
        <source>Load %1 %</source>
        <translation>Belastung %1&#xa0;%</translation>
    </message>
    <message>
        <source>Macrocycle</source>
        <translation>Makrozyklus</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mesozyklus</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>On-water test</source>
        <translation>Wassertest</translation>
    </message>
    <message>
        <source>Endurance test</source>
        <translation>Ausdauertest</translation>
    </message>
    <message>
        <source>Blood test</source>
        <translation>Bluttest</translation>
    </message>
    <message>
        <source>Injured</source>
        <translation>Verletzt</translation>
    </message>
    <message>
        <source>%n session(s)</source>
        <translation>%n Einheit(en)</translation>
    </message>
    <message>
        <source>The week&apos;s date is in no calendar.</source>
        <translation>Das Datum der Woche steht in keinem Kalender.</translation>
    </message>
    <message>
        <source>The week does not start on a Monday.</source>
        <translation>Die Woche beginnt nicht an einem Montag.</translation>
    </message>
    <message>
        <source>The load is negative.</source>
        <translation>Die Belastung ist negativ.</translation>
    </message>
    <message>
        <source>The two lists of planned totals are of different lengths.</source>
        <translation>Die zwei Listen geplanter Summen sind verschieden lang.</translation>
    </message>
    <message>
        <source>%1 of its sessions are on no day of the week.</source>
        <translation>%1 ihrer Einheiten liegen auf keinem Tag der Woche.</translation>
    </message>
    <message>
        <source>The session&apos;s date is in no calendar.</source>
        <translation>Das Datum der Einheit steht in keinem Kalender.</translation>
    </message>
    <message>
        <source>The time of day is none.</source>
        <translation>Die Tageszeit ist keine.</translation>
    </message>
    <message>
        <source>The time zone “%1” is unknown.</source>
        <translation>Die Zeitzone „%1“ ist unbekannt.</translation>
    </message>
    <message>
        <source>A value is negative.</source>
        <translation>Ein Wert ist negativ.</translation>
    </message>
</context>
<context>
    <name>kavela</name>
    <message>
        <source>The time from the mark before to the mark of this section.</source>
        <translation>Die Zeit von der Marke davor bis zur Marke dieses Abschnitts.</translation>
    </message>
    <message>
        <source>mark − mark before</source>
        <translation>Marke − Marke davor</translation>
    </message>
    <message>
        <source>The time of the section with the penalties of its gates.</source>
        <translation>Die Zeit des Abschnitts mit den Strafen seiner Tore.</translation>
    </message>
    <message>
        <source>time + penalties</source>
        <translation>Zeit + Strafen</translation>
    </message>
    <message>
        <source>The time from the start to the mark of this section.</source>
        <translation>Die Zeit vom Start bis zur Marke dieses Abschnitts.</translation>
    </message>
    <message>
        <source>Σ sections up to here</source>
        <translation>Σ Abschnitte bis hier</translation>
    </message>
    <message>
        <source>All sections together, as timed from the video, without penalties.</source>
        <translation>Alle Abschnitte zusammen, wie auf dem Video gestoppt, ohne Strafen.</translation>
    </message>
    <message>
        <source>Σ sections</source>
        <translation>Σ Abschnitte</translation>
    </message>
    <message>
        <source>All sections together, as timed from the video, and the penalties.</source>
        <translation>Alle Abschnitte zusammen, wie auf dem Video gestoppt, und die Strafen.</translation>
    </message>
    <message>
        <source>Σ sections + penalties</source>
        <translation>Σ Abschnitte + Strafen</translation>
    </message>
    <message>
        <source>The sprint as it was timed for this run.</source>
        <translation>Der Sprint, wie er für diesen Lauf gestoppt wurde.</translation>
    </message>
    <message>
        <source>sprint</source>
        <translation>Sprint</translation>
    </message>
    <message>
        <source>The official time as it was entered for this run.</source>
        <translation>Die offizielle Zeit, wie sie für diesen Lauf eingegeben wurde.</translation>
    </message>
    <message>
        <source>real</source>
        <translation>offiziell</translation>
    </message>
    <message>
        <source>A run of another race, held against the runs of this one.</source>
        <translation>Ein Lauf eines anderen Rennens, verglichen mit den Läufen dieses Rennens.</translation>
    </message>
    <message>
        <source>time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>The colour tells between which tenths of its column a time lies.</source>
        <translation>Die Farbe sagt, zwischen welchen Zehnteln ihrer Spalte eine Zeit liegt.</translation>
    </message>
    <message>
        <source>tenth below &lt; time ≤ tenth above</source>
        <translation>Zehntel darunter &lt; Zeit ≤ Zehntel darüber</translation>
    </message>
    <message>
        <source>The least time of its column has a colour of its own.</source>
        <translation>Die kleinste Zeit ihrer Spalte hat eine eigene Farbe.</translation>
    </message>
    <message>
        <source>time = least</source>
        <translation>Zeit = kleinste</translation>
    </message>
    <message>
        <source>A total column with a run that has no total stays white.</source>
        <translation>Eine Gesamtspalte mit einem Lauf ohne Gesamtzeit bleibt weiß.</translation>
    </message>
    <message>
        <source>white</source>
        <translation>weiß</translation>
    </message>
    <message>
        <source>What was not timed, or lies beside the scale, has no colour.</source>
        <translation>Was keine Zeit hat oder neben der Skala liegt, hat keine Farbe.</translation>
    </message>
    <message>
        <source>no colour</source>
        <translation>keine Farbe</translation>
    </message>
    <message>
        <source>The least of the column that counts.</source>
        <translation>Das Kleinste der Spalte, das zählt.</translation>
    </message>
    <message>
        <source>min values</source>
        <translation>min Werte</translation>
    </message>
    <message>
        <source>The middle of the column, of what counts.</source>
        <translation>Die Mitte der Spalte, aus dem, was zählt.</translation>
    </message>
    <message>
        <source>median values</source>
        <translation>Median der Werte</translation>
    </message>
    <message>
        <source>The time less that of the reference.</source>
        <translation>Die Zeit minus die der Referenz.</translation>
    </message>
    <message>
        <source>own − reference</source>
        <translation>eigene − Referenz</translation>
    </message>
    <message>
        <source>The place in the column: one more than are faster to the hundredth.</source>
        <translation>Der Platz in der Spalte: einer mehr, als aufs Hundertstel schneller sind.</translation>
    </message>
    <message>
        <source>1 + faster</source>
        <translation>1 + schnellere</translation>
    </message>
    <message>
        <source>How far behind the best of the column.</source>
        <translation>Wie weit hinter dem Besten der Spalte.</translation>
    </message>
    <message>
        <source>100 · (own / best − 1)</source>
        <translation>100 · (eigene / beste − 1)</translation>
    </message>
    <message>
        <source>The share of the column that is as slow or slower.</source>
        <translation>Der Anteil der Spalte, der gleich schnell oder langsamer ist.</translation>
    </message>
    <message>
        <source>100 · slower or equal / timed</source>
        <translation>100 · langsamere oder gleiche / mit Zeit</translation>
    </message>
    <message>
        <source>The best time of the section that stands alone, whoever paddled it.</source>
        <translation>Die beste Zeit des Abschnitts, die für sich steht, von wem auch immer.</translation>
    </message>
    <message>
        <source>min times</source>
        <translation>min Zeiten</translation>
    </message>
    <message>
        <source>The best of every section up to here, put together.</source>
        <translation>Das Beste jedes Abschnitts bis hier, zusammengesetzt.</translation>
    </message>
    <message>
        <source>Σ bests up to here</source>
        <translation>Σ Bestzeiten bis hier</translation>
    </message>
    <message>
        <source>The best of every section, put together.</source>
        <translation>Das Beste jedes Abschnitts, zusammengesetzt.</translation>
    </message>
    <message>
        <source>Σ bests</source>
        <translation>Σ Bestzeiten</translation>
    </message>
    <message>
        <source>The seconds of all its touches and missed gates.</source>
        <translation>Die Sekunden aller Berührungen und Torfehler.</translation>
    </message>
    <message>
        <source>Σ gates</source>
        <translation>Σ Tore</translation>
    </message>
    <message>
        <source>The seconds of touches and missed gates of the section.</source>
        <translation>Die Sekunden der Berührungen und Torfehler des Abschnitts.</translation>
    </message>
    <message>
        <source>Σ gates of the section</source>
        <translation>Σ Tore des Abschnitts</translation>
    </message>
    <message>
        <source>The official penalty seconds as they were entered for this run.</source>
        <translation>Die offiziellen Strafsekunden, wie sie für diesen Lauf eingegeben wurden.</translation>
    </message>
    <message>
        <source>real penalty</source>
        <translation>offizielle Strafe</translation>
    </message>
    <message>
        <source>The expected time as split taking stored it with this run.</source>
        <translation>Die erwartete Zeit, wie die Zwischenzeitnahme sie mit diesem Lauf gespeichert hat.</translation>
    </message>
    <message>
        <source>expected</source>
        <translation>erwartet</translation>
    </message>
    <message>
        <source>values of the column</source>
        <translation>Werte der Spalte</translation>
    </message>
    <message>
        <source>least</source>
        <translation>kleinster</translation>
    </message>
    <message>
        <source>most</source>
        <translation>größter</translation>
    </message>
    <message>
        <source>times that stand alone</source>
        <translation>Zeiten, die für sich stehen</translation>
    </message>
    <message>
        <source>No gate was touched or missed.</source>
        <translation>Kein Tor wurde berührt oder verfehlt.</translation>
    </message>
    <message>
        <source>penalties</source>
        <translation>Strafen</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>schnellere</translation>
    </message>
    <message>
        <source>timed</source>
        <translation>mit Zeit</translation>
    </message>
    <message>
        <source>slower or equal</source>
        <translation>langsamere oder gleiche</translation>
    </message>
    <message>
        <source>median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>List of online planning entries.</source>
        <translation>Liste der Einträge der Online-Planung.</translation>
    </message>
    <message>
        <source>Files that have already been watched.</source>
        <translation>Dateien, die schon angesehen sind.</translation>
    </message>
    <message>
        <source>Play the next video of a list when one ends.</source>
        <translation>Am Ende eines Videos das nächste der Liste abspielen.</translation>
    </message>
    <message>
        <source>Start a run at its stored video time rather than at the video&apos;s start.</source>
        <translation>Einen Lauf bei seiner gespeicherten Videozeit beginnen statt am Anfang des Videos.</translation>
    </message>
    <message>
        <source>Start playback as soon as a row is clicked.</source>
        <translation>Abspielen, sobald eine Zeile angeklickt wird.</translation>
    </message>
    <message>
        <source>Show penalties in the tables.</source>
        <translation>Strafen in den Tabellen zeigen.</translation>
    </message>
    <message>
        <source>Include penalty seconds in the times that are compared.</source>
        <translation>Strafsekunden in die verglichenen Zeiten einrechnen.</translation>
    </message>
    <message>
        <source>Colours of the split table.</source>
        <translation>Farben der Zwischenzeitentabelle.</translation>
    </message>
    <message>
        <source>Comment tag chosen last.</source>
        <translation>Zuletzt gewählte Kommentarmarkierung.</translation>
    </message>
    <message>
        <source>Show the coach&apos;s comments.</source>
        <translation>Kommentare des Trainers zeigen.</translation>
    </message>
    <message>
        <source>In tag mode, play only the tagged part of a video.</source>
        <translation>Beim Markieren nur den markierten Teil eines Videos abspielen.</translation>
    </message>
    <message>
        <source>Kind of data opened last.</source>
        <translation>Zuletzt geöffnete Art von Daten.</translation>
    </message>
    <message>
        <source>Full screen shows the roll chart.</source>
        <translation>Das Vollbild zeigt das Rolldiagramm.</translation>
    </message>
    <message>
        <source>Full screen shows the pitch chart.</source>
        <translation>Das Vollbild zeigt das Stampfdiagramm.</translation>
    </message>
    <message>
        <source>Full screen shows the heart-rate chart.</source>
        <translation>Das Vollbild zeigt das Herzfrequenzdiagramm.</translation>
    </message>
    <message>
        <source>Full screen shows the scatter chart.</source>
        <translation>Das Vollbild zeigt das Streudiagramm.</translation>
    </message>
    <message>
        <source>Show boat-motion values normalised.</source>
        <translation>Werte der Bootsbewegung normiert zeigen.</translation>
    </message>
    <message>
        <source>Show the impulse gauge.</source>
        <translation>Impulsanzeige zeigen.</translation>
    </message>
    <message>
        <source>Show the stroke-rate gauge.</source>
        <translation>Schlagfrequenzanzeige zeigen.</translation>
    </message>
    <message>
        <source>Number of splits of a new split file.</source>
        <translation>Zahl der Zwischenzeiten einer neuen Zwischenzeitdatei.</translation>
    </message>
    <message>
        <source>Tag names saved for reuse.</source>
        <translation>Gespeicherte Namen von Markierungen.</translation>
    </message>
    <message>
        <source>Time-loss reasons saved for reuse.</source>
        <translation>Gespeicherte Gründe von Zeitverlusten.</translation>
    </message>
    <message>
        <source>Load a planning file at start.</source>
        <translation>Beim Start eine Planungsdatei laden.</translation>
    </message>
    <message>
        <source>The planning file to load at start is an online one.</source>
        <translation>Die beim Start geladene Planungsdatei liegt online.</translation>
    </message>
    <message>
        <source>Planning file to load at start.</source>
        <translation>Beim Start geladene Planungsdatei.</translation>
    </message>
    <message>
        <source>Also export the table as CSV on saving.</source>
        <translation>Beim Speichern die Tabelle auch als CSV exportieren.</translation>
    </message>
    <message>
        <source>Also export a PDF on saving.</source>
        <translation>Beim Speichern auch ein PDF exportieren.</translation>
    </message>
    <message>
        <source>Main folder to open at start.</source>
        <translation>Beim Start geöffneter Hauptordner.</translation>
    </message>
    <message>
        <source>Open the test tool at start.</source>
        <translation>Beim Start das Testwerkzeug öffnen.</translation>
    </message>
    <message>
        <source>The file is not an activity, but something else of the device.</source>
        <translation>Die Datei ist keine Aktivität, sondern etwas anderes vom Gerät.</translation>
    </message>
    <message>
        <source>There are no points in the file.</source>
        <translation>In der Datei sind keine Punkte.</translation>
    </message>
    <message numerus="yes">
        <source>{} videos</source>
        <translation>
            <numerusform>{} Video</numerusform>
            <numerusform>{} Videos</numerusform>
        </translation>
    </message>
    <message>
        <source>Makes a training file of the videos that carry an athlete&apos;s name</source>
        <translation>Macht eine Trainingsdatei aus den Videos mit dem Namen eines Athleten</translation>
    </message>
    <message>
        <source>Folder of the videos</source>
        <translation>Ordner der Videos</translation>
    </message>
    <message>
        <source>The athlete&apos;s name; a crew as &quot;A / B&quot;</source>
        <translation>Name des Athleten; eine Besatzung als „A / B“</translation>
    </message>
    <message>
        <source>Replace a training file that is there already</source>
        <translation>Eine schon vorhandene Trainingsdatei ersetzen</translation>
    </message>
    <message>
        <source>Kavela: splits, results and recordings of canoe slalom.</source>
        <translation>Kavela: Zwischenzeiten, Ergebnisse und Aufzeichnungen im Kanuslalom.</translation>
    </message>
    <message>
        <source>Files to open in the desktop program</source>
        <translation>Dateien, die im Programmfenster zu öffnen sind</translation>
    </message>
    <message>
        <source>Start another desktop program, also where one runs</source>
        <translation>Ein weiteres Programmfenster starten, auch wo schon eines läuft</translation>
    </message>
    <message>
        <source>Language of what is said: en or one that is built in</source>
        <translation>Sprache der Ausgaben: en oder eine der eingebauten</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>Für diese Datei reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>Composes a film of several runs</source>
        <translation>Setzt einen Film aus mehreren Läufen zusammen</translation>
    </message>
    <message>
        <source>What is to be composed (.json)</source>
        <translation>Was zusammenzusetzen ist (.json)</translation>
    </message>
    <message>
        <source>File to write, in place of the job&apos;s own</source>
        <translation>Zu schreibende Datei statt der des Auftrags</translation>
    </message>
    <message numerus="yes">
        <source>{} strokes</source>
        <translation>
            <numerusform>{} Schlag</numerusform>
            <numerusform>{} Schläge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} turns</source>
        <translation>
            <numerusform>{} Drehung</numerusform>
            <numerusform>{} Drehungen</numerusform>
        </translation>
    </message>
    <message>
        <source>Give another name with --name.</source>
        <translation>Mit --name einen anderen Namen angeben.</translation>
    </message>
    <message>
        <source>A name goes with one recording only.</source>
        <translation>Ein Name gehört zu nur einer Aufzeichnung.</translation>
    </message>
    <message>
        <source>Writes the processed session of raw recordings</source>
        <translation>Schreibt die ausgewertete Einheit aus Rohaufzeichnungen</translation>
    </message>
    <message>
        <source>Raw recordings (.kvb)</source>
        <translation>Rohaufzeichnungen (.kvb)</translation>
    </message>
    <message>
        <source>Name of the new file, for a further one</source>
        <translation>Name der neuen Datei, für eine weitere</translation>
    </message>
    <message numerus="yes">
        <source>{} files</source>
        <translation>
            <numerusform>{} Datei</numerusform>
            <numerusform>{} Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Failed to create file</source>
        <translation>Datei konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>Writes a sample season to try Kavela with</source>
        <translation>Schreibt eine Beispielsaison zum Ausprobieren von Kavela</translation>
    </message>
    <message>
        <source>Folder to write to; made where it is missing</source>
        <translation>Zielordner; wird angelegt, wo er fehlt</translation>
    </message>
    <message>
        <source>Makes short films of runs as well</source>
        <translation>Macht auch kurze Filme der Läufe</translation>
    </message>
    <message>
        <source>Writes the split table for a spreadsheet, or a report</source>
        <translation>Schreibt die Zwischenzeitentabelle für die Tabellenkalkulation oder einen Bericht</translation>
    </message>
    <message>
        <source>Split file (.kvx) of any release</source>
        <translation>Zwischenzeitdatei (.kvx) jeder Version</translation>
    </message>
    <message>
        <source>File to write: semicolon-separated text</source>
        <translation>Zu schreibende Datei: Text mit Semikolons</translation>
    </message>
    <message>
        <source>File to write: the race report, on A4 pages</source>
        <translation>Zu schreibende Datei: der Rennbericht auf A4-Seiten</translation>
    </message>
    <message>
        <source>There is no split file.</source>
        <translation>Keine Zwischenzeitdatei vorhanden.</translation>
    </message>
    <message numerus="yes">
        <source>{} tables</source>
        <translation>
            <numerusform>{} Tabelle</numerusform>
            <numerusform>{} Tabellen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} runs</source>
        <translation>
            <numerusform>{} Lauf</numerusform>
            <numerusform>{} Läufe</numerusform>
        </translation>
    </message>
    <message>
        <source>Writes what split files say as tables for other programs</source>
        <translation>Schreibt den Inhalt von Zwischenzeitdateien als Tabellen für andere Programme</translation>
    </message>
    <message>
        <source>Split files, or folders with them</source>
        <translation>Zwischenzeitdateien oder Ordner damit</translation>
    </message>
    <message>
        <source>Folder to write to</source>
        <translation>Zielordner</translation>
    </message>
    <message>
        <source>Fetches the films of a race by their bibs</source>
        <translation>Holt die Filme eines Rennens nach ihren Startnummern</translation>
    </message>
    <message>
        <source>Where the films come from (.json)</source>
        <translation>Woher die Filme kommen (.json)</translation>
    </message>
    <message>
        <source>Only print what would be fetched</source>
        <translation>Nur ausgeben, was geholt würde</translation>
    </message>
    <message>
        <source>Do not ask before anything is fetched</source>
        <translation>Vor dem Holen nicht fragen</translation>
    </message>
    <message>
        <source>User name for the server of the address</source>
        <translation>Benutzername für den Server der Adresse</translation>
    </message>
    <message>
        <source>A search needs a file or folder and, last, the query in quotes.</source>
        <translation>Eine Suche braucht eine Datei oder einen Ordner und zuletzt die Abfrage in Anführungszeichen.</translation>
    </message>
    <message>
        <source>The table cannot be written over a file that is searched.</source>
        <translation>Die Tabelle kann nicht über eine Datei geschrieben werden, die durchsucht wird.</translation>
    </message>
    <message>
        <source>Searches split files: a season in one question</source>
        <translation>Durchsucht Zwischenzeitdateien: eine Saison in einer Frage</translation>
    </message>
    <message>
        <source>Split files, or folders with them; last the query, in quotes</source>
        <translation>Zwischenzeitdateien oder Ordner damit; zuletzt die Abfrage, in Anführungszeichen</translation>
    </message>
    <message>
        <source>Print one JSON document</source>
        <translation>Ein JSON-Dokument ausgeben</translation>
    </message>
    <message numerus="yes">
        <source>{} groups</source>
        <translation>
            <numerusform>{} Gruppe</numerusform>
            <numerusform>{} Gruppen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} rows</source>
        <translation>
            <numerusform>{} Zeile</numerusform>
            <numerusform>{} Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>What an athlete can lift once, by five formulas</source>
        <translation>Was ein Athlet einmal heben kann, nach fünf Formeln</translation>
    </message>
    <message>
        <source>How often the weight was lifted</source>
        <translation>Wie oft das Gewicht gehoben wurde</translation>
    </message>
    <message>
        <source>The weight in kilograms</source>
        <translation>Das Gewicht in Kilogramm</translation>
    </message>
    <message numerus="yes">
        <source>{} results</source>
        <translation>
            <numerusform>{} Ergebnis</numerusform>
            <numerusform>{} Ergebnisse</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} lines</source>
        <translation>
            <numerusform>{} Zeile</numerusform>
            <numerusform>{} Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>Adds an official results list to a split file</source>
        <translation>Fügt einer Zwischenzeitdatei eine offizielle Ergebnisliste hinzu</translation>
    </message>
    <message>
        <source>Split file (.kvx) of the current version</source>
        <translation>Zwischenzeitdatei (.kvx) der heutigen Version</translation>
    </message>
    <message>
        <source>Semicolon-separated text with a header line: position, bib, name, nationality, time, penalty</source>
        <translation>Text mit Semikolons und einer Kopfzeile: Platz, Startnummer, Name, Nation, Zeit, Strafe</translation>
    </message>
    <message>
        <source>Says what files are, or what is wrong in them</source>
        <translation>Sagt, was Dateien sind oder was an ihnen falsch ist</translation>
    </message>
    <message>
        <source>Files of any kind</source>
        <translation>Dateien jeder Art</translation>
    </message>
    <message>
        <source>The table cannot be written over a file that it is made from.</source>
        <translation>Die Tabelle kann nicht über eine Datei geschrieben werden, aus der sie entsteht.</translation>
    </message>
    <message>
        <source>Tells where runs lose time against one another</source>
        <translation>Sagt, wo Läufe gegeneinander Zeit verlieren</translation>
    </message>
    <message>
        <source>Split file (.kvx) of any release; with --athlete also folders of them</source>
        <translation>Zwischenzeitdatei (.kvx) jeder Version; mit --athlete auch Ordner damit</translation>
    </message>
    <message>
        <source>winner, fastest, ideal, median, own or run:I; winner without other word</source>
        <translation>winner, fastest, ideal, median, own oder run:I; ohne weiteres winner</translation>
    </message>
    <message>
        <source>The season of an athlete over all the paths; a crew as &quot;A / B&quot;</source>
        <translation>Die Saison eines Athleten über alle Pfade; eine Besatzung als „A / B“</translation>
    </message>
    <message>
        <source>Only the athlete&apos;s runs of this category</source>
        <translation>Nur die Läufe des Athleten in dieser Kategorie</translation>
    </message>
    <message>
        <source>Folder to write the athlete&apos;s page into, named after the athlete</source>
        <translation>Ordner für die Seite des Athleten, die nach ihm heißt</translation>
    </message>
    <message>
        <source>run {}</source>
        <translation>Lauf {}</translation>
    </message>
    <message>
        <source>no total</source>
        <translation>keine Gesamtzeit</translation>
    </message>
    <message>
        <source>, no totals to compare</source>
        <translation>, keine vergleichbaren Gesamtzeiten</translation>
    </message>
    <message>
        <source>strokes {} on {}</source>
        <translation>Schläge {} zu {}</translation>
    </message>
    <message>
        <source>gate {} {}</source>
        <translation>Tor {} {}</translation>
    </message>
    <message>
        <source>     Explained by notes: {} of {} ({:.0f} %)</source>
        <translation>     Durch Notizen erklärt: {} von {} ({:.0f}&#xa0;%)</translation>
    </message>
    <message>
        <source>Tells how often gates are touched, what it cost, and whether speed pays</source>
        <translation>Sagt, wie oft Tore berührt werden, was es kostete und ob sich Tempo lohnt</translation>
    </message>
    <message>
        <source>Split files (.kvx) of any release, or folders of them</source>
        <translation>Zwischenzeitdateien (.kvx) jeder Version oder Ordner damit</translation>
    </message>
    <message>
        <source>What the rates are by; by gate without other word</source>
        <translation>Wonach die Raten gehen; ohne weiteres nach Tor</translation>
    </message>
    <message>
        <source>Only runs of this category</source>
        <translation>Nur Läufe dieser Kategorie</translation>
    </message>
    <message>
        <source>File to write the rates to: semicolon-separated text</source>
        <translation>Zu schreibende Datei für die Raten: Text mit Semikolons</translation>
    </message>
    <message>
        <source>Explain one number instead: rate/gate/7, touches/crew/NAME, cost/RUN/GATE, …</source>
        <translation>Stattdessen eine Zahl erklären: rate/gate/7, touches/crew/NAME, cost/RUN/GATE, …</translation>
    </message>
    <message>
        <source>… {} more; all of them with --json, --csv or in a pipe</source>
        <translation>… {} weitere; alle mit --json, --csv oder in einer Pipe</translation>
    </message>
    <message>
        <source>Penalties by {} · {}, {}</source>
        <translation>Strafen {} · {}, {}</translation>
    </message>
    <message>
        <source>{} of {} whole runs without a penalty: {:.1f} % ({})</source>
        <translation>{} von {} ganzen Läufen ohne Strafe: {:.1f}&#xa0;% ({})</translation>
    </message>
    <message>
        <source>Ranked: drawn towards {:.1f} %, the more the fewer the passages;</source>
        <translation>Gereiht: zu {:.1f}&#xa0;% hingezogen, umso mehr, je weniger Durchfahrten;</translation>
    </message>
    <message>
        <source>{} of {}</source>
        <translation>{} von {}</translation>
    </message>
    <message>
        <source>What penalties cost</source>
        <translation>Was Strafen kosten</translation>
    </message>
    <message numerus="yes">
        <source>{} penalties</source>
        <translation>
            <numerusform>{} Strafe</numerusform>
            <numerusform>{} Strafen</numerusform>
        </translation>
    </message>
    <message>
        <source>gate {}</source>
        <translation>Tor {}</translation>
    </message>
    <message>
        <source>  {} of {}, without {}</source>
        <translation>  {} von {}, ohne {}</translation>
    </message>
    <message>
        <source>{} {} of {} ({:.0f} %, {:.0f}–{:.0f})</source>
        <translation>{} {} von {} ({:.0f}&#xa0;%, {:.0f}–{:.0f})</translation>
    </message>
    <message>
        <source>Noted of {}</source>
        <translation>Notiert zu {}</translation>
    </message>
    <message>
        <source>1 % of speed pays for {:.2f} touches a run; times in percent of the group&apos;s median</source>
        <translation>1&#xa0;% Tempo wiegt {:.2f} Berührungen je Lauf auf; Zeiten in Prozent des Medians der Gruppe</translation>
    </message>
    <message>
        <source>The sum of the best splits, and what each run could be</source>
        <translation>Die Summe der besten Abschnitte, und was jeder Lauf hätte sein können</translation>
    </message>
    <message>
        <source>Store the values in the file</source>
        <translation>Die Werte in der Datei speichern</translation>
    </message>
    <message>
        <source>Tell how a number came about: perfect, or xtime/5 (runs from 0)</source>
        <translation>Sagen, wie eine Zahl zustande kam: perfect oder xtime/5 (Läufe ab 0)</translation>
    </message>
    <message>
        <source>The weeks of each athlete&apos;s seasons</source>
        <translation>Die Wochen der Saisons jedes Athleten</translation>
    </message>
    <message>
        <source>Planning (.planning) of any version</source>
        <translation>Planung (.planning) jeder Version</translation>
    </message>
    <message>
        <source>Brings plannings to the current version</source>
        <translation>Bringt Planungen auf die heutige Version</translation>
    </message>
    <message>
        <source>Plannings (.planning) of any version</source>
        <translation>Planungen (.planning) jeder Version</translation>
    </message>
    <message>
        <source>Shows and upgrades training plannings</source>
        <translation>Zeigt und aktualisiert Trainingsplanungen</translation>
    </message>
    <message numerus="yes">
        <source>{} weeks</source>
        <translation>
            <numerusform>{} Woche</numerusform>
            <numerusform>{} Wochen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} sessions</source>
        <translation>
            <numerusform>{} Einheit</numerusform>
            <numerusform>{} Einheiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} athletes</source>
        <translation>
            <numerusform>{} Athlet</numerusform>
            <numerusform>{} Athleten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} favourite interval sessions</source>
        <translation>
            <numerusform>{} bevorzugte Intervalleinheit</numerusform>
            <numerusform>{} bevorzugte Intervalleinheiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} variability measurements</source>
        <translation>
            <numerusform>{} Variabilitätsmessung</numerusform>
            <numerusform>{} Variabilitätsmessungen</numerusform>
        </translation>
    </message>
    <message>
        <source>Tells how the athletes of a team stand over seasons</source>
        <translation>Sagt, wie die Athleten eines Teams über die Saisons stehen</translation>
    </message>
    <message>
        <source>Team file (.kvteam)</source>
        <translation>Teamdatei (.kvteam)</translation>
    </message>
    <message>
        <source>Split files (.kvx) of any release, or folders of them: they tell the winners and the rivals</source>
        <translation>Zwischenzeitdateien (.kvx) jeder Version oder Ordner damit: sie nennen die Sieger und die Rivalen</translation>
    </message>
    <message>
        <source>Category: MK1, WK1, MC1, WC1, MX1, WX1</source>
        <translation>Kategorie: MK1, WK1, MC1, WC1, MX1, WX1</translation>
    </message>
    <message>
        <source>Only these: 2025, or 2023-2025</source>
        <translation>Nur diese: 2025 oder 2023-2025</translation>
    </message>
    <message>
        <source>Whose places to expect of one another; the team and those who raced most often without it</source>
        <translation>Wessen Plätze gegeneinander zu erwarten sind; ohne weiteres das Team und wer am öftesten fuhr</translation>
    </message>
    <message>
        <source>File to write: the runs of the athletes as semicolon-separated text</source>
        <translation>Zu schreibende Datei: die Läufe der Athleten als Text mit Semikolons</translation>
    </message>
    <message>
        <source>Folder to write a report of the team and a page for each athlete into</source>
        <translation>Ordner für einen Bericht des Teams und eine Seite je Athlet</translation>
    </message>
    <message>
        <source>Explain one number instead: spread, trend/NAME, percent/NAME/2025/WC1/Final, …</source>
        <translation>Stattdessen eine Zahl erklären: spread, trend/NAME, percent/NAME/2025/WC1/Final, …</translation>
    </message>
    <message>
        <source>{:+.1f} to {:+.1f}</source>
        <translation>{:+.1f} bis {:+.1f}</translation>
    </message>
    <message>
        <source>{:+.2f} to {:+.2f}</source>
        <translation>{:+.2f} bis {:+.2f}</translation>
    </message>
    <message>
        <source>      {} run {} {} {}
</source>
        <translation>      {} Lauf {} {} {}
</translation>
    </message>
    <message>
        <source>  {}. {}: {}, {} s a run
</source>
        <translation>  {}. {}: {}, {} s je Lauf
</translation>
    </message>
    <message numerus="yes">
        <source>{} whole runs</source>
        <translation>
            <numerusform>{} ganzer Lauf</numerusform>
            <numerusform>{} ganze Läufe</numerusform>
        </translation>
    </message>
    <message>
        <source> · on {} · {}
</source>
        <translation> · auf {} · {}
</translation>
    </message>
    <message>
        <source> ({:+.1f} to {:+.1f})</source>
        <translation> ({:+.1f} bis {:+.1f})</translation>
    </message>
    <message numerus="yes">
        <source>{} split files</source>
        <translation>
            <numerusform>{} Zwischenzeitdatei</numerusform>
            <numerusform>{} Zwischenzeitdateien</numerusform>
        </translation>
    </message>
    <message>
        <source> · {} · {} of races</source>
        <translation> · {} · {} von Rennen</translation>
    </message>
    <message>
        <source>Too few runs to tell how much they vary by chance.</source>
        <translation>Zu wenige Läufe, um zu sagen, wie stark sie zufällig schwanken.</translation>
    </message>
    <message>
        <source>Runs vary by {:.1f} %{}, from {}; {:.2f} % is worth gaining.</source>
        <translation>Läufe schwanken um {:.1f}&#xa0;%{} ({}); {:.2f}&#xa0;% zu gewinnen lohnt sich.</translation>
    </message>
    <message>
        <source>Neither winners nor fastest splits of these races are known.</source>
        <translation>Von diesen Rennen sind weder Sieger noch schnellste Abschnitte bekannt.</translation>
    </message>
    <message>
        <source>      ┄ third of the final, median</source>
        <translation>      ┄ Dritter des Finales, Median</translation>
    </message>
    <message>
        <source>within</source>
        <translation>Spanne</translation>
    </message>
    <message>
        <source>trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>on splits</source>
        <translation>auf Abschnitte</translation>
    </message>
    <message>
        <source>{:.1f} % (all {:.1f}{})</source>
        <translation>{:.1f}&#xa0;% (alle {:.1f}{})</translation>
    </message>
    <message>
        <source>, {} missed</source>
        <translation>, {} verfehlt</translation>
    </message>
    <message>
        <source>{:+.1f} %/yr{} </source>
        <translation>{:+.1f}&#xa0;%/Jahr{} </translation>
    </message>
    <message>
        <source>{} of {} ({:.0f}–{:.0f} %)</source>
        <translation>{} von {} ({:.0f}–{:.0f}&#xa0;%)</translation>
    </message>
    <message numerus="yes">
        <source>{} races</source>
        <translation>
            <numerusform>{} Rennen</numerusform>
            <numerusform>{} Rennen</numerusform>
        </translation>
    </message>
    <message>
        <source> {} of {} ({:.0f}–{:.0f} %), {:+.1f} %</source>
        <translation> {} von {} ({:.0f}–{:.0f}&#xa0;%), {:+.1f}&#xa0;%</translation>
    </message>
    <message>
        <source>rank {}</source>
        <translation>Platz {}</translation>
    </message>
    <message>
        <source>… {} more; all of them with --json or in a pipe</source>
        <translation>… {} weitere; alle mit --json oder in einer Pipe</translation>
    </message>
    <message>
        <source>{} more boats come into question: name a field with --field</source>
        <translation>{} weitere Boote kommen in Frage: mit --field ein Feld nennen</translation>
    </message>
    <message>
        <source>{} is left out: fewer than {} runs, or never met the others</source>
        <translation>{} fehlt: weniger als {} Läufe, oder nie auf die anderen getroffen</translation>
    </message>
    <message>
        <source>The ranking of each category</source>
        <translation>Die Rangliste jeder Kategorie</translation>
    </message>
    <message>
        <source>Selection file (.kvsr) of any layout</source>
        <translation>Nominierungsdatei (.kvsr) jeder Bauart</translation>
    </message>
    <message>
        <source>Kind of bonus that counts, from 0</source>
        <translation>Art des Bonus, die zählt, ab 0</translation>
    </message>
    <message>
        <source>Folder to write both reports into</source>
        <translation>Ordner für beide Berichte</translation>
    </message>
    <message>
        <source>Store percentages and scores in the file</source>
        <translation>Prozente und Wertungen in der Datei speichern</translation>
    </message>
    <message>
        <source>Adds athletes from a list to a selection</source>
        <translation>Fügt einer Nominierung Athleten aus einer Liste hinzu</translation>
    </message>
    <message>
        <source>Selection file (.kvsr)</source>
        <translation>Nominierungsdatei (.kvsr)</translation>
    </message>
    <message>
        <source>Text with lines Cat;Name;Surname;year;club</source>
        <translation>Text mit Zeilen Cat;Name;Surname;year;club</translation>
    </message>
    <message>
        <source>Takes the results of a race from its split files</source>
        <translation>Übernimmt die Ergebnisse eines Rennens aus seinen Zwischenzeitdateien</translation>
    </message>
    <message>
        <source>Race of the selection: its name, or its number counted from 0</source>
        <translation>Rennen der Nominierung: sein Name oder seine Nummer, gezählt ab 0</translation>
    </message>
    <message>
        <source>Kind of bonus that counts in the scores, from 0</source>
        <translation>Art des Bonus, die in den Wertungen zählt, ab 0</translation>
    </message>
    <message>
        <source>Split files (.kvx) of the race</source>
        <translation>Zwischenzeitdateien (.kvx) des Rennens</translation>
    </message>
    <message>
        <source>Selection races and their ranking</source>
        <translation>Qualifikationsrennen und ihre Rangliste</translation>
    </message>
    <message>
        <source>Prints the coloured split table of a race</source>
        <translation>Gibt die farbige Zwischenzeitentabelle eines Rennens aus</translation>
    </message>
    <message>
        <source>Colours: race or training</source>
        <translation>Farben: race oder training</translation>
    </message>
    <message>
        <source>Times from the start to each split</source>
        <translation>Zeiten vom Start bis zu jeder Zwischenzeit</translation>
    </message>
    <message>
        <source>Add penalty seconds to the times</source>
        <translation>Strafsekunden zu den Zeiten zählen</translation>
    </message>
    <message>
        <source>Show penalty seconds behind the times</source>
        <translation>Strafsekunden hinter den Zeiten zeigen</translation>
    </message>
    <message>
        <source>Only runs of this phase</source>
        <translation>Nur Läufe dieser Phase</translation>
    </message>
    <message>
        <source>Tell how a number came about: cell/5/3, band/5/3, ideal/3, ideal/total (runs from 0, columns and sections from 1)</source>
        <translation>Sagen, wie eine Zahl zustande kam: cell/5/3, band/5/3, ideal/3, ideal/total (Läufe ab 0, Spalten und Abschnitte ab 1)</translation>
    </message>
    <message>
        <source>{} gates, {} upstream</source>
        <translation>{} Tore, davon {} aufwärts</translation>
    </message>
    <message>
        <source>The table cannot be written over the recording itself.</source>
        <translation>Die Tabelle kann nicht über die Aufzeichnung selbst geschrieben werden.</translation>
    </message>
    <message>
        <source>Finds the strokes and turns of a boat-motion recording</source>
        <translation>Findet die Schläge und Drehungen einer Aufzeichnung der Bootsbewegung</translation>
    </message>
    <message>
        <source>Raw recording (.kvb)</source>
        <translation>Rohaufzeichnung (.kvb)</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number from {:g} to {:g} {}.</source>
        <translation>„{}“ ist keine Zahl von {:g} bis {:g} {}.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is none of: {}.</source>
        <translation>„{}“ ist nichts von: {}.</translation>
    </message>
    <message>
        <source>Side of the phone that points to the bow, where fixes do not tell: top, bottom, right, left, back or screen</source>
        <translation>Seite des Telefons, die zum Bug zeigt, wo Ortungen es nicht sagen: top, bottom, right, left, back oder screen</translation>
    </message>
    <message>
        <source>Athlete, boat and kit in kg</source>
        <translation>Athlet, Boot und Ausrüstung in kg</translation>
    </message>
    <message>
        <source>Resistance of the hull over the square of its speed in N·s²/m²</source>
        <translation>Widerstand des Rumpfs durch das Quadrat seiner Geschwindigkeit in N·s²/m²</translation>
    </message>
    <message>
        <source>Class of boat: k1, c1, c2, kayak or canoe</source>
        <translation>Bootsklasse: k1, c1, c2, kayak oder canoe</translation>
    </message>
    <message numerus="yes">
        <source>{} bouts</source>
        <translation>
            <numerusform>{} Belastung</numerusform>
            <numerusform>{} Belastungen</numerusform>
        </translation>
    </message>
    <message>
        <source>{:.1f} 1/min</source>
        <translation>{:.1f} 1/min</translation>
    </message>
    <message>
        <source>{:g} kg, drag {:g} N·s²/m², {}; force and power hold on flat water only</source>
        <translation>{:g} kg, Widerstand {:g} N·s²/m², {}; Kraft und Leistung gelten nur auf Flachwasser</translation>
    </message>
    <message>
        <source>Shows any list of results as a table, with columns reckoned</source>
        <translation>Zeigt jede Ergebnisliste als Tabelle, mit berechneten Spalten</translation>
    </message>
    <message>
        <source>A column to add: total:Time,Pen, rank:Total, gap, percent, percentile, difference:Run 2,Run 1; with &quot;by Category&quot; within each category, with &quot;down&quot; the highest first</source>
        <translation>Eine neue Spalte: total:Time,Pen, rank:Total, gap, percent, percentile, difference:Run 2,Run 1; mit &quot;by Category&quot; in jeder Kategorie, mit &quot;down&quot; das Höchste zuerst</translation>
    </message>
    <message>
        <source>ROW,COL,VALUE,FN as in Nation,Category,Time,mean; FN is count, sum, mean, median, least or most</source>
        <translation>ROW,COL,VALUE,FN wie in Nation,Category,Time,mean; FN ist count, sum, mean, median, least oder most</translation>
    </message>
    <message>
        <source>Team (.kvteam) whose athletes are looked for</source>
        <translation>Team (.kvteam), nach dessen Athleten gesucht wird</translation>
    </message>
    <message>
        <source>The sheet, where there are several; of a split file which of its lists</source>
        <translation>Das Blatt, wo es mehrere gibt; bei einer Zwischenzeitdatei, welche ihrer Listen</translation>
    </message>
    <message>
        <source>File to write the table to: semicolon-separated text</source>
        <translation>Zu schreibende Datei für die Tabelle: Text mit Semikolons</translation>
    </message>
    <message>
        <source>Category, letter for letter as in the file: MK1, WK1, MC1, WC1, MX1, WX1</source>
        <translation>Kategorie, Buchstabe für Buchstabe wie in der Datei: MK1, WK1, MC1, WC1, MX1, WX1</translation>
    </message>
    <message>
        <source>What the athletes of a team reached</source>
        <translation>Was die Athleten eines Teams erreicht haben</translation>
    </message>
    <message>
        <source>Name of the athlete</source>
        <translation>Name des Athleten</translation>
    </message>
    <message>
        <source>Folder to write &quot;2025 Categorization.pdf&quot; into</source>
        <translation>Ordner für „2025 Categorization.pdf“</translation>
    </message>
    <message>
        <source>Brings files of older releases to the current version</source>
        <translation>Bringt Dateien älterer Versionen auf die heutige</translation>
    </message>
    <message>
        <source>Split files, selection races, plannings and recordings, or folders</source>
        <translation>Zwischenzeitdateien, Qualifikationsrennen, Planungen und Aufzeichnungen, oder Ordner</translation>
    </message>
    <message>
        <source>rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>note</source>
        <translation>Anmerkung</translation>
    </message>
    <message>
        <source>split {}</source>
        <translation>Zwischenzeit {}</translation>
    </message>
    <message>
        <source>entry {}</source>
        <translation>Eintrag {}</translation>
    </message>
    <message>
        <source>shown {} of {}</source>
        <translation>gezeigt {} von {}</translation>
    </message>
    <message>
        <source>{} to {}  ({})</source>
        <translation>{} bis {}  ({})</translation>
    </message>
    <message>
        <source>Imported “%1”</source>
        <translation>„%1“ importiert</translation>
    </message>
    <message>
        <source>“%1” cannot be imported</source>
        <translation>„%1“ lässt sich nicht importieren</translation>
    </message>
    <message>
        <source>Watches and phones (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;All files (*)</source>
        <translation>Uhren und Telefone (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Import from a watch or a phone</source>
        <translation>Von einer Uhr oder einem Telefon importieren</translation>
    </message>
    <message>
        <source>The rows of the group.</source>
        <translation>Die Zeilen der Gruppe.</translation>
    </message>
    <message>
        <source>number of rows</source>
        <translation>Zahl der Zeilen</translation>
    </message>
    <message>
        <source>The least value of the group&apos;s rows.</source>
        <translation>Der kleinste Wert der Zeilen der Gruppe.</translation>
    </message>
    <message>
        <source>The mean of the group&apos;s rows.</source>
        <translation>Das Mittel der Zeilen der Gruppe.</translation>
    </message>
    <message>
        <source>Σ values / rows with a value</source>
        <translation>Σ Werte / Zeilen mit Wert</translation>
    </message>
    <message>
        <source>The middle of the group&apos;s rows.</source>
        <translation>Die Mitte der Zeilen der Gruppe.</translation>
    </message>
    <message>
        <source>Stopped; nothing was written.</source>
        <translation>Angehalten; nichts wurde geschrieben.</translation>
    </message>
    <message numerus="yes">
        <source>{} frames</source>
        <translation>
            <numerusform>{} Bild</numerusform>
            <numerusform>{} Bilder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} films</source>
        <translation>
            <numerusform>{} Film</numerusform>
            <numerusform>{} Filme</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to fetch.</source>
        <translation>Es gibt nichts zu holen.</translation>
    </message>
    <message>
        <source>90 %, Student&apos;s t</source>
        <translation>90&#xa0;%, Student-t</translation>
    </message>
    <message>
        <source>90 %, Wilson</source>
        <translation>90&#xa0;%, Wilson</translation>
    </message>
    <message>
        <source>own</source>
        <translation>eigene</translation>
    </message>
    <message>
        <source>Time lost between two neighbouring marks that both runs have.</source>
        <translation>Zeitverlust zwischen zwei benachbarten Marken, die beide Läufe haben.</translation>
    </message>
    <message>
        <source>Time lost in percent of the reference&apos;s time there.</source>
        <translation>Zeitverlust in Prozent der Zeit der Referenz dort.</translation>
    </message>
    <message>
        <source>100 · (own − reference) / reference</source>
        <translation>100 · (eigene − Referenz) / Referenz</translation>
    </message>
    <message>
        <source>After a mark that was not taken the next time covers both sections.</source>
        <translation>Nach einer nicht genommenen Marke umfasst die nächste Zeit beide Abschnitte.</translation>
    </message>
    <message>
        <source>Σ times between the marks</source>
        <translation>Σ Zeiten zwischen den Marken</translation>
    </message>
    <message>
        <source>The least time that stands alone, whoever paddled it.</source>
        <translation>Die kleinste Zeit, die für sich steht, von wem auch immer.</translation>
    </message>
    <message>
        <source>The median of the finalists&apos; times that stand alone.</source>
        <translation>Der Median der Zeiten der Finalisten, die für sich stehen.</translation>
    </message>
    <message>
        <source>median times</source>
        <translation>Median der Zeiten</translation>
    </message>
    <message>
        <source>The difference of the totals, official where both have an official one.</source>
        <translation>Der Unterschied der Gesamtzeiten, der offiziellen, wo beide eine haben.</translation>
    </message>
    <message>
        <source>own total − reference total</source>
        <translation>eigene Gesamtzeit − Gesamtzeit der Referenz</translation>
    </message>
    <message>
        <source>All sections and the penalties, as timed from the video.</source>
        <translation>Alle Abschnitte und die Strafen, wie auf dem Video gestoppt.</translation>
    </message>
    <message>
        <source>What was lost on the water: all stretches together.</source>
        <translation>Was auf dem Wasser verloren ging: alle Stücke zusammen.</translation>
    </message>
    <message>
        <source>Σ losses</source>
        <translation>Σ Verluste</translation>
    </message>
    <message>
        <source>The difference of the penalties.</source>
        <translation>Der Unterschied der Strafen.</translation>
    </message>
    <message>
        <source>own penalties − reference&apos;s penalties</source>
        <translation>eigene Strafen − Strafen der Referenz</translation>
    </message>
    <message>
        <source>What neither water nor penalties tell: official against video time.</source>
        <translation>Was weder Wasser noch Strafen sagen: offizielle gegen Videozeit.</translation>
    </message>
    <message>
        <source>gap − paddling − penalties</source>
        <translation>Rückstand − Fahrzeit − Strafen</translation>
    </message>
    <message>
        <source>Time lost in an upstream gate, by its first entry in both runs.</source>
        <translation>Zeitverlust in einem Aufwärtstor, nach seiner ersten Einfahrt in beiden Läufen.</translation>
    </message>
    <message>
        <source>Time lost from the entrance of an upstream gate to its pole line.</source>
        <translation>Zeitverlust von der Einfahrt eines Aufwärtstors bis zu seiner Torlinie.</translation>
    </message>
    <message>
        <source>Time lost from the pole line of an upstream gate to its exit.</source>
        <translation>Zeitverlust von der Torlinie eines Aufwärtstors bis zu seiner Ausfahrt.</translation>
    </message>
    <message>
        <source>What a stretch lost outside its upstream gates.</source>
        <translation>Was ein Stück außerhalb seiner Aufwärtstore verlor.</translation>
    </message>
    <message>
        <source>loss − Σ gates</source>
        <translation>Verlust − Σ Tore</translation>
    </message>
    <message>
        <source>The part of the loss that notes against the same crew explain.</source>
        <translation>Der Teil des Verlusts, den Notizen gegen dieselbe Besatzung erklären.</translation>
    </message>
    <message>
        <source>Σ notes / paddling</source>
        <translation>Σ Notizen / Fahrzeit</translation>
    </message>
    <message>
        <source>The time without penalties against the expected time.</source>
        <translation>Die Zeit ohne Strafen gegen die erwartete Zeit.</translation>
    </message>
    <message>
        <source>paddling time − expected time</source>
        <translation>Fahrzeit − erwartete Zeit</translation>
    </message>
    <message>
        <source>The total against a result of interest.</source>
        <translation>Die Gesamtzeit gegen ein Ergebnis von Interesse.</translation>
    </message>
    <message>
        <source>own total − result</source>
        <translation>eigene Gesamtzeit − Ergebnis</translation>
    </message>
    <message>
        <source>Time lost as noted; several reasons of one note share it equally.</source>
        <translation>Zeitverlust laut Notizen; mehrere Gründe einer Notiz teilen ihn gleich.</translation>
    </message>
    <message>
        <source>Σ notes above 0</source>
        <translation>Σ Notizen über 0</translation>
    </message>
    <message>
        <source>Time gained as noted; several reasons of one note share it equally.</source>
        <translation>Zeitgewinn laut Notizen; mehrere Gründe einer Notiz teilen ihn gleich.</translation>
    </message>
    <message>
        <source>Σ notes below 0</source>
        <translation>Σ Notizen unter 0</translation>
    </message>
    <message>
        <source>What the chosen way cost against the fastest one timed.</source>
        <translation>Was der gewählte Weg gegen den schnellsten gestoppten kostete.</translation>
    </message>
    <message>
        <source>chosen − least timed</source>
        <translation>gewählter − kleinster gestoppter</translation>
    </message>
    <message>
        <source>What was lost in percent of the reference&apos;s time, over whole runs.</source>
        <translation>Was verloren ging, in Prozent der Zeit der Referenz, über ganze Läufe.</translation>
    </message>
    <message>
        <source>100 · ΣL / ΣB,  SE² = n/(n−1) · Σ(L − qB)² / (ΣB)²</source>
        <translation>100 · ΣL / ΣB,  SE² = n/(n−1) · Σ(L − qB)² / (ΣB)²</translation>
    </message>
    <message>
        <source>ratio estimator: Cochran, Sampling Techniques, 1977</source>
        <translation>Verhältnisschätzer: Cochran, Sampling Techniques, 1977</translation>
    </message>
    <message>
        <source>What was lost here in a run on the average.</source>
        <translation>Was hier in einem Lauf im Mittel verloren ging.</translation>
    </message>
    <message>
        <source>ΣL / n</source>
        <translation>ΣL / n</translation>
    </message>
    <message>
        <source>The part of the whole gap that was lost here.</source>
        <translation>Der Teil des ganzen Rückstands, der hier verloren ging.</translation>
    </message>
    <message>
        <source>ΣL / Σgap</source>
        <translation>ΣL / ΣRückstand</translation>
    </message>
    <message>
        <source>The mean gap of the whole runs.</source>
        <translation>Der mittlere Rückstand der ganzen Läufe.</translation>
    </message>
    <message>
        <source>Σgap / n</source>
        <translation>ΣRückstand / n</translation>
    </message>
    <message>
        <source>interval: Student&apos;s t</source>
        <translation>Intervall: Student-t</translation>
    </message>
    <message>
        <source>The mean difference of penalties of the whole runs.</source>
        <translation>Der mittlere Unterschied der Strafen der ganzen Läufe.</translation>
    </message>
    <message>
        <source>Σ(own − reference) / n</source>
        <translation>Σ(eigene − Referenz) / n</translation>
    </message>
    <message>
        <source>What was lost on the water up to a mark: all stretches before it.</source>
        <translation>Was auf dem Wasser bis zu einer Marke verloren ging: alle Stücke davor.</translation>
    </message>
    <message>
        <source>Σ losses to here</source>
        <translation>Σ Verluste bis hier</translation>
    </message>
    <message>
        <source>The total of the run: the official one where it has one.</source>
        <translation>Die Gesamtzeit des Laufs: die offizielle, wo er eine hat.</translation>
    </message>
    <message>
        <source>One more than have a smaller total in the group, to the hundredth.</source>
        <translation>Einer mehr, als in der Gruppe aufs Hundertstel eine kleinere Gesamtzeit haben.</translation>
    </message>
    <message>
        <source>1 + totals below the own</source>
        <translation>1 + Gesamtzeiten unter der eigenen</translation>
    </message>
    <message>
        <source>The strokes that were marked in the stretch.</source>
        <translation>Die Schläge, die in dem Stück markiert wurden.</translation>
    </message>
    <message>
        <source>Σ strokes</source>
        <translation>Σ Schläge</translation>
    </message>
    <message>
        <source>The seconds of penalty at the gates of the stretch.</source>
        <translation>Die Strafsekunden an den Toren des Stücks.</translation>
    </message>
    <message>
        <source>Σ penalties</source>
        <translation>Σ Strafen</translation>
    </message>
    <message>
        <source>The whole runs that have something of it.</source>
        <translation>Die ganzen Läufe, die etwas davon haben.</translation>
    </message>
    <message>
        <source>number of runs</source>
        <translation>Zahl der Läufe</translation>
    </message>
    <message>
        <source>What was lost here in all runs together.</source>
        <translation>Was hier in allen Läufen zusammen verloren ging.</translation>
    </message>
    <message>
        <source>Too few runs for an interval.</source>
        <translation>Zu wenige Läufe für ein Intervall.</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>verloren</translation>
    </message>
    <message>
        <source>reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>gap of all runs</source>
        <translation>Rückstand aller Läufe</translation>
    </message>
    <message>
        <source>run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>half a frame, four marks</source>
        <translation>ein halbes Bild, vier Marken</translation>
    </message>
    <message>
        <source>loss</source>
        <translation>Verlust</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>Rückstand</translation>
    </message>
    <message>
        <source>paddling</source>
        <translation>Fahrzeit</translation>
    </message>
    <message>
        <source>Shown a hundredth apart, so that the parts add up to the shown gap.</source>
        <translation>Um ein Hundertstel anders gezeigt, damit die Teile den gezeigten Rückstand ergeben.</translation>
    </message>
    <message>
        <source>time without penalties</source>
        <translation>Zeit ohne Strafen</translation>
    </message>
    <message>
        <source>expected time</source>
        <translation>erwartete Zeit</translation>
    </message>
    <message>
        <source>result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>A missed gate also saved paddling, which the rank without it does not take back.</source>
        <translation>Ein Torfehler sparte auch Fahrzeit; der Platz ohne ihn nimmt das nicht zurück.</translation>
    </message>
    <message>
        <source>The total holds {} s of penalty, the gates {:.0f} s.</source>
        <translation>Die Gesamtzeit enthält {} s Strafe, die Tore {:.0f} s.</translation>
    </message>
    <message>
        <source>total</source>
        <translation>Gesamtzeit</translation>
    </message>
    <message>
        <source>smaller totals</source>
        <translation>kleinere Gesamtzeiten</translation>
    </message>
    <message>
        <source>ranked runs</source>
        <translation>gereihte Läufe</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>rank</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>rank without</source>
        <translation>Platz ohne</translation>
    </message>
    <message>
        <source>clean run</source>
        <translation>fehlerfreier Lauf</translation>
    </message>
    <message>
        <source>Unfinished runs are not counted: nobody knows whether they would have stayed clean.</source>
        <translation>Abgebrochene Läufe zählen nicht: niemand weiß, ob sie fehlerfrei geblieben wären.</translation>
    </message>
    <message>
        <source>{} more are not listed.</source>
        <translation>{} weitere stehen nicht in der Liste.</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>{} more rows are not listed.</source>
        <translation>{} weitere Zeilen stehen nicht in der Liste.</translation>
    </message>
    <message>
        <source>5 % and 95 % of the beta distribution</source>
        <translation>5&#xa0;% und 95&#xa0;% der Betaverteilung</translation>
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
        <translation>Wilson-Intervall, 90&#xa0;%</translation>
    </message>
    <message numerus="yes">
        <source>{} touches</source>
        <translation>
            <numerusform>{} Berührung</numerusform>
            <numerusform>{} Berührungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} passages</source>
        <translation>
            <numerusform>{} Durchfahrt</numerusform>
            <numerusform>{} Durchfahrten</numerusform>
        </translation>
    </message>
    <message>
        <source>Too few to tell: {} in {}.</source>
        <translation>Zu wenige für eine Aussage: {} bei {}.</translation>
    </message>
    <message>
        <source>Only one {}: there is nothing to compare it with.</source>
        <translation>Nur ein Fall ({}): es gibt nichts zum Vergleichen.</translation>
    </message>
    <message>
        <source>No {} stands out: the highest, {} ({}), may be chance.</source>
        <translation>Nichts fällt auf ({}): der höchste Wert, {} ({}), kann Zufall sein.</translation>
    </message>
    <message>
        <source>None of {} cost a place.</source>
        <translation>Keinen Platz kostete: {}.</translation>
    </message>
    <message>
        <source>None of {} was noted in detail.</source>
        <translation>Nichts im Einzelnen notiert: {}.</translation>
    </message>
    <message>
        <source>Too few to tell: no group has {} whole runs.</source>
        <translation>Zu wenige für eine Aussage: keine Gruppe hat {} ganze Läufe.</translation>
    </message>
    <message>
        <source>1 % of speed pays for {:.2f} touches a run.</source>
        <translation>1&#xa0;% Tempo wiegt {:.2f} Berührungen je Lauf auf.</translation>
    </message>
    <message>
        <source>{} of {} without a penalty: {:.1f} % ({:.1f}–{:.1f}).</source>
        <translation>{} von {} ohne Strafe: {:.1f}&#xa0;% ({:.1f}–{:.1f}).</translation>
    </message>
    <message>
        <source>{} {} {}, place</source>
        <translation>{} {} {}, Platz</translation>
    </message>
    <message>
        <source>counted</source>
        <translation>gezählt</translation>
    </message>
    <message>
        <source>{} left out: {}</source>
        <translation>{} ausgelassen: {}</translation>
    </message>
    <message>
        <source>{} {} of {} ({:.0f}–{:.0f} %)</source>
        <translation>{} {} von {} ({:.0f}–{:.0f}&#xa0;%)</translation>
    </message>
    <message>
        <source>{:.1f} % behind the winner, {} (median of {})</source>
        <translation>{:.1f}&#xa0;% hinter dem Sieger, {} (Median: {})</translation>
    </message>
    <message>
        <source>within {:.1f} % from run to run</source>
        <translation>Streuung {:.1f}&#xa0;% von Lauf zu Lauf</translation>
    </message>
    <message>
        <source>trend {:+.1f} % a year: {}</source>
        <translation>Trend {:+.1f}&#xa0;% im Jahr: {}</translation>
    </message>
    <message>
        <source>Too few runs to tell how much they vary.</source>
        <translation>Zu wenige Läufe, um zu sagen, wie stark sie schwanken.</translation>
    </message>
    <message>
        <source>From run to run {:.1f} % is chance.</source>
        <translation>Von Lauf zu Lauf sind {:.1f}&#xa0;% Zufall.</translation>
    </message>
    <message>
        <source>From run to run {:.1f} % ({:.1f} to {:.1f}) is chance; {:.2f} % is worth gaining.</source>
        <translation>Von Lauf zu Lauf sind {:.1f}&#xa0;% ({:.1f} bis {:.1f}) Zufall; {:.2f}&#xa0;% zu gewinnen lohnt sich.</translation>
    </message>
    <message>
        <source>{} of {} grew faster beyond doubt, {} slower.</source>
        <translation>{} von {} wurden zweifelsfrei schneller, {} langsamer.</translation>
    </message>
    <message>
        <source>{} met nobody in these races.</source>
        <translation>{} traf in diesen Rennen auf niemanden.</translation>
    </message>
    <message numerus="yes">
        <source>{} rivals</source>
        <translation>
            <numerusform>{} Rivale</numerusform>
            <numerusform>{} Rivalen</numerusform>
        </translation>
    </message>
    <message>
        <source>{} is ahead beyond doubt of {} of {}.</source>
        <translation>{} liegt zweifelsfrei vor {} von {}.</translation>
    </message>
    <message>
        <source>No split file of this class has three whole runs of a {}.</source>
        <translation>Keine Zwischenzeitdatei dieser Klasse hat drei ganze Läufe: {}.</translation>
    </message>
    <message>
        <source>{:.1f} % would have been among the first three in {} of {}.</source>
        <translation>{:.1f}&#xa0;% wären unter den ersten drei gewesen: {} von {}.</translation>
    </message>
    <message>
        <source>The third was {:.1f} % behind in the median of {}.</source>
        <translation>Der Dritte lag {:.1f}&#xa0;% zurück (Median: {}).</translation>
    </message>
    <message>
        <source>Nobody of the team has runs enough to expect a place of.</source>
        <translation>Niemand im Team hat genug Läufe, um einen Platz zu erwarten.</translation>
    </message>
    <message>
        <source>{} may expect place {:.1f} of {}, a medal by {:.0f} %.</source>
        <translation>{} darf Platz {:.1f} von {} erwarten, eine Medaille mit {:.0f}&#xa0;%.</translation>
    </message>
    <message numerus="yes">
        <source>{} finals</source>
        <translation>
            <numerusform>{} Finale</numerusform>
            <numerusform>{} Finals</numerusform>
        </translation>
    </message>
    <message>
        <source>{:.1f} % would have been a medal in {} of {}</source>
        <translation>{:.1f}&#xa0;% wären eine Medaille gewesen: {} von {}</translation>
    </message>
    <message>
        <source>Nearest to the winners ({}): {}, {:.1f} % (median of {}).</source>
        <translation>Den Siegern am nächsten ({}): {}, {:.1f}&#xa0;% (Median: {}).</translation>
    </message>
    <message>
        <source>No winner of a phase &quot;{}&quot; of these races is known.</source>
        <translation>Von diesen Rennen ist kein Sieger einer Phase „{}“ bekannt.</translation>
    </message>
    <message>
        <source>split {}, fastest of it {:.2f}</source>
        <translation>Zwischenzeit {}, die schnellste {:.2f}</translation>
    </message>
    <message>
        <source>missed</source>
        <translation>verfehlt</translation>
    </message>
    <message>
        <source>runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>all missed</source>
        <translation>alle verfehlten</translation>
    </message>
    <message>
        <source>all runs</source>
        <translation>alle Läufe</translation>
    </message>
    <message>
        <source>{}, spread {:.2f}, missed {:.1f} %</source>
        <translation>{}, Streuung {:.2f}, verfehlt {:.1f}&#xa0;%</translation>
    </message>
    <message>
        <source>How far behind the winner of the phase and class, penalties included.</source>
        <translation>Wie weit hinter dem Sieger der Phase und Klasse, Strafen eingerechnet.</translation>
    </message>
    <message>
        <source>100 · (T / W − 1)</source>
        <translation>100 · (T / W − 1)</translation>
    </message>
    <message>
        <source>of the class winner, not of the men&apos;s kayaks: Wells, thesis, 2018</source>
        <translation>des Klassensiegers, nicht der Kajak-Männer: Wells, thesis, 2018</translation>
    </message>
    <message>
        <source>How far behind the fastest times of all splits together, without penalties.</source>
        <translation>Wie weit hinter den schnellsten Zeiten aller Abschnitte zusammen, ohne Strafen.</translation>
    </message>
    <message>
        <source>100 · (Σ splits / Σ fastest − 1)</source>
        <translation>100 · (Σ Abschnitte / Σ schnellste − 1)</translation>
    </message>
    <message>
        <source>How much a run varies by chance, once the athlete and the course are taken out.</source>
        <translation>Wie stark ein Lauf zufällig schwankt, wenn Athlet und Strecke herausgerechnet sind.</translation>
    </message>
    <message>
        <source>100 · (e^(s/100) − 1),  s² = Σe² / df,  df = runs − athletes − phases + connected parts</source>
        <translation>100 · (e^(s/100) − 1),  s² = Σe² / df,  df = Läufe − Athleten − Phasen + verbundene Teile</translation>
    </message>
    <message>
        <source>mixed model of elite canoeists: Bonetti, Hopkins, 2010; interval: χ²</source>
        <translation>gemischtes Modell für Spitzenkanuten: Bonetti, Hopkins, 2010; Intervall: χ²</translation>
    </message>
    <message>
        <source>How much this athlete&apos;s runs varied by chance.</source>
        <translation>Wie stark die Läufe dieses Athleten zufällig schwankten.</translation>
    </message>
    <message>
        <source>s² = Σe² / (runs · df / all runs)</source>
        <translation>s² = Σe² / (Läufe · df / alle Läufe)</translation>
    </message>
    <message>
        <source>The athlete&apos;s spread drawn towards the common one, the more the fewer the runs.</source>
        <translation>Die Streuung des Athleten, zur gemeinsamen hingezogen, umso mehr, je weniger Läufe.</translation>
    </message>
    <message>
        <source>s² = (Σe² + 10 · common s²) / (runs · df / all runs + 10)</source>
        <translation>s² = (Σe² + 10 · gemeinsames s²) / (Läufe · df / alle Läufe + 10)</translation>
    </message>
    <message>
        <source>What is worth gaining: one more medal in ten races among equals at the top.</source>
        <translation>Was zu gewinnen sich lohnt: eine Medaille mehr in zehn Rennen unter Gleichen an der Spitze.</translation>
    </message>
    <message>
        <source>0.3 · spread</source>
        <translation>0.3 · Streuung</translation>
    </message>
    <message>
        <source>Hopkins, 2004</source>
        <translation>Hopkins, 2004</translation>
    </message>
    <message>
        <source>The change of the percentage behind from year to year.</source>
        <translation>Die Änderung des Prozentrückstands von Jahr zu Jahr.</translation>
    </message>
    <message>
        <source>slope of 100 · ln(1 + percent/100) per 365.25 days</source>
        <translation>Steigung von 100 · ln(1 + Prozent/100) je 365.25 Tage</translation>
    </message>
    <message>
        <source>Races among whose first three the athlete was.</source>
        <translation>Rennen, in denen der Athlet unter den ersten drei war.</translation>
    </message>
    <message>
        <source>places 1 to 3 / races with a final position</source>
        <translation>Plätze 1 bis 3 / Rennen mit Endplatz</translation>
    </message>
    <message>
        <source>interval: Wilson</source>
        <translation>Intervall: Wilson</translation>
    </message>
    <message>
        <source>Races in whose final the athlete was.</source>
        <translation>Rennen, in deren Finale der Athlet stand.</translation>
    </message>
    <message>
        <source>with a final / with phases</source>
        <translation>mit Finale / mit Phasen</translation>
    </message>
    <message>
        <source>Races in whose semifinal the athlete was.</source>
        <translation>Rennen, in deren Halbfinale der Athlet stand.</translation>
    </message>
    <message>
        <source>with a semifinal / with phases</source>
        <translation>mit Halbfinale / mit Phasen</translation>
    </message>
    <message>
        <source>The mean change from one phase of a race to a later one.</source>
        <translation>Die mittlere Änderung von einer Phase eines Rennens zu einer späteren.</translation>
    </message>
    <message>
        <source>mean of 100 · (ln later − ln earlier)</source>
        <translation>Mittel von 100 · (ln spätere − ln frühere)</translation>
    </message>
    <message>
        <source>How much a single run varies by chance, from pairs of them.</source>
        <translation>Wie stark ein einzelner Lauf zufällig schwankt, aus Paaren von Läufen.</translation>
    </message>
    <message>
        <source>SD of the changes / √2</source>
        <translation>SD der Änderungen / √2</translation>
    </message>
    <message>
        <source>typical error: Hopkins, 2000</source>
        <translation>typischer Fehler: Hopkins, 2000</translation>
    </message>
    <message>
        <source>Phases that both have in which the athlete was faster; ties count half.</source>
        <translation>Gemeinsame Phasen, in denen der Athlet schneller war; Gleichstand zählt halb.</translation>
    </message>
    <message>
        <source>(won + ties/2) / met</source>
        <translation>(gewonnen + gleich/2) / getroffen</translation>
    </message>
    <message>
        <source>The mean gap in the phases that both have, penalties included.</source>
        <translation>Der mittlere Rückstand in den gemeinsamen Phasen, Strafen eingerechnet.</translation>
    </message>
    <message>
        <source>mean of 100 · ln(own / rival&apos;s)</source>
        <translation>Mittel von 100 · ln(eigene / des Rivalen)</translation>
    </message>
    <message>
        <source>What percentage behind the winner a rank took, over the races.</source>
        <translation>Mit wie viel Prozent hinter dem Sieger ein Platz erreicht wurde, über die Rennen.</translation>
    </message>
    <message>
        <source>median of 100 · (T of the rank / W − 1)</source>
        <translation>Median von 100 · (T des Platzes / W − 1)</translation>
    </message>
    <message>
        <source>The chance of a missed gate, drawn towards everybody&apos;s as if by 20 runs more.</source>
        <translation>Die Wahrscheinlichkeit eines Torfehlers, zu der aller hingezogen wie durch 20 Läufe mehr.</translation>
    </message>
    <message>
        <source>(missed + 20q) / (runs + 20),  q = (all missed + ½) / (all runs + 1)</source>
        <translation>(verfehlt + 20q) / (Läufe + 20),  q = (alle verfehlten + ½) / (alle Läufe + 1)</translation>
    </message>
    <message>
        <source>The mean place among this field; with a missed gate behind all that have none.</source>
        <translation>Der mittlere Platz in diesem Feld; mit Torfehler hinter allen, die keinen haben.</translation>
    </message>
    <message>
        <source>Σ place · chance,  result normal: effect, spread · √(1 + 1/n)</source>
        <translation>Σ Platz · Wahrscheinlichkeit,  Ergebnis normal: Effekt, Streuung · √(1 + 1/n)</translation>
    </message>
    <message>
        <source>The chance of one of the first three places among this field.</source>
        <translation>Die Wahrscheinlichkeit eines der ersten drei Plätze in diesem Feld.</translation>
    </message>
    <message>
        <source>chances of the places 1 to 3</source>
        <translation>Wahrscheinlichkeiten der Plätze 1 bis 3</translation>
    </message>
    <message>
        <source>How far behind the winners of a phase, the same number of races before and behind it.</source>
        <translation>Wie weit hinter den Siegern einer Phase, gleich viele Rennen davor wie danach.</translation>
    </message>
    <message>
        <source>median of 100 · (T / W − 1), without missed gates</source>
        <translation>Median von 100 · (T / W − 1), ohne Torfehler</translation>
    </message>
    <message>
        <source>{} {} {}, percent</source>
        <translation>{} {} {}, Prozent</translation>
    </message>
    <message>
        <source>90 %, Student&apos;s t with {} degrees</source>
        <translation>90&#xa0;%, Student-t mit {} Freiheitsgraden</translation>
    </message>
    <message>
        <source>{:+.1f} % a year</source>
        <translation>{:+.1f}&#xa0;% im Jahr</translation>
    </message>
    <message>
        <source>spread, percent</source>
        <translation>Streuung, Prozent</translation>
    </message>
    <message>
        <source>athletes</source>
        <translation>Athleten</translation>
    </message>
    <message>
        <source>race phases</source>
        <translation>Rennphasen</translation>
    </message>
    <message>
        <source>connected parts</source>
        <translation>verbundene Teile</translation>
    </message>
    <message>
        <source>degrees of freedom</source>
        <translation>Freiheitsgrade</translation>
    </message>
    <message>
        <source>90 %, χ²</source>
        <translation>90&#xa0;%, χ²</translation>
    </message>
    <message>
        <source>common spread, percent</source>
        <translation>gemeinsame Streuung, Prozent</translation>
    </message>
    <message>
        <source>{} with a missed gate left out</source>
        <translation>{} mit Torfehler ausgelassen</translation>
    </message>
    <message>
        <source>exact Poisson interval, 90 %</source>
        <translation>exaktes Poisson-Intervall, 90&#xa0;%</translation>
    </message>
    <message>
        <source>median paddling</source>
        <translation>mittlere Fahrzeit</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Abschnitte</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Upstream gates</source>
        <translation>Aufwärtstore</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source> (%1 to %2)</source>
        <translation> (%1 bis %2)</translation>
    </message>
    <message>
        <source> (too few)</source>
        <translation> (zu wenige)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>Losses and penalties · %1on the reference &quot;%2&quot; · %3</source>
        <translation>Verluste und Strafen · %1auf die Referenz „%2“ · %3</translation>
    </message>
    <message>
        <source>Where time is lost</source>
        <translation>Wo Zeit verloren geht</translation>
    </message>
    <message>
        <source>Seconds a run: gap %1, penalties %2</source>
        <translation>Sekunden je Lauf: Rückstand %1, Strafen %2</translation>
    </message>
    <message>
        <source>No whole run can be held against this reference.</source>
        <translation>Kein ganzer Lauf lässt sich mit dieser Referenz vergleichen.</translation>
    </message>
    <message>
        <source>%1 more rows are left out.</source>
        <translation>%1 weitere Zeilen sind ausgelassen.</translation>
    </message>
    <message>
        <source>In</source>
        <translation>In</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>Lost, s</source>
        <translation>Verlust, s</translation>
    </message>
    <message>
        <source>A run, s</source>
        <translation>Je Lauf, s</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>90 % interval</source>
        <translation>90-%-Intervall</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>zu wenige</translation>
    </message>
    <message>
        <source>%1, run %2, %3 %4</source>
        <translation>%1, Lauf %2, %3 %4</translation>
    </message>
    <message>
        <source>What to train</source>
        <translation>Was zu trainieren ist</translation>
    </message>
    <message>
        <source>whose whole interval is above 0, by what it costs in a run</source>
        <translation>deren ganzes Intervall über 0 liegt, nach dem, was es in einem Lauf kostet</translation>
    </message>
    <message>
        <source>Nothing stands out from these runs.</source>
        <translation>Aus diesen Läufen fällt nichts auf.</translation>
    </message>
    <message>
        <source>%1. %2, %3: %4 s a run</source>
        <translation>%1. %2, %3: %4 s je Lauf</translation>
    </message>
    <message>
        <source>See </source>
        <translation>Siehe </translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Tore</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Berührungen</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Verfehlt</translation>
    </message>
    <message>
        <source>Percent, 90 %</source>
        <translation>Prozent, 90&#xa0;%</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Tenth of course</source>
        <translation>Zehntel der Strecke</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Strafen</translation>
    </message>
    <message>
        <source>No run tells its penalties by gate.</source>
        <translation>Kein Lauf nennt seine Strafen nach Toren.</translation>
    </message>
    <message>
        <source>Noted of %1 %2, shares of those noted:</source>
        <translation>Notiert zu %1 %2, Anteile der notierten:</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>Strafe</translation>
    </message>
    <message>
        <source>Penalties by gate</source>
        <translation>Strafen nach Toren</translation>
    </message>
    <message>
        <source>and %1 more gates</source>
        <translation>und %1 weitere Tore</translation>
    </message>
    <message numerus="yes">
        <source>{} missed gates</source>
        <translation>
            <numerusform>{} Torfehler</numerusform>
            <numerusform>{} Torfehler</numerusform>
        </translation>
    </message>
    <message>
        <source> in </source>
        <translation> in </translation>
    </message>
    <message>
        <source>upstream gate</source>
        <translation>Aufwärtstor</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>blau</translation>
    </message>
    <message>
        <source>green</source>
        <translation>grün</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>orange</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rot</translation>
    </message>
    <message>
        <source>fastest*, %1</source>
        <translation>schnellste*, %1</translation>
    </message>
    <message>
        <source>%1, slowest, by tenths of the column</source>
        <translation>%1, langsamste, nach Zehnteln der Spalte</translation>
    </message>
    <message>
        <source>* best of its column, in %1; all others in %2</source>
        <translation>* Bestzeit ihrer Spalte, in %1; alle anderen in %2</translation>
    </message>
    <message>
        <source>Page %1 / %2</source>
        <translation>Seite %1 / %2</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>listed</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Nothing is planned and nothing entered.</source>
        <translation>Nichts ist geplant und nichts eingetragen.</translation>
    </message>
    <message>
        <source>Season %1</source>
        <translation>Saison %1</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Wochen</translation>
    </message>
    <message>
        <source>Macrocycles</source>
        <translation>Makrozyklen</translation>
    </message>
    <message>
        <source>Weeks with an event</source>
        <translation>Wochen mit einem Ereignis</translation>
    </message>
    <message>
        <source>Races run</source>
        <translation>Gefahrene Rennen</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Gruppe %1</translation>
    </message>
    <message>
        <source>  ·  %1 of %2 reached</source>
        <translation>  ·  %1 von %2 erreicht</translation>
    </message>
    <message>
        <source>Goals of the season</source>
        <translation>Ziele der Saison</translation>
    </message>
    <message>
        <source>No week of this season is planned yet.</source>
        <translation>Noch keine Woche dieser Saison ist geplant.</translation>
    </message>
    <message>
        <source>Training by category</source>
        <translation>Training nach Kategorie</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Macrocycle</source>
        <translation>Makrozyklus</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mesozyklus</translation>
    </message>
    <message>
        <source>Load, %</source>
        <translation>Belastung, %</translation>
    </message>
    <message>
        <source>Event, place</source>
        <translation>Ereignis, Ort</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>Morning</source>
        <translation>Morgen</translation>
    </message>
    <message>
        <source>Afternoon</source>
        <translation>Nachmittag</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Abend</translation>
    </message>
    <message>
        <source>Any time</source>
        <translation>Jederzeit</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>continued</source>
        <translation>fortgesetzt</translation>
    </message>
    <message>
        <source>Other days</source>
        <translation>Andere Tage</translation>
    </message>
    <message>
        <source>Training week</source>
        <translation>Trainingswoche</translation>
    </message>
    <message>
        <source>Week %1</source>
        <translation>Woche %1</translation>
    </message>
    <message>
        <source>Goals of the week</source>
        <translation>Ziele der Woche</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Str</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Rückstand</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Beste</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Ideal run without penalties</source>
        <translation>Ideallauf ohne Strafen</translation>
    </message>
    <message>
        <source>Ideal run</source>
        <translation>Ideallauf</translation>
    </message>
    <message>
        <source>Fastest run</source>
        <translation>Schnellster Lauf</translation>
    </message>
    <message>
        <source>Split times</source>
        <translation>Zwischenzeiten</translation>
    </message>
    <message>
        <source>There are no runs to show.</source>
        <translation>Keine Läufe zu zeigen.</translation>
    </message>
    <message>
        <source>%1 gates</source>
        <translation>%1 Tore</translation>
    </message>
    <message>
        <source>, %1 upstream</source>
        <translation>, davon %1 aufwärts</translation>
    </message>
    <message>
        <source>Race</source>
        <translation>Rennen</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Wasser</translation>
    </message>
    <message>
        <source>For comparison</source>
        <translation>Zum Vergleich</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Kat</translation>
    </message>
    <message>
        <source> Grey: not timed as a whole, never a best.</source>
        <translation> Grau: nicht als Ganzes gestoppt, nie Bestzeit.</translation>
    </message>
    <message>
        <source>Split %1</source>
        <translation>Zwischenzeit %1</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>%1 s of %2 s; strokes are counted of whole sections.</source>
        <translation>%1 s von %2 s; Schläge werden in ganzen Abschnitten gezählt.</translation>
    </message>
    <message>
        <source>The penalties of this run are not known by gate.</source>
        <translation>Die Strafen dieses Laufs sind nicht nach Toren bekannt.</translation>
    </message>
    <message>
        <source>Time so far</source>
        <translation>Zeit bis hier</translation>
    </message>
    <message>
        <source>Among all runs</source>
        <translation>Unter allen Läufen</translation>
    </message>
    <message>
        <source>Among all runs of </source>
        <translation>Unter allen Läufen: </translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Entrance</source>
        <translation>Einfahrt</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ausfahrt</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Zeitverluste</translation>
    </message>
    <message>
        <source>Against</source>
        <translation>Gegen</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Markierungen</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Markierung</translation>
    </message>
    <message>
        <source>In the run at</source>
        <translation>Im Lauf bei</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentare</translation>
    </message>
    <message>
        <source>Split {}</source>
        <translation>Zwischenzeit {}</translation>
    </message>
    <message>
        <source>best</source>
        <translation>beste</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Schläge</translation>
    </message>
    <message>
        <source>per min</source>
        <translation>je min</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Zwischenzeit</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Strafe</translation>
    </message>
    <message>
        <source>on the film</source>
        <translation>auf dem Film</translation>
    </message>
    <message>
        <source>recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>gap and rank among all runs of the category; the run&apos;s with penalties</source>
        <translation>Rückstand und Platz unter allen Läufen der Kategorie; der des Laufs mit Strafen</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Zwischenzeiten</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Recording: </source>
        <translation>Aufzeichnung: </translation>
    </message>
    <message>
        <source>third of the final, median</source>
        <translation>Dritter des Finales, Median</translation>
    </message>
    <message>
        <source>rank %1: %2 %</source>
        <translation>Platz %1: %2&#xa0;%</translation>
    </message>
    <message>
        <source>own median</source>
        <translation>eigener Median</translation>
    </message>
    <message>
        <source>Medal</source>
        <translation>Medaille</translation>
    </message>
    <message>
        <source>Season </source>
        <translation>Saison </translation>
    </message>
    <message>
        <source>%1 · %2 races · intervals are 90 %</source>
        <translation>%1 · %2 Rennen · Intervalle sind 90&#xa0;%</translation>
    </message>
    <message>
        <source>Percent behind the winner</source>
        <translation>Prozent hinter dem Sieger</translation>
    </message>
    <message>
        <source>Percent behind the fastest splits</source>
        <translation>Prozent hinter den schnellsten Abschnitten</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Rennen</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Erreicht</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Medaillen</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finals</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Halbfinals</translation>
    </message>
    <message>
        <source>Medals and finals</source>
        <translation>Medaillen und Finals</translation>
    </message>
    <message>
        <source>Change, below 0 is faster</source>
        <translation>Änderung, unter 0 ist schneller</translation>
    </message>
    <message>
        <source>A year on the winner</source>
        <translation>Im Jahr auf den Sieger</translation>
    </message>
    <message>
        <source>A year on the splits</source>
        <translation>Im Jahr auf Abschnitte</translation>
    </message>
    <message>
        <source>Run 1 to run 2</source>
        <translation>Lauf 1 zu Lauf 2</translation>
    </message>
    <message>
        <source>Semifinal to final</source>
        <translation>Halbfinale zu Finale</translation>
    </message>
    <message>
        <source>Heats to final, behind</source>
        <translation>Vorlauf zu Finale, Rückstand</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Ahead of</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Met</source>
        <translation>Getroffen</translation>
    </message>
    <message>
        <source>Head to head</source>
        <translation>Direkter Vergleich</translation>
    </message>
    <message>
        <source>What a rank of the final took</source>
        <translation>Was ein Platz im Finale brauchte</translation>
    </message>
    <message>
        <source>%1 athletes · intervals are 90 %</source>
        <translation>%1 Athleten · Intervalle sind 90&#xa0;%</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>Chance, %</source>
        <translation>Zufall, %</translation>
    </message>
    <message>
        <source>% a year</source>
        <translation>% im Jahr</translation>
    </message>
    <message>
        <source>On the splits</source>
        <translation>Auf Abschnitte</translation>
    </message>
    <message>
        <source>On the winner</source>
        <translation>Auf den Sieger</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Athleten</translation>
    </message>
    <message>
        <source>What a rank took: </source>
        <translation>Was ein Platz brauchte: </translation>
    </message>
    <message>
        <source>Expected places</source>
        <translation>Erwartete Plätze</translation>
    </message>
    <message>
        <source>best %1</source>
        <translation>bester %1</translation>
    </message>
    <message>
        <source> · races %1 to %2</source>
        <translation> · Rennen %1 bis %2</translation>
    </message>
    <message>
        <source>, continued</source>
        <translation>, fortgesetzt</translation>
    </message>
    <message>
        <source>Pos</source>
        <translation>Pl</translation>
    </message>
    <message>
        <source>SURNAME Name</source>
        <translation>NACHNAME Vorname</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Verein</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
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
        <translation>x Wertung</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Wertung</translation>
    </message>
    <message>
        <source>Percent behind the best of the race and category. </source>
        <translation>Prozent hinter dem Besten des Rennens und der Kategorie. </translation>
    </message>
    <message>
        <source>Percent behind the best expected time of the race and category. </source>
        <translation>Prozent hinter der besten erwarteten Zeit des Rennens und der Kategorie. </translation>
    </message>
    <message>
        <source>The worst result is struck through and does not count</source>
        <translation>Das schlechteste Ergebnis ist durchgestrichen und zählt nicht</translation>
    </message>
    <message>
        <source>; with a bonus the two worst. </source>
        <translation>; mit Bonus die zwei schlechtesten. </translation>
    </message>
    <message>
        <source>Score: the sum of the others divided by three. %1: no result, P: preselected.</source>
        <translation>Wertung: die Summe der anderen, durch drei geteilt. %1: kein Ergebnis, P: gesetzt.</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Kind %1</source>
        <translation>Art %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Place and date</source>
        <translation>Ort und Datum</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Unterschrift</translation>
    </message>
    <message>
        <source>the median of each column</source>
        <translation>der Median jeder Spalte</translation>
    </message>
    <message>
        <source>the ideal run</source>
        <translation>der Ideallauf</translation>
    </message>
    <message>
        <source>the best of each column</source>
        <translation>das Beste jeder Spalte</translation>
    </message>
    <message>
        <source>Gaps in seconds to %1.</source>
        <translation>Rückstände in Sekunden auf %1.</translation>
    </message>
    <message>
        <source>Places within each column.</source>
        <translation>Plätze in jeder Spalte.</translation>
    </message>
    <message>
        <source>Percent behind the best of each column.</source>
        <translation>Prozent hinter dem Besten jeder Spalte.</translation>
    </message>
    <message>
        <source>Percentiles of each column; the best has 100.</source>
        <translation>Perzentile jeder Spalte; das Beste hat 100.</translation>
    </message>
    <message>
        <source>Times from the start, without penalties.</source>
        <translation>Zeiten vom Start an, ohne Strafen.</translation>
    </message>
    <message>
        <source>Penalties are included in sections and total.</source>
        <translation>Strafen sind in Abschnitten und Gesamtzeit enthalten.</translation>
    </message>
    <message>
        <source>Penalties are not included.</source>
        <translation>Strafen sind nicht enthalten.</translation>
    </message>
    <message>
        <source>Penalty seconds in brackets.</source>
        <translation>Strafsekunden in Klammern.</translation>
    </message>
    <message>
        <source>Compared among all %1 runs.</source>
        <translation>Verglichen unter allen %1 Läufen.</translation>
    </message>
    <message>
        <source>Final position</source>
        <translation>Endplatz</translation>
    </message>
    <message>
        <source>No athlete of this category comes into question.</source>
        <translation>Kein Athlet dieser Kategorie kommt in Frage.</translation>
    </message>
    <message>
        <source>medals</source>
        <translation>Medaillen</translation>
    </message>
    <message>
        <source>championship medals</source>
        <translation>Meisterschaftsmedaillen</translation>
    </message>
    <message>
        <source>top 6</source>
        <translation>Top 6</translation>
    </message>
    <message>
        <source>top 15</source>
        <translation>Top 15</translation>
    </message>
    <message>
        <source>What counts is summed and divided by three, however many races there were.</source>
        <translation>Was zählt, wird summiert und durch drei geteilt, wie viele Rennen es auch waren.</translation>
    </message>
    <message>
        <source>Σ counted / 3</source>
        <translation>Σ gezählte / 3</translation>
    </message>
    <message>
        <source>the rules of the selection</source>
        <translation>die Regeln der Nominierung</translation>
    </message>
    <message>
        <source>The results and the bonus that count.</source>
        <translation>Die Ergebnisse und der Bonus, die zählen.</translation>
    </message>
    <message>
        <source>Σ counted</source>
        <translation>Σ gezählte</translation>
    </message>
    <message>
        <source>Counts in the score.</source>
        <translation>Zählt in der Wertung.</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>Dropped: the worst result of all.</source>
        <translation>Gestrichen: das schlechteste Ergebnis von allen.</translation>
    </message>
    <message>
        <source>not in the score</source>
        <translation>nicht in der Wertung</translation>
    </message>
    <message>
        <source>Dropped too: a bonus stands among the results.</source>
        <translation>Auch gestrichen: unter den Ergebnissen steht ein Bonus.</translation>
    </message>
    <message>
        <source>How far behind the best of the category in this race, with penalties.</source>
        <translation>Wie weit hinter dem Besten der Kategorie in diesem Rennen, mit Strafen.</translation>
    </message>
    <message>
        <source>100 · ((time + penalties) / best − 1)</source>
        <translation>100 · ((Zeit + Strafen) / beste − 1)</translation>
    </message>
    <message>
        <source>A race without a result stands for this much.</source>
        <translation>Ein Rennen ohne Ergebnis zählt so viel.</translation>
    </message>
    <message>
        <source>999.99</source>
        <translation>999.99</translation>
    </message>
    <message>
        <source>More than two medals, or one at a championship, in the first two seasons.</source>
        <translation>Mehr als zwei Medaillen, oder eine bei einer Meisterschaft, in den ersten zwei Saisons.</translation>
    </message>
    <message>
        <source>medals &gt; 2 or championship medals ≥ 1</source>
        <translation>Medaillen &gt; 2 oder Meisterschaftsmedaillen ≥ 1</translation>
    </message>
    <message>
        <source>the rules of the categorization</source>
        <translation>die Regeln der Einstufung</translation>
    </message>
    <message>
        <source>Three times among the first six in the first two seasons.</source>
        <translation>Dreimal unter den ersten sechs in den ersten zwei Saisons.</translation>
    </message>
    <message>
        <source>top 6 ≥ 3</source>
        <translation>Top 6 ≥ 3</translation>
    </message>
    <message>
        <source>Four times among the first fifteen in the first two seasons.</source>
        <translation>Viermal unter den ersten fünfzehn in den ersten zwei Saisons.</translation>
    </message>
    <message>
        <source>top 15 ≥ 4</source>
        <translation>Top 15 ≥ 4</translation>
    </message>
    <message>
        <source>None of the other levels is reached in the first two seasons.</source>
        <translation>Keine der anderen Stufen ist in den ersten zwei Saisons erreicht.</translation>
    </message>
    <message>
        <source>otherwise</source>
        <translation>sonst</translation>
    </message>
    <message>
        <source>Races with a final position of 1 to 3.</source>
        <translation>Rennen mit einem Endplatz von 1 bis 3.</translation>
    </message>
    <message>
        <source>count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Races with a final position of 1 to 6.</source>
        <translation>Rennen mit einem Endplatz von 1 bis 6.</translation>
    </message>
    <message>
        <source>Races with a final position of 1 to 15.</source>
        <translation>Rennen mit einem Endplatz von 1 bis 15.</translation>
    </message>
    <message>
        <source>Races with a final position.</source>
        <translation>Rennen mit einem Endplatz.</translation>
    </message>
    <message>
        <source>What the run would have taken at its usual distance from the best times.</source>
        <translation>Was der Lauf bei seinem üblichen Abstand zu den Bestzeiten gebraucht hätte.</translation>
    </message>
    <message>
        <source>factor · perfect time</source>
        <translation>Faktor · perfekte Zeit</translation>
    </message>
    <message>
        <source>How far its times stand above the best ones, without the outermost.</source>
        <translation>Wie weit seine Zeiten über den besten liegen, ohne die äußersten.</translation>
    </message>
    <message>
        <source>mean of the ratios that are left</source>
        <translation>Mittel der übrigen Verhältnisse</translation>
    </message>
    <message>
        <source>A time of the run against the best of all runs there.</source>
        <translation>Eine Zeit des Laufs gegen die beste aller Läufe dort.</translation>
    </message>
    <message>
        <source>own / best</source>
        <translation>eigene / beste</translation>
    </message>
    <message>
        <source>The best times of all runs, put together.</source>
        <translation>Die besten Zeiten aller Läufe, zusammengesetzt.</translation>
    </message>
    <message>
        <source>factor</source>
        <translation>Faktor</translation>
    </message>
    <message>
        <source>perfect time</source>
        <translation>perfekte Zeit</translation>
    </message>
    <message>
        <source>ratios that are left</source>
        <translation>übrige Verhältnisse</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Nebeneinander</translation>
    </message>
    <message>
        <source>Above each other</source>
        <translation>Übereinander</translation>
    </message>
    <message>
        <source>Two by two</source>
        <translation>Zwei mal zwei</translation>
    </message>
    <message>
        <source>One within the other</source>
        <translation>Einer im anderen</translation>
    </message>
    <message>
        <source>Ghost: seen through</source>
        <translation>Geist: durchscheinend</translation>
    </message>
    <message>
        <source>Left and right of a line</source>
        <translation>Links und rechts einer Linie</translation>
    </message>
    <message>
        <source>at the start</source>
        <translation>am Start</translation>
    </message>
    <message>
        <source>at one split</source>
        <translation>an einer Zwischenzeit</translation>
    </message>
    <message>
        <source>at every split, waiting</source>
        <translation>an jeder Zwischenzeit, wartend</translation>
    </message>
    <message>
        <source>at every split, stretched</source>
        <translation>an jeder Zwischenzeit, gedehnt</translation>
    </message>
    <message>
        <source>the whole run</source>
        <translation>der ganze Lauf</translation>
    </message>
    <message>
        <source>from split to split</source>
        <translation>von Zwischenzeit zu Zwischenzeit</translation>
    </message>
    <message>
        <source>Combination</source>
        <translation>Torkombination</translation>
    </message>
    <message>
        <source>Enter plays both films</source>
        <translation>Enter spielt beide Filme ab</translation>
    </message>
    <message>
        <source>No film is known here</source>
        <translation>Hier ist kein Film bekannt</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Own time less the reference&apos;s; all of them add up to what is shown on top</source>
        <translation>Eigene Zeit minus die der Referenz; alle zusammen ergeben, was oben steht</translation>
    </message>
    <message>
        <source>Between</source>
        <translation>Zwischen</translation>
    </message>
    <message>
        <source>Lost outside the upstream gates</source>
        <translation>Verlust außerhalb der Aufwärtstore</translation>
    </message>
    <message>
        <source>Reference&apos;s strokes</source>
        <translation>Schläge der Referenz</translation>
    </message>
    <message>
        <source>Own seconds of penalty in the section</source>
        <translation>Eigene Strafsekunden im Abschnitt</translation>
    </message>
    <message>
        <source>A tick makes the run what all are held against</source>
        <translation>Ein Häkchen macht den Lauf zum Vergleich für alle</translation>
    </message>
    <message>
        <source>Paddling</source>
        <translation>Fahrzeit</translation>
    </message>
    <message>
        <source>Timing</source>
        <translation>Zeitnahme</translation>
    </message>
    <message>
        <source>On expected time</source>
        <translation>Auf erwartete Zeit</translation>
    </message>
    <message>
        <source>Time without penalties less the expected time</source>
        <translation>Zeit ohne Strafen minus die erwartete Zeit</translation>
    </message>
    <message>
        <source>Lost up to the pole line</source>
        <translation>Verlust bis zur Torlinie</translation>
    </message>
    <message>
        <source>Lost from the pole line on</source>
        <translation>Verlust ab der Torlinie</translation>
    </message>
    <message>
        <source>Noted</source>
        <translation>Notiert</translation>
    </message>
    <message>
        <source>not noted</source>
        <translation>nicht notiert</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Kosten</translation>
    </message>
    <message>
        <source>Seconds of the chosen way over the fastest one timed</source>
        <translation>Sekunden des gewählten Wegs über dem schnellsten gestoppten</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Turning rate (left above 0)</source>
        <translation>Drehrate (links über 0)</translation>
    </message>
    <message>
        <source>Turning</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Roll (starboard down above 0)</source>
        <translation>Rollen (Steuerbord tief über 0)</translation>
    </message>
    <message>
        <source>Pitch (bow up above 0)</source>
        <translation>Stampfen (Bug hoch über 0)</translation>
    </message>
    <message>
        <source>Speed by position</source>
        <translation>Tempo nach Position</translation>
    </message>
    <message>
        <source>Hull speed, estimated</source>
        <translation>Bootsgeschwindigkeit, geschätzt</translation>
    </message>
    <message>
        <source>Hull speed</source>
        <translation>Bootsgeschwindigkeit</translation>
    </message>
    <message>
        <source>Watch acceleration</source>
        <translation>Beschleunigung der Uhr</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>Acceleration of the phone, x</source>
        <translation>Beschleunigung des Telefons, x</translation>
    </message>
    <message>
        <source>Acceleration x</source>
        <translation>Beschleunigung x</translation>
    </message>
    <message>
        <source>Acceleration of the phone, y</source>
        <translation>Beschleunigung des Telefons, y</translation>
    </message>
    <message>
        <source>Acceleration y</source>
        <translation>Beschleunigung y</translation>
    </message>
    <message>
        <source>Acceleration of the phone, z</source>
        <translation>Beschleunigung des Telefons, z</translation>
    </message>
    <message>
        <source>Acceleration z</source>
        <translation>Beschleunigung z</translation>
    </message>
    <message>
        <source>Rotation of the phone, x</source>
        <translation>Drehung des Telefons, x</translation>
    </message>
    <message>
        <source>Rotation x</source>
        <translation>Drehung x</translation>
    </message>
    <message>
        <source>Rotation of the phone, y</source>
        <translation>Drehung des Telefons, y</translation>
    </message>
    <message>
        <source>Rotation y</source>
        <translation>Drehung y</translation>
    </message>
    <message>
        <source>Rotation of the phone, z</source>
        <translation>Drehung des Telefons, z</translation>
    </message>
    <message>
        <source>Rotation z</source>
        <translation>Drehung z</translation>
    </message>
    <message>
        <source>by gate</source>
        <translation>nach Tor</translation>
    </message>
    <message>
        <source>by type of gate</source>
        <translation>nach Art des Tors</translation>
    </message>
    <message>
        <source>by tenth of the course</source>
        <translation>nach Zehntel der Strecke</translation>
    </message>
    <message>
        <source>by section</source>
        <translation>nach Abschnitt</translation>
    </message>
    <message>
        <source>by crew</source>
        <translation>nach Besatzung</translation>
    </message>
    <message>
        <source>by category</source>
        <translation>nach Kategorie</translation>
    </message>
    <message>
        <source>by phase</source>
        <translation>nach Phase</translation>
    </message>
    <message>
        <source>by race</source>
        <translation>nach Rennen</translation>
    </message>
    <message>
        <source>by month</source>
        <translation>nach Monat</translation>
    </message>
    <message>
        <source>by hand</source>
        <translation>nach Hand</translation>
    </message>
    <message>
        <source>Tenth</source>
        <translation>Zehntel</translation>
    </message>
    <message>
        <source>Se&amp;gments</source>
        <translation>Se&amp;gmente</translation>
    </message>
    <message>
        <source>&amp;Left and right</source>
        <translation>&amp;Links und rechts</translation>
    </message>
    <message>
        <source>Whole numbers</source>
        <translation>Ganze Zahlen</translation>
    </message>
    <message>
        <source>Decimal numbers</source>
        <translation>Dezimalzahlen</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Zeiten</translation>
    </message>
    <message>
        <source>DNF and the like</source>
        <translation>DNF und Ähnliches</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Penalty missing</source>
        <translation>Strafe fehlt</translation>
    </message>
    <message>
        <source>Penalty too many</source>
        <translation>Strafe zu viel</translation>
    </message>
    <message>
        <source>Bibs swapped</source>
        <translation>Startnummern vertauscht</translation>
    </message>
    <message>
        <source>No result</source>
        <translation>Kein Ergebnis</translation>
    </message>
    <message>
        <source>Not finished</source>
        <translation>Nicht im Ziel</translation>
    </message>
    <message>
        <source>Not in list</source>
        <translation>Nicht in der Liste</translation>
    </message>
    <message>
        <source>Not filmed</source>
        <translation>Nicht gefilmt</translation>
    </message>
    <message>
        <source>Average:</source>
        <translation>Mittel:</translation>
    </message>
    <message>
        <source>Average variation:</source>
        <translation>Mittlere Schwankung:</translation>
    </message>
    <message>
        <source>Total variation:</source>
        <translation>Gesamte Schwankung:</translation>
    </message>
    <message>
        <source>Average increase:</source>
        <translation>Mittlere Zunahme:</translation>
    </message>
    <message>
        <source>Total increase:</source>
        <translation>Gesamte Zunahme:</translation>
    </message>
    <message>
        <source>Lap time</source>
        <translation>Rundenzeit</translation>
    </message>
    <message>
        <source>Time in straight line</source>
        <translation>Zeit geradeaus</translation>
    </message>
    <message>
        <source>Time in rotation</source>
        <translation>Zeit in Drehung</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Mittleres Tempo</translation>
    </message>
    <message>
        <source>Maximum acceleration</source>
        <translation>Größte Beschleunigung</translation>
    </message>
    <message>
        <source>Average acceleration</source>
        <translation>Mittlere Beschleunigung</translation>
    </message>
    <message>
        <source>Average deacceleration</source>
        <translation>Mittlere Verzögerung</translation>
    </message>
    <message>
        <source>Roll movement</source>
        <translation>Rollbewegung</translation>
    </message>
    <message>
        <source>Roll (°)</source>
        <translation>Rollen (°)</translation>
    </message>
    <message>
        <source>Maximum force</source>
        <translation>Größte Kraft</translation>
    </message>
    <message>
        <source>Impulse (N s)</source>
        <translation>Impuls (N s)</translation>
    </message>
    <message>
        <source>Largest negative acceleration</source>
        <translation>Größte negative Beschleunigung</translation>
    </message>
    <message>
        <source>Negative acceleration (m/s2)</source>
        <translation>Negative Beschleunigung (m/s2)</translation>
    </message>
    <message>
        <source>Effective water phase</source>
        <translation>Wirksame Wasserphase</translation>
    </message>
    <message>
        <source>Rotation about the vertical axis</source>
        <translation>Drehung um die Hochachse</translation>
    </message>
    <message>
        <source>Turns to the left are above 0, turns to the right below.</source>
        <translation>Drehungen nach links liegen über 0, nach rechts darunter.</translation>
    </message>
    <message>
        <source>The film {} is left out: its name is no UTF-8 text.</source>
        <translation>Der Film {} ist ausgelassen: sein Name ist kein UTF-8-Text.</translation>
    </message>
    <message>
        <source>The folder {} cannot be read: {}</source>
        <translation>Der Ordner {} ist nicht lesbar: {}</translation>
    </message>
    <message>
        <source>No video in {} carries the name {}. Nothing was written.</source>
        <translation>Kein Video in {} trägt den Namen {}. Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>The file {} exists already. Say --replace to write a new one in its place.</source>
        <translation>Die Datei {} gibt es schon. Mit --replace wird an ihrer Stelle eine neue geschrieben.</translation>
    </message>
    <message>
        <source>This call needs the program that paints and makes films, which could not be started: {}</source>
        <translation>Dieser Aufruf braucht das Programm, das zeichnet und Filme macht; es ließ sich nicht starten: {}</translation>
    </message>
    <message>
        <source>The file {} exists and is not the sample&apos;s. Choose another folder.</source>
        <translation>Die Datei {} gibt es, und sie gehört nicht zum Beispiel. Einen anderen Ordner wählen.</translation>
    </message>
    <message>
        <source>The file {} could not be written: {}</source>
        <translation>Die Datei {} konnte nicht geschrieben werden: {}</translation>
    </message>
    <message>
        <source>The file {} is none of these tables and stays as it is. Nothing was written.</source>
        <translation>Die Datei {} ist keine dieser Tabellen und bleibt, wie sie ist. Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>The folder {} could not be made: {}</source>
        <translation>Der Ordner {} konnte nicht angelegt werden: {}</translation>
    </message>
    <message>
        <source>Line {}: {}, and was imported as it stands.</source>
        <translation>Zeile {}: {}; so importiert, wie sie steht.</translation>
    </message>
    <message>
        <source>There is no run {}: the file has {}, counted from 0.</source>
        <translation>Einen Lauf {} gibt es nicht: die Datei hat {}, gezählt ab 0.</translation>
    </message>
    <message>
        <source>No run has the category &quot;{}&quot;.{}</source>
        <translation>Kein Lauf hat die Kategorie „{}“.{}</translation>
    </message>
    <message>
        <source>Nobody of the team races in &quot;{}&quot;. Categories: {}.</source>
        <translation>Niemand im Team fährt in „{}“. Kategorien: {}.</translation>
    </message>
    <message>
        <source>Several athletes of the team are called {}: their runs cannot be told apart.</source>
        <translation>Mehrere Athleten des Teams heißen {}: ihre Läufe sind nicht zu unterscheiden.</translation>
    </message>
    <message>
        <source>The file {} is of an older version, {}, and was not changed. Bring it to the current one first: kavela upgrade {}</source>
        <translation>Die Datei {} ist von einer älteren Version, {}, und wurde nicht geändert. Erst auf die heutige bringen: kavela upgrade {}</translation>
    </message>
    <message>
        <source>The time of {} ({}) in {} is 0; a missing result should be 999.9.</source>
        <translation>Die Zeit von {} ({}) in {} ist 0; ein fehlendes Ergebnis sollte 999.9 sein.</translation>
    </message>
    <message>
        <source>No athlete has a bonus of kind {}.</source>
        <translation>Kein Athlet hat einen Bonus der Art {}.</translation>
    </message>
    <message>
        <source>The list {} is no UTF-8 text and was read as Latin-1: look at the names.</source>
        <translation>Die Liste {} ist kein UTF-8-Text und wurde als Latin-1 gelesen: die Namen prüfen.</translation>
    </message>
    <message>
        <source>The list {} could not be read: {}</source>
        <translation>Die Liste {} konnte nicht gelesen werden: {}</translation>
    </message>
    <message>
        <source>{} of {} skipped.</source>
        <translation>{} von {} übersprungen.</translation>
    </message>
    <message>
        <source>Line {} brought the category {} into the selection{}</source>
        <translation>Zeile {} brachte die Kategorie {} in die Nominierung{}</translation>
    </message>
    <message>
        <source>No run has the {} &quot;{}&quot;. There is {}.</source>
        <translation>Kein Lauf hat als {} „{}“. Es gibt {}.</translation>
    </message>
    <message>
        <source>There is no file and no command {}. Run with --help for the commands.</source>
        <translation>Es gibt keine Datei und keinen Befehl {}. Mit --help kommen die Befehle.</translation>
    </message>
    <message>
        <source>The desktop program could not be started: {}</source>
        <translation>Das Programmfenster ließ sich nicht starten: {}</translation>
    </message>
    <message>
        <source>{}: this is its {}; it carries {} too (--sheet).</source>
        <translation>{}: das ist: {}; enthalten ist auch {} (--sheet).</translation>
    </message>
    <message>
        <source>Line {}, {}: perhaps {}; not joined.</source>
        <translation>Zeile {}, {}: vielleicht {}; nicht verbunden.</translation>
    </message>
    <message>
        <source>{}: this is no team: {}</source>
        <translation>{}: das ist kein Team: {}</translation>
    </message>
    <message>
        <source>The team has no athlete {}.</source>
        <translation>Das Team hat keinen Athleten {}.</translation>
    </message>
    <message>
        <source>{} does not race in {}. Categories: {}.</source>
        <translation>{} fährt nicht in {}. Kategorien: {}.</translation>
    </message>
    <message>
        <source>The file could not be read: {}</source>
        <translation>Die Datei konnte nicht gelesen werden: {}</translation>
    </message>
    <message>
        <source>There is no number with the id &quot;{}&quot; here.</source>
        <translation>Hier gibt es keine Zahl mit der Kennung „{}“.</translation>
    </message>
    <message>
        <source>losing</source>
        <translation>verliert</translation>
    </message>
    <message>
        <source>gaining</source>
        <translation>gewinnt</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>unklar</translation>
    </message>
    <message>
        <source>slower</source>
        <translation>langsamer</translation>
    </message>
    <message>
        <source>circle: heats, triangle: semifinal, square: final</source>
        <translation>Kreis: Vorlauf, Dreieck: Halbfinale, Quadrat: Finale</translation>
    </message>
    <message>
        <source>{:.0f} to {:.0f}</source>
        <translation>{:.0f} bis {:.0f}</translation>
    </message>
    <message>
        <source>of the races whose result is known</source>
        <translation>der Rennen mit bekanntem Ergebnis</translation>
    </message>
    <message>
        <source>too few runs to tell what is chance</source>
        <translation>zu wenige Läufe, um zu sagen, was Zufall ist</translation>
    </message>
    <message>
        <source>chance from run to run {:.1f} %, all {:.1f} %; {:.2f} % matters</source>
        <translation>Zufall von Lauf zu Lauf {:.1f}&#xa0;%, alle {:.1f}&#xa0;%; {:.2f}&#xa0;% zählen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>One-repetition maximum</source>
        <translation>Einer-Maximum</translation>
    </message>
    <message>
        <source>Prints what a shell completes calls by</source>
        <translation>Gibt aus, womit eine Shell Aufrufe ergänzt</translation>
    </message>
    <message>
        <source>Prints the page of the manual</source>
        <translation>Gibt die Handbuchseite aus</translation>
    </message>
    <message>
        <source>The page cannot be written over a file that it is made from.</source>
        <translation>Die Seite kann nicht über eine Datei geschrieben werden, aus der sie entsteht.</translation>
    </message>
    <message>
        <source>Writes the page of an athlete for a telephone, one HTML file</source>
        <translation>Schreibt die Seite eines Athleten fürs Telefon, eine HTML-Datei</translation>
    </message>
    <message>
        <source>Split files (.kvx) of any release, and folders of them; several make a season</source>
        <translation>Zwischenzeitdateien (.kvx) jeder Version und Ordner damit; mehrere ergeben eine Saison</translation>
    </message>
    <message>
        <source>Whose page; a crew as &quot;A / B&quot;</source>
        <translation>Wessen Seite; eine Besatzung als „A / B“</translation>
    </message>
    <message>
        <source>File to write, ending in .html</source>
        <translation>Zu schreibende Datei, endend auf .html</translation>
    </message>
    <message>
        <source>Cut the athlete&apos;s runs out of their films into the folder of the page</source>
        <translation>Die Läufe des Athleten aus ihren Filmen in den Ordner der Seite schneiden</translation>
    </message>
    <message>
        <source>Shares a folder with a server, both ways</source>
        <translation>Teilt einen Ordner mit einem Server, in beide Richtungen</translation>
    </message>
    <message>
        <source>The folder on this computer</source>
        <translation>Der Ordner auf diesem Rechner</translation>
    </message>
    <message>
        <source>Address of the folder on the server</source>
        <translation>Adresse des Ordners auf dem Server</translation>
    </message>
    <message>
        <source>User name for the server</source>
        <translation>Benutzername für den Server</translation>
    </message>
    <message>
        <source>Only print what would be done</source>
        <translation>Nur ausgeben, was getan würde</translation>
    </message>
    <message>
        <source>Do not ask before anything is done</source>
        <translation>Nicht fragen, ehe etwas getan wird</translation>
    </message>
    <message>
        <source>Delete on each side what was deleted on the other and not changed since</source>
        <translation>Auf jeder Seite löschen, was auf der anderen gelöscht und seither nicht geändert wurde</translation>
    </message>
    <message>
        <source>Print JSON; nothing is asked</source>
        <translation>JSON ausgeben; nichts wird gefragt</translation>
    </message>
    <message>
        <source>Shows what stood on a line of a film over time, as a picture</source>
        <translation>Zeigt als Bild, was über die Zeit auf einer Linie eines Films stand</translation>
    </message>
    <message>
        <source>Film of a camera that stands still</source>
        <translation>Film einer stehenden Kamera</translation>
    </message>
    <message>
        <source>X1,Y1,X2,Y2: the ends of the line in pixels</source>
        <translation>X1,Y1,X2,Y2: die Enden der Linie in Pixeln</translation>
    </message>
    <message>
        <source>Picture to write (.png)</source>
        <translation>Zu schreibendes Bild (.png)</translation>
    </message>
    <message>
        <source>Print the frame and stamp of every column as JSON</source>
        <translation>Bild und Zeitstempel jeder Spalte als JSON ausgeben</translation>
    </message>
    <message>
        <source>Look for boats that cross the line</source>
        <translation>Boote suchen, die die Linie überqueren</translation>
    </message>
    <message>
        <source>X,Y,WIDTH,HEIGHT: a box round one boat, for --proposals</source>
        <translation>X,Y,WIDTH,HEIGHT: ein Kasten um ein Boot, für --proposals</translation>
    </message>
    <message>
        <source>Where boats come from: left or right of the line</source>
        <translation>Woher Boote kommen: left oder right der Linie</translation>
    </message>
    <message>
        <source>Nothing to do: name a picture with -o, or ask for --json or --proposals.</source>
        <translation>Nichts zu tun: mit -o ein Bild nennen oder --json oder --proposals verlangen.</translation>
    </message>
    <message>
        <source>--proposals needs a box round one boat: --boat X,Y,WIDTH,HEIGHT.</source>
        <translation>--proposals braucht einen Kasten um ein Boot: --boat X,Y,WIDTH,HEIGHT.</translation>
    </message>
    <message>
        <source>Follows a boat, gate or head through a film, as a table</source>
        <translation>Verfolgt ein Boot, ein Tor oder einen Kopf durch einen Film, als Tabelle</translation>
    </message>
    <message>
        <source>Film to look at</source>
        <translation>Zu untersuchender Film</translation>
    </message>
    <message>
        <source>What is followed: X,Y,WIDTH,HEIGHT in pixels of the picture, from its upper left corner</source>
        <translation>Was verfolgt wird: X,Y,WIDTH,HEIGHT in Pixeln des Bildes, von links oben</translation>
    </message>
    <message>
        <source>Second of the film at which the box was drawn</source>
        <translation>Sekunde des Films, in der der Kasten gezeichnet wurde</translation>
    </message>
    <message>
        <source>Second at which following ends; otherwise where it is lost, or the film ends</source>
        <translation>Sekunde, in der das Verfolgen endet; sonst, wo es abreißt oder der Film endet</translation>
    </message>
    <message>
        <source>Known points on the water (.json), for metres and speeds</source>
        <translation>Bekannte Punkte auf dem Wasser (.json), für Meter und Tempo</translation>
    </message>
    <message>
        <source>File to write (.csv)</source>
        <translation>Zu schreibende Datei (.csv)</translation>
    </message>
    <message>
        <source>In some frames the camera&apos;s motion is not known: too little of the picture stands still. They have no steadied place.</source>
        <translation>In einigen Bildern ist die Bewegung der Kamera nicht bekannt: zu wenig vom Bild steht still. Sie haben keinen beruhigten Ort.</translation>
    </message>
    <message>
        <source>Metres hold for what is on the water; a head is above it.</source>
        <translation>Meter gelten für das, was auf dem Wasser ist; ein Kopf ist darüber.</translation>
    </message>
    <message>
        <source>Two known points give a scale only: lengths and speeds hold near them and along the line between them.</source>
        <translation>Zwei bekannte Punkte geben nur einen Maßstab: Längen und Tempo gelten in ihrer Nähe und auf der Linie zwischen ihnen.</translation>
    </message>
    <message>
        <source>What was deleted on one side stays on the other: --delete deletes it there.</source>
        <translation>Was auf einer Seite gelöscht wurde, bleibt auf der anderen: --delete löscht es dort.</translation>
    </message>
    <message>
        <source>The server wants a user name: --user tells it.</source>
        <translation>Der Server will einen Benutzernamen: --user nennt ihn.</translation>
    </message>
    <message numerus="yes">
        <source>{} columns</source>
        <translation>
            <numerusform>{} Spalte</numerusform>
            <numerusform>{} Spalten</numerusform>
        </translation>
    </message>
    <message>
        <source>Explain one number instead: loss/RUN/winner/5, gap/RUN/ideal, total/RUN, place/RUN, strokes/RUN/5, …</source>
        <translation>Stattdessen eine Zahl erklären: loss/RUN/winner/5, gap/RUN/ideal, total/RUN, place/RUN, strokes/RUN/5, …</translation>
    </message>
    <message>
        <source>The finished notes that name it.</source>
        <translation>Die abgeschlossenen Notizen, die es nennen.</translation>
    </message>
    <message>
        <source>number of notes</source>
        <translation>Anzahl der Notizen</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>ganze Zahl</translation>
    </message>
    <message>
        <source>decimal</source>
        <translation>Dezimalzahl</translation>
    </message>
    <message>
        <source>status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Add {}</source>
        <translation>{} hinzufügen</translation>
    </message>
    <message>
        <source>Colour {}</source>
        <translation>{} färben</translation>
    </message>
    <message>
        <source>First line is a row</source>
        <translation>Erste Zeile ist eine Datenzeile</translation>
    </message>
    <message>
        <source>First line is titles</source>
        <translation>Erste Zeile sind Titel</translation>
    </message>
    <message>
        <source>Group by {}</source>
        <translation>Nach {} gruppieren</translation>
    </message>
    <message>
        <source>Keep {} in {}</source>
        <translation>{} in {} behalten</translation>
    </message>
    <message>
        <source>Leave out {}</source>
        <translation>{} weglassen</translation>
    </message>
    <message>
        <source>No colours in {}</source>
        <translation>Keine Farben in {}</translation>
    </message>
    <message>
        <source>No groups</source>
        <translation>Keine Gruppen</translation>
    </message>
    <message>
        <source>Pivot of {} by {}</source>
        <translation>Pivot von {} nach {}</translation>
    </message>
    <message>
        <source>Read {} as {}</source>
        <translation>{} lesen als {}</translation>
    </message>
    <message>
        <source>Sort by {}</source>
        <translation>Nach {} sortieren</translation>
    </message>
    <message>
        <source>Sort by {}, downwards</source>
        <translation>Nach {} sortieren, absteigend</translation>
    </message>
    <message>
        <source>Medals most often: {}, {} of {} ({:.0f}–{:.0f} %).</source>
        <translation>Am häufigsten Medaillen: {}, {} von {} ({:.0f}–{:.0f}&#xa0;%).</translation>
    </message>
    <message>
        <source>In finals most often: {}, {} of {} ({:.0f}–{:.0f} %).</source>
        <translation>Am häufigsten in Finals: {}, {} von {} ({:.0f}–{:.0f}&#xa0;%).</translation>
    </message>
    <message>
        <source>In semifinals most often: {}, {} of {} ({:.0f}–{:.0f} %).</source>
        <translation>Am häufigsten in Halbfinals: {}, {} von {} ({:.0f}–{:.0f}&#xa0;%).</translation>
    </message>
    <message>
        <source>No fastest split of {}&apos;s races is known.</source>
        <translation>In den Rennen von {} ist keine schnellste Zwischenzeit bekannt.</translation>
    </message>
    <message>
        <source>No winner of {}&apos;s races is known.</source>
        <translation>In den Rennen von {} ist kein Sieger bekannt.</translation>
    </message>
    <message>
        <source>No penalty of a whole run is known by gate.</source>
        <translation>Von keinem ganzen Lauf ist eine Strafe nach Toren bekannt.</translation>
    </message>
    <message>
        <source>No race of the team has a result that says so.</source>
        <translation>Kein Rennen der Mannschaft hat ein Ergebnis, das dies sagt.</translation>
    </message>
    <message>
        <source>No whole run is known by gate.</source>
        <translation>Kein ganzer Lauf ist nach Toren bekannt.</translation>
    </message>
    <message>
        <source>Nobody&apos;s penalties are known by gate.</source>
        <translation>Von niemandem sind die Strafen nach Toren bekannt.</translation>
    </message>
    <message>
        <source>Noted in detail: {} of {}. Shares of what was noted, no rates: nobody notes how gates are passed clean.</source>
        <translation>Im Einzelnen notiert: {} von {}. Anteile am Notierten, keine Quoten: Niemand notiert, wie Tore fehlerfrei durchfahren werden.</translation>
    </message>
    <message>
        <source>Noted in detail: {} of {}. Too few to tell.</source>
        <translation>Im Einzelnen notiert: {} von {}. Zu wenige für eine Aussage.</translation>
    </message>
    <message>
        <source>Of {} who have both often enough, beyond doubt faster in the final: {}, slower: {}.</source>
        <translation>Von {}, die beide oft genug haben, zweifelsfrei schneller im Finale: {}, langsamer: {}.</translation>
    </message>
    <message>
        <source>Of {} who have both often enough, beyond doubt faster in the second run: {}, slower: {}.</source>
        <translation>Von {}, die beide oft genug haben, zweifelsfrei schneller im zweiten Lauf: {}, langsamer: {}.</translation>
    </message>
    <message>
        <source>Of {} {} cost places, none of them a medal.</source>
        <translation>Von {} kosteten {} Plätze, keine davon eine Medaille.</translation>
    </message>
    <message>
        <source>Of {} {} cost places, {} of them a medal.</source>
        <translation>Von {} kosteten {} Plätze, {} davon eine Medaille.</translation>
    </message>
    <message>
        <source>The fast touch less: {:.2f} touches a run in the faster third, {:.2f} in the slower.</source>
        <translation>Die Schnellen berühren weniger: {:.2f} Berührungen je Lauf im schnelleren Drittel, {:.2f} im langsameren.</translation>
    </message>
    <message>
        <source>The fast touch more: {:.2f} touches a run in the faster third, {:.2f} in the slower.</source>
        <translation>Die Schnellen berühren mehr: {:.2f} Berührungen je Lauf im schnelleren Drittel, {:.2f} im langsameren.</translation>
    </message>
    <message>
        <source>Too few to tell fast from slow: {:.2f} touches a run in the faster third, {:.2f} in the slower.</source>
        <translation>Zu wenige, um Schnelle von Langsamen zu unterscheiden: {:.2f} Berührungen je Lauf im schnelleren Drittel, {:.2f} im langsameren.</translation>
    </message>
    <message>
        <source>There is no penalty.</source>
        <translation>Es gibt keine Strafe.</translation>
    </message>
    <message>
        <source>Too few races with both to tell a change.</source>
        <translation>Zu wenige Rennen mit beiden für eine Veränderung.</translation>
    </message>
    <message>
        <source>Without this missed gate: {}.</source>
        <translation>Ohne diesen Torfehler: {} Platz.</translation>
    </message>
    <message>
        <source>Without this touch: {}.</source>
        <translation>Ohne diese Berührung: {} Platz.</translation>
    </message>
    <message>
        <source>category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>crew</source>
        <translation>Besatzung</translation>
    </message>
    <message>
        <source>gate</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>Hand</translation>
    </message>
    <message>
        <source>month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>race</source>
        <translation>Rennen</translation>
    </message>
    <message>
        <source>section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>tenth of the course</source>
        <translation>Zehntel der Strecke</translation>
    </message>
    <message>
        <source>type of gate</source>
        <translation>Art des Tors</translation>
    </message>
    <message>
        <source>nobody came</source>
        <translation>niemand kam</translation>
    </message>
    <message>
        <source>those without one</source>
        <translation>die ohne</translation>
    </message>
    <message>
        <source>{:.2f} touches a run in {}, all in one third of the field.</source>
        <translation>{:.2f} Berührungen je Lauf bei {}, alle in einem Drittel des Felds.</translation>
    </message>
    <message>
        <source>{} and {} more</source>
        <translation>{} und {} weitere</translation>
    </message>
    <message>
        <source>{} stand out: touched more than the {} that all have in common.</source>
        <translation>{} fallen auf: mehr Berührungen als die {}, die allen gemeinsam sind.</translation>
    </message>
    <message>
        <source>{} stands out: touched more than the {} that all have in common.</source>
        <translation>{} fällt auf: mehr Berührungen als die {}, die allen gemeinsam sind.</translation>
    </message>
    <message>
        <source>{}: too few runs to tell a trend behind the fastest splits.</source>
        <translation>{}: zu wenige Läufe für einen Trend gegenüber den schnellsten Zwischenzeiten.</translation>
    </message>
    <message>
        <source>{}: too few runs to tell a trend behind the winners.</source>
        <translation>{}: zu wenige Läufe für einen Trend gegenüber den Siegern.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the fastest splits ({:+.1f} to {:+.1f}), {}.</source>
        <translation>{}: {:+.1f}&#xa0;% im Jahr, Abstand zu den schnellsten Zwischenzeiten ({:+.1f} bis {:+.1f}), {}.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the fastest splits, {}.</source>
        <translation>{}: {:+.1f}&#xa0;% im Jahr, Abstand zu den schnellsten Zwischenzeiten, {}.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the winners ({:+.1f} to {:+.1f}), {}.</source>
        <translation>{}: {:+.1f}&#xa0;% im Jahr, Abstand zu den Siegern ({:+.1f} bis {:+.1f}), {}.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the winners, {}.</source>
        <translation>{}: {:+.1f}&#xa0;% im Jahr, Abstand zu den Siegern, {}.</translation>
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
        <translation>* das Beste seiner Spalte.</translation>
    </message>
    <message>
        <source>Against the winners</source>
        <translation>Verglichen mit den Siegern</translation>
    </message>
    <message>
        <source>Against the winners, over {}. Losing: the whole interval is above 0.</source>
        <translation>Verglichen mit den Siegern, über {}. Verlust: das ganze Intervall liegt über 0.</translation>
    </message>
    <message>
        <source>All runs</source>
        <translation>Alle Läufe</translation>
    </message>
    <message>
        <source>Among the others</source>
        <translation>Unter den anderen</translation>
    </message>
    <message>
        <source>Behind the winner</source>
        <translation>Hinter dem Sieger</translation>
    </message>
    <message>
        <source>Beside the winner</source>
        <translation>Neben dem Sieger</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Besatzung</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>Gap to the ideal run from section to section: {}</source>
        <translation>Rückstand auf den Ideallauf von Abschnitt zu Abschnitt: {}</translation>
    </message>
    <message>
        <source>Gap to {} from section to section: {}</source>
        <translation>Rückstand auf {} von Abschnitt zu Abschnitt: {}</translation>
    </message>
    <message>
        <source>Gap to {}, in seconds: above the line is behind.</source>
        <translation>Rückstand auf {} in Sekunden: Über der Linie ist hinten.</translation>
    </message>
    <message>
        <source>This run won. Gap to the ideal run, the best of every section, in seconds.</source>
        <translation>Dieser Lauf hat gewonnen. Rückstand auf den Ideallauf, das Beste jedes Abschnitts, in Sekunden.</translation>
    </message>
    <message>
        <source>Gate not noted</source>
        <translation>Tor nicht notiert</translation>
    </message>
    <message>
        <source>Gate {}</source>
        <translation>Tor {}</translation>
    </message>
    <message>
        <source>Most lost: {}.</source>
        <translation>Am meisten verloren: {}.</translation>
    </message>
    <message>
        <source>Not ranked, time</source>
        <translation>Nicht gewertet, Zeit</translation>
    </message>
    <message>
        <source>Nothing stands out from these runs: no interval lies above 0 as a whole.</source>
        <translation>Aus diesen Läufen fällt nichts auf: kein Intervall liegt ganz über 0.</translation>
    </message>
    <message>
        <source>Of what</source>
        <translation>Wovon</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Übrige</translation>
    </message>
    <message>
        <source>Penalties on the course</source>
        <translation>Strafen auf der Strecke</translation>
    </message>
    <message>
        <source>Penalty seconds are in the times.</source>
        <translation>Die Strafsekunden sind in den Zeiten enthalten.</translation>
    </message>
    <message>
        <source>Percent behind the winner by day, penalties included; the filled dot is the last run of each race.</source>
        <translation>Prozent hinter dem Sieger nach Tagen, mit Strafen; der gefüllte Punkt ist der letzte Lauf jedes Rennens.</translation>
    </message>
    <message>
        <source>Percent behind the winner, run by run, {} to {}</source>
        <translation>Prozent hinter dem Sieger, Lauf für Lauf, {} bis {}</translation>
    </message>
    <message>
        <source>Run {}</source>
        <translation>Lauf {}</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Saison</translation>
    </message>
    <message>
        <source>Split table: {}</source>
        <translation>Tabelle der Zwischenzeiten: {}</translation>
    </message>
    <message>
        <source>The name of a page ends in .html, and its films lie in the folder named the same without that.</source>
        <translation>Der Name einer Seite endet auf .html, und ihre Filme liegen im Ordner gleichen Namens ohne diese Endung.</translation>
    </message>
    <message>
        <source>Time lost, as noted</source>
        <translation>Verlorene Zeit, wie notiert</translation>
    </message>
    <message>
        <source>Times from the start to each split.</source>
        <translation>Zeiten vom Start bis zu jeder Zwischenzeit.</translation>
    </message>
    <message>
        <source>Times in seconds. Made with Kavela.</source>
        <translation>Zeiten in Sekunden. Erstellt mit Kavela.</translation>
    </message>
    <message>
        <source>To winner</source>
        <translation>Zum Sieger</translation>
    </message>
    <message>
        <source>at {} s of the run</source>
        <translation>bei {} s des Laufs</translation>
    </message>
    <message>
        <source>eyes: {}</source>
        <translation>Blick: {}</translation>
    </message>
    <message>
        <source>fastest</source>
        <translation>schnellste</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>mittlere</translation>
    </message>
    <message>
        <source>slowest</source>
        <translation>langsamste</translation>
    </message>
    <message>
        <source>upstream</source>
        <translation>aufwärts</translation>
    </message>
    <message>
        <source>{} &lt;small&gt;of {}&lt;/small&gt;</source>
        <translation>{} &lt;small&gt;von {}&lt;/small&gt;</translation>
    </message>
    <message>
        <source>{} = paddling {}, penalties {}, official against video time {}.</source>
        <translation>{} = Fahrzeit {}, Strafen {}, offizielle gegen Videozeit {}.</translation>
    </message>
    <message>
        <source>{} = paddling {}, penalties {}.</source>
        <translation>{} = Fahrzeit {}, Strafen {}.</translation>
    </message>
    <message>
        <source>{} against {}</source>
        <translation>{} gegen {}</translation>
    </message>
    <message numerus="yes">
        <source>{} gates</source>
        <translation>
            <numerusform>{} Tor</numerusform>
            <numerusform>{} Tore</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} more runs are left out.</source>
        <translation>
            <numerusform>{} weiterer Lauf ist ausgelassen.</numerusform>
            <numerusform>{} weitere Läufe sind ausgelassen.</numerusform>
        </translation>
    </message>
    <message>
        <source>{} of the runs compared, column by column.</source>
        <translation>{} der verglichenen Läufe, Spalte für Spalte.</translation>
    </message>
    <message>
        <source>{} to {}</source>
        <translation>{} bis {}</translation>
    </message>
    <message>
        <source>{}, run {}</source>
        <translation>{}, Lauf {}</translation>
    </message>
    <message>
        <source>{}, {} upstream</source>
        <translation>{}, {} aufwärts</translation>
    </message>
    <message>
        <source>{}. The film lies beside this page: {}</source>
        <translation>{}. Der Film liegt neben dieser Seite: {}</translation>
    </message>
    <message>
        <source>{}: {} s a run</source>
        <translation>{}: {} s je Lauf</translation>
    </message>
    <message>
        <source>The film is not there.</source>
        <translation>Der Film ist nicht da.</translation>
    </message>
    <message>
        <source>The marks of the run lie behind the end of the film.</source>
        <translation>Die Marken des Laufs liegen hinter dem Ende des Films.</translation>
    </message>
    <message>
        <source>No run of &quot;{}&quot; is of the phase &quot;{}&quot;.</source>
        <translation>Kein Lauf von „{}“ gehört zur Phase „{}“.</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Einfahrt</translation>
    </message>
    <message>
        <source>Downstream gate</source>
        <translation>Abwärtstor</translation>
    </message>
    <message>
        <source>Upstream gate</source>
        <translation>Aufwärtstor</translation>
    </message>
    <message>
        <source>Offset gate</source>
        <translation>Versetztes Tor</translation>
    </message>
    <message>
        <source>Spin gate</source>
        <translation>Drehtor</translation>
    </message>
    <message>
        <source>Single pole</source>
        <translation>Einzelner Torstab</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation>Berührung</translation>
    </message>
    <message>
        <source>Missed gate</source>
        <translation>Torfehler</translation>
    </message>
    <message>
        <source>Head outside the gate</source>
        <translation>Kopf außerhalb des Tors</translation>
    </message>
    <message>
        <source>Wrong direction</source>
        <translation>Falsche Richtung</translation>
    </message>
    <message>
        <source>Wrong order</source>
        <translation>Falsche Reihenfolge</translation>
    </message>
    <message>
        <source>Pole pushed on purpose</source>
        <translation>Stab absichtlich gestoßen</translation>
    </message>
    <message>
        <source>Upside down in the gate</source>
        <translation>Kopfüber im Tor</translation>
    </message>
    <message>
        <source>Inner pole</source>
        <translation>Innerer Stab</translation>
    </message>
    <message>
        <source>Outer pole</source>
        <translation>Äußerer Stab</translation>
    </message>
    <message>
        <source>Both poles</source>
        <translation>Beide Stäbe</translation>
    </message>
    <message>
        <source>Left pole</source>
        <translation>Linker Stab</translation>
    </message>
    <message>
        <source>Right pole</source>
        <translation>Rechter Stab</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Boot</translation>
    </message>
    <message>
        <source>Blade</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>Body</source>
        <translation>Körper</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>Kopf</translation>
    </message>
    <message>
        <source>Bow</source>
        <translation>Bug</translation>
    </message>
    <message>
        <source>Stern</source>
        <translation>Heck</translation>
    </message>
    <message>
        <source>Shaft</source>
        <translation>Schaft</translation>
    </message>
    <message>
        <source>Arm</source>
        <translation>Arm</translation>
    </message>
    <message>
        <source>Washed past the gate</source>
        <translation>Am Tor vorbeigespült</translation>
    </message>
    <message>
        <source>Left out on purpose</source>
        <translation>Absichtlich ausgelassen</translation>
    </message>
    <message>
        <source>Entering</source>
        <translation>Beim Einfahren</translation>
    </message>
    <message>
        <source>In the gate</source>
        <translation>Im Tor</translation>
    </message>
    <message>
        <source>Leaving</source>
        <translation>Beim Ausfahren</translation>
    </message>
    <message>
        <source>Before the gate</source>
        <translation>Vor dem Tor</translation>
    </message>
    <message>
        <source>After the gate</source>
        <translation>Nach dem Tor</translation>
    </message>
    <message>
        <source>Forwards</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Backwards</source>
        <translation>Rückwärts</translation>
    </message>
    <message>
        <source>Sideways</source>
        <translation>Seitwärts</translation>
    </message>
    <message>
        <source>Turning left</source>
        <translation>Nach links drehend</translation>
    </message>
    <message>
        <source>Turning right</source>
        <translation>Nach rechts drehend</translation>
    </message>
    <message>
        <source>Drifting left</source>
        <translation>Nach links treibend</translation>
    </message>
    <message>
        <source>Drifting right</source>
        <translation>Nach rechts treibend</translation>
    </message>
    <message>
        <source>Direct line</source>
        <translation>Direkte Linie</translation>
    </message>
    <message>
        <source>Spin</source>
        <translation>Volle Drehung</translation>
    </message>
    <message>
        <source>Duffek (bow draw)</source>
        <translation>Duffek (Bogenzug vorn)</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Bogenschlag</translation>
    </message>
    <message>
        <source>Stern pivot</source>
        <translation>Heckdrehung</translation>
    </message>
    <message>
        <source>Punt</source>
        <translation>Abstoßen am Grund</translation>
    </message>
    <message>
        <source>Flat turn</source>
        <translation>Flache Drehung</translation>
    </message>
    <message>
        <source>Ferry</source>
        <translation>Seilfähre</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Rückwärtsschlag</translation>
    </message>
    <message>
        <source>Surf</source>
        <translation>Surfen</translation>
    </message>
    <message>
        <source>At the gate</source>
        <translation>Zum Tor</translation>
    </message>
    <message>
        <source>At the next gate</source>
        <translation>Zum nächsten Tor</translation>
    </message>
    <message>
        <source>At the pole</source>
        <translation>Zum Torstab</translation>
    </message>
    <message>
        <source>At the water</source>
        <translation>Zum Wasser</translation>
    </message>
    <message>
        <source>At the blade</source>
        <translation>Zum Blatt</translation>
    </message>
    <message>
        <source>At the bow</source>
        <translation>Zum Bug</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>Anderswohin</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Cross-bow draw</source>
        <translation>Übergriff am Bug</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Ziehschlag</translation>
    </message>
    <message>
        <source>Stern rudder</source>
        <translation>Hecksteuer</translation>
    </message>
    <message>
        <source>Brace</source>
        <translation>Stütze</translation>
    </message>
    <message>
        <source>Cross-bow</source>
        <translation>Übergriff</translation>
    </message>
    <message>
        <source>Single gate</source>
        <translation>Einzelnes Tor</translation>
    </message>
    <message>
        <source>Offset (stagger)</source>
        <translation>Versetzte Tore</translation>
    </message>
    <message>
        <source>S-turn</source>
        <translation>S-Kurve</translation>
    </message>
    <message>
        <source>Cross (ferry)</source>
        <translation>Querung (Seilfähre)</translation>
    </message>
    <message>
        <source>Upstream</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>Upstream sprint</source>
        <translation>Aufwärtssprint</translation>
    </message>
    <message>
        <source>Merano</source>
        <translation>Merano</translation>
    </message>
    <message>
        <source>Downstream to upstream</source>
        <translation>Abwärts auf aufwärts</translation>
    </message>
    <message>
        <source>Upstream to downstream</source>
        <translation>Aufwärts auf abwärts</translation>
    </message>
    <message>
        <source>Upstream to upstream</source>
        <translation>Aufwärts auf aufwärts</translation>
    </message>
    <message>
        <source>Straight gates</source>
        <translation>Gerade Tore</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Finish sprint</source>
        <translation>Zielsprint</translation>
    </message>
    <message>
        <source>Approach</source>
        <translation>Anfahrt</translation>
    </message>
    <message>
        <source>Between the gates</source>
        <translation>Zwischen den Toren</translation>
    </message>
    <message>
        <source>Whole</source>
        <translation>Ganz</translation>
    </message>
    <message>
        <source>Flat water</source>
        <translation>Flachwasser</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Welle</translation>
    </message>
    <message>
        <source>Stopper (hole)</source>
        <translation>Walze</translation>
    </message>
    <message>
        <source>Eddy</source>
        <translation>Kehrwasser</translation>
    </message>
    <message>
        <source>Eddy line</source>
        <translation>Kehrwasserlinie</translation>
    </message>
    <message>
        <source>Pourover</source>
        <translation>Überströmter Stein</translation>
    </message>
    <message>
        <source>Curtain</source>
        <translation>Vorhang</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Abfall</translation>
    </message>
    <message>
        <source>Boil</source>
        <translation>Pilz</translation>
    </message>
    <message>
        <source>Cushion</source>
        <translation>Polster</translation>
    </message>
    <message>
        <source>Wave train</source>
        <translation>Wellenzug</translation>
    </message>
    <message>
        <source>Fast water</source>
        <translation>Schnelles Wasser</translation>
    </message>
    <message>
        <source>Sweep roll</source>
        <translation>Bogenschlagrolle</translation>
    </message>
    <message>
        <source>C-to-C roll</source>
        <translation>C-zu-C-Rolle</translation>
    </message>
    <message>
        <source>Hand roll</source>
        <translation>Handrolle</translation>
    </message>
    <message numerus="yes">
        <source>{} runs left out: penalties not known by gate</source>
        <translation>
            <numerusform>{} Lauf ausgelassen: Strafen nicht nach Toren bekannt</numerusform>
            <numerusform>{} Läufe ausgelassen: Strafen nicht nach Toren bekannt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} runs are left out: their penalties are not known by gate.</source>
        <translation>
            <numerusform>{} Lauf ist ausgelassen: Seine Strafen sind nicht nach Toren bekannt.</numerusform>
            <numerusform>{} Läufe sind ausgelassen: Ihre Strafen sind nicht nach Toren bekannt.</numerusform>
        </translation>
    </message>
    <message>
        <source>(not given)</source>
        <translation>(nicht angegeben)</translation>
    </message>
    <message>
        <source>* touched more than that with 95 % certainty and more</source>
        <translation>* mit 95&#xa0;% Sicherheit und mehr öfter berührt als das</translation>
    </message>
    <message>
        <source>A missed gate also saved paddling, which is not taken back here.</source>
        <translation>Ein Torfehler hat auch Fahrzeit gespart, die hier nicht zurückgenommen wird.</translation>
    </message>
    <message>
        <source>Gained</source>
        <translation>Gewonnen</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Verloren</translation>
    </message>
    <message>
        <source>Missed/run</source>
        <translation>Fehler/Lauf</translation>
    </message>
    <message>
        <source>Ranked</source>
        <translation>Gereiht</translation>
    </message>
    <message>
        <source>Rate %</source>
        <translation>Rate %</translation>
    </message>
    <message>
        <source>Risk and speed</source>
        <translation>Risiko &amp; Tempo</translation>
    </message>
    <message>
        <source>Touches/run</source>
        <translation>Berühr./Lauf</translation>
    </message>
    <message>
        <source>Ways: chosen against the fastest timed</source>
        <translation>Wege: der gewählte gegen den schnellsten gestoppten</translation>
    </message>
    <message>
        <source>between {}</source>
        <translation>dazwischen {}</translation>
    </message>
    <message>
        <source>fastest third</source>
        <translation>schnelles Dr.</translation>
    </message>
    <message>
        <source>middle third</source>
        <translation>mittleres Dr.</translation>
    </message>
    <message>
        <source>slowest third</source>
        <translation>langsames Dr.</translation>
    </message>
    <message>
        <source>in no stretch</source>
        <translation>in keinem Stück</translation>
    </message>
    <message>
        <source>not finished: {}</source>
        <translation>nicht beendet: {}</translation>
    </message>
    <message>
        <source>on run {}</source>
        <translation>gegen Lauf {}</translation>
    </message>
    <message>
        <source>on the fastest</source>
        <translation>gegen den Schnellsten</translation>
    </message>
    <message>
        <source>on the finalists&apos; median</source>
        <translation>gegen den Median der Finalisten</translation>
    </message>
    <message>
        <source>on the ideal run</source>
        <translation>gegen den Ideallauf</translation>
    </message>
    <message>
        <source>on the own fastest other run</source>
        <translation>gegen den schnellsten anderen eigenen Lauf</translation>
    </message>
    <message>
        <source>on the winner</source>
        <translation>gegen den Sieger</translation>
    </message>
    <message>
        <source>penalties {}</source>
        <translation>Strafen {}</translation>
    </message>
    <message>
        <source>timing {}</source>
        <translation>Zeitnahme {}</translation>
    </message>
    <message>
        <source>touch</source>
        <translation>Berührung</translation>
    </message>
    <message numerus="yes">
        <source>{} penalties cost no place</source>
        <translation>
            <numerusform>{} Strafe kostete keinen Platz</numerusform>
            <numerusform>{} Strafen kosteten keinen Platz</numerusform>
        </translation>
    </message>
    <message>
        <source>{}: there is none</source>
        <translation>{}: gibt es nicht</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no gate number.</source>
        <translation>„{}“ ist keine Tornummer.</translation>
    </message>
    <message>
        <source>A section up to here was not timed, so this is not the time from the start.</source>
        <translation>Ein Abschnitt bis hierher wurde nicht gestoppt, daher ist dies nicht die Zeit vom Start.</translation>
    </message>
    <message>
        <source>A time must be above 0. Check the marks of this run.</source>
        <translation>Eine Zeit muss über 0 liegen. Prüfen Sie die Marken dieses Laufs.</translation>
    </message>
    <message>
        <source>A time of the session is negative or no number.</source>
        <translation>Eine Zeit der Einheit ist negativ oder keine Zahl.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>From {:.1f} s to {:.1f} s of the run nothing is recorded.</source>
        <translation>Von {:.1f} s bis {:.1f} s des Laufs ist nichts aufgezeichnet.</translation>
    </message>
    <message>
        <source>Gate {} has this penalty already.</source>
        <translation>Tor {} hat diese Strafe schon.</translation>
    </message>
    <message>
        <source>Gate {} is missing before gate {} in section {}.</source>
        <translation>Tor {} fehlt vor Tor {} in Abschnitt {}.</translation>
    </message>
    <message>
        <source>Gate {} is not on a course of {}.</source>
        <translation>Tor {} liegt nicht auf einer Strecke mit {}.</translation>
    </message>
    <message>
        <source>Gate {} stands a second time or out of order in section {}.</source>
        <translation>Tor {} steht ein zweites Mal oder außer der Reihe in Abschnitt {}.</translation>
    </message>
    <message>
        <source>Gate {} stands in no section.</source>
        <translation>Tor {} steht in keinem Abschnitt.</translation>
    </message>
    <message>
        <source>Gate {} stands there twice.</source>
        <translation>Tor {} steht dort zweimal.</translation>
    </message>
    <message>
        <source>Get ready</source>
        <translation>Bereit machen</translation>
    </message>
    <message>
        <source>It was deleted here and changed there: it is brought again.</source>
        <translation>Hier gelöscht und dort geändert: Es wird wieder geholt.</translation>
    </message>
    <message>
        <source>It was deleted there and changed here: it is put there again.</source>
        <translation>Dort gelöscht und hier geändert: Es wird wieder dorthin gelegt.</translation>
    </message>
    <message>
        <source>Line {}, {}: there is no run of this crew.</source>
        <translation>Zeile {}, {}: Es gibt keinen Lauf dieser Besatzung.</translation>
    </message>
    <message>
        <source>No motion of the boat is attached to this run.</source>
        <translation>An diesen Lauf ist keine Bootsbewegung angehängt.</translation>
    </message>
    <message>
        <source>No run waiting</source>
        <translation>Kein Lauf wartet</translation>
    </message>
    <message>
        <source>No time was taken here.</source>
        <translation>Hier wurde keine Zeit genommen.</translation>
    </message>
    <message>
        <source>Of the first {:.1f} s of the run nothing is recorded.</source>
        <translation>Von den ersten {:.1f} s des Laufs ist nichts aufgezeichnet.</translation>
    </message>
    <message>
        <source>Of the last {:.1f} s of the run nothing is recorded.</source>
        <translation>Von den letzten {:.1f} s des Laufs ist nichts aufgezeichnet.</translation>
    </message>
    <message>
        <source>Rest</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Rest between sets</source>
        <translation>Pause zwischen Sätzen</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Belastung</translation>
    </message>
    <message>
        <source>Somebody changed it on the server meanwhile.</source>
        <translation>Inzwischen hat es jemand auf dem Server geändert.</translation>
    </message>
    <message>
        <source>Somebody has locked it on the server.</source>
        <translation>Jemand hat es auf dem Server gesperrt.</translation>
    </message>
    <message>
        <source>Start and end of the stretch are not both marked in the run of {}.</source>
        <translation>Anfang und Ende des Stücks sind im Lauf von {} nicht beide markiert.</translation>
    </message>
    <message>
        <source>Start and end of the stretch are not both marked in this run.</source>
        <translation>Anfang und Ende des Stücks sind in diesem Lauf nicht beide markiert.</translation>
    </message>
    <message>
        <source>The end of the stretch is not marked after its start in the run of {}.</source>
        <translation>Das Ende des Stücks ist im Lauf von {} nicht nach seinem Anfang markiert.</translation>
    </message>
    <message>
        <source>The end of the stretch is not marked after its start in this run.</source>
        <translation>Das Ende des Stücks ist in diesem Lauf nicht nach seinem Anfang markiert.</translation>
    </message>
    <message>
        <source>The answer of the server is longer than it can be.</source>
        <translation>Die Antwort des Servers ist länger, als sie sein kann.</translation>
    </message>
    <message>
        <source>The attached motion is not as long as the run, so that its moments cannot be told.</source>
        <translation>Die angehängte Bewegung ist nicht so lang wie der Lauf, sodass ihre Zeitpunkte unbekannt sind.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted, so that nothing was sent. It was issued by “{}”: {}.</source>
        <translation>Dem Zertifikat des Servers wird nicht vertraut, daher wurde nichts gesendet. Ausgestellt hat es „{}“: {}.</translation>
    </message>
    <message>
        <source>The connection broke off.</source>
        <translation>Die Verbindung brach ab.</translation>
    </message>
    <message>
        <source>The exit is marked before the entrance.</source>
        <translation>Die Ausfahrt ist vor der Einfahrt markiert.</translation>
    </message>
    <message>
        <source>The exit is marked before the middle.</source>
        <translation>Die Ausfahrt ist vor der Mitte markiert.</translation>
    </message>
    <message>
        <source>The middle is marked before the entrance.</source>
        <translation>Die Mitte ist vor der Einfahrt markiert.</translation>
    </message>
    <message>
        <source>The film lies on {}, which is not ticked.</source>
        <translation>Der Film liegt auf {}, das nicht abgehakt ist.</translation>
    </message>
    <message>
        <source>The folder above is not there on the server.</source>
        <translation>Der Ordner darüber fehlt auf dem Server.</translation>
    </message>
    <message>
        <source>The number of sections is {}, but that of splits is {}.</source>
        <translation>Es sind {} Abschnitte, aber {} Zwischenzeiten.</translation>
    </message>
    <message>
        <source>The recording does not reach into this run.</source>
        <translation>Die Aufzeichnung reicht nicht in diesen Lauf.</translation>
    </message>
    <message>
        <source>The recording has {} further holes in this run.</source>
        <translation>Die Aufzeichnung hat {} weitere Lücken in diesem Lauf.</translation>
    </message>
    <message>
        <source>The run has no times that the recording could be laid on.</source>
        <translation>Der Lauf hat keine Zeiten, an die die Aufzeichnung gelegt werden könnte.</translation>
    </message>
    <message>
        <source>The section before was not timed, so this time covers both.</source>
        <translation>Der Abschnitt davor wurde nicht gestoppt, daher umfasst diese Zeit beide.</translation>
    </message>
    <message>
        <source>The server answered with status {}.</source>
        <translation>Der Server antwortete mit Status {}.</translation>
    </message>
    <message>
        <source>The server cannot be reached safely.</source>
        <translation>Der Server ist nicht sicher erreichbar.</translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation>Der Server ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The server does not accept the user name or the password.</source>
        <translation>Der Server nimmt Benutzername oder Passwort nicht an.</translation>
    </message>
    <message>
        <source>The server does not allow this, or not to this user.</source>
        <translation>Der Server erlaubt das nicht, oder nicht diesem Benutzer.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Der Server antwortet nicht.</translation>
    </message>
    <message>
        <source>The server fell silent.</source>
        <translation>Der Server ist verstummt.</translation>
    </message>
    <message>
        <source>The server has no such file or folder.</source>
        <translation>Der Server hat keine solche Datei und keinen solchen Ordner.</translation>
    </message>
    <message>
        <source>The server is full, or your share of it.</source>
        <translation>Der Server ist voll, oder Ihr Anteil daran.</translation>
    </message>
    <message>
        <source>The server leads to another one, {}, which is not followed.</source>
        <translation>Der Server verweist auf einen anderen, {}, dem nicht gefolgt wird.</translation>
    </message>
    <message>
        <source>The server takes no file of this size.</source>
        <translation>Der Server nimmt keine Datei dieser Größe.</translation>
    </message>
    <message>
        <source>The server was not found. Is the computer online?</source>
        <translation>Der Server wurde nicht gefunden. Ist der Computer online?</translation>
    </message>
    <message>
        <source>The session has more sets or repetitions than can be timed.</source>
        <translation>Die Einheit hat mehr Sätze oder Wiederholungen, als gestoppt werden können.</translation>
    </message>
    <message>
        <source>The session needs a work time.</source>
        <translation>Die Einheit braucht eine Belastungszeit.</translation>
    </message>
    <message>
        <source>The session needs at least one set and one repetition.</source>
        <translation>Die Einheit braucht mindestens einen Satz und eine Wiederholung.</translation>
    </message>
    <message>
        <source>The session takes longer than a day.</source>
        <translation>Die Einheit dauert länger als einen Tag.</translation>
    </message>
    <message>
        <source>This frame lies after {} at {}.</source>
        <translation>Dieses Bild liegt hinter: {} bei {}.</translation>
    </message>
    <message>
        <source>This frame lies before {} at {}.</source>
        <translation>Dieses Bild liegt vor: {} bei {}.</translation>
    </message>
    <message>
        <source>This run was not timed to the end, so this is not the time of the whole course.</source>
        <translation>Dieser Lauf wurde nicht bis zum Ende gestoppt, daher ist dies nicht die Zeit der ganzen Strecke.</translation>
    </message>
    <message>
        <source>Where they differ, both stay.</source>
        <translation>Wo sie sich unterscheiden, bleiben beide.</translation>
    </message>
    <message>
        <source>a byte is no UTF-8 text</source>
        <translation>ein Byte ist kein UTF-8-Text</translation>
    </message>
    <message>
        <source>a colon is due</source>
        <translation>ein Doppelpunkt fehlt</translation>
    </message>
    <message>
        <source>a comma or ] is due</source>
        <translation>ein Komma oder ] fehlt</translation>
    </message>
    <message>
        <source>a comma or } is due</source>
        <translation>ein Komma oder } fehlt</translation>
    </message>
    <message>
        <source>a digit is due</source>
        <translation>eine Ziffer fehlt</translation>
    </message>
    <message>
        <source>a key is due</source>
        <translation>ein Schlüssel fehlt</translation>
    </message>
    <message>
        <source>a micro split</source>
        <translation>eine Mikrozeit</translation>
    </message>
    <message>
        <source>a number is out of range</source>
        <translation>eine Zahl liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>a stroke of this hand</source>
        <translation>ein Schlag dieser Hand</translation>
    </message>
    <message>
        <source>a text holds a control character</source>
        <translation>ein Text enthält ein Steuerzeichen</translation>
    </message>
    <message>
        <source>a text holds a malformed escape</source>
        <translation>ein Text enthält eine fehlerhafte Maskierung</translation>
    </message>
    <message>
        <source>a value is due</source>
        <translation>ein Wert fehlt</translation>
    </message>
    <message>
        <source>an unknown issuer</source>
        <translation>ein unbekannter Aussteller</translation>
    </message>
    <message>
        <source>bib</source>
        <translation>Startnummer</translation>
    </message>
    <message>
        <source>five</source>
        <translation>fünf</translation>
    </message>
    <message>
        <source>six</source>
        <translation>sechs</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>not JSON, byte {}: {}</source>
        <translation>kein JSON, Byte {}: {}</translation>
    </message>
    <message>
        <source>not JSON, or cut off</source>
        <translation>kein JSON oder abgeschnitten</translation>
    </message>
    <message>
        <source>not JSON: a number is malformed or out of range</source>
        <translation>kein JSON: eine Zahl ist fehlerhaft oder außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>not JSON: a text holds a control character</source>
        <translation>kein JSON: ein Text enthält ein Steuerzeichen</translation>
    </message>
    <message>
        <source>not JSON: a text holds a malformed escape</source>
        <translation>kein JSON: ein Text enthält eine fehlerhafte Maskierung</translation>
    </message>
    <message>
        <source>not JSON: a text is not closed (the file may be cut off)</source>
        <translation>kein JSON: ein Text ist nicht geschlossen (die Datei ist vielleicht abgeschnitten)</translation>
    </message>
    <message>
        <source>position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>something stands behind the document</source>
        <translation>hinter dem Dokument steht noch etwas</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>der Datenträger kann nur gelesen werden</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>der Datenträger ist voll</translation>
    </message>
    <message>
        <source>the document is nested too deeply</source>
        <translation>das Dokument ist zu tief verschachtelt</translation>
    </message>
    <message>
        <source>the document is too large for the memory</source>
        <translation>das Dokument ist zu groß für den Speicher</translation>
    </message>
    <message>
        <source>the end of the stretch</source>
        <translation>das Ende des Stücks</translation>
    </message>
    <message>
        <source>the file became shorter while it was read</source>
        <translation>die Datei wurde beim Lesen kürzer</translation>
    </message>
    <message>
        <source>the file holds nothing but blanks</source>
        <translation>die Datei enthält nur Leerzeichen</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>the file is no text; save the list as text (CSV) first</source>
        <translation>die Datei ist kein Text; speichern Sie die Liste zuerst als Text (CSV)</translation>
    </message>
    <message>
        <source>the file is not UTF-8 text</source>
        <translation>die Datei ist kein UTF-8-Text</translation>
    </message>
    <message>
        <source>the file is too large for a document (over 4 GB)</source>
        <translation>die Datei ist zu groß für ein Dokument (über 4 GB)</translation>
    </message>
    <message>
        <source>the file is too large for a list (over 64 MB)</source>
        <translation>die Datei ist zu groß für eine Liste (über 64 MB)</translation>
    </message>
    <message>
        <source>the penalty {} is below 0</source>
        <translation>die Strafe {} ist unter 0</translation>
    </message>
    <message>
        <source>the penalty {} is over {}</source>
        <translation>die Strafe {} ist über {}</translation>
    </message>
    <message>
        <source>the position {} is below 0</source>
        <translation>die Position {} ist unter 0</translation>
    </message>
    <message>
        <source>the start</source>
        <translation>der Start</translation>
    </message>
    <message>
        <source>the start of the stretch</source>
        <translation>der Anfang des Stücks</translation>
    </message>
    <message>
        <source>the tag {}</source>
        <translation>die Markierung {}</translation>
    </message>
    <message>
        <source>the text ends too early (the file may be cut off)</source>
        <translation>der Text endet zu früh (die Datei ist vielleicht abgeschnitten)</translation>
    </message>
    <message>
        <source>the text is not valid UTF-8</source>
        <translation>der Text ist kein gültiges UTF-8</translation>
    </message>
    <message>
        <source>the time {} is an hour or more</source>
        <translation>die Zeit {} ist eine Stunde oder mehr</translation>
    </message>
    <message>
        <source>the time {} is below 0</source>
        <translation>die Zeit {} ist unter 0</translation>
    </message>
    <message>
        <source>the {} &quot;{}&quot; is no number of seconds</source>
        <translation>{} „{}“: keine Sekundenzahl</translation>
    </message>
    <message>
        <source>the {} &quot;{}&quot; is no whole number</source>
        <translation>{} „{}“: keine ganze Zahl</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>die Datei gibt es nicht</translation>
    </message>
    <message>
        <source>this is a folder, not a file</source>
        <translation>das ist ein Ordner, keine Datei</translation>
    </message>
    <message>
        <source>this is no JSON object: it does not begin with {</source>
        <translation>das ist kein JSON-Objekt: es beginnt nicht mit {</translation>
    </message>
    <message>
        <source>this is not an ordinary file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>this moment</source>
        <translation>dieser Moment</translation>
    </message>
    <message>
        <source>too many symbolic links</source>
        <translation>zu viele symbolische Verknüpfungen</translation>
    </message>
    <message>
        <source>{0}: has the time of {1} (bibs {2} and {3}), and {1} has this one&apos;s. Exchange the two crews?</source>
        <translation>{0}: hat die Zeit von {1} (Startnummern {2} und {3}), und {1} hat die andere. Die beiden Besatzungen tauschen?</translation>
    </message>
    <message>
        <source>{0}: has the time of {1}, and {1} has this one&apos;s. Exchange the two crews?</source>
        <translation>{0}: hat die Zeit von {1}, und {1} hat die andere. Die beiden Besatzungen tauschen?</translation>
    </message>
    <message>
        <source>{0}: the list says {1}, ours is {2}. Take {1} over?</source>
        <translation>{0}: Die Liste sagt {1}, unsere Zeit ist {2}. {1} übernehmen?</translation>
    </message>
    <message numerus="yes">
        <source>{} fields</source>
        <translation>
            <numerusform>{} Feld</numerusform>
            <numerusform>{} Felder</numerusform>
        </translation>
    </message>
    <message>
        <source>{} is marked on this frame already.</source>
        <translation>{} ist auf diesem Bild schon markiert.</translation>
    </message>
    <message numerus="yes">
        <source>{} runs waiting</source>
        <translation>
            <numerusform>{} Lauf wartet</numerusform>
            <numerusform>{} Läufe warten</numerusform>
        </translation>
    </message>
    <message>
        <source>{} where {} are needed</source>
        <translation>{}, wo {} nötig sind</translation>
    </message>
    <message>
        <source>{}, the next starts in {}</source>
        <translation>{}, der nächste startet in {}</translation>
    </message>
    <message>
        <source>{}: is not in the list.</source>
        <translation>{}: steht nicht in der Liste.</translation>
    </message>
    <message>
        <source>{}: the list has {} s of penalties, ours has {} s. Take the official result over?</source>
        <translation>{}: Die Liste hat {} s Strafe, unsere hat {} s. Das offizielle Ergebnis übernehmen?</translation>
    </message>
    <message>
        <source>{}: the list has {}, the film no time to the end. Take the official time over?</source>
        <translation>{}: Die Liste hat {}, der Film keine Zeit bis zum Ende. Die offizielle Zeit übernehmen?</translation>
    </message>
    <message>
        <source>{}: the list has {}, the film {}, {} s apart. Take the official time over?</source>
        <translation>{}: Die Liste hat {}, der Film {}, {} s auseinander. Die offizielle Zeit übernehmen?</translation>
    </message>
    <message>
        <source>{}: the list says {}, ours is {}.</source>
        <translation>{}: Die Liste sagt {}, unsere Zeit ist {}.</translation>
    </message>
    <message>
        <source>A difference needs two columns, as in difference:Run 2,Run 1.</source>
        <translation>Eine Differenz braucht zwei Spalten, wie in difference:Run 2,Run 1.</translation>
    </message>
    <message>
        <source>A text has no sheet &quot;{}&quot;.</source>
        <translation>Ein Text hat kein Blatt „{}“.</translation>
    </message>
    <message>
        <source>A {} is of one column, not of {}.</source>
        <translation>{}: aus einer Spalte, nicht aus {}.</translation>
    </message>
    <message>
        <source>A {} is of two columns, not of {}.</source>
        <translation>{}: aus zwei Spalten, nicht aus {}.</translation>
    </message>
    <message>
        <source>No column holds times; name the one to reckon with.</source>
        <translation>Keine Spalte enthält Zeiten; nennen Sie die, mit der gerechnet werden soll.</translation>
    </message>
    <message>
        <source>No column holds times; name those to add, as in total:Time,Pen.</source>
        <translation>Keine Spalte enthält Zeiten; nennen Sie die zu addierenden, wie in total:Time,Pen.</translation>
    </message>
    <message>
        <source>No list is open.</source>
        <translation>Es ist keine Liste geöffnet.</translation>
    </message>
    <message>
        <source>Not drawn: %1</source>
        <translation>Nicht gezeichnet: %1</translation>
    </message>
    <message>
        <source>Sections recorded in part: {}.</source>
        <translation>Teilweise aufgezeichnete Abschnitte: {}.</translation>
    </message>
    <message>
        <source>Sections without strokes: {}.</source>
        <translation>Abschnitte ohne Schläge: {}.</translation>
    </message>
    <message>
        <source>The column &quot;{}&quot; has no numbers to reckon with: it is {}.</source>
        <translation>Die Spalte „{}“ hat keine Zahlen zum Rechnen: {}.</translation>
    </message>
    <message>
        <source>The column &quot;{}&quot; has {} values: too many for columns of a pivot.</source>
        <translation>Die Spalte „{}“ hat {} Werte: zu viele für Spalten einer Pivot-Tabelle.</translation>
    </message>
    <message>
        <source>The file is packed, but holds no spreadsheet (.xlsx or .ods).</source>
        <translation>Die Datei ist gepackt, enthält aber keine Tabelle (.xlsx oder .ods).</translation>
    </message>
    <message>
        <source>The list needs a column with the title Name, Athlete or Crew.</source>
        <translation>Die Liste braucht eine Spalte mit dem Titel Name, Athlete oder Crew.</translation>
    </message>
    <message>
        <source>The list needs a column with the title Time, or Total and Penalty.</source>
        <translation>Die Liste braucht eine Spalte mit dem Titel Time, oder Total und Penalty.</translation>
    </message>
    <message>
        <source>The picture has {} MB. Up to 40 MB can be read; save it smaller first.</source>
        <translation>Das Bild hat {} MB. Bis zu 40 MB können gelesen werden; speichern Sie es zuerst kleiner.</translation>
    </message>
    <message>
        <source>The picture is far too long for a course.</source>
        <translation>Das Bild ist für eine Strecke viel zu lang.</translation>
    </message>
    <message>
        <source>The race carries no results list. Open the list itself; &quot;Keep with the race&quot; puts it there.</source>
        <translation>Das Rennen enthält keine Ergebnisliste. Öffnen Sie die Liste selbst; „Zum Rennen legen“ legt sie dort ab.</translation>
    </message>
    <message>
        <source>The report could not be painted.</source>
        <translation>Der Bericht konnte nicht gezeichnet werden.</translation>
    </message>
    <message>
        <source>The sheet &quot;{}&quot; has merged cells: their value stands in each of their lines.</source>
        <translation>Das Blatt „{}“ hat verbundene Zellen: Ihr Wert steht in jeder ihrer Zeilen.</translation>
    </message>
    <message>
        <source>The spreadsheet is damaged: its part {} cannot be read.</source>
        <translation>Die Tabelle ist beschädigt: Ihr Teil {} ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The spreadsheet is damaged: its part {} cannot be unpacked.</source>
        <translation>Die Tabelle ist beschädigt: Ihr Teil {} lässt sich nicht entpacken.</translation>
    </message>
    <message>
        <source>The spreadsheet is damaged: {}.</source>
        <translation>Die Tabelle ist beschädigt: {}.</translation>
    </message>
    <message>
        <source>The spreadsheet is protected by a password. Save it without one and open it again.</source>
        <translation>Die Tabelle ist durch ein Passwort geschützt. Speichern Sie sie ohne und öffnen Sie sie erneut.</translation>
    </message>
    <message>
        <source>The spreadsheet is too large: unpacked it is over 128 MB.</source>
        <translation>Die Tabelle ist zu groß: entpackt hat sie über 128 MB.</translation>
    </message>
    <message>
        <source>The text is no UTF-8 and was read as Latin-1; look at the letters with accents.</source>
        <translation>Der Text ist kein UTF-8 und wurde als Latin-1 gelesen; prüfen Sie die Buchstaben mit Akzenten.</translation>
    </message>
    <message>
        <source>There are several sheets; choose one of {}.</source>
        <translation>Es gibt mehrere Blätter; wählen Sie eines von {}.</translation>
    </message>
    <message>
        <source>There is no column &quot;{}&quot;; there is none.</source>
        <translation>Es gibt keine Spalte „{}“; es gibt gar keine.</translation>
    </message>
    <message>
        <source>There is no column &quot;{}&quot;; there is {}.</source>
        <translation>Es gibt keine Spalte „{}“, aber {}.</translation>
    </message>
    <message>
        <source>There is no sheet &quot;{}&quot;; there is {}.</source>
        <translation>Es gibt kein Blatt „{}“, aber {}.</translation>
    </message>
    <message>
        <source>There is nothing in it.</source>
        <translation>Es ist nichts darin.</translation>
    </message>
    <message>
        <source>This is a PDF, which has no columns to read; open it in a viewer.</source>
        <translation>Das ist ein PDF, das keine lesbaren Spalten hat; öffnen Sie es in einem Betrachter.</translation>
    </message>
    <message>
        <source>This is a spreadsheet with a password or of the old kind (.xls). Save it without a password as .xlsx, .ods or text (CSV).</source>
        <translation>Das ist eine Tabelle mit Passwort oder alter Art (.xls). Speichern Sie sie ohne Passwort als .xlsx, .ods oder Text (CSV).</translation>
    </message>
    <message>
        <source>This is neither text nor a spreadsheet (.xlsx, .ods).</source>
        <translation>Das ist weder Text noch eine Tabelle (.xlsx, .ods).</translation>
    </message>
    <message>
        <source>This is no picture that can be read. Take a PNG or JPEG file.</source>
        <translation>Das ist kein lesbares Bild. Nehmen Sie eine PNG- oder JPEG-Datei.</translation>
    </message>
    <message>
        <source>a time or a penalty is below 0</source>
        <translation>eine Zeit oder Strafe ist unter 0</translation>
    </message>
    <message>
        <source>gate %1: %2</source>
        <translation>Tor %1: %2</translation>
    </message>
    <message>
        <source>is not in the team</source>
        <translation>ist nicht in der Mannschaft</translation>
    </message>
    <message>
        <source>it could not be read</source>
        <translation>sie konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>missed gate</source>
        <translation>Torfehler</translation>
    </message>
    <message>
        <source>no category of the team is called &quot;{}&quot;</source>
        <translation>keine Kategorie der Mannschaft heißt „{}“</translation>
    </message>
    <message>
        <source>no phase of the team is called &quot;{}&quot;</source>
        <translation>keine Phase der Mannschaft heißt „{}“</translation>
    </message>
    <message>
        <source>no day such as 2026-05-03 or 3.5.2026</source>
        <translation>kein Tag wie 2026-05-03 oder 3.5.2026</translation>
    </message>
    <message>
        <source>no font is installed</source>
        <translation>es ist keine Schrift installiert</translation>
    </message>
    <message>
        <source>no number</source>
        <translation>keine Zahl</translation>
    </message>
    <message>
        <source>no time such as 92.45, 1:32.45 or 92.45 (2)</source>
        <translation>keine Zeit wie 92.45, 1:32.45 oder 92.45 (2)</translation>
    </message>
    <message>
        <source>no whole number</source>
        <translation>keine ganze Zahl</translation>
    </message>
    <message>
        <source>none of DNS, DNF, DSQ and the like</source>
        <translation>keines von DNS, DNF, DSQ und Ähnlichem</translation>
    </message>
    <message>
        <source>stands above the titles</source>
        <translation>steht über den Titeln</translation>
    </message>
    <message>
        <source>the line ends here: it has {} of {} fields</source>
        <translation>die Zeile endet hier: sie hat {} von {} Feldern</translation>
    </message>
    <message>
        <source>the line has more fields than there are columns</source>
        <translation>die Zeile hat mehr Felder als es Spalten gibt</translation>
    </message>
    <message>
        <source>the run was not finished</source>
        <translation>der Lauf wurde nicht beendet</translation>
    </message>
    <message>
        <source>the titles once more</source>
        <translation>die Titel noch einmal</translation>
    </message>
    <message>
        <source>touches and missed gates of %1 runs</source>
        <translation>Berührungen und Torfehler von %1 Läufen</translation>
    </message>
    <message>
        <source>{}: no run has a film</source>
        <translation>{}: kein Lauf hat einen Film</translation>
    </message>
    <message>
        <source>{}: the column is {}</source>
        <translation>{}: Art der Spalte: {}</translation>
    </message>
    <message>
        <source>1 field where a bib and a name are needed</source>
        <translation>1 Feld, wo eine Startnummer und ein Name nötig sind</translation>
    </message>
    <message>
        <source>A bracket { is not closed.</source>
        <translation>Eine Klammer { ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>A computer with Windows cannot take this name.</source>
        <translation>Ein Computer mit Windows nimmt diesen Namen nicht an.</translation>
    </message>
    <message>
        <source>A heat has one to four boats.</source>
        <translation>Ein Heat hat ein bis vier Boote.</translation>
    </message>
    <message>
        <source>An unnamed boat is not in this heat.</source>
        <translation>Ein unbenanntes Boot ist nicht in diesem Heat.</translation>
    </message>
    <message>
        <source>Both are kept: the one of this computer is “{}” now.</source>
        <translation>Beide bleiben erhalten: Das von diesem Computer heißt jetzt „{}“.</translation>
    </message>
    <message>
        <source>Both sides have the same.</source>
        <translation>Beide Seiten haben dasselbe.</translation>
    </message>
    <message>
        <source>Gate {}: it is not on the cross course.</source>
        <translation>Tor {}: Es ist nicht auf der Cross-Strecke.</translation>
    </message>
    <message>
        <source>Gate {}: {}</source>
        <translation>Tor {}: {}</translation>
    </message>
    <message>
        <source>It could not be given another name. Compare again.</source>
        <translation>Es konnte keinen anderen Namen erhalten. Vergleichen Sie erneut.</translation>
    </message>
    <message>
        <source>It is here again. Compare again.</source>
        <translation>Es ist wieder hier. Vergleichen Sie erneut.</translation>
    </message>
    <message>
        <source>It is not here any more.</source>
        <translation>Es ist nicht mehr hier.</translation>
    </message>
    <message>
        <source>It is not on the server any more. Compare again.</source>
        <translation>Es ist nicht mehr auf dem Server. Vergleichen Sie erneut.</translation>
    </message>
    <message>
        <source>It is not on the server yet: {}</source>
        <translation>Es ist noch nicht auf dem Server: {}</translation>
    </message>
    <message>
        <source>It is on the server again. Compare again.</source>
        <translation>Es ist wieder auf dem Server. Vergleichen Sie erneut.</translation>
    </message>
    <message>
        <source>It was changed here meanwhile. Compare again.</source>
        <translation>Es wurde inzwischen hier geändert. Vergleichen Sie erneut.</translation>
    </message>
    <message>
        <source>It was changed on the server meanwhile. Compare again.</source>
        <translation>Es wurde inzwischen auf dem Server geändert. Vergleichen Sie erneut.</translation>
    </message>
    <message>
        <source>It was changed while it was sent. Compare again.</source>
        <translation>Es wurde beim Senden geändert. Vergleichen Sie erneut.</translation>
    </message>
    <message>
        <source>Its name has control characters.</source>
        <translation>Sein Name hat Steuerzeichen.</translation>
    </message>
    <message>
        <source>Its name is no text.</source>
        <translation>Sein Name ist kein Text.</translation>
    </message>
    <message>
        <source>Its name is too long.</source>
        <translation>Sein Name ist zu lang.</translation>
    </message>
    <message>
        <source>Its name leads out of the folder.</source>
        <translation>Sein Name führt aus dem Ordner hinaus.</translation>
    </message>
    <message>
        <source>No mark tells yet how this camera&apos;s film lies beside the run&apos;s first one: mark one moment on both in split taking.</source>
        <translation>Noch sagt keine Marke, wie der Film dieser Kamera neben dem ersten des Laufs liegt: Markieren Sie einen Moment auf beiden in der Zwischenzeitnahme.</translation>
    </message>
    <message>
        <source>This is a fixed camera beside the run&apos;s own film: synchronise the two in split taking first.</source>
        <translation>Das ist eine feste Kamera neben dem eigenen Film des Laufs: Synchronisieren Sie die beiden zuerst in der Zwischenzeitnahme.</translation>
    </message>
    <message>
        <source>The course has {}, and this line is for split {}.</source>
        <translation>Die Strecke hat {}, und diese Linie ist für Zwischenzeit {}.</translation>
    </message>
    <message numerus="yes">
        <source>{} splits</source>
        <translation>
            <numerusform>{} Zwischenzeit</numerusform>
            <numerusform>{} Zwischenzeiten</numerusform>
        </translation>
    </message>
    <message>
        <source>The file that came has gone.</source>
        <translation>Die angekommene Datei ist verschwunden.</translation>
    </message>
    <message>
        <source>The file that came is not what its checksum says.</source>
        <translation>Die angekommene Datei ist nicht, was ihre Prüfsumme sagt.</translation>
    </message>
    <message>
        <source>The pattern holds no bracket such as {name}.</source>
        <translation>Das Muster enthält keine Klammer wie {name}.</translation>
    </message>
    <message>
        <source>The same bracket stands twice.</source>
        <translation>Dieselbe Klammer steht zweimal.</translation>
    </message>
    <message>
        <source>Two brackets stand side by side: nothing tells where one ends.</source>
        <translation>Zwei Klammern stehen nebeneinander: Nichts sagt, wo eine endet.</translation>
    </message>
    <message>
        <source>{{{}}} is not known. There are {{name}}, {{category}}, {{phase}}, {{bib}}, {{number}} and {{any}}.</source>
        <translation>{{{}}} ist unbekannt. Es gibt {{name}}, {{category}}, {{phase}}, {{bib}}, {{number}} und {{any}}.</translation>
    </message>
    <message>
        <source>{any} does not say what is to stand there.</source>
        <translation>{any} sagt nicht, was dort stehen soll.</translation>
    </message>
    <message>
        <source>The server has kept another length than was sent.</source>
        <translation>Der Server hat eine andere Länge behalten, als gesendet wurde.</translation>
    </message>
    <message>
        <source>The server told another length than it sent.</source>
        <translation>Der Server nannte eine andere Länge, als er sendete.</translation>
    </message>
    <message>
        <source>The server took the file and does not have it.</source>
        <translation>Der Server nahm die Datei und hat sie nicht.</translation>
    </message>
    <message>
        <source>There are more than four boats in this heat.</source>
        <translation>In diesem Heat sind mehr als vier Boote.</translation>
    </message>
    <message>
        <source>all gates</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>by its name</source>
        <translation>nach dem Namen</translation>
    </message>
    <message>
        <source>by the order</source>
        <translation>nach der Reihenfolge</translation>
    </message>
    <message>
        <source>the second boat of a long film</source>
        <translation>das zweite Boot eines langen Films</translation>
    </message>
    <message>
        <source>{} s from its start</source>
        <translation>{} s von seinem Start</translation>
    </message>
    <message>
        <source>{} s from its start, if the camera&apos;s clock is wrong</source>
        <translation>{} s von seinem Start, falls die Uhr der Kamera falsch geht</translation>
    </message>
    <message>
        <source>downstream</source>
        <translation>abwärts</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>gemischt</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>first third</source>
        <translation>erstes Drittel</translation>
    </message>
    <message>
        <source>second third</source>
        <translation>zweites Drittel</translation>
    </message>
    <message>
        <source>last third</source>
        <translation>letztes Drittel</translation>
    </message>
    <message>
        <source>no name is known</source>
        <translation>kein Name ist bekannt</translation>
    </message>
    <message>
        <source>no {} is known</source>
        <translation>nicht bekannt: {}</translation>
    </message>
    <message>
        <source>nothing would be left of the name</source>
        <translation>vom Namen bliebe nichts übrig</translation>
    </message>
    <message>
        <source>the name would be too long</source>
        <translation>der Name wäre zu lang</translation>
    </message>
    <message>
        <source>the bib &quot;{}&quot; is no number above 0</source>
        <translation>die Startnummer „{}“ ist keine Zahl über 0</translation>
    </message>
    <message>
        <source>the bib {} is on line {} already</source>
        <translation>die Startnummer {} steht schon in Zeile {}</translation>
    </message>
    <message>
        <source>the lines before have no start</source>
        <translation>die Zeilen davor haben keinen Start</translation>
    </message>
    <message>
        <source>the start &quot;{}&quot; is neither a time of day such as 10:01:30 nor a number in an order</source>
        <translation>der Start „{}“ ist weder eine Uhrzeit wie 10:01:30 noch eine Nummer einer Reihenfolge</translation>
    </message>
    <message>
        <source>there is no name</source>
        <translation>es gibt keinen Namen</translation>
    </message>
    <message>
        <source>there is no number in the order</source>
        <translation>es gibt keine Nummer in der Reihenfolge</translation>
    </message>
    <message>
        <source>there is no start time, which the others have</source>
        <translation>es gibt keine Startzeit, die die anderen haben</translation>
    </message>
    <message>
        <source>{} cannot attack and defend at once.</source>
        <translation>{} kann nicht zugleich angreifen und verteidigen.</translation>
    </message>
    <message>
        <source>{} is already in this heat.</source>
        <translation>{} ist schon in diesem Heat.</translation>
    </message>
    <message>
        <source>{} is not in this heat.</source>
        <translation>{} ist nicht in diesem Heat.</translation>
    </message>
    <message>
        <source>{} stands twice among the defenders.</source>
        <translation>{} steht zweimal unter den Verteidigern.</translation>
    </message>
    <message>
        <source>{} stands twice in the heat.</source>
        <translation>{} steht zweimal im Heat.</translation>
    </message>
    <message>
        <source>{} stands twice in the order.</source>
        <translation>{} steht zweimal in der Reihenfolge.</translation>
    </message>
    <message>
        <source>{} without any detail.</source>
        <translation>{} ohne jede Einzelheit.</translation>
    </message>
    <message>
        <source>A brace is opened and not closed: {}</source>
        <translation>Eine Klammer wird geöffnet und nicht geschlossen: {}</translation>
    </message>
    <message>
        <source>Aerial phase</source>
        <translation>Luftphase</translation>
    </message>
    <message>
        <source>Water phase</source>
        <translation>Wasserphase</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distanz</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Widerstand</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Kraft</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Hand</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Herzfrequenz</translation>
    </message>
    <message>
        <source>Impulse</source>
        <translation>Impuls</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Schlagfrequenz</translation>
    </message>
    <message>
        <source>Single rate</source>
        <translation>Einzelfrequenz</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Segment</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rollen</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Stampfen</translation>
    </message>
    <message>
        <source>Max acceleration</source>
        <translation>Max. Beschleunigung</translation>
    </message>
    <message>
        <source>Mean acceleration</source>
        <translation>Mittl. Beschleunigung</translation>
    </message>
    <message>
        <source>Mean deceleration</source>
        <translation>Mittl. Verzögerung</translation>
    </message>
    <message>
        <source>Mean rotation</source>
        <translation>Mittl. Drehung</translation>
    </message>
    <message>
        <source>Peak rotation</source>
        <translation>Höchste Drehung</translation>
    </message>
    <message>
        <source>Mean push out</source>
        <translation>Mittl. Querschub</translation>
    </message>
    <message>
        <source>Peak push out</source>
        <translation>Höchster Querschub</translation>
    </message>
    <message>
        <source>Metres per stroke</source>
        <translation>Meter je Schlag</translation>
    </message>
    <message>
        <source>Is in the folder.</source>
        <translation>Ist im Ordner.</translation>
    </message>
    <message>
        <source>It is a file. A folder is shared.</source>
        <translation>Das ist eine Datei. Geteilt wird ein Ordner.</translation>
    </message>
    <message>
        <source>It is a link.</source>
        <translation>Das ist eine Verknüpfung.</translation>
    </message>
    <message>
        <source>It lies too deep.</source>
        <translation>Es liegt zu tief.</translation>
    </message>
    <message>
        <source>Lies on {}, which is not ticked.</source>
        <translation>Liegt auf {}, das nicht abgehakt ist.</translation>
    </message>
    <message>
        <source>May also be bib {}.</source>
        <translation>Kann auch Startnummer {} sein.</translation>
    </message>
    <message>
        <source>Only https:// keeps the password and the files from other readers.</source>
        <translation>Nur https:// hält Passwort und Dateien vor anderen Lesern verborgen.</translation>
    </message>
    <message>
        <source>The address asks for no {bib}, so that every run would have the same film.</source>
        <translation>Die Adresse fragt nach keiner {bib}, sodass jeder Lauf denselben Film hätte.</translation>
    </message>
    <message>
        <source>The address is that of a file. A folder is shared.</source>
        <translation>Die Adresse gehört zu einer Datei. Geteilt wird ein Ordner.</translation>
    </message>
    <message>
        <source>The address makes none for this run.</source>
        <translation>Die Adresse ergibt keinen für diesen Lauf.</translation>
    </message>
    <message>
        <source>The address must begin with https:// and a server, whose name has no braces, user or password.</source>
        <translation>Die Adresse muss mit https:// und einem Server beginnen, dessen Name keine Klammern, Benutzer oder Passwörter hat.</translation>
    </message>
    <message>
        <source>The address must begin with https:// and hold no user name and password.</source>
        <translation>Die Adresse muss mit https:// beginnen und darf weder Benutzername noch Passwort enthalten.</translation>
    </message>
    <message>
        <source>The address must begin with https:// or http:// and hold no user name and password.</source>
        <translation>Die Adresse muss mit https:// oder http:// beginnen und darf weder Benutzername noch Passwort enthalten.</translation>
    </message>
    <message>
        <source>The list has no film with this bib.</source>
        <translation>Die Liste hat keinen Film mit dieser Startnummer.</translation>
    </message>
    <message>
        <source>The list tells no {} of this run.</source>
        <translation>Die Liste nennt von diesem Lauf nicht: {}.</translation>
    </message>
    <message>
        <source>number of the run</source>
        <translation>Nummer des Laufs</translation>
    </message>
    <message>
        <source>The pattern of names: {}</source>
        <translation>Das Muster der Namen: {}</translation>
    </message>
    <message>
        <source>The server does not speak WebDAV at this address.</source>
        <translation>Der Server spricht unter dieser Adresse kein WebDAV.</translation>
    </message>
    <message>
        <source>The server has too many files to share.</source>
        <translation>Der Server hat zu viele Dateien zum Teilen.</translation>
    </message>
    <message>
        <source>The server says that it lies in another folder.</source>
        <translation>Der Server sagt, es liege in einem anderen Ordner.</translation>
    </message>
    <message>
        <source>There are too many files to share.</source>
        <translation>Es sind zu viele Dateien zum Teilen.</translation>
    </message>
    <message>
        <source>There is no address yet.</source>
        <translation>Es gibt noch keine Adresse.</translation>
    </message>
    <message>
        <source>There is no folder for the films yet.</source>
        <translation>Es gibt noch keinen Ordner für die Filme.</translation>
    </message>
    <message>
        <source>There is no start list, results list or split file for the bibs yet.</source>
        <translation>Es gibt noch keine Startliste, Ergebnisliste oder Zwischenzeitdatei für die Startnummern.</translation>
    </message>
    <message>
        <source>Would be more than 20 GB in one go.</source>
        <translation>Wären mehr als 20 GB auf einmal.</translation>
    </message>
    <message>
        <source>{{{}}} means nothing here: there are {{bib}}, {{category}}, {{phase}} and {{run}}.</source>
        <translation>{{{}}} bedeutet hier nichts: Es gibt {{bib}}, {{category}}, {{phase}} und {{run}}.</translation>
    </message>
    <message>
        <source>Explain one number instead: cell/ROW/COLUMN, the row counted from 0 as in --json, as in cell/0/time</source>
        <translation>Erklärt stattdessen eine Zahl: cell/ZEILE/SPALTE, die Zeile ab 0 gezählt wie in --json, etwa cell/0/time</translation>
    </message>
    <message>
        <source>No start of {} is known in these races.</source>
        <translation>Kein Start von {} ist in diesen Rennen bekannt.</translation>
    </message>
    <message>
        <source>Only races in which this athlete starts, in whichever phase</source>
        <translation>Nur Rennen, in denen dieser Sportler startet, gleich in welcher Phase</translation>
    </message>
    <message>
        <source>Only races in which {} starts.</source>
        <translation>Nur Rennen, in denen {} startet.</translation>
    </message>
    <message>
        <source>Explain one number instead: cell/ROW/COLUMN, the row counted from 0 as in --json, as in cell/0/rank</source>
        <translation>Erklärt stattdessen eine Zahl: cell/ZEILE/SPALTE, die Zeile ab 0 gezählt wie in --json, etwa cell/0/rank</translation>
    </message>
    <message>
        <source>line {}</source>
        <translation>Zeile {}</translation>
    </message>
    <message>
        <source>column {}</source>
        <translation>Spalte {}</translation>
    </message>
    <message>
        <source>An empty penalty adds nothing.</source>
        <translation>Eine leere Strafe fügt nichts hinzu.</translation>
    </message>
    <message>
        <source>better</source>
        <translation>bessere</translation>
    </message>
    <message>
        <source>others</source>
        <translation>andere</translation>
    </message>
    <message>
        <source>Only rows with {} in {} are compared.</source>
        <translation>Nur Zeilen mit {} in {} werden verglichen.</translation>
    </message>
    <message>
        <source>The highest is the best.</source>
        <translation>Der höchste ist der beste.</translation>
    </message>
    <message>
        <source>As it stands in the list, read as a number.</source>
        <translation>Wie es in der Liste steht, als Zahl gelesen.</translation>
    </message>
    <message>
        <source>list</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>The columns of the row added up.</source>
        <translation>Die Spalten der Zeile zusammengezählt.</translation>
    </message>
    <message>
        <source>Σ columns</source>
        <translation>Σ Spalten</translation>
    </message>
    <message>
        <source>The place in the column: one more than are better; times to the hundredth.</source>
        <translation>Der Platz in der Spalte: einer mehr als bessere da sind; Zeiten auf Hundertstel.</translation>
    </message>
    <message>
        <source>1 + better</source>
        <translation>1 + bessere</translation>
    </message>
    <message>
        <source>How far the number is behind the best of the column.</source>
        <translation>Wie weit die Zahl hinter der besten der Spalte liegt.</translation>
    </message>
    <message>
        <source>own − best</source>
        <translation>eigene − beste</translation>
    </message>
    <message>
        <source>How many percent the number is behind the best of the column.</source>
        <translation>Wie viel Prozent die Zahl hinter der besten der Spalte liegt.</translation>
    </message>
    <message>
        <source>How many percent of the others in the column are better.</source>
        <translation>Wie viel Prozent der anderen in der Spalte besser sind.</translation>
    </message>
    <message>
        <source>100 · better / others</source>
        <translation>100 · bessere / andere</translation>
    </message>
    <message>
        <source>The first column less the second.</source>
        <translation>Die erste Spalte weniger die zweite.</translation>
    </message>
    <message>
        <source>first − second</source>
        <translation>erste − zweite</translation>
    </message>
    <message>
        <source>How many rows say something in the column.</source>
        <translation>Wie viele Zeilen in der Spalte etwas sagen.</translation>
    </message>
    <message>
        <source>The numbers of all these rows added up.</source>
        <translation>Die Zahlen all dieser Zeilen zusammengezählt.</translation>
    </message>
    <message>
        <source>Σ rows</source>
        <translation>Σ Zeilen</translation>
    </message>
    <message>
        <source>The mean of the numbers of these rows.</source>
        <translation>Das Mittel der Zahlen dieser Zeilen.</translation>
    </message>
    <message>
        <source>Σ rows / number of rows</source>
        <translation>Σ Zeilen / Anzahl der Zeilen</translation>
    </message>
    <message>
        <source>As many of these rows have less as have more.</source>
        <translation>Ebenso viele dieser Zeilen haben weniger wie mehr.</translation>
    </message>
    <message>
        <source>median of rows</source>
        <translation>Median der Zeilen</translation>
    </message>
    <message>
        <source>The least number of these rows.</source>
        <translation>Die kleinste Zahl dieser Zeilen.</translation>
    </message>
    <message>
        <source>least of rows</source>
        <translation>kleinste der Zeilen</translation>
    </message>
    <message>
        <source>The largest number of these rows.</source>
        <translation>Die größte Zahl dieser Zeilen.</translation>
    </message>
    <message>
        <source>largest of rows</source>
        <translation>größte der Zeilen</translation>
    </message>
    <message>
        <source>Of {} rows the first {} are told.</source>
        <translation>Von {} Zeilen werden die ersten {} genannt.</translation>
    </message>
    <message>
        <source>this table is damaged: {}</source>
        <translation>diese Tabelle ist beschädigt: {}</translation>
    </message>
    <message>
        <source>A list: text (CSV, tabs, columns of blanks), a spreadsheet (.xlsx, .ods), a split file (.kvx) that carries one, or a saved table (.kvtable)</source>
        <translation>Eine Liste: Text (CSV, Tabs, Spalten aus Leerzeichen), eine Tabellendatei (.xlsx, .ods), eine Zwischenzeitdatei (.kvx), die eine enthält, oder eine gespeicherte Tabelle (.kvtable)</translation>
    </message>
    <message numerus="yes">
        <source>{} more rows are not told.</source>
        <translation>
            <numerusform>{} weitere Zeile ist nicht genannt.</numerusform>
            <numerusform>{} weitere Zeilen sind nicht genannt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} rows have no such value.</source>
        <translation>
            <numerusform>{} Zeile hat keinen solchen Wert.</numerusform>
            <numerusform>{} Zeilen haben keinen solchen Wert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>90 % interval, {} runs</source>
        <translation>
            <numerusform>90-%-Intervall, {} Lauf</numerusform>
            <numerusform>90-%-Intervall, {} Läufe</numerusform>
        </translation>
    </message>
    <message>
        <source>column {}: “{}” is no date</source>
        <translation>Spalte {}: „{}“ ist kein Datum</translation>
    </message>
    <message>
        <source>column {}: “{}” is no number</source>
        <translation>Spalte {}: „{}“ ist keine Zahl</translation>
    </message>
    <message>
        <source>the line ends before its time</source>
        <translation>die Zeile endet vor ihrer Zeit</translation>
    </message>
    <message>
        <source>an axis of the acceleration is missing</source>
        <translation>eine Achse der Beschleunigung fehlt</translation>
    </message>
    <message>
        <source>Some lines were not in order of time and were put in order.</source>
        <translation>Einige Zeilen waren nicht nach der Zeit geordnet und wurden sortiert.</translation>
    </message>
    <message>
        <source>Gravity was split off the acceleration by a low-pass of 0.3 Hz.</source>
        <translation>Die Schwerkraft wurde mit einem Tiefpass von 0,3 Hz von der Beschleunigung getrennt.</translation>
    </message>
    <message>
        <source>There is no gravity in the list.</source>
        <translation>In der Liste ist keine Schwerkraft.</translation>
    </message>
    <message>
        <source>There is no rotation in the list: hands and turns cannot be found.</source>
        <translation>In der Liste ist keine Drehung: Hände und Drehungen können nicht gefunden werden.</translation>
    </message>
    <message>
        <source>the messages end within a definition</source>
        <translation>die Nachrichten enden mitten in einer Definition</translation>
    </message>
    <message>
        <source>the messages end within a message</source>
        <translation>die Nachrichten enden mitten in einer Nachricht</translation>
    </message>
    <message>
        <source>byte {}</source>
        <translation>Byte {}</translation>
    </message>
    <message>
        <source>the header&apos;s check sum does not agree</source>
        <translation>die Prüfsumme des Kopfes stimmt nicht</translation>
    </message>
    <message>
        <source>the file&apos;s check sum does not agree: bytes of it are damaged</source>
        <translation>die Prüfsumme der Datei stimmt nicht: Bytes darin sind beschädigt</translation>
    </message>
    <message>
        <source>the file ends within a header</source>
        <translation>die Datei endet mitten in einem Kopf</translation>
    </message>
    <message>
        <source>a header of {} bytes: it has to have 12 or 14</source>
        <translation>ein Kopf mit Länge {}: er muss 12 oder 14 Byte haben</translation>
    </message>
    <message>
        <source>the header does not say that this is a FIT file</source>
        <translation>der Kopf sagt nicht, dass dies eine FIT-Datei ist</translation>
    </message>
    <message>
        <source>the recording was not finished by its device: it is empty</source>
        <translation>das Gerät hat die Aufzeichnung nicht abgeschlossen: sie ist leer</translation>
    </message>
    <message>
        <source>the file ends here, but its header announces {} bytes</source>
        <translation>die Datei endet hier, aber ihr Kopf kündigt {} Byte an</translation>
    </message>
    <message>
        <source>a byte order of {}: it is 0 or 1</source>
        <translation>eine Bytereihenfolge {}: sie ist 0 oder 1</translation>
    </message>
    <message>
        <source>a message of type {}, which is not defined</source>
        <translation>eine Nachricht vom Typ {}, der nicht definiert ist</translation>
    </message>
    <message numerus="yes">
        <source>The file holds {} sessions; all were taken.</source>
        <translation>
            <numerusform>Die Datei enthält {} Einheit; sie wurde ganz übernommen.</numerusform>
            <numerusform>Die Datei enthält {} Einheiten; alle wurden übernommen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The watch was stopped {} times.</source>
        <translation>
            <numerusform>Die Uhr wurde {}-mal angehalten.</numerusform>
            <numerusform>Die Uhr wurde {}-mal angehalten.</numerusform>
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
        <translation>Die Aufzeichnung hat eigene Positionen, die bleiben.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} after the recording.</source>
        <translation>Die Positionen des Tracks beginnen {} nach der Aufzeichnung.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} before the recording.</source>
        <translation>Die Positionen des Tracks beginnen {} vor der Aufzeichnung.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} after the recording; perhaps an offset of {} h is missing.</source>
        <translation>Die Positionen des Tracks beginnen {} nach der Aufzeichnung; vielleicht fehlt ein Versatz von {} h.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} before the recording; perhaps an offset of {} h is missing.</source>
        <translation>Die Positionen des Tracks beginnen {} vor der Aufzeichnung; vielleicht fehlt ein Versatz von {} h.</translation>
    </message>
    <message>
        <source>The recording has heart rates of its own, which stay.</source>
        <translation>Die Aufzeichnung hat eigene Herzfrequenzen, die bleiben.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} after the recording.</source>
        <translation>Die Herzfrequenzen des Tracks beginnen {} nach der Aufzeichnung.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} before the recording.</source>
        <translation>Die Herzfrequenzen des Tracks beginnen {} vor der Aufzeichnung.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} after the recording; perhaps an offset of {} h is missing.</source>
        <translation>Die Herzfrequenzen des Tracks beginnen {} nach der Aufzeichnung; vielleicht fehlt ein Versatz von {} h.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} before the recording; perhaps an offset of {} h is missing.</source>
        <translation>Die Herzfrequenzen des Tracks beginnen {} vor der Aufzeichnung; vielleicht fehlt ein Versatz von {} h.</translation>
    </message>
    <message>
        <source>The recording has no motion samples to join the track to.</source>
        <translation>Die Aufzeichnung hat keine Bewegungswerte, zu denen der Track kommen könnte.</translation>
    </message>
    <message>
        <source>“{}” stands over two columns.</source>
        <translation>„{}“ steht über zwei Spalten.</translation>
    </message>
    <message>
        <source>Of the acceleration with gravity all of x, y and z are needed.</source>
        <translation>Von der Beschleunigung mit Schwerkraft werden x, y und z gebraucht.</translation>
    </message>
    <message>
        <source>Of the acceleration without gravity all of x, y and z are needed.</source>
        <translation>Von der Beschleunigung ohne Schwerkraft werden x, y und z gebraucht.</translation>
    </message>
    <message>
        <source>Of the rotation all of x, y and z are needed.</source>
        <translation>Von der Drehung werden x, y und z gebraucht.</translation>
    </message>
    <message>
        <source>Of the gravity all of x, y and z are needed.</source>
        <translation>Von der Schwerkraft werden x, y und z gebraucht.</translation>
    </message>
    <message>
        <source>Latitude and longitude go together.</source>
        <translation>Breite und Länge gehören zusammen.</translation>
    </message>
    <message>
        <source>Acc. x with gravity</source>
        <translation>Beschl. x mit Schwerkraft</translation>
    </message>
    <message>
        <source>Acc. y with gravity</source>
        <translation>Beschl. y mit Schwerkraft</translation>
    </message>
    <message>
        <source>Acc. z with gravity</source>
        <translation>Beschl. z mit Schwerkraft</translation>
    </message>
    <message>
        <source>Acc. x without gravity</source>
        <translation>Beschl. x ohne Schwerkraft</translation>
    </message>
    <message>
        <source>Acc. y without gravity</source>
        <translation>Beschl. y ohne Schwerkraft</translation>
    </message>
    <message>
        <source>Acc. z without gravity</source>
        <translation>Beschl. z ohne Schwerkraft</translation>
    </message>
    <message>
        <source>Gravity x</source>
        <translation>Schwerkraft x</translation>
    </message>
    <message>
        <source>Gravity y</source>
        <translation>Schwerkraft y</translation>
    </message>
    <message>
        <source>Gravity z</source>
        <translation>Schwerkraft z</translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation>Gieren</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>No column is the time.</source>
        <translation>Keine Spalte ist die Zeit.</translation>
    </message>
    <message>
        <source>Commas cannot be in numbers and between columns.</source>
        <translation>Kommas können nicht zugleich in Zahlen und zwischen Spalten stehen.</translation>
    </message>
    <message>
        <source>No column is acceleration, position or heart rate.</source>
        <translation>Keine Spalte ist Beschleunigung, Position oder Herzfrequenz.</translation>
    </message>
    <message>
        <source>this is no plain text; a list has to be saved as UTF-8</source>
        <translation>das ist kein reiner Text; eine Liste muss als UTF-8 gespeichert sein</translation>
    </message>
    <message>
        <source>this is no list of samples: in its first {} lines there is none with numbers in columns</source>
        <translation>das ist keine Liste von Messwerten: unter den ersten {} Zeilen ist keine mit Zahlen in Spalten</translation>
    </message>
    <message>
        <source>the list has more than {} lines</source>
        <translation>die Liste hat mehr als {} Zeilen</translation>
    </message>
    <message>
        <source>the file is too large to be imported (over {} MB)</source>
        <translation>die Datei ist zu groß zum Importieren (über {} MB)</translation>
    </message>
    <message>
        <source>the file grew while it was read</source>
        <translation>die Datei wuchs, während sie gelesen wurde</translation>
    </message>
    <message>
        <source>this is no track: neither GPX nor TCX nor FIT</source>
        <translation>das ist kein Track: weder GPX noch TCX noch FIT</translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} positions outside the globe.</source>
        <translation>
            <numerusform>Ausgelassen: {} Position außerhalb der Erde.</numerusform>
            <numerusform>Ausgelassen: {} Positionen außerhalb der Erde.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} speeds that no boat has.</source>
        <translation>
            <numerusform>Ausgelassen: {} Tempowert, den kein Boot erreicht.</numerusform>
            <numerusform>Ausgelassen: {} Tempowerte, die kein Boot erreicht.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} points without a date.</source>
        <translation>
            <numerusform>Ausgelassen: {} Punkt ohne Datum.</numerusform>
            <numerusform>Ausgelassen: {} Punkte ohne Datum.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} heart rates that are none.</source>
        <translation>
            <numerusform>Ausgelassen: {} Herzfrequenz, die keine ist.</numerusform>
            <numerusform>Ausgelassen: {} Herzfrequenzen, die keine sind.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} positions at the moment of another.</source>
        <translation>
            <numerusform>Ausgelassen: {} Position im selben Augenblick wie eine andere.</numerusform>
            <numerusform>Ausgelassen: {} Positionen im selben Augenblick wie eine andere.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} heart rates at the moment of another.</source>
        <translation>
            <numerusform>Ausgelassen: {} Herzfrequenz im selben Augenblick wie eine andere.</numerusform>
            <numerusform>Ausgelassen: {} Herzfrequenzen im selben Augenblick wie eine andere.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} way points and points of routes.</source>
        <translation>
            <numerusform>Ausgelassen: {} Wegpunkt oder Routenpunkt.</numerusform>
            <numerusform>Ausgelassen: {} Wegpunkte und Routenpunkte.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The speed of {} positions was computed from the positions around them.</source>
        <translation>
            <numerusform>Das Tempo von {} Position wurde aus den Positionen ringsum berechnet.</numerusform>
            <numerusform>Das Tempo von {} Positionen wurde aus den Positionen ringsum berechnet.</numerusform>
        </translation>
    </message>
    <message>
        <source>the track has more than {} points</source>
        <translation>der Track hat mehr als {} Punkte</translation>
    </message>
    <message>
        <source>the XML is damaged: {}</source>
        <translation>das XML ist beschädigt: {}</translation>
    </message>
    <message>
        <source>this XML is no track: neither GPX nor TCX</source>
        <translation>dieses XML ist kein Track: weder GPX noch TCX</translation>
    </message>
    <message>
        <source>a number was expected, found {}</source>
        <translation>eine Zahl wurde erwartet, gefunden: {}</translation>
    </message>
    <message>
        <source>an integer was expected, found {}</source>
        <translation>eine ganze Zahl wurde erwartet, gefunden: {}</translation>
    </message>
    <message>
        <source>a boolean was expected, found {}</source>
        <translation>ein Wahrheitswert wurde erwartet, gefunden: {}</translation>
    </message>
    <message>
        <source>a string was expected, found {}</source>
        <translation>eine Zeichenkette wurde erwartet, gefunden: {}</translation>
    </message>
    <message>
        <source>a base64 string was expected, found {}</source>
        <translation>eine Zeichenkette in Base64 wurde erwartet, gefunden: {}</translation>
    </message>
    <message>
        <source>an array was expected, found {}</source>
        <translation>eine Liste wurde erwartet, gefunden: {}</translation>
    </message>
    <message>
        <source>an object was expected, found {}</source>
        <translation>ein Objekt wurde erwartet, gefunden: {}</translation>
    </message>
    <message>
        <source>the integer {} is out of range</source>
        <translation>die ganze Zahl {} liegt außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>a number that is no 64-bit integer</source>
        <translation>eine Zahl, die keine ganze 64-Bit-Zahl ist</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>eine Zeichenkette</translation>
    </message>
    <message>
        <source>a boolean</source>
        <translation>ein Wahrheitswert</translation>
    </message>
    <message>
        <source>something else</source>
        <translation>etwas anderes</translation>
    </message>
    <message>
        <source>the key is missing</source>
        <translation>der Schlüssel fehlt</translation>
    </message>
    <message>
        <source>a base64 string was expected, found other text</source>
        <translation>eine Zeichenkette in Base64 wurde erwartet, gefunden: anderer Text</translation>
    </message>
    <message>
        <source>a number that is not finite cannot be written</source>
        <translation>eine Zahl, die nicht endlich ist, kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>a text that is not valid UTF-8 cannot be written</source>
        <translation>ein Text, der kein gültiges UTF-8 ist, kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>waits {} s</source>
        <translation>wartet {} s</translation>
    </message>
    <message>
        <source>Section {}</source>
        <translation>Abschnitt {}</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is none of {}</source>
        <translation>„{}“ ist keines von {}</translation>
    </message>
    <message>
        <source>{} is not a number from {} on</source>
        <translation>{} ist keine Zahl ab {}</translation>
    </message>
    <message>
        <source>either two points or none are needed</source>
        <translation>entweder zwei Punkte oder keiner werden gebraucht</translation>
    </message>
    <message>
        <source>a number from 1 to 2 was expected</source>
        <translation>eine Zahl von 1 bis 2 wurde erwartet</translation>
    </message>
    <message>
        <source>no path is named that could be drawn or followed</source>
        <translation>keine Bahn ist genannt, die gezeichnet oder verfolgt werden könnte</translation>
    </message>
    <message>
        <source>{}: the size of its picture is missing</source>
        <translation>{}: die Größe des Bildes fehlt</translation>
    </message>
    <message numerus="yes">
        <source>the split file has {} runs</source>
        <translation>
            <numerusform>die Zwischenzeitdatei hat {} Lauf</numerusform>
            <numerusform>die Zwischenzeitdatei hat {} Läufe</numerusform>
        </translation>
    </message>
    <message>
        <source>the run has no film of this camera</source>
        <translation>der Lauf hat keinen Film dieser Kamera</translation>
    </message>
    <message>
        <source>neither a film nor a split file is named</source>
        <translation>weder ein Film noch eine Zwischenzeitdatei ist genannt</translation>
    </message>
    <message>
        <source>a share from 0 to 1 was expected</source>
        <translation>ein Anteil von 0 bis 1 wurde erwartet</translation>
    </message>
    <message>
        <source>{} films; this layout takes 2 to 4</source>
        <translation>Filme: {}; diese Anordnung nimmt 2 bis 4</translation>
    </message>
    <message>
        <source>{} films; this layout takes 2</source>
        <translation>Filme: {}; diese Anordnung nimmt 2</translation>
    </message>
    <message>
        <source>an even number from 160 to 4096 was expected</source>
        <translation>eine gerade Zahl von 160 bis 4096 wurde erwartet</translation>
    </message>
    <message>
        <source>the picture is larger than 1920 × 1080 and would not play everywhere</source>
        <translation>das Bild ist größer als 1920 × 1080 und würde nicht überall laufen</translation>
    </message>
    <message>
        <source>it does not lie behind {}</source>
        <translation>es liegt nicht hinter {}</translation>
    </message>
    <message>
        <source>a number from 0.125 to 1 was expected</source>
        <translation>eine Zahl von 0,125 bis 1 wurde erwartet</translation>
    </message>
    <message>
        <source>there is no film of this number; 0 is no sound</source>
        <translation>es gibt keinen Film dieser Nummer; 0 ist ohne Ton</translation>
    </message>
    <message>
        <source>films that lie over each other cannot follow a path</source>
        <translation>Filme, die übereinander liegen, können keiner Bahn folgen</translation>
    </message>
    <message>
        <source>{}: the start lies outside the film, at {} s.</source>
        <translation>{}: der Start liegt außerhalb des Films, bei {} s.</translation>
    </message>
    <message>
        <source>{}: split {} lies outside the film, at {} s.</source>
        <translation>{}: Zwischenzeit {} liegt außerhalb des Films, bei {} s.</translation>
    </message>
    <message>
        <source>so large a picture would not play everywhere at {} frames a second</source>
        <translation>ein so großes Bild würde mit {} Bildern je Sekunde nicht überall laufen</translation>
    </message>
    <message>
        <source>{} is not shown: {}.</source>
        <translation>{} wird nicht gezeigt: {}.</translation>
    </message>
    <message>
        <source>{} is cut off or damaged; it is shown as far as it goes.</source>
        <translation>{} ist abgeschnitten oder beschädigt; gezeigt wird, so weit es geht.</translation>
    </message>
    <message>
        <source>{}: at {} s a frame cannot be shown ({}); the last good one stays.</source>
        <translation>{}: bei {} s kann ein Bild nicht gezeigt werden ({}); das letzte gute bleibt stehen.</translation>
    </message>
    <message>
        <source>no film has a mark at this split</source>
        <translation>kein Film hat an dieser Zwischenzeit eine Marke</translation>
    </message>
    <message>
        <source>no run is marked at its start, so the range has to be given in seconds</source>
        <translation>kein Lauf ist an seinem Start markiert, also muss der Bereich in Sekunden angegeben werden</translation>
    </message>
    <message>
        <source>its end does not lie behind its beginning</source>
        <translation>sein Ende liegt nicht hinter seinem Anfang</translation>
    </message>
    <message>
        <source>it cannot be decoded</source>
        <translation>es kann nicht dekodiert werden</translation>
    </message>
    <message>
        <source>its pictures are in a format of no use</source>
        <translation>die Bilder haben ein unbrauchbares Format</translation>
    </message>
    <message>
        <source>the start is not marked on this film, so it cannot be held there</source>
        <translation>der Start ist in diesem Film nicht markiert, also kann er dort nicht angehalten werden</translation>
    </message>
    <message>
        <source>split {} is not marked on this film, so it cannot be held there</source>
        <translation>Zwischenzeit {} ist in diesem Film nicht markiert, also kann er dort nicht angehalten werden</translation>
    </message>
    <message>
        <source>{}: {}.</source>
        <translation>{}: {}.</translation>
    </message>
    <message>
        <source>the crew, in whatever order it is written</source>
        <translation>die Besatzung, in welcher Reihenfolge auch immer geschrieben</translation>
    </message>
    <message>
        <source>category, however it is written (K1M, MK1)</source>
        <translation>Kategorie, wie auch immer geschrieben (K1M, MK1)</translation>
    </message>
    <message>
        <source>phase of the race</source>
        <translation>Phase des Rennens</translation>
    </message>
    <message>
        <source>side on which the athlete paddles</source>
        <translation>Seite, auf der gepaddelt wird</translation>
    </message>
    <message>
        <source>place of the course</source>
        <translation>Ort der Strecke</translation>
    </message>
    <message>
        <source>title of the race</source>
        <translation>Titel des Rennens</translation>
    </message>
    <message>
        <source>event</source>
        <translation>Wettkampf</translation>
    </message>
    <message>
        <source>Race, Training or Test</source>
        <translation>Race, Training oder Test</translation>
    </message>
    <message>
        <source>kind of water</source>
        <translation>Art des Wassers</translation>
    </message>
    <message>
        <source>the file</source>
        <translation>die Datei</translation>
    </message>
    <message>
        <source>2026-05-11; also 2026-05 or 2026</source>
        <translation>2026-05-11; auch 2026-05 oder 2026</translation>
    </message>
    <message>
        <source>year of the date</source>
        <translation>Jahr des Datums</translation>
    </message>
    <message>
        <source>month of the date, 1 to 12</source>
        <translation>Monat des Datums, 1 bis 12</translation>
    </message>
    <message>
        <source>of the run, with penalties</source>
        <translation>des Laufs, mit Strafen</translation>
    </message>
    <message>
        <source>of the run, without penalties</source>
        <translation>des Laufs, ohne Strafen</translation>
    </message>
    <message>
        <source>penalty seconds of the run</source>
        <translation>Strafsekunden des Laufs</translation>
    </message>
    <message>
        <source>place among the runs that compete</source>
        <translation>Platz unter den Läufen, die gegeneinander zählen</translation>
    </message>
    <message>
        <source>position in the official list</source>
        <translation>Stelle in der offiziellen Liste</translation>
    </message>
    <message>
        <source>number of the run in its file, from 0</source>
        <translation>Nummer des Laufs in seiner Datei, ab 0</translation>
    </message>
    <message>
        <source>sprint time</source>
        <translation>Sprintzeit</translation>
    </message>
    <message>
        <source>of the section, where both its marks were taken</source>
        <translation>des Abschnitts, wo beide Marken genommen wurden</translation>
    </message>
    <message>
        <source>from entrance to exit</source>
        <translation>von der Einfahrt bis zur Ausfahrt</translation>
    </message>
    <message>
        <source>from entrance to the pole line</source>
        <translation>von der Einfahrt bis zur Torlinie</translation>
    </message>
    <message>
        <source>from the pole line to the exit</source>
        <translation>von der Torlinie bis zur Ausfahrt</translation>
    </message>
    <message>
        <source>number of the gate</source>
        <translation>Nummer des Tors</translation>
    </message>
    <message>
        <source>number of the section, from 1</source>
        <translation>Nummer des Abschnitts, ab 1</translation>
    </message>
    <message>
        <source>up for a section with an upstream gate, or down</source>
        <translation>up für einen Abschnitt mit einem Aufwärtstor, sonst down</translation>
    </message>
    <message>
        <source>up: only upstream gates are timed by themselves</source>
        <translation>up: nur Aufwärtstore werden einzeln gestoppt</translation>
    </message>
    <message>
        <source>up for an upstream gate, or down</source>
        <translation>up für ein Aufwärtstor, sonst down</translation>
    </message>
    <message>
        <source>penalty seconds in the section</source>
        <translation>Strafsekunden im Abschnitt</translation>
    </message>
    <message>
        <source>strokes on the left</source>
        <translation>Schläge links</translation>
    </message>
    <message>
        <source>strokes on the right</source>
        <translation>Schläge rechts</translation>
    </message>
    <message>
        <source>strokes marked in the section</source>
        <translation>im Abschnitt markierte Schläge</translation>
    </message>
    <message>
        <source>side to which the boat turns</source>
        <translation>Seite, zu der das Boot dreht</translation>
    </message>
    <message>
        <source>how the gate is paddled</source>
        <translation>wie das Tor gefahren wird</translation>
    </message>
    <message>
        <source>of the penalty</source>
        <translation>der Strafe</translation>
    </message>
    <message>
        <source>touch, or how the gate was missed</source>
        <translation>Berührung, oder wie es zum Torfehler kam</translation>
    </message>
    <message>
        <source>kind of gate</source>
        <translation>Art des Tors</translation>
    </message>
    <message>
        <source>which pole</source>
        <translation>welcher Torstab</translation>
    </message>
    <message>
        <source>what touched, or how the gate was missed</source>
        <translation>was berührte, oder wie es zum Torfehler kam</translation>
    </message>
    <message>
        <source>where in the gate</source>
        <translation>wo im Tor</translation>
    </message>
    <message>
        <source>how the boat was moving</source>
        <translation>wie sich das Boot bewegte</translation>
    </message>
    <message>
        <source>how the gate was paddled</source>
        <translation>wie das Tor gefahren wurde</translation>
    </message>
    <message>
        <source>where the athlete looked</source>
        <translation>wohin der Blick ging</translation>
    </message>
    <message>
        <source>below 0 for time gained</source>
        <translation>unter 0 bei gewonnener Zeit</translation>
    </message>
    <message>
        <source>of the other run&apos;s time</source>
        <translation>der Zeit des anderen Laufs</translation>
    </message>
    <message>
        <source>against whom</source>
        <translation>gegen wen</translation>
    </message>
    <message>
        <source>reasons noted</source>
        <translation>notierte Gründe</translation>
    </message>
    <message>
        <source>combination of gates</source>
        <translation>Torkombination</translation>
    </message>
    <message>
        <source>part of the gate</source>
        <translation>Teil des Tors</translation>
    </message>
    <message>
        <source>how the stretch was paddled</source>
        <translation>wie das Stück gefahren wurde</translation>
    </message>
    <message>
        <source>the water there</source>
        <translation>das Wasser dort</translation>
    </message>
    <message>
        <source>the word of a mark</source>
        <translation>das Wort einer Markierung</translation>
    </message>
    <message>
        <source>Behind &quot;{}&quot; stands &quot;{}&quot;, which is a condition.</source>
        <translation>Hinter „{}“ steht „{}“, das ist eine Bedingung.</translation>
    </message>
    <message>
        <source>Only values can stand here.</source>
        <translation>Hier können nur Werte stehen.</translation>
    </message>
    <message>
        <source>One limit stands here, such as 4 or {}4.</source>
        <translation>Hier steht eine Grenze, wie 4 oder {}4.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; needs the name of a column.</source>
        <translation>„{}“ braucht den Namen einer Spalte.</translation>
    </message>
    <message>
        <source>Before a value stands the name of its column, such as athlete or text.</source>
        <translation>Vor einem Wert steht der Name seiner Spalte, wie athlete oder text.</translation>
    </message>
    <message>
        <source>Before &quot;{}&quot; stands the name of a column.</source>
        <translation>Vor „{}“ steht der Name einer Spalte.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; needs a value.</source>
        <translation>„{}“ braucht einen Wert.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; needs a value; one of our own words stands in quotes.</source>
        <translation>„{}“ braucht einen Wert; eines unserer eigenen Wörter steht in Anführungszeichen.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is a text: it is compared by = and != alone.</source>
        <translation>„{}“ ist ein Text: verglichen wird nur mit = und !=.</translation>
    </message>
    <message>
        <source>There is nothing in the quotes.</source>
        <translation>In den Anführungszeichen steht nichts.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; has words for values: it is compared by = and != alone.</source>
        <translation>„{}“ hat Wörter als Werte: verglichen wird nur mit = und !=.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no day: write 2026-05-11, or 2026-05, or 2026.</source>
        <translation>„{}“ ist kein Tag: schreiben Sie 2026-05-11, 2026-05 oder 2026.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no {}.</source>
        <translation>„{}“ ist kein Wert von {}.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number.</source>
        <translation>„{}“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is not told of {}, but of {}.</source>
        <translation>„{}“ gibt es nicht bei {}, sondern bei {}.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; means nothing in a query about {}.</source>
        <translation>„{}“ bedeutet in einer Abfrage über {} nichts.</translation>
    </message>
    <message>
        <source>A value of several words stands in quotes.</source>
        <translation>Ein Wert aus mehreren Wörtern steht in Anführungszeichen.</translation>
    </message>
    <message>
        <source>Nearly every row has a {} of its own.</source>
        <translation>Fast jede Zeile hat einen eigenen Wert von {}.</translation>
    </message>
    <message>
        <source>Groups are made by three columns at most.</source>
        <translation>Gruppen entstehen aus höchstens drei Spalten.</translation>
    </message>
    <message>
        <source>There is one &quot;best&quot; already.</source>
        <translation>Es gibt schon ein „best“.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number, of which one could be the best.</source>
        <translation>„{}“ ist keine Zahl, von der eine die beste sein könnte.</translation>
    </message>
    <message>
        <source>There is one &quot;sort&quot; already.</source>
        <translation>Es gibt schon ein „sort“.</translation>
    </message>
    <message>
        <source>Groups are sorted by what makes them, or by count, best, mean or median.</source>
        <translation>Gruppen werden danach sortiert, woraus sie entstehen, oder nach count, best, mean oder median.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number of rows.</source>
        <translation>„{}“ ist keine Anzahl von Zeilen.</translation>
    </message>
    <message>
        <source>The quote is not closed.</source>
        <translation>Das Anführungszeichen ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>&quot;!&quot; stands only in &quot;!=&quot;.</source>
        <translation>„!“ steht nur in „!=“.</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>der Speicher reicht dafür nicht</translation>
    </message>
    <message>
        <source>There is no bib.</source>
        <translation>Es gibt keine Startnummer.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no bib.</source>
        <translation>„{}“ ist keine Startnummer.</translation>
    </message>
    <message>
        <source>The official results of the file have no bib for this crew.</source>
        <translation>Die offiziellen Ergebnisse der Datei haben für diese Besatzung keine Startnummer.</translation>
    </message>
    <message>
        <source>No bib was found in {}. A list needs a column called &quot;bib&quot;; a split file needs its official results.</source>
        <translation>In {} wurde keine Startnummer gefunden. Eine Liste braucht eine Spalte namens „bib“; eine Zwischenzeitdatei braucht ihre offiziellen Ergebnisse.</translation>
    </message>
    <message>
        <source>The answer is no WebDAV folder.</source>
        <translation>Die Antwort ist kein WebDAV-Ordner.</translation>
    </message>
    <message>
        <source>The answer is no WebDAV folder: {}</source>
        <translation>Die Antwort ist kein WebDAV-Ordner: {}</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>The folder takes no file: {}</source>
        <translation>Der Ordner nimmt keine Datei an: {}</translation>
    </message>
    <message>
        <source>The server sends more than it announced.</source>
        <translation>Der Server sendet mehr, als er ankündigte.</translation>
    </message>
    <message>
        <source>The job has brought 20 GB, which is the most in one go.</source>
        <translation>Der Auftrag hat 20 GB gebracht, mehr geht nicht auf einmal.</translation>
    </message>
    <message>
        <source>The disk does not take the file: {}</source>
        <translation>Das Laufwerk nimmt die Datei nicht an: {}</translation>
    </message>
    <message>
        <source>The file broke off before its end.</source>
        <translation>Die Datei brach vor ihrem Ende ab.</translation>
    </message>
    <message>
        <source>The server sent nothing.</source>
        <translation>Der Server sendete nichts.</translation>
    </message>
    <message>
        <source>The disk does not take the file.</source>
        <translation>Das Laufwerk nimmt die Datei nicht an.</translation>
    </message>
    <message numerus="yes">
        <source>After {} tries it was given up for now.</source>
        <translation>
            <numerusform>Nach {} Versuch wurde es vorerst aufgegeben.</numerusform>
            <numerusform>Nach {} Versuchen wurde es vorerst aufgegeben.</numerusform>
        </translation>
    </message>
    <message>
        <source>it has no pictures</source>
        <translation>er hat keine Bilder</translation>
    </message>
    <message>
        <source>What the server sent is no film: {}.</source>
        <translation>Was der Server sendete, ist kein Film: {}.</translation>
    </message>
    <message>
        <source>The pieces of the film do not fit together: {}.</source>
        <translation>Die Stücke des Films passen nicht zusammen: {}.</translation>
    </message>
    <message>
        <source>The pieces of the film could not be put together: {}.</source>
        <translation>Die Stücke des Films konnten nicht zusammengefügt werden: {}.</translation>
    </message>
    <message>
        <source>The playlists lead from one to the other without an end.</source>
        <translation>Die Wiedergabelisten führen endlos von einer zur anderen.</translation>
    </message>
    <message>
        <source>Pieces of the film lie on {}, which is not ticked.</source>
        <translation>Stücke des Films liegen auf {}, das nicht abgehakt ist.</translation>
    </message>
    <message>
        <source>A piece of the film is missing: {}</source>
        <translation>Ein Stück des Films fehlt: {}</translation>
    </message>
    <message>
        <source>The list is no JSON: {}</source>
        <translation>Die Liste ist kein JSON: {}</translation>
    </message>
    <message>
        <source>This playlist is one film in pieces and no list of films. Give its address with {bib} in it.</source>
        <translation>Diese Wiedergabeliste ist ein Film in Stücken und keine Liste von Filmen. Geben Sie ihre Adresse mit {bib} darin an.</translation>
    </message>
    <message>
        <source>Another program has changed it.</source>
        <translation>Ein anderes Programm hat sie geändert.</translation>
    </message>
    <message>
        <source>The server has no such list.</source>
        <translation>Der Server hat diese Liste nicht.</translation>
    </message>
    <message>
        <source>The address is there and names no film.</source>
        <translation>Die Adresse gibt es, sie nennt aber keinen Film.</translation>
    </message>
    <message>
        <source>The playlist has no piece of a film.</source>
        <translation>Die Wiedergabeliste hat kein Stück eines Films.</translation>
    </message>
    <message>
        <source>The film is still growing: its playlist has no end yet.</source>
        <translation>Der Film wächst noch: seine Wiedergabeliste hat noch kein Ende.</translation>
    </message>
    <message>
        <source>The playlist leads to something else than a server: {}</source>
        <translation>Die Wiedergabeliste führt zu etwas anderem als einem Server: {}</translation>
    </message>
    <message>
        <source>The playlist does not end: it has more than {} pieces.</source>
        <translation>Die Wiedergabeliste endet nicht: sie hat mehr als {} Stücke.</translation>
    </message>
    <message>
        <source>The film is protected by &quot;{}&quot;, which only its maker&apos;s programs open.</source>
        <translation>Der Film ist durch „{}“ geschützt, was nur Programme des Herstellers öffnen.</translation>
    </message>
    <message>
        <source>The server sent a part that nobody asked for.</source>
        <translation>Der Server sendete einen Teil, den niemand wollte.</translation>
    </message>
    <message>
        <source>The file was changed meanwhile.</source>
        <translation>Die Datei wurde inzwischen geändert.</translation>
    </message>
    <message>
        <source>The server went on from another place than it was asked to.</source>
        <translation>Der Server machte an einer anderen Stelle weiter als verlangt.</translation>
    </message>
    <message>
        <source>The server packs the file in a way that was not asked for.</source>
        <translation>Der Server packt die Datei auf eine Weise, die nicht verlangt war.</translation>
    </message>
    <message>
        <source>The server has no more of the file.</source>
        <translation>Der Server hat nicht mehr von der Datei.</translation>
    </message>
    <message>
        <source>Not there yet.</source>
        <translation>Noch nicht da.</translation>
    </message>
    <message>
        <source>The server asks for fewer questions.</source>
        <translation>Der Server bittet um weniger Anfragen.</translation>
    </message>
    <message>
        <source>The server leads in a circle.</source>
        <translation>Der Server führt im Kreis.</translation>
    </message>
    <message>
        <source>The server leads to an address that is none.</source>
        <translation>Der Server verweist auf eine Adresse, die keine ist.</translation>
    </message>
    <message>
        <source>The server leads from https to http, which anybody can read and change.</source>
        <translation>Der Server verweist von https auf http, was jeder lesen und ändern kann.</translation>
    </message>
    <message>
        <source>The server leads to another one, {}, which is not ticked.</source>
        <translation>Der Server verweist auf einen anderen, {}, der nicht abgehakt ist.</translation>
    </message>
    <message>
        <source>The film could not be given its name: {}</source>
        <translation>Der Film konnte seinen Namen nicht bekommen: {}</translation>
    </message>
    <message>
        <source>The film is not what its checksum says.</source>
        <translation>Der Film ist nicht, was seine Prüfsumme sagt.</translation>
    </message>
    <message>
        <source>The answer is longer than any list is.</source>
        <translation>Die Antwort ist länger als jede Liste.</translation>
    </message>
    <message>
        <source>A link in the folder leads out of it, and is not followed.</source>
        <translation>Eine Verknüpfung im Ordner führt aus ihm hinaus; ihr wird nicht gefolgt.</translation>
    </message>
    <message>
        <source>The folder could not be made on the server: {}</source>
        <translation>Der Ordner konnte auf dem Server nicht angelegt werden: {}</translation>
    </message>
    <message>
        <source>The server does not know its own mark of this file again.</source>
        <translation>Der Server erkennt sein eigenes Kennzeichen dieser Datei nicht wieder.</translation>
    </message>
    <message>
        <source>a name of small letters, digits and dashes was expected</source>
        <translation>ein Name aus Kleinbuchstaben, Ziffern und Strichen wurde erwartet</translation>
    </message>
    <message>
        <source>an https address was expected</source>
        <translation>eine https-Adresse wurde erwartet</translation>
    </message>
    <message>
        <source>it does not end in the plain name of a file</source>
        <translation>sie endet nicht mit dem schlichten Namen einer Datei</translation>
    </message>
    <message>
        <source>1 to {} bytes were expected</source>
        <translation>1 bis {} Byte wurden erwartet</translation>
    </message>
    <message>
        <source>64 small hexadecimal digits were expected</source>
        <translation>64 kleine hexadezimale Ziffern wurden erwartet</translation>
    </message>
    <message>
        <source>it is longer than any manifest is</source>
        <translation>sie ist länger als jede Liste von Versionen</translation>
    </message>
    <message>
        <source>three numbers such as 0.32.0 were expected</source>
        <translation>drei Zahlen wie 0.32.0 wurden erwartet</translation>
    </message>
    <message>
        <source>a date such as 2026-11-22 was expected</source>
        <translation>ein Datum wie 2026-11-22 wurde erwartet</translation>
    </message>
    <message>
        <source>a plain text of at most 100,000 bytes was expected</source>
        <translation>ein reiner Text von höchstens 100&#xa0;000 Byte wurde erwartet</translation>
    </message>
    <message>
        <source>there is a file for it already</source>
        <translation>dafür gibt es schon eine Datei</translation>
    </message>
    <message>
        <source>The address of the file is none that is asked.</source>
        <translation>Die Adresse der Datei ist keine, die gefragt wird.</translation>
    </message>
    <message>
        <source>The folder takes no file: {}.</source>
        <translation>Der Ordner nimmt keine Datei an: {}.</translation>
    </message>
    <message>
        <source>The server sent another part of the file than it was asked for.</source>
        <translation>Der Server sendete einen anderen Teil der Datei als verlangt.</translation>
    </message>
    <message>
        <source>The file on the server is not as long as the list of versions says.</source>
        <translation>Die Datei auf dem Server ist nicht so lang, wie die Liste der Versionen sagt.</translation>
    </message>
    <message>
        <source>The disk does not take the file: {}.</source>
        <translation>Das Laufwerk nimmt die Datei nicht an: {}.</translation>
    </message>
    <message>
        <source>The file on the server is longer than the list of versions says. It was deleted.</source>
        <translation>Die Datei auf dem Server ist länger, als die Liste der Versionen sagt. Sie wurde gelöscht.</translation>
    </message>
    <message>
        <source>The file is not the one of the list of versions: it is damaged, or was changed. It was deleted.</source>
        <translation>Die Datei ist nicht die der Liste der Versionen: sie ist beschädigt oder wurde geändert. Sie wurde gelöscht.</translation>
    </message>
    <message numerus="yes">
        <source>It was given up after {} tries.</source>
        <translation>
            <numerusform>Nach {} Versuch wurde es aufgegeben.</numerusform>
            <numerusform>Nach {} Versuchen wurde es aufgegeben.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list of versions is longer than it may be.</source>
        <translation>Die Liste der Versionen ist länger als erlaubt.</translation>
    </message>
    <message>
        <source>The list of versions is not on the server.</source>
        <translation>Die Liste der Versionen ist nicht auf dem Server.</translation>
    </message>
    <message>
        <source>The list of versions lies on another server, {}, which is not asked.</source>
        <translation>Die Liste der Versionen liegt auf einem anderen Server, {}, der nicht gefragt wird.</translation>
    </message>
    <message>
        <source>The list of versions is not given out by the server.</source>
        <translation>Die Liste der Versionen wird vom Server nicht herausgegeben.</translation>
    </message>
    <message>
        <source>The signature of the list of versions is longer than it may be.</source>
        <translation>Die Signatur der Liste der Versionen ist länger als erlaubt.</translation>
    </message>
    <message>
        <source>The signature of the list of versions is not on the server.</source>
        <translation>Die Signatur der Liste der Versionen ist nicht auf dem Server.</translation>
    </message>
    <message>
        <source>The signature of the list of versions lies on another server, {}, which is not asked.</source>
        <translation>Die Signatur der Liste der Versionen liegt auf einem anderen Server, {}, der nicht gefragt wird.</translation>
    </message>
    <message>
        <source>The signature of the list of versions is not given out by the server.</source>
        <translation>Die Signatur der Liste der Versionen wird vom Server nicht herausgegeben.</translation>
    </message>
    <message>
        <source>The file is longer than it may be.</source>
        <translation>Die Datei ist länger als erlaubt.</translation>
    </message>
    <message>
        <source>The file is not on the server.</source>
        <translation>Die Datei ist nicht auf dem Server.</translation>
    </message>
    <message>
        <source>The file lies on another server, {}, which is not asked.</source>
        <translation>Die Datei liegt auf einem anderen Server, {}, der nicht gefragt wird.</translation>
    </message>
    <message>
        <source>The file is not given out by the server.</source>
        <translation>Die Datei wird vom Server nicht herausgegeben.</translation>
    </message>
    <message>
        <source>The list of versions is not signed. It is not used.</source>
        <translation>Die Liste der Versionen ist nicht signiert. Sie wird nicht benutzt.</translation>
    </message>
    <message>
        <source>The list of versions is not signed by who makes Kavela: it is damaged, or somebody else&apos;s. It is not used.</source>
        <translation>Die Liste der Versionen ist nicht von den Machern von Kavela signiert: sie ist beschädigt oder von jemand anderem. Sie wird nicht benutzt.</translation>
    </message>
    <message>
        <source>The list of versions is damaged and not used: {}.</source>
        <translation>Die Liste der Versionen ist beschädigt und wird nicht benutzt: {}.</translation>
    </message>
    <message>
        <source>The server offers version {}, which is older than {}, the one you have. It is not used.</source>
        <translation>Der Server bietet Version {} an, die älter ist als die installierte {}. Sie wird nicht benutzt.</translation>
    </message>
    <message>
        <source>The server offers version {}, which is older than {}, which it had before. It is not used.</source>
        <translation>Der Server bietet Version {} an, die älter ist als {}, die er vorher hatte. Sie wird nicht benutzt.</translation>
    </message>
    <message>
        <source>Version {} is the newest one.</source>
        <translation>Version {} ist die neueste.</translation>
    </message>
    <message>
        <source>There is a version {}, but no file of it for this computer ({}).</source>
        <translation>Es gibt eine Version {}, aber keine Datei davon für diesen Computer ({}).</translation>
    </message>
    <message>
        <source>no decoder for {}</source>
        <translation>kein Dekoder für {}</translation>
    </message>
    <message>
        <source>the film is cut off or damaged: the list of its frames is missing</source>
        <translation>der Film ist abgeschnitten oder beschädigt: die Liste seiner Bilder fehlt</translation>
    </message>
    <message>
        <source>this is no video that can be read, or it is damaged</source>
        <translation>das ist kein lesbares Video, oder es ist beschädigt</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Das ist ein Ordner</translation>
    </message>
    <message>
        <source>there is no video in this file</source>
        <translation>in dieser Datei ist kein Video</translation>
    </message>
    <message>
        <source>there is no sound in this film</source>
        <translation>in diesem Film ist kein Ton</translation>
    </message>
    <message>
        <source>there is no video in this file, only a picture</source>
        <translation>in dieser Datei ist kein Video, nur ein Bild</translation>
    </message>
    <message>
        <source>the film has no clock</source>
        <translation>der Film hat keine Uhr</translation>
    </message>
    <message>
        <source>the film could not be read any further</source>
        <translation>der Film konnte nicht weiter gelesen werden</translation>
    </message>
    <message>
        <source>{:.3f} s</source>
        <translation>{:.3f} s</translation>
    </message>
    <message numerus="yes">
        <source>The file is cut off: {} frames missing at its end.</source>
        <translation>
            <numerusform>Die Datei ist abgeschnitten: am Ende fehlt {} Bild.</numerusform>
            <numerusform>Die Datei ist abgeschnitten: am Ende fehlen {} Bilder.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file is cut off or damaged: its end is missing.</source>
        <translation>Die Datei ist abgeschnitten oder beschädigt: ihr Ende fehlt.</translation>
    </message>
    <message>
        <source>The file does not say when each frame was shown: times are estimated from its frame rate.</source>
        <translation>Die Datei sagt nicht, wann jedes Bild gezeigt wurde: die Zeiten sind aus der Bildrate geschätzt.</translation>
    </message>
    <message numerus="yes">
        <source>{} frames left out that had the time of another frame.</source>
        <translation>
            <numerusform>{} Bild mit der Zeit eines anderen ausgelassen.</numerusform>
            <numerusform>{} Bilder mit der Zeit eines anderen ausgelassen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The frame rate varies, from {} to {} frames a second.</source>
        <translation>Die Bildrate schwankt, von {} bis {} Bildern je Sekunde.</translation>
    </message>
    <message numerus="yes">
        <source>{} gaps</source>
        <translation>
            <numerusform>{} Lücke</numerusform>
            <numerusform>{} Lücken</numerusform>
        </translation>
    </message>
    <message>
        <source>{} where frames are missing, the longest of {} at {}.</source>
        <translation>{}, wo Bilder fehlen, die längste von {} bei {}.</translation>
    </message>
    <message>
        <source>About {} of {} frames repeat the picture before them.</source>
        <translation>Etwa {} von {} Bildern wiederholen das Bild davor.</translation>
    </message>
    <message>
        <source>Slow motion: recorded at {} frames a second, plays at {}. Times taken from it are {} times too long.</source>
        <translation>Zeitlupe: aufgenommen mit {} Bildern je Sekunde, abgespielt mit {}. Zeiten daraus sind um das {}-Fache zu lang.</translation>
    </message>
    <message>
        <source>The film starts at {}, not at 0.</source>
        <translation>Der Film beginnt bei {}, nicht bei 0.</translation>
    </message>
    <message>
        <source>The file has no list of its frames: it had to be read from end to end.</source>
        <translation>Die Datei hat keine Liste ihrer Bilder: sie musste ganz gelesen werden.</translation>
    </message>
    <message>
        <source>Recorded turned by {}°, and shown upright.</source>
        <translation>Um {}° gedreht aufgenommen, und aufrecht gezeigt.</translation>
    </message>
    <message>
        <source>Interlaced: each frame holds two moments half a frame apart.</source>
        <translation>Zeilensprung: jedes Bild enthält zwei Augenblicke, ein halbes Bild auseinander.</translation>
    </message>
    <message>
        <source>{} bits a colour, shown with 8.</source>
        <translation>{} Bit je Farbe, gezeigt mit 8.</translation>
    </message>
    <message>
        <source>no frame of the video can be read</source>
        <translation>kein Bild des Videos kann gelesen werden</translation>
    </message>
    <message>
        <source>no frame of the video can be decoded</source>
        <translation>kein Bild des Videos kann dekodiert werden</translation>
    </message>
    <message>
        <source>The film could not be encoded: {}</source>
        <translation>Der Film konnte nicht kodiert werden: {}</translation>
    </message>
    <message>
        <source>A picture could not be made: {}</source>
        <translation>Ein Bild konnte nicht gemacht werden: {}</translation>
    </message>
    <message>
        <source>Films cannot be made on this computer: the installed libavcodec has no encoder for H.264 (libx264).</source>
        <translation>Auf diesem Computer können keine Filme gemacht werden: die installierte libavcodec hat keinen Kodierer für H.264 (libx264).</translation>
    </message>
    <message>
        <source>Films with sound cannot be made on this computer: the installed libavcodec has no encoder for AAC.</source>
        <translation>Auf diesem Computer können keine Filme mit Ton gemacht werden: die installierte libavcodec hat keinen Kodierer für AAC.</translation>
    </message>
    <message>
        <source>The encoder for H.264 could not be started: {}</source>
        <translation>Der Kodierer für H.264 konnte nicht gestartet werden: {}</translation>
    </message>
    <message>
        <source>The encoder for sound could not be started: {}</source>
        <translation>Der Kodierer für den Ton konnte nicht gestartet werden: {}</translation>
    </message>
    <message>
        <source>Sound could not be encoded: {}</source>
        <translation>Der Ton konnte nicht kodiert werden: {}</translation>
    </message>
    <message>
        <source>The film could not be ended: {}</source>
        <translation>Der Film konnte nicht abgeschlossen werden: {}</translation>
    </message>
    <message>
        <source>Films cannot be written on this computer: {}</source>
        <translation>Auf diesem Computer können keine Filme geschrieben werden: {}</translation>
    </message>
    <message>
        <source>The film could not be put together: {}</source>
        <translation>Der Film konnte nicht zusammengefügt werden: {}</translation>
    </message>
    <message>
        <source>The film could not be begun: {}</source>
        <translation>Der Film konnte nicht begonnen werden: {}</translation>
    </message>
    <message>
        <source>the piece could not be found in the film</source>
        <translation>das Stück wurde im Film nicht gefunden</translation>
    </message>
    <message>
        <source>it was written by a newer release</source>
        <translation>das schrieb eine neuere Version</translation>
    </message>
    <message>
        <source>rows and columns from 1 to 2000 were expected</source>
        <translation>1 bis 2000 Zeilen und Spalten wurden erwartet</translation>
    </message>
    <message>
        <source>&quot;accepted&quot;, &quot;moved&quot;, &quot;refused&quot; or &quot;missed&quot; expected</source>
        <translation>„accepted“, „moved“, „refused“ oder „missed“ wurde erwartet</translation>
    </message>
    <message>
        <source>there are more bands than a recording holds</source>
        <translation>es sind mehr Streifen, als eine Aufzeichnung fasst</translation>
    </message>
    <message>
        <source>it is no recording of bands, or damaged: {}</source>
        <translation>das ist keine Aufzeichnung von Streifen, oder eine beschädigte: {}</translation>
    </message>
    <message>
        <source>the recording could not be put together</source>
        <translation>die Aufzeichnung konnte nicht zusammengefügt werden</translation>
    </message>
    <message>
        <source>it is no recording of bands: {} is missing</source>
        <translation>das ist keine Aufzeichnung von Streifen: {} fehlt</translation>
    </message>
    <message>
        <source>the recording is damaged: {} cannot be read</source>
        <translation>die Aufzeichnung ist beschädigt: {} kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the recording could not be put together: {}</source>
        <translation>die Aufzeichnung konnte nicht zusammengefügt werden: {}</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>sie kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>each needs its bands</source>
        <translation>jeder braucht seine Streifen</translation>
    </message>
    <message>
        <source>their number is not that of the bands</source>
        <translation>ihre Zahl ist nicht die der Streifen</translation>
    </message>
    <message>
        <source>the recording is larger than any that is written</source>
        <translation>die Aufzeichnung ist größer als jede, die geschrieben wird</translation>
    </message>
    <message>
        <source>there is no proposal or correction to be saved</source>
        <translation>es gibt keinen Vorschlag und keine Korrektur zu speichern</translation>
    </message>
    <message>
        <source>The search for boats was not measured.</source>
        <translation>Die Suche nach Booten wurde nicht gemessen.</translation>
    </message>
    <message>
        <source>Measured on {} scenes of real water ({} runs, {:.0f} minutes): {:.1f} % of the runs found (asked: {:.0f} %), {:.1f} false proposals an hour (asked: at most {:g}), an error of at most {:.1f} frames for 95 of 100 (asked: {:g}).</source>
        <translation>Gemessen an {} Szenen auf echtem Wasser (Läufe: {}, Minuten: {:.0f}): {:.1f}&#xa0;% der Läufe gefunden (verlangt: {:.0f}&#xa0;%), {:.1f} falsche Vorschläge je Stunde (verlangt: höchstens {:g}), ein Fehler von höchstens {:.1f} Bildern bei 95 von 100 (verlangt: {:g}).</translation>
    </message>
    <message>
        <source>Measured on {} scenes of rendered water ({} runs, {:.0f} minutes): {:.1f} % of the runs found (asked: {:.0f} %), {:.1f} false proposals an hour (asked: at most {:g}), an error of at most {:.1f} frames for 95 of 100 (asked: {:g}).</source>
        <translation>Gemessen an {} Szenen auf berechnetem Wasser (Läufe: {}, Minuten: {:.0f}): {:.1f}&#xa0;% der Läufe gefunden (verlangt: {:.0f}&#xa0;%), {:.1f} falsche Vorschläge je Stunde (verlangt: höchstens {:g}), ein Fehler von höchstens {:.1f} Bildern bei 95 von 100 (verlangt: {:g}).</translation>
    </message>
    <message>
        <source>The frame of the box cannot be shown.</source>
        <translation>Das Bild des Kastens kann nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>the box round a boat has no size</source>
        <translation>der Kasten um ein Boot hat keine Größe</translation>
    </message>
    <message>
        <source>the box round a boat is larger than the picture</source>
        <translation>der Kasten um ein Boot ist größer als das Bild</translation>
    </message>
    <message>
        <source>the film has no frames from {:.2f} s to {:.2f} s</source>
        <translation>der Film hat von {:.2f} s bis {:.2f} s keine Bilder</translation>
    </message>
    <message>
        <source>The film ends early: the file is cut off.</source>
        <translation>Der Film endet zu früh: die Datei ist abgeschnitten.</translation>
    </message>
    <message>
        <source>The box is too small: it needs 8 pixels each way at least.</source>
        <translation>Der Kasten ist zu klein: er braucht in jeder Richtung mindestens 8 Pixel.</translation>
    </message>
    <message>
        <source>The box does not lie within the picture, which has {} × {} pixels.</source>
        <translation>Der Kasten liegt nicht im Bild, das {} × {} Pixel hat.</translation>
    </message>
    <message>
        <source>There is nothing in the box that could be known again: it has one colour all over.</source>
        <translation>Im Kasten ist nichts, was wiederzuerkennen wäre: er hat überall eine Farbe.</translation>
    </message>
    <message>
        <source>It is not known how the camera moved between the path and the frame of the known points. Click them in a frame of the path.</source>
        <translation>Es ist nicht bekannt, wie sich die Kamera zwischen der Bahn und dem Bild der bekannten Punkte bewegte. Klicken Sie sie in einem Bild der Bahn an.</translation>
    </message>
    <message>
        <source>version {} is of a later release</source>
        <translation>Version {} gehört zu einer späteren Programmversion</translation>
    </message>
    <message>
        <source>the line&apos;s end at {}, {} lies outside the picture of {} × {} pixels</source>
        <translation>das Ende der Linie bei {}, {} liegt außerhalb des Bildes von {} × {} Pixeln</translation>
    </message>
    <message>
        <source>the line is shorter than {} pixels</source>
        <translation>die Linie ist kürzer als {} Pixel</translation>
    </message>
    <message>
        <source>The camera was held in the hand, or nothing in the picture stands still: the search for boats needs a camera on a tripod.</source>
        <translation>Die Kamera wurde in der Hand gehalten, oder nichts im Bild steht still: die Suche nach Booten braucht eine Kamera auf einem Stativ.</translation>
    </message>
    <message numerus="yes">
        <source>{} frames could not be read and were passed over.</source>
        <translation>
            <numerusform>{} Bild konnte nicht gelesen werden und wurde übergangen.</numerusform>
            <numerusform>{} Bilder konnten nicht gelesen werden und wurden übergangen.</numerusform>
        </translation>
    </message>
    <message>
        <source>a frame from 0 on was expected</source>
        <translation>ein Bild ab 0 wurde erwartet</translation>
    </message>
    <message>
        <source>it does not lie behind the frame before</source>
        <translation>es liegt nicht hinter dem vorigen Bild</translation>
    </message>
    <message>
        <source>no film has so many frames</source>
        <translation>kein Film hat so viele Bilder</translation>
    </message>
    <message>
        <source>it lies beyond all pictures</source>
        <translation>es liegt jenseits aller Bilder</translation>
    </message>
    <message>
        <source>four known points were expected, or two for a scale only</source>
        <translation>vier bekannte Punkte wurden erwartet, oder zwei nur für einen Maßstab</translation>
    </message>
    <message>
        <source>the box has no size</source>
        <translation>der Kasten hat keine Größe</translation>
    </message>
    <message>
        <source>a size above 0 was expected</source>
        <translation>eine Größe über 0 wurde erwartet</translation>
    </message>
    <message>
        <source>it makes the picture vanish</source>
        <translation>es lässt das Bild verschwinden</translation>
    </message>
    <message>
        <source>Three of the four known points lie on a line: they have to be the corners of a field, such as the poles of two gates.</source>
        <translation>Drei der vier bekannten Punkte liegen auf einer Linie: sie müssen die Ecken eines Feldes sein, wie die Stäbe zweier Tore.</translation>
    </message>
    <message>
        <source>Metres need four known points on the water, or two for a scale only; there are {}.</source>
        <translation>Meter brauchen vier bekannte Punkte auf dem Wasser, oder zwei nur für einen Maßstab; vorhanden: {}.</translation>
    </message>
    <message>
        <source>The two known points lie on one spot.</source>
        <translation>Die zwei bekannten Punkte liegen auf einer Stelle.</translation>
    </message>
    <message>
        <source>The four known points do not fit together: no view of flat water shows them so.</source>
        <translation>Die vier bekannten Punkte passen nicht zusammen: kein Blick auf ebenes Wasser zeigt sie so.</translation>
    </message>
    <message>
        <source>The four known points do not fit together: no view of flat water shows them so. Were two of them exchanged?</source>
        <translation>Die vier bekannten Punkte passen nicht zusammen: kein Blick auf ebenes Wasser zeigt sie so. Wurden zwei vertauscht?</translation>
    </message>
    <message>
        <source>“bow” or “body” was expected</source>
        <translation>“bow” oder “body” wurde erwartet</translation>
    </message>
    <message>
        <source>The column &quot;{}&quot; is reckoned here: how the columns of the list are read decides what it holds.</source>
        <translation>Die Spalte „{}“ wird hier berechnet: Was sie enthält, hängt davon ab, wie die Spalten der Liste gelesen werden.</translation>
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
        <translation>Platz</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>To know</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>there</source>
        <translation>da</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>gescheitert</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>%1, %2:%3 left</source>
        <translation>%1, noch %2:%3</translation>
    </message>
    <message>
        <source>A film is still being composed.</source>
        <translation>Ein Film wird noch zusammengesetzt.</translation>
    </message>
    <message>
        <source>%1 films are still being composed.</source>
        <translation>%1 Filme werden noch zusammengesetzt.</translation>
    </message>
    <message>
        <source>It can go on in the background: the list of jobs (Ctrl+J in Compare films) tells how far it is.</source>
        <translation>Das kann im Hintergrund weitergehen: die Liste der Aufträge (Strg+J in Filme vergleichen) sagt, wie weit es ist.</translation>
    </message>
    <message>
        <source>Go on in the background</source>
        <translation>Im Hintergrund weiter</translation>
    </message>
    <message>
        <source>Stop it</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Stay here</source>
        <translation>Hier bleiben</translation>
    </message>
    <message>
        <source>Put together…</source>
        <translation>Wird zusammengefügt…</translation>
    </message>
    <message>
        <source>Piece %1 of %2</source>
        <translation>Stück %1 von %2</translation>
    </message>
    <message>
        <source>Checked…</source>
        <translation>Geprüft…</translation>
    </message>
    <message>
        <source>%1 %, %2 of %3</source>
        <translation>%1&#xa0;%, %2 von %3</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>✓ Fetched</source>
        <translation>✓ Geholt</translation>
    </message>
    <message>
        <source>Fetch</source>
        <translation>Holen</translation>
    </message>
    <message>
        <source>Bib</source>
        <translation>StNr</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>1 film is ticked</source>
        <translation>1 Film hat ein Häkchen</translation>
    </message>
    <message>
        <source>%1 films are ticked</source>
        <translation>%1 Filme haben ein Häkchen</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 fetched</source>
        <translation>%1 geholt</translation>
    </message>
    <message>
        <source>%1 not there yet</source>
        <translation>%1 noch nicht da</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 gescheitert</translation>
    </message>
    <message>
        <source>%1 cancelled</source>
        <translation>%1 abgebrochen</translation>
    </message>
    <message>
        <source>Move the selected mark &amp;here</source>
        <translation>Gewählte Marke &amp;hierher</translation>
    </message>
    <message>
        <source>Mark one frame &amp;earlier</source>
        <translation>Marke ein Bild &amp;früher</translation>
    </message>
    <message>
        <source>Mark one frame &amp;later</source>
        <translation>Marke ein Bild &amp;später</translation>
    </message>
    <message>
        <source>&amp;Remove the selected mark</source>
        <translation>Gewählte Marke &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Previous mark</source>
        <translation>&amp;Vorige Marke</translation>
    </message>
    <message>
        <source>&amp;Next mark</source>
        <translation>&amp;Nächste Marke</translation>
    </message>
    <message>
        <source>Nobody is called “%1” in these files.</source>
        <translation>Niemand heißt in diesen Dateien „%1“.</translation>
    </message>
    <message>
        <source>Like it: %1.</source>
        <translation>Ähnlich: %1.</translation>
    </message>
    <message>
        <source>Watched: 80 % of it was shown</source>
        <translation>Angesehen: 80&#xa0;% davon wurden gezeigt</translation>
    </message>
    <message>
        <source>Of the split file: split taking edits it</source>
        <translation>Aus der Zwischenzeitdatei: die Zwischenzeitnahme bearbeitet sie</translation>
    </message>
    <message>
        <source>Watched</source>
        <translation>Angesehen</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Minutes and seconds</source>
        <translation>Minuten und Sekunden</translation>
    </message>
    <message>
        <source>At</source>
        <translation>Bei</translation>
    </message>
    <message>
        <source>Moment of the film, minutes and seconds</source>
        <translation>Moment des Films, Minuten und Sekunden</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Markierung</translation>
    </message>
    <message>
        <source>Imported “%1”</source>
        <translation>„%1“ importiert</translation>
    </message>
    <message>
        <source>“%1” cannot be imported</source>
        <translation>„%1“ lässt sich nicht importieren</translation>
    </message>
    <message>
        <source>Watches and phones (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;All files (*)</source>
        <translation>Uhren und Telefone (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Import from a watch or a phone</source>
        <translation>Von einer Uhr oder einem Telefon importieren</translation>
    </message>
    <message>
        <source>%1 s a run</source>
        <translation>%1 s je Lauf</translation>
    </message>
    <message>
        <source>one run</source>
        <translation>ein Lauf</translation>
    </message>
    <message>
        <source>%1 runs</source>
        <translation>%1 Läufe</translation>
    </message>
    <message>
        <source>Where most was lost</source>
        <translation>Wo am meisten verloren ging</translation>
    </message>
    <message>
        <source>Seconds lost</source>
        <translation>Verlorene Sekunden</translation>
    </message>
    <message>
        <source>Of all that was lost, %</source>
        <translation>Von allem Verlust, %</translation>
    </message>
    <message>
        <source>No section was slower than the reference&apos;s.</source>
        <translation>Kein Abschnitt war langsamer als der der Referenz.</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Verloren</translation>
    </message>
    <message>
        <source>Together, %</source>
        <translation>Zusammen, %</translation>
    </message>
    <message>
        <source>The gap along the course</source>
        <translation>Der Rückstand entlang der Strecke</translation>
    </message>
    <message>
        <source>After section</source>
        <translation>Nach Abschnitt</translation>
    </message>
    <message>
        <source>Seconds behind, without penalties</source>
        <translation>Sekunden Rückstand, ohne Strafen</translation>
    </message>
    <message>
        <source>result %1</source>
        <translation>Ergebnis %1</translation>
    </message>
    <message>
        <source>Lost by what it is lost in</source>
        <translation>Verlust nach dem, worin er entstand</translation>
    </message>
    <message>
        <source>Of the reference&apos;s time, %</source>
        <translation>Von der Zeit der Referenz, %</translation>
    </message>
    <message>
        <source>Lost, 90 %</source>
        <translation>Verlust, 90&#xa0;%</translation>
    </message>
    <message>
        <source>No loss</source>
        <translation>Kein Verlust</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Nach</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>Lost, %</source>
        <translation>Verlust, %</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>A run, s</source>
        <translation>Je Lauf, s</translation>
    </message>
    <message>
        <source>No row loses time for sure.</source>
        <translation>Keine Zeile verliert sicher Zeit.</translation>
    </message>
    <message>
        <source>Most for sure: %1 %2, %3 s a run.</source>
        <translation>Am meisten sicher: %1 %2, %3 s je Lauf.</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Gate %1 of the section</source>
        <translation>Tor %1 des Abschnitts</translation>
    </message>
    <message>
        <source>Lost in an upstream gate of the section</source>
        <translation>Verlust in einem Aufwärtstor des Abschnitts</translation>
    </message>
    <message>
        <source>%1:  %2</source>
        <translation>%1:  %2</translation>
    </message>
    <message>
        <source>upstream</source>
        <translation>aufwärts</translation>
    </message>
    <message>
        <source>downstream</source>
        <translation>abwärts</translation>
    </message>
    <message>
        <source>several sections</source>
        <translation>mehrere Abschnitte</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>a race without a name</source>
        <translation>ein Rennen ohne Namen</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Lauf %1</translation>
    </message>
    <message>
        <source>winner</source>
        <translation>Sieger</translation>
    </message>
    <message>
        <source>fastest paddling</source>
        <translation>schnellste Fahrzeit</translation>
    </message>
    <message>
        <source>ideal run</source>
        <translation>Ideallauf</translation>
    </message>
    <message>
        <source>median of the finalists</source>
        <translation>Median der Finalisten</translation>
    </message>
    <message>
        <source>own best other run</source>
        <translation>eigener bester anderer Lauf</translation>
    </message>
    <message>
        <source>a rival</source>
        <translation>ein Rivale</translation>
    </message>
    <message>
        <source>Open a race to see where time is lost.</source>
        <translation>Ein Rennen öffnen, um zu sehen, wo Zeit verloren geht.</translation>
    </message>
    <message>
        <source>The crew has no other whole run here to be held against. Choose another reference.</source>
        <translation>Die Besatzung hat hier keinen anderen ganzen Lauf zum Vergleich. Eine andere Referenz wählen.</translation>
    </message>
    <message>
        <source>There is no %1 here to hold the run against. Choose another reference.</source>
        <translation>Zum Vergleich fehlt hier: %1. Eine andere Referenz wählen.</translation>
    </message>
    <message>
        <source>The two have no section in common that is timed.</source>
        <translation>Die beiden haben keinen gemeinsamen Abschnitt mit Zeit.</translation>
    </message>
    <message>
        <source>%1: nothing to be held against</source>
        <translation>%1: nichts zum Vergleich</translation>
    </message>
    <message>
        <source>%1  %2 on %3</source>
        <translation>%1  %2 auf %3</translation>
    </message>
    <message>
        <source>%1: no section in common with %2</source>
        <translation>%1: kein Abschnitt gemeinsam mit %2</translation>
    </message>
    <message>
        <source>%1  %2 on %3 in %4 (no total)</source>
        <translation>%1  %2 auf %3 in %4 (keine Gesamtzeit)</translation>
    </message>
    <message>
        <source>Explained by notes: %1 of %2 (%3 %)</source>
        <translation>Durch Notizen erklärt: %1 von %2 (%3&#xa0;%)</translation>
    </message>
    <message>
        <source>Most was lost in %1: %2 s of %3.</source>
        <translation>Am meisten ging in %1 verloren: %2 s von %3.</translation>
    </message>
    <message>
        <source>Penalties make %1 of it.</source>
        <translation>Strafen machen davon %1 aus.</translation>
    </message>
    <message>
        <source>All %1 of the slower sections are needed to explain most of the loss.</source>
        <translation>Alle %1 langsameren Abschnitte sind nötig, um das meiste des Verlusts zu erklären.</translation>
    </message>
    <message>
        <source>%1 alone makes %2 % of what was lost in slower sections.</source>
        <translation>%1 allein macht %2&#xa0;% des Verlusts in langsameren Abschnitten aus.</translation>
    </message>
    <message>
        <source>%1 of %2 slower sections make %3 % of what was lost in them.</source>
        <translation>%1 von %2 langsameren Abschnitten machen %3&#xa0;% des Verlusts in ihnen aus.</translation>
    </message>
    <message>
        <source>Nobody was slower than the reference in a section.</source>
        <translation>Niemand war in einem Abschnitt langsamer als die Referenz.</translation>
    </message>
    <message>
        <source>The greatest loss is that of %1 in S%2: %3 on %4.</source>
        <translation>Der größte Verlust ist der von %1 in S%2: %3 auf %4.</translation>
    </message>
    <message>
        <source>Never behind the %1; %2 at the end of S%3.</source>
        <translation>Nie im Rückstand auf: %1; %2 am Ende von S%3.</translation>
    </message>
    <message>
        <source>Farthest behind at the end: %1 after S%2.</source>
        <translation>Am Ende am weitesten zurück: %1 nach S%2.</translation>
    </message>
    <message>
        <source>Farthest behind after S%1: %2; %3 after S%4.</source>
        <translation>Am weitesten zurück nach S%1: %2; %3 nach S%4.</translation>
    </message>
    <message>
        <source>no motion of the boat</source>
        <translation>keine Bewegung des Boots</translation>
    </message>
    <message>
        <source>a hole of %1 s</source>
        <translation>eine Lücke von %1 s</translation>
    </message>
    <message>
        <source>%1 holes, the longest of %2 s</source>
        <translation>%1 Lücken, die längste %2 s</translation>
    </message>
    <message>
        <source>the clock ran backwards once</source>
        <translation>die Uhr lief einmal rückwärts</translation>
    </message>
    <message>
        <source>the clock ran backwards %1 times</source>
        <translation>die Uhr lief %1-mal rückwärts</translation>
    </message>
    <message>
        <source>a moment stands twice</source>
        <translation>ein Moment steht zweimal</translation>
    </message>
    <message>
        <source>%1 moments stand twice</source>
        <translation>%1 Momente stehen zweimal</translation>
    </message>
    <message>
        <source>Top to the bow</source>
        <translation>Oben zum Bug</translation>
    </message>
    <message>
        <source>Bottom to the bow</source>
        <translation>Unten zum Bug</translation>
    </message>
    <message>
        <source>Right to the bow</source>
        <translation>Rechts zum Bug</translation>
    </message>
    <message>
        <source>Left to the bow</source>
        <translation>Links zum Bug</translation>
    </message>
    <message>
        <source>Back to the bow</source>
        <translation>Rückseite zum Bug</translation>
    </message>
    <message>
        <source>Screen to the bow</source>
        <translation>Bildschirm zum Bug</translation>
    </message>
    <message>
        <source>%1 of %2 touched</source>
        <translation>%1 von %2 berührt</translation>
    </message>
    <message>
        <source>Touched, %</source>
        <translation>Berührt, %</translation>
    </message>
    <message>
        <source>Ranked rate, 90 %</source>
        <translation>Gereihte Rate, 90&#xa0;%</translation>
    </message>
    <message>
        <source>Touched</source>
        <translation>Berührt</translation>
    </message>
    <message>
        <source>All in common</source>
        <translation>Allen gemeinsam</translation>
    </message>
    <message>
        <source>No run that is asked for has its penalties by gate. Enter them for each gate to see where they happen.</source>
        <translation>Kein gefragter Lauf hat seine Strafen nach Toren. Für jedes Tor eintragen, um zu sehen, wo sie entstehen.</translation>
    </message>
    <message>
        <source>Passages</source>
        <translation>Durchfahrten</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Berührungen</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Verfehlt</translation>
    </message>
    <message>
        <source>Touch rate</source>
        <translation>Berührungsrate</translation>
    </message>
    <message>
        <source>Ranked rate</source>
        <translation>Gereihte Rate</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Gate %1, upstream</source>
        <translation>Tor %1, aufwärts</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Tor %1</translation>
    </message>
    <message>
        <source>%1 missed</source>
        <translation>%1 verfehlt</translation>
    </message>
    <message>
        <source>stands out</source>
        <translation>fällt auf</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>(not given)</source>
        <translation>(ohne Angabe)</translation>
    </message>
    <message>
        <source>%1: touches at the gates</source>
        <translation>%1: Berührungen an den Toren</translation>
    </message>
    <message>
        <source>Gates in order; ◀ upstream</source>
        <translation>Tore der Reihe nach; ◀ aufwärts</translation>
    </message>
    <message>
        <source>Upstream</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Touches %1</source>
        <translation>Berührungen %1</translation>
    </message>
    <message>
        <source> (the highest %1, %2 more in the table)</source>
        <translation> (die höchsten %1, %2 weitere in der Tabelle)</translation>
    </message>
    <message>
        <source>What was noted of penalties</source>
        <translation>Was zu Strafen notiert wurde</translation>
    </message>
    <message>
        <source>Of those noted, %</source>
        <translation>Von den notierten, %</translation>
    </message>
    <message>
        <source>Share, 90 %</source>
        <translation>Anteil, 90&#xa0;%</translation>
    </message>
    <message>
        <source>Noted as</source>
        <translation>Notiert als</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Strafen</translation>
    </message>
    <message>
        <source>Of</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Anteil</translation>
    </message>
    <message>
        <source>Most of one kind: %1 %2, %3 of %4 noted.</source>
        <translation>Am meisten von einer Art: %1 %2, %3 von %4 notierten.</translation>
    </message>
    <message>
        <source>fastest third</source>
        <translation>schnellstes Drittel</translation>
    </message>
    <message>
        <source>middle third</source>
        <translation>mittleres Drittel</translation>
    </message>
    <message>
        <source>slowest third</source>
        <translation>langsamstes Drittel</translation>
    </message>
    <message>
        <source>Risk and speed</source>
        <translation>Risiko und Tempo</translation>
    </message>
    <message>
        <source>Paddling time, % of the group&apos;s median</source>
        <translation>Fahrzeit, % des Medians der Gruppe</translation>
    </message>
    <message>
        <source>Touches a run</source>
        <translation>Berührungen je Lauf</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#xa0;%</translation>
    </message>
    <message>
        <source>Equally fast in all</source>
        <translation>Insgesamt gleich schnell</translation>
    </message>
    <message>
        <source>not planned</source>
        <translation>nicht geplant</translation>
    </message>
    <message>
        <source>planned</source>
        <translation>geplant</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>What the sessions add up to, in the unit that they are written in</source>
        <translation>Was die Einheiten ergeben, in der Maßeinheit, in der sie stehen</translation>
    </message>
    <message>
        <source>In the sessions</source>
        <translation>In den Einheiten</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Wettkampf</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Strafe</translation>
    </message>
    <message>
        <source>Behind best</source>
        <translation>Hinter dem Besten</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Tore</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Missed gates</source>
        <translation>Torfehler</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>From the first run of the heats to the second</source>
        <translation>Vom ersten Lauf der Vorläufe zum zweiten</translation>
    </message>
    <message>
        <source>From the semifinal to the final</source>
        <translation>Vom Halbfinale zum Finale</translation>
    </message>
    <message>
        <source>From the heats to the final</source>
        <translation>Von den Vorläufen zum Finale</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Medaillen</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finals</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Halbfinals</translation>
    </message>
    <message>
        <source>too few for a range</source>
        <translation>zu wenige für einen Bereich</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>zu wenige</translation>
    </message>
    <message>
        <source>Change behind, %</source>
        <translation>Änderung des Rückstands, %</translation>
    </message>
    <message>
        <source>Change, %</source>
        <translation>Änderung, %</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Rennen</translation>
    </message>
    <message>
        <source>Typical error, %</source>
        <translation>Typischer Fehler, %</translation>
    </message>
    <message>
        <source>No change</source>
        <translation>Keine Änderung</translation>
    </message>
    <message>
        <source>No race of the team has both.</source>
        <translation>Kein Rennen des Teams hat beides.</translation>
    </message>
    <message>
        <source>How much runs vary by chance</source>
        <translation>Wie stark Läufe zufällig schwanken</translation>
    </message>
    <message>
        <source>Within, %</source>
        <translation>Streuung, %</translation>
    </message>
    <message>
        <source>Own alone, %</source>
        <translation>Eigene allein, %</translation>
    </message>
    <message>
        <source>With a missed gate</source>
        <translation>Mit Torfehler</translation>
    </message>
    <message>
        <source>Too few runs to tell how much they vary.</source>
        <translation>Zu wenige Läufe, um zu sagen, wie stark sie schwanken.</translation>
    </message>
    <message>
        <source>Trend behind the winners</source>
        <translation>Trend hinter den Siegern</translation>
    </message>
    <message>
        <source>Trend behind the fastest splits</source>
        <translation>Trend hinter den schnellsten Abschnitten</translation>
    </message>
    <message>
        <source>A year, %</source>
        <translation>Im Jahr, %</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>Too few runs of everybody to tell a trend: four over two months are needed.</source>
        <translation>Zu wenige Läufe bei allen für einen Trend: nötig sind vier über zwei Monate.</translation>
    </message>
    <message>
        <source>%1 against</source>
        <translation>%1 gegen</translation>
    </message>
    <message>
        <source>Against</source>
        <translation>Gegen</translation>
    </message>
    <message>
        <source>Ahead, %</source>
        <translation>Vorn, %</translation>
    </message>
    <message>
        <source>Met</source>
        <translation>Getroffen</translation>
    </message>
    <message>
        <source>Won</source>
        <translation>Siege</translation>
    </message>
    <message>
        <source>Gap, %</source>
        <translation>Rückstand, %</translation>
    </message>
    <message>
        <source>Gap 90 %</source>
        <translation>Rückstand 90&#xa0;%</translation>
    </message>
    <message>
        <source>Half</source>
        <translation>Hälfte</translation>
    </message>
    <message>
        <source>The athlete met nobody in these races.</source>
        <translation>Der Athlet traf in diesen Rennen auf niemanden.</translation>
    </message>
    <message>
        <source>Of races, %</source>
        <translation>Der Rennen, %</translation>
    </message>
    <message>
        <source>No race of the team has a result that says so.</source>
        <translation>Kein Rennen des Teams hat ein Ergebnis, das dies sagt.</translation>
    </message>
    <message>
        <source>Expected places among %1 boats</source>
        <translation>Erwartete Plätze unter %1 Booten</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Boot</translation>
    </message>
    <message>
        <source>Medal, %</source>
        <translation>Medaille, %</translation>
    </message>
    <message>
        <source>First, %</source>
        <translation>Erster, %</translation>
    </message>
    <message>
        <source>Missed gate, %</source>
        <translation>Torfehler, %</translation>
    </message>
    <message>
        <source>Too few runs to expect places of anybody: each boat needs three, and the boats must have met.</source>
        <translation>Zu wenige Läufe, um Plätze zu erwarten: jedes Boot braucht drei, und die Boote müssen aufeinander getroffen sein.</translation>
    </message>
    <message>
        <source>What ranks took: %1</source>
        <translation>Was Plätze brauchten: %1</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Behind the winner, %</source>
        <translation>Hinter dem Sieger, %</translation>
    </message>
    <message>
        <source>Quartiles</source>
        <translation>Quartile</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Kleinste</translation>
    </message>
    <message>
        <source>Most</source>
        <translation>Größte</translation>
    </message>
    <message>
        <source>%1 would have</source>
        <translation>%1 hätten</translation>
    </message>
    <message>
        <source>Median of %1</source>
        <translation>Median von %1</translation>
    </message>
    <message>
        <source>The first %1, %2 more in the table</source>
        <translation>Die ersten %1, %2 weitere in der Tabelle</translation>
    </message>
    <message>
        <source>&amp;Import .kvb file</source>
        <translation>.kvb-Datei &amp;importieren</translation>
    </message>
    <message>
        <source>Import .s&amp;bm file</source>
        <translation>.s&amp;bm-Datei importieren</translation>
    </message>
    <message>
        <source>Import from a &amp;watch or logger…</source>
        <translation>Von &amp;Uhr oder Logger importieren…</translation>
    </message>
    <message>
        <source>Move the trac&amp;k of the watch in time…</source>
        <translation>Trac&amp;k der Uhr in der Zeit verschieben…</translation>
    </message>
    <message>
        <source>Import &amp;power-meter data…</source>
        <translation>Daten eines &amp;Leistungsmessers importieren…</translation>
    </message>
    <message>
        <source>Save the edited .&amp;kvb file</source>
        <translation>Bearbeitete .k&amp;vb-Datei speichern</translation>
    </message>
    <message>
        <source>&amp;Export the strokes…</source>
        <translation>Schläge e&amp;xportieren…</translation>
    </message>
    <message>
        <source>Export the &amp;turns…</source>
        <translation>&amp;Drehungen exportieren…</translation>
    </message>
    <message>
        <source>Export the se&amp;gments…</source>
        <translation>Se&amp;gmente exportieren…</translation>
    </message>
    <message>
        <source>Export the values per &amp;distance…</source>
        <translation>Werte je St&amp;recke exportieren…</translation>
    </message>
    <message>
        <source>Mount of the p&amp;hone</source>
        <translation>Lage des &amp;Telefons</translation>
    </message>
    <message>
        <source>Found from the position</source>
        <translation>Aus der Position bestimmt</translation>
    </message>
    <message>
        <source>Session &amp;information…</source>
        <translation>&amp;Angaben zur Einheit…</translation>
    </message>
    <message>
        <source>&amp;Analyse the recording again</source>
        <translation>Aufzeichnung neu aus&amp;werten</translation>
    </message>
    <message>
        <source>&amp;Keep the selected stretch</source>
        <translation>Gewähltes Stück &amp;behalten</translation>
    </message>
    <message>
        <source>Remove the selected &amp;stretch</source>
        <translation>Gewähltes &amp;Stück entfernen</translation>
    </message>
    <message>
        <source>Re&amp;move the selected strokes, turns or mark</source>
        <translation>Gewählte Schläge, Drehungen oder Marke &amp;entfernen</translation>
    </message>
    <message>
        <source>Select &amp;nothing</source>
        <translation>&amp;Nichts wählen</translation>
    </message>
    <message>
        <source>&amp;Segments</source>
        <translation>&amp;Segmente</translation>
    </message>
    <message>
        <source>&amp;Mark here</source>
        <translation>Hier &amp;markieren</translation>
    </message>
    <message>
        <source>Mo&amp;ve the nearest mark here</source>
        <translation>Nächstliegende Marke h&amp;ierher</translation>
    </message>
    <message>
        <source>Nearest mark &amp;earlier</source>
        <translation>Nächstliegende Marke &amp;früher</translation>
    </message>
    <message>
        <source>Nearest mark &amp;later</source>
        <translation>Nächstliegende Marke &amp;später</translation>
    </message>
    <message>
        <source>&amp;Remove the nearest mark</source>
        <translation>Nächstliegende Marke &amp;entfernen</translation>
    </message>
    <message>
        <source>Remove &amp;all marks</source>
        <translation>&amp;Alle Marken entfernen</translation>
    </message>
    <message>
        <source>&amp;Save the segments</source>
        <translation>Segmente s&amp;peichern</translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Play, pause</source>
        <translation>Abs&amp;pielen, Pause</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>&amp;Langsamer</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>&amp;Schneller</translation>
    </message>
    <message>
        <source>&amp;Real time</source>
        <translation>&amp;Echtzeit</translation>
    </message>
    <message>
        <source>P&amp;revious stroke</source>
        <translation>&amp;Voriger Schlag</translation>
    </message>
    <message>
        <source>&amp;Next stroke</source>
        <translation>&amp;Nächster Schlag</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Anfang</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>En&amp;de</translation>
    </message>
    <message>
        <source>&amp;Charts</source>
        <translation>Dia&amp;gramme</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Zoom to the selected stretch</source>
        <translation>Auf das gewählte Stück &amp;zoomen</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Einpassen</translation>
    </message>
    <message>
        <source>%1; “%2” is none.</source>
        <translation>%1; „%2“ ist nichts davon.</translation>
    </message>
    <message>
        <source>%1 is of release %2.</source>
        <translation>%1 ist von Version %2.</translation>
    </message>
    <message>
        <source>Its folder %1 cannot be written, so that the analyzer shows it and leaves it as it is.</source>
        <translation>Der Ordner %1 ist nicht beschreibbar; die Rennanalyse zeigt die Datei und lässt sie, wie sie ist.</translation>
    </message>
    <message>
        <source>Who of the team it is; a question mark: only you can tell</source>
        <translation>Wer im Team es ist; ein Fragezeichen: das weiß nur der Trainer</translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
    <message>
        <source>Reckoned from the list</source>
        <translation>Aus der Liste berechnet</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>What stands there</source>
        <translation>Was dort steht</translation>
    </message>
    <message>
        <source>Why it is not taken</source>
        <translation>Warum nicht übernommen</translation>
    </message>
    <message>
        <source>Results list</source>
        <translation>Ergebnisliste</translation>
    </message>
    <message>
        <source>Attached document</source>
        <translation>Angehängtes Dokument</translation>
    </message>
    <message>
        <source>Table kept with the race</source>
        <translation>Tabelle beim Rennen</translation>
    </message>
    <message>
        <source>The least is %1 (%2), the most %3 (%4), of %5 rows</source>
        <translation>Am kleinsten ist %1 (%2), am größten %3 (%4), von %5 Zeilen</translation>
    </message>
    <message>
        <source>; %1 without a number are left out</source>
        <translation>; %1 ohne Zahl sind ausgelassen</translation>
    </message>
    <message>
        <source>Choose a column of numbers or times: a click on one of its cells, then C.</source>
        <translation>Eine Spalte mit Zahlen oder Zeiten wählen: eine ihrer Zellen anklicken, dann C.</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>No row has a number in this column.</source>
        <translation>Keine Zeile hat in dieser Spalte eine Zahl.</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Tag</translation>
    </message>
    <message>
        <source>Start &amp;list…</source>
        <translation>Start&amp;liste…</translation>
    </message>
    <message>
        <source>Films &amp;from…</source>
        <translation>Filme &amp;aus…</translation>
    </message>
    <message>
        <source>Reckon with the camera&apos;s &amp;clock</source>
        <translation>Mit der &amp;Uhr der Kamera rechnen</translation>
    </message>
    <message>
        <source>&amp;Remove the boat from the list</source>
        <translation>Boot aus der Liste &amp;entfernen</translation>
    </message>
    <message>
        <source>To the next film that is not &amp;timed yet</source>
        <translation>Zum nächsten Film &amp;ohne Zeiten</translation>
    </message>
    <message>
        <source>&amp;Open the film of the start in front</source>
        <translation>&amp;Film des Starts nach vorn holen</translation>
    </message>
    <message>
        <source>&amp;Previous start</source>
        <translation>&amp;Voriger Start</translation>
    </message>
    <message>
        <source>&amp;Next start</source>
        <translation>&amp;Nächster Start</translation>
    </message>
    <message>
        <source>&amp;Agree: the film is named after its boat</source>
        <translation>&amp;Zustimmen: der Film heißt nach seinem Boot</translation>
    </message>
    <message>
        <source>Agree to all that are &amp;sure</source>
        <translation>Allen &amp;sicheren zustimmen</translation>
    </message>
    <message>
        <source>Films from here on: one start &amp;earlier</source>
        <translation>Filme ab hier: einen Start frü&amp;her</translation>
    </message>
    <message>
        <source>Films from here on: one start late&amp;r</source>
        <translation>Filme ab hier: einen Start s&amp;päter</translation>
    </message>
    <message>
        <source>Did not start, or did after all</source>
        <translation>Nicht gestartet, oder doch</translation>
    </message>
    <message>
        <source>Did not finish, or did after all</source>
        <translation>Nicht im Ziel, oder doch</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notizen</translation>
    </message>
    <message>
        <source>Stroke on the left</source>
        <translation>Schlag links</translation>
    </message>
    <message>
        <source>Stroke on the right</source>
        <translation>Schlag rechts</translation>
    </message>
    <message>
        <source>Other hand for the selected stroke</source>
        <translation>Andere Hand für den gewählten Schlag</translation>
    </message>
    <message>
        <source>Play from the selected tag</source>
        <translation>Ab der gewählten Markierung abspielen</translation>
    </message>
    <message>
        <source>To the other run of the time loss</source>
        <translation>Zum anderen Lauf des Zeitverlusts</translation>
    </message>
    <message>
        <source>Record the team radio, or end it</source>
        <translation>Teamfunk aufnehmen oder beenden</translation>
    </message>
    <message>
        <source>Clips of the chosen marks, one after another</source>
        <translation>Clips der gewählten Marken, nacheinander</translation>
    </message>
    <message>
        <source>Add a &amp;category</source>
        <translation>&amp;Kategorie hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Team</source>
        <translation>&amp;Team</translation>
    </message>
    <message>
        <source>&amp;New athlete…</source>
        <translation>&amp;Neuer Athlet…</translation>
    </message>
    <message>
        <source>Remo&amp;ve the athlete</source>
        <translation>Athleten entf&amp;ernen</translation>
    </message>
    <message>
        <source>Re&amp;move the category</source>
        <translation>Kategorie ent&amp;fernen</translation>
    </message>
    <message>
        <source>New &amp;season</source>
        <translation>Neue &amp;Saison</translation>
    </message>
    <message>
        <source>New &amp;race</source>
        <translation>Neues &amp;Rennen</translation>
    </message>
    <message>
        <source>Move season or race &amp;up</source>
        <translation>Saison oder Rennen nach &amp;oben</translation>
    </message>
    <message>
        <source>Move season or race &amp;down</source>
        <translation>Saison oder Rennen nach &amp;unten</translation>
    </message>
    <message>
        <source>Where the athlete &amp;loses time…</source>
        <translation>Wo der Athlet &amp;Zeit verliert…</translation>
    </message>
    <message>
        <source>S&amp;eason of the athlete</source>
        <translation>Saison des &amp;Athleten</translation>
    </message>
    <message>
        <source>Compute all a&amp;verages again</source>
        <translation>Alle &amp;Mittelwerte neu berechnen</translation>
    </message>
    <message>
        <source>&amp;Find an athlete</source>
        <translation>&amp;Athleten suchen</translation>
    </message>
    <message>
        <source>Take &amp;results over…</source>
        <translation>Er&amp;gebnisse übernehmen…</translation>
    </message>
    <message>
        <source>Cate&amp;gorization report…</source>
        <translation>Bericht &amp;zur Einstufung…</translation>
    </message>
    <message>
        <source>Save the c&amp;hart…</source>
        <translation>&amp;Diagramm speichern…</translation>
    </message>
    <message>
        <source>&amp;Edit the cell</source>
        <translation>Zelle &amp;bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Remove what is chosen</source>
        <translation>Gewähltes en&amp;tfernen</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Athleten</translation>
    </message>
    <message>
        <source>Selection %1</source>
        <translation>Nominierung %1</translation>
    </message>
    <message>
        <source>Race analyzer</source>
        <translation>Rennanalyse</translation>
    </message>
    <message>
        <source>Every split of a race side by side, coloured by rank.</source>
        <translation>Jeder Abschnitt eines Rennens nebeneinander, nach Platz gefärbt.</translation>
    </message>
    <message>
        <source>Open races</source>
        <translation>Rennen öffnen</translation>
    </message>
    <message>
        <source>Split files</source>
        <translation>Zwischenzeitdateien</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Zeitverluste</translation>
    </message>
    <message>
        <source>Where each run lost its time, and what comes back.</source>
        <translation>Wo jeder Lauf seine Zeit verlor, und was wiederkehrt.</translation>
    </message>
    <message>
        <source>Open split files</source>
        <translation>Zwischenzeitdateien öffnen</translation>
    </message>
    <message>
        <source>Split taking</source>
        <translation>Zwischenzeitnahme</translation>
    </message>
    <message>
        <source>Time every run from its video, exact to the frame.</source>
        <translation>Jeden Lauf auf seinem Video stoppen, aufs Bild genau.</translation>
    </message>
    <message>
        <source>Open a folder of videos</source>
        <translation>Ordner mit Videos öffnen</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>A folder of films played, compared, tagged and cut.</source>
        <translation>Einen Ordner mit Filmen abspielen, vergleichen, schneiden.</translation>
    </message>
    <message>
        <source>Open a folder of films</source>
        <translation>Ordner mit Filmen öffnen</translation>
    </message>
    <message>
        <source>Kayak cross</source>
        <translation>Kajak-Cross</translation>
    </message>
    <message>
        <source>Time trials, heats and attacks of a cross race, from video.</source>
        <translation>Zeitfahren, Heats und Angriffe eines Cross-Rennens, auf Video.</translation>
    </message>
    <message>
        <source>Open a kayak cross</source>
        <translation>Kajak-Cross öffnen</translation>
    </message>
    <message>
        <source>Compare films</source>
        <translation>Filme vergleichen</translation>
    </message>
    <message>
        <source>Two to four runs in one picture, as a film.</source>
        <translation>Zwei bis vier Läufe in einem Bild, als Film.</translation>
    </message>
    <message>
        <source>Comparisons of films</source>
        <translation>Filmvergleiche</translation>
    </message>
    <message>
        <source>Comparisons</source>
        <translation>Vergleiche</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>Team</source>
        <translation>Team</translation>
    </message>
    <message>
        <source>Results of every athlete, season by season, and their category.</source>
        <translation>Ergebnisse jedes Athleten, Saison für Saison, und seine Kategorie.</translation>
    </message>
    <message>
        <source>Team results</source>
        <translation>Teamergebnisse</translation>
    </message>
    <message>
        <source>Teams</source>
        <translation>Teams</translation>
    </message>
    <message>
        <source>Selection races</source>
        <translation>Qualifikationsrennen</translation>
    </message>
    <message>
        <source>Who is selected, by which results, and why.</source>
        <translation>Wer nominiert ist, durch welche Ergebnisse, und warum.</translation>
    </message>
    <message>
        <source>Planning</source>
        <translation>Planung</translation>
    </message>
    <message>
        <source>Seasons, weeks and sessions, heart, gym and goals of a group.</source>
        <translation>Saisons, Wochen und Einheiten, Herz, Kraftraum und Ziele einer Gruppe.</translation>
    </message>
    <message>
        <source>Plannings</source>
        <translation>Planungen</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>Lap, sprint and eight tests on the water, compared.</source>
        <translation>Runden-, Sprint- und Achtertests auf dem Wasser, verglichen.</translation>
    </message>
    <message>
        <source>Boat motion</source>
        <translation>Bootsbewegung</translation>
    </message>
    <message>
        <source>Recordings of phone and watch over each other, and converted.</source>
        <translation>Aufzeichnungen von Telefon und Uhr übereinander, und umgewandelt.</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>Aufzeichnungen öffnen</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Aufzeichnungen</translation>
    </message>
    <message>
        <source>Strokes, turns and segments of a recording, on a map.</source>
        <translation>Schläge, Drehungen und Segmente einer Aufzeichnung.</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Every gate, penalty and run of all seasons, by one question.</source>
        <translation>Jedes Tor, jede Strafe und jeder Lauf aller Saisons, mit einer Frage.</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>Dateien durchsuchen</translation>
    </message>
    <message>
        <source>Which gates are touched, by whom, and what it cost.</source>
        <translation>Welche Tore berührt werden, von wem, und was es kostete.</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tabellen</translation>
    </message>
    <message>
        <source>Any list of results, sorted, tinted, reckoned with, and whose it is.</source>
        <translation>Jede Ergebnisliste, sortiert, gefärbt, durchgerechnet, und wessen sie ist.</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>Listen öffnen</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listen</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Saison</translation>
    </message>
    <message>
        <source>How a team&apos;s athletes stand: trend, rivals, medals.</source>
        <translation>Wie die Athleten stehen: Trend, Rivalen, Medaillen.</translation>
    </message>
    <message>
        <source>Open a team</source>
        <translation>Team öffnen</translation>
    </message>
    <message>
        <source>Fetch films</source>
        <translation>Filme holen</translation>
    </message>
    <message>
        <source>The films of a race from a server, by the bibs of a start list.</source>
        <translation>Die Filme eines Rennens von einem Server, nach den Startnummern einer Startliste.</translation>
    </message>
    <message>
        <source>Open a source of films</source>
        <translation>Filmquelle öffnen</translation>
    </message>
    <message>
        <source>Sources of films</source>
        <translation>Filmquellen</translation>
    </message>
    <message>
        <source>Test session</source>
        <translation>Testeinheit</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>New &amp;lap test</source>
        <translation>Neuer &amp;Rundentest</translation>
    </message>
    <message>
        <source>New &amp;sprint</source>
        <translation>Neuer &amp;Sprint</translation>
    </message>
    <message>
        <source>New &amp;eight test</source>
        <translation>Neuer &amp;Achtertest</translation>
    </message>
    <message>
        <source>&amp;Duplicate the test</source>
        <translation>Test &amp;duplizieren</translation>
    </message>
    <message>
        <source>&amp;Previous test</source>
        <translation>&amp;Voriger Test</translation>
    </message>
    <message>
        <source>Ne&amp;xt test</source>
        <translation>&amp;Nächster Test</translation>
    </message>
    <message>
        <source>&amp;Compare with the athlete&apos;s other tests</source>
        <translation>Mit anderen Tests des Athleten ver&amp;gleichen</translation>
    </message>
    <message>
        <source>&amp;Tick every listed test</source>
        <translation>Alle Tests der Liste a&amp;bhaken</translation>
    </message>
    <message>
        <source>&amp;Untick all</source>
        <translation>Alle Häkchen w&amp;eg</translation>
    </message>
    <message>
        <source>&amp;Values</source>
        <translation>&amp;Werte</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabelle</translation>
    </message>
    <message>
        <source>Charts by &amp;lap or stretch</source>
        <translation>Diagramme nach R&amp;unde oder Stück</translation>
    </message>
    <message>
        <source>Charts by t&amp;urn</source>
        <translation>Diagramme nach D&amp;rehung</translation>
    </message>
    <message>
        <source>Charts by &amp;stroke</source>
        <translation>Diagramme nach &amp;Schlag</translation>
    </message>
    <message>
        <source>&amp;List of tests</source>
        <translation>&amp;Liste der Tests</translation>
    </message>
    <message>
        <source>Choose an &amp;athlete</source>
        <translation>At&amp;hleten wählen</translation>
    </message>
    <message>
        <source>Take in from a split &amp;file…</source>
        <translation>Aus &amp;Zwischenzeitdatei übernehmen…</translation>
    </message>
    <message>
        <source>Take in from a &amp;recording…</source>
        <translation>Aus Aufze&amp;ichnung übernehmen…</translation>
    </message>
    <message>
        <source>&amp;Export the table…</source>
        <translation>Tabelle e&amp;xportieren…</translation>
    </message>
    <message>
        <source>&amp;Copy the table</source>
        <translation>Tabelle &amp;kopieren</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>The course drawn: banks, gates, split lines and the lines of runs.</source>
        <translation>Die Strecke gezeichnet: Ufer, Tore, Zeitlinien und die Linien der Läufe.</translation>
    </message>
    <message>
        <source>Draw the course of a race</source>
        <translation>Strecke eines Rennens zeichnen</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>Verfolgung</translation>
    </message>
    <message>
        <source>A boat followed through a film: its path and speed.</source>
        <translation>Ein Boot durch den Film verfolgt: Bahn und Tempo.</translation>
    </message>
    <message>
        <source>Open films</source>
        <translation>Filme öffnen</translation>
    </message>
    <message>
        <source>Slit picture</source>
        <translation>Schlitzbild</translation>
    </message>
    <message>
        <source>Every crossing of a line, as a finish camera shows it.</source>
        <translation>Jede Überquerung einer Linie, wie eine Zielkamera sie zeigt.</translation>
    </message>
    <message>
        <source>Open films of a fixed camera</source>
        <translation>Filme einer festen Kamera öffnen</translation>
    </message>
    <message>
        <source>Share folders</source>
        <translation>Ordner teilen</translation>
    </message>
    <message>
        <source>A folder the same here and on the team&apos;s own server.</source>
        <translation>Ein Ordner, gleich hier und auf dem eigenen Server.</translation>
    </message>
    <message>
        <source>Share a folder</source>
        <translation>Ordner teilen</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>Markiert</translation>
    </message>
    <message>
        <source>Proposal</source>
        <translation>Vorschlag</translation>
    </message>
    <message>
        <source>Confidence</source>
        <translation>Sicherheit</translation>
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
        <translation>keiner</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>No boat was found that could be this run: look for it in the slit picture.</source>
        <translation>Es wurde kein Boot gefunden, das dieser Lauf sein könnte: Suchen Sie es im Schlitzbild.</translation>
    </message>
    <message>
        <source>This run is marked here.</source>
        <translation>Dieser Lauf ist hier markiert.</translation>
    </message>
    <message>
        <source>Where the run is marked at this line, in seconds of the film</source>
        <translation>Wo der Lauf an dieser Linie markiert ist, in Sekunden des Films</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>ausgelassen</translation>
    </message>
    <message>
        <source>→ new here</source>
        <translation>→ neu hier</translation>
    </message>
    <message>
        <source>← new there</source>
        <translation>← neu dort</translation>
    </message>
    <message>
        <source>→ changed here</source>
        <translation>→ hier geändert</translation>
    </message>
    <message>
        <source>← changed there</source>
        <translation>← dort geändert</translation>
    </message>
    <message>
        <source>↔ on both sides</source>
        <translation>↔ auf beiden Seiten</translation>
    </message>
    <message>
        <source>✕ deleted here</source>
        <translation>✕ hier gelöscht</translation>
    </message>
    <message>
        <source>✕ deleted there</source>
        <translation>✕ dort gelöscht</translation>
    </message>
    <message>
        <source>Goes to the server</source>
        <translation>Geht zum Server</translation>
    </message>
    <message>
        <source>Comes from the server</source>
        <translation>Kommt vom Server</translation>
    </message>
    <message>
        <source>Goes to the server, in place of what it has</source>
        <translation>Geht zum Server, anstelle dessen, was er hat</translation>
    </message>
    <message>
        <source>Comes from the server, in place of what is here</source>
        <translation>Kommt vom Server, anstelle dessen, was hier ist</translation>
    </message>
    <message>
        <source>Is compared; where both differ, both are kept</source>
        <translation>Wird verglichen; wo sich beide unterscheiden, bleiben beide erhalten</translation>
    </message>
    <message>
        <source>Is deleted on the server where you tick it</source>
        <translation>Wird auf dem Server gelöscht, wo Sie es abhaken</translation>
    </message>
    <message>
        <source>Is deleted here where you tick it</source>
        <translation>Wird hier gelöscht, wo Sie es abhaken</translation>
    </message>
    <message>
        <source>%1 new here</source>
        <translation>%1 neu hier</translation>
    </message>
    <message>
        <source>%1 new there</source>
        <translation>%1 neu dort</translation>
    </message>
    <message>
        <source>%1 changed here</source>
        <translation>%1 hier geändert</translation>
    </message>
    <message>
        <source>%1 changed there</source>
        <translation>%1 dort geändert</translation>
    </message>
    <message>
        <source>%1 on both sides</source>
        <translation>%1 auf beiden Seiten</translation>
    </message>
    <message>
        <source>%1 deleted here</source>
        <translation>%1 hier gelöscht</translation>
    </message>
    <message>
        <source>%1 deleted there</source>
        <translation>%1 dort gelöscht</translation>
    </message>
    <message>
        <source>Both sides are the same</source>
        <translation>Beide Seiten sind gleich</translation>
    </message>
    <message>
        <source>%1 shared</source>
        <translation>%1 geteilt</translation>
    </message>
    <message>
        <source>%1 kept twice</source>
        <translation>%1 doppelt behalten</translation>
    </message>
    <message>
        <source>Fastest at %1 s of the film: %2 m/s.</source>
        <translation>Am schnellsten bei %1 s des Films: %2 m/s.</translation>
    </message>
    <message>
        <source>Fastest at %1 s of the film: %2 m/s (a scale only: it holds near the two points and along their line).</source>
        <translation>Am schnellsten bei %1 s des Films: %2 m/s (nur ein Maßstab: Er gilt nahe den zwei Punkten und entlang ihrer Linie).</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Steadied x</source>
        <translation>x beruhigt</translation>
    </message>
    <message>
        <source>Steadied y</source>
        <translation>y beruhigt</translation>
    </message>
    <message>
        <source>Across</source>
        <translation>Quer</translation>
    </message>
    <message>
        <source>Along</source>
        <translation>Längs</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Güte</translation>
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
        <translation>Zeichnen Sie einen Rahmen um das, was verfolgt werden soll.</translation>
    </message>
    <message>
        <source>Click known points on the water for metres and speeds: the poles of two gates, or of one for a scale only.</source>
        <translation>Klicken Sie für Meter und Geschwindigkeiten bekannte Punkte auf dem Wasser an: die Torstäbe von zwei Toren, oder von einem nur für einen Maßstab.</translation>
    </message>
    <message>
        <source>There is no speed: the path is too short, or the camera&apos;s motion is not known.</source>
        <translation>Es gibt keine Geschwindigkeit: Die Bahn ist zu kurz, oder die Bewegung der Kamera ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Uncertainty of the clicks</source>
        <translation>Unsicherheit der Klicks</translation>
    </message>
    <message>
        <source>✓ Done</source>
        <translation>✓ Fertig</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>Läuft…</translation>
    </message>
    <message>
        <source>Lists (*.csv *.tsv *.txt *.xlsx *.ods *.kvx *.kvtable);;All files (*)</source>
        <translation>Listen (*.csv *.tsv *.txt *.xlsx *.ods *.kvx *.kvtable);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>“%1” holds no runs. Nothing was imported.</source>
        <translation>„%1“ enthält keine Läufe. Nichts wurde importiert.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthleteDialog</name>
    <message>
        <source>Athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>SURNAME Name</source>
        <translation>NACHNAME Vorname</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;Club</source>
        <translation>&amp;Verein</translation>
    </message>
    <message>
        <source>&amp;Birth year</source>
        <translation>&amp;Geburtsjahr</translation>
    </message>
    <message>
        <source>&amp;Age group</source>
        <translation>&amp;Altersklasse</translation>
    </message>
    <message>
        <source>Preselected, group %1</source>
        <translation>Gesetzt, Gruppe %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Bonus %1 (percent)</source>
        <translation>Bonus %1 (Prozent)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthleteList</name>
    <message>
        <source>Search athletes</source>
        <translation>Athleten suchen</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Saison</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>noch keine</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthletePageDialog</name>
    <message>
        <source>Page of an athlete</source>
        <translation>Seite eines Athleten</translation>
    </message>
    <message>
        <source>All races that are open</source>
        <translation>Alle offenen Rennen</translation>
    </message>
    <message>
        <source>Only the race of the run that is shown</source>
        <translation>Nur das Rennen des gezeigten Laufs</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>&amp;Athlet</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>A&amp;us</translation>
    </message>
    <message>
        <source>&amp;Preview and print…</source>
        <translation>&amp;Vorschau und Druck…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>Als &amp;PDF speichern…</translation>
    </message>
    <message>
        <source>One A4 page: where time is lost on the %1, what to train, penalties.</source>
        <translation>Eine A4-Seite: wo Zeit verloren geht (Referenz: %1), was zu trainieren ist, Strafen.</translation>
    </message>
    <message>
        <source>Choose one of the athletes of the list.</source>
        <translation>Einen Athleten aus der Liste wählen.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthletePages</name>
    <message>
        <source>Save the page of the athlete</source>
        <translation>Seite des Athleten speichern</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>The page cannot be written over a race that it is made from.</source>
        <translation>Die Seite kann nicht über ein Rennen geschrieben werden, aus dem sie entsteht.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthletePanel</name>
    <message>
        <source>Retired: left out of the categorization report</source>
        <translation>Zurückgetreten: nicht im Bericht zur Einstufung</translation>
    </message>
    <message>
        <source>Search athletes</source>
        <translation>Athleten suchen</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Strg+F</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Alle Kategorien</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Born</source>
        <translation>Geb.</translation>
    </message>
    <message>
        <source>birth year</source>
        <translation>Geburtsjahr</translation>
    </message>
    <message>
        <source>Boats</source>
        <translation>Boote</translation>
    </message>
    <message>
        <source>Ret.</source>
        <translation>Zur.</translation>
    </message>
    <message>
        <source>Retired</source>
        <translation>Zurückgetreten</translation>
    </message>
    <message>
        <source>retirement</source>
        <translation>Rücktritt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AttackForm</name>
    <message>
        <source>Passed</source>
        <translation>Vorbei</translation>
    </message>
    <message>
        <source>No end</source>
        <translation>Ohne Ende</translation>
    </message>
    <message>
        <source>Takes the end of the attack out</source>
        <translation>Nimmt das Ende des Angriffs heraus</translation>
    </message>
    <message>
        <source>The attacker went past</source>
        <translation>Der Angreifer kam vorbei</translation>
    </message>
    <message>
        <source>Attacker</source>
        <translation>Angreifer</translation>
    </message>
    <message>
        <source>on</source>
        <translation>auf</translation>
    </message>
    <message>
        <source>attacker</source>
        <translation>Angreifer</translation>
    </message>
    <message>
        <source>outcome of an attack</source>
        <translation>Ausgang eines Angriffs</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>side of an attack</source>
        <translation>Seite eines Angriffs</translation>
    </message>
    <message>
        <source>place of an attack</source>
        <translation>Ort eines Angriffs</translation>
    </message>
    <message>
        <source>comment on an attack</source>
        <translation>Kommentar zu einem Angriff</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>Beginnt hier</translation>
    </message>
    <message>
        <source>The attack starts at this frame</source>
        <translation>Der Angriff beginnt bei diesem Bild</translation>
    </message>
    <message>
        <source>End here</source>
        <translation>Endet hier</translation>
    </message>
    <message>
        <source>The attack ends at this frame</source>
        <translation>Der Angriff endet bei diesem Bild</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Removes the attack</source>
        <translation>Entfernt den Angriff</translation>
    </message>
    <message>
        <source>?  %1</source>
        <translation>?  %1</translation>
    </message>
    <message>
        <source>unnamed</source>
        <translation>ohne Namen</translation>
    </message>
    <message>
        <source>Start %1</source>
        <translation>Anfang %1</translation>
    </message>
    <message>
        <source>End %1</source>
        <translation>Ende %1</translation>
    </message>
    <message>
        <source>defenders</source>
        <translation>Verteidiger</translation>
    </message>
    <message>
        <source>%1 defends</source>
        <translation>%1 verteidigt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AveragesModel</name>
    <message>
        <source>Share of the runs with so many penalty seconds</source>
        <translation>Anteil der Läufe mit so vielen Strafsekunden</translation>
    </message>
    <message>
        <source>S%1</source>
        <translation>S%1</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Saison</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Behind</source>
        <translation>Rückstand</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Fehlerfrei</translation>
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
        <translation>6 bis 48 s</translation>
    </message>
    <message>
        <source>50 s and more</source>
        <translation>50 s und mehr</translation>
    </message>
    <message>
        <source>All seasons</source>
        <translation>Alle Saisons</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::BalanceView</name>
    <message>
        <source>Side unknown: nothing tells which side of the phone points to the bow. Name its mount in the menu Edit, and left and right are found.</source>
        <translation>Seite unbekannt: nichts sagt, welche Seite des Telefons zum Bug zeigt. Seine Lage im Menü Bearbeiten nennen, dann sind links und rechts bestimmt.</translation>
    </message>
    <message>
        <source>even</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>left +%1 %</source>
        <translation>links +%1&#xa0;%</translation>
    </message>
    <message>
        <source>right +%1 %</source>
        <translation>rechts +%1&#xa0;%</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Schläge</translation>
    </message>
    <message>
        <source>Force (N)</source>
        <translation>Kraft (N)</translation>
    </message>
    <message>
        <source>Impulse (N·s)</source>
        <translation>Impuls (N·s)</translation>
    </message>
    <message>
        <source>Power (W)</source>
        <translation>Leistung (W)</translation>
    </message>
    <message>
        <source>Water phase (s)</source>
        <translation>Wasserphase (s)</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Differences under %1 % are no finding</source>
        <translation>Unterschiede unter %1&#xa0;% sagen nichts</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::BodyPanel</name>
    <message>
        <source>Body</source>
        <translation>Körper</translation>
    </message>
    <message>
        <source>body data</source>
        <translation>Körperdaten</translation>
    </message>
    <message>
        <source>Add weight</source>
        <translation>Neues Gewicht</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Body fat</source>
        <translation>Körperfett</translation>
    </message>
    <message>
        <source>Resting heart rate</source>
        <translation>Ruhepuls</translation>
    </message>
    <message>
        <source>heart rate</source>
        <translation>Herzfrequenz</translation>
    </message>
    <message>
        <source>Add heart rate</source>
        <translation>Neue Herzfrequenz</translation>
    </message>
    <message>
        <source>Heart-rate variability</source>
        <translation>Herzfrequenzvariabilität</translation>
    </message>
    <message>
        <source>variability</source>
        <translation>Variabilität</translation>
    </message>
    <message>
        <source>Add measurement</source>
        <translation>Neue Messung</translation>
    </message>
    <message>
        <source>Import list…</source>
        <translation>Liste importieren…</translation>
    </message>
    <message>
        <source>A list with a header: Date and one or more of AVNN, SDNN, rMSSD, pNN50, LF, HF. It can also be dropped here.</source>
        <translation>Eine Liste mit Kopfzeile: Date und einer oder mehrere von AVNN, SDNN, rMSSD, pNN50, LF, HF. Sie lässt sich auch hierher ziehen.</translation>
    </message>
    <message>
        <source>Index of the chart</source>
        <translation>Index des Diagramms</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>&amp;Index</translation>
    </message>
    <message>
        <source>Choose an athlete.</source>
        <translation>Einen Athleten wählen.</translation>
    </message>
    <message>
        <source>Add a season for this athlete first.</source>
        <translation>Erst eine Saison für diesen Athleten hinzufügen.</translation>
    </message>
    <message>
        <source>No weight of this season yet.
Press Insert to add today&apos;s.</source>
        <translation>Noch kein Gewicht dieser Saison.
Einfg fügt das heutige hinzu.</translation>
    </message>
    <message>
        <source>No heart rate of this season yet.
Press Insert to add this morning&apos;s.</source>
        <translation>Noch keine Herzfrequenz dieser Saison.
Einfg fügt die von heute Morgen hinzu.</translation>
    </message>
    <message>
        <source>No measurement of this season yet.
Press Insert to add one, or import a list.</source>
        <translation>Noch keine Messung dieser Saison.
Einfg fügt eine hinzu, oder eine Liste importieren.</translation>
    </message>
    <message>
        <source>bpm</source>
        <translation>1/min</translation>
    </message>
    <message>
        <source>Add a few mornings&apos; heart rates to see the mean of the week against what is usual.</source>
        <translation>Die Herzfrequenz einiger Morgen hinzufügen, um das Wochenmittel gegen das Übliche zu sehen.</translation>
    </message>
    <message>
        <source>No %1 of this season. Add measurements, import a list or choose another index.</source>
        <translation>Kein %1 in dieser Saison. Messungen hinzufügen, eine Liste importieren oder einen anderen Index wählen.</translation>
    </message>
    <message>
        <source>Import variability</source>
        <translation>Variabilität importieren</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt *.tsv);;All files (*)</source>
        <translation>Listen (*.csv *.txt *.tsv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>import of variability</source>
        <translation>Import von Variabilität</translation>
    </message>
    <message>
        <source>The list cannot be read: %1</source>
        <translation>Die Liste ist nicht lesbar: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CameraPage</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Markierung</translation>
    </message>
    <message>
        <source>Lag</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Off by</source>
        <translation>Abweichung</translation>
    </message>
    <message>
        <source>Attach a film…</source>
        <translation>Film zuordnen…</translation>
    </message>
    <message>
        <source>Beside the film</source>
        <translation>Daneben</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>Lösen</translation>
    </message>
    <message>
        <source>Takes the film shown beside off this run</source>
        <translation>Nimmt den daneben gezeigten Film von diesem Lauf</translation>
    </message>
    <message>
        <source>Attach it to every run</source>
        <translation>Jedem Lauf zuordnen</translation>
    </message>
    <message>
        <source>A fixed camera often films the whole race in one go</source>
        <translation>Eine feste Kamera filmt oft das ganze Rennen am Stück</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Attach the film of a camera that stood at the course.</source>
        <translation>Den Film einer Kamera zuordnen, die an der Strecke stand.</translation>
    </message>
    <message>
        <source>Choose a camera to see its film beside this one.</source>
        <translation>Eine Kamera wählen, um ihren Film neben diesem zu sehen.</translation>
    </message>
    <message>
        <source>Find one moment on both films, the fixed camera&apos;s alone with Alt+PgUp and Alt+PgDown. M marks it.</source>
        <translation>Einen Moment auf beiden Filmen suchen, den der festen Kamera allein mit Alt+Bild auf und Alt+Bild ab. M markiert ihn.</translation>
    </message>
    <message>
        <source>In step: the fixed camera&apos;s film is %1 s ahead.</source>
        <translation>Im Gleichlauf: der Film der festen Kamera ist %1 s voraus.</translation>
    </message>
    <message>
        <source>Placed by the dates in the two films, to a second or two.</source>
        <translation>Nach den Daten in beiden Filmen gelegt, auf ein, zwei Sekunden genau.</translation>
    </message>
    <message>
        <source>Not in step yet.</source>
        <translation>Noch nicht im Gleichlauf.</translation>
    </message>
    <message>
        <source>Its film has no date: moments are kept without the time of its clock.</source>
        <translation>Ihr Film hat kein Datum: Momente stehen ohne die Zeit ihrer Uhr.</translation>
    </message>
    <message>
        <source>fixed camera detached</source>
        <translation>feste Kamera gelöst</translation>
    </message>
    <message>
        <source>fixed camera for every run</source>
        <translation>feste Kamera für jeden Lauf</translation>
    </message>
    <message>
        <source>The film of the fixed camera shows no frame.</source>
        <translation>Der Film der festen Kamera zeigt kein Bild.</translation>
    </message>
    <message>
        <source>moment on both films</source>
        <translation>Moment auf beiden Filmen</translation>
    </message>
    <message>
        <source>Same moment</source>
        <translation>Gleicher Moment</translation>
    </message>
    <message>
        <source>moment removed</source>
        <translation>Moment entfernt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Chart</name>
    <message>
        <source>1 run</source>
        <translation>1 Lauf</translation>
    </message>
    <message>
        <source> · %1 of %2 selected runs</source>
        <translation> · %1 von %2 gewählten Läufen</translation>
    </message>
    <message>
        <source>The filter matches nobody. Change it to see runs again.</source>
        <translation>Der Filter passt auf niemanden. Ihn ändern, um wieder Läufe zu sehen.</translation>
    </message>
    <message>
        <source>Open a race to see its charts.</source>
        <translation>Ein Rennen öffnen, um seine Diagramme zu sehen.</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n Lauf</numerusform>
            <numerusform>%n Läufe</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ChartPanel</name>
    <message>
        <source>Charts</source>
        <translation>Diagramme</translation>
    </message>
    <message>
        <source>&amp;Reference</source>
        <translation>&amp;Referenz</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>What the runs are held against</source>
        <translation>Womit die Läufe verglichen werden</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Show everything again (or double click)</source>
        <translation>Wieder alles zeigen (oder Doppelklick)</translation>
    </message>
    <message>
        <source>Save chart…</source>
        <translation>Diagramm speichern…</translation>
    </message>
    <message>
        <source>Save as PNG, SVG or CSV</source>
        <translation>Als PNG, SVG oder CSV speichern</translation>
    </message>
    <message>
        <source>Best run</source>
        <translation>Bester Lauf</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Ideal run</source>
        <translation>Ideallauf</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ChartTabs</name>
    <message>
        <source>Season</source>
        <translation>Saison</translation>
    </message>
    <message>
        <source>Race progression</source>
        <translation>Rennverlauf</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>Mittelwerte</translation>
    </message>
    <message>
        <source>&amp;All seasons</source>
        <translation>&amp;Alle Saisons</translation>
    </message>
    <message>
        <source>The season chart shows every season, not the chosen one alone</source>
        <translation>Das Saisondiagramm zeigt jede Saison, nicht nur die gewählte</translation>
    </message>
    <message>
        <source>Save chart…</source>
        <translation>Diagramm speichern…</translation>
    </message>
    <message>
        <source>As a picture (PNG, SVG) or as CSV (Ctrl+E)</source>
        <translation>Als Bild (PNG, SVG) oder als CSV (Strg+E)</translation>
    </message>
    <message>
        <source>The results of an athlete stand here as charts.</source>
        <translation>Hier stehen die Ergebnisse eines Athleten als Diagramme.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>all seasons</source>
        <translation>alle Saisons</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ChartView</name>
    <message>
        <source>No test yet</source>
        <translation>Noch kein Test</translation>
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
        <translation>Zwischenzeit %1 (s)</translation>
    </message>
    <message>
        <source>Total (s)</source>
        <translation>Gesamt (s)</translation>
    </message>
    <message>
        <source>Standard deviation (s)</source>
        <translation>Standardabweichung (s)</translation>
    </message>
    <message>
        <source>Laps</source>
        <translation>Runden</translation>
    </message>
    <message>
        <source>Turns</source>
        <translation>Drehungen</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Schläge</translation>
    </message>
    <message>
        <source>Stretches</source>
        <translation>Stücke</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ClipPair</name>
    <message>
        <source>This run has no film.</source>
        <translation>Dieser Lauf hat keinen Film.</translation>
    </message>
    <message>
        <source>The film is not there:
%1</source>
        <translation>Der Film ist nicht da:
%1</translation>
    </message>
    <message>
        <source>Play or pause the clips</source>
        <translation>Clips abspielen oder anhalten</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Play the clips from their beginnings</source>
        <translation>Clips von Anfang an abspielen</translation>
    </message>
    <message>
        <source>From the start</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>One frame back in the clips</source>
        <translation>Ein Bild zurück in den Clips</translation>
    </message>
    <message>
        <source>Frame back</source>
        <translation>Bild zurück</translation>
    </message>
    <message>
        <source>One frame forward in the clips</source>
        <translation>Ein Bild vor in den Clips</translation>
    </message>
    <message>
        <source>Frame on</source>
        <translation>Bild vor</translation>
    </message>
    <message>
        <source>Clips in slow motion</source>
        <translation>Clips in Zeitlupe</translation>
    </message>
    <message>
        <source>Slow motion</source>
        <translation>Zeitlupe</translation>
    </message>
    <message>
        <source>Clips slower</source>
        <translation>Clips langsamer</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Langsamer</translation>
    </message>
    <message>
        <source>Clips faster</source>
        <translation>Clips schneller</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Schneller</translation>
    </message>
    <message>
        <source>Clips at normal speed</source>
        <translation>Clips mit normalem Tempo</translation>
    </message>
    <message>
        <source>Normal speed</source>
        <translation>Normales Tempo</translation>
    </message>
    <message>
        <source>Repeat the clips</source>
        <translation>Clips wiederholen</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>%1 · %2 s, at its end</source>
        <translation>%1 · %2 s, am Ende</translation>
    </message>
    <message>
        <source>%1 · %2 of %3 s</source>
        <translation>%1 · %2 von %3 s</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ColumnTable</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Copy what is selected</source>
        <translation>Gewähltes &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation>Als CS&amp;V speichern…</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>&amp;Spalten</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Tabelle speichern</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Text mit Semikolons (*.csv)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CommandPalette</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>An action, a file, an athlete</source>
        <translation>Eine Aktion, eine Datei, ein Athlet</translation>
    </message>
    <message>
        <source>Nothing here is called “%1”.</source>
        <translation>Hier heißt nichts „%1“.</translation>
    </message>
    <message>
        <source>Searched: actions, recent files and the names in this window.</source>
        <translation>Durchsucht: Aktionen, zuletzt geöffnete Dateien und die Namen in diesem Fenster.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CommentPage</name>
    <message>
        <source>score</source>
        <translation>Wertung</translation>
    </message>
    <message>
        <source>Show the coach&apos;s comments</source>
        <translation>Kommentare des Trainers zeigen</translation>
    </message>
    <message>
        <source>comment on split %1</source>
        <translation>Kommentar zu Zwischenzeit %1</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Zwischenzeit</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>coach</source>
        <translation>Trainer</translation>
    </message>
    <message>
        <source>Scores</source>
        <translation>Wertungen</translation>
    </message>
    <message>
        <source>Give-ups</source>
        <translation>Aufgegeben</translation>
    </message>
    <message>
        <source>team radio</source>
        <translation>Teamfunk</translation>
    </message>
    <message>
        <source>team radio removed</source>
        <translation>Teamfunk entfernt</translation>
    </message>
    <message>
        <source>team radio moved</source>
        <translation>Teamfunk verschoben</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareDocument</name>
    <message>
        <source>It is no comparison of films, or a damaged one: %1</source>
        <translation>Das ist kein Filmvergleich, oder ein beschädigter: %1</translation>
    </message>
    <message>
        <source>1 film</source>
        <translation>1 Film</translation>
    </message>
    <message numerus="yes">
        <source>%n films</source>
        <translation>
            <numerusform>%n Film</numerusform>
            <numerusform>%n Filme</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareFilmsPanel</name>
    <message>
        <source>In it</source>
        <translation>Darin</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>It is not marked from the start to a split.</source>
        <translation>Er ist nicht vom Start bis zu einer Zwischenzeit markiert.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Name in the film</source>
        <translation>Name im Film</translation>
    </message>
    <message>
        <source>name in the film</source>
        <translation>Name im Film</translation>
    </message>
    <message>
        <source>In place of that of the split file.</source>
        <translation>Anstelle dessen aus der Zwischenzeitdatei.</translation>
    </message>
    <message>
        <source>category in the film</source>
        <translation>Kategorie im Film</translation>
    </message>
    <message>
        <source>Starts at [s]</source>
        <translation>Beginn [s]</translation>
    </message>
    <message>
        <source>The second of the film at which a run without marks starts.</source>
        <translation>Die Sekunde des Films, in der ein Lauf ohne Marken beginnt.</translation>
    </message>
    <message>
        <source>marked</source>
        <translation>markiert</translation>
    </message>
    <message>
        <source>The start is a second of the film, 0 to 86400</source>
        <translation>Der Start ist eine Sekunde des Films, 0 bis 86400</translation>
    </message>
    <message>
        <source>start of a film</source>
        <translation>Start eines Films</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Find a name, a category, a film…</source>
        <translation>Name, Kategorie oder Film suchen…</translation>
    </message>
    <message>
        <source>Add split files or films, then tick the two to four that are compared.</source>
        <translation>Zwischenzeitdateien oder Filme hinzufügen, dann zwei bis vier zum Vergleich abhaken.</translation>
    </message>
    <message>
        <source>Add s&amp;plit files…</source>
        <translation>&amp;Zwischenzeitdateien hinzufügen…</translation>
    </message>
    <message>
        <source>Add &amp;films…</source>
        <translation>Fil&amp;me hinzufügen…</translation>
    </message>
    <message>
        <source>In the composed film</source>
        <translation>Im zusammengesetzten Film</translation>
    </message>
    <message>
        <source>No film is chosen yet.</source>
        <translation>Noch kein Film gewählt.</translation>
    </message>
    <message>
        <source>&amp;Take it out</source>
        <translation>&amp;Herausnehmen</translation>
    </message>
    <message>
        <source>Move it &amp;up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move it &amp;down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Four films are the most. Take one out first.</source>
        <translation>Mehr als vier Filme gehen nicht. Erst einen herausnehmen.</translation>
    </message>
    <message>
        <source>choice of a film</source>
        <translation>Wahl eines Films</translation>
    </message>
    <message>
        <source>removal of a film</source>
        <translation>Entfernen eines Films</translation>
    </message>
    <message>
        <source>order of the films</source>
        <translation>Reihenfolge der Filme</translation>
    </message>
    <message>
        <source>path of a film</source>
        <translation>Bahn eines Films</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Bahn</translation>
    </message>
    <message>
        <source>Draws the path that was followed on it in the window Tracking.</source>
        <translation>Zeichnet die Bahn ein, die im Fenster Verfolgung auf ihm verfolgt wurde.</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Folgen</translation>
    </message>
    <message>
        <source>Shows it twice as large, round that path.</source>
        <translation>Zeigt ihn doppelt so groß, um diese Bahn herum.</translation>
    </message>
    <message>
        <source>Its place in the composed film. Enter chooses it or takes it out.</source>
        <translation>Sein Platz im zusammengesetzten Film. Eingabetaste wählt ihn oder nimmt ihn heraus.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareForm</name>
    <message>
        <source>the start</source>
        <translation>der Start</translation>
    </message>
    <message>
        <source>&amp;Layout</source>
        <translation>&amp;Anordnung</translation>
    </message>
    <message>
        <source>Line at</source>
        <translation>Linie bei</translation>
    </message>
    <message>
        <source>0 left, 1 right</source>
        <translation>0 links, 1 rechts</translation>
    </message>
    <message>
        <source>&amp;Together</source>
        <translation>&amp;Gleichauf</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Zwischenzeit</translation>
    </message>
    <message>
        <source>Sho&amp;wn</source>
        <translation>Ge&amp;zeigt</translation>
    </message>
    <message>
        <source>From split</source>
        <translation>Von Zwischenzeit</translation>
    </message>
    <message>
        <source>To split</source>
        <translation>Bis Zwischenzeit</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Spee&amp;d</source>
        <translation>&amp;Tempo</translation>
    </message>
    <message>
        <source>Slow motion has no sound.</source>
        <translation>Zeitlupe hat keinen Ton.</translation>
    </message>
    <message>
        <source>To be read in it</source>
        <translation>Darin zu lesen</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>&amp;Namen</translation>
    </message>
    <message>
        <source>&amp;Clock</source>
        <translation>&amp;Uhr</translation>
    </message>
    <message>
        <source>Split times and gaps</source>
        <translation>Zwischenzeiten und Rückstände</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Strafen</translation>
    </message>
    <message>
        <source>Chart of the gap</source>
        <translation>Diagramm des Rückstands</translation>
    </message>
    <message>
        <source>The file</source>
        <translation>Die Datei</translation>
    </message>
    <message>
        <source>Si&amp;ze</source>
        <translation>G&amp;röße</translation>
    </message>
    <message>
        <source>1080 × 1920, upright</source>
        <translation>1080 × 1920, hochkant</translation>
    </message>
    <message>
        <source>720 × 1280, upright</source>
        <translation>720 × 1280, hochkant</translation>
    </message>
    <message>
        <source>1080 × 1080, square</source>
        <translation>1080 × 1080, quadratisch</translation>
    </message>
    <message>
        <source>For sending</source>
        <translation>Zum Versenden</translation>
    </message>
    <message>
        <source>At most 1280 × 720 and coarser: a small file.</source>
        <translation>Höchstens 1280 × 720 und gröber: eine kleine Datei.</translation>
    </message>
    <message>
        <source>S&amp;ound of film</source>
        <translation>T&amp;on des Films</translation>
    </message>
    <message>
        <source>None in slow motion, nor while that film waits or is stretched.</source>
        <translation>Keiner in Zeitlupe, und solange dieser Film wartet oder gedehnt ist.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareView</name>
    <message>
        <source>Preview of the composed film</source>
        <translation>Vorschau des zusammengesetzten Films</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareWindow</name>
    <message>
        <source>Compare films</source>
        <translation>Filme vergleichen</translation>
    </message>
    <message>
        <source>Compose the &amp;film…</source>
        <translation>F&amp;ilm zusammensetzen…</translation>
    </message>
    <message>
        <source>Add s&amp;plit files…</source>
        <translation>&amp;Zwischenzeitdateien hinzufügen…</translation>
    </message>
    <message>
        <source>Add &amp;films…</source>
        <translation>Fil&amp;me hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Compose the film…</source>
        <translation>F&amp;ilm zusammensetzen…</translation>
    </message>
    <message>
        <source>Films being composed: &amp;jobs</source>
        <translation>Auft&amp;räge: Filme in Arbeit</translation>
    </message>
    <message>
        <source>&amp;Find a run or a film</source>
        <translation>Lauf oder Film s&amp;uchen</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>Abs&amp;pielen oder anhalten</translation>
    </message>
    <message>
        <source>From the &amp;beginning</source>
        <translation>Von &amp;Anfang an</translation>
    </message>
    <message>
        <source>One frame ba&amp;ck</source>
        <translation>Ein Bild zu&amp;rück</translation>
    </message>
    <message>
        <source>One frame &amp;on</source>
        <translation>Ein Bild &amp;vor</translation>
    </message>
    <message>
        <source>P&amp;art</source>
        <translation>&amp;Teil</translation>
    </message>
    <message>
        <source>&amp;Begin here</source>
        <translation>Hier &amp;beginnen</translation>
    </message>
    <message>
        <source>&amp;End here</source>
        <translation>Hier &amp;enden</translation>
    </message>
    <message>
        <source>The &amp;whole run</source>
        <translation>Der &amp;ganze Lauf</translation>
    </message>
    <message>
        <source>part that is shown</source>
        <translation>gezeigter Teil</translation>
    </message>
    <message>
        <source>&amp;Align the second film by two points</source>
        <translation>Zweiten Film an zwei Punkten aus&amp;richten</translation>
    </message>
    <message>
        <source>&amp;Forget the points</source>
        <translation>Punkte verge&amp;ssen</translation>
    </message>
    <message>
        <source>The film could not be composed: %1</source>
        <translation>Der Film konnte nicht zusammengesetzt werden: %1</translation>
    </message>
    <message>
        <source>%1 is there. %2</source>
        <translation>%1 ist da. %2</translation>
    </message>
    <message>
        <source>Add the runs of split files</source>
        <translation>Läufe von Zwischenzeitdateien hinzufügen</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Zwischenzeitdateien (*.kvx);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Add films</source>
        <translation>Filme hinzufügen</translation>
    </message>
    <message>
        <source>Films (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;All files (*)</source>
        <translation>Filme (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Tick two to four films to compare them.</source>
        <translation>Zwei bis vier Filme zum Vergleich abhaken.</translation>
    </message>
    <message>
        <source>Tick one more film to compare it with.</source>
        <translation>Noch einen Film zum Vergleich abhaken.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Four films are the most: these are the first four</source>
        <translation>Mehr als vier Filme gehen nicht: dies sind die ersten vier</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>%1 of %2 s</source>
        <translation>%1 von %2 s</translation>
    </message>
    <message>
        <source>Two films are aligned: choose two.</source>
        <translation>Zwei Filme werden ausgerichtet: zwei wählen.</translation>
    </message>
    <message>
        <source>points that were forgotten</source>
        <translation>vergessene Punkte</translation>
    </message>
    <message>
        <source>alignment by two points</source>
        <translation>Ausrichten an zwei Punkten</translation>
    </message>
    <message>
        <source>Compose the film</source>
        <translation>Film zusammensetzen</translation>
    </message>
    <message>
        <source>Films (*.mp4)</source>
        <translation>Filme (*.mp4)</translation>
    </message>
    <message>
        <source>file of the film</source>
        <translation>Datei des Films</translation>
    </message>
    <message>
        <source>Composing: %1, %2 more</source>
        <translation>Wird zusammengesetzt: %1, %2 weitere</translation>
    </message>
    <message>
        <source>Composing: %1</source>
        <translation>Wird zusammengesetzt: %1</translation>
    </message>
    <message>
        <source>Film %1</source>
        <translation>Film %1</translation>
    </message>
    <message>
        <source>Click the same two things in both films, such as the poles of a gate. Escape gives it up.</source>
        <translation>In beiden Filmen auf dieselben zwei Dinge klicken, etwa die Torstäbe. Escape bricht ab.</translation>
    </message>
    <message>
        <source>Two runs or films make a comparison: drop them here, or add them with Ctrl+Shift+O and Ctrl+I.</source>
        <translation>Zum Vergleichen braucht es zwei Läufe oder Filme: hier ablegen oder mit Strg+Umschalt+O und Strg+I hinzufügen.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ComparisonPanel</name>
    <message>
        <source>%1 of %2 (%3–%4 %)</source>
        <translation>%1 von %2 (%3–%4&#xa0;%)</translation>
    </message>
    <message>
        <source>Behind the winners in the &amp;phase</source>
        <translation>Hinter den Siegern in der &amp;Phase</translation>
    </message>
    <message>
        <source>Nobody of the team races in this category.</source>
        <translation>Niemand im Team fährt in dieser Kategorie.</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Rennen</translation>
    </message>
    <message>
        <source>Behind, %</source>
        <translation>Rückstand, %</translation>
    </message>
    <message>
        <source>Median behind the winners of the phase, without missed gates</source>
        <translation>Median hinter den Siegern der Phase, ohne Torfehler</translation>
    </message>
    <message>
        <source>of runs</source>
        <translation>der Läufe</translation>
    </message>
    <message>
        <source>Within, %</source>
        <translation>Streuung, %</translation>
    </message>
    <message>
        <source>How much the runs vary by chance</source>
        <translation>Wie stark die Läufe zufällig schwanken</translation>
    </message>
    <message>
        <source>A year, %</source>
        <translation>Im Jahr, %</translation>
    </message>
    <message>
        <source>Trend behind the winners, over all phases</source>
        <translation>Trend hinter den Siegern, über alle Phasen</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>zu wenige</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Medaillen</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finals</translation>
    </message>
    <message>
        <source>The athletes year by year: %1</source>
        <translation>Die Athleten Jahr für Jahr: %1</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Median behind the winner, %</source>
        <translation>Median hinter dem Sieger, %</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CostPanel</name>
    <message>
        <source>%1 A medal.</source>
        <translation>%1 Eine Medaille.</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Besatzung</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Race</source>
        <translation>Rennen</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>2 for a touch, 50 for a missed gate</source>
        <translation>2 für eine Berührung, 50 für einen Torfehler</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>Wie es war</translation>
    </message>
    <message>
        <source>of</source>
        <translation>von</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Plätze</translation>
    </message>
    <message>
        <source>That it cost</source>
        <translation>Die es kostete</translation>
    </message>
    <message>
        <source>Without it</source>
        <translation>Ohne sie</translation>
    </message>
    <message>
        <source>A missed gate also saved paddling, which is not taken back here.</source>
        <translation>Ein Torfehler sparte auch Fahrzeit; das wird hier nicht zurückgenommen.</translation>
    </message>
    <message>
        <source>Show &amp;all</source>
        <translation>&amp;Alle zeigen</translation>
    </message>
    <message>
        <source>No penalty of a whole run is known by gate.</source>
        <translation>Von keinem ganzen Lauf ist eine Strafe nach Toren bekannt.</translation>
    </message>
    <message>
        <source>Open the run at this section</source>
        <translation>Lauf bei diesem Abschnitt öffnen</translation>
    </message>
    <message>
        <source>In split taking, where the section of the gate begins</source>
        <translation>In der Zwischenzeitnahme, wo der Abschnitt des Tors beginnt</translation>
    </message>
    <message>
        <source>Only gate %1</source>
        <translation>Nur Tor %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseCanvas</name>
    <message>
        <source>Drawing of the course</source>
        <translation>Zeichnung der Strecke</translation>
    </message>
    <message>
        <source>Hold the button down and draw along the water.</source>
        <translation>Die Taste gedrückt halten und am Wasser entlang zeichnen.</translation>
    </message>
    <message>
        <source>course</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>All %1 gates of the race are drawn. Race and course says how many there are.</source>
        <translation>Alle %1 Tore des Rennens sind gezeichnet. Wie viele es sind, sagt Rennen und Strecke.</translation>
    </message>
    <message>
        <source>All %1 splits of the race are drawn. Race and course says how many there are.</source>
        <translation>Alle %1 Zwischenzeiten des Rennens sind gezeichnet. Wie viele es sind, sagt Rennen und Strecke.</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 entfernt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseDialog</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Tore</translation>
    </message>
    <message>
        <source>Race and course</source>
        <translation>Rennen und Strecke</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Wettkampf</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Wasser</translation>
    </message>
    <message>
        <source>Technique</source>
        <translation>Technik</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentare</translation>
    </message>
    <message>
        <source>Such as 4 8 12</source>
        <translation>Etwa 4 8 12</translation>
    </message>
    <message>
        <source>Share the gates &amp;evenly</source>
        <translation>Tore &amp;gleichmäßig verteilen</translation>
    </message>
    <message>
        <source>&amp;Gates</source>
        <translation>&amp;Tore</translation>
    </message>
    <message>
        <source>&amp;Upstream gates</source>
        <translation>&amp;Aufwärtstore</translation>
    </message>
    <message>
        <source>&amp;Splits</source>
        <translation>&amp;Zwischenzeiten</translation>
    </message>
    <message>
        <source>Section %1: </source>
        <translation>Abschnitt %1: </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseEditor</name>
    <message>
        <source>Photo or plan of the course</source>
        <translation>Foto oder Plan der Strecke</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg);;All files (*)</source>
        <translation>Bilder (*.png *.jpg *.jpeg);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Words there</source>
        <translation>Text dort</translation>
    </message>
    <message>
        <source>Draw the course</source>
        <translation>Strecke zeichnen</translation>
    </message>
    <message>
        <source>The picture of the race cannot be drawn upon: %1 It stays as long as nothing is drawn.</source>
        <translation>Auf dem Bild des Rennens lässt sich nicht zeichnen: %1 Es bleibt, solange nichts gezeichnet wird.</translation>
    </message>
    <message>
        <source>Tab next part · arrows move it, Shift+arrows far · Alt+←/→ turn · PgDn its points · Delete · Insert puts one in the middle · Ctrl+Z undo, Ctrl+Shift+Z redo</source>
        <translation>Tab nächster Teil · Pfeile verschieben ihn, Umschalt+Pfeile weit · Alt+←/→ dreht · Bild ab seine Punkte · Entf · Einfg setzt einen in die Mitte · Strg+Z zurück, Strg+Umschalt+Z wieder vor</translation>
    </message>
    <message>
        <source>Wheel, + and − zoom · 0 shows all · drag with Space or the middle button moves the view</source>
        <translation>Rad, + und − zoomen · 0 zeigt alles · Ziehen mit Leertaste oder mittlerer Taste verschiebt den Ausschnitt</translation>
    </message>
    <message>
        <source>&amp;Hold and move</source>
        <translation>&amp;Greifen und verschieben</translation>
    </message>
    <message>
        <source>&amp;Gate</source>
        <translation>&amp;Tor</translation>
    </message>
    <message>
        <source>&amp;Split line</source>
        <translation>&amp;Zeitlinie</translation>
    </message>
    <message>
        <source>&amp;Bank</source>
        <translation>&amp;Ufer</translation>
    </message>
    <message>
        <source>&amp;Line of a run</source>
        <translation>&amp;Linie eines Laufs</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>Te&amp;xt</translation>
    </message>
    <message>
        <source>&amp;Photo below…</source>
        <translation>&amp;Foto darunter…</translation>
    </message>
    <message>
        <source>Only whit&amp;e below</source>
        <translation>Nur &amp;Weiß darunter</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>white</source>
        <translation>weiß</translation>
    </message>
    <message>
        <source>Leave the course as it was? What was drawn is lost.</source>
        <translation>Die Strecke lassen, wie sie war? Was gezeichnet wurde, ist dann verloren.</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>So lassen</translation>
    </message>
    <message>
        <source>Drag a part, or one of its points. The poles of a gate turn about each other.</source>
        <translation>Ziehen Sie ein Teil oder einen seiner Punkte. Die Stäbe eines Tors drehen sich umeinander.</translation>
    </message>
    <message>
        <source>Click where a gate hangs; hold the button and drag its right pole round.</source>
        <translation>Klicken Sie, wo ein Tor hängt; halten Sie die Taste und drehen Sie den rechten Stab herum.</translation>
    </message>
    <message>
        <source>Drag from bank to bank where the split is taken.</source>
        <translation>Ziehen Sie von Ufer zu Ufer, wo die Zwischenzeit genommen wird.</translation>
    </message>
    <message>
        <source>Draw along the bank with the button held down.</source>
        <translation>Zeichnen Sie mit gehaltener Taste am Ufer entlang.</translation>
    </message>
    <message>
        <source>Draw the way of a boat with the button held down, and name it at the right.</source>
        <translation>Zeichnen Sie mit gehaltener Taste den Weg eines Boots und benennen Sie ihn rechts.</translation>
    </message>
    <message>
        <source>Click where words are to stand.</source>
        <translation>Klicken Sie, wo Wörter stehen sollen.</translation>
    </message>
    <message>
        <source>It has %1 MB. Up to 40 MB can be read; save it smaller first.</source>
        <translation>Es hat %1 MB. Bis zu 40 MB können gelesen werden; speichern Sie es zuerst kleiner.</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Alle Tasten</translation>
    </message>
    <message>
        <source>Parts of the course</source>
        <translation>Teile der Strecke</translation>
    </message>
    <message>
        <source>Next part</source>
        <translation>Nächster Teil</translation>
    </message>
    <message>
        <source>Move the part</source>
        <translation>Den Teil verschieben</translation>
    </message>
    <message>
        <source>Move it far</source>
        <translation>Ihn weit verschieben</translation>
    </message>
    <message>
        <source>Turn it</source>
        <translation>Ihn drehen</translation>
    </message>
    <message>
        <source>Its next point</source>
        <translation>Sein nächster Punkt</translation>
    </message>
    <message>
        <source>Its previous point</source>
        <translation>Sein voriger Punkt</translation>
    </message>
    <message>
        <source>A new part in the middle</source>
        <translation>Ein neuer Teil in der Mitte</translation>
    </message>
    <message>
        <source>Remove the part</source>
        <translation>Den Teil entfernen</translation>
    </message>
    <message>
        <source>Leave the part alone</source>
        <translation>Den Teil lassen</translation>
    </message>
    <message>
        <source>View and steps</source>
        <translation>Ansicht und Schritte</translation>
    </message>
    <message>
        <source>Closer</source>
        <translation>Näher</translation>
    </message>
    <message>
        <source>Further away</source>
        <translation>Weiter weg</translation>
    </message>
    <message>
        <source>The whole course</source>
        <translation>Die ganze Strecke</translation>
    </message>
    <message>
        <source>Held, dragging moves the view</source>
        <translation>Gehalten verschiebt Ziehen die Ansicht</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseMap</name>
    <message>
        <source>Map of the course</source>
        <translation>Karte der Strecke</translation>
    </message>
    <message>
        <source>Turn %1
Duration %2 s, angle %3°
Rotation: peak %4 °/s, mean %5 °/s
Push out: peak %6 m/s², mean %7 m/s²
Roll %8° (+ inside), pitch %9° (+ bow up)</source>
        <translation>Drehung %1
Dauer %2 s, Winkel %3°
Rotation: Spitze %4 °/s, Mittel %5 °/s
Abdruck: Spitze %6 m/s², Mittel %7 m/s²
Rollen %8° (+ innen), Stampfen %9° (+ Bug hoch)</translation>
    </message>
    <message>
        <source>There are no position fixes in this session: no map.</source>
        <translation>In dieser Einheit sind keine Ortungen: keine Karte.</translation>
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
        <translation>Tempo (m/s)</translation>
    </message>
    <message>
        <source>Stroke rate (1/min)</source>
        <translation>Schlagfrequenz (1/min)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CoursePanel</name>
    <message>
        <source>C&amp;ourse of</source>
        <translation>&amp;Strecke von</translation>
    </message>
    <message>
        <source>The drawing of the course in this file cannot be shown.</source>
        <translation>Die Zeichnung der Strecke in dieser Datei lässt sich nicht zeigen.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CoursePartForm</name>
    <message>
        <source>&amp;Number</source>
        <translation>&amp;Nummer</translation>
    </message>
    <message>
        <source>&amp;Upstream gate</source>
        <translation>&amp;Aufwärtstor</translation>
    </message>
    <message>
        <source>Na&amp;me or text</source>
        <translation>Na&amp;me oder Text</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>not measured</source>
        <translation>nicht gemessen</translation>
    </message>
    <message>
        <source>&amp;Width of the picture</source>
        <translation>&amp;Breite des Bilds</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Nichts gewählt</translation>
    </message>
    <message>
        <source>The race has %1 gates only. Race and course says how many there are.</source>
        <translation>Das Rennen hat nur %1 Tore. Wie viele es sind, sagt Rennen und Strecke.</translation>
    </message>
    <message>
        <source>direction of gate %1</source>
        <translation>Richtung von Tor %1</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>Nummer %1</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>width of the picture</source>
        <translation>Breite des Bilds</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseStrip</name>
    <message>
        <source>Course</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Tore</translation>
    </message>
    <message>
        <source>Such as 1, 2, 3, 4</source>
        <translation>Etwa 1, 2, 3, 4</translation>
    </message>
    <message>
        <source>Roll after gate</source>
        <translation>Rolle nach Tor</translation>
    </message>
    <message>
        <source>Empty without a roll</source>
        <translation>Leer ohne Rolle</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Which gates does the cross course have?</source>
        <translation>Welche Tore hat die Cross-Strecke?</translation>
    </message>
    <message>
        <source>1 gate</source>
        <translation>1 Tor</translation>
    </message>
    <message>
        <source>roll after %1</source>
        <translation>Rolle nach %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no gate number.</source>
        <translation>„%1“ ist keine Tornummer.</translation>
    </message>
    <message>
        <source>The roll is after gate %1, which is not on the course.</source>
        <translation>Die Rolle ist nach Tor %1, das nicht auf der Strecke ist.</translation>
    </message>
    <message>
        <source>course</source>
        <translation>Strecke</translation>
    </message>
    <message numerus="yes">
        <source>%n gates</source>
        <translation>
            <numerusform>%n Tor</numerusform>
            <numerusform>%n Tore</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CrossActions</name>
    <message>
        <source>&amp;Open a split file…</source>
        <translation>&amp;Zwischenzeitdatei öffnen…</translation>
    </message>
    <message>
        <source>&amp;Save data</source>
        <translation>Daten &amp;speichern</translation>
    </message>
    <message>
        <source>Open a &amp;folder of films…</source>
        <translation>&amp;Ordner mit Filmen öffnen…</translation>
    </message>
    <message>
        <source>Open a folder of films</source>
        <translation>Ordner mit Filmen öffnen</translation>
    </message>
    <message>
        <source>&amp;Import films of time trials…</source>
        <translation>Fil&amp;me von Zeitfahren importieren…</translation>
    </message>
    <message>
        <source>Film of the selected trial or &amp;heat…</source>
        <translation>Film des gewählten Zeitfahrens oder &amp;Heats…</translation>
    </message>
    <message>
        <source>&amp;Where are the films now?…</source>
        <translation>&amp;Wo sind die Filme jetzt?…</translation>
    </message>
    <message>
        <source>Split &amp;taking of this race</source>
        <translation>Zwischenzeitnahme &amp;dieses Rennens</translation>
    </message>
    <message>
        <source>Show in the race &amp;analyzer</source>
        <translation>In der Renn&amp;analyse zeigen</translation>
    </message>
    <message>
        <source>Open a split file</source>
        <translation>Zwischenzeitdatei öffnen</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Zwischenzeitdateien (*.kvx);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&amp;Course of the cross race</source>
        <translation>&amp;Strecke des Cross-Rennens</translation>
    </message>
    <message>
        <source>&amp;Previous trial or heat</source>
        <translation>&amp;Voriges Zeitfahren oder Heat</translation>
    </message>
    <message>
        <source>&amp;Next trial or heat</source>
        <translation>&amp;Nächstes Zeitfahren oder Heat</translation>
    </message>
    <message>
        <source>Copy the &amp;results</source>
        <translation>Ergebnisse &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>&amp;Markieren</translation>
    </message>
    <message>
        <source>&amp;Mark the frame shown</source>
        <translation>Gezeigtes Bild &amp;markieren</translation>
    </message>
    <message>
        <source>To the first mark</source>
        <translation>Zur ersten Marke</translation>
    </message>
    <message>
        <source>Next &amp;gate</source>
        <translation>&amp;Nächstes Tor</translation>
    </message>
    <message>
        <source>Previous g&amp;ate</source>
        <translation>V&amp;origes Tor</translation>
    </message>
    <message>
        <source>Split, gate or boat &amp;%1</source>
        <translation>Zwischenzeit, Tor oder Boot &amp;%1</translation>
    </message>
    <message>
        <source>&amp;Time trials</source>
        <translation>&amp;Zeitfahren</translation>
    </message>
    <message>
        <source>&amp;Add an athlete</source>
        <translation>&amp;Athleten hinzufügen</translation>
    </message>
    <message>
        <source>M marks the &amp;splits</source>
        <translation>M markiert die &amp;Zwischenzeiten</translation>
    </message>
    <message>
        <source>M marks the &amp;upstream gates</source>
        <translation>M markiert die A&amp;ufwärtstore</translation>
    </message>
    <message>
        <source>M marks the &amp;roll</source>
        <translation>M markiert die &amp;Rolle</translation>
    </message>
    <message>
        <source>Re&amp;name the athlete</source>
        <translation>Athleten um&amp;benennen</translation>
    </message>
    <message>
        <source>R&amp;emove the trial</source>
        <translation>Zeitfahren &amp;entfernen</translation>
    </message>
    <message>
        <source>Make &amp;heats from the trials</source>
        <translation>&amp;Heats aus den Zeitfahren machen</translation>
    </message>
    <message>
        <source>&amp;Heats</source>
        <translation>&amp;Heats</translation>
    </message>
    <message>
        <source>&amp;Add a heat…</source>
        <translation>Heat &amp;hinzufügen…</translation>
    </message>
    <message>
        <source>A&amp;ttack, beginning here</source>
        <translation>An&amp;griff, der hier beginnt</translation>
    </message>
    <message>
        <source>&amp;End of the attack</source>
        <translation>&amp;Ende des Angriffs</translation>
    </message>
    <message>
        <source>Compare &amp;films of the heat…</source>
        <translation>&amp;Filme des Heats vergleichen…</translation>
    </message>
    <message>
        <source>&amp;Names of the boats…</source>
        <translation>&amp;Namen der Boote…</translation>
    </message>
    <message>
        <source>&amp;Remove the heat</source>
        <translation>Heat en&amp;tfernen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Results</source>
        <translation>&amp;Ergebnisse</translation>
    </message>
    <message>
        <source>Time trial</source>
        <translation>Zeitfahren</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CrossPage</name>
    <message>
        <source>There is no film to mark on.</source>
        <translation>Kein Film da, auf dem zu markieren wäre.</translation>
    </message>
    <message>
        <source>Nothing can be marked: %1 is not in the folder of the split file. File &gt; Where are the films now?</source>
        <translation>Nichts kann markiert werden: %1 ist nicht im Ordner der Zwischenzeitdatei. Datei &gt; Wo sind die Filme jetzt?</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>Keine Marke ist gewählt. Strg und die Pfeile gehen von Marke zu Marke.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CrossWindow</name>
    <message>
        <source>kayak cross</source>
        <translation>Kajak-Cross</translation>
    </message>
    <message>
        <source>Time trials</source>
        <translation>Zeitfahren</translation>
    </message>
    <message>
        <source>Heats</source>
        <translation>Heats</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>films of the folder</source>
        <translation>Filme des Ordners</translation>
    </message>
    <message>
        <source>Import films with Ctrl+I, or drop them here: each becomes a time trial.</source>
        <translation>Filme mit Strg+I importieren oder hierher ziehen: jeder wird ein Zeitfahren.</translation>
    </message>
    <message>
        <source>No film yet. Ctrl+Shift+I chooses the film of what is selected; films can be dropped here too.</source>
        <translation>Noch kein Film. Strg+Umschalt+I wählt den Film des Gewählten; Filme lassen sich auch hierher ziehen.</translation>
    </message>
    <message>
        <source>%1 is not in the folder of the split file. Ctrl+Shift+I chooses another film.</source>
        <translation>%1 ist nicht im Ordner der Zwischenzeitdatei. Strg+Umschalt+I wählt einen anderen Film.</translation>
    </message>
    <message>
        <source>Not found: %1.</source>
        <translation>Nicht gefunden: %1.</translation>
    </message>
    <message>
        <source>Import films of time trials</source>
        <translation>Filme von Zeitfahren importieren</translation>
    </message>
    <message>
        <source>Choose the film of the trial or heat</source>
        <translation>Film des Zeitfahrens oder Heats wählen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CrossingSearch</name>
    <message>
        <source>The slit picture shows what stood on the line all the same.</source>
        <translation>Das Schlitzbild zeigt trotzdem, was auf der Linie stand.</translation>
    </message>
    <message>
        <source>No boat was found that crosses this line in the direction of the arrow.</source>
        <translation>Kein Boot gefunden, das diese Linie in Richtung des Pfeils überquert.</translation>
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
        <translation>%1 Zeilen sind nicht lesbar. Zeile %2: %3.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>What each column holds was guessed from its title. Choose over a column what it is; a column without a choice is left out.</source>
        <translation>Was jede Spalte enthält, wurde aus ihrem Titel geraten. Über einer Spalte wählen, was sie ist; eine ohne Wahl wird ausgelassen.</translation>
    </message>
    <message>
        <source>%1 samples, %2 per second, %3</source>
        <translation>%1 Messwerte, %2 je Sekunde, %3</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 Positionen</translation>
    </message>
    <message>
        <source>%1 heart rates</source>
        <translation>%1 Herzfrequenzen</translation>
    </message>
    <message>
        <source>Import “%1”</source>
        <translation>„%1“ importieren</translation>
    </message>
    <message>
        <source>Columns and units are read as they were for the last list with these titles. Choose over a column what it is; one without a choice is left out.</source>
        <translation>Spalten und Einheiten werden wie bei der letzten Liste mit diesen Titeln gelesen. Über einer Spalte wählen, was sie ist; eine ohne Wahl wird ausgelassen.</translation>
    </message>
    <message>
        <source>Guess from the titles</source>
        <translation>Aus den Titeln raten</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>This gives no samples.</source>
        <translation>Das ergibt keine Messwerte.</translation>
    </message>
    <message>
        <source>This gives %1.</source>
        <translation>Das ergibt %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CsvUnitsForm</name>
    <message>
        <source>&amp;Between columns</source>
        <translation>Zwischen S&amp;palten</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Semikolon</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>&amp;Decimal comma</source>
        <translation>&amp;Dezimalkomma</translation>
    </message>
    <message>
        <source>&amp;Times</source>
        <translation>&amp;Zeiten</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Datumsangaben</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Millisekunden</translation>
    </message>
    <message>
        <source>Microseconds</source>
        <translation>Mikrosekunden</translation>
    </message>
    <message>
        <source>Nanoseconds</source>
        <translation>Nanosekunden</translation>
    </message>
    <message>
        <source>&amp;Acceleration</source>
        <translation>&amp;Beschleunigung</translation>
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
        <translation>D&amp;rehung</translation>
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
        <translation>&amp;Winkel</translation>
    </message>
    <message>
        <source>Radians</source>
        <translation>Bogenmaß</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>&amp;Tempo</translation>
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
        <translation>Auf dem Rücken liegend zeigt &amp;z</translation>
    </message>
    <message>
        <source>+1 g, upward</source>
        <translation>+1 g, nach oben</translation>
    </message>
    <message>
        <source>−1 g, downward</source>
        <translation>−1 g, nach unten</translation>
    </message>
    <message>
        <source>&amp;First sample at</source>
        <translation>&amp;Erster Messwert um</translation>
    </message>
    <message>
        <source>The comma stands between columns.</source>
        <translation>Das Komma steht zwischen Spalten.</translation>
    </message>
    <message>
        <source>The times of the list are no dates. This is when the file was written, less its length.</source>
        <translation>Die Zeiten der Liste sind keine Datumsangaben. Dies ist, wann die Datei geschrieben wurde, minus ihre Länge.</translation>
    </message>
    <message>
        <source>The times of the list are dates.</source>
        <translation>Die Zeiten der Liste sind Datumsangaben.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CursorTable</name>
    <message>
        <source>left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>side unknown</source>
        <translation>Seite unbekannt</translation>
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
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Stroke, rate</source>
        <translation>Schlag, Frequenz</translation>
    </message>
    <message>
        <source>Force (N)</source>
        <translation>Kraft (N)</translation>
    </message>
    <message>
        <source>Power (W)</source>
        <translation>Leistung (W)</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Values at the cursor</source>
        <translation>Werte am Cursor</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayDesk</name>
    <message>
        <source>The race day could not be kept: %1</source>
        <translation>Der Renntag konnte nicht bewahrt werden: %1</translation>
    </message>
    <message>
        <source> · U: %1</source>
        <translation> · U: %1</translation>
    </message>
    <message>
        <source>start list</source>
        <translation>Startliste</translation>
    </message>
    <message>
        <source>folder of the films</source>
        <translation>Ordner der Filme</translation>
    </message>
    <message>
        <source>start removed</source>
        <translation>Start entfernt</translation>
    </message>
    <message>
        <source>There is no start list yet: Day &gt; Start list.</source>
        <translation>Es gibt noch keine Startliste: Tag &gt; Startliste.</translation>
    </message>
    <message>
        <source>No film waits to be timed.</source>
        <translation>Kein Film wartet auf Zeiten.</translation>
    </message>
    <message>
        <source>There is no film of %1 yet.</source>
        <translation>Von %1 gibt es noch keinen Film.</translation>
    </message>
    <message>
        <source>The film of %1 is still being copied.</source>
        <translation>Der Film von %1 wird noch kopiert.</translation>
    </message>
    <message>
        <source>Is this %1?</source>
        <translation>Ist das %1?</translation>
    </message>
    <message>
        <source>film of %1</source>
        <translation>Film von %1</translation>
    </message>
    <message>
        <source>There is no film that is surely matched and not agreed to yet.</source>
        <translation>Kein Film ist sicher zugeordnet und noch ohne Zustimmung.</translation>
    </message>
    <message>
        <source>film agreed to</source>
        <translation>Film zugestimmt</translation>
    </message>
    <message>
        <source>films agreed to</source>
        <translation>Filmen zugestimmt</translation>
    </message>
    <message>
        <source>Not named, as it is not in the folder of the race or cannot be named there: %1</source>
        <translation>Nicht benannt, weil er nicht im Ordner des Rennens ist oder dort nicht benannt werden kann: %1</translation>
    </message>
    <message>
        <source>Agreed</source>
        <translation>Zugestimmt</translation>
    </message>
    <message>
        <source>films one start later</source>
        <translation>Filme einen Start später</translation>
    </message>
    <message>
        <source>films one start earlier</source>
        <translation>Filme einen Start früher</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: no film</source>
        <translation>%1: kein Film</translation>
    </message>
    <message>
        <source>film of another boat</source>
        <translation>Film eines anderen Boots</translation>
    </message>
    <message>
        <source>film given to a boat</source>
        <translation>Film einem Boot gegeben</translation>
    </message>
    <message>
        <source>There is no film %1</source>
        <translation>Es gibt keinen Film %1</translation>
    </message>
    <message>
        <source>%1 is timed: remove the last mark first.</source>
        <translation>%1 hat Zeiten: erst die letzte Marke entfernen.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 counts again</source>
        <translation>%1 zählt wieder</translation>
    </message>
    <message>
        <source>The clocks of camera and start list go together.</source>
        <translation>Die Uhren von Kamera und Startliste gehen zusammen.</translation>
    </message>
    <message>
        <source>clock of the camera</source>
        <translation>Uhr der Kamera</translation>
    </message>
    <message numerus="yes">
        <source>%n films agreed to</source>
        <translation>
            <numerusform>%n Film zugestimmt</numerusform>
            <numerusform>%n Filmen zugestimmt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayFilms</name>
    <message>
        <source>%1 could not be called %2 again: is that name taken?</source>
        <translation>%1 konnte nicht wieder %2 heißen: ist der Name vergeben?</translation>
    </message>
    <message>
        <source>%1 could not be copied from the card. Is the card out, or the disk full?</source>
        <translation>%1 konnte nicht von der Karte kopiert werden. Ist die Karte draußen oder die Platte voll?</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayKeeping</name>
    <message>
        <source>The race day %1 cannot be read: %2. It stays as it is; a new one takes its name only after it was put aside.</source>
        <translation>Der Renntag %1 ist nicht lesbar: %2. Er bleibt, wie er ist; ein neuer nimmt seinen Namen erst, wenn er beiseitegelegt ist.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayPanel</name>
    <message>
        <source>agreed</source>
        <translation>zugestimmt</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>bewahrt</translation>
    </message>
    <message>
        <source>sure</source>
        <translation>sicher</translation>
    </message>
    <message>
        <source>likely</source>
        <translation>wahrscheinlich</translation>
    </message>
    <message>
        <source>unsure</source>
        <translation>unsicher</translation>
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
        <translation>vor</translation>
    </message>
    <message>
        <source>behind</source>
        <translation>hinter</translation>
    </message>
    <message>
        <source>Reckon with that</source>
        <translation>Damit rechnen</translation>
    </message>
    <message>
        <source>No start list yet. Paste one, or take it from a file.</source>
        <translation>Noch keine Startliste. Eine einfügen oder aus einer Datei nehmen.</translation>
    </message>
    <message>
        <source>Start list…</source>
        <translation>Startliste…</translation>
    </message>
    <message>
        <source>Films from…</source>
        <translation>Filme aus…</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Bib</source>
        <translation>StNr</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>A boat on the list has a name.</source>
        <translation>Ein Boot auf der Liste hat einen Namen.</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Kat</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Type the name of another film to correct a single one</source>
        <translation>Den Namen eines anderen Films tippen, um einen einzelnen zu berichtigen</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Zuordnung</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Aufgenommen</translation>
    </message>
    <message>
        <source>When the recording began, and whether the camera or the file says so</source>
        <translation>Wann die Aufnahme begann, und ob das die Kamera oder die Datei sagt</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>The camera&apos;s clock seems to be %1 the start list.</source>
        <translation>Die Uhr der Kamera geht anscheinend %1 der Startliste.</translation>
    </message>
    <message>
        <source>%1 is not there.</source>
        <translation>%1 ist nicht da.</translation>
    </message>
    <message>
        <source>Copying %1.</source>
        <translation>%1 wird kopiert.</translation>
    </message>
    <message>
        <source>%1 still growing.</source>
        <translation>%1 wächst noch.</translation>
    </message>
    <message>
        <source>Of no boat: %1.</source>
        <translation>Zu keinem Boot: %1.</translation>
    </message>
    <message>
        <source>Of no boat: %1 films, the first is %2.</source>
        <translation>Zu keinem Boot: %1 Filme, der erste ist %2.</translation>
    </message>
    <message>
        <source>Of other days: %1.</source>
        <translation>Von anderen Tagen: %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DerivedDialog</name>
    <message>
        <source>The &amp;highest number is the best</source>
        <translation>Die &amp;höchste Zahl ist die beste</translation>
    </message>
    <message>
        <source>Another column</source>
        <translation>Weitere Spalte</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Gap to the best</source>
        <translation>Rückstand auf den Besten</translation>
    </message>
    <message>
        <source>Percent behind the best</source>
        <translation>Prozent hinter dem Besten</translation>
    </message>
    <message>
        <source>Percentile</source>
        <translation>Perzentil</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;What</source>
        <translation>&amp;Was</translation>
    </message>
    <message>
        <source>Sum &amp;of (none: times and penalties)</source>
        <translation>Summe &amp;von (ohne: Zeiten und Strafen)</translation>
    </message>
    <message>
        <source>O&amp;f</source>
        <translation>Vo&amp;n</translation>
    </message>
    <message>
        <source>&amp;Less</source>
        <translation>&amp;Minus</translation>
    </message>
    <message>
        <source>Each &amp;compared within</source>
        <translation>&amp;Jeweils verglichen in</translation>
    </message>
    <message>
        <source>the total, else the times</source>
        <translation>die Gesamtzeit, sonst die Zeiten</translation>
    </message>
    <message>
        <source>all rows</source>
        <translation>alle Zeilen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Desktop</name>
    <message>
        <source>The folder with the races of %1</source>
        <translation>Der Ordner mit den Rennen von %1</translation>
    </message>
    <message>
        <source>As it is in split taking now. The file does not hold all of it yet.</source>
        <translation>Wie es jetzt in der Zwischenzeitnahme steht. Die Datei enthält noch nicht alles davon.</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Nothing to open in “%1”</source>
        <translation>In „%1“ ist nichts zu öffnen</translation>
    </message>
    <message>
        <source>There is no split file (.kvx) and no film in this folder.</source>
        <translation>In diesem Ordner ist keine Zwischenzeitdatei (.kvx) und kein Film.</translation>
    </message>
    <message>
        <source>“%1” is not where it was</source>
        <translation>„%1“ ist nicht mehr, wo es war</translation>
    </message>
    <message>
        <source>It was in %1. Open it from where it is now, then ask again.</source>
        <translation>Es war in %1. Von seinem jetzigen Ort aus öffnen, dann erneut fragen.</translation>
    </message>
    <message>
        <source>%1 (on the server)</source>
        <translation>%1 (auf dem Server)</translation>
    </message>
    <message>
        <source>What the server has is no planning.</source>
        <translation>Was der Server hat, ist keine Planung.</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Lauf %1</translation>
    </message>
    <message>
        <source>The run of %1</source>
        <translation>Der Lauf von %1</translation>
    </message>
    <message>
        <source>%1 is not in split taking any more: it was removed there, or has another crew and film.</source>
        <translation>%1 ist nicht mehr in der Zwischenzeitnahme: dort entfernt, oder mit anderer Besatzung und anderem Film.</translation>
    </message>
    <message>
        <source>Of single split files, or of all in a folder and below it?</source>
        <translation>Von einzelnen Zwischenzeitdateien oder von allen in einem Ordner und darunter?</translation>
    </message>
    <message>
        <source>Split files…</source>
        <translation>Zwischenzeitdateien…</translation>
    </message>
    <message>
        <source>A folder…</source>
        <translation>Ein Ordner…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DetailsPanel</name>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Noted as</source>
        <translation>Notiert als</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Strafen</translation>
    </message>
    <message>
        <source>of</source>
        <translation>von</translation>
    </message>
    <message>
        <source>Those of which this was noted; for those of which it was not noted, all penalties</source>
        <translation>Die, zu denen dies notiert wurde; für die anderen alle Strafen</translation>
    </message>
    <message>
        <source>Share %</source>
        <translation>Anteil %</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#xa0;%</translation>
    </message>
    <message>
        <source>Where the share lies with 90 %</source>
        <translation>Wo der Anteil mit 90&#xa0;% liegt</translation>
    </message>
    <message>
        <source>No penalty was noted in detail. Split taking notes them.</source>
        <translation>Keine Strafe wurde im Einzelnen notiert. Das geschieht in der Zwischenzeitnahme.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DocumentChoiceDialog</name>
    <message>
        <source>%1   in %2</source>
        <translation>%1   in %2</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Neu…</translation>
    </message>
    <message>
        <source>Open an&amp;other…</source>
        <translation>&amp;Andere öffnen…</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>None was opened yet.</source>
        <translation>Noch keine wurde geöffnet.</translation>
    </message>
    <message>
        <source>Opened before:</source>
        <translation>Früher geöffnet:</translation>
    </message>
    <message>
        <source>Name the new file</source>
        <translation>Die neue Datei benennen</translation>
    </message>
    <message>
        <source>%1 (*.%2)</source>
        <translation>%1 (*.%2)</translation>
    </message>
    <message>
        <source>%1 (*.%2);;All files (*)</source>
        <translation>%1 (*.%2);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DrawnRates</name>
    <message>
        <source>Touches on the course</source>
        <translation>Berührungen auf der Strecke</translation>
    </message>
    <message>
        <source>Gate %1: %2 %</source>
        <translation>Tor %1: %2&#xa0;%</translation>
    </message>
    <message>
        <source>, %1 of %2 touched</source>
        <translation>, %1 von %2 berührt</translation>
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
        <translation>.kvb-Datei importieren</translation>
    </message>
    <message>
        <source>Import .sbm file</source>
        <translation>.sbm-Datei importieren</translation>
    </message>
    <message>
        <source>Drag .kvb file to top left of the window</source>
        <translation>.kvb-Datei links oben ins Fenster ziehen</translation>
    </message>
    <message>
        <source>A raw recording of the boat: strokes and turns are found in it.</source>
        <translation>Eine Rohaufzeichnung des Boots: Schläge und Drehungen werden darin gesucht.</translation>
    </message>
    <message>
        <source>Drag .sbm file to top right of the window</source>
        <translation>.sbm-Datei rechts oben ins Fenster ziehen</translation>
    </message>
    <message>
        <source>A processed session, .sbm or .bms: strokes and turns are in it already.</source>
        <translation>Eine ausgewertete Einheit, .sbm oder .bms: Schläge und Drehungen sind schon darin.</translation>
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
        <translation>Bewahrt</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Danach</translation>
    </message>
    <message>
        <source>given up</source>
        <translation>verworfen</translation>
    </message>
    <message>
        <source>put off</source>
        <translation>verschoben</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Bring back earlier work</source>
        <translation>Frühere Arbeit zurückholen</translation>
    </message>
    <message>
        <source>Nothing was kept that is not in a document again.</source>
        <translation>Nichts ist bewahrt, was nicht wieder in einem Dokument steht.</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Zurückholen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::EditedFile</name>
    <message>
        <source>today %1</source>
        <translation>heute %1</translation>
    </message>
    <message>
        <source>yesterday %1</source>
        <translation>gestern %1</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>1 change</source>
        <translation>1 Änderung</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>„%1“ lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>The file was changed by another program since it was opened. Saving replaces what that program wrote.</source>
        <translation>Ein anderes Programm hat die Datei seit dem Öffnen geändert. Speichern ersetzt, was jenes Programm schrieb.</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Look at the other</source>
        <translation>Die andere ansehen</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Speichern unter…</translation>
    </message>
    <message>
        <source>“%1” is open in another window. Close it there first, or take another name.</source>
        <translation>„%1“ ist in einem anderen Fenster offen. Dort erst schließen oder einen anderen Namen nehmen.</translation>
    </message>
    <message>
        <source>%1 (the other).%2</source>
        <translation>%1 (die andere).%2</translation>
    </message>
    <message>
        <source>Your work is kept apart, and offered when the file is opened again.</source>
        <translation>Die Arbeit wird getrennt bewahrt und angeboten, wenn die Datei wieder geöffnet wird.</translation>
    </message>
    <message>
        <source>Your work is in this window alone: it could not be kept apart either.</source>
        <translation>Die Arbeit ist nur in diesem Fenster: auch getrennt ließ sie sich nicht bewahren.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>The file of the older version could not be kept beside the new one, so that nothing was written.</source>
        <translation>Die Datei der älteren Version ließ sich nicht neben der neuen bewahren; nichts wurde geschrieben.</translation>
    </message>
    <message numerus="yes">
        <source>%n changes</source>
        <translation>
            <numerusform>%n Änderung</numerusform>
            <numerusform>%n Änderungen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::EightForm</name>
    <message>
        <source>Split %1</source>
        <translation>Zwischenzeit %1</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Kategorie</translation>
    </message>
    <message>
        <source>Pha&amp;se</source>
        <translation>&amp;Phase</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Zwischenzeiten</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Wertung</translation>
    </message>
    <message>
        <source>Taken from</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Time
(s)</source>
        <translation>Zeit
(s)</translation>
    </message>
    <message>
        <source>Time of one eight</source>
        <translation>Zeit einer Acht</translation>
    </message>
    <message>
        <source>In the video
(s)</source>
        <translation>Im Video
(s)</translation>
    </message>
    <message>
        <source>Where in the video the split was taken</source>
        <translation>Wo im Video die Zwischenzeit genommen wurde</translation>
    </message>
    <message>
        <source>split %1</source>
        <translation>Zwischenzeit %1</translation>
    </message>
    <message>
        <source>no video</source>
        <translation>kein Video</translation>
    </message>
    <message>
        <source>%1, no motion samples</source>
        <translation>%1, keine Messwerte der Bewegung</translation>
    </message>
    <message>
        <source>%1, %2 motion samples</source>
        <translation>%1, %2 Messwerte der Bewegung</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::EntryTable</name>
    <message>
        <source>“%1” is a number from 0 to %2</source>
        <translation>„%1“ ist eine Zahl von 0 bis %2</translation>
    </message>
    <message>
        <source>“%1” is more than 0. An emptied cell stands for none.</source>
        <translation>„%1“ ist mehr als 0. Eine geleerte Zelle steht für keine.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ExerciseTable</name>
    <message>
        <source>The file has no entry here. Typing makes one.</source>
        <translation>Die Datei hat hier keinen Eintrag. Tippen legt einen an.</translation>
    </message>
    <message>
        <source>The estimate from repetitions and weight. A click or Ctrl+Enter takes it as the maximum.</source>
        <translation>Die Schätzung aus Wiederholungen und Gewicht. Ein Klick oder Strg+Enter nimmt sie als Maximum.</translation>
    </message>
    <message>
        <source>Exercise</source>
        <translation>Übung</translation>
    </message>
    <message>
        <source>exercise</source>
        <translation>Übung</translation>
    </message>
    <message>
        <source>Sets</source>
        <translation>Sätze</translation>
    </message>
    <message>
        <source>sets</source>
        <translation>Sätze</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>Wiederholungen</translation>
    </message>
    <message>
        <source>repetitions</source>
        <translation>Wiederholungen</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Estimate</source>
        <translation>Schätzung</translation>
    </message>
    <message>
        <source>Add exercise</source>
        <translation>Neue Übung</translation>
    </message>
    <message>
        <source>Remove exercise</source>
        <translation>Übung entfernen</translation>
    </message>
    <message>
        <source>Take estimate</source>
        <translation>Schätzung nehmen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>1 exercise</source>
        <translation>1 Übung</translation>
    </message>
    <message>
        <source>%1 · %2 sets · tonnage %3 kg</source>
        <translation>%1 · %2 Sätze · Tonnage %3 kg</translation>
    </message>
    <message>
        <source>Estimated maximum: table %1 · Epley %2 · Brzycki %3 · McGlothin %4 · Lombardi %5 · result &lt;b&gt;%6&lt;/b&gt;</source>
        <translation>Geschätztes Maximum: Tabelle %1 · Epley %2 · Brzycki %3 · McGlothin %4 · Lombardi %5 · Ergebnis &lt;b&gt;%6&lt;/b&gt;</translation>
    </message>
    <message>
        <source>new exercise</source>
        <translation>neue Übung</translation>
    </message>
    <message>
        <source>removal of an exercise</source>
        <translation>Entfernen einer Übung</translation>
    </message>
    <message>
        <source>estimated maximum</source>
        <translation>geschätztes Maximum</translation>
    </message>
    <message numerus="yes">
        <source>%n exercises</source>
        <translation>
            <numerusform>%n Übung</numerusform>
            <numerusform>%n Übungen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ExportDialog</name>
    <message>
        <source>Export data</source>
        <translation>Daten exportieren</translation>
    </message>
    <message>
        <source>Split files (*.kvx)</source>
        <translation>Zwischenzeitdateien (*.kvx)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FactsForm</name>
    <message>
        <source>&amp;Athlete</source>
        <translation>&amp;Athlet</translation>
    </message>
    <message>
        <source>Name of the athlete</source>
        <translation>Name des Athleten</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Datum</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Ort</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FactsStatus</name>
    <message>
        <source>Which ones?</source>
        <translation>Welche?</translation>
    </message>
    <message>
        <source>reading was cancelled: not all files are here</source>
        <translation>das Lesen wurde abgebrochen: nicht alle Dateien sind hier</translation>
    </message>
    <message>
        <source>1 file could not be read</source>
        <translation>1 Datei war nicht lesbar</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be read</source>
        <translation>
            <numerusform>%n Datei war nicht lesbar</numerusform>
            <numerusform>%n Dateien waren nicht lesbar</numerusform>
        </translation>
    </message>
    <message>
        <source>1 copy of a file does not count</source>
        <translation>1 Kopie einer Datei zählt nicht</translation>
    </message>
    <message numerus="yes">
        <source>%n copies of files do not count</source>
        <translation>
            <numerusform>%n Kopie von Dateien zählt nicht</numerusform>
            <numerusform>%n Kopien von Dateien zählen nicht</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FailedFiles</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Was falsch ist</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Files that could not be read</source>
        <translation>Nicht lesbare Dateien</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FetchActions</name>
    <message>
        <source>&amp;Open a source…</source>
        <translation>&amp;Quelle öffnen…</translation>
    </message>
    <message>
        <source>&amp;Save the source…</source>
        <translation>Quelle &amp;speichern…</translation>
    </message>
    <message>
        <source>Choose the &amp;list of bibs…</source>
        <translation>&amp;Liste der Startnummern wählen…</translation>
    </message>
    <message>
        <source>Choose the &amp;folder for the films…</source>
        <translation>&amp;Ordner für die Filme wählen…</translation>
    </message>
    <message>
        <source>&amp;Time the films of the folder</source>
        <translation>Filme des Ordners sto&amp;ppen</translation>
    </message>
    <message>
        <source>Fet&amp;ch</source>
        <translation>H&amp;olen</translation>
    </message>
    <message>
        <source>&amp;Show what would be fetched</source>
        <translation>&amp;Zeigen, was geholt würde</translation>
    </message>
    <message>
        <source>&amp;Fetch the ticked films</source>
        <translation>Abgehakte Filme &amp;holen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Tick &amp;all</source>
        <translation>&amp;Alle abhaken</translation>
    </message>
    <message>
        <source>Tick &amp;none</source>
        <translation>&amp;Keine abhaken</translation>
    </message>
    <message>
        <source>Ser&amp;ver</source>
        <translation>Ser&amp;ver</translation>
    </message>
    <message>
        <source>&amp;Sign in…</source>
        <translation>An&amp;melden…</translation>
    </message>
    <message>
        <source>&amp;Forget the password</source>
        <translation>&amp;Passwort vergessen</translation>
    </message>
    <message>
        <source>&amp;Other servers</source>
        <translation>Andere Ser&amp;ver</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FetchWindow</name>
    <message>
        <source>Fetch films</source>
        <translation>Filme holen</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adresse</translation>
    </message>
    <message>
        <source>Of one film, with {bib}, {category}, {phase} or {run} where they stand ({bib:3} is 014); or of a list: a page, JSON, M3U8 or WebDAV folder</source>
        <translation>Eines Films, mit {bib}, {category}, {phase} oder {run}, wo sie stehen ({bib:3} ist 014); oder einer Liste: Seite, JSON, M3U8 oder WebDAV-Ordner</translation>
    </message>
    <message>
        <source>&amp;Bibs from</source>
        <translation>&amp;Startnummern aus</translation>
    </message>
    <message>
        <source>Start list or results (a column is called bib), or a split file</source>
        <translation>Startliste oder Ergebnisse (eine Spalte heißt bib), oder eine Zwischenzeitdatei</translation>
    </message>
    <message>
        <source>start list, results or split file</source>
        <translation>Startliste, Ergebnisse oder Zwischenzeitdatei</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>Where the films are put; no file there is ever overwritten</source>
        <translation>Wohin die Filme kommen; keine Datei dort wird je überschrieben</translation>
    </message>
    <message>
        <source>for the films</source>
        <translation>für die Filme</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>&amp;Namen</translation>
    </message>
    <message>
        <source>Of the files: {name}, {category}, {phase}, {bib} and {number}</source>
        <translation>Der Dateien: {name}, {category}, {phase}, {bib} und {number}</translation>
    </message>
    <message>
        <source>Choose a list…</source>
        <translation>Liste wählen…</translation>
    </message>
    <message>
        <source>Start list, results, split file</source>
        <translation>Startliste, Ergebnisse, Zwischenzeitdatei</translation>
    </message>
    <message>
        <source>Choose a folder…</source>
        <translation>Ordner wählen…</translation>
    </message>
    <message>
        <source>For the films</source>
        <translation>Für die Filme</translation>
    </message>
    <message>
        <source>Other se&amp;rvers that films may come from</source>
        <translation>Andere Ser&amp;ver, von denen Filme kommen dürfen</translation>
    </message>
    <message>
        <source>Show what would be fetched</source>
        <translation>Zeigen, was geholt würde</translation>
    </message>
    <message>
        <source>Fetch the ticked films</source>
        <translation>Abgehakte Filme holen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Nothing is fetched before it is shown here</source>
        <translation>Nichts wird geholt, ehe es hier gezeigt ist</translation>
    </message>
    <message>
        <source>Films are being fetched. Another source or list is opened after that.</source>
        <translation>Filme werden geholt. Eine andere Quelle oder Liste wird danach geöffnet.</translation>
    </message>
    <message>
        <source>“%1” is no source of films</source>
        <translation>„%1“ ist keine Filmquelle</translation>
    </message>
    <message>
        <source>Start list, results or split file</source>
        <translation>Startliste, Ergebnisse oder Zwischenzeitdatei</translation>
    </message>
    <message>
        <source>Lists and split files (*.csv *.txt *.tsv *.kvx);;All files (*)</source>
        <translation>Listen und Zwischenzeitdateien (*.csv *.txt *.tsv *.kvx);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Folder for the films</source>
        <translation>Ordner für die Filme</translation>
    </message>
    <message>
        <source>Open a source of films</source>
        <translation>Filmquelle öffnen</translation>
    </message>
    <message>
        <source>Sources of films (*.json)</source>
        <translation>Filmquellen (*.json)</translation>
    </message>
    <message>
        <source>Save the source of films</source>
        <translation>Filmquelle speichern</translation>
    </message>
    <message>
        <source>The source was saved. “kavela fetch” takes the file, too.</source>
        <translation>Die Quelle wurde gespeichert. Auch „kavela fetch“ nimmt die Datei.</translation>
    </message>
    <message>
        <source>The source could not be saved</source>
        <translation>Die Quelle konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>What there is to fetch is being found out…</source>
        <translation>Es wird ermittelt, was zu holen ist…</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made.</source>
        <translation>Der Ordner „%1“ lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>Films are being fetched…</source>
        <translation>Filme werden geholt…</translation>
    </message>
    <message>
        <source>There is no address to sign in to yet.</source>
        <translation>Noch keine Adresse zum Anmelden.</translation>
    </message>
    <message>
        <source>This computer has no password store that is open. The password holds until this window is closed.</source>
        <translation>Dieser Rechner hat keinen offenen Passwortspeicher. Das Passwort gilt, bis dieses Fenster schließt.</translation>
    </message>
    <message>
        <source>The password of %1 was forgotten.</source>
        <translation>Das Passwort von %1 ist vergessen.</translation>
    </message>
    <message>
        <source>%v of %m films</source>
        <translation>%v von %m Filmen</translation>
    </message>
    <message>
        <source>Films are being fetched</source>
        <translation>Filme werden geholt</translation>
    </message>
    <message>
        <source>What is there of them stays; fetching them again goes on with it.</source>
        <translation>Was schon da ist, bleibt; erneutes Holen setzt es fort.</translation>
    </message>
    <message>
        <source>Stop and close</source>
        <translation>Anhalten und schließen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmBrowser</name>
    <message>
        <source>Filter: k1w 12 semi</source>
        <translation>Filter: k1w 12 semi</translation>
    </message>
    <message>
        <source>No film here. Open a folder of films with Ctrl+O, or drop one.</source>
        <translation>Kein Film hier. Einen Ordner mit Filmen mit Strg+O öffnen oder hierher ziehen.</translation>
    </message>
    <message>
        <source>No tag yet: M sets one where a film stands.</source>
        <translation>Noch keine Markierung: M setzt eine, wo ein Film steht.</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Markierungen</translation>
    </message>
    <message>
        <source>%1 films</source>
        <translation>%1 Filme</translation>
    </message>
    <message>
        <source>%1 of %2 films</source>
        <translation>%1 von %2 Filmen</translation>
    </message>
    <message>
        <source>No film fits the filter. Empty it to see all again.</source>
        <translation>Kein Film passt zum Filter. Leeren Sie ihn, um wieder alle zu sehen.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmCutting</name>
    <message>
        <source>%1 cut</source>
        <translation>%1 geschnitten</translation>
    </message>
    <message>
        <source>Cut into a new film</source>
        <translation>In einen neuen Film schneiden</translation>
    </message>
    <message>
        <source>Films (*.mp4 *.mov *.m4v)</source>
        <translation>Filme (*.mp4 *.mov *.m4v)</translation>
    </message>
    <message>
        <source>Cutting %1…</source>
        <translation>%1 wird geschnitten…</translation>
    </message>
    <message>
        <source>The film could not be cut</source>
        <translation>Der Film ließ sich nicht schneiden</translation>
    </message>
    <message>
        <source>The cut has no end yet: O sets it at this frame.</source>
        <translation>Der Schnitt hat noch kein Ende: O setzt es auf dieses Bild.</translation>
    </message>
    <message>
        <source>The cut has no beginning yet: I sets it at this frame.</source>
        <translation>Der Schnitt hat noch keinen Anfang: I setzt ihn auf dieses Bild.</translation>
    </message>
    <message>
        <source>Set the ends of the cut first: I where it begins, O where it ends.</source>
        <translation>Zuerst die Enden des Schnitts setzen: I, wo er beginnt, O, wo er endet.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmDeck</name>
    <message>
        <source>The film was closed before it had been read so far.</source>
        <translation>Der Film wurde geschlossen, ehe er so weit gelesen war.</translation>
    </message>
    <message>
        <source>The film has not been read so far yet: nothing was marked.</source>
        <translation>Der Film ist noch nicht so weit gelesen: nichts wurde markiert.</translation>
    </message>
    <message>
        <source>The film has not been read so far yet: no frame to step from.</source>
        <translation>Der Film ist noch nicht so weit gelesen: kein Bild, von dem aus es weiterginge.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmPlaying</name>
    <message>
        <source>Choose a film on the left.</source>
        <translation>Links einen Film wählen.</translation>
    </message>
    <message>
        <source>The film is no longer there:
%1</source>
        <translation>Der Film ist nicht mehr da:
%1</translation>
    </message>
    <message>
        <source>That was the last one</source>
        <translation>Das war der letzte</translation>
    </message>
    <message>
        <source>This is the first one</source>
        <translation>Das ist der erste</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmShelf</name>
    <message>
        <source>Renaming films…</source>
        <translation>Filme werden umbenannt…</translation>
    </message>
    <message>
        <source>“%1” has films that are to be renamed, and is open in another window. Close it there first.</source>
        <translation>„%1“ hat Filme, die umzubenennen sind, und ist in einem anderen Fenster offen. Dort erst schließen.</translation>
    </message>
    <message>
        <source>A renaming was cut off here, and its note cannot be read: %1</source>
        <translation>Ein Umbenennen wurde hier unterbrochen, und sein Vermerk ist nicht lesbar: %1</translation>
    </message>
    <message>
        <source>Renaming was cut off</source>
        <translation>Umbenennen wurde unterbrochen</translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) of this folder were being renamed when the program ended. No film is lost: the renaming can be completed, or undone.</source>
        <translation>
            <numerusform>%n Film dieses Ordners wurde gerade umbenannt, als das Programm endete. Kein Film ist verloren: das Umbenennen lässt sich abschließen oder zurücknehmen.</numerusform>
            <numerusform>%n Filme dieses Ordners wurden gerade umbenannt, als das Programm endete. Kein Film ist verloren: das Umbenennen lässt sich abschließen oder zurücknehmen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Complete it</source>
        <translation>Abschließen</translation>
    </message>
    <message>
        <source>Undo it</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>This tag is of the split file: split taking edits it.</source>
        <translation>Diese Markierung gehört zur Zwischenzeitdatei: die Zwischenzeitnahme bearbeitet sie.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmStage</name>
    <message>
        <source>Typing: Esc gives the keys back to the film</source>
        <translation>Tippen: Esc gibt dem Film die Tasten zurück</translation>
    </message>
    <message>
        <source>Fixed: %1</source>
        <translation>Fest: %1</translation>
    </message>
    <message>
        <source>Where are the films now?…</source>
        <translation>Wo sind die Filme jetzt?…</translation>
    </message>
    <message>
        <source>Playing %1</source>
        <translation>Wiedergabe %1</translation>
    </message>
    <message>
        <source>Paused, %1</source>
        <translation>Pause, %1</translation>
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
        <translation>Kein Bild</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmView</name>
    <message>
        <source>frame %1   %2 s</source>
        <translation>Bild %1   %2 s</translation>
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
        <translation>&amp;Ordner öffnen…</translation>
    </message>
    <message>
        <source>Folders opened &amp;before</source>
        <translation>&amp;Früher geöffnete Ordner</translation>
    </message>
    <message>
        <source>&amp;Read again</source>
        <translation>Erneut &amp;lesen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Filter the films</source>
        <translation>&amp;Filme filtern</translation>
    </message>
    <message>
        <source>Re&amp;name films…</source>
        <translation>Filme u&amp;mbenennen…</translation>
    </message>
    <message>
        <source>F&amp;ilms</source>
        <translation>F&amp;ilme</translation>
    </message>
    <message>
        <source>&amp;Play from the beginning</source>
        <translation>Von &amp;Anfang an abspielen</translation>
    </message>
    <message>
        <source>&amp;Next film</source>
        <translation>&amp;Nächster Film</translation>
    </message>
    <message>
        <source>Pre&amp;vious film</source>
        <translation>&amp;Voriger Film</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>&amp;Tiles</source>
        <translation>&amp;Kacheln</translation>
    </message>
    <message>
        <source>T&amp;ags</source>
        <translation>&amp;Markierungen</translation>
    </message>
    <message>
        <source>Mark as &amp;watched</source>
        <translation>Als an&amp;gesehen markieren</translation>
    </message>
    <message>
        <source>Mark as n&amp;ot watched</source>
        <translation>Als ni&amp;cht angesehen markieren</translation>
    </message>
    <message>
        <source>A &amp;click plays</source>
        <translation>&amp;Ein Klick spielt ab</translation>
    </message>
    <message>
        <source>The next one &amp;follows</source>
        <translation>Der nächste &amp;folgt</translation>
    </message>
    <message>
        <source>Begin at the first &amp;mark</source>
        <translation>&amp;Bei der ersten Marke beginnen</translation>
    </message>
    <message>
        <source>&amp;Tags</source>
        <translation>&amp;Markierungen</translation>
    </message>
    <message>
        <source>&amp;Tag this frame</source>
        <translation>Dieses &amp;Bild markieren</translation>
    </message>
    <message>
        <source>Tag with a &amp;saved name</source>
        <translation>Mit &amp;gespeichertem Namen markieren</translation>
    </message>
    <message>
        <source>Saved tag %1</source>
        <translation>Gespeicherte Markierung %1</translation>
    </message>
    <message>
        <source>Move the selected tag &amp;here</source>
        <translation>Gewählte Markierung &amp;hierher</translation>
    </message>
    <message>
        <source>Tag one frame &amp;earlier</source>
        <translation>Markierung ein Bild &amp;früher</translation>
    </message>
    <message>
        <source>Tag one frame &amp;later</source>
        <translation>Markierung ein Bild &amp;später</translation>
    </message>
    <message>
        <source>&amp;Remove the selected tag</source>
        <translation>Gewählte Markierung &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Previous tag</source>
        <translation>&amp;Vorige Markierung</translation>
    </message>
    <message>
        <source>&amp;Next tag</source>
        <translation>&amp;Nächste Markierung</translation>
    </message>
    <message>
        <source>Play &amp;just the part around a tag</source>
        <translation>Nur den &amp;Teil um eine Markierung abspielen</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>S&amp;chnitt</translation>
    </message>
    <message>
        <source>The cut &amp;begins here</source>
        <translation>Der Schnitt &amp;beginnt hier</translation>
    </message>
    <message>
        <source>The cut &amp;ends here</source>
        <translation>Der Schnitt &amp;endet hier</translation>
    </message>
    <message>
        <source>&amp;Give the ends up</source>
        <translation>Enden &amp;aufgeben</translation>
    </message>
    <message>
        <source>Cut by &amp;copying…</source>
        <translation>Durch &amp;Kopieren schneiden…</translation>
    </message>
    <message>
        <source>Cut e&amp;xactly…</source>
        <translation>E&amp;xakt schneiden…</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Filme</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmsWindow</name>
    <message>
        <source>Films</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>&amp;Tag that M sets:</source>
        <translation>&amp;Markierung, die M setzt:</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Schneiden</translation>
    </message>
    <message>
        <source>Cut into %1</source>
        <translation>In %1 geschnitten</translation>
    </message>
    <message>
        <source>“%1” is not there.</source>
        <translation>„%1“ ist nicht da.</translation>
    </message>
    <message>
        <source>Open a folder of films</source>
        <translation>Ordner mit Filmen öffnen</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>⚠ Not read: %1</source>
        <translation>⚠ Nicht gelesen: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FindActions</name>
    <message>
        <source>Queries</source>
        <translation>Abfragen</translation>
    </message>
    <message>
        <source>Search a &amp;folder…</source>
        <translation>&amp;Ordner durchsuchen…</translation>
    </message>
    <message>
        <source>Search f&amp;iles…</source>
        <translation>Date&amp;ien durchsuchen…</translation>
    </message>
    <message>
        <source>&amp;Read again</source>
        <translation>Erneut &amp;lesen</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>Lesen an&amp;halten</translation>
    </message>
    <message>
        <source>Files that could not be rea&amp;d…</source>
        <translation>Dateien, die &amp;nicht lesbar waren…</translation>
    </message>
    <message>
        <source>Save the result as &amp;CSV…</source>
        <translation>Ergebnis als CS&amp;V speichern…</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>&amp;Abfrage</translation>
    </message>
    <message>
        <source>&amp;Type a query</source>
        <translation>Abfrage &amp;tippen</translation>
    </message>
    <message>
        <source>&amp;Fields</source>
        <translation>&amp;Felder</translation>
    </message>
    <message>
        <source>&amp;Queries</source>
        <translation>A&amp;bfragen</translation>
    </message>
    <message>
        <source>&amp;Keep this query</source>
        <translation>Diese Abfrage be&amp;wahren</translation>
    </message>
    <message>
        <source>&amp;Give up the kept query</source>
        <translation>Bewahrte Abfrage auf&amp;geben</translation>
    </message>
    <message>
        <source>Resul&amp;t</source>
        <translation>&amp;Ergebnis</translation>
    </message>
    <message>
        <source>&amp;Show the run at its frame</source>
        <translation>&amp;Lauf bei seinem Bild zeigen</translation>
    </message>
    <message>
        <source>Open its &amp;race</source>
        <translation>Sein &amp;Rennen öffnen</translation>
    </message>
    <message>
        <source>Its &amp;time losses</source>
        <translation>Seine &amp;Zeitverluste</translation>
    </message>
    <message>
        <source>The rows of the &amp;group</source>
        <translation>Die Zeilen der &amp;Gruppe</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FindWindow</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>Queries</source>
        <translation>Abfragen</translation>
    </message>
    <message>
        <source>gates up left cat K1W time&lt;4 – what, then what is asked of it</source>
        <translation>gates up left cat K1W time&lt;4 – was, dann was davon gefragt ist</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Bewahren</translation>
    </message>
    <message>
        <source>Keeps this query among those at hand</source>
        <translation>Legt diese Abfrage zu den griffbereiten</translation>
    </message>
    <message>
        <source>The files are being read…</source>
        <translation>Die Dateien werden gelesen…</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>1 run</source>
        <translation>1 Lauf</translation>
    </message>
    <message>
        <source>. Reading was stopped: the others are not searched.</source>
        <translation>. Das Lesen wurde angehalten: die anderen sind nicht durchsucht.</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>In the group: %1</source>
        <translation>In der Gruppe: %1</translation>
    </message>
    <message>
        <source> · run %1</source>
        <translation> · Lauf %1</translation>
    </message>
    <message>
        <source> · split %1</source>
        <translation> · Zwischenzeit %1</translation>
    </message>
    <message>
        <source> · %1 s</source>
        <translation> · %1 s</translation>
    </message>
    <message>
        <source>Save the result</source>
        <translation>Ergebnis speichern</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Text mit Semikolons (*.csv)</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n Lauf</numerusform>
            <numerusform>%n Läufe</numerusform>
        </translation>
    </message>
    <message>
        <source>Drop a folder of split files (.kvx) here</source>
        <translation>Einen Ordner mit Zwischenzeitdateien (.kvx) hierher ziehen</translation>
    </message>
    <message>
        <source>All races below it are searched. They are only read.</source>
        <translation>Alle Rennen darunter werden durchsucht. Sie werden nur gelesen.</translation>
    </message>
    <message>
        <source>Search a folder…</source>
        <translation>Ordner durchsuchen…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FoundLines</name>
    <message>
        <source>In the file</source>
        <translation>In der Datei</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Bisher</translation>
    </message>
    <message>
        <source>Will be</source>
        <translation>Künftig</translation>
    </message>
    <message>
        <source>new: %1</source>
        <translation>neu: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FoundTable</name>
    <message>
        <source>rows of the group</source>
        <translation>Zeilen der Gruppe</translation>
    </message>
    <message>
        <source>run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>sections</source>
        <translation>Abschnitte</translation>
    </message>
    <message>
        <source>gate</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>gates</source>
        <translation>Tore</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>Strafe</translation>
    </message>
    <message>
        <source>penalties</source>
        <translation>Strafen</translation>
    </message>
    <message>
        <source>loss</source>
        <translation>Verlust</translation>
    </message>
    <message>
        <source>losses</source>
        <translation>Verluste</translation>
    </message>
    <message>
        <source>section with strokes</source>
        <translation>Abschnitt mit Schlägen</translation>
    </message>
    <message>
        <source>sections with strokes</source>
        <translation>Abschnitte mit Schlägen</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>Markierung</translation>
    </message>
    <message>
        <source>tags</source>
        <translation>Markierungen</translation>
    </message>
    <message>
        <source>group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>less than 1 ms</source>
        <translation>weniger als 1 ms</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 %2 in %3</source>
        <translation>%1 %2 in %3</translation>
    </message>
    <message>
        <source>, the first %1 shown</source>
        <translation>, die ersten %1 gezeigt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GapChart</name>
    <message>
        <source>Select runs in the table to see where time is won and lost.</source>
        <translation>Läufe in der Tabelle wählen, um zu sehen, wo Zeit gewonnen und verloren wird.</translation>
    </message>
    <message>
        <source>No run covers the whole course. Choose the median or a run as the reference.</source>
        <translation>Kein Lauf umfasst die ganze Strecke. Den Median oder einen Lauf als Referenz wählen.</translation>
    </message>
    <message>
        <source>The reference has no time in the first section. Choose another one.</source>
        <translation>Die Referenz hat im ersten Abschnitt keine Zeit. Eine andere wählen.</translation>
    </message>
    <message>
        <source>Gap to the best run: %1</source>
        <translation>Rückstand auf den besten Lauf: %1</translation>
    </message>
    <message>
        <source>Gap to the median of each section</source>
        <translation>Rückstand auf den Median jedes Abschnitts</translation>
    </message>
    <message>
        <source>Gap to the ideal run: the best of each section</source>
        <translation>Rückstand auf den Ideallauf: das Beste jedes Abschnitts</translation>
    </message>
    <message>
        <source>Gap to %1</source>
        <translation>Rückstand auf %1</translation>
    </message>
    <message>
        <source>Accumulated seconds, penalties included</source>
        <translation>Auflaufende Sekunden, mit Strafen</translation>
    </message>
    <message>
        <source>Accumulated seconds, without penalties</source>
        <translation>Auflaufende Sekunden, ohne Strafen</translation>
    </message>
    <message>
        <source>← slower      faster →</source>
        <translation>← langsamer      schneller →</translation>
    </message>
    <message>
        <source>not timed</source>
        <translation>ohne Zeit</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Rückstand</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>Nach %1</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>%1: gap</source>
        <translation>%1: Rückstand</translation>
    </message>
    <message>
        <source>%1: in the section</source>
        <translation>%1: im Abschnitt</translation>
    </message>
    <message>
        <source>Gap along the course for the selected runs</source>
        <translation>Rückstand entlang der Strecke für die gewählten Läufe</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GateChart</name>
    <message>
        <source>No run has its penalties by gate. Enter them for each gate to see where they happen.</source>
        <translation>Kein Lauf hat seine Strafen nach Toren. Für jedes Tor eintragen, um zu sehen, wo sie entstehen.</translation>
    </message>
    <message>
        <source>Penalties by gate</source>
        <translation>Strafen nach Toren</translation>
    </message>
    <message>
        <source>Runs with a penalty at the gate, of %1</source>
        <translation>Läufe mit Strafe am Tor, von %1</translation>
    </message>
    <message>
        <source> · ↑ upstream gate</source>
        <translation> · ↑ Aufwärtstor</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>Missed gate, 50 s</source>
        <translation>Torfehler, 50 s</translation>
    </message>
    <message>
        <source>Touch, 2 s</source>
        <translation>Berührung, 2 s</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Gate %1, upstream</source>
        <translation>Tor %1, aufwärts</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Tor %1</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Berührungen</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Verfehlt</translation>
    </message>
    <message>
        <source>missed</source>
        <translation>verfehlt</translation>
    </message>
    <message>
        <source>touch</source>
        <translation>Berührung</translation>
    </message>
    <message>
        <source>Upstream</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Tore</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GateForm</name>
    <message>
        <source>Gate</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Mark the pole line too</source>
        <translation>Auch die Torlinie markieren</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>A click brings a gate in front</source>
        <translation>Ein Klick holt ein Tor nach vorn</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GateStrip</name>
    <message>
        <source>Penalties at the gates</source>
        <translation>Strafen an den Toren</translation>
    </message>
    <message>
        <source>No gates yet: set up the course with Ctrl+G to note penalties.</source>
        <translation>Noch keine Tore: die Strecke mit Strg+G einrichten, um Strafen zu notieren.</translation>
    </message>
    <message>
        <source>Gate %1, upstream</source>
        <translation>Tor %1, aufwärts</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Tor %1</translation>
    </message>
    <message>
        <source>
T touch, F missed, 0 clean; N and P next and previous gate</source>
        <translation>
T Berührung, F Torfehler, 0 fehlerfrei; N und P nächstes und voriges Tor</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Gauge</name>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
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
        <translation>Neue Gruppe</translation>
    </message>
    <message>
        <source>New goal</source>
        <translation>Neues Ziel</translation>
    </message>
    <message>
        <source>New sub-goal</source>
        <translation>Neues Teilziel</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>Add group</source>
        <translation>Neue Gruppe</translation>
    </message>
    <message>
        <source>A group of goals, such as “Technique”</source>
        <translation>Eine Gruppe von Zielen, etwa „Technik“</translation>
    </message>
    <message>
        <source>Add goal</source>
        <translation>Neues Ziel</translation>
    </message>
    <message>
        <source>To the group that is chosen</source>
        <translation>Zur gewählten Gruppe</translation>
    </message>
    <message>
        <source>Add sub-goal</source>
        <translation>Neues Teilziel</translation>
    </message>
    <message>
        <source>To the group that is chosen, with a status (Insert)</source>
        <translation>Zur gewählten Gruppe, mit einem Stand (Einfg)</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Auf</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+Ab</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>No goals are set for this season yet.
“Add group” begins.</source>
        <translation>Für diese Saison sind noch keine Ziele gesetzt.
„Neue Gruppe“ macht den Anfang.</translation>
    </message>
    <message>
        <source>Choose a season to see its goals.</source>
        <translation>Eine Saison wählen, um ihre Ziele zu sehen.</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Gruppe %1</translation>
    </message>
    <message>
        <source>%1 of %2 reached</source>
        <translation>%1 von %2 erreicht</translation>
    </message>
    <message>
        <source>, %1 given up</source>
        <translation>, %1 aufgegeben</translation>
    </message>
    <message>
        <source>text of a goal</source>
        <translation>Text eines Ziels</translation>
    </message>
    <message>
        <source>status of a goal</source>
        <translation>Stand eines Ziels</translation>
    </message>
    <message>
        <source>new goal</source>
        <translation>neues Ziel</translation>
    </message>
    <message>
        <source>order of the goals</source>
        <translation>Reihenfolge der Ziele</translation>
    </message>
    <message>
        <source>removal of a goal</source>
        <translation>Entfernen eines Ziels</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GuideWindow</name>
    <message>
        <source>User guide – Kavela</source>
        <translation>Handbuch – Kavela</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Ways through the guide</source>
        <translation>Wege durch das Handbuch</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Next place</source>
        <translation>Nächste Stelle</translation>
    </message>
    <message>
        <source>Search the guide</source>
        <translation>Im Handbuch suchen</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>“%1” does not come with the program.</source>
        <translation>„%1“ liegt dem Programm nicht bei.</translation>
    </message>
    <message>
        <source>No chapter has these words.</source>
        <translation>Kein Kapitel enthält diese Wörter.</translation>
    </message>
    <message numerus="yes">
        <source>In %n chapters. Enter goes to the next place.</source>
        <translation>
            <numerusform>In %n Kapitel. Enter geht zur nächsten Stelle.</numerusform>
            <numerusform>In %n Kapiteln. Enter geht zur nächsten Stelle.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GymPanel</name>
    <message>
        <source>All seasons, in kilograms</source>
        <translation>Alle Saisons, in Kilogramm</translation>
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
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Exercises</source>
        <translation>Übungen</translation>
    </message>
    <message>
        <source>Tonnage</source>
        <translation>Tonnage</translation>
    </message>
    <message>
        <source>Exercise of the chart</source>
        <translation>Übung des Diagramms</translation>
    </message>
    <message>
        <source>&amp;History of</source>
        <translation>&amp;Verlauf von</translation>
    </message>
    <message>
        <source>Add session</source>
        <translation>Neue Einheit</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>removal of gym sessions</source>
        <translation>Entfernen von Krafteinheiten</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>The same exercises once more, today</source>
        <translation>Dieselben Übungen noch einmal, heute</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>new gym session</source>
        <translation>neue Krafteinheit</translation>
    </message>
    <message>
        <source>copy of a gym session</source>
        <translation>Kopie einer Krafteinheit</translation>
    </message>
    <message>
        <source>Choose an athlete.</source>
        <translation>Einen Athleten wählen.</translation>
    </message>
    <message>
        <source>Add a season for this athlete first.</source>
        <translation>Erst eine Saison für diesen Athleten hinzufügen.</translation>
    </message>
    <message>
        <source>No gym session of this season yet.
Press Insert to add today&apos;s.</source>
        <translation>Noch keine Krafteinheit dieser Saison.
Einfg fügt die heutige hinzu.</translation>
    </message>
    <message>
        <source>No exercise yet.
Press Insert to add one.</source>
        <translation>Noch keine Übung.
Einfg fügt eine hinzu.</translation>
    </message>
    <message>
        <source>Choose or add a session to see its exercises.</source>
        <translation>Eine Einheit wählen oder hinzufügen, um ihre Übungen zu sehen.</translation>
    </message>
    <message>
        <source>Add an exercise with its weight to see how it develops.</source>
        <translation>Eine Übung mit Gewicht hinzufügen, um zu sehen, wie sie sich entwickelt.</translation>
    </message>
    <message>
        <source>No weight of %1 yet.</source>
        <translation>Noch kein Gewicht von %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatAttacks</name>
    <message>
        <source>✓ passed</source>
        <translation>✓ vorbei</translation>
    </message>
    <message>
        <source>✗ held</source>
        <translation>✗ gehalten</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Attacker</source>
        <translation>Angreifer</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Auf</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Attacks</source>
        <translation>Angriffe</translation>
    </message>
    <message>
        <source>Attack at this frame</source>
        <translation>Angriff bei diesem Bild</translation>
    </message>
    <message>
        <source>An attack starts here: then press the number of the attacker and those of the defenders</source>
        <translation>Hier beginnt ein Angriff: dann die Nummer des Angreifers und die der Verteidiger drücken</translation>
    </message>
    <message>
        <source>A click shows the frame of an attack</source>
        <translation>Ein Klick zeigt das Bild eines Angriffs</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Tor %1</translation>
    </message>
    <message>
        <source>attack</source>
        <translation>Angriff</translation>
    </message>
    <message>
        <source>Attack: number of the attacker, then of the defenders</source>
        <translation>Angriff: Nummer des Angreifers, dann der Verteidiger</translation>
    </message>
    <message>
        <source>An attack without a moment, since there is no film: press the number of the attacker, then those of the defenders.</source>
        <translation>Ein Angriff ohne Moment, weil kein Film da ist: die Nummer des Angreifers drücken, dann die der Verteidiger.</translation>
    </message>
    <message>
        <source>attacker</source>
        <translation>Angreifer</translation>
    </message>
    <message>
        <source>defenders</source>
        <translation>Verteidiger</translation>
    </message>
    <message>
        <source>moment of an attack</source>
        <translation>Moment eines Angriffs</translation>
    </message>
    <message>
        <source>end of an attack removed</source>
        <translation>Ende eines Angriffs entfernt</translation>
    </message>
    <message>
        <source>attack removed</source>
        <translation>Angriff entfernt</translation>
    </message>
    <message>
        <source>Start ramp</source>
        <translation>Startrampe</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Eddy</source>
        <translation>Kehrwasser</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Welle</translation>
    </message>
    <message>
        <source>Flat water</source>
        <translation>Flachwasser</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Innen</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Außen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatDialog</name>
    <message>
        <source>Add a heat</source>
        <translation>Heat hinzufügen</translation>
    </message>
    <message>
        <source>Names of the boats</source>
        <translation>Namen der Boote</translation>
    </message>
    <message>
        <source>Boat %1</source>
        <translation>Boot %1</translation>
    </message>
    <message>
        <source>Each boat needs a name.</source>
        <translation>Jedes Boot braucht einen Namen.</translation>
    </message>
    <message>
        <source>%1 stands twice in the heat.</source>
        <translation>%1 steht zweimal im Heat.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatList</name>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>⚠ missing: %1</source>
        <translation>⚠ fehlt: %1</translation>
    </message>
    <message>
        <source>%1 of %2 gates</source>
        <translation>%1 von %2 Toren</translation>
    </message>
    <message>
        <source>Heat</source>
        <translation>Heat</translation>
    </message>
    <message>
        <source>Boats</source>
        <translation>Boote</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Erfasst</translation>
    </message>
    <message>
        <source>Add a heat…</source>
        <translation>Heat hinzufügen…</translation>
    </message>
    <message>
        <source>Adds a heat of up to four boats</source>
        <translation>Fügt einen Heat mit bis zu vier Booten hinzu</translation>
    </message>
    <message>
        <source>Names…</source>
        <translation>Namen…</translation>
    </message>
    <message>
        <source>Other names for the boats of the heat</source>
        <translation>Andere Namen für die Boote des Heats</translation>
    </message>
    <message>
        <source>Film…</source>
        <translation>Film…</translation>
    </message>
    <message>
        <source>Chooses the film of the heat</source>
        <translation>Wählt den Film des Heats</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Removes the heat with all its marks</source>
        <translation>Entfernt den Heat mit allen Marken</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatMapChart</name>
    <message>
        <source>Percent lost on %1, by section</source>
        <translation>Verlust in Prozent auf %1, nach Abschnitt</translation>
    </message>
    <message>
        <source>Percent lost by run and section</source>
        <translation>Verlust in Prozent nach Lauf und Abschnitt</translation>
    </message>
    <message>
        <source>S%1</source>
        <translation>S%1</translation>
    </message>
    <message>
        <source>is the reference</source>
        <translation>ist die Referenz</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Lauf</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatOrders</name>
    <message>
        <source>Take at this frame</source>
        <translation>Bei diesem Bild erfassen</translation>
    </message>
    <message>
        <source>Takes the order shown at the frame shown</source>
        <translation>Erfasst die gezeigte Reihenfolge bei diesem Bild</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>Back to the order as it was</source>
        <translation>Zurück zur Reihenfolge, wie sie war</translation>
    </message>
    <message>
        <source>Comment on this order</source>
        <translation>Kommentar zu dieser Reihenfolge</translation>
    </message>
    <message>
        <source>Add a heat first.</source>
        <translation>Erst einen Heat hinzufügen.</translation>
    </message>
    <message>
        <source>The cross course has no gates yet.</source>
        <translation>Die Cross-Strecke hat noch keine Tore.</translation>
    </message>
    <message>
        <source>This order does not count for the course. Choose a gate of the course first.</source>
        <translation>Diese Reihenfolge zählt nicht für die Strecke. Erst ein Tor der Strecke wählen.</translation>
    </message>
    <message>
        <source>No boat is named yet.</source>
        <translation>Noch kein Boot benannt.</translation>
    </message>
    <message>
        <source>order at gate %1</source>
        <translation>Reihenfolge an Tor %1</translation>
    </message>
    <message>
        <source>Gate %1:  %2</source>
        <translation>Tor %1:  %2</translation>
    </message>
    <message>
        <source>comment on an order</source>
        <translation>Kommentar zu einer Reihenfolge</translation>
    </message>
    <message>
        <source>not taken yet</source>
        <translation>noch nicht erfasst</translation>
    </message>
    <message>
        <source>taken at %1</source>
        <translation>erfasst bei %1</translation>
    </message>
    <message>
        <source>offered</source>
        <translation>angeboten</translation>
    </message>
    <message>
        <source>Gate %1 · %2</source>
        <translation>Tor %1 · %2</translation>
    </message>
    <message>
        <source>The cross course has no gates yet</source>
        <translation>Die Cross-Strecke hat noch keine Tore</translation>
    </message>
    <message>
        <source>Keep its moment</source>
        <translation>Moment behalten</translation>
    </message>
    <message>
        <source>Take without a moment</source>
        <translation>Ohne Moment erfassen</translation>
    </message>
    <message>
        <source>Corrects the order and leaves its moment as it is</source>
        <translation>Berichtigt die Reihenfolge und lässt ihren Moment, wie er ist</translation>
    </message>
    <message>
        <source>Takes the order shown where there is no film</source>
        <translation>Erfasst die gezeigte Reihenfolge, wo kein Film ist</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatPage</name>
    <message>
        <source>No heats yet. Add a heat with its boats and choose its film; then go to each gate and press the numbers of the boats as they pass.</source>
        <translation>Noch keine Heats. Einen Heat mit seinen Booten hinzufügen und seinen Film wählen; dann zu jedem Tor gehen und die Nummern der Boote drücken, wie sie vorbeikommen.</translation>
    </message>
    <message>
        <source>A%1</source>
        <translation>A%1</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>Keine Marke ist gewählt. Strg und die Pfeile gehen von Marke zu Marke.</translation>
    </message>
    <message>
        <source>order moved</source>
        <translation>Reihenfolge verschoben</translation>
    </message>
    <message>
        <source>order removed</source>
        <translation>Reihenfolge entfernt</translation>
    </message>
    <message>
        <source>This heat has %1 boats.</source>
        <translation>Dieser Heat hat %1 Boote.</translation>
    </message>
    <message>
        <source>heat</source>
        <translation>Heat</translation>
    </message>
    <message>
        <source>heat removed</source>
        <translation>Heat entfernt</translation>
    </message>
    <message>
        <source>names of boats</source>
        <translation>Namen der Boote</translation>
    </message>
    <message>
        <source>film of a heat</source>
        <translation>Film eines Heats</translation>
    </message>
    <message>
        <source>Add a heat first.</source>
        <translation>Erst einen Heat hinzufügen.</translation>
    </message>
    <message>
        <source>This heat has no boats yet.</source>
        <translation>Dieser Heat hat noch keine Boote.</translation>
    </message>
    <message>
        <source>Select the attack that ends here.</source>
        <translation>Den Angriff wählen, der hier endet.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HomeWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Öffnen…</translation>
    </message>
    <message>
        <source>Try the &amp;sample season</source>
        <translation>Bei&amp;spielsaison ausprobieren</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Where was the time won and lost, and why?</source>
        <translation>Wo wurde Zeit gewonnen und verloren, und warum?</translation>
    </message>
    <message>
        <source>Try the sample season</source>
        <translation>Beispielsaison ausprobieren</translation>
    </message>
    <message>
        <source>Open a file…</source>
        <translation>Datei öffnen…</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Nothing opened yet. Drop a split file (.kvx) or a folder here, open one with Ctrl+O, or try the sample season.</source>
        <translation>Noch nichts geöffnet. Eine Zwischenzeitdatei (.kvx) oder einen Ordner hierher ziehen, mit Strg+O öffnen oder die Beispielsaison ausprobieren.</translation>
    </message>
    <message>
        <source>Work kept</source>
        <translation>Bewahrte Arbeit</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Zwischenzeitdateien (*.kvx);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IdealPanel</name>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Beste</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Ideal run %1 s</source>
        <translation>Ideallauf %1 s</translation>
    </message>
    <message>
        <source>No ideal run: a section has no time.</source>
        <translation>Kein Ideallauf: ein Abschnitt hat keine Zeit.</translation>
    </message>
    <message>
        <source>
Fastest run %1 s, %2
%3 s behind the ideal run</source>
        <translation>
Schnellster Lauf %1 s, %2
%3 s hinter dem Ideallauf</translation>
    </message>
    <message>
        <source>
Penalties are left out.</source>
        <translation>
Strafen sind nicht enthalten.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::InformationDialog</name>
    <message>
        <source>Session information</source>
        <translation>Angaben zur Einheit</translation>
    </message>
    <message>
        <source>The weight tells force and power when a recording is converted: analyse it again after changing it.</source>
        <translation>Das Gewicht bestimmt Kraft und Leistung, wenn eine Aufzeichnung umgewandelt wird: nach dem Ändern neu auswerten.</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>&amp;Athlet</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Ort</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>A&amp;rt</translation>
    </message>
    <message>
        <source>&amp;Weight</source>
        <translation>&amp;Gewicht</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>&amp;Paddle length</source>
        <translation>&amp;Paddellänge</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>&amp;Blade area</source>
        <translation>Blatt&amp;fläche</translation>
    </message>
    <message>
        <source>cm²</source>
        <translation>cm²</translation>
    </message>
    <message>
        <source>Blade &amp;height</source>
        <translation>Bla&amp;tthöhe</translation>
    </message>
    <message>
        <source>Hand po&amp;sition</source>
        <translation>Hand&amp;haltung</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalChart</name>
    <message>
        <source>too few</source>
        <translation>zu wenige</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalForm</name>
    <message>
        <source>Minutes and seconds such as 1:30, or seconds</source>
        <translation>Minuten und Sekunden wie 1:30, oder Sekunden</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Titel</translation>
    </message>
    <message>
        <source>T&amp;arget</source>
        <translation>&amp;Ziel</translation>
    </message>
    <message>
        <source>Rh&amp;ythm</source>
        <translation>&amp;Rhythmus</translation>
    </message>
    <message>
        <source>S&amp;ets</source>
        <translation>&amp;Sätze</translation>
    </message>
    <message>
        <source>Re&amp;petitions</source>
        <translation>&amp;Wiederholungen</translation>
    </message>
    <message>
        <source>&amp;Work</source>
        <translation>&amp;Arbeit</translation>
    </message>
    <message>
        <source>&amp;Rest between repetitions</source>
        <translation>&amp;Pause zwischen Wiederholungen</translation>
    </message>
    <message>
        <source>Rest &amp;between sets</source>
        <translation>Pause zwischen Sätz&amp;en</translation>
    </message>
    <message>
        <source>&amp;Kind of rest</source>
        <translation>Art &amp;der Pause</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Umfang</translation>
    </message>
    <message>
        <source>&amp;Intensity</source>
        <translation>&amp;Intensität</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Beschreibung</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalTimerDialog</name>
    <message>
        <source>%1 – timer</source>
        <translation>%1 – Timer</translation>
    </message>
    <message>
        <source>◀ Back</source>
        <translation>◀ Zurück</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Pfeil links</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Skip ▶</source>
        <translation>Weiter ▶</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Pfeil rechts</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>F11</source>
        <translation>F11</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalsPanel</name>
    <message>
        <source>Session</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Make-up</source>
        <translation>Aufbau</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <source>New session</source>
        <translation>Neue Einheit</translation>
    </message>
    <message>
        <source>interval session</source>
        <translation>Intervalleinheit</translation>
    </message>
    <message>
        <source>No favourite sessions yet. “Add” begins the first.</source>
        <translation>Noch keine bevorzugten Einheiten. „Hinzufügen“ macht den Anfang.</translation>
    </message>
    <message>
        <source>Add a session</source>
        <translation>Einheit hinzufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Another one like it</source>
        <translation>Noch eine solche</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Remove the session</source>
        <translation>Einheit entfernen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Start the timer…</source>
        <translation>Timer starten…</translation>
    </message>
    <message>
        <source>A clock for the bank, readable from afar. Double click on a session opens it too.</source>
        <translation>Eine Uhr fürs Ufer, von weitem lesbar. Auch ein Doppelklick auf eine Einheit öffnet sie.</translation>
    </message>
    <message>
        <source>new interval session</source>
        <translation>neue Intervalleinheit</translation>
    </message>
    <message>
        <source>%1, copy</source>
        <translation>%1, Kopie</translation>
    </message>
    <message>
        <source>copy of an interval session</source>
        <translation>Kopie einer Intervalleinheit</translation>
    </message>
    <message>
        <source>order of the interval sessions</source>
        <translation>Reihenfolge der Intervalleinheiten</translation>
    </message>
    <message>
        <source>removal of an interval session</source>
        <translation>Entfernen einer Intervalleinheit</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::JobsWindow</name>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>Show the &amp;folder</source>
        <translation>&amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>&amp;Clear what is over</source>
        <translation>&amp;Erledigtes ausräumen</translation>
    </message>
    <message>
        <source>Films being composed</source>
        <translation>Filme in Arbeit</translation>
    </message>
    <message>
        <source>No film is being composed.</source>
        <translation>Kein Film wird zusammengesetzt.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeptColumns</name>
    <message>
        <source>&amp;All columns in their order</source>
        <translation>&amp;Alle Spalten in ihrer Reihenfolge</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeptQueries</name>
    <message>
        <source>Queries</source>
        <translation>Abfragen</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Bewahrt</translation>
    </message>
    <message>
        <source>Asked last</source>
        <translation>Zuletzt gefragt</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Beispiele</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeyEditor</name>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Find an action</source>
        <translation>Aktion suchen</translation>
    </message>
    <message>
        <source>Standard keys</source>
        <translation>Standardtasten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1 is the key of “%2” already. “%3” can take it over; “%2” has it no longer then.</source>
        <translation>%1 ist schon die Taste von „%2“. „%3“ kann sie übernehmen; „%2“ hat sie dann nicht mehr.</translation>
    </message>
    <message>
        <source>Take it over</source>
        <translation>Übernehmen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeyOverlay</name>
    <message>
        <source>All keys</source>
        <translation>Alle Tasten</translation>
    </message>
    <message>
        <source>Up, Down, Page up and Page down show the rest; any other key closes.</source>
        <translation>Auf, Ab, Bild auf und Bild ab zeigen den Rest; jede andere Taste schließt.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KnownPointsPage</name>
    <message>
        <source>No known point yet. Tick Path &gt; Click known points, then click the foot of a gate&apos;s poles in the picture.</source>
        <translation>Noch kein bekannter Punkt. Bahn &gt; Bekannte Punkte anklicken abhaken, dann im Bild den Fuß der Torstäbe anklicken.</translation>
    </message>
    <message>
        <source>&amp;Take it away</source>
        <translation>&amp;Wegnehmen</translation>
    </message>
    <message>
        <source>removal of a known point</source>
        <translation>Entfernen eines bekannten Punkts</translation>
    </message>
    <message>
        <source>A place on the water is a number of metres, -10000 to 10000</source>
        <translation>Ein Ort auf dem Wasser ist eine Zahl von Metern, -10000 bis 10000</translation>
    </message>
    <message>
        <source>metres of a known point</source>
        <translation>Meter eines bekannten Punkts</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Across</source>
        <translation>Quer</translation>
    </message>
    <message>
        <source>Along</source>
        <translation>Längs</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LaneStrip</name>
    <message>
        <source>Notes of the run</source>
        <translation>Notizen des Laufs</translation>
    </message>
    <message>
        <source>A click shows the frame of a mark, dragging moves the mark</source>
        <translation>Ein Klick zeigt das Bild einer Marke, Ziehen verschiebt die Marke</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Andere</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LineOverlay</name>
    <message>
        <source>Lines over the film</source>
        <translation>Linien über dem Film</translation>
    </message>
    <message>
        <source>Drag an end of a line, or the line. With the focus here the arrows move it, with Shift by ten pixels; Tab goes from end to end, Esc leaves.</source>
        <translation>Ein Ende einer Linie ziehen, oder die Linie. Mit dem Fokus hier verschieben die Pfeile sie, mit Umschalt um zehn Pixel; Tab geht von Ende zu Ende, Esc verlässt sie.</translation>
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
        <translation>Datum</translation>
    </message>
    <message>
        <source>new %1</source>
        <translation>neu: %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>removal of %1</source>
        <translation>Entfernen: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ListPanel</name>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>No row is left. Ctrl+Z takes the last step back.</source>
        <translation>Keine Zeile übrig. Strg+Z nimmt den letzten Schritt zurück.</translation>
    </message>
    <message>
        <source>Every cell was taken.</source>
        <translation>Jede Zelle wurde übernommen.</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Abgelehnt</translation>
    </message>
    <message>
        <source>Refused (%1)</source>
        <translation>Abgelehnt (%1)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LoginDialog</name>
    <message>
        <source>&amp;Keep it in the password store of this computer</source>
        <translation>Im Passwort&amp;speicher dieses Rechners behalten</translation>
    </message>
    <message>
        <source>Sign in to %1</source>
        <translation>Anmelden bei %1</translation>
    </message>
    <message>
        <source>Only this server is shown the password. It is never written into a file.</source>
        <translation>Nur dieser Server bekommt das Passwort. Es wird nie in eine Datei geschrieben.</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>&amp;Benutzername</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Pass&amp;wort</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossChartsPanel</name>
    <message>
        <source>Charts</source>
        <translation>Diagramme</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>From the reference&apos;s total to the run&apos;s own</source>
        <translation>Von der Gesamtzeit der Referenz zu der des Laufs</translation>
    </message>
    <message>
        <source>Heat map</source>
        <translation>Heatmap</translation>
    </message>
    <message>
        <source>Percent lost by run and section</source>
        <translation>Verlust in Prozent nach Lauf und Abschnitt</translation>
    </message>
    <message>
        <source>Most lost</source>
        <translation>Größte Verluste</translation>
    </message>
    <message>
        <source>The sections that lost most, in their order</source>
        <translation>Die Abschnitte mit dem größten Verlust, der Reihe nach</translation>
    </message>
    <message>
        <source>Along the course</source>
        <translation>Entlang der Strecke</translation>
    </message>
    <message>
        <source>The gap after each section</source>
        <translation>Der Rückstand nach jedem Abschnitt</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Save chart…</source>
        <translation>Diagramm speichern…</translation>
    </message>
    <message>
        <source>Show everything again (or double click)</source>
        <translation>Wieder alles zeigen (oder Doppelklick)</translation>
    </message>
    <message>
        <source>Save as PNG, SVG or CSV</source>
        <translation>Als PNG, SVG oder CSV speichern</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossHeader</name>
    <message>
        <source>Reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>What the run is held against</source>
        <translation>Womit der Lauf verglichen wird</translation>
    </message>
    <message>
        <source>Alt+click or Shift+F1: why</source>
        <translation>Alt+Klick oder Umschalt+F1: warum</translation>
    </message>
    <message>
        <source>Ru&amp;n</source>
        <translation>La&amp;uf</translation>
    </message>
    <message>
        <source>hel&amp;d against</source>
        <translation>ver&amp;glichen mit</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossPage</name>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Against</source>
        <translation>Gegen</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>The next M begins another time loss</source>
        <translation>Das nächste M beginnt einen weiteren Zeitverlust</translation>
    </message>
    <message>
        <source>Add over the section</source>
        <translation>Über den Abschnitt anlegen</translation>
    </message>
    <message>
        <source>Another reason</source>
        <translation>Weiterer Grund</translation>
    </message>
    <message>
        <source>To the other run</source>
        <translation>Zum anderen Lauf</translation>
    </message>
    <message>
        <source>reason of a time loss</source>
        <translation>Grund eines Zeitverlusts</translation>
    </message>
    <message>
        <source>This run</source>
        <translation>Dieser Lauf</translation>
    </message>
    <message>
        <source>Other run</source>
        <translation>Anderer Lauf</translation>
    </message>
    <message>
        <source>Sets this mark at the frame shown</source>
        <translation>Setzt diese Marke auf das gezeigte Bild</translation>
    </message>
    <message>
        <source>kind of a time loss</source>
        <translation>Art eines Zeitverlusts</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Tore</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Wasser</translation>
    </message>
    <message>
        <source>comment on a time loss</source>
        <translation>Kommentar zu einem Zeitverlust</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Back to the run</source>
        <translation>Zurück zum Lauf</translation>
    </message>
    <message>
        <source>M marks where the stretch starts and makes another time loss.</source>
        <translation>M markiert, wo die Strecke beginnt, und legt einen weiteren Zeitverlust an.</translation>
    </message>
    <message>
        <source>M marks where the stretch starts and makes a time loss.</source>
        <translation>M markiert, wo die Strecke beginnt, und legt einen Zeitverlust an.</translation>
    </message>
    <message>
        <source>%1 s (%2 %) against %3</source>
        <translation>%1 s (%2&#xa0;%) gegen %3</translation>
    </message>
    <message>
        <source>Go back to the run that lost the time first.</source>
        <translation>Erst zurück zu dem Lauf, der die Zeit verlor.</translation>
    </message>
    <message>
        <source>A time loss needs another run to compare with.</source>
        <translation>Ein Zeitverlust braucht einen anderen Lauf zum Vergleich.</translation>
    </message>
    <message>
        <source>time loss</source>
        <translation>Zeitverlust</translation>
    </message>
    <message>
        <source>Start and end are marked here too. Ctrl+T goes back to the run that lost the time, where M begins its next loss.</source>
        <translation>Anfang und Ende werden auch hier markiert. Strg+T geht zurück zu dem Lauf, der die Zeit verlor; dort beginnt M seinen nächsten Verlust.</translation>
    </message>
    <message>
        <source>mark of a time loss</source>
        <translation>Marke eines Zeitverlusts</translation>
    </message>
    <message>
        <source>time loss removed</source>
        <translation>Zeitverlust entfernt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossTables</name>
    <message>
        <source>Both runs have no upstream gate timed in common.</source>
        <translation>Beide Läufe haben kein gemeinsames Aufwärtstor mit Zeiten.</translation>
    </message>
    <message>
        <source>No time lost is noted of this run.</source>
        <translation>Zu diesem Lauf ist kein Zeitverlust notiert.</translation>
    </message>
    <message>
        <source>No ways are compared in this run.</source>
        <translation>In diesem Lauf sind keine Wege verglichen.</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Abschnitte</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Tore</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Ways</source>
        <translation>Wege</translation>
    </message>
    <message>
        <source>&amp;Play both films</source>
        <translation>&amp;Beide Filme abspielen</translation>
    </message>
    <message>
        <source>Hold all against this &amp;run</source>
        <translation>Alles mit diesem &amp;Lauf vergleichen</translation>
    </message>
    <message>
        <source>Notes (%1 unfinished)</source>
        <translation>Notizen (%1 unfertig)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossesActions</name>
    <message>
        <source>&amp;Open races…</source>
        <translation>&amp;Rennen öffnen…</translation>
    </message>
    <message>
        <source>Open a &amp;folder of races…</source>
        <translation>&amp;Ordner mit Rennen öffnen…</translation>
    </message>
    <message>
        <source>&amp;Read all again</source>
        <translation>A&amp;lle erneut lesen</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>Lesen an&amp;halten</translation>
    </message>
    <message>
        <source>&amp;Page of an athlete: PDF, preview, print…</source>
        <translation>Se&amp;ite eines Athleten: PDF, Vorschau, Druck…</translation>
    </message>
    <message>
        <source>Save the table as &amp;CSV…</source>
        <translation>Tabelle als CS&amp;V speichern…</translation>
    </message>
    <message>
        <source>&amp;Save the chart…</source>
        <translation>&amp;Diagramm speichern…</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Lauf</translation>
    </message>
    <message>
        <source>&amp;Find a run</source>
        <translation>Lauf s&amp;uchen</translation>
    </message>
    <message>
        <source>The &amp;next in rank</source>
        <translation>Der &amp;nächste nach Platz</translation>
    </message>
    <message>
        <source>The &amp;one in front</source>
        <translation>Der &amp;davor</translation>
    </message>
    <message>
        <source>&amp;Season of the athlete, or the run</source>
        <translation>Saison des &amp;Athleten oder der Lauf</translation>
    </message>
    <message>
        <source>Re&amp;ference</source>
        <translation>R&amp;eferenz</translation>
    </message>
    <message>
        <source>The &amp;winner</source>
        <translation>Der &amp;Sieger</translation>
    </message>
    <message>
        <source>The &amp;fastest paddling</source>
        <translation>Der mit der schnellsten &amp;Fahrzeit</translation>
    </message>
    <message>
        <source>The &amp;ideal run</source>
        <translation>Der &amp;Ideallauf</translation>
    </message>
    <message>
        <source>The &amp;median of the finalists</source>
        <translation>Der &amp;Median der Finalisten</translation>
    </message>
    <message>
        <source>The crew&apos;s &amp;own best other run</source>
        <translation>Der beste &amp;andere Lauf der Besatzung selbst</translation>
    </message>
    <message>
        <source>The run that is &amp;shown</source>
        <translation>Der gezeigte &amp;Lauf</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Sum from total to total</source>
        <translation>&amp;Summe von Gesamtzeit zu Gesamtzeit</translation>
    </message>
    <message>
        <source>&amp;Heat map</source>
        <translation>&amp;Heatmap</translation>
    </message>
    <message>
        <source>Sections that lost &amp;most</source>
        <translation>Abschnitte mit dem &amp;größten Verlust</translation>
    </message>
    <message>
        <source>Gap &amp;along the course</source>
        <translation>Rückstand &amp;entlang der Strecke</translation>
    </message>
    <message>
        <source>Table of s&amp;ections</source>
        <translation>Tabelle der Abschn&amp;itte</translation>
    </message>
    <message>
        <source>Table of &amp;runs</source>
        <translation>Tabelle der &amp;Läufe</translation>
    </message>
    <message>
        <source>Table of &amp;gates</source>
        <translation>Tabelle der &amp;Tore</translation>
    </message>
    <message>
        <source>Table of &amp;notes</source>
        <translation>Tabelle der &amp;Notizen</translation>
    </message>
    <message>
        <source>Table of &amp;ways</source>
        <translation>Tabelle der &amp;Wege</translation>
    </message>
    <message>
        <source>Show the whole &amp;chart</source>
        <translation>Ganzes &amp;Diagramm zeigen</translation>
    </message>
    <message>
        <source>&amp;Blue to orange instead of green to red</source>
        <translation>&amp;Blau bis Orange statt Grün bis Rot</translation>
    </message>
    <message>
        <source>Fil&amp;ms</source>
        <translation>Fil&amp;me</translation>
    </message>
    <message>
        <source>&amp;Play the section of both runs</source>
        <translation>Abschnitt beider Läufe abs&amp;pielen</translation>
    </message>
    <message>
        <source>&amp;Film this loss…</source>
        <translation>Diesen Verlust &amp;filmen…</translation>
    </message>
    <message>
        <source>&amp;Hide the films</source>
        <translation>Filme &amp;ausblenden</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>Pa&amp;ge for an athlete…</source>
        <translation>Seite für einen &amp;Athleten…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossesWindow</name>
    <message>
        <source>Split files</source>
        <translation>Zwischenzeitdateien</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Saison</translation>
    </message>
    <message>
        <source>Hide the films</source>
        <translation>Filme ausblenden</translation>
    </message>
    <message>
        <source>Stop reading</source>
        <translation>Lesen anhalten</translation>
    </message>
    <message>
        <source>&amp;Open it</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translation>%1 wird geschrieben…</translation>
    </message>
    <message>
        <source>The page was not written.</source>
        <translation>Die Seite wurde nicht geschrieben.</translation>
    </message>
    <message>
        <source>%1 is not in the files any more; another run is shown.</source>
        <translation>%1 ist nicht mehr in den Dateien; ein anderer Lauf wird gezeigt.</translation>
    </message>
    <message>
        <source>%1 is not in the files any more; the winner is the reference now.</source>
        <translation>%1 ist nicht mehr in den Dateien; jetzt ist der Sieger die Referenz.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>%1 files cannot be read, the first of them %2: %3</source>
        <translation>%1 Dateien sind nicht lesbar, die erste davon %2: %3</translation>
    </message>
    <message>
        <source>Stopped: not all files were read.</source>
        <translation>Angehalten: nicht alle Dateien wurden gelesen.</translation>
    </message>
    <message>
        <source>There is no run in what was opened.</source>
        <translation>In dem Geöffneten ist kein Lauf.</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Zeitverluste</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Open races</source>
        <translation>Rennen öffnen</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Zwischenzeitdateien (*.kvx);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open a folder of races</source>
        <translation>Ordner mit Rennen öffnen</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>%1 ist geschrieben.</translation>
    </message>
    <message>
        <source>Choose a section first.</source>
        <translation>Erst einen Abschnitt wählen.</translation>
    </message>
    <message>
        <source>No film shows this of either run: a film and both marks are needed.</source>
        <translation>Kein Film zeigt das von einem der Läufe: nötig sind ein Film und beide Marken.</translation>
    </message>
    <message>
        <source>No film shows the run here; that of the reference plays alone.</source>
        <translation>Kein Film zeigt den Lauf hier; der der Referenz läuft allein.</translation>
    </message>
    <message>
        <source>There is no run to watch beside it.</source>
        <translation>Es gibt keinen Lauf, der daneben zu sehen wäre.</translation>
    </message>
    <message>
        <source>No film shows %1 here.</source>
        <translation>Kein Film zeigt %1 hier.</translation>
    </message>
    <message>
        <source>There is no run to film beside it.</source>
        <translation>Es gibt keinen Lauf, der daneben zu filmen wäre.</translation>
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
        <translation>Zwischenzeiten</translation>
    </message>
    <message>
        <source>Micro splits</source>
        <translation>Mikrozeiten</translation>
    </message>
    <message>
        <source>Upstream gates</source>
        <translation>Aufwärtstore</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Schläge</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Zeitverluste</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Markierungen</translation>
    </message>
    <message>
        <source> · camera %1</source>
        <translation> · Kamera %1</translation>
    </message>
    <message>
        <source> · fixed camera %1</source>
        <translation> · feste Kamera %1</translation>
    </message>
    <message>
        <source> · other run</source>
        <translation> · anderer Lauf</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 bei %2</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marke</translation>
    </message>
    <message>
        <source>Times are of this run, whatever film a mark lies on. A click shows the frame of a mark; Ctrl and Shift choose several for their clips</source>
        <translation>Zeiten sind die dieses Laufs, auf welchem Film eine Marke auch liegt. Ein Klick zeigt das Bild einer Marke; Strg und Umschalt wählen mehrere für ihre Clips</translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation>Arten</translation>
    </message>
    <message>
        <source>The kinds of marks that are listed</source>
        <translation>Die Arten von Marken in der Liste</translation>
    </message>
    <message>
        <source>Marks of the run</source>
        <translation>Marken des Laufs</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Alle Arten</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
    <message>
        <source>Plays the clips of the chosen marks one after another; of all that are listed when not several are chosen</source>
        <translation>Spielt die Clips der gewählten Marken nacheinander ab; alle der Liste, wenn nicht mehrere gewählt sind</translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) before and after a mark</source>
        <translation>
            <numerusform>%n Sekunde vor und nach einer Marke</numerusform>
            <numerusform>%n Sekunden vor und nach einer Marke</numerusform>
        </translation>
    </message>
    <message>
        <source> · outside the film</source>
        <translation> · außerhalb des Films</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MicroPage</name>
    <message>
        <source>Mark</source>
        <translation>Marke</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>From the one before</source>
        <translation>Ab voriger</translation>
    </message>
    <message>
        <source>M marks a micro split at the frame shown.</source>
        <translation>M markiert eine Mikrozeit bei dem gezeigten Bild.</translation>
    </message>
    <message>
        <source>micro split</source>
        <translation>Mikrozeit</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionActions</name>
    <message>
        <source>Charts</source>
        <translation>Diagramme</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Aufzeichnungen</translation>
    </message>
    <message>
        <source>&amp;Open recordings…</source>
        <translation>Aufzeichnungen &amp;öffnen…</translation>
    </message>
    <message>
        <source>Save the &amp;chart…</source>
        <translation>&amp;Diagramm speichern…</translation>
    </message>
    <message>
        <source>&amp;Recording</source>
        <translation>Au&amp;fzeichnung</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Umwandeln</translation>
    </message>
    <message>
        <source>Convert &amp;all ticked</source>
        <translation>&amp;Alle abgehakten umwandeln</translation>
    </message>
    <message>
        <source>&amp;Open the converted session</source>
        <translation>Umgewandelte &amp;Einheit öffnen</translation>
    </message>
    <message>
        <source>&amp;Previous recording</source>
        <translation>&amp;Vorige Aufzeichnung</translation>
    </message>
    <message>
        <source>&amp;Next recording</source>
        <translation>&amp;Nächste Aufzeichnung</translation>
    </message>
    <message>
        <source>&amp;Show or hide</source>
        <translation>&amp;Zeigen oder ausblenden</translation>
    </message>
    <message>
        <source>Show this one a&amp;lone</source>
        <translation>Nur &amp;diese zeigen</translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation>Aus der &amp;Liste entfernen</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Zeit</translation>
    </message>
    <message>
        <source>&amp;Undo the move</source>
        <translation>Verschieben &amp;zurücknehmen</translation>
    </message>
    <message>
        <source>&amp;Redo the move</source>
        <translation>&amp;Wieder verschieben</translation>
    </message>
    <message>
        <source>Align the &amp;starts</source>
        <translation>An den &amp;Starts ausrichten</translation>
    </message>
    <message>
        <source>Align by the &amp;clock</source>
        <translation>An der &amp;Uhr ausrichten</translation>
    </message>
    <message>
        <source>&amp;Align here: the cursor to the clicked moment</source>
        <translation>&amp;Hier ausrichten: der Cursor auf den angeklickten Moment</translation>
    </message>
    <message>
        <source>&amp;Forget the clicked moment</source>
        <translation>Angeklickten &amp;Moment vergessen</translation>
    </message>
    <message>
        <source>&amp;Earlier</source>
        <translation>&amp;Früher</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>S&amp;päter</translation>
    </message>
    <message>
        <source>&amp;Previous stroke</source>
        <translation>&amp;Voriger Schlag</translation>
    </message>
    <message>
        <source>&amp;Next stroke</source>
        <translation>&amp;Nächster Schlag</translation>
    </message>
    <message>
        <source>&amp;Charts</source>
        <translation>Dia&amp;gramme</translation>
    </message>
    <message>
        <source>Axes of the &amp;phone</source>
        <translation>&amp;Achsen des Telefons</translation>
    </message>
    <message>
        <source>Axes of the phone</source>
        <translation>Achsen des Telefons</translation>
    </message>
    <message>
        <source>&amp;Mark strokes and turns</source>
        <translation>Schläge und Drehungen &amp;markieren</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Show &amp;everything</source>
        <translation>&amp;Alles zeigen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionAlignment</name>
    <message>
        <source>Every recording begins at 0. Ctrl+Z brings the alignment before back.</source>
        <translation>Jede Aufzeichnung beginnt bei 0. Strg+Z holt die Ausrichtung davor zurück.</translation>
    </message>
    <message>
        <source>Every recording stands at its date. Ctrl+Z brings the alignment before back.</source>
        <translation>Jede Aufzeichnung steht bei ihrem Datum. Strg+Z holt die Ausrichtung davor zurück.</translation>
    </message>
    <message>
        <source>The date is not known of %1</source>
        <translation>Das Datum ist nicht bekannt von %1</translation>
    </message>
    <message>
        <source>Click the moment where it should be, choose a recording, point at its moment and press A</source>
        <translation>Auf den Moment klicken, wo es sein soll, eine Aufzeichnung wählen, auf ihren Moment zeigen und A drücken</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionCharts</name>
    <message>
        <source>here</source>
        <translation>hier</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionConversions</name>
    <message>
        <source>Convert</source>
        <translation>Umwandeln</translation>
    </message>
    <message>
        <source>%1  %2: %3 strokes, %4 turns</source>
        <translation>%1  %2: %3 Schläge, %4 Drehungen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionPanel</name>
    <message>
        <source>%1 s of %2 s are recorded.</source>
        <translation>%1 s von %2 s sind aufgezeichnet.</translation>
    </message>
    <message>
        <source>Nothing of it is recorded.</source>
        <translation>Nichts davon ist aufgezeichnet.</translation>
    </message>
    <message>
        <source>greatest %1 m/s, %2 m</source>
        <translation>höchstens %1 m/s, %2 m</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Schläge</translation>
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
        <translation>Herz</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Schlagfrequenz</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Herzfrequenz</translation>
    </message>
    <message>
        <source>Select a run to see its strokes, speed and heart rate.</source>
        <translation>Einen Lauf wählen, um seine Schläge, sein Tempo und die Herzfrequenz zu sehen.</translation>
    </message>
    <message>
        <source>No recording is attached to this run. Split taking attaches one (Ctrl+B).</source>
        <translation>Diesem Lauf ist keine Aufzeichnung zugeordnet. Das geschieht in der Zwischenzeitnahme (Strg+B).</translation>
    </message>
    <message>
        <source>%1 of the part that is recorded; strokes of the whole run are not known.</source>
        <translation>%1 des aufgezeichneten Teils; Schläge des ganzen Laufs sind nicht bekannt.</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Lauf</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionRecordings</name>
    <message>
        <source>%1: there is not enough memory for it</source>
        <translation>%1: der Speicher reicht dafür nicht</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionWindow</name>
    <message>
        <source>Recordings</source>
        <translation>Aufzeichnungen</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Umwandeln</translation>
    </message>
    <message>
        <source>Writes strokes and turns as a processed session (.bms) beside the recording</source>
        <translation>Schreibt Schläge und Drehungen als ausgewertete Einheit (.bms) neben die Aufzeichnung</translation>
    </message>
    <message>
        <source>Convert all ticked</source>
        <translation>Alle abgehakten umwandeln</translation>
    </message>
    <message>
        <source>At the cursor</source>
        <translation>Am Cursor</translation>
    </message>
    <message>
        <source>Drop raw recordings (.kvb) here</source>
        <translation>Rohaufzeichnungen (.kvb) hierher ziehen</translation>
    </message>
    <message>
        <source>Several are laid over each other. They are only read: converting writes a new file.</source>
        <translation>Mehrere liegen übereinander. Sie werden nur gelesen: Umwandeln schreibt eine neue Datei.</translation>
    </message>
    <message>
        <source>Open recordings…</source>
        <translation>Aufzeichnungen öffnen…</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>Aufzeichnungen öffnen</translation>
    </message>
    <message>
        <source>Raw recordings (*.kvb);;All files (*)</source>
        <translation>Rohaufzeichnungen (*.kvb);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen…</translation>
    </message>
    <message>
        <source>Raw recordings</source>
        <translation>Rohaufzeichnungen</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::NoteMarks</name>
    <message>
        <source>This mark lies on the film of a fixed camera that is not in step.</source>
        <translation>Diese Marke liegt auf dem Film einer festen Kamera, die nicht im Gleichlauf ist.</translation>
    </message>
    <message>
        <source>The other run of this time loss is not in this file.</source>
        <translation>Der andere Lauf dieses Zeitverlusts ist nicht in dieser Datei.</translation>
    </message>
    <message>
        <source>Another run came to the front: nothing was marked.</source>
        <translation>Ein anderer Lauf kam nach vorn: nichts wurde markiert.</translation>
    </message>
    <message>
        <source>Nothing can be marked: %1 is not in the folder of the split file. Cameras &gt; Where are the films now?</source>
        <translation>Nichts kann markiert werden: %1 ist nicht im Ordner der Zwischenzeitdatei. Kameras &gt; Wo sind die Filme jetzt?</translation>
    </message>
    <message>
        <source>mark moved</source>
        <translation>Marke verschoben</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>Keine Marke ist gewählt. Strg und die Pfeile gehen von Marke zu Marke.</translation>
    </message>
    <message>
        <source>This mark lies on another film than the one shown.</source>
        <translation>Diese Marke liegt auf einem anderen Film als dem gezeigten.</translation>
    </message>
    <message>
        <source>None of these marks lies on the film that is shown.</source>
        <translation>Keine dieser Marken liegt auf dem gezeigten Film.</translation>
    </message>
    <message>
        <source>Nothing is selected that could be removed. Ctrl and the arrows go from mark to mark.</source>
        <translation>Nichts ist gewählt, das sich entfernen ließe. Strg und die Pfeile gehen von Marke zu Marke.</translation>
    </message>
    <message>
        <source>mark removed</source>
        <translation>Marke entfernt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::NotePage</name>
    <message>
        <source>Splits</source>
        <translation>Zeiten</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Strafen</translation>
    </message>
    <message>
        <source>Upstreams</source>
        <translation>Aufwärtstore</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Schläge</translation>
    </message>
    <message>
        <source>Micro</source>
        <translation>Mikro</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Markierungen</translation>
    </message>
    <message>
        <source>Losses</source>
        <translation>Verluste</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentare</translation>
    </message>
    <message>
        <source>Ways</source>
        <translation>Wege</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::NotesPanel</name>
    <message>
        <source>Clip %1 of %2</source>
        <translation>Clip %1 von %2</translation>
    </message>
    <message>
        <source>This key works in the mode %1.</source>
        <translation>Diese Taste wirkt im Modus %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OfferDialog</name>
    <message>
        <source>A newer version</source>
        <translation>Eine neuere Version</translation>
    </message>
    <message>
        <source>Kavela %1 is here</source>
        <translation>Kavela %1 ist da</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Was neu ist</translation>
    </message>
    <message>
        <source>Nothing is told of what is new.</source>
        <translation>Was neu ist, wird nicht gesagt.</translation>
    </message>
    <message>
        <source>The file has %1 and is put into %2. You install it yourself, when it suits you.</source>
        <translation>Die Datei hat %1 und kommt nach %2. Installiert wird sie von Hand, wenn es passt.</translation>
    </message>
    <message>
        <source>It is of %1. You have %2.</source>
        <translation>Sie ist vom %1. Installiert ist %2.</translation>
    </message>
    <message>
        <source>&amp;Skip this version</source>
        <translation>Diese Version &amp;überspringen</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>S&amp;päter</translation>
    </message>
    <message>
        <source>&amp;Download</source>
        <translation>&amp;Herunterladen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Show the folder</source>
        <translation>&amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>The file is the one that was signed, and stands as “%1” in %2. Leave Kavela before you install it.</source>
        <translation>Die Datei ist die signierte und liegt als „%1“ in %2. Kavela vor dem Installieren beenden.</translation>
    </message>
    <message>
        <source>Nothing was kept of the file.</source>
        <translation>Von der Datei wurde nichts behalten.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OfficialDialog</name>
    <message>
        <source>Crew</source>
        <translation>Besatzung</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Unterschied</translation>
    </message>
    <message>
        <source>How</source>
        <translation>Wie</translation>
    </message>
    <message>
        <source>Official results and the films</source>
        <translation>Offizielle Ergebnisse und die Filme</translation>
    </message>
    <message>
        <source>&amp;Take over</source>
        <translation>&amp;Übernehmen</translation>
    </message>
    <message>
        <source>&amp;Show the run</source>
        <translation>&amp;Lauf zeigen</translation>
    </message>
    <message>
        <source>A &amp;file…</source>
        <translation>Eine &amp;Datei…</translation>
    </message>
    <message>
        <source>Results list</source>
        <translation>Ergebnisliste</translation>
    </message>
    <message>
        <source>Attached document</source>
        <translation>Angehängtes Dokument</translation>
    </message>
    <message>
        <source>Table kept with the race</source>
        <translation>Tabelle beim Rennen</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Alle Kategorien</translation>
    </message>
    <message>
        <source>All phases</source>
        <translation>Alle Phasen</translation>
    </message>
    <message>
        <source>Official results</source>
        <translation>Offizielle Ergebnisse</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>„%1“ lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>The race carries no results list. Open one with “A file…”.</source>
        <translation>Das Rennen enthält keine Ergebnisliste. Mit „Eine Datei…“ eine öffnen.</translation>
    </message>
    <message>
        <source>The films and this list say the same.</source>
        <translation>Die Filme und diese Liste sagen dasselbe.</translation>
    </message>
    <message>
        <source>%1 differences, %2 of them to take over. The films&apos; own times stay; Ctrl+Z in split taking takes a step back.</source>
        <translation>%1 Unterschiede, davon %2 zu übernehmen. Die eigenen Zeiten der Filme bleiben; Strg+Z in der Zwischenzeitnahme geht einen Schritt zurück.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlineDialog</name>
    <message>
        <source>Any server that stores files by WebDAV will do. The password is asked for each time and stored nowhere.</source>
        <translation>Jeder Server, der Dateien über WebDAV ablegt, ist recht. Das Passwort wird jedes Mal erfragt und nirgends gespeichert.</translation>
    </message>
    <message>
        <source>&amp;Planning</source>
        <translation>&amp;Planung</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adresse</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>&amp;Benutzername</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Pass&amp;wort</translation>
    </message>
    <message>
        <source>The settings name no shared planning.</source>
        <translation>Die Einstellungen nennen keine geteilte Planung.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlinePlanning</name>
    <message>
        <source>Saving the planning online…</source>
        <translation>Die Planung wird online gespeichert…</translation>
    </message>
    <message>
        <source>“%1” is saved online.</source>
        <translation>„%1“ ist online gespeichert.</translation>
    </message>
    <message>
        <source>“%1” was changed on the server since this planning was read from there or saved there. Saving would lose that change.</source>
        <translation>„%1“ wurde auf dem Server geändert, seit diese Planung dort gelesen oder gespeichert wurde. Beim Speichern ginge jene Änderung verloren.</translation>
    </message>
    <message>
        <source>There is a planning “%1” on the server that this one does not come from. Saving would replace it.</source>
        <translation>Auf dem Server liegt eine Planung „%1“, von der diese nicht stammt. Speichern würde sie ersetzen.</translation>
    </message>
    <message>
        <source>Somebody else&apos;s work lies on the server</source>
        <translation>Auf dem Server liegt die Arbeit von jemand anderem</translation>
    </message>
    <message>
        <source>Look at it</source>
        <translation>Ansehen</translation>
    </message>
    <message>
        <source>Save under another name…</source>
        <translation>Unter anderem Namen speichern…</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Save the planning online</source>
        <translation>Planung online speichern</translation>
    </message>
    <message>
        <source>Name on the server</source>
        <translation>Name auf dem Server</translation>
    </message>
    <message>
        <source>%1 (mine)</source>
        <translation>%1 (meine)</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a file.</source>
        <translation>„%1“ kann kein Dateiname sein.</translation>
    </message>
    <message>
        <source>The server has no such file.</source>
        <translation>Der Server hat keine solche Datei.</translation>
    </message>
    <message>
        <source>What the server has is no planning.</source>
        <translation>Was der Server hat, ist keine Planung.</translation>
    </message>
    <message>
        <source>The online planning could not be opened.</source>
        <translation>Die Online-Planung konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Open an online planning</source>
        <translation>Online-Planung öffnen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlineSaving</name>
    <message>
        <source>The server changes the planning all the time.</source>
        <translation>Der Server ändert die Planung fortwährend.</translation>
    </message>
    <message>
        <source>The server has no such folder.</source>
        <translation>Der Server hat keinen solchen Ordner.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlineStore</name>
    <message>
        <source>The address is none. It begins with https://.</source>
        <translation>Das ist keine Adresse. Sie beginnt mit https://.</translation>
    </message>
    <message>
        <source>Only https:// keeps the password and the plan from other readers.</source>
        <translation>Nur https:// hält Passwort und Plan vor fremden Lesern verborgen.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OrderBoard</name>
    <message>
        <source>Order at the gate in front</source>
        <translation>Reihenfolge am Tor davor</translation>
    </message>
    <message>
        <source>A place up</source>
        <translation>Einen Platz vor</translation>
    </message>
    <message>
        <source>A place down</source>
        <translation>Einen Platz zurück</translation>
    </message>
    <message>
        <source>Not seen at this gate</source>
        <translation>An diesem Tor nicht gesehen</translation>
    </message>
    <message>
        <source>Seen, as the last</source>
        <translation>Gesehen, als letztes</translation>
    </message>
    <message>
        <source>not of this heat</source>
        <translation>nicht in diesem Heat</translation>
    </message>
    <message>
        <source>not seen</source>
        <translation>nicht gesehen</translation>
    </message>
    <message>
        <source>%1 won</source>
        <translation>%1 gewonnen</translation>
    </message>
    <message>
        <source>%1 lost</source>
        <translation>%1 verloren</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PageView</name>
    <message>
        <source>Pages of the report</source>
        <translation>Seiten des Berichts</translation>
    </message>
    <message>
        <source>There is nothing to show.</source>
        <translation>Es gibt nichts zu zeigen.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PathPages</name>
    <message>
        <source>Draw a box round what is to be followed.</source>
        <translation>Einen Kasten um das zeichnen, was verfolgt werden soll.</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>Known points</source>
        <translation>Bekannte Punkte</translation>
    </message>
    <message>
        <source>Two points give a scale only: lengths and speeds hold near them and along the line between them. Four give the perspective too.</source>
        <translation>Zwei Punkte geben nur einen Maßstab: Längen und Tempo gelten in ihrer Nähe und auf der Linie zwischen ihnen. Vier geben auch die Perspektive.</translation>
    </message>
    <message>
        <source>What is followed is not on the water, such as a head: its metres are off.</source>
        <translation>Das Verfolgte ist nicht auf dem Wasser, etwa ein Kopf: seine Meter stimmen nicht.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltiesActions</name>
    <message>
        <source>Crews</source>
        <translation>Besatzungen</translation>
    </message>
    <message>
        <source>&amp;Open split files…</source>
        <translation>&amp;Zwischenzeitdateien öffnen…</translation>
    </message>
    <message>
        <source>Open a &amp;folder…</source>
        <translation>&amp;Ordner öffnen…</translation>
    </message>
    <message>
        <source>Read &amp;again</source>
        <translation>Erneut &amp;lesen</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>Lesen an&amp;halten</translation>
    </message>
    <message>
        <source>Files that could not be rea&amp;d…</source>
        <translation>Dateien, die &amp;nicht lesbar waren…</translation>
    </message>
    <message>
        <source>Save the &amp;table as CSV…</source>
        <translation>Tabelle als CS&amp;V speichern…</translation>
    </message>
    <message>
        <source>Save the &amp;chart…</source>
        <translation>&amp;Diagramm speichern…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>&amp;Course</source>
        <translation>&amp;Strecke</translation>
    </message>
    <message>
        <source>&amp;Rates</source>
        <translation>&amp;Raten</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Einzelheiten</translation>
    </message>
    <message>
        <source>Cost in &amp;places</source>
        <translation>Kosten in &amp;Plätzen</translation>
    </message>
    <message>
        <source>Risk and &amp;speed</source>
        <translation>R&amp;isiko und Tempo</translation>
    </message>
    <message>
        <source>&amp;Next course</source>
        <translation>&amp;Nächste Strecke</translation>
    </message>
    <message>
        <source>Pre&amp;vious course</source>
        <translation>&amp;Vorige Strecke</translation>
    </message>
    <message>
        <source>&amp;All runs</source>
        <translation>&amp;Alle Läufe</translation>
    </message>
    <message>
        <source>The &amp;whole chart</source>
        <translation>Das &amp;ganze Diagramm</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltiesWindow</name>
    <message>
        <source>Penalties</source>
        <translation>Strafen</translation>
    </message>
    <message>
        <source>Drop split files (.kvx) or a folder of them here</source>
        <translation>Zwischenzeitdateien (.kvx) oder einen Ordner damit hierher ziehen</translation>
    </message>
    <message>
        <source>Open split files…</source>
        <translation>Zwischenzeitdateien öffnen…</translation>
    </message>
    <message>
        <source>Open a folder…</source>
        <translation>Ordner öffnen…</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Raten</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>Cost in places</source>
        <translation>Kosten in Plätzen</translation>
    </message>
    <message>
        <source>Risk and speed</source>
        <translation>Risiko und Tempo</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Open split files</source>
        <translation>Zwischenzeitdateien öffnen</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Zwischenzeitdateien (*.kvx);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open a folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Which gates are touched and missed, by whom, and what it cost: of one race, of several, or of a whole season. Files are only read.</source>
        <translation>Welche Tore berührt und verfehlt werden, von wem, und was es kostete: in einem Rennen, in mehreren oder einer ganzen Saison. Dateien werden nur gelesen.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>There is no split file (.kvx) here.</source>
        <translation>Hier ist keine Zwischenzeitdatei (.kvx).</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>1 run</source>
        <translation>1 Lauf</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n Lauf</numerusform>
            <numerusform>%n Läufe</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltyFilter</name>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Kategorie</translation>
    </message>
    <message>
        <source>&amp;Phase</source>
        <translation>&amp;Phase</translation>
    </message>
    <message>
        <source>Cre&amp;w</source>
        <translation>B&amp;esatzung</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltyPage</name>
    <message>
        <source>Gate</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Strafe</translation>
    </message>
    <message>
        <source>Pole</source>
        <translation>Torstab</translation>
    </message>
    <message>
        <source>With</source>
        <translation>Womit</translation>
    </message>
    <message>
        <source>Another at this gate</source>
        <translation>Noch eine an diesem Tor</translation>
    </message>
    <message>
        <source>Choose what else happened at the gate in front; M adds it</source>
        <translation>Wählt, was an dem Tor davor noch geschah; M fügt es hinzu</translation>
    </message>
    <message>
        <source>Moment</source>
        <translation>Moment</translation>
    </message>
    <message>
        <source>Gate is</source>
        <translation>Tor ist</translation>
    </message>
    <message>
        <source>Boat moves</source>
        <translation>Boot fährt</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Eyes</source>
        <translation>Blick</translation>
    </message>
    <message>
        <source>Gate %1: %2 s. The lists change its penalty.</source>
        <translation>Tor %1: %2 s. Die Listen ändern seine Strafe.</translation>
    </message>
    <message>
        <source>Gate %1: %2 s. M adds a penalty.</source>
        <translation>Tor %1: %2 s. M fügt eine Strafe hinzu.</translation>
    </message>
    <message>
        <source>The seconds differ from the penalties listed at gate %1.</source>
        <translation>Die Sekunden weichen von den Strafen an Tor %1 ab.</translation>
    </message>
    <message>
        <source>The course has no gates yet: Ctrl+G sets it up.</source>
        <translation>Die Strecke hat noch keine Tore: Strg+G richtet sie ein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; begins a second one.</source>
        <translation>„%1“ beginnt eine zweite.</translation>
    </message>
    <message>
        <source>penalty at gate %1</source>
        <translation>Strafe an Tor %1</translation>
    </message>
    <message>
        <source>penalty removed</source>
        <translation>Strafe entfernt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PhaseModel</name>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Strafe</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>Strafe</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Enter a time or a position first.</source>
        <translation>Erst eine Zeit oder eine Position eingeben.</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Behind</source>
        <translation>Rückstand</translation>
    </message>
    <message>
        <source>Known where the run was taken over from a split file</source>
        <translation>Bekannt, wo der Lauf aus einer Zwischenzeitdatei übernommen wurde</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Zwischenzeiten</translation>
    </message>
    <message>
        <source>removal of a run</source>
        <translation>Entfernen eines Laufs</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PhonePageDialog</name>
    <message>
        <source>&amp;Cut the runs out of their films</source>
        <translation>Läufe aus ihren Filmen &amp;schneiden</translation>
    </message>
    <message>
        <source>Page for an athlete</source>
        <translation>Seite für einen Athleten</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>S&amp;peichern…</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>&amp;Athlet</translation>
    </message>
    <message>
        <source>Choose one of the athletes of the list.</source>
        <translation>Einen Athleten aus der Liste wählen.</translation>
    </message>
    <message>
        <source>One file for the telephone, of one race as it was last saved. Films lie in the folder beside it.</source>
        <translation>Eine Datei fürs Telefon, von einem Rennen, wie es zuletzt gespeichert wurde. Filme liegen im Ordner daneben.</translation>
    </message>
    <message>
        <source>One file for the telephone, the season of %1 files as they were last saved. Films lie in the folder beside it.</source>
        <translation>Eine Datei fürs Telefon, die Saison aus %1 Dateien, wie sie zuletzt gespeichert wurden. Filme liegen im Ordner daneben.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PhonePages</name>
    <message>
        <source>No clip of %1: %2</source>
        <translation>Kein Clip von %1: %2</translation>
    </message>
    <message>
        <source>Save the page of %1</source>
        <translation>Seite von %1 speichern</translation>
    </message>
    <message>
        <source>Pages (*.html *.htm)</source>
        <translation>Seiten (*.html *.htm)</translation>
    </message>
    <message>
        <source>The page cannot be written over a race that it is made from.</source>
        <translation>Die Seite kann nicht über ein Rennen geschrieben werden, aus dem sie entsteht.</translation>
    </message>
    <message>
        <source>Making the page…</source>
        <translation>Die Seite wird gemacht…</translation>
    </message>
    <message>
        <source>Page for an athlete</source>
        <translation>Seite für einen Athleten</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>%1 ist geschrieben.</translation>
    </message>
    <message>
        <source>&amp;Open it</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>Im &amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>The saved files have no run of this athlete.</source>
        <translation>Die gespeicherten Dateien haben keinen Lauf dieses Athleten.</translation>
    </message>
    <message>
        <source>There is no run of a named athlete in the split files that are open.</source>
        <translation>In den offenen Zwischenzeitdateien ist kein Lauf eines genannten Athleten.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PivotDialog</name>
    <message>
        <source>Pivot</source>
        <translation>Pivot</translation>
    </message>
    <message>
        <source>one column for all</source>
        <translation>eine Spalte für alle</translation>
    </message>
    <message>
        <source>How many</source>
        <translation>Wie viele</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Kleinste</translation>
    </message>
    <message>
        <source>Most</source>
        <translation>Größte</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>A &amp;row for each</source>
        <translation>Je eine &amp;Zeile für</translation>
    </message>
    <message>
        <source>A &amp;column for each</source>
        <translation>Je eine &amp;Spalte für</translation>
    </message>
    <message>
        <source>&amp;Of</source>
        <translation>&amp;Von</translation>
    </message>
    <message>
        <source>&amp;Tell</source>
        <translation>Sa&amp;gen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlaceGrid</name>
    <message>
        <source>Places at the gates</source>
        <translation>Plätze an den Toren</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Tor %1</translation>
    </message>
    <message>
        <source>, which is not on the cross course</source>
        <translation>, das nicht auf der Cross-Strecke ist</translation>
    </message>
    <message>
        <source>, replaced by a later order</source>
        <translation>, ersetzt durch eine spätere Reihenfolge</translation>
    </message>
    <message>
        <source>No order yet.</source>
        <translation>Noch keine Reihenfolge.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlanView</name>
    <message>
        <source>The week&apos;s date is in no calendar, so that it has no days.</source>
        <translation>Das Datum der Woche steht in keinem Kalender; sie hat daher keine Tage.</translation>
    </message>
    <message>
        <source>new session</source>
        <translation>neue Einheit</translation>
    </message>
    <message>
        <source>session</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>removal of a session</source>
        <translation>Entfernen einer Einheit</translation>
    </message>
    <message>
        <source>copied session</source>
        <translation>kopierte Einheit</translation>
    </message>
    <message>
        <source>move of a session</source>
        <translation>Verschieben einer Einheit</translation>
    </message>
    <message>
        <source>There is no week there in this season.</source>
        <translation>Dort hat diese Saison keine Woche.</translation>
    </message>
    <message>
        <source>Week %1 is copied.</source>
        <translation>Woche %1 ist kopiert.</translation>
    </message>
    <message>
        <source>One of the two weeks has a date that is in no calendar.</source>
        <translation>Eine der beiden Wochen hat ein Datum, das in keinem Kalender steht.</translation>
    </message>
    <message>
        <source>copy of a week</source>
        <translation>Kopie einer Woche</translation>
    </message>
    <message>
        <source>Week %1 now holds the copied week; %2 sessions that stood there went. Ctrl+Z brings them back.</source>
        <translation>Woche %1 enthält jetzt die kopierte Woche; %2 Einheiten, die dort standen, sind weg. Strg+Z holt sie zurück.</translation>
    </message>
    <message>
        <source>repeated weeks</source>
        <translation>wiederholte Wochen</translation>
    </message>
    <message>
        <source>%1 weeks were written.</source>
        <translation>%1 Wochen wurden geschrieben.</translation>
    </message>
    <message>
        <source>There is no week behind the chosen ones.</source>
        <translation>Hinter den gewählten gibt es keine Woche.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>How often do the %1 chosen weeks follow themselves?
Sessions, totals, load, cycles, place, tests and goals of the weeks behind are replaced; their events and health stay.</source>
        <translation>Wie oft folgen die %1 gewählten Wochen auf sich selbst?
Einheiten, Summen, Belastung, Zyklen, Ort, Tests und Ziele der Wochen dahinter werden ersetzt; ihre Ereignisse und die Gesundheit bleiben.</translation>
    </message>
    <message>
        <source>emptied weeks</source>
        <translation>geleerte Wochen</translation>
    </message>
    <message>
        <source>planned totals</source>
        <translation>geplante Summen</translation>
    </message>
    <message>
        <source>new week</source>
        <translation>neue Woche</translation>
    </message>
    <message>
        <source>removal of the last week</source>
        <translation>Entfernen der letzten Woche</translation>
    </message>
    <message>
        <source>Totals of the week</source>
        <translation>Summen der Woche</translation>
    </message>
    <message>
        <source>Totals of the chosen weeks</source>
        <translation>Summen der gewählten Wochen</translation>
    </message>
    <message>
        <source>Totals of the mesocycle</source>
        <translation>Summen des Mesozyklus</translation>
    </message>
    <message>
        <source>Totals of the season</source>
        <translation>Summen der Saison</translation>
    </message>
    <message>
        <source>planned sessions</source>
        <translation>geplante Einheiten</translation>
    </message>
    <message>
        <source>planned quantity</source>
        <translation>geplante Menge</translation>
    </message>
    <message>
        <source>Add an athlete with Ctrl+N to begin a plan.</source>
        <translation>Einen Athleten mit Strg+N hinzufügen, um einen Plan zu beginnen.</translation>
    </message>
    <message>
        <source>Add a season with Ctrl+Shift+N: 52 empty weeks to fill.</source>
        <translation>Eine Saison mit Strg+Umschalt+N hinzufügen: 52 leere Wochen zum Füllen.</translation>
    </message>
    <message>
        <source>This season has no weeks. Add one with the menu Week.</source>
        <translation>Diese Saison hat keine Wochen. Mit dem Menü Woche eine hinzufügen.</translation>
    </message>
    <message>
        <source>This season has no week of today.</source>
        <translation>Diese Saison hat keine Woche von heute.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlannedAthleteDialog</name>
    <message>
        <source>Athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>&amp;Picture…</source>
        <translation>&amp;Bild…</translation>
    </message>
    <message>
        <source>&amp;No picture</source>
        <translation>&amp;Kein Bild</translation>
    </message>
    <message>
        <source>Picture of the athlete</source>
        <translation>Bild des Athleten</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg)</source>
        <translation>Bilder (*.png *.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;Categories</source>
        <translation>K&amp;ategorien</translation>
    </message>
    <message>
        <source>&amp;E-mail</source>
        <translation>&amp;E-Mail</translation>
    </message>
    <message>
        <source>P&amp;hone</source>
        <translation>&amp;Telefon</translation>
    </message>
    <message>
        <source>The file is no picture, cannot be read, or is larger than 8 MB.</source>
        <translation>Die Datei ist kein Bild, nicht lesbar oder größer als 8 MB.</translation>
    </message>
    <message>
        <source>The athlete needs a name.</source>
        <translation>Der Athlet braucht einen Namen.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlanningDocument</name>
    <message>
        <source>online planning</source>
        <translation>Online-Planung</translation>
    </message>
    <message>
        <source>The planning “%1” will be replaced.</source>
        <translation>Die Planung „%1“ wird ersetzt.</translation>
    </message>
    <message>
        <source>1 athlete</source>
        <translation>1 Athlet</translation>
    </message>
    <message numerus="yes">
        <source>%n athletes</source>
        <translation>
            <numerusform>%n Athlet</numerusform>
            <numerusform>%n Athleten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlanningWindow</name>
    <message>
        <source>&amp;Athlete</source>
        <translation>Ath&amp;let</translation>
    </message>
    <message>
        <source>&amp;New athlete…</source>
        <translation>&amp;Neuer Athlet…</translation>
    </message>
    <message>
        <source>&amp;Edit the athlete…</source>
        <translation>Athleten &amp;bearbeiten…</translation>
    </message>
    <message>
        <source>&amp;Remove the athlete</source>
        <translation>Athleten ent&amp;fernen</translation>
    </message>
    <message>
        <source>New &amp;season</source>
        <translation>Neue &amp;Saison</translation>
    </message>
    <message>
        <source>Remove the s&amp;eason</source>
        <translation>Saison en&amp;tfernen</translation>
    </message>
    <message>
        <source>&amp;Session</source>
        <translation>&amp;Einheit</translation>
    </message>
    <message>
        <source>Sessions are in the plan: show &amp;it</source>
        <translation>Einheiten stehen im Plan: &amp;ihn zeigen</translation>
    </message>
    <message>
        <source>&amp;New session…</source>
        <translation>&amp;Neue Einheit…</translation>
    </message>
    <message>
        <source>&amp;Edit the session…</source>
        <translation>Einheit &amp;bearbeiten…</translation>
    </message>
    <message>
        <source>&amp;Remove the session</source>
        <translation>Einheit &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Copy the session</source>
        <translation>Einheit &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste the session</source>
        <translation>Einheit ein&amp;fügen</translation>
    </message>
    <message>
        <source>Move to the week &amp;before</source>
        <translation>In die Woche &amp;davor</translation>
    </message>
    <message>
        <source>Move to the week be&amp;hind</source>
        <translation>In die Woche dan&amp;ach</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Woche</translation>
    </message>
    <message>
        <source>&amp;Previous week</source>
        <translation>&amp;Vorige Woche</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>&amp;Nächste Woche</translation>
    </message>
    <message>
        <source>&amp;This week</source>
        <translation>&amp;Diese Woche</translation>
    </message>
    <message>
        <source>&amp;Copy the week</source>
        <translation>Woche &amp;kopieren</translation>
    </message>
    <message>
        <source>Paste the &amp;week</source>
        <translation>Woche ein&amp;fügen</translation>
    </message>
    <message>
        <source>&amp;Repeat the chosen weeks…</source>
        <translation>Gewählte Wochen &amp;wiederholen…</translation>
    </message>
    <message>
        <source>&amp;Empty the chosen weeks</source>
        <translation>Gewählte Wochen &amp;leeren</translation>
    </message>
    <message>
        <source>P&amp;lan what is in the sessions</source>
        <translation>&amp;Planen, was in den Einheiten steht</translation>
    </message>
    <message>
        <source>&amp;Add a week at the end</source>
        <translation>Woche am Ende an&amp;hängen</translation>
    </message>
    <message>
        <source>Re&amp;move the last week</source>
        <translation>L&amp;etzte Woche entfernen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Find an athlete</source>
        <translation>&amp;Athleten suchen</translation>
    </message>
    <message>
        <source>&amp;Reports: preview, PDF, print…</source>
        <translation>Be&amp;richte: Vorschau, PDF, Druck…</translation>
    </message>
    <message>
        <source>Week as a &amp;calendar file…</source>
        <translation>Woche als &amp;Kalenderdatei…</translation>
    </message>
    <message>
        <source>Import heart-rate &amp;variability…</source>
        <translation>Herzfrequenz&amp;variabilität importieren…</translation>
    </message>
    <message>
        <source>Open an o&amp;nline planning…</source>
        <translation>O&amp;nline-Planung öffnen…</translation>
    </message>
    <message>
        <source>Sa&amp;ve online…</source>
        <translation>Online spei&amp;chern…</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Athleten</translation>
    </message>
    <message>
        <source>Planning</source>
        <translation>Planung</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Ziele</translation>
    </message>
    <message>
        <source>Body and heart</source>
        <translation>Körper und Herz</translation>
    </message>
    <message>
        <source>Gym</source>
        <translation>Kraftraum</translation>
    </message>
    <message>
        <source>Ranking and races</source>
        <translation>Rangliste und Rennen</translation>
    </message>
    <message>
        <source>Interval sessions</source>
        <translation>Intervalleinheiten</translation>
    </message>
    <message>
        <source>%1 measurements of heart-rate variability of this older file hold only a highest and a lowest value, for which the present version has no place: their dates are taken over, their values are not. Saving keeps the file as it was beside the new one.</source>
        <translation>%1 Messungen der Herzfrequenzvariabilität dieser älteren Datei enthalten nur einen höchsten und einen niedrigsten Wert, für die die heutige Version keinen Platz hat: ihre Daten werden übernommen, ihre Werte nicht. Speichern bewahrt die bisherige Datei neben der neuen.</translation>
    </message>
    <message>
        <source>new athlete</source>
        <translation>neuer Athlet</translation>
    </message>
    <message>
        <source>athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>removal of an athlete</source>
        <translation>Entfernen eines Athleten</translation>
    </message>
    <message>
        <source>Add an athlete first.</source>
        <translation>Erst einen Athleten hinzufügen.</translation>
    </message>
    <message>
        <source>new season</source>
        <translation>neue Saison</translation>
    </message>
    <message>
        <source>removal of a season</source>
        <translation>Entfernen einer Saison</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlayMenu</name>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>Abs&amp;pielen oder anhalten</translation>
    </message>
    <message>
        <source>Backwards, again: faster</source>
        <translation>Rückwärts, nochmals: schneller</translation>
    </message>
    <message>
        <source>Stop; held, J and L step a frame</source>
        <translation>Halt; gehalten gehen J und L ein Bild weiter</translation>
    </message>
    <message>
        <source>Forwards, again: faster</source>
        <translation>Vorwärts, nochmals: schneller</translation>
    </message>
    <message>
        <source>Slow motion backwards</source>
        <translation>Zeitlupe rückwärts</translation>
    </message>
    <message>
        <source>Slow motion forward</source>
        <translation>Zeitlupe vorwärts</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>&amp;Langsamer</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>&amp;Schneller</translation>
    </message>
    <message>
        <source>&amp;Normal speed</source>
        <translation>&amp;Normales Tempo</translation>
    </message>
    <message>
        <source>S&amp;ound, at normal speed</source>
        <translation>T&amp;on, bei normalem Tempo</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>Ein Bild zurück</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>Ein Bild vor</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>Eine Sekunde zurück</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>Eine Sekunde vor</translation>
    </message>
    <message>
        <source>Ten seconds back</source>
        <translation>Zehn Sekunden zurück</translation>
    </message>
    <message>
        <source>Ten seconds forward</source>
        <translation>Zehn Sekunden vor</translation>
    </message>
    <message>
        <source>To the beginning</source>
        <translation>Zum Anfang</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>Zum Ende</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlotInteraction</name>
    <message>
        <source>Show everything</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Show all series</source>
        <translation>Alle Reihen zeigen</translation>
    </message>
    <message>
        <source>Copy the picture</source>
        <translation>Bild kopieren</translation>
    </message>
    <message>
        <source>Copy the values</source>
        <translation>Werte kopieren</translation>
    </message>
    <message>
        <source>Save as picture (PNG)…</source>
        <translation>Als Bild speichern (PNG)…</translation>
    </message>
    <message>
        <source>Save as drawing (SVG)…</source>
        <translation>Als Zeichnung speichern (SVG)…</translation>
    </message>
    <message>
        <source>Save as table (CSV)…</source>
        <translation>Als Tabelle speichern (CSV)…</translation>
    </message>
    <message>
        <source>The chart was not saved</source>
        <translation>Das Diagramm wurde nicht gespeichert</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PotentialPanel</name>
    <message>
        <source>The best of every own section put together, without penalties. What is left is how far the best run is from it.</source>
        <translation>Das Beste jedes eigenen Abschnitts zusammengesetzt, ohne Strafen. Was übrig bleibt, fehlt dem besten Lauf dazu.</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>Potential</source>
        <translation>Potenzial</translation>
    </message>
    <message>
        <source>Best run</source>
        <translation>Bester Lauf</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Übrig</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PowerMeterDialog</name>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Why it is refused</source>
        <translation>Warum abgelehnt</translation>
    </message>
    <message>
        <source>Import power-meter data</source>
        <translation>Daten eines Leistungsmessers importieren</translation>
    </message>
    <message>
        <source>Samples: %1. Lines refused: %2.</source>
        <translation>Messwerte: %1. Abgelehnte Zeilen: %2.</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>It &amp;begins after the session&apos;s start by</source>
        <translation>&amp;Beginnt nach dem Start der Einheit um</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>%1 of them lie in the session, which lasts %2.</source>
        <translation>%1 davon liegen in der Einheit, die %2 dauert.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ProgressionPanel</name>
    <message>
        <source>Behind the winners</source>
        <translation>Hinter den Siegern</translation>
    </message>
    <message>
        <source>Behind the fastest splits</source>
        <translation>Hinter den schnellsten Abschnitten</translation>
    </message>
    <message>
        <source>Behind whom</source>
        <translation>Hinter wem</translation>
    </message>
    <message>
        <source>The winners&apos; totals have penalties in them, the fastest splits have not</source>
        <translation>Die Gesamtzeiten der Sieger enthalten Strafen, die schnellsten Abschnitte nicht</translation>
    </message>
    <message>
        <source>The team has no race of this athlete in these years.</source>
        <translation>Das Team hat in diesen Jahren kein Rennen dieses Athleten.</translation>
    </message>
    <message>
        <source>Open the &amp;winner&apos;s run</source>
        <translation>Lauf des &amp;Siegers öffnen</translation>
    </message>
    <message>
        <source>In split taking, where a split file has the run</source>
        <translation>In der Zwischenzeitnahme, wo eine Zwischenzeitdatei den Lauf hat</translation>
    </message>
    <message>
        <source>With a missed gate: left out of spread, trend and changes</source>
        <translation>Mit Torfehler: zählt nicht in Streuung, Trend und Änderungen</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Race</source>
        <translation>Rennen</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Winner&apos;s</source>
        <translation>Des Siegers</translation>
    </message>
    <message>
        <source>Winner</source>
        <translation>Sieger</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>Behind, %</source>
        <translation>Rückstand, %</translation>
    </message>
    <message>
        <source>On splits, %</source>
        <translation>Auf Abschn., %</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>The way of %1</source>
        <translation>Der Weg von %1</translation>
    </message>
    <message>
        <source>Behind the winner, %</source>
        <translation>Hinter dem Sieger, %</translation>
    </message>
    <message>
        <source>Behind the fastest splits, %</source>
        <translation>Hinter den schnellsten Abschnitten, %</translation>
    </message>
    <message>
        <source>Heats</source>
        <translation>Vorläufe</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Finale</translation>
    </message>
    <message>
        <source>Semifinal</source>
        <translation>Halbfinale</translation>
    </message>
    <message>
        <source>Other runs</source>
        <translation>Andere Läufe</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>Missed gate</source>
        <translation>Torfehler</translation>
    </message>
    <message>
        <source>3rd of finals, median</source>
        <translation>3. der Finals, Median</translation>
    </message>
    <message>
        <source>A run with a missed gate stands in the table alone.</source>
        <translation>Ein Lauf mit Torfehler steht nur in der Tabelle.</translation>
    </message>
    <message numerus="yes">
        <source>%n runs with a missed gate stand in the table alone.</source>
        <translation>
            <numerusform>%n Lauf mit Torfehler steht nur in der Tabelle.</numerusform>
            <numerusform>%n Läufe mit Torfehler stehen nur in der Tabelle.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::QueryEdit</name>
    <message>
        <source>Query</source>
        <translation>Abfrage</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::QueryFault</name>
    <message>
        <source>%1 (at letter %2)</source>
        <translation>%1 (bei Buchstabe %2)</translation>
    </message>
    <message>
        <source>Writes “%1” there</source>
        <translation>Schreibt dort „%1“</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::QueryForm</name>
    <message>
        <source>Fi&amp;nd</source>
        <translation>Su&amp;chen</translation>
    </message>
    <message>
        <source>Words that its words begin with; a whole name in quotes</source>
        <translation>Wörter, mit denen die Wörter beginnen; ein ganzer Name in Anführungszeichen</translation>
    </message>
    <message>
        <source>Seconds, or 1:32.45; %1 in front leaves out the limit itself</source>
        <translation>Sekunden oder 1:32.45; %1 davor lässt die Grenze selbst aus</translation>
    </message>
    <message>
        <source>At l&amp;east</source>
        <translation>Mi&amp;ndestens</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>ohne Grenze</translation>
    </message>
    <message>
        <source>At &amp;most</source>
        <translation>&amp;Höchstens</translation>
    </message>
    <message>
        <source>G&amp;roups by</source>
        <translation>Gr&amp;uppen nach</translation>
    </message>
    <message>
        <source>Up to three columns with commas between them</source>
        <translation>Bis zu drei Spalten mit Kommas dazwischen</translation>
    </message>
    <message>
        <source>no groups</source>
        <translation>ohne Gruppen</translation>
    </message>
    <message>
        <source>&amp;Best</source>
        <translation>&amp;Beste</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation>S&amp;ortieren nach</translation>
    </message>
    <message>
        <source>as found</source>
        <translation>wie gefunden</translation>
    </message>
    <message>
        <source>From the largest do&amp;wn</source>
        <translation>Vom Größten ab&amp;wärts</translation>
    </message>
    <message>
        <source>Only the f&amp;irst</source>
        <translation>Nur die &amp;ersten</translation>
    </message>
    <message>
        <source>Near it: %1</source>
        <translation>In der Nähe: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceActions</name>
    <message>
        <source>Open it &amp;again</source>
        <translation>Er&amp;neut öffnen</translation>
    </message>
    <message>
        <source>Ti&amp;me it on video</source>
        <translation>Auf V&amp;ideo stoppen</translation>
    </message>
    <message>
        <source>&amp;Report: preview, PDF, print…</source>
        <translation>Be&amp;richt: Vorschau, PDF, Druck…</translation>
    </message>
    <message>
        <source>Save the table as &amp;CSV…</source>
        <translation>Tabelle als CS&amp;V speichern…</translation>
    </message>
    <message>
        <source>Cop&amp;y the selected runs</source>
        <translation>Gewählte Läufe &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Times</source>
        <translation>&amp;Zeiten</translation>
    </message>
    <message>
        <source>&amp;Gap to the reference</source>
        <translation>&amp;Rückstand auf die Referenz</translation>
    </message>
    <message>
        <source>&amp;Place</source>
        <translation>&amp;Platz</translation>
    </message>
    <message>
        <source>Per&amp;cent behind the best</source>
        <translation>Pr&amp;ozent hinter dem Besten</translation>
    </message>
    <message>
        <source>Percenti&amp;le</source>
        <translation>Perzent&amp;il</translation>
    </message>
    <message>
        <source>&amp;Reference: the best</source>
        <translation>&amp;Referenz: der Beste</translation>
    </message>
    <message>
        <source>Reference: the &amp;median</source>
        <translation>Referenz: der &amp;Median</translation>
    </message>
    <message>
        <source>Reference: the &amp;selected row</source>
        <translation>Referenz: die &amp;gewählte Zeile</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabelle</translation>
    </message>
    <message>
        <source>&amp;Accumulated times</source>
        <translation>&amp;Auflaufende Zeiten</translation>
    </message>
    <message>
        <source>Penalties &amp;included</source>
        <translation>Strafen &amp;eingerechnet</translation>
    </message>
    <message>
        <source>Penalties &amp;visible</source>
        <translation>Strafen sich&amp;tbar</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>&amp;Spalten</translation>
    </message>
    <message>
        <source>&amp;Find a name</source>
        <translation>&amp;Namen suchen</translation>
    </message>
    <message>
        <source>Show all r&amp;uns</source>
        <translation>Alle &amp;Läufe zeigen</translation>
    </message>
    <message>
        <source>&amp;Tint cells by rank</source>
        <translation>&amp;Zellen nach Platz färben</translation>
    </message>
    <message>
        <source>&amp;Blue to orange instead of green to red</source>
        <translation>&amp;Blau bis Orange statt Grün bis Rot</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>&amp;Ideal run on top</source>
        <translation>&amp;Ideallauf obenan</translation>
    </message>
    <message>
        <source>A &amp;run of another race…</source>
        <translation>&amp;Lauf eines anderen Rennens…</translation>
    </message>
    <message>
        <source>&amp;Films of the selected runs…</source>
        <translation>&amp;Filme der gewählten Läufe…</translation>
    </message>
    <message>
        <source>With &amp;official results…</source>
        <translation>Mit &amp;offiziellen Ergebnissen…</translation>
    </message>
    <message>
        <source>The results list as a &amp;table</source>
        <translation>Ergebnisliste als &amp;Tabelle</translation>
    </message>
    <message>
        <source>&amp;Clear the comparison</source>
        <translation>Vergleich &amp;aufheben</translation>
    </message>
    <message>
        <source>Ch&amp;arts</source>
        <translation>D&amp;iagramme</translation>
    </message>
    <message>
        <source>&amp;Gaps along the course</source>
        <translation>&amp;Rückstände entlang der Strecke</translation>
    </message>
    <message>
        <source>T&amp;imes of the sections</source>
        <translation>Zeiten der A&amp;bschnitte</translation>
    </message>
    <message>
        <source>P&amp;enalties at the gates</source>
        <translation>Stra&amp;fen an den Toren</translation>
    </message>
    <message>
        <source>&amp;Totals</source>
        <translation>&amp;Gesamtzeiten</translation>
    </message>
    <message>
        <source>&amp;Penalties</source>
        <translation>&amp;Strafen</translation>
    </message>
    <message>
        <source>Time &amp;losses</source>
        <translation>Zeit&amp;verluste</translation>
    </message>
    <message>
        <source>Show the &amp;whole chart</source>
        <translation>Ganzes Diagra&amp;mm zeigen</translation>
    </message>
    <message>
        <source>&amp;Save the chart…</source>
        <translation>&amp;Diagramm speichern…</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>Races &amp;side by side</source>
        <translation>Rennen neben&amp;einander</translation>
    </message>
    <message>
        <source>&amp;Larger: the table or the chart alone</source>
        <translation>&amp;Größer: nur die Tabelle oder das Diagramm</translation>
    </message>
    <message>
        <source>&amp;Next race</source>
        <translation>&amp;Nächstes Rennen</translation>
    </message>
    <message>
        <source>&amp;Previous race</source>
        <translation>&amp;Voriges Rennen</translation>
    </message>
    <message>
        <source>Pa&amp;ge for an athlete…</source>
        <translation>Seite für einen &amp;Athleten…</translation>
    </message>
    <message>
        <source>&amp;Draw the course…</source>
        <translation>Strecke &amp;zeichnen…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceDocument</name>
    <message>
        <source>A file of version %1. It could not be rewritten in the current version and stays as it is.</source>
        <translation>Eine Datei der Version %1. Sie ließ sich nicht in der heutigen Version schreiben und bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>A file of version %1, rewritten in the current one. The previous file is kept as %2.</source>
        <translation>Eine Datei der Version %1, in der heutigen neu geschrieben. Die frühere Datei bleibt als %2.</translation>
    </message>
    <message>
        <source>%1 gates, %2 upstream</source>
        <translation>%1 Tore, davon %2 aufwärts</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceHeader</name>
    <message>
        <source>1 run</source>
        <translation>1 Lauf</translation>
    </message>
    <message>
        <source>%1 of %2 runs</source>
        <translation>%1 von %2 Läufen</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>All phases</source>
        <translation>Alle Phasen</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Alle Kategorien</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n Lauf</numerusform>
            <numerusform>%n Läufe</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceKeeping</name>
    <message>
        <source>“%1” is open in another window</source>
        <translation>„%1“ ist in einem anderen Fenster offen</translation>
    </message>
    <message>
        <source>Save and close it there, then keep the table. Nothing was written.</source>
        <translation>Dort speichern und schließen, dann die Tabelle behalten. Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>Keeping the table with the race…</source>
        <translation>Die Tabelle wird zum Rennen gelegt…</translation>
    </message>
    <message>
        <source>“%1” keeps a table already</source>
        <translation>„%1“ hat schon eine Tabelle</translation>
    </message>
    <message>
        <source>This one takes its place. The official results themselves stay.</source>
        <translation>Diese tritt an ihre Stelle. Die offiziellen Ergebnisse selbst bleiben.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>The table was not kept with “%1”</source>
        <translation>Die Tabelle wurde nicht zu „%1“ gelegt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceView</name>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Lauf</translation>
    </message>
    <message>
        <source>I&amp;deal run</source>
        <translation>I&amp;deallauf</translation>
    </message>
    <message>
        <source>Pote&amp;ntial</source>
        <translation>Pote&amp;nzial</translation>
    </message>
    <message>
        <source>&amp;Motion</source>
        <translation>&amp;Bewegung</translation>
    </message>
    <message>
        <source>Open it again</source>
        <translation>Erneut öffnen</translation>
    </message>
    <message>
        <source>gaps to the best</source>
        <translation>Rückstände auf den Besten</translation>
    </message>
    <message>
        <source>gaps to the median</source>
        <translation>Rückstände auf den Median</translation>
    </message>
    <message>
        <source>gaps to %1</source>
        <translation>Rückstände auf %1</translation>
    </message>
    <message>
        <source>the ideal run</source>
        <translation>der Ideallauf</translation>
    </message>
    <message>
        <source>This course has %1 sections. The colours and the penalties in brackets are those of the first ten; place, gap and percent are there for all of them.</source>
        <translation>Diese Strecke hat %1 Abschnitte. Farben und Strafen in Klammern gibt es für die ersten zehn; Platz, Rückstand und Prozent für alle.</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Tabelle speichern</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Text mit Semikolons (*.csv)</translation>
    </message>
    <message>
        <source>The file on the disk is newer than what you see.</source>
        <translation>Die Datei auf der Platte ist neuer als das Gezeigte.</translation>
    </message>
    <message>
        <source>The file is not on the disk any more. What you see is what it held.</source>
        <translation>Die Datei ist nicht mehr auf der Platte. Gezeigt wird, was sie enthielt.</translation>
    </message>
    <message>
        <source>All columns in the order of the course</source>
        <translation>Alle Spalten in der Reihenfolge der Strecke</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceWindow</name>
    <message>
        <source>Split files</source>
        <translation>Zwischenzeitdateien</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Rennen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RacesSection</name>
    <message>
        <source>No runs yet: take them from the season&apos;s split files.</source>
        <translation>Noch keine Läufe: aus den Zwischenzeitdateien der Saison übernehmen.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; runs, &lt;b&gt;%2&lt;/b&gt; of them clean (%3 %)  ·  touches per run &lt;b&gt;%4&lt;/b&gt;  ·  missed gates per run &lt;b&gt;%5&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; Läufe, &lt;b&gt;%2&lt;/b&gt; davon fehlerfrei (%3&#xa0;%)  ·  Berührungen je Lauf &lt;b&gt;%4&lt;/b&gt;  ·  Torfehler je Lauf &lt;b&gt;%5&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Take from split files…</source>
        <translation>Aus Zwischenzeitdateien übernehmen…</translation>
    </message>
    <message>
        <source>Races and penalties</source>
        <translation>Rennen und Strafen</translation>
    </message>
    <message>
        <source>Choose &amp;files…</source>
        <translation>&amp;Dateien wählen…</translation>
    </message>
    <message>
        <source>Choose a f&amp;older…</source>
        <translation>&amp;Ordner wählen…</translation>
    </message>
    <message>
        <source>Files and folders can be dropped here too</source>
        <translation>Dateien und Ordner lassen sich auch hierher ziehen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RadioBox</name>
    <message>
        <source>Team radio</source>
        <translation>Teamfunk</translation>
    </message>
    <message>
        <source>Records what you say about the run</source>
        <translation>Nimmt auf, was zum Lauf gesagt wird</translation>
    </message>
    <message>
        <source>Plays the recording</source>
        <translation>Spielt die Aufnahme ab</translation>
    </message>
    <message>
        <source>Attach…</source>
        <translation>Anhängen…</translation>
    </message>
    <message>
        <source>Takes a sound file into the split file</source>
        <translation>Nimmt eine Tondatei in die Zwischenzeitdatei auf</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Speichern unter…</translation>
    </message>
    <message>
        <source>Writes the recording into a file of its own</source>
        <translation>Schreibt die Aufnahme in eine eigene Datei</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Früher</translation>
    </message>
    <message>
        <source>Moves the recording up</source>
        <translation>Schiebt die Aufnahme nach oben</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Takes the recording out of the split file</source>
        <translation>Nimmt die Aufnahme aus der Zwischenzeitdatei</translation>
    </message>
    <message>
        <source>%1 · %2, %3</source>
        <translation>%1 · %2, %3</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Halt</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufnehmen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Recording, %1 s</source>
        <translation>Aufnahme, %1 s</translation>
    </message>
    <message>
        <source>Record what you say to the athlete, or attach a voice message.</source>
        <translation>Worte an den Athleten aufnehmen oder eine Sprachnachricht anhängen.</translation>
    </message>
    <message>
        <source>This computer has no microphone that can be used.</source>
        <translation>Dieser Rechner hat kein brauchbares Mikrofon.</translation>
    </message>
    <message>
        <source>The microphone gave no sound.</source>
        <translation>Das Mikrofon gab keinen Ton.</translation>
    </message>
    <message>
        <source>Attach a recording</source>
        <translation>Aufnahme anhängen</translation>
    </message>
    <message>
        <source>Sounds (*.m4a *.mp3 *.wav *.aiff *.aif *.caf *.ogg *.opus *.flac *.aac *.amr);;All files (*)</source>
        <translation>Töne (*.m4a *.mp3 *.wav *.aiff *.aif *.caf *.ogg *.opus *.flac *.aac *.amr);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 has %2: recordings up to %3 can be kept in a split file.</source>
        <translation>%1 hat %2: Aufnahmen bis %3 passen in eine Zwischenzeitdatei.</translation>
    </message>
    <message>
        <source>%1 cannot be played: %2</source>
        <translation>%1 lässt sich nicht abspielen: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>Recording %1 cannot be played: %2</source>
        <translation>Aufnahme %1 lässt sich nicht abspielen: %2</translation>
    </message>
    <message>
        <source>recording %1</source>
        <translation>Aufnahme %1</translation>
    </message>
    <message>
        <source>Save the recording</source>
        <translation>Aufnahme speichern</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RangeLine</name>
    <message>
        <source>Click to go there. Drag the ends of the coloured part to choose what the film shows; near a split they take it.</source>
        <translation>Klicken, um dorthin zu gehen. Die Enden des farbigen Teils ziehen, um zu wählen, was der Film zeigt; nahe einer Zwischenzeit rasten sie ein.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RankingModel</name>
    <message>
        <source>%1 (was %2)</source>
        <translation>%1 (war %2)</translation>
    </message>
    <message>
        <source>was %1, now %2</source>
        <translation>war %1, jetzt %2</translation>
    </message>
    <message>
        <source>A time of 0 counts as the formula says and puts the athlete far in front. Edit &gt; Make times of 0 missing results.</source>
        <translation>Eine Zeit von 0 zählt, wie die Formel sagt, und setzt den Athleten weit nach vorn. Bearbeiten &gt; Zeiten von 0 zu fehlenden Ergebnissen machen.</translation>
    </message>
    <message>
        <source>Dropped: the worst result</source>
        <translation>Gestrichen: das schlechteste Ergebnis</translation>
    </message>
    <message>
        <source>Dropped too: a bonus stands among the results</source>
        <translation>Auch gestrichen: unter den Ergebnissen steht ein Bonus</translation>
    </message>
    <message>
        <source>Counted</source>
        <translation>Gezählt</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
    <message>
        <source>SURNAME Name</source>
        <translation>NACHNAME Vorname</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Wertung</translation>
    </message>
    <message>
        <source>Bonus</source>
        <translation>Bonus</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Verein</translation>
    </message>
    <message>
        <source>Pre</source>
        <translation>Ges</translation>
    </message>
    <message>
        <source>correction</source>
        <translation>Korrektur</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Str</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Tried only. Really: %1</source>
        <translation>Nur probiert. Wirklich: %1</translation>
    </message>
    <message>
        <source>no result</source>
        <translation>kein Ergebnis</translation>
    </message>
    <message>
        <source>Enter the time first: the penalty belongs to it.</source>
        <translation>Erst die Zeit eingeben: die Strafe gehört dazu.</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>Strafe</translation>
    </message>
    <message>
        <source>result removed</source>
        <translation>Ergebnis entfernt</translation>
    </message>
    <message>
        <source>result</source>
        <translation>Ergebnis</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RankingPanel</name>
    <message>
        <source>entry of the ranking list</source>
        <translation>Eintrag der Rangliste</translation>
    </message>
    <message>
        <source>removal from the ranking list</source>
        <translation>Entfernen aus der Rangliste</translation>
    </message>
    <message>
        <source>Take the season&apos;s statistics</source>
        <translation>Statistik der Saison übernehmen</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Zwischenzeitdateien (*.kvx);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>There is no split file in it.</source>
        <translation>Darin ist keine Zwischenzeitdatei.</translation>
    </message>
    <message>
        <source>Reading split files…</source>
        <translation>Zwischenzeitdateien werden gelesen…</translation>
    </message>
    <message>
        <source>season statistics from split files</source>
        <translation>Saisonstatistik aus Zwischenzeitdateien</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RankingSection</name>
    <message>
        <source>Add a release</source>
        <translation>Ausgabe hinzufügen</translation>
    </message>
    <message>
        <source>Remove the release</source>
        <translation>Ausgabe entfernen</translation>
    </message>
    <message>
        <source>Ranking list</source>
        <translation>Rangliste</translation>
    </message>
    <message>
        <source>Add release</source>
        <translation>Neue Ausgabe</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RatesPanel</name>
    <message>
        <source>Passages</source>
        <translation>Durchfahrten</translation>
    </message>
    <message>
        <source>Runs that came past</source>
        <translation>Läufe, die vorbeikamen</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Berührungen</translation>
    </message>
    <message>
        <source>Rate %</source>
        <translation>Rate %</translation>
    </message>
    <message>
        <source>Touches of 100 passages</source>
        <translation>Berührungen auf 100 Durchfahrten</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#xa0;%</translation>
    </message>
    <message>
        <source>Where the rate lies with 90 %</source>
        <translation>Wo die Rate mit 90&#xa0;% liegt</translation>
    </message>
    <message>
        <source>Ranked %</source>
        <translation>Gereiht %</translation>
    </message>
    <message>
        <source>Drawn towards what all have in common, the more the fewer the passages</source>
        <translation>Hingezogen zu dem, was allen gemeinsam ist, umso mehr, je weniger Durchfahrten</translation>
    </message>
    <message>
        <source>Ranked 90 %</source>
        <translation>Gereiht 90&#xa0;%</translation>
    </message>
    <message>
        <source>Where the ranked rate lies</source>
        <translation>Wo die gereihte Rate liegt</translation>
    </message>
    <message>
        <source>Above %</source>
        <translation>Über %</translation>
    </message>
    <message>
        <source>The chance to be above what all have in common; from 95 the row is bold</source>
        <translation>Die Wahrscheinlichkeit, über dem allen Gemeinsamen zu liegen; ab 95 ist die Zeile fett</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Verfehlt</translation>
    </message>
    <message>
        <source>Missed gates</source>
        <translation>Torfehler</translation>
    </message>
    <message>
        <source>Missed %</source>
        <translation>Verfehlt %</translation>
    </message>
    <message>
        <source>Missed 90 %</source>
        <translation>Verfehlt 90&#xa0;%</translation>
    </message>
    <message>
        <source>&amp;Rates</source>
        <translation>&amp;Raten</translation>
    </message>
    <message>
        <source>No run that is asked for has its penalties by gate.</source>
        <translation>Kein gefragter Lauf hat seine Strafen nach Toren.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ReadingProgress</name>
    <message>
        <source>Stop reading</source>
        <translation>Lesen anhalten</translation>
    </message>
    <message>
        <source>%1 of %2 files</source>
        <translation>%1 von %2 Dateien</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordedSoundPlayer</name>
    <message>
        <source>This computer has no loudspeaker.</source>
        <translation>Dieser Rechner hat keinen Lautsprecher.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingDialog</name>
    <message>
        <source>The film begins %1 after the recording.</source>
        <translation>Der Film beginnt %1 nach der Aufzeichnung.</translation>
    </message>
    <message>
        <source>The film begins %1 before the recording.</source>
        <translation>Der Film beginnt %1 vor der Aufzeichnung.</translation>
    </message>
    <message>
        <source>Its clock gains %1 s in 100 s, which is taken out.</source>
        <translation>Ihre Uhr geht in 100 s um %1 s vor; das ist herausgerechnet.</translation>
    </message>
    <message>
        <source>The recording is of another athlete and another day.</source>
        <translation>Die Aufzeichnung ist von einem anderen Athleten und einem anderen Tag.</translation>
    </message>
    <message>
        <source>The recording is of another athlete.</source>
        <translation>Die Aufzeichnung ist von einem anderen Athleten.</translation>
    </message>
    <message>
        <source>The recording is of another day.</source>
        <translation>Die Aufzeichnung ist von einem anderen Tag.</translation>
    </message>
    <message>
        <source>Recording of a run</source>
        <translation>Aufzeichnung eines Laufs</translation>
    </message>
    <message>
        <source>Choose a &amp;recording…</source>
        <translation>Aufzeichnung &amp;wählen…</translation>
    </message>
    <message>
        <source>&amp;Attach the part of this run</source>
        <translation>Teil dieses Laufs &amp;zuordnen</translation>
    </message>
    <message>
        <source>Take o&amp;ff what is attached</source>
        <translation>Zugeordnetes &amp;lösen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Common moment</source>
        <translation>Gemeinsamer Moment</translation>
    </message>
    <message>
        <source>A later one, against drift</source>
        <translation>Ein späterer, gegen Drift</translation>
    </message>
    <message>
        <source>From the film</source>
        <translation>Vom Film</translation>
    </message>
    <message>
        <source>From the chart</source>
        <translation>Vom Diagramm</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>film %1</source>
        <translation>Film %1</translation>
    </message>
    <message>
        <source>recording %1</source>
        <translation>Aufzeichnung %1</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>„%1“ lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>No recording yet</source>
        <translation>Noch keine Aufzeichnung</translation>
    </message>
    <message>
        <source>Choose the recording (.kvb) of the run, or drop it here.</source>
        <translation>Die Aufzeichnung (.kvb) des Laufs wählen oder hierher ziehen.</translation>
    </message>
    <message>
        <source>The boat&apos;s acceleration stands here.</source>
        <translation>Hier steht die Beschleunigung des Boots.</translation>
    </message>
    <message>
        <source>Find a moment that film and recording both show, such as the first stroke or a hit on the boat: go there in the film, click it in the chart, and set both.</source>
        <translation>Einen Moment suchen, den Film und Aufzeichnung zeigen, etwa den ersten Schlag oder einen Stoß ans Boot: im Film hingehen, im Diagramm anklicken und beide setzen.</translation>
    </message>
    <message>
        <source>Forward acceleration</source>
        <translation>Beschleunigung vorwärts</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Beschleunigung</translation>
    </message>
    <message>
        <source>Yaw rate</source>
        <translation>Gierrate</translation>
    </message>
    <message>
        <source>film –</source>
        <translation>Film –</translation>
    </message>
    <message>
        <source>recording –</source>
        <translation>Aufzeichnung –</translation>
    </message>
    <message>
        <source>The run has to be marked first: its start and its splits.</source>
        <translation>Erst den Lauf markieren: seinen Start und seine Zwischenzeiten.</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Aufzeichnung: %1</translation>
    </message>
    <message>
        <source>Run: %1</source>
        <translation>Lauf: %1</translation>
    </message>
    <message>
        <source>Nothing of the recording lies within the run.</source>
        <translation>Nichts von der Aufzeichnung liegt im Lauf.</translation>
    </message>
    <message>
        <source>The part of %1 is attached.</source>
        <translation>Der Teil von %1 ist zugeordnet.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingList</name>
    <message>
        <source>%1 a second</source>
        <translation>%1 je Sekunde</translation>
    </message>
    <message>
        <source>position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>no position</source>
        <translation>keine Position</translation>
    </message>
    <message>
        <source>heart</source>
        <translation>Herz</translation>
    </message>
    <message>
        <source>no heart</source>
        <translation>kein Herz</translation>
    </message>
    <message>
        <source>watch</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>no watch</source>
        <translation>keine Uhr</translation>
    </message>
    <message>
        <source>looking for strokes…</source>
        <translation>Schläge werden gesucht…</translation>
    </message>
    <message>
        <source>%1 strokes, %2 turns</source>
        <translation>%1 Schläge, %2 Drehungen</translation>
    </message>
    <message>
        <source>side unknown</source>
        <translation>Seite unbekannt</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Aufzeichnungen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingOfRun</name>
    <message>
        <source>recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>recording taken off</source>
        <translation>Aufzeichnung gelöst</translation>
    </message>
    <message>
        <source>Attach it all the same</source>
        <translation>Trotzdem zuordnen</translation>
    </message>
    <message>
        <source>Recording of the run</source>
        <translation>Aufzeichnung des Laufs</translation>
    </message>
    <message>
        <source>Recordings (*.kvb);;All files (*)</source>
        <translation>Aufzeichnungen (*.kvb);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingPanel</name>
    <message>
        <source>Found from the position</source>
        <translation>Aus der Position bestimmt</translation>
    </message>
    <message>
        <source>Later b&amp;y</source>
        <translation>S&amp;päter um</translation>
    </message>
    <message>
        <source>Drag a curve with Shift, or press A, to move it in time</source>
        <translation>Eine Kurve mit Umschalt ziehen oder A drücken, um sie in der Zeit zu verschieben</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>&amp;Mass in motion</source>
        <translation>&amp;Bewegte Masse</translation>
    </message>
    <message>
        <source>Athlete, boat and kit</source>
        <translation>Athlet, Boot und Ausrüstung</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>&amp;Drag</source>
        <translation>&amp;Widerstand</translation>
    </message>
    <message>
        <source>Resistance of the hull over the square of its speed</source>
        <translation>Widerstand des Rumpfs durch das Quadrat seiner Geschwindigkeit</translation>
    </message>
    <message>
        <source>N·s²/m²</source>
        <translation>N·s²/m²</translation>
    </message>
    <message>
        <source>&amp;Boat</source>
        <translation>B&amp;oot</translation>
    </message>
    <message>
        <source>Kayak</source>
        <translation>Kajak</translation>
    </message>
    <message>
        <source>Canoe</source>
        <translation>Canadier</translation>
    </message>
    <message>
        <source>P&amp;hone</source>
        <translation>&amp;Telefon</translation>
    </message>
    <message>
        <source>Which side of the phone points to the bow; used where the position does not tell</source>
        <translation>Welche Seite des Telefons zum Bug zeigt; gilt, wo die Position es nicht sagt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RenameFilmsDialog</name>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Danach</translation>
    </message>
    <message>
        <source>stays</source>
        <translation>bleibt</translation>
    </message>
    <message>
        <source>stays: %1</source>
        <translation>bleibt: %1</translation>
    </message>
    <message>
        <source>Rename films</source>
        <translation>Filme umbenennen</translation>
    </message>
    <message>
        <source>How the films are to be called: {name}, {category}, {phase}, {bib} and {number} stand for what is known of each. Split files of the folder follow.</source>
        <translation>Wie die Filme heißen sollen: {name}, {category}, {phase}, {bib} und {number} stehen für das, was von jedem bekannt ist. Zwischenzeitdateien des Ordners ziehen mit.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>%1 of %2 films get another name.</source>
        <translation>%1 von %2 Filmen bekommen einen anderen Namen.</translation>
    </message>
    <message>
        <source>%1 lack what the pattern asks for.</source>
        <translation>%1 fehlt, was das Muster verlangt.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RenderQueue</name>
    <message>
        <source>A film is still being composed.</source>
        <translation>Ein Film wird noch zusammengesetzt.</translation>
    </message>
    <message>
        <source>Leaving the program stops that, and nothing of an unfinished film is kept.</source>
        <translation>Das Verlassen des Programms hält das an, und von einem unfertigen Film bleibt nichts.</translation>
    </message>
    <message>
        <source>Stop and leave</source>
        <translation>Anhalten und verlassen</translation>
    </message>
    <message numerus="yes">
        <source>%n films are still being composed.</source>
        <translation>
            <numerusform>%n Film wird noch zusammengesetzt.</numerusform>
            <numerusform>%n Filme werden noch zusammengesetzt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ReplayBar</name>
    <message>
        <source>Place in the session</source>
        <translation>Stelle in der Einheit</translation>
    </message>
    <message>
        <source>Speed of the replay ([ slower, ] faster)</source>
        <translation>Tempo der Wiedergabe ([ langsamer, ] schneller)</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Pause (Leertaste)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Abspielen (Leertaste)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ReportPreview</name>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Auf Breite</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Drucken…</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Als PDF speichern…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>Keine Seiten</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Preview – Kavela</source>
        <translation>Vorschau – Kavela</translation>
    </message>
    <message>
        <source>%1, preview – Kavela</source>
        <translation>%1, Vorschau – Kavela</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message>
        <source>Table as shown</source>
        <translation>Tabelle wie gezeigt</translation>
    </message>
    <message>
        <source>Race report</source>
        <translation>Rennbericht</translation>
    </message>
    <message>
        <source>Run sheet</source>
        <translation>Laufblatt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ResultsDialog</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Official results from %1</source>
        <translation>Offizielle Ergebnisse aus %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Type a part of the name for another line; an emptied cell stands for none</source>
        <translation>Für eine andere Zeile einen Teil des Namens tippen; eine geleerte Zelle steht für keine</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Real time now</source>
        <translation>Offizielle Zeit jetzt</translation>
    </message>
    <message>
        <source>No line</source>
        <translation>Keine Zeile</translation>
    </message>
    <message>
        <source>“%1” stands in %2 lines of the list: it must be in one.</source>
        <translation>„%1“ steht in %2 Zeilen der Liste: es muss in einer stehen.</translation>
    </message>
    <message>
        <source>%1 lines come into the file. Real time and penalty are taken for %2 of %3 runs: those that are ticked.</source>
        <translation>%1 Zeilen kommen in die Datei. Offizielle Zeit und Strafe werden für %2 von %3 Läufen übernommen: die mit Häkchen.</translation>
    </message>
    <message>
        <source>No line was found for %1. A part of the name, typed in the last column, chooses one.</source>
        <translation>Für %1 wurde keine Zeile gefunden. Ein Teil des Namens, in der letzten Spalte getippt, wählt eine.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ResultsPage</name>
    <message>
        <source>→ goes on</source>
        <translation>→ weiter</translation>
    </message>
    <message>
        <source>out</source>
        <translation>raus</translation>
    </message>
    <message>
        <source>★ wins</source>
        <translation>★ siegt</translation>
    </message>
    <message>
        <source>⚠ Not finished: no order was taken.</source>
        <translation>⚠ Nicht im Ziel: keine Reihenfolge erfasst.</translation>
    </message>
    <message>
        <source>⚠ Not finished. Gates without an order: %1.</source>
        <translation>⚠ Nicht im Ziel. Tore ohne Reihenfolge: %1.</translation>
    </message>
    <message>
        <source>⚠ Not all boats were seen at the last gate.</source>
        <translation>⚠ Am letzten Tor wurden nicht alle Boote gesehen.</translation>
    </message>
    <message>
        <source>Gates without an order: %1.</source>
        <translation>Tore ohne Reihenfolge: %1.</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Finale</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finals</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Halbfinals</translation>
    </message>
    <message>
        <source>Quarterfinals</source>
        <translation>Viertelfinals</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Runde %1</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Boot</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Gained</source>
        <translation>Gewonnen</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Verloren</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>Attacks</source>
        <translation>Angriffe</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>Gelungen</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>Attacked</source>
        <translation>Angegriffen</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>Gehalten</translation>
    </message>
    <message>
        <source>Defence</source>
        <translation>Verteidigung</translation>
    </message>
    <message>
        <source>not told</source>
        <translation>ohne Angabe</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>No results yet: they follow from the orders at the gates that are taken on the page of heats.</source>
        <translation>Noch keine Ergebnisse: sie folgen aus den Reihenfolgen an den Toren, die auf der Seite der Heats erfasst werden.</translation>
    </message>
    <message>
        <source>Attacks and defences</source>
        <translation>Angriffe und Verteidigungen</translation>
    </message>
    <message>
        <source>Where attacks succeed</source>
        <translation>Wo Angriffe gelingen</translation>
    </message>
    <message>
        <source>Heat %1</source>
        <translation>Heat %1</translation>
    </message>
    <message>
        <source>Shows the heat on its film</source>
        <translation>Zeigt den Heat auf seinem Film</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ResultsView</name>
    <message>
        <source>Nobody is in the team yet. Add the first athlete with Ctrl+N.</source>
        <translation>Noch niemand im Team. Den ersten Athleten mit Strg+N hinzufügen.</translation>
    </message>
    <message>
        <source>No athlete fits the search.</source>
        <translation>Kein Athlet passt zur Suche.</translation>
    </message>
    <message>
        <source>Choose the boat %1 races in: menu Team, “Add a category”.</source>
        <translation>Das Boot wählen, das %1 fährt: Menü Team, „Kategorie hinzufügen“.</translation>
    </message>
    <message>
        <source>Add the first season with Ctrl+Shift+N, or drop a split file or a list of results here to take results over.</source>
        <translation>Die erste Saison mit Strg+Umschalt+N hinzufügen oder eine Zwischenzeitdatei oder Ergebnisliste hierher ziehen, um Ergebnisse zu übernehmen.</translation>
    </message>
    <message>
        <source>The first two seasons (✓) count for the categorization. Alt+Up, Alt+Down or dragging changes the order.</source>
        <translation>Die ersten zwei Saisons (✓) zählen für die Einstufung. Alt+Auf, Alt+Ab oder Ziehen ändert die Reihenfolge.</translation>
    </message>
    <message>
        <source>Choose a race to see and edit its runs.</source>
        <translation>Ein Rennen wählen, um seine Läufe zu sehen und zu bearbeiten.</translation>
    </message>
    <message>
        <source>new season</source>
        <translation>neue Saison</translation>
    </message>
    <message>
        <source>new race</source>
        <translation>neues Rennen</translation>
    </message>
    <message>
        <source>order of the seasons</source>
        <translation>Reihenfolge der Saisons</translation>
    </message>
    <message>
        <source>order of the races</source>
        <translation>Reihenfolge der Rennen</translation>
    </message>
    <message>
        <source>removal of a race</source>
        <translation>Entfernen eines Rennens</translation>
    </message>
    <message>
        <source>removal of a season</source>
        <translation>Entfernen einer Saison</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RollForm</name>
    <message>
        <source>Part of the roll</source>
        <translation>Teil der Rolle</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Going over</source>
        <translation>Kentern</translation>
    </message>
    <message>
        <source>Coming up</source>
        <translation>Hochkommen</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RowModel</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunChooser</name>
    <message>
        <source>1 run</source>
        <translation>1 Lauf</translation>
    </message>
    <message>
        <source>Compare with a run of another race</source>
        <translation>Mit einem Lauf eines anderen Rennens vergleichen</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>&amp;Race</source>
        <translation>&amp;Rennen</translation>
    </message>
    <message>
        <source>&amp;Other file…</source>
        <translation>Andere &amp;Datei…</translation>
    </message>
    <message>
        <source>R&amp;un</source>
        <translation>L&amp;auf</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>No other race lies in this folder.
Choose a file.</source>
        <translation>In diesem Ordner liegt kein anderes Rennen.
Eine Datei wählen.</translation>
    </message>
    <message>
        <source>not a race</source>
        <translation>kein Rennen</translation>
    </message>
    <message>
        <source>Open a race</source>
        <translation>Rennen öffnen</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Zwischenzeitdateien (*.kvx);;Alle Dateien (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n Lauf</numerusform>
            <numerusform>%n Läufe</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunFilms</name>
    <message>
        <source>Import videos with Ctrl+I, or drop a folder of videos here.</source>
        <translation>Videos mit Strg+I importieren oder einen Ordner mit Videos hierher ziehen.</translation>
    </message>
    <message>
        <source>%1 is not in the folder of the split file.</source>
        <translation>%1 ist nicht im Ordner der Zwischenzeitdatei.</translation>
    </message>
    <message>
        <source>All films are found</source>
        <translation>Alle Filme gefunden</translation>
    </message>
    <message>
        <source>%1 of %2 films are there. Not found: %3.</source>
        <translation>%1 von %2 Filmen sind da. Nicht gefunden: %3.</translation>
    </message>
    <message>
        <source>Import video</source>
        <translation>Video importieren</translation>
    </message>
    <message>
        <source>Add another camera of this run</source>
        <translation>Weitere Kamera dieses Laufs hinzufügen</translation>
    </message>
    <message>
        <source>camera added</source>
        <translation>Kamera hinzugefügt</translation>
    </message>
    <message>
        <source>Attach the film of a fixed camera</source>
        <translation>Film einer festen Kamera zuordnen</translation>
    </message>
    <message>
        <source>fixed camera attached</source>
        <translation>feste Kamera zugeordnet</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunForm</name>
    <message>
        <source>A comma and minutes, such as 1:32,34, are taken too</source>
        <translation>Komma und Minuten wie in 1:32,34 gehen auch</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Besatzung</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Hand</translation>
    </message>
    <message>
        <source>Real time</source>
        <translation>Offizielle Zeit</translation>
    </message>
    <message>
        <source>Real penalty</source>
        <translation>Offizielle Strafe</translation>
    </message>
    <message>
        <source>Sprint</source>
        <translation>Sprint</translation>
    </message>
    <message>
        <source>sprint time</source>
        <translation>Sprintzeit</translation>
    </message>
    <message>
        <source>Total %1 s,</source>
        <translation>Gesamt %1 s,</translation>
    </message>
    <message>
        <source>penalties %1 s</source>
        <translation>Strafen %1 s</translation>
    </message>
    <message>
        <source>Expected %1 s</source>
        <translation>Erwartet %1 s</translation>
    </message>
    <message>
        <source>Perfect time %1 s</source>
        <translation>Perfekte Zeit %1 s</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunPanel</name>
    <message>
        <source>A clean run.</source>
        <translation>Ein fehlerfreier Lauf.</translation>
    </message>
    <message>
        <source>Touched: gate %1.</source>
        <translation>Berührt: Tor %1.</translation>
    </message>
    <message>
        <source>Missed: gate %1.</source>
        <translation>Torfehler: Tor %1.</translation>
    </message>
    <message>
        <source>To best</source>
        <translation>Zum Besten</translation>
    </message>
    <message>
        <source>Select a run to see its sections. Select two to compare them.</source>
        <translation>Einen Lauf wählen, um seine Abschnitte zu sehen. Zwei wählen, um sie zu vergleichen.</translation>
    </message>
    <message>
        <source> against %1</source>
        <translation> gegen %1</translation>
    </message>
    <message>
        <source>penalties %1 s</source>
        <translation>Strafen %1 s</translation>
    </message>
    <message>
        <source>Total %1 s,</source>
        <translation>Gesamt %1 s,</translation>
    </message>
    <message>
        <source>Total –,</source>
        <translation>Gesamt –,</translation>
    </message>
    <message>
        <source>Real %1 s,</source>
        <translation>Offiziell %1 s,</translation>
    </message>
    <message>
        <source>Expected %1 s</source>
        <translation>Erwartet %1 s</translation>
    </message>
    <message>
        <source>Best own sections %1 s</source>
        <translation>Beste eigene Abschnitte %1 s</translation>
    </message>
    <message>
        <source>A time must be above 0. Check the marks of this run.</source>
        <translation>Eine Zeit muss über 0 liegen. Die Marken dieses Laufs prüfen.</translation>
    </message>
    <message>
        <source>Not the whole course</source>
        <translation>Nicht die ganze Strecke</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Rückstand</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Str</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunPicker</name>
    <message>
        <source>Run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>Type any part of a name, phase, category or race</source>
        <translation>Einen Teil von Name, Phase, Kategorie oder Rennen tippen</translation>
    </message>
    <message>
        <source>Find a run</source>
        <translation>Lauf suchen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunsToEnter</name>
    <message>
        <source>perhaps %1?</source>
        <translation>vielleicht %1?</translation>
    </message>
    <message>
        <source>another run is better</source>
        <translation>ein anderer Lauf ist besser</translation>
    </message>
    <message>
        <source>; xTime %1 stays</source>
        <translation>; xTime %1 bleibt</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>(no run)</source>
        <translation>(kein Lauf)</translation>
    </message>
    <message>
        <source>has no result in this race</source>
        <translation>hat kein Ergebnis in diesem Rennen</translation>
    </message>
    <message>
        <source>no result</source>
        <translation>kein Ergebnis</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(Zeile %1)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunsToEnter::Outcome</name>
    <message>
        <source>place %1</source>
        <translation>Platz %1</translation>
    </message>
    <message>
        <source>place %1, was %2</source>
        <translation>Platz %1, war %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SearchPlaces</name>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Folders and files that are searched</source>
        <translation>Durchsuchte Ordner und Dateien</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Ordner hinzufügen…</translation>
    </message>
    <message>
        <source>The chosen folder or file is not searched any more</source>
        <translation>Der gewählte Ordner oder die Datei wird nicht mehr durchsucht</translation>
    </message>
    <message>
        <source>⚠ One could not be read…</source>
        <translation>⚠ Eine war nicht lesbar…</translation>
    </message>
    <message>
        <source>Search a folder</source>
        <translation>Ordner durchsuchen</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>Dateien durchsuchen</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Zwischenzeitdateien (*.kvx);;Alle Dateien (*)</translation>
    </message>
    <message numerus="yes">
        <source>⚠ %n could not be read…</source>
        <translation>
            <numerusform>⚠ %n war nicht lesbar…</numerusform>
            <numerusform>⚠ %n waren nicht lesbar…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonActions</name>
    <message>
        <source>Athletes</source>
        <translation>Athleten</translation>
    </message>
    <message>
        <source>&amp;Open a team…</source>
        <translation>Team &amp;öffnen…</translation>
    </message>
    <message>
        <source>Add &amp;split files…</source>
        <translation>&amp;Zwischenzeitdateien hinzufügen…</translation>
    </message>
    <message>
        <source>Add a &amp;folder of races…</source>
        <translation>&amp;Ordner mit Rennen hinzufügen…</translation>
    </message>
    <message>
        <source>Read &amp;again</source>
        <translation>Erneut &amp;lesen</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>Lesen an&amp;halten</translation>
    </message>
    <message>
        <source>Files that could not be rea&amp;d…</source>
        <translation>Dateien, die &amp;nicht lesbar waren…</translation>
    </message>
    <message>
        <source>&amp;Reports to look at and print…</source>
        <translation>Berichte ansehen und d&amp;rucken…</translation>
    </message>
    <message>
        <source>Report of the &amp;athlete as PDF…</source>
        <translation>Bericht des Athleten als &amp;PDF…</translation>
    </message>
    <message>
        <source>Report of the tea&amp;m as PDF…</source>
        <translation>Bericht des Tea&amp;ms als PDF…</translation>
    </message>
    <message>
        <source>Save the tab&amp;le as CSV…</source>
        <translation>Tabelle als CS&amp;V speichern…</translation>
    </message>
    <message>
        <source>Save the &amp;chart…</source>
        <translation>&amp;Diagramm speichern…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>&amp;Progression</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>P&amp;hases</source>
        <translation>P&amp;hasen</translation>
    </message>
    <message>
        <source>&amp;Spread</source>
        <translation>&amp;Streuung</translation>
    </message>
    <message>
        <source>&amp;Trend</source>
        <translation>&amp;Trend</translation>
    </message>
    <message>
        <source>Head to h&amp;ead</source>
        <translation>Direkter V&amp;ergleich</translation>
    </message>
    <message>
        <source>&amp;Medals and finals</source>
        <translation>&amp;Medaillen und Finals</translation>
    </message>
    <message>
        <source>E&amp;xpected places</source>
        <translation>Erwartete &amp;Plätze</translation>
    </message>
    <message>
        <source>&amp;What it takes</source>
        <translation>&amp;Was es braucht</translation>
    </message>
    <message>
        <source>&amp;Athletes</source>
        <translation>&amp;Athleten</translation>
    </message>
    <message>
        <source>The who&amp;le chart</source>
        <translation>&amp;Ganzes Diagramm</translation>
    </message>
    <message>
        <source>Athl&amp;ete</source>
        <translation>Athl&amp;et</translation>
    </message>
    <message>
        <source>The &amp;next athlete</source>
        <translation>Der &amp;nächste Athlet</translation>
    </message>
    <message>
        <source>The athlete &amp;before</source>
        <translation>Der Athlet &amp;davor</translation>
    </message>
    <message>
        <source>&amp;Show the athlete of the row</source>
        <translation>Athleten der Zeile &amp;zeigen</translation>
    </message>
    <message>
        <source>Expect the places of a &amp;field…</source>
        <translation>Plätze eines &amp;Felds erwarten…</translation>
    </message>
    <message>
        <source>Pa&amp;ge for an athlete…</source>
        <translation>Seite für einen &amp;Athleten…</translation>
    </message>
    <message>
        <source>Only the athlete&apos;s &amp;own races</source>
        <translation>Nur die &amp;eigenen Rennen des Sportlers</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonHeader</name>
    <message>
        <source>Add the races…</source>
        <translation>Rennen hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Kategorie</translation>
    </message>
    <message>
        <source>&amp;Years</source>
        <translation>&amp;Jahre</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>&amp;Athlet</translation>
    </message>
    <message>
        <source>Only &amp;own races</source>
        <translation>Nur &amp;eigene Rennen</translation>
    </message>
    <message>
        <source>Only races in which this athlete starts, in whichever phase; on every page</source>
        <translation>Nur Rennen, in denen dieser Sportler startet, gleich in welcher Phase; auf jeder Seite</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonModel</name>
    <message>
        <source>✓ counts</source>
        <translation>✓ zählt</translation>
    </message>
    <message>
        <source>The first two seasons count for the categorization. Move a season by dragging it, or with Alt+Up and Alt+Down.</source>
        <translation>Die ersten zwei Saisons zählen für die Einstufung. Eine Saison durch Ziehen oder mit Alt+Auf und Alt+Ab verschieben.</translation>
    </message>
    <message>
        <source>Final classification of the race</source>
        <translation>Endklassement des Rennens</translation>
    </message>
    <message>
        <source>Position in the ICF world ranking at the end of the season</source>
        <translation>Platz in der ICF-Weltrangliste am Ende der Saison</translation>
    </message>
    <message>
        <source>Points in the ICF world ranking</source>
        <translation>Punkte in der ICF-Weltrangliste</translation>
    </message>
    <message>
        <source>Season, race</source>
        <translation>Saison, Rennen</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>ICF ranking position</source>
        <translation>Platz ICF-Rangliste</translation>
    </message>
    <message>
        <source>ICF ranking points</source>
        <translation>Punkte ICF-Rangliste</translation>
    </message>
    <message>
        <source>There is a season %1 already.</source>
        <translation>Die Saison %1 gibt es schon.</translation>
    </message>
    <message>
        <source>year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>final position</source>
        <translation>Endplatz</translation>
    </message>
    <message>
        <source>“%1” is none of the events.</source>
        <translation>„%1“ ist keiner der Wettkämpfe.</translation>
    </message>
    <message>
        <source>event</source>
        <translation>Wettkampf</translation>
    </message>
    <message>
        <source>location</source>
        <translation>Ort</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonPage</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>zu wenige</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>No whole run of this athlete can be held against the reference.</source>
        <translation>Kein ganzer Lauf dieses Athleten lässt sich mit der Referenz vergleichen.</translation>
    </message>
    <message>
        <source>Nothing stands out: there is no clip to choose.</source>
        <translation>Nichts fällt auf: es gibt keinen Clip zu wählen.</translation>
    </message>
    <message>
        <source>&amp;Show this run</source>
        <translation>Diesen Lauf &amp;zeigen</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Nach</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Verloren</translation>
    </message>
    <message>
        <source>Seconds, of all runs together</source>
        <translation>Sekunden, von allen Läufen zusammen</translation>
    </message>
    <message>
        <source>Lost, %</source>
        <translation>Verlust, %</translation>
    </message>
    <message>
        <source>Of the reference&apos;s time there</source>
        <translation>Von der Zeit der Referenz dort</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#xa0;%</translation>
    </message>
    <message>
        <source>A run</source>
        <translation>Je Lauf</translation>
    </message>
    <message>
        <source>Seconds lost in a run on the average</source>
        <translation>Verlorene Sekunden in einem Lauf im Mittel</translation>
    </message>
    <message>
        <source>Of the gap, %</source>
        <translation>Vom Rückstand, %</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>What the interval says: losing where all of it is above 0</source>
        <translation>Was das Intervall sagt: Verlust, wo es ganz über 0 liegt</translation>
    </message>
    <message>
        <source>See</source>
        <translation>Siehe</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>Open a folder of races to see an athlete&apos;s season.</source>
        <translation>Einen Ordner mit Rennen öffnen, um die Saison eines Athleten zu sehen.</translation>
    </message>
    <message>
        <source>%1: no whole run in %2 files can be held against the %3.</source>
        <translation>%1: kein ganzer Lauf in %2 Dateien lässt sich vergleichen (Referenz: %3).</translation>
    </message>
    <message>
        <source>%1 on %2: %3 in %4; gap a run %5, penalties %6</source>
        <translation>%1 auf %2: %3 in %4; Rückstand je Lauf %5, Strafen %6</translation>
    </message>
    <message>
        <source>one whole run</source>
        <translation>ein ganzer Lauf</translation>
    </message>
    <message>
        <source>one file</source>
        <translation>eine Datei</translation>
    </message>
    <message>
        <source>Train: nothing stands out from these runs.</source>
        <translation>Training: aus diesen Läufen fällt nichts auf.</translation>
    </message>
    <message>
        <source>%1. %2: %3, %4 s a run</source>
        <translation>%1. %2: %3, %4 s je Lauf</translation>
    </message>
    <message>
        <source>Train:</source>
        <translation>Training:</translation>
    </message>
    <message>
        <source>gate %1</source>
        <translation>Tor %1</translation>
    </message>
    <message numerus="yes">
        <source>%n whole runs</source>
        <translation>
            <numerusform>%n ganzer Lauf</numerusform>
            <numerusform>%n ganze Läufe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonPages</name>
    <message>
        <source>Progression</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Phasen</translation>
    </message>
    <message>
        <source>From which phase to which</source>
        <translation>Von welcher Phase zu welcher</translation>
    </message>
    <message>
        <source>Run 1 to run 2 of the heats</source>
        <translation>Lauf 1 zu Lauf 2 der Vorläufe</translation>
    </message>
    <message>
        <source>Semifinal to final</source>
        <translation>Halbfinale zu Finale</translation>
    </message>
    <message>
        <source>Heats to final, percent behind</source>
        <translation>Vorlauf zu Finale, Prozent Rückstand</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Streuung</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>Behind whom</source>
        <translation>Hinter wem</translation>
    </message>
    <message>
        <source>Behind the winners</source>
        <translation>Hinter den Siegern</translation>
    </message>
    <message>
        <source>Behind the fastest splits</source>
        <translation>Hinter den schnellsten Abschnitten</translation>
    </message>
    <message>
        <source>Head to head</source>
        <translation>Direkter Vergleich</translation>
    </message>
    <message>
        <source>Medals and finals</source>
        <translation>Medaillen und Finals</translation>
    </message>
    <message>
        <source>How far</source>
        <translation>Wie weit</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Medaillen</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finals</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Halbfinals</translation>
    </message>
    <message>
        <source>Expected places</source>
        <translation>Erwartete Plätze</translation>
    </message>
    <message>
        <source>What it takes</source>
        <translation>Was es braucht</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Athleten</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonReports</name>
    <message>
        <source>The team</source>
        <translation>Das Team</translation>
    </message>
    <message>
        <source>Save the report of %1</source>
        <translation>Bericht von %1 speichern</translation>
    </message>
    <message>
        <source>Save the report of the team</source>
        <translation>Bericht des Teams speichern</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>The report cannot be written over a file that it is made from.</source>
        <translation>Der Bericht kann nicht über eine Datei geschrieben werden, aus der er entsteht.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonWindow</name>
    <message>
        <source>Season</source>
        <translation>Saison</translation>
    </message>
    <message>
        <source>Drop a team (.kvteam) and the folder of its races here</source>
        <translation>Ein Team (.kvteam) und den Ordner seiner Rennen hierher ziehen</translation>
    </message>
    <message>
        <source>Open a team…</source>
        <translation>Team öffnen…</translation>
    </message>
    <message>
        <source>Add a folder of races…</source>
        <translation>Ordner mit Rennen hinzufügen…</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translation>%1 wird geschrieben…</translation>
    </message>
    <message>
        <source>Open a team</source>
        <translation>Team öffnen</translation>
    </message>
    <message>
        <source>Teams (*.kvteam);;All files (*)</source>
        <translation>Teams (*.kvteam);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Add split files</source>
        <translation>Zwischenzeitdateien hinzufügen</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Zwischenzeitdateien (*.kvx);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Add a folder of races</source>
        <translation>Ordner mit Rennen hinzufügen</translation>
    </message>
    <message>
        <source>Whose places to expect</source>
        <translation>Wessen Plätze zu erwarten sind</translation>
    </message>
    <message>
        <source>A name a line, as a start list has them. Nothing for the team and those who raced most often.</source>
        <translation>Ein Name je Zeile, wie in einer Startliste. Nichts für das Team und wer am öftesten fuhr.</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>%1 war nicht lesbar: %2</translation>
    </message>
    <message>
        <source>How every athlete of a team stands over the seasons: behind the winners, against rivals, and against chance. Files are only read.</source>
        <translation>Wie jeder Athlet eines Teams über die Saisons steht: hinter den Siegern, gegen Rivalen und gegen den Zufall. Dateien werden nur gelesen.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>Nobody of this team races in any category yet.</source>
        <translation>Noch fährt niemand dieses Teams in einer Kategorie.</translation>
    </message>
    <message>
        <source>No split files: winners and rivals are the team&apos;s own</source>
        <translation>Keine Zwischenzeitdateien: Sieger und Rivalen sind die des Teams selbst</translation>
    </message>
    <message>
        <source>Races from 1 split file</source>
        <translation>Rennen aus 1 Zwischenzeitdatei</translation>
    </message>
    <message>
        <source>1 run compared</source>
        <translation>1 Lauf verglichen</translation>
    </message>
    <message>
        <source>several athletes are called %1: their runs cannot be told apart</source>
        <translation>mehrere Athleten heißen %1: ihre Läufe sind nicht zu unterscheiden</translation>
    </message>
    <message>
        <source>nobody in these races is called %1</source>
        <translation>niemand heißt in diesen Rennen %1</translation>
    </message>
    <message>
        <source>too few runs to expect a place of %1 of the field</source>
        <translation>zu wenige Läufe, um einen Platz zu erwarten: %1 aus dem Feld</translation>
    </message>
    <message>
        <source>the team could not be read again: %1</source>
        <translation>das Team war nicht erneut lesbar: %1</translation>
    </message>
    <message numerus="yes">
        <source>Races from %n split files</source>
        <translation>
            <numerusform>Rennen aus %n Zwischenzeitdatei</numerusform>
            <numerusform>Rennen aus %n Zwischenzeitdateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n runs compared</source>
        <translation>
            <numerusform>%n Lauf verglichen</numerusform>
            <numerusform>%n Läufe verglichen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SectionChart</name>
    <message>
        <source>Box</source>
        <translation>Box</translation>
    </message>
    <message>
        <source>Quartiles, and the runs far from them</source>
        <translation>Quartile, und die Läufe weit davon</translation>
    </message>
    <message>
        <source>Strip</source>
        <translation>Streifen</translation>
    </message>
    <message>
        <source>A dot for every run</source>
        <translation>Ein Punkt für jeden Lauf</translation>
    </message>
    <message>
        <source>Behind best</source>
        <translation>Hinter dem Besten</translation>
    </message>
    <message>
        <source>Seconds behind the best of the section</source>
        <translation>Sekunden hinter dem Besten des Abschnitts</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Seconds in the section</source>
        <translation>Sekunden im Abschnitt</translation>
    </message>
    <message>
        <source>No section has been timed yet.</source>
        <translation>Noch kein Abschnitt hat Zeiten.</translation>
    </message>
    <message>
        <source>Seconds in each section</source>
        <translation>Sekunden in jedem Abschnitt</translation>
    </message>
    <message>
        <source>Seconds behind the best of each section</source>
        <translation>Sekunden hinter dem Besten jedes Abschnitts</translation>
    </message>
    <message>
        <source>Times of %1 by section</source>
        <translation>Zeiten von %1 nach Abschnitt</translation>
    </message>
    <message>
        <source>, penalties included</source>
        <translation>, mit Strafen</translation>
    </message>
    <message>
        <source>← slower      faster →</source>
        <translation>← langsamer      schneller →</translation>
    </message>
    <message>
        <source>Not timed</source>
        <translation>Ohne Zeit</translation>
    </message>
    <message>
        <source>Quarter of the runs under</source>
        <translation>Ein Viertel der Läufe unter</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Quarter of the runs over</source>
        <translation>Ein Viertel der Läufe über</translation>
    </message>
    <message>
        <source>Slowest</source>
        <translation>Langsamster</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>Behind the best</source>
        <translation>Hinter dem Besten</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Fastest</source>
        <translation>Schnellster</translation>
    </message>
    <message>
        <source>Lower quartile</source>
        <translation>Unteres Quartil</translation>
    </message>
    <message>
        <source>Upper quartile</source>
        <translation>Oberes Quartil</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Abschnitte</translation>
    </message>
    <message>
        <source>Distribution of the times of each section</source>
        <translation>Verteilung der Zeiten jedes Abschnitts</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SectionForm</name>
    <message>
        <source>Turns</source>
        <translation>Drehungen</translation>
    </message>
    <message>
        <source>Turn %1</source>
        <translation>Drehung %1</translation>
    </message>
    <message>
        <source>Stretch %1</source>
        <translation>Stück %1</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Runde %1</translation>
    </message>
    <message>
        <source>La&amp;ps</source>
        <translation>&amp;Runden</translation>
    </message>
    <message>
        <source>number of laps</source>
        <translation>Zahl der Runden</translation>
    </message>
    <message>
        <source>Distance between the &amp;gates</source>
        <translation>Abstand zwischen den &amp;Toren</translation>
    </message>
    <message>
        <source>distance</source>
        <translation>Distanz</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Turn li&amp;mit</source>
        <translation>&amp;Drehgrenze</translation>
    </message>
    <message>
        <source>A faster rotation of the boat is a turn, a slower one straight paddling</source>
        <translation>Eine schnellere Rotation des Boots ist eine Drehung, eine langsamere Geradeausfahrt</translation>
    </message>
    <message>
        <source>rad/s</source>
        <translation>rad/s</translation>
    </message>
    <message>
        <source>Told by the strokes that were recorded</source>
        <translation>Aus den aufgezeichneten Schlägen</translation>
    </message>
    <message>
        <source>Time
(s)</source>
        <translation>Zeit
(s)</translation>
    </message>
    <message>
        <source>Straight
(s)</source>
        <translation>Gerade
(s)</translation>
    </message>
    <message>
        <source>Rotation
(s)</source>
        <translation>Rotation
(s)</translation>
    </message>
    <message>
        <source>Speed
(m/s)</source>
        <translation>Tempo
(m/s)</translation>
    </message>
    <message>
        <source>Follows from distance and time until it is typed</source>
        <translation>Folgt aus Distanz und Zeit, bis es getippt wird</translation>
    </message>
    <message>
        <source>Stroke rate
(1/min)</source>
        <translation>Schlagfrequenz
(1/min)</translation>
    </message>
    <message>
        <source>Efficiency
(m/stroke)</source>
        <translation>Effizienz
(m/Schlag)</translation>
    </message>
    <message>
        <source>Follows from speed and stroke rate until typed</source>
        <translation>Folgt aus Tempo und Schlagfrequenz, bis getippt</translation>
    </message>
    <message>
        <source>Left
(rad/s)</source>
        <translation>Links
(rad/s)</translation>
    </message>
    <message>
        <source>Left
(s)</source>
        <translation>Links
(s)</translation>
    </message>
    <message>
        <source>Right
(rad/s)</source>
        <translation>Rechts
(rad/s)</translation>
    </message>
    <message>
        <source>Right
(s)</source>
        <translation>Rechts
(s)</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Abschnitte</translation>
    </message>
    <message>
        <source>The time in straight line is part of the time of its section: it cannot be longer.</source>
        <translation>Die Zeit geradeaus ist ein Teil der Zeit ihres Abschnitts: sie kann nicht länger sein.</translation>
    </message>
    <message>
        <source>section %1</source>
        <translation>Abschnitt %1</translation>
    </message>
    <message>
        <source>turn %1</source>
        <translation>Drehung %1</translation>
    </message>
    <message>
        <source>Total: %1 s</source>
        <translation>Gesamt: %1 s</translation>
    </message>
    <message>
        <source>Total: – · %1 of %2 sections are timed</source>
        <translation>Gesamt: – · %1 von %2 Abschnitten sind gestoppt</translation>
    </message>
    <message>
        <source> · %1 strokes recorded</source>
        <translation> · %1 Schläge aufgezeichnet</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionDocument</name>
    <message>
        <source>1 race</source>
        <translation>1 Rennen</translation>
    </message>
    <message numerus="yes">
        <source>%n races</source>
        <translation>
            <numerusform>%n Rennen</numerusform>
            <numerusform>%n Rennen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionEdits</name>
    <message>
        <source>Race</source>
        <translation>Rennen</translation>
    </message>
    <message>
        <source>Race location</source>
        <translation>Ort des Rennens</translation>
    </message>
    <message>
        <source>race added</source>
        <translation>Rennen hinzugefügt</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Rename which race?</source>
        <translation>Welches Rennen umbenennen?</translation>
    </message>
    <message>
        <source>race renamed</source>
        <translation>Rennen umbenannt</translation>
    </message>
    <message>
        <source>Remove which race?</source>
        <translation>Welches Rennen entfernen?</translation>
    </message>
    <message>
        <source>race removed</source>
        <translation>Rennen entfernt</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Category of the athletes</source>
        <translation>Kategorie der Athleten</translation>
    </message>
    <message>
        <source>category added</source>
        <translation>Kategorie hinzugefügt</translation>
    </message>
    <message>
        <source>Add a category first.</source>
        <translation>Erst eine Kategorie hinzufügen.</translation>
    </message>
    <message>
        <source>%1 is in this category already.</source>
        <translation>%1 ist schon in dieser Kategorie.</translation>
    </message>
    <message>
        <source>athlete added</source>
        <translation>Athlet hinzugefügt</translation>
    </message>
    <message>
        <source>athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>athlete removed</source>
        <translation>Athlet entfernt</translation>
    </message>
    <message>
        <source>times of 0</source>
        <translation>Zeiten von 0</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionTakeOverDialog</name>
    <message>
        <source>Results of %1</source>
        <translation>Ergebnisse von %1</translation>
    </message>
    <message>
        <source>&amp;Take over</source>
        <translation>&amp;Übernehmen</translation>
    </message>
    <message>
        <source>Athletes who get a result: %1, of them new in the selection: %2. Without a result then: %3. Runs and lines that stay out: %4. A click on an athlete chooses another one, or adds the name to the selection.</source>
        <translation>Athleten mit Ergebnis: %1, davon neu in der Nominierung: %2. Dann ohne Ergebnis: %3. Läufe und Zeilen, die draußen bleiben: %4. Ein Klick auf einen Athleten wählt einen anderen oder nimmt den Namen in die Nominierung auf.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionWindow</name>
    <message>
        <source>Selection races</source>
        <translation>Qualifikationsrennen</translation>
    </message>
    <message>
        <source>Copy the table</source>
        <translation>Tabelle kopieren</translation>
    </message>
    <message>
        <source>&amp;Reports: preview, PDF, print…</source>
        <translation>Be&amp;richte: Vorschau, PDF, Druck…</translation>
    </message>
    <message>
        <source>Make times of 0 &amp;missing results</source>
        <translation>Zeiten von 0 zu fehlenden Er&amp;gebnissen machen</translation>
    </message>
    <message>
        <source>&amp;Copy the table</source>
        <translation>Tabelle &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;What if</source>
        <translation>Was wäre, we&amp;nn</translation>
    </message>
    <message>
        <source>&amp;Races</source>
        <translation>&amp;Rennen</translation>
    </message>
    <message>
        <source>&amp;Add a race…</source>
        <translation>Rennen &amp;hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Rename a race…</source>
        <translation>Rennen &amp;umbenennen…</translation>
    </message>
    <message>
        <source>Remo&amp;ve a race…</source>
        <translation>Rennen &amp;entfernen…</translation>
    </message>
    <message>
        <source>Results from &amp;split files…</source>
        <translation>Ergebnisse aus &amp;Zwischenzeitdateien…</translation>
    </message>
    <message>
        <source>Results from a &amp;list (position, total, penalty)…</source>
        <translation>Ergebnisse aus einer &amp;Liste (Platz, Gesamt, Strafe)…</translation>
    </message>
    <message>
        <source>Results from a list with &amp;categories and clubs…</source>
        <translation>Ergebnisse aus einer Liste mit &amp;Kategorien und Vereinen…</translation>
    </message>
    <message>
        <source>&amp;Athletes</source>
        <translation>&amp;Athleten</translation>
    </message>
    <message>
        <source>Add a &amp;category…</source>
        <translation>&amp;Kategorie hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Add an athlete…</source>
        <translation>&amp;Athleten hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Edit the athlete…</source>
        <translation>Athleten &amp;bearbeiten…</translation>
    </message>
    <message>
        <source>&amp;Remove the athlete</source>
        <translation>Athleten ent&amp;fernen</translation>
    </message>
    <message>
        <source>&amp;Import athletes…</source>
        <translation>Athleten &amp;importieren…</translation>
    </message>
    <message>
        <source>&amp;How a list has to look</source>
        <translation>&amp;Wie eine Liste aussehen muss</translation>
    </message>
    <message>
        <source>Category %1</source>
        <translation>Kategorie %1</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Bonus</source>
        <translation>Bonus</translation>
    </message>
    <message>
        <source>Official times</source>
        <translation>Offizielle Zeiten</translation>
    </message>
    <message>
        <source>xTimes</source>
        <translation>xTimes</translation>
    </message>
    <message>
        <source>What if…</source>
        <translation>Was wäre, wenn…</translation>
    </message>
    <message>
        <source>Try other times and penalties; nothing of it is kept (W)</source>
        <translation>Andere Zeiten und Strafen probieren; nichts davon bleibt (W)</translation>
    </message>
    <message>
        <source>Selection %1</source>
        <translation>Nominierung %1</translation>
    </message>
    <message>
        <source>What if: times and penalties typed now are tried only. End it (W) to go back to the real results.</source>
        <translation>Was wäre, wenn: jetzt getippte Zeiten und Strafen sind nur probiert. Beenden (W), um zu den wirklichen Ergebnissen zurückzukehren.</translation>
    </message>
    <message>
        <source>Add the races of the selection first (Ctrl+R), then athletes (Ctrl+N, or drop a .csv file).</source>
        <translation>Erst die Rennen der Nominierung hinzufügen (Strg+R), dann Athleten (Strg+N, oder eine .csv-Datei hierher ziehen).</translation>
    </message>
    <message>
        <source>Now add a category (Ctrl+G), such as MK1; then its athletes (Ctrl+N, or drop a .csv file).</source>
        <translation>Jetzt eine Kategorie hinzufügen (Strg+G), etwa MK1; dann ihre Athleten (Strg+N, oder eine .csv-Datei hierher ziehen).</translation>
    </message>
    <message>
        <source>Add the athletes of the category (Ctrl+N, or drop a .csv file), then their results: type them, or take them over from split files (Ctrl+I).</source>
        <translation>Die Athleten der Kategorie hinzufügen (Strg+N, oder eine .csv-Datei hierher ziehen), dann ihre Ergebnisse: tippen oder aus Zwischenzeitdateien übernehmen (Strg+I).</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) have a time of 0, which puts their athletes far in front. Edit &gt; Make times of 0 missing results.</source>
        <translation>
            <numerusform>%n Ergebnis hat eine Zeit von 0, was seinen Athleten weit nach vorn setzt. Bearbeiten &gt; Zeiten von 0 zu fehlenden Ergebnissen machen.</numerusform>
            <numerusform>%n Ergebnisse haben eine Zeit von 0, was ihre Athleten weit nach vorn setzt. Bearbeiten &gt; Zeiten von 0 zu fehlenden Ergebnissen machen.</numerusform>
        </translation>
    </message>
    <message>
        <source>End what if</source>
        <translation>„Was wäre, wenn“ beenden</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No bonus</source>
        <translation>Kein Bonus</translation>
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
        <translation>Zeit (s)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeriesDrawing</name>
    <message>
        <source>%1: low</source>
        <translation>%1: tief</translation>
    </message>
    <message>
        <source>%1: high</source>
        <translation>%1: hoch</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionCharts</name>
    <message>
        <source>none was recorded</source>
        <translation>keine wurde aufgezeichnet</translation>
    </message>
    <message>
        <source>there are no turns</source>
        <translation>es gibt keine Drehungen</translation>
    </message>
    <message>
        <source>there are no strokes</source>
        <translation>es gibt keine Schläge</translation>
    </message>
    <message>
        <source>not known, since nothing tells which side of the phone points to the bow</source>
        <translation>nicht bekannt, weil nichts sagt, welche Seite des Telefons zum Bug zeigt</translation>
    </message>
    <message>
        <source>not known, since there are no positions that tell the speed</source>
        <translation>nicht bekannt, weil keine Positionen das Tempo sagen</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Schlagfrequenz</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Kraft</translation>
    </message>
    <message>
        <source>Impulse</source>
        <translation>Impuls</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Herzfrequenz</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Phasen</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rollen</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Stampfen</translation>
    </message>
    <message>
        <source>end</source>
        <translation>Ende</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionDialog</name>
    <message>
        <source>at</source>
        <translation>um</translation>
    </message>
    <message>
        <source>Training session</source>
        <translation>Trainingseinheit</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Titel</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>&amp;Place</source>
        <translation>&amp;Ort</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Beschreibung</translation>
    </message>
    <message>
        <source>On the water</source>
        <translation>Auf dem Wasser</translation>
    </message>
    <message>
        <source>In the gym</source>
        <translation>Im Kraftraum</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>not in this week</source>
        <translation>nicht in dieser Woche</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionMarks</name>
    <message>
        <source>%1 marks: two make a segment</source>
        <translation>%1 Marken: zwei ergeben ein Segment</translation>
    </message>
    <message>
        <source>%1 segments</source>
        <translation>%1 Segmente</translation>
    </message>
    <message>
        <source>mark</source>
        <translation>Marke</translation>
    </message>
    <message>
        <source>removal of a mark</source>
        <translation>Entfernen einer Marke</translation>
    </message>
    <message>
        <source>removal of all marks</source>
        <translation>Entfernen aller Marken</translation>
    </message>
    <message>
        <source>There is a mark already</source>
        <translation>Da ist schon eine Marke</translation>
    </message>
    <message>
        <source>move of a mark</source>
        <translation>Verschieben einer Marke</translation>
    </message>
    <message>
        <source>Mark at %1</source>
        <translation>Marke bei %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionTables</name>
    <message>
        <source>Strokes</source>
        <translation>Schläge</translation>
    </message>
    <message>
        <source>Turns</source>
        <translation>Drehungen</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>Segmente</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distanz</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Links und rechts</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>Values every</source>
        <translation>Werte alle</translation>
    </message>
    <message>
        <source>Strokes (%1)</source>
        <translation>Schläge (%1)</translation>
    </message>
    <message>
        <source>Turns (%1)</source>
        <translation>Drehungen (%1)</translation>
    </message>
    <message>
        <source>from the first mark</source>
        <translation>ab der ersten Marke</translation>
    </message>
    <message>
        <source>from the start</source>
        <translation>ab dem Start</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionView</name>
    <message>
        <source>Speed against stroke rate</source>
        <translation>Tempo gegen Schlagfrequenz</translation>
    </message>
    <message>
        <source>Stroke rate (1/min)</source>
        <translation>Schlagfrequenz (1/min)</translation>
    </message>
    <message>
        <source>Speed (m/s)</source>
        <translation>Tempo (m/s)</translation>
    </message>
    <message>
        <source>The speed of the strokes is not known.</source>
        <translation>Das Tempo der Schläge ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Side unknown</source>
        <translation>Seite unbekannt</translation>
    </message>
    <message>
        <source>Information…</source>
        <translation>Angaben…</translation>
    </message>
    <message>
        <source>Athlete, place, kind and equipment</source>
        <translation>Athlet, Ort, Art und Ausrüstung</translation>
    </message>
    <message>
        <source>Name the phone&apos;s mount</source>
        <translation>Lage des Telefons nennen</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Show the selected stretch alone</source>
        <translation>Nur das gewählte Stück zeigen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Cut the session to the selected stretch</source>
        <translation>Die Einheit auf das gewählte Stück kürzen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Take the selected stretch out</source>
        <translation>Das gewählte Stück herausnehmen</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Schlagfrequenz</translation>
    </message>
    <message>
        <source>Colour of the course</source>
        <translation>Farbe der Strecke</translation>
    </message>
    <message>
        <source>%1 – %2: %3 s, %4 strokes, %5/min, %6 m, %7 m/s</source>
        <translation>%1 – %2: %3 s, %4 Schläge, %5/min, %6 m, %7 m/s</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionWindow</name>
    <message>
        <source>Session</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Sessions (*.bms);;Sessions (*.sbm)</source>
        <translation>Einheiten (*.bms);;Einheiten (*.sbm)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Import .kvb file</source>
        <translation>.kvb-Datei importieren</translation>
    </message>
    <message>
        <source>Recordings (*.kvb)</source>
        <translation>Aufzeichnungen (*.kvb)</translation>
    </message>
    <message>
        <source>Import .sbm file</source>
        <translation>.sbm-Datei importieren</translation>
    </message>
    <message>
        <source>Sessions (*.sbm *.bms)</source>
        <translation>Einheiten (*.sbm *.bms)</translation>
    </message>
    <message>
        <source>power of the power meter</source>
        <translation>Leistung des Leistungsmessers</translation>
    </message>
    <message>
        <source>Save the session</source>
        <translation>Einheit speichern</translation>
    </message>
    <message>
        <source>Save with it</source>
        <translation>Damit speichern</translation>
    </message>
    <message>
        <source>Save without it</source>
        <translation>Ohne speichern</translation>
    </message>
    <message>
        <source>Saved without the power meter&apos;s data, which are still here.</source>
        <translation>Ohne die Daten des Leistungsmessers gespeichert; sie sind hier noch da.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SettingsWindow</name>
    <message>
        <source>Look and tables</source>
        <translation>Aussehen und Tabellen</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Split taking</source>
        <translation>Zwischenzeitnahme</translation>
    </message>
    <message>
        <source>Boat motion</source>
        <translation>Bootsbewegung</translation>
    </message>
    <message>
        <source>At start</source>
        <translation>Beim Start</translation>
    </message>
    <message>
        <source>The decoded frames of all open films together take at most %1, and never more than a quarter of this computer&apos;s memory of %2.</source>
        <translation>Die dekodierten Bilder aller offenen Filme zusammen belegen höchstens %1 und nie mehr als ein Viertel des Speichers dieses Rechners von %2.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Every change takes effect at once, another language when Kavela starts again.</source>
        <translation>Jede Änderung wirkt sofort, eine andere Sprache beim nächsten Start von Kavela.</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>The environment variable KAVELA_SCHEME decides for this session.</source>
        <translation>Für diese Sitzung entscheidet die Umgebungsvariable KAVELA_SCHEME.</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>The environment variable KAVELA_LANGUAGE decides for this session.</source>
        <translation>Für diese Sitzung entscheidet die Umgebungsvariable KAVELA_LANGUAGE.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Race: best green, others red</source>
        <translation>Rennen: beste grün, andere rot</translation>
    </message>
    <message>
        <source>Training: cells tinted by rank</source>
        <translation>Training: Zellen nach Platz gefärbt</translation>
    </message>
    <message>
        <source>Colours of the split table</source>
        <translation>Farben der Zwischenzeitentabelle</translation>
    </message>
    <message>
        <source>One a line.</source>
        <translation>Eine je Zeile.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Look for a newer version once a day</source>
        <translation>Einmal am Tag nach einer neueren Version sehen</translation>
    </message>
    <message>
        <source>Where it is looked for</source>
        <translation>Wo nachgesehen wird</translation>
    </message>
    <message>
        <source>This is no https address. It is looked for where it was.</source>
        <translation>Das ist keine https-Adresse. Nachgesehen wird, wo es bisher war.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ShareActions</name>
    <message>
        <source>&amp;Open a folder to share…</source>
        <translation>&amp;Ordner zum Teilen öffnen…</translation>
    </message>
    <message>
        <source>Sha&amp;re</source>
        <translation>&amp;Teilen</translation>
    </message>
    <message>
        <source>&amp;Compare both sides</source>
        <translation>Beide Seiten &amp;vergleichen</translation>
    </message>
    <message>
        <source>&amp;Start with the ticked files</source>
        <translation>&amp;Mit den abgehakten Dateien beginnen</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Tick all but deletions</source>
        <translation>Alles a&amp;bhaken außer Löschen</translation>
    </message>
    <message>
        <source>Tick &amp;none</source>
        <translation>&amp;Keine abhaken</translation>
    </message>
    <message>
        <source>Ser&amp;ver</source>
        <translation>Ser&amp;ver</translation>
    </message>
    <message>
        <source>&amp;Sign in…</source>
        <translation>An&amp;melden…</translation>
    </message>
    <message>
        <source>&amp;Forget the password</source>
        <translation>&amp;Passwort vergessen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ShareWindow</name>
    <message>
        <source>Share folders</source>
        <translation>Ordner teilen</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Shows what differs; nothing is changed by it</source>
        <translation>Zeigt, was sich unterscheidet; nichts wird dadurch geändert</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Beginnen</translation>
    </message>
    <message>
        <source>Shares the ticked files</source>
        <translation>Teilt die abgehakten Dateien</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Nothing is shared before it is shown here</source>
        <translation>Nichts wird geteilt, ehe es hier gezeigt ist</translation>
    </message>
    <message>
        <source>Another folder is shared once this one is done.</source>
        <translation>Ein anderer Ordner wird geteilt, wenn dieser fertig ist.</translation>
    </message>
    <message>
        <source>The folder to share</source>
        <translation>Der zu teilende Ordner</translation>
    </message>
    <message>
        <source>Both sides are looked at…</source>
        <translation>Beide Seiten werden angesehen…</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 von %3</translation>
    </message>
    <message>
        <source>%1: %2 files</source>
        <translation>%1: %2 Dateien</translation>
    </message>
    <message>
        <source>%1 (on the server)</source>
        <translation>%1 (auf dem Server)</translation>
    </message>
    <message>
        <source>%1 (here)</source>
        <translation>%1 (hier)</translation>
    </message>
    <message>
        <source>Delete 1 file?</source>
        <translation>1 Datei löschen?</translation>
    </message>
    <message>
        <source>Delete %1 files?</source>
        <translation>%1 Dateien löschen?</translation>
    </message>
    <message>
        <source>
and %1 more</source>
        <translation>
und %1 weitere</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Files are being shared…</source>
        <translation>Dateien werden geteilt…</translation>
    </message>
    <message>
        <source>This computer has no password store that is open. The password holds until this window is closed.</source>
        <translation>Dieser Rechner hat keinen offenen Passwortspeicher. Das Passwort gilt, bis dieses Fenster schließt.</translation>
    </message>
    <message>
        <source>The password of %1 was forgotten.</source>
        <translation>Das Passwort von %1 ist vergessen.</translation>
    </message>
    <message>
        <source>%v of %m files</source>
        <translation>%v von %m Dateien</translation>
    </message>
    <message>
        <source>Files are being shared</source>
        <translation>Dateien werden geteilt</translation>
    </message>
    <message>
        <source>What is done stays done; sharing again goes on with the rest.</source>
        <translation>Was fertig ist, bleibt fertig; erneutes Teilen macht mit dem Rest weiter.</translation>
    </message>
    <message>
        <source>Stop and close</source>
        <translation>Anhalten und schließen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SharedRows</name>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SiteList</name>
    <message>
        <source>Other servers that films may come from</source>
        <translation>Andere Server, von denen Filme kommen dürfen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitActions</name>
    <message>
        <source>&amp;Open a film…</source>
        <translation>Film &amp;öffnen…</translation>
    </message>
    <message>
        <source>Open the &amp;race of the film in split taking</source>
        <translation>&amp;Rennen des Films in der Zwischenzeitnahme öffnen</translation>
    </message>
    <message>
        <source>&amp;Save the race</source>
        <translation>Rennen &amp;speichern</translation>
    </message>
    <message>
        <source>Save what is seen as a &amp;picture…</source>
        <translation>Gezeigtes als B&amp;ild speichern…</translation>
    </message>
    <message>
        <source>Save the &amp;water round the marks…</source>
        <translation>&amp;Wasser um die Marken speichern…</translation>
    </message>
    <message>
        <source>Save what is seen of the slit picture</source>
        <translation>Gezeigten Teil des Schlitzbilds speichern</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Bilder (*.png)</translation>
    </message>
    <message>
        <source>Save the water round the marks</source>
        <translation>Wasser um die Marken speichern</translation>
    </message>
    <message>
        <source>Bands (*.kvband)</source>
        <translation>Streifen (*.kvband)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>&amp;Linien</translation>
    </message>
    <message>
        <source>Draw a &amp;new line</source>
        <translation>&amp;Neue Linie zeichnen</translation>
    </message>
    <message>
        <source>Ne&amp;xt line</source>
        <translation>N&amp;ächste Linie</translation>
    </message>
    <message>
        <source>&amp;Previous line</source>
        <translation>&amp;Vorige Linie</translation>
    </message>
    <message>
        <source>&amp;Turn the arrow: boats come from the other side</source>
        <translation>&amp;Pfeil umdrehen: Boote kommen von der anderen Seite</translation>
    </message>
    <message>
        <source>&amp;Remove the line</source>
        <translation>Linie &amp;entfernen</translation>
    </message>
    <message>
        <source>Draw a box round one &amp;boat</source>
        <translation>&amp;Kasten um ein Boot zeichnen</translation>
    </message>
    <message>
        <source>&amp;Look for boats that cross it</source>
        <translation>Boote &amp;suchen, die sie überqueren</translation>
    </message>
    <message>
        <source>&amp;Hair line</source>
        <translation>&amp;Haarlinie</translation>
    </message>
    <message>
        <source>One frame &amp;earlier</source>
        <translation>Ein Bild &amp;früher</translation>
    </message>
    <message>
        <source>One frame &amp;later</source>
        <translation>Ein Bild s&amp;päter</translation>
    </message>
    <message>
        <source>Ten frames earlier</source>
        <translation>Zehn Bilder früher</translation>
    </message>
    <message>
        <source>Ten frames later</source>
        <translation>Zehn Bilder später</translation>
    </message>
    <message>
        <source>A tenth of a frame earlier</source>
        <translation>Ein Zehntel Bild früher</translation>
    </message>
    <message>
        <source>A tenth of a frame later</source>
        <translation>Ein Zehntel Bild später</translation>
    </message>
    <message>
        <source>&amp;Next proposal</source>
        <translation>&amp;Nächster Vorschlag</translation>
    </message>
    <message>
        <source>&amp;Previous proposal</source>
        <translation>&amp;Voriger Vorschlag</translation>
    </message>
    <message>
        <source>To the &amp;beginning</source>
        <translation>Zum &amp;Anfang</translation>
    </message>
    <message>
        <source>&amp;Closer</source>
        <translation>Nä&amp;her</translation>
    </message>
    <message>
        <source>&amp;Farther</source>
        <translation>&amp;Weiter weg</translation>
    </message>
    <message>
        <source>The &amp;whole film</source>
        <translation>Der &amp;ganze Film</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>&amp;Markieren</translation>
    </message>
    <message>
        <source>&amp;Mark the run at the hair line</source>
        <translation>Lauf an der Haarlinie &amp;markieren</translation>
    </message>
    <message>
        <source>Take the mark &amp;away</source>
        <translation>Marke &amp;wegnehmen</translation>
    </message>
    <message>
        <source>&amp;Previous run</source>
        <translation>&amp;Voriger Lauf</translation>
    </message>
    <message>
        <source>&amp;Next run</source>
        <translation>&amp;Nächster Lauf</translation>
    </message>
    <message>
        <source>&amp;Refuse the proposal at the hair line</source>
        <translation>Vorschlag an der Haarlinie a&amp;blehnen</translation>
    </message>
    <message>
        <source>&amp;Forget what was refused on this line</source>
        <translation>Auf dieser Linie Abgelehntes v&amp;ergessen</translation>
    </message>
    <message>
        <source>Accept a&amp;ll proposals</source>
        <translation>A&amp;lle Vorschläge annehmen</translation>
    </message>
    <message>
        <source>Accept a&amp;ll proposals: why not yet?</source>
        <translation>A&amp;lle Vorschläge annehmen: warum noch nicht?</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>Abs&amp;pielen oder anhalten</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>&amp;Langsamer</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>&amp;Schneller</translation>
    </message>
    <message>
        <source>&amp;Normal speed</source>
        <translation>&amp;Normales Tempo</translation>
    </message>
    <message>
        <source>Take &amp;over the lines of another film</source>
        <translation>Linien eines anderen Films ü&amp;bernehmen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitKeeping</name>
    <message>
        <source>The lines in %1 cannot be read: %2. The file is put aside before new lines take its name.</source>
        <translation>Die Linien in %1 sind nicht lesbar: %2. Die Datei wird beiseitegelegt, ehe neue Linien ihren Namen nehmen.</translation>
    </message>
    <message>
        <source>The lines could not be kept in %1: %2</source>
        <translation>Die Linien konnten nicht in %1 bewahrt werden: %2</translation>
    </message>
    <message>
        <source>The lines of this film are still being read. Try again in a moment.</source>
        <translation>Die Linien dieses Films werden noch gelesen. Gleich noch einmal versuchen.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitLoader</name>
    <message>
        <source>The film ends early, after %1 frames.</source>
        <translation>Der Film endet früh, nach %1 Bildern.</translation>
    </message>
    <message>
        <source>%1 frames cannot be decoded: their columns are black.</source>
        <translation>%1 Bilder lassen sich nicht dekodieren: ihre Spalten sind schwarz.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitPanel</name>
    <message>
        <source>Open the &amp;race…</source>
        <translation>&amp;Rennen öffnen…</translation>
    </message>
    <message>
        <source>Times &amp;finer than the frame</source>
        <translation>Zeiten &amp;feiner als das Bild</translation>
    </message>
    <message>
        <source>Draw a box round one boat (B), then look for boats (Ctrl+B): where they may have crossed is listed here.</source>
        <translation>Einen Kasten um ein Boot zeichnen (B), dann Boote suchen (Strg+B): hier steht, wo sie überquert haben könnten.</translation>
    </message>
    <message>
        <source>The time of the split follows the hair line between two frames; the mark itself stays on the frame.</source>
        <translation>Die Zwischenzeit folgt der Haarlinie zwischen zwei Bildern; die Marke selbst bleibt auf dem Bild.</translation>
    </message>
    <message>
        <source>marks</source>
        <translation>Marken</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Linie %1</translation>
    </message>
    <message>
        <source>Marks go into %1</source>
        <translation>Marken gehen in %1</translation>
    </message>
    <message>
        <source>Marks need the race of this film in split taking.</source>
        <translation>Marken brauchen das Rennen dieses Films in der Zwischenzeitnahme.</translation>
    </message>
    <message>
        <source>No run of %1 has the film %2. Add it there as a film of the runs or as a fixed camera.</source>
        <translation>Kein Lauf von %1 hat den Film %2. Dort als Film der Läufe oder als feste Kamera hinzufügen.</translation>
    </message>
    <message>
        <source>The runs that are seen on this film are listed here.</source>
        <translation>Hier stehen die Läufe, die auf diesem Film zu sehen sind.</translation>
    </message>
    <message>
        <source>the bow</source>
        <translation>der Bug</translation>
    </message>
    <message>
        <source>the body</source>
        <translation>der Körper</translation>
    </message>
    <message>
        <source>What is timed at the lines of this film: one point for a whole race. Proposals tell when it crosses.</source>
        <translation>Was an den Linien dieses Films gemessen wird: ein Punkt für ein ganzes Rennen. Vorschläge sagen, wann er die Linie kreuzt.</translation>
    </message>
    <message>
        <source>Ti&amp;med is</source>
        <translation>Ge&amp;messen wird</translation>
    </message>
    <message>
        <source>Look for boats (Ctrl+B): where they may have crossed is listed here.</source>
        <translation>Suchen Sie nach Booten (Strg+B): Wo sie die Linie gekreuzt haben könnten, steht dann hier.</translation>
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
        <translation>Zwischenzeit %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>There is no run to be marked.</source>
        <translation>Kein Lauf ist zu markieren.</translation>
    </message>
    <message>
        <source>This run has no film %1.</source>
        <translation>Dieser Lauf hat keinen Film %1.</translation>
    </message>
    <message>
        <source>%1 in the slit picture</source>
        <translation>%1 im Schlitzbild</translation>
    </message>
    <message>
        <source>This run is not marked here.</source>
        <translation>Dieser Lauf ist hier nicht markiert.</translation>
    </message>
    <message>
        <source>mark removed in the slit picture</source>
        <translation>Marke im Schlitzbild entfernt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitSaving</name>
    <message>
        <source>The water round the marks is in %1.</source>
        <translation>Das Wasser um die Marken ist in %1.</translation>
    </message>
    <message>
        <source>The water round the marks could not be saved: %1</source>
        <translation>Das Wasser um die Marken konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>The picture could not be saved: %1</source>
        <translation>Das Bild konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>There is no slit picture yet.</source>
        <translation>Es gibt noch kein Schlitzbild.</translation>
    </message>
    <message>
        <source>That part is not read yet.</source>
        <translation>Dieser Teil ist noch nicht gelesen.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitStrip</name>
    <message>
        <source>Slit picture</source>
        <translation>Schlitzbild</translation>
    </message>
    <message>
        <source>What stood on the line over the film, over time. A click goes there.</source>
        <translation>Was im Lauf des Films auf der Linie stand. Ein Klick geht dorthin.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitView</name>
    <message>
        <source>Slit picture</source>
        <translation>Schlitzbild</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>frame %1   %2 s</source>
        <translation>Bild %1   %2 s</translation>
    </message>
    <message>
        <source>  (%1%2 of a frame)</source>
        <translation>  (%1%2 eines Bilds)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitWindow</name>
    <message>
        <source>Films (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;All files (*)</source>
        <translation>Filme (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Slit picture</source>
        <translation>Schlitzbild</translation>
    </message>
    <message>
        <source>“%1” is not there.</source>
        <translation>„%1“ ist nicht da.</translation>
    </message>
    <message>
        <source>Open the film of a fixed camera</source>
        <translation>Film einer festen Kamera öffnen</translation>
    </message>
    <message>
        <source>Open the film of a camera on a tripod (Ctrl+O).</source>
        <translation>Den Film einer Kamera auf einem Stativ öffnen (Strg+O).</translation>
    </message>
    <message>
        <source>Reading the film…</source>
        <translation>Film wird gelesen…</translation>
    </message>
    <message>
        <source>Reading the film:</source>
        <translation>Film wird gelesen:</translation>
    </message>
    <message>
        <source>Looking for boats:</source>
        <translation>Boote werden gesucht:</translation>
    </message>
    <message>
        <source>Draw a line first: N.</source>
        <translation>Erst eine Linie zeichnen: N.</translation>
    </message>
    <message>
        <source>There is no proposal before this.</source>
        <translation>Davor gibt es keinen Vorschlag.</translation>
    </message>
    <message>
        <source>There is no proposal behind this.</source>
        <translation>Dahinter gibt es keinen Vorschlag.</translation>
    </message>
    <message>
        <source>Marks need the race of this film: open it in split taking.</source>
        <translation>Marken brauchen das Rennen dieses Films: in der Zwischenzeitnahme öffnen.</translation>
    </message>
    <message>
        <source>Draw a box round one boat first: B.</source>
        <translation>Erst einen Kasten um ein Boot zeichnen: B.</translation>
    </message>
    <message>
        <source>Proposals are accepted one by one</source>
        <translation>Vorschläge werden einzeln angenommen</translation>
    </message>
    <message>
        <source>There is nothing to learn from yet: look for boats, then mark and refuse what was found.</source>
        <translation>Noch ist nichts zu lernen: Boote suchen, dann markieren und ablehnen, was gefunden wurde.</translation>
    </message>
    <message>
        <source>The film is not read so far.</source>
        <translation>Der Film ist noch nicht so weit gelesen.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SplitBar</name>
    <message>
        <source>Split times</source>
        <translation>Zwischenzeiten</translation>
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
        <translation>Nichts kann markiert werden: %1 ist nicht im Ordner der Zwischenzeitdatei. Kameras &gt; Wo sind die Filme jetzt?</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>Keine Marke ist gewählt. Strg und die Pfeile gehen von Marke zu Marke.</translation>
    </message>
    <message>
        <source>Another run came to the front: nothing was marked.</source>
        <translation>Ein anderer Lauf kam nach vorn: nichts wurde markiert.</translation>
    </message>
    <message>
        <source>The times of this run were taken without marks on the video. Marking it anew replaces them.</source>
        <translation>Die Zeiten dieses Laufs wurden ohne Marken im Video genommen. Neues Markieren ersetzt sie.</translation>
    </message>
    <message>
        <source>Mark anew</source>
        <translation>Neu markieren</translation>
    </message>
    <message>
        <source>start mark</source>
        <translation>Startmarke</translation>
    </message>
    <message>
        <source>split %1</source>
        <translation>Zwischenzeit %1</translation>
    </message>
    <message>
        <source>%1:  %2</source>
        <translation>%1:  %2</translation>
    </message>
    <message>
        <source>Split %1 was put in between two marks. Ctrl+Z takes it out again.</source>
        <translation>Zwischenzeit %1 wurde zwischen zwei Marken eingefügt. Strg+Z nimmt sie wieder heraus.</translation>
    </message>
    <message>
        <source>mark moved</source>
        <translation>Marke verschoben</translation>
    </message>
    <message>
        <source>There is no mark yet that could be moved.</source>
        <translation>Noch keine Marke da, die sich verschieben ließe.</translation>
    </message>
    <message>
        <source>mark removed</source>
        <translation>Marke entfernt</translation>
    </message>
    <message>
        <source>Split %1 is expected behind the end of the film.</source>
        <translation>Zwischenzeit %1 wird hinter dem Ende des Films erwartet.</translation>
    </message>
    <message>
        <source>Split %1 is expected here</source>
        <translation>Zwischenzeit %1 wird hier erwartet</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SplitTableModel</name>
    <message>
        <source>Not timed</source>
        <translation>Ohne Zeit</translation>
    </message>
    <message>
        <source>%1, %2: %3 s
place %4 of %5
%6 s behind the best, %7 %</source>
        <translation>%1, %2: %3 s
Platz %4 von %5
%6 s hinter dem Besten, %7&#xa0;%</translation>
    </message>
    <message>
        <source>%1, %2: %3 s
%4
It counts for nothing: no place, no gap, never a best.</source>
        <translation>%1, %2: %3 s
%4
Zählt nicht: kein Platz, kein Rückstand, nie Bestzeit.</translation>
    </message>
    <message>
        <source>The best of every section, put together</source>
        <translation>Das Beste jedes Abschnitts, zusammengesetzt</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>Ideal run</source>
        <translation>Ideallauf</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Gates %1</source>
        <translation>Tore %1</translation>
    </message>
    <message>
        <source>Section %1: the colours and the penalties in brackets are those of the first ten sections only.
Place, gap and percent are there as in any other.</source>
        <translation>Abschnitt %1: Farben und Strafen in Klammern gibt es nur für die ersten zehn Abschnitte.
Platz, Rückstand und Prozent stehen da wie bei jedem anderen.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Kat</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>%1 penalty</source>
        <translation>%1 Strafe</translation>
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
        <translation>Startliste</translation>
    </message>
    <message>
        <source>12,Ann Lee,K1W,10:01:30</source>
        <translation>12,Ann Lee,K1W,10:01:30</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>From a file…</source>
        <translation>Aus einer Datei…</translation>
    </message>
    <message>
        <source>Paste the list: bib, name, category and start time or order, or with titles in its first line. Boats that are in this phase already are corrected.</source>
        <translation>Die Liste einfügen: Startnummer, Name, Kategorie und Startzeit oder Reihenfolge, oder mit Titeln in der ersten Zeile. Boote, die schon in dieser Phase sind, werden berichtigt.</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt);;All files (*)</source>
        <translation>Listen (*.csv *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Starts: %1. Lines that cannot be taken: %2.</source>
        <translation>Starts: %1. Nicht übernehmbare Zeilen: %2.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StatisticsDialog</name>
    <message>
        <source>%1 in races, %2 in all</source>
        <translation>%1 in Rennen, %2 im Ganzen</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>Because it</source>
        <translation>Weil es</translation>
    </message>
    <message>
        <source>Season statistics from split files</source>
        <translation>Saisonstatistik aus Zwischenzeitdateien</translation>
    </message>
    <message>
        <source>Runs found: %1, in %2 files. They replace what stands there now: %3.</source>
        <translation>Gefundene Läufe: %1, in %2 Dateien. Sie ersetzen, was jetzt dort steht: %3.</translation>
    </message>
    <message>
        <source>None of the files has a run of this athlete and season. Nothing is replaced.</source>
        <translation>Keine der Dateien hat einen Lauf dieses Athleten in dieser Saison. Nichts wird ersetzt.</translation>
    </message>
    <message>
        <source>&amp;Replace the statistics</source>
        <translation>Statistik &amp;ersetzen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StepsBox</name>
    <message>
        <source>Hide these steps</source>
        <translation>Diese Schritte ausblenden</translation>
    </message>
    <message>
        <source>Open a race: “Try the sample season”.</source>
        <translation>Ein Rennen öffnen: „Beispielsaison ausprobieren“.</translation>
    </message>
    <message>
        <source>Ask a number of its table why it is what it is: Alt+click, or Shift+F1.</source>
        <translation>Eine Zahl der Tabelle fragen, warum sie so ist: Alt+Klick oder Umschalt+F1.</translation>
    </message>
    <message>
        <source>See where the time was lost: Ctrl+Shift+L.</source>
        <translation>Sehen, wo die Zeit verloren ging: Strg+Umschalt+L.</translation>
    </message>
    <message>
        <source>Play the film of a run, or take a split: Ctrl+T.</source>
        <translation>Den Film eines Laufs abspielen oder eine Zwischenzeit nehmen: Strg+T.</translation>
    </message>
    <message>
        <source>Make an athlete&apos;s report or page: Ctrl+P.</source>
        <translation>Bericht oder Seite eines Athleten machen: Strg+P.</translation>
    </message>
    <message>
        <source>All first steps are done. F1 tells the rest.</source>
        <translation>Alle ersten Schritte sind getan. F1 erzählt den Rest.</translation>
    </message>
    <message>
        <source>First steps, three minutes</source>
        <translation>Erste Schritte, drei Minuten</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Erledigt: %1</translation>
    </message>
    <message>
        <source>To do: %1</source>
        <translation>Zu tun: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StrategyPage</name>
    <message>
        <source>best</source>
        <translation>beste</translation>
    </message>
    <message>
        <source>way of the run</source>
        <translation>Weg des Laufs</translation>
    </message>
    <message>
        <source>way renamed</source>
        <translation>Weg umbenannt</translation>
    </message>
    <message>
        <source>A time is a number of seconds such as 4.35, or 1:04.35</source>
        <translation>Eine Zeit ist eine Zahl von Sekunden wie 4.35, oder 1:04.35</translation>
    </message>
    <message>
        <source>time of a way</source>
        <translation>Zeit eines Wegs</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Gefahren</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Weg</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Rückstand</translation>
    </message>
    <message>
        <source>The tick is at the way that the run took. Names and times are edited by a double click.</source>
        <translation>Das Häkchen steht bei dem Weg, den der Lauf nahm. Namen und Zeiten ändert ein Doppelklick.</translation>
    </message>
    <message>
        <source>Add a way</source>
        <translation>Weg hinzufügen</translation>
    </message>
    <message>
        <source>A section, or a name for the place</source>
        <translation>Ein Abschnitt, oder ein Name für die Stelle</translation>
    </message>
    <message>
        <source>Another way, such as spin or direct</source>
        <translation>Ein anderer Weg, etwa Spin oder direkt</translation>
    </message>
    <message>
        <source>Take its time</source>
        <translation>Seine Zeit nehmen</translation>
    </message>
    <message>
        <source>comment on ways</source>
        <translation>Kommentar zu Wegen</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>Verglichen</translation>
    </message>
    <message>
        <source>Time from</source>
        <translation>Zeit ab</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>Ohne Namen</translation>
    </message>
    <message>
        <source>The run took the fastest way.</source>
        <translation>Der Lauf nahm den schnellsten Weg.</translation>
    </message>
    <message>
        <source>The way of the run cost %1 s.</source>
        <translation>Der Weg des Laufs kostete %1 s.</translation>
    </message>
    <message>
        <source>Choose a section or name a place, and add it.</source>
        <translation>Einen Abschnitt wählen oder eine Stelle benennen und hinzufügen.</translation>
    </message>
    <message>
        <source>Add the ways of paddling this place.</source>
        <translation>Die Wege hinzufügen, diese Stelle zu fahren.</translation>
    </message>
    <message>
        <source>M marks where %1 ends</source>
        <translation>M markiert, wo %1 endet</translation>
    </message>
    <message>
        <source>M marks where %1 begins</source>
        <translation>M markiert, wo %1 beginnt</translation>
    </message>
    <message>
        <source>Choose a section, or write a name for the place.</source>
        <translation>Einen Abschnitt wählen oder einen Namen für die Stelle schreiben.</translation>
    </message>
    <message>
        <source>ways at %1</source>
        <translation>Wege bei %1</translation>
    </message>
    <message>
        <source>way added</source>
        <translation>Weg hinzugefügt</translation>
    </message>
    <message>
        <source>Add a way and select it first.</source>
        <translation>Erst einen Weg hinzufügen und wählen.</translation>
    </message>
    <message>
        <source>%1 was not timed there.</source>
        <translation>%1 wurde dort nicht gestoppt.</translation>
    </message>
    <message>
        <source>%1 is timed: %2 s. Empty its time to mark it anew.</source>
        <translation>%1 ist gestoppt: %2 s. Die Zeit leeren, um neu zu markieren.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>The end of a way comes after its beginning at %1.</source>
        <translation>Das Ende eines Wegs kommt nach seinem Anfang bei %1.</translation>
    </message>
    <message>
        <source>way timed</source>
        <translation>Weg gestoppt</translation>
    </message>
    <message>
        <source>way removed</source>
        <translation>Weg entfernt</translation>
    </message>
    <message>
        <source>ways removed</source>
        <translation>Wege entfernt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StrokePage</name>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Strokes/min</source>
        <translation>Schläge/min</translation>
    </message>
    <message>
        <source>A marks a stroke on the left, D on the right, M with the other hand than before.</source>
        <translation>A markiert einen Schlag links, D rechts, M mit der anderen Hand als zuvor.</translation>
    </message>
    <message>
        <source>Rate now</source>
        <translation>Frequenz jetzt</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>%1 per minute, %2 strokes</source>
        <translation>%1 je Minute, %2 Schläge</translation>
    </message>
    <message>
        <source>left stroke</source>
        <translation>Schlag links</translation>
    </message>
    <message>
        <source>right stroke</source>
        <translation>Schlag rechts</translation>
    </message>
    <message>
        <source>other hand</source>
        <translation>andere Hand</translation>
    </message>
    <message>
        <source>style of the stroke</source>
        <translation>Stil des Schlags</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SummaryPanel</name>
    <message>
        <source>Retired athletes are left out.</source>
        <translation>Zurückgetretene Athleten sind ausgelassen.</translation>
    </message>
    <message>
        <source>Two seasons are needed.</source>
        <translation>Zwei Saisons sind nötig.</translation>
    </message>
    <message>
        <source>The first two seasons have no race with a final position.</source>
        <translation>Die ersten zwei Saisons haben kein Rennen mit Endplatz.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>Over the seasons</source>
        <translation>Über die Saisons</translation>
    </message>
    <message>
        <source>All seasons</source>
        <translation>Alle Saisons</translation>
    </message>
    <message>
        <source>Categorization</source>
        <translation>Einstufung</translation>
    </message>
    <message>
        <source>, born %1</source>
        <translation>, geboren %1</translation>
    </message>
    <message>
        <source>One race has no final position. It counts as a medal here, not in the categorization.</source>
        <translation>Ein Rennen hat keinen Endplatz. Es zählt hier als Medaille, nicht in der Einstufung.</translation>
    </message>
    <message>
        <source>%1 races have no final position. They count as medals here, not in the categorization.</source>
        <translation>%1 Rennen haben keinen Endplatz. Sie zählen hier als Medaillen, nicht in der Einstufung.</translation>
    </message>
    <message>
        <source>Counted: %1</source>
        <translation>Gezählt: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TableDocument</name>
    <message>
        <source>Join the athletes</source>
        <translation>Athleten verbinden</translation>
    </message>
    <message>
        <source>Say who line %1 is</source>
        <translation>Sagen, wer Zeile %1 ist</translation>
    </message>
    <message>
        <source>Line %1 of the list is no row of this table any more.</source>
        <translation>Zeile %1 der Liste ist keine Zeile dieser Tabelle mehr.</translation>
    </message>
    <message>
        <source>Line %1, column %2 of the list says “%3”.</source>
        <translation>Zeile %1, Spalte %2 der Liste sagt „%3“.</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 Zeile</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TablesActions</name>
    <message>
        <source>&amp;Open a list…</source>
        <translation>Liste &amp;öffnen…</translation>
    </message>
    <message>
        <source>Open what was &amp;copied</source>
        <translation>&amp;Kopiertes öffnen</translation>
    </message>
    <message>
        <source>A&amp;nother list of this file…</source>
        <translation>A&amp;ndere Liste dieser Datei…</translation>
    </message>
    <message>
        <source>&amp;Keep with the race…</source>
        <translation>&amp;Zum Rennen legen…</translation>
    </message>
    <message>
        <source>Save the &amp;table as CSV…</source>
        <translation>Tabelle als CS&amp;V speichern…</translation>
    </message>
    <message>
        <source>Save the c&amp;hart…</source>
        <translation>&amp;Diagramm speichern…</translation>
    </message>
    <message>
        <source>The first line holds the &amp;titles</source>
        <translation>Die erste Zeile enthält die &amp;Titel</translation>
    </message>
    <message>
        <source>The first line is a ro&amp;w</source>
        <translation>Die erste Zeile ist eine &amp;Datenzeile</translation>
    </message>
    <message>
        <source>No &amp;groups</source>
        <translation>Keine &amp;Gruppen</translation>
    </message>
    <message>
        <source>&amp;Column</source>
        <translation>&amp;Spalte</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>&amp;Sortieren</translation>
    </message>
    <message>
        <source>Sort &amp;downwards</source>
        <translation>A&amp;bwärts sortieren</translation>
    </message>
    <message>
        <source>&amp;Group by it</source>
        <translation>Danach &amp;gruppieren</translation>
    </message>
    <message>
        <source>&amp;Tint it</source>
        <translation>&amp;Färben</translation>
    </message>
    <message>
        <source>&amp;Chart of it</source>
        <translation>&amp;Diagramm davon</translation>
    </message>
    <message>
        <source>&amp;Keep rows with…</source>
        <translation>Zeilen be&amp;halten mit…</translation>
    </message>
    <message>
        <source>&amp;Leave it out</source>
        <translation>Aus&amp;lassen</translation>
    </message>
    <message>
        <source>&amp;Read it as</source>
        <translation>Lesen &amp;als</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Hinzu&amp;fügen</translation>
    </message>
    <message>
        <source>&amp;Total</source>
        <translation>Gesam&amp;t</translation>
    </message>
    <message>
        <source>&amp;Rank</source>
        <translation>Plat&amp;z</translation>
    </message>
    <message>
        <source>&amp;Gap to the best</source>
        <translation>Rü&amp;ckstand auf den Besten</translation>
    </message>
    <message>
        <source>&amp;Percent behind the best</source>
        <translation>&amp;Prozent hinter dem Besten</translation>
    </message>
    <message>
        <source>Percenti&amp;le</source>
        <translation>Perzent&amp;il</translation>
    </message>
    <message>
        <source>&amp;Another column…</source>
        <translation>Weitere &amp;Spalte…</translation>
    </message>
    <message>
        <source>P&amp;ivot…</source>
        <translation>Pi&amp;vot…</translation>
    </message>
    <message>
        <source>A&amp;thletes</source>
        <translation>A&amp;thleten</translation>
    </message>
    <message>
        <source>&amp;Join a team…</source>
        <translation>Mit einem &amp;Team verbinden…</translation>
    </message>
    <message>
        <source>&amp;Who is meant?…</source>
        <translation>&amp;Wer ist gemeint?…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>What was &amp;refused</source>
        <translation>Was &amp;abgelehnt wurde</translation>
    </message>
    <message>
        <source>&amp;Blue to orange instead of green to red</source>
        <translation>&amp;Blau bis Orange statt Grün bis Rot</translation>
    </message>
    <message>
        <source>The &amp;whole chart</source>
        <translation>Das &amp;ganze Diagramm</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TablesWindow</name>
    <message>
        <source>Tables</source>
        <translation>Tabellen</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Kept with %1</source>
        <translation>Bei %1 abgelegt</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened as a table</source>
        <translation>„%1“ lässt sich nicht als Tabelle öffnen</translation>
    </message>
    <message>
        <source>What was copied is no list</source>
        <translation>Das Kopierte ist keine Liste</translation>
    </message>
    <message>
        <source>Which of its lists?</source>
        <translation>Welche ihrer Listen?</translation>
    </message>
    <message>
        <source>What was copied</source>
        <translation>Kopiertes</translation>
    </message>
    <message>
        <source>This step cannot be taken</source>
        <translation>Dieser Schritt geht nicht</translation>
    </message>
    <message>
        <source>Keep rows</source>
        <translation>Zeilen behalten</translation>
    </message>
    <message>
        <source>Rows whose “%1” contains this are kept; the cell as it stands keeps just its like.</source>
        <translation>Zeilen, deren „%1“ dies enthält, bleiben; die Zelle, wie sie steht, behält nur ihresgleichen.</translation>
    </message>
    <message>
        <source> table</source>
        <translation> Tabelle</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Text mit Semikolons (*.csv)</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>Listen öffnen</translation>
    </message>
    <message>
        <source>Join a team</source>
        <translation>Mit einem Team verbinden</translation>
    </message>
    <message>
        <source>Teams (*.kvteam);;All files (*)</source>
        <translation>Teams (*.kvteam);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The rows cannot be joined</source>
        <translation>Die Zeilen lassen sich nicht verbinden</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>„%1“ lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Nobody of the team</source>
        <translation>Niemand im Team</translation>
    </message>
    <message>
        <source>Who is %1 in line %2?</source>
        <translation>Wer ist %1 in Zeile %2?</translation>
    </message>
    <message>
        <source>Keep with the race</source>
        <translation>Zum Rennen legen</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Zwischenzeitdateien (*.kvx);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Tabelle speichern</translation>
    </message>
    <message>
        <source>The table was not saved</source>
        <translation>Die Tabelle wurde nicht gespeichert</translation>
    </message>
    <message>
        <source>The list that it is made from stays as it is. Choose another name.</source>
        <translation>Die Liste, aus der sie entsteht, bleibt, wie sie ist. Einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>Saving the table…</source>
        <translation>Tabelle wird gespeichert…</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 Zeile</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 Spalte</translation>
    </message>
    <message>
        <source>%1 refused (F7)</source>
        <translation>%1 abgelehnt (F7)</translation>
    </message>
    <message>
        <source>%1 that only you can tell (F6)</source>
        <translation>%1, die nur der Trainer kennt (F6)</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n columns</source>
        <translation>
            <numerusform>%n Spalte</numerusform>
            <numerusform>%n Spalten</numerusform>
        </translation>
    </message>
    <message>
        <source>Drop a list of results here</source>
        <translation>Eine Ergebnisliste hierher ziehen</translation>
    </message>
    <message>
        <source>Text (CSV, tabs, columns of blanks), a spreadsheet (.xlsx, .ods), what was copied from a page, or a race that carries a list. Lists are only read.</source>
        <translation>Text (CSV, Tabs, Spalten aus Leerzeichen), eine Tabellendatei (.xlsx, .ods), aus einer Seite Kopiertes oder ein Rennen, das eine Liste enthält. Listen werden nur gelesen.</translation>
    </message>
    <message>
        <source>Open a list…</source>
        <translation>Liste öffnen…</translation>
    </message>
    <message>
        <source>Open what was copied</source>
        <translation>Kopiertes öffnen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TagMode</name>
    <message>
        <source>Tag</source>
        <translation>Markierung</translation>
    </message>
    <message>
        <source>There is no film to tag.</source>
        <translation>Kein Film zum Markieren da.</translation>
    </message>
    <message>
        <source>This tag is of the split file: split taking moves it.</source>
        <translation>Diese Markierung gehört zur Zwischenzeitdatei: die Zwischenzeitnahme verschiebt sie.</translation>
    </message>
    <message>
        <source>No tag is selected.</source>
        <translation>Keine Markierung gewählt.</translation>
    </message>
    <message>
        <source>There is no film to cut.</source>
        <translation>Kein Film zum Schneiden da.</translation>
    </message>
    <message>
        <source>This frame has the tag “%1” already.</source>
        <translation>Dieses Bild hat die Markierung „%1“ schon.</translation>
    </message>
    <message>
        <source>There is no tag %1 yet: type its name below the film.</source>
        <translation>Markierung %1 gibt es noch nicht: ihren Namen unter dem Film tippen.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TagPage</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Markierung</translation>
    </message>
    <message>
        <source>Play just the tagged part</source>
        <translation>Nur den markierten Teil abspielen</translation>
    </message>
    <message>
        <source>Rename the tag</source>
        <translation>Markierung umbenennen</translation>
    </message>
    <message>
        <source>Gives the selected tag the name above</source>
        <translation>Gibt der gewählten Markierung den Namen oben</translation>
    </message>
    <message>
        <source>M sets the tag at the frame shown.</source>
        <translation>M setzt die Markierung bei dem gezeigten Bild.</translation>
    </message>
    <message>
        <source>Enter sets the tag %1 at the frame shown. Esc gives the keys back to the film.</source>
        <translation>Enter setzt die Markierung %1 bei dem gezeigten Bild. Esc gibt dem Film die Tasten zurück.</translation>
    </message>
    <message>
        <source>Choose or type the name of the tag first.</source>
        <translation>Erst den Namen der Markierung wählen oder tippen.</translation>
    </message>
    <message>
        <source>tag %1</source>
        <translation>Markierung %1</translation>
    </message>
    <message>
        <source>Select a tag and write its new name.</source>
        <translation>Eine Markierung wählen und ihren neuen Namen schreiben.</translation>
    </message>
    <message>
        <source>tag renamed</source>
        <translation>Markierung umbenannt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakeOverDialog</name>
    <message>
        <source>Boat</source>
        <translation>Boot</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>not in the team</source>
        <translation>nicht im Team</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Auslassen</translation>
    </message>
    <message>
        <source>Add %1 to the team</source>
        <translation>%1 ins Team aufnehmen</translation>
    </message>
    <message>
        <source>perhaps %1?</source>
        <translation>vielleicht %1?</translation>
    </message>
    <message>
        <source>%1 is added to the athlete&apos;s boats</source>
        <translation>%1 kommt zu den Booten des Athleten</translation>
    </message>
    <message>
        <source>the same stands there</source>
        <translation>dasselbe steht dort</translation>
    </message>
    <message>
        <source>Take results over</source>
        <translation>Ergebnisse übernehmen</translation>
    </message>
    <message>
        <source>Choose the event</source>
        <translation>Wettkampf wählen</translation>
    </message>
    <message>
        <source>&amp;Event</source>
        <translation>&amp;Wettkampf</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Ort</translation>
    </message>
    <message>
        <source>&amp;Season</source>
        <translation>&amp;Saison</translation>
    </message>
    <message>
        <source>The positions are the &amp;final ones of the race</source>
        <translation>Die Positionen sind die &amp;endgültigen des Rennens</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Kategorie</translation>
    </message>
    <message>
        <source>&amp;Phase</source>
        <translation>&amp;Phase</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Tag</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Tick &amp;all</source>
        <translation>&amp;Alle abhaken</translation>
    </message>
    <message>
        <source>Tick &amp;none</source>
        <translation>&amp;Keine abhaken</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(Zeile %1)</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Final position</source>
        <translation>Endplatz</translation>
    </message>
    <message>
        <source>&amp;Take over 1 line</source>
        <translation>1 Zeile &amp;übernehmen</translation>
    </message>
    <message>
        <source>Choose the event of the race.</source>
        <translation>Den Wettkampf des Rennens wählen.</translation>
    </message>
    <message>
        <source>Nothing in the file belongs to an athlete of the team. A click on “not in the team” chooses one, or adds the name to the team.</source>
        <translation>Nichts in der Datei gehört einem Athleten des Teams. Ein Klick auf „nicht im Team“ wählt einen oder nimmt den Namen ins Team auf.</translation>
    </message>
    <message>
        <source>%1 of %2 lines are ticked; %3 stay out. A click on an athlete chooses another one, or adds the name to the team.</source>
        <translation>%1 von %2 Zeilen sind abgehakt; %3 bleiben draußen. Ein Klick auf einen Athleten wählt einen anderen oder nimmt den Namen ins Team auf.</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Take over %n lines</source>
        <translation>
            <numerusform>%n Zeile &amp;übernehmen</numerusform>
            <numerusform>%n Zeilen &amp;übernehmen</numerusform>
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
        <translation>Test aus einer Aufzeichnung übernehmen</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>&amp;Athlet</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Ort</translation>
    </message>
    <message>
        <source>La&amp;ps</source>
        <translation>&amp;Runden</translation>
    </message>
    <message>
        <source>&amp;Distance between the gates</source>
        <translation>Abstand zwischen &amp;den Toren</translation>
    </message>
    <message>
        <source>T&amp;urn limit</source>
        <translation>Dreh&amp;grenze</translation>
    </message>
    <message>
        <source>&amp;Suggest the marks again</source>
        <translation>Marken erneut &amp;vorschlagen</translation>
    </message>
    <message>
        <source>Take in</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Runde %1</translation>
    </message>
    <message>
        <source>Stretch %1</source>
        <translation>Stück %1</translation>
    </message>
    <message>
        <source>Eight %1</source>
        <translation>Acht %1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>%1 strokes and %2 turns were found.</source>
        <translation>%1 Schläge und %2 Drehungen wurden gefunden.</translation>
    </message>
    <message>
        <source>Ends at
(s)</source>
        <translation>Endet bei
(s)</translation>
    </message>
    <message>
        <source>Seconds from the beginning of the recording</source>
        <translation>Sekunden ab dem Anfang der Aufzeichnung</translation>
    </message>
    <message>
        <source>Time
(s)</source>
        <translation>Zeit
(s)</translation>
    </message>
    <message>
        <source>Length of the section</source>
        <translation>Länge des Abschnitts</translation>
    </message>
    <message>
        <source>No such test was found in the recording.</source>
        <translation>In der Aufzeichnung wurde kein solcher Test gefunden.</translation>
    </message>
    <message>
        <source>Each mark has to be later than the one before.</source>
        <translation>Jede Marke muss später sein als die davor.</translation>
    </message>
    <message>
        <source>Laps found in the recording: %1 of %2. What is taken in has no more of them.</source>
        <translation>In der Aufzeichnung gefundene Runden: %1 von %2. Mehr davon hat das Übernommene nicht.</translation>
    </message>
    <message>
        <source>Eights found in the recording: %1 of %2. What is taken in has no more of them.</source>
        <translation>In der Aufzeichnung gefundene Achten: %1 von %2. Mehr davon hat das Übernommene nicht.</translation>
    </message>
    <message>
        <source>Rotation and marks</source>
        <translation>Rotation und Marken</translation>
    </message>
    <message>
        <source>Time from the beginning of the recording (s)</source>
        <translation>Zeit ab dem Anfang der Aufzeichnung (s)</translation>
    </message>
    <message>
        <source>Rotation (rad/s)</source>
        <translation>Rotation (rad/s)</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation>Marken</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakeRunDialog</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Abschnitte</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>Take in tests from “%1”</source>
        <translation>Tests aus „%1“ übernehmen</translation>
    </message>
    <message>
        <source>Take in</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>Take %1 runs in</source>
        <translation>%1 Läufe übernehmen</translation>
    </message>
    <message>
        <source>Each section of the run becomes a lap.</source>
        <translation>Jeder Abschnitt des Laufs wird eine Runde.</translation>
    </message>
    <message>
        <source>Each section of the run becomes a stretch of the sprint.</source>
        <translation>Jeder Abschnitt des Laufs wird ein Stück des Sprints.</translation>
    </message>
    <message>
        <source>The first five sections become the splits, with their marks in the video; the motion samples of the run tell its rotation.</source>
        <translation>Die ersten fünf Abschnitte werden die Zwischenzeiten, mit ihren Marken im Video; die Messwerte der Bewegung des Laufs sagen seine Rotation.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakingActions</name>
    <message>
        <source>&amp;Open a folder of videos…</source>
        <translation>&amp;Ordner mit Videos öffnen…</translation>
    </message>
    <message>
        <source>&amp;Save data</source>
        <translation>Daten &amp;speichern</translation>
    </message>
    <message>
        <source>Import &amp;video…</source>
        <translation>V&amp;ideo importieren…</translation>
    </message>
    <message>
        <source>Import split &amp;file…</source>
        <translation>Zwischenzeit&amp;datei importieren…</translation>
    </message>
    <message>
        <source>Import official &amp;results…</source>
        <translation>Offizielle Er&amp;gebnisse importieren…</translation>
    </message>
    <message>
        <source>Compare &amp;with official results…</source>
        <translation>Mit offiziellen Ergebnissen &amp;vergleichen…</translation>
    </message>
    <message>
        <source>&amp;Recording of the run…</source>
        <translation>Aufzeichnung des &amp;Laufs…</translation>
    </message>
    <message>
        <source>Run s&amp;heet: preview, PDF, print…</source>
        <translation>Laufblatt: Vorschau, &amp;PDF, Druck…</translation>
    </message>
    <message>
        <source>&amp;Export data…</source>
        <translation>Daten e&amp;xportieren…</translation>
    </message>
    <message>
        <source>Show in the race &amp;analyzer</source>
        <translation>In der Renn&amp;analyse zeigen</translation>
    </message>
    <message>
        <source>Compare fil&amp;ms of the run…</source>
        <translation>Fil&amp;me des Laufs vergleichen…</translation>
    </message>
    <message>
        <source>Kayak &amp;cross of this race</source>
        <translation>Ka&amp;jak-Cross dieses Rennens</translation>
    </message>
    <message>
        <source>Open a folder of videos</source>
        <translation>Ordner mit Videos öffnen</translation>
    </message>
    <message>
        <source>Race and &amp;course…</source>
        <translation>Rennen und Stre&amp;cke…</translation>
    </message>
    <message>
        <source>Names of the &amp;films…</source>
        <translation>Namen der &amp;Filme…</translation>
    </message>
    <message>
        <source>&amp;Previous run</source>
        <translation>&amp;Voriger Lauf</translation>
    </message>
    <message>
        <source>&amp;Next run</source>
        <translation>&amp;Nächster Lauf</translation>
    </message>
    <message>
        <source>&amp;Find an athlete</source>
        <translation>&amp;Athleten suchen</translation>
    </message>
    <message>
        <source>Move the run up</source>
        <translation>Lauf nach oben</translation>
    </message>
    <message>
        <source>Move the run down</source>
        <translation>Lauf nach unten</translation>
    </message>
    <message>
        <source>Remove the run from the list</source>
        <translation>Lauf aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Delete &amp;all data…</source>
        <translation>Alle Daten &amp;löschen…</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>&amp;Markieren</translation>
    </message>
    <message>
        <source>&amp;Mark the split</source>
        <translation>Zwischenzeit &amp;markieren</translation>
    </message>
    <message>
        <source>To where the next split is e&amp;xpected</source>
        <translation>Dorthin, wo die nächste Zwischenzeit er&amp;wartet wird</translation>
    </message>
    <message>
        <source>To the start mark</source>
        <translation>Zur Startmarke</translation>
    </message>
    <message>
        <source>To split &amp;%1</source>
        <translation>Zu Zwischenzeit &amp;%1</translation>
    </message>
    <message>
        <source>&amp;Gates</source>
        <translation>&amp;Tore</translation>
    </message>
    <message>
        <source>&amp;Touch: 2 s</source>
        <translation>&amp;Berührung: 2 s</translation>
    </message>
    <message>
        <source>Missed gate: &amp;50 s</source>
        <translation>Torfehler: &amp;50 s</translation>
    </message>
    <message>
        <source>&amp;Clean</source>
        <translation>&amp;Fehlerfrei</translation>
    </message>
    <message>
        <source>&amp;Next gate</source>
        <translation>&amp;Nächstes Tor</translation>
    </message>
    <message>
        <source>&amp;Previous gate</source>
        <translation>&amp;Voriges Tor</translation>
    </message>
    <message>
        <source>&amp;Cameras</source>
        <translation>&amp;Kameras</translation>
    </message>
    <message>
        <source>&amp;Add another camera of this run…</source>
        <translation>Weitere Kamera dieses Laufs &amp;hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Where are the films now?…</source>
        <translation>&amp;Wo sind die Filme jetzt?…</translation>
    </message>
    <message>
        <source>Last camera one frame back</source>
        <translation>Letzte Kamera ein Bild zurück</translation>
    </message>
    <message>
        <source>Last camera one frame forward</source>
        <translation>Letzte Kamera ein Bild vor</translation>
    </message>
    <message>
        <source>&amp;Larger: without the table, the film alone, all again</source>
        <translation>&amp;Größer: ohne Tabelle, nur der Film, wieder alles</translation>
    </message>
    <message>
        <source>The frames shown are &amp;one moment</source>
        <translation>Die gezeigten Bilder sind &amp;ein Moment</translation>
    </message>
    <message>
        <source>&amp;Draw the course…</source>
        <translation>Strecke &amp;zeichnen…</translation>
    </message>
    <message>
        <source>Sl&amp;it picture of the last camera</source>
        <translation>&amp;Schlitzbild der letzten Kamera</translation>
    </message>
    <message>
        <source>There is no film here that has a slit picture.</source>
        <translation>Hier ist kein Film, der ein Schlitzbild hat.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakingDocument</name>
    <message>
        <source>Save a copy as</source>
        <translation>Kopie speichern unter</translation>
    </message>
    <message>
        <source>Split files (*.kvx)</source>
        <translation>Zwischenzeitdateien (*.kvx)</translation>
    </message>
    <message>
        <source> &quot;Save as…&quot; writes a copy in the present release and opens it here; its films stay where they are.</source>
        <translation> „Speichern unter…“ schreibt eine Kopie in der heutigen Version und öffnet sie hier; ihre Filme bleiben, wo sie sind.</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Speichern unter…</translation>
    </message>
    <message>
        <source>names of the films</source>
        <translation>Namen der Filme</translation>
    </message>
    <message>
        <source>run removed</source>
        <translation>Lauf entfernt</translation>
    </message>
    <message>
        <source>run moved</source>
        <translation>Lauf verschoben</translation>
    </message>
    <message>
        <source>videos imported</source>
        <translation>Videos importiert</translation>
    </message>
    <message>
        <source>split file imported</source>
        <translation>Zwischenzeitdatei importiert</translation>
    </message>
    <message>
        <source>official results imported</source>
        <translation>offizielle Ergebnisse importiert</translation>
    </message>
    <message>
        <source>official result of %1</source>
        <translation>offizielles Ergebnis von %1</translation>
    </message>
    <message>
        <source>1 run</source>
        <translation>1 Lauf</translation>
    </message>
    <message>
        <source>%1 with %2 is emptied. Ctrl+Z brings it back.</source>
        <translation>%1 mit %2 ist geleert. Strg+Z holt es zurück.</translation>
    </message>
    <message>
        <source>reset</source>
        <translation>zurückgesetzt</translation>
    </message>
    <message>
        <source>1 start without a split is not stored in the file. This computer keeps it, and offers it when the file is opened here again.</source>
        <translation>1 Start ohne Zwischenzeit steht nicht in der Datei. Dieser Rechner bewahrt ihn und bietet ihn an, wenn die Datei hier wieder geöffnet wird.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n Lauf</numerusform>
            <numerusform>%n Läufe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n starts without a split are not stored in the file. This computer keeps them, and offers them when the file is opened here again.</source>
        <translation>
            <numerusform>%n Start ohne Zwischenzeit steht nicht in der Datei. Dieser Rechner bewahrt ihn und bietet ihn an, wenn die Datei hier wieder geöffnet wird.</numerusform>
            <numerusform>%n Starts ohne Zwischenzeit stehen nicht in der Datei. Dieser Rechner bewahrt sie und bietet sie an, wenn die Datei hier wieder geöffnet wird.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakingWindow</name>
    <message>
        <source>correction</source>
        <translation>Korrektur</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Kat</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>%1/%2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>split taking</source>
        <translation>Zwischenzeitnahme</translation>
    </message>
    <message>
        <source>Athlete&apos;s name</source>
        <translation>Name des Athleten</translation>
    </message>
    <message>
        <source>Enter finds the athlete&apos;s next run, or collects a training file of all videos with that name</source>
        <translation>Enter findet den nächsten Lauf des Athleten oder sammelt alle Videos mit diesem Namen in einer Trainingsdatei</translation>
    </message>
    <message>
        <source>Race &amp;day, or the table of the race</source>
        <translation>Renn&amp;tag oder Tabelle des Rennens</translation>
    </message>
    <message>
        <source>In which folder do the films appear?</source>
        <translation>In welchem Ordner erscheinen die Filme?</translation>
    </message>
    <message>
        <source>A click on a time shows its frame</source>
        <translation>Ein Klick auf eine Zeit zeigt ihr Bild</translation>
    </message>
    <message>
        <source>penalty at gate %1</source>
        <translation>Strafe an Tor %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TeamAthleteDialog</name>
    <message>
        <source>New athlete</source>
        <translation>Neuer Athlet</translation>
    </message>
    <message>
        <source>Written in capitals in the team</source>
        <translation>Im Team in Großbuchstaben</translation>
    </message>
    <message>
        <source>Such as 1998</source>
        <translation>Etwa 1998</translation>
    </message>
    <message>
        <source>&amp;Surname</source>
        <translation>&amp;Nachname</translation>
    </message>
    <message>
        <source>&amp;Given name</source>
        <translation>&amp;Vorname</translation>
    </message>
    <message>
        <source>&amp;Born in</source>
        <translation>&amp;Geboren</translation>
    </message>
    <message>
        <source>Boats</source>
        <translation>Boote</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TeamDocument</name>
    <message>
        <source>It is no team file, or a damaged one: %1</source>
        <translation>Das ist keine Teamdatei, oder eine beschädigte: %1</translation>
    </message>
    <message>
        <source>averages</source>
        <translation>Mittelwerte</translation>
    </message>
    <message>
        <source>1 athlete</source>
        <translation>1 Athlet</translation>
    </message>
    <message numerus="yes">
        <source>%n athletes</source>
        <translation>
            <numerusform>%n Athlet</numerusform>
            <numerusform>%n Athleten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TeamWindow</name>
    <message>
        <source>Take results over</source>
        <translation>Ergebnisse übernehmen</translation>
    </message>
    <message>
        <source>Split files and result lists (*.kvx *.csv *.txt);;All files (*)</source>
        <translation>Zwischenzeitdateien und Ergebnislisten (*.kvx *.csv *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>“%1” cannot be taken over</source>
        <translation>„%1“ lässt sich nicht übernehmen</translation>
    </message>
    <message>
        <source>There are no results in it.</source>
        <translation>Darin sind keine Ergebnisse.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>There are no runs in it.</source>
        <translation>Darin sind keine Läufe.</translation>
    </message>
    <message>
        <source>results taken over</source>
        <translation>Ergebnisse übernommen</translation>
    </message>
    <message>
        <source>Team</source>
        <translation>Team</translation>
    </message>
    <message>
        <source>new athlete</source>
        <translation>neuer Athlet</translation>
    </message>
    <message>
        <source>removal of an athlete</source>
        <translation>Entfernen eines Athleten</translation>
    </message>
    <message>
        <source>new category</source>
        <translation>neue Kategorie</translation>
    </message>
    <message>
        <source>removal of a category</source>
        <translation>Entfernen einer Kategorie</translation>
    </message>
    <message>
        <source>Choose an athlete and a category first.</source>
        <translation>Erst einen Athleten und eine Kategorie wählen.</translation>
    </message>
    <message>
        <source>Add a season first.</source>
        <translation>Erst eine Saison hinzufügen.</translation>
    </message>
    <message>
        <source>Choose a category first.</source>
        <translation>Erst eine Kategorie wählen.</translation>
    </message>
    <message>
        <source>No athlete comes into question in %1: two seasons are needed, with a final position in one of the first two.</source>
        <translation>In %1 kommt kein Athlet in Frage: nötig sind zwei Saisons, mit einem Endplatz in einer der ersten zwei.</translation>
    </message>
    <message>
        <source>Categorization %1</source>
        <translation>Einstufung %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestListPanel</name>
    <message>
        <source>All tests</source>
        <translation>Alle Tests</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>Ticked tests are laid over the chosen one (Space)</source>
        <translation>Abgehakte Tests liegen über dem gewählten (Leertaste)</translation>
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
        <translation>Ort</translation>
    </message>
    <message>
        <source>All athletes</source>
        <translation>Alle Athleten</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestSessionWindow</name>
    <message>
        <source>Time (s)</source>
        <translation>Zeit (s)</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>There are no values in this attempt.</source>
        <translation>In diesem Versuch gibt es keine Werte.</translation>
    </message>
    <message>
        <source>Heart rate (1/min)</source>
        <translation>Herzfrequenz (1/min)</translation>
    </message>
    <message>
        <source>Test session</source>
        <translation>Testeinheit</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>&amp;Export the table…</source>
        <translation>Tabelle e&amp;xportieren…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>„%1“ lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Attempt %1
%2 stroke values, %3 of the sprint</source>
        <translation>Versuch %1
%2 Schlagwerte, %3 vom Sprint</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Alle Arten</translation>
    </message>
    <message>
        <source>Sprint data</source>
        <translation>Sprintdaten</translation>
    </message>
    <message>
        <source>Export the table</source>
        <translation>Tabelle exportieren</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Text mit Semikolons (*.csv)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestsDocument</name>
    <message>
        <source>It is no file of tests, or a damaged one: %1</source>
        <translation>Das ist keine Testdatei, oder eine beschädigte: %1</translation>
    </message>
    <message>
        <source>removal of tests</source>
        <translation>Entfernen von Tests</translation>
    </message>
    <message>
        <source>1 test</source>
        <translation>1 Test</translation>
    </message>
    <message numerus="yes">
        <source>%n tests</source>
        <translation>
            <numerusform>%n Test</numerusform>
            <numerusform>%n Tests</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestsWindow</name>
    <message>
        <source>Take tests in from a split file</source>
        <translation>Tests aus einer Zwischenzeitdatei übernehmen</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Zwischenzeitdateien (*.kvx);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Take a test in from a recording</source>
        <translation>Test aus einer Aufzeichnung übernehmen</translation>
    </message>
    <message>
        <source>Recordings (*.kvb);;All files (*)</source>
        <translation>Aufzeichnungen (*.kvb);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>“%1” cannot be taken in</source>
        <translation>„%1“ lässt sich nicht übernehmen</translation>
    </message>
    <message>
        <source>There are no runs in it.</source>
        <translation>Darin sind keine Läufe.</translation>
    </message>
    <message>
        <source>tests taken in</source>
        <translation>Tests übernommen</translation>
    </message>
    <message>
        <source>test taken in</source>
        <translation>Test übernommen</translation>
    </message>
    <message>
        <source>It is no raw recording, or a damaged one: %1</source>
        <translation>Das ist keine Rohaufzeichnung, oder eine beschädigte: %1</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Diagramme</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>One ticked test is of another kind and left out here.</source>
        <translation>Ein abgehakter Test ist von anderer Art und hier ausgelassen.</translation>
    </message>
    <message>
        <source>%1 ticked tests are of another kind and left out here.</source>
        <translation>%1 abgehakte Tests sind von anderer Art und hier ausgelassen.</translation>
    </message>
    <message>
        <source>new eight test</source>
        <translation>neuer Achtertest</translation>
    </message>
    <message>
        <source>new sprint</source>
        <translation>neuer Sprint</translation>
    </message>
    <message>
        <source>new lap test</source>
        <translation>neuer Rundentest</translation>
    </message>
    <message>
        <source>copy of a test</source>
        <translation>Kopie eines Tests</translation>
    </message>
    <message>
        <source>Export the table of tests</source>
        <translation>Tabelle der Tests exportieren</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv);;All files (*)</source>
        <translation>Text mit Semikolons (*.csv);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TickStrip</name>
    <message>
        <source>Other marks</source>
        <translation>Andere Marken</translation>
    </message>
    <message>
        <source>A click shows the frame of a mark</source>
        <translation>Ein Klick zeigt das Bild einer Marke</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TimeLine</name>
    <message>
        <source>Time line</source>
        <translation>Zeitachse</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TimerFace</name>
    <message>
        <source>%1 – paused</source>
        <translation>%1 – Pause</translation>
    </message>
    <message>
        <source>Set %1 of %2   ·   Repetition %3 of %4</source>
        <translation>Satz %1 von %2   ·   Wiederholung %3 von %4</translation>
    </message>
    <message>
        <source>Well done.</source>
        <translation>Gut gemacht.</translation>
    </message>
    <message>
        <source>Next: the end</source>
        <translation>Danach: Ende</translation>
    </message>
    <message>
        <source>Next: %1 %2</source>
        <translation>Danach: %1 %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ToolWindow</name>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>%1-Dateien (*.%2)</translation>
    </message>
    <message>
        <source>%1, saving…</source>
        <translation>%1, wird gespeichert…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Öffnen…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Open it again</source>
        <translation>Erneut öffnen</translation>
    </message>
    <message>
        <source>Keep what is here</source>
        <translation>Behalten, was hier ist</translation>
    </message>
    <message>
        <source>⚠ Another program changed “%1”. What is shown here is from before.</source>
        <translation>⚠ Ein anderes Programm hat „%1“ geändert. Gezeigt wird der Stand davor.</translation>
    </message>
    <message>
        <source>⚠ “%1” is no longer in its folder. Saving puts it there again.</source>
        <translation>⚠ „%1“ ist nicht mehr in seinem Ordner. Speichern legt es dort wieder an.</translation>
    </message>
    <message>
        <source>Opening “%1” again gives up what was not saved here.</source>
        <translation>„%1“ erneut zu öffnen verwirft, was hier nicht gespeichert wurde.</translation>
    </message>
    <message>
        <source>Bring &amp;back earlier work…</source>
        <translation>&amp;Frühere Arbeit zurückholen…</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>S&amp;tartfenster</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Saving… The window closes when the file is written.</source>
        <translation>Wird gespeichert… Das Fenster schließt, wenn die Datei geschrieben ist.</translation>
    </message>
    <message>
        <source>Saving… What is to be opened follows when the file is written.</source>
        <translation>Wird gespeichert… Was zu öffnen ist, folgt, wenn die Datei geschrieben ist.</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TotalsChart</name>
    <message>
        <source>No run has a time for the whole course yet.</source>
        <translation>Noch kein Lauf hat eine Zeit für die ganze Strecke.</translation>
    </message>
    <message>
        <source>Time and penalties of %1</source>
        <translation>Zeit und Strafen von %1</translation>
    </message>
    <message>
        <source>Seconds on the course, without penalties</source>
        <translation>Sekunden auf der Strecke, ohne Strafen</translation>
    </message>
    <message>
        <source> · %1 without a total</source>
        <translation> · %1 ohne Gesamtzeit</translation>
    </message>
    <message>
        <source>Penalty seconds</source>
        <translation>Strafsekunden</translation>
    </message>
    <message>
        <source>← slower      faster →</source>
        <translation>← langsamer      schneller →</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Strafen</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Lauf</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Gewählt</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Gesamtzeiten</translation>
    </message>
    <message>
        <source>Total time against penalties</source>
        <translation>Gesamtzeit gegen Strafen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackDocument</name>
    <message>
        <source>It is no path on a film, or a damaged one: %1</source>
        <translation>Das ist keine Bahn auf einem Film, oder eine beschädigte: %1</translation>
    </message>
    <message>
        <source>a path of 1 frame</source>
        <translation>eine Bahn von 1 Bild</translation>
    </message>
    <message>
        <source>a path of %1 frames</source>
        <translation>eine Bahn von %1 Bildern</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackLine</name>
    <message>
        <source>Coloured where the path is known; diamonds are the boxes that were drawn. Click to go there.</source>
        <translation>Farbig, wo die Bahn bekannt ist; Rauten sind die gezeichneten Kästen. Klicken, um dorthin zu gehen.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackOffsetDialog</name>
    <message>
        <source>Track of a watch</source>
        <translation>Track einer Uhr</translation>
    </message>
    <message>
        <source>The clock of the watch is perhaps wrong. Say when the track began in truth.</source>
        <translation>Die Uhr geht vielleicht falsch. Sagen, wann der Track in Wahrheit begann.</translation>
    </message>
    <message>
        <source>With the &amp;recording</source>
        <translation>&amp;Mit der Aufzeichnung</translation>
    </message>
    <message>
        <source>Both were started at the same moment</source>
        <translation>Beide wurden im selben Moment gestartet</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Track, by its clock</source>
        <translation>Track, nach seiner Uhr</translation>
    </message>
    <message>
        <source>The track &amp;began</source>
        <translation>&amp;Beginn des Tracks</translation>
    </message>
    <message>
        <source>Join it</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>%1 of %2 positions and %3 of %4 heart rates lie in the recording, or a minute around it.</source>
        <translation>%1 von %2 Positionen und %3 von %4 Herzfrequenzen liegen in der Aufzeichnung oder eine Minute um sie herum.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackOverlay</name>
    <message>
        <source>Box round what is followed</source>
        <translation>Kasten um das Verfolgte</translation>
    </message>
    <message>
        <source>Draw a box round boat, head or gate. By keys: B proposes a box, arrows move it, with Shift they size it, Enter takes it.</source>
        <translation>Einen Kasten um Boot, Kopf oder Tor zeichnen. Mit Tasten: B schlägt einen Kasten vor, Pfeile verschieben ihn, mit Umschalt ändern sie die Größe, Enter nimmt ihn.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackingWindow</name>
    <message>
        <source>Tracking</source>
        <translation>Verfolgung</translation>
    </message>
    <message>
        <source>Paths on films (*.track.json)</source>
        <translation>Bahnen auf Filmen (*.track.json)</translation>
    </message>
    <message>
        <source>Open a film, then draw a box round what is to be followed.</source>
        <translation>Einen Film öffnen, dann einen Kasten um das zeichnen, was verfolgt werden soll.</translation>
    </message>
    <message>
        <source>Following: %p %</source>
        <translation>Verfolgen: %p %</translation>
    </message>
    <message>
        <source>&amp;Open a film or a path…</source>
        <translation>Film oder Bahn &amp;öffnen…</translation>
    </message>
    <message>
        <source>&amp;Export the path as CSV…</source>
        <translation>Bahn als CSV e&amp;xportieren…</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>Abs&amp;pielen oder anhalten</translation>
    </message>
    <message>
        <source>One frame ba&amp;ck</source>
        <translation>Ein Bild zu&amp;rück</translation>
    </message>
    <message>
        <source>One frame &amp;on</source>
        <translation>Ein Bild &amp;vor</translation>
    </message>
    <message>
        <source>P&amp;ath</source>
        <translation>B&amp;ahn</translation>
    </message>
    <message>
        <source>Propose a &amp;box</source>
        <translation>&amp;Kasten vorschlagen</translation>
    </message>
    <message>
        <source>&amp;Take the box of this frame away</source>
        <translation>Kasten dieses Bilds &amp;wegnehmen</translation>
    </message>
    <message>
        <source>To the next &amp;gap</source>
        <translation>Zur nächsten &amp;Lücke</translation>
    </message>
    <message>
        <source>&amp;Stop following</source>
        <translation>Verfolgen an&amp;halten</translation>
    </message>
    <message>
        <source>Click &amp;known points</source>
        <translation>Bekannte &amp;Punkte anklicken</translation>
    </message>
    <message>
        <source>&amp;Forget the known points</source>
        <translation>Bekannte Punkte verge&amp;ssen</translation>
    </message>
    <message>
        <source>It lies on the &amp;water</source>
        <translation>Es lieg&amp;t auf dem Wasser</translation>
    </message>
    <message>
        <source>whether it lies on the water</source>
        <translation>ob es auf dem Wasser liegt</translation>
    </message>
    <message>
        <source>Open a film or a path on one</source>
        <translation>Film oder Bahn auf einem öffnen</translation>
    </message>
    <message>
        <source>Films and paths (*.mp4 *.mov *.m4v *.mkv *.avi *.mts *.track.json);;All files (*)</source>
        <translation>Filme und Bahnen (*.mp4 *.mov *.m4v *.mkv *.avi *.mts *.track.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The film %1 is not there.</source>
        <translation>Der Film %1 ist nicht da.</translation>
    </message>
    <message>
        <source>%1 s · frame %2</source>
        <translation>%1 s · Bild %2</translation>
    </message>
    <message>
        <source>The film is still being read. Draw the box again in a moment.</source>
        <translation>Der Film wird noch gelesen. Den Kasten gleich noch einmal zeichnen.</translation>
    </message>
    <message>
        <source>Stop following first, with Escape.</source>
        <translation>Erst das Verfolgen anhalten, mit Esc.</translation>
    </message>
    <message>
        <source>box</source>
        <translation>Kasten</translation>
    </message>
    <message>
        <source>Following. Escape stops it.</source>
        <translation>Wird verfolgt. Esc hält es an.</translation>
    </message>
    <message>
        <source>The boxes were changed meanwhile, so that the path was not taken over. Draw the box again.</source>
        <translation>Die Kästen wurden inzwischen geändert; die Bahn wurde nicht übernommen. Den Kasten noch einmal zeichnen.</translation>
    </message>
    <message>
        <source>path</source>
        <translation>Bahn</translation>
    </message>
    <message>
        <source>Lost at %1 s. Draw a new box here, or where it is seen again; what lies between stays a gap until both sides meet.</source>
        <translation>Verloren bei %1 s. Hier oder wo es wieder zu sehen ist einen neuen Kasten zeichnen; dazwischen bleibt eine Lücke, bis beide Seiten sich treffen.</translation>
    </message>
    <message>
        <source>Followed without a gap.</source>
        <translation>Ohne Lücke verfolgt.</translation>
    </message>
    <message>
        <source>Followed, with one gap. G goes there.</source>
        <translation>Verfolgt, mit einer Lücke. G geht dorthin.</translation>
    </message>
    <message>
        <source>Followed, with %1 gaps. G goes to the next one.</source>
        <translation>Verfolgt, mit %1 Lücken. G geht zur nächsten.</translation>
    </message>
    <message>
        <source>No box was drawn in this frame.</source>
        <translation>In diesem Bild wurde kein Kasten gezeichnet.</translation>
    </message>
    <message>
        <source>removal of a box</source>
        <translation>Entfernen eines Kastens</translation>
    </message>
    <message>
        <source>The path has no gap.</source>
        <translation>Die Bahn hat keine Lücke.</translation>
    </message>
    <message>
        <source>Click the foot of a gate&apos;s poles where they meet the water, four for metres or two for a scale only, then type where they stand. P ends it.</source>
        <translation>Den Fuß der Torstäbe anklicken, wo sie das Wasser treffen, vier für Meter oder zwei nur für einen Maßstab, dann tippen, wo sie stehen. P beendet es.</translation>
    </message>
    <message>
        <source>Four known points are the most. Take one away first.</source>
        <translation>Mehr als vier bekannte Punkte gehen nicht. Erst einen wegnehmen.</translation>
    </message>
    <message>
        <source>The known points belong into one frame; this is where the first one was clicked.</source>
        <translation>Die bekannten Punkte gehören in ein Bild; dies ist das, in dem der erste angeklickt wurde.</translation>
    </message>
    <message>
        <source>known point</source>
        <translation>bekannter Punkt</translation>
    </message>
    <message>
        <source>removal of the known points</source>
        <translation>Entfernen der bekannten Punkte</translation>
    </message>
    <message>
        <source>Export the path</source>
        <translation>Bahn exportieren</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tabellen (*.csv)</translation>
    </message>
    <message>
        <source>%1 is there.</source>
        <translation>%1 ist da.</translation>
    </message>
    <message>
        <source>The path could not be exported</source>
        <translation>Die Bahn konnte nicht exportiert werden</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TradeOffPanel</name>
    <message>
        <source>In percent of the median of its group</source>
        <translation>In Prozent des Medians der Gruppe</translation>
    </message>
    <message>
        <source>By paddling time</source>
        <translation>Nach Fahrzeit</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>Touches a run</source>
        <translation>Berührungen je Lauf</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#xa0;%</translation>
    </message>
    <message>
        <source>Exact interval of the touches</source>
        <translation>Exaktes Intervall der Berührungen</translation>
    </message>
    <message>
        <source>Missed a run</source>
        <translation>Verfehlt je Lauf</translation>
    </message>
    <message>
        <source>Paddling %</source>
        <translation>Fahrzeit %</translation>
    </message>
    <message>
        <source>Total %</source>
        <translation>Gesamt %</translation>
    </message>
    <message>
        <source>No group has enough whole runs to be divided.</source>
        <translation>Keine Gruppe hat genug ganze Läufe zum Teilen.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrialList</name>
    <message>
        <source>New athlete</source>
        <translation>Neuer Athlet</translation>
    </message>
    <message>
        <source>Enter adds a time trial of that athlete; Esc gives the keys back to the film</source>
        <translation>Enter fügt ein Zeitfahren dieses Athleten hinzu; Esc gibt dem Film die Tasten zurück</translation>
    </message>
    <message>
        <source>A time trial needs the name of its athlete.</source>
        <translation>Ein Zeitfahren braucht den Namen seines Athleten.</translation>
    </message>
    <message>
        <source>Pos</source>
        <translation>Pl</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlet</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>⚠ missing</source>
        <translation>⚠ fehlt</translation>
    </message>
    <message>
        <source>%1 is not in the folder</source>
        <translation>%1 ist nicht im Ordner</translation>
    </message>
    <message>
        <source>Add an athlete</source>
        <translation>Athleten hinzufügen</translation>
    </message>
    <message>
        <source>Re&amp;name the athlete</source>
        <translation>Athleten um&amp;benennen</translation>
    </message>
    <message>
        <source>&amp;Film…</source>
        <translation>&amp;Film…</translation>
    </message>
    <message>
        <source>R&amp;emove the trial</source>
        <translation>Zeitfahren &amp;entfernen</translation>
    </message>
    <message>
        <source>Film…</source>
        <translation>Film…</translation>
    </message>
    <message>
        <source>Chooses the film of the selected trial</source>
        <translation>Wählt den Film des gewählten Zeitfahrens</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Removes the selected trial</source>
        <translation>Entfernt das gewählte Zeitfahren</translation>
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
        <translation>Tor %1 %2</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Tor %1</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Zwischenzeit</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>From the start</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>%1 boats</source>
        <translation>%1 Boote</translation>
    </message>
    <message>
        <source>How many boats go on to the heats</source>
        <translation>Wie viele Boote in die Heats kommen</translation>
    </message>
    <message>
        <source>Make heats from the trials</source>
        <translation>Heats aus den Zeitfahren machen</translation>
    </message>
    <message>
        <source>Heats of four, the fastest against the slowest. Heats that exist stay.</source>
        <translation>Heats zu viert, die Schnellsten gegen die Langsamsten. Vorhandene Heats bleiben.</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Zwischenzeiten</translation>
    </message>
    <message>
        <source>Upstream gates</source>
        <translation>Aufwärtstore</translation>
    </message>
    <message>
        <source>A click shows the frame of a split</source>
        <translation>Ein Klick zeigt das Bild einer Zwischenzeit</translation>
    </message>
    <message>
        <source>gate %1</source>
        <translation>Tor %1</translation>
    </message>
    <message>
        <source>roll</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>time trial of %1</source>
        <translation>Zeitfahren von %1</translation>
    </message>
    <message>
        <source>films imported</source>
        <translation>Filme importiert</translation>
    </message>
    <message>
        <source>film of the trial</source>
        <translation>Film des Zeitfahrens</translation>
    </message>
    <message>
        <source>athlete renamed</source>
        <translation>Athlet umbenannt</translation>
    </message>
    <message>
        <source>time trial removed</source>
        <translation>Zeitfahren entfernt</translation>
    </message>
    <message>
        <source>No trial has a time yet: heats are made from the fastest ones.</source>
        <translation>Noch hat kein Zeitfahren eine Zeit: Heats entstehen aus den schnellsten.</translation>
    </message>
    <message>
        <source>There are heats already. They stay as they are, and those from the trials come behind them.</source>
        <translation>Es gibt schon Heats. Sie bleiben, wie sie sind; die aus den Zeitfahren kommen dahinter.</translation>
    </message>
    <message>
        <source>Make heats</source>
        <translation>Heats machen</translation>
    </message>
    <message>
        <source>heats from the trials</source>
        <translation>Heats aus den Zeitfahren</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Updates</name>
    <message>
        <source>Newer versions</source>
        <translation>Neuere Versionen</translation>
    </message>
    <message>
        <source>May Kavela look once a day whether there is a newer version? It tells the server the version that you have, and nothing else. Without a yes it never looks by itself. You can change this in the settings.</source>
        <translation>Darf Kavela einmal am Tag nachsehen, ob es eine neuere Version gibt? Der Server erfährt die installierte Version und sonst nichts. Ohne ein Ja sieht es nie von selbst nach. In den Einstellungen lässt sich das ändern.</translation>
    </message>
    <message>
        <source>Yes, look once a day</source>
        <translation>Ja, einmal am Tag nachsehen</translation>
    </message>
    <message>
        <source>Looking for a newer version…</source>
        <translation>Nach einer neueren Version wird gesehen…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::UpstreamPage</name>
    <message>
        <source>Gate</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Mark the pole line too</source>
        <translation>Auch die Torlinie markieren</translation>
    </message>
    <message>
        <source>Turn to the</source>
        <translation>Drehung nach</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Gate %1 is marked. N goes to the next gate, Shift+M moves the selected mark.</source>
        <translation>Tor %1 ist markiert. N geht zum nächsten Tor, Umschalt+M verschiebt die gewählte Marke.</translation>
    </message>
    <message>
        <source>Gate %1 is no upstream gate. N goes to the next one.</source>
        <translation>Tor %1 ist kein Aufwärtstor. N geht zum nächsten.</translation>
    </message>
    <message>
        <source>%1 of gate %2</source>
        <translation>%1 von Tor %2</translation>
    </message>
    <message>
        <source>Gate %1 %2</source>
        <translation>Tor %1 %2</translation>
    </message>
    <message>
        <source>gate %1 removed</source>
        <translation>Tor %1 entfernt</translation>
    </message>
    <message>
        <source>The marks of gate %1 are removed. Ctrl+Z brings them back.</source>
        <translation>Die Marken von Tor %1 sind entfernt. Strg+Z holt sie zurück.</translation>
    </message>
    <message>
        <source>Gate %1 is no upstream gate</source>
        <translation>Tor %1 ist kein Aufwärtstor</translation>
    </message>
    <message>
        <source>Gate %1: M marks the %2</source>
        <translation>Tor %1: M markiert: %2</translation>
    </message>
    <message>
        <source>Gate %1 is marked</source>
        <translation>Tor %1 ist markiert</translation>
    </message>
    <message>
        <source>%1 s in the gate</source>
        <translation>%1 s im Tor</translation>
    </message>
    <message>
        <source>gate %1</source>
        <translation>Tor %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ValuesPanel</name>
    <message>
        <source>No test yet.

Add one by hand with Ctrl+N, or drop split files and recordings here.</source>
        <translation>Noch kein Test.

Von Hand mit Strg+N einen hinzufügen oder Zwischenzeitdateien und Aufzeichnungen hierher ziehen.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::VariabilityDialog</name>
    <message>
        <source>There is no measurement in this list.</source>
        <translation>In dieser Liste ist keine Messung.</translation>
    </message>
    <message>
        <source>All %1 measurements of this list are there already.</source>
        <translation>Alle %1 Messungen dieser Liste sind schon da.</translation>
    </message>
    <message>
        <source>1 measurement is new.</source>
        <translation>1 Messung ist neu.</translation>
    </message>
    <message>
        <source>1 other is there already.</source>
        <translation>1 andere ist schon da.</translation>
    </message>
    <message>
        <source>Import variability</source>
        <translation>Variabilität importieren</translation>
    </message>
    <message>
        <source>1 line is left out:</source>
        <translation>1 Zeile ist ausgelassen:</translation>
    </message>
    <message>
        <source>Add 1 measurement</source>
        <translation>1 Messung hinzufügen</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message numerus="yes">
        <source>%n measurements are new.</source>
        <translation>
            <numerusform>%n Messung ist neu.</numerusform>
            <numerusform>%n Messungen sind neu.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n others are there already.</source>
        <translation>
            <numerusform>%n andere ist schon da.</numerusform>
            <numerusform>%n andere sind schon da.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines are left out:</source>
        <translation>
            <numerusform>%n Zeile ist ausgelassen:</numerusform>
            <numerusform>%n Zeilen sind ausgelassen:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n measurements</source>
        <translation>
            <numerusform>%n Messung hinzufügen</numerusform>
            <numerusform>%n Messungen hinzufügen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WaterfallChart</name>
    <message>
        <source>One of the two has no total, so there is no sum. The sections that both have stand in the table and in the other charts.</source>
        <translation>Einer der beiden hat keine Gesamtzeit, daher keine Summe. Die gemeinsamen Abschnitte stehen in der Tabelle und den anderen Diagrammen.</translation>
    </message>
    <message>
        <source>Sections, penalties and timing from total to total</source>
        <translation>Abschnitte, Strafen und Zeitnahme von Gesamtzeit zu Gesamtzeit</translation>
    </message>
    <message>
        <source>penalties</source>
        <translation>Strafen</translation>
    </message>
    <message>
        <source>timing</source>
        <translation>Zeitnahme</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Gezeigt</translation>
    </message>
    <message>
        <source>Up to here</source>
        <translation>Bis hier</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WeekForm</name>
    <message>
        <source>Macrocycle</source>
        <translation>Makrozyklus</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mesozyklus</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>On-water test</source>
        <translation>Wassertest</translation>
    </message>
    <message>
        <source>done on</source>
        <translation>gemacht am</translation>
    </message>
    <message>
        <source>Endurance test</source>
        <translation>Ausdauertest</translation>
    </message>
    <message>
        <source>Blood test</source>
        <translation>Bluttest</translation>
    </message>
    <message>
        <source>Injured part</source>
        <translation>Verletzter Teil</translation>
    </message>
    <message>
        <source>Health notes</source>
        <translation>Notizen zur Gesundheit</translation>
    </message>
    <message>
        <source>“%1” are no dates. Write them as 2026-03-10, with commas between.</source>
        <translation>„%1“ sind keine Datumsangaben. Wie 2026-03-10 schreiben, mit Kommas dazwischen.</translation>
    </message>
    <message>
        <source>dates of tests</source>
        <translation>Daten der Tests</translation>
    </message>
    <message>
        <source>load</source>
        <translation>Belastung</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Belastung</translation>
    </message>
    <message>
        <source>health</source>
        <translation>Gesundheit</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Gesundheit</translation>
    </message>
    <message>
        <source>One per line</source>
        <translation>Eines je Zeile</translation>
    </message>
    <message>
        <source>goals of the week</source>
        <translation>Ziele der Woche</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Ziele</translation>
    </message>
    <message>
        <source>Week %1 · from %2</source>
        <translation>Woche %1 · ab %2</translation>
    </message>
    <message>
        <source>Week %1</source>
        <translation>Woche %1</translation>
    </message>
    <message>
        <source>%1 weeks are chosen: load, cycles and place go into all of them.</source>
        <translation>%1 Wochen sind gewählt: Belastung, Zyklen und Ort gehen in alle.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WeekGrid</name>
    <message>
        <source>Morning</source>
        <translation>Morgen</translation>
    </message>
    <message>
        <source>Afternoon</source>
        <translation>Nachmittag</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Abend</translation>
    </message>
    <message>
        <source>Any time</source>
        <translation>Jederzeit</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>On no day of this week</source>
        <translation>Auf keinem Tag dieser Woche</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Einheit</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyKeys</name>
    <message>
        <source>Go to a number first, or hold Alt and click on it.</source>
        <translation>Erst zu einer Zahl gehen, oder Alt halten und darauf klicken.</translation>
    </message>
    <message>
        <source>Nothing was computed here.</source>
        <translation>Hier wurde nichts berechnet.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyLabel</name>
    <message>
        <source>Alt+click or Shift+F1: why</source>
        <translation>Alt+Klick oder Umschalt+F1: warum</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyPanel</name>
    <message>
        <source>counted</source>
        <translation>gezählt</translation>
    </message>
    <message>
        <source>dropped: worst</source>
        <translation>gestrichen: schlechtestes</translation>
    </message>
    <message>
        <source>dropped: bonus</source>
        <translation>gestrichen: Bonus</translation>
    </message>
    <message>
        <source>no result</source>
        <translation>kein Ergebnis</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Wertung</translation>
    </message>
    <message>
        <source>Select an athlete to see where the score comes from.</source>
        <translation>Einen Athleten wählen, um zu sehen, woher die Wertung kommt.</translation>
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
        <translation>Wertung: %1 / 3 = %2</translation>
    </message>
    <message>
        <source>Place: was %1, now %2. Score: was %3, now %4.</source>
        <translation>Platz: war %1, jetzt %2. Wertung: war %3, jetzt %4.</translation>
    </message>
    <message>
        <source>%1 s in %2</source>
        <translation>%1 s in %2</translation>
    </message>
    <message>
        <source>A place better with a total of
%1</source>
        <translation>Einen Platz besser mit gesamt
%1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyWindow</name>
    <message>
        <source>Rule: %1</source>
        <translation>Regel: %1</translation>
    </message>
    <message>
        <source>Within %1</source>
        <translation>Im Bereich %1</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Quelle: %1</translation>
    </message>
    <message>
        <source>Why this number?</source>
        <translation>Warum diese Zahl?</translation>
    </message>
    <message>
        <source>Why %1</source>
        <translation>Warum %1</translation>
    </message>
    <message>
        <source>What went into it</source>
        <translation>Was eingeht</translation>
    </message>
    <message>
        <source>Enter opens a number made on the way, and shows the place of a value</source>
        <translation>Enter öffnet eine unterwegs entstandene Zahl und zeigt die Stelle eines Werts</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>Show this place (Enter)</source>
        <translation>Diese Stelle zeigen (Enter)</translation>
    </message>
    <message>
        <source>%1, link</source>
        <translation>%1, Verweis</translation>
    </message>
    <message>
        <source>&amp;Copy as text</source>
        <translation>Als Text &amp;kopieren</translation>
    </message>
    <message>
        <source>The whole explanation (%1)</source>
        <translation>Die ganze Erklärung (%1)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Workspace</name>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Änderungen an %1 speichern?</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::YearStrip</name>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Macrocycle</source>
        <translation>Makrozyklus</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mesozyklus</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Belastung</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Woche</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
</context>
</TS>
