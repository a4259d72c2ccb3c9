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
    <name>pendant::AssignWidget</name>
    <message>
        <source>Choose the variable, or type its name.</source>
        <translation>Wählen Sie die Variable oder geben Sie ihren Namen ein.</translation>
    </message>
    <message>
        <source>Type the value that the variable gets.</source>
        <translation>Geben Sie den Wert ein, den die Variable bekommt.</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Name of a variable</source>
        <translation>Name einer Variablen</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Such as 5, parts + 1 or &quot;text&quot;</source>
        <translation>Etwa 5, teile + 1 oder &quot;Text&quot;</translation>
    </message>
</context>
<context>
    <name>pendant::BuiltIns</name>
    <message>
        <source>Motion</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>Logic</source>
        <translation>Ablauf</translation>
    </message>
    <message>
        <source>Inputs and outputs</source>
        <translation>Ein- und Ausgänge</translation>
    </message>
    <message>
        <source>Joint move</source>
        <translation>Achsbewegung</translation>
    </message>
    <message>
        <source>Moves all axes at once to a point, the quickest way</source>
        <translation>Fährt alle Achsen zugleich zu einem Punkt, auf dem schnellsten Weg</translation>
    </message>
    <message>
        <source>Linear move</source>
        <translation>Linearbewegung</translation>
    </message>
    <message>
        <source>Moves the tool on a straight line to a point</source>
        <translation>Fährt das Werkzeug geradlinig zu einem Punkt</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Warten</translation>
    </message>
    <message>
        <source>Waits for a time</source>
        <translation>Wartet eine Zeit lang</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>Zuweisen</translation>
    </message>
    <message>
        <source>Gives a variable a value</source>
        <translation>Gibt einer Variablen einen Wert</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>A note for people; the robot passes it over</source>
        <translation>Ein Hinweis für Menschen; der Roboter übergeht ihn</translation>
    </message>
    <message>
        <source>Set digital output</source>
        <translation>Digitalausgang setzen</translation>
    </message>
    <message>
        <source>Switches an output on or off</source>
        <translation>Schaltet einen Ausgang ein oder aus</translation>
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
    <name>pendant::CommentWidget</name>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>What the lines below are for</source>
        <translation>Wozu die Zeilen darunter da sind</translation>
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
    <name>pendant::InstructionWidget</name>
    <message>
        <source>“%1” is no line of this instruction.</source>
        <translation>„%1“ ist keine Zeile dieser Anweisung.</translation>
    </message>
    <message>
        <source>This cannot be written into a line. Quotation marks come in pairs, and “//” begins a comment.</source>
        <translation>Das lässt sich nicht in eine Zeile schreiben. Anführungszeichen kommen paarweise vor, und mit „//“ beginnt ein Kommentar.</translation>
    </message>
</context>
<context>
    <name>pendant::IoDelegate</name>
    <message>
        <source>Forced</source>
        <translation>Erzwungen</translation>
    </message>
</context>
<context>
    <name>pendant::IoPage</name>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Eingänge</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Ausgänge</translation>
    </message>
    <message>
        <source>Registers</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Find by name</source>
        <translation>Nach Namen suchen</translation>
    </message>
    <message>
        <source>Release all</source>
        <translation>Alle freigeben</translation>
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
        <translation>Leeren Sie das Feld oben, um alle zu sehen.</translation>
    </message>
    <message>
        <source>No connection to the robot</source>
        <translation>Keine Verbindung zum Roboter</translation>
    </message>
    <message>
        <source>Signals and registers are listed here as soon as the link to the bus is up. “Links” in the developer dock (F12) brings it up.</source>
        <translation>Signale und Register stehen hier, sobald die Verbindung zum Bus besteht. „Verbindungen“ im Entwicklerfenster (F12) stellt sie her.</translation>
    </message>
    <message>
        <source>No registers</source>
        <translation>Keine Register</translation>
    </message>
    <message>
        <source>The registers of the controller are listed here and can be changed. Give its cell file a section “registers”.</source>
        <translation>Hier stehen die Register der Steuerung und können geändert werden. Geben Sie der Zellendatei einen Abschnitt „registers“.</translation>
    </message>
    <message>
        <source>No signals</source>
        <translation>Keine Signale</translation>
    </message>
    <message>
        <source>The signals of the controller are listed here: outputs can be switched, inputs forced. Give its cell file a section “signals”.</source>
        <translation>Hier stehen die Signale der Steuerung: Ausgänge lassen sich schalten, Eingänge erzwingen. Geben Sie der Zellendatei einen Abschnitt „signals“.</translation>
    </message>
    <message>
        <source>%1 forced</source>
        <translation>%1 erzwungen</translation>
    </message>
    <message>
        <source>Keep them</source>
        <translation>Beibehalten</translation>
    </message>
    <message>
        <source>The robot has not yet told its values: these may be old. It is asked again.</source>
        <translation>Der Roboter hat seine Werte noch nicht gemeldet: diese können veraltet sein. Er wird erneut gefragt.</translation>
    </message>
    <message>
        <source>No connection: these are the last values that were told. “Links” in the developer dock (F12) brings it up.</source>
        <translation>Keine Verbindung: dies sind die zuletzt gemeldeten Werte. „Verbindungen“ im Entwicklerfenster (F12) stellt sie her.</translation>
    </message>
    <message>
        <source>The robot has not yet told its values</source>
        <translation>Der Roboter hat seine Werte noch nicht gemeldet</translation>
    </message>
    <message>
        <source>It is asked again.</source>
        <translation>Er wird erneut gefragt.</translation>
    </message>
    <message>
        <source>Release %1</source>
        <translation>%1 freigeben</translation>
    </message>
</context>
<context>
    <name>pendant::IoRegisterDetails</name>
    <message>
        <source>One value a line</source>
        <translation>Ein Wert je Zeile</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Setzen</translation>
    </message>
    <message>
        <source>One value, an empty one</source>
        <translation>Ein Wert, ein leerer</translation>
    </message>
    <message>
        <source>No value</source>
        <translation>Kein Wert</translation>
    </message>
    <message>
        <source>A value has a line break in it: these values cannot be changed here.</source>
        <translation>Ein Wert enthält einen Zeilenumbruch: diese Werte lassen sich hier nicht ändern.</translation>
    </message>
    <message>
        <source>“Set” overwrites what came meanwhile: %1</source>
        <translation>„Setzen“ überschreibt, was inzwischen kam: %1</translation>
    </message>
</context>
<context>
    <name>pendant::IoRegistersModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
</context>
<context>
    <name>pendant::IoRegistersPart</name>
    <message>
        <source>Select a register to change its values.</source>
        <translation>Wählen Sie ein Register aus, um seine Werte zu ändern.</translation>
    </message>
</context>
<context>
    <name>pendant::IoSignalDetails</name>
    <message>
        <source>Force off</source>
        <translation>Aus erzwingen</translation>
    </message>
    <message>
        <source>Off</source>
        <comment>switch</comment>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Force on</source>
        <translation>Ein erzwingen</translation>
    </message>
    <message>
        <source>On</source>
        <comment>switch</comment>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Erzwingen</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Setzen</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Freigeben</translation>
    </message>
    <message>
        <source>Undo: the value of the signal</source>
        <translation>Rückgängig: der Wert des Signals</translation>
    </message>
</context>
<context>
    <name>pendant::IoSignalsModel</name>
    <message>
        <source>Digital inputs</source>
        <translation>Digitale Eingänge</translation>
    </message>
    <message>
        <source>Digital outputs</source>
        <translation>Digitale Ausgänge</translation>
    </message>
    <message>
        <source>Group inputs</source>
        <translation>Gruppeneingänge</translation>
    </message>
    <message>
        <source>Group outputs</source>
        <translation>Gruppenausgänge</translation>
    </message>
    <message>
        <source>Analogue inputs</source>
        <translation>Analoge Eingänge</translation>
    </message>
    <message>
        <source>Analogue outputs</source>
        <translation>Analoge Ausgänge</translation>
    </message>
    <message>
        <source>On</source>
        <comment>signal</comment>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <comment>signal</comment>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>pendant::IoSignalsPart</name>
    <message>
        <source>Select an input to force it.</source>
        <translation>Wählen Sie einen Eingang aus, um ihn zu erzwingen.</translation>
    </message>
    <message>
        <source>Select an output to switch it.</source>
        <translation>Wählen Sie einen Ausgang aus, um ihn zu schalten.</translation>
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
        <source>The robot stopped because its drives went off.</source>
        <translation>Der Roboter hielt an: Seine Antriebe wurden ausgeschaltet.</translation>
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
    <name>pendant::LineTypes</name>
    <message>
        <source>The pattern is no regular expression: %1, at character %2. No line belongs to this type.</source>
        <translation>Das Muster ist kein regulärer Ausdruck: %1, bei Zeichen %2. Keine Zeile gehört zu diesem Typ.</translation>
    </message>
    <message>
        <source>The pattern gave up on a line of %1 characters; the line counts as none of this type.</source>
        <translation>Das Muster hat bei einer Zeile von %1 Zeichen aufgegeben; die Zeile zählt nicht zu diesem Typ.</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstige</translation>
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
    <name>pendant::LogChooser</name>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>All days</source>
        <translation>Alle Tage</translation>
    </message>
</context>
<context>
    <name>pendant::LogFilterBar</name>
    <message>
        <source>All levels</source>
        <translation>Alle Stufen</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Without service</source>
        <translation>Ohne Dienst</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Dienst</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Other lines</source>
        <translation>Andere Zeilen</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>Modul</translation>
    </message>
    <message>
        <source>Find text</source>
        <translation>Text suchen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>pendant::LogPage</name>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Newest lines</source>
        <translation>Neueste Zeilen</translation>
    </message>
    <message>
        <source>Lines of the log</source>
        <translation>Zeilen des Logs</translation>
    </message>
    <message>
        <source>The line in full</source>
        <translation>Die ganze Zeile</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Suche läuft</translation>
    </message>
    <message>
        <source>What is found appears here, the newest first.</source>
        <translation>Was gefunden wird, erscheint hier, das Neueste zuerst.</translation>
    </message>
    <message>
        <source>Nothing matches the filter</source>
        <translation>Nichts passt zum Filter</translation>
    </message>
    <message>
        <source>All levels, or other text, brings back what is hidden.</source>
        <translation>Alle Stufen oder ein anderer Text bringen zurück, was verborgen ist.</translation>
    </message>
    <message>
        <source>The log cannot be read</source>
        <translation>Das Log ist nicht lesbar</translation>
    </message>
    <message>
        <source>Nothing logged yet</source>
        <translation>Noch keine Einträge</translation>
    </message>
    <message>
        <source>What plugins and the pendant write with their log streams appears here, from all “.log” files below this folder. The first line makes the file.</source>
        <translation>Was Plugins und Bediengerät mit ihren Log-Streams schreiben, erscheint hier, aus allen „.log“-Dateien unter diesem Ordner. Die erste Zeile legt die Datei an.</translation>
    </message>
    <message>
        <source>%1   %2 in %3 files</source>
        <translation>%1   %2 in %3 Dateien</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>Nothing is that late; these are the newest lines.</source>
        <translation>So spät gibt es nichts; dies sind die neuesten Zeilen.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Searching: %1 % looked at, %2 found</source>
        <translation>Suche: %1 % durchgesehen, %2 gefunden</translation>
    </message>
    <message>
        <source>The newest %1 are shown</source>
        <translation>Die neuesten %1 werden gezeigt</translation>
    </message>
    <message>
        <source>Stopped: %1 % looked at, %2 found</source>
        <translation>Abgebrochen: %1 % durchgesehen, %2 gefunden</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source>Live; %1 is written to as well</source>
        <translation>Live; auch in %1 wird geschrieben</translation>
    </message>
    <message>
        <source>There is no folder %1 yet. The first line that is logged makes it.</source>
        <translation>Den Ordner %1 gibt es noch nicht. Die erste protokollierte Zeile legt ihn an.</translation>
    </message>
    <message>
        <source>Nothing here opens folders. The log files are in %1</source>
        <translation>Hier öffnet nichts Ordner. Die Protokolldateien liegen in %1</translation>
    </message>
</context>
<context>
    <name>pendant::LogTimeBar</name>
    <message>
        <source>Time to go to</source>
        <translation>Zeit, zu der gesprungen wird</translation>
    </message>
    <message>
        <source>Go to this time</source>
        <translation>Zu dieser Zeit</translation>
    </message>
</context>
<context>
    <name>pendant::LogView</name>
    <message>
        <source>Service</source>
        <translation>Dienst</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
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
    <name>pendant::MoveWidget</name>
    <message>
        <source>Choose the point to move to, or type its name.</source>
        <translation>Wählen Sie den Punkt, zu dem gefahren wird, oder geben Sie seinen Namen ein.</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Zone</source>
        <translation>Überschleifen</translation>
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
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>How far from the point the robot may leave its path for the next move</source>
        <translation>Wie weit vor dem Punkt der Roboter seine Bahn für die nächste Bewegung verlassen darf</translation>
    </message>
    <message>
        <source>Name of a point</source>
        <translation>Name eines Punktes</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Gewähltes</translation>
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
    <name>pendant::OutputWidget</name>
    <message>
        <source>Digital output</source>
        <translation>Digitalausgang</translation>
    </message>
    <message>
        <source>Name of the signal</source>
        <translation>Name des Signals</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Choose the output, or type its name.</source>
        <translation>Wählen Sie den Ausgang, oder geben Sie seinen Namen ein.</translation>
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
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>Roboter</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projekte</translation>
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
    <name>pendant::Program</name>
    <message>
        <source>A line break cannot stand within a program line.</source>
        <translation>Ein Zeilenumbruch kann nicht in einer Programmzeile stehen.</translation>
    </message>
    <message>
        <source>A null character cannot stand in a program line.</source>
        <translation>Ein Nullzeichen kann nicht in einer Programmzeile stehen.</translation>
    </message>
    <message>
        <source>Half of a character cannot stand in a program line.</source>
        <translation>Ein halbes Zeichen kann nicht in einer Programmzeile stehen.</translation>
    </message>
    <message>
        <source>Insert line</source>
        <translation>Zeile einfügen</translation>
    </message>
    <message>
        <source>Delete line</source>
        <translation>Zeile löschen</translation>
    </message>
    <message>
        <source>Change line</source>
        <translation>Zeile ändern</translation>
    </message>
    <message>
        <source>Move line</source>
        <translation>Zeile verschieben</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramContent</name>
    <message>
        <source>Its creator threw: %1</source>
        <translation>Seine Erzeugung warf: %1</translation>
    </message>
    <message>
        <source>Its creator made no widget.</source>
        <translation>Seine Erzeugung lieferte kein Widget.</translation>
    </message>
    <message>
        <source>%1 threw: %2</source>
        <translation>%1 warf: %2</translation>
    </message>
    <message>
        <source>Its widget deleted itself in %1.</source>
        <translation>Sein Widget hat sich in %1 selbst gelöscht.</translation>
    </message>
    <message>
        <source>Its widget deleted itself.</source>
        <translation>Seine Bedienfläche hat sich selbst gelöscht.</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramDelegate</name>
    <message>
        <source>Empty line</source>
        <translation>Leere Zeile</translation>
    </message>
    <message>
        <source>No instruction knows this line</source>
        <translation>Keine Anweisung kennt diese Zeile</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramEditor</name>
    <message>
        <source>It can be moved and deleted.</source>
        <translation>Sie kann verschoben und gelöscht werden.</translation>
    </message>
    <message>
        <source>“%1” brings no widget to insert it with.</source>
        <translation>„%1“ bringt kein Widget zum Einfügen mit.</translation>
    </message>
    <message>
        <source>“%1” brings no widget to edit its lines.</source>
        <translation>„%1“ bringt kein Widget zum Bearbeiten seiner Zeilen mit.</translation>
    </message>
    <message>
        <source>“%1” could not be opened. The messages say why.</source>
        <translation>„%1“ konnte nicht geöffnet werden. Die Meldungen sagen, warum.</translation>
    </message>
    <message>
        <source>“%1” failed. The messages say why.</source>
        <translation>„%1“ ist gescheitert. Die Meldungen sagen, warum.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Also matches: %1</source>
        <translation>Passt auch zu: %1</translation>
    </message>
    <message>
        <source>It is kept as it is, and can be moved and deleted. It may belong to a plugin that is not loaded.</source>
        <translation>Sie bleibt, wie sie ist, und kann verschoben und gelöscht werden. Vielleicht gehört sie zu einem Plugin, das nicht geladen ist.</translation>
    </message>
    <message>
        <source>The instruction gives no reason.</source>
        <translation>Die Anweisung nennt keinen Grund.</translation>
    </message>
    <message>
        <source>Not applied yet</source>
        <translation>Noch nicht übernommen</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramFile</name>
    <message>
        <source>The program %1 was not opened: %2</source>
        <translation>Das Programm %1 wurde nicht geöffnet: %2</translation>
    </message>
    <message>
        <source>it is no file.</source>
        <translation>es ist keine Datei.</translation>
    </message>
    <message>
        <source>it is no text in UTF-8.</source>
        <translation>es ist kein Text in UTF-8.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>it is longer than %1 MiB.</source>
        <translation>es ist länger als %1 MiB.</translation>
    </message>
    <message>
        <source>The program was not written to %1: %2</source>
        <translation>Das Programm wurde nicht nach %1 geschrieben: %2</translation>
    </message>
    <message>
        <source>its folder cannot be made.</source>
        <translation>sein Ordner kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The program %1 cannot be read: %2</source>
        <translation>Das Programm %1 lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>the folder of its project is not there.</source>
        <translation>Der Ordner seines Projekts ist nicht da.</translation>
    </message>
    <message>
        <source>What stands in %1 now cannot be read, and nothing was written over it: %2</source>
        <translation>Was jetzt in %1 steht, lässt sich nicht lesen und wurde nicht überschrieben: %2</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramPage</name>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save the program (Ctrl+S)</source>
        <translation>Das Programm speichern (Strg+S)</translation>
    </message>
    <message>
        <source>Select a line to edit it.</source>
        <translation>Wählen Sie eine Zeile, um sie zu bearbeiten.</translation>
    </message>
    <message>
        <source>No lines yet</source>
        <translation>Noch keine Zeilen</translation>
    </message>
    <message>
        <source>The lines of the robot program stand here. Press “Insert” and choose an instruction for the first one.</source>
        <translation>Hier stehen die Zeilen des Roboterprogramms. Drücken Sie „Einfügen“ und wählen Sie die Anweisung für die erste.</translation>
    </message>
    <message>
        <source>Empty line</source>
        <translation>Leere Zeile</translation>
    </message>
    <message>
        <source>No instruction knows this line</source>
        <translation>Keine Anweisung kennt diese Zeile</translation>
    </message>
    <message>
        <source>No program is open</source>
        <translation>Kein Programm ist geöffnet</translation>
    </message>
    <message>
        <source>Becomes the first line</source>
        <translation>Wird die erste Zeile</translation>
    </message>
    <message>
        <source>Becomes line %1</source>
        <translation>Wird Zeile %1</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>● %1, not saved</source>
        <translation>● %1, nicht gespeichert</translation>
    </message>
    <message>
        <source>Changes from before that were not saved are in the program again. Save them, or take them back with undo.</source>
        <translation>Änderungen von früher, die nicht gespeichert waren, stehen wieder im Programm. Speichern Sie sie, oder nehmen Sie sie mit „Rückgängig“ zurück.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Not inserted: the line of “%1” that was begun.</source>
        <translation>Nicht eingefügt: die begonnene Zeile von „%1“.</translation>
    </message>
    <message>
        <source>Not applied: what was entered in line %1 is not in the program.</source>
        <translation>Nicht übernommen: Was in Zeile %1 eingegeben wurde, steht nicht im Programm.</translation>
    </message>
    <message>
        <source>The program cannot be read</source>
        <translation>Das Programm lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>The robot program of the open project is edited here. %1 Open a project, or make one, on the page “Projects”.</source>
        <translation>Hier wird das Roboterprogramm des offenen Projekts bearbeitet. %1 Öffnen Sie auf der Seite „Projekte“ ein Projekt, oder legen Sie eines an.</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramPicker</name>
    <message>
        <source>Choose an instruction</source>
        <translation>Anweisung wählen</translation>
    </message>
    <message>
        <source>Find by name</source>
        <translation>Nach Namen suchen</translation>
    </message>
    <message>
        <source>No instruction of this name</source>
        <translation>Keine Anweisung dieses Namens</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Darüber</translation>
    </message>
    <message>
        <source>Insert above the line at the cursor</source>
        <translation>Über der Zeile am Cursor einfügen</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramPlace</name>
    <message>
        <source>No project is open.</source>
        <translation>Kein Projekt ist geöffnet.</translation>
    </message>
    <message>
        <source>The project&apos;s name “%1” leads out of the workspace.</source>
        <translation>Der Projektname „%1“ führt aus dem Arbeitsbereich hinaus.</translation>
    </message>
    <message>
        <source>The program&apos;s name “%1” leads out of the project.</source>
        <translation>Der Programmname „%1“ führt aus dem Projekt hinaus.</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramStore</name>
    <message>
        <source>Take up unsaved changes</source>
        <translation>Ungespeicherte Änderungen übernehmen</translation>
    </message>
    <message>
        <source>It was renamed to %1.</source>
        <translation>Sie heißt jetzt %1.</translation>
    </message>
    <message>
        <source>The program was not written: its project was deleted.</source>
        <translation>Das Programm wurde nicht geschrieben: Sein Projekt wurde gelöscht.</translation>
    </message>
    <message>
        <source>There are unsaved changes of an older program %1. They were not taken up: it was saved since.</source>
        <translation>Es gibt nicht gespeicherte Änderungen eines älteren Programms %1. Sie wurden nicht aufgenommen: Es wurde seither gespeichert.</translation>
    </message>
    <message>
        <source>It cannot be renamed, so changes are kept by “Save” only.</source>
        <translation>Sie lässt sich nicht umbenennen; Änderungen bewahrt nur „Speichern“.</translation>
    </message>
    <message>
        <source>Changes that are not saved are not kept: %1 is in the way and cannot be renamed.</source>
        <translation>Nicht gespeicherte Änderungen werden nicht aufbewahrt: %1 ist im Weg und lässt sich nicht umbenennen.</translation>
    </message>
    <message>
        <source>The program was not written: somebody else has changed %1 since it was opened. Save once more to write yours; the other one is then kept beside it as %2.</source>
        <translation>Das Programm wurde nicht geschrieben: Jemand anders hat %1 seit dem Öffnen geändert. Speichern Sie noch einmal, um Ihres zu schreiben; das andere bleibt dann daneben als %2.</translation>
    </message>
    <message>
        <source>The program was not written: what somebody else has written cannot be copied to %1.</source>
        <translation>Das Programm wurde nicht geschrieben: Was jemand anders geschrieben hat, lässt sich nicht nach %1 kopieren.</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramTools</name>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Insert a line below (Ins)</source>
        <translation>Eine Zeile darunter einfügen (Einfg)</translation>
    </message>
    <message>
        <source>Delete the line (Del)</source>
        <translation>Die Zeile löschen (Entf)</translation>
    </message>
    <message>
        <source>Move the line up (Ctrl+Up)</source>
        <translation>Die Zeile nach oben verschieben (Strg+Auf)</translation>
    </message>
    <message>
        <source>Move the line down (Ctrl+Down)</source>
        <translation>Die Zeile nach unten verschieben (Strg+Ab)</translation>
    </message>
    <message>
        <source>Undo (Ctrl+Z)</source>
        <translation>Rückgängig (Strg+Z)</translation>
    </message>
    <message>
        <source>Undo: %1 (Ctrl+Z)</source>
        <translation>Rückgängig: %1 (Strg+Z)</translation>
    </message>
    <message>
        <source>Redo (Ctrl+Y)</source>
        <translation>Wiederholen (Strg+Y)</translation>
    </message>
    <message>
        <source>Redo: %1 (Ctrl+Y)</source>
        <translation>Wiederholen: %1 (Strg+Y)</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramTour</name>
    <message>
        <source>No program is open.</source>
        <translation>Kein Programm ist geöffnet.</translation>
    </message>
    <message>
        <source>“%1” is not offered.</source>
        <translation>„%1“ wird nicht angeboten.</translation>
    </message>
    <message>
        <source>A new line of “%1”.</source>
        <translation>Eine neue Zeile von „%1“.</translation>
    </message>
    <message>
        <source>“%1” refuses the line as it is.</source>
        <translation>„%1“ lehnt die Zeile so ab.</translation>
    </message>
    <message>
        <source>“%1” refuses the line with what the tour filled in.</source>
        <translation>„%1“ lehnt die Zeile auch mit dem ab, was der Rundgang eingetragen hat.</translation>
    </message>
    <message>
        <source>Inserted a line of “%1”.</source>
        <translation>Eine Zeile von „%1“ eingefügt.</translation>
    </message>
    <message>
        <source>The line of “%1” was applied as it was.</source>
        <translation>Die Zeile von „%1“ wurde unverändert übernommen.</translation>
    </message>
    <message>
        <source>Edited the line of “%1”.</source>
        <translation>Die Zeile von „%1“ bearbeitet.</translation>
    </message>
    <message>
        <source>Took the edit back.</source>
        <translation>Die Änderung zurückgenommen.</translation>
    </message>
    <message>
        <source>Saved the program.</source>
        <translation>Das Programm gespeichert.</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramWriter</name>
    <message>
        <source>“%1” refuses this line.</source>
        <translation>„%1“ lehnt diese Zeile ab.</translation>
    </message>
    <message>
        <source>The pattern of “%1” does not match the line that it made: it will not be recognised as one of its lines.</source>
        <translation>Das Muster von „%1“ passt nicht zu der Zeile, die es erzeugt hat: Sie wird nicht als eine seiner Zeilen erkannt werden.</translation>
    </message>
    <message>
        <source>Its line: %1</source>
        <translation>Seine Zeile: %1</translation>
    </message>
    <message>
        <source>“%1” made an empty line, which was not taken.</source>
        <translation>„%1“ hat eine leere Zeile geliefert; sie wurde nicht übernommen.</translation>
    </message>
</context>
<context>
    <name>pendant::ProjectDetails</name>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Delete for good</source>
        <translation>Endgültig löschen</translation>
    </message>
    <message>
        <source>Delete it with its variables, points and programs? It cannot be brought back.</source>
        <translation>Mit seinen Variablen, Punkten und Programmen löschen? Es kann nicht zurückgeholt werden.</translation>
    </message>
    <message>
        <source>This project is open. Open another one before you delete it.</source>
        <translation>Dieses Projekt ist geöffnet. Öffnen Sie ein anderes, bevor Sie es löschen.</translation>
    </message>
</context>
<context>
    <name>pendant::ProjectForm</name>
    <message>
        <source>New project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Create and open</source>
        <translation>Anlegen und öffnen</translation>
    </message>
</context>
<context>
    <name>pendant::ProjectMirror</name>
    <message>
        <source>The project %1 was not opened: the controller does not answer.</source>
        <translation>Das Projekt %1 wurde nicht geöffnet: Die Steuerung antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>pendant::ProjectsModel</name>
    <message>
        <source>Open</source>
        <translation>Geöffnet</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Angelegt</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
</context>
<context>
    <name>pendant::ProjectsPage</name>
    <message>
        <source>Projects</source>
        <translation>Projekte</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Select a project to open or delete it.</source>
        <translation>Wählen Sie ein Projekt, um es zu öffnen oder zu löschen.</translation>
    </message>
    <message>
        <source>No connection: these are the projects that were there last.</source>
        <translation>Keine Verbindung: Dies sind die Projekte, die es zuletzt gab.</translation>
    </message>
    <message>
        <source>No projects</source>
        <translation>Keine Projekte</translation>
    </message>
    <message>
        <source>The projects of this robot are listed here, a folder each in the workspace. Press “New project” to make one.</source>
        <translation>Hier stehen die Projekte dieses Roboters, jedes ein Ordner im Arbeitsbereich. Drücken Sie „Neues Projekt“, um eines anzulegen.</translation>
    </message>
    <message>
        <source>No connection to the robot</source>
        <translation>Keine Verbindung zum Roboter</translation>
    </message>
    <message>
        <source>The projects of this robot are listed here as soon as both links are up. “Links” in the developer dock (F12) brings them up.</source>
        <translation>Hier stehen die Projekte dieses Roboters, sobald beide Verbindungen da sind. „Verbindungen“ im Entwicklerfenster (F12) stellt sie her.</translation>
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
    <name>pendant::RobotPage</name>
    <message>
        <source>Robot</source>
        <translation>Roboter</translation>
    </message>
    <message>
        <source>Front</source>
        <comment>view of the robot</comment>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>Side</source>
        <comment>view of the robot</comment>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Top</source>
        <comment>view of the robot</comment>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Show all</source>
        <comment>view of the robot</comment>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>Drag to turn, pinch to zoom, two fingers to shift.</source>
        <translation>Ziehen dreht, zwei Finger zoomen und verschieben.</translation>
    </message>
    <message>
        <source>No robot</source>
        <translation>Kein Roboter</translation>
    </message>
    <message>
        <source>The robot is drawn here. This controller does not tell what its robot looks like (“robot.arm”).</source>
        <translation>Hier wird der Roboter gezeichnet. Diese Steuerung teilt nicht mit, wie ihr Roboter aussieht („robot.arm“).</translation>
    </message>
    <message>
        <source>No connection to the robot</source>
        <translation>Keine Verbindung zum Roboter</translation>
    </message>
    <message>
        <source>The robot is drawn here as soon as the links to the bus and to the controller are up. “Links” in the developer dock (F12) brings them up.</source>
        <translation>Der Roboter wird hier gezeichnet, sobald die Verbindungen zum Bus und zur Steuerung stehen. „Verbindungen“ im Entwicklerfenster (F12) stellt sie her.</translation>
    </message>
    <message>
        <source>Joints %1 °</source>
        <translation>Achsen %1 °</translation>
    </message>
    <message>
        <source>X %1  Y %2  Z %3 mm in %4</source>
        <translation>X %1  Y %2  Z %3 mm in %4</translation>
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
    <message>
        <source>Robot</source>
        <translation>Roboter</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Hand</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatik</translation>
    </message>
    <message>
        <source>Standing</source>
        <translation>Steht</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>Fährt</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Hält an</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Forced</source>
        <comment>signals</comment>
        <translation>Erzwungen</translation>
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
    <name>pendant::WaitWidget</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
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
<context>
    <name>pendant::Workspace</name>
    <message>
        <source>Type a name.</source>
        <translation>Geben Sie einen Namen ein.</translation>
    </message>
    <message>
        <source>“_temp” is kept for the pendant itself. Choose another name.</source>
        <translation>„_temp“ ist dem Bediengerät selbst vorbehalten. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>A name has no “/” and is neither “.” nor “..”.</source>
        <translation>Ein Name enthält kein „/“ und ist weder „.“ noch „..“.</translation>
    </message>
    <message>
        <source>A name does not begin with a dot: the folder would be hidden.</source>
        <translation>Ein Name beginnt nicht mit einem Punkt: Der Ordner wäre versteckt.</translation>
    </message>
    <message>
        <source>A name has no blanks at its ends and no letters that cannot be seen.</source>
        <translation>Ein Name hat keine Leerzeichen am Anfang oder Ende und keine unsichtbaren Zeichen.</translation>
    </message>
    <message>
        <source>A name has at most %1 letters.</source>
        <translation>Ein Name hat höchstens %1 Zeichen.</translation>
    </message>
    <message>
        <source>There is a project “%1” already.</source>
        <translation>Es gibt schon ein Projekt „%1“.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The description of “%1” was not written.</source>
        <translation>Die Beschreibung von „%1“ wurde nicht geschrieben.</translation>
    </message>
    <message>
        <source>There is no project “%1”.</source>
        <translation>Es gibt kein Projekt „%1“.</translation>
    </message>
    <message>
        <source>The project “%1” was not deleted completely: something in %2 cannot be deleted.</source>
        <translation>Das Projekt „%1“ wurde nicht vollständig gelöscht: In %2 lässt sich etwas nicht löschen.</translation>
    </message>
</context>
</TS>
