<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Canvas</name>
    <message>
        <source>%1 entities, shown by their boxes</source>
        <translation>%1 Objekte, als Rahmen gezeigt</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Unnamed drawing</source>
        <translation>Unbenannte Zeichnung</translation>
    </message>
    <message>
        <source>Drawings (*.dxf *.DXF);;All files (*)</source>
        <translation>Zeichnungen (*.dxf *.DXF);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Opening %1 ...</source>
        <translation>%1 wird geöffnet ...</translation>
    </message>
    <message>
        <source>%1  (%2)</source>
        <translation>%1  (%2)</translation>
    </message>
    <message>
        <source>Multiline tools</source>
        <translation>Multilinienwerkzeuge</translation>
    </message>
    <message>
        <source>%1 (%2): %3</source>
        <translation>%1 (%2): %3</translation>
    </message>
</context>
<context>
    <name>hoverText</name>
    <message>
        <source>%1, layer %2, %3 wide, #%4</source>
        <translation>%1, Layer %2, %3 breit, #%4</translation>
    </message>
    <message>
        <source>Layer %1, #%2</source>
        <translation>Layer %1, #%2</translation>
    </message>
</context>
<context>
    <name>joinTexts</name>
    <message>
        <source>%1 cross</source>
        <translation>%1 Kreuz</translation>
    </message>
    <message>
        <source>%1 crosses</source>
        <translation>%1 Kreuze</translation>
    </message>
    <message>
        <source>%1 tee</source>
        <translation>%1 T-Stoß</translation>
    </message>
    <message>
        <source>%1 tees</source>
        <translation>%1 T-Stöße</translation>
    </message>
    <message>
        <source>%1 corner</source>
        <translation>%1 Ecke</translation>
    </message>
    <message>
        <source>%1 corners</source>
        <translation>%1 Ecken</translation>
    </message>
    <message>
        <source>%1 joint was made</source>
        <translation>%1 Verbindung hergestellt</translation>
    </message>
    <message>
        <source>%1 joints were made</source>
        <translation>%1 Verbindungen hergestellt</translation>
    </message>
    <message>
        <source>%1 joint to make</source>
        <translation>%1 Verbindung herzustellen</translation>
    </message>
    <message>
        <source>%1 joints to make</source>
        <translation>%1 Verbindungen herzustellen</translation>
    </message>
    <message>
        <source>%1 place is joined already</source>
        <translation>%1 Stelle ist schon verbunden</translation>
    </message>
    <message>
        <source>%1 places are joined already</source>
        <translation>%1 Stellen sind schon verbunden</translation>
    </message>
    <message>
        <source>%1 place isn&apos;t asked for</source>
        <translation>%1 Stelle ist nicht gefragt</translation>
    </message>
    <message>
        <source>%1 places aren&apos;t asked for</source>
        <translation>%1 Stellen sind nicht gefragt</translation>
    </message>
    <message>
        <source>%1 place is left as it is:</source>
        <translation>%1 Stelle bleibt, wie sie ist:</translation>
    </message>
    <message>
        <source>%1 places are left as they are:</source>
        <translation>%1 Stellen bleiben, wie sie sind:</translation>
    </message>
</context>
<context>
    <name>orvex</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Start an empty drawing</source>
        <translation>Eine leere Zeichnung beginnen</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Öffnen...</translation>
    </message>
    <message>
        <source>Open a drawing</source>
        <translation>Zeichnung öffnen</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Open a recent drawing</source>
        <translation>Eine zuletzt benutzte Zeichnung öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the drawing into its file</source>
        <translation>Die Zeichnung in ihre Datei speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Save the drawing into another file</source>
        <translation>Die Zeichnung in eine andere Datei speichern</translation>
    </message>
    <message>
        <source>&amp;Export Picture...</source>
        <translation>&amp;Bild ausgeben...</translation>
    </message>
    <message>
        <source>Draw the drawing into an SVG, PNG or PDF file</source>
        <translation>Die Zeichnung als SVG-, PNG- oder PDF-Datei ausgeben</translation>
    </message>
    <message>
        <source>Play a Scri&amp;pt...</source>
        <translation>S&amp;kript ausführen...</translation>
    </message>
    <message>
        <source>Play the lines of a script, each command a step to undo</source>
        <translation>Die Zeilen eines Skripts ausführen, jeder Befehl ein Schritt zum Rückgängigmachen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>Leave the program</source>
        <translation>Das Programm verlassen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Take back the last point, cycle or command</source>
        <translation>Den letzten Punkt, Durchgang oder Befehl zurücknehmen</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Bring back what was taken back last</source>
        <translation>Zurückholen, was zuletzt zurückgenommen wurde</translation>
    </message>
    <message>
        <source>Undo &amp;Memory...</source>
        <translation>S&amp;peicher für Rückgängig...</translation>
    </message>
    <message>
        <source>Choose how much memory the commands that can be taken back may hold</source>
        <translation>Wählen, wie viel Speicher die Befehle belegen dürfen, die zurückgenommen werden können</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Take what is selected out of the drawing</source>
        <translation>Gewähltes aus der Zeichnung entfernen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles wählen</translation>
    </message>
    <message>
        <source>Select all that is seen</source>
        <translation>Alles Sichtbare wählen</translation>
    </message>
    <message>
        <source>Select &amp;Previous</source>
        <translation>&amp;Vorige Auswahl</translation>
    </message>
    <message>
        <source>Select what the last command had selected</source>
        <translation>Wählen, was der letzte Befehl gewählt hatte</translation>
    </message>
    <message>
        <source>Select by &amp;Style</source>
        <translation>Nach &amp;Stil wählen</translation>
    </message>
    <message>
        <source>Select the multilines of a style</source>
        <translation>Die Multilinien eines Stils wählen</translation>
    </message>
    <message>
        <source>Select by &amp;Layer</source>
        <translation>Nach La&amp;yer wählen</translation>
    </message>
    <message>
        <source>Select what lies on a layer</source>
        <translation>Wählen, was auf einem Layer liegt</translation>
    </message>
    <message>
        <source>&amp;Deselect</source>
        <translation>Auswahl auf&amp;heben</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>Nichts wählen</translation>
    </message>
    <message>
        <source>Zoom &amp;Extents</source>
        <translation>Zoom &amp;Grenzen</translation>
    </message>
    <message>
        <source>Show the whole drawing</source>
        <translation>Die ganze Zeichnung zeigen</translation>
    </message>
    <message>
        <source>Zoom &amp;Window</source>
        <translation>Zoom &amp;Fenster</translation>
    </message>
    <message>
        <source>Show what lies between two corners</source>
        <translation>Zeigen, was zwischen zwei Ecken liegt</translation>
    </message>
    <message>
        <source>Zoom &amp;Previous</source>
        <translation>Zoom &amp;Vorher</translation>
    </message>
    <message>
        <source>Show what was shown before</source>
        <translation>Zeigen, was vorher zu sehen war</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Show less, and larger</source>
        <translation>Weniger zeigen, und größer</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Show more, and smaller</source>
        <translation>Mehr zeigen, und kleiner</translation>
    </message>
    <message>
        <source>&amp;Multiline</source>
        <translation>&amp;Multilinie</translation>
    </message>
    <message>
        <source>Draw a multiline in the current style</source>
        <translation>Eine Multilinie im aktuellen Stil zeichnen</translation>
    </message>
    <message>
        <source>&amp;Edit Multilines...</source>
        <translation>Multilinien b&amp;earbeiten...</translation>
    </message>
    <message>
        <source>Choose one of the twelve multiline tools</source>
        <translation>Eines der zwölf Multilinienwerkzeuge wählen</translation>
    </message>
    <message>
        <source>Multiline &amp;Tools</source>
        <translation>Multilinien&amp;werkzeuge</translation>
    </message>
    <message>
        <source>The twelve multiline tools</source>
        <translation>Die zwölf Multilinienwerkzeuge</translation>
    </message>
    <message>
        <source>&amp;Join Plan...</source>
        <translation>&amp;Plan verbinden...</translation>
    </message>
    <message>
        <source>Join multilines wherever they cross or end at each other</source>
        <translation>Multilinien überall verbinden, wo sie sich kreuzen oder aneinander enden</translation>
    </message>
    <message>
        <source>Mo&amp;ve</source>
        <translation>&amp;Verschieben</translation>
    </message>
    <message>
        <source>Move multilines from a base point to another</source>
        <translation>Multilinien von einem Basispunkt zu einem anderen verschieben</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy multilines from a base point to others</source>
        <translation>Multilinien von einem Basispunkt zu anderen kopieren</translation>
    </message>
    <message>
        <source>&amp;Rotate</source>
        <translation>&amp;Drehen</translation>
    </message>
    <message>
        <source>Turn multilines about a base point</source>
        <translation>Multilinien um einen Basispunkt drehen</translation>
    </message>
    <message>
        <source>M&amp;irror</source>
        <translation>Sp&amp;iegeln</translation>
    </message>
    <message>
        <source>Replace multilines by their mirror images</source>
        <translation>Multilinien durch ihre Spiegelbilder ersetzen</translation>
    </message>
    <message>
        <source>Stretc&amp;h</source>
        <translation>St&amp;recken</translation>
    </message>
    <message>
        <source>Move the vertices within a window</source>
        <translation>Die Scheitelpunkte in einem Fenster verschieben</translation>
    </message>
    <message>
        <source>Re&amp;verse Direction</source>
        <translation>Richtung &amp;umkehren</translation>
    </message>
    <message>
        <source>Turn the direction of multilines; nothing looks different</source>
        <translation>Die Richtung von Multilinien umkehren; das Aussehen bleibt gleich</translation>
    </message>
    <message>
        <source>Ver&amp;tex</source>
        <translation>&amp;Scheitelpunkt</translation>
    </message>
    <message>
        <source>Move, add or remove a vertex of a multiline</source>
        <translation>Einen Scheitelpunkt einer Multilinie verschieben, einfügen oder entfernen</translation>
    </message>
    <message>
        <source>E&amp;xtend</source>
        <translation>De&amp;hnen</translation>
    </message>
    <message>
        <source>Bring ends forward to another multiline</source>
        <translation>Enden bis zu einer anderen Multilinie verlängern</translation>
    </message>
    <message>
        <source>&amp;Trim</source>
        <translation>S&amp;tutzen</translation>
    </message>
    <message>
        <source>Bring ends back to another multiline</source>
        <translation>Enden bis zu einer anderen Multilinie kürzen</translation>
    </message>
    <message>
        <source>&amp;Break</source>
        <translation>&amp;Brechen</translation>
    </message>
    <message>
        <source>Part a multiline at a gap, at a point or between two</source>
        <translation>Eine Multilinie an einer Lücke, einem Punkt oder zwischen zweien teilen</translation>
    </message>
    <message>
        <source>C&amp;onnect</source>
        <translation>&amp;Zusammenfügen</translation>
    </message>
    <message>
        <source>Make one multiline of two whose ends meet</source>
        <translation>Aus zwei Multilinien, deren Enden sich treffen, eine machen</translation>
    </message>
    <message>
        <source>Ch&amp;ange</source>
        <translation>&amp;Ändern</translation>
    </message>
    <message>
        <source>Give multilines another style, scale, justification or layer</source>
        <translation>Multilinien einen anderen Stil, Maßstab, Layer oder eine andere Ausrichtung geben</translation>
    </message>
    <message>
        <source>Replace St&amp;yle</source>
        <translation>Stil erset&amp;zen</translation>
    </message>
    <message>
        <source>Give all multilines of a style another one</source>
        <translation>Allen Multilinien eines Stils einen anderen geben</translation>
    </message>
    <message>
        <source>Ex&amp;plode</source>
        <translation>Zer&amp;legen</translation>
    </message>
    <message>
        <source>Turn multilines into lines, arcs and filled areas</source>
        <translation>Multilinien in Linien, Bögen und gefüllte Flächen zerlegen</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Auflisten</translation>
    </message>
    <message>
        <source>Show what multilines are: style, scale, layer, length</source>
        <translation>Zeigen, was Multilinien sind: Stil, Maßstab, Layer, Länge</translation>
    </message>
    <message>
        <source>Multiline &amp;Styles...</source>
        <translation>&amp;Multilinienstile...</translation>
    </message>
    <message>
        <source>Manage the multiline styles of the drawing</source>
        <translation>Die Multilinienstile der Zeichnung verwalten</translation>
    </message>
    <message>
        <source>Change a Style in &amp;Use...</source>
        <translation>Verwendeten Stil ä&amp;ndern...</translation>
    </message>
    <message>
        <source>Change a copy of a style, and let all that use the style take it</source>
        <translation>Eine Kopie eines Stils ändern und allen geben, die den Stil verwenden</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Tools, commands, keys, and known peculiarities</source>
        <translation>Werkzeuge, Befehle, Tasten und bekannte Eigenheiten</translation>
    </message>
    <message>
        <source>&amp;About Orvex</source>
        <translation>Ü&amp;ber Orvex</translation>
    </message>
    <message>
        <source>What this program is</source>
        <translation>Was dieses Programm ist</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Zeichnen</translation>
    </message>
    <message>
        <source>&amp;Modify</source>
        <translation>Ä&amp;ndern</translation>
    </message>
    <message>
        <source>&amp;Closed Cross</source>
        <translation>&amp;Geschlossenes Kreuz</translation>
    </message>
    <message>
        <source>Break the first multiline where it crosses the second</source>
        <translation>Die erste Multilinie unterbrechen, wo sie die zweite kreuzt</translation>
    </message>
    <message>
        <source>&amp;Open Cross</source>
        <translation>&amp;Offenes Kreuz</translation>
    </message>
    <message>
        <source>Break the first multiline, and the outer lines of the second</source>
        <translation>Die erste Multilinie und die Außenlinien der zweiten unterbrechen</translation>
    </message>
    <message>
        <source>&amp;Merged Cross</source>
        <translation>&amp;Verbundenes Kreuz</translation>
    </message>
    <message>
        <source>Break the outer lines of both multilines where they cross</source>
        <translation>Die Außenlinien beider Multilinien unterbrechen, wo sie sich kreuzen</translation>
    </message>
    <message>
        <source>Closed &amp;Tee</source>
        <translation>Geschlossenes &amp;T</translation>
    </message>
    <message>
        <source>End the first multiline at the second, which stays whole</source>
        <translation>Die erste Multilinie an der zweiten enden lassen, die ganz bleibt</translation>
    </message>
    <message>
        <source>Open T&amp;ee</source>
        <translation>O&amp;ffenes T</translation>
    </message>
    <message>
        <source>End the first multiline at the second and open that</source>
        <translation>Die erste Multilinie an der zweiten enden lassen und diese öffnen</translation>
    </message>
    <message>
        <source>Merged Tee</source>
        <translation>Verbundenes T</translation>
    </message>
    <message>
        <source>End the first multiline inside the second and join their lines</source>
        <translation>Die erste Multilinie in der zweiten enden lassen und ihre Linien verbinden</translation>
    </message>
    <message>
        <source>Corner &amp;Joint</source>
        <translation>&amp;Eckverbindung</translation>
    </message>
    <message>
        <source>Trim or lengthen two multilines to a common corner</source>
        <translation>Zwei Multilinien zu einer gemeinsamen Ecke kürzen oder verlängern</translation>
    </message>
    <message>
        <source>&amp;Add Vertex</source>
        <translation>Scheitelpunkt e&amp;infügen</translation>
    </message>
    <message>
        <source>Put a vertex into a multiline</source>
        <translation>Einen Scheitelpunkt in eine Multilinie einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete Vertex</source>
        <translation>Scheitelpunkt lö&amp;schen</translation>
    </message>
    <message>
        <source>Take a vertex out of a multiline</source>
        <translation>Einen Scheitelpunkt aus einer Multilinie entfernen</translation>
    </message>
    <message>
        <source>Cut &amp;Single</source>
        <translation>Eine &amp;Linie trennen</translation>
    </message>
    <message>
        <source>Cut one line of a multiline between two points</source>
        <translation>Eine Linie einer Multilinie zwischen zwei Punkten trennen</translation>
    </message>
    <message>
        <source>Cut A&amp;ll</source>
        <translation>&amp;Alle Linien trennen</translation>
    </message>
    <message>
        <source>Cut all lines of a multiline between two points</source>
        <translation>Alle Linien einer Multilinie zwischen zwei Punkten trennen</translation>
    </message>
    <message>
        <source>&amp;Weld All</source>
        <translation>Alle Linien versch&amp;weißen</translation>
    </message>
    <message>
        <source>Close the cuts of a multiline between two points</source>
        <translation>Die Lücken einer Multilinie zwischen zwei Punkten schließen</translation>
    </message>
    <message>
        <source>the point is too far away</source>
        <translation>der Punkt ist zu weit weg</translation>
    </message>
    <message>
        <source>it ends there already</source>
        <translation>sie endet dort schon</translation>
    </message>
    <message>
        <source>nothing would be left of it</source>
        <translation>von ihr bliebe nichts übrig</translation>
    </message>
    <message>
        <source>a part would have no length</source>
        <translation>ein Teil hätte keine Länge</translation>
    </message>
    <message>
        <source>a closed one has no ends</source>
        <translation>eine geschlossene hat keine Enden</translation>
    </message>
    <message>
        <source>style, scale and justification don&apos;t agree</source>
        <translation>Stil, Maßstab und Ausrichtung stimmen nicht überein</translation>
    </message>
    <message>
        <source>they run against each other</source>
        <translation>sie laufen gegeneinander</translation>
    </message>
    <message>
        <source>their ends don&apos;t meet</source>
        <translation>ihre Enden treffen sich nicht</translation>
    </message>
    <message>
        <source>its normal has not the length 1</source>
        <translation>ihre Normale hat nicht die Länge 1</translation>
    </message>
    <message>
        <source>it has fewer than two vertices</source>
        <translation>sie hat weniger als zwei Scheitelpunkte</translation>
    </message>
    <message>
        <source>a number in it isn&apos;t finite</source>
        <translation>eine Zahl darin ist nicht endlich</translation>
    </message>
    <message>
        <source>its style is missing</source>
        <translation>ihr Stil fehlt</translation>
    </message>
    <message>
        <source>a style has 1 to 16 elements</source>
        <translation>ein Stil hat 1 bis 16 Elemente</translation>
    </message>
    <message>
        <source>a scale is a number other than 0</source>
        <translation>ein Maßstab ist eine andere Zahl als 0</translation>
    </message>
    <message>
        <source>its lines can be kept under another justification only</source>
        <translation>ihre Linien können nur unter einer anderen Ausrichtung bleiben</translation>
    </message>
    <message>
        <source>its gaps contradict each other</source>
        <translation>ihre Lücken widersprechen einander</translation>
    </message>
    <message>
        <source>a closed chain has three vertices or more</source>
        <translation>eine geschlossene Kette hat mindestens drei Scheitelpunkte</translation>
    </message>
    <message>
        <source>a segment is too short to keep its lines</source>
        <translation>ein Segment ist zu kurz, um seine Linien zu behalten</translation>
    </message>
    <message>
        <source>a distance isn&apos;t finite</source>
        <translation>ein Abstand ist nicht endlich</translation>
    </message>
    <message>
        <source>the distances don&apos;t ascend</source>
        <translation>die Abstände steigen nicht an</translation>
    </message>
    <message>
        <source>it is closed and has no ends</source>
        <translation>sie ist geschlossen und hat keine Enden</translation>
    </message>
    <message>
        <source>it doesn&apos;t lie in the plane of the bar</source>
        <translation>sie liegt nicht in der Ebene des Balkens</translation>
    </message>
    <message>
        <source>its end doesn&apos;t lead to the bar</source>
        <translation>ihr Ende führt nicht zum Balken</translation>
    </message>
    <message>
        <source>its last segment doesn&apos;t cross the bar</source>
        <translation>ihr letztes Segment kreuzt den Balken nicht</translation>
    </message>
    <message>
        <source>elements</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>its chain can&apos;t be judged</source>
        <translation>ihre Kette ist nicht zu beurteilen</translation>
    </message>
    <message>
        <source>degrees between axis and segment</source>
        <translation>Grad zwischen Achse und Segment</translation>
    </message>
    <message>
        <source>degrees between axis and miter</source>
        <translation>Grad zwischen Achse und Gehrung</translation>
    </message>
    <message>
        <source>distance from the chain</source>
        <translation>Abstand von der Kette</translation>
    </message>
    <message>
        <source>distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>reach</source>
        <translation>Reichweite</translation>
    </message>
    <message>
        <source>found</source>
        <translation>gefunden</translation>
    </message>
    <message>
        <source>repaired</source>
        <translation>berichtigt</translation>
    </message>
    <message>
        <source>left</source>
        <translation>belassen</translation>
    </message>
    <message>
        <source>its last segment has no length</source>
        <translation>ihr letztes Segment hat keine Länge</translation>
    </message>
    <message>
        <source>the place lies at or beyond the segment&apos;s other vertex</source>
        <translation>die Stelle liegt am anderen Scheitelpunkt des Segments oder jenseits davon</translation>
    </message>
    <message>
        <source>the mirror line has no length</source>
        <translation>die Spiegellinie hat keine Länge</translation>
    </message>
    <message>
        <source>it would leave its plane</source>
        <translation>sie verließe ihre Ebene</translation>
    </message>
    <message>
        <source>its vertices would fall together</source>
        <translation>ihre Scheitelpunkte fielen zusammen</translation>
    </message>
    <message>
        <source>a chain has two vertices or more</source>
        <translation>eine Kette hat mindestens zwei Scheitelpunkte</translation>
    </message>
    <message>
        <source>its neighbours lie in the same place</source>
        <translation>seine Nachbarn liegen an derselben Stelle</translation>
    </message>
    <message>
        <source>{count} walls meet here</source>
        <translation>hier treffen sich {count} Wände</translation>
    </message>
    <message>
        <source>the walls run along each other</source>
        <translation>die Wände laufen aneinander entlang</translation>
    </message>
    <message>
        <source>the same wall stands here twice</source>
        <translation>dieselbe Wand steht hier zweimal</translation>
    </message>
    <message>
        <source>a wall&apos;s normal isn&apos;t +z</source>
        <translation>die Normale einer Wand ist nicht +z</translation>
    </message>
    <message>
        <source>the walls lie {has} apart in height</source>
        <translation>die Wände liegen in der Höhe {has} auseinander</translation>
    </message>
    <message>
        <source>a gap leaves no line to pick</source>
        <translation>eine Lücke lässt keine Linie zum Wählen</translation>
    </message>
    <message>
        <source>a pick here would find another line of its wall</source>
        <translation>eine Wahl hier fände eine andere Linie der Wand</translation>
    </message>
    <message>
        <source>a wall&apos;s style isn&apos;t in the drawing</source>
        <translation>der Stil einer Wand ist nicht in der Zeichnung</translation>
    </message>
    <message>
        <source>a wall&apos;s first and last element coincide or aren&apos;t the outermost</source>
        <translation>das erste und das letzte Element einer Wand fallen zusammen oder sind nicht die äußersten</translation>
    </message>
    <message>
        <source>a wall has one element only</source>
        <translation>eine Wand hat nur ein Element</translation>
    </message>
    <message>
        <source>nearly in one line: the corner would reach {has}, {needs} at most is allowed</source>
        <translation>fast in einer Linie: die Ecke reichte {has} weit, erlaubt sind höchstens {needs}</translation>
    </message>
    <message>
        <source>too acute: the corner would reach {has}, {needs} at most is allowed</source>
        <translation>zu spitz: die Ecke reichte {has} weit, erlaubt sind höchstens {needs}</translation>
    </message>
    <message>
        <source>a leg of {has} is too short for the joint, which needs {needs}</source>
        <translation>ein Schenkel von {has} ist zu kurz für die Verbindung, die {needs} braucht</translation>
    </message>
    <message>
        <source>the joint reaches into the one of {others}</source>
        <translation>die Verbindung reicht in die von {others} hinein</translation>
    </message>
    <message>
        <source>the place lies on a bend</source>
        <translation>die Stelle liegt auf einem Knick</translation>
    </message>
    <message>
        <source>both ends of a wall lie at the place</source>
        <translation>beide Enden einer Wand liegen an der Stelle</translation>
    </message>
    <message>
        <source>an end reaches several walls: {others}</source>
        <translation>ein Ende erreicht mehrere Wände: {others}</translation>
    </message>
    <message>
        <source>the chains don&apos;t cross where the walls do</source>
        <translation>die Ketten kreuzen sich nicht, wo die Wände es tun</translation>
    </message>
    <message>
        <source>the closing segment of a ring can&apos;t be cut here</source>
        <translation>das schließende Segment eines Rings kann hier nicht getrennt werden</translation>
    </message>
    <message>
        <source>the tool found nothing to join</source>
        <translation>das Werkzeug fand nichts zu verbinden</translation>
    </message>
    <message>
        <source>the joint came out wrong and was taken back</source>
        <translation>die Verbindung kam falsch heraus und wurde zurückgenommen</translation>
    </message>
    <message>
        <source>only points are counted from the last point</source>
        <translation>nur Punkte zählen vom letzten Punkt aus</translation>
    </message>
    <message>
        <source>only picks have a handle</source>
        <translation>nur eine Wahl hat ein Handle</translation>
    </message>
    <message>
        <source>the keyword isn&apos;t on offer</source>
        <translation>das Schlüsselwort wird hier nicht angeboten</translation>
    </message>
    <message>
        <source>it isn&apos;t a regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it is too short for a module</source>
        <translation>für ein Modul ist es zu kurz</translation>
    </message>
    <message>
        <source>the file is cut short</source>
        <translation>die Datei ist abgeschnitten</translation>
    </message>
    <message>
        <source>it can&apos;t be opened</source>
        <translation>es kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Look or Repair: </source>
        <translation>Look (ansehen) oder Repair (berichtigen): </translation>
    </message>
    <message>
        <source>Second point, Enter for none: </source>
        <translation>Zweiter Punkt, Eingabetaste für keinen: </translation>
    </message>
    <message>
        <source>Multiline to break: </source>
        <translation>Zu teilende Multilinie: </translation>
    </message>
    <message>
        <source>Point: </source>
        <translation>Punkt: </translation>
    </message>
    <message>
        <source>First multiline: </source>
        <translation>Erste Multilinie: </translation>
    </message>
    <message>
        <source>Second multiline: </source>
        <translation>Zweite Multilinie: </translation>
    </message>
    <message>
        <source>it was picked twice</source>
        <translation>sie wurde zweimal gewählt</translation>
    </message>
    <message>
        <source>Layer name: </source>
        <translation>Name des Layers: </translation>
    </message>
    <message>
        <source>Style name: </source>
        <translation>Name des Stils: </translation>
    </message>
    <message>
        <source>Justification [Top/Zero/Bottom]: </source>
        <translation>Ausrichtung [Top/Zero/Bottom]: </translation>
    </message>
    <message>
        <source>Caps [Both/Start/End/None]: </source>
        <translation>Abschlüsse [Both/Start/End/None]: </translation>
    </message>
    <message>
        <source>Scale: </source>
        <translation>Maßstab: </translation>
    </message>
    <message>
        <source>Change [STyle/SCale/Justification/LAyer/CAps/CLose/Open/KeepLines], Enter to apply: </source>
        <translation>Ändern [STyle/SCale/Justification/LAyer/CAps/CLose/Open/KeepLines], Eingabetaste wendet an: </translation>
    </message>
    <message>
        <source>%1 of %2 multilines changed.</source>
        <translation>%1 von %2 Multilinien geändert.</translation>
    </message>
    <message>
        <source>%1 on locked layers left out.</source>
        <translation>%1 auf gesperrten Layern ausgelassen.</translation>
    </message>
    <message>
        <source>Style until now: </source>
        <translation>Bisheriger Stil: </translation>
    </message>
    <message>
        <source>New style: </source>
        <translation>Neuer Stil: </translation>
    </message>
    <message>
        <source>it can&apos;t be read</source>
        <translation>sie kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Nothing found there.</source>
        <translation>Dort ist nichts zu finden.</translation>
    </message>
    <message>
        <source>That isn&apos;t a multiline with a chain.</source>
        <translation>Das ist keine Multilinie mit einer Kette.</translation>
    </message>
    <message>
        <source>No multiline found there.</source>
        <translation>Dort ist keine Multilinie zu finden.</translation>
    </message>
    <message>
        <source>The multiline lies on a locked layer.</source>
        <translation>Die Multilinie liegt auf einem gesperrten Layer.</translation>
    </message>
    <message>
        <source>that is no whole number from 0 on</source>
        <translation>das ist keine ganze Zahl ab 0</translation>
    </message>
    <message>
        <source>Next distance: </source>
        <translation>Nächster Abstand: </translation>
    </message>
    <message>
        <source>Multiline: </source>
        <translation>Multilinie: </translation>
    </message>
    <message>
        <source>Segment: </source>
        <translation>Segment: </translation>
    </message>
    <message>
        <source>Element: </source>
        <translation>Element: </translation>
    </message>
    <message>
        <source>Multiline to end at: </source>
        <translation>Multilinie, an der Enden liegen sollen: </translation>
    </message>
    <message>
        <source>To its [Axis/Outer]: </source>
        <translation>Bis zu ihrer Achse oder Außenlinie [Axis/Outer]: </translation>
    </message>
    <message>
        <source>Pick near an end to extend, Enter to stop: </source>
        <translation>Nahe einem Ende wählen, das gedehnt wird, Eingabetaste beendet: </translation>
    </message>
    <message>
        <source>Pick near an end to trim, Enter to stop: </source>
        <translation>Nahe einem Ende wählen, das gestutzt wird, Eingabetaste beendet: </translation>
    </message>
    <message>
        <source>it is what the others are to end at</source>
        <translation>an ihr sollen die anderen enden</translation>
    </message>
    <message>
        <source>%1 of %2 multilines exploded.</source>
        <translation>%1 von %2 Multilinien zerlegt.</translation>
    </message>
    <message>
        <source>Tolerance in drawing units or Automatic: </source>
        <translation>Toleranz in Zeichnungseinheiten oder Automatic: </translation>
    </message>
    <message>
        <source>a tolerance is 0 or more</source>
        <translation>eine Toleranz ist 0 oder größer</translation>
    </message>
    <message>
        <source>Tolerance, Cross, Tee or COrners, Enter to join: </source>
        <translation>Tolerance, Cross, Tee oder COrners, Eingabetaste verbindet: </translation>
    </message>
    <message>
        <source>Crosses Closed, Open, Merged or None: </source>
        <translation>Kreuze Closed, Open, Merged oder None: </translation>
    </message>
    <message>
        <source>Tees Closed, Open, Merged or None: </source>
        <translation>T-Stöße Closed, Open, Merged oder None: </translation>
    </message>
    <message>
        <source>Corners Yes or No: </source>
        <translation>Ecken Yes oder No: </translation>
    </message>
    <message>
        <source>cross</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>tee</source>
        <translation>T-Stoß</translation>
    </message>
    <message>
        <source>corner</source>
        <translation>Ecke</translation>
    </message>
    <message>
        <source>node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>overlap</source>
        <translation>Überlappung</translation>
    </message>
    <message>
        <source>planned</source>
        <translation>geplant</translation>
    </message>
    <message>
        <source>joined</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>already</source>
        <translation>schon verbunden</translation>
    </message>
    <message>
        <source>unasked</source>
        <translation>nicht gefragt</translation>
    </message>
    <message>
        <source>%1 of %2 multilines laid right.</source>
        <translation>%1 von %2 Multilinien ausgerichtet.</translation>
    </message>
    <message>
        <source>top</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>zero</source>
        <translation>Null</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>unknown justification</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>geschlossen</translation>
    </message>
    <message>
        <source>open</source>
        <translation>offen</translation>
    </message>
    <message>
        <source>a scale of 0 would put all lines in one place</source>
        <translation>beim Maßstab 0 lägen alle Linien an einer Stelle</translation>
    </message>
    <message>
        <source>there is no layer &apos;%1&apos;</source>
        <translation>es gibt keinen Layer „%1“</translation>
    </message>
    <message>
        <source>Layer name &lt;%1&gt;: </source>
        <translation>Name des Layers &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>there is no style &apos;%1&apos;</source>
        <translation>es gibt keinen Stil „%1“</translation>
    </message>
    <message>
        <source>Style name &lt;%1&gt;: </source>
        <translation>Name des Stils &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Start point or [Justification/Scale/STyle/LAyer]: </source>
        <translation>Startpunkt oder [Justification/Scale/STyle/LAyer]: </translation>
    </message>
    <message>
        <source>Next point or [Close/Undo]: </source>
        <translation>Nächster Punkt oder [Close/Undo]: </translation>
    </message>
    <message>
        <source>Next point or [Undo]: </source>
        <translation>Nächster Punkt oder [Undo]: </translation>
    </message>
    <message>
        <source>That is where the last point is. It is left out.</source>
        <translation>Dort liegt der letzte Punkt schon. Er wird ausgelassen.</translation>
    </message>
    <message>
        <source>The current style has no elements to draw.</source>
        <translation>Der aktuelle Stil hat keine Elemente zum Zeichnen.</translation>
    </message>
    <message>
        <source>warning: all points lie in one place; there is nothing to draw.</source>
        <translation>Warnung: alle Punkte liegen an einer Stelle; es gibt nichts zu zeichnen.</translation>
    </message>
    <message>
        <source>%1 of %2 multilines copied.</source>
        <translation>%1 von %2 Multilinien kopiert.</translation>
    </message>
    <message>
        <source>Base point: </source>
        <translation>Basispunkt: </translation>
    </message>
    <message>
        <source>Second point: </source>
        <translation>Zweiter Punkt: </translation>
    </message>
    <message>
        <source>%1 of %2 multilines moved.</source>
        <translation>%1 von %2 Multilinien verschoben.</translation>
    </message>
    <message>
        <source>Degrees counter-clockwise: </source>
        <translation>Grad gegen den Uhrzeigersinn: </translation>
    </message>
    <message>
        <source>%1 of %2 multilines rotated.</source>
        <translation>%1 von %2 Multilinien gedreht.</translation>
    </message>
    <message>
        <source>First point of the mirror line: </source>
        <translation>Erster Punkt der Spiegellinie: </translation>
    </message>
    <message>
        <source>%1 of %2 multilines mirrored.</source>
        <translation>%1 von %2 Multilinien gespiegelt.</translation>
    </message>
    <message>
        <source>Pick a multiline near the end to move: </source>
        <translation>Multilinie nahe dem Ende wählen, das verschoben wird: </translation>
    </message>
    <message>
        <source>That isn&apos;t a multiline with ends.</source>
        <translation>Das ist keine Multilinie mit Enden.</translation>
    </message>
    <message>
        <source>New point: </source>
        <translation>Neuer Punkt: </translation>
    </message>
    <message>
        <source>; there are </source>
        <translation>; es gibt </translation>
    </message>
    <message>
        <source> and others</source>
        <translation> und andere</translation>
    </message>
    <message>
        <source>nothing here</source>
        <translation>hier ist nichts</translation>
    </message>
    <message>
        <source>pick on a line of a multiline</source>
        <translation>auf eine Linie einer Multilinie klicken</translation>
    </message>
    <message>
        <source>on a locked layer</source>
        <translation>auf einem gesperrten Layer</translation>
    </message>
    <message>
        <source>unlock the layer first</source>
        <translation>zuerst den Layer entsperren</translation>
    </message>
    <message>
        <source>%1 is no multiline</source>
        <translation>%1 ist keine Multilinie</translation>
    </message>
    <message>
        <source>a closed multiline can&apos;t be used here</source>
        <translation>eine geschlossene Multilinie ist hier nicht zu brauchen</translation>
    </message>
    <message>
        <source>pick an open one</source>
        <translation>eine offene wählen</translation>
    </message>
    <message>
        <source>this is the same multiline</source>
        <translation>das ist dieselbe Multilinie</translation>
    </message>
    <message>
        <source>pick two that cross</source>
        <translation>zwei wählen, die sich kreuzen</translation>
    </message>
    <message>
        <source>this is another multiline</source>
        <translation>das ist eine andere Multilinie</translation>
    </message>
    <message>
        <source>both picks have to lie on the first one</source>
        <translation>beide Punkte müssen auf der ersten liegen</translation>
    </message>
    <message>
        <source>these two don&apos;t cross where they were picked</source>
        <translation>diese beiden kreuzen sich nicht, wo sie gewählt wurden</translation>
    </message>
    <message>
        <source>pick where their chains meet</source>
        <translation>dort wählen, wo sich ihre Ketten treffen</translation>
    </message>
    <message>
        <source>no line is matched here, an earlier pick would be used</source>
        <translation>hier passt keine Linie, eine frühere Wahl würde gelten</translation>
    </message>
    <message>
        <source>pick further from the multiline&apos;s end</source>
        <translation>weiter vom Ende der Multilinie wählen</translation>
    </message>
    <message>
        <source>nothing changed</source>
        <translation>nichts hat sich geändert</translation>
    </message>
    <message>
        <source>this</source>
        <translation>dies</translation>
    </message>
    <message>
        <source>%1 other than multilines left out.</source>
        <translation>%1 andere Objekte als Multilinien ausgelassen.</translation>
    </message>
    <message>
        <source>First corner: </source>
        <translation>Erste Ecke: </translation>
    </message>
    <message>
        <source>Opposite corner: </source>
        <translation>Gegenüberliegende Ecke: </translation>
    </message>
    <message>
        <source>its style has other caps at the start than at the end</source>
        <translation>ihr Stil hat am Anfang andere Abschlüsse als am Ende</translation>
    </message>
    <message>
        <source>Nothing selected.</source>
        <translation>Nichts ist gewählt.</translation>
    </message>
    <message>
        <source>Variable name: </source>
        <translation>Name der Variablen: </translation>
    </message>
    <message>
        <source>The style can&apos;t be copied.</source>
        <translation>Der Stil kann nicht kopiert werden.</translation>
    </message>
    <message>
        <source>The copy was deleted; nothing takes it.</source>
        <translation>Die Kopie wurde gelöscht; nichts bekommt sie.</translation>
    </message>
    <message>
        <source>Vertex &lt;nearest&gt;: </source>
        <translation>Scheitelpunkt &lt;nächster&gt;: </translation>
    </message>
    <message>
        <source>Vertex: </source>
        <translation>Scheitelpunkt: </translation>
    </message>
    <message>
        <source>Vertex [Move/Add/Remove/Together with another]: </source>
        <translation>Scheitelpunkt [Move/Add/Remove/Together with another]: </translation>
    </message>
    <message>
        <source>New place of the vertex: </source>
        <translation>Neue Stelle des Scheitelpunkts: </translation>
    </message>
    <message>
        <source>Place of the new vertex: </source>
        <translation>Stelle des neuen Scheitelpunkts: </translation>
    </message>
    <message>
        <source>Center point: </source>
        <translation>Mittelpunkt: </translation>
    </message>
    <message>
        <source>Height of the view: </source>
        <translation>Höhe der Ansicht: </translation>
    </message>
    <message>
        <source>the height of a view has to be above 0</source>
        <translation>die Höhe einer Ansicht muss über 0 liegen</translation>
    </message>
    <message>
        <source>Extents or Center: </source>
        <translation>Extents (Grenzen) oder Center (Mitte): </translation>
    </message>
    <message>
        <source>More Colors...</source>
        <translation>Weitere Farben...</translation>
    </message>
    <message>
        <source>Select Color</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>Vertex</source>
        <translation>Scheitelpunkt</translation>
    </message>
    <message>
        <source>Element end</source>
        <translation>Elementende</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Axis crossing</source>
        <translation>Achsenkreuzung</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Schnittpunkt</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Perpendicular</source>
        <translation>Lot</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>Nächster</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>zu wenig Speicher</translation>
    </message>
    <message>
        <source>the script isn&apos;t UTF-8</source>
        <translation>das Skript ist nicht in UTF-8</translation>
    </message>
    <message>
        <source>a length of 0 leads nowhere</source>
        <translation>eine Länge von 0 führt nirgendwohin</translation>
    </message>
    <message>
        <source>a length needs a direction: move the mouse over the drawing</source>
        <translation>eine Länge braucht eine Richtung: die Maus über die Zeichnung bewegen</translation>
    </message>
    <message>
        <source>a hexadecimal handle has to follow &apos;#&apos;</source>
        <translation>auf „#“ muss ein hexadezimales Handle folgen</translation>
    </message>
    <message>
        <source>a comma or &apos;&lt;&apos; has to follow</source>
        <translation>ein Komma oder „&lt;“ muss folgen</translation>
    </message>
    <message>
        <source>a comma has to follow</source>
        <translation>ein Komma muss folgen</translation>
    </message>
    <message>
        <source>a length with an angle begins with &apos;@&apos;</source>
        <translation>eine Länge mit einem Winkel beginnt mit „@“</translation>
    </message>
    <message>
        <source>nothing can follow the angle</source>
        <translation>auf den Winkel kann nichts folgen</translation>
    </message>
    <message>
        <source>an angle follows a length alone</source>
        <translation>ein Winkel folgt auf eine Länge allein</translation>
    </message>
    <message>
        <source>nothing can follow the third number</source>
        <translation>auf die dritte Zahl kann nichts folgen</translation>
    </message>
    <message>
        <source>a number is missing</source>
        <translation>eine Zahl fehlt</translation>
    </message>
    <message>
        <source>&apos;@&apos; belongs at the beginning</source>
        <translation>„@“ gehört an den Anfang</translation>
    </message>
    <message>
        <source>it isn&apos;t a module</source>
        <translation>es ist kein Modul</translation>
    </message>
    <message>
        <source>the module is for another version of the host</source>
        <translation>das Modul ist für eine andere Version des Hosts</translation>
    </message>
    <message>
        <source>the module or its texts can&apos;t be loaded</source>
        <translation>das Modul oder seine Texte können nicht geladen werden</translation>
    </message>
    <message>
        <source>a line</source>
        <translation>eine Linie</translation>
    </message>
    <message>
        <source>a polyline</source>
        <translation>eine Polylinie</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>a block</source>
        <translation>ein Block</translation>
    </message>
    <message>
        <source>a solid</source>
        <translation>eine Füllfläche</translation>
    </message>
    <message>
        <source>a hatch</source>
        <translation>eine Schraffur</translation>
    </message>
    <message>
        <source>a point</source>
        <translation>ein Punkt</translation>
    </message>
    <message>
        <source>an ellipse</source>
        <translation>eine Ellipse</translation>
    </message>
    <message>
        <source>a circle</source>
        <translation>ein Kreis</translation>
    </message>
    <message>
        <source>an arc</source>
        <translation>ein Bogen</translation>
    </message>
    <message>
        <source>Remove multilines</source>
        <translation>Multilinien wegnehmen</translation>
    </message>
    <message>
        <source>Remove entities</source>
        <translation>Objekte wegnehmen</translation>
    </message>
    <message>
        <source>Select multilines</source>
        <translation>Multilinien wählen</translation>
    </message>
    <message>
        <source>Select entities</source>
        <translation>Objekte wählen</translation>
    </message>
    <message>
        <source>Command: </source>
        <translation>Befehl: </translation>
    </message>
    <message>
        <source>a command is running already</source>
        <translation>ein Befehl läuft schon</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Es gibt nichts zurückzunehmen.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Es gibt nichts zurückzuholen.</translation>
    </message>
    <message>
        <source>it reaches beyond the range of drawings</source>
        <translation>sie reicht über den Bereich von Zeichnungen hinaus</translation>
    </message>
    <message>
        <source>nothing of it is drawn</source>
        <translation>von ihr wird nichts gezeichnet</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> und %1 weiteren</translation>
    </message>
    <message>
        <source>blocks repeat too often to be drawn in full, in the inserts %1</source>
        <translation>Blöcke wiederholen sich zu oft, um ganz gezeichnet zu werden, in den Einfügungen %1</translation>
    </message>
    <message>
        <source>blocks repeat too often to be drawn in full, in the insert %1</source>
        <translation>Blöcke wiederholen sich zu oft, um ganz gezeichnet zu werden, in der Einfügung %1</translation>
    </message>
    <message>
        <source>segment %1 has no length</source>
        <translation>Segment %1 hat keine Länge</translation>
    </message>
    <message>
        <source>vertex %1 doesn&apos;t lie in the plane of the others</source>
        <translation>Scheitelpunkt %1 liegt nicht in der Ebene der anderen</translation>
    </message>
    <message>
        <source>it has no segment %1</source>
        <translation>sie hat kein Segment %1</translation>
    </message>
    <message>
        <source>it has no element %1</source>
        <translation>sie hat kein Element %1</translation>
    </message>
    <message>
        <source>vertex %1, element %2</source>
        <translation>Scheitelpunkt %1, Element %2</translation>
    </message>
    <message>
        <source>vertex %1</source>
        <translation>Scheitelpunkt %1</translation>
    </message>
    <message>
        <source>%1 %2, should be %3</source>
        <translation>%1 %2, sollte %3 sein</translation>
    </message>
    <message>
        <source>it has no vertex %1</source>
        <translation>sie hat keinen Scheitelpunkt %1</translation>
    </message>
    <message>
        <source>vertex %1 would fall together with its neighbour</source>
        <translation>Scheitelpunkt %1 fiele mit seinem Nachbarn zusammen</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a keyword</source>
        <translation>„%1“ ist kein Schlüsselwort</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a pick</source>
        <translation>„%1“ ist keine Wahl</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a pick or #HANDLE</source>
        <translation>„%1“ ist weder eine Wahl noch #HANDLE</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a point</source>
        <translation>„%1“ ist kein Punkt</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an answer</source>
        <translation>„%1“ ist keine Antwort</translation>
    </message>
    <message>
        <source>%1: at character %2, %3</source>
        <translation>%1: bei Zeichen %2, %3</translation>
    </message>
    <message>
        <source>%1: a snap word needs the cursor of a window</source>
        <translation>%1: ein Fangwort braucht den Cursor eines Fensters</translation>
    </message>
    <message>
        <source>%1: a bare length needs the cursor of a window</source>
        <translation>%1: eine bloße Länge braucht den Cursor eines Fensters</translation>
    </message>
    <message>
        <source>%1 on offer (%2)</source>
        <translation>%1, das hier angeboten wird (%2)</translation>
    </message>
    <message>
        <source>%1 or one of the keywords (%2)</source>
        <translation>%1 und keines der Schlüsselwörter (%2)</translation>
    </message>
    <message>
        <source>%1 on offer</source>
        <translation>%1, das hier angeboten wird</translation>
    </message>
    <message>
        <source>%1: decimals follow a point, %2</source>
        <translation>%1: Dezimalstellen stehen nach einem Punkt, %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>there is no variable &apos;%1&apos;</source>
        <translation>es gibt keine Variable „%1“</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no value for %2</source>
        <translation>„%1“ ist kein Wert für %2</translation>
    </message>
    <message>
        <source>There is no style &apos;%1&apos;%2.</source>
        <translation>Es gibt keinen Stil „%1“%2.</translation>
    </message>
    <message>
        <source>There is no layer &apos;%1&apos;.</source>
        <translation>Es gibt keinen Layer „%1“.</translation>
    </message>
    <message>
        <source>In %1 of them gaps of single elements went to the nearest element.</source>
        <translation>In %1 davon gingen Lücken einzelner Elemente an das nächste Element.</translation>
    </message>
    <message>
        <source>multiline %1, %2 (%3)</source>
        <translation>Multilinie %1, %2 (%3)</translation>
    </message>
    <message>
        <source>%1 findings in %2 of %3 multilines.</source>
        <translation>%1 Befunde in %2 von %3 Multilinien.</translation>
    </message>
    <message>
        <source>multiline %1 left as it is: %2</source>
        <translation>Multilinie %1 bleibt, wie sie ist: %2</translation>
    </message>
    <message>
        <source>%1 gap cut or gone: the segments don&apos;t hold them any more.</source>
        <translation>%1 Lücke gekürzt oder weg: die Segmente fassen sie nicht mehr.</translation>
    </message>
    <message>
        <source>%1 gaps cut or gone: the segments don&apos;t hold them any more.</source>
        <translation>%1 Lücken gekürzt oder weg: die Segmente fassen sie nicht mehr.</translation>
    </message>
    <message>
        <source>The breaks stay: %1</source>
        <translation>Die Unterbrechungen bleiben: %1</translation>
    </message>
    <message>
        <source>%1 outside of model space left.</source>
        <translation>%1 außerhalb des Modellbereichs belassen.</translation>
    </message>
    <message>
        <source>%1 erased.</source>
        <translation>%1 gelöscht.</translation>
    </message>
    <message>
        <source>%1 joined, %2 left.</source>
        <translation>%1 verbunden, %2 belassen.</translation>
    </message>
    <message>
        <source>%1 at %2 of</source>
        <translation>%1 bei %2 von</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (fehlt)</translation>
    </message>
    <message>
        <source>multiline %1: style %2, scale %3, %4, %5, layer %6, %7 vertices, length %8</source>
        <translation>Multilinie %1: Stil %2, Maßstab %3, Ausrichtung %4, %5, Layer %6, %7 Scheitelpunkte, Länge %8</translation>
    </message>
    <message>
        <source>Scale &lt;%1&gt;: </source>
        <translation>Maßstab &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>Nothing mirrored: %1.</source>
        <translation>Nichts gespiegelt: %1.</translation>
    </message>
    <message>
        <source>The end stays: %1</source>
        <translation>Das Ende bleibt: %1</translation>
    </message>
    <message>
        <source>the command &apos;%1&apos; failed</source>
        <translation>der Befehl „%1“ ist gescheitert</translation>
    </message>
    <message>
        <source>%1 or [ALL/Window/Crossing/STYLE/LAYER/Previous/Remove/Add]: </source>
        <translation>%1 oder [ALL/Window/Crossing/STYLE/LAYER/Previous/Remove/Add]: </translation>
    </message>
    <message>
        <source>the command &apos;%1&apos; needs a window</source>
        <translation>der Befehl „%1“ braucht ein Fenster</translation>
    </message>
    <message>
        <source>there is no command &apos;%1&apos;</source>
        <translation>es gibt keinen Befehl „%1“</translation>
    </message>
    <message>
        <source>the module %1 can&apos;t be found</source>
        <translation>das Modul %1 ist nicht zu finden</translation>
    </message>
    <message>
        <source>New value for %1 &lt;%2&gt;: </source>
        <translation>Neuer Wert für %1 &lt;%2&gt;: </translation>
    </message>
    <message>
        <source>Snap modes, ALL, ON or OFF &lt;%1&gt;: </source>
        <translation>Fangarten, ALL, ON oder OFF &lt;%1&gt;: </translation>
    </message>
    <message>
        <source>the snap modes are %1</source>
        <translation>die Fangarten sind %1</translation>
    </message>
    <message>
        <source>Shall all %1 that use &apos;%2&apos; take &apos;%3&apos; [Yes/No] &lt;Yes&gt;: </source>
        <translation>Sollen alle %1, die „%2“ verwenden, „%3“ bekommen [Yes/No] &lt;Yes&gt;: </translation>
    </message>
    <message>
        <source>There is no style &apos;%1&apos;.</source>
        <translation>Es gibt keinen Stil „%1“.</translation>
    </message>
    <message>
        <source>There is a style of that name already; it stays &apos;%1&apos;.</source>
        <translation>Einen Stil dieses Namens gibt es schon; es bleibt bei „%1“.</translation>
    </message>
    <message>
        <source>It has no vertex %1.</source>
        <translation>Sie hat keinen Scheitelpunkt %1.</translation>
    </message>
    <message>
        <source>multiline %1: %2</source>
        <translation>Multilinie %1: %2</translation>
    </message>
    <message>
        <source>Nothing changed. %1.</source>
        <translation>Nichts hat sich geändert. %1.</translation>
    </message>
    <message>
        <source>Save &amp;History as Script...</source>
        <translation>Verlauf als Skript s&amp;ichern...</translation>
    </message>
    <message>
        <source>Write what was done in this drawing as a script that does it again</source>
        <translation>Was in dieser Zeichnung getan wurde, als Skript schreiben, das es noch einmal tut</translation>
    </message>
    <message>
        <source>a number in it would be too large</source>
        <translation>eine Zahl darin würde zu groß</translation>
    </message>
    <message>
        <source>no multiline</source>
        <translation>keine Multilinie</translation>
    </message>
    <message>
        <source>%1 of %2 multilines stretched.</source>
        <translation>%1 von %2 Multilinien gestreckt.</translation>
    </message>
    <message>
        <source>%1 of %2 multilines reversed.</source>
        <translation>%1 von %2 Multilinien umgekehrt.</translation>
    </message>
    <message>
        <source>Its name, &apos;%1&apos; to replace that style</source>
        <translation>Ihr Name, „%1“ ersetzt diesen Stil</translation>
    </message>
    <message>
        <source>Its name</source>
        <translation>Ihr Name</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is still in use; the copy stays &apos;%2&apos;.</source>
        <translation>„%1“ wird noch verwendet; die Kopie bleibt „%2“.</translation>
    </message>
    <message>
        <source>Style to change</source>
        <translation>Zu ändernder Stil</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>ein Ordner</translation>
    </message>
    <message>
        <source>a pipe</source>
        <translation>eine Pipe</translation>
    </message>
    <message>
        <source>a socket</source>
        <translation>ein Socket</translation>
    </message>
    <message>
        <source>a device</source>
        <translation>ein Gerät</translation>
    </message>
    <message>
        <source>the user has no home folder</source>
        <translation>der Benutzer hat keinen persönlichen Ordner</translation>
    </message>
    <message>
        <source>Re&amp;cover...</source>
        <translation>&amp;Wiederherstellen...</translation>
    </message>
    <message>
        <source>Open what a window that ended by a fault had not saved</source>
        <translation>Öffnet, was ein durch einen Fehler beendetes Fenster nicht gespeichert hatte</translation>
    </message>
    <message>
        <source>Au&amp;tosave...</source>
        <translation>Au&amp;tomatisch sichern...</translation>
    </message>
    <message>
        <source>How soon unsaved work is kept against faults</source>
        <translation>Wie bald nicht Gespeichertes gegen Fehler gesichert wird</translation>
    </message>
    <message>
        <source>there is no memory or no application for the picture</source>
        <translation>für das Bild fehlt der Speicher oder eine Anwendung</translation>
    </message>
    <message>
        <source>the picture can&apos;t be packed</source>
        <translation>das Bild kann nicht gepackt werden</translation>
    </message>
    <message>
        <source>there is no application for the picture</source>
        <translation>für das Bild fehlt eine Anwendung</translation>
    </message>
    <message>
        <source>the page can&apos;t be begun</source>
        <translation>die Seite kann nicht begonnen werden</translation>
    </message>
    <message>
        <source>the name of a picture has to end in .svg, .png or .pdf</source>
        <translation>der Name eines Bildes muss auf .svg, .png oder .pdf enden</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>No multiline is touched by these corners.</source>
        <translation>Von diesen Ecken wird keine Multilinie berührt.</translation>
    </message>
    <message>
        <source>a script can&apos;t answer the dialog of &apos;%1&apos;; of the editing tools, it can play -MLEDIT</source>
        <translation>ein Skript kann den Dialog von &apos;%1&apos; nicht beantworten; von den Bearbeitungswerkzeugen kann es -MLEDIT abspielen</translation>
    </message>
</context>
<context>
    <name>orvex::AutosaveDesk</name>
    <message>
        <source>No autosave: %1</source>
        <translation>Nicht automatisch gesichert: %1</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>Es gibt nichts wiederherzustellen.</translation>
    </message>
    <message>
        <source>Autosave</source>
        <translation>Automatisch sichern</translation>
    </message>
    <message>
        <source>Seconds without input after which unsaved work is kept; 0 for never:</source>
        <translation>Sekunden ohne Eingabe, nach denen nicht Gespeichertes gesichert wird; 0 für nie:</translation>
    </message>
</context>
<context>
    <name>orvex::Canvas</name>
    <message>
        <source>%1 touched</source>
        <translation>%1 berührt</translation>
    </message>
    <message>
        <source>%1 within</source>
        <translation>%1 darin</translation>
    </message>
</context>
<context>
    <name>orvex::ChangeMark</name>
    <message>
        <source>[*] — Orvex</source>
        <translation>[*] — Orvex</translation>
    </message>
</context>
<context>
    <name>orvex::CommandDock</name>
    <message>
        <source>Command line</source>
        <translation>Befehlszeile</translation>
    </message>
</context>
<context>
    <name>orvex::CommandLine</name>
    <message>
        <source>%1 lines, Enter plays them</source>
        <translation>%1 Zeilen, Eingabetaste führt sie aus</translation>
    </message>
</context>
<context>
    <name>orvex::DeskFiles</name>
    <message>
        <source>Open a drawing</source>
        <translation>Zeichnung öffnen</translation>
    </message>
    <message>
        <source>The opening of %1 was cancelled.</source>
        <translation>Das Öffnen von %1 wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The drawing can&apos;t be opened.</source>
        <translation>Die Zeichnung kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>%1 ist geöffnet</translation>
    </message>
    <message>
        <source>drawing.dxf</source>
        <translation>zeichnung.dxf</translation>
    </message>
    <message>
        <source>Save the drawing as</source>
        <translation>Zeichnung speichern unter</translation>
    </message>
    <message>
        <source>Orvex</source>
        <translation>Orvex</translation>
    </message>
    <message>
        <source>%1 exists already.</source>
        <translation>%1 gibt es schon.</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Soll die Datei ersetzt werden?</translation>
    </message>
    <message>
        <source>%1 was written by another program meanwhile.</source>
        <translation>%1 wurde inzwischen von einem anderen Programm geschrieben.</translation>
    </message>
    <message>
        <source>Saving here loses what is in it now. Save all the same?</source>
        <translation>Beim Speichern geht verloren, was jetzt darin steht. Trotzdem speichern?</translation>
    </message>
    <message>
        <source>The drawing can&apos;t be saved. What was in the file before is still there.</source>
        <translation>Die Zeichnung kann nicht gespeichert werden. Der bisherige Inhalt der Datei ist noch da.</translation>
    </message>
    <message>
        <source>Saved into %1</source>
        <translation>In %1 gespeichert</translation>
    </message>
    <message>
        <source>Export a picture</source>
        <translation>Bild ausgeben</translation>
    </message>
    <message>
        <source>SVG (*.svg);;PNG (*.png);;PDF (*.pdf)</source>
        <translation>SVG (*.svg);;PNG (*.png);;PDF (*.pdf)</translation>
    </message>
    <message>
        <source>The picture can&apos;t be written.</source>
        <translation>Das Bild kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Drawn into %1</source>
        <translation>In %1 gezeichnet</translation>
    </message>
    <message>
        <source>%1 has changes that aren&apos;t saved.</source>
        <translation>%1 hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>Do you want to save them?</source>
        <translation>Sollen sie gespeichert werden?</translation>
    </message>
    <message>
        <source>%1 is %2 and no file.</source>
        <translation>%1 ist %2 und keine Datei.</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>The autosave can&apos;t be opened.</source>
        <translation>Die Sicherung kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Recovered %1, which isn&apos;t saved yet</source>
        <translation>%1 ist wiederhergestellt und noch nicht gespeichert</translation>
    </message>
</context>
<context>
    <name>orvex::DrawBar</name>
    <message>
        <source>Off or frozen: nothing can be drawn on it</source>
        <translation>Aus oder gefroren: darauf kann nicht gezeichnet werden</translation>
    </message>
    <message>
        <source>Locked: what is drawn on it can&apos;t be edited</source>
        <translation>Gesperrt: was darauf gezeichnet wird, kann nicht bearbeitet werden</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>The style of what is drawn next</source>
        <translation>Der Stil dessen, was als Nächstes gezeichnet wird</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>The layer of what is drawn next</source>
        <translation>Der Layer dessen, was als Nächstes gezeichnet wird</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>The scale of what is drawn next: offsets of the style times this</source>
        <translation>Der Maßstab dessen, was als Nächstes gezeichnet wird: Abstände des Stils mal diese Zahl</translation>
    </message>
    <message>
        <source>Justification</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Which line of what is drawn next goes through the points</source>
        <translation>Welche Linie dessen, was als Nächstes gezeichnet wird, durch die Punkte geht</translation>
    </message>
    <message>
        <source> Scale </source>
        <translation> Maßstab </translation>
    </message>
    <message>
        <source>A scale of 0 would put all lines in one place.</source>
        <translation>Beim Maßstab 0 lägen alle Linien an einer Stelle.</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Null</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
</context>
<context>
    <name>orvex::FocusRing</name>
    <message>
        <source>&amp;Next Area</source>
        <translation>&amp;Nächster Bereich</translation>
    </message>
    <message>
        <source>Go on to the canvas, where arrows move the cross, to panels and bars</source>
        <translation>Weiter zur Zeichenfläche, wo Pfeiltasten das Kreuz bewegen, zu Bedienfeldern und Leisten</translation>
    </message>
    <message>
        <source>Previo&amp;us Area</source>
        <translation>Vorheriger &amp;Bereich</translation>
    </message>
    <message>
        <source>Go back to the bars, panels, canvas or command line before</source>
        <translation>Zurück zu den Leisten, Bedienfeldern, der Zeichenfläche oder Befehlszeile davor</translation>
    </message>
</context>
<context>
    <name>orvex::ForkedSave</name>
    <message>
        <source>not enough memory</source>
        <translation>zu wenig Speicher</translation>
    </message>
    <message>
        <source>the process that saved it ended by a fault</source>
        <translation>der Prozess, der sicherte, endete durch einen Fehler</translation>
    </message>
</context>
<context>
    <name>orvex::GripDesk</name>
    <message>
        <source>Move &amp;Common Vertices Together</source>
        <translation>&amp;Gemeinsame Scheitelpunkte zusammen verschieben</translation>
    </message>
    <message>
        <source>Vertices of selected multilines in the same place move as one</source>
        <translation>Scheitelpunkte gewählter Multilinien an derselben Stelle bewegen sich gemeinsam</translation>
    </message>
    <message>
        <source>&amp;Move Vertex</source>
        <translation>Scheitelpunkt &amp;verschieben</translation>
    </message>
    <message>
        <source>&amp;Add Vertex</source>
        <translation>Scheitelpunkt &amp;einfügen</translation>
    </message>
    <message>
        <source>&amp;Remove Vertex</source>
        <translation>Scheitelpunkt ent&amp;fernen</translation>
    </message>
</context>
<context>
    <name>orvex::HelpDesk</name>
    <message>
        <source>About Orvex</source>
        <translation>Über Orvex</translation>
    </message>
    <message>
        <source>Orvex %1</source>
        <translation>Orvex %1</translation>
    </message>
    <message>
        <source>Opens real drawings and edits their multilines: walls, roads, pipes.
What isn&apos;t edited is saved byte for byte.</source>
        <translation>Öffnet echte Zeichnungen und bearbeitet ihre Multilinien: Wände, Straßen, Rohre.
Was nicht bearbeitet wird, wird Byte für Byte gespeichert.</translation>
    </message>
</context>
<context>
    <name>orvex::HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Search all pages</source>
        <translation>Alle Seiten durchsuchen</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Voriges</translation>
    </message>
    <message>
        <source>The pages of the help can&apos;t be found.</source>
        <translation>Die Seiten der Hilfe sind nicht zu finden.</translation>
    </message>
</context>
<context>
    <name>orvex::JoinDesk</name>
    <message>
        <source>Join plan</source>
        <translation>Plan verbinden</translation>
    </message>
</context>
<context>
    <name>orvex::JoinPanel</name>
    <message>
        <source>closed</source>
        <translation>geschlossen</translation>
    </message>
    <message>
        <source>open</source>
        <translation>offen</translation>
    </message>
    <message>
        <source>merged</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>leave apart</source>
        <translation>getrennt</translation>
    </message>
    <message>
        <source>Crosses</source>
        <translation>Kreuze</translation>
    </message>
    <message>
        <source>Tees</source>
        <translation>T-Stöße</translation>
    </message>
    <message>
        <source>Join corners</source>
        <translation>Ecken verbinden</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>automatic: half the narrower wall</source>
        <translation>automatisch: halbe schmalere Wand</translation>
    </message>
    <message>
        <source>How far an end may lie short of a wall or over it, drawing units</source>
        <translation>Wie weit ein Ende vor einer Wand oder hinter ihr liegen darf, in Zeichnungseinheiten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Join a plan</source>
        <translation>Einen Plan verbinden</translation>
    </message>
    <message>
        <source>Select the multilines to join, or take all.</source>
        <translation>Zu verbindende Multilinien wählen oder alle nehmen.</translation>
    </message>
    <message>
        <source>Take the %1 selected</source>
        <translation>Die %1 gewählten nehmen</translation>
    </message>
    <message>
        <source>Take all multilines</source>
        <translation>Alle Multilinien nehmen</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>A tolerance is 0 or more.</source>
        <translation>Eine Toleranz ist 0 oder größer.</translation>
    </message>
</context>
<context>
    <name>orvex::KeypadPoint</name>
    <message>
        <source>&apos;%1&apos; is no number: decimals follow a point, %2.</source>
        <translation>„%1“ ist keine Zahl: Dezimalstellen stehen nach einem Punkt, %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
</context>
<context>
    <name>orvex::KeywordBar</name>
    <message>
        <source>Answers %1; typed, %2 will do</source>
        <translation>Antwortet %1; getippt genügt %2</translation>
    </message>
</context>
<context>
    <name>orvex::LanguageDesk</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>Wie das &amp;System</translation>
    </message>
    <message>
        <source>The language changes when the program is started again.</source>
        <translation>Die Sprache wechselt beim nächsten Start des Programms.</translation>
    </message>
</context>
<context>
    <name>orvex::LookDesk</name>
    <message>
        <source>&amp;Light Canvas</source>
        <translation>&amp;Helle Zeichenfläche</translation>
    </message>
    <message>
        <source>Show the drawing on a light ground</source>
        <translation>Die Zeichnung auf hellem Grund zeigen</translation>
    </message>
</context>
<context>
    <name>orvex::MainWindow</name>
    <message>
        <source>Command: %1</source>
        <translation>Befehl: %1</translation>
    </message>
    <message>
        <source>(first corner of the zoom window)</source>
        <translation>(erste Ecke des Zoomfensters)</translation>
    </message>
    <message>
        <source>(opposite corner of the zoom window)</source>
        <translation>(gegenüberliegende Ecke des Zoomfensters)</translation>
    </message>
    <message>
        <source>The module of the multiline commands can&apos;t be found.</source>
        <translation>Das Modul der Multilinienbefehle ist nicht zu finden.</translation>
    </message>
    <message>
        <source>Command:</source>
        <translation>Befehl:</translation>
    </message>
    <message>
        <source>Command, once the drawing is open:</source>
        <translation>Befehl, sobald die Zeichnung offen ist:</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>%1 waits until the drawing is open.</source>
        <translation>%1 wartet, bis die Zeichnung offen ist.</translation>
    </message>
</context>
<context>
    <name>orvex::PastedLines</name>
    <message>
        <source>The lines that follow are left out: %1.</source>
        <translation>Die weiteren Zeilen werden ausgelassen: %1.</translation>
    </message>
</context>
<context>
    <name>orvex::PlayScript</name>
    <message>
        <source>A script can be played at the command prompt only.</source>
        <translation>Ein Skript kann nur bei der Befehlsabfrage ausgeführt werden.</translation>
    </message>
    <message>
        <source>Play a script</source>
        <translation>Skript ausführen</translation>
    </message>
    <message>
        <source>Scripts (*.scr *.SCR);;All files (*)</source>
        <translation>Skripte (*.scr *.SCR);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Playing %1</source>
        <translation>%1 wird ausgeführt</translation>
    </message>
    <message>
        <source>The script was stopped after line %1.</source>
        <translation>Das Skript wurde nach Zeile %1 angehalten.</translation>
    </message>
    <message>
        <source>Save the history as a script</source>
        <translation>Verlauf als Skript speichern</translation>
    </message>
    <message>
        <source>Written into %1</source>
        <translation>In %1 geschrieben</translation>
    </message>
    <message>
        <source>What was changed in dialogs of styles is in no script: played, it won&apos;t give the same drawing.</source>
        <translation>Was in Dialogen für Stile geändert wurde, steht in keinem Skript: abgespielt gibt es nicht dieselbe Zeichnung.</translation>
    </message>
</context>
<context>
    <name>orvex::PropertyDesk</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
</context>
<context>
    <name>orvex::PropertyPanel</name>
    <message>
        <source>&amp;Style</source>
        <translation>&amp;Stil</translation>
    </message>
    <message>
        <source>S&amp;cale</source>
        <translation>&amp;Maßstab</translation>
    </message>
    <message>
        <source>&amp;Justification</source>
        <translation>&amp;Ausrichtung</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Null</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>&amp;Layer</translation>
    </message>
    <message>
        <source>C&amp;aps</source>
        <translation>A&amp;bschlüsse</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>Am Anfang</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>Am Ende</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beide</translation>
    </message>
    <message>
        <source>C&amp;hain</source>
        <translation>&amp;Kette</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Geschlossen</translation>
    </message>
    <message>
        <source>(differ)</source>
        <translation>(verschieden)</translation>
    </message>
    <message>
        <source>No multiline is selected.</source>
        <translation>Keine Multilinie ist gewählt.</translation>
    </message>
    <message>
        <source>%1 of %2 are locked.</source>
        <translation>%1 von %2 sind gesperrt.</translation>
    </message>
    <message>
        <source>1 multiline</source>
        <translation>1 Multilinie</translation>
    </message>
    <message>
        <source>%1 multilines</source>
        <translation>%1 Multilinien</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no scale.</source>
        <translation>„%1“ ist kein Maßstab.</translation>
    </message>
</context>
<context>
    <name>orvex::RecoverDialog</name>
    <message>
        <source>, before its file was written</source>
        <translation>, bevor die Datei geschrieben wurde</translation>
    </message>
    <message>
        <source>Unnamed drawing</source>
        <translation>Unbenannte Zeichnung</translation>
    </message>
    <message>
        <source>Recover drawings</source>
        <translation>Zeichnungen wiederherstellen</translation>
    </message>
    <message>
        <source>A window ended before these drawings were saved. Their files are as they were saved last; what was done since then was kept at the times below.</source>
        <translation>Ein Fenster endete, bevor diese Zeichnungen gespeichert waren. Ihre Dateien sind, wie sie zuletzt gespeichert wurden; was seitdem getan wurde, wurde zu den Zeiten unten gesichert.</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Gesichert</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Discard...</source>
        <translation>&amp;Verwerfen...</translation>
    </message>
    <message>
        <source>Ask &amp;Later</source>
        <translation>&amp;Später fragen</translation>
    </message>
    <message>
        <source>Orvex</source>
        <translation>Orvex</translation>
    </message>
    <message>
        <source>What was kept of %1 will be lost.</source>
        <translation>Was von %1 gesichert wurde, geht verloren.</translation>
    </message>
</context>
<context>
    <name>orvex::SelectDesk</name>
    <message>
        <source>%1 selected</source>
        <translation>%1 gewählt</translation>
    </message>
</context>
<context>
    <name>orvex::SnapDesk</name>
    <message>
        <source>No snap</source>
        <translation>Kein Fang</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>A&amp;perture...</source>
        <translation>&amp;Fangweite...</translation>
    </message>
    <message>
        <source>&amp;Snap</source>
        <translation>&amp;Fang</translation>
    </message>
    <message>
        <source>Draw points to targets near the cursor</source>
        <translation>Punkte auf Ziele nahe dem Cursor ziehen</translation>
    </message>
    <message>
        <source>SNAP</source>
        <translation>FANG</translation>
    </message>
    <message>
        <source>&amp;Ortho</source>
        <translation>&amp;Ortho</translation>
    </message>
    <message>
        <source>Keep lines horizontal or vertical from their base</source>
        <translation>Linien von ihrem Basispunkt waagerecht oder senkrecht halten</translation>
    </message>
    <message>
        <source>ORTHO</source>
        <translation>ORTHO</translation>
    </message>
    <message>
        <source>Angle Ste&amp;ps</source>
        <translation>&amp;Winkelschritte</translation>
    </message>
    <message>
        <source>Draw lines to angles in steps as they come near</source>
        <translation>Linien auf Winkel in Schritten ziehen, wenn sie nahe kommen</translation>
    </message>
    <message>
        <source>POLAR</source>
        <translation>POLAR</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Fangweite</translation>
    </message>
    <message>
        <source>Pixels from the cursor to a target, at most:</source>
        <translation>Pixel vom Cursor bis zu einem Ziel, höchstens:</translation>
    </message>
    <message>
        <source>Snap &amp;Modes</source>
        <translation>Fang&amp;modi</translation>
    </message>
    <message>
        <source>Steps of &amp;Angles</source>
        <translation>Schrittweite der Win&amp;kel</translation>
    </message>
</context>
<context>
    <name>orvex::StatusLine</name>
    <message>
        <source>Style: %1</source>
        <translation>Stil: %1</translation>
    </message>
</context>
<context>
    <name>orvex::StyleButton</name>
    <message>
        <source>The current multiline style; a click manages the styles of the drawing</source>
        <translation>Der aktuelle Multilinienstil; ein Klick verwaltet die Stile der Zeichnung</translation>
    </message>
    <message>
        <source>No style</source>
        <translation>Kein Stil</translation>
    </message>
    <message>
        <source>Current style: %1; a click manages the styles</source>
        <translation>Aktueller Stil: %1; ein Klick verwaltet die Stile</translation>
    </message>
</context>
<context>
    <name>orvex::ToolDesk</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Command: %1</source>
        <translation>Befehl: %1</translation>
    </message>
    <message>
        <source>Editing tool: %1</source>
        <translation>Werkzeug: %1</translation>
    </message>
    <message>
        <source>No editing tool was chosen.</source>
        <translation>Kein Werkzeug wurde gewählt.</translation>
    </message>
</context>
<context>
    <name>orvex::UndoDesk</name>
    <message>
        <source>1 multiline</source>
        <translation>1 Multilinie</translation>
    </message>
    <message>
        <source>%1 multilines</source>
        <translation>%1 Multilinien</translation>
    </message>
    <message>
        <source>1 entity</source>
        <translation>1 Objekt</translation>
    </message>
    <message>
        <source>%1 entities</source>
        <translation>%1 Objekte</translation>
    </message>
    <message>
        <source>The memory for undo is used up; the oldest steps can&apos;t be taken back any more (Edit, Undo Memory).</source>
        <translation>Der Speicher für Rückgängig ist voll; die ältesten Schritte können nicht mehr zurückgenommen werden (Bearbeiten, Speicher für Rückgängig).</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Undo memory</source>
        <translation>Speicher für Rückgängig</translation>
    </message>
    <message>
        <source>Memory that steps may hold until the oldest go, in MiB:</source>
        <translation>Speicher, den Schritte belegen dürfen, bis die ältesten verfallen, in MiB:</translation>
    </message>
</context>
</TS>
