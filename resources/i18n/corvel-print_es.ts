<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AnnouncedPrinters</name>
    <message>
        <source>printers on the network are not listed, because Avahi is not running</source>
        <translation>las impresoras de la red no se muestran, porque Avahi no está en marcha</translation>
    </message>
    <message>
        <source>printers on the network are not listed, because Avahi does not answer</source>
        <translation>las impresoras de la red no se muestran, porque Avahi no responde</translation>
    </message>
</context>
<context>
    <name>ArrangementText</name>
    <message>
        <source>fitted</source>
        <comment>a photo into its print size</comment>
        <translation>ajustada</translation>
    </message>
    <message>
        <source>Fit on the page</source>
        <translation>Ajustar a la página</translation>
    </message>
    <message>
        <source>filled</source>
        <comment>a print size by its photo</comment>
        <translation>rellena</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>Llenar la página</translation>
    </message>
    <message>
        <source>actual size</source>
        <comment>of a photo within its print size</comment>
        <translation>tamaño real</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamaño real</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>a scale</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>border %1</source>
        <translation>borde %1</translation>
    </message>
    <message>
        <source>%1, turned by %2°</source>
        <translation>%1, girada %2°</translation>
    </message>
    <message>
        <source>Differs by photo</source>
        <translation>Difiere según la foto</translation>
    </message>
    <message>
        <source>One photo on each sheet</source>
        <translation>Una foto en cada hoja</translation>
    </message>
    <message>
        <source>%1 rows, %2 columns</source>
        <translation>%1 filas, %2 columnas</translation>
    </message>
    <message>
        <source>As many as fit</source>
        <translation>Tantas como quepan</translation>
    </message>
    <message>
        <source>Contact sheet, %1 rows, %2 columns</source>
        <translation>Hoja de contactos, %1 filas, %2 columnas</translation>
    </message>
    <message>
        <source>Two strips of %1 photos</source>
        <translation>Dos tiras de %1 fotos</translation>
    </message>
    <message>
        <source>the same photo repeated</source>
        <translation>la misma foto repetida</translation>
    </message>
    <message>
        <source>the next photos following</source>
        <translation>las fotos siguientes</translation>
    </message>
    <message>
        <source>%1 pages on each side</source>
        <translation>%1 páginas en cada cara</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Folleto</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>of a document</comment>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Página actual</translation>
    </message>
    <message>
        <source>odd only</source>
        <comment>pages</comment>
        <translation>solo impares</translation>
    </message>
    <message>
        <source>even only</source>
        <comment>pages</comment>
        <translation>solo pares</translation>
    </message>
    <message>
        <source>last one first</source>
        <comment>pages</comment>
        <translation>la última primero</translation>
    </message>
    <message>
        <source>There are no pages after page %1.</source>
        <translation>No hay más páginas después de la página %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>%n foto</numerusform>
            <numerusform>%n fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n página</numerusform>
            <numerusform>%n páginas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>photos and pages</comment>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>No page of &quot;%1&quot; is printed.</source>
        <translation>No se imprime ninguna página de «%1».</translation>
    </message>
</context>
<context>
    <name>BatchRun</name>
    <message>
        <source>%1 Printed before it: %2.</source>
        <translation>%1 Impreso antes: %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Canceled; nothing more is printed.</source>
        <translation>Cancelado; no se imprime nada más.</translation>
    </message>
    <message>
        <source>Canceled; the jobs already sent were canceled, too.</source>
        <translation>Cancelado; los trabajos enviados se han retirado de la impresora.</translation>
    </message>
    <message>
        <source>--one-pdf is for the built-in printer, and this is &quot;%1&quot;. Leave it out, or name the built-in printer.</source>
        <translation>--one-pdf es para la impresora integrada, y esta es «%1». Quítelo o indique la impresora integrada.</translation>
    </message>
</context>
<context>
    <name>BookletSides</name>
    <message>
        <source>A booklet is printed on both sides, turned on the short edge. Another choice does not allow that: look at &quot;%1&quot;.</source>
        <translation>Un folleto se imprime por las dos caras, girado por el borde corto. Otra opción no lo permite: revise «%1».</translation>
    </message>
    <message>
        <source>A booklet is printed on both sides, turned on the short edge: &quot;%1&quot; is set to that.</source>
        <translation>Un folleto se imprime por las dos caras, girado por el borde corto: «%1» está ajustado así.</translation>
    </message>
    <message>
        <source>A booklet is printed on both sides, turned on the short edge. This printer does not do that itself: make one PDF of it with the built-in printer, then print the odd pages of that PDF, and the even ones on their backs.</source>
        <translation>Un folleto se imprime por las dos caras, girado por el borde corto. Esta impresora no lo hace por sí misma: haga con él un PDF con la impresora integrada e imprima las páginas impares de ese PDF y después las pares en su dorso.</translation>
    </message>
</context>
<context>
    <name>ChoiceMarker</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (%2)</source>
        <translation>«%1» (%2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is only the beginning of a number; allowed for the option %2 are %3.</source>
        <translation>«%1» es solo el comienzo de un número; valores posibles de la opción %2: %3.</translation>
    </message>
    <message>
        <source>The option %1 has no choice &quot;%2&quot;; allowed are %3.</source>
        <translation>La opción %1 no tiene el valor «%2»; valores posibles: %3.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 sea %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>%1 cannot be %2 while %3.</source>
        <translation>%1 no puede ser %2 mientras %3.</translation>
    </message>
    <message>
        <source>The printer has no option &quot;%1&quot;; it has %2.</source>
        <translation>La impresora no tiene la opción «%1»; opciones disponibles: %2.</translation>
    </message>
    <message>
        <source>Custom.VALUE (%1)</source>
        <translation>Custom.VALOR (%1)</translation>
    </message>
    <message>
        <source>%1=VALUE (%2)</source>
        <translation>%1=VALOR (%2)</translation>
    </message>
    <message>
        <source>Custom.WIDTHxHEIGHT%1 (from %2 to %3)</source>
        <translation>Custom.ANCHOxALTO%1 (de %2 a %3)</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the built-in printer, with this PPD instead of its own</source>
        <translation>la impresora integrada, con este PPD en lugar del suyo</translation>
    </message>
    <message>
        <source>refuse a conflicting choice at once (constraint, the default),
or check all choices together before printing (settings)</source>
        <translation>rechazar al momento un valor incompatible (constraint, lo normal)
o comprobarlos todos juntos antes de imprimir (settings)</translation>
    </message>
    <message>
        <source>choose for an option of the printer; repeatable, in order</source>
        <translation>valor de una opción de la impresora; repetible, en orden</translation>
    </message>
    <message>
        <source>list the printers, one per line: name, description, state,
&quot;default&quot;; separated by tabs</source>
        <translation>listar las impresoras, una por línea: nombre, descripción, estado,
«predeterminada»; separados por tabuladores</translation>
    </message>
    <message>
        <source>list the printer&apos;s options with their choices and panels</source>
        <translation>listar las opciones de la impresora con sus valores y paneles</translation>
    </message>
    <message>
        <source>show the job in words: the paper, the copies, the placement and
what the panels say; with --batch as well as printing</source>
        <translation>mostrar el trabajo en palabras: papel, copias, colocación y lo que
dicen los paneles; con --batch, además de imprimir</translation>
    </message>
    <message>
        <source>save a picture of the dialog with each panel in DIR, exit</source>
        <translation>guardar en DIR una imagen del diálogo con cada panel y salir</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>mostrar esta ayuda</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>mostrar la versión</translation>
    </message>
    <message>
        <source>The value of --%1 is empty.</source>
        <translation>El valor de --%1 está vacío.</translation>
    </message>
    <message>
        <source>--ppd is for the built-in printer, and --printer names the queue &quot;%1&quot;.</source>
        <translation>--ppd es para la impresora integrada, pero --printer indica la cola «%1».</translation>
    </message>
    <message>
        <source>%1 and %2 exclude each other.</source>
        <translation>%1 y %2 se excluyen mutuamente.</translation>
    </message>
    <message>
        <source>show exactly what --batch would send, and send nothing</source>
        <translation>mostrar exactamente lo que enviaría --batch, sin enviar nada</translation>
    </message>
    <message>
        <source>how long --batch follows its jobs at most (0: not at all); otherwise to
their end. It never waits longer than 10 seconds for a job that is held
or whose printer is stopped, nor than 10 minutes without any news: such a
job stays with the print server, and that is told, with exit status 0</source>
        <translation>cuánto tiempo sigue --batch sus trabajos como máximo (0: nada); si no,
hasta el final. Nunca espera más de 10 segundos por un trabajo retenido o
una impresora detenida, ni más de 10 minutos sin novedades: ese trabajo
queda en el servidor de impresión, se avisa y el código de salida es 0</translation>
    </message>
    <message>
        <source>the print server to ask, instead of this machine&apos;s own</source>
        <translation>el servidor de impresión que se consulta, en lugar del de este equipo</translation>
    </message>
    <message>
        <source>lists, summary and --dry-run as JSON</source>
        <translation>listas, resumen y --dry-run como JSON</translation>
    </message>
    <message>
        <source>--json is for --list-printers, --list-options, --summary and --dry-run.</source>
        <translation>--json es para --list-printers, --list-options, --summary y --dry-run.</translation>
    </message>
    <message>
        <source>--wait is for --batch.</source>
        <translation>--wait es para --batch.</translation>
    </message>
    <message>
        <source>the whole photo on the page (fit, the default), the page filled
and the photo cropped (fill), or the photo by its file&apos;s resolution
(actual; 300 pixels per inch when the file names none)</source>
        <translation>la foto entera en la página (fit, lo predeterminado), la página llena y la
foto recortada (fill) o la foto según la resolución de su archivo
(actual; 300 píxeles por pulgada si el archivo no indica ninguna)</translation>
    </message>
    <message>
        <source>which part of a cropped photo is kept, in per cent from its left
and from its top (otherwise 50,50, the middle)</source>
        <translation>qué parte de una foto recortada se conserva, en tanto por ciento desde su
izquierda y desde arriba (si no, 50,50, el centro)</translation>
    </message>
    <message>
        <source>--crop is for --scaling fill or actual; with fit nothing is cropped.</source>
        <translation>--crop es para --scaling fill o actual; con fit no se recorta nada.</translation>
    </message>
    <message>
        <source>where the built-in printer leaves its files (otherwise the current
folder; with a window, Prints in your Pictures folder)</source>
        <translation>dónde guarda sus archivos la impresora integrada (si no, en la carpeta
actual; con ventana, en Prints de su carpeta de imágenes)</translation>
    </message>
    <message>
        <source>how many copies of each photo; otherwise the preset&apos;s, or 1</source>
        <translation>cuántas copias de cada foto; si no, las del preajuste, o 1</translation>
    </message>
    <message>
        <source>--batch and --dry-run do not look for damage in photos,
and print what is left of them</source>
        <translation>--batch y --dry-run no buscan daños en las fotos
e imprimen lo que queda de ellas</translation>
    </message>
    <message>
        <source>--no-check is for --batch and --dry-run.</source>
        <translation>--no-check es para --batch y --dry-run.</translation>
    </message>
    <message>
        <source>There is no mode &quot;%1&quot;. Choose constraint or settings.</source>
        <translation>No existe el modo «%1». Elija constraint o settings.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a print server. Give it as HOST or HOST:PORT.</source>
        <translation>«%1» no es un servidor de impresión. Indíquelo como HOST o HOST:PORT.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time to wait. Give a number of seconds from 0 to %2.</source>
        <translation>«%1» no es un tiempo de espera. Indique un número de segundos de 0 a %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; copies cannot be printed. Give a number from 1 to %2.</source>
        <translation>No se pueden imprimir «%1» copias. Indique un número de 1 a %2.</translation>
    </message>
    <message>
        <source>There is no scaling &quot;%1&quot;. Choose fit, fill or actual.</source>
        <translation>No existe la escala «%1». Elija fit, fill o actual.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a crop. Give two numbers from 0 to 100, such as 50,0.</source>
        <translation>«%1» no es un recorte. Indique dos números de 0 a 100, por ejemplo 50,0.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an option. Give it as KEY=CHOICE.</source>
        <translation>«%1» no es una opción. Indíquela como KEY=CHOICE.</translation>
    </message>
    <message>
        <source>a print queue, or &quot;built-in&quot; for the built-in printer; with a preset
of it: QUEUE/PRESET. Or a printer&apos;s address, ipp://HOST/ipp/print,
which needs no print server. Otherwise your default queue, or else the
built-in printer</source>
        <translation>una cola de impresión, o «built-in» para la impresora integrada; con
un preajuste suyo: QUEUE/PREAJUSTE. O la dirección de una impresora,
ipp://HOST/ipp/print, sin servidor de impresión. Si no, su cola
predeterminada o, si no hay, la integrada</translation>
    </message>
    <message>
        <source>the job&apos;s title at a print queue; otherwise the photo&apos;s name</source>
        <translation>el título del trabajo en una cola de impresión; si no, el nombre de la foto</translation>
    </message>
    <message>
        <source>--title is for print queues; the built-in printer names its files after the photos.</source>
        <translation>--title es para colas de impresión; la impresora integrada nombra sus archivos según las fotos.</translation>
    </message>
    <message>
        <source>--batch replaces files that the built-in printer has left before,
instead of numbering the new ones, and --preview earlier pictures;
a photo is never replaced</source>
        <translation>--batch reemplaza los archivos que la impresora integrada dejó antes
en lugar de numerar los nuevos, y --preview las imágenes anteriores;
una foto nunca se reemplaza</translation>
    </message>
    <message>
        <source>save a picture of the page as the window shows it, 1200 pixels on its
longer side, and exit; of further photos in FILE-2.png, FILE-3.png, ...</source>
        <translation>guardar una imagen de la página como la muestra la ventana, de 1200 píxeles
en su lado mayor, y salir; las demás fotos en FILE-2.png, FILE-3.png, ...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a picture. Give one that ends in .png.</source>
        <translation>«%1» no es un nombre de imagen. Indique uno que termine en .png.</translation>
    </message>
    <message>
        <source>--overwrite is for --batch, --dry-run and --preview.</source>
        <translation>--overwrite es para --batch, --dry-run y --preview.</translation>
    </message>
    <message>
        <source>the size of each print, such as 9x13cm, 35x45mm, 4x6in, or by name:
square, passport, wallet; otherwise the whole page</source>
        <translation>el tamaño de cada copia, como 9x13cm, 35x45mm, 4x6in, o por su nombre:
square, passport, wallet; si no, toda la página</translation>
    </message>
    <message>
        <source>the photo larger or smaller than by its scaling, 1 to 1000</source>
        <translation>la foto mayor o menor que por su escala, de 1 a 1000</translation>
    </message>
    <message>
        <source>a border around each photo, within its size: 3mm, or 3mm,black</source>
        <translation>un borde alrededor de cada foto, dentro de su tamaño: 3mm o 3mm,black</translation>
    </message>
    <message>
        <source>what stands below each photo of a layout</source>
        <translation>lo que figura debajo de cada foto de una disposición</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a print size. Give one such as 10x15cm, 4x6in or passport, with sides from 5 mm to 2 m.</source>
        <translation>«%1» no es un tamaño de copia. Indique, por ejemplo, 10x15cm, 4x6in o passport, con lados de 5 mm a 2 m.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a scale. Give a number from 1 to 1000, in per cent.</source>
        <translation>«%1» no es una escala. Indique un número de 1 a 1000, en tanto por ciento.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a border. Give a width from 0 to 100 mm, and a color if it is not to be white: 3mm,black.</source>
        <translation>«%1» no es un borde. Indique un ancho de 0 a 100 mm y un color si no ha de ser blanco: 3mm,black.</translation>
    </message>
    <message>
        <source>There is no caption &quot;%1&quot;. Choose none, name, date or both.</source>
        <translation>No existe el pie de foto «%1». Elija none, name, date o both.</translation>
    </message>
    <message>
        <source>a preset of the printer, also of your default printer</source>
        <translation>un preajuste de la impresora, también de su impresora predeterminada</translation>
    </message>
    <message>
        <source>--preset names the preset &quot;%1&quot;, and --printer the preset &quot;%2&quot;. Name one.</source>
        <translation>--preset nombra el preajuste «%1», y --printer el preajuste «%2». Nombre solo uno.</translation>
    </message>
    <message>
        <source>--preset is for print queues and the built-in printer, and &quot;%1&quot; is a printer&apos;s address. Use -o in its place.</source>
        <translation>--preset es para colas de impresión y la impresora integrada, y «%1» es la dirección de una impresora. Use -o en su lugar.</translation>
    </message>
    <message>
        <source>--preset needs --printer where a window opens: it opens with the printer used last, which may have no such preset.</source>
        <translation>--preset necesita --printer cuando se abre una ventana: se abre con la última impresora usada, que quizá no tenga ese preajuste.</translation>
    </message>
    <message>
        <source>no window: print each photo that arrives in the folder, once, until the
program is ended (SIGTERM, Ctrl+C). It waits for a printer or a print
server that is away. The photos that are there at first are left alone;
those that cannot be printed go to the folder &quot;unprintable&quot; in it</source>
        <translation>sin ventana: imprimir una vez cada foto que llegue a la carpeta, hasta que
se termine el programa (SIGTERM, Ctrl+C). Espera a una impresora o un
servidor de impresión que no esté. Las fotos que ya estén al principio se
dejan como están; las que no se pueden imprimir van a la carpeta
&quot;unprintable&quot; dentro de ella</translation>
    </message>
    <message>
        <source>where --watch moves photos once they are printed; otherwise they stay
where they are, and the program remembers them</source>
        <translation>adónde mueve --watch las fotos una vez impresas; si no, se quedan donde
están y el programa las recuerda</translation>
    </message>
    <message>
        <source>--watch also prints the photos that are there at first</source>
        <translation>--watch imprime también las fotos que ya estén al principio</translation>
    </message>
    <message>
        <source>%1 is for --watch.</source>
        <translation>%1 es para --watch.</translation>
    </message>
    <message>
        <source>--watch prints the photos of its folder, and &quot;%1&quot; is named, too. Leave one of them out.</source>
        <translation>--watch imprime las fotos de su carpeta, y también se nombra «%1». Omita uno de los dos.</translation>
    </message>
    <message>
        <source>--batch: the built-in printer makes one PDF of all sheets, NAME.pdf,
instead of one for each sheet</source>
        <translation>--batch: la impresora integrada hace un solo PDF de todas las hojas, NAME.pdf,
en lugar de uno por hoja</translation>
    </message>
    <message>
        <source>--one-pdf is for --batch and --dry-run.</source>
        <translation>--one-pdf es para --batch y --dry-run.</translation>
    </message>
    <message>
        <source>no window: apply the options, print, exit; of what the window has
saved only the print position is used, so that a script gets the same
each time</source>
        <translation>sin ventana: aplicar las opciones, imprimir y salir; de lo que la ventana
ha guardado solo se usa la posición de impresión, para que un script
obtenga siempre lo mismo</translation>
    </message>
    <message>
        <source>--%1 stands alone, without photos and other options.</source>
        <translation>--%1 va sola, sin fotos ni otras opciones.</translation>
    </message>
    <message>
        <source>have the programs that print through the desktop&apos;s portal use this
dialog: sets one key of your portals.conf, and says in which file.
Needs the package corvel-print-portal</source>
        <translation>hacer que los programas que imprimen por el portal del escritorio usen este
diálogo: pone una clave en su portals.conf y dice en qué archivo.
Requiere el paquete corvel-print-portal</translation>
    </message>
    <message>
        <source>remove that key again</source>
        <translation>quitar de nuevo esa clave</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a layout. Give rows and columns from 1 to 20 (2x3), fit, contact, strips:2 to strips:4, pages:2, 4, 6, 9 or 16, or booklet.</source>
        <translation>«%1» no es una disposición. Dé filas y columnas de 1 a 20 (2x3), fit, contact, strips:2 a strips:4, pages:2, 4, 6, 9 o 16, o booklet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say which pages. Give page numbers from 1 on and ranges, such as 1-3,7,12-.</source>
        <translation>«%1» no indica qué páginas. Dé números de página a partir de 1 e intervalos, como 1-3,7,12-.</translation>
    </message>
    <message>
        <source>There is no set of pages &quot;%1&quot;. Choose all, odd or even.</source>
        <translation>No existe el conjunto de páginas «%1». Elija all, odd o even.</translation>
    </message>
    <message>
        <source>several photos on a sheet: ROWSxCOLUMNS (2x3); fit, as many of the size
as fit; contact or contact:ROWSxCOLUMNS, a contact sheet; strips or
strips:NUMBER, two strips of 2 to 4 photos. With &quot;,repeat&quot; each photo
fills its sheet; also &quot;,gap=2mm&quot; and &quot;,marks&quot; for cut marks. Of a
document: pages:2, 4, 6, 9 or 16 on each sheet, or booklet</source>
        <translation>varias fotos por hoja: FILASxCOLUMNAS (2x3); fit, todas las de ese tamaño que
quepan; contact o contact:FILASxCOLUMNAS, una hoja de contactos; strips o
strips:NÚMERO, dos tiras de 2 a 4 fotos. Con «,repeat» cada foto llena su
hoja; también «,gap=2mm», y «,marks» para las marcas de corte. De un
documento: pages:2, 4, 6, 9 o 16 por hoja, o booklet</translation>
    </message>
    <message>
        <source>which pages of documents: 1-3,7,12- (12- is page 12 to the last one);
otherwise all</source>
        <translation>qué páginas de los documentos: 1-3,7,12- (12- es de la página 12 a la
última); si no, todas</translation>
    </message>
    <message>
        <source>only pages with odd or with even numbers</source>
        <translation>solo páginas de número impar o par</translation>
    </message>
    <message>
        <source>print the last sheet first</source>
        <translation>imprimir primero la última hoja</translation>
    </message>
    <message>
        <source>Usage: corvel-print [options] FILE...
Prints photos and PDF documents: from a window, or at once with --batch.
FILE can be - for the standard input, or a print list, LIST.json.

Options:
</source>
        <translation>Uso: corvel-print [opciones] FILE...
Imprime fotos y documentos PDF: desde una ventana, o de inmediato con --batch.
FILE puede ser - para la entrada estándar, o una lista de impresión, LIST.json.

Opciones:
</translation>
    </message>
    <message>
        <source>
Exit status:
  0  printed, or done what was asked for
  1  refused or failed; one line on standard error says what and why. A photo with
     damaged pixels is left out, with a line of its own, and the others are printed
  2  wrong usage

Examples:
  corvel-print --printer built-in holiday.jpg
  corvel-print --batch -o Red=12 -o Quality=Fine -o Overcoat=Matte --output prints *.jpg
  corvel-print --batch --size passport --scaling fill --layout fit portrait.jpg
  corvel-print --batch --pages 2-9 --layout booklet -o Duplex=DuplexTumble report.pdf
</source>
        <translation>
Estado de salida:
  0  impreso, o hecho lo que se pedía
  1  rechazado o fallido; una línea en la salida de error dice qué y por qué. Una foto
     con la imagen dañada se omite, con una línea propia, y las demás se imprimen
  2  uso incorrecto

Ejemplos:
  corvel-print --printer built-in vacaciones.jpg
  corvel-print --batch -o Red=12 -o Quality=Fine -o Overcoat=Matte --output copias *.jpg
  corvel-print --batch --size passport --scaling fill --layout fit retrato.jpg
  corvel-print --batch --pages 2-9 --layout booklet -o Duplex=DuplexTumble report.pdf
</translation>
    </message>
    <message>
        <source>--batch needs a file to print.</source>
        <translation>--batch necesita un archivo que imprimir.</translation>
    </message>
    <message>
        <source>--dry-run needs a file.</source>
        <translation>--dry-run necesita un archivo.</translation>
    </message>
    <message>
        <source>--preview needs a file.</source>
        <translation>--preview necesita un archivo.</translation>
    </message>
    <message>
        <source>A print list says itself which files are printed and how. Give it without other files, and without %1.</source>
        <translation>Una lista de impresión dice por sí misma qué archivos se imprimen y cómo. Dela sin otros archivos y sin %1.</translation>
    </message>
    <message>
        <source>&quot;-&quot; reads one file from the standard input. Give it once.</source>
        <translation>«-» lee un archivo de la entrada estándar. Delo una sola vez.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file on this computer. Copy it here first.</source>
        <translation>«%1» no es un archivo de este ordenador. Cópielo aquí primero.</translation>
    </message>
</context>
<context>
    <name>CommonValue</name>
    <message>
        <source>Several</source>
        <translation>Varios</translation>
    </message>
</context>
<context>
    <name>Console</name>
    <message>
        <source>Standard output could not be written to: %1. Send it to another place.</source>
        <translation>No se ha podido escribir en la salida estándar: %1. Diríjala a otro lugar.</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>Y %n más.</numerusform>
            <numerusform>Y %n más.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CupsConnection</name>
    <message>
        <source>nothing answers at %1</source>
        <translation>nada responde en %1</translation>
    </message>
    <message>
        <source>no printer can have this name</source>
        <translation>ninguna impresora puede llamarse así</translation>
    </message>
    <message>
        <source>it gave no answer within %1 s</source>
        <translation>no ha respondido en %1 s</translation>
    </message>
    <message>
        <source>the connection broke</source>
        <translation>se ha interrumpido la conexión</translation>
    </message>
    <message>
        <source>its answer is too large or malformed</source>
        <translation>su respuesta es demasiado grande o está mal formada</translation>
    </message>
    <message>
        <source>this is not a printer&apos;s address</source>
        <translation>no es una dirección de impresora</translation>
    </message>
    <message>
        <source>its certificate is not trusted</source>
        <translation>su certificado no es de confianza</translation>
    </message>
    <message>
        <source>it wants a password, which would cross the network unencrypted</source>
        <translation>pide una contraseña, que cruzaría la red sin cifrar</translation>
    </message>
    <message>
        <source>it has refused the name or the password %1 times</source>
        <translation>ha rechazado el nombre o la contraseña %1 veces</translation>
    </message>
</context>
<context>
    <name>CustomChoice</name>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 in</source>
        <comment>inches</comment>
        <translation>%1 pulg.</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>%1 cifras</translation>
    </message>
    <message>
        <source>%1 to %2 digits</source>
        <translation>de %1 a %2 cifras</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 caracteres</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>de %1 a %2 caracteres</translation>
    </message>
    <message>
        <source>entered, not shown</source>
        <translation>introducido, no se muestra</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a value&apos;s name and the value</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 × %2 in</source>
        <comment>inches</comment>
        <translation>%1 × %2 pulg.</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>inches</comment>
        <translation>pulg.</translation>
    </message>
    <message>
        <source>a time from %1 to %2</source>
        <translation>una hora de %1 a %2</translation>
    </message>
</context>
<context>
    <name>IntakeText</name>
    <message>
        <source>The program has stopped sending &quot;%1&quot;. Nothing was printed; print again.</source>
        <translation>El programa ha dejado de enviar «%1». No se ha impreso nada; imprima otra vez.</translation>
    </message>
    <message>
        <source>The program sent nothing of &quot;%1&quot;, so nothing was printed.</source>
        <translation>El programa no ha enviado nada de «%1», así que no se ha impreso nada.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be printed: a document may have %2. Print fewer pages at a time.</source>
        <translation>«%1» es demasiado grande para imprimirse: un documento puede tener %2. Imprima menos páginas cada vez.</translation>
    </message>
    <message>
        <source>The program sent &quot;%1&quot; in a format that cannot be printed: only PDF and PostScript can.</source>
        <translation>El programa ha enviado «%1» en un formato que no se puede imprimir: solo se pueden PDF y PostScript.</translation>
    </message>
    <message>
        <source>The program sent &quot;%1&quot; as PostScript, which needs Ghostscript. Install the package ghostscript and print again.</source>
        <translation>El programa ha enviado «%1» como PostScript, para lo que hace falta Ghostscript. Instale el paquete ghostscript e imprima otra vez.</translation>
    </message>
    <message>
        <source>The program sent &quot;%1&quot; as PostScript that Ghostscript cannot convert, so nothing was printed.</source>
        <translation>El programa ha enviado «%1» como PostScript que Ghostscript no puede convertir, así que no se ha impreso nada.</translation>
    </message>
    <message>
        <source>There is not enough memory for &quot;%1&quot;. Close other programs and print again.</source>
        <translation>No hay memoria suficiente para «%1». Cierre otros programas e imprima otra vez.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read from the program, so nothing was printed.</source>
        <translation>«%1» no se puede leer del programa, así que no se ha impreso nada.</translation>
    </message>
</context>
<context>
    <name>IppOptions</name>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>%1 dpi</source>
        <translation>%1 ppp</translation>
    </message>
    <message>
        <source>%1 × %2 dpi</source>
        <translation>%1 × %2 ppp</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Acabado</translation>
    </message>
    <message>
        <source>Further options</source>
        <translation>Otras opciones</translation>
    </message>
    <message>
        <source>Page sizes of the printer left out because they cannot be used: %1.</source>
        <translation>Tamaños de página de la impresora omitidos porque no se pueden usar: %1.</translation>
    </message>
    <message>
        <source>Options left out because they have no usable values: %1.</source>
        <translation>Opciones omitidas porque no tienen valores utilizables: %1.</translation>
    </message>
    <message>
        <source>Values of options left out because they are repeated or cannot be used: %1.</source>
        <translation>Valores de opciones omitidos porque se repiten o no se pueden usar: %1.</translation>
    </message>
    <message>
        <source>Defaults left out because they are not among the choices: %1.</source>
        <translation>Valores predeterminados omitidos porque no están entre las opciones: %1.</translation>
    </message>
    <message>
        <source>Rules about choices left out because they are too many: %1.</source>
        <translation>Reglas sobre las opciones omitidas porque son demasiadas: %1.</translation>
    </message>
</context>
<context>
    <name>JobFollowing</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>waiting for the printer</source>
        <translation>a la espera de la impresora</translation>
    </message>
    <message>
        <source>held</source>
        <translation>retenido</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>imprimiendo</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>ha fallado</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>impreso</translation>
    </message>
    <message>
        <source>it was started again and does not know job %1</source>
        <translation>se ha reiniciado y no conoce el trabajo %1</translation>
    </message>
    <message>
        <source>the print server does not answer; asking again</source>
        <translation>el servidor de impresión no responde; se le vuelve a preguntar</translation>
    </message>
</context>
<context>
    <name>JobPlan</name>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>%1, the file as it is</source>
        <translation>%1, el archivo tal cual</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>%1 (not shown)</source>
        <comment>the option of a password</comment>
        <translation>%1 (no se muestra)</translation>
    </message>
    <message>
        <source>%1, %2 from the left, %3 from the top</source>
        <translation>%1, a %2 de la izquierda, a %3 de arriba</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Hoja</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>Páginas: %1</translation>
    </message>
    <message>
        <source>Document: %1</source>
        <translation>Documento: %1</translation>
    </message>
    <message>
        <source>Sheets</source>
        <translation>Hojas</translation>
    </message>
    <message>
        <source>%1 to %2 of %3</source>
        <translation>%1 a %2 de %3</translation>
    </message>
</context>
<context>
    <name>JobSubmission</name>
    <message>
        <source>The document &quot;%1&quot; is not sent, because its type has a control character in it.</source>
        <translation>El documento «%1» no se envía, porque su tipo contiene un carácter de control.</translation>
    </message>
    <message>
        <source>it accepted the job without giving it a number</source>
        <translation>ha aceptado el trabajo sin darle un número</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because this cannot be an option&apos;s keyword. Leave it out.</source>
        <translation>La opción «%1» no se envía, porque no puede ser la palabra clave de una opción. Quítela.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because its value has a line break or another control character in it. Choose another value.</source>
        <translation>La opción «%1» no se envía, porque su valor contiene un salto de línea u otro carácter de control. Elija otro valor.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because CUPS misreads a value that begins with a brace. Choose another value.</source>
        <translation>La opción «%1» no se envía, porque CUPS interpreta mal un valor que empieza por una llave. Elija otro valor.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because its value is longer than %2 bytes. Choose another value.</source>
        <translation>La opción «%1» no se envía, porque su valor ocupa más de %2 bytes. Elija otro valor.</translation>
    </message>
    <message>
        <source>%1 copies cannot be printed. Choose a number from 1 to %2.</source>
        <translation>No se pueden imprimir %1 copias. Elija un número de 1 a %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not sent, because the printer cannot read a PDF, and this photo does not go to it as it is. Choose a borderless paper and fill it with a JPEG, or set up a queue for the printer in the printer settings.</source>
        <translation>«%1» no se envía, porque la impresora no puede leer PDF y esta foto no se puede enviar tal como está. Elija un papel sin bordes y llénelo con un JPEG, o configure la impresora en la configuración de impresoras.</translation>
    </message>
    <message>
        <source>%1 copies cannot be printed. The printer makes at most %2 at a time; choose fewer.</source>
        <translation>No se pueden imprimir %1 copias. La impresora hace como máximo %2 a la vez; elija menos.</translation>
    </message>
    <message>
        <source>it wants a password, which would cross the network unencrypted</source>
        <translation>pide una contraseña, que cruzaría la red sin cifrar</translation>
    </message>
</context>
<context>
    <name>JobSummary</name>
    <message>
        <source>Paper size</source>
        <translation>Tamaño de papel</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copias</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Colocación</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposición</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>Listings</name>
    <message>
        <source>default</source>
        <translation>predeterminada</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>Log In</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>The print server %1 wants a user name and a password.</source>
        <translation>El servidor de impresión %1 pide un nombre de usuario y una contraseña.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; on %2 wants a user name and a password.</source>
        <translation>La impresora «%1» en %2 pide un nombre de usuario y una contraseña.</translation>
    </message>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>No se ha aceptado el nombre de usuario o la contraseña.</translation>
    </message>
    <message>
        <source>They are kept until the program ends.</source>
        <translation>Se conservan hasta que termina el programa.</translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation>&amp;Iniciar sesión</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>Nombre de &amp;usuario:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Contraseña:</translation>
    </message>
</context>
<context>
    <name>Logins</name>
    <message>
        <source>it wants a user name and a password, and none were entered</source>
        <translation>pide un nombre de usuario y una contraseña, y no se ha introducido ninguno</translation>
    </message>
    <message>
        <source>it wants a user name and a password</source>
        <translation>pide un nombre de usuario y una contraseña</translation>
    </message>
</context>
<context>
    <name>NumericChoices</name>
    <message>
        <source>%1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>%1 to %2 in steps of %3</source>
        <translation>de %1 a %2 en pasos de %3</translation>
    </message>
</context>
<context>
    <name>OptionSource</name>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>OptionTable</name>
    <message>
        <source>Option</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Elección</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Valores posibles</translation>
    </message>
</context>
<context>
    <name>OwnJob</name>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>sin indicar el motivo</translation>
    </message>
    <message>
        <source>The print server refused to list your jobs (%1). Ask its administrator.</source>
        <translation>El servidor de impresión se ha negado a mostrar sus trabajos (%1). Consulte a su administrador.</translation>
    </message>
    <message>
        <source>The print server could not list your jobs (%1). Try again, or check its log.</source>
        <translation>El servidor de impresión no ha podido mostrar sus trabajos (%1). Inténtelo de nuevo o consulte su registro.</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be canceled: %3</source>
        <translation>El trabajo %1 (%2) no se ha podido cancelar: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be held: %3</source>
        <translation>El trabajo %1 (%2) no se ha podido retener: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be released: %3</source>
        <translation>El trabajo %1 (%2) no se ha podido liberar: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be printed again: %3</source>
        <translation>El trabajo %1 (%2) no se ha podido volver a imprimir: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) cannot be printed again, because the print server has not kept its document. Open the photo in this program and print it from there.</source>
        <translation>El trabajo %1 (%2) no se puede volver a imprimir, porque el servidor de impresión no ha conservado su documento. Abra la foto en este programa e imprímala desde él.</translation>
    </message>
    <message>
        <source>Job %1 (%2) has moved on meanwhile. Look at its state.</source>
        <translation>El trabajo %1 (%2) ha avanzado entretanto. Mire su estado.</translation>
    </message>
</context>
<context>
    <name>PlacementText</name>
    <message>
        <source>%1 × %2 in</source>
        <translation>%1 × %2 pulg.</translation>
    </message>
    <message>
        <source>%1 × %2 cm</source>
        <translation>%1 × %2 cm</translation>
    </message>
    <message>
        <source>%1 pixels per inch (the file names none)</source>
        <translation>%1 ppp (el archivo no la indica)</translation>
    </message>
    <message>
        <source>%1 pixels per inch</source>
        <translation>%1 ppp</translation>
    </message>
    <message>
        <source>%1 % cut off</source>
        <translation>%1 % recortado</translation>
    </message>
    <message>
        <source>Page of %1</source>
        <comment>and its size</comment>
        <translation>Página de %1</translation>
    </message>
    <message>
        <source>printed at %1 %</source>
        <translation>impresa al %1 %</translation>
    </message>
</context>
<context>
    <name>PluginGuard</name>
    <message>
        <source>an error without a description</source>
        <translation>un error sin descripción</translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>it is not a folder</source>
        <translation>no es una carpeta</translation>
    </message>
    <message>
        <source>it has no readable Contents/Info.json</source>
        <translation>no tiene un Contents/Info.json legible</translation>
    </message>
    <message>
        <source>its Info.json is larger than 64 KiB</source>
        <translation>su Info.json ocupa más de 64 KiB</translation>
    </message>
    <message>
        <source>its Info.json is not a JSON object</source>
        <translation>su Info.json no es un objeto JSON</translation>
    </message>
    <message>
        <source>its Info.json has no &quot;CFBundleIdentifier&quot;</source>
        <translation>su Info.json no tiene «CFBundleIdentifier»</translation>
    </message>
    <message>
        <source>the &quot;CFBundleExecutable&quot; of its Info.json is not a plain file name</source>
        <translation>«CFBundleExecutable» en su Info.json no es un simple nombre de archivo</translation>
    </message>
    <message>
        <source>The plug-in bundle &quot;%1&quot; cannot be used: %2. Install it again.</source>
        <translation>No se puede usar el complemento «%1»: %2. Instálelo de nuevo.</translation>
    </message>
    <message>
        <source>it has no module &quot;%1&quot;</source>
        <translation>no tiene el módulo «%1»</translation>
    </message>
    <message>
        <source>its identifier &quot;%1&quot; is not the one that its module was built for</source>
        <translation>su identificador «%1» no es aquel para el que se construyó su módulo</translation>
    </message>
    <message>
        <source>it offers no panel for this printer</source>
        <translation>no ofrece ningún panel para esta impresora</translation>
    </message>
    <message>
        <source>The printer&apos;s own panels (%1) are not installed in %2; it prints without them.</source>
        <translation>Las páginas propias de la impresora (%1) no están instaladas en %2; imprime sin ellas.</translation>
    </message>
    <message>
        <source>its module is not a print-dialog plug-in</source>
        <translation>su módulo no es un complemento del diálogo de impresión</translation>
    </message>
    <message>
        <source>The plug-in of the bundle &quot;%1&quot; has failed: %2. Update the plug-in.</source>
        <translation>El complemento «%1» ha fallado: %2. Actualice el complemento.</translation>
    </message>
</context>
<context>
    <name>PortalChoices</name>
    <message>
        <source>This printer does not have what the program asks for: %1.</source>
        <translation>Esta impresora no tiene lo que pide el programa: %1.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;</source>
        <comment>an option and its choice</comment>
        <translation>%1 «%2»</translation>
    </message>
</context>
<context>
    <name>PortalSwitch</name>
    <message>
        <source>Other programs reach this dialog through %1, which is not installed. Get it with the package %1.</source>
        <translation>Los demás programas llegan a este diálogo por %1, que no está instalado. Lo trae el paquete %1.</translation>
    </message>
    <message>
        <source>%1 %2 does not let each user choose: the installed package decides for everybody. Programs use this dialog while %3 is installed; install or remove it.</source>
        <translation>%1 %2 no deja elegir a cada usuario: el paquete instalado decide por todos. Los programas usan este diálogo mientras %3 esté instalado; instálelo o quítelo.</translation>
    </message>
    <message>
        <source>The part of this program that other programs print with is not installed. Get it with the package %1.</source>
        <translation>La parte de este programa con la que imprimen los demás no está instalada. La trae el paquete %1.</translation>
    </message>
    <message>
        <source>It is not known which desktop this is: XDG_CURRENT_DESKTOP is not set. Run it in a terminal of your desktop.</source>
        <translation>No se sabe qué escritorio es: XDG_CURRENT_DESKTOP no está definida. Ejecútelo en un terminal de su escritorio.</translation>
    </message>
    <message>
        <source>The file %1 is ignored by %2, because of its line %3. Correct that line or remove the file.</source>
        <translation>%2 no tiene en cuenta el archivo %1 por su línea %3. Corrija esa línea o quite el archivo.</translation>
    </message>
    <message>
        <source>The file %1 was changed just now. Try again.</source>
        <translation>El archivo %1 acaba de cambiar. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>It takes effect when you log in the next time, or at once with: %1</source>
        <translation>Tiene efecto al iniciar la próxima sesión, o ahora mismo con: %1</translation>
    </message>
    <message>
        <source>The version of %1 cannot be found out. Before 1.17 it does not read this file, and the installed package decides.</source>
        <translation>No se puede averiguar la versión de %1. Antes de la 1.17 no lee este archivo, y decide el paquete instalado.</translation>
    </message>
    <message>
        <source>Already so: %1 has &quot;%2&quot;.</source>
        <translation>Ya es así: %1 tiene «%2».</translation>
    </message>
    <message>
        <source>%1 has &quot;%2&quot; now.</source>
        <translation>%1 tiene ahora «%2».</translation>
    </message>
    <message>
        <source>Made %1, a copy of %3, with &quot;%2&quot;.</source>
        <translation>Se ha creado %1, una copia de %3 con «%2».</translation>
    </message>
    <message>
        <source>Made %1, with &quot;%2&quot;.</source>
        <translation>Se ha creado %1, con «%2».</translation>
    </message>
    <message>
        <source>The file %1 cannot be removed: %2.</source>
        <translation>No se puede quitar el archivo %1: %2.</translation>
    </message>
    <message>
        <source>Removed %1, which held nothing else of its own.</source>
        <translation>Se ha quitado %1, que no tenía nada más propio.</translation>
    </message>
    <message>
        <source>%1 does not name this dialog any more.</source>
        <translation>%1 ya no nombra este diálogo.</translation>
    </message>
    <message>
        <source>The file %1 of the system has &quot;%2&quot;, for all its users. Only an administrator can change it.</source>
        <translation>El archivo %1 del sistema tiene «%2», para todos sus usuarios. Solo un administrador puede cambiarlo.</translation>
    </message>
    <message>
        <source>Already so: %1 does not name this dialog.</source>
        <translation>Ya es así: %1 no nombra este diálogo.</translation>
    </message>
    <message>
        <source>Already so: no file names this dialog.</source>
        <translation>Ya es así: ningún archivo nombra este diálogo.</translation>
    </message>
</context>
<context>
    <name>PositionTestPage</name>
    <message>
        <source>The vertical line is %1 mm from the left edge, and the horizontal one %1 mm from the top edge, if the printer prints in its place. Measure both, and type what you measured.</source>
        <translation>La línea vertical está a %1 mm del borde izquierdo y la horizontal a %1 mm del borde superior, si la impresora imprime en su sitio. Mida ambas y escriba lo que ha medido.</translation>
    </message>
</context>
<context>
    <name>PpdCheck</name>
    <message>
        <source>&quot;%1&quot; cannot be run: %2</source>
        <translation>no se puede ejecutar «%1»: %2</translation>
    </message>
    <message>
        <source>the system offers no sandbox</source>
        <translation>el sistema no ofrece un entorno aislado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends with status %2</source>
        <translation>«%1» termina con el código %2</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used, since it could not be checked safely: %2. Install corvel-print again.</source>
        <translation>El PPD «%1» no se usa, porque no se pudo probar sin riesgo: %2. Vuelva a instalar corvel-print.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used, since this computer was too busy to check it. Try again later.</source>
        <translation>El PPD «%1» no se usa, porque este equipo estaba demasiado ocupado para probarlo. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used: libcups does not finish reading it. Fetch another from the printer&apos;s maker.</source>
        <translation>El PPD «%1» no se usa: libcups no termina de leerlo. Consiga otro del fabricante de la impresora.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used: it makes libcups crash. Fetch another from the printer&apos;s maker.</source>
        <translation>El PPD «%1» no se usa: hace fallar a libcups. Consiga otro del fabricante de la impresora.</translation>
    </message>
</context>
<context>
    <name>PpdDocument</name>
    <message>
        <source>The translations are left out: there are too many.</source>
        <translation>Se omiten las traducciones: hay demasiadas.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; repeats %2 of its choices; the first of each counts.</source>
        <translation>Valores repetidos de la opción «%1»: %2; cuenta el primero de cada uno.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is left out: it has no choices.</source>
        <translation>Se omite la opción «%1»: no tiene valores.</translation>
    </message>
    <message>
        <source>Page sizes left out because they have no dimensions: %1.</source>
        <translation>Tamaños de papel omitidos por no tener dimensiones: %1.</translation>
    </message>
    <message>
        <source>The default page size is not one of the printer&apos;s; &quot;%1&quot; takes its place.</source>
        <translation>El tamaño de papel predeterminado no es de esta impresora; se usa «%1» en su lugar.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; cannot be used: line %2: %3. Correct it or fetch another from the printer&apos;s maker.</source>
        <translation>No se puede usar el PPD «%1»: línea %2: %3. Corríjalo u obtenga otro del fabricante de la impresora.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; has no page size that can be printed on. Correct it or fetch another from the printer&apos;s maker.</source>
        <translation>El PPD «%1» no tiene ningún tamaño de papel imprimible. Corríjalo u obtenga otro del fabricante de la impresora.</translation>
    </message>
    <message>
        <source>Texts are left out because they are in another encoding; keywords take their place.</source>
        <translation>Se omiten textos que están en otra codificación; se usan palabras clave en su lugar.</translation>
    </message>
    <message>
        <source>The page sizes have no dimensions; those of their names are assumed, or else the usual ones.</source>
        <translation>Los tamaños de papel no tienen dimensiones; se suponen las de sus nombres o, si no, las habituales.</translation>
    </message>
</context>
<context>
    <name>PpdFile</name>
    <message>
        <source>its end is missing</source>
        <translation>falta el final</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>está dañado</translation>
    </message>
    <message>
        <source>The compressed PPD &quot;%1&quot; cannot be expanded: %2. Copy it again from where it came from.</source>
        <translation>El PPD comprimido «%1» no se puede descomprimir: %2. Cópielo de nuevo desde su origen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a directory. Name the PPD file itself.</source>
        <translation>«%1» es una carpeta. Indique el archivo PPD mismo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a device or a pipe, not a file. Name the printer&apos;s PPD file.</source>
        <translation>«%1» es un dispositivo o una tubería, no un archivo. Indique el archivo PPD de la impresora.</translation>
    </message>
    <message>
        <source>There is no PPD &quot;%1&quot;. Check the path.</source>
        <translation>No existe el PPD «%1». Compruebe la ruta.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; cannot be read: %2. Check the file and its permissions.</source>
        <translation>No se puede leer el PPD «%1»: %2. Compruebe el archivo y sus permisos.</translation>
    </message>
</context>
<context>
    <name>PpdInspection</name>
    <message>
        <source>it is not printable ASCII</source>
        <translation>contiene caracteres que no son ASCII imprimible</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>tiene más de %1 caracteres</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>ocupa más de %1 MiB</translation>
    </message>
    <message>
        <source>the value in line %1 is longer than %2 bytes</source>
        <translation>el valor de la línea %1 ocupa más de %2 bytes</translation>
    </message>
    <message>
        <source>line %1 is longer than %2 bytes</source>
        <translation>la línea %1 ocupa más de %2 bytes</translation>
    </message>
    <message>
        <source>a line of it is longer than %1 characters</source>
        <translation>una de sus líneas tiene más de %1 caracteres</translation>
    </message>
    <message>
        <source>its text has control characters</source>
        <translation>su texto contiene caracteres de control</translation>
    </message>
    <message>
        <source>its keyword cannot be read</source>
        <translation>su palabra clave no se puede leer</translation>
    </message>
    <message>
        <source>line %1 has control characters</source>
        <translation>la línea %1 contiene caracteres de control</translation>
    </message>
    <message>
        <source>groups of options</source>
        <translation>grupos de opciones</translation>
    </message>
    <message>
        <source>the keyword of the option &quot;%1&quot; in line %2 is bad: %3</source>
        <translation>la palabra clave de la opción «%1» de la línea %2 es incorrecta: %3</translation>
    </message>
    <message>
        <source>options</source>
        <translation>opciones</translation>
    </message>
    <message>
        <source>choices</source>
        <translation>valores</translation>
    </message>
    <message>
        <source>page sizes</source>
        <translation>tamaños de papel</translation>
    </message>
    <message>
        <source>parameters of custom choices</source>
        <translation>parámetros de valores personalizados</translation>
    </message>
    <message>
        <source>translations into one language</source>
        <translation>traducciones a un idioma</translation>
    </message>
    <message>
        <source>entries beside its options</source>
        <translation>entradas aparte de las opciones</translation>
    </message>
    <message>
        <source>constraints</source>
        <translation>restricciones</translation>
    </message>
    <message>
        <source>its constraints name options with too many choices</source>
        <translation>sus restricciones se refieren a opciones con demasiados valores</translation>
    </message>
    <message>
        <source>Line %1: the choice &quot;%2&quot; of the option &quot;%3&quot; is left out: %4.</source>
        <translation>Línea %1: se omite el valor «%2» de la opción «%3»: %4.</translation>
    </message>
    <message>
        <source>Line %1: the entry &quot;%3&quot; &quot;%2&quot; is left out: %4.</source>
        <translation>Línea %1: se omite la entrada «%3» «%2»: %4.</translation>
    </message>
    <message>
        <source>Further entries left out: %1.</source>
        <translation>Otras entradas omitidas: %1.</translation>
    </message>
    <message>
        <source>it has more than %1 %2</source>
        <translation>tiene más de %1 %2</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; opened in line %2 never closes.</source>
        <translation>La opción «%1» abierta en la línea %2 nunca se cierra.</translation>
    </message>
    <message>
        <source>The group opened in line %1 never closes.</source>
        <translation>El grupo abierto en la línea %1 nunca se cierra.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a PPD, which is a text that begins with &quot;*PPD-Adobe:&quot;. Name the printer&apos;s PPD file.</source>
        <translation>«%1» no es un PPD, es decir, un texto que empieza por «*PPD-Adobe:». Indique el archivo PPD de la impresora.</translation>
    </message>
    <message>
        <source>Fetch the printer&apos;s PPD again</source>
        <translation>Obtenga de nuevo el PPD de la impresora</translation>
    </message>
    <message>
        <source>Correct it or fetch another from the printer&apos;s maker</source>
        <translation>Corríjalo u obtenga otro del fabricante de la impresora</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; cannot be used: %2. %3.</source>
        <translation>No se puede usar el PPD «%1»: %2. %3.</translation>
    </message>
    <message>
        <source>it has no keyword</source>
        <translation>falta la palabra clave</translation>
    </message>
    <message>
        <source>The PPD has no page sizes; A4 and Letter take their place.</source>
        <translation>El PPD no tiene tamaños de papel; se usan A4 y Letter en su lugar.</translation>
    </message>
    <message>
        <source>The quote opened in line %1 never closes.</source>
        <translation>Las comillas abiertas en la línea %1 nunca se cierran.</translation>
    </message>
    <message>
        <source>The PPD seems to be cut off in line %1.</source>
        <translation>El PPD parece estar cortado en la línea %1.</translation>
    </message>
</context>
<context>
    <name>PreviewRun</name>
    <message>
        <source>&quot;%1&quot; is already there. Choose another name, or replace it with --overwrite.</source>
        <translation>«%1» ya existe. Elija otro nombre o reemplácelo con --overwrite.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the photos, which are never replaced. Choose another name.</source>
        <translation>«%1» es una de las fotos, que nunca se reemplazan. Elija otro nombre.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is too long. Choose a shorter one.</source>
        <translation>El nombre «%1» es demasiado largo. Elija uno más corto.</translation>
    </message>
    <message>
        <source>Preview of %1: %2</source>
        <translation>Vista previa de %1: %2</translation>
    </message>
</context>
<context>
    <name>PrintDialog</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Impreso&amp;ra:</translation>
    </message>
    <message>
        <source>Paper &amp;size:</source>
        <translation>&amp;Tamaño de papel:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copias:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>Car&amp;peta:</translation>
    </message>
    <message>
        <source>Where the built-in printer leaves its files</source>
        <translation>Aquí guarda sus archivos la impresora integrada</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Examinar…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Sa&amp;ve Settings</source>
        <translation>&amp;Guardar ajustes</translation>
    </message>
    <message>
        <source>Keep these settings for the next time with this printer</source>
        <translation>Conservar estos ajustes para la próxima vez que use esta impresora</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>Prea&amp;juste:</translation>
    </message>
    <message>
        <source>Where the printer prints on this paper, with a test page</source>
        <translation>Dónde imprime la impresora en este papel, con una página de prueba</translation>
    </message>
    <message>
        <source>Print position</source>
        <translation>Posición de impresión</translation>
    </message>
    <message>
        <source>Jobs…</source>
        <translation>Trabajos…</translation>
    </message>
    <message>
        <source>Your jobs on the print server: cancel, hold or print them again</source>
        <translation>Sus trabajos en el servidor de impresión: cancelarlos, retenerlos o volver a imprimirlos</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>Archivos PDF</translation>
    </message>
    <message>
        <source>One PDF of all</source>
        <translation>Un solo PDF</translation>
    </message>
    <message>
        <source>Name of the PDF</source>
        <translation>Nombre del PDF</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
</context>
<context>
    <name>PrintedNames</name>
    <message>
        <source>The PDF has no name. Type one, or choose one PDF for each photo.</source>
        <translation>El PDF no tiene nombre. Escriba uno o elija un PDF para cada foto.</translation>
    </message>
    <message>
        <source>The PDF cannot be named &quot;%1&quot;, because of the slash. Leave it out, or choose another folder.</source>
        <translation>El PDF no puede llamarse «%1» a causa de la barra. Quítela o elija otra carpeta.</translation>
    </message>
    <message>
        <source>The PDF cannot be named &quot;%1&quot;: nobody would see it, or read all of its name. Leave out the dot at its beginning, and characters that are not seen.</source>
        <translation>El PDF no puede llamarse «%1»: nadie lo vería o podría leer su nombre completo. Quite el punto inicial y los caracteres invisibles.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is too long for a PDF in this folder. Choose a shorter one.</source>
        <translation>El nombre «%1» es demasiado largo para un PDF en esta carpeta. Elija uno más corto.</translation>
    </message>
</context>
<context>
    <name>ProgramName</name>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a program and its document</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Queue</name>
    <message>
        <source>Built-in printer (files)</source>
        <translation>Impresora integrada (archivos)</translation>
    </message>
</context>
<context>
    <name>QueueFault</name>
    <message>
        <source>the print server does not know it</source>
        <translation>el servidor de impresión no la conoce</translation>
    </message>
    <message>
        <source>nothing answers at its address</source>
        <translation>nada responde en su dirección</translation>
    </message>
    <message>
        <source>the print server keeps none for it</source>
        <translation>el servidor de impresión no tiene ninguno para ella</translation>
    </message>
    <message>
        <source>it is set to reject them</source>
        <translation>está configurada para rechazarlos</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>sin permiso</translation>
    </message>
    <message>
        <source>time limit reached</source>
        <translation>tiempo agotado</translation>
    </message>
    <message>
        <source>the print server gave no reason</source>
        <translation>el servidor de impresión no dio ningún motivo</translation>
    </message>
    <message>
        <source>its PPD file is a new one</source>
        <translation>su archivo PPD es otro</translation>
    </message>
    <message>
        <source>nothing is printed</source>
        <translation>no se imprime nada</translation>
    </message>
    <message>
        <source>The job for the printer &quot;%1&quot; was canceled (%2).</source>
        <translation>El trabajo para la impresora «%1» se ha cancelado (%2).</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not exist (%2). Choose another one, or add it in the printer settings.</source>
        <translation>La impresora «%1» no existe (%2). Elija otra o añádala en la configuración de impresoras.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached, because no print server is running (%2). Start CUPS or check the server&apos;s name.</source>
        <translation>No se puede acceder a la impresora «%1», porque no hay ningún servidor de impresión en marcha (%2). Inicie CUPS o compruebe el nombre del servidor.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no PPD file (%2). Set it up again with its driver.</source>
        <translation>La impresora «%1» no tiene archivo PPD (%2). Configúrela de nuevo con su controlador.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not accept jobs (%2). Allow them in the printer settings, or choose another printer.</source>
        <translation>La impresora «%1» no acepta trabajos (%2). Permítalo en la configuración de impresoras o elija otra.</translation>
    </message>
    <message>
        <source>The print server refused the request for the printer &quot;%1&quot; (%2). Ask its administrator.</source>
        <translation>El servidor de impresión ha rechazado la petición para la impresora «%1» (%2). Consulte a su administrador.</translation>
    </message>
    <message>
        <source>The print server did not answer about the printer &quot;%1&quot; in time (%2). Try again, or restart CUPS.</source>
        <translation>El servidor de impresión no ha respondido a tiempo sobre la impresora «%1» (%2). Inténtelo de nuevo o reinicie CUPS.</translation>
    </message>
    <message>
        <source>The options of the printer &quot;%1&quot; have changed since they were chosen (%2). Look at them and print again.</source>
        <translation>Las opciones de la impresora «%1» han cambiado desde que se eligieron (%2). Revíselas e imprima de nuevo.</translation>
    </message>
    <message>
        <source>The print server could not serve the printer &quot;%1&quot; (%2). Try again, or check its log.</source>
        <translation>El servidor de impresión no ha podido atender a la impresora «%1» (%2). Inténtelo de nuevo o consulte su registro.</translation>
    </message>
    <message>
        <source>No print server is running (%1). Start CUPS or check the server&apos;s name.</source>
        <translation>No hay ningún servidor de impresión en marcha (%1). Inicie CUPS o compruebe el nombre del servidor.</translation>
    </message>
    <message>
        <source>The print server refused to list its printers (%1). Ask its administrator.</source>
        <translation>El servidor de impresión se niega a listar sus impresoras (%1). Consulte a su administrador.</translation>
    </message>
    <message>
        <source>The print server did not answer in time (%1). Try again, or restart CUPS.</source>
        <translation>El servidor de impresión no ha respondido a tiempo (%1). Inténtelo de nuevo o reinicie CUPS.</translation>
    </message>
    <message>
        <source>The print server could not list its printers (%1). Try again, or check its log.</source>
        <translation>El servidor de impresión no ha podido listar sus impresoras (%1). Inténtelo de nuevo o consulte su registro.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; on the network does not answer (%2). Switch it on and choose it again in a minute, or choose another printer.</source>
        <translation>La impresora «%1» de la red no responde (%2). Enciéndala y vuelva a elegirla dentro de un minuto, o elija otra impresora.</translation>
    </message>
    <message>
        <source>There is no printer at &quot;%1&quot; (%2). Check the address.</source>
        <translation>No hay ninguna impresora en «%1» (%2). Compruebe la dirección.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached (%2). Check its address, and that it is switched on.</source>
        <translation>No se puede acceder a la impresora «%1» (%2). Compruebe su dirección y que esté encendida.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not accept jobs (%2). Look at the printer, or choose another one.</source>
        <translation>La impresora «%1» no acepta trabajos (%2). Compruebe la impresora o elija otra.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; refused the request (%2). Check its settings.</source>
        <translation>La impresora «%1» ha rechazado la solicitud (%2). Compruebe su configuración.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; did not answer in time (%2). Check that it is switched on, and try again.</source>
        <translation>La impresora «%1» no ha respondido a tiempo (%2). Compruebe que esté encendida e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not do what it was asked for (%2). Try again, or look at the printer.</source>
        <translation>La impresora «%1» no ha podido realizar lo solicitado (%2). Inténtelo de nuevo o compruebe la impresora.</translation>
    </message>
    <message>
        <source>no reason was given</source>
        <translation>sin indicar el motivo</translation>
    </message>
    <message>
        <source>no answer came</source>
        <translation>no hubo respuesta</translation>
    </message>
    <message>
        <source>It is not known whether the printer &quot;%1&quot; has got the job (%2). Look at its jobs before you print again.</source>
        <translation>No se sabe si la impresora «%1» ha recibido el trabajo (%2). Mire sus trabajos antes de volver a imprimir.</translation>
    </message>
</context>
<context>
    <name>RemainingTime</name>
    <message>
        <source>less than a minute</source>
        <translation>menos de un minuto</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s)</source>
        <translation>
            <numerusform>alrededor de %n minuto</numerusform>
            <numerusform>alrededor de %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s)</source>
        <translation>
            <numerusform>alrededor de %n hora</numerusform>
            <numerusform>alrededor de %n horas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RequestedArrangement</name>
    <message>
        <source>&quot;%1&quot; is protected by a password, and there is no terminal to ask for it on. Start the program in a terminal, or in its window.</source>
        <translation>«%1» está protegido con una contraseña, y no hay terminal en la que pedirla. Inicie el programa en una terminal o con su ventana.</translation>
    </message>
    <message>
        <source>--pages and --page-set are for documents, and there is none. Leave them out.</source>
        <translation>--pages y --page-set son para documentos, y no hay ninguno. Omítalos.</translation>
    </message>
</context>
<context>
    <name>RequestedSession</name>
    <message>
        <source>Of the preset &quot;%1&quot; is left out: %2</source>
        <translation>Del preajuste «%1» se omite: %2</translation>
    </message>
    <message>
        <source>%1 It is your default printer; --printer names another one, and &quot;--printer built-in&quot; prints into files.</source>
        <translation>%1 Es su impresora predeterminada; con --printer puede indicar otra, y «--printer built-in» imprime en archivos.</translation>
    </message>
    <message>
        <source>%1 It may have your default printer; --printer names another one, and &quot;--printer built-in&quot; prints into files.</source>
        <translation>%1 Puede que tenga su impresora predeterminada; con --printer puede indicar otra, y «--printer built-in» imprime en archivos.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no PPD file and so no option %2. Leave it out, or set the printer up with its driver.</source>
        <translation>La impresora «%1» no tiene archivo PPD y por tanto ninguna opción %2. Omítala o configure la impresora con su controlador.</translation>
    </message>
    <message>
        <source>Of the printer&apos;s defaults is left out: %1</source>
        <translation>De los valores predeterminados de la impresora se omite: %1</translation>
    </message>
    <message>
        <source>No page size is chosen. Choose one with -o %1=%2 or another one of --list-options.</source>
        <translation>No se ha elegido ningún tamaño de papel. Elija uno con -o %1=%2 u otro de --list-options.</translation>
    </message>
</context>
<context>
    <name>ScreenshotRun</name>
    <message>
        <source>The picture %1 could not be written: %2. Choose a folder that can be written.</source>
        <translation>No se ha podido escribir la imagen %1: %2. Elija una carpeta en la que se pueda escribir.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made. Choose another one for the pictures.</source>
        <translation>No se puede crear la carpeta %1. Elija otra para las imágenes.</translation>
    </message>
</context>
<context>
    <name>SessionJob</name>
    <message>
        <source>No paper size is chosen. Choose one.</source>
        <translation>No se ha elegido ningún tamaño de papel. Elija uno.</translation>
    </message>
</context>
<context>
    <name>SessionOpening</name>
    <message>
        <source>As set at the printer</source>
        <translation>Según lo ajustado en la impresora</translation>
    </message>
</context>
<context>
    <name>StandardInput</name>
    <message>
        <source>The standard input cannot be kept in &quot;%1&quot;: %2. Free some space there.</source>
        <translation>La entrada estándar no se puede guardar en «%1»: %2. Libere espacio allí.</translation>
    </message>
    <message>
        <source>The standard input could not be read: %1.</source>
        <translation>No se pudo leer la entrada estándar: %1.</translation>
    </message>
    <message>
        <source>&quot;-&quot; reads a file from the standard input, which is the keyboard. Redirect it: corvel-print - &lt; photo.jpg</source>
        <translation>«-» lee un archivo de la entrada estándar, que es el teclado. Rediríjala: corvel-print - &lt; foto.jpg</translation>
    </message>
    <message>
        <source>The standard input is empty. Redirect a file to it.</source>
        <translation>La entrada estándar está vacía. Redirija un archivo a ella.</translation>
    </message>
    <message>
        <source>The file on the standard input is too large: it may have %1.</source>
        <translation>El archivo de la entrada estándar es demasiado grande: puede tener %1.</translation>
    </message>
</context>
<context>
    <name>StandardLabels</name>
    <message>
        <source>Paper size</source>
        <translation>Tamaño de papel</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Tipo de papel</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Fuente de papel</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Calidad de impresión</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>Two-sided printing</source>
        <translation>Impresión a doble cara</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Bandeja de salida</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Acabado</translation>
    </message>
    <message>
        <source>Finishing template</source>
        <translation>Plantilla de acabado</translation>
    </message>
    <message>
        <source>Scaling by the printer</source>
        <translation>Escalado en la impresora</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Optimize for</source>
        <translation>Optimizar para</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>Propósito de representación</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Corte</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Plain paper</source>
        <translation>Papel normal</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>Papel estucado</translation>
    </message>
    <message>
        <source>Heavy paper</source>
        <translation>Papel grueso</translation>
    </message>
    <message>
        <source>Light paper</source>
        <translation>Papel fino</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Papel para inyección de tinta</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Papel con membrete</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Papel fotográfico</translation>
    </message>
    <message>
        <source>Archival photo paper</source>
        <translation>Papel fotográfico de archivo</translation>
    </message>
    <message>
        <source>Photo film</source>
        <translation>Película fotográfica</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Papel fotográfico brillante</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Papel fotográfico de alto brillo</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Papel fotográfico mate</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Papel fotográfico satinado</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Papel fotográfico semibrillante</translation>
    </message>
    <message>
        <source>Card stock</source>
        <translation>Cartulina</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Papel continuo</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>Other paper</source>
        <translation>Otro papel</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Bandeja principal</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Bandeja alternativa</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Alimentación manual</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>Bandeja multiuso</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Bandeja de fotos</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Bandeja de postales</translation>
    </message>
    <message>
        <source>Envelope tray</source>
        <translation>Bandeja de sobres</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Bandeja de discos</translation>
    </message>
    <message>
        <source>Large tray</source>
        <translation>Bandeja de gran capacidad</translation>
    </message>
    <message>
        <source>Main roll</source>
        <translation>Rollo principal</translation>
    </message>
    <message>
        <source>Alternate roll</source>
        <translation>Rollo alternativo</translation>
    </message>
    <message>
        <source>Top tray</source>
        <translation>Bandeja superior</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Bandeja intermedia</translation>
    </message>
    <message>
        <source>Bottom tray</source>
        <translation>Bandeja inferior</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Bandeja central</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Bandeja izquierda</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Bandeja derecha</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Bandeja trasera</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Bandeja lateral</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Cara impresa hacia arriba</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Cara impresa hacia abajo</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Borrador</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Color (Adobe RGB)</source>
        <translation>Color (Adobe RGB)</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Escala de grises</translation>
    </message>
    <message>
        <source>Gray, automatic</source>
        <translation>Escala de grises, automático</translation>
    </message>
    <message>
        <source>Gray from colored ink</source>
        <translation>Escala de grises con tintas de color</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Blanco y negro</translation>
    </message>
    <message>
        <source>One side</source>
        <translation>Una cara</translation>
    </message>
    <message>
        <source>Both sides, turned on the long edge</source>
        <translation>Doble cara, girado por el borde largo</translation>
    </message>
    <message>
        <source>Both sides, turned on the short edge</source>
        <translation>Doble cara, girado por el borde corto</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Grapar</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforar</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Cubierta</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Encuadernar</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Grapado a caballete</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Grapado en el borde</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plegar</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Bale</source>
        <translation>Empaquetar</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Folleto</translation>
    </message>
    <message>
        <source>Offset stacking</source>
        <translation>Apilado desplazado</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>Barnizar</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Laminar</translation>
    </message>
    <message>
        <source>Staple, top left</source>
        <translation>Grapar, arriba a la izquierda</translation>
    </message>
    <message>
        <source>Staple, bottom left</source>
        <translation>Grapar, abajo a la izquierda</translation>
    </message>
    <message>
        <source>Staple, top right</source>
        <translation>Grapar, arriba a la derecha</translation>
    </message>
    <message>
        <source>Staple, bottom right</source>
        <translation>Grapar, abajo a la derecha</translation>
    </message>
    <message>
        <source>Trim after each page</source>
        <translation>Recortar después de cada página</translation>
    </message>
    <message>
        <source>Trim after each document</source>
        <translation>Recortar después de cada documento</translation>
    </message>
    <message>
        <source>Trim after each copy</source>
        <translation>Recortar después de cada copia</translation>
    </message>
    <message>
        <source>Trim after the job</source>
        <translation>Recortar después del trabajo</translation>
    </message>
    <message>
        <source>Only if it is too large</source>
        <translation>Solo si es demasiado grande</translation>
    </message>
    <message>
        <source>Fill the paper</source>
        <translation>Llenar el papel</translation>
    </message>
    <message>
        <source>Fit on the paper</source>
        <translation>Ajustar al papel</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>Text and graphics</source>
        <translation>Texto y gráficos</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Colorimétrico absoluto</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perceptual</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Colorimétrico relativo</translation>
    </message>
    <message>
        <source>Relative colorimetric, black point adapted</source>
        <translation>Colorimétrico relativo con compensación del punto negro</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>4 × 6 in (10 × 15 cm)</source>
        <translation>10 × 15 cm (4 × 6 pulg.)</translation>
    </message>
    <message>
        <source>5 × 7 in (13 × 18 cm)</source>
        <translation>13 × 18 cm (5 × 7 pulg.)</translation>
    </message>
    <message>
        <source>3.5 × 5 in (9 × 13 cm)</source>
        <translation>9 × 13 cm (3,5 × 5 pulg.)</translation>
    </message>
    <message>
        <source>8 × 10 in (20 × 25 cm)</source>
        <translation>20 × 25 cm (8 × 10 pulg.)</translation>
    </message>
    <message>
        <source>10 × 15 cm</source>
        <translation>10 × 15 cm</translation>
    </message>
    <message>
        <source>Postcard (Hagaki)</source>
        <translation>Postal (Hagaki)</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>Legal</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>Ejecutivo</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloide</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Media carta</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Bandeja %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rollo %1</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Apilador %1</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Buzón %1</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <comment>a page size</comment>
        <translation>%1, sin bordes</translation>
    </message>
</context>
<context>
    <name>StateText</name>
    <message>
        <source>out of paper</source>
        <translation>sin papel</translation>
    </message>
    <message>
        <source>paper has to be put in</source>
        <translation>hay que poner papel</translation>
    </message>
    <message>
        <source>paper low</source>
        <translation>queda poco papel</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>atasco de papel</translation>
    </message>
    <message>
        <source>paper tray missing</source>
        <translation>falta la bandeja de papel</translation>
    </message>
    <message>
        <source>output tray missing</source>
        <translation>falta la bandeja de salida</translation>
    </message>
    <message>
        <source>output tray almost full</source>
        <translation>bandeja de salida casi llena</translation>
    </message>
    <message>
        <source>output tray full</source>
        <translation>bandeja de salida llena</translation>
    </message>
    <message>
        <source>ribbon or ink low</source>
        <translation>queda poca cinta o tinta</translation>
    </message>
    <message>
        <source>ribbon or ink used up</source>
        <translation>cinta o tinta agotada</translation>
    </message>
    <message>
        <source>ribbon low</source>
        <translation>queda poca cinta</translation>
    </message>
    <message>
        <source>ribbon used up</source>
        <translation>cinta agotada</translation>
    </message>
    <message>
        <source>waste container almost full</source>
        <translation>depósito de residuos casi lleno</translation>
    </message>
    <message>
        <source>waste container full</source>
        <translation>depósito de residuos lleno</translation>
    </message>
    <message>
        <source>toner low</source>
        <translation>queda poco tóner</translation>
    </message>
    <message>
        <source>toner used up</source>
        <translation>tóner agotado</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>cubierta abierta</translation>
    </message>
    <message>
        <source>door open</source>
        <translation>puerta abierta</translation>
    </message>
    <message>
        <source>too hot</source>
        <translation>demasiado caliente</translation>
    </message>
    <message>
        <source>warming up</source>
        <translation>calentándose</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>sin conexión</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>conectando con la impresora</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>la impresora no responde</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>apagada</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pausa</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>pausándose</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>los trabajos nuevos se retienen</translation>
    </message>
    <message>
        <source>the print server&apos;s disk is full</source>
        <translation>el disco del servidor de impresión está lleno</translation>
    </message>
    <message>
        <source>a filter of its driver is missing</source>
        <translation>falta un filtro de su controlador</translation>
    </message>
    <message>
        <source>a filter of its driver is not safe</source>
        <translation>un filtro de su controlador no es seguro</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>la impresora está detenida</translation>
    </message>
    <message>
        <source>a part of the printer is stopped</source>
        <translation>una parte de la impresora está detenida</translation>
    </message>
    <message>
        <source>held</source>
        <translation>retenido</translation>
    </message>
    <message>
        <source>what it needs is not ready</source>
        <translation>lo que necesita no está listo</translation>
    </message>
    <message>
        <source>the document could not be read</source>
        <translation>no se ha podido leer el documento</translation>
    </message>
    <message>
        <source>the document could not be printed</source>
        <translation>no se ha podido imprimir el documento</translation>
    </message>
    <message>
        <source>canceled by the user</source>
        <translation>cancelado por el usuario</translation>
    </message>
    <message>
        <source>canceled by the operator</source>
        <translation>cancelado por el operador</translation>
    </message>
    <message>
        <source>canceled at the printer</source>
        <translation>cancelado en la impresora</translation>
    </message>
    <message>
        <source>ended by the print server</source>
        <translation>terminado por el servidor de impresión</translation>
    </message>
    <message>
        <source>rejects jobs</source>
        <translation>rechaza trabajos</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>lista</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>imprimiendo</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenida</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 unknown</source>
        <translation>%1 desconocido</translation>
    </message>
    <message>
        <source>%1 %2 % (low)</source>
        <translation>%1 %2 % (bajo)</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation>%1 %2 %</translation>
    </message>
    <message>
        <source>unspecified problem</source>
        <translation>un problema no especificado</translation>
    </message>
    <message>
        <source>held for authentication</source>
        <translation>retenido hasta que alguien se identifique</translation>
    </message>
    <message>
        <source>the printer does not accept this kind of document</source>
        <translation>la impresora no admite este tipo de documento</translation>
    </message>
    <message>
        <source>found on the network</source>
        <translation>encontrada en la red</translation>
    </message>
</context>
<context>
    <name>SummaryLines</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>TemporaryQueue</name>
    <message>
        <source>its options did not arrive within %1 s</source>
        <translation>sus opciones no llegaron en %1 s</translation>
    </message>
</context>
<context>
    <name>TerminalLogin</name>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>No se ha aceptado el nombre de usuario o la contraseña.</translation>
    </message>
    <message>
        <source>The print server %1 wants a user name and a password.</source>
        <translation>El servidor de impresión %1 pide un nombre de usuario y una contraseña.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; on %2 wants a user name and a password.</source>
        <translation>La impresora «%1» en %2 pide un nombre de usuario y una contraseña.</translation>
    </message>
    <message>
        <source>User name [%1]: </source>
        <translation>Nombre de usuario [%1]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Contraseña: </translation>
    </message>
    <message>
        <source>it wants a user name and a password, and there is no terminal to ask on</source>
        <translation>pide un nombre de usuario y una contraseña, y no hay una terminal donde preguntarlos</translation>
    </message>
    <message>
        <source>The password does not open &quot;%1&quot;.</source>
        <translation>La contraseña no abre «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is protected by a password.</source>
        <translation>«%1» está protegido con una contraseña.</translation>
    </message>
</context>
<context>
    <name>UsedChoices</name>
    <message>
        <source>&quot;%1&quot; is not a number of copies.</source>
        <translation>«%1» no es un número de copias posible.</translation>
    </message>
</context>
<context>
    <name>WindowRun</name>
    <message>
        <source>The window cannot be seen, because QT_QPA_PLATFORM asks for &quot;%1&quot;. Unset it, or print without a window (--batch).</source>
        <translation>La ventana no se puede ver, porque QT_QPA_PLATFORM pide «%1». Quite esa variable o imprima sin ventana (--batch).</translation>
    </message>
</context>
<context>
    <name>corvel-print-portal</name>
    <message>
        <source>Shows the print dialog for programs that print through the desktop&apos;s portal. The desktop starts it when it is needed.</source>
        <translation>Muestra el diálogo de impresión para los programas que imprimen a través del portal del escritorio. El escritorio lo inicia cuando hace falta.</translation>
    </message>
    <message>
        <source>Take over from one that is running.</source>
        <translation>Sustituye al que está en marcha.</translation>
    </message>
    <message>
        <source>Seconds without work until it ends.</source>
        <translation>Segundos sin trabajo hasta que termina.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The program cannot start: QT_QPA_PLATFORM asks for &quot;%1&quot;, which cannot be used. Unset it.</source>
        <translation>El programa no puede iniciarse: QT_QPA_PLATFORM pide «%1», que no se puede usar. Quite esa variable.</translation>
    </message>
    <message>
        <source>The program cannot open a window on the display &quot;%1&quot;. Start it in a desktop session, or print without a window (--batch).</source>
        <translation>El programa no puede abrir ninguna ventana en la pantalla «%1». Inícielo en una sesión de escritorio o imprima sin ventana (--batch).</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>El programa no puede iniciarse: %1</translation>
    </message>
    <message>
        <source>%1 See corvel-print --help.</source>
        <translation>%1 Consulte corvel-print --help.</translation>
    </message>
    <message>
        <source>There is no display to open a window on. Start it in a desktop session, or print without a window (--batch).</source>
        <translation>No hay ninguna pantalla en la que abrir una ventana. Inicie el programa en una sesión de escritorio o imprima sin ventana (--batch).</translation>
    </message>
</context>
<context>
    <name>pdekit::OptionPanel</name>
    <message>
        <source>the printer has no PPD file</source>
        <translation>la impresora no tiene archivo PPD</translation>
    </message>
    <message>
        <source>the job has no print settings</source>
        <translation>el trabajo no tiene ajustes de impresión</translation>
    </message>
</context>
<context>
    <name>printdialog::Arrangement</name>
    <message>
        <source>%1 and %2 more</source>
        <comment>the name of a sheet with several photos</comment>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>None of the %1 pages is among those to be printed. Choose other pages.</source>
        <translation>Ninguna de las %1 páginas está entre las que se van a imprimir. Elija otras páginas.</translation>
    </message>
    <message>
        <source>The only page is not among those to be printed. Choose other pages.</source>
        <translation>La única página no está entre las que se van a imprimir. Elija otras páginas.</translation>
    </message>
</context>
<context>
    <name>printdialog::ChoiceCallout</name>
    <message>
        <source>Dismiss (Esc)</source>
        <translation>Ocultar (Esc)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ocultar</translation>
    </message>
</context>
<context>
    <name>printdialog::ChoiceEditor</name>
    <message>
        <source>%1 (%2)</source>
        <comment>an option or choice, and why it is not available</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>Personalizado…</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>an option and one of its choices</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>printdialog::ChoiceExplanation</name>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;</source>
        <comment>a condition</comment>
        <translation>«%1» está en «%2»</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two conditions</comment>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be &quot;%2&quot; while %3.</source>
        <comment>options, choices, and conditions</comment>
        <translation>«%1» no puede ser «%2» mientras %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; to &quot;%2&quot;</source>
        <comment>change an option to a choice</comment>
        <translation>«%1» a «%2»</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>printdialog::ChoiceRefusals</name>
    <message>
        <source>Als&amp;o change %1</source>
        <translation>Cambiar ta&amp;mbién: %1</translation>
    </message>
    <message>
        <source>Chan&amp;ge %1</source>
        <translation>Ca&amp;mbiar: %1</translation>
    </message>
</context>
<context>
    <name>printdialog::ChoiceSteps</name>
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
    <name>printdialog::CustomPageFields</name>
    <message>
        <source>Width:</source>
        <translation>Ancho:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Alto:</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>the smallest and the largest size</comment>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>The width can be %1.</source>
        <comment>from one length to another</comment>
        <translation>El ancho puede ir %1.</translation>
    </message>
    <message>
        <source>The height can be %1.</source>
        <comment>from one length to another</comment>
        <translation>El alto puede ir %1.</translation>
    </message>
    <message>
        <source>Width (%1)</source>
        <comment>and its unit</comment>
        <translation>Ancho (%1)</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <comment>and its unit</comment>
        <translation>Alto (%1)</translation>
    </message>
</context>
<context>
    <name>printdialog::DialogSession</name>
    <message>
        <source>The option &quot;%1&quot; lacks what has to be entered for it.</source>
        <translation>Falta lo que hay que introducir para la opción «%1».</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Más opciones</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a part of the printer and its state</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>printdialog::Document</name>
    <message>
        <source>There is no document &quot;%1&quot;. Check its name and folder.</source>
        <translation>No existe ningún documento «%1». Compruebe el nombre y la carpeta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no pages. Save it again in the program that it comes from.</source>
        <translation>«%1» no tiene páginas. Guárdelo de nuevo en el programa del que procede.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a PDF document. Save it as PDF in the program that it comes from.</source>
        <translation>«%1» no es un documento PDF. Guárdelo como PDF en el programa del que procede.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is protected by a password. Enter the password.</source>
        <translation>«%1» está protegido con una contraseña. Introduzca la contraseña.</translation>
    </message>
    <message>
        <source>The password does not open &quot;%1&quot;. Check it and enter it again.</source>
        <translation>La contraseña no abre «%1». Compruébela e introdúzcala de nuevo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too much time or memory to read. Print it in parts, or save it again in the program that it comes from.</source>
        <translation>Leer «%1» requiere demasiado tiempo o memoria. Imprímalo por partes o guárdelo de nuevo en el programa del que procede.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed since it was opened. Add it again.</source>
        <translation>«%1» ha cambiado desde que se abrió. Añádalo de nuevo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged and cannot be repaired. Get it again from where it came from.</source>
        <translation>«%1» está dañado y no se puede reparar. Obténgalo de nuevo de donde procede.</translation>
    </message>
    <message>
        <source>You may not read &quot;%1&quot;. Ask its owner for the permission to read it.</source>
        <translation>No tiene permiso para leer «%1». Pídaselo a su propietario.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be read: %2. Check the disk that it is on.</source>
        <translation>No se ha podido leer «%1»: %2. Compruebe el disco en el que está.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Choose a document inside it.</source>
        <translation>«%1» es una carpeta. Elija un documento que esté en ella.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file but a device, a pipe or a socket. Choose a document.</source>
        <translation>«%1» no es un archivo, sino un dispositivo, una tubería o un socket. Elija un documento.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large: %2, where a document may have %3. Save it in parts.</source>
        <translation>«%1» es demasiado grande: %2, y un documento puede tener %3. Guárdelo por partes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than %L2 pages. Save it in parts.</source>
        <translation>«%1» tiene más de %L2 páginas. Guárdelo por partes.</translation>
    </message>
    <message>
        <source>Page %L1 of &quot;%2&quot; takes too much time or memory to show. It can be printed all the same.</source>
        <translation>Mostrar la página %L1 de «%2» requiere demasiado tiempo o memoria. Aun así se puede imprimir.</translation>
    </message>
    <message>
        <source>Page %L1 of &quot;%2&quot; cannot be shown, since it is damaged. Look at it closely when it is printed.</source>
        <translation>La página %L1 de «%2» no se puede mostrar porque está dañada. Revísela bien una vez impresa.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not used, since it could not be read safely: %2. Install corvel-print again.</source>
        <translation>«%1» no se usa porque no se ha podido leer de forma segura: %2. Instale corvel-print de nuevo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be run: %2</source>
        <translation>no se puede ejecutar «%1»: %2</translation>
    </message>
    <message>
        <source>the system offers no sandbox</source>
        <translation>el sistema no ofrece un entorno aislado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends with status %2</source>
        <translation>«%1» termina con el código %2</translation>
    </message>
</context>
<context>
    <name>printdialog::FileName</name>
    <message>
        <source>&quot;%1&quot; cannot be used: its name is not encoded in UTF-8. Rename it.</source>
        <translation>«%1» no se puede usar: su nombre no está codificado en UTF-8. Cámbiele el nombre.</translation>
    </message>
</context>
<context>
    <name>printdialog::FileOpener</name>
    <message>
        <source>&quot;%1&quot; has no page %2. Correct the print list.</source>
        <translation>«%1» no tiene página %2. Corrija la lista de impresión.</translation>
    </message>
</context>
<context>
    <name>printdialog::FolderController</name>
    <message>
        <source>The last photos of the folder are still being printed. Try again in a moment.</source>
        <translation>Aún se están imprimiendo las últimas fotos de la carpeta. Inténtelo de nuevo dentro de un momento.</translation>
    </message>
    <message>
        <source>Waiting for new photos.</source>
        <translation>Esperando fotos nuevas.</translation>
    </message>
</context>
<context>
    <name>printdialog::FolderPrinter</name>
    <message>
        <source>The folder &quot;%1&quot; does not answer. Look after its disk or its network connection; printing continues when it answers.</source>
        <translation>La carpeta «%1» no responde. Compruebe su disco o su conexión de red; la impresión continúa cuando responda.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; answers again.</source>
        <translation>La carpeta «%1» vuelve a responder.</translation>
    </message>
</context>
<context>
    <name>printdialog::FolderWatch</name>
    <message>
        <source>The folder &quot;%1&quot; is not there any more: it was deleted, renamed or unmounted. Put it back; what arrives in it then is printed.</source>
        <translation>La carpeta «%1» ya no está: se eliminó, se renombró o se desmontó. Vuelva a ponerla; lo que llegue entonces se imprime.</translation>
    </message>
    <message>
        <source>You may not read the folder &quot;%1&quot; any more. Change its permissions; what has arrived in it is printed then.</source>
        <translation>Ya no tiene permiso para leer la carpeta «%1». Cambie sus permisos; lo que haya llegado se imprime entonces.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be read: %2. Look after its disk or its network connection; what has arrived in it is printed when it answers again.</source>
        <translation>No se puede leer la carpeta «%1»: %2. Compruebe su disco o su conexión de red; lo que haya llegado se imprime cuando vuelva a responder.</translation>
    </message>
</context>
<context>
    <name>printdialog::GuardedPanel</name>
    <message>
        <source>its plug-in gives no reason</source>
        <translation>su complemento no indica el motivo</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; was closed because its plug-in failed: %2. Update the plug-in. Everything else works.</source>
        <translation>Se ha cerrado la página «%1» porque su complemento ha fallado: %2. Actualice el complemento. Todo lo demás funciona.</translation>
    </message>
    <message>
        <source>The choices of the page &quot;%1&quot; are missing, because its plug-in failed: %2. Update the plug-in.</source>
        <translation>Faltan las opciones de la página «%1», porque su complemento ha fallado: %2. Actualice el complemento.</translation>
    </message>
    <message>
        <source>The choices of the page &quot;%1&quot; are missing, because it could not save them: %2.</source>
        <translation>Faltan las opciones de la página «%1», porque no ha podido guardarlas: %2.</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; could not read the job&apos;s choices, and may show other ones: %2.</source>
        <translation>La página «%1» no ha podido leer las opciones del trabajo y quizá muestre otras: %2.</translation>
    </message>
</context>
<context>
    <name>printdialog::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
</context>
<context>
    <name>printdialog::JobTemplate</name>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>Account user</source>
        <translation>Usuario de la cuenta</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Doble cara</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Intercalar</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Borde largo</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Borde corto</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>Página por página</translation>
    </message>
    <message>
        <source>Copy by copy</source>
        <translation>Copia por copia</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>De inmediato</translation>
    </message>
    <message>
        <source>When released</source>
        <translation>Al liberarlo</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>Durante el día</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Por la tarde</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Por la noche</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>En el segundo turno</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>En el tercer turno</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>El fin de semana</translation>
    </message>
    <message>
        <source>When to print</source>
        <translation>Cuándo imprimir</translation>
    </message>
    <message>
        <source>At</source>
        <translation>A las</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no banner page</comment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Standard</source>
        <comment>a banner page</comment>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Form</source>
        <comment>a banner page</comment>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>Classified</source>
        <comment>a banner page</comment>
        <translation>Clasificado</translation>
    </message>
    <message>
        <source>Confidential</source>
        <comment>a banner page</comment>
        <translation>Confidencial</translation>
    </message>
    <message>
        <source>Secret</source>
        <comment>a banner page</comment>
        <translation>Secreto</translation>
    </message>
    <message>
        <source>Top secret</source>
        <comment>a banner page</comment>
        <translation>Alto secreto</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <comment>a banner page</comment>
        <translation>Sin clasificar</translation>
    </message>
    <message>
        <source>Banner page</source>
        <translation>Página de portada</translation>
    </message>
    <message>
        <source>Banner page before</source>
        <translation>Página de portada antes</translation>
    </message>
    <message>
        <source>Banner page after</source>
        <translation>Página de portada después</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no account</comment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no PIN</comment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>The photo&apos;s name</source>
        <translation>El nombre de la foto</translation>
    </message>
</context>
<context>
    <name>printdialog::JobsModel</name>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Since</source>
        <comment>the time at which a job got into its state</comment>
        <translation>Desde</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>printdialog::JobsWindow</name>
    <message>
        <source>Select a job that is not over.</source>
        <translation>Seleccione un trabajo que no haya terminado.</translation>
    </message>
    <message>
        <source>Select a job that has not begun to print.</source>
        <translation>Seleccione un trabajo que no haya empezado a imprimirse.</translation>
    </message>
    <message>
        <source>Select a job that is held.</source>
        <translation>Seleccione un trabajo retenido.</translation>
    </message>
    <message>
        <source>Select a job that is over.</source>
        <translation>Seleccione un trabajo terminado.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Trabajos</translation>
    </message>
    <message>
        <source>&amp;Cancel Jobs</source>
        <translation>&amp;Cancelar trabajos</translation>
    </message>
    <message>
        <source>&amp;Hold</source>
        <translation>&amp;Retener</translation>
    </message>
    <message>
        <source>&amp;Release</source>
        <translation>&amp;Liberar</translation>
    </message>
    <message>
        <source>&amp;Print Again</source>
        <translation>&amp;Volver a imprimir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The print server is being asked for your jobs.</source>
        <translation>Se está consultando al servidor de impresión por sus trabajos.</translation>
    </message>
    <message>
        <source>Your jobs are not known.</source>
        <translation>No se conocen sus trabajos.</translation>
    </message>
    <message>
        <source>Your jobs as the print server last reported them</source>
        <translation>Sus trabajos, tal como los notificó por última vez el servidor de impresión</translation>
    </message>
    <message>
        <source>You have no jobs on the print server.</source>
        <translation>No tiene trabajos en el servidor de impresión.</translation>
    </message>
    <message>
        <source>Your jobs on the print server: %1 not over, %2 over</source>
        <translation>Sus trabajos en el servidor de impresión: %1 sin terminar, %2 terminados</translation>
    </message>
</context>
<context>
    <name>printdialog::KnownPrintSize</name>
    <message>
        <source>Square</source>
        <translation>Cuadrado</translation>
    </message>
    <message>
        <source>Passport</source>
        <translation>Pasaporte</translation>
    </message>
    <message>
        <source>Wallet</source>
        <translation>Cartera</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a print size: its name and its sides</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>printdialog::LayoutBar</name>
    <message>
        <source>Repeat each photo</source>
        <translation>Repetir cada foto</translation>
    </message>
    <message>
        <source>Cut marks</source>
        <translation>Marcas de corte</translation>
    </message>
    <message>
        <source>One photo per sheet</source>
        <translation>Una foto por hoja</translation>
    </message>
    <message>
        <source>Rows and columns</source>
        <translation>Filas y columnas</translation>
    </message>
    <message>
        <source>As many as fit</source>
        <translation>Tantas como quepan</translation>
    </message>
    <message>
        <source>Contact sheet</source>
        <translation>Hoja de contactos</translation>
    </message>
    <message>
        <source>Two strips</source>
        <translation>Dos tiras</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>None</source>
        <comment>a caption</comment>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>a caption</comment>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Date</source>
        <comment>a caption</comment>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Name and date</source>
        <comment>a caption</comment>
        <translation>Nombre y fecha</translation>
    </message>
    <message>
        <source>A photo fills its sheet, or the second strip repeats the first, instead of the next ones following</source>
        <translation>Una foto llena su hoja, o la segunda tira repite la primera, en lugar de seguir las siguientes</translation>
    </message>
    <message>
        <source>Layout:</source>
        <translation>Distribución:</translation>
    </message>
    <message>
        <source>Rows × columns:</source>
        <translation>Filas × columnas:</translation>
    </message>
    <message>
        <source>Photos per strip:</source>
        <translation>Fotos por tira:</translation>
    </message>
    <message>
        <source>Captions:</source>
        <translation>Leyendas:</translation>
    </message>
    <message>
        <source>Gap:</source>
        <translation>Separación:</translation>
    </message>
    <message>
        <source>One photo or page per sheet</source>
        <translation>Una foto o página por hoja</translation>
    </message>
    <message>
        <source>One page per sheet</source>
        <translation>Una página por hoja</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) per sheet</source>
        <translation>
            <numerusform>%n página por hoja</numerusform>
            <numerusform>%n páginas por hoja</numerusform>
        </translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Folleto</translation>
    </message>
</context>
<context>
    <name>printdialog::MessageBar</name>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
</context>
<context>
    <name>printdialog::MixedSpinBox</name>
    <message>
        <source>several</source>
        <translation>varios</translation>
    </message>
</context>
<context>
    <name>printdialog::OptionPageView</name>
    <message>
        <source>No option has this text in it.</source>
        <translation>Ninguna opción contiene este texto.</translation>
    </message>
    <message>
        <source>Search the options</source>
        <translation>Buscar en las opciones</translation>
    </message>
</context>
<context>
    <name>printdialog::OptionRow</name>
    <message>
        <source>Put &quot;%1&quot; back to &quot;%2&quot;</source>
        <comment>an option and the printer&apos;s default</comment>
        <translation>Volver a poner «%1» en «%2»</translation>
    </message>
</context>
<context>
    <name>printdialog::OptionsFetcher</name>
    <message>
        <source>its PPD is larger than %1 MiB</source>
        <translation>su PPD ocupa más de %1 MiB</translation>
    </message>
    <message>
        <source>the connection broke in the middle of its PPD</source>
        <translation>la conexión se cortó en medio de su PPD</translation>
    </message>
    <message>
        <source>what the print server keeps is empty</source>
        <translation>el que tiene el servidor de impresión está vacío</translation>
    </message>
    <message>
        <source>its PPD did not arrive within %1 s</source>
        <translation>su PPD no llegó en %1 s</translation>
    </message>
</context>
<context>
    <name>printdialog::OutcomeText</name>
    <message>
        <source>Printing was stopped.</source>
        <translation>Se ha detenido la impresión.</translation>
    </message>
    <message>
        <source>Printed %1 photos in the folder %2</source>
        <translation>%1 fotos impresas en la carpeta %2</translation>
    </message>
    <message>
        <source>Printed %1 photos on %2 (jobs %3 to %4)</source>
        <translation>%1 fotos impresas en %2 (trabajos %3 a %4)</translation>
    </message>
    <message>
        <source>Printed %1 photos on %2</source>
        <translation>%1 fotos impresas en %2</translation>
    </message>
    <message>
        <source>Printing was stopped: printed %1 of %2 photos.</source>
        <translation>Se ha detenido la impresión: %1 de %2 fotos impresas.</translation>
    </message>
    <message>
        <source>Printed %1 of %2 photos.</source>
        <translation>%1 de %2 fotos impresas.</translation>
    </message>
    <message>
        <source>Sent %1 of %2 photos to %3, which continues printing.</source>
        <translation>Enviadas %1 de %2 fotos a %3, que sigue imprimiendo.</translation>
    </message>
    <message>
        <source>Not printed: %1.</source>
        <translation>Sin imprimir: %1.</translation>
    </message>
    <message>
        <source>Perhaps printed: %1.</source>
        <translation>Quizá impresas: %1.</translation>
    </message>
    <message>
        <source>Waiting at the printer: %1.</source>
        <translation>En espera en la impresora: %1.</translation>
    </message>
    <message>
        <source>Cannot be printed: %1.</source>
        <translation>No se pueden imprimir: %1.</translation>
    </message>
    <message>
        <source>Printed %1 photos in one PDF: %2</source>
        <translation>%1 fotos impresas en un PDF: %2</translation>
    </message>
    <message>
        <source>Printing was stopped: printed %1 of %2 sheets.</source>
        <translation>Se ha detenido la impresión: %1 de %2 hojas impresas.</translation>
    </message>
    <message>
        <source>Sent %1 of %2 sheets to %3, which continues printing.</source>
        <translation>Enviadas %1 de %2 hojas a %3, que sigue imprimiendo.</translation>
    </message>
    <message>
        <source>Printed %1 of %2 sheets.</source>
        <translation>%1 de %2 hojas impresas.</translation>
    </message>
    <message>
        <source>Printed %1 sheets in one PDF: %2</source>
        <translation>%1 hojas impresas en un PDF: %2</translation>
    </message>
    <message>
        <source>Printed %1 sheets in the folder %2</source>
        <translation>%1 hojas impresas en la carpeta %2</translation>
    </message>
    <message>
        <source>Printed %1 sheets on %2 (jobs %3 to %4)</source>
        <translation>%1 hojas impresas en %2 (trabajos %3 a %4)</translation>
    </message>
    <message>
        <source>Printed %1 sheets on %2</source>
        <translation>%1 hojas impresas en %2</translation>
    </message>
    <message>
        <source>Printing was stopped: printed %1 of %2 jobs.</source>
        <translation>Se detuvo la impresión: %1 de %2 trabajos impresos.</translation>
    </message>
    <message>
        <source>Sent %1 of %2 jobs to %3, which continues printing.</source>
        <translation>%1 de %2 trabajos enviados a %3, que sigue imprimiendo.</translation>
    </message>
    <message>
        <source>Printed %1 of %2 jobs.</source>
        <translation>%1 de %2 trabajos impresos.</translation>
    </message>
    <message>
        <source>Printed %1 jobs in one PDF: %2</source>
        <translation>%1 trabajos impresos en un solo PDF: %2</translation>
    </message>
    <message>
        <source>Printed %1 jobs in the folder %2</source>
        <translation>%1 trabajos impresos en la carpeta %2</translation>
    </message>
    <message>
        <source>Printed %1 jobs on %2 (numbers %3 to %4)</source>
        <translation>%1 trabajos impresos en %2 (números %3 a %4)</translation>
    </message>
    <message>
        <source>Printed %1 jobs on %2</source>
        <translation>%1 trabajos impresos en %2</translation>
    </message>
</context>
<context>
    <name>printdialog::OutputFault</name>
    <message>
        <source>&quot;%1&quot; is not a folder: it is a file, or below one. Choose another folder.</source>
        <translation>«%1» no es una carpeta: es un archivo, o está bajo uno. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be made: there is no such folder. Choose another folder.</source>
        <translation>No se puede crear «%1»: no existe esa carpeta. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>You may not write &quot;%1&quot;. Choose a folder that you may write to.</source>
        <translation>No tiene permiso para escribir «%1». Elija una carpeta en la que pueda escribir.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already there and is not a file that could be replaced. Rename it, or choose another folder.</source>
        <translation>«%1» ya existe y no es un archivo que se pueda reemplazar. Cámbiele el nombre o elija otra carpeta.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is too long. Rename the photo, or choose another folder.</source>
        <translation>El nombre «%1» es demasiado largo. Cambie el nombre de la foto o elija otra carpeta.</translation>
    </message>
    <message>
        <source>There is no space for &quot;%1&quot;. Delete other files, or choose another folder.</source>
        <translation>No hay espacio para «%1». Elimine otros archivos o elija otra carpeta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2. Check the disk, or choose another folder.</source>
        <translation>No se ha podido escribir «%1»: %2. Compruebe el disco o elija otra carpeta.</translation>
    </message>
    <message>
        <source>There is no space for &quot;%1&quot;: your quota on this disk is used up. Delete other files of yours, or choose another folder.</source>
        <translation>No hay espacio para «%1»: su cuota en este disco está agotada. Elimine otros archivos suyos o elija otra carpeta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than a file may be here. Raise the limit (ulimit -f), or choose another folder.</source>
        <translation>«%1» es más grande de lo que puede ser un archivo aquí. Aumente el límite (ulimit -f) o elija otra carpeta.</translation>
    </message>
</context>
<context>
    <name>printdialog::OwnJobs</name>
    <message>
        <source>%1 of %2 jobs were left as they are. The first one: %3</source>
        <translation>%1 de %2 trabajos han quedado como estaban. El primero: %3</translation>
    </message>
</context>
<context>
    <name>printdialog::PageBar</name>
    <message>
        <source>Reverse order</source>
        <translation>Orden inverso</translation>
    </message>
    <message>
        <source>Page ranges</source>
        <translation>Intervalos de páginas</translation>
    </message>
    <message>
        <source>Pages and ranges, separated by commas; 12- is page 12 to the last one</source>
        <translation>Páginas e intervalos, separados por comas; 12- es de la página 12 a la última</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>Páginas pares e impares</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>Pares e impares</translation>
    </message>
    <message>
        <source>Odd only</source>
        <comment>pages</comment>
        <translation>Solo impares</translation>
    </message>
    <message>
        <source>Even only</source>
        <comment>pages</comment>
        <translation>Solo pares</translation>
    </message>
    <message>
        <source>Print the last sheet first</source>
        <translation>Imprimir primero la última hoja</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Páginas:</translation>
    </message>
    <message>
        <source>All</source>
        <comment>pages</comment>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Página actual</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>pages</comment>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Ranges</source>
        <comment>of pages</comment>
        <translation>Intervalos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say which pages. Type page numbers from 1 on and ranges, such as 1-3,7,12-.</source>
        <translation>«%1» no indica qué páginas. Escriba números de página a partir de 1 e intervalos, como 1-3,7,12-.</translation>
    </message>
    <message>
        <source>Type which pages are printed, such as 1-3,7,12-, or choose All.</source>
        <translation>Escriba qué páginas se imprimen, como 1-3,7,12-, o elija «Todas».</translation>
    </message>
</context>
<context>
    <name>printdialog::PanelTabs</name>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; cannot be shown: its form is missing from the plug-in bundle or damaged. Install the bundle again. Everything else works.</source>
        <translation>No se puede mostrar el panel «%1»: su formulario falta en el complemento o está dañado. Instale de nuevo el complemento. Todo lo demás funciona.</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; cannot be left yet. Finish what it asks for.</source>
        <translation>Todavía no se puede salir de la página «%1». Termine primero lo que pide.</translation>
    </message>
</context>
<context>
    <name>printdialog::PasswordPrompt</name>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>The password does not open &quot;%1&quot;. Check it and enter it again.</source>
        <translation>La contraseña no abre «%1». Compruébela e introdúzcala de nuevo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is protected by a password.</source>
        <translation>«%1» está protegido con una contraseña.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <comment>a document</comment>
        <translation>&amp;Omitir</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Contraseña:</translation>
    </message>
</context>
<context>
    <name>printdialog::PatientPrinter</name>
    <message>
        <source>%1 waits. It is printed when that is over: %2</source>
        <translation>%1 espera y se imprimirá cuando esto termine: %2</translation>
    </message>
    <message>
        <source>%1 (job %2) waits. It was sent, and is not sent again: %3</source>
        <translation>%1 (trabajo %2) espera. El trabajo se envió y no se vuelve a enviar: %3</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not print %2 (job %3): %4. Look at the printer and print again.</source>
        <translation>La impresora «%1» no ha podido imprimir %2 (trabajo %3): %4. Revise la impresora e imprima de nuevo.</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>sin indicar el motivo</translation>
    </message>
    <message>
        <source>The job %3 for %2 on the printer &quot;%1&quot; was canceled (%4).</source>
        <translation>El trabajo %3 para %2 en la impresora «%1» se ha cancelado (%4).</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>sin indicar el motivo</translation>
    </message>
    <message>
        <source>The print server does not know its job %1 any more.</source>
        <translation>El servidor de impresión ya no conoce su trabajo %1.</translation>
    </message>
    <message>
        <source>Printed %1 on %2 (job %3)</source>
        <translation>Se ha impreso %1 en %2 (trabajo %3)</translation>
    </message>
    <message>
        <source>%1 (job %2) waits: %3. It is printed when that is over.</source>
        <translation>%1 (trabajo %2) espera: %3. Se imprimirá cuando eso termine.</translation>
    </message>
    <message>
        <source>Printing %1 continues.</source>
        <translation>Continúa la impresión de %1.</translation>
    </message>
    <message>
        <source>It was being sent, and the print server has no job that must be its.</source>
        <translation>Se estaba enviando, y el servidor de impresión no tiene ningún trabajo que deba ser el suyo.</translation>
    </message>
    <message>
        <source>%1 waits. It was being sent, and only the print server knows whether it is printed: %2</source>
        <translation>%1 espera. Se estaba enviando, y solo el servidor de impresión sabe si se imprime: %2</translation>
    </message>
</context>
<context>
    <name>printdialog::PdfWriter</name>
    <message>
        <source>The page of %1 x %2 points cannot be printed on. Choose another page size.</source>
        <translation>No se puede imprimir en una página de %1 × %2 puntos. Elija otro tamaño de papel.</translation>
    </message>
    <message>
        <source>The PDF of &quot;%1&quot; could not be written: %2. Check the disk that it goes to.</source>
        <translation>No se ha podido escribir el PDF de «%1»: %2. Compruebe el disco de destino.</translation>
    </message>
</context>
<context>
    <name>printdialog::Photo</name>
    <message>
        <source>&quot;%1&quot; is too large: %2, where a photo may have %3. Save it with fewer pixels, or as JPEG.</source>
        <translation>«%1» es demasiado grande: %2, y el máximo es %3. Guárdela con menos píxeles o como JPEG.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large: %2 x %3 pixels. Scale it down in a photo program.</source>
        <translation>«%1» es demasiado grande: %2 × %3 píxeles. Redúzcala en un programa de fotografía.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is cut short: its end is missing. Copy it again from where it came from.</source>
        <translation>«%1» está incompleta: falta el final. Cópiela de nuevo desde su origen.</translation>
    </message>
    <message>
        <source>There is not enough memory for &quot;%1&quot;. Scale it down in a photo program.</source>
        <translation>No hay memoria suficiente para «%1». Redúzcala en un programa de fotos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: a part of the picture is missing or wrong. Copy it again from where it came from.</source>
        <translation>«%1» está dañada: falta una parte de la imagen o es errónea. Cópiela de nuevo desde su origen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an interlaced PNG of %2 x %3 pixels, which takes too much memory. Save it without interlacing, or as JPEG.</source>
        <translation>«%1» es un PNG entrelazado de %2 x %3 píxeles, que necesita demasiada memoria. Guárdela sin entrelazado o como JPEG.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a JPEG of a rare kind, lossless or with more than 8 bits, which cannot be printed. Save it as a usual JPEG in a photo program.</source>
        <translation>«%1» es un JPEG de un tipo poco común, sin pérdidas o de más de 8 bits, que no se puede imprimir. Guárdelo como JPEG corriente en un programa de fotos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged and cannot be shown. Copy it again, or save it again in a photo program.</source>
        <translation>«%1» está dañada y no se puede mostrar. Cópiela de nuevo o guárdela otra vez en un programa de fotografía.</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <comment>a page of a document</comment>
        <translation>%1, página %2</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoFile</name>
    <message>
        <source>There is no photo &quot;%1&quot;. Check its name and folder.</source>
        <translation>No existe la foto «%1». Compruebe su nombre y su carpeta.</translation>
    </message>
    <message>
        <source>You may not read &quot;%1&quot;. Ask its owner for the permission to read it.</source>
        <translation>No tiene permiso para leer «%1». Pídaselo a su propietario.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be read: %2. Check the disk or card that it is on.</source>
        <translation>No se ha podido leer «%1»: %2. Compruebe el disco o la tarjeta en que está.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Choose a photo inside it.</source>
        <translation>«%1» es una carpeta. Elija una foto que esté dentro.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file but a device, a pipe or a socket. Choose a photo.</source>
        <translation>«%1» no es un archivo, sino un dispositivo, una tubería o un socket. Elija una foto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed since it was opened. Add it again.</source>
        <translation>«%1» ha cambiado desde que se abrió. Añádala de nuevo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Copy the file again from where it came from.</source>
        <translation>«%1» está vacío. Copie de nuevo el archivo desde su origen.</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoFormat</name>
    <message>
        <source>camera raw</source>
        <translation>RAW de cámara</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a photo of the format %2, which needs the package %3. Install it, or save the photo as JPEG.</source>
        <translation>«%1» es una foto en el formato %2, que necesita el paquete %3. Instálelo o guarde la foto como JPEG.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of the format %2, which cannot be printed. Save it as one of these: %3.</source>
        <translation>«%1» está en el formato %2, que no se puede imprimir. Guárdelo en uno de estos: %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a photo or document of a known kind, whatever its name says. Save it as one of these: %2.</source>
        <translation>«%1» no es una foto ni un documento de un tipo conocido, sea cual sea su nombre. Guárdelo en uno de estos formatos: %2.</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoPane</name>
    <message>
        <source>A&amp;dd…</source>
        <translation>Aña&amp;dir…</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 de %3)</translation>
    </message>
    <message>
        <source>Damaged: a part of the picture is missing or wrong.</source>
        <translation>Dañada: falta una parte de la imagen o es errónea.</translation>
    </message>
    <message>
        <source>The printer places it on the page itself; the preview is only an example.</source>
        <translation>La impresora la coloca ella misma en la página; la vista previa es solo un ejemplo.</translation>
    </message>
    <message numerus="yes">
        <source>%n more file(s) cannot be printed.</source>
        <translation>
            <numerusform>No se puede imprimir %n archivo más.</numerusform>
            <numerusform>No se pueden imprimir %n archivos más.</numerusform>
        </translation>
    </message>
    <message>
        <source>Sheets: %1</source>
        <translation>Hojas: %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Copies…</source>
        <comment>of the selected photos</comment>
        <translation>Copias…</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>an order of photos</comment>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Date</source>
        <comment>an order of photos</comment>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>As added</source>
        <comment>an order of photos</comment>
        <translation>Orden de adición</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>Aplicar a todas</translation>
    </message>
    <message>
        <source>Print lists</source>
        <translation>Listas de impresión</translation>
    </message>
    <message>
        <source>Open a Print List</source>
        <translation>Abrir una lista de impresión</translation>
    </message>
    <message>
        <source>Open List…</source>
        <comment>of photos</comment>
        <translation>Abrir lista…</translation>
    </message>
    <message>
        <source>Save List…</source>
        <comment>of photos</comment>
        <translation>Guardar lista…</translation>
    </message>
    <message>
        <source>Show Each Page</source>
        <translation>Mostrar páginas</translation>
    </message>
    <message>
        <source>Photos and documents</source>
        <translation>Fotos y documentos</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>Documentos PDF</translation>
    </message>
    <message>
        <source>Add Photos or Documents</source>
        <translation>Añadir fotos o documentos</translation>
    </message>
    <message>
        <source>This page is not printed.</source>
        <translation>Esta página no se imprime.</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; is empty.</source>
        <translation>La lista de impresión «%1» está vacía.</translation>
    </message>
    <message>
        <source>Save a Print List</source>
        <translation>Guardar una lista de impresión</translation>
    </message>
    <message>
        <source>Sides of sheets: %1</source>
        <translation>Caras de hojas: %1</translation>
    </message>
    <message>
        <source>%1, page %2 of %3</source>
        <translation>%1, página %2 de %3</translation>
    </message>
    <message>
        <source>Height of the table</source>
        <translation>Altura de la tabla</translation>
    </message>
    <message>
        <source>Drag to see more or fewer pictures</source>
        <translation>Arrastre para ver más o menos imágenes</translation>
    </message>
    <message>
        <source>Add photos and PDF documents to this job; they can be dropped on the window as well</source>
        <translation>Añadir fotos y documentos PDF a este trabajo; también se pueden soltar en la ventana</translation>
    </message>
    <message>
        <source>Take what is selected out of this job; the files stay</source>
        <translation>Quitar lo seleccionado de este trabajo; los archivos permanecen</translation>
    </message>
    <message>
        <source>Show the pages as a table, in which they are moved, removed and placed one by one; otherwise what is chosen holds for all of them</source>
        <translation>Mostrar las páginas en una tabla, en la que se mueven, quitan y colocan una a una; si no, lo elegido vale para todas</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoTable</name>
    <message>
        <source>Delete removes the selected photos; Alt with an arrow key moves them.</source>
        <translation>Supr quita las fotos seleccionadas; Alt con una tecla de flecha las mueve.</translation>
    </message>
    <message>
        <source>%1 of this job</source>
        <comment>such as: 3 photos and 12 pages</comment>
        <translation>%1 de este trabajo</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoTableModel</name>
    <message>
        <source>%1: %2</source>
        <comment>a photo&apos;s number and name</comment>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n copia</numerusform>
            <numerusform>%n copias</numerusform>
        </translation>
    </message>
    <message>
        <source>whole page</source>
        <translation>página completa</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>dañada</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>not printed</source>
        <translation>no se imprime</translation>
    </message>
</context>
<context>
    <name>printdialog::PlacementBar</name>
    <message>
        <source>&amp;Turn</source>
        <translation>Gir&amp;ar</translation>
    </message>
    <message>
        <source>P&amp;lacement:</source>
        <translation>Co&amp;locación:</translation>
    </message>
    <message>
        <source>This printer places the photo on the page itself.</source>
        <translation>Esta impresora coloca ella misma la foto en la página.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>Size, border and copies of the photos, and how they share sheets</source>
        <translation>Tamaño, borde y número de las fotos, y cómo comparten las hojas</translation>
    </message>
    <message>
        <source>Placement on the paper</source>
        <translation>Colocación en el papel</translation>
    </message>
    <message>
        <source>Turn the photo or page by a quarter, clockwise</source>
        <translation>Girar la foto o la página un cuarto, en sentido horario</translation>
    </message>
</context>
<context>
    <name>printdialog::PortalSettings</name>
    <message>
        <source>The program&apos;s setting &quot;%1&quot; cannot be used: it is not plain text.</source>
        <translation>El ajuste «%1» del programa no se puede usar: no es texto sencillo.</translation>
    </message>
    <message>
        <source>The program&apos;s setting &quot;%1&quot; cannot be used: it is &quot;%2&quot;.</source>
        <translation>El ajuste «%1» del programa no se puede usar: es «%2».</translation>
    </message>
    <message>
        <source>The program has more than %1 settings; the others are left out.</source>
        <translation>El programa tiene más de %1 ajustes; los demás se omiten.</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetBar</name>
    <message>
        <source>Preset</source>
        <translation>Preajuste</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no preset is in use</comment>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>M&amp;anage</source>
        <translation>Gesti&amp;onar</translation>
    </message>
    <message>
        <source>Save, rename or delete presets; go back to earlier choices</source>
        <translation>Guardar, renombrar o eliminar preajustes; volver a opciones anteriores</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Nombre del preajuste</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar &amp;como…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Renombrar…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Eliminar…</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modificado)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Save &quot;%1&quot;</source>
        <translation>&amp;Guardar «%1»</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;?</source>
        <translation>¿Eliminar «%1»?</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>Valores predeterminados de la impresora</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetController</name>
    <message>
        <source>Of the choices used last, some are left out:</source>
        <translation>De los últimos ajustes usados, algunos se omiten:</translation>
    </message>
    <message>
        <source>Re&amp;vert to How the Dialog Opened</source>
        <translation>&amp;Volver al estado inicial</translation>
    </message>
    <message>
        <source>Of the preset &quot;%1&quot;, some choices are left out:</source>
        <translation>Del preajuste «%1» se omiten algunas opciones:</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>Y %n más.</numerusform>
            <numerusform>Y %n más.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; no longer exists.</source>
        <translation>El preajuste «%1» ya no existe.</translation>
    </message>
    <message>
        <source>Of the printer&apos;s defaults, some are left out:</source>
        <translation>De los valores predeterminados de la impresora, algunos se omiten:</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetName</name>
    <message>
        <source>A preset needs a name.</source>
        <translation>Un preajuste necesita un nombre.</translation>
    </message>
    <message>
        <source>The name holds a control character, such as a tab or a line break. Type it without.</source>
        <translation>El nombre contiene un carácter de control, como un tabulador o un salto de línea. Escríbalo sin él.</translation>
    </message>
    <message>
        <source>The name is too long: it takes %1 bytes to store, and CUPS allows %2. Choose a shorter one.</source>
        <translation>El nombre es demasiado largo: guardado ocupa %1 bytes y CUPS permite %2. Elija uno más corto.</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetStore</name>
    <message>
        <source>The preset &quot;%1&quot; is not saved: with %2 options it is longer than the %3 bytes that CUPS reads. Save the settings instead.</source>
        <translation>El preajuste «%1» no se guarda: con %2 opciones supera los %3 bytes que CUPS lee. Guarde los ajustes en su lugar.</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; keeps its name: with the new one it is longer than the %2 bytes that CUPS reads. Choose a shorter one.</source>
        <translation>El preajuste «%1» conserva su nombre: con el nuevo supera los %2 bytes que CUPS lee. Elija uno más corto.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no preset &quot;%2&quot;, nor any other. Choose the printer without a preset.</source>
        <translation>La impresora «%1» no tiene ningún preajuste «%2», ni ningún otro. Elija la impresora sin preajuste.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no preset &quot;%2&quot;. Choose one of its %3 others, or the printer without a preset.</source>
        <translation>La impresora «%1» no tiene ningún preajuste «%2». Elija uno de sus otros %3, o la impresora sin preajuste.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no preset &quot;%2&quot;. Its presets: %3. Choose one of them, or the printer without a preset.</source>
        <translation>La impresora «%1» no tiene ningún preajuste «%2». Sus preajustes: %3. Elija uno de ellos, o la impresora sin preajuste.</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already. Choose another name.</source>
        <translation>Ya hay un preajuste «%1». Elija otro nombre.</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; is the system&apos;s. Save one of your own under a new name.</source>
        <translation>El preajuste «%1» es del sistema. Guarde uno propio con un nombre nuevo.</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; no longer exists. Save it under a new name.</source>
        <translation>El preajuste «%1» ya no existe. Guárdelo con un nombre nuevo.</translation>
    </message>
</context>
<context>
    <name>printdialog::PreviewBar</name>
    <message>
        <source>Show the page smaller</source>
        <translation>Mostrar la página más pequeña</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Página completa</translation>
    </message>
    <message>
        <source>How large the page is shown</source>
        <translation>Tamaño con que se muestra la página</translation>
    </message>
    <message>
        <source>Show the page larger</source>
        <translation>Mostrar la página más grande</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Hold to see the photo without the printer&apos;s adjustments (%1)</source>
        <translation>Mantener pulsado para ver la foto sin los ajustes de la impresora (%1)</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Dividir</translation>
    </message>
    <message>
        <source>Show the photo without the printer&apos;s adjustments left of a divider that can be dragged</source>
        <translation>Mostrar la foto sin los ajustes de la impresora a la izquierda de un divisor que se puede arrastrar</translation>
    </message>
    <message>
        <source>Mark the tones that the adjustments clip to black or white</source>
        <translation>Marcar los tonos que los ajustes recortan a negro o blanco</translation>
    </message>
    <message>
        <source>Soft proof</source>
        <translation>Prueba en pantalla</translation>
    </message>
    <message>
        <source>Show the colors as the printer&apos;s paper has them</source>
        <translation>Mostrar los colores como los reproduce el papel de la impresora</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>a zoom</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Clipped: %1 %</source>
        <translation>Recortado: %1 %</translation>
    </message>
    <message>
        <source>Clipped</source>
        <translation>Recortado</translation>
    </message>
    <message>
        <source>Preview is approximate</source>
        <translation>La vista previa es aproximada</translation>
    </message>
    <message>
        <source>sharpness shows at 100 %</source>
        <translation>la nitidez se ve al 100 %</translation>
    </message>
    <message>
        <source> · </source>
        <comment>between two short notes</comment>
        <translation> · </translation>
    </message>
    <message>
        <source>Zoom: %1</source>
        <translation>Zoom: %1</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>Regla</translation>
    </message>
    <message>
        <source>Measure the sheet along its edges</source>
        <translation>Medir la hoja a lo largo de sus bordes</translation>
    </message>
</context>
<context>
    <name>printdialog::PreviewWidget</name>
    <message>
        <source>Preview of %1</source>
        <translation>Vista previa de %1</translation>
    </message>
    <message>
        <source>This photo cannot be shown</source>
        <translation>No se puede mostrar esta foto</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>Vista previa de la página</translation>
    </message>
    <message>
        <source>The whole photo is printed.</source>
        <translation>Se imprime la foto entera.</translation>
    </message>
    <message>
        <source>%1 % of the photo is cut off.</source>
        <translation>Se recorta el %1 % de la foto.</translation>
    </message>
    <message>
        <source>Drag the photo, or press the arrow keys, to move it; Home puts it in the middle.</source>
        <translation>Arrastre la foto o use las flechas para moverla; Inicio la pone en el centro.</translation>
    </message>
    <message>
        <source>Drag it, or press the arrow keys, to see another part; 0 shows the entire page.</source>
        <translation>Arrastrar, o pulsar las teclas de flecha, para ver otra parte; 0 muestra toda la página.</translation>
    </message>
    <message>
        <source>Left of the divider, the photo is shown without the adjustments. Drag the divider, or press Ctrl and an arrow key, to move it.</source>
        <translation>A la izquierda del divisor, la foto se muestra sin los ajustes. Arrastrar el divisor, o pulsar Ctrl y una tecla de flecha, para moverlo.</translation>
    </message>
    <message>
        <source>Prints %1 beyond the edges of the paper</source>
        <comment>borderless</comment>
        <translation>Imprime %1 más allá de los bordes del papel</translation>
    </message>
    <message>
        <source>The print is %1, %2 from the left edge of the sheet and %3 from its top.</source>
        <translation>La copia mide %1 y está a %2 del borde izquierdo de la hoja y a %3 del superior.</translation>
    </message>
    <message>
        <source>Sheet %1 of %2.</source>
        <translation>Hoja %1 de %2.</translation>
    </message>
    <message>
        <source>Photo %1 of %2 on the sheet.</source>
        <translation>Foto %1 de %2 de la hoja.</translation>
    </message>
    <message>
        <source>Click on a photo to change how it is printed.</source>
        <translation>Haga clic en una foto para cambiar cómo se imprime.</translation>
    </message>
    <message>
        <source>Nothing to print. Drop photos or PDF documents here, or press Add.</source>
        <translation>No hay nada que imprimir. Suelte aquí fotos o documentos PDF, o pulse Añadir.</translation>
    </message>
    <message>
        <source>This page cannot be shown</source>
        <translation>Esta página no se puede mostrar</translation>
    </message>
    <message>
        <source>Page %1 of %2 on the sheet.</source>
        <translation>Página %1 de %2 en la hoja.</translation>
    </message>
    <message>
        <source>The whole page is printed.</source>
        <translation>Se imprime la página entera.</translation>
    </message>
    <message>
        <source>%1 % of the page is cut off.</source>
        <translation>Se corta el %1 % de la página.</translation>
    </message>
    <message>
        <source>Drag the page, or press the arrow keys, to move it; Home puts it in the middle.</source>
        <translation>Arrastre la página o pulse las teclas de flecha para moverla; Inicio la pone en el centro.</translation>
    </message>
    <message>
        <source>Click on a page to change how it is printed.</source>
        <translation>Haga clic en una página para cambiar cómo se imprime.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintBar</name>
    <message>
        <source>Apply to All</source>
        <translation>Aplicar a todas</translation>
    </message>
    <message>
        <source> %</source>
        <comment>after a number</comment>
        <translation> %</translation>
    </message>
    <message>
        <source>Color of the border</source>
        <translation>Color del borde</translation>
    </message>
    <message>
        <source>How often each of the selected photos is printed; Copies counts the whole job</source>
        <translation>Cuántas veces se imprime cada una de las fotos seleccionadas; «Copias» cuenta el trabajo completo</translation>
    </message>
    <message>
        <source>Give all photos the placement, size, border and number of prints of the one that is shown</source>
        <translation>Dar a todas las fotos la colocación, el tamaño, el borde y el número de impresiones de la que se muestra</translation>
    </message>
    <message>
        <source>Print size:</source>
        <translation>Tamaño de la foto:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>Escala:</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Borde:</translation>
    </message>
    <message>
        <source>Prints of each:</source>
        <translation>Impresiones de cada una:</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Página completa</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>a print&apos;s size to type</comment>
        <translation>Personalizado…</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>Imprimir %1</translation>
    </message>
    <message>
        <source>Folder for Printed Files</source>
        <translation>Carpeta para los archivos impresos</translation>
    </message>
    <message>
        <source>This printer has no panels of its own; it prints with its defaults.</source>
        <translation>Esta impresora no tiene paneles propios; imprime con sus valores predeterminados.</translation>
    </message>
    <message>
        <source>Printing is under way.</source>
        <translation>Impresión en curso.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The settings are saved for &quot;%1&quot;.</source>
        <translation>Se han guardado los ajustes de «%1».</translation>
    </message>
    <message>
        <source>The options of &quot;%1&quot; have changed. Your choices were kept as far as the printer still has them; look at them before you print.</source>
        <translation>Las opciones de «%1» han cambiado. Sus elecciones se han conservado en la medida en que la impresora aún las tiene; revíselas antes de imprimir.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Use the Built-in Printer</source>
        <translation>Usar la impresora integrada</translation>
    </message>
    <message>
        <source>Nothing is saved.</source>
        <translation>No se guarda nada.</translation>
    </message>
    <message>
        <source>Close Anyway</source>
        <translation>Cerrar de todos modos</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>a paper size to type</comment>
        <translation>Personalizado…</translation>
    </message>
    <message>
        <source>This printer has no PPD file and so no options of its own: it gets the photo&apos;s file as it is, and places it on the page itself.</source>
        <translation>Esta impresora no tiene archivo PPD y por tanto ninguna opción propia: recibe el archivo de la foto tal cual y lo coloca ella misma en la página.</translation>
    </message>
    <message>
        <source>%1 (not loaded)</source>
        <comment>a paper size</comment>
        <translation>%1 (no cargado)</translation>
    </message>
    <message>
        <source>Close Without Printing</source>
        <translation>Cerrar sin imprimir</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>Dejar abierta</translation>
    </message>
    <message>
        <source>Save List…</source>
        <translation>Guardar lista…</translation>
    </message>
    <message>
        <source>One PDF for each sheet</source>
        <translation>Un PDF para cada hoja</translation>
    </message>
    <message>
        <source>One PDF for each photo</source>
        <translation>Un PDF para cada foto</translation>
    </message>
    <message>
        <source>The program brings the pages after you press &quot;%1&quot;.</source>
        <translation>El programa entrega las páginas después de que pulse «%1».</translation>
    </message>
    <message>
        <source>%1 brings the pages after you press &quot;%2&quot;.</source>
        <translation>%1 entrega las páginas después de que pulse «%2».</translation>
    </message>
    <message>
        <source>The list is saved as &quot;%1&quot;.</source>
        <translation>La lista se ha guardado como «%1».</translation>
    </message>
    <message>
        <source>Print</source>
        <comment>a title</comment>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>PDFs named after the files</source>
        <translation>PDF con el nombre de los archivos</translation>
    </message>
    <message>
        <source>Files are still being opened.</source>
        <translation>Todavía se están abriendo archivos.</translation>
    </message>
    <message>
        <source>There is nothing to print.</source>
        <translation>No hay nada que imprimir.</translation>
    </message>
    <message>
        <source>The sheets were arranged and not printed. Close the window all the same?</source>
        <translation>Las hojas se han dispuesto y no se han impreso. ¿Cerrar la ventana de todos modos?</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintList</name>
    <message>
        <source>&quot;%1&quot; is not a print list. Save it again in the print window.</source>
        <translation>«%1» no es una lista de impresión. Guárdela de nuevo en la ventana de impresión.</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; cannot be used: &quot;%2&quot; cannot be %3. Correct it, or save the list again in the print window.</source>
        <translation>La lista de impresión «%1» no se puede usar: «%2» no puede ser %3. Corríjala, o guárdela de nuevo en la ventana de impresión.</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; could not be read: %2.</source>
        <translation>No se pudo leer la lista de impresión «%1»: %2.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; is from a later version of this program. Update the program, or save the list again with this one.</source>
        <translation>La lista de impresión «%1» es de una versión posterior de este programa. Actualícelo, o guarde la lista de nuevo con este.</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; could not be saved: %2. Choose another folder.</source>
        <translation>No se pudo guardar la lista de impresión «%1»: %2. Elija otra carpeta.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintPortal</name>
    <message>
        <source>%1 was not printed</source>
        <translation>%1 no se ha impreso</translation>
    </message>
    <message>
        <source>Problem with printing %1</source>
        <translation>Problema al imprimir %1</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintPositionWindow</name>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>Imprimir página de &amp;prueba</translation>
    </message>
    <message>
        <source>&amp;Correct</source>
        <translation>&amp;Corregir</translation>
    </message>
    <message>
        <source>Print Position</source>
        <translation>Posición de impresión</translation>
    </message>
    <message>
        <source>To the &amp;right:</source>
        <translation>A la de&amp;recha:</translation>
    </message>
    <message>
        <source>&amp;Down:</source>
        <translation>Hacia a&amp;bajo:</translation>
    </message>
    <message>
        <source>From the &amp;left edge:</source>
        <translation>Desde el borde &amp;izquierdo:</translation>
    </message>
    <message>
        <source>From the to&amp;p edge:</source>
        <translation>Desde el borde &amp;superior:</translation>
    </message>
    <message>
        <source>The test page has a line %1 mm from the left edge and one %1 mm from the top edge. Print it, and measure them:</source>
        <translation>La página de prueba tiene una línea a %1 mm del borde izquierdo y otra a %1 mm del borde superior. Imprímala y mídalas:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Everything printed on &quot;%1&quot; with the paper size &quot;%2&quot; is moved:</source>
        <translation>Todo lo que se imprime en «%1» con el tamaño de papel «%2» se desplaza:</translation>
    </message>
    <message>
        <source>Prints can be moved by %1 mm at most. Check which paper is loaded, and the paper size, then print the test page again.</source>
        <translation>La impresión se puede desplazar %1 mm como máximo. Compruebe qué papel está cargado y el tamaño del papel, y vuelva a imprimir la página de prueba.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintProgress</name>
    <message>
        <source>Printing</source>
        <translation>Impresión</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintRun</name>
    <message>
        <source>%1 The sheet with %2 is not printed.</source>
        <translation>%1 La hoja con %2 no se imprime.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintWorker</name>
    <message>
        <source>Writing %1</source>
        <translation>Escribiendo %1</translation>
    </message>
    <message>
        <source>Sending %1 to %2</source>
        <translation>Enviando %1 a %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 de %2: %3</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>Comprobando %1</translation>
    </message>
    <message>
        <source>%1 was not printed.</source>
        <translation>%1 no se ha impreso.</translation>
    </message>
    <message>
        <source>%1 of %2, %3: %4</source>
        <translation>%1 de %2, %3: %4</translation>
    </message>
</context>
<context>
    <name>printdialog::PrinterChooser</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is no longer there. Choose another one.</source>
        <translation>La impresora «%1» ya no está. Elija otra.</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;. Choose another one.</source>
        <translation>No hay ninguna impresora «%1». Elija otra.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is not there. %2</source>
        <translation>La impresora «%1» no está disponible. %2</translation>
    </message>
    <message>
        <source>%1 (on the network)</source>
        <translation>%1 (en la red)</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot; (%2). Choose another one.</source>
        <translation>No hay ninguna impresora «%1» (%2). Elija otra.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrinterController</name>
    <message>
        <source>The print server has not confirmed yet that the printer &quot;%1&quot; is there.</source>
        <translation>El servidor de impresión aún no ha confirmado que la impresora «%1» esté ahí.</translation>
    </message>
    <message>
        <source>The options of &quot;%1&quot; are being fetched from the print server.</source>
        <translation>Se están obteniendo del servidor de impresión las opciones de «%1».</translation>
    </message>
</context>
<context>
    <name>printdialog::PrinterSearch</name>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Type a part of its name, place or model to find it</source>
        <translation>Para encontrarla, escriba parte de su nombre, lugar o modelo</translation>
    </message>
</context>
<context>
    <name>printdialog::PrinterStatus</name>
    <message>
        <source>One of %1; its options are those of the first.</source>
        <translation>Una de %1; sus opciones son las de la primera.</translation>
    </message>
    <message>
        <source>The print server is being asked for this printer.</source>
        <translation>Se está preguntando al servidor de impresión por esta impresora.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintingController</name>
    <message>
        <source>Printing…</source>
        <translation>Imprimiendo…</translation>
    </message>
    <message>
        <source>Nothing was printed: a photo that was removed meanwhile is damaged. Print again.</source>
        <translation>No se ha impreso nada: una foto que se quitó mientras tanto está dañada. Imprima de nuevo.</translation>
    </message>
    <message>
        <source>%1 is damaged: a part of the picture is missing or wrong. Look at it, then print it as it is, or remove it and copy it again from where it came from.</source>
        <translation>%1 está dañada: falta una parte de la imagen o es errónea. Mírela e imprímala tal como está, o quítela y cópiela de nuevo desde su origen.</translation>
    </message>
    <message>
        <source>These photos are damaged: %1. Look at them, then print them as they are, or remove them and copy them again from where they came from.</source>
        <translation>Estas fotos están dañadas: %1. Mírelas e imprímalas tal como están, o quítelas y cópielas de nuevo desde su origen.</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Imprimir de todos modos</translation>
    </message>
    <message>
        <source>Print without these choices? The printer&apos;s own defaults take their place.</source>
        <translation>¿Imprimir sin estas opciones? En su lugar se usan los valores predeterminados de la impresora.</translation>
    </message>
    <message>
        <source>Print Without Them</source>
        <translation>Imprimir sin ellas</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Deteniendo…</translation>
    </message>
    <message>
        <source>Stop Printing</source>
        <translation>Detener impresión</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Cerrar ventana</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>Dejar abierta</translation>
    </message>
    <message>
        <source>Printed so far: %1 of %2 photos. The rest is not printed when this window is closed.</source>
        <translation>Impresas hasta ahora: %1 de %2 fotos. El resto no se imprime si se cierra esta ventana.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>The print server continues printing when this window is closed.</source>
        <translation>El servidor de impresión sigue imprimiendo cuando se cierra esta ventana.</translation>
    </message>
    <message>
        <source>When this window is closed, the print server continues printing the %1 of %2 photos that it has. The rest is not printed.</source>
        <translation>Si se cierra esta ventana, el servidor de impresión sigue imprimiendo las %1 de %2 fotos que tiene. El resto no se imprime.</translation>
    </message>
    <message>
        <source>Print position</source>
        <comment>a file&apos;s name</comment>
        <translation>Posición de impresión</translation>
    </message>
    <message>
        <source>The test page could not be made in &quot;%1&quot;. Free some space there.</source>
        <translation>No se pudo crear la página de prueba en «%1». Libere espacio allí.</translation>
    </message>
    <message>
        <source>Jobs…</source>
        <translation>Trabajos…</translation>
    </message>
    <message>
        <source>Print the Rest</source>
        <translation>Imprimir el resto</translation>
    </message>
    <message>
        <source>Stopping after this photo…</source>
        <translation>Deteniendo tras esta foto…</translation>
    </message>
    <message>
        <source>Stop After This Photo</source>
        <translation>Detener tras esta foto</translation>
    </message>
    <message>
        <source>Stop at Once</source>
        <translation>Detener ya</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already there. Keep it, and give the new PDF a number, or replace it?</source>
        <translation>«%1» ya existe. ¿Conservarlo y numerar el PDF nuevo, o sustituirlo?</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Conservar ambos</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sustituir</translation>
    </message>
    <message>
        <source>Stopping after this sheet…</source>
        <translation>Deteniendo tras esta hoja…</translation>
    </message>
    <message>
        <source>Stop After This Sheet</source>
        <translation>Detener tras esta hoja</translation>
    </message>
    <message>
        <source>Stop printing? What is not printed yet is canceled.</source>
        <translation>¿Detener la impresión? Lo que aún no esté impreso se retira.</translation>
    </message>
    <message>
        <source>Printed so far: %1 of %2 sheets. The rest is not printed when this window is closed.</source>
        <translation>Impresas hasta ahora: %1 de %2 hojas. El resto no se imprime si se cierra esta ventana.</translation>
    </message>
    <message>
        <source>When this window is closed, the print server continues printing the %1 of %2 sheets that it has. The rest is not printed.</source>
        <translation>Si se cierra esta ventana, el servidor de impresión sigue imprimiendo las %1 de %2 hojas que tiene. El resto no se imprime.</translation>
    </message>
    <message>
        <source>Stopping after this job…</source>
        <translation>Deteniendo tras este trabajo…</translation>
    </message>
    <message>
        <source>Stop After This Job</source>
        <translation>Detener tras este trabajo</translation>
    </message>
    <message>
        <source>Printed so far: %1 of %2 jobs. The rest is not printed when this window is closed.</source>
        <translation>Trabajos impresos hasta ahora: %1 de %2. El resto no se imprime si se cierra esta ventana.</translation>
    </message>
    <message>
        <source>When this window is closed, the print server continues printing the %1 of %2 jobs that it has. The rest is not printed.</source>
        <translation>Si se cierra esta ventana, el servidor de impresión sigue imprimiendo los %1 de %2 trabajos que tiene. El resto no se imprime.</translation>
    </message>
</context>
<context>
    <name>printdialog::SettingsFile</name>
    <message>
        <source>The file %1 cannot be read: %2. Make it readable, or move it away.</source>
        <translation>El archivo %1 no se puede leer: %2. Hágalo legible o muévalo a otro lugar.</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>Nothing could be saved in %1: %2. Make room there, or make it writable.</source>
        <translation>No se pudo guardar nada en %1: %2. Libere espacio o permita escribir ahí.</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>no se puede crear la carpeta</translation>
    </message>
    <message>
        <source>Nothing could be saved in %1: another program is writing there. Try again.</source>
        <translation>No se pudo guardar nada en %1: otro programa está escribiendo ahí. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetBar</name>
    <message>
        <source>Previous sheet</source>
        <translation>Hoja anterior</translation>
    </message>
    <message>
        <source>Next sheet</source>
        <translation>Hoja siguiente</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Hoja %1 de %2</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetPdf</name>
    <message>
        <source>There is not enough memory to print &quot;%1&quot;. Print it in several parts.</source>
        <translation>No hay memoria suficiente para imprimir «%1». Imprímalo en varias partes.</translation>
    </message>
    <message>
        <source>The PDF of &quot;%1&quot; could not be written: %2. Check the disk that it goes to.</source>
        <translation>No se ha podido escribir el PDF de «%1»: %2. Compruebe el disco de destino.</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetPlan</name>
    <message>
        <source>More than %1 prints are too many for one job. Print the photos in several parts.</source>
        <translation>Más de %1 copias son demasiadas para un solo trabajo. Imprima las fotos en varias partes.</translation>
    </message>
    <message>
        <source>As many prints of a size as fit need that size. Choose a print size.</source>
        <translation>Para colocar todas las copias de un tamaño que quepan hace falta ese tamaño. Elija un tamaño de copia.</translation>
    </message>
    <message>
        <source>So many photos with these gaps leave no room for themselves on the paper&apos;s printable area of %1. Choose fewer, a smaller gap or a larger paper.</source>
        <translation>El área imprimible de %1 no basta para tantas fotos con esos espacios. Elija menos fotos, un espacio menor o un papel mayor.</translation>
    </message>
    <message>
        <source>A print of %1 has no room on the paper&apos;s printable area of %2. Choose a smaller size or a larger paper.</source>
        <translation>Una copia de %1 no cabe en el área imprimible de %2. Elija un tamaño menor o un papel mayor.</translation>
    </message>
    <message>
        <source>A print of %1 has no room in its place of %2 on the sheet. Choose a smaller size, or fewer rows and columns.</source>
        <translation>Una copia de %1 no cabe en su lugar de %2 en la hoja. Elija un tamaño menor o menos filas y columnas.</translation>
    </message>
    <message>
        <source>A border of %1 leaves nothing of a print of %2. Choose a narrower one.</source>
        <translation>Un borde de %1 no deja nada de una copia de %2. Elija uno más estrecho.</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetPrinter</name>
    <message>
        <source>Printed %1: %2</source>
        <translation>%1 impresa: %2</translation>
    </message>
    <message>
        <source>Sent %1 to %2 as job %3</source>
        <translation>%1 enviada a %2 como trabajo %3</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not print %2 (job %3): %4. Look at the printer and print again.</source>
        <translation>La impresora «%1» no ha podido imprimir %2 (trabajo %3): %4. Revise la impresora e imprima de nuevo.</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>sin indicar el motivo</translation>
    </message>
    <message>
        <source>The job %3 for %2 on the printer &quot;%1&quot; was canceled (%4).</source>
        <translation>El trabajo %3 para %2 en la impresora «%1» se ha cancelado (%4).</translation>
    </message>
    <message>
        <source>Printed %1 on %2 (job %3)</source>
        <translation>Se ha impreso %1 en %2 (trabajo %3)</translation>
    </message>
    <message>
        <source>The job %1 for %2 could not be canceled: %3</source>
        <translation>El trabajo %1 para %2 no se ha podido cancelar: %3</translation>
    </message>
    <message>
        <source>The outcome of %1 (job %2) is unknown: %3</source>
        <translation>No se conoce el resultado de %1 (trabajo %2): %3</translation>
    </message>
    <message>
        <source>%1 (job %2) is not printed yet: %3. The print server keeps it; &quot;cancel %2&quot; cancels it.</source>
        <translation>%1 (trabajo %2) no está impreso todavía: %3. El servidor de impresión lo conserva; «cancel %2» lo retira.</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>sin indicar el motivo</translation>
    </message>
    <message>
        <source>%1 (job %2) is not printed yet: %3. The printer keeps it; cancel it there.</source>
        <translation>%1 (trabajo %2) no está impreso todavía: %3. La impresora lo conserva; cancélelo en ella.</translation>
    </message>
    <message>
        <source>%1 copies of %2 are more than the %3 that a job can have. Print it in several parts.</source>
        <translation>%1 copias de %2 son más que las %3 que puede tener un trabajo. Imprímalas en varias partes.</translation>
    </message>
    <message>
        <source>The outcome of %1 (job %2) is unknown.</source>
        <translation>No se sabe qué ha sido de %1 (trabajo %2).</translation>
    </message>
    <message>
        <source>%1 (job %2) was canceled.</source>
        <translation>%1 (trabajo %2) se ha cancelado.</translation>
    </message>
    <message>
        <source>Printed %1: page %2 of %3</source>
        <translation>%1 impresa: página %2 de %3</translation>
    </message>
</context>
<context>
    <name>printdialog::SummaryPage</name>
    <message>
        <source>Option</source>
        <translation>Opción</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Elección</translation>
    </message>
    <message>
        <source>Summary of the job</source>
        <translation>Resumen del trabajo</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchBar</name>
    <message>
        <source>Print new photos of this folder:</source>
        <translation>Imprimir las fotos nuevas de esta carpeta:</translation>
    </message>
    <message>
        <source>Photos that arrive in the folder are printed as they come, each once and with the present choices, until this is switched off or the window is closed</source>
        <translation>Las fotos que llegan a la carpeta se imprimen enseguida, cada una una vez y con las opciones actuales, hasta que esto se desactive o se cierre la ventana</translation>
    </message>
    <message>
        <source>Folder for new photos</source>
        <translation>Carpeta de las fotos nuevas</translation>
    </message>
    <message>
        <source>Choose…</source>
        <comment>a folder</comment>
        <translation>Elegir…</translation>
    </message>
    <message>
        <source>Folder for New Photos</source>
        <translation>Carpeta de las fotos nuevas</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchLoop</name>
    <message>
        <source>The folder &quot;%1&quot; is there again.</source>
        <translation>La carpeta «%1» vuelve a estar.</translation>
    </message>
    <message>
        <source>Photos that arrive in &quot;%1&quot; are printed on %2 and moved to &quot;%3&quot;.</source>
        <translation>Las fotos que lleguen a «%1» se imprimen en %2 y se mueven a «%3».</translation>
    </message>
    <message>
        <source>Photos that arrive in &quot;%1&quot; are printed on %2.</source>
        <translation>Las fotos que lleguen a «%1» se imprimen en %2.</translation>
    </message>
    <message>
        <source>The files that are there already are left alone: %1. With --existing, they are printed.</source>
        <translation>Archivos que ya estaban y se dejan como están: %1. Con --existing se imprimen.</translation>
    </message>
    <message>
        <source>The program was ended while it was being sent.</source>
        <translation>El programa terminó mientras se enviaba.</translation>
    </message>
    <message>
        <source>It is unclear whether &quot;%1&quot; was printed. %2 It is not printed again by itself; if it has to be, set its time (&quot;touch&quot;) or copy it into the folder again.</source>
        <translation>No está claro si «%1» se imprimió. %2 No se vuelve a imprimir por sí sola; si hace falta, cambie su fecha («touch») o cópiela otra vez en la carpeta.</translation>
    </message>
    <message>
        <source>%1 It stays in the folder, and is not tried again.</source>
        <translation>%1 El archivo se queda en la carpeta y no se vuelve a intentar.</translation>
    </message>
    <message>
        <source>%1 It is now &quot;%2&quot;.</source>
        <translation>%1 El archivo es ahora «%2».</translation>
    </message>
    <message>
        <source>Printed photos stay in the folder, because they cannot be moved. %1</source>
        <translation>Las fotos impresas se quedan en la carpeta porque no se pueden mover. %1</translation>
    </message>
    <message>
        <source>It was sent to another print server, %1.</source>
        <translation>Se envió a otro servidor de impresión, %1.</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchOrder</name>
    <message>
        <source>The built-in printer would leave its files in the watched folder, &quot;%1&quot;. Choose another folder for them.</source>
        <translation>La impresora integrada dejaría sus archivos en la carpeta vigilada, «%1». Elija otra carpeta para ellos.</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchRecord</name>
    <message>
        <source>Another program watches the folder &quot;%1&quot; already. End it first, or choose another folder.</source>
        <translation>Otro programa ya vigila la carpeta «%1». Termínelo primero o elija otra carpeta.</translation>
    </message>
    <message>
        <source>The record of what was printed, &quot;%1&quot;, cannot be read: %2. Make it readable for you.</source>
        <translation>No se puede leer el registro de lo impreso, «%1»: %2. Hágalo legible para usted.</translation>
    </message>
    <message>
        <source>The record of what was printed, &quot;%1&quot;, cannot be written: %2. Nothing is printed without it; make room for it, or make it writable for you.</source>
        <translation>No se puede escribir el registro de lo impreso, «%1»: %2. Sin él no se imprime nada; libere espacio o permita escribir en él.</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchRun</name>
    <message>
        <source>The folder &quot;%1&quot; of %2 does not exist. Make it, or choose another one.</source>
        <translation>La carpeta «%1» de %2 no existe. Créela o elija otra.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder, and %2 needs one. Choose a folder.</source>
        <translation>«%1» no es una carpeta, y %2 necesita una. Elija una carpeta.</translation>
    </message>
    <message>
        <source>You may not read the folder &quot;%1&quot; of %2. Change its permissions, or choose another one.</source>
        <translation>No tiene permiso para leer la carpeta «%1» de %2. Cambie sus permisos o elija otra.</translation>
    </message>
    <message>
        <source>--printed and --watch name the same folder, &quot;%1&quot;. Choose another one for the printed photos.</source>
        <translation>--printed y --watch nombran la misma carpeta, «%1». Elija otra para las fotos impresas.</translation>
    </message>
</context>
</TS>
