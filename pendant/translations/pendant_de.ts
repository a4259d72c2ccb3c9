<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>pendant::Application</name>
    <message>
        <source>an object that is gone</source>
        <translation>ein Objekt, das es nicht mehr gibt</translation>
    </message>
    <message>
        <source>An event handler of %1 threw: %2</source>
        <translation>Eine Ereignisbehandlung von %1 warf eine Ausnahme: %2</translation>
    </message>
    <message>
        <source>The look of the whole pendant was changed by %1 of the application; that was taken back. Style your own widgets instead.</source>
        <translation>%1 der Anwendung hat das Aussehen des ganzen Bediengeräts geändert; das wurde zurückgenommen. Gestalten Sie stattdessen die eigenen Widgets.</translation>
    </message>
    <message>
        <source>a plugin</source>
        <translation>ein Plugin</translation>
    </message>
    <message>
        <source>Working folder: %1</source>
        <translation>Arbeitsordner: %1</translation>
    </message>
</context>
<context>
    <name>pendant::CallGuard</name>
    <message>
        <source>%1 threw: %2</source>
        <translation>%1 warf eine Ausnahme: %2</translation>
    </message>
    <message>
        <source>something unknown</source>
        <translation>etwas Unbekanntes</translation>
    </message>
    <message>
        <source>a value of type %1, which is no std::exception</source>
        <translation>ein Wert des Typs %1, der keine std::exception ist</translation>
    </message>
</context>
<context>
    <name>pendant::DeveloperButton</name>
    <message>
        <source>Developer dock (F12)</source>
        <translation>Entwicklerfenster (F12)</translation>
    </message>
</context>
<context>
    <name>pendant::DeveloperDock</name>
    <message>
        <source>Developer dock</source>
        <translation>Entwicklerfenster</translation>
    </message>
</context>
<context>
    <name>pendant::ElfHeader</name>
    <message>
        <source>64-bit Arm (aarch64)</source>
        <translation>64-Bit-Arm (aarch64)</translation>
    </message>
    <message>
        <source>32-bit x86</source>
        <translation>32-Bit-x86</translation>
    </message>
    <message>
        <source>32-bit Arm</source>
        <translation>32-Bit-Arm</translation>
    </message>
    <message>
        <source>a machine of type %1</source>
        <translation>eine Maschine vom Typ %1</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>is not an ELF file</source>
        <translation>ist keine ELF-Datei</translation>
    </message>
    <message>
        <source>is cut off in its ELF header</source>
        <translation>ist im ELF-Kopf abgeschnitten</translation>
    </message>
    <message>
        <source>is built for %1; this pendant runs on %2</source>
        <translation>ist für %1 gebaut; dieses Bediengerät läuft auf %2</translation>
    </message>
    <message>
        <source>is a 32-bit file; this pendant needs 64-bit ones</source>
        <translation>ist eine 32-Bit-Datei; dieses Bediengerät braucht 64-Bit-Dateien</translation>
    </message>
    <message>
        <source>is a big-endian file; this pendant needs little-endian ones</source>
        <translation>ist eine Big-Endian-Datei; dieses Bediengerät braucht Little-Endian-Dateien</translation>
    </message>
    <message>
        <source>is not a shared object</source>
        <translation>ist keine dynamische Bibliothek</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>is cut off: it has %1 bytes of at least %2</source>
        <translation>ist abgeschnitten: sie hat %1 von mindestens %2 Bytes</translation>
    </message>
</context>
<context>
    <name>pendant::HardKey</name>
    <message>
        <source>The key “%1” threw when it was pressed: %2</source>
        <translation>Die Taste „%1“ warf beim Drücken eine Ausnahme: %2</translation>
    </message>
    <message>
        <source>The key “%1” threw when it was released: %2</source>
        <translation>Die Taste „%1“ warf beim Loslassen eine Ausnahme: %2</translation>
    </message>
</context>
<context>
    <name>pendant::JogPage</name>
    <message>
        <source>Jog</source>
        <translation>Handverfahren</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>Achsen</translation>
    </message>
    <message>
        <source>Cartesian</source>
        <translation>Kartesisch</translation>
    </message>
    <message>
        <source>External axes</source>
        <translation>Zusatzachsen</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>Work object</source>
        <translation>Werkobjekt</translation>
    </message>
    <message>
        <source>No robot</source>
        <translation>Kein Roboter</translation>
    </message>
    <message>
        <source>The axes of the robot are jogged here. This controller tells of none: give its cell file a section “robot”.</source>
        <translation>Hier werden die Achsen des Roboters von Hand verfahren. Diese Steuerung nennt keine: Ihre Zellendatei braucht einen Abschnitt „robot“.</translation>
    </message>
    <message>
        <source>No connection to the robot</source>
        <translation>Keine Verbindung zum Roboter</translation>
    </message>
    <message>
        <source>The axes of the robot are jogged here as soon as the links to the bus and to the controller are up. “Links” in the developer dock (F12) brings them up.</source>
        <translation>Hier werden die Achsen des Roboters von Hand verfahren, sobald die Verbindungen zum Bus und zur Steuerung stehen. „Verbindungen“ im Entwicklerfenster (F12) stellt sie her.</translation>
    </message>
</context>
<context>
    <name>pendant::JogState</name>
    <message>
        <source>The robot is moving.</source>
        <translation>Der Roboter bewegt sich.</translation>
    </message>
    <message>
        <source>The robot stands still.</source>
        <translation>Der Roboter steht.</translation>
    </message>
    <message>
        <source>%1 is at its limit. Jog it the other way.</source>
        <translation>%1 ist an der Grenze. In die andere Richtung verfahren.</translation>
    </message>
    <message>
        <source>The arm does not reach further.</source>
        <translation>Weiter reicht der Arm nicht.</translation>
    </message>
    <message>
        <source>The arm is near a singularity. Jog the joints to get past it.</source>
        <translation>Der Arm ist nahe einer Singularität. Mit den Achsen daran vorbeifahren.</translation>
    </message>
    <message>
        <source>The robot stopped because the pendant was too busy to hold the key.</source>
        <translation>Der Roboter hielt an: Das Bediengerät war zu beschäftigt, um die Taste zu halten.</translation>
    </message>
    <message>
        <source>The robot stopped: %1</source>
        <translation>Der Roboter hielt an: %1</translation>
    </message>
</context>
<context>
    <name>pendant::KeyColumn</name>
    <message>
        <source>No keys in use</source>
        <translation>Keine Tasten belegt</translation>
    </message>
</context>
<context>
    <name>pendant::LinkCard</name>
    <message>
        <source>Bus</source>
        <translation>Bus</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Steht</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Unterbrochen</translation>
    </message>
    <message>
        <source>Take down</source>
        <translation>Unterbrechen</translation>
    </message>
    <message>
        <source>Bring up</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Nothing stands behind this link, so there is nothing to switch. The pendant puts the virtual controller there when it starts.</source>
        <translation>Hinter dieser Verbindung steht nichts, also gibt es nichts zu schalten. Das Bediengerät setzt beim Start die virtuelle Steuerung dahinter.</translation>
    </message>
    <message>
        <source>A plugin sees: values are read and set, commands are answered, and what changes on a watched key is delivered.</source>
        <translation>Ein Plugin sieht: Werte werden gelesen und gesetzt, Befehle werden beantwortet, und was sich unter einem beobachteten Schlüssel ändert, wird zugestellt.</translation>
    </message>
    <message>
        <source>A plugin sees: the bus says that it is not connected. Reading and commands come back at once, with nothing in them; what is set is lost; nothing is delivered. What was watched is watched again as soon as the link is up.</source>
        <translation>Ein Plugin sieht: Der Bus meldet, dass er nicht verbunden ist. Lesen und Befehle kommen sofort und leer zurück, Gesetztes geht verloren, nichts wird zugestellt. Was beobachtet wurde, wird wieder beobachtet, sobald die Verbindung steht.</translation>
    </message>
    <message>
        <source>A plugin sees: requests are answered, and the tasks for an established connection have run.</source>
        <translation>Ein Plugin sieht: Anfragen werden beantwortet, und die Aufgaben für eine hergestellte Verbindung sind gelaufen.</translation>
    </message>
    <message>
        <source>A plugin sees: it is told that the controller is gone, and the tasks for a lost connection have run. Requests are not sent and come back at once, with nothing in them.</source>
        <translation>Ein Plugin sieht: Es erfährt, dass die Steuerung weg ist, und die Aufgaben für eine verlorene Verbindung sind gelaufen. Anfragen werden nicht gesendet und kommen sofort und leer zurück.</translation>
    </message>
</context>
<context>
    <name>pendant::LinksPanel</name>
    <message>
        <source>Try what your plugin does when a link breaks and when it comes back.</source>
        <translation>Probieren Sie aus, was Ihr Plugin tut, wenn eine Verbindung abbricht und wenn sie wiederkommt.</translation>
    </message>
    <message>
        <source>Both down</source>
        <translation>Beide unterbrechen</translation>
    </message>
    <message>
        <source>Both up</source>
        <translation>Beide verbinden</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Verbindungen</translation>
    </message>
</context>
<context>
    <name>pendant::MessageLine</name>
    <message>
        <source>Messages: %1</source>
        <translation>Meldungen: %1</translation>
    </message>
    <message>
        <source>No messages</source>
        <translation>Keine Meldungen</translation>
    </message>
</context>
<context>
    <name>pendant::Messages</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
</context>
<context>
    <name>pendant::MessagesPage</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>Warnungen und Fehler</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Nothing of this kind</source>
        <translation>Nichts dieser Art</translation>
    </message>
    <message>
        <source>“All” shows the messages of the other levels.</source>
        <translation>„Alle“ zeigt die Meldungen der anderen Stufen.</translation>
    </message>
    <message>
        <source>No messages</source>
        <translation>Keine Meldungen</translation>
    </message>
    <message>
        <source>What the pendant and its plugins have to tell appears here, the newest first.</source>
        <translation>Hier erscheint, was das Bediengerät und seine Plugins melden, das Neueste zuerst.</translation>
    </message>
</context>
<context>
    <name>pendant::Navigation</name>
    <message>
        <source>No pages yet. “Start” shows how to add a plugin.</source>
        <translation>Noch keine Seiten. „Start“ zeigt, wie ein Plugin dazukommt.</translation>
    </message>
</context>
<context>
    <name>pendant::OptionReader</name>
    <message>
        <source>There is no display. Start the pendant under one, or let it play its tour with --tour.</source>
        <translation>Es gibt keine Anzeige. Starten Sie das Bediengerät unter einer solchen, oder lassen Sie mit --tour den Rundgang ablaufen.</translation>
    </message>
    <message>
        <source>A robot teach pendant with its plugins, without a robot.</source>
        <translation>Das Bediengerät eines Roboters mit seinen Plugins, ohne Roboter.</translation>
    </message>
    <message>
        <source>Load the plugins (*.so) of this folder. May be given several times.</source>
        <translation>Die Plugins (*.so) dieses Ordners laden. Darf mehrmals angegeben werden.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Walk all pages, leave pictures and a transcript in this folder, and end.</source>
        <translation>Alle Seiten abgehen, Bilder und ein Protokoll in diesem Ordner ablegen und enden.</translation>
    </message>
    <message>
        <source>The folder in which the pendant keeps logs, settings and projects.</source>
        <translation>Der Ordner, in dem das Bediengerät Protokolle, Einstellungen und Projekte ablegt.</translation>
    </message>
    <message>
        <source>Size of the window in pixels, 800x480 or more.</source>
        <translation>Größe des Fensters in Pixeln, mindestens 800x480.</translation>
    </message>
    <message>
        <source>Language: %1.</source>
        <translation>Sprache: %1.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>Appearance: %1.</source>
        <translation>Darstellung: %1.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>“%1” is no option. A folder of plugins is named with --plugins.</source>
        <translation>„%1“ ist keine Option. Ein Ordner mit Plugins wird mit --plugins angegeben.</translation>
    </message>
    <message>
        <source>--size takes width and height in pixels, 800x480 or more, such as 1280x800.</source>
        <translation>--size nimmt Breite und Höhe in Pixeln, mindestens 800x480, zum Beispiel 1280x800.</translation>
    </message>
    <message>
        <source>--language takes one of: %1.</source>
        <translation>--language nimmt eines von: %1.</translation>
    </message>
    <message>
        <source>--theme takes one of: %1.</source>
        <translation>--theme nimmt eines von: %1.</translation>
    </message>
    <message>
        <source>The cell that the virtual controller plays, a JSON file; without it the one that is built in.</source>
        <translation>Die Zelle, die die virtuelle Steuerung spielt, eine JSON-Datei; ohne diese die eingebaute.</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>pendant::OwnPages</name>
    <message>
        <source>Pendant</source>
        <translation>Bediengerät</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Plugins</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Jog</source>
        <translation>Handverfahren</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
</context>
<context>
    <name>pendant::PendantWindow</name>
    <message>
        <source>There is no page “%1” to show.</source>
        <translation>Es gibt keine Seite „%1“, die gezeigt werden könnte.</translation>
    </message>
    <message>
        <source>The entry “%1” of the navigation names no page.</source>
        <translation>Der Eintrag „%1“ der Navigation nennt keine Seite.</translation>
    </message>
    <message>
        <source>The entry “%1” of the navigation leads to the page “%2”, which does not exist.</source>
        <translation>Der Eintrag „%1“ der Navigation führt zur Seite „%2“, die es nicht gibt.</translation>
    </message>
</context>
<context>
    <name>pendant::PluginLoader</name>
    <message>
        <source>threw while it was loaded: %1</source>
        <translation>warf beim Laden eine Ausnahme: %1</translation>
    </message>
    <message>
        <source>cannot be loaded: %1</source>
        <translation>kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>does not exist.</source>
        <translation>gibt es nicht.</translation>
    </message>
    <message>
        <source>is not a folder.</source>
        <translation>ist kein Ordner.</translation>
    </message>
    <message>
        <source>holds no plugin file (*.so).</source>
        <translation>enthält keine Plugin-Datei (*.so).</translation>
    </message>
    <message>
        <source>points to a file that does not exist.</source>
        <translation>verweist auf eine Datei, die es nicht gibt.</translation>
    </message>
    <message>
        <source>registers no plugin, or only names that other plugins hold.</source>
        <translation>meldet kein Plugin an oder nur Namen, die andere Plugins schon haben.</translation>
    </message>
    <message>
        <source>cannot be read: %1.</source>
        <translation>kann nicht gelesen werden: %1.</translation>
    </message>
</context>
<context>
    <name>pendant::PluginSession</name>
    <message>
        <source>Its constructor threw: %1</source>
        <translation>Sein Konstruktor warf eine Ausnahme: %1</translation>
    </message>
    <message>
        <source>Nothing was made for it.</source>
        <translation>Es wurde nichts dafür angelegt.</translation>
    </message>
    <message>
        <source>It was deleted while the pendant was running.</source>
        <translation>Es wurde gelöscht, während das Bediengerät lief.</translation>
    </message>
    <message>
        <source>%1 threw: %2</source>
        <translation>%1 warf eine Ausnahme: %2</translation>
    </message>
</context>
<context>
    <name>pendant::PointValues</name>
    <message>
        <source>Joint</source>
        <translation>Achsen</translation>
    </message>
    <message>
        <source>Cartesian</source>
        <translation>Kartesisch</translation>
    </message>
    <message>
        <source>function %1, task %2</source>
        <translation>Funktion %1, Task %2</translation>
    </message>
    <message>
        <source>Joints, °</source>
        <translation>Achsen, °</translation>
    </message>
    <message>
        <source>External axes</source>
        <translation>Zusatzachsen</translation>
    </message>
    <message>
        <source>Position, mm</source>
        <translation>Position, mm</translation>
    </message>
    <message>
        <source>Angles, °</source>
        <translation>Winkel, °</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>Quaternion</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
</context>
<context>
    <name>pendant::PointsModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>Work object</source>
        <translation>Werkobjekt</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
</context>
<context>
    <name>pendant::PointsPage</name>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Select a point to see all its values.</source>
        <translation>Einen Punkt wählen, um alle seine Werte zu sehen.</translation>
    </message>
    <message>
        <source>No points</source>
        <translation>Keine Punkte</translation>
    </message>
    <message>
        <source>The taught points of the robot project are listed here. They are loaded when the links come up; a plugin teaches one with addCurrentPoint() where the robot stands: jog it there first.</source>
        <translation>Hier stehen die geteachten Punkte des Roboterprojekts. Sie werden geladen, sobald die Verbindungen stehen; ein Plugin teacht einen mit addCurrentPoint() dort, wo der Roboter steht: Ihn zuerst dorthin verfahren.</translation>
    </message>
</context>
<context>
    <name>pendant::RecordsPage</name>
    <message>
        <source>Find by name</source>
        <translation>Nach Namen suchen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Nothing of this name</source>
        <translation>Nichts mit diesem Namen</translation>
    </message>
    <message>
        <source>Clear the field above to see all.</source>
        <translation>Das Feld oben leeren, um alle zu sehen.</translation>
    </message>
</context>
<context>
    <name>pendant::SearchBar</name>
    <message>
        <source>Searching: %1 nodes looked at, %2 found.</source>
        <translation>Suche läuft: %1 Knoten angesehen, %2 gefunden.</translation>
    </message>
    <message>
        <source>The first %1 are shown. Type more to narrow the search.</source>
        <translation>Die ersten %1 werden gezeigt. Tippen Sie mehr, um die Suche einzugrenzen.</translation>
    </message>
    <message>
        <source>Stopped after %1 nodes, %2 found. Press Enter to search again.</source>
        <translation>Nach %1 Knoten angehalten, %2 gefunden. Die Eingabetaste sucht von neuem.</translation>
    </message>
    <message>
        <source>No key and no value contains “%1”. %2 nodes were looked at.</source>
        <translation>Kein Schlüssel und kein Wert enthält „%1“. %2 Knoten wurden angesehen.</translation>
    </message>
    <message>
        <source>%1 found in %2 nodes.</source>
        <translation>%1 gefunden in %2 Knoten.</translation>
    </message>
    <message>
        <source>Search keys and values</source>
        <translation>Schlüssel und Werte durchsuchen</translation>
    </message>
    <message>
        <source>Previous hit (Shift+F3)</source>
        <translation>Voriger Treffer (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Next hit (F3)</source>
        <translation>Nächster Treffer (F3)</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>Suche anhalten</translation>
    </message>
</context>
<context>
    <name>pendant::SearchHits</name>
    <message>
        <source>gone</source>
        <translation>nicht mehr da</translation>
    </message>
    <message>
        <source>Found at</source>
        <translation>Gefunden unter</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>pendant::SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Dark suits a dim hall, light a bright one.</source>
        <translation>Dunkel passt zu einer dunklen Halle, hell zu einer hellen.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Texts of plugins stay in the language of the plugin.</source>
        <translation>Texte von Plugins bleiben in der Sprache des Plugins.</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
</context>
<context>
    <name>pendant::SideBarButton</name>
    <message>
        <source>Side bar</source>
        <translation>Seitenleiste</translation>
    </message>
</context>
<context>
    <name>pendant::SideBarHeader</name>
    <message>
        <source>Close the side bar</source>
        <translation>Seitenleiste schließen</translation>
    </message>
</context>
<context>
    <name>pendant::StartPage</name>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>No plugins loaded</source>
        <translation>Keine Plugins geladen</translation>
    </message>
    <message>
        <source>The plugins of this pendant are listed here. Copy a plugin (a file *.so) into one of the folders below and start the pendant again, or name its folder with --plugins.</source>
        <translation>Hier stehen die Plugins dieses Bediengeräts. Kopieren Sie ein Plugin (eine Datei *.so) in einen der Ordner unten und starten Sie das Bediengerät neu, oder geben Sie seinen Ordner mit --plugins an.</translation>
    </message>
    <message>
        <source>Working folder: %1</source>
        <translation>Arbeitsordner: %1</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Not loaded</source>
        <translation>Nicht geladen</translation>
    </message>
    <message>
        <source>Running: %1</source>
        <translation>Laufen: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The plugins of this pendant are listed here. Start the pendant with --plugins and the folder that holds them (files *.so).</source>
        <translation>Hier stehen die Plugins dieses Bediengeräts. Starten Sie es mit --plugins und dem Ordner, in dem sie liegen (Dateien *.so).</translation>
    </message>
</context>
<context>
    <name>pendant::StatusItems</name>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Bus</source>
        <translation>Bus</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>Antriebe</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Betriebsart</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Werkzeug</translation>
    </message>
    <message>
        <source>Work object</source>
        <translation>Werkobjekt</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>On</source>
        <comment>drive power</comment>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <comment>drive power</comment>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>pendant::ThrownHandler</name>
    <message>
        <source>A callback on the bus key “%1” threw: %2</source>
        <translation>Ein Rückruf für den Busschlüssel „%1“ hat geworfen: %2</translation>
    </message>
    <message>
        <source>A network task “%1” threw: %2</source>
        <translation>Eine Netzwerkaufgabe „%1“ hat geworfen: %2</translation>
    </message>
    <message>
        <source>What listens to the answers to “%1” threw: %2</source>
        <translation>Ein Empfänger der Antworten auf „%1“ hat geworfen: %2</translation>
    </message>
    <message>
        <source>What listens to the link “%1” threw: %2</source>
        <translation>Ein Empfänger der Verbindung „%1“ hat geworfen: %2</translation>
    </message>
</context>
<context>
    <name>pendant::Tour</name>
    <message>
        <source>The pendant has started.</source>
        <translation>Das Bediengerät ist gestartet.</translation>
    </message>
    <message>
        <source>The plugins have been stopped.</source>
        <translation>Die Plugins sind beendet.</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; of the navigation has no page (%2).</source>
        <translation>Der Eintrag „%1“ der Navigation hat keine Seite (%2).</translation>
    </message>
    <message>
        <source>Page &quot;%1&quot;.</source>
        <translation>Seite „%1“.</translation>
    </message>
    <message>
        <source>Page &quot;%1&quot; of %2.</source>
        <translation>Seite „%1“ von %2.</translation>
    </message>
    <message>
        <source>Pressed &quot;%1&quot; on the page of %2.</source>
        <translation>„%1“ auf der Seite von %2 gedrückt.</translation>
    </message>
    <message>
        <source>%1: what &quot;%2&quot; opened did not go away when it was pressed again.</source>
        <translation>%1: Was „%2“ geöffnet hat, ist beim zweiten Drücken nicht verschwunden.</translation>
    </message>
    <message>
        <source>Side-bar page &quot;%1&quot; of %2.</source>
        <translation>Seite „%1“ von %2 in der Seitenleiste.</translation>
    </message>
    <message>
        <source>The physical keys &quot;%1&quot; of %2 are disabled now.</source>
        <translation>Die Tasten „%1“ von %2 sind jetzt gesperrt.</translation>
    </message>
    <message>
        <source>Physical keys &quot;%1&quot; of %2.</source>
        <translation>Tasten „%1“ von %2.</translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Developer dock, tab &quot;%1&quot;.</source>
        <translation>Entwicklerfenster, Reiter „%1“.</translation>
    </message>
</context>
<context>
    <name>pendant::TrafficFilter</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>pendant::TrafficModel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>Weg</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Sender</source>
        <translation>Absender</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
</context>
<context>
    <name>pendant::TrafficPanel</name>
    <message>
        <source>… cut here; what you save is whole.</source>
        <translation>… hier gekürzt; gespeichert wird das Ganze.</translation>
    </message>
    <message>
        <source>No traffic yet</source>
        <translation>Noch kein Verkehr</translation>
    </message>
    <message>
        <source>What the pendant and its plugins send over the bus and to the controller is listed here from the moment this window is open. Use the pendant, and it fills.</source>
        <translation>Was das Bediengerät und seine Plugins über den Bus und an die Steuerung senden, steht hier, sobald dieses Fenster offen ist. Benutzen Sie das Bediengerät, und die Liste füllt sich.</translation>
    </message>
    <message>
        <source>Nothing matches the filter</source>
        <translation>Nichts passt zum Filter</translation>
    </message>
    <message>
        <source>Other text, or all channels, brings back what is hidden.</source>
        <translation>Ein anderer Text oder alle Kanäle bringen zurück, was ausgeblendet ist.</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1 Einträge</translation>
    </message>
    <message>
        <source>%1 of %2 entries</source>
        <translation>%1 von %2 Einträgen</translation>
    </message>
    <message>
        <source>%1. Paused: nothing is recorded.</source>
        <translation>%1. Angehalten: nichts wird aufgezeichnet.</translation>
    </message>
    <message>
        <source>Save the traffic</source>
        <translation>Verkehr speichern</translation>
    </message>
    <message>
        <source>JSON lines (*.jsonl)</source>
        <translation>JSON-Zeilen (*.jsonl)</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Gespeichert als %1.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Part of key, sender, kind or value</source>
        <translation>Teil von Schlüssel, Absender, Art oder Wert</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation>Alle Kanäle</translation>
    </message>
    <message>
        <source>Bus</source>
        <translation>Bus</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save what is shown, one JSON object a line</source>
        <translation>Speichern, was gezeigt wird, ein JSON-Objekt je Zeile</translation>
    </message>
    <message>
        <source>Choose an entry to see its whole value.</source>
        <translation>Wählen Sie einen Eintrag, um seinen ganzen Wert zu sehen.</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Verkehr</translation>
    </message>
</context>
<context>
    <name>pendant::TrafficWords</name>
    <message>
        <source>out</source>
        <translation>hin</translation>
    </message>
    <message>
        <source>in</source>
        <translation>her</translation>
    </message>
    <message>
        <source>%1, not sent</source>
        <translation>%1, ungesendet</translation>
    </message>
</context>
<context>
    <name>pendant::Transcript</name>
    <message>
        <source>running</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>abgeschaltet</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>beendet</translation>
    </message>
    <message>
        <source>information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Plugins</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Plugin</source>
        <translation>Plugin</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Aufruf</translation>
    </message>
    <message>
        <source>Thrown</source>
        <translation>Ausnahme</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>None.</source>
        <translation>Keine.</translation>
    </message>
    <message>
        <source>Tour of the pendant</source>
        <translation>Rundgang durch das Bediengerät</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Nothing failed.</source>
        <translation>Nichts ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>Plugin files</source>
        <translation>Plugin-Dateien</translation>
    </message>
    <message>
        <source>Calls into plugins</source>
        <translation>Aufrufe in Plugins</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
</context>
<context>
    <name>pendant::TreeModel</name>
    <message>
        <source>The node is gone.</source>
        <translation>Den Knoten gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Geändert von</translation>
    </message>
    <message>
        <source>Changed at</source>
        <translation>Geändert um</translation>
    </message>
</context>
<context>
    <name>pendant::TreePanel</name>
    <message>
        <source>Edit value</source>
        <translation>Wert ändern</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>Schlüssel kopieren</translation>
    </message>
    <message>
        <source>Copy JSON</source>
        <translation>JSON kopieren</translation>
    </message>
    <message>
        <source>Edit the value of the chosen leaf (F2)</source>
        <translation>Den Wert des gewählten Blatts ändern (F2)</translation>
    </message>
    <message>
        <source>Copy the key of the chosen node (Ctrl+C)</source>
        <translation>Den Schlüssel des gewählten Knotens kopieren (Strg+C)</translation>
    </message>
    <message>
        <source>Copy the chosen node with everything below it as JSON (Ctrl+Shift+C)</source>
        <translation>Den gewählten Knoten mit allem darunter als JSON kopieren (Strg+Umschalt+C)</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>Baum</translation>
    </message>
</context>
<context>
    <name>pendant::ValueReader</name>
    <message>
        <source>“%1” is not a whole number, or too big a one.</source>
        <translation>„%1“ ist keine ganze Zahl oder eine zu große.</translation>
    </message>
    <message>
        <source>“%1” is not a number. It is written with a point, such as 12.5.</source>
        <translation>„%1“ ist keine Zahl. Sie wird mit Punkt geschrieben, etwa 12.5.</translation>
    </message>
    <message>
        <source>“%1” is neither true nor false.</source>
        <translation>„%1“ ist weder true noch false.</translation>
    </message>
    <message>
        <source>“%1” is not JSON. A text stands in quotes.</source>
        <translation>„%1“ ist kein JSON. Ein Text steht in Anführungszeichen.</translation>
    </message>
    <message>
        <source>“%1” is not a JSON array, and an array stands here.</source>
        <translation>„%1“ ist kein JSON-Array, und hier steht eines.</translation>
    </message>
    <message>
        <source>“%1” is not a JSON object, and an object stands here.</source>
        <translation>„%1“ ist kein JSON-Objekt, und hier steht eines.</translation>
    </message>
    <message>
        <source>“%1” is no value of the type %2.</source>
        <translation>„%1“ ist kein Wert des Typs %2.</translation>
    </message>
</context>
<context>
    <name>pendant::VariablesModel</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Persistent</source>
        <translation>Dauerhaft</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
</context>
<context>
    <name>pendant::VariablesPage</name>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>No variables</source>
        <translation>Keine Variablen</translation>
    </message>
    <message>
        <source>The variables of the robot project are listed here. They are loaded when the links come up; a plugin adds one with addVarData().</source>
        <translation>Hier stehen die Variablen des Roboterprojekts. Sie werden geladen, sobald die Verbindungen stehen; ein Plugin legt eine mit addVarData() an.</translation>
    </message>
</context>
<context>
    <name>pendant::WorkFolder</name>
    <message>
        <source>The folder %1 cannot be made. Name another one with --work.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden. Geben Sie mit --work einen anderen an.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be entered. Name another one with --work.</source>
        <translation>In den Ordner %1 kann nicht gewechselt werden. Geben Sie mit --work einen anderen an.</translation>
    </message>
</context>
</TS>
