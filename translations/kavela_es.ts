<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name></name>
    <message>
        <source>Selection results</source>
        <translation>Resultados del selectivo</translation>
    </message>
    <message>
        <source>Selection results xTimes</source>
        <translation>Resultados del selectivo xTimes</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Deportista</translation>
    </message>
    <message>
        <source>not in the selection</source>
        <translation>fuera del selectivo</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Add %1 to the selection</source>
        <translation>Añadir %1 al selectivo</translation>
    </message>
</context>
<context>
    <name>AthletePanel</name>
    <message>
        <source>An athlete needs a name.</source>
        <translation>Un deportista necesita un nombre.</translation>
    </message>
    <message>
        <source>“%1” is in the team already.</source>
        <translation>«%1» ya está en el equipo.</translation>
    </message>
</context>
<context>
    <name>ChartExport</name>
    <message>
        <source>Picture (*.png)</source>
        <translation>Imagen (*.png)</translation>
    </message>
    <message>
        <source>Drawing (*.svg)</source>
        <translation>Dibujo (*.svg)</translation>
    </message>
    <message>
        <source>Table (*.csv)</source>
        <translation>Tabla (*.csv)</translation>
    </message>
    <message>
        <source>Save chart</source>
        <translation>Guardar gráfico</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>A race</source>
        <translation>Una carrera</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>The season</source>
        <translation>La temporada</translation>
    </message>
    <message>
        <source>Training</source>
        <translation>Entrenamiento</translation>
    </message>
</context>
<context>
    <name>EightTest</name>
    <message>
        <source>Total – · %1 of %2 splits are timed</source>
        <translation>Total – · %1 de %2 parciales cronometrados</translation>
    </message>
    <message>
        <source>Total %1 s · standard deviation %2 s</source>
        <translation>Total %1 s · desviación típica %2 s</translation>
    </message>
</context>
<context>
    <name>FindWindow</name>
    <message>
        <source>The table cannot be written over a file that is searched.</source>
        <translation>La tabla no se puede escribir encima de un archivo en el que se busca.</translation>
    </message>
</context>
<context>
    <name>IntervalTexts</name>
    <message>
        <source>A duration is written as seconds or as 1:30, up to a day</source>
        <translation>Una duración se escribe en segundos o como 1:30, hasta un día</translation>
    </message>
    <message>
        <source>Sets and repetitions are whole numbers from 0 to 9999</source>
        <translation>Las series y las repeticiones son números enteros de 0 a 9999</translation>
    </message>
    <message>
        <source>Volume and intensity are numbers such as 4.5</source>
        <translation>El volumen y la intensidad son números como 4.5</translation>
    </message>
    <message>
        <source>, rest %1</source>
        <translation>, descanso %1</translation>
    </message>
    <message>
        <source>%1 in all, %2 of it work; repetitions: %3</source>
        <translation>%1 en total, %2 de trabajo; repeticiones: %3</translation>
    </message>
</context>
<context>
    <name>KeyOverlay</name>
    <message>
        <source>In the part with the focus</source>
        <translation>En la parte que tiene el foco</translation>
    </message>
</context>
<context>
    <name>ListedTest</name>
    <message>
        <source>No name</source>
        <translation>Sin nombre</translation>
    </message>
    <message>
        <source>Lap test</source>
        <translation>Prueba de vueltas</translation>
    </message>
    <message>
        <source>Sprint</source>
        <translation>Esprint</translation>
    </message>
    <message>
        <source>Eight test</source>
        <translation>Prueba del ocho</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Vuelta</translation>
    </message>
    <message>
        <source>Eight</source>
        <translation>Ocho</translation>
    </message>
</context>
<context>
    <name>MeasureCharts</name>
    <message>
        <source>below what is usual</source>
        <translation>por debajo de lo habitual</translation>
    </message>
    <message>
        <source>within what is usual</source>
        <translation>dentro de lo habitual</translation>
    </message>
    <message>
        <source>above what is usual</source>
        <translation>por encima de lo habitual</translation>
    </message>
    <message>
        <source>Weight and body fat</source>
        <translation>Peso y grasa corporal</translation>
    </message>
    <message>
        <source>Body fat (%)</source>
        <translation>Grasa corporal (%)</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>Body fat</source>
        <translation>Grasa corporal</translation>
    </message>
    <message>
        <source>Weight (kg)</source>
        <translation>Peso (kg)</translation>
    </message>
    <message>
        <source>Add a weight or body fat to see how it goes through the season.</source>
        <translation>Añade un peso o un dato de grasa corporal para ver su evolución durante la temporada.</translation>
    </message>
    <message>
        <source>Usual: mean ± one standard deviation of the four weeks before</source>
        <translation>Habitual: media ± una desviación típica de las cuatro semanas anteriores</translation>
    </message>
    <message>
        <source>Each day</source>
        <translation>Cada día</translation>
    </message>
    <message>
        <source>Seven-day mean</source>
        <translation>Media de siete días</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>Habitual</translation>
    </message>
    <message>
        <source>Week to %1: mean %2</source>
        <translation>Semana hasta %1: media %2</translation>
    </message>
    <message>
        <source>%1. What is usual is known after seven measured days of the 28 before.</source>
        <translation>%1. Lo habitual se conoce después de siete días medidos de los 28 anteriores.</translation>
    </message>
    <message>
        <source>%1, %2 (%3 to %4).</source>
        <translation>%1, %2 (%3 a %4).</translation>
    </message>
</context>
<context>
    <name>MeasureColumns</name>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
</context>
<context>
    <name>OlderRecordings</name>
    <message>
        <source>“%1” is a recording of version 4. It can be converted to the current version: “%2” is written beside it, the recording itself stays as it is.</source>
        <translation>«%1» es una grabación de la versión 4. Se puede convertir a la versión actual: «%2» se escribe al lado y la grabación se queda como está.</translation>
    </message>
    <message>
        <source>Convert and open</source>
        <translation>Convertir y abrir</translation>
    </message>
</context>
<context>
    <name>OnlineStore</name>
    <message>
        <source>The server does not accept the user name or the password.</source>
        <translation>El servidor no acepta el nombre de usuario o la contraseña.</translation>
    </message>
</context>
<context>
    <name>PlanningHandouts</name>
    <message>
        <source>Choose an athlete with a season first.</source>
        <translation>Elige antes un deportista con una temporada.</translation>
    </message>
    <message>
        <source>Week %1</source>
        <translation>Semana %1</translation>
    </message>
    <message>
        <source>Week %1 %2.pdf</source>
        <translation>Semana %1 %2.pdf</translation>
    </message>
    <message>
        <source>Season %1</source>
        <translation>Temporada %1</translation>
    </message>
    <message>
        <source>Season %1 %2.pdf</source>
        <translation>Temporada %1 %2.pdf</translation>
    </message>
    <message>
        <source>There is no week to write.</source>
        <translation>No hay ninguna semana que escribir.</translation>
    </message>
    <message>
        <source>Week %1 %2.ics</source>
        <translation>Semana %1 %2.ics</translation>
    </message>
    <message>
        <source>Week as a calendar file</source>
        <translation>Semana como archivo de calendario</translation>
    </message>
    <message>
        <source>Calendar files (*.ics)</source>
        <translation>Archivos de calendario (*.ics)</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>%1 está escrito.</translation>
    </message>
</context>
<context>
    <name>ProgressionChart</name>
    <message>
        <source>Position after each phase; the chosen race is drawn heavier</source>
        <translation>Posición después de cada fase; la carrera elegida se dibuja más gruesa</translation>
    </message>
    <message>
        <source>position</source>
        <translation>posición</translation>
    </message>
    <message>
        <source>Positions of the phases stand here once they are entered.</source>
        <translation>Las posiciones de las fases aparecen aquí cuando se introducen.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>start of the roll</source>
        <translation>inicio del esquimotaje</translation>
    </message>
    <message>
        <source>boat upside down</source>
        <translation>barco volcado</translation>
    </message>
    <message>
        <source>boat up again</source>
        <translation>barco de nuevo arriba</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Recent files, in %1</source>
        <translation>Archivos recientes, en %1</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Search everything…</source>
        <translation>&amp;Buscar en todo…</translation>
    </message>
    <message>
        <source>&amp;All keys</source>
        <translation>&amp;Todas las teclas</translation>
    </message>
    <message>
        <source>&amp;Why this number?</source>
        <translation>¿&amp;Por qué este número?</translation>
    </message>
    <message>
        <source>&amp;Change keys…</source>
        <translation>&amp;Cambiar teclas…</translation>
    </message>
    <message>
        <source>&amp;Full screen</source>
        <translation>Pantalla co&amp;mpleta</translation>
    </message>
    <message>
        <source>Where are the films now?</source>
        <translation>¿Dónde están ahora los vídeos?</translation>
    </message>
    <message>
        <source>Videos (*.mov *.mp4 *.m4v *.avi *.mkv *.mts *.m2ts *.ts *.3gp *.webm *.mpg);;All files (*)</source>
        <translation>Vídeos (*.mov *.mp4 *.m4v *.avi *.mkv *.mts *.m2ts *.ts *.3gp *.webm *.mpg);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The folder has another film named %1 already. Give one of them another name first.</source>
        <translation>La carpeta ya tiene otro vídeo llamado %1. Da antes otro nombre a uno de ellos.</translation>
    </message>
    <message>
        <source>Copying %1</source>
        <translation>Copiando %1</translation>
    </message>
    <message>
        <source>%1 could not be copied into the folder.</source>
        <translation>%1 no se pudo copiar en la carpeta.</translation>
    </message>
    <message>
        <source>entrance</source>
        <translation>entrada</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>medio</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>salida</translation>
    </message>
    <message>
        <source>All splits of this run are marked.</source>
        <translation>Todos los parciales de esta manga están marcados.</translation>
    </message>
    <message>
        <source>Mark the start first: the splits are expected from there on.</source>
        <translation>Marca antes la salida: los parciales se esperan a partir de ahí.</translation>
    </message>
    <message>
        <source>No other run has split %1 yet: nothing tells where it is to be expected.</source>
        <translation>Ninguna otra manga tiene aún el parcial %1: nada indica dónde se puede esperar.</translation>
    </message>
    <message>
        <source>&amp;Look for a newer version</source>
        <translation>B&amp;uscar una versión nueva</translation>
    </message>
    <message>
        <source>User &amp;guide</source>
        <translation>&amp;Guía del usuario</translation>
    </message>
</context>
<context>
    <name>QueryForm</name>
    <message>
        <source>&amp;Athlete</source>
        <translation>&amp;Deportista</translation>
    </message>
    <message>
        <source>anyone</source>
        <translation>cualquiera</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Categoría</translation>
    </message>
    <message>
        <source>&amp;Phase</source>
        <translation>&amp;Fase</translation>
    </message>
    <message>
        <source>any</source>
        <translation>cualquiera</translation>
    </message>
    <message>
        <source>P&amp;lace</source>
        <translation>P&amp;uesto</translation>
    </message>
    <message>
        <source>anywhere</source>
        <translation>en cualquier parte</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Año</translation>
    </message>
    <message>
        <source>&amp;Gate</source>
        <translation>&amp;Puerta</translation>
    </message>
    <message>
        <source>&amp;Up or down</source>
        <translation>Favor o &amp;remonte</translation>
    </message>
    <message>
        <source>both</source>
        <translation>ambos</translation>
    </message>
    <message>
        <source>&amp;Direction</source>
        <translation>D&amp;irección</translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation>&amp;Estilo</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Tipo</translation>
    </message>
</context>
<context>
    <name>RaceExchange</name>
    <message>
        <source>course</source>
        <translation>recorrido</translation>
    </message>
    <message>
        <source>Names of the films</source>
        <translation>Nombres de los vídeos</translation>
    </message>
    <message>
        <source>How the films are named, such as &quot;{any} {name} {category} {phase}&quot;.
{name}, {category}, {phase}, {bib}, {number} and {any} stand for what differs.</source>
        <translation>Cómo se llaman los vídeos, por ejemplo «{any} {name} {category} {phase}».
{name}, {category}, {phase}, {bib}, {number} y {any} representan lo que cambia.</translation>
    </message>
    <message>
        <source>Import split file</source>
        <translation>Importar archivo de parciales</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Archivos de parciales (*.kvx);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Import official results</source>
        <translation>Importar resultados oficiales</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt);;All files (*)</source>
        <translation>Listas (*.csv *.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>There are no results in %1.</source>
        <translation>No hay resultados en %1.</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>drawing of the course</source>
        <translation>dibujo del recorrido</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Leyendo %1…</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
</context>
<context>
    <name>RankingCharts</name>
    <message>
        <source>Release</source>
        <translation>Edición</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>The chart begins with the first position.</source>
        <translation>El gráfico empieza con la primera posición.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>The chart begins with the first points.</source>
        <translation>El gráfico empieza con los primeros puntos.</translation>
    </message>
    <message>
        <source>Touches and missed gates per run</source>
        <translation>Toques y saltos por manga</translation>
    </message>
    <message>
        <source>per run</source>
        <translation>por manga</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Toques</translation>
    </message>
    <message>
        <source>Missed gates</source>
        <translation>Saltos</translation>
    </message>
    <message>
        <source>Take the season&apos;s statistics from split files to see penalties here.</source>
        <translation>Toma la estadística de la temporada de los archivos de parciales para ver aquí las penalizaciones.</translation>
    </message>
    <message>
        <source>Behind the best of the category</source>
        <translation>Respecto al mejor de la categoría</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manga</translation>
    </message>
    <message>
        <source>Races with a time and a best time stand here.</source>
        <translation>Aquí aparecen las carreras con un tiempo y un mejor tiempo.</translation>
    </message>
</context>
<context>
    <name>RankingSection</name>
    <message>
        <source>The release of a ranking list is a whole number such as 4</source>
        <translation>La edición de un ranking es un número entero como 4</translation>
    </message>
</context>
<context>
    <name>RunForm</name>
    <message>
        <source>A penalty is a whole number of seconds, 0 to 999</source>
        <translation>Una penalización es un número entero de segundos, de 0 a 999</translation>
    </message>
</context>
<context>
    <name>SeasonChart</name>
    <message>
        <source>%1: penalty (s)</source>
        <translation>%1: penalización (s)</translation>
    </message>
    <message>
        <source>% behind</source>
        <translation>% de diferencia</translation>
    </message>
    <message>
        <source>penalty (s)</source>
        <translation>penalización (s)</translation>
    </message>
    <message>
        <source>Percent behind the fastest as lines, penalty seconds as bars</source>
        <translation>Porcentaje respecto al más rápido en líneas, segundos de penalización en barras</translation>
    </message>
    <message>
        <source>Penalties only; percent behind comes with split files</source>
        <translation>Solo penalizaciones; el porcentaje llega con los archivos de parciales</translation>
    </message>
    <message>
        <source>Percent behind the fastest stands here once runs are taken over from split files.</source>
        <translation>El porcentaje respecto al más rápido aparece aquí cuando se incorporan mangas de archivos de parciales.</translation>
    </message>
</context>
<context>
    <name>SelectionTakeOver</name>
    <message>
        <source>Lists (*.csv *.txt);;All files (*)</source>
        <translation>Listas (*.csv *.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Import athletes</source>
        <translation>Importar deportistas</translation>
    </message>
    <message>
        <source>athletes imported</source>
        <translation>deportistas importados</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>“%1” cannot be read</source>
        <translation>«%1» no se puede leer</translation>
    </message>
    <message>
        <source>One athlete was added.</source>
        <translation>Se añadió un deportista.</translation>
    </message>
    <message>
        <source>The list is no UTF-8 text and was read as Latin-1: look at the names.</source>
        <translation>La lista no es texto UTF-8 y se leyó como Latin-1: revisa los nombres.</translation>
    </message>
    <message>
        <source>Line %1: the category %2 is new in the selection.</source>
        <translation>Línea %1: la categoría %2 es nueva en el selectivo.</translation>
    </message>
    <message>
        <source>Line %1: the category %2 is new in the selection, and none that boats are raced in.</source>
        <translation>Línea %1: la categoría %2 es nueva en el selectivo, y no es de las que compiten en barco.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>Results of which race?</source>
        <translation>¿Resultados de qué carrera?</translation>
    </message>
    <message>
        <source>Add a category first.</source>
        <translation>Añade antes una categoría.</translation>
    </message>
    <message>
        <source>Split files of the race</source>
        <translation>Archivos de parciales de la carrera</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Archivos de parciales (*.kvx);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>There are no results in it.</source>
        <translation>No contiene resultados.</translation>
    </message>
    <message>
        <source>results taken over</source>
        <translation>resultados incorporados</translation>
    </message>
    <message numerus="yes">
        <source>%n athletes were added.</source>
        <translation>
            <numerusform>Se añadió %n deportista.</numerusform>
            <numerusform>Se añadieron %n deportistas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SessionConversion</name>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>«%1» no se puede abrir</translation>
    </message>
</context>
<context>
    <name>SessionEdits</name>
    <message>
        <source>session information</source>
        <translation>información de la sesión</translation>
    </message>
    <message>
        <source>Nothing was cut</source>
        <translation>No se ha cortado nada</translation>
    </message>
    <message>
        <source>Too little would be left of the session.</source>
        <translation>Quedaría demasiado poco de la sesión.</translation>
    </message>
    <message>
        <source>cut to a stretch</source>
        <translation>recorte a un trecho</translation>
    </message>
    <message>
        <source>removal of a stretch</source>
        <translation>eliminación de un trecho</translation>
    </message>
    <message>
        <source>removal of strokes</source>
        <translation>eliminación de paladas</translation>
    </message>
    <message>
        <source>new analysis</source>
        <translation>análisis nuevo</translation>
    </message>
    <message>
        <source>mount of the phone</source>
        <translation>montaje del teléfono</translation>
    </message>
</context>
<context>
    <name>SessionExports</name>
    <message>
        <source>Save the edited .kvb file</source>
        <translation>Guardar el archivo .kvb editado</translation>
    </message>
    <message>
        <source>Recordings (*.kvb)</source>
        <translation>Grabaciones (*.kvb)</translation>
    </message>
    <message>
        <source>Export the table</source>
        <translation>Exportar la tabla</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Texto separado por punto y coma (*.csv)</translation>
    </message>
</context>
<context>
    <name>SessionImports</name>
    <message>
        <source>%1 positions and %2 heart rates were taken over.</source>
        <translation>Se incorporaron %1 posiciones y %2 frecuencias cardiacas.</translation>
    </message>
    <message>
        <source>Import the recording of the boat first: a track gives it positions and heart rates.</source>
        <translation>Importa antes la grabación del barco: un track le aporta posiciones y frecuencias cardiacas.</translation>
    </message>
    <message>
        <source>track of a watch</source>
        <translation>track de un reloj</translation>
    </message>
    <message>
        <source>move of a watch&apos;s track</source>
        <translation>desplazamiento del track de un reloj</translation>
    </message>
    <message>
        <source>Import power-meter data</source>
        <translation>Importar datos del medidor de potencia</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt)</source>
        <translation>Listas (*.csv *.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>“%1” cannot be read</source>
        <translation>«%1» no se puede leer</translation>
    </message>
    <message>
        <source>Import a recording or a session first: power-meter data belongs to its strokes.</source>
        <translation>Importa antes una grabación o una sesión: los datos del medidor de potencia pertenecen a sus paladas.</translation>
    </message>
    <message>
        <source>import of power-meter data</source>
        <translation>importación de datos del medidor de potencia</translation>
    </message>
</context>
<context>
    <name>SessionSeries</name>
    <message>
        <source>Power</source>
        <translation>Potencia</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>Power meter</source>
        <translation>Medidor de potencia</translation>
    </message>
    <message>
        <source>Water phase</source>
        <translation>Fase acuática</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Aerial phase</source>
        <translation>Fase aérea</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>m/s</source>
        <translation>m/s</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Frec. cardiaca</translation>
    </message>
    <message>
        <source>1/min</source>
        <translation>1/min</translation>
    </message>
    <message>
        <source>Pitch in turns</source>
        <translation>Cabeceo en los giros</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Frec. de palada</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Fuerza</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>Impulse</source>
        <translation>Impulso</translation>
    </message>
    <message>
        <source>N·s</source>
        <translation>N·s</translation>
    </message>
    <message>
        <source>Roll of the stroke</source>
        <translation>Balanceo de la palada</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>left</source>
        <translation>izquierda</translation>
    </message>
    <message>
        <source>right</source>
        <translation>derecha</translation>
    </message>
    <message>
        <source>side unknown</source>
        <translation>lado desconocido</translation>
    </message>
    <message>
        <source>Side unknown: when the session was made, it was not known which side of the phone points to the bow.</source>
        <translation>Lado desconocido: cuando se hizo la sesión no se sabía qué lado del teléfono apunta a la proa.</translation>
    </message>
    <message>
        <source>The file does not tell how the clocks of strokes and fixes go together: they were fitted by the turns and may be some seconds apart.</source>
        <translation>El archivo no dice cómo se corresponden los relojes de las paladas y de las posiciones: se ajustaron por los giros y pueden diferir unos segundos.</translation>
    </message>
    <message>
        <source>Power-meter data is not in the strokes yet; you are asked on saving.</source>
        <translation>Los datos del medidor de potencia aún no están en las paladas; se pregunta al guardar.</translation>
    </message>
</context>
<context>
    <name>SharePlace</name>
    <message>
        <source>Choose the folder…</source>
        <translation>Elegir la carpeta…</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Carpeta</translation>
    </message>
    <message>
        <source>On this computer, with everything below it but hidden files</source>
        <translation>En este ordenador, con todo lo que contiene salvo los archivos ocultos</translation>
    </message>
    <message>
        <source>the folder that is shared</source>
        <translation>la carpeta que se comparte</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>Di&amp;rección</translation>
    </message>
    <message>
        <source>Of a folder on a WebDAV server: Nextcloud, ownCloud, a NAS, Apache…</source>
        <translation>De una carpeta en un servidor WebDAV: Nextcloud, ownCloud, un NAS, Apache…</translation>
    </message>
    <message>
        <source>There is no folder to share yet.</source>
        <translation>Aún no hay ninguna carpeta que compartir.</translation>
    </message>
    <message>
        <source>“%1” is no folder.</source>
        <translation>«%1» no es una carpeta.</translation>
    </message>
</context>
<context>
    <name>SlitMarking</name>
    <message>
        <source>The film is not read so far.</source>
        <translation>El vídeo no se ha leído hasta ahí.</translation>
    </message>
    <message>
        <source>There is no proposal at the hair line.</source>
        <translation>No hay ninguna propuesta en la línea fina.</translation>
    </message>
    <message>
        <source>Nothing can be accepted without a line, its proposals and the race.</source>
        <translation>No se puede aceptar nada sin una línea, sus propuestas y la carrera.</translation>
    </message>
    <message>
        <source>proposals accepted</source>
        <translation>propuestas aceptadas</translation>
    </message>
    <message>
        <source>On this frame stands the mark of %1.</source>
        <translation>En este fotograma está la marca de %1.</translation>
    </message>
    <message>
        <source>No other film of this folder has lines.</source>
        <translation>Ningún otro vídeo de esta carpeta tiene líneas.</translation>
    </message>
    <message>
        <source>The lines of “%1” were drawn over a picture of %2 × %3 pixels; this film has %4 × %5.</source>
        <translation>Las líneas de «%1» se dibujaron sobre una imagen de %2 × %3 píxeles; este vídeo tiene %4 × %5.</translation>
    </message>
    <message>
        <source>Press N and draw a line across the water in the film above: what stands on it is shown here over time.</source>
        <translation>Pulsa N y dibuja una línea a través del agua en el vídeo de arriba: lo que hay en ella se muestra aquí a lo largo del tiempo.</translation>
    </message>
    <message>
        <source>Or press L for the lines of “%1”.</source>
        <translation>O pulse L para tomar las líneas de «%1».</translation>
    </message>
    <message>
        <source>“%1” is timed at the bow: one race needs one point.</source>
        <translation>«%1» se cronometra en la proa: una carrera necesita un solo punto.</translation>
    </message>
    <message>
        <source>“%1” is timed at the body: one race needs one point.</source>
        <translation>«%1» se cronometra en el cuerpo: una carrera necesita un solo punto.</translation>
    </message>
    <message>
        <source>A mark of this line was made before: look at it again.</source>
        <translation>Una marca de esta línea se hizo antes: revísela.</translation>
    </message>
    <message numerus="yes">
        <source>%n marks of this line were made before: look at them again.</source>
        <translation>
            <numerusform>Una marca de esta línea se hizo antes: revísela.</numerusform>
            <numerusform>%n marcas de esta línea se hicieron antes: revíselas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SplitStatistics</name>
    <message>
        <source>is no split file that can be read</source>
        <translation>no es un archivo de parciales legible</translation>
    </message>
    <message>
        <source>has no date</source>
        <translation>no tiene fecha</translation>
    </message>
    <message>
        <source>is of %1</source>
        <translation>es de %1</translation>
    </message>
    <message>
        <source>has no run of %1</source>
        <translation>no tiene ninguna manga de %1</translation>
    </message>
</context>
<context>
    <name>SpokenNames</name>
    <message>
        <source>Splits</source>
        <translation>Parciales</translation>
    </message>
    <message>
        <source>Splits of the time trial</source>
        <translation>Parciales de la contrarreloj</translation>
    </message>
    <message>
        <source>Time trials</source>
        <translation>Contrarrelojes</translation>
    </message>
    <message>
        <source>Heats</source>
        <translation>Series</translation>
    </message>
    <message>
        <source>Attacks</source>
        <translation>Ataques</translation>
    </message>
    <message>
        <source>Who attacks</source>
        <translation>Quién ataca</translation>
    </message>
    <message>
        <source>Side of the attack</source>
        <translation>Lado del ataque</translation>
    </message>
    <message>
        <source>Place of the attack</source>
        <translation>Lugar del ataque</translation>
    </message>
    <message>
        <source>Attacks by athlete</source>
        <translation>Ataques por deportista</translation>
    </message>
    <message>
        <source>Attacks by place</source>
        <translation>Ataques por lugar</translation>
    </message>
    <message>
        <source>Notes of the run</source>
        <translation>Notas de la manga</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Mangas</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Deportistas</translation>
    </message>
    <message>
        <source>Results by season</source>
        <translation>Resultados por temporada</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>Promedios</translation>
    </message>
    <message>
        <source>Ranking</source>
        <translation>Clasificación</translation>
    </message>
    <message>
        <source>Touches by gate</source>
        <translation>Toques por puerta</translation>
    </message>
    <message>
        <source>What was noted of penalties</source>
        <translation>Lo anotado sobre las penalizaciones</translation>
    </message>
    <message>
        <source>What penalties cost</source>
        <translation>Lo que cuestan las penalizaciones</translation>
    </message>
    <message>
        <source>Risk and speed by thirds</source>
        <translation>Riesgo y velocidad por tercios</translation>
    </message>
    <message>
        <source>Losses by section</source>
        <translation>Pérdidas por sección</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Pruebas</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Objetivos</translation>
    </message>
    <message>
        <source>Measures of the body</source>
        <translation>Medidas del cuerpo</translation>
    </message>
    <message>
        <source>Exercises</source>
        <translation>Ejercicios</translation>
    </message>
    <message>
        <source>Intervals</source>
        <translation>Intervalos</translation>
    </message>
    <message>
        <source>Films compared</source>
        <translation>Vídeos comparados</translation>
    </message>
    <message>
        <source>Films to choose from</source>
        <translation>Vídeos para elegir</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Archivos recientes</translation>
    </message>
    <message>
        <source>Work kept</source>
        <translation>Trabajo guardado</translation>
    </message>
    <message>
        <source>Pattern of the names</source>
        <translation>Patrón de los nombres</translation>
    </message>
    <message>
        <source>Names now and then</source>
        <translation>Nombres actuales y nuevos</translation>
    </message>
    <message>
        <source>Films being composed</source>
        <translation>Vídeos en composición</translation>
    </message>
</context>
<context>
    <name>TestCharts</name>
    <message>
        <source>Not recorded, and not entered</source>
        <translation>Ni grabado ni introducido</translation>
    </message>
    <message>
        <source>Lap</source>
        <translation>Vuelta</translation>
    </message>
    <message>
        <source>Stretch of the sprint</source>
        <translation>Trecho del esprint</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Time from the start (s)</source>
        <translation>Tiempo desde la salida (s)</translation>
    </message>
    <message>
        <source>Only a recording tells this</source>
        <translation>Solo una grabación lo dice</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Parcial</translation>
    </message>
</context>
<context>
    <name>ToolWindow</name>
    <message>
        <source>Reading %1…</source>
        <translation>Leyendo %1…</translation>
    </message>
</context>
<context>
    <name>TrialMarking</name>
    <message>
        <source>Add the first athlete above</source>
        <translation>Añade arriba el primer deportista</translation>
    </message>
    <message>
        <source>M marks split %1</source>
        <translation>M marca el parcial %1</translation>
    </message>
    <message>
        <source>M marks the start</source>
        <translation>M marca la salida</translation>
    </message>
    <message>
        <source>M marks the %1</source>
        <translation>M marca: %1</translation>
    </message>
    <message>
        <source>The roll is marked</source>
        <translation>El esquimotaje está marcado</translation>
    </message>
    <message>
        <source>The cross course has no gates yet</source>
        <translation>El recorrido de cross aún no tiene puertas</translation>
    </message>
    <message>
        <source>Gate %1: M marks the %2</source>
        <translation>Puerta %1: M marca: %2</translation>
    </message>
    <message>
        <source>Gate %1 is marked</source>
        <translation>La puerta %1 está marcada</translation>
    </message>
    <message>
        <source>The time of this trial was taken without marks on the film. Marking it anew replaces it.</source>
        <translation>El tiempo de esta contrarreloj se tomó sin marcas en el vídeo. Marcarla de nuevo lo sustituye.</translation>
    </message>
    <message>
        <source>Mark anew</source>
        <translation>Marcar de nuevo</translation>
    </message>
    <message>
        <source>start mark</source>
        <translation>marca de salida</translation>
    </message>
    <message>
        <source>split %1</source>
        <translation>parcial %1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>%1:  %2</source>
        <translation>%1:  %2</translation>
    </message>
    <message>
        <source>Split %1 was put in between two marks. Ctrl+Z takes it out again.</source>
        <translation>El parcial %1 se insertó entre dos marcas. Ctrl+Z lo vuelve a quitar.</translation>
    </message>
    <message>
        <source>Gate %1 is marked. N goes to the next gate, Shift+M moves the selected mark.</source>
        <translation>La puerta %1 está marcada. N va a la puerta siguiente, Mayús+M mueve la marca seleccionada.</translation>
    </message>
    <message>
        <source>The cross course has no gates yet: they are set above.</source>
        <translation>El recorrido de cross aún no tiene puertas: se configuran arriba.</translation>
    </message>
    <message>
        <source>%1 of gate %2</source>
        <translation>%1 de la puerta %2</translation>
    </message>
    <message>
        <source>Gate %1 %2</source>
        <translation>Puerta %1 %2</translation>
    </message>
    <message>
        <source>The roll is marked. Shift+M moves the selected mark, Delete removes it.</source>
        <translation>El esquimotaje está marcado. Mayús+M mueve la marca seleccionada, Supr la quita.</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>No hay ninguna marca seleccionada. Ctrl y las flechas van de marca en marca.</translation>
    </message>
    <message>
        <source>mark moved</source>
        <translation>marca movida</translation>
    </message>
    <message>
        <source>mark removed</source>
        <translation>marca quitada</translation>
    </message>
    <message>
        <source>Without a start mark the time counts from the beginning of the film.</source>
        <translation>Sin marca de salida, el tiempo cuenta desde el principio del vídeo.</translation>
    </message>
    <message>
        <source>gate %1 removed</source>
        <translation>puerta %1 quitada</translation>
    </message>
</context>
<context>
    <name>TypedMeasures</name>
    <message>
        <source>This moment is in no calendar: %1 seconds from 2001-01-01. It stays as it is until another date is typed.</source>
        <translation>Este momento no está en ningún calendario: %1 segundos desde 2001-01-01. Se queda como está hasta que se escriba otra fecha.</translation>
    </message>
    <message>
        <source>A value below 0 cannot be measured.</source>
        <translation>No se puede medir un valor menor que 0.</translation>
    </message>
    <message>
        <source>More than %1 was hardly measured.</source>
        <translation>Es difícil que se midiera más de %1.</translation>
    </message>
    <message>
        <source>It stays as it is until another one is typed.</source>
        <translation>Se queda como está hasta que se escriba otro.</translation>
    </message>
    <message>
        <source>A measurement needs a day of the calendar such as 2026-03-09.</source>
        <translation>Una medición necesita un día del calendario como 2026-03-09.</translation>
    </message>
    <message>
        <source>Expected is a number from 0 to %1, such as %2</source>
        <translation>Se espera un número de 0 a %1, como %2</translation>
    </message>
</context>
<context>
    <name>TypedNumber</name>
    <message>
        <source>Expected is a number from %1 to %2</source>
        <translation>Se espera un número de %1 a %2</translation>
    </message>
    <message>
        <source>Expected is a whole number from %1 to %2</source>
        <translation>Se espera un número entero de %1 a %2</translation>
    </message>
    <message>
        <source>Expected is a time from %1 to %2 seconds</source>
        <translation>Se espera un tiempo de %1 a %2 segundos</translation>
    </message>
</context>
<context>
    <name>TypedValues</name>
    <message>
        <source>A time is a number of seconds such as 92.34, or 1:32.34</source>
        <translation>Un tiempo es un número de segundos como 92.34, o 1:32.34</translation>
    </message>
    <message>
        <source>A penalty is a whole number of seconds, 0 to 999</source>
        <translation>Una penalización es un número entero de segundos, de 0 a 999</translation>
    </message>
    <message>
        <source>A position is a whole number, 1 to 9999</source>
        <translation>Una posición es un número entero, de 1 a 9999</translation>
    </message>
    <message>
        <source>Ranking points are a number such as 612.5</source>
        <translation>Los puntos del ranking son un número como 612.5</translation>
    </message>
    <message>
        <source>A year is a number from 1900 to 2100</source>
        <translation>Un año es un número de 1900 a 2100</translation>
    </message>
    <message>
        <source>A date is a day of the calendar such as 2025-06-14</source>
        <translation>Una fecha es un día del calendario como 2025-06-14</translation>
    </message>
</context>
<context>
    <name>WeekTexts</name>
    <message>
        <source>Week %1, from %2</source>
        <translation>Semana %1, desde %2</translation>
    </message>
    <message>
        <source>Load %1 %</source>
        <translation>Carga %1&#xa0;%</translation>
    </message>
    <message>
        <source>Macrocycle</source>
        <translation>Macrociclo</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mesociclo</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>On-water test</source>
        <translation>Prueba en el agua</translation>
    </message>
    <message>
        <source>Endurance test</source>
        <translation>Prueba de resistencia</translation>
    </message>
    <message>
        <source>Blood test</source>
        <translation>Análisis de sangre</translation>
    </message>
    <message>
        <source>Injured</source>
        <translation>Lesionado</translation>
    </message>
    <message>
        <source>%n session(s)</source>
        <translation>%n sesión(es)</translation>
    </message>
    <message>
        <source>The week&apos;s date is in no calendar.</source>
        <translation>La fecha de la semana no está en ningún calendario.</translation>
    </message>
    <message>
        <source>The week does not start on a Monday.</source>
        <translation>La semana no empieza en lunes.</translation>
    </message>
    <message>
        <source>The load is negative.</source>
        <translation>La carga es negativa.</translation>
    </message>
    <message>
        <source>The two lists of planned totals are of different lengths.</source>
        <translation>Las dos listas de totales planificados tienen longitudes distintas.</translation>
    </message>
    <message>
        <source>%1 of its sessions are on no day of the week.</source>
        <translation>%1 de sus sesiones no están en ningún día de la semana.</translation>
    </message>
    <message>
        <source>The session&apos;s date is in no calendar.</source>
        <translation>La fecha de la sesión no está en ningún calendario.</translation>
    </message>
    <message>
        <source>The time of day is none.</source>
        <translation>La hora del día no es válida.</translation>
    </message>
    <message>
        <source>The time zone “%1” is unknown.</source>
        <translation>La zona horaria «%1» es desconocida.</translation>
    </message>
    <message>
        <source>A value is negative.</source>
        <translation>Un valor es negativo.</translation>
    </message>
</context>
<context>
    <name>kavela</name>
    <message>
        <source>The time from the mark before to the mark of this section.</source>
        <translation>El tiempo desde la marca anterior hasta la marca de este tramo.</translation>
    </message>
    <message>
        <source>mark − mark before</source>
        <translation>marca − marca anterior</translation>
    </message>
    <message>
        <source>The time of the section with the penalties of its gates.</source>
        <translation>El tiempo del tramo con las penalizaciones de sus puertas.</translation>
    </message>
    <message>
        <source>time + penalties</source>
        <translation>tiempo + penalizaciones</translation>
    </message>
    <message>
        <source>The time from the start to the mark of this section.</source>
        <translation>El tiempo desde la salida hasta la marca de este tramo.</translation>
    </message>
    <message>
        <source>Σ sections up to here</source>
        <translation>Σ tramos hasta aquí</translation>
    </message>
    <message>
        <source>All sections together, as timed from the video, without penalties.</source>
        <translation>Todos los tramos juntos, cronometrados en el vídeo, sin penalizaciones.</translation>
    </message>
    <message>
        <source>Σ sections</source>
        <translation>Σ tramos</translation>
    </message>
    <message>
        <source>All sections together, as timed from the video, and the penalties.</source>
        <translation>Todos los tramos juntos, cronometrados en el vídeo, y las penalizaciones.</translation>
    </message>
    <message>
        <source>Σ sections + penalties</source>
        <translation>Σ tramos + penalizaciones</translation>
    </message>
    <message>
        <source>The sprint as it was timed for this run.</source>
        <translation>El esprint tal como se cronometró en esta manga.</translation>
    </message>
    <message>
        <source>sprint</source>
        <translation>esprint</translation>
    </message>
    <message>
        <source>The official time as it was entered for this run.</source>
        <translation>El tiempo oficial tal como se introdujo para esta manga.</translation>
    </message>
    <message>
        <source>real</source>
        <translation>real</translation>
    </message>
    <message>
        <source>A run of another race, held against the runs of this one.</source>
        <translation>Una manga de otra carrera, comparada con las de esta.</translation>
    </message>
    <message>
        <source>time</source>
        <translation>tiempo</translation>
    </message>
    <message>
        <source>The colour tells between which tenths of its column a time lies.</source>
        <translation>El color indica entre qué décimos de su columna está un tiempo.</translation>
    </message>
    <message>
        <source>tenth below &lt; time ≤ tenth above</source>
        <translation>décimo inferior &lt; tiempo ≤ décimo superior</translation>
    </message>
    <message>
        <source>The least time of its column has a colour of its own.</source>
        <translation>El menor tiempo de su columna tiene un color propio.</translation>
    </message>
    <message>
        <source>time = least</source>
        <translation>tiempo = menor</translation>
    </message>
    <message>
        <source>A total column with a run that has no total stays white.</source>
        <translation>Una columna de totales con una manga sin total se queda en blanco.</translation>
    </message>
    <message>
        <source>white</source>
        <translation>blanco</translation>
    </message>
    <message>
        <source>What was not timed, or lies beside the scale, has no colour.</source>
        <translation>Lo que no se cronometró, o queda fuera de la escala, no tiene color.</translation>
    </message>
    <message>
        <source>no colour</source>
        <translation>sin color</translation>
    </message>
    <message>
        <source>The least of the column that counts.</source>
        <translation>El menor de los que cuentan en la columna.</translation>
    </message>
    <message>
        <source>min values</source>
        <translation>mín valores</translation>
    </message>
    <message>
        <source>The middle of the column, of what counts.</source>
        <translation>El valor central de los que cuentan en la columna.</translation>
    </message>
    <message>
        <source>median values</source>
        <translation>mediana de valores</translation>
    </message>
    <message>
        <source>The time less that of the reference.</source>
        <translation>El tiempo menos el de la referencia.</translation>
    </message>
    <message>
        <source>own − reference</source>
        <translation>propio − referencia</translation>
    </message>
    <message>
        <source>The place in the column: one more than are faster to the hundredth.</source>
        <translation>El puesto en la columna: uno más que los que son más rápidos a la centésima.</translation>
    </message>
    <message>
        <source>1 + faster</source>
        <translation>1 + más rápidos</translation>
    </message>
    <message>
        <source>How far behind the best of the column.</source>
        <translation>Diferencia con el mejor de la columna.</translation>
    </message>
    <message>
        <source>100 · (own / best − 1)</source>
        <translation>100 · (propio / mejor − 1)</translation>
    </message>
    <message>
        <source>The share of the column that is as slow or slower.</source>
        <translation>La parte de la columna que es igual de lenta o más.</translation>
    </message>
    <message>
        <source>100 · slower or equal / timed</source>
        <translation>100 · más lentos o iguales / cronometrados</translation>
    </message>
    <message>
        <source>The best time of the section that stands alone, whoever paddled it.</source>
        <translation>El mejor tiempo del tramo que vale por sí solo, sea de quien sea.</translation>
    </message>
    <message>
        <source>min times</source>
        <translation>mín tiempos</translation>
    </message>
    <message>
        <source>The best of every section up to here, put together.</source>
        <translation>Lo mejor de cada tramo hasta aquí, reunido.</translation>
    </message>
    <message>
        <source>Σ bests up to here</source>
        <translation>Σ mejores hasta aquí</translation>
    </message>
    <message>
        <source>The best of every section, put together.</source>
        <translation>Lo mejor de cada tramo, reunido.</translation>
    </message>
    <message>
        <source>Σ bests</source>
        <translation>Σ mejores</translation>
    </message>
    <message>
        <source>The seconds of all its touches and missed gates.</source>
        <translation>Los segundos de todos sus toques y saltos.</translation>
    </message>
    <message>
        <source>Σ gates</source>
        <translation>Σ puertas</translation>
    </message>
    <message>
        <source>The seconds of touches and missed gates of the section.</source>
        <translation>Los segundos de los toques y saltos del tramo.</translation>
    </message>
    <message>
        <source>Σ gates of the section</source>
        <translation>Σ puertas del tramo</translation>
    </message>
    <message>
        <source>The official penalty seconds as they were entered for this run.</source>
        <translation>Los segundos oficiales de penalización tal como se introdujeron para esta manga.</translation>
    </message>
    <message>
        <source>real penalty</source>
        <translation>penalización real</translation>
    </message>
    <message>
        <source>The expected time as split taking stored it with this run.</source>
        <translation>El tiempo esperado tal como lo guardó la toma de parciales con esta manga.</translation>
    </message>
    <message>
        <source>expected</source>
        <translation>esperado</translation>
    </message>
    <message>
        <source>values of the column</source>
        <translation>valores de la columna</translation>
    </message>
    <message>
        <source>least</source>
        <translation>menor</translation>
    </message>
    <message>
        <source>most</source>
        <translation>mayor</translation>
    </message>
    <message>
        <source>times that stand alone</source>
        <translation>tiempos que valen por sí solos</translation>
    </message>
    <message>
        <source>No gate was touched or missed.</source>
        <translation>No se tocó ni se saltó ninguna puerta.</translation>
    </message>
    <message>
        <source>penalties</source>
        <translation>penalizaciones</translation>
    </message>
    <message>
        <source>faster</source>
        <translation>más rápidos</translation>
    </message>
    <message>
        <source>timed</source>
        <translation>cronometrados</translation>
    </message>
    <message>
        <source>slower or equal</source>
        <translation>más lentos o iguales</translation>
    </message>
    <message>
        <source>median</source>
        <translation>mediana</translation>
    </message>
    <message>
        <source>List of online planning entries.</source>
        <translation>Lista de entradas de planificación en línea.</translation>
    </message>
    <message>
        <source>Files that have already been watched.</source>
        <translation>Archivos que ya se han visto.</translation>
    </message>
    <message>
        <source>Play the next video of a list when one ends.</source>
        <translation>Reproducir el vídeo siguiente de una lista cuando uno termina.</translation>
    </message>
    <message>
        <source>Start a run at its stored video time rather than at the video&apos;s start.</source>
        <translation>Empezar una manga en su tiempo de vídeo guardado y no al inicio del vídeo.</translation>
    </message>
    <message>
        <source>Start playback as soon as a row is clicked.</source>
        <translation>Empezar a reproducir en cuanto se hace clic en una fila.</translation>
    </message>
    <message>
        <source>Show penalties in the tables.</source>
        <translation>Mostrar las penalizaciones en las tablas.</translation>
    </message>
    <message>
        <source>Include penalty seconds in the times that are compared.</source>
        <translation>Incluir los segundos de penalización en los tiempos que se comparan.</translation>
    </message>
    <message>
        <source>Colours of the split table.</source>
        <translation>Colores de la tabla de parciales.</translation>
    </message>
    <message>
        <source>Comment tag chosen last.</source>
        <translation>Última etiqueta de comentario elegida.</translation>
    </message>
    <message>
        <source>Show the coach&apos;s comments.</source>
        <translation>Mostrar los comentarios del entrenador.</translation>
    </message>
    <message>
        <source>In tag mode, play only the tagged part of a video.</source>
        <translation>En el modo de etiquetas, reproducir solo la parte etiquetada de un vídeo.</translation>
    </message>
    <message>
        <source>Kind of data opened last.</source>
        <translation>Último tipo de datos abierto.</translation>
    </message>
    <message>
        <source>Full screen shows the roll chart.</source>
        <translation>La pantalla completa muestra el gráfico de balanceo.</translation>
    </message>
    <message>
        <source>Full screen shows the pitch chart.</source>
        <translation>La pantalla completa muestra el gráfico de cabeceo.</translation>
    </message>
    <message>
        <source>Full screen shows the heart-rate chart.</source>
        <translation>La pantalla completa muestra el gráfico de frecuencia cardiaca.</translation>
    </message>
    <message>
        <source>Full screen shows the scatter chart.</source>
        <translation>La pantalla completa muestra el gráfico de dispersión.</translation>
    </message>
    <message>
        <source>Show boat-motion values normalised.</source>
        <translation>Mostrar normalizados los valores de movimiento del barco.</translation>
    </message>
    <message>
        <source>Show the impulse gauge.</source>
        <translation>Mostrar el indicador de impulso.</translation>
    </message>
    <message>
        <source>Show the stroke-rate gauge.</source>
        <translation>Mostrar el indicador de frecuencia de palada.</translation>
    </message>
    <message>
        <source>Number of splits of a new split file.</source>
        <translation>Número de parciales de un archivo de parciales nuevo.</translation>
    </message>
    <message>
        <source>Tag names saved for reuse.</source>
        <translation>Nombres de etiquetas guardados para reutilizar.</translation>
    </message>
    <message>
        <source>Time-loss reasons saved for reuse.</source>
        <translation>Motivos de pérdida de tiempo guardados para reutilizar.</translation>
    </message>
    <message>
        <source>Load a planning file at start.</source>
        <translation>Cargar un archivo de planificación al iniciar.</translation>
    </message>
    <message>
        <source>The planning file to load at start is an online one.</source>
        <translation>El archivo de planificación que se carga al iniciar está en línea.</translation>
    </message>
    <message>
        <source>Planning file to load at start.</source>
        <translation>Archivo de planificación que se carga al iniciar.</translation>
    </message>
    <message>
        <source>Also export the table as CSV on saving.</source>
        <translation>Al guardar, exportar también la tabla como CSV.</translation>
    </message>
    <message>
        <source>Also export a PDF on saving.</source>
        <translation>Al guardar, exportar también un PDF.</translation>
    </message>
    <message>
        <source>Main folder to open at start.</source>
        <translation>Carpeta principal que se abre al iniciar.</translation>
    </message>
    <message>
        <source>Open the test tool at start.</source>
        <translation>Abrir la herramienta de pruebas al iniciar.</translation>
    </message>
    <message>
        <source>The file is not an activity, but something else of the device.</source>
        <translation>El archivo no es una actividad, sino otra cosa del dispositivo.</translation>
    </message>
    <message>
        <source>There are no points in the file.</source>
        <translation>No hay puntos en el archivo.</translation>
    </message>
    <message numerus="yes">
        <source>{} videos</source>
        <translation>
            <numerusform>{} vídeo</numerusform>
            <numerusform>{} vídeos</numerusform>
        </translation>
    </message>
    <message>
        <source>Makes a training file of the videos that carry an athlete&apos;s name</source>
        <translation>Crea un archivo de entrenamiento de los vídeos que llevan el nombre de un deportista</translation>
    </message>
    <message>
        <source>Folder of the videos</source>
        <translation>Carpeta de los vídeos</translation>
    </message>
    <message>
        <source>The athlete&apos;s name; a crew as &quot;A / B&quot;</source>
        <translation>Nombre del deportista; una tripulación como &quot;A / B&quot;</translation>
    </message>
    <message>
        <source>Replace a training file that is there already</source>
        <translation>Reemplazar un archivo de entrenamiento que ya exista</translation>
    </message>
    <message>
        <source>Kavela: splits, results and recordings of canoe slalom.</source>
        <translation>Kavela: parciales, resultados y grabaciones de slalom.</translation>
    </message>
    <message>
        <source>Files to open in the desktop program</source>
        <translation>Archivos que abrir en el programa de escritorio</translation>
    </message>
    <message>
        <source>Start another desktop program, also where one runs</source>
        <translation>Iniciar otro programa de escritorio, aunque ya haya uno en marcha</translation>
    </message>
    <message>
        <source>Language of what is said: en or one that is built in</source>
        <translation>Idioma de los mensajes: en o uno de los incluidos</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>No hay memoria suficiente para este archivo.</translation>
    </message>
    <message>
        <source>Composes a film of several runs</source>
        <translation>Compone un vídeo de varias mangas</translation>
    </message>
    <message>
        <source>What is to be composed (.json)</source>
        <translation>Lo que se va a componer (.json)</translation>
    </message>
    <message>
        <source>File to write, in place of the job&apos;s own</source>
        <translation>Archivo que escribir, en lugar del propio de la tarea</translation>
    </message>
    <message numerus="yes">
        <source>{} strokes</source>
        <translation>
            <numerusform>{} palada</numerusform>
            <numerusform>{} paladas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} turns</source>
        <translation>
            <numerusform>{} giro</numerusform>
            <numerusform>{} giros</numerusform>
        </translation>
    </message>
    <message>
        <source>Give another name with --name.</source>
        <translation>Da otro nombre con --name.</translation>
    </message>
    <message>
        <source>A name goes with one recording only.</source>
        <translation>Un nombre va con una sola grabación.</translation>
    </message>
    <message>
        <source>Writes the processed session of raw recordings</source>
        <translation>Escribe la sesión procesada de grabaciones en bruto</translation>
    </message>
    <message>
        <source>Raw recordings (.kvb)</source>
        <translation>Grabaciones en bruto (.kvb)</translation>
    </message>
    <message>
        <source>Name of the new file, for a further one</source>
        <translation>Nombre del archivo nuevo, para una más</translation>
    </message>
    <message numerus="yes">
        <source>{} files</source>
        <translation>
            <numerusform>{} archivo</numerusform>
            <numerusform>{} archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Failed to create file</source>
        <translation>No se pudo crear el archivo</translation>
    </message>
    <message>
        <source>Writes a sample season to try Kavela with</source>
        <translation>Escribe una temporada de ejemplo para probar Kavela</translation>
    </message>
    <message>
        <source>Folder to write to; made where it is missing</source>
        <translation>Carpeta en la que escribir; se crea si no existe</translation>
    </message>
    <message>
        <source>Makes short films of runs as well</source>
        <translation>Crea también vídeos cortos de las mangas</translation>
    </message>
    <message>
        <source>Writes the split table for a spreadsheet, or a report</source>
        <translation>Escribe la tabla de parciales para una hoja de cálculo, o un informe</translation>
    </message>
    <message>
        <source>Split file (.kvx) of any release</source>
        <translation>Archivo de parciales (.kvx) de cualquier versión</translation>
    </message>
    <message>
        <source>File to write: semicolon-separated text</source>
        <translation>Archivo que escribir: texto separado por punto y coma</translation>
    </message>
    <message>
        <source>File to write: the race report, on A4 pages</source>
        <translation>Archivo que escribir: el informe de la carrera, en páginas A4</translation>
    </message>
    <message>
        <source>There is no split file.</source>
        <translation>No hay ningún archivo de parciales.</translation>
    </message>
    <message numerus="yes">
        <source>{} tables</source>
        <translation>
            <numerusform>{} tabla</numerusform>
            <numerusform>{} tablas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} runs</source>
        <translation>
            <numerusform>{} manga</numerusform>
            <numerusform>{} mangas</numerusform>
        </translation>
    </message>
    <message>
        <source>Writes what split files say as tables for other programs</source>
        <translation>Escribe lo que dicen los archivos de parciales como tablas para otros programas</translation>
    </message>
    <message>
        <source>Split files, or folders with them</source>
        <translation>Archivos de parciales, o carpetas con ellos</translation>
    </message>
    <message>
        <source>Folder to write to</source>
        <translation>Carpeta en la que escribir</translation>
    </message>
    <message>
        <source>Fetches the films of a race by their bibs</source>
        <translation>Descarga los vídeos de una carrera por sus dorsales</translation>
    </message>
    <message>
        <source>Where the films come from (.json)</source>
        <translation>De dónde vienen los vídeos (.json)</translation>
    </message>
    <message>
        <source>Only print what would be fetched</source>
        <translation>Solo mostrar lo que se descargaría</translation>
    </message>
    <message>
        <source>Do not ask before anything is fetched</source>
        <translation>No preguntar antes de descargar</translation>
    </message>
    <message>
        <source>User name for the server of the address</source>
        <translation>Nombre de usuario para el servidor de la dirección</translation>
    </message>
    <message>
        <source>A search needs a file or folder and, last, the query in quotes.</source>
        <translation>Una búsqueda necesita un archivo o una carpeta y, al final, la consulta entre comillas.</translation>
    </message>
    <message>
        <source>The table cannot be written over a file that is searched.</source>
        <translation>La tabla no se puede escribir encima de un archivo en el que se busca.</translation>
    </message>
    <message>
        <source>Searches split files: a season in one question</source>
        <translation>Busca en archivos de parciales: una temporada en una pregunta</translation>
    </message>
    <message>
        <source>Split files, or folders with them; last the query, in quotes</source>
        <translation>Archivos de parciales, o carpetas con ellos; al final la consulta, entre comillas</translation>
    </message>
    <message>
        <source>Print one JSON document</source>
        <translation>Escribir un documento JSON</translation>
    </message>
    <message numerus="yes">
        <source>{} groups</source>
        <translation>
            <numerusform>{} grupo</numerusform>
            <numerusform>{} grupos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} rows</source>
        <translation>
            <numerusform>{} fila</numerusform>
            <numerusform>{} filas</numerusform>
        </translation>
    </message>
    <message>
        <source>What an athlete can lift once, by five formulas</source>
        <translation>Lo que un deportista puede levantar una vez, según cinco fórmulas</translation>
    </message>
    <message>
        <source>How often the weight was lifted</source>
        <translation>Cuántas veces se levantó el peso</translation>
    </message>
    <message>
        <source>The weight in kilograms</source>
        <translation>El peso en kilogramos</translation>
    </message>
    <message numerus="yes">
        <source>{} results</source>
        <translation>
            <numerusform>{} resultado</numerusform>
            <numerusform>{} resultados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} lines</source>
        <translation>
            <numerusform>{} línea</numerusform>
            <numerusform>{} líneas</numerusform>
        </translation>
    </message>
    <message>
        <source>Adds an official results list to a split file</source>
        <translation>Añade una lista de resultados oficiales a un archivo de parciales</translation>
    </message>
    <message>
        <source>Split file (.kvx) of the current version</source>
        <translation>Archivo de parciales (.kvx) de la versión actual</translation>
    </message>
    <message>
        <source>Semicolon-separated text with a header line: position, bib, name, nationality, time, penalty</source>
        <translation>Texto separado por punto y coma con una línea de cabecera: posición, dorsal, nombre, nacionalidad, tiempo, penalización</translation>
    </message>
    <message>
        <source>Says what files are, or what is wrong in them</source>
        <translation>Dice qué son los archivos, o qué tienen mal</translation>
    </message>
    <message>
        <source>Files of any kind</source>
        <translation>Archivos de cualquier tipo</translation>
    </message>
    <message>
        <source>The table cannot be written over a file that it is made from.</source>
        <translation>La tabla no se puede escribir encima de un archivo del que se hace.</translation>
    </message>
    <message>
        <source>Tells where runs lose time against one another</source>
        <translation>Dice dónde pierden tiempo las mangas entre sí</translation>
    </message>
    <message>
        <source>Split file (.kvx) of any release; with --athlete also folders of them</source>
        <translation>Archivo de parciales (.kvx) de cualquier versión; con --athlete también carpetas con ellos</translation>
    </message>
    <message>
        <source>winner, fastest, ideal, median, own or run:I; winner without other word</source>
        <translation>winner, fastest, ideal, median, own o run:I; winner si no se dice otra cosa</translation>
    </message>
    <message>
        <source>The season of an athlete over all the paths; a crew as &quot;A / B&quot;</source>
        <translation>La temporada de un deportista en todas las rutas; una tripulación como &quot;A / B&quot;</translation>
    </message>
    <message>
        <source>Only the athlete&apos;s runs of this category</source>
        <translation>Solo las mangas del deportista en esta categoría</translation>
    </message>
    <message>
        <source>Folder to write the athlete&apos;s page into, named after the athlete</source>
        <translation>Carpeta en la que escribir la página del deportista, con su nombre</translation>
    </message>
    <message>
        <source>run {}</source>
        <translation>manga {}</translation>
    </message>
    <message>
        <source>no total</source>
        <translation>sin total</translation>
    </message>
    <message>
        <source>, no totals to compare</source>
        <translation>, sin totales que comparar</translation>
    </message>
    <message>
        <source>strokes {} on {}</source>
        <translation>paladas {} frente a {}</translation>
    </message>
    <message>
        <source>gate {} {}</source>
        <translation>puerta {} {}</translation>
    </message>
    <message>
        <source>     Explained by notes: {} of {} ({:.0f} %)</source>
        <translation>     Explicado por las notas: {} de {} ({:.0f}&#xa0;%)</translation>
    </message>
    <message>
        <source>Tells how often gates are touched, what it cost, and whether speed pays</source>
        <translation>Dice con qué frecuencia se tocan las puertas, qué costó y si compensa la velocidad</translation>
    </message>
    <message>
        <source>Split files (.kvx) of any release, or folders of them</source>
        <translation>Archivos de parciales (.kvx) de cualquier versión, o carpetas con ellos</translation>
    </message>
    <message>
        <source>What the rates are by; by gate without other word</source>
        <translation>Según qué son las frecuencias; por puerta si no se dice otra cosa</translation>
    </message>
    <message>
        <source>Only runs of this category</source>
        <translation>Solo las mangas de esta categoría</translation>
    </message>
    <message>
        <source>File to write the rates to: semicolon-separated text</source>
        <translation>Archivo en el que escribir las frecuencias: texto separado por punto y coma</translation>
    </message>
    <message>
        <source>Explain one number instead: rate/gate/7, touches/crew/NAME, cost/RUN/GATE, …</source>
        <translation>Explicar en cambio un número: rate/gate/7, touches/crew/NAME, cost/RUN/GATE, …</translation>
    </message>
    <message>
        <source>… {} more; all of them with --json, --csv or in a pipe</source>
        <translation>… {} más; todas con --json, --csv o en una tubería</translation>
    </message>
    <message>
        <source>Penalties by {} · {}, {}</source>
        <translation>Penalizaciones por {} · {}, {}</translation>
    </message>
    <message>
        <source>{} of {} whole runs without a penalty: {:.1f} % ({})</source>
        <translation>{} de {} mangas enteras sin penalización: {:.1f}&#xa0;% ({})</translation>
    </message>
    <message>
        <source>Ranked: drawn towards {:.1f} %, the more the fewer the passages;</source>
        <translation>Por orden: acercadas al {:.1f}&#xa0;%, tanto más cuantos menos pasos;</translation>
    </message>
    <message>
        <source>{} of {}</source>
        <translation>{} de {}</translation>
    </message>
    <message>
        <source>What penalties cost</source>
        <translation>Lo que cuestan las penalizaciones</translation>
    </message>
    <message numerus="yes">
        <source>{} penalties</source>
        <translation>
            <numerusform>{} penalización</numerusform>
            <numerusform>{} penalizaciones</numerusform>
        </translation>
    </message>
    <message>
        <source>gate {}</source>
        <translation>pta. {}</translation>
    </message>
    <message>
        <source>  {} of {}, without {}</source>
        <translation>  {} de {}, sin {}</translation>
    </message>
    <message>
        <source>{} {} of {} ({:.0f} %, {:.0f}–{:.0f})</source>
        <translation>{} {} de {} ({:.0f}&#xa0;%, {:.0f}–{:.0f})</translation>
    </message>
    <message>
        <source>Noted of {}</source>
        <translation>Anotado de {}</translation>
    </message>
    <message>
        <source>1 % of speed pays for {:.2f} touches a run; times in percent of the group&apos;s median</source>
        <translation>Un 1&#xa0;% de velocidad compensa {:.2f} toques por manga; tiempos en porcentaje de la mediana del grupo</translation>
    </message>
    <message>
        <source>The sum of the best splits, and what each run could be</source>
        <translation>La suma de los mejores parciales, y lo que podría ser cada manga</translation>
    </message>
    <message>
        <source>Store the values in the file</source>
        <translation>Guardar los valores en el archivo</translation>
    </message>
    <message>
        <source>Tell how a number came about: perfect, or xtime/5 (runs from 0)</source>
        <translation>Decir cómo sale un número: perfect, o xtime/5 (mangas desde 0)</translation>
    </message>
    <message>
        <source>The weeks of each athlete&apos;s seasons</source>
        <translation>Las semanas de las temporadas de cada deportista</translation>
    </message>
    <message>
        <source>Planning (.planning) of any version</source>
        <translation>Planificación (.planning) de cualquier versión</translation>
    </message>
    <message>
        <source>Brings plannings to the current version</source>
        <translation>Lleva las planificaciones a la versión actual</translation>
    </message>
    <message>
        <source>Plannings (.planning) of any version</source>
        <translation>Planificaciones (.planning) de cualquier versión</translation>
    </message>
    <message>
        <source>Shows and upgrades training plannings</source>
        <translation>Muestra y actualiza planificaciones de entrenamiento</translation>
    </message>
    <message numerus="yes">
        <source>{} weeks</source>
        <translation>
            <numerusform>{} semana</numerusform>
            <numerusform>{} semanas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} sessions</source>
        <translation>
            <numerusform>{} sesión</numerusform>
            <numerusform>{} sesiones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} athletes</source>
        <translation>
            <numerusform>{} deportista</numerusform>
            <numerusform>{} deportistas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} favourite interval sessions</source>
        <translation>
            <numerusform>{} sesión de intervalos favorita</numerusform>
            <numerusform>{} sesiones de intervalos favoritas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} variability measurements</source>
        <translation>
            <numerusform>{} medición de variabilidad</numerusform>
            <numerusform>{} mediciones de variabilidad</numerusform>
        </translation>
    </message>
    <message>
        <source>Tells how the athletes of a team stand over seasons</source>
        <translation>Dice cómo están los deportistas de un equipo a lo largo de las temporadas</translation>
    </message>
    <message>
        <source>Team file (.kvteam)</source>
        <translation>Archivo de equipo (.kvteam)</translation>
    </message>
    <message>
        <source>Split files (.kvx) of any release, or folders of them: they tell the winners and the rivals</source>
        <translation>Archivos de parciales (.kvx) de cualquier versión, o carpetas con ellos: dicen los ganadores y los rivales</translation>
    </message>
    <message>
        <source>Category: MK1, WK1, MC1, WC1, MX1, WX1</source>
        <translation>Categoría: MK1, WK1, MC1, WC1, MX1, WX1</translation>
    </message>
    <message>
        <source>Only these: 2025, or 2023-2025</source>
        <translation>Solo estas: 2025, o 2023-2025</translation>
    </message>
    <message>
        <source>Whose places to expect of one another; the team and those who raced most often without it</source>
        <translation>De quiénes esperar puestos entre sí; el equipo y los que más compitieron si no se dice</translation>
    </message>
    <message>
        <source>File to write: the runs of the athletes as semicolon-separated text</source>
        <translation>Archivo que escribir: las mangas de los deportistas como texto separado por punto y coma</translation>
    </message>
    <message>
        <source>Folder to write a report of the team and a page for each athlete into</source>
        <translation>Carpeta en la que escribir un informe del equipo y una página por deportista</translation>
    </message>
    <message>
        <source>Explain one number instead: spread, trend/NAME, percent/NAME/2025/WC1/Final, …</source>
        <translation>Explicar en cambio un número: spread, trend/NAME, percent/NAME/2025/WC1/Final, …</translation>
    </message>
    <message>
        <source>{:+.1f} to {:+.1f}</source>
        <translation>{:+.1f} a {:+.1f}</translation>
    </message>
    <message>
        <source>{:+.2f} to {:+.2f}</source>
        <translation>{:+.2f} a {:+.2f}</translation>
    </message>
    <message>
        <source>      {} run {} {} {}
</source>
        <translation>      {} manga {} {} {}
</translation>
    </message>
    <message>
        <source>  {}. {}: {}, {} s a run
</source>
        <translation>  {}. {}: {}, {} s por manga
</translation>
    </message>
    <message numerus="yes">
        <source>{} whole runs</source>
        <translation>
            <numerusform>{} manga entera</numerusform>
            <numerusform>{} mangas enteras</numerusform>
        </translation>
    </message>
    <message>
        <source> · on {} · {}
</source>
        <translation> · frente a {} · {}
</translation>
    </message>
    <message>
        <source> ({:+.1f} to {:+.1f})</source>
        <translation> ({:+.1f} a {:+.1f})</translation>
    </message>
    <message numerus="yes">
        <source>{} split files</source>
        <translation>
            <numerusform>{} archivo de parciales</numerusform>
            <numerusform>{} archivos de parciales</numerusform>
        </translation>
    </message>
    <message>
        <source> · {} · {} of races</source>
        <translation> · {} · {} de carreras</translation>
    </message>
    <message>
        <source>Too few runs to tell how much they vary by chance.</source>
        <translation>Muy pocas mangas para decir cuánto varían por azar.</translation>
    </message>
    <message>
        <source>Runs vary by {:.1f} %{}, from {}; {:.2f} % is worth gaining.</source>
        <translation>Las mangas varían un {:.1f}&#xa0;%{}, de {}; merece la pena ganar un {:.2f}&#xa0;%.</translation>
    </message>
    <message>
        <source>Neither winners nor fastest splits of these races are known.</source>
        <translation>No se conocen ni los ganadores ni los parciales más rápidos de estas carreras.</translation>
    </message>
    <message>
        <source>      ┄ third of the final, median</source>
        <translation>      ┄ tercero de la final, mediana</translation>
    </message>
    <message>
        <source>within</source>
        <translation>dentro de</translation>
    </message>
    <message>
        <source>trend</source>
        <translation>tendencia</translation>
    </message>
    <message>
        <source>on splits</source>
        <translation>en parciales</translation>
    </message>
    <message>
        <source>{:.1f} % (all {:.1f}{})</source>
        <translation>{:.1f}&#xa0;% (todos {:.1f}{})</translation>
    </message>
    <message>
        <source>, {} missed</source>
        <translation>, {} con salto</translation>
    </message>
    <message>
        <source>{:+.1f} %/yr{} </source>
        <translation>{:+.1f}&#xa0;%/año{} </translation>
    </message>
    <message>
        <source>{} of {} ({:.0f}–{:.0f} %)</source>
        <translation>{} de {} ({:.0f}–{:.0f}&#xa0;%)</translation>
    </message>
    <message numerus="yes">
        <source>{} races</source>
        <translation>
            <numerusform>{} carrera</numerusform>
            <numerusform>{} carreras</numerusform>
        </translation>
    </message>
    <message>
        <source> {} of {} ({:.0f}–{:.0f} %), {:+.1f} %</source>
        <translation> {} de {} ({:.0f}–{:.0f}&#xa0;%), {:+.1f}&#xa0;%</translation>
    </message>
    <message>
        <source>rank {}</source>
        <translation>puesto {}</translation>
    </message>
    <message>
        <source>… {} more; all of them with --json or in a pipe</source>
        <translation>… {} más; todos con --json o en una tubería</translation>
    </message>
    <message>
        <source>{} more boats come into question: name a field with --field</source>
        <translation>Hay {} barcos más en cuestión: indica los participantes con --field</translation>
    </message>
    <message>
        <source>{} is left out: fewer than {} runs, or never met the others</source>
        <translation>{} se omite: menos de {} mangas, o nunca coincidió con los demás</translation>
    </message>
    <message>
        <source>The ranking of each category</source>
        <translation>La clasificación de cada categoría</translation>
    </message>
    <message>
        <source>Selection file (.kvsr) of any layout</source>
        <translation>Archivo de selectivo (.kvsr) de cualquier formato</translation>
    </message>
    <message>
        <source>Kind of bonus that counts, from 0</source>
        <translation>Tipo de bonificación que cuenta, desde 0</translation>
    </message>
    <message>
        <source>Folder to write both reports into</source>
        <translation>Carpeta en la que escribir los dos informes</translation>
    </message>
    <message>
        <source>Store percentages and scores in the file</source>
        <translation>Guardar porcentajes y puntuaciones en el archivo</translation>
    </message>
    <message>
        <source>Adds athletes from a list to a selection</source>
        <translation>Añade deportistas de una lista a un selectivo</translation>
    </message>
    <message>
        <source>Selection file (.kvsr)</source>
        <translation>Archivo de selectivo (.kvsr)</translation>
    </message>
    <message>
        <source>Text with lines Cat;Name;Surname;year;club</source>
        <translation>Texto con líneas Cat;Name;Surname;year;club</translation>
    </message>
    <message>
        <source>Takes the results of a race from its split files</source>
        <translation>Toma los resultados de una carrera de sus archivos de parciales</translation>
    </message>
    <message>
        <source>Race of the selection: its name, or its number counted from 0</source>
        <translation>Carrera del selectivo: su nombre, o su número contado desde 0</translation>
    </message>
    <message>
        <source>Kind of bonus that counts in the scores, from 0</source>
        <translation>Tipo de bonificación que cuenta en las puntuaciones, desde 0</translation>
    </message>
    <message>
        <source>Split files (.kvx) of the race</source>
        <translation>Archivos de parciales (.kvx) de la carrera</translation>
    </message>
    <message>
        <source>Selection races and their ranking</source>
        <translation>Selectivos y su clasificación</translation>
    </message>
    <message>
        <source>Prints the coloured split table of a race</source>
        <translation>Muestra la tabla de parciales de una carrera en color</translation>
    </message>
    <message>
        <source>Colours: race or training</source>
        <translation>Colores: race o training</translation>
    </message>
    <message>
        <source>Times from the start to each split</source>
        <translation>Tiempos desde la salida hasta cada parcial</translation>
    </message>
    <message>
        <source>Add penalty seconds to the times</source>
        <translation>Sumar los segundos de penalización a los tiempos</translation>
    </message>
    <message>
        <source>Show penalty seconds behind the times</source>
        <translation>Mostrar los segundos de penalización tras los tiempos</translation>
    </message>
    <message>
        <source>Only runs of this phase</source>
        <translation>Solo las mangas de esta fase</translation>
    </message>
    <message>
        <source>Tell how a number came about: cell/5/3, band/5/3, ideal/3, ideal/total (runs from 0, columns and sections from 1)</source>
        <translation>Decir cómo sale un número: cell/5/3, band/5/3, ideal/3, ideal/total (mangas desde 0, columnas y tramos desde 1)</translation>
    </message>
    <message>
        <source>{} gates, {} upstream</source>
        <translation>{} puertas, {} remontes</translation>
    </message>
    <message>
        <source>The table cannot be written over the recording itself.</source>
        <translation>La tabla no se puede escribir encima de la propia grabación.</translation>
    </message>
    <message>
        <source>Finds the strokes and turns of a boat-motion recording</source>
        <translation>Encuentra las paladas y los giros de una grabación de movimiento del barco</translation>
    </message>
    <message>
        <source>Raw recording (.kvb)</source>
        <translation>Grabación en bruto (.kvb)</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number from {:g} to {:g} {}.</source>
        <translation>«{}» no es un número de {:g} a {:g} {}.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is none of: {}.</source>
        <translation>«{}» no es ninguno de: {}.</translation>
    </message>
    <message>
        <source>Side of the phone that points to the bow, where fixes do not tell: top, bottom, right, left, back or screen</source>
        <translation>Lado del teléfono que apunta a la proa, donde las posiciones no lo dicen: top, bottom, right, left, back o screen</translation>
    </message>
    <message>
        <source>Athlete, boat and kit in kg</source>
        <translation>Deportista, barco y equipo en kg</translation>
    </message>
    <message>
        <source>Resistance of the hull over the square of its speed in N·s²/m²</source>
        <translation>Resistencia del casco partida por el cuadrado de su velocidad, en N·s²/m²</translation>
    </message>
    <message>
        <source>Class of boat: k1, c1, c2, kayak or canoe</source>
        <translation>Clase de barco: k1, c1, c2, kayak o canoe</translation>
    </message>
    <message numerus="yes">
        <source>{} bouts</source>
        <translation>
            <numerusform>{} serie de paladas</numerusform>
            <numerusform>{} series de paladas</numerusform>
        </translation>
    </message>
    <message>
        <source>{:.1f} 1/min</source>
        <translation>{:.1f} 1/min</translation>
    </message>
    <message>
        <source>{:g} kg, drag {:g} N·s²/m², {}; force and power hold on flat water only</source>
        <translation>{:g} kg, resistencia {:g} N·s²/m², {}; fuerza y potencia solo valen en agua llana</translation>
    </message>
    <message>
        <source>Shows any list of results as a table, with columns reckoned</source>
        <translation>Muestra cualquier lista de resultados como tabla, con columnas calculadas</translation>
    </message>
    <message>
        <source>A column to add: total:Time,Pen, rank:Total, gap, percent, percentile, difference:Run 2,Run 1; with &quot;by Category&quot; within each category, with &quot;down&quot; the highest first</source>
        <translation>Una columna que añadir: total:Time,Pen, rank:Total, gap, percent, percentile, difference:Run 2,Run 1; con &quot;by Category&quot; dentro de cada categoría, con &quot;down&quot; lo más alto primero</translation>
    </message>
    <message>
        <source>ROW,COL,VALUE,FN as in Nation,Category,Time,mean; FN is count, sum, mean, median, least or most</source>
        <translation>FILA,COL,VALOR,FN como en Nation,Category,Time,mean; FN es count, sum, mean, median, least o most</translation>
    </message>
    <message>
        <source>Team (.kvteam) whose athletes are looked for</source>
        <translation>Equipo (.kvteam) cuyos deportistas se buscan</translation>
    </message>
    <message>
        <source>The sheet, where there are several; of a split file which of its lists</source>
        <translation>La hoja, si hay varias; de un archivo de parciales, cuál de sus listas</translation>
    </message>
    <message>
        <source>File to write the table to: semicolon-separated text</source>
        <translation>Archivo en el que escribir la tabla: texto separado por punto y coma</translation>
    </message>
    <message>
        <source>Category, letter for letter as in the file: MK1, WK1, MC1, WC1, MX1, WX1</source>
        <translation>Categoría, letra por letra como en el archivo: MK1, WK1, MC1, WC1, MX1, WX1</translation>
    </message>
    <message>
        <source>What the athletes of a team reached</source>
        <translation>Lo que lograron los deportistas de un equipo</translation>
    </message>
    <message>
        <source>Name of the athlete</source>
        <translation>Nombre del deportista</translation>
    </message>
    <message>
        <source>Folder to write &quot;2025 Categorization.pdf&quot; into</source>
        <translation>Carpeta en la que escribir &quot;2025 Categorization.pdf&quot;</translation>
    </message>
    <message>
        <source>Brings files of older releases to the current version</source>
        <translation>Lleva archivos de versiones anteriores a la versión actual</translation>
    </message>
    <message>
        <source>Split files, selection races, plannings and recordings, or folders</source>
        <translation>Archivos de parciales, selectivos, planificaciones y grabaciones, o carpetas</translation>
    </message>
    <message>
        <source>rule</source>
        <translation>regla</translation>
    </message>
    <message>
        <source>source</source>
        <translation>fuente</translation>
    </message>
    <message>
        <source>note</source>
        <translation>nota</translation>
    </message>
    <message>
        <source>split {}</source>
        <translation>parcial {}</translation>
    </message>
    <message>
        <source>entry {}</source>
        <translation>entrada {}</translation>
    </message>
    <message>
        <source>shown {} of {}</source>
        <translation>se muestran {} de {}</translation>
    </message>
    <message>
        <source>{} to {}  ({})</source>
        <translation>{} a {}  ({})</translation>
    </message>
    <message>
        <source>Imported “%1”</source>
        <translation>Se importó «%1»</translation>
    </message>
    <message>
        <source>“%1” cannot be imported</source>
        <translation>«%1» no se puede importar</translation>
    </message>
    <message>
        <source>Watches and phones (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;All files (*)</source>
        <translation>Relojes y teléfonos (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Import from a watch or a phone</source>
        <translation>Importar de un reloj o un teléfono</translation>
    </message>
    <message>
        <source>The rows of the group.</source>
        <translation>Las filas del grupo.</translation>
    </message>
    <message>
        <source>number of rows</source>
        <translation>número de filas</translation>
    </message>
    <message>
        <source>The least value of the group&apos;s rows.</source>
        <translation>El menor valor de las filas del grupo.</translation>
    </message>
    <message>
        <source>The mean of the group&apos;s rows.</source>
        <translation>La media de las filas del grupo.</translation>
    </message>
    <message>
        <source>Σ values / rows with a value</source>
        <translation>Σ valores / filas con valor</translation>
    </message>
    <message>
        <source>The middle of the group&apos;s rows.</source>
        <translation>El valor central de las filas del grupo.</translation>
    </message>
    <message>
        <source>Stopped; nothing was written.</source>
        <translation>Detenido; no se ha escrito nada.</translation>
    </message>
    <message numerus="yes">
        <source>{} frames</source>
        <translation>
            <numerusform>{} fotograma</numerusform>
            <numerusform>{} fotogramas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} films</source>
        <translation>
            <numerusform>{} vídeo</numerusform>
            <numerusform>{} vídeos</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to fetch.</source>
        <translation>No hay nada que descargar.</translation>
    </message>
    <message>
        <source>90 %, Student&apos;s t</source>
        <translation>90&#xa0;%, t de Student</translation>
    </message>
    <message>
        <source>90 %, Wilson</source>
        <translation>90&#xa0;%, Wilson</translation>
    </message>
    <message>
        <source>own</source>
        <translation>propio</translation>
    </message>
    <message>
        <source>Time lost between two neighbouring marks that both runs have.</source>
        <translation>Tiempo perdido entre dos marcas vecinas que tienen ambas mangas.</translation>
    </message>
    <message>
        <source>Time lost in percent of the reference&apos;s time there.</source>
        <translation>Tiempo perdido ahí en porcentaje del tiempo de la referencia.</translation>
    </message>
    <message>
        <source>100 · (own − reference) / reference</source>
        <translation>100 · (propio − referencia) / referencia</translation>
    </message>
    <message>
        <source>After a mark that was not taken the next time covers both sections.</source>
        <translation>Después de una marca que no se tomó, el tiempo siguiente abarca los dos tramos.</translation>
    </message>
    <message>
        <source>Σ times between the marks</source>
        <translation>Σ tiempos entre las marcas</translation>
    </message>
    <message>
        <source>The least time that stands alone, whoever paddled it.</source>
        <translation>El menor tiempo que vale por sí solo, sea de quien sea.</translation>
    </message>
    <message>
        <source>The median of the finalists&apos; times that stand alone.</source>
        <translation>La mediana de los tiempos de los finalistas que valen por sí solos.</translation>
    </message>
    <message>
        <source>median times</source>
        <translation>mediana de tiempos</translation>
    </message>
    <message>
        <source>The difference of the totals, official where both have an official one.</source>
        <translation>La diferencia de los totales, oficiales donde ambas los tienen.</translation>
    </message>
    <message>
        <source>own total − reference total</source>
        <translation>total propio − total de la referencia</translation>
    </message>
    <message>
        <source>All sections and the penalties, as timed from the video.</source>
        <translation>Todos los tramos y las penalizaciones, cronometrados en el vídeo.</translation>
    </message>
    <message>
        <source>What was lost on the water: all stretches together.</source>
        <translation>Lo que se perdió en el agua: todos los trechos juntos.</translation>
    </message>
    <message>
        <source>Σ losses</source>
        <translation>Σ pérdidas</translation>
    </message>
    <message>
        <source>The difference of the penalties.</source>
        <translation>La diferencia de las penalizaciones.</translation>
    </message>
    <message>
        <source>own penalties − reference&apos;s penalties</source>
        <translation>penalizaciones propias − las de la referencia</translation>
    </message>
    <message>
        <source>What neither water nor penalties tell: official against video time.</source>
        <translation>Lo que no explican ni el agua ni las penalizaciones: tiempo oficial frente al del vídeo.</translation>
    </message>
    <message>
        <source>gap − paddling − penalties</source>
        <translation>diferencia − paleo − penalizaciones</translation>
    </message>
    <message>
        <source>Time lost in an upstream gate, by its first entry in both runs.</source>
        <translation>Tiempo perdido en un remonte, por su primera entrada en ambas mangas.</translation>
    </message>
    <message>
        <source>Time lost from the entrance of an upstream gate to its pole line.</source>
        <translation>Tiempo perdido desde la entrada de un remonte hasta la línea de la puerta.</translation>
    </message>
    <message>
        <source>Time lost from the pole line of an upstream gate to its exit.</source>
        <translation>Tiempo perdido desde la línea de la puerta de un remonte hasta su salida.</translation>
    </message>
    <message>
        <source>What a stretch lost outside its upstream gates.</source>
        <translation>Lo que se perdió en un trecho fuera de sus remontes.</translation>
    </message>
    <message>
        <source>loss − Σ gates</source>
        <translation>pérdida − Σ puertas</translation>
    </message>
    <message>
        <source>The part of the loss that notes against the same crew explain.</source>
        <translation>La parte de la pérdida que explican las notas frente a la misma tripulación.</translation>
    </message>
    <message>
        <source>Σ notes / paddling</source>
        <translation>Σ notas / paleo</translation>
    </message>
    <message>
        <source>The time without penalties against the expected time.</source>
        <translation>El tiempo sin penalizaciones frente al tiempo esperado.</translation>
    </message>
    <message>
        <source>paddling time − expected time</source>
        <translation>tiempo de paleo − tiempo esperado</translation>
    </message>
    <message>
        <source>The total against a result of interest.</source>
        <translation>El total frente a un resultado de interés.</translation>
    </message>
    <message>
        <source>own total − result</source>
        <translation>total propio − resultado</translation>
    </message>
    <message>
        <source>Time lost as noted; several reasons of one note share it equally.</source>
        <translation>Tiempo perdido según las notas; varios motivos de una nota lo comparten a partes iguales.</translation>
    </message>
    <message>
        <source>Σ notes above 0</source>
        <translation>Σ notas mayores que 0</translation>
    </message>
    <message>
        <source>Time gained as noted; several reasons of one note share it equally.</source>
        <translation>Tiempo ganado según las notas; varios motivos de una nota lo comparten a partes iguales.</translation>
    </message>
    <message>
        <source>Σ notes below 0</source>
        <translation>Σ notas menores que 0</translation>
    </message>
    <message>
        <source>What the chosen way cost against the fastest one timed.</source>
        <translation>Lo que costó la trazada elegida frente a la más rápida cronometrada.</translation>
    </message>
    <message>
        <source>chosen − least timed</source>
        <translation>elegida − menor cronometrada</translation>
    </message>
    <message>
        <source>What was lost in percent of the reference&apos;s time, over whole runs.</source>
        <translation>Lo que se perdió en porcentaje del tiempo de la referencia, en mangas enteras.</translation>
    </message>
    <message>
        <source>100 · ΣL / ΣB,  SE² = n/(n−1) · Σ(L − qB)² / (ΣB)²</source>
        <translation>100 · ΣL / ΣB,  SE² = n/(n−1) · Σ(L − qB)² / (ΣB)²</translation>
    </message>
    <message>
        <source>ratio estimator: Cochran, Sampling Techniques, 1977</source>
        <translation>estimador de razón: Cochran, Sampling Techniques, 1977</translation>
    </message>
    <message>
        <source>What was lost here in a run on the average.</source>
        <translation>Lo que se perdió aquí por término medio en una manga.</translation>
    </message>
    <message>
        <source>ΣL / n</source>
        <translation>ΣL / n</translation>
    </message>
    <message>
        <source>The part of the whole gap that was lost here.</source>
        <translation>La parte de toda la diferencia que se perdió aquí.</translation>
    </message>
    <message>
        <source>ΣL / Σgap</source>
        <translation>ΣL / Σdif.</translation>
    </message>
    <message>
        <source>The mean gap of the whole runs.</source>
        <translation>La diferencia media de las mangas enteras.</translation>
    </message>
    <message>
        <source>Σgap / n</source>
        <translation>Σdif. / n</translation>
    </message>
    <message>
        <source>interval: Student&apos;s t</source>
        <translation>intervalo: t de Student</translation>
    </message>
    <message>
        <source>The mean difference of penalties of the whole runs.</source>
        <translation>La diferencia media de penalizaciones de las mangas enteras.</translation>
    </message>
    <message>
        <source>Σ(own − reference) / n</source>
        <translation>Σ(propio − referencia) / n</translation>
    </message>
    <message>
        <source>What was lost on the water up to a mark: all stretches before it.</source>
        <translation>Lo que se perdió en el agua hasta una marca: todos los trechos anteriores.</translation>
    </message>
    <message>
        <source>Σ losses to here</source>
        <translation>Σ pérdidas hasta aquí</translation>
    </message>
    <message>
        <source>The total of the run: the official one where it has one.</source>
        <translation>El total de la manga: el oficial donde lo tiene.</translation>
    </message>
    <message>
        <source>One more than have a smaller total in the group, to the hundredth.</source>
        <translation>Uno más que los que tienen un total menor en el grupo, a la centésima.</translation>
    </message>
    <message>
        <source>1 + totals below the own</source>
        <translation>1 + totales menores que el propio</translation>
    </message>
    <message>
        <source>The strokes that were marked in the stretch.</source>
        <translation>Las paladas que se marcaron en el trecho.</translation>
    </message>
    <message>
        <source>Σ strokes</source>
        <translation>Σ paladas</translation>
    </message>
    <message>
        <source>The seconds of penalty at the gates of the stretch.</source>
        <translation>Los segundos de penalización en las puertas del trecho.</translation>
    </message>
    <message>
        <source>Σ penalties</source>
        <translation>Σ penalizaciones</translation>
    </message>
    <message>
        <source>The whole runs that have something of it.</source>
        <translation>Las mangas enteras que tienen algo de ello.</translation>
    </message>
    <message>
        <source>number of runs</source>
        <translation>número de mangas</translation>
    </message>
    <message>
        <source>What was lost here in all runs together.</source>
        <translation>Lo que se perdió aquí en todas las mangas juntas.</translation>
    </message>
    <message>
        <source>Too few runs for an interval.</source>
        <translation>Muy pocas mangas para un intervalo.</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>perdido</translation>
    </message>
    <message>
        <source>reference</source>
        <translation>referencia</translation>
    </message>
    <message>
        <source>gap of all runs</source>
        <translation>diferencia de todas las mangas</translation>
    </message>
    <message>
        <source>run</source>
        <translation>manga</translation>
    </message>
    <message>
        <source>half a frame, four marks</source>
        <translation>medio fotograma, cuatro marcas</translation>
    </message>
    <message>
        <source>loss</source>
        <translation>pérdida</translation>
    </message>
    <message>
        <source>gap</source>
        <translation>diferencia</translation>
    </message>
    <message>
        <source>paddling</source>
        <translation>paleo</translation>
    </message>
    <message>
        <source>Shown a hundredth apart, so that the parts add up to the shown gap.</source>
        <translation>Se muestra con una centésima de diferencia para que las partes sumen la diferencia mostrada.</translation>
    </message>
    <message>
        <source>time without penalties</source>
        <translation>tiempo sin penalizaciones</translation>
    </message>
    <message>
        <source>expected time</source>
        <translation>tiempo esperado</translation>
    </message>
    <message>
        <source>result</source>
        <translation>resultado</translation>
    </message>
    <message>
        <source>A missed gate also saved paddling, which the rank without it does not take back.</source>
        <translation>Un salto de puerta también ahorró paleo, y el puesto sin él no lo descuenta.</translation>
    </message>
    <message>
        <source>The total holds {} s of penalty, the gates {:.0f} s.</source>
        <translation>El total contiene {} s de penalización; las puertas, {:.0f} s.</translation>
    </message>
    <message>
        <source>total</source>
        <translation>total</translation>
    </message>
    <message>
        <source>smaller totals</source>
        <translation>totales menores</translation>
    </message>
    <message>
        <source>ranked runs</source>
        <translation>mangas clasificadas</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>rank</source>
        <translation>puesto</translation>
    </message>
    <message>
        <source>rank without</source>
        <translation>puesto sin</translation>
    </message>
    <message>
        <source>clean run</source>
        <translation>manga limpia</translation>
    </message>
    <message>
        <source>Unfinished runs are not counted: nobody knows whether they would have stayed clean.</source>
        <translation>Las mangas sin terminar no cuentan: nadie sabe si habrían seguido limpias.</translation>
    </message>
    <message>
        <source>{} more are not listed.</source>
        <translation>{} más no se enumeran.</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>{} more rows are not listed.</source>
        <translation>{} filas más no se enumeran.</translation>
    </message>
    <message>
        <source>5 % and 95 % of the beta distribution</source>
        <translation>5&#xa0;% y 95&#xa0;% de la distribución beta</translation>
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
        <translation>Intervalo de Wilson, 90&#xa0;%</translation>
    </message>
    <message numerus="yes">
        <source>{} touches</source>
        <translation>
            <numerusform>{} toque</numerusform>
            <numerusform>{} toques</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} passages</source>
        <translation>
            <numerusform>{} paso</numerusform>
            <numerusform>{} pasos</numerusform>
        </translation>
    </message>
    <message>
        <source>Too few to tell: {} in {}.</source>
        <translation>Muy pocos para decirlo: {} en {}.</translation>
    </message>
    <message>
        <source>Only one {}: there is nothing to compare it with.</source>
        <translation>Solo uno ({}): no hay nada con qué compararlo.</translation>
    </message>
    <message>
        <source>No {} stands out: the highest, {} ({}), may be chance.</source>
        <translation>Ninguno destaca ({}): el más alto, {} ({}), puede ser azar.</translation>
    </message>
    <message>
        <source>None of {} cost a place.</source>
        <translation>Coste en puestos de {}: ninguno.</translation>
    </message>
    <message>
        <source>None of {} was noted in detail.</source>
        <translation>Anotado con detalle de {}: nada.</translation>
    </message>
    <message>
        <source>Too few to tell: no group has {} whole runs.</source>
        <translation>Muy pocas para decirlo: ningún grupo tiene {} mangas enteras.</translation>
    </message>
    <message>
        <source>1 % of speed pays for {:.2f} touches a run.</source>
        <translation>Un 1&#xa0;% de velocidad compensa {:.2f} toques por manga.</translation>
    </message>
    <message>
        <source>{} of {} without a penalty: {:.1f} % ({:.1f}–{:.1f}).</source>
        <translation>{} de {} sin penalización: {:.1f}&#xa0;% ({:.1f}–{:.1f}).</translation>
    </message>
    <message>
        <source>{} {} {}, place</source>
        <translation>{} {} {}, puesto</translation>
    </message>
    <message>
        <source>counted</source>
        <translation>cuenta</translation>
    </message>
    <message>
        <source>{} left out: {}</source>
        <translation>Se omite {}: {}</translation>
    </message>
    <message>
        <source>{} {} of {} ({:.0f}–{:.0f} %)</source>
        <translation>{} {} de {} ({:.0f}–{:.0f}&#xa0;%)</translation>
    </message>
    <message>
        <source>{:.1f} % behind the winner, {} (median of {})</source>
        <translation>{:.1f}&#xa0;% respecto al ganador, {} (mediana de {})</translation>
    </message>
    <message>
        <source>within {:.1f} % from run to run</source>
        <translation>variación del {:.1f}&#xa0;% de manga a manga</translation>
    </message>
    <message>
        <source>trend {:+.1f} % a year: {}</source>
        <translation>tendencia {:+.1f}&#xa0;% al año: {}</translation>
    </message>
    <message>
        <source>Too few runs to tell how much they vary.</source>
        <translation>Muy pocas mangas para decir cuánto varían.</translation>
    </message>
    <message>
        <source>From run to run {:.1f} % is chance.</source>
        <translation>De manga a manga, un {:.1f}&#xa0;% es azar.</translation>
    </message>
    <message>
        <source>From run to run {:.1f} % ({:.1f} to {:.1f}) is chance; {:.2f} % is worth gaining.</source>
        <translation>De manga a manga, un {:.1f}&#xa0;% ({:.1f} a {:.1f}) es azar; merece la pena ganar un {:.2f}&#xa0;%.</translation>
    </message>
    <message>
        <source>{} of {} grew faster beyond doubt, {} slower.</source>
        <translation>{} de {} son más rápidos sin lugar a dudas, {} más lentos.</translation>
    </message>
    <message>
        <source>{} met nobody in these races.</source>
        <translation>{} no coincidió con nadie en estas carreras.</translation>
    </message>
    <message numerus="yes">
        <source>{} rivals</source>
        <translation>
            <numerusform>{} rival</numerusform>
            <numerusform>{} rivales</numerusform>
        </translation>
    </message>
    <message>
        <source>{} is ahead beyond doubt of {} of {}.</source>
        <translation>{} supera sin lugar a dudas a {} de {}.</translation>
    </message>
    <message>
        <source>No split file of this class has three whole runs of a {}.</source>
        <translation>Ningún archivo de parciales de esta clase tiene tres mangas enteras de: {}.</translation>
    </message>
    <message>
        <source>{:.1f} % would have been among the first three in {} of {}.</source>
        <translation>Un {:.1f}&#xa0;% habría estado entre los tres primeros en {} de {}.</translation>
    </message>
    <message>
        <source>The third was {:.1f} % behind in the median of {}.</source>
        <translation>El tercero quedó a un {:.1f}&#xa0;% en la mediana de {}.</translation>
    </message>
    <message>
        <source>Nobody of the team has runs enough to expect a place of.</source>
        <translation>Nadie del equipo tiene mangas suficientes para esperar un puesto.</translation>
    </message>
    <message>
        <source>{} may expect place {:.1f} of {}, a medal by {:.0f} %.</source>
        <translation>{} puede esperar el puesto {:.1f} de {}, y una medalla con un {:.0f}&#xa0;%.</translation>
    </message>
    <message numerus="yes">
        <source>{} finals</source>
        <translation>
            <numerusform>{} final</numerusform>
            <numerusform>{} finales</numerusform>
        </translation>
    </message>
    <message>
        <source>{:.1f} % would have been a medal in {} of {}</source>
        <translation>Un {:.1f}&#xa0;% habría sido medalla en {} de {}</translation>
    </message>
    <message>
        <source>Nearest to the winners ({}): {}, {:.1f} % (median of {}).</source>
        <translation>Más cerca de los ganadores ({}): {}, {:.1f}&#xa0;% (mediana de {}).</translation>
    </message>
    <message>
        <source>No winner of a phase &quot;{}&quot; of these races is known.</source>
        <translation>No se conoce ningún ganador de una fase «{}» de estas carreras.</translation>
    </message>
    <message>
        <source>split {}, fastest of it {:.2f}</source>
        <translation>parcial {}, el más rápido {:.2f}</translation>
    </message>
    <message>
        <source>missed</source>
        <translation>con salto</translation>
    </message>
    <message>
        <source>runs</source>
        <translation>mangas</translation>
    </message>
    <message>
        <source>all missed</source>
        <translation>todas con salto</translation>
    </message>
    <message>
        <source>all runs</source>
        <translation>todas las mangas</translation>
    </message>
    <message>
        <source>{}, spread {:.2f}, missed {:.1f} %</source>
        <translation>{}, variación {:.2f}, saltos {:.1f}&#xa0;%</translation>
    </message>
    <message>
        <source>How far behind the winner of the phase and class, penalties included.</source>
        <translation>Diferencia con el ganador de la fase y la clase, penalizaciones incluidas.</translation>
    </message>
    <message>
        <source>100 · (T / W − 1)</source>
        <translation>100 · (T / W − 1)</translation>
    </message>
    <message>
        <source>of the class winner, not of the men&apos;s kayaks: Wells, thesis, 2018</source>
        <translation>del ganador de la clase, no de los kayaks masculinos: Wells, tesis, 2018</translation>
    </message>
    <message>
        <source>How far behind the fastest times of all splits together, without penalties.</source>
        <translation>Diferencia con los tiempos más rápidos de todos los parciales juntos, sin penalizaciones.</translation>
    </message>
    <message>
        <source>100 · (Σ splits / Σ fastest − 1)</source>
        <translation>100 · (Σ parciales / Σ más rápidos − 1)</translation>
    </message>
    <message>
        <source>How much a run varies by chance, once the athlete and the course are taken out.</source>
        <translation>Cuánto varía una manga por azar, una vez descontados el deportista y el recorrido.</translation>
    </message>
    <message>
        <source>100 · (e^(s/100) − 1),  s² = Σe² / df,  df = runs − athletes − phases + connected parts</source>
        <translation>100 · (e^(s/100) − 1),  s² = Σe² / gl,  gl = mangas − deportistas − fases + partes conexas</translation>
    </message>
    <message>
        <source>mixed model of elite canoeists: Bonetti, Hopkins, 2010; interval: χ²</source>
        <translation>modelo mixto de piragüistas de élite: Bonetti, Hopkins, 2010; intervalo: χ²</translation>
    </message>
    <message>
        <source>How much this athlete&apos;s runs varied by chance.</source>
        <translation>Cuánto variaron por azar las mangas de este deportista.</translation>
    </message>
    <message>
        <source>s² = Σe² / (runs · df / all runs)</source>
        <translation>s² = Σe² / (mangas · gl / todas las mangas)</translation>
    </message>
    <message>
        <source>The athlete&apos;s spread drawn towards the common one, the more the fewer the runs.</source>
        <translation>La variación del deportista acercada a la común, tanto más cuantas menos mangas.</translation>
    </message>
    <message>
        <source>s² = (Σe² + 10 · common s²) / (runs · df / all runs + 10)</source>
        <translation>s² = (Σe² + 10 · s² común) / (mangas · gl / todas las mangas + 10)</translation>
    </message>
    <message>
        <source>What is worth gaining: one more medal in ten races among equals at the top.</source>
        <translation>Lo que merece la pena ganar: una medalla más en diez carreras entre iguales en cabeza.</translation>
    </message>
    <message>
        <source>0.3 · spread</source>
        <translation>0.3 · variación</translation>
    </message>
    <message>
        <source>Hopkins, 2004</source>
        <translation>Hopkins, 2004</translation>
    </message>
    <message>
        <source>The change of the percentage behind from year to year.</source>
        <translation>El cambio del porcentaje de diferencia de un año a otro.</translation>
    </message>
    <message>
        <source>slope of 100 · ln(1 + percent/100) per 365.25 days</source>
        <translation>pendiente de 100 · ln(1 + porcentaje/100) por 365.25 días</translation>
    </message>
    <message>
        <source>Races among whose first three the athlete was.</source>
        <translation>Carreras en las que el deportista estuvo entre los tres primeros.</translation>
    </message>
    <message>
        <source>places 1 to 3 / races with a final position</source>
        <translation>puestos 1 a 3 / carreras con posición final</translation>
    </message>
    <message>
        <source>interval: Wilson</source>
        <translation>intervalo: Wilson</translation>
    </message>
    <message>
        <source>Races in whose final the athlete was.</source>
        <translation>Carreras en cuya final estuvo el deportista.</translation>
    </message>
    <message>
        <source>with a final / with phases</source>
        <translation>con final / con fases</translation>
    </message>
    <message>
        <source>Races in whose semifinal the athlete was.</source>
        <translation>Carreras en cuya semifinal estuvo el deportista.</translation>
    </message>
    <message>
        <source>with a semifinal / with phases</source>
        <translation>con semifinal / con fases</translation>
    </message>
    <message>
        <source>The mean change from one phase of a race to a later one.</source>
        <translation>El cambio medio de una fase de una carrera a otra posterior.</translation>
    </message>
    <message>
        <source>mean of 100 · (ln later − ln earlier)</source>
        <translation>media de 100 · (ln posterior − ln anterior)</translation>
    </message>
    <message>
        <source>How much a single run varies by chance, from pairs of them.</source>
        <translation>Cuánto varía por azar una sola manga, a partir de pares.</translation>
    </message>
    <message>
        <source>SD of the changes / √2</source>
        <translation>DT de los cambios / √2</translation>
    </message>
    <message>
        <source>typical error: Hopkins, 2000</source>
        <translation>error típico: Hopkins, 2000</translation>
    </message>
    <message>
        <source>Phases that both have in which the athlete was faster; ties count half.</source>
        <translation>Fases que tienen ambos en las que el deportista fue más rápido; los empates cuentan la mitad.</translation>
    </message>
    <message>
        <source>(won + ties/2) / met</source>
        <translation>(ganadas + empates/2) / coincidencias</translation>
    </message>
    <message>
        <source>The mean gap in the phases that both have, penalties included.</source>
        <translation>La diferencia media en las fases que tienen ambos, penalizaciones incluidas.</translation>
    </message>
    <message>
        <source>mean of 100 · ln(own / rival&apos;s)</source>
        <translation>media de 100 · ln(propio / del rival)</translation>
    </message>
    <message>
        <source>What percentage behind the winner a rank took, over the races.</source>
        <translation>Con qué porcentaje respecto al ganador se obtuvo un puesto, en las carreras.</translation>
    </message>
    <message>
        <source>median of 100 · (T of the rank / W − 1)</source>
        <translation>mediana de 100 · (T del puesto / W − 1)</translation>
    </message>
    <message>
        <source>The chance of a missed gate, drawn towards everybody&apos;s as if by 20 runs more.</source>
        <translation>La probabilidad de un salto, acercada a la de todos como con 20 mangas más.</translation>
    </message>
    <message>
        <source>(missed + 20q) / (runs + 20),  q = (all missed + ½) / (all runs + 1)</source>
        <translation>(saltos + 20q) / (mangas + 20),  q = (todos los saltos + ½) / (todas las mangas + 1)</translation>
    </message>
    <message>
        <source>The mean place among this field; with a missed gate behind all that have none.</source>
        <translation>El puesto medio entre estos participantes; con un salto, detrás de todos los que no tienen ninguno.</translation>
    </message>
    <message>
        <source>Σ place · chance,  result normal: effect, spread · √(1 + 1/n)</source>
        <translation>Σ puesto · probabilidad,  resultado normal: efecto, variación · √(1 + 1/n)</translation>
    </message>
    <message>
        <source>The chance of one of the first three places among this field.</source>
        <translation>La probabilidad de uno de los tres primeros puestos entre estos participantes.</translation>
    </message>
    <message>
        <source>chances of the places 1 to 3</source>
        <translation>probabilidades de los puestos 1 a 3</translation>
    </message>
    <message>
        <source>How far behind the winners of a phase, the same number of races before and behind it.</source>
        <translation>Diferencia con los ganadores de una fase, con el mismo número de carreras antes y después.</translation>
    </message>
    <message>
        <source>median of 100 · (T / W − 1), without missed gates</source>
        <translation>mediana de 100 · (T / W − 1), sin saltos</translation>
    </message>
    <message>
        <source>{} {} {}, percent</source>
        <translation>{} {} {}, porcentaje</translation>
    </message>
    <message>
        <source>90 %, Student&apos;s t with {} degrees</source>
        <translation>90&#xa0;%, t de Student con {} grados</translation>
    </message>
    <message>
        <source>{:+.1f} % a year</source>
        <translation>{:+.1f}&#xa0;% al año</translation>
    </message>
    <message>
        <source>spread, percent</source>
        <translation>variación, porcentaje</translation>
    </message>
    <message>
        <source>athletes</source>
        <translation>deportistas</translation>
    </message>
    <message>
        <source>race phases</source>
        <translation>fases de carrera</translation>
    </message>
    <message>
        <source>connected parts</source>
        <translation>partes conexas</translation>
    </message>
    <message>
        <source>degrees of freedom</source>
        <translation>grados de libertad</translation>
    </message>
    <message>
        <source>90 %, χ²</source>
        <translation>90&#xa0;%, χ²</translation>
    </message>
    <message>
        <source>common spread, percent</source>
        <translation>variación común, porcentaje</translation>
    </message>
    <message>
        <source>{} with a missed gate left out</source>
        <translation>{} con salto omitidas</translation>
    </message>
    <message>
        <source>exact Poisson interval, 90 %</source>
        <translation>intervalo exacto de Poisson, 90&#xa0;%</translation>
    </message>
    <message>
        <source>median paddling</source>
        <translation>mediana de paleo</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Tramos</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Recorrido</translation>
    </message>
    <message>
        <source>Upstream gates</source>
        <translation>Remontes</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source> (%1 to %2)</source>
        <translation> (%1 a %2)</translation>
    </message>
    <message>
        <source> (too few)</source>
        <translation> (muy pocas)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Losses and penalties · %1on the reference &quot;%2&quot; · %3</source>
        <translation>Pérdidas y penalizaciones · %1frente a la referencia «%2» · %3</translation>
    </message>
    <message>
        <source>Where time is lost</source>
        <translation>Dónde se pierde tiempo</translation>
    </message>
    <message>
        <source>Seconds a run: gap %1, penalties %2</source>
        <translation>Segundos por manga: diferencia %1, penalizaciones %2</translation>
    </message>
    <message>
        <source>No whole run can be held against this reference.</source>
        <translation>Ninguna manga entera se puede comparar con esta referencia.</translation>
    </message>
    <message>
        <source>%1 more rows are left out.</source>
        <translation>%1 filas más se omiten.</translation>
    </message>
    <message>
        <source>In</source>
        <translation>En</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Mangas</translation>
    </message>
    <message>
        <source>Lost, s</source>
        <translation>Pérd., s</translation>
    </message>
    <message>
        <source>A run, s</source>
        <translation>s/manga</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Porc.</translation>
    </message>
    <message>
        <source>90 % interval</source>
        <translation>Intervalo 90&#xa0;%</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Veredicto</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>muy pocas</translation>
    </message>
    <message>
        <source>%1, run %2, %3 %4</source>
        <translation>%1, manga %2, %3 %4</translation>
    </message>
    <message>
        <source>What to train</source>
        <translation>Qué entrenar</translation>
    </message>
    <message>
        <source>whose whole interval is above 0, by what it costs in a run</source>
        <translation>aquello cuyo intervalo entero está por encima de 0, por lo que cuesta en una manga</translation>
    </message>
    <message>
        <source>Nothing stands out from these runs.</source>
        <translation>En estas mangas no destaca nada.</translation>
    </message>
    <message>
        <source>%1. %2, %3: %4 s a run</source>
        <translation>%1. %2, %3: %4 s por manga</translation>
    </message>
    <message>
        <source>See </source>
        <translation>Véase </translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Puertas</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Toques</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Saltos</translation>
    </message>
    <message>
        <source>Percent, 90 %</source>
        <translation>Porc., 90&#xa0;%</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Tenth of course</source>
        <translation>Décimo del recorrido</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Penalizaciones</translation>
    </message>
    <message>
        <source>No run tells its penalties by gate.</source>
        <translation>Ninguna manga indica sus penalizaciones por puerta.</translation>
    </message>
    <message>
        <source>Noted of %1 %2, shares of those noted:</source>
        <translation>Anotadas de %1 %2, partes de las anotadas:</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>penalización</translation>
    </message>
    <message>
        <source>Penalties by gate</source>
        <translation>Penalizaciones por puerta</translation>
    </message>
    <message>
        <source>and %1 more gates</source>
        <translation>y %1 puertas más</translation>
    </message>
    <message numerus="yes">
        <source>{} missed gates</source>
        <translation>
            <numerusform>{} salto</numerusform>
            <numerusform>{} saltos</numerusform>
        </translation>
    </message>
    <message>
        <source> in </source>
        <translation> en </translation>
    </message>
    <message>
        <source>upstream gate</source>
        <translation>remonte</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>azul</translation>
    </message>
    <message>
        <source>green</source>
        <translation>verde</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>naranja</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rojo</translation>
    </message>
    <message>
        <source>fastest*, %1</source>
        <translation>el más rápido*, %1</translation>
    </message>
    <message>
        <source>%1, slowest, by tenths of the column</source>
        <translation>%1, el más lento, por décimos de la columna</translation>
    </message>
    <message>
        <source>* best of its column, in %1; all others in %2</source>
        <translation>* el mejor de su columna, en %1; todos los demás en %2</translation>
    </message>
    <message>
        <source>Page %1 / %2</source>
        <translation>Página %1 / %2</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sesiones</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>plan</source>
        <translation>plan</translation>
    </message>
    <message>
        <source>listed</source>
        <translation>anotado</translation>
    </message>
    <message>
        <source>Nothing is planned and nothing entered.</source>
        <translation>No hay nada planificado ni introducido.</translation>
    </message>
    <message>
        <source>Season %1</source>
        <translation>Temporada %1</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Semanas</translation>
    </message>
    <message>
        <source>Macrocycles</source>
        <translation>Macrociclos</translation>
    </message>
    <message>
        <source>Weeks with an event</source>
        <translation>Semanas con un evento</translation>
    </message>
    <message>
        <source>Races run</source>
        <translation>Carreras disputadas</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Grupo %1</translation>
    </message>
    <message>
        <source>  ·  %1 of %2 reached</source>
        <translation>  ·  %1 de %2 logrados</translation>
    </message>
    <message>
        <source>Goals of the season</source>
        <translation>Objetivos de la temporada</translation>
    </message>
    <message>
        <source>No week of this season is planned yet.</source>
        <translation>Aún no hay ninguna semana planificada en esta temporada.</translation>
    </message>
    <message>
        <source>Training by category</source>
        <translation>Entrenamiento por categoría</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Días</translation>
    </message>
    <message>
        <source>Macrocycle</source>
        <translation>Macrociclo</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mesociclo</translation>
    </message>
    <message>
        <source>Load, %</source>
        <translation>Carga, %</translation>
    </message>
    <message>
        <source>Event, place</source>
        <translation>Evento, lugar</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Pruebas</translation>
    </message>
    <message>
        <source>Morning</source>
        <translation>Mañana</translation>
    </message>
    <message>
        <source>Afternoon</source>
        <translation>Tarde</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Noche</translation>
    </message>
    <message>
        <source>Any time</source>
        <translation>A cualquier hora</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>continued</source>
        <translation>continuación</translation>
    </message>
    <message>
        <source>Other days</source>
        <translation>Otros días</translation>
    </message>
    <message>
        <source>Training week</source>
        <translation>Semana de entrenamiento</translation>
    </message>
    <message>
        <source>Week %1</source>
        <translation>Semana %1</translation>
    </message>
    <message>
        <source>Goals of the week</source>
        <translation>Objetivos de la semana</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Pen</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Dif.</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Tramo</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Mejor</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Por</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Ideal run without penalties</source>
        <translation>Manga ideal sin penalizaciones</translation>
    </message>
    <message>
        <source>Ideal run</source>
        <translation>Manga ideal</translation>
    </message>
    <message>
        <source>Fastest run</source>
        <translation>Manga más rápida</translation>
    </message>
    <message>
        <source>Split times</source>
        <translation>Tiempos parciales</translation>
    </message>
    <message>
        <source>There are no runs to show.</source>
        <translation>No hay mangas que mostrar.</translation>
    </message>
    <message>
        <source>%1 gates</source>
        <translation>%1 puertas</translation>
    </message>
    <message>
        <source>, %1 upstream</source>
        <translation>, %1 remontes</translation>
    </message>
    <message>
        <source>Race</source>
        <translation>Carrera</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Agua</translation>
    </message>
    <message>
        <source>For comparison</source>
        <translation>Para comparar</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Cat</translation>
    </message>
    <message>
        <source> Grey: not timed as a whole, never a best.</source>
        <translation> Gris: sin cronometrar como un todo, nunca es el mejor.</translation>
    </message>
    <message>
        <source>Split %1</source>
        <translation>Parcial %1</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manga</translation>
    </message>
    <message>
        <source>%1 s of %2 s; strokes are counted of whole sections.</source>
        <translation>%1 s de %2 s; las paladas se cuentan por tramos enteros.</translation>
    </message>
    <message>
        <source>The penalties of this run are not known by gate.</source>
        <translation>Las penalizaciones de esta manga no se conocen por puerta.</translation>
    </message>
    <message>
        <source>Time so far</source>
        <translation>Tiempo hasta aquí</translation>
    </message>
    <message>
        <source>Among all runs</source>
        <translation>Entre todas las mangas</translation>
    </message>
    <message>
        <source>Among all runs of </source>
        <translation>Entre todas las mangas de </translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Puerta</translation>
    </message>
    <message>
        <source>Entrance</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Pérdidas de tiempo</translation>
    </message>
    <message>
        <source>Against</source>
        <translation>Frente a</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>In the run at</source>
        <translation>En la manga en</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Split {}</source>
        <translation>Parcial {}</translation>
    </message>
    <message>
        <source>best</source>
        <translation>mejor</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Paladas</translation>
    </message>
    <message>
        <source>per min</source>
        <translation>por min</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Parcial</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Penalización</translation>
    </message>
    <message>
        <source>on the film</source>
        <translation>en el vídeo</translation>
    </message>
    <message>
        <source>recording</source>
        <translation>grabación</translation>
    </message>
    <message>
        <source>gap and rank among all runs of the category; the run&apos;s with penalties</source>
        <translation>diferencia y puesto entre todas las mangas de la categoría; los de la manga, con penalizaciones</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Parciales</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Recording: </source>
        <translation>Grabación: </translation>
    </message>
    <message>
        <source>third of the final, median</source>
        <translation>tercero de la final, mediana</translation>
    </message>
    <message>
        <source>rank %1: %2 %</source>
        <translation>puesto %1: %2&#xa0;%</translation>
    </message>
    <message>
        <source>own median</source>
        <translation>mediana propia</translation>
    </message>
    <message>
        <source>Medal</source>
        <translation>Medalla</translation>
    </message>
    <message>
        <source>Season </source>
        <translation>Temporada </translation>
    </message>
    <message>
        <source>%1 · %2 races · intervals are 90 %</source>
        <translation>%1 · %2 carreras · los intervalos son del 90&#xa0;%</translation>
    </message>
    <message>
        <source>Percent behind the winner</source>
        <translation>Porcentaje respecto al ganador</translation>
    </message>
    <message>
        <source>Percent behind the fastest splits</source>
        <translation>Porcentaje respecto a los parciales más rápidos</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Carreras</translation>
    </message>
    <message>
        <source>Reached</source>
        <translation>Alcanzado</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Medallas</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finales</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Semifinales</translation>
    </message>
    <message>
        <source>Medals and finals</source>
        <translation>Medallas y finales</translation>
    </message>
    <message>
        <source>Change, below 0 is faster</source>
        <translation>Cambio; menos de 0 es más rápido</translation>
    </message>
    <message>
        <source>A year on the winner</source>
        <translation>Por año, al ganador</translation>
    </message>
    <message>
        <source>A year on the splits</source>
        <translation>Por año, en parciales</translation>
    </message>
    <message>
        <source>Run 1 to run 2</source>
        <translation>Manga 1 a manga 2</translation>
    </message>
    <message>
        <source>Semifinal to final</source>
        <translation>Semifinal a final</translation>
    </message>
    <message>
        <source>Heats to final, behind</source>
        <translation>Clasificatoria a final</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>Ahead of</source>
        <translation>Por delante de</translation>
    </message>
    <message>
        <source>Met</source>
        <translation>Coinc.</translation>
    </message>
    <message>
        <source>Head to head</source>
        <translation>Cara a cara</translation>
    </message>
    <message>
        <source>What a rank of the final took</source>
        <translation>Qué hizo falta para un puesto de la final</translation>
    </message>
    <message>
        <source>%1 athletes · intervals are 90 %</source>
        <translation>%1 deportistas · los intervalos son del 90&#xa0;%</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Deportista</translation>
    </message>
    <message>
        <source>Chance, %</source>
        <translation>Prob., %</translation>
    </message>
    <message>
        <source>% a year</source>
        <translation>% al año</translation>
    </message>
    <message>
        <source>On the splits</source>
        <translation>En parciales</translation>
    </message>
    <message>
        <source>On the winner</source>
        <translation>Al ganador</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Deportistas</translation>
    </message>
    <message>
        <source>What a rank took: </source>
        <translation>Qué hizo falta para un puesto: </translation>
    </message>
    <message>
        <source>Expected places</source>
        <translation>Puestos esperados</translation>
    </message>
    <message>
        <source>best %1</source>
        <translation>mejor %1</translation>
    </message>
    <message>
        <source> · races %1 to %2</source>
        <translation> · carreras %1 a %2</translation>
    </message>
    <message>
        <source>, continued</source>
        <translation>, continuación</translation>
    </message>
    <message>
        <source>Pos</source>
        <translation>Pos</translation>
    </message>
    <message>
        <source>SURNAME Name</source>
        <translation>APELLIDO Nombre</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Club</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>xTime</source>
        <translation>xTime</translation>
    </message>
    <message>
        <source>Bonus</source>
        <translation>Bonificación</translation>
    </message>
    <message>
        <source>x Score</source>
        <translation>x Punt.</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Puntuación</translation>
    </message>
    <message>
        <source>Percent behind the best of the race and category. </source>
        <translation>Porcentaje respecto al mejor de la carrera y la categoría. </translation>
    </message>
    <message>
        <source>Percent behind the best expected time of the race and category. </source>
        <translation>Porcentaje respecto al mejor tiempo esperado de la carrera y la categoría. </translation>
    </message>
    <message>
        <source>The worst result is struck through and does not count</source>
        <translation>El peor resultado aparece tachado y no cuenta</translation>
    </message>
    <message>
        <source>; with a bonus the two worst. </source>
        <translation>; con bonificación, los dos peores. </translation>
    </message>
    <message>
        <source>Score: the sum of the others divided by three. %1: no result, P: preselected.</source>
        <translation>Puntuación: la suma de los demás dividida por tres. %1: sin resultado, P: preseleccionado.</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>Kind %1</source>
        <translation>Tipo %1</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Place and date</source>
        <translation>Lugar y fecha</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>the median of each column</source>
        <translation>la mediana de cada columna</translation>
    </message>
    <message>
        <source>the ideal run</source>
        <translation>la manga ideal</translation>
    </message>
    <message>
        <source>the best of each column</source>
        <translation>el mejor de cada columna</translation>
    </message>
    <message>
        <source>Gaps in seconds to %1.</source>
        <translation>Diferencias en segundos con %1.</translation>
    </message>
    <message>
        <source>Places within each column.</source>
        <translation>Puestos en cada columna.</translation>
    </message>
    <message>
        <source>Percent behind the best of each column.</source>
        <translation>Porcentaje respecto al mejor de cada columna.</translation>
    </message>
    <message>
        <source>Percentiles of each column; the best has 100.</source>
        <translation>Percentiles de cada columna; el mejor tiene 100.</translation>
    </message>
    <message>
        <source>Times from the start, without penalties.</source>
        <translation>Tiempos desde la salida, sin penalizaciones.</translation>
    </message>
    <message>
        <source>Penalties are included in sections and total.</source>
        <translation>Las penalizaciones están incluidas en los tramos y en el total.</translation>
    </message>
    <message>
        <source>Penalties are not included.</source>
        <translation>Las penalizaciones no están incluidas.</translation>
    </message>
    <message>
        <source>Penalty seconds in brackets.</source>
        <translation>Segundos de penalización entre paréntesis.</translation>
    </message>
    <message>
        <source>Compared among all %1 runs.</source>
        <translation>Comparado entre las %1 mangas.</translation>
    </message>
    <message>
        <source>Final position</source>
        <translation>Posición final</translation>
    </message>
    <message>
        <source>No athlete of this category comes into question.</source>
        <translation>Ningún deportista de esta categoría entra en consideración.</translation>
    </message>
    <message>
        <source>medals</source>
        <translation>medallas</translation>
    </message>
    <message>
        <source>championship medals</source>
        <translation>medallas de campeonato</translation>
    </message>
    <message>
        <source>top 6</source>
        <translation>6 primeros</translation>
    </message>
    <message>
        <source>top 15</source>
        <translation>15 primeros</translation>
    </message>
    <message>
        <source>What counts is summed and divided by three, however many races there were.</source>
        <translation>Lo que cuenta se suma y se divide por tres, por muchas carreras que haya.</translation>
    </message>
    <message>
        <source>Σ counted / 3</source>
        <translation>Σ contados / 3</translation>
    </message>
    <message>
        <source>the rules of the selection</source>
        <translation>las normas del selectivo</translation>
    </message>
    <message>
        <source>The results and the bonus that count.</source>
        <translation>Los resultados y la bonificación que cuentan.</translation>
    </message>
    <message>
        <source>Σ counted</source>
        <translation>Σ contados</translation>
    </message>
    <message>
        <source>Counts in the score.</source>
        <translation>Cuenta en la puntuación.</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>porcentaje</translation>
    </message>
    <message>
        <source>Dropped: the worst result of all.</source>
        <translation>Descartado: el peor resultado de todos.</translation>
    </message>
    <message>
        <source>not in the score</source>
        <translation>no está en la puntuación</translation>
    </message>
    <message>
        <source>Dropped too: a bonus stands among the results.</source>
        <translation>Descartado también: entre los resultados hay una bonificación.</translation>
    </message>
    <message>
        <source>How far behind the best of the category in this race, with penalties.</source>
        <translation>Diferencia con el mejor de la categoría en esta carrera, con penalizaciones.</translation>
    </message>
    <message>
        <source>100 · ((time + penalties) / best − 1)</source>
        <translation>100 · ((tiempo + penalizaciones) / mejor − 1)</translation>
    </message>
    <message>
        <source>A race without a result stands for this much.</source>
        <translation>Una carrera sin resultado equivale a esto.</translation>
    </message>
    <message>
        <source>999.99</source>
        <translation>999.99</translation>
    </message>
    <message>
        <source>More than two medals, or one at a championship, in the first two seasons.</source>
        <translation>Más de dos medallas, o una en un campeonato, en las dos primeras temporadas.</translation>
    </message>
    <message>
        <source>medals &gt; 2 or championship medals ≥ 1</source>
        <translation>medallas &gt; 2 o medallas de campeonato ≥ 1</translation>
    </message>
    <message>
        <source>the rules of the categorization</source>
        <translation>las normas de la categorización</translation>
    </message>
    <message>
        <source>Three times among the first six in the first two seasons.</source>
        <translation>Tres veces entre los seis primeros en las dos primeras temporadas.</translation>
    </message>
    <message>
        <source>top 6 ≥ 3</source>
        <translation>6 primeros ≥ 3</translation>
    </message>
    <message>
        <source>Four times among the first fifteen in the first two seasons.</source>
        <translation>Cuatro veces entre los quince primeros en las dos primeras temporadas.</translation>
    </message>
    <message>
        <source>top 15 ≥ 4</source>
        <translation>15 primeros ≥ 4</translation>
    </message>
    <message>
        <source>None of the other levels is reached in the first two seasons.</source>
        <translation>En las dos primeras temporadas no se alcanza ninguno de los otros niveles.</translation>
    </message>
    <message>
        <source>otherwise</source>
        <translation>en otro caso</translation>
    </message>
    <message>
        <source>Races with a final position of 1 to 3.</source>
        <translation>Carreras con una posición final de 1 a 3.</translation>
    </message>
    <message>
        <source>count</source>
        <translation>cuenta</translation>
    </message>
    <message>
        <source>Races with a final position of 1 to 6.</source>
        <translation>Carreras con una posición final de 1 a 6.</translation>
    </message>
    <message>
        <source>Races with a final position of 1 to 15.</source>
        <translation>Carreras con una posición final de 1 a 15.</translation>
    </message>
    <message>
        <source>Races with a final position.</source>
        <translation>Carreras con una posición final.</translation>
    </message>
    <message>
        <source>What the run would have taken at its usual distance from the best times.</source>
        <translation>Lo que habría tardado la manga a su distancia habitual de los mejores tiempos.</translation>
    </message>
    <message>
        <source>factor · perfect time</source>
        <translation>factor · tiempo perfecto</translation>
    </message>
    <message>
        <source>How far its times stand above the best ones, without the outermost.</source>
        <translation>Cuánto superan sus tiempos a los mejores, sin los extremos.</translation>
    </message>
    <message>
        <source>mean of the ratios that are left</source>
        <translation>media de las razones que quedan</translation>
    </message>
    <message>
        <source>A time of the run against the best of all runs there.</source>
        <translation>Un tiempo de la manga frente al mejor de todas las mangas ahí.</translation>
    </message>
    <message>
        <source>own / best</source>
        <translation>propio / mejor</translation>
    </message>
    <message>
        <source>The best times of all runs, put together.</source>
        <translation>Los mejores tiempos de todas las mangas, reunidos.</translation>
    </message>
    <message>
        <source>factor</source>
        <translation>factor</translation>
    </message>
    <message>
        <source>perfect time</source>
        <translation>tiempo perfecto</translation>
    </message>
    <message>
        <source>ratios that are left</source>
        <translation>razones que quedan</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Lado a lado</translation>
    </message>
    <message>
        <source>Above each other</source>
        <translation>Uno encima de otro</translation>
    </message>
    <message>
        <source>Two by two</source>
        <translation>Dos por dos</translation>
    </message>
    <message>
        <source>One within the other</source>
        <translation>Uno dentro de otro</translation>
    </message>
    <message>
        <source>Ghost: seen through</source>
        <translation>Fantasma: translúcido</translation>
    </message>
    <message>
        <source>Left and right of a line</source>
        <translation>A izquierda y derecha de una línea</translation>
    </message>
    <message>
        <source>at the start</source>
        <translation>en la salida</translation>
    </message>
    <message>
        <source>at one split</source>
        <translation>en un parcial</translation>
    </message>
    <message>
        <source>at every split, waiting</source>
        <translation>en cada parcial, esperando</translation>
    </message>
    <message>
        <source>at every split, stretched</source>
        <translation>en cada parcial, estirado</translation>
    </message>
    <message>
        <source>the whole run</source>
        <translation>la manga entera</translation>
    </message>
    <message>
        <source>from split to split</source>
        <translation>de parcial a parcial</translation>
    </message>
    <message>
        <source>Combination</source>
        <translation>Combinación</translation>
    </message>
    <message>
        <source>Enter plays both films</source>
        <translation>Intro reproduce los dos vídeos</translation>
    </message>
    <message>
        <source>No film is known here</source>
        <translation>Aquí no se conoce ningún vídeo</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Own time less the reference&apos;s; all of them add up to what is shown on top</source>
        <translation>Tiempo propio menos el de la referencia; todos suman lo que se muestra arriba</translation>
    </message>
    <message>
        <source>Between</source>
        <translation>Entre ellas</translation>
    </message>
    <message>
        <source>Lost outside the upstream gates</source>
        <translation>Perdido fuera de los remontes</translation>
    </message>
    <message>
        <source>Reference&apos;s strokes</source>
        <translation>Paladas de la referencia</translation>
    </message>
    <message>
        <source>Own seconds of penalty in the section</source>
        <translation>Segundos propios de penalización en el tramo</translation>
    </message>
    <message>
        <source>A tick makes the run what all are held against</source>
        <translation>Marcar una manga hace que todas se comparen con ella</translation>
    </message>
    <message>
        <source>Paddling</source>
        <translation>Paleo</translation>
    </message>
    <message>
        <source>Timing</source>
        <translation>Cronometraje</translation>
    </message>
    <message>
        <source>On expected time</source>
        <translation>Sobre esperado</translation>
    </message>
    <message>
        <source>Time without penalties less the expected time</source>
        <translation>Tiempo sin penalizaciones menos el tiempo esperado</translation>
    </message>
    <message>
        <source>Lost up to the pole line</source>
        <translation>Perdido hasta la línea de la puerta</translation>
    </message>
    <message>
        <source>Lost from the pole line on</source>
        <translation>Perdido desde la línea de la puerta</translation>
    </message>
    <message>
        <source>Noted</source>
        <translation>Anotado</translation>
    </message>
    <message>
        <source>not noted</source>
        <translation>sin anotar</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Coste</translation>
    </message>
    <message>
        <source>Seconds of the chosen way over the fastest one timed</source>
        <translation>Segundos de la trazada elegida por encima de la más rápida cronometrada</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Turning rate (left above 0)</source>
        <translation>Velocidad de giro (izquierda mayor que 0)</translation>
    </message>
    <message>
        <source>Turning</source>
        <translation>Velocidad de giro</translation>
    </message>
    <message>
        <source>Roll (starboard down above 0)</source>
        <translation>Balanceo (estribor abajo mayor que 0)</translation>
    </message>
    <message>
        <source>Pitch (bow up above 0)</source>
        <translation>Cabeceo (proa arriba mayor que 0)</translation>
    </message>
    <message>
        <source>Speed by position</source>
        <translation>Velocidad por posición</translation>
    </message>
    <message>
        <source>Hull speed, estimated</source>
        <translation>Velocidad del casco, estimada</translation>
    </message>
    <message>
        <source>Hull speed</source>
        <translation>Velocidad del casco</translation>
    </message>
    <message>
        <source>Watch acceleration</source>
        <translation>Aceleración del reloj</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>Reloj</translation>
    </message>
    <message>
        <source>Acceleration of the phone, x</source>
        <translation>Aceleración del teléfono, x</translation>
    </message>
    <message>
        <source>Acceleration x</source>
        <translation>Aceleración x</translation>
    </message>
    <message>
        <source>Acceleration of the phone, y</source>
        <translation>Aceleración del teléfono, y</translation>
    </message>
    <message>
        <source>Acceleration y</source>
        <translation>Aceleración y</translation>
    </message>
    <message>
        <source>Acceleration of the phone, z</source>
        <translation>Aceleración del teléfono, z</translation>
    </message>
    <message>
        <source>Acceleration z</source>
        <translation>Aceleración z</translation>
    </message>
    <message>
        <source>Rotation of the phone, x</source>
        <translation>Rotación del teléfono, x</translation>
    </message>
    <message>
        <source>Rotation x</source>
        <translation>Rotación x</translation>
    </message>
    <message>
        <source>Rotation of the phone, y</source>
        <translation>Rotación del teléfono, y</translation>
    </message>
    <message>
        <source>Rotation y</source>
        <translation>Rotación y</translation>
    </message>
    <message>
        <source>Rotation of the phone, z</source>
        <translation>Rotación del teléfono, z</translation>
    </message>
    <message>
        <source>Rotation z</source>
        <translation>Rotación z</translation>
    </message>
    <message>
        <source>by gate</source>
        <translation>por puerta</translation>
    </message>
    <message>
        <source>by type of gate</source>
        <translation>por tipo de puerta</translation>
    </message>
    <message>
        <source>by tenth of the course</source>
        <translation>por décimo del recorrido</translation>
    </message>
    <message>
        <source>by section</source>
        <translation>por tramo</translation>
    </message>
    <message>
        <source>by crew</source>
        <translation>por tripulación</translation>
    </message>
    <message>
        <source>by category</source>
        <translation>por categoría</translation>
    </message>
    <message>
        <source>by phase</source>
        <translation>por fase</translation>
    </message>
    <message>
        <source>by race</source>
        <translation>por carrera</translation>
    </message>
    <message>
        <source>by month</source>
        <translation>por mes</translation>
    </message>
    <message>
        <source>by hand</source>
        <translation>por mano</translation>
    </message>
    <message>
        <source>Tenth</source>
        <translation>Décimo</translation>
    </message>
    <message>
        <source>Se&amp;gments</source>
        <translation>Se&amp;gmentos</translation>
    </message>
    <message>
        <source>&amp;Left and right</source>
        <translation>&amp;Izquierda y derecha</translation>
    </message>
    <message>
        <source>Whole numbers</source>
        <translation>Números enteros</translation>
    </message>
    <message>
        <source>Decimal numbers</source>
        <translation>Números decimales</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Tiempos</translation>
    </message>
    <message>
        <source>DNF and the like</source>
        <translation>DNF y similares</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Penalty missing</source>
        <translation>Falta penalización</translation>
    </message>
    <message>
        <source>Penalty too many</source>
        <translation>Sobra penalización</translation>
    </message>
    <message>
        <source>Bibs swapped</source>
        <translation>Dorsales cambiados</translation>
    </message>
    <message>
        <source>No result</source>
        <translation>Sin resultado</translation>
    </message>
    <message>
        <source>Not finished</source>
        <translation>Sin terminar</translation>
    </message>
    <message>
        <source>Not in list</source>
        <translation>No está en la lista</translation>
    </message>
    <message>
        <source>Not filmed</source>
        <translation>Sin vídeo</translation>
    </message>
    <message>
        <source>Average:</source>
        <translation>Media:</translation>
    </message>
    <message>
        <source>Average variation:</source>
        <translation>Variación media:</translation>
    </message>
    <message>
        <source>Total variation:</source>
        <translation>Variación total:</translation>
    </message>
    <message>
        <source>Average increase:</source>
        <translation>Aumento medio:</translation>
    </message>
    <message>
        <source>Total increase:</source>
        <translation>Aumento total:</translation>
    </message>
    <message>
        <source>Lap time</source>
        <translation>Tiempo de vuelta</translation>
    </message>
    <message>
        <source>Time in straight line</source>
        <translation>Tiempo en línea recta</translation>
    </message>
    <message>
        <source>Time in rotation</source>
        <translation>Tiempo en rotación</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Velocidad media</translation>
    </message>
    <message>
        <source>Maximum acceleration</source>
        <translation>Aceleración máxima</translation>
    </message>
    <message>
        <source>Average acceleration</source>
        <translation>Aceleración media</translation>
    </message>
    <message>
        <source>Average deacceleration</source>
        <translation>Deceleración media</translation>
    </message>
    <message>
        <source>Roll movement</source>
        <translation>Movimiento de balanceo</translation>
    </message>
    <message>
        <source>Roll (°)</source>
        <translation>Balanceo (°)</translation>
    </message>
    <message>
        <source>Maximum force</source>
        <translation>Fuerza máxima</translation>
    </message>
    <message>
        <source>Impulse (N s)</source>
        <translation>Impulso (N s)</translation>
    </message>
    <message>
        <source>Largest negative acceleration</source>
        <translation>Mayor aceleración negativa</translation>
    </message>
    <message>
        <source>Negative acceleration (m/s2)</source>
        <translation>Aceleración negativa (m/s2)</translation>
    </message>
    <message>
        <source>Effective water phase</source>
        <translation>Fase acuática efectiva</translation>
    </message>
    <message>
        <source>Rotation about the vertical axis</source>
        <translation>Rotación alrededor del eje vertical</translation>
    </message>
    <message>
        <source>Turns to the left are above 0, turns to the right below.</source>
        <translation>Los giros a la izquierda son mayores que 0; los giros a la derecha, menores.</translation>
    </message>
    <message>
        <source>The film {} is left out: its name is no UTF-8 text.</source>
        <translation>El vídeo {} se omite: su nombre no es texto UTF-8.</translation>
    </message>
    <message>
        <source>The folder {} cannot be read: {}</source>
        <translation>La carpeta {} no se puede leer: {}</translation>
    </message>
    <message>
        <source>No video in {} carries the name {}. Nothing was written.</source>
        <translation>Ningún vídeo de {} lleva el nombre {}. No se ha escrito nada.</translation>
    </message>
    <message>
        <source>The file {} exists already. Say --replace to write a new one in its place.</source>
        <translation>El archivo {} ya existe. Con --replace se escribe uno nuevo en su lugar.</translation>
    </message>
    <message>
        <source>This call needs the program that paints and makes films, which could not be started: {}</source>
        <translation>Esta llamada necesita el programa que dibuja y hace vídeos, y no se pudo iniciar: {}</translation>
    </message>
    <message>
        <source>The file {} exists and is not the sample&apos;s. Choose another folder.</source>
        <translation>El archivo {} existe y no es del ejemplo. Elige otra carpeta.</translation>
    </message>
    <message>
        <source>The file {} could not be written: {}</source>
        <translation>El archivo {} no se pudo escribir: {}</translation>
    </message>
    <message>
        <source>The file {} is none of these tables and stays as it is. Nothing was written.</source>
        <translation>El archivo {} no es ninguna de estas tablas y se queda como está. No se ha escrito nada.</translation>
    </message>
    <message>
        <source>The folder {} could not be made: {}</source>
        <translation>La carpeta {} no se pudo crear: {}</translation>
    </message>
    <message>
        <source>Line {}: {}, and was imported as it stands.</source>
        <translation>Línea {}: {}, y se importó tal como está.</translation>
    </message>
    <message>
        <source>There is no run {}: the file has {}, counted from 0.</source>
        <translation>No hay manga {}: el archivo tiene {}, contadas desde 0.</translation>
    </message>
    <message>
        <source>No run has the category &quot;{}&quot;.{}</source>
        <translation>Ninguna manga tiene la categoría «{}».{}</translation>
    </message>
    <message>
        <source>Nobody of the team races in &quot;{}&quot;. Categories: {}.</source>
        <translation>Nadie del equipo compite en «{}». Categorías: {}.</translation>
    </message>
    <message>
        <source>Several athletes of the team are called {}: their runs cannot be told apart.</source>
        <translation>Varios deportistas del equipo se llaman {}: sus mangas no se pueden distinguir.</translation>
    </message>
    <message>
        <source>The file {} is of an older version, {}, and was not changed. Bring it to the current one first: kavela upgrade {}</source>
        <translation>El archivo {} es de una versión anterior, {}, y no se ha modificado. Llévalo antes a la actual: kavela upgrade {}</translation>
    </message>
    <message>
        <source>The time of {} ({}) in {} is 0; a missing result should be 999.9.</source>
        <translation>El tiempo de {} ({}) en {} es 0; un resultado ausente debería ser 999.9.</translation>
    </message>
    <message>
        <source>No athlete has a bonus of kind {}.</source>
        <translation>Ningún deportista tiene una bonificación del tipo {}.</translation>
    </message>
    <message>
        <source>The list {} is no UTF-8 text and was read as Latin-1: look at the names.</source>
        <translation>La lista {} no es texto UTF-8 y se leyó como Latin-1: revisa los nombres.</translation>
    </message>
    <message>
        <source>The list {} could not be read: {}</source>
        <translation>La lista {} no se pudo leer: {}</translation>
    </message>
    <message>
        <source>{} of {} skipped.</source>
        <translation>{} de {} sin tomar.</translation>
    </message>
    <message>
        <source>Line {} brought the category {} into the selection{}</source>
        <translation>La línea {} introdujo la categoría {} en el selectivo{}</translation>
    </message>
    <message>
        <source>No run has the {} &quot;{}&quot;. There is {}.</source>
        <translation>Ninguna manga tiene {} «{}». Hay {}.</translation>
    </message>
    <message>
        <source>There is no file and no command {}. Run with --help for the commands.</source>
        <translation>No hay ningún archivo ni comando {}. Con --help se ven los comandos.</translation>
    </message>
    <message>
        <source>The desktop program could not be started: {}</source>
        <translation>El programa de escritorio no se pudo iniciar: {}</translation>
    </message>
    <message>
        <source>{}: this is its {}; it carries {} too (--sheet).</source>
        <translation>{}: esta es su lista {}; lleva también {} (--sheet).</translation>
    </message>
    <message>
        <source>Line {}, {}: perhaps {}; not joined.</source>
        <translation>Línea {}, {}: quizá {}; no se ha unido.</translation>
    </message>
    <message>
        <source>{}: this is no team: {}</source>
        <translation>{}: no es un equipo: {}</translation>
    </message>
    <message>
        <source>The team has no athlete {}.</source>
        <translation>El equipo no tiene al deportista {}.</translation>
    </message>
    <message>
        <source>{} does not race in {}. Categories: {}.</source>
        <translation>{} no compite en {}. Categorías: {}.</translation>
    </message>
    <message>
        <source>The file could not be read: {}</source>
        <translation>El archivo no se pudo leer: {}</translation>
    </message>
    <message>
        <source>There is no number with the id &quot;{}&quot; here.</source>
        <translation>Aquí no hay ningún número con el identificador «{}».</translation>
    </message>
    <message>
        <source>losing</source>
        <translation>pierde</translation>
    </message>
    <message>
        <source>gaining</source>
        <translation>gana</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>no está claro</translation>
    </message>
    <message>
        <source>slower</source>
        <translation>más lento</translation>
    </message>
    <message>
        <source>circle: heats, triangle: semifinal, square: final</source>
        <translation>círculo: clasificatoria, triángulo: semifinal, cuadrado: final</translation>
    </message>
    <message>
        <source>{:.0f} to {:.0f}</source>
        <translation>{:.0f} a {:.0f}</translation>
    </message>
    <message>
        <source>of the races whose result is known</source>
        <translation>de las carreras cuyo resultado se conoce</translation>
    </message>
    <message>
        <source>too few runs to tell what is chance</source>
        <translation>muy pocas mangas para decir qué es azar</translation>
    </message>
    <message>
        <source>chance from run to run {:.1f} %, all {:.1f} %; {:.2f} % matters</source>
        <translation>azar de manga a manga {:.1f}&#xa0;%, todos {:.1f}&#xa0;%; importa un {:.2f}&#xa0;%</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>One-repetition maximum</source>
        <translation>Máximo de una repetición</translation>
    </message>
    <message>
        <source>Prints what a shell completes calls by</source>
        <translation>Escribe lo que una shell usa para completar las llamadas</translation>
    </message>
    <message>
        <source>Prints the page of the manual</source>
        <translation>Escribe la página del manual</translation>
    </message>
    <message>
        <source>The page cannot be written over a file that it is made from.</source>
        <translation>La página no se puede escribir encima de un archivo del que se hace.</translation>
    </message>
    <message>
        <source>Writes the page of an athlete for a telephone, one HTML file</source>
        <translation>Escribe la página de un deportista para el teléfono, un archivo HTML</translation>
    </message>
    <message>
        <source>Split files (.kvx) of any release, and folders of them; several make a season</source>
        <translation>Archivos de parciales (.kvx) de cualquier versión, y carpetas con ellos; varios forman una temporada</translation>
    </message>
    <message>
        <source>Whose page; a crew as &quot;A / B&quot;</source>
        <translation>De quién es la página; una tripulación como &quot;A / B&quot;</translation>
    </message>
    <message>
        <source>File to write, ending in .html</source>
        <translation>Archivo que escribir, terminado en .html</translation>
    </message>
    <message>
        <source>Cut the athlete&apos;s runs out of their films into the folder of the page</source>
        <translation>Cortar las mangas del deportista de sus vídeos a la carpeta de la página</translation>
    </message>
    <message>
        <source>Shares a folder with a server, both ways</source>
        <translation>Comparte una carpeta con un servidor, en ambos sentidos</translation>
    </message>
    <message>
        <source>The folder on this computer</source>
        <translation>La carpeta de este ordenador</translation>
    </message>
    <message>
        <source>Address of the folder on the server</source>
        <translation>Dirección de la carpeta en el servidor</translation>
    </message>
    <message>
        <source>User name for the server</source>
        <translation>Nombre de usuario para el servidor</translation>
    </message>
    <message>
        <source>Only print what would be done</source>
        <translation>Solo mostrar lo que se haría</translation>
    </message>
    <message>
        <source>Do not ask before anything is done</source>
        <translation>No preguntar antes de hacer nada</translation>
    </message>
    <message>
        <source>Delete on each side what was deleted on the other and not changed since</source>
        <translation>Borrar en cada lado lo que se borró en el otro y no ha cambiado desde entonces</translation>
    </message>
    <message>
        <source>Print JSON; nothing is asked</source>
        <translation>Escribir JSON; no se pregunta nada</translation>
    </message>
    <message>
        <source>Shows what stood on a line of a film over time, as a picture</source>
        <translation>Muestra lo que hubo en una línea de un vídeo a lo largo del tiempo, como imagen</translation>
    </message>
    <message>
        <source>Film of a camera that stands still</source>
        <translation>Vídeo de una cámara fija</translation>
    </message>
    <message>
        <source>X1,Y1,X2,Y2: the ends of the line in pixels</source>
        <translation>X1,Y1,X2,Y2: los extremos de la línea en píxeles</translation>
    </message>
    <message>
        <source>Picture to write (.png)</source>
        <translation>Imagen que escribir (.png)</translation>
    </message>
    <message>
        <source>Print the frame and stamp of every column as JSON</source>
        <translation>Escribir como JSON el fotograma y el instante de cada columna</translation>
    </message>
    <message>
        <source>Look for boats that cross the line</source>
        <translation>Buscar barcos que cruzan la línea</translation>
    </message>
    <message>
        <source>X,Y,WIDTH,HEIGHT: a box round one boat, for --proposals</source>
        <translation>X,Y,ANCHO,ALTO: un recuadro alrededor de un barco, para --proposals</translation>
    </message>
    <message>
        <source>Where boats come from: left or right of the line</source>
        <translation>De dónde vienen los barcos: izquierda o derecha de la línea</translation>
    </message>
    <message>
        <source>Nothing to do: name a picture with -o, or ask for --json or --proposals.</source>
        <translation>Nada que hacer: indica una imagen con -o, o pide --json o --proposals.</translation>
    </message>
    <message>
        <source>--proposals needs a box round one boat: --boat X,Y,WIDTH,HEIGHT.</source>
        <translation>--proposals necesita un recuadro alrededor de un barco: --boat X,Y,ANCHO,ALTO.</translation>
    </message>
    <message>
        <source>Follows a boat, gate or head through a film, as a table</source>
        <translation>Sigue un barco, una puerta o una cabeza por un vídeo, como tabla</translation>
    </message>
    <message>
        <source>Film to look at</source>
        <translation>Vídeo que mirar</translation>
    </message>
    <message>
        <source>What is followed: X,Y,WIDTH,HEIGHT in pixels of the picture, from its upper left corner</source>
        <translation>Lo que se sigue: X,Y,ANCHO,ALTO en píxeles de la imagen, desde su esquina superior izquierda</translation>
    </message>
    <message>
        <source>Second of the film at which the box was drawn</source>
        <translation>Segundo del vídeo en el que se dibujó el recuadro</translation>
    </message>
    <message>
        <source>Second at which following ends; otherwise where it is lost, or the film ends</source>
        <translation>Segundo en el que termina el seguimiento; si no, donde se pierde o acaba el vídeo</translation>
    </message>
    <message>
        <source>Known points on the water (.json), for metres and speeds</source>
        <translation>Puntos conocidos en el agua (.json), para metros y velocidades</translation>
    </message>
    <message>
        <source>File to write (.csv)</source>
        <translation>Archivo que escribir (.csv)</translation>
    </message>
    <message>
        <source>In some frames the camera&apos;s motion is not known: too little of the picture stands still. They have no steadied place.</source>
        <translation>En algunos fotogramas no se conoce el movimiento de la cámara: demasiado poco de la imagen está quieto. No tienen lugar estabilizado.</translation>
    </message>
    <message>
        <source>Metres hold for what is on the water; a head is above it.</source>
        <translation>Los metros valen para lo que está en el agua; una cabeza está por encima.</translation>
    </message>
    <message>
        <source>Two known points give a scale only: lengths and speeds hold near them and along the line between them.</source>
        <translation>Dos puntos conocidos solo dan una escala: longitudes y velocidades valen cerca de ellos y a lo largo de la línea que los une.</translation>
    </message>
    <message>
        <source>What was deleted on one side stays on the other: --delete deletes it there.</source>
        <translation>Lo que se borró en un lado se queda en el otro: --delete lo borra allí.</translation>
    </message>
    <message>
        <source>The server wants a user name: --user tells it.</source>
        <translation>El servidor pide un nombre de usuario: se indica con --user.</translation>
    </message>
    <message numerus="yes">
        <source>{} columns</source>
        <translation>
            <numerusform>{} columna</numerusform>
            <numerusform>{} columnas</numerusform>
        </translation>
    </message>
    <message>
        <source>Explain one number instead: loss/RUN/winner/5, gap/RUN/ideal, total/RUN, place/RUN, strokes/RUN/5, …</source>
        <translation>Explicar en su lugar un número: loss/RUN/winner/5, gap/RUN/ideal, total/RUN, place/RUN, strokes/RUN/5, …</translation>
    </message>
    <message>
        <source>The finished notes that name it.</source>
        <translation>Las notas terminadas que lo nombran.</translation>
    </message>
    <message>
        <source>number of notes</source>
        <translation>número de notas</translation>
    </message>
    <message>
        <source>whole</source>
        <translation>número entero</translation>
    </message>
    <message>
        <source>decimal</source>
        <translation>número decimal</translation>
    </message>
    <message>
        <source>status</source>
        <translation>estado</translation>
    </message>
    <message>
        <source>date</source>
        <translation>fecha</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>Add {}</source>
        <translation>Añadir {}</translation>
    </message>
    <message>
        <source>Colour {}</source>
        <translation>Colorear {}</translation>
    </message>
    <message>
        <source>First line is a row</source>
        <translation>La primera línea es una fila</translation>
    </message>
    <message>
        <source>First line is titles</source>
        <translation>La primera línea son títulos</translation>
    </message>
    <message>
        <source>Group by {}</source>
        <translation>Agrupar por {}</translation>
    </message>
    <message>
        <source>Keep {} in {}</source>
        <translation>Conservar {} en {}</translation>
    </message>
    <message>
        <source>Leave out {}</source>
        <translation>Omitir {}</translation>
    </message>
    <message>
        <source>No colours in {}</source>
        <translation>Sin colores en {}</translation>
    </message>
    <message>
        <source>No groups</source>
        <translation>Sin grupos</translation>
    </message>
    <message>
        <source>Pivot of {} by {}</source>
        <translation>Tabla dinámica de {} por {}</translation>
    </message>
    <message>
        <source>Read {} as {}</source>
        <translation>Leer {} como {}</translation>
    </message>
    <message>
        <source>Sort by {}</source>
        <translation>Ordenar por {}</translation>
    </message>
    <message>
        <source>Sort by {}, downwards</source>
        <translation>Ordenar por {}, descendente</translation>
    </message>
    <message>
        <source>Medals most often: {}, {} of {} ({:.0f}–{:.0f} %).</source>
        <translation>Más medallas: {}, {} de {} ({:.0f}–{:.0f}&#xa0;%).</translation>
    </message>
    <message>
        <source>In finals most often: {}, {} of {} ({:.0f}–{:.0f} %).</source>
        <translation>Más veces en finales: {}, {} de {} ({:.0f}–{:.0f}&#xa0;%).</translation>
    </message>
    <message>
        <source>In semifinals most often: {}, {} of {} ({:.0f}–{:.0f} %).</source>
        <translation>Más veces en semifinales: {}, {} de {} ({:.0f}–{:.0f}&#xa0;%).</translation>
    </message>
    <message>
        <source>No fastest split of {}&apos;s races is known.</source>
        <translation>De las carreras de {} no se conoce ningún parcial más rápido.</translation>
    </message>
    <message>
        <source>No winner of {}&apos;s races is known.</source>
        <translation>De las carreras de {} no se conoce ningún ganador.</translation>
    </message>
    <message>
        <source>No penalty of a whole run is known by gate.</source>
        <translation>De ninguna manga completa se conocen las penalizaciones por puerta.</translation>
    </message>
    <message>
        <source>No race of the team has a result that says so.</source>
        <translation>Ninguna carrera del equipo tiene un resultado que lo diga.</translation>
    </message>
    <message>
        <source>No whole run is known by gate.</source>
        <translation>No se conoce ninguna manga completa por puertas.</translation>
    </message>
    <message>
        <source>Nobody&apos;s penalties are known by gate.</source>
        <translation>No se conocen las penalizaciones de nadie por puerta.</translation>
    </message>
    <message>
        <source>Noted in detail: {} of {}. Shares of what was noted, no rates: nobody notes how gates are passed clean.</source>
        <translation>Anotadas con detalle: {} de {}. Son partes de lo anotado, no frecuencias: nadie anota cómo se pasan las puertas sin penalizar.</translation>
    </message>
    <message>
        <source>Noted in detail: {} of {}. Too few to tell.</source>
        <translation>Anotadas con detalle: {} de {}. Muy pocas para decir algo.</translation>
    </message>
    <message>
        <source>Of {} who have both often enough, beyond doubt faster in the final: {}, slower: {}.</source>
        <translation>De {} que tienen ambas las veces suficientes, sin duda más rápidos en la final: {}, más lentos: {}.</translation>
    </message>
    <message>
        <source>Of {} who have both often enough, beyond doubt faster in the second run: {}, slower: {}.</source>
        <translation>De {} que tienen ambas las veces suficientes, sin duda más rápidos en la segunda manga: {}, más lentos: {}.</translation>
    </message>
    <message>
        <source>Of {} {} cost places, none of them a medal.</source>
        <translation>De {}, {} costaron puestos, ninguna de ellas una medalla.</translation>
    </message>
    <message>
        <source>Of {} {} cost places, {} of them a medal.</source>
        <translation>De {}, {} costaron puestos, {} de ellas una medalla.</translation>
    </message>
    <message>
        <source>The fast touch less: {:.2f} touches a run in the faster third, {:.2f} in the slower.</source>
        <translation>Los rápidos tocan menos: {:.2f} toques por manga en el tercio más rápido, {:.2f} en el más lento.</translation>
    </message>
    <message>
        <source>The fast touch more: {:.2f} touches a run in the faster third, {:.2f} in the slower.</source>
        <translation>Los rápidos tocan más: {:.2f} toques por manga en el tercio más rápido, {:.2f} en el más lento.</translation>
    </message>
    <message>
        <source>Too few to tell fast from slow: {:.2f} touches a run in the faster third, {:.2f} in the slower.</source>
        <translation>Muy pocas para distinguir rápidos de lentos: {:.2f} toques por manga en el tercio más rápido, {:.2f} en el más lento.</translation>
    </message>
    <message>
        <source>There is no penalty.</source>
        <translation>No hay ninguna penalización.</translation>
    </message>
    <message>
        <source>Too few races with both to tell a change.</source>
        <translation>Muy pocas carreras con ambas para indicar un cambio.</translation>
    </message>
    <message>
        <source>Without this missed gate: {}.</source>
        <translation>Sin este salto: {}.</translation>
    </message>
    <message>
        <source>Without this touch: {}.</source>
        <translation>Sin este toque: {}.</translation>
    </message>
    <message>
        <source>category</source>
        <translation>categoría</translation>
    </message>
    <message>
        <source>crew</source>
        <translation>tripulación</translation>
    </message>
    <message>
        <source>gate</source>
        <translation>puerta</translation>
    </message>
    <message>
        <source>hand</source>
        <translation>mano</translation>
    </message>
    <message>
        <source>month</source>
        <translation>mes</translation>
    </message>
    <message>
        <source>phase</source>
        <translation>fase</translation>
    </message>
    <message>
        <source>race</source>
        <translation>carrera</translation>
    </message>
    <message>
        <source>section</source>
        <translation>tramo</translation>
    </message>
    <message>
        <source>tenth of the course</source>
        <translation>décimo del recorrido</translation>
    </message>
    <message>
        <source>type of gate</source>
        <translation>tipo de puerta</translation>
    </message>
    <message>
        <source>nobody came</source>
        <translation>nadie llegó</translation>
    </message>
    <message>
        <source>those without one</source>
        <translation>los que no tienen</translation>
    </message>
    <message>
        <source>{:.2f} touches a run in {}, all in one third of the field.</source>
        <translation>{:.2f} toques por manga en {}, todas en un mismo tercio de los participantes.</translation>
    </message>
    <message>
        <source>{} and {} more</source>
        <translation>{} y {} más</translation>
    </message>
    <message>
        <source>{} stand out: touched more than the {} that all have in common.</source>
        <translation>{} destacan: más toques que el {} común a todas.</translation>
    </message>
    <message>
        <source>{} stands out: touched more than the {} that all have in common.</source>
        <translation>{} destaca: más toques que el {} común a todas.</translation>
    </message>
    <message>
        <source>{}: too few runs to tell a trend behind the fastest splits.</source>
        <translation>{}: muy pocas mangas para indicar una tendencia respecto a los parciales más rápidos.</translation>
    </message>
    <message>
        <source>{}: too few runs to tell a trend behind the winners.</source>
        <translation>{}: muy pocas mangas para indicar una tendencia respecto a los ganadores.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the fastest splits ({:+.1f} to {:+.1f}), {}.</source>
        <translation>{}: {:+.1f}&#xa0;% al año respecto a los parciales más rápidos (de {:+.1f} a {:+.1f}), {}.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the fastest splits, {}.</source>
        <translation>{}: {:+.1f}&#xa0;% al año respecto a los parciales más rápidos, {}.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the winners ({:+.1f} to {:+.1f}), {}.</source>
        <translation>{}: {:+.1f}&#xa0;% al año respecto a los ganadores (de {:+.1f} a {:+.1f}), {}.</translation>
    </message>
    <message>
        <source>{}: {:+.1f} % a year behind the winners, {}.</source>
        <translation>{}: {:+.1f}&#xa0;% al año respecto a los ganadores, {}.</translation>
    </message>
    <message>
        <source>{}st</source>
        <translation>{}.º</translation>
    </message>
    <message>
        <source>{}nd</source>
        <translation>{}.º</translation>
    </message>
    <message>
        <source>{}rd</source>
        <translation>{}.º</translation>
    </message>
    <message>
        <source>{}th</source>
        <translation>{}.º</translation>
    </message>
    <message>
        <source>* the best of its column.</source>
        <translation>* lo mejor de su columna.</translation>
    </message>
    <message>
        <source>Against the winners</source>
        <translation>Comparado con los ganadores</translation>
    </message>
    <message>
        <source>Against the winners, over {}. Losing: the whole interval is above 0.</source>
        <translation>Comparado con los ganadores, en {}. Se pierde: todo el intervalo está por encima de 0.</translation>
    </message>
    <message>
        <source>All runs</source>
        <translation>Todas las mangas</translation>
    </message>
    <message>
        <source>Among the others</source>
        <translation>Entre los demás</translation>
    </message>
    <message>
        <source>Behind the winner</source>
        <translation>Respecto al ganador</translation>
    </message>
    <message>
        <source>Beside the winner</source>
        <translation>Junto al ganador</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Tripulación</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Gap to the ideal run from section to section: {}</source>
        <translation>Diferencia con la manga ideal de tramo en tramo: {}</translation>
    </message>
    <message>
        <source>Gap to {} from section to section: {}</source>
        <translation>Diferencia con {} de tramo en tramo: {}</translation>
    </message>
    <message>
        <source>Gap to {}, in seconds: above the line is behind.</source>
        <translation>Diferencia con {}, en segundos: por encima de la línea es por detrás.</translation>
    </message>
    <message>
        <source>This run won. Gap to the ideal run, the best of every section, in seconds.</source>
        <translation>Esta manga ganó. Diferencia con la manga ideal, lo mejor de cada tramo, en segundos.</translation>
    </message>
    <message>
        <source>Gate not noted</source>
        <translation>Puerta sin anotar</translation>
    </message>
    <message>
        <source>Gate {}</source>
        <translation>Puerta {}</translation>
    </message>
    <message>
        <source>Most lost: {}.</source>
        <translation>Donde más se pierde: {}.</translation>
    </message>
    <message>
        <source>Not ranked, time</source>
        <translation>Sin clasificar, tiempo</translation>
    </message>
    <message>
        <source>Nothing stands out from these runs: no interval lies above 0 as a whole.</source>
        <translation>Nada destaca en estas mangas: ningún intervalo queda entero por encima de 0.</translation>
    </message>
    <message>
        <source>Of what</source>
        <translation>De qué</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Otras</translation>
    </message>
    <message>
        <source>Penalties on the course</source>
        <translation>Penalizaciones en el recorrido</translation>
    </message>
    <message>
        <source>Penalty seconds are in the times.</source>
        <translation>Los segundos de penalización están en los tiempos.</translation>
    </message>
    <message>
        <source>Percent behind the winner by day, penalties included; the filled dot is the last run of each race.</source>
        <translation>Porcentaje respecto al ganador por día, con penalizaciones; el punto relleno es la última manga de cada carrera.</translation>
    </message>
    <message>
        <source>Percent behind the winner, run by run, {} to {}</source>
        <translation>Porcentaje respecto al ganador, manga a manga, de {} a {}</translation>
    </message>
    <message>
        <source>Run {}</source>
        <translation>Manga {}</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Temporada</translation>
    </message>
    <message>
        <source>Split table: {}</source>
        <translation>Tabla de parciales: {}</translation>
    </message>
    <message>
        <source>The name of a page ends in .html, and its films lie in the folder named the same without that.</source>
        <translation>El nombre de una página termina en .html y sus vídeos están en la carpeta del mismo nombre sin eso.</translation>
    </message>
    <message>
        <source>Time lost, as noted</source>
        <translation>Tiempo perdido, según lo anotado</translation>
    </message>
    <message>
        <source>Times from the start to each split.</source>
        <translation>Tiempos desde la salida hasta cada parcial.</translation>
    </message>
    <message>
        <source>Times in seconds. Made with Kavela.</source>
        <translation>Tiempos en segundos. Hecho con Kavela.</translation>
    </message>
    <message>
        <source>To winner</source>
        <translation>Al ganador</translation>
    </message>
    <message>
        <source>at {} s of the run</source>
        <translation>a los {} s de la manga</translation>
    </message>
    <message>
        <source>eyes: {}</source>
        <translation>mirada: {}</translation>
    </message>
    <message>
        <source>fastest</source>
        <translation>más rápido</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>medio</translation>
    </message>
    <message>
        <source>slowest</source>
        <translation>más lento</translation>
    </message>
    <message>
        <source>upstream</source>
        <translation>remonte</translation>
    </message>
    <message>
        <source>{} &lt;small&gt;of {}&lt;/small&gt;</source>
        <translation>{} &lt;small&gt;de {}&lt;/small&gt;</translation>
    </message>
    <message>
        <source>{} = paddling {}, penalties {}, official against video time {}.</source>
        <translation>{} = paleo {}, penalizaciones {}, tiempo oficial frente al del vídeo {}.</translation>
    </message>
    <message>
        <source>{} = paddling {}, penalties {}.</source>
        <translation>{} = paleo {}, penalizaciones {}.</translation>
    </message>
    <message>
        <source>{} against {}</source>
        <translation>{} respecto a {}</translation>
    </message>
    <message numerus="yes">
        <source>{} gates</source>
        <translation>
            <numerusform>{} puerta</numerusform>
            <numerusform>{} puertas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} more runs are left out.</source>
        <translation>
            <numerusform>Se omite {} manga más.</numerusform>
            <numerusform>Se omiten {} mangas más.</numerusform>
        </translation>
    </message>
    <message>
        <source>{} of the runs compared, column by column.</source>
        <translation>{} de las mangas comparadas, columna por columna.</translation>
    </message>
    <message>
        <source>{} to {}</source>
        <translation>{} a {}</translation>
    </message>
    <message>
        <source>{}, run {}</source>
        <translation>{}, manga {}</translation>
    </message>
    <message>
        <source>{}, {} upstream</source>
        <translation>{}, {} remontes</translation>
    </message>
    <message>
        <source>{}. The film lies beside this page: {}</source>
        <translation>{}. El vídeo está junto a esta página: {}</translation>
    </message>
    <message>
        <source>{}: {} s a run</source>
        <translation>{}: {} s por manga</translation>
    </message>
    <message>
        <source>The film is not there.</source>
        <translation>El vídeo no está.</translation>
    </message>
    <message>
        <source>The marks of the run lie behind the end of the film.</source>
        <translation>Las marcas de la manga están después del final del vídeo.</translation>
    </message>
    <message>
        <source>No run of &quot;{}&quot; is of the phase &quot;{}&quot;.</source>
        <translation>Ninguna manga de «{}» es de la fase «{}».</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Downstream gate</source>
        <translation>Puerta a favor</translation>
    </message>
    <message>
        <source>Upstream gate</source>
        <translation>Remonte</translation>
    </message>
    <message>
        <source>Offset gate</source>
        <translation>Puerta desplazada</translation>
    </message>
    <message>
        <source>Spin gate</source>
        <translation>Puerta de giro completo</translation>
    </message>
    <message>
        <source>Single pole</source>
        <translation>Un solo palo</translation>
    </message>
    <message>
        <source>Touch</source>
        <translation>Toque</translation>
    </message>
    <message>
        <source>Missed gate</source>
        <translation>Salto</translation>
    </message>
    <message>
        <source>Head outside the gate</source>
        <translation>Cabeza fuera de la puerta</translation>
    </message>
    <message>
        <source>Wrong direction</source>
        <translation>Sentido incorrecto</translation>
    </message>
    <message>
        <source>Wrong order</source>
        <translation>Orden incorrecto</translation>
    </message>
    <message>
        <source>Pole pushed on purpose</source>
        <translation>Palo empujado a propósito</translation>
    </message>
    <message>
        <source>Upside down in the gate</source>
        <translation>Volcado en la puerta</translation>
    </message>
    <message>
        <source>Inner pole</source>
        <translation>Palo interior</translation>
    </message>
    <message>
        <source>Outer pole</source>
        <translation>Palo exterior</translation>
    </message>
    <message>
        <source>Both poles</source>
        <translation>Ambos palos</translation>
    </message>
    <message>
        <source>Left pole</source>
        <translation>Palo izquierdo</translation>
    </message>
    <message>
        <source>Right pole</source>
        <translation>Palo derecho</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Barco</translation>
    </message>
    <message>
        <source>Blade</source>
        <translation>Pala</translation>
    </message>
    <message>
        <source>Body</source>
        <translation>Cuerpo</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>Cabeza</translation>
    </message>
    <message>
        <source>Bow</source>
        <translation>Proa</translation>
    </message>
    <message>
        <source>Stern</source>
        <translation>Popa</translation>
    </message>
    <message>
        <source>Shaft</source>
        <translation>Pértiga</translation>
    </message>
    <message>
        <source>Arm</source>
        <translation>Brazo</translation>
    </message>
    <message>
        <source>Washed past the gate</source>
        <translation>Arrastrado más allá de la puerta</translation>
    </message>
    <message>
        <source>Left out on purpose</source>
        <translation>Omitida a propósito</translation>
    </message>
    <message>
        <source>Entering</source>
        <translation>Al entrar</translation>
    </message>
    <message>
        <source>In the gate</source>
        <translation>En la puerta</translation>
    </message>
    <message>
        <source>Leaving</source>
        <translation>Al salir</translation>
    </message>
    <message>
        <source>Before the gate</source>
        <translation>Antes de la puerta</translation>
    </message>
    <message>
        <source>After the gate</source>
        <translation>Después de la puerta</translation>
    </message>
    <message>
        <source>Forwards</source>
        <translation>Hacia delante</translation>
    </message>
    <message>
        <source>Backwards</source>
        <translation>Hacia atrás</translation>
    </message>
    <message>
        <source>Sideways</source>
        <translation>De lado</translation>
    </message>
    <message>
        <source>Turning left</source>
        <translation>Girando a la izquierda</translation>
    </message>
    <message>
        <source>Turning right</source>
        <translation>Girando a la derecha</translation>
    </message>
    <message>
        <source>Drifting left</source>
        <translation>Derivando a la izquierda</translation>
    </message>
    <message>
        <source>Drifting right</source>
        <translation>Derivando a la derecha</translation>
    </message>
    <message>
        <source>Direct line</source>
        <translation>Línea directa</translation>
    </message>
    <message>
        <source>Spin</source>
        <translation>Giro completo</translation>
    </message>
    <message>
        <source>Duffek (bow draw)</source>
        <translation>Duffek (apoyo de proa)</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Palada circular</translation>
    </message>
    <message>
        <source>Stern pivot</source>
        <translation>Pivote de popa</translation>
    </message>
    <message>
        <source>Punt</source>
        <translation>Apoyo en el fondo</translation>
    </message>
    <message>
        <source>Flat turn</source>
        <translation>Giro plano</translation>
    </message>
    <message>
        <source>Ferry</source>
        <translation>Bac</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Marcha atrás</translation>
    </message>
    <message>
        <source>Surf</source>
        <translation>Surf</translation>
    </message>
    <message>
        <source>At the gate</source>
        <translation>A la puerta</translation>
    </message>
    <message>
        <source>At the next gate</source>
        <translation>A la puerta siguiente</translation>
    </message>
    <message>
        <source>At the pole</source>
        <translation>Al palo</translation>
    </message>
    <message>
        <source>At the water</source>
        <translation>Al agua</translation>
    </message>
    <message>
        <source>At the blade</source>
        <translation>A la pala</translation>
    </message>
    <message>
        <source>At the bow</source>
        <translation>A la proa</translation>
    </message>
    <message>
        <source>Elsewhere</source>
        <translation>A otro lado</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Cross-bow draw</source>
        <translation>Apoyo cruzado de proa</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Tracción</translation>
    </message>
    <message>
        <source>Stern rudder</source>
        <translation>Timón de popa</translation>
    </message>
    <message>
        <source>Brace</source>
        <translation>Apoyo</translation>
    </message>
    <message>
        <source>Cross-bow</source>
        <translation>Cruzada de proa</translation>
    </message>
    <message>
        <source>Single gate</source>
        <translation>Puerta única</translation>
    </message>
    <message>
        <source>Offset (stagger)</source>
        <translation>Puertas desplazadas</translation>
    </message>
    <message>
        <source>S-turn</source>
        <translation>Giro en S</translation>
    </message>
    <message>
        <source>Cross (ferry)</source>
        <translation>Cruce (bac)</translation>
    </message>
    <message>
        <source>Upstream</source>
        <translation>Remonte</translation>
    </message>
    <message>
        <source>Upstream sprint</source>
        <translation>Esprint en remonte</translation>
    </message>
    <message>
        <source>Merano</source>
        <translation>Merano</translation>
    </message>
    <message>
        <source>Downstream to upstream</source>
        <translation>De puerta a favor a remonte</translation>
    </message>
    <message>
        <source>Upstream to downstream</source>
        <translation>De remonte a puerta a favor</translation>
    </message>
    <message>
        <source>Upstream to upstream</source>
        <translation>De remonte a remonte</translation>
    </message>
    <message>
        <source>Straight gates</source>
        <translation>Puertas rectas</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Finish sprint</source>
        <translation>Esprint a meta</translation>
    </message>
    <message>
        <source>Approach</source>
        <translation>Aproximación</translation>
    </message>
    <message>
        <source>Between the gates</source>
        <translation>Entre las puertas</translation>
    </message>
    <message>
        <source>Whole</source>
        <translation>Entera</translation>
    </message>
    <message>
        <source>Flat water</source>
        <translation>Aguas tranquilas</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Ola</translation>
    </message>
    <message>
        <source>Stopper (hole)</source>
        <translation>Rebufo</translation>
    </message>
    <message>
        <source>Eddy</source>
        <translation>Contra</translation>
    </message>
    <message>
        <source>Eddy line</source>
        <translation>Línea de contra</translation>
    </message>
    <message>
        <source>Pourover</source>
        <translation>Roca cubierta</translation>
    </message>
    <message>
        <source>Curtain</source>
        <translation>Cortina</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Salto de agua</translation>
    </message>
    <message>
        <source>Boil</source>
        <translation>Borbotón</translation>
    </message>
    <message>
        <source>Cushion</source>
        <translation>Cojín</translation>
    </message>
    <message>
        <source>Wave train</source>
        <translation>Tren de olas</translation>
    </message>
    <message>
        <source>Fast water</source>
        <translation>Agua rápida</translation>
    </message>
    <message>
        <source>Sweep roll</source>
        <translation>Esquimotaje con palada circular</translation>
    </message>
    <message>
        <source>C-to-C roll</source>
        <translation>Esquimotaje C a C</translation>
    </message>
    <message>
        <source>Hand roll</source>
        <translation>Esquimotaje de mano</translation>
    </message>
    <message numerus="yes">
        <source>{} runs left out: penalties not known by gate</source>
        <translation>
            <numerusform>{} manga omitida: penalizaciones no conocidas por puerta</numerusform>
            <numerusform>{} mangas omitidas: penalizaciones no conocidas por puerta</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} runs are left out: their penalties are not known by gate.</source>
        <translation>
            <numerusform>Se omite {} manga: sus penalizaciones no se conocen por puerta.</numerusform>
            <numerusform>Se omiten {} mangas: sus penalizaciones no se conocen por puerta.</numerusform>
        </translation>
    </message>
    <message>
        <source>(not given)</source>
        <translation>(sin indicar)</translation>
    </message>
    <message>
        <source>* touched more than that with 95 % certainty and more</source>
        <translation>* más toques que eso con una certeza del 95&#xa0;% o más</translation>
    </message>
    <message>
        <source>A missed gate also saved paddling, which is not taken back here.</source>
        <translation>Un salto también ahorró paleo, que aquí no se devuelve.</translation>
    </message>
    <message>
        <source>Gained</source>
        <translation>Ganado</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdido</translation>
    </message>
    <message>
        <source>Missed/run</source>
        <translation>Saltos/m.</translation>
    </message>
    <message>
        <source>Ranked</source>
        <translation>Ordenada</translation>
    </message>
    <message>
        <source>Rate %</source>
        <translation>Frec. %</translation>
    </message>
    <message>
        <source>Risk and speed</source>
        <translation>Riesgo y ritmo</translation>
    </message>
    <message>
        <source>Touches/run</source>
        <translation>Toques/manga</translation>
    </message>
    <message>
        <source>Ways: chosen against the fastest timed</source>
        <translation>Trazadas: la elegida frente a la más rápida cronometrada</translation>
    </message>
    <message>
        <source>between {}</source>
        <translation>entre medias {}</translation>
    </message>
    <message>
        <source>fastest third</source>
        <translation>tercio rápido</translation>
    </message>
    <message>
        <source>middle third</source>
        <translation>tercio medio</translation>
    </message>
    <message>
        <source>slowest third</source>
        <translation>tercio lento</translation>
    </message>
    <message>
        <source>in no stretch</source>
        <translation>en ningún trecho</translation>
    </message>
    <message>
        <source>not finished: {}</source>
        <translation>sin terminar: {}</translation>
    </message>
    <message>
        <source>on run {}</source>
        <translation>respecto a la manga {}</translation>
    </message>
    <message>
        <source>on the fastest</source>
        <translation>respecto al más rápido</translation>
    </message>
    <message>
        <source>on the finalists&apos; median</source>
        <translation>respecto a la mediana de los finalistas</translation>
    </message>
    <message>
        <source>on the ideal run</source>
        <translation>respecto a la manga ideal</translation>
    </message>
    <message>
        <source>on the own fastest other run</source>
        <translation>respecto a la propia manga más rápida de las demás</translation>
    </message>
    <message>
        <source>on the winner</source>
        <translation>respecto al ganador</translation>
    </message>
    <message>
        <source>penalties {}</source>
        <translation>penalizaciones {}</translation>
    </message>
    <message>
        <source>timing {}</source>
        <translation>cronometraje {}</translation>
    </message>
    <message>
        <source>touch</source>
        <translation>toque</translation>
    </message>
    <message numerus="yes">
        <source>{} penalties cost no place</source>
        <translation>
            <numerusform>{} penalización no costó ningún puesto</numerusform>
            <numerusform>{} penalizaciones no costaron ningún puesto</numerusform>
        </translation>
    </message>
    <message>
        <source>{}: there is none</source>
        <translation>{}: no hay</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no gate number.</source>
        <translation>«{}» no es un número de puerta.</translation>
    </message>
    <message>
        <source>A section up to here was not timed, so this is not the time from the start.</source>
        <translation>Un tramo anterior no se cronometró, así que este no es el tiempo desde la salida.</translation>
    </message>
    <message>
        <source>A time must be above 0. Check the marks of this run.</source>
        <translation>Un tiempo debe ser mayor que 0. Revisa las marcas de esta manga.</translation>
    </message>
    <message>
        <source>A time of the session is negative or no number.</source>
        <translation>Un tiempo de la sesión es negativo o no es un número.</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <source>From {:.1f} s to {:.1f} s of the run nothing is recorded.</source>
        <translation>De {:.1f} s a {:.1f} s de la manga no hay nada grabado.</translation>
    </message>
    <message>
        <source>Gate {} has this penalty already.</source>
        <translation>La puerta {} ya tiene esta penalización.</translation>
    </message>
    <message>
        <source>Gate {} is missing before gate {} in section {}.</source>
        <translation>Falta la puerta {} antes de la puerta {} en el tramo {}.</translation>
    </message>
    <message>
        <source>Gate {} is not on a course of {}.</source>
        <translation>La puerta {} no está en un recorrido de {}.</translation>
    </message>
    <message>
        <source>Gate {} stands a second time or out of order in section {}.</source>
        <translation>La puerta {} está por segunda vez o fuera de orden en el tramo {}.</translation>
    </message>
    <message>
        <source>Gate {} stands in no section.</source>
        <translation>La puerta {} no está en ningún tramo.</translation>
    </message>
    <message>
        <source>Gate {} stands there twice.</source>
        <translation>La puerta {} está ahí dos veces.</translation>
    </message>
    <message>
        <source>Get ready</source>
        <translation>Prepárate</translation>
    </message>
    <message>
        <source>It was deleted here and changed there: it is brought again.</source>
        <translation>Se borró aquí y se cambió allí: se trae de nuevo.</translation>
    </message>
    <message>
        <source>It was deleted there and changed here: it is put there again.</source>
        <translation>Se borró allí y se cambió aquí: se pone allí de nuevo.</translation>
    </message>
    <message>
        <source>Line {}, {}: there is no run of this crew.</source>
        <translation>Línea {}, {}: no hay ninguna manga de esta tripulación.</translation>
    </message>
    <message>
        <source>No motion of the boat is attached to this run.</source>
        <translation>Esta manga no tiene movimiento del barco adjunto.</translation>
    </message>
    <message>
        <source>No run waiting</source>
        <translation>Ninguna manga en espera</translation>
    </message>
    <message>
        <source>No time was taken here.</source>
        <translation>Aquí no se tomó ningún tiempo.</translation>
    </message>
    <message>
        <source>Of the first {:.1f} s of the run nothing is recorded.</source>
        <translation>De los primeros {:.1f} s de la manga no hay nada grabado.</translation>
    </message>
    <message>
        <source>Of the last {:.1f} s of the run nothing is recorded.</source>
        <translation>De los últimos {:.1f} s de la manga no hay nada grabado.</translation>
    </message>
    <message>
        <source>Rest</source>
        <translation>Descanso</translation>
    </message>
    <message>
        <source>Rest between sets</source>
        <translation>Descanso entre series</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Somebody changed it on the server meanwhile.</source>
        <translation>Mientras tanto alguien lo cambió en el servidor.</translation>
    </message>
    <message>
        <source>Somebody has locked it on the server.</source>
        <translation>Alguien lo ha bloqueado en el servidor.</translation>
    </message>
    <message>
        <source>Start and end of the stretch are not both marked in the run of {}.</source>
        <translation>El inicio y el final del trecho no están ambos marcados en la manga de {}.</translation>
    </message>
    <message>
        <source>Start and end of the stretch are not both marked in this run.</source>
        <translation>El inicio y el final del trecho no están ambos marcados en esta manga.</translation>
    </message>
    <message>
        <source>The end of the stretch is not marked after its start in the run of {}.</source>
        <translation>El final del trecho no está marcado después de su inicio en la manga de {}.</translation>
    </message>
    <message>
        <source>The end of the stretch is not marked after its start in this run.</source>
        <translation>El final del trecho no está marcado después de su inicio en esta manga.</translation>
    </message>
    <message>
        <source>The answer of the server is longer than it can be.</source>
        <translation>La respuesta del servidor es más larga de lo que puede ser.</translation>
    </message>
    <message>
        <source>The attached motion is not as long as the run, so that its moments cannot be told.</source>
        <translation>El movimiento adjunto no dura lo mismo que la manga, así que no se conocen sus momentos.</translation>
    </message>
    <message>
        <source>The certificate of the server is not trusted, so that nothing was sent. It was issued by “{}”: {}.</source>
        <translation>El certificado del servidor no es de confianza, así que no se envió nada. Lo emitió «{}»: {}.</translation>
    </message>
    <message>
        <source>The connection broke off.</source>
        <translation>La conexión se cortó.</translation>
    </message>
    <message>
        <source>The exit is marked before the entrance.</source>
        <translation>La salida está marcada antes que la entrada.</translation>
    </message>
    <message>
        <source>The exit is marked before the middle.</source>
        <translation>La salida está marcada antes que el centro.</translation>
    </message>
    <message>
        <source>The middle is marked before the entrance.</source>
        <translation>El centro está marcado antes que la entrada.</translation>
    </message>
    <message>
        <source>The film lies on {}, which is not ticked.</source>
        <translation>El vídeo está en {}, que no está marcado.</translation>
    </message>
    <message>
        <source>The folder above is not there on the server.</source>
        <translation>La carpeta superior no está en el servidor.</translation>
    </message>
    <message>
        <source>The number of sections is {}, but that of splits is {}.</source>
        <translation>El número de tramos es {}, pero el de parciales es {}.</translation>
    </message>
    <message>
        <source>The recording does not reach into this run.</source>
        <translation>La grabación no llega a esta manga.</translation>
    </message>
    <message>
        <source>The recording has {} further holes in this run.</source>
        <translation>La grabación tiene {} huecos más en esta manga.</translation>
    </message>
    <message>
        <source>The run has no times that the recording could be laid on.</source>
        <translation>La manga no tiene tiempos sobre los que colocar la grabación.</translation>
    </message>
    <message>
        <source>The section before was not timed, so this time covers both.</source>
        <translation>El tramo anterior no se cronometró, así que este tiempo abarca los dos.</translation>
    </message>
    <message>
        <source>The server answered with status {}.</source>
        <translation>El servidor respondió con el estado {}.</translation>
    </message>
    <message>
        <source>The server cannot be reached safely.</source>
        <translation>No se puede llegar al servidor de forma segura.</translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation>No se puede llegar al servidor.</translation>
    </message>
    <message>
        <source>The server does not accept the user name or the password.</source>
        <translation>El servidor no acepta el usuario o la contraseña.</translation>
    </message>
    <message>
        <source>The server does not allow this, or not to this user.</source>
        <translation>El servidor no lo permite, o no a este usuario.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>El servidor no responde.</translation>
    </message>
    <message>
        <source>The server fell silent.</source>
        <translation>El servidor dejó de responder.</translation>
    </message>
    <message>
        <source>The server has no such file or folder.</source>
        <translation>El servidor no tiene ese archivo o carpeta.</translation>
    </message>
    <message>
        <source>The server is full, or your share of it.</source>
        <translation>El servidor está lleno, o tu parte de él.</translation>
    </message>
    <message>
        <source>The server leads to another one, {}, which is not followed.</source>
        <translation>El servidor lleva a otro, {}, al que no se va.</translation>
    </message>
    <message>
        <source>The server takes no file of this size.</source>
        <translation>El servidor no acepta un archivo de este tamaño.</translation>
    </message>
    <message>
        <source>The server was not found. Is the computer online?</source>
        <translation>No se encontró el servidor. ¿Tiene conexión el ordenador?</translation>
    </message>
    <message>
        <source>The session has more sets or repetitions than can be timed.</source>
        <translation>La sesión tiene más series o repeticiones de las que se pueden cronometrar.</translation>
    </message>
    <message>
        <source>The session needs a work time.</source>
        <translation>La sesión necesita un tiempo de trabajo.</translation>
    </message>
    <message>
        <source>The session needs at least one set and one repetition.</source>
        <translation>La sesión necesita al menos una serie y una repetición.</translation>
    </message>
    <message>
        <source>The session takes longer than a day.</source>
        <translation>La sesión dura más de un día.</translation>
    </message>
    <message>
        <source>This frame lies after {} at {}.</source>
        <translation>Este fotograma está después de {} en {}.</translation>
    </message>
    <message>
        <source>This frame lies before {} at {}.</source>
        <translation>Este fotograma está antes de {} en {}.</translation>
    </message>
    <message>
        <source>This run was not timed to the end, so this is not the time of the whole course.</source>
        <translation>Esta manga no se cronometró hasta el final, así que este no es el tiempo de todo el recorrido.</translation>
    </message>
    <message>
        <source>Where they differ, both stay.</source>
        <translation>Si difieren, se quedan ambos.</translation>
    </message>
    <message>
        <source>a byte is no UTF-8 text</source>
        <translation>un byte no es texto UTF-8</translation>
    </message>
    <message>
        <source>a colon is due</source>
        <translation>falta un signo de dos puntos</translation>
    </message>
    <message>
        <source>a comma or ] is due</source>
        <translation>falta una coma o ]</translation>
    </message>
    <message>
        <source>a comma or } is due</source>
        <translation>falta una coma o }</translation>
    </message>
    <message>
        <source>a digit is due</source>
        <translation>falta una cifra</translation>
    </message>
    <message>
        <source>a key is due</source>
        <translation>falta una clave</translation>
    </message>
    <message>
        <source>a micro split</source>
        <translation>un micro parcial</translation>
    </message>
    <message>
        <source>a number is out of range</source>
        <translation>un número está fuera de rango</translation>
    </message>
    <message>
        <source>a stroke of this hand</source>
        <translation>una palada de esta mano</translation>
    </message>
    <message>
        <source>a text holds a control character</source>
        <translation>un texto contiene un carácter de control</translation>
    </message>
    <message>
        <source>a text holds a malformed escape</source>
        <translation>un texto contiene un escape mal formado</translation>
    </message>
    <message>
        <source>a value is due</source>
        <translation>falta un valor</translation>
    </message>
    <message>
        <source>an unknown issuer</source>
        <translation>un emisor desconocido</translation>
    </message>
    <message>
        <source>bib</source>
        <translation>dorsal</translation>
    </message>
    <message>
        <source>five</source>
        <translation>cinco</translation>
    </message>
    <message>
        <source>six</source>
        <translation>seis</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>sin permiso</translation>
    </message>
    <message>
        <source>not JSON, byte {}: {}</source>
        <translation>no es JSON, byte {}: {}</translation>
    </message>
    <message>
        <source>not JSON, or cut off</source>
        <translation>no es JSON, o está cortado</translation>
    </message>
    <message>
        <source>not JSON: a number is malformed or out of range</source>
        <translation>no es JSON: un número está mal formado o fuera de rango</translation>
    </message>
    <message>
        <source>not JSON: a text holds a control character</source>
        <translation>no es JSON: un texto contiene un carácter de control</translation>
    </message>
    <message>
        <source>not JSON: a text holds a malformed escape</source>
        <translation>no es JSON: un texto contiene un escape mal formado</translation>
    </message>
    <message>
        <source>not JSON: a text is not closed (the file may be cut off)</source>
        <translation>no es JSON: un texto no está cerrado (el archivo puede estar cortado)</translation>
    </message>
    <message>
        <source>position</source>
        <translation>posición</translation>
    </message>
    <message>
        <source>something stands behind the document</source>
        <translation>hay algo detrás del documento</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>el disco es de solo lectura</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>el disco está lleno</translation>
    </message>
    <message>
        <source>the document is nested too deeply</source>
        <translation>el documento está anidado demasiado profundo</translation>
    </message>
    <message>
        <source>the document is too large for the memory</source>
        <translation>el documento es demasiado grande para la memoria</translation>
    </message>
    <message>
        <source>the end of the stretch</source>
        <translation>el final del trecho</translation>
    </message>
    <message>
        <source>the file became shorter while it was read</source>
        <translation>el archivo se acortó mientras se leía</translation>
    </message>
    <message>
        <source>the file holds nothing but blanks</source>
        <translation>el archivo solo contiene espacios</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>the file is no text; save the list as text (CSV) first</source>
        <translation>el archivo no es texto; guarda antes la lista como texto (CSV)</translation>
    </message>
    <message>
        <source>the file is not UTF-8 text</source>
        <translation>el archivo no es texto UTF-8</translation>
    </message>
    <message>
        <source>the file is too large for a document (over 4 GB)</source>
        <translation>el archivo es demasiado grande para un documento (más de 4 GB)</translation>
    </message>
    <message>
        <source>the file is too large for a list (over 64 MB)</source>
        <translation>el archivo es demasiado grande para una lista (más de 64 MB)</translation>
    </message>
    <message>
        <source>the penalty {} is below 0</source>
        <translation>la penalización {} es menor que 0</translation>
    </message>
    <message>
        <source>the penalty {} is over {}</source>
        <translation>la penalización {} es mayor que {}</translation>
    </message>
    <message>
        <source>the position {} is below 0</source>
        <translation>la posición {} es menor que 0</translation>
    </message>
    <message>
        <source>the start</source>
        <translation>la salida</translation>
    </message>
    <message>
        <source>the start of the stretch</source>
        <translation>el inicio del trecho</translation>
    </message>
    <message>
        <source>the tag {}</source>
        <translation>la etiqueta {}</translation>
    </message>
    <message>
        <source>the text ends too early (the file may be cut off)</source>
        <translation>el texto termina demasiado pronto (el archivo puede estar cortado)</translation>
    </message>
    <message>
        <source>the text is not valid UTF-8</source>
        <translation>el texto no es UTF-8 válido</translation>
    </message>
    <message>
        <source>the time {} is an hour or more</source>
        <translation>el tiempo {} es de una hora o más</translation>
    </message>
    <message>
        <source>the time {} is below 0</source>
        <translation>el tiempo {} es menor que 0</translation>
    </message>
    <message>
        <source>the {} &quot;{}&quot; is no number of seconds</source>
        <translation>{} «{}»: no es un número de segundos</translation>
    </message>
    <message>
        <source>the {} &quot;{}&quot; is no whole number</source>
        <translation>{} «{}»: no es un número entero</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>no existe ese archivo</translation>
    </message>
    <message>
        <source>this is a folder, not a file</source>
        <translation>es una carpeta, no un archivo</translation>
    </message>
    <message>
        <source>this is no JSON object: it does not begin with {</source>
        <translation>no es un objeto JSON: no empieza por {</translation>
    </message>
    <message>
        <source>this is not an ordinary file</source>
        <translation>no es un archivo corriente</translation>
    </message>
    <message>
        <source>this moment</source>
        <translation>este momento</translation>
    </message>
    <message>
        <source>too many symbolic links</source>
        <translation>demasiados enlaces simbólicos</translation>
    </message>
    <message>
        <source>{0}: has the time of {1} (bibs {2} and {3}), and {1} has this one&apos;s. Exchange the two crews?</source>
        <translation>{0}: tiene el tiempo de {1} (dorsales {2} y {3}), y {1} tiene el suyo. ¿Intercambiar las dos tripulaciones?</translation>
    </message>
    <message>
        <source>{0}: has the time of {1}, and {1} has this one&apos;s. Exchange the two crews?</source>
        <translation>{0}: tiene el tiempo de {1}, y {1} tiene el suyo. ¿Intercambiar las dos tripulaciones?</translation>
    </message>
    <message>
        <source>{0}: the list says {1}, ours is {2}. Take {1} over?</source>
        <translation>{0}: la lista dice {1}, el nuestro es {2}. ¿Incorporar {1}?</translation>
    </message>
    <message numerus="yes">
        <source>{} fields</source>
        <translation>
            <numerusform>{} campo</numerusform>
            <numerusform>{} campos</numerusform>
        </translation>
    </message>
    <message>
        <source>{} is marked on this frame already.</source>
        <translation>{} ya está marcado en este fotograma.</translation>
    </message>
    <message numerus="yes">
        <source>{} runs waiting</source>
        <translation>
            <numerusform>{} manga en espera</numerusform>
            <numerusform>{} mangas en espera</numerusform>
        </translation>
    </message>
    <message>
        <source>{} where {} are needed</source>
        <translation>{} donde hacen falta {}</translation>
    </message>
    <message>
        <source>{}, the next starts in {}</source>
        <translation>{}, la siguiente sale en {}</translation>
    </message>
    <message>
        <source>{}: is not in the list.</source>
        <translation>{}: no está en la lista.</translation>
    </message>
    <message>
        <source>{}: the list has {} s of penalties, ours has {} s. Take the official result over?</source>
        <translation>{}: la lista tiene {} s de penalización, la nuestra {} s. ¿Incorporar el resultado oficial?</translation>
    </message>
    <message>
        <source>{}: the list has {}, the film no time to the end. Take the official time over?</source>
        <translation>{}: la lista tiene {}, el vídeo ningún tiempo hasta el final. ¿Incorporar el tiempo oficial?</translation>
    </message>
    <message>
        <source>{}: the list has {}, the film {}, {} s apart. Take the official time over?</source>
        <translation>{}: la lista tiene {}, el vídeo {}, con {} s de diferencia. ¿Incorporar el tiempo oficial?</translation>
    </message>
    <message>
        <source>{}: the list says {}, ours is {}.</source>
        <translation>{}: la lista dice {}, el nuestro es {}.</translation>
    </message>
    <message>
        <source>A difference needs two columns, as in difference:Run 2,Run 1.</source>
        <translation>Una diferencia necesita dos columnas, como en difference:Run 2,Run 1.</translation>
    </message>
    <message>
        <source>A text has no sheet &quot;{}&quot;.</source>
        <translation>Un texto no tiene hoja «{}».</translation>
    </message>
    <message>
        <source>A {} is of one column, not of {}.</source>
        <translation>{}: es de una columna, no de {}.</translation>
    </message>
    <message>
        <source>A {} is of two columns, not of {}.</source>
        <translation>{}: es de dos columnas, no de {}.</translation>
    </message>
    <message>
        <source>No column holds times; name the one to reckon with.</source>
        <translation>Ninguna columna tiene tiempos; indica con cuál calcular.</translation>
    </message>
    <message>
        <source>No column holds times; name those to add, as in total:Time,Pen.</source>
        <translation>Ninguna columna tiene tiempos; indica cuáles sumar, como en total:Time,Pen.</translation>
    </message>
    <message>
        <source>No list is open.</source>
        <translation>No hay ninguna lista abierta.</translation>
    </message>
    <message>
        <source>Not drawn: %1</source>
        <translation>Sin dibujar: %1</translation>
    </message>
    <message>
        <source>Sections recorded in part: {}.</source>
        <translation>Tramos grabados en parte: {}.</translation>
    </message>
    <message>
        <source>Sections without strokes: {}.</source>
        <translation>Tramos sin paladas: {}.</translation>
    </message>
    <message>
        <source>The column &quot;{}&quot; has no numbers to reckon with: it is {}.</source>
        <translation>La columna «{}» no tiene números con los que calcular: es {}.</translation>
    </message>
    <message>
        <source>The column &quot;{}&quot; has {} values: too many for columns of a pivot.</source>
        <translation>La columna «{}» tiene {} valores: demasiados para columnas de una tabla dinámica.</translation>
    </message>
    <message>
        <source>The file is packed, but holds no spreadsheet (.xlsx or .ods).</source>
        <translation>El archivo está comprimido, pero no contiene una hoja de cálculo (.xlsx o .ods).</translation>
    </message>
    <message>
        <source>The list needs a column with the title Name, Athlete or Crew.</source>
        <translation>La lista necesita una columna con el título Name, Athlete o Crew.</translation>
    </message>
    <message>
        <source>The list needs a column with the title Time, or Total and Penalty.</source>
        <translation>La lista necesita una columna con el título Time, o Total y Penalty.</translation>
    </message>
    <message>
        <source>The picture has {} MB. Up to 40 MB can be read; save it smaller first.</source>
        <translation>La imagen tiene {} MB. Se pueden leer hasta 40 MB; guárdala antes más pequeña.</translation>
    </message>
    <message>
        <source>The picture is far too long for a course.</source>
        <translation>La imagen es demasiado alargada para un recorrido.</translation>
    </message>
    <message>
        <source>The race carries no results list. Open the list itself; &quot;Keep with the race&quot; puts it there.</source>
        <translation>La carrera no lleva ninguna lista de resultados. Abre la propia lista; «Conservar con la carrera» la pone ahí.</translation>
    </message>
    <message>
        <source>The report could not be painted.</source>
        <translation>No se pudo dibujar el informe.</translation>
    </message>
    <message>
        <source>The sheet &quot;{}&quot; has merged cells: their value stands in each of their lines.</source>
        <translation>La hoja «{}» tiene celdas combinadas: su valor está en cada una de sus líneas.</translation>
    </message>
    <message>
        <source>The spreadsheet is damaged: its part {} cannot be read.</source>
        <translation>La hoja de cálculo está dañada: no se puede leer su parte {}.</translation>
    </message>
    <message>
        <source>The spreadsheet is damaged: its part {} cannot be unpacked.</source>
        <translation>La hoja de cálculo está dañada: no se puede descomprimir su parte {}.</translation>
    </message>
    <message>
        <source>The spreadsheet is damaged: {}.</source>
        <translation>La hoja de cálculo está dañada: {}.</translation>
    </message>
    <message>
        <source>The spreadsheet is protected by a password. Save it without one and open it again.</source>
        <translation>La hoja de cálculo está protegida con una contraseña. Guárdala sin ella y ábrela de nuevo.</translation>
    </message>
    <message>
        <source>The spreadsheet is too large: unpacked it is over 128 MB.</source>
        <translation>La hoja de cálculo es demasiado grande: descomprimida supera los 128 MB.</translation>
    </message>
    <message>
        <source>The text is no UTF-8 and was read as Latin-1; look at the letters with accents.</source>
        <translation>El texto no es UTF-8 y se leyó como Latin-1; revisa las letras con acentos.</translation>
    </message>
    <message>
        <source>There are several sheets; choose one of {}.</source>
        <translation>Hay varias hojas; elige una de {}.</translation>
    </message>
    <message>
        <source>There is no column &quot;{}&quot;; there is none.</source>
        <translation>No existe la columna «{}»; no hay ninguna.</translation>
    </message>
    <message>
        <source>There is no column &quot;{}&quot;; there is {}.</source>
        <translation>No existe la columna «{}»; hay {}.</translation>
    </message>
    <message>
        <source>There is no sheet &quot;{}&quot;; there is {}.</source>
        <translation>No existe la hoja «{}»; hay {}.</translation>
    </message>
    <message>
        <source>There is nothing in it.</source>
        <translation>No contiene nada.</translation>
    </message>
    <message>
        <source>This is a PDF, which has no columns to read; open it in a viewer.</source>
        <translation>Es un PDF, que no tiene columnas que leer; ábrelo en un visor.</translation>
    </message>
    <message>
        <source>This is a spreadsheet with a password or of the old kind (.xls). Save it without a password as .xlsx, .ods or text (CSV).</source>
        <translation>Es una hoja de cálculo con contraseña o del tipo antiguo (.xls). Guárdala sin contraseña como .xlsx, .ods o texto (CSV).</translation>
    </message>
    <message>
        <source>This is neither text nor a spreadsheet (.xlsx, .ods).</source>
        <translation>No es ni texto ni una hoja de cálculo (.xlsx, .ods).</translation>
    </message>
    <message>
        <source>This is no picture that can be read. Take a PNG or JPEG file.</source>
        <translation>No es una imagen que se pueda leer. Usa un archivo PNG o JPEG.</translation>
    </message>
    <message>
        <source>a time or a penalty is below 0</source>
        <translation>un tiempo o una penalización es menor que 0</translation>
    </message>
    <message>
        <source>gate %1: %2</source>
        <translation>puerta %1: %2</translation>
    </message>
    <message>
        <source>is not in the team</source>
        <translation>no está en el equipo</translation>
    </message>
    <message>
        <source>it could not be read</source>
        <translation>no se pudo leer</translation>
    </message>
    <message>
        <source>missed gate</source>
        <translation>salto</translation>
    </message>
    <message>
        <source>no category of the team is called &quot;{}&quot;</source>
        <translation>ninguna categoría del equipo se llama «{}»</translation>
    </message>
    <message>
        <source>no phase of the team is called &quot;{}&quot;</source>
        <translation>ninguna fase del equipo se llama «{}»</translation>
    </message>
    <message>
        <source>no day such as 2026-05-03 or 3.5.2026</source>
        <translation>no es un día como 2026-05-03 o 3.5.2026</translation>
    </message>
    <message>
        <source>no font is installed</source>
        <translation>no hay ningún tipo de letra instalado</translation>
    </message>
    <message>
        <source>no number</source>
        <translation>no es un número</translation>
    </message>
    <message>
        <source>no time such as 92.45, 1:32.45 or 92.45 (2)</source>
        <translation>no es un tiempo como 92.45, 1:32.45 o 92.45 (2)</translation>
    </message>
    <message>
        <source>no whole number</source>
        <translation>no es un número entero</translation>
    </message>
    <message>
        <source>none of DNS, DNF, DSQ and the like</source>
        <translation>ninguno de DNS, DNF, DSQ y similares</translation>
    </message>
    <message>
        <source>stands above the titles</source>
        <translation>está encima de los títulos</translation>
    </message>
    <message>
        <source>the line ends here: it has {} of {} fields</source>
        <translation>la línea termina aquí: tiene {} de {} campos</translation>
    </message>
    <message>
        <source>the line has more fields than there are columns</source>
        <translation>la línea tiene más campos que columnas hay</translation>
    </message>
    <message>
        <source>the run was not finished</source>
        <translation>la manga no se terminó</translation>
    </message>
    <message>
        <source>the titles once more</source>
        <translation>los títulos otra vez</translation>
    </message>
    <message>
        <source>touches and missed gates of %1 runs</source>
        <translation>toques y saltos de %1 mangas</translation>
    </message>
    <message>
        <source>{}: no run has a film</source>
        <translation>{}: ninguna manga tiene vídeo</translation>
    </message>
    <message>
        <source>{}: the column is {}</source>
        <translation>{}: la columna es {}</translation>
    </message>
    <message>
        <source>1 field where a bib and a name are needed</source>
        <translation>1 campo donde hacen falta un dorsal y un nombre</translation>
    </message>
    <message>
        <source>A bracket { is not closed.</source>
        <translation>Una llave { no está cerrada.</translation>
    </message>
    <message>
        <source>A computer with Windows cannot take this name.</source>
        <translation>Un ordenador con Windows no acepta este nombre.</translation>
    </message>
    <message>
        <source>A heat has one to four boats.</source>
        <translation>Una serie tiene de uno a cuatro barcos.</translation>
    </message>
    <message>
        <source>An unnamed boat is not in this heat.</source>
        <translation>Un barco sin nombre no está en esta serie.</translation>
    </message>
    <message>
        <source>Both are kept: the one of this computer is “{}” now.</source>
        <translation>Se conservan ambos: el de este ordenador ahora es «{}».</translation>
    </message>
    <message>
        <source>Both sides have the same.</source>
        <translation>Ambos lados tienen lo mismo.</translation>
    </message>
    <message>
        <source>Gate {}: it is not on the cross course.</source>
        <translation>Puerta {}: no está en el recorrido de cross.</translation>
    </message>
    <message>
        <source>Gate {}: {}</source>
        <translation>Puerta {}: {}</translation>
    </message>
    <message>
        <source>It could not be given another name. Compare again.</source>
        <translation>No se le pudo dar otro nombre. Compara de nuevo.</translation>
    </message>
    <message>
        <source>It is here again. Compare again.</source>
        <translation>Está aquí de nuevo. Compara de nuevo.</translation>
    </message>
    <message>
        <source>It is not here any more.</source>
        <translation>Ya no está aquí.</translation>
    </message>
    <message>
        <source>It is not on the server any more. Compare again.</source>
        <translation>Ya no está en el servidor. Compara de nuevo.</translation>
    </message>
    <message>
        <source>It is not on the server yet: {}</source>
        <translation>Aún no está en el servidor: {}</translation>
    </message>
    <message>
        <source>It is on the server again. Compare again.</source>
        <translation>Está de nuevo en el servidor. Compara de nuevo.</translation>
    </message>
    <message>
        <source>It was changed here meanwhile. Compare again.</source>
        <translation>Mientras tanto se modificó aquí. Compara de nuevo.</translation>
    </message>
    <message>
        <source>It was changed on the server meanwhile. Compare again.</source>
        <translation>Mientras tanto se modificó en el servidor. Compara de nuevo.</translation>
    </message>
    <message>
        <source>It was changed while it was sent. Compare again.</source>
        <translation>Se modificó mientras se enviaba. Compara de nuevo.</translation>
    </message>
    <message>
        <source>Its name has control characters.</source>
        <translation>Su nombre tiene caracteres de control.</translation>
    </message>
    <message>
        <source>Its name is no text.</source>
        <translation>Su nombre no es texto.</translation>
    </message>
    <message>
        <source>Its name is too long.</source>
        <translation>Su nombre es demasiado largo.</translation>
    </message>
    <message>
        <source>Its name leads out of the folder.</source>
        <translation>Su nombre lleva fuera de la carpeta.</translation>
    </message>
    <message>
        <source>No mark tells yet how this camera&apos;s film lies beside the run&apos;s first one: mark one moment on both in split taking.</source>
        <translation>Ninguna marca indica aún cómo está el vídeo de esta cámara respecto al primero de la manga: marca un momento en ambos en la toma de parciales.</translation>
    </message>
    <message>
        <source>This is a fixed camera beside the run&apos;s own film: synchronise the two in split taking first.</source>
        <translation>Es una cámara fija junto al propio vídeo de la manga: sincroniza antes los dos en la toma de parciales.</translation>
    </message>
    <message>
        <source>The course has {}, and this line is for split {}.</source>
        <translation>El recorrido tiene {} y esta línea es para el parcial {}.</translation>
    </message>
    <message numerus="yes">
        <source>{} splits</source>
        <translation>
            <numerusform>{} parcial</numerusform>
            <numerusform>{} parciales</numerusform>
        </translation>
    </message>
    <message>
        <source>The file that came has gone.</source>
        <translation>El archivo que llegó ha desaparecido.</translation>
    </message>
    <message>
        <source>The file that came is not what its checksum says.</source>
        <translation>El archivo que llegó no es lo que dice su suma de comprobación.</translation>
    </message>
    <message>
        <source>The pattern holds no bracket such as {name}.</source>
        <translation>El patrón no contiene ninguna llave como {name}.</translation>
    </message>
    <message>
        <source>The same bracket stands twice.</source>
        <translation>La misma llave está dos veces.</translation>
    </message>
    <message>
        <source>Two brackets stand side by side: nothing tells where one ends.</source>
        <translation>Hay dos llaves seguidas: nada indica dónde acaba una.</translation>
    </message>
    <message>
        <source>{{{}}} is not known. There are {{name}}, {{category}}, {{phase}}, {{bib}}, {{number}} and {{any}}.</source>
        <translation>{{{}}} no se conoce. Hay {{name}}, {{category}}, {{phase}}, {{bib}}, {{number}} y {{any}}.</translation>
    </message>
    <message>
        <source>{any} does not say what is to stand there.</source>
        <translation>{any} no dice qué debe ir ahí.</translation>
    </message>
    <message>
        <source>The server has kept another length than was sent.</source>
        <translation>El servidor guardó otra longitud que la enviada.</translation>
    </message>
    <message>
        <source>The server told another length than it sent.</source>
        <translation>El servidor indicó otra longitud que la que envió.</translation>
    </message>
    <message>
        <source>The server took the file and does not have it.</source>
        <translation>El servidor aceptó el archivo y no lo tiene.</translation>
    </message>
    <message>
        <source>There are more than four boats in this heat.</source>
        <translation>Hay más de cuatro barcos en esta serie.</translation>
    </message>
    <message>
        <source>all gates</source>
        <translation>todos</translation>
    </message>
    <message>
        <source>by its name</source>
        <translation>por su nombre</translation>
    </message>
    <message>
        <source>by the order</source>
        <translation>por el orden</translation>
    </message>
    <message>
        <source>the second boat of a long film</source>
        <translation>el segundo barco de un vídeo largo</translation>
    </message>
    <message>
        <source>{} s from its start</source>
        <translation>a {} s de su salida</translation>
    </message>
    <message>
        <source>{} s from its start, if the camera&apos;s clock is wrong</source>
        <translation>a {} s de su salida, si el reloj de la cámara está mal</translation>
    </message>
    <message>
        <source>downstream</source>
        <translation>a favor</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>mixto</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>first third</source>
        <translation>primer tercio</translation>
    </message>
    <message>
        <source>second third</source>
        <translation>segundo tercio</translation>
    </message>
    <message>
        <source>last third</source>
        <translation>último tercio</translation>
    </message>
    <message>
        <source>no name is known</source>
        <translation>no se conoce el nombre</translation>
    </message>
    <message>
        <source>no {} is known</source>
        <translation>no se conoce: {}</translation>
    </message>
    <message>
        <source>nothing would be left of the name</source>
        <translation>no quedaría nada del nombre</translation>
    </message>
    <message>
        <source>the name would be too long</source>
        <translation>el nombre sería demasiado largo</translation>
    </message>
    <message>
        <source>the bib &quot;{}&quot; is no number above 0</source>
        <translation>el dorsal «{}» no es un número mayor que 0</translation>
    </message>
    <message>
        <source>the bib {} is on line {} already</source>
        <translation>el dorsal {} ya está en la línea {}</translation>
    </message>
    <message>
        <source>the lines before have no start</source>
        <translation>las líneas anteriores no tienen salida</translation>
    </message>
    <message>
        <source>the start &quot;{}&quot; is neither a time of day such as 10:01:30 nor a number in an order</source>
        <translation>la salida «{}» no es una hora como 10:01:30 ni un número de orden</translation>
    </message>
    <message>
        <source>there is no name</source>
        <translation>no hay nombre</translation>
    </message>
    <message>
        <source>there is no number in the order</source>
        <translation>no hay número de orden</translation>
    </message>
    <message>
        <source>there is no start time, which the others have</source>
        <translation>no hay hora de salida, que los demás tienen</translation>
    </message>
    <message>
        <source>{} cannot attack and defend at once.</source>
        <translation>{} no puede atacar y defender a la vez.</translation>
    </message>
    <message>
        <source>{} is already in this heat.</source>
        <translation>{} ya está en esta serie.</translation>
    </message>
    <message>
        <source>{} is not in this heat.</source>
        <translation>{} no está en esta serie.</translation>
    </message>
    <message>
        <source>{} stands twice among the defenders.</source>
        <translation>{} está dos veces entre los defensores.</translation>
    </message>
    <message>
        <source>{} stands twice in the heat.</source>
        <translation>{} está dos veces en la serie.</translation>
    </message>
    <message>
        <source>{} stands twice in the order.</source>
        <translation>{} está dos veces en el orden.</translation>
    </message>
    <message>
        <source>{} without any detail.</source>
        <translation>{} sin ningún detalle.</translation>
    </message>
    <message>
        <source>A brace is opened and not closed: {}</source>
        <translation>Una llave se abre y no se cierra: {}</translation>
    </message>
    <message>
        <source>Aerial phase</source>
        <translation>Fase aérea</translation>
    </message>
    <message>
        <source>Water phase</source>
        <translation>Fase acuática</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ángulo</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Resistencia</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Fuerza</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Mano</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Frec. cardiaca</translation>
    </message>
    <message>
        <source>Impulse</source>
        <translation>Impulso</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Potencia</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Frec. de palada</translation>
    </message>
    <message>
        <source>Single rate</source>
        <translation>Frec. de una palada</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Segmento</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Balanceo</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Cabeceo</translation>
    </message>
    <message>
        <source>Max acceleration</source>
        <translation>Aceleración máx.</translation>
    </message>
    <message>
        <source>Mean acceleration</source>
        <translation>Aceleración media</translation>
    </message>
    <message>
        <source>Mean deceleration</source>
        <translation>Deceleración media</translation>
    </message>
    <message>
        <source>Mean rotation</source>
        <translation>Rotación media</translation>
    </message>
    <message>
        <source>Peak rotation</source>
        <translation>Rotación máxima</translation>
    </message>
    <message>
        <source>Mean push out</source>
        <translation>Empuje lateral medio</translation>
    </message>
    <message>
        <source>Peak push out</source>
        <translation>Empuje lateral máximo</translation>
    </message>
    <message>
        <source>Metres per stroke</source>
        <translation>Metros por palada</translation>
    </message>
    <message>
        <source>Is in the folder.</source>
        <translation>Está en la carpeta.</translation>
    </message>
    <message>
        <source>It is a file. A folder is shared.</source>
        <translation>Es un archivo. Se comparte una carpeta.</translation>
    </message>
    <message>
        <source>It is a link.</source>
        <translation>Es un enlace.</translation>
    </message>
    <message>
        <source>It lies too deep.</source>
        <translation>Está demasiado profundo.</translation>
    </message>
    <message>
        <source>Lies on {}, which is not ticked.</source>
        <translation>Está en {}, que no está marcado.</translation>
    </message>
    <message>
        <source>May also be bib {}.</source>
        <translation>Puede ser también el dorsal {}.</translation>
    </message>
    <message>
        <source>Only https:// keeps the password and the files from other readers.</source>
        <translation>Solo https:// protege la contraseña y los archivos de otros lectores.</translation>
    </message>
    <message>
        <source>The address asks for no {bib}, so that every run would have the same film.</source>
        <translation>La dirección no pide ningún {bib}, así que todas las mangas tendrían el mismo vídeo.</translation>
    </message>
    <message>
        <source>The address is that of a file. A folder is shared.</source>
        <translation>La dirección es la de un archivo. Se comparte una carpeta.</translation>
    </message>
    <message>
        <source>The address makes none for this run.</source>
        <translation>La dirección no da ninguno para esta manga.</translation>
    </message>
    <message>
        <source>The address must begin with https:// and a server, whose name has no braces, user or password.</source>
        <translation>La dirección debe empezar por https:// y un servidor cuyo nombre no tenga llaves, usuario ni contraseña.</translation>
    </message>
    <message>
        <source>The address must begin with https:// and hold no user name and password.</source>
        <translation>La dirección debe empezar por https:// y no contener usuario ni contraseña.</translation>
    </message>
    <message>
        <source>The address must begin with https:// or http:// and hold no user name and password.</source>
        <translation>La dirección debe empezar por https:// o http:// y no contener usuario ni contraseña.</translation>
    </message>
    <message>
        <source>The list has no film with this bib.</source>
        <translation>La lista no tiene ningún vídeo con este dorsal.</translation>
    </message>
    <message>
        <source>The list tells no {} of this run.</source>
        <translation>La lista no indica de esta manga: {}.</translation>
    </message>
    <message>
        <source>number of the run</source>
        <translation>número de la manga</translation>
    </message>
    <message>
        <source>The pattern of names: {}</source>
        <translation>El patrón de nombres: {}</translation>
    </message>
    <message>
        <source>The server does not speak WebDAV at this address.</source>
        <translation>El servidor no habla WebDAV en esta dirección.</translation>
    </message>
    <message>
        <source>The server has too many files to share.</source>
        <translation>El servidor tiene demasiados archivos para compartir.</translation>
    </message>
    <message>
        <source>The server says that it lies in another folder.</source>
        <translation>El servidor dice que está en otra carpeta.</translation>
    </message>
    <message>
        <source>There are too many files to share.</source>
        <translation>Hay demasiados archivos para compartir.</translation>
    </message>
    <message>
        <source>There is no address yet.</source>
        <translation>Aún no hay dirección.</translation>
    </message>
    <message>
        <source>There is no folder for the films yet.</source>
        <translation>Aún no hay carpeta para los vídeos.</translation>
    </message>
    <message>
        <source>There is no start list, results list or split file for the bibs yet.</source>
        <translation>Aún no hay lista de salida, lista de resultados o archivo de parciales para los dorsales.</translation>
    </message>
    <message>
        <source>Would be more than 20 GB in one go.</source>
        <translation>Serían más de 20 GB de una vez.</translation>
    </message>
    <message>
        <source>{{{}}} means nothing here: there are {{bib}}, {{category}}, {{phase}} and {{run}}.</source>
        <translation>{{{}}} no significa nada aquí: hay {{bib}}, {{category}}, {{phase}} y {{run}}.</translation>
    </message>
    <message>
        <source>Explain one number instead: cell/ROW/COLUMN, the row counted from 0 as in --json, as in cell/0/time</source>
        <translation>Explica en su lugar un número: cell/FILA/COLUMNA, la fila contada desde 0 como en --json, por ejemplo cell/0/time</translation>
    </message>
    <message>
        <source>No start of {} is known in these races.</source>
        <translation>No se conoce ninguna salida de {} en estas carreras.</translation>
    </message>
    <message>
        <source>Only races in which this athlete starts, in whichever phase</source>
        <translation>Solo carreras en las que sale este deportista, en cualquier fase</translation>
    </message>
    <message>
        <source>Only races in which {} starts.</source>
        <translation>Solo carreras en las que sale {}.</translation>
    </message>
    <message>
        <source>Explain one number instead: cell/ROW/COLUMN, the row counted from 0 as in --json, as in cell/0/rank</source>
        <translation>Explica en su lugar un número: cell/FILA/COLUMNA, la fila contada desde 0 como en --json, por ejemplo cell/0/rank</translation>
    </message>
    <message>
        <source>line {}</source>
        <translation>línea {}</translation>
    </message>
    <message>
        <source>column {}</source>
        <translation>columna {}</translation>
    </message>
    <message>
        <source>An empty penalty adds nothing.</source>
        <translation>Una penalización vacía no suma nada.</translation>
    </message>
    <message>
        <source>better</source>
        <translation>mejores</translation>
    </message>
    <message>
        <source>others</source>
        <translation>otros</translation>
    </message>
    <message>
        <source>Only rows with {} in {} are compared.</source>
        <translation>Solo se comparan las filas con {} en {}.</translation>
    </message>
    <message>
        <source>The highest is the best.</source>
        <translation>El más alto es el mejor.</translation>
    </message>
    <message>
        <source>As it stands in the list, read as a number.</source>
        <translation>Como está en la lista, leído como número.</translation>
    </message>
    <message>
        <source>list</source>
        <translation>lista</translation>
    </message>
    <message>
        <source>The columns of the row added up.</source>
        <translation>Las columnas de la fila sumadas.</translation>
    </message>
    <message>
        <source>Σ columns</source>
        <translation>Σ columnas</translation>
    </message>
    <message>
        <source>The place in the column: one more than are better; times to the hundredth.</source>
        <translation>El puesto en la columna: uno más que los que son mejores; tiempos a la centésima.</translation>
    </message>
    <message>
        <source>1 + better</source>
        <translation>1 + mejores</translation>
    </message>
    <message>
        <source>How far the number is behind the best of the column.</source>
        <translation>Cuánto está el número por detrás del mejor de la columna.</translation>
    </message>
    <message>
        <source>own − best</source>
        <translation>propio − mejor</translation>
    </message>
    <message>
        <source>How many percent the number is behind the best of the column.</source>
        <translation>Cuánto por ciento está el número por detrás del mejor de la columna.</translation>
    </message>
    <message>
        <source>How many percent of the others in the column are better.</source>
        <translation>Qué porcentaje de los otros de la columna son mejores.</translation>
    </message>
    <message>
        <source>100 · better / others</source>
        <translation>100 · mejores / otros</translation>
    </message>
    <message>
        <source>The first column less the second.</source>
        <translation>La primera columna menos la segunda.</translation>
    </message>
    <message>
        <source>first − second</source>
        <translation>primera − segunda</translation>
    </message>
    <message>
        <source>How many rows say something in the column.</source>
        <translation>Cuántas filas dicen algo en la columna.</translation>
    </message>
    <message>
        <source>The numbers of all these rows added up.</source>
        <translation>Los números de todas estas filas sumados.</translation>
    </message>
    <message>
        <source>Σ rows</source>
        <translation>Σ filas</translation>
    </message>
    <message>
        <source>The mean of the numbers of these rows.</source>
        <translation>La media de los números de estas filas.</translation>
    </message>
    <message>
        <source>Σ rows / number of rows</source>
        <translation>Σ filas / número de filas</translation>
    </message>
    <message>
        <source>As many of these rows have less as have more.</source>
        <translation>Tantas de estas filas tienen menos como más.</translation>
    </message>
    <message>
        <source>median of rows</source>
        <translation>mediana de las filas</translation>
    </message>
    <message>
        <source>The least number of these rows.</source>
        <translation>El menor número de estas filas.</translation>
    </message>
    <message>
        <source>least of rows</source>
        <translation>menor de las filas</translation>
    </message>
    <message>
        <source>The largest number of these rows.</source>
        <translation>El mayor número de estas filas.</translation>
    </message>
    <message>
        <source>largest of rows</source>
        <translation>mayor de las filas</translation>
    </message>
    <message>
        <source>Of {} rows the first {} are told.</source>
        <translation>De {} filas se nombran las primeras {}.</translation>
    </message>
    <message>
        <source>this table is damaged: {}</source>
        <translation>esta tabla está dañada: {}</translation>
    </message>
    <message>
        <source>A list: text (CSV, tabs, columns of blanks), a spreadsheet (.xlsx, .ods), a split file (.kvx) that carries one, or a saved table (.kvtable)</source>
        <translation>Una lista: texto (CSV, tabuladores, columnas de espacios), una hoja de cálculo (.xlsx, .ods), un archivo de parciales (.kvx) que lleve una o una tabla guardada (.kvtable)</translation>
    </message>
    <message numerus="yes">
        <source>{} more rows are not told.</source>
        <translation>
            <numerusform>No se muestra {} fila más.</numerusform>
            <numerusform>No se muestran {} filas más.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>{} rows have no such value.</source>
        <translation>
            <numerusform>{} fila no tiene ese valor.</numerusform>
            <numerusform>{} filas no tienen ese valor.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>90 % interval, {} runs</source>
        <translation>
            <numerusform>intervalo del 90 %, {} manga</numerusform>
            <numerusform>intervalo del 90 %, {} mangas</numerusform>
        </translation>
    </message>
    <message>
        <source>column {}: “{}” is no date</source>
        <translation>columna {}: «{}» no es una fecha</translation>
    </message>
    <message>
        <source>column {}: “{}” is no number</source>
        <translation>columna {}: «{}» no es un número</translation>
    </message>
    <message>
        <source>the line ends before its time</source>
        <translation>la línea acaba antes de su tiempo</translation>
    </message>
    <message>
        <source>an axis of the acceleration is missing</source>
        <translation>falta un eje de la aceleración</translation>
    </message>
    <message>
        <source>Some lines were not in order of time and were put in order.</source>
        <translation>Algunas líneas no estaban en orden de tiempo y se ordenaron.</translation>
    </message>
    <message>
        <source>Gravity was split off the acceleration by a low-pass of 0.3 Hz.</source>
        <translation>La gravedad se separó de la aceleración con un filtro de paso bajo de 0,3 Hz.</translation>
    </message>
    <message>
        <source>There is no gravity in the list.</source>
        <translation>En la lista no está la gravedad.</translation>
    </message>
    <message>
        <source>There is no rotation in the list: hands and turns cannot be found.</source>
        <translation>En la lista no está la rotación: no se pueden encontrar ni los lados de palada ni los giros.</translation>
    </message>
    <message>
        <source>the messages end within a definition</source>
        <translation>los mensajes acaban dentro de una definición</translation>
    </message>
    <message>
        <source>the messages end within a message</source>
        <translation>los mensajes acaban dentro de un mensaje</translation>
    </message>
    <message>
        <source>byte {}</source>
        <translation>byte {}</translation>
    </message>
    <message>
        <source>the header&apos;s check sum does not agree</source>
        <translation>la suma de control de la cabecera no coincide</translation>
    </message>
    <message>
        <source>the file&apos;s check sum does not agree: bytes of it are damaged</source>
        <translation>la suma de control del archivo no coincide: tiene bytes dañados</translation>
    </message>
    <message>
        <source>the file ends within a header</source>
        <translation>el archivo acaba dentro de una cabecera</translation>
    </message>
    <message>
        <source>a header of {} bytes: it has to have 12 or 14</source>
        <translation>una cabecera de {} bytes: tiene que tener 12 o 14</translation>
    </message>
    <message>
        <source>the header does not say that this is a FIT file</source>
        <translation>la cabecera no dice que esto sea un archivo FIT</translation>
    </message>
    <message>
        <source>the recording was not finished by its device: it is empty</source>
        <translation>el dispositivo no terminó la grabación: está vacía</translation>
    </message>
    <message>
        <source>the file ends here, but its header announces {} bytes</source>
        <translation>el archivo acaba aquí, pero su cabecera anuncia {} bytes</translation>
    </message>
    <message>
        <source>a byte order of {}: it is 0 or 1</source>
        <translation>un orden de bytes {}: es 0 o 1</translation>
    </message>
    <message>
        <source>a message of type {}, which is not defined</source>
        <translation>un mensaje de tipo {}, que no está definido</translation>
    </message>
    <message numerus="yes">
        <source>The file holds {} sessions; all were taken.</source>
        <translation>
            <numerusform>El archivo contiene {} sesión; se ha tomado entera.</numerusform>
            <numerusform>El archivo contiene {} sesiones; se han tomado todas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The watch was stopped {} times.</source>
        <translation>
            <numerusform>El reloj se paró {} vez.</numerusform>
            <numerusform>El reloj se paró {} veces.</numerusform>
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
        <translation>La grabación tiene posiciones propias, que se conservan.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} after the recording.</source>
        <translation>Las posiciones del track empiezan {} después de la grabación.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} before the recording.</source>
        <translation>Las posiciones del track empiezan {} antes que la grabación.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} after the recording; perhaps an offset of {} h is missing.</source>
        <translation>Las posiciones del track empiezan {} después de la grabación; quizá falta un desfase de {} h.</translation>
    </message>
    <message>
        <source>The track&apos;s positions begin {} before the recording; perhaps an offset of {} h is missing.</source>
        <translation>Las posiciones del track empiezan {} antes que la grabación; quizá falta un desfase de {} h.</translation>
    </message>
    <message>
        <source>The recording has heart rates of its own, which stay.</source>
        <translation>La grabación tiene frecuencias cardiacas propias, que se conservan.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} after the recording.</source>
        <translation>Las frecuencias cardiacas del track empiezan {} después de la grabación.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} before the recording.</source>
        <translation>Las frecuencias cardiacas del track empiezan {} antes que la grabación.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} after the recording; perhaps an offset of {} h is missing.</source>
        <translation>Las frecuencias cardiacas del track empiezan {} después de la grabación; quizá falta un desfase de {} h.</translation>
    </message>
    <message>
        <source>The track&apos;s heart rates begin {} before the recording; perhaps an offset of {} h is missing.</source>
        <translation>Las frecuencias cardiacas del track empiezan {} antes que la grabación; quizá falta un desfase de {} h.</translation>
    </message>
    <message>
        <source>The recording has no motion samples to join the track to.</source>
        <translation>La grabación no tiene muestras de movimiento a las que unir el track.</translation>
    </message>
    <message>
        <source>“{}” stands over two columns.</source>
        <translation>«{}» está sobre dos columnas.</translation>
    </message>
    <message>
        <source>Of the acceleration with gravity all of x, y and z are needed.</source>
        <translation>De la aceleración con gravedad hacen falta x, y y z.</translation>
    </message>
    <message>
        <source>Of the acceleration without gravity all of x, y and z are needed.</source>
        <translation>De la aceleración sin gravedad hacen falta x, y y z.</translation>
    </message>
    <message>
        <source>Of the rotation all of x, y and z are needed.</source>
        <translation>De la rotación hacen falta x, y y z.</translation>
    </message>
    <message>
        <source>Of the gravity all of x, y and z are needed.</source>
        <translation>De la gravedad hacen falta x, y y z.</translation>
    </message>
    <message>
        <source>Latitude and longitude go together.</source>
        <translation>La latitud y la longitud van juntas.</translation>
    </message>
    <message>
        <source>Acc. x with gravity</source>
        <translation>Acel. x con gravedad</translation>
    </message>
    <message>
        <source>Acc. y with gravity</source>
        <translation>Acel. y con gravedad</translation>
    </message>
    <message>
        <source>Acc. z with gravity</source>
        <translation>Acel. z con gravedad</translation>
    </message>
    <message>
        <source>Acc. x without gravity</source>
        <translation>Acel. x sin gravedad</translation>
    </message>
    <message>
        <source>Acc. y without gravity</source>
        <translation>Acel. y sin gravedad</translation>
    </message>
    <message>
        <source>Acc. z without gravity</source>
        <translation>Acel. z sin gravedad</translation>
    </message>
    <message>
        <source>Gravity x</source>
        <translation>Gravedad x</translation>
    </message>
    <message>
        <source>Gravity y</source>
        <translation>Gravedad y</translation>
    </message>
    <message>
        <source>Gravity z</source>
        <translation>Gravedad z</translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation>Guiñada</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitud</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>No column is the time.</source>
        <translation>Ninguna columna es el tiempo.</translation>
    </message>
    <message>
        <source>Commas cannot be in numbers and between columns.</source>
        <translation>No puede haber comas en los números y entre las columnas a la vez.</translation>
    </message>
    <message>
        <source>No column is acceleration, position or heart rate.</source>
        <translation>Ninguna columna es aceleración, posición o frecuencia cardiaca.</translation>
    </message>
    <message>
        <source>this is no plain text; a list has to be saved as UTF-8</source>
        <translation>no es texto sin formato; una lista tiene que guardarse como UTF-8</translation>
    </message>
    <message>
        <source>this is no list of samples: in its first {} lines there is none with numbers in columns</source>
        <translation>no es una lista de muestras: en sus primeras {} líneas no hay ninguna con números en columnas</translation>
    </message>
    <message>
        <source>the list has more than {} lines</source>
        <translation>la lista tiene más de {} líneas</translation>
    </message>
    <message>
        <source>the file is too large to be imported (over {} MB)</source>
        <translation>el archivo es demasiado grande para importarlo (más de {} MB)</translation>
    </message>
    <message>
        <source>the file grew while it was read</source>
        <translation>el archivo creció mientras se leía</translation>
    </message>
    <message>
        <source>this is no track: neither GPX nor TCX nor FIT</source>
        <translation>no es un track: ni GPX ni TCX ni FIT</translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} positions outside the globe.</source>
        <translation>
            <numerusform>Omitida: {} posición fuera del globo.</numerusform>
            <numerusform>Omitidas: {} posiciones fuera del globo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} speeds that no boat has.</source>
        <translation>
            <numerusform>Omitida: {} velocidad que no tiene ningún barco.</numerusform>
            <numerusform>Omitidas: {} velocidades que no tiene ningún barco.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} points without a date.</source>
        <translation>
            <numerusform>Omitido: {} punto sin fecha.</numerusform>
            <numerusform>Omitidos: {} puntos sin fecha.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} heart rates that are none.</source>
        <translation>
            <numerusform>Omitida: {} frecuencia cardiaca que no lo es.</numerusform>
            <numerusform>Omitidas: {} frecuencias cardiacas que no lo son.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} positions at the moment of another.</source>
        <translation>
            <numerusform>Omitida: {} posición en el mismo instante que otra.</numerusform>
            <numerusform>Omitidas: {} posiciones en el mismo instante que otra.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} heart rates at the moment of another.</source>
        <translation>
            <numerusform>Omitida: {} frecuencia cardiaca en el mismo instante que otra.</numerusform>
            <numerusform>Omitidas: {} frecuencias cardiacas en el mismo instante que otra.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out: {} way points and points of routes.</source>
        <translation>
            <numerusform>Omitido: {} punto de paso o de ruta.</numerusform>
            <numerusform>Omitidos: {} puntos de paso y de rutas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The speed of {} positions was computed from the positions around them.</source>
        <translation>
            <numerusform>La velocidad de {} posición se calculó a partir de las posiciones vecinas.</numerusform>
            <numerusform>La velocidad de {} posiciones se calculó a partir de las posiciones vecinas.</numerusform>
        </translation>
    </message>
    <message>
        <source>the track has more than {} points</source>
        <translation>el track tiene más de {} puntos</translation>
    </message>
    <message>
        <source>the XML is damaged: {}</source>
        <translation>el XML está dañado: {}</translation>
    </message>
    <message>
        <source>this XML is no track: neither GPX nor TCX</source>
        <translation>este XML no es un track: ni GPX ni TCX</translation>
    </message>
    <message>
        <source>a number was expected, found {}</source>
        <translation>se esperaba un número, hay {}</translation>
    </message>
    <message>
        <source>an integer was expected, found {}</source>
        <translation>se esperaba un entero, hay {}</translation>
    </message>
    <message>
        <source>a boolean was expected, found {}</source>
        <translation>se esperaba un booleano, hay {}</translation>
    </message>
    <message>
        <source>a string was expected, found {}</source>
        <translation>se esperaba una cadena de texto, hay {}</translation>
    </message>
    <message>
        <source>a base64 string was expected, found {}</source>
        <translation>se esperaba una cadena en base64, hay {}</translation>
    </message>
    <message>
        <source>an array was expected, found {}</source>
        <translation>se esperaba una lista, hay {}</translation>
    </message>
    <message>
        <source>an object was expected, found {}</source>
        <translation>se esperaba un objeto, hay {}</translation>
    </message>
    <message>
        <source>the integer {} is out of range</source>
        <translation>el entero {} está fuera de rango</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>una lista</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objeto</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>un entero</translation>
    </message>
    <message>
        <source>a number that is no 64-bit integer</source>
        <translation>un número que no es un entero de 64 bits</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>una cadena de texto</translation>
    </message>
    <message>
        <source>a boolean</source>
        <translation>un booleano</translation>
    </message>
    <message>
        <source>something else</source>
        <translation>otra cosa</translation>
    </message>
    <message>
        <source>the key is missing</source>
        <translation>falta la clave</translation>
    </message>
    <message>
        <source>a base64 string was expected, found other text</source>
        <translation>se esperaba una cadena en base64, hay otro texto</translation>
    </message>
    <message>
        <source>a number that is not finite cannot be written</source>
        <translation>un número que no es finito no se puede escribir</translation>
    </message>
    <message>
        <source>a text that is not valid UTF-8 cannot be written</source>
        <translation>un texto que no es UTF-8 válido no se puede escribir</translation>
    </message>
    <message>
        <source>waits {} s</source>
        <translation>espera {} s</translation>
    </message>
    <message>
        <source>Section {}</source>
        <translation>Tramo {}</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is none of {}</source>
        <translation>«{}» no es ninguno de {}</translation>
    </message>
    <message>
        <source>{} is not a number from {} on</source>
        <translation>{} no es un número a partir de {}</translation>
    </message>
    <message>
        <source>either two points or none are needed</source>
        <translation>hacen falta dos puntos o ninguno</translation>
    </message>
    <message>
        <source>a number from 1 to 2 was expected</source>
        <translation>se esperaba un número de 1 a 2</translation>
    </message>
    <message>
        <source>no path is named that could be drawn or followed</source>
        <translation>no se indica ninguna trayectoria que se pueda dibujar o seguir</translation>
    </message>
    <message>
        <source>{}: the size of its picture is missing</source>
        <translation>{}: falta el tamaño de su imagen</translation>
    </message>
    <message numerus="yes">
        <source>the split file has {} runs</source>
        <translation>
            <numerusform>el archivo de parciales tiene {} manga</numerusform>
            <numerusform>el archivo de parciales tiene {} mangas</numerusform>
        </translation>
    </message>
    <message>
        <source>the run has no film of this camera</source>
        <translation>la manga no tiene vídeo de esta cámara</translation>
    </message>
    <message>
        <source>neither a film nor a split file is named</source>
        <translation>no se indica ni un vídeo ni un archivo de parciales</translation>
    </message>
    <message>
        <source>a share from 0 to 1 was expected</source>
        <translation>se esperaba una proporción de 0 a 1</translation>
    </message>
    <message>
        <source>{} films; this layout takes 2 to 4</source>
        <translation>vídeos: {}; esta disposición admite de 2 a 4</translation>
    </message>
    <message>
        <source>{} films; this layout takes 2</source>
        <translation>vídeos: {}; esta disposición admite 2</translation>
    </message>
    <message>
        <source>an even number from 160 to 4096 was expected</source>
        <translation>se esperaba un número par de 160 a 4096</translation>
    </message>
    <message>
        <source>the picture is larger than 1920 × 1080 and would not play everywhere</source>
        <translation>la imagen es mayor que 1920 × 1080 y no se reproduciría en todas partes</translation>
    </message>
    <message>
        <source>it does not lie behind {}</source>
        <translation>no está después de {}</translation>
    </message>
    <message>
        <source>a number from 0.125 to 1 was expected</source>
        <translation>se esperaba un número de 0,125 a 1</translation>
    </message>
    <message>
        <source>there is no film of this number; 0 is no sound</source>
        <translation>no hay ningún vídeo con este número; 0 es sin sonido</translation>
    </message>
    <message>
        <source>films that lie over each other cannot follow a path</source>
        <translation>los vídeos superpuestos no pueden seguir una trayectoria</translation>
    </message>
    <message>
        <source>{}: the start lies outside the film, at {} s.</source>
        <translation>{}: la salida está fuera del vídeo, en {} s.</translation>
    </message>
    <message>
        <source>{}: split {} lies outside the film, at {} s.</source>
        <translation>{}: el parcial {} está fuera del vídeo, en {} s.</translation>
    </message>
    <message>
        <source>so large a picture would not play everywhere at {} frames a second</source>
        <translation>una imagen tan grande no se reproduciría en todas partes a {} fotogramas por segundo</translation>
    </message>
    <message>
        <source>{} is not shown: {}.</source>
        <translation>{} no se muestra: {}.</translation>
    </message>
    <message>
        <source>{} is cut off or damaged; it is shown as far as it goes.</source>
        <translation>{} está cortado o dañado; se muestra hasta donde llega.</translation>
    </message>
    <message>
        <source>{}: at {} s a frame cannot be shown ({}); the last good one stays.</source>
        <translation>{}: en {} s no se puede mostrar un fotograma ({}); se queda el último bueno.</translation>
    </message>
    <message>
        <source>no film has a mark at this split</source>
        <translation>ningún vídeo tiene una marca en este parcial</translation>
    </message>
    <message>
        <source>no run is marked at its start, so the range has to be given in seconds</source>
        <translation>ninguna manga está marcada en su salida, así que el intervalo hay que darlo en segundos</translation>
    </message>
    <message>
        <source>its end does not lie behind its beginning</source>
        <translation>su final no está después de su principio</translation>
    </message>
    <message>
        <source>it cannot be decoded</source>
        <translation>no se puede decodificar</translation>
    </message>
    <message>
        <source>its pictures are in a format of no use</source>
        <translation>sus imágenes están en un formato que no sirve</translation>
    </message>
    <message>
        <source>the start is not marked on this film, so it cannot be held there</source>
        <translation>la salida no está marcada en este vídeo, así que no se puede detener ahí</translation>
    </message>
    <message>
        <source>split {} is not marked on this film, so it cannot be held there</source>
        <translation>el parcial {} no está marcado en este vídeo, así que no se puede detener ahí</translation>
    </message>
    <message>
        <source>{}: {}.</source>
        <translation>{}: {}.</translation>
    </message>
    <message>
        <source>the crew, in whatever order it is written</source>
        <translation>la tripulación, se escriba en el orden que se escriba</translation>
    </message>
    <message>
        <source>category, however it is written (K1M, MK1)</source>
        <translation>categoría, se escriba como se escriba (K1M, MK1)</translation>
    </message>
    <message>
        <source>phase of the race</source>
        <translation>fase de la carrera</translation>
    </message>
    <message>
        <source>side on which the athlete paddles</source>
        <translation>lado por el que palea el deportista</translation>
    </message>
    <message>
        <source>place of the course</source>
        <translation>lugar del recorrido</translation>
    </message>
    <message>
        <source>title of the race</source>
        <translation>título de la carrera</translation>
    </message>
    <message>
        <source>event</source>
        <translation>competición</translation>
    </message>
    <message>
        <source>Race, Training or Test</source>
        <translation>Race, Training o Test</translation>
    </message>
    <message>
        <source>kind of water</source>
        <translation>tipo de agua</translation>
    </message>
    <message>
        <source>the file</source>
        <translation>el archivo</translation>
    </message>
    <message>
        <source>2026-05-11; also 2026-05 or 2026</source>
        <translation>2026-05-11; también 2026-05 o 2026</translation>
    </message>
    <message>
        <source>year of the date</source>
        <translation>año de la fecha</translation>
    </message>
    <message>
        <source>month of the date, 1 to 12</source>
        <translation>mes de la fecha, de 1 a 12</translation>
    </message>
    <message>
        <source>of the run, with penalties</source>
        <translation>de la manga, con penalizaciones</translation>
    </message>
    <message>
        <source>of the run, without penalties</source>
        <translation>de la manga, sin penalizaciones</translation>
    </message>
    <message>
        <source>penalty seconds of the run</source>
        <translation>segundos de penalización de la manga</translation>
    </message>
    <message>
        <source>place among the runs that compete</source>
        <translation>puesto entre las mangas que compiten</translation>
    </message>
    <message>
        <source>position in the official list</source>
        <translation>posición en la lista oficial</translation>
    </message>
    <message>
        <source>number of the run in its file, from 0</source>
        <translation>número de la manga en su archivo, desde 0</translation>
    </message>
    <message>
        <source>sprint time</source>
        <translation>tiempo de esprint</translation>
    </message>
    <message>
        <source>of the section, where both its marks were taken</source>
        <translation>del tramo, donde se tomaron sus dos marcas</translation>
    </message>
    <message>
        <source>from entrance to exit</source>
        <translation>de la entrada a la salida</translation>
    </message>
    <message>
        <source>from entrance to the pole line</source>
        <translation>de la entrada a la línea de la puerta</translation>
    </message>
    <message>
        <source>from the pole line to the exit</source>
        <translation>de la línea de la puerta a la salida</translation>
    </message>
    <message>
        <source>number of the gate</source>
        <translation>número de la puerta</translation>
    </message>
    <message>
        <source>number of the section, from 1</source>
        <translation>número del tramo, desde 1</translation>
    </message>
    <message>
        <source>up for a section with an upstream gate, or down</source>
        <translation>up para un tramo con un remonte, o down</translation>
    </message>
    <message>
        <source>up: only upstream gates are timed by themselves</source>
        <translation>up: solo los remontes se cronometran por sí solos</translation>
    </message>
    <message>
        <source>up for an upstream gate, or down</source>
        <translation>up para un remonte, o down</translation>
    </message>
    <message>
        <source>penalty seconds in the section</source>
        <translation>segundos de penalización en el tramo</translation>
    </message>
    <message>
        <source>strokes on the left</source>
        <translation>paladas por la izquierda</translation>
    </message>
    <message>
        <source>strokes on the right</source>
        <translation>paladas por la derecha</translation>
    </message>
    <message>
        <source>strokes marked in the section</source>
        <translation>paladas marcadas en el tramo</translation>
    </message>
    <message>
        <source>side to which the boat turns</source>
        <translation>lado hacia el que gira el barco</translation>
    </message>
    <message>
        <source>how the gate is paddled</source>
        <translation>cómo se pasa la puerta</translation>
    </message>
    <message>
        <source>of the penalty</source>
        <translation>de la penalización</translation>
    </message>
    <message>
        <source>touch, or how the gate was missed</source>
        <translation>toque, o cómo se saltó la puerta</translation>
    </message>
    <message>
        <source>kind of gate</source>
        <translation>tipo de puerta</translation>
    </message>
    <message>
        <source>which pole</source>
        <translation>qué palo</translation>
    </message>
    <message>
        <source>what touched, or how the gate was missed</source>
        <translation>qué tocó, o cómo se saltó la puerta</translation>
    </message>
    <message>
        <source>where in the gate</source>
        <translation>en qué parte de la puerta</translation>
    </message>
    <message>
        <source>how the boat was moving</source>
        <translation>cómo se movía el barco</translation>
    </message>
    <message>
        <source>how the gate was paddled</source>
        <translation>cómo se pasó la puerta</translation>
    </message>
    <message>
        <source>where the athlete looked</source>
        <translation>adónde miraba el deportista</translation>
    </message>
    <message>
        <source>below 0 for time gained</source>
        <translation>por debajo de 0 si se ganó tiempo</translation>
    </message>
    <message>
        <source>of the other run&apos;s time</source>
        <translation>del tiempo de la otra manga</translation>
    </message>
    <message>
        <source>against whom</source>
        <translation>contra quién</translation>
    </message>
    <message>
        <source>reasons noted</source>
        <translation>motivos anotados</translation>
    </message>
    <message>
        <source>combination of gates</source>
        <translation>combinación de puertas</translation>
    </message>
    <message>
        <source>part of the gate</source>
        <translation>parte de la puerta</translation>
    </message>
    <message>
        <source>how the stretch was paddled</source>
        <translation>cómo se pasó el trecho</translation>
    </message>
    <message>
        <source>the water there</source>
        <translation>el agua en ese lugar</translation>
    </message>
    <message>
        <source>the word of a mark</source>
        <translation>la palabra de una etiqueta</translation>
    </message>
    <message>
        <source>Behind &quot;{}&quot; stands &quot;{}&quot;, which is a condition.</source>
        <translation>Detrás de «{}» está «{}», que es una condición.</translation>
    </message>
    <message>
        <source>Only values can stand here.</source>
        <translation>Aquí solo puede haber valores.</translation>
    </message>
    <message>
        <source>One limit stands here, such as 4 or {}4.</source>
        <translation>Aquí va un solo límite, como 4 o {}4.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; needs the name of a column.</source>
        <translation>«{}» necesita el nombre de una columna.</translation>
    </message>
    <message>
        <source>Before a value stands the name of its column, such as athlete or text.</source>
        <translation>Delante de un valor va el nombre de su columna, como athlete o text.</translation>
    </message>
    <message>
        <source>Before &quot;{}&quot; stands the name of a column.</source>
        <translation>Delante de «{}» va el nombre de una columna.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; needs a value.</source>
        <translation>«{}» necesita un valor.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; needs a value; one of our own words stands in quotes.</source>
        <translation>«{}» necesita un valor; una de nuestras propias palabras va entre comillas.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is a text: it is compared by = and != alone.</source>
        <translation>«{}» es un texto: solo se compara con = y !=.</translation>
    </message>
    <message>
        <source>There is nothing in the quotes.</source>
        <translation>No hay nada entre las comillas.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; has words for values: it is compared by = and != alone.</source>
        <translation>«{}» tiene palabras como valores: solo se compara con = y !=.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no day: write 2026-05-11, or 2026-05, or 2026.</source>
        <translation>«{}» no es un día: escribe 2026-05-11, o 2026-05, o 2026.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no {}.</source>
        <translation>«{}» no es un valor de {}.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number.</source>
        <translation>«{}» no es un número.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is not told of {}, but of {}.</source>
        <translation>«{}» no se dice de {}, sino de {}.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; means nothing in a query about {}.</source>
        <translation>«{}» no significa nada en una consulta sobre {}.</translation>
    </message>
    <message>
        <source>A value of several words stands in quotes.</source>
        <translation>Un valor de varias palabras va entre comillas.</translation>
    </message>
    <message>
        <source>Nearly every row has a {} of its own.</source>
        <translation>Casi cada fila tiene su propio valor de {}.</translation>
    </message>
    <message>
        <source>Groups are made by three columns at most.</source>
        <translation>Los grupos se forman con tres columnas como máximo.</translation>
    </message>
    <message>
        <source>There is one &quot;best&quot; already.</source>
        <translation>Ya hay un «best».</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number, of which one could be the best.</source>
        <translation>«{}» no es un número del que uno pueda ser el mejor.</translation>
    </message>
    <message>
        <source>There is one &quot;sort&quot; already.</source>
        <translation>Ya hay un «sort».</translation>
    </message>
    <message>
        <source>Groups are sorted by what makes them, or by count, best, mean or median.</source>
        <translation>Los grupos se ordenan por lo que los forma, o por count, best, mean o median.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no number of rows.</source>
        <translation>«{}» no es un número de filas.</translation>
    </message>
    <message>
        <source>The quote is not closed.</source>
        <translation>Las comillas no se cierran.</translation>
    </message>
    <message>
        <source>&quot;!&quot; stands only in &quot;!=&quot;.</source>
        <translation>«!» solo va en «!=».</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>no hay memoria suficiente para él</translation>
    </message>
    <message>
        <source>There is no bib.</source>
        <translation>No hay dorsal.</translation>
    </message>
    <message>
        <source>&quot;{}&quot; is no bib.</source>
        <translation>«{}» no es un dorsal.</translation>
    </message>
    <message>
        <source>The official results of the file have no bib for this crew.</source>
        <translation>Los resultados oficiales del archivo no tienen dorsal para esta tripulación.</translation>
    </message>
    <message>
        <source>No bib was found in {}. A list needs a column called &quot;bib&quot;; a split file needs its official results.</source>
        <translation>No se encontró ningún dorsal en {}. Una lista necesita una columna llamada «bib»; un archivo de parciales, sus resultados oficiales.</translation>
    </message>
    <message>
        <source>The answer is no WebDAV folder.</source>
        <translation>La respuesta no es una carpeta WebDAV.</translation>
    </message>
    <message>
        <source>The answer is no WebDAV folder: {}</source>
        <translation>La respuesta no es una carpeta WebDAV: {}</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>The folder takes no file: {}</source>
        <translation>La carpeta no admite archivos: {}</translation>
    </message>
    <message>
        <source>The server sends more than it announced.</source>
        <translation>El servidor envía más de lo que anunció.</translation>
    </message>
    <message>
        <source>The job has brought 20 GB, which is the most in one go.</source>
        <translation>El trabajo ha traído 20 GB, que es el máximo de una vez.</translation>
    </message>
    <message>
        <source>The disk does not take the file: {}</source>
        <translation>El disco no admite el archivo: {}</translation>
    </message>
    <message>
        <source>The file broke off before its end.</source>
        <translation>El archivo se cortó antes de su final.</translation>
    </message>
    <message>
        <source>The server sent nothing.</source>
        <translation>El servidor no envió nada.</translation>
    </message>
    <message>
        <source>The disk does not take the file.</source>
        <translation>El disco no admite el archivo.</translation>
    </message>
    <message numerus="yes">
        <source>After {} tries it was given up for now.</source>
        <translation>
            <numerusform>Tras {} intento se ha dejado por ahora.</numerusform>
            <numerusform>Tras {} intentos se ha dejado por ahora.</numerusform>
        </translation>
    </message>
    <message>
        <source>it has no pictures</source>
        <translation>no tiene imágenes</translation>
    </message>
    <message>
        <source>What the server sent is no film: {}.</source>
        <translation>Lo que envió el servidor no es un vídeo: {}.</translation>
    </message>
    <message>
        <source>The pieces of the film do not fit together: {}.</source>
        <translation>Las partes del vídeo no encajan: {}.</translation>
    </message>
    <message>
        <source>The pieces of the film could not be put together: {}.</source>
        <translation>No se pudieron unir las partes del vídeo: {}.</translation>
    </message>
    <message>
        <source>The playlists lead from one to the other without an end.</source>
        <translation>Las listas de reproducción llevan de una a otra sin fin.</translation>
    </message>
    <message>
        <source>Pieces of the film lie on {}, which is not ticked.</source>
        <translation>Hay partes del vídeo en {}, que no está marcado.</translation>
    </message>
    <message>
        <source>A piece of the film is missing: {}</source>
        <translation>Falta una parte del vídeo: {}</translation>
    </message>
    <message>
        <source>The list is no JSON: {}</source>
        <translation>La lista no es JSON: {}</translation>
    </message>
    <message>
        <source>This playlist is one film in pieces and no list of films. Give its address with {bib} in it.</source>
        <translation>Esta lista de reproducción es un solo vídeo en partes y no una lista de vídeos. Da su dirección con {bib} dentro.</translation>
    </message>
    <message>
        <source>Another program has changed it.</source>
        <translation>Otro programa lo ha cambiado.</translation>
    </message>
    <message>
        <source>The server has no such list.</source>
        <translation>El servidor no tiene esa lista.</translation>
    </message>
    <message>
        <source>The address is there and names no film.</source>
        <translation>La dirección existe y no indica ningún vídeo.</translation>
    </message>
    <message>
        <source>The playlist has no piece of a film.</source>
        <translation>La lista de reproducción no tiene ninguna parte de un vídeo.</translation>
    </message>
    <message>
        <source>The film is still growing: its playlist has no end yet.</source>
        <translation>El vídeo sigue creciendo: su lista de reproducción aún no tiene final.</translation>
    </message>
    <message>
        <source>The playlist leads to something else than a server: {}</source>
        <translation>La lista de reproducción lleva a algo que no es un servidor: {}</translation>
    </message>
    <message>
        <source>The playlist does not end: it has more than {} pieces.</source>
        <translation>La lista de reproducción no acaba: tiene más de {} partes.</translation>
    </message>
    <message>
        <source>The film is protected by &quot;{}&quot;, which only its maker&apos;s programs open.</source>
        <translation>El vídeo está protegido con «{}», que solo abren los programas de quien lo hizo.</translation>
    </message>
    <message>
        <source>The server sent a part that nobody asked for.</source>
        <translation>El servidor envió una parte que nadie pidió.</translation>
    </message>
    <message>
        <source>The file was changed meanwhile.</source>
        <translation>El archivo cambió mientras tanto.</translation>
    </message>
    <message>
        <source>The server went on from another place than it was asked to.</source>
        <translation>El servidor continuó desde un punto distinto del pedido.</translation>
    </message>
    <message>
        <source>The server packs the file in a way that was not asked for.</source>
        <translation>El servidor comprime el archivo de un modo que no se pidió.</translation>
    </message>
    <message>
        <source>The server has no more of the file.</source>
        <translation>El servidor no tiene más del archivo.</translation>
    </message>
    <message>
        <source>Not there yet.</source>
        <translation>Aún no está.</translation>
    </message>
    <message>
        <source>The server asks for fewer questions.</source>
        <translation>El servidor pide menos consultas.</translation>
    </message>
    <message>
        <source>The server leads in a circle.</source>
        <translation>El servidor lleva en círculo.</translation>
    </message>
    <message>
        <source>The server leads to an address that is none.</source>
        <translation>El servidor lleva a una dirección que no lo es.</translation>
    </message>
    <message>
        <source>The server leads from https to http, which anybody can read and change.</source>
        <translation>El servidor lleva de https a http, que cualquiera puede leer y cambiar.</translation>
    </message>
    <message>
        <source>The server leads to another one, {}, which is not ticked.</source>
        <translation>El servidor lleva a otro, {}, que no está marcado.</translation>
    </message>
    <message>
        <source>The film could not be given its name: {}</source>
        <translation>No se pudo dar su nombre al vídeo: {}</translation>
    </message>
    <message>
        <source>The film is not what its checksum says.</source>
        <translation>El vídeo no es el que dice su suma de control.</translation>
    </message>
    <message>
        <source>The answer is longer than any list is.</source>
        <translation>La respuesta es más larga que cualquier lista.</translation>
    </message>
    <message>
        <source>A link in the folder leads out of it, and is not followed.</source>
        <translation>Un enlace de la carpeta lleva fuera de ella, y no se sigue.</translation>
    </message>
    <message>
        <source>The folder could not be made on the server: {}</source>
        <translation>No se pudo crear la carpeta en el servidor: {}</translation>
    </message>
    <message>
        <source>The server does not know its own mark of this file again.</source>
        <translation>El servidor no reconoce su propia marca de este archivo.</translation>
    </message>
    <message>
        <source>a name of small letters, digits and dashes was expected</source>
        <translation>se esperaba un nombre de minúsculas, cifras y guiones</translation>
    </message>
    <message>
        <source>an https address was expected</source>
        <translation>se esperaba una dirección https</translation>
    </message>
    <message>
        <source>it does not end in the plain name of a file</source>
        <translation>no acaba en un simple nombre de archivo</translation>
    </message>
    <message>
        <source>1 to {} bytes were expected</source>
        <translation>se esperaban de 1 a {} bytes</translation>
    </message>
    <message>
        <source>64 small hexadecimal digits were expected</source>
        <translation>se esperaban 64 cifras hexadecimales en minúscula</translation>
    </message>
    <message>
        <source>it is longer than any manifest is</source>
        <translation>es más larga que cualquier lista de versiones</translation>
    </message>
    <message>
        <source>three numbers such as 0.32.0 were expected</source>
        <translation>se esperaban tres números como 0.32.0</translation>
    </message>
    <message>
        <source>a date such as 2026-11-22 was expected</source>
        <translation>se esperaba una fecha como 2026-11-22</translation>
    </message>
    <message>
        <source>a plain text of at most 100,000 bytes was expected</source>
        <translation>se esperaba un texto sin formato de 100&#xa0;000 bytes como máximo</translation>
    </message>
    <message>
        <source>there is a file for it already</source>
        <translation>ya hay un archivo para ella</translation>
    </message>
    <message>
        <source>The address of the file is none that is asked.</source>
        <translation>La dirección del archivo no es de las que se consultan.</translation>
    </message>
    <message>
        <source>The folder takes no file: {}.</source>
        <translation>La carpeta no admite archivos: {}.</translation>
    </message>
    <message>
        <source>The server sent another part of the file than it was asked for.</source>
        <translation>El servidor envió una parte del archivo distinta de la pedida.</translation>
    </message>
    <message>
        <source>The file on the server is not as long as the list of versions says.</source>
        <translation>El archivo del servidor no es tan largo como dice la lista de versiones.</translation>
    </message>
    <message>
        <source>The disk does not take the file: {}.</source>
        <translation>El disco no admite el archivo: {}.</translation>
    </message>
    <message>
        <source>The file on the server is longer than the list of versions says. It was deleted.</source>
        <translation>El archivo del servidor es más largo de lo que dice la lista de versiones. Se ha borrado.</translation>
    </message>
    <message>
        <source>The file is not the one of the list of versions: it is damaged, or was changed. It was deleted.</source>
        <translation>El archivo no es el de la lista de versiones: está dañado o se cambió. Se ha borrado.</translation>
    </message>
    <message numerus="yes">
        <source>It was given up after {} tries.</source>
        <translation>
            <numerusform>Se dejó tras {} intento.</numerusform>
            <numerusform>Se dejó tras {} intentos.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list of versions is longer than it may be.</source>
        <translation>La lista de versiones es más larga de lo permitido.</translation>
    </message>
    <message>
        <source>The list of versions is not on the server.</source>
        <translation>La lista de versiones no está en el servidor.</translation>
    </message>
    <message>
        <source>The list of versions lies on another server, {}, which is not asked.</source>
        <translation>La lista de versiones está en otro servidor, {}, que no se consulta.</translation>
    </message>
    <message>
        <source>The list of versions is not given out by the server.</source>
        <translation>La lista de versiones no la entrega el servidor.</translation>
    </message>
    <message>
        <source>The signature of the list of versions is longer than it may be.</source>
        <translation>La firma de la lista de versiones es más larga de lo permitido.</translation>
    </message>
    <message>
        <source>The signature of the list of versions is not on the server.</source>
        <translation>La firma de la lista de versiones no está en el servidor.</translation>
    </message>
    <message>
        <source>The signature of the list of versions lies on another server, {}, which is not asked.</source>
        <translation>La firma de la lista de versiones está en otro servidor, {}, que no se consulta.</translation>
    </message>
    <message>
        <source>The signature of the list of versions is not given out by the server.</source>
        <translation>La firma de la lista de versiones no la entrega el servidor.</translation>
    </message>
    <message>
        <source>The file is longer than it may be.</source>
        <translation>El archivo es más largo de lo permitido.</translation>
    </message>
    <message>
        <source>The file is not on the server.</source>
        <translation>El archivo no está en el servidor.</translation>
    </message>
    <message>
        <source>The file lies on another server, {}, which is not asked.</source>
        <translation>El archivo está en otro servidor, {}, que no se consulta.</translation>
    </message>
    <message>
        <source>The file is not given out by the server.</source>
        <translation>El archivo no lo entrega el servidor.</translation>
    </message>
    <message>
        <source>The list of versions is not signed. It is not used.</source>
        <translation>La lista de versiones no está firmada. No se usa.</translation>
    </message>
    <message>
        <source>The list of versions is not signed by who makes Kavela: it is damaged, or somebody else&apos;s. It is not used.</source>
        <translation>La lista de versiones no está firmada por quien hace Kavela: está dañada o es de otra persona. No se usa.</translation>
    </message>
    <message>
        <source>The list of versions is damaged and not used: {}.</source>
        <translation>La lista de versiones está dañada y no se usa: {}.</translation>
    </message>
    <message>
        <source>The server offers version {}, which is older than {}, the one you have. It is not used.</source>
        <translation>El servidor ofrece la versión {}, más antigua que la {}, la que tienes. No se usa.</translation>
    </message>
    <message>
        <source>The server offers version {}, which is older than {}, which it had before. It is not used.</source>
        <translation>El servidor ofrece la versión {}, más antigua que la {}, que tuvo antes. No se usa.</translation>
    </message>
    <message>
        <source>Version {} is the newest one.</source>
        <translation>La versión {} es la más nueva.</translation>
    </message>
    <message>
        <source>There is a version {}, but no file of it for this computer ({}).</source>
        <translation>Hay una versión {}, pero ningún archivo de ella para este ordenador ({}).</translation>
    </message>
    <message>
        <source>no decoder for {}</source>
        <translation>no hay decodificador para {}</translation>
    </message>
    <message>
        <source>the film is cut off or damaged: the list of its frames is missing</source>
        <translation>el vídeo está cortado o dañado: falta la lista de sus fotogramas</translation>
    </message>
    <message>
        <source>this is no video that can be read, or it is damaged</source>
        <translation>no es un vídeo que se pueda leer, o está dañado</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>No existe el archivo o la carpeta</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Es una carpeta</translation>
    </message>
    <message>
        <source>there is no video in this file</source>
        <translation>en este archivo no hay vídeo</translation>
    </message>
    <message>
        <source>there is no sound in this film</source>
        <translation>en este vídeo no hay sonido</translation>
    </message>
    <message>
        <source>there is no video in this file, only a picture</source>
        <translation>en este archivo no hay vídeo, solo una imagen</translation>
    </message>
    <message>
        <source>the film has no clock</source>
        <translation>el vídeo no tiene reloj</translation>
    </message>
    <message>
        <source>the film could not be read any further</source>
        <translation>no se pudo seguir leyendo el vídeo</translation>
    </message>
    <message>
        <source>{:.3f} s</source>
        <translation>{:.3f} s</translation>
    </message>
    <message numerus="yes">
        <source>The file is cut off: {} frames missing at its end.</source>
        <translation>
            <numerusform>El archivo está cortado: falta {} fotograma al final.</numerusform>
            <numerusform>El archivo está cortado: faltan {} fotogramas al final.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file is cut off or damaged: its end is missing.</source>
        <translation>El archivo está cortado o dañado: falta su final.</translation>
    </message>
    <message>
        <source>The file does not say when each frame was shown: times are estimated from its frame rate.</source>
        <translation>El archivo no dice cuándo se mostró cada fotograma: los tiempos se estiman por los fotogramas por segundo.</translation>
    </message>
    <message numerus="yes">
        <source>{} frames left out that had the time of another frame.</source>
        <translation>
            <numerusform>Se omitió {} fotograma que tenía el tiempo de otro.</numerusform>
            <numerusform>Se omitieron {} fotogramas que tenían el tiempo de otro.</numerusform>
        </translation>
    </message>
    <message>
        <source>The frame rate varies, from {} to {} frames a second.</source>
        <translation>La frecuencia varía, de {} a {} fotogramas por segundo.</translation>
    </message>
    <message numerus="yes">
        <source>{} gaps</source>
        <translation>
            <numerusform>{} hueco</numerusform>
            <numerusform>{} huecos</numerusform>
        </translation>
    </message>
    <message>
        <source>{} where frames are missing, the longest of {} at {}.</source>
        <translation>{} donde faltan fotogramas; el mayor, de {}, en {}.</translation>
    </message>
    <message>
        <source>About {} of {} frames repeat the picture before them.</source>
        <translation>Unos {} de {} fotogramas repiten la imagen anterior.</translation>
    </message>
    <message>
        <source>Slow motion: recorded at {} frames a second, plays at {}. Times taken from it are {} times too long.</source>
        <translation>Cámara lenta: grabado a {} fotogramas por segundo, se reproduce a {}. Los tiempos tomados de él son {} veces demasiado largos.</translation>
    </message>
    <message>
        <source>The film starts at {}, not at 0.</source>
        <translation>El vídeo empieza en {}, no en 0.</translation>
    </message>
    <message>
        <source>The file has no list of its frames: it had to be read from end to end.</source>
        <translation>El archivo no tiene lista de sus fotogramas: hubo que leerlo de principio a fin.</translation>
    </message>
    <message>
        <source>Recorded turned by {}°, and shown upright.</source>
        <translation>Grabado con un giro de {}°, y se muestra derecho.</translation>
    </message>
    <message>
        <source>Interlaced: each frame holds two moments half a frame apart.</source>
        <translation>Entrelazado: cada fotograma contiene dos instantes separados medio fotograma.</translation>
    </message>
    <message>
        <source>{} bits a colour, shown with 8.</source>
        <translation>{} bits por color, se muestra con 8.</translation>
    </message>
    <message>
        <source>no frame of the video can be read</source>
        <translation>no se puede leer ningún fotograma del vídeo</translation>
    </message>
    <message>
        <source>no frame of the video can be decoded</source>
        <translation>no se puede decodificar ningún fotograma del vídeo</translation>
    </message>
    <message>
        <source>The film could not be encoded: {}</source>
        <translation>No se pudo codificar el vídeo: {}</translation>
    </message>
    <message>
        <source>A picture could not be made: {}</source>
        <translation>No se pudo crear una imagen: {}</translation>
    </message>
    <message>
        <source>Films cannot be made on this computer: the installed libavcodec has no encoder for H.264 (libx264).</source>
        <translation>En este ordenador no se pueden crear vídeos: la libavcodec instalada no tiene codificador de H.264 (libx264).</translation>
    </message>
    <message>
        <source>Films with sound cannot be made on this computer: the installed libavcodec has no encoder for AAC.</source>
        <translation>En este ordenador no se pueden crear vídeos con sonido: la libavcodec instalada no tiene codificador de AAC.</translation>
    </message>
    <message>
        <source>The encoder for H.264 could not be started: {}</source>
        <translation>No se pudo iniciar el codificador de H.264: {}</translation>
    </message>
    <message>
        <source>The encoder for sound could not be started: {}</source>
        <translation>No se pudo iniciar el codificador de sonido: {}</translation>
    </message>
    <message>
        <source>Sound could not be encoded: {}</source>
        <translation>No se pudo codificar el sonido: {}</translation>
    </message>
    <message>
        <source>The film could not be ended: {}</source>
        <translation>No se pudo terminar el vídeo: {}</translation>
    </message>
    <message>
        <source>Films cannot be written on this computer: {}</source>
        <translation>En este ordenador no se pueden escribir vídeos: {}</translation>
    </message>
    <message>
        <source>The film could not be put together: {}</source>
        <translation>No se pudo montar el vídeo: {}</translation>
    </message>
    <message>
        <source>The film could not be begun: {}</source>
        <translation>No se pudo empezar el vídeo: {}</translation>
    </message>
    <message>
        <source>the piece could not be found in the film</source>
        <translation>no se encontró la parte en el vídeo</translation>
    </message>
    <message>
        <source>it was written by a newer release</source>
        <translation>lo escribió una versión más nueva</translation>
    </message>
    <message>
        <source>rows and columns from 1 to 2000 were expected</source>
        <translation>se esperaban de 1 a 2000 filas y columnas</translation>
    </message>
    <message>
        <source>&quot;accepted&quot;, &quot;moved&quot;, &quot;refused&quot; or &quot;missed&quot; expected</source>
        <translation>se esperaba «accepted», «moved», «refused» o «missed»</translation>
    </message>
    <message>
        <source>there are more bands than a recording holds</source>
        <translation>hay más franjas de las que caben en una grabación</translation>
    </message>
    <message>
        <source>it is no recording of bands, or damaged: {}</source>
        <translation>no es una grabación de franjas, o está dañada: {}</translation>
    </message>
    <message>
        <source>the recording could not be put together</source>
        <translation>no se pudo montar la grabación</translation>
    </message>
    <message>
        <source>it is no recording of bands: {} is missing</source>
        <translation>no es una grabación de franjas: falta {}</translation>
    </message>
    <message>
        <source>the recording is damaged: {} cannot be read</source>
        <translation>la grabación está dañada: no se puede leer {}</translation>
    </message>
    <message>
        <source>the recording could not be put together: {}</source>
        <translation>no se pudo montar la grabación: {}</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>no se puede abrir</translation>
    </message>
    <message>
        <source>each needs its bands</source>
        <translation>cada uno necesita sus franjas</translation>
    </message>
    <message>
        <source>their number is not that of the bands</source>
        <translation>su número no es el de las franjas</translation>
    </message>
    <message>
        <source>the recording is larger than any that is written</source>
        <translation>la grabación es mayor que cualquiera que se escriba</translation>
    </message>
    <message>
        <source>there is no proposal or correction to be saved</source>
        <translation>no hay ninguna propuesta ni corrección que guardar</translation>
    </message>
    <message>
        <source>The search for boats was not measured.</source>
        <translation>La búsqueda de barcos no se ha medido.</translation>
    </message>
    <message>
        <source>Measured on {} scenes of real water ({} runs, {:.0f} minutes): {:.1f} % of the runs found (asked: {:.0f} %), {:.1f} false proposals an hour (asked: at most {:g}), an error of at most {:.1f} frames for 95 of 100 (asked: {:g}).</source>
        <translation>Medido en {} escenas de agua real (mangas: {}, minutos: {:.0f}): {:.1f}&#xa0;% de las mangas encontradas (se pide: {:.0f}&#xa0;%), {:.1f} propuestas falsas por hora (se pide: {:g} como máximo), un error de {:.1f} fotogramas como máximo en 95 de cada 100 (se pide: {:g}).</translation>
    </message>
    <message>
        <source>Measured on {} scenes of rendered water ({} runs, {:.0f} minutes): {:.1f} % of the runs found (asked: {:.0f} %), {:.1f} false proposals an hour (asked: at most {:g}), an error of at most {:.1f} frames for 95 of 100 (asked: {:g}).</source>
        <translation>Medido en {} escenas de agua simulada (mangas: {}, minutos: {:.0f}): {:.1f}&#xa0;% de las mangas encontradas (se pide: {:.0f}&#xa0;%), {:.1f} propuestas falsas por hora (se pide: {:g} como máximo), un error de {:.1f} fotogramas como máximo en 95 de cada 100 (se pide: {:g}).</translation>
    </message>
    <message>
        <source>The frame of the box cannot be shown.</source>
        <translation>No se puede mostrar el fotograma del recuadro.</translation>
    </message>
    <message>
        <source>the box round a boat has no size</source>
        <translation>el recuadro alrededor de un barco no tiene tamaño</translation>
    </message>
    <message>
        <source>the box round a boat is larger than the picture</source>
        <translation>el recuadro alrededor de un barco es mayor que la imagen</translation>
    </message>
    <message>
        <source>the film has no frames from {:.2f} s to {:.2f} s</source>
        <translation>el vídeo no tiene fotogramas de {:.2f} s a {:.2f} s</translation>
    </message>
    <message>
        <source>The film ends early: the file is cut off.</source>
        <translation>El vídeo acaba antes de tiempo: el archivo está cortado.</translation>
    </message>
    <message>
        <source>The box is too small: it needs 8 pixels each way at least.</source>
        <translation>El recuadro es demasiado pequeño: necesita al menos 8 píxeles por lado.</translation>
    </message>
    <message>
        <source>The box does not lie within the picture, which has {} × {} pixels.</source>
        <translation>El recuadro no está dentro de la imagen, que tiene {} × {} píxeles.</translation>
    </message>
    <message>
        <source>There is nothing in the box that could be known again: it has one colour all over.</source>
        <translation>En el recuadro no hay nada que se pueda reconocer: todo es de un solo color.</translation>
    </message>
    <message>
        <source>It is not known how the camera moved between the path and the frame of the known points. Click them in a frame of the path.</source>
        <translation>No se sabe cómo se movió la cámara entre la trayectoria y el fotograma de los puntos conocidos. Márcalos en un fotograma de la trayectoria.</translation>
    </message>
    <message>
        <source>version {} is of a later release</source>
        <translation>la versión {} es de una edición posterior del programa</translation>
    </message>
    <message>
        <source>the line&apos;s end at {}, {} lies outside the picture of {} × {} pixels</source>
        <translation>el extremo de la línea en {}, {} está fuera de la imagen de {} × {} píxeles</translation>
    </message>
    <message>
        <source>the line is shorter than {} pixels</source>
        <translation>la línea es más corta que {} píxeles</translation>
    </message>
    <message>
        <source>The camera was held in the hand, or nothing in the picture stands still: the search for boats needs a camera on a tripod.</source>
        <translation>La cámara se sostuvo con la mano, o nada en la imagen está quieto: la búsqueda de barcos necesita una cámara en trípode.</translation>
    </message>
    <message numerus="yes">
        <source>{} frames could not be read and were passed over.</source>
        <translation>
            <numerusform>{} fotograma no se pudo leer y se saltó.</numerusform>
            <numerusform>{} fotogramas no se pudieron leer y se saltaron.</numerusform>
        </translation>
    </message>
    <message>
        <source>a frame from 0 on was expected</source>
        <translation>se esperaba un fotograma a partir de 0</translation>
    </message>
    <message>
        <source>it does not lie behind the frame before</source>
        <translation>no está después del fotograma anterior</translation>
    </message>
    <message>
        <source>no film has so many frames</source>
        <translation>ningún vídeo tiene tantos fotogramas</translation>
    </message>
    <message>
        <source>it lies beyond all pictures</source>
        <translation>está más allá de toda imagen</translation>
    </message>
    <message>
        <source>four known points were expected, or two for a scale only</source>
        <translation>se esperaban cuatro puntos conocidos, o dos si solo es una escala</translation>
    </message>
    <message>
        <source>the box has no size</source>
        <translation>el recuadro no tiene tamaño</translation>
    </message>
    <message>
        <source>a size above 0 was expected</source>
        <translation>se esperaba un tamaño mayor que 0</translation>
    </message>
    <message>
        <source>it makes the picture vanish</source>
        <translation>hace desaparecer la imagen</translation>
    </message>
    <message>
        <source>Three of the four known points lie on a line: they have to be the corners of a field, such as the poles of two gates.</source>
        <translation>Tres de los cuatro puntos conocidos están en línea: tienen que ser las esquinas de un campo, como los palos de dos puertas.</translation>
    </message>
    <message>
        <source>Metres need four known points on the water, or two for a scale only; there are {}.</source>
        <translation>Los metros necesitan cuatro puntos conocidos en el agua, o dos si solo es una escala; hay {}.</translation>
    </message>
    <message>
        <source>The two known points lie on one spot.</source>
        <translation>Los dos puntos conocidos están en el mismo sitio.</translation>
    </message>
    <message>
        <source>The four known points do not fit together: no view of flat water shows them so.</source>
        <translation>Los cuatro puntos conocidos no encajan: ninguna vista de agua plana los muestra así.</translation>
    </message>
    <message>
        <source>The four known points do not fit together: no view of flat water shows them so. Were two of them exchanged?</source>
        <translation>Los cuatro puntos conocidos no encajan: ninguna vista de agua plana los muestra así. ¿Se han intercambiado dos?</translation>
    </message>
    <message>
        <source>“bow” or “body” was expected</source>
        <translation>se esperaba “bow” o “body”</translation>
    </message>
    <message>
        <source>The column &quot;{}&quot; is reckoned here: how the columns of the list are read decides what it holds.</source>
        <translation>La columna «{}» se calcula aquí: lo que contiene depende de cómo se leen las columnas de la lista.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop</name>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>To know</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en espera</translation>
    </message>
    <message>
        <source>there</source>
        <translation>listo</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fallido</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenido</translation>
    </message>
    <message>
        <source>%1, %2:%3 left</source>
        <translation>%1, quedan %2:%3</translation>
    </message>
    <message>
        <source>A film is still being composed.</source>
        <translation>Aún se está componiendo un vídeo.</translation>
    </message>
    <message>
        <source>%1 films are still being composed.</source>
        <translation>Aún se están componiendo %1 vídeos.</translation>
    </message>
    <message>
        <source>It can go on in the background: the list of jobs (Ctrl+J in Compare films) tells how far it is.</source>
        <translation>Puede seguir en segundo plano: la lista de tareas (Ctrl+J en Comparar vídeos) dice por dónde va.</translation>
    </message>
    <message>
        <source>Go on in the background</source>
        <translation>Seguir en segundo plano</translation>
    </message>
    <message>
        <source>Stop it</source>
        <translation>Detenerlo</translation>
    </message>
    <message>
        <source>Stay here</source>
        <translation>Quedarse aquí</translation>
    </message>
    <message>
        <source>Put together…</source>
        <translation>Uniendo…</translation>
    </message>
    <message>
        <source>Piece %1 of %2</source>
        <translation>Parte %1 de %2</translation>
    </message>
    <message>
        <source>Checked…</source>
        <translation>Comprobado…</translation>
    </message>
    <message>
        <source>%1 %, %2 of %3</source>
        <translation>%1&#xa0;%, %2 de %3</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>✓ Fetched</source>
        <translation>✓ Descargado</translation>
    </message>
    <message>
        <source>Fetch</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Bib</source>
        <translation>Dorsal</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>1 film is ticked</source>
        <translation>1 vídeo marcado</translation>
    </message>
    <message>
        <source>%1 films are ticked</source>
        <translation>%1 vídeos marcados</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 fetched</source>
        <translation>%1 descargados</translation>
    </message>
    <message>
        <source>%1 not there yet</source>
        <translation>%1 aún no están</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 fallidos</translation>
    </message>
    <message>
        <source>%1 cancelled</source>
        <translation>%1 cancelados</translation>
    </message>
    <message>
        <source>Move the selected mark &amp;here</source>
        <translation>Mover aquí &amp;la marca seleccionada</translation>
    </message>
    <message>
        <source>Mark one frame &amp;earlier</source>
        <translation>Marca un fotograma a&amp;ntes</translation>
    </message>
    <message>
        <source>Mark one frame &amp;later</source>
        <translation>Marca un fotograma &amp;después</translation>
    </message>
    <message>
        <source>&amp;Remove the selected mark</source>
        <translation>&amp;Quitar la marca seleccionada</translation>
    </message>
    <message>
        <source>&amp;Previous mark</source>
        <translation>Marca &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next mark</source>
        <translation>Marca &amp;siguiente</translation>
    </message>
    <message>
        <source>Nobody is called “%1” in these files.</source>
        <translation>En estos archivos nadie se llama «%1».</translation>
    </message>
    <message>
        <source>Like it: %1.</source>
        <translation>Parecidos: %1.</translation>
    </message>
    <message>
        <source>Watched: 80 % of it was shown</source>
        <translation>Visto: se mostró el 80&#xa0;%</translation>
    </message>
    <message>
        <source>Of the split file: split taking edits it</source>
        <translation>Del archivo de parciales: se edita en la toma de parciales</translation>
    </message>
    <message>
        <source>Watched</source>
        <translation>Visto</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Minutes and seconds</source>
        <translation>Minutos y segundos</translation>
    </message>
    <message>
        <source>At</source>
        <translation>En</translation>
    </message>
    <message>
        <source>Moment of the film, minutes and seconds</source>
        <translation>Momento del vídeo, en minutos y segundos</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Imported “%1”</source>
        <translation>Se importó «%1»</translation>
    </message>
    <message>
        <source>“%1” cannot be imported</source>
        <translation>«%1» no se puede importar</translation>
    </message>
    <message>
        <source>Watches and phones (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;All files (*)</source>
        <translation>Relojes y teléfonos (*.gpx *.tcx *.fit *.csv *.tsv *.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Import from a watch or a phone</source>
        <translation>Importar de un reloj o un teléfono</translation>
    </message>
    <message>
        <source>%1 s a run</source>
        <translation>%1 s por manga</translation>
    </message>
    <message>
        <source>one run</source>
        <translation>una manga</translation>
    </message>
    <message>
        <source>%1 runs</source>
        <translation>%1 mangas</translation>
    </message>
    <message>
        <source>Where most was lost</source>
        <translation>Dónde se perdió más</translation>
    </message>
    <message>
        <source>Seconds lost</source>
        <translation>Segundos perdidos</translation>
    </message>
    <message>
        <source>Of all that was lost, %</source>
        <translation>De todo lo perdido, %</translation>
    </message>
    <message>
        <source>No section was slower than the reference&apos;s.</source>
        <translation>Ningún tramo fue más lento que el de la referencia.</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdido</translation>
    </message>
    <message>
        <source>Together, %</source>
        <translation>En conjunto, %</translation>
    </message>
    <message>
        <source>The gap along the course</source>
        <translation>La diferencia a lo largo del recorrido</translation>
    </message>
    <message>
        <source>After section</source>
        <translation>Tras el tramo</translation>
    </message>
    <message>
        <source>Seconds behind, without penalties</source>
        <translation>Segundos de diferencia, sin penalizaciones</translation>
    </message>
    <message>
        <source>result %1</source>
        <translation>resultado %1</translation>
    </message>
    <message>
        <source>Lost by what it is lost in</source>
        <translation>Perdido según dónde se pierde</translation>
    </message>
    <message>
        <source>Of the reference&apos;s time, %</source>
        <translation>Del tiempo de la referencia, %</translation>
    </message>
    <message>
        <source>Lost, 90 %</source>
        <translation>Perdido, 90&#xa0;%</translation>
    </message>
    <message>
        <source>No loss</source>
        <translation>Sin pérdida</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Por</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Mangas</translation>
    </message>
    <message>
        <source>Lost, %</source>
        <translation>Perdido, %</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Mín.</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Máx.</translation>
    </message>
    <message>
        <source>A run, s</source>
        <translation>Por manga, s</translation>
    </message>
    <message>
        <source>No row loses time for sure.</source>
        <translation>Ninguna fila pierde tiempo con seguridad.</translation>
    </message>
    <message>
        <source>Most for sure: %1 %2, %3 s a run.</source>
        <translation>Lo más seguro: %1 %2, %3 s por manga.</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Puerta</translation>
    </message>
    <message>
        <source>Gate %1 of the section</source>
        <translation>Puerta %1 del tramo</translation>
    </message>
    <message>
        <source>Lost in an upstream gate of the section</source>
        <translation>Perdido en un remonte del tramo</translation>
    </message>
    <message>
        <source>%1:  %2</source>
        <translation>%1:  %2</translation>
    </message>
    <message>
        <source>upstream</source>
        <translation>remonte</translation>
    </message>
    <message>
        <source>downstream</source>
        <translation>a favor</translation>
    </message>
    <message>
        <source>several sections</source>
        <translation>varios tramos</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>a race without a name</source>
        <translation>una carrera sin nombre</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Manga %1</translation>
    </message>
    <message>
        <source>winner</source>
        <translation>ganador</translation>
    </message>
    <message>
        <source>fastest paddling</source>
        <translation>paleo más rápido</translation>
    </message>
    <message>
        <source>ideal run</source>
        <translation>manga ideal</translation>
    </message>
    <message>
        <source>median of the finalists</source>
        <translation>mediana de los finalistas</translation>
    </message>
    <message>
        <source>own best other run</source>
        <translation>mejor otra manga propia</translation>
    </message>
    <message>
        <source>a rival</source>
        <translation>un rival</translation>
    </message>
    <message>
        <source>Open a race to see where time is lost.</source>
        <translation>Abre una carrera para ver dónde se pierde tiempo.</translation>
    </message>
    <message>
        <source>The crew has no other whole run here to be held against. Choose another reference.</source>
        <translation>La tripulación no tiene aquí otra manga entera con la que comparar. Elige otra referencia.</translation>
    </message>
    <message>
        <source>There is no %1 here to hold the run against. Choose another reference.</source>
        <translation>Aquí no hay con qué comparar la manga (%1). Elige otra referencia.</translation>
    </message>
    <message>
        <source>The two have no section in common that is timed.</source>
        <translation>Las dos no tienen en común ningún tramo cronometrado.</translation>
    </message>
    <message>
        <source>%1: nothing to be held against</source>
        <translation>%1: nada con qué comparar</translation>
    </message>
    <message>
        <source>%1  %2 on %3</source>
        <translation>%1  %2 frente a %3</translation>
    </message>
    <message>
        <source>%1: no section in common with %2</source>
        <translation>%1: ningún tramo en común con %2</translation>
    </message>
    <message>
        <source>%1  %2 on %3 in %4 (no total)</source>
        <translation>%1  %2 frente a %3 en %4 (sin total)</translation>
    </message>
    <message>
        <source>Explained by notes: %1 of %2 (%3 %)</source>
        <translation>Explicado por las notas: %1 de %2 (%3&#xa0;%)</translation>
    </message>
    <message>
        <source>Most was lost in %1: %2 s of %3.</source>
        <translation>Lo que más se perdió fue en %1: %2 s de %3.</translation>
    </message>
    <message>
        <source>Penalties make %1 of it.</source>
        <translation>Las penalizaciones suponen %1.</translation>
    </message>
    <message>
        <source>All %1 of the slower sections are needed to explain most of the loss.</source>
        <translation>Hacen falta los %1 tramos más lentos para explicar la mayor parte de la pérdida.</translation>
    </message>
    <message>
        <source>%1 alone makes %2 % of what was lost in slower sections.</source>
        <translation>%1 supone por sí solo el %2&#xa0;% de lo perdido en los tramos más lentos.</translation>
    </message>
    <message>
        <source>%1 of %2 slower sections make %3 % of what was lost in them.</source>
        <translation>%1 de %2 tramos más lentos suponen el %3&#xa0;% de lo perdido en ellos.</translation>
    </message>
    <message>
        <source>Nobody was slower than the reference in a section.</source>
        <translation>Nadie fue más lento que la referencia en ningún tramo.</translation>
    </message>
    <message>
        <source>The greatest loss is that of %1 in S%2: %3 on %4.</source>
        <translation>La mayor pérdida es la de %1 en S%2: %3 frente a %4.</translation>
    </message>
    <message>
        <source>Never behind the %1; %2 at the end of S%3.</source>
        <translation>Nunca por detrás (%1); %2 al final de S%3.</translation>
    </message>
    <message>
        <source>Farthest behind at the end: %1 after S%2.</source>
        <translation>Mayor desventaja al final: %1 después de S%2.</translation>
    </message>
    <message>
        <source>Farthest behind after S%1: %2; %3 after S%4.</source>
        <translation>Mayor desventaja después de S%1: %2; %3 después de S%4.</translation>
    </message>
    <message>
        <source>no motion of the boat</source>
        <translation>sin movimiento del barco</translation>
    </message>
    <message>
        <source>a hole of %1 s</source>
        <translation>un hueco de %1 s</translation>
    </message>
    <message>
        <source>%1 holes, the longest of %2 s</source>
        <translation>%1 huecos, el más largo de %2 s</translation>
    </message>
    <message>
        <source>the clock ran backwards once</source>
        <translation>el reloj retrocedió una vez</translation>
    </message>
    <message>
        <source>the clock ran backwards %1 times</source>
        <translation>el reloj retrocedió %1 veces</translation>
    </message>
    <message>
        <source>a moment stands twice</source>
        <translation>un momento aparece dos veces</translation>
    </message>
    <message>
        <source>%1 moments stand twice</source>
        <translation>%1 momentos aparecen dos veces</translation>
    </message>
    <message>
        <source>Top to the bow</source>
        <translation>Parte superior hacia la proa</translation>
    </message>
    <message>
        <source>Bottom to the bow</source>
        <translation>Parte inferior hacia la proa</translation>
    </message>
    <message>
        <source>Right to the bow</source>
        <translation>Derecha hacia la proa</translation>
    </message>
    <message>
        <source>Left to the bow</source>
        <translation>Izquierda hacia la proa</translation>
    </message>
    <message>
        <source>Back to the bow</source>
        <translation>Dorso hacia la proa</translation>
    </message>
    <message>
        <source>Screen to the bow</source>
        <translation>Pantalla hacia la proa</translation>
    </message>
    <message>
        <source>%1 of %2 touched</source>
        <translation>%1 de %2 con toque</translation>
    </message>
    <message>
        <source>Touched, %</source>
        <translation>Con toque, %</translation>
    </message>
    <message>
        <source>Ranked rate, 90 %</source>
        <translation>Frecuencia ordenada, 90&#xa0;%</translation>
    </message>
    <message>
        <source>Touched</source>
        <translation>Con toque</translation>
    </message>
    <message>
        <source>All in common</source>
        <translation>Todos en común</translation>
    </message>
    <message>
        <source>No run that is asked for has its penalties by gate. Enter them for each gate to see where they happen.</source>
        <translation>Ninguna de las mangas pedidas tiene sus penalizaciones por puerta. Introdúcelas para cada puerta para ver dónde ocurren.</translation>
    </message>
    <message>
        <source>Passages</source>
        <translation>Pasos</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Toques</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Saltos</translation>
    </message>
    <message>
        <source>Touch rate</source>
        <translation>Frec. de toque</translation>
    </message>
    <message>
        <source>Ranked rate</source>
        <translation>Frec. ordenada</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Por encima</translation>
    </message>
    <message>
        <source>Gate %1, upstream</source>
        <translation>Puerta %1, remonte</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Puerta %1</translation>
    </message>
    <message>
        <source>%1 missed</source>
        <translation>%1 saltos</translation>
    </message>
    <message>
        <source>stands out</source>
        <translation>destaca</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>(not given)</source>
        <translation>(sin indicar)</translation>
    </message>
    <message>
        <source>%1: touches at the gates</source>
        <translation>%1: toques en las puertas</translation>
    </message>
    <message>
        <source>Gates in order; ◀ upstream</source>
        <translation>Puertas en orden; ◀ remonte</translation>
    </message>
    <message>
        <source>Upstream</source>
        <translation>Remonte</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Tramo</translation>
    </message>
    <message>
        <source>Touches %1</source>
        <translation>Toques %1</translation>
    </message>
    <message>
        <source> (the highest %1, %2 more in the table)</source>
        <translation> (las %1 más altas, %2 más en la tabla)</translation>
    </message>
    <message>
        <source>What was noted of penalties</source>
        <translation>Lo que se anotó de las penalizaciones</translation>
    </message>
    <message>
        <source>Of those noted, %</source>
        <translation>De las anotadas, %</translation>
    </message>
    <message>
        <source>Share, 90 %</source>
        <translation>Parte, 90&#xa0;%</translation>
    </message>
    <message>
        <source>Noted as</source>
        <translation>Anotado como</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Penalizaciones</translation>
    </message>
    <message>
        <source>Of</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Parte</translation>
    </message>
    <message>
        <source>Most of one kind: %1 %2, %3 of %4 noted.</source>
        <translation>Lo más frecuente: %1 %2, %3 de %4 anotadas.</translation>
    </message>
    <message>
        <source>fastest third</source>
        <translation>tercio más rápido</translation>
    </message>
    <message>
        <source>middle third</source>
        <translation>tercio medio</translation>
    </message>
    <message>
        <source>slowest third</source>
        <translation>tercio más lento</translation>
    </message>
    <message>
        <source>Risk and speed</source>
        <translation>Riesgo y velocidad</translation>
    </message>
    <message>
        <source>Paddling time, % of the group&apos;s median</source>
        <translation>Tiempo de paleo, % de la mediana del grupo</translation>
    </message>
    <message>
        <source>Touches a run</source>
        <translation>Toques por manga</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#xa0;%</translation>
    </message>
    <message>
        <source>Equally fast in all</source>
        <translation>Igual de rápido en total</translation>
    </message>
    <message>
        <source>not planned</source>
        <translation>sin planificar</translation>
    </message>
    <message>
        <source>planned</source>
        <translation>planificado</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sesiones</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <source>What the sessions add up to, in the unit that they are written in</source>
        <translation>Lo que suman las sesiones, en la unidad en la que están escritas</translation>
    </message>
    <message>
        <source>In the sessions</source>
        <translation>En las sesiones</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Penalización</translation>
    </message>
    <message>
        <source>Behind best</source>
        <translation>Resp. al mejor</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Puertas</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Missed gates</source>
        <translation>Saltos</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Deportista</translation>
    </message>
    <message>
        <source>From the first run of the heats to the second</source>
        <translation>De la primera manga clasificatoria a la segunda</translation>
    </message>
    <message>
        <source>From the semifinal to the final</source>
        <translation>De la semifinal a la final</translation>
    </message>
    <message>
        <source>From the heats to the final</source>
        <translation>De la clasificatoria a la final</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Medallas</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finales</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Semifinales</translation>
    </message>
    <message>
        <source>too few for a range</source>
        <translation>muy pocas para un intervalo</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>muy pocas</translation>
    </message>
    <message>
        <source>Change behind, %</source>
        <translation>Cambio de la diferencia, %</translation>
    </message>
    <message>
        <source>Change, %</source>
        <translation>Cambio, %</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Carreras</translation>
    </message>
    <message>
        <source>Typical error, %</source>
        <translation>Error típico, %</translation>
    </message>
    <message>
        <source>No change</source>
        <translation>Sin cambio</translation>
    </message>
    <message>
        <source>No race of the team has both.</source>
        <translation>Ninguna carrera del equipo tiene ambas.</translation>
    </message>
    <message>
        <source>How much runs vary by chance</source>
        <translation>Cuánto varían las mangas por azar</translation>
    </message>
    <message>
        <source>Within, %</source>
        <translation>Variación, %</translation>
    </message>
    <message>
        <source>Own alone, %</source>
        <translation>Solo propia, %</translation>
    </message>
    <message>
        <source>With a missed gate</source>
        <translation>Con un salto</translation>
    </message>
    <message>
        <source>Too few runs to tell how much they vary.</source>
        <translation>Muy pocas mangas para decir cuánto varían.</translation>
    </message>
    <message>
        <source>Trend behind the winners</source>
        <translation>Tendencia respecto a los ganadores</translation>
    </message>
    <message>
        <source>Trend behind the fastest splits</source>
        <translation>Tendencia respecto a los parciales más rápidos</translation>
    </message>
    <message>
        <source>A year, %</source>
        <translation>Al año, %</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Veredicto</translation>
    </message>
    <message>
        <source>Too few runs of everybody to tell a trend: four over two months are needed.</source>
        <translation>Muy pocas mangas de todos para indicar una tendencia: hacen falta cuatro en dos meses.</translation>
    </message>
    <message>
        <source>%1 against</source>
        <translation>%1 frente a</translation>
    </message>
    <message>
        <source>Against</source>
        <translation>Frente a</translation>
    </message>
    <message>
        <source>Ahead, %</source>
        <translation>Delante, %</translation>
    </message>
    <message>
        <source>Met</source>
        <translation>Coinc.</translation>
    </message>
    <message>
        <source>Won</source>
        <translation>Ganadas</translation>
    </message>
    <message>
        <source>Gap, %</source>
        <translation>Dif., %</translation>
    </message>
    <message>
        <source>Gap 90 %</source>
        <translation>Dif. 90&#xa0;%</translation>
    </message>
    <message>
        <source>Half</source>
        <translation>Mitad</translation>
    </message>
    <message>
        <source>The athlete met nobody in these races.</source>
        <translation>El deportista no coincidió con nadie en estas carreras.</translation>
    </message>
    <message>
        <source>Of races, %</source>
        <translation>De las carreras, %</translation>
    </message>
    <message>
        <source>No race of the team has a result that says so.</source>
        <translation>Ninguna carrera del equipo tiene un resultado que lo diga.</translation>
    </message>
    <message>
        <source>Expected places among %1 boats</source>
        <translation>Puestos esperados entre %1 barcos</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Barco</translation>
    </message>
    <message>
        <source>Medal, %</source>
        <translation>Medalla, %</translation>
    </message>
    <message>
        <source>First, %</source>
        <translation>Primero, %</translation>
    </message>
    <message>
        <source>Missed gate, %</source>
        <translation>Salto, %</translation>
    </message>
    <message>
        <source>Too few runs to expect places of anybody: each boat needs three, and the boats must have met.</source>
        <translation>Muy pocas mangas para esperar puestos de nadie: cada barco necesita tres, y los barcos deben haber coincidido.</translation>
    </message>
    <message>
        <source>What ranks took: %1</source>
        <translation>Qué hizo falta para los puestos: %1</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>Behind the winner, %</source>
        <translation>Respecto al ganador, %</translation>
    </message>
    <message>
        <source>Quartiles</source>
        <translation>Cuartiles</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Menor</translation>
    </message>
    <message>
        <source>Most</source>
        <translation>Mayor</translation>
    </message>
    <message>
        <source>%1 would have</source>
        <translation>%1 habría</translation>
    </message>
    <message>
        <source>Median of %1</source>
        <translation>Mediana de %1</translation>
    </message>
    <message>
        <source>The first %1, %2 more in the table</source>
        <translation>Los %1 primeros, %2 más en la tabla</translation>
    </message>
    <message>
        <source>&amp;Import .kvb file</source>
        <translation>Impor&amp;tar archivo .kvb</translation>
    </message>
    <message>
        <source>Import .s&amp;bm file</source>
        <translation>Importar archivo .s&amp;bm</translation>
    </message>
    <message>
        <source>Import from a &amp;watch or logger…</source>
        <translation>Importar de &amp;un reloj o registrador…</translation>
    </message>
    <message>
        <source>Move the trac&amp;k of the watch in time…</source>
        <translation>Desplazar en el tiempo el trac&amp;k del reloj…</translation>
    </message>
    <message>
        <source>Import &amp;power-meter data…</source>
        <translation>Importar datos del medidor de &amp;potencia…</translation>
    </message>
    <message>
        <source>Save the edited .&amp;kvb file</source>
        <translation>Guardar el archivo .k&amp;vb editado</translation>
    </message>
    <message>
        <source>&amp;Export the strokes…</source>
        <translation>Exportar &amp;las paladas…</translation>
    </message>
    <message>
        <source>Export the &amp;turns…</source>
        <translation>Exportar los g&amp;iros…</translation>
    </message>
    <message>
        <source>Export the se&amp;gments…</source>
        <translation>Exportar los seg&amp;mentos…</translation>
    </message>
    <message>
        <source>Export the values per &amp;distance…</source>
        <translation>Exportar los valores por &amp;distancia…</translation>
    </message>
    <message>
        <source>Mount of the p&amp;hone</source>
        <translation>Montaje del telé&amp;fono</translation>
    </message>
    <message>
        <source>Found from the position</source>
        <translation>Deducido de la posición</translation>
    </message>
    <message>
        <source>Session &amp;information…</source>
        <translation>&amp;Información de la sesión…</translation>
    </message>
    <message>
        <source>&amp;Analyse the recording again</source>
        <translation>&amp;Analizar de nuevo la grabación</translation>
    </message>
    <message>
        <source>&amp;Keep the selected stretch</source>
        <translation>&amp;Conservar el trecho seleccionado</translation>
    </message>
    <message>
        <source>Remove the selected &amp;stretch</source>
        <translation>Quitar el &amp;trecho seleccionado</translation>
    </message>
    <message>
        <source>Re&amp;move the selected strokes, turns or mark</source>
        <translation>&amp;Quitar las paladas, los giros o la marca seleccionados</translation>
    </message>
    <message>
        <source>Select &amp;nothing</source>
        <translation>&amp;No seleccionar nada</translation>
    </message>
    <message>
        <source>&amp;Segments</source>
        <translation>&amp;Segmentos</translation>
    </message>
    <message>
        <source>&amp;Mark here</source>
        <translation>&amp;Marcar aquí</translation>
    </message>
    <message>
        <source>Mo&amp;ve the nearest mark here</source>
        <translation>Mo&amp;ver aquí la marca más cercana</translation>
    </message>
    <message>
        <source>Nearest mark &amp;earlier</source>
        <translation>Marca más cercana a&amp;ntes</translation>
    </message>
    <message>
        <source>Nearest mark &amp;later</source>
        <translation>Marca más cercana &amp;después</translation>
    </message>
    <message>
        <source>&amp;Remove the nearest mark</source>
        <translation>&amp;Quitar la marca más cercana</translation>
    </message>
    <message>
        <source>Remove &amp;all marks</source>
        <translation>Quitar &amp;todas las marcas</translation>
    </message>
    <message>
        <source>&amp;Save the segments</source>
        <translation>&amp;Guardar los segmentos</translation>
    </message>
    <message>
        <source>&amp;Replay</source>
        <translation>&amp;Repetición</translation>
    </message>
    <message>
        <source>&amp;Play, pause</source>
        <translation>&amp;Reproducir, pausar</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>Más &amp;lento</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>Más rá&amp;pido</translation>
    </message>
    <message>
        <source>&amp;Real time</source>
        <translation>Tiempo r&amp;eal</translation>
    </message>
    <message>
        <source>P&amp;revious stroke</source>
        <translation>Palada &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next stroke</source>
        <translation>Palada &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Inicio</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Fin</translation>
    </message>
    <message>
        <source>&amp;Charts</source>
        <translation>G&amp;ráficos</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Zoom to the selected stretch</source>
        <translation>Am&amp;pliar al trecho seleccionado</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Ajustar</translation>
    </message>
    <message>
        <source>%1; “%2” is none.</source>
        <translation>%1; «%2» no lo es.</translation>
    </message>
    <message>
        <source>%1 is of release %2.</source>
        <translation>%1 es de la versión %2.</translation>
    </message>
    <message>
        <source>Its folder %1 cannot be written, so that the analyzer shows it and leaves it as it is.</source>
        <translation>En su carpeta %1 no se puede escribir, así que el analizador lo muestra y lo deja como está.</translation>
    </message>
    <message>
        <source>Who of the team it is; a question mark: only you can tell</source>
        <translation>Quién es del equipo; un signo de interrogación: solo tú lo sabes</translation>
    </message>
    <message>
        <source> or </source>
        <translation> o </translation>
    </message>
    <message>
        <source>Reckoned from the list</source>
        <translation>Calculado a partir de la lista</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Columna</translation>
    </message>
    <message>
        <source>What stands there</source>
        <translation>Lo que pone ahí</translation>
    </message>
    <message>
        <source>Why it is not taken</source>
        <translation>Por qué no se toma</translation>
    </message>
    <message>
        <source>Results list</source>
        <translation>Lista de resultados</translation>
    </message>
    <message>
        <source>Attached document</source>
        <translation>Documento adjunto</translation>
    </message>
    <message>
        <source>Table kept with the race</source>
        <translation>Tabla conservada con la carrera</translation>
    </message>
    <message>
        <source>The least is %1 (%2), the most %3 (%4), of %5 rows</source>
        <translation>El menor es %1 (%2), el mayor %3 (%4), de %5 filas</translation>
    </message>
    <message>
        <source>; %1 without a number are left out</source>
        <translation>; %1 sin número se omiten</translation>
    </message>
    <message>
        <source>Choose a column of numbers or times: a click on one of its cells, then C.</source>
        <translation>Elige una columna de números o tiempos: un clic en una de sus celdas y luego C.</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Fila</translation>
    </message>
    <message>
        <source>No row has a number in this column.</source>
        <translation>Ninguna fila tiene un número en esta columna.</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Día</translation>
    </message>
    <message>
        <source>Start &amp;list…</source>
        <translation>&amp;Lista de salida…</translation>
    </message>
    <message>
        <source>Films &amp;from…</source>
        <translation>Vídeos &amp;de…</translation>
    </message>
    <message>
        <source>Reckon with the camera&apos;s &amp;clock</source>
        <translation>Contar con el &amp;reloj de la cámara</translation>
    </message>
    <message>
        <source>&amp;Remove the boat from the list</source>
        <translation>&amp;Quitar el barco de la lista</translation>
    </message>
    <message>
        <source>To the next film that is not &amp;timed yet</source>
        <translation>Al siguiente vídeo aún sin &amp;cronometrar</translation>
    </message>
    <message>
        <source>&amp;Open the film of the start in front</source>
        <translation>Abrir &amp;el vídeo de la salida de delante</translation>
    </message>
    <message>
        <source>&amp;Previous start</source>
        <translation>Salida &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next start</source>
        <translation>Salida &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Agree: the film is named after its boat</source>
        <translation>C&amp;onfirmar: el vídeo recibe el nombre de su barco</translation>
    </message>
    <message>
        <source>Agree to all that are &amp;sure</source>
        <translation>Confirmar &amp;todos los seguros</translation>
    </message>
    <message>
        <source>Films from here on: one start &amp;earlier</source>
        <translation>Vídeos desde aquí: &amp;una salida antes</translation>
    </message>
    <message>
        <source>Films from here on: one start late&amp;r</source>
        <translation>&amp;Vídeos desde aquí: una salida después</translation>
    </message>
    <message>
        <source>Did not start, or did after all</source>
        <translation>No salió, o al final sí</translation>
    </message>
    <message>
        <source>Did not finish, or did after all</source>
        <translation>No terminó, o al final sí</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notas</translation>
    </message>
    <message>
        <source>Stroke on the left</source>
        <translation>Palada a la izquierda</translation>
    </message>
    <message>
        <source>Stroke on the right</source>
        <translation>Palada a la derecha</translation>
    </message>
    <message>
        <source>Other hand for the selected stroke</source>
        <translation>Otra mano para la palada seleccionada</translation>
    </message>
    <message>
        <source>Play from the selected tag</source>
        <translation>Reproducir desde la etiqueta seleccionada</translation>
    </message>
    <message>
        <source>To the other run of the time loss</source>
        <translation>A la otra manga de la pérdida de tiempo</translation>
    </message>
    <message>
        <source>Record the team radio, or end it</source>
        <translation>Grabar la radio del equipo, o terminar</translation>
    </message>
    <message>
        <source>Clips of the chosen marks, one after another</source>
        <translation>Clips de las marcas elegidas, uno tras otro</translation>
    </message>
    <message>
        <source>Add a &amp;category</source>
        <translation>Añadir una &amp;categoría</translation>
    </message>
    <message>
        <source>&amp;Team</source>
        <translation>E&amp;quipo</translation>
    </message>
    <message>
        <source>&amp;New athlete…</source>
        <translation>&amp;Nuevo deportista…</translation>
    </message>
    <message>
        <source>Remo&amp;ve the athlete</source>
        <translation>&amp;Quitar el deportista</translation>
    </message>
    <message>
        <source>Re&amp;move the category</source>
        <translation>Quitar la ca&amp;tegoría</translation>
    </message>
    <message>
        <source>New &amp;season</source>
        <translation>Nueva te&amp;mporada</translation>
    </message>
    <message>
        <source>New &amp;race</source>
        <translation>Nueva ca&amp;rrera</translation>
    </message>
    <message>
        <source>Move season or race &amp;up</source>
        <translation>S&amp;ubir temporada o carrera</translation>
    </message>
    <message>
        <source>Move season or race &amp;down</source>
        <translation>&amp;Bajar temporada o carrera</translation>
    </message>
    <message>
        <source>Where the athlete &amp;loses time…</source>
        <translation>Dónde &amp;pierde tiempo el deportista…</translation>
    </message>
    <message>
        <source>S&amp;eason of the athlete</source>
        <translation>Temporada del &amp;deportista</translation>
    </message>
    <message>
        <source>Compute all a&amp;verages again</source>
        <translation>&amp;Volver a calcular todas las medias</translation>
    </message>
    <message>
        <source>&amp;Find an athlete</source>
        <translation>Buscar &amp;un deportista</translation>
    </message>
    <message>
        <source>Take &amp;results over…</source>
        <translation>&amp;Incorporar resultados…</translation>
    </message>
    <message>
        <source>Cate&amp;gorization report…</source>
        <translation>Informe &amp;de categorización…</translation>
    </message>
    <message>
        <source>Save the c&amp;hart…</source>
        <translation>Guardar e&amp;l gráfico…</translation>
    </message>
    <message>
        <source>&amp;Edit the cell</source>
        <translation>&amp;Editar la celda</translation>
    </message>
    <message>
        <source>&amp;Remove what is chosen</source>
        <translation>&amp;Quitar lo elegido</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Deportistas</translation>
    </message>
    <message>
        <source>Selection %1</source>
        <translation>Selectivo %1</translation>
    </message>
    <message>
        <source>Race analyzer</source>
        <translation>Analizador de carreras</translation>
    </message>
    <message>
        <source>Every split of a race side by side, coloured by rank.</source>
        <translation>Todos los parciales de una carrera lado a lado, coloreados por puesto.</translation>
    </message>
    <message>
        <source>Open races</source>
        <translation>Abrir carreras</translation>
    </message>
    <message>
        <source>Split files</source>
        <translation>Archivos de parciales</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Pérdidas de tiempo</translation>
    </message>
    <message>
        <source>Where each run lost its time, and what comes back.</source>
        <translation>Dónde perdió tiempo cada manga, y qué se repite.</translation>
    </message>
    <message>
        <source>Open split files</source>
        <translation>Abrir archivos de parciales</translation>
    </message>
    <message>
        <source>Split taking</source>
        <translation>Toma de parciales</translation>
    </message>
    <message>
        <source>Time every run from its video, exact to the frame.</source>
        <translation>Cronometrar cada manga en su vídeo, con exactitud de fotograma.</translation>
    </message>
    <message>
        <source>Open a folder of videos</source>
        <translation>Abrir una carpeta de vídeos</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>A folder of films played, compared, tagged and cut.</source>
        <translation>Una carpeta de vídeos: ver, comparar, etiquetar, cortar.</translation>
    </message>
    <message>
        <source>Open a folder of films</source>
        <translation>Abrir una carpeta de vídeos</translation>
    </message>
    <message>
        <source>Kayak cross</source>
        <translation>Kayak cross</translation>
    </message>
    <message>
        <source>Time trials, heats and attacks of a cross race, from video.</source>
        <translation>Contrarrelojes, series y ataques de una carrera de cross, en vídeo.</translation>
    </message>
    <message>
        <source>Open a kayak cross</source>
        <translation>Abrir un kayak cross</translation>
    </message>
    <message>
        <source>Compare films</source>
        <translation>Comparar vídeos</translation>
    </message>
    <message>
        <source>Two to four runs in one picture, as a film.</source>
        <translation>De dos a cuatro mangas en una imagen, como vídeo.</translation>
    </message>
    <message>
        <source>Comparisons of films</source>
        <translation>Comparaciones de vídeos</translation>
    </message>
    <message>
        <source>Comparisons</source>
        <translation>Comparaciones</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Comparación</translation>
    </message>
    <message>
        <source>Team</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Results of every athlete, season by season, and their category.</source>
        <translation>Resultados de cada deportista, temporada a temporada, y su categoría.</translation>
    </message>
    <message>
        <source>Team results</source>
        <translation>Resultados del equipo</translation>
    </message>
    <message>
        <source>Teams</source>
        <translation>Equipos</translation>
    </message>
    <message>
        <source>Selection races</source>
        <translation>Selectivos</translation>
    </message>
    <message>
        <source>Who is selected, by which results, and why.</source>
        <translation>Quién queda seleccionado, con qué resultados y por qué.</translation>
    </message>
    <message>
        <source>Planning</source>
        <translation>Planificación</translation>
    </message>
    <message>
        <source>Seasons, weeks and sessions, heart, gym and goals of a group.</source>
        <translation>Temporadas, semanas y sesiones, corazón, gimnasio y objetivos de un grupo.</translation>
    </message>
    <message>
        <source>Plannings</source>
        <translation>Planificaciones</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Pruebas</translation>
    </message>
    <message>
        <source>Lap, sprint and eight tests on the water, compared.</source>
        <translation>Pruebas de vueltas, de esprint y del ocho en el agua, comparadas.</translation>
    </message>
    <message>
        <source>Boat motion</source>
        <translation>Movimiento del barco</translation>
    </message>
    <message>
        <source>Recordings of phone and watch over each other, and converted.</source>
        <translation>Grabaciones de teléfono y reloj superpuestas y convertidas.</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>Abrir grabaciones</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Grabaciones</translation>
    </message>
    <message>
        <source>Strokes, turns and segments of a recording, on a map.</source>
        <translation>Paladas, giros y segmentos de una grabación, en un mapa.</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Every gate, penalty and run of all seasons, by one question.</source>
        <translation>Cada puerta, penalización y manga de todas las temporadas, con una pregunta.</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>Buscar en archivos</translation>
    </message>
    <message>
        <source>Which gates are touched, by whom, and what it cost.</source>
        <translation>Qué puertas se tocan, quién las toca y qué costó.</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tablas</translation>
    </message>
    <message>
        <source>Any list of results, sorted, tinted, reckoned with, and whose it is.</source>
        <translation>Cualquier lista de resultados, ordenada, coloreada, con cálculos, y de quién es.</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>Abrir listas</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listas</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Temporada</translation>
    </message>
    <message>
        <source>How a team&apos;s athletes stand: trend, rivals, medals.</source>
        <translation>Cómo están los deportistas: tendencia, rivales, medallas.</translation>
    </message>
    <message>
        <source>Open a team</source>
        <translation>Abrir un equipo</translation>
    </message>
    <message>
        <source>Fetch films</source>
        <translation>Descargar vídeos</translation>
    </message>
    <message>
        <source>The films of a race from a server, by the bibs of a start list.</source>
        <translation>Los vídeos de una carrera desde un servidor, por los dorsales de una lista de salida.</translation>
    </message>
    <message>
        <source>Open a source of films</source>
        <translation>Abrir una fuente de vídeos</translation>
    </message>
    <message>
        <source>Sources of films</source>
        <translation>Fuentes de vídeos</translation>
    </message>
    <message>
        <source>Test session</source>
        <translation>Sesión de pruebas</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Prueba</translation>
    </message>
    <message>
        <source>New &amp;lap test</source>
        <translation>Nueva prueba de &amp;vueltas</translation>
    </message>
    <message>
        <source>New &amp;sprint</source>
        <translation>Nuevo &amp;esprint</translation>
    </message>
    <message>
        <source>New &amp;eight test</source>
        <translation>Nueva prueba del &amp;ocho</translation>
    </message>
    <message>
        <source>&amp;Duplicate the test</source>
        <translation>Duplicar la &amp;prueba</translation>
    </message>
    <message>
        <source>&amp;Previous test</source>
        <translation>Prueba &amp;anterior</translation>
    </message>
    <message>
        <source>Ne&amp;xt test</source>
        <translation>Prueba &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Compare with the athlete&apos;s other tests</source>
        <translation>&amp;Comparar con las otras pruebas del deportista</translation>
    </message>
    <message>
        <source>&amp;Tick every listed test</source>
        <translation>&amp;Marcar todas las pruebas de la lista</translation>
    </message>
    <message>
        <source>&amp;Untick all</source>
        <translation>&amp;Desmarcar todas</translation>
    </message>
    <message>
        <source>&amp;Values</source>
        <translation>&amp;Valores</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabla</translation>
    </message>
    <message>
        <source>Charts by &amp;lap or stretch</source>
        <translation>Gráficos por vue&amp;lta o trecho</translation>
    </message>
    <message>
        <source>Charts by t&amp;urn</source>
        <translation>Gráficos por &amp;giro</translation>
    </message>
    <message>
        <source>Charts by &amp;stroke</source>
        <translation>Gráficos por p&amp;alada</translation>
    </message>
    <message>
        <source>&amp;List of tests</source>
        <translation>Lista de &amp;pruebas</translation>
    </message>
    <message>
        <source>Choose an &amp;athlete</source>
        <translation>Elegir un &amp;deportista</translation>
    </message>
    <message>
        <source>Take in from a split &amp;file…</source>
        <translation>&amp;Incorporar de un archivo de parciales…</translation>
    </message>
    <message>
        <source>Take in from a &amp;recording…</source>
        <translation>Incorporar de una gra&amp;bación…</translation>
    </message>
    <message>
        <source>&amp;Export the table…</source>
        <translation>E&amp;xportar la tabla…</translation>
    </message>
    <message>
        <source>&amp;Copy the table</source>
        <translation>&amp;Copiar la tabla</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Recorrido</translation>
    </message>
    <message>
        <source>The course drawn: banks, gates, split lines and the lines of runs.</source>
        <translation>El recorrido dibujado: orillas, puertas, líneas de parciales y trazadas de las mangas.</translation>
    </message>
    <message>
        <source>Draw the course of a race</source>
        <translation>Dibujar el recorrido de una carrera</translation>
    </message>
    <message>
        <source>Tracking</source>
        <translation>Seguimiento</translation>
    </message>
    <message>
        <source>A boat followed through a film: its path and speed.</source>
        <translation>Un barco seguido por un vídeo: trayectoria y velocidad.</translation>
    </message>
    <message>
        <source>Open films</source>
        <translation>Abrir vídeos</translation>
    </message>
    <message>
        <source>Slit picture</source>
        <translation>Imagen de línea</translation>
    </message>
    <message>
        <source>Every crossing of a line, as a finish camera shows it.</source>
        <translation>Cada paso por una línea, como en la foto de meta.</translation>
    </message>
    <message>
        <source>Open films of a fixed camera</source>
        <translation>Abrir vídeos de una cámara fija</translation>
    </message>
    <message>
        <source>Share folders</source>
        <translation>Compartir carpetas</translation>
    </message>
    <message>
        <source>A folder the same here and on the team&apos;s own server.</source>
        <translation>Una carpeta igual aquí y en el servidor del equipo.</translation>
    </message>
    <message>
        <source>Share a folder</source>
        <translation>Compartir una carpeta</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>Marcado</translation>
    </message>
    <message>
        <source>Proposal</source>
        <translation>Propuesta</translation>
    </message>
    <message>
        <source>Confidence</source>
        <translation>Confianza</translation>
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
        <translation>ninguna</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manga</translation>
    </message>
    <message>
        <source>No boat was found that could be this run: look for it in the slit picture.</source>
        <translation>No se encontró ningún barco que pueda ser esta manga: búscalo en la imagen de línea.</translation>
    </message>
    <message>
        <source>This run is marked here.</source>
        <translation>Esta manga está marcada aquí.</translation>
    </message>
    <message>
        <source>Where the run is marked at this line, in seconds of the film</source>
        <translation>Dónde está marcada la manga en esta línea, en segundos del vídeo</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>omitido</translation>
    </message>
    <message>
        <source>→ new here</source>
        <translation>→ nuevo aquí</translation>
    </message>
    <message>
        <source>← new there</source>
        <translation>← nuevo allí</translation>
    </message>
    <message>
        <source>→ changed here</source>
        <translation>→ modificado aquí</translation>
    </message>
    <message>
        <source>← changed there</source>
        <translation>← modificado allí</translation>
    </message>
    <message>
        <source>↔ on both sides</source>
        <translation>↔ en ambos lados</translation>
    </message>
    <message>
        <source>✕ deleted here</source>
        <translation>✕ borrado aquí</translation>
    </message>
    <message>
        <source>✕ deleted there</source>
        <translation>✕ borrado allí</translation>
    </message>
    <message>
        <source>Goes to the server</source>
        <translation>Va al servidor</translation>
    </message>
    <message>
        <source>Comes from the server</source>
        <translation>Viene del servidor</translation>
    </message>
    <message>
        <source>Goes to the server, in place of what it has</source>
        <translation>Va al servidor, en lugar de lo que hay allí</translation>
    </message>
    <message>
        <source>Comes from the server, in place of what is here</source>
        <translation>Viene del servidor, en lugar de lo que hay aquí</translation>
    </message>
    <message>
        <source>Is compared; where both differ, both are kept</source>
        <translation>Se compara; si difieren, se conservan ambos</translation>
    </message>
    <message>
        <source>Is deleted on the server where you tick it</source>
        <translation>Se borra en el servidor si lo marcas</translation>
    </message>
    <message>
        <source>Is deleted here where you tick it</source>
        <translation>Se borra aquí si lo marcas</translation>
    </message>
    <message>
        <source>%1 new here</source>
        <translation>%1 nuevos aquí</translation>
    </message>
    <message>
        <source>%1 new there</source>
        <translation>%1 nuevos allí</translation>
    </message>
    <message>
        <source>%1 changed here</source>
        <translation>%1 modificados aquí</translation>
    </message>
    <message>
        <source>%1 changed there</source>
        <translation>%1 modificados allí</translation>
    </message>
    <message>
        <source>%1 on both sides</source>
        <translation>%1 en ambos lados</translation>
    </message>
    <message>
        <source>%1 deleted here</source>
        <translation>%1 borrados aquí</translation>
    </message>
    <message>
        <source>%1 deleted there</source>
        <translation>%1 borrados allí</translation>
    </message>
    <message>
        <source>Both sides are the same</source>
        <translation>Ambos lados son iguales</translation>
    </message>
    <message>
        <source>%1 shared</source>
        <translation>%1 compartidos</translation>
    </message>
    <message>
        <source>%1 kept twice</source>
        <translation>%1 conservados dos veces</translation>
    </message>
    <message>
        <source>Fastest at %1 s of the film: %2 m/s.</source>
        <translation>Máxima en el segundo %1 del vídeo: %2 m/s.</translation>
    </message>
    <message>
        <source>Fastest at %1 s of the film: %2 m/s (a scale only: it holds near the two points and along their line).</source>
        <translation>Máxima en el segundo %1 del vídeo: %2 m/s (solo una escala: vale cerca de los dos puntos y a lo largo de su línea).</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Fotograma</translation>
    </message>
    <message>
        <source>Steadied x</source>
        <translation>x estabilizada</translation>
    </message>
    <message>
        <source>Steadied y</source>
        <translation>y estabilizada</translation>
    </message>
    <message>
        <source>Across</source>
        <translation>A lo ancho</translation>
    </message>
    <message>
        <source>Along</source>
        <translation>A lo largo</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Acierto</translation>
    </message>
    <message>
        <source>Film [s]</source>
        <translation>Vídeo [s]</translation>
    </message>
    <message>
        <source>m/s</source>
        <translation>m/s</translation>
    </message>
    <message>
        <source>Draw a box round what is to be followed.</source>
        <translation>Dibuja un recuadro alrededor de lo que hay que seguir.</translation>
    </message>
    <message>
        <source>Click known points on the water for metres and speeds: the poles of two gates, or of one for a scale only.</source>
        <translation>Haz clic en puntos conocidos del agua para tener metros y velocidades: los palos de dos puertas, o de una para tener solo una escala.</translation>
    </message>
    <message>
        <source>There is no speed: the path is too short, or the camera&apos;s motion is not known.</source>
        <translation>No hay velocidad: la trayectoria es demasiado corta o no se conoce el movimiento de la cámara.</translation>
    </message>
    <message>
        <source>Uncertainty of the clicks</source>
        <translation>Incertidumbre de los clics</translation>
    </message>
    <message>
        <source>✓ Done</source>
        <translation>✓ Hecho</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>En curso…</translation>
    </message>
    <message>
        <source>Lists (*.csv *.tsv *.txt *.xlsx *.ods *.kvx *.kvtable);;All files (*)</source>
        <translation>Listas (*.csv *.tsv *.txt *.xlsx *.ods *.kvx *.kvtable);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>“%1” holds no runs. Nothing was imported.</source>
        <translation>«%1» no contiene ninguna manga. No se ha importado nada.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthleteDialog</name>
    <message>
        <source>Athlete</source>
        <translation>Deportista</translation>
    </message>
    <message>
        <source>SURNAME Name</source>
        <translation>APELLIDO Nombre</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocida</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>&amp;Club</source>
        <translation>&amp;Club</translation>
    </message>
    <message>
        <source>&amp;Birth year</source>
        <translation>&amp;Año de nacimiento</translation>
    </message>
    <message>
        <source>&amp;Age group</source>
        <translation>&amp;Grupo de edad</translation>
    </message>
    <message>
        <source>Preselected, group %1</source>
        <translation>Preseleccionado, grupo %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Bonus %1 (percent)</source>
        <translation>Bonificación %1 (porcentaje)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthleteList</name>
    <message>
        <source>Search athletes</source>
        <translation>Buscar deportistas</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Temporada</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>aún ninguno</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthletePageDialog</name>
    <message>
        <source>Page of an athlete</source>
        <translation>Página de un deportista</translation>
    </message>
    <message>
        <source>All races that are open</source>
        <translation>Todas las carreras abiertas</translation>
    </message>
    <message>
        <source>Only the race of the run that is shown</source>
        <translation>Solo la carrera de la manga mostrada</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>&amp;Deportista</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>D&amp;e</translation>
    </message>
    <message>
        <source>&amp;Preview and print…</source>
        <translation>&amp;Vista previa e impresión…</translation>
    </message>
    <message>
        <source>&amp;Save as PDF…</source>
        <translation>&amp;Guardar como PDF…</translation>
    </message>
    <message>
        <source>One A4 page: where time is lost on the %1, what to train, penalties.</source>
        <translation>Una página A4: dónde se pierde tiempo frente a la referencia (%1), qué entrenar, penalizaciones.</translation>
    </message>
    <message>
        <source>Choose one of the athletes of the list.</source>
        <translation>Elige uno de los deportistas de la lista.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthletePages</name>
    <message>
        <source>Save the page of the athlete</source>
        <translation>Guardar la página del deportista</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documentos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The page cannot be written over a race that it is made from.</source>
        <translation>La página no se puede escribir encima de una carrera de la que se hace.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AthletePanel</name>
    <message>
        <source>Retired: left out of the categorization report</source>
        <translation>Retirado: no aparece en el informe de categorización</translation>
    </message>
    <message>
        <source>Search athletes</source>
        <translation>Buscar deportistas</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Todas las categorías</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Deportista</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>Born</source>
        <translation>Nac.</translation>
    </message>
    <message>
        <source>birth year</source>
        <translation>año de nacimiento</translation>
    </message>
    <message>
        <source>Boats</source>
        <translation>Barcos</translation>
    </message>
    <message>
        <source>Ret.</source>
        <translation>Ret.</translation>
    </message>
    <message>
        <source>Retired</source>
        <translation>Retirado</translation>
    </message>
    <message>
        <source>retirement</source>
        <translation>retirada</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AttackForm</name>
    <message>
        <source>Passed</source>
        <translation>Adelantó</translation>
    </message>
    <message>
        <source>No end</source>
        <translation>Sin fin</translation>
    </message>
    <message>
        <source>Takes the end of the attack out</source>
        <translation>Quita el fin del ataque</translation>
    </message>
    <message>
        <source>The attacker went past</source>
        <translation>El atacante adelantó</translation>
    </message>
    <message>
        <source>Attacker</source>
        <translation>Atacante</translation>
    </message>
    <message>
        <source>on</source>
        <translation>a</translation>
    </message>
    <message>
        <source>attacker</source>
        <translation>atacante</translation>
    </message>
    <message>
        <source>outcome of an attack</source>
        <translation>desenlace de un ataque</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Lado</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>side of an attack</source>
        <translation>lado de un ataque</translation>
    </message>
    <message>
        <source>place of an attack</source>
        <translation>lugar de un ataque</translation>
    </message>
    <message>
        <source>comment on an attack</source>
        <translation>comentario a un ataque</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>Empieza aquí</translation>
    </message>
    <message>
        <source>The attack starts at this frame</source>
        <translation>El ataque empieza en este fotograma</translation>
    </message>
    <message>
        <source>End here</source>
        <translation>Termina aquí</translation>
    </message>
    <message>
        <source>The attack ends at this frame</source>
        <translation>El ataque termina en este fotograma</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Removes the attack</source>
        <translation>Quita el ataque</translation>
    </message>
    <message>
        <source>?  %1</source>
        <translation>?  %1</translation>
    </message>
    <message>
        <source>unnamed</source>
        <translation>sin nombre</translation>
    </message>
    <message>
        <source>Start %1</source>
        <translation>Inicio %1</translation>
    </message>
    <message>
        <source>End %1</source>
        <translation>Fin %1</translation>
    </message>
    <message>
        <source>defenders</source>
        <translation>defensores</translation>
    </message>
    <message>
        <source>%1 defends</source>
        <translation>%1 defiende</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::AveragesModel</name>
    <message>
        <source>Share of the runs with so many penalty seconds</source>
        <translation>Parte de las mangas con tantos segundos de penalización</translation>
    </message>
    <message>
        <source>S%1</source>
        <translation>S%1</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Temporada</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Behind</source>
        <translation>Dif.</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Limpias</translation>
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
        <translation>6 a 48 s</translation>
    </message>
    <message>
        <source>50 s and more</source>
        <translation>50 s y más</translation>
    </message>
    <message>
        <source>All seasons</source>
        <translation>Todas las temporadas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::BalanceView</name>
    <message>
        <source>Side unknown: nothing tells which side of the phone points to the bow. Name its mount in the menu Edit, and left and right are found.</source>
        <translation>Lado desconocido: nada indica qué lado del teléfono apunta a la proa. Indica su montaje en el menú Editar y se sabrá cuál es la izquierda y cuál la derecha.</translation>
    </message>
    <message>
        <source>even</source>
        <translation>igual</translation>
    </message>
    <message>
        <source>left +%1 %</source>
        <translation>izquierda +%1&#xa0;%</translation>
    </message>
    <message>
        <source>right +%1 %</source>
        <translation>derecha +%1&#xa0;%</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Paladas</translation>
    </message>
    <message>
        <source>Force (N)</source>
        <translation>Fuerza (N)</translation>
    </message>
    <message>
        <source>Impulse (N·s)</source>
        <translation>Impulso (N·s)</translation>
    </message>
    <message>
        <source>Power (W)</source>
        <translation>Potencia (W)</translation>
    </message>
    <message>
        <source>Water phase (s)</source>
        <translation>Fase acuática (s)</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Differences under %1 % are no finding</source>
        <translation>Las diferencias de menos del %1&#xa0;% no significan nada</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::BodyPanel</name>
    <message>
        <source>Body</source>
        <translation>Cuerpo</translation>
    </message>
    <message>
        <source>body data</source>
        <translation>datos corporales</translation>
    </message>
    <message>
        <source>Add weight</source>
        <translation>Añadir peso</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>Body fat</source>
        <translation>Grasa corporal</translation>
    </message>
    <message>
        <source>Resting heart rate</source>
        <translation>Frecuencia cardiaca en reposo</translation>
    </message>
    <message>
        <source>heart rate</source>
        <translation>frecuencia cardiaca</translation>
    </message>
    <message>
        <source>Add heart rate</source>
        <translation>Añadir frecuencia cardiaca</translation>
    </message>
    <message>
        <source>Heart-rate variability</source>
        <translation>Variabilidad de la frecuencia cardiaca</translation>
    </message>
    <message>
        <source>variability</source>
        <translation>variabilidad</translation>
    </message>
    <message>
        <source>Add measurement</source>
        <translation>Añadir medición</translation>
    </message>
    <message>
        <source>Import list…</source>
        <translation>Importar lista…</translation>
    </message>
    <message>
        <source>A list with a header: Date and one or more of AVNN, SDNN, rMSSD, pNN50, LF, HF. It can also be dropped here.</source>
        <translation>Una lista con cabecera: Date y uno o más de AVNN, SDNN, rMSSD, pNN50, LF, HF. También se puede soltar aquí.</translation>
    </message>
    <message>
        <source>Index of the chart</source>
        <translation>Índice del gráfico</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>Í&amp;ndice</translation>
    </message>
    <message>
        <source>Choose an athlete.</source>
        <translation>Elige un deportista.</translation>
    </message>
    <message>
        <source>Add a season for this athlete first.</source>
        <translation>Añade antes una temporada para este deportista.</translation>
    </message>
    <message>
        <source>No weight of this season yet.
Press Insert to add today&apos;s.</source>
        <translation>Aún no hay pesos de esta temporada.
Pulsa Insert para añadir el de hoy.</translation>
    </message>
    <message>
        <source>No heart rate of this season yet.
Press Insert to add this morning&apos;s.</source>
        <translation>Aún no hay frecuencias cardiacas de esta temporada.
Pulsa Insert para añadir la de esta mañana.</translation>
    </message>
    <message>
        <source>No measurement of this season yet.
Press Insert to add one, or import a list.</source>
        <translation>Aún no hay mediciones de esta temporada.
Pulsa Insert para añadir una, o importa una lista.</translation>
    </message>
    <message>
        <source>bpm</source>
        <translation>lpm</translation>
    </message>
    <message>
        <source>Add a few mornings&apos; heart rates to see the mean of the week against what is usual.</source>
        <translation>Añade las frecuencias cardiacas de unas cuantas mañanas para ver la media de la semana frente a lo habitual.</translation>
    </message>
    <message>
        <source>No %1 of this season. Add measurements, import a list or choose another index.</source>
        <translation>No hay %1 de esta temporada. Añade mediciones, importa una lista o elige otro índice.</translation>
    </message>
    <message>
        <source>Import variability</source>
        <translation>Importar variabilidad</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt *.tsv);;All files (*)</source>
        <translation>Listas (*.csv *.txt *.tsv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>import of variability</source>
        <translation>importación de variabilidad</translation>
    </message>
    <message>
        <source>The list cannot be read: %1</source>
        <translation>La lista no se puede leer: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CameraPage</name>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Lag</source>
        <translation>Retardo</translation>
    </message>
    <message>
        <source>Off by</source>
        <translation>Desvío</translation>
    </message>
    <message>
        <source>Attach a film…</source>
        <translation>Adjuntar un vídeo…</translation>
    </message>
    <message>
        <source>Beside the film</source>
        <translation>Junto al vídeo</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>Separar</translation>
    </message>
    <message>
        <source>Takes the film shown beside off this run</source>
        <translation>Quita de esta manga el vídeo que se muestra al lado</translation>
    </message>
    <message>
        <source>Attach it to every run</source>
        <translation>Adjuntarlo a todas las mangas</translation>
    </message>
    <message>
        <source>A fixed camera often films the whole race in one go</source>
        <translation>Una cámara fija suele grabar toda la carrera de una vez</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Attach the film of a camera that stood at the course.</source>
        <translation>Adjunta el vídeo de una cámara colocada junto al recorrido.</translation>
    </message>
    <message>
        <source>Choose a camera to see its film beside this one.</source>
        <translation>Elige una cámara para ver su vídeo junto a este.</translation>
    </message>
    <message>
        <source>Find one moment on both films, the fixed camera&apos;s alone with Alt+PgUp and Alt+PgDown. M marks it.</source>
        <translation>Busca un mismo momento en los dos vídeos, el de la cámara fija solo con Alt+RePág y Alt+AvPág. M lo marca.</translation>
    </message>
    <message>
        <source>In step: the fixed camera&apos;s film is %1 s ahead.</source>
        <translation>A la par: el vídeo de la cámara fija va %1 s por delante.</translation>
    </message>
    <message>
        <source>Placed by the dates in the two films, to a second or two.</source>
        <translation>Colocado por las fechas de los dos vídeos, con una precisión de uno o dos segundos.</translation>
    </message>
    <message>
        <source>Not in step yet.</source>
        <translation>Aún no van a la par.</translation>
    </message>
    <message>
        <source>Its film has no date: moments are kept without the time of its clock.</source>
        <translation>Su vídeo no tiene fecha: los momentos se conservan sin la hora de su reloj.</translation>
    </message>
    <message>
        <source>fixed camera detached</source>
        <translation>cámara fija separada</translation>
    </message>
    <message>
        <source>fixed camera for every run</source>
        <translation>cámara fija para todas las mangas</translation>
    </message>
    <message>
        <source>The film of the fixed camera shows no frame.</source>
        <translation>El vídeo de la cámara fija no muestra ningún fotograma.</translation>
    </message>
    <message>
        <source>moment on both films</source>
        <translation>momento en los dos vídeos</translation>
    </message>
    <message>
        <source>Same moment</source>
        <translation>Mismo momento</translation>
    </message>
    <message>
        <source>moment removed</source>
        <translation>momento quitado</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Chart</name>
    <message>
        <source>1 run</source>
        <translation>1 manga</translation>
    </message>
    <message>
        <source> · %1 of %2 selected runs</source>
        <translation> · %1 de %2 mangas seleccionadas</translation>
    </message>
    <message>
        <source>The filter matches nobody. Change it to see runs again.</source>
        <translation>El filtro no coincide con nadie. Cámbialo para volver a ver mangas.</translation>
    </message>
    <message>
        <source>Open a race to see its charts.</source>
        <translation>Abre una carrera para ver sus gráficos.</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n manga</numerusform>
            <numerusform>%n mangas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ChartPanel</name>
    <message>
        <source>Charts</source>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>&amp;Reference</source>
        <translation>&amp;Referencia</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referencia</translation>
    </message>
    <message>
        <source>What the runs are held against</source>
        <translation>Con qué se comparan las mangas</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Show everything again (or double click)</source>
        <translation>Volver a mostrarlo todo (o doble clic)</translation>
    </message>
    <message>
        <source>Save chart…</source>
        <translation>Guardar gráfico…</translation>
    </message>
    <message>
        <source>Save as PNG, SVG or CSV</source>
        <translation>Guardar como PNG, SVG o CSV</translation>
    </message>
    <message>
        <source>Best run</source>
        <translation>Mejor manga</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Mediana</translation>
    </message>
    <message>
        <source>Ideal run</source>
        <translation>Manga ideal</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ChartTabs</name>
    <message>
        <source>Season</source>
        <translation>Temporada</translation>
    </message>
    <message>
        <source>Race progression</source>
        <translation>Evolución de la carrera</translation>
    </message>
    <message>
        <source>Averages</source>
        <translation>Medias</translation>
    </message>
    <message>
        <source>&amp;All seasons</source>
        <translation>&amp;Todas las temporadas</translation>
    </message>
    <message>
        <source>The season chart shows every season, not the chosen one alone</source>
        <translation>El gráfico de temporada muestra todas las temporadas, no solo la elegida</translation>
    </message>
    <message>
        <source>Save chart…</source>
        <translation>Guardar gráfico…</translation>
    </message>
    <message>
        <source>As a picture (PNG, SVG) or as CSV (Ctrl+E)</source>
        <translation>Como imagen (PNG, SVG) o como CSV (Ctrl+E)</translation>
    </message>
    <message>
        <source>The results of an athlete stand here as charts.</source>
        <translation>Los resultados de un deportista aparecen aquí en gráficos.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>all seasons</source>
        <translation>todas las temporadas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ChartView</name>
    <message>
        <source>No test yet</source>
        <translation>Aún no hay pruebas</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Prueba</translation>
    </message>
    <message>
        <source>Split %1 (s)</source>
        <translation>Parcial %1 (s)</translation>
    </message>
    <message>
        <source>Total (s)</source>
        <translation>Total (s)</translation>
    </message>
    <message>
        <source>Standard deviation (s)</source>
        <translation>Desviación típica (s)</translation>
    </message>
    <message>
        <source>Laps</source>
        <translation>Vueltas</translation>
    </message>
    <message>
        <source>Turns</source>
        <translation>Giros</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Paladas</translation>
    </message>
    <message>
        <source>Stretches</source>
        <translation>Trechos</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ClipPair</name>
    <message>
        <source>This run has no film.</source>
        <translation>Esta manga no tiene vídeo.</translation>
    </message>
    <message>
        <source>The film is not there:
%1</source>
        <translation>El vídeo no está ahí:
%1</translation>
    </message>
    <message>
        <source>Play or pause the clips</source>
        <translation>Reproducir o pausar los clips</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Play the clips from their beginnings</source>
        <translation>Reproducir los clips desde el principio</translation>
    </message>
    <message>
        <source>From the start</source>
        <translation>Desde el inicio</translation>
    </message>
    <message>
        <source>One frame back in the clips</source>
        <translation>Un fotograma atrás en los clips</translation>
    </message>
    <message>
        <source>Frame back</source>
        <translation>Fotograma atrás</translation>
    </message>
    <message>
        <source>One frame forward in the clips</source>
        <translation>Un fotograma adelante en los clips</translation>
    </message>
    <message>
        <source>Frame on</source>
        <translation>Fotograma adelante</translation>
    </message>
    <message>
        <source>Clips in slow motion</source>
        <translation>Clips a cámara lenta</translation>
    </message>
    <message>
        <source>Slow motion</source>
        <translation>Cámara lenta</translation>
    </message>
    <message>
        <source>Clips slower</source>
        <translation>Clips más lentos</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Más lento</translation>
    </message>
    <message>
        <source>Clips faster</source>
        <translation>Clips más rápidos</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Más rápido</translation>
    </message>
    <message>
        <source>Clips at normal speed</source>
        <translation>Clips a velocidad normal</translation>
    </message>
    <message>
        <source>Normal speed</source>
        <translation>Velocidad normal</translation>
    </message>
    <message>
        <source>Repeat the clips</source>
        <translation>Repetir los clips</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>%1 · %2 s, at its end</source>
        <translation>%1 · %2 s, al final</translation>
    </message>
    <message>
        <source>%1 · %2 of %3 s</source>
        <translation>%1 · %2 de %3 s</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ColumnTable</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Copy what is selected</source>
        <translation>Copiar &amp;lo seleccionado</translation>
    </message>
    <message>
        <source>&amp;Save as CSV…</source>
        <translation>&amp;Guardar como CSV…</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>Colum&amp;nas</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Guardar la tabla</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Texto separado por punto y coma (*.csv)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CommandPalette</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>An action, a file, an athlete</source>
        <translation>Una acción, un archivo, un deportista</translation>
    </message>
    <message>
        <source>Nothing here is called “%1”.</source>
        <translation>Aquí nada se llama «%1».</translation>
    </message>
    <message>
        <source>Searched: actions, recent files and the names in this window.</source>
        <translation>Se buscó en: acciones, archivos recientes y los nombres de esta ventana.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CommentPage</name>
    <message>
        <source>score</source>
        <translation>puntuación</translation>
    </message>
    <message>
        <source>Show the coach&apos;s comments</source>
        <translation>Mostrar los comentarios del entrenador</translation>
    </message>
    <message>
        <source>comment on split %1</source>
        <translation>comentario al parcial %1</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Parcial</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>athlete</source>
        <translation>deportista</translation>
    </message>
    <message>
        <source>coach</source>
        <translation>entrenador</translation>
    </message>
    <message>
        <source>Scores</source>
        <translation>Puntuaciones</translation>
    </message>
    <message>
        <source>Give-ups</source>
        <translation>Abandonos</translation>
    </message>
    <message>
        <source>team radio</source>
        <translation>radio del equipo</translation>
    </message>
    <message>
        <source>team radio removed</source>
        <translation>radio del equipo quitada</translation>
    </message>
    <message>
        <source>team radio moved</source>
        <translation>radio del equipo movida</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareDocument</name>
    <message>
        <source>It is no comparison of films, or a damaged one: %1</source>
        <translation>No es una comparación de vídeos, o está dañada: %1</translation>
    </message>
    <message>
        <source>1 film</source>
        <translation>1 vídeo</translation>
    </message>
    <message numerus="yes">
        <source>%n films</source>
        <translation>
            <numerusform>%n vídeo</numerusform>
            <numerusform>%n vídeos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareFilmsPanel</name>
    <message>
        <source>In it</source>
        <translation>Dentro</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>It is not marked from the start to a split.</source>
        <translation>No está marcada desde la salida hasta un parcial.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Name in the film</source>
        <translation>Nombre en el vídeo</translation>
    </message>
    <message>
        <source>name in the film</source>
        <translation>nombre en el vídeo</translation>
    </message>
    <message>
        <source>In place of that of the split file.</source>
        <translation>En lugar del que tiene el archivo de parciales.</translation>
    </message>
    <message>
        <source>category in the film</source>
        <translation>categoría en el vídeo</translation>
    </message>
    <message>
        <source>Starts at [s]</source>
        <translation>Sale en [s]</translation>
    </message>
    <message>
        <source>The second of the film at which a run without marks starts.</source>
        <translation>El segundo del vídeo en el que sale una manga sin marcas.</translation>
    </message>
    <message>
        <source>marked</source>
        <translation>marcada</translation>
    </message>
    <message>
        <source>The start is a second of the film, 0 to 86400</source>
        <translation>La salida es un segundo del vídeo, de 0 a 86400</translation>
    </message>
    <message>
        <source>start of a film</source>
        <translation>inicio de un vídeo</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Find a name, a category, a film…</source>
        <translation>Buscar un nombre, una categoría, un vídeo…</translation>
    </message>
    <message>
        <source>Add split files or films, then tick the two to four that are compared.</source>
        <translation>Añade archivos de parciales o vídeos y marca después de dos a cuatro para compararlos.</translation>
    </message>
    <message>
        <source>Add s&amp;plit files…</source>
        <translation>Añadir archivos de &amp;parciales…</translation>
    </message>
    <message>
        <source>Add &amp;films…</source>
        <translation>Añadir &amp;vídeos…</translation>
    </message>
    <message>
        <source>In the composed film</source>
        <translation>En el vídeo compuesto</translation>
    </message>
    <message>
        <source>No film is chosen yet.</source>
        <translation>Aún no hay ningún vídeo elegido.</translation>
    </message>
    <message>
        <source>&amp;Take it out</source>
        <translation>&amp;Sacarlo</translation>
    </message>
    <message>
        <source>Move it &amp;up</source>
        <translation>S&amp;ubirlo</translation>
    </message>
    <message>
        <source>Move it &amp;down</source>
        <translation>&amp;Bajarlo</translation>
    </message>
    <message>
        <source>Four films are the most. Take one out first.</source>
        <translation>Cuatro vídeos es el máximo. Saca antes uno.</translation>
    </message>
    <message>
        <source>choice of a film</source>
        <translation>elección de un vídeo</translation>
    </message>
    <message>
        <source>removal of a film</source>
        <translation>eliminación de un vídeo</translation>
    </message>
    <message>
        <source>order of the films</source>
        <translation>orden de los vídeos</translation>
    </message>
    <message>
        <source>path of a film</source>
        <translation>trayectoria de un vídeo</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Trayectoria</translation>
    </message>
    <message>
        <source>Draws the path that was followed on it in the window Tracking.</source>
        <translation>Dibuja encima la trayectoria que se siguió en la ventana Seguimiento.</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Seguir</translation>
    </message>
    <message>
        <source>Shows it twice as large, round that path.</source>
        <translation>Lo muestra al doble de tamaño, alrededor de esa trayectoria.</translation>
    </message>
    <message>
        <source>Its place in the composed film. Enter chooses it or takes it out.</source>
        <translation>Su lugar en el vídeo compuesto. Intro lo elige o lo saca.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareForm</name>
    <message>
        <source>the start</source>
        <translation>la salida</translation>
    </message>
    <message>
        <source>&amp;Layout</source>
        <translation>&amp;Disposición</translation>
    </message>
    <message>
        <source>Line at</source>
        <translation>Línea en</translation>
    </message>
    <message>
        <source>0 left, 1 right</source>
        <translation>0 izquierda, 1 derecha</translation>
    </message>
    <message>
        <source>&amp;Together</source>
        <translation>&amp;A la par</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Parcial</translation>
    </message>
    <message>
        <source>Sho&amp;wn</source>
        <translation>M&amp;ostrado</translation>
    </message>
    <message>
        <source>From split</source>
        <translation>Del parcial</translation>
    </message>
    <message>
        <source>To split</source>
        <translation>Al parcial</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Spee&amp;d</source>
        <translation>&amp;Velocidad</translation>
    </message>
    <message>
        <source>Slow motion has no sound.</source>
        <translation>La cámara lenta no tiene sonido.</translation>
    </message>
    <message>
        <source>To be read in it</source>
        <translation>Para leer en él</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>&amp;Nombres</translation>
    </message>
    <message>
        <source>&amp;Clock</source>
        <translation>&amp;Reloj</translation>
    </message>
    <message>
        <source>Split times and gaps</source>
        <translation>Tiempos parciales y diferencias</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Tramo</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Penalizaciones</translation>
    </message>
    <message>
        <source>Chart of the gap</source>
        <translation>Gráfico de la diferencia</translation>
    </message>
    <message>
        <source>The file</source>
        <translation>El archivo</translation>
    </message>
    <message>
        <source>Si&amp;ze</source>
        <translation>&amp;Tamaño</translation>
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
        <translation>1080 × 1080, cuadrado</translation>
    </message>
    <message>
        <source>For sending</source>
        <translation>Para enviar</translation>
    </message>
    <message>
        <source>At most 1280 × 720 and coarser: a small file.</source>
        <translation>Como máximo 1280 × 720 y menos fino: un archivo pequeño.</translation>
    </message>
    <message>
        <source>S&amp;ound of film</source>
        <translation>&amp;Sonido del vídeo</translation>
    </message>
    <message>
        <source>None in slow motion, nor while that film waits or is stretched.</source>
        <translation>Ninguno a cámara lenta, ni mientras ese vídeo espera o se estira.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareView</name>
    <message>
        <source>Preview of the composed film</source>
        <translation>Vista previa del vídeo compuesto</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CompareWindow</name>
    <message>
        <source>Compare films</source>
        <translation>Comparar vídeos</translation>
    </message>
    <message>
        <source>Compose the &amp;film…</source>
        <translation>Componer el &amp;vídeo…</translation>
    </message>
    <message>
        <source>Add s&amp;plit files…</source>
        <translation>Añadir archivos de &amp;parciales…</translation>
    </message>
    <message>
        <source>Add &amp;films…</source>
        <translation>Añadir &amp;vídeos…</translation>
    </message>
    <message>
        <source>&amp;Compose the film…</source>
        <translation>&amp;Componer el vídeo…</translation>
    </message>
    <message>
        <source>Films being composed: &amp;jobs</source>
        <translation>Vídeos en composición: &amp;tareas</translation>
    </message>
    <message>
        <source>&amp;Find a run or a film</source>
        <translation>&amp;Buscar una manga o un vídeo</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproducir</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>&amp;Reproducir o pausar</translation>
    </message>
    <message>
        <source>From the &amp;beginning</source>
        <translation>Desde el &amp;principio</translation>
    </message>
    <message>
        <source>One frame ba&amp;ck</source>
        <translation>Un fotograma a&amp;trás</translation>
    </message>
    <message>
        <source>One frame &amp;on</source>
        <translation>Un fotograma a&amp;delante</translation>
    </message>
    <message>
        <source>P&amp;art</source>
        <translation>&amp;Parte</translation>
    </message>
    <message>
        <source>&amp;Begin here</source>
        <translation>&amp;Empezar aquí</translation>
    </message>
    <message>
        <source>&amp;End here</source>
        <translation>&amp;Terminar aquí</translation>
    </message>
    <message>
        <source>The &amp;whole run</source>
        <translation>La &amp;manga entera</translation>
    </message>
    <message>
        <source>part that is shown</source>
        <translation>parte mostrada</translation>
    </message>
    <message>
        <source>&amp;Align the second film by two points</source>
        <translation>&amp;Alinear el segundo vídeo con dos puntos</translation>
    </message>
    <message>
        <source>&amp;Forget the points</source>
        <translation>&amp;Olvidar los puntos</translation>
    </message>
    <message>
        <source>The film could not be composed: %1</source>
        <translation>No se pudo componer el vídeo: %1</translation>
    </message>
    <message>
        <source>%1 is there. %2</source>
        <translation>%1 está listo. %2</translation>
    </message>
    <message>
        <source>Add the runs of split files</source>
        <translation>Añadir las mangas de archivos de parciales</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Archivos de parciales (*.kvx);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Add films</source>
        <translation>Añadir vídeos</translation>
    </message>
    <message>
        <source>Films (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;All files (*)</source>
        <translation>Vídeos (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Tick two to four films to compare them.</source>
        <translation>Marca de dos a cuatro vídeos para compararlos.</translation>
    </message>
    <message>
        <source>Tick one more film to compare it with.</source>
        <translation>Marca un vídeo más con el que comparar.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Four films are the most: these are the first four</source>
        <translation>Cuatro vídeos es el máximo: estos son los cuatro primeros</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>%1 of %2 s</source>
        <translation>%1 de %2 s</translation>
    </message>
    <message>
        <source>Two films are aligned: choose two.</source>
        <translation>Se alinean dos vídeos: elige dos.</translation>
    </message>
    <message>
        <source>points that were forgotten</source>
        <translation>puntos olvidados</translation>
    </message>
    <message>
        <source>alignment by two points</source>
        <translation>alineación con dos puntos</translation>
    </message>
    <message>
        <source>Compose the film</source>
        <translation>Componer el vídeo</translation>
    </message>
    <message>
        <source>Films (*.mp4)</source>
        <translation>Vídeos (*.mp4)</translation>
    </message>
    <message>
        <source>file of the film</source>
        <translation>archivo del vídeo</translation>
    </message>
    <message>
        <source>Composing: %1, %2 more</source>
        <translation>Componiendo: %1, %2 más</translation>
    </message>
    <message>
        <source>Composing: %1</source>
        <translation>Componiendo: %1</translation>
    </message>
    <message>
        <source>Film %1</source>
        <translation>Vídeo %1</translation>
    </message>
    <message>
        <source>Click the same two things in both films, such as the poles of a gate. Escape gives it up.</source>
        <translation>Haga clic en las mismas dos cosas en ambos vídeos, como los palos de una puerta. Escape lo cancela.</translation>
    </message>
    <message>
        <source>Two runs or films make a comparison: drop them here, or add them with Ctrl+Shift+O and Ctrl+I.</source>
        <translation>Para comparar hacen falta dos mangas o vídeos: suéltalos aquí o añádelos con Ctrl+Mayús+O y Ctrl+I.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ComparisonPanel</name>
    <message>
        <source>%1 of %2 (%3–%4 %)</source>
        <translation>%1 de %2 (%3–%4&#xa0;%)</translation>
    </message>
    <message>
        <source>Behind the winners in the &amp;phase</source>
        <translation>Respecto a los ganadores de la &amp;fase</translation>
    </message>
    <message>
        <source>Nobody of the team races in this category.</source>
        <translation>Nadie del equipo compite en esta categoría.</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Deportista</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Carreras</translation>
    </message>
    <message>
        <source>Behind, %</source>
        <translation>Diferencia, %</translation>
    </message>
    <message>
        <source>Median behind the winners of the phase, without missed gates</source>
        <translation>Mediana respecto a los ganadores de la fase, sin saltos</translation>
    </message>
    <message>
        <source>of runs</source>
        <translation>de mangas</translation>
    </message>
    <message>
        <source>Within, %</source>
        <translation>Variación, %</translation>
    </message>
    <message>
        <source>How much the runs vary by chance</source>
        <translation>Cuánto varían las mangas por azar</translation>
    </message>
    <message>
        <source>A year, %</source>
        <translation>Al año, %</translation>
    </message>
    <message>
        <source>Trend behind the winners, over all phases</source>
        <translation>Tendencia respecto a los ganadores, en todas las fases</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendencia</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>muy pocas</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Medallas</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finales</translation>
    </message>
    <message>
        <source>The athletes year by year: %1</source>
        <translation>Los deportistas año a año: %1</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Median behind the winner, %</source>
        <translation>Mediana respecto al ganador, %</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CostPanel</name>
    <message>
        <source>%1 A medal.</source>
        <translation>%1 Una medalla.</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Tripulación</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Race</source>
        <translation>Carrera</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Puerta</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Tramo</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>2 for a touch, 50 for a missed gate</source>
        <translation>2 por un toque, 50 por un salto</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>Como fue</translation>
    </message>
    <message>
        <source>of</source>
        <translation>de</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Puestos</translation>
    </message>
    <message>
        <source>That it cost</source>
        <translation>Que costó</translation>
    </message>
    <message>
        <source>Without it</source>
        <translation>Sin ella</translation>
    </message>
    <message>
        <source>A missed gate also saved paddling, which is not taken back here.</source>
        <translation>Un salto de puerta también ahorró paleo, que aquí no se descuenta.</translation>
    </message>
    <message>
        <source>Show &amp;all</source>
        <translation>Mostrar t&amp;odas</translation>
    </message>
    <message>
        <source>No penalty of a whole run is known by gate.</source>
        <translation>De ninguna manga entera se conocen las penalizaciones por puerta.</translation>
    </message>
    <message>
        <source>Open the run at this section</source>
        <translation>Abrir la manga en este tramo</translation>
    </message>
    <message>
        <source>In split taking, where the section of the gate begins</source>
        <translation>En la toma de parciales, donde empieza el tramo de la puerta</translation>
    </message>
    <message>
        <source>Only gate %1</source>
        <translation>Solo la puerta %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseCanvas</name>
    <message>
        <source>Drawing of the course</source>
        <translation>Dibujo del recorrido</translation>
    </message>
    <message>
        <source>Hold the button down and draw along the water.</source>
        <translation>Mantén pulsado el botón y dibuja a lo largo del agua.</translation>
    </message>
    <message>
        <source>course</source>
        <translation>recorrido</translation>
    </message>
    <message>
        <source>All %1 gates of the race are drawn. Race and course says how many there are.</source>
        <translation>Las %1 puertas de la carrera están dibujadas. «Carrera y recorrido» dice cuántas hay.</translation>
    </message>
    <message>
        <source>All %1 splits of the race are drawn. Race and course says how many there are.</source>
        <translation>Los %1 parciales de la carrera están dibujados. «Carrera y recorrido» dice cuántos hay.</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1: quitado</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseDialog</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Puertas</translation>
    </message>
    <message>
        <source>Race and course</source>
        <translation>Carrera y recorrido</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Agua</translation>
    </message>
    <message>
        <source>Technique</source>
        <translation>Técnica</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Such as 4 8 12</source>
        <translation>Por ejemplo 4 8 12</translation>
    </message>
    <message>
        <source>Share the gates &amp;evenly</source>
        <translation>Repartir las puertas por &amp;igual</translation>
    </message>
    <message>
        <source>&amp;Gates</source>
        <translation>Puer&amp;tas</translation>
    </message>
    <message>
        <source>&amp;Upstream gates</source>
        <translation>&amp;Remontes</translation>
    </message>
    <message>
        <source>&amp;Splits</source>
        <translation>&amp;Parciales</translation>
    </message>
    <message>
        <source>Section %1: </source>
        <translation>Tramo %1: </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseEditor</name>
    <message>
        <source>Photo or plan of the course</source>
        <translation>Foto o plano del recorrido</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg);;All files (*)</source>
        <translation>Imágenes (*.png *.jpg *.jpeg);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Words there</source>
        <translation>Texto ahí</translation>
    </message>
    <message>
        <source>Draw the course</source>
        <translation>Dibujar el recorrido</translation>
    </message>
    <message>
        <source>The picture of the race cannot be drawn upon: %1 It stays as long as nothing is drawn.</source>
        <translation>No se puede dibujar sobre la imagen de la carrera: %1 Se mantiene mientras no se dibuje nada.</translation>
    </message>
    <message>
        <source>Tab next part · arrows move it, Shift+arrows far · Alt+←/→ turn · PgDn its points · Delete · Insert puts one in the middle · Ctrl+Z undo, Ctrl+Shift+Z redo</source>
        <translation>Tab: parte siguiente · las flechas la mueven, Mayús+flechas lejos · Alt+←/→ gira · AvPág sus puntos · Supr · Insert pone una en el medio · Ctrl+Z deshace, Ctrl+Mayús+Z rehace</translation>
    </message>
    <message>
        <source>Wheel, + and − zoom · 0 shows all · drag with Space or the middle button moves the view</source>
        <translation>Rueda, + y − amplían o reducen · 0 lo muestra todo · arrastrar con Espacio o el botón central mueve la vista</translation>
    </message>
    <message>
        <source>&amp;Hold and move</source>
        <translation>&amp;Coger y mover</translation>
    </message>
    <message>
        <source>&amp;Gate</source>
        <translation>&amp;Puerta</translation>
    </message>
    <message>
        <source>&amp;Split line</source>
        <translation>&amp;Línea de parcial</translation>
    </message>
    <message>
        <source>&amp;Bank</source>
        <translation>&amp;Orilla</translation>
    </message>
    <message>
        <source>&amp;Line of a run</source>
        <translation>&amp;Trazada de una manga</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>Te&amp;xto</translation>
    </message>
    <message>
        <source>&amp;Photo below…</source>
        <translation>&amp;Foto debajo…</translation>
    </message>
    <message>
        <source>Only whit&amp;e below</source>
        <translation>Solo &amp;blanco debajo</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>foto</translation>
    </message>
    <message>
        <source>white</source>
        <translation>blanco</translation>
    </message>
    <message>
        <source>Leave the course as it was? What was drawn is lost.</source>
        <translation>¿Dejar el recorrido como estaba? Lo dibujado se pierde.</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>Dejarlo</translation>
    </message>
    <message>
        <source>Drag a part, or one of its points. The poles of a gate turn about each other.</source>
        <translation>Arrastra una parte o uno de sus puntos. Los palos de una puerta giran uno alrededor del otro.</translation>
    </message>
    <message>
        <source>Click where a gate hangs; hold the button and drag its right pole round.</source>
        <translation>Haz clic donde cuelga una puerta; mantén el botón y arrastra su palo derecho para girarla.</translation>
    </message>
    <message>
        <source>Drag from bank to bank where the split is taken.</source>
        <translation>Arrastra de orilla a orilla donde se toma el parcial.</translation>
    </message>
    <message>
        <source>Draw along the bank with the button held down.</source>
        <translation>Dibuja a lo largo de la orilla con el botón pulsado.</translation>
    </message>
    <message>
        <source>Draw the way of a boat with the button held down, and name it at the right.</source>
        <translation>Dibuja la trazada de un barco con el botón pulsado y ponle nombre a la derecha.</translation>
    </message>
    <message>
        <source>Click where words are to stand.</source>
        <translation>Haz clic donde deba ir el texto.</translation>
    </message>
    <message>
        <source>It has %1 MB. Up to 40 MB can be read; save it smaller first.</source>
        <translation>Tiene %1 MB. Se pueden leer hasta 40 MB; guárdala antes más pequeña.</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Todas las teclas</translation>
    </message>
    <message>
        <source>Parts of the course</source>
        <translation>Partes del recorrido</translation>
    </message>
    <message>
        <source>Next part</source>
        <translation>Parte siguiente</translation>
    </message>
    <message>
        <source>Move the part</source>
        <translation>Mover la parte</translation>
    </message>
    <message>
        <source>Move it far</source>
        <translation>Moverla lejos</translation>
    </message>
    <message>
        <source>Turn it</source>
        <translation>Girarla</translation>
    </message>
    <message>
        <source>Its next point</source>
        <translation>Su punto siguiente</translation>
    </message>
    <message>
        <source>Its previous point</source>
        <translation>Su punto anterior</translation>
    </message>
    <message>
        <source>A new part in the middle</source>
        <translation>Una parte nueva en el medio</translation>
    </message>
    <message>
        <source>Remove the part</source>
        <translation>Quitar la parte</translation>
    </message>
    <message>
        <source>Leave the part alone</source>
        <translation>Dejar la parte</translation>
    </message>
    <message>
        <source>View and steps</source>
        <translation>Vista y pasos</translation>
    </message>
    <message>
        <source>Closer</source>
        <translation>Más cerca</translation>
    </message>
    <message>
        <source>Further away</source>
        <translation>Más lejos</translation>
    </message>
    <message>
        <source>The whole course</source>
        <translation>El recorrido entero</translation>
    </message>
    <message>
        <source>Held, dragging moves the view</source>
        <translation>Pulsada, arrastrar mueve la vista</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseMap</name>
    <message>
        <source>Map of the course</source>
        <translation>Mapa del recorrido</translation>
    </message>
    <message>
        <source>Turn %1
Duration %2 s, angle %3°
Rotation: peak %4 °/s, mean %5 °/s
Push out: peak %6 m/s², mean %7 m/s²
Roll %8° (+ inside), pitch %9° (+ bow up)</source>
        <translation>Giro %1
Duración %2 s, ángulo %3°
Rotación: máxima %4 °/s, media %5 °/s
Impulso de salida: máximo %6 m/s², medio %7 m/s²
Balanceo %8° (+ hacia dentro), cabeceo %9° (+ proa arriba)</translation>
    </message>
    <message>
        <source>There are no position fixes in this session: no map.</source>
        <translation>En esta sesión no hay posiciones: no hay mapa.</translation>
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
        <translation>Velocidad (m/s)</translation>
    </message>
    <message>
        <source>Stroke rate (1/min)</source>
        <translation>Frecuencia de palada (1/min)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CoursePanel</name>
    <message>
        <source>C&amp;ourse of</source>
        <translation>Rec&amp;orrido de</translation>
    </message>
    <message>
        <source>The drawing of the course in this file cannot be shown.</source>
        <translation>El dibujo del recorrido de este archivo no se puede mostrar.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CoursePartForm</name>
    <message>
        <source>&amp;Number</source>
        <translation>&amp;Número</translation>
    </message>
    <message>
        <source>&amp;Upstream gate</source>
        <translation>&amp;Remonte</translation>
    </message>
    <message>
        <source>Na&amp;me or text</source>
        <translation>No&amp;mbre o texto</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>not measured</source>
        <translation>sin medir</translation>
    </message>
    <message>
        <source>&amp;Width of the picture</source>
        <translation>&amp;Anchura de la imagen</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Nada seleccionado</translation>
    </message>
    <message>
        <source>The race has %1 gates only. Race and course says how many there are.</source>
        <translation>La carrera solo tiene %1 puertas. «Carrera y recorrido» dice cuántas hay.</translation>
    </message>
    <message>
        <source>direction of gate %1</source>
        <translation>dirección de la puerta %1</translation>
    </message>
    <message>
        <source>number %1</source>
        <translation>número %1</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>width of the picture</source>
        <translation>anchura de la imagen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CourseStrip</name>
    <message>
        <source>Course</source>
        <translation>Recorrido</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Puertas</translation>
    </message>
    <message>
        <source>Such as 1, 2, 3, 4</source>
        <translation>Por ejemplo 1, 2, 3, 4</translation>
    </message>
    <message>
        <source>Roll after gate</source>
        <translation>Esquimotaje tras la puerta</translation>
    </message>
    <message>
        <source>Empty without a roll</source>
        <translation>Vacío si no hay esquimotaje</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Which gates does the cross course have?</source>
        <translation>¿Qué puertas tiene el recorrido de cross?</translation>
    </message>
    <message>
        <source>1 gate</source>
        <translation>1 puerta</translation>
    </message>
    <message>
        <source>roll after %1</source>
        <translation>esquimotaje tras %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no gate number.</source>
        <translation>«%1» no es un número de puerta.</translation>
    </message>
    <message>
        <source>The roll is after gate %1, which is not on the course.</source>
        <translation>El esquimotaje está tras la puerta %1, que no está en el recorrido.</translation>
    </message>
    <message>
        <source>course</source>
        <translation>recorrido</translation>
    </message>
    <message numerus="yes">
        <source>%n gates</source>
        <translation>
            <numerusform>%n puerta</numerusform>
            <numerusform>%n puertas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CrossActions</name>
    <message>
        <source>&amp;Open a split file…</source>
        <translation>&amp;Abrir un archivo de parciales…</translation>
    </message>
    <message>
        <source>&amp;Save data</source>
        <translation>&amp;Guardar los datos</translation>
    </message>
    <message>
        <source>Open a &amp;folder of films…</source>
        <translation>Abrir una &amp;carpeta de vídeos…</translation>
    </message>
    <message>
        <source>Open a folder of films</source>
        <translation>Abrir una carpeta de vídeos</translation>
    </message>
    <message>
        <source>&amp;Import films of time trials…</source>
        <translation>&amp;Importar vídeos de contrarrelojes…</translation>
    </message>
    <message>
        <source>Film of the selected trial or &amp;heat…</source>
        <translation>&amp;Vídeo de la contrarreloj o serie seleccionada…</translation>
    </message>
    <message>
        <source>&amp;Where are the films now?…</source>
        <translation>¿&amp;Dónde están ahora los vídeos?…</translation>
    </message>
    <message>
        <source>Split &amp;taking of this race</source>
        <translation>&amp;Toma de parciales de esta carrera</translation>
    </message>
    <message>
        <source>Show in the race &amp;analyzer</source>
        <translation>Mostrar en el anali&amp;zador de carreras</translation>
    </message>
    <message>
        <source>Open a split file</source>
        <translation>Abrir un archivo de parciales</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Archivos de parciales (*.kvx);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>&amp;Course of the cross race</source>
        <translation>Recorrido de la &amp;carrera de cross</translation>
    </message>
    <message>
        <source>&amp;Previous trial or heat</source>
        <translation>Contrarreloj o serie &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next trial or heat</source>
        <translation>Contrarreloj o serie &amp;siguiente</translation>
    </message>
    <message>
        <source>Copy the &amp;results</source>
        <translation>Copiar &amp;los resultados</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>&amp;Marcar</translation>
    </message>
    <message>
        <source>&amp;Mark the frame shown</source>
        <translation>&amp;Marcar el fotograma mostrado</translation>
    </message>
    <message>
        <source>To the first mark</source>
        <translation>A la primera marca</translation>
    </message>
    <message>
        <source>Next &amp;gate</source>
        <translation>&amp;Puerta siguiente</translation>
    </message>
    <message>
        <source>Previous g&amp;ate</source>
        <translation>Pu&amp;erta anterior</translation>
    </message>
    <message>
        <source>Split, gate or boat &amp;%1</source>
        <translation>Parcial, puerta o barco &amp;%1</translation>
    </message>
    <message>
        <source>&amp;Time trials</source>
        <translation>&amp;Contrarrelojes</translation>
    </message>
    <message>
        <source>&amp;Add an athlete</source>
        <translation>&amp;Añadir un deportista</translation>
    </message>
    <message>
        <source>M marks the &amp;splits</source>
        <translation>M marca los &amp;parciales</translation>
    </message>
    <message>
        <source>M marks the &amp;upstream gates</source>
        <translation>M marca los &amp;remontes</translation>
    </message>
    <message>
        <source>M marks the &amp;roll</source>
        <translation>M marca el &amp;esquimotaje</translation>
    </message>
    <message>
        <source>Re&amp;name the athlete</source>
        <translation>&amp;Cambiar el nombre del deportista</translation>
    </message>
    <message>
        <source>R&amp;emove the trial</source>
        <translation>&amp;Quitar la contrarreloj</translation>
    </message>
    <message>
        <source>Make &amp;heats from the trials</source>
        <translation>Hacer &amp;series a partir de las contrarrelojes</translation>
    </message>
    <message>
        <source>&amp;Heats</source>
        <translation>&amp;Series</translation>
    </message>
    <message>
        <source>&amp;Add a heat…</source>
        <translation>&amp;Añadir una serie…</translation>
    </message>
    <message>
        <source>A&amp;ttack, beginning here</source>
        <translation>A&amp;taque, empieza aquí</translation>
    </message>
    <message>
        <source>&amp;End of the attack</source>
        <translation>&amp;Fin del ataque</translation>
    </message>
    <message>
        <source>Compare &amp;films of the heat…</source>
        <translation>Comparar los &amp;vídeos de la serie…</translation>
    </message>
    <message>
        <source>&amp;Names of the boats…</source>
        <translation>&amp;Nombres de los barcos…</translation>
    </message>
    <message>
        <source>&amp;Remove the heat</source>
        <translation>&amp;Quitar la serie</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Results</source>
        <translation>&amp;Resultados</translation>
    </message>
    <message>
        <source>Time trial</source>
        <translation>Contrarreloj</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CrossPage</name>
    <message>
        <source>There is no film to mark on.</source>
        <translation>No hay ningún vídeo en el que marcar.</translation>
    </message>
    <message>
        <source>Nothing can be marked: %1 is not in the folder of the split file. File &gt; Where are the films now?</source>
        <translation>No se puede marcar nada: %1 no está en la carpeta del archivo de parciales. Archivo &gt; ¿Dónde están ahora los vídeos?</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>No hay ninguna marca seleccionada. Ctrl y las flechas van de marca en marca.</translation>
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
        <translation>Contrarrelojes</translation>
    </message>
    <message>
        <source>Heats</source>
        <translation>Series</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>films of the folder</source>
        <translation>vídeos de la carpeta</translation>
    </message>
    <message>
        <source>Import films with Ctrl+I, or drop them here: each becomes a time trial.</source>
        <translation>Importa vídeos con Ctrl+I o suéltalos aquí: cada uno se convierte en una contrarreloj.</translation>
    </message>
    <message>
        <source>No film yet. Ctrl+Shift+I chooses the film of what is selected; films can be dropped here too.</source>
        <translation>Aún no hay vídeo. Ctrl+Mayús+I elige el vídeo de lo seleccionado; también se pueden soltar vídeos aquí.</translation>
    </message>
    <message>
        <source>%1 is not in the folder of the split file. Ctrl+Shift+I chooses another film.</source>
        <translation>%1 no está en la carpeta del archivo de parciales. Ctrl+Mayús+I elige otro vídeo.</translation>
    </message>
    <message>
        <source>Not found: %1.</source>
        <translation>No encontrado: %1.</translation>
    </message>
    <message>
        <source>Import films of time trials</source>
        <translation>Importar vídeos de contrarrelojes</translation>
    </message>
    <message>
        <source>Choose the film of the trial or heat</source>
        <translation>Elegir el vídeo de la contrarreloj o serie</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CrossingSearch</name>
    <message>
        <source>The slit picture shows what stood on the line all the same.</source>
        <translation>La imagen de línea muestra de todos modos lo que hubo en la línea.</translation>
    </message>
    <message>
        <source>No boat was found that crosses this line in the direction of the arrow.</source>
        <translation>No se encontró ningún barco que cruce esta línea en la dirección de la flecha.</translation>
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
        <translation>%1 líneas no se pueden leer. Línea %2: %3.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>What each column holds was guessed from its title. Choose over a column what it is; a column without a choice is left out.</source>
        <translation>Lo que contiene cada columna se dedujo de su título. Elige encima de cada columna qué es; una columna sin elección se omite.</translation>
    </message>
    <message>
        <source>%1 samples, %2 per second, %3</source>
        <translation>%1 muestras, %2 por segundo, %3</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 posiciones</translation>
    </message>
    <message>
        <source>%1 heart rates</source>
        <translation>%1 frecuencias cardiacas</translation>
    </message>
    <message>
        <source>Import “%1”</source>
        <translation>Importar «%1»</translation>
    </message>
    <message>
        <source>Columns and units are read as they were for the last list with these titles. Choose over a column what it is; one without a choice is left out.</source>
        <translation>Las columnas y las unidades se leen como en la última lista con estos títulos. Elige encima de cada columna qué es; una sin elección se omite.</translation>
    </message>
    <message>
        <source>Guess from the titles</source>
        <translation>Deducir de los títulos</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>This gives no samples.</source>
        <translation>De aquí no sale ninguna muestra.</translation>
    </message>
    <message>
        <source>This gives %1.</source>
        <translation>De aquí sale: %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CsvUnitsForm</name>
    <message>
        <source>&amp;Between columns</source>
        <translation>&amp;Entre columnas</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Coma</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Punto y coma</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulador</translation>
    </message>
    <message>
        <source>&amp;Decimal comma</source>
        <translation>&amp;Coma decimal</translation>
    </message>
    <message>
        <source>&amp;Times</source>
        <translation>Tiemp&amp;os</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Fechas</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>Milisegundos</translation>
    </message>
    <message>
        <source>Microseconds</source>
        <translation>Microsegundos</translation>
    </message>
    <message>
        <source>Nanoseconds</source>
        <translation>Nanosegundos</translation>
    </message>
    <message>
        <source>&amp;Acceleration</source>
        <translation>&amp;Aceleración</translation>
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
        <translation>&amp;Rotación</translation>
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
        <translation>Án&amp;gulos</translation>
    </message>
    <message>
        <source>Radians</source>
        <translation>Radianes</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grados</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>&amp;Velocidad</translation>
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
        <translation>Tumbado sobre el dorso, &amp;z da</translation>
    </message>
    <message>
        <source>+1 g, upward</source>
        <translation>+1 g, hacia arriba</translation>
    </message>
    <message>
        <source>−1 g, downward</source>
        <translation>−1 g, hacia abajo</translation>
    </message>
    <message>
        <source>&amp;First sample at</source>
        <translation>&amp;Primera muestra a las</translation>
    </message>
    <message>
        <source>The comma stands between columns.</source>
        <translation>La coma está entre columnas.</translation>
    </message>
    <message>
        <source>The times of the list are no dates. This is when the file was written, less its length.</source>
        <translation>Los tiempos de la lista no son fechas. Esta es la hora a la que se escribió el archivo, menos su duración.</translation>
    </message>
    <message>
        <source>The times of the list are dates.</source>
        <translation>Los tiempos de la lista son fechas.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::CursorTable</name>
    <message>
        <source>left</source>
        <translation>izquierda</translation>
    </message>
    <message>
        <source>right</source>
        <translation>derecha</translation>
    </message>
    <message>
        <source>side unknown</source>
        <translation>lado desconocido</translation>
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
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Stroke, rate</source>
        <translation>Palada, frec.</translation>
    </message>
    <message>
        <source>Force (N)</source>
        <translation>Fuerza (N)</translation>
    </message>
    <message>
        <source>Power (W)</source>
        <translation>Potencia (W)</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Values at the cursor</source>
        <translation>Valores en el cursor</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayDesk</name>
    <message>
        <source>The race day could not be kept: %1</source>
        <translation>El día de carrera no se pudo conservar: %1</translation>
    </message>
    <message>
        <source> · U: %1</source>
        <translation> · R: %1</translation>
    </message>
    <message>
        <source>start list</source>
        <translation>lista de salida</translation>
    </message>
    <message>
        <source>folder of the films</source>
        <translation>carpeta de los vídeos</translation>
    </message>
    <message>
        <source>start removed</source>
        <translation>salida quitada</translation>
    </message>
    <message>
        <source>There is no start list yet: Day &gt; Start list.</source>
        <translation>Aún no hay lista de salida: Día &gt; Lista de salida.</translation>
    </message>
    <message>
        <source>No film waits to be timed.</source>
        <translation>Ningún vídeo espera a ser cronometrado.</translation>
    </message>
    <message>
        <source>There is no film of %1 yet.</source>
        <translation>Aún no hay vídeo de %1.</translation>
    </message>
    <message>
        <source>The film of %1 is still being copied.</source>
        <translation>El vídeo de %1 aún se está copiando.</translation>
    </message>
    <message>
        <source>Is this %1?</source>
        <translation>¿Es este %1?</translation>
    </message>
    <message>
        <source>film of %1</source>
        <translation>vídeo de %1</translation>
    </message>
    <message>
        <source>There is no film that is surely matched and not agreed to yet.</source>
        <translation>No hay ningún vídeo asignado con seguridad que esté sin confirmar.</translation>
    </message>
    <message>
        <source>film agreed to</source>
        <translation>vídeo confirmado</translation>
    </message>
    <message>
        <source>films agreed to</source>
        <translation>vídeos confirmados</translation>
    </message>
    <message>
        <source>Not named, as it is not in the folder of the race or cannot be named there: %1</source>
        <translation>Sin nombre, porque no está en la carpeta de la carrera o no se le puede dar nombre ahí: %1</translation>
    </message>
    <message>
        <source>Agreed</source>
        <translation>Confirmado</translation>
    </message>
    <message>
        <source>films one start later</source>
        <translation>vídeos una salida después</translation>
    </message>
    <message>
        <source>films one start earlier</source>
        <translation>vídeos una salida antes</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: no film</source>
        <translation>%1: ningún vídeo</translation>
    </message>
    <message>
        <source>film of another boat</source>
        <translation>vídeo de otro barco</translation>
    </message>
    <message>
        <source>film given to a boat</source>
        <translation>vídeo dado a un barco</translation>
    </message>
    <message>
        <source>There is no film %1</source>
        <translation>No hay ningún vídeo %1</translation>
    </message>
    <message>
        <source>%1 is timed: remove the last mark first.</source>
        <translation>%1 está cronometrado: quita antes la última marca.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 counts again</source>
        <translation>%1 cuenta de nuevo</translation>
    </message>
    <message>
        <source>The clocks of camera and start list go together.</source>
        <translation>Los relojes de la cámara y de la lista de salida concuerdan.</translation>
    </message>
    <message>
        <source>clock of the camera</source>
        <translation>reloj de la cámara</translation>
    </message>
    <message numerus="yes">
        <source>%n films agreed to</source>
        <translation>
            <numerusform>%n vídeo confirmado</numerusform>
            <numerusform>%n vídeos confirmados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayFilms</name>
    <message>
        <source>%1 could not be called %2 again: is that name taken?</source>
        <translation>A %1 no se le pudo volver a llamar %2: ¿está ocupado ese nombre?</translation>
    </message>
    <message>
        <source>%1 could not be copied from the card. Is the card out, or the disk full?</source>
        <translation>%1 no se pudo copiar de la tarjeta. ¿Se ha sacado la tarjeta o está lleno el disco?</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayKeeping</name>
    <message>
        <source>The race day %1 cannot be read: %2. It stays as it is; a new one takes its name only after it was put aside.</source>
        <translation>El día de carrera %1 no se puede leer: %2. Se queda como está; uno nuevo toma su nombre solo después de apartarlo.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DayPanel</name>
    <message>
        <source>agreed</source>
        <translation>confirmado</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>conservado</translation>
    </message>
    <message>
        <source>sure</source>
        <translation>seguro</translation>
    </message>
    <message>
        <source>likely</source>
        <translation>probable</translation>
    </message>
    <message>
        <source>unsure</source>
        <translation>inseguro</translation>
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
        <translation>por delante de</translation>
    </message>
    <message>
        <source>behind</source>
        <translation>por detrás de</translation>
    </message>
    <message>
        <source>Reckon with that</source>
        <translation>Contar con eso</translation>
    </message>
    <message>
        <source>No start list yet. Paste one, or take it from a file.</source>
        <translation>Aún no hay lista de salida. Pega una o tómala de un archivo.</translation>
    </message>
    <message>
        <source>Start list…</source>
        <translation>Lista de salida…</translation>
    </message>
    <message>
        <source>Films from…</source>
        <translation>Vídeos de…</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Bib</source>
        <translation>Dorsal</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>A boat on the list has a name.</source>
        <translation>Un barco de la lista tiene un nombre.</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Cat</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Type the name of another film to correct a single one</source>
        <translation>Escribe el nombre de otro vídeo para corregir uno solo</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Asignación</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Grabado</translation>
    </message>
    <message>
        <source>When the recording began, and whether the camera or the file says so</source>
        <translation>Cuándo empezó la grabación, y si lo dice la cámara o el archivo</translation>
    </message>
    <message>
        <source>camera</source>
        <translation>cámara</translation>
    </message>
    <message>
        <source>file</source>
        <translation>archivo</translation>
    </message>
    <message>
        <source>The camera&apos;s clock seems to be %1 the start list.</source>
        <translation>El reloj de la cámara parece ir %1 la lista de salida.</translation>
    </message>
    <message>
        <source>%1 is not there.</source>
        <translation>%1 no está ahí.</translation>
    </message>
    <message>
        <source>Copying %1.</source>
        <translation>Copiando %1.</translation>
    </message>
    <message>
        <source>%1 still growing.</source>
        <translation>%1 aún crece.</translation>
    </message>
    <message>
        <source>Of no boat: %1.</source>
        <translation>De ningún barco: %1.</translation>
    </message>
    <message>
        <source>Of no boat: %1 films, the first is %2.</source>
        <translation>De ningún barco: %1 vídeos, el primero es %2.</translation>
    </message>
    <message>
        <source>Of other days: %1.</source>
        <translation>De otros días: %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DerivedDialog</name>
    <message>
        <source>The &amp;highest number is the best</source>
        <translation>El número más &amp;alto es el mejor</translation>
    </message>
    <message>
        <source>Another column</source>
        <translation>Otra columna</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>Gap to the best</source>
        <translation>Diferencia con el mejor</translation>
    </message>
    <message>
        <source>Percent behind the best</source>
        <translation>Porcentaje respecto al mejor</translation>
    </message>
    <message>
        <source>Percentile</source>
        <translation>Percentil</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>&amp;What</source>
        <translation>&amp;Qué</translation>
    </message>
    <message>
        <source>Sum &amp;of (none: times and penalties)</source>
        <translation>Suma &amp;de (ninguna: tiempos y penalizaciones)</translation>
    </message>
    <message>
        <source>O&amp;f</source>
        <translation>D&amp;e</translation>
    </message>
    <message>
        <source>&amp;Less</source>
        <translation>&amp;Menos</translation>
    </message>
    <message>
        <source>Each &amp;compared within</source>
        <translation>Cada uno &amp;comparado dentro de</translation>
    </message>
    <message>
        <source>the total, else the times</source>
        <translation>el total; si no, los tiempos</translation>
    </message>
    <message>
        <source>all rows</source>
        <translation>todas las filas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Desktop</name>
    <message>
        <source>The folder with the races of %1</source>
        <translation>La carpeta con las carreras de %1</translation>
    </message>
    <message>
        <source>As it is in split taking now. The file does not hold all of it yet.</source>
        <translation>Tal como está ahora en la toma de parciales. El archivo aún no lo contiene todo.</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Nothing to open in “%1”</source>
        <translation>No hay nada que abrir en «%1»</translation>
    </message>
    <message>
        <source>There is no split file (.kvx) and no film in this folder.</source>
        <translation>En esta carpeta no hay ningún archivo de parciales (.kvx) ni ningún vídeo.</translation>
    </message>
    <message>
        <source>“%1” is not where it was</source>
        <translation>«%1» no está donde estaba</translation>
    </message>
    <message>
        <source>It was in %1. Open it from where it is now, then ask again.</source>
        <translation>Estaba en %1. Ábrelo desde donde está ahora y vuelve a preguntar.</translation>
    </message>
    <message>
        <source>%1 (on the server)</source>
        <translation>%1 (en el servidor)</translation>
    </message>
    <message>
        <source>What the server has is no planning.</source>
        <translation>Lo que tiene el servidor no es una planificación.</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>Manga %1</translation>
    </message>
    <message>
        <source>The run of %1</source>
        <translation>La manga de %1</translation>
    </message>
    <message>
        <source>%1 is not in split taking any more: it was removed there, or has another crew and film.</source>
        <translation>%1 ya no está en la toma de parciales: se quitó allí, o tiene otra tripulación y otro vídeo.</translation>
    </message>
    <message>
        <source>Of single split files, or of all in a folder and below it?</source>
        <translation>¿De archivos de parciales sueltos, o de todos los de una carpeta y sus subcarpetas?</translation>
    </message>
    <message>
        <source>Split files…</source>
        <translation>Archivos de parciales…</translation>
    </message>
    <message>
        <source>A folder…</source>
        <translation>Una carpeta…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DetailsPanel</name>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Noted as</source>
        <translation>Anotado como</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Penalizaciones</translation>
    </message>
    <message>
        <source>of</source>
        <translation>de</translation>
    </message>
    <message>
        <source>Those of which this was noted; for those of which it was not noted, all penalties</source>
        <translation>Aquellas de las que se anotó; para las que no se anotó, todas las penalizaciones</translation>
    </message>
    <message>
        <source>Share %</source>
        <translation>Parte %</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#xa0;%</translation>
    </message>
    <message>
        <source>Where the share lies with 90 %</source>
        <translation>Dónde está la parte con un 90&#xa0;%</translation>
    </message>
    <message>
        <source>No penalty was noted in detail. Split taking notes them.</source>
        <translation>No se anotó ninguna penalización con detalle. Se anotan en la toma de parciales.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DocumentChoiceDialog</name>
    <message>
        <source>%1   in %2</source>
        <translation>%1   en %2</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Nuevo…</translation>
    </message>
    <message>
        <source>Open an&amp;other…</source>
        <translation>Abrir &amp;otro…</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>None was opened yet.</source>
        <translation>Aún no se ha abierto ninguno.</translation>
    </message>
    <message>
        <source>Opened before:</source>
        <translation>Abiertos antes:</translation>
    </message>
    <message>
        <source>Name the new file</source>
        <translation>Nombre del archivo nuevo</translation>
    </message>
    <message>
        <source>%1 (*.%2)</source>
        <translation>%1 (*.%2)</translation>
    </message>
    <message>
        <source>%1 (*.%2);;All files (*)</source>
        <translation>%1 (*.%2);;Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::DrawnRates</name>
    <message>
        <source>Touches on the course</source>
        <translation>Toques en el recorrido</translation>
    </message>
    <message>
        <source>Gate %1: %2 %</source>
        <translation>Puerta %1: %2&#xa0;%</translation>
    </message>
    <message>
        <source>, %1 of %2 touched</source>
        <translation>, %1 de %2 con toque</translation>
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
        <translation>Importar archivo .kvb</translation>
    </message>
    <message>
        <source>Import .sbm file</source>
        <translation>Importar archivo .sbm</translation>
    </message>
    <message>
        <source>Drag .kvb file to top left of the window</source>
        <translation>Arrastra un archivo .kvb a la parte superior izquierda de la ventana</translation>
    </message>
    <message>
        <source>A raw recording of the boat: strokes and turns are found in it.</source>
        <translation>Una grabación en bruto del barco: en ella se buscan paladas y giros.</translation>
    </message>
    <message>
        <source>Drag .sbm file to top right of the window</source>
        <translation>Arrastra un archivo .sbm a la parte superior derecha de la ventana</translation>
    </message>
    <message>
        <source>A processed session, .sbm or .bms: strokes and turns are in it already.</source>
        <translation>Una sesión procesada, .sbm o .bms: ya contiene paladas y giros.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::EarlierWorkDialog</name>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Conservado</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>given up</source>
        <translation>descartado</translation>
    </message>
    <message>
        <source>put off</source>
        <translation>aplazado</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Bring back earlier work</source>
        <translation>Recuperar trabajo anterior</translation>
    </message>
    <message>
        <source>Nothing was kept that is not in a document again.</source>
        <translation>No se conservó nada que no esté ya en un documento.</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Recuperar</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::EditedFile</name>
    <message>
        <source>today %1</source>
        <translation>hoy %1</translation>
    </message>
    <message>
        <source>yesterday %1</source>
        <translation>ayer %1</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Cargar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>1 change</source>
        <translation>1 cambio</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>«%1» no se puede abrir</translation>
    </message>
    <message>
        <source>The file was changed by another program since it was opened. Saving replaces what that program wrote.</source>
        <translation>Otro programa ha cambiado el archivo desde que se abrió. Al guardar se sustituye lo que escribió ese programa.</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Sustituirlo</translation>
    </message>
    <message>
        <source>Look at the other</source>
        <translation>Mirar el otro</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>“%1” is open in another window. Close it there first, or take another name.</source>
        <translation>«%1» está abierto en otra ventana. Ciérralo antes allí o usa otro nombre.</translation>
    </message>
    <message>
        <source>%1 (the other).%2</source>
        <translation>%1 (el otro).%2</translation>
    </message>
    <message>
        <source>Your work is kept apart, and offered when the file is opened again.</source>
        <translation>Tu trabajo se conserva aparte y se ofrece cuando el archivo se vuelve a abrir.</translation>
    </message>
    <message>
        <source>Your work is in this window alone: it could not be kept apart either.</source>
        <translation>Tu trabajo solo está en esta ventana: tampoco se pudo conservar aparte.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>The file of the older version could not be kept beside the new one, so that nothing was written.</source>
        <translation>El archivo de la versión anterior no se pudo conservar junto al nuevo, así que no se ha escrito nada.</translation>
    </message>
    <message numerus="yes">
        <source>%n changes</source>
        <translation>
            <numerusform>%n cambio</numerusform>
            <numerusform>%n cambios</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::EightForm</name>
    <message>
        <source>Split %1</source>
        <translation>Parcial %1</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Categoría</translation>
    </message>
    <message>
        <source>Pha&amp;se</source>
        <translation>&amp;Fase</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Parciales</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Puntuación</translation>
    </message>
    <message>
        <source>Taken from</source>
        <translation>Tomado de</translation>
    </message>
    <message>
        <source>Time
(s)</source>
        <translation>Tiempo
(s)</translation>
    </message>
    <message>
        <source>Time of one eight</source>
        <translation>Tiempo de un ocho</translation>
    </message>
    <message>
        <source>In the video
(s)</source>
        <translation>En el vídeo
(s)</translation>
    </message>
    <message>
        <source>Where in the video the split was taken</source>
        <translation>En qué punto del vídeo se tomó el parcial</translation>
    </message>
    <message>
        <source>split %1</source>
        <translation>parcial %1</translation>
    </message>
    <message>
        <source>no video</source>
        <translation>sin vídeo</translation>
    </message>
    <message>
        <source>%1, no motion samples</source>
        <translation>%1, sin muestras de movimiento</translation>
    </message>
    <message>
        <source>%1, %2 motion samples</source>
        <translation>%1, %2 muestras de movimiento</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::EntryTable</name>
    <message>
        <source>“%1” is a number from 0 to %2</source>
        <translation>«%1» es un número de 0 a %2</translation>
    </message>
    <message>
        <source>“%1” is more than 0. An emptied cell stands for none.</source>
        <translation>«%1» es mayor que 0. Una celda vacía significa ninguno.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ExerciseTable</name>
    <message>
        <source>The file has no entry here. Typing makes one.</source>
        <translation>El archivo no tiene aquí ninguna entrada. Al escribir se crea una.</translation>
    </message>
    <message>
        <source>The estimate from repetitions and weight. A click or Ctrl+Enter takes it as the maximum.</source>
        <translation>La estimación a partir de las repeticiones y el peso. Un clic o Ctrl+Intro la toma como máximo.</translation>
    </message>
    <message>
        <source>Exercise</source>
        <translation>Ejercicio</translation>
    </message>
    <message>
        <source>exercise</source>
        <translation>ejercicio</translation>
    </message>
    <message>
        <source>Sets</source>
        <translation>Series</translation>
    </message>
    <message>
        <source>sets</source>
        <translation>series</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>Repeticiones</translation>
    </message>
    <message>
        <source>repetitions</source>
        <translation>repeticiones</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>weight</source>
        <translation>peso</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>máximo</translation>
    </message>
    <message>
        <source>Estimate</source>
        <translation>Estimación</translation>
    </message>
    <message>
        <source>Add exercise</source>
        <translation>Añadir ejercicio</translation>
    </message>
    <message>
        <source>Remove exercise</source>
        <translation>Quitar ejercicio</translation>
    </message>
    <message>
        <source>Take estimate</source>
        <translation>Tomar la estimación</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>1 exercise</source>
        <translation>1 ejercicio</translation>
    </message>
    <message>
        <source>%1 · %2 sets · tonnage %3 kg</source>
        <translation>%1 · %2 series · tonelaje %3 kg</translation>
    </message>
    <message>
        <source>Estimated maximum: table %1 · Epley %2 · Brzycki %3 · McGlothin %4 · Lombardi %5 · result &lt;b&gt;%6&lt;/b&gt;</source>
        <translation>Máximo estimado: tabla %1 · Epley %2 · Brzycki %3 · McGlothin %4 · Lombardi %5 · resultado &lt;b&gt;%6&lt;/b&gt;</translation>
    </message>
    <message>
        <source>new exercise</source>
        <translation>ejercicio nuevo</translation>
    </message>
    <message>
        <source>removal of an exercise</source>
        <translation>eliminación de un ejercicio</translation>
    </message>
    <message>
        <source>estimated maximum</source>
        <translation>máximo estimado</translation>
    </message>
    <message numerus="yes">
        <source>%n exercises</source>
        <translation>
            <numerusform>%n ejercicio</numerusform>
            <numerusform>%n ejercicios</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ExportDialog</name>
    <message>
        <source>Export data</source>
        <translation>Exportar datos</translation>
    </message>
    <message>
        <source>Split files (*.kvx)</source>
        <translation>Archivos de parciales (*.kvx)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FactsForm</name>
    <message>
        <source>&amp;Athlete</source>
        <translation>&amp;Deportista</translation>
    </message>
    <message>
        <source>Name of the athlete</source>
        <translation>Nombre del deportista</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Fecha</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>Lu&amp;gar</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FactsStatus</name>
    <message>
        <source>Which ones?</source>
        <translation>¿Cuáles?</translation>
    </message>
    <message>
        <source>reading was cancelled: not all files are here</source>
        <translation>se canceló la lectura: no están todos los archivos</translation>
    </message>
    <message>
        <source>1 file could not be read</source>
        <translation>1 archivo no se pudo leer</translation>
    </message>
    <message numerus="yes">
        <source>%n files could not be read</source>
        <translation>
            <numerusform>%n archivo no se pudo leer</numerusform>
            <numerusform>%n archivos no se pudieron leer</numerusform>
        </translation>
    </message>
    <message>
        <source>1 copy of a file does not count</source>
        <translation>1 copia de un archivo no cuenta</translation>
    </message>
    <message numerus="yes">
        <source>%n copies of files do not count</source>
        <translation>
            <numerusform>%n copia de archivos no cuenta</numerusform>
            <numerusform>%n copias de archivos no cuentan</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FailedFiles</name>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Qué está mal</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Files that could not be read</source>
        <translation>Archivos que no se pudieron leer</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FetchActions</name>
    <message>
        <source>&amp;Open a source…</source>
        <translation>&amp;Abrir una fuente…</translation>
    </message>
    <message>
        <source>&amp;Save the source…</source>
        <translation>&amp;Guardar la fuente…</translation>
    </message>
    <message>
        <source>Choose the &amp;list of bibs…</source>
        <translation>Elegir la &amp;lista de dorsales…</translation>
    </message>
    <message>
        <source>Choose the &amp;folder for the films…</source>
        <translation>Elegir la &amp;carpeta para los vídeos…</translation>
    </message>
    <message>
        <source>&amp;Time the films of the folder</source>
        <translation>Cr&amp;onometrar los vídeos de la carpeta</translation>
    </message>
    <message>
        <source>Fet&amp;ch</source>
        <translation>&amp;Descargar</translation>
    </message>
    <message>
        <source>&amp;Show what would be fetched</source>
        <translation>Mostrar lo que &amp;se descargaría</translation>
    </message>
    <message>
        <source>&amp;Fetch the ticked films</source>
        <translation>&amp;Descargar los vídeos marcados</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Ca&amp;ncelar</translation>
    </message>
    <message>
        <source>Tick &amp;all</source>
        <translation>&amp;Marcar todos</translation>
    </message>
    <message>
        <source>Tick &amp;none</source>
        <translation>Desmarcar t&amp;odos</translation>
    </message>
    <message>
        <source>Ser&amp;ver</source>
        <translation>Ser&amp;vidor</translation>
    </message>
    <message>
        <source>&amp;Sign in…</source>
        <translation>&amp;Iniciar sesión…</translation>
    </message>
    <message>
        <source>&amp;Forget the password</source>
        <translation>&amp;Olvidar la contraseña</translation>
    </message>
    <message>
        <source>&amp;Other servers</source>
        <translation>Otros &amp;servidores</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FetchWindow</name>
    <message>
        <source>Fetch films</source>
        <translation>Descargar vídeos</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>Di&amp;rección</translation>
    </message>
    <message>
        <source>Of one film, with {bib}, {category}, {phase} or {run} where they stand ({bib:3} is 014); or of a list: a page, JSON, M3U8 or WebDAV folder</source>
        <translation>De un vídeo, con {bib}, {category}, {phase} o {run} en su lugar ({bib:3} es 014); o de una lista: una página, JSON, M3U8 o carpeta WebDAV</translation>
    </message>
    <message>
        <source>&amp;Bibs from</source>
        <translation>&amp;Dorsales de</translation>
    </message>
    <message>
        <source>Start list or results (a column is called bib), or a split file</source>
        <translation>Lista de salida o resultados (una columna se llama bib), o un archivo de parciales</translation>
    </message>
    <message>
        <source>start list, results or split file</source>
        <translation>lista de salida, resultados o archivo de parciales</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Carpeta</translation>
    </message>
    <message>
        <source>Where the films are put; no file there is ever overwritten</source>
        <translation>Dónde se ponen los vídeos; nunca se sobrescribe ahí ningún archivo</translation>
    </message>
    <message>
        <source>for the films</source>
        <translation>para los vídeos</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>&amp;Nombres</translation>
    </message>
    <message>
        <source>Of the files: {name}, {category}, {phase}, {bib} and {number}</source>
        <translation>De los archivos: {name}, {category}, {phase}, {bib} y {number}</translation>
    </message>
    <message>
        <source>Choose a list…</source>
        <translation>Elegir una lista…</translation>
    </message>
    <message>
        <source>Start list, results, split file</source>
        <translation>Lista de salida, resultados, archivo de parciales</translation>
    </message>
    <message>
        <source>Choose a folder…</source>
        <translation>Elegir una carpeta…</translation>
    </message>
    <message>
        <source>For the films</source>
        <translation>Para los vídeos</translation>
    </message>
    <message>
        <source>Other se&amp;rvers that films may come from</source>
        <translation>&amp;Otros servidores de los que pueden venir vídeos</translation>
    </message>
    <message>
        <source>Show what would be fetched</source>
        <translation>Mostrar lo que se descargaría</translation>
    </message>
    <message>
        <source>Fetch the ticked films</source>
        <translation>Descargar los vídeos marcados</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Nothing is fetched before it is shown here</source>
        <translation>No se descarga nada antes de mostrarse aquí</translation>
    </message>
    <message>
        <source>Films are being fetched. Another source or list is opened after that.</source>
        <translation>Se están descargando vídeos. Después se abre otra fuente o lista.</translation>
    </message>
    <message>
        <source>“%1” is no source of films</source>
        <translation>«%1» no es una fuente de vídeos</translation>
    </message>
    <message>
        <source>Start list, results or split file</source>
        <translation>Lista de salida, resultados o archivo de parciales</translation>
    </message>
    <message>
        <source>Lists and split files (*.csv *.txt *.tsv *.kvx);;All files (*)</source>
        <translation>Listas y archivos de parciales (*.csv *.txt *.tsv *.kvx);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Folder for the films</source>
        <translation>Carpeta para los vídeos</translation>
    </message>
    <message>
        <source>Open a source of films</source>
        <translation>Abrir una fuente de vídeos</translation>
    </message>
    <message>
        <source>Sources of films (*.json)</source>
        <translation>Fuentes de vídeos (*.json)</translation>
    </message>
    <message>
        <source>Save the source of films</source>
        <translation>Guardar la fuente de vídeos</translation>
    </message>
    <message>
        <source>The source was saved. “kavela fetch” takes the file, too.</source>
        <translation>La fuente se ha guardado. «kavela fetch» también acepta el archivo.</translation>
    </message>
    <message>
        <source>The source could not be saved</source>
        <translation>No se pudo guardar la fuente</translation>
    </message>
    <message>
        <source>What there is to fetch is being found out…</source>
        <translation>Averiguando qué hay que descargar…</translation>
    </message>
    <message>
        <source>The folder “%1” cannot be made.</source>
        <translation>No se puede crear la carpeta «%1».</translation>
    </message>
    <message>
        <source>Films are being fetched…</source>
        <translation>Descargando vídeos…</translation>
    </message>
    <message>
        <source>There is no address to sign in to yet.</source>
        <translation>Aún no hay ninguna dirección en la que iniciar sesión.</translation>
    </message>
    <message>
        <source>This computer has no password store that is open. The password holds until this window is closed.</source>
        <translation>Este ordenador no tiene ningún almacén de contraseñas abierto. La contraseña vale hasta que se cierre esta ventana.</translation>
    </message>
    <message>
        <source>The password of %1 was forgotten.</source>
        <translation>Se olvidó la contraseña de %1.</translation>
    </message>
    <message>
        <source>%v of %m films</source>
        <translation>%v de %m vídeos</translation>
    </message>
    <message>
        <source>Films are being fetched</source>
        <translation>Se están descargando vídeos</translation>
    </message>
    <message>
        <source>What is there of them stays; fetching them again goes on with it.</source>
        <translation>Lo que hay de ellos se queda; al descargarlos de nuevo se continúa desde ahí.</translation>
    </message>
    <message>
        <source>Stop and close</source>
        <translation>Detener y cerrar</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmBrowser</name>
    <message>
        <source>Filter: k1w 12 semi</source>
        <translation>Filtro: k1w 12 semi</translation>
    </message>
    <message>
        <source>No film here. Open a folder of films with Ctrl+O, or drop one.</source>
        <translation>Aquí no hay ningún vídeo. Abre una carpeta de vídeos con Ctrl+O o suelta una aquí.</translation>
    </message>
    <message>
        <source>No tag yet: M sets one where a film stands.</source>
        <translation>Aún no hay etiquetas: M pone una donde está el vídeo.</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Mosaico</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>%1 films</source>
        <translation>%1 vídeos</translation>
    </message>
    <message>
        <source>%1 of %2 films</source>
        <translation>%1 de %2 vídeos</translation>
    </message>
    <message>
        <source>No film fits the filter. Empty it to see all again.</source>
        <translation>Ningún vídeo cumple el filtro. Vacíelo para volver a verlos todos.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmCutting</name>
    <message>
        <source>%1 cut</source>
        <translation>%1 cortado</translation>
    </message>
    <message>
        <source>Cut into a new film</source>
        <translation>Cortar a un vídeo nuevo</translation>
    </message>
    <message>
        <source>Films (*.mp4 *.mov *.m4v)</source>
        <translation>Vídeos (*.mp4 *.mov *.m4v)</translation>
    </message>
    <message>
        <source>Cutting %1…</source>
        <translation>Cortando %1…</translation>
    </message>
    <message>
        <source>The film could not be cut</source>
        <translation>No se pudo cortar el vídeo</translation>
    </message>
    <message>
        <source>The cut has no end yet: O sets it at this frame.</source>
        <translation>El corte aún no tiene final: O lo pone en este fotograma.</translation>
    </message>
    <message>
        <source>The cut has no beginning yet: I sets it at this frame.</source>
        <translation>El corte aún no tiene principio: I lo pone en este fotograma.</translation>
    </message>
    <message>
        <source>Set the ends of the cut first: I where it begins, O where it ends.</source>
        <translation>Marca primero los extremos del corte: I donde empieza, O donde termina.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmDeck</name>
    <message>
        <source>The film was closed before it had been read so far.</source>
        <translation>El vídeo se cerró antes de haberse leído hasta ahí.</translation>
    </message>
    <message>
        <source>The film has not been read so far yet: nothing was marked.</source>
        <translation>El vídeo aún no se ha leído hasta ahí: no se ha marcado nada.</translation>
    </message>
    <message>
        <source>The film has not been read so far yet: no frame to step from.</source>
        <translation>El vídeo aún no se ha leído hasta ahí: no hay fotograma desde el que avanzar.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmPlaying</name>
    <message>
        <source>Choose a film on the left.</source>
        <translation>Elige un vídeo a la izquierda.</translation>
    </message>
    <message>
        <source>The film is no longer there:
%1</source>
        <translation>El vídeo ya no está ahí:
%1</translation>
    </message>
    <message>
        <source>That was the last one</source>
        <translation>Era el último</translation>
    </message>
    <message>
        <source>This is the first one</source>
        <translation>Este es el primero</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmShelf</name>
    <message>
        <source>Renaming films…</source>
        <translation>Cambiando nombres de vídeos…</translation>
    </message>
    <message>
        <source>“%1” has films that are to be renamed, and is open in another window. Close it there first.</source>
        <translation>«%1» tiene vídeos cuyo nombre se va a cambiar y está abierto en otra ventana. Ciérralo antes allí.</translation>
    </message>
    <message>
        <source>A renaming was cut off here, and its note cannot be read: %1</source>
        <translation>Aquí se interrumpió un cambio de nombres y su nota no se puede leer: %1</translation>
    </message>
    <message>
        <source>Renaming was cut off</source>
        <translation>El cambio de nombres se interrumpió</translation>
    </message>
    <message numerus="yes">
        <source>%n film(s) of this folder were being renamed when the program ended. No film is lost: the renaming can be completed, or undone.</source>
        <translation>
            <numerusform>Se estaba cambiando el nombre de %n vídeo de esta carpeta cuando el programa terminó. No se ha perdido ningún vídeo: el cambio se puede completar o deshacer.</numerusform>
            <numerusform>Se estaba cambiando el nombre de %n vídeos de esta carpeta cuando el programa terminó. No se ha perdido ningún vídeo: el cambio se puede completar o deshacer.</numerusform>
        </translation>
    </message>
    <message>
        <source>Complete it</source>
        <translation>Completarlo</translation>
    </message>
    <message>
        <source>Undo it</source>
        <translation>Deshacerlo</translation>
    </message>
    <message>
        <source>This tag is of the split file: split taking edits it.</source>
        <translation>Esta etiqueta es del archivo de parciales: se edita en la toma de parciales.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmStage</name>
    <message>
        <source>Typing: Esc gives the keys back to the film</source>
        <translation>Escribiendo: Esc devuelve las teclas al vídeo</translation>
    </message>
    <message>
        <source>Fixed: %1</source>
        <translation>Fijo: %1</translation>
    </message>
    <message>
        <source>Where are the films now?…</source>
        <translation>¿Dónde están ahora los vídeos?…</translation>
    </message>
    <message>
        <source>Playing %1</source>
        <translation>Reproduciendo %1</translation>
    </message>
    <message>
        <source>Paused, %1</source>
        <translation>En pausa, %1</translation>
    </message>
    <message>
        <source>Camera %1: </source>
        <translation>Cámara %1: </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmTiles</name>
    <message>
        <source>No picture</source>
        <translation>Sin imagen</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmView</name>
    <message>
        <source>frame %1   %2 s</source>
        <translation>fotograma %1   %2 s</translation>
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
        <translation>&amp;Abrir una carpeta…</translation>
    </message>
    <message>
        <source>Folders opened &amp;before</source>
        <translation>Carpetas a&amp;biertas antes</translation>
    </message>
    <message>
        <source>&amp;Read again</source>
        <translation>&amp;Volver a leer</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Filter the films</source>
        <translation>&amp;Filtrar los vídeos</translation>
    </message>
    <message>
        <source>Re&amp;name films…</source>
        <translation>Cambiar &amp;nombres de vídeos…</translation>
    </message>
    <message>
        <source>F&amp;ilms</source>
        <translation>Ví&amp;deos</translation>
    </message>
    <message>
        <source>&amp;Play from the beginning</source>
        <translation>Reproducir desde el &amp;principio</translation>
    </message>
    <message>
        <source>&amp;Next film</source>
        <translation>Vídeo &amp;siguiente</translation>
    </message>
    <message>
        <source>Pre&amp;vious film</source>
        <translation>Vídeo &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Lista</translation>
    </message>
    <message>
        <source>&amp;Tiles</source>
        <translation>&amp;Mosaico</translation>
    </message>
    <message>
        <source>T&amp;ags</source>
        <translation>E&amp;tiquetas</translation>
    </message>
    <message>
        <source>Mark as &amp;watched</source>
        <translation>Marcar como &amp;visto</translation>
    </message>
    <message>
        <source>Mark as n&amp;ot watched</source>
        <translation>Marcar como n&amp;o visto</translation>
    </message>
    <message>
        <source>A &amp;click plays</source>
        <translation>Un &amp;clic reproduce</translation>
    </message>
    <message>
        <source>The next one &amp;follows</source>
        <translation>&amp;Enlazar con el siguiente</translation>
    </message>
    <message>
        <source>Begin at the first &amp;mark</source>
        <translation>Empezar en la primera ma&amp;rca</translation>
    </message>
    <message>
        <source>&amp;Tags</source>
        <translation>Eti&amp;quetas</translation>
    </message>
    <message>
        <source>&amp;Tag this frame</source>
        <translation>&amp;Etiquetar este fotograma</translation>
    </message>
    <message>
        <source>Tag with a &amp;saved name</source>
        <translation>Etiquetar con un nombre &amp;guardado</translation>
    </message>
    <message>
        <source>Saved tag %1</source>
        <translation>Etiqueta guardada %1</translation>
    </message>
    <message>
        <source>Move the selected tag &amp;here</source>
        <translation>&amp;Mover aquí la etiqueta seleccionada</translation>
    </message>
    <message>
        <source>Tag one frame &amp;earlier</source>
        <translation>Etiqueta un fotograma a&amp;ntes</translation>
    </message>
    <message>
        <source>Tag one frame &amp;later</source>
        <translation>Etiqueta un fotograma &amp;después</translation>
    </message>
    <message>
        <source>&amp;Remove the selected tag</source>
        <translation>&amp;Quitar la etiqueta seleccionada</translation>
    </message>
    <message>
        <source>&amp;Previous tag</source>
        <translation>Etiqueta &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next tag</source>
        <translation>Etiqueta &amp;siguiente</translation>
    </message>
    <message>
        <source>Play &amp;just the part around a tag</source>
        <translation>Reproducir solo la &amp;parte en torno a una etiqueta</translation>
    </message>
    <message>
        <source>&amp;Cut</source>
        <translation>&amp;Cortar</translation>
    </message>
    <message>
        <source>The cut &amp;begins here</source>
        <translation>El corte &amp;empieza aquí</translation>
    </message>
    <message>
        <source>The cut &amp;ends here</source>
        <translation>El corte &amp;termina aquí</translation>
    </message>
    <message>
        <source>&amp;Give the ends up</source>
        <translation>&amp;Descartar los extremos</translation>
    </message>
    <message>
        <source>Cut by &amp;copying…</source>
        <translation>Cortar &amp;copiando…</translation>
    </message>
    <message>
        <source>Cut e&amp;xactly…</source>
        <translation>Cortar e&amp;xactamente…</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Vídeos</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FilmsWindow</name>
    <message>
        <source>Films</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>&amp;Tag that M sets:</source>
        <translation>E&amp;tiqueta que pone M:</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Cut into %1</source>
        <translation>Cortado en %1</translation>
    </message>
    <message>
        <source>“%1” is not there.</source>
        <translation>«%1» no está ahí.</translation>
    </message>
    <message>
        <source>Open a folder of films</source>
        <translation>Abrir una carpeta de vídeos</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>⚠ Not read: %1</source>
        <translation>⚠ No leídos: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FindActions</name>
    <message>
        <source>Queries</source>
        <translation>Consultas</translation>
    </message>
    <message>
        <source>Search a &amp;folder…</source>
        <translation>Buscar en una &amp;carpeta…</translation>
    </message>
    <message>
        <source>Search f&amp;iles…</source>
        <translation>&amp;Buscar en archivos…</translation>
    </message>
    <message>
        <source>&amp;Read again</source>
        <translation>&amp;Volver a leer</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>&amp;Dejar de leer</translation>
    </message>
    <message>
        <source>Files that could not be rea&amp;d…</source>
        <translation>Archivos &amp;que no se pudieron leer…</translation>
    </message>
    <message>
        <source>Save the result as &amp;CSV…</source>
        <translation>&amp;Guardar el resultado como CSV…</translation>
    </message>
    <message>
        <source>&amp;Query</source>
        <translation>&amp;Consulta</translation>
    </message>
    <message>
        <source>&amp;Type a query</source>
        <translation>&amp;Escribir una consulta</translation>
    </message>
    <message>
        <source>&amp;Fields</source>
        <translation>Ca&amp;mpos</translation>
    </message>
    <message>
        <source>&amp;Queries</source>
        <translation>&amp;Consultas</translation>
    </message>
    <message>
        <source>&amp;Keep this query</source>
        <translation>C&amp;onservar esta consulta</translation>
    </message>
    <message>
        <source>&amp;Give up the kept query</source>
        <translation>&amp;Descartar la consulta conservada</translation>
    </message>
    <message>
        <source>Resul&amp;t</source>
        <translation>Resul&amp;tado</translation>
    </message>
    <message>
        <source>&amp;Show the run at its frame</source>
        <translation>&amp;Mostrar la manga en su fotograma</translation>
    </message>
    <message>
        <source>Open its &amp;race</source>
        <translation>Abrir su ca&amp;rrera</translation>
    </message>
    <message>
        <source>Its &amp;time losses</source>
        <translation>Sus &amp;pérdidas de tiempo</translation>
    </message>
    <message>
        <source>The rows of the &amp;group</source>
        <translation>Las &amp;filas del grupo</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FindWindow</name>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Campos</translation>
    </message>
    <message>
        <source>Queries</source>
        <translation>Consultas</translation>
    </message>
    <message>
        <source>gates up left cat K1W time&lt;4 – what, then what is asked of it</source>
        <translation>gates up left cat K1W time&lt;4 – qué, y después qué se le pide</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>Keeps this query among those at hand</source>
        <translation>Conserva esta consulta entre las que están a mano</translation>
    </message>
    <message>
        <source>The files are being read…</source>
        <translation>Leyendo los archivos…</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 archivo</translation>
    </message>
    <message>
        <source>1 run</source>
        <translation>1 manga</translation>
    </message>
    <message>
        <source>. Reading was stopped: the others are not searched.</source>
        <translation>. Se detuvo la lectura: en los demás no se busca.</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>No se ha encontrado nada.</translation>
    </message>
    <message>
        <source>In the group: %1</source>
        <translation>En el grupo: %1</translation>
    </message>
    <message>
        <source> · run %1</source>
        <translation> · manga %1</translation>
    </message>
    <message>
        <source> · split %1</source>
        <translation> · parcial %1</translation>
    </message>
    <message>
        <source> · %1 s</source>
        <translation> · %1 s</translation>
    </message>
    <message>
        <source>Save the result</source>
        <translation>Guardar el resultado</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Texto separado por punto y coma (*.csv)</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n archivo</numerusform>
            <numerusform>%n archivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n manga</numerusform>
            <numerusform>%n mangas</numerusform>
        </translation>
    </message>
    <message>
        <source>Drop a folder of split files (.kvx) here</source>
        <translation>Suelta aquí una carpeta de archivos de parciales (.kvx)</translation>
    </message>
    <message>
        <source>All races below it are searched. They are only read.</source>
        <translation>Se busca en todas las carreras que contiene. Solo se leen.</translation>
    </message>
    <message>
        <source>Search a folder…</source>
        <translation>Buscar en una carpeta…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FoundLines</name>
    <message>
        <source>In the file</source>
        <translation>En el archivo</translation>
    </message>
    <message>
        <source>Was</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Will be</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>new: %1</source>
        <translation>nuevo: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::FoundTable</name>
    <message>
        <source>rows of the group</source>
        <translation>filas del grupo</translation>
    </message>
    <message>
        <source>run</source>
        <translation>manga</translation>
    </message>
    <message>
        <source>runs</source>
        <translation>mangas</translation>
    </message>
    <message>
        <source>section</source>
        <translation>tramo</translation>
    </message>
    <message>
        <source>sections</source>
        <translation>tramos</translation>
    </message>
    <message>
        <source>gate</source>
        <translation>puerta</translation>
    </message>
    <message>
        <source>gates</source>
        <translation>puertas</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>penalización</translation>
    </message>
    <message>
        <source>penalties</source>
        <translation>penalizaciones</translation>
    </message>
    <message>
        <source>loss</source>
        <translation>pérdida</translation>
    </message>
    <message>
        <source>losses</source>
        <translation>pérdidas</translation>
    </message>
    <message>
        <source>section with strokes</source>
        <translation>tramo con paladas</translation>
    </message>
    <message>
        <source>sections with strokes</source>
        <translation>tramos con paladas</translation>
    </message>
    <message>
        <source>tag</source>
        <translation>etiqueta</translation>
    </message>
    <message>
        <source>tags</source>
        <translation>etiquetas</translation>
    </message>
    <message>
        <source>group</source>
        <translation>grupo</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>grupos</translation>
    </message>
    <message>
        <source>less than 1 ms</source>
        <translation>menos de 1 ms</translation>
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
        <translation>, se muestran los %1 primeros</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GapChart</name>
    <message>
        <source>Select runs in the table to see where time is won and lost.</source>
        <translation>Selecciona mangas en la tabla para ver dónde se gana y se pierde tiempo.</translation>
    </message>
    <message>
        <source>No run covers the whole course. Choose the median or a run as the reference.</source>
        <translation>Ninguna manga cubre el recorrido entero. Elige como referencia la mediana o una manga.</translation>
    </message>
    <message>
        <source>The reference has no time in the first section. Choose another one.</source>
        <translation>La referencia no tiene tiempo en el primer tramo. Elige otra.</translation>
    </message>
    <message>
        <source>Gap to the best run: %1</source>
        <translation>Diferencia con la mejor manga: %1</translation>
    </message>
    <message>
        <source>Gap to the median of each section</source>
        <translation>Diferencia con la mediana de cada tramo</translation>
    </message>
    <message>
        <source>Gap to the ideal run: the best of each section</source>
        <translation>Diferencia con la manga ideal: lo mejor de cada tramo</translation>
    </message>
    <message>
        <source>Gap to %1</source>
        <translation>Diferencia con %1</translation>
    </message>
    <message>
        <source>Accumulated seconds, penalties included</source>
        <translation>Segundos acumulados, con penalizaciones</translation>
    </message>
    <message>
        <source>Accumulated seconds, without penalties</source>
        <translation>Segundos acumulados, sin penalizaciones</translation>
    </message>
    <message>
        <source>← slower      faster →</source>
        <translation>← más lento      más rápido →</translation>
    </message>
    <message>
        <source>not timed</source>
        <translation>sin cronometrar</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Dif.</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>en %1</translation>
    </message>
    <message>
        <source>After %1</source>
        <translation>Después de %1</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Tramo</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>%1: gap</source>
        <translation>%1: diferencia</translation>
    </message>
    <message>
        <source>%1: in the section</source>
        <translation>%1: en el tramo</translation>
    </message>
    <message>
        <source>Gap along the course for the selected runs</source>
        <translation>Diferencia a lo largo del recorrido para las mangas seleccionadas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GateChart</name>
    <message>
        <source>No run has its penalties by gate. Enter them for each gate to see where they happen.</source>
        <translation>Ninguna manga tiene sus penalizaciones por puerta. Introdúcelas para cada puerta para ver dónde ocurren.</translation>
    </message>
    <message>
        <source>Penalties by gate</source>
        <translation>Penalizaciones por puerta</translation>
    </message>
    <message>
        <source>Runs with a penalty at the gate, of %1</source>
        <translation>Mangas con penalización en la puerta, de %1</translation>
    </message>
    <message>
        <source> · ↑ upstream gate</source>
        <translation> · ↑ remonte</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Puerta</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Mangas</translation>
    </message>
    <message>
        <source>Missed gate, 50 s</source>
        <translation>Salto, 50 s</translation>
    </message>
    <message>
        <source>Touch, 2 s</source>
        <translation>Toque, 2 s</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Gate %1, upstream</source>
        <translation>Puerta %1, remonte</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Puerta %1</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Toques</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Saltos</translation>
    </message>
    <message>
        <source>missed</source>
        <translation>salto</translation>
    </message>
    <message>
        <source>touch</source>
        <translation>toque</translation>
    </message>
    <message>
        <source>Upstream</source>
        <translation>Remonte</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Puertas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GateForm</name>
    <message>
        <source>Gate</source>
        <translation>Puerta</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Mark the pole line too</source>
        <translation>Marcar también la línea de la puerta</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>A click brings a gate in front</source>
        <translation>Un clic trae una puerta al frente</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GateStrip</name>
    <message>
        <source>Penalties at the gates</source>
        <translation>Penalizaciones en las puertas</translation>
    </message>
    <message>
        <source>No gates yet: set up the course with Ctrl+G to note penalties.</source>
        <translation>Aún no hay puertas: configura el recorrido con Ctrl+G para anotar penalizaciones.</translation>
    </message>
    <message>
        <source>Gate %1, upstream</source>
        <translation>Puerta %1, remonte</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Puerta %1</translation>
    </message>
    <message>
        <source>
T touch, F missed, 0 clean; N and P next and previous gate</source>
        <translation>
T toque, F salto, 0 limpia; N y P puerta siguiente y anterior</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Gauge</name>
    <message>
        <source>not known</source>
        <translation>desconocido</translation>
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
        <translation>Grupo nuevo</translation>
    </message>
    <message>
        <source>New goal</source>
        <translation>Objetivo nuevo</translation>
    </message>
    <message>
        <source>New sub-goal</source>
        <translation>Subobjetivo nuevo</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Add group</source>
        <translation>Añadir grupo</translation>
    </message>
    <message>
        <source>A group of goals, such as “Technique”</source>
        <translation>Un grupo de objetivos, como «Técnica»</translation>
    </message>
    <message>
        <source>Add goal</source>
        <translation>Añadir objetivo</translation>
    </message>
    <message>
        <source>To the group that is chosen</source>
        <translation>Al grupo elegido</translation>
    </message>
    <message>
        <source>Add sub-goal</source>
        <translation>Añadir subobjetivo</translation>
    </message>
    <message>
        <source>To the group that is chosen, with a status (Insert)</source>
        <translation>Al grupo elegido, con un estado (Insert)</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Arriba</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+Abajo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>No goals are set for this season yet.
“Add group” begins.</source>
        <translation>Aún no hay objetivos para esta temporada.
Se empieza con «Añadir grupo».</translation>
    </message>
    <message>
        <source>Choose a season to see its goals.</source>
        <translation>Elige una temporada para ver sus objetivos.</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Grupo %1</translation>
    </message>
    <message>
        <source>%1 of %2 reached</source>
        <translation>%1 de %2 logrados</translation>
    </message>
    <message>
        <source>, %1 given up</source>
        <translation>, %1 abandonados</translation>
    </message>
    <message>
        <source>text of a goal</source>
        <translation>texto de un objetivo</translation>
    </message>
    <message>
        <source>status of a goal</source>
        <translation>estado de un objetivo</translation>
    </message>
    <message>
        <source>new goal</source>
        <translation>objetivo nuevo</translation>
    </message>
    <message>
        <source>order of the goals</source>
        <translation>orden de los objetivos</translation>
    </message>
    <message>
        <source>removal of a goal</source>
        <translation>eliminación de un objetivo</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GuideWindow</name>
    <message>
        <source>User guide – Kavela</source>
        <translation>Guía del usuario – Kavela</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Guía del usuario</translation>
    </message>
    <message>
        <source>Ways through the guide</source>
        <translation>Caminos por la guía</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Next place</source>
        <translation>Siguiente lugar</translation>
    </message>
    <message>
        <source>Search the guide</source>
        <translation>Buscar en la guía</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>“%1” does not come with the program.</source>
        <translation>«%1» no viene con el programa.</translation>
    </message>
    <message>
        <source>No chapter has these words.</source>
        <translation>Ningún capítulo tiene estas palabras.</translation>
    </message>
    <message numerus="yes">
        <source>In %n chapters. Enter goes to the next place.</source>
        <translation>
            <numerusform>En %n capítulo. Intro va al siguiente lugar.</numerusform>
            <numerusform>En %n capítulos. Intro va al siguiente lugar.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::GymPanel</name>
    <message>
        <source>All seasons, in kilograms</source>
        <translation>Todas las temporadas, en kilogramos</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>Exercises</source>
        <translation>Ejercicios</translation>
    </message>
    <message>
        <source>Tonnage</source>
        <translation>Tonelaje</translation>
    </message>
    <message>
        <source>Exercise of the chart</source>
        <translation>Ejercicio del gráfico</translation>
    </message>
    <message>
        <source>&amp;History of</source>
        <translation>&amp;Historial de</translation>
    </message>
    <message>
        <source>Add session</source>
        <translation>Añadir sesión</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>removal of gym sessions</source>
        <translation>eliminación de sesiones de gimnasio</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>The same exercises once more, today</source>
        <translation>Los mismos ejercicios otra vez, hoy</translation>
    </message>
    <message>
        <source>date</source>
        <translation>fecha</translation>
    </message>
    <message>
        <source>new gym session</source>
        <translation>sesión de gimnasio nueva</translation>
    </message>
    <message>
        <source>copy of a gym session</source>
        <translation>copia de una sesión de gimnasio</translation>
    </message>
    <message>
        <source>Choose an athlete.</source>
        <translation>Elige un deportista.</translation>
    </message>
    <message>
        <source>Add a season for this athlete first.</source>
        <translation>Añade antes una temporada para este deportista.</translation>
    </message>
    <message>
        <source>No gym session of this season yet.
Press Insert to add today&apos;s.</source>
        <translation>Aún no hay sesiones de gimnasio de esta temporada.
Pulsa Insert para añadir la de hoy.</translation>
    </message>
    <message>
        <source>No exercise yet.
Press Insert to add one.</source>
        <translation>Aún no hay ejercicios.
Pulsa Insert para añadir uno.</translation>
    </message>
    <message>
        <source>Choose or add a session to see its exercises.</source>
        <translation>Elige o añade una sesión para ver sus ejercicios.</translation>
    </message>
    <message>
        <source>Add an exercise with its weight to see how it develops.</source>
        <translation>Añade un ejercicio con su peso para ver cómo evoluciona.</translation>
    </message>
    <message>
        <source>No weight of %1 yet.</source>
        <translation>Aún no hay ningún peso de %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatAttacks</name>
    <message>
        <source>✓ passed</source>
        <translation>✓ adelantó</translation>
    </message>
    <message>
        <source>✗ held</source>
        <translation>✗ aguantó</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Attacker</source>
        <translation>Atacante</translation>
    </message>
    <message>
        <source>On</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Desenlace</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Lado</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Attacks</source>
        <translation>Ataques</translation>
    </message>
    <message>
        <source>Attack at this frame</source>
        <translation>Ataque en este fotograma</translation>
    </message>
    <message>
        <source>An attack starts here: then press the number of the attacker and those of the defenders</source>
        <translation>Aquí empieza un ataque: pulsa después el número del atacante y los de los defensores</translation>
    </message>
    <message>
        <source>A click shows the frame of an attack</source>
        <translation>Un clic muestra el fotograma de un ataque</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Puerta %1</translation>
    </message>
    <message>
        <source>attack</source>
        <translation>ataque</translation>
    </message>
    <message>
        <source>Attack: number of the attacker, then of the defenders</source>
        <translation>Ataque: número del atacante y después de los defensores</translation>
    </message>
    <message>
        <source>An attack without a moment, since there is no film: press the number of the attacker, then those of the defenders.</source>
        <translation>Un ataque sin momento, porque no hay vídeo: pulsa el número del atacante y después los de los defensores.</translation>
    </message>
    <message>
        <source>attacker</source>
        <translation>atacante</translation>
    </message>
    <message>
        <source>defenders</source>
        <translation>defensores</translation>
    </message>
    <message>
        <source>moment of an attack</source>
        <translation>momento de un ataque</translation>
    </message>
    <message>
        <source>end of an attack removed</source>
        <translation>fin de un ataque quitado</translation>
    </message>
    <message>
        <source>attack removed</source>
        <translation>ataque quitado</translation>
    </message>
    <message>
        <source>Start ramp</source>
        <translation>Rampa de salida</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Esquimotaje</translation>
    </message>
    <message>
        <source>Eddy</source>
        <translation>Contra</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Caída</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Ola</translation>
    </message>
    <message>
        <source>Flat water</source>
        <translation>Agua llana</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Por dentro</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Por fuera</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatDialog</name>
    <message>
        <source>Add a heat</source>
        <translation>Añadir una serie</translation>
    </message>
    <message>
        <source>Names of the boats</source>
        <translation>Nombres de los barcos</translation>
    </message>
    <message>
        <source>Boat %1</source>
        <translation>Barco %1</translation>
    </message>
    <message>
        <source>Each boat needs a name.</source>
        <translation>Cada barco necesita un nombre.</translation>
    </message>
    <message>
        <source>%1 stands twice in the heat.</source>
        <translation>%1 está dos veces en la serie.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatList</name>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>⚠ missing: %1</source>
        <translation>⚠ falta: %1</translation>
    </message>
    <message>
        <source>%1 of %2 gates</source>
        <translation>%1 de %2 puertas</translation>
    </message>
    <message>
        <source>Heat</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>Boats</source>
        <translation>Barcos</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Tomado</translation>
    </message>
    <message>
        <source>Add a heat…</source>
        <translation>Añadir una serie…</translation>
    </message>
    <message>
        <source>Adds a heat of up to four boats</source>
        <translation>Añade una serie de hasta cuatro barcos</translation>
    </message>
    <message>
        <source>Names…</source>
        <translation>Nombres…</translation>
    </message>
    <message>
        <source>Other names for the boats of the heat</source>
        <translation>Otros nombres para los barcos de la serie</translation>
    </message>
    <message>
        <source>Film…</source>
        <translation>Vídeo…</translation>
    </message>
    <message>
        <source>Chooses the film of the heat</source>
        <translation>Elige el vídeo de la serie</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Removes the heat with all its marks</source>
        <translation>Quita la serie con todas sus marcas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatMapChart</name>
    <message>
        <source>Percent lost on %1, by section</source>
        <translation>Porcentaje perdido frente a %1, por tramo</translation>
    </message>
    <message>
        <source>Percent lost by run and section</source>
        <translation>Porcentaje perdido por manga y tramo</translation>
    </message>
    <message>
        <source>S%1</source>
        <translation>S%1</translation>
    </message>
    <message>
        <source>is the reference</source>
        <translation>es la referencia</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manga</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatOrders</name>
    <message>
        <source>Take at this frame</source>
        <translation>Tomar en este fotograma</translation>
    </message>
    <message>
        <source>Takes the order shown at the frame shown</source>
        <translation>Toma el orden mostrado en el fotograma mostrado</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Empezar de nuevo</translation>
    </message>
    <message>
        <source>Back to the order as it was</source>
        <translation>Vuelve al orden tal como estaba</translation>
    </message>
    <message>
        <source>Comment on this order</source>
        <translation>Comentario a este orden</translation>
    </message>
    <message>
        <source>Add a heat first.</source>
        <translation>Añade antes una serie.</translation>
    </message>
    <message>
        <source>The cross course has no gates yet.</source>
        <translation>El recorrido de cross aún no tiene puertas.</translation>
    </message>
    <message>
        <source>This order does not count for the course. Choose a gate of the course first.</source>
        <translation>Este orden no cuenta para el recorrido. Elige antes una puerta del recorrido.</translation>
    </message>
    <message>
        <source>No boat is named yet.</source>
        <translation>Aún no hay ningún barco con nombre.</translation>
    </message>
    <message>
        <source>order at gate %1</source>
        <translation>orden en la puerta %1</translation>
    </message>
    <message>
        <source>Gate %1:  %2</source>
        <translation>Puerta %1:  %2</translation>
    </message>
    <message>
        <source>comment on an order</source>
        <translation>comentario a un orden</translation>
    </message>
    <message>
        <source>not taken yet</source>
        <translation>aún sin tomar</translation>
    </message>
    <message>
        <source>taken at %1</source>
        <translation>tomado en %1</translation>
    </message>
    <message>
        <source>offered</source>
        <translation>propuesto</translation>
    </message>
    <message>
        <source>Gate %1 · %2</source>
        <translation>Puerta %1 · %2</translation>
    </message>
    <message>
        <source>The cross course has no gates yet</source>
        <translation>El recorrido de cross aún no tiene puertas</translation>
    </message>
    <message>
        <source>Keep its moment</source>
        <translation>Conservar su momento</translation>
    </message>
    <message>
        <source>Take without a moment</source>
        <translation>Tomar sin momento</translation>
    </message>
    <message>
        <source>Corrects the order and leaves its moment as it is</source>
        <translation>Corrige el orden y deja su momento como está</translation>
    </message>
    <message>
        <source>Takes the order shown where there is no film</source>
        <translation>Toma el orden mostrado cuando no hay vídeo</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HeatPage</name>
    <message>
        <source>No heats yet. Add a heat with its boats and choose its film; then go to each gate and press the numbers of the boats as they pass.</source>
        <translation>Aún no hay series. Añade una serie con sus barcos y elige su vídeo; después ve a cada puerta y pulsa los números de los barcos a medida que pasan.</translation>
    </message>
    <message>
        <source>A%1</source>
        <translation>A%1</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>No hay ninguna marca seleccionada. Ctrl y las flechas van de marca en marca.</translation>
    </message>
    <message>
        <source>order moved</source>
        <translation>orden movido</translation>
    </message>
    <message>
        <source>order removed</source>
        <translation>orden quitado</translation>
    </message>
    <message>
        <source>This heat has %1 boats.</source>
        <translation>Esta serie tiene %1 barcos.</translation>
    </message>
    <message>
        <source>heat</source>
        <translation>serie</translation>
    </message>
    <message>
        <source>heat removed</source>
        <translation>serie quitada</translation>
    </message>
    <message>
        <source>names of boats</source>
        <translation>nombres de barcos</translation>
    </message>
    <message>
        <source>film of a heat</source>
        <translation>vídeo de una serie</translation>
    </message>
    <message>
        <source>Add a heat first.</source>
        <translation>Añade antes una serie.</translation>
    </message>
    <message>
        <source>This heat has no boats yet.</source>
        <translation>Esta serie aún no tiene barcos.</translation>
    </message>
    <message>
        <source>Select the attack that ends here.</source>
        <translation>Selecciona el ataque que termina aquí.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::HomeWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>Try the &amp;sample season</source>
        <translation>Probar la &amp;temporada de ejemplo</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>A&amp;justes…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Where was the time won and lost, and why?</source>
        <translation>¿Dónde se ganó y se perdió el tiempo, y por qué?</translation>
    </message>
    <message>
        <source>Try the sample season</source>
        <translation>Probar la temporada de ejemplo</translation>
    </message>
    <message>
        <source>Open a file…</source>
        <translation>Abrir un archivo…</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Archivos recientes</translation>
    </message>
    <message>
        <source>Nothing opened yet. Drop a split file (.kvx) or a folder here, open one with Ctrl+O, or try the sample season.</source>
        <translation>Aún no se ha abierto nada. Suelta aquí un archivo de parciales (.kvx) o una carpeta, abre uno con Ctrl+O o prueba la temporada de ejemplo.</translation>
    </message>
    <message>
        <source>Work kept</source>
        <translation>Trabajo conservado</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>en %1</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Archivos de parciales (*.kvx);;Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IdealPanel</name>
    <message>
        <source>Section</source>
        <translation>Tramo</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Mejor</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Por</translation>
    </message>
    <message>
        <source>Ideal run %1 s</source>
        <translation>Manga ideal %1 s</translation>
    </message>
    <message>
        <source>No ideal run: a section has no time.</source>
        <translation>No hay manga ideal: un tramo no tiene tiempo.</translation>
    </message>
    <message>
        <source>
Fastest run %1 s, %2
%3 s behind the ideal run</source>
        <translation>
Manga más rápida %1 s, %2
%3 s más que la manga ideal</translation>
    </message>
    <message>
        <source>
Penalties are left out.</source>
        <translation>
Las penalizaciones no se cuentan.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::InformationDialog</name>
    <message>
        <source>Session information</source>
        <translation>Información de la sesión</translation>
    </message>
    <message>
        <source>The weight tells force and power when a recording is converted: analyse it again after changing it.</source>
        <translation>De los pesos salen la fuerza y la potencia al convertir una grabación: analízala de nuevo después de cambiarlos.</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>&amp;Deportista</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>Lu&amp;gar</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Tipo</translation>
    </message>
    <message>
        <source>&amp;Weight</source>
        <translation>&amp;Peso</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>&amp;Paddle length</source>
        <translation>&amp;Longitud de la pala</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>&amp;Blade area</source>
        <translation>&amp;Superficie de la hoja</translation>
    </message>
    <message>
        <source>cm²</source>
        <translation>cm²</translation>
    </message>
    <message>
        <source>Blade &amp;height</source>
        <translation>Altura de la &amp;hoja</translation>
    </message>
    <message>
        <source>Hand po&amp;sition</source>
        <translation>Posición de las &amp;manos</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalChart</name>
    <message>
        <source>too few</source>
        <translation>muy pocas</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalForm</name>
    <message>
        <source>Minutes and seconds such as 1:30, or seconds</source>
        <translation>Minutos y segundos como 1:30, o segundos</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>Tí&amp;tulo</translation>
    </message>
    <message>
        <source>T&amp;arget</source>
        <translation>&amp;Objetivo</translation>
    </message>
    <message>
        <source>Rh&amp;ythm</source>
        <translation>R&amp;itmo</translation>
    </message>
    <message>
        <source>S&amp;ets</source>
        <translation>&amp;Series</translation>
    </message>
    <message>
        <source>Re&amp;petitions</source>
        <translation>Re&amp;peticiones</translation>
    </message>
    <message>
        <source>&amp;Work</source>
        <translation>Tra&amp;bajo</translation>
    </message>
    <message>
        <source>&amp;Rest between repetitions</source>
        <translation>&amp;Descanso entre repeticiones</translation>
    </message>
    <message>
        <source>Rest &amp;between sets</source>
        <translation>Descanso &amp;entre series</translation>
    </message>
    <message>
        <source>&amp;Kind of rest</source>
        <translation>Tipo de des&amp;canso</translation>
    </message>
    <message>
        <source>&amp;Volume</source>
        <translation>&amp;Volumen</translation>
    </message>
    <message>
        <source>&amp;Intensity</source>
        <translation>Inte&amp;nsidad</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>Desc&amp;ripción</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalTimerDialog</name>
    <message>
        <source>%1 – timer</source>
        <translation>%1 – temporizador</translation>
    </message>
    <message>
        <source>◀ Back</source>
        <translation>◀ Atrás</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Skip ▶</source>
        <translation>Saltar ▶</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>F11</source>
        <translation>F11</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>Empezar de nuevo</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::IntervalsPanel</name>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Make-up</source>
        <translation>Estructura</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>New session</source>
        <translation>Sesión nueva</translation>
    </message>
    <message>
        <source>interval session</source>
        <translation>sesión de intervalos</translation>
    </message>
    <message>
        <source>No favourite sessions yet. “Add” begins the first.</source>
        <translation>Aún no hay sesiones favoritas. Se empieza con «Añadir».</translation>
    </message>
    <message>
        <source>Add a session</source>
        <translation>Añadir una sesión</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Another one like it</source>
        <translation>Otra igual</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Remove the session</source>
        <translation>Quitar la sesión</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Start the timer…</source>
        <translation>Iniciar el temporizador…</translation>
    </message>
    <message>
        <source>A clock for the bank, readable from afar. Double click on a session opens it too.</source>
        <translation>Un reloj para la orilla, legible desde lejos. También lo abre un doble clic en una sesión.</translation>
    </message>
    <message>
        <source>new interval session</source>
        <translation>sesión de intervalos nueva</translation>
    </message>
    <message>
        <source>%1, copy</source>
        <translation>%1, copia</translation>
    </message>
    <message>
        <source>copy of an interval session</source>
        <translation>copia de una sesión de intervalos</translation>
    </message>
    <message>
        <source>order of the interval sessions</source>
        <translation>orden de las sesiones de intervalos</translation>
    </message>
    <message>
        <source>removal of an interval session</source>
        <translation>eliminación de una sesión de intervalos</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::JobsWindow</name>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>Show the &amp;folder</source>
        <translation>Mostrar la &amp;carpeta</translation>
    </message>
    <message>
        <source>&amp;Clear what is over</source>
        <translation>&amp;Quitar lo terminado</translation>
    </message>
    <message>
        <source>Films being composed</source>
        <translation>Vídeos en composición</translation>
    </message>
    <message>
        <source>No film is being composed.</source>
        <translation>No se está componiendo ningún vídeo.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeptColumns</name>
    <message>
        <source>&amp;All columns in their order</source>
        <translation>&amp;Todas las columnas en su orden</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeptQueries</name>
    <message>
        <source>Queries</source>
        <translation>Consultas</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Conservadas</translation>
    </message>
    <message>
        <source>Asked last</source>
        <translation>Últimas consultas</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Ejemplos</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeyEditor</name>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Find an action</source>
        <translation>Buscar una acción</translation>
    </message>
    <message>
        <source>Standard keys</source>
        <translation>Teclas estándar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>%1 is the key of “%2” already. “%3” can take it over; “%2” has it no longer then.</source>
        <translation>%1 ya es la tecla de «%2». «%3» puede quedársela; entonces «%2» deja de tenerla.</translation>
    </message>
    <message>
        <source>Take it over</source>
        <translation>Quedársela</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KeyOverlay</name>
    <message>
        <source>All keys</source>
        <translation>Todas las teclas</translation>
    </message>
    <message>
        <source>Up, Down, Page up and Page down show the rest; any other key closes.</source>
        <translation>Arriba, Abajo, RePág y AvPág muestran el resto; cualquier otra tecla cierra.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::KnownPointsPage</name>
    <message>
        <source>No known point yet. Tick Path &gt; Click known points, then click the foot of a gate&apos;s poles in the picture.</source>
        <translation>Aún no hay ningún punto conocido. Activa Trayectoria &gt; Marcar puntos conocidos y haz clic en la imagen al pie de los palos de una puerta.</translation>
    </message>
    <message>
        <source>&amp;Take it away</source>
        <translation>&amp;Quitarlo</translation>
    </message>
    <message>
        <source>removal of a known point</source>
        <translation>eliminación de un punto conocido</translation>
    </message>
    <message>
        <source>A place on the water is a number of metres, -10000 to 10000</source>
        <translation>Un lugar en el agua es un número de metros, de -10000 a 10000</translation>
    </message>
    <message>
        <source>metres of a known point</source>
        <translation>metros de un punto conocido</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Across</source>
        <translation>A lo ancho</translation>
    </message>
    <message>
        <source>Along</source>
        <translation>A lo largo</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LaneStrip</name>
    <message>
        <source>Notes of the run</source>
        <translation>Notas de la manga</translation>
    </message>
    <message>
        <source>A click shows the frame of a mark, dragging moves the mark</source>
        <translation>Un clic muestra el fotograma de una marca; arrastrar mueve la marca</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Otros</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LineOverlay</name>
    <message>
        <source>Lines over the film</source>
        <translation>Líneas sobre el vídeo</translation>
    </message>
    <message>
        <source>Drag an end of a line, or the line. With the focus here the arrows move it, with Shift by ten pixels; Tab goes from end to end, Esc leaves.</source>
        <translation>Arrastra un extremo de una línea, o la línea. Con el foco aquí la mueven las flechas, con Mayús diez píxeles; Tab va de extremo a extremo, Esc sale.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Salida</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::List</name>
    <message>
        <source>date</source>
        <translation>fecha</translation>
    </message>
    <message>
        <source>new %1</source>
        <translation>%1: nuevo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>removal of %1</source>
        <translation>%1: eliminación</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ListPanel</name>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>No row is left. Ctrl+Z takes the last step back.</source>
        <translation>No queda ninguna fila. Ctrl+Z deshace el último paso.</translation>
    </message>
    <message>
        <source>Every cell was taken.</source>
        <translation>Se tomaron todas las celdas.</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Gráfico</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Rechazado</translation>
    </message>
    <message>
        <source>Refused (%1)</source>
        <translation>Rechazado (%1)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LoginDialog</name>
    <message>
        <source>&amp;Keep it in the password store of this computer</source>
        <translation>&amp;Conservarla en el almacén de contraseñas de este ordenador</translation>
    </message>
    <message>
        <source>Sign in to %1</source>
        <translation>Iniciar sesión en %1</translation>
    </message>
    <message>
        <source>Only this server is shown the password. It is never written into a file.</source>
        <translation>La contraseña solo se muestra a este servidor. Nunca se escribe en un archivo.</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>Nombre de &amp;usuario</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>C&amp;ontraseña</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossChartsPanel</name>
    <message>
        <source>Charts</source>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Suma</translation>
    </message>
    <message>
        <source>From the reference&apos;s total to the run&apos;s own</source>
        <translation>Del total de la referencia al de la manga</translation>
    </message>
    <message>
        <source>Heat map</source>
        <translation>Mapa de calor</translation>
    </message>
    <message>
        <source>Percent lost by run and section</source>
        <translation>Porcentaje perdido por manga y tramo</translation>
    </message>
    <message>
        <source>Most lost</source>
        <translation>Lo más perdido</translation>
    </message>
    <message>
        <source>The sections that lost most, in their order</source>
        <translation>Los tramos que más perdieron, en su orden</translation>
    </message>
    <message>
        <source>Along the course</source>
        <translation>En el recorrido</translation>
    </message>
    <message>
        <source>The gap after each section</source>
        <translation>La diferencia después de cada tramo</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Save chart…</source>
        <translation>Guardar gráfico…</translation>
    </message>
    <message>
        <source>Show everything again (or double click)</source>
        <translation>Volver a mostrarlo todo (o doble clic)</translation>
    </message>
    <message>
        <source>Save as PNG, SVG or CSV</source>
        <translation>Guardar como PNG, SVG o CSV</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossHeader</name>
    <message>
        <source>Reference</source>
        <translation>Referencia</translation>
    </message>
    <message>
        <source>What the run is held against</source>
        <translation>Con qué se compara la manga</translation>
    </message>
    <message>
        <source>Alt+click or Shift+F1: why</source>
        <translation>Alt+clic o Mayús+F1: por qué</translation>
    </message>
    <message>
        <source>Ru&amp;n</source>
        <translation>Ma&amp;nga</translation>
    </message>
    <message>
        <source>hel&amp;d against</source>
        <translation>compa&amp;rada con</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossPage</name>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Against</source>
        <translation>Frente a</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Porcentaje</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <source>The next M begins another time loss</source>
        <translation>La próxima M empieza otra pérdida de tiempo</translation>
    </message>
    <message>
        <source>Add over the section</source>
        <translation>Añadir del tramo</translation>
    </message>
    <message>
        <source>Another reason</source>
        <translation>Otro motivo</translation>
    </message>
    <message>
        <source>To the other run</source>
        <translation>A la otra manga</translation>
    </message>
    <message>
        <source>reason of a time loss</source>
        <translation>motivo de una pérdida de tiempo</translation>
    </message>
    <message>
        <source>This run</source>
        <translation>Esta manga</translation>
    </message>
    <message>
        <source>Other run</source>
        <translation>Otra manga</translation>
    </message>
    <message>
        <source>Sets this mark at the frame shown</source>
        <translation>Pone esta marca en el fotograma mostrado</translation>
    </message>
    <message>
        <source>kind of a time loss</source>
        <translation>tipo de pérdida de tiempo</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Puertas</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Parte</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Agua</translation>
    </message>
    <message>
        <source>comment on a time loss</source>
        <translation>comentario a una pérdida de tiempo</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Back to the run</source>
        <translation>Volver a la manga</translation>
    </message>
    <message>
        <source>M marks where the stretch starts and makes another time loss.</source>
        <translation>M marca dónde empieza el trecho y crea otra pérdida de tiempo.</translation>
    </message>
    <message>
        <source>M marks where the stretch starts and makes a time loss.</source>
        <translation>M marca dónde empieza el trecho y crea una pérdida de tiempo.</translation>
    </message>
    <message>
        <source>%1 s (%2 %) against %3</source>
        <translation>%1 s (%2&#xa0;%) frente a %3</translation>
    </message>
    <message>
        <source>Go back to the run that lost the time first.</source>
        <translation>Vuelve antes a la manga que perdió el tiempo.</translation>
    </message>
    <message>
        <source>A time loss needs another run to compare with.</source>
        <translation>Una pérdida de tiempo necesita otra manga con la que comparar.</translation>
    </message>
    <message>
        <source>time loss</source>
        <translation>pérdida de tiempo</translation>
    </message>
    <message>
        <source>Start and end are marked here too. Ctrl+T goes back to the run that lost the time, where M begins its next loss.</source>
        <translation>Aquí también se marcan el inicio y el fin. Ctrl+T vuelve a la manga que perdió el tiempo, donde M empieza su siguiente pérdida.</translation>
    </message>
    <message>
        <source>mark of a time loss</source>
        <translation>marca de una pérdida de tiempo</translation>
    </message>
    <message>
        <source>time loss removed</source>
        <translation>pérdida de tiempo quitada</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossTables</name>
    <message>
        <source>Both runs have no upstream gate timed in common.</source>
        <translation>Las dos mangas no tienen ningún remonte cronometrado en común.</translation>
    </message>
    <message>
        <source>No time lost is noted of this run.</source>
        <translation>De esta manga no hay anotada ninguna pérdida de tiempo.</translation>
    </message>
    <message>
        <source>No ways are compared in this run.</source>
        <translation>En esta manga no se comparan trazadas.</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Tramos</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Mangas</translation>
    </message>
    <message>
        <source>Gates</source>
        <translation>Puertas</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Ways</source>
        <translation>Trazadas</translation>
    </message>
    <message>
        <source>&amp;Play both films</source>
        <translation>&amp;Reproducir los dos vídeos</translation>
    </message>
    <message>
        <source>Hold all against this &amp;run</source>
        <translation>Co&amp;mparar todas con esta manga</translation>
    </message>
    <message>
        <source>Notes (%1 unfinished)</source>
        <translation>Notas (%1 sin terminar)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossesActions</name>
    <message>
        <source>&amp;Open races…</source>
        <translation>&amp;Abrir carreras…</translation>
    </message>
    <message>
        <source>Open a &amp;folder of races…</source>
        <translation>Abrir una &amp;carpeta de carreras…</translation>
    </message>
    <message>
        <source>&amp;Read all again</source>
        <translation>Volver a &amp;leer todo</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>&amp;Dejar de leer</translation>
    </message>
    <message>
        <source>&amp;Page of an athlete: PDF, preview, print…</source>
        <translation>&amp;Página de un deportista: PDF, vista previa, impresión…</translation>
    </message>
    <message>
        <source>Save the table as &amp;CSV…</source>
        <translation>Guardar la tabla como CS&amp;V…</translation>
    </message>
    <message>
        <source>&amp;Save the chart…</source>
        <translation>Guardar el grá&amp;fico…</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Manga</translation>
    </message>
    <message>
        <source>&amp;Find a run</source>
        <translation>&amp;Buscar una manga</translation>
    </message>
    <message>
        <source>The &amp;next in rank</source>
        <translation>La &amp;siguiente en la clasificación</translation>
    </message>
    <message>
        <source>The &amp;one in front</source>
        <translation>La de &amp;delante</translation>
    </message>
    <message>
        <source>&amp;Season of the athlete, or the run</source>
        <translation>&amp;Temporada del deportista, o la manga</translation>
    </message>
    <message>
        <source>Re&amp;ference</source>
        <translation>Re&amp;ferencia</translation>
    </message>
    <message>
        <source>The &amp;winner</source>
        <translation>El &amp;ganador</translation>
    </message>
    <message>
        <source>The &amp;fastest paddling</source>
        <translation>El que paleó más &amp;rápido</translation>
    </message>
    <message>
        <source>The &amp;ideal run</source>
        <translation>La manga &amp;ideal</translation>
    </message>
    <message>
        <source>The &amp;median of the finalists</source>
        <translation>La &amp;mediana de los finalistas</translation>
    </message>
    <message>
        <source>The crew&apos;s &amp;own best other run</source>
        <translation>La mejor &amp;otra manga de la tripulación</translation>
    </message>
    <message>
        <source>The run that is &amp;shown</source>
        <translation>La manga que se m&amp;uestra</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Sum from total to total</source>
        <translation>&amp;Suma de total a total</translation>
    </message>
    <message>
        <source>&amp;Heat map</source>
        <translation>&amp;Mapa de calor</translation>
    </message>
    <message>
        <source>Sections that lost &amp;most</source>
        <translation>Tramos que más per&amp;dieron</translation>
    </message>
    <message>
        <source>Gap &amp;along the course</source>
        <translation>Diferencia a &amp;lo largo del recorrido</translation>
    </message>
    <message>
        <source>Table of s&amp;ections</source>
        <translation>Tabla de t&amp;ramos</translation>
    </message>
    <message>
        <source>Table of &amp;runs</source>
        <translation>Tabla de m&amp;angas</translation>
    </message>
    <message>
        <source>Table of &amp;gates</source>
        <translation>Tabla de &amp;puertas</translation>
    </message>
    <message>
        <source>Table of &amp;notes</source>
        <translation>Tabla de &amp;notas</translation>
    </message>
    <message>
        <source>Table of &amp;ways</source>
        <translation>Tabla de tra&amp;zadas</translation>
    </message>
    <message>
        <source>Show the whole &amp;chart</source>
        <translation>Mostrar el &amp;gráfico entero</translation>
    </message>
    <message>
        <source>&amp;Blue to orange instead of green to red</source>
        <translation>D&amp;e azul a naranja en vez de verde a rojo</translation>
    </message>
    <message>
        <source>Fil&amp;ms</source>
        <translation>Ví&amp;deos</translation>
    </message>
    <message>
        <source>&amp;Play the section of both runs</source>
        <translation>&amp;Reproducir el tramo de las dos mangas</translation>
    </message>
    <message>
        <source>&amp;Film this loss…</source>
        <translation>&amp;Vídeo de esta pérdida…</translation>
    </message>
    <message>
        <source>&amp;Hide the films</source>
        <translation>&amp;Ocultar los vídeos</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Mangas</translation>
    </message>
    <message>
        <source>Pa&amp;ge for an athlete…</source>
        <translation>Pá&amp;gina para un deportista…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::LossesWindow</name>
    <message>
        <source>Split files</source>
        <translation>Archivos de parciales</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manga</translation>
    </message>
    <message>
        <source>Season</source>
        <translation>Temporada</translation>
    </message>
    <message>
        <source>Hide the films</source>
        <translation>Ocultar los vídeos</translation>
    </message>
    <message>
        <source>Stop reading</source>
        <translation>Dejar de leer</translation>
    </message>
    <message>
        <source>&amp;Open it</source>
        <translation>&amp;Abrirla</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translation>Escribiendo %1…</translation>
    </message>
    <message>
        <source>The page was not written.</source>
        <translation>La página no se ha escrito.</translation>
    </message>
    <message>
        <source>%1 is not in the files any more; another run is shown.</source>
        <translation>%1 ya no está en los archivos; se muestra otra manga.</translation>
    </message>
    <message>
        <source>%1 is not in the files any more; the winner is the reference now.</source>
        <translation>%1 ya no está en los archivos; ahora la referencia es el ganador.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 no se puede leer: %2</translation>
    </message>
    <message>
        <source>%1 files cannot be read, the first of them %2: %3</source>
        <translation>%1 archivos no se pueden leer, el primero de ellos %2: %3</translation>
    </message>
    <message>
        <source>Stopped: not all files were read.</source>
        <translation>Detenido: no se leyeron todos los archivos.</translation>
    </message>
    <message>
        <source>There is no run in what was opened.</source>
        <translation>En lo que se ha abierto no hay ninguna manga.</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Pérdidas de tiempo</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>Open races</source>
        <translation>Abrir carreras</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Archivos de parciales (*.kvx);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Open a folder of races</source>
        <translation>Abrir una carpeta de carreras</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>%1 está escrito.</translation>
    </message>
    <message>
        <source>Choose a section first.</source>
        <translation>Elige antes un tramo.</translation>
    </message>
    <message>
        <source>No film shows this of either run: a film and both marks are needed.</source>
        <translation>Ningún vídeo muestra esto de ninguna de las dos mangas: hacen falta un vídeo y las dos marcas.</translation>
    </message>
    <message>
        <source>No film shows the run here; that of the reference plays alone.</source>
        <translation>Ningún vídeo muestra aquí la manga; se reproduce solo el de la referencia.</translation>
    </message>
    <message>
        <source>There is no run to watch beside it.</source>
        <translation>No hay ninguna manga que ver al lado.</translation>
    </message>
    <message>
        <source>No film shows %1 here.</source>
        <translation>Ningún vídeo muestra aquí a %1.</translation>
    </message>
    <message>
        <source>There is no run to film beside it.</source>
        <translation>No hay ninguna manga que poner al lado en un vídeo.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MarkList</name>
    <message>
        <source>Start</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Parciales</translation>
    </message>
    <message>
        <source>Micro splits</source>
        <translation>Microparciales</translation>
    </message>
    <message>
        <source>Upstream gates</source>
        <translation>Remontes</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Paladas</translation>
    </message>
    <message>
        <source>Time losses</source>
        <translation>Pérdidas de tiempo</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source> · camera %1</source>
        <translation> · cámara %1</translation>
    </message>
    <message>
        <source> · fixed camera %1</source>
        <translation> · cámara fija %1</translation>
    </message>
    <message>
        <source> · other run</source>
        <translation> · otra manga</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marca</translation>
    </message>
    <message>
        <source>Times are of this run, whatever film a mark lies on. A click shows the frame of a mark; Ctrl and Shift choose several for their clips</source>
        <translation>Los tiempos son de esta manga, sea cual sea el vídeo en el que está la marca. Un clic muestra el fotograma de una marca; Ctrl y Mayús eligen varias para sus clips</translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation>Tipos</translation>
    </message>
    <message>
        <source>The kinds of marks that are listed</source>
        <translation>Los tipos de marcas que se enumeran</translation>
    </message>
    <message>
        <source>Marks of the run</source>
        <translation>Marcas de la manga</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Todos los tipos</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
    <message>
        <source>Plays the clips of the chosen marks one after another; of all that are listed when not several are chosen</source>
        <translation>Reproduce uno tras otro los clips de las marcas elegidas; de todas las enumeradas si no hay varias elegidas</translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) before and after a mark</source>
        <translation>
            <numerusform>%n segundo antes y después de una marca</numerusform>
            <numerusform>%n segundos antes y después de una marca</numerusform>
        </translation>
    </message>
    <message>
        <source> · outside the film</source>
        <translation> · fuera del vídeo</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MicroPage</name>
    <message>
        <source>Mark</source>
        <translation>Marca</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>From the one before</source>
        <translation>Desde el anterior</translation>
    </message>
    <message>
        <source>M marks a micro split at the frame shown.</source>
        <translation>M marca un microparcial en el fotograma mostrado.</translation>
    </message>
    <message>
        <source>micro split</source>
        <translation>microparcial</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionActions</name>
    <message>
        <source>Charts</source>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Grabaciones</translation>
    </message>
    <message>
        <source>&amp;Open recordings…</source>
        <translation>&amp;Abrir grabaciones…</translation>
    </message>
    <message>
        <source>Save the &amp;chart…</source>
        <translation>Guardar el grá&amp;fico…</translation>
    </message>
    <message>
        <source>&amp;Recording</source>
        <translation>&amp;Grabación</translation>
    </message>
    <message>
        <source>&amp;Convert</source>
        <translation>&amp;Convertir</translation>
    </message>
    <message>
        <source>Convert &amp;all ticked</source>
        <translation>Convertir &amp;todas las marcadas</translation>
    </message>
    <message>
        <source>&amp;Open the converted session</source>
        <translation>&amp;Abrir la sesión convertida</translation>
    </message>
    <message>
        <source>&amp;Previous recording</source>
        <translation>Grabación a&amp;nterior</translation>
    </message>
    <message>
        <source>&amp;Next recording</source>
        <translation>Grabación &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Show or hide</source>
        <translation>&amp;Mostrar u ocultar</translation>
    </message>
    <message>
        <source>Show this one a&amp;lone</source>
        <translation>Mostrar solo &amp;esta</translation>
    </message>
    <message>
        <source>&amp;Remove from the list</source>
        <translation>&amp;Quitar de la lista</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Tiempo</translation>
    </message>
    <message>
        <source>&amp;Undo the move</source>
        <translation>&amp;Deshacer el desplazamiento</translation>
    </message>
    <message>
        <source>&amp;Redo the move</source>
        <translation>&amp;Rehacer el desplazamiento</translation>
    </message>
    <message>
        <source>Align the &amp;starts</source>
        <translation>Alinear los &amp;inicios</translation>
    </message>
    <message>
        <source>Align by the &amp;clock</source>
        <translation>Alinear por el re&amp;loj</translation>
    </message>
    <message>
        <source>&amp;Align here: the cursor to the clicked moment</source>
        <translation>&amp;Alinear aquí: el cursor con el momento del clic</translation>
    </message>
    <message>
        <source>&amp;Forget the clicked moment</source>
        <translation>&amp;Olvidar el momento del clic</translation>
    </message>
    <message>
        <source>&amp;Earlier</source>
        <translation>A&amp;ntes</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>Desp&amp;ués</translation>
    </message>
    <message>
        <source>&amp;Previous stroke</source>
        <translation>&amp;Palada anterior</translation>
    </message>
    <message>
        <source>&amp;Next stroke</source>
        <translation>Palada &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Charts</source>
        <translation>G&amp;ráficos</translation>
    </message>
    <message>
        <source>Axes of the &amp;phone</source>
        <translation>Ejes del &amp;teléfono</translation>
    </message>
    <message>
        <source>Axes of the phone</source>
        <translation>Ejes del teléfono</translation>
    </message>
    <message>
        <source>&amp;Mark strokes and turns</source>
        <translation>&amp;Marcar paladas y giros</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;Ampliar</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>R&amp;educir</translation>
    </message>
    <message>
        <source>Show &amp;everything</source>
        <translation>Mostrar t&amp;odo</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionAlignment</name>
    <message>
        <source>Every recording begins at 0. Ctrl+Z brings the alignment before back.</source>
        <translation>Todas las grabaciones empiezan en 0. Ctrl+Z recupera la alineación anterior.</translation>
    </message>
    <message>
        <source>Every recording stands at its date. Ctrl+Z brings the alignment before back.</source>
        <translation>Todas las grabaciones están en su fecha. Ctrl+Z recupera la alineación anterior.</translation>
    </message>
    <message>
        <source>The date is not known of %1</source>
        <translation>No se conoce la fecha de %1</translation>
    </message>
    <message>
        <source>Click the moment where it should be, choose a recording, point at its moment and press A</source>
        <translation>Haz clic en el momento donde debe quedar, elige una grabación, señala su momento y pulsa A</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionCharts</name>
    <message>
        <source>here</source>
        <translation>aquí</translation>
    </message>
    <message>
        <source>L</source>
        <translation>I</translation>
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
        <translation>%1  %2: %3 paladas, %4 giros</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionPanel</name>
    <message>
        <source>%1 s of %2 s are recorded.</source>
        <translation>Hay grabados %1 s de %2 s.</translation>
    </message>
    <message>
        <source>Nothing of it is recorded.</source>
        <translation>No hay nada grabado de ella.</translation>
    </message>
    <message>
        <source>greatest %1 m/s, %2 m</source>
        <translation>máxima %1 m/s, %2 m</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Tramo</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Paladas</translation>
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
        <translation>Corazón</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Frec. de palada</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Frec. cardiaca</translation>
    </message>
    <message>
        <source>Select a run to see its strokes, speed and heart rate.</source>
        <translation>Selecciona una manga para ver sus paladas, su velocidad y su frecuencia cardiaca.</translation>
    </message>
    <message>
        <source>No recording is attached to this run. Split taking attaches one (Ctrl+B).</source>
        <translation>Esta manga no tiene ninguna grabación adjunta. Se adjunta en la toma de parciales (Ctrl+B).</translation>
    </message>
    <message>
        <source>%1 of the part that is recorded; strokes of the whole run are not known.</source>
        <translation>%1 de la parte grabada; las paladas de la manga entera no se conocen.</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manga</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionRecordings</name>
    <message>
        <source>%1: there is not enough memory for it</source>
        <translation>%1: no hay memoria suficiente</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::MotionWindow</name>
    <message>
        <source>Recordings</source>
        <translation>Grabaciones</translation>
    </message>
    <message>
        <source>Open it</source>
        <translation>Abrirla</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Writes strokes and turns as a processed session (.bms) beside the recording</source>
        <translation>Escribe las paladas y los giros como sesión procesada (.bms) junto a la grabación</translation>
    </message>
    <message>
        <source>Convert all ticked</source>
        <translation>Convertir todas las marcadas</translation>
    </message>
    <message>
        <source>At the cursor</source>
        <translation>En el cursor</translation>
    </message>
    <message>
        <source>Drop raw recordings (.kvb) here</source>
        <translation>Suelta aquí grabaciones en bruto (.kvb)</translation>
    </message>
    <message>
        <source>Several are laid over each other. They are only read: converting writes a new file.</source>
        <translation>Si hay varias, se superponen. Solo se leen: al convertir se escribe un archivo nuevo.</translation>
    </message>
    <message>
        <source>Open recordings…</source>
        <translation>Abrir grabaciones…</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Se guardó %1</translation>
    </message>
    <message>
        <source>Open recordings</source>
        <translation>Abrir grabaciones</translation>
    </message>
    <message>
        <source>Raw recordings (*.kvb);;All files (*)</source>
        <translation>Grabaciones en bruto (*.kvb);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Leyendo %1…</translation>
    </message>
    <message>
        <source>Raw recordings</source>
        <translation>Grabaciones en bruto</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::NoteMarks</name>
    <message>
        <source>This mark lies on the film of a fixed camera that is not in step.</source>
        <translation>Esta marca está en el vídeo de una cámara fija que no va a la par.</translation>
    </message>
    <message>
        <source>The other run of this time loss is not in this file.</source>
        <translation>La otra manga de esta pérdida de tiempo no está en este archivo.</translation>
    </message>
    <message>
        <source>Another run came to the front: nothing was marked.</source>
        <translation>Otra manga ha pasado al frente: no se ha marcado nada.</translation>
    </message>
    <message>
        <source>Nothing can be marked: %1 is not in the folder of the split file. Cameras &gt; Where are the films now?</source>
        <translation>No se puede marcar nada: %1 no está en la carpeta del archivo de parciales. Cámaras &gt; ¿Dónde están ahora los vídeos?</translation>
    </message>
    <message>
        <source>mark moved</source>
        <translation>marca movida</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>No hay ninguna marca seleccionada. Ctrl y las flechas van de marca en marca.</translation>
    </message>
    <message>
        <source>This mark lies on another film than the one shown.</source>
        <translation>Esta marca está en un vídeo distinto del mostrado.</translation>
    </message>
    <message>
        <source>None of these marks lies on the film that is shown.</source>
        <translation>Ninguna de estas marcas está en el vídeo que se muestra.</translation>
    </message>
    <message>
        <source>Nothing is selected that could be removed. Ctrl and the arrows go from mark to mark.</source>
        <translation>No hay nada seleccionado que se pueda quitar. Ctrl y las flechas van de marca en marca.</translation>
    </message>
    <message>
        <source>mark removed</source>
        <translation>marca quitada</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::NotePage</name>
    <message>
        <source>Splits</source>
        <translation>Parciales</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Penalizaciones</translation>
    </message>
    <message>
        <source>Upstreams</source>
        <translation>Remontes</translation>
    </message>
    <message>
        <source>Strokes</source>
        <translation>Paladas</translation>
    </message>
    <message>
        <source>Micro</source>
        <translation>Micro</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Losses</source>
        <translation>Pérdidas</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Ways</source>
        <translation>Trazadas</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Cámaras</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::NotesPanel</name>
    <message>
        <source>Clip %1 of %2</source>
        <translation>Clip %1 de %2</translation>
    </message>
    <message>
        <source>This key works in the mode %1.</source>
        <translation>Esta tecla funciona en el modo %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OfferDialog</name>
    <message>
        <source>A newer version</source>
        <translation>Una versión nueva</translation>
    </message>
    <message>
        <source>Kavela %1 is here</source>
        <translation>Kavela %1 está disponible</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Nothing is told of what is new.</source>
        <translation>No se dice nada de las novedades.</translation>
    </message>
    <message>
        <source>The file has %1 and is put into %2. You install it yourself, when it suits you.</source>
        <translation>El archivo tiene %1 y se guarda en %2. Lo instalas tú cuando te venga bien.</translation>
    </message>
    <message>
        <source>It is of %1. You have %2.</source>
        <translation>Es del %1. Tienes la %2.</translation>
    </message>
    <message>
        <source>&amp;Skip this version</source>
        <translation>&amp;Omitir esta versión</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Más tarde</translation>
    </message>
    <message>
        <source>&amp;Download</source>
        <translation>&amp;Descargar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Ca&amp;ncelar</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Show the folder</source>
        <translation>&amp;Mostrar la carpeta</translation>
    </message>
    <message>
        <source>The file is the one that was signed, and stands as “%1” in %2. Leave Kavela before you install it.</source>
        <translation>El archivo es el que se firmó y está como «%1» en %2. Sal de Kavela antes de instalarlo.</translation>
    </message>
    <message>
        <source>Nothing was kept of the file.</source>
        <translation>No se ha conservado nada del archivo.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OfficialDialog</name>
    <message>
        <source>Crew</source>
        <translation>Tripulación</translation>
    </message>
    <message>
        <source>What differs</source>
        <translation>Qué difiere</translation>
    </message>
    <message>
        <source>How</source>
        <translation>Cómo</translation>
    </message>
    <message>
        <source>Official results and the films</source>
        <translation>Resultados oficiales y vídeos</translation>
    </message>
    <message>
        <source>&amp;Take over</source>
        <translation>&amp;Incorporar</translation>
    </message>
    <message>
        <source>&amp;Show the run</source>
        <translation>&amp;Mostrar la manga</translation>
    </message>
    <message>
        <source>A &amp;file…</source>
        <translation>Un &amp;archivo…</translation>
    </message>
    <message>
        <source>Results list</source>
        <translation>Lista de resultados</translation>
    </message>
    <message>
        <source>Attached document</source>
        <translation>Documento adjunto</translation>
    </message>
    <message>
        <source>Table kept with the race</source>
        <translation>Tabla conservada con la carrera</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Todas las categorías</translation>
    </message>
    <message>
        <source>All phases</source>
        <translation>Todas las fases</translation>
    </message>
    <message>
        <source>Official results</source>
        <translation>Resultados oficiales</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Leyendo %1…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>«%1» no se puede abrir</translation>
    </message>
    <message>
        <source>The race carries no results list. Open one with “A file…”.</source>
        <translation>La carrera no lleva ninguna lista de resultados. Abre una con «Un archivo…».</translation>
    </message>
    <message>
        <source>The films and this list say the same.</source>
        <translation>Los vídeos y esta lista dicen lo mismo.</translation>
    </message>
    <message>
        <source>%1 differences, %2 of them to take over. The films&apos; own times stay; Ctrl+Z in split taking takes a step back.</source>
        <translation>%1 diferencias, %2 de ellas por incorporar. Los tiempos propios de los vídeos se mantienen; Ctrl+Z en la toma de parciales retrocede un paso.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlineDialog</name>
    <message>
        <source>Any server that stores files by WebDAV will do. The password is asked for each time and stored nowhere.</source>
        <translation>Sirve cualquier servidor que guarde archivos por WebDAV. La contraseña se pide cada vez y no se guarda en ningún sitio.</translation>
    </message>
    <message>
        <source>&amp;Planning</source>
        <translation>&amp;Planificación</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>Di&amp;rección</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>Nombre de &amp;usuario</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>C&amp;ontraseña</translation>
    </message>
    <message>
        <source>The settings name no shared planning.</source>
        <translation>Los ajustes no indican ninguna planificación compartida.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlinePlanning</name>
    <message>
        <source>Saving the planning online…</source>
        <translation>Guardando la planificación en línea…</translation>
    </message>
    <message>
        <source>“%1” is saved online.</source>
        <translation>«%1» está guardado en línea.</translation>
    </message>
    <message>
        <source>“%1” was changed on the server since this planning was read from there or saved there. Saving would lose that change.</source>
        <translation>«%1» ha cambiado en el servidor desde que esta planificación se leyó o se guardó allí. Al guardar se perdería ese cambio.</translation>
    </message>
    <message>
        <source>There is a planning “%1” on the server that this one does not come from. Saving would replace it.</source>
        <translation>En el servidor hay una planificación «%1» de la que esta no procede. Al guardar se sustituiría.</translation>
    </message>
    <message>
        <source>Somebody else&apos;s work lies on the server</source>
        <translation>En el servidor hay trabajo de otra persona</translation>
    </message>
    <message>
        <source>Look at it</source>
        <translation>Verlo</translation>
    </message>
    <message>
        <source>Save under another name…</source>
        <translation>Guardar con otro nombre…</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Sustituirlo</translation>
    </message>
    <message>
        <source>Save the planning online</source>
        <translation>Guardar la planificación en línea</translation>
    </message>
    <message>
        <source>Name on the server</source>
        <translation>Nombre en el servidor</translation>
    </message>
    <message>
        <source>%1 (mine)</source>
        <translation>%1 (mío)</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a file.</source>
        <translation>«%1» no puede ser el nombre de un archivo.</translation>
    </message>
    <message>
        <source>The server has no such file.</source>
        <translation>El servidor no tiene ese archivo.</translation>
    </message>
    <message>
        <source>What the server has is no planning.</source>
        <translation>Lo que tiene el servidor no es una planificación.</translation>
    </message>
    <message>
        <source>The online planning could not be opened.</source>
        <translation>No se pudo abrir la planificación en línea.</translation>
    </message>
    <message>
        <source>Open an online planning</source>
        <translation>Abrir una planificación en línea</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlineSaving</name>
    <message>
        <source>The server changes the planning all the time.</source>
        <translation>El servidor cambia la planificación continuamente.</translation>
    </message>
    <message>
        <source>The server has no such folder.</source>
        <translation>El servidor no tiene esa carpeta.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OnlineStore</name>
    <message>
        <source>The address is none. It begins with https://.</source>
        <translation>La dirección no es válida. Empieza por https://.</translation>
    </message>
    <message>
        <source>Only https:// keeps the password and the plan from other readers.</source>
        <translation>Solo https:// protege la contraseña y el plan de otros lectores.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::OrderBoard</name>
    <message>
        <source>Order at the gate in front</source>
        <translation>Orden en la puerta de delante</translation>
    </message>
    <message>
        <source>A place up</source>
        <translation>Un puesto arriba</translation>
    </message>
    <message>
        <source>A place down</source>
        <translation>Un puesto abajo</translation>
    </message>
    <message>
        <source>Not seen at this gate</source>
        <translation>No se vio en esta puerta</translation>
    </message>
    <message>
        <source>Seen, as the last</source>
        <translation>Visto, el último</translation>
    </message>
    <message>
        <source>not of this heat</source>
        <translation>no es de esta serie</translation>
    </message>
    <message>
        <source>not seen</source>
        <translation>no visto</translation>
    </message>
    <message>
        <source>%1 won</source>
        <translation>%1 ganados</translation>
    </message>
    <message>
        <source>%1 lost</source>
        <translation>%1 perdidos</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PageView</name>
    <message>
        <source>Pages of the report</source>
        <translation>Páginas del informe</translation>
    </message>
    <message>
        <source>There is nothing to show.</source>
        <translation>No hay nada que mostrar.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PathPages</name>
    <message>
        <source>Draw a box round what is to be followed.</source>
        <translation>Dibuja un recuadro alrededor de lo que se va a seguir.</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Cifras</translation>
    </message>
    <message>
        <source>Known points</source>
        <translation>Puntos conocidos</translation>
    </message>
    <message>
        <source>Two points give a scale only: lengths and speeds hold near them and along the line between them. Four give the perspective too.</source>
        <translation>Dos puntos solo dan una escala: longitudes y velocidades valen cerca de ellos y a lo largo de la línea que los une. Cuatro dan también la perspectiva.</translation>
    </message>
    <message>
        <source>What is followed is not on the water, such as a head: its metres are off.</source>
        <translation>Lo que se sigue no está en el agua, como una cabeza: sus metros no son exactos.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltiesActions</name>
    <message>
        <source>Crews</source>
        <translation>Tripulaciones</translation>
    </message>
    <message>
        <source>&amp;Open split files…</source>
        <translation>&amp;Abrir archivos de parciales…</translation>
    </message>
    <message>
        <source>Open a &amp;folder…</source>
        <translation>Abrir una &amp;carpeta…</translation>
    </message>
    <message>
        <source>Read &amp;again</source>
        <translation>&amp;Volver a leer</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>&amp;Dejar de leer</translation>
    </message>
    <message>
        <source>Files that could not be rea&amp;d…</source>
        <translation>Archivos &amp;que no se pudieron leer…</translation>
    </message>
    <message>
        <source>Save the &amp;table as CSV…</source>
        <translation>Guardar la &amp;tabla como CSV…</translation>
    </message>
    <message>
        <source>Save the &amp;chart…</source>
        <translation>Guardar el grá&amp;fico…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>&amp;Course</source>
        <translation>&amp;Recorrido</translation>
    </message>
    <message>
        <source>&amp;Rates</source>
        <translation>&amp;Frecuencias</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Detalles</translation>
    </message>
    <message>
        <source>Cost in &amp;places</source>
        <translation>Coste en &amp;puestos</translation>
    </message>
    <message>
        <source>Risk and &amp;speed</source>
        <translation>Riesgo y &amp;velocidad</translation>
    </message>
    <message>
        <source>&amp;Next course</source>
        <translation>Recorrido &amp;siguiente</translation>
    </message>
    <message>
        <source>Pre&amp;vious course</source>
        <translation>Recorrido &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;All runs</source>
        <translation>&amp;Todas las mangas</translation>
    </message>
    <message>
        <source>The &amp;whole chart</source>
        <translation>El &amp;gráfico entero</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltiesWindow</name>
    <message>
        <source>Penalties</source>
        <translation>Penalizaciones</translation>
    </message>
    <message>
        <source>Drop split files (.kvx) or a folder of them here</source>
        <translation>Suelta aquí archivos de parciales (.kvx) o una carpeta con ellos</translation>
    </message>
    <message>
        <source>Open split files…</source>
        <translation>Abrir archivos de parciales…</translation>
    </message>
    <message>
        <source>Open a folder…</source>
        <translation>Abrir una carpeta…</translation>
    </message>
    <message>
        <source>Course</source>
        <translation>Recorrido</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Frecuencias</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Cost in places</source>
        <translation>Coste en puestos</translation>
    </message>
    <message>
        <source>Risk and speed</source>
        <translation>Riesgo y velocidad</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Se guardó %1</translation>
    </message>
    <message>
        <source>Open split files</source>
        <translation>Abrir archivos de parciales</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Archivos de parciales (*.kvx);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Open a folder</source>
        <translation>Abrir una carpeta</translation>
    </message>
    <message>
        <source>Which gates are touched and missed, by whom, and what it cost: of one race, of several, or of a whole season. Files are only read.</source>
        <translation>Qué puertas se tocan y se saltan, quién, y cuánto costó: de una carrera, de varias o de toda una temporada. Los archivos solo se leen.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>There is no split file (.kvx) here.</source>
        <translation>Aquí no hay ningún archivo de parciales (.kvx).</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 archivo</translation>
    </message>
    <message>
        <source>1 run</source>
        <translation>1 manga</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n archivo</numerusform>
            <numerusform>%n archivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n manga</numerusform>
            <numerusform>%n mangas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltyFilter</name>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Categoría</translation>
    </message>
    <message>
        <source>&amp;Phase</source>
        <translation>&amp;Fase</translation>
    </message>
    <message>
        <source>Cre&amp;w</source>
        <translation>T&amp;ripulación</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PenaltyPage</name>
    <message>
        <source>Gate</source>
        <translation>Puerta</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Penalización</translation>
    </message>
    <message>
        <source>Pole</source>
        <translation>Palo</translation>
    </message>
    <message>
        <source>With</source>
        <translation>Con</translation>
    </message>
    <message>
        <source>Another at this gate</source>
        <translation>Otra en esta puerta</translation>
    </message>
    <message>
        <source>Choose what else happened at the gate in front; M adds it</source>
        <translation>Elige qué más ocurrió en la puerta de delante; M lo añade</translation>
    </message>
    <message>
        <source>Moment</source>
        <translation>Momento</translation>
    </message>
    <message>
        <source>Gate is</source>
        <translation>Puerta</translation>
    </message>
    <message>
        <source>Boat moves</source>
        <translation>Barco va</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>Eyes</source>
        <translation>Mirada</translation>
    </message>
    <message>
        <source>Gate %1: %2 s. The lists change its penalty.</source>
        <translation>Puerta %1: %2 s. Las listas cambian su penalización.</translation>
    </message>
    <message>
        <source>Gate %1: %2 s. M adds a penalty.</source>
        <translation>Puerta %1: %2 s. M añade una penalización.</translation>
    </message>
    <message>
        <source>The seconds differ from the penalties listed at gate %1.</source>
        <translation>Los segundos no coinciden con las penalizaciones anotadas en la puerta %1.</translation>
    </message>
    <message>
        <source>The course has no gates yet: Ctrl+G sets it up.</source>
        <translation>El recorrido aún no tiene puertas: Ctrl+G las configura.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; begins a second one.</source>
        <translation>«%1» empieza una segunda.</translation>
    </message>
    <message>
        <source>penalty at gate %1</source>
        <translation>penalización en la puerta %1</translation>
    </message>
    <message>
        <source>penalty removed</source>
        <translation>penalización quitada</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PhaseModel</name>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>time</source>
        <translation>tiempo</translation>
    </message>
    <message>
        <source>Penalty</source>
        <translation>Penalización</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>penalización</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>position</source>
        <translation>posición</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Enter a time or a position first.</source>
        <translation>Introduce antes un tiempo o una posición.</translation>
    </message>
    <message>
        <source>date</source>
        <translation>fecha</translation>
    </message>
    <message>
        <source>Behind</source>
        <translation>Dif.</translation>
    </message>
    <message>
        <source>Known where the run was taken over from a split file</source>
        <translation>Se conoce si la manga se incorporó de un archivo de parciales</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Parciales</translation>
    </message>
    <message>
        <source>removal of a run</source>
        <translation>eliminación de una manga</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PhonePageDialog</name>
    <message>
        <source>&amp;Cut the runs out of their films</source>
        <translation>&amp;Cortar las mangas de sus vídeos</translation>
    </message>
    <message>
        <source>Page for an athlete</source>
        <translation>Página para un deportista</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Guardar…</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>&amp;Deportista</translation>
    </message>
    <message>
        <source>Choose one of the athletes of the list.</source>
        <translation>Elige uno de los deportistas de la lista.</translation>
    </message>
    <message>
        <source>One file for the telephone, of one race as it was last saved. Films lie in the folder beside it.</source>
        <translation>Un archivo para el teléfono, de una carrera tal como se guardó por última vez. Los vídeos están en la carpeta de al lado.</translation>
    </message>
    <message>
        <source>One file for the telephone, the season of %1 files as they were last saved. Films lie in the folder beside it.</source>
        <translation>Un archivo para el teléfono, la temporada de %1 archivos tal como se guardaron por última vez. Los vídeos están en la carpeta de al lado.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PhonePages</name>
    <message>
        <source>No clip of %1: %2</source>
        <translation>Ningún clip de %1: %2</translation>
    </message>
    <message>
        <source>Save the page of %1</source>
        <translation>Guardar la página de %1</translation>
    </message>
    <message>
        <source>Pages (*.html *.htm)</source>
        <translation>Páginas (*.html *.htm)</translation>
    </message>
    <message>
        <source>The page cannot be written over a race that it is made from.</source>
        <translation>La página no se puede escribir encima de una carrera de la que se hace.</translation>
    </message>
    <message>
        <source>Making the page…</source>
        <translation>Creando la página…</translation>
    </message>
    <message>
        <source>Page for an athlete</source>
        <translation>Página para un deportista</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>%1 está escrito.</translation>
    </message>
    <message>
        <source>&amp;Open it</source>
        <translation>&amp;Abrirla</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>Mostrar en la &amp;carpeta</translation>
    </message>
    <message>
        <source>The saved files have no run of this athlete.</source>
        <translation>Los archivos guardados no tienen ninguna manga de este deportista.</translation>
    </message>
    <message>
        <source>There is no run of a named athlete in the split files that are open.</source>
        <translation>En los archivos de parciales abiertos no hay ninguna manga de un deportista con nombre.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PivotDialog</name>
    <message>
        <source>Pivot</source>
        <translation>Tabla dinámica</translation>
    </message>
    <message>
        <source>one column for all</source>
        <translation>una columna para todo</translation>
    </message>
    <message>
        <source>How many</source>
        <translation>Cuántos</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Suma</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Mediana</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Menor</translation>
    </message>
    <message>
        <source>Most</source>
        <translation>Mayor</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>A &amp;row for each</source>
        <translation>Una &amp;fila por cada</translation>
    </message>
    <message>
        <source>A &amp;column for each</source>
        <translation>Una &amp;columna por cada</translation>
    </message>
    <message>
        <source>&amp;Of</source>
        <translation>D&amp;e</translation>
    </message>
    <message>
        <source>&amp;Tell</source>
        <translation>&amp;Mostrar</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlaceGrid</name>
    <message>
        <source>Places at the gates</source>
        <translation>Puestos en las puertas</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Puerta %1</translation>
    </message>
    <message>
        <source>, which is not on the cross course</source>
        <translation>, que no está en el recorrido de cross</translation>
    </message>
    <message>
        <source>, replaced by a later order</source>
        <translation>, sustituido por un orden posterior</translation>
    </message>
    <message>
        <source>No order yet.</source>
        <translation>Aún no hay ningún orden.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlanView</name>
    <message>
        <source>The week&apos;s date is in no calendar, so that it has no days.</source>
        <translation>La fecha de la semana no está en ningún calendario, así que no tiene días.</translation>
    </message>
    <message>
        <source>new session</source>
        <translation>sesión nueva</translation>
    </message>
    <message>
        <source>session</source>
        <translation>sesión</translation>
    </message>
    <message>
        <source>removal of a session</source>
        <translation>eliminación de una sesión</translation>
    </message>
    <message>
        <source>copied session</source>
        <translation>sesión copiada</translation>
    </message>
    <message>
        <source>move of a session</source>
        <translation>traslado de una sesión</translation>
    </message>
    <message>
        <source>There is no week there in this season.</source>
        <translation>Ahí no hay ninguna semana en esta temporada.</translation>
    </message>
    <message>
        <source>Week %1 is copied.</source>
        <translation>La semana %1 está copiada.</translation>
    </message>
    <message>
        <source>One of the two weeks has a date that is in no calendar.</source>
        <translation>Una de las dos semanas tiene una fecha que no está en ningún calendario.</translation>
    </message>
    <message>
        <source>copy of a week</source>
        <translation>copia de una semana</translation>
    </message>
    <message>
        <source>Week %1 now holds the copied week; %2 sessions that stood there went. Ctrl+Z brings them back.</source>
        <translation>La semana %1 contiene ahora la semana copiada; se fueron %2 sesiones que había ahí. Ctrl+Z las recupera.</translation>
    </message>
    <message>
        <source>repeated weeks</source>
        <translation>semanas repetidas</translation>
    </message>
    <message>
        <source>%1 weeks were written.</source>
        <translation>Se escribieron %1 semanas.</translation>
    </message>
    <message>
        <source>There is no week behind the chosen ones.</source>
        <translation>No hay ninguna semana detrás de las elegidas.</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>How often do the %1 chosen weeks follow themselves?
Sessions, totals, load, cycles, place, tests and goals of the weeks behind are replaced; their events and health stay.</source>
        <translation>¿Cuántas veces se repiten las %1 semanas elegidas?
Se sustituyen sesiones, totales, carga, ciclos, lugar, pruebas y objetivos de las semanas siguientes; sus eventos y su salud se mantienen.</translation>
    </message>
    <message>
        <source>emptied weeks</source>
        <translation>semanas vaciadas</translation>
    </message>
    <message>
        <source>planned totals</source>
        <translation>totales planificados</translation>
    </message>
    <message>
        <source>new week</source>
        <translation>semana nueva</translation>
    </message>
    <message>
        <source>removal of the last week</source>
        <translation>eliminación de la última semana</translation>
    </message>
    <message>
        <source>Totals of the week</source>
        <translation>Totales de la semana</translation>
    </message>
    <message>
        <source>Totals of the chosen weeks</source>
        <translation>Totales de las semanas elegidas</translation>
    </message>
    <message>
        <source>Totals of the mesocycle</source>
        <translation>Totales del mesociclo</translation>
    </message>
    <message>
        <source>Totals of the season</source>
        <translation>Totales de la temporada</translation>
    </message>
    <message>
        <source>planned sessions</source>
        <translation>sesiones planificadas</translation>
    </message>
    <message>
        <source>planned quantity</source>
        <translation>cantidad planificada</translation>
    </message>
    <message>
        <source>Add an athlete with Ctrl+N to begin a plan.</source>
        <translation>Añade un deportista con Ctrl+N para empezar un plan.</translation>
    </message>
    <message>
        <source>Add a season with Ctrl+Shift+N: 52 empty weeks to fill.</source>
        <translation>Añade una temporada con Ctrl+Mayús+N: 52 semanas vacías para rellenar.</translation>
    </message>
    <message>
        <source>This season has no weeks. Add one with the menu Week.</source>
        <translation>Esta temporada no tiene semanas. Añade una con el menú Semana.</translation>
    </message>
    <message>
        <source>This season has no week of today.</source>
        <translation>Esta temporada no tiene la semana de hoy.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlannedAthleteDialog</name>
    <message>
        <source>Athlete</source>
        <translation>Deportista</translation>
    </message>
    <message>
        <source>&amp;Picture…</source>
        <translation>&amp;Foto…</translation>
    </message>
    <message>
        <source>&amp;No picture</source>
        <translation>&amp;Sin foto</translation>
    </message>
    <message>
        <source>Picture of the athlete</source>
        <translation>Foto del deportista</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg)</source>
        <translation>Imágenes (*.png *.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>&amp;Categories</source>
        <translation>Cate&amp;gorías</translation>
    </message>
    <message>
        <source>&amp;E-mail</source>
        <translation>&amp;Correo</translation>
    </message>
    <message>
        <source>P&amp;hone</source>
        <translation>&amp;Teléfono</translation>
    </message>
    <message>
        <source>The file is no picture, cannot be read, or is larger than 8 MB.</source>
        <translation>El archivo no es una imagen, no se puede leer o supera los 8 MB.</translation>
    </message>
    <message>
        <source>The athlete needs a name.</source>
        <translation>El deportista necesita un nombre.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlanningDocument</name>
    <message>
        <source>online planning</source>
        <translation>planificación en línea</translation>
    </message>
    <message>
        <source>The planning “%1” will be replaced.</source>
        <translation>La planificación «%1» se va a sustituir.</translation>
    </message>
    <message>
        <source>1 athlete</source>
        <translation>1 deportista</translation>
    </message>
    <message numerus="yes">
        <source>%n athletes</source>
        <translation>
            <numerusform>%n deportista</numerusform>
            <numerusform>%n deportistas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlanningWindow</name>
    <message>
        <source>&amp;Athlete</source>
        <translation>&amp;Deportista</translation>
    </message>
    <message>
        <source>&amp;New athlete…</source>
        <translation>&amp;Nuevo deportista…</translation>
    </message>
    <message>
        <source>&amp;Edit the athlete…</source>
        <translation>&amp;Editar el deportista…</translation>
    </message>
    <message>
        <source>&amp;Remove the athlete</source>
        <translation>&amp;Quitar el deportista</translation>
    </message>
    <message>
        <source>New &amp;season</source>
        <translation>Nueva te&amp;mporada</translation>
    </message>
    <message>
        <source>Remove the s&amp;eason</source>
        <translation>Quitar la &amp;temporada</translation>
    </message>
    <message>
        <source>&amp;Session</source>
        <translation>&amp;Sesión</translation>
    </message>
    <message>
        <source>Sessions are in the plan: show &amp;it</source>
        <translation>&amp;Las sesiones están en el plan: mostrarlo</translation>
    </message>
    <message>
        <source>&amp;New session…</source>
        <translation>&amp;Nueva sesión…</translation>
    </message>
    <message>
        <source>&amp;Edit the session…</source>
        <translation>&amp;Editar la sesión…</translation>
    </message>
    <message>
        <source>&amp;Remove the session</source>
        <translation>&amp;Quitar la sesión</translation>
    </message>
    <message>
        <source>&amp;Copy the session</source>
        <translation>&amp;Copiar la sesión</translation>
    </message>
    <message>
        <source>&amp;Paste the session</source>
        <translation>&amp;Pegar la sesión</translation>
    </message>
    <message>
        <source>Move to the week &amp;before</source>
        <translation>Pasar a la semana &amp;anterior</translation>
    </message>
    <message>
        <source>Move to the week be&amp;hind</source>
        <translation>Pasar a la semana &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>Se&amp;mana</translation>
    </message>
    <message>
        <source>&amp;Previous week</source>
        <translation>Semana &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next week</source>
        <translation>Semana &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;This week</source>
        <translation>&amp;Esta semana</translation>
    </message>
    <message>
        <source>&amp;Copy the week</source>
        <translation>&amp;Copiar la semana</translation>
    </message>
    <message>
        <source>Paste the &amp;week</source>
        <translation>&amp;Pegar la semana</translation>
    </message>
    <message>
        <source>&amp;Repeat the chosen weeks…</source>
        <translation>&amp;Repetir las semanas elegidas…</translation>
    </message>
    <message>
        <source>&amp;Empty the chosen weeks</source>
        <translation>&amp;Vaciar las semanas elegidas</translation>
    </message>
    <message>
        <source>P&amp;lan what is in the sessions</source>
        <translation>P&amp;lanificar lo que hay en las sesiones</translation>
    </message>
    <message>
        <source>&amp;Add a week at the end</source>
        <translation>Aña&amp;dir una semana al final</translation>
    </message>
    <message>
        <source>Re&amp;move the last week</source>
        <translation>&amp;Quitar la última semana</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Find an athlete</source>
        <translation>Buscar &amp;un deportista</translation>
    </message>
    <message>
        <source>&amp;Reports: preview, PDF, print…</source>
        <translation>&amp;Informes: vista previa, PDF, impresión…</translation>
    </message>
    <message>
        <source>Week as a &amp;calendar file…</source>
        <translation>Semana como archivo de &amp;calendario…</translation>
    </message>
    <message>
        <source>Import heart-rate &amp;variability…</source>
        <translation>Importar &amp;variabilidad de la frecuencia cardiaca…</translation>
    </message>
    <message>
        <source>Open an o&amp;nline planning…</source>
        <translation>Abrir una &amp;planificación en línea…</translation>
    </message>
    <message>
        <source>Sa&amp;ve online…</source>
        <translation>Guardar en &amp;línea…</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Deportistas</translation>
    </message>
    <message>
        <source>Planning</source>
        <translation>Planificación</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Objetivos</translation>
    </message>
    <message>
        <source>Body and heart</source>
        <translation>Cuerpo y corazón</translation>
    </message>
    <message>
        <source>Gym</source>
        <translation>Gimnasio</translation>
    </message>
    <message>
        <source>Ranking and races</source>
        <translation>Ranking y carreras</translation>
    </message>
    <message>
        <source>Interval sessions</source>
        <translation>Sesiones de intervalos</translation>
    </message>
    <message>
        <source>%1 measurements of heart-rate variability of this older file hold only a highest and a lowest value, for which the present version has no place: their dates are taken over, their values are not. Saving keeps the file as it was beside the new one.</source>
        <translation>%1 mediciones de variabilidad de la frecuencia cardiaca de este archivo antiguo solo contienen un valor máximo y uno mínimo, para los que la versión actual no tiene lugar: se incorporan sus fechas, pero no sus valores. Al guardar se conserva el archivo tal como era junto al nuevo.</translation>
    </message>
    <message>
        <source>new athlete</source>
        <translation>deportista nuevo</translation>
    </message>
    <message>
        <source>athlete</source>
        <translation>deportista</translation>
    </message>
    <message>
        <source>removal of an athlete</source>
        <translation>eliminación de un deportista</translation>
    </message>
    <message>
        <source>Add an athlete first.</source>
        <translation>Añade antes un deportista.</translation>
    </message>
    <message>
        <source>new season</source>
        <translation>temporada nueva</translation>
    </message>
    <message>
        <source>removal of a season</source>
        <translation>eliminación de una temporada</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlayMenu</name>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproducir</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>&amp;Reproducir o pausar</translation>
    </message>
    <message>
        <source>Backwards, again: faster</source>
        <translation>Hacia atrás; otra vez: más rápido</translation>
    </message>
    <message>
        <source>Stop; held, J and L step a frame</source>
        <translation>Parar; si se mantiene, J y L avanzan un fotograma</translation>
    </message>
    <message>
        <source>Forwards, again: faster</source>
        <translation>Hacia adelante; otra vez: más rápido</translation>
    </message>
    <message>
        <source>Slow motion backwards</source>
        <translation>Cámara lenta hacia atrás</translation>
    </message>
    <message>
        <source>Slow motion forward</source>
        <translation>Cámara lenta hacia adelante</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>Más &amp;lento</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>Más rá&amp;pido</translation>
    </message>
    <message>
        <source>&amp;Normal speed</source>
        <translation>Velocidad &amp;normal</translation>
    </message>
    <message>
        <source>S&amp;ound, at normal speed</source>
        <translation>&amp;Sonido, a velocidad normal</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>Un fotograma atrás</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>Un fotograma adelante</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>Un segundo atrás</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>Un segundo adelante</translation>
    </message>
    <message>
        <source>Ten seconds back</source>
        <translation>Diez segundos atrás</translation>
    </message>
    <message>
        <source>Ten seconds forward</source>
        <translation>Diez segundos adelante</translation>
    </message>
    <message>
        <source>To the beginning</source>
        <translation>Al principio</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>Al final</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PlotInteraction</name>
    <message>
        <source>Show everything</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Show all series</source>
        <translation>Mostrar todas las series</translation>
    </message>
    <message>
        <source>Copy the picture</source>
        <translation>Copiar la imagen</translation>
    </message>
    <message>
        <source>Copy the values</source>
        <translation>Copiar los valores</translation>
    </message>
    <message>
        <source>Save as picture (PNG)…</source>
        <translation>Guardar como imagen (PNG)…</translation>
    </message>
    <message>
        <source>Save as drawing (SVG)…</source>
        <translation>Guardar como dibujo (SVG)…</translation>
    </message>
    <message>
        <source>Save as table (CSV)…</source>
        <translation>Guardar como tabla (CSV)…</translation>
    </message>
    <message>
        <source>The chart was not saved</source>
        <translation>El gráfico no se ha guardado</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PotentialPanel</name>
    <message>
        <source>The best of every own section put together, without penalties. What is left is how far the best run is from it.</source>
        <translation>Lo mejor de cada tramo propio, reunido, sin penalizaciones. Lo que queda es la distancia que le falta a la mejor manga.</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Deportista</translation>
    </message>
    <message>
        <source>Potential</source>
        <translation>Potencial</translation>
    </message>
    <message>
        <source>Best run</source>
        <translation>Mejor manga</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Resta</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::PowerMeterDialog</name>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Why it is refused</source>
        <translation>Por qué se rechaza</translation>
    </message>
    <message>
        <source>Import power-meter data</source>
        <translation>Importar datos del medidor de potencia</translation>
    </message>
    <message>
        <source>Samples: %1. Lines refused: %2.</source>
        <translation>Muestras: %1. Líneas rechazadas: %2.</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>It &amp;begins after the session&apos;s start by</source>
        <translation>&amp;Empieza después del inicio de la sesión en</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>%1 of them lie in the session, which lasts %2.</source>
        <translation>%1 de ellas están en la sesión, que dura %2.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ProgressionPanel</name>
    <message>
        <source>Behind the winners</source>
        <translation>Respecto a los ganadores</translation>
    </message>
    <message>
        <source>Behind the fastest splits</source>
        <translation>Respecto a los parciales más rápidos</translation>
    </message>
    <message>
        <source>Behind whom</source>
        <translation>Respecto a quién</translation>
    </message>
    <message>
        <source>The winners&apos; totals have penalties in them, the fastest splits have not</source>
        <translation>Los totales de los ganadores incluyen penalizaciones; los parciales más rápidos, no</translation>
    </message>
    <message>
        <source>The team has no race of this athlete in these years.</source>
        <translation>El equipo no tiene ninguna carrera de este deportista en estos años.</translation>
    </message>
    <message>
        <source>Open the &amp;winner&apos;s run</source>
        <translation>Abrir la manga del &amp;ganador</translation>
    </message>
    <message>
        <source>In split taking, where a split file has the run</source>
        <translation>En la toma de parciales, si un archivo de parciales tiene la manga</translation>
    </message>
    <message>
        <source>With a missed gate: left out of spread, trend and changes</source>
        <translation>Con un salto: no entra en variación, tendencia ni cambios</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Race</source>
        <translation>Carrera</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Winner&apos;s</source>
        <translation>Del ganador</translation>
    </message>
    <message>
        <source>Winner</source>
        <translation>Ganador</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>Behind, %</source>
        <translation>Diferencia, %</translation>
    </message>
    <message>
        <source>On splits, %</source>
        <translation>En parciales, %</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>The way of %1</source>
        <translation>La evolución de %1</translation>
    </message>
    <message>
        <source>Behind the winner, %</source>
        <translation>Respecto al ganador, %</translation>
    </message>
    <message>
        <source>Behind the fastest splits, %</source>
        <translation>Respecto a los parciales más rápidos, %</translation>
    </message>
    <message>
        <source>Heats</source>
        <translation>Clasificatorias</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>Semifinal</source>
        <translation>Semifinal</translation>
    </message>
    <message>
        <source>Other runs</source>
        <translation>Otras mangas</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Porcentaje</translation>
    </message>
    <message>
        <source>Missed gate</source>
        <translation>Salto de puerta</translation>
    </message>
    <message>
        <source>3rd of finals, median</source>
        <translation>3.º de las finales, mediana</translation>
    </message>
    <message>
        <source>A run with a missed gate stands in the table alone.</source>
        <translation>Una manga con salto está solo en la tabla.</translation>
    </message>
    <message numerus="yes">
        <source>%n runs with a missed gate stand in the table alone.</source>
        <translation>
            <numerusform>%n manga con salto está solo en la tabla.</numerusform>
            <numerusform>%n mangas con salto están solo en la tabla.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::QueryEdit</name>
    <message>
        <source>Query</source>
        <translation>Consulta</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::QueryFault</name>
    <message>
        <source>%1 (at letter %2)</source>
        <translation>%1 (en la letra %2)</translation>
    </message>
    <message>
        <source>Writes “%1” there</source>
        <translation>Escribe ahí «%1»</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::QueryForm</name>
    <message>
        <source>Fi&amp;nd</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>Words that its words begin with; a whole name in quotes</source>
        <translation>Palabras con las que empiezan las suyas; un nombre entero entre comillas</translation>
    </message>
    <message>
        <source>Seconds, or 1:32.45; %1 in front leaves out the limit itself</source>
        <translation>Segundos, o 1:32.45; con %1 delante se excluye el propio límite</translation>
    </message>
    <message>
        <source>At l&amp;east</source>
        <translation>Como míni&amp;mo</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>sin límite</translation>
    </message>
    <message>
        <source>At &amp;most</source>
        <translation>Como má&amp;ximo</translation>
    </message>
    <message>
        <source>G&amp;roups by</source>
        <translation>A&amp;grupar por</translation>
    </message>
    <message>
        <source>Up to three columns with commas between them</source>
        <translation>Hasta tres columnas separadas por comas</translation>
    </message>
    <message>
        <source>no groups</source>
        <translation>sin grupos</translation>
    </message>
    <message>
        <source>&amp;Best</source>
        <translation>Me&amp;jores</translation>
    </message>
    <message>
        <source>all</source>
        <translation>todas</translation>
    </message>
    <message>
        <source>S&amp;ort by</source>
        <translation>&amp;Ordenar por</translation>
    </message>
    <message>
        <source>as found</source>
        <translation>según aparecen</translation>
    </message>
    <message>
        <source>From the largest do&amp;wn</source>
        <translation>De mayor a me&amp;nor</translation>
    </message>
    <message>
        <source>Only the f&amp;irst</source>
        <translation>&amp;Solo las primeras</translation>
    </message>
    <message>
        <source>Near it: %1</source>
        <translation>Parecidos: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceActions</name>
    <message>
        <source>Open it &amp;again</source>
        <translation>V&amp;olver a abrir</translation>
    </message>
    <message>
        <source>Ti&amp;me it on video</source>
        <translation>&amp;Cronometrar en vídeo</translation>
    </message>
    <message>
        <source>&amp;Report: preview, PDF, print…</source>
        <translation>&amp;Informe: vista previa, PDF, impresión…</translation>
    </message>
    <message>
        <source>Save the table as &amp;CSV…</source>
        <translation>Guardar la tabla como CS&amp;V…</translation>
    </message>
    <message>
        <source>Cop&amp;y the selected runs</source>
        <translation>Co&amp;piar las mangas seleccionadas</translation>
    </message>
    <message>
        <source>&amp;Times</source>
        <translation>Tiemp&amp;os</translation>
    </message>
    <message>
        <source>&amp;Gap to the reference</source>
        <translation>&amp;Diferencia con la referencia</translation>
    </message>
    <message>
        <source>&amp;Place</source>
        <translation>&amp;Puesto</translation>
    </message>
    <message>
        <source>Per&amp;cent behind the best</source>
        <translation>Por&amp;centaje respecto al mejor</translation>
    </message>
    <message>
        <source>Percenti&amp;le</source>
        <translation>Percenti&amp;l</translation>
    </message>
    <message>
        <source>&amp;Reference: the best</source>
        <translation>&amp;Referencia: el mejor</translation>
    </message>
    <message>
        <source>Reference: the &amp;median</source>
        <translation>Referencia: la &amp;mediana</translation>
    </message>
    <message>
        <source>Reference: the &amp;selected row</source>
        <translation>Referencia: la fila &amp;seleccionada</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabla</translation>
    </message>
    <message>
        <source>&amp;Accumulated times</source>
        <translation>Tiempos &amp;acumulados</translation>
    </message>
    <message>
        <source>Penalties &amp;included</source>
        <translation>Penalizaciones &amp;incluidas</translation>
    </message>
    <message>
        <source>Penalties &amp;visible</source>
        <translation>Penalizaciones &amp;visibles</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>Colum&amp;nas</translation>
    </message>
    <message>
        <source>&amp;Find a name</source>
        <translation>&amp;Buscar un nombre</translation>
    </message>
    <message>
        <source>Show all r&amp;uns</source>
        <translation>Mostrar todas las man&amp;gas</translation>
    </message>
    <message>
        <source>&amp;Tint cells by rank</source>
        <translation>Colorear las celdas por p&amp;uesto</translation>
    </message>
    <message>
        <source>&amp;Blue to orange instead of green to red</source>
        <translation>D&amp;e azul a naranja en vez de verde a rojo</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Comparar</translation>
    </message>
    <message>
        <source>&amp;Ideal run on top</source>
        <translation>Manga &amp;ideal arriba</translation>
    </message>
    <message>
        <source>A &amp;run of another race…</source>
        <translation>Una &amp;manga de otra carrera…</translation>
    </message>
    <message>
        <source>&amp;Films of the selected runs…</source>
        <translation>&amp;Vídeos de las mangas seleccionadas…</translation>
    </message>
    <message>
        <source>With &amp;official results…</source>
        <translation>Con los resultados &amp;oficiales…</translation>
    </message>
    <message>
        <source>The results list as a &amp;table</source>
        <translation>&amp;La lista de resultados como tabla</translation>
    </message>
    <message>
        <source>&amp;Clear the comparison</source>
        <translation>&amp;Quitar la comparación</translation>
    </message>
    <message>
        <source>Ch&amp;arts</source>
        <translation>&amp;Gráficos</translation>
    </message>
    <message>
        <source>&amp;Gaps along the course</source>
        <translation>&amp;Diferencias a lo largo del recorrido</translation>
    </message>
    <message>
        <source>T&amp;imes of the sections</source>
        <translation>T&amp;iempos de los tramos</translation>
    </message>
    <message>
        <source>P&amp;enalties at the gates</source>
        <translation>Penalizaciones en &amp;las puertas</translation>
    </message>
    <message>
        <source>&amp;Totals</source>
        <translation>Totale&amp;s</translation>
    </message>
    <message>
        <source>&amp;Penalties</source>
        <translation>&amp;Penalizaciones</translation>
    </message>
    <message>
        <source>Time &amp;losses</source>
        <translation>Pérdidas de &amp;tiempo</translation>
    </message>
    <message>
        <source>Show the &amp;whole chart</source>
        <translation>Mostrar el gráfico &amp;entero</translation>
    </message>
    <message>
        <source>&amp;Save the chart…</source>
        <translation>Guardar el grá&amp;fico…</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Ventana</translation>
    </message>
    <message>
        <source>Races &amp;side by side</source>
        <translation>Carreras lado a &amp;lado</translation>
    </message>
    <message>
        <source>&amp;Larger: the table or the chart alone</source>
        <translation>&amp;Más grande: solo la tabla o el gráfico</translation>
    </message>
    <message>
        <source>&amp;Next race</source>
        <translation>Carrera &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous race</source>
        <translation>Carrera &amp;anterior</translation>
    </message>
    <message>
        <source>Pa&amp;ge for an athlete…</source>
        <translation>Pá&amp;gina para un deportista…</translation>
    </message>
    <message>
        <source>&amp;Draw the course…</source>
        <translation>Di&amp;bujar el recorrido…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceDocument</name>
    <message>
        <source>A file of version %1. It could not be rewritten in the current version and stays as it is.</source>
        <translation>Archivo de la versión %1. No se pudo reescribir en la versión actual y se queda como está.</translation>
    </message>
    <message>
        <source>A file of version %1, rewritten in the current one. The previous file is kept as %2.</source>
        <translation>Archivo de la versión %1, reescrito en la actual. El archivo anterior se conserva como %2.</translation>
    </message>
    <message>
        <source>%1 gates, %2 upstream</source>
        <translation>%1 puertas, %2 remontes</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceHeader</name>
    <message>
        <source>1 run</source>
        <translation>1 manga</translation>
    </message>
    <message>
        <source>%1 of %2 runs</source>
        <translation>%1 de %2 mangas</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>All phases</source>
        <translation>Todas las fases</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Todas las categorías</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n manga</numerusform>
            <numerusform>%n mangas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceKeeping</name>
    <message>
        <source>“%1” is open in another window</source>
        <translation>«%1» está abierto en otra ventana</translation>
    </message>
    <message>
        <source>Save and close it there, then keep the table. Nothing was written.</source>
        <translation>Guárdalo y ciérralo allí; después conserva la tabla. No se ha escrito nada.</translation>
    </message>
    <message>
        <source>Keeping the table with the race…</source>
        <translation>Conservando la tabla con la carrera…</translation>
    </message>
    <message>
        <source>“%1” keeps a table already</source>
        <translation>«%1» ya conserva una tabla</translation>
    </message>
    <message>
        <source>This one takes its place. The official results themselves stay.</source>
        <translation>Esta ocupa su lugar. Los resultados oficiales se mantienen.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>The table was not kept with “%1”</source>
        <translation>La tabla no se conservó con «%1»</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceView</name>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Manga</translation>
    </message>
    <message>
        <source>I&amp;deal run</source>
        <translation>Manga &amp;ideal</translation>
    </message>
    <message>
        <source>Pote&amp;ntial</source>
        <translation>Pote&amp;ncial</translation>
    </message>
    <message>
        <source>&amp;Motion</source>
        <translation>M&amp;ovimiento</translation>
    </message>
    <message>
        <source>Open it again</source>
        <translation>Volver a abrir</translation>
    </message>
    <message>
        <source>gaps to the best</source>
        <translation>diferencias con el mejor</translation>
    </message>
    <message>
        <source>gaps to the median</source>
        <translation>diferencias con la mediana</translation>
    </message>
    <message>
        <source>gaps to %1</source>
        <translation>diferencias con %1</translation>
    </message>
    <message>
        <source>the ideal run</source>
        <translation>la manga ideal</translation>
    </message>
    <message>
        <source>This course has %1 sections. The colours and the penalties in brackets are those of the first ten; place, gap and percent are there for all of them.</source>
        <translation>Este recorrido tiene %1 tramos. Los colores y las penalizaciones entre paréntesis son los de los diez primeros; el puesto, la diferencia y el porcentaje están para todos.</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Guardar la tabla</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Texto separado por punto y coma (*.csv)</translation>
    </message>
    <message>
        <source>The file on the disk is newer than what you see.</source>
        <translation>El archivo del disco es más reciente que lo que ves.</translation>
    </message>
    <message>
        <source>The file is not on the disk any more. What you see is what it held.</source>
        <translation>El archivo ya no está en el disco. Lo que ves es lo que contenía.</translation>
    </message>
    <message>
        <source>All columns in the order of the course</source>
        <translation>Todas las columnas en el orden del recorrido</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RaceWindow</name>
    <message>
        <source>Split files</source>
        <translation>Archivos de parciales</translation>
    </message>
    <message>
        <source>Races</source>
        <translation>Carreras</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RacesSection</name>
    <message>
        <source>No runs yet: take them from the season&apos;s split files.</source>
        <translation>Aún no hay mangas: tómalas de los archivos de parciales de la temporada.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; runs, &lt;b&gt;%2&lt;/b&gt; of them clean (%3 %)  ·  touches per run &lt;b&gt;%4&lt;/b&gt;  ·  missed gates per run &lt;b&gt;%5&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; mangas, &lt;b&gt;%2&lt;/b&gt; de ellas limpias (%3&#xa0;%)  ·  toques por manga &lt;b&gt;%4&lt;/b&gt;  ·  saltos por manga &lt;b&gt;%5&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Take from split files…</source>
        <translation>Tomar de archivos de parciales…</translation>
    </message>
    <message>
        <source>Races and penalties</source>
        <translation>Carreras y penalizaciones</translation>
    </message>
    <message>
        <source>Choose &amp;files…</source>
        <translation>Elegir &amp;archivos…</translation>
    </message>
    <message>
        <source>Choose a f&amp;older…</source>
        <translation>Elegir una &amp;carpeta…</translation>
    </message>
    <message>
        <source>Files and folders can be dropped here too</source>
        <translation>También se pueden soltar aquí archivos y carpetas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RadioBox</name>
    <message>
        <source>Team radio</source>
        <translation>Radio del equipo</translation>
    </message>
    <message>
        <source>Records what you say about the run</source>
        <translation>Graba lo que dices sobre la manga</translation>
    </message>
    <message>
        <source>Plays the recording</source>
        <translation>Reproduce la grabación</translation>
    </message>
    <message>
        <source>Attach…</source>
        <translation>Adjuntar…</translation>
    </message>
    <message>
        <source>Takes a sound file into the split file</source>
        <translation>Incorpora un archivo de sonido al archivo de parciales</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>Writes the recording into a file of its own</source>
        <translation>Escribe la grabación en un archivo propio</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Moves the recording up</source>
        <translation>Sube la grabación</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Takes the recording out of the split file</source>
        <translation>Saca la grabación del archivo de parciales</translation>
    </message>
    <message>
        <source>%1 · %2, %3</source>
        <translation>%1 · %2, %3</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Grabar</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Recording, %1 s</source>
        <translation>Grabando, %1 s</translation>
    </message>
    <message>
        <source>Record what you say to the athlete, or attach a voice message.</source>
        <translation>Graba lo que le dices al deportista, o adjunta un mensaje de voz.</translation>
    </message>
    <message>
        <source>This computer has no microphone that can be used.</source>
        <translation>Este ordenador no tiene ningún micrófono que se pueda usar.</translation>
    </message>
    <message>
        <source>The microphone gave no sound.</source>
        <translation>El micrófono no dio sonido.</translation>
    </message>
    <message>
        <source>Attach a recording</source>
        <translation>Adjuntar una grabación</translation>
    </message>
    <message>
        <source>Sounds (*.m4a *.mp3 *.wav *.aiff *.aif *.caf *.ogg *.opus *.flac *.aac *.amr);;All files (*)</source>
        <translation>Sonidos (*.m4a *.mp3 *.wav *.aiff *.aif *.caf *.ogg *.opus *.flac *.aac *.amr);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>%1 has %2: recordings up to %3 can be kept in a split file.</source>
        <translation>%1 tiene %2: en un archivo de parciales caben grabaciones de hasta %3.</translation>
    </message>
    <message>
        <source>%1 cannot be played: %2</source>
        <translation>%1 no se puede reproducir: %2</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 no se puede leer: %2</translation>
    </message>
    <message>
        <source>Recording %1 cannot be played: %2</source>
        <translation>La grabación %1 no se puede reproducir: %2</translation>
    </message>
    <message>
        <source>recording %1</source>
        <translation>grabación %1</translation>
    </message>
    <message>
        <source>Save the recording</source>
        <translation>Guardar la grabación</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RangeLine</name>
    <message>
        <source>Click to go there. Drag the ends of the coloured part to choose what the film shows; near a split they take it.</source>
        <translation>Un clic va ahí. Arrastra los extremos de la parte coloreada para elegir lo que muestra el vídeo; cerca de un parcial lo toman.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RankingModel</name>
    <message>
        <source>%1 (was %2)</source>
        <translation>%1 (era %2)</translation>
    </message>
    <message>
        <source>was %1, now %2</source>
        <translation>era %1, ahora %2</translation>
    </message>
    <message>
        <source>A time of 0 counts as the formula says and puts the athlete far in front. Edit &gt; Make times of 0 missing results.</source>
        <translation>Un tiempo de 0 cuenta como dice la fórmula y coloca al deportista muy por delante. Editar &gt; Convertir los tiempos de 0 en resultados ausentes.</translation>
    </message>
    <message>
        <source>Dropped: the worst result</source>
        <translation>Descartado: el peor resultado</translation>
    </message>
    <message>
        <source>Dropped too: a bonus stands among the results</source>
        <translation>Descartado también: entre los resultados hay una bonificación</translation>
    </message>
    <message>
        <source>Counted</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
    <message>
        <source>SURNAME Name</source>
        <translation>APELLIDO Nombre</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Puntuación</translation>
    </message>
    <message>
        <source>Bonus</source>
        <translation>Bonificación</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Club</translation>
    </message>
    <message>
        <source>Pre</source>
        <translation>Pre</translation>
    </message>
    <message>
        <source>correction</source>
        <translation>corrección</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Pen</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Tried only. Really: %1</source>
        <translation>Solo de prueba. En realidad: %1</translation>
    </message>
    <message>
        <source>no result</source>
        <translation>sin resultado</translation>
    </message>
    <message>
        <source>Enter the time first: the penalty belongs to it.</source>
        <translation>Introduce antes el tiempo: la penalización va con él.</translation>
    </message>
    <message>
        <source>penalty</source>
        <translation>penalización</translation>
    </message>
    <message>
        <source>result removed</source>
        <translation>resultado quitado</translation>
    </message>
    <message>
        <source>result</source>
        <translation>resultado</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RankingPanel</name>
    <message>
        <source>entry of the ranking list</source>
        <translation>entrada del ranking</translation>
    </message>
    <message>
        <source>removal from the ranking list</source>
        <translation>eliminación del ranking</translation>
    </message>
    <message>
        <source>Take the season&apos;s statistics</source>
        <translation>Tomar la estadística de la temporada</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Archivos de parciales (*.kvx);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>There is no split file in it.</source>
        <translation>No contiene ningún archivo de parciales.</translation>
    </message>
    <message>
        <source>Reading split files…</source>
        <translation>Leyendo archivos de parciales…</translation>
    </message>
    <message>
        <source>season statistics from split files</source>
        <translation>estadística de la temporada de archivos de parciales</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RankingSection</name>
    <message>
        <source>Add a release</source>
        <translation>Añadir una edición</translation>
    </message>
    <message>
        <source>Remove the release</source>
        <translation>Quitar la edición</translation>
    </message>
    <message>
        <source>Ranking list</source>
        <translation>Ranking</translation>
    </message>
    <message>
        <source>Add release</source>
        <translation>Añadir edición</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Edición</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RatesPanel</name>
    <message>
        <source>Passages</source>
        <translation>Pasos</translation>
    </message>
    <message>
        <source>Runs that came past</source>
        <translation>Mangas que pasaron por ahí</translation>
    </message>
    <message>
        <source>Touches</source>
        <translation>Toques</translation>
    </message>
    <message>
        <source>Rate %</source>
        <translation>Frec. %</translation>
    </message>
    <message>
        <source>Touches of 100 passages</source>
        <translation>Toques por cada 100 pasos</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#xa0;%</translation>
    </message>
    <message>
        <source>Where the rate lies with 90 %</source>
        <translation>Dónde está la frecuencia con un 90&#xa0;%</translation>
    </message>
    <message>
        <source>Ranked %</source>
        <translation>Orden %</translation>
    </message>
    <message>
        <source>Drawn towards what all have in common, the more the fewer the passages</source>
        <translation>Acercada a lo que todas tienen en común, tanto más cuantos menos pasos</translation>
    </message>
    <message>
        <source>Ranked 90 %</source>
        <translation>Orden 90&#xa0;%</translation>
    </message>
    <message>
        <source>Where the ranked rate lies</source>
        <translation>Dónde está la frecuencia ordenada</translation>
    </message>
    <message>
        <source>Above %</source>
        <translation>Encima %</translation>
    </message>
    <message>
        <source>The chance to be above what all have in common; from 95 the row is bold</source>
        <translation>La probabilidad de estar por encima de lo que todas tienen en común; desde 95 la fila va en negrita</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Saltos</translation>
    </message>
    <message>
        <source>Missed gates</source>
        <translation>Saltos</translation>
    </message>
    <message>
        <source>Missed %</source>
        <translation>Saltos %</translation>
    </message>
    <message>
        <source>Missed 90 %</source>
        <translation>Saltos 90&#xa0;%</translation>
    </message>
    <message>
        <source>&amp;Rates</source>
        <translation>&amp;Frecuencias</translation>
    </message>
    <message>
        <source>No run that is asked for has its penalties by gate.</source>
        <translation>Ninguna de las mangas pedidas tiene sus penalizaciones por puerta.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ReadingProgress</name>
    <message>
        <source>Stop reading</source>
        <translation>Dejar de leer</translation>
    </message>
    <message>
        <source>%1 of %2 files</source>
        <translation>%1 de %2 archivos</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordedSoundPlayer</name>
    <message>
        <source>This computer has no loudspeaker.</source>
        <translation>Este ordenador no tiene altavoz.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingDialog</name>
    <message>
        <source>The film begins %1 after the recording.</source>
        <translation>El vídeo empieza %1 después de la grabación.</translation>
    </message>
    <message>
        <source>The film begins %1 before the recording.</source>
        <translation>El vídeo empieza %1 antes de la grabación.</translation>
    </message>
    <message>
        <source>Its clock gains %1 s in 100 s, which is taken out.</source>
        <translation>Su reloj adelanta %1 s cada 100 s; se compensa.</translation>
    </message>
    <message>
        <source>The recording is of another athlete and another day.</source>
        <translation>La grabación es de otro deportista y de otro día.</translation>
    </message>
    <message>
        <source>The recording is of another athlete.</source>
        <translation>La grabación es de otro deportista.</translation>
    </message>
    <message>
        <source>The recording is of another day.</source>
        <translation>La grabación es de otro día.</translation>
    </message>
    <message>
        <source>Recording of a run</source>
        <translation>Grabación de una manga</translation>
    </message>
    <message>
        <source>Choose a &amp;recording…</source>
        <translation>Elegir una &amp;grabación…</translation>
    </message>
    <message>
        <source>&amp;Attach the part of this run</source>
        <translation>&amp;Adjuntar la parte de esta manga</translation>
    </message>
    <message>
        <source>Take o&amp;ff what is attached</source>
        <translation>&amp;Quitar lo adjunto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Common moment</source>
        <translation>Momento común</translation>
    </message>
    <message>
        <source>A later one, against drift</source>
        <translation>Uno posterior, contra la deriva</translation>
    </message>
    <message>
        <source>From the film</source>
        <translation>Del vídeo</translation>
    </message>
    <message>
        <source>From the chart</source>
        <translation>Del gráfico</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>film %1</source>
        <translation>vídeo %1</translation>
    </message>
    <message>
        <source>recording %1</source>
        <translation>grabación %1</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Leyendo %1…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>«%1» no se puede abrir</translation>
    </message>
    <message>
        <source>No recording yet</source>
        <translation>Aún no hay grabación</translation>
    </message>
    <message>
        <source>Choose the recording (.kvb) of the run, or drop it here.</source>
        <translation>Elige la grabación (.kvb) de la manga o suéltala aquí.</translation>
    </message>
    <message>
        <source>The boat&apos;s acceleration stands here.</source>
        <translation>Aquí aparece la aceleración del barco.</translation>
    </message>
    <message>
        <source>Find a moment that film and recording both show, such as the first stroke or a hit on the boat: go there in the film, click it in the chart, and set both.</source>
        <translation>Busca un momento que muestren el vídeo y la grabación, como la primera palada o un golpe en el barco: ve a él en el vídeo, haz clic en él en el gráfico y fija los dos.</translation>
    </message>
    <message>
        <source>Forward acceleration</source>
        <translation>Aceleración hacia adelante</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Aceleración</translation>
    </message>
    <message>
        <source>Yaw rate</source>
        <translation>Velocidad de guiñada</translation>
    </message>
    <message>
        <source>film –</source>
        <translation>vídeo –</translation>
    </message>
    <message>
        <source>recording –</source>
        <translation>grabación –</translation>
    </message>
    <message>
        <source>The run has to be marked first: its start and its splits.</source>
        <translation>Antes hay que marcar la manga: su salida y sus parciales.</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Grabación: %1</translation>
    </message>
    <message>
        <source>Run: %1</source>
        <translation>Manga: %1</translation>
    </message>
    <message>
        <source>Nothing of the recording lies within the run.</source>
        <translation>Nada de la grabación está dentro de la manga.</translation>
    </message>
    <message>
        <source>The part of %1 is attached.</source>
        <translation>Se adjunta la parte de %1.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingList</name>
    <message>
        <source>%1 a second</source>
        <translation>%1 por segundo</translation>
    </message>
    <message>
        <source>position</source>
        <translation>posición</translation>
    </message>
    <message>
        <source>no position</source>
        <translation>sin posición</translation>
    </message>
    <message>
        <source>heart</source>
        <translation>corazón</translation>
    </message>
    <message>
        <source>no heart</source>
        <translation>sin corazón</translation>
    </message>
    <message>
        <source>watch</source>
        <translation>reloj</translation>
    </message>
    <message>
        <source>no watch</source>
        <translation>sin reloj</translation>
    </message>
    <message>
        <source>looking for strokes…</source>
        <translation>buscando paladas…</translation>
    </message>
    <message>
        <source>%1 strokes, %2 turns</source>
        <translation>%1 paladas, %2 giros</translation>
    </message>
    <message>
        <source>side unknown</source>
        <translation>lado desconocido</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Grabaciones</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingOfRun</name>
    <message>
        <source>recording</source>
        <translation>grabación</translation>
    </message>
    <message>
        <source>recording taken off</source>
        <translation>grabación quitada</translation>
    </message>
    <message>
        <source>Attach it all the same</source>
        <translation>Adjuntarla de todos modos</translation>
    </message>
    <message>
        <source>Recording of the run</source>
        <translation>Grabación de la manga</translation>
    </message>
    <message>
        <source>Recordings (*.kvb);;All files (*)</source>
        <translation>Grabaciones (*.kvb);;Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RecordingPanel</name>
    <message>
        <source>Found from the position</source>
        <translation>Deducido de la posición</translation>
    </message>
    <message>
        <source>Later b&amp;y</source>
        <translation>Retra&amp;so</translation>
    </message>
    <message>
        <source>Drag a curve with Shift, or press A, to move it in time</source>
        <translation>Arrastra una curva con Mayús, o pulsa A, para desplazarla en el tiempo</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>&amp;Mass in motion</source>
        <translation>&amp;Masa en movimiento</translation>
    </message>
    <message>
        <source>Athlete, boat and kit</source>
        <translation>Deportista, barco y equipo</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>&amp;Drag</source>
        <translation>&amp;Resistencia</translation>
    </message>
    <message>
        <source>Resistance of the hull over the square of its speed</source>
        <translation>Resistencia del casco partida por el cuadrado de su velocidad</translation>
    </message>
    <message>
        <source>N·s²/m²</source>
        <translation>N·s²/m²</translation>
    </message>
    <message>
        <source>&amp;Boat</source>
        <translation>&amp;Barco</translation>
    </message>
    <message>
        <source>Kayak</source>
        <translation>Kayak</translation>
    </message>
    <message>
        <source>Canoe</source>
        <translation>Canoa</translation>
    </message>
    <message>
        <source>P&amp;hone</source>
        <translation>&amp;Teléfono</translation>
    </message>
    <message>
        <source>Which side of the phone points to the bow; used where the position does not tell</source>
        <translation>Qué lado del teléfono apunta a la proa; se usa cuando la posición no lo dice</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RenameFilmsDialog</name>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>stays</source>
        <translation>se queda</translation>
    </message>
    <message>
        <source>stays: %1</source>
        <translation>se queda: %1</translation>
    </message>
    <message>
        <source>Rename films</source>
        <translation>Cambiar nombres de vídeos</translation>
    </message>
    <message>
        <source>How the films are to be called: {name}, {category}, {phase}, {bib} and {number} stand for what is known of each. Split files of the folder follow.</source>
        <translation>Cómo se van a llamar los vídeos: {name}, {category}, {phase}, {bib} y {number} representan lo que se sabe de cada uno. Los archivos de parciales de la carpeta se adaptan.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombres</translation>
    </message>
    <message>
        <source>%1 of %2 films get another name.</source>
        <translation>%1 de %2 vídeos reciben otro nombre.</translation>
    </message>
    <message>
        <source>%1 lack what the pattern asks for.</source>
        <translation>A %1 les falta lo que pide el patrón.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RenderQueue</name>
    <message>
        <source>A film is still being composed.</source>
        <translation>Aún se está componiendo un vídeo.</translation>
    </message>
    <message>
        <source>Leaving the program stops that, and nothing of an unfinished film is kept.</source>
        <translation>Al salir del programa eso se detiene, y de un vídeo sin terminar no se conserva nada.</translation>
    </message>
    <message>
        <source>Stop and leave</source>
        <translation>Detener y salir</translation>
    </message>
    <message numerus="yes">
        <source>%n films are still being composed.</source>
        <translation>
            <numerusform>Aún se está componiendo %n vídeo.</numerusform>
            <numerusform>Aún se están componiendo %n vídeos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ReplayBar</name>
    <message>
        <source>Place in the session</source>
        <translation>Lugar en la sesión</translation>
    </message>
    <message>
        <source>Speed of the replay ([ slower, ] faster)</source>
        <translation>Velocidad de la repetición ([ más lenta, ] más rápida)</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Pausa (Espacio)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Reproducir (Espacio)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ReportPreview</name>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documentos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Más pequeño</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Más grande</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Ajustar al ancho</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimir…</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>Guardar como PDF…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>Sin páginas</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Preview – Kavela</source>
        <translation>Vista previa – Kavela</translation>
    </message>
    <message>
        <source>%1, preview – Kavela</source>
        <translation>%1, vista previa – Kavela</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Guardado como %1</translation>
    </message>
    <message>
        <source>Table as shown</source>
        <translation>Tabla tal como se muestra</translation>
    </message>
    <message>
        <source>Race report</source>
        <translation>Informe de la carrera</translation>
    </message>
    <message>
        <source>Run sheet</source>
        <translation>Hoja de la manga</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ResultsDialog</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>Official results from %1</source>
        <translation>Resultados oficiales de %1</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manga</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Type a part of the name for another line; an emptied cell stands for none</source>
        <translation>Escribe una parte del nombre para elegir otra línea; una celda vacía significa ninguna</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Real time now</source>
        <translation>Tiempo real actual</translation>
    </message>
    <message>
        <source>No line</source>
        <translation>Ninguna línea</translation>
    </message>
    <message>
        <source>“%1” stands in %2 lines of the list: it must be in one.</source>
        <translation>«%1» está en %2 líneas de la lista: debe estar en una sola.</translation>
    </message>
    <message>
        <source>%1 lines come into the file. Real time and penalty are taken for %2 of %3 runs: those that are ticked.</source>
        <translation>Entran %1 líneas en el archivo. El tiempo real y la penalización se toman para %2 de %3 mangas: las que están marcadas.</translation>
    </message>
    <message>
        <source>No line was found for %1. A part of the name, typed in the last column, chooses one.</source>
        <translation>No se encontró ninguna línea para %1. Una parte del nombre, escrita en la última columna, elige una.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ResultsPage</name>
    <message>
        <source>→ goes on</source>
        <translation>→ sigue</translation>
    </message>
    <message>
        <source>out</source>
        <translation>fuera</translation>
    </message>
    <message>
        <source>★ wins</source>
        <translation>★ gana</translation>
    </message>
    <message>
        <source>⚠ Not finished: no order was taken.</source>
        <translation>⚠ Sin terminar: no se tomó ningún orden.</translation>
    </message>
    <message>
        <source>⚠ Not finished. Gates without an order: %1.</source>
        <translation>⚠ Sin terminar. Puertas sin orden: %1.</translation>
    </message>
    <message>
        <source>⚠ Not all boats were seen at the last gate.</source>
        <translation>⚠ No se vio a todos los barcos en la última puerta.</translation>
    </message>
    <message>
        <source>Gates without an order: %1.</source>
        <translation>Puertas sin orden: %1.</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finales</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Semifinales</translation>
    </message>
    <message>
        <source>Quarterfinals</source>
        <translation>Cuartos de final</translation>
    </message>
    <message>
        <source>Round %1</source>
        <translation>Ronda %1</translation>
    </message>
    <message>
        <source>Boat</source>
        <translation>Barco</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Gained</source>
        <translation>Ganado</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdido</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Desenlace</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Deportista</translation>
    </message>
    <message>
        <source>Attacks</source>
        <translation>Ataques</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>Logrados</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Éxito</translation>
    </message>
    <message>
        <source>Attacked</source>
        <translation>Atacado</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>Aguantados</translation>
    </message>
    <message>
        <source>Defence</source>
        <translation>Defensa</translation>
    </message>
    <message>
        <source>not told</source>
        <translation>sin indicar</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Dónde</translation>
    </message>
    <message>
        <source>No results yet: they follow from the orders at the gates that are taken on the page of heats.</source>
        <translation>Aún no hay resultados: salen de los órdenes en las puertas que se toman en la página de series.</translation>
    </message>
    <message>
        <source>Attacks and defences</source>
        <translation>Ataques y defensas</translation>
    </message>
    <message>
        <source>Where attacks succeed</source>
        <translation>Dónde salen bien los ataques</translation>
    </message>
    <message>
        <source>Heat %1</source>
        <translation>Serie %1</translation>
    </message>
    <message>
        <source>Shows the heat on its film</source>
        <translation>Muestra la serie en su vídeo</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ResultsView</name>
    <message>
        <source>Nobody is in the team yet. Add the first athlete with Ctrl+N.</source>
        <translation>Aún no hay nadie en el equipo. Añade al primer deportista con Ctrl+N.</translation>
    </message>
    <message>
        <source>No athlete fits the search.</source>
        <translation>Ningún deportista coincide con la búsqueda.</translation>
    </message>
    <message>
        <source>Choose the boat %1 races in: menu Team, “Add a category”.</source>
        <translation>Elige el barco con el que compite %1: menú Equipo, «Añadir una categoría».</translation>
    </message>
    <message>
        <source>Add the first season with Ctrl+Shift+N, or drop a split file or a list of results here to take results over.</source>
        <translation>Añade la primera temporada con Ctrl+Mayús+N, o suelta aquí un archivo de parciales o una lista de resultados para incorporar los resultados.</translation>
    </message>
    <message>
        <source>The first two seasons (✓) count for the categorization. Alt+Up, Alt+Down or dragging changes the order.</source>
        <translation>Las dos primeras temporadas (✓) cuentan para la categorización. Alt+Arriba, Alt+Abajo o arrastrar cambian el orden.</translation>
    </message>
    <message>
        <source>Choose a race to see and edit its runs.</source>
        <translation>Elige una carrera para ver y editar sus mangas.</translation>
    </message>
    <message>
        <source>new season</source>
        <translation>temporada nueva</translation>
    </message>
    <message>
        <source>new race</source>
        <translation>carrera nueva</translation>
    </message>
    <message>
        <source>order of the seasons</source>
        <translation>orden de las temporadas</translation>
    </message>
    <message>
        <source>order of the races</source>
        <translation>orden de las carreras</translation>
    </message>
    <message>
        <source>removal of a race</source>
        <translation>eliminación de una carrera</translation>
    </message>
    <message>
        <source>removal of a season</source>
        <translation>eliminación de una temporada</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RollForm</name>
    <message>
        <source>Part of the roll</source>
        <translation>Parte del esquimotaje</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Esquimotaje</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>Going over</source>
        <translation>Vuelco</translation>
    </message>
    <message>
        <source>Coming up</source>
        <translation>Subida</translation>
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
        <translation>sí</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunChooser</name>
    <message>
        <source>1 run</source>
        <translation>1 manga</translation>
    </message>
    <message>
        <source>Compare with a run of another race</source>
        <translation>Comparar con una manga de otra carrera</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>&amp;Race</source>
        <translation>&amp;Carrera</translation>
    </message>
    <message>
        <source>&amp;Other file…</source>
        <translation>&amp;Otro archivo…</translation>
    </message>
    <message>
        <source>R&amp;un</source>
        <translation>&amp;Manga</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>No other race lies in this folder.
Choose a file.</source>
        <translation>En esta carpeta no hay otra carrera.
Elige un archivo.</translation>
    </message>
    <message>
        <source>not a race</source>
        <translation>no es una carrera</translation>
    </message>
    <message>
        <source>Open a race</source>
        <translation>Abrir una carrera</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Archivos de parciales (*.kvx);;Todos los archivos (*)</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n manga</numerusform>
            <numerusform>%n mangas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunFilms</name>
    <message>
        <source>Import videos with Ctrl+I, or drop a folder of videos here.</source>
        <translation>Importa vídeos con Ctrl+I o suelta aquí una carpeta de vídeos.</translation>
    </message>
    <message>
        <source>%1 is not in the folder of the split file.</source>
        <translation>%1 no está en la carpeta del archivo de parciales.</translation>
    </message>
    <message>
        <source>All films are found</source>
        <translation>Se han encontrado todos los vídeos</translation>
    </message>
    <message>
        <source>%1 of %2 films are there. Not found: %3.</source>
        <translation>Están %1 de %2 vídeos. No encontrados: %3.</translation>
    </message>
    <message>
        <source>Import video</source>
        <translation>Importar vídeo</translation>
    </message>
    <message>
        <source>Add another camera of this run</source>
        <translation>Añadir otra cámara de esta manga</translation>
    </message>
    <message>
        <source>camera added</source>
        <translation>cámara añadida</translation>
    </message>
    <message>
        <source>Attach the film of a fixed camera</source>
        <translation>Adjuntar el vídeo de una cámara fija</translation>
    </message>
    <message>
        <source>fixed camera attached</source>
        <translation>cámara fija adjuntada</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunForm</name>
    <message>
        <source>A comma and minutes, such as 1:32,34, are taken too</source>
        <translation>También se admiten coma y minutos, como 1:32,34</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>Tripulación</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Mano</translation>
    </message>
    <message>
        <source>Real time</source>
        <translation>Tiempo real</translation>
    </message>
    <message>
        <source>Real penalty</source>
        <translation>Penalización real</translation>
    </message>
    <message>
        <source>Sprint</source>
        <translation>Esprint</translation>
    </message>
    <message>
        <source>sprint time</source>
        <translation>tiempo de esprint</translation>
    </message>
    <message>
        <source>Total %1 s,</source>
        <translation>Total %1 s,</translation>
    </message>
    <message>
        <source>penalties %1 s</source>
        <translation>penalizaciones %1 s</translation>
    </message>
    <message>
        <source>Expected %1 s</source>
        <translation>Esperado %1 s</translation>
    </message>
    <message>
        <source>Perfect time %1 s</source>
        <translation>Tiempo perfecto %1 s</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunPanel</name>
    <message>
        <source>A clean run.</source>
        <translation>Una manga limpia.</translation>
    </message>
    <message>
        <source>Touched: gate %1.</source>
        <translation>Toque: puerta %1.</translation>
    </message>
    <message>
        <source>Missed: gate %1.</source>
        <translation>Salto: puerta %1.</translation>
    </message>
    <message>
        <source>To best</source>
        <translation>Al mejor</translation>
    </message>
    <message>
        <source>Select a run to see its sections. Select two to compare them.</source>
        <translation>Selecciona una manga para ver sus tramos. Selecciona dos para compararlas.</translation>
    </message>
    <message>
        <source> against %1</source>
        <translation> frente a %1</translation>
    </message>
    <message>
        <source>penalties %1 s</source>
        <translation>penalizaciones %1 s</translation>
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
        <translation>Real %1 s,</translation>
    </message>
    <message>
        <source>Expected %1 s</source>
        <translation>Esperado %1 s</translation>
    </message>
    <message>
        <source>Best own sections %1 s</source>
        <translation>Mejores tramos propios %1 s</translation>
    </message>
    <message>
        <source>A time must be above 0. Check the marks of this run.</source>
        <translation>Un tiempo debe ser mayor que 0. Revisa las marcas de esta manga.</translation>
    </message>
    <message>
        <source>Not the whole course</source>
        <translation>No es el recorrido entero</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Dif.</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Tramo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Pen</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Puesto</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunPicker</name>
    <message>
        <source>Run</source>
        <translation>Manga</translation>
    </message>
    <message>
        <source>Type any part of a name, phase, category or race</source>
        <translation>Escribe cualquier parte de un nombre, una fase, una categoría o una carrera</translation>
    </message>
    <message>
        <source>Find a run</source>
        <translation>Buscar una manga</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunsToEnter</name>
    <message>
        <source>perhaps %1?</source>
        <translation>¿quizá %1?</translation>
    </message>
    <message>
        <source>another run is better</source>
        <translation>otra manga es mejor</translation>
    </message>
    <message>
        <source>; xTime %1 stays</source>
        <translation>; el xTime %1 se mantiene</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>línea %1</translation>
    </message>
    <message>
        <source>(no run)</source>
        <translation>(ninguna manga)</translation>
    </message>
    <message>
        <source>has no result in this race</source>
        <translation>no tiene resultado en esta carrera</translation>
    </message>
    <message>
        <source>no result</source>
        <translation>sin resultado</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(línea %1)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::RunsToEnter::Outcome</name>
    <message>
        <source>place %1</source>
        <translation>puesto %1</translation>
    </message>
    <message>
        <source>place %1, was %2</source>
        <translation>puesto %1, era %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SearchPlaces</name>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Folders and files that are searched</source>
        <translation>Carpetas y archivos en los que se busca</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Añadir carpeta…</translation>
    </message>
    <message>
        <source>The chosen folder or file is not searched any more</source>
        <translation>Ya no se busca en la carpeta o el archivo elegido</translation>
    </message>
    <message>
        <source>⚠ One could not be read…</source>
        <translation>⚠ Uno no se pudo leer…</translation>
    </message>
    <message>
        <source>Search a folder</source>
        <translation>Buscar en una carpeta</translation>
    </message>
    <message>
        <source>Search files</source>
        <translation>Buscar en archivos</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Archivos de parciales (*.kvx);;Todos los archivos (*)</translation>
    </message>
    <message numerus="yes">
        <source>⚠ %n could not be read…</source>
        <translation>
            <numerusform>⚠ %n no se pudo leer…</numerusform>
            <numerusform>⚠ %n no se pudieron leer…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonActions</name>
    <message>
        <source>Athletes</source>
        <translation>Deportistas</translation>
    </message>
    <message>
        <source>&amp;Open a team…</source>
        <translation>&amp;Abrir un equipo…</translation>
    </message>
    <message>
        <source>Add &amp;split files…</source>
        <translation>Añadir archivos de &amp;parciales…</translation>
    </message>
    <message>
        <source>Add a &amp;folder of races…</source>
        <translation>Añadir &amp;una carpeta de carreras…</translation>
    </message>
    <message>
        <source>Read &amp;again</source>
        <translation>&amp;Volver a leer</translation>
    </message>
    <message>
        <source>S&amp;top reading</source>
        <translation>&amp;Dejar de leer</translation>
    </message>
    <message>
        <source>Files that could not be rea&amp;d…</source>
        <translation>Archivos &amp;que no se pudieron leer…</translation>
    </message>
    <message>
        <source>&amp;Reports to look at and print…</source>
        <translation>&amp;Informes para ver e imprimir…</translation>
    </message>
    <message>
        <source>Report of the &amp;athlete as PDF…</source>
        <translation>Informe del deportista &amp;como PDF…</translation>
    </message>
    <message>
        <source>Report of the tea&amp;m as PDF…</source>
        <translation>Informe de&amp;l equipo como PDF…</translation>
    </message>
    <message>
        <source>Save the tab&amp;le as CSV…</source>
        <translation>Guardar la &amp;tabla como CSV…</translation>
    </message>
    <message>
        <source>Save the &amp;chart…</source>
        <translation>Guardar el grá&amp;fico…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>&amp;Progression</source>
        <translation>&amp;Evolución</translation>
    </message>
    <message>
        <source>P&amp;hases</source>
        <translation>&amp;Fases</translation>
    </message>
    <message>
        <source>&amp;Spread</source>
        <translation>&amp;Variación</translation>
    </message>
    <message>
        <source>&amp;Trend</source>
        <translation>&amp;Tendencia</translation>
    </message>
    <message>
        <source>Head to h&amp;ead</source>
        <translation>Cara a c&amp;ara</translation>
    </message>
    <message>
        <source>&amp;Medals and finals</source>
        <translation>&amp;Medallas y finales</translation>
    </message>
    <message>
        <source>E&amp;xpected places</source>
        <translation>&amp;Puestos esperados</translation>
    </message>
    <message>
        <source>&amp;What it takes</source>
        <translation>&amp;Qué hace falta</translation>
    </message>
    <message>
        <source>&amp;Athletes</source>
        <translation>&amp;Deportistas</translation>
    </message>
    <message>
        <source>The who&amp;le chart</source>
        <translation>E&amp;l gráfico entero</translation>
    </message>
    <message>
        <source>Athl&amp;ete</source>
        <translation>&amp;Deportista</translation>
    </message>
    <message>
        <source>The &amp;next athlete</source>
        <translation>El deportista &amp;siguiente</translation>
    </message>
    <message>
        <source>The athlete &amp;before</source>
        <translation>El deportista &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Show the athlete of the row</source>
        <translation>&amp;Mostrar el deportista de la fila</translation>
    </message>
    <message>
        <source>Expect the places of a &amp;field…</source>
        <translation>&amp;Puestos esperados entre unos participantes…</translation>
    </message>
    <message>
        <source>Pa&amp;ge for an athlete…</source>
        <translation>Pá&amp;gina para un deportista…</translation>
    </message>
    <message>
        <source>Only the athlete&apos;s &amp;own races</source>
        <translation>Solo las carreras &amp;propias del deportista</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonHeader</name>
    <message>
        <source>Add the races…</source>
        <translation>Añade las carreras…</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Categoría</translation>
    </message>
    <message>
        <source>&amp;Years</source>
        <translation>&amp;Años</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>&amp;Deportista</translation>
    </message>
    <message>
        <source>Only &amp;own races</source>
        <translation>Solo carreras &amp;propias</translation>
    </message>
    <message>
        <source>Only races in which this athlete starts, in whichever phase; on every page</source>
        <translation>Solo carreras en las que sale este deportista, en cualquier fase; en todas las páginas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonModel</name>
    <message>
        <source>✓ counts</source>
        <translation>✓ cuenta</translation>
    </message>
    <message>
        <source>The first two seasons count for the categorization. Move a season by dragging it, or with Alt+Up and Alt+Down.</source>
        <translation>Las dos primeras temporadas cuentan para la categorización. Mueve una temporada arrastrándola, o con Alt+Arriba y Alt+Abajo.</translation>
    </message>
    <message>
        <source>Final classification of the race</source>
        <translation>Clasificación final de la carrera</translation>
    </message>
    <message>
        <source>Position in the ICF world ranking at the end of the season</source>
        <translation>Posición en el ranking mundial de la ICF al final de la temporada</translation>
    </message>
    <message>
        <source>Points in the ICF world ranking</source>
        <translation>Puntos en el ranking mundial de la ICF</translation>
    </message>
    <message>
        <source>Season, race</source>
        <translation>Temporada, carrera</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>Rank</source>
        <translation>Ranking</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>ICF ranking position</source>
        <translation>Posición ranking ICF</translation>
    </message>
    <message>
        <source>ICF ranking points</source>
        <translation>Puntos ranking ICF</translation>
    </message>
    <message>
        <source>There is a season %1 already.</source>
        <translation>Ya hay una temporada %1.</translation>
    </message>
    <message>
        <source>year</source>
        <translation>año</translation>
    </message>
    <message>
        <source>final position</source>
        <translation>posición final</translation>
    </message>
    <message>
        <source>“%1” is none of the events.</source>
        <translation>«%1» no es ninguno de los eventos.</translation>
    </message>
    <message>
        <source>event</source>
        <translation>evento</translation>
    </message>
    <message>
        <source>location</source>
        <translation>lugar</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonPage</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>too few</source>
        <translation>muy pocas</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>No whole run of this athlete can be held against the reference.</source>
        <translation>Ninguna manga entera de este deportista se puede comparar con la referencia.</translation>
    </message>
    <message>
        <source>Nothing stands out: there is no clip to choose.</source>
        <translation>No destaca nada: no hay ningún clip que elegir.</translation>
    </message>
    <message>
        <source>&amp;Show this run</source>
        <translation>&amp;Mostrar esta manga</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Por</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Mangas</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdido</translation>
    </message>
    <message>
        <source>Seconds, of all runs together</source>
        <translation>Segundos, de todas las mangas juntas</translation>
    </message>
    <message>
        <source>Lost, %</source>
        <translation>Perdido, %</translation>
    </message>
    <message>
        <source>Of the reference&apos;s time there</source>
        <translation>Del tiempo de la referencia ahí</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#xa0;%</translation>
    </message>
    <message>
        <source>A run</source>
        <translation>Por manga</translation>
    </message>
    <message>
        <source>Seconds lost in a run on the average</source>
        <translation>Segundos perdidos por término medio en una manga</translation>
    </message>
    <message>
        <source>Of the gap, %</source>
        <translation>De la diferencia, %</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Veredicto</translation>
    </message>
    <message>
        <source>What the interval says: losing where all of it is above 0</source>
        <translation>Lo que dice el intervalo: se pierde donde todo él está por encima de 0</translation>
    </message>
    <message>
        <source>See</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manga</translation>
    </message>
    <message>
        <source>Open a folder of races to see an athlete&apos;s season.</source>
        <translation>Abre una carpeta de carreras para ver la temporada de un deportista.</translation>
    </message>
    <message>
        <source>%1: no whole run in %2 files can be held against the %3.</source>
        <translation>%1: ninguna manga entera de %2 archivos se puede comparar con la referencia (%3).</translation>
    </message>
    <message>
        <source>%1 on %2: %3 in %4; gap a run %5, penalties %6</source>
        <translation>%1 frente a %2: %3 en %4; diferencia por manga %5, penalizaciones %6</translation>
    </message>
    <message>
        <source>one whole run</source>
        <translation>una manga entera</translation>
    </message>
    <message>
        <source>one file</source>
        <translation>un archivo</translation>
    </message>
    <message>
        <source>Train: nothing stands out from these runs.</source>
        <translation>Entrenar: en estas mangas no destaca nada.</translation>
    </message>
    <message>
        <source>%1. %2: %3, %4 s a run</source>
        <translation>%1. %2: %3, %4 s por manga</translation>
    </message>
    <message>
        <source>Train:</source>
        <translation>Entrenar:</translation>
    </message>
    <message>
        <source>gate %1</source>
        <translation>puerta %1</translation>
    </message>
    <message numerus="yes">
        <source>%n whole runs</source>
        <translation>
            <numerusform>%n manga entera</numerusform>
            <numerusform>%n mangas enteras</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n archivo</numerusform>
            <numerusform>%n archivos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonPages</name>
    <message>
        <source>Progression</source>
        <translation>Evolución</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Fases</translation>
    </message>
    <message>
        <source>From which phase to which</source>
        <translation>De qué fase a cuál</translation>
    </message>
    <message>
        <source>Run 1 to run 2 of the heats</source>
        <translation>De la manga 1 a la manga 2 de la clasificatoria</translation>
    </message>
    <message>
        <source>Semifinal to final</source>
        <translation>Semifinal a final</translation>
    </message>
    <message>
        <source>Heats to final, percent behind</source>
        <translation>De la clasificatoria a la final, porcentaje de diferencia</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Variación</translation>
    </message>
    <message>
        <source>Trend</source>
        <translation>Tendencia</translation>
    </message>
    <message>
        <source>Behind whom</source>
        <translation>Respecto a quién</translation>
    </message>
    <message>
        <source>Behind the winners</source>
        <translation>Respecto a los ganadores</translation>
    </message>
    <message>
        <source>Behind the fastest splits</source>
        <translation>Respecto a los parciales más rápidos</translation>
    </message>
    <message>
        <source>Head to head</source>
        <translation>Cara a cara</translation>
    </message>
    <message>
        <source>Medals and finals</source>
        <translation>Medallas y finales</translation>
    </message>
    <message>
        <source>How far</source>
        <translation>Cuánto</translation>
    </message>
    <message>
        <source>Medals</source>
        <translation>Medallas</translation>
    </message>
    <message>
        <source>Finals</source>
        <translation>Finales</translation>
    </message>
    <message>
        <source>Semifinals</source>
        <translation>Semifinales</translation>
    </message>
    <message>
        <source>Expected places</source>
        <translation>Puestos esperados</translation>
    </message>
    <message>
        <source>What it takes</source>
        <translation>Qué hace falta</translation>
    </message>
    <message>
        <source>Athletes</source>
        <translation>Deportistas</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonReports</name>
    <message>
        <source>The team</source>
        <translation>El equipo</translation>
    </message>
    <message>
        <source>Save the report of %1</source>
        <translation>Guardar el informe de %1</translation>
    </message>
    <message>
        <source>Save the report of the team</source>
        <translation>Guardar el informe del equipo</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documentos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The report cannot be written over a file that it is made from.</source>
        <translation>El informe no se puede escribir encima de un archivo del que se hace.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeasonWindow</name>
    <message>
        <source>Season</source>
        <translation>Temporada</translation>
    </message>
    <message>
        <source>Drop a team (.kvteam) and the folder of its races here</source>
        <translation>Suelta aquí un equipo (.kvteam) y la carpeta de sus carreras</translation>
    </message>
    <message>
        <source>Open a team…</source>
        <translation>Abrir un equipo…</translation>
    </message>
    <message>
        <source>Add a folder of races…</source>
        <translation>Añadir una carpeta de carreras…</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Se guardó %1</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translation>Escribiendo %1…</translation>
    </message>
    <message>
        <source>Open a team</source>
        <translation>Abrir un equipo</translation>
    </message>
    <message>
        <source>Teams (*.kvteam);;All files (*)</source>
        <translation>Equipos (*.kvteam);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Add split files</source>
        <translation>Añadir archivos de parciales</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Archivos de parciales (*.kvx);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Add a folder of races</source>
        <translation>Añadir una carpeta de carreras</translation>
    </message>
    <message>
        <source>Whose places to expect</source>
        <translation>De quiénes esperar puestos</translation>
    </message>
    <message>
        <source>A name a line, as a start list has them. Nothing for the team and those who raced most often.</source>
        <translation>Un nombre por línea, como en una lista de salida. Vacío para el equipo y los que más compitieron.</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>%1 no se pudo leer: %2</translation>
    </message>
    <message>
        <source>How every athlete of a team stands over the seasons: behind the winners, against rivals, and against chance. Files are only read.</source>
        <translation>Cómo está cada deportista de un equipo a lo largo de las temporadas: respecto a los ganadores, frente a los rivales y frente al azar. Los archivos solo se leen.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>Nobody of this team races in any category yet.</source>
        <translation>Nadie de este equipo compite aún en ninguna categoría.</translation>
    </message>
    <message>
        <source>No split files: winners and rivals are the team&apos;s own</source>
        <translation>Sin archivos de parciales: ganadores y rivales son los del propio equipo</translation>
    </message>
    <message>
        <source>Races from 1 split file</source>
        <translation>Carreras de 1 archivo de parciales</translation>
    </message>
    <message>
        <source>1 run compared</source>
        <translation>1 manga comparada</translation>
    </message>
    <message>
        <source>several athletes are called %1: their runs cannot be told apart</source>
        <translation>varios deportistas se llaman %1: sus mangas no se pueden distinguir</translation>
    </message>
    <message>
        <source>nobody in these races is called %1</source>
        <translation>nadie en estas carreras se llama %1</translation>
    </message>
    <message>
        <source>too few runs to expect a place of %1 of the field</source>
        <translation>muy pocas mangas para esperar un puesto de %1 de los participantes</translation>
    </message>
    <message>
        <source>the team could not be read again: %1</source>
        <translation>el equipo no se pudo volver a leer: %1</translation>
    </message>
    <message numerus="yes">
        <source>Races from %n split files</source>
        <translation>
            <numerusform>Carreras de %n archivo de parciales</numerusform>
            <numerusform>Carreras de %n archivos de parciales</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n runs compared</source>
        <translation>
            <numerusform>%n manga comparada</numerusform>
            <numerusform>%n mangas comparadas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SectionChart</name>
    <message>
        <source>Box</source>
        <translation>Caja</translation>
    </message>
    <message>
        <source>Quartiles, and the runs far from them</source>
        <translation>Cuartiles, y las mangas alejadas de ellos</translation>
    </message>
    <message>
        <source>Strip</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>A dot for every run</source>
        <translation>Un punto por manga</translation>
    </message>
    <message>
        <source>Behind best</source>
        <translation>Resp. al mejor</translation>
    </message>
    <message>
        <source>Seconds behind the best of the section</source>
        <translation>Segundos respecto al mejor del tramo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Seconds in the section</source>
        <translation>Segundos en el tramo</translation>
    </message>
    <message>
        <source>No section has been timed yet.</source>
        <translation>Aún no se ha cronometrado ningún tramo.</translation>
    </message>
    <message>
        <source>Seconds in each section</source>
        <translation>Segundos en cada tramo</translation>
    </message>
    <message>
        <source>Seconds behind the best of each section</source>
        <translation>Segundos respecto al mejor de cada tramo</translation>
    </message>
    <message>
        <source>Times of %1 by section</source>
        <translation>Tiempos de %1 por tramo</translation>
    </message>
    <message>
        <source>, penalties included</source>
        <translation>, penalizaciones incluidas</translation>
    </message>
    <message>
        <source>← slower      faster →</source>
        <translation>← más lento      más rápido →</translation>
    </message>
    <message>
        <source>Not timed</source>
        <translation>Sin cronometrar</translation>
    </message>
    <message>
        <source>Quarter of the runs under</source>
        <translation>Un cuarto de las mangas por debajo</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Mediana</translation>
    </message>
    <message>
        <source>Quarter of the runs over</source>
        <translation>Un cuarto de las mangas por encima</translation>
    </message>
    <message>
        <source>Slowest</source>
        <translation>El más lento</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Mangas</translation>
    </message>
    <message>
        <source>Behind the best</source>
        <translation>Respecto al mejor</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Tramo</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Fastest</source>
        <translation>El más rápido</translation>
    </message>
    <message>
        <source>Lower quartile</source>
        <translation>Cuartil inferior</translation>
    </message>
    <message>
        <source>Upper quartile</source>
        <translation>Cuartil superior</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Tramos</translation>
    </message>
    <message>
        <source>Distribution of the times of each section</source>
        <translation>Distribución de los tiempos de cada tramo</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SectionForm</name>
    <message>
        <source>Turns</source>
        <translation>Giros</translation>
    </message>
    <message>
        <source>Turn %1</source>
        <translation>Giro %1</translation>
    </message>
    <message>
        <source>Stretch %1</source>
        <translation>Trecho %1</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Vuelta %1</translation>
    </message>
    <message>
        <source>La&amp;ps</source>
        <translation>V&amp;ueltas</translation>
    </message>
    <message>
        <source>number of laps</source>
        <translation>número de vueltas</translation>
    </message>
    <message>
        <source>Distance between the &amp;gates</source>
        <translation>Distancia entre las &amp;puertas</translation>
    </message>
    <message>
        <source>distance</source>
        <translation>distancia</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Turn li&amp;mit</source>
        <translation>Lí&amp;mite de giro</translation>
    </message>
    <message>
        <source>A faster rotation of the boat is a turn, a slower one straight paddling</source>
        <translation>Una rotación más rápida del barco es un giro; una más lenta, paleo en línea recta</translation>
    </message>
    <message>
        <source>rad/s</source>
        <translation>rad/s</translation>
    </message>
    <message>
        <source>Told by the strokes that were recorded</source>
        <translation>Según las paladas grabadas</translation>
    </message>
    <message>
        <source>Time
(s)</source>
        <translation>Tiempo
(s)</translation>
    </message>
    <message>
        <source>Straight
(s)</source>
        <translation>Recta
(s)</translation>
    </message>
    <message>
        <source>Rotation
(s)</source>
        <translation>Rotación
(s)</translation>
    </message>
    <message>
        <source>Speed
(m/s)</source>
        <translation>Velocidad
(m/s)</translation>
    </message>
    <message>
        <source>Follows from distance and time until it is typed</source>
        <translation>Sale de la distancia y el tiempo mientras no se escriba</translation>
    </message>
    <message>
        <source>Stroke rate
(1/min)</source>
        <translation>Frec. de palada
(1/min)</translation>
    </message>
    <message>
        <source>Efficiency
(m/stroke)</source>
        <translation>Eficiencia
(m/palada)</translation>
    </message>
    <message>
        <source>Follows from speed and stroke rate until typed</source>
        <translation>Sale de la velocidad y la frecuencia de palada mientras no se escriba</translation>
    </message>
    <message>
        <source>Left
(rad/s)</source>
        <translation>Izquierda
(rad/s)</translation>
    </message>
    <message>
        <source>Left
(s)</source>
        <translation>Izquierda
(s)</translation>
    </message>
    <message>
        <source>Right
(rad/s)</source>
        <translation>Derecha
(rad/s)</translation>
    </message>
    <message>
        <source>Right
(s)</source>
        <translation>Derecha
(s)</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Tramos</translation>
    </message>
    <message>
        <source>The time in straight line is part of the time of its section: it cannot be longer.</source>
        <translation>El tiempo en línea recta es parte del tiempo de su tramo: no puede ser mayor.</translation>
    </message>
    <message>
        <source>section %1</source>
        <translation>tramo %1</translation>
    </message>
    <message>
        <source>turn %1</source>
        <translation>giro %1</translation>
    </message>
    <message>
        <source>Total: %1 s</source>
        <translation>Total: %1 s</translation>
    </message>
    <message>
        <source>Total: – · %1 of %2 sections are timed</source>
        <translation>Total: – · %1 de %2 tramos cronometrados</translation>
    </message>
    <message>
        <source> · %1 strokes recorded</source>
        <translation> · %1 paladas grabadas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionDocument</name>
    <message>
        <source>1 race</source>
        <translation>1 carrera</translation>
    </message>
    <message numerus="yes">
        <source>%n races</source>
        <translation>
            <numerusform>%n carrera</numerusform>
            <numerusform>%n carreras</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionEdits</name>
    <message>
        <source>Race</source>
        <translation>Carrera</translation>
    </message>
    <message>
        <source>Race location</source>
        <translation>Lugar de la carrera</translation>
    </message>
    <message>
        <source>race added</source>
        <translation>carrera añadida</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Rename which race?</source>
        <translation>¿A qué carrera se le cambia el nombre?</translation>
    </message>
    <message>
        <source>race renamed</source>
        <translation>nombre de carrera cambiado</translation>
    </message>
    <message>
        <source>Remove which race?</source>
        <translation>¿Qué carrera se quita?</translation>
    </message>
    <message>
        <source>race removed</source>
        <translation>carrera quitada</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Category of the athletes</source>
        <translation>Categoría de los deportistas</translation>
    </message>
    <message>
        <source>category added</source>
        <translation>categoría añadida</translation>
    </message>
    <message>
        <source>Add a category first.</source>
        <translation>Añade antes una categoría.</translation>
    </message>
    <message>
        <source>%1 is in this category already.</source>
        <translation>%1 ya está en esta categoría.</translation>
    </message>
    <message>
        <source>athlete added</source>
        <translation>deportista añadido</translation>
    </message>
    <message>
        <source>athlete</source>
        <translation>deportista</translation>
    </message>
    <message>
        <source>athlete removed</source>
        <translation>deportista quitado</translation>
    </message>
    <message>
        <source>times of 0</source>
        <translation>tiempos de 0</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionTakeOverDialog</name>
    <message>
        <source>Results of %1</source>
        <translation>Resultados de %1</translation>
    </message>
    <message>
        <source>&amp;Take over</source>
        <translation>&amp;Incorporar</translation>
    </message>
    <message>
        <source>Athletes who get a result: %1, of them new in the selection: %2. Without a result then: %3. Runs and lines that stay out: %4. A click on an athlete chooses another one, or adds the name to the selection.</source>
        <translation>Deportistas que reciben un resultado: %1, de ellos nuevos en el selectivo: %2. Sin resultado después: %3. Mangas y líneas que quedan fuera: %4. Un clic en un deportista elige otro, o añade el nombre al selectivo.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SelectionWindow</name>
    <message>
        <source>Selection races</source>
        <translation>Selectivos</translation>
    </message>
    <message>
        <source>Copy the table</source>
        <translation>Copiar la tabla</translation>
    </message>
    <message>
        <source>&amp;Reports: preview, PDF, print…</source>
        <translation>&amp;Informes: vista previa, PDF, impresión…</translation>
    </message>
    <message>
        <source>Make times of 0 &amp;missing results</source>
        <translation>Convertir los &amp;tiempos de 0 en resultados ausentes</translation>
    </message>
    <message>
        <source>&amp;Copy the table</source>
        <translation>&amp;Copiar la tabla</translation>
    </message>
    <message>
        <source>&amp;What if</source>
        <translation>&amp;Probar supuestos</translation>
    </message>
    <message>
        <source>&amp;Races</source>
        <translation>&amp;Carreras</translation>
    </message>
    <message>
        <source>&amp;Add a race…</source>
        <translation>&amp;Añadir una carrera…</translation>
    </message>
    <message>
        <source>&amp;Rename a race…</source>
        <translation>Cam&amp;biar el nombre de una carrera…</translation>
    </message>
    <message>
        <source>Remo&amp;ve a race…</source>
        <translation>&amp;Quitar una carrera…</translation>
    </message>
    <message>
        <source>Results from &amp;split files…</source>
        <translation>Resultados &amp;de archivos de parciales…</translation>
    </message>
    <message>
        <source>Results from a &amp;list (position, total, penalty)…</source>
        <translation>Resultados de una &amp;lista (posición, total, penalización)…</translation>
    </message>
    <message>
        <source>Results from a list with &amp;categories and clubs…</source>
        <translation>&amp;Resultados de una lista con categorías y clubes…</translation>
    </message>
    <message>
        <source>&amp;Athletes</source>
        <translation>&amp;Deportistas</translation>
    </message>
    <message>
        <source>Add a &amp;category…</source>
        <translation>Añadir una &amp;categoría…</translation>
    </message>
    <message>
        <source>&amp;Add an athlete…</source>
        <translation>Añadir un &amp;deportista…</translation>
    </message>
    <message>
        <source>&amp;Edit the athlete…</source>
        <translation>&amp;Editar el deportista…</translation>
    </message>
    <message>
        <source>&amp;Remove the athlete</source>
        <translation>&amp;Quitar el deportista</translation>
    </message>
    <message>
        <source>&amp;Import athletes…</source>
        <translation>&amp;Importar deportistas…</translation>
    </message>
    <message>
        <source>&amp;How a list has to look</source>
        <translation>Cómo tiene que ser una li&amp;sta</translation>
    </message>
    <message>
        <source>Category %1</source>
        <translation>Categoría %1</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>Bonus</source>
        <translation>Bonificación</translation>
    </message>
    <message>
        <source>Official times</source>
        <translation>Tiempos oficiales</translation>
    </message>
    <message>
        <source>xTimes</source>
        <translation>xTimes</translation>
    </message>
    <message>
        <source>What if…</source>
        <translation>Supuestos…</translation>
    </message>
    <message>
        <source>Try other times and penalties; nothing of it is kept (W)</source>
        <translation>Prueba otros tiempos y penalizaciones; no se conserva nada (W)</translation>
    </message>
    <message>
        <source>Selection %1</source>
        <translation>Selectivo %1</translation>
    </message>
    <message>
        <source>What if: times and penalties typed now are tried only. End it (W) to go back to the real results.</source>
        <translation>Supuestos: los tiempos y penalizaciones que se escriban ahora son solo de prueba. Termina (W) para volver a los resultados reales.</translation>
    </message>
    <message>
        <source>Add the races of the selection first (Ctrl+R), then athletes (Ctrl+N, or drop a .csv file).</source>
        <translation>Añade primero las carreras del selectivo (Ctrl+R) y después los deportistas (Ctrl+N, o suelta un archivo .csv).</translation>
    </message>
    <message>
        <source>Now add a category (Ctrl+G), such as MK1; then its athletes (Ctrl+N, or drop a .csv file).</source>
        <translation>Añade ahora una categoría (Ctrl+G), como MK1; después sus deportistas (Ctrl+N, o suelta un archivo .csv).</translation>
    </message>
    <message>
        <source>Add the athletes of the category (Ctrl+N, or drop a .csv file), then their results: type them, or take them over from split files (Ctrl+I).</source>
        <translation>Añade los deportistas de la categoría (Ctrl+N, o suelta un archivo .csv) y después sus resultados: escríbelos o incorpóralos de archivos de parciales (Ctrl+I).</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) have a time of 0, which puts their athletes far in front. Edit &gt; Make times of 0 missing results.</source>
        <translation>
            <numerusform>%n resultado tiene un tiempo de 0, lo que coloca a su deportista muy por delante. Editar &gt; Convertir los tiempos de 0 en resultados ausentes.</numerusform>
            <numerusform>%n resultados tienen un tiempo de 0, lo que coloca a sus deportistas muy por delante. Editar &gt; Convertir los tiempos de 0 en resultados ausentes.</numerusform>
        </translation>
    </message>
    <message>
        <source>End what if</source>
        <translation>Terminar supuestos</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No bonus</source>
        <translation>Sin bonificación</translation>
    </message>
    <message>
        <source>Bonus %1</source>
        <translation>Bonificación %1</translation>
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
        <translation>Tiempo (s)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SeriesDrawing</name>
    <message>
        <source>%1: low</source>
        <translation>%1: mín.</translation>
    </message>
    <message>
        <source>%1: high</source>
        <translation>%1: máx.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionCharts</name>
    <message>
        <source>none was recorded</source>
        <translation>no se grabó</translation>
    </message>
    <message>
        <source>there are no turns</source>
        <translation>no hay giros</translation>
    </message>
    <message>
        <source>there are no strokes</source>
        <translation>no hay paladas</translation>
    </message>
    <message>
        <source>not known, since nothing tells which side of the phone points to the bow</source>
        <translation>no se conoce, porque nada indica qué lado del teléfono apunta a la proa</translation>
    </message>
    <message>
        <source>not known, since there are no positions that tell the speed</source>
        <translation>no se conoce, porque no hay posiciones que indiquen la velocidad</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Frec. de palada</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Fuerza</translation>
    </message>
    <message>
        <source>Impulse</source>
        <translation>Impulso</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Potencia</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Heart rate</source>
        <translation>Frec. cardiaca</translation>
    </message>
    <message>
        <source>Phases</source>
        <translation>Fases</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Balanceo</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Cabeceo</translation>
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
        <translation>a las</translation>
    </message>
    <message>
        <source>Training session</source>
        <translation>Sesión de entrenamiento</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>Tí&amp;tulo</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>&amp;Place</source>
        <translation>Lu&amp;gar</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>Desc&amp;ripción</translation>
    </message>
    <message>
        <source>On the water</source>
        <translation>En el agua</translation>
    </message>
    <message>
        <source>In the gym</source>
        <translation>En el gimnasio</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>not in this week</source>
        <translation>no en esta semana</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionMarks</name>
    <message>
        <source>%1 marks: two make a segment</source>
        <translation>%1 marcas: dos forman un segmento</translation>
    </message>
    <message>
        <source>%1 segments</source>
        <translation>%1 segmentos</translation>
    </message>
    <message>
        <source>mark</source>
        <translation>marca</translation>
    </message>
    <message>
        <source>removal of a mark</source>
        <translation>eliminación de una marca</translation>
    </message>
    <message>
        <source>removal of all marks</source>
        <translation>eliminación de todas las marcas</translation>
    </message>
    <message>
        <source>There is a mark already</source>
        <translation>Ya hay una marca</translation>
    </message>
    <message>
        <source>move of a mark</source>
        <translation>desplazamiento de una marca</translation>
    </message>
    <message>
        <source>Mark at %1</source>
        <translation>Marca en %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionTables</name>
    <message>
        <source>Strokes</source>
        <translation>Paladas</translation>
    </message>
    <message>
        <source>Turns</source>
        <translation>Giros</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>Segmentos</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Izquierda y derecha</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>Values every</source>
        <translation>Valores cada</translation>
    </message>
    <message>
        <source>Strokes (%1)</source>
        <translation>Paladas (%1)</translation>
    </message>
    <message>
        <source>Turns (%1)</source>
        <translation>Giros (%1)</translation>
    </message>
    <message>
        <source>from the first mark</source>
        <translation>desde la primera marca</translation>
    </message>
    <message>
        <source>from the start</source>
        <translation>desde el inicio</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionView</name>
    <message>
        <source>Speed against stroke rate</source>
        <translation>Velocidad frente a frecuencia de palada</translation>
    </message>
    <message>
        <source>Stroke rate (1/min)</source>
        <translation>Frecuencia de palada (1/min)</translation>
    </message>
    <message>
        <source>Speed (m/s)</source>
        <translation>Velocidad (m/s)</translation>
    </message>
    <message>
        <source>The speed of the strokes is not known.</source>
        <translation>La velocidad de las paladas no se conoce.</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Side unknown</source>
        <translation>Lado desconocido</translation>
    </message>
    <message>
        <source>Information…</source>
        <translation>Información…</translation>
    </message>
    <message>
        <source>Athlete, place, kind and equipment</source>
        <translation>Deportista, lugar, tipo y material</translation>
    </message>
    <message>
        <source>Name the phone&apos;s mount</source>
        <translation>Indicar el montaje del teléfono</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Show the selected stretch alone</source>
        <translation>Mostrar solo el trecho seleccionado</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>Cut the session to the selected stretch</source>
        <translation>Recortar la sesión al trecho seleccionado</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Take the selected stretch out</source>
        <translation>Quitar el trecho seleccionado</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Stroke rate</source>
        <translation>Frec. de palada</translation>
    </message>
    <message>
        <source>Colour of the course</source>
        <translation>Color del recorrido</translation>
    </message>
    <message>
        <source>%1 – %2: %3 s, %4 strokes, %5/min, %6 m, %7 m/s</source>
        <translation>%1 – %2: %3 s, %4 paladas, %5/min, %6 m, %7 m/s</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SessionWindow</name>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Sessions (*.bms);;Sessions (*.sbm)</source>
        <translation>Sesiones (*.bms);;Sesiones (*.sbm)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Import .kvb file</source>
        <translation>Importar archivo .kvb</translation>
    </message>
    <message>
        <source>Recordings (*.kvb)</source>
        <translation>Grabaciones (*.kvb)</translation>
    </message>
    <message>
        <source>Import .sbm file</source>
        <translation>Importar archivo .sbm</translation>
    </message>
    <message>
        <source>Sessions (*.sbm *.bms)</source>
        <translation>Sesiones (*.sbm *.bms)</translation>
    </message>
    <message>
        <source>power of the power meter</source>
        <translation>potencia del medidor de potencia</translation>
    </message>
    <message>
        <source>Save the session</source>
        <translation>Guardar la sesión</translation>
    </message>
    <message>
        <source>Save with it</source>
        <translation>Guardar con ellos</translation>
    </message>
    <message>
        <source>Save without it</source>
        <translation>Guardar sin ellos</translation>
    </message>
    <message>
        <source>Saved without the power meter&apos;s data, which are still here.</source>
        <translation>Guardado sin los datos del medidor de potencia, que siguen aquí.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SettingsWindow</name>
    <message>
        <source>Look and tables</source>
        <translation>Aspecto y tablas</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Split taking</source>
        <translation>Toma de parciales</translation>
    </message>
    <message>
        <source>Boat motion</source>
        <translation>Movimiento del barco</translation>
    </message>
    <message>
        <source>At start</source>
        <translation>Al iniciar</translation>
    </message>
    <message>
        <source>The decoded frames of all open films together take at most %1, and never more than a quarter of this computer&apos;s memory of %2.</source>
        <translation>Los fotogramas decodificados de todos los vídeos abiertos ocupan en conjunto como máximo %1, y nunca más de un cuarto de la memoria de este ordenador, que es de %2.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Every change takes effect at once, another language when Kavela starts again.</source>
        <translation>Cada cambio tiene efecto al instante; otro idioma, cuando Kavela se inicia de nuevo.</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Como el sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>The environment variable KAVELA_SCHEME decides for this session.</source>
        <translation>La variable de entorno KAVELA_SCHEME decide en esta sesión.</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Ventanas</translation>
    </message>
    <message>
        <source>The environment variable KAVELA_LANGUAGE decides for this session.</source>
        <translation>La variable de entorno KAVELA_LANGUAGE decide en esta sesión.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Race: best green, others red</source>
        <translation>Carrera: el mejor en verde, los demás en rojo</translation>
    </message>
    <message>
        <source>Training: cells tinted by rank</source>
        <translation>Entrenamiento: celdas coloreadas por puesto</translation>
    </message>
    <message>
        <source>Colours of the split table</source>
        <translation>Colores de la tabla de parciales</translation>
    </message>
    <message>
        <source>One a line.</source>
        <translation>Uno por línea.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Elegir un archivo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Look for a newer version once a day</source>
        <translation>Buscar una versión nueva una vez al día</translation>
    </message>
    <message>
        <source>Where it is looked for</source>
        <translation>Dónde se busca</translation>
    </message>
    <message>
        <source>This is no https address. It is looked for where it was.</source>
        <translation>Esta no es una dirección https. Se busca donde antes.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ShareActions</name>
    <message>
        <source>&amp;Open a folder to share…</source>
        <translation>&amp;Abrir una carpeta para compartir…</translation>
    </message>
    <message>
        <source>Sha&amp;re</source>
        <translation>Co&amp;mpartir</translation>
    </message>
    <message>
        <source>&amp;Compare both sides</source>
        <translation>&amp;Comparar los dos lados</translation>
    </message>
    <message>
        <source>&amp;Start with the ticked files</source>
        <translation>&amp;Empezar con los archivos marcados</translation>
    </message>
    <message>
        <source>C&amp;ancel</source>
        <translation>Ca&amp;ncelar</translation>
    </message>
    <message>
        <source>&amp;Tick all but deletions</source>
        <translation>Marcar &amp;todo menos los borrados</translation>
    </message>
    <message>
        <source>Tick &amp;none</source>
        <translation>Desmarcar t&amp;odos</translation>
    </message>
    <message>
        <source>Ser&amp;ver</source>
        <translation>Ser&amp;vidor</translation>
    </message>
    <message>
        <source>&amp;Sign in…</source>
        <translation>&amp;Iniciar sesión…</translation>
    </message>
    <message>
        <source>&amp;Forget the password</source>
        <translation>&amp;Olvidar la contraseña</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ShareWindow</name>
    <message>
        <source>Share folders</source>
        <translation>Compartir carpetas</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Shows what differs; nothing is changed by it</source>
        <translation>Muestra lo que difiere; con ello no se cambia nada</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Shares the ticked files</source>
        <translation>Comparte los archivos marcados</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Nothing is shared before it is shown here</source>
        <translation>No se comparte nada antes de mostrarse aquí</translation>
    </message>
    <message>
        <source>Another folder is shared once this one is done.</source>
        <translation>Se comparte otra carpeta cuando termine esta.</translation>
    </message>
    <message>
        <source>The folder to share</source>
        <translation>La carpeta que compartir</translation>
    </message>
    <message>
        <source>Both sides are looked at…</source>
        <translation>Mirando los dos lados…</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 de %3</translation>
    </message>
    <message>
        <source>%1: %2 files</source>
        <translation>%1: %2 archivos</translation>
    </message>
    <message>
        <source>%1 (on the server)</source>
        <translation>%1 (en el servidor)</translation>
    </message>
    <message>
        <source>%1 (here)</source>
        <translation>%1 (aquí)</translation>
    </message>
    <message>
        <source>Delete 1 file?</source>
        <translation>¿Borrar 1 archivo?</translation>
    </message>
    <message>
        <source>Delete %1 files?</source>
        <translation>¿Borrar %1 archivos?</translation>
    </message>
    <message>
        <source>
and %1 more</source>
        <translation>
y %1 más</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Files are being shared…</source>
        <translation>Compartiendo archivos…</translation>
    </message>
    <message>
        <source>This computer has no password store that is open. The password holds until this window is closed.</source>
        <translation>Este ordenador no tiene ningún almacén de contraseñas abierto. La contraseña vale hasta que se cierre esta ventana.</translation>
    </message>
    <message>
        <source>The password of %1 was forgotten.</source>
        <translation>Se olvidó la contraseña de %1.</translation>
    </message>
    <message>
        <source>%v of %m files</source>
        <translation>%v de %m archivos</translation>
    </message>
    <message>
        <source>Files are being shared</source>
        <translation>Se están compartiendo archivos</translation>
    </message>
    <message>
        <source>What is done stays done; sharing again goes on with the rest.</source>
        <translation>Lo hecho, hecho queda; al compartir de nuevo se sigue con el resto.</translation>
    </message>
    <message>
        <source>Stop and close</source>
        <translation>Detener y cerrar</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SharedRows</name>
    <message>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SiteList</name>
    <message>
        <source>Other servers that films may come from</source>
        <translation>Otros servidores de los que pueden venir vídeos</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitActions</name>
    <message>
        <source>&amp;Open a film…</source>
        <translation>&amp;Abrir un vídeo…</translation>
    </message>
    <message>
        <source>Open the &amp;race of the film in split taking</source>
        <translation>Abrir la &amp;carrera del vídeo en la toma de parciales</translation>
    </message>
    <message>
        <source>&amp;Save the race</source>
        <translation>&amp;Guardar la carrera</translation>
    </message>
    <message>
        <source>Save what is seen as a &amp;picture…</source>
        <translation>Guardar &amp;lo que se ve como imagen…</translation>
    </message>
    <message>
        <source>Save the &amp;water round the marks…</source>
        <translation>Guardar el agua en &amp;torno a las marcas…</translation>
    </message>
    <message>
        <source>Save what is seen of the slit picture</source>
        <translation>Guardar lo que se ve de la imagen de línea</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Imágenes (*.png)</translation>
    </message>
    <message>
        <source>Save the water round the marks</source>
        <translation>Guardar el agua en torno a las marcas</translation>
    </message>
    <message>
        <source>Bands (*.kvband)</source>
        <translation>Bandas (*.kvband)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>&amp;Líneas</translation>
    </message>
    <message>
        <source>Draw a &amp;new line</source>
        <translation>Dibujar una línea &amp;nueva</translation>
    </message>
    <message>
        <source>Ne&amp;xt line</source>
        <translation>Línea &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous line</source>
        <translation>Línea &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Turn the arrow: boats come from the other side</source>
        <translation>&amp;Girar la flecha: los barcos vienen del otro lado</translation>
    </message>
    <message>
        <source>&amp;Remove the line</source>
        <translation>&amp;Quitar la línea</translation>
    </message>
    <message>
        <source>Draw a box round one &amp;boat</source>
        <translation>&amp;Dibujar un recuadro alrededor de un barco</translation>
    </message>
    <message>
        <source>&amp;Look for boats that cross it</source>
        <translation>Buscar barcos que la &amp;crucen</translation>
    </message>
    <message>
        <source>&amp;Hair line</source>
        <translation>Línea &amp;fina</translation>
    </message>
    <message>
        <source>One frame &amp;earlier</source>
        <translation>Un fotograma a&amp;ntes</translation>
    </message>
    <message>
        <source>One frame &amp;later</source>
        <translation>Un fotograma &amp;después</translation>
    </message>
    <message>
        <source>Ten frames earlier</source>
        <translation>Diez fotogramas antes</translation>
    </message>
    <message>
        <source>Ten frames later</source>
        <translation>Diez fotogramas después</translation>
    </message>
    <message>
        <source>A tenth of a frame earlier</source>
        <translation>Una décima de fotograma antes</translation>
    </message>
    <message>
        <source>A tenth of a frame later</source>
        <translation>Una décima de fotograma después</translation>
    </message>
    <message>
        <source>&amp;Next proposal</source>
        <translation>Propuesta &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous proposal</source>
        <translation>Propuesta &amp;anterior</translation>
    </message>
    <message>
        <source>To the &amp;beginning</source>
        <translation>Al &amp;principio</translation>
    </message>
    <message>
        <source>&amp;Closer</source>
        <translation>Ac&amp;ercar</translation>
    </message>
    <message>
        <source>&amp;Farther</source>
        <translation>A&amp;lejar</translation>
    </message>
    <message>
        <source>The &amp;whole film</source>
        <translation>El &amp;vídeo entero</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>&amp;Marcar</translation>
    </message>
    <message>
        <source>&amp;Mark the run at the hair line</source>
        <translation>&amp;Marcar la manga en la línea fina</translation>
    </message>
    <message>
        <source>Take the mark &amp;away</source>
        <translation>&amp;Quitar la marca</translation>
    </message>
    <message>
        <source>&amp;Previous run</source>
        <translation>Manga &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next run</source>
        <translation>Manga &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Refuse the proposal at the hair line</source>
        <translation>&amp;Rechazar la propuesta en la línea fina</translation>
    </message>
    <message>
        <source>&amp;Forget what was refused on this line</source>
        <translation>&amp;Olvidar lo rechazado en esta línea</translation>
    </message>
    <message>
        <source>Accept a&amp;ll proposals</source>
        <translation>Aceptar &amp;todas las propuestas</translation>
    </message>
    <message>
        <source>Accept a&amp;ll proposals: why not yet?</source>
        <translation>Aceptar &amp;todas las propuestas: ¿por qué aún no?</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproducir</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>&amp;Reproducir o pausar</translation>
    </message>
    <message>
        <source>&amp;Slower</source>
        <translation>Más &amp;lento</translation>
    </message>
    <message>
        <source>&amp;Faster</source>
        <translation>Más rá&amp;pido</translation>
    </message>
    <message>
        <source>&amp;Normal speed</source>
        <translation>Velocidad &amp;normal</translation>
    </message>
    <message>
        <source>Take &amp;over the lines of another film</source>
        <translation>&amp;Tomar las líneas de otro vídeo</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitKeeping</name>
    <message>
        <source>The lines in %1 cannot be read: %2. The file is put aside before new lines take its name.</source>
        <translation>Las líneas de %1 no se pueden leer: %2. El archivo se aparta antes de que líneas nuevas tomen su nombre.</translation>
    </message>
    <message>
        <source>The lines could not be kept in %1: %2</source>
        <translation>Las líneas no se pudieron conservar en %1: %2</translation>
    </message>
    <message>
        <source>The lines of this film are still being read. Try again in a moment.</source>
        <translation>Las líneas de este vídeo aún se están leyendo. Inténtelo de nuevo en un momento.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitLoader</name>
    <message>
        <source>The film ends early, after %1 frames.</source>
        <translation>El vídeo termina antes de tiempo, tras %1 fotogramas.</translation>
    </message>
    <message>
        <source>%1 frames cannot be decoded: their columns are black.</source>
        <translation>%1 fotogramas no se pueden decodificar: sus columnas están en negro.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitPanel</name>
    <message>
        <source>Open the &amp;race…</source>
        <translation>Abrir la &amp;carrera…</translation>
    </message>
    <message>
        <source>Times &amp;finer than the frame</source>
        <translation>Tiempos más &amp;finos que el fotograma</translation>
    </message>
    <message>
        <source>Draw a box round one boat (B), then look for boats (Ctrl+B): where they may have crossed is listed here.</source>
        <translation>Dibuja un recuadro alrededor de un barco (B) y busca después barcos (Ctrl+B): aquí se enumera dónde pueden haber cruzado.</translation>
    </message>
    <message>
        <source>The time of the split follows the hair line between two frames; the mark itself stays on the frame.</source>
        <translation>El tiempo del parcial sigue a la línea fina entre dos fotogramas; la marca se queda en el fotograma.</translation>
    </message>
    <message>
        <source>marks</source>
        <translation>marcas</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Línea %1</translation>
    </message>
    <message>
        <source>Marks go into %1</source>
        <translation>Las marcas van a %1</translation>
    </message>
    <message>
        <source>Marks need the race of this film in split taking.</source>
        <translation>Las marcas necesitan la carrera de este vídeo en la toma de parciales.</translation>
    </message>
    <message>
        <source>No run of %1 has the film %2. Add it there as a film of the runs or as a fixed camera.</source>
        <translation>Ninguna manga de %1 tiene el vídeo %2. Añádelo allí como vídeo de las mangas o como cámara fija.</translation>
    </message>
    <message>
        <source>The runs that are seen on this film are listed here.</source>
        <translation>Aquí se enumeran las mangas que se ven en este vídeo.</translation>
    </message>
    <message>
        <source>the bow</source>
        <translation>la proa</translation>
    </message>
    <message>
        <source>the body</source>
        <translation>el cuerpo</translation>
    </message>
    <message>
        <source>What is timed at the lines of this film: one point for a whole race. Proposals tell when it crosses.</source>
        <translation>Qué se cronometra en las líneas de este vídeo: un solo punto para toda la carrera. Las propuestas dicen cuándo cruza.</translation>
    </message>
    <message>
        <source>Ti&amp;med is</source>
        <translation>Se &amp;mide</translation>
    </message>
    <message>
        <source>Look for boats (Ctrl+B): where they may have crossed is listed here.</source>
        <translation>Busque barcos (Ctrl+B): aquí aparecerá dónde pueden haber cruzado.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitRace</name>
    <message>
        <source>Start</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Split %1</source>
        <translation>Parcial %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>There is no run to be marked.</source>
        <translation>No hay ninguna manga que marcar.</translation>
    </message>
    <message>
        <source>This run has no film %1.</source>
        <translation>Esta manga no tiene el vídeo %1.</translation>
    </message>
    <message>
        <source>%1 in the slit picture</source>
        <translation>%1 en la imagen de línea</translation>
    </message>
    <message>
        <source>This run is not marked here.</source>
        <translation>Esta manga no está marcada aquí.</translation>
    </message>
    <message>
        <source>mark removed in the slit picture</source>
        <translation>marca quitada en la imagen de línea</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitSaving</name>
    <message>
        <source>The water round the marks is in %1.</source>
        <translation>El agua en torno a las marcas está en %1.</translation>
    </message>
    <message>
        <source>The water round the marks could not be saved: %1</source>
        <translation>No se pudo guardar el agua en torno a las marcas: %1</translation>
    </message>
    <message>
        <source>The picture could not be saved: %1</source>
        <translation>No se pudo guardar la imagen: %1</translation>
    </message>
    <message>
        <source>There is no slit picture yet.</source>
        <translation>Aún no hay imagen de línea.</translation>
    </message>
    <message>
        <source>That part is not read yet.</source>
        <translation>Esa parte aún no se ha leído.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitStrip</name>
    <message>
        <source>Slit picture</source>
        <translation>Imagen de línea</translation>
    </message>
    <message>
        <source>What stood on the line over the film, over time. A click goes there.</source>
        <translation>Lo que hubo en la línea trazada sobre el vídeo, a lo largo del tiempo. Un clic va ahí.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitView</name>
    <message>
        <source>Slit picture</source>
        <translation>Imagen de línea</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>frame %1   %2 s</source>
        <translation>fotograma %1   %2 s</translation>
    </message>
    <message>
        <source>  (%1%2 of a frame)</source>
        <translation>  (%1%2 de un fotograma)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SlitWindow</name>
    <message>
        <source>Films (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;All files (*)</source>
        <translation>Vídeos (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Slit picture</source>
        <translation>Imagen de línea</translation>
    </message>
    <message>
        <source>“%1” is not there.</source>
        <translation>«%1» no está ahí.</translation>
    </message>
    <message>
        <source>Open the film of a fixed camera</source>
        <translation>Abrir el vídeo de una cámara fija</translation>
    </message>
    <message>
        <source>Open the film of a camera on a tripod (Ctrl+O).</source>
        <translation>Abre el vídeo de una cámara en trípode (Ctrl+O).</translation>
    </message>
    <message>
        <source>Reading the film…</source>
        <translation>Leyendo el vídeo…</translation>
    </message>
    <message>
        <source>Reading the film:</source>
        <translation>Leyendo el vídeo:</translation>
    </message>
    <message>
        <source>Looking for boats:</source>
        <translation>Buscando barcos:</translation>
    </message>
    <message>
        <source>Draw a line first: N.</source>
        <translation>Dibuja antes una línea: N.</translation>
    </message>
    <message>
        <source>There is no proposal before this.</source>
        <translation>Antes de esta no hay ninguna propuesta.</translation>
    </message>
    <message>
        <source>There is no proposal behind this.</source>
        <translation>Después de esta no hay ninguna propuesta.</translation>
    </message>
    <message>
        <source>Marks need the race of this film: open it in split taking.</source>
        <translation>Las marcas necesitan la carrera de este vídeo: ábrela en la toma de parciales.</translation>
    </message>
    <message>
        <source>Draw a box round one boat first: B.</source>
        <translation>Dibuja antes un recuadro alrededor de un barco: B.</translation>
    </message>
    <message>
        <source>Proposals are accepted one by one</source>
        <translation>Las propuestas se aceptan una a una</translation>
    </message>
    <message>
        <source>There is nothing to learn from yet: look for boats, then mark and refuse what was found.</source>
        <translation>Aún no hay nada de lo que aprender: busca barcos y después marca o rechaza lo encontrado.</translation>
    </message>
    <message>
        <source>The film is not read so far.</source>
        <translation>El vídeo aún no se ha leído.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SplitBar</name>
    <message>
        <source>Split times</source>
        <translation>Tiempos parciales</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SplitMode</name>
    <message>
        <source>Start</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Nothing can be marked: %1 is not in the folder of the split file. Cameras &gt; Where are the films now?</source>
        <translation>No se puede marcar nada: %1 no está en la carpeta del archivo de parciales. Cámaras &gt; ¿Dónde están ahora los vídeos?</translation>
    </message>
    <message>
        <source>No mark is selected. Ctrl and the arrows go from mark to mark.</source>
        <translation>No hay ninguna marca seleccionada. Ctrl y las flechas van de marca en marca.</translation>
    </message>
    <message>
        <source>Another run came to the front: nothing was marked.</source>
        <translation>Otra manga ha pasado al frente: no se ha marcado nada.</translation>
    </message>
    <message>
        <source>The times of this run were taken without marks on the video. Marking it anew replaces them.</source>
        <translation>Los tiempos de esta manga se tomaron sin marcas en el vídeo. Marcarla de nuevo los sustituye.</translation>
    </message>
    <message>
        <source>Mark anew</source>
        <translation>Marcar de nuevo</translation>
    </message>
    <message>
        <source>start mark</source>
        <translation>marca de salida</translation>
    </message>
    <message>
        <source>split %1</source>
        <translation>parcial %1</translation>
    </message>
    <message>
        <source>%1:  %2</source>
        <translation>%1:  %2</translation>
    </message>
    <message>
        <source>Split %1 was put in between two marks. Ctrl+Z takes it out again.</source>
        <translation>El parcial %1 se insertó entre dos marcas. Ctrl+Z lo vuelve a quitar.</translation>
    </message>
    <message>
        <source>mark moved</source>
        <translation>marca movida</translation>
    </message>
    <message>
        <source>There is no mark yet that could be moved.</source>
        <translation>Aún no hay ninguna marca que se pueda mover.</translation>
    </message>
    <message>
        <source>mark removed</source>
        <translation>marca quitada</translation>
    </message>
    <message>
        <source>Split %1 is expected behind the end of the film.</source>
        <translation>El parcial %1 se espera después del final del vídeo.</translation>
    </message>
    <message>
        <source>Split %1 is expected here</source>
        <translation>El parcial %1 se espera aquí</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SplitTableModel</name>
    <message>
        <source>Not timed</source>
        <translation>Sin cronometrar</translation>
    </message>
    <message>
        <source>%1, %2: %3 s
place %4 of %5
%6 s behind the best, %7 %</source>
        <translation>%1, %2: %3 s
puesto %4 de %5
%6 s más que el mejor, %7&#xa0;%</translation>
    </message>
    <message>
        <source>%1, %2: %3 s
%4
It counts for nothing: no place, no gap, never a best.</source>
        <translation>%1, %2: %3 s
%4
No cuenta para nada: ni puesto, ni diferencia, ni mejor.</translation>
    </message>
    <message>
        <source>The best of every section, put together</source>
        <translation>Lo mejor de cada tramo, reunido</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Ideal run</source>
        <translation>Manga ideal</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Gates %1</source>
        <translation>Puertas %1</translation>
    </message>
    <message>
        <source>Section %1: the colours and the penalties in brackets are those of the first ten sections only.
Place, gap and percent are there as in any other.</source>
        <translation>Tramo %1: los colores y las penalizaciones entre paréntesis son solo los de los diez primeros tramos.
El puesto, la diferencia y el porcentaje están como en cualquier otro.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Cat</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>%1 penalty</source>
        <translation>Penalización de %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SplitsShown</name>
    <message>
        <source>%1?</source>
        <translation>¿%1?</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StartListDialog</name>
    <message>
        <source>Start list</source>
        <translation>Lista de salida</translation>
    </message>
    <message>
        <source>12,Ann Lee,K1W,10:01:30</source>
        <translation>12,Ann Lee,K1W,10:01:30</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Incorporar</translation>
    </message>
    <message>
        <source>From a file…</source>
        <translation>De un archivo…</translation>
    </message>
    <message>
        <source>Paste the list: bib, name, category and start time or order, or with titles in its first line. Boats that are in this phase already are corrected.</source>
        <translation>Pega la lista: dorsal, nombre, categoría y hora u orden de salida, o con títulos en la primera línea. Los barcos que ya están en esta fase se corrigen.</translation>
    </message>
    <message>
        <source>Lists (*.csv *.txt);;All files (*)</source>
        <translation>Listas (*.csv *.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Starts: %1. Lines that cannot be taken: %2.</source>
        <translation>Salidas: %1. Líneas que no se pueden incorporar: %2.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StatisticsDialog</name>
    <message>
        <source>%1 in races, %2 in all</source>
        <translation>%1 en carreras, %2 en total</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omitido</translation>
    </message>
    <message>
        <source>Because it</source>
        <translation>Porque</translation>
    </message>
    <message>
        <source>Season statistics from split files</source>
        <translation>Estadística de la temporada de archivos de parciales</translation>
    </message>
    <message>
        <source>Runs found: %1, in %2 files. They replace what stands there now: %3.</source>
        <translation>Mangas encontradas: %1, en %2 archivos. Sustituyen a las que hay ahora: %3.</translation>
    </message>
    <message>
        <source>None of the files has a run of this athlete and season. Nothing is replaced.</source>
        <translation>Ninguno de los archivos tiene una manga de este deportista y esta temporada. No se sustituye nada.</translation>
    </message>
    <message>
        <source>&amp;Replace the statistics</source>
        <translation>&amp;Sustituir la estadística</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StepsBox</name>
    <message>
        <source>Hide these steps</source>
        <translation>Ocultar estos pasos</translation>
    </message>
    <message>
        <source>Open a race: “Try the sample season”.</source>
        <translation>Abrir una carrera: «Probar la temporada de ejemplo».</translation>
    </message>
    <message>
        <source>Ask a number of its table why it is what it is: Alt+click, or Shift+F1.</source>
        <translation>Preguntar a un número de la tabla por qué es así: Alt+clic o Mayús+F1.</translation>
    </message>
    <message>
        <source>See where the time was lost: Ctrl+Shift+L.</source>
        <translation>Ver dónde se perdió el tiempo: Ctrl+Mayús+L.</translation>
    </message>
    <message>
        <source>Play the film of a run, or take a split: Ctrl+T.</source>
        <translation>Reproducir el vídeo de una manga o tomar un parcial: Ctrl+T.</translation>
    </message>
    <message>
        <source>Make an athlete&apos;s report or page: Ctrl+P.</source>
        <translation>Hacer el informe o la página de un deportista: Ctrl+P.</translation>
    </message>
    <message>
        <source>All first steps are done. F1 tells the rest.</source>
        <translation>Los primeros pasos están hechos. F1 cuenta el resto.</translation>
    </message>
    <message>
        <source>First steps, three minutes</source>
        <translation>Primeros pasos, tres minutos</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Hecho: %1</translation>
    </message>
    <message>
        <source>To do: %1</source>
        <translation>Por hacer: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StrategyPage</name>
    <message>
        <source>best</source>
        <translation>mejor</translation>
    </message>
    <message>
        <source>way of the run</source>
        <translation>trazada de la manga</translation>
    </message>
    <message>
        <source>way renamed</source>
        <translation>nombre de trazada cambiado</translation>
    </message>
    <message>
        <source>A time is a number of seconds such as 4.35, or 1:04.35</source>
        <translation>Un tiempo es un número de segundos como 4.35, o 1:04.35</translation>
    </message>
    <message>
        <source>time of a way</source>
        <translation>tiempo de una trazada</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Elegida</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Trazada</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Dif.</translation>
    </message>
    <message>
        <source>The tick is at the way that the run took. Names and times are edited by a double click.</source>
        <translation>La marca está en la trazada que siguió la manga. Los nombres y los tiempos se editan con un doble clic.</translation>
    </message>
    <message>
        <source>Add a way</source>
        <translation>Añadir una trazada</translation>
    </message>
    <message>
        <source>A section, or a name for the place</source>
        <translation>Un tramo, o un nombre para el lugar</translation>
    </message>
    <message>
        <source>Another way, such as spin or direct</source>
        <translation>Otra trazada, como spin o directa</translation>
    </message>
    <message>
        <source>Take its time</source>
        <translation>Tomar su tiempo</translation>
    </message>
    <message>
        <source>comment on ways</source>
        <translation>comentario a las trazadas</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>Comparado</translation>
    </message>
    <message>
        <source>Time from</source>
        <translation>Tiempo desde</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Tramo</translation>
    </message>
    <message>
        <source>Without a name</source>
        <translation>Sin nombre</translation>
    </message>
    <message>
        <source>The run took the fastest way.</source>
        <translation>La manga siguió la trazada más rápida.</translation>
    </message>
    <message>
        <source>The way of the run cost %1 s.</source>
        <translation>La trazada de la manga costó %1 s.</translation>
    </message>
    <message>
        <source>Choose a section or name a place, and add it.</source>
        <translation>Elige un tramo o da nombre a un lugar, y añádelo.</translation>
    </message>
    <message>
        <source>Add the ways of paddling this place.</source>
        <translation>Añade las trazadas para pasar por este lugar.</translation>
    </message>
    <message>
        <source>M marks where %1 ends</source>
        <translation>M marca dónde termina %1</translation>
    </message>
    <message>
        <source>M marks where %1 begins</source>
        <translation>M marca dónde empieza %1</translation>
    </message>
    <message>
        <source>Choose a section, or write a name for the place.</source>
        <translation>Elige un tramo, o escribe un nombre para el lugar.</translation>
    </message>
    <message>
        <source>ways at %1</source>
        <translation>trazadas en %1</translation>
    </message>
    <message>
        <source>way added</source>
        <translation>trazada añadida</translation>
    </message>
    <message>
        <source>Add a way and select it first.</source>
        <translation>Añade antes una trazada y selecciónala.</translation>
    </message>
    <message>
        <source>%1 was not timed there.</source>
        <translation>%1 no se cronometró ahí.</translation>
    </message>
    <message>
        <source>%1 is timed: %2 s. Empty its time to mark it anew.</source>
        <translation>%1 está cronometrada: %2 s. Vacía su tiempo para marcarla de nuevo.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>The end of a way comes after its beginning at %1.</source>
        <translation>El fin de una trazada viene después de su inicio en %1.</translation>
    </message>
    <message>
        <source>way timed</source>
        <translation>trazada cronometrada</translation>
    </message>
    <message>
        <source>way removed</source>
        <translation>trazada quitada</translation>
    </message>
    <message>
        <source>ways removed</source>
        <translation>trazadas quitadas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::StrokePage</name>
    <message>
        <source>Section</source>
        <translation>Tramo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Strokes/min</source>
        <translation>Paladas/min</translation>
    </message>
    <message>
        <source>A marks a stroke on the left, D on the right, M with the other hand than before.</source>
        <translation>A marca una palada a la izquierda, D a la derecha, M con la otra mano que antes.</translation>
    </message>
    <message>
        <source>Rate now</source>
        <translation>Frecuencia ahora</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>%1 per minute, %2 strokes</source>
        <translation>%1 por minuto, %2 paladas</translation>
    </message>
    <message>
        <source>left stroke</source>
        <translation>palada izquierda</translation>
    </message>
    <message>
        <source>right stroke</source>
        <translation>palada derecha</translation>
    </message>
    <message>
        <source>other hand</source>
        <translation>otra mano</translation>
    </message>
    <message>
        <source>style of the stroke</source>
        <translation>estilo de la palada</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::SummaryPanel</name>
    <message>
        <source>Retired athletes are left out.</source>
        <translation>Los deportistas retirados se omiten.</translation>
    </message>
    <message>
        <source>Two seasons are needed.</source>
        <translation>Hacen falta dos temporadas.</translation>
    </message>
    <message>
        <source>The first two seasons have no race with a final position.</source>
        <translation>Las dos primeras temporadas no tienen ninguna carrera con posición final.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> y </translation>
    </message>
    <message>
        <source>Over the seasons</source>
        <translation>En las temporadas</translation>
    </message>
    <message>
        <source>All seasons</source>
        <translation>Todas las temporadas</translation>
    </message>
    <message>
        <source>Categorization</source>
        <translation>Categorización</translation>
    </message>
    <message>
        <source>, born %1</source>
        <translation>, nacido en %1</translation>
    </message>
    <message>
        <source>One race has no final position. It counts as a medal here, not in the categorization.</source>
        <translation>Una carrera no tiene posición final. Aquí cuenta como medalla, en la categorización no.</translation>
    </message>
    <message>
        <source>%1 races have no final position. They count as medals here, not in the categorization.</source>
        <translation>%1 carreras no tienen posición final. Aquí cuentan como medallas, en la categorización no.</translation>
    </message>
    <message>
        <source>Counted: %1</source>
        <translation>Cuentan: %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TableDocument</name>
    <message>
        <source>Join the athletes</source>
        <translation>Unir los deportistas</translation>
    </message>
    <message>
        <source>Say who line %1 is</source>
        <translation>Decir quién es la línea %1</translation>
    </message>
    <message>
        <source>Line %1 of the list is no row of this table any more.</source>
        <translation>La línea %1 de la lista ya no es una fila de esta tabla.</translation>
    </message>
    <message>
        <source>Line %1, column %2 of the list says “%3”.</source>
        <translation>La línea %1, columna %2 de la lista dice «%3».</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 fila</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n fila</numerusform>
            <numerusform>%n filas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TablesActions</name>
    <message>
        <source>&amp;Open a list…</source>
        <translation>&amp;Abrir una lista…</translation>
    </message>
    <message>
        <source>Open what was &amp;copied</source>
        <translation>Abrir lo &amp;copiado</translation>
    </message>
    <message>
        <source>A&amp;nother list of this file…</source>
        <translation>&amp;Otra lista de este archivo…</translation>
    </message>
    <message>
        <source>&amp;Keep with the race…</source>
        <translation>Conser&amp;var con la carrera…</translation>
    </message>
    <message>
        <source>Save the &amp;table as CSV…</source>
        <translation>Guardar la &amp;tabla como CSV…</translation>
    </message>
    <message>
        <source>Save the c&amp;hart…</source>
        <translation>Guardar e&amp;l gráfico…</translation>
    </message>
    <message>
        <source>The first line holds the &amp;titles</source>
        <translation>&amp;La primera línea contiene los títulos</translation>
    </message>
    <message>
        <source>The first line is a ro&amp;w</source>
        <translation>La primera línea es una &amp;fila</translation>
    </message>
    <message>
        <source>No &amp;groups</source>
        <translation>Sin &amp;grupos</translation>
    </message>
    <message>
        <source>&amp;Column</source>
        <translation>&amp;Columna</translation>
    </message>
    <message>
        <source>&amp;Sort</source>
        <translation>&amp;Ordenar</translation>
    </message>
    <message>
        <source>Sort &amp;downwards</source>
        <translation>Ordenar &amp;de mayor a menor</translation>
    </message>
    <message>
        <source>&amp;Group by it</source>
        <translation>&amp;Agrupar por ella</translation>
    </message>
    <message>
        <source>&amp;Tint it</source>
        <translation>&amp;Colorearla</translation>
    </message>
    <message>
        <source>&amp;Chart of it</source>
        <translation>&amp;Gráfico de ella</translation>
    </message>
    <message>
        <source>&amp;Keep rows with…</source>
        <translation>Conservar &amp;filas con…</translation>
    </message>
    <message>
        <source>&amp;Leave it out</source>
        <translation>O&amp;mitirla</translation>
    </message>
    <message>
        <source>&amp;Read it as</source>
        <translation>&amp;Leerla como</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Añadi&amp;r</translation>
    </message>
    <message>
        <source>&amp;Total</source>
        <translation>&amp;Total</translation>
    </message>
    <message>
        <source>&amp;Rank</source>
        <translation>&amp;Puesto</translation>
    </message>
    <message>
        <source>&amp;Gap to the best</source>
        <translation>&amp;Diferencia con el mejor</translation>
    </message>
    <message>
        <source>&amp;Percent behind the best</source>
        <translation>P&amp;orcentaje respecto al mejor</translation>
    </message>
    <message>
        <source>Percenti&amp;le</source>
        <translation>Percenti&amp;l</translation>
    </message>
    <message>
        <source>&amp;Another column…</source>
        <translation>Otra &amp;columna…</translation>
    </message>
    <message>
        <source>P&amp;ivot…</source>
        <translation>Tabla d&amp;inámica…</translation>
    </message>
    <message>
        <source>A&amp;thletes</source>
        <translation>&amp;Deportistas</translation>
    </message>
    <message>
        <source>&amp;Join a team…</source>
        <translation>&amp;Unir un equipo…</translation>
    </message>
    <message>
        <source>&amp;Who is meant?…</source>
        <translation>¿&amp;Quién es?…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>What was &amp;refused</source>
        <translation>Lo &amp;rechazado</translation>
    </message>
    <message>
        <source>&amp;Blue to orange instead of green to red</source>
        <translation>D&amp;e azul a naranja en vez de verde a rojo</translation>
    </message>
    <message>
        <source>The &amp;whole chart</source>
        <translation>El &amp;gráfico entero</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TablesWindow</name>
    <message>
        <source>Tables</source>
        <translation>Tablas</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Se guardó %1</translation>
    </message>
    <message>
        <source>Kept with %1</source>
        <translation>Conservado con %1</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Leyendo %1…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened as a table</source>
        <translation>«%1» no se puede abrir como tabla</translation>
    </message>
    <message>
        <source>What was copied is no list</source>
        <translation>Lo copiado no es una lista</translation>
    </message>
    <message>
        <source>Which of its lists?</source>
        <translation>¿Cuál de sus listas?</translation>
    </message>
    <message>
        <source>What was copied</source>
        <translation>Lo copiado</translation>
    </message>
    <message>
        <source>This step cannot be taken</source>
        <translation>Este paso no se puede dar</translation>
    </message>
    <message>
        <source>Keep rows</source>
        <translation>Conservar filas</translation>
    </message>
    <message>
        <source>Rows whose “%1” contains this are kept; the cell as it stands keeps just its like.</source>
        <translation>Se conservan las filas cuyo «%1» contiene esto; la celda tal cual conserva solo las iguales.</translation>
    </message>
    <message>
        <source> table</source>
        <translation> tabla</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Texto separado por punto y coma (*.csv)</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>Abrir listas</translation>
    </message>
    <message>
        <source>Join a team</source>
        <translation>Unir un equipo</translation>
    </message>
    <message>
        <source>Teams (*.kvteam);;All files (*)</source>
        <translation>Equipos (*.kvteam);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The rows cannot be joined</source>
        <translation>Las filas no se pueden unir</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>«%1» no se puede abrir</translation>
    </message>
    <message>
        <source>Nobody of the team</source>
        <translation>Nadie del equipo</translation>
    </message>
    <message>
        <source>Who is %1 in line %2?</source>
        <translation>¿Quién es %1 en la línea %2?</translation>
    </message>
    <message>
        <source>Keep with the race</source>
        <translation>Conservar con la carrera</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Archivos de parciales (*.kvx);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Guardar la tabla</translation>
    </message>
    <message>
        <source>The table was not saved</source>
        <translation>La tabla no se ha guardado</translation>
    </message>
    <message>
        <source>The list that it is made from stays as it is. Choose another name.</source>
        <translation>La lista de la que se hace se queda como está. Elige otro nombre.</translation>
    </message>
    <message>
        <source>Saving the table…</source>
        <translation>Guardando la tabla…</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 fila</translation>
    </message>
    <message>
        <source>1 column</source>
        <translation>1 columna</translation>
    </message>
    <message>
        <source>%1 refused (F7)</source>
        <translation>%1 rechazadas (F7)</translation>
    </message>
    <message>
        <source>%1 that only you can tell (F6)</source>
        <translation>%1 que solo tú sabes (F6)</translation>
    </message>
    <message numerus="yes">
        <source>%n rows</source>
        <translation>
            <numerusform>%n fila</numerusform>
            <numerusform>%n filas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n columns</source>
        <translation>
            <numerusform>%n columna</numerusform>
            <numerusform>%n columnas</numerusform>
        </translation>
    </message>
    <message>
        <source>Drop a list of results here</source>
        <translation>Suelta aquí una lista de resultados</translation>
    </message>
    <message>
        <source>Text (CSV, tabs, columns of blanks), a spreadsheet (.xlsx, .ods), what was copied from a page, or a race that carries a list. Lists are only read.</source>
        <translation>Texto (CSV, tabuladores, columnas de espacios), una hoja de cálculo (.xlsx, .ods), lo copiado de una página o una carrera que lleve una lista. Las listas solo se leen.</translation>
    </message>
    <message>
        <source>Open a list…</source>
        <translation>Abrir una lista…</translation>
    </message>
    <message>
        <source>Open what was copied</source>
        <translation>Abrir lo copiado</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TagMode</name>
    <message>
        <source>Tag</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>There is no film to tag.</source>
        <translation>No hay ningún vídeo que etiquetar.</translation>
    </message>
    <message>
        <source>This tag is of the split file: split taking moves it.</source>
        <translation>Esta etiqueta es del archivo de parciales: se mueve en la toma de parciales.</translation>
    </message>
    <message>
        <source>No tag is selected.</source>
        <translation>No hay ninguna etiqueta seleccionada.</translation>
    </message>
    <message>
        <source>There is no film to cut.</source>
        <translation>No hay ningún vídeo que cortar.</translation>
    </message>
    <message>
        <source>This frame has the tag “%1” already.</source>
        <translation>Este fotograma ya tiene la etiqueta «%1».</translation>
    </message>
    <message>
        <source>There is no tag %1 yet: type its name below the film.</source>
        <translation>Aún no hay etiqueta %1: escriba su nombre debajo del vídeo.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TagPage</name>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Play just the tagged part</source>
        <translation>Reproducir solo la parte etiquetada</translation>
    </message>
    <message>
        <source>Rename the tag</source>
        <translation>Cambiar el nombre de la etiqueta</translation>
    </message>
    <message>
        <source>Gives the selected tag the name above</source>
        <translation>Da a la etiqueta seleccionada el nombre de arriba</translation>
    </message>
    <message>
        <source>M sets the tag at the frame shown.</source>
        <translation>M pone la etiqueta en el fotograma mostrado.</translation>
    </message>
    <message>
        <source>Enter sets the tag %1 at the frame shown. Esc gives the keys back to the film.</source>
        <translation>Intro pone la etiqueta %1 en el fotograma mostrado. Esc devuelve las teclas al vídeo.</translation>
    </message>
    <message>
        <source>Choose or type the name of the tag first.</source>
        <translation>Elige o escribe antes el nombre de la etiqueta.</translation>
    </message>
    <message>
        <source>tag %1</source>
        <translation>etiqueta %1</translation>
    </message>
    <message>
        <source>Select a tag and write its new name.</source>
        <translation>Selecciona una etiqueta y escribe su nombre nuevo.</translation>
    </message>
    <message>
        <source>tag renamed</source>
        <translation>nombre de etiqueta cambiado</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakeOverDialog</name>
    <message>
        <source>Boat</source>
        <translation>Barco</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Deportista</translation>
    </message>
    <message>
        <source>not in the team</source>
        <translation>no está en el equipo</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Add %1 to the team</source>
        <translation>Añadir a %1 al equipo</translation>
    </message>
    <message>
        <source>perhaps %1?</source>
        <translation>¿quizá %1?</translation>
    </message>
    <message>
        <source>%1 is added to the athlete&apos;s boats</source>
        <translation>%1 se añade a los barcos del deportista</translation>
    </message>
    <message>
        <source>the same stands there</source>
        <translation>ahí ya está lo mismo</translation>
    </message>
    <message>
        <source>Take results over</source>
        <translation>Incorporar resultados</translation>
    </message>
    <message>
        <source>Choose the event</source>
        <translation>Elige el evento</translation>
    </message>
    <message>
        <source>&amp;Event</source>
        <translation>&amp;Evento</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>Lu&amp;gar</translation>
    </message>
    <message>
        <source>&amp;Season</source>
        <translation>&amp;Temporada</translation>
    </message>
    <message>
        <source>The positions are the &amp;final ones of the race</source>
        <translation>&amp;Las posiciones son las finales de la carrera</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Categoría</translation>
    </message>
    <message>
        <source>&amp;Phase</source>
        <translation>&amp;Fase</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Día</translation>
    </message>
    <message>
        <source>Take over</source>
        <translation>Incorporar</translation>
    </message>
    <message>
        <source>Tick &amp;all</source>
        <translation>&amp;Marcar todos</translation>
    </message>
    <message>
        <source>Tick &amp;none</source>
        <translation>Desmarcar t&amp;odos</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(línea %1)</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>Final position</source>
        <translation>Posición final</translation>
    </message>
    <message>
        <source>&amp;Take over 1 line</source>
        <translation>&amp;Incorporar 1 línea</translation>
    </message>
    <message>
        <source>Choose the event of the race.</source>
        <translation>Elige el evento de la carrera.</translation>
    </message>
    <message>
        <source>Nothing in the file belongs to an athlete of the team. A click on “not in the team” chooses one, or adds the name to the team.</source>
        <translation>Nada del archivo pertenece a un deportista del equipo. Un clic en «no está en el equipo» elige uno, o añade el nombre al equipo.</translation>
    </message>
    <message>
        <source>%1 of %2 lines are ticked; %3 stay out. A click on an athlete chooses another one, or adds the name to the team.</source>
        <translation>%1 de %2 líneas están marcadas; %3 quedan fuera. Un clic en un deportista elige otro, o añade el nombre al equipo.</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Take over %n lines</source>
        <translation>
            <numerusform>&amp;Incorporar %n línea</numerusform>
            <numerusform>&amp;Incorporar %n líneas</numerusform>
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
        <translation>Incorporar una prueba de una grabación</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Prueba</translation>
    </message>
    <message>
        <source>&amp;Athlete</source>
        <translation>&amp;Deportista</translation>
    </message>
    <message>
        <source>&amp;Location</source>
        <translation>Lu&amp;gar</translation>
    </message>
    <message>
        <source>La&amp;ps</source>
        <translation>V&amp;ueltas</translation>
    </message>
    <message>
        <source>&amp;Distance between the gates</source>
        <translation>Distancia &amp;entre las puertas</translation>
    </message>
    <message>
        <source>T&amp;urn limit</source>
        <translation>&amp;Límite de giro</translation>
    </message>
    <message>
        <source>&amp;Suggest the marks again</source>
        <translation>&amp;Volver a proponer las marcas</translation>
    </message>
    <message>
        <source>Take in</source>
        <translation>Incorporar</translation>
    </message>
    <message>
        <source>Lap %1</source>
        <translation>Vuelta %1</translation>
    </message>
    <message>
        <source>Stretch %1</source>
        <translation>Trecho %1</translation>
    </message>
    <message>
        <source>Eight %1</source>
        <translation>Ocho %1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>%1 strokes and %2 turns were found.</source>
        <translation>Se encontraron %1 paladas y %2 giros.</translation>
    </message>
    <message>
        <source>Ends at
(s)</source>
        <translation>Termina en
(s)</translation>
    </message>
    <message>
        <source>Seconds from the beginning of the recording</source>
        <translation>Segundos desde el principio de la grabación</translation>
    </message>
    <message>
        <source>Time
(s)</source>
        <translation>Tiempo
(s)</translation>
    </message>
    <message>
        <source>Length of the section</source>
        <translation>Duración del tramo</translation>
    </message>
    <message>
        <source>No such test was found in the recording.</source>
        <translation>En la grabación no se encontró ninguna prueba así.</translation>
    </message>
    <message>
        <source>Each mark has to be later than the one before.</source>
        <translation>Cada marca tiene que ser posterior a la anterior.</translation>
    </message>
    <message>
        <source>Laps found in the recording: %1 of %2. What is taken in has no more of them.</source>
        <translation>Vueltas encontradas en la grabación: %1 de %2. Lo que se incorpora no tiene más.</translation>
    </message>
    <message>
        <source>Eights found in the recording: %1 of %2. What is taken in has no more of them.</source>
        <translation>Ochos encontrados en la grabación: %1 de %2. Lo que se incorpora no tiene más.</translation>
    </message>
    <message>
        <source>Rotation and marks</source>
        <translation>Rotación y marcas</translation>
    </message>
    <message>
        <source>Time from the beginning of the recording (s)</source>
        <translation>Tiempo desde el principio de la grabación (s)</translation>
    </message>
    <message>
        <source>Rotation (rad/s)</source>
        <translation>Rotación (rad/s)</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotación</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation>Marcas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakeRunDialog</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Deportista</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Tramos</translation>
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
        <translation>Movimiento</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>Take in tests from “%1”</source>
        <translation>Incorporar pruebas de «%1»</translation>
    </message>
    <message>
        <source>Take in</source>
        <translation>Incorporar</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Prueba</translation>
    </message>
    <message>
        <source>Take %1 runs in</source>
        <translation>Incorporar %1 mangas</translation>
    </message>
    <message>
        <source>Each section of the run becomes a lap.</source>
        <translation>Cada tramo de la manga se convierte en una vuelta.</translation>
    </message>
    <message>
        <source>Each section of the run becomes a stretch of the sprint.</source>
        <translation>Cada tramo de la manga se convierte en un trecho del esprint.</translation>
    </message>
    <message>
        <source>The first five sections become the splits, with their marks in the video; the motion samples of the run tell its rotation.</source>
        <translation>Los cinco primeros tramos se convierten en los parciales, con sus marcas en el vídeo; las muestras de movimiento de la manga dan su rotación.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakingActions</name>
    <message>
        <source>&amp;Open a folder of videos…</source>
        <translation>&amp;Abrir una carpeta de vídeos…</translation>
    </message>
    <message>
        <source>&amp;Save data</source>
        <translation>&amp;Guardar los datos</translation>
    </message>
    <message>
        <source>Import &amp;video…</source>
        <translation>Importar &amp;vídeo…</translation>
    </message>
    <message>
        <source>Import split &amp;file…</source>
        <translation>Importar archivo de &amp;parciales…</translation>
    </message>
    <message>
        <source>Import official &amp;results…</source>
        <translation>&amp;Importar resultados oficiales…</translation>
    </message>
    <message>
        <source>Compare &amp;with official results…</source>
        <translation>&amp;Comparar con los resultados oficiales…</translation>
    </message>
    <message>
        <source>&amp;Recording of the run…</source>
        <translation>Gra&amp;bación de la manga…</translation>
    </message>
    <message>
        <source>Run s&amp;heet: preview, PDF, print…</source>
        <translation>&amp;Hoja de la manga: vista previa, PDF, impresión…</translation>
    </message>
    <message>
        <source>&amp;Export data…</source>
        <translation>Exportar &amp;los datos…</translation>
    </message>
    <message>
        <source>Show in the race &amp;analyzer</source>
        <translation>Mostrar en el anali&amp;zador de carreras</translation>
    </message>
    <message>
        <source>Compare fil&amp;ms of the run…</source>
        <translation>Comparar los ví&amp;deos de la manga…</translation>
    </message>
    <message>
        <source>Kayak &amp;cross of this race</source>
        <translation>&amp;Kayak cross de esta carrera</translation>
    </message>
    <message>
        <source>Open a folder of videos</source>
        <translation>Abrir una carpeta de vídeos</translation>
    </message>
    <message>
        <source>Race and &amp;course…</source>
        <translation>&amp;Carrera y recorrido…</translation>
    </message>
    <message>
        <source>Names of the &amp;films…</source>
        <translation>Nombres de los &amp;vídeos…</translation>
    </message>
    <message>
        <source>&amp;Previous run</source>
        <translation>Manga &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next run</source>
        <translation>Manga &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Find an athlete</source>
        <translation>Buscar &amp;un deportista</translation>
    </message>
    <message>
        <source>Move the run up</source>
        <translation>Subir la manga</translation>
    </message>
    <message>
        <source>Move the run down</source>
        <translation>Bajar la manga</translation>
    </message>
    <message>
        <source>Remove the run from the list</source>
        <translation>Quitar la manga de la lista</translation>
    </message>
    <message>
        <source>Delete &amp;all data…</source>
        <translation>Borrar &amp;todos los datos…</translation>
    </message>
    <message>
        <source>&amp;Mark</source>
        <translation>&amp;Marcar</translation>
    </message>
    <message>
        <source>&amp;Mark the split</source>
        <translation>&amp;Marcar el parcial</translation>
    </message>
    <message>
        <source>To where the next split is e&amp;xpected</source>
        <translation>A donde se &amp;espera el siguiente parcial</translation>
    </message>
    <message>
        <source>To the start mark</source>
        <translation>A la marca de salida</translation>
    </message>
    <message>
        <source>To split &amp;%1</source>
        <translation>Al parcial &amp;%1</translation>
    </message>
    <message>
        <source>&amp;Gates</source>
        <translation>Puer&amp;tas</translation>
    </message>
    <message>
        <source>&amp;Touch: 2 s</source>
        <translation>&amp;Toque: 2 s</translation>
    </message>
    <message>
        <source>Missed gate: &amp;50 s</source>
        <translation>Salto de puerta: &amp;50 s</translation>
    </message>
    <message>
        <source>&amp;Clean</source>
        <translation>&amp;Limpia</translation>
    </message>
    <message>
        <source>&amp;Next gate</source>
        <translation>Puerta &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous gate</source>
        <translation>Puerta &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Cameras</source>
        <translation>&amp;Cámaras</translation>
    </message>
    <message>
        <source>&amp;Add another camera of this run…</source>
        <translation>&amp;Añadir otra cámara de esta manga…</translation>
    </message>
    <message>
        <source>&amp;Where are the films now?…</source>
        <translation>¿&amp;Dónde están ahora los vídeos?…</translation>
    </message>
    <message>
        <source>Last camera one frame back</source>
        <translation>Última cámara, un fotograma atrás</translation>
    </message>
    <message>
        <source>Last camera one frame forward</source>
        <translation>Última cámara, un fotograma adelante</translation>
    </message>
    <message>
        <source>&amp;Larger: without the table, the film alone, all again</source>
        <translation>&amp;Más grande: sin la tabla, solo el vídeo, todo de nuevo</translation>
    </message>
    <message>
        <source>The frames shown are &amp;one moment</source>
        <translation>&amp;Los fotogramas mostrados son un mismo momento</translation>
    </message>
    <message>
        <source>&amp;Draw the course…</source>
        <translation>Di&amp;bujar el recorrido…</translation>
    </message>
    <message>
        <source>Sl&amp;it picture of the last camera</source>
        <translation>&amp;Imagen de línea de la última cámara</translation>
    </message>
    <message>
        <source>There is no film here that has a slit picture.</source>
        <translation>Aquí no hay ningún vídeo que tenga imagen de línea.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakingDocument</name>
    <message>
        <source>Save a copy as</source>
        <translation>Guardar una copia como</translation>
    </message>
    <message>
        <source>Split files (*.kvx)</source>
        <translation>Archivos de parciales (*.kvx)</translation>
    </message>
    <message>
        <source> &quot;Save as…&quot; writes a copy in the present release and opens it here; its films stay where they are.</source>
        <translation> «Guardar como…» escribe una copia en la versión actual y la abre aquí; sus vídeos se quedan donde están.</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>names of the films</source>
        <translation>nombres de los vídeos</translation>
    </message>
    <message>
        <source>run removed</source>
        <translation>manga quitada</translation>
    </message>
    <message>
        <source>run moved</source>
        <translation>manga movida</translation>
    </message>
    <message>
        <source>videos imported</source>
        <translation>vídeos importados</translation>
    </message>
    <message>
        <source>split file imported</source>
        <translation>archivo de parciales importado</translation>
    </message>
    <message>
        <source>official results imported</source>
        <translation>resultados oficiales importados</translation>
    </message>
    <message>
        <source>official result of %1</source>
        <translation>resultado oficial de %1</translation>
    </message>
    <message>
        <source>1 run</source>
        <translation>1 manga</translation>
    </message>
    <message>
        <source>%1 with %2 is emptied. Ctrl+Z brings it back.</source>
        <translation>Se vacía %1 con %2. Ctrl+Z lo recupera.</translation>
    </message>
    <message>
        <source>reset</source>
        <translation>reinicio</translation>
    </message>
    <message>
        <source>1 start without a split is not stored in the file. This computer keeps it, and offers it when the file is opened here again.</source>
        <translation>1 salida sin parcial no se guarda en el archivo. Este ordenador la conserva y la ofrece cuando el archivo se vuelve a abrir aquí.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message numerus="yes">
        <source>%n runs</source>
        <translation>
            <numerusform>%n manga</numerusform>
            <numerusform>%n mangas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n starts without a split are not stored in the file. This computer keeps them, and offers them when the file is opened here again.</source>
        <translation>
            <numerusform>%n salida sin parcial no se guarda en el archivo. Este ordenador la conserva y la ofrece cuando el archivo se vuelve a abrir aquí.</numerusform>
            <numerusform>%n salidas sin parcial no se guardan en el archivo. Este ordenador las conserva y las ofrece cuando el archivo se vuelve a abrir aquí.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TakingWindow</name>
    <message>
        <source>correction</source>
        <translation>corrección</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Cat</source>
        <translation>Cat</translation>
    </message>
    <message>
        <source>Phase</source>
        <translation>Fase</translation>
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
        <translation>toma de parciales</translation>
    </message>
    <message>
        <source>Athlete&apos;s name</source>
        <translation>Nombre del deportista</translation>
    </message>
    <message>
        <source>Enter finds the athlete&apos;s next run, or collects a training file of all videos with that name</source>
        <translation>Intro busca la siguiente manga del deportista, o reúne un archivo de entrenamiento de todos los vídeos con ese nombre</translation>
    </message>
    <message>
        <source>Race &amp;day, or the table of the race</source>
        <translation>&amp;Día de la carrera, o la tabla de la carrera</translation>
    </message>
    <message>
        <source>In which folder do the films appear?</source>
        <translation>¿En qué carpeta aparecen los vídeos?</translation>
    </message>
    <message>
        <source>A click on a time shows its frame</source>
        <translation>Un clic en un tiempo muestra su fotograma</translation>
    </message>
    <message>
        <source>penalty at gate %1</source>
        <translation>penalización en la puerta %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TeamAthleteDialog</name>
    <message>
        <source>New athlete</source>
        <translation>Nuevo deportista</translation>
    </message>
    <message>
        <source>Written in capitals in the team</source>
        <translation>En el equipo se escribe en mayúsculas</translation>
    </message>
    <message>
        <source>Such as 1998</source>
        <translation>Por ejemplo 1998</translation>
    </message>
    <message>
        <source>&amp;Surname</source>
        <translation>&amp;Apellido</translation>
    </message>
    <message>
        <source>&amp;Given name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>&amp;Born in</source>
        <translation>Na&amp;cido en</translation>
    </message>
    <message>
        <source>Boats</source>
        <translation>Barcos</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TeamDocument</name>
    <message>
        <source>It is no team file, or a damaged one: %1</source>
        <translation>No es un archivo de equipo, o está dañado: %1</translation>
    </message>
    <message>
        <source>averages</source>
        <translation>medias</translation>
    </message>
    <message>
        <source>1 athlete</source>
        <translation>1 deportista</translation>
    </message>
    <message numerus="yes">
        <source>%n athletes</source>
        <translation>
            <numerusform>%n deportista</numerusform>
            <numerusform>%n deportistas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TeamWindow</name>
    <message>
        <source>Take results over</source>
        <translation>Incorporar resultados</translation>
    </message>
    <message>
        <source>Split files and result lists (*.kvx *.csv *.txt);;All files (*)</source>
        <translation>Archivos de parciales y listas de resultados (*.kvx *.csv *.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>“%1” cannot be taken over</source>
        <translation>«%1» no se puede incorporar</translation>
    </message>
    <message>
        <source>There are no results in it.</source>
        <translation>No contiene resultados.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>There are no runs in it.</source>
        <translation>No contiene ninguna manga.</translation>
    </message>
    <message>
        <source>results taken over</source>
        <translation>resultados incorporados</translation>
    </message>
    <message>
        <source>Team</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>new athlete</source>
        <translation>deportista nuevo</translation>
    </message>
    <message>
        <source>removal of an athlete</source>
        <translation>eliminación de un deportista</translation>
    </message>
    <message>
        <source>new category</source>
        <translation>categoría nueva</translation>
    </message>
    <message>
        <source>removal of a category</source>
        <translation>eliminación de una categoría</translation>
    </message>
    <message>
        <source>Choose an athlete and a category first.</source>
        <translation>Elige antes un deportista y una categoría.</translation>
    </message>
    <message>
        <source>Add a season first.</source>
        <translation>Añade antes una temporada.</translation>
    </message>
    <message>
        <source>Choose a category first.</source>
        <translation>Elige antes una categoría.</translation>
    </message>
    <message>
        <source>No athlete comes into question in %1: two seasons are needed, with a final position in one of the first two.</source>
        <translation>En %1 ningún deportista entra en consideración: hacen falta dos temporadas, con una posición final en una de las dos primeras.</translation>
    </message>
    <message>
        <source>Categorization %1</source>
        <translation>Categorización %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestListPanel</name>
    <message>
        <source>All tests</source>
        <translation>Todas las pruebas</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Deportista</translation>
    </message>
    <message>
        <source>Ticked tests are laid over the chosen one (Space)</source>
        <translation>Las pruebas marcadas se superponen a la elegida (Espacio)</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Prueba</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>All athletes</source>
        <translation>Todos los deportistas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestSessionWindow</name>
    <message>
        <source>Time (s)</source>
        <translation>Tiempo (s)</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>There are no values in this attempt.</source>
        <translation>En este intento no hay valores.</translation>
    </message>
    <message>
        <source>Heart rate (1/min)</source>
        <translation>Frecuencia cardiaca (1/min)</translation>
    </message>
    <message>
        <source>Test session</source>
        <translation>Sesión de pruebas</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>&amp;Export the table…</source>
        <translation>E&amp;xportar la tabla…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened</source>
        <translation>«%1» no se puede abrir</translation>
    </message>
    <message>
        <source>Attempt %1
%2 stroke values, %3 of the sprint</source>
        <translation>Intento %1
%2 valores de paladas, %3 del esprint</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Todos los tipos</translation>
    </message>
    <message>
        <source>Sprint data</source>
        <translation>Datos del esprint</translation>
    </message>
    <message>
        <source>Export the table</source>
        <translation>Exportar la tabla</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv)</source>
        <translation>Texto separado por punto y coma (*.csv)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestsDocument</name>
    <message>
        <source>It is no file of tests, or a damaged one: %1</source>
        <translation>No es un archivo de pruebas, o está dañado: %1</translation>
    </message>
    <message>
        <source>removal of tests</source>
        <translation>eliminación de pruebas</translation>
    </message>
    <message>
        <source>1 test</source>
        <translation>1 prueba</translation>
    </message>
    <message numerus="yes">
        <source>%n tests</source>
        <translation>
            <numerusform>%n prueba</numerusform>
            <numerusform>%n pruebas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TestsWindow</name>
    <message>
        <source>Take tests in from a split file</source>
        <translation>Incorporar pruebas de un archivo de parciales</translation>
    </message>
    <message>
        <source>Split files (*.kvx);;All files (*)</source>
        <translation>Archivos de parciales (*.kvx);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Take a test in from a recording</source>
        <translation>Incorporar una prueba de una grabación</translation>
    </message>
    <message>
        <source>Recordings (*.kvb);;All files (*)</source>
        <translation>Grabaciones (*.kvb);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>“%1” cannot be taken in</source>
        <translation>«%1» no se puede incorporar</translation>
    </message>
    <message>
        <source>There are no runs in it.</source>
        <translation>No contiene ninguna manga.</translation>
    </message>
    <message>
        <source>tests taken in</source>
        <translation>pruebas incorporadas</translation>
    </message>
    <message>
        <source>test taken in</source>
        <translation>prueba incorporada</translation>
    </message>
    <message>
        <source>It is no raw recording, or a damaged one: %1</source>
        <translation>No es una grabación en bruto, o está dañada: %1</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Pruebas</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>One ticked test is of another kind and left out here.</source>
        <translation>Una prueba marcada es de otro tipo y aquí se omite.</translation>
    </message>
    <message>
        <source>%1 ticked tests are of another kind and left out here.</source>
        <translation>%1 pruebas marcadas son de otro tipo y aquí se omiten.</translation>
    </message>
    <message>
        <source>new eight test</source>
        <translation>nueva prueba del ocho</translation>
    </message>
    <message>
        <source>new sprint</source>
        <translation>nuevo esprint</translation>
    </message>
    <message>
        <source>new lap test</source>
        <translation>nueva prueba de vueltas</translation>
    </message>
    <message>
        <source>copy of a test</source>
        <translation>copia de una prueba</translation>
    </message>
    <message>
        <source>Export the table of tests</source>
        <translation>Exportar la tabla de pruebas</translation>
    </message>
    <message>
        <source>Semicolon-separated text (*.csv);;All files (*)</source>
        <translation>Texto separado por punto y coma (*.csv);;Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TickStrip</name>
    <message>
        <source>Other marks</source>
        <translation>Otras marcas</translation>
    </message>
    <message>
        <source>A click shows the frame of a mark</source>
        <translation>Un clic muestra el fotograma de una marca</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TimeLine</name>
    <message>
        <source>Time line</source>
        <translation>Línea de tiempo</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TimerFace</name>
    <message>
        <source>%1 – paused</source>
        <translation>%1 – en pausa</translation>
    </message>
    <message>
        <source>Set %1 of %2   ·   Repetition %3 of %4</source>
        <translation>Serie %1 de %2   ·   Repetición %3 de %4</translation>
    </message>
    <message>
        <source>Well done.</source>
        <translation>Bien hecho.</translation>
    </message>
    <message>
        <source>Next: the end</source>
        <translation>Después: el final</translation>
    </message>
    <message>
        <source>Next: %1 %2</source>
        <translation>Después: %1 %2</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ToolWindow</name>
    <message>
        <source>%1 files (*.%2)</source>
        <translation>Archivos %1 (*.%2)</translation>
    </message>
    <message>
        <source>%1, saving…</source>
        <translation>%1, guardando…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Guardar c&amp;omo…</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Open it again</source>
        <translation>Volver a abrir</translation>
    </message>
    <message>
        <source>Keep what is here</source>
        <translation>Conservar lo que hay aquí</translation>
    </message>
    <message>
        <source>⚠ Another program changed “%1”. What is shown here is from before.</source>
        <translation>⚠ Otro programa ha cambiado «%1». Lo que se muestra aquí es anterior.</translation>
    </message>
    <message>
        <source>⚠ “%1” is no longer in its folder. Saving puts it there again.</source>
        <translation>⚠ «%1» ya no está en su carpeta. Al guardar se vuelve a poner ahí.</translation>
    </message>
    <message>
        <source>Opening “%1” again gives up what was not saved here.</source>
        <translation>Volver a abrir «%1» descarta lo que no se guardó aquí.</translation>
    </message>
    <message>
        <source>Bring &amp;back earlier work…</source>
        <translation>&amp;Recuperar trabajo anterior…</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>I&amp;nicio</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>A&amp;justes…</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>C&amp;errar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Saving… The window closes when the file is written.</source>
        <translation>Guardando… La ventana se cierra cuando el archivo está escrito.</translation>
    </message>
    <message>
        <source>Saving… What is to be opened follows when the file is written.</source>
        <translation>Guardando… Lo que se va a abrir viene cuando el archivo está escrito.</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Leyendo %1…</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TotalsChart</name>
    <message>
        <source>No run has a time for the whole course yet.</source>
        <translation>Ninguna manga tiene aún un tiempo del recorrido entero.</translation>
    </message>
    <message>
        <source>Time and penalties of %1</source>
        <translation>Tiempo y penalizaciones de %1</translation>
    </message>
    <message>
        <source>Seconds on the course, without penalties</source>
        <translation>Segundos en el recorrido, sin penalizaciones</translation>
    </message>
    <message>
        <source> · %1 without a total</source>
        <translation> · %1 sin total</translation>
    </message>
    <message>
        <source>Penalty seconds</source>
        <translation>Segundos de penalización</translation>
    </message>
    <message>
        <source>← slower      faster →</source>
        <translation>← más lento      más rápido →</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Penalties</source>
        <translation>Penalizaciones</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Manga</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Seleccionada</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totales</translation>
    </message>
    <message>
        <source>Total time against penalties</source>
        <translation>Tiempo total frente a penalizaciones</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackDocument</name>
    <message>
        <source>It is no path on a film, or a damaged one: %1</source>
        <translation>No es una trayectoria sobre un vídeo, o está dañada: %1</translation>
    </message>
    <message>
        <source>a path of 1 frame</source>
        <translation>una trayectoria de 1 fotograma</translation>
    </message>
    <message>
        <source>a path of %1 frames</source>
        <translation>una trayectoria de %1 fotogramas</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackLine</name>
    <message>
        <source>Coloured where the path is known; diamonds are the boxes that were drawn. Click to go there.</source>
        <translation>Coloreado donde se conoce la trayectoria; los rombos son los recuadros dibujados. Un clic va ahí.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackOffsetDialog</name>
    <message>
        <source>Track of a watch</source>
        <translation>Track de un reloj</translation>
    </message>
    <message>
        <source>The clock of the watch is perhaps wrong. Say when the track began in truth.</source>
        <translation>El reloj quizá no va en hora. Indica cuándo empezó en realidad el track.</translation>
    </message>
    <message>
        <source>With the &amp;recording</source>
        <translation>Con la &amp;grabación</translation>
    </message>
    <message>
        <source>Both were started at the same moment</source>
        <translation>Los dos se iniciaron en el mismo momento</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>Track, by its clock</source>
        <translation>Track, según su reloj</translation>
    </message>
    <message>
        <source>The track &amp;began</source>
        <translation>El track &amp;empezó</translation>
    </message>
    <message>
        <source>Join it</source>
        <translation>Unirlo</translation>
    </message>
    <message>
        <source>%1 of %2 positions and %3 of %4 heart rates lie in the recording, or a minute around it.</source>
        <translation>%1 de %2 posiciones y %3 de %4 frecuencias cardiacas están en la grabación, o a un minuto de ella.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackOverlay</name>
    <message>
        <source>Box round what is followed</source>
        <translation>Recuadro alrededor de lo que se sigue</translation>
    </message>
    <message>
        <source>Draw a box round boat, head or gate. By keys: B proposes a box, arrows move it, with Shift they size it, Enter takes it.</source>
        <translation>Dibuja un recuadro alrededor de un barco, una cabeza o una puerta. Con teclas: B propone un recuadro, las flechas lo mueven, con Mayús cambian su tamaño, Intro lo toma.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrackingWindow</name>
    <message>
        <source>Tracking</source>
        <translation>Seguimiento</translation>
    </message>
    <message>
        <source>Paths on films (*.track.json)</source>
        <translation>Trayectorias sobre vídeos (*.track.json)</translation>
    </message>
    <message>
        <source>Open a film, then draw a box round what is to be followed.</source>
        <translation>Abre un vídeo y dibuja un recuadro alrededor de lo que se va a seguir.</translation>
    </message>
    <message>
        <source>Following: %p %</source>
        <translation>Siguiendo: %p&#xa0;%</translation>
    </message>
    <message>
        <source>&amp;Open a film or a path…</source>
        <translation>&amp;Abrir un vídeo o una trayectoria…</translation>
    </message>
    <message>
        <source>&amp;Export the path as CSV…</source>
        <translation>Exportar la &amp;trayectoria como CSV…</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Reproducir</translation>
    </message>
    <message>
        <source>&amp;Play or pause</source>
        <translation>&amp;Reproducir o pausar</translation>
    </message>
    <message>
        <source>One frame ba&amp;ck</source>
        <translation>Un fotograma a&amp;trás</translation>
    </message>
    <message>
        <source>One frame &amp;on</source>
        <translation>Un fotograma a&amp;delante</translation>
    </message>
    <message>
        <source>P&amp;ath</source>
        <translation>Trayec&amp;toria</translation>
    </message>
    <message>
        <source>Propose a &amp;box</source>
        <translation>Proponer un &amp;recuadro</translation>
    </message>
    <message>
        <source>&amp;Take the box of this frame away</source>
        <translation>&amp;Quitar el recuadro de este fotograma</translation>
    </message>
    <message>
        <source>To the next &amp;gap</source>
        <translation>Al siguiente &amp;hueco</translation>
    </message>
    <message>
        <source>&amp;Stop following</source>
        <translation>&amp;Dejar de seguir</translation>
    </message>
    <message>
        <source>Click &amp;known points</source>
        <translation>Marcar puntos &amp;conocidos</translation>
    </message>
    <message>
        <source>&amp;Forget the known points</source>
        <translation>&amp;Olvidar los puntos conocidos</translation>
    </message>
    <message>
        <source>It lies on the &amp;water</source>
        <translation>Está en el &amp;agua</translation>
    </message>
    <message>
        <source>whether it lies on the water</source>
        <translation>si está en el agua</translation>
    </message>
    <message>
        <source>Open a film or a path on one</source>
        <translation>Abrir un vídeo o una trayectoria sobre uno</translation>
    </message>
    <message>
        <source>Films and paths (*.mp4 *.mov *.m4v *.mkv *.avi *.mts *.track.json);;All files (*)</source>
        <translation>Vídeos y trayectorias (*.mp4 *.mov *.m4v *.mkv *.avi *.mts *.track.json);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The film %1 is not there.</source>
        <translation>El vídeo %1 no está ahí.</translation>
    </message>
    <message>
        <source>%1 s · frame %2</source>
        <translation>%1 s · fotograma %2</translation>
    </message>
    <message>
        <source>The film is still being read. Draw the box again in a moment.</source>
        <translation>El vídeo aún se está leyendo. Vuelve a dibujar el recuadro dentro de un momento.</translation>
    </message>
    <message>
        <source>Stop following first, with Escape.</source>
        <translation>Deja antes de seguir, con Esc.</translation>
    </message>
    <message>
        <source>box</source>
        <translation>recuadro</translation>
    </message>
    <message>
        <source>Following. Escape stops it.</source>
        <translation>Siguiendo. Esc lo detiene.</translation>
    </message>
    <message>
        <source>The boxes were changed meanwhile, so that the path was not taken over. Draw the box again.</source>
        <translation>Mientras tanto se cambiaron los recuadros, así que la trayectoria no se ha incorporado. Vuelve a dibujar el recuadro.</translation>
    </message>
    <message>
        <source>path</source>
        <translation>trayectoria</translation>
    </message>
    <message>
        <source>Lost at %1 s. Draw a new box here, or where it is seen again; what lies between stays a gap until both sides meet.</source>
        <translation>Perdido en %1 s. Dibuja un recuadro nuevo aquí, o donde se vuelva a ver; lo que queda en medio es un hueco hasta que los dos lados se encuentren.</translation>
    </message>
    <message>
        <source>Followed without a gap.</source>
        <translation>Seguido sin huecos.</translation>
    </message>
    <message>
        <source>Followed, with one gap. G goes there.</source>
        <translation>Seguido, con un hueco. G va a él.</translation>
    </message>
    <message>
        <source>Followed, with %1 gaps. G goes to the next one.</source>
        <translation>Seguido, con %1 huecos. G va al siguiente.</translation>
    </message>
    <message>
        <source>No box was drawn in this frame.</source>
        <translation>En este fotograma no se dibujó ningún recuadro.</translation>
    </message>
    <message>
        <source>removal of a box</source>
        <translation>eliminación de un recuadro</translation>
    </message>
    <message>
        <source>The path has no gap.</source>
        <translation>La trayectoria no tiene huecos.</translation>
    </message>
    <message>
        <source>Click the foot of a gate&apos;s poles where they meet the water, four for metres or two for a scale only, then type where they stand. P ends it.</source>
        <translation>Haz clic al pie de los palos de una puerta, donde tocan el agua, cuatro para metros o dos solo para una escala, y escribe después dónde están. P termina.</translation>
    </message>
    <message>
        <source>Four known points are the most. Take one away first.</source>
        <translation>Cuatro puntos conocidos es el máximo. Quita antes uno.</translation>
    </message>
    <message>
        <source>The known points belong into one frame; this is where the first one was clicked.</source>
        <translation>Los puntos conocidos van en un mismo fotograma; este es donde se hizo clic en el primero.</translation>
    </message>
    <message>
        <source>known point</source>
        <translation>punto conocido</translation>
    </message>
    <message>
        <source>removal of the known points</source>
        <translation>eliminación de los puntos conocidos</translation>
    </message>
    <message>
        <source>Export the path</source>
        <translation>Exportar la trayectoria</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tablas (*.csv)</translation>
    </message>
    <message>
        <source>%1 is there.</source>
        <translation>%1 está listo.</translation>
    </message>
    <message>
        <source>The path could not be exported</source>
        <translation>No se pudo exportar la trayectoria</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TradeOffPanel</name>
    <message>
        <source>In percent of the median of its group</source>
        <translation>En porcentaje de la mediana de su grupo</translation>
    </message>
    <message>
        <source>By paddling time</source>
        <translation>Por tiempo de paleo</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Mangas</translation>
    </message>
    <message>
        <source>Touches a run</source>
        <translation>Toques por manga</translation>
    </message>
    <message>
        <source>90 %</source>
        <translation>90&#xa0;%</translation>
    </message>
    <message>
        <source>Exact interval of the touches</source>
        <translation>Intervalo exacto de los toques</translation>
    </message>
    <message>
        <source>Missed a run</source>
        <translation>Saltos/manga</translation>
    </message>
    <message>
        <source>Paddling %</source>
        <translation>Paleo %</translation>
    </message>
    <message>
        <source>Total %</source>
        <translation>Total %</translation>
    </message>
    <message>
        <source>No group has enough whole runs to be divided.</source>
        <translation>Ningún grupo tiene suficientes mangas enteras para dividirlo.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrialList</name>
    <message>
        <source>New athlete</source>
        <translation>Nuevo deportista</translation>
    </message>
    <message>
        <source>Enter adds a time trial of that athlete; Esc gives the keys back to the film</source>
        <translation>Intro añade una contrarreloj de ese deportista; Esc devuelve las teclas al vídeo</translation>
    </message>
    <message>
        <source>A time trial needs the name of its athlete.</source>
        <translation>Una contrarreloj necesita el nombre de su deportista.</translation>
    </message>
    <message>
        <source>Pos</source>
        <translation>Pos</translation>
    </message>
    <message>
        <source>Athlete</source>
        <translation>Deportista</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>⚠ missing</source>
        <translation>⚠ falta</translation>
    </message>
    <message>
        <source>%1 is not in the folder</source>
        <translation>%1 no está en la carpeta</translation>
    </message>
    <message>
        <source>Add an athlete</source>
        <translation>Añadir un deportista</translation>
    </message>
    <message>
        <source>Re&amp;name the athlete</source>
        <translation>&amp;Cambiar el nombre del deportista</translation>
    </message>
    <message>
        <source>&amp;Film…</source>
        <translation>&amp;Vídeo…</translation>
    </message>
    <message>
        <source>R&amp;emove the trial</source>
        <translation>&amp;Quitar la contrarreloj</translation>
    </message>
    <message>
        <source>Film…</source>
        <translation>Vídeo…</translation>
    </message>
    <message>
        <source>Chooses the film of the selected trial</source>
        <translation>Elige el vídeo de la contrarreloj seleccionada</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Removes the selected trial</source>
        <translation>Quita la contrarreloj seleccionada</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::TrialPage</name>
    <message>
        <source>Start</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Gate %1 %2</source>
        <translation>Puerta %1 %2</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Esquimotaje</translation>
    </message>
    <message>
        <source>Gate %1</source>
        <translation>Puerta %1</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Parcial</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>From the start</source>
        <translation>Desde el inicio</translation>
    </message>
    <message>
        <source>%1 boats</source>
        <translation>%1 barcos</translation>
    </message>
    <message>
        <source>How many boats go on to the heats</source>
        <translation>Cuántos barcos pasan a las series</translation>
    </message>
    <message>
        <source>Make heats from the trials</source>
        <translation>Hacer series a partir de las contrarrelojes</translation>
    </message>
    <message>
        <source>Heats of four, the fastest against the slowest. Heats that exist stay.</source>
        <translation>Series de cuatro, los más rápidos contra los más lentos. Las series que existen se mantienen.</translation>
    </message>
    <message>
        <source>Splits</source>
        <translation>Parciales</translation>
    </message>
    <message>
        <source>Upstream gates</source>
        <translation>Remontes</translation>
    </message>
    <message>
        <source>A click shows the frame of a split</source>
        <translation>Un clic muestra el fotograma de un parcial</translation>
    </message>
    <message>
        <source>gate %1</source>
        <translation>puerta %1</translation>
    </message>
    <message>
        <source>roll</source>
        <translation>esquimotaje</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>time trial of %1</source>
        <translation>contrarreloj de %1</translation>
    </message>
    <message>
        <source>films imported</source>
        <translation>vídeos importados</translation>
    </message>
    <message>
        <source>film of the trial</source>
        <translation>vídeo de la contrarreloj</translation>
    </message>
    <message>
        <source>athlete renamed</source>
        <translation>nombre de deportista cambiado</translation>
    </message>
    <message>
        <source>time trial removed</source>
        <translation>contrarreloj quitada</translation>
    </message>
    <message>
        <source>No trial has a time yet: heats are made from the fastest ones.</source>
        <translation>Ninguna contrarreloj tiene aún un tiempo: las series se hacen con las más rápidas.</translation>
    </message>
    <message>
        <source>There are heats already. They stay as they are, and those from the trials come behind them.</source>
        <translation>Ya hay series. Se quedan como están, y las de las contrarrelojes van detrás.</translation>
    </message>
    <message>
        <source>Make heats</source>
        <translation>Hacer series</translation>
    </message>
    <message>
        <source>heats from the trials</source>
        <translation>series a partir de las contrarrelojes</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Updates</name>
    <message>
        <source>Newer versions</source>
        <translation>Versiones nuevas</translation>
    </message>
    <message>
        <source>May Kavela look once a day whether there is a newer version? It tells the server the version that you have, and nothing else. Without a yes it never looks by itself. You can change this in the settings.</source>
        <translation>¿Puede Kavela mirar una vez al día si hay una versión nueva? Le dice al servidor la versión que tienes, y nada más. Sin un sí no mira nunca por su cuenta. Puedes cambiarlo en los ajustes.</translation>
    </message>
    <message>
        <source>Yes, look once a day</source>
        <translation>Sí, mirar una vez al día</translation>
    </message>
    <message>
        <source>Looking for a newer version…</source>
        <translation>Buscando una versión nueva…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::UpstreamPage</name>
    <message>
        <source>Gate</source>
        <translation>Puerta</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Mark the pole line too</source>
        <translation>Marcar también la línea de la puerta</translation>
    </message>
    <message>
        <source>Turn to the</source>
        <translation>Giro a la</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>Gate %1 is marked. N goes to the next gate, Shift+M moves the selected mark.</source>
        <translation>La puerta %1 está marcada. N va a la puerta siguiente, Mayús+M mueve la marca seleccionada.</translation>
    </message>
    <message>
        <source>Gate %1 is no upstream gate. N goes to the next one.</source>
        <translation>La puerta %1 no es un remonte. N va al siguiente.</translation>
    </message>
    <message>
        <source>%1 of gate %2</source>
        <translation>%1 de la puerta %2</translation>
    </message>
    <message>
        <source>Gate %1 %2</source>
        <translation>Puerta %1 %2</translation>
    </message>
    <message>
        <source>gate %1 removed</source>
        <translation>puerta %1 quitada</translation>
    </message>
    <message>
        <source>The marks of gate %1 are removed. Ctrl+Z brings them back.</source>
        <translation>Las marcas de la puerta %1 se han quitado. Ctrl+Z las recupera.</translation>
    </message>
    <message>
        <source>Gate %1 is no upstream gate</source>
        <translation>La puerta %1 no es un remonte</translation>
    </message>
    <message>
        <source>Gate %1: M marks the %2</source>
        <translation>Puerta %1: M marca: %2</translation>
    </message>
    <message>
        <source>Gate %1 is marked</source>
        <translation>La puerta %1 está marcada</translation>
    </message>
    <message>
        <source>%1 s in the gate</source>
        <translation>%1 s en la puerta</translation>
    </message>
    <message>
        <source>gate %1</source>
        <translation>puerta %1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::ValuesPanel</name>
    <message>
        <source>No test yet.

Add one by hand with Ctrl+N, or drop split files and recordings here.</source>
        <translation>Aún no hay pruebas.

Añade una a mano con Ctrl+N, o suelta aquí archivos de parciales y grabaciones.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::VariabilityDialog</name>
    <message>
        <source>There is no measurement in this list.</source>
        <translation>En esta lista no hay ninguna medición.</translation>
    </message>
    <message>
        <source>All %1 measurements of this list are there already.</source>
        <translation>Las %1 mediciones de esta lista ya están.</translation>
    </message>
    <message>
        <source>1 measurement is new.</source>
        <translation>1 medición es nueva.</translation>
    </message>
    <message>
        <source>1 other is there already.</source>
        <translation>1 más ya está.</translation>
    </message>
    <message>
        <source>Import variability</source>
        <translation>Importar variabilidad</translation>
    </message>
    <message>
        <source>1 line is left out:</source>
        <translation>1 línea se omite:</translation>
    </message>
    <message>
        <source>Add 1 measurement</source>
        <translation>Añadir 1 medición</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message numerus="yes">
        <source>%n measurements are new.</source>
        <translation>
            <numerusform>%n medición es nueva.</numerusform>
            <numerusform>%n mediciones son nuevas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n others are there already.</source>
        <translation>
            <numerusform>%n más ya está.</numerusform>
            <numerusform>%n más ya están.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines are left out:</source>
        <translation>
            <numerusform>%n línea se omite:</numerusform>
            <numerusform>%n líneas se omiten:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n measurements</source>
        <translation>
            <numerusform>Añadir %n medición</numerusform>
            <numerusform>Añadir %n mediciones</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WaterfallChart</name>
    <message>
        <source>One of the two has no total, so there is no sum. The sections that both have stand in the table and in the other charts.</source>
        <translation>Una de las dos no tiene total, así que no hay suma. Los tramos que ambas tienen están en la tabla y en los otros gráficos.</translation>
    </message>
    <message>
        <source>Sections, penalties and timing from total to total</source>
        <translation>Tramos, penalizaciones y cronometraje, de total a total</translation>
    </message>
    <message>
        <source>penalties</source>
        <translation>penalizaciones</translation>
    </message>
    <message>
        <source>timing</source>
        <translation>cronometraje</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Mostrada</translation>
    </message>
    <message>
        <source>Up to here</source>
        <translation>Hasta aquí</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Parte</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WeekForm</name>
    <message>
        <source>Macrocycle</source>
        <translation>Macrociclo</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mesociclo</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>On-water test</source>
        <translation>Prueba en el agua</translation>
    </message>
    <message>
        <source>done on</source>
        <translation>hecho el</translation>
    </message>
    <message>
        <source>Endurance test</source>
        <translation>Prueba de resistencia</translation>
    </message>
    <message>
        <source>Blood test</source>
        <translation>Análisis de sangre</translation>
    </message>
    <message>
        <source>Injured part</source>
        <translation>Parte lesionada</translation>
    </message>
    <message>
        <source>Health notes</source>
        <translation>Notas de salud</translation>
    </message>
    <message>
        <source>“%1” are no dates. Write them as 2026-03-10, with commas between.</source>
        <translation>«%1» no son fechas. Escríbelas como 2026-03-10, separadas por comas.</translation>
    </message>
    <message>
        <source>dates of tests</source>
        <translation>fechas de pruebas</translation>
    </message>
    <message>
        <source>load</source>
        <translation>carga</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>health</source>
        <translation>salud</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salud</translation>
    </message>
    <message>
        <source>One per line</source>
        <translation>Uno por línea</translation>
    </message>
    <message>
        <source>goals of the week</source>
        <translation>objetivos de la semana</translation>
    </message>
    <message>
        <source>Goals</source>
        <translation>Objetivos</translation>
    </message>
    <message>
        <source>Week %1 · from %2</source>
        <translation>Semana %1 · desde %2</translation>
    </message>
    <message>
        <source>Week %1</source>
        <translation>Semana %1</translation>
    </message>
    <message>
        <source>%1 weeks are chosen: load, cycles and place go into all of them.</source>
        <translation>Hay %1 semanas elegidas: la carga, los ciclos y el lugar van a todas ellas.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WeekGrid</name>
    <message>
        <source>Morning</source>
        <translation>Mañana</translation>
    </message>
    <message>
        <source>Afternoon</source>
        <translation>Tarde</translation>
    </message>
    <message>
        <source>Evening</source>
        <translation>Noche</translation>
    </message>
    <message>
        <source>Any time</source>
        <translation>A cualquier hora</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>On no day of this week</source>
        <translation>En ningún día de esta semana</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyKeys</name>
    <message>
        <source>Go to a number first, or hold Alt and click on it.</source>
        <translation>Ve antes a un número, o haz clic en él manteniendo Alt.</translation>
    </message>
    <message>
        <source>Nothing was computed here.</source>
        <translation>Aquí no se ha calculado nada.</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyLabel</name>
    <message>
        <source>Alt+click or Shift+F1: why</source>
        <translation>Alt+clic o Mayús+F1: por qué</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyPanel</name>
    <message>
        <source>counted</source>
        <translation>cuenta</translation>
    </message>
    <message>
        <source>dropped: worst</source>
        <translation>descartado: el peor</translation>
    </message>
    <message>
        <source>dropped: bonus</source>
        <translation>descartado: bonificación</translation>
    </message>
    <message>
        <source>no result</source>
        <translation>sin resultado</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Porcentaje</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Puntuación</translation>
    </message>
    <message>
        <source>Select an athlete to see where the score comes from.</source>
        <translation>Selecciona un deportista para ver de dónde viene la puntuación.</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Bonus</source>
        <translation>Bonificación</translation>
    </message>
    <message>
        <source>Score: %1 / 3 = %2</source>
        <translation>Puntuación: %1 / 3 = %2</translation>
    </message>
    <message>
        <source>Place: was %1, now %2. Score: was %3, now %4.</source>
        <translation>Puesto: era %1, ahora %2. Puntuación: era %3, ahora %4.</translation>
    </message>
    <message>
        <source>%1 s in %2</source>
        <translation>%1 s en %2</translation>
    </message>
    <message>
        <source>A place better with a total of
%1</source>
        <translation>Un puesto mejor con un total de
%1</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::WhyWindow</name>
    <message>
        <source>Rule: %1</source>
        <translation>Regla: %1</translation>
    </message>
    <message>
        <source>Within %1</source>
        <translation>Dentro de %1</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Fuente: %1</translation>
    </message>
    <message>
        <source>Why this number?</source>
        <translation>¿Por qué este número?</translation>
    </message>
    <message>
        <source>Why %1</source>
        <translation>¿Por qué %1?</translation>
    </message>
    <message>
        <source>What went into it</source>
        <translation>Qué ha entrado en el cálculo</translation>
    </message>
    <message>
        <source>Enter opens a number made on the way, and shows the place of a value</source>
        <translation>Intro abre un número calculado por el camino y muestra el lugar de un valor</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Dónde</translation>
    </message>
    <message>
        <source>Show this place (Enter)</source>
        <translation>Mostrar este lugar (Intro)</translation>
    </message>
    <message>
        <source>%1, link</source>
        <translation>%1, enlace</translation>
    </message>
    <message>
        <source>&amp;Copy as text</source>
        <translation>&amp;Copiar como texto</translation>
    </message>
    <message>
        <source>The whole explanation (%1)</source>
        <translation>La explicación completa (%1)</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::Workspace</name>
    <message>
        <source>Save the changes to %1?</source>
        <translation>¿Guardar los cambios de %1?</translation>
    </message>
</context>
<context>
    <name>kavela::desktop::YearStrip</name>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Macrocycle</source>
        <translation>Macrociclo</translation>
    </message>
    <message>
        <source>Mesocycle</source>
        <translation>Mesociclo</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carga</translation>
    </message>
    <message>
        <source>Week</source>
        <translation>Semana</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Tests</source>
        <translation>Pruebas</translation>
    </message>
</context>
</TS>
