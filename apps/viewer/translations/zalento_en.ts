<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB">
<context>
    <name>Drevon::Zalento::Assessment</name>
    <message numerus="yes">
        <source>%n result(s) kept</source>
        <translation>
            <numerusform>%n result kept</numerusform>
            <numerusform>%n results kept</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n results: mean %1, spread %2, of the mean %3</source>
        <translation>
            <numerusform>%n result: mean %1, spread %2, of the mean %3</numerusform>
            <numerusform>%n results: mean %1, spread %2, of the mean %3</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::DocumentList</name>
    <message numerus="yes">
        <source>%n point(s) of the session meet no wall and were left out.</source>
        <translation>
            <numerusform>%n point of the session meets no wall and was left out.</numerusform>
            <numerusform>%n points of the session meet no wall and were left out.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 has %n frames, of which this is the first.</source>
        <translation>
            <numerusform>%1 has %n frame, of which this is the first.</numerusform>
            <numerusform>%1 has %n frames, of which this is the first.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::FeatureModel</name>
    <message numerus="yes">
        <source>%n more click(s)</source>
        <translation>
            <numerusform>%n more click</numerusform>
            <numerusform>%n more clicks</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Drevon::Zalento::MeasurementEditor</name>
    <message numerus="yes">
        <source>The joint&apos;s edge was found at %n place(s).</source>
        <translation>
            <numerusform>The joint&apos;s edge was found at %n place.</numerusform>
            <numerusform>The joint&apos;s edge was found at %n places.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message numerus="yes">
        <source>%n measurement(s) are not saved.</source>
        <translation>
            <numerusform>%n measurement is not saved.</numerusform>
            <numerusform>%n measurements are not saved.</numerusform>
        </translation>
    </message>
</context>
</TS>
