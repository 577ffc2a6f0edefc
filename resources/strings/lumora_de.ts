<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
  <name></name>

  <!-- Shared by several tools -->
  <message id="BROWSE">
    <source>Browse…</source>
    <translation>Auswählen …</translation>
  </message>
  <message id="GENERATE">
    <source>Generate</source>
    <translation>Erzeugen</translation>
  </message>
  <message id="ALL_DONE">
    <source>All done</source>
    <translation>Alles fertig</translation>
  </message>
  <message id="COPY">
    <source>Copy</source>
    <translation>Kopieren</translation>
  </message>
  <message id="COPIED">
    <source>Copied</source>
    <translation>Kopiert</translation>
  </message>
  <message id="RESET">
    <source>Reset</source>
    <translation>Zurücksetzen</translation>
  </message>
  <message id="CLOSE">
    <source>Close</source>
    <translation>Schließen</translation>
  </message>
  <message id="DISMISS">
    <source>Got it</source>
    <translation>Verstanden</translation>
  </message>
  <message id="BUG_REPORT">
    <source>Report a problem</source>
    <translation>Problem melden</translation>
  </message>
  <message id="SUPPORT">
    <source>Contact us</source>
    <translation>Kontakt</translation>
  </message>
  <message id="SIDE_CLASSIC">
    <source>Classic</source>
    <translation>Klassisch</translation>
  </message>
  <message id="SIDE_TODAY">
    <source>Today</source>
    <translation>Heute</translation>
  </message>
  <message id="SIDE_TIP">
    <source>Switch between the classic side and what platforms want today</source>
    <translation>Zwischen der klassischen Seite und dem wechseln, was Plattformen heute verlangen</translation>
  </message>

  <!-- Header: APP_DEFAULT and a tool's text are joined with nothing between, so each tool's text brings its own bar and blanks -->
  <message id="APP_DEFAULT">
    <source>Lumora</source>
    <translation>Lumora</translation>
  </message>
  <message id="APP_ICONS">
    <source> | Icons</source>
    <translation> | Icons</translation>
  </message>
  <message id="APP_PLACEHOLDER">
    <source> | Placeholders</source>
    <translation> | Platzhalter</translation>
  </message>
  <message id="APP_RESIZER">
    <source> | Retina down-scaler</source>
    <translation> | Retina-Verkleinerer</translation>
  </message>
  <message id="APP_COLOR">
    <source> | Colors</source>
    <translation> | Farben</translation>
  </message>
  <message id="APP_DEVICES">
    <source> | Devices</source>
    <translation> | Geräte</translation>
  </message>
  <message id="APP_VALIDATER">
    <source> | Package check</source>
    <translation> | Paketprüfung</translation>
  </message>

  <!-- Help popup: the titles are also the tools' names in the sidebar and the menu; a text holds 60 to 110 words -->
  <message id="HELP_ICONS">
    <source>Icon generator</source>
    <translation>Icon-Generator</translation>
  </message>
  <message id="HELP_ICONS_TEXT">
    <source>Turn one picture into every icon an app needs. Drop a picture of exactly 1024 × 1024 pixels on the pane, or browse for one, then tick the platforms: iPhone, iPad, Mac, Android, web touch, favicon. Lumora writes each set with the right names and sizes into a fresh “icons” folder and packs the Mac set into an icon file as well. “Custom size” makes a single icon of 1 to 1024 pixels, with iOS 6 or iOS 7 corners if you like. The code snippets show how to declare the icons in your project.</source>
    <translation>Aus einem Bild wird jedes Icon, das eine App braucht. Ein Bild von genau 1024 × 1024 Pixeln auf diese Seite ziehen oder auswählen, dann die Plattformen ankreuzen: iPhone, iPad, Mac, Android, Web-Touch, Favicon. Lumora schreibt jeden Satz mit den richtigen Namen und Größen in einen neuen Ordner „icons“ und packt den Mac-Satz zusätzlich in eine Icon-Datei. „Eigene Größe“ erzeugt ein einzelnes Icon von 1 bis 1024 Pixeln, auf Wunsch mit Ecken wie in iOS 6 oder iOS 7. Die Code-Schnipsel zeigen, wie die Icons im Projekt eingetragen werden.</translation>
  </message>
  <message id="HELP_ICONS_TODAY_TEXT">
    <source>Every icon that stores and platforms want now, from one square picture or SVG drawing. Tick iOS, Mac, Watch, Android, web, Windows or Linux; the row of previews shows each icon as it will be seen. The wells take pictures of their own for dark, tinted, foreground, background and monochrome; until then they show what Lumora derives. Choose a folder: in a project that Lumora knows, such as Flutter or Xcode, it offers to put the files in their places. What is written is read back and judged. The switch “Classic | Today” (Ctrl+T) changes sides.</source>
    <translation>Alle Icons, die Stores und Plattformen heute verlangen, aus einem quadratischen Bild oder einer SVG-Zeichnung. iOS, Mac, Watch, Android, Web, Windows oder Linux ankreuzen; die Vorschau zeigt jedes Icon, wie es zu sehen sein wird. Die Mulden nehmen eigene Bilder für Dunkel, Getönt, Vordergrund, Hintergrund und Einfarbig; bis dahin zeigen sie, was Lumora ableitet. Dann einen Ordner wählen: In einem bekannten Projekt, etwa Flutter oder Xcode, legt Lumora die Dateien auf Wunsch an ihre Plätze. Was geschrieben ist, wird nachgelesen und beurteilt. Der Schalter „Klassisch | Heute“ (Strg+T) wechselt die Seite.</translation>
  </message>
  <message id="HELP_PLACEHOLDER">
    <source>Placeholder generator</source>
    <translation>Platzhalter-Generator</translation>
  </message>
  <message id="HELP_PLACEHOLDER_TEXT">
    <source>Fill a layout before its artwork exists. One press writes gray pictures in the screen sizes of iOS devices or of the Mac, each labeled in white with its own width and height. For anything else, type a width and a height from 1 to 9999 pixels. Choose where to save, and Lumora puts the PNG files, named like placeholder_640x1136.png, into a fresh “placeholders” folder. Folders from earlier runs stay untouched.</source>
    <translation>Layouts füllen, bevor es fertige Grafiken gibt. Ein Druck auf den Knopf schreibt graue Bilder in den Bildschirmgrößen von iOS-Geräten oder Macs; jedes trägt in Weiß seine Breite und Höhe. Für alles andere eine Breite und eine Höhe von 1 bis 9999 Pixeln eingeben. Nach der Wahl des Speicherorts legt Lumora die PNG-Dateien mit Namen wie placeholder_640x1136.png in einen neuen Ordner „placeholders“. Ordner aus früheren Durchgängen bleiben unberührt.</translation>
  </message>
  <message id="HELP_PLACEHOLDER_TODAY_TEXT">
    <source>Pictures for every place that is still empty. Choose sets: the screenshots of the App Store and of Google Play, feature graphics, TV and watch, social cards, launch screens; or type sizes of your own, such as 1200x600 800x800@2x. Give them a text and colors, and save them as PNG, WebP or SVG. The other way round, drop real screenshots or their folder here: Lumora holds them against the rules of the stores, with reason and remedy. The switch “Classic | Today” (Ctrl+T) changes sides.</source>
    <translation>Bilder für alle Plätze, die noch leer sind. Sätze wählen: Screenshots für App Store und Google Play, Funktionsgrafik, TV und Watch, soziale Netze, Startbilder; oder eigene Größen eingeben, etwa 1200x600 800x800@2x. Text und Farben bestimmen und als PNG, WebP oder SVG speichern. Umgekehrt: Echte Screenshots oder ihren Ordner hierher ziehen, und Lumora prüft sie nach den Regeln der Stores, mit Grund und Abhilfe. Der Schalter „Klassisch | Heute“ (Strg+T) wechselt die Seite.</translation>
  </message>
  <message id="HELP_RESIZER">
    <source>Retina down-scaler</source>
    <translation>Retina-Verkleinerer</translation>
  </message>
  <message id="HELP_RESIZER_TEXT">
    <source>Draw once at double resolution and let Lumora make the normal size. Drop PNG files marked @2x or -hd on the pane, or browse for them, and choose a folder. Every picture is halved in width and height, odd sizes rounding down, and saved without the mark in its name: button@2x.png becomes button.png. Files without a mark and files of other kinds are left out. Take care: a file of the same name in the chosen folder is replaced.</source>
    <translation>Einmal in doppelter Auflösung zeichnen, die normale Größe macht Lumora. PNG-Dateien mit der Kennung @2x oder -hd auf diese Seite ziehen oder auswählen, dann einen Ordner bestimmen. Jedes Bild wird in Breite und Höhe halbiert, ungerade Maße werden abgerundet, und ohne die Kennung im Namen gespeichert: Aus button@2x.png wird button.png. Dateien ohne Kennung und Dateien anderer Art bleiben außen vor. Vorsicht: Eine gleichnamige Datei im gewählten Ordner wird ersetzt.</translation>
  </message>
  <message id="HELP_RESIZER_TODAY_TEXT">
    <source>From the largest picture to all that are missing. Drop files or folders: name@3x.png or name@4x.png for iOS and macOS, drawable-xxxhdpi for Android, 3.0x or 4.0x for Flutter, React Native or the web; SVG drawings serve every density. Lumora first shows the plan: what is written, what is rounded to whole pixels, what exists and is kept. Existing files are replaced only where you say so, a source never. Save as PNG or WebP. The switch “Classic | Today” (Ctrl+T) changes sides.</source>
    <translation>Vom größten Bild zu allen, die fehlen. Dateien oder Ordner hierher ziehen: name@3x.png oder name@4x.png für iOS und macOS, drawable-xxxhdpi für Android, 3.0x oder 4.0x für Flutter, React Native oder das Web; SVG-Zeichnungen dienen jeder Auflösung. Zuerst zeigt Lumora den Plan: was geschrieben, was auf ganze Pixel gerundet, was erhalten wird. Vorhandene Dateien werden nur auf Wunsch ersetzt, eine Quelle nie. Speichern als PNG oder WebP. Der Schalter „Klassisch | Heute“ (Strg+T) wechselt die Seite.</translation>
  </message>
  <message id="HELP_COLOR">
    <source>Color codes</source>
    <translation>Farbcodes</translation>
  </message>
  <message id="HELP_COLOR_TEXT">
    <source>Carry a color from your design into your code. Click the color well to pick one, or type three or six hexadecimal digits such as #abc or #34485e; field and well follow each other. Each button copies the color as code, ready to paste: a UIColor for iOS, an NSColor for the Mac, rgb(red, green, blue) or a CSS declaration for style sheets. Drag the picker away from the well and it stays open as a window of its own.</source>
    <translation>Eine Farbe aus dem Entwurf in den Code übernehmen. Zum Auswählen auf das Farbfeld klicken oder drei oder sechs hexadezimale Ziffern wie #abc oder #34485e eingeben; Textfeld und Farbfeld folgen einander. Jeder Knopf kopiert die Farbe als fertigen Code zum Einfügen: als UIColor für iOS, als NSColor für den Mac, als rgb(Rot, Grün, Blau) oder als CSS-Deklaration für Stylesheets. Wird der Farbwähler vom Farbfeld weggezogen, bleibt er als eigenes Fenster offen.</translation>
  </message>
  <message id="HELP_COLOR_TODAY_TEXT">
    <source>One color as code for everything. Type or paste it in any form: hexadecimal, a CSS name, rgb(), hsl(), oklch(), or a line of Swift, Kotlin or Dart; opacity and Display P3 are kept. Each form has a copy button, and the choice of platform brings its forms to the top. A second color shows the contrast by WCAG 2 and the nearest color that passes. The palette keeps what you pick while the program runs, and saves it as color sets, GIMP palette, JSON or CSS. The switch “Classic | Today” (Ctrl+T) changes sides.</source>
    <translation>Eine Farbe als Code für alles. In jeder Form eingeben oder einfügen: hexadezimal, als CSS-Name, rgb(), hsl(), oklch() oder als Zeile in Swift, Kotlin oder Dart; Deckkraft und Display P3 bleiben erhalten. Jede Form hat einen Knopf zum Kopieren; die Wahl der Plattform bringt deren Formen nach oben. Eine zweite Farbe zeigt den Kontrast nach WCAG 2 und die nächste Farbe, die besteht. Die Palette merkt sich Gewähltes bis zum Programmende und speichert es als Farbsätze, GIMP-Palette, JSON oder CSS. Der Schalter „Klassisch | Heute“ (Strg+T) wechselt die Seite.</translation>
  </message>
  <message id="HELP_DEVICES">
    <source>Device matrix</source>
    <translation>Gerätematrix</translation>
  </message>
  <message id="HELP_DEVICES_TEXT">
    <source>See at a glance which devices your app can reach. Choose the iOS version it requires and tick the features it needs, such as GPS, a camera flash or OpenGL 3.0. Devices that can run that version and have every ticked feature stay bright; all others fade. One version counts at a time, together with any number of features. “Reset” clears the choice and brings back all seventeen iPhone, iPod and iPad models up to iOS 7.</source>
    <translation>Auf einen Blick sehen, welche Geräte eine App erreicht. Die vorausgesetzte iOS-Version wählen und die nötigen Funktionen ankreuzen, etwa GPS, einen Kamerablitz oder OpenGL 3.0. Geräte, auf denen diese Version läuft und die alle angekreuzten Funktionen haben, bleiben deutlich sichtbar; alle anderen verblassen. Es gilt immer eine Version zusammen mit beliebig vielen Funktionen. „Zurücksetzen“ hebt die Auswahl auf und zeigt wieder alle siebzehn Modelle von iPhone, iPod und iPad bis iOS 7.</translation>
  </message>
  <message id="HELP_DEVICES_TODAY_TEXT">
    <source>Every iPhone, iPad and iPod touch to date, newest first. Set the oldest and newest iOS version, the family, the chip and what your app requires; models that fall out fade, and their tip says why. The search takes names and identifiers such as iPhone15,2. A tile opens a card with screen, chip, versions, capabilities and the sizes of launch images and screenshots, each to copy. Two or three models can be compared side by side. The switch “Classic | Today” (Ctrl+T) changes sides.</source>
    <translation>Alle iPhones, iPads und iPods touch bis heute, die neuesten zuerst. Älteste und neueste iOS-Version, Familie, Chip und das einstellen, was die App voraussetzt; was nicht passt, verblasst, und sein Hinweis nennt den Grund. Die Suche nimmt Namen und Kennungen wie iPhone15,2. Eine Kachel öffnet eine Karte mit Bildschirm, Chip, Versionen, Fähigkeiten und den Größen von Startbildern und Screenshots, alles zum Kopieren. Zwei oder drei Modelle lassen sich vergleichen. Der Schalter „Klassisch | Heute“ (Strg+T) wechselt die Seite.</translation>
  </message>
  <message id="HELP_VALIDATER">
    <source>App package check</source>
    <translation>App-Paketprüfung</translation>
  </message>
  <message id="HELP_VALIDATER_TEXT">
    <source>Look through an app before you hand it in. Drop one .ipa package on the pane, or browse for it. Lumora shows its name, version, platform, oldest iOS version, bundle identifier and build kind, then checks the icons, launch images, provisioning profile, localizations, URL schemes and Facebook app ID. Press a box to read what was found; missing sizes are listed one by one. The package itself is never changed, and nothing is sent anywhere.</source>
    <translation>Eine App durchsehen, bevor sie eingereicht wird. Ein .ipa-Paket auf diese Seite ziehen oder auswählen. Lumora zeigt Name, Version, Plattform, älteste iOS-Version, Bundle-ID und Art des Builds und prüft dann Icons, Startbilder, Bereitstellungsprofil, Lokalisierungen, URL-Schemata und Facebook-App-ID. Ein Klick auf ein Kästchen zeigt, was gefunden wurde; fehlende Größen werden einzeln aufgeführt. Das Paket selbst wird nie verändert, und es wird nichts verschickt.</translation>
  </message>
  <message id="HELP_BUG_REPORT">
    <source>Report a bug</source>
    <translation>Fehler melden</translation>
  </message>
  <message id="HELP_FEATURE_REQUEST">
    <source>Suggest a feature</source>
    <translation>Idee vorschlagen</translation>
  </message>
  <message id="HELP_FEEDBACK">
    <source>Ask a question</source>
    <translation>Frage stellen</translation>
  </message>

  <!-- About and contact panels; the addresses open in the default browser or mail program -->
  <message id="ABOUT_TEXT">
    <source>A toolbox for makers of mobile and desktop apps: icons, placeholders, retina pictures, colors, devices and package checks in one window.</source>
    <translation>Ein Werkzeugkasten für alle, die Apps für Mobilgeräte und den Desktop machen: Icons, Platzhalter, Retina-Bilder, Farben, Geräte und Paketprüfung in einem Fenster.</translation>
  </message>
  <message id="ABOUT_TWITTER">
    <source>Twitter</source>
    <translation>Twitter</translation>
  </message>
  <message id="ABOUT_FACEBOOK">
    <source>Facebook</source>
    <translation>Facebook</translation>
  </message>
  <message id="ABOUT_MAIL">
    <source>Mail</source>
    <translation>E-Mail</translation>
  </message>
  <message id="ABOUT_TWITTER_WEB">
    <source>https://lumora.example/twitter</source>
    <translation>https://lumora.example/twitter</translation>
  </message>
  <message id="ABOUT_FACEBOOK_WEB">
    <source>https://lumora.example/facebook</source>
    <translation>https://lumora.example/facebook</translation>
  </message>
  <message id="ABOUT_MAIL_WEB">
    <source>mailto:support@lumora.example</source>
    <translation>mailto:support@lumora.example</translation>
  </message>
  <message id="ABOUT_BUG_REPORT_WEB">
    <source>https://lumora.example/bugs</source>
    <translation>https://lumora.example/bugs</translation>
  </message>
  <message id="ABOUT_FEATURE_REQUEST_WEB">
    <source>https://lumora.example/ideas</source>
    <translation>https://lumora.example/ideas</translation>
  </message>
  <message id="ABOUT_QUESTIONS_WEB">
    <source>https://lumora.example/questions</source>
    <translation>https://lumora.example/questions</translation>
  </message>
  <message id="INFORMATION_APP">
    <source>Lumora [VERSION]</source>
    <translation>Lumora [VERSION]</translation>
  </message>
  <message id="INFORMATION_INFO_1">
    <source>We are glad to help</source>
    <translation>Wir helfen gern</translation>
  </message>
  <message id="INFORMATION_INFO_2">
    <source>Write to [MAIL], message [TWITTER] or find us on [FACEBOOK].</source>
    <translation>Per E-Mail an [MAIL], als Nachricht an [TWITTER] oder auf [FACEBOOK].</translation>
  </message>
  <message id="INFORMATION_MAIL">
    <source>support@lumora.example</source>
    <translation>support@lumora.example</translation>
  </message>
  <message id="INFORMATION_TWITTER">
    <source>@lumora.example</source>
    <translation>@lumora.example</translation>
  </message>

  <!-- Icon generator -->
  <message id="ICONS_SOURCE_TITLE">
    <source>Source icon</source>
    <translation>Ausgangs-Icon</translation>
  </message>
  <message id="ICONS_SOURCE_SUBTITLE">
    <source>Drop a picture of 1024 × 1024 pixels</source>
    <translation>Ein Bild von 1024 × 1024 Pixeln hierher ziehen</translation>
  </message>
  <message id="ICONS_SOURCE_SUBTITLE_ACTIVE">
    <source>1024 × 1024 pixels, ready to export</source>
    <translation>1024 × 1024 Pixel, bereit zum Export</translation>
  </message>
  <message id="ICONS_BROWSE">
    <source>Choose a picture of 1024 × 1024 pixels</source>
    <translation>Ein Bild von 1024 × 1024 Pixeln auswählen</translation>
  </message>
  <message id="ICONS_PLATFORMS_TITLE">
    <source>Platforms</source>
    <translation>Plattformen</translation>
  </message>
  <message id="ICONS_IPHONE">
    <source>iPhone</source>
    <translation>iPhone</translation>
  </message>
  <message id="ICONS_IPAD">
    <source>iPad</source>
    <translation>iPad</translation>
  </message>
  <message id="ICONS_MAC">
    <source>Mac</source>
    <translation>Mac</translation>
  </message>
  <message id="ICONS_ANDROID">
    <source>Android</source>
    <translation>Android</translation>
  </message>
  <message id="ICONS_WEB_TOUCH">
    <source>Web touch</source>
    <translation>Web-Touch</translation>
  </message>
  <message id="ICONS_FAV_ICONS">
    <source>Favicon</source>
    <translation>Favicon</translation>
  </message>
  <message id="ICONS_ALL">
    <source>All</source>
    <translation>Alle</translation>
  </message>
  <message id="ICONS_CUSTOM_SETTINGS">
    <source>Custom size</source>
    <translation>Eigene Größe</translation>
  </message>
  <message id="ICONS_CUSTOM_SIZE">
    <source>Size</source>
    <translation>Größe</translation>
  </message>
  <message id="ICONS_ROUNDED_CORNERS_IOS6">
    <source>iOS 6 corners</source>
    <translation>iOS-6-Ecken</translation>
  </message>
  <message id="ICONS_ROUNDED_CORNERS">
    <source>iOS 7 corners</source>
    <translation>iOS-7-Ecken</translation>
  </message>
  <message id="ICONS_DESTINATION">
    <source>Choose the folder for the icons</source>
    <translation>Ordner für die Icons auswählen</translation>
  </message>
  <message id="ICONS_EXPORTING">
    <source>Exporting…</source>
    <translation>Export läuft …</translation>
  </message>
  <message id="ICONS_DONE">
    <source>Done</source>
    <translation>Fertig</translation>
  </message>
  <message id="ICONS_ALERT_TITLE">
    <source>This picture does not fit</source>
    <translation>Dieses Bild passt nicht</translation>
  </message>
  <message id="ICONS_ALERT_MESSAGE">
    <source>The source must be a readable picture of exactly 1024 × 1024 pixels. Please choose another one.</source>
    <translation>Das Ausgangsbild muss lesbar und genau 1024 × 1024 Pixel groß sein. Bitte ein anderes auswählen.</translation>
  </message>
  <message id="ICONS_NO_SOURCE_ALERT_TITLE">
    <source>No source icon yet</source>
    <translation>Noch kein Ausgangs-Icon</translation>
  </message>
  <message id="ICONS_NO_SOURCE_ALERT_MESSAGE">
    <source>Drop a picture of 1024 × 1024 pixels on the pane or browse for one first.</source>
    <translation>Zuerst ein Bild von 1024 × 1024 Pixeln auf die Seite ziehen oder auswählen.</translation>
  </message>
  <message id="ICONS_NO_PLATFORM_ALERT_TITLE">
    <source>No platform chosen</source>
    <translation>Keine Plattform gewählt</translation>
  </message>
  <message id="ICONS_NO_PLATFORM_ALERT_MESSAGE">
    <source>Tick at least one platform, then generate again.</source>
    <translation>Mindestens eine Plattform ankreuzen und dann erneut erzeugen.</translation>
  </message>
  <message id="ICONS_NO_DIMENSION_ALERT_TITLE">
    <source>No size given</source>
    <translation>Keine Größe angegeben</translation>
  </message>
  <message id="ICONS_NO_DIMENSION_ALERT_MESSAGE">
    <source>Type the edge length of the icon in pixels, from 1 to 1024.</source>
    <translation>Die Kantenlänge des Icons in Pixeln eingeben, von 1 bis 1024.</translation>
  </message>
  <message id="ICONS_INCORRECT_SIZE_ALERT_TITLE">
    <source>This size will not work</source>
    <translation>Diese Größe geht nicht</translation>
  </message>
  <message id="ICONS_INCORRECT_SIZE_ALERT_MESSAGE">
    <source>The edge length must be a whole number from 1 to 1024. Please correct it.</source>
    <translation>Die Kantenlänge muss eine ganze Zahl von 1 bis 1024 sein. Bitte korrigieren.</translation>
  </message>
  <message id="ICONS_NEW_FOLDER_ALERT_TITLE">
    <source>Saved in a new folder</source>
    <translation>In neuem Ordner gespeichert</translation>
  </message>
  <message id="ICONS_NEW_FOLDER_ALERT_MESSAGE">
    <source>The name “icons” was already taken there, so this export is in the folder “[FOLDER]”.</source>
    <translation>Der Name „icons“ war dort schon vergeben, deshalb liegt dieser Export im Ordner „[FOLDER]“.</translation>
  </message>
  <message id="ICONS_EXAMPLE">
    <source>Example picture</source>
    <translation>Beispielbild</translation>
  </message>
  <message id="ICONS_REFUSED">
    <source>[FILE]: [WHAT]</source>
    <translation>[FILE]: [WHAT]</translation>
  </message>
  <message id="ICONS_PIXELS">
    <source>[WIDTH] × [HEIGHT] pixels</source>
    <translation>[WIDTH] × [HEIGHT] Pixel</translation>
  </message>
  <message id="ICONS_NO_PICTURE">
    <source>no picture</source>
    <translation>kein Bild</translation>
  </message>
  <message id="ICONS_PASTED">
    <source>Pasted picture</source>
    <translation>Eingefügtes Bild</translation>
  </message>
  <message id="ICONS_WATCH">
    <source>Watch</source>
    <translation>Watch</translation>
  </message>
  <message id="ICONS_WEB">
    <source>Web</source>
    <translation>Web</translation>
  </message>
  <message id="ICONS_WINDOWS">
    <source>Windows</source>
    <translation>Windows</translation>
  </message>
  <message id="ICONS_LINUX">
    <source>Linux</source>
    <translation>Linux</translation>
  </message>
  <message id="ICONS_SEEN">
    <source>Where the icon will be seen</source>
    <translation>Wo das Icon zu sehen sein wird</translation>
  </message>
  <message id="ICONS_SEEN_LIGHT">
    <source>iOS light</source>
    <translation>iOS hell</translation>
  </message>
  <message id="ICONS_SEEN_DARK">
    <source>iOS dark</source>
    <translation>iOS dunkel</translation>
  </message>
  <message id="ICONS_SEEN_TINTED">
    <source>iOS tinted</source>
    <translation>iOS getönt</translation>
  </message>
  <message id="ICONS_SEEN_CIRCLE">
    <source>Circle</source>
    <translation>Kreis</translation>
  </message>
  <message id="ICONS_SEEN_SQUIRCLE">
    <source>Squircle</source>
    <translation>Squircle</translation>
  </message>
  <message id="ICONS_SEEN_ROUNDED">
    <source>Rounded</source>
    <translation>Gerundet</translation>
  </message>
  <message id="ICONS_SEEN_TEARDROP">
    <source>Teardrop</source>
    <translation>Tropfen</translation>
  </message>
  <message id="ICONS_SEEN_MASKABLE">
    <source>Web maskable</source>
    <translation>Web, Maske</translation>
  </message>
  <message id="ICONS_SEEN_BY_SYSTEM">
    <source>made by the system; the set has no such picture</source>
    <translation>vom System gemacht; der Satz enthält kein solches Bild</translation>
  </message>
  <message id="ICONS_SEEN_SAFE_ZONE">
    <source>the circle is what every mask shows</source>
    <translation>der Kreis ist, was jede Maske zeigt</translation>
  </message>
  <message id="ICONS_SOURCE_DARK">
    <source>Dark</source>
    <translation>Dunkel</translation>
  </message>
  <message id="ICONS_SOURCE_TINTED">
    <source>Tinted</source>
    <translation>Getönt</translation>
  </message>
  <message id="ICONS_SOURCE_MONOCHROME">
    <source>Monochrome</source>
    <translation>Einfarbig</translation>
  </message>
  <message id="ICONS_SOURCE_FOREGROUND">
    <source>Foreground</source>
    <translation>Vordergrund</translation>
  </message>
  <message id="ICONS_SOURCE_BACKGROUND">
    <source>Background</source>
    <translation>Hintergrund</translation>
  </message>
  <message id="ICONS_SOURCE_DERIVED">
    <source>derived</source>
    <translation>abgeleitet</translation>
  </message>
  <message id="ICONS_SOURCE_GIVEN">
    <source>given</source>
    <translation>vorgegeben</translation>
  </message>
  <message id="ICONS_SOURCE_NONE">
    <source>none</source>
    <translation>keines</translation>
  </message>
  <message id="ICONS_SOURCE_TIP">
    <source>Click or drop a square picture or SVG; Delete returns to what is derived</source>
    <translation>Klicken oder ein quadratisches Bild oder SVG ablegen; Entf stellt das Abgeleitete wieder her</translation>
  </message>
  <message id="ICONS_SOURCE_REMOVE">
    <source>[SOURCE]: back to what is derived</source>
    <translation>[SOURCE]: zurück zum Abgeleiteten</translation>
  </message>
  <message id="ICONS_BACKGROUND_COLOR">
    <source>Background color</source>
    <translation>Hintergrundfarbe</translation>
  </message>
  <message id="ICONS_FLATTEN_COLOR">
    <source>Flatten onto this color</source>
    <translation>Auf diese Farbe reduzieren</translation>
  </message>
  <message id="ICONS_FLATTENED">
    <source>the icon was put on this color where it must be opaque</source>
    <translation>wo es undurchsichtig sein muss, liegt das Icon auf dieser Farbe</translation>
  </message>
  <message id="ICONS_OR_COLOR">
    <source>Or a color</source>
    <translation>Oder Farbe</translation>
  </message>
  <message id="ICONS_FLATTEN">
    <source>Flatten onto</source>
    <translation>Reduzieren auf</translation>
  </message>
  <message id="ICONS_FLATTEN_TIP">
    <source>The color below a transparent icon where a store forbids transparency</source>
    <translation>Die Farbe unter einem durchsichtigen Icon, wo ein Store Transparenz verbietet</translation>
  </message>
  <message id="ICONS_COLOR_NONE">
    <source>none</source>
    <translation>keine</translation>
  </message>
  <message id="ICONS_COLOR_REFUSED">
    <source>This is no opaque color. Write #RRGGBB or a name.</source>
    <translation>Das ist keine deckende Farbe. #RRGGBB oder einen Namen schreiben.</translation>
  </message>
  <message id="ICONS_APP_NAME">
    <source>App name</source>
    <translation>Name der App</translation>
  </message>
  <message id="ICONS_APP_NAME_TIP">
    <source>The name in the web manifest and of the Linux files; “App” without it</source>
    <translation>Der Name im Web-Manifest und der Linux-Dateien; sonst „App“</translation>
  </message>
  <message id="ICONS_PROGRESS">
    <source>Progress of the icons</source>
    <translation>Fortschritt der Icons</translation>
  </message>
  <message id="ICONS_BROWSE_TODAY">
    <source>Choose a square picture of at least 512 pixels or an SVG drawing</source>
    <translation>Ein quadratisches Bild ab 512 Pixeln oder eine SVG-Zeichnung auswählen</translation>
  </message>
  <message id="ICONS_FILTER_SOURCES">
    <source>Pictures and drawings</source>
    <translation>Bilder und Zeichnungen</translation>
  </message>
  <message id="ICONS_TODAY_REFUSED">
    <source>[FILE]: [WHAT]. Please use a square picture of at least 512 pixels or a square SVG drawing.</source>
    <translation>[FILE]: [WHAT]. Bitte ein quadratisches Bild ab 512 Pixeln oder eine quadratische SVG-Zeichnung nehmen.</translation>
  </message>
  <message id="ICONS_DESTINATION_TODAY">
    <source>Choose a project or a folder for the icons</source>
    <translation>Ein Projekt oder einen Ordner für die Icons auswählen</translation>
  </message>
  <message id="ICONS_TRANSPARENT_TITLE">
    <source>The icon has transparency</source>
    <translation>Das Icon ist durchsichtig</translation>
  </message>
  <message id="ICONS_TRANSPARENT_MESSAGE">
    <source>iOS, Watch and Google Play refuse it. Choose a color to flatten the icon onto, for example white.</source>
    <translation>iOS, Watch und Google Play lehnen das ab. Eine Farbe wählen, auf die das Icon reduziert wird, zum Beispiel white.</translation>
  </message>
  <message id="ICONS_PROJECT_TITLE">
    <source>[KIND] project</source>
    <translation>[KIND]-Projekt</translation>
  </message>
  <message id="ICONS_PROJECT_QUESTION">
    <source>Put [COUNT] icons in their places?</source>
    <translation>[COUNT] Icons an ihre Plätze legen?</translation>
  </message>
  <message id="ICONS_PROJECT_QUESTION_ONE">
    <source>Put one icon in its place?</source>
    <translation>Ein Icon an seinen Platz legen?</translation>
  </message>
  <message id="ICONS_PROJECT_FILES">
    <source>Files of the project</source>
    <translation>Dateien des Projekts</translation>
  </message>
  <message id="ICONS_INTO_PROJECT">
    <source>Into the project</source>
    <translation>Ins Projekt</translation>
  </message>
  <message id="ICONS_OWN_FOLDER">
    <source>Into a folder of their own</source>
    <translation>In einen eigenen Ordner</translation>
  </message>

  <!-- Icon generator: code snippets; only the comments inside a snippet are translated -->
  <message id="Code Snippets">
    <source>Code snippets</source>
    <translation>Code-Schnipsel</translation>
  </message>
  <message id="SNIPPETS_TITLE">
    <source>Snippet copied</source>
    <translation>Schnipsel kopiert</translation>
  </message>
  <message id="SNIPPETS_MESSAGE">
    <source>The code snippet is on the clipboard, ready to paste.</source>
    <translation>Der Code-Schnipsel liegt in der Zwischenablage und kann eingefügt werden.</translation>
  </message>
  <message id="SNIPPETS_PLATFORM_IOS">
    <source>iOS</source>
    <translation>iOS</translation>
  </message>
  <message id="SNIPPETS_PLATFORM_PROMPT">
    <source>Choose a platform</source>
    <translation>Plattform wählen</translation>
  </message>
  <message id="SNIPPETS_NO_PLATFORM">
    <source>Platform</source>
    <translation>Plattform</translation>
  </message>
  <message id="SNIPPET_IOS_UNIVERSAL">
    <source><![CDATA[<!-- Info.plist: add the files from the folders iPhone and
     iPad to the app; take the shared names once. -->
<!-- iTunesArtwork and iTunesArtwork@2x are for ad hoc
     packages and are not declared. -->
<key>CFBundleIcons</key>
<dict>
    <key>CFBundlePrimaryIcon</key>
    <dict>
        <key>CFBundleIconFiles</key>
        <array>
            <string>Icon.png</string>
            <string>Icon@2x.png</string>
            <string>Icon-60.png</string>
            <string>Icon-60@2x.png</string>
            <string>Icon-Small.png</string>
            <string>Icon-Small@2x.png</string>
            <string>Icon-Small-40.png</string>
            <string>Icon-Small-40@2x.png</string>
        </array>
    </dict>
</dict>
<key>CFBundleIcons~ipad</key>
<dict>
    <key>CFBundlePrimaryIcon</key>
    <dict>
        <key>CFBundleIconFiles</key>
        <array>
            <string>Icon-72.png</string>
            <string>Icon-72@2x.png</string>
            <string>Icon-76.png</string>
            <string>Icon-76@2x.png</string>
            <string>Icon-Small.png</string>
            <string>Icon-Small@2x.png</string>
            <string>Icon-Small-40.png</string>
            <string>Icon-Small-40@2x.png</string>
            <string>Icon-Small-50.png</string>
            <string>Icon-Small-50@2x.png</string>
        </array>
    </dict>
</dict>]]></source>
    <translation><![CDATA[<!-- Info.plist: die Dateien aus den Ordnern iPhone und iPad
     zur App hinzufügen, gleiche Namen nur einmal. -->
<!-- iTunesArtwork und iTunesArtwork@2x sind für
     Ad-hoc-Pakete und werden nicht eingetragen. -->
<key>CFBundleIcons</key>
<dict>
    <key>CFBundlePrimaryIcon</key>
    <dict>
        <key>CFBundleIconFiles</key>
        <array>
            <string>Icon.png</string>
            <string>Icon@2x.png</string>
            <string>Icon-60.png</string>
            <string>Icon-60@2x.png</string>
            <string>Icon-Small.png</string>
            <string>Icon-Small@2x.png</string>
            <string>Icon-Small-40.png</string>
            <string>Icon-Small-40@2x.png</string>
        </array>
    </dict>
</dict>
<key>CFBundleIcons~ipad</key>
<dict>
    <key>CFBundlePrimaryIcon</key>
    <dict>
        <key>CFBundleIconFiles</key>
        <array>
            <string>Icon-72.png</string>
            <string>Icon-72@2x.png</string>
            <string>Icon-76.png</string>
            <string>Icon-76@2x.png</string>
            <string>Icon-Small.png</string>
            <string>Icon-Small@2x.png</string>
            <string>Icon-Small-40.png</string>
            <string>Icon-Small-40@2x.png</string>
            <string>Icon-Small-50.png</string>
            <string>Icon-Small-50@2x.png</string>
        </array>
    </dict>
</dict>]]></translation>
  </message>
  <message id="SNIPPET_IOS">
    <source><![CDATA[<!-- Info.plist: add the files from the folder iPhone to the app. -->
<!-- iTunesArtwork and iTunesArtwork@2x are for ad hoc
     packages and are not declared. -->
<key>CFBundleIcons</key>
<dict>
    <key>CFBundlePrimaryIcon</key>
    <dict>
        <key>CFBundleIconFiles</key>
        <array>
            <string>Icon.png</string>
            <string>Icon@2x.png</string>
            <string>Icon-60.png</string>
            <string>Icon-60@2x.png</string>
            <string>Icon-Small.png</string>
            <string>Icon-Small@2x.png</string>
            <string>Icon-Small-40.png</string>
            <string>Icon-Small-40@2x.png</string>
        </array>
    </dict>
</dict>]]></source>
    <translation><![CDATA[<!-- Info.plist: die Dateien aus dem Ordner iPhone
     zur App hinzufügen. -->
<!-- iTunesArtwork und iTunesArtwork@2x sind für
     Ad-hoc-Pakete und werden nicht eingetragen. -->
<key>CFBundleIcons</key>
<dict>
    <key>CFBundlePrimaryIcon</key>
    <dict>
        <key>CFBundleIconFiles</key>
        <array>
            <string>Icon.png</string>
            <string>Icon@2x.png</string>
            <string>Icon-60.png</string>
            <string>Icon-60@2x.png</string>
            <string>Icon-Small.png</string>
            <string>Icon-Small@2x.png</string>
            <string>Icon-Small-40.png</string>
            <string>Icon-Small-40@2x.png</string>
        </array>
    </dict>
</dict>]]></translation>
  </message>
  <message id="SNIPPET_IOS_IPAD">
    <source><![CDATA[<!-- Info.plist: add the files from the folder iPad to the app. -->
<!-- iTunesArtwork and iTunesArtwork@2x are for ad hoc
     packages and are not declared. -->
<key>CFBundleIcons~ipad</key>
<dict>
    <key>CFBundlePrimaryIcon</key>
    <dict>
        <key>CFBundleIconFiles</key>
        <array>
            <string>Icon-72.png</string>
            <string>Icon-72@2x.png</string>
            <string>Icon-76.png</string>
            <string>Icon-76@2x.png</string>
            <string>Icon-Small.png</string>
            <string>Icon-Small@2x.png</string>
            <string>Icon-Small-40.png</string>
            <string>Icon-Small-40@2x.png</string>
            <string>Icon-Small-50.png</string>
            <string>Icon-Small-50@2x.png</string>
        </array>
    </dict>
</dict>]]></source>
    <translation><![CDATA[<!-- Info.plist: die Dateien aus dem Ordner iPad
     zur App hinzufügen. -->
<!-- iTunesArtwork und iTunesArtwork@2x sind für
     Ad-hoc-Pakete und werden nicht eingetragen. -->
<key>CFBundleIcons~ipad</key>
<dict>
    <key>CFBundlePrimaryIcon</key>
    <dict>
        <key>CFBundleIconFiles</key>
        <array>
            <string>Icon-72.png</string>
            <string>Icon-72@2x.png</string>
            <string>Icon-76.png</string>
            <string>Icon-76@2x.png</string>
            <string>Icon-Small.png</string>
            <string>Icon-Small@2x.png</string>
            <string>Icon-Small-40.png</string>
            <string>Icon-Small-40@2x.png</string>
            <string>Icon-Small-50.png</string>
            <string>Icon-Small-50@2x.png</string>
        </array>
    </dict>
</dict>]]></translation>
  </message>
  <message id="SNIPPET_MACOSX">
    <source><![CDATA[<!-- Info.plist: add icons.icns from the folder Mac
     to the app's resources. -->
<key>CFBundleIconFile</key>
<string>icons.icns</string>]]></source>
    <translation><![CDATA[<!-- Info.plist: icons.icns aus dem Ordner Mac zu den
     Ressourcen der App hinzufügen. -->
<key>CFBundleIconFile</key>
<string>icons.icns</string>]]></translation>
  </message>
  <message id="SNIPPET_ANDROID">
    <source><![CDATA[<!-- Copy each file of the folder Android to its place:
     ic_launcher_ldpi.png: res/drawable-ldpi/ic_launcher.png
     ic_launcher_mdpi.png: res/drawable-mdpi/ic_launcher.png
     ic_launcher_hdpi.png: res/drawable-hdpi/ic_launcher.png
     ic_launcher_xhdpi.png: res/drawable-xhdpi/ic_launcher.png
     ic_512x512.png: upload to the store, not part of the app -->
<!-- AndroidManifest.xml: give your application element
     this icon. -->
<manifest xmlns:android="http://schemas.android.com/apk/res/android">
    <application android:icon="@drawable/ic_launcher" />
</manifest>]]></source>
    <translation><![CDATA[<!-- Jede Datei des Ordners Android an ihren Platz kopieren:
     ic_launcher_ldpi.png: res/drawable-ldpi/ic_launcher.png
     ic_launcher_mdpi.png: res/drawable-mdpi/ic_launcher.png
     ic_launcher_hdpi.png: res/drawable-hdpi/ic_launcher.png
     ic_launcher_xhdpi.png: res/drawable-xhdpi/ic_launcher.png
     ic_512x512.png: für den Store, gehört nicht in die App -->
<!-- AndroidManifest.xml: dem application-Element
     dieses Icon geben. -->
<manifest xmlns:android="http://schemas.android.com/apk/res/android">
    <application android:icon="@drawable/ic_launcher" />
</manifest>]]></translation>
  </message>
  <message id="SNIPPET_WEB_TOUCH">
    <source><![CDATA[<!-- In the head element; the files of the folder Web Touch
     go to the root of the site. -->
<link rel="apple-touch-icon-precomposed" sizes="152x152" href="/apple-touch-icon-152x152-precomposed.png" />
<link rel="apple-touch-icon-precomposed" sizes="144x144" href="/apple-touch-icon-144x144-precomposed.png" />
<link rel="apple-touch-icon-precomposed" sizes="120x120" href="/apple-touch-icon-120x120-precomposed.png" />
<link rel="apple-touch-icon-precomposed" sizes="114x114" href="/apple-touch-icon-114x114-precomposed.png" />
<link rel="apple-touch-icon-precomposed" sizes="76x76" href="/apple-touch-icon-76x76-precomposed.png" />
<link rel="apple-touch-icon-precomposed" sizes="72x72" href="/apple-touch-icon-72x72-precomposed.png" />
<link rel="apple-touch-icon-precomposed" sizes="60x60" href="/apple-touch-icon-60x60-precomposed.png" />
<link rel="apple-touch-icon-precomposed" sizes="57x57" href="/apple-touch-icon-precomposed.png" />
<link rel="apple-touch-icon" sizes="57x57" href="/apple-touch-icon.png" />]]></source>
    <translation><![CDATA[<!-- Ins head-Element; die Dateien des Ordners Web Touch
     kommen ins Wurzelverzeichnis der Website. -->
<link rel="apple-touch-icon-precomposed" sizes="152x152" href="/apple-touch-icon-152x152-precomposed.png" />
<link rel="apple-touch-icon-precomposed" sizes="144x144" href="/apple-touch-icon-144x144-precomposed.png" />
<link rel="apple-touch-icon-precomposed" sizes="120x120" href="/apple-touch-icon-120x120-precomposed.png" />
<link rel="apple-touch-icon-precomposed" sizes="114x114" href="/apple-touch-icon-114x114-precomposed.png" />
<link rel="apple-touch-icon-precomposed" sizes="76x76" href="/apple-touch-icon-76x76-precomposed.png" />
<link rel="apple-touch-icon-precomposed" sizes="72x72" href="/apple-touch-icon-72x72-precomposed.png" />
<link rel="apple-touch-icon-precomposed" sizes="60x60" href="/apple-touch-icon-60x60-precomposed.png" />
<link rel="apple-touch-icon-precomposed" sizes="57x57" href="/apple-touch-icon-precomposed.png" />
<link rel="apple-touch-icon" sizes="57x57" href="/apple-touch-icon.png" />]]></translation>
  </message>
  <message id="SNIPPET_FAVICON">
    <source><![CDATA[<!-- In the head element; the files of the folder Favicon
     go to the root of the site. -->
<link rel="icon" type="image/png" sizes="16x16" href="/favicon-16.png" />
<link rel="icon" type="image/png" sizes="32x32" href="/favicon-32.png" />
<link rel="icon" type="image/png" sizes="48x48" href="/favicon-48.png" />
<link rel="icon" type="image/png" sizes="64x64" href="/favicon-64.png" />
<link rel="icon" type="image/png" sizes="128x128" href="/favicon-128.png" />]]></source>
    <translation><![CDATA[<!-- Ins head-Element; die Dateien des Ordners Favicon
     kommen ins Wurzelverzeichnis der Website. -->
<link rel="icon" type="image/png" sizes="16x16" href="/favicon-16.png" />
<link rel="icon" type="image/png" sizes="32x32" href="/favicon-32.png" />
<link rel="icon" type="image/png" sizes="48x48" href="/favicon-48.png" />
<link rel="icon" type="image/png" sizes="64x64" href="/favicon-64.png" />
<link rel="icon" type="image/png" sizes="128x128" href="/favicon-128.png" />]]></translation>
  </message>

  <!-- Placeholder generator -->
  <message id="PLACEHOLDER_TITLE">
    <source>Device sizes</source>
    <translation>Gerätegrößen</translation>
  </message>
  <message id="PLACEHOLDER_IOS_TITLE">
    <source>iOS</source>
    <translation>iOS</translation>
  </message>
  <message id="PLACEHOLDER_IOS_SUBTITLE">
    <source>Nine sizes for iPhone, iPod and iPad</source>
    <translation>Neun Größen für iPhone, iPod und iPad</translation>
  </message>
  <message id="PLACEHOLDER_MAC_TITLE">
    <source>Mac</source>
    <translation>Mac</translation>
  </message>
  <message id="PLACEHOLDER_MAC_SUBTITLE">
    <source>Four sizes for icons and screens</source>
    <translation>Vier Größen für Icons und Bildschirme</translation>
  </message>
  <message id="PLACEHOLDER_CUSTOM">
    <source>Custom size</source>
    <translation>Eigene Größe</translation>
  </message>
  <message id="PLACEHOLDER_CUSTOM_TITLE">
    <source>Your own size</source>
    <translation>Eigene Maße</translation>
  </message>
  <message id="PLACEHOLDER_CUSTOM_SUBTITLE">
    <source>One picture, 1 to 9999 pixels a side</source>
    <translation>Ein Bild, je Seite 1 bis 9999 Pixel</translation>
  </message>
  <message id="PLACEHOLDER_SETTINGS">
    <source>Size in pixels</source>
    <translation>Größe in Pixeln</translation>
  </message>
  <message id="PLACEHOLDER_WIDTH">
    <source>Width</source>
    <translation>Breite</translation>
  </message>
  <message id="PLACEHOLDER_HEIGHT">
    <source>Height</source>
    <translation>Höhe</translation>
  </message>
  <message id="PLACEHOLDER_ALERT_TITLE">
    <source>This size will not work</source>
    <translation>Diese Größe geht nicht</translation>
  </message>
  <message id="PLACEHOLDER_ALERT_MESSAGE">
    <source>Width and height must be whole numbers from 1 to 9999. Please correct this one.</source>
    <translation>Breite und Höhe müssen ganze Zahlen von 1 bis 9999 sein. Bitte die Angabe hier korrigieren.</translation>
  </message>
  <message id="PLACEHOLDER_NEW_FOLDER_ALERT_TITLE">
    <source>Saved in a new folder</source>
    <translation>In neuem Ordner gespeichert</translation>
  </message>
  <message id="PLACEHOLDER_NEW_FOLDER_ALERT_MESSAGE">
    <source>The name “placeholders” was already taken there, so these pictures are in the folder “[FOLDER]”.</source>
    <translation>Der Name „placeholders“ war dort schon vergeben, deshalb liegen diese Bilder im Ordner „[FOLDER]“.</translation>
  </message>

  <!-- Retina down-scaler; the two panel texts also serve other tools, so they name no kind of file -->
  <message id="RESIZER_BROWSE_LABEL">
    <source>Drop PNG pictures marked @2x or -hd, or</source>
    <translation>PNG-Bilder mit @2x oder -hd hierher ziehen oder</translation>
  </message>
  <message id="RESIZER_BROWSE_PANEL">
    <source>Choose what to open</source>
    <translation>Auswählen, was geöffnet werden soll</translation>
  </message>
  <message id="RESIZER_DESTINATION_PANEL">
    <source>Choose the folder to save into</source>
    <translation>Ordner zum Speichern auswählen</translation>
  </message>
  <message id="RESIZER_PROGRESS">
    <source>Picture %i of %i</source>
    <translation>Bild %i von %i</translation>
  </message>
  <message id="RESIZER_DONE">
    <source>All done</source>
    <translation>Alles fertig</translation>
  </message>
  <message id="RESIZER_ALERT_TITLE">
    <source>Nothing to scale down</source>
    <translation>Nichts zu verkleinern</translation>
  </message>
  <message id="RESIZER_ALERT_MESSAGE">
    <source>None of these is a .png file marked @2x or -hd. Please choose double-resolution PNG pictures.</source>
    <translation>Keine der Dateien ist eine .png-Datei mit der Kennung @2x oder -hd. Bitte PNG-Bilder in doppelter Auflösung auswählen.</translation>
  </message>
  <message id="RESIZER_PLAN">
    <source>What will be halved</source>
    <translation>Was halbiert wird</translation>
  </message>
  <message id="RESIZER_PLAN_ALL">
    <source>To be halved: [TAKEN]</source>
    <translation>Zu halbieren: [TAKEN]</translation>
  </message>
  <message id="RESIZER_PLAN_SOME">
    <source>To be halved: [TAKEN], left out: [LEFT]</source>
    <translation>Zu halbieren: [TAKEN], ausgelassen: [LEFT]</translation>
  </message>
  <message id="RESIZER_PLAN_PICTURE">
    <source>Picture</source>
    <translation>Bild</translation>
  </message>
  <message id="RESIZER_PLAN_NOW">
    <source>Now</source>
    <translation>Jetzt</translation>
  </message>
  <message id="RESIZER_PLAN_THEN">
    <source>Half</source>
    <translation>Hälfte</translation>
  </message>
  <message id="RESIZER_LEFT_OUT">
    <source>Left out: [REASON]</source>
    <translation>Ausgelassen: [REASON]</translation>
  </message>

  <!-- The placeholder tool's side of today -->
  <message id="PLACEHOLDER_TEXT">
    <source>Text</source>
    <translation>Text</translation>
  </message>
  <message id="PLACEHOLDER_TEXT_TIP">
    <source>{size}, {width} and {height} become the size; \n begins a line</source>
    <translation>{size}, {width} und {height} werden zur Größe; \n beginnt eine Zeile</translation>
  </message>
  <message id="PLACEHOLDER_FOREGROUND">
    <source>Text color</source>
    <translation>Textfarbe</translation>
  </message>
  <message id="PLACEHOLDER_BACKGROUND">
    <source>Background</source>
    <translation>Hintergrund</translation>
  </message>
  <message id="PLACEHOLDER_COLOR_TIP">
    <source>A code such as #ff8800 or #ff880080, or a name such as tomato</source>
    <translation>Ein Code wie #ff8800 oder #ff880080 oder ein Name wie tomato</translation>
  </message>
  <message id="PLACEHOLDER_OWN_SIZES">
    <source>Your own sizes</source>
    <translation>Eigene Größen</translation>
  </message>
  <message id="PLACEHOLDER_SIZES_TIP">
    <source>Sizes in points, such as 1200x600 800x800@2x</source>
    <translation>Größen in Punkten, etwa 1200x600 800x800@2x</translation>
  </message>
  <message id="PLACEHOLDER_KEEP">
    <source>Keep as a set</source>
    <translation>Als Satz behalten</translation>
  </message>
  <message id="PLACEHOLDER_KEEP_TIP">
    <source>Adds these sizes to the sets until the program ends</source>
    <translation>Nimmt diese Größen bis zum Programmende unter die Sätze auf</translation>
  </message>
  <message id="PLACEHOLDER_NO_COLOR">
    <source>A color is a code such as #ff8800 or a name</source>
    <translation>Eine Farbe ist ein Code wie #ff8800 oder ein Name</translation>
  </message>
  <message id="PLACEHOLDER_NO_SHAPE">
    <source>The font has no shape for “[TEXT]”</source>
    <translation>Die Schrift hat kein Zeichen für „[TEXT]“</translation>
  </message>
  <message id="PLACEHOLDER_NO_SIZE">
    <source>“[TEXT]” is not a size such as 800x600@2x</source>
    <translation>„[TEXT]“ ist keine Größe wie 800x600@2x</translation>
  </message>
  <message id="PLACEHOLDER_ONE_PICTURE">
    <source>1 picture</source>
    <translation>1 Bild</translation>
  </message>
  <message id="PLACEHOLDER_PICTURES">
    <source>[COUNT] pictures</source>
    <translation>[COUNT] Bilder</translation>
  </message>
  <message id="PLACEHOLDER_CHOOSE_SETS">
    <source>Choose sets, or type sizes</source>
    <translation>Sätze wählen oder Größen eingeben</translation>
  </message>
  <message id="PLACEHOLDER_PROGRESS">
    <source>Progress of the placeholders</source>
    <translation>Fortschritt der Platzhalter</translation>
  </message>
  <message id="PLACEHOLDER_SET_APP_STORE">
    <source>App Store</source>
    <translation>App Store</translation>
  </message>
  <message id="PLACEHOLDER_SET_PLAY">
    <source>Google Play</source>
    <translation>Google Play</translation>
  </message>
  <message id="PLACEHOLDER_SET_FEATURE">
    <source>Feature graphic</source>
    <translation>Funktionsgrafik</translation>
  </message>
  <message id="PLACEHOLDER_SET_TV">
    <source>Apple TV</source>
    <translation>Apple TV</translation>
  </message>
  <message id="PLACEHOLDER_SET_WATCH">
    <source>Apple Watch</source>
    <translation>Apple Watch</translation>
  </message>
  <message id="PLACEHOLDER_SET_SOCIAL">
    <source>Social cards</source>
    <translation>Soziale Netze</translation>
  </message>
  <message id="PLACEHOLDER_SET_LAUNCH">
    <source>Launch screens</source>
    <translation>Startbilder</translation>
  </message>
  <message id="SHOT_CHECK">
    <source>Check screenshots…</source>
    <translation>Screenshots prüfen …</translation>
  </message>
  <message id="SHOT_CHECK_TIP">
    <source>Holds the pictures of a folder against the rules of the stores</source>
    <translation>Prüft die Bilder eines Ordners nach den Regeln der Stores</translation>
  </message>
  <message id="SHOT_BACK">
    <source>Back to the sets</source>
    <translation>Zu den Sätzen</translation>
  </message>
  <message id="SHOT_DROP">
    <source>Drop screenshots or a folder here to hold them against the rules of the stores</source>
    <translation>Screenshots oder Ordner zur Prüfung nach den Regeln der Stores ablegen</translation>
  </message>
  <message id="SHOT_DROP_NAME">
    <source>Area for screenshots to check</source>
    <translation>Fläche für Screenshots, die geprüft werden</translation>
  </message>
  <message id="SHOT_FOLDER_TITLE">
    <source>Choose the folder with the screenshots</source>
    <translation>Ordner mit den Screenshots wählen</translation>
  </message>
  <message id="SHOT_EITHER_STORE">
    <source>Either store</source>
    <translation>Einer der Stores</translation>
  </message>
  <message id="SHOT_STORE">
    <source>Store</source>
    <translation>Store</translation>
  </message>
  <message id="SHOT_WHOLE">
    <source>The folder itself</source>
    <translation>Der Ordner selbst</translation>
  </message>
  <message id="SHOT_FINDINGS">
    <source>Findings</source>
    <translation>Befunde</translation>
  </message>
  <message id="SHOT_SOUND">
    <source>no findings</source>
    <translation>keine Befunde</translation>
  </message>
  <message id="SHOT_ONE_FINDING">
    <source>1 finding</source>
    <translation>1 Befund</translation>
  </message>
  <message id="SHOT_COUNT_FINDINGS">
    <source>[COUNT] findings</source>
    <translation>[COUNT] Befunde</translation>
  </message>
  <message id="SHOT_REFUSED">
    <source>Not checked</source>
    <translation>Nicht geprüft</translation>
  </message>

  <!-- The down-scaler's side of today -->
  <message id="SCALER_LAYOUT">
    <source>Project</source>
    <translation>Projekt</translation>
  </message>
  <message id="SCALER_IOS">
    <source>iOS and macOS (name@3x.png)</source>
    <translation>iOS und macOS (name@3x.png)</translation>
  </message>
  <message id="SCALER_ANDROID">
    <source>Android (drawable-xxhdpi)</source>
    <translation>Android (drawable-xxhdpi)</translation>
  </message>
  <message id="SCALER_FLUTTER">
    <source>Flutter (3.0x/name.png)</source>
    <translation>Flutter (3.0x/name.png)</translation>
  </message>
  <message id="SCALER_REACT_NATIVE">
    <source>React Native (name@3x.png)</source>
    <translation>React Native (name@3x.png)</translation>
  </message>
  <message id="SCALER_WEB">
    <source>Web (name@3x.png)</source>
    <translation>Web (name@3x.png)</translation>
  </message>
  <message id="SCALER_FROM">
    <source>From</source>
    <translation>Von</translation>
  </message>
  <message id="SCALER_FROM_LARGEST">
    <source>The largest of each picture</source>
    <translation>Je Bild die größte</translation>
  </message>
  <message id="SCALER_FROM_SVG">
    <source>SVG drawings</source>
    <translation>SVG-Zeichnungen</translation>
  </message>
  <message id="SCALER_TO">
    <source>To</source>
    <translation>Nach</translation>
  </message>
  <message id="SCALER_FORMAT">
    <source>Format</source>
    <translation>Format</translation>
  </message>
  <message id="SCALER_FORMAT_SOURCE">
    <source>As the source</source>
    <translation>Wie die Quelle</translation>
  </message>
  <message id="SCALER_FORMAT_LOSSLESS">
    <source>WebP, lossless</source>
    <translation>WebP, verlustfrei</translation>
  </message>
  <message id="SCALER_FORMAT_LOSSY">
    <source>WebP, smaller</source>
    <translation>WebP, kleiner</translation>
  </message>
  <message id="SCALER_QUALITY">
    <source>Quality: [QUALITY] of 100</source>
    <translation>Qualität: [QUALITY] von 100</translation>
  </message>
  <message id="SCALER_QUALITY_NAME">
    <source>Quality</source>
    <translation>Qualität</translation>
  </message>
  <message id="SCALER_PLACE">
    <source>Place</source>
    <translation>Ablage</translation>
  </message>
  <message id="SCALER_BESIDE">
    <source>Beside the sources</source>
    <translation>Neben den Quellen</translation>
  </message>
  <message id="SCALER_OTHER_FOLDER">
    <source>Other folder…</source>
    <translation>Anderer Ordner …</translation>
  </message>
  <message id="SCALER_BACK_BESIDE">
    <source>Beside the sources</source>
    <translation>Neben die Quellen</translation>
  </message>
  <message id="SCALER_REPLACE">
    <source>Replace existing files</source>
    <translation>Vorhandene ersetzen</translation>
  </message>
  <message id="SCALER_REPLACE_TIP">
    <source>Replaces files that exist, but never a source</source>
    <translation>Ersetzt vorhandene Dateien, aber nie eine Quelle</translation>
  </message>
  <message id="SCALER_DROP">
    <source>Drop pictures, SVG drawings or whole folders here</source>
    <translation>Bilder, SVG-Zeichnungen oder ganze Ordner hier ablegen</translation>
  </message>
  <message id="SCALER_DROP_NAME">
    <source>Area for pictures, drawings and folders</source>
    <translation>Fläche für Bilder, Zeichnungen und Ordner</translation>
  </message>
  <message id="SCALER_FILES_BUTTON">
    <source>Pictures…</source>
    <translation>Bilder …</translation>
  </message>
  <message id="SCALER_FOLDER_BUTTON">
    <source>Folder…</source>
    <translation>Ordner …</translation>
  </message>
  <message id="SCALER_WRITE">
    <source>Write the files</source>
    <translation>Dateien schreiben</translation>
  </message>
  <message id="SCALER_FILES_TITLE">
    <source>Choose pictures of the largest density, or drawings</source>
    <translation>Bilder der größten Auflösung oder Zeichnungen wählen</translation>
  </message>
  <message id="SCALER_FOLDER_TITLE">
    <source>Choose the folder with the pictures</source>
    <translation>Ordner mit den Bildern wählen</translation>
  </message>
  <message id="SCALER_FILTER">
    <source>Pictures and drawings</source>
    <translation>Bilder und Zeichnungen</translation>
  </message>
  <message id="SCALER_NO_DENSITY">
    <source>Tick at least one density</source>
    <translation>Mindestens eine Auflösung ankreuzen</translation>
  </message>
  <message id="SCALER_READING">
    <source>Reading…</source>
    <translation>Wird gelesen …</translation>
  </message>
  <message id="SCALER_PLAN">
    <source>Planned files</source>
    <translation>Geplante Dateien</translation>
  </message>
  <message id="SCALER_PLAN_FILE">
    <source>File</source>
    <translation>Datei</translation>
  </message>
  <message id="SCALER_PLAN_SIZE">
    <source>Size</source>
    <translation>Größe</translation>
  </message>
  <message id="SCALER_PLAN_NOTE">
    <source>Note</source>
    <translation>Hinweis</translation>
  </message>
  <message id="SCALER_DRAWING">
    <source>drawing</source>
    <translation>Zeichnung</translation>
  </message>
  <message id="SCALER_ROUNDED">
    <source>rounded to whole pixels</source>
    <translation>auf ganze Pixel gerundet</translation>
  </message>
  <message id="SCALER_REPLACES">
    <source>exists, is replaced</source>
    <translation>vorhanden, wird ersetzt</translation>
  </message>
  <message id="SCALER_KEPT">
    <source>exists, is kept</source>
    <translation>vorhanden, bleibt</translation>
  </message>
  <message id="SCALER_LEFT_OUT">
    <source>left out: [REASON]</source>
    <translation>ausgelassen: [REASON]</translation>
  </message>
  <message id="SCALER_MORE">
    <source>[COUNT] more</source>
    <translation>[COUNT] weitere</translation>
  </message>
  <message id="SCALER_ONE_FILE">
    <source>1 file to write</source>
    <translation>1 Datei</translation>
  </message>
  <message id="SCALER_FILES">
    <source>[COUNT] files to write</source>
    <translation>[COUNT] Dateien</translation>
  </message>
  <message id="SCALER_SUM_KEPT">
    <source>[COUNT] kept</source>
    <translation>[COUNT] erhalten</translation>
  </message>
  <message id="SCALER_SUM_REPLACED">
    <source>[COUNT] replaced</source>
    <translation>[COUNT] ersetzt</translation>
  </message>
  <message id="SCALER_SUM_ROUNDED">
    <source>[COUNT] rounded</source>
    <translation>[COUNT] gerundet</translation>
  </message>
  <message id="SCALER_SUM_LEFT">
    <source>[COUNT] left out</source>
    <translation>[COUNT] ausgelassen</translation>
  </message>
  <message id="SCALER_PROGRESS">
    <source>[DONE] of [COUNT]</source>
    <translation>[DONE] von [COUNT]</translation>
  </message>

  <message id="RESIZER_REPLACED">
    <source>overwritten by [NAME]</source>
    <translation>wird von [NAME] überschrieben</translation>
  </message>
  <message id="RESIZER_CHOOSE_FOLDER">
    <source>Choose folder…</source>
    <translation>Ordner wählen …</translation>
  </message>
  <message id="RESULT_TITLE">
    <source>Result</source>
    <translation>Ergebnis</translation>
  </message>
  <message id="RESULT_ONE_ICON">
    <source>1 icon in [FOLDER]</source>
    <translation>1 Icon in [FOLDER]</translation>
  </message>
  <message id="RESULT_ICONS">
    <source>[COUNT] icons in [FOLDER]</source>
    <translation>[COUNT] Icons in [FOLDER]</translation>
  </message>
  <message id="RESULT_ICONS_PARTLY">
    <source>[DONE] of [COUNT] icons in [FOLDER]</source>
    <translation>[DONE] von [COUNT] Icons in [FOLDER]</translation>
  </message>
  <message id="RESULT_ONE_PICTURE">
    <source>1 picture in [FOLDER]</source>
    <translation>1 Bild in [FOLDER]</translation>
  </message>
  <message id="RESULT_PICTURES">
    <source>[COUNT] pictures in [FOLDER]</source>
    <translation>[COUNT] Bilder in [FOLDER]</translation>
  </message>
  <message id="RESULT_PICTURES_PARTLY">
    <source>[DONE] of [COUNT] pictures in [FOLDER]</source>
    <translation>[DONE] von [COUNT] Bildern in [FOLDER]</translation>
  </message>
  <message id="RESULT_ONE_FILE">
    <source>1 file in [FOLDER]</source>
    <translation>1 Datei in [FOLDER]</translation>
  </message>
  <message id="RESULT_FILES">
    <source>[COUNT] files in [FOLDER]</source>
    <translation>[COUNT] Dateien in [FOLDER]</translation>
  </message>
  <message id="RESULT_FILES_PARTLY">
    <source>[DONE] of [COUNT] files in [FOLDER]</source>
    <translation>[DONE] von [COUNT] Dateien in [FOLDER]</translation>
  </message>
  <message id="RESULT_NOTHING">
    <source>Nothing was written to [FOLDER]</source>
    <translation>Nichts wurde in [FOLDER] geschrieben</translation>
  </message>
  <message id="RESULT_CANCELED">
    <source>Stopped before the end.</source>
    <translation>Vorzeitig angehalten.</translation>
  </message>
  <message id="RESULT_AND_MORE">
    <source>[FILE] and [COUNT] more</source>
    <translation>[FILE] und [COUNT] weitere</translation>
  </message>
  <message id="RESULT_FAILURES">
    <source>What went wrong</source>
    <translation>Was nicht gelang</translation>
  </message>
  <message id="RESULT_NOTES">
    <source>To be noted</source>
    <translation>Zu beachten</translation>
  </message>
  <message id="RESULT_SHOW">
    <source>Show in folder</source>
    <translation>Im Ordner zeigen</translation>
  </message>
  <message id="RESULT_COPY_PATH">
    <source>Copy path</source>
    <translation>Pfad kopieren</translation>
  </message>
  <message id="RESULT_COPIED">
    <source>Copied</source>
    <translation>Kopiert</translation>
  </message>
  <message id="READING_FILE">
    <source>Reading [FILE]…</source>
    <translation>[FILE] wird gelesen …</translation>
  </message>
  <message id="TIP_BROWSE">
    <source>Choose from a folder</source>
    <translation>Aus einem Ordner wählen</translation>
  </message>
  <message id="TIP_DROP">
    <source>Drop here, or paste</source>
    <translation>Hierher ziehen oder einfügen</translation>
  </message>
  <message id="CANCEL">
    <source>Cancel</source>
    <translation>Abbrechen</translation>
  </message>
  <message id="STOP">
    <source>Stop</source>
    <translation>Anhalten</translation>
  </message>

  <!-- Color codes -->
  <message id="COLOR_IOS">
    <source>For iOS, as UIColor</source>
    <translation>Für iOS, als UIColor</translation>
  </message>
  <message id="COLOR_IOS_BUTTON">
    <source>Copy iOS</source>
    <translation>iOS kopieren</translation>
  </message>
  <message id="COLOR_MAC">
    <source>For the Mac, as NSColor</source>
    <translation>Für den Mac, als NSColor</translation>
  </message>
  <message id="COLOR_MAC_BUTTON">
    <source>Copy Mac</source>
    <translation>Mac kopieren</translation>
  </message>
  <message id="COLOR_JAVA">
    <source>As rgb(red, green, blue)</source>
    <translation>Als rgb(Rot, Grün, Blau)</translation>
  </message>
  <message id="COLOR_JAVA_BUTTON">
    <source>Copy rgb</source>
    <translation>rgb kopieren</translation>
  </message>
  <message id="COLOR_CSS">
    <source>As CSS declaration</source>
    <translation>Als CSS-Deklaration</translation>
  </message>
  <message id="COLOR_CSS_BUTTON">
    <source>Copy CSS</source>
    <translation>CSS kopieren</translation>
  </message>
  <message id="COLOR_FORMS">
    <source>Codes</source>
    <translation>Codes</translation>
  </message>
  <message id="COLOR_PLATFORM">
    <source>Platform whose codes come first</source>
    <translation>Plattform, deren Codes zuerst kommen</translation>
  </message>
  <message id="COLOR_PLATFORM_TIP">
    <source>The codes of this platform come first</source>
    <translation>Die Codes dieser Plattform kommen zuerst</translation>
  </message>
  <message id="COLOR_DISPLAY_P3">
    <source>Display P3</source>
    <translation>Display P3</translation>
  </message>
  <message id="COLOR_DISPLAY_P3_TIP">
    <source>Write the wide gamut where a platform has it, with the sRGB code beside it</source>
    <translation>Den weiten Farbraum schreiben, wo eine Plattform ihn hat, mit dem sRGB-Code daneben</translation>
  </message>
  <message id="COLOR_CLIPPED">
    <source>clipped in sRGB</source>
    <translation>in sRGB beschnitten</translation>
  </message>
  <message id="COLOR_CLIPPED_TIP">
    <source>sRGB cannot show this color; its sRGB code is cut to what sRGB shows</source>
    <translation>sRGB kann diese Farbe nicht zeigen; ihr sRGB-Code ist auf das beschnitten, was sRGB zeigt</translation>
  </message>
  <message id="COLOR_COPY_FORM">
    <source>Copy [FORM]</source>
    <translation>[FORM] kopieren</translation>
  </message>
  <message id="COLOR_ANY_FIELD">
    <source>Color in any form</source>
    <translation>Farbe in beliebiger Form</translation>
  </message>
  <message id="COLOR_ANY_HINT">
    <source>A code in any language, or a CSS name.</source>
    <translation>Ein Code in beliebiger Sprache oder ein CSS-Name.</translation>
  </message>
  <message id="COLOR_REFUSED">
    <source>This is no color code. The color stays as it is.</source>
    <translation>Das ist kein Farbcode. Die Farbe bleibt, wie sie ist.</translation>
  </message>
  <message id="COLOR_CONTRAST">
    <source>Contrast on</source>
    <translation>Kontrast auf</translation>
  </message>
  <message id="COLOR_BACKGROUND_FIELD">
    <source>Background color in any form</source>
    <translation>Hintergrundfarbe in beliebiger Form</translation>
  </message>
  <message id="COLOR_BACKGROUND_WELL">
    <source>Background color well, opens the color picker</source>
    <translation>Feld der Hintergrundfarbe, öffnet den Farbwähler</translation>
  </message>
  <message id="COLOR_RATIO_TIP">
    <source>Contrast ratio as WCAG 2 defines it, 1 to 21</source>
    <translation>Kontrastverhältnis nach WCAG 2, 1 bis 21</translation>
  </message>
  <message id="COLOR_SAMPLE">
    <source>Sample text</source>
    <translation>Beispieltext</translation>
  </message>
  <message id="COLOR_TEXT">
    <source>Text</source>
    <translation>Text</translation>
  </message>
  <message id="COLOR_LARGE_TEXT">
    <source>Large text</source>
    <translation>Großer Text</translation>
  </message>
  <message id="COLOR_INTERFACE">
    <source>Controls</source>
    <translation>Bedienung</translation>
  </message>
  <message id="COLOR_PASSES">
    <source>[LEVEL] passes</source>
    <translation>[LEVEL] erfüllt</translation>
  </message>
  <message id="COLOR_FAILS">
    <source>[LEVEL] fails</source>
    <translation>[LEVEL] verfehlt</translation>
  </message>
  <message id="COLOR_NEAREST">
    <source>Nearest</source>
    <translation>Nächste</translation>
  </message>
  <message id="COLOR_NEAREST_TIP">
    <source>Take the most similar color that passes [LEVEL]</source>
    <translation>Die ähnlichste Farbe nehmen, die [LEVEL] erfüllt</translation>
  </message>
  <message id="COLOR_ALL_PASS">
    <source>This color passes already</source>
    <translation>Diese Farbe genügt schon</translation>
  </message>
  <message id="COLOR_NONE_PASSES">
    <source>No color passes [LEVEL] on this background</source>
    <translation>Auf diesem Hintergrund erfüllt keine Farbe [LEVEL]</translation>
  </message>
  <message id="COLOR_PALETTE">
    <source>Palette</source>
    <translation>Palette</translation>
  </message>
  <message id="COLOR_PALETTE_LIST">
    <source>Colors picked so far</source>
    <translation>Bisher gewählte Farben</translation>
  </message>
  <message id="COLOR_PALETTE_EMPTY">
    <source>Every color that you pick on either side is kept here until the program ends.</source>
    <translation>Jede auf einer der beiden Seiten gewählte Farbe bleibt hier, bis das Programm endet.</translation>
  </message>
  <message id="COLOR_PALETTE_ADD">
    <source>Add</source>
    <translation>Hinzufügen</translation>
  </message>
  <message id="COLOR_PALETTE_REMOVE">
    <source>Remove</source>
    <translation>Entfernen</translation>
  </message>
  <message id="COLOR_PALETTE_OPEN">
    <source>Open…</source>
    <translation>Öffnen …</translation>
  </message>
  <message id="COLOR_PALETTE_SAVE">
    <source>Save…</source>
    <translation>Speichern …</translation>
  </message>
  <message id="COLOR_PALETTE_OPEN_TITLE">
    <source>Choose a palette to read</source>
    <translation>Eine Palette zum Lesen wählen</translation>
  </message>
  <message id="COLOR_PALETTE_SAVE_TITLE">
    <source>Choose the folder for the palette</source>
    <translation>Den Ordner für die Palette wählen</translation>
  </message>
  <message id="COLOR_PALETTE_FILES">
    <source>Palettes</source>
    <translation>Paletten</translation>
  </message>
  <message id="COLOR_PALETTE_SAVED">
    <source>Palette saved</source>
    <translation>Palette gespeichert</translation>
  </message>
  <message id="COLOR_PALETTE_NOT_SAVED">
    <source>The palette was not saved</source>
    <translation>Die Palette wurde nicht gespeichert</translation>
  </message>
  <message id="COLOR_CATALOGUE_OPEN">
    <source>Catalog…</source>
    <translation>Katalog …</translation>
  </message>
  <message id="COLOR_CATALOGUE_TIP">
    <source>Reads all color sets of an asset catalog (.xcassets)</source>
    <translation>Liest alle Farbsätze eines Asset-Katalogs (.xcassets)</translation>
  </message>
  <message id="COLOR_CATALOGUE_TITLE">
    <source>Choose the asset catalog</source>
    <translation>Asset-Katalog wählen</translation>
  </message>
  <message id="COLOR_CATALOGUE_PARTLY">
    <source>Some color sets were not read</source>
    <translation>Einige Farbsätze wurden nicht gelesen</translation>
  </message>
  <message id="DETAIL_NO_COLOR_SET">
    <source>no color set in it</source>
    <translation>ohne Farbsatz</translation>
  </message>
  <message id="COLOR_PALETTE_REFUSED">
    <source>This is no palette</source>
    <translation>Das ist keine Palette</translation>
  </message>
  <message id="COLOR_FORMAT">
    <source>File format of the palette</source>
    <translation>Dateiformat der Palette</translation>
  </message>
  <message id="COLOR_FORMAT_SETS">
    <source>Color sets</source>
    <translation>Farbsätze</translation>
  </message>
  <message id="COLOR_FORMAT_GPL">
    <source>GIMP (.gpl)</source>
    <translation>GIMP (.gpl)</translation>
  </message>
  <message id="COLOR_FORMAT_JSON">
    <source>JSON</source>
    <translation>JSON</translation>
  </message>
  <message id="COLOR_FORMAT_CSS">
    <source>CSS variables</source>
    <translation>CSS-Variablen</translation>
  </message>
  <message id="COLOR_ALERT_TITLE">
    <source>This is no color code</source>
    <translation>Das ist kein Farbcode</translation>
  </message>
  <message id="COLOR_ALERT_MESSAGE">
    <source>Type three or six hexadecimal digits, for example #abc or #34485e.</source>
    <translation>Drei oder sechs hexadezimale Ziffern eingeben, zum Beispiel #abc oder #34485e.</translation>
  </message>

  <!-- Color codes: the color picker -->
  <message id="COLOR_PICKER">
    <source>Colors</source>
    <translation>Farben</translation>
  </message>
  <message id="COLOR_MODE_WHEEL">
    <source>Color wheel</source>
    <translation>Farbkreis</translation>
  </message>
  <message id="COLOR_MODE_RGB">
    <source>RGB sliders</source>
    <translation>RGB-Regler</translation>
  </message>
  <message id="COLOR_MODE_HSB">
    <source>HSB sliders</source>
    <translation>HSB-Regler</translation>
  </message>
  <message id="COLOR_MODE_GRAY">
    <source>Gray slider</source>
    <translation>Grauregler</translation>
  </message>
  <message id="COLOR_MODE_PALETTE">
    <source>Palette</source>
    <translation>Palette</translation>
  </message>
  <message id="COLOR_MODE_SLIDERS">
    <source>Sliders</source>
    <translation>Regler</translation>
  </message>
  <message id="COLOR_MODE_RECENT">
    <source>Recent colors</source>
    <translation>Zuletzt gewählte Farben</translation>
  </message>
  <message id="COLOR_CHANNEL_RED">
    <source>Red</source>
    <translation>Rot</translation>
  </message>
  <message id="COLOR_CHANNEL_GREEN">
    <source>Green</source>
    <translation>Grün</translation>
  </message>
  <message id="COLOR_CHANNEL_BLUE">
    <source>Blue</source>
    <translation>Blau</translation>
  </message>
  <message id="COLOR_CHANNEL_HUE">
    <source>Hue</source>
    <translation>Farbton</translation>
  </message>
  <message id="COLOR_CHANNEL_SATURATION">
    <source>Saturation</source>
    <translation>Sättigung</translation>
  </message>
  <message id="COLOR_CHANNEL_BRIGHTNESS">
    <source>Brightness</source>
    <translation>Helligkeit</translation>
  </message>
  <message id="COLOR_CHANNEL_GRAY">
    <source>Gray</source>
    <translation>Grau</translation>
  </message>
  <message id="COLOR_CHANNEL_OPACITY">
    <source>Opacity</source>
    <translation>Deckkraft</translation>
  </message>
  <message id="COLOR_WHEEL_VALUE">
    <source>Hue [HUE]°, saturation [SATURATION]%</source>
    <translation>Farbton [HUE]°, Sättigung [SATURATION] %</translation>
  </message>
  <message id="COLOR_SLIDERS_KIND">
    <source>Kind of sliders</source>
    <translation>Art der Regler</translation>
  </message>
  <message id="COLOR_PALETTE_LUMORA">
    <source>Colors of the tools</source>
    <translation>Farben der Werkzeuge</translation>
  </message>
  <message id="COLOR_PALETTE_DARK">
    <source>[NAME], dark shade</source>
    <translation>[NAME], dunkler Ton</translation>
  </message>
  <message id="COLOR_PALETTE_TEXT">
    <source>Text</source>
    <translation>Text</translation>
  </message>
  <message id="COLOR_PALETTE_PANEL">
    <source>Panel</source>
    <translation>Fläche</translation>
  </message>
  <message id="COLOR_PALETTE_RULE">
    <source>Rule</source>
    <translation>Linie</translation>
  </message>
  <message id="COLOR_PALETTE_WEB">
    <source>Named colors of the web</source>
    <translation>Benannte Farben des Webs</translation>
  </message>
  <message id="COLOR_RECENT_EMPTY">
    <source>The colors you pick are kept here until you quit Lumora.</source>
    <translation>Gewählte Farben stehen hier, bis Lumora beendet wird.</translation>
  </message>
  <message id="COLOR_HEX">
    <source>Hexadecimal code</source>
    <translation>Hexadezimaler Code</translation>
  </message>
  <message id="COLOR_PIPETTE">
    <source>Pick a color from the screen</source>
    <translation>Farbe vom Bildschirm aufnehmen</translation>
  </message>
  <message id="COLOR_SCREEN_PIPETTE">
    <source>Pick a screen color</source>
    <translation>Bildschirmfarbe aufnehmen</translation>
  </message>
  <message id="COLOR_PIPETTE_FAILED_TITLE">
    <source>No color picked</source>
    <translation>Keine Farbe aufgenommen</translation>
  </message>
  <message id="COLOR_NO_OPACITY">
    <source>The color is [PERCENT]% opaque. These codes carry no opacity: they are for the opaque color.</source>
    <translation>Die Farbe ist zu [PERCENT] % deckend. Diese Codes tragen keine Deckkraft: Sie gelten für die deckende Farbe.</translation>
  </message>
  <message id="COLOR_CLICK_COPIES">
    <source>Click to copy</source>
    <translation>Klicken, um zu kopieren</translation>
  </message>
  <message id="COLOR_PIPETTE_FAILED_MESSAGE">
    <source>The system did not let Lumora read the screen. Allow it in the system settings, or choose the color here.</source>
    <translation>Das System hat den Zugriff auf den Bildschirm nicht erlaubt. In den Systemeinstellungen freigeben oder die Farbe hier wählen.</translation>
  </message>

  <!-- Device matrix -->
  <message id="DEVICES_IOS">
    <source>iOS version</source>
    <translation>iOS-Version</translation>
  </message>
  <message id="DEVICES_FEATURES">
    <source>Features</source>
    <translation>Funktionen</translation>
  </message>
  <message id="DEVICES_IPHONES">
    <source>iPhone</source>
    <translation>iPhone</translation>
  </message>
  <message id="DEVICES_IPODS">
    <source>iPod</source>
    <translation>iPod</translation>
  </message>
  <message id="DEVICES_IPADS">
    <source>iPad</source>
    <translation>iPad</translation>
  </message>
  <message id="DEVICES_FIT">
    <source>[COUNT] of [ALL] models fit</source>
    <translation>[COUNT] von [ALL] Modellen passen</translation>
  </message>
  <message id="DEVICES_TOO_OLD">
    <source>Runs iOS [NEWEST] at most; iOS [WANTED] is asked for.</source>
    <translation>Läuft höchstens mit iOS [NEWEST]; gefragt ist iOS [WANTED].</translation>
  </message>
  <message id="DEVICES_LACKS">
    <source>Lacks: [FEATURES]</source>
    <translation>Es fehlt: [FEATURES]</translation>
  </message>
  <message id="DEVICES_IPAD_MINI">
    <source>iPad mini</source>
    <translation>iPad mini</translation>
  </message>
  <message id="DEVICES_SEARCH">
    <source>Name or identifier</source>
    <translation>Name oder Kennung</translation>
  </message>
  <message id="DEVICES_IOS_FROM">
    <source>Oldest iOS version</source>
    <translation>Älteste iOS-Version</translation>
  </message>
  <message id="DEVICES_IOS_TO">
    <source>Newest iOS version</source>
    <translation>Neueste iOS-Version</translation>
  </message>
  <message id="DEVICES_IOS_RANGE">
    <source>iOS [FROM] to [TO]</source>
    <translation>iOS [FROM] bis [TO]</translation>
  </message>
  <message id="DEVICES_SHARE">
    <source>[PERCENT]% of all models ([COUNT] of [ALL])</source>
    <translation>[PERCENT] % aller Modelle ([COUNT] von [ALL])</translation>
  </message>
  <message id="DEVICES_FAMILY">
    <source>Family</source>
    <translation>Familie</translation>
  </message>
  <message id="DEVICES_HARDWARE">
    <source>Hardware</source>
    <translation>Hardware</translation>
  </message>
  <message id="DEVICES_ANY_CHIP">
    <source>Any chip</source>
    <translation>Beliebiger Chip</translation>
  </message>
  <message id="DEVICES_ANY_SCREEN">
    <source>Any screen</source>
    <translation>Beliebiger Bildschirm</translation>
  </message>
  <message id="DEVICES_ANY_BIOMETRY">
    <source>Any biometry</source>
    <translation>Beliebige Biometrie</translation>
  </message>
  <message id="DEVICES_CLASS">
    <source>[FAMILY], [CLASS] inches</source>
    <translation>[FAMILY], [CLASS] Zoll</translation>
  </message>
  <message id="DEVICES_MODELS">
    <source>Models</source>
    <translation>Modelle</translation>
  </message>
  <message id="DEVICES_FITS">
    <source>meets the choice</source>
    <translation>entspricht der Auswahl</translation>
  </message>
  <message id="DEVICES_COMPARED">
    <source>in the comparison</source>
    <translation>im Vergleich</translation>
  </message>
  <message id="DEVICES_TILE_TIP">
    <source>Click for its data; the mark, or Insert, adds it to a comparison</source>
    <translation>Klicken zeigt die Daten; die Marke oder Einfg nimmt es in den Vergleich</translation>
  </message>
  <message id="DEVICES_COMPARE">
    <source>Compare ([COUNT])</source>
    <translation>Vergleichen ([COUNT])</translation>
  </message>
  <message id="DEVICES_COMPARE_TIP">
    <source>Two or three marked models side by side</source>
    <translation>Zwei oder drei markierte Modelle nebeneinander</translation>
  </message>
  <message id="DEVICES_BACK">
    <source>All models</source>
    <translation>Alle Modelle</translation>
  </message>
  <message id="DEVICES_BACK_TIP">
    <source>Back to all models</source>
    <translation>Zurück zu allen Modellen</translation>
  </message>
  <message id="DEVICES_MARK">
    <source>Add to comparison</source>
    <translation>In den Vergleich</translation>
  </message>
  <message id="DEVICES_UNMARK">
    <source>Take out of comparison</source>
    <translation>Aus dem Vergleich</translation>
  </message>
  <message id="DEVICES_CLICK_COPIES">
    <source>Click to copy</source>
    <translation>Klicken, um zu kopieren</translation>
  </message>
  <message id="DEVICES_ENDS">
    <source>ends at iOS [DETAIL]</source>
    <translation>endet bei iOS [DETAIL]</translation>
  </message>
  <message id="DEVICES_BEGINS">
    <source>begins with iOS [DETAIL]</source>
    <translation>beginnt mit iOS [DETAIL]</translation>
  </message>
  <message id="DEVICES_OTHER_DEVICE">
    <source>the app is for [DETAIL]</source>
    <translation>die App ist für [DETAIL]</translation>
  </message>
  <message id="DEVICES_OTHER_FAMILY">
    <source>is an [DETAIL]</source>
    <translation>ist ein [DETAIL]</translation>
  </message>
  <message id="DEVICES_OTHER_CHIP">
    <source>has the chip [DETAIL]</source>
    <translation>hat den Chip [DETAIL]</translation>
  </message>
  <message id="DEVICES_MISSES">
    <source>lacks [DETAIL]</source>
    <translation>ohne [DETAIL]</translation>
  </message>
  <message id="DEVICES_OTHER_SCREEN">
    <source>has a screen of class [DETAIL]</source>
    <translation>hat die Bildschirmklasse [DETAIL]</translation>
  </message>
  <message id="DEVICES_UNKNOWN_SCREEN">
    <source>its screen is not known</source>
    <translation>Bildschirm nicht bekannt</translation>
  </message>
  <message id="DEVICES_OTHER_BIOMETRY">
    <source>biometry: [DETAIL]</source>
    <translation>Biometrie: [DETAIL]</translation>
  </message>
  <message id="DEVICES_UNKNOWN_FEATURE">
    <source>not known whether it has [DETAIL]</source>
    <translation>[DETAIL]: nicht bekannt</translation>
  </message>
  <message id="DEVICES_NOT_SEARCHED">
    <source>does not match the search</source>
    <translation>passt nicht zur Suche</translation>
  </message>
  <message id="DEVICES_NO_BIOMETRY">
    <source>none</source>
    <translation>keine</translation>
  </message>
  <message id="DEVICES_UNKNOWN_BIOMETRY">
    <source>not known</source>
    <translation>nicht bekannt</translation>
  </message>
  <message id="DEVICES_YES">
    <source>yes</source>
    <translation>ja</translation>
  </message>
  <message id="DEVICES_NO">
    <source>no</source>
    <translation>nein</translation>
  </message>
  <message id="DEVICES_FACT_IDENTIFIERS">
    <source>Identifiers</source>
    <translation>Kennungen</translation>
  </message>
  <message id="DEVICES_FACT_RELEASED">
    <source>Released</source>
    <translation>Erschienen</translation>
  </message>
  <message id="DEVICES_FACT_CHIP">
    <source>Chip</source>
    <translation>Chip</translation>
  </message>
  <message id="DEVICES_FACT_ARCHITECTURE">
    <source>Architecture</source>
    <translation>Architektur</translation>
  </message>
  <message id="DEVICES_FACT_MINIMUM">
    <source>Minimum iOS</source>
    <translation>Ältestes iOS</translation>
  </message>
  <message id="DEVICES_FACT_NEWEST">
    <source>Newest iOS</source>
    <translation>Neuestes iOS</translation>
  </message>
  <message id="DEVICES_FACT_SCREEN">
    <source>Screen, pixels</source>
    <translation>Bildschirm, Pixel</translation>
  </message>
  <message id="DEVICES_FACT_RENDER">
    <source>Drawn pixels</source>
    <translation>Gezeichnete Pixel</translation>
  </message>
  <message id="DEVICES_FACT_POINTS">
    <source>Screen, points</source>
    <translation>Bildschirm, Punkte</translation>
  </message>
  <message id="DEVICES_FACT_SCALE">
    <source>Scale</source>
    <translation>Skalierung</translation>
  </message>
  <message id="DEVICES_FACT_DIAGONAL">
    <source>Diagonal, inches</source>
    <translation>Diagonale, Zoll</translation>
  </message>
  <message id="DEVICES_FACT_DENSITY">
    <source>Pixels per inch</source>
    <translation>Pixel je Zoll</translation>
  </message>
  <message id="DEVICES_FACT_CLASS">
    <source>Screen class</source>
    <translation>Bildschirmklasse</translation>
  </message>
  <message id="DEVICES_FACT_BIOMETRY">
    <source>Biometry</source>
    <translation>Biometrie</translation>
  </message>
  <message id="DEVICES_FACT_CAPABILITIES">
    <source>Capabilities</source>
    <translation>Fähigkeiten</translation>
  </message>
  <message id="DEVICES_FACT_LAUNCH">
    <source>Launch sizes</source>
    <translation>Startbildgrößen</translation>
  </message>
  <message id="DEVICES_FACT_SCREENSHOTS">
    <source>Screenshot sizes</source>
    <translation>Screenshot-Größen</translation>
  </message>

  <!-- App package check: intake -->
  <message id="VALIDATER_BROWSE_INFO">
    <source>Drop an .ipa package here or browse for one.</source>
    <translation>Ein .ipa-Paket hierher ziehen oder auswählen.</translation>
  </message>
  <message id="VALIDATER_READING">
    <source>Reading [FILE]…</source>
    <translation>[FILE] wird gelesen …</translation>
  </message>
  <message id="VALIDATER_VALIDATING">
    <source>Package report</source>
    <translation>Prüfbericht</translation>
  </message>
  <message id="VALIDATER_ONE_FILE_TITLE">
    <source>One package at a time</source>
    <translation>Immer nur ein Paket</translation>
  </message>
  <message id="VALIDATER_ONE_FILE_MESSAGE">
    <source>Several files were given. Please choose a single .ipa package.</source>
    <translation>Es wurden mehrere Dateien übergeben. Bitte ein einzelnes .ipa-Paket auswählen.</translation>
  </message>
  <message id="VALIDATER_IPA_TITLE">
    <source>Not an app package</source>
    <translation>Kein App-Paket</translation>
  </message>
  <message id="VALIDATER_IPA_MESSAGE">
    <source>The file name must end in .ipa, in lower case. Please choose an iOS app package.</source>
    <translation>Der Dateiname muss auf .ipa enden, kleingeschrieben. Bitte ein iOS-App-Paket auswählen.</translation>
  </message>
  <message id="VALIDATER_STOPPED_TITLE">
    <source>Package not read to its end</source>
    <translation>Paket nicht zu Ende gelesen</translation>
  </message>
  <message id="VALIDATER_STOPPED_MESSAGE">
    <source>It would unpack to more than 8 GB or 500,000 files, or the disk has too little room. What was read until then is shown.</source>
    <translation>Ausgepackt wären es mehr als 8 GB oder 500.000 Dateien, oder der Datenträger hat zu wenig Platz. Gezeigt wird, was bis dahin gelesen wurde.</translation>
  </message>

  <!-- App package check: facts; the value follows its label directly, so a label ends in a blank -->
  <message id="VALIDATER_APP_NAME">
    <source>Name: </source>
    <translation>Name: </translation>
  </message>
  <message id="VALIDATER_APP_VERSION">
    <source>Version: </source>
    <translation>Version: </translation>
  </message>
  <message id="VALIDATER_APP_PLATFORM">
    <source>Platform: </source>
    <translation>Plattform: </translation>
  </message>
  <message id="VALIDATER_APP_MINIMUM_OS">
    <source>Oldest iOS: </source>
    <translation>Ältestes iOS: </translation>
  </message>
  <message id="VALIDATER_APP_BUNDLE_ID">
    <source>Bundle ID: </source>
    <translation>Bundle-ID: </translation>
  </message>
  <message id="VALIDATER_BUILD">
    <source>Build: </source>
    <translation>Build: </translation>
  </message>
  <message id="VALID_BUILD_DEBUG">
    <source>Debug</source>
    <translation>Debug</translation>
  </message>
  <message id="VALID_BUILD_RELEASE">
    <source>Release</source>
    <translation>Release</translation>
  </message>

  <!-- App package check: the seven boxes -->
  <message id="VALIDATER_VALIDAT_ICONS">
    <source>App icons</source>
    <translation>App-Icons</translation>
  </message>
  <message id="VALIDATER_VALIDATE_DEFAULTS">
    <source>Launch images</source>
    <translation>Startbilder</translation>
  </message>
  <message id="VALIDATER_VALIDATE_BUNDLE_ID">
    <source>Bundle identifier</source>
    <translation>Bundle-ID</translation>
  </message>
  <message id="VALIDATER_VALIDATE_RELEASE">
    <source>Release build</source>
    <translation>Release-Build</translation>
  </message>
  <message id="VALIDATER_APP_LOCALIZATIONS">
    <source>Localizations</source>
    <translation>Lokalisierungen</translation>
  </message>
  <message id="VALIDATER_APP_URL_SCHEMES">
    <source>URL schemes</source>
    <translation>URL-Schemata</translation>
  </message>
  <message id="VALIDATER_APP_FACEBOOK_ID">
    <source>Facebook app ID</source>
    <translation>Facebook-App-ID</translation>
  </message>

  <!-- App package check: explanations; lists follow the localizations and URL scheme texts directly, so these end in a line break -->
  <message id="VALID_TEXT">
    <source>Looks good</source>
    <translation>Sieht gut aus</translation>
  </message>
  <message id="VALID_ICONS_TEXT">
    <source>Every required icon size is in the package.</source>
    <translation>Alle verlangten Icon-Größen sind im Paket.</translation>
  </message>
  <message id="VALID_LAUNCH_TEXT">
    <source>The package holds a launch image of a required size.</source>
    <translation>Das Paket enthält ein Startbild in einer verlangten Größe.</translation>
  </message>
  <message id="VALID_BUNDLE_ID_TEXT">
    <source>The provisioning profile names the app’s bundle identifier.</source>
    <translation>Das Bereitstellungsprofil nennt die Bundle-ID der App.</translation>
  </message>
  <message id="VALID_RELEASE_TEXT">
    <source>No fault was found with the kind of build. The line “Build” says whether it is debug or release.</source>
    <translation>An der Art des Builds ist nichts zu beanstanden. Die Zeile „Build“ sagt, ob es ein Debug- oder ein Release-Build ist.</translation>
  </message>
  <message id="VALIDATE_ICONS_TITLE">
    <source>Icon sizes are missing</source>
    <translation>Icon-Größen fehlen</translation>
  </message>
  <message id="VALIDATE_ICONS_TEXT">
    <source>Please add an icon of [ICON] pixels.</source>
    <translation>Bitte ein Icon mit [ICON] Pixeln ergänzen.</translation>
  </message>
  <message id="VALIDATE_DEFAULTS_TITLE">
    <source>No launch image: add one</source>
    <translation>Kein Startbild: eines ergänzen</translation>
  </message>
  <message id="VALIDATE_DEFAULTS_TEXT">
    <source>There is none of [DEFAULT] pixels.</source>
    <translation>Es gibt keines mit [DEFAULT] Pixeln.</translation>
  </message>
  <message id="VALIDATE_BUNDLE_ID_TITLE">
    <source>Profile and app do not match</source>
    <translation>Profil passt nicht zur App</translation>
  </message>
  <message id="VALIDATE_BUNDLE_ID_TEXT">
    <source>The provisioning profile does not name this app’s bundle identifier. Sign the app with a profile made for it. (A wildcard profile counts as no match.)</source>
    <translation>Das Bereitstellungsprofil nennt die Bundle-ID dieser App nicht. Die App mit einem passenden Profil signieren. (Ein Platzhalterprofil zählt nicht als Treffer.)</translation>
  </message>
  <message id="VALIDATE_RELEASE_TITLE">
    <source>Not a release build</source>
    <translation>Kein Release-Build</translation>
  </message>
  <message id="VALIDATE_RELEASE_TEXT">
    <source>The provisioning profile lists test devices. Sign the app with a distribution profile for the store.</source>
    <translation>Das Bereitstellungsprofil führt Testgeräte auf. Die App mit einem Distributionsprofil für den Store signieren.</translation>
  </message>
  <message id="VALIDATE_LOCALIZATIONS_TEXT">
    <source>The app is localized for:
</source>
    <translation>Die App ist lokalisiert für:
</translation>
  </message>
  <message id="VALIDATE_URLSCHEME_TEXT">
    <source>The app opens addresses that begin with:
</source>
    <translation>Die App öffnet Adressen, die so beginnen:
</translation>
  </message>
  <message id="VALIDATE_FACEBOOK_APP_ID_TEXT">
    <source>The app signs in to Facebook with the ID </source>
    <translation>Die App meldet sich bei Facebook mit dieser ID an: </translation>
  </message>

  <!-- App package check: the report -->
  <message id="VALIDATER_CANCEL">
    <source>Cancel</source>
    <translation>Abbrechen</translation>
  </message>
  <message id="VALIDATER_COPY_REPORT">
    <source>Copy report</source>
    <translation>Bericht kopieren</translation>
  </message>
  <message id="VALIDATER_CHECK_AGAIN">
    <source>Check again</source>
    <translation>Neu prüfen</translation>
  </message>
  <message id="VALIDATER_SUM_PASSED">
    <source>All [COUNT] checks passed</source>
    <translation>Alle [COUNT] Prüfungen bestanden</translation>
  </message>
  <message id="VALIDATER_SUM_FAILED">
    <source>[FAILED] of [COUNT] checks failed</source>
    <translation>[FAILED] von [COUNT] Prüfungen nicht bestanden</translation>
  </message>
  <message id="VALIDATER_SUM_UNREAD">
    <source>Package could not be read</source>
    <translation>Paket nicht lesbar</translation>
  </message>
  <message id="VALIDATER_READER_CRASHED">
    <source>The package could not be read: the reader stopped in the middle of it. The file may be damaged on purpose.</source>
    <translation>Das Paket ließ sich nicht lesen: Das Leseprogramm ist mittendrin abgebrochen. Die Datei ist vielleicht mit Absicht beschädigt.</translation>
  </message>
  <message id="VALIDATER_READER_STALLED">
    <source>The package could not be read: the reader did not get any further and was ended.</source>
    <translation>Das Paket ließ sich nicht lesen: Das Leseprogramm kam nicht weiter und wurde beendet.</translation>
  </message>
  <message id="VALIDATER_READER_NOT_STARTED">
    <source>The package could not be read: the reader could not be started.</source>
    <translation>Das Paket ließ sich nicht lesen: Das Leseprogramm ließ sich nicht starten.</translation>
  </message>
  <message id="VALIDATER_SUM_NO_PACKAGE">
    <source>No readable app package</source>
    <translation>Kein lesbares App-Paket</translation>
  </message>
  <message id="FINDINGS_TITLE">
    <source>Findings</source>
    <translation>Befunde</translation>
  </message>
  <message id="FINDINGS_NONE">
    <source>Nothing found</source>
    <translation>Nichts gefunden</translation>
  </message>
  <message id="FINDINGS_NONE_LONG">
    <source>The store's rules find nothing in this package.</source>
    <translation>Die Regeln des Stores finden nichts in diesem Paket.</translation>
  </message>
  <message id="FINDINGS_NONE_FIT">
    <source>No finding fits the choice.</source>
    <translation>Kein Befund passt zur Auswahl.</translation>
  </message>
  <message id="FINDINGS_ONE_ERROR">
    <source>1 error</source>
    <translation>1 Fehler</translation>
  </message>
  <message id="FINDINGS_ERRORS">
    <source>[A] errors</source>
    <translation>[A] Fehler</translation>
  </message>
  <message id="FINDINGS_ONE_WARNING">
    <source>1 warning</source>
    <translation>1 Warnung</translation>
  </message>
  <message id="FINDINGS_WARNINGS">
    <source>[A] warnings</source>
    <translation>[A] Warnungen</translation>
  </message>
  <message id="FINDINGS_ONE_NOTE">
    <source>1 note</source>
    <translation>1 Hinweis</translation>
  </message>
  <message id="FINDINGS_NOTES">
    <source>[A] notes</source>
    <translation>[A] Hinweise</translation>
  </message>
  <message id="FINDINGS_ERROR">
    <source>Error</source>
    <translation>Fehler</translation>
  </message>
  <message id="FINDINGS_WARNING">
    <source>Warning</source>
    <translation>Warnung</translation>
  </message>
  <message id="FINDINGS_NOTE">
    <source>Note</source>
    <translation>Hinweis</translation>
  </message>
  <message id="FINDINGS_SHOW_ALL">
    <source>All</source>
    <translation>Alle</translation>
  </message>
  <message id="FINDINGS_SHOW_ERRORS">
    <source>Errors</source>
    <translation>Fehler</translation>
  </message>
  <message id="FINDINGS_SHOW_WARNINGS">
    <source>Warnings</source>
    <translation>Warnungen</translation>
  </message>
  <message id="FINDINGS_SHOW_NOTES">
    <source>Notes</source>
    <translation>Hinweise</translation>
  </message>
  <message id="ACCESSIBLE_FINDINGS_SEVERITY">
    <source>Severity of the findings</source>
    <translation>Schwere der Befunde</translation>
  </message>
  <message id="FINDINGS_SEARCH">
    <source>Search the findings</source>
    <translation>Befunde durchsuchen</translation>
  </message>
  <message id="FINDINGS_SAVE">
    <source>Save report…</source>
    <translation>Bericht speichern …</translation>
  </message>
  <message id="FINDINGS_SAVE_TIP">
    <source>Save the report as a web page and as JSON</source>
    <translation>Den Bericht als Webseite und als JSON speichern</translation>
  </message>
  <message id="FINDINGS_SAVE_PANEL">
    <source>Choose a folder for the report</source>
    <translation>Ordner für den Bericht wählen</translation>
  </message>
  <message id="FINDINGS_SAVED">
    <source>Saved</source>
    <translation>Gespeichert</translation>
  </message>
  <message id="FINDINGS_NOT_SAVED">
    <source>The report could not be saved</source>
    <translation>Der Bericht ließ sich nicht speichern</translation>
  </message>
  <message id="FINDINGS_TIMES">
    <source>[COUNT] times</source>
    <translation>[COUNT]-mal</translation>
  </message>
  <message id="FINDINGS_MORE_PLACES">
    <source>and [COUNT] more; the saved report has them all</source>
    <translation>und [COUNT] weitere; der gespeicherte Bericht enthält alle</translation>
  </message>
  <message id="FINDINGS_FOUND">
    <source>What was found</source>
    <translation>Was gefunden wurde</translation>
  </message>
  <message id="FINDINGS_WHY">
    <source>Why it matters</source>
    <translation>Warum das wichtig ist</translation>
  </message>
  <message id="FINDINGS_MEND">
    <source>How to mend it</source>
    <translation>Wie es sich beheben lässt</translation>
  </message>
  <message id="FINDINGS_IGNORE">
    <source>Ignore this rule</source>
    <translation>Diese Regel übergehen</translation>
  </message>
  <message id="FINDINGS_IGNORE_TIP">
    <source>Leave this rule out until Lumora is closed</source>
    <translation>Diese Regel weglassen, bis Lumora geschlossen wird</translation>
  </message>
  <message id="FINDINGS_RESTORE">
    <source>Ignored rules: [COUNT]. Show again</source>
    <translation>Übergangene Regeln: [COUNT]. Wieder zeigen</translation>
  </message>
  <message id="FINDINGS_OWN_PICTURE">
    <source>The package's own picture</source>
    <translation>Das eigene Bild des Pakets</translation>
  </message>
  <message id="FINDINGS_PACKED_ICON">
    <source>The package has a picture of 1024 pixels in Assets.car, where this program reads its size only. The icon tool opens without it: drop the original picture there.</source>
    <translation>Das Paket hat ein Bild von 1024 Pixeln in Assets.car, aber dort liest dieses Programm nur die Größe. Das Icon-Werkzeug öffnet sich ohne Bild: Legen Sie dort das Original ab.</translation>
  </message>
  <message id="FINDINGS_MAKE_ICONS">
    <source>Make the missing icons</source>
    <translation>Fehlende Icons erzeugen</translation>
  </message>
  <message id="FINDINGS_MAKE_ICONS_TIP">
    <source>Open the icon tool, with the package's own picture if it has one</source>
    <translation>Das Icon-Werkzeug öffnen, mit dem Bild des Pakets, falls es eines enthält</translation>
  </message>
  <message id="ACCESSIBLE_FINDING_OPEN">
    <source>open</source>
    <translation>geöffnet</translation>
  </message>
  <message id="ACCESSIBLE_FINDING_CLOSED">
    <source>closed</source>
    <translation>geschlossen</translation>
  </message>
  <message id="REVIEW_PENDING">
    <source>Checking the store's rules…</source>
    <translation>Die Regeln des Stores werden geprüft …</translation>
  </message>
  <message id="REVIEW_CLASSIC_RULES">
    <source>iOS 7 rules</source>
    <translation>Regeln von iOS 7</translation>
  </message>
  <message id="REVIEW_READER_CRASHED">
    <source>The store's rules could not be checked: the reader stopped in the middle of the package. The file may be damaged on purpose.</source>
    <translation>Die Regeln des Stores ließen sich nicht prüfen: Das Leseprogramm ist mitten im Paket abgebrochen. Die Datei ist vielleicht mit Absicht beschädigt.</translation>
  </message>
  <message id="REVIEW_READER_STALLED">
    <source>The store's rules could not be checked: the reader did not get any further and was ended.</source>
    <translation>Die Regeln des Stores ließen sich nicht prüfen: Das Leseprogramm kam nicht weiter und wurde beendet.</translation>
  </message>
  <message id="REVIEW_READER_NOT_STARTED">
    <source>The store's rules could not be checked: the reader could not be started.</source>
    <translation>Die Regeln des Stores ließen sich nicht prüfen: Das Leseprogramm ließ sich nicht starten.</translation>
  </message>
  <message id="REVIEW_SIGNING">
    <source>Signature and profile</source>
    <translation>Signatur und Profil</translation>
  </message>
  <message id="REVIEW_SIGNATURE">
    <source>Signature</source>
    <translation>Signatur</translation>
  </message>
  <message id="REVIEW_SIGNATURE_VALID">
    <source>valid</source>
    <translation>gültig</translation>
  </message>
  <message id="REVIEW_SIGNATURE_NONE">
    <source>not signed</source>
    <translation>nicht signiert</translation>
  </message>
  <message id="REVIEW_SIGNATURE_BROKEN">
    <source>broken</source>
    <translation>gebrochen</translation>
  </message>
  <message id="REVIEW_SIGNER">
    <source>Signed by</source>
    <translation>Signiert von</translation>
  </message>
  <message id="REVIEW_TEAM">
    <source>Team</source>
    <translation>Team</translation>
  </message>
  <message id="REVIEW_PROFILE">
    <source>Profile</source>
    <translation>Profil</translation>
  </message>
  <message id="REVIEW_PROFILE_NONE">
    <source>none</source>
    <translation>keines</translation>
  </message>
  <message id="REVIEW_PROFILE_DEVELOPMENT">
    <source>for development</source>
    <translation>zur Entwicklung</translation>
  </message>
  <message id="REVIEW_PROFILE_AD_HOC">
    <source>for listed devices (ad hoc)</source>
    <translation>für eingetragene Geräte (ad hoc)</translation>
  </message>
  <message id="REVIEW_PROFILE_ENTERPRISE">
    <source>for one company (in-house)</source>
    <translation>für ein einzelnes Unternehmen (in-house)</translation>
  </message>
  <message id="REVIEW_PROFILE_STORE">
    <source>for the App Store</source>
    <translation>für den App Store</translation>
  </message>
  <message id="REVIEW_PROFILE_NAME">
    <source>Name of the profile</source>
    <translation>Name des Profils</translation>
  </message>
  <message id="REVIEW_PROFILE_TEAM">
    <source>Team of the profile</source>
    <translation>Team des Profils</translation>
  </message>
  <message id="REVIEW_EXPIRY">
    <source>Validity</source>
    <translation>Gültigkeit</translation>
  </message>
  <message id="REVIEW_EXPIRES_IN_DAYS">
    <source>expires in [COUNT] days ([DATE])</source>
    <translation>läuft in [COUNT] Tagen ab ([DATE])</translation>
  </message>
  <message id="REVIEW_EXPIRES_IN_A_DAY">
    <source>expires in 1 day ([DATE])</source>
    <translation>läuft in 1 Tag ab ([DATE])</translation>
  </message>
  <message id="REVIEW_EXPIRED">
    <source>expired on [DATE]</source>
    <translation>am [DATE] abgelaufen</translation>
  </message>
  <message id="REVIEW_DEVICES">
    <source>Devices</source>
    <translation>Geräte</translation>
  </message>
  <message id="REVIEW_BUNDLES">
    <source>Bundles</source>
    <translation>Bundles</translation>
  </message>
  <message id="REVIEW_KIND_APP">
    <source>app</source>
    <translation>App</translation>
  </message>
  <message id="REVIEW_KIND_EXTENSION">
    <source>extension</source>
    <translation>Erweiterung</translation>
  </message>
  <message id="REVIEW_KIND_WATCH_APP">
    <source>watch app</source>
    <translation>Watch-App</translation>
  </message>
  <message id="REVIEW_KIND_FRAMEWORK">
    <source>framework</source>
    <translation>Framework</translation>
  </message>
  <message id="REVIEW_KIND_RESOURCES">
    <source>resources</source>
    <translation>Ressourcen</translation>
  </message>
  <message id="REVIEW_VERSION">
    <source>version [VERSION]</source>
    <translation>Version [VERSION]</translation>
  </message>
  <message id="REVIEW_MINIMUM">
    <source>from iOS [VERSION]</source>
    <translation>ab iOS [VERSION]</translation>
  </message>
  <message id="REVIEW_MORE">
    <source>and [COUNT] more</source>
    <translation>und [COUNT] weitere</translation>
  </message>
  <message id="REVIEW_PRIVACY">
    <source>Privacy</source>
    <translation>Datenschutz</translation>
  </message>
  <message id="REVIEW_PRIVACY_NONE">
    <source>no privacy manifest</source>
    <translation>kein Datenschutzmanifest</translation>
  </message>
  <message id="REVIEW_TRACKS">
    <source>tracks people</source>
    <translation>verfolgt Personen</translation>
  </message>
  <message id="REVIEW_TRACKS_NOT">
    <source>does not track people</source>
    <translation>verfolgt keine Personen</translation>
  </message>
  <message id="REVIEW_COLLECTS">
    <source>kinds of data collected: [COUNT]</source>
    <translation>gesammelte Arten von Daten: [COUNT]</translation>
  </message>
  <message id="REVIEW_SIZES">
    <source>Sizes</source>
    <translation>Größen</translation>
  </message>
  <message id="REVIEW_FILES_CODE">
    <source>Code</source>
    <translation>Code</translation>
  </message>
  <message id="REVIEW_FILES_CATALOGS">
    <source>Catalogs</source>
    <translation>Kataloge</translation>
  </message>
  <message id="REVIEW_FILES_PICTURES">
    <source>Pictures</source>
    <translation>Bilder</translation>
  </message>
  <message id="REVIEW_FILES_SOUNDS">
    <source>Sound and film</source>
    <translation>Ton und Film</translation>
  </message>
  <message id="REVIEW_FILES_INTERFACES">
    <source>Interfaces</source>
    <translation>Oberflächen</translation>
  </message>
  <message id="REVIEW_FILES_LANGUAGES">
    <source>Languages</source>
    <translation>Sprachen</translation>
  </message>
  <message id="REVIEW_FILES_FONTS">
    <source>Fonts</source>
    <translation>Schriften</translation>
  </message>
  <message id="REVIEW_FILES_SIGNING">
    <source>Signing</source>
    <translation>Signierung</translation>
  </message>
  <message id="REVIEW_FILES_OTHERS">
    <source>Others</source>
    <translation>Anderes</translation>
  </message>
  <message id="REVIEW_MODELS">
    <source>Models on which it runs</source>
    <translation>Modelle, auf denen es läuft</translation>
  </message>
  <message id="REVIEW_MODELS_TIP">
    <source>Open the device tool with what the package asks for</source>
    <translation>Das Gerätewerkzeug mit den Anforderungen des Pakets öffnen</translation>
  </message>
  <message id="RULE_MAC_PROFILE_TITLE">
    <source>The Mac app has no provisioning profile</source>
    <translation>Die Mac-App hat kein Bereitstellungsprofil</translation>
  </message>
  <message id="RULE_MAC_PROFILE_RULE">
    <source>A Mac app that is for testers, too, brings Contents/embedded.provisionprofile.</source>
    <translation>Eine Mac-App, die auch für Testpersonen ist, bringt Contents/embedded.provisionprofile mit.</translation>
  </message>
  <message id="RULE_MAC_PROFILE_FIX">
    <source>Export the archive for the App Store with Xcode.</source>
    <translation>Das Archiv mit Xcode für den App Store exportieren.</translation>
  </message>
  <message id="RULE_MAC_SANDBOX_TITLE">
    <source>The Mac app is not sandboxed</source>
    <translation>Die Mac-App läuft nicht in der Sandbox</translation>
  </message>
  <message id="RULE_MAC_SANDBOX_RULE">
    <source>An app for the Mac App Store has the entitlement com.apple.security.app-sandbox.</source>
    <translation>Eine App für den Mac App Store hat die Berechtigung com.apple.security.app-sandbox.</translation>
  </message>
  <message id="RULE_MAC_SANDBOX_FIX">
    <source>Add the capability App Sandbox and sign the app again.</source>
    <translation>Die Fähigkeit App Sandbox hinzufügen und die App neu signieren.</translation>
  </message>
  <message id="FOUND_NO_MAC_APP">
    <source>no app for the Mac</source>
    <translation>keine App für den Mac</translation>
  </message>
  <message id="FOUND_NO_SANDBOX">
    <source>com.apple.security.app-sandbox is not among the entitlements</source>
    <translation>com.apple.security.app-sandbox ist nicht unter den Berechtigungen</translation>
  </message>
  <message id="RULE_ARM64_MINIMUM_TITLE">
    <source>The minimum system is likely too old for arm64</source>
    <translation>Das älteste System ist wahrscheinlich zu alt für arm64</translation>
  </message>
  <message id="RULE_ARM64_MINIMUM_RULE">
    <source>An app that lists arm64 among its required capabilities names a system that devices with 64-bit code run: 7.0 or more.</source>
    <translation>Eine App, die arm64 unter den verlangten Fähigkeiten nennt, nennt ein System, das Geräte mit 64-Bit-Code ausführen: 7.0 oder mehr.</translation>
  </message>
  <message id="RULE_ARM64_MINIMUM_FIX">
    <source>Raise the deployment target, or take arm64 out of UIRequiredDeviceCapabilities.</source>
    <translation>Das Deployment Target anheben oder arm64 aus UIRequiredDeviceCapabilities nehmen.</translation>
  </message>
  <message id="RULE_PRIVATE_NAMES_TITLE">
    <source>Code uses private functions of the system</source>
    <translation>Code verwendet private Funktionen des Systems</translation>
  </message>
  <message id="RULE_PRIVATE_NAMES_RULE">
    <source>An app links no private framework and calls no function that is known to be private.</source>
    <translation>Eine App linkt kein privates Framework und ruft keine Funktion auf, die als privat bekannt ist.</translation>
  </message>
  <message id="RULE_PRIVATE_NAMES_FIX">
    <source>Use a public function instead, or a newer version of the library that calls the private one.</source>
    <translation>Stattdessen eine öffentliche Funktion verwenden oder eine neuere Fassung der Bibliothek, die die private aufruft.</translation>
  </message>
  <message id="RULE_LISTED_KIT_SIGNATURE_TITLE">
    <source>A listed kit is likely not signed by its maker</source>
    <translation>Ein gelistetes Kit ist wahrscheinlich nicht von seinem Hersteller signiert</translation>
  </message>
  <message id="RULE_LISTED_KIT_SIGNATURE_RULE">
    <source>A kit on the platform's list that is added as a finished binary is signed by its maker, and the archive holds the receipt in Signatures.</source>
    <translation>Ein Kit von der Liste der Plattform, das als fertiges Programm eingebunden ist, ist von seinem Hersteller signiert, und das Archiv enthält den Beleg in Signatures.</translation>
  </message>
  <message id="RULE_LISTED_KIT_SIGNATURE_FIX">
    <source>Use the maker's signed xcframework and export the archive with Xcode. A kit that is built from its sources needs no receipt.</source>
    <translation>Das signierte xcframework des Herstellers verwenden und das Archiv mit Xcode exportieren. Ein Kit, das aus seinen Quellen gebaut ist, braucht keinen Beleg.</translation>
  </message>
  <message id="FOUND_ARM64_NOT_LISTED">
    <source>it does not list arm64</source>
    <translation>sie nennt arm64 nicht</translation>
  </message>
  <message id="FOUND_ARM64_MINIMUM">
    <source>arm64 is listed, but MinimumOSVersion is [A]</source>
    <translation>arm64 ist genannt, aber MinimumOSVersion ist [A]</translation>
  </message>
  <message id="FOUND_PRIVATE_FRAMEWORK">
    <source>links the private framework [A]</source>
    <translation>linkt das private Framework [A]</translation>
  </message>
  <message id="FOUND_PRIVATE_SYMBOL">
    <source>imports the private name [A]</source>
    <translation>importiert den privaten Namen [A]</translation>
  </message>
  <message id="FOUND_NO_RECEIPT">
    <source>there is no receipt [A]…</source>
    <translation>es gibt keinen Beleg [A]…</translation>
  </message>
  <message id="SEVERITY_ERROR">
    <source>error</source>
    <translation>Fehler</translation>
  </message>
  <message id="SEVERITY_WARNING">
    <source>warning</source>
    <translation>Warnung</translation>
  </message>
  <message id="SEVERITY_NOTE">
    <source>note</source>
    <translation>Hinweis</translation>
  </message>
  <message id="CLI_RULES_SEVERITY">
    <source>severity</source>
    <translation>Schwere</translation>
  </message>
  <message id="CLI_RULES_TITLE">
    <source>title</source>
    <translation>Titel</translation>
  </message>
  <message id="CLI_RULES_RULE">
    <source>rule</source>
    <translation>Regel</translation>
  </message>
  <message id="CLI_RULES_FIX">
    <source>fix</source>
    <translation>Abhilfe</translation>
  </message>
  <message id="CLI_RULES_SOURCE">
    <source>source</source>
    <translation>Quelle</translation>
  </message>
  <message id="CLI_RULES_SINCE">
    <source>since</source>
    <translation>seit</translation>
  </message>
  <message id="CLI_DIFF_ALL">
    <source>All</source>
    <translation>Alles</translation>
  </message>
  <message id="HTML_LANGUAGE">
    <source>en</source>
    <translation>de</translation>
  </message>
  <message id="HTML_PACKAGES">
    <source>Packages</source>
    <translation>Pakete</translation>
  </message>
  <message id="HTML_FACTS">
    <source>Facts</source>
    <translation>Angaben</translation>
  </message>
  <message id="HTML_ONE_FILE">
    <source>1 file</source>
    <translation>1 Datei</translation>
  </message>
  <message id="HTML_FILES">
    <source>[A] files</source>
    <translation>[A] Dateien</translation>
  </message>
  <message id="HTML_MORE">
    <source>[A] more</source>
    <translation>[A] weitere</translation>
  </message>
  <message id="HTML_NAME">
    <source>Name</source>
    <translation>Name</translation>
  </message>
  <message id="HTML_VERSION">
    <source>Version</source>
    <translation>Version</translation>
  </message>
  <message id="HTML_PLATFORM">
    <source>Platform</source>
    <translation>Plattform</translation>
  </message>
  <message id="HTML_MINIMUM_SYSTEM">
    <source>Minimum system</source>
    <translation>Mindestsystem</translation>
  </message>
  <message id="HTML_IDENTIFIER">
    <source>Identifier</source>
    <translation>Kennung</translation>
  </message>
  <message id="HTML_BUILD">
    <source>Build</source>
    <translation>Build</translation>
  </message>
  <message id="HTML_URL_SCHEMES">
    <source>URL schemes</source>
    <translation>URL-Schemata</translation>
  </message>
  <message id="HTML_FACEBOOK">
    <source>Facebook</source>
    <translation>Facebook</translation>
  </message>
  <message id="HTML_EXPIRES">
    <source>Expires</source>
    <translation>Läuft ab</translation>
  </message>
  <message id="RULE_ICON_PHONE_TITLE">
    <source>No icon for the iPhone</source>
    <translation>Kein Icon für das iPhone</translation>
  </message>
  <message id="RULE_ICON_PHONE_RULE">
    <source>An iPhone app for iOS 7 or newer has an icon of 120 by 120 pixels, in the catalog or as a file.</source>
    <translation>Eine iPhone-App für iOS 7 oder neuer hat ein Icon von 120 mal 120 Pixeln, im Katalog oder als Datei.</translation>
  </message>
  <message id="RULE_ICON_PHONE_FIX">
    <source>Give the app icon set a picture of 1024 pixels, or add the size of 120.</source>
    <translation>Dem App-Icon-Satz ein Bild von 1024 Pixeln geben oder die Größe 120 ergänzen.</translation>
  </message>
  <message id="RULE_ICON_PAD_TITLE">
    <source>No icon for the iPad</source>
    <translation>Kein Icon für das iPad</translation>
  </message>
  <message id="RULE_ICON_PAD_RULE">
    <source>An iPad app for iOS 7 or newer has an icon of 152 by 152 pixels, in the catalog or as a file.</source>
    <translation>Eine iPad-App für iOS 7 oder neuer hat ein Icon von 152 mal 152 Pixeln, im Katalog oder als Datei.</translation>
  </message>
  <message id="RULE_ICON_PAD_FIX">
    <source>Give the app icon set a picture of 1024 pixels, or add the size of 152.</source>
    <translation>Dem App-Icon-Satz ein Bild von 1024 Pixeln geben oder die Größe 152 ergänzen.</translation>
  </message>
  <message id="RULE_ICON_MARKETING_TITLE">
    <source>No large icon</source>
    <translation>Kein großes Icon</translation>
  </message>
  <message id="RULE_ICON_MARKETING_RULE">
    <source>The asset catalog holds an icon of 1024 by 1024 pixels.</source>
    <translation>Der Katalog enthält ein Icon von 1024 mal 1024 Pixeln.</translation>
  </message>
  <message id="RULE_ICON_MARKETING_FIX">
    <source>Add a picture of 1024 pixels to the app icon set.</source>
    <translation>Dem App-Icon-Satz ein Bild von 1024 Pixeln hinzufügen.</translation>
  </message>
  <message id="RULE_ICON_NAME_TITLE">
    <source>The icon set is not named</source>
    <translation>Der Icon-Satz ist nicht benannt</translation>
  </message>
  <message id="RULE_ICON_NAME_RULE">
    <source>An app built with the SDK of iOS 11 or newer names its icon set by CFBundleIconName.</source>
    <translation>Eine App, die mit dem SDK von iOS 11 oder neuer gebaut ist, nennt ihren Icon-Satz durch CFBundleIconName.</translation>
  </message>
  <message id="RULE_ICON_NAME_FIX">
    <source>Set ASSETCATALOG_COMPILER_APPICON_NAME to the name of the app icon set and build again.</source>
    <translation>ASSETCATALOG_COMPILER_APPICON_NAME auf den Namen des App-Icon-Satzes setzen und neu bauen.</translation>
  </message>
  <message id="RULE_ICON_OPAQUE_TITLE">
    <source>The large icon is translucent</source>
    <translation>Das große Icon ist durchscheinend</translation>
  </message>
  <message id="RULE_ICON_OPAQUE_RULE">
    <source>The icon of 1024 pixels has neither transparent pixels nor an alpha channel.</source>
    <translation>Das Icon von 1024 Pixeln hat weder durchsichtige Pixel noch einen Alphakanal.</translation>
  </message>
  <message id="RULE_ICON_OPAQUE_FIX">
    <source>Flatten the picture onto a color and save it without alpha channel.</source>
    <translation>Das Bild auf eine Farbe legen und ohne Alphakanal speichern.</translation>
  </message>
  <message id="RULE_PAD_ORIENTATIONS_TITLE">
    <source>The iPad app does not turn into every direction</source>
    <translation>Die iPad-App dreht sich nicht in jede Richtung</translation>
  </message>
  <message id="RULE_PAD_ORIENTATIONS_RULE">
    <source>An iPad app that does not ask for the whole screen lists all four orientations.</source>
    <translation>Eine iPad-App, die nicht den ganzen Bildschirm verlangt, nennt alle vier Ausrichtungen.</translation>
  </message>
  <message id="RULE_PAD_ORIENTATIONS_FIX">
    <source>List all four in UISupportedInterfaceOrientations~ipad, or set UIRequiresFullScreen.</source>
    <translation>Alle vier in UISupportedInterfaceOrientations~ipad nennen oder UIRequiresFullScreen setzen.</translation>
  </message>
  <message id="RULE_LAUNCH_SCREEN_TITLE">
    <source>No launch screen</source>
    <translation>Kein Startbildschirm</translation>
  </message>
  <message id="RULE_LAUNCH_SCREEN_RULE">
    <source>An iPad app that does not ask for the whole screen has a launch storyboard or UILaunchScreen.</source>
    <translation>Eine iPad-App, die nicht den ganzen Bildschirm verlangt, hat ein Start-Storyboard oder UILaunchScreen.</translation>
  </message>
  <message id="RULE_LAUNCH_SCREEN_FIX">
    <source>Add UILaunchStoryboardName or UILaunchScreen to the Info.plist.</source>
    <translation>UILaunchStoryboardName oder UILaunchScreen in die Info.plist aufnehmen.</translation>
  </message>
  <message id="RULE_PACKAGE_TYPE_TITLE">
    <source>The bundle is not marked as an app</source>
    <translation>Das Bundle ist nicht als App gekennzeichnet</translation>
  </message>
  <message id="RULE_PACKAGE_TYPE_RULE">
    <source>The app's CFBundlePackageType is APPL.</source>
    <translation>Der CFBundlePackageType der App ist APPL.</translation>
  </message>
  <message id="RULE_PACKAGE_TYPE_FIX">
    <source>Set CFBundlePackageType to APPL.</source>
    <translation>CFBundlePackageType auf APPL setzen.</translation>
  </message>
  <message id="RULE_MINIMUM_SYSTEM_TITLE">
    <source>The minimum system is likely too old</source>
    <translation>Das älteste System ist wahrscheinlich zu alt</translation>
  </message>
  <message id="RULE_MINIMUM_SYSTEM_RULE">
    <source>An app likely needs a MinimumOSVersion of 15.0 or more from spring 2027 on.</source>
    <translation>Ab Frühjahr 2027 braucht eine App wahrscheinlich eine MinimumOSVersion von 15.0 oder mehr.</translation>
  </message>
  <message id="RULE_MINIMUM_SYSTEM_FIX">
    <source>Raise the deployment target to 15.0 or more.</source>
    <translation>Das Deployment Target auf 15.0 oder mehr anheben.</translation>
  </message>
  <message id="RULE_NESTED_VERSION_TITLE">
    <source>A version is missing or malformed</source>
    <translation>Eine Version fehlt oder ist falsch geformt</translation>
  </message>
  <message id="RULE_NESTED_VERSION_RULE">
    <source>The app and each bundle in it has a CFBundleShortVersionString of one to three numbers and a CFBundleVersion.</source>
    <translation>Die App und jedes Bundle darin hat einen CFBundleShortVersionString aus ein bis drei Zahlen und eine CFBundleVersion.</translation>
  </message>
  <message id="RULE_NESTED_VERSION_FIX">
    <source>Set both keys in the bundle's Info.plist to numbers with dots, as in 2.1.0.</source>
    <translation>Beide Schlüssel in der Info.plist des Bundles auf Zahlen mit Punkten setzen, etwa 2.1.0.</translation>
  </message>
  <message id="RULE_EXTENSION_VERSION_TITLE">
    <source>An extension has another version than the app</source>
    <translation>Eine Erweiterung hat eine andere Version als die App</translation>
  </message>
  <message id="RULE_EXTENSION_VERSION_RULE">
    <source>An extension has the same version and build number as its app.</source>
    <translation>Eine Erweiterung hat dieselbe Version und Buildnummer wie ihre App.</translation>
  </message>
  <message id="RULE_EXTENSION_VERSION_FIX">
    <source>Set version and build number of the extension to the app's.</source>
    <translation>Version und Buildnummer der Erweiterung auf die der App setzen.</translation>
  </message>
  <message id="RULE_IDENTIFIER_ONCE_TITLE">
    <source>Two bundles have the same identifier</source>
    <translation>Zwei Bundles haben dieselbe Kennung</translation>
  </message>
  <message id="RULE_IDENTIFIER_ONCE_RULE">
    <source>No two bundles of the package have the same CFBundleIdentifier.</source>
    <translation>Keine zwei Bundles des Pakets haben denselben CFBundleIdentifier.</translation>
  </message>
  <message id="RULE_IDENTIFIER_ONCE_FIX">
    <source>Give one of the bundles another identifier.</source>
    <translation>Einem der Bundles eine andere Kennung geben.</translation>
  </message>
  <message id="RULE_NESTED_IDENTIFIER_TITLE">
    <source>An extension's identifier does not begin with the app's</source>
    <translation>Die Kennung einer Erweiterung beginnt nicht mit der der App</translation>
  </message>
  <message id="RULE_NESTED_IDENTIFIER_RULE">
    <source>The identifier of an extension or watch app is the app's, a dot and a name of its own.</source>
    <translation>Die Kennung einer Erweiterung oder Watch-App ist die der App, ein Punkt und ein eigener Name.</translation>
  </message>
  <message id="RULE_NESTED_IDENTIFIER_FIX">
    <source>Let the CFBundleIdentifier of the nested bundle begin with the app's identifier and a dot.</source>
    <translation>Den CFBundleIdentifier des inneren Bundles mit der Kennung der App und einem Punkt beginnen lassen.</translation>
  </message>
  <message id="RULE_ARM64_CAPABILITY_TITLE">
    <source>Only 64-bit code, but arm64 is not asked for</source>
    <translation>Nur 64-Bit-Code, aber arm64 wird nicht verlangt</translation>
  </message>
  <message id="RULE_ARM64_CAPABILITY_RULE">
    <source>An app without 32-bit code that runs on systems before iOS 11 lists arm64 among its required capabilities.</source>
    <translation>Eine App ohne 32-Bit-Code, die auf Systemen vor iOS 11 läuft, nennt arm64 unter den verlangten Fähigkeiten.</translation>
  </message>
  <message id="RULE_ARM64_CAPABILITY_FIX">
    <source>Add arm64 to UIRequiredDeviceCapabilities, or raise the deployment target.</source>
    <translation>arm64 in UIRequiredDeviceCapabilities aufnehmen oder das Deployment Target anheben.</translation>
  </message>
  <message id="RULE_SDK_AGE_TITLE">
    <source>Built with an SDK that is too old</source>
    <translation>Mit einem zu alten SDK gebaut</translation>
  </message>
  <message id="RULE_SDK_AGE_RULE">
    <source>An app is built with the SDK of iOS 18 or newer since April 2025, and with that of iOS 26 or newer since April 2026.</source>
    <translation>Eine App wird seit April 2025 mit dem SDK von iOS 18 oder neuer gebaut und seit April 2026 mit dem von iOS 26 oder neuer.</translation>
  </message>
  <message id="RULE_SDK_AGE_FIX">
    <source>Build with the current Xcode.</source>
    <translation>Mit dem aktuellen Xcode bauen.</translation>
  </message>
  <message id="RULE_SDK_AGE_NEXT_TITLE">
    <source>Likely built with an SDK that is too old</source>
    <translation>Wahrscheinlich mit einem zu alten SDK gebaut</translation>
  </message>
  <message id="RULE_SDK_AGE_NEXT_RULE">
    <source>An app likely needs the SDK of iOS 27 or newer from April 2027 on.</source>
    <translation>Ab April 2027 braucht eine App wahrscheinlich das SDK von iOS 27 oder neuer.</translation>
  </message>
  <message id="RULE_SDK_AGE_NEXT_FIX">
    <source>Build with Xcode 27 or newer.</source>
    <translation>Mit Xcode 27 oder neuer bauen.</translation>
  </message>
  <message id="RULE_EXECUTABLE_TITLE">
    <source>Code is missing or damaged</source>
    <translation>Code fehlt oder ist beschädigt</translation>
  </message>
  <message id="RULE_EXECUTABLE_RULE">
    <source>Each bundle of code has the binary that its Info.plist names, and every binary can be read to its end.</source>
    <translation>Jedes Bundle mit Code enthält das Programm, das seine Info.plist nennt, und jedes Programm lässt sich bis zum Ende lesen.</translation>
  </message>
  <message id="RULE_EXECUTABLE_FIX">
    <source>Build and export the app again.</source>
    <translation>Die App neu bauen und exportieren.</translation>
  </message>
  <message id="RULE_SIMULATOR_CODE_TITLE">
    <source>Code is for the simulator</source>
    <translation>Code ist für den Simulator</translation>
  </message>
  <message id="RULE_SIMULATOR_CODE_RULE">
    <source>No binary holds a slice for the simulator (i386, x86_64).</source>
    <translation>Kein Programm enthält Code für den Simulator (i386, x86_64).</translation>
  </message>
  <message id="RULE_SIMULATOR_CODE_FIX">
    <source>Link the library's device slice only, or its xcframework.</source>
    <translation>Nur den Geräteteil der Bibliothek oder ihr xcframework linken.</translation>
  </message>
  <message id="RULE_ALIGNMENT_TITLE">
    <source>A segment is not aligned</source>
    <translation>Ein Segment ist nicht ausgerichtet</translation>
  </message>
  <message id="RULE_ALIGNMENT_RULE">
    <source>Each segment of a binary begins at the start of a page.</source>
    <translation>Jedes Segment eines Programms beginnt an einer Seitengrenze.</translation>
  </message>
  <message id="RULE_ALIGNMENT_FIX">
    <source>Link the binary again with the platform's own tools.</source>
    <translation>Das Programm mit den Werkzeugen der Plattform neu linken.</translation>
  </message>
  <message id="RULE_BITCODE_TITLE">
    <source>Code still holds bitcode</source>
    <translation>Code enthält noch Bitcode</translation>
  </message>
  <message id="RULE_BITCODE_RULE">
    <source>A package built with Xcode 16 or newer holds no bitcode.</source>
    <translation>Ein Paket, das mit Xcode 16 oder neuer gebaut ist, enthält keinen Bitcode.</translation>
  </message>
  <message id="RULE_BITCODE_FIX">
    <source>Strip it with "bitcode_strip -r", or use a newer build of the library.</source>
    <translation>Mit „bitcode_strip -r“ entfernen oder eine neuere Fassung der Bibliothek verwenden.</translation>
  </message>
  <message id="RULE_ENCRYPTION_INFO_TITLE">
    <source>The store cannot encrypt the binary</source>
    <translation>Der Store kann das Programm nicht verschlüsseln</translation>
  </message>
  <message id="RULE_ENCRYPTION_INFO_RULE">
    <source>The app's binary has a load command LC_ENCRYPTION_INFO and is not encrypted yet.</source>
    <translation>Das Programm der App hat einen Ladebefehl LC_ENCRYPTION_INFO und ist noch nicht verschlüsselt.</translation>
  </message>
  <message id="RULE_ENCRYPTION_INFO_FIX">
    <source>Export the app from its archive, not from a device, and without a packer.</source>
    <translation>Die App aus ihrem Archiv exportieren, nicht von einem Gerät, und ohne Packer.</translation>
  </message>
  <message id="RULE_WEB_VIEW_TITLE">
    <source>Code refers to UIWebView</source>
    <translation>Code verweist auf UIWebView</translation>
  </message>
  <message id="RULE_WEB_VIEW_RULE">
    <source>No code refers to the class UIWebView.</source>
    <translation>Kein Code verweist auf die Klasse UIWebView.</translation>
  </message>
  <message id="RULE_WEB_VIEW_FIX">
    <source>Use WKWebView, and versions of libraries that use it, too.</source>
    <translation>WKWebView verwenden, und Fassungen der Bibliotheken, die es auch tun.</translation>
  </message>
  <message id="RULE_FRAMEWORK_MINIMUM_TITLE">
    <source>A framework's minimum system is missing or too old</source>
    <translation>Das älteste System eines Frameworks fehlt oder ist zu alt</translation>
  </message>
  <message id="RULE_FRAMEWORK_MINIMUM_RULE">
    <source>Each framework names a MinimumOSVersion of 8.0 or more.</source>
    <translation>Jedes Framework nennt eine MinimumOSVersion von 8.0 oder mehr.</translation>
  </message>
  <message id="RULE_FRAMEWORK_MINIMUM_FIX">
    <source>Set MinimumOSVersion in the framework's Info.plist to the app's.</source>
    <translation>MinimumOSVersion in der Info.plist des Frameworks auf die der App setzen.</translation>
  </message>
  <message id="RULE_FRAMEWORK_SYSTEM_TITLE">
    <source>A framework is built for another system than it says</source>
    <translation>Ein Framework ist für ein anderes System gebaut, als es angibt</translation>
  </message>
  <message id="RULE_FRAMEWORK_SYSTEM_RULE">
    <source>A framework's binary is built for the system that its Info.plist names, and for none newer than the app's.</source>
    <translation>Das Programm eines Frameworks ist für das System gebaut, das seine Info.plist nennt, und für kein neueres als die App.</translation>
  </message>
  <message id="RULE_FRAMEWORK_SYSTEM_FIX">
    <source>Build the framework with the app's deployment target.</source>
    <translation>Das Framework mit dem Deployment Target der App bauen.</translation>
  </message>
  <message id="RULE_FRAMEWORK_TYPE_TITLE">
    <source>A framework is not a dynamic library</source>
    <translation>Ein Framework ist keine dynamische Bibliothek</translation>
  </message>
  <message id="RULE_FRAMEWORK_TYPE_RULE">
    <source>The binary of a framework is a dynamic library.</source>
    <translation>Das Programm eines Frameworks ist eine dynamische Bibliothek.</translation>
  </message>
  <message id="RULE_FRAMEWORK_TYPE_FIX">
    <source>Link a static library into the app and do not embed it.</source>
    <translation>Eine statische Bibliothek in die App linken und nicht einbetten.</translation>
  </message>
  <message id="RULE_SWIFT_ENTRY_TITLE">
    <source>An extension likely has no entry point</source>
    <translation>Eine Erweiterung hat wahrscheinlich keinen Einstieg</translation>
  </message>
  <message id="RULE_SWIFT_ENTRY_RULE">
    <source>An extension of the newer kind has a section __swift5_entry, where the system starts it.</source>
    <translation>Eine Erweiterung der neueren Art hat einen Abschnitt __swift5_entry, an dem das System sie startet.</translation>
  </message>
  <message id="RULE_SWIFT_ENTRY_FIX">
    <source>Mark its type with @main and build again.</source>
    <translation>Ihren Typ mit @main kennzeichnen und neu bauen.</translation>
  </message>
  <message id="RULE_LOOSE_CODE_TITLE">
    <source>Code outside of a bundle</source>
    <translation>Code außerhalb eines Bundles</translation>
  </message>
  <message id="RULE_LOOSE_CODE_RULE">
    <source>Libraries and programs are only in frameworks and extensions, which have the layout of the phone.</source>
    <translation>Bibliotheken und Programme liegen nur in Frameworks und Erweiterungen, und diese sind angeordnet wie auf dem Telefon.</translation>
  </message>
  <message id="RULE_LOOSE_CODE_FIX">
    <source>Embed a framework instead of the bare library.</source>
    <translation>Ein Framework statt der bloßen Bibliothek einbetten.</translation>
  </message>
  <message id="RULE_NESTED_FRAMEWORKS_TITLE">
    <source>Frameworks inside of a framework or extension</source>
    <translation>Frameworks in einem Framework oder einer Erweiterung</translation>
  </message>
  <message id="RULE_NESTED_FRAMEWORKS_RULE">
    <source>Only the app itself has a folder of frameworks.</source>
    <translation>Nur die App selbst hat einen Ordner mit Frameworks.</translation>
  </message>
  <message id="RULE_NESTED_FRAMEWORKS_FIX">
    <source>Embed the frameworks in the app only.</source>
    <translation>Die Frameworks nur in die App einbetten.</translation>
  </message>
  <message id="RULE_SWIFT_SUPPORT_TITLE">
    <source>SwiftSupport is missing or does not fit</source>
    <translation>SwiftSupport fehlt oder passt nicht</translation>
  </message>
  <message id="RULE_SWIFT_SUPPORT_RULE">
    <source>An archive for the store that brings libraries of Swift holds them in SwiftSupport, too, built for the app's minimum system.</source>
    <translation>Ein Archiv für den Store, das Bibliotheken von Swift mitbringt, enthält sie auch in SwiftSupport, gebaut für das älteste System der App.</translation>
  </message>
  <message id="RULE_SWIFT_SUPPORT_FIX">
    <source>Export the archive with Xcode instead of packing it by hand.</source>
    <translation>Das Archiv mit Xcode exportieren, statt es von Hand zu packen.</translation>
  </message>
  <message id="RULE_SIGNED_TITLE">
    <source>Code is not signed</source>
    <translation>Code ist nicht signiert</translation>
  </message>
  <message id="RULE_SIGNED_RULE">
    <source>All code is signed, and with a certificate.</source>
    <translation>Aller Code ist signiert, und zwar mit einem Zertifikat.</translation>
  </message>
  <message id="RULE_SIGNED_FIX">
    <source>Sign every nested bundle with a certificate, then the app.</source>
    <translation>Jedes innere Bundle mit einem Zertifikat signieren, dann die App.</translation>
  </message>
  <message id="RULE_SIGNATURE_TITLE">
    <source>A signature is not valid</source>
    <translation>Eine Signatur ist ungültig</translation>
  </message>
  <message id="RULE_SIGNATURE_RULE">
    <source>Code, requirements and entitlements are unchanged since they were signed with the certificate's key, within its time.</source>
    <translation>Code, Anforderungen und Berechtigungen sind unverändert, seit sie mit dem Schlüssel des Zertifikats und in dessen Laufzeit signiert wurden.</translation>
  </message>
  <message id="RULE_SIGNATURE_FIX">
    <source>Sign the app again after the last change.</source>
    <translation>Die App nach der letzten Änderung neu signieren.</translation>
  </message>
  <message id="RULE_SEAL_TITLE">
    <source>The seal is broken</source>
    <translation>Das Siegel ist gebrochen</translation>
  </message>
  <message id="RULE_SEAL_RULE">
    <source>Every file of a signed bundle is listed in its seal, unchanged and present.</source>
    <translation>Jede Datei eines signierten Bundles ist in seinem Siegel genannt, unverändert und vorhanden.</translation>
  </message>
  <message id="RULE_SEAL_FIX">
    <source>Sign the app again after the last change.</source>
    <translation>Die App nach der letzten Änderung neu signieren.</translation>
  </message>
  <message id="RULE_CERTIFICATE_KIND_TITLE">
    <source>Signed with a certificate for development</source>
    <translation>Mit einem Zertifikat zur Entwicklung signiert</translation>
  </message>
  <message id="RULE_CERTIFICATE_KIND_RULE">
    <source>An app for the store is signed with a distribution certificate.</source>
    <translation>Eine App für den Store ist mit einem Vertriebszertifikat signiert.</translation>
  </message>
  <message id="RULE_CERTIFICATE_KIND_FIX">
    <source>Export the archive for the App Store.</source>
    <translation>Das Archiv für den App Store exportieren.</translation>
  </message>
  <message id="RULE_CERTIFICATE_VALIDITY_TITLE">
    <source>The certificate has expired</source>
    <translation>Das Zertifikat ist abgelaufen</translation>
  </message>
  <message id="RULE_CERTIFICATE_VALIDITY_RULE">
    <source>The certificate that the app is signed with has not expired.</source>
    <translation>Das Zertifikat, mit dem die App signiert ist, ist nicht abgelaufen.</translation>
  </message>
  <message id="RULE_CERTIFICATE_VALIDITY_FIX">
    <source>Renew the certificate and sign the app again.</source>
    <translation>Das Zertifikat erneuern und die App neu signieren.</translation>
  </message>
  <message id="RULE_CERTIFICATE_PROFILE_TITLE">
    <source>The profile is for another certificate</source>
    <translation>Das Profil gehört zu einem anderen Zertifikat</translation>
  </message>
  <message id="RULE_CERTIFICATE_PROFILE_RULE">
    <source>The certificate that signs a bundle is in its profile.</source>
    <translation>Das Zertifikat, mit dem ein Bundle signiert ist, steht in seinem Profil.</translation>
  </message>
  <message id="RULE_CERTIFICATE_PROFILE_FIX">
    <source>Download the profile again, or sign with a certificate that is in it.</source>
    <translation>Das Profil neu laden oder mit einem Zertifikat signieren, das darin steht.</translation>
  </message>
  <message id="RULE_PROFILE_TITLE">
    <source>No provisioning profile</source>
    <translation>Kein Bereitstellungsprofil</translation>
  </message>
  <message id="RULE_PROFILE_RULE">
    <source>The app and each extension brings a provisioning profile.</source>
    <translation>Die App und jede Erweiterung bringt ein Bereitstellungsprofil mit.</translation>
  </message>
  <message id="RULE_PROFILE_FIX">
    <source>Export the archive for the App Store.</source>
    <translation>Das Archiv für den App Store exportieren.</translation>
  </message>
  <message id="RULE_PROFILE_KIND_TITLE">
    <source>The profile is not for the store</source>
    <translation>Das Profil ist nicht für den Store</translation>
  </message>
  <message id="RULE_PROFILE_KIND_RULE">
    <source>The profile of an app for the store names no devices and is not for one company alone.</source>
    <translation>Das Profil einer App für den Store nennt keine Geräte und ist nicht für ein einzelnes Unternehmen.</translation>
  </message>
  <message id="RULE_PROFILE_KIND_FIX">
    <source>Export the archive for the App Store.</source>
    <translation>Das Archiv für den App Store exportieren.</translation>
  </message>
  <message id="RULE_PROFILE_EXPIRY_TITLE">
    <source>A profile has expired</source>
    <translation>Ein Profil ist abgelaufen</translation>
  </message>
  <message id="RULE_PROFILE_EXPIRY_RULE">
    <source>No profile in the package has expired.</source>
    <translation>Kein Profil im Paket ist abgelaufen.</translation>
  </message>
  <message id="RULE_PROFILE_EXPIRY_FIX">
    <source>Download the profiles again and export once more.</source>
    <translation>Die Profile neu laden und noch einmal exportieren.</translation>
  </message>
  <message id="RULE_PROFILE_IDENTIFIER_TITLE">
    <source>The profile is for another app</source>
    <translation>Das Profil gehört zu einer anderen App</translation>
  </message>
  <message id="RULE_PROFILE_IDENTIFIER_RULE">
    <source>The identifier in a profile is that of its bundle, or a pattern that fits it.</source>
    <translation>Die Kennung in einem Profil ist die seines Bundles oder ein Muster, das zu ihr passt.</translation>
  </message>
  <message id="RULE_PROFILE_IDENTIFIER_FIX">
    <source>Sign with the profile for this bundle's identifier.</source>
    <translation>Mit dem Profil zur Kennung dieses Bundles signieren.</translation>
  </message>
  <message id="RULE_TEAM_TITLE">
    <source>Signature and profile are of different teams</source>
    <translation>Signatur und Profil sind von verschiedenen Teams</translation>
  </message>
  <message id="RULE_TEAM_RULE">
    <source>Signature, certificate and profile name the same team.</source>
    <translation>Signatur, Zertifikat und Profil nennen dasselbe Team.</translation>
  </message>
  <message id="RULE_TEAM_FIX">
    <source>Sign with a certificate and a profile of the same team.</source>
    <translation>Mit einem Zertifikat und einem Profil desselben Teams signieren.</translation>
  </message>
  <message id="RULE_ENTITLEMENTS_TITLE">
    <source>An entitlement is not granted</source>
    <translation>Eine Berechtigung ist nicht gewährt</translation>
  </message>
  <message id="RULE_ENTITLEMENTS_RULE">
    <source>The profile grants every entitlement that the signature claims.</source>
    <translation>Das Profil gewährt jede Berechtigung, die die Signatur beansprucht.</translation>
  </message>
  <message id="RULE_ENTITLEMENTS_FIX">
    <source>Add the capability to the app's identifier and download the profile again, or remove the entitlement.</source>
    <translation>Der Kennung der App die Fähigkeit hinzufügen und das Profil neu laden, oder die Berechtigung weglassen.</translation>
  </message>
  <message id="RULE_DEBUGGABLE_TITLE">
    <source>The app lets a debugger in</source>
    <translation>Die App lässt einen Debugger herein</translation>
  </message>
  <message id="RULE_DEBUGGABLE_RULE">
    <source>No code of an app for the store has the entitlement get-task-allow.</source>
    <translation>Kein Code einer App für den Store hat die Berechtigung get-task-allow.</translation>
  </message>
  <message id="RULE_DEBUGGABLE_FIX">
    <source>Export the archive for the App Store.</source>
    <translation>Das Archiv für den App Store exportieren.</translation>
  </message>
  <message id="RULE_PUSH_TITLE">
    <source>The app registers for push without the entitlement</source>
    <translation>Die App meldet sich ohne Berechtigung für Push an</translation>
  </message>
  <message id="RULE_PUSH_RULE">
    <source>An app that registers for remote notifications has the entitlement aps-environment.</source>
    <translation>Eine App, die sich für entfernte Mitteilungen anmeldet, hat die Berechtigung aps-environment.</translation>
  </message>
  <message id="RULE_PUSH_FIX">
    <source>Add the capability for push notifications, or remove the call.</source>
    <translation>Die Fähigkeit für Push-Mitteilungen hinzufügen oder den Aufruf entfernen.</translation>
  </message>
  <message id="RULE_PURPOSE_TITLE">
    <source>A purpose string is missing</source>
    <translation>Ein Zwecktext fehlt</translation>
  </message>
  <message id="RULE_PURPOSE_RULE">
    <source>An app whose code refers to the camera, photos, the location or contacts says in its Info.plist what it needs them for.</source>
    <translation>Eine App, deren Code auf Kamera, Fotos, Ort oder Kontakte verweist, sagt in ihrer Info.plist, wofür sie sie braucht.</translation>
  </message>
  <message id="RULE_PURPOSE_FIX">
    <source>Add the key to the Info.plist with a sentence that people understand.</source>
    <translation>Den Schlüssel mit einem verständlichen Satz in die Info.plist aufnehmen.</translation>
  </message>
  <message id="RULE_PURPOSE_LIKELY_TITLE">
    <source>A purpose string is likely missing</source>
    <translation>Ein Zwecktext fehlt wahrscheinlich</translation>
  </message>
  <message id="RULE_PURPOSE_LIKELY_RULE">
    <source>An app whose code refers to other protected data likely has to say in its Info.plist what it needs them for.</source>
    <translation>Eine App, deren Code auf andere geschützte Daten verweist, muss wahrscheinlich in ihrer Info.plist sagen, wofür sie sie braucht.</translation>
  </message>
  <message id="RULE_PURPOSE_LIKELY_FIX">
    <source>Add the key to the Info.plist with a sentence that people understand, or remove the use of the class.</source>
    <translation>Den Schlüssel mit einem verständlichen Satz in die Info.plist aufnehmen oder die Verwendung der Klasse entfernen.</translation>
  </message>
  <message id="RULE_ICON_PAD_PRO_TITLE">
    <source>There is likely no icon for the iPad Pro</source>
    <translation>Ein Icon für das iPad Pro fehlt wahrscheinlich</translation>
  </message>
  <message id="RULE_ICON_PAD_PRO_RULE">
    <source>An iPad app built with the SDK of iOS 9 or newer has an icon of 167 by 167 pixels, in the catalog or as a file.</source>
    <translation>Eine iPad-App, die mit dem SDK von iOS 9 oder neuer gebaut ist, hat ein Icon von 167 mal 167 Pixeln, im Katalog oder als Datei.</translation>
  </message>
  <message id="RULE_ICON_PAD_PRO_FIX">
    <source>Give the app icon set a picture of 1024 pixels, or add the size of 167.</source>
    <translation>Dem App-Icon-Satz ein Bild von 1024 Pixeln geben oder die Größe 167 ergänzen.</translation>
  </message>
  <message id="RULE_PURPOSE_VAGUE_TITLE">
    <source>A purpose string hardly says why</source>
    <translation>Ein Zwecktext sagt kaum, wozu</translation>
  </message>
  <message id="RULE_PURPOSE_VAGUE_RULE">
    <source>A purpose string says in a sentence what the app does with the data, and reviewers refuse one that does not.</source>
    <translation>Ein Zwecktext sagt in einem Satz, was die App mit den Daten macht; ohne das lehnt die Prüfung ihn ab.</translation>
  </message>
  <message id="RULE_PURPOSE_VAGUE_FIX">
    <source>Write a sentence that names the use, as in "Takes the picture for your profile."</source>
    <translation>Einen Satz schreiben, der die Verwendung nennt, wie „Nimmt das Bild für Ihr Profil auf.“</translation>
  </message>
  <message id="RULE_SIGNATURE_DIGEST_TITLE">
    <source>Signed with SHA-1 alone</source>
    <translation>Nur mit SHA-1 signiert</translation>
  </message>
  <message id="RULE_SIGNATURE_DIGEST_RULE">
    <source>A signature of today holds hashes of SHA-256, which alone are safe from forgery.</source>
    <translation>Eine heutige Signatur enthält Prüfsummen mit SHA-256, denn nur sie sind fälschungssicher.</translation>
  </message>
  <message id="RULE_SIGNATURE_DIGEST_FIX">
    <source>Sign the app again with current tools.</source>
    <translation>Die App mit aktuellen Werkzeugen neu signieren.</translation>
  </message>
  <message id="FOUND_SHA1_ONLY">
    <source>has no hashes but those of SHA-1</source>
    <translation>hat nur Prüfsummen mit SHA-1</translation>
  </message>
  <message id="FOUND_VAGUE_KEY">
    <source>[A] says only "[B]"</source>
    <translation>[A] sagt nur „[B]“</translation>
  </message>
  <message id="FOUND_BEFORE_IOS_9">
    <source>built before iOS 9</source>
    <translation>vor iOS 9 gebaut</translation>
  </message>
  <message id="FOUND_NO_PAD_ICON">
    <source>there is no icon for the iPad either</source>
    <translation>auch das Icon für das iPad fehlt</translation>
  </message>
  <message id="RULE_PURPOSE_EMPTY_TITLE">
    <source>A purpose string is empty</source>
    <translation>Ein Zwecktext ist leer</translation>
  </message>
  <message id="RULE_PURPOSE_EMPTY_RULE">
    <source>No purpose string is empty, in no language.</source>
    <translation>Kein Zwecktext ist leer, in keiner Sprache.</translation>
  </message>
  <message id="RULE_PURPOSE_EMPTY_FIX">
    <source>Say in a sentence what the app needs the data for.</source>
    <translation>In einem Satz sagen, wofür die App die Daten braucht.</translation>
  </message>
  <message id="RULE_REQUIRED_REASON_TITLE">
    <source>A use of protected functions is not declared</source>
    <translation>Eine Nutzung geschützter Funktionen ist nicht angegeben</translation>
  </message>
  <message id="RULE_REQUIRED_REASON_RULE">
    <source>An app that reads file times, the boot time, disk space, keyboards or user defaults declares a reason for it.</source>
    <translation>Eine App, die Dateizeiten, die Startzeit, den Speicherplatz, Tastaturen oder Benutzervorgaben liest, gibt dafür einen Grund an.</translation>
  </message>
  <message id="RULE_REQUIRED_REASON_FIX">
    <source>Add the category with a reason to PrivacyInfo.xcprivacy.</source>
    <translation>Die Kategorie mit einem Grund in PrivacyInfo.xcprivacy aufnehmen.</translation>
  </message>
  <message id="RULE_PRIVACY_FORM_TITLE">
    <source>The privacy manifest is malformed</source>
    <translation>Das Datenschutzmanifest ist falsch geformt</translation>
  </message>
  <message id="RULE_PRIVACY_FORM_RULE">
    <source>A privacy manifest holds only keys, categories and reasons that are known.</source>
    <translation>Ein Datenschutzmanifest enthält nur bekannte Schlüssel, Kategorien und Gründe.</translation>
  </message>
  <message id="RULE_PRIVACY_FORM_FIX">
    <source>Correct PrivacyInfo.xcprivacy; Xcode's editor offers the known values.</source>
    <translation>PrivacyInfo.xcprivacy berichtigen; der Editor von Xcode bietet die bekannten Werte an.</translation>
  </message>
  <message id="RULE_LISTED_KIT_TITLE">
    <source>A listed kit has no privacy manifest</source>
    <translation>Ein gelistetes Kit hat kein Datenschutzmanifest</translation>
  </message>
  <message id="RULE_LISTED_KIT_RULE">
    <source>A software kit on the platform's list brings a privacy manifest of its own.</source>
    <translation>Ein Softwarekit von der Liste der Plattform bringt ein eigenes Datenschutzmanifest mit.</translation>
  </message>
  <message id="RULE_LISTED_KIT_FIX">
    <source>Use a newer version of the kit.</source>
    <translation>Eine neuere Fassung des Kits verwenden.</translation>
  </message>
  <message id="RULE_EXPORT_COMPLIANCE_TITLE">
    <source>The store asks about encryption at every build</source>
    <translation>Der Store fragt bei jedem Build nach Verschlüsselung</translation>
  </message>
  <message id="RULE_EXPORT_COMPLIANCE_RULE">
    <source>The key ITSAppUsesNonExemptEncryption answers the question about export once for all.</source>
    <translation>Der Schlüssel ITSAppUsesNonExemptEncryption beantwortet die Exportfrage ein für alle Mal.</translation>
  </message>
  <message id="RULE_EXPORT_COMPLIANCE_FIX">
    <source>Add ITSAppUsesNonExemptEncryption to the Info.plist, true or false.</source>
    <translation>ITSAppUsesNonExemptEncryption in die Info.plist aufnehmen, wahr oder falsch.</translation>
  </message>
  <message id="RULE_BACKGROUND_PROCESSING_TITLE">
    <source>Background processing without task identifiers</source>
    <translation>Verarbeitung im Hintergrund ohne Aufgabenkennungen</translation>
  </message>
  <message id="RULE_BACKGROUND_PROCESSING_RULE">
    <source>An app with the background mode "processing" lists its tasks in BGTaskSchedulerPermittedIdentifiers.</source>
    <translation>Eine App mit dem Hintergrundmodus „processing“ nennt ihre Aufgaben in BGTaskSchedulerPermittedIdentifiers.</translation>
  </message>
  <message id="RULE_BACKGROUND_PROCESSING_FIX">
    <source>List the identifiers of the tasks there, or drop the mode.</source>
    <translation>Die Kennungen der Aufgaben dort nennen oder den Modus weglassen.</translation>
  </message>
  <message id="RULE_ARBITRARY_LOADS_TITLE">
    <source>Connections without protection are allowed</source>
    <translation>Ungeschützte Verbindungen sind erlaubt</translation>
  </message>
  <message id="RULE_ARBITRARY_LOADS_RULE">
    <source>An app that sets NSAllowsArbitraryLoads has to justify it in review.</source>
    <translation>Eine App, die NSAllowsArbitraryLoads setzt, muss das bei der Prüfung begründen.</translation>
  </message>
  <message id="RULE_ARBITRARY_LOADS_FIX">
    <source>Name the hosts that need it in NSExceptionDomains instead.</source>
    <translation>Stattdessen die Hosts, die es brauchen, in NSExceptionDomains nennen.</translation>
  </message>
  <message id="RULE_LOCALIZATION_HOLES_TITLE">
    <source>A language lacks texts</source>
    <translation>Einer Sprache fehlen Texte</translation>
  </message>
  <message id="RULE_LOCALIZATION_HOLES_RULE">
    <source>Each language of the app has the same tables of texts.</source>
    <translation>Jede Sprache der App hat dieselben Texttabellen.</translation>
  </message>
  <message id="RULE_LOCALIZATION_HOLES_FIX">
    <source>Add the missing tables, or drop the language.</source>
    <translation>Die fehlenden Tabellen ergänzen oder die Sprache weglassen.</translation>
  </message>
  <message id="RULE_FACEBOOK_TITLE">
    <source>The Facebook app ID has no URL scheme</source>
    <translation>Zur Facebook-App-ID fehlt das URL-Schema</translation>
  </message>
  <message id="RULE_FACEBOOK_RULE">
    <source>An app that names a FacebookAppID has a URL scheme of "fb" and that number.</source>
    <translation>Eine App, die eine FacebookAppID nennt, hat ein URL-Schema aus „fb“ und dieser Zahl.</translation>
  </message>
  <message id="RULE_FACEBOOK_FIX">
    <source>Add the scheme to CFBundleURLSchemes, as in fb1234567890.</source>
    <translation>Das Schema in CFBundleURLSchemes aufnehmen, etwa fb1234567890.</translation>
  </message>
  <message id="RULE_CELLULAR_SIZE_TITLE">
    <source>The package is large for a cellular download</source>
    <translation>Das Paket ist groß für das Laden über Mobilfunk</translation>
  </message>
  <message id="RULE_CELLULAR_SIZE_RULE">
    <source>Phones ask before they load more than 200 MB over the cellular network.</source>
    <translation>Telefone fragen nach, bevor sie über Mobilfunk mehr als 200 MB laden.</translation>
  </message>
  <message id="RULE_CELLULAR_SIZE_FIX">
    <source>Remove files that the app does not need, or load them later.</source>
    <translation>Dateien entfernen, die die App nicht braucht, oder sie später laden.</translation>
  </message>
  <message id="RULE_UNREAD_TITLE">
    <source>A file is too large to be judged</source>
    <translation>Eine Datei ist zu groß, um sie zu beurteilen</translation>
  </message>
  <message id="RULE_UNREAD_RULE">
    <source>Property lists and profiles of more than 4 MiB, or of more than 16 MiB together, are not read; what depends on them is not judged.</source>
    <translation>Eigenschaftslisten und Profile von mehr als 4 MiB, oder zusammen mehr als 16 MiB, werden nicht gelesen; was von ihnen abhängt, wird nicht beurteilt.</translation>
  </message>
  <message id="RULE_UNREAD_FIX">
    <source>Find out what fills the file; usual ones have a few kilobytes.</source>
    <translation>Herausfinden, was die Datei füllt; üblich sind wenige Kilobyte.</translation>
  </message>
  <message id="RULE_CLASSIC_ICONS_TITLE">
    <source>An icon of iOS 7 is missing</source>
    <translation>Ein Icon von iOS 7 fehlt</translation>
  </message>
  <message id="RULE_CLASSIC_ICONS_RULE">
    <source>An app for iOS 7 and before has its icons as files in every size.</source>
    <translation>Eine App für iOS 7 und davor hat ihre Icons als Dateien in jeder Größe.</translation>
  </message>
  <message id="RULE_CLASSIC_ICONS_FIX">
    <source>Add the missing sizes as files.</source>
    <translation>Die fehlenden Größen als Dateien hinzufügen.</translation>
  </message>
  <message id="RULE_CLASSIC_LAUNCH_IMAGES_TITLE">
    <source>A launch image of iOS 7 is missing</source>
    <translation>Ein Startbild von iOS 7 fehlt</translation>
  </message>
  <message id="RULE_CLASSIC_LAUNCH_IMAGES_RULE">
    <source>An app for iOS 7 and before has a launch image for every screen.</source>
    <translation>Eine App für iOS 7 und davor hat ein Startbild für jeden Bildschirm.</translation>
  </message>
  <message id="RULE_CLASSIC_LAUNCH_IMAGES_FIX">
    <source>Add a picture of one of the sizes.</source>
    <translation>Ein Bild von einer der Größen hinzufügen.</translation>
  </message>
  <message id="RULE_CLASSIC_IDENTIFIER_TITLE">
    <source>The identifier is not that of the profile</source>
    <translation>Die Kennung ist nicht die des Profils</translation>
  </message>
  <message id="RULE_CLASSIC_IDENTIFIER_RULE">
    <source>The bundle identifier is the one that the profile is for.</source>
    <translation>Die Kennung des Bundles ist die, für die das Profil gilt.</translation>
  </message>
  <message id="RULE_CLASSIC_IDENTIFIER_FIX">
    <source>Change the identifier, or sign with the profile that is for it.</source>
    <translation>Die Kennung ändern oder mit dem zugehörigen Profil signieren.</translation>
  </message>
  <message id="RULE_CLASSIC_LOCALIZATIONS_TITLE">
    <source>There is no localization</source>
    <translation>Es gibt keine Lokalisierung</translation>
  </message>
  <message id="RULE_CLASSIC_LOCALIZATIONS_RULE">
    <source>The app has a folder for one language at least.</source>
    <translation>Die App hat einen Ordner für mindestens eine Sprache.</translation>
  </message>
  <message id="RULE_CLASSIC_LOCALIZATIONS_FIX">
    <source>Add a language to the project.</source>
    <translation>Dem Projekt eine Sprache hinzufügen.</translation>
  </message>
  <message id="UNJUDGED_VERSIONS">
    <source>The version and the build number have to be higher than those of the last upload. Only the store knows that upload; "lumora diff OLD NEW" compares two packages.</source>
    <translation>Version und Buildnummer müssen höher sein als beim letzten Hochladen. Das kennt nur der Store; „lumora diff ALT NEU“ vergleicht zwei Pakete.</translation>
  </message>
  <message id="UNJUDGED_PRIVATE_NAMES">
    <source>The store's list of private names is not public. The rule private-names knows private frameworks and a few functions; the store may find more.</source>
    <translation>Die Liste privater Namen des Stores ist nicht öffentlich. Die Regel private-names kennt private Frameworks und einige Funktionen; der Store findet vielleicht mehr.</translation>
  </message>
  <message id="UNJUDGED_REVOCATION">
    <source>Only the issuer's server knows whether a certificate was revoked or a profile withdrawn, and no server is asked.</source>
    <translation>Nur der Server des Ausstellers weiß, ob ein Zertifikat widerrufen oder ein Profil zurückgezogen ist, und kein Server wird gefragt.</translation>
  </message>
  <message id="UNJUDGED_ENTITLEMENTS">
    <source>The rule entitlements compares with what the profile grants; whether the store accepts the value of an entitlement is its own decision.</source>
    <translation>Die Regel entitlements vergleicht mit dem, was das Profil gewährt; ob der Store den Wert einer Berechtigung annimmt, entscheidet er selbst.</translation>
  </message>
  <message id="UNJUDGED_DATA_KINDS">
    <source>The list of kinds of collected data and of their purposes grows. The rule privacy-form checks that each kind has purposes, not that they are on the list.</source>
    <translation>Die Liste der Arten gesammelter Daten und ihrer Zwecke wächst. Die Regel privacy-form prüft, dass jede Art Zwecke hat, nicht dass sie auf der Liste stehen.</translation>
  </message>
  <message id="RULE_SOURCE_STORE">
    <source>messages of the store's upload check</source>
    <translation>Meldungen der Annahmeprüfung des Stores</translation>
  </message>
  <message id="RULE_SOURCE_ONE_REPORT">
    <source>one report only</source>
    <translation>nur ein Bericht</translation>
  </message>
  <message id="RULE_SOURCE_SIGNING">
    <source>TN3125 and the format of code signatures</source>
    <translation>TN3125 und das Format der Codesignaturen</translation>
  </message>
  <message id="RULE_SOURCE_PRIVACY">
    <source>developer.apple.com, privacy manifest files</source>
    <translation>developer.apple.com, Datenschutzmanifeste</translation>
  </message>
  <message id="RULE_SOURCE_OTHER_TOOLS">
    <source>lists of other tools</source>
    <translation>Listen anderer Werkzeuge</translation>
  </message>
  <message id="RULE_SOURCE_REVIEWS">
    <source>reviews</source>
    <translation>Prüfungen des Stores</translation>
  </message>
  <message id="RULE_SOURCE_KITS">
    <source>developer.apple.com/support/third-party-SDK-requirements</source>
    <translation>developer.apple.com/support/third-party-SDK-requirements</translation>
  </message>
  <message id="RULE_SOURCE_CONNECT">
    <source>App Store Connect</source>
    <translation>App Store Connect</translation>
  </message>
  <message id="RULE_SOURCE_LANGUAGES">
    <source>comparison of the languages</source>
    <translation>Vergleich der Sprachen</translation>
  </message>
  <message id="RULE_SOURCE_KIT">
    <source>the kit's own instructions</source>
    <translation>Anleitung des Kits</translation>
  </message>
  <message id="RULE_SOURCE_SETTINGS">
    <source>settings of the App Store</source>
    <translation>Einstellungen des App Store</translation>
  </message>
  <message id="RULE_SOURCE_OWN">
    <source>the limits of this check</source>
    <translation>die Grenzen dieser Prüfung</translation>
  </message>
  <message id="RULE_SOURCE_CLASSIC">
    <source>the rules of iOS 7</source>
    <translation>die Regeln von iOS 7</translation>
  </message>
  <message id="FOUND_NO_SDK">
    <source>neither the binary nor the Info.plist names an SDK</source>
    <translation>weder das Programm noch die Info.plist nennt ein SDK</translation>
  </message>
  <message id="FOUND_OLD_SDK">
    <source>built with the SDK of [A], [B] is asked for since [C]</source>
    <translation>mit dem SDK von [A] gebaut, verlangt wird seit [C] das von [B]</translation>
  </message>
  <message id="FOUND_NO_PHONE_OR_PAD">
    <source>no app for iPhone or iPad</source>
    <translation>keine App für iPhone oder iPad</translation>
  </message>
  <message id="FOUND_UNKNOWN_DAY">
    <source>nothing is known of what was asked for on that day</source>
    <translation>was an diesem Tag verlangt wurde, ist nicht bekannt</translation>
  </message>
  <message id="FOUND_NOT_ASKED">
    <source>not asked for on that day</source>
    <translation>an diesem Tag nicht verlangt</translation>
  </message>
  <message id="FOUND_NO_EXECUTABLE_KEY">
    <source>no CFBundleExecutable</source>
    <translation>kein CFBundleExecutable</translation>
  </message>
  <message id="FOUND_NO_MACHO">
    <source>no Mach-O file</source>
    <translation>keine Mach-O-Datei</translation>
  </message>
  <message id="FOUND_NOT_THERE">
    <source>is not there</source>
    <translation>ist nicht da</translation>
  </message>
  <message id="FOUND_LOAD_COMMANDS">
    <source>load commands that are damaged or lead out of the file</source>
    <translation>Ladebefehle, die beschädigt sind oder aus der Datei hinausführen</translation>
  </message>
  <message id="FOUND_MAC_APP">
    <source>an app for the Mac</source>
    <translation>eine App für den Mac</translation>
  </message>
  <message id="FOUND_SIMULATOR_SLICE">
    <source>a slice for the simulator: [A]</source>
    <translation>ein Teil für den Simulator: [A]</translation>
  </message>
  <message id="FOUND_NOT_ALIGNED">
    <source>[A] of [B] does not begin at a page</source>
    <translation>[A] von [B] beginnt nicht an einer Seitengrenze</translation>
  </message>
  <message id="FOUND_BEFORE_XCODE_16">
    <source>built with Xcode before 16</source>
    <translation>mit Xcode vor 16 gebaut</translation>
  </message>
  <message id="FOUND_NO_XCODE">
    <source>the Info.plist does not name the Xcode</source>
    <translation>die Info.plist nennt kein Xcode</translation>
  </message>
  <message id="FOUND_BITCODE">
    <source>a segment __LLVM for [A]</source>
    <translation>ein Segment __LLVM für [A]</translation>
  </message>
  <message id="FOUND_NO_BINARY">
    <source>the app's binary cannot be read</source>
    <translation>das Programm der App ist nicht lesbar</translation>
  </message>
  <message id="FOUND_NO_ENCRYPTION_INFO">
    <source>[A] has no LC_ENCRYPTION_INFO</source>
    <translation>[A] hat kein LC_ENCRYPTION_INFO</translation>
  </message>
  <message id="FOUND_ENCIPHERED">
    <source>[A] is enciphered already</source>
    <translation>[A] ist bereits verschlüsselt</translation>
  </message>
  <message id="FOUND_WEB_VIEW">
    <source>imports the class UIWebView</source>
    <translation>importiert die Klasse UIWebView</translation>
  </message>
  <message id="FOUND_NO_MINIMUM">
    <source>no MinimumOSVersion</source>
    <translation>keine MinimumOSVersion</translation>
  </message>
  <message id="FOUND_MINIMUM_IS">
    <source>MinimumOSVersion is [A]</source>
    <translation>MinimumOSVersion ist [A]</translation>
  </message>
  <message id="FOUND_NO_FRAMEWORK">
    <source>there is no framework</source>
    <translation>es gibt kein Framework</translation>
  </message>
  <message id="FOUND_BUILT_OTHERWISE">
    <source>is built for [A], its Info.plist says [B]</source>
    <translation>ist für [A] gebaut, seine Info.plist sagt [B]</translation>
  </message>
  <message id="FOUND_BUILT_FOR_NEWER">
    <source>is built for [A], the app for [B]</source>
    <translation>ist für [A] gebaut, die App für [B]</translation>
  </message>
  <message id="FOUND_STATIC_LIBRARY">
    <source>a static library</source>
    <translation>eine statische Bibliothek</translation>
  </message>
  <message id="FOUND_FILE_TYPE">
    <source>its type is "[A]"</source>
    <translation>seine Art ist „[A]“</translation>
  </message>
  <message id="FOUND_NO_SWIFT_ENTRY">
    <source>[A] has no section __swift5_entry</source>
    <translation>[A] hat keinen Abschnitt __swift5_entry</translation>
  </message>
  <message id="FOUND_NO_SUCH_EXTENSION">
    <source>there is no extension of that kind</source>
    <translation>es gibt keine Erweiterung dieser Art</translation>
  </message>
  <message id="FOUND_LOOSE_CODE">
    <source>code outside of a bundle of its own</source>
    <translation>Code außerhalb eines eigenen Bundles</translation>
  </message>
  <message id="FOUND_MAC_LAYOUT">
    <source>a framework laid out as on the Mac</source>
    <translation>ein Framework, das wie auf dem Mac angeordnet ist</translation>
  </message>
  <message id="FOUND_NESTED_FRAMEWORKS">
    <source>a folder of frameworks inside of nested code</source>
    <translation>ein Ordner mit Frameworks in innerem Code</translation>
  </message>
  <message id="FOUND_NO_STORE_ARCHIVE">
    <source>no archive for the store</source>
    <translation>kein Archiv für den Store</translation>
  </message>
  <message id="FOUND_NO_SWIFT_SUPPORT">
    <source>SwiftSupport/iphoneos/[A] is not there</source>
    <translation>SwiftSupport/iphoneos/[A] ist nicht da</translation>
  </message>
  <message id="FOUND_NO_SWIFT_LIBRARIES">
    <source>it brings no libraries of Swift</source>
    <translation>es bringt keine Bibliotheken von Swift mit</translation>
  </message>
  <message id="FOUND_INFO_UNREADABLE">
    <source>the Info.plist cannot be read</source>
    <translation>die Info.plist ist nicht lesbar</translation>
  </message>
  <message id="FOUND_ICON_NAMES">
    <source>the icon files' names do not tell their sizes</source>
    <translation>die Namen der Icon-Dateien verraten ihre Größen nicht</translation>
  </message>
  <message id="FOUND_NO_ICON">
    <source>no [A] icon of [B] by [B] pixels, neither in the catalog nor as a file</source>
    <translation>kein Icon für [A] von [B] mal [B] Pixeln, weder im Katalog noch als Datei</translation>
  </message>
  <message id="FOUND_NO_PHONE">
    <source>no app for the iPhone</source>
    <translation>keine App für das iPhone</translation>
  </message>
  <message id="FOUND_BEFORE_IOS_7">
    <source>it also runs before iOS 7</source>
    <translation>sie läuft auch vor iOS 7</translation>
  </message>
  <message id="FOUND_NO_PAD">
    <source>no app for the iPad</source>
    <translation>keine App für das iPad</translation>
  </message>
  <message id="FOUND_BEFORE_IOS_11">
    <source>built with an SDK before iOS 11</source>
    <translation>mit einem SDK vor iOS 11 gebaut</translation>
  </message>
  <message id="FOUND_NO_CATALOG">
    <source>there is no asset catalog, and so no large icon in one</source>
    <translation>es gibt keinen Katalog und damit kein großes Icon darin</translation>
  </message>
  <message id="FOUND_NO_LARGE_ICON">
    <source>no icon of 1024 by 1024 pixels</source>
    <translation>kein Icon von 1024 mal 1024 Pixeln</translation>
  </message>
  <message id="FOUND_NO_ICON_NAME">
    <source>no CFBundleIconName, neither in CFBundleIcons nor by itself</source>
    <translation>kein CFBundleIconName, weder in CFBundleIcons noch für sich</translation>
  </message>
  <message id="FOUND_UNKNOWN_ICON_NAME">
    <source>CFBundleIconName is "[A]", which the catalog does not hold</source>
    <translation>CFBundleIconName ist „[A]“, was der Katalog nicht enthält</translation>
  </message>
  <message id="FOUND_TRANSLUCENT">
    <source>"[A]" for [B] has transparent pixels or an alpha channel</source>
    <translation>„[A]“ für [B] hat durchsichtige Pixel oder einen Alphakanal</translation>
  </message>
  <message id="FOUND_NO_LARGE_IN_CATALOG">
    <source>there is no large icon in a catalog</source>
    <translation>in keinem Katalog ist ein großes Icon</translation>
  </message>
  <message id="FOUND_WHOLE_SCREEN">
    <source>it asks for the whole screen, or is for no iPad with multitasking</source>
    <translation>sie verlangt den ganzen Bildschirm oder ist nicht für ein iPad mit Multitasking</translation>
  </message>
  <message id="FOUND_LIST_LACKS">
    <source>[A] lacks [B]</source>
    <translation>in [A] fehlt [B]</translation>
  </message>
  <message id="FOUND_NO_LAUNCH_SCREEN">
    <source>neither UILaunchStoryboardName nor UILaunchScreen</source>
    <translation>weder UILaunchStoryboardName noch UILaunchScreen</translation>
  </message>
  <message id="FOUND_NONE_READABLE">
    <source>there is none that can be read</source>
    <translation>es gibt keine lesbare</translation>
  </message>
  <message id="FOUND_PACKAGE_TYPE">
    <source>CFBundlePackageType is "[A]"</source>
    <translation>CFBundlePackageType ist „[A]“</translation>
  </message>
  <message id="FOUND_NOT_ANNOUNCED">
    <source>not announced on that day</source>
    <translation>an diesem Tag nicht angekündigt</translation>
  </message>
  <message id="FOUND_INFO_NO_MINIMUM">
    <source>the Info.plist names no MinimumOSVersion</source>
    <translation>die Info.plist nennt keine MinimumOSVersion</translation>
  </message>
  <message id="FOUND_NO_VERSION">
    <source>no CFBundleShortVersionString</source>
    <translation>keine CFBundleShortVersionString</translation>
  </message>
  <message id="FOUND_VERSION_IS">
    <source>CFBundleShortVersionString is "[A]"</source>
    <translation>CFBundleShortVersionString ist „[A]“</translation>
  </message>
  <message id="FOUND_NO_BUILD">
    <source>no CFBundleVersion</source>
    <translation>keine CFBundleVersion</translation>
  </message>
  <message id="FOUND_BUILD_IS">
    <source>CFBundleVersion is "[A]"</source>
    <translation>CFBundleVersion ist „[A]“</translation>
  </message>
  <message id="FOUND_OTHER_VERSION">
    <source>[A] is "[B]", the app's is "[C]"</source>
    <translation>[A] ist „[B]“, die der App „[C]“</translation>
  </message>
  <message id="FOUND_NO_EXTENSION">
    <source>there is no extension</source>
    <translation>es gibt keine Erweiterung</translation>
  </message>
  <message id="FOUND_IDENTIFIER_TWICE">
    <source>"[A]" is the identifier of [B], too</source>
    <translation>„[A]“ ist auch die Kennung von [B]</translation>
  </message>
  <message id="FOUND_NO_IDENTIFIER">
    <source>the app has no identifier</source>
    <translation>die App hat keine Kennung</translation>
  </message>
  <message id="FOUND_IDENTIFIER_OUTSIDE">
    <source>CFBundleIdentifier is "[A]", not "[B].…"</source>
    <translation>CFBundleIdentifier ist „[A]“, nicht „[B].…“</translation>
  </message>
  <message id="FOUND_NO_NESTED_APP">
    <source>there is neither an extension nor a watch app</source>
    <translation>es gibt weder eine Erweiterung noch eine Watch-App</translation>
  </message>
  <message id="FOUND_OLDER_DEVICES">
    <source>it has code for older devices, or runs only on systems without them</source>
    <translation>sie hat Code für ältere Geräte oder läuft nur auf Systemen ohne solche</translation>
  </message>
  <message id="FOUND_NO_ARM64">
    <source>only 64-bit code, but no arm64 in UIRequiredDeviceCapabilities</source>
    <translation>nur 64-Bit-Code, aber kein arm64 in UIRequiredDeviceCapabilities</translation>
  </message>
  <message id="FOUND_NO_EXPORT_KEY">
    <source>no ITSAppUsesNonExemptEncryption</source>
    <translation>kein ITSAppUsesNonExemptEncryption</translation>
  </message>
  <message id="FOUND_NO_PROCESSING">
    <source>it does no processing in the background</source>
    <translation>sie verarbeitet nichts im Hintergrund</translation>
  </message>
  <message id="FOUND_NO_TASKS">
    <source>UIBackgroundModes holds "processing", but no task identifiers are listed</source>
    <translation>UIBackgroundModes enthält „processing“, aber es sind keine Aufgabenkennungen genannt</translation>
  </message>
  <message id="FOUND_ARBITRARY_LOADS">
    <source>NSAllowsArbitraryLoads is true</source>
    <translation>NSAllowsArbitraryLoads ist wahr</translation>
  </message>
  <message id="FOUND_NO_FACEBOOK">
    <source>it names no Facebook app</source>
    <translation>sie nennt keine Facebook-App</translation>
  </message>
  <message id="FOUND_NO_FACEBOOK_SCHEME">
    <source>FacebookAppID is [A], but no URL scheme is fb[A]</source>
    <translation>FacebookAppID ist [A], aber kein URL-Schema ist fb[A]</translation>
  </message>
  <message id="FOUND_ONE_LANGUAGE">
    <source>there are not two languages to compare</source>
    <translation>es gibt keine zwei Sprachen zum Vergleichen</translation>
  </message>
  <message id="FOUND_LACKS">
    <source>lacks [A]</source>
    <translation>es fehlt [A]</translation>
  </message>
  <message id="FOUND_NOT_PACKED">
    <source>the package is not packed</source>
    <translation>das Paket ist nicht gepackt</translation>
  </message>
  <message id="FOUND_PACKED_SIZE">
    <source>[A] MB packed</source>
    <translation>[A] MB gepackt</translation>
  </message>
  <message id="FOUND_NO_PURPOSE">
    <source>no [A], and [B] imports the class [C]</source>
    <translation>kein [A], und [B] importiert die Klasse [C]</translation>
  </message>
  <message id="FOUND_EMPTY_KEY">
    <source>[A] is empty</source>
    <translation>[A] ist leer</translation>
  </message>
  <message id="FOUND_NO_PHONE_PAD_OR_TV">
    <source>no app for iPhone, iPad or TV</source>
    <translation>keine App für iPhone, iPad oder TV</translation>
  </message>
  <message id="FOUND_NO_REASON">
    <source>uses [A], and no manifest gives a reason for [B]</source>
    <translation>verwendet [A], und kein Manifest gibt einen Grund für [B] an</translation>
  </message>
  <message id="FOUND_UNREADABLE">
    <source>cannot be read</source>
    <translation>ist nicht lesbar</translation>
  </message>
  <message id="FOUND_SEAL_TOO_LARGE">
    <source>is larger than any seal that can be compared</source>
    <translation>ist größer als jedes Siegel, das verglichen werden kann</translation>
  </message>
  <message id="FOUND_TOO_LARGE">
    <source>is too large to be read</source>
    <translation>ist zu groß, um gelesen zu werden</translation>
  </message>
  <message id="FOUND_MORE_DIFFER">
    <source>[A] more files differ</source>
    <translation>[A] weitere Dateien weichen ab</translation>
  </message>
  <message id="FOUND_MORE_MISSING">
    <source>more files are missing; the comparison ends here</source>
    <translation>weitere Dateien fehlen; der Vergleich endet hier</translation>
  </message>
  <message id="FOUND_CATALOG_CUT_OFF">
    <source>the asset catalog is damaged, or too large to be read completely</source>
    <translation>der Asset-Katalog ist beschädigt oder zu groß, um ihn ganz zu lesen</translation>
  </message>
  <message id="FOUND_NO_MANIFEST">
    <source>there is no privacy manifest</source>
    <translation>es gibt kein Datenschutzmanifest</translation>
  </message>
  <message id="FOUND_NO_PRIVACY_FILE">
    <source>has no PrivacyInfo.xcprivacy</source>
    <translation>hat keine PrivacyInfo.xcprivacy</translation>
  </message>
  <message id="FOUND_NO_LISTED_KIT">
    <source>it brings none of the kits that are listed</source>
    <translation>es bringt keines der gelisteten Kits mit</translation>
  </message>
  <message id="FOUND_APP_NOT_SIGNED">
    <source>the app is not signed</source>
    <translation>die App ist nicht signiert</translation>
  </message>
  <message id="FOUND_NO_PROFILE">
    <source>there is no provisioning profile that can be read</source>
    <translation>es gibt kein lesbares Bereitstellungsprofil</translation>
  </message>
  <message id="FOUND_SIGNATURE_DAMAGED">
    <source>the signature is damaged</source>
    <translation>die Signatur ist beschädigt</translation>
  </message>
  <message id="FOUND_SIGNATURE_NESTED">
    <source>a signature inside a signature</source>
    <translation>eine Signatur in einer Signatur</translation>
  </message>
  <message id="FOUND_SIGNATURE_EMPTY">
    <source>the signature does not say what was signed</source>
    <translation>die Signatur sagt nicht, was signiert wurde</translation>
  </message>
  <message id="FOUND_UNKNOWN_DIGEST">
    <source>hashes of an unknown kind</source>
    <translation>Prüfsummen unbekannter Art</translation>
  </message>
  <message id="FOUND_CODE_CHANGED">
    <source>the code was changed after it was signed</source>
    <translation>der Code wurde nach dem Signieren geändert</translation>
  </message>
  <message id="FOUND_CODE_NOT_COVERED">
    <source>part of the code is not covered by the signature</source>
    <translation>ein Teil des Codes ist nicht von der Signatur gedeckt</translation>
  </message>
  <message id="FOUND_REQUIREMENTS_CHANGED">
    <source>the requirements were changed after they were signed</source>
    <translation>die Anforderungen wurden nach dem Signieren geändert</translation>
  </message>
  <message id="FOUND_ENTITLEMENTS_CHANGED">
    <source>the entitlements were changed after they were signed</source>
    <translation>die Berechtigungen wurden nach dem Signieren geändert</translation>
  </message>
  <message id="FOUND_DER_CHANGED">
    <source>the entitlements' second form was changed after it was signed</source>
    <translation>die zweite Form der Berechtigungen wurde nach dem Signieren geändert</translation>
  </message>
  <message id="FOUND_FORMS_DIFFER">
    <source>the two forms of the entitlements say different things</source>
    <translation>die zwei Formen der Berechtigungen sagen Verschiedenes</translation>
  </message>
  <message id="FOUND_ENTITLEMENTS_UNREADABLE">
    <source>the entitlements cannot be read</source>
    <translation>die Berechtigungen sind nicht lesbar</translation>
  </message>
  <message id="FOUND_MESSAGE_UNREADABLE">
    <source>the signature's message cannot be read</source>
    <translation>die Nachricht der Signatur ist nicht lesbar</translation>
  </message>
  <message id="FOUND_NO_CERTIFICATE">
    <source>the signer's certificate is not there</source>
    <translation>das Zertifikat des Unterzeichners ist nicht da</translation>
  </message>
  <message id="FOUND_OTHER_CODE">
    <source>the signature is about other code</source>
    <translation>die Signatur gilt anderem Code</translation>
  </message>
  <message id="FOUND_OTHER_KEY">
    <source>not signed with the certificate's key</source>
    <translation>nicht mit dem Schlüssel des Zertifikats signiert</translation>
  </message>
  <message id="FOUND_OTHER_DIRECTORIES">
    <source>the signature is about other code directories</source>
    <translation>die Signatur gilt anderen Codeverzeichnissen</translation>
  </message>
  <message id="FOUND_OUTSIDE_VALIDITY">
    <source>signed when the certificate was not valid</source>
    <translation>signiert, als das Zertifikat nicht gültig war</translation>
  </message>
  <message id="FOUND_NOT_SIGNED">
    <source>is not signed</source>
    <translation>ist nicht signiert</translation>
  </message>
  <message id="FOUND_AD_HOC">
    <source>is signed by nobody (ad hoc)</source>
    <translation>ist von niemandem signiert (ad hoc)</translation>
  </message>
  <message id="FOUND_NOTHING_SIGNED">
    <source>nothing is signed</source>
    <translation>nichts ist signiert</translation>
  </message>
  <message id="FOUND_CHANGED">
    <source>was changed after signing</source>
    <translation>wurde nach dem Signieren geändert</translation>
  </message>
  <message id="FOUND_SEALED_MISSING">
    <source>was sealed, but is not there</source>
    <translation>war versiegelt, ist aber nicht da</translation>
  </message>
  <message id="FOUND_NOT_SEALED">
    <source>is there, but was not sealed</source>
    <translation>ist da, war aber nicht versiegelt</translation>
  </message>
  <message id="FOUND_SIGNED_BY">
    <source>signed by "[A]"</source>
    <translation>signiert von „[A]“</translation>
  </message>
  <message id="FOUND_CERTIFICATE_ENDED">
    <source>the certificate was valid until [A]</source>
    <translation>das Zertifikat galt bis [A]</translation>
  </message>
  <message id="FOUND_CERTIFICATE_NOT_IN_PROFILE">
    <source>does not hold the certificate of "[A]"</source>
    <translation>enthält nicht das Zertifikat von „[A]“</translation>
  </message>
  <message id="FOUND_NO_SIGNED_BUNDLE">
    <source>there is no signed bundle with a profile</source>
    <translation>es gibt kein signiertes Bundle mit einem Profil</translation>
  </message>
  <message id="FOUND_PROFILE_KIND">
    <source>a profile [A]</source>
    <translation>ein Profil [A]</translation>
  </message>
  <message id="FOUND_PROFILE_ENDED">
    <source>ended on [A]</source>
    <translation>lief am [A] ab</translation>
  </message>
  <message id="FOUND_PROFILE_FOR">
    <source>is for [A], the bundle is [B]</source>
    <translation>gilt für [A], das Bundle ist [B]</translation>
  </message>
  <message id="FOUND_TEAM_SIGNED">
    <source>is signed for the team [A], the profile is of [B]</source>
    <translation>ist für das Team [A] signiert, das Profil ist von [B]</translation>
  </message>
  <message id="FOUND_TEAM_CERTIFICATE">
    <source>the certificate is of the team [A], the profile of [B]</source>
    <translation>das Zertifikat ist vom Team [A], das Profil von [B]</translation>
  </message>
  <message id="FOUND_NOT_GRANTED">
    <source>claims [A], which the profile does not grant</source>
    <translation>beansprucht [A], was das Profil nicht gewährt</translation>
  </message>
  <message id="FOUND_DEBUGGABLE">
    <source>get-task-allow is true</source>
    <translation>get-task-allow ist wahr</translation>
  </message>
  <message id="FOUND_NO_PUSH">
    <source>sends registerForRemoteNotifications, but has no entitlement aps-environment</source>
    <translation>sendet registerForRemoteNotifications, hat aber keine Berechtigung aps-environment</translation>
  </message>
  <message id="FOUND_UNKNOWN_TYPE">
    <source>unknown NSPrivacyAccessedAPIType "[A]"</source>
    <translation>unbekannter NSPrivacyAccessedAPIType „[A]“</translation>
  </message>
  <message id="FOUND_NO_REASON_FOR">
    <source>no reason for [A]</source>
    <translation>kein Grund für [A]</translation>
  </message>
  <message id="FOUND_UNKNOWN_REASON">
    <source>unknown reason "[A]" for [B]</source>
    <translation>unbekannter Grund „[A]“ für [B]</translation>
  </message>
  <message id="FOUND_UNKNOWN_KEY">
    <source>unknown key "[A]"</source>
    <translation>unbekannter Schlüssel „[A]“</translation>
  </message>
  <message id="FOUND_TRACKING_NO_BOOLEAN">
    <source>NSPrivacyTracking is no boolean</source>
    <translation>NSPrivacyTracking ist kein Wahrheitswert</translation>
  </message>
  <message id="FOUND_TYPE_MISSING">
    <source>a collected data type without NSPrivacyCollectedDataType</source>
    <translation>eine gesammelte Datenart ohne NSPrivacyCollectedDataType</translation>
  </message>
  <message id="FOUND_NO_PURPOSES">
    <source>no purposes for [A]</source>
    <translation>keine Zwecke für [A]</translation>
  </message>
  <message id="FOUND_TRACKING_EMPTY">
    <source>NSPrivacyTracking is true, but there are neither domains nor data types</source>
    <translation>NSPrivacyTracking ist wahr, aber es gibt weder Domains noch Datenarten</translation>
  </message>
  <message id="VALIDATER_NO_PACKAGE_ADVICE">
    <source>An app package is a zip archive that holds the app as a folder NAME.app in its Payload folder. Please choose another file, or export the app again.</source>
    <translation>Ein App-Paket ist ein Zip-Archiv, das die App als Ordner NAME.app in seinem Ordner Payload enthält. Bitte eine andere Datei wählen oder die App neu exportieren.</translation>
  </message>
  <message id="VALIDATER_FOUND_NOTHING">
    <source>There is no file of this name any more.</source>
    <translation>Eine Datei dieses Namens gibt es nicht mehr.</translation>
  </message>
  <message id="VALIDATER_FOUND_FOLDER">
    <source>It is a folder, not a file.</source>
    <translation>Es ist ein Ordner, keine Datei.</translation>
  </message>
  <message id="VALIDATER_FOUND_DEVICE">
    <source>It is no ordinary file but a pipe, a socket or a device.</source>
    <translation>Es ist keine gewöhnliche Datei, sondern eine Pipe, ein Socket oder ein Gerät.</translation>
  </message>
  <message id="VALIDATER_FOUND_UNREADABLE">
    <source>The system does not allow this file to be read.</source>
    <translation>Das System erlaubt nicht, diese Datei zu lesen.</translation>
  </message>
  <message id="VALIDATER_FOUND_EMPTY_FILE">
    <source>The file is empty.</source>
    <translation>Die Datei ist leer.</translation>
  </message>
  <message id="VALIDATER_FOUND_TEXT">
    <source>The file is a text.</source>
    <translation>Die Datei ist ein Text.</translation>
  </message>
  <message id="VALIDATER_FOUND_PICTURE">
    <source>The file is a picture.</source>
    <translation>Die Datei ist ein Bild.</translation>
  </message>
  <message id="VALIDATER_FOUND_DOCUMENT">
    <source>The file is a PDF document.</source>
    <translation>Die Datei ist ein PDF-Dokument.</translation>
  </message>
  <message id="VALIDATER_FOUND_OTHER_ARCHIVE">
    <source>The file is an archive of another kind than zip.</source>
    <translation>Die Datei ist ein Archiv anderer Art als Zip.</translation>
  </message>
  <message id="VALIDATER_FOUND_BROKEN_ARCHIVE">
    <source>The file begins like a zip archive, but its list of contents is missing or damaged. The download or copy may have broken off.</source>
    <translation>Die Datei beginnt wie ein Zip-Archiv, doch ihr Inhaltsverzeichnis fehlt oder ist beschädigt. Vielleicht ist der Download oder das Kopieren abgebrochen.</translation>
  </message>
  <message id="VALIDATER_FOUND_EMPTY_ARCHIVE">
    <source>The file is a zip archive without any content.</source>
    <translation>Die Datei ist ein Zip-Archiv ohne Inhalt.</translation>
  </message>
  <message id="VALIDATER_FOUND_NO_PAYLOAD">
    <source>The file is a zip archive without a Payload folder. It holds: [NAMES]</source>
    <translation>Die Datei ist ein Zip-Archiv ohne Ordner Payload. Sie enthält: [NAMES]</translation>
  </message>
  <message id="VALIDATER_FOUND_OTHER_PAYLOAD">
    <source>The file is a zip archive whose Payload folder holds no app, but: [NAMES]</source>
    <translation>Die Datei ist ein Zip-Archiv, dessen Ordner Payload keine App enthält, sondern: [NAMES]</translation>
  </message>
  <message id="VALIDATER_FOUND_EMPTY_PAYLOAD">
    <source>The file is a zip archive whose Payload folder is empty.</source>
    <translation>Die Datei ist ein Zip-Archiv, dessen Ordner Payload leer ist.</translation>
  </message>
  <message id="VALIDATER_FOUND_MORE">
    <source> and [COUNT] more</source>
    <translation> und [COUNT] weitere</translation>
  </message>
  <message id="VALIDATER_FOUND_DATA">
    <source>The file holds data that is neither an archive nor a text nor a picture.</source>
    <translation>Die Datei enthält Daten, die weder Archiv noch Text noch Bild sind.</translation>
  </message>
  <message id="VALIDATER_NOTE_CUT">
    <source>The package could not be read to its end. What was read until then is shown.</source>
    <translation>Das Paket ließ sich nicht zu Ende lesen. Gezeigt wird, was bis dahin gelesen wurde.</translation>
  </message>
  <message id="VALIDATER_NOTE_DAMAGED">
    <source>Damaged or protected by a password: [COUNT] of its files, the first one [FILE].</source>
    <translation>Beschädigt oder durch ein Passwort geschützt: [COUNT] seiner Dateien, die erste [FILE].</translation>
  </message>
  <message id="VALIDATER_NOTE_NO_LIST">
    <source>The app’s Info.plist is missing or cannot be read, so nothing says which icons and launch images it needs.</source>
    <translation>Die Info.plist der App fehlt oder ist nicht lesbar; nichts sagt also, welche Icons und Startbilder sie braucht.</translation>
  </message>
  <message id="VALIDATER_BOX_TIP">
    <source>Click to see what was found</source>
    <translation>Klicken, um zu sehen, was gefunden wurde</translation>
  </message>
  <message id="VALIDATER_REASON_ICONS">
    <source>Missing, in pixels:</source>
    <translation>Es fehlen, in Pixeln:</translation>
  </message>
  <message id="VALIDATER_REASON_LAUNCH">
    <source>There is none of these sizes, in pixels:</source>
    <translation>Keine dieser Größen ist da, in Pixeln:</translation>
  </message>
  <message id="VALIDATER_REASON_BUNDLE_ID">
    <source>The provisioning profile does not name [ID].</source>
    <translation>Das Bereitstellungsprofil nennt [ID] nicht.</translation>
  </message>
  <message id="VALIDATER_REASON_NO_BUNDLE_ID">
    <source>The app has no bundle identifier.</source>
    <translation>Die App hat keine Bundle-ID.</translation>
  </message>
  <message id="VALIDATER_REASON_NO_PROFILE">
    <source>The package has no readable provisioning profile.</source>
    <translation>Das Paket hat kein lesbares Bereitstellungsprofil.</translation>
  </message>
  <message id="VALIDATER_REASON_LOCALIZATIONS">
    <source>The app has no folder of a language (.lproj).</source>
    <translation>Die App hat keinen Ordner einer Sprache (.lproj).</translation>
  </message>

  <!-- Menus -->
  <message id="MENU_FILE">
    <source>&amp;File</source>
    <translation>&amp;Datei</translation>
  </message>
  <message id="MENU_OPEN">
    <source>&amp;Open…</source>
    <translation>Ö&amp;ffnen …</translation>
  </message>
  <message id="MENU_SHOW_WINDOW">
    <source>&amp;Show window</source>
    <translation>Fenster an&amp;zeigen</translation>
  </message>
  <message id="MENU_CLOSE_WINDOW">
    <source>&amp;Close window</source>
    <translation>Fenster &amp;schließen</translation>
  </message>
  <message id="MENU_QUIT">
    <source>&amp;Quit Lumora</source>
    <translation>Lumora &amp;beenden</translation>
  </message>
  <message id="MENU_EDIT">
    <source>&amp;Edit</source>
    <translation>&amp;Bearbeiten</translation>
  </message>
  <message id="MENU_CUT">
    <source>Cu&amp;t</source>
    <translation>&amp;Ausschneiden</translation>
  </message>
  <message id="MENU_COPY">
    <source>&amp;Copy</source>
    <translation>&amp;Kopieren</translation>
  </message>
  <message id="MENU_PASTE">
    <source>&amp;Paste</source>
    <translation>&amp;Einfügen</translation>
  </message>
  <message id="MENU_SELECT_ALL">
    <source>Select &amp;all</source>
    <translation>A&amp;lles auswählen</translation>
  </message>
  <message id="MENU_TOOLS">
    <source>&amp;Tools</source>
    <translation>&amp;Werkzeuge</translation>
  </message>
  <message id="MENU_HELP">
    <source>&amp;Help</source>
    <translation>&amp;Hilfe</translation>
  </message>
  <message id="MENU_TOOL_HELP">
    <source>&amp;Help on this tool</source>
    <translation>&amp;Hilfe zu diesem Werkzeug</translation>
  </message>
  <message id="MENU_ABOUT">
    <source>&amp;About Lumora</source>
    <translation>Ü&amp;ber Lumora</translation>
  </message>

  <!-- File choosers: names of file kinds -->
  <message id="FILTER_PNG">
    <source>PNG pictures</source>
    <translation>PNG-Bilder</translation>
  </message>
  <message id="FILTER_IPA">
    <source>iOS app packages</source>
    <translation>iOS-App-Pakete</translation>
  </message>

  <!-- Accessible names and tool tips of controls without a text of their own -->
  <message id="ACCESSIBLE_CLOSE">
    <source>Close window</source>
    <translation>Fenster schließen</translation>
  </message>
  <message id="ACCESSIBLE_SIDES">
    <source>Side of this tool</source>
    <translation>Seite dieses Werkzeugs</translation>
  </message>
  <message id="ACCESSIBLE_MINIMIZE">
    <source>Minimize window</source>
    <translation>Fenster minimieren</translation>
  </message>
  <message id="ACCESSIBLE_ZOOM">
    <source>Zoom window</source>
    <translation>Fenster zoomen</translation>
  </message>
  <message id="ACCESSIBLE_FULLSCREEN">
    <source>Enter full screen</source>
    <translation>Vollbild einschalten</translation>
  </message>
  <message id="ACCESSIBLE_EXIT_FULLSCREEN">
    <source>Leave full screen</source>
    <translation>Vollbild verlassen</translation>
  </message>
  <message id="ACCESSIBLE_SIDEBAR">
    <source>Tools</source>
    <translation>Werkzeuge</translation>
  </message>
  <message id="ACCESSIBLE_JOB_ENDED">
    <source>Finished while you were elsewhere</source>
    <translation>Fertig geworden, während Sie woanders waren</translation>
  </message>
  <message id="ACCESSIBLE_HELP">
    <source>Help on this tool</source>
    <translation>Hilfe zu diesem Werkzeug</translation>
  </message>
  <message id="ACCESSIBLE_ABOUT">
    <source>About Lumora</source>
    <translation>Über Lumora</translation>
  </message>
  <message id="ACCESSIBLE_ICONS_DROP">
    <source>Drop area for the source icon</source>
    <translation>Ablagefläche für das Ausgangs-Icon</translation>
  </message>
  <message id="ACCESSIBLE_ICONS_SOURCE">
    <source>Source icon</source>
    <translation>Ausgangs-Icon</translation>
  </message>
  <message id="ACCESSIBLE_ICONS_PREVIEW">
    <source>Preview at [SIZE] pixels</source>
    <translation>Vorschau mit [SIZE] Pixeln</translation>
  </message>
  <message id="ACCESSIBLE_SNIPPET_PLATFORM">
    <source>Platform of the code snippet</source>
    <translation>Plattform des Code-Schnipsels</translation>
  </message>
  <message id="ACCESSIBLE_SNIPPET">
    <source>Code snippet</source>
    <translation>Code-Schnipsel</translation>
  </message>
  <message id="ACCESSIBLE_RESIZER_DROP">
    <source>Drop area for double-resolution pictures</source>
    <translation>Ablagefläche für Bilder in doppelter Auflösung</translation>
  </message>
  <message id="ACCESSIBLE_RESIZER_PROGRESS">
    <source>Progress of the down-scaling</source>
    <translation>Fortschritt der Verkleinerung</translation>
  </message>
  <message id="ACCESSIBLE_COLOR_FIELD">
    <source>Color code</source>
    <translation>Farbcode</translation>
  </message>
  <message id="ACCESSIBLE_COLOR_WELL">
    <source>Color well, opens the color picker</source>
    <translation>Farbfeld, öffnet den Farbwähler</translation>
  </message>
  <message id="ACCESSIBLE_DEVICE_MATCH">
    <source>[DEVICE], meets the choice</source>
    <translation>[DEVICE], entspricht der Auswahl</translation>
  </message>
  <message id="ACCESSIBLE_DEVICE_NO_MATCH">
    <source>[DEVICE], does not meet the choice</source>
    <translation>[DEVICE], entspricht der Auswahl nicht</translation>
  </message>
  <message id="ACCESSIBLE_VALIDATER_DROP">
    <source>Drop area for an app package</source>
    <translation>Ablagefläche für ein App-Paket</translation>
  </message>
  <message id="ACCESSIBLE_VALIDATER_APP_ICON">
    <source>Icon of the app</source>
    <translation>Icon der App</translation>
  </message>
  <message id="ACCESSIBLE_VALIDATER_REPORT">
    <source>Report on [FILE]: [SUM]</source>
    <translation>Bericht über [FILE]: [SUM]</translation>
  </message>
  <message id="ACCESSIBLE_VALIDATER_PROGRESS">
    <source>Reading the package</source>
    <translation>Paket wird gelesen</translation>
  </message>
  <message id="ACCESSIBLE_CHECK_PASSED">
    <source>[CHECK]: passed</source>
    <translation>[CHECK]: bestanden</translation>
  </message>
  <message id="ACCESSIBLE_CHECK_FAILED">
    <source>[CHECK]: problems found</source>
    <translation>[CHECK]: Probleme gefunden</translation>
  </message>
  <message id="ACCESSIBLE_CHECK_ABSENT">
    <source>[CHECK]: not present</source>
    <translation>[CHECK]: nicht vorhanden</translation>
  </message>


  <!-- The command line -->
  <message id="CLI_OR">
    <source>or</source>
    <translation>oder</translation>
  </message>
  <message id="CLI_USAGE">
    <source>Usage</source>
    <translation>Aufruf</translation>
  </message>
  <message id="CLI_OPTION_WORD">
    <source>OPTION</source>
    <translation>OPTION</translation>
  </message>
  <message id="CLI_PROGRAM_USAGE">
    <source>lumora COMMAND [ARGUMENT]...</source>
    <translation>lumora BEFEHL [ARGUMENT]...</translation>
  </message>
  <message id="CLI_PROGRAM_ABOUT">
    <source>Icons, placeholders, down-scaling, color codes, devices and app package checks for people who make apps. Without a command the window opens, with the given files if there are any.</source>
    <translation>Icons, Platzhalter, Verkleinern, Farbcodes, Geräte und App-Paket-Prüfung für alle, die Apps machen. Ohne Befehl öffnet sich das Fenster, mit den angegebenen Dateien, falls es welche gibt.</translation>
  </message>
  <message id="CLI_COMMANDS">
    <source>Commands</source>
    <translation>Befehle</translation>
  </message>
  <message id="CLI_WINDOW">
    <source>Window</source>
    <translation>Fenster</translation>
  </message>
  <message id="CLI_OPERANDS">
    <source>What to work on</source>
    <translation>Womit</translation>
  </message>
  <message id="CLI_OPTIONS">
    <source>Options</source>
    <translation>Optionen</translation>
  </message>
  <message id="CLI_OUTPUT">
    <source>Where to write</source>
    <translation>Wohin</translation>
  </message>
  <message id="CLI_GENERAL">
    <source>General</source>
    <translation>Allgemein</translation>
  </message>
  <message id="CLI_EXAMPLES">
    <source>Examples</source>
    <translation>Beispiele</translation>
  </message>
  <message id="CLI_TOOL">
    <source>Open the window at one tool: [WORDS]</source>
    <translation>Das Fenster bei einem Werkzeug öffnen: [WORDS]</translation>
  </message>
  <message id="CLI_TODAY">
    <source>Open the window with what platforms want today, in the tools that have both</source>
    <translation>Das Fenster mit dem öffnen, was Plattformen heute verlangen, in den Werkzeugen mit beiden Seiten</translation>
  </message>
  <message id="CLI_JSON">
    <source>Print the result as JSON, failures included</source>
    <translation>Das Ergebnis als JSON ausgeben, auch Fehler</translation>
  </message>
  <message id="CLI_QUIET">
    <source>Print failures only (and JSON that is asked for)</source>
    <translation>Nur Fehler ausgeben (und verlangtes JSON)</translation>
  </message>
  <message id="CLI_VERBOSE">
    <source>Name each file on standard error, too</source>
    <translation>Jede Datei auch auf der Fehlerausgabe nennen</translation>
  </message>
  <message id="CLI_HELP">
    <source>Explain the program or a command</source>
    <translation>Das Programm oder einen Befehl erklären</translation>
  </message>
  <message id="CLI_VERSION">
    <source>Print the version</source>
    <translation>Die Version ausgeben</translation>
  </message>
  <message id="CLI_ICONS_ABOUT">
    <source>Write every icon of whole platforms from one picture</source>
    <translation>Alle Icons ganzer Plattformen aus einem Bild schreiben</translation>
  </message>
  <message id="CLI_ICON_ABOUT">
    <source>Write icons of sizes of your own</source>
    <translation>Icons in eigenen Größen schreiben</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_ABOUT">
    <source>Write placeholder pictures labeled with their size</source>
    <translation>Platzhalterbilder mit ihrer Größe als Aufschrift schreiben</translation>
  </message>
  <message id="CLI_DOWNSCALE_ABOUT">
    <source>Scale retina pictures down to smaller densities</source>
    <translation>Retina-Bilder auf kleinere Auflösungen verkleinern</translation>
  </message>
  <message id="CLI_COLOR_ABOUT">
    <source>Print a color as code</source>
    <translation>Eine Farbe als Code ausgeben</translation>
  </message>
  <message id="CLI_DEVICES_ABOUT">
    <source>List the iPhones, iPods and iPads that can run an app</source>
    <translation>Die iPhones, iPods und iPads nennen, auf denen eine App läuft</translation>
  </message>
  <message id="CLI_VALIDATE_ABOUT">
    <source>Read iOS app packages and check what is in them</source>
    <translation>iOS-App-Pakete lesen und ihren Inhalt prüfen</translation>
  </message>
  <message id="CLI_ICON_SOURCE">
    <source>Picture of 1024 x 1024 pixels (PNG, JPEG, TIFF, WebP, BMP, GIF or ICNS), or - for standard input</source>
    <translation>Bild mit 1024 x 1024 Pixeln (PNG, JPEG, TIFF, WebP, BMP, GIF oder ICNS) oder - für die Standardeingabe</translation>
  </message>
  <message id="CLI_ICONS_SOURCE">
    <source>Picture of 1024 x 1024 pixels (PNG, JPEG, TIFF, WebP, BMP, GIF or ICNS), for today's platforms a square SVG drawing, too, or - for standard input</source>
    <translation>Bild von 1024 x 1024 Pixeln (PNG, JPEG, TIFF, WebP, BMP, GIF oder ICNS), für die Plattformen von heute auch eine quadratische SVG-Zeichnung, oder - für die Standardeingabe</translation>
  </message>
  <message id="CLI_EXAMPLE">
    <source>Use the built-in picture in place of SOURCE</source>
    <translation>Das eingebaute Bild statt SOURCE nehmen</translation>
  </message>
  <message id="CLI_ICONS_PLATFORM">
    <source>Platforms, separated by commas: [WORDS]</source>
    <translation>Plattformen, durch Kommas getrennt: [WORDS]</translation>
  </message>
  <message id="CLI_ICONS_TO">
    <source>Make a fresh folder "icons" in DIR (icons_1 where that is taken)</source>
    <translation>Einen neuen Ordner "icons" in DIR anlegen (icons_1, wenn es ihn schon gibt)</translation>
  </message>
  <message id="CLI_ICONS_NAME">
    <source>The app's name: of the Linux files, the web manifest and the Icon Composer bundle (App without it)</source>
    <translation>Name der App: für die Linux-Dateien, das Web-Manifest und das Icon-Composer-Paket (sonst App)</translation>
  </message>
  <message id="CLI_ICONS_DARK">
    <source>Dark icon for iOS and Icon Composer</source>
    <translation>Dunkles Icon für iOS und Icon Composer</translation>
  </message>
  <message id="CLI_ICONS_TINTED">
    <source>Tinted icon for iOS and Icon Composer: shades of gray, opaque</source>
    <translation>Getöntes Icon für iOS und Icon Composer: Grautöne, deckend</translation>
  </message>
  <message id="CLI_ICONS_FOREGROUND">
    <source>Foreground of an adaptive icon, as large as its layer</source>
    <translation>Vordergrund eines adaptiven Icons, so groß wie dessen Ebene</translation>
  </message>
  <message id="CLI_ICONS_BACKGROUND">
    <source>Background of adaptive, maskable and layered icons</source>
    <translation>Hintergrund adaptiver, maskierbarer und geschichteter Icons</translation>
  </message>
  <message id="CLI_ICONS_MONOCHROME">
    <source>Monochrome icon: only its transparency counts</source>
    <translation>Einfarbiges Icon: nur seine Transparenz zählt</translation>
  </message>
  <message id="CLI_ICONS_LAYER">
    <source>Layer of a tvOS, visionOS or Icon Composer icon, two to five, the back one first</source>
    <translation>Ebene eines Icons für tvOS, visionOS oder Icon Composer, zwei bis fünf, die hinterste zuerst</translation>
  </message>
  <message id="CLI_ICONS_FLATTEN">
    <source>What lies below transparency where a store forbids it: #RRGGBB or a name</source>
    <translation>Was unter Transparenz liegt, wo ein Store sie verbietet: #RRGGBB oder ein Name</translation>
  </message>
  <message id="CLI_ICONS_FIT">
    <source>Take any square picture of at least 512 pixels; it is scaled to 1024 once</source>
    <translation>Jedes quadratische Bild ab 512 Pixeln nehmen; es wird einmal auf 1024 skaliert</translation>
  </message>
  <message id="CLI_ICONS_IOS_FORM">
    <source>Form of the iOS catalogue: [WORDS]</source>
    <translation>Form des iOS-Katalogs: [WORDS]</translation>
  </message>
  <message id="CLI_ICONS_MAC_FULL_BLEED">
    <source>Mac icons that fill their square, without the rounded body and its shadow</source>
    <translation>Mac-Icons, die ihr Quadrat füllen, ohne gerundeten Körper und Schatten</translation>
  </message>
  <message id="CLI_ICONS_INTO">
    <source>Write the icons of the projects in DIR in their places</source>
    <translation>Die Icons der Projekte in DIR an ihre Plätze schreiben</translation>
  </message>
  <message id="CLI_ICONS_DRY_RUN">
    <source>With --into: only list what would be written</source>
    <translation>Mit --into: nur auflisten, was geschrieben würde</translation>
  </message>
  <message id="CLI_ICONS_FLAVOR">
    <source>With --into: flavor of an Android or Flutter app</source>
    <translation>Mit --into: Variante (Flavor) einer Android- oder Flutter-App</translation>
  </message>
  <message id="CLI_ICONS_TARGET">
    <source>With --into: target or icon set of an Xcode project</source>
    <translation>Mit --into: Target oder Icon-Satz eines Xcode-Projekts</translation>
  </message>
  <message id="CLI_ICONS_CHECK">
    <source>Judge the icon catalogues and projects in DIR; needs no SOURCE</source>
    <translation>Die Icon-Kataloge und Projekte in DIR prüfen; braucht keine SOURCE</translation>
  </message>
  <message id="CLI_ICONS_WRONG_SIZE_ADVICE">
    <source>use a picture of exactly 1024 x 1024 pixels, or with --fit any square one of at least 512</source>
    <translation>ein Bild von genau 1024 x 1024 Pixeln nehmen oder mit --fit ein beliebiges quadratisches ab 512</translation>
  </message>
  <message id="ICONS_FITTED">
    <source>a picture of another size was scaled to 1024 x 1024</source>
    <translation>ein Bild anderer Größe wurde auf 1024 x 1024 skaliert</translation>
  </message>
  <message id="ICONS_NOT_DRAWN">
    <source>parts of an SVG file are not drawn</source>
    <translation>Teile einer SVG-Datei werden nicht gezeichnet</translation>
  </message>
  <message id="ICONS_ICON_FLATTENED">
    <source>the icon was put on the color of --flatten where it must be opaque</source>
    <translation>wo es undurchsichtig sein muss, liegt das Icon auf der Farbe von --flatten</translation>
  </message>
  <message id="ICONS_TINTED_FROM_ICON">
    <source>the tinted icon is the icon's luminance</source>
    <translation>das getönte Icon ist die Helligkeit des Icons</translation>
  </message>
  <message id="ICONS_TINTED_ON_BLACK">
    <source>the tinted icon is black where the picture is transparent</source>
    <translation>das getönte Icon ist schwarz, wo das Bild durchsichtig ist</translation>
  </message>
  <message id="ICONS_DARK_IS_ICON">
    <source>the dark icon is the icon with its transparency</source>
    <translation>das dunkle Icon ist das Icon mit seiner Transparenz</translation>
  </message>
  <message id="ICONS_DARK_LEFT_OUT">
    <source>there is no dark icon, since the icon has no transparency</source>
    <translation>es gibt kein dunkles Icon, denn das Icon hat keine Transparenz</translation>
  </message>
  <message id="ICONS_FOREGROUND_FROM_ICON">
    <source>the foreground is the icon inside the safe zone</source>
    <translation>der Vordergrund ist das Icon innerhalb der sicheren Zone</translation>
  </message>
  <message id="ICONS_BACKGROUND_FROM_BORDER">
    <source>the background is the color of the icon's border</source>
    <translation>der Hintergrund hat die Farbe vom Rand des Icons</translation>
  </message>
  <message id="ICONS_BACKGROUND_WHITE">
    <source>the background is white</source>
    <translation>der Hintergrund ist weiß</translation>
  </message>
  <message id="ICONS_MONOCHROME_FROM_ICON">
    <source>the monochrome icon is the icon's shape in white</source>
    <translation>das einfarbige Icon ist die Form des Icons in Weiß</translation>
  </message>
  <message id="ICONS_MONOCHROME_LEFT_OUT">
    <source>there are no monochrome, notification and badge pictures, since the icon has no transparency</source>
    <translation>es gibt keine einfarbigen Bilder, auch nicht für Benachrichtigungen und Abzeichen, denn das Icon hat keine Transparenz</translation>
  </message>
  <message id="ICONS_WEB_ON_BACKGROUND">
    <source>touch and maskable icons stand on the background color</source>
    <translation>Touch- und maskierbare Icons liegen auf der Hintergrundfarbe</translation>
  </message>
  <message id="ICONS_BACK_LAYER_FLATTENED">
    <source>the back layer was put on the background color</source>
    <translation>die hinterste Ebene wurde auf die Hintergrundfarbe gelegt</translation>
  </message>
  <message id="ICONS_SHELF_FROM_LAYERS">
    <source>the top shelf pictures show the layers on the background color</source>
    <translation>die Top-Shelf-Bilder zeigen die Ebenen auf der Hintergrundfarbe</translation>
  </message>
  <message id="ICONS_LAYERS_FROM_ICON">
    <source>the only layer is the icon, on the background color</source>
    <translation>die einzige Ebene ist das Icon, auf der Hintergrundfarbe</translation>
  </message>
  <message id="ICONS_SCALABLE_LEFT_OUT">
    <source>there is no SVG icon, since the icon is a picture of pixels</source>
    <translation>es gibt kein SVG-Icon, denn das Icon ist ein Bild aus Pixeln</translation>
  </message>
  <message id="ICONS_ONLY_ICON_SET">
    <source>the project names no icon set; its only one is used</source>
    <translation>das Projekt nennt keinen Icon-Satz; genommen wird der einzige</translation>
  </message>
  <message id="ICONS_BACKGROUND_KEPT">
    <source>the background in the project is kept; --background replaces it</source>
    <translation>der Hintergrund im Projekt bleibt; --background ersetzt ihn</translation>
  </message>
  <message id="ICONS_SETTINGS_NOT_READ">
    <source>icons that these settings name are not found, since only their own tool can read them</source>
    <translation>Icons, die in diesen Einstellungen stehen, werden nicht gefunden; nur ihr eigenes Werkzeug kann sie lesen</translation>
  </message>
  <message id="CLI_ICONS_FIT_ADVICE">
    <source>use a square picture of at least 512 x 512 pixels</source>
    <translation>ein quadratisches Bild von mindestens 512 x 512 Pixeln nehmen</translation>
  </message>
  <message id="ICONS_CHANGE_NEW">
    <source>new</source>
    <translation>neu</translation>
  </message>
  <message id="ICONS_CHANGE_REPLACED">
    <source>replaced</source>
    <translation>ersetzt</translation>
  </message>
  <message id="ICONS_CHANGE_UNCHANGED">
    <source>unchanged</source>
    <translation>unverändert</translation>
  </message>
  <message id="ICONS_CHANGE_REMOVED">
    <source>removed</source>
    <translation>entfernt</translation>
  </message>
  <message id="CLI_ICONS_LINE_TO_ADD">
    <source>to add by hand: [LINE]</source>
    <translation>von Hand zu ergänzen: [LINE]</translation>
  </message>
  <message id="CLI_ICONS_NONE_FOUND">
    <source>holds no icon catalogue and no project with icons</source>
    <translation>enthält keinen Icon-Katalog und kein Projekt mit Icons</translation>
  </message>
  <message id="CLI_ICONS_CHECKED">
    <source>checked [N], found nothing</source>
    <translation>[N] geprüft, nichts gefunden</translation>
  </message>
  <message id="CLI_CHECK_FAILED">
    <source>does not keep the platforms' rules</source>
    <translation>hält die Regeln der Plattformen nicht ein</translation>
  </message>
  <message id="CLI_HAS_TRANSPARENCY">
    <source>lets something through where the store forbids it</source>
    <translation>ist durchsichtig, wo der Store es verbietet</translation>
  </message>
  <message id="CLI_HAS_TRANSPARENCY_ADVICE">
    <source>put it on a color with --flatten COLOR</source>
    <translation>mit --flatten COLOR auf eine Farbe legen</translation>
  </message>
  <message id="CLI_NEEDS_LAYERS">
    <source>has to be given two to five times</source>
    <translation>muss zwei- bis fünfmal angegeben werden</translation>
  </message>
  <message id="CLI_NEEDS_LAYERS_ADVICE">
    <source>name a picture for each layer, the back one first</source>
    <translation>für jede Ebene ein Bild nennen, das hinterste zuerst</translation>
  </message>
  <message id="CLI_NOT_A_PROJECT">
    <source>is no project whose icons are known</source>
    <translation>ist kein Projekt, dessen Icons bekannt sind</translation>
  </message>
  <message id="CLI_NOT_A_PROJECT_ADVICE">
    <source>name the folder with the project's file</source>
    <translation>den Ordner mit der Projektdatei nennen</translation>
  </message>
  <message id="CLI_AMBIGUOUS_PROJECT">
    <source>does not say which icons are meant</source>
    <translation>lässt offen, welche Icons gemeint sind</translation>
  </message>
  <message id="CLI_AMBIGUOUS_PROJECT_ADVICE">
    <source>name the folder of one of them</source>
    <translation>den Ordner von einem davon nennen</translation>
  </message>
  <message id="CLI_CHOOSE_ICON_SET_ADVICE">
    <source>choose one with --target, which takes a target's or an icon set's name</source>
    <translation>eines mit --target wählen, das den Namen eines Targets oder eines Icon-Satzes nimmt</translation>
  </message>
  <message id="CLI_CHOOSE_FLAVOR_ADVICE">
    <source>choose one with --flavor, such as dev for AppIcon-dev</source>
    <translation>eines mit --flavor wählen, etwa dev für AppIcon-dev</translation>
  </message>
  <message id="CLI_MANIFEST_ICON_ADVICE">
    <source>name the app's own picture there, such as @mipmap/ic_launcher</source>
    <translation>dort ein Bild der App selbst nennen, etwa @mipmap/ic_launcher</translation>
  </message>
  <message id="CLI_NO_FLAVOR_ADVICE">
    <source>give --flavor one of productFlavors in build.gradle, or a folder beside src/main</source>
    <translation>bei --flavor eines aus productFlavors in build.gradle oder einen Ordner neben src/main angeben</translation>
  </message>
  <message id="CLI_NO_TARGET_ADVICE">
    <source>leave --target out; it chooses among the icon sets of an Xcode project</source>
    <translation>--target weglassen; es wählt unter den Icon-Sätzen eines Xcode-Projekts</translation>
  </message>
  <message id="CLI_PROGRAM_ADVICE">
    <source>name the icons in app.json instead, which the program is given</source>
    <translation>die Icons stattdessen in app.json nennen; das Programm bekommt sie von dort</translation>
  </message>
  <message id="CLI_LEADS_OUTSIDE">
    <source>leads out of its folder</source>
    <translation>führt aus seinem Ordner hinaus</translation>
  </message>
  <message id="CLI_LEADS_OUTSIDE_ADVICE">
    <source>replace the link or the name by one inside</source>
    <translation>den Verweis oder Namen durch einen im Ordner ersetzen</translation>
  </message>
  <message id="CLI_STOPPED">
    <source>was stopped, and everything is as it was</source>
    <translation>wurde abgebrochen, und alles ist wie zuvor</translation>
  </message>
  <message id="CLI_STOPPED_ADVICE">
    <source>run it again</source>
    <translation>noch einmal ausführen</translation>
  </message>
  <message id="CLI_OUT">
    <source>Write exactly into DIR: the same files on every run, other files are left alone</source>
    <translation>Genau in DIR schreiben: bei jedem Lauf dieselben Dateien, andere bleiben unberührt</translation>
  </message>
  <message id="CLI_ICON_SIZE">
    <source>Edge length in pixels, [LEAST] to [MOST]; several separated by commas</source>
    <translation>Kantenlänge in Pixeln, [LEAST] bis [MOST]; mehrere durch Kommas getrennt</translation>
  </message>
  <message id="CLI_ICON_CORNERS">
    <source>Rounded corners: [WORDS]</source>
    <translation>Runde Ecken: [WORDS]</translation>
  </message>
  <message id="CLI_ICON_OUTPUT">
    <source>Write one icon to FILE, or to standard output for -</source>
    <translation>Ein Icon in die Datei FILE schreiben, bei - auf die Standardausgabe</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_SET">
    <source>Sizes of classic screens, stores, sites and launch pictures, several separated by commas: [WORDS]</source>
    <translation>Größen klassischer Bildschirme, von Stores, Seiten und Startbildern, mehrere durch Kommas getrennt: [WORDS]</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_SIZE">
    <source>Width and height, each from 1 to 9999 pixels, or in points with a density such as 800x800@2x; several separated by commas</source>
    <translation>Breite und Höhe, je 1 bis 9999 Pixel, oder in Punkten mit Auflösung wie 800x800@2x; mehrere durch Kommas getrennt</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_TO">
    <source>Make a fresh folder "placeholders" in DIR (placeholders_1 where that is taken)</source>
    <translation>Einen neuen Ordner "placeholders" in DIR anlegen (placeholders_1, wenn es ihn schon gibt)</translation>
  </message>
  <message id="CLI_DOWNSCALE_SOURCE">
    <source>PNG files marked @2x or -hd, or folders that are searched for such files; with --layout, pictures of the largest density or folders of them, or SVG drawings</source>
    <translation>PNG-Dateien mit @2x oder -hd im Namen oder Ordner, die nach solchen durchsucht werden; mit --layout Bilder der größten Auflösung oder Ordner mit ihnen oder SVG-Zeichnungen</translation>
  </message>
  <message id="CLI_DOWNSCALE_OVERWRITE">
    <source>Replace files that are there already; with --layout never a source</source>
    <translation>Vorhandene Dateien ersetzen; mit --layout nie eine Quelle</translation>
  </message>
  <message id="CLI_DOWNSCALE_DRY_RUN">
    <source>Print what would be written and mark what exists; write nothing</source>
    <translation>Ausgeben, was geschrieben würde, Vorhandenes markieren; nichts schreiben</translation>
  </message>
  <message id="CLI_DOWNSCALE_TO">
    <source>Write all halves into DIR, without sub-folders; with --layout in the folders of their sources</source>
    <translation>Alle Hälften in DIR schreiben, ohne Unterordner; mit --layout in den Ordnern ihrer Quellen</translation>
  </message>
  <message id="CLI_COLOR_TEXT">
    <source>Three or six hexadecimal digits, with or without #; with --form, --all or --contrast a color in any form</source>
    <translation>Drei oder sechs hexadezimale Ziffern, mit oder ohne #; mit --form, --all oder --contrast eine Farbe in jeder Form</translation>
  </message>
  <message id="CLI_COLOR_AS">
    <source>Notation to print: [WORDS]; all prints each with its name</source>
    <translation>Schreibweise: [WORDS]; all gibt jede mit ihrem Namen aus</translation>
  </message>
  <message id="CLI_DEVICES_IOS">
    <source>Oldest iOS version the app runs on: 4, 5, 6 or 7; with --today a range such as 15.., ..12 or 9..12.4</source>
    <translation>Älteste iOS-Version, auf der die App läuft: 4, 5, 6 oder 7; mit --today ein Bereich wie 15.., ..12 oder 9..12.4</translation>
  </message>
  <message id="CLI_DEVICES_FEATURE">
    <source>What the app needs; several separated by commas: [WORDS]</source>
    <translation>Was die App braucht; mehrere durch Kommas getrennt: [WORDS]</translation>
  </message>
  <message id="CLI_VALIDATE_FILE">
    <source>App packages (.ipa, .app or .xcarchive), or - for an .ipa on standard input</source>
    <translation>App-Pakete (.ipa, .app oder .xcarchive) oder - für ein .ipa auf der Standardeingabe</translation>
  </message>
  <message id="CLI_VALIDATE_ICON">
    <source>Write the app's icon, 128 pixels square; - is standard output</source>
    <translation>Das Icon der App schreiben, 128 Pixel im Quadrat; - ist die Standardausgabe</translation>
  </message>
  <message id="CLI_NO_SANDBOX">
    <source>Read the packages without locking the process in first</source>
    <translation>Die Pakete lesen, ohne den Prozess vorher einzusperren</translation>
  </message>
  <message id="CLI_SANDBOX_BOTH">
    <source>Locked in: no other files (Landlock), no connections and no programs (seccomp)</source>
    <translation>Eingesperrt: keine anderen Dateien (Landlock), keine Verbindungen und keine Programme (seccomp)</translation>
  </message>
  <message id="CLI_SANDBOX_FILES">
    <source>Locked in: no other files (Landlock); the kernel offers no seccomp</source>
    <translation>Eingesperrt: keine anderen Dateien (Landlock); der Kernel bietet kein seccomp</translation>
  </message>
  <message id="CLI_SANDBOX_CALLS">
    <source>Locked in: no connections and no programs (seccomp); the kernel offers no Landlock</source>
    <translation>Eingesperrt: keine Verbindungen und keine Programme (seccomp); der Kernel bietet kein Landlock</translation>
  </message>
  <message id="CLI_SANDBOX_NONE">
    <source>Not locked in: the kernel offers neither Landlock nor seccomp</source>
    <translation>Nicht eingesperrt: Der Kernel bietet weder Landlock noch seccomp</translation>
  </message>
  <message id="CLI_SANDBOX_OFF">
    <source>Not locked in: --no-sandbox</source>
    <translation>Nicht eingesperrt: --no-sandbox</translation>
  </message>
  <message id="CLI_VALIDATE_RULES">
    <source>Judge by the rules of today's store, by those of iOS 7 (classic), or by all; auto, the default, asks the store's, and the classic ones of packages built with an SDK before iOS 8 or with none</source>
    <translation>Nach den Regeln des heutigen Stores, denen von iOS 7 (classic) oder allen urteilen; auto, die Vorgabe, nimmt die des Stores und bei Paketen mit einem SDK vor iOS 8 oder ohne eines die klassischen</translation>
  </message>
  <message id="CLI_VALIDATE_FAIL_ON">
    <source>The least severe finding that makes the status 1; error is the default</source>
    <translation>Der leichteste Befund, der zum Status 1 führt; die Vorgabe ist error</translation>
  </message>
  <message id="CLI_VALIDATE_IGNORE">
    <source>Leave out a rule, by its id or the store's code</source>
    <translation>Eine Regel auslassen, nach ihrer Kennung oder dem Code des Stores</translation>
  </message>
  <message id="CLI_VALIDATE_IGNORE_FILE">
    <source>Leave out the rules that a file lists, one a line</source>
    <translation>Die Regeln auslassen, die eine Datei aufzählt, eine je Zeile</translation>
  </message>
  <message id="CLI_VALIDATE_ON">
    <source>Judge for another day than today, as in 2027-04-30</source>
    <translation>Für einen anderen Tag als heute urteilen, etwa 2027-04-30</translation>
  </message>
  <message id="CLI_UNKNOWN_RULE">
    <source>[RULE] is no rule</source>
    <translation>[RULE] ist keine Regel</translation>
  </message>
  <message id="CLI_CLASSIC_RULES">
    <source>iOS 7 rules</source>
    <translation>Regeln von iOS 7</translation>
  </message>
  <message id="CLI_STORE_RULES">
    <source>the store's rules</source>
    <translation>die Regeln des Stores</translation>
  </message>
  <message id="CLI_RULES_ABOUT">
    <source>List the rules that packages are judged by</source>
    <translation>Die Regeln auflisten, nach denen Pakete beurteilt werden</translation>
  </message>
  <message id="CLI_RULES_ID">
    <source>Rules to print in full, by their ids or the store's codes</source>
    <translation>Regeln, die ganz gezeigt werden, nach Kennung oder Code des Stores</translation>
  </message>
  <message id="CLI_RULES_MARKDOWN">
    <source>Print the page of the documents</source>
    <translation>Die Seite der Dokumente ausgeben</translation>
  </message>
  <message id="CLI_VALIDATE_SARIF">
    <source>Write the findings as SARIF 2.1.0; - is standard output</source>
    <translation>Die Befunde als SARIF 2.1.0 schreiben; - ist die Standardausgabe</translation>
  </message>
  <message id="CLI_VALIDATE_JUNIT">
    <source>Write a test case for each rule as JUnit XML; - is standard output</source>
    <translation>Zu jeder Regel einen Testfall als JUnit-XML schreiben; - ist die Standardausgabe</translation>
  </message>
  <message id="CLI_VALIDATE_ONE_STDOUT">
    <source>standard output takes one of the report, --json and --icon</source>
    <translation>die Standardausgabe nimmt nur eines von Bericht, --json und --icon</translation>
  </message>
  <message id="CLI_DIFF_ABOUT">
    <source>Compare two builds of an app package</source>
    <translation>Zwei Stände eines App-Pakets vergleichen</translation>
  </message>
  <message id="CLI_DIFF_OLD">
    <source>The package as it was</source>
    <translation>Das Paket, wie es war</translation>
  </message>
  <message id="CLI_DIFF_NEW">
    <source>The package as it is</source>
    <translation>Das Paket, wie es ist</translation>
  </message>
  <message id="CLI_DIFF_FAIL_ON">
    <source>The least severe finding that the new package has and the old one has not, and that makes the status 1; never is the default</source>
    <translation>Der leichteste Befund, den das neue Paket hat und das alte nicht, und der zum Status 1 führt; die Vorgabe ist never</translation>
  </message>
  <message id="CLI_DIFF_FACTS">
    <source>Facts</source>
    <translation>Angaben</translation>
  </message>
  <message id="CLI_DIFF_ENTITLEMENTS">
    <source>Entitlements</source>
    <translation>Berechtigungen der Signatur</translation>
  </message>
  <message id="CLI_DIFF_PERMISSIONS">
    <source>Reasons given for permissions</source>
    <translation>Gründe für Berechtigungen</translation>
  </message>
  <message id="CLI_DIFF_GAINED">
    <source>Findings gained</source>
    <translation>Neue Befunde</translation>
  </message>
  <message id="CLI_DIFF_LOST">
    <source>Findings lost</source>
    <translation>Behobene Befunde</translation>
  </message>
  <message id="CLI_DIFF_SIZES">
    <source>Files and bytes, unpacked</source>
    <translation>Dateien und Bytes, entpackt</translation>
  </message>
  <message id="CLI_DIFF_TOTAL">
    <source>[FILES] files, [SIZE]</source>
    <translation>[FILES] Dateien, [SIZE]</translation>
  </message>
  <message id="CLI_DIFF_TOTAL_ONE">
    <source>1 file, [SIZE]</source>
    <translation>1 Datei, [SIZE]</translation>
  </message>
  <message id="CLI_DIFF_GROWTH">
    <source>Largest growth</source>
    <translation>Größter Zuwachs</translation>
  </message>
  <message id="CLI_VALIDATE_HTML">
    <source>Write a page to look at and to pass on; - is standard output</source>
    <translation>Eine Seite zum Ansehen und Weitergeben schreiben; - ist die Standardausgabe</translation>
  </message>
  <message id="CLI_VALIDATE_DEVICES">
    <source>List the models that run the app, and why the others do not</source>
    <translation>Die Modelle auflisten, auf denen die App läuft, und warum auf den anderen nicht</translation>
  </message>
  <message id="CLI_VALIDATE_RUNS_ON">
    <source>runs on</source>
    <translation>läuft auf</translation>
  </message>
  <message id="CLI_VALIDATE_RUNS_NOT_ON">
    <source>does not run on</source>
    <translation>läuft nicht auf</translation>
  </message>
  <message id="CLI_ICONS_NOT_CLASSIC">
    <source>[OPTION] goes only with --into or a platform of today: [WORDS]</source>
    <translation>[OPTION] geht nur mit --into oder einer Plattform von heute: [WORDS]</translation>
  </message>
  <message id="ICON_RULE_CONTENTS_UNREADABLE">
    <source>The list of the folder's files is missing or cannot be read</source>
    <translation>Die Liste der Dateien des Ordners fehlt oder ist nicht lesbar</translation>
  </message>
  <message id="ICON_FIX_CONTENTS_UNREADABLE">
    <source>write the set again</source>
    <translation>den Satz neu schreiben</translation>
  </message>
  <message id="ICON_RULE_FILE_MISSING">
    <source>A listed file is not there</source>
    <translation>Eine aufgeführte Datei fehlt</translation>
  </message>
  <message id="ICON_FIX_FILE_MISSING">
    <source>add the file or take it off the list</source>
    <translation>die Datei ergänzen oder aus der Liste nehmen</translation>
  </message>
  <message id="ICON_RULE_FILE_OUTSIDE">
    <source>A listed file lies outside of the folder</source>
    <translation>Eine aufgeführte Datei liegt außerhalb des Ordners</translation>
  </message>
  <message id="ICON_FIX_FILE_OUTSIDE">
    <source>put the file into the folder and list it by its name alone</source>
    <translation>die Datei in den Ordner legen und nur mit ihrem Namen aufführen</translation>
  </message>
  <message id="ICON_RULE_PICTURE_UNREADABLE">
    <source>A picture cannot be read</source>
    <translation>Ein Bild ist nicht lesbar</translation>
  </message>
  <message id="ICON_FIX_PICTURE_UNREADABLE">
    <source>replace it by an undamaged PNG file</source>
    <translation>durch eine unbeschädigte PNG-Datei ersetzen</translation>
  </message>
  <message id="ICON_RULE_WRONG_SIZE">
    <source>A picture has another size than its slot</source>
    <translation>Ein Bild hat eine andere Größe als sein Platz</translation>
  </message>
  <message id="ICON_FIX_WRONG_SIZE">
    <source>replace it by a picture of the slot's size</source>
    <translation>durch ein Bild in der Größe des Platzes ersetzen</translation>
  </message>
  <message id="ICON_RULE_STORE_ICON_MISSING">
    <source>The icon of 1024 x 1024 pixels for the store is missing</source>
    <translation>Das Icon von 1024 x 1024 Pixeln für den Store fehlt</translation>
  </message>
  <message id="ICON_FIX_STORE_ICON_MISSING">
    <source>add it; uploads are refused without it</source>
    <translation>ergänzen; ohne es werden Uploads abgelehnt</translation>
  </message>
  <message id="ICON_RULE_STORE_ICON_TRANSPARENT">
    <source>The store's icon has transparent pixels</source>
    <translation>Das Icon für den Store hat durchsichtige Pixel</translation>
  </message>
  <message id="ICON_FIX_STORE_ICON_TRANSPARENT">
    <source>put it on a color: lumora icons --flatten COLOR</source>
    <translation>auf eine Farbe legen: lumora icons --flatten FARBE</translation>
  </message>
  <message id="ICON_RULE_PLATFORM_NAME">
    <source>A slot's platform is not written as the catalog compiler knows it</source>
    <translation>Die Plattform eines Platzes ist anders geschrieben, als der Katalog-Compiler sie kennt</translation>
  </message>
  <message id="ICON_FIX_PLATFORM_NAME">
    <source>write it in lower case</source>
    <translation>klein schreiben</translation>
  </message>
  <message id="ICON_RULE_RESOURCE_MISSING">
    <source>An adaptive icon names a resource that is not there</source>
    <translation>Ein adaptives Icon nennt eine Ressource, die fehlt</translation>
  </message>
  <message id="ICON_FIX_RESOURCE_MISSING">
    <source>add the resource or take its line out</source>
    <translation>die Ressource ergänzen oder ihre Zeile entfernen</translation>
  </message>
  <message id="ICON_RULE_STORE_FILE_TOO_LONG">
    <source>The store's picture is longer than 1024 KB</source>
    <translation>Das Bild für den Store ist größer als 1024 KB</translation>
  </message>
  <message id="ICON_FIX_STORE_FILE_TOO_LONG">
    <source>use a picture with fewer details</source>
    <translation>ein Bild mit weniger Einzelheiten nehmen</translation>
  </message>
  <message id="ICON_RULE_ICON_FILE_BROKEN">
    <source>An icon file is damaged</source>
    <translation>Eine Icon-Datei ist beschädigt</translation>
  </message>
  <message id="ICON_FIX_ICON_FILE_BROKEN">
    <source>write it again</source>
    <translation>neu schreiben</translation>
  </message>
  <message id="ICON_RULE_LAYER_COUNT">
    <source>A layered icon has fewer than two or more than five layers</source>
    <translation>Ein geschichtetes Icon hat weniger als zwei oder mehr als fünf Ebenen</translation>
  </message>
  <message id="ICON_FIX_LAYER_COUNT">
    <source>use two to five layers</source>
    <translation>zwei bis fünf Ebenen nehmen</translation>
  </message>
  <message id="ICON_RULE_ICON_TRANSPARENT">
    <source>A picture has transparent pixels, which are shown black or white</source>
    <translation>Ein Bild hat durchsichtige Pixel, die schwarz oder weiß erscheinen</translation>
  </message>
  <message id="ICON_FIX_ICON_TRANSPARENT">
    <source>put it on a color: lumora icons --flatten COLOR</source>
    <translation>auf eine Farbe legen: lumora icons --flatten FARBE</translation>
  </message>
  <message id="ICON_RULE_ALPHA_CHANNEL">
    <source>The store's icon has an alpha channel, though all of it is opaque</source>
    <translation>Das Icon für den Store hat einen Alphakanal, obwohl es ganz undurchsichtig ist</translation>
  </message>
  <message id="ICON_FIX_ALPHA_CHANNEL">
    <source>save it without the channel</source>
    <translation>ohne den Kanal speichern</translation>
  </message>
  <message id="ICON_RULE_UNASSIGNED_FILE">
    <source>A file in the folder is in no slot</source>
    <translation>Eine Datei im Ordner gehört zu keinem Platz</translation>
  </message>
  <message id="ICON_FIX_UNASSIGNED_FILE">
    <source>assign it or remove it</source>
    <translation>zuweisen oder entfernen</translation>
  </message>
  <message id="ICON_RULE_DUPLICATE_SLOT">
    <source>Two pictures are listed for one slot</source>
    <translation>Für einen Platz sind zwei Bilder aufgeführt</translation>
  </message>
  <message id="ICON_FIX_DUPLICATE_SLOT">
    <source>take one of them off the list</source>
    <translation>eines davon aus der Liste nehmen</translation>
  </message>
  <message id="ICON_RULE_FOREIGN_FORMAT">
    <source>A file named .png holds another format</source>
    <translation>Eine Datei namens .png enthält ein anderes Format</translation>
  </message>
  <message id="ICON_FIX_FOREIGN_FORMAT">
    <source>save it as PNG</source>
    <translation>als PNG speichern</translation>
  </message>
  <message id="ICON_RULE_STORE_ICON_COLORS">
    <source>The store's icon has a palette or a wide-gamut profile, which uploads were refused for</source>
    <translation>Das Icon für den Store hat eine Palette oder ein Profil mit großem Farbraum; Uploads wurden deshalb abgelehnt</translation>
  </message>
  <message id="ICON_RULE_PLAY_ICON_COLORS">
    <source>The icon for Google Play is not in the form that Google asks for, a PNG file of 32 bits a pixel</source>
    <translation>Das Icon für Google Play hat nicht die Form, die Google verlangt: eine PNG-Datei mit 32 Bit je Pixel</translation>
  </message>
  <message id="ICON_FIX_STORE_ICON_COLORS">
    <source>save it as sRGB with 8 bits a channel</source>
    <translation>als sRGB mit 8 Bit je Kanal speichern</translation>
  </message>
  <message id="ICON_FIX_PLAY_ICON_COLORS">
    <source>save it as RGBA with 8 bits a channel</source>
    <translation>als RGBA mit 8 Bit je Kanal speichern</translation>
  </message>
  <message id="ICON_RULE_TINTED_COLORS">
    <source>The tinted icon has colors</source>
    <translation>Das getönte Icon hat Farben</translation>
  </message>
  <message id="ICON_FIX_TINTED_COLORS">
    <source>use shades of gray; the system adds the tint</source>
    <translation>Grautöne nehmen; die Tönung macht das System</translation>
  </message>
  <message id="ICON_RULE_OUTSIDE_SAFE_ZONE">
    <source>The picture reaches beyond the circle that every mask shows</source>
    <translation>Das Bild reicht über den Kreis hinaus, den jede Maske zeigt</translation>
  </message>
  <message id="ICON_FIX_OUTSIDE_SAFE_ZONE">
    <source>make the picture's content smaller</source>
    <translation>den Inhalt des Bildes verkleinern</translation>
  </message>
  <message id="ICON_RULE_MONOCHROME_MISSING">
    <source>The adaptive icon has no monochrome layer for themed icons</source>
    <translation>Das adaptive Icon hat keine einfarbige Ebene für thematische Icons</translation>
  </message>
  <message id="ICON_FIX_MONOCHROME_MISSING">
    <source>add one: lumora icons --monochrome PICTURE</source>
    <translation>eine ergänzen: lumora icons --monochrome BILD</translation>
  </message>
  <message id="ICON_RULE_MONOCHROME_OPAQUE">
    <source>The monochrome layer is opaque, so that a themed icon is a plain square</source>
    <translation>Die einfarbige Ebene ist undurchsichtig, ein thematisches Icon wird so zum bloßen Quadrat</translation>
  </message>
  <message id="ICON_FIX_MONOCHROME_OPAQUE">
    <source>use a picture with transparency</source>
    <translation>ein Bild mit Transparenz nehmen</translation>
  </message>
  <message id="ICON_RULE_MASKABLE_PURPOSE">
    <source>One picture is listed both as "any" and as "maskable"</source>
    <translation>Ein Bild ist zugleich als "any" und als "maskable" aufgeführt</translation>
  </message>
  <message id="ICON_FIX_MASKABLE_PURPOSE">
    <source>list a picture of its own for each</source>
    <translation>für beide Zwecke je ein eigenes Bild aufführen</translation>
  </message>
  <message id="ICON_RULE_LARGE_PICTURE_MISSING">
    <source>The icon file has no large picture</source>
    <translation>Die Icon-Datei hat kein großes Bild</translation>
  </message>
  <message id="ICON_FIX_LARGE_PICTURE_MISSING">
    <source>add one of 256 pixels or more</source>
    <translation>eines von mindestens 256 Pixeln ergänzen</translation>
  </message>
  <message id="ICON_RULE_SLOT_EMPTY">
    <source>A slot is empty</source>
    <translation>Ein Platz ist leer</translation>
  </message>
  <message id="ICON_FIX_SLOT_EMPTY">
    <source>add a picture if it is wanted</source>
    <translation>bei Bedarf ein Bild ergänzen</translation>
  </message>
  <message id="ICON_RULE_APPEARANCE_MISSING">
    <source>There is no dark or no tinted icon</source>
    <translation>Es gibt kein dunkles oder kein getöntes Icon</translation>
  </message>
  <message id="ICON_FIX_APPEARANCE_MISSING">
    <source>add one: lumora icons --dark PICTURE --tinted PICTURE</source>
    <translation>ergänzen: lumora icons --dark BILD --tinted BILD</translation>
  </message>
  <message id="ICON_RULE_UNCOMMON_PIXELS">
    <source>The picture is interlaced or has 16 bits a channel</source>
    <translation>Das Bild ist interlaced oder hat 16 Bit je Kanal</translation>
  </message>
  <message id="ICON_FIX_UNCOMMON_PIXELS">
    <source>save it plain with 8 bits a channel</source>
    <translation>schlicht mit 8 Bit je Kanal speichern</translation>
  </message>
  <message id="ICON_RULE_WALK_ENDED">
    <source>The folder holds more than was looked through</source>
    <translation>Der Ordner enthält mehr, als durchgesehen wurde</translation>
  </message>
  <message id="ICON_FIX_WALK_ENDED">
    <source>check its parts one by one</source>
    <translation>seine Teile einzeln prüfen</translation>
  </message>
  <message id="CLI_NOT_A_DATE">
    <source>[DATE] is no date; write it as in 2027-04-30</source>
    <translation>[DATE] ist kein Datum; so schreiben wie 2027-04-30</translation>
  </message>
  <message id="CLI_VALIDATE_STATUS">
    <source>Ends with 0 when nothing is found that counts, 1 when something is, 3 when a file cannot be read or holds no app.</source>
    <translation>Endet mit 0, wenn nichts gefunden wird, was zählt, mit 1, wenn doch, mit 3, wenn eine Datei nicht gelesen werden kann oder keine App enthält.</translation>
  </message>
  <message id="CLI_DID_YOU_MEAN">
    <source>did you mean [WORD]?</source>
    <translation>war [WORD] gemeint?</translation>
  </message>
  <message id="CLI_SEE_HELP">
    <source>see "[COMMAND]"</source>
    <translation>siehe "[COMMAND]"</translation>
  </message>
  <message id="CLI_UNKNOWN_OPTION">
    <source>[OPTION] is no option</source>
    <translation>[OPTION] ist keine Option</translation>
  </message>
  <message id="CLI_UNKNOWN_COMMAND">
    <source>[WORD] is neither a command nor a file that exists</source>
    <translation>[WORD] ist weder ein Befehl noch eine vorhandene Datei</translation>
  </message>
  <message id="CLI_UNKNOWN_TOOL">
    <source>--tool takes [WORDS], not [VALUE]</source>
    <translation>--tool nimmt [WORDS], nicht [VALUE]</translation>
  </message>
  <message id="CLI_WRONG_CHOICE">
    <source>[OPTION] takes [WORDS], not [VALUE]</source>
    <translation>[OPTION] nimmt [WORDS], nicht [VALUE]</translation>
  </message>
  <message id="CLI_WRONG_NUMBER">
    <source>[OPTION] takes a whole number from [LEAST] to [MOST], not [VALUE]</source>
    <translation>[OPTION] nimmt eine ganze Zahl von [LEAST] bis [MOST], nicht [VALUE]</translation>
  </message>
  <message id="CLI_WRONG_SIZE_TEXT">
    <source>is no size; give width x height, each from [LEAST] to [MOST] pixels, such as 1136x640, or in points such as 400x300@2x</source>
    <translation>ist keine Größe; gebraucht wird Breite x Höhe, je von [LEAST] bis [MOST] Pixel, etwa 1136x640, oder in Punkten, etwa 400x300@2x</translation>
  </message>
  <message id="CLI_EMPTY_VALUE">
    <source>[OPTION] is empty</source>
    <translation>[OPTION] ist leer</translation>
  </message>
  <message id="CLI_EMPTY_WORD">
    <source>an argument is empty</source>
    <translation>ein Argument ist leer</translation>
  </message>
  <message id="CLI_UNEXPECTED">
    <source>[WORD] is one argument too many</source>
    <translation>[WORD] ist ein Argument zu viel</translation>
  </message>
  <message id="CLI_FLAG_WITH_VALUE">
    <source>[OPTION] takes no value</source>
    <translation>[OPTION] nimmt keinen Wert</translation>
  </message>
  <message id="CLI_MISSING_VALUE">
    <source>[OPTION] lacks its value: [OPTION] [NAME]</source>
    <translation>[OPTION] fehlt der Wert: [OPTION] [NAME]</translation>
  </message>
  <message id="CLI_VALUE_WITH_DASH">
    <source>for a value that begins with a dash write [OPTION]</source>
    <translation>für einen Wert, der mit einem Strich beginnt, [OPTION] schreiben</translation>
  </message>
  <message id="CLI_CHOICES">
    <source>it takes [WORDS]</source>
    <translation>möglich sind [WORDS]</translation>
  </message>
  <message id="CLI_VALIDATE_REPLACES">
    <source>is a package that is to be checked</source>
    <translation>ist ein Paket, das geprüft werden soll</translation>
  </message>
  <message id="CLI_VALIDATE_REPLACES_ADVICE">
    <source>write to another name</source>
    <translation>unter einem anderen Namen schreiben</translation>
  </message>
  <message id="CLI_GIVEN_TWICE">
    <source>[OPTION] is given twice</source>
    <translation>[OPTION] ist zweimal angegeben</translation>
  </message>
  <message id="CLI_CONFLICT">
    <source>[FIRST] and [SECOND] exclude each other</source>
    <translation>[FIRST] und [SECOND] schließen sich aus</translation>
  </message>
  <message id="CLI_MISSING_OPTION">
    <source>[OPTION] is missing</source>
    <translation>[OPTION] fehlt</translation>
  </message>
  <message id="CLI_NO_WINDOW">
    <source>the window is not installed</source>
    <translation>das Fenster ist nicht installiert</translation>
  </message>
  <message id="CLI_NO_WINDOW_ADVICE">
    <source>install the package "lumora", or see "lumora help" for the commands, which work without it</source>
    <translation>das Paket "lumora" installieren; "lumora help" nennt die Befehle, die ohne es gehen</translation>
  </message>
  <message id="CLI_WINDOW_FAILED">
    <source>the window could not be started: [REASON]</source>
    <translation>das Fenster ließ sich nicht starten: [REASON]</translation>
  </message>
  <message id="CLI_ICON_ONE_FILE">
    <source>one file takes one size</source>
    <translation>eine Datei nimmt eine Größe</translation>
  </message>
  <message id="CLI_ICON_ONE_FILE_ADVICE">
    <source>use --out DIR for several</source>
    <translation>für mehrere --out DIR nehmen</translation>
  </message>
  <message id="CLI_VALIDATE_ONE_ICON">
    <source>--icon writes the icon of one file, but several are given</source>
    <translation>--icon schreibt das Icon einer Datei, es sind aber mehrere angegeben</translation>
  </message>
  <message id="CLI_TERMINAL_OUTPUT">
    <source>standard output is a terminal</source>
    <translation>die Standardausgabe ist ein Terminal</translation>
  </message>
  <message id="CLI_TERMINAL_OUTPUT_ADVICE">
    <source>send it into a file or another program</source>
    <translation>sie in eine Datei oder ein anderes Programm leiten</translation>
  </message>
  <message id="CLI_NOT_FOUND">
    <source>does not exist</source>
    <translation>gibt es nicht</translation>
  </message>
  <message id="CLI_NOT_FOUND_ADVICE">
    <source>check the path</source>
    <translation>den Pfad prüfen</translation>
  </message>
  <message id="CLI_NOT_FOUND_UNDECODED">
    <source>does not exist under a name in UTF-8</source>
    <translation>gibt es nicht unter einem Namen in UTF-8</translation>
  </message>
  <message id="CLI_NOT_FOUND_UNDECODED_ADVICE">
    <source>rename it if it is there, or check the path</source>
    <translation>umbenennen, falls es da ist, sonst den Pfad prüfen</translation>
  </message>
  <message id="CLI_IS_FOLDER">
    <source>is a folder</source>
    <translation>ist ein Ordner</translation>
  </message>
  <message id="CLI_IS_FOLDER_ADVICE">
    <source>name a file</source>
    <translation>eine Datei angeben</translation>
  </message>
  <message id="CLI_NOT_A_FOLDER">
    <source>is not a folder</source>
    <translation>ist kein Ordner</translation>
  </message>
  <message id="CLI_NOT_A_FOLDER_ADVICE">
    <source>name a folder</source>
    <translation>einen Ordner angeben</translation>
  </message>
  <message id="CLI_NO_PERMISSION">
    <source>may not be opened</source>
    <translation>darf nicht geöffnet werden</translation>
  </message>
  <message id="CLI_NO_PERMISSION_ADVICE">
    <source>change its permissions or choose another</source>
    <translation>die Rechte ändern oder etwas anderes nehmen</translation>
  </message>
  <message id="CLI_NOT_A_PICTURE">
    <source>is not a picture that can be read</source>
    <translation>ist kein lesbares Bild</translation>
  </message>
  <message id="CLI_NOT_A_PICTURE_ADVICE">
    <source>use an undamaged PNG, JPEG, TIFF, WebP, BMP, GIF or ICNS file</source>
    <translation>eine unbeschädigte PNG-, JPEG-, TIFF-, WebP-, BMP-, GIF- oder ICNS-Datei nehmen</translation>
  </message>
  <message id="CLI_ICONS_SOURCE_ADVICE">
    <source>use an undamaged SVG, PNG, JPEG, TIFF, WebP, BMP, GIF or ICNS file</source>
    <translation>eine unbeschädigte SVG-, PNG-, JPEG-, TIFF-, WebP-, BMP-, GIF- oder ICNS-Datei nehmen</translation>
  </message>
  <message id="CLI_DOWNSCALE_FORMAT_ADVICE">
    <source>use an undamaged PNG file</source>
    <translation>eine unbeschädigte PNG-Datei nehmen</translation>
  </message>
  <message id="CLI_WRONG_SIZE">
    <source>has the wrong size</source>
    <translation>hat die falsche Größe</translation>
  </message>
  <message id="CLI_WRONG_SIZE_ADVICE">
    <source>use a picture of exactly 1024 x 1024 pixels</source>
    <translation>ein Bild mit genau 1024 x 1024 Pixeln nehmen</translation>
  </message>
  <message id="CLI_TOO_LARGE">
    <source>is larger than what can be processed safely</source>
    <translation>ist größer, als sich sicher verarbeiten lässt</translation>
  </message>
  <message id="CLI_TOO_LARGE_ADVICE">
    <source>use a smaller file</source>
    <translation>eine kleinere Datei nehmen</translation>
  </message>
  <message id="CLI_CANNOT_CREATE">
    <source>could not be created</source>
    <translation>ließ sich nicht anlegen</translation>
  </message>
  <message id="CLI_CANNOT_CREATE_ADVICE">
    <source>check the destination's permissions and free space</source>
    <translation>Rechte und freien Platz am Ziel prüfen</translation>
  </message>
  <message id="CLI_CANNOT_WRITE">
    <source>could not be written</source>
    <translation>ließ sich nicht schreiben</translation>
  </message>
  <message id="CLI_CANNOT_WRITE_ADVICE">
    <source>check the destination's permissions and free space, then run again</source>
    <translation>Rechte und freien Platz am Ziel prüfen, dann wiederholen</translation>
  </message>
  <message id="CLI_NOT_AN_ARCHIVE">
    <source>is not a readable zip archive</source>
    <translation>ist kein lesbares Zip-Archiv</translation>
  </message>
  <message id="CLI_NOT_AN_ARCHIVE_ADVICE">
    <source>use an undamaged archive</source>
    <translation>ein unbeschädigtes Archiv nehmen</translation>
  </message>
  <message id="CLI_MISSING_CONTENT">
    <source>lacks what it has to contain</source>
    <translation>enthält nicht, was hineingehört</translation>
  </message>
  <message id="CLI_MISSING_CONTENT_ADVICE">
    <source>check how it was made</source>
    <translation>prüfen, wie es entstanden ist</translation>
  </message>
  <message id="CLI_NOT_READABLE">
    <source>could not be read</source>
    <translation>ließ sich nicht lesen</translation>
  </message>
  <message id="CLI_NOT_READABLE_ADVICE">
    <source>check that the file is undamaged</source>
    <translation>prüfen, ob die Datei unbeschädigt ist</translation>
  </message>
  <message id="CLI_NO_REGULAR_FILE_ADVICE">
    <source>copy what it holds into a file first</source>
    <translation>den Inhalt vorher in eine Datei kopieren</translation>
  </message>
  <message id="CLI_INVALID_VALUE">
    <source>is not accepted</source>
    <translation>wird nicht angenommen</translation>
  </message>
  <message id="CLI_INVALID_VALUE_ADVICE">
    <source>see --help</source>
    <translation>siehe --help</translation>
  </message>
  <message id="CLI_HIGH_DYNAMIC_RANGE">
    <source>has colors of high dynamic range</source>
    <translation>hat Farben mit hohem Dynamikumfang</translation>
  </message>
  <message id="CLI_HIGH_DYNAMIC_RANGE_ADVICE">
    <source>convert it to sRGB or Display P3 first</source>
    <translation>zuerst in sRGB oder Display P3 umwandeln</translation>
  </message>
  <message id="CLI_NOT_MARKED">
    <source>is not a .png file marked @2x or -hd</source>
    <translation>ist keine .png-Datei mit @2x oder -hd im Namen</translation>
  </message>
  <message id="CLI_NOT_MARKED_ADVICE">
    <source>rename it or leave it out</source>
    <translation>umbenennen oder weglassen</translation>
  </message>
  <message id="CLI_WOULD_REPLACE">
    <source>is one of the pictures to be scaled down</source>
    <translation>ist eines der Bilder, die verkleinert werden sollen</translation>
  </message>
  <message id="CLI_WOULD_REPLACE_ADVICE">
    <source>choose another folder, or allow it with --overwrite</source>
    <translation>einen anderen Ordner nehmen oder es mit --overwrite erlauben</translation>
  </message>
  <message id="CLI_EXISTS">
    <source>is there already</source>
    <translation>ist schon da</translation>
  </message>
  <message id="CLI_EXISTS_ADVICE">
    <source>choose another folder, or replace it with --overwrite</source>
    <translation>einen anderen Ordner nehmen oder sie mit --overwrite ersetzen</translation>
  </message>
  <message id="CLI_NAME_TAKEN">
    <source>its half has the name of another half and gets a number</source>
    <translation>seine Hälfte heißt wie eine andere und bekommt eine Nummer</translation>
  </message>
  <message id="CLI_NAME_TAKEN_ADVICE">
    <source>rename one of the two; if they are in different folders, --out with the folder above both keeps them apart</source>
    <translation>eines der beiden umbenennen; liegen sie in verschiedenen Ordnern, so hält --out mit dem Ordner über beiden sie getrennt</translation>
  </message>
  <message id="CLI_NO_MARKED_PICTURE">
    <source>holds no .png marked @2x or -hd</source>
    <translation>enthält kein .png mit @2x oder -hd im Namen</translation>
  </message>
  <message id="CLI_NO_WORKING_FOLDER">
    <source>the working folder has been removed</source>
    <translation>der Arbeitsordner wurde gelöscht</translation>
  </message>
  <message id="CLI_MISSING_FILES">
    <source>missing in [FOLDER]: [FILES]</source>
    <translation>es fehlen in [FOLDER]: [FILES]</translation>
  </message>
  <message id="CLI_INTERRUPTED">
    <source>interrupted; [DONE] of [TOTAL] files are whole</source>
    <translation>unterbrochen; [DONE] von [TOTAL] Dateien sind fertig</translation>
  </message>
  <message id="CLI_INTERRUPTED_ADVICE">
    <source>run it again for the rest</source>
    <translation>für den Rest noch einmal starten</translation>
  </message>
  <message id="CLI_STANDARD_INPUT">
    <source>standard input</source>
    <translation>Standardeingabe</translation>
  </message>
  <message id="CLI_STANDARD_OUTPUT">
    <source>standard output</source>
    <translation>Standardausgabe</translation>
  </message>
  <message id="CLI_STANDARD_OUTPUT_ADVICE">
    <source>check where it goes</source>
    <translation>prüfen, wohin sie geht</translation>
  </message>
  <message id="CLI_DOWNSCALE_SOURCE_STAYS">
    <source>choose another folder</source>
    <translation>einen anderen Ordner nehmen</translation>
  </message>
  <message id="CLI_DRY_EXISTS">
    <source>exists, would be left as it is</source>
    <translation>vorhanden, bliebe, wie es ist</translation>
  </message>
  <message id="CLI_DOWNSCALE_KEPT">
    <source>left as they are: [COUNT] files that are there already; replace them with --overwrite</source>
    <translation>unverändert: [COUNT] Dateien, die es schon gibt; mit --overwrite werden sie ersetzt</translation>
  </message>
  <message id="CLI_DRY_REPLACES">
    <source>exists, would be replaced</source>
    <translation>vorhanden, würde ersetzt</translation>
  </message>
  <message id="CLI_NO_COLOR">
    <source>is no color code</source>
    <translation>ist kein Farbcode</translation>
  </message>
  <message id="CLI_NO_COLOR_ADVICE">
    <source>give three or six hexadecimal digits, with or without #, such as #abc or #34485e, or add --form for a color in any form</source>
    <translation>drei oder sechs hexadezimale Ziffern angeben, mit oder ohne #, etwa #abc oder #34485e, oder --form dazusetzen für eine Farbe in jeder Form</translation>
  </message>
  <message id="CLI_NOT_NAMED_IPA">
    <source>the name does not end in .ipa, .app or .xcarchive</source>
    <translation>der Name endet nicht auf .ipa, .app oder .xcarchive</translation>
  </message>
  <message id="CLI_NOT_NAMED_IPA_ADVICE">
    <source>rename it so that it ends in one of these, in small letters</source>
    <translation>so umbenennen, dass er auf eines davon endet, in Kleinbuchstaben</translation>
  </message>
  <message id="CLI_DAMAGED_ENTRY">
    <source>[ENTRY] is damaged or encrypted</source>
    <translation>[ENTRY] ist beschädigt oder verschlüsselt</translation>
  </message>
  <message id="CLI_DAMAGED_ENTRY_ADVICE">
    <source>pack the app again</source>
    <translation>die App neu packen</translation>
  </message>
  <message id="CLI_NO_INFO_PLIST">
    <source>has no readable Info.plist, so nothing is known of the app</source>
    <translation>hat keine lesbare Info.plist, also ist von der App nichts bekannt</translation>
  </message>
  <message id="CLI_NO_ICON">
    <source>has no icon that can be shown, so none was written</source>
    <translation>hat kein Icon, das sich zeigen ließe, also wurde keines geschrieben</translation>
  </message>
  <message id="CLI_NONE">
    <source>none</source>
    <translation>keine</translation>
  </message>
  <message id="CLI_FACT_NAME">
    <source>Name</source>
    <translation>Name</translation>
  </message>
  <message id="CLI_FACT_VERSION">
    <source>Version</source>
    <translation>Version</translation>
  </message>
  <message id="CLI_FACT_PLATFORM">
    <source>Platform</source>
    <translation>Plattform</translation>
  </message>
  <message id="CLI_FACT_MINIMUM_OS">
    <source>Minimum OS</source>
    <translation>Mindestsystem</translation>
  </message>
  <message id="CLI_FACT_IDENTIFIER">
    <source>Bundle identifier</source>
    <translation>Paketkennung</translation>
  </message>
  <message id="CLI_FACT_BUILD">
    <source>Build</source>
    <translation>Build</translation>
  </message>
  <message id="CLI_FACT_LOCALIZATIONS">
    <source>Localizations</source>
    <translation>Sprachen</translation>
  </message>
  <message id="CLI_FACT_URL_SCHEMES">
    <source>URL schemes</source>
    <translation>URL-Schemata</translation>
  </message>
  <message id="CLI_FACT_FACEBOOK">
    <source>Facebook app ID</source>
    <translation>Facebook-App-ID</translation>
  </message>
  <message id="CLI_CHECK_VALID">
    <source>valid</source>
    <translation>gültig</translation>
  </message>
  <message id="CLI_CHECK_INVALID">
    <source>INVALID</source>
    <translation>UNGÜLTIG</translation>
  </message>
  <message id="CLI_CHECK_PRESENT">
    <source>present</source>
    <translation>da</translation>
  </message>
  <message id="CLI_CHECK_ABSENT">
    <source>absent</source>
    <translation>fehlt</translation>
  </message>
  <message id="CLI_CHECK_ICONS">
    <source>icons</source>
    <translation>Icons</translation>
  </message>
  <message id="CLI_CHECK_MISSING">
    <source>missing [SIZES]</source>
    <translation>es fehlen [SIZES]</translation>
  </message>
  <message id="CLI_CHECK_LAUNCH_IMAGES">
    <source>launch images</source>
    <translation>Startbilder</translation>
  </message>
  <message id="CLI_CHECK_NONE_OF">
    <source>none of [SIZES]</source>
    <translation>keines von [SIZES]</translation>
  </message>
  <message id="CLI_CHECK_IDENTIFIER">
    <source>bundle identifier</source>
    <translation>Paketkennung</translation>
  </message>
  <message id="CLI_CHECK_NOT_IN_PROFILE">
    <source>not in the provisioning profile</source>
    <translation>nicht im Bereitstellungsprofil</translation>
  </message>
  <message id="CLI_CHECK_LOCALIZATIONS">
    <source>localizations</source>
    <translation>Sprachen</translation>
  </message>
  <message id="CLI_NO_DISPLAY">
    <source>no display to open the window on; these commands work without one: [WORDS]</source>
    <translation>kein Bildschirm für das Fenster; ohne einen gehen diese Befehle: [WORDS]</translation>
  </message>
  <message id="CLI_COLOR_FORM">
    <source>Today's forms to print, several separated by commas: [WORDS]; TEXT is understood in any of them, or as a CSS name</source>
    <translation>Heutige Formen, mehrere durch Kommas getrennt: [WORDS]; TEXT wird in jeder davon verstanden, auch als CSS-Name</translation>
  </message>
  <message id="CLI_COLOR_ALL">
    <source>Print every form of today, each with its name</source>
    <translation>Alle heutigen Formen ausgeben, jede mit ihrem Namen</translation>
  </message>
  <message id="CLI_COLOR_P3">
    <source>Print forms that have one in their Display P3 variant</source>
    <translation>Formen, die eine haben, in ihrer Display-P3-Variante ausgeben</translation>
  </message>
  <message id="CLI_COLOR_CONTRAST">
    <source>Judge the contrast with another color by WCAG 2</source>
    <translation>Den Kontrast zu einer anderen Farbe nach WCAG 2 beurteilen</translation>
  </message>
  <message id="CLI_COLOR_NO_FORM">
    <source>is no color in a form that is known</source>
    <translation>ist keine Farbe in einer bekannten Form</translation>
  </message>
  <message id="CLI_COLOR_NO_FORM_ADVICE">
    <source>write it as code would, such as #336699, rgb(51 102 153) or Color(0xFF336699), or as a CSS name</source>
    <translation>wie im Code schreiben, etwa #336699, rgb(51 102 153) oder Color(0xFF336699), oder als CSS-Name</translation>
  </message>
  <message id="CLI_COLOR_CLIPPED">
    <source>[COLOR] is beyond sRGB; its sRGB forms are the nearest by component</source>
    <translation>[COLOR] liegt außerhalb von sRGB; die sRGB-Formen sind je Komponente die nächsten</translation>
  </message>
  <message id="CLI_DEVICES_TODAY">
    <source>Use the list of all models to this day; with --json each with its facts</source>
    <translation>Die Liste aller Modelle bis heute nehmen; mit --json jedes mit seinen Daten</translation>
  </message>
  <message id="CLI_DEVICES_FAMILY">
    <source>Of today's models, the families wanted: [WORDS]</source>
    <translation>Von den heutigen Modellen die gewünschten Familien: [WORDS]</translation>
  </message>
  <message id="CLI_DEVICES_CHIP">
    <source>Of today's models, those with exactly this chip, such as A12, M4 or A19 Pro; A19 is another one</source>
    <translation>Von den heutigen Modellen die mit genau diesem Chip, etwa A12, M4 oder A19 Pro; A19 ist ein anderer</translation>
  </message>
  <message id="CLI_DEVICES_CAPABILITY">
    <source>Of today's models, those with what the app requires: [WORDS]</source>
    <translation>Von den heutigen Modellen die mit dem, was die App verlangt: [WORDS]</translation>
  </message>
  <message id="CLI_DEVICES_SCREEN">
    <source>Of today's models, those of a screen class of the App Store: [WORDS]</source>
    <translation>Von den heutigen Modellen die einer Bildschirmklasse des App Store: [WORDS]</translation>
  </message>
  <message id="CLI_DEVICES_BIOMETRY">
    <source>Of today's models, those with the biometry: [WORDS]</source>
    <translation>Von den heutigen Modellen die mit der Biometrie: [WORDS]</translation>
  </message>
  <message id="CLI_DEVICES_WITH">
    <source>Of today's models, those that have: [WORDS]</source>
    <translation>Von den heutigen Modellen die mit: [WORDS]</translation>
  </message>
  <message id="CLI_DEVICES_SEARCH">
    <source>Of today's models, those with these words in name or identifier</source>
    <translation>Von den heutigen Modellen die mit diesen Wörtern in Name oder Kennung</translation>
  </message>
  <message id="CLI_DEVICES_MODEL">
    <source>Print one of today's models by name or identifier; may be given several times to compare</source>
    <translation>Ein heutiges Modell nach Name oder Kennung ausgeben; mehrmals gegeben zum Vergleich</translation>
  </message>
  <message id="CLI_DEVICES_DATA">
    <source>Read today's models from a list of one's own, in the form of the built-in one</source>
    <translation>Die heutigen Modelle aus einer eigenen Liste in der Form der eingebauten lesen</translation>
  </message>
  <message id="CLI_DEVICES_CSV">
    <source>Print today's models as comma-separated values</source>
    <translation>Die heutigen Modelle als kommagetrennte Werte ausgeben</translation>
  </message>
  <message id="CLI_DEVICES_NO_RANGE">
    <source>is no range of versions such as 15.., ..12 or 9..12.4</source>
    <translation>ist kein Bereich von Versionen wie 15.., ..12 oder 9..12.4</translation>
  </message>
  <message id="CLI_DEVICES_NO_CHIP">
    <source>is no chip in the list</source>
    <translation>ist kein Chip in der Liste</translation>
  </message>
  <message id="CLI_DEVICES_IOS_TODAY">
    <source>add --today, which knows all versions</source>
    <translation>--today dazusetzen, das alle Versionen kennt</translation>
  </message>
  <message id="CLI_DEVICES_NO_MODEL">
    <source>is no model in the list</source>
    <translation>ist kein Modell in der Liste</translation>
  </message>
  <message id="CLI_DEVICES_NO_MODEL_ADVICE">
    <source>name it as in lumora devices --today, or by identifier such as iPhone15,2</source>
    <translation>so nennen wie in lumora devices --today oder mit der Kennung wie iPhone15,2</translation>
  </message>
  <message id="CLI_DEVICES_DATA_ADVICE">
    <source>mend the list</source>
    <translation>die Liste in Ordnung bringen</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_TEXT">
    <source>What the pictures say; {size}, {width} and {height} are filled in, \n begins a line</source>
    <translation>Was auf den Bildern steht; {size}, {width} und {height} werden ersetzt, \n beginnt eine Zeile</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_FOREGROUND">
    <source>Color of the text, in any form of lumora color</source>
    <translation>Farbe des Textes, in jeder Form von lumora color</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_BACKGROUND">
    <source>Color of the ground, in any form of lumora color</source>
    <translation>Farbe des Grundes, in jeder Form von lumora color</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_FORMAT">
    <source>File type: [WORDS]</source>
    <translation>Dateityp: [WORDS]</translation>
  </message>
  <message id="CLI_QUALITY">
    <source>Pack WebP with loss, at a quality from 0 to 100</source>
    <translation>WebP mit Verlust packen, in einer Qualität von 0 bis 100</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_CHECK">
    <source>Write nothing; hold the screenshots in DIR against the stores' rules, with --set app-store or play against those</source>
    <translation>Nichts schreiben; die Bildschirmfotos in DIR an den Regeln der Stores messen, mit --set app-store oder play an deren</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_NO_SHAPE">
    <source>cannot be written in the labels' font</source>
    <translation>lässt sich in der Schrift der Aufschriften nicht schreiben</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_CHECKED">
    <source>[COUNT] pictures looked at</source>
    <translation>[COUNT] Bilder angesehen</translation>
  </message>
  <message id="CLI_NEEDS">
    <source>[FIRST] goes with [SECOND] only</source>
    <translation>[FIRST] gehört zu [SECOND]</translation>
  </message>
  <message id="CLI_DOWNSCALE_LAYOUT">
    <source>Make all missing densities of the pictures in the folders, filed as in projects for: [WORDS]; ios where none is given</source>
    <translation>Alle fehlenden Auflösungen der Bilder in den Ordnern anlegen, abgelegt wie in Projekten für: [WORDS]; ohne Angabe ios</translation>
  </message>
  <message id="CLI_DOWNSCALE_FROM">
    <source>Density to scale from, such as 3x or xxxhdpi, or svg for the drawings in the folders; the largest of each picture where none is given</source>
    <translation>Auflösung, von der skaliert wird, etwa 3x oder xxxhdpi, oder svg für die Zeichnungen in den Ordnern; ohne Angabe die größte jedes Bildes</translation>
  </message>
  <message id="CLI_DOWNSCALE_TO_SCALES">
    <source>Densities to make, several separated by commas, such as 2x,1x</source>
    <translation>Auflösungen, die entstehen sollen, mehrere durch Kommas getrennt, etwa 2x,1x</translation>
  </message>
  <message id="CLI_DOWNSCALE_FORMAT">
    <source>File type of the densities: [WORDS]; that of the source where none is given</source>
    <translation>Dateityp der Auflösungen: [WORDS]; ohne Angabe der der Quelle</translation>
  </message>
  <message id="CLI_DOWNSCALE_ROUNDED">
    <source>rounded to whole pixels</source>
    <translation>auf ganze Pixel gerundet</translation>
  </message>
  <message id="CLI_DOWNSCALE_NO_SCALE">
    <source>is no density; give 1x, 1.5x, 2x, 3x, 4x or a name such as xxhdpi</source>
    <translation>ist keine Auflösung; 1x, 1.5x, 2x, 3x, 4x oder einen Namen wie xxhdpi angeben</translation>
  </message>
  <message id="CLI_DOWNSCALE_NO_SOURCE_SCALE">
    <source>is no density; give 1x, 1.5x, 2x, 3x, 4x, a name such as xxhdpi, or svg</source>
    <translation>ist keine Auflösung; 1x, 1.5x, 2x, 3x, 4x, einen Namen wie xxhdpi oder svg angeben</translation>
  </message>
  <message id="CLI_DOWNSCALE_NOT_BELOW">
    <source>[SCALE] is not below [FROM]</source>
    <translation>[SCALE] ist nicht kleiner als [FROM]</translation>
  </message>
  <message id="CLI_DOWNSCALE_NOT_OF_LAYOUT">
    <source>[SCALE] has no place in the layout [LAYOUT]</source>
    <translation>[SCALE] hat in der Ablage [LAYOUT] keinen Platz</translation>
  </message>
  <message id="CLI_DOWNSCALE_SOURCES_ADVICE">
    <source>use PNG or WebP files that state their density, such as logo@3x.png, SVG drawings, or folders of them</source>
    <translation>PNG- oder WebP-Dateien nehmen, die ihre Auflösung nennen, etwa logo@3x.png, SVG-Zeichnungen oder Ordner mit ihnen</translation>
  </message>
  <message id="DETAIL_SVG_ENTITIES">
    <source>it declares entities; save it as plain SVG</source>
    <translation>sie erklärt Entitäten; als einfaches SVG speichern</translation>
  </message>
  <message id="DETAIL_SVG_STYLE_SHEET">
    <source>it names a style sheet outside of it; save it as plain SVG</source>
    <translation>sie nennt ein Stylesheet außerhalb; als einfaches SVG speichern</translation>
  </message>
  <message id="DETAIL_SVG_LINE">
    <source>[ERROR] in line [LINE]</source>
    <translation>[ERROR] in Zeile [LINE]</translation>
  </message>
  <message id="DETAIL_SVG_EMPTY">
    <source>it holds no element</source>
    <translation>sie enthält kein Element</translation>
  </message>
  <message id="DETAIL_SVG_TOO_MUCH">
    <source>its shapes come to more than can be drawn in reasonable time</source>
    <translation>ihre Formen sind zu viele, um sie in vertretbarer Zeit zu zeichnen</translation>
  </message>
  <message id="DETAIL_NO_SVG">
    <source>it is no SVG drawing</source>
    <translation>sie ist keine SVG-Zeichnung</translation>
  </message>
  <message id="DETAIL_SVG_SCRIPT">
    <source>it holds a script or a foreign object; save it as plain SVG</source>
    <translation>sie enthält ein Skript oder ein fremdes Objekt; als einfaches SVG speichern</translation>
  </message>
  <message id="DETAIL_SVG_TEXT">
    <source>it holds text, which looks different on every machine; turn it into paths</source>
    <translation>sie enthält Text, der auf jedem Rechner anders aussieht; in Pfade umwandeln</translation>
  </message>
  <message id="DETAIL_SVG_ANIMATED">
    <source>it is animated; save one picture of it</source>
    <translation>sie ist animiert; ein Bild davon speichern</translation>
  </message>
  <message id="DETAIL_SVG_OUTSIDE">
    <source>it names something outside of it, [TARGET]; embed it</source>
    <translation>sie nennt etwas außerhalb, [TARGET]; einbetten</translation>
  </message>
  <message id="DETAIL_SVG_PICTURE_BROKEN">
    <source>a picture inside it cannot be read</source>
    <translation>ein Bild darin lässt sich nicht lesen</translation>
  </message>
  <message id="DETAIL_SVG_PICTURE_LARGE">
    <source>a picture inside it is too large</source>
    <translation>ein Bild darin ist zu groß</translation>
  </message>
  <message id="DETAIL_SVG_STYLE_OUTSIDE">
    <source>its style names something outside of it; embed it</source>
    <translation>ihr Stil nennt etwas außerhalb; einbetten</translation>
  </message>
  <message id="DETAIL_SVG_ENDLESS">
    <source>a shape of it repeats itself without end</source>
    <translation>eine Form darin wiederholt sich ohne Ende</translation>
  </message>
  <message id="DETAIL_SVG_NO_SIZE">
    <source>it has no size; give it a viewBox</source>
    <translation>sie hat keine Größe; eine viewBox angeben</translation>
  </message>
  <message id="DETAIL_SVG_NOT_SQUARE">
    <source>[WIDTH] x [HEIGHT], not square</source>
    <translation>[WIDTH] x [HEIGHT], nicht quadratisch</translation>
  </message>
  <message id="DETAIL_MAUI_SVG">
    <source>a .NET MAUI project takes an SVG file</source>
    <translation>ein Projekt mit .NET MAUI nimmt eine SVG-Datei</translation>
  </message>
  <message id="DETAIL_PROGRAM">
    <source>it is a program that only Expo runs</source>
    <translation>es ist ein Programm, das nur Expo ausführt</translation>
  </message>
  <message id="DETAIL_NOT_PUT_BACK">
    <source>[REASON]could not be put back: [FILES]</source>
    <translation>[REASON]nicht zurückgelegt: [FILES]</translation>
  </message>
  <message id="DETAIL_BOTH_WANT">
    <source>[FIRST] and [SECOND] both want [FILE]</source>
    <translation>[FIRST] und [SECOND] wollen beide [FILE]</translation>
  </message>
  <message id="DETAIL_NO_ICON_PLACES">
    <source>[PROJECTS] without a place for icons; make its platforms first</source>
    <translation>[PROJECTS] ohne Platz für Icons; erst die Plattformen anlegen</translation>
  </message>
  <message id="DETAIL_UNNAMED_ICON_SETS">
    <source>no icon set is named in the project, and none is AppIcon: [SETS]</source>
    <translation>kein Icon-Satz ist im Projekt genannt, und keiner heißt AppIcon: [SETS]</translation>
  </message>
  <message id="DETAIL_ICON_SETS">
    <source>several icon sets: [SETS]</source>
    <translation>mehrere Icon-Sätze: [SETS]</translation>
  </message>
  <message id="DETAIL_FLAVOR_SETS">
    <source>no icon set is AppIcon: [SETS]</source>
    <translation>kein Icon-Satz heißt AppIcon: [SETS]</translation>
  </message>
  <message id="DETAIL_NO_ICON_SET">
    <source>neither a target with an icon nor an icon set is named [NAME]; there are [SETS]</source>
    <translation>weder ein Target mit Icon noch ein Icon-Satz heißt [NAME]; es gibt [SETS]</translation>
  </message>
  <message id="DETAIL_MANIFEST_ICON">
    <source>android:icon="[NAME]" is no picture of the app</source>
    <translation>android:icon="[NAME]" ist kein Bild der App</translation>
  </message>
  <message id="DETAIL_NO_OPAQUE_COLOR">
    <source>no opaque color; write #RRGGBB or a name such as navy</source>
    <translation>keine deckende Farbe; #RRGGBB oder einen Namen wie navy schreiben</translation>
  </message>
  <message id="DETAIL_NO_COLOR_OR_FILE">
    <source>neither an opaque color nor a file</source>
    <translation>weder eine deckende Farbe noch eine Datei</translation>
  </message>
  <message id="DETAIL_NO_FILE_NAME">
    <source>files get this name: no slash, no dot at its beginning</source>
    <translation>Dateien heißen so: kein Schrägstrich, kein Punkt am Anfang</translation>
  </message>
  <message id="DETAIL_NO_FLAVOR">
    <source>no flavor [NAME] in [PROJECTS]</source>
    <translation>keine Variante [NAME] in [PROJECTS]</translation>
  </message>
  <message id="DETAIL_NO_TARGET">
    <source>no target [NAME] in [PROJECTS]</source>
    <translation>kein Target [NAME] in [PROJECTS]</translation>
  </message>
  <message id="DETAIL_DAMAGED">
    <source>damaged</source>
    <translation>beschädigt</translation>
  </message>
  <message id="DETAIL_PQ_OR_HLG">
    <source>PQ or HLG</source>
    <translation>PQ oder HLG</translation>
  </message>
  <message id="DETAIL_ENTRIES">
    <source>[COUNT] entries</source>
    <translation>[COUNT] Einträge</translation>
  </message>
  <message id="DETAIL_MORE_FILES">
    <source>more than [COUNT] files and folders</source>
    <translation>mehr als [COUNT] Dateien und Ordner</translation>
  </message>
  <message id="DETAIL_ENTRY_UNOPENED">
    <source>entry [NUMBER] cannot be opened</source>
    <translation>Eintrag [NUMBER] lässt sich nicht öffnen</translation>
  </message>
  <message id="DETAIL_ENTRY_UNDESCRIBED">
    <source>entry [NUMBER] has no readable description</source>
    <translation>Eintrag [NUMBER] hat keine lesbare Beschreibung</translation>
  </message>
  <message id="DETAIL_NO_ORDINARY_FILE">
    <source>no ordinary file</source>
    <translation>keine gewöhnliche Datei</translation>
  </message>
  <message id="DETAIL_MORE_UNPACKED">
    <source>more than [SIZE] MB unpacked</source>
    <translation>entpackt mehr als [SIZE] MB</translation>
  </message>
  <message id="DETAIL_DISK_NEARLY_FULL">
    <source>the disk is nearly full</source>
    <translation>die Platte ist fast voll</translation>
  </message>
  <message id="DETAIL_PACKAGE_NAME">
    <source>the name does not end in .ipa, .app or .xcarchive</source>
    <translation>der Name endet nicht auf .ipa, .app oder .xcarchive</translation>
  </message>
  <message id="DETAIL_NO_APP">
    <source>no app in its Payload folder</source>
    <translation>keine App im Ordner Payload</translation>
  </message>
  <message id="DETAIL_NO_REGULAR_FILE">
    <source>not a regular file</source>
    <translation>keine gewöhnliche Datei</translation>
  </message>
  <message id="DETAIL_NO_MEMORY">
    <source>not enough memory</source>
    <translation>der Speicher reicht nicht</translation>
  </message>
  <message id="DETAIL_UNKNOWN_COLOR_FORM">
    <source>no color in any form that is known</source>
    <translation>keine Farbe in einer bekannten Form</translation>
  </message>
  <message id="DETAIL_EMPTY_PICTURE">
    <source>the picture is empty</source>
    <translation>das Bild ist leer</translation>
  </message>
  <message id="DETAIL_WEBP_ERROR">
    <source>WebP error [NUMBER]</source>
    <translation>WebP-Fehler [NUMBER]</translation>
  </message>
  <message id="DETAIL_MORE_PICTURES">
    <source>more than [COUNT] pictures</source>
    <translation>mehr als [COUNT] Bilder</translation>
  </message>
  <message id="DETAIL_MORE_SIZES">
    <source>more than [COUNT] sizes</source>
    <translation>mehr als [COUNT] Größen</translation>
  </message>
  <message id="DETAIL_CAME_MEANWHILE">
    <source>a file of that name has come meanwhile</source>
    <translation>inzwischen gibt es eine Datei dieses Namens</translation>
  </message>
  <message id="DETAIL_CHANGED_SINCE">
    <source>it has changed since it was looked at</source>
    <translation>seit dem ersten Lesen geändert</translation>
  </message>
  <message id="DETAIL_NINE_PATCH">
    <source>a nine-patch picture</source>
    <translation>ein Nine-Patch-Bild</translation>
  </message>
  <message id="DETAIL_SAME_FILE">
    <source>[FILE] gives the same file</source>
    <translation>[FILE] ergibt dieselbe Datei</translation>
  </message>
  <message id="DETAIL_NO_DENSITY_PLACE">
    <source>not in a folder such as drawable-xxhdpi</source>
    <translation>nicht in einem Ordner wie drawable-xxhdpi</translation>
  </message>
  <message id="DETAIL_TOO_MANY_PICTURES">
    <source>more than 20,000 pictures</source>
    <translation>mehr als 20.000 Bilder</translation>
  </message>
  <message id="DETAIL_JPEG_NEEDS_FORMAT">
    <source>a JPEG picture, for which PNG or WebP must be chosen</source>
    <translation>ein JPEG-Bild, für das PNG oder WebP gewählt werden muss</translation>
  </message>
  <message id="DETAIL_NO_SCALABLE">
    <source>no picture to scale down from</source>
    <translation>kein Bild, das sich verkleinern lässt</translation>
  </message>
  <message id="DETAIL_MADE_NONE">
    <source>[PROGRAM] made none</source>
    <translation>[PROGRAM] hat keine geschrieben</translation>
  </message>
  <message id="DETAIL_IS_MISSING">
    <source>[FILE] is missing</source>
    <translation>[FILE] fehlt</translation>
  </message>
  <message id="DETAIL_NO_FILE_TYPE">
    <source>no such file type</source>
    <translation>kein solches Dateiformat</translation>
  </message>
  <!-- The rules for screenshots -->
  <message id="SHOT_RULE_SCREENSHOT_UNREADABLE">
    <source>The file is no picture that can be read</source>
    <translation>Die Datei ist kein lesbares Bild</translation>
  </message>
  <message id="SHOT_FIX_SCREENSHOT_UNREADABLE">
    <source>Save it again as PNG or JPEG</source>
    <translation>Noch einmal als PNG oder JPEG speichern</translation>
  </message>
  <message id="SHOT_RULE_SCREENSHOT_FORMAT">
    <source>Stores take PNG and JPEG only</source>
    <translation>Stores nehmen nur PNG und JPEG</translation>
  </message>
  <message id="SHOT_FIX_SCREENSHOT_FORMAT">
    <source>Save it as PNG</source>
    <translation>Als PNG speichern</translation>
  </message>
  <message id="SHOT_RULE_SCREENSHOT_ALPHA">
    <source>A screenshot may have no alpha channel</source>
    <translation>Ein Screenshot darf keinen Alphakanal haben</translation>
  </message>
  <message id="SHOT_FIX_SCREENSHOT_ALPHA">
    <source>Save it without transparency, even where every pixel is opaque</source>
    <translation>Ohne Transparenz speichern, auch wenn jedes Pixel deckt</translation>
  </message>
  <message id="SHOT_RULE_SCREENSHOT_RGB">
    <source>A screenshot has to be in RGB</source>
    <translation>Ein Screenshot muss in RGB sein</translation>
  </message>
  <message id="SHOT_FIX_SCREENSHOT_RGB">
    <source>Convert it from inks or shades of gray to RGB</source>
    <translation>Aus Druckfarben oder Graustufen in RGB umwandeln</translation>
  </message>
  <message id="SHOT_RULE_SCREENSHOT_SIZE">
    <source>The size is one that neither store takes</source>
    <translation>Diese Größe nimmt keiner der Stores</translation>
  </message>
  <message id="SHOT_FIX_SCREENSHOT_SIZE">
    <source>Take it on a device or simulator of a size in the stores' lists</source>
    <translation>Auf einem Gerät oder Simulator mit einer Größe aus den Listen der Stores aufnehmen</translation>
  </message>
  <message id="SHOT_RULE_APPSTORE_SIZE">
    <source>The App Store takes no screenshot of this size</source>
    <translation>Der App Store nimmt keinen Screenshot dieser Größe</translation>
  </message>
  <message id="SHOT_FIX_APPSTORE_SIZE">
    <source>Take it on a device or simulator of a size in the store's list, such as 1320 x 2868 or 2064 x 2752</source>
    <translation>Auf einem Gerät oder Simulator mit einer Größe aus der Liste des Stores aufnehmen, etwa 1320 x 2868 oder 2064 x 2752</translation>
  </message>
  <message id="SHOT_RULE_APPSTORE_COUNT">
    <source>The App Store takes ten screenshots of a screen size</source>
    <translation>Der App Store nimmt zehn Screenshots je Bildschirmgröße</translation>
  </message>
  <message id="SHOT_FIX_APPSTORE_COUNT">
    <source>Leave the others out</source>
    <translation>Die übrigen weglassen</translation>
  </message>
  <message id="SHOT_RULE_APPSTORE_IPHONE">
    <source>iPhone screenshots are wanted at 6.9 inches, or else at 6.5</source>
    <translation>Vom iPhone werden Screenshots in 6,9 Zoll verlangt, sonst in 6,5</translation>
  </message>
  <message id="SHOT_FIX_APPSTORE_IPHONE">
    <source>Add screenshots of 1320 x 2868, 1290 x 2796 or 1260 x 2736 pixels; the store scales them for the others</source>
    <translation>Screenshots mit 1320 x 2868, 1290 x 2796 oder 1260 x 2736 Pixeln hinzufügen; der Store verkleinert sie für die anderen</translation>
  </message>
  <message id="SHOT_RULE_APPSTORE_IPAD">
    <source>iPad screenshots are wanted at 13 inches</source>
    <translation>Vom iPad werden Screenshots in 13 Zoll verlangt</translation>
  </message>
  <message id="SHOT_FIX_APPSTORE_IPAD">
    <source>Add screenshots of 2064 x 2752 or 2048 x 2732 pixels; the store scales them for the others</source>
    <translation>Screenshots mit 2064 x 2752 oder 2048 x 2732 Pixeln hinzufügen; der Store verkleinert sie für die anderen</translation>
  </message>
  <message id="SHOT_RULE_PLAY_SIDE">
    <source>Play wants each side to have 320 to 3840 pixels</source>
    <translation>Play verlangt für jede Seite 320 bis 3840 Pixel</translation>
  </message>
  <message id="SHOT_FIX_PLAY_SIDE">
    <source>Scale it, or take it on another device</source>
    <translation>Skalieren oder auf einem anderen Gerät aufnehmen</translation>
  </message>
  <message id="SHOT_RULE_PLAY_RATIO">
    <source>Play wants the long side to be at most twice the short one</source>
    <translation>Play verlangt, dass die lange Seite höchstens doppelt so lang ist wie die kurze</translation>
  </message>
  <message id="SHOT_FIX_PLAY_RATIO">
    <source>Crop it, or take it on a device of another shape</source>
    <translation>Beschneiden oder auf einem Gerät anderer Form aufnehmen</translation>
  </message>
  <message id="SHOT_RULE_PLAY_FEWEST">
    <source>Play wants two screenshots at least</source>
    <translation>Play verlangt mindestens zwei Screenshots</translation>
  </message>
  <message id="SHOT_FIX_PLAY_FEWEST">
    <source>Add another</source>
    <translation>Einen weiteren hinzufügen</translation>
  </message>
  <message id="SHOT_RULE_PLAY_MOST">
    <source>Play takes eight screenshots of a kind of device</source>
    <translation>Play nimmt acht Screenshots je Geräteart</translation>
  </message>
  <message id="SHOT_FIX_PLAY_MOST">
    <source>Leave the others out</source>
    <translation>Die übrigen weglassen</translation>
  </message>
  <message id="SHOT_RULE_PLAY_PROMOTION">
    <source>Play promotes apps with screenshots of 1080 pixels and 16:9</source>
    <translation>Play bewirbt Apps mit Screenshots von 1080 Pixeln in 16:9</translation>
  </message>
  <message id="SHOT_FIX_PLAY_PROMOTION">
    <source>Add screenshots of 1080 x 1920 or 1920 x 1080 pixels</source>
    <translation>Screenshots mit 1080 x 1920 oder 1920 x 1080 Pixeln hinzufügen</translation>
  </message>
  <message id="SHOT_RULE_PLAY_TABLET">
    <source>Play advises four screenshots or more of a tablet</source>
    <translation>Play rät zu mindestens vier Screenshots eines Tablets</translation>
  </message>
  <message id="SHOT_FIX_PLAY_TABLET">
    <source>Add others</source>
    <translation>Weitere hinzufügen</translation>
  </message>
  <message id="SHOT_RULE_PLAY_FEATURE_GRAPHIC">
    <source>The feature graphic has to be 1024 x 500 pixels</source>
    <translation>Die Funktionsgrafik muss 1024 x 500 Pixel haben</translation>
  </message>
  <message id="SHOT_RULE_PLAY_PNG_24">
    <source>Google asks for PNG files of 24 bits a pixel</source>
    <translation>Google verlangt PNG-Dateien mit 24 Bit je Pixel</translation>
  </message>
  <message id="SHOT_FIX_PLAY_FEATURE_GRAPHIC">
    <source>Draw it in that size</source>
    <translation>In dieser Größe zeichnen</translation>
  </message>
  <message id="SHOT_FIX_PLAY_PNG_24">
    <source>Save it as RGB with 8 bits a channel</source>
    <translation>Als RGB mit 8 Bit je Kanal speichern</translation>
  </message>
  <message id="SHOT_RULE_SCREENSHOT_NONE">
    <source>There is no picture in the folder</source>
    <translation>Im Ordner ist kein Bild</translation>
  </message>
  <message id="SHOT_FIX_SCREENSHOT_NONE">
    <source>Name the folder that holds the screenshots</source>
    <translation>Den Ordner mit den Screenshots angeben</translation>
  </message>
  <message id="SHOT_HAS_ALPHA">
    <source>it has an alpha channel</source>
    <translation>hat einen Alphakanal</translation>
  </message>
  <message id="SHOT_OTHER_CHANNELS">
    <source>it has other channels</source>
    <translation>hat andere Kanäle</translation>
  </message>
  <message id="SHOT_SMALLER_ONLY">
    <source>smaller screens only</source>
    <translation>nur kleinere Bildschirme</translation>
  </message>
  <message id="SHOT_NO_PICTURE">
    <source>no picture</source>
    <translation>kein Bild</translation>
  </message>
  <message id="SHOT_COUNT_OF">
    <source>[COUNT] of [SCREEN]</source>
    <translation>[COUNT] für [SCREEN]</translation>
  </message>
  <message id="SHOT_ONE">
    <source>1 screenshot</source>
    <translation>1 Screenshot</translation>
  </message>
  <message id="SHOT_COUNT">
    <source>[COUNT] screenshots</source>
    <translation>[COUNT] Screenshots</translation>
  </message>
  <message id="SHOT_ERROR">
    <source>error</source>
    <translation>Fehler</translation>
  </message>
  <message id="SHOT_WARNING">
    <source>warning</source>
    <translation>Warnung</translation>
  </message>
  <message id="SHOT_NOTE">
    <source>note</source>
    <translation>Hinweis</translation>
  </message>

  <!-- More on failures -->
  <message id="DETAIL_PIXELS">
    <source>[WIDTH] x [HEIGHT] pixels</source>
    <translation>[WIDTH] x [HEIGHT] Pixel</translation>
  </message>
  <message id="DETAIL_PIXELS_NOT_WANTED">
    <source>[WIDTH] x [HEIGHT] pixels, not [WANTED_WIDTH] x [WANTED_HEIGHT] pixels</source>
    <translation>[WIDTH] x [HEIGHT] Pixel statt [WANTED_WIDTH] x [WANTED_HEIGHT] Pixel</translation>
  </message>
  <message id="DETAIL_PALETTE">
    <source>palette</source>
    <translation>Farbpalette</translation>
  </message>
  <message id="DETAIL_16_BITS">
    <source>16 bits a channel</source>
    <translation>16 Bit je Kanal</translation>
  </message>
  <message id="DETAIL_INTERLACED">
    <source>interlaced</source>
    <translation>mit Zeilensprung</translation>
  </message>
  <message id="DETAIL_OF_DP">
    <source>[FOUND] of [LIMIT] dp</source>
    <translation>[FOUND] von [LIMIT] dp</translation>
  </message>
  <message id="DETAIL_OF_PERCENT">
    <source>[FOUND] of [LIMIT] percent</source>
    <translation>[FOUND] von [LIMIT] Prozent</translation>
  </message>
  <message id="DETAIL_BYTES">
    <source>[COUNT] bytes</source>
    <translation>[COUNT] Byte</translation>
  </message>
  <message id="DETAIL_MORE_COLORS">
    <source>more than [COUNT] colors</source>
    <translation>mehr als [COUNT] Farben</translation>
  </message>
  <message id="DETAIL_UNKNOWN_COLOR">
    <source>[NAME]: [COLOR] is no color that is known</source>
    <translation>[NAME]: [COLOR] ist keine bekannte Farbe</translation>
  </message>
  <message id="DETAIL_LINE">
    <source>line [LINE]</source>
    <translation>Zeile [LINE]</translation>
  </message>
  <message id="DETAIL_UNKNOWN_COLOR_SET">
    <source>a color set with a color that is not known</source>
    <translation>ein Farbsatz mit einer unbekannten Farbe</translation>
  </message>
  <message id="DETAIL_NO_COLOR">
    <source>no color in it</source>
    <translation>keine Farbe darin</translation>
  </message>
  <message id="DETAIL_QUOTATION_MARKS">
    <source>line [LINE]: quotation marks do not match</source>
    <translation>Zeile [LINE]: die Anführungszeichen passen nicht zusammen</translation>
  </message>
  <message id="DETAIL_LONG_FIELD">
    <source>line [LINE]: a field of more than [COUNT] characters</source>
    <translation>Zeile [LINE]: ein Feld mit mehr als [COUNT] Zeichen</translation>
  </message>
  <message id="DETAIL_COLUMNS">
    <source>line [LINE]: [COUNT] columns are wanted</source>
    <translation>Zeile [LINE]: verlangt sind [COUNT] Spalten</translation>
  </message>
  <message id="DETAIL_FIELD_EMPTY">
    <source>line [LINE]: [COLUMN] is empty</source>
    <translation>Zeile [LINE]: [COLUMN] ist leer</translation>
  </message>
  <message id="DETAIL_FIELD_NUMBER">
    <source>line [LINE]: [COLUMN] is no number from 1 to [MOST]</source>
    <translation>Zeile [LINE]: [COLUMN] ist keine Zahl von 1 bis [MOST]</translation>
  </message>
  <message id="DETAIL_FIELD_INCHES">
    <source>line [LINE]: [COLUMN] is no number of inches from 1 to 100</source>
    <translation>Zeile [LINE]: [COLUMN] ist keine Zahl von 1 bis 100 Zoll</translation>
  </message>
  <message id="DETAIL_FIELD_PRINTABLE">
    <source>line [LINE]: [COLUMN] holds characters that do not print</source>
    <translation>Zeile [LINE]: [COLUMN] enthält Zeichen, die sich nicht anzeigen lassen</translation>
  </message>
  <message id="DETAIL_FIELD_VERSION">
    <source>line [LINE]: [COLUMN] is no version such as 12.5.8</source>
    <translation>Zeile [LINE]: [COLUMN] ist keine Version wie 12.5.8</translation>
  </message>
  <message id="DETAIL_FIELD_DATE">
    <source>line [LINE]: [COLUMN] is no date such as 2022-09-16 or 2010-09</source>
    <translation>Zeile [LINE]: [COLUMN] ist kein Datum wie 2022-09-16 oder 2010-09</translation>
  </message>
  <message id="DETAIL_ARCHITECTURE_FLAG">
    <source>line [LINE]: arch and cap_arm64 contradict each other</source>
    <translation>Zeile [LINE]: arch und cap_arm64 widersprechen sich</translation>
  </message>
  <message id="DETAIL_FIELD_ARCHITECTURE">
    <source>line [LINE]: arch is none of armv6, armv7, armv7s, arm64, arm64e</source>
    <translation>Zeile [LINE]: arch ist nicht armv6, armv7, armv7s, arm64 oder arm64e</translation>
  </message>
  <message id="DETAIL_FIELD_BIOMETRY">
    <source>line [LINE]: [COLUMN] is none of none, touchid, faceid</source>
    <translation>Zeile [LINE]: [COLUMN] ist weder none noch touchid noch faceid</translation>
  </message>
  <message id="DETAIL_FIELD_HAVING">
    <source>line [LINE]: [COLUMN] is neither 0 nor 1 nor empty</source>
    <translation>Zeile [LINE]: [COLUMN] ist weder 0 noch 1 noch leer</translation>
  </message>
  <message id="DETAIL_FIELD_FLAG">
    <source>line [LINE]: [COLUMN] is neither 0 nor 1</source>
    <translation>Zeile [LINE]: [COLUMN] ist weder 0 noch 1</translation>
  </message>
  <message id="DETAIL_FOREIGN_MODEL">
    <source>line [LINE]: identifier is of no iPhone, iPad or iPod</source>
    <translation>Zeile [LINE]: identifier gehört zu keinem iPhone, iPad oder iPod</translation>
  </message>
  <message id="DETAIL_VERSION_ORDER">
    <source>line [LINE]: maxOS comes before minOS</source>
    <translation>Zeile [LINE]: maxOS liegt vor minOS</translation>
  </message>
  <message id="DETAIL_PART_OF_SCREEN">
    <source>line [LINE]: the screen's sizes are given in part</source>
    <translation>Zeile [LINE]: die Maße des Bildschirms sind unvollständig</translation>
  </message>
  <message id="DETAIL_RENDER_SIZE">
    <source>line [LINE]: render_width_px x render_height_px is not width_pt x height_pt times scale</source>
    <translation>Zeile [LINE]: render_width_px x render_height_px ist nicht width_pt x height_pt mal scale</translation>
  </message>
  <message id="DETAIL_NOT_PORTRAIT">
    <source>line [LINE]: width_px x height_px is not in portrait</source>
    <translation>Zeile [LINE]: width_px x height_px ist nicht hochkant</translation>
  </message>
  <message id="DETAIL_MORE_THAN_MEBIBYTE">
    <source>more than 1 MiB</source>
    <translation>mehr als 1 MiB</translation>
  </message>
  <message id="DETAIL_NOT_UTF8">
    <source>not UTF-8 text</source>
    <translation>kein UTF-8-Text</translation>
  </message>
  <message id="DETAIL_HEADER">
    <source>line [LINE]: the header is wanted: [HEADER]</source>
    <translation>Zeile [LINE]: verlangt ist die Kopfzeile: [HEADER]</translation>
  </message>
  <message id="DETAIL_MODEL_TWICE">
    <source>line [LINE]: [MODEL] is in line [FIRST] already</source>
    <translation>Zeile [LINE]: [MODEL] steht schon in Zeile [FIRST]</translation>
  </message>
  <message id="DETAIL_MORE_MODELS">
    <source>more than [COUNT] models</source>
    <translation>mehr als [COUNT] Modelle</translation>
  </message>
  <message id="DETAIL_NO_MODEL">
    <source>no model in it</source>
    <translation>kein Modell darin</translation>
  </message>
  <message id="DETAIL_NAME_NUMBERED">
    <source>[TARGET]; that name belongs to the half of [OTHER]</source>
    <translation>[TARGET]; der Name ohne Nummer gehört der Hälfte von [OTHER]</translation>
  </message>
  <message id="DETAIL_NO_PICTURE">
    <source>no picture in it</source>
    <translation>kein Bild darin</translation>
  </message>
  <message id="CLI_INTERRUPTED_CHECK">
    <source>interrupted; [DONE] of [TOTAL] files are checked</source>
    <translation>unterbrochen; [DONE] von [TOTAL] Dateien sind geprüft</translation>
  </message>
</context>
</TS>
