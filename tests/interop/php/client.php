<?php
// Calls a server as one of the cases says, and prints what it understood of the reply:
//
//     php client.php <folder of the schema> <address of the bus> <location of the server> <case>
declare(strict_types=1);
require __DIR__ . '/bus.php';

[, $schema, $authority, $location, $case] = $argv;

define('BUS', "$authority/schemas/halyardns/3/");

/** A client that knows the service by its WSDL. */
function service(string $name, array $options = []): SoapClient {
    global $schema, $location;
    return new SoapClient(wsdl($schema, $name), soapOptions($options + ['location' => $location]));
}

/** A client that knows nothing but the operations' namespace. */
function serviceWithoutWsdl(string $name, array $options = []): SoapClient {
    global $authority, $location;
    return new SoapClient(null, soapOptions($options + [
        'location' => $location,
        'uri' => "$authority/schemas/$name/1",
    ]));
}

/** An object with the name of its type given by hand. */
function typed(string $type, array $fields): SoapVar {
    return new SoapVar((object) $fields, SOAP_ENC_OBJECT, $type, BUS);
}

/** A word of an enumeration. */
function word(string $enumeration, string $text): SoapVar {
    return new SoapVar($text, XSD_STRING, $enumeration, BUS);
}

function named(string $name, mixed $value): SoapParam {
    return new SoapParam($value, $name);
}

function xml(string $text): SoapVar {
    return new SoapVar($text, XSD_ANYXML);
}

function prompt(bool $value): BusObject {
    return bus('runOptionBoolean', name: 'prompt', value: $value);
}

/** Calls and prints the reply's header too. */
function callWithHeaders(SoapClient $client, string $operation, array $arguments, array $headers): mixed {
    $replyHeaders = [];
    $result = $client->__soapCall($operation, $arguments, null, $headers, $replyHeaders);
    foreach ($replyHeaders as $name => $value) {
        echo tree($name, $value);
    }
    return $result;
}

/** The bus header. */
function busHeader(array $fields): SoapHeader {
    return new SoapHeader(BUS, 'halyardHeader', typed('halyardHeader', $fields));
}

/** The names of a service's operations, each once and in their order. */
function operations(SoapClient $client): array {
    $names = [];
    foreach ($client->__getFunctions() as $declaration) {
        preg_match('/(\w+)\(/', $declaration, $match);
        $names[] = $match[1];
    }
    return array_values(array_unique($names));
}

/** Calls each operation of a service with nulls only, and prints its name and what came back. */
function callEveryOperation(string $service): void {
    $client = service($service);
    foreach (operations($client) as $operation) {
        echo "$operation\n";
        $client->__soapCall($operation, []);
    }
}

$cases = [
    'no-parameters' => fn () => service('reportService')->getMapInfo(),

    'header' => fn () => callWithHeaders(
        service('reportService'),
        'run',
        ['/content/report', [], [prompt(true)]],
        [busHeader([
            'Warden' => (object) [
                'WardenPassport' => (object) ['id' => 'MTsx', 'isAnonymous' => false],
                'authenticityToken' => "\x00\x01\xFE\xFF",
                'roles' => ['Authors', 'R&D'],
            ],
            'tracking' => (object) ['hopCount' => 2, 'requestContext' => 'q4'],
        ])]),

    'foreign-header' => fn () => callWithHeaders(
        service('reportService'),
        'getMapInfo',
        [],
        [
            new SoapHeader('urn:elsewhere', 'trace', 'abc'),
            new SoapHeader('urn:elsewhere', 'route', (object) ['hops' => [1, 2]]),
            busHeader(['tracking' => (object) ['hopCount' => 1]]),
        ]),

    'derived-options' => fn () => service('reportService')->run('/content/report', [], [
        prompt(false),
        bus('runOptionStringArray', name: 'outputFormat', value: ['PDF', 'HTML']),
        typed('runOptionInt', ['name' => 'verticalElements', 'value' => 5]),
    ]),

    'derived-options-soap-array' => fn () => service(
        'reportService',
        ['features' => SOAP_USE_XSI_ARRAY_TYPE]
    )->run('/content/report', [], [
        prompt(false),
        bus('runOptionStringArray', name: 'outputFormat', value: ['PDF', 'HTML']),
    ]),

    'null-parameters' => fn () => service('reportService')->run(null, null, null),

    'null-soap-array' => fn () => service(
        'reportService',
        ['features' => SOAP_USE_XSI_ARRAY_TYPE]
    )->run('/content/report', null, []),

    'null-fields-and-items' => fn () => service('reportService')->run('/content/report', [], [
        null,
        bus('runOptionBoolean', name: 'prompt', value: null),
    ]),

    'plain-run' => fn () => service('reportService')->run('/content/report', [], []),

    'report-texts' => fn () => service('reportService')->run(TEXT, [], [
        bus('runOptionString', name: 'burstKeyLimit', value: ''),
        bus('runOptionString', name: 'burstKeyLimit', value: "  two\nlines  "),
    ]),

    'latin1-texts' => fn () => service('reportService', ['encoding' => 'ISO-8859-1'])
        ->run("caf\xE9", [], []),

    'boolean' => fn () => service('dispatcher')->stopService('/configuration/service', true),

    'numbers' => fn () => service('monitorService')->add('event', [
        bus('pageDefinition', height: prop(1.5), width: prop('2.50 ')),
    ], null, [
        bus('runOptionInt', name: 'verticalElements', value: -2147483648),
    ]),

    'untyped-header' => fn () => callWithHeaders(
        serviceWithoutWsdl('reportService'),
        'getMapInfo',
        [],
        [new SoapHeader(BUS, 'halyardHeader', (object) ['tracking' => (object) ['hopCount' => 3]])]),

    'type-of-another-version' => fn () => callWithHeaders(
        service('reportService'),
        'getMapInfo',
        [],
        [busHeader(['tracking' => typed('trackingOfAnotherVersion', [])])]),

    'integer-typed-int' => fn () => serviceWithoutWsdl('reportService')->run(
        named('options', [
            typed('runOptionInt', ['value' => new SoapVar(3, XSD_INTEGER)]),
            typed('runOptionBoolean', []),
        ])),

    'long-typed-int' => fn () => serviceWithoutWsdl('reportService')->run(
        named('options', [
            typed('runOptionInt', ['value' => new SoapVar(3, XSD_LONG)]),
            typed('runOptionBoolean', []),
        ])),

    'base64' => fn () => service('monitorService')->add('event', [
        typed('graphic', ['data' => prop("\x00\x01\xFE\xFFabc")]),
    ], null, null),

    'raw-option-with-unknown-elements' => fn () => service('reportService')->run('/content/report', [], [
        xml('<choice xmlns:b="' . BUS . '" xmlns:i="http://www.w3.org/2001/XMLSchema-instance"'
            . ' i:type="b:runOptionBoolean"><name>prompt</name><u:news xmlns:u="urn:elsewhere">'
            . '<u:deep i:type="u:more">text</u:deep></u:news><value>true</value></choice>'),
    ]),

    'raw-unknown-element' => fn () => serviceWithoutWsdl('reportService')->run(
        named('options', [
            typed('runOptionBoolean', [
                'name' => word('runOptionEnum', 'prompt'),
                'news' => xml('<u:news xmlns:u="urn:elsewhere"><u:deep>text</u:deep></u:news>'),
                'more' => (object) ['a' => 1],
                'value' => true,
            ]),
            typed('runOptionInt', ['value' => 1]),
        ])),

    'raw-parameter' => fn () => service('reportService')->run(
        xml('<where><is>it</is></where>'), [], []),

    'surplus-argument' => fn () => service('reportService')->run('/content/report', [], [], 'surplus'),

    'shared-object' => function () {
        $option = prompt(true);
        return service('reportService')->run('/content/report', [], [$option, $option]);
    },

    'shared-typed-object' => function () {
        $option = typed('runOptionBoolean', ['name' => 'prompt', 'value' => true]);
        return service('reportService')->run('/content/report', [], [$option, $option]);
    },

    'equal-objects' => fn () => service('reportService')->run('/content/report', [], [
        prompt(true),
        prompt(true),
    ]),

    'without-wsdl-mixed-array' => fn () => serviceWithoutWsdl('reportService')->run(
        named('options', [
            typed('runOptionBoolean', [
                'name' => word('runOptionEnum', 'prompt'),
                'value' => true,
            ]),
            typed('runOptionInt', ['value' => 3]),
        ])),

    'without-wsdl-text-for-enum' => fn () => serviceWithoutWsdl('reportService')->run(
        named('options', [
            typed('runOptionBoolean', ['name' => 'prompt']),
            typed('runOptionInt', []),
        ])),

    'without-wsdl-array-of-one-type' => fn () => serviceWithoutWsdl('reportService')->run(
        named('options', [typed('runOptionBoolean', ['name' => 'prompt', 'value' => true])])),

    'without-wsdl-text-for-object' => fn () => serviceWithoutWsdl('reportService')->run(
        named('objectPath', '/content/report')),

    'without-wsdl-struct' => fn () => serviceWithoutWsdl('reportService')->run(
        named('objectPath', (object) ['path' => '/content/report'])),

    'without-wsdl-map' => fn () => serviceWithoutWsdl('reportService')->run(
        named('parameterValues', ['region' => 'EMEA'])),

    'literal' => fn () => serviceWithoutWsdl('reportService', ['use' => SOAP_LITERAL])->run(
        named('objectPath', '/content/report'),
        named('parameterValues', [
            (object) ['name' => 'region'],
            (object) ['name' => 'year'],
        ])),

    'literal-abstract-items' => fn () => serviceWithoutWsdl(
        'reportService',
        ['use' => SOAP_LITERAL]
    )->run(named('options', [(object) ['name' => 'prompt', 'value' => true]])),

    'soap12' => fn () => service('reportService', ['soap_version' => SOAP_1_2])->getMapInfo(),

    'preview' => fn () => service('reportService')->getMapPreview('map-1'),
];

// The cases of tests/toolkits/Cases.h, of the event management service.
function run(?string $path, ?array $values, ?array $options, array $headers = []): mixed {
    return callWithHeaders(
        service('eventManagementService'), 'run', [$path, $values, $options], $headers);
}

function item(string $use, string $display): BusObject {
    return bus('simpleParmValueItem', inclusive: true, use: $use, display: $display);
}

$path = '/content/report';
$cases += [
    'tree' => fn () => run($path, [
        bus('parameterValue', name: 'region', value: [
            item('EMEA', 'Europe'),
            bus('boundRangeParmValueItem', start: item('1', 'one'), end: item('9', 'nine')),
        ]),
    ], [
        prompt(false),
        bus('runOptionStringArray', name: 'outputFormat', value: ['PDF', 'HTML']),
        bus('runOptionInt', name: 'verticalElements', value: -5),
    ], [busHeader([
        'Warden' => (object) [
            'authenticityToken' => "\x00\x01\xFE\xFFabc",
            'WardenPassport' => (object) ['id' => 'MTsx', 'isAnonymous' => false],
            'roles' => ['Authors', 'R&D'],
        ],
        'tracking' => (object) ['hopCount' => 2],
    ])]),
    'texts' => fn () => run(TEXT, [], [
        bus('runOptionString', name: 'burstKeyLimit', value: "  two\nlines  "),
    ]),
    'empty-text' => fn () => run('', [], [bus('runOptionString', name: 'burstKeyLimit', value: '')]),
    'nulls' => fn () => run(null, null, null),
    'empty' => fn () => run($path, [], []),
    'null-items' => fn () => run($path, [bus('parameterValue', name: 'region'), null], [
        bus('runOptionBoolean', name: 'prompt', value: null),
        null,
    ]),
    'omitted' => fn () => run($path, [bus('parameterValue', name: 'region')], [
        bus('runOptionBoolean', name: 'prompt'),
    ]),
    'shared' => function () use ($path) {
        $option = prompt(true);
        return run($path, [], [$option, $option]);
    },
    'trigger' => fn () => service('eventManagementService')->trigger('nightly'),
];

if (str_starts_with($case, 'every-operation-of-')) {
    callEveryOperation(substr($case, strlen('every-operation-of-')));
    exit(0);
}

try {
    $result = $cases[$case]();
    echo tree('result', $result);
} catch (SoapFault $fault) {
    echo "fault: $fault->faultcode: $fault->faultstring\n";
    echo tree('detail', $fault->detail ?? null);
}
