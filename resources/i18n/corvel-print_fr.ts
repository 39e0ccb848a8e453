<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AnnouncedPrinters</name>
    <message>
        <source>printers on the network are not listed, because Avahi is not running</source>
        <translation>les imprimantes du réseau ne sont pas listées, car Avahi n’est pas lancé</translation>
    </message>
    <message>
        <source>printers on the network are not listed, because Avahi does not answer</source>
        <translation>les imprimantes du réseau ne sont pas listées, car Avahi ne répond pas</translation>
    </message>
</context>
<context>
    <name>ArrangementText</name>
    <message>
        <source>fitted</source>
        <comment>a photo into its print size</comment>
        <translation>ajustée</translation>
    </message>
    <message>
        <source>Fit on the page</source>
        <translation>Ajuster à la page</translation>
    </message>
    <message>
        <source>filled</source>
        <comment>a print size by its photo</comment>
        <translation>remplie</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>Remplir la page</translation>
    </message>
    <message>
        <source>actual size</source>
        <comment>of a photo within its print size</comment>
        <translation>taille réelle</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>a scale</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>border %1</source>
        <translation>bordure %1</translation>
    </message>
    <message>
        <source>%1, turned by %2°</source>
        <translation>%1, tournée de %2°</translation>
    </message>
    <message>
        <source>Differs by photo</source>
        <translation>Diffère selon la photo</translation>
    </message>
    <message>
        <source>One photo on each sheet</source>
        <translation>Une photo par feuille</translation>
    </message>
    <message>
        <source>%1 rows, %2 columns</source>
        <translation>%1 lignes, %2 colonnes</translation>
    </message>
    <message>
        <source>As many as fit</source>
        <translation>Autant que possible</translation>
    </message>
    <message>
        <source>Contact sheet, %1 rows, %2 columns</source>
        <translation>Planche contact, %1 lignes, %2 colonnes</translation>
    </message>
    <message>
        <source>Two strips of %1 photos</source>
        <translation>Deux bandes de %1 photos</translation>
    </message>
    <message>
        <source>the same photo repeated</source>
        <translation>la même photo répétée</translation>
    </message>
    <message>
        <source>the next photos following</source>
        <translation>les photos suivantes</translation>
    </message>
    <message>
        <source>%1 pages on each side</source>
        <translation>%1 pages sur chaque face</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livret</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>of a document</comment>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Page affichée</translation>
    </message>
    <message>
        <source>odd only</source>
        <comment>pages</comment>
        <translation>impaires seulement</translation>
    </message>
    <message>
        <source>even only</source>
        <comment>pages</comment>
        <translation>paires seulement</translation>
    </message>
    <message>
        <source>last one first</source>
        <comment>pages</comment>
        <translation>dernière en premier</translation>
    </message>
    <message>
        <source>There are no pages after page %1.</source>
        <translation>Il n’y a plus de page après la page %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>%n photo</numerusform>
            <numerusform>%n photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>photos and pages</comment>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>No page of &quot;%1&quot; is printed.</source>
        <translation>Aucune page de «&#x202f;%1&#x202f;» n’est imprimée.</translation>
    </message>
</context>
<context>
    <name>BatchRun</name>
    <message>
        <source>%1 Printed before it: %2.</source>
        <translation>%1 Imprimé auparavant&#x202f;: %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Canceled; nothing more is printed.</source>
        <translation>Annulé&#xa0;; rien de plus ne sera imprimé.</translation>
    </message>
    <message>
        <source>Canceled; the jobs already sent were canceled, too.</source>
        <translation>Annulé&#xa0;; les tâches envoyées ont été retirées de l’imprimante.</translation>
    </message>
    <message>
        <source>--one-pdf is for the built-in printer, and this is &quot;%1&quot;. Leave it out, or name the built-in printer.</source>
        <translation>--one-pdf concerne l’imprimante intégrée, et celle-ci est «&#x202f;%1&#x202f;». Retirez-le, ou indiquez l’imprimante intégrée.</translation>
    </message>
</context>
<context>
    <name>BookletSides</name>
    <message>
        <source>A booklet is printed on both sides, turned on the short edge. Another choice does not allow that: look at &quot;%1&quot;.</source>
        <translation>Un livret s’imprime recto verso, retourné sur le bord court. Un autre choix ne le permet pas&#x202f;: voyez «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>A booklet is printed on both sides, turned on the short edge: &quot;%1&quot; is set to that.</source>
        <translation>Un livret s’imprime recto verso, retourné sur le bord court&#x202f;: «&#x202f;%1&#x202f;» est réglé ainsi.</translation>
    </message>
    <message>
        <source>A booklet is printed on both sides, turned on the short edge. This printer does not do that itself: make one PDF of it with the built-in printer, then print the odd pages of that PDF, and the even ones on their backs.</source>
        <translation>Un livret s’imprime recto verso, retourné sur le bord court. Cette imprimante ne le fait pas elle-même&#x202f;: faites-en un PDF avec l’imprimante intégrée, puis imprimez les pages impaires de ce PDF, et les paires à leur dos.</translation>
    </message>
</context>
<context>
    <name>ChoiceMarker</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>«&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (%2)</source>
        <translation>«&#x202f;%1&#x202f;» (%2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is only the beginning of a number; allowed for the option %2 are %3.</source>
        <translation>«&#x202f;%1&#x202f;» n’est que le début d’un nombre&#x202f;; valeurs possibles pour l’option %2&#x202f;: %3.</translation>
    </message>
    <message>
        <source>The option %1 has no choice &quot;%2&quot;; allowed are %3.</source>
        <translation>L’option %1 n’a pas de choix «&#x202f;%2&#x202f;»&#x202f;; choix possibles&#x202f;: %3.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 de plus</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 est réglé sur %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et que %2</translation>
    </message>
    <message>
        <source>%1 cannot be %2 while %3.</source>
        <translation>%1 ne peut pas être réglé sur %2 tant que %3.</translation>
    </message>
    <message>
        <source>The printer has no option &quot;%1&quot;; it has %2.</source>
        <translation>L’imprimante n’a pas d’option «&#x202f;%1&#x202f;»&#x202f;; options disponibles&#x202f;: %2.</translation>
    </message>
    <message>
        <source>Custom.VALUE (%1)</source>
        <translation>Custom.VALEUR (%1)</translation>
    </message>
    <message>
        <source>%1=VALUE (%2)</source>
        <translation>%1=VALEUR (%2)</translation>
    </message>
    <message>
        <source>Custom.WIDTHxHEIGHT%1 (from %2 to %3)</source>
        <translation>Custom.LARGEURxHAUTEUR%1 (de %2 à %3)</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the built-in printer, with this PPD instead of its own</source>
        <translation>l’imprimante intégrée, avec ce PPD au lieu du sien</translation>
    </message>
    <message>
        <source>refuse a conflicting choice at once (constraint, the default),
or check all choices together before printing (settings)</source>
        <translation>refuser aussitôt un choix incompatible (constraint, par défaut),
ou vérifier tous les choix avant d’imprimer (settings)</translation>
    </message>
    <message>
        <source>choose for an option of the printer; repeatable, in order</source>
        <translation>choix pour une option de l’imprimante&#x202f;; répétable, dans l’ordre</translation>
    </message>
    <message>
        <source>list the printers, one per line: name, description, state,
&quot;default&quot;; separated by tabs</source>
        <translation>lister les imprimantes, une par ligne&#x202f;: nom, description, état,
«&#x202f;par défaut&#x202f;»&#x202f;; séparés par des tabulations</translation>
    </message>
    <message>
        <source>list the printer&apos;s options with their choices and panels</source>
        <translation>lister les options de l’imprimante, leurs choix et leurs onglets</translation>
    </message>
    <message>
        <source>show the job in words: the paper, the copies, the placement and
what the panels say; with --batch as well as printing</source>
        <translation>afficher la tâche en clair&#x202f;: papier, copies, placement et ce que
disent les onglets&#x202f;; avec --batch, en plus de l’impression</translation>
    </message>
    <message>
        <source>save a picture of the dialog with each panel in DIR, exit</source>
        <translation>enregistrer une image de chaque onglet dans DIR, quitter</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>afficher cette aide</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>afficher la version</translation>
    </message>
    <message>
        <source>The value of --%1 is empty.</source>
        <translation>La valeur de --%1 est vide.</translation>
    </message>
    <message>
        <source>--ppd is for the built-in printer, and --printer names the queue &quot;%1&quot;.</source>
        <translation>--ppd concerne l’imprimante intégrée, mais --printer désigne la file «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>%1 and %2 exclude each other.</source>
        <translation>%1 et %2 s’excluent mutuellement.</translation>
    </message>
    <message>
        <source>show exactly what --batch would send, and send nothing</source>
        <translation>montrer exactement ce que --batch enverrait, sans rien envoyer</translation>
    </message>
    <message>
        <source>how long --batch follows its jobs at most (0: not at all); otherwise to
their end. It never waits longer than 10 seconds for a job that is held
or whose printer is stopped, nor than 10 minutes without any news: such a
job stays with the print server, and that is told, with exit status 0</source>
        <translation>durée maximale du suivi des tâches par --batch (0&#xa0;: aucun suivi)&#xa0;; sinon
jusqu’à leur fin. Jamais plus de 10 secondes pour une tâche retenue ou une
imprimante arrêtée, ni plus de 10 minutes sans nouvelles&#xa0;: la tâche reste
alors au serveur d’impression, ce qui est signalé, avec le code 0</translation>
    </message>
    <message>
        <source>the print server to ask, instead of this machine&apos;s own</source>
        <translation>le serveur d’impression à interroger, au lieu de celui de cette machine</translation>
    </message>
    <message>
        <source>lists, summary and --dry-run as JSON</source>
        <translation>listes, résumé et --dry-run en JSON</translation>
    </message>
    <message>
        <source>--json is for --list-printers, --list-options, --summary and --dry-run.</source>
        <translation>--json va avec --list-printers, --list-options, --summary et --dry-run.</translation>
    </message>
    <message>
        <source>--wait is for --batch.</source>
        <translation>--wait va avec --batch.</translation>
    </message>
    <message>
        <source>the whole photo on the page (fit, the default), the page filled
and the photo cropped (fill), or the photo by its file&apos;s resolution
(actual; 300 pixels per inch when the file names none)</source>
        <translation>la photo entière sur la page (fit, par défaut), la page remplie et la
photo rognée (fill), ou la photo selon la résolution de son fichier
(actual&#x202f;; 300 pixels par pouce si le fichier n’en indique aucune)</translation>
    </message>
    <message>
        <source>which part of a cropped photo is kept, in per cent from its left
and from its top (otherwise 50,50, the middle)</source>
        <translation>la partie conservée d’une photo rognée, en pour cent depuis sa gauche
et depuis son haut (sinon 50,50, le milieu)</translation>
    </message>
    <message>
        <source>--crop is for --scaling fill or actual; with fit nothing is cropped.</source>
        <translation>--crop va avec --scaling fill ou actual&#x202f;; avec fit, rien n’est rogné.</translation>
    </message>
    <message>
        <source>where the built-in printer leaves its files (otherwise the current
folder; with a window, Prints in your Pictures folder)</source>
        <translation>où l’imprimante intégrée enregistre ses fichiers (sinon le dossier
courant&#x202f;; avec une fenêtre, Prints dans votre dossier Images)</translation>
    </message>
    <message>
        <source>how many copies of each photo; otherwise the preset&apos;s, or 1</source>
        <translation>nombre d’exemplaires de chaque photo&#x202f;; sinon celui du préréglage, ou 1</translation>
    </message>
    <message>
        <source>--batch and --dry-run do not look for damage in photos,
and print what is left of them</source>
        <translation>--batch et --dry-run ne cherchent pas de dommages dans les
photos et impriment ce qu’il en reste</translation>
    </message>
    <message>
        <source>--no-check is for --batch and --dry-run.</source>
        <translation>--no-check va avec --batch et --dry-run.</translation>
    </message>
    <message>
        <source>There is no mode &quot;%1&quot;. Choose constraint or settings.</source>
        <translation>Le mode «&#xa0;%1&#xa0;» n’existe pas. Choisissez constraint ou settings.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a print server. Give it as HOST or HOST:PORT.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un serveur d’impression. Indiquez HOST ou HOST:PORT.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time to wait. Give a number of seconds from 0 to %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une durée d’attente. Indiquez un nombre de secondes de 0 à %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; copies cannot be printed. Give a number from 1 to %2.</source>
        <translation>«&#x202f;%1&#x202f;» exemplaires ne peuvent pas être imprimés. Indiquez un nombre de 1 à %2.</translation>
    </message>
    <message>
        <source>There is no scaling &quot;%1&quot;. Choose fit, fill or actual.</source>
        <translation>La mise à l’échelle «&#xa0;%1&#xa0;» n’existe pas. Choisissez fit, fill ou actual.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a crop. Give two numbers from 0 to 100, such as 50,0.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un cadrage. Indiquez deux nombres de 0 à 100, par exemple 50,0.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an option. Give it as KEY=CHOICE.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une option. Indiquez-la sous la forme KEY=CHOICE.</translation>
    </message>
    <message>
        <source>a print queue, or &quot;built-in&quot; for the built-in printer; with a preset
of it: QUEUE/PRESET. Or a printer&apos;s address, ipp://HOST/ipp/print,
which needs no print server. Otherwise your default queue, or else the
built-in printer</source>
        <translation>une file d’impression, ou «&#x202f;built-in&#x202f;» pour l’imprimante intégrée&#x202f;;
avec un de ses préréglages&#x202f;: QUEUE/PRÉRÉGLAGE. Ou l’adresse d’une
imprimante, ipp://HOST/ipp/print, sans serveur d’impression. Sinon
votre file par défaut, ou à défaut l’imprimante intégrée</translation>
    </message>
    <message>
        <source>the job&apos;s title at a print queue; otherwise the photo&apos;s name</source>
        <translation>le titre de la tâche dans une file d’attente&#x202f;; sinon le nom de la photo</translation>
    </message>
    <message>
        <source>--title is for print queues; the built-in printer names its files after the photos.</source>
        <translation>--title est pour les files d’attente&#x202f;; l’imprimante intégrée nomme ses fichiers d’après les photos.</translation>
    </message>
    <message>
        <source>--batch replaces files that the built-in printer has left before,
instead of numbering the new ones, and --preview earlier pictures;
a photo is never replaced</source>
        <translation>--batch remplace les fichiers déjà laissés par l’imprimante intégrée
au lieu de numéroter les nouveaux, et --preview les images déjà là&#x202f;;
une photo n’est jamais remplacée</translation>
    </message>
    <message>
        <source>save a picture of the page as the window shows it, 1200 pixels on its
longer side, and exit; of further photos in FILE-2.png, FILE-3.png, ...</source>
        <translation>enregistrer une image de la page telle que la fenêtre la montre, 1200 pixels
sur le grand côté, et quitter&#x202f;; les photos suivantes dans FILE-2.png,
FILE-3.png, ...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a picture. Give one that ends in .png.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un nom d’image. Indiquez-en un qui se termine par .png.</translation>
    </message>
    <message>
        <source>--overwrite is for --batch, --dry-run and --preview.</source>
        <translation>--overwrite va avec --batch, --dry-run et --preview.</translation>
    </message>
    <message>
        <source>the size of each print, such as 9x13cm, 35x45mm, 4x6in, or by name:
square, passport, wallet; otherwise the whole page</source>
        <translation>le format de chaque tirage, par exemple 9x13cm, 35x45mm, 4x6in, ou un nom&#x202f;:
square, passport, wallet&#x202f;; sinon toute la page</translation>
    </message>
    <message>
        <source>the photo larger or smaller than by its scaling, 1 to 1000</source>
        <translation>la photo plus grande ou plus petite que par sa mise à l’échelle, 1 à 1000</translation>
    </message>
    <message>
        <source>a border around each photo, within its size: 3mm, or 3mm,black</source>
        <translation>une bordure autour de chaque photo, dans son format&#x202f;: 3mm, ou 3mm,black</translation>
    </message>
    <message>
        <source>what stands below each photo of a layout</source>
        <translation>ce qui figure sous chaque photo d’une disposition</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a print size. Give one such as 10x15cm, 4x6in or passport, with sides from 5 mm to 2 m.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un format de tirage. Indiquez par exemple 10x15cm, 4x6in ou passport, avec des côtés de 5 mm à 2 m.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a scale. Give a number from 1 to 1000, in per cent.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas une échelle. Indiquez un nombre de 1 à 1000, en pour cent.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a border. Give a width from 0 to 100 mm, and a color if it is not to be white: 3mm,black.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas une bordure. Indiquez une largeur de 0 à 100 mm, et une couleur si elle n’est pas blanche&#x202f;: 3mm,black.</translation>
    </message>
    <message>
        <source>There is no caption &quot;%1&quot;. Choose none, name, date or both.</source>
        <translation>Il n’y a pas de légende «&#x202f;%1&#x202f;». Choisissez none, name, date ou both.</translation>
    </message>
    <message>
        <source>a preset of the printer, also of your default printer</source>
        <translation>un préréglage de l’imprimante, aussi de votre imprimante par défaut</translation>
    </message>
    <message>
        <source>--preset names the preset &quot;%1&quot;, and --printer the preset &quot;%2&quot;. Name one.</source>
        <translation>--preset nomme le préréglage «&#x202f;%1&#x202f;» et --printer le préréglage «&#x202f;%2&#x202f;». N’en nommez qu’un.</translation>
    </message>
    <message>
        <source>--preset is for print queues and the built-in printer, and &quot;%1&quot; is a printer&apos;s address. Use -o in its place.</source>
        <translation>--preset va avec les files d’attente et l’imprimante intégrée, et «&#x202f;%1&#x202f;» est l’adresse d’une imprimante. Utilisez plutôt -o.</translation>
    </message>
    <message>
        <source>--preset needs --printer where a window opens: it opens with the printer used last, which may have no such preset.</source>
        <translation>--preset a besoin de --printer quand une fenêtre s’ouvre&#x202f;: elle s’ouvre avec la dernière imprimante utilisée, qui n’a peut-être pas ce préréglage.</translation>
    </message>
    <message>
        <source>no window: print each photo that arrives in the folder, once, until the
program is ended (SIGTERM, Ctrl+C). It waits for a printer or a print
server that is away. The photos that are there at first are left alone;
those that cannot be printed go to the folder &quot;unprintable&quot; in it</source>
        <translation>sans fenêtre&#x202f;: imprimer une fois chaque photo qui arrive dans le dossier,
jusqu’à la fin du programme (SIGTERM, Ctrl+C). Il attend une imprimante ou
un serveur d’impression absent. Les photos présentes au début restent telles
quelles&#x202f;; celles qui ne s’impriment pas vont dans son dossier &quot;unprintable&quot;</translation>
    </message>
    <message>
        <source>where --watch moves photos once they are printed; otherwise they stay
where they are, and the program remembers them</source>
        <translation>où --watch déplace les photos une fois imprimées&#x202f;; sinon elles restent où
elles sont, et le programme les retient</translation>
    </message>
    <message>
        <source>--watch also prints the photos that are there at first</source>
        <translation>--watch imprime aussi les photos présentes au début</translation>
    </message>
    <message>
        <source>%1 is for --watch.</source>
        <translation>%1 va avec --watch.</translation>
    </message>
    <message>
        <source>--watch prints the photos of its folder, and &quot;%1&quot; is named, too. Leave one of them out.</source>
        <translation>--watch imprime les photos de son dossier, et «&#x202f;%1&#x202f;» est aussi nommé. Omettez l’un des deux.</translation>
    </message>
    <message>
        <source>--batch: the built-in printer makes one PDF of all sheets, NAME.pdf,
instead of one for each sheet</source>
        <translation>--batch&#x202f;: l’imprimante intégrée fait un seul PDF de toutes les feuilles,
NAME.pdf, au lieu d’un par feuille</translation>
    </message>
    <message>
        <source>--one-pdf is for --batch and --dry-run.</source>
        <translation>--one-pdf va avec --batch et --dry-run.</translation>
    </message>
    <message>
        <source>no window: apply the options, print, exit; of what the window has
saved only the print position is used, so that a script gets the same
each time</source>
        <translation>sans fenêtre&#x202f;: appliquer les options, imprimer, quitter&#x202f;; de ce que la
fenêtre a enregistré, seule la position d’impression est utilisée, pour
qu’un script obtienne chaque fois la même chose</translation>
    </message>
    <message>
        <source>--%1 stands alone, without photos and other options.</source>
        <translation>--%1 s’emploie seul, sans photos ni autres options.</translation>
    </message>
    <message>
        <source>have the programs that print through the desktop&apos;s portal use this
dialog: sets one key of your portals.conf, and says in which file.
Needs the package corvel-print-portal</source>
        <translation>faire utiliser cette boîte de dialogue aux programmes qui impriment par le
portail du bureau&#x202f;: définit une clé de votre portals.conf, et dit dans
quel fichier.
Nécessite le paquet corvel-print-portal</translation>
    </message>
    <message>
        <source>remove that key again</source>
        <translation>retirer cette clé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a layout. Give rows and columns from 1 to 20 (2x3), fit, contact, strips:2 to strips:4, pages:2, 4, 6, 9 or 16, or booklet.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas une disposition. Donnez des lignes et colonnes de 1 à 20 (2x3), fit, contact, strips:2 à strips:4, pages:2, 4, 6, 9 ou 16, ou booklet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say which pages. Give page numbers from 1 on and ranges, such as 1-3,7,12-.</source>
        <translation>«&#x202f;%1&#x202f;» ne dit pas quelles pages. Donnez des numéros de page à partir de 1 et des plages, comme 1-3,7,12-.</translation>
    </message>
    <message>
        <source>There is no set of pages &quot;%1&quot;. Choose all, odd or even.</source>
        <translation>Il n’y a pas de jeu de pages «&#x202f;%1&#x202f;». Choisissez all, odd ou even.</translation>
    </message>
    <message>
        <source>several photos on a sheet: ROWSxCOLUMNS (2x3); fit, as many of the size
as fit; contact or contact:ROWSxCOLUMNS, a contact sheet; strips or
strips:NUMBER, two strips of 2 to 4 photos. With &quot;,repeat&quot; each photo
fills its sheet; also &quot;,gap=2mm&quot; and &quot;,marks&quot; for cut marks. Of a
document: pages:2, 4, 6, 9 or 16 on each sheet, or booklet</source>
        <translation>plusieurs photos par feuille&#x202f;: LIGNESxCOLONNES (2x3)&#x202f;; fit, autant de ce
format que possible&#x202f;; contact ou contact:LIGNESxCOLONNES, une planche-contact&#x202f;;
strips ou strips:NOMBRE, deux bandes de 2 à 4 photos. Avec «&#x202f;,repeat&#x202f;», chaque
photo remplit sa feuille&#x202f;; aussi «&#x202f;,gap=2mm&#x202f;», et «&#x202f;,marks&#x202f;» pour les traits de coupe. Pour un
document&#x202f;: pages:2, 4, 6, 9 ou 16 par feuille, ou booklet</translation>
    </message>
    <message>
        <source>which pages of documents: 1-3,7,12- (12- is page 12 to the last one);
otherwise all</source>
        <translation>quelles pages des documents&#x202f;: 1-3,7,12- (12-&#x202f;: de la page 12 à la
dernière)&#x202f;; sinon toutes</translation>
    </message>
    <message>
        <source>only pages with odd or with even numbers</source>
        <translation>seulement les pages de numéro impair ou pair</translation>
    </message>
    <message>
        <source>print the last sheet first</source>
        <translation>imprimer la dernière feuille en premier</translation>
    </message>
    <message>
        <source>Usage: corvel-print [options] FILE...
Prints photos and PDF documents: from a window, or at once with --batch.
FILE can be - for the standard input, or a print list, LIST.json.

Options:
</source>
        <translation>Utilisation&#x202f;: corvel-print [options] FILE...
Imprime des photos et des documents PDF&#x202f;: dans une fenêtre, ou aussitôt avec --batch.
FILE peut être - pour l’entrée standard, ou une liste d’impression, LIST.json.

Options&#x202f;:
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
Code de retour&#x202f;:
  0  imprimé, ou tâche demandée accomplie
  1  refusé ou échoué&#x202f;; une ligne sur l’erreur standard dit quoi et pourquoi. Une photo
     dont l’image est endommagée est laissée de côté, avec sa propre ligne, et les autres
     sont imprimées
  2  mauvaise utilisation

Exemples&#x202f;:
  corvel-print --printer built-in vacances.jpg
  corvel-print --batch -o Red=12 -o Quality=Fine -o Overcoat=Matte --output tirages *.jpg
  corvel-print --batch --size passport --scaling fill --layout fit portrait.jpg
  corvel-print --batch --pages 2-9 --layout booklet -o Duplex=DuplexTumble report.pdf
</translation>
    </message>
    <message>
        <source>--batch needs a file to print.</source>
        <translation>--batch exige un fichier à imprimer.</translation>
    </message>
    <message>
        <source>--dry-run needs a file.</source>
        <translation>--dry-run exige un fichier.</translation>
    </message>
    <message>
        <source>--preview needs a file.</source>
        <translation>--preview exige un fichier.</translation>
    </message>
    <message>
        <source>A print list says itself which files are printed and how. Give it without other files, and without %1.</source>
        <translation>Une liste d’impression dit elle-même quels fichiers sont imprimés et comment. Donnez-la sans autres fichiers et sans %1.</translation>
    </message>
    <message>
        <source>&quot;-&quot; reads one file from the standard input. Give it once.</source>
        <translation>«&#x202f;-&#x202f;» lit un fichier sur l’entrée standard. Donnez-le une seule fois.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file on this computer. Copy it here first.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un fichier de cet ordinateur. Copiez-le d’abord ici.</translation>
    </message>
</context>
<context>
    <name>CommonValue</name>
    <message>
        <source>Several</source>
        <translation>Différents</translation>
    </message>
</context>
<context>
    <name>Console</name>
    <message>
        <source>Standard output could not be written to: %1. Send it to another place.</source>
        <translation>Impossible d’écrire sur la sortie standard&#x202f;: %1. Redirigez-la ailleurs.</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>Et %n autre.</numerusform>
            <numerusform>Et %n autres.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CupsConnection</name>
    <message>
        <source>nothing answers at %1</source>
        <translation>rien ne répond à l’adresse %1</translation>
    </message>
    <message>
        <source>no printer can have this name</source>
        <translation>aucune imprimante ne peut porter ce nom</translation>
    </message>
    <message>
        <source>it gave no answer within %1 s</source>
        <translation>il n’a pas répondu en %1 s</translation>
    </message>
    <message>
        <source>the connection broke</source>
        <translation>la connexion a été interrompue</translation>
    </message>
    <message>
        <source>its answer is too large or malformed</source>
        <translation>sa réponse est trop longue ou mal formée</translation>
    </message>
    <message>
        <source>this is not a printer&apos;s address</source>
        <translation>ce n’est pas une adresse d’imprimante</translation>
    </message>
    <message>
        <source>its certificate is not trusted</source>
        <translation>son certificat n’est pas fiable</translation>
    </message>
    <message>
        <source>it wants a password, which would cross the network unencrypted</source>
        <translation>un mot de passe est demandé, qui traverserait le réseau sans chiffrement</translation>
    </message>
    <message>
        <source>it has refused the name or the password %1 times</source>
        <translation>le nom ou le mot de passe a été refusé %1 fois</translation>
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
        <translation>%1 po</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>de %1 à %2</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>%1 chiffres</translation>
    </message>
    <message>
        <source>%1 to %2 digits</source>
        <translation>%1 à %2 chiffres</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 caractères</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>%1 à %2 caractères</translation>
    </message>
    <message>
        <source>entered, not shown</source>
        <translation>saisi, non affiché</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a value&apos;s name and the value</comment>
        <translation>%1&#x202f;: %2</translation>
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
        <translation>%1 × %2 po</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>inches</comment>
        <translation>po</translation>
    </message>
    <message>
        <source>a time from %1 to %2</source>
        <translation>une heure de %1 à %2</translation>
    </message>
</context>
<context>
    <name>IntakeText</name>
    <message>
        <source>The program has stopped sending &quot;%1&quot;. Nothing was printed; print again.</source>
        <translation>Le programme n’envoie plus rien de «&#xa0;%1&#xa0;». Rien n’a été imprimé&#x202f;; imprimez à nouveau.</translation>
    </message>
    <message>
        <source>The program sent nothing of &quot;%1&quot;, so nothing was printed.</source>
        <translation>Le programme n’a rien envoyé de «&#xa0;%1&#xa0;»&#xa0;: rien n’a donc été imprimé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be printed: a document may have %2. Print fewer pages at a time.</source>
        <translation>«&#xa0;%1&#xa0;» est trop volumineux pour être imprimé&#xa0;: un document peut avoir %2. Imprimez moins de pages à la fois.</translation>
    </message>
    <message>
        <source>The program sent &quot;%1&quot; in a format that cannot be printed: only PDF and PostScript can.</source>
        <translation>Le programme a envoyé «&#xa0;%1&#xa0;» dans un format qui ne peut pas être imprimé&#xa0;: seuls PDF et PostScript le peuvent.</translation>
    </message>
    <message>
        <source>The program sent &quot;%1&quot; as PostScript, which needs Ghostscript. Install the package ghostscript and print again.</source>
        <translation>Le programme a envoyé «&#xa0;%1&#xa0;» en PostScript, ce qui demande Ghostscript. Installez le paquet ghostscript, puis imprimez à nouveau.</translation>
    </message>
    <message>
        <source>The program sent &quot;%1&quot; as PostScript that Ghostscript cannot convert, so nothing was printed.</source>
        <translation>Le programme a envoyé «&#xa0;%1&#xa0;» dans un PostScript que Ghostscript ne peut pas convertir&#xa0;: rien n’a donc été imprimé.</translation>
    </message>
    <message>
        <source>There is not enough memory for &quot;%1&quot;. Close other programs and print again.</source>
        <translation>La mémoire ne suffit pas pour «&#xa0;%1&#xa0;». Fermez d’autres programmes, puis imprimez à nouveau.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read from the program, so nothing was printed.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être lu depuis le programme&#xa0;: rien n’a donc été imprimé.</translation>
    </message>
</context>
<context>
    <name>IppOptions</name>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
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
        <translation>Papier</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finition</translation>
    </message>
    <message>
        <source>Further options</source>
        <translation>Autres options</translation>
    </message>
    <message>
        <source>Page sizes of the printer left out because they cannot be used: %1.</source>
        <translation>Formats de page de l’imprimante laissés de côté car inutilisables&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Options left out because they have no usable values: %1.</source>
        <translation>Options laissées de côté car sans valeur utilisable&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Values of options left out because they are repeated or cannot be used: %1.</source>
        <translation>Valeurs d’options laissées de côté car répétées ou inutilisables&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Defaults left out because they are not among the choices: %1.</source>
        <translation>Valeurs par défaut laissées de côté car absentes des choix&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Rules about choices left out because they are too many: %1.</source>
        <translation>Règles sur les choix laissées de côté car trop nombreuses&#x202f;: %1.</translation>
    </message>
</context>
<context>
    <name>JobFollowing</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>waiting for the printer</source>
        <translation>en attente de l’imprimante</translation>
    </message>
    <message>
        <source>held</source>
        <translation>retenue</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>impression en cours</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>annulée</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>imprimée</translation>
    </message>
    <message>
        <source>it was started again and does not know job %1</source>
        <translation>il a été redémarré et ne connaît pas la tâche %1</translation>
    </message>
    <message>
        <source>the print server does not answer; asking again</source>
        <translation>le serveur d’impression ne répond pas&#xa0;; il est interrogé de nouveau</translation>
    </message>
</context>
<context>
    <name>JobPlan</name>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
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
        <translation>%1, le fichier tel quel</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Octets</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>%1 (not shown)</source>
        <comment>the option of a password</comment>
        <translation>%1 (non affiché)</translation>
    </message>
    <message>
        <source>%1, %2 from the left, %3 from the top</source>
        <translation>%1, à %2 de la gauche, à %3 du haut</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Feuille</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>Pages&#x202f;: %1</translation>
    </message>
    <message>
        <source>Document: %1</source>
        <translation>Document&#x202f;: %1</translation>
    </message>
    <message>
        <source>Sheets</source>
        <translation>Feuilles</translation>
    </message>
    <message>
        <source>%1 to %2 of %3</source>
        <translation>%1 à %2 sur %3</translation>
    </message>
</context>
<context>
    <name>JobSubmission</name>
    <message>
        <source>The document &quot;%1&quot; is not sent, because its type has a control character in it.</source>
        <translation>Le document «&#x202f;%1&#x202f;» n’est pas envoyé, car son type contient un caractère de contrôle.</translation>
    </message>
    <message>
        <source>it accepted the job without giving it a number</source>
        <translation>il a accepté la tâche sans lui donner de numéro</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because this cannot be an option&apos;s keyword. Leave it out.</source>
        <translation>L’option «&#x202f;%1&#x202f;» n’est pas envoyée, car ce ne peut être le mot-clé d’une option. Ne l’indiquez pas.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because its value has a line break or another control character in it. Choose another value.</source>
        <translation>L’option «&#x202f;%1&#x202f;» n’est pas envoyée, car sa valeur contient un saut de ligne ou un autre caractère de contrôle. Choisissez une autre valeur.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because CUPS misreads a value that begins with a brace. Choose another value.</source>
        <translation>L’option «&#x202f;%1&#x202f;» n’est pas envoyée, car CUPS interprète mal une valeur qui commence par une accolade. Choisissez une autre valeur.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because its value is longer than %2 bytes. Choose another value.</source>
        <translation>L’option «&#x202f;%1&#x202f;» n’est pas envoyée, car sa valeur dépasse %2 octets. Choisissez une autre valeur.</translation>
    </message>
    <message>
        <source>%1 copies cannot be printed. Choose a number from 1 to %2.</source>
        <translation>Impossible d’imprimer en %1 copies. Choisissez un nombre de 1 à %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not sent, because the printer cannot read a PDF, and this photo does not go to it as it is. Choose a borderless paper and fill it with a JPEG, or set up a queue for the printer in the printer settings.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas envoyé, car l’imprimante ne sait pas lire le PDF et cette photo ne peut pas être envoyée telle quelle. Choisissez un papier sans marge et remplissez-le avec un JPEG, ou configurez l’imprimante dans les paramètres d’impression.</translation>
    </message>
    <message>
        <source>%1 copies cannot be printed. The printer makes at most %2 at a time; choose fewer.</source>
        <translation>Impossible d’imprimer %1 exemplaires. L’imprimante en fait au plus %2 à la fois&#x202f;; choisissez-en moins.</translation>
    </message>
    <message>
        <source>it wants a password, which would cross the network unencrypted</source>
        <translation>un mot de passe est demandé, qui traverserait le réseau sans chiffrement</translation>
    </message>
</context>
<context>
    <name>JobSummary</name>
    <message>
        <source>Paper size</source>
        <translation>Format du papier</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Placement</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>Listings</name>
    <message>
        <source>default</source>
        <translation>par défaut</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>Log In</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>The print server %1 wants a user name and a password.</source>
        <translation>Le serveur d’impression %1 demande un nom d’utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; on %2 wants a user name and a password.</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» sur %2 demande un nom d’utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>Le nom d’utilisateur ou le mot de passe n’a pas été accepté.</translation>
    </message>
    <message>
        <source>They are kept until the program ends.</source>
        <translation>Ils sont gardés jusqu’à la fin du programme.</translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation>Se &amp;connecter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>&amp;Nom d’utilisateur&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Mot de passe&#x202f;:</translation>
    </message>
</context>
<context>
    <name>Logins</name>
    <message>
        <source>it wants a user name and a password, and none were entered</source>
        <translation>un nom d’utilisateur et un mot de passe sont demandés, et rien n’a été saisi</translation>
    </message>
    <message>
        <source>it wants a user name and a password</source>
        <translation>un nom d’utilisateur et un mot de passe sont demandés</translation>
    </message>
</context>
<context>
    <name>NumericChoices</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1 to %2 in steps of %3</source>
        <translation>%1 à %2 par pas de %3</translation>
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
        <translation>Texte</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Choix</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Onglet</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Choix possibles</translation>
    </message>
</context>
<context>
    <name>OwnJob</name>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>sans en donner la raison</translation>
    </message>
    <message>
        <source>The print server refused to list your jobs (%1). Ask its administrator.</source>
        <translation>Le serveur d’impression a refusé d’énumérer vos tâches (%1). Adressez-vous à son administrateur.</translation>
    </message>
    <message>
        <source>The print server could not list your jobs (%1). Try again, or check its log.</source>
        <translation>Le serveur d’impression n’a pas pu énumérer vos tâches (%1). Réessayez ou consultez son journal.</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be canceled: %3</source>
        <translation>La tâche %1 (%2) n’a pas pu être annulée&#x202f;: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be held: %3</source>
        <translation>La tâche %1 (%2) n’a pas pu être retenue&#x202f;: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be released: %3</source>
        <translation>La tâche %1 (%2) n’a pas pu être libérée&#x202f;: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be printed again: %3</source>
        <translation>La tâche %1 (%2) n’a pas pu être réimprimée&#x202f;: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) cannot be printed again, because the print server has not kept its document. Open the photo in this program and print it from there.</source>
        <translation>La tâche %1 (%2) ne peut pas être réimprimée, car le serveur d’impression n’a pas gardé son document. Ouvrez la photo dans ce programme et imprimez-la de là.</translation>
    </message>
    <message>
        <source>Job %1 (%2) has moved on meanwhile. Look at its state.</source>
        <translation>La tâche %1 (%2) a avancé entre-temps. Regardez son état.</translation>
    </message>
</context>
<context>
    <name>PlacementText</name>
    <message>
        <source>%1 × %2 in</source>
        <translation>%1 × %2 po</translation>
    </message>
    <message>
        <source>%1 × %2 cm</source>
        <translation>%1 × %2 cm</translation>
    </message>
    <message>
        <source>%1 pixels per inch (the file names none)</source>
        <translation>%1 pixels par pouce (non indiqués par le fichier)</translation>
    </message>
    <message>
        <source>%1 pixels per inch</source>
        <translation>%1 pixels par pouce</translation>
    </message>
    <message>
        <source>%1 % cut off</source>
        <translation>%1 % rognés</translation>
    </message>
    <message>
        <source>Page of %1</source>
        <comment>and its size</comment>
        <translation>Page de %1</translation>
    </message>
    <message>
        <source>printed at %1 %</source>
        <translation>imprimée à %1 %</translation>
    </message>
</context>
<context>
    <name>PluginGuard</name>
    <message>
        <source>an error without a description</source>
        <translation>une erreur sans description</translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>it is not a folder</source>
        <translation>ce n’est pas un dossier</translation>
    </message>
    <message>
        <source>it has no readable Contents/Info.json</source>
        <translation>il n’a pas de Contents/Info.json lisible</translation>
    </message>
    <message>
        <source>its Info.json is larger than 64 KiB</source>
        <translation>son Info.json dépasse 64 Kio</translation>
    </message>
    <message>
        <source>its Info.json is not a JSON object</source>
        <translation>son Info.json n’est pas un objet JSON</translation>
    </message>
    <message>
        <source>its Info.json has no &quot;CFBundleIdentifier&quot;</source>
        <translation>son Info.json n’a pas de «&#x202f;CFBundleIdentifier&#x202f;»</translation>
    </message>
    <message>
        <source>the &quot;CFBundleExecutable&quot; of its Info.json is not a plain file name</source>
        <translation>«&#x202f;CFBundleExecutable&#x202f;» dans son Info.json n’est pas un simple nom de fichier</translation>
    </message>
    <message>
        <source>The plug-in bundle &quot;%1&quot; cannot be used: %2. Install it again.</source>
        <translation>Le module «&#x202f;%1&#x202f;» est inutilisable&#x202f;: %2. Réinstallez-le.</translation>
    </message>
    <message>
        <source>it has no module &quot;%1&quot;</source>
        <translation>la bibliothèque «&#x202f;%1&#x202f;» y manque</translation>
    </message>
    <message>
        <source>its identifier &quot;%1&quot; is not the one that its module was built for</source>
        <translation>son identifiant «&#x202f;%1&#x202f;» n’est pas celui pour lequel sa bibliothèque a été construite</translation>
    </message>
    <message>
        <source>it offers no panel for this printer</source>
        <translation>il ne propose aucun onglet pour cette imprimante</translation>
    </message>
    <message>
        <source>The printer&apos;s own panels (%1) are not installed in %2; it prints without them.</source>
        <translation>Les pages propres à l’imprimante (%1) ne sont pas installées dans %2&#x202f;; elle imprime sans elles.</translation>
    </message>
    <message>
        <source>its module is not a print-dialog plug-in</source>
        <translation>sa bibliothèque n’est pas une extension de la boîte de dialogue d’impression</translation>
    </message>
    <message>
        <source>The plug-in of the bundle &quot;%1&quot; has failed: %2. Update the plug-in.</source>
        <translation>Le module «&#x202f;%1&#x202f;» a échoué&#x202f;: %2. Mettez le module à jour.</translation>
    </message>
</context>
<context>
    <name>PortalChoices</name>
    <message>
        <source>This printer does not have what the program asks for: %1.</source>
        <translation>Cette imprimante n’a pas ce que le programme demande&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;</source>
        <comment>an option and its choice</comment>
        <translation>%1 «&#xa0;%2&#xa0;»</translation>
    </message>
</context>
<context>
    <name>PortalSwitch</name>
    <message>
        <source>Other programs reach this dialog through %1, which is not installed. Get it with the package %1.</source>
        <translation>Les autres programmes atteignent cette boîte de dialogue par %1, qui n’est pas installé. Le paquet %1 le fournit.</translation>
    </message>
    <message>
        <source>%1 %2 does not let each user choose: the installed package decides for everybody. Programs use this dialog while %3 is installed; install or remove it.</source>
        <translation>%1 %2 ne laisse pas le choix à chaque utilisateur&#x202f;: le paquet installé décide pour tous. Les programmes utilisent cette boîte de dialogue tant que %3 est installé&#x202f;; installez-le ou retirez-le.</translation>
    </message>
    <message>
        <source>The part of this program that other programs print with is not installed. Get it with the package %1.</source>
        <translation>La partie de ce programme avec laquelle les autres impriment n’est pas installée. Le paquet %1 la fournit.</translation>
    </message>
    <message>
        <source>It is not known which desktop this is: XDG_CURRENT_DESKTOP is not set. Run it in a terminal of your desktop.</source>
        <translation>Le bureau n’est pas connu&#x202f;: XDG_CURRENT_DESKTOP n’est pas définie. Lancez-le dans un terminal de votre bureau.</translation>
    </message>
    <message>
        <source>The file %1 is ignored by %2, because of its line %3. Correct that line or remove the file.</source>
        <translation>Le fichier %1 est ignoré par %2 à cause de sa ligne %3. Corrigez cette ligne ou retirez le fichier.</translation>
    </message>
    <message>
        <source>The file %1 was changed just now. Try again.</source>
        <translation>Le fichier %1 vient d’être modifié. Réessayez.</translation>
    </message>
    <message>
        <source>It takes effect when you log in the next time, or at once with: %1</source>
        <translation>Prend effet à la prochaine ouverture de session, ou aussitôt avec&#x202f;: %1</translation>
    </message>
    <message>
        <source>The version of %1 cannot be found out. Before 1.17 it does not read this file, and the installed package decides.</source>
        <translation>La version de %1 est introuvable. Avant 1.17, il ne lit pas ce fichier, et le paquet installé décide.</translation>
    </message>
    <message>
        <source>Already so: %1 has &quot;%2&quot;.</source>
        <translation>C’est déjà le cas&#x202f;: %1 contient «&#x202f;%2&#x202f;».</translation>
    </message>
    <message>
        <source>%1 has &quot;%2&quot; now.</source>
        <translation>%1 contient maintenant «&#x202f;%2&#x202f;».</translation>
    </message>
    <message>
        <source>Made %1, a copy of %3, with &quot;%2&quot;.</source>
        <translation>%1 a été créé, une copie de %3 avec «&#x202f;%2&#x202f;».</translation>
    </message>
    <message>
        <source>Made %1, with &quot;%2&quot;.</source>
        <translation>%1 a été créé, avec «&#x202f;%2&#x202f;».</translation>
    </message>
    <message>
        <source>The file %1 cannot be removed: %2.</source>
        <translation>Le fichier %1 ne peut pas être retiré&#x202f;: %2.</translation>
    </message>
    <message>
        <source>Removed %1, which held nothing else of its own.</source>
        <translation>%1 a été retiré&#x202f;; il ne contenait rien d’autre en propre.</translation>
    </message>
    <message>
        <source>%1 does not name this dialog any more.</source>
        <translation>%1 ne nomme plus cette boîte de dialogue.</translation>
    </message>
    <message>
        <source>The file %1 of the system has &quot;%2&quot;, for all its users. Only an administrator can change it.</source>
        <translation>Le fichier %1 du système contient «&#x202f;%2&#x202f;», pour tous ses utilisateurs. Seul un administrateur peut le modifier.</translation>
    </message>
    <message>
        <source>Already so: %1 does not name this dialog.</source>
        <translation>C’est déjà le cas&#x202f;: %1 ne nomme pas cette boîte de dialogue.</translation>
    </message>
    <message>
        <source>Already so: no file names this dialog.</source>
        <translation>C’est déjà le cas&#x202f;: aucun fichier ne nomme cette boîte de dialogue.</translation>
    </message>
</context>
<context>
    <name>PositionTestPage</name>
    <message>
        <source>The vertical line is %1 mm from the left edge, and the horizontal one %1 mm from the top edge, if the printer prints in its place. Measure both, and type what you measured.</source>
        <translation>La ligne verticale est à %1 mm du bord gauche, et l’horizontale à %1 mm du bord supérieur, si l’imprimante imprime au bon endroit. Mesurez les deux, et saisissez ce que vous avez mesuré.</translation>
    </message>
</context>
<context>
    <name>PpdCheck</name>
    <message>
        <source>&quot;%1&quot; cannot be run: %2</source>
        <translation>impossible de lancer «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>the system offers no sandbox</source>
        <translation>le système n’offre pas d’environnement isolé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends with status %2</source>
        <translation>«&#x202f;%1&#x202f;» se termine avec le code %2</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used, since it could not be checked safely: %2. Install corvel-print again.</source>
        <translation>Le PPD «&#x202f;%1&#x202f;» n’est pas utilisé, car il n’a pas pu être essayé sans risque&#x202f;: %2. Réinstallez corvel-print.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used, since this computer was too busy to check it. Try again later.</source>
        <translation>Le PPD «&#x202f;%1&#x202f;» n’est pas utilisé, car cet ordinateur était trop occupé pour l’essayer. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used: libcups does not finish reading it. Fetch another from the printer&apos;s maker.</source>
        <translation>Le PPD «&#x202f;%1&#x202f;» n’est pas utilisé&#x202f;: libcups n’en vient pas à bout. Procurez-vous-en un autre auprès du fabricant de l’imprimante.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used: it makes libcups crash. Fetch another from the printer&apos;s maker.</source>
        <translation>Le PPD «&#x202f;%1&#x202f;» n’est pas utilisé&#x202f;: il fait planter libcups. Procurez-vous-en un autre auprès du fabricant de l’imprimante.</translation>
    </message>
</context>
<context>
    <name>PpdDocument</name>
    <message>
        <source>The translations are left out: there are too many.</source>
        <translation>Les traductions sont ignorées&#x202f;: il y en a trop.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; repeats %2 of its choices; the first of each counts.</source>
        <translation>Choix répétés de l’option «&#x202f;%1&#x202f;»&#x202f;: %2&#x202f;; le premier de chacun compte.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is left out: it has no choices.</source>
        <translation>L’option «&#x202f;%1&#x202f;» est ignorée&#x202f;: elle n’a aucun choix.</translation>
    </message>
    <message>
        <source>Page sizes left out because they have no dimensions: %1.</source>
        <translation>Formats de papier ignorés, car sans dimensions&#x202f;: %1.</translation>
    </message>
    <message>
        <source>The default page size is not one of the printer&apos;s; &quot;%1&quot; takes its place.</source>
        <translation>Le format de papier par défaut n’est pas de cette imprimante&#x202f;; «&#x202f;%1&#x202f;» le remplace.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; cannot be used: line %2: %3. Correct it or fetch another from the printer&apos;s maker.</source>
        <translation>Le PPD «&#x202f;%1&#x202f;» est inutilisable&#x202f;: ligne %2&#x202f;: %3. Corrigez-le ou procurez-vous-en un autre auprès du fabricant de l’imprimante.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; has no page size that can be printed on. Correct it or fetch another from the printer&apos;s maker.</source>
        <translation>Le PPD «&#x202f;%1&#x202f;» n’a aucun format de papier imprimable. Corrigez-le ou procurez-vous-en un autre auprès du fabricant de l’imprimante.</translation>
    </message>
    <message>
        <source>Texts are left out because they are in another encoding; keywords take their place.</source>
        <translation>Des textes dans un autre encodage sont ignorés&#x202f;; des mots-clés les remplacent.</translation>
    </message>
    <message>
        <source>The page sizes have no dimensions; those of their names are assumed, or else the usual ones.</source>
        <translation>Les formats de papier n’ont pas de dimensions&#x202f;; celles de leurs noms sont supposées, ou à défaut les dimensions usuelles.</translation>
    </message>
</context>
<context>
    <name>PpdFile</name>
    <message>
        <source>its end is missing</source>
        <translation>la fin manque</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>il est endommagé</translation>
    </message>
    <message>
        <source>The compressed PPD &quot;%1&quot; cannot be expanded: %2. Copy it again from where it came from.</source>
        <translation>Le PPD compressé «&#x202f;%1&#x202f;» ne peut pas être décompressé&#x202f;: %2. Copiez-le de nouveau depuis son origine.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a directory. Name the PPD file itself.</source>
        <translation>«&#x202f;%1&#x202f;» est un dossier. Indiquez le fichier PPD lui-même.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a device or a pipe, not a file. Name the printer&apos;s PPD file.</source>
        <translation>«&#x202f;%1&#x202f;» est un périphérique ou un tube, pas un fichier. Indiquez le fichier PPD de l’imprimante.</translation>
    </message>
    <message>
        <source>There is no PPD &quot;%1&quot;. Check the path.</source>
        <translation>Il n’y a pas de PPD «&#x202f;%1&#x202f;». Vérifiez le chemin.</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; cannot be read: %2. Check the file and its permissions.</source>
        <translation>Le PPD «&#x202f;%1&#x202f;» ne peut pas être lu&#x202f;: %2. Vérifiez le fichier et ses droits d’accès.</translation>
    </message>
</context>
<context>
    <name>PpdInspection</name>
    <message>
        <source>it is not printable ASCII</source>
        <translation>caractères autres que l’ASCII imprimable</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>plus de %1 caractères</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>il dépasse %1 Mio</translation>
    </message>
    <message>
        <source>the value in line %1 is longer than %2 bytes</source>
        <translation>la valeur de la ligne %1 dépasse %2 octets</translation>
    </message>
    <message>
        <source>line %1 is longer than %2 bytes</source>
        <translation>la ligne %1 dépasse %2 octets</translation>
    </message>
    <message>
        <source>a line of it is longer than %1 characters</source>
        <translation>une de ses lignes dépasse %1 caractères</translation>
    </message>
    <message>
        <source>its text has control characters</source>
        <translation>son texte contient des caractères de contrôle</translation>
    </message>
    <message>
        <source>its keyword cannot be read</source>
        <translation>son mot-clé est illisible</translation>
    </message>
    <message>
        <source>line %1 has control characters</source>
        <translation>la ligne %1 contient des caractères de contrôle</translation>
    </message>
    <message>
        <source>groups of options</source>
        <translation>groupes d’options</translation>
    </message>
    <message>
        <source>the keyword of the option &quot;%1&quot; in line %2 is bad: %3</source>
        <translation>le mot-clé de l’option «&#x202f;%1&#x202f;» à la ligne %2 est incorrect&#x202f;: %3</translation>
    </message>
    <message>
        <source>options</source>
        <translation>options</translation>
    </message>
    <message>
        <source>choices</source>
        <translation>choix</translation>
    </message>
    <message>
        <source>page sizes</source>
        <translation>formats de papier</translation>
    </message>
    <message>
        <source>parameters of custom choices</source>
        <translation>paramètres de choix personnalisés</translation>
    </message>
    <message>
        <source>translations into one language</source>
        <translation>traductions dans une langue</translation>
    </message>
    <message>
        <source>entries beside its options</source>
        <translation>entrées hors options</translation>
    </message>
    <message>
        <source>constraints</source>
        <translation>contraintes</translation>
    </message>
    <message>
        <source>its constraints name options with too many choices</source>
        <translation>ses contraintes portent sur des options aux choix trop nombreux</translation>
    </message>
    <message>
        <source>Line %1: the choice &quot;%2&quot; of the option &quot;%3&quot; is left out: %4.</source>
        <translation>Ligne %1&#x202f;: le choix «&#x202f;%2&#x202f;» de l’option «&#x202f;%3&#x202f;» est ignoré&#x202f;: %4.</translation>
    </message>
    <message>
        <source>Line %1: the entry &quot;%3&quot; &quot;%2&quot; is left out: %4.</source>
        <translation>Ligne %1&#x202f;: l’entrée «&#x202f;%3&#x202f;» «&#x202f;%2&#x202f;» est ignorée&#x202f;: %4.</translation>
    </message>
    <message>
        <source>Further entries left out: %1.</source>
        <translation>Autres entrées ignorées&#x202f;: %1.</translation>
    </message>
    <message>
        <source>it has more than %1 %2</source>
        <translation>plus de %1 %2</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; opened in line %2 never closes.</source>
        <translation>L’option «&#x202f;%1&#x202f;» ouverte à la ligne %2 ne se ferme jamais.</translation>
    </message>
    <message>
        <source>The group opened in line %1 never closes.</source>
        <translation>Le groupe ouvert à la ligne %1 ne se ferme jamais.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a PPD, which is a text that begins with &quot;*PPD-Adobe:&quot;. Name the printer&apos;s PPD file.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un PPD, c’est-à-dire un texte qui commence par «&#x202f;*PPD-Adobe:&#x202f;». Indiquez le fichier PPD de l’imprimante.</translation>
    </message>
    <message>
        <source>Fetch the printer&apos;s PPD again</source>
        <translation>Procurez-vous de nouveau le PPD de l’imprimante</translation>
    </message>
    <message>
        <source>Correct it or fetch another from the printer&apos;s maker</source>
        <translation>Corrigez-le ou procurez-vous-en un autre auprès du fabricant de l’imprimante</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; cannot be used: %2. %3.</source>
        <translation>Le PPD «&#xa0;%1&#xa0;» est inutilisable&#xa0;: %2. %3.</translation>
    </message>
    <message>
        <source>it has no keyword</source>
        <translation>le mot-clé manque</translation>
    </message>
    <message>
        <source>The PPD has no page sizes; A4 and Letter take their place.</source>
        <translation>Le PPD n’a pas de formats de papier&#x202f;; A4 et Letter les remplacent.</translation>
    </message>
    <message>
        <source>The quote opened in line %1 never closes.</source>
        <translation>Le guillemet ouvert à la ligne %1 ne se ferme jamais.</translation>
    </message>
    <message>
        <source>The PPD seems to be cut off in line %1.</source>
        <translation>Le PPD semble être coupé à la ligne %1.</translation>
    </message>
</context>
<context>
    <name>PreviewRun</name>
    <message>
        <source>&quot;%1&quot; is already there. Choose another name, or replace it with --overwrite.</source>
        <translation>«&#x202f;%1&#x202f;» existe déjà. Choisissez un autre nom, ou remplacez-le avec --overwrite.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the photos, which are never replaced. Choose another name.</source>
        <translation>«&#x202f;%1&#x202f;» est l’une des photos, qui ne sont jamais remplacées. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is too long. Choose a shorter one.</source>
        <translation>Le nom «&#x202f;%1&#x202f;» est trop long. Choisissez-en un plus court.</translation>
    </message>
    <message>
        <source>Preview of %1: %2</source>
        <translation>Aperçu de %1&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>PrintDialog</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Imp&amp;rimante&#x202f;:</translation>
    </message>
    <message>
        <source>Paper &amp;size:</source>
        <translation>&amp;Format du papier&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copies&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Dossier&#x202f;:</translation>
    </message>
    <message>
        <source>Where the built-in printer leaves its files</source>
        <translation>Dossier où l’imprimante intégrée enregistre ses fichiers</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Parcourir…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Sa&amp;ve Settings</source>
        <translation>&amp;Enregistrer les réglages</translation>
    </message>
    <message>
        <source>Keep these settings for the next time with this printer</source>
        <translation>Conserver ces réglages pour la prochaine utilisation de cette imprimante</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>Prérég&amp;lage&#x202f;:</translation>
    </message>
    <message>
        <source>Where the printer prints on this paper, with a test page</source>
        <translation>Où l’imprimante imprime sur ce papier, avec une page de test</translation>
    </message>
    <message>
        <source>Print position</source>
        <translation>Position d’impression</translation>
    </message>
    <message>
        <source>Jobs…</source>
        <translation>Tâches…</translation>
    </message>
    <message>
        <source>Your jobs on the print server: cancel, hold or print them again</source>
        <translation>Vos tâches sur le serveur d’impression&#x202f;: les annuler, les retenir ou les réimprimer</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>Fichiers PDF</translation>
    </message>
    <message>
        <source>One PDF of all</source>
        <translation>Un seul PDF</translation>
    </message>
    <message>
        <source>Name of the PDF</source>
        <translation>Nom du PDF</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
</context>
<context>
    <name>PrintedNames</name>
    <message>
        <source>The PDF has no name. Type one, or choose one PDF for each photo.</source>
        <translation>Le PDF n’a pas de nom. Saisissez-en un, ou choisissez un PDF par photo.</translation>
    </message>
    <message>
        <source>The PDF cannot be named &quot;%1&quot;, because of the slash. Leave it out, or choose another folder.</source>
        <translation>Le PDF ne peut pas s’appeler «&#x202f;%1&#x202f;» à cause de la barre oblique. Retirez-la, ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The PDF cannot be named &quot;%1&quot;: nobody would see it, or read all of its name. Leave out the dot at its beginning, and characters that are not seen.</source>
        <translation>Le PDF ne peut pas s’appeler «&#x202f;%1&#x202f;»&#x202f;: personne ne le verrait ou ne pourrait lire son nom en entier. Retirez le point au début et les caractères invisibles.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is too long for a PDF in this folder. Choose a shorter one.</source>
        <translation>Le nom «&#x202f;%1&#x202f;» est trop long pour un PDF dans ce dossier. Choisissez-en un plus court.</translation>
    </message>
</context>
<context>
    <name>ProgramName</name>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a program and its document</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Queue</name>
    <message>
        <source>Built-in printer (files)</source>
        <translation>Imprimante intégrée (fichiers)</translation>
    </message>
</context>
<context>
    <name>QueueFault</name>
    <message>
        <source>the print server does not know it</source>
        <translation>le serveur d’impression ne la connaît pas</translation>
    </message>
    <message>
        <source>nothing answers at its address</source>
        <translation>rien ne répond à son adresse</translation>
    </message>
    <message>
        <source>the print server keeps none for it</source>
        <translation>le serveur d’impression n’en a pas pour elle</translation>
    </message>
    <message>
        <source>it is set to reject them</source>
        <translation>elle est configurée pour les refuser</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>autorisation manquante</translation>
    </message>
    <message>
        <source>time limit reached</source>
        <translation>délai dépassé</translation>
    </message>
    <message>
        <source>the print server gave no reason</source>
        <translation>le serveur d’impression n’a pas donné de raison</translation>
    </message>
    <message>
        <source>its PPD file is a new one</source>
        <translation>son fichier PPD a été remplacé</translation>
    </message>
    <message>
        <source>nothing is printed</source>
        <translation>rien n’est imprimé</translation>
    </message>
    <message>
        <source>The job for the printer &quot;%1&quot; was canceled (%2).</source>
        <translation>La tâche pour l’imprimante «&#xa0;%1&#xa0;» a été annulée (%2).</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not exist (%2). Choose another one, or add it in the printer settings.</source>
        <translation>L’imprimante «&#x202f;%1&#x202f;» n’existe pas (%2). Choisissez-en une autre ou ajoutez-la dans les paramètres d’impression.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached, because no print server is running (%2). Start CUPS or check the server&apos;s name.</source>
        <translation>L’imprimante «&#x202f;%1&#x202f;» est injoignable, car aucun serveur d’impression ne fonctionne (%2). Démarrez CUPS ou vérifiez le nom du serveur.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no PPD file (%2). Set it up again with its driver.</source>
        <translation>L’imprimante «&#x202f;%1&#x202f;» n’a pas de fichier PPD (%2). Configurez-la de nouveau avec son pilote.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not accept jobs (%2). Allow them in the printer settings, or choose another printer.</source>
        <translation>L’imprimante «&#x202f;%1&#x202f;» n’accepte pas de travaux (%2). Autorisez-les dans les paramètres d’impression ou choisissez-en une autre.</translation>
    </message>
    <message>
        <source>The print server refused the request for the printer &quot;%1&quot; (%2). Ask its administrator.</source>
        <translation>Le serveur d’impression a refusé la demande pour l’imprimante «&#x202f;%1&#x202f;» (%2). Adressez-vous à son administrateur.</translation>
    </message>
    <message>
        <source>The print server did not answer about the printer &quot;%1&quot; in time (%2). Try again, or restart CUPS.</source>
        <translation>Le serveur d’impression n’a pas répondu à temps au sujet de l’imprimante «&#x202f;%1&#x202f;» (%2). Réessayez ou redémarrez CUPS.</translation>
    </message>
    <message>
        <source>The options of the printer &quot;%1&quot; have changed since they were chosen (%2). Look at them and print again.</source>
        <translation>Les options de l’imprimante «&#xa0;%1&#xa0;» ont changé depuis qu’elles ont été choisies (%2). Vérifiez-les et relancez l’impression.</translation>
    </message>
    <message>
        <source>The print server could not serve the printer &quot;%1&quot; (%2). Try again, or check its log.</source>
        <translation>Le serveur d’impression n’a pas pu traiter la demande pour l’imprimante «&#x202f;%1&#x202f;» (%2). Réessayez ou consultez son journal.</translation>
    </message>
    <message>
        <source>No print server is running (%1). Start CUPS or check the server&apos;s name.</source>
        <translation>Aucun serveur d’impression ne fonctionne (%1). Démarrez CUPS ou vérifiez le nom du serveur.</translation>
    </message>
    <message>
        <source>The print server refused to list its printers (%1). Ask its administrator.</source>
        <translation>Le serveur d’impression a refusé de lister ses imprimantes (%1). Adressez-vous à son administrateur.</translation>
    </message>
    <message>
        <source>The print server did not answer in time (%1). Try again, or restart CUPS.</source>
        <translation>Le serveur d’impression n’a pas répondu à temps (%1). Réessayez ou redémarrez CUPS.</translation>
    </message>
    <message>
        <source>The print server could not list its printers (%1). Try again, or check its log.</source>
        <translation>Le serveur d’impression n’a pas pu lister ses imprimantes (%1). Réessayez ou consultez son journal.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; on the network does not answer (%2). Switch it on and choose it again in a minute, or choose another printer.</source>
        <translation>L’imprimante «&#x202f;%1&#x202f;» du réseau ne répond pas (%2). Allumez-la et choisissez-la de nouveau dans une minute, ou choisissez une autre imprimante.</translation>
    </message>
    <message>
        <source>There is no printer at &quot;%1&quot; (%2). Check the address.</source>
        <translation>Il n’y a pas d’imprimante à l’adresse «&#x202f;%1&#x202f;» (%2). Vérifiez l’adresse.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached (%2). Check its address, and that it is switched on.</source>
        <translation>L’imprimante «&#x202f;%1&#x202f;» est injoignable (%2). Vérifiez son adresse et qu’elle est allumée.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not accept jobs (%2). Look at the printer, or choose another one.</source>
        <translation>L’imprimante «&#x202f;%1&#x202f;» n’accepte pas de travaux (%2). Vérifiez l’imprimante ou choisissez-en une autre.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; refused the request (%2). Check its settings.</source>
        <translation>L’imprimante «&#x202f;%1&#x202f;» a refusé la demande (%2). Vérifiez ses réglages.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; did not answer in time (%2). Check that it is switched on, and try again.</source>
        <translation>L’imprimante «&#x202f;%1&#x202f;» n’a pas répondu à temps (%2). Vérifiez qu’elle est allumée et réessayez.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not do what it was asked for (%2). Try again, or look at the printer.</source>
        <translation>L’imprimante «&#x202f;%1&#x202f;» n’a pas pu exécuter la demande (%2). Réessayez ou vérifiez l’imprimante.</translation>
    </message>
    <message>
        <source>no reason was given</source>
        <translation>sans en donner la raison</translation>
    </message>
    <message>
        <source>no answer came</source>
        <translation>aucune réponse n’est venue</translation>
    </message>
    <message>
        <source>It is not known whether the printer &quot;%1&quot; has got the job (%2). Look at its jobs before you print again.</source>
        <translation>On ne sait pas si l’imprimante «&#x202f;%1&#x202f;» a reçu la tâche (%2). Regardez ses tâches avant de réimprimer.</translation>
    </message>
</context>
<context>
    <name>RemainingTime</name>
    <message>
        <source>less than a minute</source>
        <translation>moins d’une minute</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s)</source>
        <translation>
            <numerusform>environ %n minute</numerusform>
            <numerusform>environ %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s)</source>
        <translation>
            <numerusform>environ %n heure</numerusform>
            <numerusform>environ %n heures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RequestedArrangement</name>
    <message>
        <source>&quot;%1&quot; is protected by a password, and there is no terminal to ask for it on. Start the program in a terminal, or in its window.</source>
        <translation>«&#x202f;%1&#x202f;» est protégé par un mot de passe, et il n’y a pas de terminal où le demander. Lancez le programme dans un terminal, ou avec sa fenêtre.</translation>
    </message>
    <message>
        <source>--pages and --page-set are for documents, and there is none. Leave them out.</source>
        <translation>--pages et --page-set sont pour les documents, et il n’y en a pas. Omettez-les.</translation>
    </message>
</context>
<context>
    <name>RequestedSession</name>
    <message>
        <source>Of the preset &quot;%1&quot; is left out: %2</source>
        <translation>Du préréglage «&#x202f;%1&#x202f;» est laissé de côté&#x202f;: %2</translation>
    </message>
    <message>
        <source>%1 It is your default printer; --printer names another one, and &quot;--printer built-in&quot; prints into files.</source>
        <translation>%1 C’est votre imprimante par défaut&#x202f;; --printer permet d’en nommer une autre, et «&#x202f;--printer built-in&#x202f;» imprime dans des fichiers.</translation>
    </message>
    <message>
        <source>%1 It may have your default printer; --printer names another one, and &quot;--printer built-in&quot; prints into files.</source>
        <translation>%1 Votre imprimante par défaut y est peut-être&#x202f;; --printer permet d’en nommer une autre, et «&#x202f;--printer built-in&#x202f;» imprime dans des fichiers.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no PPD file and so no option %2. Leave it out, or set the printer up with its driver.</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» n’a pas de fichier PPD, donc pas d’option %2. Retirez-la ou installez l’imprimante avec son pilote.</translation>
    </message>
    <message>
        <source>Of the printer&apos;s defaults is left out: %1</source>
        <translation>Des valeurs par défaut de l’imprimante est laissé de côté&#x202f;: %1</translation>
    </message>
    <message>
        <source>No page size is chosen. Choose one with -o %1=%2 or another one of --list-options.</source>
        <translation>Aucun format de papier n’est choisi. Choisissez-en un avec -o %1=%2 ou un autre de --list-options.</translation>
    </message>
</context>
<context>
    <name>ScreenshotRun</name>
    <message>
        <source>The picture %1 could not be written: %2. Choose a folder that can be written.</source>
        <translation>L’image %1 n’a pas pu être écrite&#x202f;: %2. Choisissez un dossier accessible en écriture.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made. Choose another one for the pictures.</source>
        <translation>Le dossier %1 ne peut pas être créé. Choisissez-en un autre pour les images.</translation>
    </message>
</context>
<context>
    <name>SessionJob</name>
    <message>
        <source>No paper size is chosen. Choose one.</source>
        <translation>Aucun format de papier n’est choisi. Choisissez-en un.</translation>
    </message>
</context>
<context>
    <name>SessionOpening</name>
    <message>
        <source>As set at the printer</source>
        <translation>Selon le réglage de l’imprimante</translation>
    </message>
</context>
<context>
    <name>StandardInput</name>
    <message>
        <source>The standard input cannot be kept in &quot;%1&quot;: %2. Free some space there.</source>
        <translation>L’entrée standard ne peut pas être conservée dans «&#x202f;%1&#x202f;»&#x202f;: %2. Libérez-y de la place.</translation>
    </message>
    <message>
        <source>The standard input could not be read: %1.</source>
        <translation>L’entrée standard n’a pas pu être lue&#x202f;: %1.</translation>
    </message>
    <message>
        <source>&quot;-&quot; reads a file from the standard input, which is the keyboard. Redirect it: corvel-print - &lt; photo.jpg</source>
        <translation>«&#x202f;-&#x202f;» lit un fichier sur l’entrée standard, qui est le clavier. Redirigez-la&#x202f;: corvel-print - &lt; photo.jpg</translation>
    </message>
    <message>
        <source>The standard input is empty. Redirect a file to it.</source>
        <translation>L’entrée standard est vide. Redirigez-y un fichier.</translation>
    </message>
    <message>
        <source>The file on the standard input is too large: it may have %1.</source>
        <translation>Le fichier sur l’entrée standard est trop grand&#x202f;: il peut avoir %1.</translation>
    </message>
</context>
<context>
    <name>StandardLabels</name>
    <message>
        <source>Paper size</source>
        <translation>Format du papier</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Type de papier</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Source du papier</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Qualité d’impression</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>Two-sided printing</source>
        <translation>Impression recto verso</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Bac de sortie</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finition</translation>
    </message>
    <message>
        <source>Finishing template</source>
        <translation>Modèle de finition</translation>
    </message>
    <message>
        <source>Scaling by the printer</source>
        <translation>Mise à l’échelle par l’imprimante</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Optimize for</source>
        <translation>Optimiser pour</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>Intention de rendu</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Découpe</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Plain paper</source>
        <translation>Papier ordinaire</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>Papier couché</translation>
    </message>
    <message>
        <source>Heavy paper</source>
        <translation>Papier épais</translation>
    </message>
    <message>
        <source>Light paper</source>
        <translation>Papier fin</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>Papier jet d’encre</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Papier à en-tête</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Papier photo</translation>
    </message>
    <message>
        <source>Archival photo paper</source>
        <translation>Papier photo d’archivage</translation>
    </message>
    <message>
        <source>Photo film</source>
        <translation>Film photo</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>Papier photo brillant</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Papier photo ultra-brillant</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Papier photo mat</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>Papier photo satiné</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Papier photo semi-brillant</translation>
    </message>
    <message>
        <source>Card stock</source>
        <translation>Papier cartonné</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>Papier continu</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Enveloppe</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Other paper</source>
        <translation>Autre papier</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Bac principal</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Bac secondaire</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Alimentation manuelle</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>Bac polyvalent</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Bac photo</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>Bac pour cartes postales</translation>
    </message>
    <message>
        <source>Envelope tray</source>
        <translation>Bac à enveloppes</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Bac pour disques</translation>
    </message>
    <message>
        <source>Large tray</source>
        <translation>Bac grande capacité</translation>
    </message>
    <message>
        <source>Main roll</source>
        <translation>Rouleau principal</translation>
    </message>
    <message>
        <source>Alternate roll</source>
        <translation>Rouleau secondaire</translation>
    </message>
    <message>
        <source>Top tray</source>
        <translation>Bac supérieur</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Bac du milieu</translation>
    </message>
    <message>
        <source>Bottom tray</source>
        <translation>Bac inférieur</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Bac central</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Bac de gauche</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Bac de droite</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Bac arrière</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Bac latéral</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Face imprimée vers le haut</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Face imprimée vers le bas</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Brouillon</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevée</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Color (Adobe RGB)</source>
        <translation>Couleur (Adobe RGB)</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Niveaux de gris</translation>
    </message>
    <message>
        <source>Gray, automatic</source>
        <translation>Niveaux de gris, automatique</translation>
    </message>
    <message>
        <source>Gray from colored ink</source>
        <translation>Niveaux de gris avec encres de couleur</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Noir et blanc</translation>
    </message>
    <message>
        <source>One side</source>
        <translation>Recto seul</translation>
    </message>
    <message>
        <source>Both sides, turned on the long edge</source>
        <translation>Recto verso, reliure sur le bord long</translation>
    </message>
    <message>
        <source>Both sides, turned on the short edge</source>
        <translation>Recto verso, reliure sur le bord court</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Agrafer</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforer</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Couverture</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>Relier</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Piqûre à cheval</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Piqûre à plat</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Plier</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Massicoter</translation>
    </message>
    <message>
        <source>Bale</source>
        <translation>Mettre en liasse</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livret</translation>
    </message>
    <message>
        <source>Offset stacking</source>
        <translation>Empilage décalé</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>Vernir</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>Plastifier</translation>
    </message>
    <message>
        <source>Staple, top left</source>
        <translation>Agrafer, en haut à gauche</translation>
    </message>
    <message>
        <source>Staple, bottom left</source>
        <translation>Agrafer, en bas à gauche</translation>
    </message>
    <message>
        <source>Staple, top right</source>
        <translation>Agrafer, en haut à droite</translation>
    </message>
    <message>
        <source>Staple, bottom right</source>
        <translation>Agrafer, en bas à droite</translation>
    </message>
    <message>
        <source>Trim after each page</source>
        <translation>Massicoter après chaque page</translation>
    </message>
    <message>
        <source>Trim after each document</source>
        <translation>Massicoter après chaque document</translation>
    </message>
    <message>
        <source>Trim after each copy</source>
        <translation>Massicoter après chaque exemplaire</translation>
    </message>
    <message>
        <source>Trim after the job</source>
        <translation>Massicoter après la tâche</translation>
    </message>
    <message>
        <source>Only if it is too large</source>
        <translation>Seulement si c’est trop grand</translation>
    </message>
    <message>
        <source>Fill the paper</source>
        <translation>Remplir le papier</translation>
    </message>
    <message>
        <source>Fit on the paper</source>
        <translation>Adapter au papier</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Graphiques</translation>
    </message>
    <message>
        <source>Text and graphics</source>
        <translation>Texte et graphiques</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Colorimétrique absolu</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perceptif</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Colorimétrique relatif</translation>
    </message>
    <message>
        <source>Relative colorimetric, black point adapted</source>
        <translation>Colorimétrique relatif avec compensation du point noir</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>4 × 6 in (10 × 15 cm)</source>
        <translation>10 × 15 cm (4 × 6 po)</translation>
    </message>
    <message>
        <source>5 × 7 in (13 × 18 cm)</source>
        <translation>13 × 18 cm (5 × 7 po)</translation>
    </message>
    <message>
        <source>3.5 × 5 in (9 × 13 cm)</source>
        <translation>9 × 13 cm (3,5 × 5 po)</translation>
    </message>
    <message>
        <source>8 × 10 in (20 × 25 cm)</source>
        <translation>20 × 25 cm (8 × 10 po)</translation>
    </message>
    <message>
        <source>10 × 15 cm</source>
        <translation>10 × 15 cm</translation>
    </message>
    <message>
        <source>Postcard (Hagaki)</source>
        <translation>Carte postale (Hagaki)</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Letter US</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>Legal US</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>Executive US</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloïd US</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Statement US</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Bac %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rouleau %1</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Empileur %1</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Boîte de sortie %1</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <comment>a page size</comment>
        <translation>%1, sans marge</translation>
    </message>
</context>
<context>
    <name>StateText</name>
    <message>
        <source>out of paper</source>
        <translation>plus de papier</translation>
    </message>
    <message>
        <source>paper has to be put in</source>
        <translation>papier à charger</translation>
    </message>
    <message>
        <source>paper low</source>
        <translation>bientôt plus de papier</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>bourrage papier</translation>
    </message>
    <message>
        <source>paper tray missing</source>
        <translation>bac à papier absent</translation>
    </message>
    <message>
        <source>output tray missing</source>
        <translation>bac de sortie absent</translation>
    </message>
    <message>
        <source>output tray almost full</source>
        <translation>bac de sortie presque plein</translation>
    </message>
    <message>
        <source>output tray full</source>
        <translation>bac de sortie plein</translation>
    </message>
    <message>
        <source>ribbon or ink low</source>
        <translation>ruban ou encre bientôt épuisé</translation>
    </message>
    <message>
        <source>ribbon or ink used up</source>
        <translation>ruban ou encre épuisé</translation>
    </message>
    <message>
        <source>ribbon low</source>
        <translation>ruban bientôt épuisé</translation>
    </message>
    <message>
        <source>ribbon used up</source>
        <translation>ruban épuisé</translation>
    </message>
    <message>
        <source>waste container almost full</source>
        <translation>récupérateur presque plein</translation>
    </message>
    <message>
        <source>waste container full</source>
        <translation>récupérateur plein</translation>
    </message>
    <message>
        <source>toner low</source>
        <translation>bientôt plus de toner</translation>
    </message>
    <message>
        <source>toner used up</source>
        <translation>toner épuisé</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>capot ouvert</translation>
    </message>
    <message>
        <source>door open</source>
        <translation>porte ouverte</translation>
    </message>
    <message>
        <source>too hot</source>
        <translation>surchauffe</translation>
    </message>
    <message>
        <source>warming up</source>
        <translation>préchauffage</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>hors ligne</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>connexion à l’imprimante</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>l’imprimante ne répond pas</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>éteinte</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pause</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>mise en pause</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>les nouvelles tâches sont retenues</translation>
    </message>
    <message>
        <source>the print server&apos;s disk is full</source>
        <translation>le disque du serveur d’impression est plein</translation>
    </message>
    <message>
        <source>a filter of its driver is missing</source>
        <translation>un filtre de son pilote manque</translation>
    </message>
    <message>
        <source>a filter of its driver is not safe</source>
        <translation>un filtre de son pilote n’est pas sûr</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>l’imprimante est arrêtée</translation>
    </message>
    <message>
        <source>a part of the printer is stopped</source>
        <translation>une partie de l’imprimante est arrêtée</translation>
    </message>
    <message>
        <source>held</source>
        <translation>retenue</translation>
    </message>
    <message>
        <source>what it needs is not ready</source>
        <translation>ce qu’il lui faut n’est pas prêt</translation>
    </message>
    <message>
        <source>the document could not be read</source>
        <translation>le document n’a pas pu être lu</translation>
    </message>
    <message>
        <source>the document could not be printed</source>
        <translation>le document n’a pas pu être imprimé</translation>
    </message>
    <message>
        <source>canceled by the user</source>
        <translation>annulée par l’utilisateur</translation>
    </message>
    <message>
        <source>canceled by the operator</source>
        <translation>annulée par l’opérateur</translation>
    </message>
    <message>
        <source>canceled at the printer</source>
        <translation>annulée sur l’imprimante</translation>
    </message>
    <message>
        <source>ended by the print server</source>
        <translation>arrêtée par le serveur d’impression</translation>
    </message>
    <message>
        <source>rejects jobs</source>
        <translation>refuse les tâches</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>prête</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>impression en cours</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêtée</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 unknown</source>
        <translation>%1 inconnu</translation>
    </message>
    <message>
        <source>%1 %2 % (low)</source>
        <translation>%1 %2 % (bas)</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation>%1 %2 %</translation>
    </message>
    <message>
        <source>unspecified problem</source>
        <translation>un problème non précisé</translation>
    </message>
    <message>
        <source>held for authentication</source>
        <translation>retenue jusqu’à une identification</translation>
    </message>
    <message>
        <source>the printer does not accept this kind of document</source>
        <translation>l’imprimante n’accepte pas ce type de document</translation>
    </message>
    <message>
        <source>found on the network</source>
        <translation>trouvée sur le réseau</translation>
    </message>
</context>
<context>
    <name>SummaryLines</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>TemporaryQueue</name>
    <message>
        <source>its options did not arrive within %1 s</source>
        <translation>ses options ne sont pas arrivées en %1 s</translation>
    </message>
</context>
<context>
    <name>TerminalLogin</name>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>Le nom d’utilisateur ou le mot de passe n’a pas été accepté.</translation>
    </message>
    <message>
        <source>The print server %1 wants a user name and a password.</source>
        <translation>Le serveur d’impression %1 demande un nom d’utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; on %2 wants a user name and a password.</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» sur %2 demande un nom d’utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>User name [%1]: </source>
        <translation>Nom d’utilisateur [%1]&#x202f;: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Mot de passe&#x202f;: </translation>
    </message>
    <message>
        <source>it wants a user name and a password, and there is no terminal to ask on</source>
        <translation>un nom d’utilisateur et un mot de passe sont demandés, et il n’y a pas de terminal pour les saisir</translation>
    </message>
    <message>
        <source>The password does not open &quot;%1&quot;.</source>
        <translation>Le mot de passe n’ouvre pas «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is protected by a password.</source>
        <translation>«&#x202f;%1&#x202f;» est protégé par un mot de passe.</translation>
    </message>
</context>
<context>
    <name>UsedChoices</name>
    <message>
        <source>&quot;%1&quot; is not a number of copies.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un nombre de copies possible.</translation>
    </message>
</context>
<context>
    <name>WindowRun</name>
    <message>
        <source>The window cannot be seen, because QT_QPA_PLATFORM asks for &quot;%1&quot;. Unset it, or print without a window (--batch).</source>
        <translation>La fenêtre ne peut pas être vue, car QT_QPA_PLATFORM demande «&#x202f;%1&#x202f;». Supprimez cette variable, ou imprimez sans fenêtre (--batch).</translation>
    </message>
</context>
<context>
    <name>corvel-print-portal</name>
    <message>
        <source>Shows the print dialog for programs that print through the desktop&apos;s portal. The desktop starts it when it is needed.</source>
        <translation>Affiche le dialogue d’impression pour les programmes qui impriment par le portail du bureau. Le bureau le démarre au besoin.</translation>
    </message>
    <message>
        <source>Take over from one that is running.</source>
        <translation>Prend la place de celui qui est en cours.</translation>
    </message>
    <message>
        <source>Seconds without work until it ends.</source>
        <translation>Secondes sans travail avant qu’il se termine.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The program cannot start: QT_QPA_PLATFORM asks for &quot;%1&quot;, which cannot be used. Unset it.</source>
        <translation>Le programme ne peut pas démarrer&#x202f;: QT_QPA_PLATFORM demande «&#x202f;%1&#x202f;», qui est inutilisable. Supprimez cette variable.</translation>
    </message>
    <message>
        <source>The program cannot open a window on the display &quot;%1&quot;. Start it in a desktop session, or print without a window (--batch).</source>
        <translation>Le programme ne peut pas ouvrir de fenêtre sur l’affichage «&#x202f;%1&#x202f;». Lancez-le dans une session de bureau, ou imprimez sans fenêtre (--batch).</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>Le programme ne peut pas démarrer&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 See corvel-print --help.</source>
        <translation>%1 Voir corvel-print --help.</translation>
    </message>
    <message>
        <source>There is no display to open a window on. Start it in a desktop session, or print without a window (--batch).</source>
        <translation>Il n’y a pas d’affichage sur lequel ouvrir une fenêtre. Lancez le programme dans une session de bureau ou imprimez sans fenêtre (--batch).</translation>
    </message>
</context>
<context>
    <name>pdekit::OptionPanel</name>
    <message>
        <source>the printer has no PPD file</source>
        <translation>l’imprimante n’a pas de fichier PPD</translation>
    </message>
    <message>
        <source>the job has no print settings</source>
        <translation>la tâche n’a pas de réglages d’impression</translation>
    </message>
</context>
<context>
    <name>printdialog::Arrangement</name>
    <message>
        <source>%1 and %2 more</source>
        <comment>the name of a sheet with several photos</comment>
        <translation>%1 et %2 autres</translation>
    </message>
    <message>
        <source>None of the %1 pages is among those to be printed. Choose other pages.</source>
        <translation>Aucune des %1 pages ne fait partie de celles à imprimer. Choisissez d’autres pages.</translation>
    </message>
    <message>
        <source>The only page is not among those to be printed. Choose other pages.</source>
        <translation>La seule page ne fait pas partie de celles à imprimer. Choisissez d’autres pages.</translation>
    </message>
</context>
<context>
    <name>printdialog::ChoiceCallout</name>
    <message>
        <source>Dismiss (Esc)</source>
        <translation>Masquer (Échap)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Masquer</translation>
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
        <translation>Personnalisé…</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>an option and one of its choices</comment>
        <translation>%1&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>printdialog::ChoiceExplanation</name>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;</source>
        <comment>a condition</comment>
        <translation>«&#x202f;%1&#x202f;» est sur «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two conditions</comment>
        <translation>%1 et que %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be &quot;%2&quot; while %3.</source>
        <comment>options, choices, and conditions</comment>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être «&#x202f;%2&#x202f;» tant que %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; to &quot;%2&quot;</source>
        <comment>change an option to a choice</comment>
        <translation>«&#x202f;%1&#x202f;» en «&#x202f;%2&#x202f;»</translation>
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
        <translation>M&amp;odifier aussi&#x202f;: %1</translation>
    </message>
    <message>
        <source>Chan&amp;ge %1</source>
        <translation>M&amp;odifier&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>printdialog::ChoiceSteps</name>
    <message>
        <source>Undo</source>
        <translation>Annuler la dernière action</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
</context>
<context>
    <name>printdialog::CustomPageFields</name>
    <message>
        <source>Width:</source>
        <translation>Largeur&#x202f;:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Hauteur&#x202f;:</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>the smallest and the largest size</comment>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>The width can be %1.</source>
        <comment>from one length to another</comment>
        <translation>La largeur peut aller %1.</translation>
    </message>
    <message>
        <source>The height can be %1.</source>
        <comment>from one length to another</comment>
        <translation>La hauteur peut aller %1.</translation>
    </message>
    <message>
        <source>Width (%1)</source>
        <comment>and its unit</comment>
        <translation>Largeur (%1)</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <comment>and its unit</comment>
        <translation>Hauteur (%1)</translation>
    </message>
</context>
<context>
    <name>printdialog::DialogSession</name>
    <message>
        <source>The option &quot;%1&quot; lacks what has to be entered for it.</source>
        <translation>Il manque la saisie pour l’option «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Plus d’options</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a part of the printer and its state</comment>
        <translation>%1&#x202f;: %2</translation>
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
        <translation>Il n’existe pas de document «&#x202f;%1&#x202f;». Vérifiez son nom et son dossier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no pages. Save it again in the program that it comes from.</source>
        <translation>«&#x202f;%1&#x202f;» n’a aucune page. Enregistrez-le à nouveau dans le programme dont il provient.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a PDF document. Save it as PDF in the program that it comes from.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un document PDF. Enregistrez-le en PDF dans le programme dont il provient.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is protected by a password. Enter the password.</source>
        <translation>«&#x202f;%1&#x202f;» est protégé par un mot de passe. Saisissez le mot de passe.</translation>
    </message>
    <message>
        <source>The password does not open &quot;%1&quot;. Check it and enter it again.</source>
        <translation>Le mot de passe n’ouvre pas «&#x202f;%1&#x202f;». Vérifiez-le et saisissez-le à nouveau.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too much time or memory to read. Print it in parts, or save it again in the program that it comes from.</source>
        <translation>La lecture de «&#x202f;%1&#x202f;» demande trop de temps ou de mémoire. Imprimez-le par parties ou enregistrez-le à nouveau dans le programme dont il provient.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed since it was opened. Add it again.</source>
        <translation>«&#x202f;%1&#x202f;» a été modifié depuis son ouverture. Ajoutez-le à nouveau.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged and cannot be repaired. Get it again from where it came from.</source>
        <translation>«&#x202f;%1&#x202f;» est endommagé et ne peut pas être réparé. Récupérez-le à nouveau à sa source.</translation>
    </message>
    <message>
        <source>You may not read &quot;%1&quot;. Ask its owner for the permission to read it.</source>
        <translation>Vous n’avez pas le droit de lire «&#x202f;%1&#x202f;». Demandez-en l’autorisation à son propriétaire.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be read: %2. Check the disk that it is on.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas pu être lu&#x202f;: %2. Vérifiez le disque où il se trouve.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Choose a document inside it.</source>
        <translation>«&#x202f;%1&#x202f;» est un dossier. Choisissez un document qu’il contient.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file but a device, a pipe or a socket. Choose a document.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un fichier mais un périphérique, un tube ou un socket. Choisissez un document.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large: %2, where a document may have %3. Save it in parts.</source>
        <translation>«&#x202f;%1&#x202f;» est trop volumineux&#x202f;: %2, alors qu’un document peut faire %3. Enregistrez-le en plusieurs parties.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than %L2 pages. Save it in parts.</source>
        <translation>«&#x202f;%1&#x202f;» a plus de %L2 pages. Enregistrez-le en plusieurs parties.</translation>
    </message>
    <message>
        <source>Page %L1 of &quot;%2&quot; takes too much time or memory to show. It can be printed all the same.</source>
        <translation>L’affichage de la page %L1 de «&#x202f;%2&#x202f;» demande trop de temps ou de mémoire. Elle peut être imprimée malgré tout.</translation>
    </message>
    <message>
        <source>Page %L1 of &quot;%2&quot; cannot be shown, since it is damaged. Look at it closely when it is printed.</source>
        <translation>La page %L1 de «&#x202f;%2&#x202f;» ne peut pas être affichée, car elle est endommagée. Examinez-la bien une fois imprimée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not used, since it could not be read safely: %2. Install corvel-print again.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas utilisé, car il n’a pas pu être lu sans risque&#x202f;: %2. Réinstallez corvel-print.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be run: %2</source>
        <translation>impossible de lancer «&#x202f;%1&#x202f;»&#x202f;: %2</translation>
    </message>
    <message>
        <source>the system offers no sandbox</source>
        <translation>le système n’offre pas d’environnement isolé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends with status %2</source>
        <translation>«&#x202f;%1&#x202f;» se termine avec le code %2</translation>
    </message>
</context>
<context>
    <name>printdialog::FileName</name>
    <message>
        <source>&quot;%1&quot; cannot be used: its name is not encoded in UTF-8. Rename it.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être utilisé&#x202f;: son nom n’est pas codé en UTF-8. Renommez-le.</translation>
    </message>
</context>
<context>
    <name>printdialog::FileOpener</name>
    <message>
        <source>&quot;%1&quot; has no page %2. Correct the print list.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas de page %2. Corrigez la liste d’impression.</translation>
    </message>
</context>
<context>
    <name>printdialog::FolderController</name>
    <message>
        <source>The last photos of the folder are still being printed. Try again in a moment.</source>
        <translation>Les dernières photos du dossier sont encore en cours d’impression. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>Waiting for new photos.</source>
        <translation>En attente de nouvelles photos.</translation>
    </message>
</context>
<context>
    <name>printdialog::FolderPrinter</name>
    <message>
        <source>The folder &quot;%1&quot; does not answer. Look after its disk or its network connection; printing continues when it answers.</source>
        <translation>Le dossier «&#x202f;%1&#x202f;» ne répond pas. Vérifiez son disque ou sa connexion réseau&#x202f;; l’impression continue quand il répond.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; answers again.</source>
        <translation>Le dossier «&#x202f;%1&#x202f;» répond de nouveau.</translation>
    </message>
</context>
<context>
    <name>printdialog::FolderWatch</name>
    <message>
        <source>The folder &quot;%1&quot; is not there any more: it was deleted, renamed or unmounted. Put it back; what arrives in it then is printed.</source>
        <translation>Le dossier «&#x202f;%1&#x202f;» n’est plus là&#x202f;: il a été supprimé, renommé ou démonté. Remettez-le en place&#x202f;; ce qui y arrive alors est imprimé.</translation>
    </message>
    <message>
        <source>You may not read the folder &quot;%1&quot; any more. Change its permissions; what has arrived in it is printed then.</source>
        <translation>Vous n’avez plus le droit de lire le dossier «&#x202f;%1&#x202f;». Modifiez ses droits d’accès&#x202f;; ce qui y est arrivé est alors imprimé.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be read: %2. Look after its disk or its network connection; what has arrived in it is printed when it answers again.</source>
        <translation>Le dossier «&#x202f;%1&#x202f;» ne peut pas être lu&#x202f;: %2. Vérifiez son disque ou sa connexion réseau&#x202f;; ce qui y est arrivé est imprimé quand il répond de nouveau.</translation>
    </message>
</context>
<context>
    <name>printdialog::GuardedPanel</name>
    <message>
        <source>its plug-in gives no reason</source>
        <translation>son module n’en donne pas la raison</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; was closed because its plug-in failed: %2. Update the plug-in. Everything else works.</source>
        <translation>La page «&#x202f;%1&#x202f;» a été fermée parce que son module a échoué&#x202f;: %2. Mettez le module à jour. Tout le reste fonctionne.</translation>
    </message>
    <message>
        <source>The choices of the page &quot;%1&quot; are missing, because its plug-in failed: %2. Update the plug-in.</source>
        <translation>Les choix de la page «&#x202f;%1&#x202f;» manquent, parce que son module a échoué&#x202f;: %2. Mettez le module à jour.</translation>
    </message>
    <message>
        <source>The choices of the page &quot;%1&quot; are missing, because it could not save them: %2.</source>
        <translation>Les choix de la page «&#x202f;%1&#x202f;» manquent, parce qu’elle n’a pas pu les enregistrer&#x202f;: %2.</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; could not read the job&apos;s choices, and may show other ones: %2.</source>
        <translation>La page «&#x202f;%1&#x202f;» n’a pas pu lire les choix de la tâche et en montre peut-être d’autres&#x202f;: %2.</translation>
    </message>
</context>
<context>
    <name>printdialog::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
</context>
<context>
    <name>printdialog::JobTemplate</name>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>Account user</source>
        <translation>Utilisateur du compte</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Recto verso</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Assembler</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Bord long</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Bord court</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>Page par page</translation>
    </message>
    <message>
        <source>Copy by copy</source>
        <translation>Copie par copie</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Immédiatement</translation>
    </message>
    <message>
        <source>When released</source>
        <translation>Une fois libérée</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>Pendant la journée</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>En soirée</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>La nuit</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>Pendant la deuxième équipe</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>Pendant la troisième équipe</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Le week-end</translation>
    </message>
    <message>
        <source>When to print</source>
        <translation>Moment de l’impression</translation>
    </message>
    <message>
        <source>At</source>
        <translation>À</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorité</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Basse</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevée</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no banner page</comment>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Standard</source>
        <comment>a banner page</comment>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Form</source>
        <comment>a banner page</comment>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Classified</source>
        <comment>a banner page</comment>
        <translation>Classifié</translation>
    </message>
    <message>
        <source>Confidential</source>
        <comment>a banner page</comment>
        <translation>Confidentiel</translation>
    </message>
    <message>
        <source>Secret</source>
        <comment>a banner page</comment>
        <translation>Secret</translation>
    </message>
    <message>
        <source>Top secret</source>
        <comment>a banner page</comment>
        <translation>Très secret</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <comment>a banner page</comment>
        <translation>Non classifié</translation>
    </message>
    <message>
        <source>Banner page</source>
        <translation>Page de garde</translation>
    </message>
    <message>
        <source>Banner page before</source>
        <translation>Page de garde avant</translation>
    </message>
    <message>
        <source>Banner page after</source>
        <translation>Page de garde après</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no account</comment>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>Code PIN</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no PIN</comment>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>The photo&apos;s name</source>
        <translation>Le nom de la photo</translation>
    </message>
</context>
<context>
    <name>printdialog::JobsModel</name>
    <message>
        <source>Job</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Since</source>
        <comment>the time at which a job got into its state</comment>
        <translation>Depuis</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>printdialog::JobsWindow</name>
    <message>
        <source>Select a job that is not over.</source>
        <translation>Sélectionnez une tâche qui n’est pas terminée.</translation>
    </message>
    <message>
        <source>Select a job that has not begun to print.</source>
        <translation>Sélectionnez une tâche dont l’impression n’a pas commencé.</translation>
    </message>
    <message>
        <source>Select a job that is held.</source>
        <translation>Sélectionnez une tâche retenue.</translation>
    </message>
    <message>
        <source>Select a job that is over.</source>
        <translation>Sélectionnez une tâche terminée.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Tâches</translation>
    </message>
    <message>
        <source>&amp;Cancel Jobs</source>
        <translation>&amp;Annuler les tâches</translation>
    </message>
    <message>
        <source>&amp;Hold</source>
        <translation>&amp;Retenir</translation>
    </message>
    <message>
        <source>&amp;Release</source>
        <translation>&amp;Libérer</translation>
    </message>
    <message>
        <source>&amp;Print Again</source>
        <translation>Ré&amp;imprimer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The print server is being asked for your jobs.</source>
        <translation>Le serveur d’impression est interrogé sur vos tâches.</translation>
    </message>
    <message>
        <source>Your jobs are not known.</source>
        <translation>Vos tâches ne sont pas connues.</translation>
    </message>
    <message>
        <source>Your jobs as the print server last reported them</source>
        <translation>Vos tâches, telles que le serveur d’impression les a signalées en dernier</translation>
    </message>
    <message>
        <source>You have no jobs on the print server.</source>
        <translation>Vous n’avez aucune tâche sur le serveur d’impression.</translation>
    </message>
    <message>
        <source>Your jobs on the print server: %1 not over, %2 over</source>
        <translation>Vos tâches sur le serveur d’impression&#x202f;: %1 en attente ou en cours, %2 terminées</translation>
    </message>
</context>
<context>
    <name>printdialog::KnownPrintSize</name>
    <message>
        <source>Square</source>
        <translation>Carré</translation>
    </message>
    <message>
        <source>Passport</source>
        <translation>Identité</translation>
    </message>
    <message>
        <source>Wallet</source>
        <translation>Portefeuille</translation>
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
        <translation>Répéter chaque photo</translation>
    </message>
    <message>
        <source>Cut marks</source>
        <translation>Traits de coupe</translation>
    </message>
    <message>
        <source>One photo per sheet</source>
        <translation>Une photo par feuille</translation>
    </message>
    <message>
        <source>Rows and columns</source>
        <translation>Lignes et colonnes</translation>
    </message>
    <message>
        <source>As many as fit</source>
        <translation>Autant que possible</translation>
    </message>
    <message>
        <source>Contact sheet</source>
        <translation>Planche contact</translation>
    </message>
    <message>
        <source>Two strips</source>
        <translation>Deux bandes</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>None</source>
        <comment>a caption</comment>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>a caption</comment>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Date</source>
        <comment>a caption</comment>
        <translation>Date</translation>
    </message>
    <message>
        <source>Name and date</source>
        <comment>a caption</comment>
        <translation>Nom et date</translation>
    </message>
    <message>
        <source>A photo fills its sheet, or the second strip repeats the first, instead of the next ones following</source>
        <translation>Une photo remplit sa feuille, ou la seconde bande répète la première, au lieu que les suivantes se succèdent</translation>
    </message>
    <message>
        <source>Layout:</source>
        <translation>Mise en page&#xa0;:</translation>
    </message>
    <message>
        <source>Rows × columns:</source>
        <translation>Lignes × colonnes&#xa0;:</translation>
    </message>
    <message>
        <source>Photos per strip:</source>
        <translation>Photos par bande&#xa0;:</translation>
    </message>
    <message>
        <source>Captions:</source>
        <translation>Légendes&#xa0;:</translation>
    </message>
    <message>
        <source>Gap:</source>
        <translation>Écart&#xa0;:</translation>
    </message>
    <message>
        <source>One photo or page per sheet</source>
        <translation>Une photo ou page par feuille</translation>
    </message>
    <message>
        <source>One page per sheet</source>
        <translation>Une page par feuille</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) per sheet</source>
        <translation>
            <numerusform>%n page par feuille</numerusform>
            <numerusform>%n pages par feuille</numerusform>
        </translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livret</translation>
    </message>
</context>
<context>
    <name>printdialog::MessageBar</name>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
</context>
<context>
    <name>printdialog::MixedSpinBox</name>
    <message>
        <source>several</source>
        <translation>plusieurs</translation>
    </message>
</context>
<context>
    <name>printdialog::OptionPageView</name>
    <message>
        <source>No option has this text in it.</source>
        <translation>Aucune option ne contient ce texte.</translation>
    </message>
    <message>
        <source>Search the options</source>
        <translation>Rechercher dans les options</translation>
    </message>
</context>
<context>
    <name>printdialog::OptionRow</name>
    <message>
        <source>Put &quot;%1&quot; back to &quot;%2&quot;</source>
        <comment>an option and the printer&apos;s default</comment>
        <translation>Remettre «&#x202f;%1&#x202f;» sur «&#x202f;%2&#x202f;»</translation>
    </message>
</context>
<context>
    <name>printdialog::OptionsFetcher</name>
    <message>
        <source>its PPD is larger than %1 MiB</source>
        <translation>son PPD dépasse %1 Mio</translation>
    </message>
    <message>
        <source>the connection broke in the middle of its PPD</source>
        <translation>la connexion a été coupée au milieu de son PPD</translation>
    </message>
    <message>
        <source>what the print server keeps is empty</source>
        <translation>celui du serveur d’impression est vide</translation>
    </message>
    <message>
        <source>its PPD did not arrive within %1 s</source>
        <translation>son PPD n’est pas arrivé en %1 s</translation>
    </message>
</context>
<context>
    <name>printdialog::OutcomeText</name>
    <message>
        <source>Printing was stopped.</source>
        <translation>L’impression a été arrêtée.</translation>
    </message>
    <message>
        <source>Printed %1 photos in the folder %2</source>
        <translation>%1 photos imprimées dans le dossier %2</translation>
    </message>
    <message>
        <source>Printed %1 photos on %2 (jobs %3 to %4)</source>
        <translation>%1 photos imprimées sur %2 (tâches %3 à %4)</translation>
    </message>
    <message>
        <source>Printed %1 photos on %2</source>
        <translation>%1 photos imprimées sur %2</translation>
    </message>
    <message>
        <source>Printing was stopped: printed %1 of %2 photos.</source>
        <translation>L’impression a été arrêtée&#xa0;: %1 photos imprimées sur %2.</translation>
    </message>
    <message>
        <source>Printed %1 of %2 photos.</source>
        <translation>%1 photos imprimées sur %2.</translation>
    </message>
    <message>
        <source>Sent %1 of %2 photos to %3, which continues printing.</source>
        <translation>%1 photos sur %2 envoyées à %3, qui continue d’imprimer.</translation>
    </message>
    <message>
        <source>Not printed: %1.</source>
        <translation>Non imprimées&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Perhaps printed: %1.</source>
        <translation>Peut-être imprimées&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Waiting at the printer: %1.</source>
        <translation>En attente à l’imprimante&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Cannot be printed: %1.</source>
        <translation>Impossibles à imprimer&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Printed %1 photos in one PDF: %2</source>
        <translation>%1 photos imprimées dans un PDF&#x202f;: %2</translation>
    </message>
    <message>
        <source>Printing was stopped: printed %1 of %2 sheets.</source>
        <translation>L’impression a été arrêtée&#xa0;: %1 feuilles imprimées sur %2.</translation>
    </message>
    <message>
        <source>Sent %1 of %2 sheets to %3, which continues printing.</source>
        <translation>%1 feuilles sur %2 envoyées à %3, qui continue d’imprimer.</translation>
    </message>
    <message>
        <source>Printed %1 of %2 sheets.</source>
        <translation>%1 feuilles imprimées sur %2.</translation>
    </message>
    <message>
        <source>Printed %1 sheets in one PDF: %2</source>
        <translation>%1 feuilles imprimées dans un PDF&#x202f;: %2</translation>
    </message>
    <message>
        <source>Printed %1 sheets in the folder %2</source>
        <translation>%1 feuilles imprimées dans le dossier %2</translation>
    </message>
    <message>
        <source>Printed %1 sheets on %2 (jobs %3 to %4)</source>
        <translation>%1 feuilles imprimées sur %2 (tâches %3 à %4)</translation>
    </message>
    <message>
        <source>Printed %1 sheets on %2</source>
        <translation>%1 feuilles imprimées sur %2</translation>
    </message>
    <message>
        <source>Printing was stopped: printed %1 of %2 jobs.</source>
        <translation>L’impression a été arrêtée&#x202f;: %1 tâches sur %2 imprimées.</translation>
    </message>
    <message>
        <source>Sent %1 of %2 jobs to %3, which continues printing.</source>
        <translation>%1 tâches sur %2 envoyées à %3, qui continue d’imprimer.</translation>
    </message>
    <message>
        <source>Printed %1 of %2 jobs.</source>
        <translation>%1 tâches sur %2 imprimées.</translation>
    </message>
    <message>
        <source>Printed %1 jobs in one PDF: %2</source>
        <translation>%1 tâches imprimées dans un seul PDF&#x202f;: %2</translation>
    </message>
    <message>
        <source>Printed %1 jobs in the folder %2</source>
        <translation>%1 tâches imprimées dans le dossier %2</translation>
    </message>
    <message>
        <source>Printed %1 jobs on %2 (numbers %3 to %4)</source>
        <translation>%1 tâches imprimées sur %2 (numéros %3 à %4)</translation>
    </message>
    <message>
        <source>Printed %1 jobs on %2</source>
        <translation>%1 tâches imprimées sur %2</translation>
    </message>
</context>
<context>
    <name>printdialog::OutputFault</name>
    <message>
        <source>&quot;%1&quot; is not a folder: it is a file, or below one. Choose another folder.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un dossier&#x202f;: c’est un fichier, ou il se trouve sous un fichier. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be made: there is no such folder. Choose another folder.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être créé&#x202f;: ce dossier n’existe pas. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>You may not write &quot;%1&quot;. Choose a folder that you may write to.</source>
        <translation>Vous n’avez pas le droit d’écrire «&#x202f;%1&#x202f;». Choisissez un dossier accessible en écriture.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already there and is not a file that could be replaced. Rename it, or choose another folder.</source>
        <translation>«&#x202f;%1&#x202f;» existe déjà et n’est pas un fichier remplaçable. Renommez-le ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is too long. Rename the photo, or choose another folder.</source>
        <translation>Le nom «&#x202f;%1&#x202f;» est trop long. Renommez la photo ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>There is no space for &quot;%1&quot;. Delete other files, or choose another folder.</source>
        <translation>Il n’y a pas assez de place pour «&#x202f;%1&#x202f;». Supprimez d’autres fichiers ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2. Check the disk, or choose another folder.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas pu être écrit&#x202f;: %2. Vérifiez le disque ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>There is no space for &quot;%1&quot;: your quota on this disk is used up. Delete other files of yours, or choose another folder.</source>
        <translation>Il n’y a pas de place pour «&#x202f;%1&#x202f;»&#x202f;: votre quota sur ce disque est épuisé. Supprimez d’autres fichiers à vous, ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than a file may be here. Raise the limit (ulimit -f), or choose another folder.</source>
        <translation>«&#x202f;%1&#x202f;» est plus grand que ne peut l’être un fichier ici. Relevez la limite (ulimit -f), ou choisissez un autre dossier.</translation>
    </message>
</context>
<context>
    <name>printdialog::OwnJobs</name>
    <message>
        <source>%1 of %2 jobs were left as they are. The first one: %3</source>
        <translation>%1 tâches sur %2 sont restées telles quelles. La première&#x202f;: %3</translation>
    </message>
</context>
<context>
    <name>printdialog::PageBar</name>
    <message>
        <source>Reverse order</source>
        <translation>Ordre inverse</translation>
    </message>
    <message>
        <source>Page ranges</source>
        <translation>Plages de pages</translation>
    </message>
    <message>
        <source>Pages and ranges, separated by commas; 12- is page 12 to the last one</source>
        <translation>Pages et plages, séparées par des virgules&#x202f;; 12-&#x202f;: de la page 12 à la dernière</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>Pages paires et impaires</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>Paires et impaires</translation>
    </message>
    <message>
        <source>Odd only</source>
        <comment>pages</comment>
        <translation>Impaires seulement</translation>
    </message>
    <message>
        <source>Even only</source>
        <comment>pages</comment>
        <translation>Paires seulement</translation>
    </message>
    <message>
        <source>Print the last sheet first</source>
        <translation>Imprimer la dernière feuille en premier</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pages&#x202f;:</translation>
    </message>
    <message>
        <source>All</source>
        <comment>pages</comment>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>Page affichée</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>pages</comment>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Ranges</source>
        <comment>of pages</comment>
        <translation>Plages</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say which pages. Type page numbers from 1 on and ranges, such as 1-3,7,12-.</source>
        <translation>«&#x202f;%1&#x202f;» ne dit pas quelles pages. Saisissez des numéros de page à partir de 1 et des plages, comme 1-3,7,12-.</translation>
    </message>
    <message>
        <source>Type which pages are printed, such as 1-3,7,12-, or choose All.</source>
        <translation>Saisissez les pages à imprimer, comme 1-3,7,12-, ou choisissez «&#x202f;Toutes&#x202f;».</translation>
    </message>
</context>
<context>
    <name>printdialog::PanelTabs</name>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Récapitulatif</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; cannot be shown: its form is missing from the plug-in bundle or damaged. Install the bundle again. Everything else works.</source>
        <translation>L’onglet «&#x202f;%1&#x202f;» ne peut pas être affiché&#x202f;: son formulaire manque dans le module ou est endommagé. Réinstallez le module. Tout le reste fonctionne.</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; cannot be left yet. Finish what it asks for.</source>
        <translation>La page «&#x202f;%1&#x202f;» ne peut pas encore être quittée. Terminez d’abord ce qu’elle demande.</translation>
    </message>
</context>
<context>
    <name>printdialog::PasswordPrompt</name>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>The password does not open &quot;%1&quot;. Check it and enter it again.</source>
        <translation>Le mot de passe n’ouvre pas «&#x202f;%1&#x202f;». Vérifiez-le et saisissez-le de nouveau.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is protected by a password.</source>
        <translation>«&#x202f;%1&#x202f;» est protégé par un mot de passe.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <comment>a document</comment>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Mot de passe&#x202f;:</translation>
    </message>
</context>
<context>
    <name>printdialog::PatientPrinter</name>
    <message>
        <source>%1 waits. It is printed when that is over: %2</source>
        <translation>%1 attend et sera imprimée quand ceci sera terminé&#x202f;: %2</translation>
    </message>
    <message>
        <source>%1 (job %2) waits. It was sent, and is not sent again: %3</source>
        <translation>%1 (tâche %2) attend. La tâche a été envoyée et ne le sera pas une seconde fois&#x202f;: %3</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not print %2 (job %3): %4. Look at the printer and print again.</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» n’a pas pu imprimer %2 (tâche %3)&#xa0;: %4. Vérifiez l’imprimante et relancez l’impression.</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>sans en donner la raison</translation>
    </message>
    <message>
        <source>The job %3 for %2 on the printer &quot;%1&quot; was canceled (%4).</source>
        <translation>La tâche %3 pour %2 sur l’imprimante «&#xa0;%1&#xa0;» a été annulée (%4).</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>sans raison indiquée</translation>
    </message>
    <message>
        <source>The print server does not know its job %1 any more.</source>
        <translation>Le serveur d’impression ne connaît plus sa tâche %1.</translation>
    </message>
    <message>
        <source>Printed %1 on %2 (job %3)</source>
        <translation>%1 imprimée sur %2 (tâche %3)</translation>
    </message>
    <message>
        <source>%1 (job %2) waits: %3. It is printed when that is over.</source>
        <translation>%1 (tâche %2) attend&#x202f;: %3. L’impression aura lieu quand ce sera terminé.</translation>
    </message>
    <message>
        <source>Printing %1 continues.</source>
        <translation>L’impression de %1 continue.</translation>
    </message>
    <message>
        <source>It was being sent, and the print server has no job that must be its.</source>
        <translation>Elle était en cours d’envoi, et aucune tâche du serveur d’impression n’est forcément la sienne.</translation>
    </message>
    <message>
        <source>%1 waits. It was being sent, and only the print server knows whether it is printed: %2</source>
        <translation>%1 attend. L’envoi était en cours, et seul le serveur d’impression sait si l’impression a lieu&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>printdialog::PdfWriter</name>
    <message>
        <source>The page of %1 x %2 points cannot be printed on. Choose another page size.</source>
        <translation>Impossible d’imprimer sur une page de %1 × %2 points. Choisissez un autre format de papier.</translation>
    </message>
    <message>
        <source>The PDF of &quot;%1&quot; could not be written: %2. Check the disk that it goes to.</source>
        <translation>Le PDF de «&#x202f;%1&#x202f;» n’a pas pu être écrit&#x202f;: %2. Vérifiez le disque de destination.</translation>
    </message>
</context>
<context>
    <name>printdialog::Photo</name>
    <message>
        <source>&quot;%1&quot; is too large: %2, where a photo may have %3. Save it with fewer pixels, or as JPEG.</source>
        <translation>«&#x202f;%1&#x202f;» est trop volumineuse&#x202f;: %2, pour un maximum de %3. Enregistrez-la avec moins de pixels, ou en JPEG.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large: %2 x %3 pixels. Scale it down in a photo program.</source>
        <translation>«&#x202f;%1&#x202f;» est trop grande&#x202f;: %2 × %3 pixels. Réduisez-la dans un logiciel de retouche.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is cut short: its end is missing. Copy it again from where it came from.</source>
        <translation>«&#x202f;%1&#x202f;» est incomplète&#x202f;: la fin manque. Copiez-la de nouveau depuis sa source.</translation>
    </message>
    <message>
        <source>There is not enough memory for &quot;%1&quot;. Scale it down in a photo program.</source>
        <translation>La mémoire ne suffit pas pour «&#x202f;%1&#x202f;». Réduisez-la dans un logiciel de photo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: a part of the picture is missing or wrong. Copy it again from where it came from.</source>
        <translation>«&#x202f;%1&#x202f;» est endommagée&#x202f;: une partie de l’image manque ou est fausse. Copiez-la de nouveau depuis sa source.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an interlaced PNG of %2 x %3 pixels, which takes too much memory. Save it without interlacing, or as JPEG.</source>
        <translation>«&#x202f;%1&#x202f;» est un PNG entrelacé de %2 x %3 pixels, qui demande trop de mémoire. Enregistrez-la sans entrelacement, ou en JPEG.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a JPEG of a rare kind, lossless or with more than 8 bits, which cannot be printed. Save it as a usual JPEG in a photo program.</source>
        <translation>«&#x202f;%1&#x202f;» est un JPEG d’un type rare, sans perte ou de plus de 8 bits, qui ne peut pas être imprimé. Enregistrez-le comme JPEG ordinaire dans un logiciel de photo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged and cannot be shown. Copy it again, or save it again in a photo program.</source>
        <translation>«&#x202f;%1&#x202f;» est endommagée et ne peut pas être affichée. Copiez-la de nouveau ou enregistrez-la de nouveau dans un logiciel de retouche.</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <comment>a page of a document</comment>
        <translation>%1, page %2</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoFile</name>
    <message>
        <source>There is no photo &quot;%1&quot;. Check its name and folder.</source>
        <translation>Il n’y a pas de photo «&#x202f;%1&#x202f;». Vérifiez son nom et son dossier.</translation>
    </message>
    <message>
        <source>You may not read &quot;%1&quot;. Ask its owner for the permission to read it.</source>
        <translation>Vous n’avez pas le droit de lire «&#x202f;%1&#x202f;». Demandez-le à son propriétaire.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be read: %2. Check the disk or card that it is on.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas pu être lue&#x202f;: %2. Vérifiez le disque ou la carte où elle se trouve.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Choose a photo inside it.</source>
        <translation>«&#x202f;%1&#x202f;» est un dossier. Choisissez une photo qui s’y trouve.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file but a device, a pipe or a socket. Choose a photo.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un fichier mais un périphérique, un tube ou un socket. Choisissez une photo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed since it was opened. Add it again.</source>
        <translation>«&#x202f;%1&#x202f;» a changé depuis son ouverture. Ajoutez-la de nouveau.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Copy the file again from where it came from.</source>
        <translation>«&#x202f;%1&#x202f;» est vide. Copiez de nouveau le fichier depuis sa source.</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoFormat</name>
    <message>
        <source>camera raw</source>
        <translation>brut d’appareil photo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a photo of the format %2, which needs the package %3. Install it, or save the photo as JPEG.</source>
        <translation>«&#x202f;%1&#x202f;» est une photo au format %2, qui demande le paquet %3. Installez-le, ou enregistrez la photo en JPEG.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of the format %2, which cannot be printed. Save it as one of these: %3.</source>
        <translation>«&#x202f;%1&#x202f;» est au format %2, qui ne peut pas être imprimé. Enregistrez le fichier dans l’un de ceux-ci&#x202f;: %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a photo or document of a known kind, whatever its name says. Save it as one of these: %2.</source>
        <translation>«&#x202f;%1&#x202f;» n’est ni une photo ni un document d’un type connu, quel que soit son nom. Enregistrez le fichier dans l’un de ces formats&#x202f;: %2.</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoPane</name>
    <message>
        <source>A&amp;dd…</source>
        <translation>A&amp;jouter…</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Enle&amp;ver</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 sur %3)</translation>
    </message>
    <message>
        <source>Damaged: a part of the picture is missing or wrong.</source>
        <translation>Endommagée&#x202f;: une partie de l’image manque ou est fausse.</translation>
    </message>
    <message>
        <source>The printer places it on the page itself; the preview is only an example.</source>
        <translation>L’imprimante la place elle-même sur la page&#x202f;; l’aperçu n’est qu’un exemple.</translation>
    </message>
    <message numerus="yes">
        <source>%n more file(s) cannot be printed.</source>
        <translation>
            <numerusform>%n autre fichier ne peut pas être imprimé.</numerusform>
            <numerusform>%n autres fichiers ne peuvent pas être imprimés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Sheets: %1</source>
        <translation>Feuilles&#xa0;: %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Enlever</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Tourner</translation>
    </message>
    <message>
        <source>Copies…</source>
        <comment>of the selected photos</comment>
        <translation>Copies…</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Trier par</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>an order of photos</comment>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Date</source>
        <comment>an order of photos</comment>
        <translation>Date</translation>
    </message>
    <message>
        <source>As added</source>
        <comment>an order of photos</comment>
        <translation>Ordre d’ajout</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>Appliquer à toutes</translation>
    </message>
    <message>
        <source>Print lists</source>
        <translation>Listes d’impression</translation>
    </message>
    <message>
        <source>Open a Print List</source>
        <translation>Ouvrir une liste d’impression</translation>
    </message>
    <message>
        <source>Open List…</source>
        <comment>of photos</comment>
        <translation>Ouvrir une liste…</translation>
    </message>
    <message>
        <source>Save List…</source>
        <comment>of photos</comment>
        <translation>Enregistrer la liste…</translation>
    </message>
    <message>
        <source>Show Each Page</source>
        <translation>Afficher les pages</translation>
    </message>
    <message>
        <source>Photos and documents</source>
        <translation>Photos et documents</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>Documents PDF</translation>
    </message>
    <message>
        <source>Add Photos or Documents</source>
        <translation>Ajouter des photos ou des documents</translation>
    </message>
    <message>
        <source>This page is not printed.</source>
        <translation>Cette page n’est pas imprimée.</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; is empty.</source>
        <translation>La liste d’impression «&#x202f;%1&#x202f;» est vide.</translation>
    </message>
    <message>
        <source>Save a Print List</source>
        <translation>Enregistrer une liste d’impression</translation>
    </message>
    <message>
        <source>Sides of sheets: %1</source>
        <translation>Faces des feuilles&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1, page %2 of %3</source>
        <translation>%1, page %2 sur %3</translation>
    </message>
    <message>
        <source>Height of the table</source>
        <translation>Hauteur du tableau</translation>
    </message>
    <message>
        <source>Drag to see more or fewer pictures</source>
        <translation>Faire glisser pour voir plus ou moins d’images</translation>
    </message>
    <message>
        <source>Add photos and PDF documents to this job; they can be dropped on the window as well</source>
        <translation>Ajouter des photos et des documents PDF à cette tâche&#x202f;; on peut aussi les déposer sur la fenêtre</translation>
    </message>
    <message>
        <source>Take what is selected out of this job; the files stay</source>
        <translation>Retirer la sélection de cette tâche&#x202f;; les fichiers restent</translation>
    </message>
    <message>
        <source>Show the pages as a table, in which they are moved, removed and placed one by one; otherwise what is chosen holds for all of them</source>
        <translation>Afficher les pages dans un tableau, où elles se déplacent, se retirent et se placent une à une&#x202f;; sinon, ce qui est choisi vaut pour toutes</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoTable</name>
    <message>
        <source>Delete removes the selected photos; Alt with an arrow key moves them.</source>
        <translation>Suppr retire les photos sélectionnées&#xa0;; Alt avec une touche fléchée les déplace.</translation>
    </message>
    <message>
        <source>%1 of this job</source>
        <comment>such as: 3 photos and 12 pages</comment>
        <translation>%1 de cette tâche</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoTableModel</name>
    <message>
        <source>%1: %2</source>
        <comment>a photo&apos;s number and name</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n copies</source>
        <translation>
            <numerusform>%n copie</numerusform>
            <numerusform>%n copies</numerusform>
        </translation>
    </message>
    <message>
        <source>whole page</source>
        <translation>page entière</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>endommagée</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>not printed</source>
        <translation>non imprimée</translation>
    </message>
</context>
<context>
    <name>printdialog::PlacementBar</name>
    <message>
        <source>&amp;Turn</source>
        <translation>&amp;Tourner</translation>
    </message>
    <message>
        <source>P&amp;lacement:</source>
        <translation>Place&amp;ment&#x202f;:</translation>
    </message>
    <message>
        <source>This printer places the photo on the page itself.</source>
        <translation>Cette imprimante place elle-même la photo sur la page.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Size, border and copies of the photos, and how they share sheets</source>
        <translation>Taille, bordure et nombre des photos, et leur répartition sur les feuilles</translation>
    </message>
    <message>
        <source>Placement on the paper</source>
        <translation>Placement sur le papier</translation>
    </message>
    <message>
        <source>Turn the photo or page by a quarter, clockwise</source>
        <translation>Tourner la photo ou la page d’un quart, dans le sens horaire</translation>
    </message>
</context>
<context>
    <name>printdialog::PortalSettings</name>
    <message>
        <source>The program&apos;s setting &quot;%1&quot; cannot be used: it is not plain text.</source>
        <translation>Le réglage «&#xa0;%1&#xa0;» du programme est inutilisable&#xa0;: ce n’est pas du texte simple.</translation>
    </message>
    <message>
        <source>The program&apos;s setting &quot;%1&quot; cannot be used: it is &quot;%2&quot;.</source>
        <translation>Le réglage «&#xa0;%1&#xa0;» du programme est inutilisable&#xa0;: il vaut «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The program has more than %1 settings; the others are left out.</source>
        <translation>Le programme a plus de %1 réglages&#x202f;; les autres sont laissés de côté.</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetBar</name>
    <message>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no preset is in use</comment>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>M&amp;anage</source>
        <translation>&amp;Gérer</translation>
    </message>
    <message>
        <source>Save, rename or delete presets; go back to earlier choices</source>
        <translation>Enregistrer, renommer ou supprimer des préréglages, revenir à des choix antérieurs</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Nom du préréglage</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Renommer…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>S&amp;upprimer…</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modifié)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Save &quot;%1&quot;</source>
        <translation>&amp;Enregistrer «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;?</source>
        <translation>Supprimer «&#x202f;%1&#x202f;»&#x202f;?</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>Valeurs par défaut de l’imprimante</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetController</name>
    <message>
        <source>Of the choices used last, some are left out:</source>
        <translation>Parmi les derniers réglages utilisés, certains ne sont pas repris&#x202f;:</translation>
    </message>
    <message>
        <source>Re&amp;vert to How the Dialog Opened</source>
        <translation>Re&amp;venir à l’état d’ouverture</translation>
    </message>
    <message>
        <source>Of the preset &quot;%1&quot;, some choices are left out:</source>
        <translation>Certains choix du préréglage «&#x202f;%1&#x202f;» ne sont pas repris&#x202f;:</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>Et %n autre.</numerusform>
            <numerusform>Et %n autres.</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; no longer exists.</source>
        <translation>Le préréglage «&#x202f;%1&#x202f;» n’existe plus.</translation>
    </message>
    <message>
        <source>Of the printer&apos;s defaults, some are left out:</source>
        <translation>Certaines valeurs par défaut de l’imprimante ne sont pas reprises&#x202f;:</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetName</name>
    <message>
        <source>A preset needs a name.</source>
        <translation>Un préréglage doit avoir un nom.</translation>
    </message>
    <message>
        <source>The name holds a control character, such as a tab or a line break. Type it without.</source>
        <translation>Le nom contient un caractère de contrôle, comme une tabulation ou un saut de ligne. Saisissez-le sans ce caractère.</translation>
    </message>
    <message>
        <source>The name is too long: it takes %1 bytes to store, and CUPS allows %2. Choose a shorter one.</source>
        <translation>Le nom est trop long&#x202f;: il occupe %1 octets une fois enregistré, et CUPS en autorise %2. Choisissez-en un plus court.</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetStore</name>
    <message>
        <source>The preset &quot;%1&quot; is not saved: with %2 options it is longer than the %3 bytes that CUPS reads. Save the settings instead.</source>
        <translation>Le préréglage «&#x202f;%1&#x202f;» n’est pas enregistré&#x202f;: avec %2 options, il dépasse les %3 octets que CUPS lit. Enregistrez plutôt les réglages.</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; keeps its name: with the new one it is longer than the %2 bytes that CUPS reads. Choose a shorter one.</source>
        <translation>Le préréglage «&#x202f;%1&#x202f;» garde son nom&#x202f;: avec le nouveau, il dépasse les %2 octets que CUPS lit. Choisissez-en un plus court.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no preset &quot;%2&quot;, nor any other. Choose the printer without a preset.</source>
        <translation>L’imprimante «&#x202f;%1&#x202f;» n’a pas de préréglage «&#x202f;%2&#x202f;», ni aucun autre. Choisissez l’imprimante sans préréglage.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no preset &quot;%2&quot;. Choose one of its %3 others, or the printer without a preset.</source>
        <translation>L’imprimante «&#x202f;%1&#x202f;» n’a pas de préréglage «&#x202f;%2&#x202f;». Choisissez l’un de ses %3 autres, ou l’imprimante sans préréglage.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no preset &quot;%2&quot;. Its presets: %3. Choose one of them, or the printer without a preset.</source>
        <translation>L’imprimante «&#x202f;%1&#x202f;» n’a pas de préréglage «&#x202f;%2&#x202f;». Ses préréglages&#x202f;: %3. Choisissez-en un, ou l’imprimante sans préréglage.</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already. Choose another name.</source>
        <translation>Il existe déjà un préréglage «&#x202f;%1&#x202f;». Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; is the system&apos;s. Save one of your own under a new name.</source>
        <translation>Le préréglage «&#x202f;%1&#x202f;» est celui du système. Enregistrez le vôtre sous un nouveau nom.</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; no longer exists. Save it under a new name.</source>
        <translation>Le préréglage «&#x202f;%1&#x202f;» n’existe plus. Enregistrez-le sous un nouveau nom.</translation>
    </message>
</context>
<context>
    <name>printdialog::PreviewBar</name>
    <message>
        <source>Show the page smaller</source>
        <translation>Afficher la page en plus petit</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>How large the page is shown</source>
        <translation>Taille d’affichage de la page</translation>
    </message>
    <message>
        <source>Show the page larger</source>
        <translation>Afficher la page en plus grand</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>Hold to see the photo without the printer&apos;s adjustments (%1)</source>
        <translation>Maintenir enfoncé pour voir la photo sans les réglages de l’imprimante (%1)</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Diviser</translation>
    </message>
    <message>
        <source>Show the photo without the printer&apos;s adjustments left of a divider that can be dragged</source>
        <translation>Afficher la photo sans les réglages de l’imprimante à gauche d’un séparateur que l’on peut déplacer</translation>
    </message>
    <message>
        <source>Mark the tones that the adjustments clip to black or white</source>
        <translation>Marquer les tons que les réglages écrêtent au noir ou au blanc</translation>
    </message>
    <message>
        <source>Soft proof</source>
        <translation>Épreuve écran</translation>
    </message>
    <message>
        <source>Show the colors as the printer&apos;s paper has them</source>
        <translation>Afficher les couleurs telles que le papier de l’imprimante les rend</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>a zoom</comment>
        <translation>%1&#x202f;%</translation>
    </message>
    <message>
        <source>Clipped: %1 %</source>
        <translation>Écrêté&#x202f;: %1&#x202f;%</translation>
    </message>
    <message>
        <source>Clipped</source>
        <translation>Écrêté</translation>
    </message>
    <message>
        <source>Preview is approximate</source>
        <translation>L’aperçu est approximatif</translation>
    </message>
    <message>
        <source>sharpness shows at 100 %</source>
        <translation>la netteté se voit à 100&#x202f;%</translation>
    </message>
    <message>
        <source> · </source>
        <comment>between two short notes</comment>
        <translation> · </translation>
    </message>
    <message>
        <source>Zoom: %1</source>
        <translation>Zoom&#x202f;: %1</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>Règle</translation>
    </message>
    <message>
        <source>Measure the sheet along its edges</source>
        <translation>Mesurer la feuille le long de ses bords</translation>
    </message>
</context>
<context>
    <name>printdialog::PreviewWidget</name>
    <message>
        <source>Preview of %1</source>
        <translation>Aperçu de %1</translation>
    </message>
    <message>
        <source>This photo cannot be shown</source>
        <translation>Cette photo ne peut pas être affichée</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>Aperçu de la page</translation>
    </message>
    <message>
        <source>The whole photo is printed.</source>
        <translation>La photo entière est imprimée.</translation>
    </message>
    <message>
        <source>%1 % of the photo is cut off.</source>
        <translation>%1 % de la photo sont rognés.</translation>
    </message>
    <message>
        <source>Drag the photo, or press the arrow keys, to move it; Home puts it in the middle.</source>
        <translation>Faites glisser la photo ou utilisez les flèches pour la déplacer&#x202f;; Début la remet au milieu.</translation>
    </message>
    <message>
        <source>Drag it, or press the arrow keys, to see another part; 0 shows the entire page.</source>
        <translation>Faire glisser ou appuyer sur les touches fléchées pour voir une autre partie&#x202f;; 0 affiche la page entière.</translation>
    </message>
    <message>
        <source>Left of the divider, the photo is shown without the adjustments. Drag the divider, or press Ctrl and an arrow key, to move it.</source>
        <translation>À gauche du séparateur, la photo est affichée sans les réglages. Faire glisser le séparateur, ou appuyer sur Ctrl et une touche fléchée, pour le déplacer.</translation>
    </message>
    <message>
        <source>Prints %1 beyond the edges of the paper</source>
        <comment>borderless</comment>
        <translation>Imprime %1 au-delà des bords du papier</translation>
    </message>
    <message>
        <source>The print is %1, %2 from the left edge of the sheet and %3 from its top.</source>
        <translation>Le tirage mesure %1 et se trouve à %2 du bord gauche de la feuille et à %3 de son bord supérieur.</translation>
    </message>
    <message>
        <source>Sheet %1 of %2.</source>
        <translation>Feuille %1 sur %2.</translation>
    </message>
    <message>
        <source>Photo %1 of %2 on the sheet.</source>
        <translation>Photo %1 sur %2 de la feuille.</translation>
    </message>
    <message>
        <source>Click on a photo to change how it is printed.</source>
        <translation>Cliquez sur une photo pour modifier la façon dont elle est imprimée.</translation>
    </message>
    <message>
        <source>Nothing to print. Drop photos or PDF documents here, or press Add.</source>
        <translation>Rien à imprimer. Déposez ici des photos ou des documents PDF, ou appuyez sur Ajouter.</translation>
    </message>
    <message>
        <source>This page cannot be shown</source>
        <translation>Cette page ne peut pas être affichée</translation>
    </message>
    <message>
        <source>Page %1 of %2 on the sheet.</source>
        <translation>Page %1 sur %2 de la feuille.</translation>
    </message>
    <message>
        <source>The whole page is printed.</source>
        <translation>La page entière est imprimée.</translation>
    </message>
    <message>
        <source>%1 % of the page is cut off.</source>
        <translation>%1 % de la page sont coupés.</translation>
    </message>
    <message>
        <source>Drag the page, or press the arrow keys, to move it; Home puts it in the middle.</source>
        <translation>Faites glisser la page, ou appuyez sur les flèches, pour la déplacer&#x202f;; Origine la remet au milieu.</translation>
    </message>
    <message>
        <source>Click on a page to change how it is printed.</source>
        <translation>Cliquez sur une page pour changer son impression.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintBar</name>
    <message>
        <source>Apply to All</source>
        <translation>Appliquer à toutes</translation>
    </message>
    <message>
        <source> %</source>
        <comment>after a number</comment>
        <translation> %</translation>
    </message>
    <message>
        <source>Color of the border</source>
        <translation>Couleur de la bordure</translation>
    </message>
    <message>
        <source>How often each of the selected photos is printed; Copies counts the whole job</source>
        <translation>Nombre de tirages de chacune des photos sélectionnées&#xa0;; «&#xa0;Copies&#xa0;» compte le travail entier</translation>
    </message>
    <message>
        <source>Give all photos the placement, size, border and number of prints of the one that is shown</source>
        <translation>Donner à toutes les photos la disposition, la taille, la bordure et le nombre de tirages de celle qui est affichée</translation>
    </message>
    <message>
        <source>Print size:</source>
        <translation>Format du tirage&#xa0;:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>Échelle&#xa0;:</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>Bordure&#xa0;:</translation>
    </message>
    <message>
        <source>Prints of each:</source>
        <translation>Tirages de chacune&#xa0;:</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>Page entière</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>a print&apos;s size to type</comment>
        <translation>Personnalisé…</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>Imprimer %1</translation>
    </message>
    <message>
        <source>Folder for Printed Files</source>
        <translation>Dossier des fichiers imprimés</translation>
    </message>
    <message>
        <source>This printer has no panels of its own; it prints with its defaults.</source>
        <translation>Cette imprimante n’a pas d’onglets propres&#x202f;; elle imprime avec ses réglages par défaut.</translation>
    </message>
    <message>
        <source>Printing is under way.</source>
        <translation>Impression en cours.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The settings are saved for &quot;%1&quot;.</source>
        <translation>Les réglages de «&#x202f;%1&#x202f;» ont été enregistrés.</translation>
    </message>
    <message>
        <source>The options of &quot;%1&quot; have changed. Your choices were kept as far as the printer still has them; look at them before you print.</source>
        <translation>Les options de «&#xa0;%1&#xa0;» ont changé. Vos choix ont été conservés dans la mesure où l’imprimante les a encore&#xa0;; vérifiez-les avant d’imprimer.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Use the Built-in Printer</source>
        <translation>Utiliser l’imprimante intégrée</translation>
    </message>
    <message>
        <source>Nothing is saved.</source>
        <translation>Rien n’est enregistré.</translation>
    </message>
    <message>
        <source>Close Anyway</source>
        <translation>Fermer quand même</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>a paper size to type</comment>
        <translation>Personnalisé…</translation>
    </message>
    <message>
        <source>This printer has no PPD file and so no options of its own: it gets the photo&apos;s file as it is, and places it on the page itself.</source>
        <translation>Cette imprimante n’a pas de fichier PPD, donc pas d’options propres&#xa0;: elle reçoit le fichier de la photo tel quel et le place elle-même sur la page.</translation>
    </message>
    <message>
        <source>%1 (not loaded)</source>
        <comment>a paper size</comment>
        <translation>%1 (non chargé)</translation>
    </message>
    <message>
        <source>Close Without Printing</source>
        <translation>Fermer sans imprimer</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>Laisser ouverte</translation>
    </message>
    <message>
        <source>Save List…</source>
        <translation>Enregistrer la liste…</translation>
    </message>
    <message>
        <source>One PDF for each sheet</source>
        <translation>Un PDF par feuille</translation>
    </message>
    <message>
        <source>One PDF for each photo</source>
        <translation>Un PDF par photo</translation>
    </message>
    <message>
        <source>The program brings the pages after you press &quot;%1&quot;.</source>
        <translation>Le programme fournit les pages après que vous avez appuyé sur «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>%1 brings the pages after you press &quot;%2&quot;.</source>
        <translation>%1 fournit les pages après que vous avez appuyé sur «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The list is saved as &quot;%1&quot;.</source>
        <translation>La liste est enregistrée sous «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>Print</source>
        <comment>a title</comment>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>PDFs named after the files</source>
        <translation>PDF portant le nom des fichiers</translation>
    </message>
    <message>
        <source>Files are still being opened.</source>
        <translation>Des fichiers sont encore en cours d’ouverture.</translation>
    </message>
    <message>
        <source>There is nothing to print.</source>
        <translation>Il n’y a rien à imprimer.</translation>
    </message>
    <message>
        <source>The sheets were arranged and not printed. Close the window all the same?</source>
        <translation>Les feuilles ont été disposées et ne sont pas imprimées. Fermer la fenêtre malgré tout&#x202f;?</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintList</name>
    <message>
        <source>&quot;%1&quot; is not a print list. Save it again in the print window.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas une liste d’impression. Enregistrez-la de nouveau dans la fenêtre d’impression.</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; cannot be used: &quot;%2&quot; cannot be %3. Correct it, or save the list again in the print window.</source>
        <translation>La liste d’impression «&#x202f;%1&#x202f;» est inutilisable&#x202f;: «&#x202f;%2&#x202f;» ne peut pas valoir %3. Corrigez-la, ou enregistrez-la de nouveau dans la fenêtre d’impression.</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; could not be read: %2.</source>
        <translation>La liste d’impression «&#x202f;%1&#x202f;» n’a pas pu être lue&#x202f;: %2.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>elle est trop grande</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; is from a later version of this program. Update the program, or save the list again with this one.</source>
        <translation>La liste d’impression «&#x202f;%1&#x202f;» vient d’une version plus récente de ce programme. Mettez-le à jour, ou enregistrez de nouveau la liste avec celui-ci.</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; could not be saved: %2. Choose another folder.</source>
        <translation>La liste d’impression «&#x202f;%1&#x202f;» n’a pas pu être enregistrée&#x202f;: %2. Choisissez un autre dossier.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintPortal</name>
    <message>
        <source>%1 was not printed</source>
        <translation>%1 n’a pas été imprimé</translation>
    </message>
    <message>
        <source>Problem with printing %1</source>
        <translation>Problème d’impression de %1</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintPositionWindow</name>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>Imprimer une page de &amp;test</translation>
    </message>
    <message>
        <source>&amp;Correct</source>
        <translation>&amp;Corriger</translation>
    </message>
    <message>
        <source>Print Position</source>
        <translation>Position d’impression</translation>
    </message>
    <message>
        <source>To the &amp;right:</source>
        <translation>Vers la d&amp;roite&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Down:</source>
        <translation>Vers le &amp;bas&#x202f;:</translation>
    </message>
    <message>
        <source>From the &amp;left edge:</source>
        <translation>Du bord &amp;gauche&#x202f;:</translation>
    </message>
    <message>
        <source>From the to&amp;p edge:</source>
        <translation>Du bord &amp;supérieur&#x202f;:</translation>
    </message>
    <message>
        <source>The test page has a line %1 mm from the left edge and one %1 mm from the top edge. Print it, and measure them:</source>
        <translation>La page de test a une ligne à %1 mm du bord gauche et une à %1 mm du bord supérieur. Imprimez-la, et mesurez-les&#x202f;:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Everything printed on &quot;%1&quot; with the paper size &quot;%2&quot; is moved:</source>
        <translation>Tout ce qui est imprimé sur «&#x202f;%1&#x202f;» avec le format de papier «&#x202f;%2&#x202f;» est déplacé&#x202f;:</translation>
    </message>
    <message>
        <source>Prints can be moved by %1 mm at most. Check which paper is loaded, and the paper size, then print the test page again.</source>
        <translation>L’impression peut être déplacée de %1 mm au plus. Vérifiez quel papier est chargé, ainsi que le format du papier, puis imprimez de nouveau la page de test.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintProgress</name>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintRun</name>
    <message>
        <source>%1 The sheet with %2 is not printed.</source>
        <translation>%1 La feuille avec %2 n’est pas imprimée.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintWorker</name>
    <message>
        <source>Writing %1</source>
        <translation>Écriture de&#xa0;%1</translation>
    </message>
    <message>
        <source>Sending %1 to %2</source>
        <translation>Envoi de&#xa0;%1 à&#xa0;%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;:&#xa0;%2</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 sur %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>Vérification de&#xa0;%1</translation>
    </message>
    <message>
        <source>%1 was not printed.</source>
        <translation>%1 n’a pas été imprimée.</translation>
    </message>
    <message>
        <source>%1 of %2, %3: %4</source>
        <translation>%1 sur %2, %3&#x202f;: %4</translation>
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
        <translation>L’imprimante «&#x202f;%1&#x202f;» n’est plus là. Choisissez-en une autre.</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;. Choose another one.</source>
        <translation>Il n’y a pas d’imprimante «&#x202f;%1&#x202f;». Choisissez-en une autre.</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is not there. %2</source>
        <translation>L’imprimante «&#x202f;%1&#x202f;» n’est pas là. %2</translation>
    </message>
    <message>
        <source>%1 (on the network)</source>
        <translation>%1 (sur le réseau)</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot; (%2). Choose another one.</source>
        <translation>Il n’y a pas d’imprimante «&#x202f;%1&#x202f;» (%2). Choisissez-en une autre.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrinterController</name>
    <message>
        <source>The print server has not confirmed yet that the printer &quot;%1&quot; is there.</source>
        <translation>Le serveur d’impression n’a pas encore confirmé la présence de l’imprimante «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The options of &quot;%1&quot; are being fetched from the print server.</source>
        <translation>Les options de «&#x202f;%1&#x202f;» sont en cours de lecture sur le serveur d’impression.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrinterSearch</name>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Type a part of its name, place or model to find it</source>
        <translation>Pour la trouver, saisir une partie de son nom, de son lieu ou de son modèle</translation>
    </message>
</context>
<context>
    <name>printdialog::PrinterStatus</name>
    <message>
        <source>One of %1; its options are those of the first.</source>
        <translation>Une parmi&#xa0;%1&#xa0;; ses options sont celles de la première.</translation>
    </message>
    <message>
        <source>The print server is being asked for this printer.</source>
        <translation>Le serveur d’impression est interrogé sur cette imprimante.</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintingController</name>
    <message>
        <source>Printing…</source>
        <translation>Impression…</translation>
    </message>
    <message>
        <source>Nothing was printed: a photo that was removed meanwhile is damaged. Print again.</source>
        <translation>Rien n’a été imprimé&#x202f;: une photo retirée entre-temps est endommagée. Relancez l’impression.</translation>
    </message>
    <message>
        <source>%1 is damaged: a part of the picture is missing or wrong. Look at it, then print it as it is, or remove it and copy it again from where it came from.</source>
        <translation>%1 est endommagée&#x202f;: une partie de l’image manque ou est fausse. Regardez-la, puis imprimez-la telle quelle, ou retirez-la et copiez-la de nouveau depuis sa source.</translation>
    </message>
    <message>
        <source>These photos are damaged: %1. Look at them, then print them as they are, or remove them and copy them again from where they came from.</source>
        <translation>Ces photos sont endommagées&#x202f;: %1. Regardez-les, puis imprimez-les telles quelles, ou retirez-les et copiez-les de nouveau depuis leur source.</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>Imprimer quand même</translation>
    </message>
    <message>
        <source>Print without these choices? The printer&apos;s own defaults take their place.</source>
        <translation>Imprimer sans ces choix&#x202f;? Les réglages par défaut de l’imprimante les remplacent.</translation>
    </message>
    <message>
        <source>Print Without Them</source>
        <translation>Imprimer sans eux</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Arrêt…</translation>
    </message>
    <message>
        <source>Stop Printing</source>
        <translation>Arrêter l’impression</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>Laisser ouverte</translation>
    </message>
    <message>
        <source>Printed so far: %1 of %2 photos. The rest is not printed when this window is closed.</source>
        <translation>Photos imprimées jusqu’ici&#xa0;: %1 sur %2. Le reste n’est pas imprimé si cette fenêtre est fermée.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>The print server continues printing when this window is closed.</source>
        <translation>Le serveur d’impression continue d’imprimer quand cette fenêtre est fermée.</translation>
    </message>
    <message>
        <source>When this window is closed, the print server continues printing the %1 of %2 photos that it has. The rest is not printed.</source>
        <translation>Si cette fenêtre est fermée, le serveur d’impression continue d’imprimer les %1 photos sur %2 qu’il a reçues. Le reste n’est pas imprimé.</translation>
    </message>
    <message>
        <source>Print position</source>
        <comment>a file&apos;s name</comment>
        <translation>Position d’impression</translation>
    </message>
    <message>
        <source>The test page could not be made in &quot;%1&quot;. Free some space there.</source>
        <translation>La page de test n’a pas pu être créée dans «&#x202f;%1&#x202f;». Libérez-y de la place.</translation>
    </message>
    <message>
        <source>Jobs…</source>
        <translation>Tâches…</translation>
    </message>
    <message>
        <source>Print the Rest</source>
        <translation>Imprimer le reste</translation>
    </message>
    <message>
        <source>Stopping after this photo…</source>
        <translation>Arrêt après cette photo…</translation>
    </message>
    <message>
        <source>Stop After This Photo</source>
        <translation>Arrêter après cette photo</translation>
    </message>
    <message>
        <source>Stop at Once</source>
        <translation>Arrêter tout de suite</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already there. Keep it, and give the new PDF a number, or replace it?</source>
        <translation>«&#x202f;%1&#x202f;» existe déjà. Le garder et numéroter le nouveau PDF, ou le remplacer&#x202f;?</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Garder les deux</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Stopping after this sheet…</source>
        <translation>Arrêt après cette feuille…</translation>
    </message>
    <message>
        <source>Stop After This Sheet</source>
        <translation>Arrêter après cette feuille</translation>
    </message>
    <message>
        <source>Stop printing? What is not printed yet is canceled.</source>
        <translation>Arrêter l’impression&#x202f;? Ce qui n’est pas encore imprimé est retiré.</translation>
    </message>
    <message>
        <source>Printed so far: %1 of %2 sheets. The rest is not printed when this window is closed.</source>
        <translation>Feuilles imprimées jusqu’ici&#xa0;: %1 sur %2. Le reste n’est pas imprimé si cette fenêtre est fermée.</translation>
    </message>
    <message>
        <source>When this window is closed, the print server continues printing the %1 of %2 sheets that it has. The rest is not printed.</source>
        <translation>Si cette fenêtre est fermée, le serveur d’impression continue d’imprimer les %1 feuilles sur %2 qu’il a reçues. Le reste n’est pas imprimé.</translation>
    </message>
    <message>
        <source>Stopping after this job…</source>
        <translation>Arrêt après cette tâche…</translation>
    </message>
    <message>
        <source>Stop After This Job</source>
        <translation>Arrêter après cette tâche</translation>
    </message>
    <message>
        <source>Printed so far: %1 of %2 jobs. The rest is not printed when this window is closed.</source>
        <translation>Tâches imprimées jusqu’ici&#xa0;: %1 sur %2. Le reste n’est pas imprimé si cette fenêtre est fermée.</translation>
    </message>
    <message>
        <source>When this window is closed, the print server continues printing the %1 of %2 jobs that it has. The rest is not printed.</source>
        <translation>Si cette fenêtre est fermée, le serveur d’impression continue d’imprimer les %1 tâches sur %2 qu’il a reçues. Le reste n’est pas imprimé.</translation>
    </message>
</context>
<context>
    <name>printdialog::SettingsFile</name>
    <message>
        <source>The file %1 cannot be read: %2. Make it readable, or move it away.</source>
        <translation>Le fichier %1 ne peut pas être lu&#x202f;: %2. Rendez-le lisible ou déplacez-le.</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop gros</translation>
    </message>
    <message>
        <source>Nothing could be saved in %1: %2. Make room there, or make it writable.</source>
        <translation>Rien n’a pu être enregistré dans %1&#x202f;: %2. Libérez de la place ou rendez l’emplacement accessible en écriture.</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>le dossier ne peut pas être créé</translation>
    </message>
    <message>
        <source>Nothing could be saved in %1: another program is writing there. Try again.</source>
        <translation>Rien n’a pu être enregistré dans %1&#x202f;: un autre programme y écrit en ce moment. Réessayez.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetBar</name>
    <message>
        <source>Previous sheet</source>
        <translation>Feuille précédente</translation>
    </message>
    <message>
        <source>Next sheet</source>
        <translation>Feuille suivante</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Feuille %1 sur %2</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetPdf</name>
    <message>
        <source>There is not enough memory to print &quot;%1&quot;. Print it in several parts.</source>
        <translation>Il n’y a pas assez de mémoire pour imprimer «&#x202f;%1&#x202f;». Imprimez-le en plusieurs parties.</translation>
    </message>
    <message>
        <source>The PDF of &quot;%1&quot; could not be written: %2. Check the disk that it goes to.</source>
        <translation>Le PDF de «&#x202f;%1&#x202f;» n’a pas pu être écrit&#x202f;: %2. Vérifiez le disque de destination.</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetPlan</name>
    <message>
        <source>More than %1 prints are too many for one job. Print the photos in several parts.</source>
        <translation>Plus de %1 tirages, c’est trop pour un seul travail. Imprimez les photos en plusieurs fois.</translation>
    </message>
    <message>
        <source>As many prints of a size as fit need that size. Choose a print size.</source>
        <translation>Pour placer autant de tirages d’un format que possible, il faut ce format. Choisissez un format de tirage.</translation>
    </message>
    <message>
        <source>So many photos with these gaps leave no room for themselves on the paper&apos;s printable area of %1. Choose fewer, a smaller gap or a larger paper.</source>
        <translation>La zone imprimable de %1 ne suffit pas pour autant de photos avec ces espaces. Choisissez moins de photos, un espace plus petit ou un papier plus grand.</translation>
    </message>
    <message>
        <source>A print of %1 has no room on the paper&apos;s printable area of %2. Choose a smaller size or a larger paper.</source>
        <translation>Un tirage de %1 ne tient pas dans la zone imprimable de %2. Choisissez un format plus petit ou un papier plus grand.</translation>
    </message>
    <message>
        <source>A print of %1 has no room in its place of %2 on the sheet. Choose a smaller size, or fewer rows and columns.</source>
        <translation>Un tirage de %1 ne tient pas dans son emplacement de %2 sur la feuille. Choisissez un format plus petit, ou moins de lignes et de colonnes.</translation>
    </message>
    <message>
        <source>A border of %1 leaves nothing of a print of %2. Choose a narrower one.</source>
        <translation>Une bordure de %1 ne laisse rien d’un tirage de %2. Choisissez-en une plus étroite.</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetPrinter</name>
    <message>
        <source>Printed %1: %2</source>
        <translation>%1 imprimée&#x202f;: %2</translation>
    </message>
    <message>
        <source>Sent %1 to %2 as job %3</source>
        <translation>%1 envoyée à %2 (travail %3)</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not print %2 (job %3): %4. Look at the printer and print again.</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» n’a pas pu imprimer %2 (tâche %3)&#xa0;: %4. Vérifiez l’imprimante et relancez l’impression.</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>sans en donner la raison</translation>
    </message>
    <message>
        <source>The job %3 for %2 on the printer &quot;%1&quot; was canceled (%4).</source>
        <translation>La tâche %3 pour %2 sur l’imprimante «&#xa0;%1&#xa0;» a été annulée (%4).</translation>
    </message>
    <message>
        <source>Printed %1 on %2 (job %3)</source>
        <translation>%1 imprimée sur %2 (tâche %3)</translation>
    </message>
    <message>
        <source>The job %1 for %2 could not be canceled: %3</source>
        <translation>La tâche %1 pour %2 n’a pas pu être annulée&#xa0;: %3</translation>
    </message>
    <message>
        <source>The outcome of %1 (job %2) is unknown: %3</source>
        <translation>Le résultat de %1 (tâche %2) est inconnu&#xa0;: %3</translation>
    </message>
    <message>
        <source>%1 (job %2) is not printed yet: %3. The print server keeps it; &quot;cancel %2&quot; cancels it.</source>
        <translation>%1 (tâche %2) n’est pas encore imprimée&#xa0;: %3. Le serveur d’impression la garde&#xa0;; «&#xa0;cancel %2&#xa0;» la retire.</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>sans raison indiquée</translation>
    </message>
    <message>
        <source>%1 (job %2) is not printed yet: %3. The printer keeps it; cancel it there.</source>
        <translation>%1 (tâche %2) n’est pas encore imprimée&#x202f;: %3. L’imprimante la garde&#x202f;; annulez-la sur l’imprimante.</translation>
    </message>
    <message>
        <source>%1 copies of %2 are more than the %3 that a job can have. Print it in several parts.</source>
        <translation>%1 exemplaires de %2, c’est plus que les %3 qu’un travail peut avoir. Imprimez-les en plusieurs fois.</translation>
    </message>
    <message>
        <source>The outcome of %1 (job %2) is unknown.</source>
        <translation>Le résultat de %1 (tâche %2) est inconnu.</translation>
    </message>
    <message>
        <source>%1 (job %2) was canceled.</source>
        <translation>%1 (tâche %2) a été annulée.</translation>
    </message>
    <message>
        <source>Printed %1: page %2 of %3</source>
        <translation>%1 imprimée&#x202f;: page %2 de %3</translation>
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
        <translation>Choix</translation>
    </message>
    <message>
        <source>Summary of the job</source>
        <translation>Récapitulatif du travail</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchBar</name>
    <message>
        <source>Print new photos of this folder:</source>
        <translation>Imprimer les nouvelles photos de ce dossier&#x202f;:</translation>
    </message>
    <message>
        <source>Photos that arrive in the folder are printed as they come, each once and with the present choices, until this is switched off or the window is closed</source>
        <translation>Les photos qui arrivent dans le dossier sont imprimées aussitôt, chacune une fois et avec les choix actuels, jusqu’à ce que ce soit désactivé ou que la fenêtre soit fermée</translation>
    </message>
    <message>
        <source>Folder for new photos</source>
        <translation>Dossier des nouvelles photos</translation>
    </message>
    <message>
        <source>Choose…</source>
        <comment>a folder</comment>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Folder for New Photos</source>
        <translation>Dossier des nouvelles photos</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchLoop</name>
    <message>
        <source>The folder &quot;%1&quot; is there again.</source>
        <translation>Le dossier «&#x202f;%1&#x202f;» est de nouveau là.</translation>
    </message>
    <message>
        <source>Photos that arrive in &quot;%1&quot; are printed on %2 and moved to &quot;%3&quot;.</source>
        <translation>Les photos qui arrivent dans «&#x202f;%1&#x202f;» sont imprimées sur %2 et déplacées vers «&#x202f;%3&#x202f;».</translation>
    </message>
    <message>
        <source>Photos that arrive in &quot;%1&quot; are printed on %2.</source>
        <translation>Les photos qui arrivent dans «&#x202f;%1&#x202f;» sont imprimées sur %2.</translation>
    </message>
    <message>
        <source>The files that are there already are left alone: %1. With --existing, they are printed.</source>
        <translation>Fichiers déjà présents, laissés tels quels&#x202f;: %1. Avec --existing, ils sont imprimés.</translation>
    </message>
    <message>
        <source>The program was ended while it was being sent.</source>
        <translation>Le programme a été arrêté pendant son envoi.</translation>
    </message>
    <message>
        <source>It is unclear whether &quot;%1&quot; was printed. %2 It is not printed again by itself; if it has to be, set its time (&quot;touch&quot;) or copy it into the folder again.</source>
        <translation>Il n’est pas certain que «&#x202f;%1&#x202f;» ait été imprimée. %2 Elle n’est pas réimprimée d’elle-même&#x202f;; s’il le faut, changez sa date («&#x202f;touch&#x202f;») ou copiez-la de nouveau dans le dossier.</translation>
    </message>
    <message>
        <source>%1 It stays in the folder, and is not tried again.</source>
        <translation>%1 Le fichier reste dans le dossier et n’est pas réessayé.</translation>
    </message>
    <message>
        <source>%1 It is now &quot;%2&quot;.</source>
        <translation>%1 Le fichier est maintenant «&#x202f;%2&#x202f;».</translation>
    </message>
    <message>
        <source>Printed photos stay in the folder, because they cannot be moved. %1</source>
        <translation>Les photos imprimées restent dans le dossier, car elles ne peuvent pas être déplacées. %1</translation>
    </message>
    <message>
        <source>It was sent to another print server, %1.</source>
        <translation>Elle a été envoyée à un autre serveur d’impression, %1.</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchOrder</name>
    <message>
        <source>The built-in printer would leave its files in the watched folder, &quot;%1&quot;. Choose another folder for them.</source>
        <translation>L’imprimante intégrée laisserait ses fichiers dans le dossier surveillé, «&#x202f;%1&#x202f;». Choisissez-leur un autre dossier.</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchRecord</name>
    <message>
        <source>Another program watches the folder &quot;%1&quot; already. End it first, or choose another folder.</source>
        <translation>Un autre programme surveille déjà le dossier «&#x202f;%1&#x202f;». Arrêtez-le d’abord ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The record of what was printed, &quot;%1&quot;, cannot be read: %2. Make it readable for you.</source>
        <translation>Le journal de ce qui a été imprimé, «&#x202f;%1&#x202f;», ne peut pas être lu&#x202f;: %2. Rendez-le lisible pour vous.</translation>
    </message>
    <message>
        <source>The record of what was printed, &quot;%1&quot;, cannot be written: %2. Nothing is printed without it; make room for it, or make it writable for you.</source>
        <translation>Le journal de ce qui a été imprimé, «&#x202f;%1&#x202f;», ne peut pas être écrit&#x202f;: %2. Rien n’est imprimé sans lui&#x202f;; libérez de la place ou rendez-le accessible en écriture.</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchRun</name>
    <message>
        <source>The folder &quot;%1&quot; of %2 does not exist. Make it, or choose another one.</source>
        <translation>Le dossier «&#x202f;%1&#x202f;» de %2 n’existe pas. Créez-le ou choisissez-en un autre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder, and %2 needs one. Choose a folder.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas un dossier, et %2 en a besoin. Choisissez un dossier.</translation>
    </message>
    <message>
        <source>You may not read the folder &quot;%1&quot; of %2. Change its permissions, or choose another one.</source>
        <translation>Vous n’avez pas le droit de lire le dossier «&#x202f;%1&#x202f;» de %2. Modifiez ses droits d’accès ou choisissez-en un autre.</translation>
    </message>
    <message>
        <source>--printed and --watch name the same folder, &quot;%1&quot;. Choose another one for the printed photos.</source>
        <translation>--printed et --watch nomment le même dossier, «&#x202f;%1&#x202f;». Choisissez-en un autre pour les photos imprimées.</translation>
    </message>
</context>
</TS>
