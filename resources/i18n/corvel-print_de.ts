<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AnnouncedPrinters</name>
    <message>
        <source>printers on the network are not listed, because Avahi is not running</source>
        <translation>Drucker im Netzwerk werden nicht aufgelistet, da Avahi nicht läuft</translation>
    </message>
    <message>
        <source>printers on the network are not listed, because Avahi does not answer</source>
        <translation>Drucker im Netzwerk werden nicht aufgelistet, da Avahi nicht antwortet</translation>
    </message>
</context>
<context>
    <name>ArrangementText</name>
    <message>
        <source>fitted</source>
        <comment>a photo into its print size</comment>
        <translation>eingepasst</translation>
    </message>
    <message>
        <source>Fit on the page</source>
        <translation>In die Seite einpassen</translation>
    </message>
    <message>
        <source>filled</source>
        <comment>a print size by its photo</comment>
        <translation>gefüllt</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>Seite füllen</translation>
    </message>
    <message>
        <source>actual size</source>
        <comment>of a photo within its print size</comment>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tatsächliche Größe</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>a scale</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>border %1</source>
        <translation>Rand %1</translation>
    </message>
    <message>
        <source>%1, turned by %2°</source>
        <translation>%1, um %2° gedreht</translation>
    </message>
    <message>
        <source>Differs by photo</source>
        <translation>Je nach Foto verschieden</translation>
    </message>
    <message>
        <source>One photo on each sheet</source>
        <translation>Ein Foto auf jedem Blatt</translation>
    </message>
    <message>
        <source>%1 rows, %2 columns</source>
        <translation>%1 Zeilen, %2 Spalten</translation>
    </message>
    <message>
        <source>As many as fit</source>
        <translation>So viele wie passen</translation>
    </message>
    <message>
        <source>Contact sheet, %1 rows, %2 columns</source>
        <translation>Kontaktabzug, %1 Zeilen, %2 Spalten</translation>
    </message>
    <message>
        <source>Two strips of %1 photos</source>
        <translation>Zwei Streifen mit %1 Fotos</translation>
    </message>
    <message>
        <source>the same photo repeated</source>
        <translation>dasselbe Foto wiederholt</translation>
    </message>
    <message>
        <source>the next photos following</source>
        <translation>die nächsten Fotos folgend</translation>
    </message>
    <message>
        <source>%1 pages on each side</source>
        <translation>%1 Seiten auf jeder Blattseite</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>of a document</comment>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Aktuelle Seite</translation>
    </message>
    <message>
        <source>odd only</source>
        <comment>pages</comment>
        <translation>nur ungerade</translation>
    </message>
    <message>
        <source>even only</source>
        <comment>pages</comment>
        <translation>nur gerade</translation>
    </message>
    <message>
        <source>last one first</source>
        <comment>pages</comment>
        <translation>letzte zuerst</translation>
    </message>
    <message>
        <source>There are no pages after page %1.</source>
        <translation>Nach Seite %1 kommen keine Seiten mehr.</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>%n Foto</numerusform>
            <numerusform>%n Fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n Seite</numerusform>
            <numerusform>%n Seiten</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>photos and pages</comment>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>No page of &quot;%1&quot; is printed.</source>
        <translation>Von „%1“ wird keine Seite gedruckt.</translation>
    </message>
</context>
<context>
    <name>BatchRun</name>
    <message>
        <source>%1 Printed before it: %2.</source>
        <translation>%1 Davor gedruckt: %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Canceled; nothing more is printed.</source>
        <translation>Abgebrochen; es wird nichts mehr gedruckt.</translation>
    </message>
    <message>
        <source>Canceled; the jobs already sent were canceled, too.</source>
        <translation>Abgebrochen; die gesendeten Aufträge wurden vom Drucker zurückgenommen.</translation>
    </message>
    <message>
        <source>--one-pdf is for the built-in printer, and this is &quot;%1&quot;. Leave it out, or name the built-in printer.</source>
        <translation>--one-pdf gilt für den eingebauten Drucker, und dies ist „%1“. Lassen Sie es weg, oder nennen Sie den eingebauten Drucker.</translation>
    </message>
</context>
<context>
    <name>BookletSides</name>
    <message>
        <source>A booklet is printed on both sides, turned on the short edge. Another choice does not allow that: look at &quot;%1&quot;.</source>
        <translation>Eine Broschüre wird beidseitig gedruckt, an der kurzen Kante gewendet. Eine andere Auswahl lässt das nicht zu: Sehen Sie sich „%1“ an.</translation>
    </message>
    <message>
        <source>A booklet is printed on both sides, turned on the short edge: &quot;%1&quot; is set to that.</source>
        <translation>Eine Broschüre wird beidseitig gedruckt, an der kurzen Kante gewendet: „%1“ ist so eingestellt.</translation>
    </message>
    <message>
        <source>A booklet is printed on both sides, turned on the short edge. This printer does not do that itself: make one PDF of it with the built-in printer, then print the odd pages of that PDF, and the even ones on their backs.</source>
        <translation>Eine Broschüre wird beidseitig gedruckt, an der kurzen Kante gewendet. Dieser Drucker kann das nicht selbst: Machen Sie mit dem eingebauten Drucker eine PDF-Datei daraus, und drucken Sie deren ungerade Seiten, dann die geraden auf deren Rückseiten.</translation>
    </message>
</context>
<context>
    <name>ChoiceMarker</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (%2)</source>
        <translation>„%1“ (%2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is only the beginning of a number; allowed for the option %2 are %3.</source>
        <translation>„%1“ ist nur der Anfang einer Zahl; für die Option %2 erlaubt: %3.</translation>
    </message>
    <message>
        <source>The option %1 has no choice &quot;%2&quot;; allowed are %3.</source>
        <translation>Die Option %1 hat keine Auswahl „%2“; erlaubt: %3.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 auf %2 steht</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1 cannot be %2 while %3.</source>
        <translation>%1 kann nicht auf %2 stehen, solange %3.</translation>
    </message>
    <message>
        <source>The printer has no option &quot;%1&quot;; it has %2.</source>
        <translation>Der Drucker hat keine Option „%1“; vorhanden: %2.</translation>
    </message>
    <message>
        <source>Custom.VALUE (%1)</source>
        <translation>Custom.WERT (%1)</translation>
    </message>
    <message>
        <source>%1=VALUE (%2)</source>
        <translation>%1=WERT (%2)</translation>
    </message>
    <message>
        <source>Custom.WIDTHxHEIGHT%1 (from %2 to %3)</source>
        <translation>Custom.BREITExHÖHE%1 (von %2 bis %3)</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the built-in printer, with this PPD instead of its own</source>
        <translation>der eingebaute Drucker, mit dieser PPD-Datei statt seiner eigenen</translation>
    </message>
    <message>
        <source>refuse a conflicting choice at once (constraint, the default),
or check all choices together before printing (settings)</source>
        <translation>eine unverträgliche Auswahl sofort ablehnen (constraint, Standard)
oder vor dem Drucken alles zusammen prüfen (settings)</translation>
    </message>
    <message>
        <source>choose for an option of the printer; repeatable, in order</source>
        <translation>Auswahl für eine Option des Druckers; mehrfach, der Reihe nach</translation>
    </message>
    <message>
        <source>list the printers, one per line: name, description, state,
&quot;default&quot;; separated by tabs</source>
        <translation>Drucker auflisten, einer je Zeile: Name, Beschreibung, Zustand,
„Standard“; durch Tabulatoren getrennt</translation>
    </message>
    <message>
        <source>list the printer&apos;s options with their choices and panels</source>
        <translation>die Optionen des Druckers mit Auswahl und Seiten auflisten</translation>
    </message>
    <message>
        <source>show the job in words: the paper, the copies, the placement and
what the panels say; with --batch as well as printing</source>
        <translation>den Auftrag in Worten zeigen: Papier, Exemplare, Platzierung und
was die Seiten sagen; mit --batch zusätzlich zum Drucken</translation>
    </message>
    <message>
        <source>save a picture of the dialog with each panel in DIR, exit</source>
        <translation>je Seite ein Bild des Dialogs in DIR speichern, beenden</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>diese Hilfe zeigen</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>die Version zeigen</translation>
    </message>
    <message>
        <source>The value of --%1 is empty.</source>
        <translation>Der Wert von --%1 ist leer.</translation>
    </message>
    <message>
        <source>--ppd is for the built-in printer, and --printer names the queue &quot;%1&quot;.</source>
        <translation>--ppd gilt für den eingebauten Drucker, --printer nennt aber die Warteschlange „%1“.</translation>
    </message>
    <message>
        <source>%1 and %2 exclude each other.</source>
        <translation>%1 und %2 schließen einander aus.</translation>
    </message>
    <message>
        <source>show exactly what --batch would send, and send nothing</source>
        <translation>genau zeigen, was --batch senden würde, und nichts senden</translation>
    </message>
    <message>
        <source>how long --batch follows its jobs at most (0: not at all); otherwise to
their end. It never waits longer than 10 seconds for a job that is held
or whose printer is stopped, nor than 10 minutes without any news: such a
job stays with the print server, and that is told, with exit status 0</source>
        <translation>wie lange --batch seine Aufträge höchstens verfolgt (0: gar nicht); sonst
bis zum Ende. Auf einen angehaltenen Auftrag oder Drucker wird nie länger
als 10 Sekunden gewartet, ohne jede Neuigkeit nie länger als 10 Minuten:
So ein Auftrag bleibt beim Druckserver; das wird gemeldet, Status 0</translation>
    </message>
    <message>
        <source>the print server to ask, instead of this machine&apos;s own</source>
        <translation>der Druckserver, der gefragt wird, statt dem dieses Rechners</translation>
    </message>
    <message>
        <source>lists, summary and --dry-run as JSON</source>
        <translation>Listen, Zusammenfassung und --dry-run als JSON</translation>
    </message>
    <message>
        <source>--json is for --list-printers, --list-options, --summary and --dry-run.</source>
        <translation>--json gehört zu --list-printers, --list-options, --summary und --dry-run.</translation>
    </message>
    <message>
        <source>--wait is for --batch.</source>
        <translation>--wait gehört zu --batch.</translation>
    </message>
    <message>
        <source>the whole photo on the page (fit, the default), the page filled
and the photo cropped (fill), or the photo by its file&apos;s resolution
(actual; 300 pixels per inch when the file names none)</source>
        <translation>das ganze Foto auf der Seite (fit, Vorgabe), die Seite gefüllt und das
Foto beschnitten (fill) oder das Foto nach der Auflösung seiner Datei
(actual; 300 Pixel pro Zoll, wenn die Datei keine nennt)</translation>
    </message>
    <message>
        <source>which part of a cropped photo is kept, in per cent from its left
and from its top (otherwise 50,50, the middle)</source>
        <translation>welcher Teil eines beschnittenen Fotos bleibt, in Prozent von seinem
linken und oberen Rand aus (sonst 50,50, die Mitte)</translation>
    </message>
    <message>
        <source>--crop is for --scaling fill or actual; with fit nothing is cropped.</source>
        <translation>--crop gehört zu --scaling fill oder actual; mit fit wird nichts beschnitten.</translation>
    </message>
    <message>
        <source>where the built-in printer leaves its files (otherwise the current
folder; with a window, Prints in your Pictures folder)</source>
        <translation>wo der eingebaute Drucker seine Dateien ablegt (sonst im aktuellen
Ordner; mit Fenster unter Prints in Ihrem Bilderordner)</translation>
    </message>
    <message>
        <source>how many copies of each photo; otherwise the preset&apos;s, or 1</source>
        <translation>wie oft jedes Foto gedruckt wird; sonst wie in der Voreinstellung, oder 1</translation>
    </message>
    <message>
        <source>--batch and --dry-run do not look for damage in photos,
and print what is left of them</source>
        <translation>--batch und --dry-run prüfen Fotos nicht auf Schäden
und drucken, was von ihnen übrig ist</translation>
    </message>
    <message>
        <source>--no-check is for --batch and --dry-run.</source>
        <translation>--no-check gehört zu --batch und --dry-run.</translation>
    </message>
    <message>
        <source>There is no mode &quot;%1&quot;. Choose constraint or settings.</source>
        <translation>Es gibt keinen Modus „%1“. Wählen Sie constraint oder settings.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a print server. Give it as HOST or HOST:PORT.</source>
        <translation>„%1“ ist kein Druckserver. Geben Sie ihn als HOST oder HOST:PORT an.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time to wait. Give a number of seconds from 0 to %2.</source>
        <translation>„%1“ ist keine Wartezeit. Geben Sie eine Zahl von Sekunden von 0 bis %2 an.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; copies cannot be printed. Give a number from 1 to %2.</source>
        <translation>„%1“ Exemplare lassen sich nicht drucken. Geben Sie eine Zahl von 1 bis %2 an.</translation>
    </message>
    <message>
        <source>There is no scaling &quot;%1&quot;. Choose fit, fill or actual.</source>
        <translation>Es gibt keine Größenanpassung „%1“. Wählen Sie fit, fill oder actual.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a crop. Give two numbers from 0 to 100, such as 50,0.</source>
        <translation>„%1“ ist kein Ausschnitt. Geben Sie zwei Zahlen von 0 bis 100 an, etwa 50,0.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an option. Give it as KEY=CHOICE.</source>
        <translation>„%1“ ist keine Option. Geben Sie sie als KEY=CHOICE an.</translation>
    </message>
    <message>
        <source>a print queue, or &quot;built-in&quot; for the built-in printer; with a preset
of it: QUEUE/PRESET. Or a printer&apos;s address, ipp://HOST/ipp/print,
which needs no print server. Otherwise your default queue, or else the
built-in printer</source>
        <translation>eine Druckerwarteschlange oder „built-in“ für den eingebauten Drucker;
mit einer Voreinstellung davon: QUEUE/VOREINSTELLUNG. Oder die Adresse
eines Druckers, ipp://HOST/ipp/print, ohne Druckserver. Sonst Ihre
Standardwarteschlange oder der eingebaute Drucker</translation>
    </message>
    <message>
        <source>the job&apos;s title at a print queue; otherwise the photo&apos;s name</source>
        <translation>der Titel des Auftrags in einer Warteschlange; sonst der Name des Fotos</translation>
    </message>
    <message>
        <source>--title is for print queues; the built-in printer names its files after the photos.</source>
        <translation>--title ist für Warteschlangen; der eingebaute Drucker benennt seine Dateien nach den Fotos.</translation>
    </message>
    <message>
        <source>--batch replaces files that the built-in printer has left before,
instead of numbering the new ones, and --preview earlier pictures;
a photo is never replaced</source>
        <translation>--batch ersetzt frühere Dateien des eingebauten Druckers, statt
die neuen zu nummerieren, und --preview frühere Bilder;
ein Foto wird nie ersetzt</translation>
    </message>
    <message>
        <source>save a picture of the page as the window shows it, 1200 pixels on its
longer side, and exit; of further photos in FILE-2.png, FILE-3.png, ...</source>
        <translation>ein Bild der Seite speichern, wie das Fenster sie zeigt, 1200 Pixel an
der längeren Seite, und beenden; weitere Fotos in FILE-2.png, FILE-3.png, ...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a picture. Give one that ends in .png.</source>
        <translation>„%1“ ist kein Name für ein Bild. Geben Sie einen an, der auf .png endet.</translation>
    </message>
    <message>
        <source>--overwrite is for --batch, --dry-run and --preview.</source>
        <translation>--overwrite ist für --batch, --dry-run und --preview.</translation>
    </message>
    <message>
        <source>the size of each print, such as 9x13cm, 35x45mm, 4x6in, or by name:
square, passport, wallet; otherwise the whole page</source>
        <translation>die Größe jedes Abzugs, etwa 9x13cm, 35x45mm, 4x6in, oder mit Namen:
square, passport, wallet; sonst die ganze Seite</translation>
    </message>
    <message>
        <source>the photo larger or smaller than by its scaling, 1 to 1000</source>
        <translation>das Foto größer oder kleiner als durch seine Skalierung, 1 bis 1000</translation>
    </message>
    <message>
        <source>a border around each photo, within its size: 3mm, or 3mm,black</source>
        <translation>ein Rand um jedes Foto, innerhalb seiner Größe: 3mm oder 3mm,black</translation>
    </message>
    <message>
        <source>what stands below each photo of a layout</source>
        <translation>was unter jedem Foto eines Layouts steht</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a print size. Give one such as 10x15cm, 4x6in or passport, with sides from 5 mm to 2 m.</source>
        <translation>„%1“ ist keine Abzugsgröße. Geben Sie etwa 10x15cm, 4x6in oder passport an, mit Seiten von 5 mm bis 2 m.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a scale. Give a number from 1 to 1000, in per cent.</source>
        <translation>„%1“ ist kein Maßstab. Geben Sie eine Zahl von 1 bis 1000 an, in Prozent.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a border. Give a width from 0 to 100 mm, and a color if it is not to be white: 3mm,black.</source>
        <translation>„%1“ ist kein Rand. Geben Sie eine Breite von 0 bis 100 mm an, und eine Farbe, wenn er nicht weiß sein soll: 3mm,black.</translation>
    </message>
    <message>
        <source>There is no caption &quot;%1&quot;. Choose none, name, date or both.</source>
        <translation>Es gibt keine Bildunterschrift „%1“. Wählen Sie none, name, date oder both.</translation>
    </message>
    <message>
        <source>a preset of the printer, also of your default printer</source>
        <translation>eine Voreinstellung des Druckers, auch Ihres Standarddruckers</translation>
    </message>
    <message>
        <source>--preset names the preset &quot;%1&quot;, and --printer the preset &quot;%2&quot;. Name one.</source>
        <translation>--preset nennt die Voreinstellung „%1“ und --printer die Voreinstellung „%2“. Nennen Sie nur eine.</translation>
    </message>
    <message>
        <source>--preset is for print queues and the built-in printer, and &quot;%1&quot; is a printer&apos;s address. Use -o in its place.</source>
        <translation>--preset ist für Warteschlangen und den eingebauten Drucker, und „%1“ ist die Adresse eines Druckers. Verwenden Sie stattdessen -o.</translation>
    </message>
    <message>
        <source>--preset needs --printer where a window opens: it opens with the printer used last, which may have no such preset.</source>
        <translation>--preset braucht --printer, wenn ein Fenster aufgeht: Es öffnet sich mit dem zuletzt benutzten Drucker, der diese Voreinstellung vielleicht nicht hat.</translation>
    </message>
    <message>
        <source>no window: print each photo that arrives in the folder, once, until the
program is ended (SIGTERM, Ctrl+C). It waits for a printer or a print
server that is away. The photos that are there at first are left alone;
those that cannot be printed go to the folder &quot;unprintable&quot; in it</source>
        <translation>ohne Fenster: jedes Foto, das in dem Ordner ankommt, einmal drucken, bis
das Programm beendet wird (SIGTERM, Strg+C). Auf einen Drucker oder
Druckserver, der nicht da ist, wird gewartet. Fotos, die anfangs schon da
sind, bleiben unberührt; nicht druckbare kommen in dessen Unterordner
&quot;unprintable&quot;</translation>
    </message>
    <message>
        <source>where --watch moves photos once they are printed; otherwise they stay
where they are, and the program remembers them</source>
        <translation>wohin --watch gedruckte Fotos verschiebt; sonst bleiben sie, wo sie sind,
und das Programm merkt sie sich</translation>
    </message>
    <message>
        <source>--watch also prints the photos that are there at first</source>
        <translation>--watch druckt auch die Fotos, die anfangs schon da sind</translation>
    </message>
    <message>
        <source>%1 is for --watch.</source>
        <translation>%1 ist für --watch.</translation>
    </message>
    <message>
        <source>--watch prints the photos of its folder, and &quot;%1&quot; is named, too. Leave one of them out.</source>
        <translation>--watch druckt die Fotos seines Ordners, und „%1“ ist auch genannt. Lassen Sie eines davon weg.</translation>
    </message>
    <message>
        <source>--batch: the built-in printer makes one PDF of all sheets, NAME.pdf,
instead of one for each sheet</source>
        <translation>--batch: Der eingebaute Drucker macht ein PDF aus allen Blättern, NAME.pdf,
statt eines für jedes Blatt</translation>
    </message>
    <message>
        <source>--one-pdf is for --batch and --dry-run.</source>
        <translation>--one-pdf gehört zu --batch und --dry-run.</translation>
    </message>
    <message>
        <source>no window: apply the options, print, exit; of what the window has
saved only the print position is used, so that a script gets the same
each time</source>
        <translation>kein Fenster: Optionen anwenden, drucken, beenden; von dem, was das
Fenster gespeichert hat, wird nur die Drucklage verwendet, damit ein
Skript jedes Mal dasselbe erhält</translation>
    </message>
    <message>
        <source>--%1 stands alone, without photos and other options.</source>
        <translation>--%1 steht allein, ohne Fotos und andere Optionen.</translation>
    </message>
    <message>
        <source>have the programs that print through the desktop&apos;s portal use this
dialog: sets one key of your portals.conf, and says in which file.
Needs the package corvel-print-portal</source>
        <translation>Programme, die über das Portal des Desktops drucken, diesen Dialog benutzen
lassen: setzt einen Schlüssel Ihrer portals.conf und sagt, in welcher Datei.
Braucht das Paket corvel-print-portal</translation>
    </message>
    <message>
        <source>remove that key again</source>
        <translation>diesen Schlüssel wieder entfernen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a layout. Give rows and columns from 1 to 20 (2x3), fit, contact, strips:2 to strips:4, pages:2, 4, 6, 9 or 16, or booklet.</source>
        <translation>„%1“ ist keine Anordnung. Geben Sie Zeilen und Spalten von 1 bis 20 (2x3), fit, contact, strips:2 bis strips:4, pages:2, 4, 6, 9 oder 16, oder booklet an.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say which pages. Give page numbers from 1 on and ranges, such as 1-3,7,12-.</source>
        <translation>„%1“ sagt nicht, welche Seiten. Geben Sie Seitenzahlen ab 1 und Bereiche an, etwa 1-3,7,12-.</translation>
    </message>
    <message>
        <source>There is no set of pages &quot;%1&quot;. Choose all, odd or even.</source>
        <translation>Es gibt keine Seitenauswahl „%1“. Wählen Sie all, odd oder even.</translation>
    </message>
    <message>
        <source>several photos on a sheet: ROWSxCOLUMNS (2x3); fit, as many of the size
as fit; contact or contact:ROWSxCOLUMNS, a contact sheet; strips or
strips:NUMBER, two strips of 2 to 4 photos. With &quot;,repeat&quot; each photo
fills its sheet; also &quot;,gap=2mm&quot; and &quot;,marks&quot; for cut marks. Of a
document: pages:2, 4, 6, 9 or 16 on each sheet, or booklet</source>
        <translation>mehrere Fotos auf einem Blatt: ZEILENxSPALTEN (2x3); fit, so viele der Größe
wie möglich; contact oder contact:ZEILENxSPALTEN, ein Kontaktabzug; strips
oder strips:ZAHL, zwei Streifen mit 2 bis 4 Fotos. Mit „,repeat“ füllt jedes
Foto sein Blatt; auch „,gap=2mm“ und „,marks“ für Schnittmarken. Bei
Dokumenten: pages:2, 4, 6, 9 oder 16 pro Blatt, oder booklet</translation>
    </message>
    <message>
        <source>which pages of documents: 1-3,7,12- (12- is page 12 to the last one);
otherwise all</source>
        <translation>welche Seiten von Dokumenten: 1-3,7,12- (12- ist Seite 12 bis zur
letzten); sonst alle</translation>
    </message>
    <message>
        <source>only pages with odd or with even numbers</source>
        <translation>nur Seiten mit ungeraden oder geraden Zahlen</translation>
    </message>
    <message>
        <source>print the last sheet first</source>
        <translation>das letzte Blatt zuerst drucken</translation>
    </message>
    <message>
        <source>Usage: corvel-print [options] FILE...
Prints photos and PDF documents: from a window, or at once with --batch.
FILE can be - for the standard input, or a print list, LIST.json.

Options:
</source>
        <translation>Aufruf: corvel-print [Optionen] FILE...
Druckt Fotos und PDF-Dokumente: aus einem Fenster, oder mit --batch sofort.
FILE kann - für die Standardeingabe sein, oder eine Druckliste, LIST.json.

Optionen:
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
Rückgabewert:
  0  gedruckt oder das Verlangte getan
  1  abgelehnt oder fehlgeschlagen; eine Zeile auf der Standardfehlerausgabe sagt, was
     und warum. Ein Foto mit beschädigtem Bild wird mit einer eigenen Zeile ausgelassen,
     die anderen werden gedruckt
  2  falscher Aufruf

Beispiele:
  corvel-print --printer built-in urlaub.jpg
  corvel-print --batch -o Red=12 -o Quality=Fine -o Overcoat=Matte --output abzuege *.jpg
  corvel-print --batch --size passport --scaling fill --layout fit portraet.jpg
  corvel-print --batch --pages 2-9 --layout booklet -o Duplex=DuplexTumble report.pdf
</translation>
    </message>
    <message>
        <source>--batch needs a file to print.</source>
        <translation>--batch braucht eine Datei zum Drucken.</translation>
    </message>
    <message>
        <source>--dry-run needs a file.</source>
        <translation>--dry-run braucht eine Datei.</translation>
    </message>
    <message>
        <source>--preview needs a file.</source>
        <translation>--preview braucht eine Datei.</translation>
    </message>
    <message>
        <source>A print list says itself which files are printed and how. Give it without other files, and without %1.</source>
        <translation>Eine Druckliste sagt selbst, welche Dateien wie gedruckt werden. Geben Sie sie ohne andere Dateien und ohne %1 an.</translation>
    </message>
    <message>
        <source>&quot;-&quot; reads one file from the standard input. Give it once.</source>
        <translation>„-“ liest eine Datei von der Standardeingabe. Geben Sie es einmal an.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file on this computer. Copy it here first.</source>
        <translation>„%1“ ist keine Datei auf diesem Rechner. Kopieren Sie sie zuerst hierher.</translation>
    </message>
</context>
<context>
    <name>CommonValue</name>
    <message>
        <source>Several</source>
        <translation>Verschiedene</translation>
    </message>
</context>
<context>
    <name>Console</name>
    <message>
        <source>Standard output could not be written to: %1. Send it to another place.</source>
        <translation>Die Standardausgabe konnte nicht geschrieben werden: %1. Leiten Sie sie an einen anderen Ort.</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>Und %n weitere.</numerusform>
            <numerusform>Und %n weitere.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CupsConnection</name>
    <message>
        <source>nothing answers at %1</source>
        <translation>unter %1 antwortet nichts</translation>
    </message>
    <message>
        <source>no printer can have this name</source>
        <translation>kein Drucker kann so heißen</translation>
    </message>
    <message>
        <source>it gave no answer within %1 s</source>
        <translation>er hat innerhalb von %1 s nicht geantwortet</translation>
    </message>
    <message>
        <source>the connection broke</source>
        <translation>die Verbindung ist abgebrochen</translation>
    </message>
    <message>
        <source>its answer is too large or malformed</source>
        <translation>seine Antwort ist zu groß oder fehlerhaft</translation>
    </message>
    <message>
        <source>this is not a printer&apos;s address</source>
        <translation>dies ist keine Druckeradresse</translation>
    </message>
    <message>
        <source>its certificate is not trusted</source>
        <translation>seinem Zertifikat wird nicht vertraut</translation>
    </message>
    <message>
        <source>it wants a password, which would cross the network unencrypted</source>
        <translation>verlangt wird ein Passwort, das unverschlüsselt durch das Netz ginge</translation>
    </message>
    <message>
        <source>it has refused the name or the password %1 times</source>
        <translation>Benutzername oder Passwort wurden %1-mal abgelehnt</translation>
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
        <translation>%1 Zoll</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>von %1 bis %2</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>%1 Ziffern</translation>
    </message>
    <message>
        <source>%1 to %2 digits</source>
        <translation>%1 bis %2 Ziffern</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 Zeichen</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>%1 bis %2 Zeichen</translation>
    </message>
    <message>
        <source>entered, not shown</source>
        <translation>eingegeben, nicht angezeigt</translation>
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
        <translation>%1 × %2 Zoll</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>inches</comment>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>a time from %1 to %2</source>
        <translation>eine Uhrzeit von %1 bis %2</translation>
    </message>
</context>
<context>
    <name>IntakeText</name>
    <message>
        <source>The program has stopped sending &quot;%1&quot;. Nothing was printed; print again.</source>
        <translation>Das Programm sendet nichts mehr von „%1“. Gedruckt wurde nichts; drucken Sie noch einmal.</translation>
    </message>
    <message>
        <source>The program sent nothing of &quot;%1&quot;, so nothing was printed.</source>
        <translation>Das Programm hat von „%1“ nichts gesendet; gedruckt wurde deshalb nichts.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be printed: a document may have %2. Print fewer pages at a time.</source>
        <translation>„%1“ ist zu groß zum Drucken: Ein Dokument darf %2 haben. Drucken Sie weniger Seiten auf einmal.</translation>
    </message>
    <message>
        <source>The program sent &quot;%1&quot; in a format that cannot be printed: only PDF and PostScript can.</source>
        <translation>Das Programm hat „%1“ in einem Format gesendet, das nicht gedruckt werden kann: Das geht nur mit PDF und PostScript.</translation>
    </message>
    <message>
        <source>The program sent &quot;%1&quot; as PostScript, which needs Ghostscript. Install the package ghostscript and print again.</source>
        <translation>Das Programm hat „%1“ als PostScript gesendet, wofür Ghostscript gebraucht wird. Installieren Sie das Paket ghostscript, und drucken Sie noch einmal.</translation>
    </message>
    <message>
        <source>The program sent &quot;%1&quot; as PostScript that Ghostscript cannot convert, so nothing was printed.</source>
        <translation>Das Programm hat „%1“ als PostScript gesendet, das Ghostscript nicht umwandeln kann; gedruckt wurde deshalb nichts.</translation>
    </message>
    <message>
        <source>There is not enough memory for &quot;%1&quot;. Close other programs and print again.</source>
        <translation>Für „%1“ reicht der Speicher nicht. Schließen Sie andere Programme, und drucken Sie noch einmal.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read from the program, so nothing was printed.</source>
        <translation>„%1“ kann nicht vom Programm gelesen werden; gedruckt wurde deshalb nichts.</translation>
    </message>
</context>
<context>
    <name>IppOptions</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>%1 dpi</source>
        <translation>%1 dpi</translation>
    </message>
    <message>
        <source>%1 × %2 dpi</source>
        <translation>%1 × %2 dpi</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Weiterverarbeitung</translation>
    </message>
    <message>
        <source>Further options</source>
        <translation>Weitere Optionen</translation>
    </message>
    <message>
        <source>Page sizes of the printer left out because they cannot be used: %1.</source>
        <translation>Weggelassene Papierformate des Druckers, weil sie unbrauchbar sind: %1.</translation>
    </message>
    <message>
        <source>Options left out because they have no usable values: %1.</source>
        <translation>Weggelassene Optionen, weil sie keine brauchbaren Werte haben: %1.</translation>
    </message>
    <message>
        <source>Values of options left out because they are repeated or cannot be used: %1.</source>
        <translation>Weggelassene Werte von Optionen, weil sie doppelt oder unbrauchbar sind: %1.</translation>
    </message>
    <message>
        <source>Defaults left out because they are not among the choices: %1.</source>
        <translation>Weggelassene Vorgaben, weil sie nicht zur Auswahl stehen: %1.</translation>
    </message>
    <message>
        <source>Rules about choices left out because they are too many: %1.</source>
        <translation>Weggelassene Regeln für die Auswahl, weil es zu viele sind: %1.</translation>
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
        <translation>wartet auf den Drucker</translation>
    </message>
    <message>
        <source>held</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>druckt</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>gedruckt</translation>
    </message>
    <message>
        <source>it was started again and does not know job %1</source>
        <translation>er wurde neu gestartet und kennt den Auftrag %1 nicht</translation>
    </message>
    <message>
        <source>the print server does not answer; asking again</source>
        <translation>der Druckserver antwortet nicht; er wird weiter gefragt</translation>
    </message>
</context>
<context>
    <name>JobPlan</name>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>%1, the file as it is</source>
        <translation>%1, die Datei unverändert</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>%1 (not shown)</source>
        <comment>the option of a password</comment>
        <translation>%1 (nicht angezeigt)</translation>
    </message>
    <message>
        <source>%1, %2 from the left, %3 from the top</source>
        <translation>%1, %2 von links, %3 von oben</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Blatt</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>Seiten: %1</translation>
    </message>
    <message>
        <source>Document: %1</source>
        <translation>Dokument: %1</translation>
    </message>
    <message>
        <source>Sheets</source>
        <translation>Blätter</translation>
    </message>
    <message>
        <source>%1 to %2 of %3</source>
        <translation>%1 bis %2 von %3</translation>
    </message>
</context>
<context>
    <name>JobSubmission</name>
    <message>
        <source>The document &quot;%1&quot; is not sent, because its type has a control character in it.</source>
        <translation>Das Dokument „%1“ wird nicht gesendet, weil sein Typ ein Steuerzeichen enthält.</translation>
    </message>
    <message>
        <source>it accepted the job without giving it a number</source>
        <translation>er hat den Auftrag angenommen, ihm aber keine Nummer gegeben</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because this cannot be an option&apos;s keyword. Leave it out.</source>
        <translation>Die Option „%1“ wird nicht gesendet, weil so kein Schlüsselwort einer Option heißen kann. Lassen Sie sie weg.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because its value has a line break or another control character in it. Choose another value.</source>
        <translation>Die Option „%1“ wird nicht gesendet, weil ihr Wert einen Zeilenumbruch oder ein anderes Steuerzeichen enthält. Wählen Sie einen anderen Wert.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because CUPS misreads a value that begins with a brace. Choose another value.</source>
        <translation>Die Option „%1“ wird nicht gesendet, weil CUPS einen Wert falsch liest, der mit einer geschweiften Klammer beginnt. Wählen Sie einen anderen Wert.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because its value is longer than %2 bytes. Choose another value.</source>
        <translation>Die Option „%1“ wird nicht gesendet, weil ihr Wert länger als %2 Byte ist. Wählen Sie einen anderen Wert.</translation>
    </message>
    <message>
        <source>%1 copies cannot be printed. Choose a number from 1 to %2.</source>
        <translation>%1 Exemplare können nicht gedruckt werden. Wählen Sie eine Zahl von 1 bis %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not sent, because the printer cannot read a PDF, and this photo does not go to it as it is. Choose a borderless paper and fill it with a JPEG, or set up a queue for the printer in the printer settings.</source>
        <translation>„%1“ wird nicht gesendet, weil der Drucker kein PDF lesen kann und dieses Foto nicht unverändert gesendet werden kann. Wählen Sie ein randloses Papier und füllen Sie es mit einem JPEG, oder richten Sie den Drucker in den Druckereinstellungen ein.</translation>
    </message>
    <message>
        <source>%1 copies cannot be printed. The printer makes at most %2 at a time; choose fewer.</source>
        <translation>%1 Exemplare können nicht gedruckt werden. Der Drucker macht höchstens %2 auf einmal; wählen Sie weniger.</translation>
    </message>
    <message>
        <source>it wants a password, which would cross the network unencrypted</source>
        <translation>verlangt wird ein Passwort, das unverschlüsselt durch das Netz ginge</translation>
    </message>
</context>
<context>
    <name>JobSummary</name>
    <message>
        <source>Paper size</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Platzierung</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>Listings</name>
    <message>
        <source>default</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>Log In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>The print server %1 wants a user name and a password.</source>
        <translation>Der Druckserver %1 verlangt Benutzername und Passwort.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; on %2 wants a user name and a password.</source>
        <translation>Der Drucker „%1“ auf %2 verlangt Benutzername und Passwort.</translation>
    </message>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>Benutzername oder Passwort wurden nicht angenommen.</translation>
    </message>
    <message>
        <source>They are kept until the program ends.</source>
        <translation>Sie gelten, bis das Programm endet.</translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation>&amp;Anmelden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>&amp;Benutzername:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
</context>
<context>
    <name>Logins</name>
    <message>
        <source>it wants a user name and a password, and none were entered</source>
        <translation>verlangt werden Benutzername und Passwort, und es wurden keine eingegeben</translation>
    </message>
    <message>
        <source>it wants a user name and a password</source>
        <translation>verlangt werden Benutzername und Passwort</translation>
    </message>
</context>
<context>
    <name>NumericChoices</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1 to %2 in steps of %3</source>
        <translation>%1 bis %2 in Schritten von %3</translation>
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
        <translation>Option</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Auswahlmöglichkeiten</translation>
    </message>
</context>
<context>
    <name>OwnJob</name>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>ohne Angabe von Gründen</translation>
    </message>
    <message>
        <source>The print server refused to list your jobs (%1). Ask its administrator.</source>
        <translation>Der Druckserver hat es abgelehnt, Ihre Aufträge aufzulisten (%1). Fragen Sie seinen Administrator.</translation>
    </message>
    <message>
        <source>The print server could not list your jobs (%1). Try again, or check its log.</source>
        <translation>Der Druckserver konnte Ihre Aufträge nicht auflisten (%1). Versuchen Sie es noch einmal, oder sehen Sie in sein Protokoll.</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be canceled: %3</source>
        <translation>Auftrag %1 (%2) konnte nicht abgebrochen werden: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be held: %3</source>
        <translation>Auftrag %1 (%2) konnte nicht angehalten werden: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be released: %3</source>
        <translation>Auftrag %1 (%2) konnte nicht freigegeben werden: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be printed again: %3</source>
        <translation>Auftrag %1 (%2) konnte nicht noch einmal gedruckt werden: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) cannot be printed again, because the print server has not kept its document. Open the photo in this program and print it from there.</source>
        <translation>Auftrag %1 (%2) kann nicht noch einmal gedruckt werden, da der Druckserver sein Dokument nicht behalten hat. Öffnen Sie das Foto in diesem Programm und drucken Sie es von dort.</translation>
    </message>
    <message>
        <source>Job %1 (%2) has moved on meanwhile. Look at its state.</source>
        <translation>Auftrag %1 (%2) ist inzwischen weiter. Sehen Sie sich seinen Zustand an.</translation>
    </message>
</context>
<context>
    <name>PlacementText</name>
    <message>
        <source>%1 × %2 in</source>
        <translation>%1 × %2 Zoll</translation>
    </message>
    <message>
        <source>%1 × %2 cm</source>
        <translation>%1 × %2 cm</translation>
    </message>
    <message>
        <source>%1 pixels per inch (the file names none)</source>
        <translation>%1 Pixel pro Zoll (die Datei nennt keine)</translation>
    </message>
    <message>
        <source>%1 pixels per inch</source>
        <translation>%1 Pixel pro Zoll</translation>
    </message>
    <message>
        <source>%1 % cut off</source>
        <translation>%1 % abgeschnitten</translation>
    </message>
    <message>
        <source>Page of %1</source>
        <comment>and its size</comment>
        <translation>Seite von %1</translation>
    </message>
    <message>
        <source>printed at %1 %</source>
        <translation>gedruckt mit %1 %</translation>
    </message>
</context>
<context>
    <name>PluginGuard</name>
    <message>
        <source>an error without a description</source>
        <translation>ein Fehler ohne Beschreibung</translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>it is not a folder</source>
        <translation>es ist kein Ordner</translation>
    </message>
    <message>
        <source>it has no readable Contents/Info.json</source>
        <translation>es hat keine lesbare Contents/Info.json</translation>
    </message>
    <message>
        <source>its Info.json is larger than 64 KiB</source>
        <translation>seine Info.json ist größer als 64 KiB</translation>
    </message>
    <message>
        <source>its Info.json is not a JSON object</source>
        <translation>seine Info.json ist kein JSON-Objekt</translation>
    </message>
    <message>
        <source>its Info.json has no &quot;CFBundleIdentifier&quot;</source>
        <translation>seine Info.json hat kein „CFBundleIdentifier“</translation>
    </message>
    <message>
        <source>the &quot;CFBundleExecutable&quot; of its Info.json is not a plain file name</source>
        <translation>„CFBundleExecutable“ in seiner Info.json ist kein einfacher Dateiname</translation>
    </message>
    <message>
        <source>The plug-in bundle &quot;%1&quot; cannot be used: %2. Install it again.</source>
        <translation>Das Plug-in-Paket „%1“ kann nicht verwendet werden: %2. Installieren Sie es erneut.</translation>
    </message>
    <message>
        <source>it has no module &quot;%1&quot;</source>
        <translation>es hat kein Modul „%1“</translation>
    </message>
    <message>
        <source>its identifier &quot;%1&quot; is not the one that its module was built for</source>
        <translation>sein Bezeichner „%1“ ist nicht der, für den das Modul gebaut wurde</translation>
    </message>
    <message>
        <source>it offers no panel for this printer</source>
        <translation>es bietet keine Seite für diesen Drucker</translation>
    </message>
    <message>
        <source>The printer&apos;s own panels (%1) are not installed in %2; it prints without them.</source>
        <translation>Die eigenen Seiten des Druckers (%1) sind in %2 nicht installiert; er druckt ohne sie.</translation>
    </message>
    <message>
        <source>its module is not a print-dialog plug-in</source>
        <translation>sein Modul ist kein Plug-in für den Druckdialog</translation>
    </message>
    <message>
        <source>The plug-in of the bundle &quot;%1&quot; has failed: %2. Update the plug-in.</source>
        <translation>Das Plug-in im Paket „%1“ hat versagt: %2. Aktualisieren Sie das Plug-in.</translation>
    </message>
</context>
<context>
    <name>PortalChoices</name>
    <message>
        <source>This printer does not have what the program asks for: %1.</source>
        <translation>Dieser Drucker hat nicht, was das Programm verlangt: %1.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;</source>
        <comment>an option and its choice</comment>
        <translation>%1 „%2“</translation>
    </message>
</context>
<context>
    <name>PortalSwitch</name>
    <message>
        <source>Other programs reach this dialog through %1, which is not installed. Get it with the package %1.</source>
        <translation>Andere Programme erreichen diesen Dialog über %1, das nicht installiert ist. Sie erhalten es mit dem Paket %1.</translation>
    </message>
    <message>
        <source>%1 %2 does not let each user choose: the installed package decides for everybody. Programs use this dialog while %3 is installed; install or remove it.</source>
        <translation>Mit %1 %2 kann nicht jeder Benutzer selbst wählen: Das installierte Paket entscheidet für alle. Programme benutzen diesen Dialog, solange %3 installiert ist; installieren oder entfernen Sie es.</translation>
    </message>
    <message>
        <source>The part of this program that other programs print with is not installed. Get it with the package %1.</source>
        <translation>Der Teil dieses Programms, mit dem andere Programme drucken, ist nicht installiert. Sie erhalten ihn mit dem Paket %1.</translation>
    </message>
    <message>
        <source>It is not known which desktop this is: XDG_CURRENT_DESKTOP is not set. Run it in a terminal of your desktop.</source>
        <translation>Der Desktop ist nicht bekannt: XDG_CURRENT_DESKTOP ist nicht gesetzt. Rufen Sie es in einem Terminal Ihres Desktops auf.</translation>
    </message>
    <message>
        <source>The file %1 is ignored by %2, because of its line %3. Correct that line or remove the file.</source>
        <translation>Die Datei %1 wird von %2 wegen ihrer Zeile %3 nicht beachtet. Berichtigen Sie die Zeile oder entfernen Sie die Datei.</translation>
    </message>
    <message>
        <source>The file %1 was changed just now. Try again.</source>
        <translation>Die Datei %1 wurde gerade eben geändert. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>It takes effect when you log in the next time, or at once with: %1</source>
        <translation>Es wirkt bei der nächsten Anmeldung, oder sofort mit: %1</translation>
    </message>
    <message>
        <source>The version of %1 cannot be found out. Before 1.17 it does not read this file, and the installed package decides.</source>
        <translation>Die Version von %1 lässt sich nicht feststellen. Vor 1.17 liest es diese Datei nicht, und das installierte Paket entscheidet.</translation>
    </message>
    <message>
        <source>Already so: %1 has &quot;%2&quot;.</source>
        <translation>Das ist schon so: %1 enthält „%2“.</translation>
    </message>
    <message>
        <source>%1 has &quot;%2&quot; now.</source>
        <translation>%1 enthält jetzt „%2“.</translation>
    </message>
    <message>
        <source>Made %1, a copy of %3, with &quot;%2&quot;.</source>
        <translation>%1 wurde angelegt, eine Kopie von %3 mit „%2“.</translation>
    </message>
    <message>
        <source>Made %1, with &quot;%2&quot;.</source>
        <translation>%1 wurde angelegt, mit „%2“.</translation>
    </message>
    <message>
        <source>The file %1 cannot be removed: %2.</source>
        <translation>Die Datei %1 kann nicht entfernt werden: %2.</translation>
    </message>
    <message>
        <source>Removed %1, which held nothing else of its own.</source>
        <translation>%1 wurde entfernt; sonst stand nichts Eigenes darin.</translation>
    </message>
    <message>
        <source>%1 does not name this dialog any more.</source>
        <translation>%1 nennt diesen Dialog nicht mehr.</translation>
    </message>
    <message>
        <source>The file %1 of the system has &quot;%2&quot;, for all its users. Only an administrator can change it.</source>
        <translation>Die Datei %1 des Systems enthält „%2“, für alle seine Benutzer. Nur ein Administrator kann sie ändern.</translation>
    </message>
    <message>
        <source>Already so: %1 does not name this dialog.</source>
        <translation>Das ist schon so: %1 nennt diesen Dialog nicht.</translation>
    </message>
    <message>
        <source>Already so: no file names this dialog.</source>
        <translation>Das ist schon so: Keine Datei nennt diesen Dialog.</translation>
    </message>
</context>
<context>
    <name>PositionTestPage</name>
    <message>
        <source>The vertical line is %1 mm from the left edge, and the horizontal one %1 mm from the top edge, if the printer prints in its place. Measure both, and type what you measured.</source>
        <translation>Die senkrechte Linie ist %1 mm vom linken, die waagrechte %1 mm vom oberen Rand entfernt, wenn der Drucker an der richtigen Stelle druckt. Messen Sie beide, und geben Sie ein, was Sie gemessen haben.</translation>
    </message>
</context>
<context>
    <name>PpdCheck</name>
    <message>
        <source>&quot;%1&quot; cannot be run: %2</source>
        <translation>„%1“ lässt sich nicht starten: %2</translation>
    </message>
    <message>
        <source>the system offers no sandbox</source>
        <translation>das System bietet keine abgeschottete Umgebung</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends with status %2</source>
        <translation>„%1“ endet mit Status %2</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used, since it could not be checked safely: %2. Install corvel-print again.</source>
        <translation>Die PPD-Datei „%1“ wird nicht verwendet, weil sie nicht gefahrlos erprobt werden konnte: %2. Installieren Sie corvel-print neu.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used, since this computer was too busy to check it. Try again later.</source>
        <translation>Die PPD-Datei „%1“ wird nicht verwendet, weil dieser Rechner zu ausgelastet war, um sie zu erproben. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used: libcups does not finish reading it. Fetch another from the printer&apos;s maker.</source>
        <translation>Die PPD-Datei „%1“ wird nicht verwendet: libcups wird mit ihr nicht fertig. Holen Sie eine andere vom Hersteller des Druckers.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used: it makes libcups crash. Fetch another from the printer&apos;s maker.</source>
        <translation>Die PPD-Datei „%1“ wird nicht verwendet: libcups stürzt über ihr ab. Holen Sie eine andere vom Hersteller des Druckers.</translation>
    </message>
</context>
<context>
    <name>PpdDocument</name>
    <message>
        <source>The translations are left out: there are too many.</source>
        <translation>Die Übersetzungen wurden weggelassen: Es sind zu viele.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; repeats %2 of its choices; the first of each counts.</source>
        <translation>Mehrfach vorhandene Auswahlmöglichkeiten der Option „%1“: %2; jeweils die erste gilt.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is left out: it has no choices.</source>
        <translation>Die Option „%1“ wurde weggelassen: Sie hat keine Auswahlmöglichkeiten.</translation>
    </message>
    <message>
        <source>Page sizes left out because they have no dimensions: %1.</source>
        <translation>Papierformate ohne Maße, die weggelassen wurden: %1.</translation>
    </message>
    <message>
        <source>The default page size is not one of the printer&apos;s; &quot;%1&quot; takes its place.</source>
        <translation>Das Standardpapierformat gehört nicht zu diesem Drucker; „%1“ tritt an seine Stelle.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; cannot be used: line %2: %3. Correct it or fetch another from the printer&apos;s maker.</source>
        <translation>Die PPD-Datei „%1“ kann nicht verwendet werden: Zeile %2: %3. Korrigieren Sie sie oder holen Sie eine andere vom Hersteller des Druckers.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; has no page size that can be printed on. Correct it or fetch another from the printer&apos;s maker.</source>
        <translation>Die PPD-Datei „%1“ hat kein bedruckbares Papierformat. Korrigieren Sie sie oder holen Sie eine andere vom Hersteller des Druckers.</translation>
    </message>
    <message>
        <source>Texts are left out because they are in another encoding; keywords take their place.</source>
        <translation>Texte in einer anderen Kodierung wurden weggelassen; Schlüsselwörter treten an ihre Stelle.</translation>
    </message>
    <message>
        <source>The page sizes have no dimensions; those of their names are assumed, or else the usual ones.</source>
        <translation>Die Papierformate haben keine Maße; angenommen werden die ihrer Namen, sonst die üblichen.</translation>
    </message>
</context>
<context>
    <name>PpdFile</name>
    <message>
        <source>its end is missing</source>
        <translation>das Ende fehlt</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>sie ist beschädigt</translation>
    </message>
    <message>
        <source>The compressed PPD &quot;%1&quot; cannot be expanded: %2. Copy it again from where it came from.</source>
        <translation>Die komprimierte PPD „%1“ lässt sich nicht entpacken: %2. Kopieren Sie sie noch einmal von ihrem Ursprung.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a directory. Name the PPD file itself.</source>
        <translation>„%1“ ist ein Ordner. Nennen Sie die PPD-Datei selbst.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a device or a pipe, not a file. Name the printer&apos;s PPD file.</source>
        <translation>„%1“ ist ein Gerät oder eine Pipe, keine Datei. Nennen Sie die PPD-Datei des Druckers.</translation>
    </message>
    <message>
        <source>There is no PPD &quot;%1&quot;. Check the path.</source>
        <translation>Es gibt keine PPD-Datei „%1“. Prüfen Sie den Pfad.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; cannot be read: %2. Check the file and its permissions.</source>
        <translation>Die PPD-Datei „%1“ kann nicht gelesen werden: %2. Prüfen Sie die Datei und ihre Zugriffsrechte.</translation>
    </message>
</context>
<context>
    <name>PpdInspection</name>
    <message>
        <source>it is not printable ASCII</source>
        <translation>nicht nur druckbare ASCII-Zeichen</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>sie ist leer</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>sie ist größer als %1 MiB</translation>
    </message>
    <message>
        <source>the value in line %1 is longer than %2 bytes</source>
        <translation>der Wert in Zeile %1 ist länger als %2 Byte</translation>
    </message>
    <message>
        <source>line %1 is longer than %2 bytes</source>
        <translation>Zeile %1 ist länger als %2 Byte</translation>
    </message>
    <message>
        <source>a line of it is longer than %1 characters</source>
        <translation>eine Zeile darin ist länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>its text has control characters</source>
        <translation>der Text enthält Steuerzeichen</translation>
    </message>
    <message>
        <source>its keyword cannot be read</source>
        <translation>das Schlüsselwort ist nicht lesbar</translation>
    </message>
    <message>
        <source>line %1 has control characters</source>
        <translation>Zeile %1 enthält Steuerzeichen</translation>
    </message>
    <message>
        <source>groups of options</source>
        <translation>Optionsgruppen</translation>
    </message>
    <message>
        <source>the keyword of the option &quot;%1&quot; in line %2 is bad: %3</source>
        <translation>das Schlüsselwort der Option „%1“ in Zeile %2 ist fehlerhaft: %3</translation>
    </message>
    <message>
        <source>options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>choices</source>
        <translation>Auswahlmöglichkeiten</translation>
    </message>
    <message>
        <source>page sizes</source>
        <translation>Papierformate</translation>
    </message>
    <message>
        <source>parameters of custom choices</source>
        <translation>Parameter benutzerdefinierter Auswahlmöglichkeiten</translation>
    </message>
    <message>
        <source>translations into one language</source>
        <translation>Übersetzungen in eine Sprache</translation>
    </message>
    <message>
        <source>entries beside its options</source>
        <translation>Einträge neben den Optionen</translation>
    </message>
    <message>
        <source>constraints</source>
        <translation>Einschränkungen</translation>
    </message>
    <message>
        <source>its constraints name options with too many choices</source>
        <translation>die Einschränkungen betreffen Optionen mit zu vielen Auswahlmöglichkeiten</translation>
    </message>
    <message>
        <source>Line %1: the choice &quot;%2&quot; of the option &quot;%3&quot; is left out: %4.</source>
        <translation>Zeile %1: Die Auswahl „%2“ der Option „%3“ wurde weggelassen: %4.</translation>
    </message>
    <message>
        <source>Line %1: the entry &quot;%3&quot; &quot;%2&quot; is left out: %4.</source>
        <translation>Zeile %1: Der Eintrag „%3“ „%2“ wurde weggelassen: %4.</translation>
    </message>
    <message>
        <source>Further entries left out: %1.</source>
        <translation>Weitere weggelassene Einträge: %1.</translation>
    </message>
    <message>
        <source>it has more than %1 %2</source>
        <translation>zu viele %2: mehr als %1</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; opened in line %2 never closes.</source>
        <translation>Die in Zeile %2 begonnene Option „%1“ endet nirgends.</translation>
    </message>
    <message>
        <source>The group opened in line %1 never closes.</source>
        <translation>Die in Zeile %1 begonnene Gruppe endet nirgends.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a PPD, which is a text that begins with &quot;*PPD-Adobe:&quot;. Name the printer&apos;s PPD file.</source>
        <translation>„%1“ ist keine PPD-Datei, also kein Text, der mit „*PPD-Adobe:“ beginnt. Nennen Sie die PPD-Datei des Druckers.</translation>
    </message>
    <message>
        <source>Fetch the printer&apos;s PPD again</source>
        <translation>Holen Sie die PPD-Datei des Druckers erneut</translation>
    </message>
    <message>
        <source>Correct it or fetch another from the printer&apos;s maker</source>
        <translation>Korrigieren Sie sie oder holen Sie eine andere vom Hersteller des Druckers</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; cannot be used: %2. %3.</source>
        <translation>Die PPD-Datei „%1“ kann nicht verwendet werden: %2. %3.</translation>
    </message>
    <message>
        <source>it has no keyword</source>
        <translation>das Schlüsselwort fehlt</translation>
    </message>
    <message>
        <source>The PPD has no page sizes; A4 and Letter take their place.</source>
        <translation>Die PPD-Datei hat keine Papierformate; A4 und Letter treten an ihre Stelle.</translation>
    </message>
    <message>
        <source>The quote opened in line %1 never closes.</source>
        <translation>Das in Zeile %1 geöffnete Anführungszeichen wird nie geschlossen.</translation>
    </message>
    <message>
        <source>The PPD seems to be cut off in line %1.</source>
        <translation>Die PPD-Datei scheint in Zeile %1 abgeschnitten zu sein.</translation>
    </message>
</context>
<context>
    <name>PreviewRun</name>
    <message>
        <source>&quot;%1&quot; is already there. Choose another name, or replace it with --overwrite.</source>
        <translation>„%1“ ist schon da. Wählen Sie einen anderen Namen, oder ersetzen Sie es mit --overwrite.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the photos, which are never replaced. Choose another name.</source>
        <translation>„%1“ ist eines der Fotos, und die werden nie ersetzt. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is too long. Choose a shorter one.</source>
        <translation>Der Name „%1“ ist zu lang. Wählen Sie einen kürzeren.</translation>
    </message>
    <message>
        <source>Preview of %1: %2</source>
        <translation>Vorschau von %1: %2</translation>
    </message>
</context>
<context>
    <name>PrintDialog</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>D&amp;rucker:</translation>
    </message>
    <message>
        <source>Paper &amp;size:</source>
        <translation>Papier&amp;format:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Exemplare:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>Where the built-in printer leaves its files</source>
        <translation>Hier legt der eingebaute Drucker seine Dateien ab</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>D&amp;urchsuchen…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Sa&amp;ve Settings</source>
        <translation>Einstellungen &amp;speichern</translation>
    </message>
    <message>
        <source>Keep these settings for the next time with this printer</source>
        <translation>Diese Einstellungen für das nächste Mal mit diesem Drucker behalten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>&amp;Voreinstellung:</translation>
    </message>
    <message>
        <source>Where the printer prints on this paper, with a test page</source>
        <translation>Wo der Drucker auf diesem Papier druckt, mit einer Testseite</translation>
    </message>
    <message>
        <source>Print position</source>
        <translation>Drucklage</translation>
    </message>
    <message>
        <source>Jobs…</source>
        <translation>Aufträge…</translation>
    </message>
    <message>
        <source>Your jobs on the print server: cancel, hold or print them again</source>
        <translation>Ihre Aufträge auf dem Druckserver: abbrechen, anhalten oder noch einmal drucken</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF-Dateien</translation>
    </message>
    <message>
        <source>One PDF of all</source>
        <translation>Ein PDF für alle</translation>
    </message>
    <message>
        <source>Name of the PDF</source>
        <translation>Name des PDFs</translation>
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
        <translation>Das PDF hat keinen Namen. Geben Sie einen ein, oder wählen Sie ein PDF für jedes Foto.</translation>
    </message>
    <message>
        <source>The PDF cannot be named &quot;%1&quot;, because of the slash. Leave it out, or choose another folder.</source>
        <translation>Das PDF kann wegen des Schrägstrichs nicht „%1“ heißen. Lassen Sie ihn weg, oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The PDF cannot be named &quot;%1&quot;: nobody would see it, or read all of its name. Leave out the dot at its beginning, and characters that are not seen.</source>
        <translation>Das PDF kann nicht „%1“ heißen: Niemand sähe es oder könnte seinen ganzen Namen lesen. Lassen Sie den Punkt am Anfang und unsichtbare Zeichen weg.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is too long for a PDF in this folder. Choose a shorter one.</source>
        <translation>Der Name „%1“ ist für ein PDF in diesem Ordner zu lang. Wählen Sie einen kürzeren.</translation>
    </message>
</context>
<context>
    <name>ProgramName</name>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
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
        <translation>Eingebauter Drucker (Dateien)</translation>
    </message>
</context>
<context>
    <name>QueueFault</name>
    <message>
        <source>the print server does not know it</source>
        <translation>der Druckserver kennt ihn nicht</translation>
    </message>
    <message>
        <source>nothing answers at its address</source>
        <translation>unter seiner Adresse antwortet nichts</translation>
    </message>
    <message>
        <source>the print server keeps none for it</source>
        <translation>der Druckserver hat keine für ihn</translation>
    </message>
    <message>
        <source>it is set to reject them</source>
        <translation>er ist so eingestellt, dass er sie ablehnt</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>time limit reached</source>
        <translation>Zeitlimit erreicht</translation>
    </message>
    <message>
        <source>the print server gave no reason</source>
        <translation>der Druckserver nannte keinen Grund</translation>
    </message>
    <message>
        <source>its PPD file is a new one</source>
        <translation>seine PPD-Datei ist eine neue</translation>
    </message>
    <message>
        <source>nothing is printed</source>
        <translation>es wird nichts gedruckt</translation>
    </message>
    <message>
        <source>The job for the printer &quot;%1&quot; was canceled (%2).</source>
        <translation>Der Auftrag für den Drucker „%1“ wurde abgebrochen (%2).</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not exist (%2). Choose another one, or add it in the printer settings.</source>
        <translation>Den Drucker „%1“ gibt es nicht (%2). Wählen Sie einen anderen oder fügen Sie ihn in den Druckereinstellungen hinzu.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached, because no print server is running (%2). Start CUPS or check the server&apos;s name.</source>
        <translation>Der Drucker „%1“ ist nicht erreichbar, weil kein Druckserver läuft (%2). Starten Sie CUPS oder prüfen Sie den Namen des Servers.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no PPD file (%2). Set it up again with its driver.</source>
        <translation>Der Drucker „%1“ hat keine PPD-Datei (%2). Richten Sie ihn mit seinem Treiber neu ein.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not accept jobs (%2). Allow them in the printer settings, or choose another printer.</source>
        <translation>Der Drucker „%1“ nimmt keine Aufträge an (%2). Erlauben Sie es in den Druckereinstellungen oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The print server refused the request for the printer &quot;%1&quot; (%2). Ask its administrator.</source>
        <translation>Der Druckserver hat die Anfrage für den Drucker „%1“ abgelehnt (%2). Wenden Sie sich an seinen Administrator.</translation>
    </message>
    <message>
        <source>The print server did not answer about the printer &quot;%1&quot; in time (%2). Try again, or restart CUPS.</source>
        <translation>Der Druckserver hat zum Drucker „%1“ nicht rechtzeitig geantwortet (%2). Versuchen Sie es erneut oder starten Sie CUPS neu.</translation>
    </message>
    <message>
        <source>The options of the printer &quot;%1&quot; have changed since they were chosen (%2). Look at them and print again.</source>
        <translation>Die Optionen des Druckers „%1“ haben sich geändert, seit sie gewählt wurden (%2). Sehen Sie sie durch und drucken Sie noch einmal.</translation>
    </message>
    <message>
        <source>The print server could not serve the printer &quot;%1&quot; (%2). Try again, or check its log.</source>
        <translation>Der Druckserver konnte den Drucker „%1“ nicht bedienen (%2). Versuchen Sie es erneut oder sehen Sie in sein Protokoll.</translation>
    </message>
    <message>
        <source>No print server is running (%1). Start CUPS or check the server&apos;s name.</source>
        <translation>Es läuft kein Druckserver (%1). Starten Sie CUPS oder prüfen Sie den Namen des Servers.</translation>
    </message>
    <message>
        <source>The print server refused to list its printers (%1). Ask its administrator.</source>
        <translation>Der Druckserver will seine Drucker nicht auflisten (%1). Wenden Sie sich an seinen Administrator.</translation>
    </message>
    <message>
        <source>The print server did not answer in time (%1). Try again, or restart CUPS.</source>
        <translation>Der Druckserver hat nicht rechtzeitig geantwortet (%1). Versuchen Sie es erneut oder starten Sie CUPS neu.</translation>
    </message>
    <message>
        <source>The print server could not list its printers (%1). Try again, or check its log.</source>
        <translation>Der Druckserver konnte seine Drucker nicht auflisten (%1). Versuchen Sie es erneut oder sehen Sie in sein Protokoll.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; on the network does not answer (%2). Switch it on and choose it again in a minute, or choose another printer.</source>
        <translation>Der Drucker „%1“ im Netzwerk antwortet nicht (%2). Schalten Sie ihn ein und wählen Sie ihn in einer Minute erneut, oder wählen Sie einen anderen Drucker.</translation>
    </message>
    <message>
        <source>There is no printer at &quot;%1&quot; (%2). Check the address.</source>
        <translation>Unter „%1“ gibt es keinen Drucker (%2). Prüfen Sie die Adresse.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached (%2). Check its address, and that it is switched on.</source>
        <translation>Der Drucker „%1“ ist nicht erreichbar (%2). Prüfen Sie seine Adresse und ob er eingeschaltet ist.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not accept jobs (%2). Look at the printer, or choose another one.</source>
        <translation>Der Drucker „%1“ nimmt keine Aufträge an (%2). Sehen Sie am Drucker nach oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; refused the request (%2). Check its settings.</source>
        <translation>Der Drucker „%1“ hat die Anfrage abgelehnt (%2). Prüfen Sie seine Einstellungen.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; did not answer in time (%2). Check that it is switched on, and try again.</source>
        <translation>Der Drucker „%1“ hat nicht rechtzeitig geantwortet (%2). Prüfen Sie, ob er eingeschaltet ist, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not do what it was asked for (%2). Try again, or look at the printer.</source>
        <translation>Der Drucker „%1“ konnte die Anfrage nicht ausführen (%2). Versuchen Sie es noch einmal oder sehen Sie am Drucker nach.</translation>
    </message>
    <message>
        <source>no reason was given</source>
        <translation>ohne Angabe von Gründen</translation>
    </message>
    <message>
        <source>no answer came</source>
        <translation>es kam keine Antwort</translation>
    </message>
    <message>
        <source>It is not known whether the printer &quot;%1&quot; has got the job (%2). Look at its jobs before you print again.</source>
        <translation>Ob der Drucker „%1“ den Auftrag bekommen hat, ist nicht bekannt (%2). Sehen Sie nach seinen Aufträgen, bevor Sie noch einmal drucken.</translation>
    </message>
</context>
<context>
    <name>RemainingTime</name>
    <message>
        <source>less than a minute</source>
        <translation>weniger als eine Minute</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s)</source>
        <translation>
            <numerusform>etwa %n Minute</numerusform>
            <numerusform>etwa %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s)</source>
        <translation>
            <numerusform>etwa %n Stunde</numerusform>
            <numerusform>etwa %n Stunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RequestedArrangement</name>
    <message>
        <source>&quot;%1&quot; is protected by a password, and there is no terminal to ask for it on. Start the program in a terminal, or in its window.</source>
        <translation>„%1“ ist mit einem Kennwort geschützt, und es gibt kein Terminal, um danach zu fragen. Starten Sie das Programm in einem Terminal oder mit seinem Fenster.</translation>
    </message>
    <message>
        <source>--pages and --page-set are for documents, and there is none. Leave them out.</source>
        <translation>--pages und --page-set sind für Dokumente, und es ist keines da. Lassen Sie sie weg.</translation>
    </message>
</context>
<context>
    <name>RequestedSession</name>
    <message>
        <source>Of the preset &quot;%1&quot; is left out: %2</source>
        <translation>Von der Voreinstellung „%1“ bleibt weg: %2</translation>
    </message>
    <message>
        <source>%1 It is your default printer; --printer names another one, and &quot;--printer built-in&quot; prints into files.</source>
        <translation>%1 Dies ist Ihr Standarddrucker; mit --printer nennen Sie einen anderen, und „--printer built-in“ druckt in Dateien.</translation>
    </message>
    <message>
        <source>%1 It may have your default printer; --printer names another one, and &quot;--printer built-in&quot; prints into files.</source>
        <translation>%1 Er hat vielleicht Ihren Standarddrucker; mit --printer nennen Sie einen anderen, und „--printer built-in“ druckt in Dateien.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no PPD file and so no option %2. Leave it out, or set the printer up with its driver.</source>
        <translation>Der Drucker „%1“ hat keine PPD-Datei und deshalb keine Option %2. Lassen Sie sie weg oder richten Sie den Drucker mit seinem Treiber ein.</translation>
    </message>
    <message>
        <source>Of the printer&apos;s defaults is left out: %1</source>
        <translation>Vom Standard des Druckers bleibt weg: %1</translation>
    </message>
    <message>
        <source>No page size is chosen. Choose one with -o %1=%2 or another one of --list-options.</source>
        <translation>Es ist kein Papierformat gewählt. Wählen Sie eines mit -o %1=%2 oder ein anderes aus --list-options.</translation>
    </message>
</context>
<context>
    <name>ScreenshotRun</name>
    <message>
        <source>The picture %1 could not be written: %2. Choose a folder that can be written.</source>
        <translation>Das Bild %1 konnte nicht geschrieben werden: %2. Wählen Sie einen Ordner, in den geschrieben werden kann.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made. Choose another one for the pictures.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden. Wählen Sie einen anderen für die Bilder.</translation>
    </message>
</context>
<context>
    <name>SessionJob</name>
    <message>
        <source>No paper size is chosen. Choose one.</source>
        <translation>Es ist kein Papierformat gewählt. Wählen Sie eines.</translation>
    </message>
</context>
<context>
    <name>SessionOpening</name>
    <message>
        <source>As set at the printer</source>
        <translation>Wie am Drucker eingestellt</translation>
    </message>
</context>
<context>
    <name>StandardInput</name>
    <message>
        <source>The standard input cannot be kept in &quot;%1&quot;: %2. Free some space there.</source>
        <translation>Die Standardeingabe kann nicht in „%1“ abgelegt werden: %2. Schaffen Sie dort Platz.</translation>
    </message>
    <message>
        <source>The standard input could not be read: %1.</source>
        <translation>Die Standardeingabe konnte nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>&quot;-&quot; reads a file from the standard input, which is the keyboard. Redirect it: corvel-print - &lt; photo.jpg</source>
        <translation>„-“ liest eine Datei von der Standardeingabe, und die ist die Tastatur. Leiten Sie sie um: corvel-print - &lt; foto.jpg</translation>
    </message>
    <message>
        <source>The standard input is empty. Redirect a file to it.</source>
        <translation>Die Standardeingabe ist leer. Leiten Sie eine Datei dorthin um.</translation>
    </message>
    <message>
        <source>The file on the standard input is too large: it may have %1.</source>
        <translation>Die Datei auf der Standardeingabe ist zu groß: Sie darf %1 haben.</translation>
    </message>
</context>
<context>
    <name>StandardLabels</name>
    <message>
        <source>Paper size</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Papierart</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Papierzufuhr</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Druckqualität</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>Two-sided printing</source>
        <translation>Beidseitiger Druck</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Ausgabefach</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Weiterverarbeitung</translation>
    </message>
    <message>
        <source>Finishing template</source>
        <translation>Vorlage für die Weiterverarbeitung</translation>
    </message>
    <message>
        <source>Scaling by the printer</source>
        <translation>Größenanpassung im Drucker</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Optimize for</source>
        <translation>Optimieren für</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>Farbwiedergabe</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Schneiden</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Plain paper</source>
        <translation>Normalpapier</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>Beschichtetes Papier</translation>
    </message>
    <message>
        <source>Heavy paper</source>
        <translation>Schweres Papier</translation>
    </message>
    <message>
        <source>Light paper</source>
        <translation>Leichtes Papier</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Tintenstrahlpapier</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Briefpapier</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Fotopapier</translation>
    </message>
    <message>
        <source>Archival photo paper</source>
        <translation>Archivbeständiges Fotopapier</translation>
    </message>
    <message>
        <source>Photo film</source>
        <translation>Fotofilm</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Glänzendes Fotopapier</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Hochglänzendes Fotopapier</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Mattes Fotopapier</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Seidenmattes Fotopapier</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Halbglänzendes Fotopapier</translation>
    </message>
    <message>
        <source>Card stock</source>
        <translation>Karton</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Endlospapier</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Datenträger (CD/DVD)</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Umschlag</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Folie</translation>
    </message>
    <message>
        <source>Other paper</source>
        <translation>Anderes Papier</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Hauptfach</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Zweites Fach</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Manuelle Zufuhr</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>Mehrzweckfach</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Fotofach</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Postkartenfach</translation>
    </message>
    <message>
        <source>Envelope tray</source>
        <translation>Umschlagfach</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Datenträgerfach</translation>
    </message>
    <message>
        <source>Large tray</source>
        <translation>Großes Fach</translation>
    </message>
    <message>
        <source>Main roll</source>
        <translation>Hauptrolle</translation>
    </message>
    <message>
        <source>Alternate roll</source>
        <translation>Zweite Rolle</translation>
    </message>
    <message>
        <source>Top tray</source>
        <translation>Oberes Fach</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Mittleres Fach</translation>
    </message>
    <message>
        <source>Bottom tray</source>
        <translation>Unteres Fach</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Fach in der Mitte</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Linkes Fach</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Rechtes Fach</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Hinteres Fach</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Seitliches Fach</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Bildseite oben</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Bildseite unten</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Entwurf</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Color (Adobe RGB)</source>
        <translation>Farbe (Adobe RGB)</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Gray, automatic</source>
        <translation>Graustufen, automatisch</translation>
    </message>
    <message>
        <source>Gray from colored ink</source>
        <translation>Graustufen aus Farbtinte</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>One side</source>
        <translation>Einseitig</translation>
    </message>
    <message>
        <source>Both sides, turned on the long edge</source>
        <translation>Beidseitig, an der langen Kante gewendet</translation>
    </message>
    <message>
        <source>Both sides, turned on the short edge</source>
        <translation>Beidseitig, an der kurzen Kante gewendet</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Heften</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Lochen</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Deckblatt</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Binden</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Rückstichheftung</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Seitliche Heftung</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Falzen</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Beschneiden</translation>
    </message>
    <message>
        <source>Bale</source>
        <translation>Bündeln</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>Offset stacking</source>
        <translation>Versetzt ablegen</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>Beschichten</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Laminieren</translation>
    </message>
    <message>
        <source>Staple, top left</source>
        <translation>Heften, oben links</translation>
    </message>
    <message>
        <source>Staple, bottom left</source>
        <translation>Heften, unten links</translation>
    </message>
    <message>
        <source>Staple, top right</source>
        <translation>Heften, oben rechts</translation>
    </message>
    <message>
        <source>Staple, bottom right</source>
        <translation>Heften, unten rechts</translation>
    </message>
    <message>
        <source>Trim after each page</source>
        <translation>Nach jeder Seite beschneiden</translation>
    </message>
    <message>
        <source>Trim after each document</source>
        <translation>Nach jedem Dokument beschneiden</translation>
    </message>
    <message>
        <source>Trim after each copy</source>
        <translation>Nach jedem Exemplar beschneiden</translation>
    </message>
    <message>
        <source>Trim after the job</source>
        <translation>Nach dem Auftrag beschneiden</translation>
    </message>
    <message>
        <source>Only if it is too large</source>
        <translation>Nur wenn es zu groß ist</translation>
    </message>
    <message>
        <source>Fill the paper</source>
        <translation>Papier füllen</translation>
    </message>
    <message>
        <source>Fit on the paper</source>
        <translation>Auf das Papier einpassen</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Grafik</translation>
    </message>
    <message>
        <source>Text and graphics</source>
        <translation>Text und Grafik</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Absolut farbmetrisch</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perzeptiv</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Relativ farbmetrisch</translation>
    </message>
    <message>
        <source>Relative colorimetric, black point adapted</source>
        <translation>Relativ farbmetrisch mit Schwarzpunktanpassung</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>4 × 6 in (10 × 15 cm)</source>
        <translation>10 × 15 cm (4 × 6 Zoll)</translation>
    </message>
    <message>
        <source>5 × 7 in (13 × 18 cm)</source>
        <translation>13 × 18 cm (5 × 7 Zoll)</translation>
    </message>
    <message>
        <source>3.5 × 5 in (9 × 13 cm)</source>
        <translation>9 × 13 cm (3,5 × 5 Zoll)</translation>
    </message>
    <message>
        <source>8 × 10 in (20 × 25 cm)</source>
        <translation>20 × 25 cm (8 × 10 Zoll)</translation>
    </message>
    <message>
        <source>10 × 15 cm</source>
        <translation>10 × 15 cm</translation>
    </message>
    <message>
        <source>Postcard (Hagaki)</source>
        <translation>Postkarte (Hagaki)</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>US Letter</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>US Legal</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>US Executive</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>US Tabloid</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>US Statement</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Fach %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rolle %1</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Stapler %1</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Ausgabefach %1</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <comment>a page size</comment>
        <translation>%1, randlos</translation>
    </message>
</context>
<context>
    <name>StateText</name>
    <message>
        <source>out of paper</source>
        <translation>kein Papier</translation>
    </message>
    <message>
        <source>paper has to be put in</source>
        <translation>Papier einlegen</translation>
    </message>
    <message>
        <source>paper low</source>
        <translation>wenig Papier</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>Papierstau</translation>
    </message>
    <message>
        <source>paper tray missing</source>
        <translation>Papierfach fehlt</translation>
    </message>
    <message>
        <source>output tray missing</source>
        <translation>Ausgabefach fehlt</translation>
    </message>
    <message>
        <source>output tray almost full</source>
        <translation>Ausgabefach fast voll</translation>
    </message>
    <message>
        <source>output tray full</source>
        <translation>Ausgabefach voll</translation>
    </message>
    <message>
        <source>ribbon or ink low</source>
        <translation>Farbband oder Tinte fast leer</translation>
    </message>
    <message>
        <source>ribbon or ink used up</source>
        <translation>Farbband oder Tinte aufgebraucht</translation>
    </message>
    <message>
        <source>ribbon low</source>
        <translation>Farbband fast leer</translation>
    </message>
    <message>
        <source>ribbon used up</source>
        <translation>Farbband aufgebraucht</translation>
    </message>
    <message>
        <source>waste container almost full</source>
        <translation>Auffangbehälter fast voll</translation>
    </message>
    <message>
        <source>waste container full</source>
        <translation>Auffangbehälter voll</translation>
    </message>
    <message>
        <source>toner low</source>
        <translation>wenig Toner</translation>
    </message>
    <message>
        <source>toner used up</source>
        <translation>Toner aufgebraucht</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>Abdeckung offen</translation>
    </message>
    <message>
        <source>door open</source>
        <translation>Klappe offen</translation>
    </message>
    <message>
        <source>too hot</source>
        <translation>zu heiß</translation>
    </message>
    <message>
        <source>warming up</source>
        <translation>wärmt auf</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>Verbindung zum Drucker wird aufgebaut</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>der Drucker antwortet nicht</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>hält an</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>neue Aufträge werden angehalten</translation>
    </message>
    <message>
        <source>the print server&apos;s disk is full</source>
        <translation>die Platte des Druckservers ist voll</translation>
    </message>
    <message>
        <source>a filter of its driver is missing</source>
        <translation>ein Filter seines Treibers fehlt</translation>
    </message>
    <message>
        <source>a filter of its driver is not safe</source>
        <translation>ein Filter seines Treibers ist unsicher</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>der Drucker ist angehalten</translation>
    </message>
    <message>
        <source>a part of the printer is stopped</source>
        <translation>ein Teil des Druckers ist angehalten</translation>
    </message>
    <message>
        <source>held</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>what it needs is not ready</source>
        <translation>was er braucht, ist nicht bereit</translation>
    </message>
    <message>
        <source>the document could not be read</source>
        <translation>das Dokument konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>the document could not be printed</source>
        <translation>das Dokument konnte nicht gedruckt werden</translation>
    </message>
    <message>
        <source>canceled by the user</source>
        <translation>vom Benutzer abgebrochen</translation>
    </message>
    <message>
        <source>canceled by the operator</source>
        <translation>von der Verwaltung abgebrochen</translation>
    </message>
    <message>
        <source>canceled at the printer</source>
        <translation>am Drucker abgebrochen</translation>
    </message>
    <message>
        <source>ended by the print server</source>
        <translation>vom Druckserver beendet</translation>
    </message>
    <message>
        <source>rejects jobs</source>
        <translation>nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>druckt</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 unknown</source>
        <translation>%1 unbekannt</translation>
    </message>
    <message>
        <source>%1 %2 % (low)</source>
        <translation>%1 %2 % (wenig)</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation>%1 %2 %</translation>
    </message>
    <message>
        <source>unspecified problem</source>
        <translation>eine nicht näher bezeichnete Störung</translation>
    </message>
    <message>
        <source>held for authentication</source>
        <translation>angehalten, bis sich jemand anmeldet</translation>
    </message>
    <message>
        <source>the printer does not accept this kind of document</source>
        <translation>der Drucker nimmt diese Art von Dokument nicht</translation>
    </message>
    <message>
        <source>found on the network</source>
        <translation>im Netzwerk gefunden</translation>
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
        <translation>seine Optionen kamen nicht innerhalb von %1 s an</translation>
    </message>
</context>
<context>
    <name>TerminalLogin</name>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>Benutzername oder Passwort wurden nicht angenommen.</translation>
    </message>
    <message>
        <source>The print server %1 wants a user name and a password.</source>
        <translation>Der Druckserver %1 verlangt Benutzername und Passwort.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; on %2 wants a user name and a password.</source>
        <translation>Der Drucker „%1“ auf %2 verlangt Benutzername und Passwort.</translation>
    </message>
    <message>
        <source>User name [%1]: </source>
        <translation>Benutzername [%1]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Passwort: </translation>
    </message>
    <message>
        <source>it wants a user name and a password, and there is no terminal to ask on</source>
        <translation>verlangt werden Benutzername und Passwort, und es gibt kein Terminal, um danach zu fragen</translation>
    </message>
    <message>
        <source>The password does not open &quot;%1&quot;.</source>
        <translation>Das Kennwort öffnet „%1“ nicht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is protected by a password.</source>
        <translation>„%1“ ist mit einem Kennwort geschützt.</translation>
    </message>
</context>
<context>
    <name>UsedChoices</name>
    <message>
        <source>&quot;%1&quot; is not a number of copies.</source>
        <translation>„%1“ ist keine mögliche Anzahl von Exemplaren.</translation>
    </message>
</context>
<context>
    <name>WindowRun</name>
    <message>
        <source>The window cannot be seen, because QT_QPA_PLATFORM asks for &quot;%1&quot;. Unset it, or print without a window (--batch).</source>
        <translation>Das Fenster ist nicht zu sehen, weil QT_QPA_PLATFORM „%1“ verlangt. Heben Sie das auf, oder drucken Sie ohne Fenster (--batch).</translation>
    </message>
</context>
<context>
    <name>corvel-print-portal</name>
    <message>
        <source>Shows the print dialog for programs that print through the desktop&apos;s portal. The desktop starts it when it is needed.</source>
        <translation>Zeigt den Druckdialog für Programme, die über das Portal des Desktops drucken. Der Desktop startet es, wenn es gebraucht wird.</translation>
    </message>
    <message>
        <source>Take over from one that is running.</source>
        <translation>Löst eines ab, das schon läuft.</translation>
    </message>
    <message>
        <source>Seconds without work until it ends.</source>
        <translation>Sekunden ohne Arbeit bis zu seinem Ende.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The program cannot start: QT_QPA_PLATFORM asks for &quot;%1&quot;, which cannot be used. Unset it.</source>
        <translation>Das Programm kann nicht starten: QT_QPA_PLATFORM verlangt „%1“, was nicht benutzt werden kann. Löschen Sie die Variable.</translation>
    </message>
    <message>
        <source>The program cannot open a window on the display &quot;%1&quot;. Start it in a desktop session, or print without a window (--batch).</source>
        <translation>Das Programm kann auf der Anzeige „%1“ kein Fenster öffnen. Starten Sie es in einer Arbeitsumgebung oder drucken Sie ohne Fenster (--batch).</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Das Programm kann nicht starten: %1</translation>
    </message>
    <message>
        <source>%1 See corvel-print --help.</source>
        <translation>%1 Siehe corvel-print --help.</translation>
    </message>
    <message>
        <source>There is no display to open a window on. Start it in a desktop session, or print without a window (--batch).</source>
        <translation>Es gibt keine Anzeige, auf der ein Fenster geöffnet werden könnte. Starten Sie das Programm in einer Arbeitsumgebung oder drucken Sie ohne Fenster (--batch).</translation>
    </message>
</context>
<context>
    <name>pdekit::OptionPanel</name>
    <message>
        <source>the printer has no PPD file</source>
        <translation>der Drucker hat keine PPD-Datei</translation>
    </message>
    <message>
        <source>the job has no print settings</source>
        <translation>der Auftrag hat keine Druckeinstellungen</translation>
    </message>
</context>
<context>
    <name>printdialog::Arrangement</name>
    <message>
        <source>%1 and %2 more</source>
        <comment>the name of a sheet with several photos</comment>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>None of the %1 pages is among those to be printed. Choose other pages.</source>
        <translation>Keine der %1 Seiten ist unter denen, die gedruckt werden sollen. Wählen Sie andere Seiten.</translation>
    </message>
    <message>
        <source>The only page is not among those to be printed. Choose other pages.</source>
        <translation>Die einzige Seite ist nicht unter denen, die gedruckt werden sollen. Wählen Sie andere Seiten.</translation>
    </message>
</context>
<context>
    <name>printdialog::ChoiceCallout</name>
    <message>
        <source>Dismiss (Esc)</source>
        <translation>Ausblenden (Esc)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
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
        <translation>Eigener Wert …</translation>
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
        <translation>„%1“ auf „%2“ steht</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two conditions</comment>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be &quot;%2&quot; while %3.</source>
        <comment>options, choices, and conditions</comment>
        <translation>„%1“ kann nicht „%2“ sein, solange %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; to &quot;%2&quot;</source>
        <comment>change an option to a choice</comment>
        <translation>„%1“ auf „%2“</translation>
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
        <translation>&amp;Auch ändern: %1</translation>
    </message>
    <message>
        <source>Chan&amp;ge %1</source>
        <translation>&amp;Anpassen: %1</translation>
    </message>
</context>
<context>
    <name>printdialog::ChoiceSteps</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
</context>
<context>
    <name>printdialog::CustomPageFields</name>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>the smallest and the largest size</comment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>The width can be %1.</source>
        <comment>from one length to another</comment>
        <translation>Die Breite ist %1 wählbar.</translation>
    </message>
    <message>
        <source>The height can be %1.</source>
        <comment>from one length to another</comment>
        <translation>Die Höhe ist %1 wählbar.</translation>
    </message>
    <message>
        <source>Width (%1)</source>
        <comment>and its unit</comment>
        <translation>Breite (%1)</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <comment>and its unit</comment>
        <translation>Höhe (%1)</translation>
    </message>
</context>
<context>
    <name>printdialog::DialogSession</name>
    <message>
        <source>The option &quot;%1&quot; lacks what has to be entered for it.</source>
        <translation>Für die Option „%1“ fehlt die Eingabe.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Weitere Optionen</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
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
        <translation>Es gibt kein Dokument „%1“. Prüfen Sie Namen und Ordner.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no pages. Save it again in the program that it comes from.</source>
        <translation>„%1“ hat keine Seiten. Speichern Sie das Dokument noch einmal in dem Programm, aus dem es stammt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a PDF document. Save it as PDF in the program that it comes from.</source>
        <translation>„%1“ ist kein PDF-Dokument. Speichern Sie es in dem Programm, aus dem es stammt, als PDF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is protected by a password. Enter the password.</source>
        <translation>„%1“ ist durch ein Kennwort geschützt. Geben Sie das Kennwort ein.</translation>
    </message>
    <message>
        <source>The password does not open &quot;%1&quot;. Check it and enter it again.</source>
        <translation>Das Kennwort öffnet „%1“ nicht. Prüfen Sie es und geben Sie es noch einmal ein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too much time or memory to read. Print it in parts, or save it again in the program that it comes from.</source>
        <translation>„%1“ zu lesen kostet zu viel Zeit oder Speicher. Drucken Sie das Dokument in Teilen, oder speichern Sie es noch einmal in dem Programm, aus dem es stammt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed since it was opened. Add it again.</source>
        <translation>„%1“ wurde seit dem Öffnen verändert. Fügen Sie das Dokument noch einmal hinzu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged and cannot be repaired. Get it again from where it came from.</source>
        <translation>„%1“ ist beschädigt und lässt sich nicht reparieren. Holen Sie das Dokument noch einmal von dort, wo es herkam.</translation>
    </message>
    <message>
        <source>You may not read &quot;%1&quot;. Ask its owner for the permission to read it.</source>
        <translation>Sie dürfen „%1“ nicht lesen. Bitten Sie den Besitzer um das Recht dazu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be read: %2. Check the disk that it is on.</source>
        <translation>„%1“ konnte nicht gelesen werden: %2. Prüfen Sie den Datenträger.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Choose a document inside it.</source>
        <translation>„%1“ ist ein Ordner. Wählen Sie ein Dokument darin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file but a device, a pipe or a socket. Choose a document.</source>
        <translation>„%1“ ist keine Datei, sondern ein Gerät, eine Pipe oder ein Socket. Wählen Sie ein Dokument.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large: %2, where a document may have %3. Save it in parts.</source>
        <translation>„%1“ ist zu groß: %2, wo ein Dokument %3 haben darf. Speichern Sie es in Teilen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than %L2 pages. Save it in parts.</source>
        <translation>„%1“ hat mehr als %L2 Seiten. Speichern Sie das Dokument in Teilen.</translation>
    </message>
    <message>
        <source>Page %L1 of &quot;%2&quot; takes too much time or memory to show. It can be printed all the same.</source>
        <translation>Seite %L1 von „%2“ zu zeigen kostet zu viel Zeit oder Speicher. Sie kann trotzdem gedruckt werden.</translation>
    </message>
    <message>
        <source>Page %L1 of &quot;%2&quot; cannot be shown, since it is damaged. Look at it closely when it is printed.</source>
        <translation>Seite %L1 von „%2“ kann nicht gezeigt werden, da sie beschädigt ist. Sehen Sie sie sich nach dem Druck genau an.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not used, since it could not be read safely: %2. Install corvel-print again.</source>
        <translation>„%1“ wird nicht verwendet, da es nicht sicher gelesen werden konnte: %2. Installieren Sie corvel-print neu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be run: %2</source>
        <translation>„%1“ lässt sich nicht starten: %2</translation>
    </message>
    <message>
        <source>the system offers no sandbox</source>
        <translation>das System bietet keine abgeschottete Umgebung</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends with status %2</source>
        <translation>„%1“ endet mit Status %2</translation>
    </message>
</context>
<context>
    <name>printdialog::FileName</name>
    <message>
        <source>&quot;%1&quot; cannot be used: its name is not encoded in UTF-8. Rename it.</source>
        <translation>„%1“ kann nicht benutzt werden: Der Name ist nicht in UTF-8 kodiert. Ändern Sie den Namen.</translation>
    </message>
</context>
<context>
    <name>printdialog::FileOpener</name>
    <message>
        <source>&quot;%1&quot; has no page %2. Correct the print list.</source>
        <translation>„%1“ hat keine Seite %2. Berichtigen Sie die Druckliste.</translation>
    </message>
</context>
<context>
    <name>printdialog::FolderController</name>
    <message>
        <source>The last photos of the folder are still being printed. Try again in a moment.</source>
        <translation>Die letzten Fotos des Ordners werden noch gedruckt. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>Waiting for new photos.</source>
        <translation>Es wird auf neue Fotos gewartet.</translation>
    </message>
</context>
<context>
    <name>printdialog::FolderPrinter</name>
    <message>
        <source>The folder &quot;%1&quot; does not answer. Look after its disk or its network connection; printing continues when it answers.</source>
        <translation>Der Ordner „%1“ antwortet nicht. Sehen Sie nach seinem Datenträger oder seiner Netzwerkverbindung; gedruckt wird weiter, wenn er antwortet.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; answers again.</source>
        <translation>Der Ordner „%1“ antwortet wieder.</translation>
    </message>
</context>
<context>
    <name>printdialog::FolderWatch</name>
    <message>
        <source>The folder &quot;%1&quot; is not there any more: it was deleted, renamed or unmounted. Put it back; what arrives in it then is printed.</source>
        <translation>Der Ordner „%1“ ist nicht mehr da: Er wurde gelöscht, umbenannt oder ausgehängt. Stellen Sie ihn wieder her; was dann in ihm ankommt, wird gedruckt.</translation>
    </message>
    <message>
        <source>You may not read the folder &quot;%1&quot; any more. Change its permissions; what has arrived in it is printed then.</source>
        <translation>Sie dürfen den Ordner „%1“ nicht mehr lesen. Ändern Sie seine Zugriffsrechte; was in ihm angekommen ist, wird dann gedruckt.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be read: %2. Look after its disk or its network connection; what has arrived in it is printed when it answers again.</source>
        <translation>Der Ordner „%1“ kann nicht gelesen werden: %2. Sehen Sie nach seinem Datenträger oder seiner Netzwerkverbindung; was in ihm angekommen ist, wird gedruckt, sobald er wieder antwortet.</translation>
    </message>
</context>
<context>
    <name>printdialog::GuardedPanel</name>
    <message>
        <source>its plug-in gives no reason</source>
        <translation>ihr Plug-in nennt keinen Grund</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; was closed because its plug-in failed: %2. Update the plug-in. Everything else works.</source>
        <translation>Die Seite „%1“ wurde geschlossen, weil ihr Plug-in versagt hat: %2. Aktualisieren Sie das Plug-in. Alles andere funktioniert.</translation>
    </message>
    <message>
        <source>The choices of the page &quot;%1&quot; are missing, because its plug-in failed: %2. Update the plug-in.</source>
        <translation>Die Einstellungen der Seite „%1“ fehlen, weil ihr Plug-in versagt hat: %2. Aktualisieren Sie das Plug-in.</translation>
    </message>
    <message>
        <source>The choices of the page &quot;%1&quot; are missing, because it could not save them: %2.</source>
        <translation>Die Einstellungen der Seite „%1“ fehlen, weil sie nicht gespeichert werden konnten: %2.</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; could not read the job&apos;s choices, and may show other ones: %2.</source>
        <translation>Die Seite „%1“ konnte die Einstellungen des Auftrags nicht lesen und zeigt vielleicht andere: %2.</translation>
    </message>
</context>
<context>
    <name>printdialog::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>printdialog::JobTemplate</name>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Account user</source>
        <translation>Benutzer des Kontos</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Beidseitig</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Lange Kante</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Kurze Kante</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>Seite für Seite</translation>
    </message>
    <message>
        <source>Copy by copy</source>
        <translation>Exemplar für Exemplar</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Sofort</translation>
    </message>
    <message>
        <source>When released</source>
        <translation>Nach Freigabe</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>Tagsüber</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Abends</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Nachts</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>In der zweiten Schicht</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>In der dritten Schicht</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Am Wochenende</translation>
    </message>
    <message>
        <source>When to print</source>
        <translation>Druckzeitpunkt</translation>
    </message>
    <message>
        <source>At</source>
        <translation>Um</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no banner page</comment>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Standard</source>
        <comment>a banner page</comment>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Form</source>
        <comment>a banner page</comment>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Classified</source>
        <comment>a banner page</comment>
        <translation>Verschlusssache</translation>
    </message>
    <message>
        <source>Confidential</source>
        <comment>a banner page</comment>
        <translation>Vertraulich</translation>
    </message>
    <message>
        <source>Secret</source>
        <comment>a banner page</comment>
        <translation>Geheim</translation>
    </message>
    <message>
        <source>Top secret</source>
        <comment>a banner page</comment>
        <translation>Streng geheim</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <comment>a banner page</comment>
        <translation>Nicht eingestuft</translation>
    </message>
    <message>
        <source>Banner page</source>
        <translation>Trennseite</translation>
    </message>
    <message>
        <source>Banner page before</source>
        <translation>Trennseite davor</translation>
    </message>
    <message>
        <source>Banner page after</source>
        <translation>Trennseite danach</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no account</comment>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no PIN</comment>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>The photo&apos;s name</source>
        <translation>Der Name des Fotos</translation>
    </message>
</context>
<context>
    <name>printdialog::JobsModel</name>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Since</source>
        <comment>the time at which a job got into its state</comment>
        <translation>Seit</translation>
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
        <translation>Wählen Sie einen Auftrag, der nicht beendet ist.</translation>
    </message>
    <message>
        <source>Select a job that has not begun to print.</source>
        <translation>Wählen Sie einen Auftrag, dessen Druck noch nicht begonnen hat.</translation>
    </message>
    <message>
        <source>Select a job that is held.</source>
        <translation>Wählen Sie einen angehaltenen Auftrag.</translation>
    </message>
    <message>
        <source>Select a job that is over.</source>
        <translation>Wählen Sie einen beendeten Auftrag.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Aufträge</translation>
    </message>
    <message>
        <source>&amp;Cancel Jobs</source>
        <translation>Aufträge &amp;abbrechen</translation>
    </message>
    <message>
        <source>&amp;Hold</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <source>&amp;Release</source>
        <translation>&amp;Freigeben</translation>
    </message>
    <message>
        <source>&amp;Print Again</source>
        <translation>Noch einmal &amp;drucken</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The print server is being asked for your jobs.</source>
        <translation>Der Druckserver wird nach Ihren Aufträgen gefragt.</translation>
    </message>
    <message>
        <source>Your jobs are not known.</source>
        <translation>Ihre Aufträge sind nicht bekannt.</translation>
    </message>
    <message>
        <source>Your jobs as the print server last reported them</source>
        <translation>Ihre Aufträge, wie sie der Druckserver zuletzt gemeldet hat</translation>
    </message>
    <message>
        <source>You have no jobs on the print server.</source>
        <translation>Sie haben keine Aufträge auf dem Druckserver.</translation>
    </message>
    <message>
        <source>Your jobs on the print server: %1 not over, %2 over</source>
        <translation>Ihre Aufträge auf dem Druckserver: %1 nicht beendet, %2 beendet</translation>
    </message>
</context>
<context>
    <name>printdialog::KnownPrintSize</name>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>Passport</source>
        <translation>Passbild</translation>
    </message>
    <message>
        <source>Wallet</source>
        <translation>Brieftasche</translation>
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
        <translation>Jedes Foto wiederholen</translation>
    </message>
    <message>
        <source>Cut marks</source>
        <translation>Schnittmarken</translation>
    </message>
    <message>
        <source>One photo per sheet</source>
        <translation>Ein Foto pro Blatt</translation>
    </message>
    <message>
        <source>Rows and columns</source>
        <translation>Zeilen und Spalten</translation>
    </message>
    <message>
        <source>As many as fit</source>
        <translation>So viele wie passen</translation>
    </message>
    <message>
        <source>Contact sheet</source>
        <translation>Kontaktabzug</translation>
    </message>
    <message>
        <source>Two strips</source>
        <translation>Zwei Streifen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>None</source>
        <comment>a caption</comment>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>a caption</comment>
        <translation>Name</translation>
    </message>
    <message>
        <source>Date</source>
        <comment>a caption</comment>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Name and date</source>
        <comment>a caption</comment>
        <translation>Name und Datum</translation>
    </message>
    <message>
        <source>A photo fills its sheet, or the second strip repeats the first, instead of the next ones following</source>
        <translation>Ein Foto füllt sein Blatt, oder der zweite Streifen wiederholt den ersten, statt dass die nächsten folgen</translation>
    </message>
    <message>
        <source>Layout:</source>
        <translation>Aufteilung:</translation>
    </message>
    <message>
        <source>Rows × columns:</source>
        <translation>Zeilen × Spalten:</translation>
    </message>
    <message>
        <source>Photos per strip:</source>
        <translation>Fotos pro Streifen:</translation>
    </message>
    <message>
        <source>Captions:</source>
        <translation>Beschriftung:</translation>
    </message>
    <message>
        <source>Gap:</source>
        <translation>Abstand:</translation>
    </message>
    <message>
        <source>One photo or page per sheet</source>
        <translation>Ein Foto oder eine Seite pro Blatt</translation>
    </message>
    <message>
        <source>One page per sheet</source>
        <translation>Eine Seite pro Blatt</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) per sheet</source>
        <translation>
            <numerusform>%n Seite pro Blatt</numerusform>
            <numerusform>%n Seiten pro Blatt</numerusform>
        </translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Broschüre</translation>
    </message>
</context>
<context>
    <name>printdialog::MessageBar</name>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
</context>
<context>
    <name>printdialog::MixedSpinBox</name>
    <message>
        <source>several</source>
        <translation>mehrere</translation>
    </message>
</context>
<context>
    <name>printdialog::OptionPageView</name>
    <message>
        <source>No option has this text in it.</source>
        <translation>Keine Option enthält diesen Text.</translation>
    </message>
    <message>
        <source>Search the options</source>
        <translation>Optionen durchsuchen</translation>
    </message>
</context>
<context>
    <name>printdialog::OptionRow</name>
    <message>
        <source>Put &quot;%1&quot; back to &quot;%2&quot;</source>
        <comment>an option and the printer&apos;s default</comment>
        <translation>„%1“ auf „%2“ zurücksetzen</translation>
    </message>
</context>
<context>
    <name>printdialog::OptionsFetcher</name>
    <message>
        <source>its PPD is larger than %1 MiB</source>
        <translation>seine PPD-Datei ist größer als %1 MiB</translation>
    </message>
    <message>
        <source>the connection broke in the middle of its PPD</source>
        <translation>die Verbindung brach mitten in seiner PPD-Datei ab</translation>
    </message>
    <message>
        <source>what the print server keeps is empty</source>
        <translation>was der Druckserver hat, ist leer</translation>
    </message>
    <message>
        <source>its PPD did not arrive within %1 s</source>
        <translation>seine PPD-Datei kam nicht innerhalb von %1 s an</translation>
    </message>
</context>
<context>
    <name>printdialog::OutcomeText</name>
    <message>
        <source>Printing was stopped.</source>
        <translation>Das Drucken wurde gestoppt.</translation>
    </message>
    <message>
        <source>Printed %1 photos in the folder %2</source>
        <translation>%1 Fotos im Ordner %2 gedruckt</translation>
    </message>
    <message>
        <source>Printed %1 photos on %2 (jobs %3 to %4)</source>
        <translation>%1 Fotos auf %2 gedruckt (Aufträge %3 bis %4)</translation>
    </message>
    <message>
        <source>Printed %1 photos on %2</source>
        <translation>%1 Fotos auf %2 gedruckt</translation>
    </message>
    <message>
        <source>Printing was stopped: printed %1 of %2 photos.</source>
        <translation>Das Drucken wurde gestoppt: %1 von %2 Fotos gedruckt.</translation>
    </message>
    <message>
        <source>Printed %1 of %2 photos.</source>
        <translation>%1 von %2 Fotos gedruckt.</translation>
    </message>
    <message>
        <source>Sent %1 of %2 photos to %3, which continues printing.</source>
        <translation>%1 von %2 Fotos an %3 gesendet; der Druck geht dort weiter.</translation>
    </message>
    <message>
        <source>Not printed: %1.</source>
        <translation>Nicht gedruckt: %1.</translation>
    </message>
    <message>
        <source>Perhaps printed: %1.</source>
        <translation>Vielleicht gedruckt: %1.</translation>
    </message>
    <message>
        <source>Waiting at the printer: %1.</source>
        <translation>Beim Drucker wartend: %1.</translation>
    </message>
    <message>
        <source>Cannot be printed: %1.</source>
        <translation>Nicht druckbar: %1.</translation>
    </message>
    <message>
        <source>Printed %1 photos in one PDF: %2</source>
        <translation>%1 Fotos in ein PDF gedruckt: %2</translation>
    </message>
    <message>
        <source>Printing was stopped: printed %1 of %2 sheets.</source>
        <translation>Das Drucken wurde gestoppt: %1 von %2 Blättern gedruckt.</translation>
    </message>
    <message>
        <source>Sent %1 of %2 sheets to %3, which continues printing.</source>
        <translation>%1 von %2 Blättern an %3 gesendet; der Druck geht dort weiter.</translation>
    </message>
    <message>
        <source>Printed %1 of %2 sheets.</source>
        <translation>%1 von %2 Blättern gedruckt.</translation>
    </message>
    <message>
        <source>Printed %1 sheets in one PDF: %2</source>
        <translation>%1 Blätter in ein PDF gedruckt: %2</translation>
    </message>
    <message>
        <source>Printed %1 sheets in the folder %2</source>
        <translation>%1 Blätter im Ordner %2 gedruckt</translation>
    </message>
    <message>
        <source>Printed %1 sheets on %2 (jobs %3 to %4)</source>
        <translation>%1 Blätter auf %2 gedruckt (Aufträge %3 bis %4)</translation>
    </message>
    <message>
        <source>Printed %1 sheets on %2</source>
        <translation>%1 Blätter auf %2 gedruckt</translation>
    </message>
    <message>
        <source>Printing was stopped: printed %1 of %2 jobs.</source>
        <translation>Das Drucken wurde angehalten: %1 von %2 Aufträgen gedruckt.</translation>
    </message>
    <message>
        <source>Sent %1 of %2 jobs to %3, which continues printing.</source>
        <translation>%1 von %2 Aufträgen an %3 gesendet; dort wird weiter gedruckt.</translation>
    </message>
    <message>
        <source>Printed %1 of %2 jobs.</source>
        <translation>%1 von %2 Aufträgen gedruckt.</translation>
    </message>
    <message>
        <source>Printed %1 jobs in one PDF: %2</source>
        <translation>%1 Aufträge in einem PDF gedruckt: %2</translation>
    </message>
    <message>
        <source>Printed %1 jobs in the folder %2</source>
        <translation>%1 Aufträge im Ordner %2 gedruckt</translation>
    </message>
    <message>
        <source>Printed %1 jobs on %2 (numbers %3 to %4)</source>
        <translation>%1 Aufträge auf %2 gedruckt (Nummern %3 bis %4)</translation>
    </message>
    <message>
        <source>Printed %1 jobs on %2</source>
        <translation>%1 Aufträge auf %2 gedruckt</translation>
    </message>
</context>
<context>
    <name>printdialog::OutputFault</name>
    <message>
        <source>&quot;%1&quot; is not a folder: it is a file, or below one. Choose another folder.</source>
        <translation>„%1“ ist kein Ordner, sondern eine Datei oder liegt unter einer. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be made: there is no such folder. Choose another folder.</source>
        <translation>„%1“ kann nicht angelegt werden: Den Ordner gibt es nicht. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>You may not write &quot;%1&quot;. Choose a folder that you may write to.</source>
        <translation>Sie dürfen „%1“ nicht schreiben. Wählen Sie einen Ordner, in den Sie schreiben dürfen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already there and is not a file that could be replaced. Rename it, or choose another folder.</source>
        <translation>„%1“ ist schon da und keine Datei, die ersetzt werden könnte. Benennen Sie es um oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is too long. Rename the photo, or choose another folder.</source>
        <translation>Der Name „%1“ ist zu lang. Benennen Sie das Foto um oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>There is no space for &quot;%1&quot;. Delete other files, or choose another folder.</source>
        <translation>Für „%1“ ist kein Platz. Löschen Sie andere Dateien oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2. Check the disk, or choose another folder.</source>
        <translation>„%1“ konnte nicht geschrieben werden: %2. Prüfen Sie den Datenträger oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>There is no space for &quot;%1&quot;: your quota on this disk is used up. Delete other files of yours, or choose another folder.</source>
        <translation>Für „%1“ ist kein Platz: Ihr Kontingent auf diesem Datenträger ist aufgebraucht. Löschen Sie andere Dateien oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than a file may be here. Raise the limit (ulimit -f), or choose another folder.</source>
        <translation>„%1“ ist größer, als eine Datei hier sein darf. Erhöhen Sie die Grenze (ulimit -f) oder wählen Sie einen anderen Ordner.</translation>
    </message>
</context>
<context>
    <name>printdialog::OwnJobs</name>
    <message>
        <source>%1 of %2 jobs were left as they are. The first one: %3</source>
        <translation>%1 von %2 Aufträgen blieben, wie sie sind. Der erste: %3</translation>
    </message>
</context>
<context>
    <name>printdialog::PageBar</name>
    <message>
        <source>Reverse order</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Page ranges</source>
        <translation>Seitenbereiche</translation>
    </message>
    <message>
        <source>Pages and ranges, separated by commas; 12- is page 12 to the last one</source>
        <translation>Seiten und Bereiche, durch Kommas getrennt; 12- ist Seite 12 bis zur letzten</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>Gerade und ungerade Seiten</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>Gerade und ungerade</translation>
    </message>
    <message>
        <source>Odd only</source>
        <comment>pages</comment>
        <translation>Nur ungerade</translation>
    </message>
    <message>
        <source>Even only</source>
        <comment>pages</comment>
        <translation>Nur gerade</translation>
    </message>
    <message>
        <source>Print the last sheet first</source>
        <translation>Das letzte Blatt zuerst drucken</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Seiten:</translation>
    </message>
    <message>
        <source>All</source>
        <comment>pages</comment>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Aktuelle Seite</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>pages</comment>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Ranges</source>
        <comment>of pages</comment>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say which pages. Type page numbers from 1 on and ranges, such as 1-3,7,12-.</source>
        <translation>„%1“ sagt nicht, welche Seiten. Geben Sie Seitenzahlen ab 1 und Bereiche ein, etwa 1-3,7,12-.</translation>
    </message>
    <message>
        <source>Type which pages are printed, such as 1-3,7,12-, or choose All.</source>
        <translation>Geben Sie ein, welche Seiten gedruckt werden, etwa 1-3,7,12-, oder wählen Sie „Alle“.</translation>
    </message>
</context>
<context>
    <name>printdialog::PanelTabs</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; cannot be shown: its form is missing from the plug-in bundle or damaged. Install the bundle again. Everything else works.</source>
        <translation>Die Seite „%1“ kann nicht angezeigt werden: Ihr Formular fehlt im Plug-in-Paket oder ist beschädigt. Installieren Sie das Paket erneut. Alles andere funktioniert.</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; cannot be left yet. Finish what it asks for.</source>
        <translation>Die Seite „%1“ kann noch nicht verlassen werden. Erledigen Sie zuerst, was sie verlangt.</translation>
    </message>
</context>
<context>
    <name>printdialog::PasswordPrompt</name>
    <message>
        <source>Password</source>
        <translation>Kennwort</translation>
    </message>
    <message>
        <source>The password does not open &quot;%1&quot;. Check it and enter it again.</source>
        <translation>Das Kennwort öffnet „%1“ nicht. Prüfen Sie es und geben Sie es noch einmal ein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is protected by a password.</source>
        <translation>„%1“ ist mit einem Kennwort geschützt.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <comment>a document</comment>
        <translation>&amp;Weglassen</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
</context>
<context>
    <name>printdialog::PatientPrinter</name>
    <message>
        <source>%1 waits. It is printed when that is over: %2</source>
        <translation>%1 wartet und wird gedruckt, sobald dies vorbei ist: %2</translation>
    </message>
    <message>
        <source>%1 (job %2) waits. It was sent, and is not sent again: %3</source>
        <translation>%1 (Auftrag %2) wartet. Der Auftrag ist gesendet und wird nicht noch einmal gesendet: %3</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not print %2 (job %3): %4. Look at the printer and print again.</source>
        <translation>Der Drucker „%1“ konnte %2 (Auftrag %3) nicht drucken: %4. Sehen Sie nach dem Drucker und drucken Sie noch einmal.</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>ohne Angabe von Gründen</translation>
    </message>
    <message>
        <source>The job %3 for %2 on the printer &quot;%1&quot; was canceled (%4).</source>
        <translation>Der Auftrag %3 für %2 auf dem Drucker „%1“ wurde abgebrochen (%4).</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>ohne Angabe von Gründen</translation>
    </message>
    <message>
        <source>The print server does not know its job %1 any more.</source>
        <translation>Der Druckserver kennt den Auftrag %1 dazu nicht mehr.</translation>
    </message>
    <message>
        <source>Printed %1 on %2 (job %3)</source>
        <translation>%1 auf %2 gedruckt (Auftrag %3)</translation>
    </message>
    <message>
        <source>%1 (job %2) waits: %3. It is printed when that is over.</source>
        <translation>%1 (Auftrag %2) wartet: %3. Gedruckt wird, sobald das vorbei ist.</translation>
    </message>
    <message>
        <source>Printing %1 continues.</source>
        <translation>Der Druck von %1 geht weiter.</translation>
    </message>
    <message>
        <source>It was being sent, and the print server has no job that must be its.</source>
        <translation>Es wurde gerade gesendet, und der Druckserver hat keinen Auftrag, der seiner sein muss.</translation>
    </message>
    <message>
        <source>%1 waits. It was being sent, and only the print server knows whether it is printed: %2</source>
        <translation>%1 wartet. Es wurde gerade gesendet, und nur der Druckserver weiß, ob es gedruckt wird: %2</translation>
    </message>
</context>
<context>
    <name>printdialog::PdfWriter</name>
    <message>
        <source>The page of %1 x %2 points cannot be printed on. Choose another page size.</source>
        <translation>Auf die Seite von %1 × %2 Punkt kann nicht gedruckt werden. Wählen Sie ein anderes Papierformat.</translation>
    </message>
    <message>
        <source>The PDF of &quot;%1&quot; could not be written: %2. Check the disk that it goes to.</source>
        <translation>Die PDF-Datei von „%1“ konnte nicht geschrieben werden: %2. Prüfen Sie den Zieldatenträger.</translation>
    </message>
</context>
<context>
    <name>printdialog::Photo</name>
    <message>
        <source>&quot;%1&quot; is too large: %2, where a photo may have %3. Save it with fewer pixels, or as JPEG.</source>
        <translation>„%1“ ist zu groß: %2; erlaubt sind %3. Speichern Sie es mit weniger Pixeln oder als JPEG.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large: %2 x %3 pixels. Scale it down in a photo program.</source>
        <translation>„%1“ ist zu groß: %2 × %3 Pixel. Verkleinern Sie es in einem Fotoprogramm.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is cut short: its end is missing. Copy it again from where it came from.</source>
        <translation>„%1“ ist unvollständig: Das Ende fehlt. Kopieren Sie es erneut von der Quelle.</translation>
    </message>
    <message>
        <source>There is not enough memory for &quot;%1&quot;. Scale it down in a photo program.</source>
        <translation>Für „%1“ reicht der Speicher nicht. Verkleinern Sie es in einem Fotoprogramm.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: a part of the picture is missing or wrong. Copy it again from where it came from.</source>
        <translation>„%1“ ist beschädigt: Ein Teil des Bildes fehlt oder ist falsch. Kopieren Sie es erneut von der Quelle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an interlaced PNG of %2 x %3 pixels, which takes too much memory. Save it without interlacing, or as JPEG.</source>
        <translation>„%1“ ist ein PNG mit Zeilensprung (interlaced) und %2 x %3 Pixeln, das zu viel Speicher braucht. Speichern Sie es ohne Zeilensprung oder als JPEG.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a JPEG of a rare kind, lossless or with more than 8 bits, which cannot be printed. Save it as a usual JPEG in a photo program.</source>
        <translation>„%1“ ist ein JPEG einer seltenen Art, verlustfrei oder mit mehr als 8 Bit, die sich nicht drucken lässt. Speichern Sie es in einem Fotoprogramm als gewöhnliches JPEG.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged and cannot be shown. Copy it again, or save it again in a photo program.</source>
        <translation>„%1“ ist beschädigt und kann nicht angezeigt werden. Kopieren Sie es erneut oder speichern Sie es in einem Fotoprogramm neu.</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <comment>a page of a document</comment>
        <translation>%1, Seite %2</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoFile</name>
    <message>
        <source>There is no photo &quot;%1&quot;. Check its name and folder.</source>
        <translation>Es gibt kein Foto „%1“. Prüfen Sie Namen und Ordner.</translation>
    </message>
    <message>
        <source>You may not read &quot;%1&quot;. Ask its owner for the permission to read it.</source>
        <translation>Sie dürfen „%1“ nicht lesen. Bitten Sie den Eigentümer um Leserechte.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be read: %2. Check the disk or card that it is on.</source>
        <translation>„%1“ konnte nicht gelesen werden: %2. Prüfen Sie den Datenträger oder die Karte.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Choose a photo inside it.</source>
        <translation>„%1“ ist ein Ordner. Wählen Sie ein Foto darin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file but a device, a pipe or a socket. Choose a photo.</source>
        <translation>„%1“ ist keine Datei, sondern ein Gerät, eine Pipe oder ein Socket. Wählen Sie ein Foto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed since it was opened. Add it again.</source>
        <translation>„%1“ hat sich geändert, seit es geöffnet wurde. Fügen Sie es erneut hinzu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Copy the file again from where it came from.</source>
        <translation>„%1“ ist leer. Kopieren Sie die Datei erneut von der Quelle.</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoFormat</name>
    <message>
        <source>camera raw</source>
        <translation>Kamera-Rohdaten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a photo of the format %2, which needs the package %3. Install it, or save the photo as JPEG.</source>
        <translation>„%1“ ist ein Foto im Format %2, das das Paket %3 braucht. Installieren Sie es, oder speichern Sie das Foto als JPEG.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of the format %2, which cannot be printed. Save it as one of these: %3.</source>
        <translation>„%1“ hat das Format %2, das nicht gedruckt werden kann. Speichern Sie es in einem von diesen: %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a photo or document of a known kind, whatever its name says. Save it as one of these: %2.</source>
        <translation>„%1“ ist weder Foto noch Dokument einer bekannten Art, wie es auch heißt. Speichern Sie es in einem von diesen Formaten: %2.</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoPane</name>
    <message>
        <source>A&amp;dd…</source>
        <translation>Hin&amp;zufügen…</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>En&amp;tfernen</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 von %3)</translation>
    </message>
    <message>
        <source>Damaged: a part of the picture is missing or wrong.</source>
        <translation>Beschädigt: Ein Teil des Bildes fehlt oder ist falsch.</translation>
    </message>
    <message>
        <source>The printer places it on the page itself; the preview is only an example.</source>
        <translation>Der Drucker setzt es selbst auf die Seite; die Vorschau ist nur ein Beispiel.</translation>
    </message>
    <message numerus="yes">
        <source>%n more file(s) cannot be printed.</source>
        <translation>
            <numerusform>%n weitere Datei lässt sich nicht drucken.</numerusform>
            <numerusform>%n weitere Dateien lassen sich nicht drucken.</numerusform>
        </translation>
    </message>
    <message>
        <source>Sheets: %1</source>
        <translation>Blätter: %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Copies…</source>
        <comment>of the selected photos</comment>
        <translation>Exemplare …</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>an order of photos</comment>
        <translation>Name</translation>
    </message>
    <message>
        <source>Date</source>
        <comment>an order of photos</comment>
        <translation>Datum</translation>
    </message>
    <message>
        <source>As added</source>
        <comment>an order of photos</comment>
        <translation>Wie hinzugefügt</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>Auf alle anwenden</translation>
    </message>
    <message>
        <source>Print lists</source>
        <translation>Drucklisten</translation>
    </message>
    <message>
        <source>Open a Print List</source>
        <translation>Druckliste öffnen</translation>
    </message>
    <message>
        <source>Open List…</source>
        <comment>of photos</comment>
        <translation>Liste öffnen …</translation>
    </message>
    <message>
        <source>Save List…</source>
        <comment>of photos</comment>
        <translation>Liste speichern …</translation>
    </message>
    <message>
        <source>Show Each Page</source>
        <translation>Seiten zeigen</translation>
    </message>
    <message>
        <source>Photos and documents</source>
        <translation>Fotos und Dokumente</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>PDF-Dokumente</translation>
    </message>
    <message>
        <source>Add Photos or Documents</source>
        <translation>Fotos oder Dokumente hinzufügen</translation>
    </message>
    <message>
        <source>This page is not printed.</source>
        <translation>Diese Seite wird nicht gedruckt.</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; is empty.</source>
        <translation>Die Druckliste „%1“ ist leer.</translation>
    </message>
    <message>
        <source>Save a Print List</source>
        <translation>Druckliste speichern</translation>
    </message>
    <message>
        <source>Sides of sheets: %1</source>
        <translation>Blattseiten: %1</translation>
    </message>
    <message>
        <source>%1, page %2 of %3</source>
        <translation>%1, Seite %2 von %3</translation>
    </message>
    <message>
        <source>Height of the table</source>
        <translation>Höhe der Tabelle</translation>
    </message>
    <message>
        <source>Drag to see more or fewer pictures</source>
        <translation>Ziehen, um mehr oder weniger Bilder zu sehen</translation>
    </message>
    <message>
        <source>Add photos and PDF documents to this job; they can be dropped on the window as well</source>
        <translation>Fotos und PDF-Dokumente zu diesem Auftrag hinzufügen; sie können auch ins Fenster gezogen werden</translation>
    </message>
    <message>
        <source>Take what is selected out of this job; the files stay</source>
        <translation>Das Ausgewählte aus diesem Auftrag nehmen; die Dateien bleiben</translation>
    </message>
    <message>
        <source>Show the pages as a table, in which they are moved, removed and placed one by one; otherwise what is chosen holds for all of them</source>
        <translation>Die Seiten als Tabelle zeigen, in der sie einzeln verschoben, entfernt und platziert werden; sonst gilt das Gewählte für alle</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoTable</name>
    <message>
        <source>Delete removes the selected photos; Alt with an arrow key moves them.</source>
        <translation>Entf entfernt die ausgewählten Fotos; Alt mit einer Pfeiltaste verschiebt sie.</translation>
    </message>
    <message>
        <source>%1 of this job</source>
        <comment>such as: 3 photos and 12 pages</comment>
        <translation>%1 dieses Auftrags</translation>
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
            <numerusform>%n Exemplar</numerusform>
            <numerusform>%n Exemplare</numerusform>
        </translation>
    </message>
    <message>
        <source>whole page</source>
        <translation>ganze Seite</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>not printed</source>
        <translation>nicht gedruckt</translation>
    </message>
</context>
<context>
    <name>printdialog::PlacementBar</name>
    <message>
        <source>&amp;Turn</source>
        <translation>Drehe&amp;n</translation>
    </message>
    <message>
        <source>P&amp;lacement:</source>
        <translation>&amp;Platzierung:</translation>
    </message>
    <message>
        <source>This printer places the photo on the page itself.</source>
        <translation>Dieser Drucker setzt das Foto selbst auf die Seite.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Size, border and copies of the photos, and how they share sheets</source>
        <translation>Größe, Rand und Anzahl der Fotos, und wie sie sich Blätter teilen</translation>
    </message>
    <message>
        <source>Placement on the paper</source>
        <translation>Platzierung auf dem Papier</translation>
    </message>
    <message>
        <source>Turn the photo or page by a quarter, clockwise</source>
        <translation>Das Foto oder die Seite um ein Viertel drehen, im Uhrzeigersinn</translation>
    </message>
</context>
<context>
    <name>printdialog::PortalSettings</name>
    <message>
        <source>The program&apos;s setting &quot;%1&quot; cannot be used: it is not plain text.</source>
        <translation>Die Einstellung „%1“ des Programms ist nicht brauchbar: Sie ist kein einfacher Text.</translation>
    </message>
    <message>
        <source>The program&apos;s setting &quot;%1&quot; cannot be used: it is &quot;%2&quot;.</source>
        <translation>Die Einstellung „%1“ des Programms ist nicht brauchbar: Sie lautet „%2“.</translation>
    </message>
    <message>
        <source>The program has more than %1 settings; the others are left out.</source>
        <translation>Das Programm hat mehr als %1 Einstellungen; die übrigen sind weggelassen.</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetBar</name>
    <message>
        <source>Preset</source>
        <translation>Voreinstellung</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no preset is in use</comment>
        <translation>Keine</translation>
    </message>
    <message>
        <source>M&amp;anage</source>
        <translation>Ver&amp;walten</translation>
    </message>
    <message>
        <source>Save, rename or delete presets; go back to earlier choices</source>
        <translation>Voreinstellungen sichern, umbenennen oder löschen; zu früheren Einstellungen zurückkehren</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Name der Voreinstellung</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Sichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>U&amp;mbenennen…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Löschen…</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (geändert)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Sichern</translation>
    </message>
    <message>
        <source>&amp;Save &quot;%1&quot;</source>
        <translation>„%1“ &amp;sichern</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;?</source>
        <translation>„%1“ löschen?</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>Standard des Druckers</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetController</name>
    <message>
        <source>Of the choices used last, some are left out:</source>
        <translation>Von den zuletzt verwendeten Einstellungen entfallen einige:</translation>
    </message>
    <message>
        <source>Re&amp;vert to How the Dialog Opened</source>
        <translation>Auf den Stand beim &amp;Öffnen zurücksetzen</translation>
    </message>
    <message>
        <source>Of the preset &quot;%1&quot;, some choices are left out:</source>
        <translation>Von der Voreinstellung „%1“ entfällt einiges:</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>Und %n weitere.</numerusform>
            <numerusform>Und %n weitere.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; no longer exists.</source>
        <translation>Die Voreinstellung „%1“ gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>Of the printer&apos;s defaults, some are left out:</source>
        <translation>Vom Standard des Druckers entfällt einiges:</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetName</name>
    <message>
        <source>A preset needs a name.</source>
        <translation>Eine Voreinstellung braucht einen Namen.</translation>
    </message>
    <message>
        <source>The name holds a control character, such as a tab or a line break. Type it without.</source>
        <translation>Der Name enthält ein Steuerzeichen, etwa einen Tabulator oder Zeilenumbruch. Geben Sie ihn ohne ein.</translation>
    </message>
    <message>
        <source>The name is too long: it takes %1 bytes to store, and CUPS allows %2. Choose a shorter one.</source>
        <translation>Der Name ist zu lang: Gespeichert braucht er %1 Bytes, und CUPS erlaubt %2. Wählen Sie einen kürzeren.</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetStore</name>
    <message>
        <source>The preset &quot;%1&quot; is not saved: with %2 options it is longer than the %3 bytes that CUPS reads. Save the settings instead.</source>
        <translation>Die Voreinstellung „%1“ wird nicht gesichert: Mit %2 Optionen ist sie länger als die %3 Bytes, die CUPS liest. Speichern Sie stattdessen die Einstellungen.</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; keeps its name: with the new one it is longer than the %2 bytes that CUPS reads. Choose a shorter one.</source>
        <translation>Die Voreinstellung „%1“ behält ihren Namen: Mit dem neuen ist sie länger als die %2 Bytes, die CUPS liest. Wählen Sie einen kürzeren.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no preset &quot;%2&quot;, nor any other. Choose the printer without a preset.</source>
        <translation>Der Drucker „%1“ hat keine Voreinstellung „%2“ und auch keine andere. Wählen Sie den Drucker ohne Voreinstellung.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no preset &quot;%2&quot;. Choose one of its %3 others, or the printer without a preset.</source>
        <translation>Der Drucker „%1“ hat keine Voreinstellung „%2“. Wählen Sie eine seiner %3 anderen oder den Drucker ohne Voreinstellung.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no preset &quot;%2&quot;. Its presets: %3. Choose one of them, or the printer without a preset.</source>
        <translation>Der Drucker „%1“ hat keine Voreinstellung „%2“. Seine Voreinstellungen: %3. Wählen Sie eine davon oder den Drucker ohne Voreinstellung.</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already. Choose another name.</source>
        <translation>Es gibt schon eine Voreinstellung „%1“. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; is the system&apos;s. Save one of your own under a new name.</source>
        <translation>Die Voreinstellung „%1“ gehört zum System. Sichern Sie eine eigene unter einem neuen Namen.</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; no longer exists. Save it under a new name.</source>
        <translation>Die Voreinstellung „%1“ gibt es nicht mehr. Sichern Sie sie unter einem neuen Namen.</translation>
    </message>
</context>
<context>
    <name>printdialog::PreviewBar</name>
    <message>
        <source>Show the page smaller</source>
        <translation>Seite kleiner zeigen</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>How large the page is shown</source>
        <translation>Wie groß die Seite gezeigt wird</translation>
    </message>
    <message>
        <source>Show the page larger</source>
        <translation>Seite größer zeigen</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>Hold to see the photo without the printer&apos;s adjustments (%1)</source>
        <translation>Gedrückt halten, um das Foto ohne die Anpassungen des Druckers zu sehen (%1)</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Geteilt</translation>
    </message>
    <message>
        <source>Show the photo without the printer&apos;s adjustments left of a divider that can be dragged</source>
        <translation>Links von einer verschiebbaren Trennlinie das Foto ohne die Anpassungen des Druckers zeigen</translation>
    </message>
    <message>
        <source>Mark the tones that the adjustments clip to black or white</source>
        <translation>Tonwerte markieren, die durch die Anpassungen zu reinem Schwarz oder Weiß werden</translation>
    </message>
    <message>
        <source>Soft proof</source>
        <translation>Softproof</translation>
    </message>
    <message>
        <source>Show the colors as the printer&apos;s paper has them</source>
        <translation>Die Farben so zeigen, wie das Papier des Druckers sie wiedergibt</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>a zoom</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Clipped: %1 %</source>
        <translation>Clipping: %1 %</translation>
    </message>
    <message>
        <source>Clipped</source>
        <translation>Clipping</translation>
    </message>
    <message>
        <source>Preview is approximate</source>
        <translation>Vorschau ist nur ungefähr</translation>
    </message>
    <message>
        <source>sharpness shows at 100 %</source>
        <translation>die Schärfe zeigt sich bei 100 %</translation>
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
        <translation>Lineal</translation>
    </message>
    <message>
        <source>Measure the sheet along its edges</source>
        <translation>Das Blatt an seinen Rändern messen</translation>
    </message>
</context>
<context>
    <name>printdialog::PreviewWidget</name>
    <message>
        <source>Preview of %1</source>
        <translation>Vorschau von %1</translation>
    </message>
    <message>
        <source>This photo cannot be shown</source>
        <translation>Dieses Foto kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>Vorschau der Seite</translation>
    </message>
    <message>
        <source>The whole photo is printed.</source>
        <translation>Das ganze Foto wird gedruckt.</translation>
    </message>
    <message>
        <source>%1 % of the photo is cut off.</source>
        <translation>%1 % des Fotos werden abgeschnitten.</translation>
    </message>
    <message>
        <source>Drag the photo, or press the arrow keys, to move it; Home puts it in the middle.</source>
        <translation>Ziehen Sie das Foto oder drücken Sie die Pfeiltasten, um es zu verschieben; Pos1 legt es in die Mitte.</translation>
    </message>
    <message>
        <source>Drag it, or press the arrow keys, to see another part; 0 shows the entire page.</source>
        <translation>Ziehen oder Pfeiltasten drücken, um einen anderen Teil zu sehen; 0 zeigt die ganze Seite.</translation>
    </message>
    <message>
        <source>Left of the divider, the photo is shown without the adjustments. Drag the divider, or press Ctrl and an arrow key, to move it.</source>
        <translation>Links der Trennlinie ist das Foto ohne die Anpassungen zu sehen. Die Trennlinie lässt sich ziehen oder mit Strg und einer Pfeiltaste verschieben.</translation>
    </message>
    <message>
        <source>Prints %1 beyond the edges of the paper</source>
        <comment>borderless</comment>
        <translation>Druckt %1 über die Ränder des Papiers hinaus</translation>
    </message>
    <message>
        <source>The print is %1, %2 from the left edge of the sheet and %3 from its top.</source>
        <translation>Der Abzug ist %1 groß und liegt %2 vom linken und %3 vom oberen Rand des Blatts.</translation>
    </message>
    <message>
        <source>Sheet %1 of %2.</source>
        <translation>Blatt %1 von %2.</translation>
    </message>
    <message>
        <source>Photo %1 of %2 on the sheet.</source>
        <translation>Foto %1 von %2 auf dem Blatt.</translation>
    </message>
    <message>
        <source>Click on a photo to change how it is printed.</source>
        <translation>Klicken Sie auf ein Foto, um zu ändern, wie es gedruckt wird.</translation>
    </message>
    <message>
        <source>Nothing to print. Drop photos or PDF documents here, or press Add.</source>
        <translation>Nichts zu drucken. Ziehen Sie Fotos oder PDF-Dokumente hierher, oder drücken Sie „Hinzufügen“.</translation>
    </message>
    <message>
        <source>This page cannot be shown</source>
        <translation>Diese Seite kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>Page %1 of %2 on the sheet.</source>
        <translation>Seite %1 von %2 auf dem Blatt.</translation>
    </message>
    <message>
        <source>The whole page is printed.</source>
        <translation>Die ganze Seite wird gedruckt.</translation>
    </message>
    <message>
        <source>%1 % of the page is cut off.</source>
        <translation>%1 % der Seite sind abgeschnitten.</translation>
    </message>
    <message>
        <source>Drag the page, or press the arrow keys, to move it; Home puts it in the middle.</source>
        <translation>Ziehen Sie die Seite oder drücken Sie die Pfeiltasten, um sie zu verschieben; Pos1 setzt sie in die Mitte.</translation>
    </message>
    <message>
        <source>Click on a page to change how it is printed.</source>
        <translation>Klicken Sie auf eine Seite, um zu ändern, wie sie gedruckt wird.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintBar</name>
    <message>
        <source>Apply to All</source>
        <translation>Auf alle anwenden</translation>
    </message>
    <message>
        <source> %</source>
        <comment>after a number</comment>
        <translation> %</translation>
    </message>
    <message>
        <source>Color of the border</source>
        <translation>Farbe des Rands</translation>
    </message>
    <message>
        <source>How often each of the selected photos is printed; Copies counts the whole job</source>
        <translation>Wie oft jedes der ausgewählten Fotos gedruckt wird; „Exemplare“ zählt den ganzen Auftrag</translation>
    </message>
    <message>
        <source>Give all photos the placement, size, border and number of prints of the one that is shown</source>
        <translation>Allen Fotos Platzierung, Größe, Rand und Anzahl des gezeigten geben</translation>
    </message>
    <message>
        <source>Print size:</source>
        <translation>Bildgröße:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>Skalierung:</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Rand:</translation>
    </message>
    <message>
        <source>Prints of each:</source>
        <translation>Abzüge von jedem:</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>a print&apos;s size to type</comment>
        <translation>Eigene …</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>%1 drucken</translation>
    </message>
    <message>
        <source>Folder for Printed Files</source>
        <translation>Ordner für gedruckte Dateien</translation>
    </message>
    <message>
        <source>This printer has no panels of its own; it prints with its defaults.</source>
        <translation>Dieser Drucker hat keine eigenen Einstellungsseiten; er druckt mit seinen Standardwerten.</translation>
    </message>
    <message>
        <source>Printing is under way.</source>
        <translation>Der Druck läuft.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The settings are saved for &quot;%1&quot;.</source>
        <translation>Die Einstellungen für „%1“ wurden gespeichert.</translation>
    </message>
    <message>
        <source>The options of &quot;%1&quot; have changed. Your choices were kept as far as the printer still has them; look at them before you print.</source>
        <translation>Die Optionen von „%1“ haben sich geändert. Ihre Auswahl blieb erhalten, soweit der Drucker sie noch kennt; sehen Sie sie durch, bevor Sie drucken.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Use the Built-in Printer</source>
        <translation>Eingebauten Drucker verwenden</translation>
    </message>
    <message>
        <source>Nothing is saved.</source>
        <translation>Es wird nichts gespeichert.</translation>
    </message>
    <message>
        <source>Close Anyway</source>
        <translation>Trotzdem schließen</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>a paper size to type</comment>
        <translation>Eigene Größe …</translation>
    </message>
    <message>
        <source>This printer has no PPD file and so no options of its own: it gets the photo&apos;s file as it is, and places it on the page itself.</source>
        <translation>Dieser Drucker hat keine PPD-Datei und deshalb keine eigenen Optionen: Er bekommt die Fotodatei unverändert und setzt sie selbst auf das Blatt.</translation>
    </message>
    <message>
        <source>%1 (not loaded)</source>
        <comment>a paper size</comment>
        <translation>%1 (nicht eingelegt)</translation>
    </message>
    <message>
        <source>Close Without Printing</source>
        <translation>Ohne Drucken schließen</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>Offen lassen</translation>
    </message>
    <message>
        <source>Save List…</source>
        <translation>Liste speichern …</translation>
    </message>
    <message>
        <source>One PDF for each sheet</source>
        <translation>Ein PDF für jedes Blatt</translation>
    </message>
    <message>
        <source>One PDF for each photo</source>
        <translation>Ein PDF für jedes Foto</translation>
    </message>
    <message>
        <source>The program brings the pages after you press &quot;%1&quot;.</source>
        <translation>Das Programm liefert die Seiten, nachdem Sie auf „%1“ gedrückt haben.</translation>
    </message>
    <message>
        <source>%1 brings the pages after you press &quot;%2&quot;.</source>
        <translation>%1 liefert die Seiten, nachdem Sie auf „%2“ gedrückt haben.</translation>
    </message>
    <message>
        <source>The list is saved as &quot;%1&quot;.</source>
        <translation>Die Liste ist als „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>Print</source>
        <comment>a title</comment>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>PDFs named after the files</source>
        <translation>PDFs mit den Namen der Dateien</translation>
    </message>
    <message>
        <source>Files are still being opened.</source>
        <translation>Dateien werden noch geöffnet.</translation>
    </message>
    <message>
        <source>There is nothing to print.</source>
        <translation>Es gibt nichts zu drucken.</translation>
    </message>
    <message>
        <source>The sheets were arranged and not printed. Close the window all the same?</source>
        <translation>Die Blätter wurden angeordnet und nicht gedruckt. Das Fenster trotzdem schließen?</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintList</name>
    <message>
        <source>&quot;%1&quot; is not a print list. Save it again in the print window.</source>
        <translation>„%1“ ist keine Druckliste. Speichern Sie sie im Druckfenster neu.</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; cannot be used: &quot;%2&quot; cannot be %3. Correct it, or save the list again in the print window.</source>
        <translation>Die Druckliste „%1“ kann nicht verwendet werden: „%2“ kann nicht %3 sein. Berichtigen Sie das, oder speichern Sie die Liste im Druckfenster neu.</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; could not be read: %2.</source>
        <translation>Die Druckliste „%1“ konnte nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; is from a later version of this program. Update the program, or save the list again with this one.</source>
        <translation>Die Druckliste „%1“ stammt von einer neueren Version dieses Programms. Aktualisieren Sie es, oder speichern Sie die Liste mit diesem neu.</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; could not be saved: %2. Choose another folder.</source>
        <translation>Die Druckliste „%1“ konnte nicht gespeichert werden: %2. Wählen Sie einen anderen Ordner.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintPortal</name>
    <message>
        <source>%1 was not printed</source>
        <translation>%1 wurde nicht gedruckt</translation>
    </message>
    <message>
        <source>Problem with printing %1</source>
        <translation>Problem beim Drucken von %1</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintPositionWindow</name>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>&amp;Testseite drucken</translation>
    </message>
    <message>
        <source>&amp;Correct</source>
        <translation>&amp;Korrigieren</translation>
    </message>
    <message>
        <source>Print Position</source>
        <translation>Drucklage</translation>
    </message>
    <message>
        <source>To the &amp;right:</source>
        <translation>Nach &amp;rechts:</translation>
    </message>
    <message>
        <source>&amp;Down:</source>
        <translation>Nach &amp;unten:</translation>
    </message>
    <message>
        <source>From the &amp;left edge:</source>
        <translation>Vom &amp;linken Rand:</translation>
    </message>
    <message>
        <source>From the to&amp;p edge:</source>
        <translation>Vom &amp;oberen Rand:</translation>
    </message>
    <message>
        <source>The test page has a line %1 mm from the left edge and one %1 mm from the top edge. Print it, and measure them:</source>
        <translation>Die Testseite hat eine Linie %1 mm vom linken und eine %1 mm vom oberen Rand. Drucken Sie sie, und messen Sie nach:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Everything printed on &quot;%1&quot; with the paper size &quot;%2&quot; is moved:</source>
        <translation>Alles, was auf „%1“ mit dem Papierformat „%2“ gedruckt wird, wird verschoben:</translation>
    </message>
    <message>
        <source>Prints can be moved by %1 mm at most. Check which paper is loaded, and the paper size, then print the test page again.</source>
        <translation>Gedrucktes kann um höchstens %1 mm verschoben werden. Prüfen Sie, welches Papier eingelegt ist, und das Papierformat, und drucken Sie die Testseite noch einmal.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintProgress</name>
    <message>
        <source>Printing</source>
        <translation>Drucken</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintRun</name>
    <message>
        <source>%1 The sheet with %2 is not printed.</source>
        <translation>%1 Das Blatt mit %2 wird nicht gedruckt.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintWorker</name>
    <message>
        <source>Writing %1</source>
        <translation>%1 wird geschrieben</translation>
    </message>
    <message>
        <source>Sending %1 to %2</source>
        <translation>%1 wird an %2 gesendet</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 von %2: %3</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>%1 wird geprüft</translation>
    </message>
    <message>
        <source>%1 was not printed.</source>
        <translation>%1 wurde nicht gedruckt.</translation>
    </message>
    <message>
        <source>%1 of %2, %3: %4</source>
        <translation>%1 von %2, %3: %4</translation>
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
        <translation>Der Drucker „%1“ ist nicht mehr da. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;. Choose another one.</source>
        <translation>Es gibt keinen Drucker „%1“. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is not there. %2</source>
        <translation>Der Drucker „%1“ ist nicht da. %2</translation>
    </message>
    <message>
        <source>%1 (on the network)</source>
        <translation>%1 (im Netzwerk)</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot; (%2). Choose another one.</source>
        <translation>Es gibt keinen Drucker „%1“ (%2). Wählen Sie einen anderen.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrinterController</name>
    <message>
        <source>The print server has not confirmed yet that the printer &quot;%1&quot; is there.</source>
        <translation>Der Druckserver hat noch nicht bestätigt, dass es den Drucker „%1“ gibt.</translation>
    </message>
    <message>
        <source>The options of &quot;%1&quot; are being fetched from the print server.</source>
        <translation>Die Optionen von „%1“ werden vom Druckserver geholt.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrinterSearch</name>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Type a part of its name, place or model to find it</source>
        <translation>Zum Suchen einen Teil des Namens, Ortes oder Modells eintippen</translation>
    </message>
</context>
<context>
    <name>printdialog::PrinterStatus</name>
    <message>
        <source>One of %1; its options are those of the first.</source>
        <translation>Einer von %1; seine Optionen sind die des ersten.</translation>
    </message>
    <message>
        <source>The print server is being asked for this printer.</source>
        <translation>Der Druckserver wird nach diesem Drucker gefragt.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintingController</name>
    <message>
        <source>Printing…</source>
        <translation>Wird gedruckt…</translation>
    </message>
    <message>
        <source>Nothing was printed: a photo that was removed meanwhile is damaged. Print again.</source>
        <translation>Es wurde nichts gedruckt: Ein Foto, das inzwischen entfernt wurde, ist beschädigt. Drucken Sie erneut.</translation>
    </message>
    <message>
        <source>%1 is damaged: a part of the picture is missing or wrong. Look at it, then print it as it is, or remove it and copy it again from where it came from.</source>
        <translation>%1 ist beschädigt: Ein Teil des Bildes fehlt oder ist falsch. Sehen Sie es an und drucken Sie es dann so, oder entfernen Sie es und kopieren Sie es erneut von der Quelle.</translation>
    </message>
    <message>
        <source>These photos are damaged: %1. Look at them, then print them as they are, or remove them and copy them again from where they came from.</source>
        <translation>Diese Fotos sind beschädigt: %1. Sehen Sie sie an und drucken Sie sie dann so, oder entfernen Sie sie und kopieren Sie sie erneut von der Quelle.</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Trotzdem drucken</translation>
    </message>
    <message>
        <source>Print without these choices? The printer&apos;s own defaults take their place.</source>
        <translation>Ohne diese Einstellungen drucken? An ihre Stelle treten die Voreinstellungen des Druckers.</translation>
    </message>
    <message>
        <source>Print Without Them</source>
        <translation>Ohne sie drucken</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Wird gestoppt…</translation>
    </message>
    <message>
        <source>Stop Printing</source>
        <translation>Drucken stoppen</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>Offen lassen</translation>
    </message>
    <message>
        <source>Printed so far: %1 of %2 photos. The rest is not printed when this window is closed.</source>
        <translation>Bisher gedruckt: %1 von %2 Fotos. Der Rest wird nicht gedruckt, wenn dieses Fenster geschlossen wird.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiterdrucken</translation>
    </message>
    <message>
        <source>The print server continues printing when this window is closed.</source>
        <translation>Der Druckserver druckt weiter, wenn dieses Fenster geschlossen wird.</translation>
    </message>
    <message>
        <source>When this window is closed, the print server continues printing the %1 of %2 photos that it has. The rest is not printed.</source>
        <translation>Wird dieses Fenster geschlossen, druckt der Druckserver die %1 von %2 Fotos, die er hat, weiter. Der Rest wird nicht gedruckt.</translation>
    </message>
    <message>
        <source>Print position</source>
        <comment>a file&apos;s name</comment>
        <translation>Drucklage</translation>
    </message>
    <message>
        <source>The test page could not be made in &quot;%1&quot;. Free some space there.</source>
        <translation>Die Testseite konnte nicht in „%1“ erstellt werden. Schaffen Sie dort Platz.</translation>
    </message>
    <message>
        <source>Jobs…</source>
        <translation>Aufträge…</translation>
    </message>
    <message>
        <source>Print the Rest</source>
        <translation>Rest drucken</translation>
    </message>
    <message>
        <source>Stopping after this photo…</source>
        <translation>Nach diesem Foto wird gestoppt …</translation>
    </message>
    <message>
        <source>Stop After This Photo</source>
        <translation>Nach diesem Foto stoppen</translation>
    </message>
    <message>
        <source>Stop at Once</source>
        <translation>Sofort stoppen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already there. Keep it, and give the new PDF a number, or replace it?</source>
        <translation>„%1“ gibt es schon. Behalten und dem neuen PDF eine Nummer geben, oder ersetzen?</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Beide behalten</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Stopping after this sheet…</source>
        <translation>Nach diesem Blatt wird gestoppt …</translation>
    </message>
    <message>
        <source>Stop After This Sheet</source>
        <translation>Nach diesem Blatt stoppen</translation>
    </message>
    <message>
        <source>Stop printing? What is not printed yet is canceled.</source>
        <translation>Drucken stoppen? Was noch nicht gedruckt ist, wird zurückgenommen.</translation>
    </message>
    <message>
        <source>Printed so far: %1 of %2 sheets. The rest is not printed when this window is closed.</source>
        <translation>Bisher gedruckt: %1 von %2 Blättern. Der Rest wird nicht gedruckt, wenn dieses Fenster geschlossen wird.</translation>
    </message>
    <message>
        <source>When this window is closed, the print server continues printing the %1 of %2 sheets that it has. The rest is not printed.</source>
        <translation>Wird dieses Fenster geschlossen, druckt der Druckserver die %1 von %2 Blättern, die er hat, weiter. Der Rest wird nicht gedruckt.</translation>
    </message>
    <message>
        <source>Stopping after this job…</source>
        <translation>Nach diesem Auftrag wird gestoppt …</translation>
    </message>
    <message>
        <source>Stop After This Job</source>
        <translation>Nach diesem Auftrag stoppen</translation>
    </message>
    <message>
        <source>Printed so far: %1 of %2 jobs. The rest is not printed when this window is closed.</source>
        <translation>Bisher gedruckt: %1 von %2 Aufträgen. Der Rest wird nicht gedruckt, wenn dieses Fenster geschlossen wird.</translation>
    </message>
    <message>
        <source>When this window is closed, the print server continues printing the %1 of %2 jobs that it has. The rest is not printed.</source>
        <translation>Wird dieses Fenster geschlossen, druckt der Druckserver die %1 von %2 Aufträgen, die er hat, weiter. Der Rest wird nicht gedruckt.</translation>
    </message>
</context>
<context>
    <name>printdialog::SettingsFile</name>
    <message>
        <source>The file %1 cannot be read: %2. Make it readable, or move it away.</source>
        <translation>Die Datei %1 kann nicht gelesen werden: %2. Machen Sie sie lesbar, oder verschieben Sie sie.</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
    <message>
        <source>Nothing could be saved in %1: %2. Make room there, or make it writable.</source>
        <translation>In %1 konnte nichts gespeichert werden: %2. Schaffen Sie dort Platz, oder machen Sie es beschreibbar.</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>Nothing could be saved in %1: another program is writing there. Try again.</source>
        <translation>In %1 konnte nichts gespeichert werden: Ein anderes Programm schreibt gerade dort. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetBar</name>
    <message>
        <source>Previous sheet</source>
        <translation>Voriges Blatt</translation>
    </message>
    <message>
        <source>Next sheet</source>
        <translation>Nächstes Blatt</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Blatt %1 von %2</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetPdf</name>
    <message>
        <source>There is not enough memory to print &quot;%1&quot;. Print it in several parts.</source>
        <translation>Der Speicher reicht nicht, um „%1“ zu drucken. Drucken Sie es in mehreren Teilen.</translation>
    </message>
    <message>
        <source>The PDF of &quot;%1&quot; could not be written: %2. Check the disk that it goes to.</source>
        <translation>Die PDF-Datei von „%1“ konnte nicht geschrieben werden: %2. Prüfen Sie den Zieldatenträger.</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetPlan</name>
    <message>
        <source>More than %1 prints are too many for one job. Print the photos in several parts.</source>
        <translation>Mehr als %1 Abzüge sind zu viel für einen Auftrag. Drucken Sie die Fotos in mehreren Teilen.</translation>
    </message>
    <message>
        <source>As many prints of a size as fit need that size. Choose a print size.</source>
        <translation>Für so viele Abzüge einer Größe, wie Platz haben, fehlt die Größe. Wählen Sie eine Bildgröße.</translation>
    </message>
    <message>
        <source>So many photos with these gaps leave no room for themselves on the paper&apos;s printable area of %1. Choose fewer, a smaller gap or a larger paper.</source>
        <translation>Für so viele Fotos mit diesen Abständen reicht der bedruckbare Bereich von %1 nicht. Wählen Sie weniger Fotos, einen kleineren Abstand oder ein größeres Papier.</translation>
    </message>
    <message>
        <source>A print of %1 has no room on the paper&apos;s printable area of %2. Choose a smaller size or a larger paper.</source>
        <translation>Ein Abzug von %1 hat im bedruckbaren Bereich von %2 keinen Platz. Wählen Sie eine kleinere Größe oder ein größeres Papier.</translation>
    </message>
    <message>
        <source>A print of %1 has no room in its place of %2 on the sheet. Choose a smaller size, or fewer rows and columns.</source>
        <translation>Ein Abzug von %1 hat an seinem Platz von %2 auf dem Blatt keinen Raum. Wählen Sie eine kleinere Größe oder weniger Zeilen und Spalten.</translation>
    </message>
    <message>
        <source>A border of %1 leaves nothing of a print of %2. Choose a narrower one.</source>
        <translation>Ein Rand von %1 lässt von einem Abzug von %2 nichts übrig. Wählen Sie einen schmaleren.</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetPrinter</name>
    <message>
        <source>Printed %1: %2</source>
        <translation>%1 gedruckt: %2</translation>
    </message>
    <message>
        <source>Sent %1 to %2 as job %3</source>
        <translation>%1 als Auftrag %3 an %2 gesendet</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not print %2 (job %3): %4. Look at the printer and print again.</source>
        <translation>Der Drucker „%1“ konnte %2 (Auftrag %3) nicht drucken: %4. Sehen Sie nach dem Drucker und drucken Sie noch einmal.</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>ohne Angabe von Gründen</translation>
    </message>
    <message>
        <source>The job %3 for %2 on the printer &quot;%1&quot; was canceled (%4).</source>
        <translation>Der Auftrag %3 für %2 auf dem Drucker „%1“ wurde abgebrochen (%4).</translation>
    </message>
    <message>
        <source>Printed %1 on %2 (job %3)</source>
        <translation>%1 auf %2 gedruckt (Auftrag %3)</translation>
    </message>
    <message>
        <source>The job %1 for %2 could not be canceled: %3</source>
        <translation>Der Auftrag %1 für %2 konnte nicht abgebrochen werden: %3</translation>
    </message>
    <message>
        <source>The outcome of %1 (job %2) is unknown: %3</source>
        <translation>Das Ergebnis von %1 (Auftrag %2) ist nicht bekannt: %3</translation>
    </message>
    <message>
        <source>%1 (job %2) is not printed yet: %3. The print server keeps it; &quot;cancel %2&quot; cancels it.</source>
        <translation>%1 (Auftrag %2) ist noch nicht gedruckt: %3. Der Druckserver behält ihn; „cancel %2“ nimmt ihn zurück.</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>ohne Angabe von Gründen</translation>
    </message>
    <message>
        <source>%1 (job %2) is not printed yet: %3. The printer keeps it; cancel it there.</source>
        <translation>%1 (Auftrag %2) ist noch nicht gedruckt: %3. Der Drucker behält ihn; nehmen Sie ihn dort zurück.</translation>
    </message>
    <message>
        <source>%1 copies of %2 are more than the %3 that a job can have. Print it in several parts.</source>
        <translation>%1 Exemplare von %2 sind mehr als die %3, die ein Auftrag haben kann. Drucken Sie sie in mehreren Teilen.</translation>
    </message>
    <message>
        <source>The outcome of %1 (job %2) is unknown.</source>
        <translation>Was aus %1 (Auftrag %2) geworden ist, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>%1 (job %2) was canceled.</source>
        <translation>%1 (Auftrag %2) wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Printed %1: page %2 of %3</source>
        <translation>%1 gedruckt: Seite %2 von %3</translation>
    </message>
</context>
<context>
    <name>printdialog::SummaryPage</name>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Summary of the job</source>
        <translation>Zusammenfassung des Auftrags</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchBar</name>
    <message>
        <source>Print new photos of this folder:</source>
        <translation>Neue Fotos dieses Ordners drucken:</translation>
    </message>
    <message>
        <source>Photos that arrive in the folder are printed as they come, each once and with the present choices, until this is switched off or the window is closed</source>
        <translation>Fotos, die im Ordner ankommen, werden gleich gedruckt, jedes einmal und mit den jetzigen Einstellungen, bis dies ausgeschaltet oder das Fenster geschlossen wird</translation>
    </message>
    <message>
        <source>Folder for new photos</source>
        <translation>Ordner für neue Fotos</translation>
    </message>
    <message>
        <source>Choose…</source>
        <comment>a folder</comment>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Folder for New Photos</source>
        <translation>Ordner für neue Fotos</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchLoop</name>
    <message>
        <source>The folder &quot;%1&quot; is there again.</source>
        <translation>Der Ordner „%1“ ist wieder da.</translation>
    </message>
    <message>
        <source>Photos that arrive in &quot;%1&quot; are printed on %2 and moved to &quot;%3&quot;.</source>
        <translation>Fotos, die in „%1“ ankommen, werden auf %2 gedruckt und nach „%3“ verschoben.</translation>
    </message>
    <message>
        <source>Photos that arrive in &quot;%1&quot; are printed on %2.</source>
        <translation>Fotos, die in „%1“ ankommen, werden auf %2 gedruckt.</translation>
    </message>
    <message>
        <source>The files that are there already are left alone: %1. With --existing, they are printed.</source>
        <translation>Dateien, die schon da sind und unberührt bleiben: %1. Mit --existing werden sie gedruckt.</translation>
    </message>
    <message>
        <source>The program was ended while it was being sent.</source>
        <translation>Das Programm wurde beendet, während es gesendet wurde.</translation>
    </message>
    <message>
        <source>It is unclear whether &quot;%1&quot; was printed. %2 It is not printed again by itself; if it has to be, set its time (&quot;touch&quot;) or copy it into the folder again.</source>
        <translation>Es ist unklar, ob „%1“ gedruckt wurde. %2 Es wird nicht von selbst noch einmal gedruckt; wenn es nötig ist, setzen Sie seine Zeit („touch“) oder kopieren Sie es noch einmal in den Ordner.</translation>
    </message>
    <message>
        <source>%1 It stays in the folder, and is not tried again.</source>
        <translation>%1 Die Datei bleibt im Ordner und wird nicht noch einmal versucht.</translation>
    </message>
    <message>
        <source>%1 It is now &quot;%2&quot;.</source>
        <translation>%1 Die Datei ist jetzt „%2“.</translation>
    </message>
    <message>
        <source>Printed photos stay in the folder, because they cannot be moved. %1</source>
        <translation>Gedruckte Fotos bleiben im Ordner, weil sie nicht verschoben werden können. %1</translation>
    </message>
    <message>
        <source>It was sent to another print server, %1.</source>
        <translation>Es wurde an einen anderen Druckserver gesendet, %1.</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchOrder</name>
    <message>
        <source>The built-in printer would leave its files in the watched folder, &quot;%1&quot;. Choose another folder for them.</source>
        <translation>Der eingebaute Drucker würde seine Dateien im überwachten Ordner „%1“ ablegen. Wählen Sie für sie einen anderen Ordner.</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchRecord</name>
    <message>
        <source>Another program watches the folder &quot;%1&quot; already. End it first, or choose another folder.</source>
        <translation>Ein anderes Programm überwacht den Ordner „%1“ schon. Beenden Sie es zuerst, oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The record of what was printed, &quot;%1&quot;, cannot be read: %2. Make it readable for you.</source>
        <translation>Die Aufzeichnung des Gedruckten, „%1“, kann nicht gelesen werden: %2. Machen Sie sie für sich lesbar.</translation>
    </message>
    <message>
        <source>The record of what was printed, &quot;%1&quot;, cannot be written: %2. Nothing is printed without it; make room for it, or make it writable for you.</source>
        <translation>Die Aufzeichnung des Gedruckten, „%1“, kann nicht geschrieben werden: %2. Ohne sie wird nichts gedruckt; schaffen Sie Platz, oder machen Sie sie für sich beschreibbar.</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchRun</name>
    <message>
        <source>The folder &quot;%1&quot; of %2 does not exist. Make it, or choose another one.</source>
        <translation>Den Ordner „%1“ von %2 gibt es nicht. Legen Sie ihn an, oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder, and %2 needs one. Choose a folder.</source>
        <translation>„%1“ ist kein Ordner, und %2 braucht einen. Wählen Sie einen Ordner.</translation>
    </message>
    <message>
        <source>You may not read the folder &quot;%1&quot; of %2. Change its permissions, or choose another one.</source>
        <translation>Sie dürfen den Ordner „%1“ von %2 nicht lesen. Ändern Sie seine Zugriffsrechte, oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>--printed and --watch name the same folder, &quot;%1&quot;. Choose another one for the printed photos.</source>
        <translation>--printed und --watch nennen denselben Ordner, „%1“. Wählen Sie einen anderen für die gedruckten Fotos.</translation>
    </message>
</context>
</TS>
