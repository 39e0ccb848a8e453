<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AnnouncedPrinters</name>
    <message>
        <source>printers on the network are not listed, because Avahi is not running</source>
        <translation>Avahi が動作していないため、ネットワーク上のプリンターは一覧に出ません</translation>
    </message>
    <message>
        <source>printers on the network are not listed, because Avahi does not answer</source>
        <translation>Avahi が応答しないため、ネットワーク上のプリンターは一覧に出ません</translation>
    </message>
</context>
<context>
    <name>ArrangementText</name>
    <message>
        <source>fitted</source>
        <comment>a photo into its print size</comment>
        <translation>全体を収める</translation>
    </message>
    <message>
        <source>Fit on the page</source>
        <translation>ページに収める</translation>
    </message>
    <message>
        <source>filled</source>
        <comment>a print size by its photo</comment>
        <translation>埋める</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>ページいっぱい</translation>
    </message>
    <message>
        <source>actual size</source>
        <comment>of a photo within its print size</comment>
        <translation>実サイズ</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>実際の大きさ</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>a scale</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>border %1</source>
        <translation>縁 %1</translation>
    </message>
    <message>
        <source>%1, turned by %2°</source>
        <translation>%1、%2° 回転</translation>
    </message>
    <message>
        <source>Differs by photo</source>
        <translation>写真によって異なります</translation>
    </message>
    <message>
        <source>One photo on each sheet</source>
        <translation>1 シートに 1 枚</translation>
    </message>
    <message>
        <source>%1 rows, %2 columns</source>
        <translation>%1 行 %2 列</translation>
    </message>
    <message>
        <source>As many as fit</source>
        <translation>入るだけ</translation>
    </message>
    <message>
        <source>Contact sheet, %1 rows, %2 columns</source>
        <translation>コンタクトシート、%1 行 %2 列</translation>
    </message>
    <message>
        <source>Two strips of %1 photos</source>
        <translation>%1 枚ずつの帯 2 本</translation>
    </message>
    <message>
        <source>the same photo repeated</source>
        <translation>同じ写真の繰り返し</translation>
    </message>
    <message>
        <source>the next photos following</source>
        <translation>次の写真を続ける</translation>
    </message>
    <message>
        <source>%1 pages on each side</source>
        <translation>各面に %1 ページ</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>of a document</comment>
        <translation>選択範囲</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>表示中のページ</translation>
    </message>
    <message>
        <source>odd only</source>
        <comment>pages</comment>
        <translation>奇数のみ</translation>
    </message>
    <message>
        <source>even only</source>
        <comment>pages</comment>
        <translation>偶数のみ</translation>
    </message>
    <message>
        <source>last one first</source>
        <comment>pages</comment>
        <translation>最後のページから</translation>
    </message>
    <message>
        <source>There are no pages after page %1.</source>
        <translation>%1 ページより後のページはありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>写真 %n 枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n ページ</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>photos and pages</comment>
        <translation>%1と%2</translation>
    </message>
    <message>
        <source>No page of &quot;%1&quot; is printed.</source>
        <translation>「%1」のページは 1 つも印刷されません。</translation>
    </message>
</context>
<context>
    <name>BatchRun</name>
    <message>
        <source>%1 Printed before it: %2.</source>
        <translation>%1 それまでに印刷したもの: %2。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Canceled; nothing more is printed.</source>
        <translation>中止しました。これ以上は印刷されません。</translation>
    </message>
    <message>
        <source>Canceled; the jobs already sent were canceled, too.</source>
        <translation>中止しました。送信したジョブはプリンターから取り消しました。</translation>
    </message>
    <message>
        <source>--one-pdf is for the built-in printer, and this is &quot;%1&quot;. Leave it out, or name the built-in printer.</source>
        <translation>--one-pdf は内蔵プリンター用ですが、これは「%1」です。取り除くか、内蔵プリンターを指定してください。</translation>
    </message>
</context>
<context>
    <name>BookletSides</name>
    <message>
        <source>A booklet is printed on both sides, turned on the short edge. Another choice does not allow that: look at &quot;%1&quot;.</source>
        <translation>小冊子は短辺とじで両面に印刷します。ほかの選択のためにそうできません。「%1」を確認してください。</translation>
    </message>
    <message>
        <source>A booklet is printed on both sides, turned on the short edge: &quot;%1&quot; is set to that.</source>
        <translation>小冊子は短辺とじで両面に印刷します。「%1」をそのように設定しました。</translation>
    </message>
    <message>
        <source>A booklet is printed on both sides, turned on the short edge. This printer does not do that itself: make one PDF of it with the built-in printer, then print the odd pages of that PDF, and the even ones on their backs.</source>
        <translation>小冊子は短辺とじで両面に印刷します。このプリンターは自動では両面に印刷できません。内蔵プリンターで 1 つの PDF にし、その PDF の奇数ページを、次にその裏に偶数ページを印刷してください。</translation>
    </message>
</context>
<context>
    <name>ChoiceMarker</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>「%1」</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (%2)</source>
        <translation>「%1」(%2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is only the beginning of a number; allowed for the option %2 are %3.</source>
        <translation>「%1」は数値の途中です。オプション%2に指定できるのは %3 です。</translation>
    </message>
    <message>
        <source>The option %1 has no choice &quot;%2&quot;; allowed are %3.</source>
        <translation>オプション%1に「%2」という選択肢はありません。指定できるのは %3 です。</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1、ほか %2 件</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1が%2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1 cannot be %2 while %3.</source>
        <translation>%3の間は、%1を%2にできません。</translation>
    </message>
    <message>
        <source>The printer has no option &quot;%1&quot;; it has %2.</source>
        <translation>このプリンターにオプション「%1」はありません。あるのは %2 です。</translation>
    </message>
    <message>
        <source>Custom.VALUE (%1)</source>
        <translation>Custom.値（%1）</translation>
    </message>
    <message>
        <source>%1=VALUE (%2)</source>
        <translation>%1=値（%2）</translation>
    </message>
    <message>
        <source>Custom.WIDTHxHEIGHT%1 (from %2 to %3)</source>
        <translation>Custom.幅x高さ%1（%2～%3）</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>the built-in printer, with this PPD instead of its own</source>
        <translation>内蔵プリンターを、この PPD で使う</translation>
    </message>
    <message>
        <source>refuse a conflicting choice at once (constraint, the default),
or check all choices together before printing (settings)</source>
        <translation>両立しない選択をすぐに拒む (constraint、既定)、
または印刷前にまとめて確認する (settings)</translation>
    </message>
    <message>
        <source>choose for an option of the printer; repeatable, in order</source>
        <translation>プリンターのオプションを選ぶ。繰り返し可、順に適用</translation>
    </message>
    <message>
        <source>list the printers, one per line: name, description, state,
&quot;default&quot;; separated by tabs</source>
        <translation>プリンターを 1 行に 1 台ずつ表示する: 名前、説明、状態、
「既定」(タブ区切り)</translation>
    </message>
    <message>
        <source>list the printer&apos;s options with their choices and panels</source>
        <translation>プリンターのオプションを、選択肢と画面とともに表示する</translation>
    </message>
    <message>
        <source>show the job in words: the paper, the copies, the placement and
what the panels say; with --batch as well as printing</source>
        <translation>ジョブを言葉で表示する（用紙、部数、配置、各画面の内容）。
--batch と併用すると印刷もする</translation>
    </message>
    <message>
        <source>save a picture of the dialog with each panel in DIR, exit</source>
        <translation>各画面の画像を DIR に保存して終了する</translation>
    </message>
    <message>
        <source>show this help</source>
        <translation>このヘルプを表示する</translation>
    </message>
    <message>
        <source>show the version</source>
        <translation>バージョンを表示する</translation>
    </message>
    <message>
        <source>The value of --%1 is empty.</source>
        <translation>--%1 の値が空です。</translation>
    </message>
    <message>
        <source>--ppd is for the built-in printer, and --printer names the queue &quot;%1&quot;.</source>
        <translation>--ppd は内蔵プリンター用ですが、--printer でキュー「%1」が指定されています。</translation>
    </message>
    <message>
        <source>%1 and %2 exclude each other.</source>
        <translation>%1 と %2 は同時に指定できません。</translation>
    </message>
    <message>
        <source>show exactly what --batch would send, and send nothing</source>
        <translation>--batch が送る内容をそのまま表示し、何も送らない</translation>
    </message>
    <message>
        <source>how long --batch follows its jobs at most (0: not at all); otherwise to
their end. It never waits longer than 10 seconds for a job that is held
or whose printer is stopped, nor than 10 minutes without any news: such a
job stays with the print server, and that is told, with exit status 0</source>
        <translation>--batch がジョブを追跡する最長時間（0: 追跡しない）。指定がなければ
終わるまで。保留中のジョブや停止中のプリンターは 10 秒、何も変化が
ない場合は 10 分を超えて待たない。そのジョブはプリントサーバーに残り、
その旨を知らせて終了コード 0 で終わる</translation>
    </message>
    <message>
        <source>the print server to ask, instead of this machine&apos;s own</source>
        <translation>このコンピューターのものの代わりに使うプリントサーバー</translation>
    </message>
    <message>
        <source>lists, summary and --dry-run as JSON</source>
        <translation>一覧、概要、--dry-run を JSON で出力する</translation>
    </message>
    <message>
        <source>--json is for --list-printers, --list-options, --summary and --dry-run.</source>
        <translation>--json は --list-printers、--list-options、--summary、--dry-run と一緒に使います。</translation>
    </message>
    <message>
        <source>--wait is for --batch.</source>
        <translation>--wait は --batch と一緒に使います。</translation>
    </message>
    <message>
        <source>the whole photo on the page (fit, the default), the page filled
and the photo cropped (fill), or the photo by its file&apos;s resolution
(actual; 300 pixels per inch when the file names none)</source>
        <translation>写真全体をページに収める（fit、既定）、ページを写真で埋めて
はみ出しを切り取る（fill）、ファイルの解像度どおりの大きさにする
（actual、解像度の指定がなければ 1 インチあたり 300 ピクセル）</translation>
    </message>
    <message>
        <source>which part of a cropped photo is kept, in per cent from its left
and from its top (otherwise 50,50, the middle)</source>
        <translation>切り取る写真のどの部分を残すか。左端と上端からの
パーセント（指定がなければ中央の 50,50）</translation>
    </message>
    <message>
        <source>--crop is for --scaling fill or actual; with fit nothing is cropped.</source>
        <translation>--crop は --scaling fill または actual と使います。fit では何も切り取られません。</translation>
    </message>
    <message>
        <source>where the built-in printer leaves its files (otherwise the current
folder; with a window, Prints in your Pictures folder)</source>
        <translation>内蔵プリンターがファイルを保存する場所 (省略すると現在のフォルダー、
ウィンドウでは画像フォルダーの Prints)</translation>
    </message>
    <message>
        <source>how many copies of each photo; otherwise the preset&apos;s, or 1</source>
        <translation>各写真の部数 (省略するとプリセットの部数、または 1)</translation>
    </message>
    <message>
        <source>--batch and --dry-run do not look for damage in photos,
and print what is left of them</source>
        <translation>--batch と --dry-run で写真の破損を調べず、
残っている部分を印刷する</translation>
    </message>
    <message>
        <source>--no-check is for --batch and --dry-run.</source>
        <translation>--no-check は --batch と --dry-run で使います。</translation>
    </message>
    <message>
        <source>There is no mode &quot;%1&quot;. Choose constraint or settings.</source>
        <translation>「%1」というモードはありません。constraint か settings を指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a print server. Give it as HOST or HOST:PORT.</source>
        <translation>「%1」はプリントサーバーではありません。HOST または HOST:PORT の形で指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time to wait. Give a number of seconds from 0 to %2.</source>
        <translation>「%1」は待ち時間ではありません。0 から %2 までの秒数を指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; copies cannot be printed. Give a number from 1 to %2.</source>
        <translation>「%1」部は印刷できません。1 から %2 までの数を指定してください。</translation>
    </message>
    <message>
        <source>There is no scaling &quot;%1&quot;. Choose fit, fill or actual.</source>
        <translation>「%1」という拡大縮小はありません。fit、fill、actual のいずれかを指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a crop. Give two numbers from 0 to 100, such as 50,0.</source>
        <translation>「%1」は切り取り位置ではありません。50,0 のように 0 から 100 までの数を 2 つ指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an option. Give it as KEY=CHOICE.</source>
        <translation>「%1」はオプションではありません。KEY=CHOICE の形で指定してください。</translation>
    </message>
    <message>
        <source>a print queue, or &quot;built-in&quot; for the built-in printer; with a preset
of it: QUEUE/PRESET. Or a printer&apos;s address, ipp://HOST/ipp/print,
which needs no print server. Otherwise your default queue, or else the
built-in printer</source>
        <translation>印刷キュー。内蔵プリンターは &quot;built-in&quot;。プリセットを付けるには
QUEUE/プリセット。プリントサーバーを使わない場合はプリンターの
アドレス ipp://HOST/ipp/print。省略すると既定のキュー、なければ
内蔵プリンター</translation>
    </message>
    <message>
        <source>the job&apos;s title at a print queue; otherwise the photo&apos;s name</source>
        <translation>印刷キューでのジョブのタイトル。指定しなければ写真の名前</translation>
    </message>
    <message>
        <source>--title is for print queues; the built-in printer names its files after the photos.</source>
        <translation>--title は印刷キュー用です。内蔵プリンターはファイルに写真の名前を付けます。</translation>
    </message>
    <message>
        <source>--batch replaces files that the built-in printer has left before,
instead of numbering the new ones, and --preview earlier pictures;
a photo is never replaced</source>
        <translation>--batch で、内蔵プリンターが以前に保存したファイルを番号を付けずに
置き換え、--preview で以前の画像を置き換えます
(写真が置き換えられることはありません)</translation>
    </message>
    <message>
        <source>save a picture of the page as the window shows it, 1200 pixels on its
longer side, and exit; of further photos in FILE-2.png, FILE-3.png, ...</source>
        <translation>ウィンドウに表示されるとおりのページの画像 (長辺 1200 ピクセル) を
保存して終了する。2 枚目以降の写真は FILE-2.png、FILE-3.png ... に保存</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name of a picture. Give one that ends in .png.</source>
        <translation>「%1」は画像の名前ではありません。.png で終わる名前を指定してください。</translation>
    </message>
    <message>
        <source>--overwrite is for --batch, --dry-run and --preview.</source>
        <translation>--overwrite は --batch、--dry-run、--preview 用です。</translation>
    </message>
    <message>
        <source>the size of each print, such as 9x13cm, 35x45mm, 4x6in, or by name:
square, passport, wallet; otherwise the whole page</source>
        <translation>各プリントの大きさ (9x13cm、35x45mm、4x6in など)、または名前:
square、passport、wallet。指定しなければページ全体</translation>
    </message>
    <message>
        <source>the photo larger or smaller than by its scaling, 1 to 1000</source>
        <translation>拡大縮小の方法よりも写真を大きく、または小さく (1 から 1000)</translation>
    </message>
    <message>
        <source>a border around each photo, within its size: 3mm, or 3mm,black</source>
        <translation>各写真の縁 (プリントの大きさの内側): 3mm、または 3mm,black</translation>
    </message>
    <message>
        <source>what stands below each photo of a layout</source>
        <translation>レイアウトの各写真の下に入れる文字</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a print size. Give one such as 10x15cm, 4x6in or passport, with sides from 5 mm to 2 m.</source>
        <translation>「%1」はプリントサイズではありません。10x15cm、4x6in、passport のように、辺が 5 mm から 2 m の大きさを指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a scale. Give a number from 1 to 1000, in per cent.</source>
        <translation>「%1」は倍率ではありません。1 から 1000 までの数をパーセントで指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a border. Give a width from 0 to 100 mm, and a color if it is not to be white: 3mm,black.</source>
        <translation>「%1」は縁ではありません。0 から 100 mm の幅と、白でない場合は色を指定してください: 3mm,black</translation>
    </message>
    <message>
        <source>There is no caption &quot;%1&quot;. Choose none, name, date or both.</source>
        <translation>説明文「%1」はありません。none、name、date、both から選んでください。</translation>
    </message>
    <message>
        <source>a preset of the printer, also of your default printer</source>
        <translation>プリンターのプリセット。既定のプリンターのものも指定できる</translation>
    </message>
    <message>
        <source>--preset names the preset &quot;%1&quot;, and --printer the preset &quot;%2&quot;. Name one.</source>
        <translation>--preset はプリセット「%1」を、--printer はプリセット「%2」を指定しています。どちらか一方だけを指定してください。</translation>
    </message>
    <message>
        <source>--preset is for print queues and the built-in printer, and &quot;%1&quot; is a printer&apos;s address. Use -o in its place.</source>
        <translation>--preset は印刷キューと内蔵プリンター用ですが、「%1」はプリンターのアドレスです。代わりに -o を使ってください。</translation>
    </message>
    <message>
        <source>--preset needs --printer where a window opens: it opens with the printer used last, which may have no such preset.</source>
        <translation>ウィンドウを開くときは --preset に --printer が必要です。ウィンドウは最後に使ったプリンターで開き、そのプリンターにはこのプリセットがないかもしれません。</translation>
    </message>
    <message>
        <source>no window: print each photo that arrives in the folder, once, until the
program is ended (SIGTERM, Ctrl+C). It waits for a printer or a print
server that is away. The photos that are there at first are left alone;
those that cannot be printed go to the folder &quot;unprintable&quot; in it</source>
        <translation>ウィンドウなしで、フォルダーに届いた写真を、プログラムが終わる
(SIGTERM、Ctrl+C) まで 1 回ずつ印刷する。プリンターやプリントサーバーが
使えない間は待つ。最初からある写真はそのまま残す。印刷できない写真は、
その中のフォルダー &quot;unprintable&quot; に移す</translation>
    </message>
    <message>
        <source>where --watch moves photos once they are printed; otherwise they stay
where they are, and the program remembers them</source>
        <translation>--watch が印刷済みの写真を移す場所。指定しなければ元の場所に残り、
プログラムが記憶する</translation>
    </message>
    <message>
        <source>--watch also prints the photos that are there at first</source>
        <translation>--watch で、最初からある写真も印刷する</translation>
    </message>
    <message>
        <source>%1 is for --watch.</source>
        <translation>%1 は --watch 用です。</translation>
    </message>
    <message>
        <source>--watch prints the photos of its folder, and &quot;%1&quot; is named, too. Leave one of them out.</source>
        <translation>--watch はフォルダーの写真を印刷しますが、「%1」も指定されています。どちらかを省いてください。</translation>
    </message>
    <message>
        <source>--batch: the built-in printer makes one PDF of all sheets, NAME.pdf,
instead of one for each sheet</source>
        <translation>--batch: 内蔵プリンターが、シートごとではなく、すべてのシートを 1 つの PDF
（NAME.pdf）にまとめる</translation>
    </message>
    <message>
        <source>--one-pdf is for --batch and --dry-run.</source>
        <translation>--one-pdf は --batch と --dry-run で使います。</translation>
    </message>
    <message>
        <source>no window: apply the options, print, exit; of what the window has
saved only the print position is used, so that a script gets the same
each time</source>
        <translation>ウインドウなし: オプションを適用して印刷し、終了します。ウインドウで保存した
もののうち使うのは印刷位置だけなので、スクリプトの結果は毎回同じです</translation>
    </message>
    <message>
        <source>--%1 stands alone, without photos and other options.</source>
        <translation>--%1 は単独で指定します。写真やほかのオプションは指定できません。</translation>
    </message>
    <message>
        <source>have the programs that print through the desktop&apos;s portal use this
dialog: sets one key of your portals.conf, and says in which file.
Needs the package corvel-print-portal</source>
        <translation>デスクトップのポータル経由で印刷するプログラムに、このダイアログを使わせる。
portals.conf のキーを 1 つ設定し、どのファイルかを表示する。
パッケージ corvel-print-portal が必要</translation>
    </message>
    <message>
        <source>remove that key again</source>
        <translation>そのキーを取り除く</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a layout. Give rows and columns from 1 to 20 (2x3), fit, contact, strips:2 to strips:4, pages:2, 4, 6, 9 or 16, or booklet.</source>
        <translation>「%1」はレイアウトではありません。1～20 の行と列 (2x3)、fit、contact、strips:2～strips:4、pages:2、4、6、9、16、または booklet を指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say which pages. Give page numbers from 1 on and ranges, such as 1-3,7,12-.</source>
        <translation>「%1」ではどのページか分かりません。1-3,7,12- のように、1 以上のページ番号と範囲を指定してください。</translation>
    </message>
    <message>
        <source>There is no set of pages &quot;%1&quot;. Choose all, odd or even.</source>
        <translation>ページの種類「%1」はありません。all、odd、even から選んでください。</translation>
    </message>
    <message>
        <source>several photos on a sheet: ROWSxCOLUMNS (2x3); fit, as many of the size
as fit; contact or contact:ROWSxCOLUMNS, a contact sheet; strips or
strips:NUMBER, two strips of 2 to 4 photos. With &quot;,repeat&quot; each photo
fills its sheet; also &quot;,gap=2mm&quot; and &quot;,marks&quot; for cut marks. Of a
document: pages:2, 4, 6, 9 or 16 on each sheet, or booklet</source>
        <translation>1 シートに複数の写真: 行x列 (2x3)。fit はその大きさで入るだけ。contact または
contact:行x列 はコンタクトシート。strips または strips:数 は 2 から 4 枚の帯を
2 本。「,repeat」を付けると各写真がシートを埋めます。「,gap=2mm」や、トンボの
「,marks」も付けられます。
文書には pages:2、4、6、9、16 (1 枚あたりのページ数) または booklet</translation>
    </message>
    <message>
        <source>which pages of documents: 1-3,7,12- (12- is page 12 to the last one);
otherwise all</source>
        <translation>文書のどのページか: 1-3,7,12- (12- は 12 ページから最後まで)。
指定しなければすべて</translation>
    </message>
    <message>
        <source>only pages with odd or with even numbers</source>
        <translation>奇数または偶数のページだけ</translation>
    </message>
    <message>
        <source>print the last sheet first</source>
        <translation>最後のシートから印刷します</translation>
    </message>
    <message>
        <source>Usage: corvel-print [options] FILE...
Prints photos and PDF documents: from a window, or at once with --batch.
FILE can be - for the standard input, or a print list, LIST.json.

Options:
</source>
        <translation>使い方: corvel-print [オプション] FILE...
写真と PDF 文書を印刷します。ウィンドウから、または --batch ですぐに印刷します。
FILE には、標準入力を表す - や、印刷リスト LIST.json も指定できます。

オプション:
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
終了ステータス:
  0  印刷した、または指示された処理を終えた
  1  拒否または失敗 (何がなぜかを標準エラーに 1 行で出力)。画像が破損した写真は
     1 行で知らせて飛ばし、ほかの写真を印刷する
  2  使い方の誤り

例:
  corvel-print --printer built-in holiday.jpg
  corvel-print --batch -o Red=12 -o Quality=Fine -o Overcoat=Matte --output prints *.jpg
  corvel-print --batch --size passport --scaling fill --layout fit portrait.jpg
  corvel-print --batch --pages 2-9 --layout booklet -o Duplex=DuplexTumble report.pdf
</translation>
    </message>
    <message>
        <source>--batch needs a file to print.</source>
        <translation>--batch には印刷するファイルが必要です。</translation>
    </message>
    <message>
        <source>--dry-run needs a file.</source>
        <translation>--dry-run にはファイルが必要です。</translation>
    </message>
    <message>
        <source>--preview needs a file.</source>
        <translation>--preview にはファイルが必要です。</translation>
    </message>
    <message>
        <source>A print list says itself which files are printed and how. Give it without other files, and without %1.</source>
        <translation>印刷リストは、どのファイルをどのように印刷するかを含みます。ほかのファイルや %1 なしで指定してください。</translation>
    </message>
    <message>
        <source>&quot;-&quot; reads one file from the standard input. Give it once.</source>
        <translation>「-」は標準入力からファイルを 1 つ読みます。1 回だけ指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file on this computer. Copy it here first.</source>
        <translation>「%1」はこのコンピューターのファイルではありません。先にここへコピーしてください。</translation>
    </message>
</context>
<context>
    <name>CommonValue</name>
    <message>
        <source>Several</source>
        <translation>複数の値</translation>
    </message>
</context>
<context>
    <name>Console</name>
    <message>
        <source>Standard output could not be written to: %1. Send it to another place.</source>
        <translation>標準出力に書き込めませんでした: %1。別の出力先を指定してください。</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>ほか %n 件。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CupsConnection</name>
    <message>
        <source>nothing answers at %1</source>
        <translation>%1 から応答がありません</translation>
    </message>
    <message>
        <source>no printer can have this name</source>
        <translation>この名前のプリンターはありえません</translation>
    </message>
    <message>
        <source>it gave no answer within %1 s</source>
        <translation>%1 秒以内に応答がありませんでした</translation>
    </message>
    <message>
        <source>the connection broke</source>
        <translation>接続が切れました</translation>
    </message>
    <message>
        <source>its answer is too large or malformed</source>
        <translation>応答が大きすぎるか、形式に誤りがあります</translation>
    </message>
    <message>
        <source>this is not a printer&apos;s address</source>
        <translation>プリンターのアドレスではありません</translation>
    </message>
    <message>
        <source>its certificate is not trusted</source>
        <translation>証明書を信頼できません</translation>
    </message>
    <message>
        <source>it wants a password, which would cross the network unencrypted</source>
        <translation>パスワードが必要ですが、暗号化されずにネットワークを通ることになります</translation>
    </message>
    <message>
        <source>it has refused the name or the password %1 times</source>
        <translation>ユーザー名またはパスワードが %1 回拒否されました</translation>
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
        <translation>%1 インチ</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>%1 から %2 まで</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>%1 桁の数字</translation>
    </message>
    <message>
        <source>%1 to %2 digits</source>
        <translation>%1～%2 桁の数字</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 文字</translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation>%1～%2 文字</translation>
    </message>
    <message>
        <source>entered, not shown</source>
        <translation>入力済み（非表示）</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a value&apos;s name and the value</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>%1 × %2 in</source>
        <comment>inches</comment>
        <translation>%1 × %2 インチ</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>inches</comment>
        <translation>インチ</translation>
    </message>
    <message>
        <source>a time from %1 to %2</source>
        <translation>%1～%2の時刻</translation>
    </message>
</context>
<context>
    <name>IntakeText</name>
    <message>
        <source>The program has stopped sending &quot;%1&quot;. Nothing was printed; print again.</source>
        <translation>プログラムから「%1」が届かなくなりました。何も印刷されていません。もう一度印刷してください。</translation>
    </message>
    <message>
        <source>The program sent nothing of &quot;%1&quot;, so nothing was printed.</source>
        <translation>プログラムから「%1」の内容が届かなかったため、何も印刷されていません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be printed: a document may have %2. Print fewer pages at a time.</source>
        <translation>「%1」は大きすぎて印刷できません。文書の上限は %2 です。一度に印刷するページを減らしてください。</translation>
    </message>
    <message>
        <source>The program sent &quot;%1&quot; in a format that cannot be printed: only PDF and PostScript can.</source>
        <translation>プログラムから届いた「%1」は印刷できない形式です。印刷できるのは PDF と PostScript だけです。</translation>
    </message>
    <message>
        <source>The program sent &quot;%1&quot; as PostScript, which needs Ghostscript. Install the package ghostscript and print again.</source>
        <translation>プログラムから「%1」が PostScript で届きましたが、これには Ghostscript が必要です。パッケージ ghostscript をインストールして、もう一度印刷してください。</translation>
    </message>
    <message>
        <source>The program sent &quot;%1&quot; as PostScript that Ghostscript cannot convert, so nothing was printed.</source>
        <translation>プログラムから届いた「%1」の PostScript を Ghostscript で変換できないため、何も印刷されていません。</translation>
    </message>
    <message>
        <source>There is not enough memory for &quot;%1&quot;. Close other programs and print again.</source>
        <translation>「%1」のためのメモリーが足りません。ほかのプログラムを閉じて、もう一度印刷してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read from the program, so nothing was printed.</source>
        <translation>プログラムから「%1」を読み取れないため、何も印刷されていません。</translation>
    </message>
</context>
<context>
    <name>IppOptions</name>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
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
        <translation>用紙</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>仕上げ</translation>
    </message>
    <message>
        <source>Further options</source>
        <translation>その他のオプション</translation>
    </message>
    <message>
        <source>Page sizes of the printer left out because they cannot be used: %1.</source>
        <translation>使用できないため省かれたプリンターの用紙サイズの数: %1。</translation>
    </message>
    <message>
        <source>Options left out because they have no usable values: %1.</source>
        <translation>使用できる値がないため省かれたオプション: %1。</translation>
    </message>
    <message>
        <source>Values of options left out because they are repeated or cannot be used: %1.</source>
        <translation>重複しているか使用できないため省かれたオプションの値の数: %1。</translation>
    </message>
    <message>
        <source>Defaults left out because they are not among the choices: %1.</source>
        <translation>選択肢にないため省かれた既定値: %1。</translation>
    </message>
    <message>
        <source>Rules about choices left out because they are too many: %1.</source>
        <translation>多すぎるため省かれた選択の規則の数: %1。</translation>
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
        <translation>プリンターを待っています</translation>
    </message>
    <message>
        <source>held</source>
        <translation>保留中</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>取り消されました</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗しました</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>印刷しました</translation>
    </message>
    <message>
        <source>it was started again and does not know job %1</source>
        <translation>再起動され、ジョブ %1 が見つかりません</translation>
    </message>
    <message>
        <source>the print server does not answer; asking again</source>
        <translation>プリントサーバーが応答しません。再び問い合わせています</translation>
    </message>
</context>
<context>
    <name>JobPlan</name>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>サーバー</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>%1, the file as it is</source>
        <translation>%1（ファイルをそのまま）</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>バイト数</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>%1 (not shown)</source>
        <comment>the option of a password</comment>
        <translation>%1（非表示）</translation>
    </message>
    <message>
        <source>%1, %2 from the left, %3 from the top</source>
        <translation>%1、左から %2、上から %3</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>シート</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>ページ: %1</translation>
    </message>
    <message>
        <source>Document: %1</source>
        <translation>文書: %1</translation>
    </message>
    <message>
        <source>Sheets</source>
        <translation>シート</translation>
    </message>
    <message>
        <source>%1 to %2 of %3</source>
        <translation>%1～%2 / %3</translation>
    </message>
</context>
<context>
    <name>JobSubmission</name>
    <message>
        <source>The document &quot;%1&quot; is not sent, because its type has a control character in it.</source>
        <translation>文書「%1」の種類に制御文字が含まれているため、送りません。</translation>
    </message>
    <message>
        <source>it accepted the job without giving it a number</source>
        <translation>ジョブは受け付けられましたが、番号が付けられていません</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because this cannot be an option&apos;s keyword. Leave it out.</source>
        <translation>「%1」はオプションのキーワードになりえないため、送りません。指定しないでください。</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because its value has a line break or another control character in it. Choose another value.</source>
        <translation>オプション「%1」の値に改行などの制御文字が含まれているため、送りません。別の値を選んでください。</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because CUPS misreads a value that begins with a brace. Choose another value.</source>
        <translation>波かっこで始まる値は CUPS が正しく読めないため、オプション「%1」は送りません。別の値を選んでください。</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is not sent, because its value is longer than %2 bytes. Choose another value.</source>
        <translation>オプション「%1」の値が %2 バイトを超えているため、送りません。別の値を選んでください。</translation>
    </message>
    <message>
        <source>%1 copies cannot be printed. Choose a number from 1 to %2.</source>
        <translation>%1 部は印刷できません。1 から %2 までの数を選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not sent, because the printer cannot read a PDF, and this photo does not go to it as it is. Choose a borderless paper and fill it with a JPEG, or set up a queue for the printer in the printer settings.</source>
        <translation>プリンターがPDFを読み取れず、この写真をそのまま送ることもできないため、「%1」は送信されません。フチなしの用紙をJPEGで満たすか、プリンターの設定でプリンターを追加してください。</translation>
    </message>
    <message>
        <source>%1 copies cannot be printed. The printer makes at most %2 at a time; choose fewer.</source>
        <translation>%1 部は印刷できません。このプリンターでは一度に最大 %2 部です。部数を減らしてください。</translation>
    </message>
    <message>
        <source>it wants a password, which would cross the network unencrypted</source>
        <translation>パスワードが必要ですが、暗号化されずにネットワークを通ることになります</translation>
    </message>
</context>
<context>
    <name>JobSummary</name>
    <message>
        <source>Paper size</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>Listings</name>
    <message>
        <source>default</source>
        <translation>既定</translation>
    </message>
</context>
<context>
    <name>LoginDialog</name>
    <message>
        <source>Log In</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>The print server %1 wants a user name and a password.</source>
        <translation>プリントサーバー %1 はユーザー名とパスワードを必要とします。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; on %2 wants a user name and a password.</source>
        <translation>%2 のプリンター「%1」はユーザー名とパスワードを必要とします。</translation>
    </message>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>ユーザー名またはパスワードが受け入れられませんでした。</translation>
    </message>
    <message>
        <source>They are kept until the program ends.</source>
        <translation>プログラムの終了まで保持されます。</translation>
    </message>
    <message>
        <source>&amp;Log In</source>
        <translation>ログイン(&amp;L)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;User name:</source>
        <translation>ユーザー名(&amp;U):</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>パスワード(&amp;P):</translation>
    </message>
</context>
<context>
    <name>Logins</name>
    <message>
        <source>it wants a user name and a password, and none were entered</source>
        <translation>ユーザー名とパスワードが必要ですが、入力されませんでした</translation>
    </message>
    <message>
        <source>it wants a user name and a password</source>
        <translation>ユーザー名とパスワードが必要です</translation>
    </message>
</context>
<context>
    <name>NumericChoices</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>%1 to %2 in steps of %3</source>
        <translation>%1～%2 (%3 刻み)</translation>
    </message>
</context>
<context>
    <name>OptionSource</name>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>OptionTable</name>
    <message>
        <source>Option</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>表示名</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>選択肢</translation>
    </message>
</context>
<context>
    <name>OwnJob</name>
    <message>
        <source>Untitled</source>
        <translation>無題</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>理由は示されていません</translation>
    </message>
    <message>
        <source>The print server refused to list your jobs (%1). Ask its administrator.</source>
        <translation>プリントサーバーがジョブの一覧を拒否しました（%1）。管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>The print server could not list your jobs (%1). Try again, or check its log.</source>
        <translation>プリントサーバーはジョブを一覧にできませんでした（%1）。もう一度試すか、ログを確認してください。</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be canceled: %3</source>
        <translation>ジョブ %1（%2）を取り消せませんでした: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be held: %3</source>
        <translation>ジョブ %1（%2）を保留にできませんでした: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be released: %3</source>
        <translation>ジョブ %1（%2）の保留を解除できませんでした: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) could not be printed again: %3</source>
        <translation>ジョブ %1（%2）を再印刷できませんでした: %3</translation>
    </message>
    <message>
        <source>Job %1 (%2) cannot be printed again, because the print server has not kept its document. Open the photo in this program and print it from there.</source>
        <translation>ジョブ %1（%2）は再印刷できません。プリントサーバーに文書が残っていないためです。このプログラムで写真を開いて印刷してください。</translation>
    </message>
    <message>
        <source>Job %1 (%2) has moved on meanwhile. Look at its state.</source>
        <translation>ジョブ %1（%2）の状態が変わっています。状態を確認してください。</translation>
    </message>
</context>
<context>
    <name>PlacementText</name>
    <message>
        <source>%1 × %2 in</source>
        <translation>%1 × %2 インチ</translation>
    </message>
    <message>
        <source>%1 × %2 cm</source>
        <translation>%1 × %2 cm</translation>
    </message>
    <message>
        <source>%1 pixels per inch (the file names none)</source>
        <translation>%1 ppi（ファイルに指定なし）</translation>
    </message>
    <message>
        <source>%1 pixels per inch</source>
        <translation>%1 ppi</translation>
    </message>
    <message>
        <source>%1 % cut off</source>
        <translation>%1 % 切り取り</translation>
    </message>
    <message>
        <source>Page of %1</source>
        <comment>and its size</comment>
        <translation>ページ %1</translation>
    </message>
    <message>
        <source>printed at %1 %</source>
        <translation>%1 % で印刷</translation>
    </message>
</context>
<context>
    <name>PluginGuard</name>
    <message>
        <source>an error without a description</source>
        <translation>説明のないエラー</translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>it is not a folder</source>
        <translation>フォルダーではありません</translation>
    </message>
    <message>
        <source>it has no readable Contents/Info.json</source>
        <translation>Contents/Info.json がないか、読めません</translation>
    </message>
    <message>
        <source>its Info.json is larger than 64 KiB</source>
        <translation>Info.json が 64 KiB を超えています</translation>
    </message>
    <message>
        <source>its Info.json is not a JSON object</source>
        <translation>Info.json が JSON オブジェクトではありません</translation>
    </message>
    <message>
        <source>its Info.json has no &quot;CFBundleIdentifier&quot;</source>
        <translation>Info.json に「CFBundleIdentifier」がありません</translation>
    </message>
    <message>
        <source>the &quot;CFBundleExecutable&quot; of its Info.json is not a plain file name</source>
        <translation>Info.json の「CFBundleExecutable」が単純なファイル名ではありません</translation>
    </message>
    <message>
        <source>The plug-in bundle &quot;%1&quot; cannot be used: %2. Install it again.</source>
        <translation>プラグイン「%1」は使えません: %2。再インストールしてください。</translation>
    </message>
    <message>
        <source>it has no module &quot;%1&quot;</source>
        <translation>モジュール「%1」がありません</translation>
    </message>
    <message>
        <source>its identifier &quot;%1&quot; is not the one that its module was built for</source>
        <translation>識別子「%1」が、モジュールの作られたときのものと違います</translation>
    </message>
    <message>
        <source>it offers no panel for this printer</source>
        <translation>このプリンター用の画面がありません</translation>
    </message>
    <message>
        <source>The printer&apos;s own panels (%1) are not installed in %2; it prints without them.</source>
        <translation>プリンター固有のページ (%1) が %2 にインストールされていません。それなしで印刷します。</translation>
    </message>
    <message>
        <source>its module is not a print-dialog plug-in</source>
        <translation>モジュールが印刷ダイアログのプラグインではありません</translation>
    </message>
    <message>
        <source>The plug-in of the bundle &quot;%1&quot; has failed: %2. Update the plug-in.</source>
        <translation>プラグイン「%1」でエラーが起きました: %2。プラグインを更新してください。</translation>
    </message>
</context>
<context>
    <name>PortalChoices</name>
    <message>
        <source>This printer does not have what the program asks for: %1.</source>
        <translation>このプリンターには、プログラムが求める次のものがありません: %1</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot;</source>
        <comment>an option and its choice</comment>
        <translation>%1「%2」</translation>
    </message>
</context>
<context>
    <name>PortalSwitch</name>
    <message>
        <source>Other programs reach this dialog through %1, which is not installed. Get it with the package %1.</source>
        <translation>ほかのプログラムは %1 を通じてこのダイアログを使いますが、インストールされていません。パッケージ %1 で入手できます。</translation>
    </message>
    <message>
        <source>%1 %2 does not let each user choose: the installed package decides for everybody. Programs use this dialog while %3 is installed; install or remove it.</source>
        <translation>%1 %2 ではユーザーごとに選べず、インストールされたパッケージが全員について決めます。%3 がインストールされている間、プログラムはこのダイアログを使います。インストールするか、削除してください。</translation>
    </message>
    <message>
        <source>The part of this program that other programs print with is not installed. Get it with the package %1.</source>
        <translation>ほかのプログラムが印刷に使う部分がインストールされていません。パッケージ %1 で入手できます。</translation>
    </message>
    <message>
        <source>It is not known which desktop this is: XDG_CURRENT_DESKTOP is not set. Run it in a terminal of your desktop.</source>
        <translation>どのデスクトップか分かりません。XDG_CURRENT_DESKTOP が設定されていません。デスクトップの端末で実行してください。</translation>
    </message>
    <message>
        <source>The file %1 is ignored by %2, because of its line %3. Correct that line or remove the file.</source>
        <translation>ファイル %1 は、%3 行目のために %2 に無視されます。その行を直すか、ファイルを削除してください。</translation>
    </message>
    <message>
        <source>The file %1 was changed just now. Try again.</source>
        <translation>ファイル %1 はたった今変更されました。もう一度試してください。</translation>
    </message>
    <message>
        <source>It takes effect when you log in the next time, or at once with: %1</source>
        <translation>次回のログイン時に有効になります。すぐに有効にするには: %1</translation>
    </message>
    <message>
        <source>The version of %1 cannot be found out. Before 1.17 it does not read this file, and the installed package decides.</source>
        <translation>%1 のバージョンが分かりません。1.17 より前のものはこのファイルを読まず、インストールされたパッケージが決めます。</translation>
    </message>
    <message>
        <source>Already so: %1 has &quot;%2&quot;.</source>
        <translation>すでにそうなっています: %1 に「%2」があります。</translation>
    </message>
    <message>
        <source>%1 has &quot;%2&quot; now.</source>
        <translation>%1 に「%2」が入りました。</translation>
    </message>
    <message>
        <source>Made %1, a copy of %3, with &quot;%2&quot;.</source>
        <translation>%3 のコピーに「%2」を加えて、%1 を作成しました。</translation>
    </message>
    <message>
        <source>Made %1, with &quot;%2&quot;.</source>
        <translation>「%2」を入れて %1 を作成しました。</translation>
    </message>
    <message>
        <source>The file %1 cannot be removed: %2.</source>
        <translation>ファイル %1 を削除できません: %2。</translation>
    </message>
    <message>
        <source>Removed %1, which held nothing else of its own.</source>
        <translation>ほかに独自の内容がないため、%1 を削除しました。</translation>
    </message>
    <message>
        <source>%1 does not name this dialog any more.</source>
        <translation>%1 からこのダイアログの指定がなくなりました。</translation>
    </message>
    <message>
        <source>The file %1 of the system has &quot;%2&quot;, for all its users. Only an administrator can change it.</source>
        <translation>システムのファイル %1 に、全ユーザー向けに「%2」があります。変更できるのは管理者だけです。</translation>
    </message>
    <message>
        <source>Already so: %1 does not name this dialog.</source>
        <translation>すでにそうなっています: %1 にこのダイアログの指定はありません。</translation>
    </message>
    <message>
        <source>Already so: no file names this dialog.</source>
        <translation>すでにそうなっています: どのファイルにもこのダイアログの指定はありません。</translation>
    </message>
</context>
<context>
    <name>PositionTestPage</name>
    <message>
        <source>The vertical line is %1 mm from the left edge, and the horizontal one %1 mm from the top edge, if the printer prints in its place. Measure both, and type what you measured.</source>
        <translation>プリンターが正しい位置に印刷していれば、縦線は左端から %1 mm、横線は上端から %1 mm です。両方を測り、測った値を入力してください。</translation>
    </message>
</context>
<context>
    <name>PpdCheck</name>
    <message>
        <source>&quot;%1&quot; cannot be run: %2</source>
        <translation>「%1」を実行できません: %2</translation>
    </message>
    <message>
        <source>the system offers no sandbox</source>
        <translation>システムに隔離環境がありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends with status %2</source>
        <translation>「%1」がステータス %2 で終了しました</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used, since it could not be checked safely: %2. Install corvel-print again.</source>
        <translation>PPD「%1」は安全に試せなかったため使用しません: %2。corvel-print を再インストールしてください。</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used, since this computer was too busy to check it. Try again later.</source>
        <translation>このコンピューターの負荷が高くPPD「%1」を試せなかったため使用しません。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used: libcups does not finish reading it. Fetch another from the printer&apos;s maker.</source>
        <translation>PPD「%1」は使用しません: libcups が処理を終えられません。プリンターの製造元から別の PPD を入手してください。</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; is not used: it makes libcups crash. Fetch another from the printer&apos;s maker.</source>
        <translation>PPD「%1」は使用しません: libcups が異常終了します。プリンターの製造元から別の PPD を入手してください。</translation>
    </message>
</context>
<context>
    <name>PpdDocument</name>
    <message>
        <source>The translations are left out: there are too many.</source>
        <translation>翻訳が多すぎるため、省きました。</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; repeats %2 of its choices; the first of each counts.</source>
        <translation>オプション「%1」で重複している選択肢: %2 件。それぞれ最初のものを使います。</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; is left out: it has no choices.</source>
        <translation>オプション「%1」は選択肢がないため、省きました。</translation>
    </message>
    <message>
        <source>Page sizes left out because they have no dimensions: %1.</source>
        <translation>寸法がないため省いた用紙サイズ: %1 件。</translation>
    </message>
    <message>
        <source>The default page size is not one of the printer&apos;s; &quot;%1&quot; takes its place.</source>
        <translation>既定の用紙サイズはこのプリンターのものではありません。代わりに「%1」を使います。</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; cannot be used: line %2: %3. Correct it or fetch another from the printer&apos;s maker.</source>
        <translation>PPD「%1」は使えません: %2 行目: %3。修正するか、プリンターのメーカーから別のものを入手してください。</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; has no page size that can be printed on. Correct it or fetch another from the printer&apos;s maker.</source>
        <translation>PPD「%1」には印刷できる用紙サイズがありません。修正するか、プリンターのメーカーから別のものを入手してください。</translation>
    </message>
    <message>
        <source>Texts are left out because they are in another encoding; keywords take their place.</source>
        <translation>文字コードが異なるテキストを省きました。代わりにキーワードを使います。</translation>
    </message>
    <message>
        <source>The page sizes have no dimensions; those of their names are assumed, or else the usual ones.</source>
        <translation>用紙サイズに寸法がありません。名前に応じた寸法か、一般的な寸法とみなします。</translation>
    </message>
</context>
<context>
    <name>PpdFile</name>
    <message>
        <source>its end is missing</source>
        <translation>末尾がありません</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>破損しています</translation>
    </message>
    <message>
        <source>The compressed PPD &quot;%1&quot; cannot be expanded: %2. Copy it again from where it came from.</source>
        <translation>圧縮された PPD「%1」を展開できません: %2。元の場所からもう一度コピーしてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a directory. Name the PPD file itself.</source>
        <translation>「%1」はフォルダーです。PPD ファイルそのものを指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a device or a pipe, not a file. Name the printer&apos;s PPD file.</source>
        <translation>「%1」はファイルではなく、デバイスかパイプです。プリンターの PPD ファイルを指定してください。</translation>
    </message>
    <message>
        <source>There is no PPD &quot;%1&quot;. Check the path.</source>
        <translation>PPD「%1」はありません。パスを確認してください。</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; cannot be read: %2. Check the file and its permissions.</source>
        <translation>PPD「%1」を読めません: %2。ファイルとそのアクセス権を確認してください。</translation>
    </message>
</context>
<context>
    <name>PpdInspection</name>
    <message>
        <source>it is not printable ASCII</source>
        <translation>印字可能な ASCII 文字ではありません</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>%1 文字を超えています</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>%1 MiB を超えています</translation>
    </message>
    <message>
        <source>the value in line %1 is longer than %2 bytes</source>
        <translation>%1 行目の値が %2 バイトを超えています</translation>
    </message>
    <message>
        <source>line %1 is longer than %2 bytes</source>
        <translation>%1 行目が %2 バイトを超えています</translation>
    </message>
    <message>
        <source>a line of it is longer than %1 characters</source>
        <translation>%1 文字を超える行があります</translation>
    </message>
    <message>
        <source>its text has control characters</source>
        <translation>テキストに制御文字が含まれています</translation>
    </message>
    <message>
        <source>its keyword cannot be read</source>
        <translation>キーワードを読めません</translation>
    </message>
    <message>
        <source>line %1 has control characters</source>
        <translation>%1 行目に制御文字が含まれています</translation>
    </message>
    <message>
        <source>groups of options</source>
        <translation>オプショングループ</translation>
    </message>
    <message>
        <source>the keyword of the option &quot;%1&quot; in line %2 is bad: %3</source>
        <translation>%2 行目のオプション「%1」のキーワードが不正です: %3</translation>
    </message>
    <message>
        <source>options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>choices</source>
        <translation>選択肢</translation>
    </message>
    <message>
        <source>page sizes</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>parameters of custom choices</source>
        <translation>カスタム選択肢のパラメーター</translation>
    </message>
    <message>
        <source>translations into one language</source>
        <translation>1 言語への翻訳</translation>
    </message>
    <message>
        <source>entries beside its options</source>
        <translation>オプション以外の項目</translation>
    </message>
    <message>
        <source>constraints</source>
        <translation>制約</translation>
    </message>
    <message>
        <source>its constraints name options with too many choices</source>
        <translation>制約が、選択肢の多すぎるオプションに関わっています</translation>
    </message>
    <message>
        <source>Line %1: the choice &quot;%2&quot; of the option &quot;%3&quot; is left out: %4.</source>
        <translation>%1 行目: オプション「%3」の選択肢「%2」を省きました: %4。</translation>
    </message>
    <message>
        <source>Line %1: the entry &quot;%3&quot; &quot;%2&quot; is left out: %4.</source>
        <translation>%1 行目: 項目「%3」「%2」を省きました: %4。</translation>
    </message>
    <message>
        <source>Further entries left out: %1.</source>
        <translation>ほかに省いた項目: %1 件。</translation>
    </message>
    <message>
        <source>it has more than %1 %2</source>
        <translation>%2が %1 を超えています</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; opened in line %2 never closes.</source>
        <translation>%2 行目で始まるオプション「%1」が閉じられていません。</translation>
    </message>
    <message>
        <source>The group opened in line %1 never closes.</source>
        <translation>%1 行目で始まるグループが閉じられていません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a PPD, which is a text that begins with &quot;*PPD-Adobe:&quot;. Name the printer&apos;s PPD file.</source>
        <translation>「%1」は PPD (「*PPD-Adobe:」で始まるテキスト) ではありません。プリンターの PPD ファイルを指定してください。</translation>
    </message>
    <message>
        <source>Fetch the printer&apos;s PPD again</source>
        <translation>プリンターの PPD を取得し直してください</translation>
    </message>
    <message>
        <source>Correct it or fetch another from the printer&apos;s maker</source>
        <translation>修正するか、プリンターのメーカーから別のものを入手してください</translation>
    </message>
    <message>
        <source>The PPD &quot;%1&quot; cannot be used: %2. %3.</source>
        <translation>PPD「%1」は使えません: %2。%3。</translation>
    </message>
    <message>
        <source>it has no keyword</source>
        <translation>キーワードがありません</translation>
    </message>
    <message>
        <source>The PPD has no page sizes; A4 and Letter take their place.</source>
        <translation>PPD に用紙サイズがありません。代わりに A4 と Letter を使います。</translation>
    </message>
    <message>
        <source>The quote opened in line %1 never closes.</source>
        <translation>%1 行目で始まる引用符が閉じられていません。</translation>
    </message>
    <message>
        <source>The PPD seems to be cut off in line %1.</source>
        <translation>PPD は %1 行目で途切れているようです。</translation>
    </message>
</context>
<context>
    <name>PreviewRun</name>
    <message>
        <source>&quot;%1&quot; is already there. Choose another name, or replace it with --overwrite.</source>
        <translation>「%1」はすでにあります。別の名前を指定するか、--overwrite で置き換えてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the photos, which are never replaced. Choose another name.</source>
        <translation>「%1」は写真のひとつであり、写真が置き換えられることはありません。別の名前を指定してください。</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is too long. Choose a shorter one.</source>
        <translation>名前「%1」が長すぎます。もっと短い名前を指定してください。</translation>
    </message>
    <message>
        <source>Preview of %1: %2</source>
        <translation>%1 のプレビュー: %2</translation>
    </message>
</context>
<context>
    <name>PrintDialog</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>プリンター(&amp;R):</translation>
    </message>
    <message>
        <source>Paper &amp;size:</source>
        <translation>用紙サイズ(&amp;S):</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>部数(&amp;C):</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>フォルダー(&amp;F):</translation>
    </message>
    <message>
        <source>Where the built-in printer leaves its files</source>
        <translation>内蔵プリンターがファイルを保存する場所</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>参照(&amp;B)…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Settings</source>
        <translation>設定を保存(&amp;V)</translation>
    </message>
    <message>
        <source>Keep these settings for the next time with this printer</source>
        <translation>次回このプリンターを使うときのために、この設定を保存します</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>プリセット(&amp;E):</translation>
    </message>
    <message>
        <source>Where the printer prints on this paper, with a test page</source>
        <translation>この用紙のどこに印刷されるか (テストページ付き)</translation>
    </message>
    <message>
        <source>Print position</source>
        <translation>印刷位置</translation>
    </message>
    <message>
        <source>Jobs…</source>
        <translation>ジョブ…</translation>
    </message>
    <message>
        <source>Your jobs on the print server: cancel, hold or print them again</source>
        <translation>プリントサーバーにある自分のジョブの取り消し、保留、再印刷</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF ファイル</translation>
    </message>
    <message>
        <source>One PDF of all</source>
        <translation>まとめて 1 つの PDF</translation>
    </message>
    <message>
        <source>Name of the PDF</source>
        <translation>PDF の名前</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>写真</translation>
    </message>
</context>
<context>
    <name>PrintedNames</name>
    <message>
        <source>The PDF has no name. Type one, or choose one PDF for each photo.</source>
        <translation>PDF に名前がありません。名前を入力するか、写真ごとの PDF を選んでください。</translation>
    </message>
    <message>
        <source>The PDF cannot be named &quot;%1&quot;, because of the slash. Leave it out, or choose another folder.</source>
        <translation>スラッシュがあるため、PDF に「%1」という名前は付けられません。スラッシュを除くか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The PDF cannot be named &quot;%1&quot;: nobody would see it, or read all of its name. Leave out the dot at its beginning, and characters that are not seen.</source>
        <translation>PDF に「%1」という名前は付けられません。見えないファイルになるか、名前をすべて読めません。先頭のドットと見えない文字を除いてください。</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is too long for a PDF in this folder. Choose a shorter one.</source>
        <translation>「%1」という名前は、このフォルダーの PDF には長すぎます。短い名前を選んでください。</translation>
    </message>
</context>
<context>
    <name>ProgramName</name>
    <message>
        <source>Document</source>
        <translation>文書</translation>
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
        <translation>内蔵プリンター (ファイルに保存)</translation>
    </message>
</context>
<context>
    <name>QueueFault</name>
    <message>
        <source>the print server does not know it</source>
        <translation>プリントサーバーに登録されていません</translation>
    </message>
    <message>
        <source>nothing answers at its address</source>
        <translation>そのアドレスから応答がありません</translation>
    </message>
    <message>
        <source>the print server keeps none for it</source>
        <translation>プリントサーバーにありません</translation>
    </message>
    <message>
        <source>it is set to reject them</source>
        <translation>拒否するように設定されています</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>権限がありません</translation>
    </message>
    <message>
        <source>time limit reached</source>
        <translation>制限時間に達しました</translation>
    </message>
    <message>
        <source>the print server gave no reason</source>
        <translation>プリントサーバーは理由を示しませんでした</translation>
    </message>
    <message>
        <source>its PPD file is a new one</source>
        <translation>PPD ファイルが新しくなりました</translation>
    </message>
    <message>
        <source>nothing is printed</source>
        <translation>何も印刷されません</translation>
    </message>
    <message>
        <source>The job for the printer &quot;%1&quot; was canceled (%2).</source>
        <translation>プリンター「%1」へのジョブを取り消しました（%2）。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not exist (%2). Choose another one, or add it in the printer settings.</source>
        <translation>プリンター「%1」はありません (%2)。別のプリンターを選ぶか、プリンターの設定で追加してください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached, because no print server is running (%2). Start CUPS or check the server&apos;s name.</source>
        <translation>プリントサーバーが動いていないため、プリンター「%1」に接続できません (%2)。CUPS を起動するか、サーバーの名前を確認してください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no PPD file (%2). Set it up again with its driver.</source>
        <translation>プリンター「%1」には PPD ファイルがありません (%2)。ドライバーを使って設定し直してください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not accept jobs (%2). Allow them in the printer settings, or choose another printer.</source>
        <translation>プリンター「%1」はジョブを受け付けていません (%2)。プリンターの設定で受け付けるようにするか、別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>The print server refused the request for the printer &quot;%1&quot; (%2). Ask its administrator.</source>
        <translation>プリントサーバーがプリンター「%1」への要求を拒否しました (%2)。管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>The print server did not answer about the printer &quot;%1&quot; in time (%2). Try again, or restart CUPS.</source>
        <translation>プリントサーバーがプリンター「%1」について時間内に応答しませんでした (%2)。やり直すか、CUPS を再起動してください。</translation>
    </message>
    <message>
        <source>The options of the printer &quot;%1&quot; have changed since they were chosen (%2). Look at them and print again.</source>
        <translation>プリンター「%1」のオプションは、選択した後に変わりました（%2）。確認してからもう一度印刷してください。</translation>
    </message>
    <message>
        <source>The print server could not serve the printer &quot;%1&quot; (%2). Try again, or check its log.</source>
        <translation>プリントサーバーがプリンター「%1」の要求を処理できませんでした (%2)。やり直すか、サーバーのログを確認してください。</translation>
    </message>
    <message>
        <source>No print server is running (%1). Start CUPS or check the server&apos;s name.</source>
        <translation>プリントサーバーが動いていません (%1)。CUPS を起動するか、サーバーの名前を確認してください。</translation>
    </message>
    <message>
        <source>The print server refused to list its printers (%1). Ask its administrator.</source>
        <translation>プリントサーバーがプリンターの一覧を拒否しました (%1)。管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>The print server did not answer in time (%1). Try again, or restart CUPS.</source>
        <translation>プリントサーバーが時間内に応答しませんでした (%1)。やり直すか、CUPS を再起動してください。</translation>
    </message>
    <message>
        <source>The print server could not list its printers (%1). Try again, or check its log.</source>
        <translation>プリントサーバーがプリンターの一覧を作れませんでした (%1)。やり直すか、サーバーのログを確認してください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; on the network does not answer (%2). Switch it on and choose it again in a minute, or choose another printer.</source>
        <translation>ネットワーク上のプリンター「%1」が応答しません (%2)。電源を入れて 1 分後にもう一度選ぶか、別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>There is no printer at &quot;%1&quot; (%2). Check the address.</source>
        <translation>「%1」にプリンターはありません (%2)。アドレスを確認してください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached (%2). Check its address, and that it is switched on.</source>
        <translation>プリンター「%1」に接続できません (%2)。アドレスと、電源が入っていることを確認してください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not accept jobs (%2). Look at the printer, or choose another one.</source>
        <translation>プリンター「%1」はジョブを受け付けていません (%2)。プリンターを確認するか、別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; refused the request (%2). Check its settings.</source>
        <translation>プリンター「%1」が要求を拒否しました (%2)。プリンターの設定を確認してください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; did not answer in time (%2). Check that it is switched on, and try again.</source>
        <translation>プリンター「%1」が時間内に応答しませんでした (%2)。電源が入っていることを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not do what it was asked for (%2). Try again, or look at the printer.</source>
        <translation>プリンター「%1」は要求を処理できませんでした (%2)。もう一度試すか、プリンターを確認してください。</translation>
    </message>
    <message>
        <source>no reason was given</source>
        <translation>理由は示されていません</translation>
    </message>
    <message>
        <source>no answer came</source>
        <translation>応答がありません</translation>
    </message>
    <message>
        <source>It is not known whether the printer &quot;%1&quot; has got the job (%2). Look at its jobs before you print again.</source>
        <translation>プリンター「%1」がジョブを受け取ったかどうか不明です（%2）。もう一度印刷する前に、そのジョブを確認してください。</translation>
    </message>
</context>
<context>
    <name>RemainingTime</name>
    <message>
        <source>less than a minute</source>
        <translation>1 分以内</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s)</source>
        <translation>
            <numerusform>約 %n 分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s)</source>
        <translation>
            <numerusform>約 %n 時間</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RequestedArrangement</name>
    <message>
        <source>&quot;%1&quot; is protected by a password, and there is no terminal to ask for it on. Start the program in a terminal, or in its window.</source>
        <translation>「%1」はパスワードで保護されており、パスワードを尋ねる端末がありません。端末で、またはウィンドウで起動してください。</translation>
    </message>
    <message>
        <source>--pages and --page-set are for documents, and there is none. Leave them out.</source>
        <translation>--pages と --page-set は文書用ですが、文書がありません。指定しないでください。</translation>
    </message>
</context>
<context>
    <name>RequestedSession</name>
    <message>
        <source>Of the preset &quot;%1&quot; is left out: %2</source>
        <translation>プリセット「%1」のうち次は使われません: %2</translation>
    </message>
    <message>
        <source>%1 It is your default printer; --printer names another one, and &quot;--printer built-in&quot; prints into files.</source>
        <translation>%1 これは既定のプリンターです。別のプリンターは --printer で指定できます。「--printer built-in」ではファイルに印刷します。</translation>
    </message>
    <message>
        <source>%1 It may have your default printer; --printer names another one, and &quot;--printer built-in&quot; prints into files.</source>
        <translation>%1 既定のプリンターがこのサーバーにあるかもしれません。別のプリンターは --printer で指定できます。「--printer built-in」ではファイルに印刷します。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no PPD file and so no option %2. Leave it out, or set the printer up with its driver.</source>
        <translation>プリンター「%1」には PPD ファイルがないため、オプション %2 はありません。指定を外すか、ドライバーを使ってプリンターを設定してください。</translation>
    </message>
    <message>
        <source>Of the printer&apos;s defaults is left out: %1</source>
        <translation>プリンターの既定値のうち次は使われません: %1</translation>
    </message>
    <message>
        <source>No page size is chosen. Choose one with -o %1=%2 or another one of --list-options.</source>
        <translation>用紙サイズが選ばれていません。-o %1=%2 か、--list-options にあるほかのサイズを指定してください。</translation>
    </message>
</context>
<context>
    <name>ScreenshotRun</name>
    <message>
        <source>The picture %1 could not be written: %2. Choose a folder that can be written.</source>
        <translation>画像 %1 を書き込めませんでした: %2。書き込めるフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made. Choose another one for the pictures.</source>
        <translation>フォルダー %1 を作れません。画像用に別のフォルダーを選んでください。</translation>
    </message>
</context>
<context>
    <name>SessionJob</name>
    <message>
        <source>No paper size is chosen. Choose one.</source>
        <translation>用紙サイズが選ばれていません。選んでください。</translation>
    </message>
</context>
<context>
    <name>SessionOpening</name>
    <message>
        <source>As set at the printer</source>
        <translation>プリンターの設定どおり</translation>
    </message>
</context>
<context>
    <name>StandardInput</name>
    <message>
        <source>The standard input cannot be kept in &quot;%1&quot;: %2. Free some space there.</source>
        <translation>標準入力を「%1」に保存できません: %2。そこに空きを作ってください。</translation>
    </message>
    <message>
        <source>The standard input could not be read: %1.</source>
        <translation>標準入力を読めませんでした: %1。</translation>
    </message>
    <message>
        <source>&quot;-&quot; reads a file from the standard input, which is the keyboard. Redirect it: corvel-print - &lt; photo.jpg</source>
        <translation>「-」は標準入力からファイルを読みますが、標準入力がキーボードになっています。corvel-print - &lt; photo.jpg のようにリダイレクトしてください。</translation>
    </message>
    <message>
        <source>The standard input is empty. Redirect a file to it.</source>
        <translation>標準入力が空です。ファイルをリダイレクトしてください。</translation>
    </message>
    <message>
        <source>The file on the standard input is too large: it may have %1.</source>
        <translation>標準入力のファイルが大きすぎます。%1 までです。</translation>
    </message>
</context>
<context>
    <name>StandardLabels</name>
    <message>
        <source>Paper size</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>用紙の種類</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>給紙方法</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>印刷品質</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>カラーモード</translation>
    </message>
    <message>
        <source>Two-sided printing</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>排紙トレイ</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>仕上げ</translation>
    </message>
    <message>
        <source>Finishing template</source>
        <translation>仕上げのテンプレート</translation>
    </message>
    <message>
        <source>Scaling by the printer</source>
        <translation>プリンターによる拡大縮小</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Optimize for</source>
        <translation>最適化の対象</translation>
    </message>
    <message>
        <source>Rendering intent</source>
        <translation>レンダリングインテント</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>カット</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Plain paper</source>
        <translation>普通紙</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>コート紙</translation>
    </message>
    <message>
        <source>Heavy paper</source>
        <translation>厚紙</translation>
    </message>
    <message>
        <source>Light paper</source>
        <translation>薄紙</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>インクジェット用紙</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>レターヘッド</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>写真用紙</translation>
    </message>
    <message>
        <source>Archival photo paper</source>
        <translation>保存用写真用紙</translation>
    </message>
    <message>
        <source>Photo film</source>
        <translation>写真用フィルム</translation>
    </message>
    <message>
        <source>Glossy photo paper</source>
        <translation>光沢写真用紙</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>高光沢写真用紙</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>マット写真用紙</translation>
    </message>
    <message>
        <source>Satin photo paper</source>
        <translation>サテン写真用紙</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>半光沢写真用紙</translation>
    </message>
    <message>
        <source>Card stock</source>
        <translation>カード用紙</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>連続用紙</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>封筒</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>OHPフィルム</translation>
    </message>
    <message>
        <source>Other paper</source>
        <translation>その他の用紙</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>メイントレイ</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>代替トレイ</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>手差し</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>手差しトレイ</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>写真トレイ</translation>
    </message>
    <message>
        <source>Postcard tray</source>
        <translation>はがきトレイ</translation>
    </message>
    <message>
        <source>Envelope tray</source>
        <translation>封筒トレイ</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>ディスクトレイ</translation>
    </message>
    <message>
        <source>Large tray</source>
        <translation>大容量トレイ</translation>
    </message>
    <message>
        <source>Main roll</source>
        <translation>メインロール</translation>
    </message>
    <message>
        <source>Alternate roll</source>
        <translation>代替ロール</translation>
    </message>
    <message>
        <source>Top tray</source>
        <translation>上段トレイ</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>中段トレイ</translation>
    </message>
    <message>
        <source>Bottom tray</source>
        <translation>下段トレイ</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>中央トレイ</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>左トレイ</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>右トレイ</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>後部トレイ</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>側面トレイ</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>印刷面を上</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>印刷面を下</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>ドラフト</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高品質</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Color (Adobe RGB)</source>
        <translation>カラー (Adobe RGB)</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>グレースケール</translation>
    </message>
    <message>
        <source>Gray, automatic</source>
        <translation>グレースケール (自動)</translation>
    </message>
    <message>
        <source>Gray from colored ink</source>
        <translation>カラーインクによるグレースケール</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>白黒</translation>
    </message>
    <message>
        <source>One side</source>
        <translation>片面</translation>
    </message>
    <message>
        <source>Both sides, turned on the long edge</source>
        <translation>両面 (長辺とじ)</translation>
    </message>
    <message>
        <source>Both sides, turned on the short edge</source>
        <translation>両面 (短辺とじ)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>ステープル</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>パンチ</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>表紙</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>製本</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>中とじ</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>平とじ</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折り</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>断裁</translation>
    </message>
    <message>
        <source>Bale</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>Offset stacking</source>
        <translation>オフセット排紙</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>コーティング</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>ラミネート</translation>
    </message>
    <message>
        <source>Staple, top left</source>
        <translation>ステープル (左上)</translation>
    </message>
    <message>
        <source>Staple, bottom left</source>
        <translation>ステープル (左下)</translation>
    </message>
    <message>
        <source>Staple, top right</source>
        <translation>ステープル (右上)</translation>
    </message>
    <message>
        <source>Staple, bottom right</source>
        <translation>ステープル (右下)</translation>
    </message>
    <message>
        <source>Trim after each page</source>
        <translation>ページごとに断裁</translation>
    </message>
    <message>
        <source>Trim after each document</source>
        <translation>文書ごとに断裁</translation>
    </message>
    <message>
        <source>Trim after each copy</source>
        <translation>部ごとに断裁</translation>
    </message>
    <message>
        <source>Trim after the job</source>
        <translation>ジョブの後に断裁</translation>
    </message>
    <message>
        <source>Only if it is too large</source>
        <translation>大きすぎる場合のみ</translation>
    </message>
    <message>
        <source>Fill the paper</source>
        <translation>用紙全体に拡大</translation>
    </message>
    <message>
        <source>Fit on the paper</source>
        <translation>用紙に合わせる</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>グラフィック</translation>
    </message>
    <message>
        <source>Text and graphics</source>
        <translation>文字とグラフィック</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>絶対的な色域を維持</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>知覚的</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>相対的な色域を維持</translation>
    </message>
    <message>
        <source>Relative colorimetric, black point adapted</source>
        <translation>相対的な色域を維持 (黒点の補正あり)</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>4 × 6 in (10 × 15 cm)</source>
        <translation>KG判 (102 × 152 mm)</translation>
    </message>
    <message>
        <source>5 × 7 in (13 × 18 cm)</source>
        <translation>2L判 (127 × 178 mm)</translation>
    </message>
    <message>
        <source>3.5 × 5 in (9 × 13 cm)</source>
        <translation>L判 (89 × 127 mm)</translation>
    </message>
    <message>
        <source>8 × 10 in (20 × 25 cm)</source>
        <translation>六切 (203 × 254 mm)</translation>
    </message>
    <message>
        <source>10 × 15 cm</source>
        <translation>100 × 150 mm</translation>
    </message>
    <message>
        <source>Postcard (Hagaki)</source>
        <translation>はがき</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>レター</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>リーガル</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>エグゼクティブ</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>タブロイド</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>ステートメント</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>トレイ %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>ロール %1</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>スタッカー %1</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>メールボックス %1</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <comment>a page size</comment>
        <translation>%1 (フチなし)</translation>
    </message>
</context>
<context>
    <name>StateText</name>
    <message>
        <source>out of paper</source>
        <translation>用紙切れ</translation>
    </message>
    <message>
        <source>paper has to be put in</source>
        <translation>用紙を入れてください</translation>
    </message>
    <message>
        <source>paper low</source>
        <translation>用紙残りわずか</translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation>紙詰まり</translation>
    </message>
    <message>
        <source>paper tray missing</source>
        <translation>給紙トレイがありません</translation>
    </message>
    <message>
        <source>output tray missing</source>
        <translation>排紙トレイがありません</translation>
    </message>
    <message>
        <source>output tray almost full</source>
        <translation>排紙トレイがまもなくいっぱいです</translation>
    </message>
    <message>
        <source>output tray full</source>
        <translation>排紙トレイがいっぱいです</translation>
    </message>
    <message>
        <source>ribbon or ink low</source>
        <translation>リボンまたはインクの残りわずか</translation>
    </message>
    <message>
        <source>ribbon or ink used up</source>
        <translation>リボンまたはインク切れ</translation>
    </message>
    <message>
        <source>ribbon low</source>
        <translation>リボン残りわずか</translation>
    </message>
    <message>
        <source>ribbon used up</source>
        <translation>リボン切れ</translation>
    </message>
    <message>
        <source>waste container almost full</source>
        <translation>廃棄容器がまもなくいっぱいです</translation>
    </message>
    <message>
        <source>waste container full</source>
        <translation>廃棄容器がいっぱいです</translation>
    </message>
    <message>
        <source>toner low</source>
        <translation>トナー残りわずか</translation>
    </message>
    <message>
        <source>toner used up</source>
        <translation>トナー切れ</translation>
    </message>
    <message>
        <source>cover open</source>
        <translation>カバーが開いています</translation>
    </message>
    <message>
        <source>door open</source>
        <translation>ドアが開いています</translation>
    </message>
    <message>
        <source>too hot</source>
        <translation>温度が高すぎます</translation>
    </message>
    <message>
        <source>warming up</source>
        <translation>ウォームアップ中</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>プリンターに接続しています</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>プリンターが応答しません</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>電源が切れています</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>一時停止しています</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>新しいジョブは保留されます</translation>
    </message>
    <message>
        <source>the print server&apos;s disk is full</source>
        <translation>プリントサーバーのディスクがいっぱいです</translation>
    </message>
    <message>
        <source>a filter of its driver is missing</source>
        <translation>ドライバーのフィルターが見つかりません</translation>
    </message>
    <message>
        <source>a filter of its driver is not safe</source>
        <translation>ドライバーのフィルターが安全ではありません</translation>
    </message>
    <message>
        <source>the printer is stopped</source>
        <translation>プリンターが停止しています</translation>
    </message>
    <message>
        <source>a part of the printer is stopped</source>
        <translation>プリンターの一部が停止しています</translation>
    </message>
    <message>
        <source>held</source>
        <translation>保留中</translation>
    </message>
    <message>
        <source>what it needs is not ready</source>
        <translation>必要なものの準備ができていません</translation>
    </message>
    <message>
        <source>the document could not be read</source>
        <translation>文書を読み取れませんでした</translation>
    </message>
    <message>
        <source>the document could not be printed</source>
        <translation>文書を印刷できませんでした</translation>
    </message>
    <message>
        <source>canceled by the user</source>
        <translation>ユーザーが取り消しました</translation>
    </message>
    <message>
        <source>canceled by the operator</source>
        <translation>管理者が取り消しました</translation>
    </message>
    <message>
        <source>canceled at the printer</source>
        <translation>プリンターで取り消されました</translation>
    </message>
    <message>
        <source>ended by the print server</source>
        <translation>プリントサーバーが中止しました</translation>
    </message>
    <message>
        <source>rejects jobs</source>
        <translation>ジョブを受け付けません</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 unknown</source>
        <translation>%1 不明</translation>
    </message>
    <message>
        <source>%1 %2 % (low)</source>
        <translation>%1 %2 %（残りわずか）</translation>
    </message>
    <message>
        <source>%1 %2 %</source>
        <translation>%1 %2 %</translation>
    </message>
    <message>
        <source>unspecified problem</source>
        <translation>不明な問題</translation>
    </message>
    <message>
        <source>held for authentication</source>
        <translation>サインインされるまで保留中</translation>
    </message>
    <message>
        <source>the printer does not accept this kind of document</source>
        <translation>プリンターはこの種類の文書に対応していません</translation>
    </message>
    <message>
        <source>found on the network</source>
        <translation>ネットワーク上で検出</translation>
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
        <translation>%1 秒以内にオプションが届きませんでした</translation>
    </message>
</context>
<context>
    <name>TerminalLogin</name>
    <message>
        <source>The user name or the password was not accepted.</source>
        <translation>ユーザー名またはパスワードが受け入れられませんでした。</translation>
    </message>
    <message>
        <source>The print server %1 wants a user name and a password.</source>
        <translation>プリントサーバー %1 はユーザー名とパスワードを必要とします。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; on %2 wants a user name and a password.</source>
        <translation>%2 のプリンター「%1」はユーザー名とパスワードを必要とします。</translation>
    </message>
    <message>
        <source>User name [%1]: </source>
        <translation>ユーザー名 [%1]: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>パスワード: </translation>
    </message>
    <message>
        <source>it wants a user name and a password, and there is no terminal to ask on</source>
        <translation>ユーザー名とパスワードが必要ですが、入力するための端末がありません</translation>
    </message>
    <message>
        <source>The password does not open &quot;%1&quot;.</source>
        <translation>このパスワードでは「%1」を開けません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is protected by a password.</source>
        <translation>「%1」はパスワードで保護されています。</translation>
    </message>
</context>
<context>
    <name>UsedChoices</name>
    <message>
        <source>&quot;%1&quot; is not a number of copies.</source>
        <translation>「%1」は部数として使えません。</translation>
    </message>
</context>
<context>
    <name>WindowRun</name>
    <message>
        <source>The window cannot be seen, because QT_QPA_PLATFORM asks for &quot;%1&quot;. Unset it, or print without a window (--batch).</source>
        <translation>QT_QPA_PLATFORM が「%1」を指定しているため、ウィンドウは表示されません。指定を外すか、ウィンドウなし (--batch) で印刷してください。</translation>
    </message>
</context>
<context>
    <name>corvel-print-portal</name>
    <message>
        <source>Shows the print dialog for programs that print through the desktop&apos;s portal. The desktop starts it when it is needed.</source>
        <translation>デスクトップのポータルを通じて印刷するプログラムのために、印刷ダイアログを表示します。必要なときにデスクトップが起動します。</translation>
    </message>
    <message>
        <source>Take over from one that is running.</source>
        <translation>実行中のものと交代します。</translation>
    </message>
    <message>
        <source>Seconds without work until it ends.</source>
        <translation>作業がないときに終了するまでの秒数。</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The program cannot start: QT_QPA_PLATFORM asks for &quot;%1&quot;, which cannot be used. Unset it.</source>
        <translation>プログラムを起動できません。QT_QPA_PLATFORM が指定する「%1」は使えません。この変数を取り除いてください。</translation>
    </message>
    <message>
        <source>The program cannot open a window on the display &quot;%1&quot;. Start it in a desktop session, or print without a window (--batch).</source>
        <translation>ディスプレイ「%1」にウィンドウを開けません。デスクトップセッションで起動するか、ウィンドウなしで印刷してください (--batch)。</translation>
    </message>
    <message>
        <source>The program cannot start: %1</source>
        <translation>プログラムを起動できません: %1</translation>
    </message>
    <message>
        <source>%1 See corvel-print --help.</source>
        <translation>%1 corvel-print --help をご覧ください。</translation>
    </message>
    <message>
        <source>There is no display to open a window on. Start it in a desktop session, or print without a window (--batch).</source>
        <translation>ウィンドウを開くディスプレイがありません。デスクトップセッションで起動するか、ウィンドウなしで印刷してください (--batch)。</translation>
    </message>
</context>
<context>
    <name>pdekit::OptionPanel</name>
    <message>
        <source>the printer has no PPD file</source>
        <translation>プリンターにPPDファイルがありません</translation>
    </message>
    <message>
        <source>the job has no print settings</source>
        <translation>ジョブに印刷設定がありません</translation>
    </message>
</context>
<context>
    <name>printdialog::Arrangement</name>
    <message>
        <source>%1 and %2 more</source>
        <comment>the name of a sheet with several photos</comment>
        <translation>%1 ほか %2 枚</translation>
    </message>
    <message>
        <source>None of the %1 pages is among those to be printed. Choose other pages.</source>
        <translation>%1 ページのどれも印刷対象に含まれていません。別のページを選んでください。</translation>
    </message>
    <message>
        <source>The only page is not among those to be printed. Choose other pages.</source>
        <translation>唯一のページが印刷対象に含まれていません。別のページを選んでください。</translation>
    </message>
</context>
<context>
    <name>printdialog::ChoiceCallout</name>
    <message>
        <source>Dismiss (Esc)</source>
        <translation>閉じる (Esc)</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>printdialog::ChoiceEditor</name>
    <message>
        <source>%1 (%2)</source>
        <comment>an option or choice, and why it is not available</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>カスタム…</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>an option and one of its choices</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>printdialog::ChoiceExplanation</name>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;</source>
        <comment>a condition</comment>
        <translation>「%1」が「%2」</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two conditions</comment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be &quot;%2&quot; while %3.</source>
        <comment>options, choices, and conditions</comment>
        <translation>%3の間は、「%1」を「%2」にできません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; to &quot;%2&quot;</source>
        <comment>change an option to a choice</comment>
        <translation>「%1」を「%2」に</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>printdialog::ChoiceRefusals</name>
    <message>
        <source>Als&amp;o change %1</source>
        <translation>あわせて%1変更(&amp;O)</translation>
    </message>
    <message>
        <source>Chan&amp;ge %1</source>
        <translation>%1変更(&amp;G)</translation>
    </message>
</context>
<context>
    <name>printdialog::ChoiceSteps</name>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
</context>
<context>
    <name>printdialog::CustomPageFields</name>
    <message>
        <source>Width:</source>
        <translation>幅:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高さ:</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>the smallest and the largest size</comment>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>The width can be %1.</source>
        <comment>from one length to another</comment>
        <translation>幅の範囲は%1です。</translation>
    </message>
    <message>
        <source>The height can be %1.</source>
        <comment>from one length to another</comment>
        <translation>高さの範囲は%1です。</translation>
    </message>
    <message>
        <source>Width (%1)</source>
        <comment>and its unit</comment>
        <translation>幅（%1）</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <comment>and its unit</comment>
        <translation>高さ（%1）</translation>
    </message>
</context>
<context>
    <name>printdialog::DialogSession</name>
    <message>
        <source>The option &quot;%1&quot; lacks what has to be entered for it.</source>
        <translation>項目「%1」に必要な入力がありません。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>その他の項目</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a part of the printer and its state</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>printdialog::Document</name>
    <message>
        <source>There is no document &quot;%1&quot;. Check its name and folder.</source>
        <translation>文書「%1」はありません。名前とフォルダーを確認してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no pages. Save it again in the program that it comes from.</source>
        <translation>「%1」にはページがありません。作成元のプログラムで保存し直してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a PDF document. Save it as PDF in the program that it comes from.</source>
        <translation>「%1」は PDF 文書ではありません。作成元のプログラムで PDF として保存してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is protected by a password. Enter the password.</source>
        <translation>「%1」はパスワードで保護されています。パスワードを入力してください。</translation>
    </message>
    <message>
        <source>The password does not open &quot;%1&quot;. Check it and enter it again.</source>
        <translation>このパスワードでは「%1」を開けません。確認して入力し直してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes too much time or memory to read. Print it in parts, or save it again in the program that it comes from.</source>
        <translation>「%1」の読み込みには時間またはメモリがかかりすぎます。分けて印刷するか、作成元のプログラムで保存し直してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed since it was opened. Add it again.</source>
        <translation>「%1」は開いた後に変更されました。もう一度追加してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged and cannot be repaired. Get it again from where it came from.</source>
        <translation>「%1」は壊れていて修復できません。入手元からもう一度取得してください。</translation>
    </message>
    <message>
        <source>You may not read &quot;%1&quot;. Ask its owner for the permission to read it.</source>
        <translation>「%1」を読み取る権限がありません。所有者に権限を求めてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be read: %2. Check the disk that it is on.</source>
        <translation>「%1」を読み取れませんでした: %2。保存先のディスクを確認してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Choose a document inside it.</source>
        <translation>「%1」はフォルダーです。その中の文書を選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file but a device, a pipe or a socket. Choose a document.</source>
        <translation>「%1」はファイルではなく、デバイス、パイプ、またはソケットです。文書を選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large: %2, where a document may have %3. Save it in parts.</source>
        <translation>「%1」は大きすぎます: %2 です。文書の上限は %3 です。分けて保存してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has more than %L2 pages. Save it in parts.</source>
        <translation>「%1」のページ数は %L2 を超えています。分けて保存してください。</translation>
    </message>
    <message>
        <source>Page %L1 of &quot;%2&quot; takes too much time or memory to show. It can be printed all the same.</source>
        <translation>「%2」の %L1 ページの表示には時間またはメモリがかかりすぎます。印刷はできます。</translation>
    </message>
    <message>
        <source>Page %L1 of &quot;%2&quot; cannot be shown, since it is damaged. Look at it closely when it is printed.</source>
        <translation>「%2」の %L1 ページは壊れているため表示できません。印刷されたページをよく確認してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not used, since it could not be read safely: %2. Install corvel-print again.</source>
        <translation>「%1」は安全に読み取れなかったため使用しません: %2。corvel-print をインストールし直してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be run: %2</source>
        <translation>「%1」を実行できません: %2</translation>
    </message>
    <message>
        <source>the system offers no sandbox</source>
        <translation>システムに隔離環境がありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends with status %2</source>
        <translation>「%1」がステータス %2 で終了しました</translation>
    </message>
</context>
<context>
    <name>printdialog::FileName</name>
    <message>
        <source>&quot;%1&quot; cannot be used: its name is not encoded in UTF-8. Rename it.</source>
        <translation>「%1」は使用できません。名前が UTF-8 で符号化されていません。名前を変更してください。</translation>
    </message>
</context>
<context>
    <name>printdialog::FileOpener</name>
    <message>
        <source>&quot;%1&quot; has no page %2. Correct the print list.</source>
        <translation>「%1」に %2 ページはありません。印刷リストを直してください。</translation>
    </message>
</context>
<context>
    <name>printdialog::FolderController</name>
    <message>
        <source>The last photos of the folder are still being printed. Try again in a moment.</source>
        <translation>フォルダーの最後の写真をまだ印刷しています。少し待ってからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Waiting for new photos.</source>
        <translation>新しい写真を待っています。</translation>
    </message>
</context>
<context>
    <name>printdialog::FolderPrinter</name>
    <message>
        <source>The folder &quot;%1&quot; does not answer. Look after its disk or its network connection; printing continues when it answers.</source>
        <translation>フォルダー「%1」が応答しません。そのディスクまたはネットワーク接続を確認してください。応答すると印刷を続けます。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; answers again.</source>
        <translation>フォルダー「%1」が再び応答しました。</translation>
    </message>
</context>
<context>
    <name>printdialog::FolderWatch</name>
    <message>
        <source>The folder &quot;%1&quot; is not there any more: it was deleted, renamed or unmounted. Put it back; what arrives in it then is printed.</source>
        <translation>フォルダー「%1」がなくなりました。削除されたか、名前が変わったか、マウントが解除されました。元に戻してください。その後に届いた写真は印刷されます。</translation>
    </message>
    <message>
        <source>You may not read the folder &quot;%1&quot; any more. Change its permissions; what has arrived in it is printed then.</source>
        <translation>フォルダー「%1」を読む権限がなくなりました。アクセス権を変更してください。届いている写真はその後に印刷されます。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be read: %2. Look after its disk or its network connection; what has arrived in it is printed when it answers again.</source>
        <translation>フォルダー「%1」を読めません: %2。そのディスクまたはネットワーク接続を確認してください。届いている写真は、再び応答すると印刷されます。</translation>
    </message>
</context>
<context>
    <name>printdialog::GuardedPanel</name>
    <message>
        <source>its plug-in gives no reason</source>
        <translation>プラグインは理由を示していません</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; was closed because its plug-in failed: %2. Update the plug-in. Everything else works.</source>
        <translation>ページ「%1」は、プラグインでエラーが起きたため閉じました: %2。プラグインを更新してください。その他はすべて使えます。</translation>
    </message>
    <message>
        <source>The choices of the page &quot;%1&quot; are missing, because its plug-in failed: %2. Update the plug-in.</source>
        <translation>プラグインでエラーが起きたため、ページ「%1」の設定がありません: %2。プラグインを更新してください。</translation>
    </message>
    <message>
        <source>The choices of the page &quot;%1&quot; are missing, because it could not save them: %2.</source>
        <translation>ページ「%1」の設定は、保存できなかったためありません: %2。</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; could not read the job&apos;s choices, and may show other ones: %2.</source>
        <translation>ページ「%1」はジョブの設定を読み込めず、異なる設定を表示している可能性があります: %2。</translation>
    </message>
</context>
<context>
    <name>printdialog::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
</context>
<context>
    <name>printdialog::JobTemplate</name>
    <message>
        <source>Account</source>
        <translation>アカウント</translation>
    </message>
    <message>
        <source>Account user</source>
        <translation>アカウントのユーザー</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>両面</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>部単位の順序</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>長辺とじ</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>短辺とじ</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>ページごと</translation>
    </message>
    <message>
        <source>Copy by copy</source>
        <translation>部ごと</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>すぐに</translation>
    </message>
    <message>
        <source>When released</source>
        <translation>保留を解除したとき</translation>
    </message>
    <message>
        <source>During the day</source>
        <translation>日中</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>夕方以降</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>夜間</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>第2シフト</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>第3シフト</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>週末</translation>
    </message>
    <message>
        <source>When to print</source>
        <translation>印刷するとき</translation>
    </message>
    <message>
        <source>At</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>優先度</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高品質</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no banner page</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Standard</source>
        <comment>a banner page</comment>
        <translation>標準</translation>
    </message>
    <message>
        <source>Form</source>
        <comment>a banner page</comment>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Classified</source>
        <comment>a banner page</comment>
        <translation>機密扱い</translation>
    </message>
    <message>
        <source>Confidential</source>
        <comment>a banner page</comment>
        <translation>社外秘</translation>
    </message>
    <message>
        <source>Secret</source>
        <comment>a banner page</comment>
        <translation>秘</translation>
    </message>
    <message>
        <source>Top secret</source>
        <comment>a banner page</comment>
        <translation>極秘</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <comment>a banner page</comment>
        <translation>機密指定なし</translation>
    </message>
    <message>
        <source>Banner page</source>
        <translation>バナーページ</translation>
    </message>
    <message>
        <source>Banner page before</source>
        <translation>前のバナーページ</translation>
    </message>
    <message>
        <source>Banner page after</source>
        <translation>後のバナーページ</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no account</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>暗証番号</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no PIN</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>The photo&apos;s name</source>
        <translation>写真の名前</translation>
    </message>
</context>
<context>
    <name>printdialog::JobsModel</name>
    <message>
        <source>Job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Since</source>
        <comment>the time at which a job got into its state</comment>
        <translation>時刻</translation>
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
        <translation>終わっていないジョブを選んでください。</translation>
    </message>
    <message>
        <source>Select a job that has not begun to print.</source>
        <translation>まだ印刷が始まっていないジョブを選んでください。</translation>
    </message>
    <message>
        <source>Select a job that is held.</source>
        <translation>保留中のジョブを選んでください。</translation>
    </message>
    <message>
        <source>Select a job that is over.</source>
        <translation>終わったジョブを選んでください。</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>&amp;Cancel Jobs</source>
        <translation>ジョブを取り消す(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Hold</source>
        <translation>保留にする(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Release</source>
        <translation>保留を解除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Print Again</source>
        <translation>再印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>The print server is being asked for your jobs.</source>
        <translation>プリントサーバーにジョブを問い合わせています。</translation>
    </message>
    <message>
        <source>Your jobs are not known.</source>
        <translation>ジョブは不明です。</translation>
    </message>
    <message>
        <source>Your jobs as the print server last reported them</source>
        <translation>プリントサーバーが最後に知らせたジョブ</translation>
    </message>
    <message>
        <source>You have no jobs on the print server.</source>
        <translation>プリントサーバーにジョブはありません。</translation>
    </message>
    <message>
        <source>Your jobs on the print server: %1 not over, %2 over</source>
        <translation>プリントサーバーにあるジョブ: 未完了 %1、終了 %2</translation>
    </message>
</context>
<context>
    <name>printdialog::KnownPrintSize</name>
    <message>
        <source>Square</source>
        <translation>正方形</translation>
    </message>
    <message>
        <source>Passport</source>
        <translation>証明写真</translation>
    </message>
    <message>
        <source>Wallet</source>
        <translation>ウォレット</translation>
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
        <translation>同じ写真を繰り返す</translation>
    </message>
    <message>
        <source>Cut marks</source>
        <translation>裁断用の目印</translation>
    </message>
    <message>
        <source>One photo per sheet</source>
        <translation>1枚に写真1点</translation>
    </message>
    <message>
        <source>Rows and columns</source>
        <translation>行と列</translation>
    </message>
    <message>
        <source>As many as fit</source>
        <translation>入るだけ</translation>
    </message>
    <message>
        <source>Contact sheet</source>
        <translation>コンタクトシート</translation>
    </message>
    <message>
        <source>Two strips</source>
        <translation>2本の帯</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>None</source>
        <comment>a caption</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>a caption</comment>
        <translation>名前</translation>
    </message>
    <message>
        <source>Date</source>
        <comment>a caption</comment>
        <translation>日付</translation>
    </message>
    <message>
        <source>Name and date</source>
        <comment>a caption</comment>
        <translation>名前と日付</translation>
    </message>
    <message>
        <source>A photo fills its sheet, or the second strip repeats the first, instead of the next ones following</source>
        <translation>次の写真を続けずに、同じ写真で用紙や2本目の帯を埋めます</translation>
    </message>
    <message>
        <source>Layout:</source>
        <translation>レイアウト:</translation>
    </message>
    <message>
        <source>Rows × columns:</source>
        <translation>行 × 列:</translation>
    </message>
    <message>
        <source>Photos per strip:</source>
        <translation>帯ごとの写真:</translation>
    </message>
    <message>
        <source>Captions:</source>
        <translation>キャプション:</translation>
    </message>
    <message>
        <source>Gap:</source>
        <translation>間隔:</translation>
    </message>
    <message>
        <source>One photo or page per sheet</source>
        <translation>1 枚に写真 1 枚または 1 ページ</translation>
    </message>
    <message>
        <source>One page per sheet</source>
        <translation>1 枚に 1 ページ</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) per sheet</source>
        <translation>
            <numerusform>1 枚に %n ページ</numerusform>
        </translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小冊子</translation>
    </message>
</context>
<context>
    <name>printdialog::MessageBar</name>
    <message>
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
</context>
<context>
    <name>printdialog::MixedSpinBox</name>
    <message>
        <source>several</source>
        <translation>複数</translation>
    </message>
</context>
<context>
    <name>printdialog::OptionPageView</name>
    <message>
        <source>No option has this text in it.</source>
        <translation>この文字を含む項目はありません。</translation>
    </message>
    <message>
        <source>Search the options</source>
        <translation>項目を検索</translation>
    </message>
</context>
<context>
    <name>printdialog::OptionRow</name>
    <message>
        <source>Put &quot;%1&quot; back to &quot;%2&quot;</source>
        <comment>an option and the printer&apos;s default</comment>
        <translation>「%1」を「%2」に戻す</translation>
    </message>
</context>
<context>
    <name>printdialog::OptionsFetcher</name>
    <message>
        <source>its PPD is larger than %1 MiB</source>
        <translation>PPD が %1 MiB を超えています</translation>
    </message>
    <message>
        <source>the connection broke in the middle of its PPD</source>
        <translation>PPD の途中で接続が切れました</translation>
    </message>
    <message>
        <source>what the print server keeps is empty</source>
        <translation>プリントサーバーにあるものは空です</translation>
    </message>
    <message>
        <source>its PPD did not arrive within %1 s</source>
        <translation>%1 秒以内に PPD が届きませんでした</translation>
    </message>
</context>
<context>
    <name>printdialog::OutcomeText</name>
    <message>
        <source>Printing was stopped.</source>
        <translation>印刷を中止しました。</translation>
    </message>
    <message>
        <source>Printed %1 photos in the folder %2</source>
        <translation>%1 枚の写真をフォルダー %2 に印刷しました</translation>
    </message>
    <message>
        <source>Printed %1 photos on %2 (jobs %3 to %4)</source>
        <translation>%1 枚の写真を %2 で印刷しました（ジョブ %3～%4）</translation>
    </message>
    <message>
        <source>Printed %1 photos on %2</source>
        <translation>%1 枚の写真を %2 で印刷しました</translation>
    </message>
    <message>
        <source>Printing was stopped: printed %1 of %2 photos.</source>
        <translation>印刷を中止しました: %2 枚中 %1 枚の写真を印刷しました。</translation>
    </message>
    <message>
        <source>Printed %1 of %2 photos.</source>
        <translation>%2 枚中 %1 枚の写真を印刷しました。</translation>
    </message>
    <message>
        <source>Sent %1 of %2 photos to %3, which continues printing.</source>
        <translation>%2 枚中 %1 枚の写真を %3 に送りました。印刷は続きます。</translation>
    </message>
    <message>
        <source>Not printed: %1.</source>
        <translation>印刷されていない写真: %1 枚。</translation>
    </message>
    <message>
        <source>Perhaps printed: %1.</source>
        <translation>印刷されたかどうか不明な写真: %1 枚。</translation>
    </message>
    <message>
        <source>Waiting at the printer: %1.</source>
        <translation>プリンターで待っている写真: %1 枚。</translation>
    </message>
    <message>
        <source>Cannot be printed: %1.</source>
        <translation>印刷できない写真: %1 枚。</translation>
    </message>
    <message>
        <source>Printed %1 photos in one PDF: %2</source>
        <translation>%1 枚の写真を 1 つの PDF に印刷しました: %2</translation>
    </message>
    <message>
        <source>Printing was stopped: printed %1 of %2 sheets.</source>
        <translation>印刷を中止しました: %2 シート中 %1 シートを印刷しました。</translation>
    </message>
    <message>
        <source>Sent %1 of %2 sheets to %3, which continues printing.</source>
        <translation>%2 シート中 %1 シートを %3 に送りました。印刷は続きます。</translation>
    </message>
    <message>
        <source>Printed %1 of %2 sheets.</source>
        <translation>%2 シート中 %1 シートを印刷しました。</translation>
    </message>
    <message>
        <source>Printed %1 sheets in one PDF: %2</source>
        <translation>%1 シートを 1 つの PDF に印刷しました: %2</translation>
    </message>
    <message>
        <source>Printed %1 sheets in the folder %2</source>
        <translation>%1 シートをフォルダー %2 に印刷しました</translation>
    </message>
    <message>
        <source>Printed %1 sheets on %2 (jobs %3 to %4)</source>
        <translation>%1 シートを %2 で印刷しました（ジョブ %3～%4）</translation>
    </message>
    <message>
        <source>Printed %1 sheets on %2</source>
        <translation>%1 シートを %2 で印刷しました</translation>
    </message>
    <message>
        <source>Printing was stopped: printed %1 of %2 jobs.</source>
        <translation>印刷を中止しました。%2 件のジョブのうち %1 件を印刷しました。</translation>
    </message>
    <message>
        <source>Sent %1 of %2 jobs to %3, which continues printing.</source>
        <translation>%2 件のジョブのうち %1 件を %3 に送りました。印刷は続きます。</translation>
    </message>
    <message>
        <source>Printed %1 of %2 jobs.</source>
        <translation>%2 件のジョブのうち %1 件を印刷しました。</translation>
    </message>
    <message>
        <source>Printed %1 jobs in one PDF: %2</source>
        <translation>%1 件のジョブを 1 つの PDF に印刷しました: %2</translation>
    </message>
    <message>
        <source>Printed %1 jobs in the folder %2</source>
        <translation>%1 件のジョブをフォルダー %2 に印刷しました</translation>
    </message>
    <message>
        <source>Printed %1 jobs on %2 (numbers %3 to %4)</source>
        <translation>%1 件のジョブを %2 で印刷しました (番号 %3～%4)</translation>
    </message>
    <message>
        <source>Printed %1 jobs on %2</source>
        <translation>%1 件のジョブを %2 で印刷しました</translation>
    </message>
</context>
<context>
    <name>printdialog::OutputFault</name>
    <message>
        <source>&quot;%1&quot; is not a folder: it is a file, or below one. Choose another folder.</source>
        <translation>「%1」はフォルダーではなく、ファイルかその下のパスです。別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be made: there is no such folder. Choose another folder.</source>
        <translation>「%1」を作れません。そのフォルダーはありません。別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>You may not write &quot;%1&quot;. Choose a folder that you may write to.</source>
        <translation>「%1」に書き込む権限がありません。書き込めるフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already there and is not a file that could be replaced. Rename it, or choose another folder.</source>
        <translation>「%1」はすでにあり、置き換えられるファイルではありません。名前を変えるか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is too long. Rename the photo, or choose another folder.</source>
        <translation>名前「%1」が長すぎます。写真の名前を変えるか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>There is no space for &quot;%1&quot;. Delete other files, or choose another folder.</source>
        <translation>「%1」のための空き容量がありません。ほかのファイルを削除するか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2. Check the disk, or choose another folder.</source>
        <translation>「%1」に書き込めませんでした: %2。ディスクを確認するか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>There is no space for &quot;%1&quot;: your quota on this disk is used up. Delete other files of yours, or choose another folder.</source>
        <translation>「%1」のための空きがありません。このディスクでの割り当て量を使い切っています。ほかのファイルを削除するか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than a file may be here. Raise the limit (ulimit -f), or choose another folder.</source>
        <translation>「%1」はここで許されるファイルの大きさを超えています。制限を上げるか (ulimit -f)、別のフォルダーを選んでください。</translation>
    </message>
</context>
<context>
    <name>printdialog::OwnJobs</name>
    <message>
        <source>%1 of %2 jobs were left as they are. The first one: %3</source>
        <translation>%2 件中 %1 件のジョブはそのままです。最初の 1 件: %3</translation>
    </message>
</context>
<context>
    <name>printdialog::PageBar</name>
    <message>
        <source>Reverse order</source>
        <translation>逆順</translation>
    </message>
    <message>
        <source>Page ranges</source>
        <translation>ページ範囲</translation>
    </message>
    <message>
        <source>Pages and ranges, separated by commas; 12- is page 12 to the last one</source>
        <translation>ページと範囲をコンマで区切ります。12- は 12 ページから最後までです</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>奇数ページと偶数ページ</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>奇数と偶数</translation>
    </message>
    <message>
        <source>Odd only</source>
        <comment>pages</comment>
        <translation>奇数のみ</translation>
    </message>
    <message>
        <source>Even only</source>
        <comment>pages</comment>
        <translation>偶数のみ</translation>
    </message>
    <message>
        <source>Print the last sheet first</source>
        <translation>最後のシートから印刷します</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>ページ:</translation>
    </message>
    <message>
        <source>All</source>
        <comment>pages</comment>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>表示中のページ</translation>
    </message>
    <message>
        <source>Selection</source>
        <comment>pages</comment>
        <translation>選択範囲</translation>
    </message>
    <message>
        <source>Ranges</source>
        <comment>of pages</comment>
        <translation>範囲</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not say which pages. Type page numbers from 1 on and ranges, such as 1-3,7,12-.</source>
        <translation>「%1」ではどのページか分かりません。1-3,7,12- のように、1 以上のページ番号と範囲を入力してください。</translation>
    </message>
    <message>
        <source>Type which pages are printed, such as 1-3,7,12-, or choose All.</source>
        <translation>1-3,7,12- のように印刷するページを入力するか、「すべて」を選んでください。</translation>
    </message>
</context>
<context>
    <name>printdialog::PanelTabs</name>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>設定の一覧</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; cannot be shown: its form is missing from the plug-in bundle or damaged. Install the bundle again. Everything else works.</source>
        <translation>「%1」の画面を表示できません。プラグインの中にフォームがないか、壊れています。プラグインを再インストールしてください。ほかの機能は使えます。</translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; cannot be left yet. Finish what it asks for.</source>
        <translation>ページ「%1」からはまだ移動できません。先にそのページが求める操作を済ませてください。</translation>
    </message>
</context>
<context>
    <name>printdialog::PasswordPrompt</name>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>The password does not open &quot;%1&quot;. Check it and enter it again.</source>
        <translation>このパスワードでは「%1」を開けません。確かめて、もう一度入力してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is protected by a password.</source>
        <translation>「%1」はパスワードで保護されています。</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Leave Out</source>
        <comment>a document</comment>
        <translation>除外(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>パスワード(&amp;P):</translation>
    </message>
</context>
<context>
    <name>printdialog::PatientPrinter</name>
    <message>
        <source>%1 waits. It is printed when that is over: %2</source>
        <translation>%1 は待っています。次のことが解決すると印刷されます: %2</translation>
    </message>
    <message>
        <source>%1 (job %2) waits. It was sent, and is not sent again: %3</source>
        <translation>%1（ジョブ %2）は待っています。送信済みのため、再送はしません: %3</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not print %2 (job %3): %4. Look at the printer and print again.</source>
        <translation>プリンター「%1」は %2（ジョブ %3）を印刷できませんでした: %4。プリンターを確認して、もう一度印刷してください。</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>理由は示されていません</translation>
    </message>
    <message>
        <source>The job %3 for %2 on the printer &quot;%1&quot; was canceled (%4).</source>
        <translation>プリンター「%1」の %2 のジョブ %3 は取り消されました（%4）。</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>理由は不明</translation>
    </message>
    <message>
        <source>The print server does not know its job %1 any more.</source>
        <translation>プリントサーバーにはそのジョブ %1 の記録がもうありません。</translation>
    </message>
    <message>
        <source>Printed %1 on %2 (job %3)</source>
        <translation>%1 を %2 で印刷しました（ジョブ %3）</translation>
    </message>
    <message>
        <source>%1 (job %2) waits: %3. It is printed when that is over.</source>
        <translation>%1（ジョブ %2）は待っています: %3。解決すると印刷されます。</translation>
    </message>
    <message>
        <source>Printing %1 continues.</source>
        <translation>%1 の印刷を続けます。</translation>
    </message>
    <message>
        <source>It was being sent, and the print server has no job that must be its.</source>
        <translation>送信中でしたが、プリントサーバーにはこの写真のものと言えるジョブがありません。</translation>
    </message>
    <message>
        <source>%1 waits. It was being sent, and only the print server knows whether it is printed: %2</source>
        <translation>%1 は待っています。送信中だったため、印刷されたかどうかはプリントサーバーにしか分かりません: %2</translation>
    </message>
</context>
<context>
    <name>printdialog::PdfWriter</name>
    <message>
        <source>The page of %1 x %2 points cannot be printed on. Choose another page size.</source>
        <translation>%1 × %2 ポイントのページには印刷できません。別の用紙サイズを選んでください。</translation>
    </message>
    <message>
        <source>The PDF of &quot;%1&quot; could not be written: %2. Check the disk that it goes to.</source>
        <translation>「%1」の PDF を書き込めませんでした: %2。書き込み先のディスクを確認してください。</translation>
    </message>
</context>
<context>
    <name>printdialog::Photo</name>
    <message>
        <source>&quot;%1&quot; is too large: %2, where a photo may have %3. Save it with fewer pixels, or as JPEG.</source>
        <translation>「%1」は大きすぎます: %2 (上限は %3)。ピクセル数を減らすか、JPEG で保存してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large: %2 x %3 pixels. Scale it down in a photo program.</source>
        <translation>「%1」は大きすぎます: %2 × %3 ピクセル。写真ソフトで縮小してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is cut short: its end is missing. Copy it again from where it came from.</source>
        <translation>「%1」は途中で切れていて、終わりがありません。元の場所からもう一度コピーしてください。</translation>
    </message>
    <message>
        <source>There is not enough memory for &quot;%1&quot;. Scale it down in a photo program.</source>
        <translation>「%1」にはメモリが足りません。写真ソフトで縮小してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: a part of the picture is missing or wrong. Copy it again from where it came from.</source>
        <translation>「%1」は破損しています。画像の一部が欠けているか、正しくありません。元の場所からもう一度コピーしてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an interlaced PNG of %2 x %3 pixels, which takes too much memory. Save it without interlacing, or as JPEG.</source>
        <translation>「%1」は %2 x %3 ピクセルのインターレース PNG で、メモリを使いすぎます。インターレースなしか、JPEG で保存してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a JPEG of a rare kind, lossless or with more than 8 bits, which cannot be printed. Save it as a usual JPEG in a photo program.</source>
        <translation>「%1」は、可逆圧縮または 8 ビットを超える特殊な JPEG で、印刷できません。写真ソフトで通常の JPEG として保存してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged and cannot be shown. Copy it again, or save it again in a photo program.</source>
        <translation>「%1」は壊れていて表示できません。もう一度コピーするか、写真ソフトで保存し直してください。</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <comment>a page of a document</comment>
        <translation>%1、%2 ページ</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoFile</name>
    <message>
        <source>There is no photo &quot;%1&quot;. Check its name and folder.</source>
        <translation>写真「%1」はありません。名前とフォルダーを確認してください。</translation>
    </message>
    <message>
        <source>You may not read &quot;%1&quot;. Ask its owner for the permission to read it.</source>
        <translation>「%1」を読む権限がありません。所有者に許可を求めてください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be read: %2. Check the disk or card that it is on.</source>
        <translation>「%1」を読めませんでした: %2。ディスクやカードを確認してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Choose a photo inside it.</source>
        <translation>「%1」はフォルダーです。その中の写真を選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file but a device, a pipe or a socket. Choose a photo.</source>
        <translation>「%1」はファイルではなく、デバイス、パイプ、またはソケットです。写真を選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed since it was opened. Add it again.</source>
        <translation>「%1」は開いた後に変更されました。もう一度追加してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Copy the file again from where it came from.</source>
        <translation>「%1」は空です。元の場所からファイルをもう一度コピーしてください。</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoFormat</name>
    <message>
        <source>camera raw</source>
        <translation>カメラの RAW</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a photo of the format %2, which needs the package %3. Install it, or save the photo as JPEG.</source>
        <translation>「%1」は %2 形式の写真で、パッケージ %3 が必要です。インストールするか、写真を JPEG で保存してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of the format %2, which cannot be printed. Save it as one of these: %3.</source>
        <translation>「%1」は %2 形式で、印刷できません。次のいずれかの形式で保存してください: %3。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a photo or document of a known kind, whatever its name says. Save it as one of these: %2.</source>
        <translation>「%1」は、名前にかかわらず、既知の種類の写真でも文書でもありません。次のいずれかの形式で保存してください: %2。</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoPane</name>
    <message>
        <source>A&amp;dd…</source>
        <translation>追加(&amp;D)…</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>取り除く(&amp;M)</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1（%2／%3）</translation>
    </message>
    <message>
        <source>Damaged: a part of the picture is missing or wrong.</source>
        <translation>破損: 画像の一部が欠けているか、正しくありません。</translation>
    </message>
    <message>
        <source>The printer places it on the page itself; the preview is only an example.</source>
        <translation>配置はプリンターが決めます。プレビューは一例です。</translation>
    </message>
    <message numerus="yes">
        <source>%n more file(s) cannot be printed.</source>
        <translation>
            <numerusform>ほかに %n 個のファイルを印刷できません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Sheets: %1</source>
        <translation>用紙の枚数: %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>取り除く</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Copies…</source>
        <comment>of the selected photos</comment>
        <translation>部数…</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>並べ替え</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>an order of photos</comment>
        <translation>名前</translation>
    </message>
    <message>
        <source>Date</source>
        <comment>an order of photos</comment>
        <translation>日付</translation>
    </message>
    <message>
        <source>As added</source>
        <comment>an order of photos</comment>
        <translation>追加した順</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>すべてに適用</translation>
    </message>
    <message>
        <source>Print lists</source>
        <translation>印刷リスト</translation>
    </message>
    <message>
        <source>Open a Print List</source>
        <translation>印刷リストを開く</translation>
    </message>
    <message>
        <source>Open List…</source>
        <comment>of photos</comment>
        <translation>リストを開く…</translation>
    </message>
    <message>
        <source>Save List…</source>
        <comment>of photos</comment>
        <translation>リストを保存…</translation>
    </message>
    <message>
        <source>Show Each Page</source>
        <translation>各ページを表示</translation>
    </message>
    <message>
        <source>Photos and documents</source>
        <translation>写真と文書</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>PDF 文書</translation>
    </message>
    <message>
        <source>Add Photos or Documents</source>
        <translation>写真や文書を追加</translation>
    </message>
    <message>
        <source>This page is not printed.</source>
        <translation>このページは印刷されません。</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; is empty.</source>
        <translation>印刷リスト「%1」は空です。</translation>
    </message>
    <message>
        <source>Save a Print List</source>
        <translation>印刷リストを保存</translation>
    </message>
    <message>
        <source>Sides of sheets: %1</source>
        <translation>用紙の面数: %1</translation>
    </message>
    <message>
        <source>%1, page %2 of %3</source>
        <translation>%1、%2/%3 ページ</translation>
    </message>
    <message>
        <source>Height of the table</source>
        <translation>表の高さ</translation>
    </message>
    <message>
        <source>Drag to see more or fewer pictures</source>
        <translation>ドラッグすると、表示される画像の数が変わります</translation>
    </message>
    <message>
        <source>Add photos and PDF documents to this job; they can be dropped on the window as well</source>
        <translation>写真と PDF 文書をこのジョブに追加します。ウィンドウにドロップすることもできます</translation>
    </message>
    <message>
        <source>Take what is selected out of this job; the files stay</source>
        <translation>選択したものをこのジョブから外します。ファイルは残ります</translation>
    </message>
    <message>
        <source>Show the pages as a table, in which they are moved, removed and placed one by one; otherwise what is chosen holds for all of them</source>
        <translation>ページを表で示します。表では 1 ページずつ移動、除外、配置ができます。そうでなければ、選択はすべてのページに適用されます</translation>
    </message>
</context>
<context>
    <name>printdialog::PhotoTable</name>
    <message>
        <source>Delete removes the selected photos; Alt with an arrow key moves them.</source>
        <translation>Deleteキーで選択した写真を外し、Altキーと矢印キーで移動します。</translation>
    </message>
    <message>
        <source>%1 of this job</source>
        <comment>such as: 3 photos and 12 pages</comment>
        <translation>このジョブの%1</translation>
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
            <numerusform>%n 部</numerusform>
        </translation>
    </message>
    <message>
        <source>whole page</source>
        <translation>ページ全体</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>破損</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>not printed</source>
        <translation>印刷しない</translation>
    </message>
</context>
<context>
    <name>printdialog::PlacementBar</name>
    <message>
        <source>&amp;Turn</source>
        <translation>回転(&amp;T)</translation>
    </message>
    <message>
        <source>P&amp;lacement:</source>
        <translation>配置(&amp;L):</translation>
    </message>
    <message>
        <source>This printer places the photo on the page itself.</source>
        <translation>このプリンターでは、写真の配置はプリンターが決めます。</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Size, border and copies of the photos, and how they share sheets</source>
        <translation>写真のサイズ、縁、部数と、用紙への並べ方</translation>
    </message>
    <message>
        <source>Placement on the paper</source>
        <translation>用紙上の配置</translation>
    </message>
    <message>
        <source>Turn the photo or page by a quarter, clockwise</source>
        <translation>写真やページを時計回りに 90° 回します</translation>
    </message>
</context>
<context>
    <name>printdialog::PortalSettings</name>
    <message>
        <source>The program&apos;s setting &quot;%1&quot; cannot be used: it is not plain text.</source>
        <translation>プログラムの設定「%1」は、単純なテキストではないため使えません。</translation>
    </message>
    <message>
        <source>The program&apos;s setting &quot;%1&quot; cannot be used: it is &quot;%2&quot;.</source>
        <translation>プログラムの設定「%1」は、値が「%2」のため使えません。</translation>
    </message>
    <message>
        <source>The program has more than %1 settings; the others are left out.</source>
        <translation>プログラムの設定が %1 件を超えています。残りは省かれます。</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetBar</name>
    <message>
        <source>Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no preset is in use</comment>
        <translation>なし</translation>
    </message>
    <message>
        <source>M&amp;anage</source>
        <translation>管理(&amp;A)</translation>
    </message>
    <message>
        <source>Save, rename or delete presets; go back to earlier choices</source>
        <translation>プリセットの保存、名前の変更、削除、以前の設定に戻す操作</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>プリセットの名前</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>名前を付けて保存(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>名前の変更(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>削除(&amp;D)…</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (変更あり)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Save &quot;%1&quot;</source>
        <translation>「%1」を保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;?</source>
        <translation>「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>Printer Defaults</source>
        <translation>プリンターの既定値</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetController</name>
    <message>
        <source>Of the choices used last, some are left out:</source>
        <translation>前回使用した設定のうち、次のものは適用されませんでした:</translation>
    </message>
    <message>
        <source>Re&amp;vert to How the Dialog Opened</source>
        <translation>開いたときの状態に戻す(&amp;V)</translation>
    </message>
    <message>
        <source>Of the preset &quot;%1&quot;, some choices are left out:</source>
        <translation>プリセット「%1」のうち、次のものは適用されませんでした:</translation>
    </message>
    <message numerus="yes">
        <source>And %n more.</source>
        <translation>
            <numerusform>ほか %n 件。</numerusform>
        </translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; no longer exists.</source>
        <translation>プリセット「%1」はもうありません。</translation>
    </message>
    <message>
        <source>Of the printer&apos;s defaults, some are left out:</source>
        <translation>プリンターの既定値のうち、次のものは適用されませんでした:</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetName</name>
    <message>
        <source>A preset needs a name.</source>
        <translation>プリセットには名前が必要です。</translation>
    </message>
    <message>
        <source>The name holds a control character, such as a tab or a line break. Type it without.</source>
        <translation>名前にタブや改行などの制御文字が含まれています。制御文字を除いて入力してください。</translation>
    </message>
    <message>
        <source>The name is too long: it takes %1 bytes to store, and CUPS allows %2. Choose a shorter one.</source>
        <translation>名前が長すぎます。保存には %1 バイト必要ですが、CUPS で使えるのは %2 バイトまでです。もっと短い名前にしてください。</translation>
    </message>
</context>
<context>
    <name>printdialog::PresetStore</name>
    <message>
        <source>The preset &quot;%1&quot; is not saved: with %2 options it is longer than the %3 bytes that CUPS reads. Save the settings instead.</source>
        <translation>プリセット「%1」は保存されません。オプションが %2 個あり、CUPS が読み取れる %3 バイトを超えています。代わりに設定を保存してください。</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; keeps its name: with the new one it is longer than the %2 bytes that CUPS reads. Choose a shorter one.</source>
        <translation>プリセット「%1」の名前は変わりません。新しい名前では CUPS が読み取れる %2 バイトを超えます。もっと短い名前にしてください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no preset &quot;%2&quot;, nor any other. Choose the printer without a preset.</source>
        <translation>プリンター「%1」にプリセット「%2」はなく、ほかのプリセットもありません。プリセットなしでプリンターを選んでください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no preset &quot;%2&quot;. Choose one of its %3 others, or the printer without a preset.</source>
        <translation>プリンター「%1」にプリセット「%2」はありません。ほかの %3 個のどれかを選ぶか、プリセットなしでプリンターを選んでください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has no preset &quot;%2&quot;. Its presets: %3. Choose one of them, or the printer without a preset.</source>
        <translation>プリンター「%1」にプリセット「%2」はありません。あるプリセット: %3。そのどれかを選ぶか、プリセットなしでプリンターを選んでください。</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already. Choose another name.</source>
        <translation>プリセット「%1」はすでにあります。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; is the system&apos;s. Save one of your own under a new name.</source>
        <translation>プリセット「%1」はシステムのものです。新しい名前で自分用に保存してください。</translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; no longer exists. Save it under a new name.</source>
        <translation>プリセット「%1」はもうありません。新しい名前で保存してください。</translation>
    </message>
</context>
<context>
    <name>printdialog::PreviewBar</name>
    <message>
        <source>Show the page smaller</source>
        <translation>ページを縮小して表示</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>How large the page is shown</source>
        <translation>ページの表示サイズ</translation>
    </message>
    <message>
        <source>Show the page larger</source>
        <translation>ページを拡大して表示</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Hold to see the photo without the printer&apos;s adjustments (%1)</source>
        <translation>押している間、プリンターの調整なしの写真を表示 (%1)</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message>
        <source>Show the photo without the printer&apos;s adjustments left of a divider that can be dragged</source>
        <translation>ドラッグできる境界線の左側に、プリンターの調整なしの写真を表示</translation>
    </message>
    <message>
        <source>Mark the tones that the adjustments clip to black or white</source>
        <translation>調整によって黒つぶれ・白とびする部分に印を付ける</translation>
    </message>
    <message>
        <source>Soft proof</source>
        <translation>ソフトプルーフ</translation>
    </message>
    <message>
        <source>Show the colors as the printer&apos;s paper has them</source>
        <translation>プリンターの用紙での色合いを表示</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>a zoom</comment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Clipped: %1 %</source>
        <translation>白とび・黒つぶれ: %1%</translation>
    </message>
    <message>
        <source>Clipped</source>
        <translation>白とび・黒つぶれ</translation>
    </message>
    <message>
        <source>Preview is approximate</source>
        <translation>プレビューは目安です</translation>
    </message>
    <message>
        <source>sharpness shows at 100 %</source>
        <translation>シャープネスは100%表示で確認できます</translation>
    </message>
    <message>
        <source> · </source>
        <comment>between two short notes</comment>
        <translation> · </translation>
    </message>
    <message>
        <source>Zoom: %1</source>
        <translation>ズーム: %1</translation>
    </message>
    <message>
        <source>Ruler</source>
        <translation>ルーラー</translation>
    </message>
    <message>
        <source>Measure the sheet along its edges</source>
        <translation>用紙の端に沿って寸法を表示します</translation>
    </message>
</context>
<context>
    <name>printdialog::PreviewWidget</name>
    <message>
        <source>Preview of %1</source>
        <translation>%1 のプレビュー</translation>
    </message>
    <message>
        <source>This photo cannot be shown</source>
        <translation>この写真は表示できません</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>ページのプレビュー</translation>
    </message>
    <message>
        <source>The whole photo is printed.</source>
        <translation>写真全体が印刷されます。</translation>
    </message>
    <message>
        <source>%1 % of the photo is cut off.</source>
        <translation>写真の %1 % が切り取られます。</translation>
    </message>
    <message>
        <source>Drag the photo, or press the arrow keys, to move it; Home puts it in the middle.</source>
        <translation>写真をドラッグするか矢印キーで移動します。Home キーで中央に戻ります。</translation>
    </message>
    <message>
        <source>Drag it, or press the arrow keys, to see another part; 0 shows the entire page.</source>
        <translation>ドラッグするか矢印キーを押すと別の部分が見えます。0でページ全体を表示します。</translation>
    </message>
    <message>
        <source>Left of the divider, the photo is shown without the adjustments. Drag the divider, or press Ctrl and an arrow key, to move it.</source>
        <translation>境界線の左側は調整なしの写真です。境界線はドラッグするか、Ctrlと矢印キーで動かせます。</translation>
    </message>
    <message>
        <source>Prints %1 beyond the edges of the paper</source>
        <comment>borderless</comment>
        <translation>用紙の端から %1 外側まで印刷します</translation>
    </message>
    <message>
        <source>The print is %1, %2 from the left edge of the sheet and %3 from its top.</source>
        <translation>プリントの大きさは %1、用紙の左端から %2、上端から %3 の位置です。</translation>
    </message>
    <message>
        <source>Sheet %1 of %2.</source>
        <translation>シート %1 / %2。</translation>
    </message>
    <message>
        <source>Photo %1 of %2 on the sheet.</source>
        <translation>シート上の写真 %1 / %2。</translation>
    </message>
    <message>
        <source>Click on a photo to change how it is printed.</source>
        <translation>写真をクリックすると、その印刷方法を変更できます。</translation>
    </message>
    <message>
        <source>Nothing to print. Drop photos or PDF documents here, or press Add.</source>
        <translation>印刷するものがありません。写真や PDF 文書をここにドロップするか、「追加」を押してください。</translation>
    </message>
    <message>
        <source>This page cannot be shown</source>
        <translation>このページは表示できません</translation>
    </message>
    <message>
        <source>Page %1 of %2 on the sheet.</source>
        <translation>シート上の %2 ページ中 %1 番目。</translation>
    </message>
    <message>
        <source>The whole page is printed.</source>
        <translation>ページ全体が印刷されます。</translation>
    </message>
    <message>
        <source>%1 % of the page is cut off.</source>
        <translation>ページの %1 % が切れます。</translation>
    </message>
    <message>
        <source>Drag the page, or press the arrow keys, to move it; Home puts it in the middle.</source>
        <translation>ページをドラッグするか矢印キーを押すと動かせます。Home で中央に戻ります。</translation>
    </message>
    <message>
        <source>Click on a page to change how it is printed.</source>
        <translation>ページをクリックすると、印刷のしかたを変えられます。</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintBar</name>
    <message>
        <source>Apply to All</source>
        <translation>すべてに適用</translation>
    </message>
    <message>
        <source> %</source>
        <comment>after a number</comment>
        <translation> %</translation>
    </message>
    <message>
        <source>Color of the border</source>
        <translation>縁の色</translation>
    </message>
    <message>
        <source>How often each of the selected photos is printed; Copies counts the whole job</source>
        <translation>選択した写真をそれぞれ何枚印刷するか。「部数」はジョブ全体の部数です</translation>
    </message>
    <message>
        <source>Give all photos the placement, size, border and number of prints of the one that is shown</source>
        <translation>表示中の写真の配置、サイズ、縁、枚数をすべての写真に適用します</translation>
    </message>
    <message>
        <source>Print size:</source>
        <translation>プリントサイズ:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>倍率:</translation>
    </message>
    <message>
        <source>Border:</source>
        <translation>縁:</translation>
    </message>
    <message>
        <source>Prints of each:</source>
        <translation>各写真の枚数:</translation>
    </message>
    <message>
        <source>Whole page</source>
        <translation>ページ全体</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>a print&apos;s size to type</comment>
        <translation>カスタム…</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>%1 の印刷</translation>
    </message>
    <message>
        <source>Folder for Printed Files</source>
        <translation>印刷したファイルの保存先</translation>
    </message>
    <message>
        <source>This printer has no panels of its own; it prints with its defaults.</source>
        <translation>このプリンターには専用の設定画面がありません。初期設定で印刷します。</translation>
    </message>
    <message>
        <source>Printing is under way.</source>
        <translation>印刷中です。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>The settings are saved for &quot;%1&quot;.</source>
        <translation>「%1」の設定を保存しました。</translation>
    </message>
    <message>
        <source>The options of &quot;%1&quot; have changed. Your choices were kept as far as the printer still has them; look at them before you print.</source>
        <translation>「%1」のオプションが変わりました。プリンターにまだある選択はそのまま残しました。印刷する前に確認してください。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Use the Built-in Printer</source>
        <translation>内蔵プリンターを使う</translation>
    </message>
    <message>
        <source>Nothing is saved.</source>
        <translation>何も保存されません。</translation>
    </message>
    <message>
        <source>Close Anyway</source>
        <translation>それでも閉じる</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>a paper size to type</comment>
        <translation>カスタム…</translation>
    </message>
    <message>
        <source>This printer has no PPD file and so no options of its own: it gets the photo&apos;s file as it is, and places it on the page itself.</source>
        <translation>このプリンターには PPD ファイルがないため、プリンター固有のオプションはありません。写真のファイルがそのまま送られ、配置はプリンターが行います。</translation>
    </message>
    <message>
        <source>%1 (not loaded)</source>
        <comment>a paper size</comment>
        <translation>%1（未装着）</translation>
    </message>
    <message>
        <source>Close Without Printing</source>
        <translation>印刷せずに閉じる</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>開いたままにする</translation>
    </message>
    <message>
        <source>Save List…</source>
        <translation>リストを保存…</translation>
    </message>
    <message>
        <source>One PDF for each sheet</source>
        <translation>シートごとに 1 つの PDF</translation>
    </message>
    <message>
        <source>One PDF for each photo</source>
        <translation>写真ごとに 1 つの PDF</translation>
    </message>
    <message>
        <source>The program brings the pages after you press &quot;%1&quot;.</source>
        <translation>「%1」を押すと、プログラムがページを渡します。</translation>
    </message>
    <message>
        <source>%1 brings the pages after you press &quot;%2&quot;.</source>
        <translation>「%2」を押すと、%1 がページを渡します。</translation>
    </message>
    <message>
        <source>The list is saved as &quot;%1&quot;.</source>
        <translation>リストを「%1」として保存しました。</translation>
    </message>
    <message>
        <source>Print</source>
        <comment>a title</comment>
        <translation>印刷</translation>
    </message>
    <message>
        <source>PDFs named after the files</source>
        <translation>ファイル名を使った PDF</translation>
    </message>
    <message>
        <source>Files are still being opened.</source>
        <translation>ファイルを開いています。</translation>
    </message>
    <message>
        <source>There is nothing to print.</source>
        <translation>印刷するものがありません。</translation>
    </message>
    <message>
        <source>The sheets were arranged and not printed. Close the window all the same?</source>
        <translation>配置したシートはまだ印刷されていません。それでもウィンドウを閉じますか?</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintList</name>
    <message>
        <source>&quot;%1&quot; is not a print list. Save it again in the print window.</source>
        <translation>「%1」は印刷リストではありません。印刷ウインドウで保存し直してください。</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; cannot be used: &quot;%2&quot; cannot be %3. Correct it, or save the list again in the print window.</source>
        <translation>印刷リスト「%1」は使えません:「%2」に %3 は指定できません。直すか、印刷ウインドウで保存し直してください。</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; could not be read: %2.</source>
        <translation>印刷リスト「%1」を読めませんでした: %2。</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; is from a later version of this program. Update the program, or save the list again with this one.</source>
        <translation>印刷リスト「%1」は新しいバージョンのプログラムのものです。プログラムを更新するか、このプログラムで保存し直してください。</translation>
    </message>
    <message>
        <source>The print list &quot;%1&quot; could not be saved: %2. Choose another folder.</source>
        <translation>印刷リスト「%1」を保存できませんでした: %2。別のフォルダーを選んでください。</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintPortal</name>
    <message>
        <source>%1 was not printed</source>
        <translation>%1 は印刷されていません</translation>
    </message>
    <message>
        <source>Problem with printing %1</source>
        <translation>%1 の印刷で問題が発生しました</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintPositionWindow</name>
    <message>
        <source>Print &amp;Test Page</source>
        <translation>テストページを印刷(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Correct</source>
        <translation>補正(&amp;C)</translation>
    </message>
    <message>
        <source>Print Position</source>
        <translation>印刷位置</translation>
    </message>
    <message>
        <source>To the &amp;right:</source>
        <translation>右へ(&amp;R):</translation>
    </message>
    <message>
        <source>&amp;Down:</source>
        <translation>下へ(&amp;D):</translation>
    </message>
    <message>
        <source>From the &amp;left edge:</source>
        <translation>左端から(&amp;L):</translation>
    </message>
    <message>
        <source>From the to&amp;p edge:</source>
        <translation>上端から(&amp;P):</translation>
    </message>
    <message>
        <source>The test page has a line %1 mm from the left edge and one %1 mm from the top edge. Print it, and measure them:</source>
        <translation>テストページには、左端から %1 mm と上端から %1 mm に線があります。印刷して、測ってください:</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Everything printed on &quot;%1&quot; with the paper size &quot;%2&quot; is moved:</source>
        <translation>「%1」で用紙サイズ「%2」に印刷するものをすべてずらします:</translation>
    </message>
    <message>
        <source>Prints can be moved by %1 mm at most. Check which paper is loaded, and the paper size, then print the test page again.</source>
        <translation>印刷位置をずらせるのは %1 mm までです。入っている用紙と用紙サイズを確認し、テストページをもう一度印刷してください。</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintProgress</name>
    <message>
        <source>Printing</source>
        <translation>印刷</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintRun</name>
    <message>
        <source>%1 The sheet with %2 is not printed.</source>
        <translation>%1 %2 のシートは印刷されません。</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintWorker</name>
    <message>
        <source>Writing %1</source>
        <translation>%1 を書き込んでいます</translation>
    </message>
    <message>
        <source>Sending %1 to %2</source>
        <translation>%1 を %2 に送信しています</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%2 枚中 %1 枚目: %3</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>%1 を確認しています</translation>
    </message>
    <message>
        <source>%1 was not printed.</source>
        <translation>%1 は印刷されていません。</translation>
    </message>
    <message>
        <source>%1 of %2, %3: %4</source>
        <translation>%1/%2 枚目、%3: %4</translation>
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
        <translation>プリンター「%1」がなくなりました。別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot;. Choose another one.</source>
        <translation>プリンター「%1」はありません。別のプリンターを選んでください。</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; is not there. %2</source>
        <translation>プリンター「%1」が見つかりません。%2</translation>
    </message>
    <message>
        <source>%1 (on the network)</source>
        <translation>%1 (ネットワーク上)</translation>
    </message>
    <message>
        <source>There is no printer &quot;%1&quot; (%2). Choose another one.</source>
        <translation>プリンター「%1」はありません (%2)。別のプリンターを選んでください。</translation>
    </message>
</context>
<context>
    <name>printdialog::PrinterController</name>
    <message>
        <source>The print server has not confirmed yet that the printer &quot;%1&quot; is there.</source>
        <translation>プリンター「%1」があることを、プリントサーバーはまだ確認していません。</translation>
    </message>
    <message>
        <source>The options of &quot;%1&quot; are being fetched from the print server.</source>
        <translation>「%1」のオプションをプリントサーバーから取得しています。</translation>
    </message>
</context>
<context>
    <name>printdialog::PrinterSearch</name>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Type a part of its name, place or model to find it</source>
        <translation>名前、場所、機種の一部を入力すると検索できます</translation>
    </message>
</context>
<context>
    <name>printdialog::PrinterStatus</name>
    <message>
        <source>One of %1; its options are those of the first.</source>
        <translation>%1 のいずれか。オプションは最初のプリンターのものです。</translation>
    </message>
    <message>
        <source>The print server is being asked for this printer.</source>
        <translation>このプリンターをプリントサーバーに問い合わせています。</translation>
    </message>
</context>
<context>
    <name>printdialog::PrintingController</name>
    <message>
        <source>Printing…</source>
        <translation>印刷しています…</translation>
    </message>
    <message>
        <source>Nothing was printed: a photo that was removed meanwhile is damaged. Print again.</source>
        <translation>何も印刷されませんでした。その間に取り除かれた写真が破損しています。もう一度印刷してください。</translation>
    </message>
    <message>
        <source>%1 is damaged: a part of the picture is missing or wrong. Look at it, then print it as it is, or remove it and copy it again from where it came from.</source>
        <translation>%1 は破損しています。画像の一部が欠けているか、正しくありません。確認してからそのまま印刷するか、削除して元の場所からもう一度コピーしてください。</translation>
    </message>
    <message>
        <source>These photos are damaged: %1. Look at them, then print them as they are, or remove them and copy them again from where they came from.</source>
        <translation>次の写真は破損しています: %1。確認してからそのまま印刷するか、削除して元の場所からもう一度コピーしてください。</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>それでも印刷</translation>
    </message>
    <message>
        <source>Print without these choices? The printer&apos;s own defaults take their place.</source>
        <translation>これらの設定なしで印刷しますか？代わりにプリンターの既定値が使われます。</translation>
    </message>
    <message>
        <source>Print Without Them</source>
        <translation>設定なしで印刷</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>中止しています…</translation>
    </message>
    <message>
        <source>Stop Printing</source>
        <translation>印刷を中止</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>開いたままにする</translation>
    </message>
    <message>
        <source>Printed so far: %1 of %2 photos. The rest is not printed when this window is closed.</source>
        <translation>これまでに %2 枚中 %1 枚の写真を印刷しました。このウィンドウを閉じると、残りは印刷されません。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>The print server continues printing when this window is closed.</source>
        <translation>このウィンドウを閉じても、プリントサーバーは印刷を続けます。</translation>
    </message>
    <message>
        <source>When this window is closed, the print server continues printing the %1 of %2 photos that it has. The rest is not printed.</source>
        <translation>このウィンドウを閉じても、プリントサーバーは %2 枚中、受け取った %1 枚の印刷を続けます。残りは印刷されません。</translation>
    </message>
    <message>
        <source>Print position</source>
        <comment>a file&apos;s name</comment>
        <translation>印刷位置</translation>
    </message>
    <message>
        <source>The test page could not be made in &quot;%1&quot;. Free some space there.</source>
        <translation>「%1」にテストページを作れませんでした。そこに空きを作ってください。</translation>
    </message>
    <message>
        <source>Jobs…</source>
        <translation>ジョブ…</translation>
    </message>
    <message>
        <source>Print the Rest</source>
        <translation>残りを印刷</translation>
    </message>
    <message>
        <source>Stopping after this photo…</source>
        <translation>この写真のあとで中止します…</translation>
    </message>
    <message>
        <source>Stop After This Photo</source>
        <translation>この写真のあとで中止</translation>
    </message>
    <message>
        <source>Stop at Once</source>
        <translation>すぐに中止</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already there. Keep it, and give the new PDF a number, or replace it?</source>
        <translation>「%1」はすでにあります。残して新しい PDF に番号を付けますか、それとも置き換えますか？</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>両方残す</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
    <message>
        <source>Stopping after this sheet…</source>
        <translation>このシートのあとで中止します…</translation>
    </message>
    <message>
        <source>Stop After This Sheet</source>
        <translation>このシートのあとで中止</translation>
    </message>
    <message>
        <source>Stop printing? What is not printed yet is canceled.</source>
        <translation>印刷を中止しますか？まだ印刷されていないものは取り消されます。</translation>
    </message>
    <message>
        <source>Printed so far: %1 of %2 sheets. The rest is not printed when this window is closed.</source>
        <translation>これまでに %2 シート中 %1 シートを印刷しました。このウィンドウを閉じると、残りは印刷されません。</translation>
    </message>
    <message>
        <source>When this window is closed, the print server continues printing the %1 of %2 sheets that it has. The rest is not printed.</source>
        <translation>このウィンドウを閉じても、プリントサーバーは %2 シート中、受け取った %1 シートの印刷を続けます。残りは印刷されません。</translation>
    </message>
    <message>
        <source>Stopping after this job…</source>
        <translation>このジョブのあとで中止します…</translation>
    </message>
    <message>
        <source>Stop After This Job</source>
        <translation>このジョブのあとで中止</translation>
    </message>
    <message>
        <source>Printed so far: %1 of %2 jobs. The rest is not printed when this window is closed.</source>
        <translation>これまでに %2 件中 %1 件のジョブを印刷しました。このウィンドウを閉じると、残りは印刷されません。</translation>
    </message>
    <message>
        <source>When this window is closed, the print server continues printing the %1 of %2 jobs that it has. The rest is not printed.</source>
        <translation>このウィンドウを閉じても、プリントサーバーは %2 件中、受け取った %1 件のジョブの印刷を続けます。残りは印刷されません。</translation>
    </message>
</context>
<context>
    <name>printdialog::SettingsFile</name>
    <message>
        <source>The file %1 cannot be read: %2. Make it readable, or move it away.</source>
        <translation>ファイル %1 を読み取れません: %2。読み取れるようにするか、別の場所に移動してください。</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>Nothing could be saved in %1: %2. Make room there, or make it writable.</source>
        <translation>%1 に保存できませんでした: %2。空き容量を作るか、書き込めるようにしてください。</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>フォルダーを作成できません</translation>
    </message>
    <message>
        <source>Nothing could be saved in %1: another program is writing there. Try again.</source>
        <translation>%1 に保存できませんでした。別のプログラムが書き込み中です。もう一度お試しください。</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetBar</name>
    <message>
        <source>Previous sheet</source>
        <translation>前のシート</translation>
    </message>
    <message>
        <source>Next sheet</source>
        <translation>次のシート</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>シート %1 / %2</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetPdf</name>
    <message>
        <source>There is not enough memory to print &quot;%1&quot;. Print it in several parts.</source>
        <translation>「%1」を印刷するためのメモリが足りません。いくつかに分けて印刷してください。</translation>
    </message>
    <message>
        <source>The PDF of &quot;%1&quot; could not be written: %2. Check the disk that it goes to.</source>
        <translation>「%1」の PDF を書き込めませんでした: %2。書き込み先のディスクを確認してください。</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetPlan</name>
    <message>
        <source>More than %1 prints are too many for one job. Print the photos in several parts.</source>
        <translation>%1 枚を超えるプリントは 1 つのジョブには多すぎます。何回かに分けて印刷してください。</translation>
    </message>
    <message>
        <source>As many prints of a size as fit need that size. Choose a print size.</source>
        <translation>入るだけ並べるには、プリントの大きさが必要です。プリントサイズを選んでください。</translation>
    </message>
    <message>
        <source>So many photos with these gaps leave no room for themselves on the paper&apos;s printable area of %1. Choose fewer, a smaller gap or a larger paper.</source>
        <translation>印刷可能領域 %1 には、この間隔でこれだけの写真は入りません。写真を減らすか、間隔を狭くするか、大きな用紙を選んでください。</translation>
    </message>
    <message>
        <source>A print of %1 has no room on the paper&apos;s printable area of %2. Choose a smaller size or a larger paper.</source>
        <translation>%1 のプリントは、印刷可能領域 %2 に入りません。小さいサイズか大きな用紙を選んでください。</translation>
    </message>
    <message>
        <source>A print of %1 has no room in its place of %2 on the sheet. Choose a smaller size, or fewer rows and columns.</source>
        <translation>%1 のプリントは、シート上の枠 %2 に入りません。小さいサイズを選ぶか、行と列を減らしてください。</translation>
    </message>
    <message>
        <source>A border of %1 leaves nothing of a print of %2. Choose a narrower one.</source>
        <translation>%1 の縁では、%2 のプリントに何も残りません。もっと細い縁を選んでください。</translation>
    </message>
</context>
<context>
    <name>printdialog::SheetPrinter</name>
    <message>
        <source>Printed %1: %2</source>
        <translation>%1 を印刷しました: %2</translation>
    </message>
    <message>
        <source>Sent %1 to %2 as job %3</source>
        <translation>%1 を %2 に送りました (ジョブ %3)</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; could not print %2 (job %3): %4. Look at the printer and print again.</source>
        <translation>プリンター「%1」は %2（ジョブ %3）を印刷できませんでした: %4。プリンターを確認して、もう一度印刷してください。</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>理由は示されていません</translation>
    </message>
    <message>
        <source>The job %3 for %2 on the printer &quot;%1&quot; was canceled (%4).</source>
        <translation>プリンター「%1」の %2 のジョブ %3 は取り消されました（%4）。</translation>
    </message>
    <message>
        <source>Printed %1 on %2 (job %3)</source>
        <translation>%1 を %2 で印刷しました（ジョブ %3）</translation>
    </message>
    <message>
        <source>The job %1 for %2 could not be canceled: %3</source>
        <translation>%2 のジョブ %1 を取り消せませんでした: %3</translation>
    </message>
    <message>
        <source>The outcome of %1 (job %2) is unknown: %3</source>
        <translation>%1（ジョブ %2）の結果は分かりません: %3</translation>
    </message>
    <message>
        <source>%1 (job %2) is not printed yet: %3. The print server keeps it; &quot;cancel %2&quot; cancels it.</source>
        <translation>%1（ジョブ %2）はまだ印刷されていません: %3。ジョブはプリントサーバーに残ります。「cancel %2」で取り消せます。</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>理由は不明</translation>
    </message>
    <message>
        <source>%1 (job %2) is not printed yet: %3. The printer keeps it; cancel it there.</source>
        <translation>%1（ジョブ %2）はまだ印刷されていません: %3。ジョブはプリンターに残ります。プリンターで取り消してください。</translation>
    </message>
    <message>
        <source>%1 copies of %2 are more than the %3 that a job can have. Print it in several parts.</source>
        <translation>%2 の %1 部は、1 つのジョブの上限 %3 部を超えています。何回かに分けて印刷してください。</translation>
    </message>
    <message>
        <source>The outcome of %1 (job %2) is unknown.</source>
        <translation>%1（ジョブ %2）の結果は不明です。</translation>
    </message>
    <message>
        <source>%1 (job %2) was canceled.</source>
        <translation>%1（ジョブ %2）を取り消しました。</translation>
    </message>
    <message>
        <source>Printed %1: page %2 of %3</source>
        <translation>%1 を印刷しました: %3 の %2 ページ</translation>
    </message>
</context>
<context>
    <name>printdialog::SummaryPage</name>
    <message>
        <source>Option</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Summary of the job</source>
        <translation>印刷ジョブの設定一覧</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchBar</name>
    <message>
        <source>Print new photos of this folder:</source>
        <translation>このフォルダーの新しい写真を印刷:</translation>
    </message>
    <message>
        <source>Photos that arrive in the folder are printed as they come, each once and with the present choices, until this is switched off or the window is closed</source>
        <translation>フォルダーに届いた写真を、現在の設定で 1 回ずつすぐに印刷します。オフにするか、ウインドウを閉じるまで続きます</translation>
    </message>
    <message>
        <source>Folder for new photos</source>
        <translation>新しい写真のフォルダー</translation>
    </message>
    <message>
        <source>Choose…</source>
        <comment>a folder</comment>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Folder for New Photos</source>
        <translation>新しい写真のフォルダー</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchLoop</name>
    <message>
        <source>The folder &quot;%1&quot; is there again.</source>
        <translation>フォルダー「%1」が戻りました。</translation>
    </message>
    <message>
        <source>Photos that arrive in &quot;%1&quot; are printed on %2 and moved to &quot;%3&quot;.</source>
        <translation>「%1」に届いた写真は %2 で印刷され、「%3」に移されます。</translation>
    </message>
    <message>
        <source>Photos that arrive in &quot;%1&quot; are printed on %2.</source>
        <translation>「%1」に届いた写真は %2 で印刷されます。</translation>
    </message>
    <message>
        <source>The files that are there already are left alone: %1. With --existing, they are printed.</source>
        <translation>すでにあるファイルはそのまま残します: %1 個。--existing を付けると印刷します。</translation>
    </message>
    <message>
        <source>The program was ended while it was being sent.</source>
        <translation>送信中にプログラムが終了しました。</translation>
    </message>
    <message>
        <source>It is unclear whether &quot;%1&quot; was printed. %2 It is not printed again by itself; if it has to be, set its time (&quot;touch&quot;) or copy it into the folder again.</source>
        <translation>「%1」が印刷されたかどうか分かりません。%2 自動では再印刷しません。必要であれば、更新日時を変える (「touch」) か、もう一度フォルダーにコピーしてください。</translation>
    </message>
    <message>
        <source>%1 It stays in the folder, and is not tried again.</source>
        <translation>%1 ファイルはフォルダーに残り、再試行はされません。</translation>
    </message>
    <message>
        <source>%1 It is now &quot;%2&quot;.</source>
        <translation>%1 ファイルは「%2」に移しました。</translation>
    </message>
    <message>
        <source>Printed photos stay in the folder, because they cannot be moved. %1</source>
        <translation>印刷済みの写真を移せないため、フォルダーに残します。%1</translation>
    </message>
    <message>
        <source>It was sent to another print server, %1.</source>
        <translation>別のプリントサーバー %1 に送信されました。</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchOrder</name>
    <message>
        <source>The built-in printer would leave its files in the watched folder, &quot;%1&quot;. Choose another folder for them.</source>
        <translation>内蔵プリンターのファイルが、監視中のフォルダー「%1」に置かれてしまいます。別のフォルダーを選んでください。</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchRecord</name>
    <message>
        <source>Another program watches the folder &quot;%1&quot; already. End it first, or choose another folder.</source>
        <translation>別のプログラムがすでにフォルダー「%1」を監視しています。先にそれを終了するか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The record of what was printed, &quot;%1&quot;, cannot be read: %2. Make it readable for you.</source>
        <translation>印刷の記録「%1」を読めません: %2。読み取れるようにしてください。</translation>
    </message>
    <message>
        <source>The record of what was printed, &quot;%1&quot;, cannot be written: %2. Nothing is printed without it; make room for it, or make it writable for you.</source>
        <translation>印刷の記録「%1」を書き込めません: %2。記録なしでは何も印刷しません。空き容量を作るか、書き込めるようにしてください。</translation>
    </message>
</context>
<context>
    <name>printdialog::WatchRun</name>
    <message>
        <source>The folder &quot;%1&quot; of %2 does not exist. Make it, or choose another one.</source>
        <translation>%2 のフォルダー「%1」はありません。作るか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder, and %2 needs one. Choose a folder.</source>
        <translation>「%1」はフォルダーではありません。%2 にはフォルダーが必要です。フォルダーを選んでください。</translation>
    </message>
    <message>
        <source>You may not read the folder &quot;%1&quot; of %2. Change its permissions, or choose another one.</source>
        <translation>%2 のフォルダー「%1」を読む権限がありません。アクセス権を変更するか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>--printed and --watch name the same folder, &quot;%1&quot;. Choose another one for the printed photos.</source>
        <translation>--printed と --watch が同じフォルダー「%1」を指定しています。印刷済みの写真には別のフォルダーを選んでください。</translation>
    </message>
</context>
</TS>
