<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name></name>
    <message>
        <source>Selection results</source>
        <translation>Résultats de la sélection</translation>
    </message>
    <message>
        <source>Selection results xTimes</source>
        <translation>Résultats de la sélection xTimes</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlète</translation>
    </message>
    <message>
        <source>not in the selection</source>
        <translation>pas dans la sélection</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Laisser de côté</translation>
    </message>
    <message>
        <source>Add %1 to the selection</source>
        <translation>Ajouter %1 à la sélection</translation>
    </message>
</context>
<context>
    <name>AthletePanel</name>
    <message>
        <source>An athlete needs a name.</source>
        <translation>Un athlète doit avoir un nom.</translation>
    </message>
    <message>
        <source>“%1” is in the team already.</source>
        <translation>«&#xa0;%1&#xa0;» est déjà dans l’équipe.</translation>
    </message>
</context>
<context>
    <name>ChartExport</name>
    <message>
        <source>Picture (*.png)</source>
        <translation>Image (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>Dessin (*.svg)</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tableau (*.csv)</translation>
    </message>
    <message>
        <source>Save chart</source>
        <translation>Enregistrer le graphique</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>A race</source>
        <translation>Une course</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>The season</source>
        <translation>La saison</translation>
    </message>
    <message>
        <source>Training</source>
        <translation>Entraînement</translation>
    </message>
</context>
<context>
    <name>EightTest</name>
    <message>
        <source>Total – · %1 of %2 splits are timed</source>
        <translation>Total – · %1 intermédiaires sur %2 sont chronométrés</translation>
    </message>
    <message>
        <source>Total %1 s · standard deviation %2 s</source>
        <translation>Total %1 s · écart-type %2 s</translation>
    </message>
</context>
<context>
    <name>FindWindow</name>
    <message>
        <source>The table cannot be written over a file that is searched.</source>
        <translation>Le tableau ne peut pas être écrit par-dessus un fichier où l’on cherche.</translation>
    </message>
</context>
<context>
    <name>IntervalTexts</name>
    <message>
        <source>A duration is written as seconds or as 1:30, up to a day</source>
        <translation>Une durée s’écrit en secondes ou comme 1:30, jusqu’à un jour</translation>
    </message>
    <message>
        <source>Sets and repetitions are whole numbers from 0 to 9999</source>
        <translation>Séries et répétitions sont des nombres entiers de 0 à 9999</translation>
    </message>
    <message>
        <source>Volume and intensity are numbers such as 4.5</source>
        <translation>Volume et intensité sont des nombres comme 4.5</translation>
    </message>
    <message>
        <source>, rest %1</source>
        <translation>, récupération %1</translation>
    </message>
    <message>
        <source>%1 in all, %2 of it work; repetitions: %3</source>
        <translation>%1 en tout, dont %2 d’effort&#x202f;; répétitions&#x202f;: %3</translation>
    </message>
</context>
<context>
    <name>KeyOverlay</name>
    <message>
        <source>In the part with the focus</source>
        <translation>Dans la partie active</translation>
    </message>
</context>
<context>
    <name>ListedTest</name>
    <message>
        <source>No name</source>
        <translation>Pas de nom</translation>
    </message>
    <message>
        <source>Lap test</source>
        <translation>Test par tours</translation>
    </message>
    <message>
        <source>Sprint</source>
        <translation>Sprint</translation>
    </message>
    <message>
        <source>Eight test</source>
        <translation>Test en huit</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Tour</translation>
    </message>
    <message>
        <source>Eight</source>
        <translation>Huit</translation>
    </message>
</context>
<context>
    <name>MeasureCharts</name>
    <message>
        <source>below what is usual</source>
        <translation>au-dessous de l’habituel</translation>
    </message>
    <message>
        <source>within what is usual</source>
        <translation>dans l’habituel</translation>
    </message>
    <message>
        <source>above what is usual</source>
        <translation>au-dessus de l’habituel</translation>
    </message>
    <message>
        <source>Weight and body fat</source>
        <translation>Poids et masse grasse</translation>
    </message>
    <message>
        <source>Body fat (%)</source>
        <translation>Masse grasse (%)</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>Body fat</source>
        <translation>Masse grasse</translation>
    </message>
    <message>
        <source>Weight (kg)</source>
        <translation>Poids (kg)</translation>
    </message>
    <message>
        <source>Add a weight or body fat to see how it goes through the season.</source>
        <translation>Ajoutez un poids ou une masse grasse pour en voir l’évolution au fil de la saison.</translation>
    </message>
    <message>
        <source>Usual: mean ± one standard deviation of the four weeks before</source>
        <translation>Habituel&#x202f;: moyenne ± un écart-type des quatre semaines précédentes</translation>
    </message>
    <message>
        <source>Each day</source>
        <translation>Chaque jour</translation>
    </message>
    <message>
        <source>Seven-day mean</source>
        <translation>Moyenne sur sept jours</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>Habituel</translation>
    </message>
    <message>
        <source>Week to %1: mean %2</source>
        <translation>Semaine jusqu’au %1&#x202f;: moyenne %2</translation>
    </message>
    <message>
        <source>%1. What is usual is known after seven measured days of the 28 before.</source>
        <translation>%1. L’habituel est connu après sept jours mesurés sur les 28 précédents.</translation>
    </message>
    <message>
        <source>%1, %2 (%3 to %4).</source>
        <translation>%1, %2 (%3 à %4).</translation>
    </message>
</context>
<context>
    <name>MeasureColumns</name>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
</context>
<context>
    <name>OlderRecordings</name>
    <message>
        <source>“%1” is a recording of version 4. It can be converted to the current version: “%2” is written beside it, the recording itself stays as it is.</source>
        <translation>«&#xa0;%1&#xa0;» est un enregistrement de version 4. Il peut être converti à la version actuelle&#x202f;: «&#xa0;%2&#xa0;» est écrit à côté, l’enregistrement lui-même reste tel quel.</translation>
    </message>
    <message>
        <source>Convert and open</source>
        <translation>Convertir et ouvrir</translation>
    </message>
</context>
<context>
    <name>OnlineStore</name>
    <message>
        <source>The server does not accept the user name or the password.</source>
        <translation>Le serveur n’accepte pas le nom d’utilisateur ou le mot de passe.</translation>
    </message>
</context>
<context>
    <name>PlanningHandouts</name>
    <message>
        <source>Choose an athlete with a season first.</source>
        <translation>Choisissez d’abord un athlète avec une saison.</translation>
    </message>
    <message>
        <source>Week %1</source>
        <translation>Semaine %1</translation>
    </message>
    <message>
        <source>Week %1 %2.pdf</source>
        <translation>Semaine %1 %2.pdf</translation>
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
        <translation>Il n’y a aucune semaine à écrire.</translation>
    </message>
    <message>
        <source>Week %1 %2.ics</source>
        <translation>Semaine %1 %2.ics</translation>
    </message>
    <message>
        <source>Week as a calendar file</source>
        <translation>Semaine en fichier de calendrier</translation>
    </message>
    <message>
        <source>Calendar files (*.ics)</source>
        <translation>Fichiers de calendrier (*.ics)</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>%1 est écrit.</translation>
    </message>
</context>
<context>
    <name>ProgressionChart</name>
    <message>
        <source>Position after each phase; the chosen race is drawn heavier</source>
        <translation>Position après chaque phase&#x202f;; la course choisie est en trait plus épais</translation>
    </message>
    <message>
        <source>position</source>
        <translation>position</translation>
    </message>
    <message>
        <source>Positions of the phases stand here once they are entered.</source>
        <translation>Les positions des phases apparaissent ici une fois saisies.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>start of the roll</source>
        <translation>début de l’esquimautage</translation>
    </message>
    <message>
        <source>boat upside down</source>
        <translation>bateau retourné</translation>
    </message>
    <message>
        <source>boat up again</source>
        <translation>bateau redressé</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Recent files, in %1</source>
        <translation>Fichiers récents, dans %1</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Search everything…</source>
        <translation>&amp;Tout chercher…</translation>
    </message>
    <message>
        <source>&amp;All keys</source>
        <translation>Toutes &amp;les touches</translation>
    </message>
    <message>
        <source>&amp;Why this number?</source>
        <translation>Pourquoi &amp;ce nombre&#x202f;?</translation>
    </message>
    <message>
        <source>&amp;Change keys…</source>
        <translation>C&amp;hanger les touches…</translation>
    </message>
    <message>
        <source>&amp;Full screen</source>
        <translation>&amp;Plein écran</translation>
    </message>
    <message>
        <source>Where are the films now?</source>
        <translation>Où sont les films maintenant&#x202f;?</translation>
    </message>
    <message>
        <source>Videos (*.mov *.mp4 *.m4v *.avi *.mkv *.mts *.m2ts *.ts *.3gp *.webm *.mpg);;All files (*)</source>
        <translation>Vidéos (*.mov *.mp4 *.m4v *.avi *.mkv *.mts *.m2ts *.ts *.3gp *.webm *.mpg);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The folder has another film named %1 already. Give one of them another name first.</source>
        <translation>Le dossier contient déjà un autre film nommé %1. Donnez d’abord un autre nom à l’un des deux.</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>Copie de %1</translation>
    </message>
    <message>
        <source>%1 could not be copied into the folder.</source>
        <translation>%1 n’a pas pu être copié dans le dossier.</translation>
    </message>
    <message>
        <source>entrance</source>
        <translation>entrée</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>milieu</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>sortie</translation>
    </message>
    <message>
        <source>All splits of this run are marked.</source>
        <translation>Tous les intermédiaires de cette manche sont marqués.</translation>
    </message>
    <message>
        <source>Mark the start first: the splits are expected from there on.</source>
        <translation>Marquez d’abord le départ&#x202f;: les intermédiaires sont attendus à partir de là.</translation>
    </message>
    <message>
        <source>No other run has split %1 yet: nothing tells where it is to be expected.</source>
        <translation>Aucune autre manche n’a encore l’intermédiaire %1&#x202f;: rien ne dit où l’attendre.</translation>
    </message>
    <message>
        <source>&amp;Look for a newer version</source>
        <translation>Chercher &amp;une version plus récente</translation>
    </message>
    <message>
        <source>User &amp;guide</source>
        <translation>&amp;Guide d’utilisation</translation>
    </message>
</context>
<context>
    <name>QueryForm</name>
    <message>
        <source>&amp;Athlete</source>
        <translation>A&amp;thlète</translation>
    </message>
    <message>
        <source>anyone</source>
        <translation>n’importe qui</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Catégorie</translation>
    </message>
    <message>
        <source>&amp;Phase</source>
        <translation>&amp;Phase</translation>
    </message>
    <message>
        <source>any</source>
        <translation>toutes</translation>
    </message>
    <message>
        <source>P&amp;lace</source>
        <translation>&amp;Lieu</translation>
    </message>
    <message>
        <source>anywhere</source>
        <translation>partout</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Année</translation>
    </message>
    <message>
        <source>&amp;Gate</source>
        <translation>P&amp;orte</translation>
    </message>
    <message>
        <source>&amp;Up or down</source>
        <translation>Descendue ou &amp;remontée</translation>
    </message>
    <message>
        <source>both</source>
        <translation>les deux</translation>
    </message>
    <message>
        <source>&amp;Direction</source>
        <translation>&amp;Direction</translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation>&amp;Style</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>T&amp;ype</translation>
    </message>
</context>
<context>
    <name>RaceExchange</name>
    <message>
        <source>course</source>
        <translation>parcours</translation>
    </message>
    <message>
        <source>Names of the films</source>
        <translation>Noms des films</translation>
    </message>
    <message>
        <source>How the films are named, such as &quot;{any} {name} {category} {phase}&quot;.
{name}, {category}, {phase}, {bib}, {number} and {any} stand for what differs.</source>
        <translation>Comment les films sont nommés, par exemple «&#xa0;{any} {name} {category} {phase}&#xa0;».
{name}, {category}, {phase}, {bib}, {number} et {any} remplacent ce qui diffère.</translation>
    </message>
    <message>
        <source>Import split file</source>
        <translation>Importer un fichier d’intermédiaires</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Fichiers d’intermédiaires (*.kvx);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Import official results</source>
        <translation>Importer les résultats officiels</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt);;All files (*)</source>
        <translation>Listes (*.csv *.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>There are no results in %1.</source>
        <translation>Il n’y a aucun résultat dans %1.</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Écraser</translation>
    </message>
    <message>
        <source>drawing of the course</source>
        <translation>dessin du parcours</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lecture de %1…</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>RankingCharts</name>
    <message>
        <source>Release</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>The chart begins with the first position.</source>
        <translation>Le graphique commence avec la première position.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>The chart begins with the first points.</source>
        <translation>Le graphique commence avec les premiers points.</translation>
    </message>
    <message>
        <source>Touches and missed gates per run</source>
        <translation>Touches et portes manquées par manche</translation>
    </message>
    <message>
        <source>per run</source>
        <translation>par manche</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Missed gates</source>
        <translation>Portes manquées</translation>
    </message>
    <message>
        <source>Take the season&apos;s statistics from split files to see penalties here.</source>
        <translation>Prenez les statistiques de la saison dans les fichiers d’intermédiaires pour voir ici les pénalités.</translation>
    </message>
    <message>
        <source>Behind the best of the category</source>
        <translation>Derrière le meilleur de la catégorie</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manche</translation>
    </message>
    <message>
        <source>Races with a time and a best time stand here.</source>
        <translation>Les courses avec un temps et un meilleur temps apparaissent ici.</translation>
    </message>
</context>
<context>
    <name>RankingSection</name>
    <message>
        <source>The release of a ranking list is a whole number such as 4</source>
        <translation>L’édition d’un classement est un nombre entier comme 4</translation>
    </message>
</context>
<context>
    <name>RunForm</name>
    <message>
        <source>A penalty is a whole number of seconds, 0 to 999</source>
        <translation>Une pénalité est un nombre entier de secondes, de 0 à 999</translation>
    </message>
</context>
<context>
    <name>SeasonChart</name>
    <message>
        <source>%1: penalty (s)</source>
        <translation>%1&#x202f;: pénalité (s)</translation>
    </message>
    <message>
        <source>% behind</source>
        <translation>% de retard</translation>
    </message>
    <message>
        <source>penalty (s)</source>
        <translation>pénalité (s)</translation>
    </message>
    <message>
        <source>Percent behind the fastest as lines, penalty seconds as bars</source>
        <translation>Pourcentage derrière le plus rapide en lignes, secondes de pénalité en barres</translation>
    </message>
    <message>
        <source>Penalties only; percent behind comes with split files</source>
        <translation>Seulement les pénalités&#x202f;; le pourcentage de retard vient avec les fichiers d’intermédiaires</translation>
    </message>
    <message>
        <source>Percent behind the fastest stands here once runs are taken over from split files.</source>
        <translation>Le pourcentage derrière le plus rapide apparaît ici une fois des manches reprises de fichiers d’intermédiaires.</translation>
    </message>
</context>
<context>
    <name>SelectionTakeOver</name>
    <message>
        <source>Lists (*.csv *.txt);;All files (*)</source>
        <translation>Listes (*.csv *.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Import athletes</source>
        <translation>Importer des athlètes</translation>
    </message>
    <message>
        <source>athletes imported</source>
        <translation>athlètes importés</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>“%1” cannot be read</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu</translation>
    </message>
    <message>
        <source>One athlete was added.</source>
        <translation>Un athlète a été ajouté.</translation>
    </message>
    <message>
        <source>The list is no UTF-8 text and was read as Latin-1: look at the names.</source>
        <translation>La liste n’est pas un texte UTF-8 et a été lue en Latin-1&#x202f;: vérifiez les noms.</translation>
    </message>
    <message>
        <source>Line %1: the category %2 is new in the selection.</source>
        <translation>Ligne %1&#x202f;: la catégorie %2 est nouvelle dans la sélection.</translation>
    </message>
    <message>
        <source>Line %1: the category %2 is new in the selection, and none that boats are raced in.</source>
        <translation>Ligne %1&#x202f;: la catégorie %2 est nouvelle dans la sélection, et ce n’est pas une catégorie de bateaux de course.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>Results of which race?</source>
        <translation>Résultats de quelle course&#x202f;?</translation>
    </message>
    <message>
        <source>Add a category first.</source>
        <translation>Ajoutez d’abord une catégorie.</translation>
    </message>
    <message>
        <source>Split files of the race</source>
        <translation>Fichiers d’intermédiaires de la course</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Fichiers d’intermédiaires (*.kvx);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>There are no results in it.</source>
        <translation>Il ne contient aucun résultat.</translation>
    </message>
    <message>
        <source>results taken over</source>
        <translation>résultats repris</translation>
    </message>
    <message numerus="yes">
        <source>%n athletes were added.</source>
        <translation>
            <numerusform>%n athlète a été ajouté.</numerusform>
            <numerusform>%n athlètes ont été ajoutés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SessionConversion</name>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être ouvert</translation>
    </message>
</context>
<context>
    <name>SessionEdits</name>
    <message>
        <source>session information</source>
        <translation>informations de la séance</translation>
    </message>
    <message>
        <source>Nothing was cut</source>
        <translation>Rien n’a été coupé</translation>
    </message>
    <message>
        <source>Too little would be left of the session.</source>
        <translation>Il resterait trop peu de la séance.</translation>
    </message>
    <message>
        <source>cut to a stretch</source>
        <translation>coupe sur un tronçon</translation>
    </message>
    <message>
        <source>removal of a stretch</source>
        <translation>suppression d’un tronçon</translation>
    </message>
    <message>
        <source>removal of strokes</source>
        <translation>suppression de coups de pagaie</translation>
    </message>
    <message>
        <source>new analysis</source>
        <translation>nouvelle analyse</translation>
    </message>
    <message>
        <source>mount of the phone</source>
        <translation>fixation du téléphone</translation>
    </message>
</context>
<context>
    <name>SessionExports</name>
    <message>
        <source>Save the edited .kvb file</source>
        <translation>Enregistrer le fichier .kvb modifié</translation>
    </message>
    <message>
        <source>Recordings (*.kvb)</source>
        <translation>Enregistrements (*.kvb)</translation>
    </message>
    <message>
        <source>Export the table</source>
        <translation>Exporter le tableau</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Texte séparé par des points-virgules (*.csv)</translation>
    </message>
</context>
<context>
    <name>SessionImports</name>
    <message>
        <source>%1 positions and %2 heart rates were taken over.</source>
        <translation>%1 positions et %2 fréquences cardiaques ont été reprises.</translation>
    </message>
    <message>
        <source>Import the recording of the boat first: a track gives it positions and heart rates.</source>
        <translation>Importez d’abord l’enregistrement du bateau&#x202f;: une trace lui donne positions et fréquences cardiaques.</translation>
    </message>
    <message>
        <source>track of a watch</source>
        <translation>trace d’une montre</translation>
    </message>
    <message>
        <source>move of a watch&apos;s track</source>
        <translation>déplacement de la trace d’une montre</translation>
    </message>
    <message>
        <source>Import power-meter data</source>
        <translation>Importer les données du capteur de puissance</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt)</source>
        <translation>Listes (*.csv *.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>“%1” cannot be read</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu</translation>
    </message>
    <message>
        <source>Import a recording or a session first: power-meter data belongs to its strokes.</source>
        <translation>Importez d’abord un enregistrement ou une séance&#x202f;: les données du capteur de puissance vont avec ses coups de pagaie.</translation>
    </message>
    <message>
        <source>import of power-meter data</source>
        <translation>import des données du capteur de puissance</translation>
    </message>
</context>
<context>
    <name>SessionSeries</name>
    <message>
        <source>Power</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>Power meter</source>
        <translation>Capteur de puissance</translation>
    </message>
    <message>
        <source>Water phase</source>
        <translation>Phase aquatique</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Aerial phase</source>
        <translation>Phase aérienne</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>m/s</source>
        <translation>m/s</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Fréquence cardiaque</translation>
    </message>
    <message>
        <source>1/min</source>
        <translation>1/min</translation>
    </message>
    <message>
        <source>Pitch in turns</source>
        <translation>Tangage en virage</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Cadence</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Force</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>Impulse</source>
        <translation>Impulsion</translation>
    </message>
    <message>
        <source>N·s</source>
        <translation>N·s</translation>
    </message>
    <message>
        <source>Roll of the stroke</source>
        <translation>Roulis du coup de pagaie</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>left</source>
        <translation>gauche</translation>
    </message>
    <message>
        <source>right</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>side unknown</source>
        <translation>côté inconnu</translation>
    </message>
    <message>
        <source>Side unknown: when the session was made, it was not known which side of the phone points to the bow.</source>
        <translation>Côté inconnu&#x202f;: quand la séance a été faite, on ne savait pas quel côté du téléphone pointe vers l’avant.</translation>
    </message>
    <message>
        <source>The file does not tell how the clocks of strokes and fixes go together: they were fitted by the turns and may be some seconds apart.</source>
        <translation>Le fichier ne dit pas comment s’accordent les horloges des coups de pagaie et des positions&#x202f;: elles ont été ajustées d’après les virages et peuvent différer de quelques secondes.</translation>
    </message>
    <message>
        <source>Power-meter data is not in the strokes yet; you are asked on saving.</source>
        <translation>Les données du capteur de puissance ne sont pas encore dans les coups de pagaie&#x202f;; la question sera posée à l’enregistrement.</translation>
    </message>
</context>
<context>
    <name>SharePlace</name>
    <message>
        <source>Choose the folder…</source>
        <translation>Choisir le dossier…</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Dossier</translation>
    </message>
    <message>
        <source>On this computer, with everything below it but hidden files</source>
        <translation>Sur cet ordinateur, avec tout ce qu’il contient sauf les fichiers cachés</translation>
    </message>
    <message>
        <source>the folder that is shared</source>
        <translation>le dossier partagé</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adresse</translation>
    </message>
    <message>
        <source>Of a folder on a WebDAV server: Nextcloud, ownCloud, a NAS, Apache…</source>
        <translation>D’un dossier sur un serveur WebDAV&#x202f;: Nextcloud, ownCloud, un NAS, Apache…</translation>
    </message>
    <message>
        <source>There is no folder to share yet.</source>
        <translation>Il n’y a pas encore de dossier à partager.</translation>
    </message>
    <message>
        <source>“%1” is no folder.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un dossier.</translation>
    </message>
</context>
<context>
    <name>SlitMarking</name>
    <message>
        <source>The film is not read so far.</source>
        <translation>Le film n’est pas lu jusque-là.</translation>
    </message>
    <message>
        <source>There is no proposal at the hair line.</source>
        <translation>Il n’y a aucune proposition au réticule.</translation>
    </message>
    <message>
        <source>Nothing can be accepted without a line, its proposals and the race.</source>
        <translation>Rien ne peut être accepté sans une ligne, ses propositions et la course.</translation>
    </message>
    <message>
        <source>proposals accepted</source>
        <translation>propositions acceptées</translation>
    </message>
    <message>
        <source>On this frame stands the mark of %1.</source>
        <translation>Sur cette image se trouve la marque de %1.</translation>
    </message>
    <message>
        <source>No other film of this folder has lines.</source>
        <translation>Aucun autre film de ce dossier n’a de lignes.</translation>
    </message>
    <message>
        <source>The lines of “%1” were drawn over a picture of %2 × %3 pixels; this film has %4 × %5.</source>
        <translation>Les lignes de « %1 » ont été tracées sur une image de %2 × %3 pixels ; ce film en a %4 × %5.</translation>
    </message>
    <message>
        <source>Press N and draw a line across the water in the film above: what stands on it is shown here over time.</source>
        <translation>Appuyez sur N et dessinez une ligne en travers de l’eau dans le film ci-dessus&#x202f;: ce qui s’y trouve est montré ici au fil du temps.</translation>
    </message>
    <message>
        <source>Or press L for the lines of “%1”.</source>
        <translation>Ou appuyez sur L pour reprendre les lignes de « %1 ».</translation>
    </message>
    <message>
        <source>“%1” is timed at the bow: one race needs one point.</source>
        <translation>« %1 » est chronométré à la pointe avant : une course n’a qu’un point.</translation>
    </message>
    <message>
        <source>“%1” is timed at the body: one race needs one point.</source>
        <translation>« %1 » est chronométré au corps : une course n’a qu’un point.</translation>
    </message>
    <message>
        <source>A mark of this line was made before: look at it again.</source>
        <translation>Une marque de cette ligne a été posée avant : revoyez-la.</translation>
    </message>
    <message numerus="yes">
        <source>%n marks of this line were made before: look at them again.</source>
        <translation>
            <numerusform>Une marque de cette ligne a été posée avant : revoyez-la.</numerusform>
            <numerusform>%n marques de cette ligne ont été posées avant : revoyez-les.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SplitStatistics</name>
    <message>
        <source>is no split file that can be read</source>
        <translation>n’est pas un fichier d’intermédiaires lisible</translation>
    </message>
    <message>
        <source>has no date</source>
        <translation>n’a pas de date</translation>
    </message>
    <message>
        <source>is of %1</source>
        <translation>est de %1</translation>
    </message>
    <message>
        <source>has no run of %1</source>
        <translation>n’a aucune manche de %1</translation>
    </message>
</context>
<context>
    <name>SpokenNames</name>
    <message>
        <source>Splits</source>
        <translation>Temps intermédiaires</translation>
    </message>
    <message>
        <source>Splits of the time trial</source>
        <translation>Temps intermédiaires du contre-la-montre</translation>
    </message>
    <message>
        <source>Time trials</source>
        <translation>Contre-la-montre</translation>
    </message>
    <message>
        <source>Heats</source>
        <translation>Séries</translation>
    </message>
    <message>
        <source>Attacks</source>
        <translation>Attaques</translation>
    </message>
    <message>
        <source>Who attacks</source>
        <translation>Qui attaque</translation>
    </message>
    <message>
        <source>Side of the attack</source>
        <translation>Côté de l’attaque</translation>
    </message>
    <message>
        <source>Place of the attack</source>
        <translation>Lieu de l’attaque</translation>
    </message>
    <message>
        <source>Attacks by athlete</source>
        <translation>Attaques par athlète</translation>
    </message>
    <message>
        <source>Attacks by place</source>
        <translation>Attaques par lieu</translation>
    </message>
    <message>
        <source>Notes of the run</source>
        <translation>Notes de la manche</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Manches</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Athlètes</translation>
    </message>
    <message>
        <source>Results by season</source>
        <translation>Résultats par saison</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>Moyennes</translation>
    </message>
    <message>
        <source>Ranking</source>
        <translation>Classement</translation>
    </message>
    <message>
        <source>Touches by gate</source>
        <translation>Touches par porte</translation>
    </message>
    <message>
        <source>What was noted of penalties</source>
        <translation>Ce qui a été noté des pénalités</translation>
    </message>
    <message>
        <source>What penalties cost</source>
        <translation>Ce que coûtent les pénalités</translation>
    </message>
    <message>
        <source>Risk and speed by thirds</source>
        <translation>Risque et vitesse par tiers</translation>
    </message>
    <message>
        <source>Losses by section</source>
        <translation>Pertes par section</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Objectifs</translation>
    </message>
    <message>
        <source>Measures of the body</source>
        <translation>Mesures du corps</translation>
    </message>
    <message>
        <source>Exercises</source>
        <translation>Exercices</translation>
    </message>
    <message>
        <source>Intervals</source>
        <translation>Intervalles</translation>
    </message>
    <message>
        <source>Films compared</source>
        <translation>Films comparés</translation>
    </message>
    <message>
        <source>Films to choose from</source>
        <translation>Films au choix</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Fichiers récents</translation>
    </message>
    <message>
        <source>Work kept</source>
        <translation>Travail conservé</translation>
    </message>
    <message>
        <source>Pattern of the names</source>
        <translation>Modèle des noms</translation>
    </message>
    <message>
        <source>Names now and then</source>
        <translation>Noms actuels et nouveaux</translation>
    </message>
    <message>
        <source>Films being composed</source>
        <translation>Films en composition</translation>
    </message>
</context>
<context>
    <name>TestCharts</name>
    <message>
        <source>Not recorded, and not entered</source>
        <translation>Ni enregistré ni saisi</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Tour</translation>
    </message>
    <message>
        <source>Stretch of the sprint</source>
        <translation>Tronçon du sprint</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Virage</translation>
    </message>
    <message>
        <source>Time from the start (s)</source>
        <translation>Temps depuis le départ (s)</translation>
    </message>
    <message>
        <source>Only a recording tells this</source>
        <translation>Seul un enregistrement le dit</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Inter</translation>
    </message>
</context>
<context>
    <name>ToolWindow</name>
    <message>
        <source>Reading %1…</source>
        <translation>Lecture de %1…</translation>
    </message>
</context>
<context>
    <name>TrialMarking</name>
    <message>
        <source>Add the first athlete above</source>
        <translation>Ajoutez le premier athlète ci-dessus</translation>
    </message>
    <message>
        <source>M marks split %1</source>
        <translation>M marque l’intermédiaire %1</translation>
    </message>
    <message>
        <source>M marks the start</source>
        <translation>M marque le départ</translation>
    </message>
    <message>
        <source>M marks the %1</source>
        <translation>M marque&#x202f;: %1</translation>
    </message>
    <message>
        <source>The roll is marked</source>
        <translation>L’esquimautage est marqué</translation>
    </message>
    <message>
        <source>The cross course has no gates yet</source>
        <translation>Le parcours de cross n’a pas encore de portes</translation>
    </message>
    <message>
        <source>Gate %1: M marks the %2</source>
        <translation>Porte %1&#x202f;: M marque&#x202f;: %2</translation>
    </message>
    <message>
        <source>Gate %1 is marked</source>
        <translation>La porte %1 est marquée</translation>
    </message>
    <message>
        <source>The time of this trial was taken without marks on the film. Marking it anew replaces it.</source>
        <translation>Le temps de ce contre-la-montre a été pris sans marques sur le film. Le marquer à nouveau le remplace.</translation>
    </message>
    <message>
        <source>Mark anew</source>
        <translation>Marquer à nouveau</translation>
    </message>
    <message>
        <source>start mark</source>
        <translation>marque de départ</translation>
    </message>
    <message>
        <source>split %1</source>
        <translation>intermédiaire %1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>%1:  %2</source>
        <translation>%1&#x202f;:  %2</translation>
    </message>
    <message>
        <source>Split %1 was put in between two marks. Ctrl+Z takes it out again.</source>
        <translation>L’intermédiaire %1 a été inséré entre deux marques. Ctrl+Z l’enlève.</translation>
    </message>
    <message>
        <source>Gate %1 is marked. N goes to the next gate, Shift+M moves the selected mark.</source>
        <translation>La porte %1 est marquée. N passe à la porte suivante, Maj+M déplace la marque choisie.</translation>
    </message>
    <message>
        <source>The cross course has no gates yet: they are set above.</source>
        <translation>Le parcours de cross n’a pas encore de portes&#x202f;: elles se règlent ci-dessus.</translation>
    </message>
    <message>
        <source>%1 of gate %2</source>
        <translation>%1 de la porte %2</translation>
    </message>
    <message>
        <source>Gate %1 %2</source>
        <translation>Porte %1 %2</translation>
    </message>
    <message>
        <source>The roll is marked. Shift+M moves the selected mark, Delete removes it.</source>
        <translation>L’esquimautage est marqué. Maj+M déplace la marque choisie, Suppr la retire.</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>Aucune marque n’est choisie. Ctrl et les flèches vont de marque en marque.</translation>
    </message>
    <message>
        <source>mark moved</source>
        <translation>marque déplacée</translation>
    </message>
    <message>
        <source>mark removed</source>
        <translation>marque retirée</translation>
    </message>
    <message>
        <source>Without a start mark the time counts from the beginning of the film.</source>
        <translation>Sans marque de départ, le temps compte depuis le début du film.</translation>
    </message>
    <message>
        <source>gate %1 removed</source>
        <translation>porte %1 retirée</translation>
    </message>
</context>
<context>
    <name>TypedMeasures</name>
    <message>
        <source>This moment is in no calendar: %1 seconds from 2001-01-01. It stays as it is until another date is typed.</source>
        <translation>Ce moment n’est dans aucun calendrier&#x202f;: %1 secondes depuis 2001-01-01. Il reste tel quel jusqu’à la saisie d’une autre date.</translation>
    </message>
    <message>
        <source>A value below 0 cannot be measured.</source>
        <translation>Une valeur au-dessous de 0 ne peut pas être mesurée.</translation>
    </message>
    <message>
        <source>More than %1 was hardly measured.</source>
        <translation>Plus de %1 n’a guère été mesuré.</translation>
    </message>
    <message>
        <source>It stays as it is until another one is typed.</source>
        <translation>Elle reste telle quelle jusqu’à la saisie d’une autre.</translation>
    </message>
    <message>
        <source>A measurement needs a day of the calendar such as 2026-03-09.</source>
        <translation>Une mesure demande un jour du calendrier comme 2026-03-09.</translation>
    </message>
    <message>
        <source>Expected is a number from 0 to %1, such as %2</source>
        <translation>Il faut un nombre de 0 à %1, comme %2</translation>
    </message>
</context>
<context>
    <name>TypedNumber</name>
    <message>
        <source>Expected is a number from %1 to %2</source>
        <translation>Il faut un nombre de %1 à %2</translation>
    </message>
    <message>
        <source>Expected is a whole number from %1 to %2</source>
        <translation>Il faut un nombre entier de %1 à %2</translation>
    </message>
    <message>
        <source>Expected is a time from %1 to %2 seconds</source>
        <translation>Il faut un temps de %1 à %2 secondes</translation>
    </message>
</context>
<context>
    <name>TypedValues</name>
    <message>
        <source>A time is a number of seconds such as 92.34, or 1:32.34</source>
        <translation>Un temps est un nombre de secondes comme 92.34, ou 1:32.34</translation>
    </message>
    <message>
        <source>A penalty is a whole number of seconds, 0 to 999</source>
        <translation>Une pénalité est un nombre entier de secondes, de 0 à 999</translation>
    </message>
    <message>
        <source>A position is a whole number, 1 to 9999</source>
        <translation>Une position est un nombre entier, de 1 à 9999</translation>
    </message>
    <message>
        <source>Ranking points are a number such as 612.5</source>
        <translation>Les points du classement sont un nombre comme 612.5</translation>
    </message>
    <message>
        <source>A year is a number from 1900 to 2100</source>
        <translation>Une année est un nombre de 1900 à 2100</translation>
    </message>
    <message>
        <source>A date is a day of the calendar such as 2025-06-14</source>
        <translation>Une date est un jour du calendrier comme 2025-06-14</translation>
    </message>
</context>
<context>
    <name>WeekTexts</name>
    <message>
        <source>Week %1, from %2</source>
        <translation>Semaine %1, du %2</translation>
    </message>
    <message>
        <source>Load %1 %</source>
        <translation>Charge %1&#x202f;%</translation>
    </message>
    <message>
        <source>Macrocycle</source>
        <translation>Macrocycle</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mésocycle</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Compétition</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>On-water test</source>
        <translation>Test sur l’eau</translation>
    </message>
    <message>
        <source>Endurance test</source>
        <translation>Test d’endurance</translation>
    </message>
    <message>
        <source>Blood test</source>
        <translation>Prise de sang</translation>
    </message>
    <message>
        <source>Injured</source>
        <translation>Blessé</translation>
    </message>
    <message>
        <source>%n session(s)</source>
        <translation>%n séance(s)</translation>
    </message>
    <message>
        <source>The week&apos;s date is in no calendar.</source>
        <translation>La date de la semaine n’est dans aucun calendrier.</translation>
    </message>
    <message>
        <source>The week does not start on a Monday.</source>
        <translation>La semaine ne commence pas un lundi.</translation>
    </message>
    <message>
        <source>The load is negative.</source>
        <translation>La charge est négative.</translation>
    </message>
    <message>
        <source>The two lists of planned totals are of different lengths.</source>
        <translation>Les deux listes de totaux prévus sont de longueurs différentes.</translation>
    </message>
    <message>
        <source>%1 of its sessions are on no day of the week.</source>
        <translation>%1 de ses séances ne sont sur aucun jour de la semaine.</translation>
    </message>
    <message>
        <source>The session&apos;s date is in no calendar.</source>
        <translation>La date de la séance n’est dans aucun calendrier.</translation>
    </message>
    <message>
        <source>The time of day is none.</source>
        <translation>Le moment de la journée est inexistant.</translation>
    </message>
    <message>
        <source>The time zone “%1” is unknown.</source>
        <translation>Le fuseau horaire «&#xa0;%1&#xa0;» est inconnu.</translation>
    </message>
    <message>
        <source>A value is negative.</source>
        <translation>Une valeur est négative.</translation>
    </message>
</context>
<context>
    <name>kavela</name>
    <message>
        <source>The time from the mark before to the mark of this section.</source>
        <translation>Le temps de la marque précédente à la marque de ce secteur.</translation>
    </message>
    <message>
        <source>mark − mark before</source>
        <translation>marque − marque précédente</translation>
    </message>
    <message>
        <source>The time of the section with the penalties of its gates.</source>
        <translation>Le temps du secteur avec les pénalités de ses portes.</translation>
    </message>
    <message>
        <source>time + penalties</source>
        <translation>temps + pénalités</translation>
    </message>
    <message>
        <source>The time from the start to the mark of this section.</source>
        <translation>Le temps du départ à la marque de ce secteur.</translation>
    </message>
    <message>
        <source>Σ sections up to here</source>
        <translation>Σ secteurs jusqu’ici</translation>
    </message>
    <message>
        <source>All sections together, as timed from the video, without penalties.</source>
        <translation>Tous les secteurs ensemble, chronométrés sur la vidéo, sans pénalités.</translation>
    </message>
    <message>
        <source>Σ sections</source>
        <translation>Σ secteurs</translation>
    </message>
    <message>
        <source>All sections together, as timed from the video, and the penalties.</source>
        <translation>Tous les secteurs ensemble, chronométrés sur la vidéo, et les pénalités.</translation>
    </message>
    <message>
        <source>Σ sections + penalties</source>
        <translation>Σ secteurs + pénalités</translation>
    </message>
    <message>
        <source>The sprint as it was timed for this run.</source>
        <translation>Le sprint tel qu’il a été chronométré pour cette manche.</translation>
    </message>
    <message>
        <source>sprint</source>
        <translation>sprint</translation>
    </message>
    <message>
        <source>The official time as it was entered for this run.</source>
        <translation>Le temps officiel tel qu’il a été saisi pour cette manche.</translation>
    </message>
    <message>
        <source>real</source>
        <translation>réel</translation>
    </message>
    <message>
        <source>A run of another race, held against the runs of this one.</source>
        <translation>Une manche d’une autre course, comparée aux manches de celle-ci.</translation>
    </message>
    <message>
        <source>time</source>
        <translation>temps</translation>
    </message>
    <message>
        <source>The colour tells between which tenths of its column a time lies.</source>
        <translation>La couleur dit entre quels dixièmes de sa colonne se trouve un temps.</translation>
    </message>
    <message>
        <source>tenth below &lt; time ≤ tenth above</source>
        <translation>dixième inférieur &lt; temps ≤ dixième supérieur</translation>
    </message>
    <message>
        <source>The least time of its column has a colour of its own.</source>
        <translation>Le plus petit temps de sa colonne a sa propre couleur.</translation>
    </message>
    <message>
        <source>time = least</source>
        <translation>temps = minimum</translation>
    </message>
    <message>
        <source>A total column with a run that has no total stays white.</source>
        <translation>Une colonne de total où une manche n’a pas de total reste blanche.</translation>
    </message>
    <message>
        <source>white</source>
        <translation>blanc</translation>
    </message>
    <message>
        <source>What was not timed, or lies beside the scale, has no colour.</source>
        <translation>Ce qui n’a pas été chronométré, ou sort de l’échelle, n’a pas de couleur.</translation>
    </message>
    <message>
        <source>no colour</source>
        <translation>sans couleur</translation>
    </message>
    <message>
        <source>The least of the column that counts.</source>
        <translation>Le minimum de la colonne qui compte.</translation>
    </message>
    <message>
        <source>min values</source>
        <translation>min des valeurs</translation>
    </message>
    <message>
        <source>The middle of the column, of what counts.</source>
        <translation>Le milieu de la colonne, pour ce qui compte.</translation>
    </message>
    <message>
        <source>median values</source>
        <translation>médiane des valeurs</translation>
    </message>
    <message>
        <source>The time less that of the reference.</source>
        <translation>Le temps moins celui de la référence.</translation>
    </message>
    <message>
        <source>own − reference</source>
        <translation>propre − référence</translation>
    </message>
    <message>
        <source>The place in the column: one more than are faster to the hundredth.</source>
        <translation>La place dans la colonne&#x202f;: une de plus que le nombre de ceux qui sont plus rapides au centième.</translation>
    </message>
    <message>
        <source>1 + faster</source>
        <translation>1 + plus rapides</translation>
    </message>
    <message>
        <source>How far behind the best of the column.</source>
        <translation>Le retard sur le meilleur de la colonne.</translation>
    </message>
    <message>
        <source>100 · (own / best − 1)</source>
        <translation>100 · (propre / meilleur − 1)</translation>
    </message>
    <message>
        <source>The share of the column that is as slow or slower.</source>
        <translation>La part de la colonne qui est aussi lente ou plus lente.</translation>
    </message>
    <message>
        <source>100 · slower or equal / timed</source>
        <translation>100 · plus lents ou égaux / chronométrés</translation>
    </message>
    <message>
        <source>The best time of the section that stands alone, whoever paddled it.</source>
        <translation>Le meilleur temps du secteur qui est mesuré seul, quel qu’en soit l’auteur.</translation>
    </message>
    <message>
        <source>min times</source>
        <translation>min des temps</translation>
    </message>
    <message>
        <source>The best of every section up to here, put together.</source>
        <translation>Le meilleur de chaque secteur jusqu’ici, mis bout à bout.</translation>
    </message>
    <message>
        <source>Σ bests up to here</source>
        <translation>Σ meilleurs jusqu’ici</translation>
    </message>
    <message>
        <source>The best of every section, put together.</source>
        <translation>Le meilleur de chaque secteur, mis bout à bout.</translation>
    </message>
    <message>
        <source>Σ bests</source>
        <translation>Σ meilleurs</translation>
    </message>
    <message>
        <source>The seconds of all its touches and missed gates.</source>
        <translation>Les secondes de toutes ses touches et portes manquées.</translation>
    </message>
    <message>
        <source>Σ gates</source>
        <translation>Σ portes</translation>
    </message>
    <message>
        <source>The seconds of touches and missed gates of the section.</source>
        <translation>Les secondes des touches et portes manquées du secteur.</translation>
    </message>
    <message>
        <source>Σ gates of the section</source>
        <translation>Σ portes du secteur</translation>
    </message>
    <message>
        <source>The official penalty seconds as they were entered for this run.</source>
        <translation>Les secondes de pénalité officielles telles qu’elles ont été saisies pour cette manche.</translation>
    </message>
    <message>
        <source>real penalty</source>
        <translation>pénalité réelle</translation>
    </message>
    <message>
        <source>The expected time as split taking stored it with this run.</source>
        <translation>Le temps attendu tel que la prise de temps intermédiaires l’a conservé avec cette manche.</translation>
    </message>
    <message>
        <source>expected</source>
        <translation>attendu</translation>
    </message>
    <message>
        <source>values of the column</source>
        <translation>valeurs de la colonne</translation>
    </message>
    <message>
        <source>least</source>
        <translation>minimum</translation>
    </message>
    <message>
        <source>most</source>
        <translation>maximum</translation>
    </message>
    <message>
        <source>times that stand alone</source>
        <translation>temps mesurés seuls</translation>
    </message>
    <message>
        <source>No gate was touched or missed.</source>
        <translation>Aucune porte n’a été touchée ni manquée.</translation>
    </message>
    <message>
        <source>penalties</source>
        <translation>pénalités</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>plus rapides</translation>
    </message>
    <message>
        <source>timed</source>
        <translation>chronométrés</translation>
    </message>
    <message>
        <source>slower or equal</source>
        <translation>plus lents ou égaux</translation>
    </message>
    <message>
        <source>median</source>
        <translation>médiane</translation>
    </message>
    <message>
        <source>List of online planning entries.</source>
        <translation>Liste des entrées de planification en ligne.</translation>
    </message>
    <message>
        <source>Files that have already been watched.</source>
        <translation>Fichiers qui ont déjà été vus.</translation>
    </message>
    <message>
        <source>Play the next video of a list when one ends.</source>
        <translation>Lire la vidéo suivante d’une liste quand une vidéo se termine.</translation>
    </message>
    <message>
        <source>Start a run at its stored video time rather than at the video&apos;s start.</source>
        <translation>Commencer une manche à son temps vidéo enregistré plutôt qu’au début de la vidéo.</translation>
    </message>
    <message>
        <source>Start playback as soon as a row is clicked.</source>
        <translation>Lancer la lecture dès qu’une ligne est cliquée.</translation>
    </message>
    <message>
        <source>Show penalties in the tables.</source>
        <translation>Afficher les pénalités dans les tableaux.</translation>
    </message>
    <message>
        <source>Include penalty seconds in the times that are compared.</source>
        <translation>Inclure les secondes de pénalité dans les temps comparés.</translation>
    </message>
    <message>
        <source>Colours of the split table.</source>
        <translation>Couleurs du tableau des intermédiaires.</translation>
    </message>
    <message>
        <source>Comment tag chosen last.</source>
        <translation>Étiquette de commentaire choisie en dernier.</translation>
    </message>
    <message>
        <source>Show the coach&apos;s comments.</source>
        <translation>Afficher les commentaires de l’entraîneur.</translation>
    </message>
    <message>
        <source>In tag mode, play only the tagged part of a video.</source>
        <translation>En mode étiquettes, lire seulement la partie étiquetée d’une vidéo.</translation>
    </message>
    <message>
        <source>Kind of data opened last.</source>
        <translation>Type de données ouvert en dernier.</translation>
    </message>
    <message>
        <source>Full screen shows the roll chart.</source>
        <translation>Le plein écran affiche le graphique du roulis.</translation>
    </message>
    <message>
        <source>Full screen shows the pitch chart.</source>
        <translation>Le plein écran affiche le graphique du tangage.</translation>
    </message>
    <message>
        <source>Full screen shows the heart-rate chart.</source>
        <translation>Le plein écran affiche le graphique de la fréquence cardiaque.</translation>
    </message>
    <message>
        <source>Full screen shows the scatter chart.</source>
        <translation>Le plein écran affiche le nuage de points.</translation>
    </message>
    <message>
        <source>Show boat-motion values normalised.</source>
        <translation>Afficher normalisées les valeurs du mouvement du bateau.</translation>
    </message>
    <message>
        <source>Show the impulse gauge.</source>
        <translation>Afficher la jauge d’impulsion.</translation>
    </message>
    <message>
        <source>Show the stroke-rate gauge.</source>
        <translation>Afficher la jauge de cadence.</translation>
    </message>
    <message>
        <source>Number of splits of a new split file.</source>
        <translation>Nombre d’intermédiaires d’un nouveau fichier d’intermédiaires.</translation>
    </message>
    <message>
        <source>Tag names saved for reuse.</source>
        <translation>Noms d’étiquettes enregistrés pour être réutilisés.</translation>
    </message>
    <message>
        <source>Time-loss reasons saved for reuse.</source>
        <translation>Raisons de pertes de temps enregistrées pour être réutilisées.</translation>
    </message>
    <message>
        <source>Load a planning file at start.</source>
        <translation>Charger un fichier de planification au démarrage.</translation>
    </message>
    <message>
        <source>The planning file to load at start is an online one.</source>
        <translation>Le fichier de planification à charger au démarrage est en ligne.</translation>
    </message>
    <message>
        <source>Planning file to load at start.</source>
        <translation>Fichier de planification à charger au démarrage.</translation>
    </message>
    <message>
        <source>Also export the table as CSV on saving.</source>
        <translation>Exporter aussi le tableau en CSV à l’enregistrement.</translation>
    </message>
    <message>
        <source>Also export a PDF on saving.</source>
        <translation>Exporter aussi un PDF à l’enregistrement.</translation>
    </message>
    <message>
        <source>Main folder to open at start.</source>
        <translation>Dossier principal à ouvrir au démarrage.</translation>
    </message>
    <message>
        <source>Open the test tool at start.</source>
        <translation>Ouvrir l’outil de tests au démarrage.</translation>
    </message>
    <message>
        <source>The file is not an activity, but something else of the device.</source>
        <translation>Le fichier n’est pas une activité, mais autre chose de l’appareil.</translation>
    </message>
    <message>
        <source>There are no points in the file.</source>
        <translation>Il n’y a aucun point dans le fichier.</translation>
    </message>
    <message numerus="yes">
        <source>{} videos</source>
        <translation>
            <numerusform>{} vidéo</numerusform>
            <numerusform>{} vidéos</numerusform>
        </translation>
    </message>
    <message>
        <source>Makes a training file of the videos that carry an athlete&apos;s name</source>
        <translation>Crée un fichier d’entraînement des vidéos qui portent le nom d’un athlète</translation>
    </message>
    <message>
        <source>Folder of the videos</source>
        <translation>Dossier des vidéos</translation>
    </message>
    <message>
        <source>The athlete&apos;s name; a crew as &quot;A / B&quot;</source>
        <translation>Le nom de l’athlète&#x202f;; un équipage sous la forme &quot;A / B&quot;</translation>
    </message>
    <message>
        <source>Replace a training file that is there already</source>
        <translation>Remplacer un fichier d’entraînement déjà présent</translation>
    </message>
    <message>
        <source>Kavela: splits, results and recordings of canoe slalom.</source>
        <translation>Kavela&#x202f;: intermédiaires, résultats et enregistrements de canoë-kayak slalom.</translation>
    </message>
    <message>
        <source>Files to open in the desktop program</source>
        <translation>Fichiers à ouvrir dans le programme de bureau</translation>
    </message>
    <message>
        <source>Start another desktop program, also where one runs</source>
        <translation>Démarrer un autre programme de bureau, même si un premier est lancé</translation>
    </message>
    <message>
        <source>Language of what is said: en or one that is built in</source>
        <translation>Langue des messages&#x202f;: en ou l’une de celles qui sont intégrées</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>Il n’y a pas assez de mémoire pour ce fichier.</translation>
    </message>
    <message>
        <source>Composes a film of several runs</source>
        <translation>Compose un film de plusieurs manches</translation>
    </message>
    <message>
        <source>What is to be composed (.json)</source>
        <translation>Ce qui doit être composé (.json)</translation>
    </message>
    <message>
        <source>File to write, in place of the job&apos;s own</source>
        <translation>Fichier à écrire, au lieu de celui de la tâche</translation>
    </message>
    <message numerus="yes">
        <source>{} strokes</source>
        <translation>
            <numerusform>{} coup de pagaie</numerusform>
            <numerusform>{} coups de pagaie</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} turns</source>
        <translation>
            <numerusform>{} virage</numerusform>
            <numerusform>{} virages</numerusform>
        </translation>
    </message>
    <message>
        <source>Give another name with --name.</source>
        <translation>Donnez un autre nom avec --name.</translation>
    </message>
    <message>
        <source>A name goes with one recording only.</source>
        <translation>Un nom ne va qu’avec un seul enregistrement.</translation>
    </message>
    <message>
        <source>Writes the processed session of raw recordings</source>
        <translation>Écrit la séance traitée d’enregistrements bruts</translation>
    </message>
    <message>
        <source>Raw recordings (.kvb)</source>
        <translation>Enregistrements bruts (.kvb)</translation>
    </message>
    <message>
        <source>Name of the new file, for a further one</source>
        <translation>Nom du nouveau fichier, pour un fichier de plus</translation>
    </message>
    <message numerus="yes">
        <source>{} files</source>
        <translation>
            <numerusform>{} fichier</numerusform>
            <numerusform>{} fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Failed to create file</source>
        <translation>Échec de la création du fichier</translation>
    </message>
    <message>
        <source>Writes a sample season to try Kavela with</source>
        <translation>Écrit une saison d’exemple pour essayer Kavela</translation>
    </message>
    <message>
        <source>Folder to write to; made where it is missing</source>
        <translation>Dossier où écrire&#x202f;; créé s’il manque</translation>
    </message>
    <message>
        <source>Makes short films of runs as well</source>
        <translation>Crée aussi de courts films des manches</translation>
    </message>
    <message>
        <source>Writes the split table for a spreadsheet, or a report</source>
        <translation>Écrit le tableau des intermédiaires pour un tableur, ou un rapport</translation>
    </message>
    <message>
        <source>Split file (.kvx) of any release</source>
        <translation>Fichier d’intermédiaires (.kvx) de n’importe quelle version</translation>
    </message>
    <message>
        <source>File to write: semicolon-separated text</source>
        <translation>Fichier à écrire&#x202f;: texte séparé par des points-virgules</translation>
    </message>
    <message>
        <source>File to write: the race report, on A4 pages</source>
        <translation>Fichier à écrire&#x202f;: le rapport de course, sur des pages A4</translation>
    </message>
    <message>
        <source>There is no split file.</source>
        <translation>Il n’y a aucun fichier d’intermédiaires.</translation>
    </message>
    <message numerus="yes">
        <source>{} tables</source>
        <translation>
            <numerusform>{} tableau</numerusform>
            <numerusform>{} tableaux</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} runs</source>
        <translation>
            <numerusform>{} manche</numerusform>
            <numerusform>{} manches</numerusform>
        </translation>
    </message>
    <message>
        <source>Writes what split files say as tables for other programs</source>
        <translation>Écrit le contenu des fichiers d’intermédiaires en tableaux pour d’autres programmes</translation>
    </message>
    <message>
        <source>Split files, or folders with them</source>
        <translation>Fichiers d’intermédiaires, ou dossiers qui en contiennent</translation>
    </message>
    <message>
        <source>Folder to write to</source>
        <translation>Dossier où écrire</translation>
    </message>
    <message>
        <source>Fetches the films of a race by their bibs</source>
        <translation>Récupère les films d’une course d’après leurs dossards</translation>
    </message>
    <message>
        <source>Where the films come from (.json)</source>
        <translation>D’où viennent les films (.json)</translation>
    </message>
    <message>
        <source>Only print what would be fetched</source>
        <translation>Seulement afficher ce qui serait récupéré</translation>
    </message>
    <message>
        <source>Do not ask before anything is fetched</source>
        <translation>Ne rien demander avant de récupérer</translation>
    </message>
    <message>
        <source>User name for the server of the address</source>
        <translation>Nom d’utilisateur pour le serveur de l’adresse</translation>
    </message>
    <message>
        <source>A search needs a file or folder and, last, the query in quotes.</source>
        <translation>Une recherche demande un fichier ou un dossier et, en dernier, la requête entre guillemets.</translation>
    </message>
    <message>
        <source>The table cannot be written over a file that is searched.</source>
        <translation>Le tableau ne peut pas être écrit par-dessus un fichier où l’on cherche.</translation>
    </message>
    <message>
        <source>Searches split files: a season in one question</source>
        <translation>Cherche dans les fichiers d’intermédiaires&#x202f;: une saison en une question</translation>
    </message>
    <message>
        <source>Split files, or folders with them; last the query, in quotes</source>
        <translation>Fichiers d’intermédiaires, ou dossiers qui en contiennent&#x202f;; en dernier la requête, entre guillemets</translation>
    </message>
    <message>
        <source>Print one JSON document</source>
        <translation>Afficher un seul document JSON</translation>
    </message>
    <message numerus="yes">
        <source>{} groups</source>
        <translation>
            <numerusform>{} groupe</numerusform>
            <numerusform>{} groupes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} rows</source>
        <translation>
            <numerusform>{} ligne</numerusform>
            <numerusform>{} lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>What an athlete can lift once, by five formulas</source>
        <translation>Ce qu’un athlète peut soulever une fois, selon cinq formules</translation>
    </message>
    <message>
        <source>How often the weight was lifted</source>
        <translation>Combien de fois la charge a été soulevée</translation>
    </message>
    <message>
        <source>The weight in kilograms</source>
        <translation>La charge en kilogrammes</translation>
    </message>
    <message numerus="yes">
        <source>{} results</source>
        <translation>
            <numerusform>{} résultat</numerusform>
            <numerusform>{} résultats</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} lines</source>
        <translation>
            <numerusform>{} ligne</numerusform>
            <numerusform>{} lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>Adds an official results list to a split file</source>
        <translation>Ajoute une liste de résultats officiels à un fichier d’intermédiaires</translation>
    </message>
    <message>
        <source>Split file (.kvx) of the current version</source>
        <translation>Fichier d’intermédiaires (.kvx) de la version actuelle</translation>
    </message>
    <message>
        <source>Semicolon-separated text with a header line: position, bib, name, nationality, time, penalty</source>
        <translation>Texte séparé par des points-virgules avec une ligne de titres&#x202f;: position, bib, name, nationality, time, penalty</translation>
    </message>
    <message>
        <source>Says what files are, or what is wrong in them</source>
        <translation>Dit ce que sont des fichiers, ou ce qui ne va pas en eux</translation>
    </message>
    <message>
        <source>Files of any kind</source>
        <translation>Fichiers de toute sorte</translation>
    </message>
    <message>
        <source>The table cannot be written over a file that it is made from.</source>
        <translation>Le tableau ne peut pas être écrit par-dessus un fichier dont il est tiré.</translation>
    </message>
    <message>
        <source>Tells where runs lose time against one another</source>
        <translation>Dit où les manches perdent du temps les unes sur les autres</translation>
    </message>
    <message>
        <source>Split file (.kvx) of any release; with --athlete also folders of them</source>
        <translation>Fichier d’intermédiaires (.kvx) de n’importe quelle version&#x202f;; avec --athlete aussi des dossiers qui en contiennent</translation>
    </message>
    <message>
        <source>winner, fastest, ideal, median, own or run:I; winner without other word</source>
        <translation>winner, fastest, ideal, median, own ou run:I&#x202f;; sans autre mention winner</translation>
    </message>
    <message>
        <source>The season of an athlete over all the paths; a crew as &quot;A / B&quot;</source>
        <translation>La saison d’un athlète sur tous les chemins donnés&#x202f;; un équipage sous la forme &quot;A / B&quot;</translation>
    </message>
    <message>
        <source>Only the athlete&apos;s runs of this category</source>
        <translation>Seulement les manches de l’athlète dans cette catégorie</translation>
    </message>
    <message>
        <source>Folder to write the athlete&apos;s page into, named after the athlete</source>
        <translation>Dossier où écrire la page de l’athlète, nommée d’après l’athlète</translation>
    </message>
    <message>
        <source>run {}</source>
        <translation>manche {}</translation>
    </message>
    <message>
        <source>no total</source>
        <translation>pas de total</translation>
    </message>
    <message>
        <source>, no totals to compare</source>
        <translation>, pas de totaux à comparer</translation>
    </message>
    <message>
        <source>strokes {} on {}</source>
        <translation>coups de pagaie {} contre {}</translation>
    </message>
    <message>
        <source>gate {} {}</source>
        <translation>porte {} {}</translation>
    </message>
    <message>
        <source>     Explained by notes: {} of {} ({:.0f} %)</source>
        <translation>     Expliqué par des notes&#x202f;: {} sur {} ({:.0f}&#x202f;%)</translation>
    </message>
    <message>
        <source>Tells how often gates are touched, what it cost, and whether speed pays</source>
        <translation>Dit combien de fois les portes sont touchées, ce que cela a coûté et si la vitesse paie</translation>
    </message>
    <message>
        <source>Split files (.kvx) of any release, or folders of them</source>
        <translation>Fichiers d’intermédiaires (.kvx) de n’importe quelle version, ou dossiers qui en contiennent</translation>
    </message>
    <message>
        <source>What the rates are by; by gate without other word</source>
        <translation>Selon quoi sont les taux&#x202f;; par porte sans autre mention</translation>
    </message>
    <message>
        <source>Only runs of this category</source>
        <translation>Seulement les manches de cette catégorie</translation>
    </message>
    <message>
        <source>File to write the rates to: semicolon-separated text</source>
        <translation>Fichier où écrire les taux&#x202f;: texte séparé par des points-virgules</translation>
    </message>
    <message>
        <source>Explain one number instead: rate/gate/7, touches/crew/NAME, cost/RUN/GATE, …</source>
        <translation>Expliquer plutôt un seul nombre&#x202f;: rate/gate/7, touches/crew/NAME, cost/RUN/GATE, …</translation>
    </message>
    <message>
        <source>… {} more; all of them with --json, --csv or in a pipe</source>
        <translation>… {} de plus&#x202f;; toutes avec --json, --csv ou dans un tube</translation>
    </message>
    <message>
        <source>Penalties by {} · {}, {}</source>
        <translation>Pénalités par {} · {}, {}</translation>
    </message>
    <message>
        <source>{} of {} whole runs without a penalty: {:.1f} % ({})</source>
        <translation>{} manches complètes sur {} sans pénalité&#x202f;: {:.1f}&#x202f;% ({})</translation>
    </message>
    <message>
        <source>Ranked: drawn towards {:.1f} %, the more the fewer the passages;</source>
        <translation>Classé&#x202f;: ramené vers {:.1f}&#x202f;%, d’autant plus que les passages sont peu nombreux&#x202f;;</translation>
    </message>
    <message>
        <source>{} of {}</source>
        <translation>{} sur {}</translation>
    </message>
    <message>
        <source>What penalties cost</source>
        <translation>Ce que coûtent les pénalités</translation>
    </message>
    <message numerus="yes">
        <source>{} penalties</source>
        <translation>
            <numerusform>{} pénalité</numerusform>
            <numerusform>{} pénalités</numerusform>
        </translation>
    </message>
    <message>
        <source>gate {}</source>
        <translation>porte {}</translation>
    </message>
    <message>
        <source>  {} of {}, without {}</source>
        <translation>  {} sur {}, sans {}</translation>
    </message>
    <message>
        <source>{} {} of {} ({:.0f} %, {:.0f}–{:.0f})</source>
        <translation>{} {} sur {} ({:.0f}&#x202f;%, {:.0f}–{:.0f})</translation>
    </message>
    <message>
        <source>Noted of {}</source>
        <translation>Noté pour {}</translation>
    </message>
    <message>
        <source>1 % of speed pays for {:.2f} touches a run; times in percent of the group&apos;s median</source>
        <translation>1&#x202f;% de vitesse paie pour {:.2f} touche par manche&#x202f;; temps en pour cent de la médiane du groupe</translation>
    </message>
    <message>
        <source>The sum of the best splits, and what each run could be</source>
        <translation>La somme des meilleurs intermédiaires, et ce que chaque manche pourrait être</translation>
    </message>
    <message>
        <source>Store the values in the file</source>
        <translation>Enregistrer les valeurs dans le fichier</translation>
    </message>
    <message>
        <source>Tell how a number came about: perfect, or xtime/5 (runs from 0)</source>
        <translation>Dire comment un nombre est né&#x202f;: perfect, ou xtime/5 (manches à partir de 0)</translation>
    </message>
    <message>
        <source>The weeks of each athlete&apos;s seasons</source>
        <translation>Les semaines des saisons de chaque athlète</translation>
    </message>
    <message>
        <source>Planning (.planning) of any version</source>
        <translation>Planification (.planning) de n’importe quelle version</translation>
    </message>
    <message>
        <source>Brings plannings to the current version</source>
        <translation>Amène des planifications à la version actuelle</translation>
    </message>
    <message>
        <source>Plannings (.planning) of any version</source>
        <translation>Planifications (.planning) de n’importe quelle version</translation>
    </message>
    <message>
        <source>Shows and upgrades training plannings</source>
        <translation>Montre et met à jour des planifications d’entraînement</translation>
    </message>
    <message numerus="yes">
        <source>{} weeks</source>
        <translation>
            <numerusform>{} semaine</numerusform>
            <numerusform>{} semaines</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} sessions</source>
        <translation>
            <numerusform>{} séance</numerusform>
            <numerusform>{} séances</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} athletes</source>
        <translation>
            <numerusform>{} athlète</numerusform>
            <numerusform>{} athlètes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} favourite interval sessions</source>
        <translation>
            <numerusform>{} séance d’intervalles favorite</numerusform>
            <numerusform>{} séances d’intervalles favorites</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} variability measurements</source>
        <translation>
            <numerusform>{} mesure de variabilité</numerusform>
            <numerusform>{} mesures de variabilité</numerusform>
        </translation>
    </message>
    <message>
        <source>Tells how the athletes of a team stand over seasons</source>
        <translation>Dit où en sont les athlètes d’une équipe au fil des saisons</translation>
    </message>
    <message>
        <source>Team file (.kvteam)</source>
        <translation>Fichier d’équipe (.kvteam)</translation>
    </message>
    <message>
        <source>Split files (.kvx) of any release, or folders of them: they tell the winners and the rivals</source>
        <translation>Fichiers d’intermédiaires (.kvx) de n’importe quelle version, ou dossiers qui en contiennent&#x202f;: ils disent les vainqueurs et les rivaux</translation>
    </message>
    <message>
        <source>Category: MK1, WK1, MC1, WC1, MX1, WX1</source>
        <translation>Catégorie&#x202f;: MK1, WK1, MC1, WC1, MX1, WX1</translation>
    </message>
    <message>
        <source>Only these: 2025, or 2023-2025</source>
        <translation>Seulement celles-ci&#x202f;: 2025, ou 2023-2025</translation>
    </message>
    <message>
        <source>Whose places to expect of one another; the team and those who raced most often without it</source>
        <translation>De qui attendre les places les uns face aux autres&#x202f;; sans cela, l’équipe et ceux qui ont couru le plus souvent</translation>
    </message>
    <message>
        <source>File to write: the runs of the athletes as semicolon-separated text</source>
        <translation>Fichier à écrire&#x202f;: les manches des athlètes en texte séparé par des points-virgules</translation>
    </message>
    <message>
        <source>Folder to write a report of the team and a page for each athlete into</source>
        <translation>Dossier où écrire un rapport de l’équipe et une page pour chaque athlète</translation>
    </message>
    <message>
        <source>Explain one number instead: spread, trend/NAME, percent/NAME/2025/WC1/Final, …</source>
        <translation>Expliquer plutôt un seul nombre&#x202f;: spread, trend/NAME, percent/NAME/2025/WC1/Final, …</translation>
    </message>
    <message>
        <source>{:+.1f} to {:+.1f}</source>
        <translation>de {:+.1f} à {:+.1f}</translation>
    </message>
    <message>
        <source>{:+.2f} to {:+.2f}</source>
        <translation>de {:+.2f} à {:+.2f}</translation>
    </message>
    <message>
        <source>      {} run {} {} {}
</source>
        <translation>      {} manche {} {} {}
</translation>
    </message>
    <message>
        <source>  {}. {}: {}, {} s a run
</source>
        <translation>  {}. {}&#x202f;: {}, {} s par manche
</translation>
    </message>
    <message numerus="yes">
        <source>{} whole runs</source>
        <translation>
            <numerusform>{} manche complète</numerusform>
            <numerusform>{} manches complètes</numerusform>
        </translation>
    </message>
    <message>
        <source> · on {} · {}
</source>
        <translation> · face à {} · {}
</translation>
    </message>
    <message>
        <source> ({:+.1f} to {:+.1f})</source>
        <translation> (de {:+.1f} à {:+.1f})</translation>
    </message>
    <message numerus="yes">
        <source>{} split files</source>
        <translation>
            <numerusform>{} fichier d’intermédiaires</numerusform>
            <numerusform>{} fichiers d’intermédiaires</numerusform>
        </translation>
    </message>
    <message>
        <source> · {} · {} of races</source>
        <translation> · {} · {} des courses</translation>
    </message>
    <message>
        <source>Too few runs to tell how much they vary by chance.</source>
        <translation>Trop peu de manches pour dire à quel point elles varient par hasard.</translation>
    </message>
    <message>
        <source>Runs vary by {:.1f} %{}, from {}; {:.2f} % is worth gaining.</source>
        <translation>Les manches varient de {:.1f}&#x202f;%{}, d’après {}&#x202f;; gagner {:.2f}&#x202f;% en vaut la peine.</translation>
    </message>
    <message>
        <source>Neither winners nor fastest splits of these races are known.</source>
        <translation>Ni les vainqueurs ni les intermédiaires les plus rapides de ces courses ne sont connus.</translation>
    </message>
    <message>
        <source>      ┄ third of the final, median</source>
        <translation>      ┄ troisième de la finale, médiane</translation>
    </message>
    <message>
        <source>within</source>
        <translation>dispersion</translation>
    </message>
    <message>
        <source>trend</source>
        <translation>tendance</translation>
    </message>
    <message>
        <source>on splits</source>
        <translation>sur les intermédiaires</translation>
    </message>
    <message>
        <source>{:.1f} % (all {:.1f}{})</source>
        <translation>{:.1f}&#x202f;% (tous {:.1f}{})</translation>
    </message>
    <message>
        <source>, {} missed</source>
        <translation>, {} manquées</translation>
    </message>
    <message>
        <source>{:+.1f} %/yr{} </source>
        <translation>{:+.1f}&#x202f;%/an{} </translation>
    </message>
    <message>
        <source>{} of {} ({:.0f}–{:.0f} %)</source>
        <translation>{} sur {} ({:.0f}–{:.0f}&#x202f;%)</translation>
    </message>
    <message numerus="yes">
        <source>{} races</source>
        <translation>
            <numerusform>{} course</numerusform>
            <numerusform>{} courses</numerusform>
        </translation>
    </message>
    <message>
        <source> {} of {} ({:.0f}–{:.0f} %), {:+.1f} %</source>
        <translation> {} sur {} ({:.0f}–{:.0f}&#x202f;%), {:+.1f}&#x202f;%</translation>
    </message>
    <message>
        <source>rank {}</source>
        <translation>rang {}</translation>
    </message>
    <message>
        <source>… {} more; all of them with --json or in a pipe</source>
        <translation>… {} de plus&#x202f;; tout avec --json ou dans un tube</translation>
    </message>
    <message>
        <source>{} more boats come into question: name a field with --field</source>
        <translation>{} autres bateaux entrent en ligne de compte&#x202f;: nommez un plateau avec --field</translation>
    </message>
    <message>
        <source>{} is left out: fewer than {} runs, or never met the others</source>
        <translation>{} est laissé de côté&#x202f;: moins de {} manches, ou n’a jamais rencontré les autres</translation>
    </message>
    <message>
        <source>The ranking of each category</source>
        <translation>Le classement de chaque catégorie</translation>
    </message>
    <message>
        <source>Selection file (.kvsr) of any layout</source>
        <translation>Fichier de sélection (.kvsr) de n’importe quel format</translation>
    </message>
    <message>
        <source>Kind of bonus that counts, from 0</source>
        <translation>Type de bonus qui compte, à partir de 0</translation>
    </message>
    <message>
        <source>Folder to write both reports into</source>
        <translation>Dossier où écrire les deux rapports</translation>
    </message>
    <message>
        <source>Store percentages and scores in the file</source>
        <translation>Enregistrer pourcentages et scores dans le fichier</translation>
    </message>
    <message>
        <source>Adds athletes from a list to a selection</source>
        <translation>Ajoute les athlètes d’une liste à une sélection</translation>
    </message>
    <message>
        <source>Selection file (.kvsr)</source>
        <translation>Fichier de sélection (.kvsr)</translation>
    </message>
    <message>
        <source>Text with lines Cat;Name;Surname;year;club</source>
        <translation>Texte avec des lignes Cat;Name;Surname;year;club</translation>
    </message>
    <message>
        <source>Takes the results of a race from its split files</source>
        <translation>Reprend les résultats d’une course de ses fichiers d’intermédiaires</translation>
    </message>
    <message>
        <source>Race of the selection: its name, or its number counted from 0</source>
        <translation>Course de la sélection&#x202f;: son nom, ou son numéro compté à partir de 0</translation>
    </message>
    <message>
        <source>Kind of bonus that counts in the scores, from 0</source>
        <translation>Type de bonus qui compte dans les scores, à partir de 0</translation>
    </message>
    <message>
        <source>Split files (.kvx) of the race</source>
        <translation>Fichiers d’intermédiaires (.kvx) de la course</translation>
    </message>
    <message>
        <source>Selection races and their ranking</source>
        <translation>Courses de sélection et leur classement</translation>
    </message>
    <message>
        <source>Prints the coloured split table of a race</source>
        <translation>Affiche le tableau coloré des intermédiaires d’une course</translation>
    </message>
    <message>
        <source>Colours: race or training</source>
        <translation>Couleurs&#x202f;: race ou training</translation>
    </message>
    <message>
        <source>Times from the start to each split</source>
        <translation>Temps du départ à chaque intermédiaire</translation>
    </message>
    <message>
        <source>Add penalty seconds to the times</source>
        <translation>Ajouter les secondes de pénalité aux temps</translation>
    </message>
    <message>
        <source>Show penalty seconds behind the times</source>
        <translation>Montrer les secondes de pénalité derrière les temps</translation>
    </message>
    <message>
        <source>Only runs of this phase</source>
        <translation>Seulement les manches de cette phase</translation>
    </message>
    <message>
        <source>Tell how a number came about: cell/5/3, band/5/3, ideal/3, ideal/total (runs from 0, columns and sections from 1)</source>
        <translation>Dire comment un nombre est né&#x202f;: cell/5/3, band/5/3, ideal/3, ideal/total (manches à partir de 0, colonnes et secteurs à partir de 1)</translation>
    </message>
    <message>
        <source>{} gates, {} upstream</source>
        <translation>{} portes, dont {} en remontée</translation>
    </message>
    <message>
        <source>The table cannot be written over the recording itself.</source>
        <translation>Le tableau ne peut pas être écrit par-dessus l’enregistrement lui-même.</translation>
    </message>
    <message>
        <source>Finds the strokes and turns of a boat-motion recording</source>
        <translation>Trouve les coups de pagaie et les virages d’un enregistrement du mouvement du bateau</translation>
    </message>
    <message>
        <source>Raw recording (.kvb)</source>
        <translation>Enregistrement brut (.kvb)</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number from {:g} to {:g} {}.</source>
        <translation>«&#xa0;{}&#xa0;» n’est pas un nombre de {:g} à {:g} {}.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is none of: {}.</source>
        <translation>«&#xa0;{}&#xa0;» n’est aucun de&#x202f;: {}.</translation>
    </message>
    <message>
        <source>Side of the phone that points to the bow, where fixes do not tell: top, bottom, right, left, back or screen</source>
        <translation>Côté du téléphone qui pointe vers l’avant, là où les positions ne le disent pas&#x202f;: top, bottom, right, left, back ou screen</translation>
    </message>
    <message>
        <source>Athlete, boat and kit in kg</source>
        <translation>Athlète, bateau et équipement en kg</translation>
    </message>
    <message>
        <source>Resistance of the hull over the square of its speed in N·s²/m²</source>
        <translation>Résistance de la coque rapportée au carré de sa vitesse, en N·s²/m²</translation>
    </message>
    <message>
        <source>Class of boat: k1, c1, c2, kayak or canoe</source>
        <translation>Classe du bateau&#x202f;: k1, c1, c2, kayak ou canoe</translation>
    </message>
    <message numerus="yes">
        <source>{} bouts</source>
        <translation>
            <numerusform>{} série continue</numerusform>
            <numerusform>{} séries continues</numerusform>
        </translation>
    </message>
    <message>
        <source>{:.1f} 1/min</source>
        <translation>{:.1f} 1/min</translation>
    </message>
    <message>
        <source>{:g} kg, drag {:g} N·s²/m², {}; force and power hold on flat water only</source>
        <translation>{:g} kg, résistance {:g} N·s²/m², {}&#x202f;; force et puissance ne valent qu’en eau plate</translation>
    </message>
    <message>
        <source>Shows any list of results as a table, with columns reckoned</source>
        <translation>Montre n’importe quelle liste de résultats en tableau, avec des colonnes calculées</translation>
    </message>
    <message>
        <source>A column to add: total:Time,Pen, rank:Total, gap, percent, percentile, difference:Run 2,Run 1; with &quot;by Category&quot; within each category, with &quot;down&quot; the highest first</source>
        <translation>Une colonne à ajouter&#x202f;: total:Time,Pen, rank:Total, gap, percent, percentile, difference:Run 2,Run 1&#x202f;; avec &quot;by Category&quot; au sein de chaque catégorie, avec &quot;down&quot; le plus grand d’abord</translation>
    </message>
    <message>
        <source>ROW,COL,VALUE,FN as in Nation,Category,Time,mean; FN is count, sum, mean, median, least or most</source>
        <translation>ROW,COL,VALUE,FN comme dans Nation,Category,Time,mean&#x202f;; FN est count, sum, mean, median, least ou most</translation>
    </message>
    <message>
        <source>Team (.kvteam) whose athletes are looked for</source>
        <translation>Équipe (.kvteam) dont on cherche les athlètes</translation>
    </message>
    <message>
        <source>The sheet, where there are several; of a split file which of its lists</source>
        <translation>La feuille, s’il y en a plusieurs&#x202f;; pour un fichier d’intermédiaires, laquelle de ses listes</translation>
    </message>
    <message>
        <source>File to write the table to: semicolon-separated text</source>
        <translation>Fichier où écrire le tableau&#x202f;: texte séparé par des points-virgules</translation>
    </message>
    <message>
        <source>Category, letter for letter as in the file: MK1, WK1, MC1, WC1, MX1, WX1</source>
        <translation>Catégorie, lettre pour lettre comme dans le fichier&#x202f;: MK1, WK1, MC1, WC1, MX1, WX1</translation>
    </message>
    <message>
        <source>What the athletes of a team reached</source>
        <translation>Ce que les athlètes d’une équipe ont atteint</translation>
    </message>
    <message>
        <source>Name of the athlete</source>
        <translation>Nom de l’athlète</translation>
    </message>
    <message>
        <source>Folder to write &quot;2025 Categorization.pdf&quot; into</source>
        <translation>Dossier où écrire &quot;2025 Categorization.pdf&quot;</translation>
    </message>
    <message>
        <source>Brings files of older releases to the current version</source>
        <translation>Amène des fichiers de versions plus anciennes à la version actuelle</translation>
    </message>
    <message>
        <source>Split files, selection races, plannings and recordings, or folders</source>
        <translation>Fichiers d’intermédiaires, courses de sélection, planifications et enregistrements, ou dossiers</translation>
    </message>
    <message>
        <source>rule</source>
        <translation>règle</translation>
    </message>
    <message>
        <source>source</source>
        <translation>source</translation>
    </message>
    <message>
        <source>note</source>
        <translation>note</translation>
    </message>
    <message>
        <source>split {}</source>
        <translation>intermédiaire {}</translation>
    </message>
    <message>
        <source>entry {}</source>
        <translation>entrée {}</translation>
    </message>
    <message>
        <source>shown {} of {}</source>
        <translation>{} affichés sur {}</translation>
    </message>
    <message>
        <source>{} to {}  ({})</source>
        <translation>de {} à {}  ({})</translation>
    </message>
    <message>
        <source>Imported “%1”</source>
        <translation>«&#xa0;%1&#xa0;» importé</translation>
    </message>
    <message>
        <source>“%1” cannot be imported</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être importé</translation>
    </message>
    <message>
        <source>Watches and phones (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;All files (*)</source>
        <translation>Montres et téléphones (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Import from a watch or a phone</source>
        <translation>Importer d’une montre ou d’un téléphone</translation>
    </message>
    <message>
        <source>The rows of the group.</source>
        <translation>Les lignes du groupe.</translation>
    </message>
    <message>
        <source>number of rows</source>
        <translation>nombre de lignes</translation>
    </message>
    <message>
        <source>The least value of the group&apos;s rows.</source>
        <translation>La plus petite valeur des lignes du groupe.</translation>
    </message>
    <message>
        <source>The mean of the group&apos;s rows.</source>
        <translation>La moyenne des lignes du groupe.</translation>
    </message>
    <message>
        <source>Σ values / rows with a value</source>
        <translation>Σ valeurs / lignes avec une valeur</translation>
    </message>
    <message>
        <source>The middle of the group&apos;s rows.</source>
        <translation>Le milieu des lignes du groupe.</translation>
    </message>
    <message>
        <source>Stopped; nothing was written.</source>
        <translation>Arrêté&#x202f;; rien n’a été écrit.</translation>
    </message>
    <message numerus="yes">
        <source>{} frames</source>
        <translation>
            <numerusform>{} image</numerusform>
            <numerusform>{} images</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} films</source>
        <translation>
            <numerusform>{} film</numerusform>
            <numerusform>{} films</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to fetch.</source>
        <translation>Il n’y a rien à récupérer.</translation>
    </message>
    <message>
        <source>90 %, Student&apos;s t</source>
        <translation>90&#x202f;%, t de Student</translation>
    </message>
    <message>
        <source>90 %, Wilson</source>
        <translation>90&#x202f;%, Wilson</translation>
    </message>
    <message>
        <source>own</source>
        <translation>propre</translation>
    </message>
    <message>
        <source>Time lost between two neighbouring marks that both runs have.</source>
        <translation>Temps perdu entre deux marques voisines que les deux manches possèdent.</translation>
    </message>
    <message>
        <source>Time lost in percent of the reference&apos;s time there.</source>
        <translation>Temps perdu en pour cent du temps de la référence à cet endroit.</translation>
    </message>
    <message>
        <source>100 · (own − reference) / reference</source>
        <translation>100 · (propre − référence) / référence</translation>
    </message>
    <message>
        <source>After a mark that was not taken the next time covers both sections.</source>
        <translation>Après une marque qui n’a pas été prise, le temps suivant couvre les deux secteurs.</translation>
    </message>
    <message>
        <source>Σ times between the marks</source>
        <translation>Σ temps entre les marques</translation>
    </message>
    <message>
        <source>The least time that stands alone, whoever paddled it.</source>
        <translation>Le plus petit temps mesuré seul, quel qu’en soit l’auteur.</translation>
    </message>
    <message>
        <source>The median of the finalists&apos; times that stand alone.</source>
        <translation>La médiane des temps des finalistes mesurés seuls.</translation>
    </message>
    <message>
        <source>median times</source>
        <translation>médiane des temps</translation>
    </message>
    <message>
        <source>The difference of the totals, official where both have an official one.</source>
        <translation>La différence des temps totaux, officiels là où les deux manches en ont un.</translation>
    </message>
    <message>
        <source>own total − reference total</source>
        <translation>total propre − total de la référence</translation>
    </message>
    <message>
        <source>All sections and the penalties, as timed from the video.</source>
        <translation>Tous les secteurs et les pénalités, chronométrés sur la vidéo.</translation>
    </message>
    <message>
        <source>What was lost on the water: all stretches together.</source>
        <translation>Ce qui a été perdu sur l’eau&#x202f;: tous les tronçons ensemble.</translation>
    </message>
    <message>
        <source>Σ losses</source>
        <translation>Σ pertes</translation>
    </message>
    <message>
        <source>The difference of the penalties.</source>
        <translation>La différence des pénalités.</translation>
    </message>
    <message>
        <source>own penalties − reference&apos;s penalties</source>
        <translation>pénalités propres − pénalités de la référence</translation>
    </message>
    <message>
        <source>What neither water nor penalties tell: official against video time.</source>
        <translation>Ce que ni l’eau ni les pénalités n’expliquent&#x202f;: temps officiel face au temps vidéo.</translation>
    </message>
    <message>
        <source>gap − paddling − penalties</source>
        <translation>écart − navigation − pénalités</translation>
    </message>
    <message>
        <source>Time lost in an upstream gate, by its first entry in both runs.</source>
        <translation>Temps perdu dans une remontée, d’après sa première entrée dans les deux manches.</translation>
    </message>
    <message>
        <source>Time lost from the entrance of an upstream gate to its pole line.</source>
        <translation>Temps perdu de l’entrée d’une remontée à sa ligne de porte.</translation>
    </message>
    <message>
        <source>Time lost from the pole line of an upstream gate to its exit.</source>
        <translation>Temps perdu de la ligne de porte d’une remontée à sa sortie.</translation>
    </message>
    <message>
        <source>What a stretch lost outside its upstream gates.</source>
        <translation>Ce qu’un tronçon a perdu hors de ses remontées.</translation>
    </message>
    <message>
        <source>loss − Σ gates</source>
        <translation>perte − Σ portes</translation>
    </message>
    <message>
        <source>The part of the loss that notes against the same crew explain.</source>
        <translation>La part de la perte qu’expliquent les notes face au même équipage.</translation>
    </message>
    <message>
        <source>Σ notes / paddling</source>
        <translation>Σ notes / navigation</translation>
    </message>
    <message>
        <source>The time without penalties against the expected time.</source>
        <translation>Le temps sans pénalités face au temps attendu.</translation>
    </message>
    <message>
        <source>paddling time − expected time</source>
        <translation>temps de navigation − temps attendu</translation>
    </message>
    <message>
        <source>The total against a result of interest.</source>
        <translation>Le total face à un résultat qui intéresse.</translation>
    </message>
    <message>
        <source>own total − result</source>
        <translation>total propre − résultat</translation>
    </message>
    <message>
        <source>Time lost as noted; several reasons of one note share it equally.</source>
        <translation>Temps perdu selon les notes&#x202f;; plusieurs raisons d’une même note se le partagent à parts égales.</translation>
    </message>
    <message>
        <source>Σ notes above 0</source>
        <translation>Σ notes au-dessus de 0</translation>
    </message>
    <message>
        <source>Time gained as noted; several reasons of one note share it equally.</source>
        <translation>Temps gagné selon les notes&#x202f;; plusieurs raisons d’une même note se le partagent à parts égales.</translation>
    </message>
    <message>
        <source>Σ notes below 0</source>
        <translation>Σ notes au-dessous de 0</translation>
    </message>
    <message>
        <source>What the chosen way cost against the fastest one timed.</source>
        <translation>Ce qu’a coûté l’option choisie face à la plus rapide chronométrée.</translation>
    </message>
    <message>
        <source>chosen − least timed</source>
        <translation>choisie − minimum chronométré</translation>
    </message>
    <message>
        <source>What was lost in percent of the reference&apos;s time, over whole runs.</source>
        <translation>Ce qui a été perdu en pour cent du temps de la référence, sur des manches complètes.</translation>
    </message>
    <message>
        <source>100 · ΣL / ΣB,  SE² = n/(n−1) · Σ(L − qB)² / (ΣB)²</source>
        <translation>100 · ΣL / ΣB,  SE² = n/(n−1) · Σ(L − qB)² / (ΣB)²</translation>
    </message>
    <message>
        <source>ratio estimator: Cochran, Sampling Techniques, 1977</source>
        <translation>estimateur par quotient&#x202f;: Cochran, Sampling Techniques, 1977</translation>
    </message>
    <message>
        <source>What was lost here in a run on the average.</source>
        <translation>Ce qui a été perdu ici en moyenne par manche.</translation>
    </message>
    <message>
        <source>ΣL / n</source>
        <translation>ΣL / n</translation>
    </message>
    <message>
        <source>The part of the whole gap that was lost here.</source>
        <translation>La part de l’écart entier qui a été perdue ici.</translation>
    </message>
    <message>
        <source>ΣL / Σgap</source>
        <translation>ΣL / Σécart</translation>
    </message>
    <message>
        <source>The mean gap of the whole runs.</source>
        <translation>L’écart moyen des manches complètes.</translation>
    </message>
    <message>
        <source>Σgap / n</source>
        <translation>Σécart / n</translation>
    </message>
    <message>
        <source>interval: Student&apos;s t</source>
        <translation>intervalle&#x202f;: t de Student</translation>
    </message>
    <message>
        <source>The mean difference of penalties of the whole runs.</source>
        <translation>La différence moyenne de pénalités des manches complètes.</translation>
    </message>
    <message>
        <source>Σ(own − reference) / n</source>
        <translation>Σ(propre − référence) / n</translation>
    </message>
    <message>
        <source>What was lost on the water up to a mark: all stretches before it.</source>
        <translation>Ce qui a été perdu sur l’eau jusqu’à une marque&#x202f;: tous les tronçons qui la précèdent.</translation>
    </message>
    <message>
        <source>Σ losses to here</source>
        <translation>Σ pertes jusqu’ici</translation>
    </message>
    <message>
        <source>The total of the run: the official one where it has one.</source>
        <translation>Le temps total de la manche&#x202f;: l’officiel là où elle en a un.</translation>
    </message>
    <message>
        <source>One more than have a smaller total in the group, to the hundredth.</source>
        <translation>Une de plus que le nombre de celles qui ont un total plus petit dans le groupe, au centième.</translation>
    </message>
    <message>
        <source>1 + totals below the own</source>
        <translation>1 + totaux inférieurs au propre</translation>
    </message>
    <message>
        <source>The strokes that were marked in the stretch.</source>
        <translation>Les coups de pagaie marqués dans le tronçon.</translation>
    </message>
    <message>
        <source>Σ strokes</source>
        <translation>Σ coups de pagaie</translation>
    </message>
    <message>
        <source>The seconds of penalty at the gates of the stretch.</source>
        <translation>Les secondes de pénalité aux portes du tronçon.</translation>
    </message>
    <message>
        <source>Σ penalties</source>
        <translation>Σ pénalités</translation>
    </message>
    <message>
        <source>The whole runs that have something of it.</source>
        <translation>Les manches complètes qui en ont quelque chose.</translation>
    </message>
    <message>
        <source>number of runs</source>
        <translation>nombre de manches</translation>
    </message>
    <message>
        <source>What was lost here in all runs together.</source>
        <translation>Ce qui a été perdu ici dans toutes les manches ensemble.</translation>
    </message>
    <message>
        <source>Too few runs for an interval.</source>
        <translation>Trop peu de manches pour un intervalle.</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>perdu</translation>
    </message>
    <message>
        <source>reference</source>
        <translation>référence</translation>
    </message>
    <message>
        <source>gap of all runs</source>
        <translation>écart de toutes les manches</translation>
    </message>
    <message>
        <source>run</source>
        <translation>manche</translation>
    </message>
    <message>
        <source>half a frame, four marks</source>
        <translation>une demi-image, quatre marques</translation>
    </message>
    <message>
        <source>loss</source>
        <translation>perte</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>écart</translation>
    </message>
    <message>
        <source>paddling</source>
        <translation>navigation</translation>
    </message>
    <message>
        <source>Shown a hundredth apart, so that the parts add up to the shown gap.</source>
        <translation>Affiché avec un centième d’écart, pour que les parties fassent bien l’écart affiché.</translation>
    </message>
    <message>
        <source>time without penalties</source>
        <translation>temps sans pénalités</translation>
    </message>
    <message>
        <source>expected time</source>
        <translation>temps attendu</translation>
    </message>
    <message>
        <source>result</source>
        <translation>résultat</translation>
    </message>
    <message>
        <source>A missed gate also saved paddling, which the rank without it does not take back.</source>
        <translation>Une porte manquée a aussi épargné de la navigation, ce que le rang sans elle ne corrige pas.</translation>
    </message>
    <message>
        <source>The total holds {} s of penalty, the gates {:.0f} s.</source>
        <translation>Le total contient {} s de pénalité, les portes {:.0f} s.</translation>
    </message>
    <message>
        <source>total</source>
        <translation>total</translation>
    </message>
    <message>
        <source>smaller totals</source>
        <translation>totaux inférieurs</translation>
    </message>
    <message>
        <source>ranked runs</source>
        <translation>manches classées</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>rank</source>
        <translation>rang</translation>
    </message>
    <message>
        <source>rank without</source>
        <translation>rang sans</translation>
    </message>
    <message>
        <source>clean run</source>
        <translation>manche sans pénalité</translation>
    </message>
    <message>
        <source>Unfinished runs are not counted: nobody knows whether they would have stayed clean.</source>
        <translation>Les manches inachevées ne sont pas comptées&#x202f;: nul ne sait si elles seraient restées sans pénalité.</translation>
    </message>
    <message>
        <source>{} more are not listed.</source>
        <translation>{} autres ne sont pas listées.</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>{} more rows are not listed.</source>
        <translation>{} autres lignes ne sont pas listées.</translation>
    </message>
    <message>
        <source>5 % and 95 % of the beta distribution</source>
        <translation>5&#x202f;% et 95&#x202f;% de la loi bêta</translation>
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
        <translation>intervalle de Wilson, 90&#x202f;%</translation>
    </message>
    <message numerus="yes">
        <source>{} touches</source>
        <translation>
            <numerusform>{} touche</numerusform>
            <numerusform>{} touches</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} passages</source>
        <translation>
            <numerusform>{} passage</numerusform>
            <numerusform>{} passages</numerusform>
        </translation>
    </message>
    <message>
        <source>Too few to tell: {} in {}.</source>
        <translation>Trop peu pour conclure&#x202f;: {} sur {}.</translation>
    </message>
    <message>
        <source>Only one {}: there is nothing to compare it with.</source>
        <translation>Un seul groupe ({})&#x202f;: il n’y a rien à quoi le comparer.</translation>
    </message>
    <message>
        <source>No {} stands out: the highest, {} ({}), may be chance.</source>
        <translation>Rien ne ressort ({})&#x202f;: le plus haut, {} ({}), peut être dû au hasard.</translation>
    </message>
    <message>
        <source>None of {} cost a place.</source>
        <translation>Sur {}, aucune n’a coûté de place.</translation>
    </message>
    <message>
        <source>None of {} was noted in detail.</source>
        <translation>Sur {}, aucune n’a été notée en détail.</translation>
    </message>
    <message>
        <source>Too few to tell: no group has {} whole runs.</source>
        <translation>Trop peu pour conclure&#x202f;: aucun groupe n’a {} manches complètes.</translation>
    </message>
    <message>
        <source>1 % of speed pays for {:.2f} touches a run.</source>
        <translation>1&#x202f;% de vitesse paie pour {:.2f} touche par manche.</translation>
    </message>
    <message>
        <source>{} of {} without a penalty: {:.1f} % ({:.1f}–{:.1f}).</source>
        <translation>{} sur {} sans pénalité&#x202f;: {:.1f}&#x202f;% ({:.1f}–{:.1f}).</translation>
    </message>
    <message>
        <source>{} {} {}, place</source>
        <translation>{} {} {}, place</translation>
    </message>
    <message>
        <source>counted</source>
        <translation>comptées</translation>
    </message>
    <message>
        <source>{} left out: {}</source>
        <translation>{} laissées de côté&#x202f;: {}</translation>
    </message>
    <message>
        <source>{} {} of {} ({:.0f}–{:.0f} %)</source>
        <translation>{} {} sur {} ({:.0f}–{:.0f}&#x202f;%)</translation>
    </message>
    <message>
        <source>{:.1f} % behind the winner, {} (median of {})</source>
        <translation>{:.1f}&#x202f;% derrière le vainqueur, {} (médiane de {})</translation>
    </message>
    <message>
        <source>within {:.1f} % from run to run</source>
        <translation>à {:.1f}&#x202f;% près d’une manche à l’autre</translation>
    </message>
    <message>
        <source>trend {:+.1f} % a year: {}</source>
        <translation>tendance {:+.1f}&#x202f;% par an&#x202f;: {}</translation>
    </message>
    <message>
        <source>Too few runs to tell how much they vary.</source>
        <translation>Trop peu de manches pour dire à quel point elles varient.</translation>
    </message>
    <message>
        <source>From run to run {:.1f} % is chance.</source>
        <translation>D’une manche à l’autre, {:.1f}&#x202f;% est dû au hasard.</translation>
    </message>
    <message>
        <source>From run to run {:.1f} % ({:.1f} to {:.1f}) is chance; {:.2f} % is worth gaining.</source>
        <translation>D’une manche à l’autre, {:.1f}&#x202f;% (de {:.1f} à {:.1f}) est dû au hasard&#x202f;; gagner {:.2f}&#x202f;% en vaut la peine.</translation>
    </message>
    <message>
        <source>{} of {} grew faster beyond doubt, {} slower.</source>
        <translation>{} sur {} ont progressé sans aucun doute, {} ont ralenti.</translation>
    </message>
    <message>
        <source>{} met nobody in these races.</source>
        <translation>{} n’a rencontré personne dans ces courses.</translation>
    </message>
    <message numerus="yes">
        <source>{} rivals</source>
        <translation>
            <numerusform>{} rival</numerusform>
            <numerusform>{} rivaux</numerusform>
        </translation>
    </message>
    <message>
        <source>{} is ahead beyond doubt of {} of {}.</source>
        <translation>{} est devant sans aucun doute face à {} sur {}.</translation>
    </message>
    <message>
        <source>No split file of this class has three whole runs of a {}.</source>
        <translation>Aucun fichier d’intermédiaires de cette classe n’a trois manches complètes d’une phase ({}).</translation>
    </message>
    <message>
        <source>{:.1f} % would have been among the first three in {} of {}.</source>
        <translation>{:.1f}&#x202f;% aurait été parmi les trois premiers dans {} sur {}.</translation>
    </message>
    <message>
        <source>The third was {:.1f} % behind in the median of {}.</source>
        <translation>Le troisième était à {:.1f}&#x202f;% en médiane de {}.</translation>
    </message>
    <message>
        <source>Nobody of the team has runs enough to expect a place of.</source>
        <translation>Personne de l’équipe n’a assez de manches pour en attendre une place.</translation>
    </message>
    <message>
        <source>{} may expect place {:.1f} of {}, a medal by {:.0f} %.</source>
        <translation>{} peut attendre la place {:.1f} sur {}, une médaille à {:.0f}&#x202f;%.</translation>
    </message>
    <message numerus="yes">
        <source>{} finals</source>
        <translation>
            <numerusform>{} finale</numerusform>
            <numerusform>{} finales</numerusform>
        </translation>
    </message>
    <message>
        <source>{:.1f} % would have been a medal in {} of {}</source>
        <translation>{:.1f}&#x202f;% aurait été une médaille dans {} sur {}</translation>
    </message>
    <message>
        <source>Nearest to the winners ({}): {}, {:.1f} % (median of {}).</source>
        <translation>Le plus près des vainqueurs ({})&#x202f;: {}, {:.1f}&#x202f;% (médiane de {}).</translation>
    </message>
    <message>
        <source>No winner of a phase &quot;{}&quot; of these races is known.</source>
        <translation>Aucun vainqueur d’une phase «&#xa0;{}&#xa0;» de ces courses n’est connu.</translation>
    </message>
    <message>
        <source>split {}, fastest of it {:.2f}</source>
        <translation>intermédiaire {}, le plus rapide {:.2f}</translation>
    </message>
    <message>
        <source>missed</source>
        <translation>manquée</translation>
    </message>
    <message>
        <source>runs</source>
        <translation>manches</translation>
    </message>
    <message>
        <source>all missed</source>
        <translation>toutes manquées</translation>
    </message>
    <message>
        <source>all runs</source>
        <translation>toutes les manches</translation>
    </message>
    <message>
        <source>{}, spread {:.2f}, missed {:.1f} %</source>
        <translation>{}, dispersion {:.2f}, manquées {:.1f}&#x202f;%</translation>
    </message>
    <message>
        <source>How far behind the winner of the phase and class, penalties included.</source>
        <translation>Le retard sur le vainqueur de la phase et de la classe, pénalités comprises.</translation>
    </message>
    <message>
        <source>100 · (T / W − 1)</source>
        <translation>100 · (T / W − 1)</translation>
    </message>
    <message>
        <source>of the class winner, not of the men&apos;s kayaks: Wells, thesis, 2018</source>
        <translation>du vainqueur de la classe, non des kayaks hommes&#x202f;: Wells, thèse, 2018</translation>
    </message>
    <message>
        <source>How far behind the fastest times of all splits together, without penalties.</source>
        <translation>Le retard sur les temps les plus rapides de tous les intermédiaires réunis, sans pénalités.</translation>
    </message>
    <message>
        <source>100 · (Σ splits / Σ fastest − 1)</source>
        <translation>100 · (Σ intermédiaires / Σ plus rapides − 1)</translation>
    </message>
    <message>
        <source>How much a run varies by chance, once the athlete and the course are taken out.</source>
        <translation>De combien une manche varie par hasard, une fois ôtés l’athlète et le parcours.</translation>
    </message>
    <message>
        <source>100 · (e^(s/100) − 1),  s² = Σe² / df,  df = runs − athletes − phases + connected parts</source>
        <translation>100 · (e^(s/100) − 1),  s² = Σe² / df,  df = manches − athlètes − phases + parties connexes</translation>
    </message>
    <message>
        <source>mixed model of elite canoeists: Bonetti, Hopkins, 2010; interval: χ²</source>
        <translation>modèle mixte de céistes d’élite&#x202f;: Bonetti, Hopkins, 2010&#x202f;; intervalle&#x202f;: χ²</translation>
    </message>
    <message>
        <source>How much this athlete&apos;s runs varied by chance.</source>
        <translation>De combien les manches de cet athlète ont varié par hasard.</translation>
    </message>
    <message>
        <source>s² = Σe² / (runs · df / all runs)</source>
        <translation>s² = Σe² / (manches · df / toutes les manches)</translation>
    </message>
    <message>
        <source>The athlete&apos;s spread drawn towards the common one, the more the fewer the runs.</source>
        <translation>La dispersion de l’athlète ramenée vers la dispersion commune, d’autant plus que les manches sont peu nombreuses.</translation>
    </message>
    <message>
        <source>s² = (Σe² + 10 · common s²) / (runs · df / all runs + 10)</source>
        <translation>s² = (Σe² + 10 · s² commun) / (manches · df / toutes les manches + 10)</translation>
    </message>
    <message>
        <source>What is worth gaining: one more medal in ten races among equals at the top.</source>
        <translation>Ce qu’il vaut la peine de gagner&#x202f;: une médaille de plus en dix courses entre égaux au sommet.</translation>
    </message>
    <message>
        <source>0.3 · spread</source>
        <translation>0.3 · dispersion</translation>
    </message>
    <message>
        <source>Hopkins, 2004</source>
        <translation>Hopkins, 2004</translation>
    </message>
    <message>
        <source>The change of the percentage behind from year to year.</source>
        <translation>L’évolution du pourcentage de retard d’année en année.</translation>
    </message>
    <message>
        <source>slope of 100 · ln(1 + percent/100) per 365.25 days</source>
        <translation>pente de 100 · ln(1 + pour cent/100) par 365,25 jours</translation>
    </message>
    <message>
        <source>Races among whose first three the athlete was.</source>
        <translation>Courses où l’athlète était parmi les trois premiers.</translation>
    </message>
    <message>
        <source>places 1 to 3 / races with a final position</source>
        <translation>places de 1 à 3 / courses avec une place finale</translation>
    </message>
    <message>
        <source>interval: Wilson</source>
        <translation>intervalle&#x202f;: Wilson</translation>
    </message>
    <message>
        <source>Races in whose final the athlete was.</source>
        <translation>Courses dont l’athlète a couru la finale.</translation>
    </message>
    <message>
        <source>with a final / with phases</source>
        <translation>avec une finale / avec des phases</translation>
    </message>
    <message>
        <source>Races in whose semifinal the athlete was.</source>
        <translation>Courses dont l’athlète a couru la demi-finale.</translation>
    </message>
    <message>
        <source>with a semifinal / with phases</source>
        <translation>avec une demi-finale / avec des phases</translation>
    </message>
    <message>
        <source>The mean change from one phase of a race to a later one.</source>
        <translation>L’évolution moyenne d’une phase d’une course à une phase ultérieure.</translation>
    </message>
    <message>
        <source>mean of 100 · (ln later − ln earlier)</source>
        <translation>moyenne de 100 · (ln ultérieure − ln antérieure)</translation>
    </message>
    <message>
        <source>How much a single run varies by chance, from pairs of them.</source>
        <translation>De combien une seule manche varie par hasard, d’après des paires de manches.</translation>
    </message>
    <message>
        <source>SD of the changes / √2</source>
        <translation>écart-type des évolutions / √2</translation>
    </message>
    <message>
        <source>typical error: Hopkins, 2000</source>
        <translation>erreur type&#x202f;: Hopkins, 2000</translation>
    </message>
    <message>
        <source>Phases that both have in which the athlete was faster; ties count half.</source>
        <translation>Phases communes où l’athlète était plus rapide&#x202f;; les ex æquo comptent pour moitié.</translation>
    </message>
    <message>
        <source>(won + ties/2) / met</source>
        <translation>(gagnées + ex æquo/2) / rencontres</translation>
    </message>
    <message>
        <source>The mean gap in the phases that both have, penalties included.</source>
        <translation>L’écart moyen dans les phases communes, pénalités comprises.</translation>
    </message>
    <message>
        <source>mean of 100 · ln(own / rival&apos;s)</source>
        <translation>moyenne de 100 · ln(propre / celui du rival)</translation>
    </message>
    <message>
        <source>What percentage behind the winner a rank took, over the races.</source>
        <translation>Le pourcentage derrière le vainqueur d’un rang, au fil des courses.</translation>
    </message>
    <message>
        <source>median of 100 · (T of the rank / W − 1)</source>
        <translation>médiane de 100 · (T du rang / W − 1)</translation>
    </message>
    <message>
        <source>The chance of a missed gate, drawn towards everybody&apos;s as if by 20 runs more.</source>
        <translation>Le risque d’une porte manquée, ramené vers celui de tous comme par 20 manches de plus.</translation>
    </message>
    <message>
        <source>(missed + 20q) / (runs + 20),  q = (all missed + ½) / (all runs + 1)</source>
        <translation>(manquées + 20q) / (manches + 20),  q = (toutes manquées + ½) / (toutes les manches + 1)</translation>
    </message>
    <message>
        <source>The mean place among this field; with a missed gate behind all that have none.</source>
        <translation>La place moyenne dans ce plateau&#x202f;; avec une porte manquée, derrière tous ceux qui n’en ont pas.</translation>
    </message>
    <message>
        <source>Σ place · chance,  result normal: effect, spread · √(1 + 1/n)</source>
        <translation>Σ place · probabilité,  résultat normal&#x202f;: effet, dispersion · √(1 + 1/n)</translation>
    </message>
    <message>
        <source>The chance of one of the first three places among this field.</source>
        <translation>La probabilité d’une des trois premières places dans ce plateau.</translation>
    </message>
    <message>
        <source>chances of the places 1 to 3</source>
        <translation>probabilités des places 1 à 3</translation>
    </message>
    <message>
        <source>How far behind the winners of a phase, the same number of races before and behind it.</source>
        <translation>Le retard sur les vainqueurs d’une phase, autant de courses avant qu’après.</translation>
    </message>
    <message>
        <source>median of 100 · (T / W − 1), without missed gates</source>
        <translation>médiane de 100 · (T / W − 1), sans portes manquées</translation>
    </message>
    <message>
        <source>{} {} {}, percent</source>
        <translation>{} {} {}, pour cent</translation>
    </message>
    <message>
        <source>90 %, Student&apos;s t with {} degrees</source>
        <translation>90&#x202f;%, t de Student à {} degrés</translation>
    </message>
    <message>
        <source>{:+.1f} % a year</source>
        <translation>{:+.1f}&#x202f;% par an</translation>
    </message>
    <message>
        <source>spread, percent</source>
        <translation>dispersion, pour cent</translation>
    </message>
    <message>
        <source>athletes</source>
        <translation>athlètes</translation>
    </message>
    <message>
        <source>race phases</source>
        <translation>phases de course</translation>
    </message>
    <message>
        <source>connected parts</source>
        <translation>parties connexes</translation>
    </message>
    <message>
        <source>degrees of freedom</source>
        <translation>degrés de liberté</translation>
    </message>
    <message>
        <source>90 %, χ²</source>
        <translation>90&#x202f;%, χ²</translation>
    </message>
    <message>
        <source>common spread, percent</source>
        <translation>dispersion commune, pour cent</translation>
    </message>
    <message>
        <source>{} with a missed gate left out</source>
        <translation>{} avec une porte manquée laissées de côté</translation>
    </message>
    <message>
        <source>exact Poisson interval, 90 %</source>
        <translation>intervalle exact de Poisson, 90&#x202f;%</translation>
    </message>
    <message>
        <source>median paddling</source>
        <translation>médiane de navigation</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Secteurs</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Parcours</translation>
    </message>
    <message>
        <source>Upstream gates</source>
        <translation>Remontées</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source> (%1 to %2)</source>
        <translation> (de %1 à %2)</translation>
    </message>
    <message>
        <source> (too few)</source>
        <translation> (trop peu)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 dans %2</translation>
    </message>
    <message>
        <source>Losses and penalties · %1on the reference &quot;%2&quot; · %3</source>
        <translation>Pertes et pénalités · %1face à la référence «&#xa0;%2&#xa0;» · %3</translation>
    </message>
    <message>
        <source>Where time is lost</source>
        <translation>Où le temps est perdu</translation>
    </message>
    <message>
        <source>Seconds a run: gap %1, penalties %2</source>
        <translation>Secondes par manche&#x202f;: écart %1, pénalités %2</translation>
    </message>
    <message>
        <source>No whole run can be held against this reference.</source>
        <translation>Aucune manche complète ne peut être comparée à cette référence.</translation>
    </message>
    <message>
        <source>%1 more rows are left out.</source>
        <translation>%1 autres lignes sont laissées de côté.</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Dans</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Manches</translation>
    </message>
    <message>
        <source>Lost, s</source>
        <translation>Perdu, s</translation>
    </message>
    <message>
        <source>A run, s</source>
        <translation>Par manche, s</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Pour cent</translation>
    </message>
    <message>
        <source>90 % interval</source>
        <translation>Intervalle à 90&#x202f;%</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>trop peu</translation>
    </message>
    <message>
        <source>%1, run %2, %3 %4</source>
        <translation>%1, manche %2, %3 %4</translation>
    </message>
    <message>
        <source>What to train</source>
        <translation>Ce qu’il faut travailler</translation>
    </message>
    <message>
        <source>whose whole interval is above 0, by what it costs in a run</source>
        <translation>dont tout l’intervalle est au-dessus de 0, selon ce que cela coûte par manche</translation>
    </message>
    <message>
        <source>Nothing stands out from these runs.</source>
        <translation>Rien ne ressort de ces manches.</translation>
    </message>
    <message>
        <source>%1. %2, %3: %4 s a run</source>
        <translation>%1. %2, %3&#x202f;: %4 s par manche</translation>
    </message>
    <message>
        <source>See </source>
        <translation>Voir </translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Portes</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Manquées</translation>
    </message>
    <message>
        <source>Percent, 90 %</source>
        <translation>Pour cent, 90&#x202f;%</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Tenth of course</source>
        <translation>Dixième du parcours</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Pénalités</translation>
    </message>
    <message>
        <source>No run tells its penalties by gate.</source>
        <translation>Aucune manche ne dit ses pénalités par porte.</translation>
    </message>
    <message>
        <source>Noted of %1 %2, shares of those noted:</source>
        <translation>Noté pour %1 %2, parts des pénalités notées&#x202f;:</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>pénalité</translation>
    </message>
    <message>
        <source>Penalties by gate</source>
        <translation>Pénalités par porte</translation>
    </message>
    <message>
        <source>and %1 more gates</source>
        <translation>et %1 autres portes</translation>
    </message>
    <message numerus="yes">
        <source>{} missed gates</source>
        <translation>
            <numerusform>{} porte manquée</numerusform>
            <numerusform>{} portes manquées</numerusform>
        </translation>
    </message>
    <message>
        <source> in </source>
        <translation> dans </translation>
    </message>
    <message>
        <source>upstream gate</source>
        <translation>remontée</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>bleu</translation>
    </message>
    <message>
        <source>green</source>
        <translation>vert</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>orange</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rouge</translation>
    </message>
    <message>
        <source>fastest*, %1</source>
        <translation>le plus rapide*, %1</translation>
    </message>
    <message>
        <source>%1, slowest, by tenths of the column</source>
        <translation>%1, le plus lent, par dixièmes de la colonne</translation>
    </message>
    <message>
        <source>* best of its column, in %1; all others in %2</source>
        <translation>* meilleur de sa colonne, en %1&#x202f;; tous les autres en %2</translation>
    </message>
    <message>
        <source>Page %1 / %2</source>
        <translation>Page %1 / %2</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Séances</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>plan</source>
        <translation>plan</translation>
    </message>
    <message>
        <source>listed</source>
        <translation>noté</translation>
    </message>
    <message>
        <source>Nothing is planned and nothing entered.</source>
        <translation>Rien n’est prévu ni saisi.</translation>
    </message>
    <message>
        <source>Season %1</source>
        <translation>Saison %1</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Semaines</translation>
    </message>
    <message>
        <source>Macrocycles</source>
        <translation>Macrocycles</translation>
    </message>
    <message>
        <source>Weeks with an event</source>
        <translation>Semaines avec une compétition</translation>
    </message>
    <message>
        <source>Races run</source>
        <translation>Courses disputées</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Groupe %1</translation>
    </message>
    <message>
        <source>  ·  %1 of %2 reached</source>
        <translation>  ·  %1 sur %2 atteints</translation>
    </message>
    <message>
        <source>Goals of the season</source>
        <translation>Objectifs de la saison</translation>
    </message>
    <message>
        <source>No week of this season is planned yet.</source>
        <translation>Aucune semaine de cette saison n’est encore planifiée.</translation>
    </message>
    <message>
        <source>Training by category</source>
        <translation>Entraînement par catégorie</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Jours</translation>
    </message>
    <message>
        <source>Macrocycle</source>
        <translation>Macrocycle</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mésocycle</translation>
    </message>
    <message>
        <source>Load, %</source>
        <translation>Charge,&#x202f;%</translation>
    </message>
    <message>
        <source>Event, place</source>
        <translation>Compétition, lieu</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>Morning</source>
        <translation>Matin</translation>
    </message>
    <message>
        <source>Afternoon</source>
        <translation>Après-midi</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Soir</translation>
    </message>
    <message>
        <source>Any time</source>
        <translation>À toute heure</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Séance</translation>
    </message>
    <message>
        <source>continued</source>
        <translation>suite</translation>
    </message>
    <message>
        <source>Other days</source>
        <translation>Autres jours</translation>
    </message>
    <message>
        <source>Training week</source>
        <translation>Semaine d’entraînement</translation>
    </message>
    <message>
        <source>Week %1</source>
        <translation>Semaine %1</translation>
    </message>
    <message>
        <source>Goals of the week</source>
        <translation>Objectifs de la semaine</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Pén.</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Meilleur</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Par</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Ideal run without penalties</source>
        <translation>Manche idéale sans pénalités</translation>
    </message>
    <message>
        <source>Ideal run</source>
        <translation>Manche idéale</translation>
    </message>
    <message>
        <source>Fastest run</source>
        <translation>Manche la plus rapide</translation>
    </message>
    <message>
        <source>Split times</source>
        <translation>Temps intermédiaires</translation>
    </message>
    <message>
        <source>There are no runs to show.</source>
        <translation>Il n’y a aucune manche à afficher.</translation>
    </message>
    <message>
        <source>%1 gates</source>
        <translation>%1 portes</translation>
    </message>
    <message>
        <source>, %1 upstream</source>
        <translation>, dont %1 en remontée</translation>
    </message>
    <message>
        <source>Race</source>
        <translation>Course</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Eau</translation>
    </message>
    <message>
        <source>For comparison</source>
        <translation>Pour comparaison</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Cat.</translation>
    </message>
    <message>
        <source> Grey: not timed as a whole, never a best.</source>
        <translation> Gris&#x202f;: non chronométré en entier, jamais un meilleur.</translation>
    </message>
    <message>
        <source>Split %1</source>
        <translation>Intermédiaire %1</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manche</translation>
    </message>
    <message>
        <source>%1 s of %2 s; strokes are counted of whole sections.</source>
        <translation>%1 s sur %2 s&#x202f;; les coups de pagaie sont comptés sur des secteurs entiers.</translation>
    </message>
    <message>
        <source>The penalties of this run are not known by gate.</source>
        <translation>Les pénalités de cette manche ne sont pas connues par porte.</translation>
    </message>
    <message>
        <source>Time so far</source>
        <translation>Temps jusqu’ici</translation>
    </message>
    <message>
        <source>Among all runs</source>
        <translation>Parmi toutes les manches</translation>
    </message>
    <message>
        <source>Among all runs of </source>
        <translation>Parmi toutes les manches de </translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Porte</translation>
    </message>
    <message>
        <source>Entrance</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Virage</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Pertes de temps</translation>
    </message>
    <message>
        <source>Against</source>
        <translation>Face à</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>In the run at</source>
        <translation>À, dans la manche</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Split {}</source>
        <translation>Intermédiaire {}</translation>
    </message>
    <message>
        <source>best</source>
        <translation>meilleur</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Coups</translation>
    </message>
    <message>
        <source>per min</source>
        <translation>par min</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Inter</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Rang</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Pénalité</translation>
    </message>
    <message>
        <source>on the film</source>
        <translation>sur le film</translation>
    </message>
    <message>
        <source>recording</source>
        <translation>enregistrement</translation>
    </message>
    <message>
        <source>gap and rank among all runs of the category; the run&apos;s with penalties</source>
        <translation>écart et rang parmi toutes les manches de la catégorie&#x202f;; pour la manche avec pénalités</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Inters</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 autres</translation>
    </message>
    <message>
        <source>Recording: </source>
        <translation>Enregistrement&#x202f;: </translation>
    </message>
    <message>
        <source>third of the final, median</source>
        <translation>troisième de la finale, médiane</translation>
    </message>
    <message>
        <source>rank %1: %2 %</source>
        <translation>rang %1&#x202f;: %2&#x202f;%</translation>
    </message>
    <message>
        <source>own median</source>
        <translation>médiane propre</translation>
    </message>
    <message>
        <source>Medal</source>
        <translation>Médaille</translation>
    </message>
    <message>
        <source>Season </source>
        <translation>Saison </translation>
    </message>
    <message>
        <source>%1 · %2 races · intervals are 90 %</source>
        <translation>%1 · %2 courses · les intervalles sont à 90&#x202f;%</translation>
    </message>
    <message>
        <source>Percent behind the winner</source>
        <translation>Pourcentage derrière le vainqueur</translation>
    </message>
    <message>
        <source>Percent behind the fastest splits</source>
        <translation>Pourcentage derrière les intermédiaires les plus rapides</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Courses</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Atteint</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Médailles</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finales</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Demi-finales</translation>
    </message>
    <message>
        <source>Medals and finals</source>
        <translation>Médailles et finales</translation>
    </message>
    <message>
        <source>Change, below 0 is faster</source>
        <translation>Évolution, plus rapide au-dessous de 0</translation>
    </message>
    <message>
        <source>A year on the winner</source>
        <translation>Par an sur le vainqueur</translation>
    </message>
    <message>
        <source>A year on the splits</source>
        <translation>Par an sur les intermédiaires</translation>
    </message>
    <message>
        <source>Run 1 to run 2</source>
        <translation>De la manche 1 à la manche 2</translation>
    </message>
    <message>
        <source>Semifinal to final</source>
        <translation>De la demi-finale à la finale</translation>
    </message>
    <message>
        <source>Heats to final, behind</source>
        <translation>Des qualifications à la finale, retard</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Évolutions</translation>
    </message>
    <message>
        <source>Ahead of</source>
        <translation>Devant</translation>
    </message>
    <message>
        <source>Met</source>
        <translation>Duels</translation>
    </message>
    <message>
        <source>Head to head</source>
        <translation>Face à face</translation>
    </message>
    <message>
        <source>What a rank of the final took</source>
        <translation>Ce que demandait un rang de la finale</translation>
    </message>
    <message>
        <source>%1 athletes · intervals are 90 %</source>
        <translation>%1 athlètes · les intervalles sont à 90&#x202f;%</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlète</translation>
    </message>
    <message>
        <source>Chance, %</source>
        <translation>Hasard,&#x202f;%</translation>
    </message>
    <message>
        <source>% a year</source>
        <translation>% par an</translation>
    </message>
    <message>
        <source>On the splits</source>
        <translation>Sur les intermédiaires</translation>
    </message>
    <message>
        <source>On the winner</source>
        <translation>Sur le vainqueur</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Athlètes</translation>
    </message>
    <message>
        <source>What a rank took: </source>
        <translation>Ce que demandait un rang&#x202f;: </translation>
    </message>
    <message>
        <source>Expected places</source>
        <translation>Places attendues</translation>
    </message>
    <message>
        <source>best %1</source>
        <translation>meilleur %1</translation>
    </message>
    <message>
        <source> · races %1 to %2</source>
        <translation> · courses %1 à %2</translation>
    </message>
    <message>
        <source>, continued</source>
        <translation>, suite</translation>
    </message>
    <message>
        <source>Pos</source>
        <translation>Pos.</translation>
    </message>
    <message>
        <source>SURNAME Name</source>
        <translation>NOM Prénom</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Club</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
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
        <translation>Score x</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Score</translation>
    </message>
    <message>
        <source>Percent behind the best of the race and category. </source>
        <translation>Pourcentage derrière le meilleur de la course et de la catégorie. </translation>
    </message>
    <message>
        <source>Percent behind the best expected time of the race and category. </source>
        <translation>Pourcentage derrière le meilleur temps attendu de la course et de la catégorie. </translation>
    </message>
    <message>
        <source>The worst result is struck through and does not count</source>
        <translation>Le plus mauvais résultat est barré et ne compte pas</translation>
    </message>
    <message>
        <source>; with a bonus the two worst. </source>
        <translation>; avec un bonus, les deux plus mauvais. </translation>
    </message>
    <message>
        <source>Score: the sum of the others divided by three. %1: no result, P: preselected.</source>
        <translation>Score&#x202f;: la somme des autres divisée par trois. %1&#x202f;: pas de résultat, P&#x202f;: présélectionné.</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Catégories</translation>
    </message>
    <message>
        <source>Kind %1</source>
        <translation>Type %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Place and date</source>
        <translation>Lieu et date</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Signature</translation>
    </message>
    <message>
        <source>the median of each column</source>
        <translation>la médiane de chaque colonne</translation>
    </message>
    <message>
        <source>the ideal run</source>
        <translation>la manche idéale</translation>
    </message>
    <message>
        <source>the best of each column</source>
        <translation>le meilleur de chaque colonne</translation>
    </message>
    <message>
        <source>Gaps in seconds to %1.</source>
        <translation>Écarts en secondes à %1.</translation>
    </message>
    <message>
        <source>Places within each column.</source>
        <translation>Places au sein de chaque colonne.</translation>
    </message>
    <message>
        <source>Percent behind the best of each column.</source>
        <translation>Pourcentage derrière le meilleur de chaque colonne.</translation>
    </message>
    <message>
        <source>Percentiles of each column; the best has 100.</source>
        <translation>Percentiles de chaque colonne&#x202f;; le meilleur a 100.</translation>
    </message>
    <message>
        <source>Times from the start, without penalties.</source>
        <translation>Temps depuis le départ, sans pénalités.</translation>
    </message>
    <message>
        <source>Penalties are included in sections and total.</source>
        <translation>Les pénalités sont comprises dans les secteurs et le total.</translation>
    </message>
    <message>
        <source>Penalties are not included.</source>
        <translation>Les pénalités ne sont pas comprises.</translation>
    </message>
    <message>
        <source>Penalty seconds in brackets.</source>
        <translation>Secondes de pénalité entre parenthèses.</translation>
    </message>
    <message>
        <source>Compared among all %1 runs.</source>
        <translation>Comparé parmi l’ensemble des %1 manches.</translation>
    </message>
    <message>
        <source>Final position</source>
        <translation>Place finale</translation>
    </message>
    <message>
        <source>No athlete of this category comes into question.</source>
        <translation>Aucun athlète de cette catégorie n’entre en ligne de compte.</translation>
    </message>
    <message>
        <source>medals</source>
        <translation>médailles</translation>
    </message>
    <message>
        <source>championship medals</source>
        <translation>médailles en championnat</translation>
    </message>
    <message>
        <source>top 6</source>
        <translation>6 premiers</translation>
    </message>
    <message>
        <source>top 15</source>
        <translation>15 premiers</translation>
    </message>
    <message>
        <source>What counts is summed and divided by three, however many races there were.</source>
        <translation>Ce qui compte est additionné et divisé par trois, quel que soit le nombre de courses.</translation>
    </message>
    <message>
        <source>Σ counted / 3</source>
        <translation>Σ comptés / 3</translation>
    </message>
    <message>
        <source>the rules of the selection</source>
        <translation>les règles de la sélection</translation>
    </message>
    <message>
        <source>The results and the bonus that count.</source>
        <translation>Les résultats et le bonus qui comptent.</translation>
    </message>
    <message>
        <source>Σ counted</source>
        <translation>Σ comptés</translation>
    </message>
    <message>
        <source>Counts in the score.</source>
        <translation>Compte dans le score.</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>pour cent</translation>
    </message>
    <message>
        <source>Dropped: the worst result of all.</source>
        <translation>Écarté&#x202f;: le plus mauvais résultat de tous.</translation>
    </message>
    <message>
        <source>not in the score</source>
        <translation>pas dans le score</translation>
    </message>
    <message>
        <source>Dropped too: a bonus stands among the results.</source>
        <translation>Écarté aussi&#x202f;: un bonus figure parmi les résultats.</translation>
    </message>
    <message>
        <source>How far behind the best of the category in this race, with penalties.</source>
        <translation>Le retard sur le meilleur de la catégorie dans cette course, avec pénalités.</translation>
    </message>
    <message>
        <source>100 · ((time + penalties) / best − 1)</source>
        <translation>100 · ((temps + pénalités) / meilleur − 1)</translation>
    </message>
    <message>
        <source>A race without a result stands for this much.</source>
        <translation>Une course sans résultat compte pour autant.</translation>
    </message>
    <message>
        <source>999.99</source>
        <translation>999.99</translation>
    </message>
    <message>
        <source>More than two medals, or one at a championship, in the first two seasons.</source>
        <translation>Plus de deux médailles, ou une en championnat, dans les deux premières saisons.</translation>
    </message>
    <message>
        <source>medals &gt; 2 or championship medals ≥ 1</source>
        <translation>médailles &gt; 2 ou médailles en championnat ≥ 1</translation>
    </message>
    <message>
        <source>the rules of the categorization</source>
        <translation>les règles de la catégorisation</translation>
    </message>
    <message>
        <source>Three times among the first six in the first two seasons.</source>
        <translation>Trois fois parmi les six premiers dans les deux premières saisons.</translation>
    </message>
    <message>
        <source>top 6 ≥ 3</source>
        <translation>6 premiers ≥ 3</translation>
    </message>
    <message>
        <source>Four times among the first fifteen in the first two seasons.</source>
        <translation>Quatre fois parmi les quinze premiers dans les deux premières saisons.</translation>
    </message>
    <message>
        <source>top 15 ≥ 4</source>
        <translation>15 premiers ≥ 4</translation>
    </message>
    <message>
        <source>None of the other levels is reached in the first two seasons.</source>
        <translation>Aucun des autres niveaux n’est atteint dans les deux premières saisons.</translation>
    </message>
    <message>
        <source>otherwise</source>
        <translation>sinon</translation>
    </message>
    <message>
        <source>Races with a final position of 1 to 3.</source>
        <translation>Courses avec une place finale de 1 à 3.</translation>
    </message>
    <message>
        <source>count</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>Races with a final position of 1 to 6.</source>
        <translation>Courses avec une place finale de 1 à 6.</translation>
    </message>
    <message>
        <source>Races with a final position of 1 to 15.</source>
        <translation>Courses avec une place finale de 1 à 15.</translation>
    </message>
    <message>
        <source>Races with a final position.</source>
        <translation>Courses avec une place finale.</translation>
    </message>
    <message>
        <source>What the run would have taken at its usual distance from the best times.</source>
        <translation>Ce que la manche aurait pris à sa distance habituelle des meilleurs temps.</translation>
    </message>
    <message>
        <source>factor · perfect time</source>
        <translation>facteur · temps parfait</translation>
    </message>
    <message>
        <source>How far its times stand above the best ones, without the outermost.</source>
        <translation>De combien ses temps dépassent les meilleurs, sans les extrêmes.</translation>
    </message>
    <message>
        <source>mean of the ratios that are left</source>
        <translation>moyenne des rapports restants</translation>
    </message>
    <message>
        <source>A time of the run against the best of all runs there.</source>
        <translation>Un temps de la manche face au meilleur de toutes les manches à cet endroit.</translation>
    </message>
    <message>
        <source>own / best</source>
        <translation>propre / meilleur</translation>
    </message>
    <message>
        <source>The best times of all runs, put together.</source>
        <translation>Les meilleurs temps de toutes les manches, mis bout à bout.</translation>
    </message>
    <message>
        <source>factor</source>
        <translation>facteur</translation>
    </message>
    <message>
        <source>perfect time</source>
        <translation>temps parfait</translation>
    </message>
    <message>
        <source>ratios that are left</source>
        <translation>rapports restants</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Côte à côte</translation>
    </message>
    <message>
        <source>Above each other</source>
        <translation>L’un au-dessus de l’autre</translation>
    </message>
    <message>
        <source>Two by two</source>
        <translation>Deux par deux</translation>
    </message>
    <message>
        <source>One within the other</source>
        <translation>L’un dans l’autre</translation>
    </message>
    <message>
        <source>Ghost: seen through</source>
        <translation>Fantôme&#x202f;: en transparence</translation>
    </message>
    <message>
        <source>Left and right of a line</source>
        <translation>À gauche et à droite d’une ligne</translation>
    </message>
    <message>
        <source>at the start</source>
        <translation>au départ</translation>
    </message>
    <message>
        <source>at one split</source>
        <translation>à un intermédiaire</translation>
    </message>
    <message>
        <source>at every split, waiting</source>
        <translation>à chaque intermédiaire, en attendant</translation>
    </message>
    <message>
        <source>at every split, stretched</source>
        <translation>à chaque intermédiaire, en étirant</translation>
    </message>
    <message>
        <source>the whole run</source>
        <translation>la manche entière</translation>
    </message>
    <message>
        <source>from split to split</source>
        <translation>d’intermédiaire à intermédiaire</translation>
    </message>
    <message>
        <source>Combination</source>
        <translation>Combinaison</translation>
    </message>
    <message>
        <source>Enter plays both films</source>
        <translation>Entrée lit les deux films</translation>
    </message>
    <message>
        <source>No film is known here</source>
        <translation>Aucun film n’est connu ici</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Own time less the reference&apos;s; all of them add up to what is shown on top</source>
        <translation>Temps propre moins celui de la référence&#x202f;; tous ensemble font ce qui est affiché en haut</translation>
    </message>
    <message>
        <source>Between</source>
        <translation>Entre</translation>
    </message>
    <message>
        <source>Lost outside the upstream gates</source>
        <translation>Perdu hors des remontées</translation>
    </message>
    <message>
        <source>Reference&apos;s strokes</source>
        <translation>Coups de pagaie de la référence</translation>
    </message>
    <message>
        <source>Own seconds of penalty in the section</source>
        <translation>Propres secondes de pénalité dans le secteur</translation>
    </message>
    <message>
        <source>A tick makes the run what all are held against</source>
        <translation>Une coche fait de la manche celle à laquelle toutes sont comparées</translation>
    </message>
    <message>
        <source>Paddling</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Timing</source>
        <translation>Chronométrage</translation>
    </message>
    <message>
        <source>On expected time</source>
        <translation>Sur le temps attendu</translation>
    </message>
    <message>
        <source>Time without penalties less the expected time</source>
        <translation>Temps sans pénalités moins le temps attendu</translation>
    </message>
    <message>
        <source>Lost up to the pole line</source>
        <translation>Perdu jusqu’à la ligne de porte</translation>
    </message>
    <message>
        <source>Lost from the pole line on</source>
        <translation>Perdu à partir de la ligne de porte</translation>
    </message>
    <message>
        <source>Noted</source>
        <translation>Noté</translation>
    </message>
    <message>
        <source>not noted</source>
        <translation>pas noté</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Coût</translation>
    </message>
    <message>
        <source>Seconds of the chosen way over the fastest one timed</source>
        <translation>Secondes de l’option choisie par rapport à la plus rapide chronométrée</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vers l’avant</translation>
    </message>
    <message>
        <source>Turning rate (left above 0)</source>
        <translation>Vitesse de rotation (gauche au-dessus de 0)</translation>
    </message>
    <message>
        <source>Turning</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Roll (starboard down above 0)</source>
        <translation>Roulis (tribord en bas au-dessus de 0)</translation>
    </message>
    <message>
        <source>Pitch (bow up above 0)</source>
        <translation>Tangage (pointe avant en haut au-dessus de 0)</translation>
    </message>
    <message>
        <source>Speed by position</source>
        <translation>Vitesse par la position</translation>
    </message>
    <message>
        <source>Hull speed, estimated</source>
        <translation>Vitesse de la coque, estimée</translation>
    </message>
    <message>
        <source>Hull speed</source>
        <translation>Vitesse de la coque</translation>
    </message>
    <message>
        <source>Watch acceleration</source>
        <translation>Accélération de la montre</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Montre</translation>
    </message>
    <message>
        <source>Acceleration of the phone, x</source>
        <translation>Accélération du téléphone, x</translation>
    </message>
    <message>
        <source>Acceleration x</source>
        <translation>Accélération x</translation>
    </message>
    <message>
        <source>Acceleration of the phone, y</source>
        <translation>Accélération du téléphone, y</translation>
    </message>
    <message>
        <source>Acceleration y</source>
        <translation>Accélération y</translation>
    </message>
    <message>
        <source>Acceleration of the phone, z</source>
        <translation>Accélération du téléphone, z</translation>
    </message>
    <message>
        <source>Acceleration z</source>
        <translation>Accélération z</translation>
    </message>
    <message>
        <source>Rotation of the phone, x</source>
        <translation>Rotation du téléphone, x</translation>
    </message>
    <message>
        <source>Rotation x</source>
        <translation>Rotation x</translation>
    </message>
    <message>
        <source>Rotation of the phone, y</source>
        <translation>Rotation du téléphone, y</translation>
    </message>
    <message>
        <source>Rotation y</source>
        <translation>Rotation y</translation>
    </message>
    <message>
        <source>Rotation of the phone, z</source>
        <translation>Rotation du téléphone, z</translation>
    </message>
    <message>
        <source>Rotation z</source>
        <translation>Rotation z</translation>
    </message>
    <message>
        <source>by gate</source>
        <translation>par porte</translation>
    </message>
    <message>
        <source>by type of gate</source>
        <translation>par type de porte</translation>
    </message>
    <message>
        <source>by tenth of the course</source>
        <translation>par dixième du parcours</translation>
    </message>
    <message>
        <source>by section</source>
        <translation>par secteur</translation>
    </message>
    <message>
        <source>by crew</source>
        <translation>par équipage</translation>
    </message>
    <message>
        <source>by category</source>
        <translation>par catégorie</translation>
    </message>
    <message>
        <source>by phase</source>
        <translation>par phase</translation>
    </message>
    <message>
        <source>by race</source>
        <translation>par course</translation>
    </message>
    <message>
        <source>by month</source>
        <translation>par mois</translation>
    </message>
    <message>
        <source>by hand</source>
        <translation>par main</translation>
    </message>
    <message>
        <source>Tenth</source>
        <translation>Dixième</translation>
    </message>
    <message>
        <source>Se&amp;gments</source>
        <translation>&amp;Segments</translation>
    </message>
    <message>
        <source>&amp;Left and right</source>
        <translation>&amp;Gauche et droite</translation>
    </message>
    <message>
        <source>Whole numbers</source>
        <translation>Nombres entiers</translation>
    </message>
    <message>
        <source>Decimal numbers</source>
        <translation>Nombres décimaux</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>DNF and the like</source>
        <translation>DNF et semblables</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Penalty missing</source>
        <translation>Pénalité absente</translation>
    </message>
    <message>
        <source>Penalty too many</source>
        <translation>Pénalité de trop</translation>
    </message>
    <message>
        <source>Bibs swapped</source>
        <translation>Dossards échangés</translation>
    </message>
    <message>
        <source>No result</source>
        <translation>Pas de résultat</translation>
    </message>
    <message>
        <source>Not finished</source>
        <translation>Non terminé</translation>
    </message>
    <message>
        <source>Not in list</source>
        <translation>Pas dans la liste</translation>
    </message>
    <message>
        <source>Not filmed</source>
        <translation>Non filmé</translation>
    </message>
    <message>
        <source>Average:</source>
        <translation>Moyenne&#x202f;:</translation>
    </message>
    <message>
        <source>Average variation:</source>
        <translation>Variation moyenne&#x202f;:</translation>
    </message>
    <message>
        <source>Total variation:</source>
        <translation>Variation totale&#x202f;:</translation>
    </message>
    <message>
        <source>Average increase:</source>
        <translation>Hausse moyenne&#x202f;:</translation>
    </message>
    <message>
        <source>Total increase:</source>
        <translation>Hausse totale&#x202f;:</translation>
    </message>
    <message>
        <source>Lap time</source>
        <translation>Temps au tour</translation>
    </message>
    <message>
        <source>Time in straight line</source>
        <translation>Temps en ligne droite</translation>
    </message>
    <message>
        <source>Time in rotation</source>
        <translation>Temps en rotation</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Vitesse moyenne</translation>
    </message>
    <message>
        <source>Maximum acceleration</source>
        <translation>Accélération maximale</translation>
    </message>
    <message>
        <source>Average acceleration</source>
        <translation>Accélération moyenne</translation>
    </message>
    <message>
        <source>Average deacceleration</source>
        <translation>Décélération moyenne</translation>
    </message>
    <message>
        <source>Roll movement</source>
        <translation>Mouvement de roulis</translation>
    </message>
    <message>
        <source>Roll (°)</source>
        <translation>Roulis (°)</translation>
    </message>
    <message>
        <source>Maximum force</source>
        <translation>Force maximale</translation>
    </message>
    <message>
        <source>Impulse (N s)</source>
        <translation>Impulsion (N s)</translation>
    </message>
    <message>
        <source>Largest negative acceleration</source>
        <translation>Plus forte accélération négative</translation>
    </message>
    <message>
        <source>Negative acceleration (m/s2)</source>
        <translation>Accélération négative (m/s2)</translation>
    </message>
    <message>
        <source>Effective water phase</source>
        <translation>Phase aquatique efficace</translation>
    </message>
    <message>
        <source>Rotation about the vertical axis</source>
        <translation>Rotation autour de l’axe vertical</translation>
    </message>
    <message>
        <source>Turns to the left are above 0, turns to the right below.</source>
        <translation>Les virages à gauche sont au-dessus de 0, ceux à droite au-dessous.</translation>
    </message>
    <message>
        <source>The film {} is left out: its name is no UTF-8 text.</source>
        <translation>Le film {} est laissé de côté&#x202f;: son nom n’est pas un texte UTF-8.</translation>
    </message>
    <message>
        <source>The folder {} cannot be read: {}</source>
        <translation>Le dossier {} ne peut pas être lu&#x202f;: {}</translation>
    </message>
    <message>
        <source>No video in {} carries the name {}. Nothing was written.</source>
        <translation>Aucune vidéo de {} ne porte le nom {}. Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>The file {} exists already. Say --replace to write a new one in its place.</source>
        <translation>Le fichier {} existe déjà. Indiquez --replace pour en écrire un nouveau à sa place.</translation>
    </message>
    <message>
        <source>This call needs the program that paints and makes films, which could not be started: {}</source>
        <translation>Cet appel demande le programme qui dessine et fait les films&#x202f;; il n’a pas pu être démarré&#x202f;: {}</translation>
    </message>
    <message>
        <source>The file {} exists and is not the sample&apos;s. Choose another folder.</source>
        <translation>Le fichier {} existe et n’est pas de l’exemple. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The file {} could not be written: {}</source>
        <translation>Le fichier {} n’a pas pu être écrit&#x202f;: {}</translation>
    </message>
    <message>
        <source>The file {} is none of these tables and stays as it is. Nothing was written.</source>
        <translation>Le fichier {} n’est aucun de ces tableaux et reste tel quel. Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>The folder {} could not be made: {}</source>
        <translation>Le dossier {} n’a pas pu être créé&#x202f;: {}</translation>
    </message>
    <message>
        <source>Line {}: {}, and was imported as it stands.</source>
        <translation>Ligne {}&#x202f;: {}, et a été importée telle quelle.</translation>
    </message>
    <message>
        <source>There is no run {}: the file has {}, counted from 0.</source>
        <translation>Il n’y a pas de manche {}&#x202f;: le fichier en a {}, comptées à partir de 0.</translation>
    </message>
    <message>
        <source>No run has the category &quot;{}&quot;.{}</source>
        <translation>Aucune manche n’a la catégorie «&#xa0;{}&#xa0;».{}</translation>
    </message>
    <message>
        <source>Nobody of the team races in &quot;{}&quot;. Categories: {}.</source>
        <translation>Personne de l’équipe ne court en «&#xa0;{}&#xa0;». Catégories&#x202f;: {}.</translation>
    </message>
    <message>
        <source>Several athletes of the team are called {}: their runs cannot be told apart.</source>
        <translation>Plusieurs athlètes de l’équipe s’appellent {}&#x202f;: leurs manches ne peuvent pas être distinguées.</translation>
    </message>
    <message>
        <source>The file {} is of an older version, {}, and was not changed. Bring it to the current one first: kavela upgrade {}</source>
        <translation>Le fichier {} est d’une version plus ancienne, {}, et n’a pas été modifié. Amenez-le d’abord à l’actuelle&#x202f;: kavela upgrade {}</translation>
    </message>
    <message>
        <source>The time of {} ({}) in {} is 0; a missing result should be 999.9.</source>
        <translation>Le temps de {} ({}) dans {} est 0&#x202f;; un résultat absent devrait être 999.9.</translation>
    </message>
    <message>
        <source>No athlete has a bonus of kind {}.</source>
        <translation>Aucun athlète n’a de bonus de type {}.</translation>
    </message>
    <message>
        <source>The list {} is no UTF-8 text and was read as Latin-1: look at the names.</source>
        <translation>La liste {} n’est pas un texte UTF-8 et a été lue en Latin-1&#x202f;: vérifiez les noms.</translation>
    </message>
    <message>
        <source>The list {} could not be read: {}</source>
        <translation>La liste {} n’a pas pu être lue&#x202f;: {}</translation>
    </message>
    <message>
        <source>{} of {} skipped.</source>
        <translation>{} sur {} omis.</translation>
    </message>
    <message>
        <source>Line {} brought the category {} into the selection{}</source>
        <translation>La ligne {} a introduit la catégorie {} dans la sélection{}</translation>
    </message>
    <message>
        <source>No run has the {} &quot;{}&quot;. There is {}.</source>
        <translation>Aucune manche pour {} «&#xa0;{}&#xa0;». Il y a {}.</translation>
    </message>
    <message>
        <source>There is no file and no command {}. Run with --help for the commands.</source>
        <translation>Il n’y a ni fichier ni commande {}. Lancez avec --help pour les commandes.</translation>
    </message>
    <message>
        <source>The desktop program could not be started: {}</source>
        <translation>Le programme de bureau n’a pas pu être démarré&#x202f;: {}</translation>
    </message>
    <message>
        <source>{}: this is its {}; it carries {} too (--sheet).</source>
        <translation>{}&#x202f;: voici {}&#x202f;; il contient aussi {} (--sheet).</translation>
    </message>
    <message>
        <source>Line {}, {}: perhaps {}; not joined.</source>
        <translation>Ligne {}, {}&#x202f;: peut-être {}&#x202f;; non relié.</translation>
    </message>
    <message>
        <source>{}: this is no team: {}</source>
        <translation>{}&#x202f;: ce n’est pas une équipe&#x202f;: {}</translation>
    </message>
    <message>
        <source>The team has no athlete {}.</source>
        <translation>L’équipe n’a pas d’athlète {}.</translation>
    </message>
    <message>
        <source>{} does not race in {}. Categories: {}.</source>
        <translation>{} ne court pas en {}. Catégories&#x202f;: {}.</translation>
    </message>
    <message>
        <source>The file could not be read: {}</source>
        <translation>Le fichier n’a pas pu être lu&#x202f;: {}</translation>
    </message>
    <message>
        <source>There is no number with the id &quot;{}&quot; here.</source>
        <translation>Il n’y a ici aucun nombre d’identifiant «&#xa0;{}&#xa0;».</translation>
    </message>
    <message>
        <source>losing</source>
        <translation>en perte</translation>
    </message>
    <message>
        <source>gaining</source>
        <translation>en gain</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>incertain</translation>
    </message>
    <message>
        <source>slower</source>
        <translation>plus lents</translation>
    </message>
    <message>
        <source>circle: heats, triangle: semifinal, square: final</source>
        <translation>cercle&#x202f;: qualifications, triangle&#x202f;: demi-finale, carré&#x202f;: finale</translation>
    </message>
    <message>
        <source>{:.0f} to {:.0f}</source>
        <translation>de {:.0f} à {:.0f}</translation>
    </message>
    <message>
        <source>of the races whose result is known</source>
        <translation>des courses dont le résultat est connu</translation>
    </message>
    <message>
        <source>too few runs to tell what is chance</source>
        <translation>trop peu de manches pour dire ce qui est hasard</translation>
    </message>
    <message>
        <source>chance from run to run {:.1f} %, all {:.1f} %; {:.2f} % matters</source>
        <translation>hasard d’une manche à l’autre {:.1f}&#x202f;%, tous {:.1f}&#x202f;%&#x202f;; {:.2f}&#x202f;% compte</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tableau</translation>
    </message>
    <message>
        <source>One-repetition maximum</source>
        <translation>Maximum sur une répétition</translation>
    </message>
    <message>
        <source>Prints what a shell completes calls by</source>
        <translation>Affiche de quoi un interpréteur de commandes complète les appels</translation>
    </message>
    <message>
        <source>Prints the page of the manual</source>
        <translation>Affiche la page du manuel</translation>
    </message>
    <message>
        <source>The page cannot be written over a file that it is made from.</source>
        <translation>La page ne peut pas être écrite par-dessus un fichier dont elle est tirée.</translation>
    </message>
    <message>
        <source>Writes the page of an athlete for a telephone, one HTML file</source>
        <translation>Écrit la page d’un athlète pour un téléphone, un seul fichier HTML</translation>
    </message>
    <message>
        <source>Split files (.kvx) of any release, and folders of them; several make a season</source>
        <translation>Fichiers d’intermédiaires (.kvx) de n’importe quelle version, et dossiers qui en contiennent&#x202f;; plusieurs font une saison</translation>
    </message>
    <message>
        <source>Whose page; a crew as &quot;A / B&quot;</source>
        <translation>De qui est la page&#x202f;; un équipage sous la forme &quot;A / B&quot;</translation>
    </message>
    <message>
        <source>File to write, ending in .html</source>
        <translation>Fichier à écrire, finissant par .html</translation>
    </message>
    <message>
        <source>Cut the athlete&apos;s runs out of their films into the folder of the page</source>
        <translation>Couper les manches de l’athlète de leurs films dans le dossier de la page</translation>
    </message>
    <message>
        <source>Shares a folder with a server, both ways</source>
        <translation>Partage un dossier avec un serveur, dans les deux sens</translation>
    </message>
    <message>
        <source>The folder on this computer</source>
        <translation>Le dossier sur cet ordinateur</translation>
    </message>
    <message>
        <source>Address of the folder on the server</source>
        <translation>Adresse du dossier sur le serveur</translation>
    </message>
    <message>
        <source>User name for the server</source>
        <translation>Nom d’utilisateur pour le serveur</translation>
    </message>
    <message>
        <source>Only print what would be done</source>
        <translation>Seulement afficher ce qui serait fait</translation>
    </message>
    <message>
        <source>Do not ask before anything is done</source>
        <translation>Ne rien demander avant d’agir</translation>
    </message>
    <message>
        <source>Delete on each side what was deleted on the other and not changed since</source>
        <translation>Supprimer de chaque côté ce qui a été supprimé de l’autre et n’a pas changé depuis</translation>
    </message>
    <message>
        <source>Print JSON; nothing is asked</source>
        <translation>Afficher du JSON&#x202f;; rien n’est demandé</translation>
    </message>
    <message>
        <source>Shows what stood on a line of a film over time, as a picture</source>
        <translation>Montre en une image ce qui se trouvait sur une ligne d’un film au fil du temps</translation>
    </message>
    <message>
        <source>Film of a camera that stands still</source>
        <translation>Film d’une caméra immobile</translation>
    </message>
    <message>
        <source>X1,Y1,X2,Y2: the ends of the line in pixels</source>
        <translation>X1,Y1,X2,Y2&#x202f;: les extrémités de la ligne en pixels</translation>
    </message>
    <message>
        <source>Picture to write (.png)</source>
        <translation>Image à écrire (.png)</translation>
    </message>
    <message>
        <source>Print the frame and stamp of every column as JSON</source>
        <translation>Afficher en JSON l’image et l’horodatage de chaque colonne</translation>
    </message>
    <message>
        <source>Look for boats that cross the line</source>
        <translation>Chercher des bateaux qui franchissent la ligne</translation>
    </message>
    <message>
        <source>X,Y,WIDTH,HEIGHT: a box round one boat, for --proposals</source>
        <translation>X,Y,WIDTH,HEIGHT&#x202f;: un cadre autour d’un bateau, pour --proposals</translation>
    </message>
    <message>
        <source>Where boats come from: left or right of the line</source>
        <translation>D’où viennent les bateaux&#x202f;: left ou right de la ligne</translation>
    </message>
    <message>
        <source>Nothing to do: name a picture with -o, or ask for --json or --proposals.</source>
        <translation>Rien à faire&#x202f;: nommez une image avec -o, ou demandez --json ou --proposals.</translation>
    </message>
    <message>
        <source>--proposals needs a box round one boat: --boat X,Y,WIDTH,HEIGHT.</source>
        <translation>--proposals demande un cadre autour d’un bateau&#x202f;: --boat X,Y,WIDTH,HEIGHT.</translation>
    </message>
    <message>
        <source>Follows a boat, gate or head through a film, as a table</source>
        <translation>Suit un bateau, une porte ou une tête dans un film, en tableau</translation>
    </message>
    <message>
        <source>Film to look at</source>
        <translation>Film à examiner</translation>
    </message>
    <message>
        <source>What is followed: X,Y,WIDTH,HEIGHT in pixels of the picture, from its upper left corner</source>
        <translation>Ce qui est suivi&#x202f;: X,Y,WIDTH,HEIGHT en pixels de l’image, depuis son coin supérieur gauche</translation>
    </message>
    <message>
        <source>Second of the film at which the box was drawn</source>
        <translation>Seconde du film où le cadre a été dessiné</translation>
    </message>
    <message>
        <source>Second at which following ends; otherwise where it is lost, or the film ends</source>
        <translation>Seconde où finit le suivi&#x202f;; sinon là où l’objet est perdu, ou à la fin du film</translation>
    </message>
    <message>
        <source>Known points on the water (.json), for metres and speeds</source>
        <translation>Points connus sur l’eau (.json), pour mètres et vitesses</translation>
    </message>
    <message>
        <source>File to write (.csv)</source>
        <translation>Fichier à écrire (.csv)</translation>
    </message>
    <message>
        <source>In some frames the camera&apos;s motion is not known: too little of the picture stands still. They have no steadied place.</source>
        <translation>Sur certaines images, le mouvement de la caméra n’est pas connu&#x202f;: trop peu de l’image est immobile. Elles n’ont pas de place stabilisée.</translation>
    </message>
    <message>
        <source>Metres hold for what is on the water; a head is above it.</source>
        <translation>Les mètres valent pour ce qui est sur l’eau&#x202f;; une tête est au-dessus.</translation>
    </message>
    <message>
        <source>Two known points give a scale only: lengths and speeds hold near them and along the line between them.</source>
        <translation>Deux points connus ne donnent qu’une échelle&#x202f;: longueurs et vitesses valent près d’eux et le long de la ligne entre eux.</translation>
    </message>
    <message>
        <source>What was deleted on one side stays on the other: --delete deletes it there.</source>
        <translation>Ce qui a été supprimé d’un côté reste de l’autre&#x202f;: --delete l’y supprime.</translation>
    </message>
    <message>
        <source>The server wants a user name: --user tells it.</source>
        <translation>Le serveur veut un nom d’utilisateur&#x202f;: --user l’indique.</translation>
    </message>
    <message numerus="yes">
        <source>{} columns</source>
        <translation>
            <numerusform>{} colonne</numerusform>
            <numerusform>{} colonnes</numerusform>
        </translation>
    </message>
    <message>
        <source>Explain one number instead: loss/RUN/winner/5, gap/RUN/ideal, total/RUN, place/RUN, strokes/RUN/5, …</source>
        <translation>Expliquer plutôt un nombre&#x202f;: loss/RUN/winner/5, gap/RUN/ideal, total/RUN, place/RUN, strokes/RUN/5, …</translation>
    </message>
    <message>
        <source>The finished notes that name it.</source>
        <translation>Les notes terminées qui le nomment.</translation>
    </message>
    <message>
        <source>number of notes</source>
        <translation>nombre de notes</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>nombre entier</translation>
    </message>
    <message>
        <source>decimal</source>
        <translation>nombre décimal</translation>
    </message>
    <message>
        <source>status</source>
        <translation>statut</translation>
    </message>
    <message>
        <source>date</source>
        <translation>date</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>Add {}</source>
        <translation>Ajouter {}</translation>
    </message>
    <message>
        <source>Colour {}</source>
        <translation>Colorer {}</translation>
    </message>
    <message>
        <source>First line is a row</source>
        <translation>La première ligne est une rangée</translation>
    </message>
    <message>
        <source>First line is titles</source>
        <translation>La première ligne porte les titres</translation>
    </message>
    <message>
        <source>Group by {}</source>
        <translation>Grouper par {}</translation>
    </message>
    <message>
        <source>Keep {} in {}</source>
        <translation>Garder {} dans {}</translation>
    </message>
    <message>
        <source>Leave out {}</source>
        <translation>Laisser {} de côté</translation>
    </message>
    <message>
        <source>No colours in {}</source>
        <translation>Pas de couleurs dans {}</translation>
    </message>
    <message>
        <source>No groups</source>
        <translation>Sans groupes</translation>
    </message>
    <message>
        <source>Pivot of {} by {}</source>
        <translation>Tableau croisé de {} par {}</translation>
    </message>
    <message>
        <source>Read {} as {}</source>
        <translation>Lire {} comme {}</translation>
    </message>
    <message>
        <source>Sort by {}</source>
        <translation>Trier par {}</translation>
    </message>
    <message>
        <source>Sort by {}, downwards</source>
        <translation>Trier par {}, décroissant</translation>
    </message>
    <message>
        <source>Medals most often: {}, {} of {} ({:.0f}–{:.0f} %).</source>
        <translation>Le plus souvent médaillé&#x202f;: {}, {} sur {} ({:.0f}–{:.0f}&#x202f;%).</translation>
    </message>
    <message>
        <source>In finals most often: {}, {} of {} ({:.0f}–{:.0f} %).</source>
        <translation>Le plus souvent en finale&#x202f;: {}, {} sur {} ({:.0f}–{:.0f}&#x202f;%).</translation>
    </message>
    <message>
        <source>In semifinals most often: {}, {} of {} ({:.0f}–{:.0f} %).</source>
        <translation>Le plus souvent en demi-finale&#x202f;: {}, {} sur {} ({:.0f}–{:.0f}&#x202f;%).</translation>
    </message>
    <message>
        <source>No fastest split of {}&apos;s races is known.</source>
        <translation>Aucun meilleur temps intermédiaire des courses de {} n’est connu.</translation>
    </message>
    <message>
        <source>No winner of {}&apos;s races is known.</source>
        <translation>Aucun vainqueur des courses de {} n’est connu.</translation>
    </message>
    <message>
        <source>No penalty of a whole run is known by gate.</source>
        <translation>Aucune pénalité d’une manche complète n’est connue par porte.</translation>
    </message>
    <message>
        <source>No race of the team has a result that says so.</source>
        <translation>Aucune course de l’équipe n’a un résultat qui le dise.</translation>
    </message>
    <message>
        <source>No whole run is known by gate.</source>
        <translation>Aucune manche complète n’est connue par porte.</translation>
    </message>
    <message>
        <source>Nobody&apos;s penalties are known by gate.</source>
        <translation>Les pénalités ne sont connues par porte pour personne.</translation>
    </message>
    <message>
        <source>Noted in detail: {} of {}. Shares of what was noted, no rates: nobody notes how gates are passed clean.</source>
        <translation>Notées en détail&#x202f;: {} sur {}. Ce sont des parts de ce qui a été noté, pas des taux&#x202f;: personne ne note comment les portes sont passées sans faute.</translation>
    </message>
    <message>
        <source>Noted in detail: {} of {}. Too few to tell.</source>
        <translation>Notées en détail&#x202f;: {} sur {}. Trop peu pour conclure.</translation>
    </message>
    <message>
        <source>Of {} who have both often enough, beyond doubt faster in the final: {}, slower: {}.</source>
        <translation>Sur {} qui ont les deux assez souvent, sans aucun doute plus rapides en finale&#x202f;: {}, plus lents&#x202f;: {}.</translation>
    </message>
    <message>
        <source>Of {} who have both often enough, beyond doubt faster in the second run: {}, slower: {}.</source>
        <translation>Sur {} qui ont les deux assez souvent, sans aucun doute plus rapides dans la seconde manche&#x202f;: {}, plus lents&#x202f;: {}.</translation>
    </message>
    <message>
        <source>Of {} {} cost places, none of them a medal.</source>
        <translation>Sur {}, {} ont coûté des places, aucune d’elles une médaille.</translation>
    </message>
    <message>
        <source>Of {} {} cost places, {} of them a medal.</source>
        <translation>Sur {}, {} ont coûté des places, dont {} une médaille.</translation>
    </message>
    <message>
        <source>The fast touch less: {:.2f} touches a run in the faster third, {:.2f} in the slower.</source>
        <translation>Les rapides touchent moins&#x202f;: {:.2f} touche par manche dans le tiers rapide, {:.2f} dans le lent.</translation>
    </message>
    <message>
        <source>The fast touch more: {:.2f} touches a run in the faster third, {:.2f} in the slower.</source>
        <translation>Les rapides touchent plus&#x202f;: {:.2f} touche par manche dans le tiers rapide, {:.2f} dans le lent.</translation>
    </message>
    <message>
        <source>Too few to tell fast from slow: {:.2f} touches a run in the faster third, {:.2f} in the slower.</source>
        <translation>Trop peu pour distinguer rapides et lents&#x202f;: {:.2f} touche par manche dans le tiers rapide, {:.2f} dans le lent.</translation>
    </message>
    <message>
        <source>There is no penalty.</source>
        <translation>Il n’y a aucune pénalité.</translation>
    </message>
    <message>
        <source>Too few races with both to tell a change.</source>
        <translation>Trop peu de courses avec les deux pour dire un changement.</translation>
    </message>
    <message>
        <source>Without this missed gate: {}.</source>
        <translation>Sans cette porte manquée&#x202f;: {}.</translation>
    </message>
    <message>
        <source>Without this touch: {}.</source>
        <translation>Sans cette touche&#x202f;: {}.</translation>
    </message>
    <message>
        <source>category</source>
        <translation>catégorie</translation>
    </message>
    <message>
        <source>crew</source>
        <translation>équipage</translation>
    </message>
    <message>
        <source>gate</source>
        <translation>porte</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>main</translation>
    </message>
    <message>
        <source>month</source>
        <translation>mois</translation>
    </message>
    <message>
        <source>phase</source>
        <translation>phase</translation>
    </message>
    <message>
        <source>race</source>
        <translation>course</translation>
    </message>
    <message>
        <source>section</source>
        <translation>secteur</translation>
    </message>
    <message>
        <source>tenth of the course</source>
        <translation>dixième du parcours</translation>
    </message>
    <message>
        <source>type of gate</source>
        <translation>type de porte</translation>
    </message>
    <message>
        <source>nobody came</source>
        <translation>personne n’est venu</translation>
    </message>
    <message>
        <source>those without one</source>
        <translation>ceux sans</translation>
    </message>
    <message>
        <source>{:.2f} touches a run in {}, all in one third of the field.</source>
        <translation>{:.2f} touche par manche sur {}, toutes dans un seul tiers du plateau.</translation>
    </message>
    <message>
        <source>{} and {} more</source>
        <translation>{} et {} autres</translation>
    </message>
    <message>
        <source>{} stand out: touched more than the {} that all have in common.</source>
        <translation>{} ressortent&#x202f;: davantage de touches que les {} communs à tous.</translation>
    </message>
    <message>
        <source>{} stands out: touched more than the {} that all have in common.</source>
        <translation>{} ressort&#x202f;: davantage de touches que les {} communs à tous.</translation>
    </message>
    <message>
        <source>{}: too few runs to tell a trend behind the fastest splits.</source>
        <translation>{}&#x202f;: trop peu de manches pour dire une tendance derrière les meilleurs inters.</translation>
    </message>
    <message>
        <source>{}: too few runs to tell a trend behind the winners.</source>
        <translation>{}&#x202f;: trop peu de manches pour dire une tendance derrière les vainqueurs.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the fastest splits ({:+.1f} to {:+.1f}), {}.</source>
        <translation>{}&#x202f;: {:+.1f}&#x202f;% par an derrière les meilleurs inters (de {:+.1f} à {:+.1f}), {}.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the fastest splits, {}.</source>
        <translation>{}&#x202f;: {:+.1f}&#x202f;% par an derrière les meilleurs inters, {}.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the winners ({:+.1f} to {:+.1f}), {}.</source>
        <translation>{}&#x202f;: {:+.1f}&#x202f;% par an derrière les vainqueurs (de {:+.1f} à {:+.1f}), {}.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the winners, {}.</source>
        <translation>{}&#x202f;: {:+.1f}&#x202f;% par an derrière les vainqueurs, {}.</translation>
    </message>
    <message>
        <source>{}st</source>
        <translation>{}e</translation>
    </message>
    <message>
        <source>{}nd</source>
        <translation>{}e</translation>
    </message>
    <message>
        <source>{}rd</source>
        <translation>{}e</translation>
    </message>
    <message>
        <source>{}th</source>
        <translation>{}e</translation>
    </message>
    <message>
        <source>* the best of its column.</source>
        <translation>* le meilleur de sa colonne.</translation>
    </message>
    <message>
        <source>Against the winners</source>
        <translation>Face aux vainqueurs</translation>
    </message>
    <message>
        <source>Against the winners, over {}. Losing: the whole interval is above 0.</source>
        <translation>Face aux vainqueurs, sur {}. Perte&#x202f;: tout l’intervalle est au-dessus de 0.</translation>
    </message>
    <message>
        <source>All runs</source>
        <translation>Toutes les manches</translation>
    </message>
    <message>
        <source>Among the others</source>
        <translation>Parmi les autres</translation>
    </message>
    <message>
        <source>Behind the winner</source>
        <translation>Derrière le vainqueur</translation>
    </message>
    <message>
        <source>Beside the winner</source>
        <translation>À côté du vainqueur</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Équipage</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>Gap to the ideal run from section to section: {}</source>
        <translation>Écart à la manche idéale de secteur en secteur&#x202f;: {}</translation>
    </message>
    <message>
        <source>Gap to {} from section to section: {}</source>
        <translation>Écart à {} de secteur en secteur&#x202f;: {}</translation>
    </message>
    <message>
        <source>Gap to {}, in seconds: above the line is behind.</source>
        <translation>Écart à {}, en secondes&#x202f;: au-dessus de la ligne, c’est du retard.</translation>
    </message>
    <message>
        <source>This run won. Gap to the ideal run, the best of every section, in seconds.</source>
        <translation>Cette manche a gagné. Écart à la manche idéale, le meilleur de chaque secteur, en secondes.</translation>
    </message>
    <message>
        <source>Gate not noted</source>
        <translation>Porte non notée</translation>
    </message>
    <message>
        <source>Gate {}</source>
        <translation>Porte {}</translation>
    </message>
    <message>
        <source>Most lost: {}.</source>
        <translation>Plus grosses pertes&#x202f;: {}.</translation>
    </message>
    <message>
        <source>Not ranked, time</source>
        <translation>Non classé, temps</translation>
    </message>
    <message>
        <source>Nothing stands out from these runs: no interval lies above 0 as a whole.</source>
        <translation>Rien ne ressort de ces manches&#x202f;: aucun intervalle n’est entièrement au-dessus de 0.</translation>
    </message>
    <message>
        <source>Of what</source>
        <translation>De quoi</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>Penalties on the course</source>
        <translation>Pénalités sur le parcours</translation>
    </message>
    <message>
        <source>Penalty seconds are in the times.</source>
        <translation>Les secondes de pénalité sont dans les temps.</translation>
    </message>
    <message>
        <source>Percent behind the winner by day, penalties included; the filled dot is the last run of each race.</source>
        <translation>Pourcentage derrière le vainqueur par jour, pénalités comprises&#x202f;; le point plein est la dernière manche de chaque course.</translation>
    </message>
    <message>
        <source>Percent behind the winner, run by run, {} to {}</source>
        <translation>Pourcentage derrière le vainqueur, manche par manche, de {} à {}</translation>
    </message>
    <message>
        <source>Run {}</source>
        <translation>Manche {}</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Saison</translation>
    </message>
    <message>
        <source>Split table: {}</source>
        <translation>Tableau des inters&#x202f;: {}</translation>
    </message>
    <message>
        <source>The name of a page ends in .html, and its films lie in the folder named the same without that.</source>
        <translation>Le nom d’une page se termine par .html, et ses films se trouvent dans le dossier du même nom sans cela.</translation>
    </message>
    <message>
        <source>Time lost, as noted</source>
        <translation>Temps perdu, tel que noté</translation>
    </message>
    <message>
        <source>Times from the start to each split.</source>
        <translation>Temps du départ à chaque point intermédiaire.</translation>
    </message>
    <message>
        <source>Times in seconds. Made with Kavela.</source>
        <translation>Temps en secondes. Fait avec Kavela.</translation>
    </message>
    <message>
        <source>To winner</source>
        <translation>Au vainqueur</translation>
    </message>
    <message>
        <source>at {} s of the run</source>
        <translation>à {} s de la manche</translation>
    </message>
    <message>
        <source>eyes: {}</source>
        <translation>regard&#x202f;: {}</translation>
    </message>
    <message>
        <source>fastest</source>
        <translation>le plus rapide</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>moyen</translation>
    </message>
    <message>
        <source>slowest</source>
        <translation>le plus lent</translation>
    </message>
    <message>
        <source>upstream</source>
        <translation>remontée</translation>
    </message>
    <message>
        <source>{} &lt;small&gt;of {}&lt;/small&gt;</source>
        <translation>{} &lt;small&gt;sur {}&lt;/small&gt;</translation>
    </message>
    <message>
        <source>{} = paddling {}, penalties {}, official against video time {}.</source>
        <translation>{} = navigation {}, pénalités {}, temps officiel face au temps vidéo {}.</translation>
    </message>
    <message>
        <source>{} = paddling {}, penalties {}.</source>
        <translation>{} = navigation {}, pénalités {}.</translation>
    </message>
    <message>
        <source>{} against {}</source>
        <translation>{} face à {}</translation>
    </message>
    <message numerus="yes">
        <source>{} gates</source>
        <translation>
            <numerusform>{} porte</numerusform>
            <numerusform>{} portes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} more runs are left out.</source>
        <translation>
            <numerusform>{} autre manche est laissée de côté.</numerusform>
            <numerusform>{} autres manches sont laissées de côté.</numerusform>
        </translation>
    </message>
    <message>
        <source>{} of the runs compared, column by column.</source>
        <translation>{} des manches comparées, colonne par colonne.</translation>
    </message>
    <message>
        <source>{} to {}</source>
        <translation>{} à {}</translation>
    </message>
    <message>
        <source>{}, run {}</source>
        <translation>{}, manche {}</translation>
    </message>
    <message>
        <source>{}, {} upstream</source>
        <translation>{}, dont {} en remontée</translation>
    </message>
    <message>
        <source>{}. The film lies beside this page: {}</source>
        <translation>{}. Le film se trouve à côté de cette page&#x202f;: {}</translation>
    </message>
    <message>
        <source>{}: {} s a run</source>
        <translation>{}&#x202f;: {} s par manche</translation>
    </message>
    <message>
        <source>The film is not there.</source>
        <translation>Le film n’est pas là.</translation>
    </message>
    <message>
        <source>The marks of the run lie behind the end of the film.</source>
        <translation>Les marques de la manche sont après la fin du film.</translation>
    </message>
    <message>
        <source>No run of &quot;{}&quot; is of the phase &quot;{}&quot;.</source>
        <translation>Aucune manche de «&#x202f;{}&#x202f;» n’est de la phase «&#x202f;{}&#x202f;».</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Downstream gate</source>
        <translation>Porte en descente</translation>
    </message>
    <message>
        <source>Upstream gate</source>
        <translation>Remontée</translation>
    </message>
    <message>
        <source>Offset gate</source>
        <translation>Porte décalée</translation>
    </message>
    <message>
        <source>Spin gate</source>
        <translation>Porte à tour complet</translation>
    </message>
    <message>
        <source>Single pole</source>
        <translation>Fiche unique</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation>Touche</translation>
    </message>
    <message>
        <source>Missed gate</source>
        <translation>Porte manquée</translation>
    </message>
    <message>
        <source>Head outside the gate</source>
        <translation>Tête hors de la porte</translation>
    </message>
    <message>
        <source>Wrong direction</source>
        <translation>Mauvais sens</translation>
    </message>
    <message>
        <source>Wrong order</source>
        <translation>Mauvais ordre</translation>
    </message>
    <message>
        <source>Pole pushed on purpose</source>
        <translation>Fiche poussée volontairement</translation>
    </message>
    <message>
        <source>Upside down in the gate</source>
        <translation>À l’envers dans la porte</translation>
    </message>
    <message>
        <source>Inner pole</source>
        <translation>Fiche intérieure</translation>
    </message>
    <message>
        <source>Outer pole</source>
        <translation>Fiche extérieure</translation>
    </message>
    <message>
        <source>Both poles</source>
        <translation>Les deux fiches</translation>
    </message>
    <message>
        <source>Left pole</source>
        <translation>Fiche gauche</translation>
    </message>
    <message>
        <source>Right pole</source>
        <translation>Fiche droite</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Bateau</translation>
    </message>
    <message>
        <source>Blade</source>
        <translation>Pale</translation>
    </message>
    <message>
        <source>Body</source>
        <translation>Corps</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>Tête</translation>
    </message>
    <message>
        <source>Bow</source>
        <translation>Pointe avant</translation>
    </message>
    <message>
        <source>Stern</source>
        <translation>Pointe arrière</translation>
    </message>
    <message>
        <source>Shaft</source>
        <translation>Manche de la pagaie</translation>
    </message>
    <message>
        <source>Arm</source>
        <translation>Bras</translation>
    </message>
    <message>
        <source>Washed past the gate</source>
        <translation>Emporté au-delà de la porte</translation>
    </message>
    <message>
        <source>Left out on purpose</source>
        <translation>Laissée volontairement</translation>
    </message>
    <message>
        <source>Entering</source>
        <translation>À l’entrée</translation>
    </message>
    <message>
        <source>In the gate</source>
        <translation>Dans la porte</translation>
    </message>
    <message>
        <source>Leaving</source>
        <translation>À la sortie</translation>
    </message>
    <message>
        <source>Before the gate</source>
        <translation>Avant la porte</translation>
    </message>
    <message>
        <source>After the gate</source>
        <translation>Après la porte</translation>
    </message>
    <message>
        <source>Forwards</source>
        <translation>En avant</translation>
    </message>
    <message>
        <source>Backwards</source>
        <translation>En arrière</translation>
    </message>
    <message>
        <source>Sideways</source>
        <translation>De travers</translation>
    </message>
    <message>
        <source>Turning left</source>
        <translation>En tournant à gauche</translation>
    </message>
    <message>
        <source>Turning right</source>
        <translation>En tournant à droite</translation>
    </message>
    <message>
        <source>Drifting left</source>
        <translation>Dérive à gauche</translation>
    </message>
    <message>
        <source>Drifting right</source>
        <translation>Dérive à droite</translation>
    </message>
    <message>
        <source>Direct line</source>
        <translation>Ligne directe</translation>
    </message>
    <message>
        <source>Spin</source>
        <translation>Tour complet</translation>
    </message>
    <message>
        <source>Duffek (bow draw)</source>
        <translation>Duffek (appel avant)</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Propulsion circulaire</translation>
    </message>
    <message>
        <source>Stern pivot</source>
        <translation>Pivot arrière</translation>
    </message>
    <message>
        <source>Punt</source>
        <translation>Poussée au fond</translation>
    </message>
    <message>
        <source>Flat turn</source>
        <translation>Virage à plat</translation>
    </message>
    <message>
        <source>Ferry</source>
        <translation>Bac</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Marche arrière</translation>
    </message>
    <message>
        <source>Surf</source>
        <translation>Surf</translation>
    </message>
    <message>
        <source>At the gate</source>
        <translation>Vers la porte</translation>
    </message>
    <message>
        <source>At the next gate</source>
        <translation>Vers la porte suivante</translation>
    </message>
    <message>
        <source>At the pole</source>
        <translation>Vers la fiche</translation>
    </message>
    <message>
        <source>At the water</source>
        <translation>Vers l’eau</translation>
    </message>
    <message>
        <source>At the blade</source>
        <translation>Vers la pale</translation>
    </message>
    <message>
        <source>At the bow</source>
        <translation>Vers la pointe avant</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>Ailleurs</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Cross-bow draw</source>
        <translation>Appel croisé</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Appel</translation>
    </message>
    <message>
        <source>Stern rudder</source>
        <translation>Gouvernail arrière</translation>
    </message>
    <message>
        <source>Brace</source>
        <translation>Appui</translation>
    </message>
    <message>
        <source>Cross-bow</source>
        <translation>Croisé avant</translation>
    </message>
    <message>
        <source>Single gate</source>
        <translation>Porte isolée</translation>
    </message>
    <message>
        <source>Offset (stagger)</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>S-turn</source>
        <translation>Virage en S</translation>
    </message>
    <message>
        <source>Cross (ferry)</source>
        <translation>Traversée (bac)</translation>
    </message>
    <message>
        <source>Upstream</source>
        <translation>Remontée</translation>
    </message>
    <message>
        <source>Upstream sprint</source>
        <translation>Sprint vers l’amont</translation>
    </message>
    <message>
        <source>Merano</source>
        <translation>Merano</translation>
    </message>
    <message>
        <source>Downstream to upstream</source>
        <translation>De descendue à remontée</translation>
    </message>
    <message>
        <source>Upstream to downstream</source>
        <translation>De remontée à descendue</translation>
    </message>
    <message>
        <source>Upstream to upstream</source>
        <translation>De remontée à remontée</translation>
    </message>
    <message>
        <source>Straight gates</source>
        <translation>Portes en ligne</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Finish sprint</source>
        <translation>Sprint final</translation>
    </message>
    <message>
        <source>Approach</source>
        <translation>Approche</translation>
    </message>
    <message>
        <source>Between the gates</source>
        <translation>Entre les portes</translation>
    </message>
    <message>
        <source>Whole</source>
        <translation>Entier</translation>
    </message>
    <message>
        <source>Flat water</source>
        <translation>Eau plate</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Vague</translation>
    </message>
    <message>
        <source>Stopper (hole)</source>
        <translation>Rappel</translation>
    </message>
    <message>
        <source>Eddy</source>
        <translation>Contre-courant</translation>
    </message>
    <message>
        <source>Eddy line</source>
        <translation>Ligne de contre-courant</translation>
    </message>
    <message>
        <source>Pourover</source>
        <translation>Pleureur</translation>
    </message>
    <message>
        <source>Curtain</source>
        <translation>Rideau</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Chute</translation>
    </message>
    <message>
        <source>Boil</source>
        <translation>Champignon</translation>
    </message>
    <message>
        <source>Cushion</source>
        <translation>Coussin</translation>
    </message>
    <message>
        <source>Wave train</source>
        <translation>Train de vagues</translation>
    </message>
    <message>
        <source>Fast water</source>
        <translation>Eau rapide</translation>
    </message>
    <message>
        <source>Sweep roll</source>
        <translation>Esquimautage circulaire</translation>
    </message>
    <message>
        <source>C-to-C roll</source>
        <translation>Esquimautage C à C</translation>
    </message>
    <message>
        <source>Hand roll</source>
        <translation>Esquimautage à la main</translation>
    </message>
    <message numerus="yes">
        <source>{} runs left out: penalties not known by gate</source>
        <translation>
            <numerusform>{} manche laissée de côté&#x202f;: pénalités non connues par porte</numerusform>
            <numerusform>{} manches laissées de côté&#x202f;: pénalités non connues par porte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} runs are left out: their penalties are not known by gate.</source>
        <translation>
            <numerusform>{} manche est laissée de côté&#x202f;: ses pénalités ne sont pas connues par porte.</numerusform>
            <numerusform>{} manches sont laissées de côté&#x202f;: leurs pénalités ne sont pas connues par porte.</numerusform>
        </translation>
    </message>
    <message>
        <source>(not given)</source>
        <translation>(non indiqué)</translation>
    </message>
    <message>
        <source>* touched more than that with 95 % certainty and more</source>
        <translation>* touché davantage avec une certitude de 95&#x202f;% et plus</translation>
    </message>
    <message>
        <source>A missed gate also saved paddling, which is not taken back here.</source>
        <translation>Une porte manquée a aussi épargné de la navigation, ce qui n’est pas repris ici.</translation>
    </message>
    <message>
        <source>Gained</source>
        <translation>Gagné</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdu</translation>
    </message>
    <message>
        <source>Missed/run</source>
        <translation>Manq./m.</translation>
    </message>
    <message>
        <source>Ranked</source>
        <translation>Classé</translation>
    </message>
    <message>
        <source>Rate %</source>
        <translation>Taux&#x202f;%</translation>
    </message>
    <message>
        <source>Risk and speed</source>
        <translation>Risque, vitesse</translation>
    </message>
    <message>
        <source>Touches/run</source>
        <translation>Touches/m.</translation>
    </message>
    <message>
        <source>Ways: chosen against the fastest timed</source>
        <translation>Options&#x202f;: choisie face à la plus rapide chronométrée</translation>
    </message>
    <message>
        <source>between {}</source>
        <translation>entre-deux {}</translation>
    </message>
    <message>
        <source>fastest third</source>
        <translation>tiers rapide</translation>
    </message>
    <message>
        <source>middle third</source>
        <translation>tiers moyen</translation>
    </message>
    <message>
        <source>slowest third</source>
        <translation>tiers lent</translation>
    </message>
    <message>
        <source>in no stretch</source>
        <translation>dans aucun tronçon</translation>
    </message>
    <message>
        <source>not finished: {}</source>
        <translation>non terminées&#x202f;: {}</translation>
    </message>
    <message>
        <source>on run {}</source>
        <translation>face à la manche {}</translation>
    </message>
    <message>
        <source>on the fastest</source>
        <translation>face au plus rapide</translation>
    </message>
    <message>
        <source>on the finalists&apos; median</source>
        <translation>face à la médiane des finalistes</translation>
    </message>
    <message>
        <source>on the ideal run</source>
        <translation>face à la manche idéale</translation>
    </message>
    <message>
        <source>on the own fastest other run</source>
        <translation>face à la plus rapide de ses autres manches</translation>
    </message>
    <message>
        <source>on the winner</source>
        <translation>face au vainqueur</translation>
    </message>
    <message>
        <source>penalties {}</source>
        <translation>pénalités {}</translation>
    </message>
    <message>
        <source>timing {}</source>
        <translation>chronométrage {}</translation>
    </message>
    <message>
        <source>touch</source>
        <translation>touche</translation>
    </message>
    <message numerus="yes">
        <source>{} penalties cost no place</source>
        <translation>
            <numerusform>{} pénalité n’a coûté aucune place</numerusform>
            <numerusform>{} pénalités n’ont coûté aucune place</numerusform>
        </translation>
    </message>
    <message>
        <source>{}: there is none</source>
        <translation>{}&#x202f;: il n’y en a pas</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no gate number.</source>
        <translation>«&#x202f;{}&#x202f;» n’est pas un numéro de porte.</translation>
    </message>
    <message>
        <source>A section up to here was not timed, so this is not the time from the start.</source>
        <translation>Un secteur jusqu’ici n’a pas été chronométré&#x202f;: ce n’est donc pas le temps depuis le départ.</translation>
    </message>
    <message>
        <source>A time must be above 0. Check the marks of this run.</source>
        <translation>Un temps doit être supérieur à 0. Vérifiez les marques de cette manche.</translation>
    </message>
    <message>
        <source>A time of the session is negative or no number.</source>
        <translation>Un temps de la séance est négatif ou n’est pas un nombre.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>From {:.1f} s to {:.1f} s of the run nothing is recorded.</source>
        <translation>De {:.1f} s à {:.1f} s de la manche, rien n’est enregistré.</translation>
    </message>
    <message>
        <source>Gate {} has this penalty already.</source>
        <translation>La porte {} a déjà cette pénalité.</translation>
    </message>
    <message>
        <source>Gate {} is missing before gate {} in section {}.</source>
        <translation>La porte {} manque avant la porte {} dans le secteur {}.</translation>
    </message>
    <message>
        <source>Gate {} is not on a course of {}.</source>
        <translation>La porte {} n’est pas sur un parcours de {}.</translation>
    </message>
    <message>
        <source>Gate {} stands a second time or out of order in section {}.</source>
        <translation>La porte {} figure une seconde fois ou dans le désordre dans le secteur {}.</translation>
    </message>
    <message>
        <source>Gate {} stands in no section.</source>
        <translation>La porte {} ne figure dans aucun secteur.</translation>
    </message>
    <message>
        <source>Gate {} stands there twice.</source>
        <translation>La porte {} y figure deux fois.</translation>
    </message>
    <message>
        <source>Get ready</source>
        <translation>Préparez-vous</translation>
    </message>
    <message>
        <source>It was deleted here and changed there: it is brought again.</source>
        <translation>Supprimé ici et modifié là-bas&#x202f;: il est repris.</translation>
    </message>
    <message>
        <source>It was deleted there and changed here: it is put there again.</source>
        <translation>Supprimé là-bas et modifié ici&#x202f;: il y est remis.</translation>
    </message>
    <message>
        <source>Line {}, {}: there is no run of this crew.</source>
        <translation>Ligne {}, {}&#x202f;: il n’y a aucune manche de cet équipage.</translation>
    </message>
    <message>
        <source>No motion of the boat is attached to this run.</source>
        <translation>Aucun mouvement du bateau n’est joint à cette manche.</translation>
    </message>
    <message>
        <source>No run waiting</source>
        <translation>Aucune manche en attente</translation>
    </message>
    <message>
        <source>No time was taken here.</source>
        <translation>Aucun temps n’a été pris ici.</translation>
    </message>
    <message>
        <source>Of the first {:.1f} s of the run nothing is recorded.</source>
        <translation>Rien n’est enregistré des premières {:.1f} s de la manche.</translation>
    </message>
    <message>
        <source>Of the last {:.1f} s of the run nothing is recorded.</source>
        <translation>Rien n’est enregistré des dernières {:.1f} s de la manche.</translation>
    </message>
    <message>
        <source>Rest</source>
        <translation>Récupération</translation>
    </message>
    <message>
        <source>Rest between sets</source>
        <translation>Récupération entre les séries</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Effort</translation>
    </message>
    <message>
        <source>Somebody changed it on the server meanwhile.</source>
        <translation>Quelqu’un l’a modifié entre-temps sur le serveur.</translation>
    </message>
    <message>
        <source>Somebody has locked it on the server.</source>
        <translation>Quelqu’un l’a verrouillé sur le serveur.</translation>
    </message>
    <message>
        <source>Start and end of the stretch are not both marked in the run of {}.</source>
        <translation>Le début et la fin du tronçon ne sont pas tous deux marqués dans la manche de {}.</translation>
    </message>
    <message>
        <source>Start and end of the stretch are not both marked in this run.</source>
        <translation>Le début et la fin du tronçon ne sont pas tous deux marqués dans cette manche.</translation>
    </message>
    <message>
        <source>The end of the stretch is not marked after its start in the run of {}.</source>
        <translation>La fin du tronçon n’est pas marquée après son début dans la manche de {}.</translation>
    </message>
    <message>
        <source>The end of the stretch is not marked after its start in this run.</source>
        <translation>La fin du tronçon n’est pas marquée après son début dans cette manche.</translation>
    </message>
    <message>
        <source>The answer of the server is longer than it can be.</source>
        <translation>La réponse du serveur est plus longue que possible.</translation>
    </message>
    <message>
        <source>The attached motion is not as long as the run, so that its moments cannot be told.</source>
        <translation>Le mouvement joint n’est pas aussi long que la manche&#x202f;: ses moments ne peuvent donc pas être connus.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted, so that nothing was sent. It was issued by “{}”: {}.</source>
        <translation>Le certificat du serveur n’est pas fiable&#x202f;: rien n’a été envoyé. Il a été émis par «&#x202f;{}&#x202f;»&#x202f;: {}.</translation>
    </message>
    <message>
        <source>The connection broke off.</source>
        <translation>La connexion s’est interrompue.</translation>
    </message>
    <message>
        <source>The exit is marked before the entrance.</source>
        <translation>La sortie est marquée avant l’entrée.</translation>
    </message>
    <message>
        <source>The exit is marked before the middle.</source>
        <translation>La sortie est marquée avant le milieu.</translation>
    </message>
    <message>
        <source>The middle is marked before the entrance.</source>
        <translation>Le milieu est marqué avant l’entrée.</translation>
    </message>
    <message>
        <source>The film lies on {}, which is not ticked.</source>
        <translation>Le film se trouve sur {}, qui n’est pas coché.</translation>
    </message>
    <message>
        <source>The folder above is not there on the server.</source>
        <translation>Le dossier parent n’existe pas sur le serveur.</translation>
    </message>
    <message>
        <source>The number of sections is {}, but that of splits is {}.</source>
        <translation>Le nombre de secteurs est {}, mais celui des inters est {}.</translation>
    </message>
    <message>
        <source>The recording does not reach into this run.</source>
        <translation>L’enregistrement n’atteint pas cette manche.</translation>
    </message>
    <message>
        <source>The recording has {} further holes in this run.</source>
        <translation>L’enregistrement a {} autres trous dans cette manche.</translation>
    </message>
    <message>
        <source>The run has no times that the recording could be laid on.</source>
        <translation>La manche n’a pas de temps sur lesquels poser l’enregistrement.</translation>
    </message>
    <message>
        <source>The section before was not timed, so this time covers both.</source>
        <translation>Le secteur précédent n’a pas été chronométré&#x202f;: ce temps couvre donc les deux.</translation>
    </message>
    <message>
        <source>The server answered with status {}.</source>
        <translation>Le serveur a répondu avec le statut {}.</translation>
    </message>
    <message>
        <source>The server cannot be reached safely.</source>
        <translation>Le serveur ne peut pas être joint de façon sûre.</translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation>Le serveur ne peut pas être joint.</translation>
    </message>
    <message>
        <source>The server does not accept the user name or the password.</source>
        <translation>Le serveur n’accepte pas le nom d’utilisateur ou le mot de passe.</translation>
    </message>
    <message>
        <source>The server does not allow this, or not to this user.</source>
        <translation>Le serveur ne le permet pas, ou pas à cet utilisateur.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Le serveur ne répond pas.</translation>
    </message>
    <message>
        <source>The server fell silent.</source>
        <translation>Le serveur s’est tu.</translation>
    </message>
    <message>
        <source>The server has no such file or folder.</source>
        <translation>Le serveur n’a pas ce fichier ou ce dossier.</translation>
    </message>
    <message>
        <source>The server is full, or your share of it.</source>
        <translation>Le serveur est plein, ou votre part de celui-ci.</translation>
    </message>
    <message>
        <source>The server leads to another one, {}, which is not followed.</source>
        <translation>Le serveur renvoie vers un autre, {}, qui n’est pas suivi.</translation>
    </message>
    <message>
        <source>The server takes no file of this size.</source>
        <translation>Le serveur n’accepte pas de fichier de cette taille.</translation>
    </message>
    <message>
        <source>The server was not found. Is the computer online?</source>
        <translation>Le serveur est introuvable. L’ordinateur est-il connecté&#x202f;?</translation>
    </message>
    <message>
        <source>The session has more sets or repetitions than can be timed.</source>
        <translation>La séance a plus de séries ou de répétitions qu’on ne peut en chronométrer.</translation>
    </message>
    <message>
        <source>The session needs a work time.</source>
        <translation>La séance a besoin d’un temps d’effort.</translation>
    </message>
    <message>
        <source>The session needs at least one set and one repetition.</source>
        <translation>La séance a besoin d’au moins une série et une répétition.</translation>
    </message>
    <message>
        <source>The session takes longer than a day.</source>
        <translation>La séance dure plus d’un jour.</translation>
    </message>
    <message>
        <source>This frame lies after {} at {}.</source>
        <translation>Cette image est après {} à {}.</translation>
    </message>
    <message>
        <source>This frame lies before {} at {}.</source>
        <translation>Cette image est avant {} à {}.</translation>
    </message>
    <message>
        <source>This run was not timed to the end, so this is not the time of the whole course.</source>
        <translation>Cette manche n’a pas été chronométrée jusqu’au bout&#x202f;: ce n’est donc pas le temps de tout le parcours.</translation>
    </message>
    <message>
        <source>Where they differ, both stay.</source>
        <translation>S’ils diffèrent, les deux restent.</translation>
    </message>
    <message>
        <source>a byte is no UTF-8 text</source>
        <translation>un octet n’est pas du texte UTF-8</translation>
    </message>
    <message>
        <source>a colon is due</source>
        <translation>un deux-points est attendu</translation>
    </message>
    <message>
        <source>a comma or ] is due</source>
        <translation>une virgule ou ] est attendu</translation>
    </message>
    <message>
        <source>a comma or } is due</source>
        <translation>une virgule ou } est attendu</translation>
    </message>
    <message>
        <source>a digit is due</source>
        <translation>un chiffre est attendu</translation>
    </message>
    <message>
        <source>a key is due</source>
        <translation>une clé est attendue</translation>
    </message>
    <message>
        <source>a micro split</source>
        <translation>un micro-inter</translation>
    </message>
    <message>
        <source>a number is out of range</source>
        <translation>un nombre est hors limites</translation>
    </message>
    <message>
        <source>a stroke of this hand</source>
        <translation>un coup de cette main</translation>
    </message>
    <message>
        <source>a text holds a control character</source>
        <translation>un texte contient un caractère de contrôle</translation>
    </message>
    <message>
        <source>a text holds a malformed escape</source>
        <translation>un texte contient un échappement mal formé</translation>
    </message>
    <message>
        <source>a value is due</source>
        <translation>une valeur est attendue</translation>
    </message>
    <message>
        <source>an unknown issuer</source>
        <translation>un émetteur inconnu</translation>
    </message>
    <message>
        <source>bib</source>
        <translation>dossard</translation>
    </message>
    <message>
        <source>five</source>
        <translation>cinq</translation>
    </message>
    <message>
        <source>six</source>
        <translation>six</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>pas d’autorisation</translation>
    </message>
    <message>
        <source>not JSON, byte {}: {}</source>
        <translation>pas du JSON, octet {}&#x202f;: {}</translation>
    </message>
    <message>
        <source>not JSON, or cut off</source>
        <translation>pas du JSON, ou tronqué</translation>
    </message>
    <message>
        <source>not JSON: a number is malformed or out of range</source>
        <translation>pas du JSON&#x202f;: un nombre est mal formé ou hors limites</translation>
    </message>
    <message>
        <source>not JSON: a text holds a control character</source>
        <translation>pas du JSON&#x202f;: un texte contient un caractère de contrôle</translation>
    </message>
    <message>
        <source>not JSON: a text holds a malformed escape</source>
        <translation>pas du JSON&#x202f;: un texte contient un échappement mal formé</translation>
    </message>
    <message>
        <source>not JSON: a text is not closed (the file may be cut off)</source>
        <translation>pas du JSON&#x202f;: un texte n’est pas fermé (le fichier est peut-être tronqué)</translation>
    </message>
    <message>
        <source>position</source>
        <translation>position</translation>
    </message>
    <message>
        <source>something stands behind the document</source>
        <translation>quelque chose suit le document</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>le disque est en lecture seule</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>le disque est plein</translation>
    </message>
    <message>
        <source>the document is nested too deeply</source>
        <translation>le document est imbriqué trop profondément</translation>
    </message>
    <message>
        <source>the document is too large for the memory</source>
        <translation>le document est trop grand pour la mémoire</translation>
    </message>
    <message>
        <source>the end of the stretch</source>
        <translation>la fin du tronçon</translation>
    </message>
    <message>
        <source>the file became shorter while it was read</source>
        <translation>le fichier a raccourci pendant sa lecture</translation>
    </message>
    <message>
        <source>the file holds nothing but blanks</source>
        <translation>le fichier ne contient que des blancs</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>the file is no text; save the list as text (CSV) first</source>
        <translation>le fichier n’est pas du texte&#x202f;; enregistrez d’abord la liste en texte (CSV)</translation>
    </message>
    <message>
        <source>the file is not UTF-8 text</source>
        <translation>le fichier n’est pas du texte UTF-8</translation>
    </message>
    <message>
        <source>the file is too large for a document (over 4 GB)</source>
        <translation>le fichier est trop grand pour un document (plus de 4 Go)</translation>
    </message>
    <message>
        <source>the file is too large for a list (over 64 MB)</source>
        <translation>le fichier est trop grand pour une liste (plus de 64 Mo)</translation>
    </message>
    <message>
        <source>the penalty {} is below 0</source>
        <translation>la pénalité {} est inférieure à 0</translation>
    </message>
    <message>
        <source>the penalty {} is over {}</source>
        <translation>la pénalité {} dépasse {}</translation>
    </message>
    <message>
        <source>the position {} is below 0</source>
        <translation>la position {} est inférieure à 0</translation>
    </message>
    <message>
        <source>the start</source>
        <translation>le départ</translation>
    </message>
    <message>
        <source>the start of the stretch</source>
        <translation>le début du tronçon</translation>
    </message>
    <message>
        <source>the tag {}</source>
        <translation>l’étiquette {}</translation>
    </message>
    <message>
        <source>the text ends too early (the file may be cut off)</source>
        <translation>le texte se termine trop tôt (le fichier est peut-être tronqué)</translation>
    </message>
    <message>
        <source>the text is not valid UTF-8</source>
        <translation>le texte n’est pas de l’UTF-8 valide</translation>
    </message>
    <message>
        <source>the time {} is an hour or more</source>
        <translation>le temps {} fait une heure ou plus</translation>
    </message>
    <message>
        <source>the time {} is below 0</source>
        <translation>le temps {} est inférieur à 0</translation>
    </message>
    <message>
        <source>the {} &quot;{}&quot; is no number of seconds</source>
        <translation>{} «&#x202f;{}&#x202f;»&#x202f;: ce n’est pas un nombre de secondes</translation>
    </message>
    <message>
        <source>the {} &quot;{}&quot; is no whole number</source>
        <translation>{} «&#x202f;{}&#x202f;»&#x202f;: ce n’est pas un nombre entier</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>this is a folder, not a file</source>
        <translation>c’est un dossier, pas un fichier</translation>
    </message>
    <message>
        <source>this is no JSON object: it does not begin with {</source>
        <translation>ce n’est pas un objet JSON&#x202f;: il ne commence pas par {</translation>
    </message>
    <message>
        <source>this is not an ordinary file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>this moment</source>
        <translation>ce moment</translation>
    </message>
    <message>
        <source>too many symbolic links</source>
        <translation>trop de liens symboliques</translation>
    </message>
    <message>
        <source>{0}: has the time of {1} (bibs {2} and {3}), and {1} has this one&apos;s. Exchange the two crews?</source>
        <translation>{0}&#x202f;: a le temps de {1} (dossards {2} et {3}), et {1} a le sien. Échanger les deux équipages&#x202f;?</translation>
    </message>
    <message>
        <source>{0}: has the time of {1}, and {1} has this one&apos;s. Exchange the two crews?</source>
        <translation>{0}&#x202f;: a le temps de {1}, et {1} a le sien. Échanger les deux équipages&#x202f;?</translation>
    </message>
    <message>
        <source>{0}: the list says {1}, ours is {2}. Take {1} over?</source>
        <translation>{0}&#x202f;: la liste dit {1}, le nôtre est {2}. Reprendre {1}&#x202f;?</translation>
    </message>
    <message numerus="yes">
        <source>{} fields</source>
        <translation>
            <numerusform>{} champ</numerusform>
            <numerusform>{} champs</numerusform>
        </translation>
    </message>
    <message>
        <source>{} is marked on this frame already.</source>
        <translation>{}&#x202f;: déjà marqué sur cette image.</translation>
    </message>
    <message numerus="yes">
        <source>{} runs waiting</source>
        <translation>
            <numerusform>{} manche en attente</numerusform>
            <numerusform>{} manches en attente</numerusform>
        </translation>
    </message>
    <message>
        <source>{} where {} are needed</source>
        <translation>{} là où il en faut {}</translation>
    </message>
    <message>
        <source>{}, the next starts in {}</source>
        <translation>{}, la prochaine part dans {}</translation>
    </message>
    <message>
        <source>{}: is not in the list.</source>
        <translation>{}&#x202f;: n’est pas dans la liste.</translation>
    </message>
    <message>
        <source>{}: the list has {} s of penalties, ours has {} s. Take the official result over?</source>
        <translation>{}&#x202f;: la liste a {} s de pénalités, la nôtre {} s. Reprendre le résultat officiel&#x202f;?</translation>
    </message>
    <message>
        <source>{}: the list has {}, the film no time to the end. Take the official time over?</source>
        <translation>{}&#x202f;: la liste a {}, le film aucun temps jusqu’au bout. Reprendre le temps officiel&#x202f;?</translation>
    </message>
    <message>
        <source>{}: the list has {}, the film {}, {} s apart. Take the official time over?</source>
        <translation>{}&#x202f;: la liste a {}, le film {}, à {} s d’écart. Reprendre le temps officiel&#x202f;?</translation>
    </message>
    <message>
        <source>{}: the list says {}, ours is {}.</source>
        <translation>{}&#x202f;: la liste dit {}, le nôtre est {}.</translation>
    </message>
    <message>
        <source>A difference needs two columns, as in difference:Run 2,Run 1.</source>
        <translation>Une différence a besoin de deux colonnes, comme dans difference:Run 2,Run 1.</translation>
    </message>
    <message>
        <source>A text has no sheet &quot;{}&quot;.</source>
        <translation>Un texte n’a pas de feuille «&#x202f;{}&#x202f;».</translation>
    </message>
    <message>
        <source>A {} is of one column, not of {}.</source>
        <translation>{}&#x202f;: d’une colonne, pas de {}.</translation>
    </message>
    <message>
        <source>A {} is of two columns, not of {}.</source>
        <translation>{}&#x202f;: de deux colonnes, pas de {}.</translation>
    </message>
    <message>
        <source>No column holds times; name the one to reckon with.</source>
        <translation>Aucune colonne ne contient de temps&#x202f;; nommez celle avec laquelle calculer.</translation>
    </message>
    <message>
        <source>No column holds times; name those to add, as in total:Time,Pen.</source>
        <translation>Aucune colonne ne contient de temps&#x202f;; nommez celles à additionner, comme dans total:Time,Pen.</translation>
    </message>
    <message>
        <source>No list is open.</source>
        <translation>Aucune liste n’est ouverte.</translation>
    </message>
    <message>
        <source>Not drawn: %1</source>
        <translation>Non dessiné&#x202f;: %1</translation>
    </message>
    <message>
        <source>Sections recorded in part: {}.</source>
        <translation>Secteurs enregistrés en partie&#x202f;: {}.</translation>
    </message>
    <message>
        <source>Sections without strokes: {}.</source>
        <translation>Secteurs sans coups&#x202f;: {}.</translation>
    </message>
    <message>
        <source>The column &quot;{}&quot; has no numbers to reckon with: it is {}.</source>
        <translation>La colonne «&#x202f;{}&#x202f;» n’a pas de nombres pour calculer&#x202f;: elle est {}.</translation>
    </message>
    <message>
        <source>The column &quot;{}&quot; has {} values: too many for columns of a pivot.</source>
        <translation>La colonne «&#x202f;{}&#x202f;» a {} valeurs&#x202f;: trop pour les colonnes d’un tableau croisé.</translation>
    </message>
    <message>
        <source>The file is packed, but holds no spreadsheet (.xlsx or .ods).</source>
        <translation>Le fichier est compressé, mais ne contient pas de feuille de calcul (.xlsx ou .ods).</translation>
    </message>
    <message>
        <source>The list needs a column with the title Name, Athlete or Crew.</source>
        <translation>La liste a besoin d’une colonne intitulée Name, Athlete ou Crew.</translation>
    </message>
    <message>
        <source>The list needs a column with the title Time, or Total and Penalty.</source>
        <translation>La liste a besoin d’une colonne intitulée Time, ou Total et Penalty.</translation>
    </message>
    <message>
        <source>The picture has {} MB. Up to 40 MB can be read; save it smaller first.</source>
        <translation>L’image fait {} Mo. On peut en lire jusqu’à 40 Mo&#x202f;; enregistrez-la d’abord plus petite.</translation>
    </message>
    <message>
        <source>The picture is far too long for a course.</source>
        <translation>L’image est bien trop allongée pour un parcours.</translation>
    </message>
    <message>
        <source>The race carries no results list. Open the list itself; &quot;Keep with the race&quot; puts it there.</source>
        <translation>La course ne porte aucune liste de résultats. Ouvrez la liste elle-même&#x202f;; «&#x202f;Conserver avec la course&#x202f;» l’y met.</translation>
    </message>
    <message>
        <source>The report could not be painted.</source>
        <translation>Le rapport n’a pas pu être dessiné.</translation>
    </message>
    <message>
        <source>The sheet &quot;{}&quot; has merged cells: their value stands in each of their lines.</source>
        <translation>La feuille «&#x202f;{}&#x202f;» a des cellules fusionnées&#x202f;: leur valeur figure dans chacune de leurs lignes.</translation>
    </message>
    <message>
        <source>The spreadsheet is damaged: its part {} cannot be read.</source>
        <translation>La feuille de calcul est endommagée&#x202f;: sa partie {} est illisible.</translation>
    </message>
    <message>
        <source>The spreadsheet is damaged: its part {} cannot be unpacked.</source>
        <translation>La feuille de calcul est endommagée&#x202f;: sa partie {} ne peut pas être décompressée.</translation>
    </message>
    <message>
        <source>The spreadsheet is damaged: {}.</source>
        <translation>La feuille de calcul est endommagée&#x202f;: {}.</translation>
    </message>
    <message>
        <source>The spreadsheet is protected by a password. Save it without one and open it again.</source>
        <translation>La feuille de calcul est protégée par un mot de passe. Enregistrez-la sans et rouvrez-la.</translation>
    </message>
    <message>
        <source>The spreadsheet is too large: unpacked it is over 128 MB.</source>
        <translation>La feuille de calcul est trop grande&#x202f;: décompressée, elle dépasse 128 Mo.</translation>
    </message>
    <message>
        <source>The text is no UTF-8 and was read as Latin-1; look at the letters with accents.</source>
        <translation>Le texte n’est pas de l’UTF-8 et a été lu comme Latin-1&#x202f;; vérifiez les lettres accentuées.</translation>
    </message>
    <message>
        <source>There are several sheets; choose one of {}.</source>
        <translation>Il y a plusieurs feuilles&#x202f;; choisissez parmi {}.</translation>
    </message>
    <message>
        <source>There is no column &quot;{}&quot;; there is none.</source>
        <translation>Il n’y a pas de colonne «&#x202f;{}&#x202f;»&#x202f;; il n’y en a aucune.</translation>
    </message>
    <message>
        <source>There is no column &quot;{}&quot;; there is {}.</source>
        <translation>Il n’y a pas de colonne «&#x202f;{}&#x202f;»&#x202f;; il y a {}.</translation>
    </message>
    <message>
        <source>There is no sheet &quot;{}&quot;; there is {}.</source>
        <translation>Il n’y a pas de feuille «&#x202f;{}&#x202f;»&#x202f;; il y a {}.</translation>
    </message>
    <message>
        <source>There is nothing in it.</source>
        <translation>Il n’y a rien dedans.</translation>
    </message>
    <message>
        <source>This is a PDF, which has no columns to read; open it in a viewer.</source>
        <translation>C’est un PDF, qui n’a pas de colonnes à lire&#x202f;; ouvrez-le dans une visionneuse.</translation>
    </message>
    <message>
        <source>This is a spreadsheet with a password or of the old kind (.xls). Save it without a password as .xlsx, .ods or text (CSV).</source>
        <translation>C’est une feuille de calcul avec mot de passe ou de l’ancien type (.xls). Enregistrez-la sans mot de passe en .xlsx, .ods ou texte (CSV).</translation>
    </message>
    <message>
        <source>This is neither text nor a spreadsheet (.xlsx, .ods).</source>
        <translation>Ce n’est ni du texte ni une feuille de calcul (.xlsx, .ods).</translation>
    </message>
    <message>
        <source>This is no picture that can be read. Take a PNG or JPEG file.</source>
        <translation>Ce n’est pas une image lisible. Prenez un fichier PNG ou JPEG.</translation>
    </message>
    <message>
        <source>a time or a penalty is below 0</source>
        <translation>un temps ou une pénalité est inférieur à 0</translation>
    </message>
    <message>
        <source>gate %1: %2</source>
        <translation>porte %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>is not in the team</source>
        <translation>n’est pas dans l’équipe</translation>
    </message>
    <message>
        <source>it could not be read</source>
        <translation>il n’a pas pu être lu</translation>
    </message>
    <message>
        <source>missed gate</source>
        <translation>porte manquée</translation>
    </message>
    <message>
        <source>no category of the team is called &quot;{}&quot;</source>
        <translation>aucune catégorie de l’équipe ne s’appelle «&#x202f;{}&#x202f;»</translation>
    </message>
    <message>
        <source>no phase of the team is called &quot;{}&quot;</source>
        <translation>aucune phase de l’équipe ne s’appelle «&#x202f;{}&#x202f;»</translation>
    </message>
    <message>
        <source>no day such as 2026-05-03 or 3.5.2026</source>
        <translation>pas un jour tel que 2026-05-03 ou 3.5.2026</translation>
    </message>
    <message>
        <source>no font is installed</source>
        <translation>aucune police n’est installée</translation>
    </message>
    <message>
        <source>no number</source>
        <translation>pas un nombre</translation>
    </message>
    <message>
        <source>no time such as 92.45, 1:32.45 or 92.45 (2)</source>
        <translation>pas un temps tel que 92.45, 1:32.45 ou 92.45 (2)</translation>
    </message>
    <message>
        <source>no whole number</source>
        <translation>pas un nombre entier</translation>
    </message>
    <message>
        <source>none of DNS, DNF, DSQ and the like</source>
        <translation>aucun de DNS, DNF, DSQ et semblables</translation>
    </message>
    <message>
        <source>stands above the titles</source>
        <translation>se trouve au-dessus des titres</translation>
    </message>
    <message>
        <source>the line ends here: it has {} of {} fields</source>
        <translation>la ligne se termine ici&#x202f;: elle a {} champs sur {}</translation>
    </message>
    <message>
        <source>the line has more fields than there are columns</source>
        <translation>la ligne a plus de champs qu’il n’y a de colonnes</translation>
    </message>
    <message>
        <source>the run was not finished</source>
        <translation>la manche n’a pas été terminée</translation>
    </message>
    <message>
        <source>the titles once more</source>
        <translation>les titres encore une fois</translation>
    </message>
    <message>
        <source>touches and missed gates of %1 runs</source>
        <translation>touches et portes manquées de %1 manches</translation>
    </message>
    <message>
        <source>{}: no run has a film</source>
        <translation>{}&#x202f;: aucune manche n’a de film</translation>
    </message>
    <message>
        <source>{}: the column is {}</source>
        <translation>{}&#x202f;: la colonne est {}</translation>
    </message>
    <message>
        <source>1 field where a bib and a name are needed</source>
        <translation>1 champ là où il faut un dossard et un nom</translation>
    </message>
    <message>
        <source>A bracket { is not closed.</source>
        <translation>Une accolade { n’est pas fermée.</translation>
    </message>
    <message>
        <source>A computer with Windows cannot take this name.</source>
        <translation>Un ordinateur sous Windows n’accepte pas ce nom.</translation>
    </message>
    <message>
        <source>A heat has one to four boats.</source>
        <translation>Une série a de un à quatre bateaux.</translation>
    </message>
    <message>
        <source>An unnamed boat is not in this heat.</source>
        <translation>Un bateau sans nom n’est pas dans cette série.</translation>
    </message>
    <message>
        <source>Both are kept: the one of this computer is “{}” now.</source>
        <translation>Les deux sont conservés&#x202f;: celui de cet ordinateur est maintenant «&#x202f;{}&#x202f;».</translation>
    </message>
    <message>
        <source>Both sides have the same.</source>
        <translation>Les deux côtés ont le même.</translation>
    </message>
    <message>
        <source>Gate {}: it is not on the cross course.</source>
        <translation>Porte {}&#x202f;: elle n’est pas sur le parcours de cross.</translation>
    </message>
    <message>
        <source>Gate {}: {}</source>
        <translation>Porte {}&#x202f;: {}</translation>
    </message>
    <message>
        <source>It could not be given another name. Compare again.</source>
        <translation>Un autre nom n’a pas pu être donné. Comparez à nouveau.</translation>
    </message>
    <message>
        <source>It is here again. Compare again.</source>
        <translation>Il est de nouveau ici. Comparez à nouveau.</translation>
    </message>
    <message>
        <source>It is not here any more.</source>
        <translation>Il n’est plus ici.</translation>
    </message>
    <message>
        <source>It is not on the server any more. Compare again.</source>
        <translation>Il n’est plus sur le serveur. Comparez à nouveau.</translation>
    </message>
    <message>
        <source>It is not on the server yet: {}</source>
        <translation>Il n’est pas encore sur le serveur&#x202f;: {}</translation>
    </message>
    <message>
        <source>It is on the server again. Compare again.</source>
        <translation>Il est de nouveau sur le serveur. Comparez à nouveau.</translation>
    </message>
    <message>
        <source>It was changed here meanwhile. Compare again.</source>
        <translation>Il a été modifié ici entre-temps. Comparez à nouveau.</translation>
    </message>
    <message>
        <source>It was changed on the server meanwhile. Compare again.</source>
        <translation>Il a été modifié entre-temps sur le serveur. Comparez à nouveau.</translation>
    </message>
    <message>
        <source>It was changed while it was sent. Compare again.</source>
        <translation>Il a été modifié pendant l’envoi. Comparez à nouveau.</translation>
    </message>
    <message>
        <source>Its name has control characters.</source>
        <translation>Son nom a des caractères de contrôle.</translation>
    </message>
    <message>
        <source>Its name is no text.</source>
        <translation>Son nom n’est pas du texte.</translation>
    </message>
    <message>
        <source>Its name is too long.</source>
        <translation>Son nom est trop long.</translation>
    </message>
    <message>
        <source>Its name leads out of the folder.</source>
        <translation>Son nom mène hors du dossier.</translation>
    </message>
    <message>
        <source>No mark tells yet how this camera&apos;s film lies beside the run&apos;s first one: mark one moment on both in split taking.</source>
        <translation>Aucune marque ne dit encore comment le film de cette caméra se place par rapport au premier de la manche&#x202f;: marquez un moment sur les deux dans la prise de temps.</translation>
    </message>
    <message>
        <source>This is a fixed camera beside the run&apos;s own film: synchronise the two in split taking first.</source>
        <translation>C’est une caméra fixe à côté du film de la manche&#x202f;: synchronisez d’abord les deux dans la prise de temps.</translation>
    </message>
    <message>
        <source>The course has {}, and this line is for split {}.</source>
        <translation>Le parcours a {}, et cette ligne est pour l’inter {}.</translation>
    </message>
    <message numerus="yes">
        <source>{} splits</source>
        <translation>
            <numerusform>{} inter</numerusform>
            <numerusform>{} inters</numerusform>
        </translation>
    </message>
    <message>
        <source>The file that came has gone.</source>
        <translation>Le fichier arrivé a disparu.</translation>
    </message>
    <message>
        <source>The file that came is not what its checksum says.</source>
        <translation>Le fichier arrivé n’est pas ce que dit sa somme de contrôle.</translation>
    </message>
    <message>
        <source>The pattern holds no bracket such as {name}.</source>
        <translation>Le modèle ne contient aucune accolade telle que {name}.</translation>
    </message>
    <message>
        <source>The same bracket stands twice.</source>
        <translation>La même accolade figure deux fois.</translation>
    </message>
    <message>
        <source>Two brackets stand side by side: nothing tells where one ends.</source>
        <translation>Deux accolades se suivent&#x202f;: rien ne dit où l’une finit.</translation>
    </message>
    <message>
        <source>{{{}}} is not known. There are {{name}}, {{category}}, {{phase}}, {{bib}}, {{number}} and {{any}}.</source>
        <translation>{{{}}} est inconnu. Il y a {{name}}, {{category}}, {{phase}}, {{bib}}, {{number}} et {{any}}.</translation>
    </message>
    <message>
        <source>{any} does not say what is to stand there.</source>
        <translation>{any} ne dit pas ce qui doit s’y trouver.</translation>
    </message>
    <message>
        <source>The server has kept another length than was sent.</source>
        <translation>Le serveur a gardé une autre longueur que celle envoyée.</translation>
    </message>
    <message>
        <source>The server told another length than it sent.</source>
        <translation>Le serveur a annoncé une autre longueur que celle envoyée.</translation>
    </message>
    <message>
        <source>The server took the file and does not have it.</source>
        <translation>Le serveur a pris le fichier et ne l’a pas.</translation>
    </message>
    <message>
        <source>There are more than four boats in this heat.</source>
        <translation>Il y a plus de quatre bateaux dans cette série.</translation>
    </message>
    <message>
        <source>all gates</source>
        <translation>toutes</translation>
    </message>
    <message>
        <source>by its name</source>
        <translation>par son nom</translation>
    </message>
    <message>
        <source>by the order</source>
        <translation>par l’ordre</translation>
    </message>
    <message>
        <source>the second boat of a long film</source>
        <translation>le second bateau d’un long film</translation>
    </message>
    <message>
        <source>{} s from its start</source>
        <translation>à {} s de son départ</translation>
    </message>
    <message>
        <source>{} s from its start, if the camera&apos;s clock is wrong</source>
        <translation>à {} s de son départ, si l’horloge de la caméra est fausse</translation>
    </message>
    <message>
        <source>downstream</source>
        <translation>descendue</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>mixte</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>first third</source>
        <translation>premier tiers</translation>
    </message>
    <message>
        <source>second third</source>
        <translation>deuxième tiers</translation>
    </message>
    <message>
        <source>last third</source>
        <translation>dernier tiers</translation>
    </message>
    <message>
        <source>no name is known</source>
        <translation>aucun nom n’est connu</translation>
    </message>
    <message>
        <source>no {} is known</source>
        <translation>inconnu&#x202f;: {}</translation>
    </message>
    <message>
        <source>nothing would be left of the name</source>
        <translation>il ne resterait rien du nom</translation>
    </message>
    <message>
        <source>the name would be too long</source>
        <translation>le nom serait trop long</translation>
    </message>
    <message>
        <source>the bib &quot;{}&quot; is no number above 0</source>
        <translation>le dossard «&#x202f;{}&#x202f;» n’est pas un nombre supérieur à 0</translation>
    </message>
    <message>
        <source>the bib {} is on line {} already</source>
        <translation>le dossard {} est déjà à la ligne {}</translation>
    </message>
    <message>
        <source>the lines before have no start</source>
        <translation>les lignes précédentes n’ont pas de départ</translation>
    </message>
    <message>
        <source>the start &quot;{}&quot; is neither a time of day such as 10:01:30 nor a number in an order</source>
        <translation>le départ «&#x202f;{}&#x202f;» n’est ni une heure telle que 10:01:30 ni un numéro d’ordre</translation>
    </message>
    <message>
        <source>there is no name</source>
        <translation>il n’y a pas de nom</translation>
    </message>
    <message>
        <source>there is no number in the order</source>
        <translation>il n’y a pas de numéro d’ordre</translation>
    </message>
    <message>
        <source>there is no start time, which the others have</source>
        <translation>il n’y a pas d’heure de départ, que les autres ont</translation>
    </message>
    <message>
        <source>{} cannot attack and defend at once.</source>
        <translation>{} ne peut pas attaquer et défendre à la fois.</translation>
    </message>
    <message>
        <source>{} is already in this heat.</source>
        <translation>{} est déjà dans cette série.</translation>
    </message>
    <message>
        <source>{} is not in this heat.</source>
        <translation>{} n’est pas dans cette série.</translation>
    </message>
    <message>
        <source>{} stands twice among the defenders.</source>
        <translation>{} figure deux fois parmi les défenseurs.</translation>
    </message>
    <message>
        <source>{} stands twice in the heat.</source>
        <translation>{} figure deux fois dans la série.</translation>
    </message>
    <message>
        <source>{} stands twice in the order.</source>
        <translation>{} figure deux fois dans l’ordre.</translation>
    </message>
    <message>
        <source>{} without any detail.</source>
        <translation>{} sans aucun détail.</translation>
    </message>
    <message>
        <source>A brace is opened and not closed: {}</source>
        <translation>Une accolade est ouverte et pas fermée&#x202f;: {}</translation>
    </message>
    <message>
        <source>Aerial phase</source>
        <translation>Phase aérienne</translation>
    </message>
    <message>
        <source>Water phase</source>
        <translation>Phase aquatique</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Résistance</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Force</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Main</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Fréquence cardiaque</translation>
    </message>
    <message>
        <source>Impulse</source>
        <translation>Impulsion</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Cadence</translation>
    </message>
    <message>
        <source>Single rate</source>
        <translation>Cadence d’un coup</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Segment</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roulis</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Tangage</translation>
    </message>
    <message>
        <source>Max acceleration</source>
        <translation>Accélération max.</translation>
    </message>
    <message>
        <source>Mean acceleration</source>
        <translation>Accélération moyenne</translation>
    </message>
    <message>
        <source>Mean deceleration</source>
        <translation>Décélération moyenne</translation>
    </message>
    <message>
        <source>Mean rotation</source>
        <translation>Rotation moyenne</translation>
    </message>
    <message>
        <source>Peak rotation</source>
        <translation>Rotation maximale</translation>
    </message>
    <message>
        <source>Mean push out</source>
        <translation>Poussée latérale moyenne</translation>
    </message>
    <message>
        <source>Peak push out</source>
        <translation>Poussée latérale maximale</translation>
    </message>
    <message>
        <source>Metres per stroke</source>
        <translation>Mètres par coup</translation>
    </message>
    <message>
        <source>Is in the folder.</source>
        <translation>Est dans le dossier.</translation>
    </message>
    <message>
        <source>It is a file. A folder is shared.</source>
        <translation>C’est un fichier. On partage un dossier.</translation>
    </message>
    <message>
        <source>It is a link.</source>
        <translation>C’est un lien.</translation>
    </message>
    <message>
        <source>It lies too deep.</source>
        <translation>Il est trop profond.</translation>
    </message>
    <message>
        <source>Lies on {}, which is not ticked.</source>
        <translation>Se trouve sur {}, qui n’est pas coché.</translation>
    </message>
    <message>
        <source>May also be bib {}.</source>
        <translation>Peut aussi être le dossard {}.</translation>
    </message>
    <message>
        <source>Only https:// keeps the password and the files from other readers.</source>
        <translation>Seul https:// protège le mot de passe et les fichiers d’autres lecteurs.</translation>
    </message>
    <message>
        <source>The address asks for no {bib}, so that every run would have the same film.</source>
        <translation>L’adresse ne demande aucun {bib}&#x202f;: chaque manche aurait donc le même film.</translation>
    </message>
    <message>
        <source>The address is that of a file. A folder is shared.</source>
        <translation>L’adresse est celle d’un fichier. On partage un dossier.</translation>
    </message>
    <message>
        <source>The address makes none for this run.</source>
        <translation>L’adresse n’en donne aucun pour cette manche.</translation>
    </message>
    <message>
        <source>The address must begin with https:// and a server, whose name has no braces, user or password.</source>
        <translation>L’adresse doit commencer par https:// et un serveur dont le nom n’a ni accolades, ni utilisateur, ni mot de passe.</translation>
    </message>
    <message>
        <source>The address must begin with https:// and hold no user name and password.</source>
        <translation>L’adresse doit commencer par https:// et ne contenir ni nom d’utilisateur ni mot de passe.</translation>
    </message>
    <message>
        <source>The address must begin with https:// or http:// and hold no user name and password.</source>
        <translation>L’adresse doit commencer par https:// ou http:// et ne contenir ni nom d’utilisateur ni mot de passe.</translation>
    </message>
    <message>
        <source>The list has no film with this bib.</source>
        <translation>La liste n’a aucun film avec ce dossard.</translation>
    </message>
    <message>
        <source>The list tells no {} of this run.</source>
        <translation>La liste ne dit pas de cette manche&#x202f;: {}.</translation>
    </message>
    <message>
        <source>number of the run</source>
        <translation>numéro de la manche</translation>
    </message>
    <message>
        <source>The pattern of names: {}</source>
        <translation>Le modèle des noms&#x202f;: {}</translation>
    </message>
    <message>
        <source>The server does not speak WebDAV at this address.</source>
        <translation>Le serveur ne parle pas WebDAV à cette adresse.</translation>
    </message>
    <message>
        <source>The server has too many files to share.</source>
        <translation>Le serveur a trop de fichiers à partager.</translation>
    </message>
    <message>
        <source>The server says that it lies in another folder.</source>
        <translation>Le serveur dit qu’il se trouve dans un autre dossier.</translation>
    </message>
    <message>
        <source>There are too many files to share.</source>
        <translation>Il y a trop de fichiers à partager.</translation>
    </message>
    <message>
        <source>There is no address yet.</source>
        <translation>Il n’y a pas encore d’adresse.</translation>
    </message>
    <message>
        <source>There is no folder for the films yet.</source>
        <translation>Il n’y a pas encore de dossier pour les films.</translation>
    </message>
    <message>
        <source>There is no start list, results list or split file for the bibs yet.</source>
        <translation>Il n’y a pas encore de liste de départ, de résultats ou de fichier d’intermédiaires pour les dossards.</translation>
    </message>
    <message>
        <source>Would be more than 20 GB in one go.</source>
        <translation>Ce serait plus de 20 Go d’un coup.</translation>
    </message>
    <message>
        <source>{{{}}} means nothing here: there are {{bib}}, {{category}}, {{phase}} and {{run}}.</source>
        <translation>{{{}}} ne veut rien dire ici&#x202f;: il y a {{bib}}, {{category}}, {{phase}} et {{run}}.</translation>
    </message>
    <message>
        <source>Explain one number instead: cell/ROW/COLUMN, the row counted from 0 as in --json, as in cell/0/time</source>
        <translation>Explique plutôt un nombre : cell/LIGNE/COLONNE, la ligne comptée à partir de 0 comme dans --json, par exemple cell/0/time</translation>
    </message>
    <message>
        <source>No start of {} is known in these races.</source>
        <translation>Aucun départ de {} n’est connu dans ces courses.</translation>
    </message>
    <message>
        <source>Only races in which this athlete starts, in whichever phase</source>
        <translation>Seulement les courses où cet athlète prend le départ, quelle que soit la phase</translation>
    </message>
    <message>
        <source>Only races in which {} starts.</source>
        <translation>Seulement les courses où {} prend le départ.</translation>
    </message>
    <message>
        <source>Explain one number instead: cell/ROW/COLUMN, the row counted from 0 as in --json, as in cell/0/rank</source>
        <translation>Explique plutôt un nombre : cell/LIGNE/COLONNE, la ligne comptée à partir de 0 comme dans --json, par exemple cell/0/rank</translation>
    </message>
    <message>
        <source>line {}</source>
        <translation>ligne {}</translation>
    </message>
    <message>
        <source>column {}</source>
        <translation>colonne {}</translation>
    </message>
    <message>
        <source>An empty penalty adds nothing.</source>
        <translation>Une pénalité vide n’ajoute rien.</translation>
    </message>
    <message>
        <source>better</source>
        <translation>meilleurs</translation>
    </message>
    <message>
        <source>others</source>
        <translation>autres</translation>
    </message>
    <message>
        <source>Only rows with {} in {} are compared.</source>
        <translation>Seules les lignes avec {} dans {} sont comparées.</translation>
    </message>
    <message>
        <source>The highest is the best.</source>
        <translation>Le plus élevé est le meilleur.</translation>
    </message>
    <message>
        <source>As it stands in the list, read as a number.</source>
        <translation>Tel qu’il figure dans la liste, lu comme un nombre.</translation>
    </message>
    <message>
        <source>list</source>
        <translation>liste</translation>
    </message>
    <message>
        <source>The columns of the row added up.</source>
        <translation>Les colonnes de la ligne additionnées.</translation>
    </message>
    <message>
        <source>Σ columns</source>
        <translation>Σ colonnes</translation>
    </message>
    <message>
        <source>The place in the column: one more than are better; times to the hundredth.</source>
        <translation>La place dans la colonne : un de plus que ceux qui sont meilleurs ; temps au centième.</translation>
    </message>
    <message>
        <source>1 + better</source>
        <translation>1 + meilleurs</translation>
    </message>
    <message>
        <source>How far the number is behind the best of the column.</source>
        <translation>De combien le nombre est derrière le meilleur de la colonne.</translation>
    </message>
    <message>
        <source>own − best</source>
        <translation>propre − meilleur</translation>
    </message>
    <message>
        <source>How many percent the number is behind the best of the column.</source>
        <translation>De combien de pour cent le nombre est derrière le meilleur de la colonne.</translation>
    </message>
    <message>
        <source>How many percent of the others in the column are better.</source>
        <translation>Quel pourcentage des autres de la colonne sont meilleurs.</translation>
    </message>
    <message>
        <source>100 · better / others</source>
        <translation>100 · meilleurs / autres</translation>
    </message>
    <message>
        <source>The first column less the second.</source>
        <translation>La première colonne moins la seconde.</translation>
    </message>
    <message>
        <source>first − second</source>
        <translation>première − seconde</translation>
    </message>
    <message>
        <source>How many rows say something in the column.</source>
        <translation>Combien de lignes disent quelque chose dans la colonne.</translation>
    </message>
    <message>
        <source>The numbers of all these rows added up.</source>
        <translation>Les nombres de toutes ces lignes additionnés.</translation>
    </message>
    <message>
        <source>Σ rows</source>
        <translation>Σ lignes</translation>
    </message>
    <message>
        <source>The mean of the numbers of these rows.</source>
        <translation>La moyenne des nombres de ces lignes.</translation>
    </message>
    <message>
        <source>Σ rows / number of rows</source>
        <translation>Σ lignes / nombre de lignes</translation>
    </message>
    <message>
        <source>As many of these rows have less as have more.</source>
        <translation>Autant de ces lignes ont moins que plus.</translation>
    </message>
    <message>
        <source>median of rows</source>
        <translation>médiane des lignes</translation>
    </message>
    <message>
        <source>The least number of these rows.</source>
        <translation>Le plus petit nombre de ces lignes.</translation>
    </message>
    <message>
        <source>least of rows</source>
        <translation>plus petit des lignes</translation>
    </message>
    <message>
        <source>The largest number of these rows.</source>
        <translation>Le plus grand nombre de ces lignes.</translation>
    </message>
    <message>
        <source>largest of rows</source>
        <translation>plus grand des lignes</translation>
    </message>
    <message>
        <source>Of {} rows the first {} are told.</source>
        <translation>Sur {} lignes, les {} premières sont citées.</translation>
    </message>
    <message>
        <source>this table is damaged: {}</source>
        <translation>ce tableau est endommagé : {}</translation>
    </message>
    <message>
        <source>A list: text (CSV, tabs, columns of blanks), a spreadsheet (.xlsx, .ods), a split file (.kvx) that carries one, or a saved table (.kvtable)</source>
        <translation>Une liste : texte (CSV, tabulations, colonnes séparées par des blancs), classeur (.xlsx, .ods), fichier d’intermédiaires (.kvx) qui en porte une, ou tableau enregistré (.kvtable)</translation>
    </message>
    <message numerus="yes">
        <source>{} more rows are not told.</source>
        <translation>
            <numerusform>{} autre ligne n’est pas indiquée.</numerusform>
            <numerusform>{} autres lignes ne sont pas indiquées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} rows have no such value.</source>
        <translation>
            <numerusform>{} ligne n’a pas cette valeur.</numerusform>
            <numerusform>{} lignes n’ont pas cette valeur.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>90 % interval, {} runs</source>
        <translation>
            <numerusform>intervalle à 90 %, {} manche</numerusform>
            <numerusform>intervalle à 90 %, {} manches</numerusform>
        </translation>
    </message>
    <message>
        <source>column {}: “{}” is no date</source>
        <translation>colonne {}&#x202f;: «&#xa0;{}&#xa0;» n’est pas une date</translation>
    </message>
    <message>
        <source>column {}: “{}” is no number</source>
        <translation>colonne {}&#x202f;: «&#xa0;{}&#xa0;» n’est pas un nombre</translation>
    </message>
    <message>
        <source>the line ends before its time</source>
        <translation>la ligne s’arrête avant son temps</translation>
    </message>
    <message>
        <source>an axis of the acceleration is missing</source>
        <translation>il manque un axe de l’accélération</translation>
    </message>
    <message>
        <source>Some lines were not in order of time and were put in order.</source>
        <translation>Certaines lignes n’étaient pas dans l’ordre du temps et ont été remises en ordre.</translation>
    </message>
    <message>
        <source>Gravity was split off the acceleration by a low-pass of 0.3 Hz.</source>
        <translation>La pesanteur a été séparée de l’accélération par un filtre passe-bas à 0,3 Hz.</translation>
    </message>
    <message>
        <source>There is no gravity in the list.</source>
        <translation>La liste ne contient pas la pesanteur.</translation>
    </message>
    <message>
        <source>There is no rotation in the list: hands and turns cannot be found.</source>
        <translation>La liste ne contient pas la rotation&#x202f;: les côtés des coups et les virages ne peuvent pas être trouvés.</translation>
    </message>
    <message>
        <source>the messages end within a definition</source>
        <translation>les messages s’arrêtent au milieu d’une définition</translation>
    </message>
    <message>
        <source>the messages end within a message</source>
        <translation>les messages s’arrêtent au milieu d’un message</translation>
    </message>
    <message>
        <source>byte {}</source>
        <translation>octet {}</translation>
    </message>
    <message>
        <source>the header&apos;s check sum does not agree</source>
        <translation>la somme de contrôle de l’en-tête ne concorde pas</translation>
    </message>
    <message>
        <source>the file&apos;s check sum does not agree: bytes of it are damaged</source>
        <translation>la somme de contrôle du fichier ne concorde pas&#x202f;: il contient des octets abîmés</translation>
    </message>
    <message>
        <source>the file ends within a header</source>
        <translation>le fichier s’arrête au milieu d’un en-tête</translation>
    </message>
    <message>
        <source>a header of {} bytes: it has to have 12 or 14</source>
        <translation>un en-tête de {} octets&#x202f;: il doit en avoir 12 ou 14</translation>
    </message>
    <message>
        <source>the header does not say that this is a FIT file</source>
        <translation>l’en-tête ne dit pas que c’est un fichier FIT</translation>
    </message>
    <message>
        <source>the recording was not finished by its device: it is empty</source>
        <translation>l’enregistrement n’a pas été terminé par son appareil&#x202f;: il est vide</translation>
    </message>
    <message>
        <source>the file ends here, but its header announces {} bytes</source>
        <translation>le fichier s’arrête ici, mais son en-tête annonce {} octets</translation>
    </message>
    <message>
        <source>a byte order of {}: it is 0 or 1</source>
        <translation>un ordre des octets {}&#x202f;: c’est 0 ou 1</translation>
    </message>
    <message>
        <source>a message of type {}, which is not defined</source>
        <translation>un message de type {}, qui n’est pas défini</translation>
    </message>
    <message numerus="yes">
        <source>The file holds {} sessions; all were taken.</source>
        <translation>
            <numerusform>Le fichier contient {} séance&#x202f;; elle a été reprise en entier.</numerusform>
            <numerusform>Le fichier contient {} séances&#x202f;; toutes ont été reprises.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The watch was stopped {} times.</source>
        <translation>
            <numerusform>La montre a été arrêtée {} fois.</numerusform>
            <numerusform>La montre a été arrêtée {} fois.</numerusform>
        </translation>
    </message>
    <message>
        <source>{} d {} h</source>
        <translation>{} j {} h</translation>
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
        <translation>L’enregistrement a ses propres positions, qui sont gardées.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} after the recording.</source>
        <translation>Les positions de la trace commencent {} après l’enregistrement.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} before the recording.</source>
        <translation>Les positions de la trace commencent {} avant l’enregistrement.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} after the recording; perhaps an offset of {} h is missing.</source>
        <translation>Les positions de la trace commencent {} après l’enregistrement&#x202f;; il manque peut-être un décalage de {} h.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} before the recording; perhaps an offset of {} h is missing.</source>
        <translation>Les positions de la trace commencent {} avant l’enregistrement&#x202f;; il manque peut-être un décalage de {} h.</translation>
    </message>
    <message>
        <source>The recording has heart rates of its own, which stay.</source>
        <translation>L’enregistrement a ses propres fréquences cardiaques, qui sont gardées.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} after the recording.</source>
        <translation>Les fréquences cardiaques de la trace commencent {} après l’enregistrement.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} before the recording.</source>
        <translation>Les fréquences cardiaques de la trace commencent {} avant l’enregistrement.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} after the recording; perhaps an offset of {} h is missing.</source>
        <translation>Les fréquences cardiaques de la trace commencent {} après l’enregistrement&#x202f;; il manque peut-être un décalage de {} h.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} before the recording; perhaps an offset of {} h is missing.</source>
        <translation>Les fréquences cardiaques de la trace commencent {} avant l’enregistrement&#x202f;; il manque peut-être un décalage de {} h.</translation>
    </message>
    <message>
        <source>The recording has no motion samples to join the track to.</source>
        <translation>L’enregistrement n’a pas d’échantillons de mouvement auxquels joindre la trace.</translation>
    </message>
    <message>
        <source>“{}” stands over two columns.</source>
        <translation>«&#xa0;{}&#xa0;» est au-dessus de deux colonnes.</translation>
    </message>
    <message>
        <source>Of the acceleration with gravity all of x, y and z are needed.</source>
        <translation>De l’accélération avec pesanteur, il faut x, y et z.</translation>
    </message>
    <message>
        <source>Of the acceleration without gravity all of x, y and z are needed.</source>
        <translation>De l’accélération sans pesanteur, il faut x, y et z.</translation>
    </message>
    <message>
        <source>Of the rotation all of x, y and z are needed.</source>
        <translation>De la rotation, il faut x, y et z.</translation>
    </message>
    <message>
        <source>Of the gravity all of x, y and z are needed.</source>
        <translation>De la pesanteur, il faut x, y et z.</translation>
    </message>
    <message>
        <source>Latitude and longitude go together.</source>
        <translation>La latitude et la longitude vont ensemble.</translation>
    </message>
    <message>
        <source>Acc. x with gravity</source>
        <translation>Accél. x avec pesanteur</translation>
    </message>
    <message>
        <source>Acc. y with gravity</source>
        <translation>Accél. y avec pesanteur</translation>
    </message>
    <message>
        <source>Acc. z with gravity</source>
        <translation>Accél. z avec pesanteur</translation>
    </message>
    <message>
        <source>Acc. x without gravity</source>
        <translation>Accél. x sans pesanteur</translation>
    </message>
    <message>
        <source>Acc. y without gravity</source>
        <translation>Accél. y sans pesanteur</translation>
    </message>
    <message>
        <source>Acc. z without gravity</source>
        <translation>Accél. z sans pesanteur</translation>
    </message>
    <message>
        <source>Gravity x</source>
        <translation>Pesanteur x</translation>
    </message>
    <message>
        <source>Gravity y</source>
        <translation>Pesanteur y</translation>
    </message>
    <message>
        <source>Gravity z</source>
        <translation>Pesanteur z</translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation>Lacet</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>No column is the time.</source>
        <translation>Aucune colonne n’est le temps.</translation>
    </message>
    <message>
        <source>Commas cannot be in numbers and between columns.</source>
        <translation>Les virgules ne peuvent pas être à la fois dans les nombres et entre les colonnes.</translation>
    </message>
    <message>
        <source>No column is acceleration, position or heart rate.</source>
        <translation>Aucune colonne n’est une accélération, une position ou une fréquence cardiaque.</translation>
    </message>
    <message>
        <source>this is no plain text; a list has to be saved as UTF-8</source>
        <translation>ce n’est pas du texte brut&#x202f;; une liste doit être enregistrée en UTF-8</translation>
    </message>
    <message>
        <source>this is no list of samples: in its first {} lines there is none with numbers in columns</source>
        <translation>ce n’est pas une liste d’échantillons&#x202f;: dans ses {} premières lignes, aucune n’a de nombres en colonnes</translation>
    </message>
    <message>
        <source>the list has more than {} lines</source>
        <translation>la liste a plus de {} lignes</translation>
    </message>
    <message>
        <source>the file is too large to be imported (over {} MB)</source>
        <translation>le fichier est trop grand pour être importé (plus de {} Mo)</translation>
    </message>
    <message>
        <source>the file grew while it was read</source>
        <translation>le fichier a grandi pendant la lecture</translation>
    </message>
    <message>
        <source>this is no track: neither GPX nor TCX nor FIT</source>
        <translation>ce n’est pas une trace&#x202f;: ni GPX, ni TCX, ni FIT</translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} positions outside the globe.</source>
        <translation>
            <numerusform>Laissée de côté&#x202f;: {} position hors du globe.</numerusform>
            <numerusform>Laissées de côté&#x202f;: {} positions hors du globe.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} speeds that no boat has.</source>
        <translation>
            <numerusform>Laissée de côté&#x202f;: {} vitesse qu’aucun bateau n’atteint.</numerusform>
            <numerusform>Laissées de côté&#x202f;: {} vitesses qu’aucun bateau n’atteint.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} points without a date.</source>
        <translation>
            <numerusform>Laissé de côté&#x202f;: {} point sans date.</numerusform>
            <numerusform>Laissés de côté&#x202f;: {} points sans date.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} heart rates that are none.</source>
        <translation>
            <numerusform>Laissée de côté&#x202f;: {} fréquence cardiaque qui n’en est pas une.</numerusform>
            <numerusform>Laissées de côté&#x202f;: {} fréquences cardiaques qui n’en sont pas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} positions at the moment of another.</source>
        <translation>
            <numerusform>Laissée de côté&#x202f;: {} position au même instant qu’une autre.</numerusform>
            <numerusform>Laissées de côté&#x202f;: {} positions au même instant qu’une autre.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} heart rates at the moment of another.</source>
        <translation>
            <numerusform>Laissée de côté&#x202f;: {} fréquence cardiaque au même instant qu’une autre.</numerusform>
            <numerusform>Laissées de côté&#x202f;: {} fréquences cardiaques au même instant qu’une autre.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} way points and points of routes.</source>
        <translation>
            <numerusform>Laissé de côté&#x202f;: {} point de passage ou d’itinéraire.</numerusform>
            <numerusform>Laissés de côté&#x202f;: {} points de passage et d’itinéraires.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The speed of {} positions was computed from the positions around them.</source>
        <translation>
            <numerusform>La vitesse de {} position a été calculée d’après les positions voisines.</numerusform>
            <numerusform>La vitesse de {} positions a été calculée d’après les positions voisines.</numerusform>
        </translation>
    </message>
    <message>
        <source>the track has more than {} points</source>
        <translation>la trace a plus de {} points</translation>
    </message>
    <message>
        <source>the XML is damaged: {}</source>
        <translation>le XML est abîmé&#x202f;: {}</translation>
    </message>
    <message>
        <source>this XML is no track: neither GPX nor TCX</source>
        <translation>ce XML n’est pas une trace&#x202f;: ni GPX, ni TCX</translation>
    </message>
    <message>
        <source>a number was expected, found {}</source>
        <translation>un nombre était attendu, trouvé&#x202f;: {}</translation>
    </message>
    <message>
        <source>an integer was expected, found {}</source>
        <translation>un entier était attendu, trouvé&#x202f;: {}</translation>
    </message>
    <message>
        <source>a boolean was expected, found {}</source>
        <translation>un booléen était attendu, trouvé&#x202f;: {}</translation>
    </message>
    <message>
        <source>a string was expected, found {}</source>
        <translation>une chaîne de texte était attendue, trouvé&#x202f;: {}</translation>
    </message>
    <message>
        <source>a base64 string was expected, found {}</source>
        <translation>une chaîne en base64 était attendue, trouvé&#x202f;: {}</translation>
    </message>
    <message>
        <source>an array was expected, found {}</source>
        <translation>une liste était attendue, trouvé&#x202f;: {}</translation>
    </message>
    <message>
        <source>an object was expected, found {}</source>
        <translation>un objet était attendu, trouvé&#x202f;: {}</translation>
    </message>
    <message>
        <source>the integer {} is out of range</source>
        <translation>l’entier {} est hors limites</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>une liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objet</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>un entier</translation>
    </message>
    <message>
        <source>a number that is no 64-bit integer</source>
        <translation>un nombre qui n’est pas un entier de 64 bits</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>une chaîne de texte</translation>
    </message>
    <message>
        <source>a boolean</source>
        <translation>un booléen</translation>
    </message>
    <message>
        <source>something else</source>
        <translation>autre chose</translation>
    </message>
    <message>
        <source>the key is missing</source>
        <translation>la clé manque</translation>
    </message>
    <message>
        <source>a base64 string was expected, found other text</source>
        <translation>une chaîne en base64 était attendue, trouvé&#x202f;: un autre texte</translation>
    </message>
    <message>
        <source>a number that is not finite cannot be written</source>
        <translation>un nombre qui n’est pas fini ne peut pas être écrit</translation>
    </message>
    <message>
        <source>a text that is not valid UTF-8 cannot be written</source>
        <translation>un texte qui n’est pas de l’UTF-8 valide ne peut pas être écrit</translation>
    </message>
    <message>
        <source>waits {} s</source>
        <translation>attend {} s</translation>
    </message>
    <message>
        <source>Section {}</source>
        <translation>Secteur {}</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is none of {}</source>
        <translation>«&#xa0;{}&#xa0;» n’est aucun de {}</translation>
    </message>
    <message>
        <source>{} is not a number from {} on</source>
        <translation>{} n’est pas un nombre à partir de {}</translation>
    </message>
    <message>
        <source>either two points or none are needed</source>
        <translation>il faut deux points ou aucun</translation>
    </message>
    <message>
        <source>a number from 1 to 2 was expected</source>
        <translation>un nombre de 1 à 2 était attendu</translation>
    </message>
    <message>
        <source>no path is named that could be drawn or followed</source>
        <translation>aucune trajectoire n’est indiquée qui puisse être dessinée ou suivie</translation>
    </message>
    <message>
        <source>{}: the size of its picture is missing</source>
        <translation>{}&#x202f;: la taille de son image manque</translation>
    </message>
    <message numerus="yes">
        <source>the split file has {} runs</source>
        <translation>
            <numerusform>le fichier d’intermédiaires a {} manche</numerusform>
            <numerusform>le fichier d’intermédiaires a {} manches</numerusform>
        </translation>
    </message>
    <message>
        <source>the run has no film of this camera</source>
        <translation>la manche n’a pas de film de cette caméra</translation>
    </message>
    <message>
        <source>neither a film nor a split file is named</source>
        <translation>ni un film ni un fichier d’intermédiaires n’est indiqué</translation>
    </message>
    <message>
        <source>a share from 0 to 1 was expected</source>
        <translation>une part de 0 à 1 était attendue</translation>
    </message>
    <message>
        <source>{} films; this layout takes 2 to 4</source>
        <translation>films&#x202f;: {}&#x202f;; cette disposition en prend 2 à 4</translation>
    </message>
    <message>
        <source>{} films; this layout takes 2</source>
        <translation>films&#x202f;: {}&#x202f;; cette disposition en prend 2</translation>
    </message>
    <message>
        <source>an even number from 160 to 4096 was expected</source>
        <translation>un nombre pair de 160 à 4096 était attendu</translation>
    </message>
    <message>
        <source>the picture is larger than 1920 × 1080 and would not play everywhere</source>
        <translation>l’image dépasse 1920 × 1080 et ne serait pas lue partout</translation>
    </message>
    <message>
        <source>it does not lie behind {}</source>
        <translation>il n’est pas après {}</translation>
    </message>
    <message>
        <source>a number from 0.125 to 1 was expected</source>
        <translation>un nombre de 0,125 à 1 était attendu</translation>
    </message>
    <message>
        <source>there is no film of this number; 0 is no sound</source>
        <translation>aucun film n’a ce numéro&#x202f;; 0 veut dire sans son</translation>
    </message>
    <message>
        <source>films that lie over each other cannot follow a path</source>
        <translation>des films superposés ne peuvent pas suivre une trajectoire</translation>
    </message>
    <message>
        <source>{}: the start lies outside the film, at {} s.</source>
        <translation>{}&#x202f;: le départ est hors du film, à {} s.</translation>
    </message>
    <message>
        <source>{}: split {} lies outside the film, at {} s.</source>
        <translation>{}&#x202f;: l’intermédiaire {} est hors du film, à {} s.</translation>
    </message>
    <message>
        <source>so large a picture would not play everywhere at {} frames a second</source>
        <translation>une image aussi grande ne serait pas lue partout à {} images par seconde</translation>
    </message>
    <message>
        <source>{} is not shown: {}.</source>
        <translation>{} n’est pas montré&#x202f;: {}.</translation>
    </message>
    <message>
        <source>{} is cut off or damaged; it is shown as far as it goes.</source>
        <translation>{} est coupé ou abîmé&#x202f;; il est montré aussi loin qu’il va.</translation>
    </message>
    <message>
        <source>{}: at {} s a frame cannot be shown ({}); the last good one stays.</source>
        <translation>{}&#x202f;: à {} s, une image ne peut pas être montrée ({})&#x202f;; la dernière bonne reste.</translation>
    </message>
    <message>
        <source>no film has a mark at this split</source>
        <translation>aucun film n’a de marque à cet intermédiaire</translation>
    </message>
    <message>
        <source>no run is marked at its start, so the range has to be given in seconds</source>
        <translation>aucune manche n’est marquée à son départ, la plage doit donc être donnée en secondes</translation>
    </message>
    <message>
        <source>its end does not lie behind its beginning</source>
        <translation>sa fin n’est pas après son début</translation>
    </message>
    <message>
        <source>it cannot be decoded</source>
        <translation>elle ne peut pas être décodée</translation>
    </message>
    <message>
        <source>its pictures are in a format of no use</source>
        <translation>ses images sont dans un format inutilisable</translation>
    </message>
    <message>
        <source>the start is not marked on this film, so it cannot be held there</source>
        <translation>le départ n’est pas marqué sur ce film, il ne peut donc pas y être arrêté</translation>
    </message>
    <message>
        <source>split {} is not marked on this film, so it cannot be held there</source>
        <translation>l’intermédiaire {} n’est pas marqué sur ce film, il ne peut donc pas y être arrêté</translation>
    </message>
    <message>
        <source>{}: {}.</source>
        <translation>{}&#x202f;: {}.</translation>
    </message>
    <message>
        <source>the crew, in whatever order it is written</source>
        <translation>l’équipage, quel que soit l’ordre d’écriture</translation>
    </message>
    <message>
        <source>category, however it is written (K1M, MK1)</source>
        <translation>catégorie, quelle que soit son écriture (K1M, MK1)</translation>
    </message>
    <message>
        <source>phase of the race</source>
        <translation>phase de la course</translation>
    </message>
    <message>
        <source>side on which the athlete paddles</source>
        <translation>côté où pagaie l’athlète</translation>
    </message>
    <message>
        <source>place of the course</source>
        <translation>lieu du parcours</translation>
    </message>
    <message>
        <source>title of the race</source>
        <translation>titre de la course</translation>
    </message>
    <message>
        <source>event</source>
        <translation>compétition</translation>
    </message>
    <message>
        <source>Race, Training or Test</source>
        <translation>Race, Training ou Test</translation>
    </message>
    <message>
        <source>kind of water</source>
        <translation>type d’eau</translation>
    </message>
    <message>
        <source>the file</source>
        <translation>le fichier</translation>
    </message>
    <message>
        <source>2026-05-11; also 2026-05 or 2026</source>
        <translation>2026-05-11&#x202f;; aussi 2026-05 ou 2026</translation>
    </message>
    <message>
        <source>year of the date</source>
        <translation>année de la date</translation>
    </message>
    <message>
        <source>month of the date, 1 to 12</source>
        <translation>mois de la date, 1 à 12</translation>
    </message>
    <message>
        <source>of the run, with penalties</source>
        <translation>de la manche, avec pénalités</translation>
    </message>
    <message>
        <source>of the run, without penalties</source>
        <translation>de la manche, sans pénalités</translation>
    </message>
    <message>
        <source>penalty seconds of the run</source>
        <translation>secondes de pénalité de la manche</translation>
    </message>
    <message>
        <source>place among the runs that compete</source>
        <translation>place parmi les manches en concurrence</translation>
    </message>
    <message>
        <source>position in the official list</source>
        <translation>position dans la liste officielle</translation>
    </message>
    <message>
        <source>number of the run in its file, from 0</source>
        <translation>numéro de la manche dans son fichier, à partir de 0</translation>
    </message>
    <message>
        <source>sprint time</source>
        <translation>temps de sprint</translation>
    </message>
    <message>
        <source>of the section, where both its marks were taken</source>
        <translation>du secteur, là où ses deux marques ont été prises</translation>
    </message>
    <message>
        <source>from entrance to exit</source>
        <translation>de l’entrée à la sortie</translation>
    </message>
    <message>
        <source>from entrance to the pole line</source>
        <translation>de l’entrée à la ligne de porte</translation>
    </message>
    <message>
        <source>from the pole line to the exit</source>
        <translation>de la ligne de porte à la sortie</translation>
    </message>
    <message>
        <source>number of the gate</source>
        <translation>numéro de la porte</translation>
    </message>
    <message>
        <source>number of the section, from 1</source>
        <translation>numéro du secteur, à partir de 1</translation>
    </message>
    <message>
        <source>up for a section with an upstream gate, or down</source>
        <translation>up pour un secteur avec une remontée, sinon down</translation>
    </message>
    <message>
        <source>up: only upstream gates are timed by themselves</source>
        <translation>up&#x202f;: seules les remontées sont chronométrées à part</translation>
    </message>
    <message>
        <source>up for an upstream gate, or down</source>
        <translation>up pour une remontée, sinon down</translation>
    </message>
    <message>
        <source>penalty seconds in the section</source>
        <translation>secondes de pénalité dans le secteur</translation>
    </message>
    <message>
        <source>strokes on the left</source>
        <translation>coups de pagaie à gauche</translation>
    </message>
    <message>
        <source>strokes on the right</source>
        <translation>coups de pagaie à droite</translation>
    </message>
    <message>
        <source>strokes marked in the section</source>
        <translation>coups de pagaie marqués dans le secteur</translation>
    </message>
    <message>
        <source>side to which the boat turns</source>
        <translation>côté vers lequel tourne le bateau</translation>
    </message>
    <message>
        <source>how the gate is paddled</source>
        <translation>façon de passer la porte</translation>
    </message>
    <message>
        <source>of the penalty</source>
        <translation>de la pénalité</translation>
    </message>
    <message>
        <source>touch, or how the gate was missed</source>
        <translation>touche, ou façon dont la porte a été manquée</translation>
    </message>
    <message>
        <source>kind of gate</source>
        <translation>type de porte</translation>
    </message>
    <message>
        <source>which pole</source>
        <translation>quelle fiche</translation>
    </message>
    <message>
        <source>what touched, or how the gate was missed</source>
        <translation>ce qui a touché, ou façon dont la porte a été manquée</translation>
    </message>
    <message>
        <source>where in the gate</source>
        <translation>à quel endroit de la porte</translation>
    </message>
    <message>
        <source>how the boat was moving</source>
        <translation>comment se déplaçait le bateau</translation>
    </message>
    <message>
        <source>how the gate was paddled</source>
        <translation>façon dont la porte a été passée</translation>
    </message>
    <message>
        <source>where the athlete looked</source>
        <translation>où regardait l’athlète</translation>
    </message>
    <message>
        <source>below 0 for time gained</source>
        <translation>en dessous de 0 pour du temps gagné</translation>
    </message>
    <message>
        <source>of the other run&apos;s time</source>
        <translation>du temps de l’autre manche</translation>
    </message>
    <message>
        <source>against whom</source>
        <translation>contre qui</translation>
    </message>
    <message>
        <source>reasons noted</source>
        <translation>raisons notées</translation>
    </message>
    <message>
        <source>combination of gates</source>
        <translation>combinaison de portes</translation>
    </message>
    <message>
        <source>part of the gate</source>
        <translation>partie de la porte</translation>
    </message>
    <message>
        <source>how the stretch was paddled</source>
        <translation>façon dont le tronçon a été passé</translation>
    </message>
    <message>
        <source>the water there</source>
        <translation>l’eau à cet endroit</translation>
    </message>
    <message>
        <source>the word of a mark</source>
        <translation>le mot d’une étiquette</translation>
    </message>
    <message>
        <source>Behind &quot;{}&quot; stands &quot;{}&quot;, which is a condition.</source>
        <translation>Derrière «&#xa0;{}&#xa0;» se trouve «&#xa0;{}&#xa0;», qui est une condition.</translation>
    </message>
    <message>
        <source>Only values can stand here.</source>
        <translation>Ici, il ne peut y avoir que des valeurs.</translation>
    </message>
    <message>
        <source>One limit stands here, such as 4 or {}4.</source>
        <translation>Ici se met une seule limite, comme 4 ou {}4.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; needs the name of a column.</source>
        <translation>«&#xa0;{}&#xa0;» demande le nom d’une colonne.</translation>
    </message>
    <message>
        <source>Before a value stands the name of its column, such as athlete or text.</source>
        <translation>Devant une valeur se met le nom de sa colonne, comme athlete ou text.</translation>
    </message>
    <message>
        <source>Before &quot;{}&quot; stands the name of a column.</source>
        <translation>Devant «&#xa0;{}&#xa0;» se met le nom d’une colonne.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; needs a value.</source>
        <translation>«&#xa0;{}&#xa0;» demande une valeur.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; needs a value; one of our own words stands in quotes.</source>
        <translation>«&#xa0;{}&#xa0;» demande une valeur&#x202f;; un de nos propres mots se met entre guillemets.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is a text: it is compared by = and != alone.</source>
        <translation>«&#xa0;{}&#xa0;» est un texte&#x202f;: il ne se compare que par = et !=.</translation>
    </message>
    <message>
        <source>There is nothing in the quotes.</source>
        <translation>Il n’y a rien entre les guillemets.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; has words for values: it is compared by = and != alone.</source>
        <translation>«&#xa0;{}&#xa0;» a des mots pour valeurs&#x202f;: il ne se compare que par = et !=.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no day: write 2026-05-11, or 2026-05, or 2026.</source>
        <translation>«&#xa0;{}&#xa0;» n’est pas un jour&#x202f;: écrivez 2026-05-11, ou 2026-05, ou 2026.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no {}.</source>
        <translation>«&#xa0;{}&#xa0;» n’est pas une valeur de {}.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number.</source>
        <translation>«&#xa0;{}&#xa0;» n’est pas un nombre.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is not told of {}, but of {}.</source>
        <translation>«&#xa0;{}&#xa0;» ne se dit pas de {}, mais de {}.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; means nothing in a query about {}.</source>
        <translation>«&#xa0;{}&#xa0;» ne veut rien dire dans une requête sur {}.</translation>
    </message>
    <message>
        <source>A value of several words stands in quotes.</source>
        <translation>Une valeur de plusieurs mots se met entre guillemets.</translation>
    </message>
    <message>
        <source>Nearly every row has a {} of its own.</source>
        <translation>Presque chaque ligne a sa propre valeur de {}.</translation>
    </message>
    <message>
        <source>Groups are made by three columns at most.</source>
        <translation>Les groupes se font par trois colonnes au plus.</translation>
    </message>
    <message>
        <source>There is one &quot;best&quot; already.</source>
        <translation>Il y a déjà un «&#xa0;best&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number, of which one could be the best.</source>
        <translation>«&#xa0;{}&#xa0;» n’est pas un nombre, dont l’un pourrait être le meilleur.</translation>
    </message>
    <message>
        <source>There is one &quot;sort&quot; already.</source>
        <translation>Il y a déjà un «&#xa0;sort&#xa0;».</translation>
    </message>
    <message>
        <source>Groups are sorted by what makes them, or by count, best, mean or median.</source>
        <translation>Les groupes se trient par ce qui les forme, ou par count, best, mean ou median.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number of rows.</source>
        <translation>«&#xa0;{}&#xa0;» n’est pas un nombre de lignes.</translation>
    </message>
    <message>
        <source>The quote is not closed.</source>
        <translation>Le guillemet n’est pas fermé.</translation>
    </message>
    <message>
        <source>&quot;!&quot; stands only in &quot;!=&quot;.</source>
        <translation>«&#xa0;!&#xa0;» ne se met que dans «&#xa0;!=&#xa0;».</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>il n’y a pas assez de mémoire pour lui</translation>
    </message>
    <message>
        <source>There is no bib.</source>
        <translation>Il n’y a pas de dossard.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no bib.</source>
        <translation>«&#xa0;{}&#xa0;» n’est pas un dossard.</translation>
    </message>
    <message>
        <source>The official results of the file have no bib for this crew.</source>
        <translation>Les résultats officiels du fichier n’ont pas de dossard pour cet équipage.</translation>
    </message>
    <message>
        <source>No bib was found in {}. A list needs a column called &quot;bib&quot;; a split file needs its official results.</source>
        <translation>Aucun dossard n’a été trouvé dans {}. Une liste demande une colonne nommée «&#xa0;bib&#xa0;»&#x202f;; un fichier d’intermédiaires, ses résultats officiels.</translation>
    </message>
    <message>
        <source>The answer is no WebDAV folder.</source>
        <translation>La réponse n’est pas un dossier WebDAV.</translation>
    </message>
    <message>
        <source>The answer is no WebDAV folder: {}</source>
        <translation>La réponse n’est pas un dossier WebDAV&#x202f;: {}</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>The folder takes no file: {}</source>
        <translation>Le dossier n’accepte pas de fichier&#x202f;: {}</translation>
    </message>
    <message>
        <source>The server sends more than it announced.</source>
        <translation>Le serveur envoie plus qu’il n’avait annoncé.</translation>
    </message>
    <message>
        <source>The job has brought 20 GB, which is the most in one go.</source>
        <translation>La tâche a apporté 20 Go, ce qui est le maximum d’un coup.</translation>
    </message>
    <message>
        <source>The disk does not take the file: {}</source>
        <translation>Le disque n’accepte pas le fichier&#x202f;: {}</translation>
    </message>
    <message>
        <source>The file broke off before its end.</source>
        <translation>Le fichier s’est interrompu avant sa fin.</translation>
    </message>
    <message>
        <source>The server sent nothing.</source>
        <translation>Le serveur n’a rien envoyé.</translation>
    </message>
    <message>
        <source>The disk does not take the file.</source>
        <translation>Le disque n’accepte pas le fichier.</translation>
    </message>
    <message numerus="yes">
        <source>After {} tries it was given up for now.</source>
        <translation>
            <numerusform>Après {} essai, c’est abandonné pour l’instant.</numerusform>
            <numerusform>Après {} essais, c’est abandonné pour l’instant.</numerusform>
        </translation>
    </message>
    <message>
        <source>it has no pictures</source>
        <translation>il n’a pas d’images</translation>
    </message>
    <message>
        <source>What the server sent is no film: {}.</source>
        <translation>Ce que le serveur a envoyé n’est pas un film&#x202f;: {}.</translation>
    </message>
    <message>
        <source>The pieces of the film do not fit together: {}.</source>
        <translation>Les morceaux du film ne vont pas ensemble&#x202f;: {}.</translation>
    </message>
    <message>
        <source>The pieces of the film could not be put together: {}.</source>
        <translation>Les morceaux du film n’ont pas pu être réunis&#x202f;: {}.</translation>
    </message>
    <message>
        <source>The playlists lead from one to the other without an end.</source>
        <translation>Les listes de lecture renvoient de l’une à l’autre sans fin.</translation>
    </message>
    <message>
        <source>Pieces of the film lie on {}, which is not ticked.</source>
        <translation>Des morceaux du film se trouvent sur {}, qui n’est pas coché.</translation>
    </message>
    <message>
        <source>A piece of the film is missing: {}</source>
        <translation>Un morceau du film manque&#x202f;: {}</translation>
    </message>
    <message>
        <source>The list is no JSON: {}</source>
        <translation>La liste n’est pas du JSON&#x202f;: {}</translation>
    </message>
    <message>
        <source>This playlist is one film in pieces and no list of films. Give its address with {bib} in it.</source>
        <translation>Cette liste de lecture est un seul film en morceaux et non une liste de films. Donnez son adresse avec {bib} dedans.</translation>
    </message>
    <message>
        <source>Another program has changed it.</source>
        <translation>Un autre programme l’a modifié.</translation>
    </message>
    <message>
        <source>The server has no such list.</source>
        <translation>Le serveur n’a pas cette liste.</translation>
    </message>
    <message>
        <source>The address is there and names no film.</source>
        <translation>L’adresse existe et n’indique aucun film.</translation>
    </message>
    <message>
        <source>The playlist has no piece of a film.</source>
        <translation>La liste de lecture n’a aucun morceau de film.</translation>
    </message>
    <message>
        <source>The film is still growing: its playlist has no end yet.</source>
        <translation>Le film grandit encore&#x202f;: sa liste de lecture n’a pas encore de fin.</translation>
    </message>
    <message>
        <source>The playlist leads to something else than a server: {}</source>
        <translation>La liste de lecture renvoie vers autre chose qu’un serveur&#x202f;: {}</translation>
    </message>
    <message>
        <source>The playlist does not end: it has more than {} pieces.</source>
        <translation>La liste de lecture ne finit pas&#x202f;: elle a plus de {} morceaux.</translation>
    </message>
    <message>
        <source>The film is protected by &quot;{}&quot;, which only its maker&apos;s programs open.</source>
        <translation>Le film est protégé par «&#xa0;{}&#xa0;», que seuls les programmes de son auteur ouvrent.</translation>
    </message>
    <message>
        <source>The server sent a part that nobody asked for.</source>
        <translation>Le serveur a envoyé une partie que personne n’a demandée.</translation>
    </message>
    <message>
        <source>The file was changed meanwhile.</source>
        <translation>Le fichier a été modifié entre-temps.</translation>
    </message>
    <message>
        <source>The server went on from another place than it was asked to.</source>
        <translation>Le serveur a continué à un autre endroit que celui demandé.</translation>
    </message>
    <message>
        <source>The server packs the file in a way that was not asked for.</source>
        <translation>Le serveur compresse le fichier d’une façon qui n’a pas été demandée.</translation>
    </message>
    <message>
        <source>The server has no more of the file.</source>
        <translation>Le serveur n’a rien de plus du fichier.</translation>
    </message>
    <message>
        <source>Not there yet.</source>
        <translation>Pas encore là.</translation>
    </message>
    <message>
        <source>The server asks for fewer questions.</source>
        <translation>Le serveur demande moins de requêtes.</translation>
    </message>
    <message>
        <source>The server leads in a circle.</source>
        <translation>Le serveur renvoie en boucle.</translation>
    </message>
    <message>
        <source>The server leads to an address that is none.</source>
        <translation>Le serveur renvoie vers une adresse qui n’en est pas une.</translation>
    </message>
    <message>
        <source>The server leads from https to http, which anybody can read and change.</source>
        <translation>Le serveur renvoie de https vers http, que n’importe qui peut lire et modifier.</translation>
    </message>
    <message>
        <source>The server leads to another one, {}, which is not ticked.</source>
        <translation>Le serveur renvoie vers un autre, {}, qui n’est pas coché.</translation>
    </message>
    <message>
        <source>The film could not be given its name: {}</source>
        <translation>Le film n’a pas pu recevoir son nom&#x202f;: {}</translation>
    </message>
    <message>
        <source>The film is not what its checksum says.</source>
        <translation>Le film n’est pas celui que dit sa somme de contrôle.</translation>
    </message>
    <message>
        <source>The answer is longer than any list is.</source>
        <translation>La réponse est plus longue qu’aucune liste.</translation>
    </message>
    <message>
        <source>A link in the folder leads out of it, and is not followed.</source>
        <translation>Un lien du dossier mène hors de celui-ci, et n’est pas suivi.</translation>
    </message>
    <message>
        <source>The folder could not be made on the server: {}</source>
        <translation>Le dossier n’a pas pu être créé sur le serveur&#x202f;: {}</translation>
    </message>
    <message>
        <source>The server does not know its own mark of this file again.</source>
        <translation>Le serveur ne reconnaît pas sa propre marque de ce fichier.</translation>
    </message>
    <message>
        <source>a name of small letters, digits and dashes was expected</source>
        <translation>un nom en minuscules, chiffres et tirets était attendu</translation>
    </message>
    <message>
        <source>an https address was expected</source>
        <translation>une adresse https était attendue</translation>
    </message>
    <message>
        <source>it does not end in the plain name of a file</source>
        <translation>elle ne finit pas par un simple nom de fichier</translation>
    </message>
    <message>
        <source>1 to {} bytes were expected</source>
        <translation>1 à {} octets étaient attendus</translation>
    </message>
    <message>
        <source>64 small hexadecimal digits were expected</source>
        <translation>64 chiffres hexadécimaux en minuscules étaient attendus</translation>
    </message>
    <message>
        <source>it is longer than any manifest is</source>
        <translation>elle est plus longue qu’aucune liste de versions</translation>
    </message>
    <message>
        <source>three numbers such as 0.32.0 were expected</source>
        <translation>trois nombres comme 0.32.0 étaient attendus</translation>
    </message>
    <message>
        <source>a date such as 2026-11-22 was expected</source>
        <translation>une date comme 2026-11-22 était attendue</translation>
    </message>
    <message>
        <source>a plain text of at most 100,000 bytes was expected</source>
        <translation>un texte brut d’au plus 100&#x202f;000 octets était attendu</translation>
    </message>
    <message>
        <source>there is a file for it already</source>
        <translation>il y a déjà un fichier pour elle</translation>
    </message>
    <message>
        <source>The address of the file is none that is asked.</source>
        <translation>L’adresse du fichier n’est pas de celles qui sont interrogées.</translation>
    </message>
    <message>
        <source>The folder takes no file: {}.</source>
        <translation>Le dossier n’accepte pas de fichier&#x202f;: {}.</translation>
    </message>
    <message>
        <source>The server sent another part of the file than it was asked for.</source>
        <translation>Le serveur a envoyé une autre partie du fichier que celle demandée.</translation>
    </message>
    <message>
        <source>The file on the server is not as long as the list of versions says.</source>
        <translation>Le fichier du serveur n’a pas la longueur que dit la liste des versions.</translation>
    </message>
    <message>
        <source>The disk does not take the file: {}.</source>
        <translation>Le disque n’accepte pas le fichier&#x202f;: {}.</translation>
    </message>
    <message>
        <source>The file on the server is longer than the list of versions says. It was deleted.</source>
        <translation>Le fichier du serveur est plus long que ne le dit la liste des versions. Il a été supprimé.</translation>
    </message>
    <message>
        <source>The file is not the one of the list of versions: it is damaged, or was changed. It was deleted.</source>
        <translation>Le fichier n’est pas celui de la liste des versions&#x202f;: il est abîmé ou a été modifié. Il a été supprimé.</translation>
    </message>
    <message numerus="yes">
        <source>It was given up after {} tries.</source>
        <translation>
            <numerusform>C’est abandonné après {} essai.</numerusform>
            <numerusform>C’est abandonné après {} essais.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list of versions is longer than it may be.</source>
        <translation>La liste des versions est plus longue que permis.</translation>
    </message>
    <message>
        <source>The list of versions is not on the server.</source>
        <translation>La liste des versions n’est pas sur le serveur.</translation>
    </message>
    <message>
        <source>The list of versions lies on another server, {}, which is not asked.</source>
        <translation>La liste des versions se trouve sur un autre serveur, {}, qui n’est pas interrogé.</translation>
    </message>
    <message>
        <source>The list of versions is not given out by the server.</source>
        <translation>La liste des versions n’est pas délivrée par le serveur.</translation>
    </message>
    <message>
        <source>The signature of the list of versions is longer than it may be.</source>
        <translation>La signature de la liste des versions est plus longue que permis.</translation>
    </message>
    <message>
        <source>The signature of the list of versions is not on the server.</source>
        <translation>La signature de la liste des versions n’est pas sur le serveur.</translation>
    </message>
    <message>
        <source>The signature of the list of versions lies on another server, {}, which is not asked.</source>
        <translation>La signature de la liste des versions se trouve sur un autre serveur, {}, qui n’est pas interrogé.</translation>
    </message>
    <message>
        <source>The signature of the list of versions is not given out by the server.</source>
        <translation>La signature de la liste des versions n’est pas délivrée par le serveur.</translation>
    </message>
    <message>
        <source>The file is longer than it may be.</source>
        <translation>Le fichier est plus long que permis.</translation>
    </message>
    <message>
        <source>The file is not on the server.</source>
        <translation>Le fichier n’est pas sur le serveur.</translation>
    </message>
    <message>
        <source>The file lies on another server, {}, which is not asked.</source>
        <translation>Le fichier se trouve sur un autre serveur, {}, qui n’est pas interrogé.</translation>
    </message>
    <message>
        <source>The file is not given out by the server.</source>
        <translation>Le fichier n’est pas délivré par le serveur.</translation>
    </message>
    <message>
        <source>The list of versions is not signed. It is not used.</source>
        <translation>La liste des versions n’est pas signée. Elle n’est pas utilisée.</translation>
    </message>
    <message>
        <source>The list of versions is not signed by who makes Kavela: it is damaged, or somebody else&apos;s. It is not used.</source>
        <translation>La liste des versions n’est pas signée par qui fait Kavela&#x202f;: elle est abîmée, ou de quelqu’un d’autre. Elle n’est pas utilisée.</translation>
    </message>
    <message>
        <source>The list of versions is damaged and not used: {}.</source>
        <translation>La liste des versions est abîmée et n’est pas utilisée&#x202f;: {}.</translation>
    </message>
    <message>
        <source>The server offers version {}, which is older than {}, the one you have. It is not used.</source>
        <translation>Le serveur propose la version {}, plus ancienne que la {}, celle que vous avez. Elle n’est pas utilisée.</translation>
    </message>
    <message>
        <source>The server offers version {}, which is older than {}, which it had before. It is not used.</source>
        <translation>Le serveur propose la version {}, plus ancienne que la {}, qu’il avait auparavant. Elle n’est pas utilisée.</translation>
    </message>
    <message>
        <source>Version {} is the newest one.</source>
        <translation>La version {} est la plus récente.</translation>
    </message>
    <message>
        <source>There is a version {}, but no file of it for this computer ({}).</source>
        <translation>Il y a une version {}, mais aucun fichier pour cet ordinateur ({}).</translation>
    </message>
    <message>
        <source>no decoder for {}</source>
        <translation>aucun décodeur pour {}</translation>
    </message>
    <message>
        <source>the film is cut off or damaged: the list of its frames is missing</source>
        <translation>le film est coupé ou abîmé&#x202f;: la liste de ses images manque</translation>
    </message>
    <message>
        <source>this is no video that can be read, or it is damaged</source>
        <translation>ce n’est pas une vidéo lisible, ou elle est abîmée</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Ce fichier ou ce dossier n’existe pas</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>C’est un dossier</translation>
    </message>
    <message>
        <source>there is no video in this file</source>
        <translation>il n’y a pas de vidéo dans ce fichier</translation>
    </message>
    <message>
        <source>there is no sound in this film</source>
        <translation>il n’y a pas de son dans ce film</translation>
    </message>
    <message>
        <source>there is no video in this file, only a picture</source>
        <translation>il n’y a pas de vidéo dans ce fichier, seulement une image</translation>
    </message>
    <message>
        <source>the film has no clock</source>
        <translation>le film n’a pas d’horloge</translation>
    </message>
    <message>
        <source>the film could not be read any further</source>
        <translation>le film n’a pas pu être lu plus loin</translation>
    </message>
    <message>
        <source>{:.3f} s</source>
        <translation>{:.3f} s</translation>
    </message>
    <message numerus="yes">
        <source>The file is cut off: {} frames missing at its end.</source>
        <translation>
            <numerusform>Le fichier est coupé&#x202f;: il manque {} image à la fin.</numerusform>
            <numerusform>Le fichier est coupé&#x202f;: il manque {} images à la fin.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file is cut off or damaged: its end is missing.</source>
        <translation>Le fichier est coupé ou abîmé&#x202f;: sa fin manque.</translation>
    </message>
    <message>
        <source>The file does not say when each frame was shown: times are estimated from its frame rate.</source>
        <translation>Le fichier ne dit pas quand chaque image a été montrée&#x202f;: les temps sont estimés d’après sa cadence d’images.</translation>
    </message>
    <message numerus="yes">
        <source>{} frames left out that had the time of another frame.</source>
        <translation>
            <numerusform>{} image laissée de côté, qui avait le temps d’une autre.</numerusform>
            <numerusform>{} images laissées de côté, qui avaient le temps d’une autre.</numerusform>
        </translation>
    </message>
    <message>
        <source>The frame rate varies, from {} to {} frames a second.</source>
        <translation>La cadence varie, de {} à {} images par seconde.</translation>
    </message>
    <message numerus="yes">
        <source>{} gaps</source>
        <translation>
            <numerusform>{} trou</numerusform>
            <numerusform>{} trous</numerusform>
        </translation>
    </message>
    <message>
        <source>{} where frames are missing, the longest of {} at {}.</source>
        <translation>{} où des images manquent, le plus long de {} à {}.</translation>
    </message>
    <message>
        <source>About {} of {} frames repeat the picture before them.</source>
        <translation>Environ {} images sur {} répètent la précédente.</translation>
    </message>
    <message>
        <source>Slow motion: recorded at {} frames a second, plays at {}. Times taken from it are {} times too long.</source>
        <translation>Ralenti&#x202f;: enregistré à {} images par seconde, lu à {}. Les temps qui en sont tirés sont {} fois trop longs.</translation>
    </message>
    <message>
        <source>The film starts at {}, not at 0.</source>
        <translation>Le film commence à {}, pas à 0.</translation>
    </message>
    <message>
        <source>The file has no list of its frames: it had to be read from end to end.</source>
        <translation>Le fichier n’a pas de liste de ses images&#x202f;: il a fallu le lire d’un bout à l’autre.</translation>
    </message>
    <message>
        <source>Recorded turned by {}°, and shown upright.</source>
        <translation>Enregistré tourné de {}°, et montré droit.</translation>
    </message>
    <message>
        <source>Interlaced: each frame holds two moments half a frame apart.</source>
        <translation>Entrelacé&#x202f;: chaque image contient deux instants séparés d’une demi-image.</translation>
    </message>
    <message>
        <source>{} bits a colour, shown with 8.</source>
        <translation>{} bits par couleur, montré avec 8.</translation>
    </message>
    <message>
        <source>no frame of the video can be read</source>
        <translation>aucune image de la vidéo ne peut être lue</translation>
    </message>
    <message>
        <source>no frame of the video can be decoded</source>
        <translation>aucune image de la vidéo ne peut être décodée</translation>
    </message>
    <message>
        <source>The film could not be encoded: {}</source>
        <translation>Le film n’a pas pu être encodé&#x202f;: {}</translation>
    </message>
    <message>
        <source>A picture could not be made: {}</source>
        <translation>Une image n’a pas pu être faite&#x202f;: {}</translation>
    </message>
    <message>
        <source>Films cannot be made on this computer: the installed libavcodec has no encoder for H.264 (libx264).</source>
        <translation>Aucun film ne peut être fait sur cet ordinateur&#x202f;: la libavcodec installée n’a pas d’encodeur H.264 (libx264).</translation>
    </message>
    <message>
        <source>Films with sound cannot be made on this computer: the installed libavcodec has no encoder for AAC.</source>
        <translation>Aucun film avec du son ne peut être fait sur cet ordinateur&#x202f;: la libavcodec installée n’a pas d’encodeur AAC.</translation>
    </message>
    <message>
        <source>The encoder for H.264 could not be started: {}</source>
        <translation>L’encodeur H.264 n’a pas pu être démarré&#x202f;: {}</translation>
    </message>
    <message>
        <source>The encoder for sound could not be started: {}</source>
        <translation>L’encodeur du son n’a pas pu être démarré&#x202f;: {}</translation>
    </message>
    <message>
        <source>Sound could not be encoded: {}</source>
        <translation>Le son n’a pas pu être encodé&#x202f;: {}</translation>
    </message>
    <message>
        <source>The film could not be ended: {}</source>
        <translation>Le film n’a pas pu être terminé&#x202f;: {}</translation>
    </message>
    <message>
        <source>Films cannot be written on this computer: {}</source>
        <translation>Aucun film ne peut être écrit sur cet ordinateur&#x202f;: {}</translation>
    </message>
    <message>
        <source>The film could not be put together: {}</source>
        <translation>Le film n’a pas pu être assemblé&#x202f;: {}</translation>
    </message>
    <message>
        <source>The film could not be begun: {}</source>
        <translation>Le film n’a pas pu être commencé&#x202f;: {}</translation>
    </message>
    <message>
        <source>the piece could not be found in the film</source>
        <translation>le morceau n’a pas été trouvé dans le film</translation>
    </message>
    <message>
        <source>it was written by a newer release</source>
        <translation>il a été écrit par une version plus récente</translation>
    </message>
    <message>
        <source>rows and columns from 1 to 2000 were expected</source>
        <translation>1 à 2000 lignes et colonnes étaient attendues</translation>
    </message>
    <message>
        <source>&quot;accepted&quot;, &quot;moved&quot;, &quot;refused&quot; or &quot;missed&quot; expected</source>
        <translation>attendu&#x202f;: «&#xa0;accepted&#xa0;», «&#xa0;moved&#xa0;», «&#xa0;refused&#xa0;» ou «&#xa0;missed&#xa0;»</translation>
    </message>
    <message>
        <source>there are more bands than a recording holds</source>
        <translation>il y a plus de bandes qu’un enregistrement n’en contient</translation>
    </message>
    <message>
        <source>it is no recording of bands, or damaged: {}</source>
        <translation>ce n’est pas un enregistrement de bandes, ou il est abîmé&#x202f;: {}</translation>
    </message>
    <message>
        <source>the recording could not be put together</source>
        <translation>l’enregistrement n’a pas pu être assemblé</translation>
    </message>
    <message>
        <source>it is no recording of bands: {} is missing</source>
        <translation>ce n’est pas un enregistrement de bandes&#x202f;: {} manque</translation>
    </message>
    <message>
        <source>the recording is damaged: {} cannot be read</source>
        <translation>l’enregistrement est abîmé&#x202f;: {} ne peut pas être lu</translation>
    </message>
    <message>
        <source>the recording could not be put together: {}</source>
        <translation>l’enregistrement n’a pas pu être assemblé&#x202f;: {}</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>il ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>each needs its bands</source>
        <translation>chacun a besoin de ses bandes</translation>
    </message>
    <message>
        <source>their number is not that of the bands</source>
        <translation>leur nombre n’est pas celui des bandes</translation>
    </message>
    <message>
        <source>the recording is larger than any that is written</source>
        <translation>l’enregistrement est plus grand que tous ceux qui sont écrits</translation>
    </message>
    <message>
        <source>there is no proposal or correction to be saved</source>
        <translation>il n’y a ni proposition ni correction à enregistrer</translation>
    </message>
    <message>
        <source>The search for boats was not measured.</source>
        <translation>La recherche de bateaux n’a pas été mesurée.</translation>
    </message>
    <message>
        <source>Measured on {} scenes of real water ({} runs, {:.0f} minutes): {:.1f} % of the runs found (asked: {:.0f} %), {:.1f} false proposals an hour (asked: at most {:g}), an error of at most {:.1f} frames for 95 of 100 (asked: {:g}).</source>
        <translation>Mesuré sur {} scènes en eau réelle (manches&#x202f;: {}, minutes&#x202f;: {:.0f})&#x202f;: {:.1f}&#x202f;% des manches trouvées (demandé&#x202f;: {:.0f}&#x202f;%), {:.1f} fausses propositions par heure (demandé&#x202f;: au plus {:g}), une erreur d’au plus {:.1f} images pour 95 sur 100 (demandé&#x202f;: {:g}).</translation>
    </message>
    <message>
        <source>Measured on {} scenes of rendered water ({} runs, {:.0f} minutes): {:.1f} % of the runs found (asked: {:.0f} %), {:.1f} false proposals an hour (asked: at most {:g}), an error of at most {:.1f} frames for 95 of 100 (asked: {:g}).</source>
        <translation>Mesuré sur {} scènes en eau de synthèse (manches&#x202f;: {}, minutes&#x202f;: {:.0f})&#x202f;: {:.1f}&#x202f;% des manches trouvées (demandé&#x202f;: {:.0f}&#x202f;%), {:.1f} fausses propositions par heure (demandé&#x202f;: au plus {:g}), une erreur d’au plus {:.1f} images pour 95 sur 100 (demandé&#x202f;: {:g}).</translation>
    </message>
    <message>
        <source>The frame of the box cannot be shown.</source>
        <translation>L’image du cadre ne peut pas être montrée.</translation>
    </message>
    <message>
        <source>the box round a boat has no size</source>
        <translation>le cadre autour d’un bateau n’a pas de taille</translation>
    </message>
    <message>
        <source>the box round a boat is larger than the picture</source>
        <translation>le cadre autour d’un bateau est plus grand que l’image</translation>
    </message>
    <message>
        <source>the film has no frames from {:.2f} s to {:.2f} s</source>
        <translation>le film n’a pas d’images de {:.2f} s à {:.2f} s</translation>
    </message>
    <message>
        <source>The film ends early: the file is cut off.</source>
        <translation>Le film finit trop tôt&#x202f;: le fichier est coupé.</translation>
    </message>
    <message>
        <source>The box is too small: it needs 8 pixels each way at least.</source>
        <translation>Le cadre est trop petit&#x202f;: il lui faut au moins 8 pixels dans chaque sens.</translation>
    </message>
    <message>
        <source>The box does not lie within the picture, which has {} × {} pixels.</source>
        <translation>Le cadre n’est pas à l’intérieur de l’image, qui a {} × {} pixels.</translation>
    </message>
    <message>
        <source>There is nothing in the box that could be known again: it has one colour all over.</source>
        <translation>Il n’y a rien dans le cadre qui puisse être reconnu&#x202f;: il est d’une seule couleur.</translation>
    </message>
    <message>
        <source>It is not known how the camera moved between the path and the frame of the known points. Click them in a frame of the path.</source>
        <translation>On ne sait pas comment la caméra a bougé entre la trajectoire et l’image des points connus. Cliquez-les dans une image de la trajectoire.</translation>
    </message>
    <message>
        <source>version {} is of a later release</source>
        <translation>la version {} vient d’une version ultérieure du programme</translation>
    </message>
    <message>
        <source>the line&apos;s end at {}, {} lies outside the picture of {} × {} pixels</source>
        <translation>le bout de la ligne en {}, {} est hors de l’image de {} × {} pixels</translation>
    </message>
    <message>
        <source>the line is shorter than {} pixels</source>
        <translation>la ligne fait moins de {} pixels</translation>
    </message>
    <message>
        <source>The camera was held in the hand, or nothing in the picture stands still: the search for boats needs a camera on a tripod.</source>
        <translation>La caméra était tenue à la main, ou rien dans l’image n’est immobile&#x202f;: la recherche de bateaux demande une caméra sur trépied.</translation>
    </message>
    <message numerus="yes">
        <source>{} frames could not be read and were passed over.</source>
        <translation>
            <numerusform>{} image n’a pas pu être lue et a été sautée.</numerusform>
            <numerusform>{} images n’ont pas pu être lues et ont été sautées.</numerusform>
        </translation>
    </message>
    <message>
        <source>a frame from 0 on was expected</source>
        <translation>une image à partir de 0 était attendue</translation>
    </message>
    <message>
        <source>it does not lie behind the frame before</source>
        <translation>elle n’est pas après l’image précédente</translation>
    </message>
    <message>
        <source>no film has so many frames</source>
        <translation>aucun film n’a autant d’images</translation>
    </message>
    <message>
        <source>it lies beyond all pictures</source>
        <translation>il est au-delà de toute image</translation>
    </message>
    <message>
        <source>four known points were expected, or two for a scale only</source>
        <translation>quatre points connus étaient attendus, ou deux pour une simple échelle</translation>
    </message>
    <message>
        <source>the box has no size</source>
        <translation>le cadre n’a pas de taille</translation>
    </message>
    <message>
        <source>a size above 0 was expected</source>
        <translation>une taille supérieure à 0 était attendue</translation>
    </message>
    <message>
        <source>it makes the picture vanish</source>
        <translation>il fait disparaître l’image</translation>
    </message>
    <message>
        <source>Three of the four known points lie on a line: they have to be the corners of a field, such as the poles of two gates.</source>
        <translation>Trois des quatre points connus sont alignés&#x202f;: ils doivent être les coins d’un champ, comme les fiches de deux portes.</translation>
    </message>
    <message>
        <source>Metres need four known points on the water, or two for a scale only; there are {}.</source>
        <translation>Les mètres demandent quatre points connus sur l’eau, ou deux pour une simple échelle&#x202f;; il y en a {}.</translation>
    </message>
    <message>
        <source>The two known points lie on one spot.</source>
        <translation>Les deux points connus sont au même endroit.</translation>
    </message>
    <message>
        <source>The four known points do not fit together: no view of flat water shows them so.</source>
        <translation>Les quatre points connus ne vont pas ensemble&#x202f;: aucune vue d’une eau plane ne les montre ainsi.</translation>
    </message>
    <message>
        <source>The four known points do not fit together: no view of flat water shows them so. Were two of them exchanged?</source>
        <translation>Les quatre points connus ne vont pas ensemble&#x202f;: aucune vue d’une eau plane ne les montre ainsi. Deux d’entre eux ont-ils été échangés&#x202f;?</translation>
    </message>
    <message>
        <source>“bow” or “body” was expected</source>
        <translation>“bow” ou “body” était attendu</translation>
    </message>
    <message>
        <source>The column &quot;{}&quot; is reckoned here: how the columns of the list are read decides what it holds.</source>
        <translation>La colonne « {} » est calculée ici : ce qu’elle contient dépend de la façon dont les colonnes de la liste sont lues.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop</name>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>To know</source>
        <translation>À savoir</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en attente</translation>
    </message>
    <message>
        <source>there</source>
        <translation>là</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échoué</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêté</translation>
    </message>
    <message>
        <source>%1, %2:%3 left</source>
        <translation>%1, reste %2:%3</translation>
    </message>
    <message>
        <source>A film is still being composed.</source>
        <translation>Un film est encore en cours de composition.</translation>
    </message>
    <message>
        <source>%1 films are still being composed.</source>
        <translation>%1 films sont encore en cours de composition.</translation>
    </message>
    <message>
        <source>It can go on in the background: the list of jobs (Ctrl+J in Compare films) tells how far it is.</source>
        <translation>La composition peut continuer en arrière-plan&#x202f;: la liste des tâches (Ctrl+J dans Comparer des films) dit où elle en est.</translation>
    </message>
    <message>
        <source>Go on in the background</source>
        <translation>Continuer en arrière-plan</translation>
    </message>
    <message>
        <source>Stop it</source>
        <translation>L’arrêter</translation>
    </message>
    <message>
        <source>Stay here</source>
        <translation>Rester ici</translation>
    </message>
    <message>
        <source>Put together…</source>
        <translation>Assemblage…</translation>
    </message>
    <message>
        <source>Piece %1 of %2</source>
        <translation>Morceau %1 sur %2</translation>
    </message>
    <message>
        <source>Checked…</source>
        <translation>Vérification…</translation>
    </message>
    <message>
        <source>%1 %, %2 of %3</source>
        <translation>%1&#x202f;%, %2 sur %3</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>Attend</translation>
    </message>
    <message>
        <source>✓ Fetched</source>
        <translation>✓ Récupéré</translation>
    </message>
    <message>
        <source>Fetch</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>Bib</source>
        <translation>Dossard</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>1 film is ticked</source>
        <translation>1 film est coché</translation>
    </message>
    <message>
        <source>%1 films are ticked</source>
        <translation>%1 films sont cochés</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 fetched</source>
        <translation>%1 récupérés</translation>
    </message>
    <message>
        <source>%1 not there yet</source>
        <translation>%1 pas encore là</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 échoués</translation>
    </message>
    <message>
        <source>%1 cancelled</source>
        <translation>%1 annulés</translation>
    </message>
    <message>
        <source>Move the selected mark &amp;here</source>
        <translation>&amp;Déplacer ici la marque choisie</translation>
    </message>
    <message>
        <source>Mark one frame &amp;earlier</source>
        <translation>Marque &amp;une image plus tôt</translation>
    </message>
    <message>
        <source>Mark one frame &amp;later</source>
        <translation>Marque une &amp;image plus tard</translation>
    </message>
    <message>
        <source>&amp;Remove the selected mark</source>
        <translation>&amp;Retirer la marque choisie</translation>
    </message>
    <message>
        <source>&amp;Previous mark</source>
        <translation>Marque &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Next mark</source>
        <translation>&amp;Marque suivante</translation>
    </message>
    <message>
        <source>Nobody is called “%1” in these files.</source>
        <translation>Personne ne s’appelle «&#xa0;%1&#xa0;» dans ces fichiers.</translation>
    </message>
    <message>
        <source>Like it: %1.</source>
        <translation>Semblable&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Watched: 80 % of it was shown</source>
        <translation>Vu&#x202f;: 80&#x202f;% en a été montré</translation>
    </message>
    <message>
        <source>Of the split file: split taking edits it</source>
        <translation>Du fichier d’intermédiaires&#x202f;: la prise de temps intermédiaires la modifie</translation>
    </message>
    <message>
        <source>Watched</source>
        <translation>Vu</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Minutes and seconds</source>
        <translation>Minutes et secondes</translation>
    </message>
    <message>
        <source>At</source>
        <translation>À</translation>
    </message>
    <message>
        <source>Moment of the film, minutes and seconds</source>
        <translation>Moment du film, minutes et secondes</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>Imported “%1”</source>
        <translation>«&#xa0;%1&#xa0;» importé</translation>
    </message>
    <message>
        <source>“%1” cannot be imported</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être importé</translation>
    </message>
    <message>
        <source>Watches and phones (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;All files (*)</source>
        <translation>Montres et téléphones (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Import from a watch or a phone</source>
        <translation>Importer d’une montre ou d’un téléphone</translation>
    </message>
    <message>
        <source>%1 s a run</source>
        <translation>%1 s par manche</translation>
    </message>
    <message>
        <source>one run</source>
        <translation>une manche</translation>
    </message>
    <message>
        <source>%1 runs</source>
        <translation>%1 manches</translation>
    </message>
    <message>
        <source>Where most was lost</source>
        <translation>Où l’on a le plus perdu</translation>
    </message>
    <message>
        <source>Seconds lost</source>
        <translation>Secondes perdues</translation>
    </message>
    <message>
        <source>Of all that was lost, %</source>
        <translation>De tout ce qui a été perdu,&#x202f;%</translation>
    </message>
    <message>
        <source>No section was slower than the reference&apos;s.</source>
        <translation>Aucun secteur n’était plus lent que celui de la référence.</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdu</translation>
    </message>
    <message>
        <source>Together, %</source>
        <translation>Cumul,&#x202f;%</translation>
    </message>
    <message>
        <source>The gap along the course</source>
        <translation>L’écart le long du parcours</translation>
    </message>
    <message>
        <source>After section</source>
        <translation>Après le secteur</translation>
    </message>
    <message>
        <source>Seconds behind, without penalties</source>
        <translation>Secondes de retard, sans pénalités</translation>
    </message>
    <message>
        <source>result %1</source>
        <translation>résultat %1</translation>
    </message>
    <message>
        <source>Lost by what it is lost in</source>
        <translation>Pertes selon ce où le temps est perdu</translation>
    </message>
    <message>
        <source>Of the reference&apos;s time, %</source>
        <translation>Du temps de la référence,&#x202f;%</translation>
    </message>
    <message>
        <source>Lost, 90 %</source>
        <translation>Perdu, 90&#x202f;%</translation>
    </message>
    <message>
        <source>No loss</source>
        <translation>Aucune perte</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Par</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Manches</translation>
    </message>
    <message>
        <source>Lost, %</source>
        <translation>Perdu,&#x202f;%</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>A run, s</source>
        <translation>Par manche, s</translation>
    </message>
    <message>
        <source>No row loses time for sure.</source>
        <translation>Aucune ligne ne perd du temps à coup sûr.</translation>
    </message>
    <message>
        <source>Most for sure: %1 %2, %3 s a run.</source>
        <translation>Le plus sûr&#x202f;: %1 %2, %3 s par manche.</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Porte</translation>
    </message>
    <message>
        <source>Gate %1 of the section</source>
        <translation>Porte %1 du secteur</translation>
    </message>
    <message>
        <source>Lost in an upstream gate of the section</source>
        <translation>Perdu dans une remontée du secteur</translation>
    </message>
    <message>
        <source>%1:  %2</source>
        <translation>%1&#x202f;:  %2</translation>
    </message>
    <message>
        <source>upstream</source>
        <translation>remontée</translation>
    </message>
    <message>
        <source>downstream</source>
        <translation>descendue</translation>
    </message>
    <message>
        <source>several sections</source>
        <translation>plusieurs secteurs</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>a race without a name</source>
        <translation>une course sans nom</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Manche %1</translation>
    </message>
    <message>
        <source>winner</source>
        <translation>vainqueur</translation>
    </message>
    <message>
        <source>fastest paddling</source>
        <translation>navigation la plus rapide</translation>
    </message>
    <message>
        <source>ideal run</source>
        <translation>manche idéale</translation>
    </message>
    <message>
        <source>median of the finalists</source>
        <translation>médiane des finalistes</translation>
    </message>
    <message>
        <source>own best other run</source>
        <translation>meilleure autre manche propre</translation>
    </message>
    <message>
        <source>a rival</source>
        <translation>un rival</translation>
    </message>
    <message>
        <source>Open a race to see where time is lost.</source>
        <translation>Ouvrez une course pour voir où le temps est perdu.</translation>
    </message>
    <message>
        <source>The crew has no other whole run here to be held against. Choose another reference.</source>
        <translation>L’équipage n’a ici aucune autre manche complète à laquelle comparer. Choisissez une autre référence.</translation>
    </message>
    <message>
        <source>There is no %1 here to hold the run against. Choose another reference.</source>
        <translation>Il n’y a ici aucune référence «&#xa0;%1&#xa0;» à laquelle comparer la manche. Choisissez-en une autre.</translation>
    </message>
    <message>
        <source>The two have no section in common that is timed.</source>
        <translation>Les deux n’ont aucun secteur chronométré en commun.</translation>
    </message>
    <message>
        <source>%1: nothing to be held against</source>
        <translation>%1&#x202f;: rien à quoi comparer</translation>
    </message>
    <message>
        <source>%1  %2 on %3</source>
        <translation>%1  %2 face à %3</translation>
    </message>
    <message>
        <source>%1: no section in common with %2</source>
        <translation>%1&#x202f;: aucun secteur en commun avec %2</translation>
    </message>
    <message>
        <source>%1  %2 on %3 in %4 (no total)</source>
        <translation>%1  %2 face à %3 en %4 (pas de total)</translation>
    </message>
    <message>
        <source>Explained by notes: %1 of %2 (%3 %)</source>
        <translation>Expliqué par des notes&#x202f;: %1 sur %2 (%3&#x202f;%)</translation>
    </message>
    <message>
        <source>Most was lost in %1: %2 s of %3.</source>
        <translation>La plus grande perte est en %1&#x202f;: %2 s sur %3.</translation>
    </message>
    <message>
        <source>Penalties make %1 of it.</source>
        <translation>Les pénalités en font %1.</translation>
    </message>
    <message>
        <source>All %1 of the slower sections are needed to explain most of the loss.</source>
        <translation>Les %1 secteurs plus lents sont tous nécessaires pour expliquer l’essentiel de la perte.</translation>
    </message>
    <message>
        <source>%1 alone makes %2 % of what was lost in slower sections.</source>
        <translation>%1 à lui seul fait %2&#x202f;% de ce qui a été perdu dans les secteurs plus lents.</translation>
    </message>
    <message>
        <source>%1 of %2 slower sections make %3 % of what was lost in them.</source>
        <translation>%1 des %2 secteurs plus lents font %3&#x202f;% de ce qui y a été perdu.</translation>
    </message>
    <message>
        <source>Nobody was slower than the reference in a section.</source>
        <translation>Personne n’était plus lent que la référence dans un secteur.</translation>
    </message>
    <message>
        <source>The greatest loss is that of %1 in S%2: %3 on %4.</source>
        <translation>La plus grande perte est celle de %1 en S%2&#x202f;: %3 face à %4.</translation>
    </message>
    <message>
        <source>Never behind the %1; %2 at the end of S%3.</source>
        <translation>Jamais derrière (%1)&#x202f;; %2 à la fin de S%3.</translation>
    </message>
    <message>
        <source>Farthest behind at the end: %1 after S%2.</source>
        <translation>Le plus loin derrière à la fin&#x202f;: %1 après S%2.</translation>
    </message>
    <message>
        <source>Farthest behind after S%1: %2; %3 after S%4.</source>
        <translation>Le plus loin derrière après S%1&#x202f;: %2&#x202f;; %3 après S%4.</translation>
    </message>
    <message>
        <source>no motion of the boat</source>
        <translation>aucun mouvement du bateau</translation>
    </message>
    <message>
        <source>a hole of %1 s</source>
        <translation>un trou de %1 s</translation>
    </message>
    <message>
        <source>%1 holes, the longest of %2 s</source>
        <translation>%1 trous, le plus long de %2 s</translation>
    </message>
    <message>
        <source>the clock ran backwards once</source>
        <translation>l’horloge a reculé une fois</translation>
    </message>
    <message>
        <source>the clock ran backwards %1 times</source>
        <translation>l’horloge a reculé %1 fois</translation>
    </message>
    <message>
        <source>a moment stands twice</source>
        <translation>un moment figure deux fois</translation>
    </message>
    <message>
        <source>%1 moments stand twice</source>
        <translation>%1 moments figurent deux fois</translation>
    </message>
    <message>
        <source>Top to the bow</source>
        <translation>Haut vers l’avant</translation>
    </message>
    <message>
        <source>Bottom to the bow</source>
        <translation>Bas vers l’avant</translation>
    </message>
    <message>
        <source>Right to the bow</source>
        <translation>Droite vers l’avant</translation>
    </message>
    <message>
        <source>Left to the bow</source>
        <translation>Gauche vers l’avant</translation>
    </message>
    <message>
        <source>Back to the bow</source>
        <translation>Dos vers l’avant</translation>
    </message>
    <message>
        <source>Screen to the bow</source>
        <translation>Écran vers l’avant</translation>
    </message>
    <message>
        <source>%1 of %2 touched</source>
        <translation>%1 touches sur %2</translation>
    </message>
    <message>
        <source>Touched, %</source>
        <translation>Touché,&#x202f;%</translation>
    </message>
    <message>
        <source>Ranked rate, 90 %</source>
        <translation>Taux classé, 90&#x202f;%</translation>
    </message>
    <message>
        <source>Touched</source>
        <translation>Touchées</translation>
    </message>
    <message>
        <source>All in common</source>
        <translation>Commun à tous</translation>
    </message>
    <message>
        <source>No run that is asked for has its penalties by gate. Enter them for each gate to see where they happen.</source>
        <translation>Aucune manche demandée n’a ses pénalités par porte. Saisissez-les pour chaque porte pour voir où elles arrivent.</translation>
    </message>
    <message>
        <source>Passages</source>
        <translation>Passages</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Manquées</translation>
    </message>
    <message>
        <source>Touch rate</source>
        <translation>Taux de touches</translation>
    </message>
    <message>
        <source>Ranked rate</source>
        <translation>Taux classé</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Au-dessus</translation>
    </message>
    <message>
        <source>Gate %1, upstream</source>
        <translation>Porte %1, remontée</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Porte %1</translation>
    </message>
    <message>
        <source>%1 missed</source>
        <translation>%1 manquées</translation>
    </message>
    <message>
        <source>stands out</source>
        <translation>ressort</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>(not given)</source>
        <translation>(non indiqué)</translation>
    </message>
    <message>
        <source>%1: touches at the gates</source>
        <translation>%1&#x202f;: touches aux portes</translation>
    </message>
    <message>
        <source>Gates in order; ◀ upstream</source>
        <translation>Portes dans l’ordre&#x202f;; ◀ remontée</translation>
    </message>
    <message>
        <source>Upstream</source>
        <translation>En remontée</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Touches %1</source>
        <translation>Touches %1</translation>
    </message>
    <message>
        <source> (the highest %1, %2 more in the table)</source>
        <translation> (les %1 plus hauts, %2 autres dans le tableau)</translation>
    </message>
    <message>
        <source>What was noted of penalties</source>
        <translation>Ce qui a été noté des pénalités</translation>
    </message>
    <message>
        <source>Of those noted, %</source>
        <translation>Des pénalités notées,&#x202f;%</translation>
    </message>
    <message>
        <source>Share, 90 %</source>
        <translation>Part, 90&#x202f;%</translation>
    </message>
    <message>
        <source>Noted as</source>
        <translation>Noté comme</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Pénalités</translation>
    </message>
    <message>
        <source>Of</source>
        <translation>Sur</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Part</translation>
    </message>
    <message>
        <source>Most of one kind: %1 %2, %3 of %4 noted.</source>
        <translation>Le plus d’un même genre&#x202f;: %1 %2, %3 sur %4 notées.</translation>
    </message>
    <message>
        <source>fastest third</source>
        <translation>tiers rapide</translation>
    </message>
    <message>
        <source>middle third</source>
        <translation>tiers moyen</translation>
    </message>
    <message>
        <source>slowest third</source>
        <translation>tiers lent</translation>
    </message>
    <message>
        <source>Risk and speed</source>
        <translation>Risque et vitesse</translation>
    </message>
    <message>
        <source>Paddling time, % of the group&apos;s median</source>
        <translation>Temps de navigation,&#x202f;% de la médiane du groupe</translation>
    </message>
    <message>
        <source>Touches a run</source>
        <translation>Touches par manche</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#x202f;%</translation>
    </message>
    <message>
        <source>Equally fast in all</source>
        <translation>Aussi rapides partout</translation>
    </message>
    <message>
        <source>not planned</source>
        <translation>non prévu</translation>
    </message>
    <message>
        <source>planned</source>
        <translation>prévu</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Séances</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>What the sessions add up to, in the unit that they are written in</source>
        <translation>Ce que font ensemble les séances, dans l’unité où elles sont écrites</translation>
    </message>
    <message>
        <source>In the sessions</source>
        <translation>Dans les séances</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Compétition</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Pénalité</translation>
    </message>
    <message>
        <source>Behind best</source>
        <translation>Derrière le meilleur</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Portes</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Séance</translation>
    </message>
    <message>
        <source>Missed gates</source>
        <translation>Portes manquées</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlète</translation>
    </message>
    <message>
        <source>From the first run of the heats to the second</source>
        <translation>De la première manche de qualification à la deuxième</translation>
    </message>
    <message>
        <source>From the semifinal to the final</source>
        <translation>De la demi-finale à la finale</translation>
    </message>
    <message>
        <source>From the heats to the final</source>
        <translation>Des qualifications à la finale</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Médailles</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finales</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Demi-finales</translation>
    </message>
    <message>
        <source>too few for a range</source>
        <translation>trop peu pour un intervalle</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>trop peu</translation>
    </message>
    <message>
        <source>Change behind, %</source>
        <translation>Évolution du retard,&#x202f;%</translation>
    </message>
    <message>
        <source>Change, %</source>
        <translation>Évolution,&#x202f;%</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Courses</translation>
    </message>
    <message>
        <source>Typical error, %</source>
        <translation>Erreur type,&#x202f;%</translation>
    </message>
    <message>
        <source>No change</source>
        <translation>Pas d’évolution</translation>
    </message>
    <message>
        <source>No race of the team has both.</source>
        <translation>Aucune course de l’équipe n’a les deux.</translation>
    </message>
    <message>
        <source>How much runs vary by chance</source>
        <translation>De combien les manches varient par hasard</translation>
    </message>
    <message>
        <source>Within, %</source>
        <translation>Dispersion,&#x202f;%</translation>
    </message>
    <message>
        <source>Own alone, %</source>
        <translation>Propre seule,&#x202f;%</translation>
    </message>
    <message>
        <source>With a missed gate</source>
        <translation>Avec une porte manquée</translation>
    </message>
    <message>
        <source>Too few runs to tell how much they vary.</source>
        <translation>Trop peu de manches pour dire à quel point elles varient.</translation>
    </message>
    <message>
        <source>Trend behind the winners</source>
        <translation>Tendance derrière les vainqueurs</translation>
    </message>
    <message>
        <source>Trend behind the fastest splits</source>
        <translation>Tendance derrière les intermédiaires les plus rapides</translation>
    </message>
    <message>
        <source>A year, %</source>
        <translation>Par an,&#x202f;%</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>Too few runs of everybody to tell a trend: four over two months are needed.</source>
        <translation>Trop peu de manches de chacun pour dire une tendance&#x202f;: il en faut quatre sur deux mois.</translation>
    </message>
    <message>
        <source>%1 against</source>
        <translation>%1 face à</translation>
    </message>
    <message>
        <source>Against</source>
        <translation>Face à</translation>
    </message>
    <message>
        <source>Ahead, %</source>
        <translation>Devant,&#x202f;%</translation>
    </message>
    <message>
        <source>Met</source>
        <translation>Duels</translation>
    </message>
    <message>
        <source>Won</source>
        <translation>Gagnées</translation>
    </message>
    <message>
        <source>Gap, %</source>
        <translation>Écart,&#x202f;%</translation>
    </message>
    <message>
        <source>Gap 90 %</source>
        <translation>Écart 90&#x202f;%</translation>
    </message>
    <message>
        <source>Half</source>
        <translation>Moitié</translation>
    </message>
    <message>
        <source>The athlete met nobody in these races.</source>
        <translation>L’athlète n’a rencontré personne dans ces courses.</translation>
    </message>
    <message>
        <source>Of races, %</source>
        <translation>Des courses,&#x202f;%</translation>
    </message>
    <message>
        <source>No race of the team has a result that says so.</source>
        <translation>Aucune course de l’équipe n’a de résultat qui le dise.</translation>
    </message>
    <message>
        <source>Expected places among %1 boats</source>
        <translation>Places attendues parmi %1 bateaux</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Bateau</translation>
    </message>
    <message>
        <source>Medal, %</source>
        <translation>Médaille,&#x202f;%</translation>
    </message>
    <message>
        <source>First, %</source>
        <translation>Première place,&#x202f;%</translation>
    </message>
    <message>
        <source>Missed gate, %</source>
        <translation>Porte manquée,&#x202f;%</translation>
    </message>
    <message>
        <source>Too few runs to expect places of anybody: each boat needs three, and the boats must have met.</source>
        <translation>Trop peu de manches pour attendre des places de quiconque&#x202f;: il en faut trois à chaque bateau, et les bateaux doivent s’être rencontrés.</translation>
    </message>
    <message>
        <source>What ranks took: %1</source>
        <translation>Ce que demandaient les rangs&#x202f;: %1</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Rang</translation>
    </message>
    <message>
        <source>Behind the winner, %</source>
        <translation>Derrière le vainqueur,&#x202f;%</translation>
    </message>
    <message>
        <source>Quartiles</source>
        <translation>Quartiles</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Most</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>%1 would have</source>
        <translation>%1 aurait</translation>
    </message>
    <message>
        <source>Median of %1</source>
        <translation>Médiane de %1</translation>
    </message>
    <message>
        <source>The first %1, %2 more in the table</source>
        <translation>Les %1 premiers, %2 autres dans le tableau</translation>
    </message>
    <message>
        <source>&amp;Import .kvb file</source>
        <translation>&amp;Importer un fichier .kvb</translation>
    </message>
    <message>
        <source>Import .s&amp;bm file</source>
        <translation>I&amp;mporter un fichier .sbm</translation>
    </message>
    <message>
        <source>Import from a &amp;watch or logger…</source>
        <translation>Importer &amp;d’une montre ou d’un enregistreur…</translation>
    </message>
    <message>
        <source>Move the trac&amp;k of the watch in time…</source>
        <translation>Déplacer la &amp;trace de la montre dans le temps…</translation>
    </message>
    <message>
        <source>Import &amp;power-meter data…</source>
        <translation>Importer les données du capteur de &amp;puissance…</translation>
    </message>
    <message>
        <source>Save the edited .&amp;kvb file</source>
        <translation>Enregistrer le fichier .&amp;kvb modifié</translation>
    </message>
    <message>
        <source>&amp;Export the strokes…</source>
        <translation>Exporter les &amp;coups de pagaie…</translation>
    </message>
    <message>
        <source>Export the &amp;turns…</source>
        <translation>Exporter &amp;les virages…</translation>
    </message>
    <message>
        <source>Export the se&amp;gments…</source>
        <translation>E&amp;xporter les segments…</translation>
    </message>
    <message>
        <source>Export the values per &amp;distance…</source>
        <translation>Exporter les &amp;valeurs par distance…</translation>
    </message>
    <message>
        <source>Mount of the p&amp;hone</source>
        <translation>&amp;Fixation du téléphone</translation>
    </message>
    <message>
        <source>Found from the position</source>
        <translation>Trouvée d’après la position</translation>
    </message>
    <message>
        <source>Session &amp;information…</source>
        <translation>&amp;Informations de la séance…</translation>
    </message>
    <message>
        <source>&amp;Analyse the recording again</source>
        <translation>Analys&amp;er à nouveau l’enregistrement</translation>
    </message>
    <message>
        <source>&amp;Keep the selected stretch</source>
        <translation>&amp;Garder le tronçon sélectionné</translation>
    </message>
    <message>
        <source>Remove the selected &amp;stretch</source>
        <translation>Retirer &amp;le tronçon sélectionné</translation>
    </message>
    <message>
        <source>Re&amp;move the selected strokes, turns or mark</source>
        <translation>Retirer les coups &amp;de pagaie, virages ou la marque sélectionnés</translation>
    </message>
    <message>
        <source>Select &amp;nothing</source>
        <translation>&amp;Ne rien sélectionner</translation>
    </message>
    <message>
        <source>&amp;Segments</source>
        <translation>&amp;Segments</translation>
    </message>
    <message>
        <source>&amp;Mark here</source>
        <translation>Marquer &amp;ici</translation>
    </message>
    <message>
        <source>Mo&amp;ve the nearest mark here</source>
        <translation>Ame&amp;ner ici la marque la plus proche</translation>
    </message>
    <message>
        <source>Nearest mark &amp;earlier</source>
        <translation>Marque &amp;la plus proche plus tôt</translation>
    </message>
    <message>
        <source>Nearest mark &amp;later</source>
        <translation>Marque la plus proche plus &amp;tard</translation>
    </message>
    <message>
        <source>&amp;Remove the nearest mark</source>
        <translation>Retirer l&amp;a marque la plus proche</translation>
    </message>
    <message>
        <source>Remove &amp;all marks</source>
        <translation>&amp;Retirer toutes les marques</translation>
    </message>
    <message>
        <source>&amp;Save the segments</source>
        <translation>&amp;Enregistrer les segments</translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation>&amp;Relecture</translation>
    </message>
    <message>
        <source>&amp;Play, pause</source>
        <translation>&amp;Lecture, pause</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>&amp;Plus lent</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>Plus &amp;vite</translation>
    </message>
    <message>
        <source>&amp;Real time</source>
        <translation>&amp;Temps réel</translation>
    </message>
    <message>
        <source>P&amp;revious stroke</source>
        <translation>C&amp;oup de pagaie précédent</translation>
    </message>
    <message>
        <source>&amp;Next stroke</source>
        <translation>&amp;Coup de pagaie suivant</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Début</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Fin</translation>
    </message>
    <message>
        <source>&amp;Charts</source>
        <translation>&amp;Graphiques</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affi&amp;chage</translation>
    </message>
    <message>
        <source>&amp;Zoom to the selected stretch</source>
        <translation>&amp;Zoomer sur le tronçon sélectionné</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Ajuster</translation>
    </message>
    <message>
        <source>%1; “%2” is none.</source>
        <translation>%1&#x202f;; «&#xa0;%2&#xa0;» n’en est pas un.</translation>
    </message>
    <message>
        <source>%1 is of release %2.</source>
        <translation>%1 est de la version %2.</translation>
    </message>
    <message>
        <source>Its folder %1 cannot be written, so that the analyzer shows it and leaves it as it is.</source>
        <translation>Son dossier %1 n’est pas accessible en écriture&#x202f;: l’analyse de course l’affiche et le laisse tel quel.</translation>
    </message>
    <message>
        <source>Who of the team it is; a question mark: only you can tell</source>
        <translation>Qui de l’équipe c’est&#x202f;; un point d’interrogation&#x202f;: vous seul pouvez le dire</translation>
    </message>
    <message>
        <source> or </source>
        <translation> ou </translation>
    </message>
    <message>
        <source>Reckoned from the list</source>
        <translation>Calculé à partir de la liste</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>What stands there</source>
        <translation>Ce qui s’y trouve</translation>
    </message>
    <message>
        <source>Why it is not taken</source>
        <translation>Pourquoi ce n’est pas repris</translation>
    </message>
    <message>
        <source>Results list</source>
        <translation>Liste des résultats</translation>
    </message>
    <message>
        <source>Attached document</source>
        <translation>Document joint</translation>
    </message>
    <message>
        <source>Table kept with the race</source>
        <translation>Tableau conservé avec la course</translation>
    </message>
    <message>
        <source>The least is %1 (%2), the most %3 (%4), of %5 rows</source>
        <translation>Le minimum est %1 (%2), le maximum %3 (%4), sur %5 lignes</translation>
    </message>
    <message>
        <source>; %1 without a number are left out</source>
        <translation>; %1 sans nombre sont laissées de côté</translation>
    </message>
    <message>
        <source>Choose a column of numbers or times: a click on one of its cells, then C.</source>
        <translation>Choisissez une colonne de nombres ou de temps&#x202f;: un clic sur une de ses cellules, puis C.</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>No row has a number in this column.</source>
        <translation>Aucune ligne n’a de nombre dans cette colonne.</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Jour</translation>
    </message>
    <message>
        <source>Start &amp;list…</source>
        <translation>&amp;Liste de départ…</translation>
    </message>
    <message>
        <source>Films &amp;from…</source>
        <translation>&amp;Films depuis…</translation>
    </message>
    <message>
        <source>Reckon with the camera&apos;s &amp;clock</source>
        <translation>&amp;Tenir compte de l’horloge de la caméra</translation>
    </message>
    <message>
        <source>&amp;Remove the boat from the list</source>
        <translation>&amp;Retirer le bateau de la liste</translation>
    </message>
    <message>
        <source>To the next film that is not &amp;timed yet</source>
        <translation>&amp;Au prochain film pas encore chronométré</translation>
    </message>
    <message>
        <source>&amp;Open the film of the start in front</source>
        <translation>&amp;Ouvrir le film du départ au premier plan</translation>
    </message>
    <message>
        <source>&amp;Previous start</source>
        <translation>Départ &amp;précédent</translation>
    </message>
    <message>
        <source>&amp;Next start</source>
        <translation>&amp;Départ suivant</translation>
    </message>
    <message>
        <source>&amp;Agree: the film is named after its boat</source>
        <translation>Valider&#x202f;: le film prend le &amp;nom de son bateau</translation>
    </message>
    <message>
        <source>Agree to all that are &amp;sure</source>
        <translation>&amp;Valider tous ceux qui sont sûrs</translation>
    </message>
    <message>
        <source>Films from here on: one start &amp;earlier</source>
        <translation>F&amp;ilms à partir d’ici&#x202f;: un départ plus tôt</translation>
    </message>
    <message>
        <source>Films from here on: one start late&amp;r</source>
        <translation>Films à partir d’ici&#x202f;: &amp;un départ plus tard</translation>
    </message>
    <message>
        <source>Did not start, or did after all</source>
        <translation>N’a pas pris le départ, ou si finalement</translation>
    </message>
    <message>
        <source>Did not finish, or did after all</source>
        <translation>N’a pas terminé, ou si finalement</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notes</translation>
    </message>
    <message>
        <source>Stroke on the left</source>
        <translation>Coup de pagaie à gauche</translation>
    </message>
    <message>
        <source>Stroke on the right</source>
        <translation>Coup de pagaie à droite</translation>
    </message>
    <message>
        <source>Other hand for the selected stroke</source>
        <translation>Autre main pour le coup de pagaie choisi</translation>
    </message>
    <message>
        <source>Play from the selected tag</source>
        <translation>Lire depuis l’étiquette choisie</translation>
    </message>
    <message>
        <source>To the other run of the time loss</source>
        <translation>Vers l’autre manche de la perte de temps</translation>
    </message>
    <message>
        <source>Record the team radio, or end it</source>
        <translation>Enregistrer la radio d’équipe, ou finir</translation>
    </message>
    <message>
        <source>Clips of the chosen marks, one after another</source>
        <translation>Extraits des marques choisies, l’un après l’autre</translation>
    </message>
    <message>
        <source>Add a &amp;category</source>
        <translation>&amp;Ajouter une catégorie</translation>
    </message>
    <message>
        <source>&amp;Team</source>
        <translation>É&amp;quipe</translation>
    </message>
    <message>
        <source>&amp;New athlete…</source>
        <translation>&amp;Nouvel athlète…</translation>
    </message>
    <message>
        <source>Remo&amp;ve the athlete</source>
        <translation>&amp;Retirer l’athlète</translation>
    </message>
    <message>
        <source>Re&amp;move the category</source>
        <translation>Retirer &amp;la catégorie</translation>
    </message>
    <message>
        <source>New &amp;season</source>
        <translation>Nouvelle &amp;saison</translation>
    </message>
    <message>
        <source>New &amp;race</source>
        <translation>Nouvelle &amp;course</translation>
    </message>
    <message>
        <source>Move season or race &amp;up</source>
        <translation>&amp;Monter la saison ou la course</translation>
    </message>
    <message>
        <source>Move season or race &amp;down</source>
        <translation>D&amp;escendre la saison ou la course</translation>
    </message>
    <message>
        <source>Where the athlete &amp;loses time…</source>
        <translation>&amp;Où l’athlète perd du temps…</translation>
    </message>
    <message>
        <source>S&amp;eason of the athlete</source>
        <translation>Saison &amp;de l’athlète</translation>
    </message>
    <message>
        <source>Compute all a&amp;verages again</source>
        <translation>Recalculer &amp;toutes les moyennes</translation>
    </message>
    <message>
        <source>&amp;Find an athlete</source>
        <translation>Chercher &amp;un athlète</translation>
    </message>
    <message>
        <source>Take &amp;results over…</source>
        <translation>Reprendre &amp;des résultats…</translation>
    </message>
    <message>
        <source>Cate&amp;gorization report…</source>
        <translation>Rapport de &amp;catégorisation…</translation>
    </message>
    <message>
        <source>Save the c&amp;hart…</source>
        <translation>Enregistrer &amp;le graphique…</translation>
    </message>
    <message>
        <source>&amp;Edit the cell</source>
        <translation>&amp;Modifier la cellule</translation>
    </message>
    <message>
        <source>&amp;Remove what is chosen</source>
        <translation>&amp;Retirer ce qui est choisi</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Athlètes</translation>
    </message>
    <message>
        <source>Selection %1</source>
        <translation>Sélection %1</translation>
    </message>
    <message>
        <source>Race analyzer</source>
        <translation>Analyse de course</translation>
    </message>
    <message>
        <source>Every split of a race side by side, coloured by rank.</source>
        <translation>Tous les intermédiaires d’une course côte à côte, colorés selon le rang.</translation>
    </message>
    <message>
        <source>Open races</source>
        <translation>Ouvrir des courses</translation>
    </message>
    <message>
        <source>Split files</source>
        <translation>Fichiers d’intermédiaires</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Pertes de temps</translation>
    </message>
    <message>
        <source>Where each run lost its time, and what comes back.</source>
        <translation>Où chaque manche a perdu son temps, et ce qui revient.</translation>
    </message>
    <message>
        <source>Open split files</source>
        <translation>Ouvrir des fichiers d’intermédiaires</translation>
    </message>
    <message>
        <source>Split taking</source>
        <translation>Temps intermédiaires</translation>
    </message>
    <message>
        <source>Time every run from its video, exact to the frame.</source>
        <translation>Chronométrer chaque manche sur sa vidéo, à l’image près.</translation>
    </message>
    <message>
        <source>Open a folder of videos</source>
        <translation>Ouvrir un dossier de vidéos</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>A folder of films played, compared, tagged and cut.</source>
        <translation>Un dossier de films lus, comparés, étiquetés, coupés.</translation>
    </message>
    <message>
        <source>Open a folder of films</source>
        <translation>Ouvrir un dossier de films</translation>
    </message>
    <message>
        <source>Kayak cross</source>
        <translation>Kayak cross</translation>
    </message>
    <message>
        <source>Time trials, heats and attacks of a cross race, from video.</source>
        <translation>Contre-la-montre, séries et attaques d’un cross, sur vidéo.</translation>
    </message>
    <message>
        <source>Open a kayak cross</source>
        <translation>Ouvrir un kayak cross</translation>
    </message>
    <message>
        <source>Compare films</source>
        <translation>Comparer des films</translation>
    </message>
    <message>
        <source>Two to four runs in one picture, as a film.</source>
        <translation>Deux à quatre manches dans une image, en un film.</translation>
    </message>
    <message>
        <source>Comparisons of films</source>
        <translation>Comparaisons de films</translation>
    </message>
    <message>
        <source>Comparisons</source>
        <translation>Comparaisons</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Comparaison</translation>
    </message>
    <message>
        <source>Team</source>
        <translation>Équipe</translation>
    </message>
    <message>
        <source>Results of every athlete, season by season, and their category.</source>
        <translation>Résultats de chaque athlète, saison par saison, et leur catégorie.</translation>
    </message>
    <message>
        <source>Team results</source>
        <translation>Résultats d’équipe</translation>
    </message>
    <message>
        <source>Teams</source>
        <translation>Équipes</translation>
    </message>
    <message>
        <source>Selection races</source>
        <translation>Courses de sélection</translation>
    </message>
    <message>
        <source>Who is selected, by which results, and why.</source>
        <translation>Qui est sélectionné, par quels résultats, et pourquoi.</translation>
    </message>
    <message>
        <source>Planning</source>
        <translation>Planification</translation>
    </message>
    <message>
        <source>Seasons, weeks and sessions, heart, gym and goals of a group.</source>
        <translation>Saisons, semaines et séances, cœur, musculation et objectifs d’un groupe.</translation>
    </message>
    <message>
        <source>Plannings</source>
        <translation>Planifications</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>Lap, sprint and eight tests on the water, compared.</source>
        <translation>Tests par tours, de sprint et en huit sur l’eau, comparés.</translation>
    </message>
    <message>
        <source>Boat motion</source>
        <translation>Mouvement du bateau</translation>
    </message>
    <message>
        <source>Recordings of phone and watch over each other, and converted.</source>
        <translation>Enregistrements du téléphone et de la montre superposés, et convertis.</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>Ouvrir des enregistrements</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>Strokes, turns and segments of a recording, on a map.</source>
        <translation>Coups de pagaie, virages et segments d’un enregistrement.</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>Every gate, penalty and run of all seasons, by one question.</source>
        <translation>Chaque porte, pénalité et manche de toutes les saisons, par une seule question.</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>Chercher dans des fichiers</translation>
    </message>
    <message>
        <source>Which gates are touched, by whom, and what it cost.</source>
        <translation>Quelles portes sont touchées, par qui, et ce que cela a coûté.</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tableaux</translation>
    </message>
    <message>
        <source>Any list of results, sorted, tinted, reckoned with, and whose it is.</source>
        <translation>N’importe quelle liste de résultats, triée, teintée, calculée, et à qui elle appartient.</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>Ouvrir des listes</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listes</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Saison</translation>
    </message>
    <message>
        <source>How a team&apos;s athletes stand: trend, rivals, medals.</source>
        <translation>Où en sont les athlètes&#x202f;: tendance, rivaux, médailles.</translation>
    </message>
    <message>
        <source>Open a team</source>
        <translation>Ouvrir une équipe</translation>
    </message>
    <message>
        <source>Fetch films</source>
        <translation>Récupérer des films</translation>
    </message>
    <message>
        <source>The films of a race from a server, by the bibs of a start list.</source>
        <translation>Les films d’une course depuis un serveur, d’après les dossards d’une liste de départ.</translation>
    </message>
    <message>
        <source>Open a source of films</source>
        <translation>Ouvrir une source de films</translation>
    </message>
    <message>
        <source>Sources of films</source>
        <translation>Sources de films</translation>
    </message>
    <message>
        <source>Test session</source>
        <translation>Séance de tests</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>T&amp;est</translation>
    </message>
    <message>
        <source>New &amp;lap test</source>
        <translation>N&amp;ouveau test par tours</translation>
    </message>
    <message>
        <source>New &amp;sprint</source>
        <translation>&amp;Nouveau sprint</translation>
    </message>
    <message>
        <source>New &amp;eight test</source>
        <translation>Nouveau test &amp;en huit</translation>
    </message>
    <message>
        <source>&amp;Duplicate the test</source>
        <translation>Dupliquer &amp;le test</translation>
    </message>
    <message>
        <source>&amp;Previous test</source>
        <translation>Test &amp;précédent</translation>
    </message>
    <message>
        <source>Ne&amp;xt test</source>
        <translation>&amp;Test suivant</translation>
    </message>
    <message>
        <source>&amp;Compare with the athlete&apos;s other tests</source>
        <translation>Comparer &amp;aux autres tests de l’athlète</translation>
    </message>
    <message>
        <source>&amp;Tick every listed test</source>
        <translation>&amp;Cocher tous les tests listés</translation>
    </message>
    <message>
        <source>&amp;Untick all</source>
        <translation>Tout &amp;décocher</translation>
    </message>
    <message>
        <source>&amp;Values</source>
        <translation>&amp;Valeurs</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tableau</translation>
    </message>
    <message>
        <source>Charts by &amp;lap or stretch</source>
        <translation>Graphiques par tour &amp;ou tronçon</translation>
    </message>
    <message>
        <source>Charts by t&amp;urn</source>
        <translation>Graphiques &amp;par virage</translation>
    </message>
    <message>
        <source>Charts by &amp;stroke</source>
        <translation>Graphiques par coup &amp;de pagaie</translation>
    </message>
    <message>
        <source>&amp;List of tests</source>
        <translation>&amp;Liste des tests</translation>
    </message>
    <message>
        <source>Choose an &amp;athlete</source>
        <translation>&amp;Choisir un athlète</translation>
    </message>
    <message>
        <source>Take in from a split &amp;file…</source>
        <translation>Reprendre d’&amp;un fichier d’intermédiaires…</translation>
    </message>
    <message>
        <source>Take in from a &amp;recording…</source>
        <translation>Reprendre &amp;d’un enregistrement…</translation>
    </message>
    <message>
        <source>&amp;Export the table…</source>
        <translation>Exporter &amp;le tableau…</translation>
    </message>
    <message>
        <source>&amp;Copy the table</source>
        <translation>&amp;Copier le tableau</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Parcours</translation>
    </message>
    <message>
        <source>The course drawn: banks, gates, split lines and the lines of runs.</source>
        <translation>Le parcours dessiné&#x202f;: rives, portes, lignes intermédiaires et trajectoires des manches.</translation>
    </message>
    <message>
        <source>Draw the course of a race</source>
        <translation>Dessiner le parcours d’une course</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>Suivi</translation>
    </message>
    <message>
        <source>A boat followed through a film: its path and speed.</source>
        <translation>Un bateau suivi dans un film&#x202f;: trajectoire, vitesse.</translation>
    </message>
    <message>
        <source>Open films</source>
        <translation>Ouvrir des films</translation>
    </message>
    <message>
        <source>Slit picture</source>
        <translation>Image à fente</translation>
    </message>
    <message>
        <source>Every crossing of a line, as a finish camera shows it.</source>
        <translation>Chaque passage d’une ligne, comme une photo-finish.</translation>
    </message>
    <message>
        <source>Open films of a fixed camera</source>
        <translation>Ouvrir des films d’une caméra fixe</translation>
    </message>
    <message>
        <source>Share folders</source>
        <translation>Partager des dossiers</translation>
    </message>
    <message>
        <source>A folder the same here and on the team&apos;s own server.</source>
        <translation>Un dossier identique ici et sur le serveur de l’équipe.</translation>
    </message>
    <message>
        <source>Share a folder</source>
        <translation>Partager un dossier</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>Marqué</translation>
    </message>
    <message>
        <source>Proposal</source>
        <translation>Proposition</translation>
    </message>
    <message>
        <source>Confidence</source>
        <translation>Fiabilité</translation>
    </message>
    <message>
        <source>%1 s, %2</source>
        <translation>%1 s, %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#x202f;%</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manche</translation>
    </message>
    <message>
        <source>No boat was found that could be this run: look for it in the slit picture.</source>
        <translation>Aucun bateau trouvé qui puisse être cette manche&#x202f;: cherchez-le dans l’image à fente.</translation>
    </message>
    <message>
        <source>This run is marked here.</source>
        <translation>Cette manche est marquée ici.</translation>
    </message>
    <message>
        <source>Where the run is marked at this line, in seconds of the film</source>
        <translation>Où la manche est marquée sur cette ligne, en secondes du film</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>laissé de côté</translation>
    </message>
    <message>
        <source>→ new here</source>
        <translation>→ nouveau ici</translation>
    </message>
    <message>
        <source>← new there</source>
        <translation>← nouveau là-bas</translation>
    </message>
    <message>
        <source>→ changed here</source>
        <translation>→ modifié ici</translation>
    </message>
    <message>
        <source>← changed there</source>
        <translation>← modifié là-bas</translation>
    </message>
    <message>
        <source>↔ on both sides</source>
        <translation>↔ des deux côtés</translation>
    </message>
    <message>
        <source>✕ deleted here</source>
        <translation>✕ supprimé ici</translation>
    </message>
    <message>
        <source>✕ deleted there</source>
        <translation>✕ supprimé là-bas</translation>
    </message>
    <message>
        <source>Goes to the server</source>
        <translation>Va sur le serveur</translation>
    </message>
    <message>
        <source>Comes from the server</source>
        <translation>Vient du serveur</translation>
    </message>
    <message>
        <source>Goes to the server, in place of what it has</source>
        <translation>Va sur le serveur, à la place de ce qu’il a</translation>
    </message>
    <message>
        <source>Comes from the server, in place of what is here</source>
        <translation>Vient du serveur, à la place de ce qui est ici</translation>
    </message>
    <message>
        <source>Is compared; where both differ, both are kept</source>
        <translation>Est comparé&#x202f;; s’ils diffèrent, les deux sont conservés</translation>
    </message>
    <message>
        <source>Is deleted on the server where you tick it</source>
        <translation>Est supprimé sur le serveur si vous le cochez</translation>
    </message>
    <message>
        <source>Is deleted here where you tick it</source>
        <translation>Est supprimé ici si vous le cochez</translation>
    </message>
    <message>
        <source>%1 new here</source>
        <translation>%1 nouveaux ici</translation>
    </message>
    <message>
        <source>%1 new there</source>
        <translation>%1 nouveaux là-bas</translation>
    </message>
    <message>
        <source>%1 changed here</source>
        <translation>%1 modifiés ici</translation>
    </message>
    <message>
        <source>%1 changed there</source>
        <translation>%1 modifiés là-bas</translation>
    </message>
    <message>
        <source>%1 on both sides</source>
        <translation>%1 des deux côtés</translation>
    </message>
    <message>
        <source>%1 deleted here</source>
        <translation>%1 supprimés ici</translation>
    </message>
    <message>
        <source>%1 deleted there</source>
        <translation>%1 supprimés là-bas</translation>
    </message>
    <message>
        <source>Both sides are the same</source>
        <translation>Les deux côtés sont identiques</translation>
    </message>
    <message>
        <source>%1 shared</source>
        <translation>%1 partagés</translation>
    </message>
    <message>
        <source>%1 kept twice</source>
        <translation>%1 conservés en double</translation>
    </message>
    <message>
        <source>Fastest at %1 s of the film: %2 m/s.</source>
        <translation>Maximum à %1 s du film&#x202f;: %2 m/s.</translation>
    </message>
    <message>
        <source>Fastest at %1 s of the film: %2 m/s (a scale only: it holds near the two points and along their line).</source>
        <translation>Maximum à %1 s du film&#x202f;: %2 m/s (une échelle seulement&#x202f;: elle vaut près des deux points et le long de leur ligne).</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Steadied x</source>
        <translation>x stabilisé</translation>
    </message>
    <message>
        <source>Steadied y</source>
        <translation>y stabilisé</translation>
    </message>
    <message>
        <source>Across</source>
        <translation>En travers</translation>
    </message>
    <message>
        <source>Along</source>
        <translation>En long</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Score</translation>
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
        <translation>Tracez un cadre autour de ce qu’il faut suivre.</translation>
    </message>
    <message>
        <source>Click known points on the water for metres and speeds: the poles of two gates, or of one for a scale only.</source>
        <translation>Cliquez sur des points connus de l’eau pour les mètres et les vitesses&#x202f;: les fiches de deux portes, ou d’une seule pour une simple échelle.</translation>
    </message>
    <message>
        <source>There is no speed: the path is too short, or the camera&apos;s motion is not known.</source>
        <translation>Il n’y a pas de vitesse&#x202f;: la trajectoire est trop courte, ou le mouvement de la caméra est inconnu.</translation>
    </message>
    <message>
        <source>Uncertainty of the clicks</source>
        <translation>Incertitude des clics</translation>
    </message>
    <message>
        <source>✓ Done</source>
        <translation>✓ Fait</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>En cours…</translation>
    </message>
    <message>
        <source>Lists (*.csv *.tsv *.txt *.xlsx *.ods *.kvx *.kvtable);;All files (*)</source>
        <translation>Listes (*.csv *.tsv *.txt *.xlsx *.ods *.kvx *.kvtable);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>“%1” holds no runs. Nothing was imported.</source>
        <translation>«&#xa0;%1&#xa0;» ne contient aucune manche. Rien n’a été importé.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthleteDialog</name>
    <message>
        <source>Athlete</source>
        <translation>Athlète</translation>
    </message>
    <message>
        <source>SURNAME Name</source>
        <translation>NOM Prénom</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nom</translation>
    </message>
    <message>
        <source>&amp;Club</source>
        <translation>&amp;Club</translation>
    </message>
    <message>
        <source>&amp;Birth year</source>
        <translation>&amp;Année de naissance</translation>
    </message>
    <message>
        <source>&amp;Age group</source>
        <translation>Classe &amp;d’âge</translation>
    </message>
    <message>
        <source>Preselected, group %1</source>
        <translation>Présélectionné, groupe %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Bonus %1 (percent)</source>
        <translation>Bonus %1 (pour cent)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthleteList</name>
    <message>
        <source>Search athletes</source>
        <translation>Chercher des athlètes</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Saison</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>encore aucune</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthletePageDialog</name>
    <message>
        <source>Page of an athlete</source>
        <translation>Page d’un athlète</translation>
    </message>
    <message>
        <source>All races that are open</source>
        <translation>Toutes les courses ouvertes</translation>
    </message>
    <message>
        <source>Only the race of the run that is shown</source>
        <translation>Seulement la course de la manche affichée</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>A&amp;thlète</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;De</translation>
    </message>
    <message>
        <source>&amp;Preview and print…</source>
        <translation>&amp;Aperçu et impression…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>&amp;Enregistrer en PDF…</translation>
    </message>
    <message>
        <source>One A4 page: where time is lost on the %1, what to train, penalties.</source>
        <translation>Une page A4&#x202f;: où le temps est perdu sur la référence (%1), ce qu’il faut travailler, les pénalités.</translation>
    </message>
    <message>
        <source>Choose one of the athletes of the list.</source>
        <translation>Choisissez un des athlètes de la liste.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthletePages</name>
    <message>
        <source>Save the page of the athlete</source>
        <translation>Enregistrer la page de l’athlète</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documents PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The page cannot be written over a race that it is made from.</source>
        <translation>La page ne peut pas être écrite par-dessus une course dont elle est tirée.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthletePanel</name>
    <message>
        <source>Retired: left out of the categorization report</source>
        <translation>A arrêté&#x202f;: absent du rapport de catégorisation</translation>
    </message>
    <message>
        <source>Search athletes</source>
        <translation>Chercher des athlètes</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Toutes les catégories</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlète</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>Born</source>
        <translation>Naiss.</translation>
    </message>
    <message>
        <source>birth year</source>
        <translation>année de naissance</translation>
    </message>
    <message>
        <source>Boats</source>
        <translation>Bateaux</translation>
    </message>
    <message>
        <source>Ret.</source>
        <translation>Arr.</translation>
    </message>
    <message>
        <source>Retired</source>
        <translation>A arrêté</translation>
    </message>
    <message>
        <source>retirement</source>
        <translation>arrêt</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AttackForm</name>
    <message>
        <source>Passed</source>
        <translation>Passé</translation>
    </message>
    <message>
        <source>No end</source>
        <translation>Sans fin</translation>
    </message>
    <message>
        <source>Takes the end of the attack out</source>
        <translation>Enlève la fin de l’attaque</translation>
    </message>
    <message>
        <source>The attacker went past</source>
        <translation>L’attaquant est passé</translation>
    </message>
    <message>
        <source>Attacker</source>
        <translation>Attaquant</translation>
    </message>
    <message>
        <source>on</source>
        <translation>sur</translation>
    </message>
    <message>
        <source>attacker</source>
        <translation>attaquant</translation>
    </message>
    <message>
        <source>outcome of an attack</source>
        <translation>issue d’une attaque</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Côté</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>side of an attack</source>
        <translation>côté d’une attaque</translation>
    </message>
    <message>
        <source>place of an attack</source>
        <translation>lieu d’une attaque</translation>
    </message>
    <message>
        <source>comment on an attack</source>
        <translation>commentaire d’une attaque</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>Débute ici</translation>
    </message>
    <message>
        <source>The attack starts at this frame</source>
        <translation>L’attaque commence à cette image</translation>
    </message>
    <message>
        <source>End here</source>
        <translation>Finit ici</translation>
    </message>
    <message>
        <source>The attack ends at this frame</source>
        <translation>L’attaque finit à cette image</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Removes the attack</source>
        <translation>Retire l’attaque</translation>
    </message>
    <message>
        <source>?  %1</source>
        <translation>?  %1</translation>
    </message>
    <message>
        <source>unnamed</source>
        <translation>sans nom</translation>
    </message>
    <message>
        <source>Start %1</source>
        <translation>Début %1</translation>
    </message>
    <message>
        <source>End %1</source>
        <translation>Fin %1</translation>
    </message>
    <message>
        <source>defenders</source>
        <translation>défenseurs</translation>
    </message>
    <message>
        <source>%1 defends</source>
        <translation>%1 défend</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AveragesModel</name>
    <message>
        <source>Share of the runs with so many penalty seconds</source>
        <translation>Part des manches avec tant de secondes de pénalité</translation>
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
        <translation>Retard</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Sans pén.</translation>
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
        <translation>6 à 48 s</translation>
    </message>
    <message>
        <source>50 s and more</source>
        <translation>50 s et plus</translation>
    </message>
    <message>
        <source>All seasons</source>
        <translation>Toutes les saisons</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::BalanceView</name>
    <message>
        <source>Side unknown: nothing tells which side of the phone points to the bow. Name its mount in the menu Edit, and left and right are found.</source>
        <translation>Côté inconnu&#x202f;: rien ne dit quel côté du téléphone pointe vers l’avant. Nommez sa fixation dans le menu Édition&#x202f;: gauche et droite seront trouvées.</translation>
    </message>
    <message>
        <source>even</source>
        <translation>égal</translation>
    </message>
    <message>
        <source>left +%1 %</source>
        <translation>gauche +%1&#x202f;%</translation>
    </message>
    <message>
        <source>right +%1 %</source>
        <translation>droite +%1&#x202f;%</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Coups</translation>
    </message>
    <message>
        <source>Force (N)</source>
        <translation>Force (N)</translation>
    </message>
    <message>
        <source>Impulse (N·s)</source>
        <translation>Impulsion (N·s)</translation>
    </message>
    <message>
        <source>Power (W)</source>
        <translation>Puissance (W)</translation>
    </message>
    <message>
        <source>Water phase (s)</source>
        <translation>Phase aquatique (s)</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Differences under %1 % are no finding</source>
        <translation>Des différences de moins de %1&#x202f;% ne prouvent rien</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::BodyPanel</name>
    <message>
        <source>Body</source>
        <translation>Corps</translation>
    </message>
    <message>
        <source>body data</source>
        <translation>données corporelles</translation>
    </message>
    <message>
        <source>Add weight</source>
        <translation>Ajouter un poids</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>Body fat</source>
        <translation>Masse grasse</translation>
    </message>
    <message>
        <source>Resting heart rate</source>
        <translation>Fréquence cardiaque de repos</translation>
    </message>
    <message>
        <source>heart rate</source>
        <translation>fréquence cardiaque</translation>
    </message>
    <message>
        <source>Add heart rate</source>
        <translation>Ajouter une fréquence</translation>
    </message>
    <message>
        <source>Heart-rate variability</source>
        <translation>Variabilité de la fréquence cardiaque</translation>
    </message>
    <message>
        <source>variability</source>
        <translation>variabilité</translation>
    </message>
    <message>
        <source>Add measurement</source>
        <translation>Ajouter une mesure</translation>
    </message>
    <message>
        <source>Import list…</source>
        <translation>Importer une liste…</translation>
    </message>
    <message>
        <source>A list with a header: Date and one or more of AVNN, SDNN, rMSSD, pNN50, LF, HF. It can also be dropped here.</source>
        <translation>Une liste avec des titres&#x202f;: Date et un ou plusieurs de AVNN, SDNN, rMSSD, pNN50, LF, HF. Elle peut aussi être déposée ici.</translation>
    </message>
    <message>
        <source>Index of the chart</source>
        <translation>Indice du graphique</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>&amp;Indice</translation>
    </message>
    <message>
        <source>Choose an athlete.</source>
        <translation>Choisissez un athlète.</translation>
    </message>
    <message>
        <source>Add a season for this athlete first.</source>
        <translation>Ajoutez d’abord une saison pour cet athlète.</translation>
    </message>
    <message>
        <source>No weight of this season yet.
Press Insert to add today&apos;s.</source>
        <translation>Encore aucun poids cette saison.
Appuyez sur Inser pour ajouter celui d’aujourd’hui.</translation>
    </message>
    <message>
        <source>No heart rate of this season yet.
Press Insert to add this morning&apos;s.</source>
        <translation>Encore aucune fréquence cardiaque cette saison.
Appuyez sur Inser pour ajouter celle de ce matin.</translation>
    </message>
    <message>
        <source>No measurement of this season yet.
Press Insert to add one, or import a list.</source>
        <translation>Encore aucune mesure cette saison.
Appuyez sur Inser pour en ajouter une, ou importez une liste.</translation>
    </message>
    <message>
        <source>bpm</source>
        <translation>bpm</translation>
    </message>
    <message>
        <source>Add a few mornings&apos; heart rates to see the mean of the week against what is usual.</source>
        <translation>Ajoutez les fréquences cardiaques de quelques matins pour voir la moyenne de la semaine face à l’habituel.</translation>
    </message>
    <message>
        <source>No %1 of this season. Add measurements, import a list or choose another index.</source>
        <translation>Pas de %1 cette saison. Ajoutez des mesures, importez une liste ou choisissez un autre indice.</translation>
    </message>
    <message>
        <source>Import variability</source>
        <translation>Importer la variabilité</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt *.tsv);;All files (*)</source>
        <translation>Listes (*.csv *.txt *.tsv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>import of variability</source>
        <translation>import de variabilité</translation>
    </message>
    <message>
        <source>The list cannot be read: %1</source>
        <translation>La liste ne peut pas être lue&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CameraPage</name>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>Lag</source>
        <translation>Décal.</translation>
    </message>
    <message>
        <source>Off by</source>
        <translation>Dévie de</translation>
    </message>
    <message>
        <source>Attach a film…</source>
        <translation>Joindre un film…</translation>
    </message>
    <message>
        <source>Beside the film</source>
        <translation>À côté du film</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>Détacher</translation>
    </message>
    <message>
        <source>Takes the film shown beside off this run</source>
        <translation>Retire de cette manche le film affiché à côté</translation>
    </message>
    <message>
        <source>Attach it to every run</source>
        <translation>Joindre à chaque manche</translation>
    </message>
    <message>
        <source>A fixed camera often films the whole race in one go</source>
        <translation>Une caméra fixe filme souvent toute la course d’une traite</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Attach the film of a camera that stood at the course.</source>
        <translation>Joignez le film d’une caméra placée au bord du parcours.</translation>
    </message>
    <message>
        <source>Choose a camera to see its film beside this one.</source>
        <translation>Choisissez une caméra pour voir son film à côté de celui-ci.</translation>
    </message>
    <message>
        <source>Find one moment on both films, the fixed camera&apos;s alone with Alt+PgUp and Alt+PgDown. M marks it.</source>
        <translation>Trouvez un même moment sur les deux films, celui de la caméra fixe seul avec Alt+PgPréc et Alt+PgSuiv. M le marque.</translation>
    </message>
    <message>
        <source>In step: the fixed camera&apos;s film is %1 s ahead.</source>
        <translation>Synchronisé&#x202f;: le film de la caméra fixe est en avance de %1 s.</translation>
    </message>
    <message>
        <source>Placed by the dates in the two films, to a second or two.</source>
        <translation>Placé d’après les dates des deux films, à une ou deux secondes près.</translation>
    </message>
    <message>
        <source>Not in step yet.</source>
        <translation>Pas encore synchronisé.</translation>
    </message>
    <message>
        <source>Its film has no date: moments are kept without the time of its clock.</source>
        <translation>Son film n’a pas de date&#x202f;: les moments sont gardés sans l’heure de son horloge.</translation>
    </message>
    <message>
        <source>fixed camera detached</source>
        <translation>caméra fixe détachée</translation>
    </message>
    <message>
        <source>fixed camera for every run</source>
        <translation>caméra fixe pour chaque manche</translation>
    </message>
    <message>
        <source>The film of the fixed camera shows no frame.</source>
        <translation>Le film de la caméra fixe n’affiche aucune image.</translation>
    </message>
    <message>
        <source>moment on both films</source>
        <translation>moment sur les deux films</translation>
    </message>
    <message>
        <source>Same moment</source>
        <translation>Même moment</translation>
    </message>
    <message>
        <source>moment removed</source>
        <translation>moment retiré</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Chart</name>
    <message>
        <source>1 run</source>
        <translation>1 manche</translation>
    </message>
    <message>
        <source> · %1 of %2 selected runs</source>
        <translation> · %1 sur %2 manches sélectionnées</translation>
    </message>
    <message>
        <source>The filter matches nobody. Change it to see runs again.</source>
        <translation>Le filtre ne correspond à personne. Changez-le pour revoir des manches.</translation>
    </message>
    <message>
        <source>Open a race to see its charts.</source>
        <translation>Ouvrez une course pour voir ses graphiques.</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n manche</numerusform>
            <numerusform>%n manches</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ChartPanel</name>
    <message>
        <source>Charts</source>
        <translation>Graphiques</translation>
    </message>
    <message>
        <source>&amp;Reference</source>
        <translation>&amp;Référence</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>What the runs are held against</source>
        <translation>Ce à quoi les manches sont comparées</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Show everything again (or double click)</source>
        <translation>Tout afficher à nouveau (ou double-clic)</translation>
    </message>
    <message>
        <source>Save chart…</source>
        <translation>Enregistrer le graphique…</translation>
    </message>
    <message>
        <source>Save as PNG, SVG or CSV</source>
        <translation>Enregistrer en PNG, SVG ou CSV</translation>
    </message>
    <message>
        <source>Best run</source>
        <translation>Meilleure manche</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Médiane</translation>
    </message>
    <message>
        <source>Ideal run</source>
        <translation>Manche idéale</translation>
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
        <translation>Déroulement de la course</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>Moyennes</translation>
    </message>
    <message>
        <source>&amp;All seasons</source>
        <translation>&amp;Toutes les saisons</translation>
    </message>
    <message>
        <source>The season chart shows every season, not the chosen one alone</source>
        <translation>Le graphique montre toutes les saisons, pas seulement celle choisie</translation>
    </message>
    <message>
        <source>Save chart…</source>
        <translation>Enregistrer le graphique…</translation>
    </message>
    <message>
        <source>As a picture (PNG, SVG) or as CSV (Ctrl+E)</source>
        <translation>En image (PNG, SVG) ou en CSV (Ctrl+E)</translation>
    </message>
    <message>
        <source>The results of an athlete stand here as charts.</source>
        <translation>Les résultats d’un athlète apparaissent ici en graphiques.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>all seasons</source>
        <translation>toutes les saisons</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ChartView</name>
    <message>
        <source>No test yet</source>
        <translation>Pas encore de test</translation>
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
        <translation>Inter %1 (s)</translation>
    </message>
    <message>
        <source>Total (s)</source>
        <translation>Total (s)</translation>
    </message>
    <message>
        <source>Standard deviation (s)</source>
        <translation>Écart-type (s)</translation>
    </message>
    <message>
        <source>Laps</source>
        <translation>Tours</translation>
    </message>
    <message>
        <source>Turns</source>
        <translation>Virages</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Coups</translation>
    </message>
    <message>
        <source>Stretches</source>
        <translation>Tronçons</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ClipPair</name>
    <message>
        <source>This run has no film.</source>
        <translation>Cette manche n’a pas de film.</translation>
    </message>
    <message>
        <source>The film is not there:
%1</source>
        <translation>Le film n’est pas là&#x202f;:
%1</translation>
    </message>
    <message>
        <source>Play or pause the clips</source>
        <translation>Lire les extraits ou mettre en pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Play the clips from their beginnings</source>
        <translation>Lire les extraits depuis leur début</translation>
    </message>
    <message>
        <source>From the start</source>
        <translation>Depuis le départ</translation>
    </message>
    <message>
        <source>One frame back in the clips</source>
        <translation>Une image en arrière dans les extraits</translation>
    </message>
    <message>
        <source>Frame back</source>
        <translation>Image préc.</translation>
    </message>
    <message>
        <source>One frame forward in the clips</source>
        <translation>Une image en avant dans les extraits</translation>
    </message>
    <message>
        <source>Frame on</source>
        <translation>Image suiv.</translation>
    </message>
    <message>
        <source>Clips in slow motion</source>
        <translation>Extraits au ralenti</translation>
    </message>
    <message>
        <source>Slow motion</source>
        <translation>Ralenti</translation>
    </message>
    <message>
        <source>Clips slower</source>
        <translation>Extraits plus lents</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Plus lent</translation>
    </message>
    <message>
        <source>Clips faster</source>
        <translation>Extraits plus rapides</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Plus vite</translation>
    </message>
    <message>
        <source>Clips at normal speed</source>
        <translation>Extraits à vitesse normale</translation>
    </message>
    <message>
        <source>Normal speed</source>
        <translation>Vitesse normale</translation>
    </message>
    <message>
        <source>Repeat the clips</source>
        <translation>Répéter les extraits</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Répéter</translation>
    </message>
    <message>
        <source>%1 · %2 s, at its end</source>
        <translation>%1 · %2 s, à sa fin</translation>
    </message>
    <message>
        <source>%1 · %2 of %3 s</source>
        <translation>%1 · %2 sur %3 s</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ColumnTable</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Copy what is selected</source>
        <translation>Copier &amp;la sélection</translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation>&amp;Enregistrer en CSV…</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>C&amp;olonnes</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Enregistrer le tableau</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Texte séparé par des points-virgules (*.csv)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CommandPalette</name>
    <message>
        <source>Search</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>An action, a file, an athlete</source>
        <translation>Une action, un fichier, un athlète</translation>
    </message>
    <message>
        <source>Nothing here is called “%1”.</source>
        <translation>Rien ici ne s’appelle «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Searched: actions, recent files and the names in this window.</source>
        <translation>Recherché&#x202f;: actions, fichiers récents et noms dans cette fenêtre.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CommentPage</name>
    <message>
        <source>score</source>
        <translation>score</translation>
    </message>
    <message>
        <source>Show the coach&apos;s comments</source>
        <translation>Afficher les commentaires de l’entraîneur</translation>
    </message>
    <message>
        <source>comment on split %1</source>
        <translation>commentaire de l’intermédiaire %1</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Inter</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>athlete</source>
        <translation>athlète</translation>
    </message>
    <message>
        <source>coach</source>
        <translation>entraîneur</translation>
    </message>
    <message>
        <source>Scores</source>
        <translation>Scores</translation>
    </message>
    <message>
        <source>Give-ups</source>
        <translation>Abandons</translation>
    </message>
    <message>
        <source>team radio</source>
        <translation>radio d’équipe</translation>
    </message>
    <message>
        <source>team radio removed</source>
        <translation>radio d’équipe retirée</translation>
    </message>
    <message>
        <source>team radio moved</source>
        <translation>radio d’équipe déplacée</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareDocument</name>
    <message>
        <source>It is no comparison of films, or a damaged one: %1</source>
        <translation>Ce n’est pas une comparaison de films, ou elle est abîmée&#x202f;: %1</translation>
    </message>
    <message>
        <source>1 film</source>
        <translation>1 film</translation>
    </message>
    <message numerus="yes">
        <source>%n films</source>
        <translation>
            <numerusform>%n film</numerusform>
            <numerusform>%n films</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareFilmsPanel</name>
    <message>
        <source>In it</source>
        <translation>Dedans</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>It is not marked from the start to a split.</source>
        <translation>Il n’est pas marqué du départ à un intermédiaire.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Name in the film</source>
        <translation>Nom dans le film</translation>
    </message>
    <message>
        <source>name in the film</source>
        <translation>nom dans le film</translation>
    </message>
    <message>
        <source>In place of that of the split file.</source>
        <translation>À la place de celui du fichier d’intermédiaires.</translation>
    </message>
    <message>
        <source>category in the film</source>
        <translation>catégorie dans le film</translation>
    </message>
    <message>
        <source>Starts at [s]</source>
        <translation>Départ à [s]</translation>
    </message>
    <message>
        <source>The second of the film at which a run without marks starts.</source>
        <translation>La seconde du film où démarre une manche sans marques.</translation>
    </message>
    <message>
        <source>marked</source>
        <translation>marqué</translation>
    </message>
    <message>
        <source>The start is a second of the film, 0 to 86400</source>
        <translation>Le départ est une seconde du film, de 0 à 86400</translation>
    </message>
    <message>
        <source>start of a film</source>
        <translation>départ d’un film</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Find a name, a category, a film…</source>
        <translation>Chercher un nom, une catégorie, un film…</translation>
    </message>
    <message>
        <source>Add split files or films, then tick the two to four that are compared.</source>
        <translation>Ajoutez des fichiers d’intermédiaires ou des films, puis cochez les deux à quatre à comparer.</translation>
    </message>
    <message>
        <source>Add s&amp;plit files…</source>
        <translation>Ajouter des f&amp;ichiers d’intermédiaires…</translation>
    </message>
    <message>
        <source>Add &amp;films…</source>
        <translation>Ajouter &amp;des films…</translation>
    </message>
    <message>
        <source>In the composed film</source>
        <translation>Dans le film composé</translation>
    </message>
    <message>
        <source>No film is chosen yet.</source>
        <translation>Aucun film n’est encore choisi.</translation>
    </message>
    <message>
        <source>&amp;Take it out</source>
        <translation>Le &amp;retirer</translation>
    </message>
    <message>
        <source>Move it &amp;up</source>
        <translation>&amp;Le monter</translation>
    </message>
    <message>
        <source>Move it &amp;down</source>
        <translation>Le &amp;descendre</translation>
    </message>
    <message>
        <source>Four films are the most. Take one out first.</source>
        <translation>Quatre films au plus. Retirez-en d’abord un.</translation>
    </message>
    <message>
        <source>choice of a film</source>
        <translation>choix d’un film</translation>
    </message>
    <message>
        <source>removal of a film</source>
        <translation>retrait d’un film</translation>
    </message>
    <message>
        <source>order of the films</source>
        <translation>ordre des films</translation>
    </message>
    <message>
        <source>path of a film</source>
        <translation>trajectoire d’un film</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Trajectoire</translation>
    </message>
    <message>
        <source>Draws the path that was followed on it in the window Tracking.</source>
        <translation>Dessine la trajectoire qui y a été suivie dans la fenêtre Suivi.</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Suivre</translation>
    </message>
    <message>
        <source>Shows it twice as large, round that path.</source>
        <translation>Le montre deux fois plus grand, autour de cette trajectoire.</translation>
    </message>
    <message>
        <source>Its place in the composed film. Enter chooses it or takes it out.</source>
        <translation>Sa place dans le film composé. Entrée le choisit ou le retire.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareForm</name>
    <message>
        <source>the start</source>
        <translation>le départ</translation>
    </message>
    <message>
        <source>&amp;Layout</source>
        <translation>&amp;Disposition</translation>
    </message>
    <message>
        <source>Line at</source>
        <translation>Ligne à</translation>
    </message>
    <message>
        <source>0 left, 1 right</source>
        <translation>0 à gauche, 1 à droite</translation>
    </message>
    <message>
        <source>&amp;Together</source>
        <translation>&amp;Ensemble</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Inter</translation>
    </message>
    <message>
        <source>Sho&amp;wn</source>
        <translation>&amp;Affiché</translation>
    </message>
    <message>
        <source>From split</source>
        <translation>De l’intermédiaire</translation>
    </message>
    <message>
        <source>To split</source>
        <translation>À l’intermédiaire</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>À</translation>
    </message>
    <message>
        <source>Spee&amp;d</source>
        <translation>&amp;Vitesse</translation>
    </message>
    <message>
        <source>Slow motion has no sound.</source>
        <translation>Le ralenti n’a pas de son.</translation>
    </message>
    <message>
        <source>To be read in it</source>
        <translation>À y lire</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>&amp;Noms</translation>
    </message>
    <message>
        <source>&amp;Clock</source>
        <translation>&amp;Chrono</translation>
    </message>
    <message>
        <source>Split times and gaps</source>
        <translation>Temps intermédiaires et écarts</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Pénalités</translation>
    </message>
    <message>
        <source>Chart of the gap</source>
        <translation>Graphique de l’écart</translation>
    </message>
    <message>
        <source>The file</source>
        <translation>Le fichier</translation>
    </message>
    <message>
        <source>Si&amp;ze</source>
        <translation>&amp;Taille</translation>
    </message>
    <message>
        <source>1080 × 1920, upright</source>
        <translation>1080 × 1920, vertical</translation>
    </message>
    <message>
        <source>720 × 1280, upright</source>
        <translation>720 × 1280, vertical</translation>
    </message>
    <message>
        <source>1080 × 1080, square</source>
        <translation>1080 × 1080, carré</translation>
    </message>
    <message>
        <source>For sending</source>
        <translation>Pour l’envoi</translation>
    </message>
    <message>
        <source>At most 1280 × 720 and coarser: a small file.</source>
        <translation>Au plus 1280 × 720 et moins fin&#x202f;: un petit fichier.</translation>
    </message>
    <message>
        <source>S&amp;ound of film</source>
        <translation>&amp;Son du film</translation>
    </message>
    <message>
        <source>None in slow motion, nor while that film waits or is stretched.</source>
        <translation>Aucun au ralenti, ni tant que ce film attend ou est étiré.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareView</name>
    <message>
        <source>Preview of the composed film</source>
        <translation>Aperçu du film composé</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareWindow</name>
    <message>
        <source>Compare films</source>
        <translation>Comparer des films</translation>
    </message>
    <message>
        <source>Compose the &amp;film…</source>
        <translation>&amp;Composer le film…</translation>
    </message>
    <message>
        <source>Add s&amp;plit files…</source>
        <translation>Ajouter des f&amp;ichiers d’intermédiaires…</translation>
    </message>
    <message>
        <source>Add &amp;films…</source>
        <translation>Ajouter &amp;des films…</translation>
    </message>
    <message>
        <source>&amp;Compose the film…</source>
        <translation>&amp;Composer le film…</translation>
    </message>
    <message>
        <source>Films being composed: &amp;jobs</source>
        <translation>Films en composition&#x202f;: &amp;tâches</translation>
    </message>
    <message>
        <source>&amp;Find a run or a film</source>
        <translation>Chercher une &amp;manche ou un film</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>&amp;Lire ou mettre en pause</translation>
    </message>
    <message>
        <source>From the &amp;beginning</source>
        <translation>&amp;Depuis le début</translation>
    </message>
    <message>
        <source>One frame ba&amp;ck</source>
        <translation>U&amp;ne image en arrière</translation>
    </message>
    <message>
        <source>One frame &amp;on</source>
        <translation>Une &amp;image en avant</translation>
    </message>
    <message>
        <source>P&amp;art</source>
        <translation>&amp;Partie</translation>
    </message>
    <message>
        <source>&amp;Begin here</source>
        <translation>&amp;Commencer ici</translation>
    </message>
    <message>
        <source>&amp;End here</source>
        <translation>Finir &amp;ici</translation>
    </message>
    <message>
        <source>The &amp;whole run</source>
        <translation>&amp;La manche entière</translation>
    </message>
    <message>
        <source>part that is shown</source>
        <translation>partie affichée</translation>
    </message>
    <message>
        <source>&amp;Align the second film by two points</source>
        <translation>Aligner le &amp;deuxième film par deux points</translation>
    </message>
    <message>
        <source>&amp;Forget the points</source>
        <translation>Oublier les &amp;points</translation>
    </message>
    <message>
        <source>The film could not be composed: %1</source>
        <translation>Le film n’a pas pu être composé&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 is there. %2</source>
        <translation>%1 est là. %2</translation>
    </message>
    <message>
        <source>Add the runs of split files</source>
        <translation>Ajouter les manches de fichiers d’intermédiaires</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Fichiers d’intermédiaires (*.kvx);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Add films</source>
        <translation>Ajouter des films</translation>
    </message>
    <message>
        <source>Films (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;All files (*)</source>
        <translation>Films (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Tick two to four films to compare them.</source>
        <translation>Cochez deux à quatre films pour les comparer.</translation>
    </message>
    <message>
        <source>Tick one more film to compare it with.</source>
        <translation>Cochez un film de plus auquel le comparer.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Four films are the most: these are the first four</source>
        <translation>Quatre films au plus&#x202f;: voici les quatre premiers</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>%1 of %2 s</source>
        <translation>%1 sur %2 s</translation>
    </message>
    <message>
        <source>Two films are aligned: choose two.</source>
        <translation>On aligne deux films&#x202f;: choisissez-en deux.</translation>
    </message>
    <message>
        <source>points that were forgotten</source>
        <translation>points oubliés</translation>
    </message>
    <message>
        <source>alignment by two points</source>
        <translation>alignement par deux points</translation>
    </message>
    <message>
        <source>Compose the film</source>
        <translation>Composer le film</translation>
    </message>
    <message>
        <source>Films (*.mp4)</source>
        <translation>Films (*.mp4)</translation>
    </message>
    <message>
        <source>file of the film</source>
        <translation>fichier du film</translation>
    </message>
    <message>
        <source>Composing: %1, %2 more</source>
        <translation>Composition&#x202f;: %1, %2 de plus</translation>
    </message>
    <message>
        <source>Composing: %1</source>
        <translation>Composition&#x202f;: %1</translation>
    </message>
    <message>
        <source>Film %1</source>
        <translation>Film %1</translation>
    </message>
    <message>
        <source>Click the same two things in both films, such as the poles of a gate. Escape gives it up.</source>
        <translation>Cliquez les deux mêmes choses dans les deux films, par exemple les fiches d’une porte. Échap abandonne.</translation>
    </message>
    <message>
        <source>Two runs or films make a comparison: drop them here, or add them with Ctrl+Shift+O and Ctrl+I.</source>
        <translation>Il faut deux manches ou films pour comparer : déposez-les ici, ou ajoutez-les avec Ctrl+Maj+O et Ctrl+I.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ComparisonPanel</name>
    <message>
        <source>%1 of %2 (%3–%4 %)</source>
        <translation>%1 sur %2 (%3–%4&#x202f;%)</translation>
    </message>
    <message>
        <source>Behind the winners in the &amp;phase</source>
        <translation>&amp;Derrière les vainqueurs dans la phase</translation>
    </message>
    <message>
        <source>Nobody of the team races in this category.</source>
        <translation>Personne de l’équipe ne court dans cette catégorie.</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlète</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Courses</translation>
    </message>
    <message>
        <source>Behind, %</source>
        <translation>Retard,&#x202f;%</translation>
    </message>
    <message>
        <source>Median behind the winners of the phase, without missed gates</source>
        <translation>Médiane du retard sur les vainqueurs de la phase, sans portes manquées</translation>
    </message>
    <message>
        <source>of runs</source>
        <translation>manches</translation>
    </message>
    <message>
        <source>Within, %</source>
        <translation>Dispersion,&#x202f;%</translation>
    </message>
    <message>
        <source>How much the runs vary by chance</source>
        <translation>De combien les manches varient par hasard</translation>
    </message>
    <message>
        <source>A year, %</source>
        <translation>Par an,&#x202f;%</translation>
    </message>
    <message>
        <source>Trend behind the winners, over all phases</source>
        <translation>Tendance derrière les vainqueurs, toutes phases</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendance</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>trop peu</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Médailles</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finales</translation>
    </message>
    <message>
        <source>The athletes year by year: %1</source>
        <translation>Les athlètes année par année&#x202f;: %1</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Median behind the winner, %</source>
        <translation>Médiane du retard sur le vainqueur,&#x202f;%</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CostPanel</name>
    <message>
        <source>%1 A medal.</source>
        <translation>%1 Une médaille.</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Équipage</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Race</source>
        <translation>Course</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Porte</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
    <message>
        <source>2 for a touch, 50 for a missed gate</source>
        <translation>2 pour une touche, 50 pour une porte manquée</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Rang</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>En réalité</translation>
    </message>
    <message>
        <source>of</source>
        <translation>sur</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Places</translation>
    </message>
    <message>
        <source>That it cost</source>
        <translation>Ce que cela a coûté</translation>
    </message>
    <message>
        <source>Without it</source>
        <translation>Sans elle</translation>
    </message>
    <message>
        <source>A missed gate also saved paddling, which is not taken back here.</source>
        <translation>Une porte manquée a aussi épargné de la navigation, ce qui n’est pas corrigé ici.</translation>
    </message>
    <message>
        <source>Show &amp;all</source>
        <translation>&amp;Tout afficher</translation>
    </message>
    <message>
        <source>No penalty of a whole run is known by gate.</source>
        <translation>Aucune pénalité d’une manche complète n’est connue par porte.</translation>
    </message>
    <message>
        <source>Open the run at this section</source>
        <translation>Ouvrir la manche à ce secteur</translation>
    </message>
    <message>
        <source>In split taking, where the section of the gate begins</source>
        <translation>Dans la prise de temps intermédiaires, là où commence le secteur de la porte</translation>
    </message>
    <message>
        <source>Only gate %1</source>
        <translation>Seulement la porte %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseCanvas</name>
    <message>
        <source>Drawing of the course</source>
        <translation>Dessin du parcours</translation>
    </message>
    <message>
        <source>Hold the button down and draw along the water.</source>
        <translation>Maintenez le bouton et dessinez le long de l’eau.</translation>
    </message>
    <message>
        <source>course</source>
        <translation>parcours</translation>
    </message>
    <message>
        <source>All %1 gates of the race are drawn. Race and course says how many there are.</source>
        <translation>Les %1 portes de la course sont toutes dessinées. Leur nombre se règle dans Course et parcours.</translation>
    </message>
    <message>
        <source>All %1 splits of the race are drawn. Race and course says how many there are.</source>
        <translation>Les %1 intermédiaires de la course sont tous dessinés. Leur nombre se règle dans Course et parcours.</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 retiré</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseDialog</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Portes</translation>
    </message>
    <message>
        <source>Race and course</source>
        <translation>Course et parcours</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Compétition</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Séance</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Eau</translation>
    </message>
    <message>
        <source>Technique</source>
        <translation>Technique</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Such as 4 8 12</source>
        <translation>Par exemple 4 8 12</translation>
    </message>
    <message>
        <source>Share the gates &amp;evenly</source>
        <translation>&amp;Répartir les portes également</translation>
    </message>
    <message>
        <source>&amp;Gates</source>
        <translation>&amp;Portes</translation>
    </message>
    <message>
        <source>&amp;Upstream gates</source>
        <translation>Portes &amp;en remontée</translation>
    </message>
    <message>
        <source>&amp;Splits</source>
        <translation>&amp;Intermédiaires</translation>
    </message>
    <message>
        <source>Section %1: </source>
        <translation>Secteur %1&#x202f;: </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseEditor</name>
    <message>
        <source>Photo or plan of the course</source>
        <translation>Photo ou plan du parcours</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg);;All files (*)</source>
        <translation>Images (*.png *.jpg *.jpeg);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Words there</source>
        <translation>Mots à cet endroit</translation>
    </message>
    <message>
        <source>Draw the course</source>
        <translation>Dessiner le parcours</translation>
    </message>
    <message>
        <source>The picture of the race cannot be drawn upon: %1 It stays as long as nothing is drawn.</source>
        <translation>On ne peut pas dessiner sur l’image de la course&#x202f;: %1 Elle reste tant que rien n’est dessiné.</translation>
    </message>
    <message>
        <source>Tab next part · arrows move it, Shift+arrows far · Alt+←/→ turn · PgDn its points · Delete · Insert puts one in the middle · Ctrl+Z undo, Ctrl+Shift+Z redo</source>
        <translation>Tab partie suivante · les flèches la déplacent, Maj+flèches loin · Alt+←/→ tourner · PgSuiv ses points · Suppr · Inser en met un au milieu · Ctrl+Z annuler, Ctrl+Maj+Z rétablir</translation>
    </message>
    <message>
        <source>Wheel, + and − zoom · 0 shows all · drag with Space or the middle button moves the view</source>
        <translation>Molette, + et − zooment · 0 montre tout · glisser avec Espace ou le bouton du milieu déplace la vue</translation>
    </message>
    <message>
        <source>&amp;Hold and move</source>
        <translation>&amp;Saisir et déplacer</translation>
    </message>
    <message>
        <source>&amp;Gate</source>
        <translation>P&amp;orte</translation>
    </message>
    <message>
        <source>&amp;Split line</source>
        <translation>&amp;Ligne intermédiaire</translation>
    </message>
    <message>
        <source>&amp;Bank</source>
        <translation>&amp;Rive</translation>
    </message>
    <message>
        <source>&amp;Line of a run</source>
        <translation>Trajectoire &amp;d’une manche</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Texte</translation>
    </message>
    <message>
        <source>&amp;Photo below…</source>
        <translation>&amp;Photo au-dessous…</translation>
    </message>
    <message>
        <source>Only whit&amp;e below</source>
        <translation>&amp;Seulement du blanc au-dessous</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>photo</translation>
    </message>
    <message>
        <source>white</source>
        <translation>blanc</translation>
    </message>
    <message>
        <source>Leave the course as it was? What was drawn is lost.</source>
        <translation>Laisser le parcours tel qu’il était&#x202f;? Ce qui a été dessiné est perdu.</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>Le laisser</translation>
    </message>
    <message>
        <source>Drag a part, or one of its points. The poles of a gate turn about each other.</source>
        <translation>Faites glisser un élément, ou un de ses points. Les fiches d’une porte tournent l’une autour de l’autre.</translation>
    </message>
    <message>
        <source>Click where a gate hangs; hold the button and drag its right pole round.</source>
        <translation>Cliquez là où pend une porte&#x202f;; maintenez le bouton et tournez sa fiche droite.</translation>
    </message>
    <message>
        <source>Drag from bank to bank where the split is taken.</source>
        <translation>Tracez d’une rive à l’autre là où le temps intermédiaire est pris.</translation>
    </message>
    <message>
        <source>Draw along the bank with the button held down.</source>
        <translation>Dessinez le long de la rive en maintenant le bouton.</translation>
    </message>
    <message>
        <source>Draw the way of a boat with the button held down, and name it at the right.</source>
        <translation>Dessinez le trajet d’un bateau en maintenant le bouton, puis nommez-le à droite.</translation>
    </message>
    <message>
        <source>Click where words are to stand.</source>
        <translation>Cliquez là où le texte doit se trouver.</translation>
    </message>
    <message>
        <source>It has %1 MB. Up to 40 MB can be read; save it smaller first.</source>
        <translation>Elle fait %1 Mo. On peut en lire jusqu’à 40 Mo&#x202f;; enregistrez-la d’abord plus petite.</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Toutes les touches</translation>
    </message>
    <message>
        <source>Parts of the course</source>
        <translation>Parties du parcours</translation>
    </message>
    <message>
        <source>Next part</source>
        <translation>Partie suivante</translation>
    </message>
    <message>
        <source>Move the part</source>
        <translation>Déplacer la partie</translation>
    </message>
    <message>
        <source>Move it far</source>
        <translation>La déplacer loin</translation>
    </message>
    <message>
        <source>Turn it</source>
        <translation>La tourner</translation>
    </message>
    <message>
        <source>Its next point</source>
        <translation>Son point suivant</translation>
    </message>
    <message>
        <source>Its previous point</source>
        <translation>Son point précédent</translation>
    </message>
    <message>
        <source>A new part in the middle</source>
        <translation>Une nouvelle partie au milieu</translation>
    </message>
    <message>
        <source>Remove the part</source>
        <translation>Supprimer la partie</translation>
    </message>
    <message>
        <source>Leave the part alone</source>
        <translation>Laisser la partie</translation>
    </message>
    <message>
        <source>View and steps</source>
        <translation>Vue et étapes</translation>
    </message>
    <message>
        <source>Closer</source>
        <translation>Plus près</translation>
    </message>
    <message>
        <source>Further away</source>
        <translation>Plus loin</translation>
    </message>
    <message>
        <source>The whole course</source>
        <translation>Tout le parcours</translation>
    </message>
    <message>
        <source>Held, dragging moves the view</source>
        <translation>Maintenue, glisser déplace la vue</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseMap</name>
    <message>
        <source>Map of the course</source>
        <translation>Carte du parcours</translation>
    </message>
    <message>
        <source>Turn %1
Duration %2 s, angle %3°
Rotation: peak %4 °/s, mean %5 °/s
Push out: peak %6 m/s², mean %7 m/s²
Roll %8° (+ inside), pitch %9° (+ bow up)</source>
        <translation>Virage %1
Durée %2 s, angle %3°
Rotation&#x202f;: pointe %4 °/s, moyenne %5 °/s
Relance&#x202f;: pointe %6 m/s², moyenne %7 m/s²
Roulis %8° (+ intérieur), tangage %9° (+ pointe avant en haut)</translation>
    </message>
    <message>
        <source>There are no position fixes in this session: no map.</source>
        <translation>Il n’y a pas de positions dans cette séance&#x202f;: pas de carte.</translation>
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
        <translation>Vitesse (m/s)</translation>
    </message>
    <message>
        <source>Stroke rate (1/min)</source>
        <translation>Cadence (1/min)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CoursePanel</name>
    <message>
        <source>C&amp;ourse of</source>
        <translation>&amp;Parcours de</translation>
    </message>
    <message>
        <source>The drawing of the course in this file cannot be shown.</source>
        <translation>Le dessin du parcours de ce fichier ne peut pas être affiché.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CoursePartForm</name>
    <message>
        <source>&amp;Number</source>
        <translation>&amp;Numéro</translation>
    </message>
    <message>
        <source>&amp;Upstream gate</source>
        <translation>&amp;Porte en remontée</translation>
    </message>
    <message>
        <source>Na&amp;me or text</source>
        <translation>Nom &amp;ou texte</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>not measured</source>
        <translation>pas mesuré</translation>
    </message>
    <message>
        <source>&amp;Width of the picture</source>
        <translation>&amp;Largeur de l’image</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Rien de sélectionné</translation>
    </message>
    <message>
        <source>The race has %1 gates only. Race and course says how many there are.</source>
        <translation>La course n’a que %1 portes. Leur nombre se règle dans Course et parcours.</translation>
    </message>
    <message>
        <source>direction of gate %1</source>
        <translation>direction de la porte %1</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>numéro %1</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>width of the picture</source>
        <translation>largeur de l’image</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseStrip</name>
    <message>
        <source>Course</source>
        <translation>Parcours</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Portes</translation>
    </message>
    <message>
        <source>Such as 1, 2, 3, 4</source>
        <translation>Par exemple 1, 2, 3, 4</translation>
    </message>
    <message>
        <source>Roll after gate</source>
        <translation>Esquimautage après la porte</translation>
    </message>
    <message>
        <source>Empty without a roll</source>
        <translation>Vide sans esquimautage</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Which gates does the cross course have?</source>
        <translation>Quelles portes a le parcours de cross&#x202f;?</translation>
    </message>
    <message>
        <source>1 gate</source>
        <translation>1 porte</translation>
    </message>
    <message>
        <source>roll after %1</source>
        <translation>esquimautage après %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no gate number.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un numéro de porte.</translation>
    </message>
    <message>
        <source>The roll is after gate %1, which is not on the course.</source>
        <translation>L’esquimautage est après la porte %1, qui n’est pas sur le parcours.</translation>
    </message>
    <message>
        <source>course</source>
        <translation>parcours</translation>
    </message>
    <message numerus="yes">
        <source>%n gates</source>
        <translation>
            <numerusform>%n porte</numerusform>
            <numerusform>%n portes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CrossActions</name>
    <message>
        <source>&amp;Open a split file…</source>
        <translation>Ouvr&amp;ir un fichier d’intermédiaires…</translation>
    </message>
    <message>
        <source>&amp;Save data</source>
        <translation>Enregistrer &amp;les données</translation>
    </message>
    <message>
        <source>Open a &amp;folder of films…</source>
        <translation>Ouvrir un &amp;dossier de films…</translation>
    </message>
    <message>
        <source>Open a folder of films</source>
        <translation>Ouvrir un dossier de films</translation>
    </message>
    <message>
        <source>&amp;Import films of time trials…</source>
        <translation>Importer les films des &amp;contre-la-montre…</translation>
    </message>
    <message>
        <source>Film of the selected trial or &amp;heat…</source>
        <translation>Film du con&amp;tre-la-montre ou de la série choisis…</translation>
    </message>
    <message>
        <source>&amp;Where are the films now?…</source>
        <translation>Où so&amp;nt les films maintenant&#x202f;?…</translation>
    </message>
    <message>
        <source>Split &amp;taking of this race</source>
        <translation>&amp;Prise de temps intermédiaires de cette course</translation>
    </message>
    <message>
        <source>Show in the race &amp;analyzer</source>
        <translation>&amp;Montrer dans l’analyse de course</translation>
    </message>
    <message>
        <source>Open a split file</source>
        <translation>Ouvrir un fichier d’intermédiaires</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Fichiers d’intermédiaires (*.kvx);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>&amp;Course of the cross race</source>
        <translation>&amp;Parcours du cross</translation>
    </message>
    <message>
        <source>&amp;Previous trial or heat</source>
        <translation>Contre-la-montre &amp;ou série précédents</translation>
    </message>
    <message>
        <source>&amp;Next trial or heat</source>
        <translation>Contre-la-&amp;montre ou série suivants</translation>
    </message>
    <message>
        <source>Copy the &amp;results</source>
        <translation>Copier &amp;les résultats</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>&amp;Marquer</translation>
    </message>
    <message>
        <source>&amp;Mark the frame shown</source>
        <translation>&amp;Marquer l’image affichée</translation>
    </message>
    <message>
        <source>To the first mark</source>
        <translation>À la première marque</translation>
    </message>
    <message>
        <source>Next &amp;gate</source>
        <translation>&amp;Porte suivante</translation>
    </message>
    <message>
        <source>Previous g&amp;ate</source>
        <translation>P&amp;orte précédente</translation>
    </message>
    <message>
        <source>Split, gate or boat &amp;%1</source>
        <translation>Intermédiaire, porte ou bateau &amp;%1</translation>
    </message>
    <message>
        <source>&amp;Time trials</source>
        <translation>C&amp;ontre-la-montre</translation>
    </message>
    <message>
        <source>&amp;Add an athlete</source>
        <translation>&amp;Ajouter un athlète</translation>
    </message>
    <message>
        <source>M marks the &amp;splits</source>
        <translation>M marque les &amp;intermédiaires</translation>
    </message>
    <message>
        <source>M marks the &amp;upstream gates</source>
        <translation>&amp;M marque les remontées</translation>
    </message>
    <message>
        <source>M marks the &amp;roll</source>
        <translation>M marqu&amp;e l’esquimautage</translation>
    </message>
    <message>
        <source>Re&amp;name the athlete</source>
        <translation>&amp;Renommer l’athlète</translation>
    </message>
    <message>
        <source>R&amp;emove the trial</source>
        <translation>Retirer &amp;le contre-la-montre</translation>
    </message>
    <message>
        <source>Make &amp;heats from the trials</source>
        <translation>&amp;Faire les séries d’après les contre-la-montre</translation>
    </message>
    <message>
        <source>&amp;Heats</source>
        <translation>&amp;Séries</translation>
    </message>
    <message>
        <source>&amp;Add a heat…</source>
        <translation>&amp;Ajouter une série…</translation>
    </message>
    <message>
        <source>A&amp;ttack, beginning here</source>
        <translation>Attaque &amp;qui commence ici</translation>
    </message>
    <message>
        <source>&amp;End of the attack</source>
        <translation>&amp;Fin de l’attaque</translation>
    </message>
    <message>
        <source>Compare &amp;films of the heat…</source>
        <translation>&amp;Comparer les films de la série…</translation>
    </message>
    <message>
        <source>&amp;Names of the boats…</source>
        <translation>&amp;Noms des bateaux…</translation>
    </message>
    <message>
        <source>&amp;Remove the heat</source>
        <translation>&amp;Retirer la série</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affi&amp;chage</translation>
    </message>
    <message>
        <source>&amp;Results</source>
        <translation>&amp;Résultats</translation>
    </message>
    <message>
        <source>Time trial</source>
        <translation>Contre-la-montre</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CrossPage</name>
    <message>
        <source>There is no film to mark on.</source>
        <translation>Il n’y a pas de film où marquer.</translation>
    </message>
    <message>
        <source>Nothing can be marked: %1 is not in the folder of the split file. File &gt; Where are the films now?</source>
        <translation>Rien ne peut être marqué&#x202f;: %1 n’est pas dans le dossier du fichier d’intermédiaires. Fichier &gt; Où sont les films maintenant&#x202f;?</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>Aucune marque n’est choisie. Ctrl et les flèches vont de marque en marque.</translation>
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
        <translation>Contre-la-montre</translation>
    </message>
    <message>
        <source>Heats</source>
        <translation>Séries</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>films of the folder</source>
        <translation>films du dossier</translation>
    </message>
    <message>
        <source>Import films with Ctrl+I, or drop them here: each becomes a time trial.</source>
        <translation>Importez des films avec Ctrl+I, ou déposez-les ici&#x202f;: chacun devient un contre-la-montre.</translation>
    </message>
    <message>
        <source>No film yet. Ctrl+Shift+I chooses the film of what is selected; films can be dropped here too.</source>
        <translation>Pas encore de film. Ctrl+Maj+I choisit le film de ce qui est sélectionné&#x202f;; des films peuvent aussi être déposés ici.</translation>
    </message>
    <message>
        <source>%1 is not in the folder of the split file. Ctrl+Shift+I chooses another film.</source>
        <translation>%1 n’est pas dans le dossier du fichier d’intermédiaires. Ctrl+Maj+I choisit un autre film.</translation>
    </message>
    <message>
        <source>Not found: %1.</source>
        <translation>Introuvable&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Import films of time trials</source>
        <translation>Importer les films des contre-la-montre</translation>
    </message>
    <message>
        <source>Choose the film of the trial or heat</source>
        <translation>Choisir le film du contre-la-montre ou de la série</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CrossingSearch</name>
    <message>
        <source>The slit picture shows what stood on the line all the same.</source>
        <translation>L’image à fente montre tout de même ce qui se trouvait sur la ligne.</translation>
    </message>
    <message>
        <source>No boat was found that crosses this line in the direction of the arrow.</source>
        <translation>Aucun bateau n’a été trouvé qui franchisse cette ligne dans le sens de la flèche.</translation>
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
        <translation>%1 lignes ne peuvent pas être lues. Ligne %2&#x202f;: %3.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>What each column holds was guessed from its title. Choose over a column what it is; a column without a choice is left out.</source>
        <translation>Le contenu de chaque colonne a été deviné d’après son titre. Choisissez au-dessus d’une colonne ce qu’elle est&#x202f;; une colonne sans choix est laissée de côté.</translation>
    </message>
    <message>
        <source>%1 samples, %2 per second, %3</source>
        <translation>%1 échantillons, %2 par seconde, %3</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 positions</translation>
    </message>
    <message>
        <source>%1 heart rates</source>
        <translation>%1 fréquences cardiaques</translation>
    </message>
    <message>
        <source>Import “%1”</source>
        <translation>Importer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Columns and units are read as they were for the last list with these titles. Choose over a column what it is; one without a choice is left out.</source>
        <translation>Colonnes et unités sont lues comme pour la dernière liste à ces titres. Choisissez au-dessus d’une colonne ce qu’elle est&#x202f;; une colonne sans choix est laissée de côté.</translation>
    </message>
    <message>
        <source>Guess from the titles</source>
        <translation>Deviner d’après les titres</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>This gives no samples.</source>
        <translation>Cela ne donne aucun échantillon.</translation>
    </message>
    <message>
        <source>This gives %1.</source>
        <translation>Cela donne %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CsvUnitsForm</name>
    <message>
        <source>&amp;Between columns</source>
        <translation>&amp;Entre les colonnes</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgule</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Point-virgule</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulation</translation>
    </message>
    <message>
        <source>&amp;Decimal comma</source>
        <translation>&amp;Virgule décimale</translation>
    </message>
    <message>
        <source>&amp;Times</source>
        <translation>&amp;Temps</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Dates</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Millisecondes</translation>
    </message>
    <message>
        <source>Microseconds</source>
        <translation>Microsecondes</translation>
    </message>
    <message>
        <source>Nanoseconds</source>
        <translation>Nanosecondes</translation>
    </message>
    <message>
        <source>&amp;Acceleration</source>
        <translation>A&amp;ccélération</translation>
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
        <translation>&amp;Rotation</translation>
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
        <translation>&amp;Angles</translation>
    </message>
    <message>
        <source>Radians</source>
        <translation>Radians</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Degrés</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>&amp;Vitesse</translation>
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
        <translation>&amp;Couché sur le dos, z indique</translation>
    </message>
    <message>
        <source>+1 g, upward</source>
        <translation>+1 g, vers le haut</translation>
    </message>
    <message>
        <source>−1 g, downward</source>
        <translation>−1 g, vers le bas</translation>
    </message>
    <message>
        <source>&amp;First sample at</source>
        <translation>&amp;Premier échantillon à</translation>
    </message>
    <message>
        <source>The comma stands between columns.</source>
        <translation>La virgule sépare les colonnes.</translation>
    </message>
    <message>
        <source>The times of the list are no dates. This is when the file was written, less its length.</source>
        <translation>Les temps de la liste ne sont pas des dates. Voici quand le fichier a été écrit, moins sa durée.</translation>
    </message>
    <message>
        <source>The times of the list are dates.</source>
        <translation>Les temps de la liste sont des dates.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CursorTable</name>
    <message>
        <source>left</source>
        <translation>gauche</translation>
    </message>
    <message>
        <source>right</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>side unknown</source>
        <translation>côté inconnu</translation>
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
        <translation>Temps</translation>
    </message>
    <message>
        <source>Stroke, rate</source>
        <translation>Coup, cadence</translation>
    </message>
    <message>
        <source>Force (N)</source>
        <translation>Force (N)</translation>
    </message>
    <message>
        <source>Power (W)</source>
        <translation>Puissance (W)</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Virage</translation>
    </message>
    <message>
        <source>Values at the cursor</source>
        <translation>Valeurs au curseur</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayDesk</name>
    <message>
        <source>The race day could not be kept: %1</source>
        <translation>Le jour de course n’a pas pu être conservé&#x202f;: %1</translation>
    </message>
    <message>
        <source> · U: %1</source>
        <translation> · U&#x202f;: %1</translation>
    </message>
    <message>
        <source>start list</source>
        <translation>liste de départ</translation>
    </message>
    <message>
        <source>folder of the films</source>
        <translation>dossier des films</translation>
    </message>
    <message>
        <source>start removed</source>
        <translation>départ retiré</translation>
    </message>
    <message>
        <source>There is no start list yet: Day &gt; Start list.</source>
        <translation>Il n’y a pas encore de liste de départ&#x202f;: Jour &gt; Liste de départ.</translation>
    </message>
    <message>
        <source>No film waits to be timed.</source>
        <translation>Aucun film n’attend d’être chronométré.</translation>
    </message>
    <message>
        <source>There is no film of %1 yet.</source>
        <translation>Il n’y a pas encore de film de %1.</translation>
    </message>
    <message>
        <source>The film of %1 is still being copied.</source>
        <translation>Le film de %1 est encore en cours de copie.</translation>
    </message>
    <message>
        <source>Is this %1?</source>
        <translation>Est-ce %1&#x202f;?</translation>
    </message>
    <message>
        <source>film of %1</source>
        <translation>film de %1</translation>
    </message>
    <message>
        <source>There is no film that is surely matched and not agreed to yet.</source>
        <translation>Il n’y a aucun film attribué à coup sûr et pas encore validé.</translation>
    </message>
    <message>
        <source>film agreed to</source>
        <translation>film validé</translation>
    </message>
    <message>
        <source>films agreed to</source>
        <translation>films validés</translation>
    </message>
    <message>
        <source>Not named, as it is not in the folder of the race or cannot be named there: %1</source>
        <translation>Pas renommé, car hors du dossier de la course ou impossible à renommer là&#x202f;: %1</translation>
    </message>
    <message>
        <source>Agreed</source>
        <translation>Validé</translation>
    </message>
    <message>
        <source>films one start later</source>
        <translation>films un départ plus tard</translation>
    </message>
    <message>
        <source>films one start earlier</source>
        <translation>films un départ plus tôt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#x202f;: %2</translation>
    </message>
    <message>
        <source>%1: no film</source>
        <translation>%1&#x202f;: pas de film</translation>
    </message>
    <message>
        <source>film of another boat</source>
        <translation>film d’un autre bateau</translation>
    </message>
    <message>
        <source>film given to a boat</source>
        <translation>film attribué à un bateau</translation>
    </message>
    <message>
        <source>There is no film %1</source>
        <translation>Il n’y a pas de film %1</translation>
    </message>
    <message>
        <source>%1 is timed: remove the last mark first.</source>
        <translation>%1 est chronométré&#x202f;: retirez d’abord la dernière marque.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 counts again</source>
        <translation>%1 compte à nouveau</translation>
    </message>
    <message>
        <source>The clocks of camera and start list go together.</source>
        <translation>Les horloges de la caméra et de la liste de départ concordent.</translation>
    </message>
    <message>
        <source>clock of the camera</source>
        <translation>horloge de la caméra</translation>
    </message>
    <message numerus="yes">
        <source>%n films agreed to</source>
        <translation>
            <numerusform>%n film validé</numerusform>
            <numerusform>%n films validés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayFilms</name>
    <message>
        <source>%1 could not be called %2 again: is that name taken?</source>
        <translation>%1 n’a pas pu être renommé %2&#x202f;: ce nom est-il pris&#x202f;?</translation>
    </message>
    <message>
        <source>%1 could not be copied from the card. Is the card out, or the disk full?</source>
        <translation>%1 n’a pas pu être copié depuis la carte. La carte est-elle retirée, ou le disque plein&#x202f;?</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayKeeping</name>
    <message>
        <source>The race day %1 cannot be read: %2. It stays as it is; a new one takes its name only after it was put aside.</source>
        <translation>Le jour de course %1 ne peut pas être lu&#x202f;: %2. Il reste tel quel&#x202f;; un nouveau ne prend son nom qu’une fois l’ancien mis de côté.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayPanel</name>
    <message>
        <source>agreed</source>
        <translation>validé</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>conservé</translation>
    </message>
    <message>
        <source>sure</source>
        <translation>sûr</translation>
    </message>
    <message>
        <source>likely</source>
        <translation>probable</translation>
    </message>
    <message>
        <source>unsure</source>
        <translation>incertain</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 j</translation>
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
        <translation>en avance sur</translation>
    </message>
    <message>
        <source>behind</source>
        <translation>en retard sur</translation>
    </message>
    <message>
        <source>Reckon with that</source>
        <translation>En tenir compte</translation>
    </message>
    <message>
        <source>No start list yet. Paste one, or take it from a file.</source>
        <translation>Pas encore de liste de départ. Collez-en une, ou prenez-la dans un fichier.</translation>
    </message>
    <message>
        <source>Start list…</source>
        <translation>Liste de départ…</translation>
    </message>
    <message>
        <source>Films from…</source>
        <translation>Films depuis…</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Bib</source>
        <translation>Dossard</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>A boat on the list has a name.</source>
        <translation>Un bateau de la liste a un nom.</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Cat.</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Type the name of another film to correct a single one</source>
        <translation>Tapez le nom d’un autre film pour en corriger un seul</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Attribution</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Filmé</translation>
    </message>
    <message>
        <source>When the recording began, and whether the camera or the file says so</source>
        <translation>Quand la prise de vue a commencé, et si c’est la caméra ou le fichier qui le dit</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>caméra</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichier</translation>
    </message>
    <message>
        <source>The camera&apos;s clock seems to be %1 the start list.</source>
        <translation>L’horloge de la caméra semble être %1 la liste de départ.</translation>
    </message>
    <message>
        <source>%1 is not there.</source>
        <translation>%1 n’est pas là.</translation>
    </message>
    <message>
        <source>Copying %1.</source>
        <translation>Copie de %1.</translation>
    </message>
    <message>
        <source>%1 still growing.</source>
        <translation>%1 grandit encore.</translation>
    </message>
    <message>
        <source>Of no boat: %1.</source>
        <translation>D’aucun bateau&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Of no boat: %1 films, the first is %2.</source>
        <translation>D’aucun bateau&#x202f;: %1 films, le premier est %2.</translation>
    </message>
    <message>
        <source>Of other days: %1.</source>
        <translation>D’autres jours&#x202f;: %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DerivedDialog</name>
    <message>
        <source>The &amp;highest number is the best</source>
        <translation>&amp;Le plus grand nombre est le meilleur</translation>
    </message>
    <message>
        <source>Another column</source>
        <translation>Autre colonne</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Rang</translation>
    </message>
    <message>
        <source>Gap to the best</source>
        <translation>Écart au meilleur</translation>
    </message>
    <message>
        <source>Percent behind the best</source>
        <translation>Pourcentage derrière le meilleur</translation>
    </message>
    <message>
        <source>Percentile</source>
        <translation>Percentile</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Différence</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>&amp;What</source>
        <translation>&amp;Quoi</translation>
    </message>
    <message>
        <source>Sum &amp;of (none: times and penalties)</source>
        <translation>&amp;Somme de (aucun&#x202f;: temps et pénalités)</translation>
    </message>
    <message>
        <source>O&amp;f</source>
        <translation>&amp;De</translation>
    </message>
    <message>
        <source>&amp;Less</source>
        <translation>&amp;Moins</translation>
    </message>
    <message>
        <source>Each &amp;compared within</source>
        <translation>&amp;Chacun comparé au sein de</translation>
    </message>
    <message>
        <source>the total, else the times</source>
        <translation>le total, sinon les temps</translation>
    </message>
    <message>
        <source>all rows</source>
        <translation>toutes les lignes</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Desktop</name>
    <message>
        <source>The folder with the races of %1</source>
        <translation>Le dossier des courses de %1</translation>
    </message>
    <message>
        <source>As it is in split taking now. The file does not hold all of it yet.</source>
        <translation>Dans l’état où il est maintenant dans la prise de temps intermédiaires. Le fichier ne contient pas encore tout.</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Nothing to open in “%1”</source>
        <translation>Rien à ouvrir dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>There is no split file (.kvx) and no film in this folder.</source>
        <translation>Il n’y a ni fichier d’intermédiaires (.kvx) ni film dans ce dossier.</translation>
    </message>
    <message>
        <source>“%1” is not where it was</source>
        <translation>«&#xa0;%1&#xa0;» n’est plus à sa place</translation>
    </message>
    <message>
        <source>It was in %1. Open it from where it is now, then ask again.</source>
        <translation>Il était dans %1. Ouvrez-le là où il est maintenant, puis demandez à nouveau.</translation>
    </message>
    <message>
        <source>%1 (on the server)</source>
        <translation>%1 (sur le serveur)</translation>
    </message>
    <message>
        <source>What the server has is no planning.</source>
        <translation>Ce que contient le serveur n’est pas une planification.</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Manche %1</translation>
    </message>
    <message>
        <source>The run of %1</source>
        <translation>La manche de %1</translation>
    </message>
    <message>
        <source>%1 is not in split taking any more: it was removed there, or has another crew and film.</source>
        <translation>%1 n’est plus dans la prise de temps intermédiaires&#x202f;: la manche y a été retirée, ou a un autre équipage et un autre film.</translation>
    </message>
    <message>
        <source>Of single split files, or of all in a folder and below it?</source>
        <translation>À partir de certains fichiers d’intermédiaires, ou de tous ceux d’un dossier et de ses sous-dossiers&#x202f;?</translation>
    </message>
    <message>
        <source>Split files…</source>
        <translation>Fichiers d’intermédiaires…</translation>
    </message>
    <message>
        <source>A folder…</source>
        <translation>Un dossier…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DetailsPanel</name>
    <message>
        <source>What</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Noted as</source>
        <translation>Noté comme</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Pénalités</translation>
    </message>
    <message>
        <source>of</source>
        <translation>sur</translation>
    </message>
    <message>
        <source>Those of which this was noted; for those of which it was not noted, all penalties</source>
        <translation>Celles où ceci a été noté&#x202f;; pour celles où rien n’a été noté, toutes les pénalités</translation>
    </message>
    <message>
        <source>Share %</source>
        <translation>Part&#x202f;%</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#x202f;%</translation>
    </message>
    <message>
        <source>Where the share lies with 90 %</source>
        <translation>Où se trouve la part, à 90&#x202f;%</translation>
    </message>
    <message>
        <source>No penalty was noted in detail. Split taking notes them.</source>
        <translation>Aucune pénalité n’a été notée en détail. Cela se note dans la prise de temps intermédiaires.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DocumentChoiceDialog</name>
    <message>
        <source>%1   in %2</source>
        <translation>%1   dans %2</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Nouveau…</translation>
    </message>
    <message>
        <source>Open an&amp;other…</source>
        <translation>Ouvrir &amp;un autre…</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>None was opened yet.</source>
        <translation>Aucun n’a encore été ouvert.</translation>
    </message>
    <message>
        <source>Opened before:</source>
        <translation>Ouverts auparavant&#x202f;:</translation>
    </message>
    <message>
        <source>Name the new file</source>
        <translation>Nommer le nouveau fichier</translation>
    </message>
    <message>
        <source>%1 (*.%2)</source>
        <translation>%1 (*.%2)</translation>
    </message>
    <message>
        <source>%1 (*.%2);;All files (*)</source>
        <translation>%1 (*.%2);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DrawnRates</name>
    <message>
        <source>Touches on the course</source>
        <translation>Touches sur le parcours</translation>
    </message>
    <message>
        <source>Gate %1: %2 %</source>
        <translation>Porte %1&#x202f;: %2&#x202f;%</translation>
    </message>
    <message>
        <source>, %1 of %2 touched</source>
        <translation>, %1 touches sur %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#x202f;%</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DropAreas</name>
    <message>
        <source>Import .kvb file</source>
        <translation>Importer un fichier .kvb</translation>
    </message>
    <message>
        <source>Import .sbm file</source>
        <translation>Importer un fichier .sbm</translation>
    </message>
    <message>
        <source>Drag .kvb file to top left of the window</source>
        <translation>Glissez un fichier .kvb en haut à gauche de la fenêtre</translation>
    </message>
    <message>
        <source>A raw recording of the boat: strokes and turns are found in it.</source>
        <translation>Un enregistrement brut du bateau&#x202f;: coups de pagaie et virages y sont trouvés.</translation>
    </message>
    <message>
        <source>Drag .sbm file to top right of the window</source>
        <translation>Glissez un fichier .sbm en haut à droite de la fenêtre</translation>
    </message>
    <message>
        <source>A processed session, .sbm or .bms: strokes and turns are in it already.</source>
        <translation>Une séance traitée, .sbm ou .bms&#x202f;: coups de pagaie et virages y sont déjà.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::EarlierWorkDialog</name>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Conservé</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Ensuite</translation>
    </message>
    <message>
        <source>given up</source>
        <translation>abandonné</translation>
    </message>
    <message>
        <source>put off</source>
        <translation>remis à plus tard</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Bring back earlier work</source>
        <translation>Reprendre un travail antérieur</translation>
    </message>
    <message>
        <source>Nothing was kept that is not in a document again.</source>
        <translation>Rien n’a été conservé qui ne soit de nouveau dans un document.</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Reprendre</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::EditedFile</name>
    <message>
        <source>today %1</source>
        <translation>aujourd’hui %1</translation>
    </message>
    <message>
        <source>yesterday %1</source>
        <translation>hier %1</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>1 change</source>
        <translation>1 changement</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>The file was changed by another program since it was opened. Saving replaces what that program wrote.</source>
        <translation>Le fichier a été modifié par un autre programme depuis son ouverture. Enregistrer remplace ce que ce programme a écrit.</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Le remplacer</translation>
    </message>
    <message>
        <source>Look at the other</source>
        <translation>Regarder l’autre</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>“%1” is open in another window. Close it there first, or take another name.</source>
        <translation>«&#xa0;%1&#xa0;» est ouvert dans une autre fenêtre. Fermez-le d’abord là-bas, ou prenez un autre nom.</translation>
    </message>
    <message>
        <source>%1 (the other).%2</source>
        <translation>%1 (l’autre).%2</translation>
    </message>
    <message>
        <source>Your work is kept apart, and offered when the file is opened again.</source>
        <translation>Votre travail est conservé à part, et proposé à la réouverture du fichier.</translation>
    </message>
    <message>
        <source>Your work is in this window alone: it could not be kept apart either.</source>
        <translation>Votre travail n’est que dans cette fenêtre&#x202f;: il n’a pas non plus pu être conservé à part.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>The file of the older version could not be kept beside the new one, so that nothing was written.</source>
        <translation>Le fichier de l’ancienne version n’a pas pu être conservé à côté du nouveau&#x202f;: rien n’a été écrit.</translation>
    </message>
    <message numerus="yes">
        <source>%n changes</source>
        <translation>
            <numerusform>%n changement</numerusform>
            <numerusform>%n changements</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::EightForm</name>
    <message>
        <source>Split %1</source>
        <translation>Intermédiaire %1</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Catégorie</translation>
    </message>
    <message>
        <source>Pha&amp;se</source>
        <translation>&amp;Phase</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Inters</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Score</translation>
    </message>
    <message>
        <source>Taken from</source>
        <translation>Repris de</translation>
    </message>
    <message>
        <source>Time
(s)</source>
        <translation>Temps
(s)</translation>
    </message>
    <message>
        <source>Time of one eight</source>
        <translation>Temps d’un huit</translation>
    </message>
    <message>
        <source>In the video
(s)</source>
        <translation>Sur la vidéo
(s)</translation>
    </message>
    <message>
        <source>Where in the video the split was taken</source>
        <translation>Où sur la vidéo l’intermédiaire a été pris</translation>
    </message>
    <message>
        <source>split %1</source>
        <translation>intermédiaire %1</translation>
    </message>
    <message>
        <source>no video</source>
        <translation>pas de vidéo</translation>
    </message>
    <message>
        <source>%1, no motion samples</source>
        <translation>%1, pas d’échantillons de mouvement</translation>
    </message>
    <message>
        <source>%1, %2 motion samples</source>
        <translation>%1, %2 échantillons de mouvement</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::EntryTable</name>
    <message>
        <source>“%1” is a number from 0 to %2</source>
        <translation>«&#xa0;%1&#xa0;» est un nombre de 0 à %2</translation>
    </message>
    <message>
        <source>“%1” is more than 0. An emptied cell stands for none.</source>
        <translation>«&#xa0;%1&#xa0;» est plus grand que 0. Une cellule vidée signifie aucun.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ExerciseTable</name>
    <message>
        <source>The file has no entry here. Typing makes one.</source>
        <translation>Le fichier n’a pas d’entrée ici. Une saisie en crée une.</translation>
    </message>
    <message>
        <source>The estimate from repetitions and weight. A click or Ctrl+Enter takes it as the maximum.</source>
        <translation>L’estimation d’après répétitions et charge. Un clic ou Ctrl+Entrée la prend comme maximum.</translation>
    </message>
    <message>
        <source>Exercise</source>
        <translation>Exercice</translation>
    </message>
    <message>
        <source>exercise</source>
        <translation>exercice</translation>
    </message>
    <message>
        <source>Sets</source>
        <translation>Séries</translation>
    </message>
    <message>
        <source>sets</source>
        <translation>séries</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>Répétitions</translation>
    </message>
    <message>
        <source>repetitions</source>
        <translation>répétitions</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Charge</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>weight</source>
        <translation>charge</translation>
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
        <translation>Estimation</translation>
    </message>
    <message>
        <source>Add exercise</source>
        <translation>Ajouter un exercice</translation>
    </message>
    <message>
        <source>Remove exercise</source>
        <translation>Retirer l’exercice</translation>
    </message>
    <message>
        <source>Take estimate</source>
        <translation>Prendre l’estimation</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>1 exercise</source>
        <translation>1 exercice</translation>
    </message>
    <message>
        <source>%1 · %2 sets · tonnage %3 kg</source>
        <translation>%1 · %2 séries · tonnage %3 kg</translation>
    </message>
    <message>
        <source>Estimated maximum: table %1 · Epley %2 · Brzycki %3 · McGlothin %4 · Lombardi %5 · result &lt;b&gt;%6&lt;/b&gt;</source>
        <translation>Maximum estimé&#x202f;: tableau %1 · Epley %2 · Brzycki %3 · McGlothin %4 · Lombardi %5 · résultat &lt;b&gt;%6&lt;/b&gt;</translation>
    </message>
    <message>
        <source>new exercise</source>
        <translation>nouvel exercice</translation>
    </message>
    <message>
        <source>removal of an exercise</source>
        <translation>retrait d’un exercice</translation>
    </message>
    <message>
        <source>estimated maximum</source>
        <translation>maximum estimé</translation>
    </message>
    <message numerus="yes">
        <source>%n exercises</source>
        <translation>
            <numerusform>%n exercice</numerusform>
            <numerusform>%n exercices</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ExportDialog</name>
    <message>
        <source>Export data</source>
        <translation>Exporter les données</translation>
    </message>
    <message>
        <source>Split files (*.kvx)</source>
        <translation>Fichiers d’intermédiaires (*.kvx)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FactsForm</name>
    <message>
        <source>&amp;Athlete</source>
        <translation>A&amp;thlète</translation>
    </message>
    <message>
        <source>Name of the athlete</source>
        <translation>Nom de l’athlète</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Date</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Lieu</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FactsStatus</name>
    <message>
        <source>Which ones?</source>
        <translation>Lesquels&#x202f;?</translation>
    </message>
    <message>
        <source>reading was cancelled: not all files are here</source>
        <translation>la lecture a été annulée&#x202f;: tous les fichiers ne sont pas là</translation>
    </message>
    <message>
        <source>1 file could not be read</source>
        <translation>1 fichier n’a pas pu être lu</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be read</source>
        <translation>
            <numerusform>%n fichier n’a pas pu être lu</numerusform>
            <numerusform>%n fichiers n’ont pas pu être lus</numerusform>
        </translation>
    </message>
    <message>
        <source>1 copy of a file does not count</source>
        <translation>1 copie d’un fichier ne compte pas</translation>
    </message>
    <message numerus="yes">
        <source>%n copies of files do not count</source>
        <translation>
            <numerusform>%n copie de fichier ne compte pas</numerusform>
            <numerusform>%n copies de fichiers ne comptent pas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FailedFiles</name>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Ce qui ne va pas</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Files that could not be read</source>
        <translation>Fichiers qui n’ont pas pu être lus</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FetchActions</name>
    <message>
        <source>&amp;Open a source…</source>
        <translation>Ou&amp;vrir une source…</translation>
    </message>
    <message>
        <source>&amp;Save the source…</source>
        <translation>Enregistrer &amp;la source…</translation>
    </message>
    <message>
        <source>Choose the &amp;list of bibs…</source>
        <translation>Choisir la liste &amp;des dossards…</translation>
    </message>
    <message>
        <source>Choose the &amp;folder for the films…</source>
        <translation>&amp;Choisir le dossier des films…</translation>
    </message>
    <message>
        <source>&amp;Time the films of the folder</source>
        <translation>C&amp;hronométrer les films du dossier</translation>
    </message>
    <message>
        <source>Fet&amp;ch</source>
        <translation>&amp;Récupérer</translation>
    </message>
    <message>
        <source>&amp;Show what would be fetched</source>
        <translation>&amp;Montrer ce qui serait récupéré</translation>
    </message>
    <message>
        <source>&amp;Fetch the ticked films</source>
        <translation>&amp;Récupérer les films cochés</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Tick &amp;all</source>
        <translation>Tout &amp;cocher</translation>
    </message>
    <message>
        <source>Tick &amp;none</source>
        <translation>&amp;Tout décocher</translation>
    </message>
    <message>
        <source>Ser&amp;ver</source>
        <translation>&amp;Serveur</translation>
    </message>
    <message>
        <source>&amp;Sign in…</source>
        <translation>&amp;Se connecter…</translation>
    </message>
    <message>
        <source>&amp;Forget the password</source>
        <translation>&amp;Oublier le mot de passe</translation>
    </message>
    <message>
        <source>&amp;Other servers</source>
        <translation>&amp;Autres serveurs</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FetchWindow</name>
    <message>
        <source>Fetch films</source>
        <translation>Récupérer des films</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adresse</translation>
    </message>
    <message>
        <source>Of one film, with {bib}, {category}, {phase} or {run} where they stand ({bib:3} is 014); or of a list: a page, JSON, M3U8 or WebDAV folder</source>
        <translation>D’un film, avec {bib}, {category}, {phase} ou {run} à leur place ({bib:3} est 014)&#x202f;; ou d’une liste&#x202f;: page, JSON, M3U8 ou dossier WebDAV</translation>
    </message>
    <message>
        <source>&amp;Bibs from</source>
        <translation>D&amp;ossards de</translation>
    </message>
    <message>
        <source>Start list or results (a column is called bib), or a split file</source>
        <translation>Liste de départ ou résultats (une colonne s’appelle bib), ou un fichier d’intermédiaires</translation>
    </message>
    <message>
        <source>start list, results or split file</source>
        <translation>liste de départ, résultats ou fichier d’intermédiaires</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Dossier</translation>
    </message>
    <message>
        <source>Where the films are put; no file there is ever overwritten</source>
        <translation>Où sont placés les films&#x202f;; aucun fichier n’y est jamais écrasé</translation>
    </message>
    <message>
        <source>for the films</source>
        <translation>pour les films</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>&amp;Noms</translation>
    </message>
    <message>
        <source>Of the files: {name}, {category}, {phase}, {bib} and {number}</source>
        <translation>Des fichiers&#x202f;: {name}, {category}, {phase}, {bib} et {number}</translation>
    </message>
    <message>
        <source>Choose a list…</source>
        <translation>Choisir une liste…</translation>
    </message>
    <message>
        <source>Start list, results, split file</source>
        <translation>Liste de départ, résultats, fichier d’intermédiaires</translation>
    </message>
    <message>
        <source>Choose a folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>For the films</source>
        <translation>Pour les films</translation>
    </message>
    <message>
        <source>Other se&amp;rvers that films may come from</source>
        <translation>&amp;Autres serveurs d’où peuvent venir les films</translation>
    </message>
    <message>
        <source>Show what would be fetched</source>
        <translation>Montrer ce qui serait récupéré</translation>
    </message>
    <message>
        <source>Fetch the ticked films</source>
        <translation>Récupérer les films cochés</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Nothing is fetched before it is shown here</source>
        <translation>Rien n’est récupéré avant d’être montré ici</translation>
    </message>
    <message>
        <source>Films are being fetched. Another source or list is opened after that.</source>
        <translation>Des films sont en cours de récupération. Une autre source ou liste s’ouvrira ensuite.</translation>
    </message>
    <message>
        <source>“%1” is no source of films</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une source de films</translation>
    </message>
    <message>
        <source>Start list, results or split file</source>
        <translation>Liste de départ, résultats ou fichier d’intermédiaires</translation>
    </message>
    <message>
        <source>Lists and split files (*.csv *.txt *.tsv *.kvx);;All files (*)</source>
        <translation>Listes et fichiers d’intermédiaires (*.csv *.txt *.tsv *.kvx);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Folder for the films</source>
        <translation>Dossier des films</translation>
    </message>
    <message>
        <source>Open a source of films</source>
        <translation>Ouvrir une source de films</translation>
    </message>
    <message>
        <source>Sources of films (*.json)</source>
        <translation>Sources de films (*.json)</translation>
    </message>
    <message>
        <source>Save the source of films</source>
        <translation>Enregistrer la source de films</translation>
    </message>
    <message>
        <source>The source was saved. “kavela fetch” takes the file, too.</source>
        <translation>La source a été enregistrée. «&#xa0;kavela fetch&#xa0;» accepte aussi ce fichier.</translation>
    </message>
    <message>
        <source>The source could not be saved</source>
        <translation>La source n’a pas pu être enregistrée</translation>
    </message>
    <message>
        <source>What there is to fetch is being found out…</source>
        <translation>Recherche de ce qu’il y a à récupérer…</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» ne peut pas être créé.</translation>
    </message>
    <message>
        <source>Films are being fetched…</source>
        <translation>Récupération des films…</translation>
    </message>
    <message>
        <source>There is no address to sign in to yet.</source>
        <translation>Il n’y a pas encore d’adresse où se connecter.</translation>
    </message>
    <message>
        <source>This computer has no password store that is open. The password holds until this window is closed.</source>
        <translation>Cet ordinateur n’a pas de coffre de mots de passe ouvert. Le mot de passe vaut jusqu’à la fermeture de cette fenêtre.</translation>
    </message>
    <message>
        <source>The password of %1 was forgotten.</source>
        <translation>Le mot de passe de %1 a été oublié.</translation>
    </message>
    <message>
        <source>%v of %m films</source>
        <translation>%v sur %m films</translation>
    </message>
    <message>
        <source>Films are being fetched</source>
        <translation>Des films sont en cours de récupération</translation>
    </message>
    <message>
        <source>What is there of them stays; fetching them again goes on with it.</source>
        <translation>Ce qui en est là reste&#x202f;; une nouvelle récupération reprend à cet endroit.</translation>
    </message>
    <message>
        <source>Stop and close</source>
        <translation>Arrêter et fermer</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmBrowser</name>
    <message>
        <source>Filter: k1w 12 semi</source>
        <translation>Filtre&#x202f;: k1w 12 demi</translation>
    </message>
    <message>
        <source>No film here. Open a folder of films with Ctrl+O, or drop one.</source>
        <translation>Pas de film ici. Ouvrez un dossier de films avec Ctrl+O, ou déposez-en un.</translation>
    </message>
    <message>
        <source>No tag yet: M sets one where a film stands.</source>
        <translation>Pas encore d’étiquette&#x202f;: M en pose une là où le film est arrêté.</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Vignettes</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>%1 films</source>
        <translation>%1 films</translation>
    </message>
    <message>
        <source>%1 of %2 films</source>
        <translation>%1 films sur %2</translation>
    </message>
    <message>
        <source>No film fits the filter. Empty it to see all again.</source>
        <translation>Aucun film ne correspond au filtre. Videz-le pour les revoir tous.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmCutting</name>
    <message>
        <source>%1 cut</source>
        <translation>%1 coupé</translation>
    </message>
    <message>
        <source>Cut into a new film</source>
        <translation>Couper dans un nouveau film</translation>
    </message>
    <message>
        <source>Films (*.mp4 *.mov *.m4v)</source>
        <translation>Films (*.mp4 *.mov *.m4v)</translation>
    </message>
    <message>
        <source>Cutting %1…</source>
        <translation>Coupe de %1…</translation>
    </message>
    <message>
        <source>The film could not be cut</source>
        <translation>Le film n’a pas pu être coupé</translation>
    </message>
    <message>
        <source>The cut has no end yet: O sets it at this frame.</source>
        <translation>La coupe n’a pas encore de fin : O la met à cette image.</translation>
    </message>
    <message>
        <source>The cut has no beginning yet: I sets it at this frame.</source>
        <translation>La coupe n’a pas encore de début : I le met à cette image.</translation>
    </message>
    <message>
        <source>Set the ends of the cut first: I where it begins, O where it ends.</source>
        <translation>Marque d’abord les bouts de la coupe : I où elle commence, O où elle finit.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmDeck</name>
    <message>
        <source>The film was closed before it had been read so far.</source>
        <translation>Le film a été fermé avant d’avoir été lu jusque-là.</translation>
    </message>
    <message>
        <source>The film has not been read so far yet: nothing was marked.</source>
        <translation>Le film n’a pas encore été lu jusque-là&#x202f;: rien n’a été marqué.</translation>
    </message>
    <message>
        <source>The film has not been read so far yet: no frame to step from.</source>
        <translation>Le film n’a pas encore été lu jusque-là&#x202f;: pas d’image d’où avancer.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmPlaying</name>
    <message>
        <source>Choose a film on the left.</source>
        <translation>Choisissez un film à gauche.</translation>
    </message>
    <message>
        <source>The film is no longer there:
%1</source>
        <translation>Le film n’est plus là&#x202f;:
%1</translation>
    </message>
    <message>
        <source>That was the last one</source>
        <translation>C’était le dernier</translation>
    </message>
    <message>
        <source>This is the first one</source>
        <translation>C’est le premier</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmShelf</name>
    <message>
        <source>Renaming films…</source>
        <translation>Changement des noms de films…</translation>
    </message>
    <message>
        <source>“%1” has films that are to be renamed, and is open in another window. Close it there first.</source>
        <translation>«&#xa0;%1&#xa0;» a des films à renommer et est ouvert dans une autre fenêtre. Fermez-le d’abord là-bas.</translation>
    </message>
    <message>
        <source>A renaming was cut off here, and its note cannot be read: %1</source>
        <translation>Un changement de noms a été interrompu ici, et sa note ne peut pas être lue&#x202f;: %1</translation>
    </message>
    <message>
        <source>Renaming was cut off</source>
        <translation>Le changement de noms a été interrompu</translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) of this folder were being renamed when the program ended. No film is lost: the renaming can be completed, or undone.</source>
        <translation>
            <numerusform>%n film de ce dossier était en cours de changement de nom quand le programme s’est arrêté. Aucun film n’est perdu&#x202f;: le changement peut être achevé ou annulé.</numerusform>
            <numerusform>%n films de ce dossier étaient en cours de changement de nom quand le programme s’est arrêté. Aucun film n’est perdu&#x202f;: le changement peut être achevé ou annulé.</numerusform>
        </translation>
    </message>
    <message>
        <source>Complete it</source>
        <translation>L’achever</translation>
    </message>
    <message>
        <source>Undo it</source>
        <translation>L’annuler</translation>
    </message>
    <message>
        <source>This tag is of the split file: split taking edits it.</source>
        <translation>Cette étiquette est du fichier d’intermédiaires&#x202f;: la prise de temps intermédiaires la modifie.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmStage</name>
    <message>
        <source>Typing: Esc gives the keys back to the film</source>
        <translation>Saisie&#x202f;: Échap rend les touches au film</translation>
    </message>
    <message>
        <source>Fixed: %1</source>
        <translation>Fixe&#x202f;: %1</translation>
    </message>
    <message>
        <source>Where are the films now?…</source>
        <translation>Où sont les films maintenant&#x202f;?…</translation>
    </message>
    <message>
        <source>Playing %1</source>
        <translation>Lecture de %1</translation>
    </message>
    <message>
        <source>Paused, %1</source>
        <translation>En pause, %1</translation>
    </message>
    <message>
        <source>Camera %1: </source>
        <translation>Caméra %1&#x202f;: </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmTiles</name>
    <message>
        <source>No picture</source>
        <translation>Pas d’image</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmView</name>
    <message>
        <source>frame %1   %2 s</source>
        <translation>image %1   %2 s</translation>
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
        <translation>Ouvrir un &amp;dossier…</translation>
    </message>
    <message>
        <source>Folders opened &amp;before</source>
        <translation>Dossiers ou&amp;verts auparavant</translation>
    </message>
    <message>
        <source>&amp;Read again</source>
        <translation>Rel&amp;ire</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Filter the films</source>
        <translation>&amp;Filtrer les films</translation>
    </message>
    <message>
        <source>Re&amp;name films…</source>
        <translation>Renommer &amp;les films…</translation>
    </message>
    <message>
        <source>F&amp;ilms</source>
        <translation>Fil&amp;ms</translation>
    </message>
    <message>
        <source>&amp;Play from the beginning</source>
        <translation>Lire &amp;depuis le début</translation>
    </message>
    <message>
        <source>&amp;Next film</source>
        <translation>&amp;Film suivant</translation>
    </message>
    <message>
        <source>Pre&amp;vious film</source>
        <translation>Film &amp;précédent</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>&amp;Tiles</source>
        <translation>&amp;Vignettes</translation>
    </message>
    <message>
        <source>T&amp;ags</source>
        <translation>É&amp;tiquettes</translation>
    </message>
    <message>
        <source>Mark as &amp;watched</source>
        <translation>&amp;Signaler comme vu</translation>
    </message>
    <message>
        <source>Mark as n&amp;ot watched</source>
        <translation>Signaler &amp;comme non vu</translation>
    </message>
    <message>
        <source>A &amp;click plays</source>
        <translation>&amp;Un clic lance la lecture</translation>
    </message>
    <message>
        <source>The next one &amp;follows</source>
        <translation>L&amp;e suivant s’enchaîne</translation>
    </message>
    <message>
        <source>Begin at the first &amp;mark</source>
        <translation>Commencer à la première &amp;marque</translation>
    </message>
    <message>
        <source>&amp;Tags</source>
        <translation>É&amp;tiquettes</translation>
    </message>
    <message>
        <source>&amp;Tag this frame</source>
        <translation>Étiqueter &amp;cette image</translation>
    </message>
    <message>
        <source>Tag with a &amp;saved name</source>
        <translation>Étiqueter &amp;avec un nom enregistré</translation>
    </message>
    <message>
        <source>Saved tag %1</source>
        <translation>Étiquette enregistrée %1</translation>
    </message>
    <message>
        <source>Move the selected tag &amp;here</source>
        <translation>&amp;Déplacer ici l’étiquette choisie</translation>
    </message>
    <message>
        <source>Tag one frame &amp;earlier</source>
        <translation>Étiquette &amp;une image plus tôt</translation>
    </message>
    <message>
        <source>Tag one frame &amp;later</source>
        <translation>Étiquette une &amp;image plus tard</translation>
    </message>
    <message>
        <source>&amp;Remove the selected tag</source>
        <translation>&amp;Retirer l’étiquette choisie</translation>
    </message>
    <message>
        <source>&amp;Previous tag</source>
        <translation>Étiquette &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Next tag</source>
        <translation>Étiquette &amp;suivante</translation>
    </message>
    <message>
        <source>Play &amp;just the part around a tag</source>
        <translation>&amp;Lire seulement autour d’une étiquette</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>&amp;Couper</translation>
    </message>
    <message>
        <source>The cut &amp;begins here</source>
        <translation>La coupe commence &amp;ici</translation>
    </message>
    <message>
        <source>The cut &amp;ends here</source>
        <translation>&amp;La coupe finit ici</translation>
    </message>
    <message>
        <source>&amp;Give the ends up</source>
        <translation>&amp;Abandonner les bornes</translation>
    </message>
    <message>
        <source>Cut by &amp;copying…</source>
        <translation>&amp;Couper par copie…</translation>
    </message>
    <message>
        <source>Cut e&amp;xactly…</source>
        <translation>Couper &amp;exactement…</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Films</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmsWindow</name>
    <message>
        <source>Films</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>&amp;Tag that M sets:</source>
        <translation>Étiquette &amp;posée par M&#x202f;:</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Coupe</translation>
    </message>
    <message>
        <source>Cut into %1</source>
        <translation>Couper dans %1</translation>
    </message>
    <message>
        <source>“%1” is not there.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas là.</translation>
    </message>
    <message>
        <source>Open a folder of films</source>
        <translation>Ouvrir un dossier de films</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>⚠ Not read: %1</source>
        <translation>⚠ Non lu&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FindActions</name>
    <message>
        <source>Queries</source>
        <translation>Requêtes</translation>
    </message>
    <message>
        <source>Search a &amp;folder…</source>
        <translation>&amp;Chercher dans un dossier…</translation>
    </message>
    <message>
        <source>Search f&amp;iles…</source>
        <translation>Chercher &amp;dans des fichiers…</translation>
    </message>
    <message>
        <source>&amp;Read again</source>
        <translation>Rel&amp;ire</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>Arrêter &amp;la lecture</translation>
    </message>
    <message>
        <source>Files that could not be rea&amp;d…</source>
        <translation>Fichiers qui &amp;n’ont pas pu être lus…</translation>
    </message>
    <message>
        <source>Save the result as &amp;CSV…</source>
        <translation>Enre&amp;gistrer le résultat en CSV…</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>&amp;Requête</translation>
    </message>
    <message>
        <source>&amp;Type a query</source>
        <translation>&amp;Taper une requête</translation>
    </message>
    <message>
        <source>&amp;Fields</source>
        <translation>&amp;Champs</translation>
    </message>
    <message>
        <source>&amp;Queries</source>
        <translation>&amp;Requêtes</translation>
    </message>
    <message>
        <source>&amp;Keep this query</source>
        <translation>C&amp;onserver cette requête</translation>
    </message>
    <message>
        <source>&amp;Give up the kept query</source>
        <translation>&amp;Abandonner la requête conservée</translation>
    </message>
    <message>
        <source>Resul&amp;t</source>
        <translation>Ré&amp;sultat</translation>
    </message>
    <message>
        <source>&amp;Show the run at its frame</source>
        <translation>&amp;Montrer la manche à son image</translation>
    </message>
    <message>
        <source>Open its &amp;race</source>
        <translation>&amp;Ouvrir sa course</translation>
    </message>
    <message>
        <source>Its &amp;time losses</source>
        <translation>&amp;Ses pertes de temps</translation>
    </message>
    <message>
        <source>The rows of the &amp;group</source>
        <translation>&amp;Les lignes du groupe</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FindWindow</name>
    <message>
        <source>Find</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Champs</translation>
    </message>
    <message>
        <source>Queries</source>
        <translation>Requêtes</translation>
    </message>
    <message>
        <source>gates up left cat K1W time&lt;4 – what, then what is asked of it</source>
        <translation>gates up left cat K1W time&lt;4 – quoi, puis ce qu’on en demande</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Keeps this query among those at hand</source>
        <translation>Garde cette requête à portée de main</translation>
    </message>
    <message>
        <source>The files are being read…</source>
        <translation>Lecture des fichiers…</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 fichier</translation>
    </message>
    <message>
        <source>1 run</source>
        <translation>1 manche</translation>
    </message>
    <message>
        <source>. Reading was stopped: the others are not searched.</source>
        <translation>. La lecture a été arrêtée&#x202f;: on n’a pas cherché dans les autres.</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Rien n’a été trouvé.</translation>
    </message>
    <message>
        <source>In the group: %1</source>
        <translation>Dans le groupe&#x202f;: %1</translation>
    </message>
    <message>
        <source> · run %1</source>
        <translation> · manche %1</translation>
    </message>
    <message>
        <source> · split %1</source>
        <translation> · intermédiaire %1</translation>
    </message>
    <message>
        <source> · %1 s</source>
        <translation> · %1 s</translation>
    </message>
    <message>
        <source>Save the result</source>
        <translation>Enregistrer le résultat</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Texte séparé par des points-virgules (*.csv)</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n manche</numerusform>
            <numerusform>%n manches</numerusform>
        </translation>
    </message>
    <message>
        <source>Drop a folder of split files (.kvx) here</source>
        <translation>Déposez ici un dossier de fichiers d’intermédiaires (.kvx)</translation>
    </message>
    <message>
        <source>All races below it are searched. They are only read.</source>
        <translation>On cherche dans toutes les courses qu’il contient. Elles sont seulement lues.</translation>
    </message>
    <message>
        <source>Search a folder…</source>
        <translation>Chercher dans un dossier…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FoundLines</name>
    <message>
        <source>In the file</source>
        <translation>Dans le fichier</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Will be</source>
        <translation>Après</translation>
    </message>
    <message>
        <source>new: %1</source>
        <translation>nouveau&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FoundTable</name>
    <message>
        <source>rows of the group</source>
        <translation>lignes du groupe</translation>
    </message>
    <message>
        <source>run</source>
        <translation>manche</translation>
    </message>
    <message>
        <source>runs</source>
        <translation>manches</translation>
    </message>
    <message>
        <source>section</source>
        <translation>secteur</translation>
    </message>
    <message>
        <source>sections</source>
        <translation>secteurs</translation>
    </message>
    <message>
        <source>gate</source>
        <translation>porte</translation>
    </message>
    <message>
        <source>gates</source>
        <translation>portes</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>pénalité</translation>
    </message>
    <message>
        <source>penalties</source>
        <translation>pénalités</translation>
    </message>
    <message>
        <source>loss</source>
        <translation>perte</translation>
    </message>
    <message>
        <source>losses</source>
        <translation>pertes</translation>
    </message>
    <message>
        <source>section with strokes</source>
        <translation>secteur avec coups de pagaie</translation>
    </message>
    <message>
        <source>sections with strokes</source>
        <translation>secteurs avec coups de pagaie</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>étiquette</translation>
    </message>
    <message>
        <source>tags</source>
        <translation>étiquettes</translation>
    </message>
    <message>
        <source>group</source>
        <translation>groupe</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>groupes</translation>
    </message>
    <message>
        <source>less than 1 ms</source>
        <translation>moins de 1 ms</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 %2 in %3</source>
        <translation>%1 %2 en %3</translation>
    </message>
    <message>
        <source>, the first %1 shown</source>
        <translation>, les %1 premiers affichés</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GapChart</name>
    <message>
        <source>Select runs in the table to see where time is won and lost.</source>
        <translation>Sélectionnez des manches dans le tableau pour voir où le temps est gagné et perdu.</translation>
    </message>
    <message>
        <source>No run covers the whole course. Choose the median or a run as the reference.</source>
        <translation>Aucune manche ne couvre tout le parcours. Choisissez la médiane ou une manche comme référence.</translation>
    </message>
    <message>
        <source>The reference has no time in the first section. Choose another one.</source>
        <translation>La référence n’a pas de temps dans le premier secteur. Choisissez-en une autre.</translation>
    </message>
    <message>
        <source>Gap to the best run: %1</source>
        <translation>Écart à la meilleure manche&#x202f;: %1</translation>
    </message>
    <message>
        <source>Gap to the median of each section</source>
        <translation>Écart à la médiane de chaque secteur</translation>
    </message>
    <message>
        <source>Gap to the ideal run: the best of each section</source>
        <translation>Écart à la manche idéale&#x202f;: le meilleur de chaque secteur</translation>
    </message>
    <message>
        <source>Gap to %1</source>
        <translation>Écart à %1</translation>
    </message>
    <message>
        <source>Accumulated seconds, penalties included</source>
        <translation>Secondes cumulées, pénalités comprises</translation>
    </message>
    <message>
        <source>Accumulated seconds, without penalties</source>
        <translation>Secondes cumulées, sans pénalités</translation>
    </message>
    <message>
        <source>← slower      faster →</source>
        <translation>← plus lent      plus rapide →</translation>
    </message>
    <message>
        <source>not timed</source>
        <translation>non chronométré</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>dans %1</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>Après %1</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>%1: gap</source>
        <translation>%1&#x202f;: écart</translation>
    </message>
    <message>
        <source>%1: in the section</source>
        <translation>%1&#x202f;: dans le secteur</translation>
    </message>
    <message>
        <source>Gap along the course for the selected runs</source>
        <translation>Écart le long du parcours pour les manches sélectionnées</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GateChart</name>
    <message>
        <source>No run has its penalties by gate. Enter them for each gate to see where they happen.</source>
        <translation>Aucune manche n’a ses pénalités par porte. Saisissez-les pour chaque porte pour voir où elles arrivent.</translation>
    </message>
    <message>
        <source>Penalties by gate</source>
        <translation>Pénalités par porte</translation>
    </message>
    <message>
        <source>Runs with a penalty at the gate, of %1</source>
        <translation>Manches avec une pénalité à la porte, sur %1</translation>
    </message>
    <message>
        <source> · ↑ upstream gate</source>
        <translation> · ↑ remontée</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Porte</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Manches</translation>
    </message>
    <message>
        <source>Missed gate, 50 s</source>
        <translation>Porte manquée, 50 s</translation>
    </message>
    <message>
        <source>Touch, 2 s</source>
        <translation>Touche, 2 s</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Gate %1, upstream</source>
        <translation>Porte %1, remontée</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Porte %1</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Manquées</translation>
    </message>
    <message>
        <source>missed</source>
        <translation>manquée</translation>
    </message>
    <message>
        <source>touch</source>
        <translation>touche</translation>
    </message>
    <message>
        <source>Upstream</source>
        <translation>En remontée</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Portes</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GateForm</name>
    <message>
        <source>Gate</source>
        <translation>Porte</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Virage</translation>
    </message>
    <message>
        <source>Mark the pole line too</source>
        <translation>Marquer aussi la ligne de porte</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>A click brings a gate in front</source>
        <translation>Un clic met une porte au premier plan</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GateStrip</name>
    <message>
        <source>Penalties at the gates</source>
        <translation>Pénalités aux portes</translation>
    </message>
    <message>
        <source>No gates yet: set up the course with Ctrl+G to note penalties.</source>
        <translation>Pas encore de portes&#x202f;: réglez le parcours avec Ctrl+G pour noter des pénalités.</translation>
    </message>
    <message>
        <source>Gate %1, upstream</source>
        <translation>Porte %1, remontée</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Porte %1</translation>
    </message>
    <message>
        <source>
T touch, F missed, 0 clean; N and P next and previous gate</source>
        <translation>
T touche, F manquée, 0 sans pénalité&#x202f;; N et P porte suivante et précédente</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Gauge</name>
    <message>
        <source>not known</source>
        <translation>inconnu</translation>
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
        <translation>Nouveau groupe</translation>
    </message>
    <message>
        <source>New goal</source>
        <translation>Nouvel objectif</translation>
    </message>
    <message>
        <source>New sub-goal</source>
        <translation>Nouveau sous-objectif</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Add group</source>
        <translation>Ajouter un groupe</translation>
    </message>
    <message>
        <source>A group of goals, such as “Technique”</source>
        <translation>Un groupe d’objectifs, comme «&#xa0;Technique&#xa0;»</translation>
    </message>
    <message>
        <source>Add goal</source>
        <translation>Ajouter un objectif</translation>
    </message>
    <message>
        <source>To the group that is chosen</source>
        <translation>Au groupe choisi</translation>
    </message>
    <message>
        <source>Add sub-goal</source>
        <translation>Ajouter un sous-objectif</translation>
    </message>
    <message>
        <source>To the group that is chosen, with a status (Insert)</source>
        <translation>Au groupe choisi, avec un statut (Inser)</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Haut</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+Bas</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>No goals are set for this season yet.
“Add group” begins.</source>
        <translation>Encore aucun objectif pour cette saison.
«&#xa0;Ajouter un groupe&#xa0;» pour commencer.</translation>
    </message>
    <message>
        <source>Choose a season to see its goals.</source>
        <translation>Choisissez une saison pour voir ses objectifs.</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Groupe %1</translation>
    </message>
    <message>
        <source>%1 of %2 reached</source>
        <translation>%1 sur %2 atteints</translation>
    </message>
    <message>
        <source>, %1 given up</source>
        <translation>, %1 abandonnés</translation>
    </message>
    <message>
        <source>text of a goal</source>
        <translation>texte d’un objectif</translation>
    </message>
    <message>
        <source>status of a goal</source>
        <translation>statut d’un objectif</translation>
    </message>
    <message>
        <source>new goal</source>
        <translation>nouvel objectif</translation>
    </message>
    <message>
        <source>order of the goals</source>
        <translation>ordre des objectifs</translation>
    </message>
    <message>
        <source>removal of a goal</source>
        <translation>retrait d’un objectif</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GuideWindow</name>
    <message>
        <source>User guide – Kavela</source>
        <translation>Guide d’utilisation – Kavela</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Guide d’utilisation</translation>
    </message>
    <message>
        <source>Ways through the guide</source>
        <translation>Chemins dans le guide</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Next place</source>
        <translation>Passage suivant</translation>
    </message>
    <message>
        <source>Search the guide</source>
        <translation>Chercher dans le guide</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>“%1” does not come with the program.</source>
        <translation>« %1 » n’est pas fourni avec le programme.</translation>
    </message>
    <message>
        <source>No chapter has these words.</source>
        <translation>Aucun chapitre ne contient ces mots.</translation>
    </message>
    <message numerus="yes">
        <source>In %n chapters. Enter goes to the next place.</source>
        <translation>
            <numerusform>Dans %n chapitre. Entrée va au passage suivant.</numerusform>
            <numerusform>Dans %n chapitres. Entrée va au passage suivant.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GymPanel</name>
    <message>
        <source>All seasons, in kilograms</source>
        <translation>Toutes les saisons, en kilogrammes</translation>
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
        <translation>Charge</translation>
    </message>
    <message>
        <source>Exercises</source>
        <translation>Exercices</translation>
    </message>
    <message>
        <source>Tonnage</source>
        <translation>Tonnage</translation>
    </message>
    <message>
        <source>Exercise of the chart</source>
        <translation>Exercice du graphique</translation>
    </message>
    <message>
        <source>&amp;History of</source>
        <translation>&amp;Historique de</translation>
    </message>
    <message>
        <source>Add session</source>
        <translation>Ajouter une séance</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>removal of gym sessions</source>
        <translation>retrait de séances de musculation</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>The same exercises once more, today</source>
        <translation>Les mêmes exercices encore une fois, aujourd’hui</translation>
    </message>
    <message>
        <source>date</source>
        <translation>date</translation>
    </message>
    <message>
        <source>new gym session</source>
        <translation>nouvelle séance de musculation</translation>
    </message>
    <message>
        <source>copy of a gym session</source>
        <translation>copie d’une séance de musculation</translation>
    </message>
    <message>
        <source>Choose an athlete.</source>
        <translation>Choisissez un athlète.</translation>
    </message>
    <message>
        <source>Add a season for this athlete first.</source>
        <translation>Ajoutez d’abord une saison pour cet athlète.</translation>
    </message>
    <message>
        <source>No gym session of this season yet.
Press Insert to add today&apos;s.</source>
        <translation>Encore aucune séance de musculation cette saison.
Appuyez sur Inser pour ajouter celle d’aujourd’hui.</translation>
    </message>
    <message>
        <source>No exercise yet.
Press Insert to add one.</source>
        <translation>Encore aucun exercice.
Appuyez sur Inser pour en ajouter un.</translation>
    </message>
    <message>
        <source>Choose or add a session to see its exercises.</source>
        <translation>Choisissez ou ajoutez une séance pour voir ses exercices.</translation>
    </message>
    <message>
        <source>Add an exercise with its weight to see how it develops.</source>
        <translation>Ajoutez un exercice avec sa charge pour voir comment elle évolue.</translation>
    </message>
    <message>
        <source>No weight of %1 yet.</source>
        <translation>Encore aucune charge pour %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatAttacks</name>
    <message>
        <source>✓ passed</source>
        <translation>✓ passée</translation>
    </message>
    <message>
        <source>✗ held</source>
        <translation>✗ contenue</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Attacker</source>
        <translation>Attaquant</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Sur</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Issue</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Côté</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Attacks</source>
        <translation>Attaques</translation>
    </message>
    <message>
        <source>Attack at this frame</source>
        <translation>Attaque à cette image</translation>
    </message>
    <message>
        <source>An attack starts here: then press the number of the attacker and those of the defenders</source>
        <translation>Une attaque commence ici&#x202f;: tapez ensuite le numéro de l’attaquant et ceux des défenseurs</translation>
    </message>
    <message>
        <source>A click shows the frame of an attack</source>
        <translation>Un clic montre l’image d’une attaque</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Porte %1</translation>
    </message>
    <message>
        <source>attack</source>
        <translation>attaque</translation>
    </message>
    <message>
        <source>Attack: number of the attacker, then of the defenders</source>
        <translation>Attaque&#x202f;: numéro de l’attaquant, puis des défenseurs</translation>
    </message>
    <message>
        <source>An attack without a moment, since there is no film: press the number of the attacker, then those of the defenders.</source>
        <translation>Une attaque sans moment, puisqu’il n’y a pas de film&#x202f;: tapez le numéro de l’attaquant, puis ceux des défenseurs.</translation>
    </message>
    <message>
        <source>attacker</source>
        <translation>attaquant</translation>
    </message>
    <message>
        <source>defenders</source>
        <translation>défenseurs</translation>
    </message>
    <message>
        <source>moment of an attack</source>
        <translation>moment d’une attaque</translation>
    </message>
    <message>
        <source>end of an attack removed</source>
        <translation>fin d’une attaque retirée</translation>
    </message>
    <message>
        <source>attack removed</source>
        <translation>attaque retirée</translation>
    </message>
    <message>
        <source>Start ramp</source>
        <translation>Rampe de départ</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Esquimautage</translation>
    </message>
    <message>
        <source>Eddy</source>
        <translation>Contre-courant</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Chute</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Vague</translation>
    </message>
    <message>
        <source>Flat water</source>
        <translation>Eau plate</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Arrivée</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Intérieur</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Extérieur</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatDialog</name>
    <message>
        <source>Add a heat</source>
        <translation>Ajouter une série</translation>
    </message>
    <message>
        <source>Names of the boats</source>
        <translation>Noms des bateaux</translation>
    </message>
    <message>
        <source>Boat %1</source>
        <translation>Bateau %1</translation>
    </message>
    <message>
        <source>Each boat needs a name.</source>
        <translation>Chaque bateau doit avoir un nom.</translation>
    </message>
    <message>
        <source>%1 stands twice in the heat.</source>
        <translation>%1 figure deux fois dans la série.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatList</name>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>⚠ missing: %1</source>
        <translation>⚠ manque&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 of %2 gates</source>
        <translation>%1 portes sur %2</translation>
    </message>
    <message>
        <source>Heat</source>
        <translation>Série</translation>
    </message>
    <message>
        <source>Boats</source>
        <translation>Bateaux</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Pris</translation>
    </message>
    <message>
        <source>Add a heat…</source>
        <translation>Ajouter une série…</translation>
    </message>
    <message>
        <source>Adds a heat of up to four boats</source>
        <translation>Ajoute une série de quatre bateaux au plus</translation>
    </message>
    <message>
        <source>Names…</source>
        <translation>Noms…</translation>
    </message>
    <message>
        <source>Other names for the boats of the heat</source>
        <translation>D’autres noms pour les bateaux de la série</translation>
    </message>
    <message>
        <source>Film…</source>
        <translation>Film…</translation>
    </message>
    <message>
        <source>Chooses the film of the heat</source>
        <translation>Choisit le film de la série</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Removes the heat with all its marks</source>
        <translation>Retire la série avec toutes ses marques</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatMapChart</name>
    <message>
        <source>Percent lost on %1, by section</source>
        <translation>Pourcentage perdu face à %1, par secteur</translation>
    </message>
    <message>
        <source>Percent lost by run and section</source>
        <translation>Pourcentage perdu par manche et par secteur</translation>
    </message>
    <message>
        <source>S%1</source>
        <translation>S%1</translation>
    </message>
    <message>
        <source>is the reference</source>
        <translation>est la référence</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manche</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatOrders</name>
    <message>
        <source>Take at this frame</source>
        <translation>Prendre à cette image</translation>
    </message>
    <message>
        <source>Takes the order shown at the frame shown</source>
        <translation>Prend l’ordre affiché à l’image affichée</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Recommencer</translation>
    </message>
    <message>
        <source>Back to the order as it was</source>
        <translation>Retour à l’ordre tel qu’il était</translation>
    </message>
    <message>
        <source>Comment on this order</source>
        <translation>Commentaire de cet ordre</translation>
    </message>
    <message>
        <source>Add a heat first.</source>
        <translation>Ajoutez d’abord une série.</translation>
    </message>
    <message>
        <source>The cross course has no gates yet.</source>
        <translation>Le parcours de cross n’a pas encore de portes.</translation>
    </message>
    <message>
        <source>This order does not count for the course. Choose a gate of the course first.</source>
        <translation>Cet ordre ne compte pas pour le parcours. Choisissez d’abord une porte du parcours.</translation>
    </message>
    <message>
        <source>No boat is named yet.</source>
        <translation>Aucun bateau n’a encore de nom.</translation>
    </message>
    <message>
        <source>order at gate %1</source>
        <translation>ordre à la porte %1</translation>
    </message>
    <message>
        <source>Gate %1:  %2</source>
        <translation>Porte %1&#x202f;:  %2</translation>
    </message>
    <message>
        <source>comment on an order</source>
        <translation>commentaire d’un ordre</translation>
    </message>
    <message>
        <source>not taken yet</source>
        <translation>pas encore pris</translation>
    </message>
    <message>
        <source>taken at %1</source>
        <translation>pris à %1</translation>
    </message>
    <message>
        <source>offered</source>
        <translation>proposé</translation>
    </message>
    <message>
        <source>Gate %1 · %2</source>
        <translation>Porte %1 · %2</translation>
    </message>
    <message>
        <source>The cross course has no gates yet</source>
        <translation>Le parcours de cross n’a pas encore de portes</translation>
    </message>
    <message>
        <source>Keep its moment</source>
        <translation>Garder son moment</translation>
    </message>
    <message>
        <source>Take without a moment</source>
        <translation>Prendre sans moment</translation>
    </message>
    <message>
        <source>Corrects the order and leaves its moment as it is</source>
        <translation>Corrige l’ordre et laisse son moment tel quel</translation>
    </message>
    <message>
        <source>Takes the order shown where there is no film</source>
        <translation>Prend l’ordre affiché là où il n’y a pas de film</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatPage</name>
    <message>
        <source>No heats yet. Add a heat with its boats and choose its film; then go to each gate and press the numbers of the boats as they pass.</source>
        <translation>Encore aucune série. Ajoutez une série avec ses bateaux et choisissez son film&#x202f;; allez ensuite à chaque porte et tapez les numéros des bateaux dans l’ordre de passage.</translation>
    </message>
    <message>
        <source>A%1</source>
        <translation>A%1</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>Aucune marque n’est choisie. Ctrl et les flèches vont de marque en marque.</translation>
    </message>
    <message>
        <source>order moved</source>
        <translation>ordre déplacé</translation>
    </message>
    <message>
        <source>order removed</source>
        <translation>ordre retiré</translation>
    </message>
    <message>
        <source>This heat has %1 boats.</source>
        <translation>Cette série a %1 bateaux.</translation>
    </message>
    <message>
        <source>heat</source>
        <translation>série</translation>
    </message>
    <message>
        <source>heat removed</source>
        <translation>série retirée</translation>
    </message>
    <message>
        <source>names of boats</source>
        <translation>noms des bateaux</translation>
    </message>
    <message>
        <source>film of a heat</source>
        <translation>film d’une série</translation>
    </message>
    <message>
        <source>Add a heat first.</source>
        <translation>Ajoutez d’abord une série.</translation>
    </message>
    <message>
        <source>This heat has no boats yet.</source>
        <translation>Cette série n’a pas encore de bateaux.</translation>
    </message>
    <message>
        <source>Select the attack that ends here.</source>
        <translation>Sélectionnez l’attaque qui finit ici.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HomeWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Try the &amp;sample season</source>
        <translation>&amp;Essayer la saison d’exemple</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>&amp;Réglages…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Where was the time won and lost, and why?</source>
        <translation>Où le temps a-t-il été gagné et perdu, et pourquoi&#x202f;?</translation>
    </message>
    <message>
        <source>Try the sample season</source>
        <translation>Essayer la saison d’exemple</translation>
    </message>
    <message>
        <source>Open a file…</source>
        <translation>Ouvrir un fichier…</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Fichiers récents</translation>
    </message>
    <message>
        <source>Nothing opened yet. Drop a split file (.kvx) or a folder here, open one with Ctrl+O, or try the sample season.</source>
        <translation>Rien n’a encore été ouvert. Déposez ici un fichier d’intermédiaires (.kvx) ou un dossier, ouvrez-en un avec Ctrl+O, ou essayez la saison d’exemple.</translation>
    </message>
    <message>
        <source>Work kept</source>
        <translation>Travail conservé</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>dans %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Fichiers d’intermédiaires (*.kvx);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IdealPanel</name>
    <message>
        <source>Section</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Meilleur</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Par</translation>
    </message>
    <message>
        <source>Ideal run %1 s</source>
        <translation>Manche idéale %1 s</translation>
    </message>
    <message>
        <source>No ideal run: a section has no time.</source>
        <translation>Pas de manche idéale&#x202f;: un secteur n’a pas de temps.</translation>
    </message>
    <message>
        <source>
Fastest run %1 s, %2
%3 s behind the ideal run</source>
        <translation>
Manche la plus rapide %1 s, %2
%3 s derrière la manche idéale</translation>
    </message>
    <message>
        <source>
Penalties are left out.</source>
        <translation>
Les pénalités sont laissées de côté.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::InformationDialog</name>
    <message>
        <source>Session information</source>
        <translation>Informations de la séance</translation>
    </message>
    <message>
        <source>The weight tells force and power when a recording is converted: analyse it again after changing it.</source>
        <translation>Le poids donne force et puissance à la conversion d’un enregistrement&#x202f;: analysez-le à nouveau après l’avoir changé.</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>A&amp;thlète</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Lieu</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>T&amp;ype</translation>
    </message>
    <message>
        <source>&amp;Weight</source>
        <translation>&amp;Poids</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>&amp;Paddle length</source>
        <translation>L&amp;ongueur de la pagaie</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>&amp;Blade area</source>
        <translation>&amp;Surface de la pale</translation>
    </message>
    <message>
        <source>cm²</source>
        <translation>cm²</translation>
    </message>
    <message>
        <source>Blade &amp;height</source>
        <translation>&amp;Hauteur de la pale</translation>
    </message>
    <message>
        <source>Hand po&amp;sition</source>
        <translation>Position &amp;des mains</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalChart</name>
    <message>
        <source>too few</source>
        <translation>trop peu</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalForm</name>
    <message>
        <source>Minutes and seconds such as 1:30, or seconds</source>
        <translation>Minutes et secondes comme 1:30, ou secondes</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Titre</translation>
    </message>
    <message>
        <source>T&amp;arget</source>
        <translation>&amp;Cible</translation>
    </message>
    <message>
        <source>Rh&amp;ythm</source>
        <translation>&amp;Rythme</translation>
    </message>
    <message>
        <source>S&amp;ets</source>
        <translation>&amp;Séries</translation>
    </message>
    <message>
        <source>Re&amp;petitions</source>
        <translation>Ré&amp;pétitions</translation>
    </message>
    <message>
        <source>&amp;Work</source>
        <translation>&amp;Effort</translation>
    </message>
    <message>
        <source>&amp;Rest between repetitions</source>
        <translation>Récupér&amp;ation entre répétitions</translation>
    </message>
    <message>
        <source>Rest &amp;between sets</source>
        <translation>Réc&amp;upération entre séries</translation>
    </message>
    <message>
        <source>&amp;Kind of rest</source>
        <translation>T&amp;ype de récupération</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Volume</translation>
    </message>
    <message>
        <source>&amp;Intensity</source>
        <translation>&amp;Intensité</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Description</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalTimerDialog</name>
    <message>
        <source>%1 – timer</source>
        <translation>%1 – minuteur</translation>
    </message>
    <message>
        <source>◀ Back</source>
        <translation>◀ Retour</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Skip ▶</source>
        <translation>Passer ▶</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>F11</source>
        <translation>F11</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Recommencer</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalsPanel</name>
    <message>
        <source>Session</source>
        <translation>Séance</translation>
    </message>
    <message>
        <source>Make-up</source>
        <translation>Composition</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Effort</translation>
    </message>
    <message>
        <source>New session</source>
        <translation>Nouvelle séance</translation>
    </message>
    <message>
        <source>interval session</source>
        <translation>séance d’intervalles</translation>
    </message>
    <message>
        <source>No favourite sessions yet. “Add” begins the first.</source>
        <translation>Encore aucune séance favorite. «&#xa0;Ajouter&#xa0;» crée la première.</translation>
    </message>
    <message>
        <source>Add a session</source>
        <translation>Ajouter une séance</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Another one like it</source>
        <translation>Une autre semblable</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Remove the session</source>
        <translation>Retirer la séance</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Start the timer…</source>
        <translation>Lancer le minuteur…</translation>
    </message>
    <message>
        <source>A clock for the bank, readable from afar. Double click on a session opens it too.</source>
        <translation>Une horloge pour la rive, lisible de loin. Un double-clic sur une séance l’ouvre aussi.</translation>
    </message>
    <message>
        <source>new interval session</source>
        <translation>nouvelle séance d’intervalles</translation>
    </message>
    <message>
        <source>%1, copy</source>
        <translation>%1, copie</translation>
    </message>
    <message>
        <source>copy of an interval session</source>
        <translation>copie d’une séance d’intervalles</translation>
    </message>
    <message>
        <source>order of the interval sessions</source>
        <translation>ordre des séances d’intervalles</translation>
    </message>
    <message>
        <source>removal of an interval session</source>
        <translation>retrait d’une séance d’intervalles</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::JobsWindow</name>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>Show the &amp;folder</source>
        <translation>&amp;Montrer le dossier</translation>
    </message>
    <message>
        <source>&amp;Clear what is over</source>
        <translation>&amp;Effacer ce qui est fini</translation>
    </message>
    <message>
        <source>Films being composed</source>
        <translation>Films en composition</translation>
    </message>
    <message>
        <source>No film is being composed.</source>
        <translation>Aucun film n’est en composition.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeptColumns</name>
    <message>
        <source>&amp;All columns in their order</source>
        <translation>&amp;Toutes les colonnes dans leur ordre</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeptQueries</name>
    <message>
        <source>Queries</source>
        <translation>Requêtes</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Conservées</translation>
    </message>
    <message>
        <source>Asked last</source>
        <translation>Demandées en dernier</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Exemples</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeyEditor</name>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Find an action</source>
        <translation>Chercher une action</translation>
    </message>
    <message>
        <source>Standard keys</source>
        <translation>Touches standard</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>%1 is the key of “%2” already. “%3” can take it over; “%2” has it no longer then.</source>
        <translation>%1 est déjà la touche de «&#xa0;%2&#xa0;». «&#xa0;%3&#xa0;» peut la reprendre&#x202f;; «&#xa0;%2&#xa0;» ne l’aura alors plus.</translation>
    </message>
    <message>
        <source>Take it over</source>
        <translation>La reprendre</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeyOverlay</name>
    <message>
        <source>All keys</source>
        <translation>Toutes les touches</translation>
    </message>
    <message>
        <source>Up, Down, Page up and Page down show the rest; any other key closes.</source>
        <translation>Haut, Bas, Page préc. et Page suiv. montrent la suite&#x202f;; toute autre touche ferme.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KnownPointsPage</name>
    <message>
        <source>No known point yet. Tick Path &gt; Click known points, then click the foot of a gate&apos;s poles in the picture.</source>
        <translation>Encore aucun point connu. Cochez Trajectoire &gt; Cliquer des points connus, puis cliquez le pied des fiches d’une porte dans l’image.</translation>
    </message>
    <message>
        <source>&amp;Take it away</source>
        <translation>&amp;L’enlever</translation>
    </message>
    <message>
        <source>removal of a known point</source>
        <translation>retrait d’un point connu</translation>
    </message>
    <message>
        <source>A place on the water is a number of metres, -10000 to 10000</source>
        <translation>Une place sur l’eau est un nombre de mètres, de -10000 à 10000</translation>
    </message>
    <message>
        <source>metres of a known point</source>
        <translation>mètres d’un point connu</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Across</source>
        <translation>En travers</translation>
    </message>
    <message>
        <source>Along</source>
        <translation>En long</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LaneStrip</name>
    <message>
        <source>Notes of the run</source>
        <translation>Notes de la manche</translation>
    </message>
    <message>
        <source>A click shows the frame of a mark, dragging moves the mark</source>
        <translation>Un clic montre l’image d’une marque, un glissement déplace la marque</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Autres</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LineOverlay</name>
    <message>
        <source>Lines over the film</source>
        <translation>Lignes sur le film</translation>
    </message>
    <message>
        <source>Drag an end of a line, or the line. With the focus here the arrows move it, with Shift by ten pixels; Tab goes from end to end, Esc leaves.</source>
        <translation>Faites glisser une extrémité d’une ligne, ou la ligne. Quand elle est active, les flèches la déplacent, avec Maj de dix pixels&#x202f;; Tab va d’une extrémité à l’autre, Échap quitte.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::List</name>
    <message>
        <source>date</source>
        <translation>date</translation>
    </message>
    <message>
        <source>new %1</source>
        <translation>ajout&#x202f;: %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>removal of %1</source>
        <translation>retrait&#x202f;: %1</translation>
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
        <translation>Il ne reste aucune ligne. Ctrl+Z annule la dernière étape.</translation>
    </message>
    <message>
        <source>Every cell was taken.</source>
        <translation>Chaque cellule a été reprise.</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Refusé</translation>
    </message>
    <message>
        <source>Refused (%1)</source>
        <translation>Refusé (%1)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LoginDialog</name>
    <message>
        <source>&amp;Keep it in the password store of this computer</source>
        <translation>&amp;Le garder dans le coffre de mots de passe de cet ordinateur</translation>
    </message>
    <message>
        <source>Sign in to %1</source>
        <translation>Se connecter à %1</translation>
    </message>
    <message>
        <source>Only this server is shown the password. It is never written into a file.</source>
        <translation>Seul ce serveur reçoit le mot de passe. Il n’est jamais écrit dans un fichier.</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>&amp;Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Mot de passe</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossChartsPanel</name>
    <message>
        <source>Charts</source>
        <translation>Graphiques</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Somme</translation>
    </message>
    <message>
        <source>From the reference&apos;s total to the run&apos;s own</source>
        <translation>Du temps total de la référence à celui de la manche</translation>
    </message>
    <message>
        <source>Heat map</source>
        <translation>Carte thermique</translation>
    </message>
    <message>
        <source>Percent lost by run and section</source>
        <translation>Pourcentage perdu par manche et par secteur</translation>
    </message>
    <message>
        <source>Most lost</source>
        <translation>Plus grandes pertes</translation>
    </message>
    <message>
        <source>The sections that lost most, in their order</source>
        <translation>Les secteurs où l’on a le plus perdu, dans l’ordre des pertes</translation>
    </message>
    <message>
        <source>Along the course</source>
        <translation>Le long du parcours</translation>
    </message>
    <message>
        <source>The gap after each section</source>
        <translation>L’écart après chaque secteur</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Save chart…</source>
        <translation>Enregistrer le graphique…</translation>
    </message>
    <message>
        <source>Show everything again (or double click)</source>
        <translation>Tout afficher à nouveau (ou double-clic)</translation>
    </message>
    <message>
        <source>Save as PNG, SVG or CSV</source>
        <translation>Enregistrer en PNG, SVG ou CSV</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossHeader</name>
    <message>
        <source>Reference</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>What the run is held against</source>
        <translation>Ce à quoi la manche est comparée</translation>
    </message>
    <message>
        <source>Alt+click or Shift+F1: why</source>
        <translation>Alt+clic ou Maj+F1&#x202f;: pourquoi</translation>
    </message>
    <message>
        <source>Ru&amp;n</source>
        <translation>&amp;Manche</translation>
    </message>
    <message>
        <source>hel&amp;d against</source>
        <translation>&amp;comparée à</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossPage</name>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Against</source>
        <translation>Face à</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Pour cent</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>The next M begins another time loss</source>
        <translation>Le prochain M commence une autre perte de temps</translation>
    </message>
    <message>
        <source>Add over the section</source>
        <translation>Ajouter sur le secteur</translation>
    </message>
    <message>
        <source>Another reason</source>
        <translation>Autre raison</translation>
    </message>
    <message>
        <source>To the other run</source>
        <translation>Vers l’autre manche</translation>
    </message>
    <message>
        <source>reason of a time loss</source>
        <translation>raison d’une perte de temps</translation>
    </message>
    <message>
        <source>This run</source>
        <translation>Cette manche</translation>
    </message>
    <message>
        <source>Other run</source>
        <translation>Autre manche</translation>
    </message>
    <message>
        <source>Sets this mark at the frame shown</source>
        <translation>Place cette marque à l’image affichée</translation>
    </message>
    <message>
        <source>kind of a time loss</source>
        <translation>type d’une perte de temps</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Portes</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Partie</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Eau</translation>
    </message>
    <message>
        <source>comment on a time loss</source>
        <translation>commentaire d’une perte de temps</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Back to the run</source>
        <translation>Retour à la manche</translation>
    </message>
    <message>
        <source>M marks where the stretch starts and makes another time loss.</source>
        <translation>M marque où le tronçon commence et crée une autre perte de temps.</translation>
    </message>
    <message>
        <source>M marks where the stretch starts and makes a time loss.</source>
        <translation>M marque où le tronçon commence et crée une perte de temps.</translation>
    </message>
    <message>
        <source>%1 s (%2 %) against %3</source>
        <translation>%1 s (%2&#x202f;%) face à %3</translation>
    </message>
    <message>
        <source>Go back to the run that lost the time first.</source>
        <translation>Revenez d’abord à la manche qui a perdu le temps.</translation>
    </message>
    <message>
        <source>A time loss needs another run to compare with.</source>
        <translation>Une perte de temps demande une autre manche à laquelle comparer.</translation>
    </message>
    <message>
        <source>time loss</source>
        <translation>perte de temps</translation>
    </message>
    <message>
        <source>Start and end are marked here too. Ctrl+T goes back to the run that lost the time, where M begins its next loss.</source>
        <translation>Départ et fin se marquent aussi ici. Ctrl+T revient à la manche qui a perdu le temps, où M commence sa perte suivante.</translation>
    </message>
    <message>
        <source>mark of a time loss</source>
        <translation>marque d’une perte de temps</translation>
    </message>
    <message>
        <source>time loss removed</source>
        <translation>perte de temps retirée</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossTables</name>
    <message>
        <source>Both runs have no upstream gate timed in common.</source>
        <translation>Les deux manches n’ont aucune remontée chronométrée en commun.</translation>
    </message>
    <message>
        <source>No time lost is noted of this run.</source>
        <translation>Aucune perte de temps n’est notée pour cette manche.</translation>
    </message>
    <message>
        <source>No ways are compared in this run.</source>
        <translation>Aucune option n’est comparée dans cette manche.</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Secteurs</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Manches</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Portes</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Ways</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>&amp;Play both films</source>
        <translation>&amp;Lire les deux films</translation>
    </message>
    <message>
        <source>Hold all against this &amp;run</source>
        <translation>&amp;Tout comparer à cette manche</translation>
    </message>
    <message>
        <source>Notes (%1 unfinished)</source>
        <translation>Notes (%1 inachevées)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossesActions</name>
    <message>
        <source>&amp;Open races…</source>
        <translation>Ouvrir &amp;des courses…</translation>
    </message>
    <message>
        <source>Open a &amp;folder of races…</source>
        <translation>Ouvrir un dossier de &amp;courses…</translation>
    </message>
    <message>
        <source>&amp;Read all again</source>
        <translation>Tout rel&amp;ire</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>Arrêter &amp;la lecture</translation>
    </message>
    <message>
        <source>&amp;Page of an athlete: PDF, preview, print…</source>
        <translation>Page d’u&amp;n athlète&#x202f;: PDF, aperçu, impression…</translation>
    </message>
    <message>
        <source>Save the table as &amp;CSV…</source>
        <translation>Enregistrer le &amp;tableau en CSV…</translation>
    </message>
    <message>
        <source>&amp;Save the chart…</source>
        <translation>Enregistrer le &amp;graphique…</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Manche</translation>
    </message>
    <message>
        <source>&amp;Find a run</source>
        <translation>&amp;Chercher une manche</translation>
    </message>
    <message>
        <source>The &amp;next in rank</source>
        <translation>&amp;La suivante au classement</translation>
    </message>
    <message>
        <source>The &amp;one in front</source>
        <translation>La &amp;précédente au classement</translation>
    </message>
    <message>
        <source>&amp;Season of the athlete, or the run</source>
        <translation>&amp;Saison de l’athlète, ou la manche</translation>
    </message>
    <message>
        <source>Re&amp;ference</source>
        <translation>&amp;Référence</translation>
    </message>
    <message>
        <source>The &amp;winner</source>
        <translation>&amp;Le vainqueur</translation>
    </message>
    <message>
        <source>The &amp;fastest paddling</source>
        <translation>Le &amp;plus rapide en navigation</translation>
    </message>
    <message>
        <source>The &amp;ideal run</source>
        <translation>La &amp;manche idéale</translation>
    </message>
    <message>
        <source>The &amp;median of the finalists</source>
        <translation>La médiane &amp;des finalistes</translation>
    </message>
    <message>
        <source>The crew&apos;s &amp;own best other run</source>
        <translation>La m&amp;eilleure autre manche de l’équipage</translation>
    </message>
    <message>
        <source>The run that is &amp;shown</source>
        <translation>La manche &amp;affichée</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affi&amp;chage</translation>
    </message>
    <message>
        <source>&amp;Sum from total to total</source>
        <translation>Somme d’&amp;un temps total à l’autre</translation>
    </message>
    <message>
        <source>&amp;Heat map</source>
        <translation>&amp;Carte thermique</translation>
    </message>
    <message>
        <source>Sections that lost &amp;most</source>
        <translation>Secteurs des plus &amp;grandes pertes</translation>
    </message>
    <message>
        <source>Gap &amp;along the course</source>
        <translation>Écart &amp;le long du parcours</translation>
    </message>
    <message>
        <source>Table of s&amp;ections</source>
        <translation>Tableau des &amp;secteurs</translation>
    </message>
    <message>
        <source>Table of &amp;runs</source>
        <translation>Tableau des &amp;manches</translation>
    </message>
    <message>
        <source>Table of &amp;gates</source>
        <translation>Tableau des &amp;portes</translation>
    </message>
    <message>
        <source>Table of &amp;notes</source>
        <translation>&amp;Tableau des notes</translation>
    </message>
    <message>
        <source>Table of &amp;ways</source>
        <translation>Tableau des &amp;options</translation>
    </message>
    <message>
        <source>Show the whole &amp;chart</source>
        <translation>&amp;Afficher tout le graphique</translation>
    </message>
    <message>
        <source>&amp;Blue to orange instead of green to red</source>
        <translation>&amp;Du bleu à l’orange au lieu du vert au rouge</translation>
    </message>
    <message>
        <source>Fil&amp;ms</source>
        <translation>Film&amp;s</translation>
    </message>
    <message>
        <source>&amp;Play the section of both runs</source>
        <translation>&amp;Lire le secteur des deux manches</translation>
    </message>
    <message>
        <source>&amp;Film this loss…</source>
        <translation>&amp;Filmer cette perte…</translation>
    </message>
    <message>
        <source>&amp;Hide the films</source>
        <translation>&amp;Masquer les films</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Manches</translation>
    </message>
    <message>
        <source>Pa&amp;ge for an athlete…</source>
        <translation>&amp;Page pour un athlète…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossesWindow</name>
    <message>
        <source>Split files</source>
        <translation>Fichiers d’intermédiaires</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manche</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Saison</translation>
    </message>
    <message>
        <source>Hide the films</source>
        <translation>Masquer les films</translation>
    </message>
    <message>
        <source>Stop reading</source>
        <translation>Arrêter la lecture</translation>
    </message>
    <message>
        <source>&amp;Open it</source>
        <translation>&amp;L’ouvrir</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translation>Écriture de %1…</translation>
    </message>
    <message>
        <source>The page was not written.</source>
        <translation>La page n’a pas été écrite.</translation>
    </message>
    <message>
        <source>%1 is not in the files any more; another run is shown.</source>
        <translation>%1 n’est plus dans les fichiers&#x202f;; une autre manche est affichée.</translation>
    </message>
    <message>
        <source>%1 is not in the files any more; the winner is the reference now.</source>
        <translation>%1 n’est plus dans les fichiers&#x202f;; le vainqueur est maintenant la référence.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu&#x202f;: %2</translation>
    </message>
    <message>
        <source>%1 files cannot be read, the first of them %2: %3</source>
        <translation>%1 fichiers ne peuvent pas être lus, le premier est %2&#x202f;: %3</translation>
    </message>
    <message>
        <source>Stopped: not all files were read.</source>
        <translation>Arrêté&#x202f;: tous les fichiers n’ont pas été lus.</translation>
    </message>
    <message>
        <source>There is no run in what was opened.</source>
        <translation>Il n’y a aucune manche dans ce qui a été ouvert.</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Pertes de temps</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
    </message>
    <message>
        <source>Open races</source>
        <translation>Ouvrir des courses</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Fichiers d’intermédiaires (*.kvx);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open a folder of races</source>
        <translation>Ouvrir un dossier de courses</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>%1 est écrit.</translation>
    </message>
    <message>
        <source>Choose a section first.</source>
        <translation>Choisissez d’abord un secteur.</translation>
    </message>
    <message>
        <source>No film shows this of either run: a film and both marks are needed.</source>
        <translation>Aucun film ne montre cela, pour aucune des deux manches&#x202f;: il faut un film et les deux marques.</translation>
    </message>
    <message>
        <source>No film shows the run here; that of the reference plays alone.</source>
        <translation>Aucun film ne montre la manche ici&#x202f;; celui de la référence est lu seul.</translation>
    </message>
    <message>
        <source>There is no run to watch beside it.</source>
        <translation>Il n’y a pas de manche à regarder à côté.</translation>
    </message>
    <message>
        <source>No film shows %1 here.</source>
        <translation>Aucun film ne montre %1 ici.</translation>
    </message>
    <message>
        <source>There is no run to film beside it.</source>
        <translation>Il n’y a pas de manche à filmer à côté.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MarkList</name>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Inters</translation>
    </message>
    <message>
        <source>Micro splits</source>
        <translation>Micro-inters</translation>
    </message>
    <message>
        <source>Upstream gates</source>
        <translation>Remontées</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Coups</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Pertes de temps</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source> · camera %1</source>
        <translation> · caméra %1</translation>
    </message>
    <message>
        <source> · fixed camera %1</source>
        <translation> · caméra fixe %1</translation>
    </message>
    <message>
        <source> · other run</source>
        <translation> · autre manche</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marque</translation>
    </message>
    <message>
        <source>Times are of this run, whatever film a mark lies on. A click shows the frame of a mark; Ctrl and Shift choose several for their clips</source>
        <translation>Les temps sont ceux de cette manche, quel que soit le film de la marque. Un clic montre l’image d’une marque&#x202f;; Ctrl et Maj en choisissent plusieurs pour leurs extraits</translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation>Types</translation>
    </message>
    <message>
        <source>The kinds of marks that are listed</source>
        <translation>Les types de marques listés</translation>
    </message>
    <message>
        <source>Marks of the run</source>
        <translation>Marques de la manche</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Tous les types</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Extraits</translation>
    </message>
    <message>
        <source>Plays the clips of the chosen marks one after another; of all that are listed when not several are chosen</source>
        <translation>Lit l’un après l’autre les extraits des marques choisies&#x202f;; de toutes celles listées si plusieurs ne sont pas choisies</translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) before and after a mark</source>
        <translation>
            <numerusform>%n seconde avant et après une marque</numerusform>
            <numerusform>%n secondes avant et après une marque</numerusform>
        </translation>
    </message>
    <message>
        <source> · outside the film</source>
        <translation> · hors du film</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MicroPage</name>
    <message>
        <source>Mark</source>
        <translation>Marque</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>From the one before</source>
        <translation>Depuis le précédent</translation>
    </message>
    <message>
        <source>M marks a micro split at the frame shown.</source>
        <translation>M marque un micro-intermédiaire à l’image affichée.</translation>
    </message>
    <message>
        <source>micro split</source>
        <translation>micro-intermédiaire</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionActions</name>
    <message>
        <source>Charts</source>
        <translation>Graphiques</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>&amp;Open recordings…</source>
        <translation>Ouvrir &amp;des enregistrements…</translation>
    </message>
    <message>
        <source>Save the &amp;chart…</source>
        <translation>Enregistrer le &amp;graphique…</translation>
    </message>
    <message>
        <source>&amp;Recording</source>
        <translation>&amp;Enregistrement</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Convertir</translation>
    </message>
    <message>
        <source>Convert &amp;all ticked</source>
        <translation>Convertir &amp;tous ceux cochés</translation>
    </message>
    <message>
        <source>&amp;Open the converted session</source>
        <translation>&amp;Ouvrir la séance convertie</translation>
    </message>
    <message>
        <source>&amp;Previous recording</source>
        <translation>Enregistrement &amp;précédent</translation>
    </message>
    <message>
        <source>&amp;Next recording</source>
        <translation>&amp;Enregistrement suivant</translation>
    </message>
    <message>
        <source>&amp;Show or hide</source>
        <translation>&amp;Afficher ou masquer</translation>
    </message>
    <message>
        <source>Show this one a&amp;lone</source>
        <translation>Afficher celui-ci &amp;seul</translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation>&amp;Retirer de la liste</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Temps</translation>
    </message>
    <message>
        <source>&amp;Undo the move</source>
        <translation>Annuler le &amp;déplacement</translation>
    </message>
    <message>
        <source>&amp;Redo the move</source>
        <translation>&amp;Rétablir le déplacement</translation>
    </message>
    <message>
        <source>Align the &amp;starts</source>
        <translation>&amp;Aligner les départs</translation>
    </message>
    <message>
        <source>Align by the &amp;clock</source>
        <translation>Aligner par &amp;l’horloge</translation>
    </message>
    <message>
        <source>&amp;Align here: the cursor to the clicked moment</source>
        <translation>Aligner &amp;ici&#x202f;: le curseur au moment cliqué</translation>
    </message>
    <message>
        <source>&amp;Forget the clicked moment</source>
        <translation>&amp;Oublier le moment cliqué</translation>
    </message>
    <message>
        <source>&amp;Earlier</source>
        <translation>Plus &amp;tôt</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Plus tard</translation>
    </message>
    <message>
        <source>&amp;Previous stroke</source>
        <translation>Co&amp;up de pagaie précédent</translation>
    </message>
    <message>
        <source>&amp;Next stroke</source>
        <translation>&amp;Coup de pagaie suivant</translation>
    </message>
    <message>
        <source>&amp;Charts</source>
        <translation>&amp;Graphiques</translation>
    </message>
    <message>
        <source>Axes of the &amp;phone</source>
        <translation>&amp;Axes du téléphone</translation>
    </message>
    <message>
        <source>Axes of the phone</source>
        <translation>Axes du téléphone</translation>
    </message>
    <message>
        <source>&amp;Mark strokes and turns</source>
        <translation>&amp;Marquer coups de pagaie et virages</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;Zoom avant</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Zoom &amp;arrière</translation>
    </message>
    <message>
        <source>Show &amp;everything</source>
        <translation>&amp;Tout afficher</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionAlignment</name>
    <message>
        <source>Every recording begins at 0. Ctrl+Z brings the alignment before back.</source>
        <translation>Chaque enregistrement commence à 0. Ctrl+Z rétablit l’alignement précédent.</translation>
    </message>
    <message>
        <source>Every recording stands at its date. Ctrl+Z brings the alignment before back.</source>
        <translation>Chaque enregistrement est à sa date. Ctrl+Z rétablit l’alignement précédent.</translation>
    </message>
    <message>
        <source>The date is not known of %1</source>
        <translation>La date de %1 n’est pas connue</translation>
    </message>
    <message>
        <source>Click the moment where it should be, choose a recording, point at its moment and press A</source>
        <translation>Cliquez le moment voulu, choisissez un enregistrement, pointez son moment et appuyez sur A</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionCharts</name>
    <message>
        <source>here</source>
        <translation>ici</translation>
    </message>
    <message>
        <source>L</source>
        <translation>G</translation>
    </message>
    <message>
        <source>R</source>
        <translation>D</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionConversions</name>
    <message>
        <source>Convert</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>%1  %2: %3 strokes, %4 turns</source>
        <translation>%1  %2&#x202f;: %3 coups de pagaie, %4 virages</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionPanel</name>
    <message>
        <source>%1 s of %2 s are recorded.</source>
        <translation>%1 s sur %2 s sont enregistrées.</translation>
    </message>
    <message>
        <source>Nothing of it is recorded.</source>
        <translation>Rien n’en est enregistré.</translation>
    </message>
    <message>
        <source>greatest %1 m/s, %2 m</source>
        <translation>maximum %1 m/s, %2 m</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Coups</translation>
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
        <translation>Cœur</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Cadence</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Fréquence cardiaque</translation>
    </message>
    <message>
        <source>Select a run to see its strokes, speed and heart rate.</source>
        <translation>Sélectionnez une manche pour voir ses coups de pagaie, sa vitesse et sa fréquence cardiaque.</translation>
    </message>
    <message>
        <source>No recording is attached to this run. Split taking attaches one (Ctrl+B).</source>
        <translation>Aucun enregistrement n’est joint à cette manche. La prise de temps intermédiaires en joint un (Ctrl+B).</translation>
    </message>
    <message>
        <source>%1 of the part that is recorded; strokes of the whole run are not known.</source>
        <translation>%1 de la partie enregistrée&#x202f;; les coups de pagaie de la manche entière ne sont pas connus.</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manche</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionRecordings</name>
    <message>
        <source>%1: there is not enough memory for it</source>
        <translation>%1&#x202f;: il n’y a pas assez de mémoire pour cela</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionWindow</name>
    <message>
        <source>Recordings</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>L’ouvrir</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Writes strokes and turns as a processed session (.bms) beside the recording</source>
        <translation>Écrit coups de pagaie et virages en séance traitée (.bms) à côté de l’enregistrement</translation>
    </message>
    <message>
        <source>Convert all ticked</source>
        <translation>Convertir tous ceux cochés</translation>
    </message>
    <message>
        <source>At the cursor</source>
        <translation>Au curseur</translation>
    </message>
    <message>
        <source>Drop raw recordings (.kvb) here</source>
        <translation>Déposez ici des enregistrements bruts (.kvb)</translation>
    </message>
    <message>
        <source>Several are laid over each other. They are only read: converting writes a new file.</source>
        <translation>Plusieurs sont superposés. Ils sont seulement lus&#x202f;: convertir écrit un nouveau fichier.</translation>
    </message>
    <message>
        <source>Open recordings…</source>
        <translation>Ouvrir des enregistrements…</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>Ouvrir des enregistrements</translation>
    </message>
    <message>
        <source>Raw recordings (*.kvb);;All files (*)</source>
        <translation>Enregistrements bruts (*.kvb);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lecture de %1…</translation>
    </message>
    <message>
        <source>Raw recordings</source>
        <translation>Enregistrements bruts</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::NoteMarks</name>
    <message>
        <source>This mark lies on the film of a fixed camera that is not in step.</source>
        <translation>Cette marque est sur le film d’une caméra fixe qui n’est pas synchronisée.</translation>
    </message>
    <message>
        <source>The other run of this time loss is not in this file.</source>
        <translation>L’autre manche de cette perte de temps n’est pas dans ce fichier.</translation>
    </message>
    <message>
        <source>Another run came to the front: nothing was marked.</source>
        <translation>Une autre manche est passée au premier plan&#x202f;: rien n’a été marqué.</translation>
    </message>
    <message>
        <source>Nothing can be marked: %1 is not in the folder of the split file. Cameras &gt; Where are the films now?</source>
        <translation>Rien ne peut être marqué&#x202f;: %1 n’est pas dans le dossier du fichier d’intermédiaires. Caméras &gt; Où sont les films maintenant&#x202f;?</translation>
    </message>
    <message>
        <source>mark moved</source>
        <translation>marque déplacée</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>Aucune marque n’est choisie. Ctrl et les flèches vont de marque en marque.</translation>
    </message>
    <message>
        <source>This mark lies on another film than the one shown.</source>
        <translation>Cette marque est sur un autre film que celui affiché.</translation>
    </message>
    <message>
        <source>None of these marks lies on the film that is shown.</source>
        <translation>Aucune de ces marques n’est sur le film affiché.</translation>
    </message>
    <message>
        <source>Nothing is selected that could be removed. Ctrl and the arrows go from mark to mark.</source>
        <translation>Rien de sélectionné ne peut être retiré. Ctrl et les flèches vont de marque en marque.</translation>
    </message>
    <message>
        <source>mark removed</source>
        <translation>marque retirée</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::NotePage</name>
    <message>
        <source>Splits</source>
        <translation>Inters</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Pénalités</translation>
    </message>
    <message>
        <source>Upstreams</source>
        <translation>Remontées</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Coups</translation>
    </message>
    <message>
        <source>Micro</source>
        <translation>Micro</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Losses</source>
        <translation>Pertes</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Ways</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Caméras</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::NotesPanel</name>
    <message>
        <source>Clip %1 of %2</source>
        <translation>Extrait %1 sur %2</translation>
    </message>
    <message>
        <source>This key works in the mode %1.</source>
        <translation>Cette touche agit dans le mode %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OfferDialog</name>
    <message>
        <source>A newer version</source>
        <translation>Une version plus récente</translation>
    </message>
    <message>
        <source>Kavela %1 is here</source>
        <translation>Kavela %1 est là</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>Nothing is told of what is new.</source>
        <translation>Rien n’est dit des nouveautés.</translation>
    </message>
    <message>
        <source>The file has %1 and is put into %2. You install it yourself, when it suits you.</source>
        <translation>Le fichier fait %1 et est placé dans %2. Vous l’installez vous-même, quand cela vous convient.</translation>
    </message>
    <message>
        <source>It is of %1. You have %2.</source>
        <translation>Elle est du %1. Vous avez %2.</translation>
    </message>
    <message>
        <source>&amp;Skip this version</source>
        <translation>&amp;Sauter cette version</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Plus tard</translation>
    </message>
    <message>
        <source>&amp;Download</source>
        <translation>&amp;Télécharger</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Show the folder</source>
        <translation>&amp;Montrer le dossier</translation>
    </message>
    <message>
        <source>The file is the one that was signed, and stands as “%1” in %2. Leave Kavela before you install it.</source>
        <translation>Le fichier est bien celui qui a été signé&#x202f;; il se trouve sous le nom «&#xa0;%1&#xa0;» dans %2. Quittez Kavela avant de l’installer.</translation>
    </message>
    <message>
        <source>Nothing was kept of the file.</source>
        <translation>Rien du fichier n’a été gardé.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OfficialDialog</name>
    <message>
        <source>Crew</source>
        <translation>Équipage</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Ce qui diffère</translation>
    </message>
    <message>
        <source>How</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>Official results and the films</source>
        <translation>Résultats officiels et films</translation>
    </message>
    <message>
        <source>&amp;Take over</source>
        <translation>&amp;Reprendre</translation>
    </message>
    <message>
        <source>&amp;Show the run</source>
        <translation>&amp;Montrer la manche</translation>
    </message>
    <message>
        <source>A &amp;file…</source>
        <translation>&amp;Un fichier…</translation>
    </message>
    <message>
        <source>Results list</source>
        <translation>Liste des résultats</translation>
    </message>
    <message>
        <source>Attached document</source>
        <translation>Document joint</translation>
    </message>
    <message>
        <source>Table kept with the race</source>
        <translation>Tableau conservé avec la course</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Toutes les catégories</translation>
    </message>
    <message>
        <source>All phases</source>
        <translation>Toutes les phases</translation>
    </message>
    <message>
        <source>Official results</source>
        <translation>Résultats officiels</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lecture de %1…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>The race carries no results list. Open one with “A file…”.</source>
        <translation>La course ne porte pas de liste de résultats. Ouvrez-en une avec «&#xa0;Un fichier…&#xa0;».</translation>
    </message>
    <message>
        <source>The films and this list say the same.</source>
        <translation>Les films et cette liste disent la même chose.</translation>
    </message>
    <message>
        <source>%1 differences, %2 of them to take over. The films&apos; own times stay; Ctrl+Z in split taking takes a step back.</source>
        <translation>%1 différences, dont %2 à reprendre. Les temps propres des films restent&#x202f;; Ctrl+Z dans la prise de temps intermédiaires annule une étape.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlineDialog</name>
    <message>
        <source>Any server that stores files by WebDAV will do. The password is asked for each time and stored nowhere.</source>
        <translation>N’importe quel serveur qui conserve des fichiers par WebDAV convient. Le mot de passe est demandé à chaque fois et n’est gardé nulle part.</translation>
    </message>
    <message>
        <source>&amp;Planning</source>
        <translation>&amp;Planification</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Adresse</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>&amp;Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Mot de passe</translation>
    </message>
    <message>
        <source>The settings name no shared planning.</source>
        <translation>Les réglages ne nomment aucune planification partagée.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlinePlanning</name>
    <message>
        <source>Saving the planning online…</source>
        <translation>Enregistrement de la planification en ligne…</translation>
    </message>
    <message>
        <source>“%1” is saved online.</source>
        <translation>«&#xa0;%1&#xa0;» est enregistrée en ligne.</translation>
    </message>
    <message>
        <source>“%1” was changed on the server since this planning was read from there or saved there. Saving would lose that change.</source>
        <translation>«&#xa0;%1&#xa0;» a été modifiée sur le serveur depuis que cette planification y a été lue ou enregistrée. Enregistrer perdrait cette modification.</translation>
    </message>
    <message>
        <source>There is a planning “%1” on the server that this one does not come from. Saving would replace it.</source>
        <translation>Il y a sur le serveur une planification «&#xa0;%1&#xa0;» dont celle-ci ne provient pas. Enregistrer la remplacerait.</translation>
    </message>
    <message>
        <source>Somebody else&apos;s work lies on the server</source>
        <translation>Le travail de quelqu’un d’autre est sur le serveur</translation>
    </message>
    <message>
        <source>Look at it</source>
        <translation>Le regarder</translation>
    </message>
    <message>
        <source>Save under another name…</source>
        <translation>Enregistrer sous un autre nom…</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Le remplacer</translation>
    </message>
    <message>
        <source>Save the planning online</source>
        <translation>Enregistrer la planification en ligne</translation>
    </message>
    <message>
        <source>Name on the server</source>
        <translation>Nom sur le serveur</translation>
    </message>
    <message>
        <source>%1 (mine)</source>
        <translation>%1 (la mienne)</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a file.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être le nom d’un fichier.</translation>
    </message>
    <message>
        <source>The server has no such file.</source>
        <translation>Le serveur n’a pas ce fichier.</translation>
    </message>
    <message>
        <source>What the server has is no planning.</source>
        <translation>Ce que contient le serveur n’est pas une planification.</translation>
    </message>
    <message>
        <source>The online planning could not be opened.</source>
        <translation>La planification en ligne n’a pas pu être ouverte.</translation>
    </message>
    <message>
        <source>Open an online planning</source>
        <translation>Ouvrir une planification en ligne</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlineSaving</name>
    <message>
        <source>The server changes the planning all the time.</source>
        <translation>Le serveur modifie la planification sans arrêt.</translation>
    </message>
    <message>
        <source>The server has no such folder.</source>
        <translation>Le serveur n’a pas ce dossier.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlineStore</name>
    <message>
        <source>The address is none. It begins with https://.</source>
        <translation>Ce n’est pas une adresse. Elle commence par https://.</translation>
    </message>
    <message>
        <source>Only https:// keeps the password and the plan from other readers.</source>
        <translation>Seul https:// protège le mot de passe et le plan des autres lecteurs.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OrderBoard</name>
    <message>
        <source>Order at the gate in front</source>
        <translation>Ordre à la porte au premier plan</translation>
    </message>
    <message>
        <source>A place up</source>
        <translation>Une place plus haut</translation>
    </message>
    <message>
        <source>A place down</source>
        <translation>Une place plus bas</translation>
    </message>
    <message>
        <source>Not seen at this gate</source>
        <translation>Pas vu à cette porte</translation>
    </message>
    <message>
        <source>Seen, as the last</source>
        <translation>Vu, comme dernier</translation>
    </message>
    <message>
        <source>not of this heat</source>
        <translation>pas de cette série</translation>
    </message>
    <message>
        <source>not seen</source>
        <translation>pas vu</translation>
    </message>
    <message>
        <source>%1 won</source>
        <translation>%1 gagnées</translation>
    </message>
    <message>
        <source>%1 lost</source>
        <translation>%1 perdues</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PageView</name>
    <message>
        <source>Pages of the report</source>
        <translation>Pages du rapport</translation>
    </message>
    <message>
        <source>There is nothing to show.</source>
        <translation>Il n’y a rien à montrer.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PathPages</name>
    <message>
        <source>Draw a box round what is to be followed.</source>
        <translation>Dessinez un cadre autour de ce qui doit être suivi.</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Chiffres</translation>
    </message>
    <message>
        <source>Known points</source>
        <translation>Points connus</translation>
    </message>
    <message>
        <source>Two points give a scale only: lengths and speeds hold near them and along the line between them. Four give the perspective too.</source>
        <translation>Deux points ne donnent qu’une échelle&#x202f;: longueurs et vitesses valent près d’eux et le long de la ligne entre eux. Quatre donnent aussi la perspective.</translation>
    </message>
    <message>
        <source>What is followed is not on the water, such as a head: its metres are off.</source>
        <translation>Ce qui est suivi n’est pas sur l’eau, comme une tête&#x202f;: ses mètres sont faussés.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltiesActions</name>
    <message>
        <source>Crews</source>
        <translation>Équipages</translation>
    </message>
    <message>
        <source>&amp;Open split files…</source>
        <translation>Ou&amp;vrir des fichiers d’intermédiaires…</translation>
    </message>
    <message>
        <source>Open a &amp;folder…</source>
        <translation>Ouvrir un &amp;dossier…</translation>
    </message>
    <message>
        <source>Read &amp;again</source>
        <translation>Rel&amp;ire</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>Arrêter &amp;la lecture</translation>
    </message>
    <message>
        <source>Files that could not be rea&amp;d…</source>
        <translation>Fichiers qui &amp;n’ont pas pu être lus…</translation>
    </message>
    <message>
        <source>Save the &amp;table as CSV…</source>
        <translation>Enregistrer le &amp;tableau en CSV…</translation>
    </message>
    <message>
        <source>Save the &amp;chart…</source>
        <translation>Enregistrer le &amp;graphique…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>Affi&amp;cher</translation>
    </message>
    <message>
        <source>&amp;Course</source>
        <translation>&amp;Parcours</translation>
    </message>
    <message>
        <source>&amp;Rates</source>
        <translation>T&amp;aux</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Détails</translation>
    </message>
    <message>
        <source>Cost in &amp;places</source>
        <translation>&amp;Coût en places</translation>
    </message>
    <message>
        <source>Risk and &amp;speed</source>
        <translation>&amp;Risque et vitesse</translation>
    </message>
    <message>
        <source>&amp;Next course</source>
        <translation>Parcours &amp;suivant</translation>
    </message>
    <message>
        <source>Pre&amp;vious course</source>
        <translation>Parc&amp;ours précédent</translation>
    </message>
    <message>
        <source>&amp;All runs</source>
        <translation>Toutes &amp;les manches</translation>
    </message>
    <message>
        <source>The &amp;whole chart</source>
        <translation>&amp;Tout le graphique</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltiesWindow</name>
    <message>
        <source>Penalties</source>
        <translation>Pénalités</translation>
    </message>
    <message>
        <source>Drop split files (.kvx) or a folder of them here</source>
        <translation>Déposez ici des fichiers d’intermédiaires (.kvx) ou un dossier qui en contient</translation>
    </message>
    <message>
        <source>Open split files…</source>
        <translation>Ouvrir des fichiers d’intermédiaires…</translation>
    </message>
    <message>
        <source>Open a folder…</source>
        <translation>Ouvrir un dossier…</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Parcours</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Taux</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Cost in places</source>
        <translation>Coût en places</translation>
    </message>
    <message>
        <source>Risk and speed</source>
        <translation>Risque et vitesse</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Open split files</source>
        <translation>Ouvrir des fichiers d’intermédiaires</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Fichiers d’intermédiaires (*.kvx);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open a folder</source>
        <translation>Ouvrir un dossier</translation>
    </message>
    <message>
        <source>Which gates are touched and missed, by whom, and what it cost: of one race, of several, or of a whole season. Files are only read.</source>
        <translation>Quelles portes sont touchées et manquées, par qui, et ce que cela a coûté&#x202f;: pour une course, plusieurs, ou toute une saison. Les fichiers sont seulement lus.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>There is no split file (.kvx) here.</source>
        <translation>Il n’y a aucun fichier d’intermédiaires (.kvx) ici.</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 fichier</translation>
    </message>
    <message>
        <source>1 run</source>
        <translation>1 manche</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n manche</numerusform>
            <numerusform>%n manches</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltyFilter</name>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Catégorie</translation>
    </message>
    <message>
        <source>&amp;Phase</source>
        <translation>&amp;Phase</translation>
    </message>
    <message>
        <source>Cre&amp;w</source>
        <translation>É&amp;quipage</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltyPage</name>
    <message>
        <source>Gate</source>
        <translation>Porte</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Pénalité</translation>
    </message>
    <message>
        <source>Pole</source>
        <translation>Fiche</translation>
    </message>
    <message>
        <source>With</source>
        <translation>Avec</translation>
    </message>
    <message>
        <source>Another at this gate</source>
        <translation>Une autre à cette porte</translation>
    </message>
    <message>
        <source>Choose what else happened at the gate in front; M adds it</source>
        <translation>Choisissez ce qui s’est encore passé à la porte au premier plan&#x202f;; M l’ajoute</translation>
    </message>
    <message>
        <source>Moment</source>
        <translation>Moment</translation>
    </message>
    <message>
        <source>Gate is</source>
        <translation>La porte est</translation>
    </message>
    <message>
        <source>Boat moves</source>
        <translation>Le bateau va</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Eyes</source>
        <translation>Regard</translation>
    </message>
    <message>
        <source>Gate %1: %2 s. The lists change its penalty.</source>
        <translation>Porte %1&#x202f;: %2 s. Les listes changent sa pénalité.</translation>
    </message>
    <message>
        <source>Gate %1: %2 s. M adds a penalty.</source>
        <translation>Porte %1&#x202f;: %2 s. M ajoute une pénalité.</translation>
    </message>
    <message>
        <source>The seconds differ from the penalties listed at gate %1.</source>
        <translation>Les secondes diffèrent des pénalités listées à la porte %1.</translation>
    </message>
    <message>
        <source>The course has no gates yet: Ctrl+G sets it up.</source>
        <translation>Le parcours n’a pas encore de portes&#x202f;: Ctrl+G les règle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; begins a second one.</source>
        <translation>«&#xa0;%1&#xa0;» en commence une deuxième.</translation>
    </message>
    <message>
        <source>penalty at gate %1</source>
        <translation>pénalité à la porte %1</translation>
    </message>
    <message>
        <source>penalty removed</source>
        <translation>pénalité retirée</translation>
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
        <translation>Temps</translation>
    </message>
    <message>
        <source>time</source>
        <translation>temps</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Pénalité</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>pénalité</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>position</source>
        <translation>position</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Enter a time or a position first.</source>
        <translation>Saisissez d’abord un temps ou une position.</translation>
    </message>
    <message>
        <source>date</source>
        <translation>date</translation>
    </message>
    <message>
        <source>Behind</source>
        <translation>Retard</translation>
    </message>
    <message>
        <source>Known where the run was taken over from a split file</source>
        <translation>Connu là où la manche a été reprise d’un fichier d’intermédiaires</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Inters</translation>
    </message>
    <message>
        <source>removal of a run</source>
        <translation>retrait d’une manche</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PhonePageDialog</name>
    <message>
        <source>&amp;Cut the runs out of their films</source>
        <translation>&amp;Couper les manches de leurs films</translation>
    </message>
    <message>
        <source>Page for an athlete</source>
        <translation>Page pour un athlète</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Enregistrer…</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>A&amp;thlète</translation>
    </message>
    <message>
        <source>Choose one of the athletes of the list.</source>
        <translation>Choisissez un des athlètes de la liste.</translation>
    </message>
    <message>
        <source>One file for the telephone, of one race as it was last saved. Films lie in the folder beside it.</source>
        <translation>Un seul fichier pour le téléphone, d’une course telle qu’enregistrée en dernier. Les films sont dans le dossier à côté.</translation>
    </message>
    <message>
        <source>One file for the telephone, the season of %1 files as they were last saved. Films lie in the folder beside it.</source>
        <translation>Un seul fichier pour le téléphone, la saison de %1 fichiers tels qu’enregistrés en dernier. Les films sont dans le dossier à côté.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PhonePages</name>
    <message>
        <source>No clip of %1: %2</source>
        <translation>Pas d’extrait de %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>Save the page of %1</source>
        <translation>Enregistrer la page de %1</translation>
    </message>
    <message>
        <source>Pages (*.html *.htm)</source>
        <translation>Pages (*.html *.htm)</translation>
    </message>
    <message>
        <source>The page cannot be written over a race that it is made from.</source>
        <translation>La page ne peut pas être écrite par-dessus une course dont elle est tirée.</translation>
    </message>
    <message>
        <source>Making the page…</source>
        <translation>Création de la page…</translation>
    </message>
    <message>
        <source>Page for an athlete</source>
        <translation>Page pour un athlète</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>%1 est écrit.</translation>
    </message>
    <message>
        <source>&amp;Open it</source>
        <translation>&amp;L’ouvrir</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>&amp;Montrer dans le dossier</translation>
    </message>
    <message>
        <source>The saved files have no run of this athlete.</source>
        <translation>Les fichiers enregistrés n’ont aucune manche de cet athlète.</translation>
    </message>
    <message>
        <source>There is no run of a named athlete in the split files that are open.</source>
        <translation>Les fichiers d’intermédiaires ouverts n’ont aucune manche d’un athlète nommé.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PivotDialog</name>
    <message>
        <source>Pivot</source>
        <translation>Tableau croisé</translation>
    </message>
    <message>
        <source>one column for all</source>
        <translation>une colonne pour tous</translation>
    </message>
    <message>
        <source>How many</source>
        <translation>Combien</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Somme</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Médiane</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Most</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>A &amp;row for each</source>
        <translation>&amp;Une ligne pour chaque</translation>
    </message>
    <message>
        <source>A &amp;column for each</source>
        <translation>Une &amp;colonne pour chaque</translation>
    </message>
    <message>
        <source>&amp;Of</source>
        <translation>&amp;De</translation>
    </message>
    <message>
        <source>&amp;Tell</source>
        <translation>&amp;Indiquer</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlaceGrid</name>
    <message>
        <source>Places at the gates</source>
        <translation>Places aux portes</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Porte %1</translation>
    </message>
    <message>
        <source>, which is not on the cross course</source>
        <translation>, qui n’est pas sur le parcours de cross</translation>
    </message>
    <message>
        <source>, replaced by a later order</source>
        <translation>, remplacé par un ordre ultérieur</translation>
    </message>
    <message>
        <source>No order yet.</source>
        <translation>Pas encore d’ordre.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlanView</name>
    <message>
        <source>The week&apos;s date is in no calendar, so that it has no days.</source>
        <translation>La date de la semaine n’est dans aucun calendrier&#x202f;: elle n’a donc pas de jours.</translation>
    </message>
    <message>
        <source>new session</source>
        <translation>nouvelle séance</translation>
    </message>
    <message>
        <source>session</source>
        <translation>séance</translation>
    </message>
    <message>
        <source>removal of a session</source>
        <translation>retrait d’une séance</translation>
    </message>
    <message>
        <source>copied session</source>
        <translation>séance copiée</translation>
    </message>
    <message>
        <source>move of a session</source>
        <translation>déplacement d’une séance</translation>
    </message>
    <message>
        <source>There is no week there in this season.</source>
        <translation>Il n’y a pas de semaine à cet endroit de la saison.</translation>
    </message>
    <message>
        <source>Week %1 is copied.</source>
        <translation>La semaine %1 est copiée.</translation>
    </message>
    <message>
        <source>One of the two weeks has a date that is in no calendar.</source>
        <translation>L’une des deux semaines a une date qui n’est dans aucun calendrier.</translation>
    </message>
    <message>
        <source>copy of a week</source>
        <translation>copie d’une semaine</translation>
    </message>
    <message>
        <source>Week %1 now holds the copied week; %2 sessions that stood there went. Ctrl+Z brings them back.</source>
        <translation>La semaine %1 contient maintenant la semaine copiée&#x202f;; %2 séances qui s’y trouvaient sont parties. Ctrl+Z les rétablit.</translation>
    </message>
    <message>
        <source>repeated weeks</source>
        <translation>semaines répétées</translation>
    </message>
    <message>
        <source>%1 weeks were written.</source>
        <translation>%1 semaines ont été écrites.</translation>
    </message>
    <message>
        <source>There is no week behind the chosen ones.</source>
        <translation>Il n’y a aucune semaine après celles choisies.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Répéter</translation>
    </message>
    <message>
        <source>How often do the %1 chosen weeks follow themselves?
Sessions, totals, load, cycles, place, tests and goals of the weeks behind are replaced; their events and health stay.</source>
        <translation>Combien de fois les %1 semaines choisies se répètent-elles à la suite&#x202f;?
Séances, totaux, charge, cycles, lieu, tests et objectifs des semaines suivantes sont remplacés&#x202f;; leurs compétitions et leur santé restent.</translation>
    </message>
    <message>
        <source>emptied weeks</source>
        <translation>semaines vidées</translation>
    </message>
    <message>
        <source>planned totals</source>
        <translation>totaux prévus</translation>
    </message>
    <message>
        <source>new week</source>
        <translation>nouvelle semaine</translation>
    </message>
    <message>
        <source>removal of the last week</source>
        <translation>retrait de la dernière semaine</translation>
    </message>
    <message>
        <source>Totals of the week</source>
        <translation>Totaux de la semaine</translation>
    </message>
    <message>
        <source>Totals of the chosen weeks</source>
        <translation>Totaux des semaines choisies</translation>
    </message>
    <message>
        <source>Totals of the mesocycle</source>
        <translation>Totaux du mésocycle</translation>
    </message>
    <message>
        <source>Totals of the season</source>
        <translation>Totaux de la saison</translation>
    </message>
    <message>
        <source>planned sessions</source>
        <translation>séances prévues</translation>
    </message>
    <message>
        <source>planned quantity</source>
        <translation>quantité prévue</translation>
    </message>
    <message>
        <source>Add an athlete with Ctrl+N to begin a plan.</source>
        <translation>Ajoutez un athlète avec Ctrl+N pour commencer un plan.</translation>
    </message>
    <message>
        <source>Add a season with Ctrl+Shift+N: 52 empty weeks to fill.</source>
        <translation>Ajoutez une saison avec Ctrl+Maj+N&#x202f;: 52 semaines vides à remplir.</translation>
    </message>
    <message>
        <source>This season has no weeks. Add one with the menu Week.</source>
        <translation>Cette saison n’a pas de semaines. Ajoutez-en une par le menu Semaine.</translation>
    </message>
    <message>
        <source>This season has no week of today.</source>
        <translation>Cette saison n’a pas la semaine d’aujourd’hui.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlannedAthleteDialog</name>
    <message>
        <source>Athlete</source>
        <translation>Athlète</translation>
    </message>
    <message>
        <source>&amp;Picture…</source>
        <translation>&amp;Photo…</translation>
    </message>
    <message>
        <source>&amp;No picture</source>
        <translation>&amp;Sans photo</translation>
    </message>
    <message>
        <source>Picture of the athlete</source>
        <translation>Photo de l’athlète</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg)</source>
        <translation>Images (*.png *.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nom</translation>
    </message>
    <message>
        <source>&amp;Categories</source>
        <translation>&amp;Catégories</translation>
    </message>
    <message>
        <source>&amp;E-mail</source>
        <translation>&amp;E-mail</translation>
    </message>
    <message>
        <source>P&amp;hone</source>
        <translation>&amp;Téléphone</translation>
    </message>
    <message>
        <source>The file is no picture, cannot be read, or is larger than 8 MB.</source>
        <translation>Le fichier n’est pas une image, ne peut pas être lu, ou dépasse 8 Mo.</translation>
    </message>
    <message>
        <source>The athlete needs a name.</source>
        <translation>L’athlète doit avoir un nom.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlanningDocument</name>
    <message>
        <source>online planning</source>
        <translation>planification en ligne</translation>
    </message>
    <message>
        <source>The planning “%1” will be replaced.</source>
        <translation>La planification «&#xa0;%1&#xa0;» sera remplacée.</translation>
    </message>
    <message>
        <source>1 athlete</source>
        <translation>1 athlète</translation>
    </message>
    <message numerus="yes">
        <source>%n athletes</source>
        <translation>
            <numerusform>%n athlète</numerusform>
            <numerusform>%n athlètes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlanningWindow</name>
    <message>
        <source>&amp;Athlete</source>
        <translation>A&amp;thlète</translation>
    </message>
    <message>
        <source>&amp;New athlete…</source>
        <translation>&amp;Nouvel athlète…</translation>
    </message>
    <message>
        <source>&amp;Edit the athlete…</source>
        <translation>&amp;Modifier l’athlète…</translation>
    </message>
    <message>
        <source>&amp;Remove the athlete</source>
        <translation>&amp;Retirer l’athlète</translation>
    </message>
    <message>
        <source>New &amp;season</source>
        <translation>Nouvelle &amp;saison</translation>
    </message>
    <message>
        <source>Remove the s&amp;eason</source>
        <translation>Retirer &amp;la saison</translation>
    </message>
    <message>
        <source>&amp;Session</source>
        <translation>&amp;Séance</translation>
    </message>
    <message>
        <source>Sessions are in the plan: show &amp;it</source>
        <translation>Les séances sont dans le &amp;plan&#x202f;: l’afficher</translation>
    </message>
    <message>
        <source>&amp;New session…</source>
        <translation>&amp;Nouvelle séance…</translation>
    </message>
    <message>
        <source>&amp;Edit the session…</source>
        <translation>&amp;Modifier la séance…</translation>
    </message>
    <message>
        <source>&amp;Remove the session</source>
        <translation>&amp;Retirer la séance</translation>
    </message>
    <message>
        <source>&amp;Copy the session</source>
        <translation>&amp;Copier la séance</translation>
    </message>
    <message>
        <source>&amp;Paste the session</source>
        <translation>Coller &amp;la séance</translation>
    </message>
    <message>
        <source>Move to the week &amp;before</source>
        <translation>Déplacer à la &amp;semaine précédente</translation>
    </message>
    <message>
        <source>Move to the week be&amp;hind</source>
        <translation>&amp;Déplacer à la semaine suivante</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>S&amp;emaine</translation>
    </message>
    <message>
        <source>&amp;Previous week</source>
        <translation>Semaine &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>&amp;Semaine suivante</translation>
    </message>
    <message>
        <source>&amp;This week</source>
        <translation>&amp;Cette semaine</translation>
    </message>
    <message>
        <source>&amp;Copy the week</source>
        <translation>Copier &amp;la semaine</translation>
    </message>
    <message>
        <source>Paste the &amp;week</source>
        <translation>C&amp;oller la semaine</translation>
    </message>
    <message>
        <source>&amp;Repeat the chosen weeks…</source>
        <translation>Répé&amp;ter les semaines choisies…</translation>
    </message>
    <message>
        <source>&amp;Empty the chosen weeks</source>
        <translation>&amp;Vider les semaines choisies</translation>
    </message>
    <message>
        <source>P&amp;lan what is in the sessions</source>
        <translation>Prévoir ce &amp;qui est dans les séances</translation>
    </message>
    <message>
        <source>&amp;Add a week at the end</source>
        <translation>&amp;Ajouter une semaine à la fin</translation>
    </message>
    <message>
        <source>Re&amp;move the last week</source>
        <translation>&amp;Retirer la dernière semaine</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affi&amp;chage</translation>
    </message>
    <message>
        <source>&amp;Find an athlete</source>
        <translation>Chercher &amp;un athlète</translation>
    </message>
    <message>
        <source>&amp;Reports: preview, PDF, print…</source>
        <translation>Rapports&#x202f;: aperçu, &amp;PDF, impression…</translation>
    </message>
    <message>
        <source>Week as a &amp;calendar file…</source>
        <translation>&amp;Semaine en fichier de calendrier…</translation>
    </message>
    <message>
        <source>Import heart-rate &amp;variability…</source>
        <translation>&amp;Importer la variabilité de la fréquence cardiaque…</translation>
    </message>
    <message>
        <source>Open an o&amp;nline planning…</source>
        <translation>&amp;Ouvrir une planification en ligne…</translation>
    </message>
    <message>
        <source>Sa&amp;ve online…</source>
        <translation>&amp;Enregistrer en ligne…</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Athlètes</translation>
    </message>
    <message>
        <source>Planning</source>
        <translation>Planification</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Objectifs</translation>
    </message>
    <message>
        <source>Body and heart</source>
        <translation>Corps et cœur</translation>
    </message>
    <message>
        <source>Gym</source>
        <translation>Musculation</translation>
    </message>
    <message>
        <source>Ranking and races</source>
        <translation>Classement et courses</translation>
    </message>
    <message>
        <source>Interval sessions</source>
        <translation>Séances d’intervalles</translation>
    </message>
    <message>
        <source>%1 measurements of heart-rate variability of this older file hold only a highest and a lowest value, for which the present version has no place: their dates are taken over, their values are not. Saving keeps the file as it was beside the new one.</source>
        <translation>%1 mesures de variabilité de la fréquence cardiaque de cet ancien fichier ne contiennent qu’une valeur haute et une valeur basse, qui n’ont pas de place dans la version actuelle&#x202f;: leurs dates sont reprises, leurs valeurs non. L’enregistrement garde le fichier d’origine à côté du nouveau.</translation>
    </message>
    <message>
        <source>new athlete</source>
        <translation>nouvel athlète</translation>
    </message>
    <message>
        <source>athlete</source>
        <translation>athlète</translation>
    </message>
    <message>
        <source>removal of an athlete</source>
        <translation>retrait d’un athlète</translation>
    </message>
    <message>
        <source>Add an athlete first.</source>
        <translation>Ajoutez d’abord un athlète.</translation>
    </message>
    <message>
        <source>new season</source>
        <translation>nouvelle saison</translation>
    </message>
    <message>
        <source>removal of a season</source>
        <translation>retrait d’une saison</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlayMenu</name>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>&amp;Lire ou mettre en pause</translation>
    </message>
    <message>
        <source>Backwards, again: faster</source>
        <translation>En arrière, encore une fois&#x202f;: plus vite</translation>
    </message>
    <message>
        <source>Stop; held, J and L step a frame</source>
        <translation>Arrêt&#x202f;; maintenu, J et L avancent d’une image</translation>
    </message>
    <message>
        <source>Forwards, again: faster</source>
        <translation>En avant, encore une fois&#x202f;: plus vite</translation>
    </message>
    <message>
        <source>Slow motion backwards</source>
        <translation>Ralenti en arrière</translation>
    </message>
    <message>
        <source>Slow motion forward</source>
        <translation>Ralenti en avant</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>&amp;Plus lent</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>Plus &amp;vite</translation>
    </message>
    <message>
        <source>&amp;Normal speed</source>
        <translation>Vitesse &amp;normale</translation>
    </message>
    <message>
        <source>S&amp;ound, at normal speed</source>
        <translation>&amp;Son, à vitesse normale</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>Une image en arrière</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>Une image en avant</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>Une seconde en arrière</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>Une seconde en avant</translation>
    </message>
    <message>
        <source>Ten seconds back</source>
        <translation>Dix secondes en arrière</translation>
    </message>
    <message>
        <source>Ten seconds forward</source>
        <translation>Dix secondes en avant</translation>
    </message>
    <message>
        <source>To the beginning</source>
        <translation>Au début</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>À la fin</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlotInteraction</name>
    <message>
        <source>Show everything</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Show all series</source>
        <translation>Afficher toutes les séries</translation>
    </message>
    <message>
        <source>Copy the picture</source>
        <translation>Copier l’image</translation>
    </message>
    <message>
        <source>Copy the values</source>
        <translation>Copier les valeurs</translation>
    </message>
    <message>
        <source>Save as picture (PNG)…</source>
        <translation>Enregistrer en image (PNG)…</translation>
    </message>
    <message>
        <source>Save as drawing (SVG)…</source>
        <translation>Enregistrer en dessin (SVG)…</translation>
    </message>
    <message>
        <source>Save as table (CSV)…</source>
        <translation>Enregistrer en tableau (CSV)…</translation>
    </message>
    <message>
        <source>The chart was not saved</source>
        <translation>Le graphique n’a pas été enregistré</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PotentialPanel</name>
    <message>
        <source>The best of every own section put together, without penalties. What is left is how far the best run is from it.</source>
        <translation>Le meilleur de chaque secteur propre mis bout à bout, sans pénalités. Le reste est ce qui en sépare la meilleure manche.</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlète</translation>
    </message>
    <message>
        <source>Potential</source>
        <translation>Potentiel</translation>
    </message>
    <message>
        <source>Best run</source>
        <translation>Meilleure manche</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Reste</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PowerMeterDialog</name>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Why it is refused</source>
        <translation>Pourquoi c’est refusé</translation>
    </message>
    <message>
        <source>Import power-meter data</source>
        <translation>Importer les données du capteur de puissance</translation>
    </message>
    <message>
        <source>Samples: %1. Lines refused: %2.</source>
        <translation>Échantillons&#x202f;: %1. Lignes refusées&#x202f;: %2.</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>It &amp;begins after the session&apos;s start by</source>
        <translation>&amp;Commence après le début de la séance de</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>%1 of them lie in the session, which lasts %2.</source>
        <translation>%1 d’entre eux se trouvent dans la séance, qui dure %2.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ProgressionPanel</name>
    <message>
        <source>Behind the winners</source>
        <translation>Derrière les vainqueurs</translation>
    </message>
    <message>
        <source>Behind the fastest splits</source>
        <translation>Derrière les intermédiaires les plus rapides</translation>
    </message>
    <message>
        <source>Behind whom</source>
        <translation>Derrière qui</translation>
    </message>
    <message>
        <source>The winners&apos; totals have penalties in them, the fastest splits have not</source>
        <translation>Les temps totaux des vainqueurs contiennent les pénalités, les intermédiaires les plus rapides non</translation>
    </message>
    <message>
        <source>The team has no race of this athlete in these years.</source>
        <translation>L’équipe n’a aucune course de cet athlète dans ces années.</translation>
    </message>
    <message>
        <source>Open the &amp;winner&apos;s run</source>
        <translation>&amp;Ouvrir la manche du vainqueur</translation>
    </message>
    <message>
        <source>In split taking, where a split file has the run</source>
        <translation>Dans la prise de temps intermédiaires, là où un fichier d’intermédiaires a la manche</translation>
    </message>
    <message>
        <source>With a missed gate: left out of spread, trend and changes</source>
        <translation>Avec une porte manquée&#x202f;: absente de la dispersion, de la tendance et des évolutions</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Race</source>
        <translation>Course</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Rang</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Winner&apos;s</source>
        <translation>Du vainqueur</translation>
    </message>
    <message>
        <source>Winner</source>
        <translation>Vainqueur</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>Behind, %</source>
        <translation>Retard,&#x202f;%</translation>
    </message>
    <message>
        <source>On splits, %</source>
        <translation>Sur inters,&#x202f;%</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>The way of %1</source>
        <translation>Le chemin de %1</translation>
    </message>
    <message>
        <source>Behind the winner, %</source>
        <translation>Derrière le vainqueur,&#x202f;%</translation>
    </message>
    <message>
        <source>Behind the fastest splits, %</source>
        <translation>Derrière les intermédiaires les plus rapides,&#x202f;%</translation>
    </message>
    <message>
        <source>Heats</source>
        <translation>Qualifications</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Finale</translation>
    </message>
    <message>
        <source>Semifinal</source>
        <translation>Demi-finale</translation>
    </message>
    <message>
        <source>Other runs</source>
        <translation>Autres manches</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Pour cent</translation>
    </message>
    <message>
        <source>Missed gate</source>
        <translation>Porte manquée</translation>
    </message>
    <message>
        <source>3rd of finals, median</source>
        <translation>3e des finales, médiane</translation>
    </message>
    <message>
        <source>A run with a missed gate stands in the table alone.</source>
        <translation>Une manche avec une porte manquée ne figure que dans le tableau.</translation>
    </message>
    <message numerus="yes">
        <source>%n runs with a missed gate stand in the table alone.</source>
        <translation>
            <numerusform>%n manche avec une porte manquée ne figure que dans le tableau.</numerusform>
            <numerusform>%n manches avec une porte manquée ne figurent que dans le tableau.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::QueryEdit</name>
    <message>
        <source>Query</source>
        <translation>Requête</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::QueryFault</name>
    <message>
        <source>%1 (at letter %2)</source>
        <translation>%1 (à la lettre %2)</translation>
    </message>
    <message>
        <source>Writes “%1” there</source>
        <translation>Y écrit «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::QueryForm</name>
    <message>
        <source>Fi&amp;nd</source>
        <translation>&amp;Chercher</translation>
    </message>
    <message>
        <source>Words that its words begin with; a whole name in quotes</source>
        <translation>Mots par lesquels commencent les siens&#x202f;; un nom entier entre guillemets</translation>
    </message>
    <message>
        <source>Seconds, or 1:32.45; %1 in front leaves out the limit itself</source>
        <translation>Secondes, ou 1:32.45&#x202f;; %1 devant exclut la limite elle-même</translation>
    </message>
    <message>
        <source>At l&amp;east</source>
        <translation>Au &amp;moins</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>sans limite</translation>
    </message>
    <message>
        <source>At &amp;most</source>
        <translation>&amp;Au plus</translation>
    </message>
    <message>
        <source>G&amp;roups by</source>
        <translation>&amp;Groupes par</translation>
    </message>
    <message>
        <source>Up to three columns with commas between them</source>
        <translation>Jusqu’à trois colonnes séparées par des virgules</translation>
    </message>
    <message>
        <source>no groups</source>
        <translation>sans groupes</translation>
    </message>
    <message>
        <source>&amp;Best</source>
        <translation>M&amp;eilleur</translation>
    </message>
    <message>
        <source>all</source>
        <translation>tous</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation>&amp;Trier par</translation>
    </message>
    <message>
        <source>as found</source>
        <translation>comme trouvé</translation>
    </message>
    <message>
        <source>From the largest do&amp;wn</source>
        <translation>&amp;Du plus grand au plus petit</translation>
    </message>
    <message>
        <source>Only the f&amp;irst</source>
        <translation>&amp;Seulement les premiers</translation>
    </message>
    <message>
        <source>Near it: %1</source>
        <translation>Proche&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceActions</name>
    <message>
        <source>Open it &amp;again</source>
        <translation>Ouvrir à &amp;nouveau</translation>
    </message>
    <message>
        <source>Ti&amp;me it on video</source>
        <translation>&amp;Chronométrer sur vidéo</translation>
    </message>
    <message>
        <source>&amp;Report: preview, PDF, print…</source>
        <translation>Rapport&#x202f;: aperçu, PDF, &amp;impression…</translation>
    </message>
    <message>
        <source>Save the table as &amp;CSV…</source>
        <translation>Enregistrer le &amp;tableau en CSV…</translation>
    </message>
    <message>
        <source>Cop&amp;y the selected runs</source>
        <translation>Copier &amp;les manches sélectionnées</translation>
    </message>
    <message>
        <source>&amp;Times</source>
        <translation>&amp;Temps</translation>
    </message>
    <message>
        <source>&amp;Gap to the reference</source>
        <translation>Écart à &amp;la référence</translation>
    </message>
    <message>
        <source>&amp;Place</source>
        <translation>Pl&amp;ace</translation>
    </message>
    <message>
        <source>Per&amp;cent behind the best</source>
        <translation>Pourcentage &amp;de retard sur le meilleur</translation>
    </message>
    <message>
        <source>Percenti&amp;le</source>
        <translation>&amp;Percentile</translation>
    </message>
    <message>
        <source>&amp;Reference: the best</source>
        <translation>Référence&#x202f;: &amp;le meilleur</translation>
    </message>
    <message>
        <source>Reference: the &amp;median</source>
        <translation>&amp;Référence&#x202f;: la médiane</translation>
    </message>
    <message>
        <source>Reference: the &amp;selected row</source>
        <translation>Référence&#x202f;: la ligne &amp;sélectionnée</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tableau</translation>
    </message>
    <message>
        <source>&amp;Accumulated times</source>
        <translation>&amp;Temps cumulés</translation>
    </message>
    <message>
        <source>Penalties &amp;included</source>
        <translation>Pé&amp;nalités comprises</translation>
    </message>
    <message>
        <source>Penalties &amp;visible</source>
        <translation>&amp;Pénalités visibles</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>C&amp;olonnes</translation>
    </message>
    <message>
        <source>&amp;Find a name</source>
        <translation>&amp;Chercher un nom</translation>
    </message>
    <message>
        <source>Show all r&amp;uns</source>
        <translation>&amp;Afficher toutes les manches</translation>
    </message>
    <message>
        <source>&amp;Tint cells by rank</source>
        <translation>&amp;Teinter les cellules selon le rang</translation>
    </message>
    <message>
        <source>&amp;Blue to orange instead of green to red</source>
        <translation>&amp;Du bleu à l’orange au lieu du vert au rouge</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Comparer</translation>
    </message>
    <message>
        <source>&amp;Ideal run on top</source>
        <translation>&amp;Manche idéale en tête</translation>
    </message>
    <message>
        <source>A &amp;run of another race…</source>
        <translation>&amp;Une manche d’une autre course…</translation>
    </message>
    <message>
        <source>&amp;Films of the selected runs…</source>
        <translation>&amp;Films des manches sélectionnées…</translation>
    </message>
    <message>
        <source>With &amp;official results…</source>
        <translation>&amp;Avec les résultats officiels…</translation>
    </message>
    <message>
        <source>The results list as a &amp;table</source>
        <translation>&amp;La liste des résultats en tableau</translation>
    </message>
    <message>
        <source>&amp;Clear the comparison</source>
        <translation>&amp;Effacer la comparaison</translation>
    </message>
    <message>
        <source>Ch&amp;arts</source>
        <translation>&amp;Graphiques</translation>
    </message>
    <message>
        <source>&amp;Gaps along the course</source>
        <translation>Écarts &amp;le long du parcours</translation>
    </message>
    <message>
        <source>T&amp;imes of the sections</source>
        <translation>Temps des &amp;secteurs</translation>
    </message>
    <message>
        <source>P&amp;enalties at the gates</source>
        <translation>Pénalités &amp;aux portes</translation>
    </message>
    <message>
        <source>&amp;Totals</source>
        <translation>&amp;Temps totaux</translation>
    </message>
    <message>
        <source>&amp;Penalties</source>
        <translation>&amp;Pénalités</translation>
    </message>
    <message>
        <source>Time &amp;losses</source>
        <translation>P&amp;ertes de temps</translation>
    </message>
    <message>
        <source>Show the &amp;whole chart</source>
        <translation>A&amp;fficher tout le graphique</translation>
    </message>
    <message>
        <source>&amp;Save the chart…</source>
        <translation>Enregistrer le &amp;graphique…</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>F&amp;enêtre</translation>
    </message>
    <message>
        <source>Races &amp;side by side</source>
        <translation>C&amp;ourses côte à côte</translation>
    </message>
    <message>
        <source>&amp;Larger: the table or the chart alone</source>
        <translation>Plus &amp;grand&#x202f;: le tableau ou le graphique seul</translation>
    </message>
    <message>
        <source>&amp;Next race</source>
        <translation>&amp;Course suivante</translation>
    </message>
    <message>
        <source>&amp;Previous race</source>
        <translation>Course &amp;précédente</translation>
    </message>
    <message>
        <source>Pa&amp;ge for an athlete…</source>
        <translation>&amp;Page pour un athlète…</translation>
    </message>
    <message>
        <source>&amp;Draw the course…</source>
        <translation>&amp;Dessiner le parcours…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceDocument</name>
    <message>
        <source>A file of version %1. It could not be rewritten in the current version and stays as it is.</source>
        <translation>Un fichier de version %1. Il n’a pas pu être réécrit dans la version actuelle et reste tel quel.</translation>
    </message>
    <message>
        <source>A file of version %1, rewritten in the current one. The previous file is kept as %2.</source>
        <translation>Un fichier de version %1, réécrit dans la version actuelle. L’ancien fichier est conservé sous %2.</translation>
    </message>
    <message>
        <source>%1 gates, %2 upstream</source>
        <translation>%1 portes, dont %2 en remontée</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceHeader</name>
    <message>
        <source>1 run</source>
        <translation>1 manche</translation>
    </message>
    <message>
        <source>%1 of %2 runs</source>
        <translation>%1 manches sur %2</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>All phases</source>
        <translation>Toutes les phases</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Toutes les catégories</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n manche</numerusform>
            <numerusform>%n manches</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceKeeping</name>
    <message>
        <source>“%1” is open in another window</source>
        <translation>«&#xa0;%1&#xa0;» est ouvert dans une autre fenêtre</translation>
    </message>
    <message>
        <source>Save and close it there, then keep the table. Nothing was written.</source>
        <translation>Enregistrez et fermez-le là-bas, puis conservez le tableau. Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>Keeping the table with the race…</source>
        <translation>Conservation du tableau avec la course…</translation>
    </message>
    <message>
        <source>“%1” keeps a table already</source>
        <translation>«&#xa0;%1&#xa0;» conserve déjà un tableau</translation>
    </message>
    <message>
        <source>This one takes its place. The official results themselves stay.</source>
        <translation>Celui-ci prend sa place. Les résultats officiels eux-mêmes restent.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>The table was not kept with “%1”</source>
        <translation>Le tableau n’a pas été conservé avec «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceView</name>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Manche</translation>
    </message>
    <message>
        <source>I&amp;deal run</source>
        <translation>Manche &amp;idéale</translation>
    </message>
    <message>
        <source>Pote&amp;ntial</source>
        <translation>&amp;Potentiel</translation>
    </message>
    <message>
        <source>&amp;Motion</source>
        <translation>M&amp;ouvement</translation>
    </message>
    <message>
        <source>Open it again</source>
        <translation>Ouvrir à nouveau</translation>
    </message>
    <message>
        <source>gaps to the best</source>
        <translation>écarts au meilleur</translation>
    </message>
    <message>
        <source>gaps to the median</source>
        <translation>écarts à la médiane</translation>
    </message>
    <message>
        <source>gaps to %1</source>
        <translation>écarts à %1</translation>
    </message>
    <message>
        <source>the ideal run</source>
        <translation>la manche idéale</translation>
    </message>
    <message>
        <source>This course has %1 sections. The colours and the penalties in brackets are those of the first ten; place, gap and percent are there for all of them.</source>
        <translation>Ce parcours a %1 secteurs. Les couleurs et les pénalités entre parenthèses sont celles des dix premiers&#x202f;; place, écart et pourcentage existent pour tous.</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Enregistrer le tableau</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Texte séparé par des points-virgules (*.csv)</translation>
    </message>
    <message>
        <source>The file on the disk is newer than what you see.</source>
        <translation>Le fichier sur le disque est plus récent que ce que vous voyez.</translation>
    </message>
    <message>
        <source>The file is not on the disk any more. What you see is what it held.</source>
        <translation>Le fichier n’est plus sur le disque. Vous voyez ce qu’il contenait.</translation>
    </message>
    <message>
        <source>All columns in the order of the course</source>
        <translation>Toutes les colonnes dans l’ordre du parcours</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceWindow</name>
    <message>
        <source>Split files</source>
        <translation>Fichiers d’intermédiaires</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Courses</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RacesSection</name>
    <message>
        <source>No runs yet: take them from the season&apos;s split files.</source>
        <translation>Encore aucune manche&#x202f;: prenez-les dans les fichiers d’intermédiaires de la saison.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; runs, &lt;b&gt;%2&lt;/b&gt; of them clean (%3 %)  ·  touches per run &lt;b&gt;%4&lt;/b&gt;  ·  missed gates per run &lt;b&gt;%5&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; manches, dont &lt;b&gt;%2&lt;/b&gt; sans pénalité (%3&#x202f;%)  ·  touches par manche &lt;b&gt;%4&lt;/b&gt;  ·  portes manquées par manche &lt;b&gt;%5&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Take from split files…</source>
        <translation>Prendre dans des fichiers d’intermédiaires…</translation>
    </message>
    <message>
        <source>Races and penalties</source>
        <translation>Courses et pénalités</translation>
    </message>
    <message>
        <source>Choose &amp;files…</source>
        <translation>Choisir &amp;des fichiers…</translation>
    </message>
    <message>
        <source>Choose a f&amp;older…</source>
        <translation>&amp;Choisir un dossier…</translation>
    </message>
    <message>
        <source>Files and folders can be dropped here too</source>
        <translation>Des fichiers et dossiers peuvent aussi être déposés ici</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RadioBox</name>
    <message>
        <source>Team radio</source>
        <translation>Radio d’équipe</translation>
    </message>
    <message>
        <source>Records what you say about the run</source>
        <translation>Enregistre ce que vous dites de la manche</translation>
    </message>
    <message>
        <source>Plays the recording</source>
        <translation>Lit l’enregistrement</translation>
    </message>
    <message>
        <source>Attach…</source>
        <translation>Joindre…</translation>
    </message>
    <message>
        <source>Takes a sound file into the split file</source>
        <translation>Place un fichier son dans le fichier d’intermédiaires</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Writes the recording into a file of its own</source>
        <translation>Écrit l’enregistrement dans un fichier à part</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Plus tôt</translation>
    </message>
    <message>
        <source>Moves the recording up</source>
        <translation>Monte l’enregistrement</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Takes the recording out of the split file</source>
        <translation>Retire l’enregistrement du fichier d’intermédiaires</translation>
    </message>
    <message>
        <source>%1 · %2, %3</source>
        <translation>%1 · %2, %3</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Dicter</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Recording, %1 s</source>
        <translation>Enregistrement, %1 s</translation>
    </message>
    <message>
        <source>Record what you say to the athlete, or attach a voice message.</source>
        <translation>Dictez ce que vous voulez dire à l’athlète, ou joignez un message vocal.</translation>
    </message>
    <message>
        <source>This computer has no microphone that can be used.</source>
        <translation>Cet ordinateur n’a pas de microphone utilisable.</translation>
    </message>
    <message>
        <source>The microphone gave no sound.</source>
        <translation>Le microphone n’a donné aucun son.</translation>
    </message>
    <message>
        <source>Attach a recording</source>
        <translation>Joindre un enregistrement</translation>
    </message>
    <message>
        <source>Sounds (*.m4a *.mp3 *.wav *.aiff *.aif *.caf *.ogg *.opus *.flac *.aac *.amr);;All files (*)</source>
        <translation>Sons (*.m4a *.mp3 *.wav *.aiff *.aif *.caf *.ogg *.opus *.flac *.aac *.amr);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1 has %2: recordings up to %3 can be kept in a split file.</source>
        <translation>%1 fait %2&#x202f;: un fichier d’intermédiaires peut garder des enregistrements jusqu’à %3.</translation>
    </message>
    <message>
        <source>%1 cannot be played: %2</source>
        <translation>%1 ne peut pas être lu&#x202f;: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu&#x202f;: %2</translation>
    </message>
    <message>
        <source>Recording %1 cannot be played: %2</source>
        <translation>L’enregistrement %1 ne peut pas être lu&#x202f;: %2</translation>
    </message>
    <message>
        <source>recording %1</source>
        <translation>enregistrement %1</translation>
    </message>
    <message>
        <source>Save the recording</source>
        <translation>Sauvegarder l’enregistrement</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RangeLine</name>
    <message>
        <source>Click to go there. Drag the ends of the coloured part to choose what the film shows; near a split they take it.</source>
        <translation>Cliquez pour y aller. Faites glisser les bords de la partie colorée pour choisir ce que montre le film&#x202f;; près d’un intermédiaire, ils s’y calent.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RankingModel</name>
    <message>
        <source>%1 (was %2)</source>
        <translation>%1 (avant&#x202f;: %2)</translation>
    </message>
    <message>
        <source>was %1, now %2</source>
        <translation>avant&#x202f;: %1, maintenant&#x202f;: %2</translation>
    </message>
    <message>
        <source>A time of 0 counts as the formula says and puts the athlete far in front. Edit &gt; Make times of 0 missing results.</source>
        <translation>Un temps de 0 compte comme le dit la formule et place l’athlète loin devant. Édition &gt; Changer les temps de 0 en résultats absents.</translation>
    </message>
    <message>
        <source>Dropped: the worst result</source>
        <translation>Écarté&#x202f;: le plus mauvais résultat</translation>
    </message>
    <message>
        <source>Dropped too: a bonus stands among the results</source>
        <translation>Écarté aussi&#x202f;: un bonus figure parmi les résultats</translation>
    </message>
    <message>
        <source>Counted</source>
        <translation>Compté</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
    <message>
        <source>SURNAME Name</source>
        <translation>NOM Prénom</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Score</translation>
    </message>
    <message>
        <source>Bonus</source>
        <translation>Bonus</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Club</translation>
    </message>
    <message>
        <source>Pre</source>
        <translation>Pré</translation>
    </message>
    <message>
        <source>correction</source>
        <translation>correction</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Pén.</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Tried only. Really: %1</source>
        <translation>Seulement un essai. En réalité&#x202f;: %1</translation>
    </message>
    <message>
        <source>no result</source>
        <translation>pas de résultat</translation>
    </message>
    <message>
        <source>Enter the time first: the penalty belongs to it.</source>
        <translation>Saisissez d’abord le temps&#x202f;: la pénalité s’y rattache.</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>pénalité</translation>
    </message>
    <message>
        <source>result removed</source>
        <translation>résultat retiré</translation>
    </message>
    <message>
        <source>result</source>
        <translation>résultat</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RankingPanel</name>
    <message>
        <source>entry of the ranking list</source>
        <translation>entrée du classement</translation>
    </message>
    <message>
        <source>removal from the ranking list</source>
        <translation>retrait du classement</translation>
    </message>
    <message>
        <source>Take the season&apos;s statistics</source>
        <translation>Prendre les statistiques de la saison</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Fichiers d’intermédiaires (*.kvx);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>There is no split file in it.</source>
        <translation>Il ne contient aucun fichier d’intermédiaires.</translation>
    </message>
    <message>
        <source>Reading split files…</source>
        <translation>Lecture des fichiers d’intermédiaires…</translation>
    </message>
    <message>
        <source>season statistics from split files</source>
        <translation>statistiques de la saison d’après les fichiers d’intermédiaires</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RankingSection</name>
    <message>
        <source>Add a release</source>
        <translation>Ajouter une édition</translation>
    </message>
    <message>
        <source>Remove the release</source>
        <translation>Retirer l’édition</translation>
    </message>
    <message>
        <source>Ranking list</source>
        <translation>Classement</translation>
    </message>
    <message>
        <source>Add release</source>
        <translation>Ajouter une édition</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
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
        <translation>Passages</translation>
    </message>
    <message>
        <source>Runs that came past</source>
        <translation>Manches passées par là</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Rate %</source>
        <translation>Taux&#x202f;%</translation>
    </message>
    <message>
        <source>Touches of 100 passages</source>
        <translation>Touches sur 100 passages</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#x202f;%</translation>
    </message>
    <message>
        <source>Where the rate lies with 90 %</source>
        <translation>Où se trouve le taux, à 90&#x202f;%</translation>
    </message>
    <message>
        <source>Ranked %</source>
        <translation>Classé&#x202f;%</translation>
    </message>
    <message>
        <source>Drawn towards what all have in common, the more the fewer the passages</source>
        <translation>Ramené vers ce que tous ont en commun, d’autant plus que les passages sont peu nombreux</translation>
    </message>
    <message>
        <source>Ranked 90 %</source>
        <translation>Classé 90&#x202f;%</translation>
    </message>
    <message>
        <source>Where the ranked rate lies</source>
        <translation>Où se trouve le taux classé</translation>
    </message>
    <message>
        <source>Above %</source>
        <translation>Au-dessus&#x202f;%</translation>
    </message>
    <message>
        <source>The chance to be above what all have in common; from 95 the row is bold</source>
        <translation>La probabilité d’être au-dessus de ce que tous ont en commun&#x202f;; à partir de 95 la ligne est en gras</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Manquées</translation>
    </message>
    <message>
        <source>Missed gates</source>
        <translation>Portes manquées</translation>
    </message>
    <message>
        <source>Missed %</source>
        <translation>Manquées&#x202f;%</translation>
    </message>
    <message>
        <source>Missed 90 %</source>
        <translation>Manquées 90&#x202f;%</translation>
    </message>
    <message>
        <source>&amp;Rates</source>
        <translation>T&amp;aux</translation>
    </message>
    <message>
        <source>No run that is asked for has its penalties by gate.</source>
        <translation>Aucune manche demandée n’a ses pénalités par porte.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ReadingProgress</name>
    <message>
        <source>Stop reading</source>
        <translation>Arrêter la lecture</translation>
    </message>
    <message>
        <source>%1 of %2 files</source>
        <translation>%1 fichiers sur %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordedSoundPlayer</name>
    <message>
        <source>This computer has no loudspeaker.</source>
        <translation>Cet ordinateur n’a pas de haut-parleur.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingDialog</name>
    <message>
        <source>The film begins %1 after the recording.</source>
        <translation>Le film commence %1 après l’enregistrement.</translation>
    </message>
    <message>
        <source>The film begins %1 before the recording.</source>
        <translation>Le film commence %1 avant l’enregistrement.</translation>
    </message>
    <message>
        <source>Its clock gains %1 s in 100 s, which is taken out.</source>
        <translation>Son horloge avance de %1 s en 100 s, ce qui est corrigé.</translation>
    </message>
    <message>
        <source>The recording is of another athlete and another day.</source>
        <translation>L’enregistrement est d’un autre athlète et d’un autre jour.</translation>
    </message>
    <message>
        <source>The recording is of another athlete.</source>
        <translation>L’enregistrement est d’un autre athlète.</translation>
    </message>
    <message>
        <source>The recording is of another day.</source>
        <translation>L’enregistrement est d’un autre jour.</translation>
    </message>
    <message>
        <source>Recording of a run</source>
        <translation>Enregistrement d’une manche</translation>
    </message>
    <message>
        <source>Choose a &amp;recording…</source>
        <translation>&amp;Choisir un enregistrement…</translation>
    </message>
    <message>
        <source>&amp;Attach the part of this run</source>
        <translation>&amp;Joindre la partie de cette manche</translation>
    </message>
    <message>
        <source>Take o&amp;ff what is attached</source>
        <translation>&amp;Retirer ce qui est joint</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Common moment</source>
        <translation>Moment commun</translation>
    </message>
    <message>
        <source>A later one, against drift</source>
        <translation>Un plus tardif, contre la dérive</translation>
    </message>
    <message>
        <source>From the film</source>
        <translation>Du film</translation>
    </message>
    <message>
        <source>From the chart</source>
        <translation>Du graphique</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>film %1</source>
        <translation>film %1</translation>
    </message>
    <message>
        <source>recording %1</source>
        <translation>enregistrement %1</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lecture de %1…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>No recording yet</source>
        <translation>Encore aucun enregistrement</translation>
    </message>
    <message>
        <source>Choose the recording (.kvb) of the run, or drop it here.</source>
        <translation>Choisissez l’enregistrement (.kvb) de la manche, ou déposez-le ici.</translation>
    </message>
    <message>
        <source>The boat&apos;s acceleration stands here.</source>
        <translation>L’accélération du bateau apparaît ici.</translation>
    </message>
    <message>
        <source>Find a moment that film and recording both show, such as the first stroke or a hit on the boat: go there in the film, click it in the chart, and set both.</source>
        <translation>Trouvez un moment visible sur le film et dans l’enregistrement, comme le premier coup de pagaie ou un choc sur le bateau&#x202f;: allez-y dans le film, cliquez-le dans le graphique, et posez les deux.</translation>
    </message>
    <message>
        <source>Forward acceleration</source>
        <translation>Accélération vers l’avant</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Accélération</translation>
    </message>
    <message>
        <source>Yaw rate</source>
        <translation>Vitesse de lacet</translation>
    </message>
    <message>
        <source>film –</source>
        <translation>film –</translation>
    </message>
    <message>
        <source>recording –</source>
        <translation>enregistrement –</translation>
    </message>
    <message>
        <source>The run has to be marked first: its start and its splits.</source>
        <translation>La manche doit d’abord être marquée&#x202f;: son départ et ses intermédiaires.</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Enregistrement&#x202f;: %1</translation>
    </message>
    <message>
        <source>Run: %1</source>
        <translation>Manche&#x202f;: %1</translation>
    </message>
    <message>
        <source>Nothing of the recording lies within the run.</source>
        <translation>Rien de l’enregistrement ne se trouve dans la manche.</translation>
    </message>
    <message>
        <source>The part of %1 is attached.</source>
        <translation>La partie de %1 est jointe.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingList</name>
    <message>
        <source>%1 a second</source>
        <translation>%1 par seconde</translation>
    </message>
    <message>
        <source>position</source>
        <translation>position</translation>
    </message>
    <message>
        <source>no position</source>
        <translation>pas de position</translation>
    </message>
    <message>
        <source>heart</source>
        <translation>cœur</translation>
    </message>
    <message>
        <source>no heart</source>
        <translation>pas de cœur</translation>
    </message>
    <message>
        <source>watch</source>
        <translation>montre</translation>
    </message>
    <message>
        <source>no watch</source>
        <translation>pas de montre</translation>
    </message>
    <message>
        <source>looking for strokes…</source>
        <translation>recherche des coups de pagaie…</translation>
    </message>
    <message>
        <source>%1 strokes, %2 turns</source>
        <translation>%1 coups de pagaie, %2 virages</translation>
    </message>
    <message>
        <source>side unknown</source>
        <translation>côté inconnu</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Enregistrements</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingOfRun</name>
    <message>
        <source>recording</source>
        <translation>enregistrement</translation>
    </message>
    <message>
        <source>recording taken off</source>
        <translation>enregistrement détaché</translation>
    </message>
    <message>
        <source>Attach it all the same</source>
        <translation>Le joindre malgré tout</translation>
    </message>
    <message>
        <source>Recording of the run</source>
        <translation>Enregistrement de la manche</translation>
    </message>
    <message>
        <source>Recordings (*.kvb);;All files (*)</source>
        <translation>Enregistrements (*.kvb);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingPanel</name>
    <message>
        <source>Found from the position</source>
        <translation>Trouvée d’après la position</translation>
    </message>
    <message>
        <source>Later b&amp;y</source>
        <translation>&amp;Plus tard de</translation>
    </message>
    <message>
        <source>Drag a curve with Shift, or press A, to move it in time</source>
        <translation>Faites glisser une courbe avec Maj, ou appuyez sur A, pour la déplacer dans le temps</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>&amp;Mass in motion</source>
        <translation>&amp;Masse en mouvement</translation>
    </message>
    <message>
        <source>Athlete, boat and kit</source>
        <translation>Athlète, bateau et équipement</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>&amp;Drag</source>
        <translation>&amp;Résistance</translation>
    </message>
    <message>
        <source>Resistance of the hull over the square of its speed</source>
        <translation>Résistance de la coque rapportée au carré de sa vitesse</translation>
    </message>
    <message>
        <source>N·s²/m²</source>
        <translation>N·s²/m²</translation>
    </message>
    <message>
        <source>&amp;Boat</source>
        <translation>&amp;Bateau</translation>
    </message>
    <message>
        <source>Kayak</source>
        <translation>Kayak</translation>
    </message>
    <message>
        <source>Canoe</source>
        <translation>Canoë</translation>
    </message>
    <message>
        <source>P&amp;hone</source>
        <translation>&amp;Téléphone</translation>
    </message>
    <message>
        <source>Which side of the phone points to the bow; used where the position does not tell</source>
        <translation>Quel côté du téléphone pointe vers l’avant&#x202f;; utilisé là où la position ne le dit pas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RenameFilmsDialog</name>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Ensuite</translation>
    </message>
    <message>
        <source>stays</source>
        <translation>reste</translation>
    </message>
    <message>
        <source>stays: %1</source>
        <translation>reste&#x202f;: %1</translation>
    </message>
    <message>
        <source>Rename films</source>
        <translation>Renommer des films</translation>
    </message>
    <message>
        <source>How the films are to be called: {name}, {category}, {phase}, {bib} and {number} stand for what is known of each. Split files of the folder follow.</source>
        <translation>Comment les films doivent s’appeler&#x202f;: {name}, {category}, {phase}, {bib} et {number} remplacent ce qu’on sait de chacun. Les fichiers d’intermédiaires du dossier suivent.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>%1 of %2 films get another name.</source>
        <translation>%1 films sur %2 changent de nom.</translation>
    </message>
    <message>
        <source>%1 lack what the pattern asks for.</source>
        <translation>Il manque à %1 films ce que demande le modèle.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RenderQueue</name>
    <message>
        <source>A film is still being composed.</source>
        <translation>Un film est encore en cours de composition.</translation>
    </message>
    <message>
        <source>Leaving the program stops that, and nothing of an unfinished film is kept.</source>
        <translation>Quitter le programme arrête cela, et rien d’un film inachevé n’est gardé.</translation>
    </message>
    <message>
        <source>Stop and leave</source>
        <translation>Arrêter et quitter</translation>
    </message>
    <message numerus="yes">
        <source>%n films are still being composed.</source>
        <translation>
            <numerusform>%n film est encore en composition.</numerusform>
            <numerusform>%n films sont encore en composition.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ReplayBar</name>
    <message>
        <source>Place in the session</source>
        <translation>Place dans la séance</translation>
    </message>
    <message>
        <source>Speed of the replay ([ slower, ] faster)</source>
        <translation>Vitesse de relecture ([ plus lent, ] plus vite)</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Pause (Espace)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Lire (Espace)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ReportPreview</name>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer en PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documents PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#x202f;%</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Plus petit</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Plus grand</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Toute la largeur</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimer…</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Enregistrer en PDF…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>Aucune page</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Preview – Kavela</source>
        <translation>Aperçu – Kavela</translation>
    </message>
    <message>
        <source>%1, preview – Kavela</source>
        <translation>%1, aperçu – Kavela</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Enregistré sous %1</translation>
    </message>
    <message>
        <source>Table as shown</source>
        <translation>Tableau tel qu’affiché</translation>
    </message>
    <message>
        <source>Race report</source>
        <translation>Rapport de course</translation>
    </message>
    <message>
        <source>Run sheet</source>
        <translation>Fiche de manche</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ResultsDialog</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>Official results from %1</source>
        <translation>Résultats officiels de %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manche</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Type a part of the name for another line; an emptied cell stands for none</source>
        <translation>Tapez une partie du nom pour une autre ligne&#x202f;; une cellule vidée signifie aucune</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Real time now</source>
        <translation>Temps réel actuel</translation>
    </message>
    <message>
        <source>No line</source>
        <translation>Aucune ligne</translation>
    </message>
    <message>
        <source>“%1” stands in %2 lines of the list: it must be in one.</source>
        <translation>«&#xa0;%1&#xa0;» figure dans %2 lignes de la liste&#x202f;: il doit figurer dans une seule.</translation>
    </message>
    <message>
        <source>%1 lines come into the file. Real time and penalty are taken for %2 of %3 runs: those that are ticked.</source>
        <translation>%1 lignes entrent dans le fichier. Temps réel et pénalité sont repris pour %2 manches sur %3&#x202f;: celles cochées.</translation>
    </message>
    <message>
        <source>No line was found for %1. A part of the name, typed in the last column, chooses one.</source>
        <translation>Aucune ligne n’a été trouvée pour %1. Une partie du nom, tapée dans la dernière colonne, en choisit une.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ResultsPage</name>
    <message>
        <source>→ goes on</source>
        <translation>→ qualifié</translation>
    </message>
    <message>
        <source>out</source>
        <translation>éliminé</translation>
    </message>
    <message>
        <source>★ wins</source>
        <translation>★ gagne</translation>
    </message>
    <message>
        <source>⚠ Not finished: no order was taken.</source>
        <translation>⚠ Inachevé&#x202f;: aucun ordre n’a été pris.</translation>
    </message>
    <message>
        <source>⚠ Not finished. Gates without an order: %1.</source>
        <translation>⚠ Inachevé. Portes sans ordre&#x202f;: %1.</translation>
    </message>
    <message>
        <source>⚠ Not all boats were seen at the last gate.</source>
        <translation>⚠ Tous les bateaux n’ont pas été vus à la dernière porte.</translation>
    </message>
    <message>
        <source>Gates without an order: %1.</source>
        <translation>Portes sans ordre&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Finale</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finales</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Demi-finales</translation>
    </message>
    <message>
        <source>Quarterfinals</source>
        <translation>Quarts de finale</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Tour %1</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Bateau</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Gained</source>
        <translation>Gagné</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdu</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Issue</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#x202f;%</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlète</translation>
    </message>
    <message>
        <source>Attacks</source>
        <translation>Attaques</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>Réussies</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Réussite</translation>
    </message>
    <message>
        <source>Attacked</source>
        <translation>Attaqué</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>Contenues</translation>
    </message>
    <message>
        <source>Defence</source>
        <translation>Défense</translation>
    </message>
    <message>
        <source>not told</source>
        <translation>non indiqué</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Où</translation>
    </message>
    <message>
        <source>No results yet: they follow from the orders at the gates that are taken on the page of heats.</source>
        <translation>Encore aucun résultat&#x202f;: ils découlent des ordres aux portes pris sur la page des séries.</translation>
    </message>
    <message>
        <source>Attacks and defences</source>
        <translation>Attaques et défenses</translation>
    </message>
    <message>
        <source>Where attacks succeed</source>
        <translation>Où les attaques réussissent</translation>
    </message>
    <message>
        <source>Heat %1</source>
        <translation>Série %1</translation>
    </message>
    <message>
        <source>Shows the heat on its film</source>
        <translation>Montre la série sur son film</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ResultsView</name>
    <message>
        <source>Nobody is in the team yet. Add the first athlete with Ctrl+N.</source>
        <translation>Personne n’est encore dans l’équipe. Ajoutez le premier athlète avec Ctrl+N.</translation>
    </message>
    <message>
        <source>No athlete fits the search.</source>
        <translation>Aucun athlète ne correspond à la recherche.</translation>
    </message>
    <message>
        <source>Choose the boat %1 races in: menu Team, “Add a category”.</source>
        <translation>Choisissez le bateau de course de %1&#x202f;: menu Équipe, «&#xa0;Ajouter une catégorie&#xa0;».</translation>
    </message>
    <message>
        <source>Add the first season with Ctrl+Shift+N, or drop a split file or a list of results here to take results over.</source>
        <translation>Ajoutez la première saison avec Ctrl+Maj+N, ou déposez ici un fichier d’intermédiaires ou une liste de résultats pour reprendre des résultats.</translation>
    </message>
    <message>
        <source>The first two seasons (✓) count for the categorization. Alt+Up, Alt+Down or dragging changes the order.</source>
        <translation>Les deux premières saisons (✓) comptent pour la catégorisation. Alt+Haut, Alt+Bas ou un glissement changent l’ordre.</translation>
    </message>
    <message>
        <source>Choose a race to see and edit its runs.</source>
        <translation>Choisissez une course pour voir et modifier ses manches.</translation>
    </message>
    <message>
        <source>new season</source>
        <translation>nouvelle saison</translation>
    </message>
    <message>
        <source>new race</source>
        <translation>nouvelle course</translation>
    </message>
    <message>
        <source>order of the seasons</source>
        <translation>ordre des saisons</translation>
    </message>
    <message>
        <source>order of the races</source>
        <translation>ordre des courses</translation>
    </message>
    <message>
        <source>removal of a race</source>
        <translation>retrait d’une course</translation>
    </message>
    <message>
        <source>removal of a season</source>
        <translation>retrait d’une saison</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RollForm</name>
    <message>
        <source>Part of the roll</source>
        <translation>Partie de l’esquimautage</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Esquimautage</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Going over</source>
        <translation>Retournement</translation>
    </message>
    <message>
        <source>Coming up</source>
        <translation>Redressement</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RowModel</name>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunChooser</name>
    <message>
        <source>1 run</source>
        <translation>1 manche</translation>
    </message>
    <message>
        <source>Compare with a run of another race</source>
        <translation>Comparer avec une manche d’une autre course</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>&amp;Race</source>
        <translation>&amp;Course</translation>
    </message>
    <message>
        <source>&amp;Other file…</source>
        <translation>&amp;Autre fichier…</translation>
    </message>
    <message>
        <source>R&amp;un</source>
        <translation>&amp;Manche</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>No other race lies in this folder.
Choose a file.</source>
        <translation>Aucune autre course n’est dans ce dossier.
Choisissez un fichier.</translation>
    </message>
    <message>
        <source>not a race</source>
        <translation>pas une course</translation>
    </message>
    <message>
        <source>Open a race</source>
        <translation>Ouvrir une course</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Fichiers d’intermédiaires (*.kvx);;Tous les fichiers (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n manche</numerusform>
            <numerusform>%n manches</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunFilms</name>
    <message>
        <source>Import videos with Ctrl+I, or drop a folder of videos here.</source>
        <translation>Importez des vidéos avec Ctrl+I, ou déposez ici un dossier de vidéos.</translation>
    </message>
    <message>
        <source>%1 is not in the folder of the split file.</source>
        <translation>%1 n’est pas dans le dossier du fichier d’intermédiaires.</translation>
    </message>
    <message>
        <source>All films are found</source>
        <translation>Tous les films sont trouvés</translation>
    </message>
    <message>
        <source>%1 of %2 films are there. Not found: %3.</source>
        <translation>%1 films sur %2 sont là. Introuvables&#x202f;: %3.</translation>
    </message>
    <message>
        <source>Import video</source>
        <translation>Importer une vidéo</translation>
    </message>
    <message>
        <source>Add another camera of this run</source>
        <translation>Ajouter une autre caméra de cette manche</translation>
    </message>
    <message>
        <source>camera added</source>
        <translation>caméra ajoutée</translation>
    </message>
    <message>
        <source>Attach the film of a fixed camera</source>
        <translation>Joindre le film d’une caméra fixe</translation>
    </message>
    <message>
        <source>fixed camera attached</source>
        <translation>caméra fixe jointe</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunForm</name>
    <message>
        <source>A comma and minutes, such as 1:32,34, are taken too</source>
        <translation>Une virgule et des minutes, comme 1:32,34, sont aussi acceptées</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Équipage</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Main</translation>
    </message>
    <message>
        <source>Real time</source>
        <translation>Temps réel</translation>
    </message>
    <message>
        <source>Real penalty</source>
        <translation>Pénalité réelle</translation>
    </message>
    <message>
        <source>Sprint</source>
        <translation>Sprint</translation>
    </message>
    <message>
        <source>sprint time</source>
        <translation>temps de sprint</translation>
    </message>
    <message>
        <source>Total %1 s,</source>
        <translation>Total %1 s,</translation>
    </message>
    <message>
        <source>penalties %1 s</source>
        <translation>pénalités %1 s</translation>
    </message>
    <message>
        <source>Expected %1 s</source>
        <translation>Attendu %1 s</translation>
    </message>
    <message>
        <source>Perfect time %1 s</source>
        <translation>Temps parfait %1 s</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunPanel</name>
    <message>
        <source>A clean run.</source>
        <translation>Une manche sans pénalité.</translation>
    </message>
    <message>
        <source>Touched: gate %1.</source>
        <translation>Touchée&#x202f;: porte %1.</translation>
    </message>
    <message>
        <source>Missed: gate %1.</source>
        <translation>Manquée&#x202f;: porte %1.</translation>
    </message>
    <message>
        <source>To best</source>
        <translation>Au meilleur</translation>
    </message>
    <message>
        <source>Select a run to see its sections. Select two to compare them.</source>
        <translation>Sélectionnez une manche pour voir ses secteurs. Sélectionnez-en deux pour les comparer.</translation>
    </message>
    <message>
        <source> against %1</source>
        <translation> face à %1</translation>
    </message>
    <message>
        <source>penalties %1 s</source>
        <translation>pénalités %1 s</translation>
    </message>
    <message>
        <source>Total %1 s,</source>
        <translation>Total %1 s,</translation>
    </message>
    <message>
        <source>Total –,</source>
        <translation>Total –,</translation>
    </message>
    <message>
        <source>Real %1 s,</source>
        <translation>Réel %1 s,</translation>
    </message>
    <message>
        <source>Expected %1 s</source>
        <translation>Attendu %1 s</translation>
    </message>
    <message>
        <source>Best own sections %1 s</source>
        <translation>Meilleurs secteurs propres %1 s</translation>
    </message>
    <message>
        <source>A time must be above 0. Check the marks of this run.</source>
        <translation>Un temps doit être au-dessus de 0. Vérifiez les marques de cette manche.</translation>
    </message>
    <message>
        <source>Not the whole course</source>
        <translation>Pas tout le parcours</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Pén.</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunPicker</name>
    <message>
        <source>Run</source>
        <translation>Manche</translation>
    </message>
    <message>
        <source>Type any part of a name, phase, category or race</source>
        <translation>Tapez n’importe quelle partie d’un nom, d’une phase, d’une catégorie ou d’une course</translation>
    </message>
    <message>
        <source>Find a run</source>
        <translation>Chercher une manche</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunsToEnter</name>
    <message>
        <source>perhaps %1?</source>
        <translation>peut-être %1&#x202f;?</translation>
    </message>
    <message>
        <source>another run is better</source>
        <translation>une autre manche est meilleure</translation>
    </message>
    <message>
        <source>; xTime %1 stays</source>
        <translation>; xTime %1 reste</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>ligne %1</translation>
    </message>
    <message>
        <source>(no run)</source>
        <translation>(aucune manche)</translation>
    </message>
    <message>
        <source>has no result in this race</source>
        <translation>n’a pas de résultat dans cette course</translation>
    </message>
    <message>
        <source>no result</source>
        <translation>pas de résultat</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(ligne %1)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunsToEnter::Outcome</name>
    <message>
        <source>place %1</source>
        <translation>place %1</translation>
    </message>
    <message>
        <source>place %1, was %2</source>
        <translation>place %1, avant %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SearchPlaces</name>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Folders and files that are searched</source>
        <translation>Dossiers et fichiers où l’on cherche</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Ajouter un dossier…</translation>
    </message>
    <message>
        <source>The chosen folder or file is not searched any more</source>
        <translation>On ne cherche plus dans le dossier ou fichier choisi</translation>
    </message>
    <message>
        <source>⚠ One could not be read…</source>
        <translation>⚠ Un n’a pas pu être lu…</translation>
    </message>
    <message>
        <source>Search a folder</source>
        <translation>Chercher dans un dossier</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>Chercher dans des fichiers</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Fichiers d’intermédiaires (*.kvx);;Tous les fichiers (*)</translation>
    </message>
    <message numerus="yes">
        <source>⚠ %n could not be read…</source>
        <translation>
            <numerusform>⚠ %n n’a pas pu être lu…</numerusform>
            <numerusform>⚠ %n n’ont pas pu être lus…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonActions</name>
    <message>
        <source>Athletes</source>
        <translation>Athlètes</translation>
    </message>
    <message>
        <source>&amp;Open a team…</source>
        <translation>Ou&amp;vrir une équipe…</translation>
    </message>
    <message>
        <source>Add &amp;split files…</source>
        <translation>Ajouter des fic&amp;hiers d’intermédiaires…</translation>
    </message>
    <message>
        <source>Add a &amp;folder of races…</source>
        <translation>Ajouter un dossier de &amp;courses…</translation>
    </message>
    <message>
        <source>Read &amp;again</source>
        <translation>Rel&amp;ire</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>Arrêter &amp;la lecture</translation>
    </message>
    <message>
        <source>Files that could not be rea&amp;d…</source>
        <translation>Fichiers qui &amp;n’ont pas pu être lus…</translation>
    </message>
    <message>
        <source>&amp;Reports to look at and print…</source>
        <translation>Rapports à regarder et i&amp;mprimer…</translation>
    </message>
    <message>
        <source>Report of the &amp;athlete as PDF…</source>
        <translation>Rappor&amp;t de l’athlète en PDF…</translation>
    </message>
    <message>
        <source>Report of the tea&amp;m as PDF…</source>
        <translation>Rapport &amp;de l’équipe en PDF…</translation>
    </message>
    <message>
        <source>Save the tab&amp;le as CSV…</source>
        <translation>Enregistrer le ta&amp;bleau en CSV…</translation>
    </message>
    <message>
        <source>Save the &amp;chart…</source>
        <translation>Enregistrer le &amp;graphique…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>Affi&amp;cher</translation>
    </message>
    <message>
        <source>&amp;Progression</source>
        <translation>P&amp;rogression</translation>
    </message>
    <message>
        <source>P&amp;hases</source>
        <translation>&amp;Phases</translation>
    </message>
    <message>
        <source>&amp;Spread</source>
        <translation>&amp;Dispersion</translation>
    </message>
    <message>
        <source>&amp;Trend</source>
        <translation>T&amp;endance</translation>
    </message>
    <message>
        <source>Head to h&amp;ead</source>
        <translation>&amp;Face à face</translation>
    </message>
    <message>
        <source>&amp;Medals and finals</source>
        <translation>&amp;Médailles et finales</translation>
    </message>
    <message>
        <source>E&amp;xpected places</source>
        <translation>Places &amp;attendues</translation>
    </message>
    <message>
        <source>&amp;What it takes</source>
        <translation>&amp;Ce qu’il faut</translation>
    </message>
    <message>
        <source>&amp;Athletes</source>
        <translation>A&amp;thlètes</translation>
    </message>
    <message>
        <source>The who&amp;le chart</source>
        <translation>Tout &amp;le graphique</translation>
    </message>
    <message>
        <source>Athl&amp;ete</source>
        <translation>A&amp;thlète</translation>
    </message>
    <message>
        <source>The &amp;next athlete</source>
        <translation>&amp;Athlète suivant</translation>
    </message>
    <message>
        <source>The athlete &amp;before</source>
        <translation>Athlète &amp;précédent</translation>
    </message>
    <message>
        <source>&amp;Show the athlete of the row</source>
        <translation>&amp;Montrer l’athlète de la ligne</translation>
    </message>
    <message>
        <source>Expect the places of a &amp;field…</source>
        <translation>Attendre &amp;les places d’un plateau…</translation>
    </message>
    <message>
        <source>Pa&amp;ge for an athlete…</source>
        <translation>&amp;Page pour un athlète…</translation>
    </message>
    <message>
        <source>Only the athlete&apos;s &amp;own races</source>
        <translation>Seulement les courses &amp;propres à l’athlète</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonHeader</name>
    <message>
        <source>Add the races…</source>
        <translation>Ajouter les courses…</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Catégorie</translation>
    </message>
    <message>
        <source>&amp;Years</source>
        <translation>&amp;Années</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>A&amp;thlète</translation>
    </message>
    <message>
        <source>Only &amp;own races</source>
        <translation>Seulement ses &amp;propres courses</translation>
    </message>
    <message>
        <source>Only races in which this athlete starts, in whichever phase; on every page</source>
        <translation>Seulement les courses où cet athlète prend le départ, quelle que soit la phase ; sur chaque page</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonModel</name>
    <message>
        <source>✓ counts</source>
        <translation>✓ compte</translation>
    </message>
    <message>
        <source>The first two seasons count for the categorization. Move a season by dragging it, or with Alt+Up and Alt+Down.</source>
        <translation>Les deux premières saisons comptent pour la catégorisation. Déplacez une saison en la faisant glisser, ou avec Alt+Haut et Alt+Bas.</translation>
    </message>
    <message>
        <source>Final classification of the race</source>
        <translation>Classement final de la course</translation>
    </message>
    <message>
        <source>Position in the ICF world ranking at the end of the season</source>
        <translation>Position au classement mondial ICF à la fin de la saison</translation>
    </message>
    <message>
        <source>Points in the ICF world ranking</source>
        <translation>Points au classement mondial ICF</translation>
    </message>
    <message>
        <source>Season, race</source>
        <translation>Saison, course</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Rang</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>ICF ranking position</source>
        <translation>Position au classement ICF</translation>
    </message>
    <message>
        <source>ICF ranking points</source>
        <translation>Points au classement ICF</translation>
    </message>
    <message>
        <source>There is a season %1 already.</source>
        <translation>Il y a déjà une saison %1.</translation>
    </message>
    <message>
        <source>year</source>
        <translation>année</translation>
    </message>
    <message>
        <source>final position</source>
        <translation>place finale</translation>
    </message>
    <message>
        <source>“%1” is none of the events.</source>
        <translation>«&#xa0;%1&#xa0;» n’est aucune des compétitions.</translation>
    </message>
    <message>
        <source>event</source>
        <translation>compétition</translation>
    </message>
    <message>
        <source>location</source>
        <translation>lieu</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonPage</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>trop peu</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>No whole run of this athlete can be held against the reference.</source>
        <translation>Aucune manche complète de cet athlète ne peut être comparée à la référence.</translation>
    </message>
    <message>
        <source>Nothing stands out: there is no clip to choose.</source>
        <translation>Rien ne ressort&#x202f;: il n’y a pas d’extrait à choisir.</translation>
    </message>
    <message>
        <source>&amp;Show this run</source>
        <translation>&amp;Montrer cette manche</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Par</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Manches</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdu</translation>
    </message>
    <message>
        <source>Seconds, of all runs together</source>
        <translation>Secondes, de toutes les manches ensemble</translation>
    </message>
    <message>
        <source>Lost, %</source>
        <translation>Perdu,&#x202f;%</translation>
    </message>
    <message>
        <source>Of the reference&apos;s time there</source>
        <translation>Du temps de la référence à cet endroit</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#x202f;%</translation>
    </message>
    <message>
        <source>A run</source>
        <translation>Par manche</translation>
    </message>
    <message>
        <source>Seconds lost in a run on the average</source>
        <translation>Secondes perdues en moyenne par manche</translation>
    </message>
    <message>
        <source>Of the gap, %</source>
        <translation>De l’écart,&#x202f;%</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>What the interval says: losing where all of it is above 0</source>
        <translation>Ce que dit l’intervalle&#x202f;: en perte là où il est tout entier au-dessus de 0</translation>
    </message>
    <message>
        <source>See</source>
        <translation>Voir</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manche</translation>
    </message>
    <message>
        <source>Open a folder of races to see an athlete&apos;s season.</source>
        <translation>Ouvrez un dossier de courses pour voir la saison d’un athlète.</translation>
    </message>
    <message>
        <source>%1: no whole run in %2 files can be held against the %3.</source>
        <translation>%1&#x202f;: aucune manche complète dans %2 fichiers ne peut être comparée à la référence (%3).</translation>
    </message>
    <message>
        <source>%1 on %2: %3 in %4; gap a run %5, penalties %6</source>
        <translation>%1 face à %2&#x202f;: %3 dans %4&#x202f;; écart par manche %5, pénalités %6</translation>
    </message>
    <message>
        <source>one whole run</source>
        <translation>une manche complète</translation>
    </message>
    <message>
        <source>one file</source>
        <translation>un fichier</translation>
    </message>
    <message>
        <source>Train: nothing stands out from these runs.</source>
        <translation>À travailler&#x202f;: rien ne ressort de ces manches.</translation>
    </message>
    <message>
        <source>%1. %2: %3, %4 s a run</source>
        <translation>%1. %2&#x202f;: %3, %4 s par manche</translation>
    </message>
    <message>
        <source>Train:</source>
        <translation>À travailler&#x202f;:</translation>
    </message>
    <message>
        <source>gate %1</source>
        <translation>porte %1</translation>
    </message>
    <message numerus="yes">
        <source>%n whole runs</source>
        <translation>
            <numerusform>%n manche complète</numerusform>
            <numerusform>%n manches complètes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonPages</name>
    <message>
        <source>Progression</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Phases</translation>
    </message>
    <message>
        <source>From which phase to which</source>
        <translation>De quelle phase à laquelle</translation>
    </message>
    <message>
        <source>Run 1 to run 2 of the heats</source>
        <translation>De la manche 1 à la manche 2 des qualifications</translation>
    </message>
    <message>
        <source>Semifinal to final</source>
        <translation>De la demi-finale à la finale</translation>
    </message>
    <message>
        <source>Heats to final, percent behind</source>
        <translation>Des qualifications à la finale, pourcentage de retard</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Dispersion</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendance</translation>
    </message>
    <message>
        <source>Behind whom</source>
        <translation>Derrière qui</translation>
    </message>
    <message>
        <source>Behind the winners</source>
        <translation>Derrière les vainqueurs</translation>
    </message>
    <message>
        <source>Behind the fastest splits</source>
        <translation>Derrière les intermédiaires les plus rapides</translation>
    </message>
    <message>
        <source>Head to head</source>
        <translation>Face à face</translation>
    </message>
    <message>
        <source>Medals and finals</source>
        <translation>Médailles et finales</translation>
    </message>
    <message>
        <source>How far</source>
        <translation>Jusqu’où</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Médailles</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finales</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Demi-finales</translation>
    </message>
    <message>
        <source>Expected places</source>
        <translation>Places attendues</translation>
    </message>
    <message>
        <source>What it takes</source>
        <translation>Ce qu’il faut</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Athlètes</translation>
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
        <translation>L’équipe</translation>
    </message>
    <message>
        <source>Save the report of %1</source>
        <translation>Enregistrer le rapport de %1</translation>
    </message>
    <message>
        <source>Save the report of the team</source>
        <translation>Enregistrer le rapport de l’équipe</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documents PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The report cannot be written over a file that it is made from.</source>
        <translation>Le rapport ne peut pas être écrit par-dessus un fichier dont il est tiré.</translation>
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
        <translation>Déposez ici une équipe (.kvteam) et le dossier de ses courses</translation>
    </message>
    <message>
        <source>Open a team…</source>
        <translation>Ouvrir une équipe…</translation>
    </message>
    <message>
        <source>Add a folder of races…</source>
        <translation>Ajouter un dossier de courses…</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translation>Écriture de %1…</translation>
    </message>
    <message>
        <source>Open a team</source>
        <translation>Ouvrir une équipe</translation>
    </message>
    <message>
        <source>Teams (*.kvteam);;All files (*)</source>
        <translation>Équipes (*.kvteam);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Add split files</source>
        <translation>Ajouter des fichiers d’intermédiaires</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Fichiers d’intermédiaires (*.kvx);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Add a folder of races</source>
        <translation>Ajouter un dossier de courses</translation>
    </message>
    <message>
        <source>Whose places to expect</source>
        <translation>De qui attendre les places</translation>
    </message>
    <message>
        <source>A name a line, as a start list has them. Nothing for the team and those who raced most often.</source>
        <translation>Un nom par ligne, comme dans une liste de départ. Rien&#x202f;: l’équipe et ceux qui ont couru le plus souvent.</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>%1 n’a pas pu être lu&#x202f;: %2</translation>
    </message>
    <message>
        <source>How every athlete of a team stands over the seasons: behind the winners, against rivals, and against chance. Files are only read.</source>
        <translation>Où en est chaque athlète d’une équipe au fil des saisons&#x202f;: derrière les vainqueurs, face aux rivaux, et face au hasard. Les fichiers sont seulement lus.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>Nobody of this team races in any category yet.</source>
        <translation>Personne de cette équipe ne court encore dans une catégorie.</translation>
    </message>
    <message>
        <source>No split files: winners and rivals are the team&apos;s own</source>
        <translation>Pas de fichiers d’intermédiaires&#x202f;: vainqueurs et rivaux sont ceux de l’équipe</translation>
    </message>
    <message>
        <source>Races from 1 split file</source>
        <translation>Courses d’un fichier d’intermédiaires</translation>
    </message>
    <message>
        <source>1 run compared</source>
        <translation>1 manche comparée</translation>
    </message>
    <message>
        <source>several athletes are called %1: their runs cannot be told apart</source>
        <translation>plusieurs athlètes s’appellent %1&#x202f;: leurs manches ne peuvent pas être distinguées</translation>
    </message>
    <message>
        <source>nobody in these races is called %1</source>
        <translation>personne ne s’appelle %1 dans ces courses</translation>
    </message>
    <message>
        <source>too few runs to expect a place of %1 of the field</source>
        <translation>trop peu de manches pour attendre une place de %1 du plateau</translation>
    </message>
    <message>
        <source>the team could not be read again: %1</source>
        <translation>l’équipe n’a pas pu être relue&#x202f;: %1</translation>
    </message>
    <message numerus="yes">
        <source>Races from %n split files</source>
        <translation>
            <numerusform>Courses de %n fichier d’intermédiaires</numerusform>
            <numerusform>Courses de %n fichiers d’intermédiaires</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n runs compared</source>
        <translation>
            <numerusform>%n manche comparée</numerusform>
            <numerusform>%n manches comparées</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SectionChart</name>
    <message>
        <source>Box</source>
        <translation>Boîte</translation>
    </message>
    <message>
        <source>Quartiles, and the runs far from them</source>
        <translation>Quartiles, et les manches qui s’en écartent beaucoup</translation>
    </message>
    <message>
        <source>Strip</source>
        <translation>Bande</translation>
    </message>
    <message>
        <source>A dot for every run</source>
        <translation>Un point par manche</translation>
    </message>
    <message>
        <source>Behind best</source>
        <translation>Derrière le meilleur</translation>
    </message>
    <message>
        <source>Seconds behind the best of the section</source>
        <translation>Secondes derrière le meilleur du secteur</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Seconds in the section</source>
        <translation>Secondes dans le secteur</translation>
    </message>
    <message>
        <source>No section has been timed yet.</source>
        <translation>Aucun secteur n’a encore été chronométré.</translation>
    </message>
    <message>
        <source>Seconds in each section</source>
        <translation>Secondes dans chaque secteur</translation>
    </message>
    <message>
        <source>Seconds behind the best of each section</source>
        <translation>Secondes derrière le meilleur de chaque secteur</translation>
    </message>
    <message>
        <source>Times of %1 by section</source>
        <translation>Temps de %1 par secteur</translation>
    </message>
    <message>
        <source>, penalties included</source>
        <translation>, pénalités comprises</translation>
    </message>
    <message>
        <source>← slower      faster →</source>
        <translation>← plus lent      plus rapide →</translation>
    </message>
    <message>
        <source>Not timed</source>
        <translation>Non chronométré</translation>
    </message>
    <message>
        <source>Quarter of the runs under</source>
        <translation>Un quart des manches au-dessous de</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Médiane</translation>
    </message>
    <message>
        <source>Quarter of the runs over</source>
        <translation>Un quart des manches au-dessus de</translation>
    </message>
    <message>
        <source>Slowest</source>
        <translation>Le plus lent</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Manches</translation>
    </message>
    <message>
        <source>Behind the best</source>
        <translation>Derrière le meilleur</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Fastest</source>
        <translation>Le plus rapide</translation>
    </message>
    <message>
        <source>Lower quartile</source>
        <translation>Quartile inférieur</translation>
    </message>
    <message>
        <source>Upper quartile</source>
        <translation>Quartile supérieur</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Secteurs</translation>
    </message>
    <message>
        <source>Distribution of the times of each section</source>
        <translation>Répartition des temps de chaque secteur</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SectionForm</name>
    <message>
        <source>Turns</source>
        <translation>Virages</translation>
    </message>
    <message>
        <source>Turn %1</source>
        <translation>Virage %1</translation>
    </message>
    <message>
        <source>Stretch %1</source>
        <translation>Tronçon %1</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Tour %1</translation>
    </message>
    <message>
        <source>La&amp;ps</source>
        <translation>T&amp;ours</translation>
    </message>
    <message>
        <source>number of laps</source>
        <translation>nombre de tours</translation>
    </message>
    <message>
        <source>Distance between the &amp;gates</source>
        <translation>&amp;Distance entre les portes</translation>
    </message>
    <message>
        <source>distance</source>
        <translation>distance</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Turn li&amp;mit</source>
        <translation>&amp;Seuil de virage</translation>
    </message>
    <message>
        <source>A faster rotation of the boat is a turn, a slower one straight paddling</source>
        <translation>Une rotation plus rapide du bateau est un virage, une plus lente de la navigation en ligne</translation>
    </message>
    <message>
        <source>rad/s</source>
        <translation>rad/s</translation>
    </message>
    <message>
        <source>Told by the strokes that were recorded</source>
        <translation>D’après les coups de pagaie enregistrés</translation>
    </message>
    <message>
        <source>Time
(s)</source>
        <translation>Temps
(s)</translation>
    </message>
    <message>
        <source>Straight
(s)</source>
        <translation>En ligne
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
        <translation>Vitesse
(m/s)</translation>
    </message>
    <message>
        <source>Follows from distance and time until it is typed</source>
        <translation>Découle de la distance et du temps jusqu’à une saisie</translation>
    </message>
    <message>
        <source>Stroke rate
(1/min)</source>
        <translation>Cadence
(1/min)</translation>
    </message>
    <message>
        <source>Efficiency
(m/stroke)</source>
        <translation>Efficacité
(m/coup)</translation>
    </message>
    <message>
        <source>Follows from speed and stroke rate until typed</source>
        <translation>Découle de la vitesse et de la cadence jusqu’à une saisie</translation>
    </message>
    <message>
        <source>Left
(rad/s)</source>
        <translation>Gauche
(rad/s)</translation>
    </message>
    <message>
        <source>Left
(s)</source>
        <translation>Gauche
(s)</translation>
    </message>
    <message>
        <source>Right
(rad/s)</source>
        <translation>Droite
(rad/s)</translation>
    </message>
    <message>
        <source>Right
(s)</source>
        <translation>Droite
(s)</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Secteurs</translation>
    </message>
    <message>
        <source>The time in straight line is part of the time of its section: it cannot be longer.</source>
        <translation>Le temps en ligne droite fait partie du temps de son secteur&#x202f;: il ne peut pas être plus long.</translation>
    </message>
    <message>
        <source>section %1</source>
        <translation>secteur %1</translation>
    </message>
    <message>
        <source>turn %1</source>
        <translation>virage %1</translation>
    </message>
    <message>
        <source>Total: %1 s</source>
        <translation>Total&#x202f;: %1 s</translation>
    </message>
    <message>
        <source>Total: – · %1 of %2 sections are timed</source>
        <translation>Total&#x202f;: – · %1 secteurs sur %2 sont chronométrés</translation>
    </message>
    <message>
        <source> · %1 strokes recorded</source>
        <translation> · %1 coups de pagaie enregistrés</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionDocument</name>
    <message>
        <source>1 race</source>
        <translation>1 course</translation>
    </message>
    <message numerus="yes">
        <source>%n races</source>
        <translation>
            <numerusform>%n course</numerusform>
            <numerusform>%n courses</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionEdits</name>
    <message>
        <source>Race</source>
        <translation>Course</translation>
    </message>
    <message>
        <source>Race location</source>
        <translation>Lieu de la course</translation>
    </message>
    <message>
        <source>race added</source>
        <translation>course ajoutée</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Rename which race?</source>
        <translation>Renommer quelle course&#x202f;?</translation>
    </message>
    <message>
        <source>race renamed</source>
        <translation>course renommée</translation>
    </message>
    <message>
        <source>Remove which race?</source>
        <translation>Retirer quelle course&#x202f;?</translation>
    </message>
    <message>
        <source>race removed</source>
        <translation>course retirée</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Category of the athletes</source>
        <translation>Catégorie des athlètes</translation>
    </message>
    <message>
        <source>category added</source>
        <translation>catégorie ajoutée</translation>
    </message>
    <message>
        <source>Add a category first.</source>
        <translation>Ajoutez d’abord une catégorie.</translation>
    </message>
    <message>
        <source>%1 is in this category already.</source>
        <translation>%1 est déjà dans cette catégorie.</translation>
    </message>
    <message>
        <source>athlete added</source>
        <translation>athlète ajouté</translation>
    </message>
    <message>
        <source>athlete</source>
        <translation>athlète</translation>
    </message>
    <message>
        <source>athlete removed</source>
        <translation>athlète retiré</translation>
    </message>
    <message>
        <source>times of 0</source>
        <translation>temps de 0</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionTakeOverDialog</name>
    <message>
        <source>Results of %1</source>
        <translation>Résultats de %1</translation>
    </message>
    <message>
        <source>&amp;Take over</source>
        <translation>&amp;Reprendre</translation>
    </message>
    <message>
        <source>Athletes who get a result: %1, of them new in the selection: %2. Without a result then: %3. Runs and lines that stay out: %4. A click on an athlete chooses another one, or adds the name to the selection.</source>
        <translation>Athlètes qui reçoivent un résultat&#x202f;: %1, dont nouveaux dans la sélection&#x202f;: %2. Ensuite sans résultat&#x202f;: %3. Manches et lignes non reprises&#x202f;: %4. Un clic sur un athlète en choisit un autre, ou ajoute le nom à la sélection.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionWindow</name>
    <message>
        <source>Selection races</source>
        <translation>Courses de sélection</translation>
    </message>
    <message>
        <source>Copy the table</source>
        <translation>Copier le tableau</translation>
    </message>
    <message>
        <source>&amp;Reports: preview, PDF, print…</source>
        <translation>Rapports&#x202f;: aperçu, &amp;PDF, impression…</translation>
    </message>
    <message>
        <source>Make times of 0 &amp;missing results</source>
        <translation>Changer &amp;les temps de 0 en résultats absents</translation>
    </message>
    <message>
        <source>&amp;Copy the table</source>
        <translation>&amp;Copier le tableau</translation>
    </message>
    <message>
        <source>&amp;What if</source>
        <translation>E&amp;t si</translation>
    </message>
    <message>
        <source>&amp;Races</source>
        <translation>&amp;Courses</translation>
    </message>
    <message>
        <source>&amp;Add a race…</source>
        <translation>&amp;Ajouter une course…</translation>
    </message>
    <message>
        <source>&amp;Rename a race…</source>
        <translation>Renommer &amp;une course…</translation>
    </message>
    <message>
        <source>Remo&amp;ve a race…</source>
        <translation>&amp;Retirer une course…</translation>
    </message>
    <message>
        <source>Results from &amp;split files…</source>
        <translation>Résultats &amp;de fichiers d’intermédiaires…</translation>
    </message>
    <message>
        <source>Results from a &amp;list (position, total, penalty)…</source>
        <translation>Résultats d’une liste (&amp;position, total, pénalité)…</translation>
    </message>
    <message>
        <source>Results from a list with &amp;categories and clubs…</source>
        <translation>Résultats d’une &amp;liste avec catégories et clubs…</translation>
    </message>
    <message>
        <source>&amp;Athletes</source>
        <translation>A&amp;thlètes</translation>
    </message>
    <message>
        <source>Add a &amp;category…</source>
        <translation>Ajouter &amp;une catégorie…</translation>
    </message>
    <message>
        <source>&amp;Add an athlete…</source>
        <translation>&amp;Ajouter un athlète…</translation>
    </message>
    <message>
        <source>&amp;Edit the athlete…</source>
        <translation>&amp;Modifier l’athlète…</translation>
    </message>
    <message>
        <source>&amp;Remove the athlete</source>
        <translation>&amp;Retirer l’athlète</translation>
    </message>
    <message>
        <source>&amp;Import athletes…</source>
        <translation>&amp;Importer des athlètes…</translation>
    </message>
    <message>
        <source>&amp;How a list has to look</source>
        <translation>&amp;Comment une liste doit être faite</translation>
    </message>
    <message>
        <source>Category %1</source>
        <translation>Catégorie %1</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Catégories</translation>
    </message>
    <message>
        <source>Bonus</source>
        <translation>Bonus</translation>
    </message>
    <message>
        <source>Official times</source>
        <translation>Temps officiels</translation>
    </message>
    <message>
        <source>xTimes</source>
        <translation>xTimes</translation>
    </message>
    <message>
        <source>What if…</source>
        <translation>Et si…</translation>
    </message>
    <message>
        <source>Try other times and penalties; nothing of it is kept (W)</source>
        <translation>Essayer d’autres temps et pénalités&#x202f;; rien n’en est gardé (W)</translation>
    </message>
    <message>
        <source>Selection %1</source>
        <translation>Sélection %1</translation>
    </message>
    <message>
        <source>What if: times and penalties typed now are tried only. End it (W) to go back to the real results.</source>
        <translation>Et si&#x202f;: les temps et pénalités saisis maintenant ne sont qu’un essai. Terminez-le (W) pour revenir aux résultats réels.</translation>
    </message>
    <message>
        <source>Add the races of the selection first (Ctrl+R), then athletes (Ctrl+N, or drop a .csv file).</source>
        <translation>Ajoutez d’abord les courses de la sélection (Ctrl+R), puis les athlètes (Ctrl+N, ou déposez un fichier .csv).</translation>
    </message>
    <message>
        <source>Now add a category (Ctrl+G), such as MK1; then its athletes (Ctrl+N, or drop a .csv file).</source>
        <translation>Ajoutez maintenant une catégorie (Ctrl+G), comme MK1&#x202f;; puis ses athlètes (Ctrl+N, ou déposez un fichier .csv).</translation>
    </message>
    <message>
        <source>Add the athletes of the category (Ctrl+N, or drop a .csv file), then their results: type them, or take them over from split files (Ctrl+I).</source>
        <translation>Ajoutez les athlètes de la catégorie (Ctrl+N, ou déposez un fichier .csv), puis leurs résultats&#x202f;: saisissez-les, ou reprenez-les de fichiers d’intermédiaires (Ctrl+I).</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) have a time of 0, which puts their athletes far in front. Edit &gt; Make times of 0 missing results.</source>
        <translation>
            <numerusform>%n résultat a un temps de 0, ce qui place son athlète loin devant. Édition &gt; Changer les temps de 0 en résultats absents.</numerusform>
            <numerusform>%n résultats ont un temps de 0, ce qui place leurs athlètes loin devant. Édition &gt; Changer les temps de 0 en résultats absents.</numerusform>
        </translation>
    </message>
    <message>
        <source>End what if</source>
        <translation>Finir l’essai</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No bonus</source>
        <translation>Sans bonus</translation>
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
        <translation>Temps (s)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeriesDrawing</name>
    <message>
        <source>%1: low</source>
        <translation>%1&#x202f;: bas</translation>
    </message>
    <message>
        <source>%1: high</source>
        <translation>%1&#x202f;: haut</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionCharts</name>
    <message>
        <source>none was recorded</source>
        <translation>rien n’a été enregistré</translation>
    </message>
    <message>
        <source>there are no turns</source>
        <translation>il n’y a pas de virages</translation>
    </message>
    <message>
        <source>there are no strokes</source>
        <translation>il n’y a pas de coups de pagaie</translation>
    </message>
    <message>
        <source>not known, since nothing tells which side of the phone points to the bow</source>
        <translation>inconnu, car rien ne dit quel côté du téléphone pointe vers l’avant</translation>
    </message>
    <message>
        <source>not known, since there are no positions that tell the speed</source>
        <translation>inconnu, car il n’y a pas de positions qui donnent la vitesse</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Cadence</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Force</translation>
    </message>
    <message>
        <source>Impulse</source>
        <translation>Impulsion</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Fréquence cardiaque</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Phases</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roulis</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Tangage</translation>
    </message>
    <message>
        <source>end</source>
        <translation>fin</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionDialog</name>
    <message>
        <source>at</source>
        <translation>à</translation>
    </message>
    <message>
        <source>Training session</source>
        <translation>Séance d’entraînement</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Titre</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Quand</translation>
    </message>
    <message>
        <source>&amp;Place</source>
        <translation>Pl&amp;ace</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Description</translation>
    </message>
    <message>
        <source>On the water</source>
        <translation>Sur l’eau</translation>
    </message>
    <message>
        <source>In the gym</source>
        <translation>En salle</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>not in this week</source>
        <translation>pas dans cette semaine</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionMarks</name>
    <message>
        <source>%1 marks: two make a segment</source>
        <translation>%1 marques&#x202f;: deux font un segment</translation>
    </message>
    <message>
        <source>%1 segments</source>
        <translation>%1 segments</translation>
    </message>
    <message>
        <source>mark</source>
        <translation>marque</translation>
    </message>
    <message>
        <source>removal of a mark</source>
        <translation>retrait d’une marque</translation>
    </message>
    <message>
        <source>removal of all marks</source>
        <translation>retrait de toutes les marques</translation>
    </message>
    <message>
        <source>There is a mark already</source>
        <translation>Il y a déjà une marque</translation>
    </message>
    <message>
        <source>move of a mark</source>
        <translation>déplacement d’une marque</translation>
    </message>
    <message>
        <source>Mark at %1</source>
        <translation>Marque à %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionTables</name>
    <message>
        <source>Strokes</source>
        <translation>Coups</translation>
    </message>
    <message>
        <source>Turns</source>
        <translation>Virages</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>Segments</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Gauche et droite</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>Values every</source>
        <translation>Valeurs tous les</translation>
    </message>
    <message>
        <source>Strokes (%1)</source>
        <translation>Coups de pagaie (%1)</translation>
    </message>
    <message>
        <source>Turns (%1)</source>
        <translation>Virages (%1)</translation>
    </message>
    <message>
        <source>from the first mark</source>
        <translation>depuis la première marque</translation>
    </message>
    <message>
        <source>from the start</source>
        <translation>depuis le départ</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionView</name>
    <message>
        <source>Speed against stroke rate</source>
        <translation>Vitesse selon la cadence</translation>
    </message>
    <message>
        <source>Stroke rate (1/min)</source>
        <translation>Cadence (1/min)</translation>
    </message>
    <message>
        <source>Speed (m/s)</source>
        <translation>Vitesse (m/s)</translation>
    </message>
    <message>
        <source>The speed of the strokes is not known.</source>
        <translation>La vitesse des coups de pagaie n’est pas connue.</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Side unknown</source>
        <translation>Côté inconnu</translation>
    </message>
    <message>
        <source>Information…</source>
        <translation>Informations…</translation>
    </message>
    <message>
        <source>Athlete, place, kind and equipment</source>
        <translation>Athlète, lieu, type et matériel</translation>
    </message>
    <message>
        <source>Name the phone&apos;s mount</source>
        <translation>Nommer la fixation du téléphone</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Show the selected stretch alone</source>
        <translation>Afficher seulement le tronçon sélectionné</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Cut the session to the selected stretch</source>
        <translation>Couper la séance au tronçon sélectionné</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Take the selected stretch out</source>
        <translation>Ôter le tronçon sélectionné</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Cadence</translation>
    </message>
    <message>
        <source>Colour of the course</source>
        <translation>Couleur du parcours</translation>
    </message>
    <message>
        <source>%1 – %2: %3 s, %4 strokes, %5/min, %6 m, %7 m/s</source>
        <translation>%1 – %2&#x202f;: %3 s, %4 coups de pagaie, %5/min, %6 m, %7 m/s</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionWindow</name>
    <message>
        <source>Session</source>
        <translation>Séance</translation>
    </message>
    <message>
        <source>Sessions (*.bms);;Sessions (*.sbm)</source>
        <translation>Séances (*.bms);;Séances (*.sbm)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Import .kvb file</source>
        <translation>Importer un fichier .kvb</translation>
    </message>
    <message>
        <source>Recordings (*.kvb)</source>
        <translation>Enregistrements (*.kvb)</translation>
    </message>
    <message>
        <source>Import .sbm file</source>
        <translation>Importer un fichier .sbm</translation>
    </message>
    <message>
        <source>Sessions (*.sbm *.bms)</source>
        <translation>Séances (*.sbm *.bms)</translation>
    </message>
    <message>
        <source>power of the power meter</source>
        <translation>puissance du capteur de puissance</translation>
    </message>
    <message>
        <source>Save the session</source>
        <translation>Enregistrer la séance</translation>
    </message>
    <message>
        <source>Save with it</source>
        <translation>Enregistrer avec</translation>
    </message>
    <message>
        <source>Save without it</source>
        <translation>Enregistrer sans</translation>
    </message>
    <message>
        <source>Saved without the power meter&apos;s data, which are still here.</source>
        <translation>Enregistré sans les données du capteur de puissance, qui sont encore ici.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SettingsWindow</name>
    <message>
        <source>Look and tables</source>
        <translation>Aspect et tableaux</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Split taking</source>
        <translation>Temps intermédiaires</translation>
    </message>
    <message>
        <source>Boat motion</source>
        <translation>Mouvement du bateau</translation>
    </message>
    <message>
        <source>At start</source>
        <translation>Au démarrage</translation>
    </message>
    <message>
        <source>The decoded frames of all open films together take at most %1, and never more than a quarter of this computer&apos;s memory of %2.</source>
        <translation>Les images décodées de tous les films ouverts prennent ensemble au plus %1, et jamais plus d’un quart de la mémoire de cet ordinateur (%2).</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Every change takes effect at once, another language when Kavela starts again.</source>
        <translation>Chaque changement agit aussitôt, une autre langue au prochain démarrage de Kavela.</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Comme le système</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>The environment variable KAVELA_SCHEME decides for this session.</source>
        <translation>La variable d’environnement KAVELA_SCHEME décide pour cette session.</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenêtres</translation>
    </message>
    <message>
        <source>The environment variable KAVELA_LANGUAGE decides for this session.</source>
        <translation>La variable d’environnement KAVELA_LANGUAGE décide pour cette session.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Race: best green, others red</source>
        <translation>Course&#x202f;: le meilleur en vert, les autres en rouge</translation>
    </message>
    <message>
        <source>Training: cells tinted by rank</source>
        <translation>Entraînement&#x202f;: cellules teintées selon le rang</translation>
    </message>
    <message>
        <source>Colours of the split table</source>
        <translation>Couleurs du tableau des intermédiaires</translation>
    </message>
    <message>
        <source>One a line.</source>
        <translation>Un par ligne.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Choisir un fichier</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Look for a newer version once a day</source>
        <translation>Chercher une version plus récente une fois par jour</translation>
    </message>
    <message>
        <source>Where it is looked for</source>
        <translation>Où la chercher</translation>
    </message>
    <message>
        <source>This is no https address. It is looked for where it was.</source>
        <translation>Ce n’est pas une adresse https. On cherche là où l’on cherchait.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ShareActions</name>
    <message>
        <source>&amp;Open a folder to share…</source>
        <translation>Ouvrir un &amp;dossier à partager…</translation>
    </message>
    <message>
        <source>Sha&amp;re</source>
        <translation>&amp;Partager</translation>
    </message>
    <message>
        <source>&amp;Compare both sides</source>
        <translation>&amp;Comparer les deux côtés</translation>
    </message>
    <message>
        <source>&amp;Start with the ticked files</source>
        <translation>&amp;Démarrer avec les fichiers cochés</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Tick all but deletions</source>
        <translation>Tout cocher &amp;sauf les suppressions</translation>
    </message>
    <message>
        <source>Tick &amp;none</source>
        <translation>&amp;Tout décocher</translation>
    </message>
    <message>
        <source>Ser&amp;ver</source>
        <translation>&amp;Serveur</translation>
    </message>
    <message>
        <source>&amp;Sign in…</source>
        <translation>&amp;Se connecter…</translation>
    </message>
    <message>
        <source>&amp;Forget the password</source>
        <translation>&amp;Oublier le mot de passe</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ShareWindow</name>
    <message>
        <source>Share folders</source>
        <translation>Partager des dossiers</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>Shows what differs; nothing is changed by it</source>
        <translation>Montre ce qui diffère&#x202f;; rien n’en est modifié</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Shares the ticked files</source>
        <translation>Partage les fichiers cochés</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Nothing is shared before it is shown here</source>
        <translation>Rien n’est partagé avant d’être montré ici</translation>
    </message>
    <message>
        <source>Another folder is shared once this one is done.</source>
        <translation>Un autre dossier sera partagé une fois celui-ci terminé.</translation>
    </message>
    <message>
        <source>The folder to share</source>
        <translation>Le dossier à partager</translation>
    </message>
    <message>
        <source>Both sides are looked at…</source>
        <translation>Examen des deux côtés…</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1&#x202f;: %2 sur %3</translation>
    </message>
    <message>
        <source>%1: %2 files</source>
        <translation>%1&#x202f;: %2 fichiers</translation>
    </message>
    <message>
        <source>%1 (on the server)</source>
        <translation>%1 (sur le serveur)</translation>
    </message>
    <message>
        <source>%1 (here)</source>
        <translation>%1 (ici)</translation>
    </message>
    <message>
        <source>Delete 1 file?</source>
        <translation>Supprimer 1 fichier&#x202f;?</translation>
    </message>
    <message>
        <source>Delete %1 files?</source>
        <translation>Supprimer %1 fichiers&#x202f;?</translation>
    </message>
    <message>
        <source>
and %1 more</source>
        <translation>
et %1 autres</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Files are being shared…</source>
        <translation>Partage des fichiers…</translation>
    </message>
    <message>
        <source>This computer has no password store that is open. The password holds until this window is closed.</source>
        <translation>Cet ordinateur n’a pas de coffre de mots de passe ouvert. Le mot de passe vaut jusqu’à la fermeture de cette fenêtre.</translation>
    </message>
    <message>
        <source>The password of %1 was forgotten.</source>
        <translation>Le mot de passe de %1 a été oublié.</translation>
    </message>
    <message>
        <source>%v of %m files</source>
        <translation>%v sur %m fichiers</translation>
    </message>
    <message>
        <source>Files are being shared</source>
        <translation>Des fichiers sont en cours de partage</translation>
    </message>
    <message>
        <source>What is done stays done; sharing again goes on with the rest.</source>
        <translation>Ce qui est fait reste fait&#x202f;; un nouveau partage continue avec le reste.</translation>
    </message>
    <message>
        <source>Stop and close</source>
        <translation>Arrêter et fermer</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SharedRows</name>
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SiteList</name>
    <message>
        <source>Other servers that films may come from</source>
        <translation>Autres serveurs d’où peuvent venir les films</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitActions</name>
    <message>
        <source>&amp;Open a film…</source>
        <translation>Ou&amp;vrir un film…</translation>
    </message>
    <message>
        <source>Open the &amp;race of the film in split taking</source>
        <translation>Ouvrir la course du film dans la &amp;prise de temps intermédiaires</translation>
    </message>
    <message>
        <source>&amp;Save the race</source>
        <translation>Enregistrer &amp;la course</translation>
    </message>
    <message>
        <source>Save what is seen as a &amp;picture…</source>
        <translation>Enregistrer &amp;ce qui est vu en image…</translation>
    </message>
    <message>
        <source>Save the &amp;water round the marks…</source>
        <translation>Enregistrer l’eau autour &amp;des marques…</translation>
    </message>
    <message>
        <source>Save what is seen of the slit picture</source>
        <translation>Enregistrer ce qui est vu de l’image à fente</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Images (*.png)</translation>
    </message>
    <message>
        <source>Save the water round the marks</source>
        <translation>Enregistrer l’eau autour des marques</translation>
    </message>
    <message>
        <source>Bands (*.kvband)</source>
        <translation>Bandes (*.kvband)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>Li&amp;gnes</translation>
    </message>
    <message>
        <source>Draw a &amp;new line</source>
        <translation>&amp;Dessiner une nouvelle ligne</translation>
    </message>
    <message>
        <source>Ne&amp;xt line</source>
        <translation>&amp;Ligne suivante</translation>
    </message>
    <message>
        <source>&amp;Previous line</source>
        <translation>Ligne &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Turn the arrow: boats come from the other side</source>
        <translation>Retourner la &amp;flèche&#x202f;: les bateaux viennent de l’autre côté</translation>
    </message>
    <message>
        <source>&amp;Remove the line</source>
        <translation>&amp;Retirer la ligne</translation>
    </message>
    <message>
        <source>Draw a box round one &amp;boat</source>
        <translation>Dessiner &amp;un cadre autour d’un bateau</translation>
    </message>
    <message>
        <source>&amp;Look for boats that cross it</source>
        <translation>&amp;Chercher les bateaux qui la franchissent</translation>
    </message>
    <message>
        <source>&amp;Hair line</source>
        <translation>&amp;Réticule</translation>
    </message>
    <message>
        <source>One frame &amp;earlier</source>
        <translation>&amp;Une image plus tôt</translation>
    </message>
    <message>
        <source>One frame &amp;later</source>
        <translation>Une &amp;image plus tard</translation>
    </message>
    <message>
        <source>Ten frames earlier</source>
        <translation>Dix images plus tôt</translation>
    </message>
    <message>
        <source>Ten frames later</source>
        <translation>Dix images plus tard</translation>
    </message>
    <message>
        <source>A tenth of a frame earlier</source>
        <translation>Un dixième d’image plus tôt</translation>
    </message>
    <message>
        <source>A tenth of a frame later</source>
        <translation>Un dixième d’image plus tard</translation>
    </message>
    <message>
        <source>&amp;Next proposal</source>
        <translation>Proposition &amp;suivante</translation>
    </message>
    <message>
        <source>&amp;Previous proposal</source>
        <translation>P&amp;roposition précédente</translation>
    </message>
    <message>
        <source>To the &amp;beginning</source>
        <translation>&amp;Au début</translation>
    </message>
    <message>
        <source>&amp;Closer</source>
        <translation>&amp;Plus près</translation>
    </message>
    <message>
        <source>&amp;Farther</source>
        <translation>Plus &amp;loin</translation>
    </message>
    <message>
        <source>The &amp;whole film</source>
        <translation>Le &amp;film entier</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>&amp;Marquer</translation>
    </message>
    <message>
        <source>&amp;Mark the run at the hair line</source>
        <translation>Marquer &amp;la manche au réticule</translation>
    </message>
    <message>
        <source>Take the mark &amp;away</source>
        <translation>&amp;Enlever la marque</translation>
    </message>
    <message>
        <source>&amp;Previous run</source>
        <translation>Manche &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Next run</source>
        <translation>&amp;Manche suivante</translation>
    </message>
    <message>
        <source>&amp;Refuse the proposal at the hair line</source>
        <translation>&amp;Refuser la proposition au réticule</translation>
    </message>
    <message>
        <source>&amp;Forget what was refused on this line</source>
        <translation>&amp;Oublier ce qui a été refusé sur cette ligne</translation>
    </message>
    <message>
        <source>Accept a&amp;ll proposals</source>
        <translation>&amp;Accepter toutes les propositions</translation>
    </message>
    <message>
        <source>Accept a&amp;ll proposals: why not yet?</source>
        <translation>Accepter &amp;toutes les propositions&#x202f;: pourquoi pas encore&#x202f;?</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>&amp;Lire ou mettre en pause</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>&amp;Plus lent</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>Plus &amp;vite</translation>
    </message>
    <message>
        <source>&amp;Normal speed</source>
        <translation>Vitesse &amp;normale</translation>
    </message>
    <message>
        <source>Take &amp;over the lines of another film</source>
        <translation>&amp;Reprendre les lignes d’un autre film</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitKeeping</name>
    <message>
        <source>The lines in %1 cannot be read: %2. The file is put aside before new lines take its name.</source>
        <translation>Les lignes dans %1 ne peuvent pas être lues&#x202f;: %2. Le fichier est mis de côté avant que de nouvelles lignes prennent son nom.</translation>
    </message>
    <message>
        <source>The lines could not be kept in %1: %2</source>
        <translation>Les lignes n’ont pas pu être conservées dans %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>The lines of this film are still being read. Try again in a moment.</source>
        <translation>Les lignes de cette vidéo sont encore en cours de lecture. Réessayez dans un instant.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitLoader</name>
    <message>
        <source>The film ends early, after %1 frames.</source>
        <translation>Le film finit trop tôt, après %1 images.</translation>
    </message>
    <message>
        <source>%1 frames cannot be decoded: their columns are black.</source>
        <translation>%1 images ne peuvent pas être décodées&#x202f;: leurs colonnes sont noires.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitPanel</name>
    <message>
        <source>Open the &amp;race…</source>
        <translation>&amp;Ouvrir la course…</translation>
    </message>
    <message>
        <source>Times &amp;finer than the frame</source>
        <translation>&amp;Temps plus fins que l’image</translation>
    </message>
    <message>
        <source>Draw a box round one boat (B), then look for boats (Ctrl+B): where they may have crossed is listed here.</source>
        <translation>Dessinez un cadre autour d’un bateau (B), puis cherchez les bateaux (Ctrl+B)&#x202f;: là où ils ont pu passer est listé ici.</translation>
    </message>
    <message>
        <source>The time of the split follows the hair line between two frames; the mark itself stays on the frame.</source>
        <translation>Le temps de l’intermédiaire suit le réticule entre deux images&#x202f;; la marque elle-même reste sur l’image.</translation>
    </message>
    <message>
        <source>marks</source>
        <translation>marques</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>Marks go into %1</source>
        <translation>Les marques vont dans %1</translation>
    </message>
    <message>
        <source>Marks need the race of this film in split taking.</source>
        <translation>Les marques demandent la course de ce film dans la prise de temps intermédiaires.</translation>
    </message>
    <message>
        <source>No run of %1 has the film %2. Add it there as a film of the runs or as a fixed camera.</source>
        <translation>Aucune manche de %1 n’a le film %2. Ajoutez-le là-bas comme film des manches ou comme caméra fixe.</translation>
    </message>
    <message>
        <source>The runs that are seen on this film are listed here.</source>
        <translation>Les manches visibles sur ce film sont listées ici.</translation>
    </message>
    <message>
        <source>the bow</source>
        <translation>la pointe avant</translation>
    </message>
    <message>
        <source>the body</source>
        <translation>le corps</translation>
    </message>
    <message>
        <source>What is timed at the lines of this film: one point for a whole race. Proposals tell when it crosses.</source>
        <translation>Ce qui est chronométré aux lignes de ce film : un seul point pour toute la course. Les propositions disent quand il passe.</translation>
    </message>
    <message>
        <source>Ti&amp;med is</source>
        <translation>On &amp;mesure</translation>
    </message>
    <message>
        <source>Look for boats (Ctrl+B): where they may have crossed is listed here.</source>
        <translation>Cherchez les bateaux (Ctrl+B) : les endroits où ils ont pu passer sont listés ici.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitRace</name>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Split %1</source>
        <translation>Intermédiaire %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#x202f;: %2</translation>
    </message>
    <message>
        <source>There is no run to be marked.</source>
        <translation>Il n’y a aucune manche à marquer.</translation>
    </message>
    <message>
        <source>This run has no film %1.</source>
        <translation>Cette manche n’a pas de film %1.</translation>
    </message>
    <message>
        <source>%1 in the slit picture</source>
        <translation>%1 dans l’image à fente</translation>
    </message>
    <message>
        <source>This run is not marked here.</source>
        <translation>Cette manche n’est pas marquée ici.</translation>
    </message>
    <message>
        <source>mark removed in the slit picture</source>
        <translation>marque retirée dans l’image à fente</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitSaving</name>
    <message>
        <source>The water round the marks is in %1.</source>
        <translation>L’eau autour des marques est dans %1.</translation>
    </message>
    <message>
        <source>The water round the marks could not be saved: %1</source>
        <translation>L’eau autour des marques n’a pas pu être enregistrée&#x202f;: %1</translation>
    </message>
    <message>
        <source>The picture could not be saved: %1</source>
        <translation>L’image n’a pas pu être enregistrée&#x202f;: %1</translation>
    </message>
    <message>
        <source>There is no slit picture yet.</source>
        <translation>Il n’y a pas encore d’image à fente.</translation>
    </message>
    <message>
        <source>That part is not read yet.</source>
        <translation>Cette partie n’est pas encore lue.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitStrip</name>
    <message>
        <source>Slit picture</source>
        <translation>Image à fente</translation>
    </message>
    <message>
        <source>What stood on the line over the film, over time. A click goes there.</source>
        <translation>Ce qui se trouvait sur la ligne au fil du film. Un clic y va.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitView</name>
    <message>
        <source>Slit picture</source>
        <translation>Image à fente</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#x202f;%</translation>
    </message>
    <message>
        <source>frame %1   %2 s</source>
        <translation>image %1   %2 s</translation>
    </message>
    <message>
        <source>  (%1%2 of a frame)</source>
        <translation>  (%1%2 d’une image)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitWindow</name>
    <message>
        <source>Films (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;All files (*)</source>
        <translation>Films (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Slit picture</source>
        <translation>Image à fente</translation>
    </message>
    <message>
        <source>“%1” is not there.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas là.</translation>
    </message>
    <message>
        <source>Open the film of a fixed camera</source>
        <translation>Ouvrir le film d’une caméra fixe</translation>
    </message>
    <message>
        <source>Open the film of a camera on a tripod (Ctrl+O).</source>
        <translation>Ouvrez le film d’une caméra sur trépied (Ctrl+O).</translation>
    </message>
    <message>
        <source>Reading the film…</source>
        <translation>Lecture du film…</translation>
    </message>
    <message>
        <source>Reading the film:</source>
        <translation>Lecture du film&#x202f;:</translation>
    </message>
    <message>
        <source>Looking for boats:</source>
        <translation>Recherche de bateaux&#x202f;:</translation>
    </message>
    <message>
        <source>Draw a line first: N.</source>
        <translation>Dessinez d’abord une ligne&#x202f;: N.</translation>
    </message>
    <message>
        <source>There is no proposal before this.</source>
        <translation>Il n’y a aucune proposition avant celle-ci.</translation>
    </message>
    <message>
        <source>There is no proposal behind this.</source>
        <translation>Il n’y a aucune proposition après celle-ci.</translation>
    </message>
    <message>
        <source>Marks need the race of this film: open it in split taking.</source>
        <translation>Les marques demandent la course de ce film&#x202f;: ouvrez-la dans la prise de temps intermédiaires.</translation>
    </message>
    <message>
        <source>Draw a box round one boat first: B.</source>
        <translation>Dessinez d’abord un cadre autour d’un bateau&#x202f;: B.</translation>
    </message>
    <message>
        <source>Proposals are accepted one by one</source>
        <translation>Les propositions s’acceptent une à une</translation>
    </message>
    <message>
        <source>There is nothing to learn from yet: look for boats, then mark and refuse what was found.</source>
        <translation>Il n’y a encore rien dont apprendre&#x202f;: cherchez des bateaux, puis marquez et refusez ce qui a été trouvé.</translation>
    </message>
    <message>
        <source>The film is not read so far.</source>
        <translation>Le film n’est pas encore lu.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SplitBar</name>
    <message>
        <source>Split times</source>
        <translation>Temps intermédiaires</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SplitMode</name>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Nothing can be marked: %1 is not in the folder of the split file. Cameras &gt; Where are the films now?</source>
        <translation>Rien ne peut être marqué&#x202f;: %1 n’est pas dans le dossier du fichier d’intermédiaires. Caméras &gt; Où sont les films maintenant&#x202f;?</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>Aucune marque n’est choisie. Ctrl et les flèches vont de marque en marque.</translation>
    </message>
    <message>
        <source>Another run came to the front: nothing was marked.</source>
        <translation>Une autre manche est passée au premier plan&#x202f;: rien n’a été marqué.</translation>
    </message>
    <message>
        <source>The times of this run were taken without marks on the video. Marking it anew replaces them.</source>
        <translation>Les temps de cette manche ont été pris sans marques sur la vidéo. La marquer à nouveau les remplace.</translation>
    </message>
    <message>
        <source>Mark anew</source>
        <translation>Marquer à nouveau</translation>
    </message>
    <message>
        <source>start mark</source>
        <translation>marque de départ</translation>
    </message>
    <message>
        <source>split %1</source>
        <translation>intermédiaire %1</translation>
    </message>
    <message>
        <source>%1:  %2</source>
        <translation>%1&#x202f;:  %2</translation>
    </message>
    <message>
        <source>Split %1 was put in between two marks. Ctrl+Z takes it out again.</source>
        <translation>L’intermédiaire %1 a été inséré entre deux marques. Ctrl+Z l’enlève.</translation>
    </message>
    <message>
        <source>mark moved</source>
        <translation>marque déplacée</translation>
    </message>
    <message>
        <source>There is no mark yet that could be moved.</source>
        <translation>Il n’y a encore aucune marque à déplacer.</translation>
    </message>
    <message>
        <source>mark removed</source>
        <translation>marque retirée</translation>
    </message>
    <message>
        <source>Split %1 is expected behind the end of the film.</source>
        <translation>L’intermédiaire %1 est attendu après la fin du film.</translation>
    </message>
    <message>
        <source>Split %1 is expected here</source>
        <translation>L’intermédiaire %1 est attendu ici</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SplitTableModel</name>
    <message>
        <source>Not timed</source>
        <translation>Non chronométré</translation>
    </message>
    <message>
        <source>%1, %2: %3 s
place %4 of %5
%6 s behind the best, %7 %</source>
        <translation>%1, %2&#x202f;: %3 s
place %4 sur %5
%6 s derrière le meilleur, %7&#x202f;%</translation>
    </message>
    <message>
        <source>%1, %2: %3 s
%4
It counts for nothing: no place, no gap, never a best.</source>
        <translation>%1, %2&#x202f;: %3 s
%4
Il ne compte pour rien&#x202f;: pas de place, pas d’écart, jamais un meilleur.</translation>
    </message>
    <message>
        <source>The best of every section, put together</source>
        <translation>Le meilleur de chaque secteur, mis bout à bout</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 dans %2</translation>
    </message>
    <message>
        <source>Ideal run</source>
        <translation>Manche idéale</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Gates %1</source>
        <translation>Portes %1</translation>
    </message>
    <message>
        <source>Section %1: the colours and the penalties in brackets are those of the first ten sections only.
Place, gap and percent are there as in any other.</source>
        <translation>Secteur %1&#x202f;: les couleurs et les pénalités entre parenthèses sont seulement celles des dix premiers secteurs.
Place, écart et pourcentage y sont comme dans tout autre.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Cat.</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>%1 penalty</source>
        <translation>%1 de pénalité</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SplitsShown</name>
    <message>
        <source>%1?</source>
        <translation>%1&#x202f;?</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StartListDialog</name>
    <message>
        <source>Start list</source>
        <translation>Liste de départ</translation>
    </message>
    <message>
        <source>12,Ann Lee,K1W,10:01:30</source>
        <translation>12,Ann Lee,K1W,10:01:30</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>From a file…</source>
        <translation>D’un fichier…</translation>
    </message>
    <message>
        <source>Paste the list: bib, name, category and start time or order, or with titles in its first line. Boats that are in this phase already are corrected.</source>
        <translation>Collez la liste&#x202f;: dossard, nom, catégorie et heure ou ordre de départ, ou avec des titres en première ligne. Les bateaux déjà dans cette phase sont corrigés.</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt);;All files (*)</source>
        <translation>Listes (*.csv *.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Starts: %1. Lines that cannot be taken: %2.</source>
        <translation>Départs&#x202f;: %1. Lignes qui ne peuvent pas être reprises&#x202f;: %2.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StatisticsDialog</name>
    <message>
        <source>%1 in races, %2 in all</source>
        <translation>%1 en course, %2 en tout</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Laissé de côté</translation>
    </message>
    <message>
        <source>Because it</source>
        <translation>Parce qu’il</translation>
    </message>
    <message>
        <source>Season statistics from split files</source>
        <translation>Statistiques de la saison d’après les fichiers d’intermédiaires</translation>
    </message>
    <message>
        <source>Runs found: %1, in %2 files. They replace what stands there now: %3.</source>
        <translation>Manches trouvées&#x202f;: %1, dans %2 fichiers. Elles remplacent ce qui est là maintenant&#x202f;: %3.</translation>
    </message>
    <message>
        <source>None of the files has a run of this athlete and season. Nothing is replaced.</source>
        <translation>Aucun des fichiers n’a de manche de cet athlète et de cette saison. Rien n’est remplacé.</translation>
    </message>
    <message>
        <source>&amp;Replace the statistics</source>
        <translation>&amp;Remplacer les statistiques</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StepsBox</name>
    <message>
        <source>Hide these steps</source>
        <translation>Masquer ces étapes</translation>
    </message>
    <message>
        <source>Open a race: “Try the sample season”.</source>
        <translation>Ouvrir une course : « Essayer la saison d’exemple ».</translation>
    </message>
    <message>
        <source>Ask a number of its table why it is what it is: Alt+click, or Shift+F1.</source>
        <translation>Demander à un nombre du tableau pourquoi il est ce qu’il est : Alt+clic, ou Maj+F1.</translation>
    </message>
    <message>
        <source>See where the time was lost: Ctrl+Shift+L.</source>
        <translation>Voir où le temps a été perdu : Ctrl+Maj+L.</translation>
    </message>
    <message>
        <source>Play the film of a run, or take a split: Ctrl+T.</source>
        <translation>Lire le film d’une manche, ou prendre un temps : Ctrl+T.</translation>
    </message>
    <message>
        <source>Make an athlete&apos;s report or page: Ctrl+P.</source>
        <translation>Faire le rapport ou la page d’un athlète : Ctrl+P.</translation>
    </message>
    <message>
        <source>All first steps are done. F1 tells the rest.</source>
        <translation>Toutes les premières étapes sont faites. F1 dit le reste.</translation>
    </message>
    <message>
        <source>First steps, three minutes</source>
        <translation>Premiers pas, trois minutes</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Fait&#x202f;: %1</translation>
    </message>
    <message>
        <source>To do: %1</source>
        <translation>À faire&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StrategyPage</name>
    <message>
        <source>best</source>
        <translation>meilleur</translation>
    </message>
    <message>
        <source>way of the run</source>
        <translation>option de la manche</translation>
    </message>
    <message>
        <source>way renamed</source>
        <translation>option renommée</translation>
    </message>
    <message>
        <source>A time is a number of seconds such as 4.35, or 1:04.35</source>
        <translation>Un temps est un nombre de secondes comme 4.35, ou 1:04.35</translation>
    </message>
    <message>
        <source>time of a way</source>
        <translation>temps d’une option</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Prise</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>The tick is at the way that the run took. Names and times are edited by a double click.</source>
        <translation>La coche est sur l’option que la manche a prise. Noms et temps se modifient par double-clic.</translation>
    </message>
    <message>
        <source>Add a way</source>
        <translation>Ajouter une option</translation>
    </message>
    <message>
        <source>A section, or a name for the place</source>
        <translation>Un secteur, ou un nom pour l’endroit</translation>
    </message>
    <message>
        <source>Another way, such as spin or direct</source>
        <translation>Une autre option, comme rotation ou direct</translation>
    </message>
    <message>
        <source>Take its time</source>
        <translation>Prendre son temps</translation>
    </message>
    <message>
        <source>comment on ways</source>
        <translation>commentaire des options</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>Comparées</translation>
    </message>
    <message>
        <source>Time from</source>
        <translation>Temps depuis</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>Sans nom</translation>
    </message>
    <message>
        <source>The run took the fastest way.</source>
        <translation>La manche a pris l’option la plus rapide.</translation>
    </message>
    <message>
        <source>The way of the run cost %1 s.</source>
        <translation>L’option de la manche a coûté %1 s.</translation>
    </message>
    <message>
        <source>Choose a section or name a place, and add it.</source>
        <translation>Choisissez un secteur ou nommez un endroit, et ajoutez-le.</translation>
    </message>
    <message>
        <source>Add the ways of paddling this place.</source>
        <translation>Ajoutez les options pour passer cet endroit.</translation>
    </message>
    <message>
        <source>M marks where %1 ends</source>
        <translation>M marque où %1 finit</translation>
    </message>
    <message>
        <source>M marks where %1 begins</source>
        <translation>M marque où %1 commence</translation>
    </message>
    <message>
        <source>Choose a section, or write a name for the place.</source>
        <translation>Choisissez un secteur, ou écrivez un nom pour l’endroit.</translation>
    </message>
    <message>
        <source>ways at %1</source>
        <translation>options à %1</translation>
    </message>
    <message>
        <source>way added</source>
        <translation>option ajoutée</translation>
    </message>
    <message>
        <source>Add a way and select it first.</source>
        <translation>Ajoutez d’abord une option et sélectionnez-la.</translation>
    </message>
    <message>
        <source>%1 was not timed there.</source>
        <translation>%1 n’y a pas été chronométré.</translation>
    </message>
    <message>
        <source>%1 is timed: %2 s. Empty its time to mark it anew.</source>
        <translation>%1 est chronométrée&#x202f;: %2 s. Videz son temps pour la marquer à nouveau.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>The end of a way comes after its beginning at %1.</source>
        <translation>La fin d’une option vient après son début à %1.</translation>
    </message>
    <message>
        <source>way timed</source>
        <translation>option chronométrée</translation>
    </message>
    <message>
        <source>way removed</source>
        <translation>option retirée</translation>
    </message>
    <message>
        <source>ways removed</source>
        <translation>options retirées</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StrokePage</name>
    <message>
        <source>Section</source>
        <translation>Secteur</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Strokes/min</source>
        <translation>Coups/min</translation>
    </message>
    <message>
        <source>A marks a stroke on the left, D on the right, M with the other hand than before.</source>
        <translation>A marque un coup de pagaie à gauche, D à droite, M de l’autre main que le précédent.</translation>
    </message>
    <message>
        <source>Rate now</source>
        <translation>Cadence actuelle</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>%1 per minute, %2 strokes</source>
        <translation>%1 par minute, %2 coups de pagaie</translation>
    </message>
    <message>
        <source>left stroke</source>
        <translation>coup de pagaie à gauche</translation>
    </message>
    <message>
        <source>right stroke</source>
        <translation>coup de pagaie à droite</translation>
    </message>
    <message>
        <source>other hand</source>
        <translation>autre main</translation>
    </message>
    <message>
        <source>style of the stroke</source>
        <translation>style du coup de pagaie</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SummaryPanel</name>
    <message>
        <source>Retired athletes are left out.</source>
        <translation>Les athlètes qui ont arrêté sont laissés de côté.</translation>
    </message>
    <message>
        <source>Two seasons are needed.</source>
        <translation>Deux saisons sont nécessaires.</translation>
    </message>
    <message>
        <source>The first two seasons have no race with a final position.</source>
        <translation>Les deux premières saisons n’ont aucune course avec une place finale.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> et </translation>
    </message>
    <message>
        <source>Over the seasons</source>
        <translation>Au fil des saisons</translation>
    </message>
    <message>
        <source>All seasons</source>
        <translation>Toutes les saisons</translation>
    </message>
    <message>
        <source>Categorization</source>
        <translation>Catégorisation</translation>
    </message>
    <message>
        <source>, born %1</source>
        <translation>, naissance %1</translation>
    </message>
    <message>
        <source>One race has no final position. It counts as a medal here, not in the categorization.</source>
        <translation>Une course n’a pas de place finale. Elle compte ici comme une médaille, pas dans la catégorisation.</translation>
    </message>
    <message>
        <source>%1 races have no final position. They count as medals here, not in the categorization.</source>
        <translation>%1 courses n’ont pas de place finale. Elles comptent ici comme des médailles, pas dans la catégorisation.</translation>
    </message>
    <message>
        <source>Counted: %1</source>
        <translation>Comptées&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TableDocument</name>
    <message>
        <source>Join the athletes</source>
        <translation>Relier les athlètes</translation>
    </message>
    <message>
        <source>Say who line %1 is</source>
        <translation>Dire qui est la ligne %1</translation>
    </message>
    <message>
        <source>Line %1 of the list is no row of this table any more.</source>
        <translation>La ligne %1 de la liste n’est plus une ligne de ce tableau.</translation>
    </message>
    <message>
        <source>Line %1, column %2 of the list says “%3”.</source>
        <translation>La ligne %1, colonne %2 de la liste dit « %3 ».</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 ligne</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n ligne</numerusform>
            <numerusform>%n lignes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TablesActions</name>
    <message>
        <source>&amp;Open a list…</source>
        <translation>Ou&amp;vrir une liste…</translation>
    </message>
    <message>
        <source>Open what was &amp;copied</source>
        <translation>Ouvrir &amp;ce qui a été copié</translation>
    </message>
    <message>
        <source>A&amp;nother list of this file…</source>
        <translation>Une autre liste &amp;de ce fichier…</translation>
    </message>
    <message>
        <source>&amp;Keep with the race…</source>
        <translation>Co&amp;nserver avec la course…</translation>
    </message>
    <message>
        <source>Save the &amp;table as CSV…</source>
        <translation>Enregistrer le &amp;tableau en CSV…</translation>
    </message>
    <message>
        <source>Save the c&amp;hart…</source>
        <translation>Enregistrer &amp;le graphique…</translation>
    </message>
    <message>
        <source>The first line holds the &amp;titles</source>
        <translation>&amp;La première ligne contient les titres</translation>
    </message>
    <message>
        <source>The first line is a ro&amp;w</source>
        <translation>La &amp;première ligne est une ligne de données</translation>
    </message>
    <message>
        <source>No &amp;groups</source>
        <translation>&amp;Sans groupes</translation>
    </message>
    <message>
        <source>&amp;Column</source>
        <translation>C&amp;olonne</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>&amp;Trier</translation>
    </message>
    <message>
        <source>Sort &amp;downwards</source>
        <translation>Trier &amp;en ordre décroissant</translation>
    </message>
    <message>
        <source>&amp;Group by it</source>
        <translation>&amp;Grouper selon elle</translation>
    </message>
    <message>
        <source>&amp;Tint it</source>
        <translation>&amp;La teinter</translation>
    </message>
    <message>
        <source>&amp;Chart of it</source>
        <translation>&amp;Son graphique</translation>
    </message>
    <message>
        <source>&amp;Keep rows with…</source>
        <translation>Garder les lignes &amp;avec…</translation>
    </message>
    <message>
        <source>&amp;Leave it out</source>
        <translation>La laisser &amp;de côté</translation>
    </message>
    <message>
        <source>&amp;Read it as</source>
        <translation>&amp;La lire comme</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Ajo&amp;uter</translation>
    </message>
    <message>
        <source>&amp;Total</source>
        <translation>&amp;Total</translation>
    </message>
    <message>
        <source>&amp;Rank</source>
        <translation>&amp;Rang</translation>
    </message>
    <message>
        <source>&amp;Gap to the best</source>
        <translation>Écart au &amp;meilleur</translation>
    </message>
    <message>
        <source>&amp;Percent behind the best</source>
        <translation>Pourcentage &amp;derrière le meilleur</translation>
    </message>
    <message>
        <source>Percenti&amp;le</source>
        <translation>&amp;Percentile</translation>
    </message>
    <message>
        <source>&amp;Another column…</source>
        <translation>&amp;Autre colonne…</translation>
    </message>
    <message>
        <source>P&amp;ivot…</source>
        <translation>Tableau &amp;croisé…</translation>
    </message>
    <message>
        <source>A&amp;thletes</source>
        <translation>A&amp;thlètes</translation>
    </message>
    <message>
        <source>&amp;Join a team…</source>
        <translation>&amp;Relier une équipe…</translation>
    </message>
    <message>
        <source>&amp;Who is meant?…</source>
        <translation>&amp;Qui est visé&#x202f;?…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>Affi&amp;cher</translation>
    </message>
    <message>
        <source>What was &amp;refused</source>
        <translation>&amp;Ce qui a été refusé</translation>
    </message>
    <message>
        <source>&amp;Blue to orange instead of green to red</source>
        <translation>&amp;Du bleu à l’orange au lieu du vert au rouge</translation>
    </message>
    <message>
        <source>The &amp;whole chart</source>
        <translation>&amp;Tout le graphique</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TablesWindow</name>
    <message>
        <source>Tables</source>
        <translation>Tableaux</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Kept with %1</source>
        <translation>Conservé avec %1</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lecture de %1…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened as a table</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être ouvert en tableau</translation>
    </message>
    <message>
        <source>What was copied is no list</source>
        <translation>Ce qui a été copié n’est pas une liste</translation>
    </message>
    <message>
        <source>Which of its lists?</source>
        <translation>Laquelle de ses listes&#x202f;?</translation>
    </message>
    <message>
        <source>What was copied</source>
        <translation>Ce qui a été copié</translation>
    </message>
    <message>
        <source>This step cannot be taken</source>
        <translation>Cette étape ne peut pas être faite</translation>
    </message>
    <message>
        <source>Keep rows</source>
        <translation>Garder des lignes</translation>
    </message>
    <message>
        <source>Rows whose “%1” contains this are kept; the cell as it stands keeps just its like.</source>
        <translation>Les lignes dont «&#xa0;%1&#xa0;» contient ceci sont gardées&#x202f;; la cellule telle quelle ne garde que ses semblables.</translation>
    </message>
    <message>
        <source> table</source>
        <translation> tableau</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Texte séparé par des points-virgules (*.csv)</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>Ouvrir des listes</translation>
    </message>
    <message>
        <source>Join a team</source>
        <translation>Relier une équipe</translation>
    </message>
    <message>
        <source>Teams (*.kvteam);;All files (*)</source>
        <translation>Équipes (*.kvteam);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The rows cannot be joined</source>
        <translation>Les lignes ne peuvent pas être reliées</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>Nobody of the team</source>
        <translation>Personne de l’équipe</translation>
    </message>
    <message>
        <source>Who is %1 in line %2?</source>
        <translation>Qui est %1 à la ligne %2&#x202f;?</translation>
    </message>
    <message>
        <source>Keep with the race</source>
        <translation>Conserver avec la course</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Fichiers d’intermédiaires (*.kvx);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Enregistrer le tableau</translation>
    </message>
    <message>
        <source>The table was not saved</source>
        <translation>Le tableau n’a pas été enregistré</translation>
    </message>
    <message>
        <source>The list that it is made from stays as it is. Choose another name.</source>
        <translation>La liste dont il est tiré reste telle quelle. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>Saving the table…</source>
        <translation>Enregistrement du tableau…</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 ligne</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 colonne</translation>
    </message>
    <message>
        <source>%1 refused (F7)</source>
        <translation>%1 refusées (F7)</translation>
    </message>
    <message>
        <source>%1 that only you can tell (F6)</source>
        <translation>%1 que vous seul pouvez dire (F6)</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n ligne</numerusform>
            <numerusform>%n lignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n columns</source>
        <translation>
            <numerusform>%n colonne</numerusform>
            <numerusform>%n colonnes</numerusform>
        </translation>
    </message>
    <message>
        <source>Drop a list of results here</source>
        <translation>Déposez ici une liste de résultats</translation>
    </message>
    <message>
        <source>Text (CSV, tabs, columns of blanks), a spreadsheet (.xlsx, .ods), what was copied from a page, or a race that carries a list. Lists are only read.</source>
        <translation>Texte (CSV, tabulations, colonnes séparées par des blancs), classeur (.xlsx, .ods), ce qui a été copié d’une page, ou une course qui porte une liste. Les listes sont seulement lues.</translation>
    </message>
    <message>
        <source>Open a list…</source>
        <translation>Ouvrir une liste…</translation>
    </message>
    <message>
        <source>Open what was copied</source>
        <translation>Ouvrir ce qui a été copié</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TagMode</name>
    <message>
        <source>Tag</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>There is no film to tag.</source>
        <translation>Il n’y a pas de film à étiqueter.</translation>
    </message>
    <message>
        <source>This tag is of the split file: split taking moves it.</source>
        <translation>Cette étiquette est du fichier d’intermédiaires&#x202f;: la prise de temps intermédiaires la déplace.</translation>
    </message>
    <message>
        <source>No tag is selected.</source>
        <translation>Aucune étiquette n’est choisie.</translation>
    </message>
    <message>
        <source>There is no film to cut.</source>
        <translation>Il n’y a pas de film à couper.</translation>
    </message>
    <message>
        <source>This frame has the tag “%1” already.</source>
        <translation>Cette image a déjà l’étiquette « %1 ».</translation>
    </message>
    <message>
        <source>There is no tag %1 yet: type its name below the film.</source>
        <translation>Il n’y a pas encore d’étiquette %1 : tapez son nom sous le film.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TagPage</name>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>Play just the tagged part</source>
        <translation>Lire seulement la partie étiquetée</translation>
    </message>
    <message>
        <source>Rename the tag</source>
        <translation>Renommer l’étiquette</translation>
    </message>
    <message>
        <source>Gives the selected tag the name above</source>
        <translation>Donne à l’étiquette choisie le nom ci-dessus</translation>
    </message>
    <message>
        <source>M sets the tag at the frame shown.</source>
        <translation>M pose l’étiquette à l’image affichée.</translation>
    </message>
    <message>
        <source>Enter sets the tag %1 at the frame shown. Esc gives the keys back to the film.</source>
        <translation>Entrée pose l’étiquette %1 à l’image affichée. Échap rend les touches au film.</translation>
    </message>
    <message>
        <source>Choose or type the name of the tag first.</source>
        <translation>Choisissez ou tapez d’abord le nom de l’étiquette.</translation>
    </message>
    <message>
        <source>tag %1</source>
        <translation>étiquette %1</translation>
    </message>
    <message>
        <source>Select a tag and write its new name.</source>
        <translation>Choisissez une étiquette et écrivez son nouveau nom.</translation>
    </message>
    <message>
        <source>tag renamed</source>
        <translation>étiquette renommée</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakeOverDialog</name>
    <message>
        <source>Boat</source>
        <translation>Bateau</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlète</translation>
    </message>
    <message>
        <source>not in the team</source>
        <translation>pas dans l’équipe</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Laisser de côté</translation>
    </message>
    <message>
        <source>Add %1 to the team</source>
        <translation>Ajouter %1 à l’équipe</translation>
    </message>
    <message>
        <source>perhaps %1?</source>
        <translation>peut-être %1&#x202f;?</translation>
    </message>
    <message>
        <source>%1 is added to the athlete&apos;s boats</source>
        <translation>%1 est ajouté aux bateaux de l’athlète</translation>
    </message>
    <message>
        <source>the same stands there</source>
        <translation>la même chose y figure</translation>
    </message>
    <message>
        <source>Take results over</source>
        <translation>Reprendre des résultats</translation>
    </message>
    <message>
        <source>Choose the event</source>
        <translation>Choisir la compétition</translation>
    </message>
    <message>
        <source>&amp;Event</source>
        <translation>C&amp;ompétition</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Lieu</translation>
    </message>
    <message>
        <source>&amp;Season</source>
        <translation>&amp;Saison</translation>
    </message>
    <message>
        <source>The positions are the &amp;final ones of the race</source>
        <translation>Les positions sont les places &amp;finales de la course</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Catégorie</translation>
    </message>
    <message>
        <source>&amp;Phase</source>
        <translation>&amp;Phase</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Jour</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Tick &amp;all</source>
        <translation>Tout &amp;cocher</translation>
    </message>
    <message>
        <source>Tick &amp;none</source>
        <translation>&amp;Tout décocher</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(ligne %1)</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
    </message>
    <message>
        <source>Final position</source>
        <translation>Place finale</translation>
    </message>
    <message>
        <source>&amp;Take over 1 line</source>
        <translation>&amp;Reprendre 1 ligne</translation>
    </message>
    <message>
        <source>Choose the event of the race.</source>
        <translation>Choisissez la compétition de la course.</translation>
    </message>
    <message>
        <source>Nothing in the file belongs to an athlete of the team. A click on “not in the team” chooses one, or adds the name to the team.</source>
        <translation>Rien dans le fichier n’est d’un athlète de l’équipe. Un clic sur «&#xa0;pas dans l’équipe&#xa0;» en choisit un, ou ajoute le nom à l’équipe.</translation>
    </message>
    <message>
        <source>%1 of %2 lines are ticked; %3 stay out. A click on an athlete chooses another one, or adds the name to the team.</source>
        <translation>%1 lignes sur %2 sont cochées&#x202f;; %3 ne sont pas reprises. Un clic sur un athlète en choisit un autre, ou ajoute le nom à l’équipe.</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Take over %n lines</source>
        <translation>
            <numerusform>Reprendre %n &amp;ligne</numerusform>
            <numerusform>Reprendre %n &amp;lignes</numerusform>
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
        <translation>Reprendre un test d’un enregistrement</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>T&amp;est</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>A&amp;thlète</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>&amp;Lieu</translation>
    </message>
    <message>
        <source>La&amp;ps</source>
        <translation>T&amp;ours</translation>
    </message>
    <message>
        <source>&amp;Distance between the gates</source>
        <translation>&amp;Distance entre les portes</translation>
    </message>
    <message>
        <source>T&amp;urn limit</source>
        <translation>&amp;Seuil de virage</translation>
    </message>
    <message>
        <source>&amp;Suggest the marks again</source>
        <translation>&amp;Proposer à nouveau les marques</translation>
    </message>
    <message>
        <source>Take in</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Tour %1</translation>
    </message>
    <message>
        <source>Stretch %1</source>
        <translation>Tronçon %1</translation>
    </message>
    <message>
        <source>Eight %1</source>
        <translation>Huit %1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>%1 strokes and %2 turns were found.</source>
        <translation>%1 coups de pagaie et %2 virages ont été trouvés.</translation>
    </message>
    <message>
        <source>Ends at
(s)</source>
        <translation>Finit à
(s)</translation>
    </message>
    <message>
        <source>Seconds from the beginning of the recording</source>
        <translation>Secondes depuis le début de l’enregistrement</translation>
    </message>
    <message>
        <source>Time
(s)</source>
        <translation>Temps
(s)</translation>
    </message>
    <message>
        <source>Length of the section</source>
        <translation>Longueur du secteur</translation>
    </message>
    <message>
        <source>No such test was found in the recording.</source>
        <translation>Aucun test de ce genre n’a été trouvé dans l’enregistrement.</translation>
    </message>
    <message>
        <source>Each mark has to be later than the one before.</source>
        <translation>Chaque marque doit être plus tardive que la précédente.</translation>
    </message>
    <message>
        <source>Laps found in the recording: %1 of %2. What is taken in has no more of them.</source>
        <translation>Tours trouvés dans l’enregistrement&#x202f;: %1 sur %2. Ce qui est repris n’en a pas davantage.</translation>
    </message>
    <message>
        <source>Eights found in the recording: %1 of %2. What is taken in has no more of them.</source>
        <translation>Huit trouvés dans l’enregistrement&#x202f;: %1 sur %2. Ce qui est repris n’en a pas davantage.</translation>
    </message>
    <message>
        <source>Rotation and marks</source>
        <translation>Rotation et marques</translation>
    </message>
    <message>
        <source>Time from the beginning of the recording (s)</source>
        <translation>Temps depuis le début de l’enregistrement (s)</translation>
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
        <translation>Marques</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakeRunDialog</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlète</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Secteurs</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Mouvement</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>Take in tests from “%1”</source>
        <translation>Reprendre des tests de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Take in</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>T&amp;est</translation>
    </message>
    <message>
        <source>Take %1 runs in</source>
        <translation>Reprendre %1 manches</translation>
    </message>
    <message>
        <source>Each section of the run becomes a lap.</source>
        <translation>Chaque secteur de la manche devient un tour.</translation>
    </message>
    <message>
        <source>Each section of the run becomes a stretch of the sprint.</source>
        <translation>Chaque secteur de la manche devient un tronçon du sprint.</translation>
    </message>
    <message>
        <source>The first five sections become the splits, with their marks in the video; the motion samples of the run tell its rotation.</source>
        <translation>Les cinq premiers secteurs deviennent les intermédiaires, avec leurs marques sur la vidéo&#x202f;; les échantillons de mouvement de la manche donnent sa rotation.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakingActions</name>
    <message>
        <source>&amp;Open a folder of videos…</source>
        <translation>Ouvrir un dossier de &amp;vidéos…</translation>
    </message>
    <message>
        <source>&amp;Save data</source>
        <translation>Enregistrer &amp;les données</translation>
    </message>
    <message>
        <source>Import &amp;video…</source>
        <translation>&amp;Importer une vidéo…</translation>
    </message>
    <message>
        <source>Import split &amp;file…</source>
        <translation>Impor&amp;ter un fichier d’intermédiaires…</translation>
    </message>
    <message>
        <source>Import official &amp;results…</source>
        <translation>Im&amp;porter les résultats officiels…</translation>
    </message>
    <message>
        <source>Compare &amp;with official results…</source>
        <translation>Comparer au&amp;x résultats officiels…</translation>
    </message>
    <message>
        <source>&amp;Recording of the run…</source>
        <translation>E&amp;nregistrement de la manche…</translation>
    </message>
    <message>
        <source>Run s&amp;heet: preview, PDF, print…</source>
        <translation>Fic&amp;he de manche&#x202f;: aperçu, PDF, impression…</translation>
    </message>
    <message>
        <source>&amp;Export data…</source>
        <translation>Exporter les &amp;données…</translation>
    </message>
    <message>
        <source>Show in the race &amp;analyzer</source>
        <translation>&amp;Montrer dans l’analyse de course</translation>
    </message>
    <message>
        <source>Compare fil&amp;ms of the run…</source>
        <translation>&amp;Comparer les films de la manche…</translation>
    </message>
    <message>
        <source>Kayak &amp;cross of this race</source>
        <translation>&amp;Kayak cross de cette course</translation>
    </message>
    <message>
        <source>Open a folder of videos</source>
        <translation>Ouvrir un dossier de vidéos</translation>
    </message>
    <message>
        <source>Race and &amp;course…</source>
        <translation>Course &amp;et parcours…</translation>
    </message>
    <message>
        <source>Names of the &amp;films…</source>
        <translation>&amp;Noms des films…</translation>
    </message>
    <message>
        <source>&amp;Previous run</source>
        <translation>Manche &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Next run</source>
        <translation>&amp;Manche suivante</translation>
    </message>
    <message>
        <source>&amp;Find an athlete</source>
        <translation>Chercher &amp;un athlète</translation>
    </message>
    <message>
        <source>Move the run up</source>
        <translation>Monter la manche</translation>
    </message>
    <message>
        <source>Move the run down</source>
        <translation>Descendre la manche</translation>
    </message>
    <message>
        <source>Remove the run from the list</source>
        <translation>Retirer la manche de la liste</translation>
    </message>
    <message>
        <source>Delete &amp;all data…</source>
        <translation>Effacer &amp;toutes les données…</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>&amp;Marquer</translation>
    </message>
    <message>
        <source>&amp;Mark the split</source>
        <translation>&amp;Marquer l’intermédiaire</translation>
    </message>
    <message>
        <source>To where the next split is e&amp;xpected</source>
        <translation>&amp;Là où le prochain intermédiaire est attendu</translation>
    </message>
    <message>
        <source>To the start mark</source>
        <translation>À la marque de départ</translation>
    </message>
    <message>
        <source>To split &amp;%1</source>
        <translation>À l’intermédiaire &amp;%1</translation>
    </message>
    <message>
        <source>&amp;Gates</source>
        <translation>&amp;Portes</translation>
    </message>
    <message>
        <source>&amp;Touch: 2 s</source>
        <translation>&amp;Touche&#x202f;: 2 s</translation>
    </message>
    <message>
        <source>Missed gate: &amp;50 s</source>
        <translation>Porte &amp;manquée&#x202f;: 50 s</translation>
    </message>
    <message>
        <source>&amp;Clean</source>
        <translation>&amp;Sans pénalité</translation>
    </message>
    <message>
        <source>&amp;Next gate</source>
        <translation>&amp;Porte suivante</translation>
    </message>
    <message>
        <source>&amp;Previous gate</source>
        <translation>P&amp;orte précédente</translation>
    </message>
    <message>
        <source>&amp;Cameras</source>
        <translation>&amp;Caméras</translation>
    </message>
    <message>
        <source>&amp;Add another camera of this run…</source>
        <translation>&amp;Ajouter une autre caméra de cette manche…</translation>
    </message>
    <message>
        <source>&amp;Where are the films now?…</source>
        <translation>Où so&amp;nt les films maintenant&#x202f;?…</translation>
    </message>
    <message>
        <source>Last camera one frame back</source>
        <translation>Dernière caméra, une image en arrière</translation>
    </message>
    <message>
        <source>Last camera one frame forward</source>
        <translation>Dernière caméra, une image en avant</translation>
    </message>
    <message>
        <source>&amp;Larger: without the table, the film alone, all again</source>
        <translation>&amp;Plus grand&#x202f;: sans le tableau, le film seul, tout à nouveau</translation>
    </message>
    <message>
        <source>The frames shown are &amp;one moment</source>
        <translation>&amp;Les images affichées sont le même moment</translation>
    </message>
    <message>
        <source>&amp;Draw the course…</source>
        <translation>&amp;Dessiner le parcours…</translation>
    </message>
    <message>
        <source>Sl&amp;it picture of the last camera</source>
        <translation>&amp;Image à fente de la dernière caméra</translation>
    </message>
    <message>
        <source>There is no film here that has a slit picture.</source>
        <translation>Aucun film ici n’a d’image à fente.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakingDocument</name>
    <message>
        <source>Save a copy as</source>
        <translation>Enregistrer une copie sous</translation>
    </message>
    <message>
        <source>Split files (*.kvx)</source>
        <translation>Fichiers d’intermédiaires (*.kvx)</translation>
    </message>
    <message>
        <source> &quot;Save as…&quot; writes a copy in the present release and opens it here; its films stay where they are.</source>
        <translation> «&#xa0;Enregistrer sous…&#xa0;» écrit une copie dans la version actuelle et l’ouvre ici&#x202f;; ses films restent où ils sont.</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>names of the films</source>
        <translation>noms des films</translation>
    </message>
    <message>
        <source>run removed</source>
        <translation>manche retirée</translation>
    </message>
    <message>
        <source>run moved</source>
        <translation>manche déplacée</translation>
    </message>
    <message>
        <source>videos imported</source>
        <translation>vidéos importées</translation>
    </message>
    <message>
        <source>split file imported</source>
        <translation>fichier d’intermédiaires importé</translation>
    </message>
    <message>
        <source>official results imported</source>
        <translation>résultats officiels importés</translation>
    </message>
    <message>
        <source>official result of %1</source>
        <translation>résultat officiel de %1</translation>
    </message>
    <message>
        <source>1 run</source>
        <translation>1 manche</translation>
    </message>
    <message>
        <source>%1 with %2 is emptied. Ctrl+Z brings it back.</source>
        <translation>%1 avec %2 est vidé. Ctrl+Z le rétablit.</translation>
    </message>
    <message>
        <source>reset</source>
        <translation>remise à zéro</translation>
    </message>
    <message>
        <source>1 start without a split is not stored in the file. This computer keeps it, and offers it when the file is opened here again.</source>
        <translation>1 départ sans intermédiaire n’est pas écrit dans le fichier. Cet ordinateur le conserve et le propose à la réouverture du fichier ici.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Écraser</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n manche</numerusform>
            <numerusform>%n manches</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n starts without a split are not stored in the file. This computer keeps them, and offers them when the file is opened here again.</source>
        <translation>
            <numerusform>%n départ sans intermédiaire n’est pas écrit dans le fichier. Cet ordinateur le conserve et le propose à la réouverture du fichier ici.</numerusform>
            <numerusform>%n départs sans intermédiaire ne sont pas écrits dans le fichier. Cet ordinateur les conserve et les propose à la réouverture du fichier ici.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakingWindow</name>
    <message>
        <source>correction</source>
        <translation>correction</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Cat.</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Phase</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>%1/%2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>split taking</source>
        <translation>prise de temps intermédiaires</translation>
    </message>
    <message>
        <source>Athlete&apos;s name</source>
        <translation>Nom de l’athlète</translation>
    </message>
    <message>
        <source>Enter finds the athlete&apos;s next run, or collects a training file of all videos with that name</source>
        <translation>Entrée trouve la manche suivante de l’athlète, ou réunit un fichier d’entraînement de toutes les vidéos à ce nom</translation>
    </message>
    <message>
        <source>Race &amp;day, or the table of the race</source>
        <translation>&amp;Jour de course, ou le tableau de la course</translation>
    </message>
    <message>
        <source>In which folder do the films appear?</source>
        <translation>Dans quel dossier les films arrivent-ils&#x202f;?</translation>
    </message>
    <message>
        <source>A click on a time shows its frame</source>
        <translation>Un clic sur un temps montre son image</translation>
    </message>
    <message>
        <source>penalty at gate %1</source>
        <translation>pénalité à la porte %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TeamAthleteDialog</name>
    <message>
        <source>New athlete</source>
        <translation>Nouvel athlète</translation>
    </message>
    <message>
        <source>Written in capitals in the team</source>
        <translation>Écrit en capitales dans l’équipe</translation>
    </message>
    <message>
        <source>Such as 1998</source>
        <translation>Par exemple 1998</translation>
    </message>
    <message>
        <source>&amp;Surname</source>
        <translation>&amp;Nom de famille</translation>
    </message>
    <message>
        <source>&amp;Given name</source>
        <translation>&amp;Prénom</translation>
    </message>
    <message>
        <source>&amp;Born in</source>
        <translation>&amp;Année de naissance</translation>
    </message>
    <message>
        <source>Boats</source>
        <translation>Bateaux</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TeamDocument</name>
    <message>
        <source>It is no team file, or a damaged one: %1</source>
        <translation>Ce n’est pas un fichier d’équipe, ou il est abîmé&#x202f;: %1</translation>
    </message>
    <message>
        <source>averages</source>
        <translation>moyennes</translation>
    </message>
    <message>
        <source>1 athlete</source>
        <translation>1 athlète</translation>
    </message>
    <message numerus="yes">
        <source>%n athletes</source>
        <translation>
            <numerusform>%n athlète</numerusform>
            <numerusform>%n athlètes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TeamWindow</name>
    <message>
        <source>Take results over</source>
        <translation>Reprendre des résultats</translation>
    </message>
    <message>
        <source>Split files and result lists (*.kvx *.csv *.txt);;All files (*)</source>
        <translation>Fichiers d’intermédiaires et listes de résultats (*.kvx *.csv *.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>“%1” cannot be taken over</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être repris</translation>
    </message>
    <message>
        <source>There are no results in it.</source>
        <translation>Il ne contient aucun résultat.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>There are no runs in it.</source>
        <translation>Il ne contient aucune manche.</translation>
    </message>
    <message>
        <source>results taken over</source>
        <translation>résultats repris</translation>
    </message>
    <message>
        <source>Team</source>
        <translation>Équipe</translation>
    </message>
    <message>
        <source>new athlete</source>
        <translation>nouvel athlète</translation>
    </message>
    <message>
        <source>removal of an athlete</source>
        <translation>retrait d’un athlète</translation>
    </message>
    <message>
        <source>new category</source>
        <translation>nouvelle catégorie</translation>
    </message>
    <message>
        <source>removal of a category</source>
        <translation>retrait d’une catégorie</translation>
    </message>
    <message>
        <source>Choose an athlete and a category first.</source>
        <translation>Choisissez d’abord un athlète et une catégorie.</translation>
    </message>
    <message>
        <source>Add a season first.</source>
        <translation>Ajoutez d’abord une saison.</translation>
    </message>
    <message>
        <source>Choose a category first.</source>
        <translation>Choisissez d’abord une catégorie.</translation>
    </message>
    <message>
        <source>No athlete comes into question in %1: two seasons are needed, with a final position in one of the first two.</source>
        <translation>Aucun athlète n’entre en ligne de compte en %1&#x202f;: il faut deux saisons, avec une place finale dans l’une des deux premières.</translation>
    </message>
    <message>
        <source>Categorization %1</source>
        <translation>Catégorisation %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestListPanel</name>
    <message>
        <source>All tests</source>
        <translation>Tous les tests</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlète</translation>
    </message>
    <message>
        <source>Ticked tests are laid over the chosen one (Space)</source>
        <translation>Les tests cochés sont superposés à celui choisi (Espace)</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>All athletes</source>
        <translation>Tous les athlètes</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestSessionWindow</name>
    <message>
        <source>Time (s)</source>
        <translation>Temps (s)</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>There are no values in this attempt.</source>
        <translation>Il n’y a aucune valeur dans cet essai.</translation>
    </message>
    <message>
        <source>Heart rate (1/min)</source>
        <translation>Fréquence cardiaque (1/min)</translation>
    </message>
    <message>
        <source>Test session</source>
        <translation>Séance de tests</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>&amp;Export the table…</source>
        <translation>Exporter &amp;le tableau…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>Attempt %1
%2 stroke values, %3 of the sprint</source>
        <translation>Essai %1
%2 valeurs de coups de pagaie, %3 du sprint</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Tous les types</translation>
    </message>
    <message>
        <source>Sprint data</source>
        <translation>Données de sprint</translation>
    </message>
    <message>
        <source>Export the table</source>
        <translation>Exporter le tableau</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Texte séparé par des points-virgules (*.csv)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestsDocument</name>
    <message>
        <source>It is no file of tests, or a damaged one: %1</source>
        <translation>Ce n’est pas un fichier de tests, ou il est abîmé&#x202f;: %1</translation>
    </message>
    <message>
        <source>removal of tests</source>
        <translation>retrait de tests</translation>
    </message>
    <message>
        <source>1 test</source>
        <translation>1 test</translation>
    </message>
    <message numerus="yes">
        <source>%n tests</source>
        <translation>
            <numerusform>%n test</numerusform>
            <numerusform>%n tests</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestsWindow</name>
    <message>
        <source>Take tests in from a split file</source>
        <translation>Reprendre des tests d’un fichier d’intermédiaires</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Fichiers d’intermédiaires (*.kvx);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Take a test in from a recording</source>
        <translation>Reprendre un test d’un enregistrement</translation>
    </message>
    <message>
        <source>Recordings (*.kvb);;All files (*)</source>
        <translation>Enregistrements (*.kvb);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>“%1” cannot be taken in</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être repris</translation>
    </message>
    <message>
        <source>There are no runs in it.</source>
        <translation>Il ne contient aucune manche.</translation>
    </message>
    <message>
        <source>tests taken in</source>
        <translation>tests repris</translation>
    </message>
    <message>
        <source>test taken in</source>
        <translation>test repris</translation>
    </message>
    <message>
        <source>It is no raw recording, or a damaged one: %1</source>
        <translation>Ce n’est pas un enregistrement brut, ou il est abîmé&#x202f;: %1</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Graphiques</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tableau</translation>
    </message>
    <message>
        <source>One ticked test is of another kind and left out here.</source>
        <translation>Un test coché est d’un autre type et laissé de côté ici.</translation>
    </message>
    <message>
        <source>%1 ticked tests are of another kind and left out here.</source>
        <translation>%1 tests cochés sont d’un autre type et laissés de côté ici.</translation>
    </message>
    <message>
        <source>new eight test</source>
        <translation>nouveau test en huit</translation>
    </message>
    <message>
        <source>new sprint</source>
        <translation>nouveau sprint</translation>
    </message>
    <message>
        <source>new lap test</source>
        <translation>nouveau test par tours</translation>
    </message>
    <message>
        <source>copy of a test</source>
        <translation>copie d’un test</translation>
    </message>
    <message>
        <source>Export the table of tests</source>
        <translation>Exporter le tableau des tests</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv);;All files (*)</source>
        <translation>Texte séparé par des points-virgules (*.csv);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TickStrip</name>
    <message>
        <source>Other marks</source>
        <translation>Autres marques</translation>
    </message>
    <message>
        <source>A click shows the frame of a mark</source>
        <translation>Un clic montre l’image d’une marque</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TimeLine</name>
    <message>
        <source>Time line</source>
        <translation>Ligne de temps</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TimerFace</name>
    <message>
        <source>%1 – paused</source>
        <translation>%1 – en pause</translation>
    </message>
    <message>
        <source>Set %1 of %2   ·   Repetition %3 of %4</source>
        <translation>Série %1 sur %2   ·   Répétition %3 sur %4</translation>
    </message>
    <message>
        <source>Well done.</source>
        <translation>Bien joué.</translation>
    </message>
    <message>
        <source>Next: the end</source>
        <translation>Ensuite&#x202f;: la fin</translation>
    </message>
    <message>
        <source>Next: %1 %2</source>
        <translation>Ensuite&#x202f;: %1 %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ToolWindow</name>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>Fichiers %1 (*.%2)</translation>
    </message>
    <message>
        <source>%1, saving…</source>
        <translation>%1, enregistrement…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Open it again</source>
        <translation>Ouvrir à nouveau</translation>
    </message>
    <message>
        <source>Keep what is here</source>
        <translation>Garder ce qui est ici</translation>
    </message>
    <message>
        <source>⚠ Another program changed “%1”. What is shown here is from before.</source>
        <translation>⚠ Un autre programme a modifié «&#xa0;%1&#xa0;». Ce qui est affiché ici date d’avant.</translation>
    </message>
    <message>
        <source>⚠ “%1” is no longer in its folder. Saving puts it there again.</source>
        <translation>⚠ «&#xa0;%1&#xa0;» n’est plus dans son dossier. L’enregistrer l’y remet.</translation>
    </message>
    <message>
        <source>Opening “%1” again gives up what was not saved here.</source>
        <translation>Ouvrir «&#xa0;%1&#xa0;» à nouveau abandonne ce qui n’a pas été enregistré ici.</translation>
    </message>
    <message>
        <source>Bring &amp;back earlier work…</source>
        <translation>Reprendre &amp;un travail antérieur…</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Accueil</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>&amp;Réglages…</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Saving… The window closes when the file is written.</source>
        <translation>Enregistrement… La fenêtre se ferme quand le fichier est écrit.</translation>
    </message>
    <message>
        <source>Saving… What is to be opened follows when the file is written.</source>
        <translation>Enregistrement… Ce qui doit s’ouvrir suit quand le fichier est écrit.</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lecture de %1…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TotalsChart</name>
    <message>
        <source>No run has a time for the whole course yet.</source>
        <translation>Aucune manche n’a encore de temps pour tout le parcours.</translation>
    </message>
    <message>
        <source>Time and penalties of %1</source>
        <translation>Temps et pénalités de %1</translation>
    </message>
    <message>
        <source>Seconds on the course, without penalties</source>
        <translation>Secondes sur le parcours, sans pénalités</translation>
    </message>
    <message>
        <source> · %1 without a total</source>
        <translation> · %1 sans total</translation>
    </message>
    <message>
        <source>Penalty seconds</source>
        <translation>Secondes de pénalité</translation>
    </message>
    <message>
        <source>← slower      faster →</source>
        <translation>← plus lent      plus rapide →</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Pénalités</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manche</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Sélectionné</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totaux</translation>
    </message>
    <message>
        <source>Total time against penalties</source>
        <translation>Temps total selon les pénalités</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackDocument</name>
    <message>
        <source>It is no path on a film, or a damaged one: %1</source>
        <translation>Ce n’est pas une trajectoire sur un film, ou elle est abîmée&#x202f;: %1</translation>
    </message>
    <message>
        <source>a path of 1 frame</source>
        <translation>une trajectoire de 1 image</translation>
    </message>
    <message>
        <source>a path of %1 frames</source>
        <translation>une trajectoire de %1 images</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackLine</name>
    <message>
        <source>Coloured where the path is known; diamonds are the boxes that were drawn. Click to go there.</source>
        <translation>En couleur là où la trajectoire est connue&#x202f;; les losanges sont les cadres dessinés. Cliquez pour y aller.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackOffsetDialog</name>
    <message>
        <source>Track of a watch</source>
        <translation>Trace d’une montre</translation>
    </message>
    <message>
        <source>The clock of the watch is perhaps wrong. Say when the track began in truth.</source>
        <translation>L’horloge de la montre est peut-être fausse. Indiquez quand la trace a commencé en réalité.</translation>
    </message>
    <message>
        <source>With the &amp;recording</source>
        <translation>&amp;Avec l’enregistrement</translation>
    </message>
    <message>
        <source>Both were started at the same moment</source>
        <translation>Les deux ont été lancés au même moment</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Track, by its clock</source>
        <translation>Trace, selon son horloge</translation>
    </message>
    <message>
        <source>The track &amp;began</source>
        <translation>&amp;La trace a commencé</translation>
    </message>
    <message>
        <source>Join it</source>
        <translation>La relier</translation>
    </message>
    <message>
        <source>%1 of %2 positions and %3 of %4 heart rates lie in the recording, or a minute around it.</source>
        <translation>%1 positions sur %2 et %3 fréquences cardiaques sur %4 se trouvent dans l’enregistrement, ou à une minute près.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackOverlay</name>
    <message>
        <source>Box round what is followed</source>
        <translation>Cadre autour de ce qui est suivi</translation>
    </message>
    <message>
        <source>Draw a box round boat, head or gate. By keys: B proposes a box, arrows move it, with Shift they size it, Enter takes it.</source>
        <translation>Dessinez un cadre autour d’un bateau, d’une tête ou d’une porte. Au clavier&#x202f;: B propose un cadre, les flèches le déplacent, avec Maj elles le redimensionnent, Entrée le prend.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackingWindow</name>
    <message>
        <source>Tracking</source>
        <translation>Suivi</translation>
    </message>
    <message>
        <source>Paths on films (*.track.json)</source>
        <translation>Trajectoires sur films (*.track.json)</translation>
    </message>
    <message>
        <source>Open a film, then draw a box round what is to be followed.</source>
        <translation>Ouvrez un film, puis dessinez un cadre autour de ce qui doit être suivi.</translation>
    </message>
    <message>
        <source>Following: %p %</source>
        <translation>Suivi&#x202f;: %p&#x202f;%</translation>
    </message>
    <message>
        <source>&amp;Open a film or a path…</source>
        <translation>Ouvrir un film ou une &amp;trajectoire…</translation>
    </message>
    <message>
        <source>&amp;Export the path as CSV…</source>
        <translation>Exporter &amp;la trajectoire en CSV…</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>&amp;Lire ou mettre en pause</translation>
    </message>
    <message>
        <source>One frame ba&amp;ck</source>
        <translation>U&amp;ne image en arrière</translation>
    </message>
    <message>
        <source>One frame &amp;on</source>
        <translation>Une &amp;image en avant</translation>
    </message>
    <message>
        <source>P&amp;ath</source>
        <translation>&amp;Trajectoire</translation>
    </message>
    <message>
        <source>Propose a &amp;box</source>
        <translation>Proposer un &amp;cadre</translation>
    </message>
    <message>
        <source>&amp;Take the box of this frame away</source>
        <translation>E&amp;nlever le cadre de cette image</translation>
    </message>
    <message>
        <source>To the next &amp;gap</source>
        <translation>Au &amp;prochain trou</translation>
    </message>
    <message>
        <source>&amp;Stop following</source>
        <translation>Arrêter &amp;le suivi</translation>
    </message>
    <message>
        <source>Click &amp;known points</source>
        <translation>Cliquer &amp;des points connus</translation>
    </message>
    <message>
        <source>&amp;Forget the known points</source>
        <translation>Ou&amp;blier les points connus</translation>
    </message>
    <message>
        <source>It lies on the &amp;water</source>
        <translation>&amp;Il est sur l’eau</translation>
    </message>
    <message>
        <source>whether it lies on the water</source>
        <translation>présence sur l’eau</translation>
    </message>
    <message>
        <source>Open a film or a path on one</source>
        <translation>Ouvrir un film ou une trajectoire sur un film</translation>
    </message>
    <message>
        <source>Films and paths (*.mp4 *.mov *.m4v *.mkv *.avi *.mts *.track.json);;All files (*)</source>
        <translation>Films et trajectoires (*.mp4 *.mov *.m4v *.mkv *.avi *.mts *.track.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The film %1 is not there.</source>
        <translation>Le film %1 n’est pas là.</translation>
    </message>
    <message>
        <source>%1 s · frame %2</source>
        <translation>%1 s · image %2</translation>
    </message>
    <message>
        <source>The film is still being read. Draw the box again in a moment.</source>
        <translation>Le film est encore en cours de lecture. Redessinez le cadre dans un moment.</translation>
    </message>
    <message>
        <source>Stop following first, with Escape.</source>
        <translation>Arrêtez d’abord le suivi, avec Échap.</translation>
    </message>
    <message>
        <source>box</source>
        <translation>cadre</translation>
    </message>
    <message>
        <source>Following. Escape stops it.</source>
        <translation>Suivi en cours. Échap l’arrête.</translation>
    </message>
    <message>
        <source>The boxes were changed meanwhile, so that the path was not taken over. Draw the box again.</source>
        <translation>Les cadres ont été changés entre-temps, si bien que la trajectoire n’a pas été reprise. Redessinez le cadre.</translation>
    </message>
    <message>
        <source>path</source>
        <translation>trajectoire</translation>
    </message>
    <message>
        <source>Lost at %1 s. Draw a new box here, or where it is seen again; what lies between stays a gap until both sides meet.</source>
        <translation>Perdu à %1 s. Dessinez un nouveau cadre ici, ou là où il réapparaît&#x202f;; l’intervalle reste un trou jusqu’à ce que les deux côtés se rejoignent.</translation>
    </message>
    <message>
        <source>Followed without a gap.</source>
        <translation>Suivi sans trou.</translation>
    </message>
    <message>
        <source>Followed, with one gap. G goes there.</source>
        <translation>Suivi, avec un trou. G y va.</translation>
    </message>
    <message>
        <source>Followed, with %1 gaps. G goes to the next one.</source>
        <translation>Suivi, avec %1 trous. G va au suivant.</translation>
    </message>
    <message>
        <source>No box was drawn in this frame.</source>
        <translation>Aucun cadre n’a été dessiné dans cette image.</translation>
    </message>
    <message>
        <source>removal of a box</source>
        <translation>retrait d’un cadre</translation>
    </message>
    <message>
        <source>The path has no gap.</source>
        <translation>La trajectoire n’a pas de trou.</translation>
    </message>
    <message>
        <source>Click the foot of a gate&apos;s poles where they meet the water, four for metres or two for a scale only, then type where they stand. P ends it.</source>
        <translation>Cliquez le pied des fiches d’une porte à la surface de l’eau, quatre pour des mètres ou deux pour une échelle seulement, puis tapez où elles se trouvent. P termine.</translation>
    </message>
    <message>
        <source>Four known points are the most. Take one away first.</source>
        <translation>Quatre points connus au plus. Enlevez-en d’abord un.</translation>
    </message>
    <message>
        <source>The known points belong into one frame; this is where the first one was clicked.</source>
        <translation>Les points connus doivent être dans une même image&#x202f;; celle-ci est celle où le premier a été cliqué.</translation>
    </message>
    <message>
        <source>known point</source>
        <translation>point connu</translation>
    </message>
    <message>
        <source>removal of the known points</source>
        <translation>retrait des points connus</translation>
    </message>
    <message>
        <source>Export the path</source>
        <translation>Exporter la trajectoire</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tableaux (*.csv)</translation>
    </message>
    <message>
        <source>%1 is there.</source>
        <translation>%1 est là.</translation>
    </message>
    <message>
        <source>The path could not be exported</source>
        <translation>La trajectoire n’a pas pu être exportée</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TradeOffPanel</name>
    <message>
        <source>In percent of the median of its group</source>
        <translation>En pour cent de la médiane de son groupe</translation>
    </message>
    <message>
        <source>By paddling time</source>
        <translation>Selon le temps de navigation</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Manches</translation>
    </message>
    <message>
        <source>Touches a run</source>
        <translation>Touches par manche</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#x202f;%</translation>
    </message>
    <message>
        <source>Exact interval of the touches</source>
        <translation>Intervalle exact des touches</translation>
    </message>
    <message>
        <source>Missed a run</source>
        <translation>Manquées par manche</translation>
    </message>
    <message>
        <source>Paddling %</source>
        <translation>Navigation&#x202f;%</translation>
    </message>
    <message>
        <source>Total %</source>
        <translation>Total&#x202f;%</translation>
    </message>
    <message>
        <source>No group has enough whole runs to be divided.</source>
        <translation>Aucun groupe n’a assez de manches complètes pour être divisé.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrialList</name>
    <message>
        <source>New athlete</source>
        <translation>Nouvel athlète</translation>
    </message>
    <message>
        <source>Enter adds a time trial of that athlete; Esc gives the keys back to the film</source>
        <translation>Entrée ajoute un contre-la-montre de cet athlète&#x202f;; Échap rend les touches au film</translation>
    </message>
    <message>
        <source>A time trial needs the name of its athlete.</source>
        <translation>Un contre-la-montre demande le nom de son athlète.</translation>
    </message>
    <message>
        <source>Pos</source>
        <translation>Pos.</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Athlète</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>⚠ missing</source>
        <translation>⚠ manque</translation>
    </message>
    <message>
        <source>%1 is not in the folder</source>
        <translation>%1 n’est pas dans le dossier</translation>
    </message>
    <message>
        <source>Add an athlete</source>
        <translation>Ajouter un athlète</translation>
    </message>
    <message>
        <source>Re&amp;name the athlete</source>
        <translation>&amp;Renommer l’athlète</translation>
    </message>
    <message>
        <source>&amp;Film…</source>
        <translation>&amp;Film…</translation>
    </message>
    <message>
        <source>R&amp;emove the trial</source>
        <translation>Retirer &amp;le contre-la-montre</translation>
    </message>
    <message>
        <source>Film…</source>
        <translation>Film…</translation>
    </message>
    <message>
        <source>Chooses the film of the selected trial</source>
        <translation>Choisit le film du contre-la-montre sélectionné</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Removes the selected trial</source>
        <translation>Retire le contre-la-montre sélectionné</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrialPage</name>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Gate %1 %2</source>
        <translation>Porte %1 %2</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Esquimautage</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Porte %1</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Inter</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>From the start</source>
        <translation>Depuis le départ</translation>
    </message>
    <message>
        <source>%1 boats</source>
        <translation>%1 bateaux</translation>
    </message>
    <message>
        <source>How many boats go on to the heats</source>
        <translation>Combien de bateaux passent dans les séries</translation>
    </message>
    <message>
        <source>Make heats from the trials</source>
        <translation>Faire les séries d’après les contre-la-montre</translation>
    </message>
    <message>
        <source>Heats of four, the fastest against the slowest. Heats that exist stay.</source>
        <translation>Séries de quatre, les plus rapides face aux plus lents. Les séries existantes restent.</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Inters</translation>
    </message>
    <message>
        <source>Upstream gates</source>
        <translation>Remontées</translation>
    </message>
    <message>
        <source>A click shows the frame of a split</source>
        <translation>Un clic montre l’image d’un intermédiaire</translation>
    </message>
    <message>
        <source>gate %1</source>
        <translation>porte %1</translation>
    </message>
    <message>
        <source>roll</source>
        <translation>esquimautage</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>time trial of %1</source>
        <translation>contre-la-montre de %1</translation>
    </message>
    <message>
        <source>films imported</source>
        <translation>films importés</translation>
    </message>
    <message>
        <source>film of the trial</source>
        <translation>film du contre-la-montre</translation>
    </message>
    <message>
        <source>athlete renamed</source>
        <translation>athlète renommé</translation>
    </message>
    <message>
        <source>time trial removed</source>
        <translation>contre-la-montre retiré</translation>
    </message>
    <message>
        <source>No trial has a time yet: heats are made from the fastest ones.</source>
        <translation>Aucun contre-la-montre n’a encore de temps&#x202f;: les séries se font avec les plus rapides.</translation>
    </message>
    <message>
        <source>There are heats already. They stay as they are, and those from the trials come behind them.</source>
        <translation>Il y a déjà des séries. Elles restent telles quelles, et celles tirées des contre-la-montre viennent à leur suite.</translation>
    </message>
    <message>
        <source>Make heats</source>
        <translation>Faire les séries</translation>
    </message>
    <message>
        <source>heats from the trials</source>
        <translation>séries d’après les contre-la-montre</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Updates</name>
    <message>
        <source>Newer versions</source>
        <translation>Versions plus récentes</translation>
    </message>
    <message>
        <source>May Kavela look once a day whether there is a newer version? It tells the server the version that you have, and nothing else. Without a yes it never looks by itself. You can change this in the settings.</source>
        <translation>Kavela peut-il chercher une fois par jour s’il y a une version plus récente&#x202f;? Il indique au serveur la version que vous avez, et rien d’autre. Sans un oui, il ne cherche jamais de lui-même. Cela se change dans les réglages.</translation>
    </message>
    <message>
        <source>Yes, look once a day</source>
        <translation>Oui, chercher une fois par jour</translation>
    </message>
    <message>
        <source>Looking for a newer version…</source>
        <translation>Recherche d’une version plus récente…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::UpstreamPage</name>
    <message>
        <source>Gate</source>
        <translation>Porte</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Virage</translation>
    </message>
    <message>
        <source>Mark the pole line too</source>
        <translation>Marquer aussi la ligne de porte</translation>
    </message>
    <message>
        <source>Turn to the</source>
        <translation>Virage vers</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Gate %1 is marked. N goes to the next gate, Shift+M moves the selected mark.</source>
        <translation>La porte %1 est marquée. N passe à la porte suivante, Maj+M déplace la marque choisie.</translation>
    </message>
    <message>
        <source>Gate %1 is no upstream gate. N goes to the next one.</source>
        <translation>La porte %1 n’est pas une remontée. N passe à la suivante.</translation>
    </message>
    <message>
        <source>%1 of gate %2</source>
        <translation>%1 de la porte %2</translation>
    </message>
    <message>
        <source>Gate %1 %2</source>
        <translation>Porte %1 %2</translation>
    </message>
    <message>
        <source>gate %1 removed</source>
        <translation>porte %1 retirée</translation>
    </message>
    <message>
        <source>The marks of gate %1 are removed. Ctrl+Z brings them back.</source>
        <translation>Les marques de la porte %1 sont retirées. Ctrl+Z les rétablit.</translation>
    </message>
    <message>
        <source>Gate %1 is no upstream gate</source>
        <translation>La porte %1 n’est pas une remontée</translation>
    </message>
    <message>
        <source>Gate %1: M marks the %2</source>
        <translation>Porte %1&#x202f;: M marque&#x202f;: %2</translation>
    </message>
    <message>
        <source>Gate %1 is marked</source>
        <translation>La porte %1 est marquée</translation>
    </message>
    <message>
        <source>%1 s in the gate</source>
        <translation>%1 s dans la porte</translation>
    </message>
    <message>
        <source>gate %1</source>
        <translation>porte %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ValuesPanel</name>
    <message>
        <source>No test yet.

Add one by hand with Ctrl+N, or drop split files and recordings here.</source>
        <translation>Encore aucun test.

Ajoutez-en un à la main avec Ctrl+N, ou déposez ici des fichiers d’intermédiaires et des enregistrements.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::VariabilityDialog</name>
    <message>
        <source>There is no measurement in this list.</source>
        <translation>Il n’y a aucune mesure dans cette liste.</translation>
    </message>
    <message>
        <source>All %1 measurements of this list are there already.</source>
        <translation>Les %1 mesures de cette liste sont toutes déjà là.</translation>
    </message>
    <message>
        <source>1 measurement is new.</source>
        <translation>1 mesure est nouvelle.</translation>
    </message>
    <message>
        <source>1 other is there already.</source>
        <translation>1 autre est déjà là.</translation>
    </message>
    <message>
        <source>Import variability</source>
        <translation>Importer la variabilité</translation>
    </message>
    <message>
        <source>1 line is left out:</source>
        <translation>1 ligne est laissée de côté&#x202f;:</translation>
    </message>
    <message>
        <source>Add 1 measurement</source>
        <translation>Ajouter 1 mesure</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Raison</translation>
    </message>
    <message numerus="yes">
        <source>%n measurements are new.</source>
        <translation>
            <numerusform>%n mesure est nouvelle.</numerusform>
            <numerusform>%n mesures sont nouvelles.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n others are there already.</source>
        <translation>
            <numerusform>%n autre est déjà là.</numerusform>
            <numerusform>%n autres sont déjà là.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines are left out:</source>
        <translation>
            <numerusform>%n ligne est laissée de côté&#x202f;:</numerusform>
            <numerusform>%n lignes sont laissées de côté&#x202f;:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n measurements</source>
        <translation>
            <numerusform>Ajouter %n mesure</numerusform>
            <numerusform>Ajouter %n mesures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WaterfallChart</name>
    <message>
        <source>One of the two has no total, so there is no sum. The sections that both have stand in the table and in the other charts.</source>
        <translation>L’une des deux n’a pas de total, il n’y a donc pas de somme. Les secteurs communs figurent dans le tableau et dans les autres graphiques.</translation>
    </message>
    <message>
        <source>Sections, penalties and timing from total to total</source>
        <translation>Secteurs, pénalités et chronométrage d’un total à l’autre</translation>
    </message>
    <message>
        <source>penalties</source>
        <translation>pénalités</translation>
    </message>
    <message>
        <source>timing</source>
        <translation>chronométrage</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Affiché</translation>
    </message>
    <message>
        <source>Up to here</source>
        <translation>Jusqu’ici</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Partie</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>À</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WeekForm</name>
    <message>
        <source>Macrocycle</source>
        <translation>Macrocycle</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mésocycle</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Compétition</translation>
    </message>
    <message>
        <source>On-water test</source>
        <translation>Test sur l’eau</translation>
    </message>
    <message>
        <source>done on</source>
        <translation>fait le</translation>
    </message>
    <message>
        <source>Endurance test</source>
        <translation>Test d’endurance</translation>
    </message>
    <message>
        <source>Blood test</source>
        <translation>Prise de sang</translation>
    </message>
    <message>
        <source>Injured part</source>
        <translation>Partie blessée</translation>
    </message>
    <message>
        <source>Health notes</source>
        <translation>Notes de santé</translation>
    </message>
    <message>
        <source>“%1” are no dates. Write them as 2026-03-10, with commas between.</source>
        <translation>«&#xa0;%1&#xa0;»&#x202f;: ce ne sont pas des dates. Écrivez-les comme 2026-03-10, séparées par des virgules.</translation>
    </message>
    <message>
        <source>dates of tests</source>
        <translation>dates des tests</translation>
    </message>
    <message>
        <source>load</source>
        <translation>charge</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charge</translation>
    </message>
    <message>
        <source>health</source>
        <translation>santé</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Santé</translation>
    </message>
    <message>
        <source>One per line</source>
        <translation>Un par ligne</translation>
    </message>
    <message>
        <source>goals of the week</source>
        <translation>objectifs de la semaine</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Objectifs</translation>
    </message>
    <message>
        <source>Week %1 · from %2</source>
        <translation>Semaine %1 · du %2</translation>
    </message>
    <message>
        <source>Week %1</source>
        <translation>Semaine %1</translation>
    </message>
    <message>
        <source>%1 weeks are chosen: load, cycles and place go into all of them.</source>
        <translation>%1 semaines sont choisies&#x202f;: charge, cycles et lieu vont dans toutes.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WeekGrid</name>
    <message>
        <source>Morning</source>
        <translation>Matin</translation>
    </message>
    <message>
        <source>Afternoon</source>
        <translation>Après-midi</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Soir</translation>
    </message>
    <message>
        <source>Any time</source>
        <translation>À toute heure</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>On no day of this week</source>
        <translation>Aucun jour de cette semaine</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Séance</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyKeys</name>
    <message>
        <source>Go to a number first, or hold Alt and click on it.</source>
        <translation>Allez d’abord à un nombre, ou maintenez Alt et cliquez dessus.</translation>
    </message>
    <message>
        <source>Nothing was computed here.</source>
        <translation>Rien n’a été calculé ici.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyLabel</name>
    <message>
        <source>Alt+click or Shift+F1: why</source>
        <translation>Alt+clic ou Maj+F1&#x202f;: pourquoi</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyPanel</name>
    <message>
        <source>counted</source>
        <translation>compté</translation>
    </message>
    <message>
        <source>dropped: worst</source>
        <translation>écarté&#x202f;: le plus mauvais</translation>
    </message>
    <message>
        <source>dropped: bonus</source>
        <translation>écarté&#x202f;: bonus</translation>
    </message>
    <message>
        <source>no result</source>
        <translation>pas de résultat</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Pour cent</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Score</translation>
    </message>
    <message>
        <source>Select an athlete to see where the score comes from.</source>
        <translation>Sélectionnez un athlète pour voir d’où vient le score.</translation>
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
        <translation>Score&#x202f;: %1 / 3 = %2</translation>
    </message>
    <message>
        <source>Place: was %1, now %2. Score: was %3, now %4.</source>
        <translation>Place&#x202f;: avant %1, maintenant %2. Score&#x202f;: avant %3, maintenant %4.</translation>
    </message>
    <message>
        <source>%1 s in %2</source>
        <translation>%1 s à %2</translation>
    </message>
    <message>
        <source>A place better with a total of
%1</source>
        <translation>Une place meilleure avec un total de
%1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyWindow</name>
    <message>
        <source>Rule: %1</source>
        <translation>Règle&#x202f;: %1</translation>
    </message>
    <message>
        <source>Within %1</source>
        <translation>À %1 près</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Source&#x202f;: %1</translation>
    </message>
    <message>
        <source>Why this number?</source>
        <translation>Pourquoi ce nombre&#x202f;?</translation>
    </message>
    <message>
        <source>Why %1</source>
        <translation>Pourquoi %1</translation>
    </message>
    <message>
        <source>What went into it</source>
        <translation>Ce qui y est entré</translation>
    </message>
    <message>
        <source>Enter opens a number made on the way, and shows the place of a value</source>
        <translation>Entrée ouvre un nombre calculé en chemin, et montre la place d’une valeur</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Où</translation>
    </message>
    <message>
        <source>Show this place (Enter)</source>
        <translation>Montrer cette place (Entrée)</translation>
    </message>
    <message>
        <source>%1, link</source>
        <translation>%1, lien</translation>
    </message>
    <message>
        <source>&amp;Copy as text</source>
        <translation>&amp;Copier en texte</translation>
    </message>
    <message>
        <source>The whole explanation (%1)</source>
        <translation>Toute l’explication (%1)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Workspace</name>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Enregistrer les changements de %1&#x202f;?</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::YearStrip</name>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Macrocycle</source>
        <translation>Macrocycle</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mésocycle</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charge</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semaine</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Compétition</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Tests</translation>
    </message>
</context>
</TS>
