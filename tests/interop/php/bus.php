<?php
// What both ends share: the schema's classes as PHP classes, and a way to print what arrived.
declare(strict_types=1);

/** Text with all that needs escaping in XML, and letters of one to four bytes. */
const TEXT = "a<b> & \"c\" 'd' ]]> é ß 漢字 😀\ttab";

// A warning of the extension is a failure of the case.
set_error_handler(function (int $level, string $text, string $file, int $line): bool {
    throw new ErrorException($text, 0, $level, $file, $line);
});

// One class for each type whose name a case needs to see; other objects arrive as plain ones.
#[AllowDynamicProperties]
abstract class BusObject {}
final class AsynchDetailMIMEAttachment extends BusObject {}
final class AsynchDetailReportOutput extends BusObject {}
final class AsynchDetailReportStatus extends BusObject {}
final class AsynchReply extends BusObject {}
final class AsynchRequest extends BusObject {}
final class BoundRangeParmValueItem extends BusObject {}
final class MapInfo extends BusObject {}
final class Output extends BusObject {}
final class PageDefinition extends BusObject {}
final class ParameterValue extends BusObject {}
final class Report extends BusObject {}
final class RunOptionBoolean extends BusObject {}
final class RunOptionInt extends BusObject {}
final class RunOptionString extends BusObject {}
final class RunOptionStringArray extends BusObject {}
final class SimpleParmValueItem extends BusObject {}

/** The PHP class of each type that has one. */
function classMap(): array {
    $map = [];
    foreach (get_declared_classes() as $class) {
        if (is_subclass_of($class, BusObject::class)) {
            $map[lcfirst($class)] = $class;
        }
    }
    return $map;
}

/** An object of a type of the schema. */
function bus(string $type, mixed ...$fields): BusObject {
    $class = classMap()[$type];
    $object = new $class();
    foreach ($fields as $name => $value) {
        $object->$name = $value;
    }
    return $object;
}

/** A property: an object that holds one value. */
function prop(mixed $value): object {
    return (object) ['value' => $value];
}

/** What both ends tell the extension: nothing is cached, and types become our classes. */
function soapOptions(array $more = []): array {
    return $more + ['cache_wsdl' => WSDL_CACHE_NONE, 'classmap' => classMap()];
}

function wsdl(string $schemaFolder, string $service): string {
    return "$schemaFolder/$service.wsdl";
}

/** A value as an indented tree; what is no UTF-8 is shown in hexadecimal digits. */
function tree(string $name, mixed $value, int $level = 0): string {
    $line = str_repeat('  ', $level) . "$name: ";
    if ($value instanceof SoapVar) { // what no WSDL describes
        $value = $value->enc_value;
    }
    if (is_array($value)) {
        $line .= 'array of ' . count($value);
        $children = array_values($value);
        $names = array_map(fn (int $i): string => '[' . ($i + 1) . ']', array_keys($children));
    } elseif (is_object($value)) {
        $line .= $value instanceof BusObject ? lcfirst($value::class) : 'object';
        $children = array_values(get_object_vars($value));
        $names = array_keys(get_object_vars($value));
    } else {
        $isBinary = is_string($value) && !preg_match('//u', $value);
        return $line . ($isBinary
            ? 'hex ' . bin2hex($value)
            : json_encode($value, JSON_UNESCAPED_UNICODE | JSON_UNESCAPED_SLASHES
                                  | JSON_PRESERVE_ZERO_FRACTION | JSON_THROW_ON_ERROR)) . "\n";
    }
    $text = "$line\n";
    foreach ($children as $i => $child) {
        $text .= tree((string) $names[$i], $child, $level + 1);
    }
    return $text;
}
