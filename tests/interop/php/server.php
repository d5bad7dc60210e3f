<?php
// Answers calls as one of the cases says, and tells on a GET how it understood the last one:
//
//     php server.php <folder of the schema> <address of the bus> <case>
//
// Prints its location when it listens, and ends when its standard input does.
declare(strict_types=1);
require __DIR__ . '/bus.php';

[, $schema, $authority, $case] = $argv;

define('BUS', "$authority/schemas/halyardns/3/");

/** Takes every operation and the bus header; writes down what came, and gives the case's reply. */
final class Service {
    public string $understood = '';
    private ?SoapServer $server = null;

    public function __construct(private Closure $reply) {}

    public function setServer(SoapServer $server): void {
        $this->server = $server;
    }

    public function __call(string $name, array $arguments): mixed {
        if ($name === 'halyardHeader') {
            $this->understood .= tree('header', $arguments[0]);
            return null;
        }
        $this->understood .= "operation: $name\n";
        foreach ($arguments as $i => $argument) {
            $this->understood .= tree('argument ' . ($i + 1), $argument);
        }
        return ($this->reply)($this->server);
    }
}

/** The text of a SoapServer's answer. */
function answer(SoapServer $server, string $envelope): string {
    ob_start();
    try {
        $server->handle($envelope);
    } finally {
        $text = ob_get_clean();
    }
    return $text;
}

/** The SOAP actions that the service's WSDL gives to its operations. */
function actions(string $wsdl): array {
    preg_match_all(
        '~<wsdl:operation name="(\w+)">\s*<soap:operation soapAction="([^"]*)"~',
        file_get_contents($wsdl),
        $matches);
    return array_combine($matches[1], $matches[2]);
}

/** Reads a request; null when there is none. */
function readRequest(mixed $connection): ?array {
    $first = fgets($connection);
    if ($first === false) {
        return null;
    }
    $headers = [];
    while (($line = rtrim((string) fgets($connection), "\r\n")) !== '') {
        [$name, $value] = explode(':', $line, 2);
        $headers[strtolower($name)] = trim($value);
    }
    $length = (int) ($headers['content-length'] ?? 0);
    return [
        'method' => strtok($first, ' '),
        'action' => $headers['soapaction'] ?? '',
        'body' => $length > 0 ? stream_get_contents($connection, $length) : '',
    ];
}

function writeReply(mixed $connection, int $status, string $type, string $body): void {
    fwrite($connection, "HTTP/1.1 $status Status\r\nContent-Type: $type; charset=utf-8\r\n"
        . 'Content-Length: ' . strlen($body) . "\r\nConnection: close\r\n\r\n" . $body);
}

/** A reply of a conversation with these details. */
function asynchReply(mixed ...$details): BusObject {
    return bus('asynchReply', details: $details, status: 'conversationComplete');
}

// Each case: the service, the options of the extension, and what is answered.
$cases = [
    'no-parameters' => ['reportService', [], fn () => [bus('mapInfo'), bus('mapInfo')]],

    'header' => ['reportService', [], function (SoapServer $server) {
        $server->addSoapHeader(new SoapHeader(BUS, 'halyardHeader', (object) [
            'Warden' => (object) [
                'WardenPassport' => (object) ['id' => 'MTsy', 'isAnonymous' => true],
                'authenticityToken' => "\x00\x01\xFE\xFF",
            ],
            'tracking' => (object) ['hopCount' => 3],
        ]));
        return asynchReply();
    }],

    'derived-details' => ['reportService', [], fn () => asynchReply(
        bus('asynchDetailReportStatus', status: 'responseReady'),
        bus('asynchDetailReportOutput',
            outputObjects: [
                bus('output', dataType: prop('text/html')),
                bus('report', defaultName: prop('Q4')),
            ],
            outputPages: ['<p>1</p>', '<p>2</p>']))],

    'derived-details-soap-array' => [
        'reportService',
        ['features' => SOAP_USE_XSI_ARRAY_TYPE],
        fn () => asynchReply(
            bus('asynchDetailReportStatus', status: 'responseReady'),
            bus('asynchDetailReportOutput', outputPages: ['<p>1</p>'])),
    ],

    'null-reply' => ['reportService', [], fn () => null],

    'null-fields-and-items' => ['reportService', [], fn () => asynchReply(
        null,
        bus('asynchDetailReportOutput', outputObjects: null, outputPages: ['one', null, 'three']),
        bus('asynchDetailReportStatus', status: null))],

    'null-soap-array' => [
        'reportService',
        ['features' => SOAP_USE_XSI_ARRAY_TYPE],
        fn () => asynchReply(bus('asynchDetailReportOutput', outputPages: null)),
    ],

    'null-result-soap-array' => [
        'reportService',
        ['features' => SOAP_USE_XSI_ARRAY_TYPE],
        fn () => null,
    ],

    'empty-arrays' => ['reportService', [], fn () => asynchReply(
        bus('asynchDetailReportOutput', outputObjects: [], outputPages: []))],

    'texts' => ['reportService', [], fn () => asynchReply(
        bus('asynchDetailReportOutput', outputPages: [TEXT, '', "  two\nlines  "]))],

    'boolean' => ['VelmoraTabulon', [], fn () => true],

    'numbers' => ['monitorService', [], fn () => asynchReply(
        bus('asynchDetailReportOutput', outputObjects: [
            bus('pageDefinition', height: prop(1.5), width: prop(-0.25)),
        ]),
        bus('asynchDetailMIMEAttachment', dataSize: 2147483647))],

    'base64' => ['reportService', [], fn () => "\x00\x01\xFE\xFFabc"],

    'unknown-elements' => ['reportService', [], fn () => new SoapVar(
        '<result xmlns:i="http://www.w3.org/2001/XMLSchema-instance" xmlns:b="' . BUS . '">'
            . '<news><deep i:type="b:run">text</deep></news><status>complete</status>'
            . '<details><u:first xmlns:u="urn:elsewhere" i:type="b:asynchDetailReportStatus">'
            . '<u:news/></u:first></details></result>',
        XSD_ANYXML)],

    'shared-object' => ['reportService', [], function () {
        $status = bus('asynchDetailReportStatus', status: 'responseReady');
        return asynchReply($status, $status);
    }],

    'without-wsdl' => [null, ['uri' => "$authority/schemas/reportService/1"], fn () => new SoapVar(
        (object) ['status' => new SoapVar('complete', XSD_STRING, 'asynchReplyStatusEnum', BUS)],
        SOAP_ENC_OBJECT,
        'asynchReply',
        BUS)],

    'fault' => ['reportService', [], fn () => throw new SoapFault(
        'Server', 'not <today>', 'urn:actor')],

    'fault-with-details' => ['reportService', [], fn () => throw new SoapFault(
        'Server', 'not today', null, new SoapVar(
            '<detail xmlns:b="' . BUS . '"><b:exception><b:severity>error</b:severity>'
                . '<b:errorCode>RPT-1</b:errorCode><b:message><b:messageString>no room'
                . '</b:messageString><b:nestingLevel>1</b:nestingLevel></b:message>'
                . '</b:exception></detail>',
            XSD_ANYXML))],

    'fault-with-foreign-details' => ['reportService', [], fn () => throw new SoapFault(
        'Server', 'not today', null, (object) ['code' => 7, 'hint' => 'later'])],

    'fault-with-deep-foreign-details' => ['reportService', [], fn () => throw new SoapFault(
        'Server', 'not today', null, (object) ['cause' => (object) ['code' => 7]])],
];

[$serviceName, $options, $reply] = $cases[$case];
$file = $serviceName === null ? null : wsdl($schema, $serviceName);
$actions = $file === null ? null : actions($file);

$listener = stream_socket_server('tcp://127.0.0.1:0');
// Not echo: the extension could send no headers after it.
fwrite(STDOUT, 'http://' . stream_socket_get_name($listener, false) . "/\n");

$understood = '';
for (;;) {
    $readable = [$listener, STDIN];
    $none = null;
    stream_select($readable, $none, $none, null);
    if (in_array(STDIN, $readable, true)) {
        exit(0);
    }
    $connection = stream_socket_accept($listener);
    $request = readRequest($connection);
    if ($request === null) {
        continue;
    }
    if ($request['method'] === 'GET') {
        writeReply($connection, 200, 'text/plain', $understood);
        fclose($connection);
        continue;
    }
    $service = new Service($reply);
    $server = new SoapServer($file, soapOptions($options));
    $server->setObject($service);
    $service->setServer($server);
    $body = answer($server, $request['body']);
    $understood = $service->understood;
    if ($actions !== null && preg_match('/^operation: (\w+)$/m', $understood, $match)) {
        $known = $request['action'] === "\"{$actions[$match[1]]}\"";
        $understood = ($known ? 'action of the WSDL' : "unknown action $request[action]")
            . "\n$understood";
    }
    writeReply($connection, str_contains($body, ':Fault>') ? 500 : 200, 'text/xml', $body);
    fclose($connection);
}
