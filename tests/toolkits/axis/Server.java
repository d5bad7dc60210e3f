// Axis 1 as a server of the event management service:
//
//     java Server <folder of the schema> <address of the bus> <case>
//
// Run it where server-config.wsdd is. Prints its location when it listens, and ends when its standard
// input does. With -Ddefaults=true Axis is left as it comes.
import example.korva.bus.schemas.eventManagementService._1.EventManagementServiceBindingImpl;
import example.korva.bus.schemas.halyardns._3.*;
import java.math.BigInteger;
import java.net.InetAddress;
import java.net.ServerSocket;
import org.apache.axis.AxisEngine;
import org.apache.axis.MessageContext;
import org.apache.axis.configuration.FileProvider;
import org.apache.axis.message.SOAPHeaderElement;
import org.apache.axis.transport.http.SimpleAxisServer;

public class Server extends EventManagementServiceBindingImpl {
    // Not the whole text of the others: a letter of four bytes, which Axis writes as two characters
    // that XML does not have, would hide all else.
    static final String TEXT = "a<b> & \"c\" 'd' ]]> \u00e9 \u00df \u6f22\u5b57 \ttab";
    static final byte[] BYTES = {0, 1, (byte) 0xFE, (byte) 0xFF, 'a', 'b', 'c'};

    static String bus;
    static String served;

    static AsynchReply reply(AsynchDetail... details) {
        AsynchReply reply = new AsynchReply();
        reply.setStatus(AsynchReplyStatusEnum.complete);
        reply.setDetails(details);
        return reply;
    }

    static AsynchDetailReportStatus status() {
        AsynchDetailReportStatus detail = new AsynchDetailReportStatus();
        detail.setStatus(AsynchDetailReportStatusEnum.responseReady);
        return detail;
    }

    static AsynchDetailReportOutput pages(String... pages) {
        AsynchDetailReportOutput detail = new AsynchDetailReportOutput();
        detail.setOutputPages(pages);
        return detail;
    }

    static StringProp property(String value) {
        StringProp property = new StringProp();
        property.setValue(value);
        return property;
    }

    static AsynchReply tree() throws Exception {
        Output output = new Output();
        output.setDataType(property("text/html"));
        Page page = new Page();
        page.setDataType(property("text/plain"));
        AsynchDetailReportOutput pages = pages("<p>1</p>", TEXT);
        pages.setOutputObjects(new BaseClass[] {output, page});
        AsynchDetailMIMEAttachment attached = new AsynchDetailMIMEAttachment();
        attached.setData(BYTES);
        attached.setDataSize(BigInteger.valueOf(7));
        RunOptionBoolean prompt = new RunOptionBoolean();
        prompt.setName(RunOptionEnum.prompt);
        prompt.setValue(true);
        AsynchRequest primary = new AsynchRequest();
        primary.setObjectPath("/content/report");
        primary.setOptions(new Option[] {prompt});
        AsynchReply reply = reply(status(), pages, attached);
        reply.setPrimaryRequest(primary);

        Tracking tracking = new Tracking();
        tracking.setHopCount(BigInteger.valueOf(3));
        HalyardHeader header = new HalyardHeader();
        header.setTracking(tracking);
        SOAPHeaderElement entry = new SOAPHeaderElement(bus, "halyardHeader", header);
        entry.setActor(null);
        MessageContext.getCurrentContext().getResponseMessage().getSOAPEnvelope().addHeader(entry);
        return reply;
    }

    @Override
    public AsynchReply run(String objectPath, ParameterValue[] values, Option[] options) {
        try {
            switch (served) {
                case "tree": return tree();
                case "empty-text": return reply(pages("", "two"));
                case "nulls": return null;
                case "null-items":
                    return reply(null, pages("one", null, "three"), new AsynchDetailReportStatus());
                case "omitted": return new AsynchReply();
                case "shared": {
                    AsynchDetailReportStatus detail = status();
                    return reply(detail, detail);
                }
                default: return reply();
            }
        } catch (Exception error) {
            throw new IllegalStateException(error);
        }
    }

    @Override
    public int trigger(String triggerName) {
        return 42;
    }

    public static void main(String[] arguments) throws Exception {
        bus = arguments[1] + "/schemas/halyardns/3/";
        served = arguments[2];
        SimpleAxisServer server = new SimpleAxisServer();
        server.setMyConfig(new FileProvider("server-config.wsdd"));
        ServerSocket socket = new ServerSocket(0, 50, InetAddress.getLoopbackAddress());
        server.setServerSocket(socket);
        if (!Boolean.getBoolean("defaults")) {
            server.getAxisServer().setOption(AxisEngine.PROP_DOMULTIREFS, false);
            server.getAxisServer().setOption(AxisEngine.PROP_SEND_XSI, false);
        }
        server.start(true);
        System.out.println("http://127.0.0.1:" + socket.getLocalPort()
            + "/axis/services/eventManagementService");
        while (System.in.read() >= 0) {
        }
        System.exit(0);
    }
}
