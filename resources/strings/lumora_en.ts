<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
  <name></name>

  <!-- Shared by several tools -->
  <message id="BROWSE">
    <source>Browse…</source>
    <translation>Browse…</translation>
  </message>
  <message id="GENERATE">
    <source>Generate</source>
    <translation>Generate</translation>
  </message>
  <message id="ALL_DONE">
    <source>All done</source>
    <translation>All done</translation>
  </message>
  <message id="COPY">
    <source>Copy</source>
    <translation>Copy</translation>
  </message>
  <message id="COPIED">
    <source>Copied</source>
    <translation>Copied</translation>
  </message>
  <message id="RESET">
    <source>Reset</source>
    <translation>Reset</translation>
  </message>
  <message id="CLOSE">
    <source>Close</source>
    <translation>Close</translation>
  </message>
  <message id="DISMISS">
    <source>Got it</source>
    <translation>Got it</translation>
  </message>
  <message id="BUG_REPORT">
    <source>Report a problem</source>
    <translation>Report a problem</translation>
  </message>
  <message id="SUPPORT">
    <source>Contact us</source>
    <translation>Contact us</translation>
  </message>
  <message id="SIDE_CLASSIC">
    <source>Classic</source>
    <translation>Classic</translation>
  </message>
  <message id="SIDE_TODAY">
    <source>Today</source>
    <translation>Today</translation>
  </message>
  <message id="SIDE_TIP">
    <source>Switch between the classic side and what platforms want today</source>
    <translation>Switch between the classic side and what platforms want today</translation>
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
    <translation> | Placeholders</translation>
  </message>
  <message id="APP_RESIZER">
    <source> | Retina down-scaler</source>
    <translation> | Retina down-scaler</translation>
  </message>
  <message id="APP_COLOR">
    <source> | Colors</source>
    <translation> | Colors</translation>
  </message>
  <message id="APP_DEVICES">
    <source> | Devices</source>
    <translation> | Devices</translation>
  </message>
  <message id="APP_VALIDATER">
    <source> | Package check</source>
    <translation> | Package check</translation>
  </message>

  <!-- Help popup: the titles are also the tools' names in the sidebar and the menu; a text holds 60 to 110 words -->
  <message id="HELP_ICONS">
    <source>Icon generator</source>
    <translation>Icon generator</translation>
  </message>
  <message id="HELP_ICONS_TEXT">
    <source>Turn one picture into every icon an app needs. Drop a picture of exactly 1024 × 1024 pixels on the pane, or browse for one, then tick the platforms: iPhone, iPad, Mac, Android, web touch, favicon. Lumora writes each set with the right names and sizes into a fresh “icons” folder and packs the Mac set into an icon file as well. “Custom size” makes a single icon of 1 to 1024 pixels, with iOS 6 or iOS 7 corners if you like. The code snippets show how to declare the icons in your project.</source>
    <translation>Turn one picture into every icon an app needs. Drop a picture of exactly 1024 × 1024 pixels on the pane, or browse for one, then tick the platforms: iPhone, iPad, Mac, Android, web touch, favicon. Lumora writes each set with the right names and sizes into a fresh “icons” folder and packs the Mac set into an icon file as well. “Custom size” makes a single icon of 1 to 1024 pixels, with iOS 6 or iOS 7 corners if you like. The code snippets show how to declare the icons in your project.</translation>
  </message>
  <message id="HELP_ICONS_TODAY_TEXT">
    <source>Every icon that stores and platforms want now, from one square picture or SVG drawing. Tick iOS, Mac, Watch, Android, web, Windows or Linux; the row of previews shows each icon as it will be seen. The wells take pictures of their own for dark, tinted, foreground, background and monochrome; until then they show what Lumora derives. Choose a folder: in a project that Lumora knows, such as Flutter or Xcode, it offers to put the files in their places. What is written is read back and judged. The switch “Classic | Today” (Ctrl+T) changes sides.</source>
    <translation>Every icon that stores and platforms want now, from one square picture or SVG drawing. Tick iOS, Mac, Watch, Android, web, Windows or Linux; the row of previews shows each icon as it will be seen. The wells take pictures of their own for dark, tinted, foreground, background and monochrome; until then they show what Lumora derives. Choose a folder: in a project that Lumora knows, such as Flutter or Xcode, it offers to put the files in their places. What is written is read back and judged. The switch “Classic | Today” (Ctrl+T) changes sides.</translation>
  </message>
  <message id="HELP_PLACEHOLDER">
    <source>Placeholder generator</source>
    <translation>Placeholder generator</translation>
  </message>
  <message id="HELP_PLACEHOLDER_TEXT">
    <source>Fill a layout before its artwork exists. One press writes gray pictures in the screen sizes of iOS devices or of the Mac, each labeled in white with its own width and height. For anything else, type a width and a height from 1 to 9999 pixels. Choose where to save, and Lumora puts the PNG files, named like placeholder_640x1136.png, into a fresh “placeholders” folder. Folders from earlier runs stay untouched.</source>
    <translation>Fill a layout before its artwork exists. One press writes gray pictures in the screen sizes of iOS devices or of the Mac, each labeled in white with its own width and height. For anything else, type a width and a height from 1 to 9999 pixels. Choose where to save, and Lumora puts the PNG files, named like placeholder_640x1136.png, into a fresh “placeholders” folder. Folders from earlier runs stay untouched.</translation>
  </message>
  <message id="HELP_PLACEHOLDER_TODAY_TEXT">
    <source>Pictures for every place that is still empty. Choose sets: the screenshots of the App Store and of Google Play, feature graphics, TV and watch, social cards, launch screens; or type sizes of your own, such as 1200x600 800x800@2x. Give them a text and colors, and save them as PNG, WebP or SVG. The other way round, drop real screenshots or their folder here: Lumora holds them against the rules of the stores, with reason and remedy. The switch “Classic | Today” (Ctrl+T) changes sides.</source>
    <translation>Pictures for every place that is still empty. Choose sets: the screenshots of the App Store and of Google Play, feature graphics, TV and watch, social cards, launch screens; or type sizes of your own, such as 1200x600 800x800@2x. Give them a text and colors, and save them as PNG, WebP or SVG. The other way round, drop real screenshots or their folder here: Lumora holds them against the rules of the stores, with reason and remedy. The switch “Classic | Today” (Ctrl+T) changes sides.</translation>
  </message>
  <message id="HELP_RESIZER">
    <source>Retina down-scaler</source>
    <translation>Retina down-scaler</translation>
  </message>
  <message id="HELP_RESIZER_TEXT">
    <source>Draw once at double resolution and let Lumora make the normal size. Drop PNG files marked @2x or -hd on the pane, or browse for them, and choose a folder. Every picture is halved in width and height, odd sizes rounding down, and saved without the mark in its name: button@2x.png becomes button.png. Files without a mark and files of other kinds are left out. Take care: a file of the same name in the chosen folder is replaced.</source>
    <translation>Draw once at double resolution and let Lumora make the normal size. Drop PNG files marked @2x or -hd on the pane, or browse for them, and choose a folder. Every picture is halved in width and height, odd sizes rounding down, and saved without the mark in its name: button@2x.png becomes button.png. Files without a mark and files of other kinds are left out. Take care: a file of the same name in the chosen folder is replaced.</translation>
  </message>
  <message id="HELP_RESIZER_TODAY_TEXT">
    <source>From the largest picture to all that are missing. Drop files or folders: name@3x.png or name@4x.png for iOS and macOS, drawable-xxxhdpi for Android, 3.0x or 4.0x for Flutter, React Native or the web; SVG drawings serve every density. Lumora first shows the plan: what is written, what is rounded to whole pixels, what exists and is kept. Existing files are replaced only where you say so, a source never. Save as PNG or WebP. The switch “Classic | Today” (Ctrl+T) changes sides.</source>
    <translation>From the largest picture to all that are missing. Drop files or folders: name@3x.png or name@4x.png for iOS and macOS, drawable-xxxhdpi for Android, 3.0x or 4.0x for Flutter, React Native or the web; SVG drawings serve every density. Lumora first shows the plan: what is written, what is rounded to whole pixels, what exists and is kept. Existing files are replaced only where you say so, a source never. Save as PNG or WebP. The switch “Classic | Today” (Ctrl+T) changes sides.</translation>
  </message>
  <message id="HELP_COLOR">
    <source>Color codes</source>
    <translation>Color codes</translation>
  </message>
  <message id="HELP_COLOR_TEXT">
    <source>Carry a color from your design into your code. Click the color well to pick one, or type three or six hexadecimal digits such as #abc or #34485e; field and well follow each other. Each button copies the color as code, ready to paste: a UIColor for iOS, an NSColor for the Mac, rgb(red, green, blue) or a CSS declaration for style sheets. Drag the picker away from the well and it stays open as a window of its own.</source>
    <translation>Carry a color from your design into your code. Click the color well to pick one, or type three or six hexadecimal digits such as #abc or #34485e; field and well follow each other. Each button copies the color as code, ready to paste: a UIColor for iOS, an NSColor for the Mac, rgb(red, green, blue) or a CSS declaration for style sheets. Drag the picker away from the well and it stays open as a window of its own.</translation>
  </message>
  <message id="HELP_COLOR_TODAY_TEXT">
    <source>One color as code for everything. Type or paste it in any form: hexadecimal, a CSS name, rgb(), hsl(), oklch(), or a line of Swift, Kotlin or Dart; opacity and Display P3 are kept. Each form has a copy button, and the choice of platform brings its forms to the top. A second color shows the contrast by WCAG 2 and the nearest color that passes. The palette keeps what you pick while the program runs, and saves it as color sets, GIMP palette, JSON or CSS. The switch “Classic | Today” (Ctrl+T) changes sides.</source>
    <translation>One color as code for everything. Type or paste it in any form: hexadecimal, a CSS name, rgb(), hsl(), oklch(), or a line of Swift, Kotlin or Dart; opacity and Display P3 are kept. Each form has a copy button, and the choice of platform brings its forms to the top. A second color shows the contrast by WCAG 2 and the nearest color that passes. The palette keeps what you pick while the program runs, and saves it as color sets, GIMP palette, JSON or CSS. The switch “Classic | Today” (Ctrl+T) changes sides.</translation>
  </message>
  <message id="HELP_DEVICES">
    <source>Device matrix</source>
    <translation>Device matrix</translation>
  </message>
  <message id="HELP_DEVICES_TEXT">
    <source>See at a glance which devices your app can reach. Choose the iOS version it requires and tick the features it needs, such as GPS, a camera flash or OpenGL 3.0. Devices that can run that version and have every ticked feature stay bright; all others fade. One version counts at a time, together with any number of features. “Reset” clears the choice and brings back all seventeen iPhone, iPod and iPad models up to iOS 7.</source>
    <translation>See at a glance which devices your app can reach. Choose the iOS version it requires and tick the features it needs, such as GPS, a camera flash or OpenGL 3.0. Devices that can run that version and have every ticked feature stay bright; all others fade. One version counts at a time, together with any number of features. “Reset” clears the choice and brings back all seventeen iPhone, iPod and iPad models up to iOS 7.</translation>
  </message>
  <message id="HELP_DEVICES_TODAY_TEXT">
    <source>Every iPhone, iPad and iPod touch to date, newest first. Set the oldest and newest iOS version, the family, the chip and what your app requires; models that fall out fade, and their tip says why. The search takes names and identifiers such as iPhone15,2. A tile opens a card with screen, chip, versions, capabilities and the sizes of launch images and screenshots, each to copy. Two or three models can be compared side by side. The switch “Classic | Today” (Ctrl+T) changes sides.</source>
    <translation>Every iPhone, iPad and iPod touch to date, newest first. Set the oldest and newest iOS version, the family, the chip and what your app requires; models that fall out fade, and their tip says why. The search takes names and identifiers such as iPhone15,2. A tile opens a card with screen, chip, versions, capabilities and the sizes of launch images and screenshots, each to copy. Two or three models can be compared side by side. The switch “Classic | Today” (Ctrl+T) changes sides.</translation>
  </message>
  <message id="HELP_VALIDATER">
    <source>App package check</source>
    <translation>App package check</translation>
  </message>
  <message id="HELP_VALIDATER_TEXT">
    <source>Look through an app before you hand it in. Drop one .ipa package on the pane, or browse for it. Lumora shows its name, version, platform, oldest iOS version, bundle identifier and build kind, then checks the icons, launch images, provisioning profile, localizations, URL schemes and Facebook app ID. Press a box to read what was found; missing sizes are listed one by one. The package itself is never changed, and nothing is sent anywhere.</source>
    <translation>Look through an app before you hand it in. Drop one .ipa package on the pane, or browse for it. Lumora shows its name, version, platform, oldest iOS version, bundle identifier and build kind, then checks the icons, launch images, provisioning profile, localizations, URL schemes and Facebook app ID. Press a box to read what was found; missing sizes are listed one by one. The package itself is never changed, and nothing is sent anywhere.</translation>
  </message>
  <message id="HELP_BUG_REPORT">
    <source>Report a bug</source>
    <translation>Report a bug</translation>
  </message>
  <message id="HELP_FEATURE_REQUEST">
    <source>Suggest a feature</source>
    <translation>Suggest a feature</translation>
  </message>
  <message id="HELP_FEEDBACK">
    <source>Ask a question</source>
    <translation>Ask a question</translation>
  </message>

  <!-- About and contact panels; the addresses open in the default browser or mail program -->
  <message id="ABOUT_TEXT">
    <source>A toolbox for makers of mobile and desktop apps: icons, placeholders, retina pictures, colors, devices and package checks in one window.</source>
    <translation>A toolbox for makers of mobile and desktop apps: icons, placeholders, retina pictures, colors, devices and package checks in one window.</translation>
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
    <translation>Mail</translation>
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
    <translation>We are glad to help</translation>
  </message>
  <message id="INFORMATION_INFO_2">
    <source>Write to [MAIL], message [TWITTER] or find us on [FACEBOOK].</source>
    <translation>Write to [MAIL], message [TWITTER] or find us on [FACEBOOK].</translation>
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
    <translation>Source icon</translation>
  </message>
  <message id="ICONS_SOURCE_SUBTITLE">
    <source>Drop a picture of 1024 × 1024 pixels</source>
    <translation>Drop a picture of 1024 × 1024 pixels</translation>
  </message>
  <message id="ICONS_SOURCE_SUBTITLE_ACTIVE">
    <source>1024 × 1024 pixels, ready to export</source>
    <translation>1024 × 1024 pixels, ready to export</translation>
  </message>
  <message id="ICONS_BROWSE">
    <source>Choose a picture of 1024 × 1024 pixels</source>
    <translation>Choose a picture of 1024 × 1024 pixels</translation>
  </message>
  <message id="ICONS_PLATFORMS_TITLE">
    <source>Platforms</source>
    <translation>Platforms</translation>
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
    <translation>Web touch</translation>
  </message>
  <message id="ICONS_FAV_ICONS">
    <source>Favicon</source>
    <translation>Favicon</translation>
  </message>
  <message id="ICONS_ALL">
    <source>All</source>
    <translation>All</translation>
  </message>
  <message id="ICONS_CUSTOM_SETTINGS">
    <source>Custom size</source>
    <translation>Custom size</translation>
  </message>
  <message id="ICONS_CUSTOM_SIZE">
    <source>Size</source>
    <translation>Size</translation>
  </message>
  <message id="ICONS_ROUNDED_CORNERS_IOS6">
    <source>iOS 6 corners</source>
    <translation>iOS 6 corners</translation>
  </message>
  <message id="ICONS_ROUNDED_CORNERS">
    <source>iOS 7 corners</source>
    <translation>iOS 7 corners</translation>
  </message>
  <message id="ICONS_DESTINATION">
    <source>Choose the folder for the icons</source>
    <translation>Choose the folder for the icons</translation>
  </message>
  <message id="ICONS_EXPORTING">
    <source>Exporting…</source>
    <translation>Exporting…</translation>
  </message>
  <message id="ICONS_DONE">
    <source>Done</source>
    <translation>Done</translation>
  </message>
  <message id="ICONS_ALERT_TITLE">
    <source>This picture does not fit</source>
    <translation>This picture does not fit</translation>
  </message>
  <message id="ICONS_ALERT_MESSAGE">
    <source>The source must be a readable picture of exactly 1024 × 1024 pixels. Please choose another one.</source>
    <translation>The source must be a readable picture of exactly 1024 × 1024 pixels. Please choose another one.</translation>
  </message>
  <message id="ICONS_NO_SOURCE_ALERT_TITLE">
    <source>No source icon yet</source>
    <translation>No source icon yet</translation>
  </message>
  <message id="ICONS_NO_SOURCE_ALERT_MESSAGE">
    <source>Drop a picture of 1024 × 1024 pixels on the pane or browse for one first.</source>
    <translation>Drop a picture of 1024 × 1024 pixels on the pane or browse for one first.</translation>
  </message>
  <message id="ICONS_NO_PLATFORM_ALERT_TITLE">
    <source>No platform chosen</source>
    <translation>No platform chosen</translation>
  </message>
  <message id="ICONS_NO_PLATFORM_ALERT_MESSAGE">
    <source>Tick at least one platform, then generate again.</source>
    <translation>Tick at least one platform, then generate again.</translation>
  </message>
  <message id="ICONS_NO_DIMENSION_ALERT_TITLE">
    <source>No size given</source>
    <translation>No size given</translation>
  </message>
  <message id="ICONS_NO_DIMENSION_ALERT_MESSAGE">
    <source>Type the edge length of the icon in pixels, from 1 to 1024.</source>
    <translation>Type the edge length of the icon in pixels, from 1 to 1024.</translation>
  </message>
  <message id="ICONS_INCORRECT_SIZE_ALERT_TITLE">
    <source>This size will not work</source>
    <translation>This size will not work</translation>
  </message>
  <message id="ICONS_INCORRECT_SIZE_ALERT_MESSAGE">
    <source>The edge length must be a whole number from 1 to 1024. Please correct it.</source>
    <translation>The edge length must be a whole number from 1 to 1024. Please correct it.</translation>
  </message>
  <message id="ICONS_NEW_FOLDER_ALERT_TITLE">
    <source>Saved in a new folder</source>
    <translation>Saved in a new folder</translation>
  </message>
  <message id="ICONS_NEW_FOLDER_ALERT_MESSAGE">
    <source>The name “icons” was already taken there, so this export is in the folder “[FOLDER]”.</source>
    <translation>The name “icons” was already taken there, so this export is in the folder “[FOLDER]”.</translation>
  </message>
  <message id="ICONS_EXAMPLE">
    <source>Example picture</source>
    <translation>Example picture</translation>
  </message>
  <message id="ICONS_REFUSED">
    <source>[FILE]: [WHAT]</source>
    <translation>[FILE]: [WHAT]</translation>
  </message>
  <message id="ICONS_PIXELS">
    <source>[WIDTH] × [HEIGHT] pixels</source>
    <translation>[WIDTH] × [HEIGHT] pixels</translation>
  </message>
  <message id="ICONS_NO_PICTURE">
    <source>no picture</source>
    <translation>no picture</translation>
  </message>
  <message id="ICONS_PASTED">
    <source>Pasted picture</source>
    <translation>Pasted picture</translation>
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
    <translation>Where the icon will be seen</translation>
  </message>
  <message id="ICONS_SEEN_LIGHT">
    <source>iOS light</source>
    <translation>iOS light</translation>
  </message>
  <message id="ICONS_SEEN_DARK">
    <source>iOS dark</source>
    <translation>iOS dark</translation>
  </message>
  <message id="ICONS_SEEN_TINTED">
    <source>iOS tinted</source>
    <translation>iOS tinted</translation>
  </message>
  <message id="ICONS_SEEN_CIRCLE">
    <source>Circle</source>
    <translation>Circle</translation>
  </message>
  <message id="ICONS_SEEN_SQUIRCLE">
    <source>Squircle</source>
    <translation>Squircle</translation>
  </message>
  <message id="ICONS_SEEN_ROUNDED">
    <source>Rounded</source>
    <translation>Rounded</translation>
  </message>
  <message id="ICONS_SEEN_TEARDROP">
    <source>Teardrop</source>
    <translation>Teardrop</translation>
  </message>
  <message id="ICONS_SEEN_MASKABLE">
    <source>Web maskable</source>
    <translation>Web maskable</translation>
  </message>
  <message id="ICONS_SEEN_BY_SYSTEM">
    <source>made by the system; the set has no such picture</source>
    <translation>made by the system; the set has no such picture</translation>
  </message>
  <message id="ICONS_SEEN_SAFE_ZONE">
    <source>the circle is what every mask shows</source>
    <translation>the circle is what every mask shows</translation>
  </message>
  <message id="ICONS_SOURCE_DARK">
    <source>Dark</source>
    <translation>Dark</translation>
  </message>
  <message id="ICONS_SOURCE_TINTED">
    <source>Tinted</source>
    <translation>Tinted</translation>
  </message>
  <message id="ICONS_SOURCE_MONOCHROME">
    <source>Monochrome</source>
    <translation>Monochrome</translation>
  </message>
  <message id="ICONS_SOURCE_FOREGROUND">
    <source>Foreground</source>
    <translation>Foreground</translation>
  </message>
  <message id="ICONS_SOURCE_BACKGROUND">
    <source>Background</source>
    <translation>Background</translation>
  </message>
  <message id="ICONS_SOURCE_DERIVED">
    <source>derived</source>
    <translation>derived</translation>
  </message>
  <message id="ICONS_SOURCE_GIVEN">
    <source>given</source>
    <translation>given</translation>
  </message>
  <message id="ICONS_SOURCE_NONE">
    <source>none</source>
    <translation>none</translation>
  </message>
  <message id="ICONS_SOURCE_TIP">
    <source>Click or drop a square picture or SVG; Delete returns to what is derived</source>
    <translation>Click or drop a square picture or SVG; Delete returns to what is derived</translation>
  </message>
  <message id="ICONS_SOURCE_REMOVE">
    <source>[SOURCE]: back to what is derived</source>
    <translation>[SOURCE]: back to what is derived</translation>
  </message>
  <message id="ICONS_BACKGROUND_COLOR">
    <source>Background color</source>
    <translation>Background color</translation>
  </message>
  <message id="ICONS_FLATTEN_COLOR">
    <source>Flatten onto this color</source>
    <translation>Flatten onto this color</translation>
  </message>
  <message id="ICONS_FLATTENED">
    <source>the icon was put on this color where it must be opaque</source>
    <translation>the icon was put on this color where it must be opaque</translation>
  </message>
  <message id="ICONS_OR_COLOR">
    <source>Or a color</source>
    <translation>Or a color</translation>
  </message>
  <message id="ICONS_FLATTEN">
    <source>Flatten onto</source>
    <translation>Flatten onto</translation>
  </message>
  <message id="ICONS_FLATTEN_TIP">
    <source>The color below a transparent icon where a store forbids transparency</source>
    <translation>The color below a transparent icon where a store forbids transparency</translation>
  </message>
  <message id="ICONS_COLOR_NONE">
    <source>none</source>
    <translation>none</translation>
  </message>
  <message id="ICONS_COLOR_REFUSED">
    <source>This is no opaque color. Write #RRGGBB or a name.</source>
    <translation>This is no opaque color. Write #RRGGBB or a name.</translation>
  </message>
  <message id="ICONS_APP_NAME">
    <source>App name</source>
    <translation>App name</translation>
  </message>
  <message id="ICONS_APP_NAME_TIP">
    <source>The name in the web manifest and of the Linux files; “App” without it</source>
    <translation>The name in the web manifest and of the Linux files; “App” without it</translation>
  </message>
  <message id="ICONS_PROGRESS">
    <source>Progress of the icons</source>
    <translation>Progress of the icons</translation>
  </message>
  <message id="ICONS_BROWSE_TODAY">
    <source>Choose a square picture of at least 512 pixels or an SVG drawing</source>
    <translation>Choose a square picture of at least 512 pixels or an SVG drawing</translation>
  </message>
  <message id="ICONS_FILTER_SOURCES">
    <source>Pictures and drawings</source>
    <translation>Pictures and drawings</translation>
  </message>
  <message id="ICONS_TODAY_REFUSED">
    <source>[FILE]: [WHAT]. Please use a square picture of at least 512 pixels or a square SVG drawing.</source>
    <translation>[FILE]: [WHAT]. Please use a square picture of at least 512 pixels or a square SVG drawing.</translation>
  </message>
  <message id="ICONS_DESTINATION_TODAY">
    <source>Choose a project or a folder for the icons</source>
    <translation>Choose a project or a folder for the icons</translation>
  </message>
  <message id="ICONS_TRANSPARENT_TITLE">
    <source>The icon has transparency</source>
    <translation>The icon has transparency</translation>
  </message>
  <message id="ICONS_TRANSPARENT_MESSAGE">
    <source>iOS, Watch and Google Play refuse it. Choose a color to flatten the icon onto, for example white.</source>
    <translation>iOS, Watch and Google Play refuse it. Choose a color to flatten the icon onto, for example white.</translation>
  </message>
  <message id="ICONS_PROJECT_TITLE">
    <source>[KIND] project</source>
    <translation>[KIND] project</translation>
  </message>
  <message id="ICONS_PROJECT_QUESTION">
    <source>Put [COUNT] icons in their places?</source>
    <translation>Put [COUNT] icons in their places?</translation>
  </message>
  <message id="ICONS_PROJECT_QUESTION_ONE">
    <source>Put one icon in its place?</source>
    <translation>Put one icon in its place?</translation>
  </message>
  <message id="ICONS_PROJECT_FILES">
    <source>Files of the project</source>
    <translation>Files of the project</translation>
  </message>
  <message id="ICONS_INTO_PROJECT">
    <source>Into the project</source>
    <translation>Into the project</translation>
  </message>
  <message id="ICONS_OWN_FOLDER">
    <source>Into a folder of their own</source>
    <translation>Into a folder of their own</translation>
  </message>

  <!-- Icon generator: code snippets; only the comments inside a snippet are translated -->
  <message id="Code Snippets">
    <source>Code snippets</source>
    <translation>Code snippets</translation>
  </message>
  <message id="SNIPPETS_TITLE">
    <source>Snippet copied</source>
    <translation>Snippet copied</translation>
  </message>
  <message id="SNIPPETS_MESSAGE">
    <source>The code snippet is on the clipboard, ready to paste.</source>
    <translation>The code snippet is on the clipboard, ready to paste.</translation>
  </message>
  <message id="SNIPPETS_PLATFORM_IOS">
    <source>iOS</source>
    <translation>iOS</translation>
  </message>
  <message id="SNIPPETS_PLATFORM_PROMPT">
    <source>Choose a platform</source>
    <translation>Choose a platform</translation>
  </message>
  <message id="SNIPPETS_NO_PLATFORM">
    <source>Platform</source>
    <translation>Platform</translation>
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
    <translation><![CDATA[<!-- Info.plist: add the files from the folders iPhone and
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
    <translation><![CDATA[<!-- Info.plist: add the files from the folder iPhone to the app. -->
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
    <translation><![CDATA[<!-- Info.plist: add the files from the folder iPad to the app. -->
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
</dict>]]></translation>
  </message>
  <message id="SNIPPET_MACOSX">
    <source><![CDATA[<!-- Info.plist: add icons.icns from the folder Mac
     to the app's resources. -->
<key>CFBundleIconFile</key>
<string>icons.icns</string>]]></source>
    <translation><![CDATA[<!-- Info.plist: add icons.icns from the folder Mac
     to the app's resources. -->
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
    <translation><![CDATA[<!-- Copy each file of the folder Android to its place:
     ic_launcher_ldpi.png: res/drawable-ldpi/ic_launcher.png
     ic_launcher_mdpi.png: res/drawable-mdpi/ic_launcher.png
     ic_launcher_hdpi.png: res/drawable-hdpi/ic_launcher.png
     ic_launcher_xhdpi.png: res/drawable-xhdpi/ic_launcher.png
     ic_512x512.png: upload to the store, not part of the app -->
<!-- AndroidManifest.xml: give your application element
     this icon. -->
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
    <translation><![CDATA[<!-- In the head element; the files of the folder Web Touch
     go to the root of the site. -->
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
    <translation><![CDATA[<!-- In the head element; the files of the folder Favicon
     go to the root of the site. -->
<link rel="icon" type="image/png" sizes="16x16" href="/favicon-16.png" />
<link rel="icon" type="image/png" sizes="32x32" href="/favicon-32.png" />
<link rel="icon" type="image/png" sizes="48x48" href="/favicon-48.png" />
<link rel="icon" type="image/png" sizes="64x64" href="/favicon-64.png" />
<link rel="icon" type="image/png" sizes="128x128" href="/favicon-128.png" />]]></translation>
  </message>

  <!-- Placeholder generator -->
  <message id="PLACEHOLDER_TITLE">
    <source>Device sizes</source>
    <translation>Device sizes</translation>
  </message>
  <message id="PLACEHOLDER_IOS_TITLE">
    <source>iOS</source>
    <translation>iOS</translation>
  </message>
  <message id="PLACEHOLDER_IOS_SUBTITLE">
    <source>Nine sizes for iPhone, iPod and iPad</source>
    <translation>Nine sizes for iPhone, iPod and iPad</translation>
  </message>
  <message id="PLACEHOLDER_MAC_TITLE">
    <source>Mac</source>
    <translation>Mac</translation>
  </message>
  <message id="PLACEHOLDER_MAC_SUBTITLE">
    <source>Four sizes for icons and screens</source>
    <translation>Four sizes for icons and screens</translation>
  </message>
  <message id="PLACEHOLDER_CUSTOM">
    <source>Custom size</source>
    <translation>Custom size</translation>
  </message>
  <message id="PLACEHOLDER_CUSTOM_TITLE">
    <source>Your own size</source>
    <translation>Your own size</translation>
  </message>
  <message id="PLACEHOLDER_CUSTOM_SUBTITLE">
    <source>One picture, 1 to 9999 pixels a side</source>
    <translation>One picture, 1 to 9999 pixels a side</translation>
  </message>
  <message id="PLACEHOLDER_SETTINGS">
    <source>Size in pixels</source>
    <translation>Size in pixels</translation>
  </message>
  <message id="PLACEHOLDER_WIDTH">
    <source>Width</source>
    <translation>Width</translation>
  </message>
  <message id="PLACEHOLDER_HEIGHT">
    <source>Height</source>
    <translation>Height</translation>
  </message>
  <message id="PLACEHOLDER_ALERT_TITLE">
    <source>This size will not work</source>
    <translation>This size will not work</translation>
  </message>
  <message id="PLACEHOLDER_ALERT_MESSAGE">
    <source>Width and height must be whole numbers from 1 to 9999. Please correct this one.</source>
    <translation>Width and height must be whole numbers from 1 to 9999. Please correct this one.</translation>
  </message>
  <message id="PLACEHOLDER_NEW_FOLDER_ALERT_TITLE">
    <source>Saved in a new folder</source>
    <translation>Saved in a new folder</translation>
  </message>
  <message id="PLACEHOLDER_NEW_FOLDER_ALERT_MESSAGE">
    <source>The name “placeholders” was already taken there, so these pictures are in the folder “[FOLDER]”.</source>
    <translation>The name “placeholders” was already taken there, so these pictures are in the folder “[FOLDER]”.</translation>
  </message>

  <!-- Retina down-scaler; the two panel texts also serve other tools, so they name no kind of file -->
  <message id="RESIZER_BROWSE_LABEL">
    <source>Drop PNG pictures marked @2x or -hd, or</source>
    <translation>Drop PNG pictures marked @2x or -hd, or</translation>
  </message>
  <message id="RESIZER_BROWSE_PANEL">
    <source>Choose what to open</source>
    <translation>Choose what to open</translation>
  </message>
  <message id="RESIZER_DESTINATION_PANEL">
    <source>Choose the folder to save into</source>
    <translation>Choose the folder to save into</translation>
  </message>
  <message id="RESIZER_PROGRESS">
    <source>Picture %i of %i</source>
    <translation>Picture %i of %i</translation>
  </message>
  <message id="RESIZER_DONE">
    <source>All done</source>
    <translation>All done</translation>
  </message>
  <message id="RESIZER_ALERT_TITLE">
    <source>Nothing to scale down</source>
    <translation>Nothing to scale down</translation>
  </message>
  <message id="RESIZER_ALERT_MESSAGE">
    <source>None of these is a .png file marked @2x or -hd. Please choose double-resolution PNG pictures.</source>
    <translation>None of these is a .png file marked @2x or -hd. Please choose double-resolution PNG pictures.</translation>
  </message>
  <message id="RESIZER_PLAN">
    <source>What will be halved</source>
    <translation>What will be halved</translation>
  </message>
  <message id="RESIZER_PLAN_ALL">
    <source>To be halved: [TAKEN]</source>
    <translation>To be halved: [TAKEN]</translation>
  </message>
  <message id="RESIZER_PLAN_SOME">
    <source>To be halved: [TAKEN], left out: [LEFT]</source>
    <translation>To be halved: [TAKEN], left out: [LEFT]</translation>
  </message>
  <message id="RESIZER_PLAN_PICTURE">
    <source>Picture</source>
    <translation>Picture</translation>
  </message>
  <message id="RESIZER_PLAN_NOW">
    <source>Now</source>
    <translation>Now</translation>
  </message>
  <message id="RESIZER_PLAN_THEN">
    <source>Half</source>
    <translation>Half</translation>
  </message>
  <message id="RESIZER_LEFT_OUT">
    <source>Left out: [REASON]</source>
    <translation>Left out: [REASON]</translation>
  </message>

  <!-- The placeholder tool's side of today -->
  <message id="PLACEHOLDER_TEXT">
    <source>Text</source>
    <translation>Text</translation>
  </message>
  <message id="PLACEHOLDER_TEXT_TIP">
    <source>{size}, {width} and {height} become the size; \n begins a line</source>
    <translation>{size}, {width} and {height} become the size; \n begins a line</translation>
  </message>
  <message id="PLACEHOLDER_FOREGROUND">
    <source>Text color</source>
    <translation>Text color</translation>
  </message>
  <message id="PLACEHOLDER_BACKGROUND">
    <source>Background</source>
    <translation>Background</translation>
  </message>
  <message id="PLACEHOLDER_COLOR_TIP">
    <source>A code such as #ff8800 or #ff880080, or a name such as tomato</source>
    <translation>A code such as #ff8800 or #ff880080, or a name such as tomato</translation>
  </message>
  <message id="PLACEHOLDER_OWN_SIZES">
    <source>Your own sizes</source>
    <translation>Your own sizes</translation>
  </message>
  <message id="PLACEHOLDER_SIZES_TIP">
    <source>Sizes in points, such as 1200x600 800x800@2x</source>
    <translation>Sizes in points, such as 1200x600 800x800@2x</translation>
  </message>
  <message id="PLACEHOLDER_KEEP">
    <source>Keep as a set</source>
    <translation>Keep as a set</translation>
  </message>
  <message id="PLACEHOLDER_KEEP_TIP">
    <source>Adds these sizes to the sets until the program ends</source>
    <translation>Adds these sizes to the sets until the program ends</translation>
  </message>
  <message id="PLACEHOLDER_NO_COLOR">
    <source>A color is a code such as #ff8800 or a name</source>
    <translation>A color is a code such as #ff8800 or a name</translation>
  </message>
  <message id="PLACEHOLDER_NO_SHAPE">
    <source>The font has no shape for “[TEXT]”</source>
    <translation>The font has no shape for “[TEXT]”</translation>
  </message>
  <message id="PLACEHOLDER_NO_SIZE">
    <source>“[TEXT]” is not a size such as 800x600@2x</source>
    <translation>“[TEXT]” is not a size such as 800x600@2x</translation>
  </message>
  <message id="PLACEHOLDER_ONE_PICTURE">
    <source>1 picture</source>
    <translation>1 picture</translation>
  </message>
  <message id="PLACEHOLDER_PICTURES">
    <source>[COUNT] pictures</source>
    <translation>[COUNT] pictures</translation>
  </message>
  <message id="PLACEHOLDER_CHOOSE_SETS">
    <source>Choose sets, or type sizes</source>
    <translation>Choose sets, or type sizes</translation>
  </message>
  <message id="PLACEHOLDER_PROGRESS">
    <source>Progress of the placeholders</source>
    <translation>Progress of the placeholders</translation>
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
    <translation>Feature graphic</translation>
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
    <translation>Social cards</translation>
  </message>
  <message id="PLACEHOLDER_SET_LAUNCH">
    <source>Launch screens</source>
    <translation>Launch screens</translation>
  </message>
  <message id="SHOT_CHECK">
    <source>Check screenshots…</source>
    <translation>Check screenshots…</translation>
  </message>
  <message id="SHOT_CHECK_TIP">
    <source>Holds the pictures of a folder against the rules of the stores</source>
    <translation>Holds the pictures of a folder against the rules of the stores</translation>
  </message>
  <message id="SHOT_BACK">
    <source>Back to the sets</source>
    <translation>Back to the sets</translation>
  </message>
  <message id="SHOT_DROP">
    <source>Drop screenshots or a folder here to hold them against the rules of the stores</source>
    <translation>Drop screenshots or a folder here to hold them against the rules of the stores</translation>
  </message>
  <message id="SHOT_DROP_NAME">
    <source>Area for screenshots to check</source>
    <translation>Area for screenshots to check</translation>
  </message>
  <message id="SHOT_FOLDER_TITLE">
    <source>Choose the folder with the screenshots</source>
    <translation>Choose the folder with the screenshots</translation>
  </message>
  <message id="SHOT_EITHER_STORE">
    <source>Either store</source>
    <translation>Either store</translation>
  </message>
  <message id="SHOT_STORE">
    <source>Store</source>
    <translation>Store</translation>
  </message>
  <message id="SHOT_WHOLE">
    <source>The folder itself</source>
    <translation>The folder itself</translation>
  </message>
  <message id="SHOT_FINDINGS">
    <source>Findings</source>
    <translation>Findings</translation>
  </message>
  <message id="SHOT_SOUND">
    <source>no findings</source>
    <translation>no findings</translation>
  </message>
  <message id="SHOT_ONE_FINDING">
    <source>1 finding</source>
    <translation>1 finding</translation>
  </message>
  <message id="SHOT_COUNT_FINDINGS">
    <source>[COUNT] findings</source>
    <translation>[COUNT] findings</translation>
  </message>
  <message id="SHOT_REFUSED">
    <source>Not checked</source>
    <translation>Not checked</translation>
  </message>

  <!-- The down-scaler's side of today -->
  <message id="SCALER_LAYOUT">
    <source>Project</source>
    <translation>Project</translation>
  </message>
  <message id="SCALER_IOS">
    <source>iOS and macOS (name@3x.png)</source>
    <translation>iOS and macOS (name@3x.png)</translation>
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
    <translation>From</translation>
  </message>
  <message id="SCALER_FROM_LARGEST">
    <source>The largest of each picture</source>
    <translation>The largest of each picture</translation>
  </message>
  <message id="SCALER_FROM_SVG">
    <source>SVG drawings</source>
    <translation>SVG drawings</translation>
  </message>
  <message id="SCALER_TO">
    <source>To</source>
    <translation>To</translation>
  </message>
  <message id="SCALER_FORMAT">
    <source>Format</source>
    <translation>Format</translation>
  </message>
  <message id="SCALER_FORMAT_SOURCE">
    <source>As the source</source>
    <translation>As the source</translation>
  </message>
  <message id="SCALER_FORMAT_LOSSLESS">
    <source>WebP, lossless</source>
    <translation>WebP, lossless</translation>
  </message>
  <message id="SCALER_FORMAT_LOSSY">
    <source>WebP, smaller</source>
    <translation>WebP, smaller</translation>
  </message>
  <message id="SCALER_QUALITY">
    <source>Quality: [QUALITY] of 100</source>
    <translation>Quality: [QUALITY] of 100</translation>
  </message>
  <message id="SCALER_QUALITY_NAME">
    <source>Quality</source>
    <translation>Quality</translation>
  </message>
  <message id="SCALER_PLACE">
    <source>Place</source>
    <translation>Place</translation>
  </message>
  <message id="SCALER_BESIDE">
    <source>Beside the sources</source>
    <translation>Beside the sources</translation>
  </message>
  <message id="SCALER_OTHER_FOLDER">
    <source>Other folder…</source>
    <translation>Other folder…</translation>
  </message>
  <message id="SCALER_BACK_BESIDE">
    <source>Beside the sources</source>
    <translation>Beside the sources</translation>
  </message>
  <message id="SCALER_REPLACE">
    <source>Replace existing files</source>
    <translation>Replace existing files</translation>
  </message>
  <message id="SCALER_REPLACE_TIP">
    <source>Replaces files that exist, but never a source</source>
    <translation>Replaces files that exist, but never a source</translation>
  </message>
  <message id="SCALER_DROP">
    <source>Drop pictures, SVG drawings or whole folders here</source>
    <translation>Drop pictures, SVG drawings or whole folders here</translation>
  </message>
  <message id="SCALER_DROP_NAME">
    <source>Area for pictures, drawings and folders</source>
    <translation>Area for pictures, drawings and folders</translation>
  </message>
  <message id="SCALER_FILES_BUTTON">
    <source>Pictures…</source>
    <translation>Pictures…</translation>
  </message>
  <message id="SCALER_FOLDER_BUTTON">
    <source>Folder…</source>
    <translation>Folder…</translation>
  </message>
  <message id="SCALER_WRITE">
    <source>Write the files</source>
    <translation>Write the files</translation>
  </message>
  <message id="SCALER_FILES_TITLE">
    <source>Choose pictures of the largest density, or drawings</source>
    <translation>Choose pictures of the largest density, or drawings</translation>
  </message>
  <message id="SCALER_FOLDER_TITLE">
    <source>Choose the folder with the pictures</source>
    <translation>Choose the folder with the pictures</translation>
  </message>
  <message id="SCALER_FILTER">
    <source>Pictures and drawings</source>
    <translation>Pictures and drawings</translation>
  </message>
  <message id="SCALER_NO_DENSITY">
    <source>Tick at least one density</source>
    <translation>Tick at least one density</translation>
  </message>
  <message id="SCALER_READING">
    <source>Reading…</source>
    <translation>Reading…</translation>
  </message>
  <message id="SCALER_PLAN">
    <source>Planned files</source>
    <translation>Planned files</translation>
  </message>
  <message id="SCALER_PLAN_FILE">
    <source>File</source>
    <translation>File</translation>
  </message>
  <message id="SCALER_PLAN_SIZE">
    <source>Size</source>
    <translation>Size</translation>
  </message>
  <message id="SCALER_PLAN_NOTE">
    <source>Note</source>
    <translation>Note</translation>
  </message>
  <message id="SCALER_DRAWING">
    <source>drawing</source>
    <translation>drawing</translation>
  </message>
  <message id="SCALER_ROUNDED">
    <source>rounded to whole pixels</source>
    <translation>rounded to whole pixels</translation>
  </message>
  <message id="SCALER_REPLACES">
    <source>exists, is replaced</source>
    <translation>exists, is replaced</translation>
  </message>
  <message id="SCALER_KEPT">
    <source>exists, is kept</source>
    <translation>exists, is kept</translation>
  </message>
  <message id="SCALER_LEFT_OUT">
    <source>left out: [REASON]</source>
    <translation>left out: [REASON]</translation>
  </message>
  <message id="SCALER_MORE">
    <source>[COUNT] more</source>
    <translation>[COUNT] more</translation>
  </message>
  <message id="SCALER_ONE_FILE">
    <source>1 file to write</source>
    <translation>1 file to write</translation>
  </message>
  <message id="SCALER_FILES">
    <source>[COUNT] files to write</source>
    <translation>[COUNT] files to write</translation>
  </message>
  <message id="SCALER_SUM_KEPT">
    <source>[COUNT] kept</source>
    <translation>[COUNT] kept</translation>
  </message>
  <message id="SCALER_SUM_REPLACED">
    <source>[COUNT] replaced</source>
    <translation>[COUNT] replaced</translation>
  </message>
  <message id="SCALER_SUM_ROUNDED">
    <source>[COUNT] rounded</source>
    <translation>[COUNT] rounded</translation>
  </message>
  <message id="SCALER_SUM_LEFT">
    <source>[COUNT] left out</source>
    <translation>[COUNT] left out</translation>
  </message>
  <message id="SCALER_PROGRESS">
    <source>[DONE] of [COUNT]</source>
    <translation>[DONE] of [COUNT]</translation>
  </message>

  <message id="RESIZER_REPLACED">
    <source>overwritten by [NAME]</source>
    <translation>overwritten by [NAME]</translation>
  </message>
  <message id="RESIZER_CHOOSE_FOLDER">
    <source>Choose folder…</source>
    <translation>Choose folder…</translation>
  </message>
  <message id="RESULT_TITLE">
    <source>Result</source>
    <translation>Result</translation>
  </message>
  <message id="RESULT_ONE_ICON">
    <source>1 icon in [FOLDER]</source>
    <translation>1 icon in [FOLDER]</translation>
  </message>
  <message id="RESULT_ICONS">
    <source>[COUNT] icons in [FOLDER]</source>
    <translation>[COUNT] icons in [FOLDER]</translation>
  </message>
  <message id="RESULT_ICONS_PARTLY">
    <source>[DONE] of [COUNT] icons in [FOLDER]</source>
    <translation>[DONE] of [COUNT] icons in [FOLDER]</translation>
  </message>
  <message id="RESULT_ONE_PICTURE">
    <source>1 picture in [FOLDER]</source>
    <translation>1 picture in [FOLDER]</translation>
  </message>
  <message id="RESULT_PICTURES">
    <source>[COUNT] pictures in [FOLDER]</source>
    <translation>[COUNT] pictures in [FOLDER]</translation>
  </message>
  <message id="RESULT_PICTURES_PARTLY">
    <source>[DONE] of [COUNT] pictures in [FOLDER]</source>
    <translation>[DONE] of [COUNT] pictures in [FOLDER]</translation>
  </message>
  <message id="RESULT_ONE_FILE">
    <source>1 file in [FOLDER]</source>
    <translation>1 file in [FOLDER]</translation>
  </message>
  <message id="RESULT_FILES">
    <source>[COUNT] files in [FOLDER]</source>
    <translation>[COUNT] files in [FOLDER]</translation>
  </message>
  <message id="RESULT_FILES_PARTLY">
    <source>[DONE] of [COUNT] files in [FOLDER]</source>
    <translation>[DONE] of [COUNT] files in [FOLDER]</translation>
  </message>
  <message id="RESULT_NOTHING">
    <source>Nothing was written to [FOLDER]</source>
    <translation>Nothing was written to [FOLDER]</translation>
  </message>
  <message id="RESULT_CANCELED">
    <source>Stopped before the end.</source>
    <translation>Stopped before the end.</translation>
  </message>
  <message id="RESULT_AND_MORE">
    <source>[FILE] and [COUNT] more</source>
    <translation>[FILE] and [COUNT] more</translation>
  </message>
  <message id="RESULT_FAILURES">
    <source>What went wrong</source>
    <translation>What went wrong</translation>
  </message>
  <message id="RESULT_NOTES">
    <source>To be noted</source>
    <translation>To be noted</translation>
  </message>
  <message id="RESULT_SHOW">
    <source>Show in folder</source>
    <translation>Show in folder</translation>
  </message>
  <message id="RESULT_COPY_PATH">
    <source>Copy path</source>
    <translation>Copy path</translation>
  </message>
  <message id="RESULT_COPIED">
    <source>Copied</source>
    <translation>Copied</translation>
  </message>
  <message id="READING_FILE">
    <source>Reading [FILE]…</source>
    <translation>Reading [FILE]…</translation>
  </message>
  <message id="TIP_BROWSE">
    <source>Choose from a folder</source>
    <translation>Choose from a folder</translation>
  </message>
  <message id="TIP_DROP">
    <source>Drop here, or paste</source>
    <translation>Drop here, or paste</translation>
  </message>
  <message id="CANCEL">
    <source>Cancel</source>
    <translation>Cancel</translation>
  </message>
  <message id="STOP">
    <source>Stop</source>
    <translation>Stop</translation>
  </message>

  <!-- Color codes -->
  <message id="COLOR_IOS">
    <source>For iOS, as UIColor</source>
    <translation>For iOS, as UIColor</translation>
  </message>
  <message id="COLOR_IOS_BUTTON">
    <source>Copy iOS</source>
    <translation>Copy iOS</translation>
  </message>
  <message id="COLOR_MAC">
    <source>For the Mac, as NSColor</source>
    <translation>For the Mac, as NSColor</translation>
  </message>
  <message id="COLOR_MAC_BUTTON">
    <source>Copy Mac</source>
    <translation>Copy Mac</translation>
  </message>
  <message id="COLOR_JAVA">
    <source>As rgb(red, green, blue)</source>
    <translation>As rgb(red, green, blue)</translation>
  </message>
  <message id="COLOR_JAVA_BUTTON">
    <source>Copy rgb</source>
    <translation>Copy rgb</translation>
  </message>
  <message id="COLOR_CSS">
    <source>As CSS declaration</source>
    <translation>As CSS declaration</translation>
  </message>
  <message id="COLOR_CSS_BUTTON">
    <source>Copy CSS</source>
    <translation>Copy CSS</translation>
  </message>
  <message id="COLOR_FORMS">
    <source>Codes</source>
    <translation>Codes</translation>
  </message>
  <message id="COLOR_PLATFORM">
    <source>Platform whose codes come first</source>
    <translation>Platform whose codes come first</translation>
  </message>
  <message id="COLOR_PLATFORM_TIP">
    <source>The codes of this platform come first</source>
    <translation>The codes of this platform come first</translation>
  </message>
  <message id="COLOR_DISPLAY_P3">
    <source>Display P3</source>
    <translation>Display P3</translation>
  </message>
  <message id="COLOR_DISPLAY_P3_TIP">
    <source>Write the wide gamut where a platform has it, with the sRGB code beside it</source>
    <translation>Write the wide gamut where a platform has it, with the sRGB code beside it</translation>
  </message>
  <message id="COLOR_CLIPPED">
    <source>clipped in sRGB</source>
    <translation>clipped in sRGB</translation>
  </message>
  <message id="COLOR_CLIPPED_TIP">
    <source>sRGB cannot show this color; its sRGB code is cut to what sRGB shows</source>
    <translation>sRGB cannot show this color; its sRGB code is cut to what sRGB shows</translation>
  </message>
  <message id="COLOR_COPY_FORM">
    <source>Copy [FORM]</source>
    <translation>Copy [FORM]</translation>
  </message>
  <message id="COLOR_ANY_FIELD">
    <source>Color in any form</source>
    <translation>Color in any form</translation>
  </message>
  <message id="COLOR_ANY_HINT">
    <source>A code in any language, or a CSS name.</source>
    <translation>A code in any language, or a CSS name.</translation>
  </message>
  <message id="COLOR_REFUSED">
    <source>This is no color code. The color stays as it is.</source>
    <translation>This is no color code. The color stays as it is.</translation>
  </message>
  <message id="COLOR_CONTRAST">
    <source>Contrast on</source>
    <translation>Contrast on</translation>
  </message>
  <message id="COLOR_BACKGROUND_FIELD">
    <source>Background color in any form</source>
    <translation>Background color in any form</translation>
  </message>
  <message id="COLOR_BACKGROUND_WELL">
    <source>Background color well, opens the color picker</source>
    <translation>Background color well, opens the color picker</translation>
  </message>
  <message id="COLOR_RATIO_TIP">
    <source>Contrast ratio as WCAG 2 defines it, 1 to 21</source>
    <translation>Contrast ratio as WCAG 2 defines it, 1 to 21</translation>
  </message>
  <message id="COLOR_SAMPLE">
    <source>Sample text</source>
    <translation>Sample text</translation>
  </message>
  <message id="COLOR_TEXT">
    <source>Text</source>
    <translation>Text</translation>
  </message>
  <message id="COLOR_LARGE_TEXT">
    <source>Large text</source>
    <translation>Large text</translation>
  </message>
  <message id="COLOR_INTERFACE">
    <source>Controls</source>
    <translation>Controls</translation>
  </message>
  <message id="COLOR_PASSES">
    <source>[LEVEL] passes</source>
    <translation>[LEVEL] passes</translation>
  </message>
  <message id="COLOR_FAILS">
    <source>[LEVEL] fails</source>
    <translation>[LEVEL] fails</translation>
  </message>
  <message id="COLOR_NEAREST">
    <source>Nearest</source>
    <translation>Nearest</translation>
  </message>
  <message id="COLOR_NEAREST_TIP">
    <source>Take the most similar color that passes [LEVEL]</source>
    <translation>Take the most similar color that passes [LEVEL]</translation>
  </message>
  <message id="COLOR_ALL_PASS">
    <source>This color passes already</source>
    <translation>This color passes already</translation>
  </message>
  <message id="COLOR_NONE_PASSES">
    <source>No color passes [LEVEL] on this background</source>
    <translation>No color passes [LEVEL] on this background</translation>
  </message>
  <message id="COLOR_PALETTE">
    <source>Palette</source>
    <translation>Palette</translation>
  </message>
  <message id="COLOR_PALETTE_LIST">
    <source>Colors picked so far</source>
    <translation>Colors picked so far</translation>
  </message>
  <message id="COLOR_PALETTE_EMPTY">
    <source>Every color that you pick on either side is kept here until the program ends.</source>
    <translation>Every color that you pick on either side is kept here until the program ends.</translation>
  </message>
  <message id="COLOR_PALETTE_ADD">
    <source>Add</source>
    <translation>Add</translation>
  </message>
  <message id="COLOR_PALETTE_REMOVE">
    <source>Remove</source>
    <translation>Remove</translation>
  </message>
  <message id="COLOR_PALETTE_OPEN">
    <source>Open…</source>
    <translation>Open…</translation>
  </message>
  <message id="COLOR_PALETTE_SAVE">
    <source>Save…</source>
    <translation>Save…</translation>
  </message>
  <message id="COLOR_PALETTE_OPEN_TITLE">
    <source>Choose a palette to read</source>
    <translation>Choose a palette to read</translation>
  </message>
  <message id="COLOR_PALETTE_SAVE_TITLE">
    <source>Choose the folder for the palette</source>
    <translation>Choose the folder for the palette</translation>
  </message>
  <message id="COLOR_PALETTE_FILES">
    <source>Palettes</source>
    <translation>Palettes</translation>
  </message>
  <message id="COLOR_PALETTE_SAVED">
    <source>Palette saved</source>
    <translation>Palette saved</translation>
  </message>
  <message id="COLOR_PALETTE_NOT_SAVED">
    <source>The palette was not saved</source>
    <translation>The palette was not saved</translation>
  </message>
  <message id="COLOR_CATALOGUE_OPEN">
    <source>Catalog…</source>
    <translation>Catalog…</translation>
  </message>
  <message id="COLOR_CATALOGUE_TIP">
    <source>Reads all color sets of an asset catalog (.xcassets)</source>
    <translation>Reads all color sets of an asset catalog (.xcassets)</translation>
  </message>
  <message id="COLOR_CATALOGUE_TITLE">
    <source>Choose the asset catalog</source>
    <translation>Choose the asset catalog</translation>
  </message>
  <message id="COLOR_CATALOGUE_PARTLY">
    <source>Some color sets were not read</source>
    <translation>Some color sets were not read</translation>
  </message>
  <message id="DETAIL_NO_COLOR_SET">
    <source>no color set in it</source>
    <translation>no color set in it</translation>
  </message>
  <message id="COLOR_PALETTE_REFUSED">
    <source>This is no palette</source>
    <translation>This is no palette</translation>
  </message>
  <message id="COLOR_FORMAT">
    <source>File format of the palette</source>
    <translation>File format of the palette</translation>
  </message>
  <message id="COLOR_FORMAT_SETS">
    <source>Color sets</source>
    <translation>Color sets</translation>
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
    <translation>CSS variables</translation>
  </message>
  <message id="COLOR_ALERT_TITLE">
    <source>This is no color code</source>
    <translation>This is no color code</translation>
  </message>
  <message id="COLOR_ALERT_MESSAGE">
    <source>Type three or six hexadecimal digits, for example #abc or #34485e.</source>
    <translation>Type three or six hexadecimal digits, for example #abc or #34485e.</translation>
  </message>

  <!-- Color codes: the color picker -->
  <message id="COLOR_PICKER">
    <source>Colors</source>
    <translation>Colors</translation>
  </message>
  <message id="COLOR_MODE_WHEEL">
    <source>Color wheel</source>
    <translation>Color wheel</translation>
  </message>
  <message id="COLOR_MODE_RGB">
    <source>RGB sliders</source>
    <translation>RGB sliders</translation>
  </message>
  <message id="COLOR_MODE_HSB">
    <source>HSB sliders</source>
    <translation>HSB sliders</translation>
  </message>
  <message id="COLOR_MODE_GRAY">
    <source>Gray slider</source>
    <translation>Gray slider</translation>
  </message>
  <message id="COLOR_MODE_PALETTE">
    <source>Palette</source>
    <translation>Palette</translation>
  </message>
  <message id="COLOR_MODE_SLIDERS">
    <source>Sliders</source>
    <translation>Sliders</translation>
  </message>
  <message id="COLOR_MODE_RECENT">
    <source>Recent colors</source>
    <translation>Recent colors</translation>
  </message>
  <message id="COLOR_CHANNEL_RED">
    <source>Red</source>
    <translation>Red</translation>
  </message>
  <message id="COLOR_CHANNEL_GREEN">
    <source>Green</source>
    <translation>Green</translation>
  </message>
  <message id="COLOR_CHANNEL_BLUE">
    <source>Blue</source>
    <translation>Blue</translation>
  </message>
  <message id="COLOR_CHANNEL_HUE">
    <source>Hue</source>
    <translation>Hue</translation>
  </message>
  <message id="COLOR_CHANNEL_SATURATION">
    <source>Saturation</source>
    <translation>Saturation</translation>
  </message>
  <message id="COLOR_CHANNEL_BRIGHTNESS">
    <source>Brightness</source>
    <translation>Brightness</translation>
  </message>
  <message id="COLOR_CHANNEL_GRAY">
    <source>Gray</source>
    <translation>Gray</translation>
  </message>
  <message id="COLOR_CHANNEL_OPACITY">
    <source>Opacity</source>
    <translation>Opacity</translation>
  </message>
  <message id="COLOR_WHEEL_VALUE">
    <source>Hue [HUE]°, saturation [SATURATION]%</source>
    <translation>Hue [HUE]°, saturation [SATURATION]%</translation>
  </message>
  <message id="COLOR_SLIDERS_KIND">
    <source>Kind of sliders</source>
    <translation>Kind of sliders</translation>
  </message>
  <message id="COLOR_PALETTE_LUMORA">
    <source>Colors of the tools</source>
    <translation>Colors of the tools</translation>
  </message>
  <message id="COLOR_PALETTE_DARK">
    <source>[NAME], dark shade</source>
    <translation>[NAME], dark shade</translation>
  </message>
  <message id="COLOR_PALETTE_TEXT">
    <source>Text</source>
    <translation>Text</translation>
  </message>
  <message id="COLOR_PALETTE_PANEL">
    <source>Panel</source>
    <translation>Panel</translation>
  </message>
  <message id="COLOR_PALETTE_RULE">
    <source>Rule</source>
    <translation>Rule</translation>
  </message>
  <message id="COLOR_PALETTE_WEB">
    <source>Named colors of the web</source>
    <translation>Named colors of the web</translation>
  </message>
  <message id="COLOR_RECENT_EMPTY">
    <source>The colors you pick are kept here until you quit Lumora.</source>
    <translation>The colors you pick are kept here until you quit Lumora.</translation>
  </message>
  <message id="COLOR_HEX">
    <source>Hexadecimal code</source>
    <translation>Hexadecimal code</translation>
  </message>
  <message id="COLOR_PIPETTE">
    <source>Pick a color from the screen</source>
    <translation>Pick a color from the screen</translation>
  </message>
  <message id="COLOR_SCREEN_PIPETTE">
    <source>Pick a screen color</source>
    <translation>Pick a screen color</translation>
  </message>
  <message id="COLOR_PIPETTE_FAILED_TITLE">
    <source>No color picked</source>
    <translation>No color picked</translation>
  </message>
  <message id="COLOR_NO_OPACITY">
    <source>The color is [PERCENT]% opaque. These codes carry no opacity: they are for the opaque color.</source>
    <translation>The color is [PERCENT]% opaque. These codes carry no opacity: they are for the opaque color.</translation>
  </message>
  <message id="COLOR_CLICK_COPIES">
    <source>Click to copy</source>
    <translation>Click to copy</translation>
  </message>
  <message id="COLOR_PIPETTE_FAILED_MESSAGE">
    <source>The system did not let Lumora read the screen. Allow it in the system settings, or choose the color here.</source>
    <translation>The system did not let Lumora read the screen. Allow it in the system settings, or choose the color here.</translation>
  </message>

  <!-- Device matrix -->
  <message id="DEVICES_IOS">
    <source>iOS version</source>
    <translation>iOS version</translation>
  </message>
  <message id="DEVICES_FEATURES">
    <source>Features</source>
    <translation>Features</translation>
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
    <translation>[COUNT] of [ALL] models fit</translation>
  </message>
  <message id="DEVICES_TOO_OLD">
    <source>Runs iOS [NEWEST] at most; iOS [WANTED] is asked for.</source>
    <translation>Runs iOS [NEWEST] at most; iOS [WANTED] is asked for.</translation>
  </message>
  <message id="DEVICES_LACKS">
    <source>Lacks: [FEATURES]</source>
    <translation>Lacks: [FEATURES]</translation>
  </message>
  <message id="DEVICES_IPAD_MINI">
    <source>iPad mini</source>
    <translation>iPad mini</translation>
  </message>
  <message id="DEVICES_SEARCH">
    <source>Name or identifier</source>
    <translation>Name or identifier</translation>
  </message>
  <message id="DEVICES_IOS_FROM">
    <source>Oldest iOS version</source>
    <translation>Oldest iOS version</translation>
  </message>
  <message id="DEVICES_IOS_TO">
    <source>Newest iOS version</source>
    <translation>Newest iOS version</translation>
  </message>
  <message id="DEVICES_IOS_RANGE">
    <source>iOS [FROM] to [TO]</source>
    <translation>iOS [FROM] to [TO]</translation>
  </message>
  <message id="DEVICES_SHARE">
    <source>[PERCENT]% of all models ([COUNT] of [ALL])</source>
    <translation>[PERCENT]% of all models ([COUNT] of [ALL])</translation>
  </message>
  <message id="DEVICES_FAMILY">
    <source>Family</source>
    <translation>Family</translation>
  </message>
  <message id="DEVICES_HARDWARE">
    <source>Hardware</source>
    <translation>Hardware</translation>
  </message>
  <message id="DEVICES_ANY_CHIP">
    <source>Any chip</source>
    <translation>Any chip</translation>
  </message>
  <message id="DEVICES_ANY_SCREEN">
    <source>Any screen</source>
    <translation>Any screen</translation>
  </message>
  <message id="DEVICES_ANY_BIOMETRY">
    <source>Any biometry</source>
    <translation>Any biometry</translation>
  </message>
  <message id="DEVICES_CLASS">
    <source>[FAMILY], [CLASS] inches</source>
    <translation>[FAMILY], [CLASS] inches</translation>
  </message>
  <message id="DEVICES_MODELS">
    <source>Models</source>
    <translation>Models</translation>
  </message>
  <message id="DEVICES_FITS">
    <source>meets the choice</source>
    <translation>meets the choice</translation>
  </message>
  <message id="DEVICES_COMPARED">
    <source>in the comparison</source>
    <translation>in the comparison</translation>
  </message>
  <message id="DEVICES_TILE_TIP">
    <source>Click for its data; the mark, or Insert, adds it to a comparison</source>
    <translation>Click for its data; the mark, or Insert, adds it to a comparison</translation>
  </message>
  <message id="DEVICES_COMPARE">
    <source>Compare ([COUNT])</source>
    <translation>Compare ([COUNT])</translation>
  </message>
  <message id="DEVICES_COMPARE_TIP">
    <source>Two or three marked models side by side</source>
    <translation>Two or three marked models side by side</translation>
  </message>
  <message id="DEVICES_BACK">
    <source>All models</source>
    <translation>All models</translation>
  </message>
  <message id="DEVICES_BACK_TIP">
    <source>Back to all models</source>
    <translation>Back to all models</translation>
  </message>
  <message id="DEVICES_MARK">
    <source>Add to comparison</source>
    <translation>Add to comparison</translation>
  </message>
  <message id="DEVICES_UNMARK">
    <source>Take out of comparison</source>
    <translation>Take out of comparison</translation>
  </message>
  <message id="DEVICES_CLICK_COPIES">
    <source>Click to copy</source>
    <translation>Click to copy</translation>
  </message>
  <message id="DEVICES_ENDS">
    <source>ends at iOS [DETAIL]</source>
    <translation>ends at iOS [DETAIL]</translation>
  </message>
  <message id="DEVICES_BEGINS">
    <source>begins with iOS [DETAIL]</source>
    <translation>begins with iOS [DETAIL]</translation>
  </message>
  <message id="DEVICES_OTHER_DEVICE">
    <source>the app is for [DETAIL]</source>
    <translation>the app is for [DETAIL]</translation>
  </message>
  <message id="DEVICES_OTHER_FAMILY">
    <source>is an [DETAIL]</source>
    <translation>is an [DETAIL]</translation>
  </message>
  <message id="DEVICES_OTHER_CHIP">
    <source>has the chip [DETAIL]</source>
    <translation>has the chip [DETAIL]</translation>
  </message>
  <message id="DEVICES_MISSES">
    <source>lacks [DETAIL]</source>
    <translation>lacks [DETAIL]</translation>
  </message>
  <message id="DEVICES_OTHER_SCREEN">
    <source>has a screen of class [DETAIL]</source>
    <translation>has a screen of class [DETAIL]</translation>
  </message>
  <message id="DEVICES_UNKNOWN_SCREEN">
    <source>its screen is not known</source>
    <translation>its screen is not known</translation>
  </message>
  <message id="DEVICES_OTHER_BIOMETRY">
    <source>biometry: [DETAIL]</source>
    <translation>biometry: [DETAIL]</translation>
  </message>
  <message id="DEVICES_UNKNOWN_FEATURE">
    <source>not known whether it has [DETAIL]</source>
    <translation>not known whether it has [DETAIL]</translation>
  </message>
  <message id="DEVICES_NOT_SEARCHED">
    <source>does not match the search</source>
    <translation>does not match the search</translation>
  </message>
  <message id="DEVICES_NO_BIOMETRY">
    <source>none</source>
    <translation>none</translation>
  </message>
  <message id="DEVICES_UNKNOWN_BIOMETRY">
    <source>not known</source>
    <translation>not known</translation>
  </message>
  <message id="DEVICES_YES">
    <source>yes</source>
    <translation>yes</translation>
  </message>
  <message id="DEVICES_NO">
    <source>no</source>
    <translation>no</translation>
  </message>
  <message id="DEVICES_FACT_IDENTIFIERS">
    <source>Identifiers</source>
    <translation>Identifiers</translation>
  </message>
  <message id="DEVICES_FACT_RELEASED">
    <source>Released</source>
    <translation>Released</translation>
  </message>
  <message id="DEVICES_FACT_CHIP">
    <source>Chip</source>
    <translation>Chip</translation>
  </message>
  <message id="DEVICES_FACT_ARCHITECTURE">
    <source>Architecture</source>
    <translation>Architecture</translation>
  </message>
  <message id="DEVICES_FACT_MINIMUM">
    <source>Minimum iOS</source>
    <translation>Minimum iOS</translation>
  </message>
  <message id="DEVICES_FACT_NEWEST">
    <source>Newest iOS</source>
    <translation>Newest iOS</translation>
  </message>
  <message id="DEVICES_FACT_SCREEN">
    <source>Screen, pixels</source>
    <translation>Screen, pixels</translation>
  </message>
  <message id="DEVICES_FACT_RENDER">
    <source>Drawn pixels</source>
    <translation>Drawn pixels</translation>
  </message>
  <message id="DEVICES_FACT_POINTS">
    <source>Screen, points</source>
    <translation>Screen, points</translation>
  </message>
  <message id="DEVICES_FACT_SCALE">
    <source>Scale</source>
    <translation>Scale</translation>
  </message>
  <message id="DEVICES_FACT_DIAGONAL">
    <source>Diagonal, inches</source>
    <translation>Diagonal, inches</translation>
  </message>
  <message id="DEVICES_FACT_DENSITY">
    <source>Pixels per inch</source>
    <translation>Pixels per inch</translation>
  </message>
  <message id="DEVICES_FACT_CLASS">
    <source>Screen class</source>
    <translation>Screen class</translation>
  </message>
  <message id="DEVICES_FACT_BIOMETRY">
    <source>Biometry</source>
    <translation>Biometry</translation>
  </message>
  <message id="DEVICES_FACT_CAPABILITIES">
    <source>Capabilities</source>
    <translation>Capabilities</translation>
  </message>
  <message id="DEVICES_FACT_LAUNCH">
    <source>Launch sizes</source>
    <translation>Launch sizes</translation>
  </message>
  <message id="DEVICES_FACT_SCREENSHOTS">
    <source>Screenshot sizes</source>
    <translation>Screenshot sizes</translation>
  </message>

  <!-- App package check: intake -->
  <message id="VALIDATER_BROWSE_INFO">
    <source>Drop an .ipa package here or browse for one.</source>
    <translation>Drop an .ipa package here or browse for one.</translation>
  </message>
  <message id="VALIDATER_READING">
    <source>Reading [FILE]…</source>
    <translation>Reading [FILE]…</translation>
  </message>
  <message id="VALIDATER_VALIDATING">
    <source>Package report</source>
    <translation>Package report</translation>
  </message>
  <message id="VALIDATER_ONE_FILE_TITLE">
    <source>One package at a time</source>
    <translation>One package at a time</translation>
  </message>
  <message id="VALIDATER_ONE_FILE_MESSAGE">
    <source>Several files were given. Please choose a single .ipa package.</source>
    <translation>Several files were given. Please choose a single .ipa package.</translation>
  </message>
  <message id="VALIDATER_IPA_TITLE">
    <source>Not an app package</source>
    <translation>Not an app package</translation>
  </message>
  <message id="VALIDATER_IPA_MESSAGE">
    <source>The file name must end in .ipa, in lower case. Please choose an iOS app package.</source>
    <translation>The file name must end in .ipa, in lower case. Please choose an iOS app package.</translation>
  </message>
  <message id="VALIDATER_STOPPED_TITLE">
    <source>Package not read to its end</source>
    <translation>Package not read to its end</translation>
  </message>
  <message id="VALIDATER_STOPPED_MESSAGE">
    <source>It would unpack to more than 8 GB or 500,000 files, or the disk has too little room. What was read until then is shown.</source>
    <translation>It would unpack to more than 8 GB or 500,000 files, or the disk has too little room. What was read until then is shown.</translation>
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
    <translation>Platform: </translation>
  </message>
  <message id="VALIDATER_APP_MINIMUM_OS">
    <source>Oldest iOS: </source>
    <translation>Oldest iOS: </translation>
  </message>
  <message id="VALIDATER_APP_BUNDLE_ID">
    <source>Bundle ID: </source>
    <translation>Bundle ID: </translation>
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
    <translation>App icons</translation>
  </message>
  <message id="VALIDATER_VALIDATE_DEFAULTS">
    <source>Launch images</source>
    <translation>Launch images</translation>
  </message>
  <message id="VALIDATER_VALIDATE_BUNDLE_ID">
    <source>Bundle identifier</source>
    <translation>Bundle identifier</translation>
  </message>
  <message id="VALIDATER_VALIDATE_RELEASE">
    <source>Release build</source>
    <translation>Release build</translation>
  </message>
  <message id="VALIDATER_APP_LOCALIZATIONS">
    <source>Localizations</source>
    <translation>Localizations</translation>
  </message>
  <message id="VALIDATER_APP_URL_SCHEMES">
    <source>URL schemes</source>
    <translation>URL schemes</translation>
  </message>
  <message id="VALIDATER_APP_FACEBOOK_ID">
    <source>Facebook app ID</source>
    <translation>Facebook app ID</translation>
  </message>

  <!-- App package check: explanations; lists follow the localizations and URL scheme texts directly, so these end in a line break -->
  <message id="VALID_TEXT">
    <source>Looks good</source>
    <translation>Looks good</translation>
  </message>
  <message id="VALID_ICONS_TEXT">
    <source>Every required icon size is in the package.</source>
    <translation>Every required icon size is in the package.</translation>
  </message>
  <message id="VALID_LAUNCH_TEXT">
    <source>The package holds a launch image of a required size.</source>
    <translation>The package holds a launch image of a required size.</translation>
  </message>
  <message id="VALID_BUNDLE_ID_TEXT">
    <source>The provisioning profile names the app’s bundle identifier.</source>
    <translation>The provisioning profile names the app’s bundle identifier.</translation>
  </message>
  <message id="VALID_RELEASE_TEXT">
    <source>No fault was found with the kind of build. The line “Build” says whether it is debug or release.</source>
    <translation>No fault was found with the kind of build. The line “Build” says whether it is debug or release.</translation>
  </message>
  <message id="VALIDATE_ICONS_TITLE">
    <source>Icon sizes are missing</source>
    <translation>Icon sizes are missing</translation>
  </message>
  <message id="VALIDATE_ICONS_TEXT">
    <source>Please add an icon of [ICON] pixels.</source>
    <translation>Please add an icon of [ICON] pixels.</translation>
  </message>
  <message id="VALIDATE_DEFAULTS_TITLE">
    <source>No launch image: add one</source>
    <translation>No launch image: add one</translation>
  </message>
  <message id="VALIDATE_DEFAULTS_TEXT">
    <source>There is none of [DEFAULT] pixels.</source>
    <translation>There is none of [DEFAULT] pixels.</translation>
  </message>
  <message id="VALIDATE_BUNDLE_ID_TITLE">
    <source>Profile and app do not match</source>
    <translation>Profile and app do not match</translation>
  </message>
  <message id="VALIDATE_BUNDLE_ID_TEXT">
    <source>The provisioning profile does not name this app’s bundle identifier. Sign the app with a profile made for it. (A wildcard profile counts as no match.)</source>
    <translation>The provisioning profile does not name this app’s bundle identifier. Sign the app with a profile made for it. (A wildcard profile counts as no match.)</translation>
  </message>
  <message id="VALIDATE_RELEASE_TITLE">
    <source>Not a release build</source>
    <translation>Not a release build</translation>
  </message>
  <message id="VALIDATE_RELEASE_TEXT">
    <source>The provisioning profile lists test devices. Sign the app with a distribution profile for the store.</source>
    <translation>The provisioning profile lists test devices. Sign the app with a distribution profile for the store.</translation>
  </message>
  <message id="VALIDATE_LOCALIZATIONS_TEXT">
    <source>The app is localized for:
</source>
    <translation>The app is localized for:
</translation>
  </message>
  <message id="VALIDATE_URLSCHEME_TEXT">
    <source>The app opens addresses that begin with:
</source>
    <translation>The app opens addresses that begin with:
</translation>
  </message>
  <message id="VALIDATE_FACEBOOK_APP_ID_TEXT">
    <source>The app signs in to Facebook with the ID </source>
    <translation>The app signs in to Facebook with the ID </translation>
  </message>

  <!-- App package check: the report -->
  <message id="VALIDATER_CANCEL">
    <source>Cancel</source>
    <translation>Cancel</translation>
  </message>
  <message id="VALIDATER_COPY_REPORT">
    <source>Copy report</source>
    <translation>Copy report</translation>
  </message>
  <message id="VALIDATER_CHECK_AGAIN">
    <source>Check again</source>
    <translation>Check again</translation>
  </message>
  <message id="VALIDATER_SUM_PASSED">
    <source>All [COUNT] checks passed</source>
    <translation>All [COUNT] checks passed</translation>
  </message>
  <message id="VALIDATER_SUM_FAILED">
    <source>[FAILED] of [COUNT] checks failed</source>
    <translation>[FAILED] of [COUNT] checks failed</translation>
  </message>
  <message id="VALIDATER_SUM_UNREAD">
    <source>Package could not be read</source>
    <translation>Package could not be read</translation>
  </message>
  <message id="VALIDATER_READER_CRASHED">
    <source>The package could not be read: the reader stopped in the middle of it. The file may be damaged on purpose.</source>
    <translation>The package could not be read: the reader stopped in the middle of it. The file may be damaged on purpose.</translation>
  </message>
  <message id="VALIDATER_READER_STALLED">
    <source>The package could not be read: the reader did not get any further and was ended.</source>
    <translation>The package could not be read: the reader did not get any further and was ended.</translation>
  </message>
  <message id="VALIDATER_READER_NOT_STARTED">
    <source>The package could not be read: the reader could not be started.</source>
    <translation>The package could not be read: the reader could not be started.</translation>
  </message>
  <message id="VALIDATER_SUM_NO_PACKAGE">
    <source>No readable app package</source>
    <translation>No readable app package</translation>
  </message>
  <message id="FINDINGS_TITLE">
    <source>Findings</source>
    <translation>Findings</translation>
  </message>
  <message id="FINDINGS_NONE">
    <source>Nothing found</source>
    <translation>Nothing found</translation>
  </message>
  <message id="FINDINGS_NONE_LONG">
    <source>The store's rules find nothing in this package.</source>
    <translation>The store's rules find nothing in this package.</translation>
  </message>
  <message id="FINDINGS_NONE_FIT">
    <source>No finding fits the choice.</source>
    <translation>No finding fits the choice.</translation>
  </message>
  <message id="FINDINGS_ONE_ERROR">
    <source>1 error</source>
    <translation>1 error</translation>
  </message>
  <message id="FINDINGS_ERRORS">
    <source>[A] errors</source>
    <translation>[A] errors</translation>
  </message>
  <message id="FINDINGS_ONE_WARNING">
    <source>1 warning</source>
    <translation>1 warning</translation>
  </message>
  <message id="FINDINGS_WARNINGS">
    <source>[A] warnings</source>
    <translation>[A] warnings</translation>
  </message>
  <message id="FINDINGS_ONE_NOTE">
    <source>1 note</source>
    <translation>1 note</translation>
  </message>
  <message id="FINDINGS_NOTES">
    <source>[A] notes</source>
    <translation>[A] notes</translation>
  </message>
  <message id="FINDINGS_ERROR">
    <source>Error</source>
    <translation>Error</translation>
  </message>
  <message id="FINDINGS_WARNING">
    <source>Warning</source>
    <translation>Warning</translation>
  </message>
  <message id="FINDINGS_NOTE">
    <source>Note</source>
    <translation>Note</translation>
  </message>
  <message id="FINDINGS_SHOW_ALL">
    <source>All</source>
    <translation>All</translation>
  </message>
  <message id="FINDINGS_SHOW_ERRORS">
    <source>Errors</source>
    <translation>Errors</translation>
  </message>
  <message id="FINDINGS_SHOW_WARNINGS">
    <source>Warnings</source>
    <translation>Warnings</translation>
  </message>
  <message id="FINDINGS_SHOW_NOTES">
    <source>Notes</source>
    <translation>Notes</translation>
  </message>
  <message id="ACCESSIBLE_FINDINGS_SEVERITY">
    <source>Severity of the findings</source>
    <translation>Severity of the findings</translation>
  </message>
  <message id="FINDINGS_SEARCH">
    <source>Search the findings</source>
    <translation>Search the findings</translation>
  </message>
  <message id="FINDINGS_SAVE">
    <source>Save report…</source>
    <translation>Save report…</translation>
  </message>
  <message id="FINDINGS_SAVE_TIP">
    <source>Save the report as a web page and as JSON</source>
    <translation>Save the report as a web page and as JSON</translation>
  </message>
  <message id="FINDINGS_SAVE_PANEL">
    <source>Choose a folder for the report</source>
    <translation>Choose a folder for the report</translation>
  </message>
  <message id="FINDINGS_SAVED">
    <source>Saved</source>
    <translation>Saved</translation>
  </message>
  <message id="FINDINGS_NOT_SAVED">
    <source>The report could not be saved</source>
    <translation>The report could not be saved</translation>
  </message>
  <message id="FINDINGS_TIMES">
    <source>[COUNT] times</source>
    <translation>[COUNT] times</translation>
  </message>
  <message id="FINDINGS_MORE_PLACES">
    <source>and [COUNT] more; the saved report has them all</source>
    <translation>and [COUNT] more; the saved report has them all</translation>
  </message>
  <message id="FINDINGS_FOUND">
    <source>What was found</source>
    <translation>What was found</translation>
  </message>
  <message id="FINDINGS_WHY">
    <source>Why it matters</source>
    <translation>Why it matters</translation>
  </message>
  <message id="FINDINGS_MEND">
    <source>How to mend it</source>
    <translation>How to mend it</translation>
  </message>
  <message id="FINDINGS_IGNORE">
    <source>Ignore this rule</source>
    <translation>Ignore this rule</translation>
  </message>
  <message id="FINDINGS_IGNORE_TIP">
    <source>Leave this rule out until Lumora is closed</source>
    <translation>Leave this rule out until Lumora is closed</translation>
  </message>
  <message id="FINDINGS_RESTORE">
    <source>Ignored rules: [COUNT]. Show again</source>
    <translation>Ignored rules: [COUNT]. Show again</translation>
  </message>
  <message id="FINDINGS_OWN_PICTURE">
    <source>The package's own picture</source>
    <translation>The package's own picture</translation>
  </message>
  <message id="FINDINGS_PACKED_ICON">
    <source>The package has a picture of 1024 pixels in Assets.car, where this program reads its size only. The icon tool opens without it: drop the original picture there.</source>
    <translation>The package has a picture of 1024 pixels in Assets.car, where this program reads its size only. The icon tool opens without it: drop the original picture there.</translation>
  </message>
  <message id="FINDINGS_MAKE_ICONS">
    <source>Make the missing icons</source>
    <translation>Make the missing icons</translation>
  </message>
  <message id="FINDINGS_MAKE_ICONS_TIP">
    <source>Open the icon tool, with the package's own picture if it has one</source>
    <translation>Open the icon tool, with the package's own picture if it has one</translation>
  </message>
  <message id="ACCESSIBLE_FINDING_OPEN">
    <source>open</source>
    <translation>open</translation>
  </message>
  <message id="ACCESSIBLE_FINDING_CLOSED">
    <source>closed</source>
    <translation>closed</translation>
  </message>
  <message id="REVIEW_PENDING">
    <source>Checking the store's rules…</source>
    <translation>Checking the store's rules…</translation>
  </message>
  <message id="REVIEW_CLASSIC_RULES">
    <source>iOS 7 rules</source>
    <translation>iOS 7 rules</translation>
  </message>
  <message id="REVIEW_READER_CRASHED">
    <source>The store's rules could not be checked: the reader stopped in the middle of the package. The file may be damaged on purpose.</source>
    <translation>The store's rules could not be checked: the reader stopped in the middle of the package. The file may be damaged on purpose.</translation>
  </message>
  <message id="REVIEW_READER_STALLED">
    <source>The store's rules could not be checked: the reader did not get any further and was ended.</source>
    <translation>The store's rules could not be checked: the reader did not get any further and was ended.</translation>
  </message>
  <message id="REVIEW_READER_NOT_STARTED">
    <source>The store's rules could not be checked: the reader could not be started.</source>
    <translation>The store's rules could not be checked: the reader could not be started.</translation>
  </message>
  <message id="REVIEW_SIGNING">
    <source>Signature and profile</source>
    <translation>Signature and profile</translation>
  </message>
  <message id="REVIEW_SIGNATURE">
    <source>Signature</source>
    <translation>Signature</translation>
  </message>
  <message id="REVIEW_SIGNATURE_VALID">
    <source>valid</source>
    <translation>valid</translation>
  </message>
  <message id="REVIEW_SIGNATURE_NONE">
    <source>not signed</source>
    <translation>not signed</translation>
  </message>
  <message id="REVIEW_SIGNATURE_BROKEN">
    <source>broken</source>
    <translation>broken</translation>
  </message>
  <message id="REVIEW_SIGNER">
    <source>Signed by</source>
    <translation>Signed by</translation>
  </message>
  <message id="REVIEW_TEAM">
    <source>Team</source>
    <translation>Team</translation>
  </message>
  <message id="REVIEW_PROFILE">
    <source>Profile</source>
    <translation>Profile</translation>
  </message>
  <message id="REVIEW_PROFILE_NONE">
    <source>none</source>
    <translation>none</translation>
  </message>
  <message id="REVIEW_PROFILE_DEVELOPMENT">
    <source>for development</source>
    <translation>for development</translation>
  </message>
  <message id="REVIEW_PROFILE_AD_HOC">
    <source>for listed devices (ad hoc)</source>
    <translation>for listed devices (ad hoc)</translation>
  </message>
  <message id="REVIEW_PROFILE_ENTERPRISE">
    <source>for one company (in-house)</source>
    <translation>for one company (in-house)</translation>
  </message>
  <message id="REVIEW_PROFILE_STORE">
    <source>for the App Store</source>
    <translation>for the App Store</translation>
  </message>
  <message id="REVIEW_PROFILE_NAME">
    <source>Name of the profile</source>
    <translation>Name of the profile</translation>
  </message>
  <message id="REVIEW_PROFILE_TEAM">
    <source>Team of the profile</source>
    <translation>Team of the profile</translation>
  </message>
  <message id="REVIEW_EXPIRY">
    <source>Validity</source>
    <translation>Validity</translation>
  </message>
  <message id="REVIEW_EXPIRES_IN_DAYS">
    <source>expires in [COUNT] days ([DATE])</source>
    <translation>expires in [COUNT] days ([DATE])</translation>
  </message>
  <message id="REVIEW_EXPIRES_IN_A_DAY">
    <source>expires in 1 day ([DATE])</source>
    <translation>expires in 1 day ([DATE])</translation>
  </message>
  <message id="REVIEW_EXPIRED">
    <source>expired on [DATE]</source>
    <translation>expired on [DATE]</translation>
  </message>
  <message id="REVIEW_DEVICES">
    <source>Devices</source>
    <translation>Devices</translation>
  </message>
  <message id="REVIEW_BUNDLES">
    <source>Bundles</source>
    <translation>Bundles</translation>
  </message>
  <message id="REVIEW_KIND_APP">
    <source>app</source>
    <translation>app</translation>
  </message>
  <message id="REVIEW_KIND_EXTENSION">
    <source>extension</source>
    <translation>extension</translation>
  </message>
  <message id="REVIEW_KIND_WATCH_APP">
    <source>watch app</source>
    <translation>watch app</translation>
  </message>
  <message id="REVIEW_KIND_FRAMEWORK">
    <source>framework</source>
    <translation>framework</translation>
  </message>
  <message id="REVIEW_KIND_RESOURCES">
    <source>resources</source>
    <translation>resources</translation>
  </message>
  <message id="REVIEW_VERSION">
    <source>version [VERSION]</source>
    <translation>version [VERSION]</translation>
  </message>
  <message id="REVIEW_MINIMUM">
    <source>from iOS [VERSION]</source>
    <translation>from iOS [VERSION]</translation>
  </message>
  <message id="REVIEW_MORE">
    <source>and [COUNT] more</source>
    <translation>and [COUNT] more</translation>
  </message>
  <message id="REVIEW_PRIVACY">
    <source>Privacy</source>
    <translation>Privacy</translation>
  </message>
  <message id="REVIEW_PRIVACY_NONE">
    <source>no privacy manifest</source>
    <translation>no privacy manifest</translation>
  </message>
  <message id="REVIEW_TRACKS">
    <source>tracks people</source>
    <translation>tracks people</translation>
  </message>
  <message id="REVIEW_TRACKS_NOT">
    <source>does not track people</source>
    <translation>does not track people</translation>
  </message>
  <message id="REVIEW_COLLECTS">
    <source>kinds of data collected: [COUNT]</source>
    <translation>kinds of data collected: [COUNT]</translation>
  </message>
  <message id="REVIEW_SIZES">
    <source>Sizes</source>
    <translation>Sizes</translation>
  </message>
  <message id="REVIEW_FILES_CODE">
    <source>Code</source>
    <translation>Code</translation>
  </message>
  <message id="REVIEW_FILES_CATALOGS">
    <source>Catalogs</source>
    <translation>Catalogs</translation>
  </message>
  <message id="REVIEW_FILES_PICTURES">
    <source>Pictures</source>
    <translation>Pictures</translation>
  </message>
  <message id="REVIEW_FILES_SOUNDS">
    <source>Sound and film</source>
    <translation>Sound and film</translation>
  </message>
  <message id="REVIEW_FILES_INTERFACES">
    <source>Interfaces</source>
    <translation>Interfaces</translation>
  </message>
  <message id="REVIEW_FILES_LANGUAGES">
    <source>Languages</source>
    <translation>Languages</translation>
  </message>
  <message id="REVIEW_FILES_FONTS">
    <source>Fonts</source>
    <translation>Fonts</translation>
  </message>
  <message id="REVIEW_FILES_SIGNING">
    <source>Signing</source>
    <translation>Signing</translation>
  </message>
  <message id="REVIEW_FILES_OTHERS">
    <source>Others</source>
    <translation>Others</translation>
  </message>
  <message id="REVIEW_MODELS">
    <source>Models on which it runs</source>
    <translation>Models on which it runs</translation>
  </message>
  <message id="REVIEW_MODELS_TIP">
    <source>Open the device tool with what the package asks for</source>
    <translation>Open the device tool with what the package asks for</translation>
  </message>
  <message id="RULE_MAC_PROFILE_TITLE">
    <source>The Mac app has no provisioning profile</source>
    <translation>The Mac app has no provisioning profile</translation>
  </message>
  <message id="RULE_MAC_PROFILE_RULE">
    <source>A Mac app that is for testers, too, brings Contents/embedded.provisionprofile.</source>
    <translation>A Mac app that is for testers, too, brings Contents/embedded.provisionprofile.</translation>
  </message>
  <message id="RULE_MAC_PROFILE_FIX">
    <source>Export the archive for the App Store with Xcode.</source>
    <translation>Export the archive for the App Store with Xcode.</translation>
  </message>
  <message id="RULE_MAC_SANDBOX_TITLE">
    <source>The Mac app is not sandboxed</source>
    <translation>The Mac app is not sandboxed</translation>
  </message>
  <message id="RULE_MAC_SANDBOX_RULE">
    <source>An app for the Mac App Store has the entitlement com.apple.security.app-sandbox.</source>
    <translation>An app for the Mac App Store has the entitlement com.apple.security.app-sandbox.</translation>
  </message>
  <message id="RULE_MAC_SANDBOX_FIX">
    <source>Add the capability App Sandbox and sign the app again.</source>
    <translation>Add the capability App Sandbox and sign the app again.</translation>
  </message>
  <message id="FOUND_NO_MAC_APP">
    <source>no app for the Mac</source>
    <translation>no app for the Mac</translation>
  </message>
  <message id="FOUND_NO_SANDBOX">
    <source>com.apple.security.app-sandbox is not among the entitlements</source>
    <translation>com.apple.security.app-sandbox is not among the entitlements</translation>
  </message>
  <message id="RULE_ARM64_MINIMUM_TITLE">
    <source>The minimum system is likely too old for arm64</source>
    <translation>The minimum system is likely too old for arm64</translation>
  </message>
  <message id="RULE_ARM64_MINIMUM_RULE">
    <source>An app that lists arm64 among its required capabilities names a system that devices with 64-bit code run: 7.0 or more.</source>
    <translation>An app that lists arm64 among its required capabilities names a system that devices with 64-bit code run: 7.0 or more.</translation>
  </message>
  <message id="RULE_ARM64_MINIMUM_FIX">
    <source>Raise the deployment target, or take arm64 out of UIRequiredDeviceCapabilities.</source>
    <translation>Raise the deployment target, or take arm64 out of UIRequiredDeviceCapabilities.</translation>
  </message>
  <message id="RULE_PRIVATE_NAMES_TITLE">
    <source>Code uses private functions of the system</source>
    <translation>Code uses private functions of the system</translation>
  </message>
  <message id="RULE_PRIVATE_NAMES_RULE">
    <source>An app links no private framework and calls no function that is known to be private.</source>
    <translation>An app links no private framework and calls no function that is known to be private.</translation>
  </message>
  <message id="RULE_PRIVATE_NAMES_FIX">
    <source>Use a public function instead, or a newer version of the library that calls the private one.</source>
    <translation>Use a public function instead, or a newer version of the library that calls the private one.</translation>
  </message>
  <message id="RULE_LISTED_KIT_SIGNATURE_TITLE">
    <source>A listed kit is likely not signed by its maker</source>
    <translation>A listed kit is likely not signed by its maker</translation>
  </message>
  <message id="RULE_LISTED_KIT_SIGNATURE_RULE">
    <source>A kit on the platform's list that is added as a finished binary is signed by its maker, and the archive holds the receipt in Signatures.</source>
    <translation>A kit on the platform's list that is added as a finished binary is signed by its maker, and the archive holds the receipt in Signatures.</translation>
  </message>
  <message id="RULE_LISTED_KIT_SIGNATURE_FIX">
    <source>Use the maker's signed xcframework and export the archive with Xcode. A kit that is built from its sources needs no receipt.</source>
    <translation>Use the maker's signed xcframework and export the archive with Xcode. A kit that is built from its sources needs no receipt.</translation>
  </message>
  <message id="FOUND_ARM64_NOT_LISTED">
    <source>it does not list arm64</source>
    <translation>it does not list arm64</translation>
  </message>
  <message id="FOUND_ARM64_MINIMUM">
    <source>arm64 is listed, but MinimumOSVersion is [A]</source>
    <translation>arm64 is listed, but MinimumOSVersion is [A]</translation>
  </message>
  <message id="FOUND_PRIVATE_FRAMEWORK">
    <source>links the private framework [A]</source>
    <translation>links the private framework [A]</translation>
  </message>
  <message id="FOUND_PRIVATE_SYMBOL">
    <source>imports the private name [A]</source>
    <translation>imports the private name [A]</translation>
  </message>
  <message id="FOUND_NO_RECEIPT">
    <source>there is no receipt [A]…</source>
    <translation>there is no receipt [A]…</translation>
  </message>
  <message id="SEVERITY_ERROR">
    <source>error</source>
    <translation>error</translation>
  </message>
  <message id="SEVERITY_WARNING">
    <source>warning</source>
    <translation>warning</translation>
  </message>
  <message id="SEVERITY_NOTE">
    <source>note</source>
    <translation>note</translation>
  </message>
  <message id="CLI_RULES_SEVERITY">
    <source>severity</source>
    <translation>severity</translation>
  </message>
  <message id="CLI_RULES_TITLE">
    <source>title</source>
    <translation>title</translation>
  </message>
  <message id="CLI_RULES_RULE">
    <source>rule</source>
    <translation>rule</translation>
  </message>
  <message id="CLI_RULES_FIX">
    <source>fix</source>
    <translation>fix</translation>
  </message>
  <message id="CLI_RULES_SOURCE">
    <source>source</source>
    <translation>source</translation>
  </message>
  <message id="CLI_RULES_SINCE">
    <source>since</source>
    <translation>since</translation>
  </message>
  <message id="CLI_DIFF_ALL">
    <source>All</source>
    <translation>All</translation>
  </message>
  <message id="HTML_LANGUAGE">
    <source>en</source>
    <translation>en</translation>
  </message>
  <message id="HTML_PACKAGES">
    <source>Packages</source>
    <translation>Packages</translation>
  </message>
  <message id="HTML_FACTS">
    <source>Facts</source>
    <translation>Facts</translation>
  </message>
  <message id="HTML_ONE_FILE">
    <source>1 file</source>
    <translation>1 file</translation>
  </message>
  <message id="HTML_FILES">
    <source>[A] files</source>
    <translation>[A] files</translation>
  </message>
  <message id="HTML_MORE">
    <source>[A] more</source>
    <translation>[A] more</translation>
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
    <translation>Platform</translation>
  </message>
  <message id="HTML_MINIMUM_SYSTEM">
    <source>Minimum system</source>
    <translation>Minimum system</translation>
  </message>
  <message id="HTML_IDENTIFIER">
    <source>Identifier</source>
    <translation>Identifier</translation>
  </message>
  <message id="HTML_BUILD">
    <source>Build</source>
    <translation>Build</translation>
  </message>
  <message id="HTML_URL_SCHEMES">
    <source>URL schemes</source>
    <translation>URL schemes</translation>
  </message>
  <message id="HTML_FACEBOOK">
    <source>Facebook</source>
    <translation>Facebook</translation>
  </message>
  <message id="HTML_EXPIRES">
    <source>Expires</source>
    <translation>Expires</translation>
  </message>
  <message id="RULE_ICON_PHONE_TITLE">
    <source>No icon for the iPhone</source>
    <translation>No icon for the iPhone</translation>
  </message>
  <message id="RULE_ICON_PHONE_RULE">
    <source>An iPhone app for iOS 7 or newer has an icon of 120 by 120 pixels, in the catalog or as a file.</source>
    <translation>An iPhone app for iOS 7 or newer has an icon of 120 by 120 pixels, in the catalog or as a file.</translation>
  </message>
  <message id="RULE_ICON_PHONE_FIX">
    <source>Give the app icon set a picture of 1024 pixels, or add the size of 120.</source>
    <translation>Give the app icon set a picture of 1024 pixels, or add the size of 120.</translation>
  </message>
  <message id="RULE_ICON_PAD_TITLE">
    <source>No icon for the iPad</source>
    <translation>No icon for the iPad</translation>
  </message>
  <message id="RULE_ICON_PAD_RULE">
    <source>An iPad app for iOS 7 or newer has an icon of 152 by 152 pixels, in the catalog or as a file.</source>
    <translation>An iPad app for iOS 7 or newer has an icon of 152 by 152 pixels, in the catalog or as a file.</translation>
  </message>
  <message id="RULE_ICON_PAD_FIX">
    <source>Give the app icon set a picture of 1024 pixels, or add the size of 152.</source>
    <translation>Give the app icon set a picture of 1024 pixels, or add the size of 152.</translation>
  </message>
  <message id="RULE_ICON_MARKETING_TITLE">
    <source>No large icon</source>
    <translation>No large icon</translation>
  </message>
  <message id="RULE_ICON_MARKETING_RULE">
    <source>The asset catalog holds an icon of 1024 by 1024 pixels.</source>
    <translation>The asset catalog holds an icon of 1024 by 1024 pixels.</translation>
  </message>
  <message id="RULE_ICON_MARKETING_FIX">
    <source>Add a picture of 1024 pixels to the app icon set.</source>
    <translation>Add a picture of 1024 pixels to the app icon set.</translation>
  </message>
  <message id="RULE_ICON_NAME_TITLE">
    <source>The icon set is not named</source>
    <translation>The icon set is not named</translation>
  </message>
  <message id="RULE_ICON_NAME_RULE">
    <source>An app built with the SDK of iOS 11 or newer names its icon set by CFBundleIconName.</source>
    <translation>An app built with the SDK of iOS 11 or newer names its icon set by CFBundleIconName.</translation>
  </message>
  <message id="RULE_ICON_NAME_FIX">
    <source>Set ASSETCATALOG_COMPILER_APPICON_NAME to the name of the app icon set and build again.</source>
    <translation>Set ASSETCATALOG_COMPILER_APPICON_NAME to the name of the app icon set and build again.</translation>
  </message>
  <message id="RULE_ICON_OPAQUE_TITLE">
    <source>The large icon is translucent</source>
    <translation>The large icon is translucent</translation>
  </message>
  <message id="RULE_ICON_OPAQUE_RULE">
    <source>The icon of 1024 pixels has neither transparent pixels nor an alpha channel.</source>
    <translation>The icon of 1024 pixels has neither transparent pixels nor an alpha channel.</translation>
  </message>
  <message id="RULE_ICON_OPAQUE_FIX">
    <source>Flatten the picture onto a color and save it without alpha channel.</source>
    <translation>Flatten the picture onto a color and save it without alpha channel.</translation>
  </message>
  <message id="RULE_PAD_ORIENTATIONS_TITLE">
    <source>The iPad app does not turn into every direction</source>
    <translation>The iPad app does not turn into every direction</translation>
  </message>
  <message id="RULE_PAD_ORIENTATIONS_RULE">
    <source>An iPad app that does not ask for the whole screen lists all four orientations.</source>
    <translation>An iPad app that does not ask for the whole screen lists all four orientations.</translation>
  </message>
  <message id="RULE_PAD_ORIENTATIONS_FIX">
    <source>List all four in UISupportedInterfaceOrientations~ipad, or set UIRequiresFullScreen.</source>
    <translation>List all four in UISupportedInterfaceOrientations~ipad, or set UIRequiresFullScreen.</translation>
  </message>
  <message id="RULE_LAUNCH_SCREEN_TITLE">
    <source>No launch screen</source>
    <translation>No launch screen</translation>
  </message>
  <message id="RULE_LAUNCH_SCREEN_RULE">
    <source>An iPad app that does not ask for the whole screen has a launch storyboard or UILaunchScreen.</source>
    <translation>An iPad app that does not ask for the whole screen has a launch storyboard or UILaunchScreen.</translation>
  </message>
  <message id="RULE_LAUNCH_SCREEN_FIX">
    <source>Add UILaunchStoryboardName or UILaunchScreen to the Info.plist.</source>
    <translation>Add UILaunchStoryboardName or UILaunchScreen to the Info.plist.</translation>
  </message>
  <message id="RULE_PACKAGE_TYPE_TITLE">
    <source>The bundle is not marked as an app</source>
    <translation>The bundle is not marked as an app</translation>
  </message>
  <message id="RULE_PACKAGE_TYPE_RULE">
    <source>The app's CFBundlePackageType is APPL.</source>
    <translation>The app's CFBundlePackageType is APPL.</translation>
  </message>
  <message id="RULE_PACKAGE_TYPE_FIX">
    <source>Set CFBundlePackageType to APPL.</source>
    <translation>Set CFBundlePackageType to APPL.</translation>
  </message>
  <message id="RULE_MINIMUM_SYSTEM_TITLE">
    <source>The minimum system is likely too old</source>
    <translation>The minimum system is likely too old</translation>
  </message>
  <message id="RULE_MINIMUM_SYSTEM_RULE">
    <source>An app likely needs a MinimumOSVersion of 15.0 or more from spring 2027 on.</source>
    <translation>An app likely needs a MinimumOSVersion of 15.0 or more from spring 2027 on.</translation>
  </message>
  <message id="RULE_MINIMUM_SYSTEM_FIX">
    <source>Raise the deployment target to 15.0 or more.</source>
    <translation>Raise the deployment target to 15.0 or more.</translation>
  </message>
  <message id="RULE_NESTED_VERSION_TITLE">
    <source>A version is missing or malformed</source>
    <translation>A version is missing or malformed</translation>
  </message>
  <message id="RULE_NESTED_VERSION_RULE">
    <source>The app and each bundle in it has a CFBundleShortVersionString of one to three numbers and a CFBundleVersion.</source>
    <translation>The app and each bundle in it has a CFBundleShortVersionString of one to three numbers and a CFBundleVersion.</translation>
  </message>
  <message id="RULE_NESTED_VERSION_FIX">
    <source>Set both keys in the bundle's Info.plist to numbers with dots, as in 2.1.0.</source>
    <translation>Set both keys in the bundle's Info.plist to numbers with dots, as in 2.1.0.</translation>
  </message>
  <message id="RULE_EXTENSION_VERSION_TITLE">
    <source>An extension has another version than the app</source>
    <translation>An extension has another version than the app</translation>
  </message>
  <message id="RULE_EXTENSION_VERSION_RULE">
    <source>An extension has the same version and build number as its app.</source>
    <translation>An extension has the same version and build number as its app.</translation>
  </message>
  <message id="RULE_EXTENSION_VERSION_FIX">
    <source>Set version and build number of the extension to the app's.</source>
    <translation>Set version and build number of the extension to the app's.</translation>
  </message>
  <message id="RULE_IDENTIFIER_ONCE_TITLE">
    <source>Two bundles have the same identifier</source>
    <translation>Two bundles have the same identifier</translation>
  </message>
  <message id="RULE_IDENTIFIER_ONCE_RULE">
    <source>No two bundles of the package have the same CFBundleIdentifier.</source>
    <translation>No two bundles of the package have the same CFBundleIdentifier.</translation>
  </message>
  <message id="RULE_IDENTIFIER_ONCE_FIX">
    <source>Give one of the bundles another identifier.</source>
    <translation>Give one of the bundles another identifier.</translation>
  </message>
  <message id="RULE_NESTED_IDENTIFIER_TITLE">
    <source>An extension's identifier does not begin with the app's</source>
    <translation>An extension's identifier does not begin with the app's</translation>
  </message>
  <message id="RULE_NESTED_IDENTIFIER_RULE">
    <source>The identifier of an extension or watch app is the app's, a dot and a name of its own.</source>
    <translation>The identifier of an extension or watch app is the app's, a dot and a name of its own.</translation>
  </message>
  <message id="RULE_NESTED_IDENTIFIER_FIX">
    <source>Let the CFBundleIdentifier of the nested bundle begin with the app's identifier and a dot.</source>
    <translation>Let the CFBundleIdentifier of the nested bundle begin with the app's identifier and a dot.</translation>
  </message>
  <message id="RULE_ARM64_CAPABILITY_TITLE">
    <source>Only 64-bit code, but arm64 is not asked for</source>
    <translation>Only 64-bit code, but arm64 is not asked for</translation>
  </message>
  <message id="RULE_ARM64_CAPABILITY_RULE">
    <source>An app without 32-bit code that runs on systems before iOS 11 lists arm64 among its required capabilities.</source>
    <translation>An app without 32-bit code that runs on systems before iOS 11 lists arm64 among its required capabilities.</translation>
  </message>
  <message id="RULE_ARM64_CAPABILITY_FIX">
    <source>Add arm64 to UIRequiredDeviceCapabilities, or raise the deployment target.</source>
    <translation>Add arm64 to UIRequiredDeviceCapabilities, or raise the deployment target.</translation>
  </message>
  <message id="RULE_SDK_AGE_TITLE">
    <source>Built with an SDK that is too old</source>
    <translation>Built with an SDK that is too old</translation>
  </message>
  <message id="RULE_SDK_AGE_RULE">
    <source>An app is built with the SDK of iOS 18 or newer since April 2025, and with that of iOS 26 or newer since April 2026.</source>
    <translation>An app is built with the SDK of iOS 18 or newer since April 2025, and with that of iOS 26 or newer since April 2026.</translation>
  </message>
  <message id="RULE_SDK_AGE_FIX">
    <source>Build with the current Xcode.</source>
    <translation>Build with the current Xcode.</translation>
  </message>
  <message id="RULE_SDK_AGE_NEXT_TITLE">
    <source>Likely built with an SDK that is too old</source>
    <translation>Likely built with an SDK that is too old</translation>
  </message>
  <message id="RULE_SDK_AGE_NEXT_RULE">
    <source>An app likely needs the SDK of iOS 27 or newer from April 2027 on.</source>
    <translation>An app likely needs the SDK of iOS 27 or newer from April 2027 on.</translation>
  </message>
  <message id="RULE_SDK_AGE_NEXT_FIX">
    <source>Build with Xcode 27 or newer.</source>
    <translation>Build with Xcode 27 or newer.</translation>
  </message>
  <message id="RULE_EXECUTABLE_TITLE">
    <source>Code is missing or damaged</source>
    <translation>Code is missing or damaged</translation>
  </message>
  <message id="RULE_EXECUTABLE_RULE">
    <source>Each bundle of code has the binary that its Info.plist names, and every binary can be read to its end.</source>
    <translation>Each bundle of code has the binary that its Info.plist names, and every binary can be read to its end.</translation>
  </message>
  <message id="RULE_EXECUTABLE_FIX">
    <source>Build and export the app again.</source>
    <translation>Build and export the app again.</translation>
  </message>
  <message id="RULE_SIMULATOR_CODE_TITLE">
    <source>Code is for the simulator</source>
    <translation>Code is for the simulator</translation>
  </message>
  <message id="RULE_SIMULATOR_CODE_RULE">
    <source>No binary holds a slice for the simulator (i386, x86_64).</source>
    <translation>No binary holds a slice for the simulator (i386, x86_64).</translation>
  </message>
  <message id="RULE_SIMULATOR_CODE_FIX">
    <source>Link the library's device slice only, or its xcframework.</source>
    <translation>Link the library's device slice only, or its xcframework.</translation>
  </message>
  <message id="RULE_ALIGNMENT_TITLE">
    <source>A segment is not aligned</source>
    <translation>A segment is not aligned</translation>
  </message>
  <message id="RULE_ALIGNMENT_RULE">
    <source>Each segment of a binary begins at the start of a page.</source>
    <translation>Each segment of a binary begins at the start of a page.</translation>
  </message>
  <message id="RULE_ALIGNMENT_FIX">
    <source>Link the binary again with the platform's own tools.</source>
    <translation>Link the binary again with the platform's own tools.</translation>
  </message>
  <message id="RULE_BITCODE_TITLE">
    <source>Code still holds bitcode</source>
    <translation>Code still holds bitcode</translation>
  </message>
  <message id="RULE_BITCODE_RULE">
    <source>A package built with Xcode 16 or newer holds no bitcode.</source>
    <translation>A package built with Xcode 16 or newer holds no bitcode.</translation>
  </message>
  <message id="RULE_BITCODE_FIX">
    <source>Strip it with "bitcode_strip -r", or use a newer build of the library.</source>
    <translation>Strip it with "bitcode_strip -r", or use a newer build of the library.</translation>
  </message>
  <message id="RULE_ENCRYPTION_INFO_TITLE">
    <source>The store cannot encrypt the binary</source>
    <translation>The store cannot encrypt the binary</translation>
  </message>
  <message id="RULE_ENCRYPTION_INFO_RULE">
    <source>The app's binary has a load command LC_ENCRYPTION_INFO and is not encrypted yet.</source>
    <translation>The app's binary has a load command LC_ENCRYPTION_INFO and is not encrypted yet.</translation>
  </message>
  <message id="RULE_ENCRYPTION_INFO_FIX">
    <source>Export the app from its archive, not from a device, and without a packer.</source>
    <translation>Export the app from its archive, not from a device, and without a packer.</translation>
  </message>
  <message id="RULE_WEB_VIEW_TITLE">
    <source>Code refers to UIWebView</source>
    <translation>Code refers to UIWebView</translation>
  </message>
  <message id="RULE_WEB_VIEW_RULE">
    <source>No code refers to the class UIWebView.</source>
    <translation>No code refers to the class UIWebView.</translation>
  </message>
  <message id="RULE_WEB_VIEW_FIX">
    <source>Use WKWebView, and versions of libraries that use it, too.</source>
    <translation>Use WKWebView, and versions of libraries that use it, too.</translation>
  </message>
  <message id="RULE_FRAMEWORK_MINIMUM_TITLE">
    <source>A framework's minimum system is missing or too old</source>
    <translation>A framework's minimum system is missing or too old</translation>
  </message>
  <message id="RULE_FRAMEWORK_MINIMUM_RULE">
    <source>Each framework names a MinimumOSVersion of 8.0 or more.</source>
    <translation>Each framework names a MinimumOSVersion of 8.0 or more.</translation>
  </message>
  <message id="RULE_FRAMEWORK_MINIMUM_FIX">
    <source>Set MinimumOSVersion in the framework's Info.plist to the app's.</source>
    <translation>Set MinimumOSVersion in the framework's Info.plist to the app's.</translation>
  </message>
  <message id="RULE_FRAMEWORK_SYSTEM_TITLE">
    <source>A framework is built for another system than it says</source>
    <translation>A framework is built for another system than it says</translation>
  </message>
  <message id="RULE_FRAMEWORK_SYSTEM_RULE">
    <source>A framework's binary is built for the system that its Info.plist names, and for none newer than the app's.</source>
    <translation>A framework's binary is built for the system that its Info.plist names, and for none newer than the app's.</translation>
  </message>
  <message id="RULE_FRAMEWORK_SYSTEM_FIX">
    <source>Build the framework with the app's deployment target.</source>
    <translation>Build the framework with the app's deployment target.</translation>
  </message>
  <message id="RULE_FRAMEWORK_TYPE_TITLE">
    <source>A framework is not a dynamic library</source>
    <translation>A framework is not a dynamic library</translation>
  </message>
  <message id="RULE_FRAMEWORK_TYPE_RULE">
    <source>The binary of a framework is a dynamic library.</source>
    <translation>The binary of a framework is a dynamic library.</translation>
  </message>
  <message id="RULE_FRAMEWORK_TYPE_FIX">
    <source>Link a static library into the app and do not embed it.</source>
    <translation>Link a static library into the app and do not embed it.</translation>
  </message>
  <message id="RULE_SWIFT_ENTRY_TITLE">
    <source>An extension likely has no entry point</source>
    <translation>An extension likely has no entry point</translation>
  </message>
  <message id="RULE_SWIFT_ENTRY_RULE">
    <source>An extension of the newer kind has a section __swift5_entry, where the system starts it.</source>
    <translation>An extension of the newer kind has a section __swift5_entry, where the system starts it.</translation>
  </message>
  <message id="RULE_SWIFT_ENTRY_FIX">
    <source>Mark its type with @main and build again.</source>
    <translation>Mark its type with @main and build again.</translation>
  </message>
  <message id="RULE_LOOSE_CODE_TITLE">
    <source>Code outside of a bundle</source>
    <translation>Code outside of a bundle</translation>
  </message>
  <message id="RULE_LOOSE_CODE_RULE">
    <source>Libraries and programs are only in frameworks and extensions, which have the layout of the phone.</source>
    <translation>Libraries and programs are only in frameworks and extensions, which have the layout of the phone.</translation>
  </message>
  <message id="RULE_LOOSE_CODE_FIX">
    <source>Embed a framework instead of the bare library.</source>
    <translation>Embed a framework instead of the bare library.</translation>
  </message>
  <message id="RULE_NESTED_FRAMEWORKS_TITLE">
    <source>Frameworks inside of a framework or extension</source>
    <translation>Frameworks inside of a framework or extension</translation>
  </message>
  <message id="RULE_NESTED_FRAMEWORKS_RULE">
    <source>Only the app itself has a folder of frameworks.</source>
    <translation>Only the app itself has a folder of frameworks.</translation>
  </message>
  <message id="RULE_NESTED_FRAMEWORKS_FIX">
    <source>Embed the frameworks in the app only.</source>
    <translation>Embed the frameworks in the app only.</translation>
  </message>
  <message id="RULE_SWIFT_SUPPORT_TITLE">
    <source>SwiftSupport is missing or does not fit</source>
    <translation>SwiftSupport is missing or does not fit</translation>
  </message>
  <message id="RULE_SWIFT_SUPPORT_RULE">
    <source>An archive for the store that brings libraries of Swift holds them in SwiftSupport, too, built for the app's minimum system.</source>
    <translation>An archive for the store that brings libraries of Swift holds them in SwiftSupport, too, built for the app's minimum system.</translation>
  </message>
  <message id="RULE_SWIFT_SUPPORT_FIX">
    <source>Export the archive with Xcode instead of packing it by hand.</source>
    <translation>Export the archive with Xcode instead of packing it by hand.</translation>
  </message>
  <message id="RULE_SIGNED_TITLE">
    <source>Code is not signed</source>
    <translation>Code is not signed</translation>
  </message>
  <message id="RULE_SIGNED_RULE">
    <source>All code is signed, and with a certificate.</source>
    <translation>All code is signed, and with a certificate.</translation>
  </message>
  <message id="RULE_SIGNED_FIX">
    <source>Sign every nested bundle with a certificate, then the app.</source>
    <translation>Sign every nested bundle with a certificate, then the app.</translation>
  </message>
  <message id="RULE_SIGNATURE_TITLE">
    <source>A signature is not valid</source>
    <translation>A signature is not valid</translation>
  </message>
  <message id="RULE_SIGNATURE_RULE">
    <source>Code, requirements and entitlements are unchanged since they were signed with the certificate's key, within its time.</source>
    <translation>Code, requirements and entitlements are unchanged since they were signed with the certificate's key, within its time.</translation>
  </message>
  <message id="RULE_SIGNATURE_FIX">
    <source>Sign the app again after the last change.</source>
    <translation>Sign the app again after the last change.</translation>
  </message>
  <message id="RULE_SEAL_TITLE">
    <source>The seal is broken</source>
    <translation>The seal is broken</translation>
  </message>
  <message id="RULE_SEAL_RULE">
    <source>Every file of a signed bundle is listed in its seal, unchanged and present.</source>
    <translation>Every file of a signed bundle is listed in its seal, unchanged and present.</translation>
  </message>
  <message id="RULE_SEAL_FIX">
    <source>Sign the app again after the last change.</source>
    <translation>Sign the app again after the last change.</translation>
  </message>
  <message id="RULE_CERTIFICATE_KIND_TITLE">
    <source>Signed with a certificate for development</source>
    <translation>Signed with a certificate for development</translation>
  </message>
  <message id="RULE_CERTIFICATE_KIND_RULE">
    <source>An app for the store is signed with a distribution certificate.</source>
    <translation>An app for the store is signed with a distribution certificate.</translation>
  </message>
  <message id="RULE_CERTIFICATE_KIND_FIX">
    <source>Export the archive for the App Store.</source>
    <translation>Export the archive for the App Store.</translation>
  </message>
  <message id="RULE_CERTIFICATE_VALIDITY_TITLE">
    <source>The certificate has expired</source>
    <translation>The certificate has expired</translation>
  </message>
  <message id="RULE_CERTIFICATE_VALIDITY_RULE">
    <source>The certificate that the app is signed with has not expired.</source>
    <translation>The certificate that the app is signed with has not expired.</translation>
  </message>
  <message id="RULE_CERTIFICATE_VALIDITY_FIX">
    <source>Renew the certificate and sign the app again.</source>
    <translation>Renew the certificate and sign the app again.</translation>
  </message>
  <message id="RULE_CERTIFICATE_PROFILE_TITLE">
    <source>The profile is for another certificate</source>
    <translation>The profile is for another certificate</translation>
  </message>
  <message id="RULE_CERTIFICATE_PROFILE_RULE">
    <source>The certificate that signs a bundle is in its profile.</source>
    <translation>The certificate that signs a bundle is in its profile.</translation>
  </message>
  <message id="RULE_CERTIFICATE_PROFILE_FIX">
    <source>Download the profile again, or sign with a certificate that is in it.</source>
    <translation>Download the profile again, or sign with a certificate that is in it.</translation>
  </message>
  <message id="RULE_PROFILE_TITLE">
    <source>No provisioning profile</source>
    <translation>No provisioning profile</translation>
  </message>
  <message id="RULE_PROFILE_RULE">
    <source>The app and each extension brings a provisioning profile.</source>
    <translation>The app and each extension brings a provisioning profile.</translation>
  </message>
  <message id="RULE_PROFILE_FIX">
    <source>Export the archive for the App Store.</source>
    <translation>Export the archive for the App Store.</translation>
  </message>
  <message id="RULE_PROFILE_KIND_TITLE">
    <source>The profile is not for the store</source>
    <translation>The profile is not for the store</translation>
  </message>
  <message id="RULE_PROFILE_KIND_RULE">
    <source>The profile of an app for the store names no devices and is not for one company alone.</source>
    <translation>The profile of an app for the store names no devices and is not for one company alone.</translation>
  </message>
  <message id="RULE_PROFILE_KIND_FIX">
    <source>Export the archive for the App Store.</source>
    <translation>Export the archive for the App Store.</translation>
  </message>
  <message id="RULE_PROFILE_EXPIRY_TITLE">
    <source>A profile has expired</source>
    <translation>A profile has expired</translation>
  </message>
  <message id="RULE_PROFILE_EXPIRY_RULE">
    <source>No profile in the package has expired.</source>
    <translation>No profile in the package has expired.</translation>
  </message>
  <message id="RULE_PROFILE_EXPIRY_FIX">
    <source>Download the profiles again and export once more.</source>
    <translation>Download the profiles again and export once more.</translation>
  </message>
  <message id="RULE_PROFILE_IDENTIFIER_TITLE">
    <source>The profile is for another app</source>
    <translation>The profile is for another app</translation>
  </message>
  <message id="RULE_PROFILE_IDENTIFIER_RULE">
    <source>The identifier in a profile is that of its bundle, or a pattern that fits it.</source>
    <translation>The identifier in a profile is that of its bundle, or a pattern that fits it.</translation>
  </message>
  <message id="RULE_PROFILE_IDENTIFIER_FIX">
    <source>Sign with the profile for this bundle's identifier.</source>
    <translation>Sign with the profile for this bundle's identifier.</translation>
  </message>
  <message id="RULE_TEAM_TITLE">
    <source>Signature and profile are of different teams</source>
    <translation>Signature and profile are of different teams</translation>
  </message>
  <message id="RULE_TEAM_RULE">
    <source>Signature, certificate and profile name the same team.</source>
    <translation>Signature, certificate and profile name the same team.</translation>
  </message>
  <message id="RULE_TEAM_FIX">
    <source>Sign with a certificate and a profile of the same team.</source>
    <translation>Sign with a certificate and a profile of the same team.</translation>
  </message>
  <message id="RULE_ENTITLEMENTS_TITLE">
    <source>An entitlement is not granted</source>
    <translation>An entitlement is not granted</translation>
  </message>
  <message id="RULE_ENTITLEMENTS_RULE">
    <source>The profile grants every entitlement that the signature claims.</source>
    <translation>The profile grants every entitlement that the signature claims.</translation>
  </message>
  <message id="RULE_ENTITLEMENTS_FIX">
    <source>Add the capability to the app's identifier and download the profile again, or remove the entitlement.</source>
    <translation>Add the capability to the app's identifier and download the profile again, or remove the entitlement.</translation>
  </message>
  <message id="RULE_DEBUGGABLE_TITLE">
    <source>The app lets a debugger in</source>
    <translation>The app lets a debugger in</translation>
  </message>
  <message id="RULE_DEBUGGABLE_RULE">
    <source>No code of an app for the store has the entitlement get-task-allow.</source>
    <translation>No code of an app for the store has the entitlement get-task-allow.</translation>
  </message>
  <message id="RULE_DEBUGGABLE_FIX">
    <source>Export the archive for the App Store.</source>
    <translation>Export the archive for the App Store.</translation>
  </message>
  <message id="RULE_PUSH_TITLE">
    <source>The app registers for push without the entitlement</source>
    <translation>The app registers for push without the entitlement</translation>
  </message>
  <message id="RULE_PUSH_RULE">
    <source>An app that registers for remote notifications has the entitlement aps-environment.</source>
    <translation>An app that registers for remote notifications has the entitlement aps-environment.</translation>
  </message>
  <message id="RULE_PUSH_FIX">
    <source>Add the capability for push notifications, or remove the call.</source>
    <translation>Add the capability for push notifications, or remove the call.</translation>
  </message>
  <message id="RULE_PURPOSE_TITLE">
    <source>A purpose string is missing</source>
    <translation>A purpose string is missing</translation>
  </message>
  <message id="RULE_PURPOSE_RULE">
    <source>An app whose code refers to the camera, photos, the location or contacts says in its Info.plist what it needs them for.</source>
    <translation>An app whose code refers to the camera, photos, the location or contacts says in its Info.plist what it needs them for.</translation>
  </message>
  <message id="RULE_PURPOSE_FIX">
    <source>Add the key to the Info.plist with a sentence that people understand.</source>
    <translation>Add the key to the Info.plist with a sentence that people understand.</translation>
  </message>
  <message id="RULE_PURPOSE_LIKELY_TITLE">
    <source>A purpose string is likely missing</source>
    <translation>A purpose string is likely missing</translation>
  </message>
  <message id="RULE_PURPOSE_LIKELY_RULE">
    <source>An app whose code refers to other protected data likely has to say in its Info.plist what it needs them for.</source>
    <translation>An app whose code refers to other protected data likely has to say in its Info.plist what it needs them for.</translation>
  </message>
  <message id="RULE_PURPOSE_LIKELY_FIX">
    <source>Add the key to the Info.plist with a sentence that people understand, or remove the use of the class.</source>
    <translation>Add the key to the Info.plist with a sentence that people understand, or remove the use of the class.</translation>
  </message>
  <message id="RULE_ICON_PAD_PRO_TITLE">
    <source>There is likely no icon for the iPad Pro</source>
    <translation>There is likely no icon for the iPad Pro</translation>
  </message>
  <message id="RULE_ICON_PAD_PRO_RULE">
    <source>An iPad app built with the SDK of iOS 9 or newer has an icon of 167 by 167 pixels, in the catalog or as a file.</source>
    <translation>An iPad app built with the SDK of iOS 9 or newer has an icon of 167 by 167 pixels, in the catalog or as a file.</translation>
  </message>
  <message id="RULE_ICON_PAD_PRO_FIX">
    <source>Give the app icon set a picture of 1024 pixels, or add the size of 167.</source>
    <translation>Give the app icon set a picture of 1024 pixels, or add the size of 167.</translation>
  </message>
  <message id="RULE_PURPOSE_VAGUE_TITLE">
    <source>A purpose string hardly says why</source>
    <translation>A purpose string hardly says why</translation>
  </message>
  <message id="RULE_PURPOSE_VAGUE_RULE">
    <source>A purpose string says in a sentence what the app does with the data, and reviewers refuse one that does not.</source>
    <translation>A purpose string says in a sentence what the app does with the data, and reviewers refuse one that does not.</translation>
  </message>
  <message id="RULE_PURPOSE_VAGUE_FIX">
    <source>Write a sentence that names the use, as in "Takes the picture for your profile."</source>
    <translation>Write a sentence that names the use, as in "Takes the picture for your profile."</translation>
  </message>
  <message id="RULE_SIGNATURE_DIGEST_TITLE">
    <source>Signed with SHA-1 alone</source>
    <translation>Signed with SHA-1 alone</translation>
  </message>
  <message id="RULE_SIGNATURE_DIGEST_RULE">
    <source>A signature of today holds hashes of SHA-256, which alone are safe from forgery.</source>
    <translation>A signature of today holds hashes of SHA-256, which alone are safe from forgery.</translation>
  </message>
  <message id="RULE_SIGNATURE_DIGEST_FIX">
    <source>Sign the app again with current tools.</source>
    <translation>Sign the app again with current tools.</translation>
  </message>
  <message id="FOUND_SHA1_ONLY">
    <source>has no hashes but those of SHA-1</source>
    <translation>has no hashes but those of SHA-1</translation>
  </message>
  <message id="FOUND_VAGUE_KEY">
    <source>[A] says only "[B]"</source>
    <translation>[A] says only "[B]"</translation>
  </message>
  <message id="FOUND_BEFORE_IOS_9">
    <source>built before iOS 9</source>
    <translation>built before iOS 9</translation>
  </message>
  <message id="FOUND_NO_PAD_ICON">
    <source>there is no icon for the iPad either</source>
    <translation>there is no icon for the iPad either</translation>
  </message>
  <message id="RULE_PURPOSE_EMPTY_TITLE">
    <source>A purpose string is empty</source>
    <translation>A purpose string is empty</translation>
  </message>
  <message id="RULE_PURPOSE_EMPTY_RULE">
    <source>No purpose string is empty, in no language.</source>
    <translation>No purpose string is empty, in no language.</translation>
  </message>
  <message id="RULE_PURPOSE_EMPTY_FIX">
    <source>Say in a sentence what the app needs the data for.</source>
    <translation>Say in a sentence what the app needs the data for.</translation>
  </message>
  <message id="RULE_REQUIRED_REASON_TITLE">
    <source>A use of protected functions is not declared</source>
    <translation>A use of protected functions is not declared</translation>
  </message>
  <message id="RULE_REQUIRED_REASON_RULE">
    <source>An app that reads file times, the boot time, disk space, keyboards or user defaults declares a reason for it.</source>
    <translation>An app that reads file times, the boot time, disk space, keyboards or user defaults declares a reason for it.</translation>
  </message>
  <message id="RULE_REQUIRED_REASON_FIX">
    <source>Add the category with a reason to PrivacyInfo.xcprivacy.</source>
    <translation>Add the category with a reason to PrivacyInfo.xcprivacy.</translation>
  </message>
  <message id="RULE_PRIVACY_FORM_TITLE">
    <source>The privacy manifest is malformed</source>
    <translation>The privacy manifest is malformed</translation>
  </message>
  <message id="RULE_PRIVACY_FORM_RULE">
    <source>A privacy manifest holds only keys, categories and reasons that are known.</source>
    <translation>A privacy manifest holds only keys, categories and reasons that are known.</translation>
  </message>
  <message id="RULE_PRIVACY_FORM_FIX">
    <source>Correct PrivacyInfo.xcprivacy; Xcode's editor offers the known values.</source>
    <translation>Correct PrivacyInfo.xcprivacy; Xcode's editor offers the known values.</translation>
  </message>
  <message id="RULE_LISTED_KIT_TITLE">
    <source>A listed kit has no privacy manifest</source>
    <translation>A listed kit has no privacy manifest</translation>
  </message>
  <message id="RULE_LISTED_KIT_RULE">
    <source>A software kit on the platform's list brings a privacy manifest of its own.</source>
    <translation>A software kit on the platform's list brings a privacy manifest of its own.</translation>
  </message>
  <message id="RULE_LISTED_KIT_FIX">
    <source>Use a newer version of the kit.</source>
    <translation>Use a newer version of the kit.</translation>
  </message>
  <message id="RULE_EXPORT_COMPLIANCE_TITLE">
    <source>The store asks about encryption at every build</source>
    <translation>The store asks about encryption at every build</translation>
  </message>
  <message id="RULE_EXPORT_COMPLIANCE_RULE">
    <source>The key ITSAppUsesNonExemptEncryption answers the question about export once for all.</source>
    <translation>The key ITSAppUsesNonExemptEncryption answers the question about export once for all.</translation>
  </message>
  <message id="RULE_EXPORT_COMPLIANCE_FIX">
    <source>Add ITSAppUsesNonExemptEncryption to the Info.plist, true or false.</source>
    <translation>Add ITSAppUsesNonExemptEncryption to the Info.plist, true or false.</translation>
  </message>
  <message id="RULE_BACKGROUND_PROCESSING_TITLE">
    <source>Background processing without task identifiers</source>
    <translation>Background processing without task identifiers</translation>
  </message>
  <message id="RULE_BACKGROUND_PROCESSING_RULE">
    <source>An app with the background mode "processing" lists its tasks in BGTaskSchedulerPermittedIdentifiers.</source>
    <translation>An app with the background mode "processing" lists its tasks in BGTaskSchedulerPermittedIdentifiers.</translation>
  </message>
  <message id="RULE_BACKGROUND_PROCESSING_FIX">
    <source>List the identifiers of the tasks there, or drop the mode.</source>
    <translation>List the identifiers of the tasks there, or drop the mode.</translation>
  </message>
  <message id="RULE_ARBITRARY_LOADS_TITLE">
    <source>Connections without protection are allowed</source>
    <translation>Connections without protection are allowed</translation>
  </message>
  <message id="RULE_ARBITRARY_LOADS_RULE">
    <source>An app that sets NSAllowsArbitraryLoads has to justify it in review.</source>
    <translation>An app that sets NSAllowsArbitraryLoads has to justify it in review.</translation>
  </message>
  <message id="RULE_ARBITRARY_LOADS_FIX">
    <source>Name the hosts that need it in NSExceptionDomains instead.</source>
    <translation>Name the hosts that need it in NSExceptionDomains instead.</translation>
  </message>
  <message id="RULE_LOCALIZATION_HOLES_TITLE">
    <source>A language lacks texts</source>
    <translation>A language lacks texts</translation>
  </message>
  <message id="RULE_LOCALIZATION_HOLES_RULE">
    <source>Each language of the app has the same tables of texts.</source>
    <translation>Each language of the app has the same tables of texts.</translation>
  </message>
  <message id="RULE_LOCALIZATION_HOLES_FIX">
    <source>Add the missing tables, or drop the language.</source>
    <translation>Add the missing tables, or drop the language.</translation>
  </message>
  <message id="RULE_FACEBOOK_TITLE">
    <source>The Facebook app ID has no URL scheme</source>
    <translation>The Facebook app ID has no URL scheme</translation>
  </message>
  <message id="RULE_FACEBOOK_RULE">
    <source>An app that names a FacebookAppID has a URL scheme of "fb" and that number.</source>
    <translation>An app that names a FacebookAppID has a URL scheme of "fb" and that number.</translation>
  </message>
  <message id="RULE_FACEBOOK_FIX">
    <source>Add the scheme to CFBundleURLSchemes, as in fb1234567890.</source>
    <translation>Add the scheme to CFBundleURLSchemes, as in fb1234567890.</translation>
  </message>
  <message id="RULE_CELLULAR_SIZE_TITLE">
    <source>The package is large for a cellular download</source>
    <translation>The package is large for a cellular download</translation>
  </message>
  <message id="RULE_CELLULAR_SIZE_RULE">
    <source>Phones ask before they load more than 200 MB over the cellular network.</source>
    <translation>Phones ask before they load more than 200 MB over the cellular network.</translation>
  </message>
  <message id="RULE_CELLULAR_SIZE_FIX">
    <source>Remove files that the app does not need, or load them later.</source>
    <translation>Remove files that the app does not need, or load them later.</translation>
  </message>
  <message id="RULE_UNREAD_TITLE">
    <source>A file is too large to be judged</source>
    <translation>A file is too large to be judged</translation>
  </message>
  <message id="RULE_UNREAD_RULE">
    <source>Property lists and profiles of more than 4 MiB, or of more than 16 MiB together, are not read; what depends on them is not judged.</source>
    <translation>Property lists and profiles of more than 4 MiB, or of more than 16 MiB together, are not read; what depends on them is not judged.</translation>
  </message>
  <message id="RULE_UNREAD_FIX">
    <source>Find out what fills the file; usual ones have a few kilobytes.</source>
    <translation>Find out what fills the file; usual ones have a few kilobytes.</translation>
  </message>
  <message id="RULE_CLASSIC_ICONS_TITLE">
    <source>An icon of iOS 7 is missing</source>
    <translation>An icon of iOS 7 is missing</translation>
  </message>
  <message id="RULE_CLASSIC_ICONS_RULE">
    <source>An app for iOS 7 and before has its icons as files in every size.</source>
    <translation>An app for iOS 7 and before has its icons as files in every size.</translation>
  </message>
  <message id="RULE_CLASSIC_ICONS_FIX">
    <source>Add the missing sizes as files.</source>
    <translation>Add the missing sizes as files.</translation>
  </message>
  <message id="RULE_CLASSIC_LAUNCH_IMAGES_TITLE">
    <source>A launch image of iOS 7 is missing</source>
    <translation>A launch image of iOS 7 is missing</translation>
  </message>
  <message id="RULE_CLASSIC_LAUNCH_IMAGES_RULE">
    <source>An app for iOS 7 and before has a launch image for every screen.</source>
    <translation>An app for iOS 7 and before has a launch image for every screen.</translation>
  </message>
  <message id="RULE_CLASSIC_LAUNCH_IMAGES_FIX">
    <source>Add a picture of one of the sizes.</source>
    <translation>Add a picture of one of the sizes.</translation>
  </message>
  <message id="RULE_CLASSIC_IDENTIFIER_TITLE">
    <source>The identifier is not that of the profile</source>
    <translation>The identifier is not that of the profile</translation>
  </message>
  <message id="RULE_CLASSIC_IDENTIFIER_RULE">
    <source>The bundle identifier is the one that the profile is for.</source>
    <translation>The bundle identifier is the one that the profile is for.</translation>
  </message>
  <message id="RULE_CLASSIC_IDENTIFIER_FIX">
    <source>Change the identifier, or sign with the profile that is for it.</source>
    <translation>Change the identifier, or sign with the profile that is for it.</translation>
  </message>
  <message id="RULE_CLASSIC_LOCALIZATIONS_TITLE">
    <source>There is no localization</source>
    <translation>There is no localization</translation>
  </message>
  <message id="RULE_CLASSIC_LOCALIZATIONS_RULE">
    <source>The app has a folder for one language at least.</source>
    <translation>The app has a folder for one language at least.</translation>
  </message>
  <message id="RULE_CLASSIC_LOCALIZATIONS_FIX">
    <source>Add a language to the project.</source>
    <translation>Add a language to the project.</translation>
  </message>
  <message id="UNJUDGED_VERSIONS">
    <source>The version and the build number have to be higher than those of the last upload. Only the store knows that upload; "lumora diff OLD NEW" compares two packages.</source>
    <translation>The version and the build number have to be higher than those of the last upload. Only the store knows that upload; "lumora diff OLD NEW" compares two packages.</translation>
  </message>
  <message id="UNJUDGED_PRIVATE_NAMES">
    <source>The store's list of private names is not public. The rule private-names knows private frameworks and a few functions; the store may find more.</source>
    <translation>The store's list of private names is not public. The rule private-names knows private frameworks and a few functions; the store may find more.</translation>
  </message>
  <message id="UNJUDGED_REVOCATION">
    <source>Only the issuer's server knows whether a certificate was revoked or a profile withdrawn, and no server is asked.</source>
    <translation>Only the issuer's server knows whether a certificate was revoked or a profile withdrawn, and no server is asked.</translation>
  </message>
  <message id="UNJUDGED_ENTITLEMENTS">
    <source>The rule entitlements compares with what the profile grants; whether the store accepts the value of an entitlement is its own decision.</source>
    <translation>The rule entitlements compares with what the profile grants; whether the store accepts the value of an entitlement is its own decision.</translation>
  </message>
  <message id="UNJUDGED_DATA_KINDS">
    <source>The list of kinds of collected data and of their purposes grows. The rule privacy-form checks that each kind has purposes, not that they are on the list.</source>
    <translation>The list of kinds of collected data and of their purposes grows. The rule privacy-form checks that each kind has purposes, not that they are on the list.</translation>
  </message>
  <message id="RULE_SOURCE_STORE">
    <source>messages of the store's upload check</source>
    <translation>messages of the store's upload check</translation>
  </message>
  <message id="RULE_SOURCE_ONE_REPORT">
    <source>one report only</source>
    <translation>one report only</translation>
  </message>
  <message id="RULE_SOURCE_SIGNING">
    <source>TN3125 and the format of code signatures</source>
    <translation>TN3125 and the format of code signatures</translation>
  </message>
  <message id="RULE_SOURCE_PRIVACY">
    <source>developer.apple.com, privacy manifest files</source>
    <translation>developer.apple.com, privacy manifest files</translation>
  </message>
  <message id="RULE_SOURCE_OTHER_TOOLS">
    <source>lists of other tools</source>
    <translation>lists of other tools</translation>
  </message>
  <message id="RULE_SOURCE_REVIEWS">
    <source>reviews</source>
    <translation>reviews</translation>
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
    <translation>comparison of the languages</translation>
  </message>
  <message id="RULE_SOURCE_KIT">
    <source>the kit's own instructions</source>
    <translation>the kit's own instructions</translation>
  </message>
  <message id="RULE_SOURCE_SETTINGS">
    <source>settings of the App Store</source>
    <translation>settings of the App Store</translation>
  </message>
  <message id="RULE_SOURCE_OWN">
    <source>the limits of this check</source>
    <translation>the limits of this check</translation>
  </message>
  <message id="RULE_SOURCE_CLASSIC">
    <source>the rules of iOS 7</source>
    <translation>the rules of iOS 7</translation>
  </message>
  <message id="FOUND_NO_SDK">
    <source>neither the binary nor the Info.plist names an SDK</source>
    <translation>neither the binary nor the Info.plist names an SDK</translation>
  </message>
  <message id="FOUND_OLD_SDK">
    <source>built with the SDK of [A], [B] is asked for since [C]</source>
    <translation>built with the SDK of [A], [B] is asked for since [C]</translation>
  </message>
  <message id="FOUND_NO_PHONE_OR_PAD">
    <source>no app for iPhone or iPad</source>
    <translation>no app for iPhone or iPad</translation>
  </message>
  <message id="FOUND_UNKNOWN_DAY">
    <source>nothing is known of what was asked for on that day</source>
    <translation>nothing is known of what was asked for on that day</translation>
  </message>
  <message id="FOUND_NOT_ASKED">
    <source>not asked for on that day</source>
    <translation>not asked for on that day</translation>
  </message>
  <message id="FOUND_NO_EXECUTABLE_KEY">
    <source>no CFBundleExecutable</source>
    <translation>no CFBundleExecutable</translation>
  </message>
  <message id="FOUND_NO_MACHO">
    <source>no Mach-O file</source>
    <translation>no Mach-O file</translation>
  </message>
  <message id="FOUND_NOT_THERE">
    <source>is not there</source>
    <translation>is not there</translation>
  </message>
  <message id="FOUND_LOAD_COMMANDS">
    <source>load commands that are damaged or lead out of the file</source>
    <translation>load commands that are damaged or lead out of the file</translation>
  </message>
  <message id="FOUND_MAC_APP">
    <source>an app for the Mac</source>
    <translation>an app for the Mac</translation>
  </message>
  <message id="FOUND_SIMULATOR_SLICE">
    <source>a slice for the simulator: [A]</source>
    <translation>a slice for the simulator: [A]</translation>
  </message>
  <message id="FOUND_NOT_ALIGNED">
    <source>[A] of [B] does not begin at a page</source>
    <translation>[A] of [B] does not begin at a page</translation>
  </message>
  <message id="FOUND_BEFORE_XCODE_16">
    <source>built with Xcode before 16</source>
    <translation>built with Xcode before 16</translation>
  </message>
  <message id="FOUND_NO_XCODE">
    <source>the Info.plist does not name the Xcode</source>
    <translation>the Info.plist does not name the Xcode</translation>
  </message>
  <message id="FOUND_BITCODE">
    <source>a segment __LLVM for [A]</source>
    <translation>a segment __LLVM for [A]</translation>
  </message>
  <message id="FOUND_NO_BINARY">
    <source>the app's binary cannot be read</source>
    <translation>the app's binary cannot be read</translation>
  </message>
  <message id="FOUND_NO_ENCRYPTION_INFO">
    <source>[A] has no LC_ENCRYPTION_INFO</source>
    <translation>[A] has no LC_ENCRYPTION_INFO</translation>
  </message>
  <message id="FOUND_ENCIPHERED">
    <source>[A] is enciphered already</source>
    <translation>[A] is enciphered already</translation>
  </message>
  <message id="FOUND_WEB_VIEW">
    <source>imports the class UIWebView</source>
    <translation>imports the class UIWebView</translation>
  </message>
  <message id="FOUND_NO_MINIMUM">
    <source>no MinimumOSVersion</source>
    <translation>no MinimumOSVersion</translation>
  </message>
  <message id="FOUND_MINIMUM_IS">
    <source>MinimumOSVersion is [A]</source>
    <translation>MinimumOSVersion is [A]</translation>
  </message>
  <message id="FOUND_NO_FRAMEWORK">
    <source>there is no framework</source>
    <translation>there is no framework</translation>
  </message>
  <message id="FOUND_BUILT_OTHERWISE">
    <source>is built for [A], its Info.plist says [B]</source>
    <translation>is built for [A], its Info.plist says [B]</translation>
  </message>
  <message id="FOUND_BUILT_FOR_NEWER">
    <source>is built for [A], the app for [B]</source>
    <translation>is built for [A], the app for [B]</translation>
  </message>
  <message id="FOUND_STATIC_LIBRARY">
    <source>a static library</source>
    <translation>a static library</translation>
  </message>
  <message id="FOUND_FILE_TYPE">
    <source>its type is "[A]"</source>
    <translation>its type is "[A]"</translation>
  </message>
  <message id="FOUND_NO_SWIFT_ENTRY">
    <source>[A] has no section __swift5_entry</source>
    <translation>[A] has no section __swift5_entry</translation>
  </message>
  <message id="FOUND_NO_SUCH_EXTENSION">
    <source>there is no extension of that kind</source>
    <translation>there is no extension of that kind</translation>
  </message>
  <message id="FOUND_LOOSE_CODE">
    <source>code outside of a bundle of its own</source>
    <translation>code outside of a bundle of its own</translation>
  </message>
  <message id="FOUND_MAC_LAYOUT">
    <source>a framework laid out as on the Mac</source>
    <translation>a framework laid out as on the Mac</translation>
  </message>
  <message id="FOUND_NESTED_FRAMEWORKS">
    <source>a folder of frameworks inside of nested code</source>
    <translation>a folder of frameworks inside of nested code</translation>
  </message>
  <message id="FOUND_NO_STORE_ARCHIVE">
    <source>no archive for the store</source>
    <translation>no archive for the store</translation>
  </message>
  <message id="FOUND_NO_SWIFT_SUPPORT">
    <source>SwiftSupport/iphoneos/[A] is not there</source>
    <translation>SwiftSupport/iphoneos/[A] is not there</translation>
  </message>
  <message id="FOUND_NO_SWIFT_LIBRARIES">
    <source>it brings no libraries of Swift</source>
    <translation>it brings no libraries of Swift</translation>
  </message>
  <message id="FOUND_INFO_UNREADABLE">
    <source>the Info.plist cannot be read</source>
    <translation>the Info.plist cannot be read</translation>
  </message>
  <message id="FOUND_ICON_NAMES">
    <source>the icon files' names do not tell their sizes</source>
    <translation>the icon files' names do not tell their sizes</translation>
  </message>
  <message id="FOUND_NO_ICON">
    <source>no [A] icon of [B] by [B] pixels, neither in the catalog nor as a file</source>
    <translation>no [A] icon of [B] by [B] pixels, neither in the catalog nor as a file</translation>
  </message>
  <message id="FOUND_NO_PHONE">
    <source>no app for the iPhone</source>
    <translation>no app for the iPhone</translation>
  </message>
  <message id="FOUND_BEFORE_IOS_7">
    <source>it also runs before iOS 7</source>
    <translation>it also runs before iOS 7</translation>
  </message>
  <message id="FOUND_NO_PAD">
    <source>no app for the iPad</source>
    <translation>no app for the iPad</translation>
  </message>
  <message id="FOUND_BEFORE_IOS_11">
    <source>built with an SDK before iOS 11</source>
    <translation>built with an SDK before iOS 11</translation>
  </message>
  <message id="FOUND_NO_CATALOG">
    <source>there is no asset catalog, and so no large icon in one</source>
    <translation>there is no asset catalog, and so no large icon in one</translation>
  </message>
  <message id="FOUND_NO_LARGE_ICON">
    <source>no icon of 1024 by 1024 pixels</source>
    <translation>no icon of 1024 by 1024 pixels</translation>
  </message>
  <message id="FOUND_NO_ICON_NAME">
    <source>no CFBundleIconName, neither in CFBundleIcons nor by itself</source>
    <translation>no CFBundleIconName, neither in CFBundleIcons nor by itself</translation>
  </message>
  <message id="FOUND_UNKNOWN_ICON_NAME">
    <source>CFBundleIconName is "[A]", which the catalog does not hold</source>
    <translation>CFBundleIconName is "[A]", which the catalog does not hold</translation>
  </message>
  <message id="FOUND_TRANSLUCENT">
    <source>"[A]" for [B] has transparent pixels or an alpha channel</source>
    <translation>"[A]" for [B] has transparent pixels or an alpha channel</translation>
  </message>
  <message id="FOUND_NO_LARGE_IN_CATALOG">
    <source>there is no large icon in a catalog</source>
    <translation>there is no large icon in a catalog</translation>
  </message>
  <message id="FOUND_WHOLE_SCREEN">
    <source>it asks for the whole screen, or is for no iPad with multitasking</source>
    <translation>it asks for the whole screen, or is for no iPad with multitasking</translation>
  </message>
  <message id="FOUND_LIST_LACKS">
    <source>[A] lacks [B]</source>
    <translation>[A] lacks [B]</translation>
  </message>
  <message id="FOUND_NO_LAUNCH_SCREEN">
    <source>neither UILaunchStoryboardName nor UILaunchScreen</source>
    <translation>neither UILaunchStoryboardName nor UILaunchScreen</translation>
  </message>
  <message id="FOUND_NONE_READABLE">
    <source>there is none that can be read</source>
    <translation>there is none that can be read</translation>
  </message>
  <message id="FOUND_PACKAGE_TYPE">
    <source>CFBundlePackageType is "[A]"</source>
    <translation>CFBundlePackageType is "[A]"</translation>
  </message>
  <message id="FOUND_NOT_ANNOUNCED">
    <source>not announced on that day</source>
    <translation>not announced on that day</translation>
  </message>
  <message id="FOUND_INFO_NO_MINIMUM">
    <source>the Info.plist names no MinimumOSVersion</source>
    <translation>the Info.plist names no MinimumOSVersion</translation>
  </message>
  <message id="FOUND_NO_VERSION">
    <source>no CFBundleShortVersionString</source>
    <translation>no CFBundleShortVersionString</translation>
  </message>
  <message id="FOUND_VERSION_IS">
    <source>CFBundleShortVersionString is "[A]"</source>
    <translation>CFBundleShortVersionString is "[A]"</translation>
  </message>
  <message id="FOUND_NO_BUILD">
    <source>no CFBundleVersion</source>
    <translation>no CFBundleVersion</translation>
  </message>
  <message id="FOUND_BUILD_IS">
    <source>CFBundleVersion is "[A]"</source>
    <translation>CFBundleVersion is "[A]"</translation>
  </message>
  <message id="FOUND_OTHER_VERSION">
    <source>[A] is "[B]", the app's is "[C]"</source>
    <translation>[A] is "[B]", the app's is "[C]"</translation>
  </message>
  <message id="FOUND_NO_EXTENSION">
    <source>there is no extension</source>
    <translation>there is no extension</translation>
  </message>
  <message id="FOUND_IDENTIFIER_TWICE">
    <source>"[A]" is the identifier of [B], too</source>
    <translation>"[A]" is the identifier of [B], too</translation>
  </message>
  <message id="FOUND_NO_IDENTIFIER">
    <source>the app has no identifier</source>
    <translation>the app has no identifier</translation>
  </message>
  <message id="FOUND_IDENTIFIER_OUTSIDE">
    <source>CFBundleIdentifier is "[A]", not "[B].…"</source>
    <translation>CFBundleIdentifier is "[A]", not "[B].…"</translation>
  </message>
  <message id="FOUND_NO_NESTED_APP">
    <source>there is neither an extension nor a watch app</source>
    <translation>there is neither an extension nor a watch app</translation>
  </message>
  <message id="FOUND_OLDER_DEVICES">
    <source>it has code for older devices, or runs only on systems without them</source>
    <translation>it has code for older devices, or runs only on systems without them</translation>
  </message>
  <message id="FOUND_NO_ARM64">
    <source>only 64-bit code, but no arm64 in UIRequiredDeviceCapabilities</source>
    <translation>only 64-bit code, but no arm64 in UIRequiredDeviceCapabilities</translation>
  </message>
  <message id="FOUND_NO_EXPORT_KEY">
    <source>no ITSAppUsesNonExemptEncryption</source>
    <translation>no ITSAppUsesNonExemptEncryption</translation>
  </message>
  <message id="FOUND_NO_PROCESSING">
    <source>it does no processing in the background</source>
    <translation>it does no processing in the background</translation>
  </message>
  <message id="FOUND_NO_TASKS">
    <source>UIBackgroundModes holds "processing", but no task identifiers are listed</source>
    <translation>UIBackgroundModes holds "processing", but no task identifiers are listed</translation>
  </message>
  <message id="FOUND_ARBITRARY_LOADS">
    <source>NSAllowsArbitraryLoads is true</source>
    <translation>NSAllowsArbitraryLoads is true</translation>
  </message>
  <message id="FOUND_NO_FACEBOOK">
    <source>it names no Facebook app</source>
    <translation>it names no Facebook app</translation>
  </message>
  <message id="FOUND_NO_FACEBOOK_SCHEME">
    <source>FacebookAppID is [A], but no URL scheme is fb[A]</source>
    <translation>FacebookAppID is [A], but no URL scheme is fb[A]</translation>
  </message>
  <message id="FOUND_ONE_LANGUAGE">
    <source>there are not two languages to compare</source>
    <translation>there are not two languages to compare</translation>
  </message>
  <message id="FOUND_LACKS">
    <source>lacks [A]</source>
    <translation>lacks [A]</translation>
  </message>
  <message id="FOUND_NOT_PACKED">
    <source>the package is not packed</source>
    <translation>the package is not packed</translation>
  </message>
  <message id="FOUND_PACKED_SIZE">
    <source>[A] MB packed</source>
    <translation>[A] MB packed</translation>
  </message>
  <message id="FOUND_NO_PURPOSE">
    <source>no [A], and [B] imports the class [C]</source>
    <translation>no [A], and [B] imports the class [C]</translation>
  </message>
  <message id="FOUND_EMPTY_KEY">
    <source>[A] is empty</source>
    <translation>[A] is empty</translation>
  </message>
  <message id="FOUND_NO_PHONE_PAD_OR_TV">
    <source>no app for iPhone, iPad or TV</source>
    <translation>no app for iPhone, iPad or TV</translation>
  </message>
  <message id="FOUND_NO_REASON">
    <source>uses [A], and no manifest gives a reason for [B]</source>
    <translation>uses [A], and no manifest gives a reason for [B]</translation>
  </message>
  <message id="FOUND_UNREADABLE">
    <source>cannot be read</source>
    <translation>cannot be read</translation>
  </message>
  <message id="FOUND_SEAL_TOO_LARGE">
    <source>is larger than any seal that can be compared</source>
    <translation>is larger than any seal that can be compared</translation>
  </message>
  <message id="FOUND_TOO_LARGE">
    <source>is too large to be read</source>
    <translation>is too large to be read</translation>
  </message>
  <message id="FOUND_MORE_DIFFER">
    <source>[A] more files differ</source>
    <translation>[A] more files differ</translation>
  </message>
  <message id="FOUND_MORE_MISSING">
    <source>more files are missing; the comparison ends here</source>
    <translation>more files are missing; the comparison ends here</translation>
  </message>
  <message id="FOUND_CATALOG_CUT_OFF">
    <source>the asset catalog is damaged, or too large to be read completely</source>
    <translation>the asset catalog is damaged, or too large to be read completely</translation>
  </message>
  <message id="FOUND_NO_MANIFEST">
    <source>there is no privacy manifest</source>
    <translation>there is no privacy manifest</translation>
  </message>
  <message id="FOUND_NO_PRIVACY_FILE">
    <source>has no PrivacyInfo.xcprivacy</source>
    <translation>has no PrivacyInfo.xcprivacy</translation>
  </message>
  <message id="FOUND_NO_LISTED_KIT">
    <source>it brings none of the kits that are listed</source>
    <translation>it brings none of the kits that are listed</translation>
  </message>
  <message id="FOUND_APP_NOT_SIGNED">
    <source>the app is not signed</source>
    <translation>the app is not signed</translation>
  </message>
  <message id="FOUND_NO_PROFILE">
    <source>there is no provisioning profile that can be read</source>
    <translation>there is no provisioning profile that can be read</translation>
  </message>
  <message id="FOUND_SIGNATURE_DAMAGED">
    <source>the signature is damaged</source>
    <translation>the signature is damaged</translation>
  </message>
  <message id="FOUND_SIGNATURE_NESTED">
    <source>a signature inside a signature</source>
    <translation>a signature inside a signature</translation>
  </message>
  <message id="FOUND_SIGNATURE_EMPTY">
    <source>the signature does not say what was signed</source>
    <translation>the signature does not say what was signed</translation>
  </message>
  <message id="FOUND_UNKNOWN_DIGEST">
    <source>hashes of an unknown kind</source>
    <translation>hashes of an unknown kind</translation>
  </message>
  <message id="FOUND_CODE_CHANGED">
    <source>the code was changed after it was signed</source>
    <translation>the code was changed after it was signed</translation>
  </message>
  <message id="FOUND_CODE_NOT_COVERED">
    <source>part of the code is not covered by the signature</source>
    <translation>part of the code is not covered by the signature</translation>
  </message>
  <message id="FOUND_REQUIREMENTS_CHANGED">
    <source>the requirements were changed after they were signed</source>
    <translation>the requirements were changed after they were signed</translation>
  </message>
  <message id="FOUND_ENTITLEMENTS_CHANGED">
    <source>the entitlements were changed after they were signed</source>
    <translation>the entitlements were changed after they were signed</translation>
  </message>
  <message id="FOUND_DER_CHANGED">
    <source>the entitlements' second form was changed after it was signed</source>
    <translation>the entitlements' second form was changed after it was signed</translation>
  </message>
  <message id="FOUND_FORMS_DIFFER">
    <source>the two forms of the entitlements say different things</source>
    <translation>the two forms of the entitlements say different things</translation>
  </message>
  <message id="FOUND_ENTITLEMENTS_UNREADABLE">
    <source>the entitlements cannot be read</source>
    <translation>the entitlements cannot be read</translation>
  </message>
  <message id="FOUND_MESSAGE_UNREADABLE">
    <source>the signature's message cannot be read</source>
    <translation>the signature's message cannot be read</translation>
  </message>
  <message id="FOUND_NO_CERTIFICATE">
    <source>the signer's certificate is not there</source>
    <translation>the signer's certificate is not there</translation>
  </message>
  <message id="FOUND_OTHER_CODE">
    <source>the signature is about other code</source>
    <translation>the signature is about other code</translation>
  </message>
  <message id="FOUND_OTHER_KEY">
    <source>not signed with the certificate's key</source>
    <translation>not signed with the certificate's key</translation>
  </message>
  <message id="FOUND_OTHER_DIRECTORIES">
    <source>the signature is about other code directories</source>
    <translation>the signature is about other code directories</translation>
  </message>
  <message id="FOUND_OUTSIDE_VALIDITY">
    <source>signed when the certificate was not valid</source>
    <translation>signed when the certificate was not valid</translation>
  </message>
  <message id="FOUND_NOT_SIGNED">
    <source>is not signed</source>
    <translation>is not signed</translation>
  </message>
  <message id="FOUND_AD_HOC">
    <source>is signed by nobody (ad hoc)</source>
    <translation>is signed by nobody (ad hoc)</translation>
  </message>
  <message id="FOUND_NOTHING_SIGNED">
    <source>nothing is signed</source>
    <translation>nothing is signed</translation>
  </message>
  <message id="FOUND_CHANGED">
    <source>was changed after signing</source>
    <translation>was changed after signing</translation>
  </message>
  <message id="FOUND_SEALED_MISSING">
    <source>was sealed, but is not there</source>
    <translation>was sealed, but is not there</translation>
  </message>
  <message id="FOUND_NOT_SEALED">
    <source>is there, but was not sealed</source>
    <translation>is there, but was not sealed</translation>
  </message>
  <message id="FOUND_SIGNED_BY">
    <source>signed by "[A]"</source>
    <translation>signed by "[A]"</translation>
  </message>
  <message id="FOUND_CERTIFICATE_ENDED">
    <source>the certificate was valid until [A]</source>
    <translation>the certificate was valid until [A]</translation>
  </message>
  <message id="FOUND_CERTIFICATE_NOT_IN_PROFILE">
    <source>does not hold the certificate of "[A]"</source>
    <translation>does not hold the certificate of "[A]"</translation>
  </message>
  <message id="FOUND_NO_SIGNED_BUNDLE">
    <source>there is no signed bundle with a profile</source>
    <translation>there is no signed bundle with a profile</translation>
  </message>
  <message id="FOUND_PROFILE_KIND">
    <source>a profile [A]</source>
    <translation>a profile [A]</translation>
  </message>
  <message id="FOUND_PROFILE_ENDED">
    <source>ended on [A]</source>
    <translation>ended on [A]</translation>
  </message>
  <message id="FOUND_PROFILE_FOR">
    <source>is for [A], the bundle is [B]</source>
    <translation>is for [A], the bundle is [B]</translation>
  </message>
  <message id="FOUND_TEAM_SIGNED">
    <source>is signed for the team [A], the profile is of [B]</source>
    <translation>is signed for the team [A], the profile is of [B]</translation>
  </message>
  <message id="FOUND_TEAM_CERTIFICATE">
    <source>the certificate is of the team [A], the profile of [B]</source>
    <translation>the certificate is of the team [A], the profile of [B]</translation>
  </message>
  <message id="FOUND_NOT_GRANTED">
    <source>claims [A], which the profile does not grant</source>
    <translation>claims [A], which the profile does not grant</translation>
  </message>
  <message id="FOUND_DEBUGGABLE">
    <source>get-task-allow is true</source>
    <translation>get-task-allow is true</translation>
  </message>
  <message id="FOUND_NO_PUSH">
    <source>sends registerForRemoteNotifications, but has no entitlement aps-environment</source>
    <translation>sends registerForRemoteNotifications, but has no entitlement aps-environment</translation>
  </message>
  <message id="FOUND_UNKNOWN_TYPE">
    <source>unknown NSPrivacyAccessedAPIType "[A]"</source>
    <translation>unknown NSPrivacyAccessedAPIType "[A]"</translation>
  </message>
  <message id="FOUND_NO_REASON_FOR">
    <source>no reason for [A]</source>
    <translation>no reason for [A]</translation>
  </message>
  <message id="FOUND_UNKNOWN_REASON">
    <source>unknown reason "[A]" for [B]</source>
    <translation>unknown reason "[A]" for [B]</translation>
  </message>
  <message id="FOUND_UNKNOWN_KEY">
    <source>unknown key "[A]"</source>
    <translation>unknown key "[A]"</translation>
  </message>
  <message id="FOUND_TRACKING_NO_BOOLEAN">
    <source>NSPrivacyTracking is no boolean</source>
    <translation>NSPrivacyTracking is no boolean</translation>
  </message>
  <message id="FOUND_TYPE_MISSING">
    <source>a collected data type without NSPrivacyCollectedDataType</source>
    <translation>a collected data type without NSPrivacyCollectedDataType</translation>
  </message>
  <message id="FOUND_NO_PURPOSES">
    <source>no purposes for [A]</source>
    <translation>no purposes for [A]</translation>
  </message>
  <message id="FOUND_TRACKING_EMPTY">
    <source>NSPrivacyTracking is true, but there are neither domains nor data types</source>
    <translation>NSPrivacyTracking is true, but there are neither domains nor data types</translation>
  </message>
  <message id="VALIDATER_NO_PACKAGE_ADVICE">
    <source>An app package is a zip archive that holds the app as a folder NAME.app in its Payload folder. Please choose another file, or export the app again.</source>
    <translation>An app package is a zip archive that holds the app as a folder NAME.app in its Payload folder. Please choose another file, or export the app again.</translation>
  </message>
  <message id="VALIDATER_FOUND_NOTHING">
    <source>There is no file of this name any more.</source>
    <translation>There is no file of this name any more.</translation>
  </message>
  <message id="VALIDATER_FOUND_FOLDER">
    <source>It is a folder, not a file.</source>
    <translation>It is a folder, not a file.</translation>
  </message>
  <message id="VALIDATER_FOUND_DEVICE">
    <source>It is no ordinary file but a pipe, a socket or a device.</source>
    <translation>It is no ordinary file but a pipe, a socket or a device.</translation>
  </message>
  <message id="VALIDATER_FOUND_UNREADABLE">
    <source>The system does not allow this file to be read.</source>
    <translation>The system does not allow this file to be read.</translation>
  </message>
  <message id="VALIDATER_FOUND_EMPTY_FILE">
    <source>The file is empty.</source>
    <translation>The file is empty.</translation>
  </message>
  <message id="VALIDATER_FOUND_TEXT">
    <source>The file is a text.</source>
    <translation>The file is a text.</translation>
  </message>
  <message id="VALIDATER_FOUND_PICTURE">
    <source>The file is a picture.</source>
    <translation>The file is a picture.</translation>
  </message>
  <message id="VALIDATER_FOUND_DOCUMENT">
    <source>The file is a PDF document.</source>
    <translation>The file is a PDF document.</translation>
  </message>
  <message id="VALIDATER_FOUND_OTHER_ARCHIVE">
    <source>The file is an archive of another kind than zip.</source>
    <translation>The file is an archive of another kind than zip.</translation>
  </message>
  <message id="VALIDATER_FOUND_BROKEN_ARCHIVE">
    <source>The file begins like a zip archive, but its list of contents is missing or damaged. The download or copy may have broken off.</source>
    <translation>The file begins like a zip archive, but its list of contents is missing or damaged. The download or copy may have broken off.</translation>
  </message>
  <message id="VALIDATER_FOUND_EMPTY_ARCHIVE">
    <source>The file is a zip archive without any content.</source>
    <translation>The file is a zip archive without any content.</translation>
  </message>
  <message id="VALIDATER_FOUND_NO_PAYLOAD">
    <source>The file is a zip archive without a Payload folder. It holds: [NAMES]</source>
    <translation>The file is a zip archive without a Payload folder. It holds: [NAMES]</translation>
  </message>
  <message id="VALIDATER_FOUND_OTHER_PAYLOAD">
    <source>The file is a zip archive whose Payload folder holds no app, but: [NAMES]</source>
    <translation>The file is a zip archive whose Payload folder holds no app, but: [NAMES]</translation>
  </message>
  <message id="VALIDATER_FOUND_EMPTY_PAYLOAD">
    <source>The file is a zip archive whose Payload folder is empty.</source>
    <translation>The file is a zip archive whose Payload folder is empty.</translation>
  </message>
  <message id="VALIDATER_FOUND_MORE">
    <source> and [COUNT] more</source>
    <translation> and [COUNT] more</translation>
  </message>
  <message id="VALIDATER_FOUND_DATA">
    <source>The file holds data that is neither an archive nor a text nor a picture.</source>
    <translation>The file holds data that is neither an archive nor a text nor a picture.</translation>
  </message>
  <message id="VALIDATER_NOTE_CUT">
    <source>The package could not be read to its end. What was read until then is shown.</source>
    <translation>The package could not be read to its end. What was read until then is shown.</translation>
  </message>
  <message id="VALIDATER_NOTE_DAMAGED">
    <source>Damaged or protected by a password: [COUNT] of its files, the first one [FILE].</source>
    <translation>Damaged or protected by a password: [COUNT] of its files, the first one [FILE].</translation>
  </message>
  <message id="VALIDATER_NOTE_NO_LIST">
    <source>The app’s Info.plist is missing or cannot be read, so nothing says which icons and launch images it needs.</source>
    <translation>The app’s Info.plist is missing or cannot be read, so nothing says which icons and launch images it needs.</translation>
  </message>
  <message id="VALIDATER_BOX_TIP">
    <source>Click to see what was found</source>
    <translation>Click to see what was found</translation>
  </message>
  <message id="VALIDATER_REASON_ICONS">
    <source>Missing, in pixels:</source>
    <translation>Missing, in pixels:</translation>
  </message>
  <message id="VALIDATER_REASON_LAUNCH">
    <source>There is none of these sizes, in pixels:</source>
    <translation>There is none of these sizes, in pixels:</translation>
  </message>
  <message id="VALIDATER_REASON_BUNDLE_ID">
    <source>The provisioning profile does not name [ID].</source>
    <translation>The provisioning profile does not name [ID].</translation>
  </message>
  <message id="VALIDATER_REASON_NO_BUNDLE_ID">
    <source>The app has no bundle identifier.</source>
    <translation>The app has no bundle identifier.</translation>
  </message>
  <message id="VALIDATER_REASON_NO_PROFILE">
    <source>The package has no readable provisioning profile.</source>
    <translation>The package has no readable provisioning profile.</translation>
  </message>
  <message id="VALIDATER_REASON_LOCALIZATIONS">
    <source>The app has no folder of a language (.lproj).</source>
    <translation>The app has no folder of a language (.lproj).</translation>
  </message>

  <!-- Menus -->
  <message id="MENU_FILE">
    <source>&amp;File</source>
    <translation>&amp;File</translation>
  </message>
  <message id="MENU_OPEN">
    <source>&amp;Open…</source>
    <translation>&amp;Open…</translation>
  </message>
  <message id="MENU_SHOW_WINDOW">
    <source>&amp;Show window</source>
    <translation>&amp;Show window</translation>
  </message>
  <message id="MENU_CLOSE_WINDOW">
    <source>&amp;Close window</source>
    <translation>&amp;Close window</translation>
  </message>
  <message id="MENU_QUIT">
    <source>&amp;Quit Lumora</source>
    <translation>&amp;Quit Lumora</translation>
  </message>
  <message id="MENU_EDIT">
    <source>&amp;Edit</source>
    <translation>&amp;Edit</translation>
  </message>
  <message id="MENU_CUT">
    <source>Cu&amp;t</source>
    <translation>Cu&amp;t</translation>
  </message>
  <message id="MENU_COPY">
    <source>&amp;Copy</source>
    <translation>&amp;Copy</translation>
  </message>
  <message id="MENU_PASTE">
    <source>&amp;Paste</source>
    <translation>&amp;Paste</translation>
  </message>
  <message id="MENU_SELECT_ALL">
    <source>Select &amp;all</source>
    <translation>Select &amp;all</translation>
  </message>
  <message id="MENU_TOOLS">
    <source>&amp;Tools</source>
    <translation>&amp;Tools</translation>
  </message>
  <message id="MENU_HELP">
    <source>&amp;Help</source>
    <translation>&amp;Help</translation>
  </message>
  <message id="MENU_TOOL_HELP">
    <source>&amp;Help on this tool</source>
    <translation>&amp;Help on this tool</translation>
  </message>
  <message id="MENU_ABOUT">
    <source>&amp;About Lumora</source>
    <translation>&amp;About Lumora</translation>
  </message>

  <!-- File choosers: names of file kinds -->
  <message id="FILTER_PNG">
    <source>PNG pictures</source>
    <translation>PNG pictures</translation>
  </message>
  <message id="FILTER_IPA">
    <source>iOS app packages</source>
    <translation>iOS app packages</translation>
  </message>

  <!-- Accessible names and tool tips of controls without a text of their own -->
  <message id="ACCESSIBLE_CLOSE">
    <source>Close window</source>
    <translation>Close window</translation>
  </message>
  <message id="ACCESSIBLE_SIDES">
    <source>Side of this tool</source>
    <translation>Side of this tool</translation>
  </message>
  <message id="ACCESSIBLE_MINIMIZE">
    <source>Minimize window</source>
    <translation>Minimize window</translation>
  </message>
  <message id="ACCESSIBLE_ZOOM">
    <source>Zoom window</source>
    <translation>Zoom window</translation>
  </message>
  <message id="ACCESSIBLE_FULLSCREEN">
    <source>Enter full screen</source>
    <translation>Enter full screen</translation>
  </message>
  <message id="ACCESSIBLE_EXIT_FULLSCREEN">
    <source>Leave full screen</source>
    <translation>Leave full screen</translation>
  </message>
  <message id="ACCESSIBLE_SIDEBAR">
    <source>Tools</source>
    <translation>Tools</translation>
  </message>
  <message id="ACCESSIBLE_JOB_ENDED">
    <source>Finished while you were elsewhere</source>
    <translation>Finished while you were elsewhere</translation>
  </message>
  <message id="ACCESSIBLE_HELP">
    <source>Help on this tool</source>
    <translation>Help on this tool</translation>
  </message>
  <message id="ACCESSIBLE_ABOUT">
    <source>About Lumora</source>
    <translation>About Lumora</translation>
  </message>
  <message id="ACCESSIBLE_ICONS_DROP">
    <source>Drop area for the source icon</source>
    <translation>Drop area for the source icon</translation>
  </message>
  <message id="ACCESSIBLE_ICONS_SOURCE">
    <source>Source icon</source>
    <translation>Source icon</translation>
  </message>
  <message id="ACCESSIBLE_ICONS_PREVIEW">
    <source>Preview at [SIZE] pixels</source>
    <translation>Preview at [SIZE] pixels</translation>
  </message>
  <message id="ACCESSIBLE_SNIPPET_PLATFORM">
    <source>Platform of the code snippet</source>
    <translation>Platform of the code snippet</translation>
  </message>
  <message id="ACCESSIBLE_SNIPPET">
    <source>Code snippet</source>
    <translation>Code snippet</translation>
  </message>
  <message id="ACCESSIBLE_RESIZER_DROP">
    <source>Drop area for double-resolution pictures</source>
    <translation>Drop area for double-resolution pictures</translation>
  </message>
  <message id="ACCESSIBLE_RESIZER_PROGRESS">
    <source>Progress of the down-scaling</source>
    <translation>Progress of the down-scaling</translation>
  </message>
  <message id="ACCESSIBLE_COLOR_FIELD">
    <source>Color code</source>
    <translation>Color code</translation>
  </message>
  <message id="ACCESSIBLE_COLOR_WELL">
    <source>Color well, opens the color picker</source>
    <translation>Color well, opens the color picker</translation>
  </message>
  <message id="ACCESSIBLE_DEVICE_MATCH">
    <source>[DEVICE], meets the choice</source>
    <translation>[DEVICE], meets the choice</translation>
  </message>
  <message id="ACCESSIBLE_DEVICE_NO_MATCH">
    <source>[DEVICE], does not meet the choice</source>
    <translation>[DEVICE], does not meet the choice</translation>
  </message>
  <message id="ACCESSIBLE_VALIDATER_DROP">
    <source>Drop area for an app package</source>
    <translation>Drop area for an app package</translation>
  </message>
  <message id="ACCESSIBLE_VALIDATER_APP_ICON">
    <source>Icon of the app</source>
    <translation>Icon of the app</translation>
  </message>
  <message id="ACCESSIBLE_VALIDATER_REPORT">
    <source>Report on [FILE]: [SUM]</source>
    <translation>Report on [FILE]: [SUM]</translation>
  </message>
  <message id="ACCESSIBLE_VALIDATER_PROGRESS">
    <source>Reading the package</source>
    <translation>Reading the package</translation>
  </message>
  <message id="ACCESSIBLE_CHECK_PASSED">
    <source>[CHECK]: passed</source>
    <translation>[CHECK]: passed</translation>
  </message>
  <message id="ACCESSIBLE_CHECK_FAILED">
    <source>[CHECK]: problems found</source>
    <translation>[CHECK]: problems found</translation>
  </message>
  <message id="ACCESSIBLE_CHECK_ABSENT">
    <source>[CHECK]: not present</source>
    <translation>[CHECK]: not present</translation>
  </message>


  <!-- The command line -->
  <message id="CLI_OR">
    <source>or</source>
    <translation>or</translation>
  </message>
  <message id="CLI_USAGE">
    <source>Usage</source>
    <translation>Usage</translation>
  </message>
  <message id="CLI_OPTION_WORD">
    <source>OPTION</source>
    <translation>OPTION</translation>
  </message>
  <message id="CLI_PROGRAM_USAGE">
    <source>lumora COMMAND [ARGUMENT]...</source>
    <translation>lumora COMMAND [ARGUMENT]...</translation>
  </message>
  <message id="CLI_PROGRAM_ABOUT">
    <source>Icons, placeholders, down-scaling, color codes, devices and app package checks for people who make apps. Without a command the window opens, with the given files if there are any.</source>
    <translation>Icons, placeholders, down-scaling, color codes, devices and app package checks for people who make apps. Without a command the window opens, with the given files if there are any.</translation>
  </message>
  <message id="CLI_COMMANDS">
    <source>Commands</source>
    <translation>Commands</translation>
  </message>
  <message id="CLI_WINDOW">
    <source>Window</source>
    <translation>Window</translation>
  </message>
  <message id="CLI_OPERANDS">
    <source>What to work on</source>
    <translation>What to work on</translation>
  </message>
  <message id="CLI_OPTIONS">
    <source>Options</source>
    <translation>Options</translation>
  </message>
  <message id="CLI_OUTPUT">
    <source>Where to write</source>
    <translation>Where to write</translation>
  </message>
  <message id="CLI_GENERAL">
    <source>General</source>
    <translation>General</translation>
  </message>
  <message id="CLI_EXAMPLES">
    <source>Examples</source>
    <translation>Examples</translation>
  </message>
  <message id="CLI_TOOL">
    <source>Open the window at one tool: [WORDS]</source>
    <translation>Open the window at one tool: [WORDS]</translation>
  </message>
  <message id="CLI_TODAY">
    <source>Open the window with what platforms want today, in the tools that have both</source>
    <translation>Open the window with what platforms want today, in the tools that have both</translation>
  </message>
  <message id="CLI_JSON">
    <source>Print the result as JSON, failures included</source>
    <translation>Print the result as JSON, failures included</translation>
  </message>
  <message id="CLI_QUIET">
    <source>Print failures only (and JSON that is asked for)</source>
    <translation>Print failures only (and JSON that is asked for)</translation>
  </message>
  <message id="CLI_VERBOSE">
    <source>Name each file on standard error, too</source>
    <translation>Name each file on standard error, too</translation>
  </message>
  <message id="CLI_HELP">
    <source>Explain the program or a command</source>
    <translation>Explain the program or a command</translation>
  </message>
  <message id="CLI_VERSION">
    <source>Print the version</source>
    <translation>Print the version</translation>
  </message>
  <message id="CLI_ICONS_ABOUT">
    <source>Write every icon of whole platforms from one picture</source>
    <translation>Write every icon of whole platforms from one picture</translation>
  </message>
  <message id="CLI_ICON_ABOUT">
    <source>Write icons of sizes of your own</source>
    <translation>Write icons of sizes of your own</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_ABOUT">
    <source>Write placeholder pictures labeled with their size</source>
    <translation>Write placeholder pictures labeled with their size</translation>
  </message>
  <message id="CLI_DOWNSCALE_ABOUT">
    <source>Scale retina pictures down to smaller densities</source>
    <translation>Scale retina pictures down to smaller densities</translation>
  </message>
  <message id="CLI_COLOR_ABOUT">
    <source>Print a color as code</source>
    <translation>Print a color as code</translation>
  </message>
  <message id="CLI_DEVICES_ABOUT">
    <source>List the iPhones, iPods and iPads that can run an app</source>
    <translation>List the iPhones, iPods and iPads that can run an app</translation>
  </message>
  <message id="CLI_VALIDATE_ABOUT">
    <source>Read iOS app packages and check what is in them</source>
    <translation>Read iOS app packages and check what is in them</translation>
  </message>
  <message id="CLI_ICON_SOURCE">
    <source>Picture of 1024 x 1024 pixels (PNG, JPEG, TIFF, WebP, BMP, GIF or ICNS), or - for standard input</source>
    <translation>Picture of 1024 x 1024 pixels (PNG, JPEG, TIFF, WebP, BMP, GIF or ICNS), or - for standard input</translation>
  </message>
  <message id="CLI_ICONS_SOURCE">
    <source>Picture of 1024 x 1024 pixels (PNG, JPEG, TIFF, WebP, BMP, GIF or ICNS), for today's platforms a square SVG drawing, too, or - for standard input</source>
    <translation>Picture of 1024 x 1024 pixels (PNG, JPEG, TIFF, WebP, BMP, GIF or ICNS), for today's platforms a square SVG drawing, too, or - for standard input</translation>
  </message>
  <message id="CLI_EXAMPLE">
    <source>Use the built-in picture in place of SOURCE</source>
    <translation>Use the built-in picture in place of SOURCE</translation>
  </message>
  <message id="CLI_ICONS_PLATFORM">
    <source>Platforms, separated by commas: [WORDS]</source>
    <translation>Platforms, separated by commas: [WORDS]</translation>
  </message>
  <message id="CLI_ICONS_TO">
    <source>Make a fresh folder "icons" in DIR (icons_1 where that is taken)</source>
    <translation>Make a fresh folder "icons" in DIR (icons_1 where that is taken)</translation>
  </message>
  <message id="CLI_ICONS_NAME">
    <source>The app's name: of the Linux files, the web manifest and the Icon Composer bundle (App without it)</source>
    <translation>The app's name: of the Linux files, the web manifest and the Icon Composer bundle (App without it)</translation>
  </message>
  <message id="CLI_ICONS_DARK">
    <source>Dark icon for iOS and Icon Composer</source>
    <translation>Dark icon for iOS and Icon Composer</translation>
  </message>
  <message id="CLI_ICONS_TINTED">
    <source>Tinted icon for iOS and Icon Composer: shades of gray, opaque</source>
    <translation>Tinted icon for iOS and Icon Composer: shades of gray, opaque</translation>
  </message>
  <message id="CLI_ICONS_FOREGROUND">
    <source>Foreground of an adaptive icon, as large as its layer</source>
    <translation>Foreground of an adaptive icon, as large as its layer</translation>
  </message>
  <message id="CLI_ICONS_BACKGROUND">
    <source>Background of adaptive, maskable and layered icons</source>
    <translation>Background of adaptive, maskable and layered icons</translation>
  </message>
  <message id="CLI_ICONS_MONOCHROME">
    <source>Monochrome icon: only its transparency counts</source>
    <translation>Monochrome icon: only its transparency counts</translation>
  </message>
  <message id="CLI_ICONS_LAYER">
    <source>Layer of a tvOS, visionOS or Icon Composer icon, two to five, the back one first</source>
    <translation>Layer of a tvOS, visionOS or Icon Composer icon, two to five, the back one first</translation>
  </message>
  <message id="CLI_ICONS_FLATTEN">
    <source>What lies below transparency where a store forbids it: #RRGGBB or a name</source>
    <translation>What lies below transparency where a store forbids it: #RRGGBB or a name</translation>
  </message>
  <message id="CLI_ICONS_FIT">
    <source>Take any square picture of at least 512 pixels; it is scaled to 1024 once</source>
    <translation>Take any square picture of at least 512 pixels; it is scaled to 1024 once</translation>
  </message>
  <message id="CLI_ICONS_IOS_FORM">
    <source>Form of the iOS catalogue: [WORDS]</source>
    <translation>Form of the iOS catalogue: [WORDS]</translation>
  </message>
  <message id="CLI_ICONS_MAC_FULL_BLEED">
    <source>Mac icons that fill their square, without the rounded body and its shadow</source>
    <translation>Mac icons that fill their square, without the rounded body and its shadow</translation>
  </message>
  <message id="CLI_ICONS_INTO">
    <source>Write the icons of the projects in DIR in their places</source>
    <translation>Write the icons of the projects in DIR in their places</translation>
  </message>
  <message id="CLI_ICONS_DRY_RUN">
    <source>With --into: only list what would be written</source>
    <translation>With --into: only list what would be written</translation>
  </message>
  <message id="CLI_ICONS_FLAVOR">
    <source>With --into: flavor of an Android or Flutter app</source>
    <translation>With --into: flavor of an Android or Flutter app</translation>
  </message>
  <message id="CLI_ICONS_TARGET">
    <source>With --into: target or icon set of an Xcode project</source>
    <translation>With --into: target or icon set of an Xcode project</translation>
  </message>
  <message id="CLI_ICONS_CHECK">
    <source>Judge the icon catalogues and projects in DIR; needs no SOURCE</source>
    <translation>Judge the icon catalogues and projects in DIR; needs no SOURCE</translation>
  </message>
  <message id="CLI_ICONS_WRONG_SIZE_ADVICE">
    <source>use a picture of exactly 1024 x 1024 pixels, or with --fit any square one of at least 512</source>
    <translation>use a picture of exactly 1024 x 1024 pixels, or with --fit any square one of at least 512</translation>
  </message>
  <message id="ICONS_FITTED">
    <source>a picture of another size was scaled to 1024 x 1024</source>
    <translation>a picture of another size was scaled to 1024 x 1024</translation>
  </message>
  <message id="ICONS_NOT_DRAWN">
    <source>parts of an SVG file are not drawn</source>
    <translation>parts of an SVG file are not drawn</translation>
  </message>
  <message id="ICONS_ICON_FLATTENED">
    <source>the icon was put on the color of --flatten where it must be opaque</source>
    <translation>the icon was put on the color of --flatten where it must be opaque</translation>
  </message>
  <message id="ICONS_TINTED_FROM_ICON">
    <source>the tinted icon is the icon's luminance</source>
    <translation>the tinted icon is the icon's luminance</translation>
  </message>
  <message id="ICONS_TINTED_ON_BLACK">
    <source>the tinted icon is black where the picture is transparent</source>
    <translation>the tinted icon is black where the picture is transparent</translation>
  </message>
  <message id="ICONS_DARK_IS_ICON">
    <source>the dark icon is the icon with its transparency</source>
    <translation>the dark icon is the icon with its transparency</translation>
  </message>
  <message id="ICONS_DARK_LEFT_OUT">
    <source>there is no dark icon, since the icon has no transparency</source>
    <translation>there is no dark icon, since the icon has no transparency</translation>
  </message>
  <message id="ICONS_FOREGROUND_FROM_ICON">
    <source>the foreground is the icon inside the safe zone</source>
    <translation>the foreground is the icon inside the safe zone</translation>
  </message>
  <message id="ICONS_BACKGROUND_FROM_BORDER">
    <source>the background is the color of the icon's border</source>
    <translation>the background is the color of the icon's border</translation>
  </message>
  <message id="ICONS_BACKGROUND_WHITE">
    <source>the background is white</source>
    <translation>the background is white</translation>
  </message>
  <message id="ICONS_MONOCHROME_FROM_ICON">
    <source>the monochrome icon is the icon's shape in white</source>
    <translation>the monochrome icon is the icon's shape in white</translation>
  </message>
  <message id="ICONS_MONOCHROME_LEFT_OUT">
    <source>there are no monochrome, notification and badge pictures, since the icon has no transparency</source>
    <translation>there are no monochrome, notification and badge pictures, since the icon has no transparency</translation>
  </message>
  <message id="ICONS_WEB_ON_BACKGROUND">
    <source>touch and maskable icons stand on the background color</source>
    <translation>touch and maskable icons stand on the background color</translation>
  </message>
  <message id="ICONS_BACK_LAYER_FLATTENED">
    <source>the back layer was put on the background color</source>
    <translation>the back layer was put on the background color</translation>
  </message>
  <message id="ICONS_SHELF_FROM_LAYERS">
    <source>the top shelf pictures show the layers on the background color</source>
    <translation>the top shelf pictures show the layers on the background color</translation>
  </message>
  <message id="ICONS_LAYERS_FROM_ICON">
    <source>the only layer is the icon, on the background color</source>
    <translation>the only layer is the icon, on the background color</translation>
  </message>
  <message id="ICONS_SCALABLE_LEFT_OUT">
    <source>there is no SVG icon, since the icon is a picture of pixels</source>
    <translation>there is no SVG icon, since the icon is a picture of pixels</translation>
  </message>
  <message id="ICONS_ONLY_ICON_SET">
    <source>the project names no icon set; its only one is used</source>
    <translation>the project names no icon set; its only one is used</translation>
  </message>
  <message id="ICONS_BACKGROUND_KEPT">
    <source>the background in the project is kept; --background replaces it</source>
    <translation>the background in the project is kept; --background replaces it</translation>
  </message>
  <message id="ICONS_SETTINGS_NOT_READ">
    <source>icons that these settings name are not found, since only their own tool can read them</source>
    <translation>icons that these settings name are not found, since only their own tool can read them</translation>
  </message>
  <message id="CLI_ICONS_FIT_ADVICE">
    <source>use a square picture of at least 512 x 512 pixels</source>
    <translation>use a square picture of at least 512 x 512 pixels</translation>
  </message>
  <message id="ICONS_CHANGE_NEW">
    <source>new</source>
    <translation>new</translation>
  </message>
  <message id="ICONS_CHANGE_REPLACED">
    <source>replaced</source>
    <translation>replaced</translation>
  </message>
  <message id="ICONS_CHANGE_UNCHANGED">
    <source>unchanged</source>
    <translation>unchanged</translation>
  </message>
  <message id="ICONS_CHANGE_REMOVED">
    <source>removed</source>
    <translation>removed</translation>
  </message>
  <message id="CLI_ICONS_LINE_TO_ADD">
    <source>to add by hand: [LINE]</source>
    <translation>to add by hand: [LINE]</translation>
  </message>
  <message id="CLI_ICONS_NONE_FOUND">
    <source>holds no icon catalogue and no project with icons</source>
    <translation>holds no icon catalogue and no project with icons</translation>
  </message>
  <message id="CLI_ICONS_CHECKED">
    <source>checked [N], found nothing</source>
    <translation>checked [N], found nothing</translation>
  </message>
  <message id="CLI_CHECK_FAILED">
    <source>does not keep the platforms' rules</source>
    <translation>does not keep the platforms' rules</translation>
  </message>
  <message id="CLI_HAS_TRANSPARENCY">
    <source>lets something through where the store forbids it</source>
    <translation>lets something through where the store forbids it</translation>
  </message>
  <message id="CLI_HAS_TRANSPARENCY_ADVICE">
    <source>put it on a color with --flatten COLOR</source>
    <translation>put it on a color with --flatten COLOR</translation>
  </message>
  <message id="CLI_NEEDS_LAYERS">
    <source>has to be given two to five times</source>
    <translation>has to be given two to five times</translation>
  </message>
  <message id="CLI_NEEDS_LAYERS_ADVICE">
    <source>name a picture for each layer, the back one first</source>
    <translation>name a picture for each layer, the back one first</translation>
  </message>
  <message id="CLI_NOT_A_PROJECT">
    <source>is no project whose icons are known</source>
    <translation>is no project whose icons are known</translation>
  </message>
  <message id="CLI_NOT_A_PROJECT_ADVICE">
    <source>name the folder with the project's file</source>
    <translation>name the folder with the project's file</translation>
  </message>
  <message id="CLI_AMBIGUOUS_PROJECT">
    <source>does not say which icons are meant</source>
    <translation>does not say which icons are meant</translation>
  </message>
  <message id="CLI_AMBIGUOUS_PROJECT_ADVICE">
    <source>name the folder of one of them</source>
    <translation>name the folder of one of them</translation>
  </message>
  <message id="CLI_CHOOSE_ICON_SET_ADVICE">
    <source>choose one with --target, which takes a target's or an icon set's name</source>
    <translation>choose one with --target, which takes a target's or an icon set's name</translation>
  </message>
  <message id="CLI_CHOOSE_FLAVOR_ADVICE">
    <source>choose one with --flavor, such as dev for AppIcon-dev</source>
    <translation>choose one with --flavor, such as dev for AppIcon-dev</translation>
  </message>
  <message id="CLI_MANIFEST_ICON_ADVICE">
    <source>name the app's own picture there, such as @mipmap/ic_launcher</source>
    <translation>name the app's own picture there, such as @mipmap/ic_launcher</translation>
  </message>
  <message id="CLI_NO_FLAVOR_ADVICE">
    <source>give --flavor one of productFlavors in build.gradle, or a folder beside src/main</source>
    <translation>give --flavor one of productFlavors in build.gradle, or a folder beside src/main</translation>
  </message>
  <message id="CLI_NO_TARGET_ADVICE">
    <source>leave --target out; it chooses among the icon sets of an Xcode project</source>
    <translation>leave --target out; it chooses among the icon sets of an Xcode project</translation>
  </message>
  <message id="CLI_PROGRAM_ADVICE">
    <source>name the icons in app.json instead, which the program is given</source>
    <translation>name the icons in app.json instead, which the program is given</translation>
  </message>
  <message id="CLI_LEADS_OUTSIDE">
    <source>leads out of its folder</source>
    <translation>leads out of its folder</translation>
  </message>
  <message id="CLI_LEADS_OUTSIDE_ADVICE">
    <source>replace the link or the name by one inside</source>
    <translation>replace the link or the name by one inside</translation>
  </message>
  <message id="CLI_STOPPED">
    <source>was stopped, and everything is as it was</source>
    <translation>was stopped, and everything is as it was</translation>
  </message>
  <message id="CLI_STOPPED_ADVICE">
    <source>run it again</source>
    <translation>run it again</translation>
  </message>
  <message id="CLI_OUT">
    <source>Write exactly into DIR: the same files on every run, other files are left alone</source>
    <translation>Write exactly into DIR: the same files on every run, other files are left alone</translation>
  </message>
  <message id="CLI_ICON_SIZE">
    <source>Edge length in pixels, [LEAST] to [MOST]; several separated by commas</source>
    <translation>Edge length in pixels, [LEAST] to [MOST]; several separated by commas</translation>
  </message>
  <message id="CLI_ICON_CORNERS">
    <source>Rounded corners: [WORDS]</source>
    <translation>Rounded corners: [WORDS]</translation>
  </message>
  <message id="CLI_ICON_OUTPUT">
    <source>Write one icon to FILE, or to standard output for -</source>
    <translation>Write one icon to FILE, or to standard output for -</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_SET">
    <source>Sizes of classic screens, stores, sites and launch pictures, several separated by commas: [WORDS]</source>
    <translation>Sizes of classic screens, stores, sites and launch pictures, several separated by commas: [WORDS]</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_SIZE">
    <source>Width and height, each from 1 to 9999 pixels, or in points with a density such as 800x800@2x; several separated by commas</source>
    <translation>Width and height, each from 1 to 9999 pixels, or in points with a density such as 800x800@2x; several separated by commas</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_TO">
    <source>Make a fresh folder "placeholders" in DIR (placeholders_1 where that is taken)</source>
    <translation>Make a fresh folder "placeholders" in DIR (placeholders_1 where that is taken)</translation>
  </message>
  <message id="CLI_DOWNSCALE_SOURCE">
    <source>PNG files marked @2x or -hd, or folders that are searched for such files; with --layout, pictures of the largest density or folders of them, or SVG drawings</source>
    <translation>PNG files marked @2x or -hd, or folders that are searched for such files; with --layout, pictures of the largest density or folders of them, or SVG drawings</translation>
  </message>
  <message id="CLI_DOWNSCALE_OVERWRITE">
    <source>Replace files that are there already; with --layout never a source</source>
    <translation>Replace files that are there already; with --layout never a source</translation>
  </message>
  <message id="CLI_DOWNSCALE_DRY_RUN">
    <source>Print what would be written and mark what exists; write nothing</source>
    <translation>Print what would be written and mark what exists; write nothing</translation>
  </message>
  <message id="CLI_DOWNSCALE_TO">
    <source>Write all halves into DIR, without sub-folders; with --layout in the folders of their sources</source>
    <translation>Write all halves into DIR, without sub-folders; with --layout in the folders of their sources</translation>
  </message>
  <message id="CLI_COLOR_TEXT">
    <source>Three or six hexadecimal digits, with or without #; with --form, --all or --contrast a color in any form</source>
    <translation>Three or six hexadecimal digits, with or without #; with --form, --all or --contrast a color in any form</translation>
  </message>
  <message id="CLI_COLOR_AS">
    <source>Notation to print: [WORDS]; all prints each with its name</source>
    <translation>Notation to print: [WORDS]; all prints each with its name</translation>
  </message>
  <message id="CLI_DEVICES_IOS">
    <source>Oldest iOS version the app runs on: 4, 5, 6 or 7; with --today a range such as 15.., ..12 or 9..12.4</source>
    <translation>Oldest iOS version the app runs on: 4, 5, 6 or 7; with --today a range such as 15.., ..12 or 9..12.4</translation>
  </message>
  <message id="CLI_DEVICES_FEATURE">
    <source>What the app needs; several separated by commas: [WORDS]</source>
    <translation>What the app needs; several separated by commas: [WORDS]</translation>
  </message>
  <message id="CLI_VALIDATE_FILE">
    <source>App packages (.ipa, .app or .xcarchive), or - for an .ipa on standard input</source>
    <translation>App packages (.ipa, .app or .xcarchive), or - for an .ipa on standard input</translation>
  </message>
  <message id="CLI_VALIDATE_ICON">
    <source>Write the app's icon, 128 pixels square; - is standard output</source>
    <translation>Write the app's icon, 128 pixels square; - is standard output</translation>
  </message>
  <message id="CLI_NO_SANDBOX">
    <source>Read the packages without locking the process in first</source>
    <translation>Read the packages without locking the process in first</translation>
  </message>
  <message id="CLI_SANDBOX_BOTH">
    <source>Locked in: no other files (Landlock), no connections and no programs (seccomp)</source>
    <translation>Locked in: no other files (Landlock), no connections and no programs (seccomp)</translation>
  </message>
  <message id="CLI_SANDBOX_FILES">
    <source>Locked in: no other files (Landlock); the kernel offers no seccomp</source>
    <translation>Locked in: no other files (Landlock); the kernel offers no seccomp</translation>
  </message>
  <message id="CLI_SANDBOX_CALLS">
    <source>Locked in: no connections and no programs (seccomp); the kernel offers no Landlock</source>
    <translation>Locked in: no connections and no programs (seccomp); the kernel offers no Landlock</translation>
  </message>
  <message id="CLI_SANDBOX_NONE">
    <source>Not locked in: the kernel offers neither Landlock nor seccomp</source>
    <translation>Not locked in: the kernel offers neither Landlock nor seccomp</translation>
  </message>
  <message id="CLI_SANDBOX_OFF">
    <source>Not locked in: --no-sandbox</source>
    <translation>Not locked in: --no-sandbox</translation>
  </message>
  <message id="CLI_VALIDATE_RULES">
    <source>Judge by the rules of today's store, by those of iOS 7 (classic), or by all; auto, the default, asks the store's, and the classic ones of packages built with an SDK before iOS 8 or with none</source>
    <translation>Judge by the rules of today's store, by those of iOS 7 (classic), or by all; auto, the default, asks the store's, and the classic ones of packages built with an SDK before iOS 8 or with none</translation>
  </message>
  <message id="CLI_VALIDATE_FAIL_ON">
    <source>The least severe finding that makes the status 1; error is the default</source>
    <translation>The least severe finding that makes the status 1; error is the default</translation>
  </message>
  <message id="CLI_VALIDATE_IGNORE">
    <source>Leave out a rule, by its id or the store's code</source>
    <translation>Leave out a rule, by its id or the store's code</translation>
  </message>
  <message id="CLI_VALIDATE_IGNORE_FILE">
    <source>Leave out the rules that a file lists, one a line</source>
    <translation>Leave out the rules that a file lists, one a line</translation>
  </message>
  <message id="CLI_VALIDATE_ON">
    <source>Judge for another day than today, as in 2027-04-30</source>
    <translation>Judge for another day than today, as in 2027-04-30</translation>
  </message>
  <message id="CLI_UNKNOWN_RULE">
    <source>[RULE] is no rule</source>
    <translation>[RULE] is no rule</translation>
  </message>
  <message id="CLI_CLASSIC_RULES">
    <source>iOS 7 rules</source>
    <translation>iOS 7 rules</translation>
  </message>
  <message id="CLI_STORE_RULES">
    <source>the store's rules</source>
    <translation>the store's rules</translation>
  </message>
  <message id="CLI_RULES_ABOUT">
    <source>List the rules that packages are judged by</source>
    <translation>List the rules that packages are judged by</translation>
  </message>
  <message id="CLI_RULES_ID">
    <source>Rules to print in full, by their ids or the store's codes</source>
    <translation>Rules to print in full, by their ids or the store's codes</translation>
  </message>
  <message id="CLI_RULES_MARKDOWN">
    <source>Print the page of the documents</source>
    <translation>Print the page of the documents</translation>
  </message>
  <message id="CLI_VALIDATE_SARIF">
    <source>Write the findings as SARIF 2.1.0; - is standard output</source>
    <translation>Write the findings as SARIF 2.1.0; - is standard output</translation>
  </message>
  <message id="CLI_VALIDATE_JUNIT">
    <source>Write a test case for each rule as JUnit XML; - is standard output</source>
    <translation>Write a test case for each rule as JUnit XML; - is standard output</translation>
  </message>
  <message id="CLI_VALIDATE_ONE_STDOUT">
    <source>standard output takes one of the report, --json and --icon</source>
    <translation>standard output takes one of the report, --json and --icon</translation>
  </message>
  <message id="CLI_DIFF_ABOUT">
    <source>Compare two builds of an app package</source>
    <translation>Compare two builds of an app package</translation>
  </message>
  <message id="CLI_DIFF_OLD">
    <source>The package as it was</source>
    <translation>The package as it was</translation>
  </message>
  <message id="CLI_DIFF_NEW">
    <source>The package as it is</source>
    <translation>The package as it is</translation>
  </message>
  <message id="CLI_DIFF_FAIL_ON">
    <source>The least severe finding that the new package has and the old one has not, and that makes the status 1; never is the default</source>
    <translation>The least severe finding that the new package has and the old one has not, and that makes the status 1; never is the default</translation>
  </message>
  <message id="CLI_DIFF_FACTS">
    <source>Facts</source>
    <translation>Facts</translation>
  </message>
  <message id="CLI_DIFF_ENTITLEMENTS">
    <source>Entitlements</source>
    <translation>Entitlements</translation>
  </message>
  <message id="CLI_DIFF_PERMISSIONS">
    <source>Reasons given for permissions</source>
    <translation>Reasons given for permissions</translation>
  </message>
  <message id="CLI_DIFF_GAINED">
    <source>Findings gained</source>
    <translation>Findings gained</translation>
  </message>
  <message id="CLI_DIFF_LOST">
    <source>Findings lost</source>
    <translation>Findings lost</translation>
  </message>
  <message id="CLI_DIFF_SIZES">
    <source>Files and bytes, unpacked</source>
    <translation>Files and bytes, unpacked</translation>
  </message>
  <message id="CLI_DIFF_TOTAL">
    <source>[FILES] files, [SIZE]</source>
    <translation>[FILES] files, [SIZE]</translation>
  </message>
  <message id="CLI_DIFF_TOTAL_ONE">
    <source>1 file, [SIZE]</source>
    <translation>1 file, [SIZE]</translation>
  </message>
  <message id="CLI_DIFF_GROWTH">
    <source>Largest growth</source>
    <translation>Largest growth</translation>
  </message>
  <message id="CLI_VALIDATE_HTML">
    <source>Write a page to look at and to pass on; - is standard output</source>
    <translation>Write a page to look at and to pass on; - is standard output</translation>
  </message>
  <message id="CLI_VALIDATE_DEVICES">
    <source>List the models that run the app, and why the others do not</source>
    <translation>List the models that run the app, and why the others do not</translation>
  </message>
  <message id="CLI_VALIDATE_RUNS_ON">
    <source>runs on</source>
    <translation>runs on</translation>
  </message>
  <message id="CLI_VALIDATE_RUNS_NOT_ON">
    <source>does not run on</source>
    <translation>does not run on</translation>
  </message>
  <message id="CLI_ICONS_NOT_CLASSIC">
    <source>[OPTION] goes only with --into or a platform of today: [WORDS]</source>
    <translation>[OPTION] goes only with --into or a platform of today: [WORDS]</translation>
  </message>
  <message id="ICON_RULE_CONTENTS_UNREADABLE">
    <source>The list of the folder's files is missing or cannot be read</source>
    <translation>The list of the folder's files is missing or cannot be read</translation>
  </message>
  <message id="ICON_FIX_CONTENTS_UNREADABLE">
    <source>write the set again</source>
    <translation>write the set again</translation>
  </message>
  <message id="ICON_RULE_FILE_MISSING">
    <source>A listed file is not there</source>
    <translation>A listed file is not there</translation>
  </message>
  <message id="ICON_FIX_FILE_MISSING">
    <source>add the file or take it off the list</source>
    <translation>add the file or take it off the list</translation>
  </message>
  <message id="ICON_RULE_FILE_OUTSIDE">
    <source>A listed file lies outside of the folder</source>
    <translation>A listed file lies outside of the folder</translation>
  </message>
  <message id="ICON_FIX_FILE_OUTSIDE">
    <source>put the file into the folder and list it by its name alone</source>
    <translation>put the file into the folder and list it by its name alone</translation>
  </message>
  <message id="ICON_RULE_PICTURE_UNREADABLE">
    <source>A picture cannot be read</source>
    <translation>A picture cannot be read</translation>
  </message>
  <message id="ICON_FIX_PICTURE_UNREADABLE">
    <source>replace it by an undamaged PNG file</source>
    <translation>replace it by an undamaged PNG file</translation>
  </message>
  <message id="ICON_RULE_WRONG_SIZE">
    <source>A picture has another size than its slot</source>
    <translation>A picture has another size than its slot</translation>
  </message>
  <message id="ICON_FIX_WRONG_SIZE">
    <source>replace it by a picture of the slot's size</source>
    <translation>replace it by a picture of the slot's size</translation>
  </message>
  <message id="ICON_RULE_STORE_ICON_MISSING">
    <source>The icon of 1024 x 1024 pixels for the store is missing</source>
    <translation>The icon of 1024 x 1024 pixels for the store is missing</translation>
  </message>
  <message id="ICON_FIX_STORE_ICON_MISSING">
    <source>add it; uploads are refused without it</source>
    <translation>add it; uploads are refused without it</translation>
  </message>
  <message id="ICON_RULE_STORE_ICON_TRANSPARENT">
    <source>The store's icon has transparent pixels</source>
    <translation>The store's icon has transparent pixels</translation>
  </message>
  <message id="ICON_FIX_STORE_ICON_TRANSPARENT">
    <source>put it on a color: lumora icons --flatten COLOR</source>
    <translation>put it on a color: lumora icons --flatten COLOR</translation>
  </message>
  <message id="ICON_RULE_PLATFORM_NAME">
    <source>A slot's platform is not written as the catalog compiler knows it</source>
    <translation>A slot's platform is not written as the catalog compiler knows it</translation>
  </message>
  <message id="ICON_FIX_PLATFORM_NAME">
    <source>write it in lower case</source>
    <translation>write it in lower case</translation>
  </message>
  <message id="ICON_RULE_RESOURCE_MISSING">
    <source>An adaptive icon names a resource that is not there</source>
    <translation>An adaptive icon names a resource that is not there</translation>
  </message>
  <message id="ICON_FIX_RESOURCE_MISSING">
    <source>add the resource or take its line out</source>
    <translation>add the resource or take its line out</translation>
  </message>
  <message id="ICON_RULE_STORE_FILE_TOO_LONG">
    <source>The store's picture is longer than 1024 KB</source>
    <translation>The store's picture is longer than 1024 KB</translation>
  </message>
  <message id="ICON_FIX_STORE_FILE_TOO_LONG">
    <source>use a picture with fewer details</source>
    <translation>use a picture with fewer details</translation>
  </message>
  <message id="ICON_RULE_ICON_FILE_BROKEN">
    <source>An icon file is damaged</source>
    <translation>An icon file is damaged</translation>
  </message>
  <message id="ICON_FIX_ICON_FILE_BROKEN">
    <source>write it again</source>
    <translation>write it again</translation>
  </message>
  <message id="ICON_RULE_LAYER_COUNT">
    <source>A layered icon has fewer than two or more than five layers</source>
    <translation>A layered icon has fewer than two or more than five layers</translation>
  </message>
  <message id="ICON_FIX_LAYER_COUNT">
    <source>use two to five layers</source>
    <translation>use two to five layers</translation>
  </message>
  <message id="ICON_RULE_ICON_TRANSPARENT">
    <source>A picture has transparent pixels, which are shown black or white</source>
    <translation>A picture has transparent pixels, which are shown black or white</translation>
  </message>
  <message id="ICON_FIX_ICON_TRANSPARENT">
    <source>put it on a color: lumora icons --flatten COLOR</source>
    <translation>put it on a color: lumora icons --flatten COLOR</translation>
  </message>
  <message id="ICON_RULE_ALPHA_CHANNEL">
    <source>The store's icon has an alpha channel, though all of it is opaque</source>
    <translation>The store's icon has an alpha channel, though all of it is opaque</translation>
  </message>
  <message id="ICON_FIX_ALPHA_CHANNEL">
    <source>save it without the channel</source>
    <translation>save it without the channel</translation>
  </message>
  <message id="ICON_RULE_UNASSIGNED_FILE">
    <source>A file in the folder is in no slot</source>
    <translation>A file in the folder is in no slot</translation>
  </message>
  <message id="ICON_FIX_UNASSIGNED_FILE">
    <source>assign it or remove it</source>
    <translation>assign it or remove it</translation>
  </message>
  <message id="ICON_RULE_DUPLICATE_SLOT">
    <source>Two pictures are listed for one slot</source>
    <translation>Two pictures are listed for one slot</translation>
  </message>
  <message id="ICON_FIX_DUPLICATE_SLOT">
    <source>take one of them off the list</source>
    <translation>take one of them off the list</translation>
  </message>
  <message id="ICON_RULE_FOREIGN_FORMAT">
    <source>A file named .png holds another format</source>
    <translation>A file named .png holds another format</translation>
  </message>
  <message id="ICON_FIX_FOREIGN_FORMAT">
    <source>save it as PNG</source>
    <translation>save it as PNG</translation>
  </message>
  <message id="ICON_RULE_STORE_ICON_COLORS">
    <source>The store's icon has a palette or a wide-gamut profile, which uploads were refused for</source>
    <translation>The store's icon has a palette or a wide-gamut profile, which uploads were refused for</translation>
  </message>
  <message id="ICON_RULE_PLAY_ICON_COLORS">
    <source>The icon for Google Play is not in the form that Google asks for, a PNG file of 32 bits a pixel</source>
    <translation>The icon for Google Play is not in the form that Google asks for, a PNG file of 32 bits a pixel</translation>
  </message>
  <message id="ICON_FIX_STORE_ICON_COLORS">
    <source>save it as sRGB with 8 bits a channel</source>
    <translation>save it as sRGB with 8 bits a channel</translation>
  </message>
  <message id="ICON_FIX_PLAY_ICON_COLORS">
    <source>save it as RGBA with 8 bits a channel</source>
    <translation>save it as RGBA with 8 bits a channel</translation>
  </message>
  <message id="ICON_RULE_TINTED_COLORS">
    <source>The tinted icon has colors</source>
    <translation>The tinted icon has colors</translation>
  </message>
  <message id="ICON_FIX_TINTED_COLORS">
    <source>use shades of gray; the system adds the tint</source>
    <translation>use shades of gray; the system adds the tint</translation>
  </message>
  <message id="ICON_RULE_OUTSIDE_SAFE_ZONE">
    <source>The picture reaches beyond the circle that every mask shows</source>
    <translation>The picture reaches beyond the circle that every mask shows</translation>
  </message>
  <message id="ICON_FIX_OUTSIDE_SAFE_ZONE">
    <source>make the picture's content smaller</source>
    <translation>make the picture's content smaller</translation>
  </message>
  <message id="ICON_RULE_MONOCHROME_MISSING">
    <source>The adaptive icon has no monochrome layer for themed icons</source>
    <translation>The adaptive icon has no monochrome layer for themed icons</translation>
  </message>
  <message id="ICON_FIX_MONOCHROME_MISSING">
    <source>add one: lumora icons --monochrome PICTURE</source>
    <translation>add one: lumora icons --monochrome PICTURE</translation>
  </message>
  <message id="ICON_RULE_MONOCHROME_OPAQUE">
    <source>The monochrome layer is opaque, so that a themed icon is a plain square</source>
    <translation>The monochrome layer is opaque, so that a themed icon is a plain square</translation>
  </message>
  <message id="ICON_FIX_MONOCHROME_OPAQUE">
    <source>use a picture with transparency</source>
    <translation>use a picture with transparency</translation>
  </message>
  <message id="ICON_RULE_MASKABLE_PURPOSE">
    <source>One picture is listed both as "any" and as "maskable"</source>
    <translation>One picture is listed both as "any" and as "maskable"</translation>
  </message>
  <message id="ICON_FIX_MASKABLE_PURPOSE">
    <source>list a picture of its own for each</source>
    <translation>list a picture of its own for each</translation>
  </message>
  <message id="ICON_RULE_LARGE_PICTURE_MISSING">
    <source>The icon file has no large picture</source>
    <translation>The icon file has no large picture</translation>
  </message>
  <message id="ICON_FIX_LARGE_PICTURE_MISSING">
    <source>add one of 256 pixels or more</source>
    <translation>add one of 256 pixels or more</translation>
  </message>
  <message id="ICON_RULE_SLOT_EMPTY">
    <source>A slot is empty</source>
    <translation>A slot is empty</translation>
  </message>
  <message id="ICON_FIX_SLOT_EMPTY">
    <source>add a picture if it is wanted</source>
    <translation>add a picture if it is wanted</translation>
  </message>
  <message id="ICON_RULE_APPEARANCE_MISSING">
    <source>There is no dark or no tinted icon</source>
    <translation>There is no dark or no tinted icon</translation>
  </message>
  <message id="ICON_FIX_APPEARANCE_MISSING">
    <source>add one: lumora icons --dark PICTURE --tinted PICTURE</source>
    <translation>add one: lumora icons --dark PICTURE --tinted PICTURE</translation>
  </message>
  <message id="ICON_RULE_UNCOMMON_PIXELS">
    <source>The picture is interlaced or has 16 bits a channel</source>
    <translation>The picture is interlaced or has 16 bits a channel</translation>
  </message>
  <message id="ICON_FIX_UNCOMMON_PIXELS">
    <source>save it plain with 8 bits a channel</source>
    <translation>save it plain with 8 bits a channel</translation>
  </message>
  <message id="ICON_RULE_WALK_ENDED">
    <source>The folder holds more than was looked through</source>
    <translation>The folder holds more than was looked through</translation>
  </message>
  <message id="ICON_FIX_WALK_ENDED">
    <source>check its parts one by one</source>
    <translation>check its parts one by one</translation>
  </message>
  <message id="CLI_NOT_A_DATE">
    <source>[DATE] is no date; write it as in 2027-04-30</source>
    <translation>[DATE] is no date; write it as in 2027-04-30</translation>
  </message>
  <message id="CLI_VALIDATE_STATUS">
    <source>Ends with 0 when nothing is found that counts, 1 when something is, 3 when a file cannot be read or holds no app.</source>
    <translation>Ends with 0 when nothing is found that counts, 1 when something is, 3 when a file cannot be read or holds no app.</translation>
  </message>
  <message id="CLI_DID_YOU_MEAN">
    <source>did you mean [WORD]?</source>
    <translation>did you mean [WORD]?</translation>
  </message>
  <message id="CLI_SEE_HELP">
    <source>see "[COMMAND]"</source>
    <translation>see "[COMMAND]"</translation>
  </message>
  <message id="CLI_UNKNOWN_OPTION">
    <source>[OPTION] is no option</source>
    <translation>[OPTION] is no option</translation>
  </message>
  <message id="CLI_UNKNOWN_COMMAND">
    <source>[WORD] is neither a command nor a file that exists</source>
    <translation>[WORD] is neither a command nor a file that exists</translation>
  </message>
  <message id="CLI_UNKNOWN_TOOL">
    <source>--tool takes [WORDS], not [VALUE]</source>
    <translation>--tool takes [WORDS], not [VALUE]</translation>
  </message>
  <message id="CLI_WRONG_CHOICE">
    <source>[OPTION] takes [WORDS], not [VALUE]</source>
    <translation>[OPTION] takes [WORDS], not [VALUE]</translation>
  </message>
  <message id="CLI_WRONG_NUMBER">
    <source>[OPTION] takes a whole number from [LEAST] to [MOST], not [VALUE]</source>
    <translation>[OPTION] takes a whole number from [LEAST] to [MOST], not [VALUE]</translation>
  </message>
  <message id="CLI_WRONG_SIZE_TEXT">
    <source>is no size; give width x height, each from [LEAST] to [MOST] pixels, such as 1136x640, or in points such as 400x300@2x</source>
    <translation>is no size; give width x height, each from [LEAST] to [MOST] pixels, such as 1136x640, or in points such as 400x300@2x</translation>
  </message>
  <message id="CLI_EMPTY_VALUE">
    <source>[OPTION] is empty</source>
    <translation>[OPTION] is empty</translation>
  </message>
  <message id="CLI_EMPTY_WORD">
    <source>an argument is empty</source>
    <translation>an argument is empty</translation>
  </message>
  <message id="CLI_UNEXPECTED">
    <source>[WORD] is one argument too many</source>
    <translation>[WORD] is one argument too many</translation>
  </message>
  <message id="CLI_FLAG_WITH_VALUE">
    <source>[OPTION] takes no value</source>
    <translation>[OPTION] takes no value</translation>
  </message>
  <message id="CLI_MISSING_VALUE">
    <source>[OPTION] lacks its value: [OPTION] [NAME]</source>
    <translation>[OPTION] lacks its value: [OPTION] [NAME]</translation>
  </message>
  <message id="CLI_VALUE_WITH_DASH">
    <source>for a value that begins with a dash write [OPTION]</source>
    <translation>for a value that begins with a dash write [OPTION]</translation>
  </message>
  <message id="CLI_CHOICES">
    <source>it takes [WORDS]</source>
    <translation>it takes [WORDS]</translation>
  </message>
  <message id="CLI_VALIDATE_REPLACES">
    <source>is a package that is to be checked</source>
    <translation>is a package that is to be checked</translation>
  </message>
  <message id="CLI_VALIDATE_REPLACES_ADVICE">
    <source>write to another name</source>
    <translation>write to another name</translation>
  </message>
  <message id="CLI_GIVEN_TWICE">
    <source>[OPTION] is given twice</source>
    <translation>[OPTION] is given twice</translation>
  </message>
  <message id="CLI_CONFLICT">
    <source>[FIRST] and [SECOND] exclude each other</source>
    <translation>[FIRST] and [SECOND] exclude each other</translation>
  </message>
  <message id="CLI_MISSING_OPTION">
    <source>[OPTION] is missing</source>
    <translation>[OPTION] is missing</translation>
  </message>
  <message id="CLI_NO_WINDOW">
    <source>the window is not installed</source>
    <translation>the window is not installed</translation>
  </message>
  <message id="CLI_NO_WINDOW_ADVICE">
    <source>install the package "lumora", or see "lumora help" for the commands, which work without it</source>
    <translation>install the package "lumora", or see "lumora help" for the commands, which work without it</translation>
  </message>
  <message id="CLI_WINDOW_FAILED">
    <source>the window could not be started: [REASON]</source>
    <translation>the window could not be started: [REASON]</translation>
  </message>
  <message id="CLI_ICON_ONE_FILE">
    <source>one file takes one size</source>
    <translation>one file takes one size</translation>
  </message>
  <message id="CLI_ICON_ONE_FILE_ADVICE">
    <source>use --out DIR for several</source>
    <translation>use --out DIR for several</translation>
  </message>
  <message id="CLI_VALIDATE_ONE_ICON">
    <source>--icon writes the icon of one file, but several are given</source>
    <translation>--icon writes the icon of one file, but several are given</translation>
  </message>
  <message id="CLI_TERMINAL_OUTPUT">
    <source>standard output is a terminal</source>
    <translation>standard output is a terminal</translation>
  </message>
  <message id="CLI_TERMINAL_OUTPUT_ADVICE">
    <source>send it into a file or another program</source>
    <translation>send it into a file or another program</translation>
  </message>
  <message id="CLI_NOT_FOUND">
    <source>does not exist</source>
    <translation>does not exist</translation>
  </message>
  <message id="CLI_NOT_FOUND_ADVICE">
    <source>check the path</source>
    <translation>check the path</translation>
  </message>
  <message id="CLI_NOT_FOUND_UNDECODED">
    <source>does not exist under a name in UTF-8</source>
    <translation>does not exist under a name in UTF-8</translation>
  </message>
  <message id="CLI_NOT_FOUND_UNDECODED_ADVICE">
    <source>rename it if it is there, or check the path</source>
    <translation>rename it if it is there, or check the path</translation>
  </message>
  <message id="CLI_IS_FOLDER">
    <source>is a folder</source>
    <translation>is a folder</translation>
  </message>
  <message id="CLI_IS_FOLDER_ADVICE">
    <source>name a file</source>
    <translation>name a file</translation>
  </message>
  <message id="CLI_NOT_A_FOLDER">
    <source>is not a folder</source>
    <translation>is not a folder</translation>
  </message>
  <message id="CLI_NOT_A_FOLDER_ADVICE">
    <source>name a folder</source>
    <translation>name a folder</translation>
  </message>
  <message id="CLI_NO_PERMISSION">
    <source>may not be opened</source>
    <translation>may not be opened</translation>
  </message>
  <message id="CLI_NO_PERMISSION_ADVICE">
    <source>change its permissions or choose another</source>
    <translation>change its permissions or choose another</translation>
  </message>
  <message id="CLI_NOT_A_PICTURE">
    <source>is not a picture that can be read</source>
    <translation>is not a picture that can be read</translation>
  </message>
  <message id="CLI_NOT_A_PICTURE_ADVICE">
    <source>use an undamaged PNG, JPEG, TIFF, WebP, BMP, GIF or ICNS file</source>
    <translation>use an undamaged PNG, JPEG, TIFF, WebP, BMP, GIF or ICNS file</translation>
  </message>
  <message id="CLI_ICONS_SOURCE_ADVICE">
    <source>use an undamaged SVG, PNG, JPEG, TIFF, WebP, BMP, GIF or ICNS file</source>
    <translation>use an undamaged SVG, PNG, JPEG, TIFF, WebP, BMP, GIF or ICNS file</translation>
  </message>
  <message id="CLI_DOWNSCALE_FORMAT_ADVICE">
    <source>use an undamaged PNG file</source>
    <translation>use an undamaged PNG file</translation>
  </message>
  <message id="CLI_WRONG_SIZE">
    <source>has the wrong size</source>
    <translation>has the wrong size</translation>
  </message>
  <message id="CLI_WRONG_SIZE_ADVICE">
    <source>use a picture of exactly 1024 x 1024 pixels</source>
    <translation>use a picture of exactly 1024 x 1024 pixels</translation>
  </message>
  <message id="CLI_TOO_LARGE">
    <source>is larger than what can be processed safely</source>
    <translation>is larger than what can be processed safely</translation>
  </message>
  <message id="CLI_TOO_LARGE_ADVICE">
    <source>use a smaller file</source>
    <translation>use a smaller file</translation>
  </message>
  <message id="CLI_CANNOT_CREATE">
    <source>could not be created</source>
    <translation>could not be created</translation>
  </message>
  <message id="CLI_CANNOT_CREATE_ADVICE">
    <source>check the destination's permissions and free space</source>
    <translation>check the destination's permissions and free space</translation>
  </message>
  <message id="CLI_CANNOT_WRITE">
    <source>could not be written</source>
    <translation>could not be written</translation>
  </message>
  <message id="CLI_CANNOT_WRITE_ADVICE">
    <source>check the destination's permissions and free space, then run again</source>
    <translation>check the destination's permissions and free space, then run again</translation>
  </message>
  <message id="CLI_NOT_AN_ARCHIVE">
    <source>is not a readable zip archive</source>
    <translation>is not a readable zip archive</translation>
  </message>
  <message id="CLI_NOT_AN_ARCHIVE_ADVICE">
    <source>use an undamaged archive</source>
    <translation>use an undamaged archive</translation>
  </message>
  <message id="CLI_MISSING_CONTENT">
    <source>lacks what it has to contain</source>
    <translation>lacks what it has to contain</translation>
  </message>
  <message id="CLI_MISSING_CONTENT_ADVICE">
    <source>check how it was made</source>
    <translation>check how it was made</translation>
  </message>
  <message id="CLI_NOT_READABLE">
    <source>could not be read</source>
    <translation>could not be read</translation>
  </message>
  <message id="CLI_NOT_READABLE_ADVICE">
    <source>check that the file is undamaged</source>
    <translation>check that the file is undamaged</translation>
  </message>
  <message id="CLI_NO_REGULAR_FILE_ADVICE">
    <source>copy what it holds into a file first</source>
    <translation>copy what it holds into a file first</translation>
  </message>
  <message id="CLI_INVALID_VALUE">
    <source>is not accepted</source>
    <translation>is not accepted</translation>
  </message>
  <message id="CLI_INVALID_VALUE_ADVICE">
    <source>see --help</source>
    <translation>see --help</translation>
  </message>
  <message id="CLI_HIGH_DYNAMIC_RANGE">
    <source>has colors of high dynamic range</source>
    <translation>has colors of high dynamic range</translation>
  </message>
  <message id="CLI_HIGH_DYNAMIC_RANGE_ADVICE">
    <source>convert it to sRGB or Display P3 first</source>
    <translation>convert it to sRGB or Display P3 first</translation>
  </message>
  <message id="CLI_NOT_MARKED">
    <source>is not a .png file marked @2x or -hd</source>
    <translation>is not a .png file marked @2x or -hd</translation>
  </message>
  <message id="CLI_NOT_MARKED_ADVICE">
    <source>rename it or leave it out</source>
    <translation>rename it or leave it out</translation>
  </message>
  <message id="CLI_WOULD_REPLACE">
    <source>is one of the pictures to be scaled down</source>
    <translation>is one of the pictures to be scaled down</translation>
  </message>
  <message id="CLI_WOULD_REPLACE_ADVICE">
    <source>choose another folder, or allow it with --overwrite</source>
    <translation>choose another folder, or allow it with --overwrite</translation>
  </message>
  <message id="CLI_EXISTS">
    <source>is there already</source>
    <translation>is there already</translation>
  </message>
  <message id="CLI_EXISTS_ADVICE">
    <source>choose another folder, or replace it with --overwrite</source>
    <translation>choose another folder, or replace it with --overwrite</translation>
  </message>
  <message id="CLI_NAME_TAKEN">
    <source>its half has the name of another half and gets a number</source>
    <translation>its half has the name of another half and gets a number</translation>
  </message>
  <message id="CLI_NAME_TAKEN_ADVICE">
    <source>rename one of the two; if they are in different folders, --out with the folder above both keeps them apart</source>
    <translation>rename one of the two; if they are in different folders, --out with the folder above both keeps them apart</translation>
  </message>
  <message id="CLI_NO_MARKED_PICTURE">
    <source>holds no .png marked @2x or -hd</source>
    <translation>holds no .png marked @2x or -hd</translation>
  </message>
  <message id="CLI_NO_WORKING_FOLDER">
    <source>the working folder has been removed</source>
    <translation>the working folder has been removed</translation>
  </message>
  <message id="CLI_MISSING_FILES">
    <source>missing in [FOLDER]: [FILES]</source>
    <translation>missing in [FOLDER]: [FILES]</translation>
  </message>
  <message id="CLI_INTERRUPTED">
    <source>interrupted; [DONE] of [TOTAL] files are whole</source>
    <translation>interrupted; [DONE] of [TOTAL] files are whole</translation>
  </message>
  <message id="CLI_INTERRUPTED_ADVICE">
    <source>run it again for the rest</source>
    <translation>run it again for the rest</translation>
  </message>
  <message id="CLI_STANDARD_INPUT">
    <source>standard input</source>
    <translation>standard input</translation>
  </message>
  <message id="CLI_STANDARD_OUTPUT">
    <source>standard output</source>
    <translation>standard output</translation>
  </message>
  <message id="CLI_STANDARD_OUTPUT_ADVICE">
    <source>check where it goes</source>
    <translation>check where it goes</translation>
  </message>
  <message id="CLI_DOWNSCALE_SOURCE_STAYS">
    <source>choose another folder</source>
    <translation>choose another folder</translation>
  </message>
  <message id="CLI_DRY_EXISTS">
    <source>exists, would be left as it is</source>
    <translation>exists, would be left as it is</translation>
  </message>
  <message id="CLI_DOWNSCALE_KEPT">
    <source>left as they are: [COUNT] files that are there already; replace them with --overwrite</source>
    <translation>left as they are: [COUNT] files that are there already; replace them with --overwrite</translation>
  </message>
  <message id="CLI_DRY_REPLACES">
    <source>exists, would be replaced</source>
    <translation>exists, would be replaced</translation>
  </message>
  <message id="CLI_NO_COLOR">
    <source>is no color code</source>
    <translation>is no color code</translation>
  </message>
  <message id="CLI_NO_COLOR_ADVICE">
    <source>give three or six hexadecimal digits, with or without #, such as #abc or #34485e, or add --form for a color in any form</source>
    <translation>give three or six hexadecimal digits, with or without #, such as #abc or #34485e, or add --form for a color in any form</translation>
  </message>
  <message id="CLI_NOT_NAMED_IPA">
    <source>the name does not end in .ipa, .app or .xcarchive</source>
    <translation>the name does not end in .ipa, .app or .xcarchive</translation>
  </message>
  <message id="CLI_NOT_NAMED_IPA_ADVICE">
    <source>rename it so that it ends in one of these, in small letters</source>
    <translation>rename it so that it ends in one of these, in small letters</translation>
  </message>
  <message id="CLI_DAMAGED_ENTRY">
    <source>[ENTRY] is damaged or encrypted</source>
    <translation>[ENTRY] is damaged or encrypted</translation>
  </message>
  <message id="CLI_DAMAGED_ENTRY_ADVICE">
    <source>pack the app again</source>
    <translation>pack the app again</translation>
  </message>
  <message id="CLI_NO_INFO_PLIST">
    <source>has no readable Info.plist, so nothing is known of the app</source>
    <translation>has no readable Info.plist, so nothing is known of the app</translation>
  </message>
  <message id="CLI_NO_ICON">
    <source>has no icon that can be shown, so none was written</source>
    <translation>has no icon that can be shown, so none was written</translation>
  </message>
  <message id="CLI_NONE">
    <source>none</source>
    <translation>none</translation>
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
    <translation>Platform</translation>
  </message>
  <message id="CLI_FACT_MINIMUM_OS">
    <source>Minimum OS</source>
    <translation>Minimum OS</translation>
  </message>
  <message id="CLI_FACT_IDENTIFIER">
    <source>Bundle identifier</source>
    <translation>Bundle identifier</translation>
  </message>
  <message id="CLI_FACT_BUILD">
    <source>Build</source>
    <translation>Build</translation>
  </message>
  <message id="CLI_FACT_LOCALIZATIONS">
    <source>Localizations</source>
    <translation>Localizations</translation>
  </message>
  <message id="CLI_FACT_URL_SCHEMES">
    <source>URL schemes</source>
    <translation>URL schemes</translation>
  </message>
  <message id="CLI_FACT_FACEBOOK">
    <source>Facebook app ID</source>
    <translation>Facebook app ID</translation>
  </message>
  <message id="CLI_CHECK_VALID">
    <source>valid</source>
    <translation>valid</translation>
  </message>
  <message id="CLI_CHECK_INVALID">
    <source>INVALID</source>
    <translation>INVALID</translation>
  </message>
  <message id="CLI_CHECK_PRESENT">
    <source>present</source>
    <translation>present</translation>
  </message>
  <message id="CLI_CHECK_ABSENT">
    <source>absent</source>
    <translation>absent</translation>
  </message>
  <message id="CLI_CHECK_ICONS">
    <source>icons</source>
    <translation>icons</translation>
  </message>
  <message id="CLI_CHECK_MISSING">
    <source>missing [SIZES]</source>
    <translation>missing [SIZES]</translation>
  </message>
  <message id="CLI_CHECK_LAUNCH_IMAGES">
    <source>launch images</source>
    <translation>launch images</translation>
  </message>
  <message id="CLI_CHECK_NONE_OF">
    <source>none of [SIZES]</source>
    <translation>none of [SIZES]</translation>
  </message>
  <message id="CLI_CHECK_IDENTIFIER">
    <source>bundle identifier</source>
    <translation>bundle identifier</translation>
  </message>
  <message id="CLI_CHECK_NOT_IN_PROFILE">
    <source>not in the provisioning profile</source>
    <translation>not in the provisioning profile</translation>
  </message>
  <message id="CLI_CHECK_LOCALIZATIONS">
    <source>localizations</source>
    <translation>localizations</translation>
  </message>
  <message id="CLI_NO_DISPLAY">
    <source>no display to open the window on; these commands work without one: [WORDS]</source>
    <translation>no display to open the window on; these commands work without one: [WORDS]</translation>
  </message>
  <message id="CLI_COLOR_FORM">
    <source>Today's forms to print, several separated by commas: [WORDS]; TEXT is understood in any of them, or as a CSS name</source>
    <translation>Today's forms to print, several separated by commas: [WORDS]; TEXT is understood in any of them, or as a CSS name</translation>
  </message>
  <message id="CLI_COLOR_ALL">
    <source>Print every form of today, each with its name</source>
    <translation>Print every form of today, each with its name</translation>
  </message>
  <message id="CLI_COLOR_P3">
    <source>Print forms that have one in their Display P3 variant</source>
    <translation>Print forms that have one in their Display P3 variant</translation>
  </message>
  <message id="CLI_COLOR_CONTRAST">
    <source>Judge the contrast with another color by WCAG 2</source>
    <translation>Judge the contrast with another color by WCAG 2</translation>
  </message>
  <message id="CLI_COLOR_NO_FORM">
    <source>is no color in a form that is known</source>
    <translation>is no color in a form that is known</translation>
  </message>
  <message id="CLI_COLOR_NO_FORM_ADVICE">
    <source>write it as code would, such as #336699, rgb(51 102 153) or Color(0xFF336699), or as a CSS name</source>
    <translation>write it as code would, such as #336699, rgb(51 102 153) or Color(0xFF336699), or as a CSS name</translation>
  </message>
  <message id="CLI_COLOR_CLIPPED">
    <source>[COLOR] is beyond sRGB; its sRGB forms are the nearest by component</source>
    <translation>[COLOR] is beyond sRGB; its sRGB forms are the nearest by component</translation>
  </message>
  <message id="CLI_DEVICES_TODAY">
    <source>Use the list of all models to this day; with --json each with its facts</source>
    <translation>Use the list of all models to this day; with --json each with its facts</translation>
  </message>
  <message id="CLI_DEVICES_FAMILY">
    <source>Of today's models, the families wanted: [WORDS]</source>
    <translation>Of today's models, the families wanted: [WORDS]</translation>
  </message>
  <message id="CLI_DEVICES_CHIP">
    <source>Of today's models, those with exactly this chip, such as A12, M4 or A19 Pro; A19 is another one</source>
    <translation>Of today's models, those with exactly this chip, such as A12, M4 or A19 Pro; A19 is another one</translation>
  </message>
  <message id="CLI_DEVICES_CAPABILITY">
    <source>Of today's models, those with what the app requires: [WORDS]</source>
    <translation>Of today's models, those with what the app requires: [WORDS]</translation>
  </message>
  <message id="CLI_DEVICES_SCREEN">
    <source>Of today's models, those of a screen class of the App Store: [WORDS]</source>
    <translation>Of today's models, those of a screen class of the App Store: [WORDS]</translation>
  </message>
  <message id="CLI_DEVICES_BIOMETRY">
    <source>Of today's models, those with the biometry: [WORDS]</source>
    <translation>Of today's models, those with the biometry: [WORDS]</translation>
  </message>
  <message id="CLI_DEVICES_WITH">
    <source>Of today's models, those that have: [WORDS]</source>
    <translation>Of today's models, those that have: [WORDS]</translation>
  </message>
  <message id="CLI_DEVICES_SEARCH">
    <source>Of today's models, those with these words in name or identifier</source>
    <translation>Of today's models, those with these words in name or identifier</translation>
  </message>
  <message id="CLI_DEVICES_MODEL">
    <source>Print one of today's models by name or identifier; may be given several times to compare</source>
    <translation>Print one of today's models by name or identifier; may be given several times to compare</translation>
  </message>
  <message id="CLI_DEVICES_DATA">
    <source>Read today's models from a list of one's own, in the form of the built-in one</source>
    <translation>Read today's models from a list of one's own, in the form of the built-in one</translation>
  </message>
  <message id="CLI_DEVICES_CSV">
    <source>Print today's models as comma-separated values</source>
    <translation>Print today's models as comma-separated values</translation>
  </message>
  <message id="CLI_DEVICES_NO_RANGE">
    <source>is no range of versions such as 15.., ..12 or 9..12.4</source>
    <translation>is no range of versions such as 15.., ..12 or 9..12.4</translation>
  </message>
  <message id="CLI_DEVICES_NO_CHIP">
    <source>is no chip in the list</source>
    <translation>is no chip in the list</translation>
  </message>
  <message id="CLI_DEVICES_IOS_TODAY">
    <source>add --today, which knows all versions</source>
    <translation>add --today, which knows all versions</translation>
  </message>
  <message id="CLI_DEVICES_NO_MODEL">
    <source>is no model in the list</source>
    <translation>is no model in the list</translation>
  </message>
  <message id="CLI_DEVICES_NO_MODEL_ADVICE">
    <source>name it as in lumora devices --today, or by identifier such as iPhone15,2</source>
    <translation>name it as in lumora devices --today, or by identifier such as iPhone15,2</translation>
  </message>
  <message id="CLI_DEVICES_DATA_ADVICE">
    <source>mend the list</source>
    <translation>mend the list</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_TEXT">
    <source>What the pictures say; {size}, {width} and {height} are filled in, \n begins a line</source>
    <translation>What the pictures say; {size}, {width} and {height} are filled in, \n begins a line</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_FOREGROUND">
    <source>Color of the text, in any form of lumora color</source>
    <translation>Color of the text, in any form of lumora color</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_BACKGROUND">
    <source>Color of the ground, in any form of lumora color</source>
    <translation>Color of the ground, in any form of lumora color</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_FORMAT">
    <source>File type: [WORDS]</source>
    <translation>File type: [WORDS]</translation>
  </message>
  <message id="CLI_QUALITY">
    <source>Pack WebP with loss, at a quality from 0 to 100</source>
    <translation>Pack WebP with loss, at a quality from 0 to 100</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_CHECK">
    <source>Write nothing; hold the screenshots in DIR against the stores' rules, with --set app-store or play against those</source>
    <translation>Write nothing; hold the screenshots in DIR against the stores' rules, with --set app-store or play against those</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_NO_SHAPE">
    <source>cannot be written in the labels' font</source>
    <translation>cannot be written in the labels' font</translation>
  </message>
  <message id="CLI_PLACEHOLDERS_CHECKED">
    <source>[COUNT] pictures looked at</source>
    <translation>[COUNT] pictures looked at</translation>
  </message>
  <message id="CLI_NEEDS">
    <source>[FIRST] goes with [SECOND] only</source>
    <translation>[FIRST] goes with [SECOND] only</translation>
  </message>
  <message id="CLI_DOWNSCALE_LAYOUT">
    <source>Make all missing densities of the pictures in the folders, filed as in projects for: [WORDS]; ios where none is given</source>
    <translation>Make all missing densities of the pictures in the folders, filed as in projects for: [WORDS]; ios where none is given</translation>
  </message>
  <message id="CLI_DOWNSCALE_FROM">
    <source>Density to scale from, such as 3x or xxxhdpi, or svg for the drawings in the folders; the largest of each picture where none is given</source>
    <translation>Density to scale from, such as 3x or xxxhdpi, or svg for the drawings in the folders; the largest of each picture where none is given</translation>
  </message>
  <message id="CLI_DOWNSCALE_TO_SCALES">
    <source>Densities to make, several separated by commas, such as 2x,1x</source>
    <translation>Densities to make, several separated by commas, such as 2x,1x</translation>
  </message>
  <message id="CLI_DOWNSCALE_FORMAT">
    <source>File type of the densities: [WORDS]; that of the source where none is given</source>
    <translation>File type of the densities: [WORDS]; that of the source where none is given</translation>
  </message>
  <message id="CLI_DOWNSCALE_ROUNDED">
    <source>rounded to whole pixels</source>
    <translation>rounded to whole pixels</translation>
  </message>
  <message id="CLI_DOWNSCALE_NO_SCALE">
    <source>is no density; give 1x, 1.5x, 2x, 3x, 4x or a name such as xxhdpi</source>
    <translation>is no density; give 1x, 1.5x, 2x, 3x, 4x or a name such as xxhdpi</translation>
  </message>
  <message id="CLI_DOWNSCALE_NO_SOURCE_SCALE">
    <source>is no density; give 1x, 1.5x, 2x, 3x, 4x, a name such as xxhdpi, or svg</source>
    <translation>is no density; give 1x, 1.5x, 2x, 3x, 4x, a name such as xxhdpi, or svg</translation>
  </message>
  <message id="CLI_DOWNSCALE_NOT_BELOW">
    <source>[SCALE] is not below [FROM]</source>
    <translation>[SCALE] is not below [FROM]</translation>
  </message>
  <message id="CLI_DOWNSCALE_NOT_OF_LAYOUT">
    <source>[SCALE] has no place in the layout [LAYOUT]</source>
    <translation>[SCALE] has no place in the layout [LAYOUT]</translation>
  </message>
  <message id="CLI_DOWNSCALE_SOURCES_ADVICE">
    <source>use PNG or WebP files that state their density, such as logo@3x.png, SVG drawings, or folders of them</source>
    <translation>use PNG or WebP files that state their density, such as logo@3x.png, SVG drawings, or folders of them</translation>
  </message>
  <message id="DETAIL_SVG_ENTITIES">
    <source>it declares entities; save it as plain SVG</source>
    <translation>it declares entities; save it as plain SVG</translation>
  </message>
  <message id="DETAIL_SVG_STYLE_SHEET">
    <source>it names a style sheet outside of it; save it as plain SVG</source>
    <translation>it names a style sheet outside of it; save it as plain SVG</translation>
  </message>
  <message id="DETAIL_SVG_LINE">
    <source>[ERROR] in line [LINE]</source>
    <translation>[ERROR] in line [LINE]</translation>
  </message>
  <message id="DETAIL_SVG_EMPTY">
    <source>it holds no element</source>
    <translation>it holds no element</translation>
  </message>
  <message id="DETAIL_SVG_TOO_MUCH">
    <source>its shapes come to more than can be drawn in reasonable time</source>
    <translation>its shapes come to more than can be drawn in reasonable time</translation>
  </message>
  <message id="DETAIL_NO_SVG">
    <source>it is no SVG drawing</source>
    <translation>it is no SVG drawing</translation>
  </message>
  <message id="DETAIL_SVG_SCRIPT">
    <source>it holds a script or a foreign object; save it as plain SVG</source>
    <translation>it holds a script or a foreign object; save it as plain SVG</translation>
  </message>
  <message id="DETAIL_SVG_TEXT">
    <source>it holds text, which looks different on every machine; turn it into paths</source>
    <translation>it holds text, which looks different on every machine; turn it into paths</translation>
  </message>
  <message id="DETAIL_SVG_ANIMATED">
    <source>it is animated; save one picture of it</source>
    <translation>it is animated; save one picture of it</translation>
  </message>
  <message id="DETAIL_SVG_OUTSIDE">
    <source>it names something outside of it, [TARGET]; embed it</source>
    <translation>it names something outside of it, [TARGET]; embed it</translation>
  </message>
  <message id="DETAIL_SVG_PICTURE_BROKEN">
    <source>a picture inside it cannot be read</source>
    <translation>a picture inside it cannot be read</translation>
  </message>
  <message id="DETAIL_SVG_PICTURE_LARGE">
    <source>a picture inside it is too large</source>
    <translation>a picture inside it is too large</translation>
  </message>
  <message id="DETAIL_SVG_STYLE_OUTSIDE">
    <source>its style names something outside of it; embed it</source>
    <translation>its style names something outside of it; embed it</translation>
  </message>
  <message id="DETAIL_SVG_ENDLESS">
    <source>a shape of it repeats itself without end</source>
    <translation>a shape of it repeats itself without end</translation>
  </message>
  <message id="DETAIL_SVG_NO_SIZE">
    <source>it has no size; give it a viewBox</source>
    <translation>it has no size; give it a viewBox</translation>
  </message>
  <message id="DETAIL_SVG_NOT_SQUARE">
    <source>[WIDTH] x [HEIGHT], not square</source>
    <translation>[WIDTH] x [HEIGHT], not square</translation>
  </message>
  <message id="DETAIL_MAUI_SVG">
    <source>a .NET MAUI project takes an SVG file</source>
    <translation>a .NET MAUI project takes an SVG file</translation>
  </message>
  <message id="DETAIL_PROGRAM">
    <source>it is a program that only Expo runs</source>
    <translation>it is a program that only Expo runs</translation>
  </message>
  <message id="DETAIL_NOT_PUT_BACK">
    <source>[REASON]could not be put back: [FILES]</source>
    <translation>[REASON]could not be put back: [FILES]</translation>
  </message>
  <message id="DETAIL_BOTH_WANT">
    <source>[FIRST] and [SECOND] both want [FILE]</source>
    <translation>[FIRST] and [SECOND] both want [FILE]</translation>
  </message>
  <message id="DETAIL_NO_ICON_PLACES">
    <source>[PROJECTS] without a place for icons; make its platforms first</source>
    <translation>[PROJECTS] without a place for icons; make its platforms first</translation>
  </message>
  <message id="DETAIL_UNNAMED_ICON_SETS">
    <source>no icon set is named in the project, and none is AppIcon: [SETS]</source>
    <translation>no icon set is named in the project, and none is AppIcon: [SETS]</translation>
  </message>
  <message id="DETAIL_ICON_SETS">
    <source>several icon sets: [SETS]</source>
    <translation>several icon sets: [SETS]</translation>
  </message>
  <message id="DETAIL_FLAVOR_SETS">
    <source>no icon set is AppIcon: [SETS]</source>
    <translation>no icon set is AppIcon: [SETS]</translation>
  </message>
  <message id="DETAIL_NO_ICON_SET">
    <source>neither a target with an icon nor an icon set is named [NAME]; there are [SETS]</source>
    <translation>neither a target with an icon nor an icon set is named [NAME]; there are [SETS]</translation>
  </message>
  <message id="DETAIL_MANIFEST_ICON">
    <source>android:icon="[NAME]" is no picture of the app</source>
    <translation>android:icon="[NAME]" is no picture of the app</translation>
  </message>
  <message id="DETAIL_NO_OPAQUE_COLOR">
    <source>no opaque color; write #RRGGBB or a name such as navy</source>
    <translation>no opaque color; write #RRGGBB or a name such as navy</translation>
  </message>
  <message id="DETAIL_NO_COLOR_OR_FILE">
    <source>neither an opaque color nor a file</source>
    <translation>neither an opaque color nor a file</translation>
  </message>
  <message id="DETAIL_NO_FILE_NAME">
    <source>files get this name: no slash, no dot at its beginning</source>
    <translation>files get this name: no slash, no dot at its beginning</translation>
  </message>
  <message id="DETAIL_NO_FLAVOR">
    <source>no flavor [NAME] in [PROJECTS]</source>
    <translation>no flavor [NAME] in [PROJECTS]</translation>
  </message>
  <message id="DETAIL_NO_TARGET">
    <source>no target [NAME] in [PROJECTS]</source>
    <translation>no target [NAME] in [PROJECTS]</translation>
  </message>
  <message id="DETAIL_DAMAGED">
    <source>damaged</source>
    <translation>damaged</translation>
  </message>
  <message id="DETAIL_PQ_OR_HLG">
    <source>PQ or HLG</source>
    <translation>PQ or HLG</translation>
  </message>
  <message id="DETAIL_ENTRIES">
    <source>[COUNT] entries</source>
    <translation>[COUNT] entries</translation>
  </message>
  <message id="DETAIL_MORE_FILES">
    <source>more than [COUNT] files and folders</source>
    <translation>more than [COUNT] files and folders</translation>
  </message>
  <message id="DETAIL_ENTRY_UNOPENED">
    <source>entry [NUMBER] cannot be opened</source>
    <translation>entry [NUMBER] cannot be opened</translation>
  </message>
  <message id="DETAIL_ENTRY_UNDESCRIBED">
    <source>entry [NUMBER] has no readable description</source>
    <translation>entry [NUMBER] has no readable description</translation>
  </message>
  <message id="DETAIL_NO_ORDINARY_FILE">
    <source>no ordinary file</source>
    <translation>no ordinary file</translation>
  </message>
  <message id="DETAIL_MORE_UNPACKED">
    <source>more than [SIZE] MB unpacked</source>
    <translation>more than [SIZE] MB unpacked</translation>
  </message>
  <message id="DETAIL_DISK_NEARLY_FULL">
    <source>the disk is nearly full</source>
    <translation>the disk is nearly full</translation>
  </message>
  <message id="DETAIL_PACKAGE_NAME">
    <source>the name does not end in .ipa, .app or .xcarchive</source>
    <translation>the name does not end in .ipa, .app or .xcarchive</translation>
  </message>
  <message id="DETAIL_NO_APP">
    <source>no app in its Payload folder</source>
    <translation>no app in its Payload folder</translation>
  </message>
  <message id="DETAIL_NO_REGULAR_FILE">
    <source>not a regular file</source>
    <translation>not a regular file</translation>
  </message>
  <message id="DETAIL_NO_MEMORY">
    <source>not enough memory</source>
    <translation>not enough memory</translation>
  </message>
  <message id="DETAIL_UNKNOWN_COLOR_FORM">
    <source>no color in any form that is known</source>
    <translation>no color in any form that is known</translation>
  </message>
  <message id="DETAIL_EMPTY_PICTURE">
    <source>the picture is empty</source>
    <translation>the picture is empty</translation>
  </message>
  <message id="DETAIL_WEBP_ERROR">
    <source>WebP error [NUMBER]</source>
    <translation>WebP error [NUMBER]</translation>
  </message>
  <message id="DETAIL_MORE_PICTURES">
    <source>more than [COUNT] pictures</source>
    <translation>more than [COUNT] pictures</translation>
  </message>
  <message id="DETAIL_MORE_SIZES">
    <source>more than [COUNT] sizes</source>
    <translation>more than [COUNT] sizes</translation>
  </message>
  <message id="DETAIL_CAME_MEANWHILE">
    <source>a file of that name has come meanwhile</source>
    <translation>a file of that name has come meanwhile</translation>
  </message>
  <message id="DETAIL_CHANGED_SINCE">
    <source>it has changed since it was looked at</source>
    <translation>it has changed since it was looked at</translation>
  </message>
  <message id="DETAIL_NINE_PATCH">
    <source>a nine-patch picture</source>
    <translation>a nine-patch picture</translation>
  </message>
  <message id="DETAIL_SAME_FILE">
    <source>[FILE] gives the same file</source>
    <translation>[FILE] gives the same file</translation>
  </message>
  <message id="DETAIL_NO_DENSITY_PLACE">
    <source>not in a folder such as drawable-xxhdpi</source>
    <translation>not in a folder such as drawable-xxhdpi</translation>
  </message>
  <message id="DETAIL_TOO_MANY_PICTURES">
    <source>more than 20,000 pictures</source>
    <translation>more than 20,000 pictures</translation>
  </message>
  <message id="DETAIL_JPEG_NEEDS_FORMAT">
    <source>a JPEG picture, for which PNG or WebP must be chosen</source>
    <translation>a JPEG picture, for which PNG or WebP must be chosen</translation>
  </message>
  <message id="DETAIL_NO_SCALABLE">
    <source>no picture to scale down from</source>
    <translation>no picture to scale down from</translation>
  </message>
  <message id="DETAIL_MADE_NONE">
    <source>[PROGRAM] made none</source>
    <translation>[PROGRAM] made none</translation>
  </message>
  <message id="DETAIL_IS_MISSING">
    <source>[FILE] is missing</source>
    <translation>[FILE] is missing</translation>
  </message>
  <message id="DETAIL_NO_FILE_TYPE">
    <source>no such file type</source>
    <translation>no such file type</translation>
  </message>
  <!-- The rules for screenshots -->
  <message id="SHOT_RULE_SCREENSHOT_UNREADABLE">
    <source>The file is no picture that can be read</source>
    <translation>The file is no picture that can be read</translation>
  </message>
  <message id="SHOT_FIX_SCREENSHOT_UNREADABLE">
    <source>Save it again as PNG or JPEG</source>
    <translation>Save it again as PNG or JPEG</translation>
  </message>
  <message id="SHOT_RULE_SCREENSHOT_FORMAT">
    <source>Stores take PNG and JPEG only</source>
    <translation>Stores take PNG and JPEG only</translation>
  </message>
  <message id="SHOT_FIX_SCREENSHOT_FORMAT">
    <source>Save it as PNG</source>
    <translation>Save it as PNG</translation>
  </message>
  <message id="SHOT_RULE_SCREENSHOT_ALPHA">
    <source>A screenshot may have no alpha channel</source>
    <translation>A screenshot may have no alpha channel</translation>
  </message>
  <message id="SHOT_FIX_SCREENSHOT_ALPHA">
    <source>Save it without transparency, even where every pixel is opaque</source>
    <translation>Save it without transparency, even where every pixel is opaque</translation>
  </message>
  <message id="SHOT_RULE_SCREENSHOT_RGB">
    <source>A screenshot has to be in RGB</source>
    <translation>A screenshot has to be in RGB</translation>
  </message>
  <message id="SHOT_FIX_SCREENSHOT_RGB">
    <source>Convert it from inks or shades of gray to RGB</source>
    <translation>Convert it from inks or shades of gray to RGB</translation>
  </message>
  <message id="SHOT_RULE_SCREENSHOT_SIZE">
    <source>The size is one that neither store takes</source>
    <translation>The size is one that neither store takes</translation>
  </message>
  <message id="SHOT_FIX_SCREENSHOT_SIZE">
    <source>Take it on a device or simulator of a size in the stores' lists</source>
    <translation>Take it on a device or simulator of a size in the stores' lists</translation>
  </message>
  <message id="SHOT_RULE_APPSTORE_SIZE">
    <source>The App Store takes no screenshot of this size</source>
    <translation>The App Store takes no screenshot of this size</translation>
  </message>
  <message id="SHOT_FIX_APPSTORE_SIZE">
    <source>Take it on a device or simulator of a size in the store's list, such as 1320 x 2868 or 2064 x 2752</source>
    <translation>Take it on a device or simulator of a size in the store's list, such as 1320 x 2868 or 2064 x 2752</translation>
  </message>
  <message id="SHOT_RULE_APPSTORE_COUNT">
    <source>The App Store takes ten screenshots of a screen size</source>
    <translation>The App Store takes ten screenshots of a screen size</translation>
  </message>
  <message id="SHOT_FIX_APPSTORE_COUNT">
    <source>Leave the others out</source>
    <translation>Leave the others out</translation>
  </message>
  <message id="SHOT_RULE_APPSTORE_IPHONE">
    <source>iPhone screenshots are wanted at 6.9 inches, or else at 6.5</source>
    <translation>iPhone screenshots are wanted at 6.9 inches, or else at 6.5</translation>
  </message>
  <message id="SHOT_FIX_APPSTORE_IPHONE">
    <source>Add screenshots of 1320 x 2868, 1290 x 2796 or 1260 x 2736 pixels; the store scales them for the others</source>
    <translation>Add screenshots of 1320 x 2868, 1290 x 2796 or 1260 x 2736 pixels; the store scales them for the others</translation>
  </message>
  <message id="SHOT_RULE_APPSTORE_IPAD">
    <source>iPad screenshots are wanted at 13 inches</source>
    <translation>iPad screenshots are wanted at 13 inches</translation>
  </message>
  <message id="SHOT_FIX_APPSTORE_IPAD">
    <source>Add screenshots of 2064 x 2752 or 2048 x 2732 pixels; the store scales them for the others</source>
    <translation>Add screenshots of 2064 x 2752 or 2048 x 2732 pixels; the store scales them for the others</translation>
  </message>
  <message id="SHOT_RULE_PLAY_SIDE">
    <source>Play wants each side to have 320 to 3840 pixels</source>
    <translation>Play wants each side to have 320 to 3840 pixels</translation>
  </message>
  <message id="SHOT_FIX_PLAY_SIDE">
    <source>Scale it, or take it on another device</source>
    <translation>Scale it, or take it on another device</translation>
  </message>
  <message id="SHOT_RULE_PLAY_RATIO">
    <source>Play wants the long side to be at most twice the short one</source>
    <translation>Play wants the long side to be at most twice the short one</translation>
  </message>
  <message id="SHOT_FIX_PLAY_RATIO">
    <source>Crop it, or take it on a device of another shape</source>
    <translation>Crop it, or take it on a device of another shape</translation>
  </message>
  <message id="SHOT_RULE_PLAY_FEWEST">
    <source>Play wants two screenshots at least</source>
    <translation>Play wants two screenshots at least</translation>
  </message>
  <message id="SHOT_FIX_PLAY_FEWEST">
    <source>Add another</source>
    <translation>Add another</translation>
  </message>
  <message id="SHOT_RULE_PLAY_MOST">
    <source>Play takes eight screenshots of a kind of device</source>
    <translation>Play takes eight screenshots of a kind of device</translation>
  </message>
  <message id="SHOT_FIX_PLAY_MOST">
    <source>Leave the others out</source>
    <translation>Leave the others out</translation>
  </message>
  <message id="SHOT_RULE_PLAY_PROMOTION">
    <source>Play promotes apps with screenshots of 1080 pixels and 16:9</source>
    <translation>Play promotes apps with screenshots of 1080 pixels and 16:9</translation>
  </message>
  <message id="SHOT_FIX_PLAY_PROMOTION">
    <source>Add screenshots of 1080 x 1920 or 1920 x 1080 pixels</source>
    <translation>Add screenshots of 1080 x 1920 or 1920 x 1080 pixels</translation>
  </message>
  <message id="SHOT_RULE_PLAY_TABLET">
    <source>Play advises four screenshots or more of a tablet</source>
    <translation>Play advises four screenshots or more of a tablet</translation>
  </message>
  <message id="SHOT_FIX_PLAY_TABLET">
    <source>Add others</source>
    <translation>Add others</translation>
  </message>
  <message id="SHOT_RULE_PLAY_FEATURE_GRAPHIC">
    <source>The feature graphic has to be 1024 x 500 pixels</source>
    <translation>The feature graphic has to be 1024 x 500 pixels</translation>
  </message>
  <message id="SHOT_RULE_PLAY_PNG_24">
    <source>Google asks for PNG files of 24 bits a pixel</source>
    <translation>Google asks for PNG files of 24 bits a pixel</translation>
  </message>
  <message id="SHOT_FIX_PLAY_FEATURE_GRAPHIC">
    <source>Draw it in that size</source>
    <translation>Draw it in that size</translation>
  </message>
  <message id="SHOT_FIX_PLAY_PNG_24">
    <source>Save it as RGB with 8 bits a channel</source>
    <translation>Save it as RGB with 8 bits a channel</translation>
  </message>
  <message id="SHOT_RULE_SCREENSHOT_NONE">
    <source>There is no picture in the folder</source>
    <translation>There is no picture in the folder</translation>
  </message>
  <message id="SHOT_FIX_SCREENSHOT_NONE">
    <source>Name the folder that holds the screenshots</source>
    <translation>Name the folder that holds the screenshots</translation>
  </message>
  <message id="SHOT_HAS_ALPHA">
    <source>it has an alpha channel</source>
    <translation>it has an alpha channel</translation>
  </message>
  <message id="SHOT_OTHER_CHANNELS">
    <source>it has other channels</source>
    <translation>it has other channels</translation>
  </message>
  <message id="SHOT_SMALLER_ONLY">
    <source>smaller screens only</source>
    <translation>smaller screens only</translation>
  </message>
  <message id="SHOT_NO_PICTURE">
    <source>no picture</source>
    <translation>no picture</translation>
  </message>
  <message id="SHOT_COUNT_OF">
    <source>[COUNT] of [SCREEN]</source>
    <translation>[COUNT] of [SCREEN]</translation>
  </message>
  <message id="SHOT_ONE">
    <source>1 screenshot</source>
    <translation>1 screenshot</translation>
  </message>
  <message id="SHOT_COUNT">
    <source>[COUNT] screenshots</source>
    <translation>[COUNT] screenshots</translation>
  </message>
  <message id="SHOT_ERROR">
    <source>error</source>
    <translation>error</translation>
  </message>
  <message id="SHOT_WARNING">
    <source>warning</source>
    <translation>warning</translation>
  </message>
  <message id="SHOT_NOTE">
    <source>note</source>
    <translation>note</translation>
  </message>

  <!-- More on failures -->
  <message id="DETAIL_PIXELS">
    <source>[WIDTH] x [HEIGHT] pixels</source>
    <translation>[WIDTH] x [HEIGHT] pixels</translation>
  </message>
  <message id="DETAIL_PIXELS_NOT_WANTED">
    <source>[WIDTH] x [HEIGHT] pixels, not [WANTED_WIDTH] x [WANTED_HEIGHT] pixels</source>
    <translation>[WIDTH] x [HEIGHT] pixels, not [WANTED_WIDTH] x [WANTED_HEIGHT] pixels</translation>
  </message>
  <message id="DETAIL_PALETTE">
    <source>palette</source>
    <translation>palette</translation>
  </message>
  <message id="DETAIL_16_BITS">
    <source>16 bits a channel</source>
    <translation>16 bits a channel</translation>
  </message>
  <message id="DETAIL_INTERLACED">
    <source>interlaced</source>
    <translation>interlaced</translation>
  </message>
  <message id="DETAIL_OF_DP">
    <source>[FOUND] of [LIMIT] dp</source>
    <translation>[FOUND] of [LIMIT] dp</translation>
  </message>
  <message id="DETAIL_OF_PERCENT">
    <source>[FOUND] of [LIMIT] percent</source>
    <translation>[FOUND] of [LIMIT] percent</translation>
  </message>
  <message id="DETAIL_BYTES">
    <source>[COUNT] bytes</source>
    <translation>[COUNT] bytes</translation>
  </message>
  <message id="DETAIL_MORE_COLORS">
    <source>more than [COUNT] colors</source>
    <translation>more than [COUNT] colors</translation>
  </message>
  <message id="DETAIL_UNKNOWN_COLOR">
    <source>[NAME]: [COLOR] is no color that is known</source>
    <translation>[NAME]: [COLOR] is no color that is known</translation>
  </message>
  <message id="DETAIL_LINE">
    <source>line [LINE]</source>
    <translation>line [LINE]</translation>
  </message>
  <message id="DETAIL_UNKNOWN_COLOR_SET">
    <source>a color set with a color that is not known</source>
    <translation>a color set with a color that is not known</translation>
  </message>
  <message id="DETAIL_NO_COLOR">
    <source>no color in it</source>
    <translation>no color in it</translation>
  </message>
  <message id="DETAIL_QUOTATION_MARKS">
    <source>line [LINE]: quotation marks do not match</source>
    <translation>line [LINE]: quotation marks do not match</translation>
  </message>
  <message id="DETAIL_LONG_FIELD">
    <source>line [LINE]: a field of more than [COUNT] characters</source>
    <translation>line [LINE]: a field of more than [COUNT] characters</translation>
  </message>
  <message id="DETAIL_COLUMNS">
    <source>line [LINE]: [COUNT] columns are wanted</source>
    <translation>line [LINE]: [COUNT] columns are wanted</translation>
  </message>
  <message id="DETAIL_FIELD_EMPTY">
    <source>line [LINE]: [COLUMN] is empty</source>
    <translation>line [LINE]: [COLUMN] is empty</translation>
  </message>
  <message id="DETAIL_FIELD_NUMBER">
    <source>line [LINE]: [COLUMN] is no number from 1 to [MOST]</source>
    <translation>line [LINE]: [COLUMN] is no number from 1 to [MOST]</translation>
  </message>
  <message id="DETAIL_FIELD_INCHES">
    <source>line [LINE]: [COLUMN] is no number of inches from 1 to 100</source>
    <translation>line [LINE]: [COLUMN] is no number of inches from 1 to 100</translation>
  </message>
  <message id="DETAIL_FIELD_PRINTABLE">
    <source>line [LINE]: [COLUMN] holds characters that do not print</source>
    <translation>line [LINE]: [COLUMN] holds characters that do not print</translation>
  </message>
  <message id="DETAIL_FIELD_VERSION">
    <source>line [LINE]: [COLUMN] is no version such as 12.5.8</source>
    <translation>line [LINE]: [COLUMN] is no version such as 12.5.8</translation>
  </message>
  <message id="DETAIL_FIELD_DATE">
    <source>line [LINE]: [COLUMN] is no date such as 2022-09-16 or 2010-09</source>
    <translation>line [LINE]: [COLUMN] is no date such as 2022-09-16 or 2010-09</translation>
  </message>
  <message id="DETAIL_ARCHITECTURE_FLAG">
    <source>line [LINE]: arch and cap_arm64 contradict each other</source>
    <translation>line [LINE]: arch and cap_arm64 contradict each other</translation>
  </message>
  <message id="DETAIL_FIELD_ARCHITECTURE">
    <source>line [LINE]: arch is none of armv6, armv7, armv7s, arm64, arm64e</source>
    <translation>line [LINE]: arch is none of armv6, armv7, armv7s, arm64, arm64e</translation>
  </message>
  <message id="DETAIL_FIELD_BIOMETRY">
    <source>line [LINE]: [COLUMN] is none of none, touchid, faceid</source>
    <translation>line [LINE]: [COLUMN] is none of none, touchid, faceid</translation>
  </message>
  <message id="DETAIL_FIELD_HAVING">
    <source>line [LINE]: [COLUMN] is neither 0 nor 1 nor empty</source>
    <translation>line [LINE]: [COLUMN] is neither 0 nor 1 nor empty</translation>
  </message>
  <message id="DETAIL_FIELD_FLAG">
    <source>line [LINE]: [COLUMN] is neither 0 nor 1</source>
    <translation>line [LINE]: [COLUMN] is neither 0 nor 1</translation>
  </message>
  <message id="DETAIL_FOREIGN_MODEL">
    <source>line [LINE]: identifier is of no iPhone, iPad or iPod</source>
    <translation>line [LINE]: identifier is of no iPhone, iPad or iPod</translation>
  </message>
  <message id="DETAIL_VERSION_ORDER">
    <source>line [LINE]: maxOS comes before minOS</source>
    <translation>line [LINE]: maxOS comes before minOS</translation>
  </message>
  <message id="DETAIL_PART_OF_SCREEN">
    <source>line [LINE]: the screen's sizes are given in part</source>
    <translation>line [LINE]: the screen's sizes are given in part</translation>
  </message>
  <message id="DETAIL_RENDER_SIZE">
    <source>line [LINE]: render_width_px x render_height_px is not width_pt x height_pt times scale</source>
    <translation>line [LINE]: render_width_px x render_height_px is not width_pt x height_pt times scale</translation>
  </message>
  <message id="DETAIL_NOT_PORTRAIT">
    <source>line [LINE]: width_px x height_px is not in portrait</source>
    <translation>line [LINE]: width_px x height_px is not in portrait</translation>
  </message>
  <message id="DETAIL_MORE_THAN_MEBIBYTE">
    <source>more than 1 MiB</source>
    <translation>more than 1 MiB</translation>
  </message>
  <message id="DETAIL_NOT_UTF8">
    <source>not UTF-8 text</source>
    <translation>not UTF-8 text</translation>
  </message>
  <message id="DETAIL_HEADER">
    <source>line [LINE]: the header is wanted: [HEADER]</source>
    <translation>line [LINE]: the header is wanted: [HEADER]</translation>
  </message>
  <message id="DETAIL_MODEL_TWICE">
    <source>line [LINE]: [MODEL] is in line [FIRST] already</source>
    <translation>line [LINE]: [MODEL] is in line [FIRST] already</translation>
  </message>
  <message id="DETAIL_MORE_MODELS">
    <source>more than [COUNT] models</source>
    <translation>more than [COUNT] models</translation>
  </message>
  <message id="DETAIL_NO_MODEL">
    <source>no model in it</source>
    <translation>no model in it</translation>
  </message>
  <message id="DETAIL_NAME_NUMBERED">
    <source>[TARGET]; that name belongs to the half of [OTHER]</source>
    <translation>[TARGET]; that name belongs to the half of [OTHER]</translation>
  </message>
  <message id="DETAIL_NO_PICTURE">
    <source>no picture in it</source>
    <translation>no picture in it</translation>
  </message>
  <message id="CLI_INTERRUPTED_CHECK">
    <source>interrupted; [DONE] of [TOTAL] files are checked</source>
    <translation>interrupted; [DONE] of [TOTAL] files are checked</translation>
  </message>
</context>
</TS>
